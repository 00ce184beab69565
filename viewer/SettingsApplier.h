#pragma once

#include "SettingsFile.h"

#include <VyViewerCore/Device.h>

#include <functional>

/// Writes settings into a device, step by step, in an order that the device takes.
class SettingsApplier
{
public:
    struct Problem
    {
        QString node;
        QString reason; // a sentence for the user, the value included
    };
    using Reason = std::function<QString()>;

    /// The device is not owned and lives longer. `reason` tells why its last failed call failed.
    SettingsApplier(Device &device, const SettingsFile &settings, Reason reason);

    /// Writes the next node; false when there is nothing more to do.
    bool step();
    int done() const;  // nodes settled so far
    int total() const;

    /// Each node that does not hold the value of the file, whether refused, absent, not reached or changed again
    /// by the device. Complete once step() answered false.
    QVector<Problem> problems() const;
};
