#include "TracedDevice.h"

TracedDevice::TracedDevice(Device &device, Report report, Reason reason)
    : m_device(device), m_report(std::move(report)), m_reason(std::move(reason))
{
}

QString TracedDevice::name(Operation) { return {}; }

long TracedDevice::getParamInt(const QString &name, int &value, int &min, int &max, int &inc) { return m_device.getParamInt(name, value, min, max, inc); }
long TracedDevice::getParamFloat(const QString &name, float &value, float &min, float &max, float &inc) { return m_device.getParamFloat(name, value, min, max, inc); }
long TracedDevice::getParamBool(const QString &name, bool &value) { return m_device.getParamBool(name, value); }
long TracedDevice::getParamEnum(const QString &name, QString &value, QList<QString> &entries) { return m_device.getParamEnum(name, value, entries); }
long TracedDevice::getParamString(const QString &name, QString &value) { return m_device.getParamString(name, value); }
long TracedDevice::setParamInt(const QString &name, int value) { return m_device.setParamInt(name, value); }
long TracedDevice::setParamFloat(const QString &name, float value) { return m_device.setParamFloat(name, value); }
long TracedDevice::setParamBool(const QString &name, bool value) { return m_device.setParamBool(name, value); }
long TracedDevice::setParamEnum(const QString &name, const QString &value) { return m_device.setParamEnum(name, value); }
long TracedDevice::setParamString(const QString &name, const QString &value) { return m_device.setParamString(name, value); }
long TracedDevice::executeCMD(const QString &name) { return m_device.executeCMD(name); }
RuvoNodeType TracedDevice::getNodeType(const QString &name) { return m_device.getNodeType(name); }
RuvoNodeAccessMode TracedDevice::getNodeAccessMode(const QString &name) { return m_device.getNodeAccessMode(name); }
