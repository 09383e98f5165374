<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Der opstod en konflikt under synkroniseringen af denne fil.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ugyldig parameter.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Der opstod en netværksfejl. Kontrollér netværksforbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokalt lager</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opret forbindelse igen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>Den valgte mappe er ikke tom. Filerne i den flettes med filerne på serveren.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Kontrollerer din konto...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Forbindelsen er oprettet.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>Mappen &quot;%1&quot; findes allerede. Vil du flette dens indhold?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Start Nimbulo Pelora automatisk, når jeg logger på</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Forkert brugernavn eller adgangskode.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Skift synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Kom i gang med Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Senest opdaterede filer</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Åbn Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Registrerer ændringer...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Forbindelsen til serveren er afbrudt.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Aktivér synkronisering</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Godkendelsen mislykkedes</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Kontrollerer forbindelsen...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relæforbindelse</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Der kunne ikke oprettes forbindelse automatisk på grund af en systemfejl.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Delingslinks er deaktiveret på serveren. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 filer opdateret</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Du har kun læseadgang til denne mappe. Lokale ændringer bliver ikke uploadet.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Din lagerkvote på serveren er opbrugt. Frigør plads for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Forbindelsestype</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Forbindelsesoplysninger</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Skift</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Vælg en mappe.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Der kunne ikke oprettes forbindelse automatisk. Kontrollér serveradressen, og prøv igen.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Dine ændringer er ikke gemt. Vil du kassere dem?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kvoten er opbrugt</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Synkronisering kunne ikke aktiveres for denne delte mappe.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Mappen er i konflikt med en anden synkroniseringsopgave.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Du har nået det maksimale antal synkroniserede delte mapper.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Anvender indstillinger...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Angiv et portnummer mellem 1 og 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Angiv proxyserverens adresse og port.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Angiv dit brugernavn.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuel proxykonfiguration</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
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
        <translation>Der er ingen ændringer at anvende.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Proxyserveren kræver godkendelse</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Opdaterer filer...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Modstridende ændringer bevares i begge kopier: den lokale kopi omdøbes med computerens navn.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Angiv serverens IP-adresse, værtsnavn eller relæ-id.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Synkroniseringstjenesten på serveren er forældet. Bed din administrator om at opdatere den.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsmeddelelser</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Vis synkroniseringsstatus på filikoner</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Kryptér forbindelsen med SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Brug et ensfarvet ikon i meddelelsesområdet</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsproblem</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 har delt &quot;%2&quot; med dig.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerer filer...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Filer og mapper, der matcher disse regler, bliver ikke synkroniseret.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Filtypenavne:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Opdaterer Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Opdater</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 af %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Er du sikker på, at du vil stoppe synkroniseringen af &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Deling er deaktiveret</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Monteringspunkt understøttes ikke</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Synkroniseringsopgaven kunne ikke fjernes.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>Det nye sprog anvendes, når Nimbulo Pelora genstartes.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Den lokale disk er fuld. Frigør plads for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Er du sikker på, at du vil fjerne tilknytningen til denne server? Dine lokale filer bevares.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploader...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprog:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synkroniserer %1 filer</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Filnavne:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Blokerede filer</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>Den lokale synkroniseringsdatabase er beskadiget. Tilknyt denne synkroniseringsopgave igen.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maksimal filstørrelse:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filtrer filer</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Udelukkede filtyper:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Mapper, som du fravælger, fjernes fra denne computer, men bevares på serveren.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Fletningstilstand</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Synkroniseringstilstand</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sat på pause</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Et monteringspunkt kan ikke bruges som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Downloaden blev annulleret.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Du har ikke tilladelse til at udføre denne handling.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Din lagerkvote er opbrugt</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Den lokale disk er fuld</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Adgang nægtet</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerne passer ikke sammen</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Dine kontooplysninger kunne ikke hentes fra serveren.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Der er registreret et synkroniseringsproblem</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>Forbindelsen er ustabil. Prøver igen...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Downloader %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Prøver at synkronisere igen...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Sikkerhedsadvarsel</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Downloaden er fuldført.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Fortsæt alligevel</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Filterregler</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiveret</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Hvis du stopper synkroniseringen af &quot;%1&quot;, fjernes den lokale kopi. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Sikker forbindelse</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Vælg den mappe på denne computer, som dine filer skal synkroniseres til.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>og %1 mere</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Deling</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Filen kunne ikke downloades.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Serveren er blevet udskiftet eller nulstillet</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Certifikatet kunne ikke bekræftes</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Serverens SSL-certifikat kunne ikke bekræftes. Forbindelsen er muligvis ikke sikker.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fuldført</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Denne synkroniseringsopgave er inaktiv. Klik for at genoptage den.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Filen kan ikke downloades lige nu.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>De tidligere versioner af denne fil kunne ikke vises.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Der kunne ikke oprettes et delingslink til denne fil.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Dobbeltklik på ikonet i meddelelsesområdet for at åbne synkroniseringsmappen</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indekserer mappe...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Velkommen til installationsguiden til Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora kunne ikke initialiseres.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Tilbage</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Klar til at installere Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Nogle af de filer, der skal opdateres, er i brug.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Slutbrugerlicensaftale</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Installationsguiden til Nimbulo Pelora er fuldført</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Udskriv</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Luk ikke programmerne. Det vil være nødvendigt at genstarte computeren.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Installationsfejl</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik på Udfør for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora er installeret.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Start Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Rediger, reparer eller fjern installationen</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Giver dig mulighed for at ændre, hvordan funktionerne installeres.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>Synkroniseringsmappen ligger på et drev, der ikke er monteret.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>Filversionen er ugyldig.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Er du sikker på, at du vil annullere installationen af Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Du har kun læseadgang til denne mappe. De ændringer, du foretager her, uploades ikke.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Læs følgende licensaftale omhyggeligt.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Læs licensaftalen, og accepter den for at fortsætte.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Annuller installationen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora holder filerne på denne computer synkroniseret med din NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Næste &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparer</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Synkroniseringsstatus</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Den lokale synkroniseringsmappe &quot;%1&quot; blev ikke fundet. Den er muligvis blevet flyttet eller slettet.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Installationen af Nimbulo Pelora blev afbrudt for tidligt på grund af en fejl. Der er ikke foretaget ændringer på systemet.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Hvis du vil installere programmet senere, skal du køre installationsguiden igen. Klik på Udfør for at afslutte.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Installationen blev afbrudt for tidligt</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Luk alle programmer, og forsøg at genstarte dem.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Luk de programmer, der bruger filer, som installationsprogrammet skal opdatere.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Følgende programmer bruger filer, som installationsprogrammet skal opdatere. Luk dem, og klik på Prøv igen for at fortsætte.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Reparerer fejl i den seneste installation ved at rette manglende og beskadigede filer, genveje og poster i registreringsdatabasen.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Følgende programmer bruger filer, der skal opdateres.\nLuk dem, eller lad installationsprogrammet lukke dem og forsøge at genstarte dem.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Filer i brug</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora har ingen uafhængige funktioner, der kan vælges.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Rediger de installerede funktioner</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Vælg den handling, du vil udføre.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Fjerner Nimbulo Pelora fra computeren.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Fjern installationen</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installationen</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Vælg den handling, du vil udføre.\nDine synkroniseringsindstillinger bevares.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Med installationsguiden kan du ændre, hvordan Nimbulo Pelora er installeret, reparere programmet eller fjerne det fra computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Velkommen til installationen af Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Vent, mens installationsguiden installerer Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dette kan tage nogle minutter.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Installerer Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Installerer Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Installer for at starte installationen. Klik på Tilbage for at gennemse eller ændre installationsindstillingerne. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Installationsguiden er klar til at starte installationen.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Klik på Installer for at starte.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Klik på Fjern for at fjerne Nimbulo Pelora fra computeren. Dine synkroniserede filer bevares.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>Installationsguiden er klar til at fjerne Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Klik på Fjern for at starte.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Fjern Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Klik på Reparer for at reparere installationen af Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>Installationsguiden er klar til at reparere Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Klik på Reparer for at starte.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Reparer Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Installationen af Nimbulo Pelora blev afbrudt. Der er ikke foretaget ændringer på systemet.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Hvis du vil installere programmet senere, skal du køre installationen igen. Klik på Udfør for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Installationen blev afbrudt</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Installationsguiden installerer Nimbulo Pelora på computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Rediger, reparer eller fjern Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Installationen er fuldført.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Installationen blev annulleret.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Der opstod en fejl under installationen.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Denne guide fører dig gennem installationen.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Jeg accepterer betingelserne i licensaftalen</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Opret forbindelse til en anden NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Synkroniseringshistorik</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Synkronisering aktiveret</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Dine filer på alle dine enheder.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Dine filer synkroniseres nu i baggrunden. Du kan finde dem i %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Er du sikker på, at du vil fjerne tilknytningen af synkroniseringsopgaven &quot;%1&quot;? Filer, der allerede findes på denne computer, bevares.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filfiltre</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oprettet</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Vis et ikon på filer, der ikke synkroniseres</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>Relæ-id&apos;et &quot;%1&quot; findes ikke.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Serveren er ændret. Kontrollér dine synkroniseringsopgaver.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Den delte mappe er ikke monteret på serveren.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>Fjernmappen er ikke tilgængelig. Den ligger muligvis i en krypteret delt mappe, der ikke er monteret.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Filer, der begynder med et punktum</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 er allerede installeret.\nVil du geninstallere programmet?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Du skal have administratorrettigheder for at installere Nimbulo Pelora.\nKør installationsprogrammet som administrator.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Synkroniser dine filer med Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Fildeling er ikke tilgængelig via en LinkVane-forbindelse.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>tir</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Åbn mappen med filen</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Vælg, hvordan du vil konfigurere Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Hurtig konfiguration</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Højreklik på en fil i synkroniseringsmappen for at dele den eller gennemse dens tidligere versioner.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Forstået</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Åbn menuen i meddelelsesområdet når som helst for at se, hvad der synkroniseres.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Dine ændringer uploades, så snart du gemmer dem.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 timer siden</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Synkroniser ikke denne mappe</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Opret en ny mappe på din NAS, som skal synkroniseres med denne computer.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Mappen synkroniseres allerede</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Mappen synkroniseres allerede af en anden synkroniseringsopgave.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Omdøb</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Forbereder synkronisering...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Senest ændret</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dage siden</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Lige nu</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 minutter siden</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementer</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Ændringstidspunkt</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søgeord</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Sidste måned</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Sidste uge</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Genoptag synkronisering af denne mappe</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Genoptag synkronisering af disse mapper</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Synkroniser ikke disse mapper</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Ingen data</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send til</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Synkroniserer nu: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Søg efter filnavn</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>fre</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Hændelse</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hændelser</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Brugerdefineret</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointerval</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Upload</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>man</translation>
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
        <translation>lør</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>søn</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>tor</translation>
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
        <translation>Avanceret tilstand</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Vis ikke denne meddelelse igen</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Dine filer synkroniseres nu med mappen &quot;%1&quot; på din NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora er konfigureret. Din hjemmemappe på din NAS synkroniseres nu med denne computer.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Konfigurationen er fuldført</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Filer, som du lægger i synkroniseringsmappen, holdes opdateret på din NAS og på dine andre enheder.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>Ikonet i meddelelsesområdet viser synkroniseringsstatus med et enkelt blik.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Konfigurationstilstand</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Synkroniser din hjemmemappe på din NAS med en mappe på denne computer.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tak</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Ikon i meddelelsesområdet</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Deling og versioner</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Søg efter NAS på det lokale netværk</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Opret forbindelse med LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Adgangskode:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Brugernavn:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Velkommen til Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Vis hovedvinduet</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Opdatering tilgængelig</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Mappe på din NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Ny synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synkroniser en ny mappe</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Avanceret konfiguration</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Åbn synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Vælg, hvilken mappe på din NAS der skal synkroniseres, hvor den skal ligge på denne computer, og hvordan den skal synkroniseres.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Filer, der er større end %1 MB, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Find NAS på det lokale netværk</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Du har kun læsetilladelse til &quot;%1&quot;. Ændringer, der foretages på denne computer, uploades ikke.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>&quot;%1&quot; kan ikke bruges som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Flere tip</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>Mappen &quot;%1&quot; overlapper synkroniseringsmappen for en anden opgave.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Mappen synkroniseres allerede med &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>Mappen &quot;%1&quot; synkroniseres allerede med en mappe på din NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Opret en &quot;Nimbulo&quot;-mappe på den valgte placering</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopiér delingslink</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Der kunne ikke hentes et delingslink, fordi deling er deaktiveret på serveren.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>Serverens SSL-certifikat er ændret. Har du tillid til det nye certifikat?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Din IP-adresse har ikke tilladelse til at oprette forbindelse til denne server.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Når den samme fil er blevet ændret begge steder:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>Synkroniseringsretningen passer ikke til tilladelserne for denne mappe.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Næste %1 sider</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Åbn fil</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>For mange mislykkede forsøg. Prøv igen senere.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Filen er låst af et andet program.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>&quot;%1&quot; kunne ikke kontrolleres på grund af en netværksfejl.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Behold den senest ændrede version</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tovejssynkronisering</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Angiv adressen på din NAS og dine kontooplysninger.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Den lokale mappe &quot;%1&quot; kunne ikke oprettes.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Vælg en mappe på din NAS og en mappe på denne computer, som skal synkroniseres med hinanden.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Angiv synkroniseringsmapper</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synkroniserer nu &quot;%1&quot; på din NAS med &quot;%2&quot; på denne computer.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Ved filkonflikter bevares serverens kopi, og der tages en sikkerhedskopi af den lokale kopi.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Aktivér synkronisering efter behov</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Bekræftelseskoden er forkert.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Denne konto kræver en bekræftelseskode.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Angiv bekræftelseskoden fra din godkendelsesapp:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Din kvote på din NAS er opbrugt. &quot;%1&quot; kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Servercertifikatet er ændret. &quot;%1&quot; kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Servercertifikatet kan ikke bekræftes. &quot;%1&quot; kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Der opstod en systemfejl under kontrollen af synkroniseringsmappen.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Overskriv den lokale kopi med serverens kopi</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Behold begge kopier, og omdøb den lokale</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>En nyere version af Nimbulo Pelora (%1) er allerede installeret.\nInstallationsprogrammet afsluttes nu.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora er klar.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora initialiserer...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Der blev ikke fundet nogen mappe, som du kan synkronisere.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis introduktionen</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Filerne i den lokale mappe flettes med filerne på din NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Start Nimbulo Pelora, når computeren starter</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Der opstod en fejl i Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora kører.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Denne version af Nimbulo Pelora understøttes ikke længere. Opdater programmet.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Klik for at opdatere Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Opdater synkroniseringstjenesten på serveren for at bruge selektiv synkronisering.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Der er ikke nok ledig plads på denne computer til at synkronisere &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Log på din NAS for at begynde at synkronisere.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Hold filerne på denne computer synkroniseret med din NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Den delte mappe blev ikke fundet</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Om Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Din administrator kræver totrinsbekræftelse. Aktivér den først i dine kontoindstillinger.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Kvoten for den delte mappe er opbrugt.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Der opstod et problem under synkroniseringen i Nimbulo Pelora. Klik for at se detaljer.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora holder dine filer opdateret på alle dine enheder.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Nogle felter indeholder ugyldige værdier.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Du har ikke tilladelse til at få adgang til &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Din konto er deaktiveret. &quot;%1&quot; kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Udløber efter</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Ingen tilgængelige indstillinger</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Du skal have en konto på en NAS, hvor synkroniseringstjenesten er installeret.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Godkendelsen mislykkedes. Kontrollér dit brugernavn og din adgangskode.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Brug * til at matche vilkårlige tegn. Adskil posterne med kommaer.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Envejsdownload</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Der findes allerede en mappe med navnet &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Synkroniser udvidede attributter</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Jeg accepterer ikke betingelserne i licensaftalen</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Delingslink</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Udløber den</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Feltet skal udfyldes.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Begræns adgangen til brugere med en konto</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Vis Nimbulo Pelora i genvejsmenuen</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Hjemmemappetjenesten er deaktiveret på din NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Nimbulo Pelora kunne ikke opdateres. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Anvend, og kopiér link</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Begræns antallet af adgange</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Tilgængelig fra</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Der kræves en ny version af Nimbulo Pelora for at oprette forbindelse til denne server. Vil du opdatere nu?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Tilføj filnavn</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokal destination</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Fjern-NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne computer</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Download den valgte version</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Brugerdefineret varighed</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Opdater synkroniseringshistorikken</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Synkronisering efter behov</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filtrer synkroniseringshistorikken</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Tilføj mappe</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Næste måned</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Skift synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Hændelseskategori</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Detaljer om synkroniseringsopgaven</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Fjerndestination</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Luk introduktionen</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Introduktion: Lær at bruge Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Annuller download</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Slet version</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Synkronisering efter behov kunne ikke aktiveres for &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Filen er ikke tilgængelig, fordi der ikke er forbindelse til serveren.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Omdøbt på denne computer</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Omdøbt på serveren</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Angiv højst %1 tegn.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Din adgangskode er udløbet. Skift den på serveren, og log på igen.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Mappen er blevet synkroniseret af en anden bruger. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Relæforbindelser er deaktiveret på serveren.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Godkendelsen mislykkedes for &quot;%1&quot;. Log på igen.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Linket til denne fil kunne ikke hentes.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Midlertidige filer</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senere</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Tillykke!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Mapper, som andre har delt med dig</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Du har kun læseadgang til denne mappe. De ændringer, du foretager her, forbliver på denne computer.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synkroniserer nu &quot;%1&quot; på serveren med &quot;%2&quot; på denne computer.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Vis introduktionen til Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora kører i baggrunden.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Log på din server for at begynde at synkronisere.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nimbulo Pelora kunne ikke opdateres. Download den nyeste version, og installer den igen.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Du skal have en konto på en server, hvor synkroniseringstjenesten er installeret.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Modstridende ændringer bevares i begge kopier: serverens kopi omdøbes med brugernavnet.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Introduktion: Lær at synkronisere med Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>Server-id&apos;et &quot;%1&quot; findes ikke.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Start Nimbulo Pelora, når jeg logger på</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Vælg en mappe på serveren og en mappe på denne computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Denne synkroniseringsopgave hører til en anden server.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Serveren bruger en protokol, som denne version af Nimbulo Pelora ikke understøtter.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Disken er fuld. Nimbulo Pelora har sat synkroniseringen på pause.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Der opstod en fejl i Nimbulo Pelora. Genstart programmet.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>Den valgte mappe er ikke tom. Filerne i den uploades til serveren.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Download kun ændringer fra serveren</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Dine filer synkroniseres nu med mappen &quot;%1&quot; på serveren.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 er allerede installeret.\nVil du geninstallere programmet?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Der er ikke nok ledig plads til at synkronisere &quot;%1&quot;. Frigør plads, og prøv igen.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Hold filerne på denne computer synkroniseret med din server.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Opret en &quot;Varnex Pelora&quot;-mappe på den valgte placering</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>En nyere version af Varnex Pelora (%1) er allerede installeret.\nInstallationsprogrammet afsluttes nu.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Synkroniser en valgfri mappe på serveren.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Den automatiske konfiguration mislykkedes. Konfigurer Nimbulo Pelora manuelt.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Afslutter den automatiske konfiguration...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Der er ingen tilgængelige data.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Der er ingen tilgængelige delte mapper.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Filen eller mappen findes ikke.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora er konfigureret af din administrator.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Interne brugere</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Brugere af serveren kan se filen.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Brugere af serveren kan se og redigere filen.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Bestemte personer</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Kun personer, du inviterer, kan få adgang til filen.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Alle med linket</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Alle med linket kan se filen.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Alle med linket kan se og redigere filen.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kan se</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Kan redigere</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Inviter</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Linktilladelse:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Brugere og grupper</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Brug et sort-hvidt ikon på menulinjen</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Vis synkroniseringsmappen i sidepanelet i filvinduer</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visning</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Der kunne ikke oprettes forbindelse til serveren</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Meddelelser</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 har kommenteret %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 har nævnt dig i %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 har anmodet om adgang til %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 har delt %2 med dig</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Åbn i webportalen</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Delt</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Konfigurer</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 anmoder om adgang til denne fil.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentarer</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Omtaler</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Vil du også synkronisere de mapper, der er delt med dig?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Envejsupload</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Fjern ikke filer på serveren, når de fjernes lokalt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>&quot;%1&quot; er downloadet.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Dine filer er synkroniseret på alle enheder.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Du kan også få adgang til dine filer via webportalen.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Din synkroniseringsopgave er klar.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Start rundvisning</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Filer og mapper, som andre deler med dig, kan også synkroniseres til denne computer.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Måske senere</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synkroniser nu</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Delt med mig</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Opret synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Vælg, hvad du vil synkronisere.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Generel synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Filer delt med mig</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Synkroniser de filer og mapper, som andre har delt med dig.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Vælg en mappe på din NAS og en mappe på denne computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Denne synkroniseringsopgave hører til en anden NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Din NAS bruger en protokol, som denne version af Nimbulo Pelora ikke understøtter.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Disken er fuld. Synkroniseringen er sat på pause.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Download kun ændringer fra din NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nimbulo Pelora kunne ikke opdateres. Prøv igen senere.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Du har allerede forbindelse til denne NAS.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Ændringer på netværksdrev registreres muligvis med forsinkelse.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>SSL-certifikatet for %1 er ændret.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Der kan ikke oprettes en sikker forbindelse til serveren.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Velkommen!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Filerne i din hjemmemappe på din NAS ligger nu i %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Filerne i din hjemmemappe på serveren ligger nu i %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Disken er fuld</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Synkroniseringstjenesten på serveren er forældet</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>Den delte mappe findes ikke længere.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Klik for at opdatere til Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Denne version af Nimbulo Pelora er for gammel til at oprette forbindelse til serveren. Opdater programmet.</translation>
    </message>
</context>
</TS>
