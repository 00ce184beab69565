#pragma once

#include "VyViewerCoreExport.h"

#include <QObject>
#include <QString>
#include <QVariantMap>

namespace VyViewer {

/// A subscription to one named event of the bus. It receives events from registerEvent() until
/// unRegisterEvent(), except while its signals are blocked; destroying it unregisters it.
class VYVIEWERCORE_EXPORT CoreEvent : public QObject
{
    Q_OBJECT
public:
    CoreEvent(const QString &name, QObject *parent);
    ~CoreEvent() override;

    QString getEventName() const;

Q_SIGNALS:
    /// Emitted by the bus, inside CoreEventBus::post().
    void triggered(QVariantMap payload);

private:
    const QString m_name;
};

} // namespace VyViewer
