#include "ScriptedDevice.h"

#include <VyViewerCore/CoreEvent.h>
#include <VyViewerCore/CoreEventBus.h>
#include <VyViewerCore/IDeviceManager.h>

#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace VyViewer;

namespace {

const QString Name = QStringLiteral("HostCoreTest");

CoreEventBus *bus()
{
    return Singleton<CoreEventBus>::getInstance();
}

} // namespace

class HostCoreTest : public QObject
{
    Q_OBJECT

    /// A registered subscription that notes its number whenever it is triggered, and then runs `then`.
    std::unique_ptr<CoreEvent> listener(int number, const std::function<void()> &then = {})
    {
        auto event = std::make_unique<CoreEvent>(Name, nullptr);
        bus()->registerEvent(event.get());
        connect(event.get(), &CoreEvent::triggered, this, [this, number, then] {
            m_heard.append(number);
            if (then) {
                then();
            }
        });
        return event;
    }

    QVector<int> m_heard;

private Q_SLOTS:
    void init() { m_heard.clear(); }

    void deliversInOrderAndPassesTheBlockedOver()
    {
        const auto first = listener(1);
        const auto second = listener(2);
        const auto third = listener(3);
        CoreEvent other(QStringLiteral("other"), nullptr);
        bus()->registerEvent(&other);
        QSignalSpy otherSpy(&other, &CoreEvent::triggered);
        QSignalSpy payloads(third.get(), &CoreEvent::triggered);

        second->blockSignals(true);
        QCOMPARE(bus()->post(Name, {{QStringLiteral("key"), 7}}), 0L);
        QCOMPARE(m_heard, (QVector<int>{1, 3}));
        QCOMPARE(payloads.at(0).at(0).toMap().value(QStringLiteral("key")).toInt(), 7);
        QVERIFY(otherSpy.isEmpty());
    }

    void refusesWhatIsNotThere()
    {
        CoreEvent event(Name, nullptr);
        QVERIFY(bus()->unRegisterEvent(&event) != 0);
        QCOMPARE(bus()->registerEvent(&event), 0L);
        QVERIFY(bus()->registerEvent(&event) != 0); // else it would be served twice
        QSignalSpy spy(&event, &CoreEvent::triggered);
        bus()->post(Name, {});
        QCOMPARE(spy.count(), 1);
        QCOMPARE(bus()->unRegisterEvent(&event), 0L);
        bus()->post(Name, {});
        QCOMPARE(spy.count(), 1);
        QVERIFY(bus()->registerEvent(nullptr) != 0);
        QVERIFY(bus()->unRegisterEvent(nullptr) != 0);
    }

    void handlersMayChangeTheSubscriptions_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<QVector<int>>("heard");
        QTest::addColumn<QVector<int>>("heardNext");
        QTest::newRow("unregister a later one") << "unregister" << QVector<int>{1} << QVector<int>{1};
        QTest::newRow("destroy a later one") << "destroy" << QVector<int>{1} << QVector<int>{1};
        QTest::newRow("register another") << "register" << QVector<int>{1, 2} << QVector<int>{1, 2, 3};
        QTest::newRow("replace a later one at its address") << "replace" << QVector<int>{1} << QVector<int>{1, 3};
        QTest::newRow("destroy itself") << "suicide" << QVector<int>{1, 2} << QVector<int>{2};
        QTest::newRow("post again") << "post" << QVector<int>{1, 1, 2, 2} << QVector<int>{1, 2};
    }
    void handlersMayChangeTheSubscriptions()
    {
        QFETCH(QString, what);
        std::unique_ptr<CoreEvent> first;
        std::unique_ptr<CoreEvent> second;
        std::unique_ptr<CoreEvent> third;
        bool done = false;
        first = listener(1, [&] {
            if (done) {
                return;
            }
            done = true;
            if (what == QLatin1String("unregister")) {
                bus()->unRegisterEvent(second.get());
            } else if (what == QLatin1String("destroy")) {
                second.reset();
            } else if (what == QLatin1String("register")) {
                third = listener(3);
            } else if (what == QLatin1String("replace")) {
                // In place, since an allocator need not hand the address out again.
                CoreEvent *const address = second.get();
                address->~CoreEvent();
                new (address) CoreEvent(Name, nullptr);
                bus()->registerEvent(address);
                connect(address, &CoreEvent::triggered, this, [this] { m_heard.append(3); });
            } else if (what == QLatin1String("suicide")) {
                first.reset();
            } else {
                bus()->post(Name, {});
            }
        });
        second = listener(2);
        bus()->post(Name, {});
        QTEST(m_heard, "heard");
        m_heard.clear();
        bus()->post(Name, {});
        QTEST(m_heard, "heardNext");
    }

    void nullDevice()
    {
        IDeviceManager *const manager = Singleton<IDeviceManager>::getInstance();
        QString text;
        QList<QString> entries;
        bool flag = false;
        QVERIFY(manager->getParamEnum(nullptr, Name, text, entries) != 0);
        QVERIFY(manager->getParamBool(nullptr, Name, flag) != 0);
        QVERIFY(manager->setParamInt(nullptr, Name, 1) != 0);
        QVERIFY(manager->executeCMD(nullptr, Name) != 0);
        QCOMPARE(int(manager->getNodeType(nullptr, Name)), 0);
        QCOMPARE(int(manager->getNodeAccessMode(nullptr, Name)), 0);
    }

    void forwardsArgumentsInOrder()
    {
        ScriptedDevice device;
        auto &node = device.node(QStringLiteral("Number"));
        node.value = 11;
        node.min = 1;
        node.max = 111;
        node.inc = 10;
        int value = 0;
        int min = 0;
        int max = 0;
        int inc = 0;
        IDeviceManager *const manager = Singleton<IDeviceManager>::getInstance();
        QCOMPARE(manager->getParamInt(&device, QStringLiteral("Number"), value, min, max, inc), 0L);
        QCOMPARE((QVector<int>{value, min, max, inc}), (QVector<int>{11, 1, 111, 10}));
        float f = 0;
        float fmin = 0;
        float fmax = 0;
        float finc = 0;
        QCOMPARE(manager->getParamFloat(&device, QStringLiteral("Number"), f, fmin, fmax, finc), 0L);
        QCOMPARE((QVector<float>{f, fmin, fmax, finc}), (QVector<float>{11, 1, 111, 10}));
    }

    void theMetaTypeIsCalledIDevice()
    {
        QCOMPARE(QVariant::fromValue<IDevice>(nullptr).typeName(), "IDevice");
    }
};

QTEST_MAIN(HostCoreTest)
#include "HostCoreTest.moc"
