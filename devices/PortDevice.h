#pragma once

#include "RegisterPort.h"

#include <QByteArray>

#include <memory>

typedef struct _ArvDevice ArvDevice; // NOLINT(bugprone-reserved-identifier): the name is Aravis'

struct DeviceDeleter { void operator()(ArvDevice *device) const; };
/// One reference to a device.
using DevicePointer = std::unique_ptr<ArvDevice, DeviceDeleter>;

/// A GenICam device on registers that are reached through a port, which it owns. Null when the text is no GenICam
/// description.
DevicePointer newPortDevice(std::unique_ptr<RegisterPort> port, const QByteArray &description);
