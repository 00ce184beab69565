#pragma once

#include "RuvoNode.h"
#include "Singleton.h"
#include "VyViewerCoreExport.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>

class Device;

/// A device as it travels in event payloads, under the key "IDevice".
typedef Device *IDevice; // a typedef and not an alias: the macros below take its name for the meta-type's
Q_DECLARE_OPAQUE_POINTER(IDevice)
Q_DECLARE_METATYPE(IDevice)

namespace VyViewer {

class IDeviceManager;
template <>
VYVIEWERCORE_EXPORT IDeviceManager *Singleton<IDeviceManager>::getInstance();

/// The host's device-parameter service: reads and writes the nodes of a device by name.
///
/// Each operation forwards to the operation of the same name of the device (see Device for the meaning of
/// statuses and out-parameters) and keeps nothing. With a null device every status is a failure, every node
/// type 0 and every access mode 0. Call on the GUI thread.
class VYVIEWERCORE_EXPORT IDeviceManager : public QObject
{
    Q_OBJECT
public:
    long getParamInt(Device *device, const QString &name, int &value, int &min, int &max, int &inc);
    long getParamFloat(Device *device, const QString &name, float &value, float &min, float &max, float &inc);
    long getParamBool(Device *device, const QString &name, bool &value);
    long getParamEnum(Device *device, const QString &name, QString &value, QList<QString> &entries);
    long getParamString(Device *device, const QString &name, QString &value);

    long setParamInt(Device *device, const QString &name, int value);
    long setParamFloat(Device *device, const QString &name, float value);
    long setParamBool(Device *device, const QString &name, bool value);
    long setParamEnum(Device *device, const QString &name, const QString &value);
    long setParamString(Device *device, const QString &name, const QString &value);
    long executeCMD(Device *device, const QString &name);

    RuvoNodeType getNodeType(Device *device, const QString &name);
    RuvoNodeAccessMode getNodeAccessMode(Device *device, const QString &name);

Q_SIGNALS:
    /// Whoever starts or stops a device's acquisition emits this, on any thread. Status 0: the device is not
    /// acquiring images; any other value: it is. moc spells the first argument "Device*const": a receiver on
    /// another thread has to register IDevice under that name too, or the emission is dropped.
    void deviceGrabStatusUpdate(Device *const device, int status);

private:
    friend class Singleton<IDeviceManager>;
    IDeviceManager();
};

} // namespace VyViewer
