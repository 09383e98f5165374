<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отменить связь</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>При синхронизации этого файла возник конфликт.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Недопустимый параметр.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Произошла сетевая ошибка. Проверьте сетевое подключение и повторите попытку.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Локальное хранилище</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Переподключиться</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>Выбранная папка не пуста. Файлы в ней будут объединены с файлами на сервере.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Проверка учетной записи...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Подключение выполнено.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>Папка «%1» уже существует. Объединить ее содержимое?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Автоматически запускать Nimbulo Pelora при входе в систему</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Изменить папку синхронизации</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Папка не пуста</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Начало работы с Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Недавно обновленные файлы</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Актуально</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Открыть Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Обнаружение изменений...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Соединение с сервером разорвано.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Включить синхронизацию</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Ошибка проверки подлинности</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Прямое подключение</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Подключение через ретранслятор</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Не удалось подключиться автоматически из-за системной ошибки.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Ссылки для общего доступа отключены на сервере. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>Обновлено файлов: %1</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>У вас есть только разрешение на чтение этой папки. Локальные изменения не будут отправлены.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Квота хранилища на сервере исчерпана. Освободите место, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Тип подключения</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Сведения о подключении</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Выберите папку.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Не удалось подключиться автоматически. Проверьте адрес сервера и повторите попытку.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Общие папки</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Изменения не сохранены. Отменить их?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Квота исчерпана</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Локальная папка</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Не удалось включить синхронизацию этой общей папки.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Эта папка конфликтует с другой задачей синхронизации.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Достигнуто максимальное число синхронизируемых общих папок.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Введите номер порта от 1 до 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Общая папка</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Введите адрес и порт прокси-сервера.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Настроить прокси вручную</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Без прокси</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Использовать системные настройки прокси</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>Нет изменений для применения.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Прокси-сервер требует проверки подлинности</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Обновление файлов...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Конфликтующие изменения сохраняются в обеих копиях: к имени локальной копии добавляется имя компьютера.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Введите IP-адрес сервера, имя узла или ID ретранслятора.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Служба синхронизации на сервере устарела. Попросите администратора обновить ее.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Показывать состояние синхронизации на значках файлов</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Шифровать подключение с помощью SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Использовать монохромный значок в области уведомлений</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Проблема синхронизации</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>Пользователь %1 предоставил вам общий доступ к «%2».</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Новая общая папка</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Проверка файлов...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Файлы и папки, соответствующие этим правилам, не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Расширения файлов:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Обновление Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Вы действительно хотите остановить синхронизацию «%1»?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Общий доступ отключен</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Точка подключения не поддерживается</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Не удалось удалить эту задачу синхронизации.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>Новый язык будет применен после перезапуска Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Локальный диск заполнен. Освободите место, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Вы действительно хотите отменить связь с этим сервером? Локальные файлы будут сохранены.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Отправка...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Язык системы</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Язык:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Синхронизация файлов: %1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Имена файлов:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Заблокированные файлы</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>Локальная база данных синхронизации повреждена. Заново свяжите эту задачу синхронизации.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Максимальный размер файла:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Фильтр файлов</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Исключенные типы файлов:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Папки, с которых снят флажок, будут удалены с этого компьютера, но останутся на сервере.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Режим объединения</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Режим синхронизации</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Изменить подключение</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Точку подключения нельзя использовать как папку синхронизации.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Назначение</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Скачивание отменено.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Начать сейчас</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>У вас нет разрешения на выполнение этой операции.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Квота хранилища исчерпана</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Локальный диск заполнен</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Доступ запрещен</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Несовпадение версий</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Не удалось получить сведения об учетной записи с сервера.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Обнаружена проблема синхронизации</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>Подключение нестабильно. Повторная попытка...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Скачивание %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Повторная синхронизация...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Предупреждение системы безопасности</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Скачивание завершено.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Все равно продолжить</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Правила фильтрации</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Просмотреть предыдущие версии</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>При остановке синхронизации «%1» ее локальная копия будет удалена. Продолжить?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Защищенное подключение</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Выберите папку на этом компьютере, с которой будут синхронизироваться ваши файлы.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>и еще %1</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Общий доступ</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Не удалось скачать файл.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Сервер был заменен или сброшен</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Ошибка проверки сертификата</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Синхронизация...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Не удалось проверить SSL-сертификат сервера. Подключение может быть небезопасным.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Эта задача синхронизации неактивна. Щелкните, чтобы возобновить ее.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Неактивно</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Сейчас этот файл нельзя скачать.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Не удалось получить список предыдущих версий этого файла.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Не удалось создать ссылку для общего доступа к этому файлу.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Дважды щелкните значок в области уведомлений, чтобы открыть папку синхронизации</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Индексирование папки...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Вас приветствует мастер установки Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Не удалось инициализировать Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Назад</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Все готово к установке Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Некоторые файлы, которые необходимо обновить, сейчас используются.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Лицензионное соглашение с конечным пользователем</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Работа мастера установки Nimbulo Pelora завершена</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Не закрывать приложения. Потребуется перезагрузка.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Ошибка установки</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Нажмите кнопку «Готово», чтобы закрыть мастер установки.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora успешно установлен.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Запустить Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Изменение, восстановление или удаление установки</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Позволяет изменить способ установки компонентов.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>Папка синхронизации находится на неподключенном томе.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>Недопустимая версия файла.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Вы действительно хотите отменить установку Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Только скачивание</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>У вас есть доступ к этой папке только для чтения. Внесенные здесь изменения не отправляются.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Внимательно прочтите следующее лицензионное соглашение.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Чтобы продолжить, прочтите и примите лицензионное соглашение.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Отмена установки</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora поддерживает синхронизацию файлов на этом компьютере с вашим NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Далее &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Состояние синхронизации</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Не удается найти локальную папку синхронизации «%1». Возможно, она была перемещена или удалена.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Установка Nimbulo Pelora прервана из-за ошибки. Изменения в систему не вносились.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Чтобы установить эту программу позже, снова запустите мастер установки. Нажмите кнопку «Готово» для выхода.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Установка прервана</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Закрыть все приложения и попытаться перезапустить их.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Закройте приложения, использующие файлы, которые программа установки должна обновить.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Следующие приложения используют файлы, которые программа установки должна обновить. Закройте их и нажмите кнопку «Повторить», чтобы продолжить.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Устраняет ошибки последней установки: восстанавливает отсутствующие и поврежденные файлы, ярлыки и записи реестра.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Следующие приложения используют файлы, которые необходимо обновить.\nЗакройте их или разрешите программе установки закрыть их и попытаться перезапустить.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Используемые файлы</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>В Nimbulo Pelora нет отдельных компонентов для выбора.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Изменить установленные компоненты</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Выберите операцию, которую требуется выполнить.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Удаляет Nimbulo Pelora с компьютера.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Удалить установку</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Восстановить установку</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Выберите операцию, которую требуется выполнить.\nНастройки синхронизации сохраняются.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Мастер установки позволяет изменить способ установки Nimbulo Pelora, восстановить или удалить программу с компьютера. Нажмите кнопку «Далее», чтобы продолжить, или «Отмена», чтобы выйти.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Вас приветствует программа установки Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Подождите, пока мастер установки установит Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Установка Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Установка Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите кнопку «Установить», чтобы начать установку. Нажмите кнопку «Назад», чтобы проверить или изменить параметры установки. Нажмите кнопку «Отмена», чтобы закрыть мастер.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Мастер установки готов начать установку.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Нажмите кнопку «Установить», чтобы начать.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Нажмите кнопку «Удалить», чтобы удалить Nimbulo Pelora с компьютера. Синхронизированные файлы сохранятся.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>Мастер установки готов удалить Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Нажмите кнопку «Удалить», чтобы начать.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Удаление Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Нажмите кнопку «Восстановить», чтобы восстановить установку Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>Мастер установки готов восстановить Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Нажмите кнопку «Восстановить», чтобы начать.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Восстановление Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Установка Nimbulo Pelora была прервана. Изменения в систему не вносились.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Чтобы установить эту программу позже, запустите установку снова. Нажмите кнопку «Готово», чтобы закрыть мастер.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Установка прервана пользователем</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Мастер установки установит Nimbulo Pelora на компьютер. Нажмите кнопку «Далее», чтобы продолжить, или «Отмена», чтобы выйти.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Изменение, восстановление или удаление Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Установка завершена.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Установка отменена.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Во время установки произошла ошибка.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Этот мастер поможет вам выполнить установку.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Я принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Подключиться к другому NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Журнал синхронизации</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Синхронизация включена</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Папки для синхронизации</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Ваши файлы на любом устройстве.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Теперь файлы будут синхронизироваться в фоновом режиме. Они находятся в %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Вы действительно хотите отменить связь для задачи синхронизации «%1»? Файлы, уже находящиеся на этом компьютере, сохранятся.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Фильтры файлов</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Создан</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Показывать значок на несинхронизируемых файлах</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>ID ретранслятора «%1» не существует.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Задачи синхронизации</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Сервер изменился. Проверьте задачи синхронизации.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Общая папка не подключена на сервере.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>Удаленная папка недоступна. Возможно, она находится в неподключенной зашифрованной общей папке.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Файлы, имена которых начинаются с точки</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 уже установлен.\nПереустановить?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Для установки Nimbulo Pelora требуются права администратора.\nЗапустите программу установки от имени администратора.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Синхронизируйте файлы с Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Общий доступ к файлам недоступен при подключении через LinkVane.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Вт</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Открыть содержащую папку</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Выберите способ настройки Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Быстрая настройка</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Щелкните файл в папке синхронизации правой кнопкой мыши, чтобы предоставить к нему общий доступ или просмотреть его предыдущие версии.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Понятно</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Откройте меню в области уведомлений в любой момент, чтобы узнать, что синхронизируется.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Внесенные изменения отправляются сразу после сохранения.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Не синхронизировать эту папку</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Создайте на NAS новую папку для синхронизации с этим компьютером.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Папка уже синхронизируется</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Эта папка уже синхронизируется другой задачей синхронизации.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименование</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Подготовка к синхронизации...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Недавно измененные</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Только что</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Элементов: %1</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Время изменения</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Прошлая неделя</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Возобновить синхронизацию этой папки</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Возобновить синхронизацию этих папок</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Не синхронизировать эти папки</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Нет данных</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Синхронизируется: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Поиск по имени файла</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Пт</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Событие</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Все события</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Настраиваемый</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Диапазон дат</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Скачивание</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Отправка</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Пн</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>апр</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>авг</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>дек</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>фев</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>янв</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>июл</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>июн</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>мар</translation>
    </message>
    <message>
        <source>May</source>
        <translation>май</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>ноя</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>окт</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>сен</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Сб</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Вс</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Чт</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Ср</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Расширенный режим</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Больше не показывать это сообщение</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Теперь ваши файлы синхронизируются с папкой «%1» на NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora настроен. Ваша домашняя папка на NAS теперь синхронизируется с этим компьютером.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Настройка завершена</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Файлы, помещенные в папку синхронизации, поддерживаются в актуальном состоянии на NAS и на других ваших устройствах.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>Значок в области уведомлений сразу показывает состояние синхронизации.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Режим настройки</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Синхронизируйте домашнюю папку на NAS с папкой на этом компьютере.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Нет, спасибо</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Папка синхронизации</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Значок в области уведомлений</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Общий доступ и версии</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Искать NAS в локальной сети</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Подключиться через LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Добро пожаловать в Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Показать главное окно</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Доступно обновление</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Папка на NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Новая папка синхронизации</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Синхронизировать новую папку</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Расширенная настройка</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Открыть состояние синхронизации</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Выберите папку на NAS для синхронизации, место ее хранения на этом компьютере и способ синхронизации.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Файлы размером более %1 МБ не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Найти NAS в локальной сети</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>У вас есть только разрешение на чтение «%1». Изменения, внесенные на этом компьютере, не будут отправлены.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>«%1» нельзя использовать как папку синхронизации.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Другие советы</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>Папка «%1» пересекается с папкой синхронизации другой задачи.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Эта папка уже синхронизируется с «%1».</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>Папка «%1» уже синхронизируется с папкой на NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Создать папку «Nimbulo» в выбранном расположении</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Копировать ссылку для общего доступа</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Не удалось получить ссылку для общего доступа: общий доступ отключен на сервере.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>SSL-сертификат сервера изменился. Доверять новому сертификату?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>С вашего IP-адреса запрещено подключаться к этому серверу.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Если один и тот же файл изменен с обеих сторон:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>Направление синхронизации не соответствует разрешениям этой папки.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Предыдущие страницы (%1)</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Следующие страницы (%1)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Отмена связи...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Слишком много неудачных попыток. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Этот файл заблокирован другим приложением.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Не удалось проверить «%1» из-за сетевой ошибки.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Сохранять версию, измененную последней</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Двусторонняя синхронизация</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Введите адрес вашего NAS и данные учетной записи.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Не удалось создать локальную папку «%1».</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Выберите папку на NAS и папку на этом компьютере, которые будут синхронизироваться друг с другом.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Выбор папок синхронизации</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora синхронизирует «%1» на NAS с «%2» на этом компьютере.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>При конфликте файлов сохраняется копия с сервера, а для локальной копии создается резервная копия.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Включить синхронизацию по запросу</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Неверный код подтверждения.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Для этой учетной записи требуется код подтверждения.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Введите код подтверждения из приложения для проверки подлинности:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Квота на NAS исчерпана. Невозможно синхронизировать «%1».</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Сертификат сервера изменился. Невозможно синхронизировать «%1».</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Не удалось проверить сертификат сервера. Невозможно синхронизировать «%1».</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>При проверке папки синхронизации произошла системная ошибка.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Заменить локальную копию копией с сервера</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Сохранить обе копии и переименовать локальную</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Уже установлена более новая версия Nimbulo Pelora (%1).\nПрограмма установки будет закрыта.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora готов.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora выполняет инициализацию...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Не найдено папок, доступных для синхронизации.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Показывать обучение</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Файлы в локальной папке будут объединены с файлами на NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Запускать Nimbulo Pelora при запуске компьютера</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>В Nimbulo Pelora произошла ошибка.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora запущен.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Эта версия Nimbulo Pelora больше не поддерживается. Обновите ее.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Щелкните, чтобы обновить Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Чтобы использовать выборочную синхронизацию, обновите службу синхронизации на сервере.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>На этом компьютере недостаточно свободного места для синхронизации «%1».</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Войдите в NAS, чтобы начать синхронизацию.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Синхронизируйте файлы на этом компьютере с вашим NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Общая папка не найдена</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>О программе Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Администратор требует двухэтапную проверку. Сначала включите ее в настройках учетной записи.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Квота общей папки исчерпана.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Направление синхронизации</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>При синхронизации в Nimbulo Pelora возникла проблема. Щелкните, чтобы узнать подробности.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora поддерживает ваши файлы в актуальном состоянии на всех ваших устройствах.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Некоторые поля содержат недопустимые значения.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>У вас нет разрешения на доступ к «%1».</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Ваша учетная запись отключена. Невозможно синхронизировать «%1».</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Срок действия истекает через</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Нет доступных параметров</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Требуется учетная запись на NAS с установленной службой синхронизации.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Ошибка проверки подлинности. Проверьте имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Символ * соответствует любым символам. Разделяйте записи запятыми.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Одностороннее скачивание</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Папка с именем «%1» уже существует.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Синхронизировать расширенные атрибуты</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Я не принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Ссылка для общего доступа</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Срок действия истекает</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Это поле обязательно.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Разрешить доступ только пользователям с учетной записью</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Показывать Nimbulo Pelora в контекстном меню</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Служба домашних папок отключена на NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Не удалось обновить Nimbulo Pelora. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Применить и копировать ссылку</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Ограничить число обращений</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Доступно с</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Для подключения к этому серверу требуется новая версия Nimbulo Pelora. Обновить сейчас?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Добавить имя файла</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Локальное назначение</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Удаленный NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Скачать выбранную версию</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Настраиваемый срок</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Обновить журнал синхронизации</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Синхронизация по запросу</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Фильтр журнала синхронизации</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Календарь</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Следующий месяц</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Предыдущий месяц</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Изменить папку синхронизации</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Категория событий</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Сведения о задаче синхронизации</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Удаленное назначение</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Закрыть обучение</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Обучение: узнайте, как пользоваться Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Отменить скачивание</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Удалить версию</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Не удалось включить синхронизацию по запросу для «%1».</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Этот файл недоступен, так как нет подключения к серверу.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Переименован на этом компьютере</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Переименован на сервере</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Введите не более %1 символов.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Срок действия пароля истек. Измените его на сервере и войдите снова.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Эта папка синхронизировалась другим пользователем. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Подключения через ретранслятор отключены на сервере.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Ошибка проверки подлинности для «%1». Войдите снова.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Не удалось получить ссылку на этот файл.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Временные файлы</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Поздравляем!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Папки, к которым вам предоставили общий доступ</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>У вас есть доступ к этой папке только для чтения. Внесенные здесь изменения остаются на этом компьютере.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora синхронизирует «%1» на сервере с «%2» на этом компьютере.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Показывать обучение Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora работает в фоновом режиме.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Войдите на сервер, чтобы начать синхронизацию.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Не удалось обновить Nimbulo Pelora. Скачайте последнюю версию и установите ее заново.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Требуется учетная запись на сервере с установленной службой синхронизации.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Конфликтующие изменения сохраняются в обеих копиях: к имени копии на сервере добавляется имя пользователя.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Обучение: узнайте, как синхронизировать файлы с Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>ID сервера «%1» не существует.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Запускать Nimbulo Pelora при входе в систему</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Выберите папку на сервере и папку на этом компьютере.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Эта задача синхронизации относится к другому серверу.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Сервер использует протокол, который не поддерживается этой версией Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Диск заполнен. Nimbulo Pelora приостановил синхронизацию.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>В Nimbulo Pelora произошла ошибка. Перезапустите программу.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>Выбранная папка не пуста. Ее файлы будут отправлены на сервер.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Только скачивать изменения с сервера</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Теперь ваши файлы синхронизируются с папкой «%1» на сервере.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 уже установлен.\nПереустановить?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Недостаточно свободного места для синхронизации «%1». Освободите место и повторите попытку.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Синхронизируйте файлы на этом компьютере с вашим сервером.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Создать папку «Varnex Pelora» в выбранном расположении</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Уже установлена более новая версия Varnex Pelora (%1).\nПрограмма установки будет закрыта.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Синхронизация любой выбранной папки на сервере.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Не удалось выполнить автоматическую настройку. Настройте Nimbulo Pelora вручную.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Завершение автоматической настройки...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Нет данных.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Нет доступных общих папок.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Файл или папка не существует.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora настроен вашим администратором.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Внутренние пользователи</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Пользователи сервера могут просматривать файл.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Пользователи сервера могут просматривать и изменять файл.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Определенные люди</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Доступ к файлу есть только у приглашенных вами людей.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Все, у кого есть ссылка</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Все, у кого есть ссылка, могут просматривать файл.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Все, у кого есть ссылка, могут просматривать и изменять файл.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Редактирование</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Пригласить</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Ссылка</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Разрешение для ссылки:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Пользователи и группы</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Использовать черно-белый значок в строке меню</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Показывать папку синхронизации на боковой панели окон с файлами</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Отображение</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Не удалось подключиться к серверу</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 оставил(а) комментарий к %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 упомянул(а) вас в %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 запросил(а) доступ к %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 предоставил(а) вам доступ к %2</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Открыть на веб-портале</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Синхронизация</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Общий доступ</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Настроить</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 запрашивает доступ к этому файлу.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Комментарии</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Упоминания</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Синхронизировать также папки, к которым вам предоставили общий доступ?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Односторонняя отправка</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Не удалять файлы на сервере при их локальном удалении</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>Файл «%1» скачан.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Ваши файлы синхронизированы на всех устройствах.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Доступ к файлам также можно получить через веб-портал.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Задача синхронизации готова.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Начать обзор</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Файлы и папки, к которым вам предоставили общий доступ, тоже можно синхронизировать с этим компьютером.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Возможно, позже</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Синхронизировать сейчас</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Доступные мне</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Создание задачи синхронизации</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Выберите, что нужно синхронизировать.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Обычная задача синхронизации</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Файлы, доступные мне</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Синхронизируйте файлы и папки, к которым вам предоставили общий доступ.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Выберите папку на NAS и папку на этом компьютере.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Эта задача синхронизации относится к другому NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>NAS использует протокол, который не поддерживается этой версией Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Диск заполнен. Синхронизация приостановлена.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Только скачивать изменения с NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Не удалось обновить Nimbulo Pelora. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Вы уже подключены к этому NAS.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Изменения на сетевых дисках могут обнаруживаться с задержкой.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>SSL-сертификат %1 изменился.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Не удается установить защищенное подключение к серверу.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Добро пожаловать!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Файлы из вашей домашней папки на NAS теперь находятся в %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Файлы из вашей домашней папки на сервере теперь находятся в %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Диск заполнен</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Служба синхронизации на сервере устарела</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>Общая папка больше не существует.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Щелкните, чтобы обновить до Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Эта версия Nimbulo Pelora слишком старая для подключения к серверу. Обновите ее.</translation>
    </message>
</context>
</TS>
