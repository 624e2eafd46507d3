<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Yedekleniyor…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Eşleme kaldırılıyor…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>[ProductName] programını bilgisayarınızdan kaldırır.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Tarnwell’i aç</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Yedekleniyor: %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Adı değiştirildi</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Dosyalarınız güvende ve hep elinizin altında</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Bu bilgisayarda silinen dosyaları sunucuda sakla</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Eşzamanlamayı yeniden dene</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Sunucuya son yükleme: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>OrvaneLink üzerinden aktarma</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Haziran</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Sunucunun SSL sertifikası doğrulanamadı. Sunucu adresini denetleyin veya yöneticinizden yardım isteyin.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Girdiğiniz bilgilerin bazıları geçerli değil. Denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Eşlemeyi kaldır</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Eksik veya hasarlı dosyaları, kısayolları ve kayıt defteri girdilerini yenileyerek [ProductName] programını onarır.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>%1 uygulamasına hoş geldiniz</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Doğrulama kodunu girin</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy adresi</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>SSL bağlantısı kullan</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Orvane Station adresi veya OrvaneLink kimliği</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Eşzamanlanacak klasörleri seçin</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Klasörleri, eşzamanlama modunu ve filtreleri tek tek kendiniz seçin.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Ağustos</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dosya türü</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Dosyayı aç</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Bildirim alanı simgesi</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>“%1” görevinin eşlemesini kaldırmak istiyor musunuz? Bu bilgisayarda ve sunucuda bulunan dosyalar silinmez.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Gelişmiş</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Klasör adı</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Eşzamanlama modu</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell hazır.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Yükleyici, [ProductName] programını onarmaya hazır.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Bu klasörü eşzamanlamadan hariç tut</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Klasör yolu</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tüm olaylar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Bağlanmak istediğiniz sunucunun bilgilerini girin.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] programının ayrı olarak değiştirilebilecek bir özelliği yok.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Bağlantı türü denetleniyor…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Eşzamanlama sorunu</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Eşzamanlama veritabanı okunamıyor. Tarnwell’i yeniden başlatın. Sorun sürerse görevin eşlemesini kaldırıp görevi yeniden ayarlayın.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Sunucudaki kotanız doldu. Artık gerekmeyen dosyaları silin veya yöneticinizden daha büyük bir kota isteyin.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Yok say</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Hoş geldiniz</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Kullanıcı oturum açtığında Tarnwell’i başlat</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Bir görevi duraklatmak, klasörünü açmak veya ayarlarını değiştirmek için bildirim alanı simgesine sağ tıklayın.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Dosya boyutunu sınırlamak istemiyorsanız 0 girin.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Yedeklenecek klasörleri seçin</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Son değiştirilen dosyalar</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Adı noktayla başlayan dosya ve klasörleri hariç tut</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Güven ve devam et</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink kimliği</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP adresi</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Yeni paylaşılan klasör</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>[ProductName] yükleyicisi</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>[ProductName] yükleyicisi işlemi tamamladı</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Bazı dosyalar eşzamanlanamadı. Ayrıntıları görmek için Tarnwell’i açın.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Bu paylaşılan klasörün bulunduğu disk dolu. Başka bir diskteki bir paylaşılan klasörü seçin veya biraz yer açın.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Tarnwell güncellemesi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Böyle bir OrvaneLink kimliği yok. Kimliği denetleyip yeniden girin.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>“%1” indirildi.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy ayarları</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Orvane Station adı</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>“%1” klasörünü listeden kaldırmak istiyor musunuz? Klasörün kendisi silinmez.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Bu kullanıcı adı denetlenemedi. Sunucuya erişilebildiğinden emin olup yeniden deneyin.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Sunucu</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Bu bilgisayarda bir klasör seçin. İçeriği sunucuyla eşzamanlanacak.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>Klasör boş değil</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Adı tam olarak bu olan dosyalar, hangi klasörde olursa olsun hiçbir zaman eşzamanlanmaz.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Güvenli bir bağlantı kurulamadı. Sunucunun SSL ayarlarını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Şu programlar, yükleyicinin değiştirmesi gereken dosyaları kullanıyor:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Bu, geçerli bir OrvaneLink kimliği değil. Yalnızca harf, rakam ve kısa çizgi kullanın.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>1 ile 65535 arasında bir port numarası girin.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Bu OrvaneLink kimliğine sahip Orvane Station çevrimdışı. Açık ve internete bağlı olduğundan emin olun.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ağ ayarları</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Bir sistem hatası nedeniyle sunucu bulunamadı. Yeniden deneyin veya bunun yerine sunucunun adresini girin.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Sunucudaki kotanız doldu.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Proxy parola gerektiriyor</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Başkasını seç</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Orvane Station bul</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>İki ok, dosyanın eşzamanlanmakta olduğunu gösterir. Kırmızı işaret, dosyayla ilgilenmeniz gerektiğini belirtir.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS sürümü</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Başlamak için “Onar” düğmesine tıklayın. Başka bir seçim yapmak için “Geri”, yükleyiciden çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Kurulum tamamlandı.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Bu klasörü kullan</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Tarih aralığı</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell için StationOS %1 veya daha yeni bir sürüm gerekir. Orvane Station’ınızı güncelleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Saklanacak sürüm sayısı 1 veya daha fazla olmalıdır.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>[ProductName] programını şimdi başlat</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Proxy için kullanıcı adını girin.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Yüklemeye hazır</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Birleştirme, iki klasörün içeriğini bir araya getirir. Birbirinden farklı dosyalar çakışma olarak ele alınır.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Anladım</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Sunucuda bir klasör seçin.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Her şey bildirim alanından</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Tarnwell’in bu sürümü sunucu için çok eski. Tarnwell’i %1 veya daha yeni bir sürüme güncelleyin.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 kullanıma sunuldu. Güncellemek için buraya tıklayın.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Bir dosya hem bilgisayarda hem sunucuda değiştirildiğinde ne yapılacağını seçin.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Yükleyici, [ProductName] programını kaldırmaya hazır.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Sunucuya yükleniyor…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Orvane Station’ınızın OrvaneLink kimliğini girin. Tarnwell, siz uzaktayken bile ona OrvaneLink üzerinden bağlanır.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Bu klasörü görüntüleyebilirsiniz ama değişiklikleriniz sunucuya yüklenmez.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Sunucudan bu bilgisayara tek yönlü eşzamanlama</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>“%1” adlı paylaşılan klasör eşzamanlanmaya hazır.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>StationOS’i aç</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Yeni dili uygulamak için Tarnwell’i yeniden başlatın.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Yerel klasör</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>En son değiştirilen sürümü sakla</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Seçilen klasörlerin hiçbiri eşzamanlanamıyor. En az bir tane başka klasör seçin.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Başlamak için “Yükle” düğmesine tıklayın. Seçimlerinizi gözden geçirmek için “Geri”, yükleyiciden çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell dosyalarınızın önceki sürümlerini saklar; böylece bir hatayı hemen geri alabilirsiniz.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Başka bir sunucu eşle</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Kaldırmaya hazır</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Bu klasörde zaten dosyalar var. Onlar da eşzamanlanacak. Klasörü kullanmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Bu yükleyiciyle [ProductName] programını onarabilir veya bilgisayarınızdan kaldırabilirsiniz. Devam etmek için “İleri”, yükleyiciden çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Hariç tutulan dosyalar</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Bu klasör için eşzamanlama açılamadı. Sunucudaki izinlerinizi denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Bu klasör, eşzamanlanmakta olan bir klasörle iç içe. O klasörün içinde olmayan ve onu içermeyen bir klasör seçin.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Yükle</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Hariç tutulan dosyalarda simge işaretlerini göster</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Proxy adresini ve portunu girin.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Yükleyiciden çıkmak için “Son” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Eşzamanlanacak dosya türleri</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>En büyük dosya boyutu için %1 ile %2 MB arasında bir değer girin.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Ayarlar uygulanıyor…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Görev ekle</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Klasörü değiştir</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Hayır, teşekkürler</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Bu iletiyi bir daha gösterme</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Seçmeli eşzamanlamayı kullanmak için önce sunucudaki eşzamanlama paketini güncelleyin.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Hariç tutulan dosya adları</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Yedekleme hedefi</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Her şey ayarlandı. Tarnwell dosyalarınızı yedeklemeye başladı.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Ayarların seçimini Tarnwell’e bırakın veya ayarları kendiniz seçin.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Bu dosya için bağlantı oluşturulamıyor. Dosyanın sunucuya yüklendiğinden ve dosyayı paylaşma izniniz olduğundan emin olun.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Tarnwell’den çık</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Kasım</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Uygun klasör bulunamadı</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Seçmeli eşzamanlama</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Bu klasörleri eşzamanlamaya yeniden dahil et</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Bu dosya hem bilgisayarda hem sunucuda değiştirilmiş. İki sürümü karşılaştırın ve gerekmeyeni silin.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Devam etmeden önce lisans sözleşmesini dikkatle okuyun.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Yazdır</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Zamanda geri gidin</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayıs</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Sunucudaki hesabınız devre dışı bırakılmış. Yöneticinizden hesabınızı etkinleştirmesini isteyin.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Bir sorun oluştu. Yeniden deneyin. Sorun sürerse Tarnwell’i yeniden başlatın.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Her iki sürümü de sakla ve eskisinin adını değiştir</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Dosya kilidinin açılması bekleniyor</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Dosyaları yerel klasöre koyun; Tarnwell onları sizin için sunucuya yedekler.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>“%1” klasörü oluşturulamadı. İzinlerinizi denetleyin veya başka bir konum seçin.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Eşzamanlama için sunucudaki paylaşılan klasörü seçin.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>[ProductName] yükleyicisini tamamlanmadan iptal ettiniz. Bilgisayarınızda değişiklik yapılmadı. Yükleyiciyi istediğiniz zaman yeniden çalıştırabilirsiniz.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mart</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Şu ayarlar kullanılacak:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>İndirme geçmişi</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>İzin yok</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Bu görev etkin değil. Dosyalarını yeniden eşzamanlamak için görevi sürdürün.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Yedekleme tamamlanamadı. Sunucu bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Daha fazla öğretici</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Bu klasörü başka bir eşzamanlama programı kullanıyor. Farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az önce</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Bu programları açık bırak (yeniden başlatma gerekir)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Bu klasörle eşzamanlama izniniz yok. Erişiminiz olan bir klasör seçin.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell zaten çalışıyor. Bildirim alanından açabilirsiniz.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Bu filtrelerden birine uyan dosyalar eşzamanlanmaz.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Görev seçenekleri</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Sunucu klasörü</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Şubat</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>Yerel klasörün bulunduğu disk bağlı değil. Diski bağlayın ve görevi sürdürün.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Yönetici olarak oturum açmadığınız için Tarnwell yalnızca sizin hesabınıza yüklenecek. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Bilgisayarınızı kendi sunucunuza yedekleyin ve onunla eşzamanlayın.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell başlatılıyor…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Sunucunun diski dolu.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>En büyük dosya boyutu</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Yüklendi</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Her şey hazır!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Bu klasörü yalnızca okuyabilirsiniz. Dosyalar indirilir ama değişiklikleriniz sunucuya yüklenmez.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>Sunucu klasörü, şu anda bağlı olmayan uzak bir depolama alanında. Yöneticinizden bu alanı yeniden bağlamasını isteyin.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Bu adda bir klasör zaten var. İki klasörü birleştirmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] zaten yüklü</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 öğe</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Bu klasör bir bağlama noktası olduğundan eşzamanlanamaz. Normal bir klasör seçin.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Sunucu IP adresinizi engelledi. Yöneticinizden engeli kaldırmasını isteyin.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell güncellenemedi. Daha sonra yeniden deneyin veya en son sürümü kendiniz indirin.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Bu paylaşılan klasör için salt okuma izniniz var. Dosyalar yalnızca indirilecek. Klasörü kullanmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Tarnwell’in bu sürümü zaten yüklü. Yeniden yüklemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Bağlanıyor…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell düzgün başlatılamadı. Bilgisayarınızı yeniden başlatın. Sorun sürerse Tarnwell’i yeniden yükleyin.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Yeni eşzamanlama görevi</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Proxy olmadan bağlan</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Bu bilgisayarda bir klasör seçin</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>İşlem</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>[ProductName] programını değiştirin, onarın veya kaldırın</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Bir dosya adı veya dosya uzantısı girin, örneğin *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Eşzamanlama yönü</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı sınanıyor…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Öğreticiyi göster</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>Sunucunun SSL sertifikası siz bağlandıktan sonra değişti. Denetlemek için geri dönüp yeniden bağlanın.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Sunucunun IP adresini veya alan adını girin.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Hesap</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Bu hesap 2 adımlı doğrulamayla korunuyor. Doğrulama kodunu girin.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Sunucu bir sistem hatası bildirdi. Daha sonra yeniden deneyin veya yöneticinizden yardım isteyin.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Ayarlarınızı denetleyin</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Burada işaretini kaldırdığınız klasörler bu bilgisayardan kaldırılır. Sunucuda kalırlar.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Sunucudaki eşzamanlama paketi çok eski.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Paylaşılan klasörler</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Bu ayarların tümünü daha sonra değiştirebilirsiniz.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>İndirme iptal edildi.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink sunucuya erişemedi. İnternet bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Bu addaki dosyalar hiçbir zaman sunucuya yüklenmez ve sunucudan indirilmez.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Bu klasör bir ağ sürücüsünde. Başkalarının orada yaptığı değişiklikler hemen fark edilmeyebilir.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Bu klasör eşzamanlanamaz. Farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Ocak</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Etkin değil</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Bu klasör için salt okuma izniniz var; bu nedenle klasöre hiçbir şey yedeklenemez. Yazabildiğiniz bir klasör seçin.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Başlamadan önce sunucunuzun açık olduğundan emin olun.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Çok fazla başarısız deneme yapıldı. Birkaç dakika bekleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Bu bilgisayarın sunucuyla eşlemesini kaldırmak istiyor musunuz? Tüm görevler durur ama hiçbir dosya silinmez.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Bu yedekleme klasörünü zaten başka bir görev kullanıyor. Farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Bir sorun oluştu</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Eşzamanlanan dosyalarda simge işaretlerini göster</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>“%1” listeden kaldırılamadı. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Tarnwell’in bu sürümü çok eski.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Eşzamanlama açık</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Bu programları kapatıp “Yeniden dene” düğmesine tıklayın ya da devam edip bilgisayarınızı daha sonra yeniden başlatmak için “Yok say” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell bilgisayarınızdaki dosyaları sunucunuza yedekler ve iki yerdeki dosyaları eşzamanlı tutar.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Dosyalar kullanımda</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Neyin yedekleneceğini ve sunucuda nerede saklanacağını seçin.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Değiştirilmesi gereken bazı dosyalar kullanımda.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Olay türü</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Az önce güncellendi: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Paylaşılan klasörler alınıyor…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell yerel bir klasör oluşturur ve onu hemen yedeklemeye başlar.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Yeniden eşle</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Bu klasörü eşzamanlamaya yeniden dahil et</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Onar</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Tarnwell’in sunucuya nasıl bağlanacağını seçin.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Sunucuyla eşleniyor…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Tarnwell’in şu anda ne yaptığını görmek için simgeye çift tıklayın.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell bu iki klasörü eşzamanlı tutar.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Şimdi başla</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Eşzamanlama</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell hazırlanıyor…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Paylaşılan klasör bulunamadı</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Yerel klasörünüzdeki dosyalar artık sunucuya otomatik olarak yedekleniyor.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>Sunucunun SSL sertifikası değişti. Yeni sertifikaya güvenmeden önce yöneticinize danışın.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>Görev ayarlanırken bağlantı koptu. Ağınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>%1 dosya yedekleniyor</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Sunucu bağlantısı koptu. Tarnwell olabildiğince çabuk yeniden bağlanacak.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Tarnwell’e hoş geldiniz. İlk yedeklemenizi birlikte ayarlayalım.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Bu paylaşılan klasörün eşzamanlamasını durdurmak istiyor musunuz? Bu bilgisayarda bulunan dosyalar saklanır.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Birleştirme modu</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>İndirildi</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Yeterli alan yok</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Tarnwell hakkında</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Oturum açılamadı</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Artık sunucuya bağlısınız.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Yedeklenen dosya: %1 / %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Bağlantıyı düzenle</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Hesabınızın bu sunucuda kotası kalmadı. Bu görevi ayarlamadan önce yöneticinizden daha büyük bir kota isteyin.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>[ProductName] programını bilgisayarınızdan kaldırmak için “Kaldır” düğmesine tıklayın. Başka bir seçim yapmak için “Geri”, yükleyiciden çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Lisans sözleşmesinin koşullarını kabul etmiyorum</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Kurulum için yardım mı gerekiyor?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Eşzamanlanacak klasörler</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>İndiriliyor: %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Özel aralık</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Hiçbir ayar değiştirilmedi.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Her dosyanın durumunu görün</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ekim</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam et</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Bu programları kapat ve sonra yeniden başlat</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Parola denetleniyor…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Görevleri yönet</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Şuraya gönder:</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Kaydedilmemiş değişiklikleriniz var. Bu değişikliklerden vazgeçmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Sunucunun diski dolu. Sunucuda biraz yer açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Yöneticiniz 2 adımlı doğrulamayı zorunlu kılıyor. Önce bir tarayıcıdan sunucuda oturum açıp bu doğrulamayı etkinleştirin.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Bu paylaşılan klasörün kotası doldu. Artık gerekmeyen dosyaları silin veya başka bir paylaşılan klasör seçin.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Bağlantının eşlemesini kaldır</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>%1 sürümüne güncelleniyor…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>[ProductName] programını kullandığınız için teşekkür ederiz.</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Bu proxy ayarlarını kullan</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>Eşzamanlama beklenmedik biçimde durdu. Görevi sürdürün. Sorun sürerse Tarnwell’i yeniden başlatın.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Sistem proxy’sini kullan</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Her şey doğruysa görevi oluşturmak için “Son” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Eşzamanlanacak alt klasörler</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>[ProductName] programında istenen değişiklikler yapılıyor.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Tarnwell’i nasıl ayarlamak istiyorsunuz?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>OrvaneLink kimliği nedir?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Salt okunur klasör</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>Yerel ağınızda Orvane Station bulunamadı. Bunun yerine adresini veya OrvaneLink kimliğini girin.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>[ProductName] yükleyicisine hoş geldiniz</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Güncellenen dosyalar</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Bu bilgisayarda bir Tarnwell klasörü oluştur</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Bu bilgisayarın diski dolu.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL şifrelemesi</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Yerel klasör bulunamıyor. Klasörü eski yerine taşıyın veya görevin eşlemesini kaldırıp görevi yeniden ayarlayın.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL sertifikası uyarısı</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lisans sözleşmesi</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>[ProductName] programının hangi özelliklerinin yükleneceğini seçmenizi sağlar.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Bu paylaşılan klasör artık sunucuda yok. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Aktarım kuyruğu</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Değiştirilen dosyalar aranıyor…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Önceki %1 sayfa</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Temmuz</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Başlamak için herhangi bir yere tıklayın.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Bu klasörleri eşzamanlamadan hariç tut</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Gelişmiş ayarlar</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Geçerli adım:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Onarmaya hazır</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Kilitli dosya</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Sunucu, Tarnwell’in anlamadığı bir yanıt gönderdi. İkisinin de güncel olduğundan emin olun.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Bağlama noktası</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Sonraki %1 sayfa</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>İki yönlü eşzamanlama</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell güncelleniyor…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Sizinle bir klasör paylaşıldı</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Bildirim alanı simgesine çift tıklandığında</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Bu dosya indirilemiyor. Sunucuda taşınmış veya silinmiş olabilir.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>OrvaneLink üzerinden bağlanıyor…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 gün önce</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Başka bir klasör seç</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Eşzamanlanmayacak dosyalar</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hızlı kurulum</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Bu sunucuyla başka bir klasörü eşzamanlamak için görev ekleyin.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Bir hata oluştu</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>[ProductName] programını kaldır</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Sunucu, isteği geçersiz olduğu için reddetti. Tarnwell’i güncelleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Sürüm uyuşmuyor</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Daha fazla klasör eşzamanlamak için Tarnwell’e istediğiniz zaman görev ekleyebilirsiniz.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturulma</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Güncelleme gerekli</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink şu anda kullanılamıyor. Daha sonra yeniden deneyin veya bunun yerine Orvane Station’ınızın adresini girin.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 dakika önce</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Durum ayrıntıları</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Bağlantı paylaş</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Şimdi güncelle</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Sunucudaki bir klasörü ve onunla eşzamanlanacak yerel klasörü seçin.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>sizinle paylaşıldı.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Bu bilgisayar ile sunucu artık eşlenmiş durumda.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Doğrudan bağlantı</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Sunucuya erişilemiyor. Ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Başka bir sunucuyla eşzamanla</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Bu bilgisayarın diski dolu. Biraz yer açın ve görevi sürdürün.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Bu klasörü eşzamanla</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Geçen hafta</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Veriler denetleniyor…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Kullanıcı adı veya parola yanlış.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] programı bilgisayarınıza yüklenecek. Devam etmek için “İleri”, yükleyiciden çıkmak için “İptal” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>[ProductName] programını onar</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Eşzamanlama yönü uyuşmuyor</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Bağlantıyı sürdür</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Sunucunuza bağlanın</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Sunucu adresini girin ve hesabınızla oturum açın.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Yedeklemek için en az bir klasör seçin.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Yükleyici, [ProductName] programını yüklemeye hazır.</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Bundan sonra ne yapmak istiyorsunuz?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Yapmak istediğiniz işlemi seçin.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>SSL sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Sunucudaki eşzamanlama paketi çok eski. Yöneticinizden paketi %1 veya daha yeni bir sürüme güncellemesini isteyin.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Eşzamanlama görevi ekle</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Gösterilecek olay yok</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Kullanıcı adınızı girin.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>Paylaşılan klasör sunucuda bağlı değil. Yöneticinizden klasörü bağlamasını isteyin.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Simge işaretleri dosyalarınızın durumunu gösterir. Yeşil onay işareti, dosyanın güncel olduğunu belirtir.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Lisans sözleşmesinin koşullarını kabul ediyorum</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Yüklü özellikleri değiştir</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Dosya uzantısı</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Bağlantıyı duraklat</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Yalnızca indirme</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Sunucu artık farklı bir SSL sertifikası kullanıyor. Bu sertifikaya güvenmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 saat önce</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Tamamlandı</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Bilgisayar adı</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Doğrulama kodu yanlış veya süresi dolmuş. Yeni bir kod girin.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Yükleyici iptal edildi</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Hariç tutulacak bir dosya adı girin</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Bazı dosyalar eşzamanlanmadı</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Sistem dili</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Gelişmiş kurulum sihirbazı</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Siyah beyaz bildirim alanı simgesi kullan</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Bağlantı türü</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Bağlantı kararsız</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>[ProductName] yükleyicisinden işlem tamamlanmadan çıkmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>“%1” indirilemedi. Sunucu bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Yedeklemeniz burada başlıyor</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Nisan</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>[ProductName] yükleyicisi bir hata nedeniyle tamamlanmadan durdu. Bilgisayarınızda değişiklik yapılmadı. Yeniden denemek için yükleyiciyi yeniden başlatın.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>Bu görevin eşzamanlama yönü sunucudaki izninizle uyuşmuyor. Başka bir eşzamanlama yönü seçin.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Bu paylaşılan klasörü kullanma izniniz yok. Yöneticinizden erişim isteyin.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Bu işlem birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Gelişmiş kurulum</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Var olan görevi kullanabilir veya farklı bir klasörde yeni bir görev ayarlayabilirsiniz.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Bu klasörü zaten başka bir görev eşzamanlıyor. Farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Eşzamanlama durumunu göster</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Devam ederseniz var olan görevin yerini yenisi alır. Hiçbir dosya silinmez.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Lütfen bekleyin</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Anahtar sözcük</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtreler</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Bu bilgisayarda bu klasör için bir görev zaten var.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Eşzamanlama görevleri</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Önceki sürümlere göz at</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell bu klasörün dizinini oluşturuyor</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Bu görev zaten var</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Görev oluşturulamadı. Ayarlarınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Bekliyor</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Her zaman sunucudaki sürümü sakla</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Yerel bir klasör seçin</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Eylül</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>En fazla %1 paylaşılan klasör eşzamanlayabilirsiniz. Başka bir klasör eklemeden önce bunlardan birinin eşzamanlamasını durdurun.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Bulunduğu klasörü aç</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Yerel klasörü aç</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Tarnwell’in daha yeni bir sürümü zaten yüklü. Bu sürümü yüklemek için önce yeni sürümü kaldırın.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>Bu dosyanın önceki sürümleri gösterilemiyor. Sunucu bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
</context>
</TS>
