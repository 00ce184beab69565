#pragma once

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

/// What the command line asks of the viewer.
struct Options
{
    QString device;      // IPv4 address; empty: the built-in camera
    QString description; // empty: the built-in camera's own
    QString language;    // empty: the system's
    QString screenshot;  // these: files to write or read; without any of them a window opens
    QString apply;
    QString save;
    QVector<QPair<QString, QString>> settings; // node and value, in the order given

    /// Reads the command line (program name first). Where that settles the matter, as with --help or an unknown
    /// option, prints what there is to say and ends the process: status 0, or 2 for an error.
    static Options parse(const QStringList &arguments);
    /// One line on the standard error output; returns the exit status 2 that goes with it.
    static int complain(const QString &reason);
    /// The same, and the end of the process.
    [[noreturn]] static void fail(const QString &reason);
};
