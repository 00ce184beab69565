#include "CameraConnection.h"

#include <VyViewerCore/CoreEvent.h>
#include <VyViewerCore/CoreEventBus.h>
#include <VyViewerCore/IDeviceManager.h>
#include <VyViewerCore/Singleton.h>

#include <QFutureWatcher>
#include <QtConcurrent>

using VyViewer::CoreEvent;
using VyViewer::CoreEventBus;
using VyViewer::IDeviceManager;
using VyViewer::Singleton;

namespace {

/// With each of these somebody says that a camera's settings may be others now.
constexpr const char *kEvents[] = {"UserSetLoad",
                                   "DeviceParamChanged",
                                   "triggerSource",
                                   "tcpserverCMDFormatEvent",
                                   "tcpclientCMDFormatEvent",
                                   "udpCMDFormatEvent",
                                   "serialportCMDFormatEvent",
                                   "TriggerStopConditionEvent",
                                   "TriggerStopDecodeCountEnable"};

} // namespace

struct CameraConnection::Opened
{
    std::unique_ptr<GenicamDevice> device;
    QString error;
};

CameraConnection::CameraConnection(const QString &address, const QString &description, QObject *parent)
    : QObject(parent)
    , m_address(address)
    , m_description(description)
{
    // Before those of any panel, which is bound to the device later: they are served in this order.
    for (const char *name : kEvents) {
        auto *const event = new CoreEvent(QString::fromLatin1(name), this);
        connect(event, &CoreEvent::triggered, this, &CameraConnection::dropCache);
        Singleton<CoreEventBus>::getInstance()->registerEvent(event);
    }
    connect(Singleton<IDeviceManager>::getInstance(), &IDeviceManager::deviceGrabStatusUpdate, this,
            &CameraConnection::dropCache);
}

CameraConnection::~CameraConnection() = default;

void CameraConnection::open()
{
    if (m_state == Opening) {
        return;
    }
    setState(Opening);
    m_device.reset();
    auto *const watcher = new QFutureWatcher<std::shared_ptr<Opened>>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, attempt = ++m_attempt] {
        watcher->deleteLater();
        if (attempt == m_attempt) {
            take(*watcher->result());
        }
    });
    watcher->setFuture(QtConcurrent::run([address = m_address, description = m_description] {
        auto opened = std::make_shared<Opened>();
        opened->device = GenicamDevice::open(address, description, &opened->error);
        return opened;
    }));
}

void CameraConnection::close()
{
    ++m_attempt;
    setState(Closed);
    m_device.reset();
}

void CameraConnection::take(Opened &opened)
{
    m_device = std::move(opened.device);
    setState(m_device ? Open : Failed, opened.error);
    if (!m_device) {
        return;
    }
    // Queued, wherever it comes from: the call that found the camera dead has to return first.
    m_device->onLost([this, attempt = m_attempt] {
        QMetaObject::invokeMethod(
            this,
            [this, attempt] {
                if (attempt == m_attempt && m_state == Open) {
                    setState(Lost, m_device->lostReason());
                }
            },
            Qt::QueuedConnection);
    });
}

void CameraConnection::dropCache()
{
    if (m_device) {
        m_device->dropCache();
    }
}

void CameraConnection::setState(State state, const QString &reason)
{
    m_state = state;
    m_reason = reason;
    Q_EMIT stateChanged();
}
