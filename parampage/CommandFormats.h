#pragma once

#include "ByteLengthValidator.h"
#include "HexValidator.h"

#include <VyViewerCore/CoreEvent.h>

#include <QObject>
#include <QString>
#include <QVector>

#include <array>

class Device;
class DeviceEvents;
class ParamPageWidgetItem;

/// The sources that trigger by a command text. Each has a format node that says how its commands are typed.
enum class CommandSource { TcpServer, TcpClient, Udp, SerialPort };

/// The command rows of one page, by source, and the rule that governs what can be typed into them: a format of
/// exactly "Hex" admits hexadecimal digits only, any other format every text; both at most 128 bytes of UTF-8.
/// Also the page's subscriptions to the events that announce a change of a trigger command's format.
class CommandFormats
{
public:
    static constexpr std::array<CommandSource, 4> kSources{CommandSource::TcpServer, CommandSource::TcpClient,
                                                           CommandSource::Udp, CommandSource::SerialPort};
    template <typename Page>
    using Handlers = std::array<void (Page::*)(QVariantMap), kSources.size()>;

    /// The page becomes the validators' parent; it also has to own this object.
    explicit CommandFormats(QObject *page);

    /// The node with the format of the commands that start a trigger.
    static QString triggerFormatNode(CommandSource source);

    /// The first row added decides whether the source is shown.
    void addRow(CommandSource source, ParamPageWidgetItem *row);
    /// Subscribes to every source's event and has each delivered to its handler, given in the order of kSources.
    template <typename Page>
    void subscribe(DeviceEvents &events, Page *page, const Handlers<Page> &handlers);
    /// The page's own subscription to the source's event.
    VyViewer::CoreEvent *subscription(CommandSource source) const;

    /// Reads the format node and gives the source's rows the validator it calls for.
    void apply(CommandSource source, Device *device, const QString &formatNode);
    /// Whether the source's first row is on screen.
    bool isShown(CommandSource source) const;
    void refreshRows(CommandSource source);

private:
    struct Commands
    {
        QVector<ParamPageWidgetItem *> rows;         // not owned
        VyViewer::CoreEvent *subscription = nullptr; // not owned
    };

    void createSubscriptions(DeviceEvents &events);
    Commands &of(CommandSource source);
    const Commands &of(CommandSource source) const;

    std::array<Commands, kSources.size()> m_commands;
    ByteLengthValidator m_textValidator;
    HexValidator m_hexValidator;
};

template <typename Page>
void CommandFormats::subscribe(DeviceEvents &events, Page *page, const Handlers<Page> &handlers)
{
    createSubscriptions(events);
    for (const CommandSource source : kSources) {
        QObject::connect(subscription(source), &VyViewer::CoreEvent::triggered, page,
                         handlers.at(static_cast<size_t>(source)));
    }
}
