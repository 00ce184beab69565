#include "PanelProbe.h"
#include "ScriptedDevice.h"

#include "parampage/DeviceEvents.h"
#include "triggerstop/TriggerStopConfigContainerWdg.h"
#include "triggerstop/TriggerStopConfigWdg.h"

#include <VyCommonGUI/VyLineEdit.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyCommonGUI/VyToggleSwitch.h>
#include <VyViewerCore/CoreEvent.h>
#include <VyViewerCore/CoreEventBus.h>

#include <QSet>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace PanelProbe;
using namespace VyViewer;

namespace {

const char *const ConditionEvent = "TriggerStopConditionEvent";

QString node(int number, const char *name)
{
    return QStringLiteral("TriggerStopConfig%1%2").arg(number).arg(QString::fromLatin1(name));
}

} // namespace

/// The five pages in their container.
class StopConfigTest : public QObject
{
    Q_OBJECT

    TriggerStopConfigWdg *page(int number) const
    {
        return m_container->findChildren<TriggerStopConfigWdg *>().at(number - 1);
    }
    template <typename Editor>
    Editor *editorOf(int number, const char *name) const
    {
        return editor<Editor>(m_container.get(), node(number, name));
    }
    VyMultiCheckTitleWidget *title(int number) const
    {
        return page(number)->findChild<VyMultiCheckTitleWidget *>();
    }
    QVector<int> shownPages() const
    {
        QVector<int> shown;
        for (int number = 1; number <= 5; ++number) {
            if (page(number)->isVisible()) {
                shown.append(number);
            }
        }
        return shown;
    }
    void show(const QVector<int> &enabled)
    {
        for (const int number : enabled) {
            m_device.node(node(number, "Enable")).value = true;
        }
        m_container->show();
        m_container->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_container.get()));
        m_device.takeCalls();
    }
    /// Hidden pages hear the event too: every page has built its rows at the container's first show.
    QStringList conditionRefreshOf(const QVector<int> &numbers) const
    {
        QStringList calls;
        for (const int number : numbers) {
            calls += ScriptedDevice::refreshOf(node(number, "Condtion"));
        }
        return calls;
    }
    QStringList refreshOfAllRows(int number)
    {
        m_device.takeCalls();
        page(number)->updateWidget();
        return m_device.takeCalls();
    }

    ScriptedDevice m_device;
    std::unique_ptr<TriggerStopConfigContainerWdg> m_container;

