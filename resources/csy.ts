<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Odkaz pro sdílení</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Konec</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Aplikace Calderix Drive udržuje soubory v tomto počítači synchronizované s vaším zařízením NAS. Kliknutím na tlačítko Začít spárujete tento počítač se zařízením NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Nahrávání</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Maximální počet odkazů pro sdílení: %1.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Soubory větší než %1 MB nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synchronizace na vyžádání</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>Vybranou složku nelze použít jako synchronizovanou složku. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synchronizovat dočasné soubory</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Přenos přes Farrowlink</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Zachovat oba soubory a konfliktní soubor přejmenovat</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Umožňuje změnit způsob instalace funkcí.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Tisk</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Průvodce instalací umožňuje změnit způsob instalace aplikace Calderix Drive v počítači, opravit ji nebo ji odebrat. Pokračujte kliknutím na tlačítko Další, nebo průvodce instalací ukončete kliknutím na tlačítko Zrušit.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 s vámi sdílí složku.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknutím na tlačítko Dokončit ukončete průvodce instalací.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Zvolte jinou místní složku nebo jinou sdílenou složku na zařízení NAS.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Instalace byla dokončena.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Omezit počet přístupů</translation>
    </message>
    <message>
        <source>October</source>
        <translation>říjen</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synchronizace souborů: %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Pro tuto položku nelze vytvořit odkaz pro sdílení.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Podrobnosti adresy serveru</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Odstraněno</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>Směr synchronizace této složky neodpovídá nastavení na zařízení NAS.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>K instalaci aplikace Calderix Drive potřebujete oprávnění správce. Chcete přesto pokračovat?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Tato složka se překrývá s existující synchronizovanou složkou. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Synchronizované složky</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Staženo</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Vaše kvóta úložiště na zařízení NAS je vyčerpána. Uvolněte místo nebo požádejte správce o vyšší kvótu.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>Automatické připojení bylo zrušeno správcem.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>neděle</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Nastavení...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Instalace aplikace Calderix Drive byla předčasně ukončena</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Neplatný parametr.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Následující aplikace používají soubory, které musí instalační program aktualizovat. Můžete je zavřít a kliknout na tlačítko Opakovat, nebo kliknutím na tlačítko Ignorovat přesto pokračovat.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Tato složka se indexuje.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>listopad</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Historie stahování</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Sloučit soubory z obou stran</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Zobrazit návod</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Změnit synchronizovanou složku</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Obousměrná synchronizace</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Změnit složku</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>O aplikaci Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Soubory vyloučené ze synchronizace</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Použít systémové nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Zvolte, jak chcete aplikaci Calderix Drive nastavit.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Začít</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Na disku této složky není dostatek volného místa. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disk je plný</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Režim synchronizace</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Klíčové slovo</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Změny provedené jinými počítači na síťové jednotce nemusí být zjištěny okamžitě.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Zadejte uživatelské jméno.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Kontrola uživatelského jména a hesla...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Sdílená složka</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Vaše kvóta úložiště na zařízení NAS je vyčerpána. Před synchronizací této složky uvolněte místo.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Server vrátil neočekávanou odpověď.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Místní síť</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizace...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Maximální počet znaků: %1.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>pondělí</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Začněte spárováním tohoto počítače se zařízením NAS.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Změnit složku</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Složky, u kterých zrušíte výběr, budou odebrány z tohoto počítače, ale zůstanou na zařízení NAS. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Otevřít Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektivní synchronizace</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Dokončeno</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Popis</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximální velikost souboru</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Tato verze aplikace Calderix Drive je pro zařízení NAS příliš stará. Proveďte upgrade aplikace Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Připojení je nestabilní</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Pokročilé nastavení</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Zastavit stahování verze</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 s vámi sdílí složku %2.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Přejmenováno</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Složka není prázdná</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Zavřít aplikace a pokusit se je restartovat.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalendář</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Uchovat konfliktní soubory v samostatné složce</translation>
    </message>
    <message>
        <source>July</source>
        <translation>červenec</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 je přípojný bod a nelze jej použít jako synchronizovanou složku.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Další stránky (%1)</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Nejsou k dispozici žádné záznamy.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synchronizační úlohy</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Opravdu chcete odpojit tuto synchronizační úlohu? Soubory v tomto počítači i na zařízení NAS zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Instalace aplikace Calderix Drive byla kvůli chybě předčasně ukončena. Systém nebyl změněn. Chcete-li tento program nainstalovat později, spusťte znovu průvodce instalací.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Zabezpečené připojení k zařízení NAS nelze navázat.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Směr synchronizace</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problém se synchronizací</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Nahráno</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>Připojení k zařízení NAS bylo ztraceno.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>Zařízení NAS se změnilo</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Soubory v tomto počítači, které jsou v konfliktu se soubory na zařízení NAS, budou přejmenovány a zachovány.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Získat odkaz pro sdílení</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Neshoda verzí</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Stažení %1 se nezdařilo.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Disk tohoto počítače je plný.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Chcete-li používat selektivní synchronizaci, aktualizujte balíček na zařízení NAS.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Uživatelské jméno nebo heslo není správné.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Tato synchronizovaná složka patří jinému zařízení NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Zobrazovat ikony stavu synchronizace u souborů a složek</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>Instalace byla přerušena.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>Složka %1 není prázdná.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Dokončování nastavení...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Synchronizaci na vyžádání nelze zapnout.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Stahování bylo zastaveno.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Pro %1 bude vytvořena nová synchronizační úloha.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Obnovit synchronizaci těchto složek</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Vše je připraveno k opravě aplikace Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Synchronizovat s novým zařízením NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Certifikát zařízení NAS nelze ověřit.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>ID připojení není platné.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Je k dispozici novější verze aplikace Calderix Drive. Provést upgrade nyní?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>Certifikát zařízení NAS se změnil.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Klikněte pravým tlačítkem myši na soubor v synchronizované složce a získejte odkaz pro sdílení.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>Složka není prázdná. Chcete sloučit její obsah se složkou na zařízení NAS?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Další podrobnosti</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Vyberte operaci, kterou chcete provést.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Vaše soubory všude.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Licenční smlouva s koncovým uživatelem</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odpojit</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Některé soubory, které je třeba aktualizovat, se právě používají.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>Klíč nastavení již byl nakonfigurován.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Výchozí nastavení systému</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Opravit instalaci</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>K dispozici od</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Přepsat soubor v tomto počítači</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Zadejte adresu a port proxy serveru.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>Vybraná složka je jen pro čtení. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Přenosová připojení jsou na zařízení NAS zakázána.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Probíhá upgrade...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Opravit</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>Certifikát zařízení NAS se od poslední synchronizace této složky změnil.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Vytvořit složku Calderix Drive</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Zobrazovat ikony u souborů, které se nesynchronizují</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Pokročilá nastavení</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Omezit přístup</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zpět</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Rozsah dat</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Místní synchronizovanou složku %1 nelze najít.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Procházet předchozí verze</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Zjišťování připojení...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Průvodce pokročilým nastavením</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Soubory, které vložíte do synchronizované složky, jsou udržovány aktuální na zařízení NAS i ve všech vašich počítačích.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Odkaz pro sdílení nelze odstranit.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Odebrat</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresa serveru</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Instalace aplikace Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>čtvrtek</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>úterý</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Připojeno k jinému zařízení NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Sdílení souborů</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Změnit</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Místní složku nelze vytvořit.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Zabezpečené připojení (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Instalace aplikace Calderix Drive byla přerušena. Systém nebyl změněn. Chcete-li tento program nainstalovat později, spusťte znovu průvodce instalací.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Upravit připojení</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Další &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Tuto položku nelze stáhnout.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Místní databázi nelze otevřít.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Použít na všechny podsložky</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Nesynchronizovat tyto složky</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>Stahování %1 bylo dokončeno.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nedávno aktualizované soubory</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Duplicitní synchronizační úloha</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>Zařízení NAS vyžaduje pro váš účet dvoustupňové ověření.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Chcete odstranit tento odkaz pro sdílení?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Aplikace Calderix Drive již běží.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Upozornění zabezpečení</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Otevřít stav synchronizace</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Tuto systémovou složku nelze použít jako synchronizovanou složku.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Nesynchronizovat tuto složku</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Kliknutím na ikonu Calderix Drive na řádku nabídek zobrazíte stav synchronizace a můžete změnit nastavení.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Připojení bylo úspěšně navázáno.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>pátek</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>Certifikát zařízení NAS nelze ověřit. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Tento soubor nepatří k žádnému připojení.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Přístup odkudkoli</translation>
    </message>
    <message>
        <source>December</source>
        <translation>prosinec</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxy server vyžaduje heslo</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Synchronizovaná složka na zařízení NAS</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Sami zvolte sdílenou složku, místní složku a možnosti synchronizace.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Soubory s těmito názvy nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Vítá vás průvodce instalací aplikace Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Některá pole obsahují neplatné hodnoty.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Probíhá použití nastavení...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Soubory</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Opravdu chcete zrušit instalaci aplikace Calderix Drive?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Průvodce instalací nainstaluje aplikaci Calderix Drive do vašeho počítače. Pokračujte kliknutím na tlačítko Další, nebo průvodce instalací ukončete kliknutím na tlačítko Zrušit.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Přípojný bod není podporován</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Zobrazit ve složce</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Přehled zařízení NAS</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Souhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Stav aplikace Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Synchronizujte své soubory</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Tato verze aplikace Calderix Drive je již nainstalována.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Odebrat aplikaci Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>září</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Před %1 min</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Synchronizace je pozastavena</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Kdokoli s odkazem může soubor otevřít ve webovém prohlížeči.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Váš účet na zařízení NAS byl zakázán.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorovat</translation>
    </message>
    <message>
        <source>May</source>
        <translation>květen</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Odebrat instalaci</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Upgrade aplikace Calderix Drive se nezdařil.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Informace o uživateli nelze ze zařízení NAS načíst.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Typ připojení</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Vše je připraveno k instalaci aplikace Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Přesto pokračovat</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Složky</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vyberte složku</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Selektivní synchronizace složek</translation>
    </message>
    <message>
        <source>February</source>
        <translation>únor</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Instalace aplikace Calderix Drive byla přerušena</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Platnost vašeho hesla vypršela. Změňte ho na zařízení NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Zadejte ověřovací kód</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Uživatelské jméno nebo heslo pro proxy server není správné.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Platnost do</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Vaše soubory se nyní synchronizují se zařízením NAS.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Odkazy pro sdílení nejsou při připojení přes Farrowlink k dispozici.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Zobrazovat Calderix Drive v místní nabídce</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Služba Ostrel je na zařízení NAS zakázána. Požádejte správce o její povolení.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Některé soubory nelze synchronizovat.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Spouštění aplikace Calderix Drive...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Před %1 h</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Zvolte, kterou složku na zařízení NAS chcete synchronizovat a kam ji v tomto počítači uložit.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Používat černobílou ikonu na řádku nabídek</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Neaktivní</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Tato sdílená složka je již synchronizována s jinou složkou.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Otevírejte synchronizované soubory z libovolného počítače spárovaného se zařízením NAS.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Odkaz na soubor nelze získat.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez proxy serveru</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizace</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Toto pole nemůže být prázdné.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opakovat</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minulý týden</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Zjišťování změn...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Rozumím</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Vítá vás Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Vzdálený cíl</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Složka jen pro čtení</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Změnit, opravit nebo odebrat instalaci</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nová synchronizovaná složka</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Tento počítač</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Načítání seznamu složek...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Následující aplikace používají soubory, které musí tato instalace aktualizovat. Zavřete tyto aplikace a pokračujte kliknutím na tlačítko Opakovat.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sobota</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Připojit přes Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Soubor se stejným názvem již existuje.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Vytvořte novou složku pro synchronizaci se zařízením NAS.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>Certifikát zařízení NAS se změnil. Důvěřujete novému certifikátu?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Verze tohoto souboru nelze vypsat.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Přidat název souboru</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identifikátor</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Stahování %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Příliš mnoho neúspěšných pokusů. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>duben</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Sdílení zapnuto</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Počítač</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Služba Ostrel je zakázána</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Všechny soubory jsou aktuální</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Vše je připraveno</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>Svazek synchronizované složky %1 není připojen.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Tato složka je již synchronizována se stejnou sdílenou složkou na zařízení NAS.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Sdílená složka chybí</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Kliknutím aktualizujete aplikaci Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Používat zabezpečené připojení (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otevřít soubor</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Instalační program je připraven zahájit instalaci.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Když se stejný soubor změní na obou stranách:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Opravit opravíte instalaci aplikace Calderix Drive. Kliknutím na tlačítko Zpět můžete zkontrolovat nebo změnit nastavení instalace. Kliknutím na tlačítko Zrušit průvodce ukončíte.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Přidat synchronizační úlohu</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Příprava</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizace...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Tato verze aplikace Calderix Drive není zařízením NAS podporována. Proveďte upgrade aplikace Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Zapnout synchronizaci</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>K přístupu k této složce nemáte oprávnění.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>Složka %1 je jen pro čtení.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Provést upgrade aplikace Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Ověřovací kód není správný.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Vaše soubory zůstanou dostupné, i když je tento počítač offline.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrola dat...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Kategorie protokolu</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Spustit aplikaci Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>Upgrade se nezdařil.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synchronizovaná složka</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Režim selektivní synchronizace</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Znovu připojit</translation>
    </message>
    <message>
        <source>March</source>
        <translation>březen</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Přihlášení se nezdařilo</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Používané soubory</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Všechny události</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verze %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Přejmenováno v tomto počítači</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Není k dispozici žádná složka, kterou lze synchronizovat.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synchronizovaná složka</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Jednosměrná synchronizace (pouze stahování)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Vyberte sdílenou složku na zařízení NAS, kterou chcete synchronizovat.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Vyhledat zařízení NAS v místní síti</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Odebrat odeberete aplikaci Calderix Drive z počítače. Kliknutím na tlačítko Zpět můžete zkontrolovat nebo změnit nastavení instalace. Kliknutím na tlačítko Zrušit průvodce ukončíte.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ruční konfigurace proxy serveru</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>Sdílená složka již na zařízení NAS neexistuje.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Tuto zprávu již nezobrazovat</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Mějte přehled</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Přímé připojení</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Předchozí stránky (%1)</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Další tipy</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Připojování k %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Zadejte číslo portu od 1 do 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Selektivní synchronizace souborů</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kvóta je vyčerpána</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Vlastní rozsah</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Otevřít složku Calderix Drive</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>Sdílená složka není na zařízení NAS připojena.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Instalovat zahájíte instalaci. Kliknutím na tlačítko Zpět můžete zkontrolovat nebo změnit nastavení instalace. Kliknutím na tlačítko Zrušit průvodce ukončíte.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>Vzdálená složka není dostupná, protože její svazek není připojen.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Instalační program je připraven nainstalovat aplikaci Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Zamčeno</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Rychlé nastavení</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Vypnutím synchronizace této složky ji odeberete ze seznamu synchronizace. Soubory zůstanou na zařízení NAS i v tomto počítači. Pokračovat?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Obnovit synchronizaci této složky</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Odstranit odkaz</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Zrušit instalaci</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Synchronizační úloha pro tuto složku již existuje.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Tato složka byla synchronizována jiným uživatelským účtem.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nebyla změněna žádná nastavení.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Přihlášení se nezdařilo. Zkontrolujte uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Soubory odpovídající těmto filtrům nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Na zařízení NAS není dostatek volného místa.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Pouze stahování</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Odpojování...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Obnovit synchronizaci</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Dokončení průvodce instalací aplikace Calderix Drive</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Nastavit synchronizovanou složku</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalovat</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Návod</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Platnost vyprší po počtu přístupů: %1</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Obsah obou složek bude sloučen.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Počkejte, než průvodce instalací nainstaluje aplikaci Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Další měsíc</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Stahování</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>K provedení této operace nemáte oprávnění.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Opraví chyby v poslední instalaci obnovením chybějících a poškozených souborů, zástupců a položek registru.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Synchronizaci této složky nelze zapnout.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Žádná předchozí verze tohoto souboru není k dispozici.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Aktualizovat protokol synchronizace</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Kliknutím na tlačítko Odebrat odeberete aplikaci Calderix Drive z počítače.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Odebere aplikaci Calderix Drive z počítače.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Opravit aplikaci Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Režim nastavení</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Přípona souboru</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Položky: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nejsou k dispozici žádné možnosti</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Síť</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Synchronizujte a sdílejte soubory pomocí zařízení NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Přístup odepřen</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Přejmenováno na zařízení NAS</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Počkejte, než průvodce instalací nainstaluje aplikaci Calderix Drive. Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Spouštět Calderix Drive po přihlášení</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Tento průvodce vás provede instalací.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ souboru</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Zachovat naposledy změněný soubor</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Tento počítač je již s tímto zařízením NAS spárován.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Pečlivě si přečtěte následující licenční smlouvu.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Aplikaci Calderix Drive se nepodařilo spustit.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>Balíček na zařízení NAS je pro tuto verzi aplikace Calderix Drive příliš starý. Aktualizujte balíček na zařízení NAS.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nové sdílení</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Zadejte ověřovací kód.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>a další (%1)</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetovat</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>Nový jazyk se použije po restartování aplikace Calderix Drive.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Probíhá inicializace aplikace Calderix Drive...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Informace o spárování</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Opravdu se chcete odpojit od %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>červen</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Aplikace Calderix Drive byla úspěšně nainstalována.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Došlo k neznámé chybě.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Nesouhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>V pohotovosti</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Prohledat místní síť</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>V tomto počítači není dostatek volného místa.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Způsob synchronizace</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historie</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Místní synchronizovaná složka</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Rozhodli jste se odebrat program ze systému.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Aplikace Calderix Drive nemá žádné samostatné funkce, které by bylo možné změnit.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Není potřeba</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Aplikace Calderix Drive nyní začne synchronizovat vaše soubory se zařízením NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Změny nebyly uloženy. Chcete je uložit?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Změnit jazyk</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Místní cíl</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Připojení z této IP adresy jsou zařízením NAS blokována.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Je již nainstalována novější verze aplikace Calderix Drive.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>středa</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Stáhnout předchozí verzi</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Při kontrole synchronizované složky došlo k chybě sítě. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Chyba certifikátu</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Před %1 dny</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Kliknutím na tlačítko Opravit opravíte aplikaci Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Změňte, opravte nebo odeberte aplikaci Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Aktualizované soubory</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synchronizační úloha</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Odstranit staženou verzi</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Vyloučené soubory</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Vlastní doba platnosti</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Zadejte adresu zařízení NAS a svůj uživatelský účet.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Změnit instalaci</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Tato složka je jen pro čtení. Změny se nesynchronizují do zařízení NAS.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Vybrat jinou</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Automatické připojení se kvůli systémové chybě nezdařilo.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Nedávno změněné</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Aplikace Calderix Drive je připravena.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>Úložiště zařízení NAS je plné</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronizace: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>srpen</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>Kvóta úložiště této sdílené složky je vyčerpána.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Právě teď</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Nekompatibilní verze</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Odeslat do: %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Tato nastavení můžete kdykoli změnit.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Během instalace došlo k chybě.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Spárovat se zařízením NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>&amp;Nezavírat aplikace. Bude nutné restartovat počítač.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Dokončit</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Použít a zkopírovat odkaz</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Pozastavit synchronizaci</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Přidat složku</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Synchronizujte domovskou složku na zařízení NAS se složkou Calderix Drive v tomto počítači.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Odebrat</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Jednosměrné stahování</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Vyberte složku, kterou chcete synchronizovat.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Předchozí měsíc</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Služba domovských složek je na zařízení NAS zakázána.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Došlo k chybě sítě. Zkontrolujte připojení.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Minulý měsíc</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Odkazy pro sdílení vyžadují službu Ostrel, která je na zařízení NAS zakázána.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Akce po poklikání</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Zapnout synchronizaci na vyžádání</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Soubory, jejichž názvy začínají tečkou</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>Balíček na zařízení NAS nepodporuje tuto verzi aplikace Calderix Drive.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Tento počítač je nyní spárován s vaším zařízením NAS.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxy server</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Zavřít návod</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>Sdílená složka %1 je již synchronizována s %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Automatické nastavení se nezdařilo. Nastavte aplikaci Calderix Drive ručně.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Filtrovat protokol synchronizace</translation>
    </message>
    <message>
        <source>January</source>
        <translation>leden</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Bez oprávnění</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Načítání synchronizovaných složek...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Zvolte, co se má stát po dokončení nastavení.</translation>
    </message>
</context>
</TS>
