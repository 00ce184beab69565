<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DeviceList</name>
    <message>
        <source>Built-in camera</source>
        <translation>Cámara integrada</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>connecting…</source>
        <translation>conectando…</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>conectada</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>solo lectura</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>adquisición en curso</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>conexión perdida</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>no conectada</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>&amp;Quitar de la lista</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Start acquisition</source>
        <translation>Iniciar adquisición</translation>
    </message>
    <message>
        <source>Stop acquisition</source>
        <translation>Detener adquisición</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>Cargar User Set</translation>
    </message>
    <message>
        <source>Load user set %1?</source>
        <translation>¿Cargar el User Set %1?</translation>
    </message>
    <message>
        <source>Settings of this camera were changed and are in no user set. Loading replaces them.</source>
        <translation>Se han modificado ajustes de esta cámara que no están guardados en ningún User Set. Al cargar se sustituirán.</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Load user set %1</source>
        <translation>Cargar el User Set %1</translation>
    </message>
    <message>
        <source>Save to user set %1</source>
        <translation>Guardar en el User Set %1</translation>
    </message>
    <message>
        <source>Trigger mode %1</source>
        <translation>Modo de disparo %1</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Guardar ajustes</translation>
    </message>
    <message>
        <source>Nothing was saved. These settings could not be read: %1</source>
        <translation>No se ha guardado nada. No se han podido leer estos ajustes: %1</translation>
    </message>
    <message>
        <source>While the camera is acquiring, none of its settings can be saved. Stop the acquisition first.</source>
        <translation>Durante la adquisición no se puede guardar ningún ajuste de la cámara. Detenga primero la adquisición.</translation>
    </message>
    <message>
        <source>This camera has no trigger setting that can be saved now.</source>
        <translation>Ahora no se puede guardar ningún ajuste de disparo de esta cámara.</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Ajustes (*.json)</translation>
    </message>
    <message>
        <source>Settings saved in %1</source>
        <translation>Ajustes guardados en %1</translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation>Aplicar ajustes</translation>
    </message>
    <message>
        <source>Applying the settings…</source>
        <translation>Aplicando los ajustes…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>1 setting applied</source>
        <translation>1 ajuste aplicado</translation>
    </message>
    <message>
        <source>%1 settings applied</source>
        <translation>%1 ajustes aplicados</translation>
    </message>
    <message>
        <source>%1 of %2 settings were applied to %3. These were not:</source>
        <translation>Ajustes aplicados a %3: %1 de %2. No aplicados:</translation>
    </message>
    <message>
        <source>%1 of %2 settings applied</source>
        <translation>Ajustes aplicados: %1 de %2</translation>
    </message>
    <message>
        <source>Not connected to %1.</source>
        <translation>No conectado a %1.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Conectando a %1…</translation>
    </message>
    <message>
        <source>There is no connection to %1.</source>
        <translation>No hay conexión con %1.</translation>
    </message>
    <message>
        <source>The connection to %1 was lost.</source>
        <translation>Se ha perdido la conexión con %1.</translation>
    </message>
    <message>
        <source>Another program controls this camera: settings can be read, not changed.</source>
        <translation>Otro programa controla esta cámara: los ajustes se pueden leer, pero no modificar.</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Reconectar</translation>
    </message>
    <message>
        <source>%1 was not executed: %2</source>
        <translation>%1 no se ha ejecutado: %2</translation>
    </message>
    <message>
        <source>%1 was not set to %2: %3</source>
        <translation>%1 no se ha ajustado a %2: %3</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: hecho</translation>
    </message>
