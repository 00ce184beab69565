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
#include <VyCommonGUI/VyScrollArea.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyViewerCore/IDeviceManager.h>

#include <QAccessible>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>
#include <thread>

using namespace PanelProbe;
using namespace VyViewer;

namespace {

const char *const Port = "TriggerTcpServerPort";

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
    void show(const char *mode = "Once")
    {
        m_device.node("InputTriggerMode").value = QString::fromLatin1(mode);
        m_panel->setVyDevice(&m_device);
        m_panel->resize(500, 600);
        m_panel->show();
        m_panel->window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_panel->window()));
        QCoreApplication::processEvents(); // editors become visible by a queued call
        m_device.takeCalls();
    }
    int visibleStopPages() const
    {
        int visible = 0;
        for (const auto *page : m_panel->findChildren<TriggerStopConfigWdg *>()) {
            visible += page->isVisible() ? 1 : 0;
        }
        return visible;
    }
    void grab(Device *device, int status) const
    {
        Q_EMIT Singleton<IDeviceManager>::getInstance()->deviceGrabStatusUpdate(device, status);
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

    void unboundCallsNoDevice()
    {
        m_panel->show();
        grab(nullptr, 1);
        DeviceEvents::post(QStringLiteral("UserSetLoad"), DeviceEvents::payload(nullptr));
        DeviceEvents::post(QStringLiteral("UserSetLoad"), {});
        QVERIFY(find<VyBlockWidget>()->isVisible());
        QVERIFY(stopBlock()->isHidden());
        QTest::ignoreMessage(QtWarningMsg, "VyTriggerConfigWdg: cannot bind a null device");
        m_panel->setVyDevice(nullptr);
        show("Hold"); // bound late
        QVERIFY(editor<VySpinBox>(m_panel.get(), Port)->isVisible());
        QVERIFY(stopBlock()->isVisible());
    }

    void bindsOnce()
    {
        show();
        const int rows = m_panel->findChildren<ParamPageWidgetItem *>().size();
        ScriptedDevice other;
        QTest::ignoreMessage(QtWarningMsg, "VyTriggerConfigWdg: already bound to a device");
        m_panel->setVyDevice(&other);
        m_panel->hide();
        m_panel->show();
        QCOMPARE(m_panel->findChildren<ParamPageWidgetItem *>().size(), rows);
        QVERIFY(other.calls.isEmpty());
    }

    void fillsItsPlaceInWhite()
    {
        m_panel->resize(600, 2000);
        m_panel->show();
        QCOMPARE(find<VyTriggerConfigWidgetImpl>()->geometry(), m_panel->rect());
        QCOMPARE(find<VyTriggerConfigWidgetImpl>()->windowTitle(), QStringLiteral("Form"));
        QCOMPARE(m_panel->grab().toImage().pixelColor(300, 1500), QColor(Qt::white));
        QVERIFY2(find<VyBlockWidget>()->y() < 100, "the blocks are packed at the top");
    }

    void theShowReadsInOrder()
    {
        m_device.node("InputTriggerMode").value = QStringLiteral("None");
        m_panel->setVyDevice(&m_device);
        QVERIFY2(m_device.calls.isEmpty(), "binding reads nothing");
        m_panel->show();
        const QStringList calls = m_device.takeCalls();
        auto *const page = find<TriggerConfigWdgImpl>();
        page->updateWidget();
        const QStringList rows = m_device.takeCalls();

        QStringList expected;
        for (const auto *row : page->findChildren<ParamPageWidgetItem *>()) {
            expected << QStringLiteral("type ") + row->objectName();
        }
        expected << rows << QStringLiteral("get InputTriggerMode") << QStringLiteral("get TriggerTcpServerCMDFormat")
                 << QStringLiteral("get TriggerTcpClientCMDFormat") << QStringLiteral("get TriggerUdpCMDFormat")
                 << QStringLiteral("get TriggerSerialPortCMDFormat") << QStringLiteral("mode InputTriggerMode")
                 << rows << QStringLiteral("get InputTriggerMode");
        QCOMPARE(calls, expected);
    }

    void stopBlockFollowsTheMode()
    {
        show("Hold");
        QVERIFY(stopBlock()->isVisible());
        auto *const mode = editor<VyComboBox>(m_panel.get(), "InputTriggerMode");
        mode->setCurrentText(QStringLiteral("Once"));
        QVERIFY(stopBlock()->isHidden());
        m_device.takeCalls();
        mode->setCurrentText(QStringLiteral("Hold"));
        QVERIFY(stopBlock()->isVisible());
        QVERIFY(m_device.calls.contains(QStringLiteral("mode TriggerStopConfig1Condtion")));

        m_panel->hide();
        m_device.node("InputTriggerMode").failsReads = true;
        m_panel->show();
        QVERIFY(stopBlock()->isHidden());
    }

    void aChangeOfSourceReadsTriggerThenStopPages()
    {
        show("Hold");
        find<TriggerConfigWdgImpl>()->updateWidget();
        find<TriggerStopConfigWdg>()->updateWidget();
        const QStringList rows = m_device.takeCalls();
        QStringList expected{QStringLiteral("set InputTriggerSource=Udp")};
        expected << rows;
        expected.insert(1 + rows.indexOf(QStringLiteral("mode TriggerStopConfig1Condtion")),
                        QStringLiteral("get InputTriggerMode"));
        expected.insert(2 + rows.indexOf(QStringLiteral("mode TriggerStopConfig1Condtion")),
                        QStringLiteral("get InputTriggerSource"));
        editor<VyComboBox>(m_panel.get(), "InputTriggerSource")->setCurrentText(QStringLiteral("Udp"));
        QCOMPARE(m_device.takeCalls(), expected);
    }

    void acquisitionLocks_data()
    {
        QTest::addColumn<bool>("otherThread");
        QTest::newRow("same thread") << false;
        QTest::newRow("other thread") << true;
    }
    void acquisitionLocks()
    {
        QFETCH(bool, otherThread);
        const auto signal = [&](Device *device, int status) {
            if (otherThread) {
                std::thread([&] { grab(device, status); }).join();
                QCoreApplication::processEvents();
            } else {
                grab(device, status);
            }
        };
        m_device.node("TriggerStopConfig2Enable").value = true;
        show("Hold");
        const auto titlesEnabled = [this] {
            int enabled = 0;
            for (const auto *page : m_panel->findChildren<TriggerStopConfigWdg *>()) {
                enabled += page->findChild<VyMultiCheckTitleWidget *>()->isEnabled() ? 1 : 0;
            }
            return enabled;
        };
        QCOMPARE(titlesEnabled(), 5);
        ScriptedDevice other;
        signal(&other, 1);
        QVERIFY(m_device.calls.isEmpty());
        QCOMPARE(titlesEnabled(), 5);

        lock(true);
        signal(&m_device, 7);
        QCOMPARE(titlesEnabled(), 0);
        QVERIFY(!editor<VyLineEdit>(m_panel.get(), "TriggerStopConfig2UdpStopCMD")->isEnabled());
        click(stopBlock(), "Add");
        QCOMPARE(visibleStopPages(), 2);
        QVERIFY(m_device.writes().isEmpty());

        lock(false);
        signal(&m_device, 0);
        QCOMPARE(titlesEnabled(), 5);
        QVERIFY(editor<VySpinBox>(m_panel.get(), Port)->isEnabled());
        click(stopBlock(), "Add");
        QCOMPARE(visibleStopPages(), 3);
        QCOMPARE(m_device.writes(), QStringList{QStringLiteral("set TriggerStopConfig3Enable=true")});

        // Shown anew, the panel finds out by itself.
        m_device.node("InputTriggerMode").mode = RuvoNodeNotAvailable; // anything but read/write
        m_panel->hide();
        m_panel->show();
        QCOMPARE(titlesEnabled(), 0);
    }

    void lockingAFocusedPageWritesNothing()
    {
        show("Hold");
        editor<VySpinBox>(m_panel.get(), Port)->setFocus();
        QTest::keyClicks(editor<VySpinBox>(m_panel.get(), Port), QStringLiteral("9"));
        lock(true);
        grab(&m_device, 1);
        QCoreApplication::processEvents();
        QVERIFY2(m_device.writes().isEmpty(), qPrintable(m_device.writes().join(QLatin1Char(' '))));
        QCOMPARE(editor<VySpinBox>(m_panel.get(), Port)->value(), 7);
    }

    void hostEventsReadEverythingAgain_data()
    {
        QTest::addColumn<QString>("event");
        QTest::addColumn<bool>("own");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<bool>("reads");
        const QString mode = QStringLiteral("TriggerMode");
        QTest::newRow("user set") << "UserSetLoad" << true << QStringList() << true;
        QTest::newRow("user set of another device") << "UserSetLoad" << false << QStringList() << false;
        QTest::newRow("mode") << "DeviceParamChanged" << true << QStringList{mode} << true;
        QTest::newRow("mode of another device") << "DeviceParamChanged" << false << QStringList{mode} << false;
        QTest::newRow("something else") << "DeviceParamChanged" << true << QStringList() << false;
        QTest::newRow("by the trigger page") << "DeviceParamChanged" << true
                                             << QStringList{mode, QStringLiteral("TriggerConfigWdgImpl")} << false;
    }
    void hostEventsReadEverythingAgain()
    {
        QFETCH(QString, event);
        QFETCH(bool, own);
        QFETCH(QStringList, keys);
        QFETCH(bool, reads);
        show();
        ScriptedDevice other;
        QVariantMap payload = DeviceEvents::payload(own ? &m_device : &other);
        for (const QString &key : keys) {
            payload.insert(key, QVariant());
        }
        m_device.node("InputTriggerMode").value = QStringLiteral("Hold");
        m_device.node(Port).value = 1234;
        DeviceEvents::post(event, payload);
        QCOMPARE(editor<VySpinBox>(m_panel.get(), Port)->value(), reads ? 1234 : 7);
        QCOMPARE(stopBlock()->isVisible(), reads);
        QCOMPARE(m_device.calls.isEmpty(), !reads);

        m_device.takeCalls();
        m_panel->hide();
        DeviceEvents::post(event, payload);
        QVERIFY2(m_device.calls.isEmpty(), "a panel that is not on screen waits for the next show");
        m_panel->show();
        QCOMPARE(editor<VySpinBox>(m_panel.get(), Port)->value(), 1234);
        m_panel.reset();
        m_device.takeCalls();
        DeviceEvents::post(event, payload);
        QVERIFY2(m_device.calls.isEmpty(), "a destroyed panel hears nothing");
    }

    void aReshowDropsThePendingEditAndKeepsTheFocus_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<bool>("locked");
        QTest::newRow("spin box") << Port << false;
        QTest::newRow("float") << "InputTriggerDelay" << false;
        QTest::newRow("line edit") << "TriggerUdpStartCMD" << false;
        QTest::newRow("stop page") << "TriggerStopConfig1FrameCount" << false;
        QTest::newRow("locked meanwhile") << Port << true;
    }
    void aReshowDropsThePendingEditAndKeepsTheFocus()
    {
        QFETCH(QString, node);
        QFETCH(bool, locked);
        m_host = std::make_unique<QWidget>();
        auto *const layout = new QVBoxLayout(m_host.get());
        layout->addWidget(new QLineEdit(m_host.get())); // where the focus would go to
        layout->addWidget(m_panel.get());
        m_host->show();
        show("Hold");
        QWidget *const edited = m_panel->findChild<QWidget *>(node)->findChildren<QWidget *>().at(1);
        edited->setFocus();
        QTest::keyClicks(edited, QStringLiteral("4"));
        lock(locked);
        DeviceEvents::post(QStringLiteral("UserSetLoad"), DeviceEvents::payload(&m_device));
        QVERIFY2(m_device.writes().isEmpty(), "what stood there before the load is not written over it");
        QCOMPARE(edited->hasFocus(), !locked);
    }

    void destroyingAFocusedPanelWritesNothing_data()
    {
        QTest::addColumn<bool>("window");
        QTest::newRow("a window") << true;
        QTest::newRow("in a host's window") << false;
    }
    void destroyingAFocusedPanelWritesNothing()
    {
        QFETCH(bool, window);
        m_host = std::make_unique<QWidget>();
        if (!window) {
            m_host->resize(500, 600);
            m_panel->setParent(m_host.get());
            m_host->show();
        }
        show();
        auto *const spin = editor<VySpinBox>(m_panel.get(), Port);
        spin->setFocus();
        QTest::keyClicks(spin, QStringLiteral("4"));
        QVERIFY(spin->hasFocus());
        m_panel.reset();
        QVERIFY(m_device.writes().isEmpty());
    }

    void theWheelScrolls_data()
    {
        QTest::addColumn<QString>("node");
        QTest::addColumn<bool>("focused");
        QTest::newRow("spin box") << Port << false;
        QTest::newRow("float") << "InputTriggerDelay" << false;
        QTest::newRow("combo box") << "InputTriggerMode" << false;
        QTest::newRow("focused combo box") << "InputTriggerMode" << true;
    }
    void theWheelScrolls()
    {
        QFETCH(QString, node);
        QFETCH(bool, focused);
        show();
        QWidget *const over = m_panel->findChild<QWidget *>(node)->findChildren<QWidget *>().at(1);
        if (focused) {
            over->setFocus();
        }
        const auto *const bar = find<VyScrollArea>()->verticalScrollBar();
        const int before = bar->value();
        const QPointF center = over->rect().center();
        QWheelEvent wheel(center, over->mapToGlobal(center.toPoint()), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel);
        qApp->notify(over, &wheel); // sendEvent() would take the mark off
        QVERIFY(bar->value() > before);
        QVERIFY(m_device.calls.isEmpty());
        QCOMPARE(over->hasFocus(), focused);
    }

    void tabVisitsTheEditorsFromTopToBottom()
    {
        m_device.node("TriggerStopConfig3Enable").value = true;
        show("Hold");
        click(stopBlock(), "Add"); // page 2, between two that have their editors already
        QCoreApplication::processEvents();
        find<VyBlockWidget>()->findChildren<QAbstractButton *>().first()->setFocus();
        QPoint last(-1, -1);
        int stops = 0;
        QWidget *const first = QApplication::focusWidget();
        do {
            const QWidget *const focused = QApplication::focusWidget();
            const QPoint here = focused->mapTo(m_panel->findChild<QWidget *>(QStringLiteral("scrollAreaWidgetContents")),
                                               QPoint(0, 0));
            QVERIFY2(here.y() >= last.y(), qPrintable(focused->accessibleName()));
            last = here;
            ++stops;
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && stops < 1000);
        QVERIFY2(stops > 35 + 3 * 26, qPrintable(QString::number(stops)));
    }

    void languageChange()
    {
        m_device.node("InputTriggerSource").value = QStringLiteral("Udp");
        show("Hold");
        const QStringList titles = shownTitles(m_panel.get());
        TildeTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCoreApplication::processEvents();
        QStringList expected = titles;
        for (QString &title : expected) {
            title.prepend(QLatin1Char('~'));
        }
        QCOMPARE(shownTitles(m_panel.get()), expected);
        QCOMPARE(find<VyTriggerConfigWidgetImpl>()->windowTitle(), QStringLiteral("~Form"));
        QStringList names;
        for (auto *button : m_panel->findChildren<QAbstractButton *>()) {
            names.append(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name));
        }
        QVERIFY(names.contains(QStringLiteral("~Trigger Config")));
        QVERIFY(names.contains(QStringLiteral("~Trigger Stop Config")));
        for (const auto *parameter : m_panel->findChildren<ParamPageWidgetItem *>()) {
            QVERIFY(parameter->findChild<QLabel *>()->toolTip().startsWith(QLatin1Char('~')));
        }
        QCOMPARE(editor<QPushButton>(m_panel.get(), "InputSoftwareTrigger")->text(), QStringLiteral("~Execute"));
        QCOMPARE(editor<VyComboBox>(m_panel.get(), "InputTriggerMode")->currentText(), QStringLiteral("~Hold"));
        QVERIFY(m_device.calls.isEmpty());
    }
};

QTEST_MAIN(PanelTest)
#include "PanelTest.moc"
