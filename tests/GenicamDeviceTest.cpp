#include "Literal.h"

#include "devices/CameraBehaviour.h"
#include "devices/GenicamDevice.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <limits>

namespace {

/// A camera's memory where every command was given; it notes which registers are written.
struct NotingMemory final : public CameraMemory
{
    void read(quint64, void *bytes, quint32 size) const override { std::memset(bytes, 1, size); }
    void write(quint64 address, const void *, quint32) override { written.append(address); }

    QVector<quint64> written;
};

/// What makes a node available: a source, a stop condition or a word of our own. The first that its name fits.
const struct { const char *part, *when; } kSections[] = {
    {"InputTriggerMode", "always"}, {"InputSoftware", "SoftwareTrigger"}, {"InputIO", "IOTrigger"}, {"Input", "on"},
    {"TriggerAuto", "AutoTrigger"}, {"TriggerSensing", "SensingTrigger"}, {"Heartbeat(CMD|Interval)", "heartbeat"},
    {"\\dTcpServerCMDFormat", "own port"}, {"TcpServer", "TcpServer"}, {"TcpClient", "TcpClient"}, {"Udp", "Udp"},
    {"SerialPort", "RS-232"}, {"\\dEnable", "hold"}, {"Condtion", "enabled"}, {"FrameCount", "FrameCount"},
    {"Duration", "Duration"}, {"DecodeCount|CodeCount", "DecodeCount"},
};
const struct { const char *ending; RuvoNodeType type; } kTypes[] = {
    {"(Mode|Source|Condtion|Format|Baudrate|Flowcontrol|bit)$", RuvoNodeEnumeration},
    {"(Enable|Match|Matching|Follow|KeyTrigger)$", RuvoNodeBoolean},
    {"(Port|Interval|Count|Duration|Cache|Sensitivity|Period)$", RuvoNodeInteger},
    {"(CMD|Ip)$", RuvoNodeString}, {"Delay$", RuvoNodeFloat}, {"SoftwareTrigger$", RuvoNodeCommand},
};

struct Node { QString name, when; int stop; RuvoNodeType type; };

QVector<Node> allNodes(const GenicamDevice &device)
{
    const auto fits = [](const QString &name, const char *part) {
        return name.contains(QRegularExpression(QLatin1String(part)));
    };
    QVector<Node> nodes;
    for (const QString &name : device.nodes().filter(QRegularExpression("^(Input|Trigger(?!Count))"_s))) {
        const auto section = std::find_if(std::begin(kSections), std::end(kSections),
                                          [&](const auto &row) { return fits(name, row.part); });
        const auto type = std::find_if(std::begin(kTypes), std::end(kTypes),
                                       [&](const auto &row) { return fits(name, row.ending); });
        if (section == std::end(kSections) || type == std::end(kTypes)) {
            qFatal("kSections or kTypes knows nothing of %s", qPrintable(name));
        }
        const int stop = name.startsWith("TriggerStopConfig"_s) ? name.at(17).digitValue() : 0;
        nodes.append({name, QLatin1String(section->when), stop, type->type});
    }
    return nodes;
}

/// Odd nodes; what begins with "No" cannot be read, "Nowhere" is outside the memory. @: as in all registers.
const QByteArray kOddNodes = QByteArray(R"(
  <IntReg Name="NowhereReg"><Address>-4</Address><Length>4</Length><AccessMode>RW</AccessMode>@</IntReg>
  <Integer Name="NowhereInteger"><pValue>NowhereReg</pValue></Integer>
  <StringReg Name="NowhereText"><Address>0x10000</Address><Length>128</Length><AccessMode>RW</AccessMode>@</StringReg>
  <Command Name="NowhereCommand"><pValue>NowhereReg</pValue><CommandValue>1</CommandValue></Command>
  <Integer Name="NotThere"><pIsImplemented>AcquisitionStatusReg</pIsImplemented><Value>1</Value></Integer>
  <Integer Name="AvailabilityFails"><pIsAvailable>NowhereReg</pIsAvailable><Value>1</Value></Integer>
  <Integer Name="LockFails"><pIsLocked>NowhereReg</pIsLocked><Value>1</Value></Integer>
  <IntReg Name="WriteOnly"><Address>0xc010</Address><Length>4</Length><AccessMode>WO</AccessMode>@</IntReg>
  <IntReg Name="EntryReg"><Address>0xc008</Address><Length>4</Length><AccessMode>RW</AccessMode>@</IntReg>
  <Enumeration Name="NoEntry"><EnumEntry Name="One"><Value>1</Value></EnumEntry><pValue>EntryReg</pValue></Enumeration>
  <Float Name="NoNumber"><Value>nan</Value></Float>
  <Integer Name="Odds"><Value>3</Value><Min>3</Min><Max>11</Max><Inc>4</Inc></Integer>
  <Integer Name="Huge"><Value>5000000000</Value><Min>-5000000000</Min><Max>9000000000</Max><Inc>6000000000</Inc></Integer>
  <Float Name="Tenth"><Value>0.05</Value><Min>0.01</Min><Max>0.1</Max></Float>
)").replace("@", "<pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess>");

const QByteArray kEnd = "</RegisterDescription>";
constexpr long kNoNode = GenicamDevice::NoSuchNode, kNoAccess = GenicamDevice::NoAccess;
constexpr long kInvalid = GenicamDevice::InvalidValue, kFailure = GenicamDevice::DeviceFailure;

} // namespace

class GenicamDeviceTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void sections();
    void nodesFollowOthers();
    void limitsAndWrites();
    void locksAndUserSets();
    void counting();
    void unusableDescriptions();
    void commandsShowAsDoneOnceTheyAre();

private:
    std::unique_ptr<GenicamDevice> openText(const QByteArray &description);
    QByteArray with(const QByteArray &nodes) { return QByteArray(m_description).replace(kEnd, nodes + kEnd); }
    void choose(const QString &mode, const QString &source);
    long write(const QString &node, const QVariant &value);
    QVariant read(const QString &node);

    QTemporaryDir m_directory;
    QByteArray m_description;
    QString m_error;
    qint64 m_now = 0;
    std::unique_ptr<GenicamDevice> m_device;
};

void GenicamDeviceTest::init()
{
    m_now = 0;
    m_device = GenicamDevice::openBuiltIn(QString(), &m_error, [this] { return m_now; });
    QVERIFY2(m_device, qPrintable(m_error));
    QFile file(":/devices/smartcamera.xml"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_description = file.readAll();
}

std::unique_ptr<GenicamDevice> GenicamDeviceTest::openText(const QByteArray &description)
{
    QFile file(m_directory.filePath("camera.xml"_s));
    m_error.clear();
    const bool written = file.open(QIODevice::WriteOnly) && file.write(description) == description.size();
    file.close();
    return written ? GenicamDevice::openBuiltIn(file.fileName(), &m_error) : nullptr;
}

void GenicamDeviceTest::choose(const QString &mode, const QString &source)
{
    QCOMPARE(m_device->setParamEnum("InputTriggerMode"_s, "Normal"_s), 0L); // in mode None there is no source
    QCOMPARE(m_device->setParamEnum("InputTriggerSource"_s, source), 0L);
    QCOMPARE(m_device->setParamEnum("InputTriggerMode"_s, mode), 0L);
}

/// A byte array stands for an entry.
long GenicamDeviceTest::write(const QString &node, const QVariant &value)
{
    const int type = int(value.type());
    return type == QMetaType::Bool ? m_device->setParamBool(node, value.toBool())
        : type == QMetaType::Int ? m_device->setParamInt(node, value.toInt())
        : type == QMetaType::Float ? m_device->setParamFloat(node, value.toFloat())
        : type == QMetaType::QByteArray ? m_device->setParamEnum(node, QString::fromUtf8(value.toByteArray()))
        : m_device->setParamString(node, value.toString());
}

/// What the node holds; invalid when it cannot be read or does not keep to its own limits.
QVariant GenicamDeviceTest::read(const QString &node)
{
    int value = 0, min = 0, max = 0, inc = 0;
    float real = 0, low = 0, high = 0, step = 0;
    bool ok = false, flag = false;
    QString text;
    QList<QString> entries;
    switch (m_device->getNodeType(node)) {
    case RuvoNodeBoolean:
        return m_device->getParamBool(node, flag) == 0 ? flag : QVariant();
    case RuvoNodeInteger:
        ok = m_device->getParamInt(node, value, min, max, inc) == 0;
        return ok && inc >= 1 && min <= value && (value <= max || max == -1) ? value : QVariant();
    case RuvoNodeFloat:
        ok = m_device->getParamFloat(node, real, low, high, step) == 0;
        return ok && step > 0 && low <= real && real <= high ? real : QVariant();
    case RuvoNodeEnumeration:
        ok = m_device->getParamEnum(node, text, entries) == 0;
        return ok && entries.contains(text) ? text.toUtf8() : QVariant();
    case RuvoNodeString:
    case RuvoNodeCommand:
    case RuvoNodeUnknown:
        break;
    }
    return m_device->getParamString(node, text) == 0 ? text : QVariant();
}

/// In each mode and with each source exactly the nodes that belong there are available, and all those can be
/// read. The stop configurations stop by command if they can, by decoding, time and frames; the last is off.
void GenicamDeviceTest::sections()
{
    QCOMPARE(allNodes(*m_device).size(), 35 + 5 * 27);
    const QStringList sources = "SoftwareTrigger IOTrigger AutoTrigger SensingTrigger Master-Slave TcpServer "
                                "TcpClient Udp RS-232"_s.split(u' ');
    for (int row = 0; row < 3 * sources.size(); ++row) {
        init();
        const QByteArray mode = row % 3 == 0 ? "None" : row % 3 == 1 ? "Normal" : "Hold";
        const QString source = sources.at(row / 3);
        const bool isCommand = row / 3 >= 5;
        const QStringList active[] = { // for the trigger, then for each stop configuration
            mode == "None" ? QStringList{"always"_s} : QStringList{"always"_s, "on"_s, source},
            {isCommand ? source : "FrameCount"_s, "hold"_s, "enabled"_s}, {"DecodeCount"_s, "hold"_s, "enabled"_s},
            {"Duration"_s, "hold"_s, "enabled"_s}, {"FrameCount"_s, "hold"_s, "enabled"_s}, {"hold"_s}};
        choose("Hold"_s, source);
        QCOMPARE(write("TriggerStopConfig1Condtion"_s, QByteArray("Command")) == 0, isCommand);
        for (int stop = 2; stop <= 4; ++stop) {
            QCOMPARE(write("TriggerStopConfig%1Enable"_s.arg(stop), true), 0L);
            QCOMPARE(write("TriggerStopConfig%1Condtion"_s.arg(stop), active[stop].first().toLatin1()), 0L);
        }
        QCOMPARE(write("InputTriggerMode"_s, mode), 0L);
        for (const Node &node : allNodes(*m_device)) {
            const QByteArray what = mode + (source + node.name).toLatin1();
            const bool available = (node.stop == 0 || mode == "Hold") && active[node.stop].contains(node.when);
            QVERIFY2(m_device->getNodeType(node.name) == node.type, what);
            QVERIFY2((m_device->getNodeAccessMode(node.name) != RuvoNodeNotAvailable) == available, what);
            QVERIFY2(node.type == RuvoNodeCommand || read(node.name).isValid() == available, what);
        }
    }
}

void GenicamDeviceTest::nodesFollowOthers()
{
    choose("Hold"_s, "TcpServer"_s);
    QCOMPARE(write("TriggerStopConfig1Condtion"_s, QByteArray("Command")), 0L);
    QCOMPARE(write("TriggerStopConfig1TcpServerPort"_s, 3000), 0L); // no longer that of the start command
    QCOMPARE(m_device->getNodeAccessMode("TriggerStopConfig1TcpServerCMDFormat"_s), RuvoNodeReadWrite);
    QCOMPARE(m_device->getNodeAccessMode("TriggerStopConfig1Enable"_s), RuvoNodeReadOnly); // on for good
    QCOMPARE(read("TriggerStopConfig1Enable"_s), QVariant(true));
    choose("Hold"_s, "TcpClient"_s);
    QCOMPARE(write("TriggerTcpClientHeartbeatEnable"_s, true), 0L);
    QCOMPARE(m_device->getNodeAccessMode("TriggerTcpClientHeartbeatCMD"_s), RuvoNodeReadWrite);
    QCOMPARE(m_device->getNodeAccessMode("TriggerTcpClientHeartbeatInterval"_s), RuvoNodeReadWrite);
    choose("Hold"_s, "RS-232"_s);
    for (const QString &port : {"TriggerSerialPort"_s, "TriggerStopConfig1SerialPort"_s}) {
        QString value;
        QList<QString> entries;
        QCOMPARE(m_device->getParamEnum(port + "Stopbit"_s, value, entries), 0L);
        QCOMPARE(entries, QList<QString>({"1"_s, "2"_s}));
        QCOMPARE(write(port + "Databit"_s, QByteArray("5")), 0L);
        QCOMPARE(m_device->getParamEnum(port + "Stopbit"_s, value, entries), 0L);
        QCOMPARE(entries, QList<QString>({"1"_s, "1.5"_s}));
    }
}

/// What is taken can be read back, what is refused leaves the value.
void GenicamDeviceTest::limitsAndWrites()
{
    m_device = openText(with(kOddNodes));
    QVERIFY2(m_device, qPrintable(m_error));
    int value = 0, min = 0, max = 0, inc = 0;
    QVERIFY(m_device->getParamInt("TriggerCount"_s, value, min, max, inc) == 0 && min == 0 && max == -1 && inc == 1);
    QVERIFY(m_device->getParamInt("Odds"_s, value, min, max, inc) == 0 && min == 3 && max == 11 && inc == 4);
    constexpr int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
    QCOMPARE(m_device->getParamInt("Huge"_s, value, min, max, inc), 0L); // more than an int holds
    QVERIFY(value == most && min == least && max == most && inc == most);
    float real = 0, low = 0, high = 0, step = 0;
    QCOMPARE(m_device->getParamFloat("InputTriggerDelay"_s, real, low, high, step), 0L);
    QVERIFY(real == 0 && low == 0 && high == 1000 && qFuzzyCompare(step, 0.1f));
    QCOMPARE(m_device->getParamFloat("Tenth"_s, real, low, high, step), 0L);
    QVERIFY(real == 0.05f && low == 0.01f && high == 0.1f && qFuzzyCompare(step, 0.00001f)); // of our own
    choose("Hold"_s, "Udp"_s);
    QCOMPARE(write("TriggerStopConfig1Condtion"_s, QByteArray("Duration")), 0L);
    QCOMPARE(write("TriggerStopConfig2Enable"_s, true), 0L);
    constexpr RuvoNodeAccessMode ro = RuvoNodeReadOnly, rw = RuvoNodeReadWrite;
    const QString longest(64, QChar(0xe9)); // 128 bytes
    const struct { QString node; RuvoNodeAccessMode access; QVariant value; long status; } rows[] = {
        {"TriggerUdpPort"_s, rw, 65535, 0}, {"TriggerUdpPort"_s, rw, "2009"_s, kNoNode},
        {"TriggerUdpPort"_s, rw, 0, kInvalid}, {"TriggerUdpPort"_s, rw, 65536, kInvalid},
        {"TriggerStopConfig1Duration"_s, rw, 59990, 0}, {"TriggerStopConfig1Duration"_s, rw, 1005, kInvalid},
        {"TriggerStopConfig2FrameCount"_s, rw, std::numeric_limits<int>::max(), 0},
        {"TriggerStopConfig2FrameCount"_s, rw, -1, kInvalid}, {"TriggerUdpCMDFuzzyMatch"_s, rw, true, 0},
        {"InputTriggerDelay"_s, rw, 12.3f, 0}, {"InputTriggerDelay"_s, rw, 1000.1f, kInvalid},
        {"InputTriggerDelay"_s, rw, float(qQNaN()), kInvalid}, {"TriggerUdpCMDFormat"_s, rw, QByteArray("Hex"), 0},
        {"TriggerUdpCMDFormat"_s, rw, QByteArray("hex"), kInvalid}, {"TriggerUdpStartCMD"_s, rw, longest, 0},
        {"TriggerUdpStartCMD"_s, rw, longest + "x"_s, kInvalid}, {"TriggerUdpStartCMD"_s, rw, QString(), 0},
        {"TriggerUdpStartCMD"_s, rw, QString(3, QChar(0)), kInvalid}, {"TriggerCount"_s, ro, 7, kNoAccess},
        {"InputTriggerCache"_s, ro, 2, kNoAccess}, {"LockFails"_s, ro, 2, kNoAccess}, {"Odds"_s, rw, 7, 0},
        {"AvailabilityFails"_s, RuvoNodeNotAvailable, 2, kNoAccess}, {"WriteOnly"_s, RuvoNodeWriteOnly, 1, 0},
        {"NowhereInteger"_s, rw, 1, kFailure}, {"NowhereText"_s, rw, "x"_s, kFailure},
        {"NoNumber"_s, rw, 1.0f, 0}, {"NoEntry"_s, rw, QByteArray("One"), 0},
        {"NoSuchNode"_s, RuvoNodeNotImplemented, 1, kNoNode}, {"Device"_s, RuvoNodeNotImplemented, 1, kNoNode},
        {"Odds"_s, rw, 8 /* from 3 in fours */, kInvalid}, {"NotThere"_s, RuvoNodeNotImplemented, 2, kNoAccess},
        {"Tenth"_s, rw, 0.1f /* as a float above the maximum */, 0}, {"Tenth"_s, rw, 0.01f, 0},
    };
    for (const auto &row : rows) {
        const QByteArray what = (row.node + u' ' + row.value.toString()).toUtf8();
        const bool isReadable = (row.access == ro || row.access == rw) && !row.node.startsWith("No"_s);
        QVERIFY2(m_device->getNodeAccessMode(row.node) == row.access, what);
        const QVariant before = read(row.node);
        QVERIFY2(before.isValid() == isReadable && before != row.value, what);
        QVERIFY2(isReadable || m_device->lastError().startsWith(row.node + ": "_s), what);
        QVERIFY2(write(row.node, row.value) == row.status, what);
        QVERIFY2(row.status == 0 || m_device->lastError().startsWith(row.node + ": "_s), what);
        QVERIFY2(read(row.node) == (row.status == 0 && row.access == rw ? row.value : before), what);
    }
    QCOMPARE(m_device->executeCMD("NowhereCommand"_s), kFailure);
}

void GenicamDeviceTest::locksAndUserSets()
{
    const QString port = "TriggerUdpPort"_s, selector = "UserSetSelector"_s;
    choose("Hold"_s, "Udp"_s);
    QCOMPARE(write("TriggerStopConfig1Condtion"_s, QByteArray("Command")), 0L);
    QHash<QString, RuvoNodeAccessMode> before;
    for (const Node &node : allNodes(*m_device)) {
        before[node.name] = m_device->getNodeAccessMode(node.name);
    }
    QCOMPARE(m_device->executeCMD("AcquisitionStart"_s), 0L);
    QCOMPARE(read("AcquisitionStatus"_s), QVariant(true));
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        const RuvoNodeAccessMode expected = it.value() == RuvoNodeReadWrite ? RuvoNodeReadOnly : it.value();
        QVERIFY2(m_device->getNodeAccessMode(it.key()) == expected, qPrintable(it.key()));
    }
    QCOMPARE(write(port, 4000), kNoAccess);
    QCOMPARE(m_device->executeCMD("UserSetLoad"_s), kNoAccess);
    QCOMPARE(m_device->executeCMD("AcquisitionStart"_s), kNoAccess);
    QCOMPARE(m_device->executeCMD("AcquisitionStop"_s), 0L);
    QCOMPARE(read("AcquisitionStatus"_s), QVariant(false));
    QCOMPARE(m_device->getNodeAccessMode("InputTriggerMode"_s), RuvoNodeReadWrite);
    QCOMPARE(read(port), QVariant(2007));
    QCOMPARE(m_device->executeCMD("UserSetSave"_s), kNoAccess); // Default
    const struct { QByteArray set; int port; } rows[] = {{"UserSet1", 3001}, {"UserSet2", 3002}};
    for (const auto &row : rows) {
        QCOMPARE(write(selector, row.set), 0L);
        QCOMPARE(write(port, row.port), 0L);
        QCOMPARE(m_device->executeCMD("UserSetSave"_s), 0L);
    }
    for (const auto &row : rows) {
        QCOMPARE(write(selector, row.set), 0L);
        QCOMPARE(m_device->executeCMD("UserSetLoad"_s), 0L);
        QCOMPARE(read(port), QVariant(row.port));
        QCOMPARE(read(selector), QVariant(row.set)); // is no setting itself
    }
    QCOMPARE(write(selector, QByteArray("Default")), 0L);
    QCOMPARE(m_device->executeCMD("UserSetLoad"_s), 0L);
    QCOMPARE(read("InputTriggerSource"_s), QVariant(QByteArray("SoftwareTrigger")));
    choose("Normal"_s, "Udp"_s);
    QCOMPARE(read(port), QVariant(2007));
}

