#pragma once

#include "DeviceList.h"
#include "TracedDevice.h"

#include "devices/CameraConnection.h"

#include <QHash>
#include <QVariantMap>
#include <QWidget>

#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;
class TrafficModel;
class VyTriggerConfigWdg;

/// One camera: its panel or, while there is no connection, what is the matter; and what other parts of a host would
/// do to the same camera meanwhile. Everything goes through the interfaces that any host has.
class DevicePage : public QWidget
{
    Q_OBJECT
public:
    /// What is known of the camera already, and the description to simulate it by, as CameraConnection has it. The
    /// page does not open it by itself.
    explicit DevicePage(const DeviceList::Camera &known, const QString &description, QWidget *parent = nullptr);
    ~DevicePage() override;

    const CameraConnection &connection() const { return m_connection; }
    DeviceList::Camera camera() const { return m_camera; }
    DeviceList::State state() const;

    /// The device that the panel is bound to, whose every call is traced, and the same device bare, for who is not
    /// to show up in the trace. Null unless the connection is open; changed() comes before they go.
    Device *device() const;
    GenicamDevice *bareDevice() const;
    bool isReadOnly() const;
    bool isAcquiring() const { return m_acquiring; }
    TrafficModel *traffic() const { return m_traffic; }

    /// Writes what the user is typing, which the coming change would otherwise discard.
    void commitPendingEdit() const;

    /// These speak for themselves: by said(), or by a message box. Without a device they do nothing.
    void open();
    void setAcquiring(bool start);
    void loadUserSet(const QString &set);
    void saveUserSet(const QString &set);
    void setTriggerMode(const QString &mode);
    void saveSettings();
    void applySettings();

Q_SIGNALS:
    /// The state is another, or what is known of the camera.
    void changed();
    /// For the status bar.
    void said(const QString &message);
    /// Something was written, or tried to be.
    void written();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void followConnection();
    void followCall(const TracedDevice::Call &call);
    QString lastError() const;
    /// Both leave alone what the device does not have, or take `otherwise`.
    void readText(const char *node, QString &text) const;
    void readAcquiring(bool otherwise);
    /// Tells the rest of the host what happened to the device, which is added to the payload.
    void post(const QString &event, QVariantMap payload = {}) const;
    long selectUserSet(const QString &set, const char *command);
    /// Says so when it went well; followCall() has said what went wrong.
    void finish(const QString &what, long status);

    DeviceList::Camera m_camera;
    CameraConnection m_connection;
    std::unique_ptr<TracedDevice> m_device; // goes before the connection's device, the panel before both
    VyTriggerConfigWdg *m_panel = nullptr;  // child
    TrafficModel *m_traffic;                // child
    QWidget *m_strip;                       // these: children
    QLabel *m_stripText;
    QWidget *m_notice;
    QLabel *m_noticeIcon;
    QLabel *m_noticeText;
    QProgressBar *m_busy;
    QPushButton *m_reconnect[2]; // of the strip and of the notice
    bool m_acquiring = false;
    QHash<QString, QString> m_values; // of the nodes, as they were last read or written
    bool m_unsaved = false;           // settings were written that no user set holds
};
