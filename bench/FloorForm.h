#pragma once

#include "Nodes.h"

#include <QVector>
#include <QWidget>

class FloorPage;

/// What Qt itself costs: the widgets of a panel, laid out and painted alike, filled from an array. There is no device,
/// nothing is compared and nothing kept out of Qt's way: whoever writes such a form by hand begins here.
class FloorForm : public QWidget
{
public:
    /// The nodes are not owned.
    explicit FloorForm(Nodes &nodes);

    bool followsSource = false; // whether choosing a trigger source hides what belongs to the others
    void refresh(int page);
    void refreshAll();

private:
    QWidget *createBlock(const QString &title, QWidget *contents);
    FloorPage *createPage(size_t index, QWidget *parent);
    void write(size_t page, size_t row, const QString &value);

    Nodes &m_nodes;
    QVector<FloorPage *> m_pages; // children
};
