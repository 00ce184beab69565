#include "CoreEventBus.h"

#include "CoreEvent.h"

#include <QPointer>

namespace VyViewer {

namespace {
constexpr long Success = 0;
constexpr long Failure = -1;
}

// Never destroyed: subscriptions that outlive main() still unregister themselves.
template <>
CoreEventBus *Singleton<CoreEventBus>::getInstance()
{
    static auto *const bus = new CoreEventBus;
    return bus;
}

long CoreEventBus::post(const QString &name, const QVariantMap &payload)
{
    // A snapshot of guarded pointers: handlers may change the list, and a new subscription may be given
    // the address of one that was destroyed meanwhile.
    const QVector<CoreEvent *> registered = m_events.value(name);
    const QVector<QPointer<CoreEvent>> receivers(registered.cbegin(), registered.cend());
    for (const QPointer<CoreEvent> &event : receivers) {
        if (event && m_events.value(name).contains(event.data())) {
            Q_EMIT event->triggered(payload);
        }
    }
    return Success;
}

long CoreEventBus::registerEvent(CoreEvent *event)
{
    if (!event) {
        return Failure;
    }
    QVector<CoreEvent *> &events = m_events[event->getEventName()];
    if (events.contains(event)) {
        return Failure;
    }
    events.append(event);
    return Success;
}

long CoreEventBus::unRegisterEvent(CoreEvent *event)
{
    if (!event) {
        return Failure;
    }
    const auto events = m_events.find(event->getEventName());
    if (events == m_events.end() || !events->removeOne(event)) {
        return Failure;
    }
    if (events->isEmpty()) {
        m_events.erase(events);
    }
    return Success;
}

} // namespace VyViewer
