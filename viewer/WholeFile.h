#pragma once

#include <QString>

/// A file that is written completely or not at all.
struct WholeFile
{
    /// Answers an empty text, or what is wrong; then what was there before is still there.
    static QString write(const QString &fileName, const QByteArray &contents);
};
