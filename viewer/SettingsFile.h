#pragma once

#include <VyViewerCore/RuvoNode.h>

#include <QStringList>
#include <QVariant>
#include <QVector>

class Device;

/// The trigger settings of one camera, as they are kept in a file.
struct SettingsFile
{
    struct Entry
    {
        QString node;
        RuvoNodeType type;
        QVariant value; // int, float, bool or QString, as the type has it
    };

    /// What can be read and written now, of the nodes that are trigger settings.
    static SettingsFile read(Device &device, const QStringList &nodes);

    /// Both answer an empty text, or what is wrong in one line.
    QString load(const QString &fileName);
    QString save(const QString &fileName) const;

    QString vendor, model, serial; // of the camera they were read from
    QVector<Entry> entries;
};
