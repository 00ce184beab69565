#pragma once

#include "RecordTable.h"

class GenicamDevice;
class NodeModel;

/// Every node of a device in one table, to be searched, sorted and copied.
class NodeView : public RecordTable
{
    Q_OBJECT
public:
    explicit NodeView(QWidget *parent = nullptr);

    /// Not owned; null, before it goes away, shows nothing.
    void setDevice(GenicamDevice *device);

public Q_SLOTS:
    /// Reads every node again; nothing while the view is not visible, which reads when it is shown.
    void refresh();

protected:
    bool event(QEvent *event) override;

private:
    NodeModel *m_model;                // child
    GenicamDevice *m_device = nullptr; // not owned
};
