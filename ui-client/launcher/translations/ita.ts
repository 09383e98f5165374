<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Scegli un&apos;altra cartella</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Si è verificato un conflitto durante la sincronizzazione di questo file.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parametro non valido.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Si è verificato un errore di rete. Controlla la connessione di rete e riprova.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Archiviazione locale</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Riconnetti</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Verifica della connessione...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>La cartella selezionata non è vuota. I file al suo interno verranno uniti a quelli presenti sul server.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Verifica dell&apos;account...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connessione riuscita.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>La cartella «%1» esiste già. Vuoi unirne il contenuto?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Avvia Nimbulo Pelora automaticamente all&apos;accesso</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Nome utente o password non corretti.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Cambia cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Cartella non vuota</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Percorso della cartella</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Introduzione a Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>File aggiornati di recente</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Apri Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Rilevamento delle modifiche...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Disconnesso dal server.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Attiva sincronizzazione</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Autenticazione non riuscita</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Verifica della connessione...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Connessione tramite relay</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Impossibile connettersi automaticamente a causa di un errore di sistema.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>I link di condivisione sono disattivati sul server. Contatta l&apos;amministratore.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 file aggiornati</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Hai l&apos;autorizzazione di sola lettura per questa cartella. Le modifiche locali non verranno caricate.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>La quota di spazio di archiviazione sul server è esaurita. Libera spazio per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Tipo di connessione</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informazioni sulla connessione</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambia</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Seleziona una cartella.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Impossibile connettersi automaticamente. Controlla l&apos;indirizzo del server e riprova.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Cartelle condivise</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Le modifiche non sono state salvate. Vuoi annullarle?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Quota esaurita</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Cartella locale</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Impossibile attivare la sincronizzazione per questa cartella condivisa.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Questa cartella è in conflitto con un&apos;altra attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Hai raggiunto il numero massimo di cartelle condivise sincronizzate.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applicazione delle impostazioni...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Immetti un numero di porta compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Cartella condivisa</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Immetti l&apos;indirizzo e la porta del server proxy.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Immetti il nome utente.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configurazione manuale del proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nessun proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usa le impostazioni proxy di sistema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>Nessuna modifica da applicare.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Il server proxy richiede l&apos;autenticazione</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Aggiornamento dei file...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>In caso di modifiche in conflitto vengono conservate entrambe le copie: la copia locale viene rinominata con il nome del computer.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Indirizzo del server</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Immetti l&apos;indirizzo IP, il nome host o l&apos;ID relay del server.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Il servizio di sincronizzazione del server non è aggiornato. Chiedi all&apos;amministratore di aggiornarlo.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra le notifiche sul desktop</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Mostra lo stato di sincronizzazione sulle icone dei file</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Crittografa la connessione con SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Usa un&apos;icona monocromatica nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema di sincronizzazione</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 ha condiviso «%2» con te.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nuova cartella condivisa</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Verifica dei file...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>I file e le cartelle che corrispondono a queste regole non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Estensioni dei file:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Aggiornamento di Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Vuoi davvero interrompere la sincronizzazione di «%1»?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Condivisione disattivata</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Punto di montaggio non supportato</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Impossibile rimuovere questa attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>La nuova lingua verrà applicata al riavvio di Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Il disco locale è pieno. Libera spazio per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Vuoi davvero scollegarti da questo server? I file locali verranno conservati.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Upload in corso...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinita di sistema</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento in corso...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Sincronizzazione di %1 file</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nomi dei file:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>File bloccati</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>Il database di sincronizzazione locale è danneggiato. Ricollega questa attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Dimensione massima dei file:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filtra file</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nome della cartella</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Tipi di file esclusi:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Le cartelle deselezionate verranno rimosse da questo computer ma conservate sul server.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modalità di unione</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Un punto di montaggio non può essere usato come cartella di sincronizzazione.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Il download è stato annullato.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Avvia ora</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Non hai l&apos;autorizzazione per eseguire questa operazione.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>La quota di spazio di archiviazione è esaurita</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Il disco locale è pieno</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorizzazione negata</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versioni non corrispondenti</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Impossibile ottenere le informazioni dell&apos;account dal server.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Rilevato un problema di sincronizzazione</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nome del computer</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>La connessione è instabile. Nuovo tentativo in corso...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Download di %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Nuovo tentativo di sincronizzazione...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Avviso di sicurezza</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download completato.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continua comunque</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Regole di filtro</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Sfoglia le versioni precedenti</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Se interrompi la sincronizzazione di «%1», la sua copia locale verrà rimossa. Continuare?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Connessione sicura</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Scegli la cartella di questo computer in cui verranno sincronizzati i file.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Condivisione</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Impossibile scaricare il file.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Il server è stato sostituito o reimpostato</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Verifica del certificato non riuscita</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizzazione...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Impossibile verificare il certificato SSL del server. La connessione potrebbe non essere sicura.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Questa attività di sincronizzazione non è attiva. Fai clic per riprenderla.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Non attiva</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Al momento non è possibile scaricare questo file.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Impossibile elencare le versioni precedenti di questo file.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Impossibile creare un link di condivisione per questo file.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Fai doppio clic sull&apos;icona nell&apos;area di notifica per aprire la cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indicizzazione della cartella...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Installazione guidata di Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Impossibile inizializzare Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Indietro</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Pronto per l&apos;installazione di Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alcuni file da aggiornare sono attualmente in uso.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contratto di licenza con l&apos;utente finale</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Installazione guidata di Nimbulo Pelora completata</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Non chiudere le applicazioni. Sarà necessario riavviare il sistema.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Errore di installazione</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Fai clic su Fine per uscire dall&apos;installazione guidata.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora è stata installata correttamente.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Avvia Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Modifica, ripristina o rimuovi l&apos;installazione</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Consente di modificare la modalità di installazione delle funzionalità.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>La cartella di sincronizzazione si trova su un volume non montato.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>La versione del file non è valida.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Vuoi davvero annullare l&apos;installazione di Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Hai accesso in sola lettura a questa cartella. Le modifiche apportate qui non vengono caricate.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leggi attentamente il seguente contratto di licenza.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Leggi il contratto di licenza e accettalo per continuare.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Annulla installazione</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora mantiene i file di questo computer sincronizzati con il tuo NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Avanti &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Stato della sincronizzazione</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Impossibile trovare la cartella di sincronizzazione locale «%1». Potrebbe essere stata spostata o eliminata.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>L&apos;installazione di Nimbulo Pelora è stata interrotta prematuramente a causa di un errore. Il sistema non è stato modificato.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Per installare il programma in un secondo momento, esegui di nuovo l&apos;installazione guidata. Fai clic su Fine per uscire.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Installazione interrotta prematuramente</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Chiudi tutte le applicazioni e prova a riavviarle.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Chiudi le applicazioni che usano file che il programma di installazione deve aggiornare.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Le applicazioni seguenti usano file che il programma di installazione deve aggiornare. Chiudile e fai clic su Riprova per continuare.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Ripristina gli errori dell&apos;installazione più recente correggendo file mancanti o danneggiati, collegamenti e voci del Registro di sistema.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Le applicazioni seguenti usano file che devono essere aggiornati.\nChiudile oppure lascia che il programma di installazione le chiuda e provi a riavviarle.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>File in uso</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora non include funzionalità indipendenti da selezionare.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Modifica le funzionalità installate</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Seleziona l&apos;operazione da eseguire.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Rimuove Nimbulo Pelora dal computer.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Rimuovi l&apos;installazione</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Ripristina l&apos;installazione</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Seleziona l&apos;operazione da eseguire.\nLe impostazioni di sincronizzazione verranno conservate.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>L&apos;installazione guidata consente di modificare la modalità di installazione di Nimbulo Pelora, di ripristinarla o di rimuoverla dal computer. Fai clic su Avanti per continuare o su Annulla per uscire.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Installazione di Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Attendi mentre l&apos;installazione guidata installa Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>L&apos;operazione potrebbe richiedere alcuni minuti.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Installazione di Nimbulo Pelora in corso...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Installazione di Nimbulo Pelora in corso</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fai clic su Installa per avviare l&apos;installazione. Fai clic su Indietro per rivedere o modificare le impostazioni di installazione. Fai clic su Annulla per uscire dall&apos;installazione guidata.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>L&apos;installazione guidata è pronta per avviare l&apos;installazione.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Fai clic su Installa per iniziare.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Fai clic su Rimuovi per rimuovere Nimbulo Pelora dal computer. I file sincronizzati verranno conservati.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>L&apos;installazione guidata è pronta per rimuovere Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Fai clic su Rimuovi per iniziare.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Rimuovi Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Fai clic su Ripristina per ripristinare l&apos;installazione di Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>L&apos;installazione guidata è pronta per ripristinare Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Fai clic su Ripristina per iniziare.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Ripristina Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>L&apos;installazione di Nimbulo Pelora è stata interrotta. Il sistema non è stato modificato.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Per installare il programma in un secondo momento, esegui di nuovo l&apos;installazione. Fai clic su Fine per uscire dall&apos;installazione guidata.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Installazione interrotta</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>L&apos;installazione guidata installerà Nimbulo Pelora nel computer. Fai clic su Avanti per continuare o su Annulla per uscire.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Modifica, ripristina o rimuovi Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Installazione completata.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Installazione annullata.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Si è verificato un errore durante l&apos;installazione.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Questa procedura guidata ti accompagna nell&apos;installazione.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Accetto le condizioni del contratto di licenza</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Connetti a un altro NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Cronologia di sincronizzazione</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Sincronizzazione attivata</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>I tuoi file, su ogni dispositivo.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>I file verranno ora sincronizzati in background. Puoi trovarli in %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Vuoi davvero scollegare l&apos;attività di sincronizzazione «%1»? I file già presenti su questo computer verranno conservati.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filtri file</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Data creazione</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Mostra un&apos;icona sui file non sincronizzati</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>L&apos;ID relay «%1» non esiste.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Il server è cambiato. Controlla le attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>La cartella condivisa non è montata sul server.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>La cartella remota non è disponibile. Potrebbe trovarsi in una cartella condivisa crittografata non montata.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>File che iniziano con un punto</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 è già installata.\nVuoi reinstallarla?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Per installare Nimbulo Pelora sono necessari privilegi di amministratore.\nEsegui il programma di installazione come amministratore.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Sincronizza i tuoi file con Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>La condivisione dei file non è disponibile tramite una connessione LinkVane.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Apri percorso file</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Scegli come configurare Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configurazione rapida</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Fai clic con il pulsante destro del mouse su un file nella cartella di sincronizzazione per condividerlo o sfogliarne le versioni precedenti.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Apri il menu dell&apos;area di notifica in qualsiasi momento per vedere cosa è in sincronizzazione.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Le modifiche vengono caricate non appena le salvi.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ore fa</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Non sincronizzare questa cartella</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Crea una nuova cartella sul NAS da sincronizzare con questo computer.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Cartella già sincronizzata</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Questa cartella è già sincronizzata da un&apos;altra attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Preparazione della sincronizzazione...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Modificati di recente</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 giorni fa</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuti fa</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementi</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Data modifica</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mese scorso</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Settimana scorsa</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Riprendi la sincronizzazione di questa cartella</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Riprendi la sincronizzazione di queste cartelle</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Non sincronizzare queste cartelle</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Nessun dato</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Invia a</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Sincronizzazione in corso: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Cerca per nome file</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>ven</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervallo di date</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Upload</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>lun</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>apr</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dic</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>gen</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>lug</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>giu</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mag</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>ott</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>set</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>sab</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>dom</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>gio</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>mer</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Modalità avanzata</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Non mostrare più questo messaggio</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>I tuoi file vengono ora sincronizzati con la cartella «%1» sul NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora è configurata. La tua cartella home sul NAS è ora sincronizzata con questo computer.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Configurazione completata</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>I file che inserisci nella cartella di sincronizzazione vengono mantenuti aggiornati sul NAS e sugli altri dispositivi.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>L&apos;icona nell&apos;area di notifica mostra a colpo d&apos;occhio lo stato della sincronizzazione.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Modalità di configurazione</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Sincronizza la tua cartella home sul NAS con una cartella di questo computer.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, grazie</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Benvenuto</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Icona nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Condivisione e versioni</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Cerca NAS nella rete locale</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Connetti con LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Benvenuto in Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Mostra finestra principale</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Cartella sul NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nuova cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Sincronizza una nuova cartella</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Configurazione avanzata</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Apri stato della sincronizzazione</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Scegli quale cartella del NAS sincronizzare, dove conservarla su questo computer e come sincronizzarla.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>I file più grandi di %1 MB non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Trova NAS nella rete locale</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Hai solo l&apos;autorizzazione di lettura per «%1». Le modifiche apportate su questo computer non verranno caricate.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>Impossibile usare «%1» come cartella di sincronizzazione.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Altri suggerimenti</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>La cartella «%1» si sovrappone alla cartella di sincronizzazione di un&apos;altra attività.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Questa cartella è già sincronizzata con «%1».</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>La cartella «%1» è già sincronizzata con una cartella sul NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Crea una cartella «Nimbulo» nel percorso selezionato</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copia link di condivisione</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Impossibile ottenere un link di condivisione perché la condivisione è disattivata sul server.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>Il certificato SSL del server è cambiato. Consideri attendibile il nuovo certificato?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Il tuo indirizzo IP non è autorizzato a connettersi a questo server.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Quando lo stesso file è stato modificato su entrambi i lati:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>La direzione di sincronizzazione non corrisponde alle autorizzazioni di questa cartella.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pagine precedenti</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pagine successive</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Scollegamento...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Troppi tentativi non riusciti. Riprova più tardi.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Questo file è bloccato da un&apos;altra applicazione.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Impossibile controllare «%1» a causa di un errore di rete.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Mantieni la versione modificata più di recente</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronizzazione bidirezionale</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Immetti l&apos;indirizzo del NAS e i dati del tuo account.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Impossibile creare la cartella locale «%1».</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Seleziona una cartella sul NAS e una cartella su questo computer da sincronizzare tra loro.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Imposta cartelle di sincronizzazione</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora sta sincronizzando «%1» sul NAS con «%2» su questo computer.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>In caso di conflitto viene conservata la copia del server e viene eseguito il backup della copia locale.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Attiva sincronizzazione su richiesta</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Il codice di verifica non è corretto.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Questo account richiede un codice di verifica.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Immetti il codice di verifica dell&apos;app di autenticazione:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>La quota sul NAS è esaurita. Impossibile sincronizzare «%1».</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Il certificato del server è cambiato. Impossibile sincronizzare «%1».</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Impossibile verificare il certificato del server. Impossibile sincronizzare «%1».</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Si è verificato un errore di sistema durante il controllo della cartella di sincronizzazione.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Sovrascrivi la copia locale con la copia del server</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Mantieni entrambe le copie e rinomina quella locale</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>È già installata una versione più recente di Nimbulo Pelora (%1).\nL&apos;installazione verrà chiusa.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora pronta.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora sta inizializzando...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Non è stata trovata alcuna cartella sincronizzabile.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostra l&apos;esercitazione</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>I file nella cartella locale verranno uniti a quelli sul NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Avvia Nimbulo Pelora all&apos;avvio del computer</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Si è verificato un errore in Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora è in esecuzione.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Questa versione di Nimbulo Pelora non è più supportata. Aggiornala.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Fai clic per aggiornare Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Aggiorna il servizio di sincronizzazione sul server per usare la sincronizzazione selettiva.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Spazio libero insufficiente su questo computer per sincronizzare «%1».</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Accedi al tuo NAS per iniziare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Mantieni i file di questo computer sincronizzati con il tuo NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Cartella condivisa non trovata</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Informazioni su Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>L&apos;amministratore richiede la verifica in due passaggi. Attivala prima nelle impostazioni dell&apos;account.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>La quota della cartella condivisa è esaurita.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Direzione di sincronizzazione</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora ha riscontrato un problema durante la sincronizzazione. Fai clic per i dettagli.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora mantiene i tuoi file aggiornati su tutti i tuoi dispositivi.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Alcuni campi contengono valori non validi.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Non hai l&apos;autorizzazione per accedere a «%1».</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Il tuo account è stato disattivato. Impossibile sincronizzare «%1».</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Scade dopo</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nessuna opzione disponibile</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Ti serve un account su un NAS in cui è installato il servizio di sincronizzazione.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Autenticazione non riuscita. Controlla nome utente e password.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Usa * per indicare qualsiasi carattere. Separa le voci con una virgola.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Download unidirezionale</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Esiste già una cartella denominata «%1».</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Sincronizza gli attributi estesi</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Non accetto le condizioni del contratto di licenza</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Link di condivisione</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Scade il</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Campo obbligatorio.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Limita l&apos;accesso agli utenti con un account</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Mostra Nimbulo Pelora nel menu contestuale</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Il servizio cartella home è disattivato sul NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Impossibile aggiornare Nimbulo Pelora. Riprova più tardi.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Applica e copia link</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Limita il numero di accessi</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Disponibile dal</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Per connettersi a questo server è necessaria una nuova versione di Nimbulo Pelora. Aggiornare ora?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Aggiungi nome file</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Destinazione locale</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>NAS remoto</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Scarica la versione selezionata</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Durata personalizzata</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Aggiorna cronologia di sincronizzazione</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Sincronizzazione su richiesta</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filtra cronologia di sincronizzazione</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mese successivo</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mese precedente</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambia cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Categoria evento</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Dettagli dell&apos;attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Destinazione remota</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Chiudi esercitazione</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Esercitazione: scopri come usare Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Annulla download</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Elimina versione</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Impossibile attivare la sincronizzazione su richiesta per «%1».</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Questo file non è disponibile perché non c&apos;è connessione al server.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Rinominato su questo computer</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Rinominato sul server</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Immetti al massimo %1 caratteri.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>La password è scaduta. Cambiala sul server e accedi di nuovo.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Questa cartella è stata sincronizzata da un altro utente. Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Le connessioni tramite relay sono disattivate sul server.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Autenticazione non riuscita per «%1». Accedi di nuovo.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Impossibile ottenere il link a questo file.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>File temporanei</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Congratulazioni!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Cartelle che altri hanno condiviso con te</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Hai accesso in sola lettura a questa cartella. Le modifiche apportate qui restano su questo computer.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora sta sincronizzando «%1» sul server con «%2» su questo computer.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Mostra l&apos;esercitazione di Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora è in esecuzione in background.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Accedi al tuo server per iniziare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Impossibile aggiornare Nimbulo Pelora. Scarica la versione più recente e installala di nuovo.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Ti serve un account su un server in cui è installato il servizio di sincronizzazione.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>In caso di modifiche in conflitto vengono conservate entrambe le copie: la copia sul server viene rinominata con il nome utente.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Esercitazione: scopri come sincronizzare con Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>L&apos;ID server «%1» non esiste.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Avvia Nimbulo Pelora all&apos;accesso</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Scegli una cartella sul server e una cartella su questo computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Questa attività di sincronizzazione appartiene a un altro server.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Il server usa un protocollo non supportato da questa versione di Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Il disco è pieno. Nimbulo Pelora ha sospeso la sincronizzazione.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Si è verificato un errore in Nimbulo Pelora. Riavvia l&apos;applicazione.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>La cartella selezionata non è vuota. I file al suo interno verranno caricati sul server.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Scarica solo le modifiche dal server</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>I tuoi file vengono ora sincronizzati con la cartella «%1» sul server.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 è già installata.\nVuoi reinstallarla?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Spazio libero insufficiente per sincronizzare «%1». Libera spazio e riprova.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Mantieni i file di questo computer sincronizzati con il tuo server.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Crea una cartella «Varnex Pelora» nel percorso selezionato</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>È già installata una versione più recente di Varnex Pelora (%1).\nL&apos;installazione verrà chiusa.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Sincronizza una cartella a tua scelta sul server.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Configurazione automatica non riuscita. Configura Nimbulo Pelora manualmente.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Completamento della configurazione automatica...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Nessun dato disponibile.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Nessuna cartella condivisa disponibile.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Il file o la cartella non esiste.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora è stata configurata dall&apos;amministratore.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Utenti interni</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Gli utenti del server possono visualizzare il file.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Gli utenti del server possono visualizzare e modificare il file.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Persone specifiche</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Solo le persone che inviti possono accedere al file.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Chiunque abbia il link</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Chiunque abbia il link può visualizzare il file.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Chiunque abbia il link può visualizzare e modificare il file.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Può visualizzare</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Può modificare</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Invita</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Autorizzazione del link:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Utenti e gruppi</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Usa un&apos;icona in bianco e nero nella barra dei menu</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Mostra la cartella di sincronizzazione nella barra laterale delle finestre dei file</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Impossibile connettersi al server</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifiche</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 ha commentato %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 ti ha menzionato in %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 ha richiesto l&apos;accesso a %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 ha condiviso %2 con te</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Apri nel portale web</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizzazione</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Condivisi</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Configura</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 sta chiedendo di accedere a questo file.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commenti</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Menzioni</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Sincronizzare anche le cartelle condivise con te?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Upload unidirezionale</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Non rimuovere i file dal server quando vengono rimossi in locale</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>«%1» è stato scaricato.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>I tuoi file sono sincronizzati su tutti i dispositivi.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Puoi accedere ai tuoi file anche dal portale web.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>L&apos;attività di sincronizzazione è pronta.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Inizia il tour</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Anche i file e le cartelle che altri condividono con te possono essere sincronizzati su questo computer.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Forse più tardi</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Sincronizza ora</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Condivisi con me</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Crea attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Scegli cosa sincronizzare.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Attività di sincronizzazione generale</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>File condivisi con me</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Sincronizza i file e le cartelle che altri hanno condiviso con te.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Scegli una cartella sul NAS e una cartella su questo computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Questa attività di sincronizzazione appartiene a un altro NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Il NAS usa un protocollo non supportato da questa versione di Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Il disco è pieno. La sincronizzazione è stata sospesa.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Scarica solo le modifiche dal NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Impossibile aggiornare Nimbulo Pelora. Riprova più tardi.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Sei già connesso a questo NAS.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Le modifiche sulle unità di rete potrebbero essere rilevate con ritardo.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>Il certificato SSL di %1 è cambiato.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Impossibile stabilire una connessione sicura al server.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Benvenuto!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>I file della tua cartella home sul NAS si trovano ora in %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>I file della tua cartella home sul server si trovano ora in %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Il disco è pieno</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Il servizio di sincronizzazione del server non è aggiornato</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>La cartella condivisa non esiste più.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Fai clic per passare a Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Questa versione di Nimbulo Pelora è troppo vecchia per connettersi al server. Aggiornala.</translation>
    </message>
</context>
</TS>
