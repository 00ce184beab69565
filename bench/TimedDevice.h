#pragma once

#include "Subject.h"

#include <VyViewerCore/Device.h>

#include <QElapsedTimer>

/// Takes the time of every call to another device.
class TimedDevice final : public Device
{
    template <typename Call>
    auto timed(const Call &call)
    {
        QElapsedTimer timer;
        timer.start();
        const auto answer = call();
        use.nanoseconds += quint64(timer.nsecsElapsed());
        ++use.calls;
        return answer;
    }

public:
    /// The device is not owned.
    explicit TimedDevice(Device &device)
        : m_device(device)
    {}

    DeviceUse use;

    long getParamInt(const QString &name, int &value, int &min, int &max, int &inc) override
    {
        return timed([&] { return m_device.getParamInt(name, value, min, max, inc); });
    }
    long getParamFloat(const QString &name, float &value, float &min, float &max, float &inc) override
    {
        return timed([&] { return m_device.getParamFloat(name, value, min, max, inc); });
    }
    long getParamBool(const QString &name, bool &value) override
    {
        return timed([&] { return m_device.getParamBool(name, value); });
    }
    long getParamEnum(const QString &name, QString &value, QList<QString> &entries) override
    {
        return timed([&] { return m_device.getParamEnum(name, value, entries); });
    }
    long getParamString(const QString &name, QString &value) override
    {
        return timed([&] { return m_device.getParamString(name, value); });
    }
    long setParamInt(const QString &name, int value) override
    {
        return timed([&] { return m_device.setParamInt(name, value); });
    }
    long setParamFloat(const QString &name, float value) override
    {
        return timed([&] { return m_device.setParamFloat(name, value); });
    }
    long setParamBool(const QString &name, bool value) override
    {
        return timed([&] { return m_device.setParamBool(name, value); });
    }
    long setParamEnum(const QString &name, const QString &value) override
    {
        return timed([&] { return m_device.setParamEnum(name, value); });
    }
    long setParamString(const QString &name, const QString &value) override
    {
        return timed([&] { return m_device.setParamString(name, value); });
    }
    long executeCMD(const QString &name) override
    {
        return timed([&] { return m_device.executeCMD(name); });
    }
    RuvoNodeType getNodeType(const QString &name) override
    {
        return timed([&] { return m_device.getNodeType(name); });
    }
    RuvoNodeAccessMode getNodeAccessMode(const QString &name) override
    {
        return timed([&] { return m_device.getNodeAccessMode(name); });
    }

private:
    Device &m_device;
};
