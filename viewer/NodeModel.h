#pragma once

#include <QStandardItemModel>

class GenicamDevice;

/// Every feature of a device, in the device's order, as it was when it was last read.
class NodeModel : public QStandardItemModel
{
    Q_OBJECT
public:
    enum Column { Node, Type, Access, Value, Range, Unit, Description };

    using QStandardItemModel::QStandardItemModel;

    /// Not owned; null, before it goes away, empties the model. Reads nothing.
    void setDevice(GenicamDevice *device);
    /// Reads every node, with a few requests to the device each.
    void refresh();
    void retranslateHeadings();

private:
    GenicamDevice *m_device = nullptr; // not owned
    QStringList m_nodes;               // of the rows
};
