#include "PanelProbe.h"
#include "ScriptedDevice.h"
#include "TildeTranslator.h"

#include "panel/VyTriggerConfigWdg.h"
#include "panel/VyTriggerConfigWidgetImpl.h"
#include "parampage/DeviceEvents.h"
#include "trigger/TriggerConfigWdgImpl.h"
#include "triggerstop/TriggerStopConfigWdg.h"

#include <VyCommonGUI/VyBlockWidget.h>
#include <VyCommonGUI/VyLineEdit.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyCommonGUI/VyToggleSwitch.h>
#include <VyViewerCore/CoreEventBus.h>

#include <QAccessible>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>
#include <thread>

using namespace PanelProbe;
using namespace VyViewer;

namespace {

const char *const Port = "TriggerTcpServerPort";
const QVector<int> AllPages{1, 2, 3, 4, 5};

/// The sources of commands, and the commands of the trigger page.
const struct { QString name, event; QStringList commands; } Sources[] = {
    {"TcpServer"_s, "tcpserverCMDFormatEvent"_s, {"TriggerTcpServerStartCMD"_s, "TriggerTcpServerStorageImageCMD"_s}},
    {"TcpClient"_s, "tcpclientCMDFormatEvent"_s, {"TriggerTcpClientStartCMD"_s, "TriggerTcpClientHeartbeatCMD"_s}},
    {"Udp"_s, "udpCMDFormatEvent"_s, {"TriggerUdpStartCMD"_s}},
    {"SerialPort"_s, "serialportCMDFormatEvent"_s, {"TriggerSerialPortStartCMD"_s}},
};

QString stopNode(int number, const QString &name)
{
    return "TriggerStopConfig%1"_s.arg(number) + name;
}

/// What is posted under a name.
struct Heard
{
    explicit Heard(const QString &name)
        : event(name, nullptr)
        , posts(&event, &CoreEvent::triggered)
    {
        Singleton<CoreEventBus>::getInstance()->registerEvent(&event);
    }
    CoreEvent event;
    QSignalSpy posts;
};

QStringList conditionRefresh(const QVector<int> &pages)
{
    QStringList calls;
    for (const int number : pages) {
        calls += ScriptedDevice::refreshOf(stopNode(number, "Condtion"_s));
    }
    return calls;
}

/// What the stop pages ask when they hear of a format: hidden ones too, all have built their rows.
QStringList stopCommandRefresh(const QString &source)
{
    QStringList calls;
    for (const int number : AllPages) {
        const QString format = stopNode(number, source + "CMDFormat"_s);
        calls += ScriptedDevice::refreshOf(stopNode(number, source + "StopCMD"_s)) + ScriptedDevice::refreshOf(format);
    }
    return calls;
}

/// What assistive technology sees of a widget, and of a row: its editor.
QAccessibleInterface *accessible(const QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
}
QAccessibleInterface *accessible(const ParamPageWidgetItem *row)
{
    const auto parts = row->findChildren<QWidget *>();
    const auto isEditor = [](const QWidget *part) { return part->focusPolicy() & Qt::TabFocus; };
    return accessible(*std::find_if(parts.begin(), parts.end(), isEditor));
}

/// What stays of a text that is typed, character by character, where nothing was.
QString typed(VyLineEdit *edit, const QString &text)
{
    edit->clear();
    for (const QChar character : text) {
        edit->insert(character);
    }
    return edit->text();
}

} // namespace

/// The complete panel, as a host sees it.
class PanelTest : public QObject
{
    Q_OBJECT

    template <typename Widget>
    Widget *find(int index = 0) const
    {
        return m_panel->findChildren<Widget *>().at(index);
    }
    VyBlockWidget *stopBlock() const { return find<VyBlockWidget>(1); }
    TriggerStopConfigWdg *page(int number) const { return find<TriggerStopConfigWdg>(number - 1); }
    VyMultiCheckTitleWidget *title(int number) const { return page(number)->findChild<VyMultiCheckTitleWidget *>(); }
    /// With these stop configurations switched on.
    void show(const char *mode = "Once", const QVector<int> &enabled = {})
    {
        m_device.node("InputTriggerMode").value = QString::fromLatin1(mode);
        for (const int number : enabled) {
            m_device.node(stopNode(number, "Enable"_s)).value = true;
        }
        m_panel->setVyDevice(&m_device);
        m_panel->resize(500, 600);
        m_panel->show();
        m_panel->window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_panel->window()));
        QCoreApplication::processEvents(); // editors become visible by a queued call
        m_device.takeCalls();
    }
    void showAgain() const
    {
        m_panel->hide();
        m_panel->show();
    }
    QVector<int> shownPages() const
    {
        QVector<int> shown;
        std::copy_if(AllPages.begin(), AllPages.end(), std::back_inserter(shown),
                     [this](int number) { return page(number)->isVisible(); });
        return shown;
    }
    int enabledTitles() const
    {
        return int(std::count_if(AllPages.begin(), AllPages.end(),
                                 [this](int number) { return title(number)->isEnabled(); }));
    }
    /// What refreshing all rows of the page asks of the device.
    QStringList refreshOf(ParamPageWidget *page)
    {
        m_device.takeCalls();
        page->updateWidget();
        return m_device.takeCalls();
    }
    /// Makes every node of the device read-only, or read/write again.
    void lock(bool locked)
    {
        for (const auto *row : m_panel->findChildren<ParamPageWidgetItem *>()) {
            m_device.node(row->objectName()).mode = locked ? RuvoNodeReadOnly : RuvoNodeReadWrite;
        }
    }

    ScriptedDevice m_device;
    std::unique_ptr<QWidget> m_host;
    std::unique_ptr<VyTriggerConfigWdg> m_panel;

