#include "Nodes.h"

namespace {

constexpr int kStopConfigurations = 5;

struct NodeRow
{
    const char *name; // of a stop configuration: %1 stands for its number
    const char *label;
    RuvoNodeType type;
    const char *source = "";
    const char *entries = "";
};

constexpr NodeRow kTriggerNodes[] = {
    {"InputTriggerMode", "Trigger Mode", RuvoNodeEnumeration, "", "Hold None Once"},
    {"InputTriggerSource", "Trigger Source", RuvoNodeEnumeration, "",
     "TcpServer TcpClient Udp RS-232 AutoTrigger SensingTrigger"},
    {"InputSoftwareTrigger", "Software Trigger", RuvoNodeCommand},
    {"InputTriggerDelay", "Trigger Delay(ms)", RuvoNodeFloat},
    {"InputIOTriggerFollow", "Follow IO level signal", RuvoNodeBoolean},
    {"InputTriggerCache", "Trigger Cache", RuvoNodeBoolean},
    {"InputKeyTrigger", "Key Trigger", RuvoNodeBoolean},
    {"TriggerTcpServerPort", "TCP Port", RuvoNodeInteger, "TcpServer"},
    {"TriggerTcpServerCMDFuzzyMatching", "Fuzzy Command Matching", RuvoNodeBoolean, "TcpServer"},
    {"TriggerTcpServerCMDFormat", "Command Format", RuvoNodeEnumeration, "TcpServer", "String Hex"},
    {"TriggerTcpServerStartCMD", "Start Trigger Command", RuvoNodeString, "TcpServer"},
    {"TriggerTcpServerStorageImageCMD", "FTP Save Image Command", RuvoNodeString, "TcpServer"},
    {"TriggerAutoInterval", "Auto Trigger Interval(ms)", RuvoNodeInteger, "AutoTrigger"},
    {"TriggerSensingSensitivity", "Sensing Sensitivity", RuvoNodeInteger, "SensingTrigger"},
    {"TriggerSensingWaitPeriod", "Sensing Wait Period(ms)", RuvoNodeInteger, "SensingTrigger"},
    {"TriggerTcpClientServerIp", "Server IP", RuvoNodeString, "TcpClient"},
    {"TriggerTcpClientServerPort", "Server Port", RuvoNodeInteger, "TcpClient"},
    {"TriggerTcpClientCMDFuzzyMatch", "Fuzzy Command Matching", RuvoNodeBoolean, "TcpClient"},
    {"TriggerTcpClientCMDFormat", "Command Format", RuvoNodeEnumeration, "TcpClient", "String Hex"},
    {"TriggerTcpClientStartCMD", "Start Trigger Command", RuvoNodeString, "TcpClient"},
    {"TriggerTcpClientHeartbeatEnable", "Heartbeat Enable", RuvoNodeBoolean, "TcpClient"},
    {"TriggerTcpClientHeartbeatCMD", "Heartbeat Command", RuvoNodeString, "TcpClient"},
    {"TriggerTcpClientHeartbeatInterval", "Heartbeat Interval(ms)", RuvoNodeInteger, "TcpClient"},
    {"TriggerUdpPort", "UDP Port", RuvoNodeInteger, "Udp"},
    {"TriggerUdpCMDFuzzyMatch", "Fuzzy Command Matching", RuvoNodeBoolean, "Udp"},
    {"TriggerUdpCMDFormat", "Command Format", RuvoNodeEnumeration, "Udp", "String Hex"},
    {"TriggerUdpStartCMD", "Start Trigger Command", RuvoNodeString, "Udp"},
    {"TriggerSerialPortBaudrate", "Baud Rate", RuvoNodeEnumeration, "RS-232", "9600 19200 38400 57600 115200"},
    {"TriggerSerialPortFlowcontrol", "Flow Control", RuvoNodeEnumeration, "RS-232", "None RtsCts XonXoff"},
    {"TriggerSerialPortStopbit", "Stop Bit", RuvoNodeEnumeration, "RS-232", "1 1.5 2"},
    {"TriggerSerialPortParitybit", "Parity Bit", RuvoNodeEnumeration, "RS-232", "None Odd Even"},
    {"TriggerSerialPortDatabit", "Data Bit", RuvoNodeEnumeration, "RS-232", "7 8"},
    {"TriggerSerialPortCMDFuzzyMatch", "Fuzzy Command Matching", RuvoNodeBoolean, "RS-232"},
    {"TriggerSerialPortCMDFormat", "Command Format", RuvoNodeEnumeration, "RS-232", "String Hex"},
    {"TriggerSerialPortStartCMD", "Start Trigger Command", RuvoNodeString, "RS-232"},
};

constexpr NodeRow kStopNodes[] = {
    {"TriggerStopConfig%1Condtion", "Stop Condition", RuvoNodeEnumeration, "",
     "FrameCount Duration DecodeCount Command"},
    {"TriggerStopConfig%1FrameCount", "Triggered Frame Count", RuvoNodeInteger},
    {"TriggerStopConfig%1Duration", "Trigger Duration(ms)", RuvoNodeInteger},
    {"TriggerStopConfig%1DecodeCount", "Decoding Count", RuvoNodeInteger},
    {"TriggerStopConfig%1CodeCountEnable", "Code Counting Enable", RuvoNodeBoolean},
    {"TriggerStopConfig%1TcpServerPort", "TCP Port", RuvoNodeInteger, "TcpServer"},
    {"TriggerStopConfig%1TcpServerCMDFuzzyMatching", "Fuzzy Command Matching", RuvoNodeBoolean, "TcpServer"},
    {"TriggerStopConfig%1TcpServerCMDFormat", "Command Format", RuvoNodeEnumeration, "TcpServer", "String Hex"},
    {"TriggerStopConfig%1TcpServerStopCMD", "Stop Trigger Command", RuvoNodeString, "TcpServer"},
    {"TriggerStopConfig%1TcpClientServerIp", "Server IP", RuvoNodeString, "TcpClient"},
    {"TriggerStopConfig%1TcpClientServerPort", "Server Port", RuvoNodeInteger, "TcpClient"},
    {"TriggerStopConfig%1TcpClientCMDFuzzyMatch", "Fuzzy Command Matching", RuvoNodeBoolean, "TcpClient"},
    {"TriggerStopConfig%1TcpClientCMDFormat", "Command Format", RuvoNodeEnumeration, "TcpClient", "String Hex"},
    {"TriggerStopConfig%1TcpClientStopCMD", "Stop Trigger Command", RuvoNodeString, "TcpClient"},
    {"TriggerStopConfig%1UdpPort", "UDP Port", RuvoNodeInteger, "Udp"},
    {"TriggerStopConfig%1UdpCMDFuzzyMatch", "Fuzzy Command Matching", RuvoNodeBoolean, "Udp"},
    {"TriggerStopConfig%1UdpCMDFormat", "Command Format", RuvoNodeEnumeration, "Udp", "String Hex"},
    {"TriggerStopConfig%1UdpStopCMD", "Stop Trigger Command", RuvoNodeString, "Udp"},
    {"TriggerStopConfig%1SerialPortBaudrate", "Baud Rate", RuvoNodeEnumeration, "RS-232",
     "9600 19200 38400 57600 115200"},
    {"TriggerStopConfig%1SerialPortFlowcontrol", "Flow Control", RuvoNodeEnumeration, "RS-232", "None RtsCts XonXoff"},
    {"TriggerStopConfig%1SerialPortStopbit", "Stop Bit", RuvoNodeEnumeration, "RS-232", "1 1.5 2"},
    {"TriggerStopConfig%1SerialPortParitybit", "Parity Bit", RuvoNodeEnumeration, "RS-232", "None Odd Even"},
    {"TriggerStopConfig%1SerialPortDatabit", "Data Bit", RuvoNodeEnumeration, "RS-232", "7 8"},
    {"TriggerStopConfig%1SerialPortCMDFuzzyMatch", "Fuzzy Command Matching", RuvoNodeBoolean, "RS-232"},
    {"TriggerStopConfig%1SerialPortCMDFormat", "Command Format", RuvoNodeEnumeration, "RS-232", "String Hex"},
    {"TriggerStopConfig%1SerialPortStopCMD", "Stop Trigger Command", RuvoNodeString, "RS-232"},
};

Node made(const NodeRow &entry, const QString &name)
{
    Node node;
    node.name = name;
    node.label = QString::fromLatin1(entry.label);
    node.type = entry.type;
    node.source = QString::fromLatin1(entry.source);
    node.entries = QString::fromLatin1(entry.entries).split(QLatin1Char(' '));
    node.integer = 3000;
    node.real = 1.5F;
    node.text = entry.type == RuvoNodeEnumeration ? node.entries.constFirst() : QStringLiteral("start");
    return node;
}

void append(Nodes::Page &page)
{
    for (const NodeRow &entry : kTriggerNodes) {
        page.push_back(made(entry, QString::fromLatin1(entry.name)));
    }
}

} // namespace

