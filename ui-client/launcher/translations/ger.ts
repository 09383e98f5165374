<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Anderen Ordner wählen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Beim Synchronisieren dieser Datei ist ein Konflikt aufgetreten.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ungültiger Parameter.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Ein Netzwerkfehler ist aufgetreten. Bitte überprüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertig stellen</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokaler Speicher</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Erneut verbinden</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Verbindung wird getestet ...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>Der ausgewählte Ordner ist nicht leer. Die darin enthaltenen Dateien werden mit den Dateien auf dem Server zusammengeführt.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Ihr Konto wird überprüft ...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Verbindung erfolgreich hergestellt.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>Der Ordner „%1“ ist bereits vorhanden. Möchten Sie seinen Inhalt zusammenführen?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Nimbulo Pelora bei der Anmeldung automatisch starten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Benutzername oder Kennwort ist falsch.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Synchronisierungsordner ändern</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Ordner nicht leer</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Erste Schritte mit Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Kürzlich aktualisierte Dateien</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Nimbulo Pelora öffnen</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Änderungen werden erkannt ...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Die Verbindung zum Server wurde getrennt.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Synchronisierung aktivieren</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Authentifizierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte Verbindung</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Verbindung wird geprüft ...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relay-Verbindung</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Aufgrund eines Systemfehlers ist keine automatische Verbindung möglich.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Freigabelinks sind auf dem Server deaktiviert. Bitte wenden Sie sich an Ihren Administrator.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 Dateien aktualisiert</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Sie haben für diesen Ordner nur Leseberechtigung. Lokale Änderungen werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Ihr Speicherkontingent auf dem Server ist erschöpft. Geben Sie Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Verbindungstyp</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Verbindungsinformationen</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Bitte wählen Sie einen Ordner aus.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Keine automatische Verbindung möglich. Bitte überprüfen Sie die Serveradresse und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Freigegebene Ordner</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Ihre Änderungen wurden nicht gespeichert. Möchten Sie sie verwerfen?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kontingent erschöpft</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Lokaler Ordner</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Die Synchronisierung für diesen freigegebenen Ordner kann nicht aktiviert werden.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Dieser Ordner steht in Konflikt mit einer anderen Synchronisierungsaufgabe.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Sie haben die maximale Anzahl synchronisierter freigegebener Ordner erreicht.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Einstellungen werden übernommen ...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Bitte geben Sie eine Portnummer zwischen 1 und 65535 ein.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Freigegebener Ordner</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Bitte geben Sie die Adresse und den Port des Proxyservers ein.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Bitte geben Sie Ihren Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuelle Proxykonfiguration</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Kein Proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Proxyeinstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>Keine Änderungen zu übernehmen.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Proxyserver erfordert Authentifizierung</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Dateien werden aktualisiert ...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Bei widersprüchlichen Änderungen werden beide Kopien behalten: Die lokale Kopie wird mit dem Computernamen umbenannt.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Geben Sie die IP-Adresse, den Hostnamen oder die Relay-ID des Servers ein.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Der Synchronisierungsdienst des Servers ist veraltet. Bitten Sie Ihren Administrator, ihn zu aktualisieren.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Desktopbenachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Synchronisierungsstatus an Dateisymbolen anzeigen</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Verbindung mit SSL verschlüsseln</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Einfarbiges Taskleistensymbol verwenden</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synchronisierungsproblem</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 hat „%2“ für Sie freigegeben.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Neuer freigegebener Ordner</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dateien werden geprüft ...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Dateien und Ordner, die diesen Regeln entsprechen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Dateierweiterungen:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora wird aktualisiert ...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Möchten Sie die Synchronisierung von „%1“ wirklich beenden?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Freigabe deaktiviert</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Einhängepunkt nicht unterstützt</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Diese Synchronisierungsaufgabe kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>Die neue Sprache wird nach einem Neustart von Nimbulo Pelora übernommen.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Der lokale Datenträger ist voll. Geben Sie Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Möchten Sie die Verknüpfung mit diesem Server wirklich aufheben? Ihre lokalen Dateien bleiben erhalten.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet ...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wird hochgeladen ...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen ...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 Dateien werden synchronisiert</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen ...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Dateinamen:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Blockierte Dateien</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>Die lokale Synchronisierungsdatenbank ist beschädigt. Bitte verknüpfen Sie diese Synchronisierungsaufgabe erneut.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximale Dateigröße:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Dateien filtern</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Ausgeschlossene Dateitypen:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Ordner, deren Auswahl Sie aufheben, werden von diesem Computer entfernt, bleiben aber auf dem Server erhalten.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Zusammenführungsmodus</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Synchronisierungsmodus</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Ein Einhängepunkt kann nicht als Synchronisierungsordner verwendet werden.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Der Download wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Sie sind nicht berechtigt, diesen Vorgang auszuführen.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Ihr Speicherkontingent ist erschöpft</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Der lokale Datenträger ist voll</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionskonflikt</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Ihre Kontoinformationen können nicht vom Server abgerufen werden.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Synchronisierungsproblem erkannt</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>Die Verbindung ist instabil. Neuer Versuch ...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 wird heruntergeladen ...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt ...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Synchronisierung wird erneut versucht ...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Sicherheitswarnung</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download abgeschlossen.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Trotzdem fortfahren</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Filterregeln</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Frühere Versionen durchsuchen</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Wenn Sie die Synchronisierung von „%1“ beenden, wird die lokale Kopie entfernt. Fortfahren?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Sichere Verbindung</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Wählen Sie den Ordner auf diesem Computer, in den Ihre Dateien synchronisiert werden.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Freigabe</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Die Datei kann nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Der Server wurde ersetzt oder zurückgesetzt</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Zertifikatsprüfung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Wird synchronisiert ...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Das SSL-Zertifikat des Servers konnte nicht überprüft werden. Die Verbindung ist möglicherweise nicht sicher.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Diese Synchronisierungsaufgabe ist inaktiv. Klicken Sie, um sie fortzusetzen.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Diese Datei kann derzeit nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Die früheren Versionen dieser Datei können nicht aufgelistet werden.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Für diese Datei kann kein Freigabelink erstellt werden.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Doppelklicken Sie auf das Taskleistensymbol, um den Synchronisierungsordner zu öffnen</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Ordner wird indiziert ...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Willkommen beim Setup-Assistenten für Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora konnte nicht initialisiert werden.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Zurück</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Bereit zur Installation von Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Einige Dateien, die aktualisiert werden müssen, werden zurzeit verwendet.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Endbenutzer-Lizenzvertrag</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Der Setup-Assistent für Nimbulo Pelora wurde abgeschlossen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Anwendungen nicht schließen. Ein Neustart ist erforderlich.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Setupfehler</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicken Sie auf „Fertig stellen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora wurde erfolgreich installiert.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Nimbulo Pelora starten</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Installation ändern, reparieren oder entfernen</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Hiermit können Sie ändern, wie Funktionen installiert werden.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>Der Synchronisierungsordner befindet sich auf einem nicht eingehängten Volume.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>Die Dateiversion ist ungültig.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Möchten Sie die Installation von Nimbulo Pelora wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Nur herunterladen</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Sie haben nur Lesezugriff auf diesen Ordner. Ihre Änderungen hier werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Bitte lesen Sie den folgenden Lizenzvertrag sorgfältig durch.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Bitte lesen Sie den Lizenzvertrag und akzeptieren Sie ihn, um fortzufahren.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Setup abbrechen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora hält die Dateien auf diesem Computer mit Ihrem NAS synchron.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Weiter &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Synchronisierungsstatus</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Der lokale Synchronisierungsordner „%1“ wurde nicht gefunden. Er wurde möglicherweise verschoben oder gelöscht.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Das Setup von Nimbulo Pelora wurde aufgrund eines Fehlers vorzeitig beendet. Ihr System wurde nicht geändert.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Um dieses Programm zu einem späteren Zeitpunkt zu installieren, führen Sie den Setup-Assistenten erneut aus. Klicken Sie zum Beenden auf „Fertig stellen“.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Setup vorzeitig beendet</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Alle Anwendungen schließen und versuchen, sie neu zu starten.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Schließen Sie die Anwendungen, die Dateien verwenden, die das Setup aktualisieren muss.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die das Setup aktualisieren muss. Schließen Sie diese Anwendungen, und klicken Sie auf „Wiederholen“, um fortzufahren.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Behebt Fehler in der letzten Installation, indem fehlende und beschädigte Dateien, Verknüpfungen und Registrierungseinträge repariert werden.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die aktualisiert werden müssen.\nSchließen Sie diese Anwendungen, oder lassen Sie sie vom Setup schließen und neu starten.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Dateien in Verwendung</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora enthält keine separat auswählbaren Funktionen.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Installierte Funktionen ändern</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Wählen Sie den gewünschten Vorgang aus.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Entfernt Nimbulo Pelora von Ihrem Computer.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Installation entfernen</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Installation reparieren</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Wählen Sie den gewünschten Vorgang aus.\nIhre Synchronisierungseinstellungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Mit dem Setup-Assistenten können Sie die Installation von Nimbulo Pelora ändern, reparieren oder Nimbulo Pelora von Ihrem Computer entfernen. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Willkommen beim Setup von Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Bitte warten Sie, während der Setup-Assistent Nimbulo Pelora installiert.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dies kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora wird installiert ...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Nimbulo Pelora wird installiert</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Installieren“, um die Installation zu starten. Klicken Sie auf „Zurück“, um Ihre Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Der Setup-Assistent ist bereit, mit der Installation zu beginnen.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Klicken Sie auf „Installieren“, um zu beginnen.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Klicken Sie auf „Entfernen“, um Nimbulo Pelora von Ihrem Computer zu entfernen. Ihre synchronisierten Dateien bleiben erhalten.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>Der Setup-Assistent ist bereit, Nimbulo Pelora zu entfernen.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Klicken Sie auf „Entfernen“, um zu beginnen.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Nimbulo Pelora entfernen</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Klicken Sie auf „Reparieren“, um die Installation von Nimbulo Pelora zu reparieren.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>Der Setup-Assistent ist bereit, Nimbulo Pelora zu reparieren.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Klicken Sie auf „Reparieren“, um zu beginnen.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Nimbulo Pelora reparieren</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Das Setup von Nimbulo Pelora wurde unterbrochen. Ihr System wurde nicht geändert.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Um dieses Programm zu einem späteren Zeitpunkt zu installieren, führen Sie die Installation erneut aus. Klicken Sie auf „Fertig stellen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Setup unterbrochen</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Der Setup-Assistent installiert Nimbulo Pelora auf Ihrem Computer. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora ändern, reparieren oder entfernen.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Das Setup ist abgeschlossen.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Das Setup wurde abgebrochen.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Während des Setups ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Dieser Assistent führt Sie durch die Installation.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Ich akzeptiere die Bedingungen des Lizenzvertrags</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Mit einem anderen NAS verbinden</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Synchronisierungsverlauf</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Synchronisierung aktiviert</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Zu synchronisierende Ordner</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Ihre Dateien auf allen Geräten.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Ihre Dateien werden jetzt im Hintergrund synchronisiert. Sie finden sie unter %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Möchten Sie die Verknüpfung der Synchronisierungsaufgabe „%1“ wirklich aufheben? Dateien, die sich bereits auf diesem Computer befinden, bleiben erhalten.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Dateifilter</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Symbol an Dateien anzeigen, die nicht synchronisiert werden</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>Die Relay-ID „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synchronisierungsaufgaben</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Der Server hat sich geändert. Bitte überprüfen Sie Ihre Synchronisierungsaufgaben.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Der freigegebene Ordner ist auf dem Server nicht eingehängt.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>Der Remote-Ordner ist nicht verfügbar. Er befindet sich möglicherweise in einem verschlüsselten freigegebenen Ordner, der nicht eingehängt ist.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Dateien, die mit einem Punkt beginnen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 ist bereits installiert.\nMöchten Sie es erneut installieren?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Zur Installation von Nimbulo Pelora sind Administratorrechte erforderlich.\nBitte führen Sie das Installationsprogramm als Administrator aus.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Synchronisieren Sie Ihre Dateien mit Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Die Dateifreigabe ist über eine LinkVane-Verbindung nicht verfügbar.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Übergeordneten Ordner öffnen</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Wählen Sie, wie Sie Nimbulo Pelora einrichten möchten.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Schnelleinrichtung</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Klicken Sie mit der rechten Maustaste auf eine Datei im Synchronisierungsordner, um sie freizugeben oder ihre früheren Versionen zu durchsuchen.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Öffnen Sie jederzeit das Taskleistenmenü, um zu sehen, was gerade synchronisiert wird.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Ihre Änderungen werden hochgeladen, sobald Sie sie speichern.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Vor %1 Stunden</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Diesen Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Erstellen Sie einen neuen Ordner auf dem NAS, der mit diesem Computer synchronisiert wird.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Ordner bereits synchronisiert</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Dieser Ordner wird bereits von einer anderen Synchronisierungsaufgabe synchronisiert.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Synchronisierung wird vorbereitet ...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Kürzlich geändert</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Vor %1 Tagen</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Vor %1 Minuten</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Änderungszeit</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Stichwort</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Synchronisierung dieses Ordners fortsetzen</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Synchronisierung dieser Ordner fortsetzen</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Diese Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Senden an</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Wird synchronisiert: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Nach Dateiname suchen</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle Ereignisse</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Hochladen</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Feb.</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Jan.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>März</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Okt.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep.</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Erweiterter Modus</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Ihre Dateien werden jetzt mit dem Ordner „%1“ auf dem NAS synchronisiert.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora ist eingerichtet. Ihr Home-Ordner auf dem NAS wird jetzt mit diesem Computer synchronisiert.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Einrichtung abgeschlossen</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Dateien, die Sie in den Synchronisierungsordner legen, werden auf dem NAS und auf Ihren anderen Geräten aktuell gehalten.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>Das Taskleistensymbol zeigt den Synchronisierungsstatus auf einen Blick.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Einrichtungsmodus</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Synchronisieren Sie Ihren Home-Ordner auf dem NAS mit einem Ordner auf diesem Computer.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nein, danke</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synchronisierungsordner</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Taskleistensymbol</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Freigabe und Versionen</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Im lokalen Netzwerk nach NAS suchen</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Mit LinkVane verbinden</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kennwort:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Willkommen bei Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Hauptfenster anzeigen</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Ordner auf dem NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Neuer Synchronisierungsordner</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Neuen Ordner synchronisieren</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Erweiterte Einrichtung</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Synchronisierungsstatus öffnen</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Wählen Sie, welcher Ordner auf dem NAS synchronisiert wird, wo er auf diesem Computer gespeichert wird und wie er synchronisiert wird.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Dateien größer als %1 MB werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>NAS im lokalen Netzwerk suchen</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Sie haben für „%1“ nur Leseberechtigung. Änderungen auf diesem Computer werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>„%1“ kann nicht als Synchronisierungsordner verwendet werden.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Weitere Tipps</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>Der Ordner „%1“ überschneidet sich mit dem Synchronisierungsordner einer anderen Aufgabe.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Dieser Ordner wird bereits mit „%1“ synchronisiert.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>Der Ordner „%1“ wird bereits mit einem Ordner auf dem NAS synchronisiert.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Ordner „Nimbulo“ am ausgewählten Speicherort erstellen</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Freigabelink kopieren</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Es kann kein Freigabelink abgerufen werden, da die Freigabe auf dem Server deaktiviert ist.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>Das SSL-Zertifikat des Servers hat sich geändert. Vertrauen Sie dem neuen Zertifikat?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Ihre IP-Adresse darf keine Verbindung zu diesem Server herstellen.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Wenn dieselbe Datei auf beiden Seiten geändert wurde:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>Die Synchronisierungsrichtung passt nicht zu den Berechtigungen dieses Ordners.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorherige %1 Seiten</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nächste %1 Seiten</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Verknüpfung wird aufgehoben ...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Zu viele fehlgeschlagene Versuche. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Diese Datei ist durch eine andere Anwendung gesperrt.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>„%1“ kann aufgrund eines Netzwerkfehlers nicht geprüft werden.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Die zuletzt geänderte Version behalten</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Bidirektionale Synchronisierung</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Geben Sie die Adresse Ihres NAS und Ihre Kontodaten ein.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Der lokale Ordner „%1“ kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Wählen Sie einen Ordner auf dem NAS und einen Ordner auf diesem Computer aus, die miteinander synchronisiert werden sollen.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Synchronisierungsordner festlegen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synchronisiert jetzt „%1“ auf dem NAS mit „%2“ auf diesem Computer.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Bei Konflikten wird die Kopie des Servers behalten und die lokale Kopie gesichert.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Synchronisierung bei Bedarf aktivieren</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Der Bestätigungscode ist falsch.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Für dieses Konto ist ein Bestätigungscode erforderlich.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Geben Sie den Bestätigungscode aus Ihrer Authentifizierungs-App ein:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Ihr Kontingent auf dem NAS ist erschöpft. „%1“ kann nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Das Serverzertifikat hat sich geändert. „%1“ kann nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Das Serverzertifikat kann nicht überprüft werden. „%1“ kann nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Beim Prüfen des Synchronisierungsordners ist ein Systemfehler aufgetreten.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Lokale Kopie mit der Kopie des Servers überschreiben</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Beide Kopien behalten und die lokale umbenennen</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Eine neuere Version von Nimbulo Pelora (%1) ist bereits installiert.\nDas Setup wird jetzt beendet.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora ist bereit.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora wird initialisiert ...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Es wurde kein Ordner gefunden, den Sie synchronisieren können.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Tutorial anzeigen</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Dateien im lokalen Ordner werden mit den Dateien auf dem NAS zusammengeführt.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Nimbulo Pelora beim Hochfahren des Computers starten</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>In Nimbulo Pelora ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora wird ausgeführt.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Diese Version von Nimbulo Pelora wird nicht mehr unterstützt. Bitte aktualisieren Sie sie.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Klicken Sie, um Nimbulo Pelora zu aktualisieren</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Bitte aktualisieren Sie den Synchronisierungsdienst auf dem Server, um die selektive Synchronisierung zu verwenden.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Auf diesem Computer ist nicht genügend Speicherplatz frei, um „%1“ zu synchronisieren.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Melden Sie sich bei Ihrem NAS an, um mit der Synchronisierung zu beginnen.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Halten Sie die Dateien auf diesem Computer mit Ihrem NAS synchron.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Freigegebener Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Über Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Ihr Administrator verlangt die Bestätigung in zwei Schritten. Bitte aktivieren Sie sie zuerst in Ihren Kontoeinstellungen.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Das Kontingent des freigegebenen Ordners ist erschöpft.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Synchronisierungsrichtung</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Bei der Synchronisierung durch Nimbulo Pelora ist ein Problem aufgetreten. Klicken Sie für Details.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora hält Ihre Dateien auf all Ihren Geräten auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Einige Felder enthalten ungültige Werte.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Sie sind nicht berechtigt, auf „%1“ zuzugreifen.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Ihr Konto wurde deaktiviert. „%1“ kann nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Läuft ab nach</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Keine Optionen verfügbar</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Sie benötigen ein Konto auf einem NAS, auf dem der Synchronisierungsdienst installiert ist.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Authentifizierung fehlgeschlagen. Bitte überprüfen Sie Benutzername und Kennwort.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Verwenden Sie * als Platzhalter für beliebige Zeichen. Trennen Sie Einträge durch Kommas.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Nur herunterladen (unidirektional)</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Ein Ordner mit dem Namen „%1“ ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Erweiterte Attribute synchronisieren</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Ich akzeptiere die Bedingungen des Lizenzvertrags nicht</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Freigabelink</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Läuft ab am</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Dieses Feld ist erforderlich.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Zugriff auf Benutzer mit Konto beschränken</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Nimbulo Pelora im Kontextmenü anzeigen</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Der Home-Ordner-Dienst ist auf dem NAS deaktiviert.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Nimbulo Pelora kann nicht aktualisiert werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Übernehmen und Link kopieren</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Anzahl der Zugriffe begrenzen</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Verfügbar ab</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Für die Verbindung mit diesem Server ist eine neuere Version von Nimbulo Pelora erforderlich. Jetzt aktualisieren?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Dateinamen hinzufügen</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokales Ziel</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Remote-NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Ausgewählte Version herunterladen</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Benutzerdefinierte Dauer</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Synchronisierungsverlauf aktualisieren</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Synchronisierung bei Bedarf</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Synchronisierungsverlauf filtern</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisierungsordner ändern</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Ereigniskategorie</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Details der Synchronisierungsaufgabe</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Remote-Ziel</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Tutorial schließen</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Tutorial: So verwenden Sie Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Download abbrechen</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Version löschen</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Die Synchronisierung bei Bedarf kann für „%1“ nicht aktiviert werden.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Diese Datei ist nicht verfügbar, da keine Verbindung zum Server besteht.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Auf diesem Computer umbenannt</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Auf dem Server umbenannt</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Bitte geben Sie höchstens %1 Zeichen ein.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Ihr Kennwort ist abgelaufen. Bitte ändern Sie es auf dem Server und melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Dieser Ordner wurde von einem anderen Benutzer synchronisiert. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Relay-Verbindungen sind auf dem Server deaktiviert.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Authentifizierung für „%1“ fehlgeschlagen. Bitte melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Der Link zu dieser Datei kann nicht abgerufen werden.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Temporäre Dateien</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Herzlichen Glückwunsch!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Ordner, die andere für Sie freigegeben haben</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Sie haben nur Lesezugriff auf diesen Ordner. Ihre Änderungen hier bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synchronisiert jetzt „%1“ auf dem Server mit „%2“ auf diesem Computer.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Nimbulo Pelora-Tutorial anzeigen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora wird im Hintergrund ausgeführt.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Melden Sie sich bei Ihrem Server an, um mit der Synchronisierung zu beginnen.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nimbulo Pelora konnte nicht aktualisiert werden. Bitte laden Sie die neueste Version herunter und installieren Sie sie erneut.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Sie benötigen ein Konto auf einem Server, auf dem der Synchronisierungsdienst installiert ist.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Bei widersprüchlichen Änderungen werden beide Kopien behalten: Die Kopie auf dem Server wird mit dem Benutzernamen umbenannt.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Tutorial: So synchronisieren Sie mit Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>Die Server-ID „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Nimbulo Pelora bei meiner Anmeldung starten</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Wählen Sie einen Ordner auf dem Server und einen Ordner auf diesem Computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Diese Synchronisierungsaufgabe gehört zu einem anderen Server.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Der Server verwendet ein Protokoll, das von dieser Version von Nimbulo Pelora nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Der Datenträger ist voll. Nimbulo Pelora hat die Synchronisierung angehalten.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>In Nimbulo Pelora ist ein Fehler aufgetreten. Bitte starten Sie das Programm neu.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>Der ausgewählte Ordner ist nicht leer. Seine Dateien werden auf den Server hochgeladen.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Nur Änderungen vom Server herunterladen</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Ihre Dateien werden jetzt mit dem Ordner „%1“ auf dem Server synchronisiert.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 ist bereits installiert.\nMöchten Sie es erneut installieren?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Nicht genügend freier Speicherplatz, um „%1“ zu synchronisieren. Geben Sie Speicherplatz frei und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Halten Sie die Dateien auf diesem Computer mit Ihrem Server synchron.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Ordner „Varnex Pelora“ am ausgewählten Speicherort erstellen</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Eine neuere Version von Varnex Pelora (%1) ist bereits installiert.\nDas Setup wird jetzt beendet.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Synchronisieren Sie einen beliebigen Ordner auf dem Server.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Die automatische Einrichtung ist fehlgeschlagen. Bitte richten Sie Nimbulo Pelora manuell ein.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Automatische Einrichtung wird abgeschlossen ...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Freigeben</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Keine Daten verfügbar.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Keine freigegebenen Ordner verfügbar.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Die Datei oder der Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora wurde von Ihrem Administrator konfiguriert.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Interne Benutzer</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Benutzer des Servers können die Datei anzeigen.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Benutzer des Servers können die Datei anzeigen und bearbeiten.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Bestimmte Personen</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Nur von Ihnen eingeladene Personen können auf die Datei zugreifen.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Jeder mit dem Link</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Jeder mit dem Link kann die Datei anzeigen.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Jeder mit dem Link kann die Datei anzeigen und bearbeiten.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kann anzeigen</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Kann bearbeiten</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Einladen</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Linkberechtigung:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Benutzer und Gruppen</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Schwarz-weißes Symbol in der Menüleiste verwenden</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Synchronisierungsordner in der Seitenleiste von Dateifenstern anzeigen</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Verbindung zum Server nicht möglich</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 hat %2 kommentiert</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 hat Sie in %2 erwähnt</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 hat Zugriff auf %2 angefordert</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 hat %2 für Sie freigegeben</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Im Webportal öffnen</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisierung</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Freigegeben</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 fordert Zugriff auf diese Datei an.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Erwähnungen</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Auch die für Sie freigegebenen Ordner synchronisieren?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Nur hochladen (unidirektional)</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Dateien auf dem Server nicht entfernen, wenn sie lokal entfernt werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>„%1“ wurde heruntergeladen.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Ihre Dateien sind auf allen Geräten synchronisiert.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Sie können auch über das Webportal auf Ihre Dateien zugreifen.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Ihre Synchronisierungsaufgabe ist bereit.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Tour starten</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Dateien und Ordner, die andere für Sie freigeben, können ebenfalls mit diesem Computer synchronisiert werden.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Vielleicht später</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Jetzt synchronisieren</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Für mich freigegeben</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Synchronisierungsaufgabe erstellen</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Wählen Sie aus, was Sie synchronisieren möchten.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Allgemeine Synchronisierungsaufgabe</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Für mich freigegebene Dateien</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Synchronisieren Sie die Dateien und Ordner, die andere für Sie freigegeben haben.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Wählen Sie einen Ordner auf dem NAS und einen Ordner auf diesem Computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Diese Synchronisierungsaufgabe gehört zu einem anderen NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Das NAS verwendet ein Protokoll, das von dieser Version von Nimbulo Pelora nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Der Datenträger ist voll. Die Synchronisierung wurde angehalten.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Nur Änderungen vom NAS herunterladen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nimbulo Pelora konnte nicht aktualisiert werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Sie sind bereits mit diesem NAS verbunden.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Änderungen auf Netzlaufwerken werden möglicherweise verzögert erkannt.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>Das SSL-Zertifikat von %1 hat sich geändert.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Es kann keine sichere Verbindung zum Server hergestellt werden.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Willkommen!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Die Dateien in Ihrem Home-Ordner auf dem NAS befinden sich jetzt in %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Die Dateien in Ihrem Home-Ordner auf dem Server befinden sich jetzt in %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Der Datenträger ist voll</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Der Synchronisierungsdienst des Servers ist veraltet</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>Der freigegebene Ordner existiert nicht mehr.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Klicken Sie, um auf Nimbulo Pelora %1 zu aktualisieren</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Diese Version von Nimbulo Pelora ist zu alt, um eine Verbindung zum Server herzustellen. Bitte aktualisieren Sie sie.</translation>
    </message>
</context>
</TS>
