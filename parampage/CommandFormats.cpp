#include "CommandFormats.h"

#include "DeviceAccess.h"
#include "DeviceEvents.h"
#include "ParamPageWidgetItem.h"

using VyViewer::CoreEvent;

namespace {

constexpr int kMaximumBytes = 128; // of a command text

struct SourceSpec
{
    const char *event;
    const char *triggerFormatNode;
};
// In the order of CommandFormats::kSources.
constexpr std::array<SourceSpec, CommandFormats::kSources.size()> kSourceSpecs{{
    {"tcpserverCMDFormatEvent", "TriggerTcpServerCMDFormat"},
    {"tcpclientCMDFormatEvent", "TriggerTcpClientCMDFormat"},
    {"udpCMDFormatEvent", "TriggerUdpCMDFormat"},
    {"serialportCMDFormatEvent", "TriggerSerialPortCMDFormat"},
}};
static_assert(kSourceSpecs.back().event, "every source has a line");

const SourceSpec &specOf(CommandSource source)
{
    return kSourceSpecs.at(static_cast<size_t>(source));
}

} // namespace

CommandFormats::CommandFormats(QObject *page)
    : m_textValidator(kMaximumBytes, nullptr)
    , m_hexValidator(kMaximumBytes, nullptr)
{
    m_textValidator.setParent(page);
    m_hexValidator.setParent(page);
}

QString CommandFormats::triggerFormatNode(CommandSource source)
{
    return QString::fromLatin1(specOf(source).triggerFormatNode);
}

void CommandFormats::addRow(CommandSource source, ParamPageWidgetItem *row)
{
    of(source).rows.append(row);
}

CoreEvent *CommandFormats::subscription(CommandSource source) const
{
    return of(source).subscription;
}

void CommandFormats::apply(CommandSource source, Device *device, const QString &formatNode)
{
    const bool hex = DeviceAccess::currentEntry(device, formatNode) == QLatin1String("Hex");
    QValidator *const validator = hex ? static_cast<QValidator *>(&m_hexValidator) : &m_textValidator;
    for (ParamPageWidgetItem *row : qAsConst(of(source).rows)) {
        row->setValidator(validator);
    }
}

bool CommandFormats::isShown(CommandSource source) const
{
    return of(source).rows.constFirst()->isVisible();
}

void CommandFormats::refreshRows(CommandSource source)
{
    for (ParamPageWidgetItem *row : qAsConst(of(source).rows)) {
        row->refresh();
    }
}

void CommandFormats::createSubscriptions(DeviceEvents &events)
{
    for (const CommandSource source : kSources) {
        of(source).subscription = events.subscribe(QString::fromLatin1(specOf(source).event));
    }
}

CommandFormats::Commands &CommandFormats::of(CommandSource source)
{
    return m_commands.at(static_cast<size_t>(source));
}

const CommandFormats::Commands &CommandFormats::of(CommandSource source) const
{
    return m_commands.at(static_cast<size_t>(source));
}
