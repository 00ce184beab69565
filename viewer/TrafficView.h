#pragma once

#include "RecordTable.h"

class TrafficModel;

/// Shows the calls to a device, to be filtered, copied and saved. Follows the newest call, unless the user has
/// scrolled up.
class TrafficView : public RecordTable
{
    Q_OBJECT
public:
    explicit TrafficView(QWidget *parent = nullptr);

    /// Not owned; null shows nothing. A new model is paused if the last one was.
    void setModel(TrafficModel *model);

    /// What is shown, as RFC 4180 has it, in UTF-8: a line of headings, then a line for each call with the local
    /// time as of ISO 8601, the status as a number and the duration in microseconds.
    QByteArray csv() const;

protected:
    bool accepts(int row) const override;

private:
    void followEnd();
    void save();

    QAbstractButton *m_writesOnly; // children
    QAbstractButton *m_pause;
    TrafficModel *m_model = nullptr; // not owned
    bool m_atEnd = true;
};
