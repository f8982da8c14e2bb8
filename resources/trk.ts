<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Paylaşım bağlantısı</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Çı&amp;kış</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive, bu bilgisayardaki dosyaları NAS&apos;ınızla eşitler. Bu bilgisayarı NAS&apos;ınızla eşleştirmek için Hemen başla düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Karşıya yükleniyor</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>En fazla %1 paylaşım bağlantısı oluşturabilirsiniz.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>%1 MB&apos;tan büyük dosyalar eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>İsteğe bağlı eşitleme</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>Seçilen klasör eşitleme klasörü olarak kullanılamaz. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Geçici dosyaları eşitle</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink aktarımı</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Her iki dosyayı da tut ve çakışan dosyayı yeniden adlandır</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Özelliklerin yüklenme şeklini değiştirmenizi sağlar.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Yazdır</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazı, Calderix Drive&apos;ın bilgisayarınızda yüklenme şeklini değiştirmenize, onu onarmanıza veya kaldırmanıza olanak tanır. Devam etmek için İleri&apos;ye, Kurulum Sihirbazı&apos;ndan çıkmak için İptal&apos;e tıklayın.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 sizinle bir klasör paylaştı.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazı&apos;ndan çıkmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Farklı bir yerel klasör veya NAS&apos;ta farklı bir paylaşılan klasör seçin.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Kurulum tamamlandı.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Erişim sayısını sınırla</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ekim</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 dosya eşitleniyor</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Bu öğe için paylaşım bağlantısı oluşturulamaz.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Sunucu adresi ayrıntıları</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>Bu klasörün eşitleme yönü NAS&apos;taki ayarla eşleşmiyor.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Calderix Drive&apos;ı yüklemek için yönetici haklarına ihtiyacınız var. Yine de devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Bu klasör mevcut bir eşitleme klasörüyle çakışıyor. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Eşitleme klasörleri</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>İndirildi</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>NAS&apos;taki depolama kotanız doldu. Biraz yer açın veya yöneticinizden daha büyük bir kota isteyin.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>Otomatik bağlantı yönetici tarafından iptal edildi.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ayarlar...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Calderix Drive Kurulumu erken sona erdi</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Geçersiz parametre.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Aşağıdaki uygulamalar, Kurulum&apos;un güncellemesi gereken dosyaları kullanıyor. Bunları kapatıp Yeniden Dene&apos;ye tıklayabilir veya yine de devam etmek için Yoksay&apos;a tıklayabilirsiniz.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Bu klasör dizine ekleniyor.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Kasım</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>İndirme geçmişi</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Her iki taraftaki dosyaları birleştir</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Öğreticiyi göster</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Eşitleme klasörünü değiştir</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>İki yönlü eşitleme</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Klasörü değiştir</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Calderix Drive hakkında</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Eşitlemenin dışında tutulan dosyalar</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Sistem ara sunucu ayarlarını kullan</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Calderix Drive&apos;ı nasıl kurmak istediğinizi seçin.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Hemen başla</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Bu klasörün bulunduğu diskte yeterli boş alan yok. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disk dolu</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Eşitleme modu</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Anahtar sözcük</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Ağ sürücüsünde diğer bilgisayarların yaptığı değişiklikler hemen algılanmayabilir.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Lütfen bir kullanıcı adı girin.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Kullanıcı adınız ve parolanız denetleniyor...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Paylaşılan klasör</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>NAS&apos;taki depolama kotanız doldu. Bu klasörü eşitlemeden önce biraz yer açın.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Sunucu beklenmeyen bir yanıt döndürdü.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Eşitleniyor...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Lütfen en fazla %1 karakter girin.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Hoş geldiniz</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Başlamak için bu bilgisayarı NAS&apos;ınızla eşleştirin.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Klasörü değiştir</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Seçimini kaldırdığınız klasörler bu bilgisayardan kaldırılacak ancak NAS&apos;ta kalacak. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Calderix Drive&apos;ı aç</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Seçmeli eşitleme</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Tamamlandı</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Açıklama</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>En büyük dosya boyutu</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Calderix Drive&apos;ın bu sürümü NAS için çok eski. Lütfen Calderix Drive&apos;ı yükseltin.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Bağlantı kararsız</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Gelişmiş kurulum</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Sürüm indirmeyi durdur</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 sizinle %2 klasörünü paylaştı.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Klasör boş değil</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>Uygulamaları &amp;kapat ve yeniden başlatmayı dene.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Takvim</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Çakışan dosyaları ayrı bir klasörde tut</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Temmuz</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 bir bağlama noktasıdır ve eşitleme klasörü olarak kullanılamaz.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Sonraki %1 sayfa</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Gösterilecek kayıt yok.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Eşitleme görevleri</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı test ediliyor...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Bu eşitleme görevinin bağlantısını kesmek istediğinizden emin misiniz? Bu bilgisayardaki ve NAS&apos;taki dosyalar korunacak.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Bağlanıyor...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Calderix Drive Kurulumu bir hata nedeniyle erken sona erdi. Sisteminiz değiştirilmedi. Bu programı daha sonra yüklemek için Kurulum Sihirbazı&apos;nı yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>NAS ile güvenli bağlantı kurulamadı.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Eşitleme yönü</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Eşitleme sorunu</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Karşıya yüklendi</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>NAS ile bağlantı kesildi.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>NAS değişti</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Bu bilgisayarda NAS&apos;taki dosyalarla çakışan dosyalar yeniden adlandırılıp korunacak.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Paylaşım bağlantısı al</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Sürüm uyuşmazlığı</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>%1 indirilemedi.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Bu bilgisayarın diski dolu.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Seçmeli eşitlemeyi kullanmak için lütfen NAS paketini güncelleyin.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Kullanıcı adı veya parola yanlış.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Bu eşitleme klasörü farklı bir NAS&apos;a ait.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Dosya ve klasörlerde eşitleme durumu simgelerini göster</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>Kurulum yarıda kesildi.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>%1 klasörü boş değil.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Kurulum tamamlanıyor...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>İsteğe bağlı eşitleme etkinleştirilemedi.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>İndirme durduruldu.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>%1 için yeni bir eşitleme görevi oluşturulacak.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Bu klasörlerin eşitlenmesini sürdür</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Calderix Drive&apos;ı onarmaya hazır</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Yeni bir NAS ile eşitle</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>NAS&apos;ın sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>Bağlantı kimliği geçerli değil.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Calderix Drive&apos;ın daha yeni bir sürümü var. Şimdi yükseltilsin mi?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>NAS&apos;ın sertifikası değişti.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Paylaşım bağlantısı almak için eşitleme klasörünüzdeki bir dosyaya sağ tıklayın.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>Klasör boş değil. İçeriğini NAS&apos;taki klasörle birleştirmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Daha fazla ayrıntı</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Gerçekleştirmek istediğiniz işlemi seçin.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Dosyalarınız her yerde.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Son Kullanıcı Lisans Sözleşmesi</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Bağlantıyı kes</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bağlantı noktası</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Güncellenmesi gereken bazı dosyalar şu anda kullanımda.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>Kurulum anahtarı zaten yapılandırılmış.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Yüklemeyi onar</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Geçerlilik başlangıcı</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Bu bilgisayardaki dosyanın üzerine yaz</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Lütfen ara sunucunun adresini ve bağlantı noktasını girin.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>Seçilen klasör salt okunur. Lütfen başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Aktarma bağlantıları NAS&apos;ta devre dışı.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Yükseltiliyor...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Onar</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>Bu klasör son eşitlendiğinden beri NAS&apos;ın sertifikası değişti.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Bir Calderix Drive klasörü oluştur</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Eşitlenmeyen dosyalarda simge göster</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Gelişmiş ayarlar</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Erişimi kısıtla</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Geri</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Tarih aralığı</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>%1 yerel eşitleme klasörü bulunamıyor.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Önceki sürümlere göz at</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Bağlantı algılanıyor...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Gelişmiş Kurulum Sihirbazı</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Eşitleme klasörünüze koyduğunuz dosyalar NAS&apos;ta ve tüm bilgisayarlarınızda güncel tutulur.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Paylaşım bağlantısı silinemedi.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Sunucu adresi</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Calderix Drive yükleniyor</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Farklı bir NAS&apos;a bağlı</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Dosyaları paylaşın</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Değiştir</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Yerel klasör oluşturulamadı.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Güvenli bağlantı (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Calderix Drive Kurulumu yarıda kesildi. Sisteminiz değiştirilmedi. Bu programı daha sonra yüklemek için Kurulum Sihirbazı&apos;nı yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Bağlantıyı düzenle</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;İleri &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Bu öğe indirilemez.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Yerel veritabanı açılamadı.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Tüm alt klasörlere uygula</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Bu klasörleri eşitleme</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 indirildi.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Son güncellenen dosyalar</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Yinelenen eşitleme görevi</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>NAS, hesabınız için iki adımlı doğrulama gerektiriyor.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Bu paylaşım bağlantısını silmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive zaten çalışıyor.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Güvenlik uyarısı</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Eşitleme durumunu aç</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Bu sistem klasörü eşitleme klasörü olarak kullanılamaz.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Bu klasörü eşitleme</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Eşitleme durumunu görmek ve ayarları değiştirmek için menü çubuğundaki Calderix Drive simgesine tıklayın.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Bağlantı başarıyla kuruldu.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>NAS&apos;ın sertifikası doğrulanamadı. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Bu dosya hiçbir bağlantıya ait değil.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Her yerden erişin</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Ara sunucu parola gerektiriyor</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>NAS&apos;taki eşitleme klasörü</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Paylaşılan klasörü, yerel klasörü ve eşitleme seçeneklerini kendiniz belirleyin.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Bu adlara sahip dosyalar eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Calderix Drive Kurulum Sihirbazı&apos;na hoş geldiniz</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Bazı alanlar geçersiz değerler içeriyor.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Calderix Drive kurulumunu iptal etmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazı, Calderix Drive&apos;ı bilgisayarınıza yükleyecek. Devam etmek için İleri&apos;ye, Kurulum Sihirbazı&apos;ndan çıkmak için İptal&apos;e tıklayın.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Bağlama noktası desteklenmiyor</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Klasörde göster</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Klasör adı</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS&apos;a genel bakış</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Lisans Sözleşmesi&apos;ndeki koşulları &amp;kabul ediyorum</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Calderix Drive durumu</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Dosyalarınızı eşitleyin</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Calderix Drive&apos;ın bu sürümü zaten yüklü.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Calderix Drive&apos;ı kaldır</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Eylül</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 dakika önce</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Eşitleme duraklatıldı</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Bağlantıya sahip olan herkes dosyayı bir web tarayıcısında açabilir.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Hesabınız NAS&apos;ta devre dışı bırakıldı.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Yoksay</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayıs</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Yüklemeyi kaldır</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Calderix Drive yükseltilemedi.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Kullanıcı bilgileriniz NAS&apos;tan alınamadı.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Bağlantı türü</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Calderix Drive&apos;ı yüklemeye hazır</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Yine de devam et</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturulma</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Bir klasör seçin</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Klasör bazında seçmeli eşitleme</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Şubat</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Calderix Drive Kurulumu yarıda kesildi</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Parolanızın süresi doldu. Lütfen parolanızı NAS&apos;ta değiştirin.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Doğrulama kodunu girin</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Ara sunucu için kullanıcı adı veya parola yanlış.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Sona erme tarihi</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Dosyalarınız artık NAS ile eşitleniyor.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Paylaşım bağlantıları Farrowlink bağlantısı üzerinden kullanılamaz.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Calderix Drive&apos;ı bağlam menüsünde göster</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Ostrel hizmeti NAS&apos;ta devre dışı. Lütfen yöneticinizden hizmeti etkinleştirmesini isteyin.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Bazı dosyalar eşitlenemedi.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Klasör yolu</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Calderix Drive başlatılıyor...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 saat önce</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>NAS&apos;ta hangi klasörün eşitleneceğini ve bu bilgisayarda nerede tutulacağını seçin.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Siyah beyaz menü çubuğu simgesi kullan</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Etkin değil</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Bu paylaşılan klasör zaten başka bir klasörle eşitleniyor.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Eşitlenen dosyalarınızı NAS ile eşleştirilmiş herhangi bir bilgisayardan açın.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Dosyanın bağlantısı alınamadı.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ara sunucu yok</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Eşitleme</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Bu alan boş bırakılamaz.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Yeniden Dene</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Geçen hafta</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Değişiklikler denetleniyor...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Anladım</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Calderix Drive&apos;a hoş geldiniz</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Uzak hedef</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Salt okunur klasör</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Yüklemeyi değiştir, onar veya kaldır</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Yeni eşitleme klasörü</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Bu bilgisayar</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Klasör listesi yükleniyor...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Aşağıdaki uygulamalar bu kurulumun güncellemesi gereken dosyaları kullanıyor. Bu uygulamaları kapatın ve devam etmek için Yeniden Dene&apos;ye tıklayın.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Farrowlink üzerinden bağlan</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Aynı ada sahip bir dosya zaten var.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>NAS ile eşitlemek için yeni bir klasör oluşturun.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>NAS&apos;ın sertifikası değişti. Yeni sertifikaya güveniyor musunuz?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Bu dosyanın sürümleri listelenemiyor.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Dosya adı ekle</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 indiriliyor...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Çok fazla başarısız deneme. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Nisan</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Paylaşım etkin</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Bilgisayar</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel devre dışı</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Tüm dosyalar güncel</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Her şey hazır</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>%1 eşitleme klasörünün birimi bağlı değil.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Bu klasör zaten NAS&apos;taki aynı paylaşılan klasörle eşitleniyor.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Paylaşılan klasör eksik</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Calderix Drive&apos;ı güncellemek için tıklayın</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Güvenli bağlantı (SSL) kullan</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Dosyayı aç</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Kurulum, yüklemeye başlamaya hazır.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Aynı dosya her iki tarafta da değiştiğinde:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Calderix Drive yüklemesini onarmak için Onar&apos;a tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri&apos;ye tıklayın. Sihirbazdan çıkmak için İptal&apos;e tıklayın.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Eşitleme görevi ekle</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Hazırlanıyor</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Güncelleniyor...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Calderix Drive&apos;ın bu sürümü NAS tarafından desteklenmiyor. Lütfen Calderix Drive&apos;ı yükseltin.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Eşitlemeyi etkinleştir</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Bu klasöre erişim izniniz yok.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>%1 klasörü salt okunur.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Calderix Drive&apos;ı yükselt</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Doğrulama kodu yanlış.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Bu bilgisayar çevrimdışıyken bile dosyalarınız erişilebilir kalır.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Veriler denetleniyor...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Günlük kategorisi</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Calderix Drive&apos;ı başlat</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>Yükseltme başarısız oldu.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Eşitleme klasörü</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Seçmeli eşitleme modu</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Ara sunucu ayarları</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Yeniden bağlan</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mart</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Oturum açılamadı</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Kullanımdaki dosyalar</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tüm olaylar</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Bu bilgisayarda yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Eşitlenebilecek klasör yok.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Eşitleme klasörü</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Tek yönlü eşitleme (yalnızca indirme)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>NAS&apos;ta eşitlemek istediğiniz paylaşılan klasörü seçin.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Yerel ağda NAS aygıtlarını ara</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Calderix Drive&apos;ı bilgisayarınızdan kaldırmak için Kaldır&apos;a tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri&apos;ye tıklayın. Sihirbazdan çıkmak için İptal&apos;e tıklayın.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>El ile ara sunucu yapılandırması</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>Paylaşılan klasör artık NAS&apos;ta yok.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Bu iletiyi bir daha gösterme</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Haberdar olun</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Doğrudan bağlantı</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Önceki %1 sayfa</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Daha fazla ipucu</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>%1 ile bağlantı kuruluyor...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Lütfen 1 ile 65535 arasında bir bağlantı noktası numarası girin.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Dosya bazında seçmeli eşitleme</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kota dolu</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Özel aralık</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Calderix Drive klasörünü aç</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>Paylaşılan klasör NAS&apos;ta bağlı değil.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Yüklemeyi başlatmak için Yükle&apos;ye tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri&apos;ye tıklayın. Sihirbazdan çıkmak için İptal&apos;e tıklayın.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>Uzak klasör, birimi bağlı olmadığı için kullanılamıyor.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Kurulum, Calderix Drive&apos;ı yüklemeye hazır.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Kilitli</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Hızlı kurulum</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Bu klasör için eşitlemeyi kapatmak, klasörü eşitleme listesinden kaldırır. Dosyalar NAS&apos;ta ve bu bilgisayarda kalır. Devam edilsin mi?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Bu klasörün eşitlenmesini sürdür</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Son sayfa</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Paylaşım bağlantısını sil</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Kurulumu iptal et</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Bu klasör için zaten bir eşitleme görevi var.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Bu klasör farklı bir kullanıcı hesabı tarafından eşitlendi.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Hiçbir ayar değiştirilmedi.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Oturum açılamadı. Lütfen kullanıcı adınızı ve parolanızı denetleyin.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Bu filtrelerle eşleşen dosyalar eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NAS&apos;ta yeterli boş alan yok.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Yalnızca indirme</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Bağlantı kesiliyor...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Eşitlemeyi sürdür</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Calderix Drive Kurulum Sihirbazı tamamlandı</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Eşitleme klasörünü ayarla</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Yükle</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Öğretici</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>%1 erişimden sonra sona erer</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Her iki klasörün içeriği birleştirilecek.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Kurulum Sihirbazı Calderix Drive&apos;ı yüklerken lütfen bekleyin.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Sonraki ay</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>İndiriliyor</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Bu işlemi gerçekleştirme izniniz yok.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Eksik ve bozuk dosyaları, kısayolları ve kayıt defteri girdilerini düzelterek en son yüklemedeki hataları onarır.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Bu klasör için eşitleme etkinleştirilemedi.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Bu dosyanın önceki bir sürümü yok.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Eşitleme günlüğünü yenile</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Calderix Drive&apos;ı bilgisayarınızdan kaldırmak için Kaldır&apos;a tıklayın.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Calderix Drive&apos;ı bilgisayarınızdan kaldırır.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Calderix Drive&apos;ı onar</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Kurulum modu</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Dosya uzantısı</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 öğe</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Kullanılabilir seçenek yok</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Dosyalarınızı NAS&apos;ınızla eşitleyin ve paylaşın.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>İzin reddedildi</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>NAS&apos;ta yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Kurulum Sihirbazı Calderix Drive&apos;ı yüklerken lütfen bekleyin. Bu işlem birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Oturum açıldığında Calderix Drive&apos;ı başlat</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Bu sihirbaz, yükleme boyunca size yol gösterecek.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dosya türü</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>En son değiştirilen dosyayı tut</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Bu bilgisayar zaten bu NAS ile eşleştirilmiş.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lütfen aşağıdaki lisans sözleşmesini dikkatle okuyun.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Calderix Drive başlatılamadı.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>NAS paketi, Calderix Drive&apos;ın bu sürümü için çok eski. Lütfen NAS&apos;taki paketi güncelleyin.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Yeni paylaşım</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Lütfen doğrulama kodunu girin.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Ara sunucu</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ve %1 tane daha</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>Yeni dil, Calderix Drive yeniden başlatıldıktan sonra kullanılacaktır.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Calderix Drive hazırlanıyor...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Eşleştirme bilgileri</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>%1 ile bağlantıyı kesmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Haziran</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive başarıyla yüklendi.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Bilinmeyen bir hata oluştu.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Lisans Sözleşmesi&apos;ndeki koşulları kabul et&amp;miyorum</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Yerel ağda ara</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Bu bilgisayarda yeterli boş alan yok.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Eşitleme biçimi</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Yerel eşitleme klasörü</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Programı sisteminizden kaldırmayı seçtiniz.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive&apos;ın değiştirilebilecek bağımsız bir özelliği yok.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Gerekli değil</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive şimdi dosyalarınızı NAS ile eşitlemeye başlayacak.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Değişiklikleriniz kaydedilmedi. Kaydetmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Dili değiştir</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Yerel hedef</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Bu IP adresinden gelen bağlantılar NAS tarafından engelleniyor.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Calderix Drive&apos;ın daha yeni bir sürümü zaten yüklü.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Durum:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Önceki bir sürümü indir</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Yükseltme</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Eşitleme klasörü denetlenirken bir ağ hatası oluştu. Lütfen yeniden deneyin.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Sertifika hatası</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 gün önce</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Calderix Drive&apos;ı onarmak için Onar&apos;a tıklayın.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Calderix Drive&apos;ı değiştirin, onarın veya kaldırın.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Güncellenen dosyalar</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Eşitleme görevi</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>İndirilen sürümü sil</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Hariç tutulan dosyalar</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Özel süre</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>NAS&apos;ınızın adresini ve kullanıcı hesabınızı girin.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Yüklemeyi değiştir</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Bu klasör salt okunur. Değişiklikler NAS ile eşitlenmez.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Başkasını seç</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Otomatik bağlantı bir sistem hatası nedeniyle başarısız oldu.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Son değişenler</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive hazır.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>NAS depolama alanı dolu</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Eşitleniyor: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Ağustos</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>Bu paylaşılan klasörün depolama kotası doldu.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az önce</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Uyumsuz sürüm</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>%1 konumuna gönder</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Bu ayarları istediğiniz zaman değiştirebilirsiniz.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Yükleme sırasında bir hata oluştu.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Bir NAS ile eşleştir</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>Uygulamaları &amp;kapatma. Yeniden başlatma gerekecek.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Son</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Uygula ve bağlantıyı kopyala</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Eşitlemeyi duraklat</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Klasör ekle</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>NAS&apos;taki ana klasörünüzü bu bilgisayardaki bir Calderix Drive klasörüyle eşitleyin.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Tek yönlü indirme</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Eşitlemek istediğiniz klasörü seçin.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Önceki ay</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Ana klasör hizmeti NAS&apos;ta devre dışı.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Bir ağ hatası oluştu. Lütfen bağlantınızı denetleyin.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Paylaşım bağlantıları, NAS&apos;ta devre dışı olan Ostrel hizmetini gerektirir.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Çift tıklama eylemi</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>İsteğe bağlı eşitlemeyi etkinleştir</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Adı nokta ile başlayan dosyalar</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>NAS paketi, Calderix Drive&apos;ın bu sürümünü desteklemiyor.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Bu bilgisayar artık NAS&apos;ınızla eşleştirildi.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Ara sunucu</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Öğreticiyi kapat</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>%1 paylaşılan klasörü zaten %2 ile eşitleniyor.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Otomatik kurulum başarısız oldu. Lütfen Calderix Drive&apos;ı el ile kurun.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Eşitleme günlüğünü filtrele</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Ocak</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>İzin yok</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Eşitleme klasörleri yükleniyor...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Kurulum bittiğinde ne yapılacağını seçin.</translation>
    </message>
</context>
</TS>
