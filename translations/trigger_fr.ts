<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DeviceList</name>
    <message>
        <source>Built-in camera</source>
        <translation>Caméra intégrée</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>connecting…</source>
        <translation>connexion en cours…</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>connectée</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>lecture seule</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>acquisition en cours</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>connexion perdue</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>non connectée</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>&amp;Retirer de la liste</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Start acquisition</source>
        <translation>Démarrer l’acquisition</translation>
    </message>
    <message>
        <source>Stop acquisition</source>
        <translation>Arrêter l’acquisition</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>Charger un User Set</translation>
    </message>
    <message>
        <source>Load user set %1?</source>
        <translation>Charger le User Set %1&#xa0;?</translation>
    </message>
    <message>
        <source>Settings of this camera were changed and are in no user set. Loading replaces them.</source>
        <translation>Des paramètres de cette caméra ont été modifiés et ne figurent dans aucun User Set. Le chargement les remplacera.</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Load user set %1</source>
        <translation>Charger le User Set %1</translation>
    </message>
    <message>
        <source>Save to user set %1</source>
        <translation>Enregistrer dans le User Set %1</translation>
    </message>
    <message>
        <source>Trigger mode %1</source>
        <translation>Mode de déclenchement %1</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Enregistrer les paramètres</translation>
    </message>
    <message>
        <source>Nothing was saved. These settings could not be read: %1</source>
        <translation>Rien n’a été enregistré. Ces paramètres n’ont pas pu être lus&#xa0;: %1</translation>
    </message>
    <message>
        <source>While the camera is acquiring, none of its settings can be saved. Stop the acquisition first.</source>
        <translation>Pendant l’acquisition, aucun paramètre de la caméra ne peut être enregistré. Arrêtez d’abord l’acquisition.</translation>
    </message>
    <message>
        <source>This camera has no trigger setting that can be saved now.</source>
        <translation>Aucun paramètre de déclenchement de cette caméra ne peut être enregistré actuellement.</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Paramètres (*.json)</translation>
    </message>
    <message>
        <source>Settings saved in %1</source>
        <translation>Paramètres enregistrés dans %1</translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation>Appliquer des paramètres</translation>
    </message>
    <message>
        <source>Applying the settings…</source>
        <translation>Application des paramètres…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>1 setting applied</source>
        <translation>1 paramètre appliqué</translation>
    </message>
    <message>
        <source>%1 settings applied</source>
        <translation>%1 paramètres appliqués</translation>
    </message>
    <message>
        <source>%1 of %2 settings were applied to %3. These were not:</source>
        <translation>Paramètres appliqués à %3&#xa0;: %1 sur %2. Non appliqués&#xa0;:</translation>
    </message>
    <message>
        <source>%1 of %2 settings applied</source>
        <translation>Paramètres appliqués&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Not connected to %1.</source>
        <translation>Non connecté à %1.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Connexion à %1 en cours…</translation>
    </message>
    <message>
        <source>There is no connection to %1.</source>
        <translation>Pas de connexion à %1.</translation>
    </message>
    <message>
        <source>The connection to %1 was lost.</source>
        <translation>La connexion à %1 a été perdue.</translation>
    </message>
    <message>
        <source>Another program controls this camera: settings can be read, not changed.</source>
        <translation>Un autre programme contrôle cette caméra&#xa0;: ses paramètres peuvent être lus, mais pas modifiés.</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Reconnecter</translation>
    </message>
    <message>
        <source>%1 was not executed: %2</source>
        <translation>%1 n’a pas été exécuté&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was not set to %2: %3</source>
        <translation>%1 n’a pas été réglé sur %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1&#xa0;: effectué</translation>
    </message>
