#pragma once

#include <QWidget>

class GenicamDevice;

/// Every node of a device in one table.
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
};
