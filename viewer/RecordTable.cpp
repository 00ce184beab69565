#include "RecordTable.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QRegularExpression>

RecordTable::RecordTable(QWidget *parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 5 / 4);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void RecordTable::setColumnWidths(const QVector<int> &characters, int stretched)
{
    for (int column = 0; column < characters.size(); ++column) {
        setColumnWidth(column, characters[column] * fontMetrics().averageCharWidth());
    }
    horizontalHeader()->setSectionResizeMode(stretched, QHeaderView::Stretch);
}

QString RecordTable::toolTip(const QString &text)
{
    return text.isEmpty() ? text : QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()); // rich text is wrapped
}

void RecordTable::copy() const
{
    static const QRegularExpression breaks(QStringLiteral("[\\t\\r\\n]+")); // would end the cell
    const int columns = model()->columnCount();
    QStringList lines;
    QStringList cells;
    const auto endLine = [&] {
        lines.append(cells.replaceInStrings(breaks, QStringLiteral(" ")).join(QLatin1Char('\t')));
        cells.clear();
    };
    for (int column = 0; column < columns; ++column) {
        cells.append(model()->headerData(column, Qt::Horizontal).toString());
    }
    endLine();
    const bool all = !selectionModel()->hasSelection();
    const int rows = model()->rowCount();
    for (int row = 0; row < rows; ++row) {
        if (!all && !selectionModel()->isRowSelected(row, {})) {
            continue;
        }
        for (int column = 0; column < columns; ++column) {
            cells.append(model()->index(row, column).data().toString());
        }
        endLine();
    }
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

void RecordTable::keyPressEvent(QKeyEvent *event)
{
    event->matches(QKeySequence::Copy) ? copy() : QTableView::keyPressEvent(event);
}
