#include "WholeFile.h"

#include <QSaveFile>

QString WholeFile::write(const QString &fileName, const QByteArray &contents)
{
    QSaveFile file(fileName); // whose commit overlooks that the rest of its buffer could not be written: flush first
    const bool written = file.open(QIODevice::WriteOnly) && file.write(contents) >= 0 && file.flush();
    return written && file.commit() ? QString() : file.errorString();
}
