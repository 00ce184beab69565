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

    /// Both answer an empty text, or what is wrong in one line, without the name of the file. A file that
    /// cannot be loaded changes nothing here, and a failed save nothing in the file.
    QString load(const QString &fileName);
    QString save(const QString &fileName) const;
    /// The same with the contents of such a file.
    QString parse(const QByteArray &text);
    QByteArray text() const;

    /// What one node holds, as an Entry has it; invalid when it cannot be read, or is nothing that a file can hold.
    static QVariant value(Device &device, const QString &node, RuvoNodeType type);
    /// False when the device refuses it; an invalid value, and a type that no value has, it is not asked about.
    static bool write(Device &device, const Entry &entry);
    /// The value that a text stands for, as a file spells it but without quotes; invalid when it does not fit the type.
    static QVariant fromText(const QString &text, RuvoNodeType type);
    /// A value as the file spells it, cut short where it is too long for a message.
    static QString shown(const QVariant &value);

    QString vendor, model, serial; // of the camera that was read; load() leaves them alone
    QVector<Entry> entries;
    QStringList unread; // settings that should have been read and could not; no part of the file

    Q_DECLARE_TR_FUNCTIONS(SettingsFile)
};
