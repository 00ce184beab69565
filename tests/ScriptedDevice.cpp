#include "ScriptedDevice.h"

#include <QRegularExpression>

namespace {

QList<QString> words(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

ScriptedDevice::Node guessed(const QString &name)
{
    const struct
    {
        const char *pattern;
        ScriptedDevice::Node node;
    } guesses[] = {
        {"TriggerMode$", {RuvoNodeEnumeration, "None"_s, words("None Hold Once")}},
        {"TriggerSource$", {RuvoNodeEnumeration, "SoftwareTrigger"_s,
                            words("SoftwareTrigger TcpServer TcpClient Udp RS-232 AutoTrigger")}},
        {"CMDFormat$", {RuvoNodeEnumeration, "String"_s, words("String Hex")}},
        {"(Condtion|Baudrate|Flowcontrol|bit)$", {RuvoNodeEnumeration, "First"_s, words("First Second")}},
        {"(CMD|Ip)$", {RuvoNodeString, "text"_s}},
        {"(Enable|Matching|Match|Follow|Key\\w*)$", {RuvoNodeBoolean, false}},
        {"Delay$", {RuvoNodeFloat, 1.5F}},
        {"SoftwareTrigger$", {RuvoNodeCommand, QVariant()}},
    };
    for (const auto &guess : guesses) {
        if (QRegularExpression(QString::fromLatin1(guess.pattern)).match(name).hasMatch()) {
            return guess.node;
        }
    }
    return {};
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
}

QStringList ScriptedDevice::takeCalls()
{
    QStringList taken;
    taken.swap(calls);
    return taken;
}

QStringList ScriptedDevice::writes() const
{
    QStringList found;
    for (const QString &call : calls) { // no pattern: with half a character in it a call would match none
        if (isWrite(call)) {
            found.append(call);
        }
    }
    return found;
}

QStringList ScriptedDevice::refreshOf(const QString &name)
{
    return {"mode "_s + name, "get "_s + name};
}

long ScriptedDevice::getParamEnum(const QString &name, QString &value, QList<QString> &entries)
{
    const long status = read(name, value);
    if (status == 0) {
        entries = node(name).answer.entries;
    }
    return status;
}

long ScriptedDevice::executeCMD(const QString &name)
{
    note("run "_s + name);
    return node(name).refusesWrites ? failure : 0;
}

RuvoNodeType ScriptedDevice::getNodeType(const QString &name)
{
    note("type "_s + name);
    Node &asked = node(name);
    return asked.answer.type = asked.type;
}

RuvoNodeAccessMode ScriptedDevice::getNodeAccessMode(const QString &name)
{
    note("mode "_s + name);
    Node &asked = node(name);
    ++asked.answer.modes;
    return asked.answer.mode = asked.mode;
}

void ScriptedDevice::note(const QString &call)
{
    calls.append(call);
    if (onCall) {
        onCall(call);
    }
}

template <typename Value>
long ScriptedDevice::read(const QString &name, Value &value)
{
    note("get "_s + name);
    Node &asked = node(name);
    if (asked.failsReads) {
        return failure;
    }
    value = asked.value.template value<Value>();
    ++asked.answer.values;
    asked.answer.value = asked.value;
    asked.answer.entries = asked.entries;
    asked.answer.min = asked.min;
    asked.answer.max = asked.max;
    return 0;
}
template long ScriptedDevice::read(const QString &, bool &);
template long ScriptedDevice::read(const QString &, QString &);

template <typename Number>
long ScriptedDevice::readNumber(const QString &name, Number &value, Number &min, Number &max, Number &inc)
{
    const long status = read(name, value);
    const Node &limits = node(name);
    min = static_cast<Number>(limits.min);
    max = static_cast<Number>(limits.max);
    inc = static_cast<Number>(limits.inc);
    return status;
}
template long ScriptedDevice::readNumber(const QString &, int &, int &, int &, int &);
template long ScriptedDevice::readNumber(const QString &, float &, float &, float &, float &);

long ScriptedDevice::write(const QString &name, const QVariant &value)
{
    note("set %1=%2"_s.arg(name, value.toString()));
    if (node(name).refusesWrites) {
        return failure;
    }
    node(name).value = value;
    return 0;
}
