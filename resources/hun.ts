<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Megosztási hivatkozás</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Kilépés</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>A Calderix Drive szinkronban tartja a számítógépen lévő fájlokat a NAS-sel. A számítógép és a NAS párosításához kattintson a Kezdés most gombra.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Feltöltés</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Legfeljebb %1 megosztási hivatkozás hozható létre.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>%1 MB-nál nagyobb fájlok nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Igény szerinti szinkronizálás</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>A kijelölt mappa nem használható szinkronizált mappaként. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Ideiglenes fájlok szinkronizálása</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink-továbbítás</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Mindkét fájl megtartása és az ütköző fájl átnevezése</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lehetővé teszi a szolgáltatások telepítési módjának módosítását.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Nyomtatás</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>A telepítővarázslóval módosíthatja a Calderix Drive telepítésének módját a számítógépen, kijavíthatja vagy eltávolíthatja azt. A folytatáshoz kattintson a Tovább gombra, a telepítővarázslóból való kilépéshez pedig a Mégse gombra.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 megosztott Önnel egy mappát.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>A telepítővarázslóból való kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Válasszon másik helyi mappát vagy másik megosztott mappát a NAS-en.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>A telepítés befejeződött.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Eddig</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Hozzáférések számának korlátozása</translation>
    </message>
    <message>
        <source>October</source>
        <translation>október</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 fájl szinkronizálása</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Ehhez az elemhez nem hozható létre megosztási hivatkozás.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Kiszolgálócím részletei</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Törölve</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>A mappa szinkronizálási iránya nem egyezik a NAS-en megadott beállítással.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>A Calderix Drive telepítéséhez rendszergazdai jogosultság szükséges. Ennek ellenére folytatja?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Ez a mappa átfedésben van egy meglévő szinkronizált mappával. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Szinkronizált mappák</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Csak olvasható</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Letöltve</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Betelt a tárhelykvótája a NAS-en. Szabadítson fel helyet, vagy kérjen nagyobb kvótát a rendszergazdától.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>Az automatikus kapcsolódást a rendszergazda megszakította.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>vasárnap</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Beállítások...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>A Calderix Drive telepítése idő előtt befejeződött</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Érvénytelen paraméter.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>A következő alkalmazások olyan fájlokat használnak, amelyeket a telepítőnek frissítenie kell. Bezárhatja őket, és az Újra gombra kattinthat, vagy a Kihagyás gombra kattintva mégis folytathatja.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>A mappa indexelése folyamatban van.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Letöltési előzmények</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Fájlok egyesítése mindkét oldalról</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Útmutató megjelenítése</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Szinkronizált mappa módosítása</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Kétirányú szinkronizálás</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Mappa módosítása</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>A Calderix Drive névjegye</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Szinkronizálásból kizárt fájlok</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Válassza ki a Calderix Drive beállításának módját.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Kezdés most</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Nincs elég szabad hely a mappát tartalmazó lemezen. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>A lemez megtelt</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Szinkronizálási mód</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Kulcsszó</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Előfordulhat, hogy a más számítógépek által egy hálózati meghajtón végzett módosítások nem észlelhetők azonnal.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Adja meg a felhasználónevet.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>A felhasználónév és a jelszó ellenőrzése...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Megosztott mappa</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Betelt a tárhelykvótája a NAS-en. A mappa szinkronizálása előtt szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>A kiszolgáló váratlan választ adott.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Helyi hálózat</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Szinkronizálás...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Legfeljebb %1 karaktert adjon meg.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>hétfő</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Üdvözöljük</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>A kezdéshez párosítsa a számítógépet a NAS-sel.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Mappa módosítása</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>A kijelölésből eltávolított mappák törlődnek erről a számítógépről, de megmaradnak a NAS-en. Folytatja?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>A Calderix Drive megnyitása</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Befejezve</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Leírás</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximális fájlméret</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>A Calderix Drive ezen verziója túl régi a NAS-hez. Frissítse a Calderix Drive-ot.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>A kapcsolat instabil</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Speciális beállítás</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Verzió letöltésének leállítása</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cél</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 megosztotta Önnel a(z) %2 mappát.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Átnevezve</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>A mappa nem üres</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>Az alkalmazások &amp;bezárása és újraindításuk megkísérlése.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Naptár</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Ütköző fájlok megtartása külön mappában</translation>
    </message>
    <message>
        <source>July</source>
        <translation>július</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>A(z) %1 csatlakozási pont, ezért nem használható szinkronizált mappaként.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Következő %1 oldal</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Nincs megjeleníthető bejegyzés.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A kapcsolat tesztelése...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Biztosan leválasztja ezt a szinkronizálási feladatot? A fájlok ezen a számítógépen és a NAS-en is megmaradnak.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kapcsolódás...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>A Calderix Drive telepítése hiba miatt idő előtt befejeződött. A rendszer nem módosult. Ha később szeretné telepíteni a programot, futtassa újra a telepítővarázslót.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Nem sikerült biztonságos kapcsolatot létesíteni a NAS-sel.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Szinkronizálás iránya</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Szinkronizálási probléma</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Feltöltve</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>Megszakadt a kapcsolat a NAS-sel.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>A NAS megváltozott</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>A számítógépen lévő, a NAS-en lévő fájlokkal ütköző fájlok át lesznek nevezve és megmaradnak.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Megosztási hivatkozás kérése</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Verzióeltérés</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Nem sikerült letölteni: %1.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>A számítógép lemeze megtelt.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>A szelektív szinkronizálás használatához frissítse a NAS-csomagot.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>A felhasználónév vagy a jelszó helytelen.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Ez a szinkronizált mappa egy másik NAS-hez tartozik.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Szinkronizálási állapotikonok megjelenítése a fájlokon és mappákon</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>A telepítés megszakadt.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>A(z) %1 mappa nem üres.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>A beállítás befejezése...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Szűrő</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Nem sikerült engedélyezni az igény szerinti szinkronizálást.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>A letöltés leállt.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Új szinkronizálási feladat jön létre a következőhöz: %1.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Ezen mappák szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Készen áll a Calderix Drive javítására</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Szinkronizálás új NAS-sel</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Nem sikerült ellenőrizni a NAS tanúsítványát.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>A kapcsolatazonosító érvénytelen.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Elérhető a Calderix Drive újabb verziója. Frissíti most?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>A NAS tanúsítványa megváltozott.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Megosztási hivatkozás kéréséhez kattintson a jobb gombbal egy fájlra a szinkronizált mappában.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>A mappa nem üres. Egyesíti a tartalmát a NAS-en lévő mappával?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>További részletek</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Újrapróbálkozás</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Válassza ki a végrehajtandó műveletet.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>A fájljai mindenhol.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Végfelhasználói licencszerződés</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
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
        <translation>Néhány frissítendő fájl jelenleg használatban van.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>A beállítókulcs már konfigurálva van.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Rendszer alapértelmezése</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>A telepítés javítása</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Elérhetőség kezdete</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>A fájl felülírása ezen a számítógépen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Adja meg a proxykiszolgáló címét és portját.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>A kijelölt mappa csak olvasható. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>A továbbított kapcsolatok le vannak tiltva a NAS-en.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Frissítés folyamatban...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Javítás</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>A NAS tanúsítványa megváltozott a mappa legutóbbi szinkronizálása óta.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Calderix Drive mappa létrehozása</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Ikonok megjelenítése a nem szinkronizált fájlokon</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Hozzáférés korlátozása</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Vissza</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Dátumtartomány</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>A(z) %1 helyi szinkronizált mappa nem található.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Korábbi verziók böngészése</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>A kapcsolat észlelése...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Speciális beállítási varázsló</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>A szinkronizált mappába helyezett fájlok naprakészek maradnak a NAS-en és az összes számítógépén.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Nem sikerült törölni a megosztási hivatkozást.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Kiszolgálócím</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>A Calderix Drive telepítése</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>csütörtök</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciók</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>kedd</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Másik NAS-hez csatlakozik</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Fájlok megosztása</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Módosítás</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Nem sikerült létrehozni a helyi mappát.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Biztonságos kapcsolat (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Letiltva</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>A Calderix Drive telepítése megszakadt. A rendszer nem módosult. Ha később szeretné telepíteni a programot, futtassa újra a telepítővarázslót.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Kapcsolat szerkesztése</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Tovább &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Ez az elem nem tölthető le.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Nem sikerült megnyitni a helyi adatbázist.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Alkalmazás minden almappára</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Ezen mappák kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>A letöltés befejeződött: %1.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nemrég frissített fájlok</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Ismétlődő szinkronizálási feladat</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>A NAS kétlépéses azonosítást ír elő a fiókjához.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Engedélyezve</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Törli ezt a megosztási hivatkozást?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>A Calderix Drive már fut.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Biztonsági figyelmeztetés</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Szinkronizálási állapot megnyitása</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Ez a rendszermappa nem használható szinkronizált mappaként.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>A mappa kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>A szinkronizálási állapot megtekintéséhez és a beállítások módosításához kattintson a menüsoron a Calderix Drive ikonjára.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>A kapcsolat sikeresen létrejött.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>péntek</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>Nem sikerült ellenőrizni a NAS tanúsítványát. Folytatja?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Ez a fájl egyetlen kapcsolathoz sem tartozik.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Elérés bárhonnan</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>A proxykiszolgáló jelszót kér</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Szinkronizált mappa a NAS-en</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Válassza ki Ön a megosztott mappát, a helyi mappát és a szinkronizálási beállításokat.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Az ilyen nevű fájlok nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Üdvözli a Calderix Drive telepítővarázslója</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Egyes mezők érvénytelen értéket tartalmaznak.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fájlok</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Biztosan megszakítja a Calderix Drive telepítését?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>A telepítővarázsló telepíti a Calderix Drive-ot a számítógépre. A folytatáshoz kattintson a Tovább gombra, a telepítővarázslóból való kilépéshez pedig a Mégse gombra.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>A csatlakozási pont nem támogatott</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Megjelenítés a mappában</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappanév</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-áttekintés</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Elfogadom a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>A Calderix Drive állapota</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Fájlok szinkronizálása</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>A Calderix Drive ezen verziója már telepítve van.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>A Calderix Drive eltávolítása</translation>
    </message>
    <message>
        <source>September</source>
        <translation>szeptember</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 perce</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>A szinkronizálás szünetel</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>A hivatkozás birtokában bárki megnyithatja a fájlt egy webböngészőben.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>A fiókja le van tiltva a NAS-en.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Kihagyás</translation>
    </message>
    <message>
        <source>May</source>
        <translation>május</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>A telepítés eltávolítása</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Nem sikerült frissíteni a Calderix Drive-ot.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Nem sikerült lekérni a felhasználói adatokat a NAS-ről.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Kapcsolat típusa</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Készen áll a Calderix Drive telepítésére</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Folytatás mindenképp</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappák</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Mappa kiválasztása</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Mappák szelektív szinkronizálása</translation>
    </message>
    <message>
        <source>February</source>
        <translation>február</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>A Calderix Drive telepítése megszakadt</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>A jelszava lejárt. Módosítsa a NAS-en.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Adja meg az ellenőrző kódot</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>A proxykiszolgálóhoz megadott felhasználónév vagy jelszó helytelen.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Lejárat</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>A fájlok mostantól szinkronban vannak a NAS-sel.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>A megosztási hivatkozások nem érhetők el Farrowlink-kapcsolaton keresztül.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>A Calderix Drive megjelenítése a helyi menüben</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Az Ostrel szolgáltatás le van tiltva a NAS-en. Kérje meg a rendszergazdát, hogy engedélyezze.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Néhány fájlt nem sikerült szinkronizálni.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>A Calderix Drive indítása...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 órája</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Válassza ki, melyik NAS-mappát szeretné szinkronizálni, és hová kerüljön ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Fekete-fehér menüsor-ikon használata</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Előrehaladás</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktív</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Ez a megosztott mappa már egy másik mappával van szinkronizálva.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>A szinkronizált fájlokat a NAS-sel párosított bármely számítógépről megnyithatja.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Nem sikerült lekérni a fájl hivatkozását.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nincs proxy</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Szinkronizálás</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Ez a mező nem lehet üres.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>Ú&amp;jra</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Múlt hét</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Változások keresése...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Értem</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Üdvözli a Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Távoli cél</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Csak olvasható mappa</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>A telepítés módosítása, javítása vagy eltávolítása</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Új szinkronizált mappa</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ez a számítógép</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>A mappalista betöltése...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>A következő alkalmazások olyan fájlokat használnak, amelyeket ennek a telepítésnek frissítenie kell. Zárja be ezeket az alkalmazásokat, majd a folytatáshoz kattintson az Újra gombra.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>szombat</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Kapcsolódás a Farrowlink szolgáltatáson keresztül</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Már létezik ilyen nevű fájl.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Hozzon létre egy új mappát a NAS-sel való szinkronizáláshoz.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>A NAS tanúsítványa megváltozott. Megbízik az új tanúsítványban?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Nem sikerült listázni a fájl verzióit.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Fájlnév hozzáadása</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 letöltése...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Túl sok sikertelen próbálkozás. Próbálkozzon újra később.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>április</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Megosztás engedélyezve</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Számítógép</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Az Ostrel le van tiltva</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Minden fájl naprakész</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Minden kész</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>A(z) %1 szinkronizált mappa kötete nincs csatlakoztatva.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Ez a mappa már szinkronizálva van ugyanazzal a megosztott mappával a NAS-en.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Hiányzó megosztott mappa</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Kattintson ide a Calderix Drive frissítéséhez</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Biztonságos kapcsolat (SSL) használata</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Fájl megnyitása</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>A telepítő készen áll a telepítés megkezdésére.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Ha ugyanaz a fájl mindkét oldalon módosult:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A Calderix Drive telepítésének javításához kattintson a Javítás gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Szinkronizálási feladat hozzáadása</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Előkészítés</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Frissítés...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>A NAS nem támogatja a Calderix Drive ezen verzióját. Frissítse a Calderix Drive-ot.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Szinkronizálás engedélyezése</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Nincs engedélye a mappához való hozzáféréshez.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>A(z) %1 mappa csak olvasható.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>A Calderix Drive frissítése</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Az ellenőrző kód helytelen.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>A fájljai akkor is elérhetők maradnak, ha ez a számítógép offline állapotban van.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Adatok ellenőrzése...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Naplókategória</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>A Calderix Drive indítása</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Igen</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>A frissítés nem sikerült.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Szinkronizált mappa</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Szelektív szinkronizálási mód</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Proxybeállítások</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Újracsatlakozás</translation>
    </message>
    <message>
        <source>March</source>
        <translation>március</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Sikertelen bejelentkezés</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Minden esemény</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verzió: %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Átnevezve ezen a számítógépen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Nincs szinkronizálható mappa.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Szinkronizált mappa</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Egyirányú szinkronizálás (csak letöltés)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Válassza ki a NAS-en azt a megosztott mappát, amelyet szinkronizálni szeretne.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>NAS-eszközök keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A Calderix Drive számítógépről való eltávolításához kattintson az Eltávolítás gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Kézi proxykonfiguráció</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>A megosztott mappa már nem létezik a NAS-en.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne jelenjen meg többé ez az üzenet</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Maradjon naprakész</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Közvetlen kapcsolat</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Előző %1 oldal</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>További tippek</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Kapcsolódás a következőhöz: %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Adjon meg egy 1 és 65535 közötti portszámot.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Fájlok szelektív szinkronizálása</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>A kvóta betelt</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Egyéni tartomány</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>A Calderix Drive mappa megnyitása</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>A megosztott mappa nincs csatlakoztatva a NAS-en.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A telepítés megkezdéséhez kattintson a Telepítés gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>A távoli mappa nem érhető el, mert a kötete nincs csatlakoztatva.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>A telepítő készen áll a Calderix Drive telepítésére.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Zárolva</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Gyors beállítás</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>A mappa szinkronizálásának kikapcsolása eltávolítja azt a szinkronizálási listáról. A fájlok megmaradnak a NAS-en és ezen a számítógépen. Folytatja?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>A mappa szinkronizálásának folytatása</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Hivatkozás törlése</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>A telepítés megszakítása</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Ehhez a mappához már létezik szinkronizálási feladat.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Ezt a mappát egy másik felhasználói fiók szinkronizálta.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Egyetlen beállítás sem módosult.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nem</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>A bejelentkezés nem sikerült. Ellenőrizze a felhasználónevet és a jelszót.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>A szűrőknek megfelelő fájlok nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Nincs elég szabad hely a NAS-en.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Leválasztás...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Szinkronizálás folytatása</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>A Calderix Drive telepítővarázslója befejeződött</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Szinkronizált mappa beállítása</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Telepítés</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Útmutató</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Lejár %1 hozzáférés után</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>A két mappa tartalma egyesítve lesz.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Várjon, amíg a telepítővarázsló telepíti a Calderix Drive-ot.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Következő hónap</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Letöltés</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Nincs engedélye a művelet végrehajtásához.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Kijavítja a legutóbbi telepítés hibáit a hiányzó és sérült fájlok, parancsikonok és beállításjegyzék-bejegyzések helyreállításával.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Nem sikerült engedélyezni a szinkronizálást ehhez a mappához.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>A fájlnak nincs elérhető korábbi verziója.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>A szinkronizálási napló frissítése</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>A Calderix Drive számítógépről való eltávolításához kattintson az Eltávolítás gombra.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Eltávolítja a Calderix Drive-ot a számítógépről.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>A Calderix Drive javítása</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Beállítási mód</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Fájlkiterjesztés</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elem</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nincsenek elérhető lehetőségek</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Hálózat</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Szinkronizálja és ossza meg fájljait a NAS-sel.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Hozzáférés megtagadva</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Ettől</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Átnevezve a NAS-en</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Várjon, amíg a telepítővarázsló telepíti a Calderix Drive-ot. Ez több percig is eltarthat.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>A Calderix Drive indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Ez a varázsló végigvezeti a telepítésen.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Fájltípus</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>A legutóbb módosított fájl megtartása</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Ez a számítógép már párosítva van ezzel a NAS-sel.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Figyelmesen olvassa el az alábbi licencszerződést.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>A Calderix Drive nem indítható el.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>A NAS-csomag túl régi a Calderix Drive ezen verziójához. Frissítse a csomagot a NAS-en.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Új megosztás</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Adja meg az ellenőrző kódot.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>és még %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Alaphelyzet</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>Az új nyelv a Calderix Drive újraindítása után lép életbe.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>A Calderix Drive inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Párosítási adatok</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Biztosan megszünteti a kapcsolatot a következővel: %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>június</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>A Calderix Drive telepítése sikeresen befejeződött.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ismeretlen hiba történt.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Nem fogadom el a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Keresés a helyi hálózaton</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Nincs elég szabad hely ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Szinkronizálás módja</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Előzmények</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Helyi szinkronizált mappa</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Ön a program eltávolítását választotta a rendszerről.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>A Calderix Drive nem rendelkezik módosítható önálló szolgáltatásokkal.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Nem szükséges</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>A Calderix Drive most elkezdi szinkronizálni a fájlokat a NAS-sel.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>A módosítások nincsenek mentve. Menti őket?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Nyelv módosítása</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Helyi cél</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>A NAS letiltja az erről az IP-címről érkező kapcsolatokat.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>A Calderix Drive egy újabb verziója már telepítve van.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Állapot:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>szerda</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Korábbi verzió letöltése</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Frissítés</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Hálózati hiba történt a szinkronizált mappa ellenőrzésekor. Próbálkozzon újra.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Tanúsítványhiba</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 napja</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>A Calderix Drive javításához kattintson a Javítás gombra.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>A Calderix Drive módosítása, javítása vagy eltávolítása.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Frissített fájlok</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Szinkronizálási feladat</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>A letöltött verzió törlése</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Kizárt fájlok</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Egyéni időtartam</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Adja meg a NAS címét és a felhasználói fiókját.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>A telepítés módosítása</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Ez a mappa csak olvasható. A módosítások nem szinkronizálódnak a NAS-re.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Másik választása</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Az automatikus kapcsolódás rendszerhiba miatt nem sikerült.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Legutóbbi módosítások</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>A Calderix Drive használatra kész.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>A NAS tárhelye megtelt</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Szinkronizálás: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusztus</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>A megosztott mappa tárhelykvótája betelt.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az imént</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Nem kompatibilis verzió</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Küldés ide: %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Ezeket a beállításokat bármikor módosíthatja.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Hiba történt a telepítés során.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Párosítás NAS-sel</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>&amp;Ne zárja be az alkalmazásokat. Újraindításra lesz szükség.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Befejezés</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Alkalmazás és hivatkozás másolása</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Szinkronizálás szüneteltetése</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Mappa hozzáadása</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>A NAS-en lévő saját mappa szinkronizálása egy Calderix Drive mappával ezen a számítógépen.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Egyirányú letöltés</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Válassza ki a szinkronizálni kívánt mappát.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Előző hónap</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>A saját mappa szolgáltatás le van tiltva a NAS-en.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Hálózati hiba történt. Ellenőrizze a kapcsolatot.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Múlt hónap</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>A megosztási hivatkozásokhoz az Ostrel szolgáltatás szükséges, amely le van tiltva a NAS-en.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Dupla kattintás művelete</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Igény szerinti szinkronizálás engedélyezése</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Ponttal kezdődő nevű fájlok</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>A NAS-csomag nem támogatja a Calderix Drive ezen verzióját.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>A számítógép párosítása a NAS-sel megtörtént.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxykiszolgáló</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Az útmutató bezárása</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>A(z) %1 megosztott mappa már szinkronizálva van a következővel: %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Az automatikus beállítás nem sikerült. Állítsa be manuálisan a Calderix Drive-ot.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>A szinkronizálási napló szűrése</translation>
    </message>
    <message>
        <source>January</source>
        <translation>január</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Nincs engedély</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Szinkronizált mappák betöltése...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Válassza ki, mi történjen a beállítás befejezése után.</translation>
    </message>
</context>
</TS>