</context>
<context>
    <name>GenicamDevice</name>
    <message>
        <source>no such node of this type</source>
        <translation>aucun nœud de ce nom et de ce type</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>un autre programme contrôle la caméra</translation>
    </message>
    <message>
        <source>cannot be written now</source>
        <translation>écriture impossible actuellement</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>lecture impossible actuellement</translation>
    </message>
    <message>
        <source>it does not describe itself</source>
        <translation>l’appareil ne fournit pas sa description</translation>
    </message>
    <message>
        <source>the device holds no number</source>
        <translation>la valeur dans l’appareil n’est pas un nombre</translation>
    </message>
    <message>
        <source>the device holds no entry</source>
        <translation>la valeur dans l’appareil ne correspond à aucune entrée</translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above the minimum</source>
        <translation>%1 ne dépasse pas le minimum d’un multiple de %2</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>ce n’est pas un nombre</translation>
    </message>
    <message>
        <source>the text contains a NUL</source>
        <translation>le texte contient un caractère NUL</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this file, in that language.</extracomment>
        <translation>Français</translation>
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
        <translation>&amp;Caméra</translation>
    </message>
    <message>
        <source>&amp;Start acquisition</source>
        <translation>&amp;Démarrer l’acquisition</translation>
    </message>
    <message>
        <source>S&amp;top acquisition</source>
        <translation>&amp;Arrêter l’acquisition</translation>
    </message>
    <message>
        <source>&amp;Load user set</source>
        <translation>&amp;Charger un User Set</translation>
    </message>
    <message>
        <source>Trigger &amp;mode</source>
        <translation>&amp;Mode de déclenchement</translation>
    </message>
    <message>
        <source>Change the trigger mode outside the panel</source>
        <translation>Changer le mode de déclenchement hors du panneau</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafic</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nœuds</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Not available now</source>
        <translation>Indisponible actuellement</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Appareil</translation>
    </message>
    <message>
        <source>&amp;Connect…</source>
        <translation>&amp;Connecter…</translation>
    </message>
    <message>
        <source>&amp;Find cameras</source>
        <translation>Rec&amp;hercher des caméras</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>&amp;Reconnecter</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Save settings…</source>
        <translation>&amp;Enregistrer les paramètres…</translation>
    </message>
    <message>
        <source>&amp;Apply settings…</source>
        <translation>&amp;Appliquer des paramètres…</translation>
    </message>
    <message>
        <source>Save to &amp;user set</source>
        <translation>&amp;Enregistrer dans un User Set</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;ffichage</translation>
    </message>
    <message>
        <source>&amp;Refresh nodes</source>
        <translation>&amp;Actualiser les nœuds</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;About Trigger Viewer</source>
        <translation>À &amp;propos de Trigger Viewer</translation>
    </message>
    <message>
        <source>About Trigger Viewer</source>
        <translation>À propos de Trigger Viewer</translation>
    </message>
    <message>
        <source>No device is open.</source>
        <translation>Aucun appareil n’est ouvert.</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>Connecter…</translation>
    </message>
    <message>
        <source>Open the built-in camera</source>
        <translation>Ouvrir la caméra intégrée</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>&amp;IPv4 address of the camera:</source>
        <translation>Adresse &amp;IPv4 de la caméra&#xa0;:</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>Recherche de caméras…</translation>
    </message>
    <message>
        <source>No camera answered</source>
        <translation>Aucune caméra n’a répondu</translation>
    </message>
    <message>
        <source>1 camera found</source>
        <translation>1 caméra trouvée</translation>
    </message>
    <message>
        <source>%1 cameras found</source>
        <translation>%1 caméras trouvées</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Trigger Viewer %1&lt;/h3&gt;&lt;p&gt;Shows and changes the trigger settings of smart cameras.&lt;/p&gt;&lt;p&gt;Uses Qt, Aravis and GLib under the GNU Lesser General Public License.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Trigger Viewer %1&lt;/h3&gt;&lt;p&gt;Affiche et modifie les paramètres de déclenchement des caméras intelligentes.&lt;/p&gt;&lt;p&gt;Utilise Qt, Aravis et GLib sous la GNU Lesser General Public License.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>NetworkLink</name>
    <message>
        <source>it is not the IPv4 address of a camera, such as 192.168.0.10</source>
        <translation>ce n’est pas une adresse IPv4 de caméra, telle que 192.168.0.10</translation>
    </message>
    <message>
        <source>no camera answers</source>
        <translation>aucune caméra ne répond</translation>
    </message>
    <message>
        <source>The camera is gone, was restarted, or obeys another program now.</source>
        <translation>La caméra n’est plus là, a été redémarrée ou est désormais contrôlée par un autre programme.</translation>
    </message>
    <message>
        <source>The camera does not answer any more.</source>
        <translation>La caméra ne répond plus.</translation>
    </message>
