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
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Det oppstod en konflikt under synkroniseringen av denne filen.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ugyldig parameter.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Det oppstod en nettverksfeil. Kontroller nettverkstilkoblingen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokal lagring</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Koble til på nytt</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Tester tilkoblingen...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>Den valgte mappen er ikke tom. Filene i den blir slått sammen med filene på serveren.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Kontrollerer kontoen din...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Tilkoblingen er opprettet.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>Mappen «%1» finnes allerede. Vil du slå sammen innholdet?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Start Nimbulo Pelora automatisk når jeg logger på</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Feil brukernavn eller passord.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Endre synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Mappebane</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Kom i gang med Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Nylig oppdaterte filer</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Åpne Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Oppdager endringer...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Frakoblet fra serveren.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Aktiver synkronisering</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Godkjenningen mislyktes</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte tilkobling</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nettverk</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Kontrollerer tilkoblingen...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relétilkobling</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internett</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Kan ikke koble til automatisk på grunn av en systemfeil.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Delingslenker er deaktivert på serveren. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 filer er oppdatert</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Du har bare lesetilgang til denne mappen. Lokale endringer blir ikke lastet opp.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Lagringskvoten din på serveren er full. Frigjør plass for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Tilkoblingstype</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Tilkoblingsinformasjon</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Endre</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Velg en mappe.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Kan ikke koble til automatisk. Kontroller serveradressen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Endringene er ikke lagret. Vil du forkaste dem?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kvoten er full</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Kan ikke aktivere synkronisering for denne delte mappen.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Denne mappen er i konflikt med en annen synkroniseringsoppgave.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Du har nådd maksimalt antall synkroniserte delte mapper.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Bruker innstillingene...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Angi et portnummer mellom 1 og 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Angi adressen og porten til proxyserveren.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Angi brukernavnet ditt.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfigurasjon</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Bruk systemets proxyinnstillinger</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
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
        <translation>Ingen endringer å bruke.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Proxyserveren krever godkjenning</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Oppdaterer filer...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Motstridende endringer beholdes i begge kopiene: den lokale kopien får datamaskinnavnet i filnavnet.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Angi IP-adressen, vertsnavnet eller relé-ID-en til serveren.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Synkroniseringstjenesten på serveren er utdatert. Be administratoren om å oppdatere den.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsvarsler</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Vis synkroniseringsstatus på filikoner</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Krypter tilkoblingen med SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Bruk et ensfarget ikon i varslingsområdet</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsproblem</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 har delt «%2» med deg.</translation>
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
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Filer og mapper som samsvarer med disse reglene, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Filtyper:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Oppdaterer Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Oppdater</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Er du sikker på at du vil slutte å synkronisere «%1»?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Deling er deaktivert</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Monteringspunkt støttes ikke</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Kan ikke fjerne denne synkroniseringsoppgaven.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>Det nye språket tas i bruk når Nimbulo Pelora startes på nytt.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Den lokale disken er full. Frigjør plass for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Er du sikker på at du vil fjerne tilknytningen til denne serveren? De lokale filene dine beholdes.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laster opp...</translation>
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
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synkroniserer %1 filer</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Filnavn:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Blokkerte filer</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>Den lokale synkroniseringsdatabasen er skadet. Knytt til denne synkroniseringsoppgaven på nytt.</translation>
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
        <translation>Ekskluderte filtyper:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Mapper du fjerner merket for, fjernes fra denne datamaskinen, men beholdes på serveren.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Sammenslåingsmodus</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Synkroniseringsmodus</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Rediger tilkobling</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Satt på pause</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Et monteringspunkt kan ikke brukes som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Nedlastingen ble avbrutt.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Du har ikke tillatelse til å utføre denne handlingen.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Lagringskvoten din er full</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Den lokale disken er full</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Ingen tilgang</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versjonene samsvarer ikke</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Kan ikke hente kontoinformasjonen din fra serveren.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Synkroniseringsproblem oppdaget</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Datamaskinnavn</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>Tilkoblingen er ustabil. Prøver på nytt...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Laster ned %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Prøver å synkronisere på nytt...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Sikkerhetsadvarsel</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktivert</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Nedlastingen er fullført.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Fortsett likevel</translation>
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
        <translation>Bla gjennom tidligere versjoner</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktivert</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Hvis du slutter å synkronisere «%1», fjernes den lokale kopien. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Sikker tilkobling</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Velg mappen på denne datamaskinen som filene dine skal synkroniseres til.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>og %1 til</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Deling</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Kan ikke laste ned filen.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Oversikt</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Serveren er byttet ut eller tilbakestilt</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Sertifikatet kunne ikke bekreftes</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>SSL-sertifikatet til serveren kunne ikke bekreftes. Tilkoblingen er kanskje ikke sikker.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fullført</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Denne synkroniseringsoppgaven er inaktiv. Klikk for å gjenoppta den.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Denne filen kan ikke lastes ned akkurat nå.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Kan ikke vise tidligere versjoner av denne filen.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Kan ikke opprette en delingslenke for denne filen.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ventemodus</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Dobbeltklikk på ikonet i varslingsområdet for å åpne synkroniseringsmappen</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indekserer mappen...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Velkommen til installasjonsveiviseren for Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora kunne ikke initialiseres.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Tilbake</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Klar til å installere Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Noen filer som må oppdateres, er i bruk.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Lisensavtale for sluttbrukere</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Installasjonsveiviseren for Nimbulo Pelora er fullført</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Ikke lukk programmene. Datamaskinen må startes på nytt.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Installasjonsfeil</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klikk på Fullfør for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora er installert.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Start Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Endre, reparer eller fjern installasjonen</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lar deg endre hvordan funksjonene installeres.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>Synkroniseringsmappen ligger på et volum som ikke er montert.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>Filversjonen er ugyldig.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Er du sikker på at du vil avbryte installasjonen av Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Du har bare lesetilgang til denne mappen. Endringer du gjør her, blir ikke lastet opp.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Les følgende lisensavtale nøye.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Les lisensavtalen, og godta den for å fortsette.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Avbryt installasjonen</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora holder filene på denne datamaskinen synkronisert med NAS-en din.</translation>
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
        <translation>Neste &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nei</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparer</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv på nytt</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Synkroniseringsstatus</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Finner ikke den lokale synkroniseringsmappen «%1». Den kan ha blitt flyttet eller slettet.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Installasjonen av Nimbulo Pelora ble avsluttet for tidlig på grunn av en feil. Systemet er ikke endret.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Hvis du vil installere programmet senere, kjører du installasjonsveiviseren på nytt. Klikk på Fullfør for å avslutte.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Installasjonen ble avsluttet for tidlig</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Lukk alle programmer, og prøv å starte dem på nytt.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Lukk programmene som bruker filer installasjonsprogrammet må oppdatere.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Følgende programmer bruker filer som installasjonsprogrammet må oppdatere. Lukk dem, og klikk på Prøv på nytt for å fortsette.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Reparerer feil i den siste installasjonen ved å rette opp manglende og skadede filer, snarveier og registeroppføringer.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Følgende programmer bruker filer som må oppdateres.\nLukk dem, eller la installasjonsprogrammet lukke dem og prøve å starte dem på nytt.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Filer i bruk</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora har ingen uavhengige funksjoner å velge.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Endre de installerte funksjonene</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Velg handlingen du vil utføre.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Fjerner Nimbulo Pelora fra datamaskinen.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Fjern installasjonen</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installasjonen</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Velg handlingen du vil utføre.\nSynkroniseringsinnstillingene dine beholdes.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Med installasjonsveiviseren kan du endre hvordan Nimbulo Pelora er installert, reparere programmet eller fjerne det fra datamaskinen. Klikk på Neste for å fortsette eller på Avbryt for å avslutte.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Velkommen til installasjonen av Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Vent mens installasjonsveiviseren installerer Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dette kan ta noen minutter.</translation>
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
        <translation>Klikk på Installer for å starte installasjonen. Klikk på Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk på Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Installasjonsveiviseren er klar til å starte installasjonen.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Klikk på Installer for å starte.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Klikk på Fjern for å fjerne Nimbulo Pelora fra datamaskinen. De synkroniserte filene dine beholdes.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>Installasjonsveiviseren er klar til å fjerne Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Klikk på Fjern for å starte.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Fjern Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Klikk på Reparer for å reparere installasjonen av Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>Installasjonsveiviseren er klar til å reparere Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Klikk på Reparer for å starte.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Reparer Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Installasjonen av Nimbulo Pelora ble avbrutt. Systemet er ikke endret.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Hvis du vil installere programmet senere, kjører du installasjonen på nytt. Klikk på Fullfør for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Installasjonen ble avbrutt</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Installasjonsveiviseren installerer Nimbulo Pelora på datamaskinen. Klikk på Neste for å fortsette eller på Avbryt for å avslutte.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Endre, reparer eller fjern Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Installasjonen er fullført.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Installasjonen ble avbrutt.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Det oppstod en feil under installasjonen.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Denne veiviseren tar deg gjennom installasjonen.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Jeg godtar vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Koble til en annen NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Synkroniseringslogg</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Synkronisering er aktivert</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Mapper som skal synkroniseres</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Filene dine, på alle enheter.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Filene dine synkroniseres nå i bakgrunnen. Du finner dem i %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Er du sikker på at du vil fjerne tilknytningen til synkroniseringsoppgaven «%1»? Filer som allerede ligger på denne datamaskinen, beholdes.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filfiltre</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Vis et ikon på filer som ikke synkroniseres</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>Relé-ID-en «%1» finnes ikke.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Serveren er endret. Kontroller synkroniseringsoppgavene dine.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Den delte mappen er ikke montert på serveren.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>Den eksterne mappen er ikke tilgjengelig. Den kan ligge i en kryptert delt mappe som ikke er montert.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Filer som begynner med punktum</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 er allerede installert.\nVil du installere programmet på nytt?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Du må ha administratorrettigheter for å installere Nimbulo Pelora.\nKjør installasjonsprogrammet som administrator.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Synkroniser filene dine med Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Fildeling er ikke tilgjengelig via en LinkVane-tilkobling.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>tir.</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Åpne mappen filen ligger i</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Velg hvordan du vil konfigurere Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Hurtigoppsett</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Høyreklikk på en fil i synkroniseringsmappen for å dele den eller bla gjennom tidligere versjoner.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Skjønner</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Åpne menyen i varslingsområdet når som helst for å se hva som synkroniseres.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Endringer du gjør, lastes opp så snart du lagrer dem.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 timer siden</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Ikke synkroniser denne mappen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Logg</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Opprett en ny mappe på NAS-en som skal synkroniseres med denne datamaskinen.</translation>
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
        <translation>Denne mappen synkroniseres allerede av en annen synkroniseringsoppgave.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Gi nytt navn</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Forbereder synkronisering...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Nylig endret</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dager siden</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Akkurat nå</translation>
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
        <translation>Endret</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søkeord</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Forrige uke</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Gjenoppta synkronisering av denne mappen</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Gjenoppta synkronisering av disse mappene</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Ikke synkroniser disse mappene</translation>
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
        <translation>Synkroniserer nå: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Søk etter filnavn</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>fre.</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Hendelse</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hendelser</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Egendefinert</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datoperiode</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Nedlasting</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tilbakestill</translation>
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
        <translation>Opplasting</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>man.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>des.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb.</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>jan.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>okt.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sep.</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>lør.</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>søn.</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>tor.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>ons.</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Avansert modus</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Ikke vis denne meldingen igjen</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Filene dine synkroniseres nå med mappen «%1» på NAS-en.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora er konfigurert. Hjemmemappen din på NAS-en synkroniseres nå med denne datamaskinen.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Oppsettet er fullført</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Filer du legger i synkroniseringsmappen, holdes oppdatert på NAS-en og på de andre enhetene dine.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>Ikonet i varslingsområdet viser synkroniseringsstatusen med et raskt blikk.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Oppsettsmodus</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Synkroniser hjemmemappen din på NAS-en med en mappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nei takk</translation>
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
        <translation>Ikon i varslingsområdet</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Deling og versjoner</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Søk etter NAS på det lokale nettverket</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Koble til med LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passord:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Brukernavn:</translation>
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
        <translation>Oppdatering tilgjengelig</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Mappe på NAS-en</translation>
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
        <translation>Avansert oppsett</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Åpne synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Velg hvilken mappe på NAS-en som skal synkroniseres, hvor den skal ligge på denne datamaskinen, og hvordan den skal synkroniseres.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Filer som er større enn %1 MB, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Finn NAS på det lokale nettverket</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Du har bare lesetillatelse for «%1». Endringer som gjøres på denne datamaskinen, blir ikke lastet opp.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>«%1» kan ikke brukes som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Flere tips</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>Mappen «%1» overlapper synkroniseringsmappen til en annen oppgave.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Denne mappen synkroniseres allerede med «%1».</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>Mappen «%1» synkroniseres allerede med en mappe på NAS-en.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Opprett en «Nimbulo»-mappe på den valgte plasseringen</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopier delingslenke</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Kan ikke hente en delingslenke fordi deling er deaktivert på serveren.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>SSL-sertifikatet til serveren er endret. Stoler du på det nye sertifikatet?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>IP-adressen din har ikke tillatelse til å koble til denne serveren.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Når den samme filen er endret på begge sider:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>Synkroniseringsretningen samsvarer ikke med tillatelsene for denne mappen.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
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
        <translation>Neste %1 sider</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Åpne fil</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>For mange mislykkede forsøk. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Denne filen er låst av et annet program.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Kan ikke kontrollere «%1» på grunn av en nettverksfeil.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Behold den sist endrede versjonen</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Toveis synkronisering</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Angi adressen til NAS-en og kontoen din.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Kan ikke opprette den lokale mappen «%1».</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Velg en mappe på NAS-en og en mappe på denne datamaskinen som skal synkroniseres med hverandre.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Angi synkroniseringsmapper</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synkroniserer nå «%1» på NAS-en med «%2» på denne datamaskinen.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Ved filkonflikter beholdes serverens kopi, og det tas sikkerhetskopi av den lokale kopien.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Aktiver synkronisering ved behov</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Bekreftelseskoden er feil.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Denne kontoen krever en bekreftelseskode.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Angi bekreftelseskoden fra autentiseringsappen din:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Kvoten din på NAS-en er full. «%1» kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Serversertifikatet er endret. Kan ikke synkronisere «%1».</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Serversertifikatet kan ikke bekreftes. Kan ikke synkronisere «%1».</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Det oppstod en systemfeil under kontrollen av synkroniseringsmappen.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Overskriv den lokale kopien med serverens kopi</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Behold begge kopiene, og gi den lokale kopien nytt navn</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>En nyere versjon av Nimbulo Pelora (%1) er allerede installert.\nInstallasjonsprogrammet avsluttes nå.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora er klar.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora starter opp...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Fant ingen mappe som du kan synkronisere.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis innføringen</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Filene i den lokale mappen blir slått sammen med filene på NAS-en.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Start Nimbulo Pelora når datamaskinen starter</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Det oppstod en feil i Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora kjører.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Denne versjonen av Nimbulo Pelora støttes ikke lenger. Oppdater programmet.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Klikk for å oppdatere Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Oppdater synkroniseringstjenesten på serveren for å bruke selektiv synkronisering.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Det er ikke nok ledig plass på denne datamaskinen til å synkronisere «%1».</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Logg på NAS-en for å begynne å synkronisere.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Hold filene på denne datamaskinen synkronisert med NAS-en din.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Finner ikke den delte mappen</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Om Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Administratoren krever totrinnsbekreftelse. Aktiver den i kontoinnstillingene først.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Kvoten for den delte mappen er full.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora har støtt på et problem under synkroniseringen. Klikk for å se detaljer.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora holder filene dine oppdatert på alle enhetene dine.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Noen felt inneholder ugyldige verdier.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Du har ikke tilgang til «%1».</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Kontoen din er deaktivert. Kan ikke synkronisere «%1».</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Utløper etter</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Ingen tilgjengelige alternativer</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Du trenger en konto på en NAS med synkroniseringstjenesten installert.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Godkjenningen mislyktes. Kontroller brukernavnet og passordet.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Bruk * for å matche vilkårlige tegn. Skill oppføringene med komma.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Enveis nedlasting</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Det finnes allerede en mappe med navnet «%1».</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Synkroniser utvidede attributter</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Jeg godtar ikke vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Delingslenke</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Utløper</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Dette feltet er obligatorisk.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Begrens tilgangen til brukere med en konto</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Vis Nimbulo Pelora på hurtigmenyen</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Tjenesten for hjemmemapper er deaktivert på NAS-en.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Kan ikke oppdatere Nimbulo Pelora. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Bruk og kopier lenken</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Begrens antall tilganger</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Tilgjengelig fra</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Du trenger en ny versjon av Nimbulo Pelora for å koble til denne serveren. Vil du oppdatere nå?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Legg til filnavn</translation>
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
        <translation>Ekstern NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne datamaskinen</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Last ned den valgte versjonen</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Egendefinert varighet</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Oppdater synkroniseringsloggen</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Synkronisering ved behov</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filtrer synkroniseringsloggen</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Legg til mappe</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Neste måned</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Endre synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Hendelseskategori</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Detaljer om synkroniseringsoppgaven</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Eksternt mål</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Lukk innføringen</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Innføring: Lær hvordan du bruker Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Avbryt nedlastingen</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Slett versjonen</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Kan ikke aktivere synkronisering ved behov for «%1».</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Denne filen er ikke tilgjengelig fordi det ikke er noen tilkobling til serveren.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Nytt navn på denne datamaskinen</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Nytt navn på serveren</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Angi maksimalt %1 tegn.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Passordet ditt er utløpt. Endre det på serveren, og logg på igjen.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Denne mappen ble synkronisert av en annen bruker. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Relétilkoblinger er deaktivert på serveren.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Godkjenningen mislyktes for «%1». Logg på igjen.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Kan ikke hente lenken til denne filen.</translation>
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
        <translation>Gratulerer!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Mapper andre har delt med deg</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Du har bare lesetilgang til denne mappen. Endringer du gjør her, blir værende på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synkroniserer nå «%1» på serveren med «%2» på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Vis innføringen i Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora kjører i bakgrunnen.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Logg på serveren for å begynne å synkronisere.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nimbulo Pelora kunne ikke oppdateres. Last ned den nyeste versjonen, og installer den på nytt.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Du trenger en konto på en server med synkroniseringstjenesten installert.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Motstridende endringer beholdes i begge kopiene: serverkopien får brukernavnet i filnavnet.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Innføring: Lær hvordan du synkroniserer med Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>Server-ID-en «%1» finnes ikke.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Start Nimbulo Pelora når jeg logger på</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Velg en mappe på serveren og en mappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Denne synkroniseringsoppgaven tilhører en annen server.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Serveren bruker en protokoll som denne versjonen av Nimbulo Pelora ikke støtter.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Disken er full. Nimbulo Pelora har satt synkroniseringen på pause.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Det oppstod en feil i Nimbulo Pelora. Start programmet på nytt.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>Den valgte mappen er ikke tom. Filene i den blir lastet opp til serveren.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Last bare ned endringer fra serveren</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Filene dine synkroniseres nå med mappen «%1» på serveren.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 er allerede installert.\nVil du installere programmet på nytt?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Ikke nok ledig plass til å synkronisere «%1». Frigjør plass, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Hold filene på denne datamaskinen synkronisert med serveren din.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Opprett en «Varnex Pelora»-mappe på den valgte plasseringen</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>En nyere versjon av Varnex Pelora (%1) er allerede installert.\nInstallasjonsprogrammet avsluttes nå.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Synkroniser en valgfri mappe på serveren.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Automatisk oppsett mislyktes. Konfigurer Nimbulo Pelora manuelt.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Fullfører automatisk oppsett...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Ingen data tilgjengelig.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Ingen delte mapper er tilgjengelige.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Filen eller mappen finnes ikke.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora er konfigurert av administratoren.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Interne brukere</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Brukere av serveren kan se filen.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Brukere av serveren kan se og redigere filen.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Bestemte personer</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Bare personer du inviterer, har tilgang til filen.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Alle som har lenken</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Alle som har lenken, kan se filen.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Alle som har lenken, kan se og redigere filen.</translation>
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
        <translation>Lenke</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Lenketillatelse:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Brukere og grupper</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Bruk et svart-hvitt ikon på menylinjen</translation>
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
        <translation>Kan ikke koble til serveren</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Varsler</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 kommenterte %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 nevnte deg i %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 ba om tilgang til %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 delte %2 med deg</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Åpne i nettportalen</translation>
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
        <translation>%1 ber om tilgang til denne filen.</translation>
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
        <translation>Vil du også synkronisere mappene som er delt med deg?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Enveis opplasting</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Ikke fjern filer på serveren når de fjernes lokalt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>«%1» er lastet ned.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Filene dine er synkronisert på alle enheter.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Du har også tilgang til filene dine fra nettportalen.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Synkroniseringsoppgaven din er klar.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Start omvisningen</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Filer og mapper som andre deler med deg, kan også synkroniseres til denne datamaskinen.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Kanskje senere</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synkroniser nå</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Delt med meg</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Opprett synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Velg hva du vil synkronisere.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Generell synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Filer delt med meg</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Synkroniser filene og mappene som andre har delt med deg.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Velg en mappe på NAS-en og en mappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Denne synkroniseringsoppgaven tilhører en annen NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>NAS-en bruker en protokoll som denne versjonen av Nimbulo Pelora ikke støtter.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Disken er full. Synkroniseringen er satt på pause.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Last bare ned endringer fra NAS-en</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nimbulo Pelora kunne ikke oppdateres. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Du er allerede koblet til denne NAS-en.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Endringer på nettverksstasjoner kan bli oppdaget med forsinkelse.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>SSL-sertifikatet til %1 er endret.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Kan ikke opprette en sikker tilkobling til serveren.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Velkommen!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Filene i hjemmemappen din på NAS-en ligger nå i %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Filene i hjemmemappen din på serveren ligger nå i %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Disken er full</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Synkroniseringstjenesten på serveren er utdatert</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>Den delte mappen finnes ikke lenger.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Klikk for å oppdatere til Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Denne versjonen av Nimbulo Pelora er for gammel til å koble til serveren. Oppdater programmet.</translation>
    </message>
</context>
</TS>
