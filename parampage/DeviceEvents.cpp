#include "DeviceEvents.h"

#include <VyViewerCore/CoreEventBus.h>
#include <VyViewerCore/IDeviceManager.h>
#include <VyViewerCore/Singleton.h>

#include <QSignalBlocker>

using VyViewer::CoreEvent;
using VyViewer::CoreEventBus;
using VyViewer::Singleton;

namespace {
constexpr char kDeviceKey[] = "IDevice";
}

DeviceEvents::~DeviceEvents()
{
    for (CoreEvent *event : qAsConst(m_subscriptions)) {
        Singleton<CoreEventBus>::getInstance()->unRegisterEvent(event);
        event->deleteLater();
    }
}

CoreEvent *DeviceEvents::subscribe(const QString &name)
{
    auto *const event = new CoreEvent(name, nullptr);
    m_subscriptions.append(event);
    Singleton<CoreEventBus>::getInstance()->registerEvent(event);
    return event;
}

QVariantMap DeviceEvents::payload(Device *device)
{
    return {{QLatin1String(kDeviceKey), QVariant::fromValue<IDevice>(device)}};
}

bool DeviceEvents::concern(const QVariantMap &payload, const Device *device)
{
    return device && payload.value(QLatin1String(kDeviceKey)).value<IDevice>() == device;
}

void DeviceEvents::post(const QString &name, const QVariantMap &payload)
{
    Singleton<CoreEventBus>::getInstance()->post(name, payload);
}

void DeviceEvents::postUnheard(CoreEvent *own, const QVariantMap &payload)
{
    const QSignalBlocker blocker(own);
    post(own->getEventName(), payload);
}
