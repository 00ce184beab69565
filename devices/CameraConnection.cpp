#include "CameraConnection.h"

CameraConnection::CameraConnection(const QString &address, const QString &description, QObject *parent)
    : QObject(parent), m_address(address), m_description(description)
{
}

CameraConnection::~CameraConnection() = default;

void CameraConnection::open()
{
    if (m_state == Opening) {
        return;
    }
    const auto previous = std::move(m_device);
    setState(Opening);
    QMetaObject::invokeMethod(this, [this] {
        QString error;
        m_device = GenicamDevice::openBuiltIn(m_description, &error);
        setState(m_device ? Open : Failed, error);
    }, Qt::QueuedConnection);
}

void CameraConnection::close()
{
    const auto previous = std::move(m_device);
    setState(Closed);
}

void CameraConnection::setState(State state, const QString &reason)
{
    m_state = state;
    m_reason = reason;
    Q_EMIT stateChanged();
}
