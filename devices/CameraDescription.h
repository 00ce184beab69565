#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>

/// What we have to know about a GenICam description before Aravis may work with it.
struct CameraDescription
{
    /// What was checked, and nothing else, spelled so that every XML parser reads the same.
    QByteArray xml;
    /// What the nodes hold when the camera is switched on, in the description's order.
    QVector<QPair<QByteArray, QByteArray>> powerUp;

    /// The file that a name stands for: an empty one for the description of the built-in camera.
    static QString fileName(const QString &name);
    /// Its contents, not parsed yet. Bounded; sets the reason when they cannot be had.
    static QByteArray read(const QString &name, QString *error);

    /// Checks the description and collects its power-up values. Aravis takes text that stops half-way for a
    /// smaller description, and follows references without end or into nothing; such a one is refused
    /// here, and Aravis is given `xml`. Returns an empty text, or what is wrong in one line.
    QString parse(const QByteArray &text);
};
