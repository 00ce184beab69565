<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DeviceList</name>
    <message>
        <source>Built-in camera</source>
        <translation>Eingebaute Kamera</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>connecting…</source>
        <translation>wird verbunden…</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>nur lesbar</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>Verbindung verloren</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>nicht verbunden</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>Aus der Liste &amp;entfernen</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Start acquisition</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <source>Stop acquisition</source>
        <translation>Aufnahme stoppen</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>User-Set laden</translation>
    </message>
    <message>
        <source>Load user set %1?</source>
        <translation>User-Set %1 laden?</translation>
    </message>
    <message>
        <source>Settings of this camera were changed and are in no user set. Loading replaces them.</source>
        <translation>Einstellungen dieser Kamera wurden geändert und sind in keinem User-Set gespeichert. Beim Laden werden sie ersetzt.</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Load user set %1</source>
        <translation>User-Set %1 laden</translation>
    </message>
    <message>
        <source>Save to user set %1</source>
        <translation>In User-Set %1 speichern</translation>
    </message>
    <message>
        <source>Trigger mode %1</source>
        <translation>Trigger-Modus %1</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Nothing was saved. These settings could not be read: %1</source>
        <translation>Es wurde nichts gespeichert. Diese Einstellungen konnten nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>While the camera is acquiring, none of its settings can be saved. Stop the acquisition first.</source>
        <translation>Während der Aufnahme lassen sich keine Einstellungen der Kamera speichern. Zuerst die Aufnahme stoppen.</translation>
    </message>
    <message>
        <source>This camera has no trigger setting that can be saved now.</source>
        <translation>Diese Kamera hat keine Trigger-Einstellung, die sich zurzeit speichern lässt.</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Einstellungen (*.json)</translation>
    </message>
    <message>
        <source>Settings saved in %1</source>
        <translation>Einstellungen in %1 gespeichert</translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation>Einstellungen anwenden</translation>
    </message>
    <message>
        <source>Applying the settings…</source>
        <translation>Einstellungen werden angewendet…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>1 setting applied</source>
        <translation>1 Einstellung angewendet</translation>
    </message>
    <message>
        <source>%1 settings applied</source>
        <translation>%1 Einstellungen angewendet</translation>
    </message>
    <message>
        <source>%1 of %2 settings were applied to %3. These were not:</source>
        <translation>%1 von %2 Einstellungen wurden auf %3 angewendet. Diese nicht:</translation>
    </message>
    <message>
        <source>%1 of %2 settings applied</source>
        <translation>%1 von %2 Einstellungen angewendet</translation>
    </message>
    <message>
        <source>Not connected to %1.</source>
        <translation>Nicht mit %1 verbunden.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Verbindung zu %1 wird hergestellt…</translation>
    </message>
    <message>
        <source>There is no connection to %1.</source>
        <translation>Es besteht keine Verbindung zu %1.</translation>
    </message>
    <message>
        <source>The connection to %1 was lost.</source>
        <translation>Die Verbindung zu %1 ging verloren.</translation>
    </message>
    <message>
        <source>Another program controls this camera: settings can be read, not changed.</source>
        <translation>Ein anderes Programm steuert diese Kamera: Einstellungen lassen sich lesen, aber nicht ändern.</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Neu verbinden</translation>
    </message>
    <message>
        <source>%1 was not executed: %2</source>
        <translation>%1 wurde nicht ausgeführt: %2</translation>
    </message>
    <message>
        <source>%1 was not set to %2: %3</source>
        <translation>%1 wurde nicht auf %2 gesetzt: %3</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: erledigt</translation>
    </message>
