#pragma once

#include "Nodes.h"

#include <QWidget>

class FloorLabel;

/// A row of the floor: a label over half its width, and an editor that is built when the row is first shown.
class FloorRow : public QWidget
{
    Q_OBJECT
public:
    FloorRow(const Node &node, QWidget *parent);

    /// Shows a node's value and whether it is available.
    void set(const Node &node);
    void retranslate();

Q_SIGNALS:
    void edited(QString value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *createEditor();
    void setValue(const Node &node);

    const Node m_node;           // whose name, label, type and entries stay
    FloorLabel *const m_label;   // child
    QWidget *m_editor = nullptr; // child
};
