#pragma once

#include <VyViewerCore/CoreEvent.h>

#include <QString>
#include <QVariantMap>
#include <QVector>

class Device;

/// The bus subscriptions of one widget, from their making to the widget's destruction, and the conventions
/// of the payloads: the device travels under the key "IDevice", and an event concerns a widget only when
/// that is the device the widget is bound to.
class DeviceEvents
{
public:
    DeviceEvents() = default;
    /// Unregisters every subscription and schedules its deletion: one of them may be delivering right now.
    ~DeviceEvents();

    /// A new subscription to the event; owned by this object.
    VyViewer::CoreEvent *subscribe(const QString &name);

    static QVariantMap payload(Device *device);
    /// Whether the payload names this device. Nothing concerns a null device.
    static bool concern(const QVariantMap &payload, const Device *device);

    static void post(const QString &name, const QVariantMap &payload);
    /// Posts under the name of one's own subscription, which itself does not receive the event.
    static void postUnheard(VyViewer::CoreEvent *own, const QVariantMap &payload);

private:
    Q_DISABLE_COPY(DeviceEvents)

    QVector<VyViewer::CoreEvent *> m_subscriptions; // owned
};
