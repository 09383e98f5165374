<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Podczas synchronizacji tego pliku wystąpił konflikt.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Nieprawidłowy parametr.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Wystąpił błąd sieci. Sprawdź połączenie sieciowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Magazyn lokalny</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Połącz ponownie</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>Wybrany folder nie jest pusty. Znajdujące się w nim pliki zostaną scalone z plikami na serwerze.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Sprawdzanie konta...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Połączono pomyślnie.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>Folder „%1” już istnieje. Czy chcesz scalić jego zawartość?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Uruchamiaj aplikację Nimbulo Pelora automatycznie po zalogowaniu</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Nieprawidłowa nazwa użytkownika lub hasło.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Zmień folder synchronizacji</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Folder nie jest pusty</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Pierwsze kroki z aplikacją Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Ostatnio zaktualizowane pliki</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktualne</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Otwórz Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Wykrywanie zmian...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Rozłączono z serwerem.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Włącz synchronizację</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Uwierzytelnianie nie powiodło się</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Sprawdzanie połączenia...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Połączenie przez przekaźnik</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Nie można połączyć automatycznie z powodu błędu systemu.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Linki udostępniania są wyłączone na serwerze. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Zaktualizowane pliki: %1</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Masz uprawnienia tylko do odczytu tego folderu. Zmiany lokalne nie zostaną wysłane.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Limit miejsca na serwerze został wyczerpany. Zwolnij trochę miejsca, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Typ połączenia</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informacje o połączeniu</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Zmień</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Wybierz folder.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Nie można połączyć automatycznie. Sprawdź adres serwera i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Foldery udostępnione</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Zmiany nie zostały zapisane. Czy chcesz je odrzucić?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Limit wyczerpany</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Folder lokalny</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Nie można włączyć synchronizacji tego folderu udostępnionego.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Ten folder koliduje z innym zadaniem synchronizacji.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Osiągnięto maksymalną liczbę synchronizowanych folderów udostępnionych.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Wprowadź numer portu z zakresu od 1 do 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Folder udostępniony</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Wprowadź adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Wprowadź nazwę użytkownika.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ręczna konfiguracja serwera proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez serwera proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Użyj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>Brak zmian do zastosowania.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Serwer proxy wymaga uwierzytelnienia</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Aktualizowanie plików...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Sprzeczne zmiany są zachowywane w obu kopiach: nazwa kopii lokalnej zostaje uzupełniona o nazwę komputera.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Adres serwera</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Wprowadź adres IP serwera, nazwę hosta lub ID przekaźnika.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Usługa synchronizacji na serwerze jest nieaktualna. Poproś administratora o jej aktualizację.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Pokazuj stan synchronizacji na ikonach plików</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Szyfruj połączenie przy użyciu protokołu SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Użyj monochromatycznej ikony w obszarze powiadomień</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problem z synchronizacją</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>Użytkownik %1 udostępnił Ci „%2”.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nowy folder udostępniony</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Sprawdzanie plików...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Pliki i foldery zgodne z tymi regułami nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Rozszerzenia plików:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Aktualizowanie aplikacji Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Czy na pewno chcesz zatrzymać synchronizację „%1”?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Udostępnianie wyłączone</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Punkt instalacji nie jest obsługiwany</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Nie można usunąć tego zadania synchronizacji.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>Nowy język zostanie zastosowany po ponownym uruchomieniu aplikacji Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Dysk lokalny jest pełny. Zwolnij trochę miejsca, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Czy na pewno chcesz odłączyć się od tego serwera? Pliki lokalne zostaną zachowane.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wysyłanie...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Język systemu</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Język:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Ładowanie...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synchronizowanie plików: %1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nazwy plików:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Zablokowane pliki</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>Lokalna baza danych synchronizacji jest uszkodzona. Połącz ponownie to zadanie synchronizacji.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maksymalny rozmiar pliku:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filtruj pliki</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Wykluczone typy plików:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Odznaczone foldery zostaną usunięte z tego komputera, ale pozostaną na serwerze.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Tryb scalania</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Edytuj połączenie</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Punktu instalacji nie można użyć jako folderu synchronizacji.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Pobieranie zostało anulowane.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Rozpocznij teraz</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Nie masz uprawnień do wykonania tej operacji.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Limit miejsca został wyczerpany</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Dysk lokalny jest pełny</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Odmowa dostępu</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Niezgodność wersji</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Nie można pobrać informacji o koncie z serwera.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Wykryto problem z synchronizacją</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nazwa komputera</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>Połączenie jest niestabilne. Ponawianie próby...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Pobieranie %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Ponawianie synchronizacji...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Ostrzeżenie o zabezpieczeniach</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Pobieranie zakończone.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Kontynuuj mimo to</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Reguły filtrowania</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akcja</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Lp.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Przeglądaj poprzednie wersje</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Zatrzymanie synchronizacji „%1” spowoduje usunięcie jego kopii lokalnej. Kontynuować?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Bezpieczne połączenie</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Wybierz folder na tym komputerze, z którym będą synchronizowane pliki.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>i %1 więcej</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Udostępnianie</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Nie można pobrać pliku.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Serwer został wymieniony lub zresetowany</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Weryfikacja certyfikatu nie powiodła się</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizowanie...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Nie można zweryfikować certyfikatu SSL serwera. Połączenie może nie być bezpieczne.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Zakończono</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>To zadanie synchronizacji jest nieaktywne. Kliknij, aby je wznowić.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Nieaktywne</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Tego pliku nie można teraz pobrać.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Nie można wyświetlić poprzednich wersji tego pliku.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Nie można utworzyć linku udostępniania dla tego pliku.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Tryb gotowości</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Kliknij dwukrotnie ikonę w obszarze powiadomień, aby otworzyć folder synchronizacji</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indeksowanie folderu...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Witamy w Kreatorze instalacji aplikacji Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nie można zainicjować aplikacji Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Wstecz</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Gotowy do zainstalowania aplikacji Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Niektóre pliki, które muszą zostać zaktualizowane, są obecnie w użyciu.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Umowa licencyjna użytkownika oprogramowania</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Zakończono działanie Kreatora instalacji aplikacji Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Nie zamykaj aplikacji. Konieczne będzie ponowne uruchomienie komputera.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Błąd instalacji</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknij przycisk Zakończ, aby zamknąć Kreatora instalacji.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Aplikacja Nimbulo Pelora została pomyślnie zainstalowana.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Uruchom aplikację Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Zmień, napraw lub usuń instalację</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Umożliwia zmianę sposobu instalacji funkcji.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>Folder synchronizacji znajduje się na niezainstalowanym woluminie.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>Wersja pliku jest nieprawidłowa.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Czy na pewno chcesz anulować instalację aplikacji Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Masz dostęp tylko do odczytu tego folderu. Wprowadzone tu zmiany nie są wysyłane.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Przeczytaj uważnie poniższą umowę licencyjną.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Aby kontynuować, przeczytaj i zaakceptuj umowę licencyjną.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Anuluj instalację</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Aplikacja Nimbulo Pelora synchronizuje pliki na tym komputerze z serwerem NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignoruj</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Dalej &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Napraw</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ponów próbę</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Stan synchronizacji</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Nie można znaleźć lokalnego folderu synchronizacji „%1”. Mógł zostać przeniesiony lub usunięty.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Instalacja aplikacji Nimbulo Pelora została przedwcześnie zakończona z powodu błędu. System nie został zmodyfikowany.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Aby zainstalować ten program później, uruchom ponownie Kreatora instalacji. Kliknij przycisk Zakończ, aby wyjść.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Instalacja została przedwcześnie zakończona</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Zamknij wszystkie aplikacje i spróbuj uruchomić je ponownie.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Zamknij aplikacje używające plików, które musi zaktualizować Instalator.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Następujące aplikacje używają plików, które musi zaktualizować Instalator. Zamknij je i kliknij przycisk Ponów próbę, aby kontynuować.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Naprawia błędy ostatniej instalacji, przywracając brakujące i uszkodzone pliki, skróty oraz wpisy rejestru.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Następujące aplikacje używają plików, które muszą zostać zaktualizowane.\nZamknij je lub pozwól Instalatorowi je zamknąć i spróbować uruchomić je ponownie.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Pliki w użyciu</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Aplikacja Nimbulo Pelora nie ma niezależnych funkcji do wybrania.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Zmień zainstalowane funkcje</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Wybierz operację, którą chcesz wykonać.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Usuwa aplikację Nimbulo Pelora z komputera.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Usuń instalację</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Napraw instalację</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Wybierz operację, którą chcesz wykonać.\nUstawienia synchronizacji zostaną zachowane.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Kreator instalacji umożliwia zmianę sposobu instalacji aplikacji Nimbulo Pelora, jej naprawę lub usunięcie z komputera. Kliknij przycisk Dalej, aby kontynuować, lub Anuluj, aby wyjść.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Witamy w Instalatorze aplikacji Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Zaczekaj, aż Kreator instalacji zainstaluje aplikację Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Instalowanie aplikacji Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Instalowanie aplikacji Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk Zainstaluj, aby rozpocząć instalację. Kliknij przycisk Wstecz, aby przejrzeć lub zmienić ustawienia instalacji. Kliknij przycisk Anuluj, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Kreator instalacji jest gotowy do rozpoczęcia instalacji.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Kliknij przycisk Zainstaluj, aby rozpocząć.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Kliknij przycisk Usuń, aby usunąć aplikację Nimbulo Pelora z komputera. Zsynchronizowane pliki zostaną zachowane.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>Kreator instalacji jest gotowy do usunięcia aplikacji Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Kliknij przycisk Usuń, aby rozpocząć.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Usuń aplikację Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Kliknij przycisk Napraw, aby naprawić instalację aplikacji Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>Kreator instalacji jest gotowy do naprawy aplikacji Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Kliknij przycisk Napraw, aby rozpocząć.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Napraw aplikację Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Instalacja aplikacji Nimbulo Pelora została przerwana. System nie został zmodyfikowany.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Aby zainstalować ten program później, uruchom instalację ponownie. Kliknij przycisk Zakończ, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Instalacja przerwana</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Kreator instalacji zainstaluje aplikację Nimbulo Pelora na tym komputerze. Kliknij przycisk Dalej, aby kontynuować, lub Anuluj, aby wyjść.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Zmień, napraw lub usuń aplikację Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Instalacja została zakończona.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Instalacja została anulowana.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Podczas instalacji wystąpił błąd.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Ten kreator przeprowadzi Cię przez proces instalacji.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Akceptuję warunki umowy licencyjnej</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Połącz z innym serwerem NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Historia synchronizacji</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Synchronizacja włączona</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Twoje pliki na każdym urządzeniu.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Pliki będą teraz synchronizowane w tle. Znajdziesz je w %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Czy na pewno chcesz odłączyć zadanie synchronizacji „%1”? Pliki znajdujące się już na tym komputerze zostaną zachowane.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filtry plików</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Pokazuj ikonę na plikach, które nie są synchronizowane</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>ID przekaźnika „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Serwer się zmienił. Sprawdź zadania synchronizacji.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Folder udostępniony nie jest zainstalowany na serwerze.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>Folder zdalny jest niedostępny. Może znajdować się w zaszyfrowanym folderze udostępnionym, który nie jest zainstalowany.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Pliki, których nazwa zaczyna się od kropki</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Aplikacja Nimbulo Pelora %1 jest już zainstalowana.\nCzy chcesz ją zainstalować ponownie?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Do zainstalowania aplikacji Nimbulo Pelora potrzebne są uprawnienia administratora.\nUruchom instalator jako administrator.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Synchronizuj pliki z aplikacją Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Udostępnianie plików nie jest dostępne przez połączenie LinkVane.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Wt</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Otwórz folder nadrzędny</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Wybierz sposób konfiguracji aplikacji Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Szybka konfiguracja</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Kliknij prawym przyciskiem myszy plik w folderze synchronizacji, aby go udostępnić lub przejrzeć jego poprzednie wersje.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumiem</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>W każdej chwili możesz otworzyć menu w obszarze powiadomień, aby zobaczyć, co jest synchronizowane.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Wprowadzone zmiany są wysyłane zaraz po ich zapisaniu.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Nie synchronizuj tego folderu</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Utwórz nowy folder na serwerze NAS, który będzie synchronizowany z tym komputerem.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Folder jest już synchronizowany</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Ten folder jest już synchronizowany przez inne zadanie synchronizacji.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Przygotowywanie synchronizacji...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Ostatnio zmienione</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dni temu</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementy: %1</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Czas modyfikacji</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Słowo kluczowe</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Ostatni miesiąc</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Ostatni tydzień</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Wznów synchronizację tego folderu</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Wznów synchronizację tych folderów</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Nie synchronizuj tych folderów</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Brak danych</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Wyślij do</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Trwa synchronizacja: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Szukaj według nazwy pliku</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Pt</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Zdarzenie</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Niestandardowy</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zakres dat</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobieranie</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
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
        <translation>Wysyłanie</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Pn</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>kwi</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>sie</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>gru</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>lut</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>sty</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>lip</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>cze</translation>
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
        <translation>lis</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>paź</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>wrz</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Nd</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Cz</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Śr</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Tryb zaawansowany</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Nie pokazuj ponownie tego komunikatu</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Pliki są teraz synchronizowane z folderem „%1” na serwerze NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Aplikacja Nimbulo Pelora została skonfigurowana. Folder domowy na serwerze NAS jest teraz synchronizowany z tym komputerem.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Konfiguracja zakończona</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Pliki umieszczone w folderze synchronizacji są aktualizowane na serwerze NAS i na innych urządzeniach.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>Ikona w obszarze powiadomień pozwala jednym spojrzeniem sprawdzić stan synchronizacji.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Tryb konfiguracji</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Synchronizuj folder domowy na serwerze NAS z folderem na tym komputerze.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nie, dziękuję</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Folder synchronizacji</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Ikona w obszarze powiadomień</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Udostępnianie i wersje</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Wyszukaj serwer NAS w sieci lokalnej</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Połącz przez LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Witamy w aplikacji Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Pokaż okno główne</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Dostępna aktualizacja</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Folder na serwerze NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nowy folder synchronizacji</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synchronizuj nowy folder</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Konfiguracja zaawansowana</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Otwórz stan synchronizacji</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Wybierz folder na serwerze NAS do synchronizacji, miejsce jego przechowywania na tym komputerze i sposób synchronizacji.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Pliki większe niż %1 MB nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Znajdź serwer NAS w sieci lokalnej</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Masz tylko uprawnienia do odczytu „%1”. Zmiany wprowadzone na tym komputerze nie zostaną wysłane.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>Nie można użyć „%1” jako folderu synchronizacji.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Więcej porad</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>Folder „%1” pokrywa się z folderem synchronizacji innego zadania.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Ten folder jest już synchronizowany z „%1”.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>Folder „%1” jest już synchronizowany z folderem na serwerze NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Utwórz folder „Nimbulo” w wybranej lokalizacji</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopiuj link udostępniania</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Nie można uzyskać linku udostępniania, ponieważ udostępnianie jest wyłączone na serwerze.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>Certyfikat SSL serwera uległ zmianie. Czy ufasz nowemu certyfikatowi?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Połączenia z tym serwerem z Twojego adresu IP są niedozwolone.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Gdy ten sam plik został zmieniony po obu stronach:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>Kierunek synchronizacji nie jest zgodny z uprawnieniami do tego folderu.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Poprzednie strony (%1)</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Następne strony (%1)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Odłączanie...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Zbyt wiele nieudanych prób. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Ten plik jest zablokowany przez inną aplikację.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Nie można sprawdzić „%1” z powodu błędu sieci.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Zachowaj ostatnio zmodyfikowaną wersję</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronizacja dwukierunkowa</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Wprowadź adres serwera NAS i dane konta.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Nie można utworzyć folderu lokalnego „%1”.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Wybierz folder na serwerze NAS i folder na tym komputerze, które będą ze sobą synchronizowane.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Ustaw foldery synchronizacji</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Aplikacja Nimbulo Pelora synchronizuje teraz „%1” na serwerze NAS z „%2” na tym komputerze.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>W przypadku konfliktu plików zachowywana jest kopia z serwera, a kopia lokalna jest zapisywana jako kopia zapasowa.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Włącz synchronizację na żądanie</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Kod weryfikacyjny jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>To konto wymaga kodu weryfikacyjnego.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Wprowadź kod weryfikacyjny z aplikacji uwierzytelniającej:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Limit miejsca na serwerze NAS został wyczerpany. Nie można zsynchronizować „%1”.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Certyfikat serwera uległ zmianie. Nie można zsynchronizować „%1”.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Nie można zweryfikować certyfikatu serwera. Nie można zsynchronizować „%1”.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Podczas sprawdzania folderu synchronizacji wystąpił błąd systemu.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Zastąp kopię lokalną kopią z serwera</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Zachowaj obie kopie i zmień nazwę kopii lokalnej</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Nowsza wersja aplikacji Nimbulo Pelora (%1) jest już zainstalowana.\nInstalator zostanie teraz zamknięty.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Aplikacja Nimbulo Pelora jest gotowa.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Aplikacja Nimbulo Pelora jest inicjowana...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Nie znaleziono folderu, który można zsynchronizować.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Pokaż samouczek</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Pliki w folderze lokalnym zostaną scalone z plikami na serwerze NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Uruchamiaj aplikację Nimbulo Pelora przy starcie komputera</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>W aplikacji Nimbulo Pelora wystąpił błąd.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Aplikacja Nimbulo Pelora jest uruchomiona.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Ta wersja aplikacji Nimbulo Pelora nie jest już obsługiwana. Zaktualizuj ją.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Kliknij, aby zaktualizować aplikację Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Aby korzystać z synchronizacji selektywnej, zaktualizuj usługę synchronizacji na serwerze.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Na tym komputerze brakuje wolnego miejsca do synchronizacji „%1”.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Zaloguj się do serwera NAS, aby rozpocząć synchronizację.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Synchronizuj pliki na tym komputerze z serwerem NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Nie znaleziono folderu udostępnionego</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Informacje o aplikacji Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Administrator wymaga weryfikacji dwuetapowej. Najpierw włącz ją w ustawieniach konta.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Limit miejsca folderu udostępnionego został wyczerpany.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Podczas synchronizacji w aplikacji Nimbulo Pelora wystąpił problem. Kliknij, aby wyświetlić szczegóły.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Aplikacja Nimbulo Pelora dba o aktualność plików na wszystkich urządzeniach.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Niektóre pola zawierają nieprawidłowe wartości.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Nie masz uprawnień dostępu do „%1”.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Konto zostało wyłączone. Nie można zsynchronizować „%1”.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Wygasa po</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Brak dostępnych opcji</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Potrzebne jest konto na serwerze NAS z zainstalowaną usługą synchronizacji.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Uwierzytelnianie nie powiodło się. Sprawdź nazwę użytkownika i hasło.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Znak * zastępuje dowolne znaki. Wpisy rozdzielaj przecinkami.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Jednokierunkowe pobieranie</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Folder o nazwie „%1” już istnieje.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Synchronizuj atrybuty rozszerzone</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Nie akceptuję warunków umowy licencyjnej</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Link udostępniania</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Wygasa dnia</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>To pole jest wymagane.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Ogranicz dostęp do użytkowników z kontem</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Pokazuj aplikację Nimbulo Pelora w menu kontekstowym</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Usługa folderów domowych jest wyłączona na serwerze NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Nie można zaktualizować aplikacji Nimbulo Pelora. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Zastosuj i skopiuj link</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Ogranicz liczbę dostępów</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Dostępne od</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Do połączenia z tym serwerem wymagana jest nowa wersja aplikacji Nimbulo Pelora. Zaktualizować teraz?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Dodaj nazwę pliku</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokalne miejsce docelowe</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Zdalny serwer NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Pobierz wybraną wersję</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Niestandardowy czas trwania</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Odśwież historię synchronizacji</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Synchronizacja na żądanie</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filtruj historię synchronizacji</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendarz</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Następny miesiąc</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Zmień folder synchronizacji</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Kategoria zdarzenia</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Szczegóły zadania synchronizacji</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Zdalne miejsce docelowe</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Zamknij samouczek</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Samouczek: dowiedz się, jak korzystać z aplikacji Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Anuluj pobieranie</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Usuń wersję</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Nie można włączyć synchronizacji na żądanie dla „%1”.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Ten plik jest niedostępny, ponieważ brak połączenia z serwerem.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Zmieniono nazwę na tym komputerze</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Zmieniono nazwę na serwerze</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Wprowadź maksymalnie %1 znaków.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Hasło wygasło. Zmień je na serwerze i zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Ten folder był synchronizowany przez innego użytkownika. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Połączenia przez przekaźnik są wyłączone na serwerze.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Uwierzytelnianie dla „%1” nie powiodło się. Zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Nie można uzyskać linku do tego pliku.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Pliki tymczasowe</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Gratulacje!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Foldery udostępnione Ci przez innych</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Masz dostęp tylko do odczytu tego folderu. Wprowadzone tu zmiany pozostają na tym komputerze.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Aplikacja Nimbulo Pelora synchronizuje teraz „%1” na serwerze z „%2” na tym komputerze.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Pokaż samouczek aplikacji Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Aplikacja Nimbulo Pelora działa w tle.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Zaloguj się do serwera, aby rozpocząć synchronizację.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nie można zaktualizować aplikacji Nimbulo Pelora. Pobierz najnowszą wersję i zainstaluj ją ponownie.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Potrzebne jest konto na serwerze z zainstalowaną usługą synchronizacji.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Sprzeczne zmiany są zachowywane w obu kopiach: nazwa kopii na serwerze zostaje uzupełniona o nazwę użytkownika.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Samouczek: dowiedz się, jak synchronizować za pomocą aplikacji Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>ID serwera „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Uruchamiaj aplikację Nimbulo Pelora po zalogowaniu</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Wybierz folder na serwerze i folder na tym komputerze.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>To zadanie synchronizacji należy do innego serwera.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Serwer używa protokołu, którego ta wersja aplikacji Nimbulo Pelora nie obsługuje.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Dysk jest pełny. Aplikacja Nimbulo Pelora wstrzymała synchronizację.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>W aplikacji Nimbulo Pelora wystąpił błąd. Uruchom ją ponownie.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>Wybrany folder nie jest pusty. Znajdujące się w nim pliki zostaną wysłane na serwer.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Tylko pobieraj zmiany z serwera</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Pliki są teraz synchronizowane z folderem „%1” na serwerze.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Aplikacja Varnex Pelora %1 jest już zainstalowana.\nCzy chcesz ją zainstalować ponownie?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Za mało wolnego miejsca do synchronizacji „%1”. Zwolnij trochę miejsca i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Synchronizuj pliki na tym komputerze z serwerem.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Utwórz folder „Varnex Pelora” w wybranej lokalizacji</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Nowsza wersja aplikacji Varnex Pelora (%1) jest już zainstalowana.\nInstalator zostanie teraz zamknięty.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Synchronizuj wybrany folder na serwerze.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Automatyczna konfiguracja nie powiodła się. Skonfiguruj aplikację Nimbulo Pelora ręcznie.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Kończenie automatycznej konfiguracji...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Udostępnij</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Brak dostępnych danych.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Brak dostępnych folderów udostępnionych.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Plik lub folder nie istnieje.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Aplikacja Nimbulo Pelora została skonfigurowana przez administratora.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Użytkownicy wewnętrzni</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Użytkownicy serwera mogą wyświetlać plik.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Użytkownicy serwera mogą wyświetlać i edytować plik.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Określone osoby</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Dostęp do pliku mają tylko zaproszone osoby.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Każdy, kto ma link</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Każdy, kto ma link, może wyświetlać plik.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Każdy, kto ma link, może wyświetlać i edytować plik.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Może wyświetlać</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Może edytować</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Zaproś</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Uprawnienia linku:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Użytkownicy i grupy</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Użyj czarno-białej ikony na pasku menu</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Pokazuj folder synchronizacji na pasku bocznym okien plików</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Wyświetlanie</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Nie można połączyć z serwerem</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Powiadomienia</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 skomentował(a) %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 wspomniał(a) o Tobie w %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 prosi o dostęp do %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 udostępnił(a) Ci %2</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Otwórz w portalu internetowym</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizacja</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Udostępnione</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Skonfiguruj</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 prosi o dostęp do tego pliku.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Komentarze</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Wzmianki</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Synchronizować również foldery udostępnione Ci przez innych?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Jednokierunkowe wysyłanie</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Nie usuwaj plików na serwerze, gdy zostaną usunięte lokalnie</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>Pobrano „%1”.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Pliki są zsynchronizowane na wszystkich urządzeniach.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Dostęp do plików możesz też uzyskać z portalu internetowego.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Zadanie synchronizacji jest gotowe.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Rozpocznij prezentację</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Pliki i foldery udostępnione Ci przez innych również mogą być synchronizowane z tym komputerem.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Może później</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synchronizuj teraz</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Udostępnione dla mnie</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Utwórz zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Wybierz, co chcesz synchronizować.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Ogólne zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Pliki udostępnione dla mnie</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Synchronizuj pliki i foldery udostępnione Ci przez innych.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Wybierz folder na serwerze NAS i folder na tym komputerze.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>To zadanie synchronizacji należy do innego serwera NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Serwer NAS używa protokołu, którego ta wersja aplikacji Nimbulo Pelora nie obsługuje.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Dysk jest pełny. Synchronizacja została wstrzymana.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Tylko pobieraj zmiany z serwera NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nie można zaktualizować aplikacji Nimbulo Pelora. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Połączenie z tym serwerem NAS już istnieje.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Zmiany na dyskach sieciowych mogą być wykrywane z opóźnieniem.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>Certyfikat SSL serwera %1 uległ zmianie.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Nie można nawiązać bezpiecznego połączenia z serwerem.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Witamy!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Pliki z folderu domowego na serwerze NAS znajdują się teraz w %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Pliki z folderu domowego na serwerze znajdują się teraz w %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Dysk jest pełny</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Usługa synchronizacji na serwerze jest nieaktualna</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>Folder udostępniony już nie istnieje.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Kliknij, aby zaktualizować do wersji Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Ta wersja aplikacji Nimbulo Pelora jest zbyt stara, aby połączyć się z serwerem. Zaktualizuj ją.</translation>
    </message>
</context>
</TS>
