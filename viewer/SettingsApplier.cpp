#include "SettingsApplier.h"

SettingsApplier::SettingsApplier(Device &, const SettingsFile &, Reason) {}
bool SettingsApplier::step() { return false; }
int SettingsApplier::done() const { return 0; }
int SettingsApplier::total() const { return 0; }
QVector<SettingsApplier::Problem> SettingsApplier::problems() const { return {}; }