void Node::change()
{
    if (name == QLatin1String("InputTriggerMode")) {
        return;
    }
    integer = 3000 + (integer + 1) % 100;
    real = integer / 8.0F;
    flag = !flag;
    text = type == RuvoNodeEnumeration ? entries.at((entries.indexOf(text) + 1) % entries.size())
                                       : QStringLiteral("start %1").arg(integer);
}

Nodes Nodes::complete()
{
    Nodes nodes;
    nodes.pages.resize(1 + kStopConfigurations);
    append(nodes.pages.front());
    for (int number = 1; number <= kStopConfigurations; ++number) {
        for (const NodeRow &entry : kStopNodes) {
            nodes.pages[size_t(number)].push_back(made(entry, QString::fromLatin1(entry.name).arg(number)));
        }
    }
    return nodes;
}

Nodes Nodes::onePage(int times)
{
    Nodes nodes;
    nodes.pages.resize(1);
    Page &page = nodes.pages.front();
    for (int time = 0; time < times; ++time) {
        const size_t first = page.size();
        append(page);
        for (size_t i = first; time > 0 && i < page.size(); ++i) {
            page[i].name += QString::number(time);
        }
    }
    return nodes;
}

void Nodes::change()
{
    for (Page &page : pages) {
        for (Node &node : page) {
            node.change();
        }
    }
}

void Nodes::offer(const QString &source)
{
    for (Page &page : pages) {
        for (Node &node : page) {
            node.available = source.isEmpty() || node.source.isEmpty() || node.source == source;
        }
    }
}
