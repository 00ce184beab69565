#include "PanelModel.h"
#include "PanelProbe.h"
#include "TildeTranslator.h"

#include "panel/VyTriggerConfigWdg.h"
#include "parampage/DeviceEvents.h"
#include "trigger/TriggerConfigWdgImpl.h"
#include "triggerstop/TriggerStopConfigWdg.h"

#include <VyCommonGUI/VyBlockWidget.h>
#include <VyCommonGUI/VyToggleSwitch.h>
#include <VyViewerCore/CoreEventBus.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QVBoxLayout>

#include <utility>

using namespace PanelProbe;
using namespace VyViewer;
using Keys = QVector<Qt::Key>;
using Node = ScriptedDevice::Node;
using Step = std::function<void()>;
Q_DECLARE_METATYPE(Node)
Q_DECLARE_METATYPE(Step)

namespace {

const QString kEdited = "TriggerStopConfig2FrameCount"_s, kMode = "InputTriggerMode"_s, kSource = "InputTriggerSource"_s,
              kPort = "TriggerTcpServerPort"_s, kUserSet = "UserSetLoad"_s, kGrab = "grab status"_s;
const Node kList{RuvoNodeEnumeration, "a"_s, {"a"_s, "b"_s, "c"_s}}, kText{RuvoNodeString, "text"_s};
const struct { const char *name; Node node; Keys keys; QString write; } kEdits[] = {
    {"int", {}, {Qt::Key_Up, Qt::Key_Return}, "set %1=8"_s},
    {"int, left", {}, {Qt::Key_Up, Qt::Key_Tab}, "set %1=8"_s},
    {"float", {RuvoNodeFloat, 1.5F}, {Qt::Key_Up, Qt::Key_Return}, "set %1=2.5"_s},
    {"string", kText, {Qt::Key_X, Qt::Key_Return}, "set %1=textx"_s},
    {"string, left", kText, {Qt::Key_X, Qt::Key_Backtab}, "set %1=textx"_s},
    {"enum, list", kList, {Qt::Key_F4, Qt::Key_Down, Qt::Key_Return}, "set %1=b"_s},
    {"bool", {RuvoNodeBoolean, false}, {Qt::Key_Space}, "set %1=true"_s},
    {"command", {RuvoNodeCommand, QVariant()}, {Qt::Key_Space}, "run %1"_s},
};

} // namespace

/// What happens to the panel from within: inside its own calls, its events and its open lists.
class AwkwardMomentsTest : public QObject
{
    Q_OBJECT