void GenicamDeviceTest::counting()
{
    const struct { QString mode, source; int after900ms, after1700ms; } rows[] = {
        {"Normal"_s, "AutoTrigger"_s, 0, 1}, {"Hold"_s, "SensingTrigger"_s, 1, 3}, // every 1000 and 500 ms
        {"None"_s, "AutoTrigger"_s, 0, 0}, {"Normal"_s, "IOTrigger"_s, 0, 0},
    };
    const auto countAfter = [this](int ms) { m_now += ms; return read("TriggerCount"_s).toInt(); };
    for (const auto &row : rows) {
        init();
        choose(row.mode, row.source);
        QCOMPARE(countAfter(60000), 0); // nothing before the start
        m_device->executeCMD("AcquisitionStart"_s);
        QCOMPARE(countAfter(900), row.after900ms);
        QCOMPARE(countAfter(800), row.after1700ms); // what was left of the interval is not lost
        m_device->executeCMD("AcquisitionStop"_s);
        QCOMPARE(countAfter(60000), row.after1700ms);
        choose("Normal"_s, "SoftwareTrigger"_s);
        QCOMPARE(m_device->executeCMD("InputSoftwareTrigger"_s), 0L);
        QCOMPARE(countAfter(0), row.after1700ms + 1);
    }
}

