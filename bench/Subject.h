#pragma once

#include <QWidget>

#include <functional>
#include <memory>

/// What a device has been asked for so far.
struct DeviceUse
{
    quint64 calls = 0;
    quint64 roundTrips = 0;  // requests on a network
    quint64 nanoseconds = 0; // spent in its calls; not of the device in memory
};

/// What is measured: a form with a device, or an array, of its own.
struct Subject
{
    std::function<std::unique_ptr<QWidget>()> build;
    std::function<void(bool all)> refresh;       // the first page, or every one, of the form built last
    std::function<void()> changeValues = {};     // of all nodes, behind the form's back; empty: cannot be done
    std::function<void(bool)> followSource = {}; // whether a source withdraws what belongs to the others; empty: always
    std::function<DeviceUse()> device = [] { return DeviceUse(); };
    const char *number = "TriggerStopConfig1FrameCount"; // a row that edits a number

    /// "floor", "panel", and the panel on a "camera" in this process, on a "network", and there "uncached". The first two
    /// are of so many times the rows of the trigger page, or complete for 0. Throws a QString.
    static Subject named(const QString &name, int times);
};
