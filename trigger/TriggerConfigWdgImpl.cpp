#include "TriggerConfigWdgImpl.h"

#include "parampage/DeviceAccess.h"
#include "parampage/ParamPageWidgetItem.h"

#include <VyCommonGUI/VyMultiCheckTitleWidget.h>
#include <VyViewerCore/CoreEvent.h>

#include <QEvent>

using namespace VyViewer;

namespace {

constexpr char kModeNode[] = "InputTriggerMode";
constexpr char kSourceNode[] = "InputTriggerSource";

using Source = CommandSource;
enum class Role { Plain, Title, TriggerMode, TriggerSource, Format, Command };

struct RowSpec
{
    const char *node; // of a section title: the trigger source that shows it
    const char *label;
    Role role = Role::Plain;
    Source source = Source::TcpServer; // of a format or command row
};

// clang-format off
constexpr RowSpec kRows[] = {
    {"InputTriggerMode", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Trigger Mode"), Role::TriggerMode},
    {"InputTriggerSource", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Trigger Source"), Role::TriggerSource},
    {"InputSoftwareTrigger", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Software Trigger")},
    {"InputTriggerDelay", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Trigger Delay(ms)")},
    {"InputIOTriggerFollow", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Follow IO level signal")},
    {"InputTriggerCache", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Trigger Cache")},
    {"InputKeyTrigger", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Key Trigger")},
    {"TcpServer", QT_TRANSLATE_NOOP("TriggerConfigWdgImpl", "TCP Server"), Role::Title},
    {"TriggerTcpServerPort", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "TCP Port")},
    {"TriggerTcpServerCMDFuzzyMatching", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Fuzzy Command Matching")},
    {"TriggerTcpServerCMDFormat", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Command Format"), Role::Format, Source::TcpServer},
    {"TriggerTcpServerStartCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Start Trigger Command"), Role::Command, Source::TcpServer},
    {"TriggerTcpServerStorageImageCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "FTP Save Image Command"), Role::Command, Source::TcpServer},
    {"AutoTrigger", QT_TRANSLATE_NOOP("TriggerConfigWdgImpl", "Auto Trigger"), Role::Title},
    {"TriggerAutoInterval", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Auto Trigger Interval(ms)")},
    {"SensingTrigger", QT_TRANSLATE_NOOP("TriggerConfigWdgImpl", "Sensing Trigger"), Role::Title},
    {"TriggerSensingSensitivity", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Sensing Sensitivity")},
    {"TriggerSensingWaitPeriod", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Sensing Wait Period(ms)")},
    {"TcpClient", QT_TRANSLATE_NOOP("TriggerConfigWdgImpl", "TCP Client"), Role::Title},
    {"TriggerTcpClientServerIp", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Server IP")},
    {"TriggerTcpClientServerPort", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Server Port")},
    {"TriggerTcpClientCMDFuzzyMatch", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Fuzzy Command Matching")},
    {"TriggerTcpClientCMDFormat", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Command Format"), Role::Format, Source::TcpClient},
    {"TriggerTcpClientStartCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Start Trigger Command"), Role::Command, Source::TcpClient},
    {"TriggerTcpClientHeartbeatEnable", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Heartbeat Enable")},
    {"TriggerTcpClientHeartbeatCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Heartbeat Command"), Role::Command, Source::TcpClient},
    {"TriggerTcpClientHeartbeatInterval", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Heartbeat Interval(ms)")},
    {"Udp", QT_TRANSLATE_NOOP("TriggerConfigWdgImpl", "UDP"), Role::Title},
    {"TriggerUdpPort", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "UDP Port")},
    {"TriggerUdpCMDFuzzyMatch", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Fuzzy Command Matching")},
    {"TriggerUdpCMDFormat", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Command Format"), Role::Format, Source::Udp},
    {"TriggerUdpStartCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Start Trigger Command"), Role::Command, Source::Udp},
    {"RS-232", QT_TRANSLATE_NOOP("TriggerConfigWdgImpl", "RS-232"), Role::Title},
    {"TriggerSerialPortBaudrate", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Baud Rate")},
    {"TriggerSerialPortFlowcontrol", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Flow Control")},
    {"TriggerSerialPortStopbit", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Stop Bit")},
    {"TriggerSerialPortParitybit", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Parity Bit")},
    {"TriggerSerialPortDatabit", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Data Bit")},
    {"TriggerSerialPortCMDFuzzyMatch", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Fuzzy Command Matching")},
    {"TriggerSerialPortCMDFormat", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Command Format"), Role::Format, Source::SerialPort},
    {"TriggerSerialPortStartCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Start Trigger Command"), Role::Command, Source::SerialPort},
};
// clang-format on

} // namespace

TriggerConfigWdgImpl::TriggerConfigWdgImpl(Device *device, QWidget *parent)
    : ParamPageWidget(device, parent)
    , m_formats(this)
{
    // Before the rows, whose handlers post under these names.
    subscribe();
    buildRows();
    translateTitles();
}

TriggerConfigWdgImpl::~TriggerConfigWdgImpl() = default;

void TriggerConfigWdgImpl::updateSourceTitles()
{
    m_mode = DeviceAccess::currentEntry(device(), QLatin1String(kModeNode));
    if (m_mode != QLatin1String("None")) {
        m_source = DeviceAccess::currentEntry(device(), QLatin1String(kSourceNode));
    }
    for (const Title &title : qAsConst(m_titles)) {
        title.widget->setVisible(m_mode != QLatin1String("None") && m_source == QLatin1String(title.source));
    }
}

void TriggerConfigWdgImpl::updateTcpserverCMDFormat()
{
    updateCMDFormat(Source::TcpServer);
}

void TriggerConfigWdgImpl::updateTcpclientCMDFormat()
{
    updateCMDFormat(Source::TcpClient);
}

void TriggerConfigWdgImpl::updateUdpCMDFormat()
{
    updateCMDFormat(Source::Udp);
}

void TriggerConfigWdgImpl::updateSerialportCMDFormat()
{
    updateCMDFormat(Source::SerialPort);
}

void TriggerConfigWdgImpl::postCMDFormatEvent(CoreEvent *event)
{
    DeviceEvents::postUnheard(event, DeviceEvents::payload(device()));
}

void TriggerConfigWdgImpl::showEvent(QShowEvent *event)
{
    ParamPageWidget::showEvent(event);
    updateSourceTitles();
    for (const Source source : CommandFormats::kSources) {
        if (m_formats.isShown(source)) {
            updateCMDFormat(source);
        }
    }
}

void TriggerConfigWdgImpl::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
}

void TriggerConfigWdgImpl::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        translateTitles();
        retranslate();
    }
    QWidget::changeEvent(event);
}

void TriggerConfigWdgImpl::onTriggerModeChange()
{
    m_mode = DeviceAccess::currentEntry(device(), QLatin1String(kModeNode));
    Q_EMIT triggerModeHoldRefresh(m_mode == QLatin1String("Hold"));

    QVariantMap payload = DeviceEvents::payload(device());
    payload.insert(QStringLiteral("TriggerMode"),
                   m_mode == QLatin1String("None") ? QStringLiteral("Off") : QStringLiteral("On"));
    payload.insert(QStringLiteral("TriggerConfigWdgImpl"), QVariant()); // the key alone marks the sender
    DeviceEvents::post(QStringLiteral("DeviceParamChanged"), payload);

    updateSourceTitles();
}

void TriggerConfigWdgImpl::onTriggerSourceChange()
{
    updateSourceTitles();
    DeviceEvents::post(m_sourceSubscription->getEventName(), DeviceEvents::payload(device()));
}

void TriggerConfigWdgImpl::onTcpserverCMDFormatEvent(QVariantMap payload)
{
    refreshCommands(Source::TcpServer, payload);
}

void TriggerConfigWdgImpl::onTcpclientCMDFormatEvent(QVariantMap payload)
{
    refreshCommands(Source::TcpClient, payload);
}

void TriggerConfigWdgImpl::onUdpCMDFormatEvent(QVariantMap payload)
{
    refreshCommands(Source::Udp, payload);
}

void TriggerConfigWdgImpl::onSerialportCMDFormatEvent(QVariantMap payload)
{
    refreshCommands(Source::SerialPort, payload);
}

void TriggerConfigWdgImpl::subscribe()
{
    // What the trigger page announces under these two names is for others to hear.
    m_events.subscribe(QStringLiteral("DeviceParamChanged"));
    m_sourceSubscription = m_events.subscribe(QStringLiteral("triggerSource"));
    m_formats.subscribe<TriggerConfigWdgImpl>(m_events, this,
                                              {&TriggerConfigWdgImpl::onTcpserverCMDFormatEvent,
                                               &TriggerConfigWdgImpl::onTcpclientCMDFormatEvent,
                                               &TriggerConfigWdgImpl::onUdpCMDFormatEvent,
                                               &TriggerConfigWdgImpl::onSerialportCMDFormatEvent});
}

void TriggerConfigWdgImpl::buildRows()
{
    for (const RowSpec &entry : kRows) {
        if (entry.role == Role::Title) {
            addTitle(entry.node, entry.label);
            continue;
        }
        auto *const row =
            new ParamPageWidgetItem(device(), QString::fromLatin1(entry.label), QString::fromLatin1(entry.node), this);
        // First, so that all rows are refreshed when the handlers below run.
        addItem(row);
        if (!m_titles.isEmpty()) {
            m_titles.last().rows.append(row);
        }
        const Source source = entry.source;
        switch (entry.role) {
        case Role::TriggerMode:
            connect(row, &ParamPageWidgetItem::valueChanged, this, &TriggerConfigWdgImpl::onTriggerModeChange);
            break;
        case Role::TriggerSource:
            connect(row, &ParamPageWidgetItem::valueChanged, this, &TriggerConfigWdgImpl::onTriggerSourceChange);
            break;
        case Role::Format:
            connect(row, &ParamPageWidgetItem::valueChanged, this, [this, source] {
                updateCMDFormat(source);
                postCMDFormatEvent(m_formats.subscription(source));
            });
            break;
        case Role::Command:
            m_formats.addRow(source, row);
            break;
        case Role::Plain:
        case Role::Title:
            break;
        }
    }
}

void TriggerConfigWdgImpl::addTitle(const char *source, const char *text)
{
    auto *const title = new VyMultiCheckTitleWidget(this);
    title->setCheckBoxVisible(false);
    title->setDeleteButtonVisible(false);
    addItem(title);
    title->hide();
    m_titles.append({source, text, title, {}});
}

void TriggerConfigWdgImpl::translateTitles()
{
    for (const Title &title : qAsConst(m_titles)) {
        const QString text = tr(title.text);
        title.widget->setText(text);
        for (ParamPageWidgetItem *row : title.rows) {
            row->setSection(text);
        }
    }
}

void TriggerConfigWdgImpl::updateCMDFormat(CommandSource source)
{
    m_formats.apply(source, device(), CommandFormats::triggerFormatNode(source));
}

void TriggerConfigWdgImpl::refreshCommands(CommandSource source, const QVariantMap &payload)
{
    if (DeviceEvents::concern(payload, device())) {
        m_formats.refreshRows(source);
    }
}
