#include "CoreEvent.h"

#include "CoreEventBus.h"
#include "Singleton.h"

namespace VyViewer {

CoreEvent::CoreEvent(const QString &name, QObject *parent)
    : QObject(parent)
    , m_name(name)
{}

CoreEvent::~CoreEvent()
{
    Singleton<CoreEventBus>::getInstance()->unRegisterEvent(this);
}

QString CoreEvent::getEventName() const
{
    return m_name;
}

} // namespace VyViewer
