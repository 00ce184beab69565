#pragma once

#include <QTableView>

/// A table to read, search and copy from: rows of equal height, selected as a whole.
class RecordTable : public QTableView
{
    Q_OBJECT
public:
    explicit RecordTable(QWidget *parent = nullptr);

    /// In average characters each; the column `stretched` takes the rest. After the model is set.
    void setColumnWidths(const QVector<int> &characters, int stretched);
    /// A tool tip that shows the text of a cell in full, in several lines if need be.
    static QString toolTip(const QString &text);

public Q_SLOTS:
    /// The selected rows, or all when none is selected, with the headings, separated by tabs.
    void copy() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
