<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Andere map kiezen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Er is een conflict opgetreden bij het synchroniseren van dit bestand.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ongeldige parameter.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Er is een netwerkfout opgetreden. Controleer uw netwerkverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokale opslag</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opnieuw verbinden</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Verbinding testen...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>De geselecteerde map is niet leeg. De bestanden erin worden samengevoegd met de bestanden op de server.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Uw account controleren...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Verbinding geslaagd.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>De map “%1” bestaat al. Wilt u de inhoud samenvoegen?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Nimbulo Pelora automatisch starten wanneer ik me aanmeld</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Onjuiste gebruikersnaam of onjuist wachtwoord.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Synchronisatiemap wijzigen</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Map niet leeg</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Aan de slag met Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Onderbreken</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Recent bijgewerkte bestanden</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Bijgewerkt</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Nimbulo Pelora openen</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Wijzigingen detecteren...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Verbinding met de server verbroken.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Synchronisatie inschakelen</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Verificatie mislukt</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Directe verbinding</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokaal netwerk</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Verbinding controleren...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relayverbinding</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Kan niet automatisch verbinden vanwege een systeemfout.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Deellinks zijn uitgeschakeld op de server. Neem contact op met uw beheerder.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 bestanden bijgewerkt</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>U hebt alleen leesrechten voor deze map. Lokale wijzigingen worden niet geüpload.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Uw opslagquotum op de server is vol. Maak ruimte vrij om verder te synchroniseren.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Verbindingstype</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Verbindingsgegevens</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Wijzigen</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Selecteer een map.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Kan niet automatisch verbinden. Controleer het serveradres en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Gedeelde mappen</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Uw wijzigingen zijn niet opgeslagen. Wilt u ze negeren?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Quotum vol</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Lokale map</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Kan synchronisatie voor deze gedeelde map niet inschakelen.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Deze map conflicteert met een andere synchronisatietaak.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>U hebt het maximale aantal gesynchroniseerde gedeelde mappen bereikt.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Instellingen toepassen...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Voer een poortnummer tussen 1 en 65535 in.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Gedeelde map</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Voer het adres en de poort van de proxyserver in.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Voer uw gebruikersnaam in.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Handmatige proxyconfiguratie</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Geen proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Proxyinstellingen van het systeem gebruiken</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>Geen wijzigingen om toe te passen.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Proxyserver vereist verificatie</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Bestanden bijwerken...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Conflicterende wijzigingen worden in beide kopieën bewaard: de lokale kopie krijgt de computernaam in de bestandsnaam.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Serveradres</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Voer het IP-adres, de hostnaam of de relay-ID van de server in.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>De synchronisatieservice van de server is verouderd. Vraag uw beheerder deze bij te werken.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Bureaubladmeldingen weergeven</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Synchronisatiestatus op bestandspictogrammen weergeven</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Verbinding versleutelen met SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Monochroom systeemvakpictogram gebruiken</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synchronisatieprobleem</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 heeft “%2” met u gedeeld.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nieuwe gedeelde map</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Bestanden controleren...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Bestanden en mappen die aan deze regels voldoen, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Bestandsextensies:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora bijwerken...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Bijwerken</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Weet u zeker dat u wilt stoppen met het synchroniseren van “%1”?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Delen uitgeschakeld</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Koppelpunt niet ondersteund</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Kan deze synchronisatietaak niet verwijderen.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>De nieuwe taal wordt toegepast nadat Nimbulo Pelora opnieuw is gestart.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>De lokale schijf is vol. Maak ruimte vrij om verder te synchroniseren.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Weet u zeker dat u de koppeling met deze server wilt verbreken? Uw lokale bestanden blijven behouden.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploaden...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systeemstandaard</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Taal:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 bestanden synchroniseren</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloaden...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Geavanceerde instellingen</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Bestandsnamen:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Geblokkeerde bestanden</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>De lokale synchronisatiedatabase is beschadigd. Koppel deze synchronisatietaak opnieuw.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximale bestandsgrootte:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Bestanden filteren</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Uitgesloten bestandstypen:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Mappen die u deselecteert, worden van deze computer verwijderd maar blijven op de server bewaard.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Samenvoegmodus</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Synchronisatiemodus</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Verbinding bewerken</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Onderbroken</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Een koppelpunt kan niet als synchronisatiemap worden gebruikt.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Het downloaden is geannuleerd.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Nu starten</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>U bent niet gemachtigd om deze bewerking uit te voeren.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Beheren</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Uw opslagquotum is vol</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>De lokale schijf is vol</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versies komen niet overeen</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Kan uw accountgegevens niet ophalen van de server.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Synchronisatieprobleem gedetecteerd</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Computernaam</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>De verbinding is instabiel. Opnieuw proberen...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 downloaden...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinden...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Synchronisatie opnieuw proberen...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Beveiligingswaarschuwing</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Downloaden voltooid.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Toch doorgaan</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Filterregels</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Vorige versies bekijken</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Als u stopt met het synchroniseren van “%1”, wordt de lokale kopie verwijderd. Doorgaan?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Beveiligde verbinding</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Kies de map op deze computer waarin uw bestanden worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>en nog %1</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Kan het bestand niet downloaden.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>De server is vervangen of opnieuw ingesteld</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Certificaatverificatie mislukt</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchroniseren...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Het SSL-certificaat van de server kan niet worden geverifieerd. De verbinding is mogelijk niet veilig.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Deze synchronisatietaak is inactief. Klik om deze te hervatten.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactief</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Dit bestand kan op dit moment niet worden gedownload.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Kan de vorige versies van dit bestand niet weergeven.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Kan geen deellink voor dit bestand maken.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Dubbelklik op het systeemvakpictogram om de synchronisatiemap te openen</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Map indexeren...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Welkom bij de installatiewizard van Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora kan niet worden geïnitialiseerd.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Vorige</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Gereed om Nimbulo Pelora te installeren</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Sommige bestanden die moeten worden bijgewerkt, zijn momenteel in gebruik.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Gebruiksrechtovereenkomst</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>De installatiewizard van Nimbulo Pelora is voltooid</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Toepassingen niet sluiten. De computer moet opnieuw worden opgestart.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Installatiefout</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik op Voltooien om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora is geïnstalleerd.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Nimbulo Pelora starten</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Installatie wijzigen, herstellen of verwijderen</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Hiermee wijzigt u de manier waarop onderdelen worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>De synchronisatiemap staat op een volume dat niet is gekoppeld.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>De bestandsversie is ongeldig.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Weet u zeker dat u de installatie van Nimbulo Pelora wilt annuleren?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Alleen downloaden</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>U hebt alleen leestoegang tot deze map. Wijzigingen die u hier aanbrengt, worden niet geüpload.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lees de volgende licentieovereenkomst aandachtig door.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Lees de licentieovereenkomst en accepteer deze om door te gaan.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Installatie annuleren</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora houdt de bestanden op deze computer gesynchroniseerd met uw NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installeren</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Volgende &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Synchronisatiestatus</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>De lokale synchronisatiemap “%1” is niet gevonden. Mogelijk is deze verplaatst of verwijderd.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>De installatie van Nimbulo Pelora is vanwege een fout voortijdig beëindigd. Uw systeem is niet gewijzigd.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Als u dit programma later wilt installeren, voert u de installatiewizard opnieuw uit. Klik op Voltooien om af te sluiten.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Installatie voortijdig beëindigd</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Alle toepassingen sluiten en proberen ze opnieuw te starten.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Sluit de toepassingen die bestanden gebruiken die het installatieprogramma moet bijwerken.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>De volgende toepassingen gebruiken bestanden die het installatieprogramma moet bijwerken. Sluit deze toepassingen en klik op Opnieuw om door te gaan.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Herstelt fouten in de meest recente installatie door ontbrekende en beschadigde bestanden, snelkoppelingen en registervermeldingen te repareren.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>De volgende toepassingen gebruiken bestanden die moeten worden bijgewerkt.\nSluit deze toepassingen of laat het installatieprogramma ze sluiten en opnieuw starten.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Bestanden in gebruik</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora heeft geen afzonderlijke onderdelen om te selecteren.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>De geïnstalleerde onderdelen wijzigen</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Selecteer de bewerking die u wilt uitvoeren.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Verwijdert Nimbulo Pelora van uw computer.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>De installatie verwijderen</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>De installatie herstellen</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Selecteer de bewerking die u wilt uitvoeren.\nUw synchronisatie-instellingen blijven behouden.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Met de installatiewizard kunt u de manier wijzigen waarop Nimbulo Pelora is geïnstalleerd, het programma herstellen of het van uw computer verwijderen. Klik op Volgende om door te gaan of op Annuleren om af te sluiten.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Welkom bij de installatie van Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Een ogenblik geduld. De installatiewizard installeert Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dit kan enkele minuten duren.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora installeren...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Nimbulo Pelora installeren</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Installeren om de installatie te starten. Klik op Vorige om uw installatie-instellingen te controleren of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>De installatiewizard is gereed om met de installatie te beginnen.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Klik op Installeren om te beginnen.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Klik op Verwijderen om Nimbulo Pelora van uw computer te verwijderen. Uw gesynchroniseerde bestanden blijven behouden.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>De installatiewizard is gereed om Nimbulo Pelora te verwijderen.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Klik op Verwijderen om te beginnen.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Nimbulo Pelora verwijderen</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Klik op Herstellen om de installatie van Nimbulo Pelora te herstellen.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>De installatiewizard is gereed om Nimbulo Pelora te herstellen.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Klik op Herstellen om te beginnen.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Nimbulo Pelora herstellen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>De installatie van Nimbulo Pelora is onderbroken. Uw systeem is niet gewijzigd.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Als u dit programma later wilt installeren, voert u de installatie opnieuw uit. Klik op Voltooien om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Installatie onderbroken</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>De installatiewizard installeert Nimbulo Pelora op uw computer. Klik op Volgende om door te gaan of op Annuleren om af te sluiten.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora wijzigen, herstellen of verwijderen.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>De installatie is voltooid.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>De installatie is geannuleerd.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Er is een fout opgetreden tijdens de installatie.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Deze wizard begeleidt u bij de installatie.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Ik ga akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Verbinden met een andere NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Synchronisatiegeschiedenis</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Synchronisatie ingeschakeld</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Mappen om te synchroniseren</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Uw bestanden, op elk apparaat.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Uw bestanden worden nu op de achtergrond gesynchroniseerd. U vindt ze in %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Weet u zeker dat u de synchronisatietaak “%1” wilt ontkoppelen? Bestanden die al op deze computer staan, blijven behouden.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Bestandsfilters</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Een pictogram weergeven op bestanden die niet worden gesynchroniseerd</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>De relay-ID “%1” bestaat niet.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Voorkeuren</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>De server is gewijzigd. Controleer uw synchronisatietaken.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>De gedeelde map is niet gekoppeld op de server.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>De externe map is niet beschikbaar. Mogelijk staat deze in een versleutelde gedeelde map die niet is gekoppeld.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Bestanden die met een punt beginnen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 is al geïnstalleerd.\nWilt u het opnieuw installeren?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>U hebt beheerdersrechten nodig om Nimbulo Pelora te installeren.\nVoer het installatieprogramma uit als beheerder.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Synchroniseer uw bestanden met Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Bestanden delen is niet beschikbaar via een LinkVane-verbinding.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>di</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Bovenliggende map openen</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Kies hoe u Nimbulo Pelora wilt instellen.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Snel instellen</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Klik met de rechtermuisknop op een bestand in de synchronisatiemap om het te delen of de vorige versies te bekijken.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Begrepen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Open op elk moment het systeemvakmenu om te zien wat er wordt gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Uw wijzigingen worden geüpload zodra u ze opslaat.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 uur geleden</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Deze map niet synchroniseren</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Maak een nieuwe map op de NAS om met deze computer te synchroniseren.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Map al gesynchroniseerd</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Deze map wordt al gesynchroniseerd door een andere synchronisatietaak.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Naam wijzigen</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Synchronisatie voorbereiden...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Recent gewijzigd</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dagen geleden</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Zojuist</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuten geleden</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Wijzigingstijd</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Trefwoord</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Vorige week</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Synchronisatie van deze map hervatten</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Synchronisatie van deze mappen hervatten</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Deze mappen niet synchroniseren</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Geen gegevens</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Verzenden naar</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Wordt gesynchroniseerd: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Zoeken op bestandsnaam</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>vr</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Gebeurtenis</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle gebeurtenissen</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Aangepast</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumbereik</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Downloaden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Opnieuw instellen</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Uploaden</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>ma</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dec</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>jan</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mrt</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>okt</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sep</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>za</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>zo</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>do</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>wo</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Geavanceerde modus</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Dit bericht niet meer weergeven</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Uw bestanden worden nu gesynchroniseerd met de map “%1” op de NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora is ingesteld. Uw thuismap op de NAS wordt nu gesynchroniseerd met deze computer.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Instellen voltooid</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Bestanden die u in de synchronisatiemap plaatst, blijven up-to-date op de NAS en op uw andere apparaten.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>Het systeemvakpictogram toont in één oogopslag de synchronisatiestatus.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Instelmodus</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Synchroniseer uw thuismap op de NAS met een map op deze computer.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nee, bedankt</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synchronisatiemap</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Systeemvakpictogram</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Delen en versies</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Zoeken naar NAS in het lokale netwerk</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Verbinden met LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Welkom bij Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Hoofdvenster weergeven</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Update beschikbaar</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Map op de NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nieuwe synchronisatiemap</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Een nieuwe map synchroniseren</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Geavanceerd instellen</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Synchronisatiestatus openen</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Kies welke map op de NAS u wilt synchroniseren, waar u deze op deze computer wilt bewaren en hoe u deze wilt synchroniseren.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Bestanden groter dan %1 MB worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>NAS zoeken in het lokale netwerk</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>U hebt alleen leesrechten voor “%1”. Wijzigingen op deze computer worden niet geüpload.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>“%1” kan niet als synchronisatiemap worden gebruikt.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Meer tips</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>De map “%1” overlapt met de synchronisatiemap van een andere taak.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Deze map wordt al gesynchroniseerd met “%1”.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>De map “%1” wordt al gesynchroniseerd met een map op de NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Een map “Nimbulo” maken op de geselecteerde locatie</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Deellink kopiëren</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Kan geen deellink ophalen omdat delen is uitgeschakeld op de server.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>Het SSL-certificaat van de server is gewijzigd. Vertrouwt u het nieuwe certificaat?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Uw IP-adres mag geen verbinding maken met deze server.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Als hetzelfde bestand aan beide kanten is gewijzigd:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>De synchronisatierichting komt niet overeen met de rechten voor deze map.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorige %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Volgende %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Bestand openen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Ontkoppelen...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Te veel mislukte pogingen. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Dit bestand is vergrendeld door een andere toepassing.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Kan “%1” niet controleren vanwege een netwerkfout.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>De meest recent gewijzigde versie behouden</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisatie in twee richtingen</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Voer het adres van uw NAS en uw accountgegevens in.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Kan de lokale map “%1” niet maken.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Selecteer een map op de NAS en een map op deze computer die met elkaar worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Synchronisatiemappen instellen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synchroniseert nu “%1” op de NAS met “%2” op deze computer.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Bij conflicten blijft de kopie van de server behouden en wordt er een back-up van de lokale kopie gemaakt.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Synchronisatie op aanvraag inschakelen</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>De verificatiecode is onjuist.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Voor dit account is een verificatiecode vereist.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Voer de verificatiecode uit uw verificatie-app in:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Uw quotum op de NAS is vol. “%1” kan niet worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Het servercertificaat is gewijzigd. Kan “%1” niet synchroniseren.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Het servercertificaat kan niet worden geverifieerd. Kan “%1” niet synchroniseren.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Er is een systeemfout opgetreden bij het controleren van de synchronisatiemap.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>De lokale kopie overschrijven met de kopie van de server</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Beide kopieën behouden en de lokale kopie een andere naam geven</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Er is al een nieuwere versie van Nimbulo Pelora (%1) geïnstalleerd.\nHet installatieprogramma wordt nu afgesloten.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora is gereed.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora is bezig met initialisatie...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Er is geen map gevonden die u kunt synchroniseren.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>De zelfstudie weergeven</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Bestanden in de lokale map worden samengevoegd met de bestanden op de NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Nimbulo Pelora starten wanneer de computer opstart</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Er is een fout opgetreden in Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora wordt uitgevoerd.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Deze versie van Nimbulo Pelora wordt niet meer ondersteund. Werk deze bij.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Klik om Nimbulo Pelora bij te werken</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Werk de synchronisatieservice op de server bij om selectieve synchronisatie te gebruiken.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Er is onvoldoende vrije ruimte op deze computer om “%1” te synchroniseren.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Meld u aan bij uw NAS om te beginnen met synchroniseren.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Houd de bestanden op deze computer gesynchroniseerd met uw NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Gedeelde map niet gevonden</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Over Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Uw beheerder vereist verificatie in twee stappen. Schakel deze eerst in bij uw accountinstellingen.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Het quotum van de gedeelde map is vol.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Synchronisatierichting</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora heeft een probleem ondervonden bij het synchroniseren. Klik voor details.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora houdt uw bestanden up-to-date op al uw apparaten.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Sommige velden bevatten ongeldige waarden.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>U hebt geen toegang tot “%1”.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Uw account is uitgeschakeld. Kan “%1” niet synchroniseren.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Verloopt na</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Geen opties beschikbaar</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>U hebt een account nodig op een NAS waarop de synchronisatieservice is geïnstalleerd.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Verificatie mislukt. Controleer uw gebruikersnaam en wachtwoord.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Gebruik * voor willekeurige tekens. Scheid items met komma&apos;s.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Eenrichtingsdownload</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Er bestaat al een map met de naam “%1”.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Uitgebreide kenmerken synchroniseren</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Ik ga niet akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Deellink</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Verloopt op</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Dit veld is verplicht.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Toegang beperken tot gebruikers met een account</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Nimbulo Pelora weergeven in het contextmenu</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>De thuismapservice is uitgeschakeld op de NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Kan Nimbulo Pelora niet bijwerken. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Toepassen en link kopiëren</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Aantal keren openen beperken</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Beschikbaar vanaf</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Er is een nieuwe versie van Nimbulo Pelora nodig om verbinding te maken met deze server. Nu bijwerken?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Bestandsnaam toevoegen</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokale bestemming</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Externe NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Deze computer</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>De geselecteerde versie downloaden</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Aangepaste duur</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Synchronisatiegeschiedenis vernieuwen</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Synchronisatie op aanvraag</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Synchronisatiegeschiedenis filteren</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Map toevoegen</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Agenda</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Volgende maand</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisatiemap wijzigen</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Gebeurteniscategorie</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Details van synchronisatietaak</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Externe bestemming</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Zelfstudie sluiten</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Zelfstudie: leer hoe u Nimbulo Pelora gebruikt.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Downloaden annuleren</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Versie verwijderen</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Kan synchronisatie op aanvraag niet inschakelen voor “%1”.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Dit bestand is niet beschikbaar omdat er geen verbinding met de server is.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Naam gewijzigd op deze computer</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Naam gewijzigd op de server</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Voer maximaal %1 tekens in.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Uw wachtwoord is verlopen. Wijzig het op de server en meld u opnieuw aan.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Deze map is door een andere gebruiker gesynchroniseerd. Kies een andere map.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Relayverbindingen zijn uitgeschakeld op de server.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Verificatie mislukt voor “%1”. Meld u opnieuw aan.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Kan de link naar dit bestand niet ophalen.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Tijdelijke bestanden</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Gefeliciteerd!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Mappen die anderen met u hebben gedeeld</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>U hebt alleen leestoegang tot deze map. Wijzigingen die u hier aanbrengt, blijven op deze computer.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synchroniseert nu “%1” op de server met “%2” op deze computer.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>De zelfstudie van Nimbulo Pelora weergeven</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora wordt op de achtergrond uitgevoerd.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Meld u aan bij uw server om te beginnen met synchroniseren.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nimbulo Pelora kan niet worden bijgewerkt. Download de nieuwste versie en installeer deze opnieuw.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>U hebt een account nodig op een server waarop de synchronisatieservice is geïnstalleerd.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Conflicterende wijzigingen worden in beide kopieën bewaard: de kopie op de server krijgt de gebruikersnaam in de bestandsnaam.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Zelfstudie: leer hoe u synchroniseert met Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>De server-ID “%1” bestaat niet.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Nimbulo Pelora starten wanneer ik me aanmeld</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Kies een map op de server en een map op deze computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Deze synchronisatietaak hoort bij een andere server.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>De server gebruikt een protocol dat deze versie van Nimbulo Pelora niet ondersteunt.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>De schijf is vol. Nimbulo Pelora heeft de synchronisatie onderbroken.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Er is een fout opgetreden in Nimbulo Pelora. Start het programma opnieuw.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>De geselecteerde map is niet leeg. De bestanden erin worden naar de server geüpload.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Alleen wijzigingen van de server downloaden</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Uw bestanden worden nu gesynchroniseerd met de map “%1” op de server.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 is al geïnstalleerd.\nWilt u het opnieuw installeren?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Onvoldoende vrije ruimte om “%1” te synchroniseren. Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Houd de bestanden op deze computer gesynchroniseerd met uw server.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Een map “Varnex Pelora” maken op de geselecteerde locatie</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Er is al een nieuwere versie van Varnex Pelora (%1) geïnstalleerd.\nHet installatieprogramma wordt nu afgesloten.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Synchroniseer een map naar keuze op de server.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Automatisch instellen is mislukt. Stel Nimbulo Pelora handmatig in.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Automatisch instellen voltooien...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Geen gegevens beschikbaar.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Er zijn geen gedeelde mappen beschikbaar.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Het bestand of de map bestaat niet.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora is geconfigureerd door uw beheerder.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Interne gebruikers</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Gebruikers van de server kunnen het bestand bekijken.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Gebruikers van de server kunnen het bestand bekijken en bewerken.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Specifieke personen</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Alleen personen die u uitnodigt, hebben toegang tot het bestand.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Iedereen met de link</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Iedereen met de link kan het bestand bekijken.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Iedereen met de link kan het bestand bekijken en bewerken.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kan bekijken</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Kan bewerken</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Uitnodigen</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Linkrechten:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Gebruikers en groepen</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Een zwart-wit pictogram gebruiken in de menubalk</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>De synchronisatiemap weergeven in de navigatiekolom van bestandsvensters</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Weergave</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Kan geen verbinding maken met de server</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 heeft gereageerd op %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 heeft u vermeld in %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 heeft toegang tot %2 aangevraagd</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 heeft %2 met u gedeeld</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Openen in webportal</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisatie</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Gedeeld</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Instellen</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 vraagt toegang tot dit bestand.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Reacties</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Vermeldingen</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Ook de mappen synchroniseren die met u zijn gedeeld?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Eenrichtingsupload</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Bestanden op de server niet verwijderen wanneer ze lokaal worden verwijderd</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>“%1” is gedownload.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Uw bestanden zijn gesynchroniseerd op al uw apparaten.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>U kunt uw bestanden ook openen via het webportal.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Uw synchronisatietaak is gereed.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Rondleiding starten</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Bestanden en mappen die anderen met u delen, kunnen ook met deze computer worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Misschien later</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Nu synchroniseren</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Gedeeld met mij</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Synchronisatietaak maken</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Kies wat u wilt synchroniseren.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Algemene synchronisatietaak</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Bestanden gedeeld met mij</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Synchroniseer de bestanden en mappen die anderen met u hebben gedeeld.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Kies een map op de NAS en een map op deze computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Deze synchronisatietaak hoort bij een andere NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>De NAS gebruikt een protocol dat deze versie van Nimbulo Pelora niet ondersteunt.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>De schijf is vol. De synchronisatie is onderbroken.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Alleen wijzigingen van de NAS downloaden</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nimbulo Pelora kan niet worden bijgewerkt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>U bent al verbonden met deze NAS.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Wijzigingen op netwerkstations worden mogelijk met vertraging gedetecteerd.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>Het SSL-certificaat van %1 is gewijzigd.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Er kan geen beveiligde verbinding met de server worden gemaakt.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Welkom!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>De bestanden in uw thuismap op de NAS staan nu in %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>De bestanden in uw thuismap op de server staan nu in %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>De schijf is vol</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>De synchronisatieservice van de server is verouderd</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>De gedeelde map bestaat niet meer.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Klik om bij te werken naar Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Deze versie van Nimbulo Pelora is te oud om verbinding te maken met de server. Werk deze bij.</translation>
    </message>
</context>
</TS>
