<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Bağlantıyı Kaldır</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Başka Klasör Seç</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Bu dosya eşitlenirken bir çakışma oluştu.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Geçersiz parametre.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Bir ağ hatası oluştu. Lütfen ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Yerel Depolama</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Yeniden Bağlan</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Bağlantı test ediliyor...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>Seçilen klasör boş değil. İçindeki dosyalar sunucudaki dosyalarla birleştirilecek.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Hesabınız denetleniyor...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Bağlantı başarıyla kuruldu.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>&quot;%1&quot; klasörü zaten var. İçeriğini birleştirmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Oturum açtığımda Nimbulo Pelora&apos;yı otomatik olarak başlat</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Kullanıcı adı veya parola yanlış.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Eşitleme Klasörünü Değiştir</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Klasör Boş Değil</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Klasör Yolu</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Nimbulo Pelora&apos;yı Kullanmaya Başlayın</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Son Güncellenen Dosyalar</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Nimbulo Pelora&apos;yı Aç</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Değişiklikler algılanıyor...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Sunucuyla bağlantı kesildi.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Eşitlemeyi Etkinleştir</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Kimlik doğrulama başarısız oldu</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Doğrudan bağlantı</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Bağlantı denetleniyor...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Aktarma bağlantısı</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Bir sistem hatası nedeniyle otomatik olarak bağlanılamadı.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Paylaşım bağlantıları sunucuda devre dışı. Lütfen yöneticinize başvurun.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 dosya güncellendi</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Bu klasör için yalnızca okuma izniniz var. Yerel değişiklikler karşıya yüklenmeyecek.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Sunucudaki depolama kotanız doldu. Eşitlemeye devam etmek için biraz yer açın.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Bağlantı Türü</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Bağlantı Bilgileri</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Lütfen bir klasör seçin.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Otomatik olarak bağlanılamadı. Lütfen sunucu adresini denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Paylaşılan Klasörler</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Değişiklikleriniz kaydedilmedi. Bunları atmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kota dolu</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Yerel Klasör</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Bu paylaşılan klasör için eşitleme etkinleştirilemiyor.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Bu klasör başka bir eşitleme göreviyle çakışıyor.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Eşitlenen paylaşılan klasör sayısı üst sınırına ulaştınız.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Lütfen 1 ile 65535 arasında bir bağlantı noktası numarası girin.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Paylaşılan Klasör</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Lütfen proxy sunucusunun adresini ve bağlantı noktasını girin.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Lütfen kullanıcı adınızı girin.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>El ile proxy yapılandırması</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Proxy yok</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Sistem proxy ayarlarını kullan</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bağlantı noktası</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>Uygulanacak değişiklik yok.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Proxy sunucusu kimlik doğrulaması gerektiriyor</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Dosyalar güncelleniyor...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Çakışan değişiklikler her iki kopyada da korunur: yerel kopya bilgisayar adıyla yeniden adlandırılır.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Sunucu Adresi</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Sunucunun IP adresini, ana bilgisayar adını veya aktarma kimliğini girin.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Sunucudaki eşitleme hizmeti eski. Lütfen yöneticinizden hizmeti güncellemesini isteyin.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Dosya simgelerinde eşitleme durumunu göster</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Bağlantıyı SSL ile şifrele</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Tek renkli sistem tepsisi simgesi kullan</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Eşitleme sorunu</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1, &quot;%2&quot; öğesini sizinle paylaştı.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Yeni paylaşılan klasör</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dosyalar denetleniyor...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Seçmeli Eşitleme</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Bu kurallarla eşleşen dosya ve klasörler eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Dosya uzantıları:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora güncelleniyor...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Güncelleştir</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>&quot;%1&quot; öğesinin eşitlemesini durdurmak istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Paylaşım devre dışı</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Bağlama noktası desteklenmiyor</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Bu eşitleme görevi kaldırılamıyor.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>Yeni dil, Nimbulo Pelora yeniden başlatıldıktan sonra uygulanacak.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Yerel disk dolu. Eşitlemeye devam etmek için biraz yer açın.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Bu sunucuyla bağlantıyı kaldırmak istediğinizden emin misiniz? Yerel dosyalarınız korunacak.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Karşıya yükleniyor...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Dil:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 dosya eşitleniyor</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Gelişmiş Ayarlar</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Dosya adları:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Engellenen Dosyalar</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>Yerel eşitleme veritabanı bozuk. Lütfen bu eşitleme görevini yeniden bağlayın.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>En büyük dosya boyutu:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Dosyaları filtrele</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Klasör Adı</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Hariç tutulan dosya türleri:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Seçimini kaldırdığınız klasörler bu bilgisayardan kaldırılır ancak sunucuda tutulur.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Birleştirme modu</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Eşitleme Modu</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Bağlantıyı Düzenle</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Bağlama noktası eşitleme klasörü olarak kullanılamaz.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>İndirme iptal edildi.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Şimdi Başlat</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Bu işlemi gerçekleştirme izniniz yok.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Depolama kotanız doldu</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Yerel disk dolu</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>İzin reddedildi</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Sürüm uyuşmazlığı</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Hesap bilgileriniz sunucudan alınamıyor.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Eşitleme sorunu algılandı</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Bilgisayar Adı</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>Bağlantı kararsız. Yeniden deneniyor...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 indiriliyor...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Bağlanıyor...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Eşitleme yeniden deneniyor...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Güvenlik Uyarısı</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>İndirme tamamlandı.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Yine de Devam Et</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Filtre Kuralları</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dosya Adı</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Önceki Sürümlere Göz At</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>&quot;%1&quot; için eşitlemeyi durdurmak yerel kopyasını kaldıracak. Devam edilsin mi?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Güvenli Bağlantı</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Dosyalarınızın eşitleneceği, bu bilgisayardaki klasörü seçin.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ve %1 tane daha</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Paylaşım</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Dosya indirilemiyor.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Genel Bakış</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Sunucu değiştirildi veya sıfırlandı</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Sertifika doğrulanamadı</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Eşitleniyor...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Sunucunun SSL sertifikası doğrulanamadı. Bağlantı güvenli olmayabilir.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Tamamlandı</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Bu eşitleme görevi etkin değil. Sürdürmek için tıklayın.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Etkin Değil</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Bu dosya şu anda indirilemiyor.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Bu dosyanın önceki sürümleri listelenemiyor.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Bu dosya için paylaşım bağlantısı oluşturulamıyor.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Eşitleme klasörünü açmak için sistem tepsisi simgesine çift tıklayın</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Klasör dizine ekleniyor...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Nimbulo Pelora Kurulum Sihirbazına Hoş Geldiniz</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora başlatılamadı.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Geri</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Nimbulo Pelora Yüklenmeye Hazır</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Güncellenmesi gereken bazı dosyalar şu anda kullanımda.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Son Kullanıcı Lisans Sözleşmesi</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Nimbulo Pelora Kurulum Sihirbazı Tamamlandı</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Yazdır</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Uygulamaları kapatma. Yeniden başlatma gerekecek.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Kurulum Hatası</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazından çıkmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora başarıyla yüklendi.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Nimbulo Pelora&apos;yı Başlat</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Yüklemeyi değiştirin, onarın veya kaldırın</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Özelliklerin yüklenme biçimini değiştirmenizi sağlar.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>Eşitleme klasörü, bağlanmamış bir birimde bulunuyor.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>Dosya sürümü geçersiz.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Nimbulo Pelora yüklemesini iptal etmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Yalnızca indir</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Bu klasöre salt okunur erişiminiz var. Burada yaptığınız değişiklikler karşıya yüklenmez.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lütfen aşağıdaki lisans sözleşmesini dikkatle okuyun.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Devam etmek için lütfen lisans sözleşmesini okuyup kabul edin.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Kurulumu İptal Et</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora, bu bilgisayardaki dosyaları NAS&apos;ınızla eşitlenmiş halde tutar.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Yok Say</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Yükle</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>İleri &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Onar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Yeniden Dene</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Eşitleme Durumu</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>&quot;%1&quot; yerel eşitleme klasörü bulunamıyor. Taşınmış veya silinmiş olabilir.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Nimbulo Pelora Kurulumu bir hata nedeniyle erken sona erdi. Sisteminizde değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Bu programı daha sonra yüklemek için Kurulum Sihirbazını yeniden çalıştırın. Çıkmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Kurulum Erken Sona Erdi</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Tüm uygulamaları kapat ve yeniden başlatmayı dene.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Kurulumun güncellemesi gereken dosyaları kullanan uygulamaları kapatın.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Aşağıdaki uygulamalar, Kurulumun güncellemesi gereken dosyaları kullanıyor. Bunları kapatın ve devam etmek için Yeniden Dene&apos;ye tıklayın.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Eksik ve bozuk dosyaları, kısayolları ve kayıt defteri girdilerini düzelterek en son yüklemedeki hataları onarır.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Aşağıdaki uygulamalar güncellenmesi gereken dosyaları kullanıyor.\nBunları kapatın veya Kurulumun kapatıp yeniden başlatmayı denemesine izin verin.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Kullanımdaki Dosyalar</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora&apos;da seçilebilecek bağımsız özellik yok.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Yüklü özellikleri değiştir</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Gerçekleştirmek istediğiniz işlemi seçin.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Nimbulo Pelora&apos;yı bilgisayarınızdan kaldırır.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Yüklemeyi kaldır</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Yüklemeyi onar</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Gerçekleştirmek istediğiniz işlemi seçin.\nEşitleme ayarlarınız korunur.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Kurulum Sihirbazı, Nimbulo Pelora&apos;nın yüklenme biçimini değiştirmenizi, onu onarmanızı veya bilgisayarınızdan kaldırmanızı sağlar. Devam etmek için İleri&apos;ye, çıkmak için İptal&apos;e tıklayın.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Nimbulo Pelora Kurulumuna Hoş Geldiniz</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Kurulum Sihirbazı Nimbulo Pelora&apos;yı yüklerken lütfen bekleyin.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Bu işlem birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora yükleniyor...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Nimbulo Pelora Yükleniyor</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Yüklemeyi başlatmak için Yükle&apos;ye tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri&apos;ye tıklayın. Sihirbazdan çıkmak için İptal&apos;e tıklayın.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>Kurulum Sihirbazı yüklemeye başlamaya hazır.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Başlamak için Yükle&apos;ye tıklayın.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Nimbulo Pelora&apos;yı bilgisayarınızdan kaldırmak için Kaldır&apos;a tıklayın. Eşitlenen dosyalarınız korunur.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>Kurulum Sihirbazı Nimbulo Pelora&apos;yı kaldırmaya hazır.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Başlamak için Kaldır&apos;a tıklayın.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Nimbulo Pelora&apos;yı Kaldır</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora yüklemesini onarmak için Onar&apos;a tıklayın.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>Kurulum Sihirbazı Nimbulo Pelora&apos;yı onarmaya hazır.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Başlamak için Onar&apos;a tıklayın.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Nimbulo Pelora&apos;yı Onar</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Nimbulo Pelora Kurulumu yarıda kesildi. Sisteminizde değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Bu programı daha sonra yüklemek için yüklemeyi yeniden çalıştırın. Sihirbazdan çıkmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Kurulum Yarıda Kesildi</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>Kurulum Sihirbazı Nimbulo Pelora&apos;yı bilgisayarınıza yükleyecek. Devam etmek için İleri&apos;ye, çıkmak için İptal&apos;e tıklayın.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora&apos;yı değiştirin, onarın veya kaldırın.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Kurulum tamamlandı.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Kurulum iptal edildi.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Kurulum sırasında bir hata oluştu.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Bu sihirbaz, yükleme boyunca size yol gösterir.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Lisans Sözleşmesindeki koşulları kabul ediyorum</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Başka Bir NAS&apos;a Bağlan</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Eşitleme Geçmişi</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Eşitleme etkin</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Eşitlenecek Klasörler</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Dosyalarınız, her cihazda.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Dosyalarınız artık arka planda eşitlenecek. Bunları %1 konumunda bulabilirsiniz.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>&quot;%1&quot; eşitleme görevinin bağlantısını kaldırmak istediğinizden emin misiniz? Bu bilgisayarda zaten bulunan dosyalar korunur.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Dosya Filtreleri</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturulma</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Eşitlenmeyen dosyalarda simge göster</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>&quot;%1&quot; aktarma kimliği mevcut değil.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Tercihler</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Eşitleme Görevleri</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Sunucu değişti. Lütfen eşitleme görevlerinizi denetleyin.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Paylaşılan klasör sunucuda bağlı değil.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>Uzak klasör kullanılamıyor. Bağlı olmayan şifreli bir paylaşılan klasörde olabilir.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Nokta ile başlayan dosyalar</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 zaten yüklü.\nYeniden yüklemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Nimbulo Pelora&apos;yı yüklemek için yönetici ayrıcalıklarına sahip olmanız gerekir.\nLütfen yükleyiciyi yönetici olarak çalıştırın.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Dosyalarınızı Nimbulo Pelora ile eşitleyin</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Dosya paylaşımı LinkVane bağlantısı üzerinden kullanılamaz.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Sal</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>İçeren Klasörü Aç</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora&apos;yı nasıl ayarlamak istediğinizi seçin.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Hızlı Kurulum</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Paylaşmak veya önceki sürümlerine göz atmak için eşitleme klasöründeki bir dosyaya sağ tıklayın.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Anladım</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Nelerin eşitlendiğini görmek için sistem tepsisi menüsünü istediğiniz zaman açabilirsiniz.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Yaptığınız değişiklikler, kaydeder kaydetmez karşıya yüklenir.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 saat önce</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Bu Klasörü Eşitleme</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>NAS&apos;ta bu bilgisayarla eşitlenecek yeni bir klasör oluşturun.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Klasör Zaten Eşitleniyor</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Bu klasör zaten başka bir eşitleme görevi tarafından eşitleniyor.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Yeniden Adlandır</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Eşitlemeye hazırlanılıyor...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Son Değişenler</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 gün önce</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az önce</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 dakika önce</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 öğe</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Değiştirilme Zamanı</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Anahtar sözcük</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Geçen hafta</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Bu Klasörün Eşitlemesini Sürdür</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Bu Klasörlerin Eşitlemesini Sürdür</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Bu Klasörleri Eşitleme</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Veri yok</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Gönder</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Şu anda eşitlenen: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Dosya adına göre ara</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Dosya Türü</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Cum</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Olay</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tüm olaylar</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Tarih aralığı</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndirme</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Karşıya yükleme</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Pzt</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Nis</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Ağu</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Şub</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Oca</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Tem</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Haz</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Kas</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Eki</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Eyl</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Cmt</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Paz</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Per</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Çar</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Gelişmiş Mod</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Bu iletiyi bir daha gösterme</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Dosyalarınız artık NAS&apos;taki &quot;%1&quot; klasörüyle eşitleniyor.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora ayarlandı. NAS&apos;taki ana klasörünüz artık bu bilgisayarla eşitleniyor.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Kurulum Tamamlandı</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Eşitleme klasörüne koyduğunuz dosyalar NAS&apos;ta ve diğer cihazlarınızda güncel tutulur.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>Sistem tepsisi simgesi, eşitleme durumunu bir bakışta gösterir.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Kurulum Modu</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>NAS&apos;taki ana klasörünüzü bu bilgisayardaki bir klasörle eşitleyin.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Hayır, teşekkürler</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Hoş Geldiniz</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Eşitleme Klasörü</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Sistem Tepsisi Simgesi</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Paylaşım ve Sürümler</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Yerel ağda NAS ara</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>LinkVane ile Bağlan</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Kullanıcı adı:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Nimbulo Pelora&apos;ya Hoş Geldiniz</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Ana Pencereyi Göster</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Güncelleştirme Var</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>NAS&apos;taki Klasör</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Yeni Eşitleme Klasörü</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Yeni bir klasör eşitle</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Gelişmiş Kurulum</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Eşitleme Durumunu Aç</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>NAS&apos;taki hangi klasörün eşitleneceğini, bu bilgisayarda nerede tutulacağını ve nasıl eşitleneceğini seçin.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>%1 MB&apos;tan büyük dosyalar eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Yerel ağda NAS bul</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>&quot;%1&quot; için yalnızca okuma izniniz var. Bu bilgisayarda yapılan değişiklikler karşıya yüklenmeyecek.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>&quot;%1&quot; eşitleme klasörü olarak kullanılamaz.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Diğer İpuçları</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>&quot;%1&quot; klasörü başka bir görevin eşitleme klasörüyle çakışıyor.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Bu klasör zaten &quot;%1&quot; ile eşitleniyor.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>&quot;%1&quot; klasörü zaten NAS&apos;taki bir klasörle eşitleniyor.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Seçilen konumda &quot;Nimbulo&quot; klasörü oluştur</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Paylaşım Bağlantısını Kopyala</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Sunucuda paylaşım devre dışı olduğundan paylaşım bağlantısı alınamıyor.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>Sunucunun SSL sertifikası değişti. Yeni sertifikaya güveniyor musunuz?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>IP adresinizin bu sunucuya bağlanmasına izin verilmiyor.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Aynı dosya her iki tarafta da değiştirildiğinde:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>Eşitleme yönü bu klasörün izinleriyle uyuşmuyor.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Önceki %1 sayfa</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Sonraki %1 sayfa</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Dosyayı Aç</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Klasörü Aç</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Bağlantı kaldırılıyor...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Çok fazla başarısız deneme. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Bu dosya başka bir uygulama tarafından kilitlenmiş.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Bir ağ hatası nedeniyle &quot;%1&quot; denetlenemiyor.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>En son değiştirilen sürümü koru</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>İki yönlü eşitleme</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>NAS&apos;ınızın adresini ve hesap bilgilerinizi girin.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; yerel klasörü oluşturulamıyor.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>NAS&apos;ta bir klasör ve bu bilgisayarda birbiriyle eşitlenecek bir klasör seçin.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Eşitleme Klasörlerini Ayarla</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora artık NAS&apos;taki &quot;%1&quot; klasörünü bu bilgisayardaki &quot;%2&quot; klasörüyle eşitliyor.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Dosyalar çakıştığında sunucudaki kopya korunur ve yerel kopya yedeklenir.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>İsteğe Bağlı Eşitlemeyi Etkinleştir</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Doğrulama kodu yanlış.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Bu hesap bir doğrulama kodu gerektiriyor.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Kimlik doğrulayıcı uygulamanızdaki doğrulama kodunu girin:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>NAS&apos;taki kotanız doldu. &quot;%1&quot; eşitlenemiyor.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Sunucu sertifikası değişti. &quot;%1&quot; eşitlenemiyor.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Sunucu sertifikası doğrulanamıyor. &quot;%1&quot; eşitlenemiyor.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Eşitleme klasörü denetlenirken bir sistem hatası oluştu.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Yerel kopyanın üzerine sunucudaki kopyayı yaz</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Her iki kopyayı da koru ve yerel kopyayı yeniden adlandır</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Nimbulo Pelora&apos;nın daha yeni bir sürümü (%1) zaten yüklü.\nKurulum şimdi kapanacak.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora hazır.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora başlıyor...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Eşitleyebileceğiniz bir klasör bulunamadı.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Öğreticiyi göster</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Yerel klasördeki dosyalar NAS&apos;taki dosyalarla birleştirilecek.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Bilgisayar açıldığında Nimbulo Pelora&apos;yı başlat</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Nimbulo Pelora bir hatayla karşılaştı.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora çalışıyor.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Nimbulo Pelora&apos;nın bu sürümü artık desteklenmiyor. Lütfen güncelleyin.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Nimbulo Pelora&apos;yı güncellemek için tıklayın</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Seçmeli eşitlemeyi kullanmak için lütfen sunucudaki eşitleme hizmetini güncelleyin.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Bu bilgisayarda &quot;%1&quot; öğesini eşitlemek için yeterli boş alan yok.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Eşitlemeye başlamak için NAS&apos;ınızda oturum açın.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Bu bilgisayardaki dosyaları NAS&apos;ınızla eşitlenmiş halde tutun.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Paylaşılan klasör bulunamadı</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Nimbulo Pelora Hakkında</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Yöneticiniz iki adımlı doğrulamayı zorunlu kılıyor. Lütfen önce hesap ayarlarınızda etkinleştirin.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Paylaşılan klasörün kotası doldu.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Eşitleme Yönü</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora eşitleme sırasında bir sorunla karşılaştı. Ayrıntılar için tıklayın.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora, dosyalarınızı tüm cihazlarınızda güncel tutar.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Bazı alanlarda geçersiz değerler var.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; öğesine erişim izniniz yok.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Hesabınız devre dışı bırakıldı. &quot;%1&quot; eşitlenemiyor.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Süre sonu</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Kullanılabilir seçenek yok</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Eşitleme hizmetinin yüklü olduğu bir NAS&apos;ta hesabınızın olması gerekir.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Kimlik doğrulama başarısız oldu. Lütfen kullanıcı adınızı ve parolanızı denetleyin.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Herhangi bir karakter dizisiyle eşleşmek için * kullanın. Girdileri virgülle ayırın.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Tek yönlü indirme</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>&quot;%1&quot; adlı bir klasör zaten var.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Genişletilmiş öznitelikleri eşitle</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Lisans Sözleşmesindeki koşulları kabul etmiyorum</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Paylaşım Bağlantısı</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Son kullanma tarihi</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Bu alan zorunludur.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Erişimi hesabı olan kullanıcılarla sınırla</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Nimbulo Pelora&apos;yı bağlam menüsünde göster</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>NAS&apos;ta ana klasör hizmeti devre dışı.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Nimbulo Pelora güncellenemiyor. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Uygula ve Bağlantıyı Kopyala</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Erişim sayısını sınırla</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Başlangıç tarihi</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Bu sunucuya bağlanmak için Nimbulo Pelora&apos;nın yeni bir sürümü gerekiyor. Şimdi güncellensin mi?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Dosya adı ekle</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Yerel hedef</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Uzak NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Bu bilgisayar</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Seçilen sürümü indir</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Özel süre</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Eşitleme geçmişini yenile</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>İsteğe Bağlı Eşitleme</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Eşitleme geçmişini filtrele</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Klasör ekle</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Takvim</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Sonraki ay</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Önceki ay</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Eşitleme klasörünü değiştir</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Olay kategorisi</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Eşitleme görevi ayrıntıları</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Uzak hedef</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Öğreticiyi kapat</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Öğretici: Nimbulo Pelora&apos;yı nasıl kullanacağınızı öğrenin.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>İndirmeyi iptal et</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Sürümü sil</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; için İsteğe Bağlı Eşitleme etkinleştirilemiyor.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Sunucuyla bağlantı olmadığından bu dosya kullanılamıyor.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Bu bilgisayarda yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Sunucuda yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Lütfen en fazla %1 karakter girin.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Parolanızın süresi doldu. Lütfen sunucuda değiştirip yeniden oturum açın.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Bu klasör farklı bir kullanıcı tarafından eşitlenmiş. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Aktarma bağlantıları sunucuda devre dışı.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>&quot;%1&quot; için kimlik doğrulama başarısız oldu. Lütfen yeniden oturum açın.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Bu dosyanın bağlantısı alınamıyor.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Geçici dosyalar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Daha Sonra</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Tebrikler!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Başkalarının sizinle paylaştığı klasörler</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Bu klasöre salt okunur erişiminiz var. Burada yaptığınız değişiklikler yalnızca bu bilgisayarda kalır.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora artık sunucudaki &quot;%1&quot; klasörünü bu bilgisayardaki &quot;%2&quot; klasörüyle eşitliyor.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Nimbulo Pelora öğreticisini göster</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora arka planda çalışıyor.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Eşitlemeye başlamak için sunucunuzda oturum açın.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nimbulo Pelora güncellenemedi. Lütfen en son sürümü indirip yeniden yükleyin.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Eşitleme hizmetinin yüklü olduğu bir sunucuda hesabınızın olması gerekir.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Çakışan değişiklikler her iki kopyada da korunur: sunucudaki kopya kullanıcı adıyla yeniden adlandırılır.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Öğretici: Nimbulo Pelora ile eşitlemeyi öğrenin.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>&quot;%1&quot; sunucu kimliği mevcut değil.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Oturum açtığımda Nimbulo Pelora&apos;yı başlat</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Sunucuda bir klasör ve bu bilgisayarda bir klasör seçin.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Bu eşitleme görevi farklı bir sunucuya ait.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Sunucu, Nimbulo Pelora&apos;nın bu sürümünün desteklemediği bir protokol kullanıyor.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Disk dolu. Nimbulo Pelora eşitlemeyi duraklattı.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Nimbulo Pelora bir hatayla karşılaştı. Lütfen yeniden başlatın.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>Seçilen klasör boş değil. İçindeki dosyalar sunucuya karşıya yüklenecek.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Yalnızca sunucudaki değişiklikleri indir</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Dosyalarınız artık sunucudaki &quot;%1&quot; klasörüyle eşitleniyor.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 zaten yüklü.\nYeniden yüklemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>&quot;%1&quot; öğesini eşitlemek için yeterli boş alan yok. Biraz yer açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Bu bilgisayardaki dosyaları sunucunuzla eşitlenmiş halde tutun.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Seçilen konumda &quot;Varnex Pelora&quot; klasörü oluştur</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Varnex Pelora&apos;nın daha yeni bir sürümü (%1) zaten yüklü.\nKurulum şimdi kapanacak.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Sunucuda seçtiğiniz bir klasörü eşitleyin.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Otomatik kurulum başarısız oldu. Lütfen Nimbulo Pelora&apos;yı el ile ayarlayın.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Otomatik kurulum tamamlanıyor...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Paylaş</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Kullanılabilir veri yok.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Kullanılabilir paylaşılan klasör yok.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Dosya veya klasör mevcut değil.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora yöneticiniz tarafından yapılandırıldı.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Dahili kullanıcılar</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Sunucunun kullanıcıları dosyayı görüntüleyebilir.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Sunucunun kullanıcıları dosyayı görüntüleyebilir ve düzenleyebilir.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Belirli kişiler</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Dosyaya yalnızca davet ettiğiniz kişiler erişebilir.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Bağlantıya sahip herkes</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Bağlantıya sahip herkes dosyayı görüntüleyebilir.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Bağlantıya sahip herkes dosyayı görüntüleyebilir ve düzenleyebilir.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Görüntüleyebilir</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Düzenleyebilir</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Davet Et</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Bağlantı izni:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Kullanıcılar ve gruplar</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Menü çubuğunda siyah beyaz simge kullan</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Eşitleme klasörünü dosya pencerelerinin kenar çubuğunda göster</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Sunucuya bağlanılamıyor</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Bildirimler</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1, %2 hakkında yorum yaptı</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1, %2 içinde sizden bahsetti</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1, %2 için erişim istedi</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1, %2 öğesini sizinle paylaştı</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Web Portalında Aç</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Eşitleme</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Paylaşılan</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Ayarla</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 bu dosyaya erişim istiyor.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Yorumlar</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Bahsetmeler</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Sizinle paylaşılan klasörler de eşitlensin mi?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Tek yönlü karşıya yükleme</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Dosyalar yerel olarak kaldırıldığında sunucudaki dosyaları kaldırma</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>&quot;%1&quot; indirildi.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Dosyalarınız tüm cihazlarda eşitlendi.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Dosyalarınıza web portalından da erişebilirsiniz.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Eşitleme göreviniz hazır.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Turu Başlat</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Başkalarının sizinle paylaştığı dosya ve klasörler de bu bilgisayara eşitlenebilir.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Belki daha sonra</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Şimdi eşitle</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Benimle Paylaşılanlar</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Eşitleme Görevi Oluştur</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Neyi eşitlemek istediğinizi seçin.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Genel Eşitleme Görevi</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Benimle Paylaşılan Dosyalar</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Başkalarının sizinle paylaştığı dosya ve klasörleri eşitleyin.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>NAS&apos;ta bir klasör ve bu bilgisayarda bir klasör seçin.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Bu eşitleme görevi farklı bir NAS&apos;a ait.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>NAS, Nimbulo Pelora&apos;nın bu sürümünün desteklemediği bir protokol kullanıyor.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Disk dolu. Eşitleme duraklatıldı.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Yalnızca NAS&apos;taki değişiklikleri indir</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nimbulo Pelora güncellenemedi. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Bu NAS&apos;a zaten bağlısınız.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Ağ sürücülerindeki değişiklikler gecikmeli olarak algılanabilir.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>%1 sunucusunun SSL sertifikası değişti.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Sunucuyla güvenli bağlantı kurulamıyor.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Hoş geldiniz!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>NAS&apos;taki ana klasörünüzdeki dosyalar artık %1 konumunda.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Sunucudaki ana klasörünüzdeki dosyalar artık %1 konumunda.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Disk dolu</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Sunucudaki eşitleme hizmeti eski</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>Paylaşılan klasör artık mevcut değil.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Nimbulo Pelora %1 sürümüne güncellemek için tıklayın</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Nimbulo Pelora&apos;nın bu sürümü sunucuya bağlanmak için çok eski. Lütfen güncelleyin.</translation>
    </message>
</context>
</TS>
