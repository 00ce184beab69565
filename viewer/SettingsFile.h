#pragma once

#include <VyViewerCore/RuvoNode.h>

#include <QCoreApplication>
#include <QStringList>
#include <QVariant>
#include <QVector>

class Device;

/// The trigger settings of one camera, as they are kept in a file; docs/settings-files.md describes it.
struct SettingsFile
{
    struct Entry
    {
        QString node;
        RuvoNodeType type = RuvoNodeUnknown;
        QVariant value; // int, float, bool or QString, as the type has it
    };

    /// What can be read and written now, of the nodes that are trigger settings. The caller looks at `unread`.
    static SettingsFile read(Device &device, const QStringList &nodes);
    /// What one node holds, as an Entry has it; invalid when it cannot be read, or is nothing that a file can hold.
    static QVariant value(Device &device, const QString &node, RuvoNodeType type);

    /// Both answer an empty text, or what is wrong in one line, without the name of the file. A file that
    /// cannot be loaded changes nothing here, and a failed save nothing in the file.
    QString load(const QString &fileName);
    QString save(const QString &fileName) const;

    static QString typeName(RuvoNodeType type);
    /// A value as the file spells it, cut short where it is too long for a message.
    static QString shown(const QVariant &value);

    QString vendor, model, serial; // of the camera they were read from
    QVector<Entry> entries;
    /// Settings that should have been read and could not; no part of the file. When the camera was lost in
    /// between these are all, and there are no entries.
    QStringList unread;

    Q_DECLARE_TR_FUNCTIONS(SettingsFile)
};