private Q_SLOTS:
    void init()
    {
        m_device.reset();
        m_panel = std::make_unique<VyTriggerConfigWdg>();
    }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
    }

    void bindsOnceAndCallsNoOther()
    {
        m_panel->show();
        grab(nullptr, 1);
        DeviceEvents::post("UserSetLoad"_s, DeviceEvents::payload(nullptr));
        DeviceEvents::post("UserSetLoad"_s, {});
        QVERIFY(find<VyBlockWidget>()->isVisible());
        QVERIFY(stopBlock()->isHidden());
        QTest::ignoreMessage(QtWarningMsg, "VyTriggerConfigWdg: cannot bind a null device");
        m_panel->setVyDevice(nullptr);
        show("Hold"); // bound late
        QVERIFY(editor<VySpinBox>(m_panel.get(), Port)->isVisible());
        QVERIFY(stopBlock()->isVisible());
        ScriptedDevice other;
        QTest::ignoreMessage(QtWarningMsg, "VyTriggerConfigWdg: already bound to a device");
        m_panel->setVyDevice(&other);
        showAgain();
        QVERIFY(other.calls.isEmpty());
        QCOMPARE(m_panel->findChildren<TriggerStopConfigWdg *>().size(), 5);
    }

    void fillsItsPlaceInWhite()
    {
        m_panel->resize(600, 2000);
        m_panel->show();
        QCOMPARE(find<VyTriggerConfigWidgetImpl>()->geometry(), m_panel->rect());
        QCOMPARE(find<VyTriggerConfigWidgetImpl>()->windowTitle(), "Form"_s);
        QCOMPARE(m_panel->grab().toImage().pixelColor(300, 1500), QColor(Qt::white));
        QVERIFY2(find<VyBlockWidget>()->y() < 100, "the blocks are packed at the top");
    }

    void pagesAreNumberedAndEveryRowHasANodeOfItsOwn()
    {
        show("Hold", AllPages);
        QSet<QString> nodes;
        for (const auto *row : m_panel->findChildren<ParamPageWidgetItem *>()) {
            nodes.insert(row->objectName());
        }
        QCOMPARE(nodes.size(), 35 + 5 * 26);
        for (const int number : AllPages) {
            for (const auto *row : page(number)->findChildren<ParamPageWidgetItem *>()) {
                QVERIFY2(row->objectName().startsWith(stopNode(number, {})), qPrintable(row->objectName()));
            }
            QCOMPARE(text(title(number)), "Config %1"_s.arg(number));
            const auto buttons = title(number)->findChildren<QAbstractButton *>();
            const auto shown = std::count_if(buttons.begin(), buttons.end(), std::mem_fn(&QWidget::isVisible));
            QCOMPARE(int(shown), number == 1 ? 0 : 1); // no check box, and the first cannot be deleted
            QVERIFY(number == 1 || page(number)->y() > page(number - 1)->y());
        }
    }

    void theShowReadsInOrder()
    {
        m_device.node("InputTriggerMode").value = "None"_s;
        m_device.node("TriggerTcpClientStartCMD").mode = RuvoNodeNotAvailable; // so its format is not asked for
        m_panel->setVyDevice(&m_device);
        QVERIFY2(m_device.calls.isEmpty(), "binding reads nothing");
        m_panel->show();
        const QStringList calls = m_device.takeCalls();
        auto *const page = find<TriggerConfigWdgImpl>();
        const QStringList rows = refreshOf(page);
        QCOMPARE(rows.size(), 35 + 33); // modes, and values of all but the one command and what is not available

        QStringList expected;
        for (const auto *row : page->findChildren<ParamPageWidgetItem *>()) {
            expected << "type "_s + row->objectName();
        }
        expected << rows << "get InputTriggerMode"_s << "get TriggerTcpServerCMDFormat"_s << "get TriggerUdpCMDFormat"_s
                 << "get TriggerSerialPortCMDFormat"_s << "mode InputTriggerMode"_s << rows << "get InputTriggerMode"_s;
        QCOMPARE(calls, expected);
    }

    void aChangeOfSourceReadsTriggerThenStopPages()
    {
        show("Hold", {3});
        const QStringList trigger = refreshOf(find<TriggerConfigWdgImpl>());
        const QStringList stop = refreshOf(page(1)) + refreshOf(page(3));
        const Heard heard("triggerSource"_s);
        choose(m_panel.get(), "InputTriggerSource", "Udp");
        QStringList expected{"set InputTriggerSource=Udp"_s};
        expected << trigger << "get InputTriggerMode"_s << "get InputTriggerSource"_s << stop;
        QCOMPARE(m_device.takeCalls(), expected);
        QCOMPARE(heard.posts.count(), 1);
        QCOMPARE(heard.posts.at(0).at(0).toMap(), DeviceEvents::payload(&m_device));
    }

    void aChangeOfModeIsAnnounced()
    {
        const struct { const char *mode; bool fails, hold; const char *posted; } rows[] = {
            {"None", false, false, "Off"}, {"Hold", false, true, "On"}, {"Once", false, false, "On"},
            {"Hold", true, false, "On"},
        };
        for (const auto &row : rows) {
            m_device.reset();
            auto &node = m_device.node("InputTriggerMode");
            node.value = "Other"_s;
            node.entries.append("Other"_s);
            TriggerConfigWdgImpl page(&m_device, nullptr);
            page.show();
            node.failsReads = row.fails;
            const QStringList reads = refreshOf(&page);
            const Heard heard("DeviceParamChanged"_s);
            QSignalSpy hold(&page, &TriggerConfigWdgImpl::triggerModeHoldRefresh);
            choose(&page, "InputTriggerMode", row.mode);

            QStringList expected{"set InputTriggerMode="_s + QLatin1String(row.mode)};
            expected << reads << "get InputTriggerMode"_s << "get InputTriggerMode"_s;
            if (qstrcmp(row.mode, "None") != 0) {
                expected << "get InputTriggerSource"_s;
            }
            QCOMPARE(m_device.takeCalls(), expected);
            QCOMPARE(hold.count(), 1);
            QCOMPARE(hold.at(0).at(0).toBool(), row.hold);
            QCOMPARE(heard.posts.count(), 1);
            QVariantMap payload = DeviceEvents::payload(&m_device);
            payload.insert("TriggerMode"_s, QLatin1String(row.posted));
            payload.insert("TriggerConfigWdgImpl"_s, QVariant());
            QCOMPARE(heard.posts.at(0).at(0).toMap(), payload);
        }
    }

    void aChangeOfFormatReachesTheStopPages()
    {
        show("Hold");
        const QStringList rows = refreshOf(find<TriggerConfigWdgImpl>());
        for (const auto &source : Sources) {
            const QString format = "Trigger%1CMDFormat"_s.arg(source.name);
            const Heard heard(source.event);
            choose(m_panel.get(), format.toLatin1().constData(), "Hex");
            // The trigger page does not hear its own post.
            QStringList expected{"set %1=Hex"_s.arg(format)};
            expected << rows << "get "_s + format << stopCommandRefresh(source.name);
            QCOMPARE(m_device.takeCalls(), expected);
            QCOMPARE(heard.posts.count(), 1);
            QCOMPARE(heard.posts.at(0).at(0).toMap(), DeviceEvents::payload(&m_device));
        }
    }

    void aChangeOnAStopPageIsAnnounced_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("event");
        QTest::addColumn<QStringList>("reads"); // after those of the page
        QTest::newRow("condition") << "Condtion" << "TriggerStopConditionEvent" << conditionRefresh({1, 3, 4, 5});
        QTest::newRow("code counting") << "CodeCountEnable" << "TriggerStopDecodeCountEnable" << QStringList();
        QTest::newRow("format") << "UdpCMDFormat" << QString()
                                << ScriptedDevice::refreshOf(stopNode(2, "UdpCMDFormat"_s));
    }
    void aChangeOnAStopPageIsAnnounced()
    {
        QFETCH(QString, row);
        QFETCH(QString, event);
        QFETCH(QStringList, reads);
        show("Hold", {2, 3});
        const QStringList rows = refreshOf(page(2));
        const Heard heard(event.isEmpty() ? "udpCMDFormatEvent"_s : event);
        if (auto *const combo = editor<VyComboBox>(m_panel.get(), stopNode(2, row))) {
            combo->setCurrentIndex(1);
        } else {
            QTest::keyClick(editor<VyToggleSwitch>(m_panel.get(), stopNode(2, row)), Qt::Key_Space);
        }
        const QString value = m_device.node(stopNode(2, row)).value.toString();
        QCOMPARE(m_device.takeCalls(), QStringList{"set %1=%2"_s.arg(stopNode(2, row), value)} + rows + reads);
        QCOMPARE(heard.posts.count(), event.isEmpty() ? 0 : 1);
        QVERIFY(event.isEmpty() || heard.posts.at(0).at(0).toMap() == DeviceEvents::payload(&m_device));
    }

    void eventsReadWhatTheyAreAbout()
    {
        show("Hold", {3});
        QVector<QPair<QString, QStringList>> events{
            {"triggerSource"_s, refreshOf(page(1)) + refreshOf(page(3))},
            {"TriggerStopConditionEvent"_s, conditionRefresh(AllPages)},
            {"TriggerStopDecodeCountEnable"_s, {}},
        };
        for (const auto &source : Sources) {
            QStringList calls;
            for (const QString &command : source.commands) {
                calls += ScriptedDevice::refreshOf(command);
            }
            events.append({source.event, calls + stopCommandRefresh(source.name)});
        }
        ScriptedDevice other;
        for (const auto &[event, calls] : qAsConst(events)) {
            DeviceEvents::post(event, {});
            DeviceEvents::post(event, DeviceEvents::payload(&other));
            DeviceEvents::post(event, {{"IDevice"_s, "text"_s}});
            QCOMPARE(m_device.calls, QStringList());
            DeviceEvents::post(event, DeviceEvents::payload(&m_device));
            QCOMPARE(m_device.takeCalls(), calls);
        }
        m_panel->hide();
        m_device.takeCalls();
        DeviceEvents::post("triggerSource"_s, DeviceEvents::payload(&m_device));
        QVERIFY(m_device.calls.isEmpty());
    }

    void hostEventsReadEverythingAgain()
    {
        ScriptedDevice other;
        const struct { QString event; Device *device; QStringList keys; bool reads; } rows[] = {
            {"UserSetLoad"_s, &m_device, {}, true}, {"UserSetLoad"_s, &other, {}, false},
            {"DeviceParamChanged"_s, &m_device, {"TriggerMode"_s}, true},
            {"DeviceParamChanged"_s, &other, {"TriggerMode"_s}, false},
            {"DeviceParamChanged"_s, &m_device, {}, false}, // something else has changed
            {"DeviceParamChanged"_s, &m_device, {"TriggerMode"_s, "TriggerConfigWdgImpl"_s}, false}, // by the panel
        };
        for (const auto &row : rows) {
            init();
            show();
            QVariantMap payload = DeviceEvents::payload(row.device);
            for (const QString &key : row.keys) {
                payload.insert(key, QVariant());
            }
            m_device.node("InputTriggerMode").value = "Hold"_s;
            m_device.node(Port).value = 1234;
            DeviceEvents::post(row.event, payload);
            QCOMPARE(editor<VySpinBox>(m_panel.get(), Port)->value(), row.reads ? 1234 : 7);
            QCOMPARE(stopBlock()->isVisible(), row.reads);
            QCOMPARE(m_device.calls.isEmpty(), !row.reads);

            m_device.takeCalls();
            m_panel->hide();
            DeviceEvents::post(row.event, payload);
            QVERIFY2(m_device.calls.isEmpty(), "a panel that is not on screen waits for the next show");
            m_panel->show();
            QCOMPARE(editor<VySpinBox>(m_panel.get(), Port)->value(), 1234);
            QVERIFY(stopBlock()->isVisible());
        }
        m_device.node("InputTriggerMode").failsReads = true;
        showAgain();
        QVERIFY(stopBlock()->isHidden());
    }

    void formatsDecideWhatCanBeTyped()
    {
        show("Hold");
        const struct { QString format, text; int length; } rows[] = {
            {"Hex"_s, "gAxB"_s, 2}, {"Hex"_s, QString(129, u'A'), 128}, {"HEX"_s, "gAxB"_s, 4},
            {"String"_s, QString(43, QChar(0x20AC)), 42}, // which has three bytes
        };
        for (const auto &row : rows) {
            for (const auto &source : Sources) {
                m_device.node("Trigger%1CMDFormat"_s.arg(source.name)).value = row.format;
                m_device.node(stopNode(1, source.name + "CMDFormat"_s)).value = row.format;
            }
            showAgain();
            for (const auto &source : Sources) {
                for (const QString &command : source.commands + QStringList{stopNode(1, source.name + "StopCMD"_s)}) {
                    QCOMPARE(typed(editor<VyLineEdit>(m_panel.get(), command), row.text).size(), row.length);
                }
            }
        }
        QVERIFY2(!editor<VyLineEdit>(m_panel.get(), "TriggerTcpClientServerIp")->validator(), "no command");
    }

    /// A stop page has formats of its own, or those of the trigger page.
    void formatsOfAStopPage()
    {
        const struct { int mode; QString own, trigger; bool hex; } rules[] = {
            {4, "Hex"_s, "String"_s, true}, {3, "String"_s, "Hex"_s, false}, {4, "hex"_s, "Hex"_s, false},
            {1, "String"_s, "Hex"_s, true}, {0, "Hex"_s, "String"_s, false},
        };
        show("Hold");
        for (const auto &source : Sources) {
            auto &command = m_device.node(stopNode(1, source.name + "StopCMD"_s));
            auto *const edit = editor<VyLineEdit>(m_panel.get(), stopNode(1, source.name + "StopCMD"_s));
            const QString ownFormat = stopNode(1, source.name + "CMDFormat"_s);
            const QString triggerFormat = "Trigger%1CMDFormat"_s.arg(source.name);
            for (const auto &rule : rules) {
                m_device.node(ownFormat).mode = static_cast<RuvoNodeAccessMode>(rule.mode);
                m_device.node(ownFormat).value = rule.own;
                m_device.node(triggerFormat).value = rule.trigger;
                m_device.takeCalls();
                DeviceEvents::post(source.event, DeviceEvents::payload(&m_device));
                QCOMPARE(m_device.calls.at(m_device.calls.indexOf("mode "_s + ownFormat) + 1),
                         "get "_s + (rule.mode < RuvoNodeWriteOnly ? triggerFormat : ownFormat));
                QCOMPARE(typed(edit, "G"_s).isEmpty(), rule.hex);

                // A show applies the rule to the sources that are on screen, and to no other.
                m_device.node(ownFormat).mode = RuvoNodeReadWrite;
                m_device.node(ownFormat).value = rule.hex ? "String"_s : "Hex"_s;
                command.mode = RuvoNodeNotAvailable;
                showAgain();
                QCOMPARE(typed(edit, "G"_s).isEmpty(), rule.hex);
                command.mode = RuvoNodeReadWrite;
                showAgain();
                QCOMPARE(typed(edit, "G"_s).isEmpty(), !rule.hex);
            }
        }
    }

    void switchesDecideWhichPagesShow()
    {
        m_device.node("TriggerStopConfig5Enable").failsReads = true;
        show("Hold", {2, 4, 5});
        QCOMPARE(shownPages(), (QVector<int>{1, 2, 4}));
        m_device.node("TriggerStopConfig2Enable").value = false;
        m_device.node("TriggerStopConfig3Enable").value = true;
        showAgain();
        QCOMPARE(shownPages(), (QVector<int>{1, 3, 4}));
        QCOMPARE(m_device.calls.filter(QRegularExpression("[1-5]Enable"_s)),
                 (QStringList{"get TriggerStopConfig2Enable"_s, "get TriggerStopConfig3Enable"_s,
                              "get TriggerStopConfig4Enable"_s, "get TriggerStopConfig5Enable"_s}));
        QVERIFY(m_device.writes().isEmpty());
    }

    void addShowsTheLowestHiddenPage()
    {
        show("Hold", {2, 4});
        const Heard heard("TriggerStopConditionEvent"_s);
        click(stopBlock(), "Add");
        QCOMPARE(m_device.calls.first(), "set TriggerStopConfig3Enable=true"_s);
        QCOMPARE(m_device.calls.mid(m_device.calls.size() - 10), conditionRefresh(AllPages));
        QVariantMap payload = DeviceEvents::payload(&m_device);
        payload.insert("TriggerStopConditionEvent"_s, QString());
        QCOMPARE(heard.posts.at(0).at(0).toMap(), payload);

        m_device.node("TriggerStopConfig5Enable").refusesWrites = true; // revealed all the same, until the next show
        click(stopBlock(), "Add");
        QCOMPARE(shownPages(), AllPages);
        m_device.takeCalls();
        click(stopBlock(), "Add");
        QVERIFY2(m_device.calls.isEmpty(), "all pages are shown already");
        showAgain();
        QCOMPARE(shownPages(), (QVector<int>{1, 2, 3, 4}));

        page(1)->hide();
        m_device.takeCalls();
        click(stopBlock(), "Add");
        QVERIFY2(m_device.writes().isEmpty(), "the first configuration has no switch");
        QVERIFY(page(1)->isVisible());
        QCOMPARE(heard.posts.count(), 3);
    }

    void deleteSwitchesOff()
    {
        show("Hold", {2, 3});
        m_device.node("TriggerStopConfig3Enable").refusesWrites = true;
        click(title(3), "Delete");
        QCOMPARE(m_device.takeCalls(),
                 QStringList{"set TriggerStopConfig3Enable=false"_s} + conditionRefresh(AllPages));
        QCOMPARE(shownPages(), (QVector<int>{1, 2}));

        auto *const spin = editor<VySpinBox>(m_panel.get(), "TriggerStopConfig2FrameCount");
        spin->setFocus();
        QTest::keyClicks(spin, "9"_s);
        page(2)->deleteStopConfig(); // as assistive technology would, without moving the focus first
        QCOMPARE(shownPages(), QVector<int>{1});
        QVERIFY2(QApplication::focusWidget() && QApplication::focusWidget()->isVisible(), "the focus moves on");
        QCOMPARE(m_device.writes(), QStringList{"set TriggerStopConfig2Enable=false"_s});
    }

    void acquisitionLocks()
    {
        show("Hold", {2});
        QCOMPARE(enabledTitles(), 5);
        ScriptedDevice other;
        grab(&other, 1);
        QVERIFY(m_device.calls.isEmpty());
        QCOMPARE(enabledTitles(), 5);

        lock(true);
        std::thread([this] { grab(&m_device, 7); }).join();
        QVERIFY(m_device.calls.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(enabledTitles(), 0);
        QVERIFY(!editor<VyLineEdit>(m_panel.get(), "TriggerStopConfig2UdpStopCMD")->isEnabled());
        click(stopBlock(), "Add");
        click(title(2), "Delete");
        QCOMPARE(shownPages(), (QVector<int>{1, 2}));
        QVERIFY(m_device.writes().isEmpty());

        lock(false);
        grab(&m_device, 0);
        QCOMPARE(enabledTitles(), 5);
        QVERIFY(editor<VySpinBox>(m_panel.get(), Port)->isEnabled());
        click(stopBlock(), "Add");
        QCOMPARE(shownPages(), (QVector<int>{1, 2, 3}));
        QCOMPARE(m_device.writes(), QStringList{"set TriggerStopConfig3Enable=true"_s});

        // Shown anew, the panel finds out by itself.
        m_device.node("InputTriggerMode").mode = RuvoNodeNotAvailable; // anything but read/write
        showAgain();
        QCOMPARE(enabledTitles(), 0);
    }

    void aPendingEditIsDroppedAndTheFocusKept_data()
    {
        QTest::addColumn<QString>("node");
        for (const char *node : {Port, "InputTriggerDelay", "TriggerUdpStartCMD", "TriggerStopConfig1FrameCount"}) {
            QTest::newRow(node) << QString::fromLatin1(node);
        }
    }
    void aPendingEditIsDroppedAndTheFocusKept()
    {
        QFETCH(QString, node);
        m_host = std::make_unique<QWidget>();
        auto *const layout = new QVBoxLayout(m_host.get());
        layout->addWidget(new QLineEdit(m_host.get())); // where the focus would go to
        layout->addWidget(m_panel.get());
        m_host->show();
        show("Hold");
        auto *const edited = row(m_panel.get(), node)->findChildren<QWidget *>().at(1);
        const auto edit = [this, edited] {
            lock(false);
            grab(&m_device, 0);
            edited->setFocus();
            QTest::keyClicks(edited, "4"_s);
        };
        edit();
        DeviceEvents::post("UserSetLoad"_s, DeviceEvents::payload(&m_device));
        QVERIFY2(m_device.writes().isEmpty(), "what stood there before the load is not written over it");
        QVERIFY(edited->hasFocus());

        edit();
        lock(true);
        DeviceEvents::post("UserSetLoad"_s, DeviceEvents::payload(&m_device));
        QVERIFY(!edited->hasFocus());
        edit();
        lock(true);
        grab(&m_device, 1);
        QVERIFY(!edited->hasFocus());
        edit();
        m_panel.reset();
        QVERIFY2(m_device.writes().isEmpty(), "nor what is locked under the cursor, or destroyed");
    }

    void destroyingAWindowWritesNothing()
    {
        show();
        auto *const spin = editor<VySpinBox>(m_panel.get(), Port);
        spin->setFocus();
        QTest::keyClicks(spin, "4"_s);
        m_panel.reset();
        QVERIFY(m_device.writes().isEmpty());
    }

    /// Within a refresh, too, which lays out once at its end, the page is given another size.
    void rowsStandBelowEachOtherWhateverACallLetsIn()
    {
        show(); // nothing below: the block that is opened begins in too little room
        auto *const bar = find<VyBlockWidget>()->findChildren<QAbstractButton *>().first();
        bar->click();
        QTRY_VERIFY(m_panel->findChild<QWidget *>("scrollAreaWidgetContents"_s)->height() < 700);
        m_device.onCall = [](const QString &) { QCoreApplication::processEvents(); };
        bar->click();
        m_device.onCall = nullptr;
        QCoreApplication::processEvents();
        int end = -1;
        for (const auto *row : find<TriggerConfigWdgImpl>()->findChildren<ParamPageWidgetItem *>()) {
            QVERIFY2(row->y() > end, qPrintable(row->objectName()));
            end = row->geometry().bottom();
        }
    }

    /// In a low window, from the host's editor before the panel to the one behind it, and back.
    void tabVisitsTheEditorsFromTopToBottom()
    {
        m_host = std::make_unique<QWidget>();
        auto *const layout = new QVBoxLayout(m_host.get());
        QLineEdit *ends[] = {new QLineEdit(m_host.get()), nullptr};
        layout->addWidget(ends[0]);
        layout->addWidget(m_panel.get());
        layout->addWidget(ends[1] = new QLineEdit(m_host.get())); // before the panel is bound
        m_host->show();
        show("Hold", {3});
        m_host->resize(600, 300);
        click(stopBlock(), "Add"); // page 2, between two that have their editors already
        QCoreApplication::processEvents();
        const auto *const contents = m_panel->findChild<QWidget *>("scrollAreaWidgetContents"_s);
        for (const bool forward : {true, false}) {
            ends[forward ? 0 : 1]->setFocus();
            QScrollBar *const bar = m_panel->findChild<QScrollArea *>()->verticalScrollBar();
            bar->setValue(forward ? bar->maximum() : 0); // the first stop is out of sight
            int last = forward ? -1 : 100000;
            int stops = 0;
            for (;; ++stops) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, forward ? Qt::NoModifier : Qt::ShiftModifier);
                const QWidget *const focused = QApplication::focusWidget();
                if (!m_panel->isAncestorOf(focused)) {
                    break;
                }
                const QByteArray name = accessible(focused)->text(QAccessible::Name).toUtf8();
                const int here = focused->mapTo(contents, QPoint(0, 0)).y();
                QVERIFY2(forward ? here >= last : here <= last, name.constData());
                QVERIFY2(focused->visibleRegion().boundingRect() == focused->rect(), name.constData());
                last = here;
            }
            QCOMPARE(QApplication::focusWidget(), ends[forward ? 1 : 0]);
            QVERIFY2(stops > 35 + 3 * 26, qPrintable(QString::number(stops)));
        }
    }

    void theFocusIsSeen()
    {
        const QString before = QApplication::style()->objectName();
        const auto restore = qScopeGuard([before] { QApplication::setStyle(before); });
        QApplication::setCursorFlashTime(0);
        show("Hold", {2});
        for (const char *style : {"Fusion", "Windows"}) {
            QApplication::setStyle(QString::fromLatin1(style));
            QSet<QByteArray> kinds;
            for (int stop = 0; stop < 60; ++stop) {
                QTest::keyClick(m_panel.get(), Qt::Key_Tab);
                QWidget *const focused = QApplication::focusWidget();
                const QImage with = focused->grab().toImage();
                QTest::keyClick(focused, Qt::Key_Tab);
                const QImage without = focused->grab().toImage();
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
                int different = 0;
                for (int i = 0; i < with.width() * with.height(); ++i) {
                    const QPoint at(i % with.width(), i / with.width());
                    different += with.pixel(at) != without.pixel(at) ? 1 : 0;
                }
                const QByteArray kind = focused->metaObject()->className();
                QVERIFY2(different > 100, kind + ' ' + style);
                kinds.insert(kind);
            }
            QCOMPARE(kinds.size(), 8);
        }
    }

    void aSecondSpaceDeletesNoSecondPage()
    {
        show("Hold", {2, 3, 4, 5});
        QVector<int> left = AllPages;
        for (const auto &[number, above] : {std::pair(5, 4), std::pair(3, 1), std::pair(4, 1)}) {
            const auto buttons = title(number)->findChildren<QAbstractButton *>();
            const auto isShown = [](const QAbstractButton *button) { return button->isVisible(); };
            (*std::find_if(buttons.begin(), buttons.end(), isShown))->setFocus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
            left.removeOne(number);
            QCOMPARE(shownPages(), left);
            QCOMPARE(QApplication::focusWidget(), accessible(row(page(above), stopNode(above, "Condtion"_s)))->object());
            m_device.node("TriggerStopConfig2Condtion").mode = RuvoNodeReadOnly; // passed over from now on
            page(2)->updateWidget();
        }
    }

    void everyEditorIsNamedAsItsRow()
    {
        const QHash<int, QAccessible::Role> roles{
            {RuvoNodeBoolean, QAccessible::CheckBox}, {RuvoNodeInteger, QAccessible::SpinBox},
            {RuvoNodeFloat, QAccessible::SpinBox}, {RuvoNodeEnumeration, QAccessible::ComboBox},
            {RuvoNodeCommand, QAccessible::Button}, {RuvoNodeString, QAccessible::EditableText}};
        m_device.node("TriggerUdpPort").mode = RuvoNodeReadOnly;
        m_device.node("TriggerAutoInterval").mode = RuvoNodeNotAvailable;
        for (const int number : AllPages) { // as a device does, which shows the rows of one source
            for (const char *source : {"TcpClient", "Udp", "SerialPort"}) {
                for (const char *name : {"CMDFuzzyMatch", "CMDFormat", "StopCMD"}) {
                    const QString node = stopNode(number, QString::fromLatin1(source) + QString::fromLatin1(name));
                    m_device.node(node).mode = RuvoNodeNotAvailable;
                }
            }
        }
        show("Hold", {2, 3, 4, 5});
        m_panel->resize(200, 300); // labels are cut
        QCoreApplication::processEvents();
        QSet<QString> known;
        int cut = 0;
        for (const auto *parameter : m_panel->findChildren<ParamPageWidgetItem *>()) {
            const ScriptedDevice::Node &node = m_device.node(parameter->objectName());
            const auto *const label = parameter->findChild<QLabel *>();
            QAccessibleInterface *const editor = accessible(parameter);
            const QString name = editor->text(QAccessible::Name);
            const QByteArray about = parameter->objectName().toUtf8() + ": " + name.toUtf8();
            QVERIFY2(name == label->toolTip() && accessible(label)->text(QAccessible::Name) == name, about.constData());
            cut += label->text() != name ? 1 : 0;
            const QAccessible::State state = editor->state();
            QVERIFY2(editor->role() == roles.value(node.type), about.constData());
            QVERIFY2(state.invisible == (node.mode == RuvoNodeNotAvailable), about.constData());
            QVERIFY2(state.disabled == (node.mode == RuvoNodeReadOnly), about.constData());
            QVERIFY2(state.focusable || state.disabled, about.constData());
            if (state.invisible) {
                continue;
            }
            const int before = known.size();
            known.insert(name + u'\n' + editor->text(QAccessible::Description));
            QVERIFY2(known.size() == before + 1, about.constData());
            const QString value = editor->text(QAccessible::Value);
            if (auto *const number = editor->valueInterface()) {
                QCOMPARE(number->currentValue().toString(), node.value.toString());
                QCOMPARE(number->minimumValue().toDouble(), node.min);
                QCOMPARE(number->maximumValue().toDouble(), node.max);
                QCOMPARE(number->minimumStepSize().toDouble(), node.inc);
                QCOMPARE(editor->textInterface()->text(0, 100), value);
            } else if (node.type == RuvoNodeEnumeration) {
                QCOMPARE(value, node.value.toString());
                QCOMPARE(editor->textInterface()->text(0, 100), value);
                QCOMPARE(editor->child(0)->childCount(), node.entries.size());
            }
        }
        QVERIFY(cut > 20);
        for (const auto *button : m_panel->findChildren<QAbstractButton *>()) {
            const QString name = accessible(button)->text(QAccessible::Name);
            QVERIFY(!button->isVisible() || !name.isEmpty());
            QVERIFY(name != accessible(button)->text(QAccessible::Description)); // which would be read twice
        }
    }

    /// What is done without a key is a finished edit: written once, at once.
    void assistiveTechnologyEdits()
    {
        show("Hold", {2});
        const auto act = [](const QString &name) {
            return [name](QAccessibleInterface *editor) { editor->actionInterface()->doAction(name); };
        };
        const auto set = [](const QVariant &value) {
            return [value](QAccessibleInterface *editor) { editor->valueInterface()->setCurrentValue(value); };
        };
        const auto choose = [](int entry) {
            return [entry](QAccessibleInterface *editor) {
                editor->child(0)->child(entry)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
                QCoreApplication::processEvents();
            };
        };
        const struct { const char *node; std::function<void(QAccessibleInterface *)> act; const char *value; } rows[] = {
            {"InputKeyTrigger", act(QAccessibleActionInterface::toggleAction()), "true"},
            {Port, set(9), "9"},
            {Port, act(QAccessibleActionInterface::increaseAction()), "10"},
            {"TriggerUdpPort", act(QAccessibleActionInterface::decreaseAction()), "6"},
            {"InputTriggerDelay", set(2.5), "2.5"},
            {"TriggerUdpCMDFormat", choose(1), "Hex"},
            {"TriggerUdpCMDFormat", choose(0), "String"},
            {"TriggerStopConfig1Condtion", choose(1), "Second"},
        };
        for (const bool locked : {false, true}) {
            lock(locked);
            grab(&m_device, 0);
            for (const auto &entry : rows) {
                m_device.takeCalls();
                entry.act(accessible(row(m_panel.get(), QString::fromLatin1(entry.node))));
                const auto expected = "set %1=%2"_s.arg(QLatin1String(entry.node), QLatin1String(entry.value));
                QCOMPARE(m_device.writes(), locked ? QStringList() : QStringList(expected));
            }
        }
        lock(false);
        grab(&m_device, 0);
        m_device.takeCalls();
        accessible(row(m_panel.get(), "InputSoftwareTrigger"_s))->actionInterface()->doAction(
            QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(m_device.writes(), QStringList("run InputSoftwareTrigger"_s));

        // Not in the host's own editors.
        QSpinBox foreign;
        const QSignalSpy edits(&foreign, &QSpinBox::editingFinished);
        set(9)(accessible(&foreign));
        QVERIFY(foreign.value() == 9 && edits.isEmpty());

        // In an open list, too.
        QAccessibleInterface *const mode = accessible(row(m_panel.get(), "InputTriggerMode"_s));
        mode->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QVERIFY(mode->state().expanded);
        choose(2)(mode);
        QVERIFY(!mode->state().expanded);
        QCOMPARE(mode->text(QAccessible::Value), "Once"_s);
    }

    void languageChange()
    {
        m_device.node("InputTriggerSource").value = "Udp"_s;
        show("Hold");
        QStringList expected = shownTitles(m_panel.get());
        const auto section = [this](const char *format) {
            auto *const box = editor<VyComboBox>(m_panel.get(), format);
            return QAccessible::queryAccessibleInterface(box)->text(QAccessible::Description);
        };
        QCOMPARE(section("TriggerUdpCMDFormat"), "UDP"_s);
        QCOMPARE(section("TriggerTcpServerCMDFormat"), "TCP Server"_s);
        QCOMPARE(section("TriggerStopConfig1UdpCMDFormat"), "Config 1"_s);
        TildeTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCoreApplication::processEvents();
        for (QString &title : expected) {
            title.prepend(u'~');
        }
        QCOMPARE(shownTitles(m_panel.get()), expected);
        QCOMPARE(section("TriggerUdpCMDFormat"), "~UDP"_s);
        QCOMPARE(find<VyTriggerConfigWidgetImpl>()->windowTitle(), "~Form"_s);
        QStringList names;
        for (auto *button : m_panel->findChildren<QAbstractButton *>()) {
            names.append(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name));
        }
        QVERIFY(names.contains("~Trigger Config"_s));
        QVERIFY(names.contains("~Trigger Stop Config"_s));
        for (const auto *parameter : m_panel->findChildren<ParamPageWidgetItem *>()) {
            QVERIFY(parameter->findChild<QLabel *>()->toolTip().startsWith(u'~'));
        }
        QCOMPARE(editor<QPushButton>(m_panel.get(), "InputSoftwareTrigger")->text(), "~Execute"_s);
        QCOMPARE(editor<VyComboBox>(m_panel.get(), "InputTriggerMode")->currentText(), "~Hold"_s);
        QVERIFY(m_device.calls.isEmpty());
    }
};

QTEST_MAIN(PanelTest)
#include "PanelTest.moc"
