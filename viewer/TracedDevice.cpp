#include "TracedDevice.h"

#include <QDateTime>
#include <QElapsedTimer>

#include <limits>

namespace {

constexpr int kMaxText = 256; // characters

template <int count>
QString entry(const char *const (&names)[count], int number)
{
    return number >= 0 && number < count ? QString::fromLatin1(names[number]) : QString::number(number);
}

QString cut(const QString &text)
{
    return text.size() <= kMaxText ? text : text.left(kMaxText) + QStringLiteral("…");
}

/// The text of what a call has written or read; an operation without a value has none.
QString textOf(long) { return {}; }
QString textOf(long, int value) { return QString::number(value); }
QString textOf(long, float value) { return TracedDevice::text(value); }
QString textOf(long, bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }
QString textOf(long, const QString &value) { return cut(value); }
QString textOf(RuvoNodeType type) { return TracedDevice::name(type); }
QString textOf(RuvoNodeAccessMode mode)
{
    static constexpr const char *names[] = {"NI", "NA", "WO", "RO", "RW"};
    return entry(names, mode);
}
template <typename Value, typename... Others> // the value comes first
QString textOf(long status, const Value &value, const Others &...)
{
    return textOf(status, value);
}

long statusOf(long status) { return status; }
template <typename Answer>
long statusOf(Answer) { return 0; }

} // namespace

TracedDevice::TracedDevice(Device &device, Report report, Reason reason)
    : m_device(device), m_report(std::move(report)), m_reason(std::move(reason))
{
}

QString TracedDevice::name(Operation operation)
{
    static constexpr const char *names[] = {
        "getParamInt", "getParamFloat", "getParamBool", "getParamEnum", "getParamString", "getNodeType",
        "getNodeAccessMode", "setParamInt", "setParamFloat", "setParamBool", "setParamEnum", "setParamString",
        "executeCMD"};
    return entry(names, operation);
}

QString TracedDevice::name(RuvoNodeType type)
{
    static constexpr const char *names[] = {"Unknown", "Boolean", "Integer", "Float", "Enumeration", "Command",
                                            "String"};
    return entry(names, type);
}

QString TracedDevice::text(float value)
{
    QString text;
    int digits = std::numeric_limits<float>::digits10;
    do {
        text = QString::number(double(value), 'g', digits++);
    } while (text.toFloat() != value && digits <= std::numeric_limits<float>::max_digits10);
    return text;
}

template <typename Answer, typename... Parameters, typename... Arguments>
Answer TracedDevice::trace(Operation operation, Answer (Device::*method)(const QString &, Parameters...),
                           const QString &name, Arguments &...arguments)
{
    Call call{QDateTime::currentMSecsSinceEpoch(), 0, 0, operation, name, {}, {}};
    QElapsedTimer timer;
    timer.start();
    const Answer answer = (m_device.*method)(name, arguments...);
    call.nanoseconds = timer.nsecsElapsed();
    call.status = statusOf(answer);
    if (call.status == 0 || isWrite(operation)) {
        call.value = textOf(answer, arguments...);
    }
    if (call.status != 0 && m_reason) {
        call.reason = cut(m_reason());
    }
    m_report(call);
    return answer;
}

long TracedDevice::getParamInt(const QString &name, int &value, int &min, int &max, int &inc)
{
    return trace(GetInt, &Device::getParamInt, name, value, min, max, inc);
}

long TracedDevice::getParamFloat(const QString &name, float &value, float &min, float &max, float &inc)
{
    return trace(GetFloat, &Device::getParamFloat, name, value, min, max, inc);
}

long TracedDevice::getParamBool(const QString &name, bool &value)
{
    return trace(GetBool, &Device::getParamBool, name, value);
}

long TracedDevice::getParamEnum(const QString &name, QString &value, QList<QString> &entries)
{
    return trace(GetEnum, &Device::getParamEnum, name, value, entries);
}

long TracedDevice::getParamString(const QString &name, QString &value)
{
    return trace(GetString, &Device::getParamString, name, value);
}

long TracedDevice::setParamInt(const QString &name, int value)
{
    return trace(SetInt, &Device::setParamInt, name, value);
}

long TracedDevice::setParamFloat(const QString &name, float value)
{
    return trace(SetFloat, &Device::setParamFloat, name, value);
}

long TracedDevice::setParamBool(const QString &name, bool value)
{
    return trace(SetBool, &Device::setParamBool, name, value);
}

long TracedDevice::setParamEnum(const QString &name, const QString &value)
{
    return trace(SetEnum, &Device::setParamEnum, name, value);
}

long TracedDevice::setParamString(const QString &name, const QString &value)
{
    return trace(SetString, &Device::setParamString, name, value);
}

long TracedDevice::executeCMD(const QString &name)
{
    return trace(Execute, &Device::executeCMD, name);
}

RuvoNodeType TracedDevice::getNodeType(const QString &name)
{
    return trace(GetType, &Device::getNodeType, name);
}

RuvoNodeAccessMode TracedDevice::getNodeAccessMode(const QString &name)
{
    return trace(GetAccessMode, &Device::getNodeAccessMode, name);
}
