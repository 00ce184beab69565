#pragma once

#include <VyViewerCore/Device.h>

#include <QDateTime>
#include <QElapsedTimer>
#include <QVariant>

#include <functional>
#include <tuple>
#include <type_traits>

/// A device whose every call is reported after it was made. Which device it is, is none of its business.
class TracedDevice final : public Device
{
public:
    // clang-format off
    enum Operation : quint8 {
        GetInt, GetFloat, GetBool, GetEnum, GetString, GetType, GetAccessMode, // reads
        SetInt, SetFloat, SetBool, SetEnum, SetString, Execute                 // writes
    };
    // clang-format on
    struct Call
    {
        qint64 time;        // when it began, in milliseconds since the epoch
        qint64 nanoseconds; // how long it took
        long status;        // 0 for getNodeType and getNodeAccessMode
        Operation operation;
        QString node;
        QString value;  // written or read; empty where a read failed; a long text is cut, and ends in "…"
        QString reason; // of a failure; cut likewise
    };
    using Report = std::function<void(const Call &)>;
    using Reason = std::function<QString()>;

    /// The device is not owned and lives longer. `reason` tells why its last failed call failed.
    TracedDevice(Device &device, Report report, Reason reason);

    static QString name(Operation operation);
    static QString name(RuvoNodeType type);
    static QString name(RuvoNodeAccessMode mode);
    static bool isWrite(Operation operation) { return operation >= SetInt; }
    /// A float is as short as it can be and still be read as the same number, even by way of a double; a long text is
    /// cut, and ends in "…".
    static QString text(const QVariant &value);

private:
    /// What each operation calls, in their order.
    static constexpr auto kMethods =
        std::make_tuple(&Device::getParamInt, &Device::getParamFloat, &Device::getParamBool, &Device::getParamEnum,
                        &Device::getParamString, &Device::getNodeType, &Device::getNodeAccessMode, &Device::setParamInt,
                        &Device::setParamFloat, &Device::setParamBool, &Device::setParamEnum, &Device::setParamString,
                        &Device::executeCMD);

    /// The first argument, if any, is what the call reads or writes.
    template <Operation operation, typename... Arguments>
    auto trace(const QString &name, Arguments &...arguments)
    {
        Call call{QDateTime::currentMSecsSinceEpoch(), 0, 0, operation, name, {}, {}};
        QElapsedTimer timer;
        timer.start();
        const auto answer = (m_device.*std::get<operation>(kMethods))(name, arguments...);
        call.nanoseconds = timer.nsecsElapsed();
        if constexpr (std::is_enum_v<decltype(answer)>) {
            call.value = TracedDevice::name(answer);
        } else {
            call.status = answer;
            call.reason = answer != 0 && m_reason ? text(m_reason()) : QString();
            if (answer == 0 || isWrite(operation)) {
                call.value = text(std::get<0>(std::forward_as_tuple(arguments..., QVariant())));
            }
        }
        m_report(call);
        return answer;
    }

public:
    long getParamInt(const QString &name, int &value, int &min, int &max, int &inc) override
    {
        return trace<GetInt>(name, value, min, max, inc);
    }
    long getParamFloat(const QString &name, float &value, float &min, float &max, float &inc) override
    {
        return trace<GetFloat>(name, value, min, max, inc);
    }
    long getParamEnum(const QString &name, QString &value, QList<QString> &entries) override
    {
        return trace<GetEnum>(name, value, entries);
    }
    long getParamBool(const QString &name, bool &value) override { return trace<GetBool>(name, value); }
    long getParamString(const QString &name, QString &value) override { return trace<GetString>(name, value); }
    long setParamInt(const QString &name, int value) override { return trace<SetInt>(name, value); }
    long setParamFloat(const QString &name, float value) override { return trace<SetFloat>(name, value); }
    long setParamBool(const QString &name, bool value) override { return trace<SetBool>(name, value); }
    long setParamEnum(const QString &name, const QString &value) override { return trace<SetEnum>(name, value); }
    long setParamString(const QString &name, const QString &value) override { return trace<SetString>(name, value); }
    long executeCMD(const QString &name) override { return trace<Execute>(name); }
    RuvoNodeType getNodeType(const QString &name) override { return trace<GetType>(name); }
    RuvoNodeAccessMode getNodeAccessMode(const QString &name) override { return trace<GetAccessMode>(name); }

private:
    Device &m_device;
    const Report m_report;
    const Reason m_reason;
};
