#include "DeviceAccess.h"

#include <VyViewerCore/Singleton.h>

using namespace VyViewer;

IDeviceManager *DeviceAccess::service()
{
    return Singleton<IDeviceManager>::getInstance();
}

QString DeviceAccess::currentEntry(Device *device, const QString &node)
{
    QString value;
    QList<QString> entries;
    service()->getParamEnum(device, node, value, entries);
    return value;
}
