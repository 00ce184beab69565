#pragma once

#include "TimedDevice.h"

#include <atomic>
#include <memory>
#include <thread>

class CameraServer;
class GenicamDevice;

/// A simulated camera, in this process or on a network that is the loopback, with every stop configuration in use.
class BenchCamera
{
public:
    enum class Place { Process, Network, Uncached };

    /// Throws a QString that says why there is none.
    explicit BenchCamera(Place place);
    ~BenchCamera();

    Device *device() { return m_timed.get(); }
    DeviceUse use() const;

private:
    std::unique_ptr<CameraServer> m_server;
    std::atomic<bool> m_stop{false};
    std::thread m_behaviour; // of the server's camera
    std::unique_ptr<GenicamDevice> m_camera;
    std::unique_ptr<TimedDevice> m_timed;
};
