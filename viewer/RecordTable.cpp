#include "RecordTable.h"

#include "DeviceText.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpression>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QTableView>

/// The filter of Qt's own takes away row by row what no longer matches, which takes seconds with 100,000 of them.
class RecordTable::Filter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::ToolTipRole) {
            return QSortFilterProxyModel::data(index, role);
        }
        return DeviceText::toolTip(index.data().toString()); // in full
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &) const override
    {
        const auto *const view = static_cast<const RecordTable *>(parent());
        const QString text = view->m_search->text();
        bool isFound = text.isEmpty();
        for (int column = view->m_first; column <= view->m_last && !isFound; ++column) {
            isFound = sourceModel()->index(row, column).data().toString().contains(text, Qt::CaseInsensitive);
        }
        return isFound && view->accepts(row);
    }
};

RecordTable::RecordTable(int first, int last, QWidget *parent)
    : QWidget(parent)
    , m_shown(new Filter(this))
    , m_table(new QTableView(this))
    , m_first(first)
    , m_last(last)
    , m_search(new QLineEdit(this))
{
    m_search->setClearButtonEnabled(true);
    m_table->setSelectionBehavior(QTableView::SelectRows);
    m_table->setEditTriggers(QTableView::NoEditTriggers);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setHorizontalScrollMode(QTableView::ScrollPerPixel);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->verticalHeader()->minimumSectionSize());
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    auto *const grid = new QGridLayout(this);
    grid->addWidget(m_search, 0, 0);
    grid->addWidget(m_table, 1, 0, 1, -1); // below all controls
    grid->setColumnStretch(0, 1);
    connect(m_search, &QLineEdit::textChanged, m_shown, &QSortFilterProxyModel::invalidate);
    new QShortcut(QKeySequence::Copy, m_table, this, &RecordTable::copy, Qt::WidgetShortcut);
}

QAbstractButton *RecordTable::addControl(QAbstractButton *control, const char *text,
                                         const std::function<void()> &clicked)
{
    auto *const grid = static_cast<QGridLayout *>(layout());
    grid->addWidget(control, 0, grid->columnCount());
    connect(control, &QAbstractButton::clicked, this, clicked);
    m_controls.append({control, text});
    return control;
}

void RecordTable::setColumnWidths(const QVector<int> &characters)
{
    const QString name = QStringLiteral("TriggerSerialPortCMDFuzzyMatch"); // among the longest
    for (int column = 0; column < characters.size(); ++column) {
        m_table->setColumnWidth(column, characters[column] * fontMetrics().horizontalAdvance(name) / name.size());
    }
}

void RecordTable::copy() const
{
    static const QRegularExpression breaks(QStringLiteral("[\\t\\r\\n]+")); // would end the cell
    const QItemSelectionModel *const selection = m_table->selectionModel();
    const bool all = !selection->hasSelection();
    QString lines;
    for (int row = -1, rows = m_shown->rowCount(); row < rows; ++row) { // first the headings
        if (row >= 0 && !all && !selection->isRowSelected(row, {})) {
            continue;
        }
        QStringList cells;
        for (int column = 0, columns = m_shown->columnCount(); column < columns; ++column) {
            cells.append((row < 0 ? m_shown->headerData(column, Qt::Horizontal) : m_shown->index(row, column).data())
                             .toString()
                             .replace(breaks, QStringLiteral(" ")));
        }
        lines += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    QGuiApplication::clipboard()->setText(lines);
}

void RecordTable::retranslate()
{
    m_search->setPlaceholderText(tr("Filter"));
    for (const auto &control : qAsConst(m_controls)) {
        control.first->setText(QCoreApplication::translate(metaObject()->className(), control.second));
    }
    m_table->horizontalHeader()->viewport()->update();
}

void RecordTable::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}
