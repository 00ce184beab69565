#include "PanelProbe.h"
#include "ScriptedDevice.h"

#include "parampage/DeviceEvents.h"
#include "trigger/TriggerConfigWdgImpl.h"

#include <VyCommonGUI/VyLineEdit.h>
#include <VyViewerCore/CoreEvent.h>
#include <VyViewerCore/CoreEventBus.h>
#include <VyViewerCore/IDeviceManager.h>

#include <QSet>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace PanelProbe;
using namespace VyViewer;

class TriggerPageTest : public QObject
{
    Q_OBJECT

    /// What refreshing all rows asks of the device.
    QStringList refreshOfAllRows()
    {
        m_device.takeCalls();
        m_page->updateWidget();
        return m_device.takeCalls();
    }

    ScriptedDevice m_device;
    std::unique_ptr<TriggerConfigWdgImpl> m_page;

private Q_SLOTS:
    void init()
    {
        m_device.reset();
        m_page = std::make_unique<TriggerConfigWdgImpl>(&m_device, nullptr);
        QVERIFY2(m_device.calls.isEmpty(), "building the page reads nothing");
        m_page->show();
    }
    void cleanup() { m_page.reset(); }

    void everyRowHasANodeOfItsOwn()
    {
        QSet<QString> nodes;
        for (const auto *row : m_page->findChildren<ParamPageWidgetItem *>()) {
            nodes.insert(row->objectName());
        }
        QCOMPARE(nodes.size(), 35);
    }

    void theShowReadsInOrder()
    {
        const QStringList rows = refreshOfAllRows();
        QCOMPARE(rows.size(), 35 + 34); // modes, and values of all but the one command
        m_page->hide();
        m_device.node("TriggerTcpClientStartCMD").mode = RuvoNodeNotAvailable; // so its rule is not applied
        m_page->show();
        QStringList expected = rows;
        expected.removeOne(QStringLiteral("get TriggerTcpClientStartCMD"));
        expected << QStringLiteral("get InputTriggerMode") << QStringLiteral("get TriggerTcpServerCMDFormat")
                 << QStringLiteral("get TriggerUdpCMDFormat") << QStringLiteral("get TriggerSerialPortCMDFormat");
        QCOMPARE(m_device.takeCalls(), expected);
    }

