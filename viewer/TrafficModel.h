#pragma once

#include "TracedDevice.h"

#include <QAbstractTableModel>

#include <deque>

/// The calls to one device, oldest first: the last 100,000 of them, however long it runs. With what waits to be
/// shown these are at most twice as many in memory, a few hundred bytes each.
class TrafficModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Time, Operation, Node, Value, Status, Duration };
    static constexpr int kMaxCalls = 100000;

    using QAbstractTableModel::QAbstractTableModel;

    /// Only stores the call; it becomes a row, together with others, a tenth of a second later.
    void append(const TracedDevice::Call &call);
    /// Calls made meanwhile are not kept.
    void setPaused(bool paused) { m_paused = paused; }
    void clear();

    const TracedDevice::Call &call(int row) const { return m_calls[std::size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_calls.size()); }
    int columnCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : Duration + 1; }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void showPending();

    std::deque<TracedDevice::Call> m_calls;
    std::deque<TracedDevice::Call> m_pending;
    bool m_paused = false;
};
