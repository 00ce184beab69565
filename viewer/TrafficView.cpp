#include "TrafficView.h"

#include "DeviceText.h"
#include "TrafficModel.h"
#include "WholeFile.h"

#include <QCheckBox>
#include <QDateTime>
#include <QFileDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTableView>

namespace {

/// A field of a CSV file. A spreadsheet would take a text that begins like a formula for one, and what it says
/// comes from a device; an apostrophe prevents that.
QString field(const QString &text)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    const bool isFormula = !isNumber && !text.isEmpty() && QStringLiteral("=+-@\t\r\n").contains(text[0]);
    return QLatin1Char('"') + (isFormula ? QStringLiteral("'") : QString())
        + QString(text).replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

} // namespace

TrafficView::TrafficView(QWidget *parent)
    : RecordTable(TrafficModel::Operation, TrafficModel::Status, parent)
    , m_writesOnly(addControl(new QCheckBox, QT_TR_NOOP("Writes only"), [this] { m_shown->invalidate(); }))
    , m_pause(addControl(new QPushButton, QT_TR_NOOP("Pause"), [this] { m_model->setPaused(m_pause->isChecked()); }))
{
    addControl(new QPushButton, QT_TR_NOOP("Clear"), [this] { m_model->clear(); });
    addControl(new QPushButton, QT_TR_NOOP("Copy"), [this] { copy(); });
    addControl(new QPushButton, QT_TR_NOOP("Save…"), [this] { save(); });
    m_pause->setCheckable(true);
    followEnd();
    setModel(nullptr);
    retranslate();
}

void TrafficView::setModel(TrafficModel *model)
{
    m_model = model;
    m_shown->setSourceModel(model);
    setEnabled(model);
    if (model) {
        model->setPaused(m_pause->isChecked());
        setColumnWidths({16, 22, 34, 18, 24, 15});
    }
}

QByteArray TrafficView::csv() const
{
    QByteArray lines = "Time,Operation,Node,Value,Status,Reason,Microseconds\r\n";
    for (int row = 0; row < m_shown->rowCount(); ++row) {
        const TracedDevice::Call &call = m_model->call(m_shown->mapToSource(m_shown->index(row, 0)).row());
        const QStringList fields = {QDateTime::fromMSecsSinceEpoch(call.time).toString(Qt::ISODateWithMs),
                                    TracedDevice::name(call.operation),
                                    field(call.node),
                                    field(call.value),
                                    QString::number(call.status),
                                    field(call.reason),
                                    QString::number(double(call.nanoseconds) / 1000, 'f', 3)};
        lines += fields.join(QLatin1Char(',')).toUtf8() + "\r\n";
    }
    return lines;
}

bool TrafficView::accepts(int row) const
{
    return !m_writesOnly->isChecked() || TracedDevice::isWrite(m_model->call(row).operation);
}

void TrafficView::followEnd()
{
    // Before the table, which would go on to the next row, and scroll there, when the current one is dropped.
    connect(m_shown, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this](const QModelIndex &, int, int last) {
        if (m_table->currentIndex().row() <= last) {
            m_table->selectionModel()->clearCurrentIndex();
        }
    });
    m_table->setModel(m_shown);
    QScrollBar *const bar = m_table->verticalScrollBar(); // its unit is a row
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) { m_atEnd = value >= bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int, int maximum) {
        if (m_atEnd) {
            bar->setValue(maximum);
        }
    });
    // What the user looks at stays where it is when the oldest calls go.
    connect(m_shown, &QAbstractItemModel::rowsRemoved, this, [this, bar](const QModelIndex &, int first, int last) {
        if (!m_atEnd) {
            bar->setValue(bar->value() - (last - first + 1));
        }
    });
}

void TrafficView::save()
{
    const QString name =
        QFileDialog::getSaveFileName(this, tr("Save traffic"), QStringLiteral("traffic.csv"), tr("CSV files (*.csv)"));
    const QString error = name.isEmpty() ? QString() : WholeFile::write(name, csv());
    if (!error.isEmpty()) {
        DeviceText::tell(this, QMessageBox::Critical, tr("Save traffic"),
                         tr("%1 cannot be written: %2").arg(name, error));
    }
}
