#include "TrafficModel.h"

#include "RecordTable.h"

#include <QColor>
#include <QDateTime>
#include <QGuiApplication>
#include <QPalette>

#include <iterator>

namespace {

constexpr int kShowAfter = 100; // milliseconds
constexpr QRgb kFailed = 0xffb00020;
constexpr QRgb kFailedOnDark = 0xffff8a80;
constexpr QRgb kFailedWrite = 0xff7a0010; // on a ground of its own, in light and dark surroundings alike
constexpr QRgb kFailedWriteGround = 0xffffd6d6;

/// Without the node, which has a column of its own.
QString reasonOf(const TracedDevice::Call &call)
{
    const QString start = call.node + QLatin1String(": ");
    return call.reason.startsWith(start) ? call.reason.mid(start.size()) : call.reason;
}

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
        return call.status == 0 ? QStringLiteral("OK") : QStringLiteral("%1 %2").arg(call.status).arg(reasonOf(call));
    default:
        return QString::number(double(call.nanoseconds) / 1000, 'f', 1);
    }
}

QVariant foreground(const TracedDevice::Call &call)
{
    if (call.status == 0) {
        return {};
    }
    const bool isDark = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
    return QColor(TracedDevice::isWrite(call.operation) ? kFailedWrite : isDark ? kFailedOnDark : kFailed);
}

} // namespace

TrafficModel::TrafficModel(QObject *parent) : QAbstractTableModel(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kShowAfter);
    connect(&m_timer, &QTimer::timeout, this, &TrafficModel::showPending);
}

void TrafficModel::append(const TracedDevice::Call &call)
{
    if (m_paused) {
        return;
    }
    m_pending.push_back(call);
    if (m_pending.size() > kMaxCalls) { // nothing is shown while somebody keeps the thread busy
        m_pending.pop_front();
    }
    if (!m_timer.isActive()) {
        m_timer.start();
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
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section < 0 || section > Duration) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    const QString names[] = {tr("Time"), tr("Operation"), tr("Node"), tr("Value"), tr("Status"), tr("Duration (µs)")};
    return names[section];
}

QVariant TrafficModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const TracedDevice::Call &shown = call(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return textOf(shown, index.column());
    case Qt::ToolTipRole:
        return RecordTable::toolTip(textOf(shown, index.column()));
    case SearchRole:
        return QStringList{textOf(shown, Operation), shown.node, shown.value, textOf(shown, Status)}
            .join(QLatin1Char('\n'));
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter) | int(index.column() == Duration ? Qt::AlignRight : Qt::AlignLeft);
    case Qt::ForegroundRole:
        return foreground(shown);
    case Qt::BackgroundRole:
        return shown.status != 0 && TracedDevice::isWrite(shown.operation) ? QColor(kFailedWriteGround) : QVariant();
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
        const int first = rowCount();
        beginInsertRows({}, first, first + added - 1);
        std::move(m_pending.begin(), m_pending.end(), std::back_inserter(m_calls));
        m_pending.clear();
        endInsertRows();
    }
}