    void show()
    {
        cleanup();
        m_window = std::make_unique<QWidget>();
        auto *const layout = new QVBoxLayout(m_window.get());
        layout->addWidget(new QLineEdit(m_window.get()));
        layout->addWidget(m_panel = new VyTriggerConfigWdg(m_window.get()));
        m_panel->setVyDevice(&m_device);
        m_model = std::make_unique<PanelModel>(m_device, m_panel);
        m_device.onCall = [this, judge = m_device.onCall](const QString &call) {
            judge(call);
            if (m_step && (m_skip < 0 ? ScriptedDevice::isWrite(call) : call.endsWith(m_node) && m_skip-- == 0)) {
                std::exchange(m_step, nullptr)();
            }
        };
        m_window->resize(400, 300);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QCoreApplication::processEvents(); // editors become visible by a queued call
        m_device.takeCalls();
    }
    void press(const Keys &keys) const
    {
        for (const Qt::Key key : keys) {
            QTest::keyClick(m_window->windowHandle(), key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        }
    }
    void press(const QString &node, const Keys &keys) const
    {
        QWidget *const editor = PanelModel::editorOf(row(m_panel, node));
        auto *const toggle = editor->findChild<VyToggleSwitch *>();
        (toggle ? toggle : editor)->setFocus();
        press(keys);
    }
    void tell(const QString &event)
    {
        QVariantMap payload = DeviceEvents::payload(&m_device);
        payload.insert("TriggerMode"_s, QVariant());
        const bool acquiring = m_device.node(kMode).mode != RuvoNodeReadWrite;
        event == kGrab ? grab(&m_device, acquiring) : DeviceEvents::post(event, payload);
    }
    /// Changes a node, or only its mode, and tells so.
    Step change(const QString &node, const QVariant &value, int mode, const QString &event = {})
    {
        return [=] {
            m_device.node(node).value = value.isValid() ? value : m_device.node(node).value;
            m_device.node(node).mode = static_cast<RuvoNodeAccessMode>(mode);
            tell(event);
        };
    }
    /// What is on the screen and is not as the device answered, or has a focus that nobody sees.
    QString wrong() const
    {
        m_model->reacted();
        const QWidget *const focus = QApplication::focusWidget();
        return m_model->check().filter(QRegularExpression("visibility|edited|shows|lists"_s)).join(u'\n')
            + (focus && !(focus->isVisible() && focus->isEnabled()) ? "hidden focus"_s : QString());
    }

    ScriptedDevice m_device;
    TildeTranslator m_translator;
    std::unique_ptr<QWidget> m_window;
    QPointer<VyTriggerConfigWdg> m_panel; // child of the window
    std::unique_ptr<PanelModel> m_model;
    Step m_step;     // what the device does once ...
    int m_skip = -1; // ... within the call after so many of a node, or, when negative, within the next write
    QString m_node;

private Q_SLOTS:
    void init()
    {
        m_device.reset();
        m_device.node(kMode).value = "Hold"_s;
        for (const int number : {2, 3}) {
            m_device.node(TriggerStopConfigWdg::enableNode(number)).value = true;
        }
        m_step = nullptr;
        m_skip = -1;
    }
    void cleanup()
    {
        m_model.reset();
        m_window.reset();
    }

    void aClickOnWhatTheEditBeforeItHides()
    {
        for (const char *node : {"InputIOTriggerFollow", "InputSoftwareTrigger", "InputTriggerSource"}) {
            cleanup(); // leaving its editor is the last the window does
            init();
            show();
            m_window->resize(400, 500);
            QTest::qWait(1);
            press("InputTriggerDelay"_s, {Qt::Key_Up});
            const QString target = QString::fromLatin1(node);
            const QWidget *editor = PanelModel::editorOf(row(m_panel, target));
            const auto *const toggle = editor->findChild<VyToggleSwitch *>();
            editor = toggle ? toggle : editor;
            m_step = change(target, {}, RuvoNodeNotAvailable);
            QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              editor->mapTo(m_window.get(), editor->rect().center()));
            QVERIFY2(!editor->isVisible(), node);
            QCOMPARE(m_device.writes(), QStringList{"set InputTriggerDelay=2.5"_s});
            QVERIFY2(!QApplication::activePopupWidget(), node);
        }
    }

    void withinTheEditsOwnWrite_data()
    {
        QTest::addColumn<int>("edit");
        QTest::addColumn<Step>("step");
        const std::pair<const char *, Step> steps[] = {
            {"hidden", change(kEdited, {}, 1)},
            {"disabled", change(kEdited, {}, 3)},
            {"its page switched off", change(TriggerStopConfigWdg::enableNode(2), false, 4, kUserSet)},
            {"another page switched off", change(TriggerStopConfigWdg::enableNode(3), false, 4, kUserSet)},
            {"its block gone", change(kMode, "None"_s, 4, "DeviceParamChanged"_s)},
            {"acquisition starts", change(kMode, {}, 3, kGrab)},
        };
        for (size_t i = 0; i < std::size(kEdits); ++i) {
            for (size_t j = 0; j < (i == 0 ? std::size(steps) : 3); ++j) {
                QTest::addRow("%s: %s", kEdits[i].name, steps[j].first) << int(i) << steps[j].second;
            }
        }
    }
    void withinTheEditsOwnWrite()
    {
        QFETCH(int, edit);
        m_device.node(kEdited) = kEdits[edit].node;
        show();
        QFETCH(Step, step);
        m_step = step;
        press(kEdited, kEdits[edit].keys);
        QCoreApplication::processEvents();
        QCOMPARE(m_device.writes(), QStringList{kEdits[edit].write.arg(kEdited)});
        QCOMPARE(wrong(), QString());
        press(kPort, {Qt::Key_Up, Qt::Key_Return});
        QCOMPARE(m_device.writes().last(), "set TriggerTcpServerPort=8"_s);
    }

    void addingWhileAcquisitionStarts()
    {
        show();
        m_step = change(kMode, {}, 3, kGrab);
        for (int i = 0; i < 2; ++i) { // the second click comes too late
            click(m_panel, "Add");
        }
        QCOMPARE(m_device.writes(), QStringList{"set TriggerStopConfig4Enable=true"_s});
        for (const auto *page : m_panel->findChildren<TriggerStopConfigWdg *>()) {
            QVERIFY(!page->findChild<VyMultiCheckTitleWidget *>()->isEnabled());
        }
    }

