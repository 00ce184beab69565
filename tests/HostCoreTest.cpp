#include "Literal.h"

#include <VyViewerCore/CoreEvent.h>
#include <VyViewerCore/CoreEventBus.h>
#include <VyViewerCore/IDeviceManager.h>

#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <memory>
#include <utility>

using namespace VyViewer;

namespace {

const QString Name = "HostCoreTest"_s;

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
        CoreEvent other("other"_s, nullptr);
        bus()->registerEvent(&other);
        QSignalSpy otherSpy(&other, &CoreEvent::triggered);
        QSignalSpy payloads(third.get(), &CoreEvent::triggered);

        second->blockSignals(true);
        QCOMPARE(bus()->post(Name, {{"key"_s, 7}}), 0L);
        QCOMPARE(m_heard, (QVector<int>{1, 3}));
        QCOMPARE(payloads.at(0).at(0).toMap().value("key"_s).toInt(), 7);
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

    void handlersMayChangeTheSubscriptions()
    {
        std::unique_ptr<CoreEvent> first;
        std::unique_ptr<CoreEvent> second;
        std::unique_ptr<CoreEvent> third;
        const auto replace = [&] { // in place, since an allocator need not hand the address out again
            CoreEvent *const address = second.get();
            address->~CoreEvent();
            new (address) CoreEvent(Name, nullptr);
            bus()->registerEvent(address);
            connect(address, &CoreEvent::triggered, this, [this] { m_heard.append(3); });
        };
        const struct { const char *what; std::function<void()> change; QVector<int> heard, heardNext; } rows[] = {
            {"unregister a later one", [&] { bus()->unRegisterEvent(second.get()); }, {1}, {1}},
            {"destroy a later one", [&] { second.reset(); }, {1}, {1}},
            {"register another", [&] { third = listener(3); }, {1, 2}, {1, 2, 3}},
            {"replace a later one at its address", replace, {1}, {1, 3}},
            {"destroy itself", [&] { first.reset(); }, {1, 2}, {2}},
            {"post again", [] { bus()->post(Name, {}); }, {1, 1, 2, 2}, {1, 2}},
        };
        for (const auto &row : rows) {
            bool done = false;
            first = listener(1, [&] { std::exchange(done, true) ? void() : row.change(); });
            second = listener(2);
            for (const QVector<int> &heard : {row.heard, row.heardNext}) {
                m_heard.clear();
                bus()->post(Name, {});
                QVERIFY2(m_heard == heard, row.what);
            }
            third.reset();
        }
    }

    void whatPassesThroughIsAnIDevice()
    {
        QCOMPARE(QVariant::fromValue<IDevice>(nullptr).typeName(), "IDevice");
        IDeviceManager *const manager = Singleton<IDeviceManager>::getInstance();
        QVERIFY(manager->executeCMD(nullptr, Name) != 0);
        QCOMPARE(manager->getNodeAccessMode(nullptr, Name), RuvoNodeNotImplemented);
    }
};

QTEST_MAIN(HostCoreTest)
#include "HostCoreTest.moc"
