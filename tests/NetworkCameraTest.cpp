#include "CameraProcess.h"

#include "devices/CachingPort.h"
#include "devices/CameraConnection.h"
#include "devices/CameraFinder.h"
#include "panel/VyTriggerConfigWdg.h"
#include "viewer/TracedDevice.h"

#include <VyViewerCore/CoreEventBus.h>
#include <VyViewerCore/IDeviceManager.h>
#include <VyViewerCore/Singleton.h>

#include <QtTest>

#include <cstring>

using VyViewer::CoreEventBus;
using VyViewer::IDeviceManager;
using VyViewer::Singleton;

namespace {

const QString kAddress = "127.0.0.1"_s;
const QString kMode = "InputTriggerMode"_s;
const QString kSource = "InputTriggerSource"_s;

/// 4096 bytes that count how often they are asked for. Some cameras do not give registers out together.
class CountingPort final : public RegisterPort
{
public:
    bool read(quint64 address, void *bytes, quint32 size, QString *error) override
    {
        reads.append("%1+%2"_s.arg(address).arg(size));
        if (size > largest) {
            *error = "too much"_s;
            return false;
        }
        std::memcpy(bytes, memory.constData() + address, size);
        return true;
    }
    bool write(quint64 address, const void *bytes, quint32 size, QString *) override
    {
        memory.replace(int(address), int(size), static_cast<const char *>(bytes), int(size));
        return true;
    }

    QStringList reads;
    quint32 largest = 4096;
    QByteArray memory = QByteArray(4096, 'a');
};

} // namespace

class NetworkCameraTest : public QObject
{
    Q_OBJECT

    void openCamera()
    {
        m_connection.open();
        QTRY_COMPARE_WITH_TIMEOUT(m_connection.state(), CameraConnection::Open, 20000);
    }
    GenicamDevice *camera() const { return m_connection.device(); }

    CameraProcess m_process;
    CameraConnection m_connection{kAddress};

private Q_SLOTS:
    void init()
    {
        const QString answer = m_process.start();
        QVERIFY2(answer.contains(kAddress), qPrintable(answer));
        openCamera();
    }
    void cleanup()
    {
        m_connection.close();
        QTest::qWait(100); // for its release: the end of the process waits long for one without a camera
        m_process.kill();
    }

    void badServersSayWhy()
    {
        const struct { const char *arguments; const char *named; } cases[] = {
            {"--address 127.0.0.1", "already in use"}, {"--address 192.0.2.1", "192.0.2.1"},
            {"--address camera", "camera"}, {"--address 127.0.0.2 --serial 12345678901234567", "DeviceSerialNumber"},
            {"--description nowhere.xml --address 127.0.0.2", "nowhere.xml"}, {"--bogus", "bogus"}};
        for (const auto &bad : cases) {
            CameraProcess process;
            const QString answer = process.start(QString::fromLatin1(bad.arguments).split(u' '));
            QVERIFY2(answer.startsWith("vycamera: "_s) && answer.count(u'\n') == 1
                         && answer.contains(QString::fromLatin1(bad.named)), qPrintable(answer));
        }
        // None of them disturbed the one that runs.
        QVERIFY(camera()->setParamFloat(kDelay, 5) == 0);
    }

    void badAddressesSayWhy()
    {
        for (const char *address : {"", "camera", "0.0.0.0", "224.0.0.1", "::1", "127.0.0.3"}) {
            QString error;
            QVERIFY(!GenicamDevice::openNetwork(QString::fromLatin1(address), &error));
            QVERIFY2(error.startsWith(QString::fromLatin1(address) + ": "_s), qPrintable(error));
        }
    }

    void aSecondControllerReadsOnly()
    {
        CameraConnection second(kAddress);
        second.open();
        QTRY_COMPARE_WITH_TIMEOUT(second.state(), CameraConnection::Open, 20000);
        GenicamDevice *const other = second.device();
        QVERIFY(other->isReadOnly());
        QVERIFY(!camera()->isReadOnly());
        QCOMPARE(other->getNodeAccessMode(kDelay), RuvoNodeReadOnly);
        QCOMPARE(other->getNodeAccessMode("AcquisitionStart"_s), RuvoNodeNotAvailable);
        QVERIFY(other->setParamFloat(kDelay, 1) == GenicamDevice::NoAccess);
        QVERIFY(other->executeCMD("AcquisitionStart"_s) == GenicamDevice::NoAccess);

        // The camera changes without its doing: what it sees stays of one piece until something tells it, or until
        // the next action.
        const std::function<void()> news[] = {
            [] { Singleton<CoreEventBus>::getInstance()->post("UserSetLoad"_s, {}); },
            [other] { Q_EMIT Singleton<IDeviceManager>::getInstance()->deviceGrabStatusUpdate(other, 1); },
            [] { QCoreApplication::processEvents(); }};
        float delay = delayOf(other);
        for (const auto &tell : news) {
            QVERIFY(camera()->setParamFloat(kDelay, delay + 1) == 0);
            QCOMPARE(delayOf(other), delay);
            tell();
            QCOMPARE(delayOf(other), ++delay);
        }
        m_connection.close();
        second.open();
        QTRY_COMPARE_WITH_TIMEOUT(second.state(), CameraConnection::Open, 20000);
        QVERIFY2(!second.device()->isReadOnly(), "the first is released by then");
    }

