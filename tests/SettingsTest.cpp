#include "ScriptedDevice.h"

#include "devices/GenicamDevice.h"
#include "viewer/SettingsApplier.h"
#include "viewer/SettingsFile.h"

#include <QHash>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>
#include <limits>
#include <memory>
#include <random>

using Values = QList<QPair<const char *, QVariant>>;
Q_DECLARE_METATYPE(Values)

namespace {

/// What docs/settings-files.md shows.
constexpr char kExample[] = R"({
    "format": "trigger-settings",
    "version": 1,
    "camera": {"vendor": "Example Vision", "model": "CodeReader 5", "serial": "EV-000001"},
    "nodes": [
        {"name": "InputTriggerMode", "type": "enumeration", "value": "Normal"},
        {"name": "InputTriggerSource", "type": "enumeration", "value": "Udp"},
        {"name": "InputTriggerDelay", "type": "float", "value": 12.3},
        {"name": "InputTriggerCache", "type": "integer", "value": 4},
        {"name": "InputKeyTrigger", "type": "boolean", "value": true},
        {"name": "TriggerUdpPort", "type": "integer", "value": 2007},
        {"name": "TriggerUdpCMDFuzzyMatch", "type": "boolean", "value": false},
        {"name": "TriggerUdpCMDFormat", "type": "enumeration", "value": "String"},
        {"name": "TriggerUdpStartCMD", "type": "string", "value": "go now"}
    ]
}
)";

/// Integer nodes whose accesses have consequences.
class ReactingDevice : public ScriptedDevice
{
public:
    std::function<void(const QString &call)> before = [](const QString &) {};
    std::function<void(const QString &name)> written = [](const QString &) {};

    long getParamInt(const QString &name, int &value, int &min, int &max, int &inc) override
    {
        before(QStringLiteral("get ") + name);
        return ScriptedDevice::getParamInt(name, value, min, max, inc);
    }
    long setParamInt(const QString &name, int value) override
    {
        before(QStringLiteral("set ") + name);
        const long status = ScriptedDevice::setParamInt(name, value);
        if (status == 0) {
            written(name);
        }
        return status;
    }
    void die(const QStringList &nodes)
    {
        for (const QString &name : nodes) {
            node(name).failsReads = node(name).refusesWrites = true;
        }
    }
};

std::unique_ptr<GenicamDevice> newCamera()
{
    return GenicamDevice::openBuiltIn({}, nullptr);
}

/// The value gives the type: a QString is an entry of an enumeration, a QByteArray a string.
SettingsFile settingsOf(const Values &values)
{
    const QHash<int, RuvoNodeType> types{{QMetaType::Int, RuvoNodeInteger}, {QMetaType::Float, RuvoNodeFloat},
                                         {QMetaType::Bool, RuvoNodeBoolean}, {QMetaType::QString, RuvoNodeEnumeration},
                                         {QMetaType::QByteArray, RuvoNodeString}};
    SettingsFile settings;
    for (const auto &value : values) {
        const RuvoNodeType type = types.value(value.second.userType());
        settings.entries.append({QString::fromLatin1(value.first), type,
                                 type == RuvoNodeString ? QVariant(value.second.toString()) : value.second});
    }
    return settings;
}

/// The reasons why not everything was taken.
QStringList apply(Device &device, const SettingsFile &settings, const SettingsApplier::Reason &reason = {})
{
    SettingsApplier applier(device, settings, reason);
    while (applier.step()) {
    }
    QStringList reasons;
    const QVector<SettingsApplier::Problem> problems = applier.problems();
    for (const auto &problem : problems) {
        reasons.append(problem.reason);
    }
    return applier.done() == applier.total() ? reasons : QStringList{QStringLiteral("not done")};
}

} // namespace

/// Trigger settings from a camera into a file and back.
class SettingsTest : public QObject
{
    Q_OBJECT