    void titleFollowsModeAndSource_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QStringList>("titles");
        const auto row = [](const char *mode, const char *source, const QStringList &titles) {
            QTest::addRow("%s %s", mode, source)
                << QString::fromLatin1(mode) << QString::fromLatin1(source) << titles;
        };
        row("None", "TcpServer", {});
        row("Hold", "TcpServer", {QStringLiteral("TCP Server")});
        row("Once", "AutoTrigger", {QStringLiteral("Auto Trigger")});
        row("Once", "SensingTrigger", {QStringLiteral("Sensing Trigger")});
        row("Once", "TcpClient", {QStringLiteral("TCP Client")});
        row("Once", "Udp", {QStringLiteral("UDP")});
        row("Once", "RS-232", {QStringLiteral("RS-232")});
        row("Once", "UDP", {});
        row("Once", "IOTrigger", {});
        row("Once", "SoftwareTrigger", {});
        row("Once", "Master-Slave", {});
        row("Once", "", {});
    }
    void titleFollowsModeAndSource()
    {
        QFETCH(QString, mode);
        QFETCH(QString, source);
        m_page->hide();
        m_device.node("InputTriggerMode").value = mode;
        m_device.node("InputTriggerSource").value = source;
        m_page->show();
        QTEST(shownTitles(m_page.get()), "titles");
    }

    void aChangeOfModeIsAnnounced_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<bool>("fails");
        QTest::addColumn<bool>("hold");
        QTest::addColumn<QString>("posted");
        QTest::newRow("None") << "None" << false << false << "Off";
        QTest::newRow("Hold") << "Hold" << false << true << "On";
        QTest::newRow("any other") << "Once" << false << false << "On";
        QTest::newRow("unreadable") << "Hold" << true << false << "On";
    }
    void aChangeOfModeIsAnnounced()
    {
        QFETCH(QString, mode);
        QFETCH(bool, fails);
        QFETCH(QString, posted);
        m_page->hide();
        m_device.node("InputTriggerMode").value = QStringLiteral("Other");
        m_device.node("InputTriggerMode").entries.append(QStringLiteral("Other"));
        m_page->show();
        m_device.node("InputTriggerMode").failsReads = fails;
        const QStringList rows = refreshOfAllRows();
        CoreEvent heard(QStringLiteral("DeviceParamChanged"), nullptr);
        Singleton<CoreEventBus>::getInstance()->registerEvent(&heard);
        QSignalSpy bus(&heard, &CoreEvent::triggered);
        QSignalSpy hold(m_page.get(), &TriggerConfigWdgImpl::triggerModeHoldRefresh);

        choose(m_page.get(), "InputTriggerMode", mode.toLatin1().constData());

        QStringList expected{QStringLiteral("set InputTriggerMode=") + mode};
        expected << rows << QStringLiteral("get InputTriggerMode") << QStringLiteral("get InputTriggerMode");
        if (mode != QLatin1String("None")) {
            expected << QStringLiteral("get InputTriggerSource");
        }
        QCOMPARE(m_device.takeCalls(), expected);
        QCOMPARE(hold.count(), 1);
        QTEST(hold.at(0).at(0).toBool(), "hold");
        QCOMPARE(bus.count(), 1);
        const QVariantMap payload = bus.at(0).at(0).toMap();
        QCOMPARE(payload.keys(), (QStringList{QStringLiteral("IDevice"), QStringLiteral("TriggerConfigWdgImpl"),
                                              QStringLiteral("TriggerMode")}));
        QCOMPARE(payload.value(QStringLiteral("IDevice")).value<IDevice>(), &m_device);
        QCOMPARE(payload.value(QStringLiteral("TriggerMode")).toString(), posted);
        QVERIFY(!payload.value(QStringLiteral("TriggerConfigWdgImpl")).isValid());
    }

    void changesAreAnnouncedToTheStopPages_data()
    {
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArray>("entry");
        QTest::addColumn<QString>("event");
        QTest::addColumn<QStringList>("reads"); // after the refresh of all rows
        QTest::newRow("source") << QByteArray("InputTriggerSource") << QByteArray("Udp") << "triggerSource"
                                << QStringList{QStringLiteral("get InputTriggerMode")};
        const auto format = [](const char *source, const char *event) {
            const QByteArray node = QByteArray("Trigger") + source + "CMDFormat";
            QTest::newRow(source) << node << QByteArray("Hex") << QString::fromLatin1(event)
                                  << QStringList{QStringLiteral("get ") + QString::fromLatin1(node)};
        };
        format("TcpServer", "tcpserverCMDFormatEvent");
        format("TcpClient", "tcpclientCMDFormatEvent");
        format("Udp", "udpCMDFormatEvent");
        format("SerialPort", "serialportCMDFormatEvent");
    }
    void changesAreAnnouncedToTheStopPages()
    {
        QFETCH(QByteArray, node);
        QFETCH(QByteArray, entry);
        QFETCH(QString, event);
        QFETCH(QStringList, reads);
        const QStringList rows = refreshOfAllRows();
        CoreEvent heard(event, nullptr);
        Singleton<CoreEventBus>::getInstance()->registerEvent(&heard);
        QSignalSpy bus(&heard, &CoreEvent::triggered);
        choose(m_page.get(), node.constData(), entry.constData());
        // Nothing more: the page does not hear its own post.
        QCOMPARE(m_device.takeCalls(),
                 QStringList{QStringLiteral("set %1=%2").arg(QString::fromLatin1(node), QString::fromLatin1(entry))}
                     + rows + reads);
        QCOMPARE(bus.count(), 1);
        QCOMPARE(bus.at(0).at(0).toMap(), DeviceEvents::payload(&m_device));
    }

    void formatDecidesWhatCanBeTyped_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("length");
        QTest::newRow("Hex refuses letters") << "Hex" << "gAxB" << 2;
        QTest::newRow("Hex is limited") << "Hex" << QStringLiteral("A").repeated(129) << 128;
        QTest::newRow("other case is text") << "HEX" << "gAxB" << 4;
        QTest::newRow("text is limited in bytes") << "String" << QString(QChar(0x20AC)).repeated(43) << 42;
    }
    void formatDecidesWhatCanBeTyped()
    {
        QFETCH(QString, format);
        QFETCH(QString, typed);
        QFETCH(int, length);
        m_page->hide();
        for (const char *node : {"TriggerTcpServerCMDFormat", "TriggerTcpClientCMDFormat", "TriggerUdpCMDFormat",
                                 "TriggerSerialPortCMDFormat"}) {
            m_device.node(node).value = format;
        }
        m_page->show();
        for (const char *node : {"TriggerTcpServerStartCMD", "TriggerTcpServerStorageImageCMD",
                                 "TriggerTcpClientStartCMD", "TriggerTcpClientHeartbeatCMD", "TriggerUdpStartCMD",
                                 "TriggerSerialPortStartCMD"}) {
            auto *const edit = editor<VyLineEdit>(m_page.get(), node);
            edit->clear();
            for (const QChar character : typed) {
                edit->insert(character);
            }
            QCOMPARE(edit->text().size(), length);
        }
        QVERIFY2(!editor<VyLineEdit>(m_page.get(), "TriggerTcpClientServerIp")->validator(), "an address is no command");
    }

    void eventsRefreshTheCommandRowsOfTheirSource_data()
    {
        QTest::addColumn<QString>("event");
        QTest::addColumn<QStringList>("nodes");
        QTest::newRow("TCP server") << "tcpserverCMDFormatEvent"
                                    << QStringList{QStringLiteral("TriggerTcpServerStartCMD"),
                                                   QStringLiteral("TriggerTcpServerStorageImageCMD")};
        QTest::newRow("TCP client") << "tcpclientCMDFormatEvent"
                                    << QStringList{QStringLiteral("TriggerTcpClientStartCMD"),
                                                   QStringLiteral("TriggerTcpClientHeartbeatCMD")};
        QTest::newRow("UDP") << "udpCMDFormatEvent" << QStringList{QStringLiteral("TriggerUdpStartCMD")};
        QTest::newRow("RS-232") << "serialportCMDFormatEvent"
                                << QStringList{QStringLiteral("TriggerSerialPortStartCMD")};
        QTest::newRow("nothing hears the source") << "triggerSource" << QStringList();
        QTest::newRow("nothing hears the mode") << "DeviceParamChanged" << QStringList();
    }
    void eventsRefreshTheCommandRowsOfTheirSource()
    {
        QFETCH(QString, event);
        QFETCH(QStringList, nodes);
        ScriptedDevice other;
        m_device.takeCalls();
        DeviceEvents::post(event, {});
        DeviceEvents::post(event, DeviceEvents::payload(&other));
        DeviceEvents::post(event, {{QStringLiteral("IDevice"), QStringLiteral("text")}});
        QVERIFY(m_device.calls.isEmpty());
        DeviceEvents::post(event, DeviceEvents::payload(&m_device));
        QStringList expected;
        for (const QString &node : nodes) {
            expected += ScriptedDevice::refreshOf(node);
        }
        QCOMPARE(m_device.takeCalls(), expected);
        m_page.reset();
        DeviceEvents::post(event, DeviceEvents::payload(&m_device));
        QVERIFY2(m_device.calls.isEmpty(), "a destroyed page hears nothing");
    }
};

QTEST_MAIN(TriggerPageTest)
#include "TriggerPageTest.moc"
