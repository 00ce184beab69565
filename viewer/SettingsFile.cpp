#include "SettingsFile.h"

SettingsFile SettingsFile::read(Device &, const QStringList &) { return {}; }
QString SettingsFile::load(const QString &) { return {}; }
QString SettingsFile::save(const QString &) const { return {}; }