    QString file(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QByteArray contents(const char *name) const
    {
        QFile saved(file(name));
        return saved.open(QIODevice::ReadOnly) ? saved.readAll() : QByteArray();
    }
    QString load(const QByteArray &text, SettingsFile *settings) const
    {
        QFile written(file("written.json"));
        return written.open(QIODevice::WriteOnly) && written.write(text) == text.size() && written.flush()
                   ? settings->load(written.fileName()) : QStringLiteral("not written");
    }

    QTemporaryDir m_folder;

private Q_SLOTS:
    void comesBackFromACamera_data()
    {
        QTest::addColumn<Values>("values");
        const auto text = [](const char *latin1) { return QString::fromLatin1(latin1); };
        const auto row = [](const char *name, const Values &values) { QTest::newRow(name) << values; };
        row("as it is made", {});
        row("off", {{"InputTriggerMode", text("None")}});
        row("cache", {{"InputTriggerCache", 5}, {"InputTriggerDelay", 12.3F}, {"InputKeyTrigger", false}});
        row("stop commands", {{"InputTriggerMode", text("Hold")}, {"InputTriggerSource", text("TcpServer")},
                              {"TriggerStopConfig1Condtion", text("Command")}, {"TriggerStopConfig3Enable", true},
                              {"TriggerStopConfig3Condtion", text("Command")}, {"TriggerTcpServerPort", 2003},
                              {"TriggerStopConfig1TcpServerPort", 4000}, {"TriggerStopConfig3TcpServerPort", 2001},
                              {"TriggerStopConfig3TcpServerCMDFormat", text("Hex")},
                              {"TriggerStopConfig3TcpServerStopCMD", QByteArray("0A")}});
        row("heartbeat", {{"InputTriggerSource", text("TcpClient")}, {"TriggerTcpClientHeartbeatEnable", true},
                          {"TriggerTcpClientHeartbeatCMD", QByteArray("p\xC3\xB6\"ch\\")},
                          {"TriggerTcpClientHeartbeatInterval", 5000}});
        row("entries", {{"InputTriggerSource", text("RS-232")}, {"TriggerSerialPortFlowcontrol", text("RtsCts")},
                        {"TriggerSerialPortBaudrate", text("921600")}, {"TriggerSerialPortDatabit", text("5")},
                        {"TriggerSerialPortStopbit", text("1.5")}});
    }
    void comesBackFromACamera()
    {
        QFETCH(Values, values);
        const auto camera = newCamera();
        QCOMPARE(apply(*camera, settingsOf(values)), QStringList());
        const SettingsFile read = SettingsFile::read(*camera, camera->nodes());
        QVERIFY(read.unread.isEmpty());
        QVERIFY(read.entries.size() >= values.size());
        QCOMPARE(read.save(file("a.json")), QString());

        SettingsFile loaded;
        QCOMPARE(loaded.load(file("a.json")), QString());
        for (int order = 0; order < 4; ++order) { // as saved, backwards, and two ways shuffled
            std::mt19937 random{uint(order)};
            if (order == 1) {
                std::reverse(loaded.entries.begin(), loaded.entries.end());
            } else if (order > 1) {
                std::shuffle(loaded.entries.begin(), loaded.entries.end(), random);
            }
            const auto other = newCamera();
            other->setParamEnum(QStringLiteral("InputTriggerSource"), QStringLiteral("AutoTrigger"));
            QCOMPARE(apply(*other, loaded), QStringList());
            QCOMPARE(SettingsFile::read(*other, other->nodes()).save(file("b.json")), QString());
            QCOMPARE(contents("b.json"), contents("a.json"));
        }
    }

    void theFileIsAsDocumented()
    {
        SettingsFile example;
        QCOMPARE(load(QByteArray("\xEF\xBB\xBF") + kExample, &example), QString());
        const auto camera = newCamera();
        QCOMPARE(apply(*camera, example), QStringList());
        QCOMPARE(SettingsFile::read(*camera, camera->nodes()).save(file("example.json")), QString());
        QCOMPARE(contents("example.json"), QByteArray(kExample));
        QFile document(QStringLiteral(DOCUMENT));
        QVERIFY(document.open(QIODevice::ReadOnly));
        QVERIFY(document.readAll().contains(kExample));
    }

    void everyFloatIsTheSameAgain()
    {
        using Float = std::numeric_limits<float>;
        for (const float value : {0.1F, 1.0F / 3, -7.0385307e-26F, Float::max(), Float::lowest(), Float::denorm_min()}) {
            SettingsFile settings = settingsOf({{"InputTriggerDelay", value}});
            QCOMPARE(settings.save(file("float.json")), QString());
            QCOMPARE(settings.load(file("float.json")), QString());
            QVERIFY2(settings.entries.constFirst().value.toFloat() == value, contents("float.json"));
        }
    }

    void wrongFilesAreNamed_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *name, const char *right, const char *wrong, const char *named) {
            QTest::newRow(name) << QByteArray(kExample).replace(right, wrong) << QString::fromLatin1(named);
        };
        const auto whole = [](const char *name, const QByteArray &text, const char *named) {
            QTest::newRow(name) << text << QString::fromLatin1(named);
        };
        whole("empty", "", "line 1: ");
        whole("truncated", QByteArray(kExample).left(300), "line 7: ");
        whole("no settings", "{\"nodes\": []}", "no file of trigger settings");
        whole("UTF-16", QByteArray("\xFF\xFE{\0}\0", 6), "UTF-8");
        whole("cut inside a character", "{} \xC3", "UTF-8");
        whole("too large", QByteArray(5 * 1024 * 1024, ' '), "too large");
        row("comma", "4},", "4}", "line 10: ");
        row("umlaut before", "\"vendor\": \"Example Vision\"", "\"vendor\": \"\xC3\xA4\xC3\xA4\" x\n\n", "line 4: ");
        row("version", "\"version\": 1", "\"version\": 2", "version is 2");
        row("no version", "\"version\": 1,", "", "version is null");
        row("key at the top", "\"camera\"", "\"kamera\"", "\"kamera\"");
        row("key of the camera", "\"vendor\"", "\"seller\"", "\"seller\"");
        row("camera", "\"EV-000001\"", "1", "camera");
        row("key twice at the top", "\"nodes\"", "\"version\"", "line 5: the key \"version\"");
        whole("no list", "{\"format\": \"trigger-settings\", \"version\": 1, \"nodes\": {}}", "\"nodes\"");
        whole("no nodes", "{\"format\": \"trigger-settings\", \"version\": 1}", "\"nodes\"");
        row("key", "4}", "4, \"valeu\": 5}", "InputTriggerCache: the key \"valeu\"");
        row("key twice", "4}", "4, \"value\" : 5}", "line 9: the key \"value\"");
        row("no value", ", \"value\": 4", "", "InputTriggerCache: the key \"value\"");
        row("no name", "\"name\": \"InputTriggerCache\", ", "", "entry 4: the key \"name\"");
        row("empty name", "\"InputTriggerCache\"", "\"\"", "entry 4: \"\"");
        row("name", "\"InputTriggerCache\"", "5", "entry 4: 5");
        row("type", "\"integer\", \"value\": 4", "\"int\", \"value\": 4", "InputTriggerCache: the type \"int\"");
        row("node twice", "InputTriggerCache", "InputTriggerDelay", "InputTriggerDelay: this node is there twice");
        row("fraction", ": 4}", ": 4.5}", "InputTriggerCache: the value 4.5");
        row("33 bits", ": 4}", ": 2147483648}", "InputTriggerCache: the value 2147483648");
        row("float", "12.3", "1e39", "InputTriggerDelay: the value 1e+39");
        row("no number", "12.3", "1e999", "line 8: ");
        row("boolean", "true", "1", "InputKeyTrigger: the value 1");
        row("enumeration", "\"Udp\"", "\"\"", "InputTriggerSource: the value \"\"");
        row("NUL", "go now", "\\u0000", "TriggerUdpStartCMD: the value \"\\u0000\"");
    }
    void wrongFilesAreNamed()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, named);
        SettingsFile settings = settingsOf({{"InputTriggerCache", 3}});
        settings.vendor = QStringLiteral("as before");
        const QString error = load(text, &settings);
        QVERIFY2(error.contains(named), qPrintable(error));
        QVERIFY(!error.contains(QLatin1Char('\n')));
        QVERIFY(settings.entries.size() == 1 && settings.vendor == QLatin1String("as before"));
    }

    void onlyOrdinaryFilesAreTouched()
    {
        QVERIFY(::mkfifo(qPrintable(file("pipe")), 0600) == 0);
        SettingsFile settings;
        for (const char *name : {"pipe", ".", "nowhere/a.json"}) {
            QVERIFY2(!settings.load(file(name)).isEmpty(), name);
            QVERIFY2(!settings.save(file(name)).isEmpty(), name);
        }
        QVERIFY(!QFileInfo(file("pipe")).isFile());
    }

    void aFullTargetKeepsTheOldFile()
    {
        QCOMPARE(settingsOf({{"InputTriggerCache", 3}}).save(file("kept.json")), QString());
        const QByteArray before = contents("kept.json");
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit old;
        getrlimit(RLIMIT_FSIZE, &old);
        const rlimit full{20, old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
        const QString error = settingsOf({{"InputTriggerCache", 4}}).save(file("kept.json"));
        setrlimit(RLIMIT_FSIZE, &old);
        std::signal(SIGXFSZ, handler);
        QVERIFY(!error.isEmpty());
        QCOMPARE(contents("kept.json"), before);
        QCOMPARE(QDir(m_folder.path()).entryList({QStringLiteral("kept*")}).size(), 1);
    }

    void readingLeavesNothingUnsaid()
    {
        ScriptedDevice device;
        device.node("TriggerB").failsReads = true;
        device.node("TriggerDelay").value = std::numeric_limits<float>::quiet_NaN();
        device.node("TriggerC").mode = RuvoNodeReadOnly;
        const QStringList nodes{QStringLiteral("Width"), QStringLiteral("TriggerA"), QStringLiteral("TriggerB"),
                                QStringLiteral("TriggerSoftwareTrigger"), QStringLiteral("TriggerDelay"),
                                QStringLiteral("TriggerC"), QStringLiteral("InputKeyTrigger")};
        const SettingsFile read = SettingsFile::read(device, nodes);
        QCOMPARE(read.unread, QStringList({QStringLiteral("TriggerB"), QStringLiteral("TriggerDelay")}));
        QCOMPARE(read.entries.size(), 2);
        QCOMPARE(read.entries.at(0).node, QStringLiteral("TriggerA"));
        QCOMPARE(read.entries.at(1).node, QStringLiteral("InputKeyTrigger"));
    }

    void aCameraLostWhileReadingIsNoCameraWithFewSettings()
    {
        ReactingDevice device;
        const QStringList nodes{QStringLiteral("TriggerA"), QStringLiteral("TriggerB"), QStringLiteral("TriggerC")};
        device.before = [&](const QString &call) {
            if (call == QLatin1String("get TriggerB")) {
                device.die(nodes);
                device.node("TriggerC").mode = RuvoNodeNotAvailable;
            }
        };
        const SettingsFile read = SettingsFile::read(device, nodes);
        QCOMPARE(read.unread, nodes);
        QVERIFY(read.entries.isEmpty());
    }

    void eachNodeThatIsNotTakenHasItsReason()
    {
        const auto camera = newCamera();
        const SettingsFile settings = settingsOf({{"TriggerUdpPort", 99999}, {"TriggerBogus", QByteArray("a\nb")},
                                                  {"InputTriggerCache", 2.5F}, {"TriggerTcpServerPort", 5},
                                                  {"TriggerCount", 3}, {"TriggerUdpStartCMD", QByteArray("go")},
                                                  {"InputTriggerSource", QStringLiteral("Udp")}});
        const QStringList reasons = apply(*camera, settings, [&] { return camera->lastError(); });
        QCOMPARE(reasons.size(), 5);
        QVERIFY(reasons.at(0).startsWith(QLatin1String("TriggerUdpPort = 99999: refused (TriggerUdpPort: ")));
        QCOMPARE(reasons.at(1), QStringLiteral("TriggerBogus = \"a\\nb\": this camera has no such node"));
        QCOMPARE(reasons.at(2),
                 QStringLiteral("InputTriggerCache = 2.5: this node of the camera is of another type than float"));
        QCOMPARE(reasons.at(3), QStringLiteral("TriggerTcpServerPort = 5: cannot be written in the present mode"));
        QCOMPARE(reasons.at(4), QStringLiteral("TriggerCount = 3: can only be read now"));
        QString held;
        QVERIFY(camera->getParamString(QStringLiteral("TriggerUdpStartCMD"), held) == 0 && held == QLatin1String("go"));
    }

    void anAcquiringCameraTakesNothing()
    {
        const auto camera = newCamera();
        const SettingsFile settings = SettingsFile::read(*camera, camera->nodes()); // all are as they should be
        QCOMPARE(camera->executeCMD(QStringLiteral("AcquisitionStart")), 0L);
        QVERIFY(SettingsFile::read(*camera, camera->nodes()).entries.isEmpty());
        const QStringList reasons = apply(*camera, settings);
        QCOMPARE(reasons.size(), settings.entries.size());
        QCOMPARE(reasons.filter(QStringLiteral("while the camera is acquiring")).size(), reasons.size());
    }

    void writesNoMoreThanIsNeeded()
    {
        ReactingDevice device;
        device.node("C").mode = RuvoNodeNotAvailable;
        device.node("E").mode = RuvoNodeWriteOnly;
        device.node("E").failsReads = true;
        device.node("F").mode = RuvoNodeReadOnly;
        device.written = [&](const QString &name) {
            if (name == QLatin1String("D")) { // lets C be written, and changes A and B
                device.node("C").mode = RuvoNodeReadWrite;
                device.node("A").value = device.node("B").value = 0;
            }
        };
        const Values values{{"A", 7}, {"B", 8}, {"C", 9}, {"D", 10}, {"E", 7}, {"F", 7},
                            {"InputTriggerSource", QStringLiteral("Udp")},
                            {"InputTriggerMode", QStringLiteral("Hold")}};
        QCOMPARE(apply(device, settingsOf(values)), QStringList());
        QCOMPARE(device.writes().join(QLatin1Char(',')),
                 QStringLiteral("set InputTriggerMode=Hold,set InputTriggerSource=Udp,"
                                "set B=8,set D=10,set E=7,set C=9,set A=7,set B=8"));
    }

    void whatTheCameraChangesAgainIsReported()
    {
        ReactingDevice device;
        device.written = [&](const QString &name) {
            device.node(name).value = 5;
            device.node(name).failsReads = name == QLatin1String("B");
        };
        device.node("Delay").value = 0.1F;
        QCOMPARE(apply(device, settingsOf({{"A", 8}, {"B", 9}, {"Delay", 0.1F}})),
                 QStringList({QStringLiteral("A = 8: the camera holds 5 instead of 8"),
                              QStringLiteral("B = 9: cannot be read back")}));
        QCOMPARE(device.writes().size(), 4);
    }

    void noDeviceKeepsItBusyForEver()
    {
        ReactingDevice device;
        const Values values{{"A", 1}, {"B", 2}, {"C", 3}, {"D", 4}, {"E", 5}, {"F", 6}};
        int accepted = 0; // only the last of the file is taken, then the one before it, and each changes all others
        device.before = [&](const QString &call) {
            const int last = 5 - accepted % 6;
            device.node(call.right(1)).refusesWrites = call.at(4) != QLatin1Char(values.at(last).first[0]);
        };
        device.written = [&](const QString &name) {
            ++accepted;
            for (const auto &other : values) {
                device.node(other.first).value = name == QLatin1String(other.first) ? other.second : 0;
            }
        };
        QCOMPARE(apply(device, settingsOf(values)).size(), 5);
        QVERIFY(accepted >= 6);
        QVERIFY2(device.writes().size() <= 6 * 7, qPrintable(QString::number(device.writes().size())));
    }

    void aLostCameraIsAskedNoMore()
    {
        ReactingDevice device;
        device.before = [&](const QString &call) {
            if (call == QLatin1String("set B")) {
                device.die({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("InputTriggerMode")});
                device.calls.clear();
            }
        };
        const QStringList reasons = apply(device, settingsOf({{"A", 1}, {"B", 2}, {"C", 3}, {"D", 4}}),
                                          [] { return QStringLiteral("timeout"); });
        const QString gone = QStringLiteral(" = %1: the camera no longer answers");
        QCOMPARE(reasons, QStringList({QLatin1Char('A') + gone.arg(1), QStringLiteral("B = 2: refused (timeout)"),
                                       QLatin1Char('C') + gone.arg(3), QLatin1Char('D') + gone.arg(4)}));
        QVERIFY2(device.calls.size() <= 3, qPrintable(device.calls.join(QLatin1Char(','))));
    }

    void canBeLeftAtAnyStep()
    {
        ReactingDevice device;
        device.node("B").refusesWrites = true;
        device.node("InputTriggerMode").failsReads = true; // from the beginning: that is no loss
        SettingsApplier applier(device, settingsOf({{"A", 1}, {"B", 2}, {"C", 3}, {"D", 7}}), {});
        QVERIFY(applier.done() == 0 && applier.total() == 4 && applier.problems().size() == 4);
        for (int writes = 1; device.writes().size() < 3; ++writes) {
            QVERIFY(applier.step());
            QCOMPARE(device.writes().size(), writes);
        }
        QCOMPARE(applier.done(), 2);
        const auto problems = applier.problems();
        QCOMPARE(problems.size(), 2);
        QCOMPARE(problems.at(1).node, QStringLiteral("D"));
        QCOMPARE(problems.at(1).reason, QStringLiteral("D = 7: not reached"));
    }
};

QTEST_GUILESS_MAIN(SettingsTest)
#include "SettingsTest.moc"
