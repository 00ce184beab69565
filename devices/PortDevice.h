#pragma once

#include "RegisterPort.h"

#include <QByteArray>

#include <memory>

typedef struct _ArvDevice ArvDevice; // NOLINT(bugprone-reserved-identifier): the name is Aravis'

struct ReferenceDeleter
{
    void operator()(void *object) const;
};
/// One reference to an object of GLib's.
template <typename T>
using Reference = std::unique_ptr<T, ReferenceDeleter>;
using DevicePointer = Reference<ArvDevice>;

/// A GenICam device on registers that are reached through a port, which it owns. Null when the text is no GenICam
/// description.
DevicePointer newPortDevice(std::unique_ptr<RegisterPort> port, const QByteArray &description);
