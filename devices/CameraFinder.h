#pragma once

#include <QString>
#include <QVector>

/// The cameras on the networks of this machine.
struct CameraFinder
{
    struct Camera
    {
        QString address, vendor, model, serial;
    };

    /// Asks every network at once, by broadcast, and gathers what answers within about a second. Blocks that
    /// long: not for the GUI thread.
    static QVector<Camera> find();
};
