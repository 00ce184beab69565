#pragma once

#include <QWidget>

class GenicamDevice;
class NodeModel;
class QLineEdit;
class QPushButton;
class RecordTable;

/// Every node of a device in one table, to be searched, sorted and copied.
class NodeView : public QWidget
{
    Q_OBJECT
public:
    explicit NodeView(QWidget *parent = nullptr);

    /// Not owned; null, before it goes away, shows nothing.
    void setDevice(GenicamDevice *device);

public Q_SLOTS:
    /// Reads every node again; cheap while the view is not visible, which reads when it is shown.
    void refresh();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void retranslate();

    bool m_isStale = false;
    NodeModel *m_model; // these: children
    RecordTable *m_table;
    QLineEdit *m_search;
    QPushButton *m_refresh;
};
