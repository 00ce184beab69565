#include "IDeviceManager.h"

#include "Device.h"

#include <type_traits>

namespace VyViewer {

namespace {

template <typename Result, typename... Parameters, typename... Arguments>
Result forward(Device *device, Result (Device::*operation)(Parameters...), Arguments &&...arguments)
{
    constexpr int noDevice = std::is_enum_v<Result> ? 0 : -1; // node type and access mode 0; a failed status
    return device ? (device->*operation)(arguments...) : static_cast<Result>(noDevice);
}

} // namespace

// Never destroyed: panels that outlive main() may still call it.
template <>
IDeviceManager *Singleton<IDeviceManager>::getInstance()
{
    static auto *const manager = new IDeviceManager;
    return manager;
}

IDeviceManager::IDeviceManager() = default;

long IDeviceManager::getParamInt(Device *device, const QString &name, int &value, int &min, int &max, int &inc)
{
    return forward(device, &Device::getParamInt, name, value, min, max, inc);
}

long IDeviceManager::getParamFloat(Device *device, const QString &name, float &value, float &min, float &max,
                                   float &inc)
{
    return forward(device, &Device::getParamFloat, name, value, min, max, inc);
}

long IDeviceManager::getParamBool(Device *device, const QString &name, bool &value)
{
    return forward(device, &Device::getParamBool, name, value);
}

long IDeviceManager::getParamEnum(Device *device, const QString &name, QString &value, QList<QString> &entries)
{
    return forward(device, &Device::getParamEnum, name, value, entries);
}

long IDeviceManager::getParamString(Device *device, const QString &name, QString &value)
{
    return forward(device, &Device::getParamString, name, value);
}

long IDeviceManager::setParamInt(Device *device, const QString &name, int value)
{
    return forward(device, &Device::setParamInt, name, value);
}

long IDeviceManager::setParamFloat(Device *device, const QString &name, float value)
{
    return forward(device, &Device::setParamFloat, name, value);
}

long IDeviceManager::setParamBool(Device *device, const QString &name, bool value)
{
    return forward(device, &Device::setParamBool, name, value);
}

long IDeviceManager::setParamEnum(Device *device, const QString &name, const QString &value)
{
    return forward(device, &Device::setParamEnum, name, value);
}

long IDeviceManager::setParamString(Device *device, const QString &name, const QString &value)
{
    return forward(device, &Device::setParamString, name, value);
}

long IDeviceManager::executeCMD(Device *device, const QString &name)
{
    return forward(device, &Device::executeCMD, name);
}

RuvoNodeType IDeviceManager::getNodeType(Device *device, const QString &name)
{
    return forward(device, &Device::getNodeType, name);
}

RuvoNodeAccessMode IDeviceManager::getNodeAccessMode(Device *device, const QString &name)
{
    return forward(device, &Device::getNodeAccessMode, name);
}

} // namespace VyViewer
