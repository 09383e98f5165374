<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消連結</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>同步此檔案時發生衝突。</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>參數無效。</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>發生網路錯誤。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>本機儲存空間</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新連線</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>正在測試連線...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>選取的資料夾不是空的。其中的檔案將與伺服器上的檔案合併。</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>正在驗證您的帳號...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>連線成功。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>資料夾「%1」已存在。要合併其內容嗎？</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>登入時自動啟動 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>使用者名稱或密碼不正確。</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>變更同步資料夾</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>資料夾不是空的</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>編號</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>開始使用 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>最近更新的檔案</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新狀態</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>開啟 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>正在偵測變更...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>已與伺服器中斷連線。</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>啟用同步</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>驗證失敗</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接連線</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>正在檢查連線...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>中繼連線</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>網際網路</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>由於系統錯誤，無法自動連線。</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>伺服器已停用共用連結。請聯絡您的管理員。</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>已更新 %1 個檔案</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>您對此資料夾只有唯讀權限。本機的變更不會上傳。</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>您在伺服器上的儲存配額已滿。請釋放一些空間以繼續同步。</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>連線類型</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>連線資訊</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>請選擇資料夾。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>無法自動連線。請檢查伺服器位址，然後再試一次。</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>您的變更尚未儲存。要捨棄變更嗎？</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>配額已滿</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>本機資料夾</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>無法為此共用資料夾啟用同步。</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>此資料夾與另一個同步任務衝突。</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>已同步的共用資料夾數量已達上限。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>請輸入介於 1 到 65535 之間的連接埠號碼。</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>請輸入 Proxy 伺服器位址和連接埠。</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>請輸入使用者名稱。</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手動設定 Proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用 Proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>使用系統 Proxy 設定</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy 伺服器</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>沒有要套用的變更。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Proxy 伺服器需要驗證</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>正在更新檔案...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>衝突的變更會保留在兩個副本中：本機副本將以電腦名稱重新命名。</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>伺服器位址</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>請輸入伺服器的 IP 位址、主機名稱或中繼 ID。</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>伺服器的同步服務版本過舊。請聯絡您的管理員進行更新。</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>顯示桌面通知</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>在檔案圖示上顯示同步狀態</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>使用 SSL 加密連線</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>使用單色系統匣圖示</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同步問題</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 與您共用了「%2」。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共用資料夾</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在檢查檔案...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>選擇性同步</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>符合這些規則的檔案和資料夾將不會同步。</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>副檔名：</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>正在更新 Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>確定要停止同步「%1」嗎？</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>共用已停用</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>不支援掛載點</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>無法移除此同步任務。</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>新的語言將在 Nimbulo Pelora 重新啟動後生效。</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>本機磁碟已滿。請釋放一些空間以繼續同步。</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>確定要取消與此伺服器的連結嗎？您的本機檔案將會保留。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上傳...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系統預設</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>語言：</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>正在同步 %1 個檔案</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>檔案名稱：</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>已封鎖的檔案</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>本機同步資料庫已損毀。請重新連結此同步任務。</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>檔案大小上限：</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>篩選檔案</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>排除的檔案類型：</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>取消選取的資料夾將從這台電腦移除，但仍保留在伺服器上。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>合併模式</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>編輯連線</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>掛載點無法作為同步資料夾。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>下載已取消。</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>您沒有執行此操作的權限。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>您的儲存配額已滿</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>本機磁碟已滿</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>權限遭拒</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不符</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>無法從伺服器取得您的帳號資訊。</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>偵測到同步問題</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>電腦名稱</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>連線不穩定。正在重試...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>正在下載 %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>正在重試同步...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>安全性警告</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>下載完成。</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>仍要繼續</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>篩選規則</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>序號</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>瀏覽先前的版本</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>停止同步「%1」將移除其本機副本。要繼續嗎？</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>安全連線</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>請選擇這台電腦上要用來同步檔案的資料夾。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及其他 %1 項</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共用</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>無法下載檔案。</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概觀</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>伺服器已被更換或重設</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>憑證驗證失敗</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>無法驗證伺服器的 SSL 憑證。此連線可能不安全。</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>此同步任務處於非使用中狀態。按一下即可繼續。</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非使用中</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>目前無法下載此檔案。</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>無法列出此檔案先前的版本。</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>無法為此檔案建立共用連結。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>按兩下系統匣圖示以開啟同步資料夾</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>正在為資料夾建立索引...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>歡迎使用 Nimbulo Pelora 安裝精靈</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>無法初始化 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; 上一步</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>準備安裝 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>部分需要更新的檔案目前正在使用中。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>使用者授權合約</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Nimbulo Pelora 安裝精靈已完成</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>不要關閉應用程式。將需要重新開機。</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>安裝錯誤</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>按一下「完成」按鈕以結束安裝精靈。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>已成功安裝 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>啟動 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>變更、修復或移除安裝</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>可讓您變更功能的安裝方式。</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>同步資料夾所在的磁碟區尚未掛載。</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>檔案版本無效。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>確定要取消安裝 Nimbulo Pelora 嗎？</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>僅下載</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>您對此資料夾只有唯讀存取權限。您在此處所做的變更不會上傳。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>請仔細閱讀下列授權合約。</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>請閱讀並接受授權合約以繼續。</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>取消安裝</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora 讓這台電腦上的檔案與您的 NAS 保持同步。</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安裝</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>下一步 &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>同步狀態</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>找不到本機同步資料夾「%1」。它可能已被移動或刪除。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Nimbulo Pelora 安裝程式因發生錯誤而提前結束。您的系統並未遭到修改。</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>若要稍後安裝此程式，請重新執行安裝精靈。按一下「完成」以結束。</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>安裝提前結束</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>關閉所有應用程式，並嘗試重新啟動它們。</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>請關閉正在使用安裝程式需要更新之檔案的應用程式。</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>下列應用程式正在使用安裝程式需要更新的檔案。請關閉這些應用程式，然後按一下「重試」以繼續。</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>透過修正遺失及損毀的檔案、捷徑和登錄項目，修復最近一次安裝中的錯誤。</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>下列應用程式正在使用需要更新的檔案。\n請關閉這些應用程式，或讓安裝程式關閉並嘗試重新啟動它們。</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>檔案使用中</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora 沒有可供選取的獨立功能。</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>變更已安裝的功能</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>請選取您要執行的操作。</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>從您的電腦移除 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>移除安裝</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修復安裝</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>請選取您要執行的操作。\n您的同步設定將會保留。</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>安裝精靈可讓您變更 Nimbulo Pelora 的安裝方式、修復它，或將它從您的電腦移除。按一下「下一步」以繼續，或按一下「取消」以結束。</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>歡迎使用 Nimbulo Pelora 安裝程式</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>安裝精靈正在安裝 Nimbulo Pelora，請稍候。</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>這可能需要幾分鐘的時間。</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>正在安裝 Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>正在安裝 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「安裝」以開始安裝。按一下「上一步」以檢視或變更安裝設定。按一下「取消」以結束精靈。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>安裝精靈已準備好開始安裝。</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>按一下「安裝」以開始。</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>按一下「移除」以從您的電腦移除 Nimbulo Pelora。已同步的檔案將會保留。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>安裝精靈已準備好移除 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>按一下「移除」以開始。</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>移除 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>按一下「修復」以修復 Nimbulo Pelora 的安裝。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>安裝精靈已準備好修復 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>按一下「修復」以開始。</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>修復 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Nimbulo Pelora 安裝已中斷。您的系統並未遭到修改。</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>若要稍後安裝此程式，請重新執行安裝。按一下「完成」以結束精靈。</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>安裝已中斷</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>安裝精靈將在您的電腦上安裝 Nimbulo Pelora。按一下「下一步」以繼續，或按一下「取消」以結束。</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>變更、修復或移除 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>安裝已完成。</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>安裝已取消。</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>安裝期間發生錯誤。</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>此精靈將引導您完成安裝。</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>我接受授權合約中的條款</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>連線到其他 NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>同步歷史記錄</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>已啟用同步</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>要同步的資料夾</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>您的檔案，在每部裝置上。</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>您的檔案現在將在背景同步。您可以在 %1 中找到它們。</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>確定要取消同步任務「%1」的連結嗎？這台電腦上現有的檔案將會保留。</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>檔案篩選條件</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>在未同步的檔案上顯示圖示</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>中繼 ID「%1」不存在。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>偏好設定</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>同步任務</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>伺服器已變更。請檢查您的同步任務。</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>共用資料夾未在伺服器上掛載。</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>無法使用遠端資料夾。它可能位於尚未掛載的加密共用資料夾中。</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>以點開頭的檔案</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>已安裝 Nimbulo Pelora %1。\n要重新安裝嗎？</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>您需要系統管理員權限才能安裝 Nimbulo Pelora。\n請以系統管理員身分執行安裝程式。</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>使用 Nimbulo Pelora 同步您的檔案</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>透過 LinkVane 連線時無法使用檔案共用。</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>週二</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>開啟所在的資料夾</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>請選擇 Nimbulo Pelora 的設定方式。</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>快速設定</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>在同步資料夾中的檔案上按一下右鍵，即可共用該檔案或瀏覽其先前的版本。</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>我知道了</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>隨時開啟系統匣選單，即可查看正在同步的項目。</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>您所做的變更會在儲存後立即上傳。</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>不要同步此資料夾</translation>
    </message>
    <message>
        <source>History</source>
        <translation>歷史記錄</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>在 NAS 上建立新的資料夾，與這台電腦同步。</translation>
    </message>
    <message>
        <source>From</source>
        <translation>從</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>資料夾已同步</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>此資料夾已由另一個同步任務同步。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>正在準備同步...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>最近變更</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>剛剛</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 個項目</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>修改時間</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>關鍵字</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上週</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>繼續同步此資料夾</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>繼續同步這些資料夾</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>不要同步這些資料夾</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>沒有資料</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>傳送到</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>目前正在同步：%1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>依檔案名稱搜尋</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>檔案類型</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>週五</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期範圍</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>上傳</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>週一</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>週六</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>週日</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>週四</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>週三</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>進階模式</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>不要再顯示此訊息</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>您的檔案正在與 NAS 上的資料夾「%1」同步。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora 已設定完成。您在 NAS 上的家目錄現在已與這台電腦同步。</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>設定完成</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>放入同步資料夾的檔案會在 NAS 和您的其他裝置上保持最新狀態。</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>系統匣圖示可讓您一眼看出同步狀態。</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>設定模式</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>將 NAS 上的家目錄與這台電腦上的資料夾同步。</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，謝謝</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>歡迎</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>同步資料夾</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>系統匣圖示</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>共用與版本</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>在區域網路中搜尋 NAS</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>透過 LinkVane 連線</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密碼：</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>使用者名稱：</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>歡迎使用 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>顯示主視窗</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>有可用的更新</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>NAS 上的資料夾</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>新增同步資料夾</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>同步新的資料夾</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>自訂設定</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>開啟同步狀態</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>選擇要同步的 NAS 資料夾、要在這台電腦上存放的位置，以及同步方式。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>大於 %1 MB 的檔案將不會同步。</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>在區域網路中尋找 NAS</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>您對「%1」只有讀取權限。在這台電腦上所做的變更不會上傳。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>「%1」無法作為同步資料夾。</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>更多提示</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>資料夾「%1」與另一個任務的同步資料夾重疊。</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>此資料夾已與「%1」同步。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>資料夾「%1」已與 NAS 上的某個資料夾同步。</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>在選取的位置建立「Nimbulo」資料夾</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>複製共用連結</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>伺服器已停用共用，因此無法取得共用連結。</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>伺服器的 SSL 憑證已變更。要信任新的憑證嗎？</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>您的 IP 位址不允許連線到此伺服器。</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>當同一個檔案在兩端都被變更時：</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>同步方向與此資料夾的權限不符。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 頁</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>後 %1 頁</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在取消連結...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>失敗次數過多。請稍後再試。</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>此檔案已被其他應用程式鎖定。</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>由於網路錯誤，無法檢查「%1」。</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>保留最近修改的版本</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>雙向同步</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>請輸入 NAS 的位址與您的帳號資訊。</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>無法建立本機資料夾「%1」。</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>選擇 NAS 上的一個資料夾和這台電腦上的一個資料夾，讓兩者互相同步。</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>設定同步資料夾</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora 正在將 NAS 上的「%1」與這台電腦上的「%2」同步。</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>發生檔案衝突時，會保留伺服器上的副本，並備份本機副本。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>啟用隨選同步</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>驗證碼不正確。</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>此帳號需要驗證碼。</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>請輸入驗證器應用程式中的驗證碼：</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>您在 NAS 上的配額已滿，無法同步「%1」。</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>伺服器憑證已變更，無法同步「%1」。</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>無法驗證伺服器憑證，無法同步「%1」。</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>檢查同步資料夾時發生系統錯誤。</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>以伺服器上的副本覆寫本機副本</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>保留兩個副本並重新命名本機副本</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>已安裝較新版本的 Nimbulo Pelora（%1）。\n安裝程式即將結束。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora 準備完成</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora 準備中...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>找不到可同步的資料夾。</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>顯示教學</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>本機資料夾中的檔案將與 NAS 上的檔案合併。</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>電腦啟動時啟動 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Nimbulo Pelora 發生錯誤。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora 正在執行。</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>此版本的 Nimbulo Pelora 已不再受支援。請進行更新。</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>按一下以更新 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>請更新伺服器上的同步服務，才能使用選擇性同步。</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>這台電腦上的可用空間不足，無法同步「%1」。</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>登入您的 NAS 以開始同步。</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>讓這台電腦上的檔案與您的 NAS 保持同步。</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>找不到共用資料夾</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>關於 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>您的管理員要求使用兩步驟驗證。請先在帳號設定中啟用此功能。</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>共用資料夾的配額已滿。</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora 在同步時發生問題。按一下以查看詳細資訊。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora 讓您的檔案在所有裝置上保持最新狀態。</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>部分欄位包含無效的值。</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>您沒有存取「%1」的權限。</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>您的帳號已被停用，無法同步「%1」。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>有效期限</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>沒有可用的選項</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>您需要在已安裝同步服務的 NAS 上擁有帳號。</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>驗證失敗。請檢查您的使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>使用 * 比對任意字元。各項目之間以逗號分隔。</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>單向下載</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>名為「%1」的資料夾已存在。</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>同步延伸屬性</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>我不接受授權合約中的條款</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>共用連結</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>到期日</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>此欄位為必填。</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>僅限擁有帳號的使用者存取</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>在快顯功能表中顯示 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>NAS 上的家目錄服務已停用。</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>無法更新 Nimbulo Pelora。請稍後再試。</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>套用並複製連結</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>限制存取次數</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>生效時間</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>需要新版的 Nimbulo Pelora 才能連線到此伺服器。要立即更新嗎？</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>新增檔案名稱</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>本機目的地</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>遠端 NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>這台電腦</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>下載選取的版本</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>自訂期間</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>重新整理同步歷史記錄</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>隨選同步</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>篩選同步歷史記錄</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>新增資料夾</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>行事曆</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下個月</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>變更同步資料夾</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>事件類別</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>同步任務詳細資料</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>遠端目的地</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>關閉教學</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>教學：了解如何使用 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>取消下載</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>刪除版本</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>無法為「%1」啟用隨選同步。</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>由於未連線到伺服器，因此無法使用此檔案。</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>已在這台電腦上重新命名</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>已在伺服器上重新命名</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>請輸入不超過 %1 個字元。</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>您的密碼已過期。請在伺服器上變更密碼，然後重新登入。</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>此資料夾曾由其他使用者同步。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>伺服器已停用中繼連線。</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>「%1」驗證失敗。請重新登入。</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>無法取得此檔案的連結。</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>暫存檔案</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍後</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>恭喜！</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>其他人與您共用的資料夾</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>您對此資料夾只有唯讀存取權限。您在此處所做的變更只會保留在這台電腦上。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora 正在將伺服器上的「%1」與這台電腦上的「%2」同步。</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>顯示 Nimbulo Pelora 教學</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora 正在背景執行。</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>登入您的伺服器以開始同步。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>無法更新 Nimbulo Pelora。請下載最新版本並重新安裝。</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>您需要在已安裝同步服務的伺服器上擁有帳號。</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>衝突的變更會保留在兩個副本中：伺服器副本將以使用者名稱重新命名。</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>教學：了解如何使用 Nimbulo Pelora 進行同步。</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>伺服器 ID「%1」不存在。</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>登入時啟動 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>請選擇伺服器上的一個資料夾和這台電腦上的一個資料夾。</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>此同步任務屬於其他伺服器。</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>伺服器使用的通訊協定不受此版本的 Nimbulo Pelora 支援。</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>磁碟已滿。Nimbulo Pelora 已暫停同步。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Nimbulo Pelora 發生錯誤。請重新啟動。</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>選取的資料夾不是空的。其中的檔案將上傳到伺服器。</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>僅從伺服器下載變更</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>您的檔案正在與伺服器上的資料夾「%1」同步。</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>已安裝 Varnex Pelora %1。\n要重新安裝嗎？</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>可用空間不足，無法同步「%1」。請釋放一些空間，然後再試一次。</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>讓這台電腦上的檔案與您的伺服器保持同步。</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>在選取的位置建立「Varnex Pelora」資料夾</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>已安裝較新版本的 Varnex Pelora（%1）。\n安裝程式即將結束。</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>同步伺服器上您選擇的資料夾。</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>自動設定失敗。請手動設定 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>正在完成自動設定...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共用</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>沒有可用的資料。</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>沒有可用的共用資料夾。</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>檔案或資料夾不存在。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>您的管理員已設定好 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>內部使用者</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>伺服器的使用者可以檢視此檔案。</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>伺服器的使用者可以檢視和編輯此檔案。</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>特定人員</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>只有您邀請的人員可以存取此檔案。</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>知道連結的任何人</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>知道連結的任何人都可以檢視此檔案。</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>知道連結的任何人都可以檢視和編輯此檔案。</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>可檢視</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>可編輯</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>邀請</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>連結權限：</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>使用者與群組</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>在選單列中使用黑白圖示</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>在檔案視窗的側邊欄中顯示同步資料夾</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>無法連線到伺服器</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 在 %2 上留言</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 在 %2 中提及您</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 要求存取 %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 與您共用了 %2</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>在網頁入口網站中開啟</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>已共用</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>開始設定</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 正在要求存取此檔案。</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>留言</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>提及</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>也要同步與您共用的資料夾嗎？</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>單向上傳</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>在本機移除檔案時，不要移除伺服器上的檔案</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>已下載「%1」。</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>您的檔案已在所有裝置上同步。</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>您也可以透過網頁入口網站存取您的檔案。</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>您的同步任務已準備就緒。</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>開始導覽</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>其他人與您共用的檔案和資料夾也可以同步到這台電腦。</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>以後再說</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>立即同步</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>與我共用</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>建立同步任務</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>請選擇要同步的內容。</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>一般同步任務</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>與我共用的檔案</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>同步其他人與您共用的檔案和資料夾。</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>請選擇 NAS 上的一個資料夾和這台電腦上的一個資料夾。</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>此同步任務屬於其他 NAS。</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>NAS 使用的通訊協定不受此版本的 Nimbulo Pelora 支援。</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>磁碟已滿。同步已暫停。</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>僅從 NAS 下載變更</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>無法更新 Nimbulo Pelora。請稍後再試。</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>您已連線到此 NAS。</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>網路磁碟機上的變更可能會延遲偵測。</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>%1 的 SSL 憑證已變更。</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>無法與伺服器建立安全連線。</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>歡迎！</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>您在 NAS 上家目錄中的檔案現在位於 %1。</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>您在伺服器上家目錄中的檔案現在位於 %1。</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>磁碟已滿</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>伺服器的同步服務版本過舊</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>此共用資料夾已不存在。</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>按一下以更新至 Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>此版本的 Nimbulo Pelora 過舊，無法連線到伺服器。請進行更新。</translation>
    </message>
</context>
</TS>
