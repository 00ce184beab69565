#include "BenchCamera.h"

#include "devices/CameraServer.h"
#include "devices/GenicamDevice.h"

#include <chrono>

BenchCamera::BenchCamera(Place place)
{
    QString error;
    QString address;
    if (place != Place::Process) {
        address = QStringLiteral("127.0.0.1");
        m_server = CameraServer::start({address, {}, {}}, &error);
        if (!m_server) {
            throw error;
        }
        m_behaviour = std::thread([this] {
            while (!m_stop) {
                m_server->update();
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
            }
        });
    }
    m_camera = GenicamDevice::open(address, {}, &error);
    if (!m_camera) {
        throw error;
    }
    m_camera->setCaching(place == Place::Network);
    m_camera->setParamEnum(QStringLiteral("InputTriggerMode"), QStringLiteral("Hold"));
    for (int stopConfiguration = 2; stopConfiguration <= 5; ++stopConfiguration) {
        m_camera->setParamBool(QStringLiteral("TriggerStopConfig%1Enable").arg(stopConfiguration), true);
    }
    m_timed = std::make_unique<TimedDevice>(*m_camera);
}

BenchCamera::~BenchCamera()
{
    m_camera.reset();
    m_stop = true;
    if (m_behaviour.joinable()) {
        m_behaviour.join();
    }
}

DeviceUse BenchCamera::use() const
{
    DeviceUse use = m_timed->use;
    use.roundTrips = m_camera->roundTrips();
    return use;
}
