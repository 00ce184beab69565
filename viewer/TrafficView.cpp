#include "TrafficView.h"

#include "RecordTable.h"
#include "TrafficModel.h"

#include <QCheckBox>
#include <QDateTime>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QSortFilterProxyModel>

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

/// The filter of Qt's own takes away row by row what no longer matches, which takes seconds with so many of them.
class TrafficFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void set(const QString &text, bool writesOnly)
    {
        m_text = text;
        m_writesOnly = writesOnly;
        invalidate();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        const auto *const calls = static_cast<const TrafficModel *>(sourceModel());
        return (!m_writesOnly || TracedDevice::isWrite(calls->call(row).operation))
            && (m_text.isEmpty() || calls->index(row, 0, parent).data(TrafficModel::SearchRole).toString()
                                        .contains(m_text, Qt::CaseInsensitive));
    }

private:
    QString m_text;
    bool m_writesOnly = false;
};

TrafficView::TrafficView(QWidget *parent)
    : QWidget(parent)
    , m_shown(new TrafficFilter(this))
    , m_table(new RecordTable(this))
    , m_filter(new QLineEdit(this))
    , m_writesOnly(new QCheckBox(this))
    , m_pause(new QPushButton(this))
    , m_clear(new QPushButton(this))
    , m_copy(new QPushButton(this))
    , m_save(new QPushButton(this))
{
    m_filter->setClearButtonEnabled(true);
    m_pause->setCheckable(true);
    auto *const controls = new QHBoxLayout;
    controls->addWidget(m_filter, 1);
    for (QWidget *control : std::initializer_list<QWidget *>{m_writesOnly, m_pause, m_clear, m_copy, m_save}) {
        controls->addWidget(control);
    }
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(controls);
    layout->addWidget(m_table);

    // Before the table, which would go on to the next row, and scroll there, when the current one is dropped.
    connect(m_shown, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this](const QModelIndex &, int, int last) {
        if (m_table->currentIndex().row() <= last) {
            m_table->selectionModel()->clearCurrentIndex();
        }
    });
    m_table->setModel(m_shown);
    followEnd();
    const auto filter = [this] { m_shown->set(m_filter->text(), m_writesOnly->isChecked()); };
    connect(m_filter, &QLineEdit::textChanged, this, filter);
    connect(m_writesOnly, &QCheckBox::toggled, this, filter);
    connect(m_pause, &QPushButton::toggled, this, [this](bool paused) {
        if (model()) {
            model()->setPaused(paused);
        }
    });
    connect(m_clear, &QPushButton::clicked, this, [this] {
        if (model()) {
            model()->clear();
        }
    });
    connect(m_copy, &QPushButton::clicked, m_table, &RecordTable::copy);
    connect(m_save, &QPushButton::clicked, this, &TrafficView::chooseFile);
    retranslate();
}

void TrafficView::setModel(TrafficModel *model)
{
    m_shown->setSourceModel(model);
    if (model) {
        model->setPaused(m_pause->isChecked());
        m_table->setColumnWidths({14, 19, 30, 14, 24, 14}, TrafficModel::Value);
    }
}

QByteArray TrafficView::csv() const
{
    QByteArray lines = "Time,Operation,Node,Value,Status,Reason,Microseconds\r\n";
    for (int row = 0; row < m_shown->rowCount(); ++row) {
        const TracedDevice::Call &call = model()->call(m_shown->mapToSource(m_shown->index(row, 0)).row());
        const QStringList fields = {
            QDateTime::fromMSecsSinceEpoch(call.time).toString(Qt::ISODateWithMs),
            TracedDevice::name(call.operation), field(call.node), field(call.value), QString::number(call.status),
            field(call.reason), QString::number(double(call.nanoseconds) / 1000, 'f', 3)};
        lines += fields.join(QLatin1Char(',')).toUtf8() + "\r\n";
    }
    return lines;
}

void TrafficView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

TrafficModel *TrafficView::model() const
{
    return qobject_cast<TrafficModel *>(m_shown->sourceModel());
}

void TrafficView::followEnd()
{
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

void TrafficView::chooseFile()
{
    auto *const dialog = new QFileDialog(this, tr("Save traffic"), QString(), tr("CSV files (*.csv)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    connect(dialog, &QFileDialog::fileSelected, this, &TrafficView::save);
    dialog->open();
}

void TrafficView::save(const QString &fileName)
{
    const QByteArray lines = csv();
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size() || !file.commit()) {
        QMessageBox::warning(this, tr("Save traffic"),
                             tr("%1 cannot be written: %2")
                                 .arg(QDir::toNativeSeparators(fileName), file.errorString()));
    }
}

void TrafficView::retranslate()
{
    m_filter->setPlaceholderText(tr("Filter"));
    m_writesOnly->setText(tr("Writes only"));
    m_pause->setText(tr("Pause"));
    m_clear->setText(tr("Clear"));
    m_copy->setText(tr("Copy"));
    m_save->setText(tr("Save…"));
    m_copy->setToolTip(tr("Copies the selected calls, or all that are shown"));
    m_save->setToolTip(tr("Saves the calls that are shown as a CSV file"));
    m_table->horizontalHeader()->viewport()->update();
}