</context>
<context>
    <name>GenicamDevice</name>
    <message>
        <source>no such node of this type</source>
        <translation>no hay ningún nodo con este nombre y tipo</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>otro programa controla la cámara</translation>
    </message>
    <message>
        <source>cannot be written now</source>
        <translation>ahora no se puede escribir</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>ahora no se puede leer</translation>
    </message>
    <message>
        <source>it does not describe itself</source>
        <translation>el dispositivo no proporciona su descripción</translation>
    </message>
    <message>
        <source>the device holds no number</source>
        <translation>el valor en el dispositivo no es un número</translation>
    </message>
    <message>
        <source>the device holds no entry</source>
        <translation>el valor en el dispositivo no corresponde a ninguna entrada</translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above the minimum</source>
        <translation>%1 no supera el mínimo en un múltiplo de %2</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>the text contains a NUL</source>
        <translation>el texto contiene un carácter NUL</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this file, in that language.</extracomment>
        <translation>Español</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Trigger Viewer</source>
        <translation>Trigger Viewer</translation>
    </message>
    <message>
        <source>%1 – Trigger Viewer</source>
        <translation>%1 – Trigger Viewer</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Cámara</translation>
    </message>
    <message>
        <source>&amp;Start acquisition</source>
        <translation>&amp;Iniciar adquisición</translation>
    </message>
    <message>
        <source>S&amp;top acquisition</source>
        <translation>&amp;Detener adquisición</translation>
    </message>
    <message>
        <source>&amp;Load user set</source>
        <translation>&amp;Cargar User Set</translation>
    </message>
    <message>
        <source>Trigger &amp;mode</source>
        <translation>&amp;Modo de disparo</translation>
    </message>
    <message>
        <source>Change the trigger mode outside the panel</source>
        <translation>Cambiar el modo de disparo fuera del panel</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfico</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodos</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Not available now</source>
        <translation>No disponible ahora</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Dispositivo</translation>
    </message>
    <message>
        <source>&amp;Connect…</source>
        <translation>&amp;Conectar…</translation>
    </message>
    <message>
        <source>&amp;Find cameras</source>
        <translation>&amp;Buscar cámaras</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Reconectar</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>&amp;Save settings…</source>
        <translation>&amp;Guardar ajustes…</translation>
    </message>
    <message>
        <source>&amp;Apply settings…</source>
        <translation>&amp;Aplicar ajustes…</translation>
    </message>
    <message>
        <source>Save to &amp;user set</source>
        <translation>&amp;Guardar en User Set</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Refresh nodes</source>
        <translation>&amp;Actualizar nodos</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About Trigger Viewer</source>
        <translation>&amp;Acerca de Trigger Viewer</translation>
    </message>
    <message>
        <source>About Trigger Viewer</source>
        <translation>Acerca de Trigger Viewer</translation>
    </message>
    <message>
        <source>No device is open.</source>
        <translation>No hay ningún dispositivo abierto.</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>Conectar…</translation>
    </message>
    <message>
        <source>Open the built-in camera</source>
        <translation>Abrir la cámara integrada</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>&amp;IPv4 address of the camera:</source>
        <translation>Dirección &amp;IPv4 de la cámara:</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>Buscando cámaras…</translation>
    </message>
    <message>
        <source>No camera answered</source>
        <translation>Ninguna cámara ha respondido</translation>
    </message>
    <message>
        <source>1 camera found</source>
        <translation>1 cámara encontrada</translation>
    </message>
    <message>
        <source>%1 cameras found</source>
        <translation>%1 cámaras encontradas</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Trigger Viewer %1&lt;/h3&gt;&lt;p&gt;Shows and changes the trigger settings of smart cameras.&lt;/p&gt;&lt;p&gt;Uses Qt, Aravis and GLib under the GNU Lesser General Public License.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Trigger Viewer %1&lt;/h3&gt;&lt;p&gt;Muestra y modifica los ajustes de disparo de cámaras inteligentes.&lt;/p&gt;&lt;p&gt;Utiliza Qt, Aravis y GLib bajo la GNU Lesser General Public License.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>NetworkLink</name>
    <message>
        <source>it is not the IPv4 address of a camera, such as 192.168.0.10</source>
        <translation>no es una dirección IPv4 de cámara, como 192.168.0.10</translation>
    </message>
    <message>
        <source>no camera answers</source>
        <translation>no responde ninguna cámara</translation>
    </message>
    <message>
        <source>The camera is gone, was restarted, or obeys another program now.</source>
        <translation>La cámara ya no está, se ha reiniciado o ahora la controla otro programa.</translation>
    </message>
    <message>
        <source>The camera does not answer any more.</source>
        <translation>La cámara ya no responde.</translation>
    </message>
