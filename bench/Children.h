#pragma once

#include <QHash>
#include <QStringList>
#include <QVector>

/// The figures of one run, by name.
using Figures = QHash<QString, QVector<double>>;

/// Runs this program again, as a process of its own: what is measured in one has not been met by another.
namespace Children {

/// The output of a run with these arguments. Throws a QString that says why there is none.
Figures run(const QStringList &arguments);
/// The instructions of a run under callgrind with these arguments.
Figures instructions(const QStringList &arguments);

} // namespace Children
