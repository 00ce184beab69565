#pragma once

#include <VyViewerCore/Device.h>

#include <functional>

/// A device whose every call is reported after it was made. Which device it is, is none of its business.
class TracedDevice final : public Device
{
public:
    enum Operation : quint8 {
        GetInt, GetFloat, GetBool, GetEnum, GetString, GetType, GetAccessMode, // reads
        SetInt, SetFloat, SetBool, SetEnum, SetString, Execute                 // writes
    };
    struct Call
    {
        qint64 time;        // when it began, in milliseconds since the epoch
        qint64 nanoseconds; // how long it took
        long status;        // 0 for getNodeType and getNodeAccessMode
        Operation operation;
        QString node;
        QString value;      // written or read; empty where a read failed; a long text is cut, and ends in "…"
        QString reason;     // of a failure; cut likewise
    };
    using Report = std::function<void(const Call &)>;
    using Reason = std::function<QString()>;

    /// The device is not owned and lives longer. `reason` tells why its last failed call failed.
    TracedDevice(Device &device, Report report, Reason reason);

    static QString name(Operation operation);
    static QString name(RuvoNodeType type);
    static bool isWrite(Operation operation) { return operation >= SetInt; }
    /// As short as it can be and still be read as the same number.
    static QString text(float value);

    long getParamInt(const QString &name, int &value, int &min, int &max, int &inc) override;
    long getParamFloat(const QString &name, float &value, float &min, float &max, float &inc) override;
    long getParamBool(const QString &name, bool &value) override;
    long getParamEnum(const QString &name, QString &value, QList<QString> &entries) override;
    long getParamString(const QString &name, QString &value) override;
    long setParamInt(const QString &name, int value) override;
    long setParamFloat(const QString &name, float value) override;
    long setParamBool(const QString &name, bool value) override;
    long setParamEnum(const QString &name, const QString &value) override;
    long setParamString(const QString &name, const QString &value) override;
    long executeCMD(const QString &name) override;
    RuvoNodeType getNodeType(const QString &name) override;
    RuvoNodeAccessMode getNodeAccessMode(const QString &name) override;

private:
    template <typename Answer, typename... Parameters, typename... Arguments>
    Answer trace(Operation operation, Answer (Device::*method)(const QString &, Parameters...), const QString &name,
                 Arguments &...arguments);

    Device &m_device;
    const Report m_report;
    const Reason m_reason;
};
