#pragma once

#include "parampage/CommandFormats.h"
#include "parampage/DeviceEvents.h"
#include "parampage/ParamPageWidget.h"

#include <QVariantMap>

namespace VyViewer {
class VyMultiCheckTitleWidget;
}

/// The page of one stop configuration: under which condition, or at which command, a running trigger ends.
///
/// Which rows appear is decided by the device, row by row. The page follows the events by which the trigger
/// page, the other stop pages and the container tell that what it shows may have changed.
class TriggerStopConfigWdg : public ParamPageWidget
{
    Q_OBJECT
public:
    /// `number`, 1 to 5, stands in every node name of the configuration. Reads nothing before it is shown. The
    /// device is not owned.
    TriggerStopConfigWdg(int number, Device *device, QWidget *parent);
    ~TriggerStopConfigWdg() override;

    /// The switch of a configuration.
    static QString enableNode(int number);

    /// Disables the title bar and with it the delete button; the rows are not touched.
    void setTitleEnabled(bool enabled);
    void updateTcpserverCMDFormat();
    void updateTcpclientCMDFormat();
    void updateUdpCMDFormat();
    void updateSerialportCMDFormat();
    /// Tells the other pages under the name of the page's own subscription, which stays silent.
    void postStopConditionEvent(VyViewer::CoreEvent *event);
    void postDecodeCountEnableEvent();
    /// Switches the configuration off in the device and hides the page.
    void deleteStopConfig();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onTriggerStopConditionEvent(QVariantMap payload);
    void onTcpserverCMDFormatEvent(QVariantMap payload);
    void onTcpclientCMDFormatEvent(QVariantMap payload);
    void onUdpCMDFormatEvent(QVariantMap payload);
    void onSerialportCMDFormatEvent(QVariantMap payload);
    void onTriggerSourceEvent(QVariantMap payload);

private:
    void subscribe();
    void buildTitle();
    void buildRows();
    void showTitle();
    bool focusPageAbove();
    QString nodeName(const char *nodeTemplate) const;
    void updateCMDFormat(CommandSource source);
    void onCMDFormatEvent(CommandSource source, const QVariantMap &payload);

    ParamPageWidgetItem *m_conditionRow = nullptr;        // child
    VyViewer::VyMultiCheckTitleWidget *m_title = nullptr; // child
    const int m_number;
    CommandFormats m_formats;
    DeviceEvents m_events;
    VyViewer::CoreEvent *m_conditionSubscription = nullptr; // owned by m_events
};
