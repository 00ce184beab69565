#include "TrafficModel.h"

#include <QColor>
#include <QDateTime>
#include <QTimer>

#include <iterator>

namespace {

constexpr int kShowAfter = 100;      // milliseconds
constexpr QRgb kFailed = 0xff7a0010; // on a ground of its own, in light and dark surroundings alike
constexpr QRgb kFailedReadGround = 0xfffff0c8;
constexpr QRgb kFailedWriteGround = 0xffffd6d6;

QString textOf(const TracedDevice::Call &call, int column)
{
    switch (column) {
    case TrafficModel::Time:
        return QDateTime::fromMSecsSinceEpoch(call.time).toString(QStringLiteral("HH:mm:ss.zzz"));
    case TrafficModel::Operation:
        return TracedDevice::name(call.operation);
    case TrafficModel::Node:
        return call.node;
    case TrafficModel::Value:
        return call.value;
    case TrafficModel::Status:
        return call.status == 0 ? QStringLiteral("OK") : QStringLiteral("%1 %2").arg(call.status).arg(call.reason);
    default:
        return QString::number(double(call.nanoseconds) / 1000, 'f', 1);
    }
}

} // namespace

void TrafficModel::append(const TracedDevice::Call &call)
{
    if (m_paused) {
        return;
    }
    if (m_pending.empty()) {
        QTimer::singleShot(kShowAfter, this, &TrafficModel::showPending);
    }
    m_pending.push_back(call);
    if (m_pending.size() > kMaxCalls) { // nothing is shown while somebody keeps the thread busy
        m_pending.pop_front();
    }
}

void TrafficModel::clear()
{
    beginResetModel();
    m_calls.clear();
    m_pending.clear();
    endResetModel();
}

QVariant TrafficModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const QStringList names{tr("Time"), tr("Operation"), tr("Node"), tr("Value"), tr("Status"), tr("Duration (µs)")};
    return role == Qt::DisplayRole && orientation == Qt::Horizontal ? names.value(section) : QVariant();
}

QVariant TrafficModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const TracedDevice::Call &shown = call(index.row());
    const bool isWrite = TracedDevice::isWrite(shown.operation);
    switch (role) {
    case Qt::DisplayRole:
        return textOf(shown, index.column());
    case Qt::ForegroundRole:
        return shown.status != 0 ? QColor(kFailed) : QVariant();
    case Qt::BackgroundRole:
        return shown.status != 0 ? QColor(isWrite ? kFailedWriteGround : kFailedReadGround) : QVariant();
    default:
        return {};
    }
}

void TrafficModel::showPending()
{
    const int added = int(m_pending.size());
    const int dropped = rowCount() + added - kMaxCalls;
    if (dropped > 0) {
        beginRemoveRows({}, 0, dropped - 1);
        m_calls.erase(m_calls.begin(), m_calls.begin() + dropped);
        endRemoveRows();
    }
    if (added > 0) {
        beginInsertRows({}, rowCount(), rowCount() + added - 1);
        std::move(m_pending.begin(), m_pending.end(), std::back_inserter(m_calls));
        m_pending.clear();
        endInsertRows();
    }
}
