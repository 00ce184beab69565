#pragma once

#include "SettingsFile.h"

#include <VyViewerCore/Device.h>

#include <functional>

/// Writes settings into a device, step by step, in an order that the device takes.
///
/// Which node can be written depends on the values of others, and a write may change other nodes. So all are gone
/// through, the trigger mode first, then the source, then the others in the order of the file, and what does not
/// hold its value is written if possible; over and over, until nothing more was written. The last pass is so a
/// comparison of all. A node is written with success twice at most, which ends it whatever the device answers: n
/// entries take at most n * (2n + 1) writes. When the trigger mode cannot be read any more, the device counts as
/// lost, and nothing more is asked of it.
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
    int done() const { return m_done; } // nodes tried so far; never less than before
    int total() const { return m_items.size(); }

    /// Each node that does not hold the value of the file, whether refused, absent, not reached or changed again
    /// by the device; all nodes of a device that was lost. Complete once step() answered false.
    QVector<Problem> problems() const;

private:
    struct Item
    {
        SettingsFile::Entry entry;
        QString reason; // why it does not hold the value; empty when it does
        int writes = 0; // that succeeded
    };
    void visit(Item &item);
    QString failed(const QString &what) const;
    bool canReadMode() const;

    Device &m_device;
    const Reason m_reason;
    const bool m_hasMode;  // the trigger mode could be read at the beginning
    QVector<Item> m_items; // in the order in which they are tried
    int m_position = 0;    // in this pass
    int m_done = 0;
    bool m_hasWritten = false; // in this pass
    bool m_isLost = false;
};
