#pragma once

#include "GenicamDevice.h"

#include <QObject>
#include <QString>

#include <memory>

/// A camera that comes and goes: opened, lost, opened again. It belongs to the GUI thread, which opening and
/// releasing, seconds of it with a dead camera, never hold up.
class CameraConnection : public QObject
{
    Q_OBJECT
public:
    enum State {
        Closed,
        Opening,
        Open,
        Failed, ///< could not be opened; reason() says why
        Lost    ///< does not answer any more, or obeys somebody else; reason() says what happened
    };

    /// An IPv4 address, or empty for the simulated camera, then of the description in a file (empty: our own).
    explicit CameraConnection(const QString &address, const QString &description = {}, QObject *parent = nullptr);
    /// Releases the camera. Whoever uses device() has let go of it before.
    ~CameraConnection() override;

    QString address() const { return m_address; }
    State state() const { return m_state; }
    QString reason() const { return m_reason; }

    /// Null unless Open or Lost. A lost camera stays until it is opened again or closed; every call to it fails
    /// at once.
    GenicamDevice *device() const { return m_device.get(); }

    /// Opens the camera, or opens it again, in the background. No effect while one is under way.
    void open();
    void close();

Q_SIGNALS:
    /// The state is another. When it is Opening or Closed, the device that was is gone after this signal.
    void stateChanged();

private:
    struct Opened;
    void setState(State state, const QString &reason = {});
    void take(Opened &opened);
    void dropCache();

    const QString m_address;
    const QString m_description;
    State m_state = Closed;
    QString m_reason;
    std::unique_ptr<GenicamDevice> m_device;
    quint64 m_attempt = 0; // tells what belongs to this opening from what comes late
};
