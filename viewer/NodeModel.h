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

    /// Reads every node, with a few requests to the device each; null empties the model.
    void refresh(GenicamDevice *device);
};