    void aCameraThatDiesInARefreshIsLostAtOnceAndComesBack()
    {
        int left = -1; // calls until the camera dies
        const auto count = [this, &left](const TracedDevice::Call &) {
            if (left-- == 0) {
                m_process.kill();
            }
        };
        TracedDevice device(*camera(), count, {});
        {
            VyTriggerConfigWdg panel;
            panel.setVyDevice(&device);
            panel.show();
            QCoreApplication::processEvents();
            QSignalSpy changes(&m_connection, &CameraConnection::stateChanged);
            const quint64 before = camera()->roundTrips();
            left = 3;
            panel.hide();
            panel.show();
            QVERIFY2(changes.isEmpty(), "nobody is told in the middle of a refresh");
            QVERIFY(!camera()->lostReason().isEmpty());
            const quint64 after = camera()->roundTrips();
            QVERIFY(camera()->getNodeAccessMode(kMode) == RuvoNodeNotAvailable);
            QVERIFY(camera()->setParamEnum(kMode, "Hold"_s) == GenicamDevice::DeviceFailure);
            QVERIFY(camera()->lastError().contains(camera()->lostReason()));
            QCOMPARE(camera()->roundTrips(), after); // nothing more was tried
            QVERIFY(after > before + 1); // some were answered
        }
        QTRY_COMPARE(m_connection.state(), CameraConnection::Lost);
        QCOMPARE(m_connection.reason(), camera()->lostReason());

        QVERIFY(m_process.start().contains(kAddress));
        openCamera();
        QVERIFY(!camera()->isReadOnly());
        QCOMPARE(delayOf(camera()), 0.F);
        QVERIFY(camera()->setParamFloat(kDelay, 3) == 0);
    }

    void aRestartedCameraIsNoticedWithoutACall()
    {
        m_process.kill();
        QVERIFY(m_process.start().contains(kAddress));
        QTRY_COMPARE_WITH_TIMEOUT(m_connection.state(), CameraConnection::Lost, 20000);
        QVERIFY(!m_connection.reason().isEmpty());
    }

    void reopeningKeepsControl()
    {
        openCamera(); // while the connection that was is still being released
        QVERIFY(!camera()->isReadOnly());
        QVERIFY(camera()->setParamFloat(kDelay, 2) == 0);
    }

    void closingWhileOpeningLeavesNothing()
    {
        m_connection.open();
        m_connection.close();
        QTest::qWait(500); // opening takes some 20 milliseconds
        QCOMPARE(m_connection.state(), CameraConnection::Closed);
        QVERIFY(!m_connection.device());
    }

    void everyCameraIsFound()
    {
        CameraProcess second;
        QVERIFY(second.start({"--address"_s, "10.0.0.1"_s, "--serial"_s, "EV-2"_s}).contains("10.0.0.1"_s));
        QStringList found;
        for (const CameraFinder::Camera &each : CameraFinder::find()) {
            found.append(QStringList{each.address, each.vendor, each.model, each.serial}.join(u'|'));
        }
        found.sort();
        QCOMPARE(found, (QStringList{"10.0.0.1|Example Vision|CodeReader 5|EV-2"_s,
                                     "127.0.0.1|Example Vision|CodeReader 5|EV-000001"_s}));
    }

    void neighboursAreFetchedTogether()
    {
        auto owned = std::make_unique<CountingPort>();
        CountingPort &far = *owned;
        CachingPort port(std::move(owned));
        // Side by side, one within another, behind a gap, too long with its neighbour, and too long alone.
        port.setCachable({{12, 16}, {0, 4}, {4, 12}, {6, 8}, {20, 24}, {24, 536}, {1000, 2000}});
        QString error;
        char bytes[1024];
        const auto read = [&](quint64 address, quint32 size) { return port.read(address, bytes, size, &error); };
        const auto expect = [&far](const char *reads) {
            QCOMPARE(far.reads.join(u' '), QString::fromLatin1(reads));
            far.reads.clear();
        };
        QVERIFY(read(4, 4) && read(0, 16) && read(12, 4));
        expect("0+16");
        QVERIFY(read(16, 4) && read(16, 4) && read(20, 4) && read(1000, 1000));
        expect("16+4 20+4 1000+1000");
        QVERIFY(read(14, 4)); // half in, half out
        expect("14+4");
        QVERIFY(port.write(8, "bcde", 4, &error) && read(9, 2));
        QCOMPARE(QByteArray(bytes, 2), QByteArray("cd"));
        expect("0+16");
        far.largest = 4;
        port.drop();
        QVERIFY(read(4, 4) && read(8, 4));
        expect("0+16 4+4 8+4");
        QVERIFY(!read(0, 8)); // refused is refused, and nothing of it kept
        QVERIFY(!read(0, 8));
        expect("0+8 0+8");
        port.setCaching(false);
        QVERIFY(read(4, 4) && read(4, 4));
        expect("4+4 4+4");
    }
};

QTEST_MAIN(NetworkCameraTest)
#include "NetworkCameraTest.moc"
