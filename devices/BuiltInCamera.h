#pragma once

#include "SimulatedCamera.h"

/// Switches on a simulated camera inside this process. Null, and the reason, when the description cannot be used;
/// a null clock is the real time.
DevicePointer newBuiltInCamera(const QByteArray &description, CameraBehaviour::Clock clock, QString *error);
