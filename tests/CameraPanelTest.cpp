#include "CameraProcess.h"
#include "PanelProbe.h"

#include "devices/GenicamDevice.h"
#include "panel/VyTriggerConfigWdg.h"
#include "triggerstop/TriggerStopConfigWdg.h"

#include <VyCommonGUI/VyBlockWidget.h>
#include <VyCommonGUI/VyDoubleSpinBox.h>
#include <VyCommonGUI/VyLineEdit.h>
#include <VyCommonGUI/VySpinBox.h>
#include <VyCommonGUI/VyToggleSwitch.h>

#include <QFile>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace PanelProbe;
using namespace VyViewer;

/// The panel on the simulated camera, in this process or on a network, operated as a user would.
class CameraPanelTest : public QObject
{
    Q_OBJECT

    bool shown(const char *node) const { return row(m_panel.get(), QString::fromLatin1(node))->isVisible(); }
    template <typename Editor>
    Editor *editorOf(const char *node) const
    {
        return editor<Editor>(m_panel.get(), node);
    }
    void set(const char *node, const char *entry) const
    {
        choose(m_panel.get(), node, entry);
        QCOMPARE(editorOf<VyComboBox>(node)->currentText(), QString::fromLatin1(entry));
    }
    void type(QWidget *into, const char *keys) const
    {
        QCoreApplication::processEvents();
        into->setFocus();
        QTest::keyClick(into, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(into, QString::fromLatin1(keys));
        QTest::keyClick(into, Qt::Key_Return);
    }
    VyBlockWidget *stopBlock() const { return m_panel->findChildren<VyBlockWidget *>().at(1); }
    TriggerStopConfigWdg *stopPage(int number) const
    {
        return m_panel->findChildren<TriggerStopConfigWdg *>().at(number - 1);
    }
    void acquire(bool start) const
    {
        QCOMPARE(m_camera->executeCMD(start ? "AcquisitionStart"_s : "AcquisitionStop"_s), 0L);
        grab(m_camera.get(), start ? 1 : 0);
    }

    CameraProcess m_process;
    std::unique_ptr<GenicamDevice> m_camera;
    std::unique_ptr<VyTriggerConfigWdg> m_panel;

private Q_SLOTS:
    void init()
    {
        QString error;
        if (qEnvironmentVariableIsSet("CAMERA_ADDRESS")) {
            const QString address = qEnvironmentVariable("CAMERA_ADDRESS");
            const QString answer = m_process.start({"--address"_s, address});
            QVERIFY2(answer.contains("answers"_s), qPrintable(answer));
            m_camera = GenicamDevice::openNetwork(address, &error);
        } else {
            m_camera = GenicamDevice::openBuiltIn({}, &error);
        }
        QVERIFY2(m_camera, qPrintable(error));
        m_panel = std::make_unique<VyTriggerConfigWdg>();
        m_panel->setVyDevice(m_camera.get());
        m_panel->show();
        m_panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    }
    void cleanup()
    {
        m_panel.reset();
        m_camera.reset();
    }

    void theCameraKnowsEveryRow()
    {
        for (const auto *parameter : m_panel->findChildren<ParamPageWidgetItem *>()) {
            QVERIFY2(m_camera->nodes().contains(parameter->objectName()), qPrintable(parameter->objectName()));
        }
    }

    void sectionsFollowTheSource()
    {
        const struct { const char *source, *title, *node; } sections[] = {
            {"TcpServer", "TCP Server", "TriggerTcpServerPort"},
            {"TcpClient", "TCP Client", "TriggerTcpClientServerIp"},
            {"Udp", "UDP", "TriggerUdpPort"}, {"RS-232", "RS-232", "TriggerSerialPortBaudrate"},
            {"AutoTrigger", "Auto Trigger", "TriggerAutoInterval"},
            {"SensingTrigger", "Sensing Trigger", "TriggerSensingSensitivity"},
        };
        QVERIFY(shown("InputSoftwareTrigger"));
        QVERIFY(shownTitles(m_panel.get()).isEmpty());
        for (const auto &section : sections) {
            QVERIFY(!shown(section.node));
            set("InputTriggerSource", section.source);
            QVERIFY(shown(section.node));
            QCOMPARE(shownTitles(m_panel.get()), QStringList{QString::fromLatin1(section.title)});
        }
        QVERIFY(!shown("InputSoftwareTrigger"));
        set("InputTriggerMode", "None");
        QVERIFY(!shown("TriggerSensingSensitivity"));
        QVERIFY(shownTitles(m_panel.get()).isEmpty());
    }

    void everyKindOfEditorReachesTheCamera()
    {
        set("InputTriggerSource", "TcpServer");
        type(editorOf<VySpinBox>("TriggerTcpServerPort"), "4711");
        type(editorOf<VyDoubleSpinBox>("InputTriggerDelay"), "12.3");
        type(editorOf<VyLineEdit>("TriggerTcpServerStartCMD"), "go");
        QTest::mouseClick(editorOf<VyToggleSwitch>("TriggerTcpServerCMDFuzzyMatching"), Qt::LeftButton);
        set("InputTriggerSource", "SoftwareTrigger");
        QCoreApplication::processEvents();
        QTest::mouseClick(editorOf<QPushButton>("InputSoftwareTrigger"), Qt::LeftButton);

        QCOMPARE(editorOf<VyDoubleSpinBox>("InputTriggerDelay")->text(), "12.300"_s);
        int value = 0;
        int min = 0;
        int max = 0;
        int inc = 0;
        QCOMPARE(m_camera->getParamInt("TriggerCount"_s, value, min, max, inc), 0L);
        QCOMPARE(value, 1);
        set("InputTriggerSource", "TcpServer");
        QCOMPARE(editorOf<VySpinBox>("TriggerTcpServerPort")->value(), 4711);
        QCOMPARE(editorOf<VyLineEdit>("TriggerTcpServerStartCMD")->text(), "go"_s);
        QVERIFY(editorOf<VyToggleSwitch>("TriggerTcpServerCMDFuzzyMatching")->getIsToggled());
    }

    void stopConfigurationsComeAndGo()
    {
        QVERIFY(!stopBlock()->isVisible());
        set("InputTriggerMode", "Hold");
        QVERIFY(stopBlock()->isVisible());
        QCOMPARE(shownTitles(m_panel.get()), QStringList{"Config 1"_s});
        click(stopBlock(), "Add");
        QCOMPARE(shownTitles(m_panel.get()).last(), "Config 2"_s);
        QVERIFY(editorOf<VySpinBox>("TriggerStopConfig2FrameCount")->maximum() == std::numeric_limits<int>::max());
        type(editorOf<VySpinBox>("TriggerStopConfig2FrameCount"), "12");
        set("TriggerStopConfig2Condtion", "Duration");
        QVERIFY(!shown("TriggerStopConfig2FrameCount"));
        QVERIFY(shown("TriggerStopConfig2Duration"));

        acquire(true);
        QVERIFY(!editorOf<VyComboBox>("InputTriggerMode")->isEnabled());
        QVERIFY(!editorOf<VyComboBox>("TriggerStopConfig2Condtion")->isEnabled());
        click(stopBlock(), "Add");
        click(stopPage(2), "Delete");
        QCOMPARE(shownTitles(m_panel.get()).last(), "Config 2"_s);
        acquire(false);
        QVERIFY(editorOf<VyComboBox>("InputTriggerMode")->isEnabled());
        click(stopPage(2), "Delete");
        QCOMPARE(shownTitles(m_panel.get()), QStringList{"Config 1"_s});
        click(stopBlock(), "Add");
        set("TriggerStopConfig2Condtion", "FrameCount");
        QCOMPARE(editorOf<VySpinBox>("TriggerStopConfig2FrameCount")->value(), 12);
    }
};

QTEST_MAIN(CameraPanelTest)
#include "CameraPanelTest.moc"
