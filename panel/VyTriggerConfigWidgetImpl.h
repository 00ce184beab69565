#pragma once

#include "parampage/DeviceEvents.h"

#include <VyViewerCore/IDeviceManager.h>

#include <QVariantMap>
#include <QWidget>

#include <memory>

class TriggerConfigWdgImpl;
class TriggerStopConfigContainerWdg;
class Ui_VyTriggerConfigWidgetImpl;
namespace VyViewer {
class VyBlockWidget;
}

/// The panel behind the facade: a white scrolling area with the "Trigger Config" block and, only while the
/// trigger mode is "Hold", the "Trigger Stop Config" block.
///
/// Locks what must not be changed while the device acquires images, and re-reads everything when the host says
/// that a user set was loaded or that the trigger mode was changed elsewhere.
class VyTriggerConfigWidgetImpl : public QWidget
{
    Q_OBJECT
public:
    explicit VyTriggerConfigWidgetImpl(QWidget *parent);
    ~VyTriggerConfigWidgetImpl() override;

    /// Builds the pages; reads nothing. See VyTriggerConfigWdg::setVyDevice().
    void setVyDevice(Device *device);

public Q_SLOTS:
    /// Shows or hides the stop block.
    void holdTriggerRefresh(bool en);
    void onUpdateDeviceGrabStatus(IDevice dev, int status);
    void onChangeProj(QVariantMap payload);
    void onDeviceParamChanged(QVariantMap payload);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildBlocks();
    void orderTabStops();
    void reshow();

    const std::unique_ptr<Ui_VyTriggerConfigWidgetImpl> m_ui;
    VyViewer::VyBlockWidget *m_triggerBlock = nullptr;        // child
    TriggerConfigWdgImpl *m_triggerPage = nullptr;            // child, built when a device is bound
    VyViewer::VyBlockWidget *m_stopBlock = nullptr;           // child
    TriggerStopConfigContainerWdg *m_stopContainer = nullptr; // child
    Device *m_device = nullptr;                               // not owned
    DeviceEvents m_events;
};
