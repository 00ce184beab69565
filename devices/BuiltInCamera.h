#pragma once

#include "CameraBehaviour.h"

#include <QString>

typedef struct _ArvDevice ArvDevice;

/// Switches on a simulated camera inside this process: memory of our own behind a GenICam description.
/// Returns a new reference, or null and the reason.
ArvDevice *newBuiltInCamera(const QByteArray &description, CameraBehaviour::Clock clock, QString *error);
