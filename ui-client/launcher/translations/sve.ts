<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sammanfoga</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>En konflikt uppstod när filen synkroniserades.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ogiltig parameter.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Ett nätverksfel uppstod. Kontrollera nätverksanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokal lagring</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Anslut igen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>Den valda mappen är inte tom. Filerna i den sammanfogas med filerna på servern.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Kontrollerar ditt konto...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Anslutningen har upprättats.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>Mappen ”%1” finns redan. Vill du sammanfoga innehållet?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Starta Nimbulo Pelora automatiskt när jag loggar in</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Felaktigt användarnamn eller lösenord.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Byt synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Sökväg till mapp</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Kom igång med Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Nyligen uppdaterade filer</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Uppdaterad</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Öppna Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Identifierar ändringar...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Anslutningen till servern har brutits.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Aktivera synkronisering</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autentiseringen misslyckades</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktanslutning</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nätverk</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Kontrollerar anslutningen...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Reläanslutning</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Det gick inte att ansluta automatiskt på grund av ett systemfel.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Delningslänkar är inaktiverade på servern. Kontakta administratören.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 filer har uppdaterats</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Du har bara läsbehörighet till den här mappen. Lokala ändringar laddas inte upp.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Din lagringskvot på servern är full. Frigör utrymme för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Anslutningstyp</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Anslutningsinformation</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändra</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Välj en mapp.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Det gick inte att ansluta automatiskt. Kontrollera serveradressen och försök igen.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Delade mappar</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Ändringarna har inte sparats. Vill du ignorera dem?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kvoten är full</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Lokal mapp</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Det gick inte att aktivera synkronisering för den här delade mappen.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Mappen står i konflikt med en annan synkroniseringsuppgift.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Du har nått det högsta tillåtna antalet synkroniserade delade mappar.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tillämpar inställningar...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Ange ett portnummer mellan 1 och 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Delad mapp</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Ange proxyserverns adress och port.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Ange ditt användarnamn.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfiguration</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
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
        <translation>Det finns inga ändringar att tillämpa.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Proxyservern kräver autentisering</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Uppdaterar filer...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Motstridiga ändringar behålls i båda kopiorna: den lokala kopian byter namn med datorns namn.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Serveradress</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Ange serverns IP-adress, värdnamn eller relä-ID.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Serverns synkroniseringstjänst är inaktuell. Be administratören att uppdatera den.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa skrivbordsaviseringar</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Visa synkroniseringsstatus på filikoner</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Kryptera anslutningen med SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Använd en enfärgad ikon i meddelandefältet</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsproblem</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 har delat ”%2” med dig.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delad mapp</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerar filer...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Filer och mappar som matchar de här reglerna synkroniseras inte.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Filnamnstillägg:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Uppdaterar Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Vill du sluta synkronisera ”%1”?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Delning är inaktiverad</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Monteringspunkter stöds inte</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Det gick inte att ta bort synkroniseringsuppgiften.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>Det nya språket används när Nimbulo Pelora har startats om.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Den lokala disken är full. Frigör utrymme för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Vill du koppla från den här servern? Dina lokala filer behålls.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laddar upp...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Språk:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synkroniserar %1 filer</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Filnamn:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Blockerade filer</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>Den lokala synkroniseringsdatabasen är skadad. Koppla synkroniseringsuppgiften igen.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Största filstorlek:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filtrera filer</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Undantagna filtyper:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Mappar som du avmarkerar tas bort från den här datorn men finns kvar på servern.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Sammanfogningsläge</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Synkroniseringsläge</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Redigera anslutning</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>En monteringspunkt kan inte användas som synkroniseringsmapp.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Nedladdningen avbröts.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Du har inte behörighet att utföra den här åtgärden.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Din lagringskvot är full</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Den lokala disken är full</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Åtkomst nekad</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerna stämmer inte överens</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Det gick inte att hämta din kontoinformation från servern.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Ett synkroniseringsproblem har upptäckts</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Datornamn</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>Anslutningen är instabil. Försöker igen...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Laddar ned %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Försöker synkronisera igen...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Säkerhetsvarning</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverad</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Nedladdningen är klar.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Fortsätt ändå</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Filterregler</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Bläddra bland tidigare versioner</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Om du slutar synkronisera ”%1” tas den lokala kopian bort. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Säker anslutning</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Välj den mapp på den här datorn som dina filer ska synkroniseras till.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>och %1 till</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Delning</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Det gick inte att ladda ned filen.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Översikt</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Servern har bytts ut eller återställts</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Certifikatet kunde inte verifieras</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserar...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Serverns SSL-certifikat kunde inte verifieras. Anslutningen kanske inte är säker.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Klart</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Den här synkroniseringsuppgiften är inaktiv. Klicka för att återuppta den.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Filen kan inte laddas ned just nu.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Det gick inte att visa tidigare versioner av filen.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Det gick inte att skapa en delningslänk för filen.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Vänteläge</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Dubbelklicka på ikonen i meddelandefältet för att öppna synkroniseringsmappen</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indexerar mappen...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Välkommen till installationsguiden för Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora kunde inte initieras.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Tillbaka</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Klart att installera Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Vissa filer som måste uppdateras används just nu.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Licensavtal för slutanvändare</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Installationsguiden för Nimbulo Pelora har slutförts</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Stäng inte programmen. Datorn måste startas om.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Installationsfel</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicka på Slutför för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora har installerats.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Starta Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Ändra, reparera eller ta bort installationen</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Här kan du ändra hur funktionerna installeras.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>Synkroniseringsmappen ligger på en volym som inte är monterad.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>Filversionen är ogiltig.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Vill du avbryta installationen av Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Endast nedladdning</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Du har bara läsbehörighet till den här mappen. Ändringar som du gör här laddas inte upp.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Läs följande licensavtal noggrant.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Läs licensavtalet och godkänn det för att fortsätta.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Avbryt installationen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora håller filerna på den här datorn synkroniserade med din NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorera</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installera</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Nästa &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparera</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Synkroniseringsstatus</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Den lokala synkroniseringsmappen ”%1” hittades inte. Den kan ha flyttats eller tagits bort.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Installationen av Nimbulo Pelora avslutades i förtid på grund av ett fel. Inga ändringar har gjorts i systemet.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Om du vill installera programmet senare kör du installationsguiden igen. Klicka på Slutför för att avsluta.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Installationen avslutades i förtid</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Stäng alla program och försök starta om dem.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Stäng de program som använder filer som installationsprogrammet måste uppdatera.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Följande program använder filer som installationsprogrammet måste uppdatera. Stäng dem och klicka på Försök igen för att fortsätta.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Reparerar fel i den senaste installationen genom att åtgärda saknade och skadade filer, genvägar och registerposter.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Följande program använder filer som måste uppdateras.\nStäng dem, eller låt installationsprogrammet stänga dem och försöka starta om dem.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Filer som används</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora har inga fristående funktioner att välja.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Ändra de installerade funktionerna</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Välj den åtgärd du vill utföra.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Tar bort Nimbulo Pelora från datorn.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Ta bort installationen</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparera installationen</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Välj den åtgärd du vill utföra.\nDina synkroniseringsinställningar behålls.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Med installationsguiden kan du ändra hur Nimbulo Pelora installeras, reparera programmet eller ta bort det från datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Välkommen till installationen av Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Vänta medan installationsguiden installerar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Det här kan ta några minuter.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Installerar Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Installerar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Installera för att starta installationen. Klicka på Tillbaka om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Installationsguiden är redo att starta installationen.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Klicka på Installera för att börja.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Klicka på Ta bort för att ta bort Nimbulo Pelora från datorn. Dina synkroniserade filer behålls.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>Installationsguiden är redo att ta bort Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Klicka på Ta bort för att börja.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Ta bort Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Klicka på Reparera för att reparera installationen av Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>Installationsguiden är redo att reparera Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Klicka på Reparera för att börja.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Reparera Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Installationen av Nimbulo Pelora avbröts. Inga ändringar har gjorts i systemet.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Om du vill installera programmet senare kör du installationen igen. Klicka på Slutför för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Installationen avbröts</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Installationsguiden installerar Nimbulo Pelora på datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Ändra, reparera eller ta bort Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Installationen är klar.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Installationen avbröts.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Ett fel uppstod under installationen.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Den här guiden hjälper dig genom installationen.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Jag godkänner villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Anslut till en annan NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Synkroniseringshistorik</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Synkronisering aktiverad</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Mappar att synkronisera</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Dina filer, på alla enheter.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Dina filer synkroniseras nu i bakgrunden. Du hittar dem i %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Vill du koppla från synkroniseringsuppgiften ”%1”? Filer som redan finns på den här datorn behålls.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Visa en ikon på filer som inte synkroniseras</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>Relä-ID:t ”%1” finns inte.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synkroniseringsuppgifter</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Servern har ändrats. Kontrollera dina synkroniseringsuppgifter.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Den delade mappen är inte monterad på servern.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>Fjärrmappen är inte tillgänglig. Den kan ligga i en krypterad delad mapp som inte är monterad.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Filer som börjar med en punkt</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 är redan installerat.\nVill du installera om programmet?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Du behöver administratörsbehörighet för att installera Nimbulo Pelora.\nKör installationsprogrammet som administratör.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Synkronisera dina filer med Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Fildelning är inte tillgänglig via en LinkVane-anslutning.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>tis</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Öppna mappen som innehåller filen</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Välj hur du vill konfigurera Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Snabbkonfiguration</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Högerklicka på en fil i synkroniseringsmappen för att dela den eller bläddra bland tidigare versioner.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Uppfattat</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Öppna menyn i meddelandefältet när som helst för att se vad som synkroniseras.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Ändringar som du gör laddas upp så fort du sparar dem.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>För %1 timmar sedan</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Synkronisera inte den här mappen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Skapa en ny mapp på din NAS som ska synkroniseras med den här datorn.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Mappen synkroniseras redan</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Mappen synkroniseras redan av en annan synkroniseringsuppgift.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Förbereder synkronisering...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Nyligen ändrade</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>För %1 dagar sedan</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Nyss</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>För %1 minuter sedan</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 objekt</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Ändringstid</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Nyckelord</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Förra månaden</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Förra veckan</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Återuppta synkroniseringen av den här mappen</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Återuppta synkroniseringen av de här mapparna</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Synkronisera inte de här mapparna</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Inga data</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Skicka till</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Synkroniserar nu: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Sök efter filnamn</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Filtyp</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>fre</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Händelse</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alla händelser</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Anpassad</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumintervall</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Nedladdning</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Uppladdning</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>mån</translation>
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
        <translation>mar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
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
        <translation>lör</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>sön</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>tors</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>ons</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Avancerat läge</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Visa inte det här meddelandet igen</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Dina filer synkroniseras nu med mappen ”%1” på din NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora har konfigurerats. Din hemmapp på din NAS synkroniseras nu med den här datorn.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Konfigurationen är klar</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Filer som du lägger i synkroniseringsmappen hålls uppdaterade på din NAS och på dina andra enheter.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>Ikonen i meddelandefältet visar synkroniseringsstatus i en snabb överblick.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Konfigurationsläge</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Synkronisera din hemmapp på din NAS med en mapp på den här datorn.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tack</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Ikon i meddelandefältet</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Delning och versioner</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Sök efter NAS i det lokala nätverket</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Anslut med LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lösenord:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Användarnamn:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Välkommen till Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Visa huvudfönstret</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Uppdatering tillgänglig</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Mapp på din NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Ny synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synkronisera en ny mapp</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Avancerad konfiguration</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Öppna synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Välj vilken mapp på din NAS som ska synkroniseras, var den ska sparas på den här datorn och hur den ska synkroniseras.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Filer som är större än %1 MB synkroniseras inte.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Hitta NAS i det lokala nätverket</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Du har bara läsbehörighet till ”%1”. Ändringar som görs på den här datorn laddas inte upp.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>”%1” kan inte användas som synkroniseringsmapp.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Fler tips</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>Mappen ”%1” överlappar synkroniseringsmappen för en annan uppgift.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Mappen synkroniseras redan med ”%1”.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>Mappen ”%1” synkroniseras redan med en mapp på din NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Skapa en ”Nimbulo”-mapp på den valda platsen</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopiera delningslänk</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Det gick inte att hämta en delningslänk eftersom delning är inaktiverad på servern.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>Serverns SSL-certifikat har ändrats. Litar du på det nya certifikatet?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Din IP-adress får inte ansluta till den här servern.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>När samma fil har ändrats på båda sidor:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>Synkroniseringsriktningen stämmer inte med behörigheterna för den här mappen.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Föregående %1 sidor</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nästa %1 sidor</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Öppna fil</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kopplar från...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>För många misslyckade försök. Försök igen senare.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Filen är låst av ett annat program.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Det gick inte att kontrollera ”%1” på grund av ett nätverksfel.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Behåll den senast ändrade versionen</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Dubbelriktad synkronisering</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Ange adressen till din NAS och ditt konto.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Det gick inte att skapa den lokala mappen ”%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Välj en mapp på din NAS och en mapp på den här datorn som ska synkroniseras med varandra.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Ange synkroniseringsmappar</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synkroniserar nu ”%1” på din NAS med ”%2” på den här datorn.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Vid filkonflikter behålls serverns kopia och den lokala kopian säkerhetskopieras.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Aktivera synkronisering vid behov</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Verifieringskoden är felaktig.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Det här kontot kräver en verifieringskod.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Ange verifieringskoden från din autentiseringsapp:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Din kvot på din NAS är full. ”%1” kan inte synkroniseras.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Servercertifikatet har ändrats. Det går inte att synkronisera ”%1”.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Servercertifikatet kan inte verifieras. Det går inte att synkronisera ”%1”.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Ett systemfel uppstod när synkroniseringsmappen kontrollerades.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Skriv över den lokala kopian med serverns kopia</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Behåll båda kopiorna och byt namn på den lokala</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>En nyare version av Nimbulo Pelora (%1) är redan installerad.\nInstallationsprogrammet avslutas nu.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora är klar.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora initialiserar...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Ingen mapp som du kan synkronisera hittades.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Visa introduktionen</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Filerna i den lokala mappen sammanfogas med filerna på din NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Starta Nimbulo Pelora när datorn startar</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Ett fel har uppstått i Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora körs.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Den här versionen av Nimbulo Pelora stöds inte längre. Uppdatera programmet.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Klicka för att uppdatera Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Uppdatera synkroniseringstjänsten på servern för att använda selektiv synkronisering.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på den här datorn för att synkronisera ”%1”.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Logga in på din NAS för att börja synkronisera.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Håll filerna på den här datorn synkroniserade med din NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Den delade mappen hittades inte</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Om Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Administratören kräver tvåstegsverifiering. Aktivera den i dina kontoinställningar först.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Den delade mappens kvot är full.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Synkroniseringsriktning</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Ett problem uppstod när Nimbulo Pelora synkroniserade. Klicka för mer information.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora håller dina filer uppdaterade på alla dina enheter.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Vissa fält innehåller ogiltiga värden.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Du har inte behörighet till ”%1”.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Ditt konto har inaktiverats. Det går inte att synkronisera ”%1”.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adress</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Upphör efter</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Inga alternativ tillgängliga</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Du behöver ett konto på en NAS där synkroniseringstjänsten är installerad.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Autentiseringen misslyckades. Kontrollera användarnamn och lösenord.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Använd * för att matcha valfria tecken. Avgränsa posterna med kommatecken.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Envägsnedladdning</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Det finns redan en mapp med namnet ”%1”.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Synkronisera utökade attribut</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Jag godkänner inte villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Delningslänk</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Upphör den</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Fältet är obligatoriskt.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Begränsa åtkomsten till användare med ett konto</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Visa Nimbulo Pelora på snabbmenyn</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Hemmappstjänsten är inaktiverad på din NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Det gick inte att uppdatera Nimbulo Pelora. Försök igen senare.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Verkställ och kopiera länk</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Begränsa antalet åtkomster</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Tillgänglig från</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>En ny version av Nimbulo Pelora krävs för att ansluta till den här servern. Vill du uppdatera nu?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Lägg till filnamn</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokalt mål</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Fjärr-NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Ladda ned den valda versionen</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Anpassad varaktighet</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Uppdatera synkroniseringshistoriken</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Synkronisering vid behov</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filtrera synkroniseringshistoriken</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Lägg till mapp</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nästa månad</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Föregående månad</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Byt synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Händelsekategori</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Information om synkroniseringsuppgiften</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Fjärrmål</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Stäng introduktionen</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Introduktion: lär dig att använda Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Avbryt nedladdningen</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Ta bort version</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Det gick inte att aktivera synkronisering vid behov för ”%1”.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Filen är inte tillgänglig eftersom det inte finns någon anslutning till servern.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Namnet ändrades på den här datorn</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Namnet ändrades på servern</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Ange högst %1 tecken.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Ditt lösenord har gått ut. Ändra det på servern och logga in igen.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Mappen har synkroniserats av en annan användare. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Reläanslutningar är inaktiverade på servern.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Autentiseringen misslyckades för ”%1”. Logga in igen.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Det gick inte att hämta länken till filen.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Tillfälliga filer</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senare</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Grattis!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Mappar som andra har delat med dig</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Du har bara läsbehörighet till den här mappen. Ändringar som du gör här stannar på den här datorn.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synkroniserar nu ”%1” på servern med ”%2” på den här datorn.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Visa introduktionen till Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora körs i bakgrunden.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Logga in på din server för att börja synkronisera.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Det gick inte att uppdatera Nimbulo Pelora. Ladda ned den senaste versionen och installera den igen.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Du behöver ett konto på en server där synkroniseringstjänsten är installerad.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Motstridiga ändringar behålls i båda kopiorna: serverns kopia byter namn med användarnamnet.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Introduktion: lär dig att synkronisera med Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>Server-ID:t ”%1” finns inte.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Starta Nimbulo Pelora när jag loggar in</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Välj en mapp på servern och en mapp på den här datorn.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Den här synkroniseringsuppgiften tillhör en annan server.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Servern använder ett protokoll som den här versionen av Nimbulo Pelora inte stöder.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Disken är full. Nimbulo Pelora har pausat synkroniseringen.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Ett fel har uppstått i Nimbulo Pelora. Starta om programmet.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>Den valda mappen är inte tom. Filerna i den laddas upp till servern.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Ladda endast ned ändringar från servern</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Dina filer synkroniseras nu med mappen ”%1” på servern.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 är redan installerat.\nVill du installera om programmet?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme för att synkronisera ”%1”. Frigör utrymme och försök igen.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Håll filerna på den här datorn synkroniserade med din server.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Skapa en ”Varnex Pelora”-mapp på den valda platsen</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>En nyare version av Varnex Pelora (%1) är redan installerad.\nInstallationsprogrammet avslutas nu.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Synkronisera valfri mapp på servern.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Den automatiska konfigurationen misslyckades. Konfigurera Nimbulo Pelora manuellt.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Slutför den automatiska konfigurationen...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Dela</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Inga data tillgängliga.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Inga delade mappar är tillgängliga.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Filen eller mappen finns inte.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora har konfigurerats av administratören.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Interna användare</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Serverns användare kan visa filen.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Serverns användare kan visa och redigera filen.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Vissa personer</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Endast personer som du bjuder in har åtkomst till filen.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Alla som har länken</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Alla som har länken kan visa filen.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Alla som har länken kan visa och redigera filen.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kan visa</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Kan redigera</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Bjud in</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Länk</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Länkbehörighet:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Användare och grupper</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Använd en svartvit ikon i menyraden</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Visa synkroniseringsmappen i sidofältet i filfönster</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visning</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Det gick inte att ansluta till servern</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Aviseringar</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 kommenterade %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 nämnde dig i %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 begärde åtkomst till %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 delade %2 med dig</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Öppna i webbportalen</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Delat</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Konfigurera</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 begär åtkomst till den här filen.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentarer</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Omnämnanden</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Vill du även synkronisera mapparna som har delats med dig?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Envägsuppladdning</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Ta inte bort filer på servern när de tas bort lokalt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>”%1” har laddats ned.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Dina filer är synkroniserade på alla enheter.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Du kan också komma åt dina filer från webbportalen.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Din synkroniseringsuppgift är klar.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Starta rundturen</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Filer och mappar som andra delar med dig kan också synkroniseras till den här datorn.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Kanske senare</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synkronisera nu</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Delat med mig</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Skapa synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Välj vad du vill synkronisera.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Allmän synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Filer som delats med mig</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Synkronisera filerna och mapparna som andra har delat med dig.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Välj en mapp på din NAS och en mapp på den här datorn.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Den här synkroniseringsuppgiften tillhör en annan NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Din NAS använder ett protokoll som den här versionen av Nimbulo Pelora inte stöder.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Disken är full. Synkroniseringen har pausats.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Ladda endast ned ändringar från din NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Det gick inte att uppdatera Nimbulo Pelora. Försök igen senare.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Du är redan ansluten till den här NAS:en.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Ändringar på nätverksenheter kan identifieras med fördröjning.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>SSL-certifikatet för %1 har ändrats.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Det går inte att upprätta en säker anslutning till servern.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Välkommen!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Filerna i din hemmapp på din NAS finns nu i %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Filerna i din hemmapp på servern finns nu i %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Disken är full</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Serverns synkroniseringstjänst är inaktuell</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>Den delade mappen finns inte längre.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Klicka för att uppdatera till Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Den här versionen av Nimbulo Pelora är för gammal för att ansluta till servern. Uppdatera programmet.</translation>
    </message>
</context>
</TS>
