#include "TracedDevice.h"

#include <limits>

namespace {

constexpr int kMaxText = 256; // characters

QString entry(std::initializer_list<const char *> names, int number)
{
    const bool hasName = number >= 0 && number < int(names.size());
    return hasName ? QString::fromLatin1(names.begin()[number]) : QString::number(number);
}

} // namespace

TracedDevice::TracedDevice(Device &device, Report report, Reason reason)
    : m_device(device)
    , m_report(std::move(report))
    , m_reason(std::move(reason))
{}

QString TracedDevice::name(Operation operation)
{
    return entry({"getParamInt", "getParamFloat", "getParamBool", "getParamEnum", "getParamString", "getNodeType",
                  "getNodeAccessMode", "setParamInt", "setParamFloat", "setParamBool", "setParamEnum", "setParamString",
                  "executeCMD"},
                 operation);
}

QString TracedDevice::name(RuvoNodeType type)
{
    return entry({"Unknown", "Boolean", "Integer", "Float", "Enumeration", "Command", "String"}, type);
}

QString TracedDevice::name(RuvoNodeAccessMode mode)
{
    return entry({"NI", "NA", "WO", "RO", "RW"}, mode);
}

QString TracedDevice::text(const QVariant &value)
{
    QString text = value.toString();
    if (value.userType() == QMetaType::Float) {
        int digits = std::numeric_limits<float>::digits10;
        do {
            text = QString::number(value.toDouble(), 'g', digits++);
        } while (float(text.toDouble()) != value.toFloat() && digits <= std::numeric_limits<float>::max_digits10);
    }
    return text.size() <= kMaxText ? text : text.left(kMaxText) + QStringLiteral("…");
}
