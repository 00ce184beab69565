#include "TriggerStopConfigWdg.h"

#include "parampage/DeviceAccess.h"
#include "parampage/KeyboardFocus.h"
#include "parampage/ParamPageWidgetItem.h"

#include <VyCommonGUI/VyMultiCheckTitleWidget.h>
#include <VyViewerCore/CoreEvent.h>

#include <QEvent>

#include <algorithm>

using namespace VyViewer;

namespace {

using Source = CommandSource;
enum class Role { Plain, Condition, CodeCounting, Format, Command };

struct RowSpec
{
    const char *node; // template: %1 stands for the configuration's number
    const char *label;
    Role role = Role::Plain;
    Source source = Source::TcpServer; // of a format or command row
};

// clang-format off
constexpr RowSpec kRows[] = {
    {"TriggerStopConfig%1Condtion", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Stop Condition"), Role::Condition},
    {"TriggerStopConfig%1FrameCount", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Triggered Frame Count")},
    {"TriggerStopConfig%1Duration", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Trigger Duration(ms)")},
    {"TriggerStopConfig%1DecodeCount", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Decoding Count")},
    {"TriggerStopConfig%1CodeCountEnable", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Code Counting Enable"), Role::CodeCounting},
    {"TriggerStopConfig%1TcpServerPort", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "TCP Port")},
    {"TriggerStopConfig%1TcpServerCMDFuzzyMatching", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Fuzzy Command Matching")},
    {"TriggerStopConfig%1TcpServerCMDFormat", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Command Format"), Role::Format, Source::TcpServer},
    {"TriggerStopConfig%1TcpServerStopCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Stop Trigger Command"), Role::Command, Source::TcpServer},
    {"TriggerStopConfig%1TcpClientServerIp", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Server IP")},
    {"TriggerStopConfig%1TcpClientServerPort", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Server Port")},
    {"TriggerStopConfig%1TcpClientCMDFuzzyMatch", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Fuzzy Command Matching")},
    {"TriggerStopConfig%1TcpClientCMDFormat", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Command Format"), Role::Format, Source::TcpClient},
    {"TriggerStopConfig%1TcpClientStopCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Stop Trigger Command"), Role::Command, Source::TcpClient},
    {"TriggerStopConfig%1UdpPort", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "UDP Port")},
    {"TriggerStopConfig%1UdpCMDFuzzyMatch", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Fuzzy Command Matching")},
    {"TriggerStopConfig%1UdpCMDFormat", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Command Format"), Role::Format, Source::Udp},
    {"TriggerStopConfig%1UdpStopCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Stop Trigger Command"), Role::Command, Source::Udp},
    {"TriggerStopConfig%1SerialPortBaudrate", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Baud Rate")},
    {"TriggerStopConfig%1SerialPortFlowcontrol", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Flow Control")},
    {"TriggerStopConfig%1SerialPortStopbit", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Stop Bit")},
    {"TriggerStopConfig%1SerialPortParitybit", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Parity Bit")},
    {"TriggerStopConfig%1SerialPortDatabit", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Data Bit")},
    {"TriggerStopConfig%1SerialPortCMDFuzzyMatch", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Fuzzy Command Matching")},
    {"TriggerStopConfig%1SerialPortCMDFormat", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Command Format"), Role::Format, Source::SerialPort},
    {"TriggerStopConfig%1SerialPortStopCMD", QT_TRANSLATE_NOOP("ParamPageWidgetItem", "Stop Trigger Command"), Role::Command, Source::SerialPort},
};
// clang-format on

} // namespace

TriggerStopConfigWdg::TriggerStopConfigWdg(int number, Device *device, QWidget *parent)
    : ParamPageWidget(device, parent)
    , m_number(number)
    , m_formats(this)
{
    subscribe();
    buildTitle();
    buildRows();
    showTitle();
}

TriggerStopConfigWdg::~TriggerStopConfigWdg() = default;

QString TriggerStopConfigWdg::enableNode(int number)
{
    return QStringLiteral("TriggerStopConfig%1Enable").arg(number);
}

void TriggerStopConfigWdg::setTitleEnabled(bool enabled)
{
    m_title->setEnabled(enabled);
}

void TriggerStopConfigWdg::updateTcpserverCMDFormat()
{
    updateCMDFormat(Source::TcpServer);
}

void TriggerStopConfigWdg::updateTcpclientCMDFormat()
{
    updateCMDFormat(Source::TcpClient);
}

void TriggerStopConfigWdg::updateUdpCMDFormat()
{
    updateCMDFormat(Source::Udp);
}

void TriggerStopConfigWdg::updateSerialportCMDFormat()
{
    updateCMDFormat(Source::SerialPort);
}

void TriggerStopConfigWdg::postStopConditionEvent(CoreEvent *event)
{
    DeviceEvents::postUnheard(event, DeviceEvents::payload(device()));
}

void TriggerStopConfigWdg::postDecodeCountEnableEvent()
{
    DeviceEvents::post(QStringLiteral("TriggerStopDecodeCountEnable"), DeviceEvents::payload(device()));
}

void TriggerStopConfigWdg::deleteStopConfig()
{
    DeviceAccess::service()->setParamBool(device(), enableNode(m_number), false);
    // This page hears it too: its own condition row is refreshed like everybody's.
    DeviceEvents::post(m_conditionSubscription->getEventName(), DeviceEvents::payload(device()));
    // The next tab stop would be the next page's delete button: Space pressed twice would delete two pages.
    const QPointer<QWidget> focused = KeyboardFocus::giveUp(this);
    if (focused && !focusPageAbove()) {
        KeyboardFocus::giveBack(focused);
    }
    KeyboardFocus::hideQuietly(this); // an editor that loses the focus must not write to what is now off
}

void TriggerStopConfigWdg::showEvent(QShowEvent *event)
{
    ParamPageWidget::showEvent(event);
    for (const Source source : CommandFormats::kSources) {
        if (m_formats.isShown(source)) {
            updateCMDFormat(source);
        }
    }
}

void TriggerStopConfigWdg::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
}

void TriggerStopConfigWdg::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        showTitle();
        retranslate();
    }
    QWidget::changeEvent(event);
}

void TriggerStopConfigWdg::onTriggerStopConditionEvent(QVariantMap payload)
{
    if (DeviceEvents::concern(payload, device())) {
        m_conditionRow->refresh();
    }
}

void TriggerStopConfigWdg::onTcpserverCMDFormatEvent(QVariantMap payload)
{
    onCMDFormatEvent(Source::TcpServer, payload);
}

void TriggerStopConfigWdg::onTcpclientCMDFormatEvent(QVariantMap payload)
{
    onCMDFormatEvent(Source::TcpClient, payload);
}

void TriggerStopConfigWdg::onUdpCMDFormatEvent(QVariantMap payload)
{
    onCMDFormatEvent(Source::Udp, payload);
}

void TriggerStopConfigWdg::onSerialportCMDFormatEvent(QVariantMap payload)
{
    onCMDFormatEvent(Source::SerialPort, payload);
}

void TriggerStopConfigWdg::onTriggerSourceEvent(QVariantMap payload)
{
    if (DeviceEvents::concern(payload, device())) {
        updateWidget();
    }
}

void TriggerStopConfigWdg::subscribe()
{
    m_conditionSubscription = m_events.subscribe(QStringLiteral("TriggerStopConditionEvent"));
    connect(m_conditionSubscription, &CoreEvent::triggered, this, &TriggerStopConfigWdg::onTriggerStopConditionEvent);
    m_formats.subscribe<TriggerStopConfigWdg>(m_events, this,
                                              {&TriggerStopConfigWdg::onTcpserverCMDFormatEvent,
                                               &TriggerStopConfigWdg::onTcpclientCMDFormatEvent,
                                               &TriggerStopConfigWdg::onUdpCMDFormatEvent,
                                               &TriggerStopConfigWdg::onSerialportCMDFormatEvent});
    connect(m_events.subscribe(QStringLiteral("triggerSource")), &CoreEvent::triggered, this,
            &TriggerStopConfigWdg::onTriggerSourceEvent);
}

void TriggerStopConfigWdg::buildTitle()
{
    m_title = new VyMultiCheckTitleWidget(this);
    m_title->setCheckBoxVisible(false);
    m_title->setDeleteButtonVisible(m_number != 1); // the first configuration is always on
    // Unique like every connection to the kit's title; a no-op for a function object, which is made only once.
    connect(
        m_title, &VyMultiCheckTitleWidget::deleteButtonClicked, this, [this] { deleteStopConfig(); },
        Qt::UniqueConnection); // clazy:exclude=lambda-unique-connection
    addItem(m_title);
}

void TriggerStopConfigWdg::buildRows()
{
    for (const RowSpec &entry : kRows) {
        auto *const row =
            new ParamPageWidgetItem(device(), QString::fromLatin1(entry.label), nodeName(entry.node), this);
        // First, so that all rows are refreshed when the handlers below run.
        addItem(row);
        const Source source = entry.source;
        switch (entry.role) {
        case Role::Condition:
            m_conditionRow = row;
            connect(row, &ParamPageWidgetItem::valueChanged, this,
                    [this] { postStopConditionEvent(m_conditionSubscription); });
            break;
        case Role::CodeCounting:
            connect(row, &ParamPageWidgetItem::valueChanged, this, [this] { postDecodeCountEnableEvent(); });
            break;
        case Role::Format:
            connect(row, &ParamPageWidgetItem::valueChanged, this, [this, source] { updateCMDFormat(source); });
            break;
        case Role::Command:
            m_formats.addRow(source, row);
            break;
        case Role::Plain:
            break;
        }
    }
}

/// Moves the focus to the condition of the nearest page that is shown above. Returns whether there is one.
bool TriggerStopConfigWdg::focusPageAbove()
{
    const auto pages = parent()->findChildren<TriggerStopConfigWdg *>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(pages.crend() - (m_number - 1), pages.crend(),
                       [](const TriggerStopConfigWdg *page) { return page->m_conditionRow->takeFocus(); });
}

void TriggerStopConfigWdg::showTitle()
{
    const QString title = tr("Config ") + QString::number(m_number);
    m_title->setText(title);
    const auto rows = findChildren<ParamPageWidgetItem *>();
    for (ParamPageWidgetItem *row : rows) {
        row->setSection(title);
    }
}

QString TriggerStopConfigWdg::nodeName(const char *nodeTemplate) const
{
    return QString::fromLatin1(nodeTemplate).arg(m_number);
}

void TriggerStopConfigWdg::updateCMDFormat(CommandSource source)
{
    const auto *const own = std::find_if(std::begin(kRows), std::end(kRows), [source](const RowSpec &entry) {
        return entry.role == Role::Format && entry.source == source;
    });
    QString node = nodeName(own->node);
    const RuvoNodeAccessMode mode = DeviceAccess::service()->getNodeAccessMode(device(), node);
    if (mode == RuvoNodeNotImplemented || mode == RuvoNodeNotAvailable) {
        node = CommandFormats::triggerFormatNode(source); // one format for starting and stopping
    }
    m_formats.apply(source, device(), node);
}

void TriggerStopConfigWdg::onCMDFormatEvent(CommandSource source, const QVariantMap &payload)
{
    if (DeviceEvents::concern(payload, device())) {
        m_formats.refreshRows(source);
        updateCMDFormat(source);
    }
}
