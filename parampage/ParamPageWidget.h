#pragma once

#include <QVector>
#include <QWidget>

class Device;
class QVBoxLayout;

/// A column of parameter rows and whatever a page puts between them. The page refreshes all its rows whenever
/// it is shown and whenever one of them has written; a page that is not visible makes no device call.
class ParamPageWidget : public QWidget
{
    Q_OBJECT
public:
    /// The device is not owned.
    ParamPageWidget(Device *device, QWidget *parent);
    ~ParamPageWidget() override;

    /// Appends a widget, of which the page becomes the parent. What is connected to a row's valueChanged()
    /// after this runs when all rows are refreshed.
    void addItem(QWidget *widget);

public Q_SLOTS:
    /// Refreshes every row from the device, if the page is visible.
    virtual void updateWidget();
    /// Translates every row again.
    virtual void retranslate();

protected:
    Device *device() const { return m_device; }

    void showEvent(QShowEvent *event) override;

private:
    Device *const m_device;      // not owned
    QVBoxLayout *const m_layout; // child
    QVector<QWidget *> m_items;  // children, in display order
};
