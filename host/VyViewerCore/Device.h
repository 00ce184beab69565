#pragma once

#include "VyViewerCoreExport.h"
#include "RuvoNode.h"

#include <QList>
#include <QString>

/// One connected device: its nodes, addressed by name.
///
/// A backend implements this class; the rest of the host reaches it through VyViewer::IDeviceManager.
/// Every operation is called on one thread at a time, the GUI thread unless the backend says otherwise.
/// Status: 0 is success. After any other status the out-parameters are unspecified and a write has not
/// taken effect. No operation throws.
class VYVIEWERCORE_EXPORT Device
{
public:
    Device() = default;
    virtual ~Device();

    /// Value, range and increment. A device whose 64-bit range does not fit clamps it to that of int;
    /// a maximum of -1 stands for "no maximum".
    virtual long getParamInt(const QString &name, int &value, int &min, int &max, int &inc) = 0;
    virtual long getParamFloat(const QString &name, float &value, float &min, float &max, float &inc) = 0;
    virtual long getParamBool(const QString &name, bool &value) = 0;
    /// The current entry and the names of all entries that can be chosen now, in the device's order.
    virtual long getParamEnum(const QString &name, QString &value, QList<QString> &entries) = 0;
    virtual long getParamString(const QString &name, QString &value) = 0;

    virtual long setParamInt(const QString &name, int value) = 0;
    virtual long setParamFloat(const QString &name, float value) = 0;
    virtual long setParamBool(const QString &name, bool value) = 0;
    virtual long setParamEnum(const QString &name, const QString &value) = 0;
    virtual long setParamString(const QString &name, const QString &value) = 0;
    virtual long executeCMD(const QString &name) = 0;

    virtual RuvoNodeType getNodeType(const QString &name) = 0;
    virtual RuvoNodeAccessMode getNodeAccessMode(const QString &name) = 0;

private:
    Q_DISABLE_COPY(Device)
};
