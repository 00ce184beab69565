#include "CoreEventBus.h"

#include "CoreEvent.h"

#include <QPointer>

namespace VyViewer {

namespace {
constexpr long kSuccess = 0;
constexpr long kFailure = -1;
} // namespace

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
        if (m_events.value(name).contains(event.data())) { // not for a destroyed one, which is null
            Q_EMIT event->triggered(payload);
        }
    }
    return kSuccess;
}

long CoreEventBus::registerEvent(CoreEvent *event)
{
    if (!event) {
        return kFailure;
    }
    QVector<CoreEvent *> &events = m_events[event->getEventName()];
    if (events.contains(event)) {
        return kFailure;
    }
    events.append(event);
    return kSuccess;
}

long CoreEventBus::unRegisterEvent(CoreEvent *event)
{
    if (!event) {
        return kFailure;
    }
    const auto events = m_events.find(event->getEventName());
    if (events == m_events.end() || !events->removeOne(event)) {
        return kFailure;
    }
    if (events->isEmpty()) {
        m_events.erase(events);
    }
    return kSuccess;
}

} // namespace VyViewer
