#pragma once

#include <QPair>
#include <QVector>
#include <QWidget>

#include <functional>

class QAbstractButton;
class QLineEdit;
class QSortFilterProxyModel;
class QTableView;

/// A table to read, search and copy from, whole rows at a time, below a line of controls.
class RecordTable : public QWidget
{
    Q_OBJECT
protected:
    /// The search is in the columns from `first` to `last` of the source model. A derived class sets that, and
    /// `m_shown`, which is what the search leaves of it, as the model of the table.
    RecordTable(int first, int last, QWidget *parent);

    /// Takes over the control and returns it; its text is looked up in the translations of the derived class.
    QAbstractButton *addControl(QAbstractButton *control, const char *text, const std::function<void()> &clicked);
    /// In characters each, of the width that those of a node's name have; the last column takes the rest too.
    void setColumnWidths(const QVector<int> &characters);
    /// The selected rows, or all when none is selected, with the headings, separated by tabs.
    void copy() const;
    /// Whether to show a row of the source model that the search finds.
    virtual bool accepts(int) const { return true; }
    void retranslate();
    void changeEvent(QEvent *event) override;

    QSortFilterProxyModel *m_shown; // these: children
    QTableView *m_table;

private:
    class Filter;

    const int m_first;
    const int m_last;
    QLineEdit *m_search;                                        // child
    QVector<QPair<QAbstractButton *, const char *>> m_controls; // children, and their texts
};
