<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Delningslänk</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avsluta</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive håller filerna på den här datorn synkroniserade med din NAS. Klicka på Starta nu för att parkoppla den här datorn med din NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Laddar upp</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Du kan inte skapa fler än %1 delningslänkar.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Filer som är större än %1 MB synkroniseras inte.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synkronisering vid behov</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>Den valda mappen kan inte användas som synkroniseringsmapp. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synkronisera tillfälliga filer</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink-relä</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Behåll båda filerna och byt namn på filen i konflikt</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Här kan du ändra hur funktioner installeras.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Skriv &amp;ut</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Med installationsguiden kan du ändra hur Calderix Drive är installerat på datorn, reparera eller ta bort programmet. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 har delat en mapp med dig.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicka på Slutför för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Välj en annan lokal mapp eller en annan delad mapp på NAS-enheten.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Installationen är klar.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Begränsa antalet åtkomster</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synkroniserar %1 filer</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Det går inte att skapa en delningslänk för det här objektet.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Information om serveradressen</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Borttagen</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>Synkroniseringsriktningen för den här mappen stämmer inte med inställningen på NAS-enheten.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Du behöver administratörsbehörighet för att installera Calderix Drive. Vill du fortsätta ändå?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Den här mappen överlappar en befintlig synkroniseringsmapp. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Synkroniseringsmappar</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Nedladdad</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Din lagringskvot på NAS-enheten är full. Frigör utrymme eller be administratören om en större kvot.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>Den automatiska anslutningen avbröts av administratören.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>söndag</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Inställningar...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Installationen av Calderix Drive avslutades i förtid</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ogiltig parameter.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Följande program använder filer som installationsprogrammet måste uppdatera. Du kan stänga dem och klicka på Försök igen, eller klicka på Ignorera för att fortsätta ändå.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Den här mappen indexeras.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Nedladdningshistorik</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Sammanfoga filer från båda sidor</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Visa introduktionen</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Byt synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tvåvägssynkronisering</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Byt mapp</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Om Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Filer som undantas från synkronisering</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Välj hur du vill konfigurera Calderix Drive.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på disken för den här mappen. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken är full</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsläge</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Nyckelord</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Ändringar som andra datorer gör på en nätverksenhet kanske inte upptäcks direkt.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Ange ett användarnamn.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Kontrollerar ditt användarnamn och lösenord...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delad mapp</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Din lagringskvot på NAS-enheten är full. Frigör utrymme innan du synkroniserar den här mappen.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Servern skickade ett oväntat svar.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nätverk</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserar...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Ange högst %1 tecken.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>måndag</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Kom igång genom att parkoppla den här datorn med din NAS.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Byt mapp</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Mappar som du avmarkerar tas bort från den här datorn men finns kvar på NAS-enheten. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Öppna Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Slutfört</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beskrivning</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Största filstorlek</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Den här versionen av Calderix Drive är för gammal för NAS-enheten. Uppgradera Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Anslutningen är instabil</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Avancerad konfiguration</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Stoppa nedladdningen av versionen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 har delat mappen %2 med dig.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Namnbytt</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Stäng programmen och försök starta om dem.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Behåll filer i konflikt i en separat mapp</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 är en monteringspunkt och kan inte användas som synkroniseringsmapp.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nästa %1 sidor</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Det finns inga poster att visa.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synkroniseringsuppgifter</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Är du säker på att du vill koppla från den här synkroniseringsuppgiften? Filerna på den här datorn och på NAS-enheten behålls.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Installationen av Calderix Drive avslutades i förtid på grund av ett fel. Systemet har inte ändrats. Kör installationsguiden igen om du vill installera programmet senare.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Det gick inte att upprätta en säker anslutning till NAS-enheten.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsriktning</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsproblem</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uppladdad</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>Anslutningen till NAS-enheten har brutits.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>NAS-enheten har ändrats</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Filer på den här datorn som står i konflikt med filer på NAS-enheten får nya namn och behålls.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Hämta delningslänk</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerna stämmer inte överens</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Det gick inte att ladda ned %1.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Disken på den här datorn är full.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Uppdatera NAS-paketet för att använda selektiv synkronisering.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Den här synkroniseringsmappen tillhör en annan NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Visa ikoner för synkroniseringsstatus på filer och mappar</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>Installationen avbröts.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>Mappen %1 är inte tom.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Slutför konfigurationen...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrera</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Det gick inte att aktivera synkronisering vid behov.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Nedladdningen stoppades.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>En ny synkroniseringsuppgift skapas för %1.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Återuppta synkroniseringen av de här mapparna</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Klart att reparera Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Synkronisera med en ny NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Det gick inte att verifiera NAS-enhetens certifikat.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>Anslutnings-ID:t är ogiltigt.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>En nyare version av Calderix Drive finns tillgänglig. Vill du uppgradera nu?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>NAS-enhetens certifikat har ändrats.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Högerklicka på en fil i din synkroniseringsmapp för att hämta en delningslänk.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>Mappen är inte tom. Vill du sammanfoga dess innehåll med mappen på NAS-enheten?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mer information</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Välj den åtgärd som du vill utföra.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Dina filer, överallt.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Licensavtal för slutanvändare</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Via internet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Vissa filer som måste uppdateras används för närvarande.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>Konfigurationsnyckeln har redan konfigurerats.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparera installationen</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Tillgänglig från</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Skriv över filen på den här datorn</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Ange proxyserverns adress och port.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>Den valda mappen är skrivskyddad. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Reläanslutningar är inaktiverade på NAS-enheten.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Uppgraderar...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparera</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>NAS-enhetens certifikat har ändrats sedan den här mappen senast synkroniserades.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Skapa en Calderix Drive-mapp</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Visa ikoner på filer som inte synkroniseras</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Begränsa åtkomst</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Tillbaka</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumintervall</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Det går inte att hitta den lokala synkroniseringsmappen %1.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Bläddra bland tidigare versioner</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Identifierar anslutningen...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Guide för avancerad konfiguration</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Filer som du lägger i din synkroniseringsmapp hålls uppdaterade på NAS-enheten och på alla dina datorer.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Det gick inte att ta bort delningslänken.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradress</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Installerar Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tisdag</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Ansluten till en annan NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Dela filer</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Ändra</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Det gick inte att skapa den lokala mappen.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Säker anslutning (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Installationen av Calderix Drive avbröts. Systemet har inte ändrats. Kör installationsguiden igen om du vill installera programmet senare.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Redigera anslutning</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Nästa &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Det här objektet kan inte laddas ned.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Det gick inte att öppna den lokala databasen.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Tillämpa på alla undermappar</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Synkronisera inte de här mapparna</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 har laddats ned.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nyligen uppdaterade filer</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Dubblett av synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>NAS-enheten kräver tvåstegsverifiering för ditt konto.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverad</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Vill du ta bort den här delningslänken?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive körs redan.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Säkerhetsvarning</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Öppna synkroniseringsstatus</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Den här systemmappen kan inte användas som synkroniseringsmapp.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Synkronisera inte den här mappen</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Klicka på Calderix Drive-ikonen i menyraden för att se synkroniseringsstatus och ändra inställningar.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Anslutningen har upprättats.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>Det gick inte att verifiera NAS-enhetens certifikat. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Den här filen hör inte till någon anslutning.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Åtkomst överallt</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxyservern kräver ett lösenord</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Synkroniseringsmapp på NAS-enheten</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Välj själv den delade mappen, den lokala mappen och synkroniseringsalternativen.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Filer med de här namnen synkroniseras inte.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Välkommen till installationsguiden för Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Vissa fält innehåller ogiltiga värden.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tillämpar inställningar...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Är du säker på att du vill avbryta installationen av Calderix Drive?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerar Calderix Drive på datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Monteringspunkten stöds inte</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Visa i mapp</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-översikt</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Jag &amp;godkänner villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Status för Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Synkronisera dina filer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Den här versionen av Calderix Drive är redan installerad.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Ta bort Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>För %1 minuter sedan</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Synkroniseringen är pausad</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Alla som har länken kan öppna filen i en webbläsare.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Ditt konto har inaktiverats på NAS-enheten.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorera</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Ta bort installationen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Det gick inte att uppgradera Calderix Drive.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Det gick inte att hämta din användarinformation från NAS-enheten.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Anslutningstyp</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Klart att installera Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Fortsätt ändå</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Selektiv synkronisering av mappar</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Installationen av Calderix Drive avbröts</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Ditt lösenord har upphört att gälla. Ändra det på NAS-enheten.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Ange verifieringskoden</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Användarnamnet eller lösenordet för proxyservern är felaktigt.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Upphör att gälla den</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Dina filer hålls nu synkroniserade med NAS-enheten.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Delningslänkar är inte tillgängliga via en Farrowlink-anslutning.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Visa Calderix Drive på snabbmenyn</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Tjänsten Ostrel är inaktiverad på NAS-enheten. Be administratören att aktivera den.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Vissa filer kunde inte synkroniseras.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappsökväg</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Calderix Drive startar...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>För %1 timmar sedan</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Välj vilken mapp på NAS-enheten som ska synkroniseras och var den ska sparas på den här datorn.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Använd en svartvit ikon i menyraden</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Den här delade mappen synkroniseras redan med en annan mapp.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Öppna dina synkroniserade filer från vilken dator som helst som är parkopplad med NAS-enheten.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Det gick inte att hämta länken till filen.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Det här fältet får inte vara tomt.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Försök igen</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Förra veckan</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Söker efter ändringar...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Jag förstår</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Välkommen till Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Fjärrmål</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Skrivskyddad mapp</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Ändra, reparera eller ta bort installationen</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Ny synkroniseringsmapp</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Läser in mapplistan...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Följande program använder filer som måste uppdateras av den här installationen. Stäng programmen och klicka på Försök igen för att fortsätta.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lördag</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Anslut via Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Det finns redan en fil med samma namn.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Skapa en ny mapp som ska synkroniseras med NAS-enheten.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>NAS-enhetens certifikat har ändrats. Litar du på det nya certifikatet?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Det går inte att visa versionerna av den här filen.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Lägg till filnamn</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Laddar ned %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>För många misslyckade försök. Försök igen senare.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Delning aktiverad</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Uppdaterad</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Dator</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel är inaktiverat</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Alla filer är uppdaterade</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Allt är klart</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>Volymen för synkroniseringsmappen %1 är inte monterad.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Den här mappen synkroniseras redan med samma delade mapp på NAS-enheten.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Den delade mappen saknas</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Klicka för att uppdatera Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Använd en säker anslutning (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Öppna fil</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Installationsprogrammet är klart att påbörja installationen.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sammanfoga</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>När samma fil har ändrats på båda sidor:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Reparera för att reparera installationen av Calderix Drive. Klicka på Tillbaka om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Lägg till synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Förbereder</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Uppdaterar...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Den här versionen av Calderix Drive stöds inte av NAS-enheten. Uppgradera Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Aktivera synkronisering</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Du har inte behörighet att öppna den här mappen.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>Mappen %1 är skrivskyddad.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Uppgradera Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Verifieringskoden är felaktig.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Dina filer är tillgängliga även när den här datorn är offline.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerar data...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Loggkategori</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Starta Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>Uppgraderingen misslyckades.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Läge för selektiv synkronisering</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Proxyinställningar</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Anslut igen</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Inloggningen misslyckades</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Filer som används</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alla händelser</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Namnbytt på den här datorn</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Det finns ingen mapp som kan synkroniseras.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synkroniseringsmapp</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Envägssynkronisering (endast nedladdning)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Välj den delade mapp på NAS-enheten som du vill synkronisera.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Sök efter NAS-enheter i det lokala nätverket</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Ta bort för att ta bort Calderix Drive från datorn. Klicka på Tillbaka om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfiguration</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>Den delade mappen finns inte längre på NAS-enheten.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Visa inte det här meddelandet igen</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Håll dig informerad</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktanslutning</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Föregående %1 sidor</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Fler tips</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Ansluter till %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Ange ett portnummer mellan 1 och 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Selektiv synkronisering av filer</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kvoten är full</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Anpassat intervall</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Öppna mappen Calderix Drive</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>Den delade mappen är inte monterad på NAS-enheten.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Installera för att påbörja installationen. Klicka på Tillbaka om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>Fjärrmappen är inte tillgänglig eftersom dess volym inte är monterad.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa skrivbordsaviseringar</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Installationsprogrammet är klart att installera Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Låst</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Snabbkonfiguration</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Om du stänger av synkroniseringen för den här mappen tas den bort från synkroniseringslistan. Filerna finns kvar på NAS-enheten och på den här datorn. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Återuppta synkroniseringen av den här mappen</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Ta bort länk</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Avbryt installationen</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Det finns redan en synkroniseringsuppgift för den här mappen.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Den här mappen synkroniserades av ett annat användarkonto.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Inga inställningar har ändrats.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Inloggningen misslyckades. Kontrollera ditt användarnamn och lösenord.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Filer som matchar de här filtren synkroniseras inte.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på NAS-enheten.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Endast nedladdning</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kopplar från...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Återuppta synkroniseringen</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Installationsguiden för Calderix Drive har slutförts</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Ange synkroniseringsmapp</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installera</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Introduktion</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Upphör att gälla efter %1 åtkomster</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Innehållet i båda mapparna sammanfogas.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Vänta medan installationsguiden installerar Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nästa månad</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Laddar ned</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Du har inte behörighet att utföra den här åtgärden.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Åtgärdar fel i den senaste installationen genom att reparera saknade och skadade filer, genvägar och registerposter.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Det gick inte att aktivera synkronisering för den här mappen.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Det finns ingen tidigare version av den här filen.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Uppdatera synkroniseringsloggen</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Klicka på Ta bort för att ta bort Calderix Drive från datorn.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Tar bort Calderix Drive från datorn.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Reparera Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Konfigurationsläge</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Filnamnstillägg</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 objekt</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Inga alternativ tillgängliga</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Nätverk</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Synkronisera och dela dina filer med din NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Åtkomst nekad</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Namnbytt på NAS-enheten</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Vänta medan installationsguiden installerar Calderix Drive. Det kan ta flera minuter.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Starta Calderix Drive vid inloggning</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Den här guiden vägleder dig genom installationen.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtyp</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Behåll den senast ändrade filen</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Den här datorn är redan parkopplad med den här NAS-enheten.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Läs följande licensavtal noggrant.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Det gick inte att starta Calderix Drive.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>NAS-paketet är för gammalt för den här versionen av Calderix Drive. Uppdatera paketet på NAS-enheten.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Ny delning</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Ange verifieringskoden.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>och %1 till</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>Det nya språket används när Calderix Drive har startats om.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Calderix Drive initieras...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Parkopplingsinformation</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Är du säker på att du vill koppla från %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive har installerats.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ett okänt fel uppstod.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Jag godkänner &amp;inte villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Vänteläge</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Sök i det lokala nätverket</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Det finns inte tillräckligt med ledigt utrymme på den här datorn.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Synkroniseringsläge</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmapp</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Du har valt att ta bort programmet från systemet.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive har inga oberoende funktioner att ändra.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Behövs inte</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive börjar nu synkronisera dina filer med NAS-enheten.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Dina ändringar har inte sparats. Vill du spara dem?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Byt språk</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokalt mål</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Anslutningar från den här IP-adressen blockeras av NAS-enheten.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>En nyare version av Calderix Drive är redan installerad.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Ladda ned en tidigare version</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Uppgradering</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Ett nätverksfel uppstod när synkroniseringsmappen kontrollerades. Försök igen.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Certifikatfel</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>För %1 dagar sedan</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Klicka på Reparera för att reparera Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Ändra, reparera eller ta bort Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Uppdaterade filer</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Ta bort den nedladdade versionen</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Undantagna filer</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Anpassad varaktighet</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Ange adressen till din NAS och ditt användarkonto.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Ändra installationen</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Den här mappen är skrivskyddad. Ändringar synkroniseras inte till NAS-enheten.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Välj en annan</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Den automatiska anslutningen misslyckades på grund av ett systemfel.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Nyligen ändrade</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive är klart.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>NAS-lagringen är full</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synkroniserar: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusti</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>Lagringskvoten för den här delade mappen är full.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just nu</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Inkompatibel version</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Skicka till %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Du kan ändra de här inställningarna när som helst.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Ett fel uppstod under installationen.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Parkoppla med en NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>Stäng &amp;inte programmen. En omstart kommer att krävas.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Slutför</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Verkställ och kopiera länk</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Pausa synkroniseringen</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Lägg till mapp</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Synkronisera din hemmapp på NAS-enheten med en Calderix Drive-mapp på den här datorn.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Envägsnedladdning</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Välj den mapp som du vill synkronisera.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Föregående månad</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Tjänsten för hemmappar är inaktiverad på NAS-enheten.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Ett nätverksfel uppstod. Kontrollera anslutningen.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Förra månaden</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Delningslänkar kräver tjänsten Ostrel, som är inaktiverad på NAS-enheten.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Åtgärd vid dubbelklick</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Aktivera synkronisering vid behov</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Filer vars namn börjar med en punkt</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>NAS-paketet har inte stöd för den här versionen av Calderix Drive.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Den här datorn är nu parkopplad med din NAS.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxyserver</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Stäng introduktionen</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>Den delade mappen %1 synkroniseras redan med %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Den automatiska konfigurationen misslyckades. Konfigurera Calderix Drive manuellt.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Filtrera synkroniseringsloggen</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Ingen behörighet</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Läser in synkroniseringsmappar...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Välj vad som ska hända när konfigurationen är klar.</translation>
    </message>
</context>
</TS>
