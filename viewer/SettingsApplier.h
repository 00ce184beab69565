#pragma once

#include "SettingsFile.h"

#include <VyViewerCore/Device.h>

#include <functional>

/// Writes settings into a device, step by step, in an order that the device takes.
///
/// Which node can be written depends on the values of others. So the trigger mode comes first, then the source,
/// then the others in the order of the file, over and over: a node that is locked, unavailable or refused is tried
/// again once another write has succeeded. At the end all are read back, because a write may have changed other
/// nodes; those that were are written once more. n entries take at most n * (n + 1) writes, whatever the device
/// answers, and as a rule less than n: what holds its value already is not written. When the trigger mode cannot
/// be read any more, the device counts as lost, and nothing more is asked of it.
///
/// To cancel is to call step() no more.
class SettingsApplier
{
    Q_DECLARE_TR_FUNCTIONS(SettingsApplier)
public:
    struct Problem
    {
        QString node;
        QString reason; // for the user, complete: "NODE = VALUE: why"
    };
    using Reason = std::function<QString()>;

    /// The device is not owned and lives longer. `reason` tells why its last failed call failed; may be empty.
    SettingsApplier(Device &device, const SettingsFile &settings, Reason reason);

    /// Goes on to the next node, with one write at most; false when there is nothing more to do.
    bool step();
    int done() const;  // nodes settled so far; never less than before
    int total() const { return m_items.size(); }

    /// Each node that does not hold the value of the file, whether refused, absent, not reached or changed again
    /// by the device; all nodes, when not one of them could be written. Complete once step() answered false; before
    /// that, the nodes that were not reached are among them.
    QVector<Problem> problems() const;

private:
    struct Item
    {
        SettingsFile::Entry entry;
        enum { Open, Taken, Changed, Impossible } state; // changed: by another write, after it was taken
        int tried;                                       // m_writes at the latest attempt
        QString reason;                                  // why it is not taken
    };
    int next();
    void attempt(Item &item);
    void check(Item &item);
    long write(const SettingsFile::Entry &entry);
    QString whyNotNow(RuvoNodeAccessMode mode) const;
    QString failed(const QString &what) const;
    bool canReadMode() const;
    void giveUpIfLost(const Item *but);

    Device &m_device;
    const Reason m_reason;
    const bool m_hasMode;  // the trigger mode could be read at the beginning
    QVector<Item> m_items; // in the order in which they are tried
    bool m_anyWritable = false;
    bool m_checking = false; // rather than writing
    bool m_again = false;    // for the second time
    bool m_finished = false;
    int m_position = 0;
    int m_writes = 0;        // that succeeded
};
