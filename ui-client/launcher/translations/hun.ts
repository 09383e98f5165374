<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Ütközés történt a fájl szinkronizálása közben.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Érvénytelen paraméter.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Hálózati hiba történt. Ellenőrizze a hálózati kapcsolatot, majd próbálja újra.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Helyi tárhely</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Újracsatlakozás</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Kapcsolat tesztelése...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>A kijelölt mappa nem üres. A benne lévő fájlok egyesítve lesznek a kiszolgálón lévő fájlokkal.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Fiók ellenőrzése...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>A csatlakozás sikerült.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>A(z) „%1” mappa már létezik. Egyesíti a tartalmát?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>A Nimbulo Pelora automatikus indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Helytelen felhasználónév vagy jelszó.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Szinkronizálási mappa módosítása</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>A mappa nem üres</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>A Nimbulo Pelora első lépései</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Legutóbb frissített fájlok</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>A Nimbulo Pelora megnyitása</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Változások észlelése...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>A kapcsolat megszakadt a kiszolgálóval.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Szinkronizálás engedélyezése</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Sikertelen hitelesítés</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Közvetlen kapcsolat</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Helyi hálózat</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Kapcsolat ellenőrzése...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Továbbított kapcsolat</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Rendszerhiba miatt az automatikus csatlakozás nem sikerült.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>A megosztási hivatkozások le vannak tiltva a kiszolgálón. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 fájl frissítve</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Ehhez a mappához csak olvasási engedéllyel rendelkezik. A helyi módosítások nem lesznek feltöltve.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Betelt a tárhelykvótája a kiszolgálón. A szinkronizálás folytatásához szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Kapcsolat típusa</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Kapcsolatadatok</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Módosítás</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Válasszon egy mappát.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Az automatikus csatlakozás nem sikerült. Ellenőrizze a kiszolgáló címét, majd próbálja újra.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Megosztott mappák</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>A módosítások nincsenek mentve. Elveti őket?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Betelt a kvóta</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Helyi mappa</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Nem sikerült engedélyezni a megosztott mappa szinkronizálását.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Ez a mappa ütközik egy másik szinkronizálási feladattal.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Elérte a szinkronizált megosztott mappák maximális számát.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Adjon meg egy 1 és 65535 közötti portszámot.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Megosztott mappa</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Adja meg a proxykiszolgáló címét és portját.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Adja meg a felhasználónevét.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Kézi proxybeállítás</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nincs proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
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
        <translation>Nincs alkalmazandó módosítás.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>A proxykiszolgáló hitelesítést igényel</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Fájlok frissítése...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Az ütköző módosítások mindkét példányban megmaradnak: a helyi példány nevét a számítógép nevével egészítjük ki.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Kiszolgáló címe</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Adja meg a kiszolgáló IP-címét, állomásnevét vagy továbbítási azonosítóját.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>A kiszolgáló szinkronizálási szolgáltatása elavult. Kérje meg a rendszergazdát, hogy frissítse.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Szinkronizálási állapot megjelenítése a fájlikonokon</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>A kapcsolat titkosítása SSL-lel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Egyszínű tálcaikon használata</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Szinkronizálási probléma</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 megosztotta Önnel a következőt: „%2”.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Új megosztott mappa</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Fájlok ellenőrzése...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Az ezeknek a szabályoknak megfelelő fájlok és mappák nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Fájlkiterjesztések:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>A Nimbulo Pelora frissítése...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Frissítés</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Biztosan leállítja a(z) „%1” szinkronizálását?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Megosztás letiltva</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>A csatlakoztatási pont nem támogatott</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Nem sikerült eltávolítani ezt a szinkronizálási feladatot.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>Az új nyelv a Nimbulo Pelora újraindítása után lép életbe.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Megtelt a helyi lemez. A szinkronizálás folytatásához szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Biztosan leválasztja ezt a kiszolgálót? A helyi fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Feltöltés...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>A rendszer nyelve</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Nyelv:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 fájl szinkronizálása</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Fájlnevek:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Letiltott fájlok</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>A helyi szinkronizálási adatbázis megsérült. Kapcsolja össze újra ezt a szinkronizálási feladatot.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximális fájlméret:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Fájlok szűrése</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Mappa neve</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Kizárt fájltípusok:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>A kijelölésből kivett mappák törlődnek erről a számítógépről, de a kiszolgálón megmaradnak.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Egyesítési mód</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Szinkronizálási mód</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Kapcsolat szerkesztése</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Csatlakoztatási pont nem használható szinkronizálási mappaként.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cél</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>A letöltés megszakítva.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Indítás most</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Nincs engedélye a művelet végrehajtásához.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Betelt a tárhelykvótája</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Megtelt a helyi lemez</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Hozzáférés megtagadva</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Verzióeltérés</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Nem sikerült lekérni a fiókadatokat a kiszolgálóról.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Szinkronizálási probléma észlelve</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Számítógép neve</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>A kapcsolat instabil. Újrapróbálkozás...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 letöltése...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Csatlakozás...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Szinkronizálás újrapróbálása...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Biztonsági figyelmeztetés</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Engedélyezve</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>A letöltés befejeződött.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Folytatás mindenképp</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Szűrési szabályok</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Sorszám</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Korábbi verziók tallózása</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Letiltva</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>A(z) „%1” szinkronizálásának leállítása törli a helyi példányát. Folytatja?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Biztonságos kapcsolat</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Válassza ki, hogy a számítógép melyik mappájába szinkronizálódjanak a fájlok.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>és további %1</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Megosztás</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Nem sikerült letölteni a fájlt.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Áttekintés</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>A kiszolgálót lecserélték vagy alaphelyzetbe állították</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>A tanúsítvány ellenőrzése sikertelen</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Szinkronizálás...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>A kiszolgáló SSL-tanúsítványát nem sikerült ellenőrizni. Előfordulhat, hogy a kapcsolat nem biztonságos.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Befejezve</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Ez a szinkronizálási feladat inaktív. Kattintson a folytatáshoz.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktív</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Ez a fájl jelenleg nem tölthető le.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Nem sikerült lekérni a fájl korábbi verzióinak listáját.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Nem sikerült megosztási hivatkozást létrehozni ehhez a fájlhoz.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Kattintson duplán a tálcaikonra a szinkronizálási mappa megnyitásához</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Mappa indexelése...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Üdvözli a Nimbulo Pelora telepítővarázslója</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nem sikerült inicializálni a Nimbulo Pelora alkalmazást.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Vissza</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>A Nimbulo Pelora telepítésre kész</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Néhány frissítendő fájl jelenleg használatban van.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Végfelhasználói licencszerződés</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>A Nimbulo Pelora telepítővarázslója befejeződött</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Nyomtatás</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Ne zárja be az alkalmazásokat. Újraindításra lesz szükség.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Telepítési hiba</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>A telepítővarázslóból a Befejezés gombra kattintva léphet ki.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>A Nimbulo Pelora telepítése sikeresen befejeződött.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>A Nimbulo Pelora indítása</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Telepítés módosítása, javítása vagy eltávolítása</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lehetővé teszi az összetevők telepítési módjának módosítását.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>A szinkronizálási mappa nem csatlakoztatott köteten található.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>A fájl verziója érvénytelen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Biztosan megszakítja a Nimbulo Pelora telepítését?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Ehhez a mappához csak olvasási hozzáféréssel rendelkezik. Az itt végzett módosítások nem lesznek feltöltve.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Olvassa el figyelmesen az alábbi licencszerződést.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>A folytatáshoz olvassa el és fogadja el a licencszerződést.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Telepítés megszakítása</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>A Nimbulo Pelora szinkronban tartja a számítógépen lévő fájlokat a NAS-sal.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Kihagyás</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Telepítés</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Csak olvasható</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Tovább &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Javítás</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Szinkronizálási állapot</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>A(z) „%1” helyi szinkronizálási mappa nem található. Lehet, hogy áthelyezték vagy törölték.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>A Nimbulo Pelora telepítése egy hiba miatt idő előtt befejeződött. A rendszer nem módosult.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Ha később szeretné telepíteni a programot, futtassa újra a telepítővarázslót. A kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>A telepítés idő előtt befejeződött</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Minden alkalmazás bezárása és újraindításuk megkísérlése.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Zárja be azokat az alkalmazásokat, amelyek a telepítő által frissítendő fájlokat használják.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Az alábbi alkalmazások a telepítő által frissítendő fájlokat használnak. Zárja be őket, majd a folytatáshoz kattintson az Újra gombra.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Kijavítja a legutóbbi telepítés hibáit a hiányzó és sérült fájlok, parancsikonok és beállításjegyzék-bejegyzések helyreállításával.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Az alábbi alkalmazások frissítendő fájlokat használnak.\nZárja be őket, vagy engedje, hogy a telepítő bezárja és megpróbálja újraindítani őket.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>A Nimbulo Pelora nem tartalmaz külön kiválasztható összetevőket.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>A telepített összetevők módosítása</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Válassza ki a végrehajtandó műveletet.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Eltávolítja a Nimbulo Pelora alkalmazást a számítógépről.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>A telepítés eltávolítása</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>A telepítés javítása</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Válassza ki a végrehajtandó műveletet.\nA szinkronizálási beállítások megmaradnak.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>A telepítővarázslóval módosíthatja a Nimbulo Pelora telepítési módját, kijavíthatja, vagy eltávolíthatja a számítógépről. A folytatáshoz kattintson a Tovább, a kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Üdvözli a Nimbulo Pelora telepítője</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Várjon, amíg a telepítővarázsló telepíti a Nimbulo Pelora alkalmazást.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Ez néhány percig is eltarthat.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>A Nimbulo Pelora telepítése...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>A Nimbulo Pelora telepítése</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A telepítés megkezdéséhez kattintson a Telepítés gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból a Mégse gombra kattintva léphet ki.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>A telepítővarázsló készen áll a telepítés megkezdésére.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>A kezdéshez kattintson a Telepítés gombra.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>A Nimbulo Pelora eltávolításához kattintson az Eltávolítás gombra. A szinkronizált fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>A telepítővarázsló készen áll a Nimbulo Pelora eltávolítására.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>A kezdéshez kattintson az Eltávolítás gombra.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>A Nimbulo Pelora eltávolítása</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>A Nimbulo Pelora telepítésének javításához kattintson a Javítás gombra.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>A telepítővarázsló készen áll a Nimbulo Pelora javítására.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>A kezdéshez kattintson a Javítás gombra.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>A Nimbulo Pelora javítása</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>A Nimbulo Pelora telepítése megszakadt. A rendszer nem módosult.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Ha később szeretné telepíteni a programot, futtassa újra a telepítést. A varázslóból a Befejezés gombra kattintva léphet ki.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>A telepítés megszakadt</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>A telepítővarázsló telepíti a Nimbulo Pelora alkalmazást a számítógépre. A folytatáshoz kattintson a Tovább, a kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>A Nimbulo Pelora módosítása, javítása vagy eltávolítása.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>A telepítés befejeződött.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>A telepítés megszakítva.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Hiba történt a telepítés során.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>A varázsló végigvezeti a telepítésen.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Elfogadom a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Csatlakozás másik NAS-hoz</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Szinkronizálási előzmények</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Szinkronizálás engedélyezve</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Szinkronizálandó mappák</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Az Ön fájljai, minden eszközön.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>A fájlok mostantól a háttérben szinkronizálódnak. Itt találja őket: %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Biztosan leválasztja a(z) „%1” szinkronizálási feladatot? A számítógépen már meglévő fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Fájlszűrők</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Ikon megjelenítése a nem szinkronizált fájlokon</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>A(z) „%1” továbbítási azonosító nem létezik.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>A kiszolgáló megváltozott. Ellenőrizze a szinkronizálási feladatokat.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>A megosztott mappa nincs csatlakoztatva a kiszolgálón.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>A távoli mappa nem érhető el. Lehet, hogy egy nem csatlakoztatott, titkosított megosztott mappában van.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Ponttal kezdődő fájlok</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>A Nimbulo Pelora %1 már telepítve van.\nSzeretné újratelepíteni?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>A Nimbulo Pelora telepítéséhez rendszergazdai jogosultság szükséges.\nFuttassa a telepítőt rendszergazdaként.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Szinkronizálja fájljait a Nimbulo Pelora segítségével</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>A fájlmegosztás LinkVane-kapcsolaton keresztül nem érhető el.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Tartalmazó mappa megnyitása</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Válassza ki, hogyan szeretné beállítani a Nimbulo Pelora alkalmazást.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Gyors beállítás</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Kattintson a jobb gombbal a szinkronizálási mappa egy fájljára a megosztásához vagy korábbi verzióinak tallózásához.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Értem</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>A tálcamenüt bármikor megnyitva láthatja, mi szinkronizálódik éppen.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>A módosítások a mentésük után azonnal feltöltődnek.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 órája</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>A mappa szinkronizálásának kihagyása</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Előzmények</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Hozzon létre egy új mappát a NAS-on, amely ezzel a számítógéppel szinkronizálódik.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Ettől</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>A mappa már szinkronizálva van</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Ezt a mappát már egy másik szinkronizálási feladat szinkronizálja.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Átnevezés</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Szinkronizálás előkészítése...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Nemrég módosított</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 napja</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az imént</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 perce</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elem</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Módosítás ideje</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Kulcsszó</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Múlt hónap</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Múlt hét</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>A mappa szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>A mappák szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>A mappák szinkronizálásának kihagyása</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Nincs adat</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Küldés ide</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Szinkronizálás folyamatban: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Keresés fájlnév alapján</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Fájltípus</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>P</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Esemény</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Minden esemény</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Egyéni</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Dátumtartomány</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Letöltés</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Alaphelyzet</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Eddig</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Feltöltés</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>H</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>ápr.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>aug.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dec.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>febr.</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>jan.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>júl.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jún.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>márc.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>máj.</translation>
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
        <translation>szept.</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Szo</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Cs</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Sze</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Speciális mód</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Ne jelenjen meg többé ez az üzenet</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>A fájlok mostantól a NAS „%1” mappájával szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>A Nimbulo Pelora beállítása kész. A NAS-on lévő saját mappája mostantól szinkronizálódik ezzel a számítógéppel.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>A beállítás befejeződött</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>A szinkronizálási mappába helyezett fájlok naprakészek maradnak a NAS-on és a többi eszközén is.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>A tálcaikon egy pillantással megmutatja a szinkronizálás állapotát.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Beállítási mód</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Szinkronizálja a NAS-on lévő saját mappáját a számítógép egy mappájával.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Köszönöm, nem</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Üdvözöljük</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Szinkronizálási mappa</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Tálcaikon</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Megosztás és verziók</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>NAS keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Csatlakozás LinkVane-nel</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Jelszó:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Felhasználónév:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Üdvözli a Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Főablak megjelenítése</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Frissítés érhető el</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Mappa a NAS-on</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Új szinkronizálási mappa</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Új mappa szinkronizálása</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Speciális beállítás</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Szinkronizálási állapot megnyitása</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Válassza ki, melyik NAS-mappát szeretné szinkronizálni, hol tárolja a számítógépen, és hogyan szinkronizálódjon.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>%1 MB-nál nagyobb fájlok nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>NAS keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Csak olvasási engedéllyel rendelkezik ehhez: „%1”. A számítógépen végzett módosítások nem lesznek feltöltve.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>A(z) „%1” nem használható szinkronizálási mappaként.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>További tippek</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>A(z) „%1” mappa átfedésben van egy másik feladat szinkronizálási mappájával.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Ez a mappa már szinkronizálva van ezzel: „%1”.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>A(z) „%1” mappa már szinkronizálva van egy NAS-mappával.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>„Nimbulo” mappa létrehozása a kijelölt helyen</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Megosztási hivatkozás másolása</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Nem kérhető le megosztási hivatkozás, mert a megosztás le van tiltva a kiszolgálón.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>A kiszolgáló SSL-tanúsítványa megváltozott. Megbízik az új tanúsítványban?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Az Ön IP-címéről nem engedélyezett a csatlakozás ehhez a kiszolgálóhoz.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Ha ugyanaz a fájl mindkét oldalon módosult:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>A szinkronizálás iránya nem egyezik a mappa engedélyeivel.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Előző %1 oldal</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Következő %1 oldal</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Fájl megnyitása</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Leválasztás...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Túl sok sikertelen próbálkozás. Próbálja újra később.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>A fájlt egy másik alkalmazás zárolja.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Hálózati hiba miatt nem sikerült ellenőrizni ezt: „%1”.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>A legutóbb módosított verzió megtartása</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Kétirányú szinkronizálás</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Adja meg a NAS címét és a fiókja adatait.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Nem sikerült létrehozni a(z) „%1” helyi mappát.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Válasszon ki egy mappát a NAS-on és egy mappát a számítógépen, amelyek egymással szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Szinkronizálási mappák beállítása</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>A Nimbulo Pelora mostantól szinkronizálja a NAS „%1” mappáját a számítógép „%2” mappájával.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Ütközés esetén a kiszolgálón lévő példány megmarad, a helyi példányról pedig biztonsági másolat készül.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Igény szerinti szinkronizálás engedélyezése</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>A hitelesítő kód helytelen.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Ehhez a fiókhoz hitelesítő kód szükséges.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Adja meg a hitelesítő alkalmazásban megjelenő kódot:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Betelt a kvótája a NAS-on. A(z) „%1” nem szinkronizálható.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>A kiszolgáló tanúsítványa megváltozott. A(z) „%1” nem szinkronizálható.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>A kiszolgáló tanúsítványa nem ellenőrizhető. A(z) „%1” nem szinkronizálható.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Rendszerhiba történt a szinkronizálási mappa ellenőrzése közben.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>A helyi példány felülírása a kiszolgálón lévő példánnyal</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Mindkét példány megtartása és a helyi átnevezése</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>A Nimbulo Pelora egy újabb verziója (%1) már telepítve van.\nA telepítő most kilép.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>A Nimbulo Pelora készen áll.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>A Nimbulo Pelora inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Nem található szinkronizálható mappa.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Oktatóanyag megjelenítése</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>A helyi mappában lévő fájlok egyesítve lesznek a NAS-on lévő fájlokkal.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>A Nimbulo Pelora indítása a számítógép indulásakor</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Hiba történt a Nimbulo Pelora működésében.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>A Nimbulo Pelora fut.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>A Nimbulo Pelora ezen verziója már nem támogatott. Frissítse.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Kattintson a Nimbulo Pelora frissítéséhez</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>A szelektív szinkronizálás használatához frissítse a kiszolgáló szinkronizálási szolgáltatását.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Nincs elég szabad hely a számítógépen a(z) „%1” szinkronizálásához.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>A szinkronizálás megkezdéséhez jelentkezzen be a NAS-ra.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Tartsa szinkronban a számítógépen lévő fájlokat a NAS-sal.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>A megosztott mappa nem található</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>A Nimbulo Pelora névjegye</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>A rendszergazda kétlépéses hitelesítést ír elő. Először engedélyezze a fiókbeállításokban.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Betelt a megosztott mappa kvótája.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Szinkronizálás iránya</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>A Nimbulo Pelora problémát észlelt a szinkronizálás közben. Kattintson a részletekért.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>A Nimbulo Pelora minden eszközén naprakészen tartja a fájljait.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Egyes mezők érvénytelen értéket tartalmaznak.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Nincs hozzáférési engedélye ehhez: „%1”.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>A fiókját letiltották. A(z) „%1” nem szinkronizálható.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Cím</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Lejárat ennyi idő után</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nincsenek elérhető beállítások</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Olyan NAS-on lévő fiókra van szükség, amelyen telepítve van a szinkronizálási szolgáltatás.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>A hitelesítés sikertelen. Ellenőrizze a felhasználónevet és a jelszót.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>A * tetszőleges karaktereket helyettesít. A bejegyzéseket vesszővel válassza el.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Egyirányú letöltés</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Már létezik „%1” nevű mappa.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Kiterjesztett attribútumok szinkronizálása</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Nem fogadom el a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Megosztási hivatkozás</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Lejárat napja</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Ez a mező kötelező.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Hozzáférés korlátozása a fiókkal rendelkező felhasználókra</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>A Nimbulo Pelora megjelenítése a helyi menüben</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>A saját mappa szolgáltatás le van tiltva a NAS-on.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Nem sikerült frissíteni a Nimbulo Pelora alkalmazást. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Alkalmazás és hivatkozás másolása</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Hozzáférések számának korlátozása</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Elérhető ettől</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>A kiszolgálóhoz való csatlakozáshoz a Nimbulo Pelora új verziója szükséges. Frissíti most?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Fájlnév hozzáadása</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Helyi cél</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Távoli NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ez a számítógép</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>A kijelölt verzió letöltése</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Egyéni időtartam</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Szinkronizálási előzmények frissítése</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Igény szerinti szinkronizálás</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Szinkronizálási előzmények szűrése</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Mappa hozzáadása</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Naptár</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Következő hónap</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Előző hónap</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Szinkronizálási mappa módosítása</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Esemény kategóriája</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Szinkronizálási feladat részletei</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Távoli cél</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Oktatóanyag bezárása</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Oktatóanyag: ismerje meg a Nimbulo Pelora használatát.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Letöltés megszakítása</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Verzió törlése</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Nem sikerült engedélyezni az igény szerinti szinkronizálást ehhez: „%1”.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>A fájl nem érhető el, mert nincs kapcsolat a kiszolgálóval.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Átnevezve a számítógépen</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Átnevezve a kiszolgálón</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Legfeljebb %1 karaktert adjon meg.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>A jelszava lejárt. Módosítsa a kiszolgálón, majd jelentkezzen be újra.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Ezt a mappát egy másik felhasználó szinkronizálta. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>A továbbított kapcsolatok le vannak tiltva a kiszolgálón.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Sikertelen hitelesítés ehhez: „%1”. Jelentkezzen be újra.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Nem sikerült lekérni a fájl hivatkozását.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Ideiglenes fájlok</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Később</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Gratulálunk!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Mások által Önnel megosztott mappák</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Ehhez a mappához csak olvasási hozzáféréssel rendelkezik. Az itt végzett módosítások csak ezen a számítógépen maradnak meg.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>A Nimbulo Pelora mostantól szinkronizálja a kiszolgáló „%1” mappáját a számítógép „%2” mappájával.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>A Nimbulo Pelora oktatóanyagának megjelenítése</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>A Nimbulo Pelora a háttérben fut.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>A szinkronizálás megkezdéséhez jelentkezzen be a kiszolgálóra.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nem sikerült frissíteni a Nimbulo Pelora alkalmazást. Töltse le a legújabb verziót, és telepítse újra.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Olyan kiszolgálón lévő fiókra van szükség, amelyen telepítve van a szinkronizálási szolgáltatás.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Az ütköző módosítások mindkét példányban megmaradnak: a kiszolgálón lévő példány nevét a felhasználónévvel egészítjük ki.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Oktatóanyag: ismerje meg a szinkronizálást a Nimbulo Pelora alkalmazással.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>A(z) „%1” kiszolgáló-azonosító nem létezik.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>A Nimbulo Pelora indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Válasszon ki egy mappát a kiszolgálón és egy mappát a számítógépen.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Ez a szinkronizálási feladat egy másik kiszolgálóhoz tartozik.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>A kiszolgáló olyan protokollt használ, amelyet a Nimbulo Pelora ezen verziója nem támogat.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Megtelt a lemez. A Nimbulo Pelora szüneteltette a szinkronizálást.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Hiba történt a Nimbulo Pelora működésében. Indítsa újra az alkalmazást.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>A kijelölt mappa nem üres. A benne lévő fájlok fel lesznek töltve a kiszolgálóra.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Csak a kiszolgálón történt módosítások letöltése</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>A fájlok mostantól a kiszolgáló „%1” mappájával szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>A Varnex Pelora %1 már telepítve van.\nSzeretné újratelepíteni?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Nincs elég szabad hely a(z) „%1” szinkronizálásához. Szabadítson fel helyet, majd próbálja újra.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Tartsa szinkronban a számítógépen lévő fájlokat a kiszolgálóval.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>„Varnex Pelora” mappa létrehozása a kijelölt helyen</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>A Varnex Pelora egy újabb verziója (%1) már telepítve van.\nA telepítő most kilép.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Tetszőleges kiszolgálómappa szinkronizálása.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Az automatikus beállítás nem sikerült. Állítsa be kézzel a Nimbulo Pelora alkalmazást.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Automatikus beállítás befejezése...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Megosztás</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Nincs elérhető adat.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Nincs elérhető megosztott mappa.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>A fájl vagy mappa nem létezik.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>A Nimbulo Pelora alkalmazást a rendszergazda konfigurálta.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Belső felhasználók</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>A kiszolgáló felhasználói megtekinthetik a fájlt.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>A kiszolgáló felhasználói megtekinthetik és szerkeszthetik a fájlt.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Meghatározott személyek</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Csak az Ön által meghívott személyek férhetnek hozzá a fájlhoz.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Bárki, aki ismeri a hivatkozást</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>A hivatkozás birtokában bárki megtekintheti a fájlt.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>A hivatkozás birtokában bárki megtekintheti és szerkesztheti a fájlt.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Megtekintheti</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Szerkesztheti</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Meghívás</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Hivatkozás</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Hivatkozás engedélye:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Felhasználók és csoportok</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Fekete-fehér ikon használata a menüsoron</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>A szinkronizálási mappa megjelenítése a fájlablakok oldalsávján</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Megjelenítés</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Nem sikerült csatlakozni a kiszolgálóhoz</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Értesítések</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 megjegyzést fűzött ehhez: %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 megemlítette Önt itt: %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 hozzáférést kért ehhez: %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 megosztotta Önnel: %2</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Megnyitás a webportálon</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Szinkronizálás</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Megosztva</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Beállítás</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 hozzáférést kér ehhez a fájlhoz.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Megjegyzések</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Említések</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Az Önnel megosztott mappákat is szinkronizálja?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Egyirányú feltöltés</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Ne törlődjenek a fájlok a kiszolgálón, ha helyben törlik őket</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>A(z) „%1” letöltése befejeződött.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>A fájljai minden eszközön szinkronizálva vannak.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>A fájljait a webportálon is elérheti.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>A szinkronizálási feladat elkészült.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Bemutató indítása</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>A mások által Önnel megosztott fájlok és mappák is szinkronizálhatók erre a számítógépre.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Talán később</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Szinkronizálás most</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Velem megosztott</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Szinkronizálási feladat létrehozása</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Válassza ki, mit szeretne szinkronizálni.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Általános szinkronizálási feladat</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Velem megosztott fájlok</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>A mások által Önnel megosztott fájlok és mappák szinkronizálása.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Válasszon ki egy mappát a NAS-on és egy mappát a számítógépen.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Ez a szinkronizálási feladat egy másik NAS-hoz tartozik.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>A NAS olyan protokollt használ, amelyet a Nimbulo Pelora ezen verziója nem támogat.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Megtelt a lemez. A szinkronizálás szünetel.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Csak a NAS-on történt módosítások letöltése</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nem sikerült frissíteni a Nimbulo Pelora alkalmazást. Próbálja újra később.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Már csatlakozott ehhez a NAS-hoz.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>A hálózati meghajtókon történt módosítások észlelése késhet.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>A(z) %1 SSL-tanúsítványa megváltozott.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Nem hozható létre biztonságos kapcsolat a kiszolgálóval.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Üdvözöljük!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>A NAS-on lévő saját mappája fájljai mostantól itt találhatók: %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>A kiszolgálón lévő saját mappája fájljai mostantól itt találhatók: %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Megtelt a lemez</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>A kiszolgáló szinkronizálási szolgáltatása elavult</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>A megosztott mappa már nem létezik.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Kattintson a frissítéshez: Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>A Nimbulo Pelora ezen verziója túl régi a kiszolgálóhoz való csatlakozáshoz. Frissítse.</translation>
    </message>
</context>
</TS>