</context>
<context>
    <name>NodeModel</name>
    <message>
        <source>not implemented</source>
        <translation>no implementado</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>no disponible</translation>
    </message>
    <message>
        <source>write-only</source>
        <translation>solo escritura</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>solo lectura</translation>
    </message>
    <message>
        <source>read/write</source>
        <translation>lectura/escritura</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nodo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Acceso</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Rango</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>step %1</source>
        <translation>incremento %1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
</context>
<context>
    <name>ParamPageWidgetItem</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Mantenido</translation>
    </message>
    <message>
        <source>SoftwareTrigger</source>
        <translation>Disparo por software</translation>
    </message>
    <message>
        <source>IOTrigger</source>
        <translation>Disparo por E/S</translation>
    </message>
    <message>
        <source>TcpServer</source>
        <translation>Servidor TCP</translation>
    </message>
    <message>
        <source>TcpClient</source>
        <translation>Cliente TCP</translation>
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
        <translation>Disparo automático</translation>
    </message>
    <message>
        <source>SensingTrigger</source>
        <translation>Disparo por detección</translation>
    </message>
    <message>
        <source>Master-Slave</source>
        <translation>Maestro-esclavo</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Trigger Mode</source>
        <translation>Modo de disparo</translation>
    </message>
    <message>
        <source>Trigger Source</source>
        <translation>Fuente de disparo</translation>
    </message>
    <message>
        <source>Software Trigger</source>
        <translation>Disparo por software</translation>
    </message>
    <message>
        <source>Trigger Delay(ms)</source>
        <translation>Retardo de disparo (ms)</translation>
    </message>
    <message>
        <source>Follow IO level signal</source>
        <translation>Seguir el nivel de E/S</translation>
    </message>
    <message>
        <source>Trigger Cache</source>
        <translation>Búfer de disparos</translation>
    </message>
    <message>
        <source>Key Trigger</source>
        <translation>Disparo por botón</translation>
    </message>
    <message>
        <source>TCP Port</source>
        <translation>Puerto TCP</translation>
    </message>
    <message>
        <source>Fuzzy Command Matching</source>
        <translation>Coincidencia aproximada</translation>
    </message>
    <message>
        <source>Command Format</source>
        <translation>Formato de comando</translation>
    </message>
    <message>
        <source>Start Trigger Command</source>
        <translation>Comando de disparo</translation>
    </message>
    <message>
        <source>FTP Save Image Command</source>
        <translation>Comando de imagen a FTP</translation>
    </message>
    <message>
        <source>Auto Trigger Interval(ms)</source>
        <translation>Intervalo disparo auto. (ms)</translation>
    </message>
    <message>
        <source>Sensing Sensitivity</source>
        <translation>Sensibilidad de detección</translation>
    </message>
    <message>
        <source>Sensing Wait Period(ms)</source>
        <translation>Tiempo de espera (ms)</translation>
    </message>
    <message>
        <source>Server IP</source>
        <translation>IP del servidor</translation>
    </message>
    <message>
        <source>Server Port</source>
        <translation>Puerto del servidor</translation>
    </message>
    <message>
        <source>Heartbeat Enable</source>
        <translation>Activar heartbeat</translation>
    </message>
    <message>
        <source>Heartbeat Command</source>
        <translation>Comando de heartbeat</translation>
    </message>
    <message>
        <source>Heartbeat Interval(ms)</source>
        <translation>Intervalo de heartbeat (ms)</translation>
    </message>
    <message>
        <source>UDP Port</source>
        <translation>Puerto UDP</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Velocidad en baudios</translation>
    </message>
    <message>
        <source>Flow Control</source>
        <translation>Control de flujo</translation>
    </message>
    <message>
        <source>Stop Bit</source>
        <translation>Bits de parada</translation>
    </message>
    <message>
        <source>Parity Bit</source>
        <translation>Bit de paridad</translation>
    </message>
    <message>
        <source>Data Bit</source>
        <translation>Bits de datos</translation>
    </message>
    <message>
        <source>Stop Condition</source>
        <translation>Condición de parada</translation>
    </message>
    <message>
        <source>Triggered Frame Count</source>
        <translation>Número de imágenes</translation>
    </message>
    <message>
        <source>Trigger Duration(ms)</source>
        <translation>Duración del disparo (ms)</translation>
    </message>
    <message>
        <source>Decoding Count</source>
        <translation>Número de códigos leídos</translation>
    </message>
    <message>
        <source>Code Counting Enable</source>
        <translation>Activar conteo de códigos</translation>
    </message>
    <message>
        <source>Stop Trigger Command</source>
        <translation>Comando de parada</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>FrameCount</source>
        <translation>Número de imágenes</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>DecodeCount</source>
        <translation>Número de códigos leídos</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Impar</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Par</translation>
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
        <translation>Filtrar</translation>
    </message>
