<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Trigger Viewer</source>
        <translation>Trigger-Viewer</translation>
    </message>
    <message>
        <source>%1 – Trigger Viewer</source>
        <translation>%1 – Trigger-Viewer</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Kamera</translation>
    </message>
    <message>
        <source>&amp;Start acquisition</source>
        <translation>Aufnahme &amp;starten</translation>
    </message>
    <message>
        <source>S&amp;top acquisition</source>
        <translation>Aufnahme s&amp;toppen</translation>
    </message>
    <message>
        <source>&amp;Load user set</source>
        <translation>User-Set &amp;laden</translation>
    </message>
    <message>
        <source>Trigger &amp;mode</source>
        <translation>Trigger-&amp;Modus</translation>
    </message>
    <message>
        <source>Change the trigger mode outside the panel</source>
        <translation>Den Trigger-Modus außerhalb des Panels ändern</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>%1 %2 – %3</source>
        <translation>%1 %2 – %3</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>Start acquisition</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <source>Stop acquisition</source>
        <translation>Aufnahme stoppen</translation>
    </message>
    <message>
        <source>Load user set %1</source>
        <translation>User-Set %1 laden</translation>
    </message>
    <message>
        <source>Trigger mode %1</source>
        <translation>Trigger-Modus %1</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: erledigt</translation>
    </message>
    <message>
        <source>%1: refused by the device (status %2)</source>
        <translation>%1: vom Gerät abgelehnt (Status %2)</translation>
    </message>
</context>
<context>
    <name>ParamPageWidgetItem</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Halten</translation>
    </message>
    <message>
        <source>SoftwareTrigger</source>
        <translation>Software-Trigger</translation>
    </message>
    <message>
        <source>IOTrigger</source>
        <translation>I/O-Trigger</translation>
    </message>
    <message>
        <source>TcpServer</source>
        <translation>TCP-Server</translation>
    </message>
    <message>
        <source>TcpClient</source>
        <translation>TCP-Client</translation>
    </message>
    <message>
        <source>Udp</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
    <message>
        <source>AutoTrigger</source>
        <translation>Auto-Trigger</translation>
    </message>
    <message>
        <source>SensingTrigger</source>
        <translation>Sensor-Trigger</translation>
    </message>
    <message>
        <source>Master-Slave</source>
        <translation>Master-Slave</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Trigger Mode</source>
        <translation>Trigger-Modus</translation>
    </message>
    <message>
        <source>Trigger Source</source>
        <translation>Trigger-Quelle</translation>
    </message>
    <message>
        <source>Software Trigger</source>
        <translation>Software-Trigger</translation>
    </message>
    <message>
        <source>Trigger Delay(ms)</source>
        <translation>Trigger-Verzögerung (ms)</translation>
    </message>
    <message>
        <source>Follow IO level signal</source>
        <translation>I/O-Pegel folgen</translation>
    </message>
    <message>
        <source>Trigger Cache</source>
        <translation>Trigger-Puffer</translation>
    </message>
    <message>
        <source>Key Trigger</source>
        <translation>Tasten-Trigger</translation>
    </message>
    <message>
        <source>TCP Port</source>
        <translation>TCP-Port</translation>
    </message>
    <message>
        <source>Fuzzy Command Matching</source>
        <translation>Unscharfer Befehlsvergleich</translation>
    </message>
    <message>
        <source>Command Format</source>
        <translation>Befehlsformat</translation>
    </message>
    <message>
        <source>Start Trigger Command</source>
        <translation>Befehl Trigger-Start</translation>
    </message>
    <message>
        <source>FTP Save Image Command</source>
        <translation>Befehl FTP-Bildspeicherung</translation>
    </message>
    <message>
        <source>Auto Trigger Interval(ms)</source>
        <translation>Auto-Trigger-Intervall (ms)</translation>
    </message>
    <message>
        <source>Sensing Sensitivity</source>
        <translation>Empfindlichkeit</translation>
    </message>
    <message>
        <source>Sensing Wait Period(ms)</source>
        <translation>Wartezeit (ms)</translation>
    </message>
    <message>
        <source>Server IP</source>
        <translation>Server-IP</translation>
    </message>
    <message>
        <source>Server Port</source>
        <translation>Server-Port</translation>
    </message>
    <message>
        <source>Heartbeat Enable</source>
        <translation>Heartbeat aktiv</translation>
    </message>
    <message>
        <source>Heartbeat Command</source>
        <translation>Heartbeat-Befehl</translation>
    </message>
    <message>
        <source>Heartbeat Interval(ms)</source>
        <translation>Heartbeat-Intervall (ms)</translation>
    </message>
    <message>
        <source>UDP Port</source>
        <translation>UDP-Port</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>Flow Control</source>
        <translation>Flusskontrolle</translation>
    </message>
    <message>
        <source>Stop Bit</source>
        <translation>Stoppbits</translation>
    </message>
    <message>
        <source>Parity Bit</source>
        <translation>Parität</translation>
    </message>
    <message>
        <source>Data Bit</source>
        <translation>Datenbits</translation>
    </message>
    <message>
        <source>Stop Condition</source>
        <translation>Stoppbedingung</translation>
    </message>
    <message>
        <source>Triggered Frame Count</source>
        <translation>Anzahl Bilder</translation>
    </message>
    <message>
        <source>Trigger Duration(ms)</source>
        <translation>Trigger-Dauer (ms)</translation>
    </message>
    <message>
        <source>Decoding Count</source>
        <translation>Anzahl Codes</translation>
    </message>
    <message>
        <source>Code Counting Enable</source>
        <translation>Codezählung aktiv</translation>
    </message>
    <message>
        <source>Stop Trigger Command</source>
        <translation>Befehl Trigger-Stopp</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>FrameCount</source>
        <translation>Bildanzahl</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>DecodeCount</source>
        <translation>Anzahl Codes</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Ungerade</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>RtsCts</source>
        <translation>RTS/CTS</translation>
    </message>
    <message>
        <source>XonXoff</source>
        <translation>XON/XOFF</translation>
    </message>
</context>
<context>
    <name>TriggerConfigWdgImpl</name>
    <message>
        <source>TCP Server</source>
        <translation>TCP-Server</translation>
    </message>
    <message>
        <source>Auto Trigger</source>
        <translation>Auto-Trigger</translation>
    </message>
    <message>
        <source>Sensing Trigger</source>
        <translation>Sensor-Trigger</translation>
    </message>
    <message>
        <source>TCP Client</source>
        <translation>TCP-Client</translation>
    </message>
    <message>
        <source>UDP</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
</context>
<context>
    <name>TriggerStopConfigWdg</name>
    <message>
        <source>Config </source>
        <translation>Konfiguration </translation>
    </message>
</context>
<context>
    <name>VyTriggerConfigWidgetImpl</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Trigger Config</source>
        <translation>Trigger-Konfiguration</translation>
    </message>
    <message>
        <source>Trigger Stop Config</source>
        <translation>Trigger-Stopp-Konfiguration</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyBlockWidget</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Zu %1 hinzufügen</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyMultiCheckTitleWidget</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
</TS>
