#pragma once

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QPushButton;
class RecordTable;
class TrafficFilter;
class TrafficModel;

/// Shows the calls to a device, to be filtered, copied and saved. Follows the newest call, unless the user has
/// scrolled up.
class TrafficView : public QWidget
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
    void changeEvent(QEvent *event) override;

private:
    TrafficModel *model() const;
    void followEnd();
    void chooseFile();
    void save(const QString &fileName);
    void retranslate();

    bool m_atEnd = true;
    TrafficFilter *m_shown; // these: children
    RecordTable *m_table;
    QLineEdit *m_filter;
    QCheckBox *m_writesOnly;
    QPushButton *m_pause;
    QPushButton *m_clear;
    QPushButton *m_copy;
    QPushButton *m_save;
};
