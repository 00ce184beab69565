#include "ScriptedDevice.h"

#include "devices/GenicamDevice.h"
#include "viewer/SettingsApplier.h"
#include "viewer/SettingsFile.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>
#include <limits>
#include <random>

namespace {

/// Something happens to it before it tells the access mode of a node.
class ReactingDevice : public ScriptedDevice
{
public:
    std::function<void(const QString &node)> react = [](const QString &) {};

    RuvoNodeAccessMode getNodeAccessMode(const QString &name) override
    {
        react(name);
        return ScriptedDevice::getNodeAccessMode(name);
    }
};

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(u' ');
}

/// "NODE=VALUE NODE=VALUE", of the types that the device has.
SettingsFile settingsOf(Device &device, const char *text)
{
    SettingsFile settings;
    const QStringList nodes = words(text);
    for (const QString &node : nodes) {
        const QString name = node.section(u'=', 0, 0);
        const RuvoNodeType type = device.getNodeType(name);
        settings.entries.append({name, type, SettingsFile::fromText(node.section(u'=', 1), type)});
    }
    return settings;
}

/// The reasons why not everything was taken.
QStringList apply(Device &device, const SettingsFile &settings)
{
    SettingsApplier applier(device, settings, [] { return "no\nway"_s; });
    while (applier.step()) {
    }
    QStringList reasons;
    const QVector<SettingsApplier::Problem> problems = applier.problems();
    for (const auto &problem : problems) {
        reasons.append(problem.reason);
    }
    return applier.done() == applier.total() ? reasons : QStringList{"not done"_s};
}

} // namespace

/// Trigger settings from a camera into a file and back.
class SettingsTest : public QObject
{
    Q_OBJECT

