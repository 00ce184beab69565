#pragma once

#include <VyViewerCore/IDeviceManager.h>

#include <QString>

/// The panel's way to the host's parameter service.
class DeviceAccess
{
public:
    /// The service, fetched anew at every call: the host owns it.
    static VyViewer::IDeviceManager *service();
    /// The current value of an enumeration node; empty, and so equal to no entry, when it cannot be read.
    static QString currentEntry(Device *device, const QString &node);
};