</context>
<context>
    <name>NodeModel</name>
    <message>
        <source>not implemented</source>
        <translation>non implémenté</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>non disponible</translation>
    </message>
    <message>
        <source>write-only</source>
        <translation>écriture seule</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>lecture seule</translation>
    </message>
    <message>
        <source>read/write</source>
        <translation>lecture/écriture</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nœud</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Accès</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>step %1</source>
        <translation>incrément %1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
</context>
<context>
    <name>ParamPageWidgetItem</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Maintien</translation>
    </message>
    <message>
        <source>SoftwareTrigger</source>
        <translation>Déclenchement logiciel</translation>
    </message>
    <message>
        <source>IOTrigger</source>
        <translation>Déclenchement E/S</translation>
    </message>
    <message>
        <source>TcpServer</source>
        <translation>Serveur TCP</translation>
    </message>
    <message>
        <source>TcpClient</source>
        <translation>Client TCP</translation>
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
        <translation>Déclenchement auto</translation>
    </message>
    <message>
        <source>SensingTrigger</source>
        <translation>Déclenchement détection</translation>
    </message>
    <message>
        <source>Master-Slave</source>
        <translation>Maître-esclave</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hexa</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Trigger Mode</source>
        <translation>Mode de déclenchement</translation>
    </message>
    <message>
        <source>Trigger Source</source>
        <translation>Source de déclenchement</translation>
    </message>
    <message>
        <source>Software Trigger</source>
        <translation>Déclenchement logiciel</translation>
    </message>
    <message>
        <source>Trigger Delay(ms)</source>
        <translation>Délai déclenchement (ms)</translation>
    </message>
    <message>
        <source>Follow IO level signal</source>
        <translation>Suivre le niveau E/S</translation>
    </message>
    <message>
        <source>Trigger Cache</source>
        <translation>Tampon de déclenchements</translation>
    </message>
    <message>
        <source>Key Trigger</source>
        <translation>Déclenchement par bouton</translation>
    </message>
    <message>
        <source>TCP Port</source>
        <translation>Port TCP</translation>
    </message>
    <message>
        <source>Fuzzy Command Matching</source>
        <translation>Correspondance floue</translation>
    </message>
    <message>
        <source>Command Format</source>
        <translation>Format de commande</translation>
    </message>
    <message>
        <source>Start Trigger Command</source>
        <translation>Commande déclenchement</translation>
    </message>
    <message>
        <source>FTP Save Image Command</source>
        <translation>Commande image vers FTP</translation>
    </message>
    <message>
        <source>Auto Trigger Interval(ms)</source>
        <translation>Intervalle de décl. auto (ms)</translation>
    </message>
    <message>
        <source>Sensing Sensitivity</source>
        <translation>Sensibilité de détection</translation>
    </message>
    <message>
        <source>Sensing Wait Period(ms)</source>
        <translation>Temps d’attente (ms)</translation>
    </message>
    <message>
        <source>Server IP</source>
        <translation>IP du serveur</translation>
    </message>
    <message>
        <source>Server Port</source>
        <translation>Port du serveur</translation>
    </message>
    <message>
        <source>Heartbeat Enable</source>
        <translation>Activer heartbeat</translation>
    </message>
    <message>
        <source>Heartbeat Command</source>
        <translation>Commande de heartbeat</translation>
    </message>
    <message>
        <source>Heartbeat Interval(ms)</source>
        <translation>Intervalle de heartbeat (ms)</translation>
    </message>
    <message>
        <source>UDP Port</source>
        <translation>Port UDP</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Débit en bauds</translation>
    </message>
    <message>
        <source>Flow Control</source>
        <translation>Contrôle de flux</translation>
    </message>
    <message>
        <source>Stop Bit</source>
        <translation>Bits de stop</translation>
    </message>
    <message>
        <source>Parity Bit</source>
        <translation>Bit de parité</translation>
    </message>
    <message>
        <source>Data Bit</source>
        <translation>Bits de données</translation>
    </message>
    <message>
        <source>Stop Condition</source>
        <translation>Condition d’arrêt</translation>
    </message>
    <message>
        <source>Triggered Frame Count</source>
        <translation>Nombre d’images</translation>
    </message>
    <message>
        <source>Trigger Duration(ms)</source>
        <translation>Durée déclenchement (ms)</translation>
    </message>
    <message>
        <source>Decoding Count</source>
        <translation>Nombre de codes lus</translation>
    </message>
    <message>
        <source>Code Counting Enable</source>
        <translation>Activer comptage de codes</translation>
    </message>
    <message>
        <source>Stop Trigger Command</source>
        <translation>Commande d’arrêt</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>FrameCount</source>
        <translation>Nombre d’images</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>DecodeCount</source>
        <translation>Nombre de codes lus</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Impair</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Pair</translation>
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
        <translation>Filtrer</translation>
    </message>
