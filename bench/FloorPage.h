#pragma once

#include "Nodes.h"

#include <QVector>
#include <QWidget>

class FloorRow;
class QVBoxLayout;

/// A page of the floor: a title, or titles before the rows of each trigger source, and a column of rows. Shows its
/// nodes whenever it is shown.
class FloorPage : public QWidget
{
    Q_OBJECT
public:
    /// The nodes are not owned. Without a title it has those of the sources.
    FloorPage(const QString &title, const Nodes::Page &nodes, QWidget *parent);

    /// Shows the nodes as they are now.
    void refresh();
    /// Shows the title of one source alone.
    void showTitle(const QString &source);

Q_SIGNALS:
    void edited(size_t row, QString value);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void addTitle(const QString &text, bool shown);

    const Nodes::Page &m_nodes;
    QVBoxLayout *const m_layout; // child
    QVector<FloorRow *> m_rows;  // children
    QVector<QWidget *> m_titles; // children
};