</context>
<context>
    <name>GenicamDevice</name>
    <message>
        <source>no such node of this type</source>
        <translation>kein Knoten dieses Namens und Typs</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>ein anderes Programm steuert die Kamera</translation>
    </message>
    <message>
        <source>cannot be written now</source>
        <translation>kann zurzeit nicht geschrieben werden</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>kann zurzeit nicht gelesen werden</translation>
    </message>
    <message>
        <source>it does not describe itself</source>
        <translation>das Gerät liefert keine Beschreibung von sich</translation>
    </message>
    <message>
        <source>the device holds no number</source>
        <translation>im Gerät steht keine Zahl</translation>
    </message>
    <message>
        <source>the device holds no entry</source>
        <translation>im Gerät steht keiner der Einträge</translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above the minimum</source>
        <translation>%1 liegt nicht um ein Vielfaches von %2 über dem Minimum</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>the text contains a NUL</source>
        <translation>der Text enthält ein NUL-Zeichen</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this file, in that language.</extracomment>
        <translation>Deutsch</translation>
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
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Datenverkehr</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Not available now</source>
        <translation>Zurzeit nicht verfügbar</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Gerät</translation>
    </message>
    <message>
        <source>&amp;Connect…</source>
        <translation>&amp;Verbinden…</translation>
    </message>
    <message>
        <source>&amp;Find cameras</source>
        <translation>Kameras s&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Neu verbinden</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Save settings…</source>
        <translation>Einstellungen &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Apply settings…</source>
        <translation>Einstellungen &amp;anwenden…</translation>
    </message>
    <message>
        <source>Save to &amp;user set</source>
        <translation>In &amp;User-Set speichern</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Refresh nodes</source>
        <translation>Knoten &amp;aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Trigger Viewer</source>
        <translation>&amp;Über Trigger-Viewer</translation>
    </message>
    <message>
        <source>About Trigger Viewer</source>
        <translation>Über Trigger-Viewer</translation>
    </message>
    <message>
        <source>No device is open.</source>
        <translation>Es ist kein Gerät geöffnet.</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>Verbinden…</translation>
    </message>
    <message>
        <source>Open the built-in camera</source>
        <translation>Eingebaute Kamera öffnen</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>&amp;IPv4 address of the camera:</source>
        <translation>&amp;IPv4-Adresse der Kamera:</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>Kameras werden gesucht…</translation>
    </message>
    <message>
        <source>No camera answered</source>
        <translation>Keine Kamera hat geantwortet</translation>
    </message>
    <message>
        <source>1 camera found</source>
        <translation>1 Kamera gefunden</translation>
    </message>
    <message>
        <source>%1 cameras found</source>
        <translation>%1 Kameras gefunden</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Trigger Viewer %1&lt;/h3&gt;&lt;p&gt;Shows and changes the trigger settings of smart cameras.&lt;/p&gt;&lt;p&gt;Uses Qt, Aravis and GLib under the GNU Lesser General Public License.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Trigger-Viewer %1&lt;/h3&gt;&lt;p&gt;Zeigt und ändert die Trigger-Einstellungen von Smart-Kameras.&lt;/p&gt;&lt;p&gt;Verwendet Qt, Aravis und GLib unter der GNU Lesser General Public License.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>NetworkLink</name>
    <message>
        <source>it is not the IPv4 address of a camera, such as 192.168.0.10</source>
        <translation>das ist keine IPv4-Adresse einer Kamera wie etwa 192.168.0.10</translation>
    </message>
    <message>
        <source>no camera answers</source>
        <translation>es antwortet keine Kamera</translation>
    </message>
    <message>
        <source>The camera is gone, was restarted, or obeys another program now.</source>
        <translation>Die Kamera ist nicht mehr da, wurde neu gestartet oder wird jetzt von einem anderen Programm gesteuert.</translation>
    </message>
    <message>
        <source>The camera does not answer any more.</source>
        <translation>Die Kamera antwortet nicht mehr.</translation>
    </message>
</context>
<context>
    <name>NodeModel</name>
    <message>
        <source>not implemented</source>
        <translation>nicht implementiert</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>nicht verfügbar</translation>
    </message>
    <message>
        <source>write-only</source>
        <translation>nur schreibbar</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>nur lesbar</translation>
    </message>
    <message>
        <source>read/write</source>
        <translation>les-/schreibbar</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Zugriff</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>step %1</source>
        <translation>Schritt %1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
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
    <name>RecordTable</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>SettingsApplier</name>
    <message>
        <source>not reached</source>
        <translation>nicht mehr bearbeitet</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>cannot be read back</source>
        <translation>kann nicht zurückgelesen werden</translation>
    </message>
    <message>
        <source>this camera has no such node</source>
        <translation>diese Kamera hat keinen solchen Knoten</translation>
    </message>
    <message>
        <source>cannot be written in the present mode</source>
        <translation>kann im aktuellen Modus nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the camera no longer answers</source>
        <translation>die Kamera antwortet nicht mehr</translation>
    </message>
    <message>
        <source>this node of the camera is of another type</source>
        <translation>dieser Knoten der Kamera hat einen anderen Typ</translation>
    </message>
    <message>
        <source>can only be read now (is the camera acquiring?)</source>
        <translation>ist jetzt nur lesbar (läuft die Aufnahme?)</translation>
    </message>
    <message>
        <source>the camera holds %1 instead</source>
        <translation>die Kamera hat stattdessen %1</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>the key %1 is not known</source>
        <translation>der Schlüssel %1 ist unbekannt</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>this is no file of trigger settings</source>
        <translation>das ist keine Datei mit Trigger-Einstellungen</translation>
    </message>
    <message>
        <source>the version is %1, and only %2 is known</source>
        <translation>die Version ist %1, bekannt ist nur %2</translation>
    </message>
    <message>
        <source>this node is there twice</source>
        <translation>dieser Knoten ist doppelt vorhanden</translation>
    </message>
    <message>
        <source>the type %1 is not known</source>
        <translation>der Typ %1 ist unbekannt</translation>
    </message>
    <message>
        <source>the value %1 is none of type %2</source>
        <translation>der Wert %1 ist keiner vom Typ %2</translation>
    </message>
    <message>
        <source>&quot;nodes&quot; is no list</source>
        <translation>&quot;nodes&quot; ist keine Liste</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>the name is missing</source>
        <translation>der Name fehlt</translation>
    </message>
    <message>
        <source>entry %1, %2: %3</source>
        <translation>Eintrag %1, %2: %3</translation>
    </message>
</context>
<context>
    <name>TrafficModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Duration (µs)</source>
        <translation>Dauer (µs)</translation>
    </message>
</context>
<context>
    <name>TrafficView</name>
    <message>
        <source>Save traffic</source>
        <translation>Datenverkehr speichern</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Writes only</source>
        <translation>Nur Schreibzugriffe</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern…</translation>
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
