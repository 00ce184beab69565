#pragma once

#include <QScopedPointer>
#include <QWidget>

#ifdef VYTRIGGERCONFIGWDG_LIBRARY
#  define VYTRIGGERCONFIGWDG_EXPORT Q_DECL_EXPORT
#else
#  define VYTRIGGERCONFIGWDG_EXPORT Q_DECL_IMPORT
#endif

class Device;
struct VyTriggerConfigWdgPrivate;

/// The trigger configuration panel: edits the trigger settings of one device.
///
/// Create it, bind it with setVyDevice() and show it. Every value is read from the device, by node name,
/// through VyViewer::IDeviceManager, and every edit is written back at once; the panel keeps nothing. It
/// follows and posts events on VyViewer::CoreEventBus. Failures are not reported: the panel shows what the
/// device holds.
///
/// GUI thread only. IDeviceManager::deviceGrabStatusUpdate may be emitted on any thread.
class VYTRIGGERCONFIGWDG_EXPORT VyTriggerConfigWdg : public QWidget
{
    Q_OBJECT
public:
    /// An unbound panel: it shows two empty blocks at most and calls no device.
    explicit VyTriggerConfigWdg(QWidget *parent = nullptr);
    ~VyTriggerConfigWdg() override;

    /// Binds the device to edit; once, best before the panel is first shown. The device is not owned and has to
    /// outlive the panel. A null device, and any call after the first that bound one, changes nothing and is
    /// reported with qWarning().
    void setVyDevice(Device *device);

private:
    const QScopedPointer<VyTriggerConfigWdgPrivate> d;
};
