<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Zrušit propojení</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Zvolit jinou složku</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Při synchronizaci tohoto souboru došlo ke konfliktu.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Neplatný parametr.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Došlo k chybě sítě. Zkontrolujte připojení k síti a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Místní úložiště</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Znovu připojit</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>Vybraná složka není prázdná. Soubory v ní budou sloučeny se soubory na serveru.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Ověřování účtu...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Připojení proběhlo úspěšně.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>Složka „%1“ již existuje. Chcete sloučit její obsah?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Automaticky spustit Nimbulo Pelora po přihlášení</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Nesprávné uživatelské jméno nebo heslo.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Změnit synchronizovanou složku</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Složka není prázdná</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Začínáme s Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Naposledy aktualizované soubory</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Otevřít Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Zjišťování změn...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Spojení se serverem bylo přerušeno.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Povolit synchronizaci</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Ověření se nezdařilo</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Přímé připojení</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Místní síť</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Kontrola připojení...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Přenosové připojení</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Automatické připojení se nezdařilo kvůli systémové chybě.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Odkazy pro sdílení jsou na serveru zakázány. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Aktualizované soubory: %1</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>K této složce máte oprávnění jen pro čtení. Místní změny nebudou nahrány.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Vaše kvóta úložiště na serveru je vyčerpána. Uvolněte místo, aby synchronizace mohla pokračovat.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Typ připojení</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informace o připojení</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Změnit</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Vyberte složku.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Automatické připojení se nezdařilo. Zkontrolujte adresu serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Změny nebyly uloženy. Chcete je zahodit?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kvóta vyčerpána</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Místní složka</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Synchronizaci této sdílené složky nelze povolit.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Tato složka je v konfliktu s jinou úlohou synchronizace.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Dosáhli jste maximálního počtu synchronizovaných sdílených složek.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Použití nastavení...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Zadejte číslo portu v rozsahu 1 až 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Sdílená složka</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Zadejte adresu a port proxy serveru.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Zadejte uživatelské jméno.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ruční konfigurace proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Použít systémové nastavení proxy</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
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
        <translation>Žádné změny k použití.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Proxy server vyžaduje ověření</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Aktualizace souborů...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Konfliktní změny se uchovají v obou kopiích: místní kopie se přejmenuje podle názvu počítače.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Adresa serveru</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Zadejte IP adresu serveru, název hostitele nebo ID přenosu.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Synchronizační služba na serveru je zastaralá. Požádejte správce o její aktualizaci.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Zobrazovat stav synchronizace na ikonách souborů</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Šifrovat připojení pomocí SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Použít černobílou ikonu v oznamovací oblasti</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problém se synchronizací</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>Uživatel %1 s vámi sdílí „%2“.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nová sdílená složka</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrola souborů...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektivní synchronizace</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Soubory a složky odpovídající těmto pravidlům nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Přípony souborů:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Aktualizace Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizace</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Opravdu chcete ukončit synchronizaci „%1“?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Sdílení zakázáno</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Přípojný bod není podporován</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Tuto úlohu synchronizace nelze odebrat.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>Nový jazyk se použije po restartování Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Místní disk je plný. Uvolněte místo, aby synchronizace mohla pokračovat.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Opravdu chcete zrušit propojení s tímto serverem? Místní soubory zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Nahrávání...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Jazyk systému</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Jazyk:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synchronizace souborů: %1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Pokročilé nastavení</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Názvy souborů:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Blokované soubory</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>Místní databáze synchronizace je poškozená. Propojte tuto úlohu synchronizace znovu.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximální velikost souboru:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filtrovat soubory</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Vyloučené typy souborů:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Složky, u kterých zrušíte výběr, budou odebrány z tohoto počítače, ale na serveru zůstanou.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Režim sloučení</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Režim synchronizace</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Upravit připojení</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Přípojný bod nelze použít jako synchronizovanou složku.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Stahování bylo zrušeno.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Spustit nyní</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>K provedení této operace nemáte oprávnění.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Vaše kvóta úložiště je vyčerpána</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Místní disk je plný</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Přístup odepřen</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Neshoda verzí</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Informace o vašem účtu nelze ze serveru získat.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Zjištěn problém se synchronizací</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Název počítače</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>Připojení je nestabilní. Opakování pokusu...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Stahování %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Opakování synchronizace...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Upozornění zabezpečení</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Povoleno</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Stahování bylo dokončeno.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Přesto pokračovat</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Pravidla filtrování</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Č.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Procházet předchozí verze</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Zakázáno</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Ukončením synchronizace „%1“ se odebere její místní kopie. Pokračovat?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Zabezpečené připojení</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Vyberte složku v tomto počítači, do které se budou vaše soubory synchronizovat.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>a %1 dalších</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Sdílení</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Soubor nelze stáhnout.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Přehled</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Server byl nahrazen nebo resetován</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Ověření certifikátu se nezdařilo</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizace...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Certifikát SSL serveru nelze ověřit. Připojení nemusí být zabezpečené.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Dokončeno</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Tato úloha synchronizace je neaktivní. Kliknutím v ní budete pokračovat.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Neaktivní</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Tento soubor teď nelze stáhnout.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Předchozí verze tohoto souboru nelze zobrazit.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Pro tento soubor nelze vytvořit odkaz pro sdílení.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Pohotovostní režim</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Poklepáním na ikonu v oznamovací oblasti otevřete synchronizovanou složku</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indexování složky...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Vítá vás Průvodce instalací Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora se nepodařilo inicializovat.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Zpět</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Připraveno k instalaci Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Některé soubory, které je třeba aktualizovat, se právě používají.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Licenční smlouva s koncovým uživatelem</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Průvodce instalací Nimbulo Pelora byl dokončen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Tisk</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Nezavírat aplikace. Bude nutné restartovat počítač.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Chyba instalace</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknutím na tlačítko Dokončit ukončíte Průvodce instalací.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora byla úspěšně nainstalována.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Spustit Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Změnit, opravit nebo odebrat instalaci</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Umožňuje změnit způsob instalace funkcí.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>Synchronizovaná složka je na svazku, který není připojen.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>Verze souboru je neplatná.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Opravdu chcete zrušit instalaci Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Pouze stahovat</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>K této složce máte přístup jen pro čtení. Změny, které zde provedete, se nenahrají.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Pečlivě si přečtěte následující licenční smlouvu.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Chcete-li pokračovat, přečtěte si licenční smlouvu a přijměte ji.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Zrušit instalaci</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora udržuje soubory v tomto počítači synchronizované s vaším NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorovat</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalovat</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Další &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Opravit</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opakovat</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Stav synchronizace</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Místní synchronizovanou složku „%1“ nelze najít. Mohla být přesunuta nebo odstraněna.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Instalace Nimbulo Pelora byla kvůli chybě předčasně ukončena. Systém nebyl změněn.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Chcete-li tento program nainstalovat později, spusťte znovu Průvodce instalací. Kliknutím na Dokončit průvodce ukončíte.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Instalace byla předčasně ukončena</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Zavřít všechny aplikace a pokusit se je restartovat.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Zavřete aplikace, které používají soubory, jež musí instalační program aktualizovat.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Následující aplikace používají soubory, které musí instalační program aktualizovat. Zavřete je a pokračujte kliknutím na Opakovat.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Opraví chyby v poslední instalaci doplněním chybějících a poškozených souborů, zástupců a položek registru.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Následující aplikace používají soubory, které je třeba aktualizovat.\nZavřete je, nebo je nechte zavřít instalačním programem a zkusit je znovu spustit.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Používané soubory</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora nemá žádné samostatné funkce k výběru.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Změnit nainstalované funkce</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Vyberte operaci, kterou chcete provést.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Odebere Nimbulo Pelora z tohoto počítače.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Odebrat instalaci</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Opravit instalaci</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Vyberte operaci, kterou chcete provést.\nNastavení synchronizace zůstane zachováno.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Průvodce instalací umožňuje změnit způsob instalace Nimbulo Pelora, opravit ji nebo ji z počítače odebrat. Pokračujte kliknutím na Další, průvodce ukončíte kliknutím na Zrušit.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Vítá vás instalace Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Počkejte, než Průvodce instalací nainstaluje Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Instalace Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Instalace Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na Instalovat zahájíte instalaci. Kliknutím na Zpět můžete zkontrolovat nebo změnit nastavení instalace. Kliknutím na Zrušit průvodce ukončíte.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Průvodce instalací je připraven zahájit instalaci.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Kliknutím na Instalovat zahájíte instalaci.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Kliknutím na Odebrat odeberete Nimbulo Pelora z tohoto počítače. Synchronizované soubory zůstanou zachovány.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>Průvodce instalací je připraven odebrat Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Kliknutím na Odebrat zahájíte odebrání.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Odebrat Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Kliknutím na Opravit opravíte instalaci Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>Průvodce instalací je připraven opravit Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Kliknutím na Opravit zahájíte opravu.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Opravit Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Instalace Nimbulo Pelora byla přerušena. Systém nebyl změněn.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Chcete-li tento program nainstalovat později, spusťte instalaci znovu. Kliknutím na Dokončit průvodce ukončíte.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Instalace byla přerušena</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Průvodce instalací nainstaluje Nimbulo Pelora do tohoto počítače. Pokračujte kliknutím na Další, průvodce ukončíte kliknutím na Zrušit.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Změna, oprava nebo odebrání Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Instalace byla dokončena.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Instalace byla zrušena.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Během instalace došlo k chybě.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Tento průvodce vás provede instalací.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Souhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Připojit se k jinému NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Historie synchronizace</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Synchronizace povolena</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Složky k synchronizaci</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Vaše soubory na všech zařízeních.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Vaše soubory se nyní budou synchronizovat na pozadí. Najdete je v %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Opravdu chcete zrušit propojení úlohy synchronizace „%1“? Soubory, které již jsou v tomto počítači, zůstanou zachovány.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filtry souborů</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Zobrazovat ikonu u souborů, které nejsou synchronizovány</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>ID přenosu „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Úlohy synchronizace</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Server se změnil. Zkontrolujte úlohy synchronizace.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Sdílená složka není na serveru připojena.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>Vzdálená složka není dostupná. Může být v šifrované sdílené složce, která není připojena.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Soubory začínající tečkou</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 je již nainstalována.\nChcete ji přeinstalovat?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>K instalaci Nimbulo Pelora potřebujete oprávnění správce.\nSpusťte instalační program jako správce.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Synchronizujte soubory s Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Sdílení souborů není přes připojení LinkVane dostupné.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Út</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Otevřít nadřazenou složku</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Zvolte, jak chcete Nimbulo Pelora nastavit.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Rychlé nastavení</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Klikněte pravým tlačítkem na soubor v synchronizované složce a můžete ho sdílet nebo procházet jeho předchozí verze.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumím</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Nabídku v oznamovací oblasti můžete kdykoli otevřít a zjistit, co se synchronizuje.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Provedené změny se nahrají hned po uložení.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>před %1 h</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Nesynchronizovat tuto složku</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historie</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Vytvořte na NAS novou složku, která se bude synchronizovat s tímto počítačem.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Složka je již synchronizována</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Tuto složku již synchronizuje jiná úloha synchronizace.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Přejmenovat</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Příprava synchronizace...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Nedávno změněné</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>před %1 d</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Právě teď</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>před %1 min</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Položky: %1</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Čas změny</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Klíčové slovo</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Minulý měsíc</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minulý týden</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Pokračovat v synchronizaci této složky</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Pokračovat v synchronizaci těchto složek</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Nesynchronizovat tyto složky</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Žádná data</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Odeslat do</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Právě se synchronizuje: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Hledat podle názvu souboru</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Typ souboru</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Pá</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Událost</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Všechny události</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Vlastní</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Rozsah dat</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Stažení</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Obnovit výchozí</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Nahrání</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>dub</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>srp</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>pro</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>úno</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>led</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>čvc</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>čvn</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>bře</translation>
    </message>
    <message>
        <source>May</source>
        <translation>kvě</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>lis</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>říj</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>zář</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Čt</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>St</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Rozšířený režim</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Tuto zprávu již nezobrazovat</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Vaše soubory se nyní synchronizují se složkou „%1“ na NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora je nastavena. Vaše domovská složka na NAS se nyní synchronizuje s tímto počítačem.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Nastavení dokončeno</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Soubory, které umístíte do synchronizované složky, budou vždy aktuální na NAS i na vašich dalších zařízeních.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>Ikona v oznamovací oblasti zobrazuje stav synchronizace na první pohled.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Režim nastavení</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Synchronizujte domovskou složku na NAS se složkou v tomto počítači.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Ne, děkuji</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synchronizovaná složka</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Ikona v oznamovací oblasti</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Sdílení a verze</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Hledat NAS v místní síti</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Připojit přes LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Vítá vás Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Zobrazit hlavní okno</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>K dispozici je aktualizace</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Složka na NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nová synchronizovaná složka</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synchronizovat novou složku</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Rozšířené nastavení</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Otevřít stav synchronizace</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Zvolte, kterou složku na NAS chcete synchronizovat, kam ji v tomto počítači uložit a jak ji synchronizovat.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Soubory větší než %1 MB nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Najít NAS v místní síti</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Pro „%1“ máte jen oprávnění ke čtení. Změny provedené v tomto počítači nebudou nahrány.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>„%1“ nelze použít jako synchronizovanou složku.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Další tipy</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>Složka „%1“ se překrývá se synchronizovanou složkou jiné úlohy.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Tato složka se již synchronizuje s „%1“.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>Složka „%1“ se již synchronizuje se složkou na NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Vytvořit ve vybraném umístění složku „Nimbulo“</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopírovat odkaz pro sdílení</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Odkaz pro sdílení nelze získat, protože sdílení je na serveru zakázáno.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>Certifikát SSL serveru se změnil. Důvěřujete novému certifikátu?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Z vaší IP adresy není povoleno připojení k tomuto serveru.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Pokud byl stejný soubor změněn na obou stranách:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>Směr synchronizace neodpovídá oprávněním této složky.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Předchozích %1 stránek</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Dalších %1 stránek</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otevřít soubor</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Rušení propojení...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Příliš mnoho neúspěšných pokusů. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Tento soubor je uzamčen jinou aplikací.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>„%1“ nelze zkontrolovat kvůli chybě sítě.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Ponechat naposledy změněnou verzi</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Obousměrná synchronizace</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Zadejte adresu svého NAS a údaje účtu.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Místní složku „%1“ nelze vytvořit.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Vyberte složku na NAS a složku v tomto počítači, které se budou vzájemně synchronizovat.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Nastavit synchronizované složky</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora nyní synchronizuje „%1“ na NAS s „%2“ v tomto počítači.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Při konfliktu souborů se ponechá kopie ze serveru a místní kopie se zálohuje.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Povolit synchronizaci na vyžádání</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Ověřovací kód je nesprávný.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Tento účet vyžaduje ověřovací kód.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Zadejte ověřovací kód z ověřovací aplikace:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Vaše kvóta na NAS je vyčerpána. „%1“ nelze synchronizovat.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Certifikát serveru se změnil. „%1“ nelze synchronizovat.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Certifikát serveru nelze ověřit. „%1“ nelze synchronizovat.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Při kontrole synchronizované složky došlo k systémové chybě.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Přepsat místní kopii kopií ze serveru</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Ponechat obě kopie a místní přejmenovat</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Je již nainstalována novější verze Nimbulo Pelora (%1).\nInstalace bude nyní ukončena.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora je připravena.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora se inicializuje...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Nebyla nalezena žádná složka, kterou lze synchronizovat.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Zobrazit průvodce</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Soubory v místní složce budou sloučeny se soubory na NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Spustit Nimbulo Pelora při spuštění počítače</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>V Nimbulo Pelora došlo k chybě.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora je spuštěna.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Tato verze Nimbulo Pelora již není podporována. Aktualizujte ji.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Kliknutím aktualizujete Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Chcete-li používat selektivní synchronizaci, aktualizujte synchronizační službu na serveru.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>V tomto počítači není dostatek volného místa pro synchronizaci „%1“.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Synchronizaci zahájíte přihlášením k NAS.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Udržujte soubory v tomto počítači synchronizované s vaším NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Sdílená složka nebyla nalezena</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>O aplikaci Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Správce vyžaduje dvoufázové ověření. Nejprve je povolte v nastavení účtu.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Kvóta sdílené složky je vyčerpána.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Směr synchronizace</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>V Nimbulo Pelora došlo při synchronizaci k problému. Klikněte pro podrobnosti.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora udržuje vaše soubory aktuální na všech vašich zařízeních.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Některá pole obsahují neplatné hodnoty.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Nemáte oprávnění k přístupu do „%1“.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Váš účet byl zakázán. „%1“ nelze synchronizovat.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Platnost vyprší po</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nejsou k dispozici žádné možnosti</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Potřebujete účet na NAS s nainstalovanou synchronizační službou.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Ověření se nezdařilo. Zkontrolujte uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Znak * zastupuje libovolné znaky. Položky oddělte čárkami.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Jednosměrné stahování</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Složka s názvem „%1“ již existuje.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Synchronizovat rozšířené atributy</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Nesouhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Odkaz pro sdílení</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Platnost vyprší dne</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Toto pole je povinné.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Omezit přístup na uživatele s účtem</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Zobrazovat Nimbulo Pelora v místní nabídce</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Služba domovských složek je na NAS zakázána.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Nimbulo Pelora nelze aktualizovat. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Použít a zkopírovat odkaz</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Omezit počet přístupů</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Dostupné od</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Pro připojení k tomuto serveru je nutná nová verze Nimbulo Pelora. Aktualizovat nyní?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Přidat název souboru</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Místní cíl</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Vzdálený NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Tento počítač</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Stáhnout vybranou verzi</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Vlastní doba</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Obnovit historii synchronizace</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Synchronizace na vyžádání</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filtrovat historii synchronizace</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Přidat složku</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendář</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Další měsíc</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Předchozí měsíc</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Změnit synchronizovanou složku</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Kategorie události</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Podrobnosti úlohy synchronizace</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Vzdálený cíl</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Zavřít průvodce</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Průvodce: naučte se používat Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Zrušit stahování</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Odstranit verzi</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Synchronizaci na vyžádání nelze pro „%1“ povolit.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Tento soubor není dostupný, protože není k dispozici připojení k serveru.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Přejmenováno v tomto počítači</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Přejmenováno na serveru</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Zadejte nejvýše %1 znaků.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Platnost hesla vypršela. Změňte je na serveru a přihlaste se znovu.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Tuto složku synchronizoval jiný uživatel. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Přenosová připojení jsou na serveru zakázána.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Ověření pro „%1“ se nezdařilo. Přihlaste se znovu.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Odkaz na tento soubor nelze získat.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Dočasné soubory</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Později</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Blahopřejeme!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Složky, které s vámi sdílejí ostatní</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>K této složce máte přístup jen pro čtení. Změny, které zde provedete, zůstanou jen v tomto počítači.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora nyní synchronizuje „%1“ na serveru s „%2“ v tomto počítači.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Zobrazit průvodce Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora je spuštěna na pozadí.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Synchronizaci zahájíte přihlášením k serveru.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nimbulo Pelora nelze aktualizovat. Stáhněte nejnovější verzi a nainstalujte ji znovu.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Potřebujete účet na serveru s nainstalovanou synchronizační službou.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Konfliktní změny se uchovají v obou kopiích: kopie na serveru se přejmenuje podle uživatelského jména.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Průvodce: naučte se synchronizovat s Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>ID serveru „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Spustit Nimbulo Pelora po přihlášení</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Zvolte složku na serveru a složku v tomto počítači.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Tato úloha synchronizace patří k jinému serveru.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Server používá protokol, který tato verze Nimbulo Pelora nepodporuje.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Disk je plný. Nimbulo Pelora pozastavila synchronizaci.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>V Nimbulo Pelora došlo k chybě. Restartujte ji.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>Vybraná složka není prázdná. Její soubory budou nahrány na server.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Pouze stahovat změny ze serveru</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Vaše soubory se nyní synchronizují se složkou „%1“ na serveru.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 je již nainstalována.\nChcete ji přeinstalovat?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Nedostatek volného místa pro synchronizaci „%1“. Uvolněte místo a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Udržujte soubory v tomto počítači synchronizované s vaším serverem.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Vytvořit ve vybraném umístění složku „Varnex Pelora“</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Je již nainstalována novější verze Varnex Pelora (%1).\nInstalace bude nyní ukončena.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Synchronizujte libovolnou složku na serveru.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Automatické nastavení se nezdařilo. Nastavte Nimbulo Pelora ručně.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Dokončování automatického nastavení...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Sdílet</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Nejsou k dispozici žádná data.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Nejsou k dispozici žádné sdílené složky.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Soubor nebo složka neexistuje.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora nakonfiguroval váš správce.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Interní uživatelé</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Uživatelé serveru mohou soubor zobrazit.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Uživatelé serveru mohou soubor zobrazit a upravit.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Konkrétní osoby</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>K souboru mají přístup jen osoby, které pozvete.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Kdokoli s odkazem</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Kdokoli s odkazem může soubor zobrazit.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Kdokoli s odkazem může soubor zobrazit a upravit.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Může zobrazit</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Může upravit</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Pozvat</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Odkaz</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Oprávnění odkazu:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Uživatelé a skupiny</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Použít černobílou ikonu v řádku nabídek</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Zobrazovat synchronizovanou složku v postranním panelu oken se soubory</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zobrazení</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Nelze se připojit k serveru</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Oznámení</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 přidal(a) komentář k %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 vás zmínil(a) v %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 žádá o přístup k %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 s vámi sdílí %2</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Otevřít ve webovém portálu</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizace</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Sdílené</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Nastavit</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 žádá o přístup k tomuto souboru.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Komentáře</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Zmínky</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Synchronizovat také složky, které s vámi ostatní sdílejí?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Jednosměrné nahrávání</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Neodstraňovat soubory na serveru, když jsou odstraněny místně</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>Soubor „%1“ byl stažen.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Vaše soubory jsou synchronizovány na všech zařízeních.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>K souborům máte přístup také z webového portálu.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Vaše úloha synchronizace je připravena.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Zahájit prohlídku</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Soubory a složky, které s vámi sdílejí ostatní, lze také synchronizovat do tohoto počítače.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Možná později</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synchronizovat nyní</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Sdíleno se mnou</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Vytvořit úlohu synchronizace</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Zvolte, co chcete synchronizovat.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Obecná úloha synchronizace</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Soubory sdílené se mnou</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Synchronizujte soubory a složky, které s vámi sdílejí ostatní.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Zvolte složku na NAS a složku v tomto počítači.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Tato úloha synchronizace patří k jinému NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>NAS používá protokol, který tato verze Nimbulo Pelora nepodporuje.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Disk je plný. Synchronizace byla pozastavena.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Pouze stahovat změny z NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nimbulo Pelora nelze aktualizovat. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>K tomuto NAS jste již připojeni.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Změny na síťových jednotkách mohou být zjištěny se zpožděním.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>Certifikát SSL serveru %1 se změnil.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Zabezpečené připojení k serveru nelze navázat.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Vítejte!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Soubory z vaší domovské složky na NAS jsou nyní v %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Soubory z vaší domovské složky na serveru jsou nyní v %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Disk je plný</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Synchronizační služba na serveru je zastaralá</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>Sdílená složka již neexistuje.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Kliknutím provedete aktualizaci na Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Tato verze Nimbulo Pelora je příliš stará pro připojení k serveru. Aktualizujte ji.</translation>
    </message>
</context>
</TS>
