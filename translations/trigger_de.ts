<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DeviceList</name>
    <message>
        <source>Built-in camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished">%1 %2 – %2 {1 ?}</translation>
    </message>
    <message>
        <source>connecting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation type="unfinished">Aufnahme läuft</translation>
    </message>
    <message>
        <source>lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Start acquisition</source>
        <translation type="unfinished">Aufnahme starten</translation>
    </message>
    <message>
        <source>Stop acquisition</source>
        <translation type="unfinished">Aufnahme stoppen</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load user set %1?</source>
        <translation type="unfinished">User-Set %1? laden</translation>
    </message>
    <message>
        <source>Settings of this camera were changed and are in no user set. Loading replaces them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load user set %1</source>
        <translation type="unfinished">User-Set %1 laden</translation>
    </message>
    <message>
        <source>Save to user set %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger mode %1</source>
        <translation type="unfinished">Trigger-Modus %1</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was saved. These settings could not be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While the camera is acquiring, none of its settings can be saved. Stop the acquisition first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This camera has no trigger setting that can be saved now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings saved in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying the settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 setting applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 settings applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 settings were applied to %3. These were not:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 settings applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no connection to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to %1 was lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program controls this camera: settings can be read, not changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not executed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not set to %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation type="unfinished">%1: erledigt</translation>
    </message>
</context>
<context>
    <name>GenicamDevice</name>
    <message>
        <source>no such node of this type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be written now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not describe itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device holds no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the device holds no entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above the minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text contains a NUL</source>
        <translation type="unfinished"></translation>
    </message>
</context>
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
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation type="unfinished">%1 %2 – %2 {1 ?}</translation>
    </message>
    <message>
        <source>Not available now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Connect…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find cameras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to &amp;user set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Trigger Viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Trigger Viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Trigger Viewer %1&lt;/h3&gt;&lt;p&gt;Shows and changes the trigger settings of smart cameras.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the built-in camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;IPv4 address of the camera:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No camera answered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 camera found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cameras found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NetworkLink</name>
    <message>
        <source>it is not the IPv4 address of a camera, such as 192.168.0.10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no camera answers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera is gone, was restarted, or obeys another program now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera does not answer any more.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeModel</name>
    <message>
        <source>not implemented</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read/write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 … %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, step %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads every node again</source>
        <translation type="unfinished"></translation>
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
    <name>SettingsApplier</name>
    <message>
        <source>not reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this node of the camera is of another type than %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the camera holds %1 instead of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be written while the camera is acquiring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>can only be read now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this camera has no such node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be written in the present mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the camera no longer answers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>the key %1 is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the key %1 is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is no text in UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no file of trigger settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the version is %1, and only %2 is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this has to be an object of texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no name of a node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this node is there twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the type %1 is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value %1 is none of type %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;nodes&quot; is no list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>entry %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrafficModel</name>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration (µs)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrafficView</name>
    <message>
        <source>Save traffic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the selected calls, or all that are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves the calls that are shown as a CSV file</source>
        <translation type="unfinished"></translation>
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
