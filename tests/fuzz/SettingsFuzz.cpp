#include "ScriptedDevice.h"

#include "viewer/SettingsApplier.h"
#include "viewer/SettingsFile.h"

/// Of two equal keys that hold objects Qt's parser leaks the first.
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier): the name is the sanitizer's
{ return "leak:libQt5Core.so"; }

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    SettingsFile first, second;
    const QString error = first.parse(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    Q_ASSERT(!error.contains(QLatin1Char('\n')) && (error.isEmpty() || first.entries.isEmpty()));
    Q_ASSERT(second.parse(first.text()).isEmpty() && second.entries.size() == first.entries.size());
    for (int i = 0; i < first.entries.size(); ++i) {
        const SettingsFile::Entry &a = first.entries.at(i), &b = second.entries.at(i);
        Q_ASSERT(a.node == b.node && a.type == b.type && a.value == b.value);
    }
    ScriptedDevice device;
    device.node("TriggerA").refusesWrites = device.node("TriggerB").failsReads = true;
    device.node("TriggerC").mode = RuvoNodeNotAvailable;
    SettingsApplier applier(device, first, {});
    while (applier.step()) {
    }
    Q_ASSERT(applier.done() == applier.total() && applier.problems().size() <= first.entries.size());
    return 0;
}
