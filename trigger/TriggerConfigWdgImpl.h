#pragma once

#include "parampage/CommandFormats.h"
#include "parampage/DeviceEvents.h"
#include "parampage/ParamPageWidget.h"

#include <QVariantMap>
#include <QVector>

class ParamPageWidgetItem;

namespace VyViewer {
class VyMultiCheckTitleWidget;
}

/// The page of the "Trigger Config" block: trigger mode and source and the settings of every source.
///
/// Which rows appear is decided by the device, row by row. The page shows the section title of the current
/// source, gives the command rows the validator of their format, and tells the rest of the host when mode,
/// source or a format has changed.
class TriggerConfigWdgImpl : public ParamPageWidget
{
    Q_OBJECT
public:
    /// Reads nothing before it is shown. The device is not owned.
    TriggerConfigWdgImpl(Device *device, QWidget *parent);
    ~TriggerConfigWdgImpl() override;

    /// Shows the title of the current source and hides the others.
    void updateSourceTitles();
    void updateTcpserverCMDFormat();
    void updateTcpclientCMDFormat();
    void updateUdpCMDFormat();
    void updateSerialportCMDFormat();
    /// Announces a format change under the name of one of the page's own subscriptions, which stays silent.
    void postCMDFormatEvent(VyViewer::CoreEvent *event);

Q_SIGNALS:
    /// The user changed the trigger mode; `en` is true exactly when it now is "Hold".
    void triggerModeHoldRefresh(bool en);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onTriggerModeChange();
    void onTriggerSourceChange();
    void onTcpserverCMDFormatEvent(QVariantMap payload);
    void onTcpclientCMDFormatEvent(QVariantMap payload);
    void onUdpCMDFormatEvent(QVariantMap payload);
    void onSerialportCMDFormatEvent(QVariantMap payload);

private:
    struct Title
    {
        const char *source;                        // the trigger source that shows the title
        const char *text;                          // untranslated
        VyViewer::VyMultiCheckTitleWidget *widget; // child
        QVector<ParamPageWidgetItem *> rows;       // children, below it
    };

    void buildRows();
    void addTitle(const char *source, const char *text);
    void translateTitles();
    void subscribe();
    void updateCMDFormat(CommandSource source);
    void refreshCommands(CommandSource source, const QVariantMap &payload);

    QVector<Title> m_titles;
    // As answered last: an event within a read brings newer answers than those of the pass that is reading.
    QString m_mode;
    QString m_source;
    CommandFormats m_formats;
    DeviceEvents m_events;
    VyViewer::CoreEvent *m_sourceSubscription = nullptr; // owned by m_events
};
