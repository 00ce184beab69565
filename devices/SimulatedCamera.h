#pragma once

#include "CameraBehaviour.h"
#include "PortDevice.h"

#include <QString>

/// The simulated camera, on whatever memory its registers are in.
struct SimulatedCamera
{
    /// Switches the camera on: writes the power-up values of its description into the memory. `serial` replaces the
    /// description's unless empty, `clock` the real time unless null. Without a device, and with the reason in
    /// one line, when the description cannot be used.
    static SimulatedCamera switchOn(std::unique_ptr<CameraMemory> memory, const QByteArray &description,
                                    const QString &serial, CameraBehaviour::Clock clock, QString *error);

    DevicePointer device;       // owns memory and behaviour; every access to it updates the behaviour
    CameraBehaviour *behaviour; // null without a device
};