</context>
<context>
    <name>SettingsApplier</name>
    <message>
        <source>not reached</source>
        <translation>sin procesar</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>cannot be read back</source>
        <translation>no se puede volver a leer</translation>
    </message>
    <message>
        <source>this camera has no such node</source>
        <translation>esta cámara no tiene este nodo</translation>
    </message>
    <message>
        <source>cannot be written in the present mode</source>
        <translation>no se puede escribir en el modo actual</translation>
    </message>
    <message>
        <source>the camera no longer answers</source>
        <translation>la cámara ya no responde</translation>
    </message>
    <message>
        <source>this node of the camera is of another type</source>
        <translation>este nodo de la cámara es de otro tipo</translation>
    </message>
    <message>
        <source>can only be read now (is the camera acquiring?)</source>
        <translation>ahora es de solo lectura (¿adquisición en curso?)</translation>
    </message>
    <message>
        <source>the camera holds %1 instead</source>
        <translation>la cámara contiene %1 en su lugar</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>no se puede escribir</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>the key %1 is not known</source>
        <translation>la clave %1 es desconocida</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>this is no file of trigger settings</source>
        <translation>no es un archivo de ajustes de disparo</translation>
    </message>
    <message>
        <source>the version is %1, and only %2 is known</source>
        <translation>la versión es %1 y solo se conoce la %2</translation>
    </message>
    <message>
        <source>this node is there twice</source>
        <translation>este nodo aparece dos veces</translation>
    </message>
    <message>
        <source>the type %1 is not known</source>
        <translation>el tipo %1 es desconocido</translation>
    </message>
    <message>
        <source>the value %1 is none of type %2</source>
        <translation>el valor %1 no es del tipo %2</translation>
    </message>
    <message>
        <source>&quot;nodes&quot; is no list</source>
        <translation>«nodes» no es una lista</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>no es un archivo ordinario</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>the name is missing</source>
        <translation>falta el nombre</translation>
    </message>
    <message>
        <source>entry %1, %2: %3</source>
        <translation>entrada %1, %2: %3</translation>
    </message>
</context>
<context>
    <name>TrafficModel</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nodo</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Duration (µs)</source>
        <translation>Duración (µs)</translation>
    </message>
</context>
<context>
    <name>TrafficView</name>
    <message>
        <source>Save traffic</source>
        <translation>Guardar tráfico</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>Archivos CSV (*.csv)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>Writes only</source>
        <translation>Solo escrituras</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
</context>
<context>
    <name>TriggerConfigWdgImpl</name>
    <message>
        <source>TCP Server</source>
        <translation>Servidor TCP</translation>
    </message>
    <message>
        <source>Auto Trigger</source>
        <translation>Disparo automático</translation>
    </message>
    <message>
        <source>Sensing Trigger</source>
        <translation>Disparo por detección</translation>
    </message>
    <message>
        <source>TCP Client</source>
        <translation>Cliente TCP</translation>
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
        <translation>Configuración </translation>
    </message>
</context>
<context>
    <name>VyTriggerConfigWidgetImpl</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Trigger Config</source>
        <translation>Configuración del disparo</translation>
    </message>
    <message>
        <source>Trigger Stop Config</source>
        <translation>Configuración de la parada</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyBlockWidget</name>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Añadir a %1</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyMultiCheckTitleWidget</name>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Eliminar %1</translation>
    </message>
</context>
</TS>