    void anOpenList_data()
    {
        QTest::addColumn<Step>("step");
        QTest::addColumn<bool>("open");
        QTest::addColumn<QString>("byKeys"); // the entry below the highlighted "b"
        QTest::addColumn<QString>("byMouse"); // the second entry
        const auto refresh = [this](const QList<QString> &entries, RuvoNodeAccessMode mode = RuvoNodeReadWrite) {
            return Step([=] {
                m_device.node(kEdited) = {RuvoNodeEnumeration, entries.value(0), entries, mode};
                tell(kGrab);
            });
        };
        QTest::newRow("same entries") << refresh(kList.entries) << true << "c" << "b";
        QTest::newRow("another order") << refresh({"a"_s, "c"_s, "b"_s, "d"_s}) << true << "d" << "c";
        QTest::newRow("other entries") << refresh({"x"_s, "<y>"_s}) << true << "<y>" << "<y>";
        QTest::newRow("no entries") << refresh({}) << true << "" << "";
        QTest::newRow("hidden") << refresh(kList.entries, RuvoNodeNotAvailable) << false << "" << "";
        QTest::newRow("read-only") << refresh(kList.entries, RuvoNodeReadOnly) << false << "" << "";
        QTest::newRow("shown again") << Step([this] { tell(kUserSet); }) << false << "" << "";
        QTest::newRow("panel hidden") << Step([this] { m_panel->hide(); }) << false << "" << "";
        const Step translate = [this] {
            QCoreApplication::installTranslator(&m_translator);
            QCoreApplication::processEvents();
        };
        QTest::newRow("another language") << translate << true << "c" << "b";
    }
    void anOpenList()
    {
        QFETCH(Step, step);
        for (const char *const by : {"byKeys", "byMouse"}) {
            init();
            m_device.node(kEdited) = kList;
            show();
            press(kEdited, {Qt::Key_F4, Qt::Key_Down});
            auto *const list = editor<VyComboBox>(m_panel, kEdited)->view();
            QCOMPARE(QApplication::activePopupWidget(), list->window());
            step();
            QTEST(QApplication::activePopupWidget() != nullptr, "open");
            if (QApplication::activePopupWidget() && qstrcmp(by, "byKeys") == 0) {
                press({Qt::Key_Down, Qt::Key_Return});
            } else if (QApplication::activePopupWidget()) {
                const QRect second = list->visualRect(list->model()->index(1, 0));
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second.center());
            }
            QTEST(m_device.writes().join(u' ').section(u'=', 1), by);
            press({Qt::Key_Escape});
            QCoreApplication::removeTranslator(&m_translator);
            QCoreApplication::processEvents();
        }
    }

    void destroyed_data()
    {
        QTest::addColumn<QString>("within"); // which event, or a write
        QTest::addColumn<Node>("node");
        QTest::addColumn<bool>("direct"); // deleted, and not later
        QTest::addColumn<Step>("step");
        for (const auto &edit : kEdits) {
            const Step step = [this, keys = edit.keys] { press(kEdited, keys); };
            QTest::addRow("write of %s", edit.name) << QString() << edit.node << false << step;
        }
        const Step addition = [this] { click(m_panel, "Add"); };
        const Step deletion = [this] { click(m_panel->findChildren<TriggerStopConfigWdg *>().at(2), "Delete"); };
        QTest::newRow("addition") << QString() << Node() << false << addition;
        QTest::newRow("deletion") << QString() << Node() << false << deletion;
        QTest::newRow("addition's event") << "TriggerStopConditionEvent" << Node() << false << addition;
        QTest::newRow("deletion's event") << "TriggerStopConditionEvent" << Node() << false << deletion;
        QTest::newRow("source's event") << "triggerSource" << Node() << false << Step([this] { press(kSource, {Qt::Key_Down}); });
        QTest::newRow("list beside the focus") << kUserSet << Node() << true << Step([this] {
            press(kSource, {});
            row(m_panel, kMode)->findChild<QComboBox *>()->showPopup();
            tell(kUserSet);
        });
        for (const QString &event : {kUserSet, "triggerSource"_s, "udpCMDFormatEvent"_s, kGrab}) {
            for (const bool direct : {false, true}) {
                QTest::addRow("%s of the host, %d", qPrintable(event), direct) << event << Node() << direct << Step([=] { tell(event); });
            }
        }
    }
    void destroyed()
    {
        QFETCH(QString, within);
        QFETCH(Node, node);
        QFETCH(bool, direct);
        QFETCH(Step, step);
        for (const bool early : {true, false}) { // the receiver is there before the panel
            if (!early && within.isNull()) {
                break; // there is none
            }
            init();
            m_device.node(kEdited) = node;
            CoreEvent heard(within, nullptr);
            const Step destroy = [&] { m_panel && !direct ? m_panel->deleteLater() : delete m_panel; };
            const auto receive = [&] {
                Singleton<CoreEventBus>::getInstance()->registerEvent(&heard);
                connect(&heard, &CoreEvent::triggered, this, destroy);
                connect(Singleton<IDeviceManager>::getInstance(), &IDeviceManager::deviceGrabStatusUpdate, &heard,
                        [&] { within == kGrab ? destroy() : void(); });
            };
            early ? receive() : void();
            show();
            early ? void() : receive();
            m_step = within.isNull() ? destroy : nullptr;
            step();
            m_device.takeCalls();
            QTRY_VERIFY(!m_panel);
            m_model.reset();
            QVERIFY(!QApplication::activePopupWidget());
            for (const QString &event : {kUserSet, "DeviceParamChanged"_s, "triggerSource"_s, "udpCMDFormatEvent"_s, kGrab}) {
                tell(event);
            }
            press({Qt::Key_Return});
            QCOMPARE(m_device.calls, QStringList());
        }
    }

    void eventsWithinACall_data()
    {
        QTest::addColumn<Step>("action");
        QTest::addColumn<QString>("node");
        QTest::addColumn<Step>("step");
        const std::pair<const char *, Step> actions[] = {
            {"a show", [this] { m_panel->show(); }},
            {"a change of the source", [this] { press(kSource, {Qt::Key_Down}); }},
        };
        const struct { const char *event; QString node; QVariant value; int mode; } changes[] = {
            {"UserSetLoad", kMode, "None"_s, 4}, {"UserSetLoad", kMode, {}, 3}, {"grab status", kMode, {}, 3},
            {"DeviceParamChanged", kSource, "Udp"_s, 3}, {"UserSetLoad", kPort, 9, 1}, {"grab status", kPort, 9, 3},
            {"triggerSource", "TriggerStopConfig1Duration"_s, 9, 1}, {"UserSetLoad", TriggerStopConfigWdg::enableNode(2), false, 4},
            {"TriggerStopConditionEvent", "TriggerStopConfig1Condtion"_s, "Second"_s, 3},
        };
        for (const auto &[what, action] : actions) {
            for (const auto &[event, node, value, mode] : changes) {
                QTest::addRow("%s, %s to %d, within %s", event, qPrintable(node), mode, what)
                    << action << node << change(node, value, mode, QLatin1String(event));
            }
        }
    }
    void eventsWithinACall()
    {
        QFETCH(Step, action);
        QFETCH(QString, node);
        QFETCH(Step, step);
        show();
        for (int call = 0; !m_step; ++call) {
            m_panel->hide();
            init();
            m_node = node;
            m_panel->setVisible(QByteArray(QTest::currentDataTag()).endsWith("source"));
            m_model->begin();
            m_step = step;
            m_skip = call;
            action();
            QVERIFY2(wrong().isEmpty(), qPrintable("%1, within call %2"_s.arg(wrong()).arg(call)));
            const QString mode = m_device.node(kMode).value.toString();
            const QStringList titles = shownTitles(m_panel->findChild<TriggerConfigWdgImpl *>());
            const QString source = m_device.node(kSource).value.toString();
            const char *const title = mode == "None"_s ? "" : source == "Udp"_s ? "UDP" : source == "TcpServer"_s ? "TCP Server" : "";
            QCOMPARE(titles.join(u' '), QString::fromLatin1(title));
            const auto *const block = m_panel->findChildren<VyBlockWidget *>().at(1);
            QCOMPARE(block->isVisible(), mode == "Hold"_s);
            QCOMPARE(block->signalsBlocked(), m_device.node(kMode).mode != RuvoNodeReadWrite);
        }
        m_step = nullptr;
    }
};

QTEST_MAIN(AwkwardMomentsTest)
#include "AwkwardMomentsTest.moc"
