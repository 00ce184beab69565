#include "CameraProcess.h"

#include "panel/VyTriggerConfigWdg.h"
#include "viewer/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTimer>
#include <QWindow>
#include <QtTest>

namespace {

const QString kAddress = "127.0.0.1"_s;

} // namespace

/// The viewer's window with the built-in camera and others on the network.
class WindowTest : public QObject
{
    Q_OBJECT

    DevicePage *open(const QString &address, CameraConnection::State expected = CameraConnection::Open)
    {
        m_window->openDevice(address);
        DevicePage *const page = m_window->currentPage();
        const bool done = QTest::qWaitFor([page, expected] { return page->connection().state() == expected; }, 20000);
        return done && QTest::qWaitFor([page] { return !page->device() || modeOf(page); }) ? page : nullptr;
    }
    static VyTriggerConfigWdg *panel(const DevicePage *page) { return page->findChild<VyTriggerConfigWdg *>(); }
    static QComboBox *modeOf(const DevicePage *page)
    {
        const auto *const row = page->findChild<QWidget *>("InputTriggerMode"_s);
        return row ? row->findChild<QComboBox *>() : nullptr; // made when the row is first shown
    }
    static QDoubleSpinBox *delayBox(const DevicePage *page)
    {
        return page->findChild<QWidget *>(kDelay)->findChild<QDoubleSpinBox *>();
    }
    QAction *action(const char *name) const { return m_window->findChild<QAction *>(QString::fromLatin1(name)); }
    QAction *entry(const char *menu, const char *name) const
    {
        QMenu *const popup = action(menu)->menu();
        Q_EMIT popup->aboutToShow();
        for (QAction *each : popup->actions()) {
            if (each->text() == QLatin1String(name)) {
                return each;
            }
        }
        return nullptr;
    }
    void typeDelay(const DevicePage *page, const char *keys) const
    {
        auto *const box = delayBox(page);
        QTRY_VERIFY(box->isVisible());
        box->setFocus();
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(box, QString::fromLatin1(keys));
    }
    QString said() const { return m_window->statusBar()->currentMessage(); }
    QStringList listed() const
    {
        QStringList texts;
        const auto *const list = m_window->findChild<QListWidget *>("deviceList"_s);
        for (int i = 0; i < list->count(); ++i) {
            texts.append(list->item(i)->text());
        }
        return texts;
    }
    void restart(bool remember)
    {
        m_window.reset();
        m_window = std::make_unique<MainWindow>("en"_s, remember);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    QTemporaryDir m_settings;
    QTimer m_answer; // "Cancel" to every question, even one that nobody expects
    QStringList m_asked;
    CameraProcess m_camera;
    std::unique_ptr<MainWindow> m_window;

private Q_SLOTS:
    void initTestCase()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path()); // shared with no other run
        QCoreApplication::setOrganizationName("vytrigger-test"_s);
        connect(&m_answer, &QTimer::timeout, this, [this] {
            if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                m_asked.append(box->objectName());
                box->button(QMessageBox::Cancel)->click();
            }
        });
        m_answer.start(10);
    }
    void init()
    {
        const QString answer = m_camera.start();
        QVERIFY2(answer.contains(kAddress), qPrintable(answer));
        restart(false);
        m_asked.clear();
    }
    void cleanup()
    {
        m_window.reset();
        QTest::qWait(100); // for the release: the end of the process waits long for one without a camera
        m_camera.kill();
    }

    void camerasDoNotTouchEachOther()
    {
        DevicePage *const builtIn = open({});
        DevicePage *const remote = open(kAddress);
        QVERIFY(builtIn != remote && panel(builtIn) && panel(remote));
        modeOf(remote)->setCurrentText("Hold"_s);
        QCOMPARE(modeOf(builtIn)->currentText(), "Normal"_s);
        action("start")->trigger();
        QVERIFY(remote->isAcquiring() && !builtIn->isAcquiring());

        // What is refused is said; of a camera that is not in front with its name.
        const long status = remote->device()->setParamFloat(kDelay, 1);
        QVERIFY(status != 0);
        QVERIFY2(said().startsWith(kDelay), qPrintable(said()));
        m_window->openDevice({});
        QCOMPARE(m_window->currentPage(), builtIn);
        QVERIFY(remote->device()->setParamFloat(kDelay, 2) == status);
        QVERIFY2(said().contains("EV-000001"_s) && said().contains(u'2'), qPrintable(said()));

        const VyTriggerConfigWdg *const before = panel(builtIn);
        m_camera.kill();
        QCoreApplication::processEvents(); // the end of an action: what was read is forgotten
        remote->device()->getNodeAccessMode(kDelay);
        QTRY_COMPARE(remote->connection().state(), CameraConnection::Lost);
        QVERIFY(!panel(remote));
        QCOMPARE(panel(builtIn), before);
        QVERIFY(builtIn->device()->setParamFloat(kDelay, 3) == 0);
    }

    void aLostCameraComesBack()
    {
        DevicePage *const page = open(kAddress);
        modeOf(page)->setCurrentText("Hold"_s);
        QCoreApplication::processEvents();
        m_camera.kill();
        modeOf(page)->setCurrentText("None"_s);
        QTRY_VERIFY(!panel(page));
        auto *const notice = page->findChild<QWidget *>("notice"_s);
        QVERIFY(notice->isVisible());
        QVERIFY(notice->findChild<QLabel *>("noticeText"_s)->text().contains(page->connection().reason()));
        QVERIFY(said().contains("InputTriggerMode"_s) && said().contains(page->connection().reason()));
        QVERIFY(!action("start")->isEnabled() && !action("saveSettings")->isEnabled());

        QVERIFY(m_camera.start().contains(kAddress));
        QTest::mouseClick(notice->findChild<QPushButton *>(), Qt::LeftButton);
        QVERIFY2(!page->device(), "opening does not keep anybody waiting");
        QTRY_VERIFY_WITH_TIMEOUT(panel(page) && modeOf(page), 20000);
        QVERIFY(!notice->isVisible());
        QCOMPARE(modeOf(page)->currentText(), "Normal"_s);
        typeDelay(page, "7\r");
        QCOMPARE(delayOf(page->device()), 7.F);
    }

    void aCameraOfSomebodyElseIsReadOnly()
    {
        CameraConnection first(kAddress);
        first.open();
        QTRY_COMPARE_WITH_TIMEOUT(first.state(), CameraConnection::Open, 20000);
        const DevicePage *const page = open(kAddress);
        QVERIFY(page->findChild<QWidget *>("readOnlyStrip"_s)->isVisible());
        QVERIFY(!delayBox(page)->isEnabled());
        QVERIFY(!action("start")->isEnabled() && !action("applySettings")->isEnabled());
        QVERIFY2(listed().last().contains("read-only"_s), qPrintable(listed().last()));
    }

    void pendingEditsAreWritten()
    {
        DevicePage *const page = open({});
        // Each would discard it: the first locks the editor, the second changes the mode under it.
        typeDelay(page, "1.5");
        action("start")->trigger();
        QCOMPARE(delayOf(page->device()), 1.5F);
        action("stop")->trigger();
        typeDelay(page, "2.5");
        entry("saveUserSet", "UserSet1")->trigger();
        typeDelay(page, "3.5");
        entry("saveUserSet", "UserSet2")->trigger();
        entry("loadUserSet", "UserSet1")->trigger();
        QCOMPARE(delayOf(page->device()), 2.5F);
        QCOMPARE(delayBox(page)->value(), 2.5);
        entry("loadUserSet", "UserSet2")->trigger();
        QCOMPARE(delayOf(page->device()), 3.5F);
        QVERIFY2(m_asked.isEmpty(), "all is saved");
    }

    void loadingAsksWhenThereIsSomethingToLose()
    {
        DevicePage *const page = open({});
        entry("loadUserSet", "Default")->trigger();
        QVERIFY(m_asked.isEmpty());
        typeDelay(page, "4");
        entry("loadUserSet", "Default")->trigger();
        QCOMPARE(m_asked, QStringList{"loadUserSetBox"_s});
        QCOMPARE(delayOf(page->device()), 4.F);
        entry("saveUserSet", "Default")->trigger(); // which no camera takes
        QVERIFY2(said().contains("UserSetSave"_s), qPrintable(said()));
        entry("loadUserSet", "Default")->trigger();
        QCOMPARE(m_asked.size(), 2);
        entry("saveUserSet", "UserSet1")->trigger();
        entry("loadUserSet", "Default")->trigger();
        QCOMPARE(m_asked.size(), 2);
        QCOMPARE(delayOf(page->device()), 0.F);
    }

    void camerasAreRemembered()
    {
        restart(true);
        open(kAddress);
        const DevicePage *const absent = open("127.0.0.3"_s, CameraConnection::Failed);
        QVERIFY(!absent->device() && absent->connection().reason().contains("127.0.0.3"_s));
        QVERIFY2(QSettings().contains("devices/"_s + kAddress), "even if the end never comes");
        m_window->resize(777, 555);
        m_window->close();
        restart(true);
        QCOMPARE(m_window->size(), QSize(777, 555));
        QVERIFY(!m_window->currentPage());
        const QString all = listed().join(u'|');
        QVERIFY2(all.contains("EV-000001"_s) && all.contains("127.0.0.3"_s), qPrintable(all));
        QCOMPARE(all.count("not connected"_s), 3);
    }

    void whatACameraSaysIsNoMarkup()
    {
        const QString text = "<b>&A</b> &lt;[*]"_s;
        QSettings().clear();
        QSettings().setValue("devices/127.0.0.3"_s, QStringList{text, text, text});
        restart(true);
        QVERIFY(open("127.0.0.3"_s, CameraConnection::Failed));
        const auto *const tabs = m_window->findChild<QTabWidget *>("tabs"_s);
        const auto *const list = m_window->findChild<QListWidget *>("deviceList"_s);
        for (const QString &toolTip : {tabs->tabToolTip(0), list->item(1)->toolTip()}) {
            QTextDocument shown;
            shown.setHtml(toolTip);
            QVERIFY(Qt::mightBeRichText(toolTip) && shown.toPlainText() == listed().last());
        }
        for (const QLabel *label : m_window->findChildren<QLabel *>()) {
            QVERIFY(label->textFormat() == Qt::PlainText || !label->text().contains(text));
        }
        QCOMPARE(tabs->tabText(0).count("&&"_s), 4);
        QVERIFY2(m_window->windowHandle()->title().startsWith(text), qPrintable(m_window->windowHandle()->title()));
        QSettings().clear();
    }

    void tabStopsAreSeen()
    {
        open({});
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        for (const char *docks : {"none", "traffic"}) {
            for (auto *dock : m_window->findChildren<QDockWidget *>()) {
                dock->setVisible(dock->objectName().startsWith(QLatin1String(docks)));
            }
            QCoreApplication::processEvents();
            QSet<QWidget *> stops;
            for (int i = 0; i < 40; ++i) {
                QTest::keyClick(m_window.get(), Qt::Key_Tab);
                QWidget *const stop = QApplication::focusWidget();
                QVERIFY2(stop && !stop->visibleRegion().isEmpty(), stop ? stop->metaObject()->className() : "none");
                stops.insert(stop);
            }
            QVERIFY(stops.size() > 5);
        }
    }

    void closingReleasesTheCamera()
    {
        open(kAddress);
        action("closeDevice")->trigger();
        QVERIFY(!m_window->currentPage());
        QVERIFY(!open(kAddress)->isReadOnly());
    }
};

QTEST_MAIN(WindowTest)
#include "WindowTest.moc"