/// Wherever it stops and whatever it lacks, it is refused with a reason in one line and nothing is left behind.
void GenicamDeviceTest::unusableDescriptions()
{
    QVector<QPair<QByteArray, QString>> rows = {
        {"", "empty"_s}, {"\x7f" "ELF", "line 1"_s},
        {"<html><body/></html>", "no GenICam"_s}, {"<RegisterDescription/>", "no nodes"_s},
        {"<!DOCTYPE a [<!ENTITY b \"c\">]>" + m_description, "document type"_s},
        {QByteArray(17 << 20, ' '), "too large"_s}, {with(QByteArray("<Group>").repeated(100000)), "nested"_s},
        {with(R"(<Integer Name="A"><pValue>A</pValue></Integer>)"), "A refers to itself"_s},
        {with(R"(<Integer Name="A"><pIsAvailable>Gone</pIsAvailable><Value>1</Value></Integer>)"), "Gone"_s},
        {with(R"(<IntReg Name="A"><Address>0</Address><Length>4</Length></IntReg>)"), "no pPort"_s},
        {with(R"(<IntReg Name="A"><Address>0</Address><pPort>Device</pPort></IntReg>)"), "no Length"_s},
        {QByteArray(m_description).replace("UserSetSaveReg", ""), "UserSetSave"_s},
        {QByteArray(m_description).replace("<PowerUp>2007<", "<PowerUp>70000<"), "TriggerUdpPort"_s},
    };
    for (int size = 3989; size <= m_description.lastIndexOf(kEnd); size += 3989) {
        rows.append({m_description.left(size), "line"_s});
    }
    for (const auto &row : qAsConst(rows)) {
        QVERIFY2(!openText(row.first), qPrintable(row.second));
        QVERIFY2(m_error.contains(row.second) && !m_error.contains(u'\n'), qPrintable(m_error));
    }
    QVERIFY(openText(m_description));
    for (const QString &path : {"/nowhere/at/all.xml"_s, m_directory.path()}) {
        QVERIFY(!GenicamDevice::openBuiltIn(path, &m_error) && m_error.startsWith(path));
    }
}

/// Who asks a server whether a command is done may do so at any moment.
void GenicamDeviceTest::commandsShowAsDoneOnceTheyAre()
{
    NotingMemory memory;
    CameraBehaviour::Registers registers = {};
    registers.acquisitionStart = 4;
    registers.acquisitionStatus = 8;
    CameraBehaviour(memory, registers, [] { return 0; }).update();
    QCOMPARE(memory.written.mid(0, 2), (QVector<quint64>{8, 4}));
}

QTEST_GUILESS_MAIN(GenicamDeviceTest)
#include "GenicamDeviceTest.moc"
