#pragma once

#include "Subject.h"

#include <QString>
#include <QVector>

#include <functional>
#include <memory>

/// Measures what happens between begin() and end(), and writes that down in a line of standard output: the name, a
/// tab, and numbers with blanks between.
class Meter
{
public:
    Meter() = default;
    Q_DISABLE_COPY(Meter)
    virtual ~Meter() = default;

    virtual void begin() = 0;
    virtual void end(const QString &name) = 0;

    /// "clock" counts nanoseconds, and those spent in the device. "events" counts device calls, round trips, layout
    /// requests, paints, polish and style-change events. "instructions" has callgrind, under which the program then has
    /// to run, write its own file with a part of that name; nothing is written to the output.
    static std::unique_ptr<Meter> named(const QString &kind, std::function<DeviceUse()> device);
    /// Writes down what was measured otherwise.
    static void print(const QString &name, const QVector<quint64> &values);
};
