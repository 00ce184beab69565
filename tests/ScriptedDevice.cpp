#include "ScriptedDevice.h"

#include <QRegularExpression>

namespace {

constexpr long Failure = -1;

ScriptedDevice::Node guessed(const QString &name)
{
    struct Guess
    {
        const char *pattern;
        RuvoNodeType type;
        QVariant value;
        QList<QString> entries;
    };
    const QString none = QStringLiteral("None");
    const QList<QString> modes{none, QStringLiteral("Hold"), QStringLiteral("Once")};
    const QList<QString> sources{QStringLiteral("SoftwareTrigger"), QStringLiteral("TcpServer"), QStringLiteral("TcpClient"),
                                 QStringLiteral("Udp"), QStringLiteral("RS-232"), QStringLiteral("AutoTrigger")};
    const QList<QString> formats{QStringLiteral("String"), QStringLiteral("Hex")};
    const QList<QString> others{QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Third")};
    const Guess guesses[] = {
        {"TriggerMode$", RuvoNodeEnumeration, none, modes},
        {"TriggerSource$", RuvoNodeEnumeration, sources.first(), sources},
        {"CMDFormat$", RuvoNodeEnumeration, formats.first(), formats},
        {"(Condtion|Baudrate|Flowcontrol|bit)$", RuvoNodeEnumeration, others.first(), others},
        {"(CMD|Ip)$", RuvoNodeString, QStringLiteral("text"), {}},
        {"(Enable|Matching|Match|Follow|Key\\w*)$", RuvoNodeBoolean, false, {}},
        {"Delay$", RuvoNodeFloat, 1.5F, {}},
        {"SoftwareTrigger$", RuvoNodeCommand, {}, {}},
    };
    for (const Guess &guess : guesses) {
        if (QRegularExpression(QString::fromLatin1(guess.pattern)).match(name).hasMatch()) {
            ScriptedDevice::Node node;
            node.type = guess.type;
            node.value = guess.value;
            node.entries = guess.entries;
            return node;
        }
    }
    ScriptedDevice::Node number;
    number.type = RuvoNodeInteger;
    number.value = 7;
    return number;
}

} // namespace

ScriptedDevice::Node &ScriptedDevice::node(const QString &name)
{
    const auto known = m_nodes.find(name);
    return known != m_nodes.end() ? *known : *m_nodes.insert(name, guessed(name));
}

void ScriptedDevice::reset()
{
    m_nodes.clear();
    calls.clear();
    afterWrite = nullptr;
}

QStringList ScriptedDevice::takeCalls()
{
    QStringList taken;
    taken.swap(calls);
    return taken;
}

QStringList ScriptedDevice::writes() const
{
    return calls.filter(QRegularExpression(QStringLiteral("^(set|run) ")));
}

long ScriptedDevice::getParamInt(const QString &name, int &value, int &min, int &max, int &inc)
{
    return readNumber(name, value, min, max, inc);
}

long ScriptedDevice::getParamFloat(const QString &name, float &value, float &min, float &max, float &inc)
{
    return readNumber(name, value, min, max, inc);
}

long ScriptedDevice::getParamBool(const QString &name, bool &value)
{
    const Node *const node = read(name);
    if (!node) {
        return Failure;
    }
    value = node->value.toBool();
    return 0;
}

long ScriptedDevice::getParamEnum(const QString &name, QString &value, QList<QString> &entries)
{
    const Node *const node = read(name);
    if (!node) {
        return Failure;
    }
    value = node->value.toString();
    entries = node->entries;
    return 0;
}

long ScriptedDevice::getParamString(const QString &name, QString &value)
{
    const Node *const node = read(name);
    if (!node) {
        return Failure;
    }
    value = node->value.toString();
    return 0;
}

long ScriptedDevice::setParamInt(const QString &name, int value)
{
    return write(name, value);
}

long ScriptedDevice::setParamFloat(const QString &name, float value)
{
    return write(name, value);
}

long ScriptedDevice::setParamBool(const QString &name, bool value)
{
    return write(name, value);
}

long ScriptedDevice::setParamEnum(const QString &name, const QString &value)
{
    return write(name, value);
}

long ScriptedDevice::setParamString(const QString &name, const QString &value)
{
    return write(name, value);
}

long ScriptedDevice::executeCMD(const QString &name)
{
    calls.append(QStringLiteral("run ") + name);
    if (node(name).refusesWrites) {
        return Failure;
    }
    if (afterWrite) {
        afterWrite(name);
    }
    return 0;
}

RuvoNodeType ScriptedDevice::getNodeType(const QString &name)
{
    calls.append(QStringLiteral("type ") + name);
    return node(name).type;
}

RuvoNodeAccessMode ScriptedDevice::getNodeAccessMode(const QString &name)
{
    calls.append(QStringLiteral("mode ") + name);
    return node(name).mode;
}

const ScriptedDevice::Node *ScriptedDevice::read(const QString &name)
{
    calls.append(QStringLiteral("get ") + name);
    const Node &node = this->node(name);
    return node.failsReads ? nullptr : &node;
}

template <typename Number>
long ScriptedDevice::readNumber(const QString &name, Number &value, Number &min, Number &max, Number &inc)
{
    const Node *const node = read(name);
    if (!node) {
        return Failure;
    }
    value = node->value.value<Number>();
    min = static_cast<Number>(node->min);
    max = static_cast<Number>(node->max);
    inc = static_cast<Number>(node->inc);
    return 0;
}

long ScriptedDevice::write(const QString &name, const QVariant &value)
{
    calls.append(QStringLiteral("set %1=%2").arg(name, value.toString()));
    Node &node = this->node(name);
    if (node.refusesWrites) {
        return Failure;
    }
    node.value = value;
    if (afterWrite) {
        afterWrite(name);
    }
    return 0;
}
