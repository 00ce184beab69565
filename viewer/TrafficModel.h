#pragma once

#include "TracedDevice.h"

#include <QAbstractTableModel>

/// The calls to one device, oldest first.
class TrafficModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit TrafficModel(QObject *parent = nullptr);

    void append(const TracedDevice::Call &call);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
};