</context>
<context>
    <name>SettingsApplier</name>
    <message>
        <source>not reached</source>
        <translation>non traité</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>cannot be read back</source>
        <translation>relecture impossible</translation>
    </message>
    <message>
        <source>this camera has no such node</source>
        <translation>cette caméra n’a pas ce nœud</translation>
    </message>
    <message>
        <source>cannot be written in the present mode</source>
        <translation>écriture impossible dans le mode actuel</translation>
    </message>
    <message>
        <source>the camera no longer answers</source>
        <translation>la caméra ne répond plus</translation>
    </message>
    <message>
        <source>this node of the camera is of another type</source>
        <translation>ce nœud de la caméra est d’un autre type</translation>
    </message>
    <message>
        <source>can only be read now (is the camera acquiring?)</source>
        <translation>actuellement en lecture seule (acquisition en cours&#xa0;?)</translation>
    </message>
    <message>
        <source>the camera holds %1 instead</source>
        <translation>la caméra contient %1 à la place</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>écriture impossible</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>the key %1 is not known</source>
        <translation>la clé %1 est inconnue</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>this is no file of trigger settings</source>
        <translation>ce n’est pas un fichier de paramètres de déclenchement</translation>
    </message>
    <message>
        <source>the version is %1, and only %2 is known</source>
        <translation>la version est %1, seule la version %2 est connue</translation>
    </message>
    <message>
        <source>this node is there twice</source>
        <translation>ce nœud figure deux fois</translation>
    </message>
    <message>
        <source>the type %1 is not known</source>
        <translation>le type %1 est inconnu</translation>
    </message>
    <message>
        <source>the value %1 is none of type %2</source>
        <translation>la valeur %1 n’est pas du type %2</translation>
    </message>
    <message>
        <source>&quot;nodes&quot; is no list</source>
        <translation>«&#xa0;nodes&#xa0;» n’est pas une liste</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>le fichier est trop volumineux</translation>
    </message>
    <message>
        <source>the name is missing</source>
        <translation>le nom est manquant</translation>
    </message>
    <message>
        <source>entry %1, %2: %3</source>
        <translation>entrée %1, %2&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>TrafficModel</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nœud</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Duration (µs)</source>
        <translation>Durée (µs)</translation>
    </message>
</context>
<context>
    <name>TrafficView</name>
    <message>
        <source>Save traffic</source>
        <translation>Enregistrer le trafic</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>Fichiers CSV (*.csv)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Writes only</source>
        <translation>Écritures uniquement</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
</context>
<context>
    <name>TriggerConfigWdgImpl</name>
    <message>
        <source>TCP Server</source>
        <translation>Serveur TCP</translation>
    </message>
    <message>
        <source>Auto Trigger</source>
        <translation>Déclenchement auto</translation>
    </message>
    <message>
        <source>Sensing Trigger</source>
        <translation>Déclenchement détection</translation>
    </message>
    <message>
        <source>TCP Client</source>
        <translation>Client TCP</translation>
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
        <translation>Configuration </translation>
    </message>
</context>
<context>
    <name>VyTriggerConfigWidgetImpl</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Trigger Config</source>
        <translation>Configuration du déclenchement</translation>
    </message>
    <message>
        <source>Trigger Stop Config</source>
        <translation>Configuration de l’arrêt</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyBlockWidget</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Ajouter à %1</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyMultiCheckTitleWidget</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
</TS>
