#pragma once

#include <QWidget>

class TrafficModel;

/// Shows the calls to a device, to be filtered, copied and saved.
class TrafficView : public QWidget
{
    Q_OBJECT
public:
    explicit TrafficView(QWidget *parent = nullptr);

    /// Not owned; null shows nothing.
    void setModel(TrafficModel *model);
};