private Q_SLOTS:
    void init()
    {
        m_device.reset();
        m_container = std::make_unique<TriggerStopConfigContainerWdg>(nullptr);
        m_container->addStopConfig(); // without a device: nothing
        m_container->updatePages();
        m_container->setTitlesEnabled(false);
        m_container->setDevice(&m_device);
        QVERIFY(m_device.calls.isEmpty());
    }
    void cleanup() { m_container.reset(); }

    void pagesAreNumbered()
    {
        show({2, 3, 4, 5});
        QSet<QString> nodes;
        int y = -1;
        for (int number = 1; number <= 5; ++number) {
            const auto rows = page(number)->findChildren<ParamPageWidgetItem *>();
            QCOMPARE(rows.size(), 26);
            for (const auto *row : rows) {
                QVERIFY2(row->objectName().startsWith(node(number, "")), qPrintable(row->objectName()));
                nodes.insert(row->objectName());
            }
            QCOMPARE(text(title(number)), QStringLiteral("Config %1").arg(number));
            int buttons = 0;
            for (const auto *button : title(number)->findChildren<QAbstractButton *>()) {
                buttons += button->isVisible() ? 1 : 0;
            }
            QCOMPARE(buttons, number == 1 ? 0 : 1); // no check box, and the first cannot be deleted
            QVERIFY(page(number)->y() > y);
            y = page(number)->y();
        }
        QCOMPARE(nodes.size(), 5 * 26);
    }

    void switchesDecideWhichPagesShow()
    {
        m_device.node(node(5, "Enable")).value = true;
        m_device.node(node(5, "Enable")).failsReads = true;
        show({2, 4});
        QCOMPARE(shownPages(), (QVector<int>{1, 2, 4}));

        m_container->hide();
        m_device.node(node(2, "Enable")).value = false;
        m_device.node(node(3, "Enable")).value = true;
        m_container->show();
        QCOMPARE(shownPages(), (QVector<int>{1, 3, 4}));
        const QStringList switches = m_device.calls.filter(QStringLiteral("Enable"))
                                         .filter(QRegularExpression(QStringLiteral("[1-5]Enable")));
        QCOMPARE(switches, (QStringList{QStringLiteral("get TriggerStopConfig2Enable"),
                                        QStringLiteral("get TriggerStopConfig3Enable"),
                                        QStringLiteral("get TriggerStopConfig4Enable"),
                                        QStringLiteral("get TriggerStopConfig5Enable")}));
        QVERIFY(m_device.writes().isEmpty());
    }

    void addShowsTheLowestHiddenPage()
    {
        show({2, 4});
        CoreEvent heard(QString::fromLatin1(ConditionEvent), nullptr);
        Singleton<CoreEventBus>::getInstance()->registerEvent(&heard);
        QSignalSpy bus(&heard, &CoreEvent::triggered);

        m_container->addStopConfig();
        QCOMPARE(m_device.calls.first(), QStringLiteral("set TriggerStopConfig3Enable=true"));
        QCOMPARE(m_device.calls.mid(m_device.calls.size() - 10), conditionRefreshOf({1, 2, 3, 4, 5}));
        QVariantMap payload = DeviceEvents::payload(&m_device);
        payload.insert(QString::fromLatin1(ConditionEvent), QString());
        QCOMPARE(bus.at(0).at(0).toMap(), payload);

        m_device.node(node(5, "Enable")).refusesWrites = true; // revealed all the same, until the next show
        m_container->addStopConfig();
        QCOMPARE(shownPages(), (QVector<int>{1, 2, 3, 4, 5}));
        m_device.takeCalls();
        m_container->addStopConfig();
        QVERIFY2(m_device.calls.isEmpty(), "all pages are shown already");
        QCOMPARE(bus.count(), 2);
        m_container->hide();
        m_container->show();
        QCOMPARE(shownPages(), (QVector<int>{1, 2, 3, 4}));

        page(1)->hide();
        m_device.takeCalls();
        m_container->addStopConfig();
        QVERIFY2(m_device.writes().isEmpty(), "the first configuration has no switch");
        QVERIFY(page(1)->isVisible());
        QCOMPARE(bus.count(), 3);
    }

    void deleteSwitchesOff()
    {
        show({2, 3});
        m_device.node(node(3, "Enable")).refusesWrites = true;
        click(title(3), "Delete");
        QCOMPARE(m_device.takeCalls(),
                 QStringList{QStringLiteral("set TriggerStopConfig3Enable=false")}
                     + conditionRefreshOf({1, 2, 3, 4, 5}));
        QCOMPARE(shownPages(), (QVector<int>{1, 2}));

        m_container->setTitlesEnabled(false);
        click(title(2), "Delete");
        QVERIFY2(m_device.calls.isEmpty(), "a disabled title deletes nothing");
        QVERIFY(editorOf<VySpinBox>(2, "FrameCount")->isEnabled());
        m_container->setTitlesEnabled(true);
        click(title(2), "Delete");
        QCOMPARE(shownPages(), QVector<int>{1});
    }

    void deletingWithAPendingEditWritesNothingElse()
    {
        show({2});
        auto *const spin = editorOf<VySpinBox>(2, "FrameCount");
        spin->setFocus();
        QTest::keyClicks(spin, QStringLiteral("9"));
        page(2)->deleteStopConfig(); // as assistive technology would, without moving the focus first
        QVERIFY(page(2)->isHidden());
        QVERIFY2(QApplication::focusWidget() && QApplication::focusWidget()->isVisible(), "the focus moves on");
        QCOMPARE(m_device.writes(), QStringList{QStringLiteral("set TriggerStopConfig2Enable=false")});
    }

    void conditionChangeReachesTheOtherPages()
    {
        show({2, 3});
        const QStringList rows = refreshOfAllRows(2);
        editorOf<VyComboBox>(2, "Condtion")->setCurrentIndex(1);
        QCOMPARE(m_device.takeCalls(), QStringList{QStringLiteral("set TriggerStopConfig2Condtion=Second")} + rows
                                           + conditionRefreshOf({1, 3, 4, 5}));
    }

    void codeCountingIsAnnounced()
    {
        show({});
        const QStringList rows = refreshOfAllRows(1);
        CoreEvent heard(QStringLiteral("TriggerStopDecodeCountEnable"), nullptr);
        Singleton<CoreEventBus>::getInstance()->registerEvent(&heard);
        QSignalSpy bus(&heard, &CoreEvent::triggered);
        auto *const toggle = editorOf<VyToggleSwitch>(1, "CodeCountEnable");
        QTest::keyClick(toggle, Qt::Key_Space);
        QCOMPARE(m_device.takeCalls(),
                 QStringList{QStringLiteral("set TriggerStopConfig1CodeCountEnable=true")} + rows);
        QCOMPARE(bus.count(), 1);
        QCOMPARE(bus.at(0).at(0).toMap(), DeviceEvents::payload(&m_device));
    }

    void formatRule_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("event");
        QTest::addColumn<int>("mode");       // of the page's own format node
        QTest::addColumn<QString>("own");
        QTest::addColumn<QString>("trigger"); // the trigger page's format
        QTest::addColumn<bool>("hex");
        const QString sources[][2] = {{QStringLiteral("TcpServer"), QStringLiteral("tcpserverCMDFormatEvent")},
                                      {QStringLiteral("TcpClient"), QStringLiteral("tcpclientCMDFormatEvent")},
                                      {QStringLiteral("Udp"), QStringLiteral("udpCMDFormatEvent")},
                                      {QStringLiteral("SerialPort"), QStringLiteral("serialportCMDFormatEvent")}};
        for (const auto &source : sources) {
            const auto row = [&source](const char *what, int mode, const char *own, const char *trigger, bool hex) {
                QTest::addRow("%s %s", qPrintable(source[0]), what) << source[0] << source[1] << mode
                    << QString::fromLatin1(own) << QString::fromLatin1(trigger) << hex;
            };
            row("own", 4, "Hex", "String", true);
            row("own, read-only", 3, "String", "Hex", false);
            row("own, other case", 4, "hex", "Hex", false);
            row("not available", 1, "String", "Hex", true);
            row("not implemented", 0, "Hex", "String", false);
        }
    }
    void formatRule()
    {
        QFETCH(QString, source);
        QFETCH(QString, event);
        QFETCH(int, mode);
        QFETCH(QString, own);
        QFETCH(QString, trigger);
        QFETCH(bool, hex);
        const QString command = node(1, "") + source + QStringLiteral("StopCMD");
        const QString ownFormat = node(1, "") + source + QStringLiteral("CMDFormat");
        const QString triggerFormat = QStringLiteral("Trigger") + source + QStringLiteral("CMDFormat");
        show({});
        auto *const edit = editor<VyLineEdit>(m_container.get(), command);
        const auto takesLetters = [edit] {
            edit->clear();
            edit->insert(QStringLiteral("G"));
            return edit->text() == QLatin1String("G");
        };
        m_device.node(ownFormat).mode = static_cast<RuvoNodeAccessMode>(mode);
        m_device.node(ownFormat).value = own;
        m_device.node(triggerFormat).value = trigger;

        DeviceEvents::post(event, {});
        QVERIFY(m_device.calls.isEmpty());
        DeviceEvents::post(event, DeviceEvents::payload(&m_device));
        const QString read = mode < RuvoNodeWriteOnly ? triggerFormat : ownFormat;
        const QStringList rule{QStringLiteral("mode ") + ownFormat, QStringLiteral("get ") + read};
        QCOMPARE(m_device.calls.mid(0, 4), ScriptedDevice::refreshOf(command) + rule);
        QCOMPARE(takesLetters(), !hex);

        // A show applies the rule to the sources that are on screen, and to no other.
        m_device.node(ownFormat).mode = RuvoNodeReadWrite;
        m_device.node(ownFormat).value = hex ? QStringLiteral("String") : QStringLiteral("Hex");
        m_device.node(command).mode = RuvoNodeNotAvailable;
        m_container->hide();
        m_container->show();
        QCOMPARE(takesLetters(), !hex);
        m_device.node(command).mode = RuvoNodeReadWrite;
        m_container->hide();
        m_container->show();
        QCOMPARE(takesLetters(), hex);
    }

    void ownFormatChangeStaysOnThePage()
    {
        show({2});
        const QStringList rows = refreshOfAllRows(1);
        editorOf<VyComboBox>(1, "UdpCMDFormat")->setCurrentIndex(1);
        QCOMPARE(m_device.takeCalls(), QStringList{QStringLiteral("set TriggerStopConfig1UdpCMDFormat=Hex")} + rows
                                           + ScriptedDevice::refreshOf(node(1, "UdpCMDFormat")));
    }

    void triggerSourceRefreshesVisiblePages()
    {
        show({3});
        const QStringList rows = refreshOfAllRows(1) + refreshOfAllRows(3);
        ScriptedDevice other;
        const QString event = QStringLiteral("triggerSource");
        DeviceEvents::post(event, DeviceEvents::payload(&other));
        QVERIFY(m_device.calls.isEmpty());
        DeviceEvents::post(event, DeviceEvents::payload(&m_device));
        QCOMPARE(m_device.takeCalls(), rows);
        m_container->hide();
        DeviceEvents::post(event, DeviceEvents::payload(&m_device));
        QVERIFY(m_device.calls.isEmpty());
        m_container.reset();
        DeviceEvents::post(QString::fromLatin1(ConditionEvent), DeviceEvents::payload(&m_device));
        QVERIFY2(m_device.calls.isEmpty(), "destroyed pages hear nothing");
    }
};

QTEST_MAIN(StopConfigTest)
#include "StopConfigTest.moc"
