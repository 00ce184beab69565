#pragma once

#include <QList>
#include <QWidget>

class Device;
class QGridLayout;
class TriggerStopConfigWdg;

/// The five stop configuration pages, one under the other. Page 1 is always shown; the others as the device's
/// switch of each configuration says, read at every show.
class TriggerStopConfigContainerWdg : public QWidget
{
    Q_OBJECT
public:
    explicit TriggerStopConfigContainerWdg(QWidget *parent);
    ~TriggerStopConfigContainerWdg() override;

    /// Builds the pages. To be called once; reads nothing. The device is not owned.
    void setDevice(Device *device);
    /// Switches on and shows the lowest hidden configuration, if there is one, and tells the pages.
    void addStopConfig();
    /// Refreshes every visible page from the device.
    void updatePages();
    /// Disables or enables the title bar of every page.
    void setTitlesEnabled(bool enabled);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QGridLayout *const m_grid;             // child
    QList<TriggerStopConfigWdg *> m_pages; // children; page 1 first
    Device *m_device = nullptr;            // not owned
};