    QString file(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    static QByteArray contents(const QString &path)
    {
        QFile saved(path);
        return saved.open(QIODevice::ReadOnly) ? saved.readAll() : QByteArray();
    }
    QString load(const QByteArray &text, SettingsFile *settings) const
    {
        QFile written(file("written.json"));
        return written.open(QIODevice::WriteOnly) && written.write(text) == text.size() && written.flush()
                   ? settings->load(written.fileName()) : "not written"_s;
    }

    QTemporaryDir m_folder;
    QByteArray m_example; // what the document shows

private Q_SLOTS:
    void initTestCase()
    {
        const QByteArray document = contents(QStringLiteral(DOCUMENT));
        const int start = document.indexOf("```json\n") + 8;
        m_example = document.mid(start, document.indexOf("```", start) - start);
    }

    void comesBackFromACamera()
    {
        for (const char *values : {
                 "InputTriggerMode=Hold InputTriggerSource=TcpServer TriggerStopConfig3Enable=true "
                 "TriggerStopConfig3Condtion=Command TriggerTcpServerPort=2003 TriggerStopConfig3TcpServerPort=2001 "
                 "TriggerStopConfig3TcpServerCMDFormat=Hex TriggerStopConfig3TcpServerStopCMD=0A",
                 "InputTriggerSource=TcpClient TriggerTcpClientHeartbeatEnable=true "
                 "TriggerTcpClientHeartbeatCMD=p\xC3\xB6\"ch\\ TriggerTcpClientHeartbeatInterval=5000",
                 "InputTriggerSource=RS-232 TriggerSerialPortFlowcontrol=RtsCts TriggerSerialPortDatabit=5 "
                 "TriggerSerialPortBaudrate=921600 TriggerSerialPortStopbit=1.5"}) {
            const auto camera = GenicamDevice::openBuiltIn({}, nullptr);
            QCOMPARE(apply(*camera, settingsOf(*camera, values)), QStringList());
            const SettingsFile read = SettingsFile::read(*camera, camera->nodes());
            QVERIFY(read.unread.isEmpty() && read.entries.size() >= words(values).size());
            QCOMPARE(read.save(file("a.json")), QString());
            SettingsFile loaded;
            QCOMPARE(loaded.load(file("a.json")), QString());
            std::mt19937 random(1);
            for (int order = 0; order < 3; ++order) { // as saved, and two others
                const auto other = GenicamDevice::openBuiltIn({}, nullptr);
                other->setParamEnum("InputTriggerSource"_s, "AutoTrigger"_s);
                QCOMPARE(apply(*other, loaded), QStringList());
                QCOMPARE(SettingsFile::read(*other, other->nodes()).save(file("b.json")), QString());
                QCOMPARE(contents(file("b.json")), contents(file("a.json")));
                std::shuffle(loaded.entries.begin(), loaded.entries.end(), random);
            }
        }
    }

    void theFileIsAsDocumented()
    {
        SettingsFile example;
        QCOMPARE(load("\xEF\xBB\xBF" + m_example, &example), QString());
        const auto camera = GenicamDevice::openBuiltIn({}, nullptr);
        QCOMPARE(apply(*camera, example), QStringList());
        QCOMPARE(SettingsFile::read(*camera, camera->nodes()).save(file("example.json")), QString());
        QCOMPARE(contents(file("example.json")), m_example);
    }

    void everyFloatIsTheSameAgain()
    {
        using Float = std::numeric_limits<float>;
        for (const float value : {0.0F, 0.1F, 1.0F / 3, -7.0385307e-26F, Float::max(), Float::denorm_min()}) {
            SettingsFile settings;
            settings.entries = {{"InputTriggerDelay"_s, RuvoNodeFloat, value}};
            QCOMPARE(settings.save(file("float.json")), QString());
            QCOMPARE(settings.load(file("float.json")), QString());
            QVERIFY2(settings.entries.constFirst().value.toFloat() == value, contents(file("float.json")));
        }
    }

    void wrongFilesAreNamed()
    {
        const auto check = [this](const QByteArray &text, const char *named) {
            SettingsFile settings;
            const QString error = load(text, &settings);
            QVERIFY2(error.contains(QLatin1String(named)) && !error.contains(u'\n'), qPrintable(error));
            QVERIFY2(settings.entries.isEmpty(), named);
        };
        const auto edited = [&](const char *right, const char *wrong, const char *named) {
            check(QByteArray(m_example).replace(right, wrong), named);
        };
        check("", "line 1: ");
        check(m_example.left(300), "line 7: ");
        check(QByteArray(5 * 1024 * 1024, ' '), "too large");
        edited("Udp", "\xFC", "line 7: ");
        edited("trigger-settings", "others", "no file of trigger settings");
        edited("\"version\": 1", "\"version\": 2", "version is 2");
        edited("\"camera\"", "\"kamera\"", "\"kamera\"");
        edited("\"nodes\"", "\"Nodes\"", "\"nodes\"");
        edited("4}", "4, \"valeu\": 5}", "entry 4, \"InputTriggerCache\": the key \"valeu\"");
        edited("\"InputTriggerCache\"", "5", "entry 4, 5: the name is missing");
        edited("\"integer\", \"value\": 4", "\"int\", \"value\": 4", "InputTriggerCache\": the type \"int\"");
        edited("InputTriggerCache", "InputTriggerDelay", "InputTriggerDelay\": this node is there twice");
        edited(": 4}", ": 4.5}", "InputTriggerCache\": the value 4.5");
        edited(": 4}", ": 2147483648}", "InputTriggerCache\": the value 2147483648");
        edited("12.3", "1e39", "InputTriggerDelay\": the value 1e+39");
        edited("true", "1", "InputKeyTrigger\": the value 1");
        edited("go now", "\\u0000", "TriggerUdpStartCMD\": the value \"\\u0000\"");
    }

    void onlyOrdinaryFilesAreTouched()
    {
        QVERIFY(::mkfifo(qPrintable(file("pipe")), 0600) == 0);
        for (const char *name : {"pipe", ".", "nowhere/a.json"}) {
            QVERIFY2(!SettingsFile().load(file(name)).isEmpty(), name);
            QVERIFY2(!SettingsFile().save(file(name)).isEmpty(), name);
        }
    }

    void aFullTargetKeepsTheOldFile()
    {
        QCOMPARE(SettingsFile().save(file("kept.json")), QString());
        const QByteArray before = contents(file("kept.json"));
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit old;
        getrlimit(RLIMIT_FSIZE, &old);
        const rlimit full{20, old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
        const QString error = SettingsFile().save(file("kept.json"));
        setrlimit(RLIMIT_FSIZE, &old);
        QVERIFY(!error.isEmpty() && before.size() > 20);
        QCOMPARE(contents(file("kept.json")), before);
    }

    void readingLeavesNothingUnsaid()
    {
        ReactingDevice device;
        device.node("TriggerB").failsReads = true;
        device.node("TriggerDelay").value = std::numeric_limits<float>::quiet_NaN();
        device.node("TriggerC").mode = RuvoNodeReadOnly;
        const SettingsFile read = SettingsFile::read(
            device, words("Width TriggerA TriggerB TriggerSoftwareTrigger TriggerDelay TriggerC TriggerD"));
        QCOMPARE(read.unread, words("TriggerB TriggerDelay"));
        QVERIFY(read.entries.size() == 2 && read.entries.at(1).node == "TriggerD"_s);

        device.react = [&device](const QString &node) { // lost meanwhile, which is not to have few settings
            device.node("TriggerA").failsReads = node == "TriggerD"_s;
            device.node("TriggerD").mode = RuvoNodeNotAvailable;
        };
        QCOMPARE(SettingsFile::read(device, words("TriggerA TriggerD")).unread, words("TriggerA"));
    }

    void eachNodeThatIsNotTakenHasItsReason()
    {
        const auto camera = GenicamDevice::openBuiltIn({}, nullptr);
        SettingsFile settings = settingsOf(*camera, "TriggerUdpPort=99999 TriggerTcpServerPort=5 TriggerCount=3 "
                                                    "TriggerUdpStartCMD=go InputTriggerSource=Udp");
        settings.entries.append({"TriggerBogus"_s, RuvoNodeString, "a\nb"_s});
        settings.entries.append({"InputTriggerCache"_s, RuvoNodeFloat, 2.5F});
        QCOMPARE(apply(*camera, settings), QStringList({"TriggerUdpPort = 99999: refused (no way)"_s,
                              "TriggerTcpServerPort = 5: cannot be written in the present mode"_s,
                              "TriggerCount = 3: can only be read now (is the camera acquiring?)"_s,
                              "TriggerBogus = \"a\\nb\": this camera has no such node"_s,
                              "InputTriggerCache = 2.5: this node of the camera is of another type"_s}));
    }

    void writesNoMoreThanIsNeeded()
    {
        ReactingDevice device;
        device.node("C").mode = RuvoNodeNotAvailable;
        device.node("E").mode = RuvoNodeWriteOnly;
        device.node("E").failsReads = true;
        device.node("F").mode = RuvoNodeReadOnly;
        device.react = [&device](const QString &node) {
            if (node == "E"_s && device.node("C").mode == RuvoNodeNotAvailable) { // after D was written
                device.node("C").mode = RuvoNodeReadWrite;
                device.node("A").value = device.node("B").value = 0;
            }
        };
        const char *const values = "A=7 B=8 C=9 D=10 E=7 F=7 InputTriggerSource=Udp InputTriggerMode=Hold";
        QCOMPARE(apply(device, settingsOf(device, values)), QStringList());
        QCOMPARE(device.writes().join(u','), "set InputTriggerMode=Hold,set InputTriggerSource=Udp,"
                                "set B=8,set D=10,set E=7,set A=7,set B=8,set C=9"_s);
    }

    void whatTheCameraChangesAgainIsReported()
    {
        ReactingDevice device;
        device.node("B").failsReads = true;
        device.react = [&device](const QString &) { device.node("A").value = 5; };
        QCOMPARE(apply(device, settingsOf(device, "A=8 B=9 TriggerDelay=1.5")),
                 QStringList({"A = 8: the camera holds 5 instead"_s, "B = 9: cannot be read back (no way)"_s}));
        QCOMPARE(device.writes().size(), 4);
    }

    void aLostCameraIsAskedNoMore()
    {
        ReactingDevice device;
        device.react = [&device](const QString &node) {
            if (node == "B"_s) {
                device.node("B").refusesWrites = device.node("InputTriggerMode").failsReads = true;
                device.calls.clear();
            }
        };
        QCOMPARE(apply(device, settingsOf(device, "A=1 B=2 C=3 D=4"))
                     .filter(": the camera no longer answers (no way)"_s).size(), 4);

        ReactingDevice before; // lost when it begins
        before.node("InputTriggerMode").failsReads = true;
        before.node("A").mode = RuvoNodeNotAvailable;
        QCOMPARE(apply(before, settingsOf(before, "A=1")), QStringList("A = 1: cannot be written (no way)"_s));
        QVERIFY2(device.calls.size() <= 4, qPrintable(device.calls.join(u',')));
    }

    void canBeLeftAtAnyStep()
    {
        ReactingDevice device;
        device.node("B").refusesWrites = true;
        device.node("InputTriggerMode").failsReads = true; // from the beginning: that is no loss
        SettingsApplier applier(device, settingsOf(device, "A=1 B=2 C=3 D=7"), {});
        QCOMPARE(applier.problems().size(), 4);
        QVERIFY(applier.step() && applier.step() && applier.step());
        QVERIFY(device.writes().size() == 3 && applier.done() == 3);
        QCOMPARE(applier.problems().size(), 2);
        QCOMPARE(applier.problems().at(1).reason, "D = 7: not reached"_s);
    }
};

QTEST_GUILESS_MAIN(SettingsTest)
#include "SettingsTest.moc"
