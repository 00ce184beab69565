#pragma once

#include "Singleton.h"
#include "VyViewerCoreExport.h"

#include <QHash>
#include <QString>
#include <QVariantMap>
#include <QVector>

namespace VyViewer {

class CoreEvent;
class CoreEventBus;
template <>
VYVIEWERCORE_EXPORT CoreEventBus *Singleton<CoreEventBus>::getInstance();

/// The host's event bus: named events with a payload, delivered at once.
///
/// GUI thread only. Every operation answers 0 for success. Handlers may register, unregister or destroy
/// subscriptions (their own included) and post again while an event is being delivered.
class VYVIEWERCORE_EXPORT CoreEventBus
{
public:
    /// Emits triggered(payload), before returning and in the order of registration, on every subscription
    /// to `name` that is registered now. One that is unregistered or destroyed by an earlier handler is
    /// passed over; one that is registered by a handler is first served by the next post.
    long post(const QString &name, const QVariantMap &payload);

    /// Adds a subscription under its event name. The bus does not own it. Fails for a null or an already
    /// registered one.
    long registerEvent(CoreEvent *event);

    /// Removes a subscription; nothing more is delivered to it. Fails for one that is not registered.
    long unRegisterEvent(CoreEvent *event);

private:
    friend class Singleton<CoreEventBus>;
    CoreEventBus() = default;
    Q_DISABLE_COPY(CoreEventBus)

    QHash<QString, QVector<CoreEvent *>> m_events;
};

} // namespace VyViewer
