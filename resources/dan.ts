<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Delingslink</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afslut</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive holder filerne på denne computer synkroniseret med din NAS. Klik på Start nu for at parre denne computer med din NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploader</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Du kan højst oprette %1 delingslinks.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Filer, der er større end %1 MB, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synkronisering efter behov</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>Den valgte mappe kan ikke bruges som synkroniseringsmappe. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synkroniser midlertidige filer</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink-relæ</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Behold begge filer, og omdøb filen i konflikt</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Giver dig mulighed for at ændre, hvordan funktioner installeres.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Udskriv</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Med installationsguiden kan du ændre, hvordan Calderix Drive er installeret på din computer, reparere det eller fjerne det. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 har delt en mappe med dig.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik på Udfør for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Vælg en anden lokal mappe eller en anden delt mappe på NAS-enheden.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Installationen er fuldført.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Begræns antallet af adgange</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synkroniserer %1 filer</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Der kan ikke oprettes et delingslink til dette element.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Oplysninger om serveradresse</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Slettet</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>Synkroniseringsretningen for denne mappe svarer ikke til indstillingen på NAS-enheden.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Du skal have administratorrettigheder for at installere Calderix Drive. Vil du fortsætte alligevel?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Denne mappe overlapper en eksisterende synkroniseringsmappe. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Synkroniseringsmapper</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloadet</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Din lagerkvote på NAS-enheden er opbrugt. Frigør noget plads, eller bed din administrator om en større kvote.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>Den automatiske forbindelse blev annulleret af administratoren.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>søndag</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Indstillinger...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Installationen af Calderix Drive blev afsluttet før tid</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ugyldig parameter.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Følgende programmer bruger filer, som installationen skal opdatere. Du kan lukke dem og klikke på Prøv igen eller klikke på Ignorer for at fortsætte alligevel.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Denne mappe indekseres.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Downloadhistorik</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Flet filer fra begge sider</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis introduktionen</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Skift synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tovejssynkronisering</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Om Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Filer, der er udeladt fra synkronisering</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Vælg, hvordan du vil konfigurere Calderix Drive.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Der er ikke nok ledig plads på disken med denne mappe. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken er fuld</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringstilstand</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søgeord</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Ændringer, som andre computere foretager på et netværksdrev, registreres muligvis ikke med det samme.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Indtast et brugernavn.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Kontrollerer dit brugernavn og din adgangskode...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Din lagerkvote på NAS-enheden er opbrugt. Frigør noget plads, før du synkroniserer denne mappe.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Serveren returnerede et uventet svar.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Indtast højst %1 tegn.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>mandag</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Par denne computer med din NAS for at komme i gang.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Mapper, du fravælger, fjernes fra denne computer, men forbliver på NAS-enheden. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Åbn Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beskrivelse</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Denne version af Calderix Drive er for gammel til NAS-enheden. Opgrader Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Forbindelsen er ustabil</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Avanceret opsætning</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Stop download af versionen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 har delt mappen %2 med dig.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøbt</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Luk programmerne, og forsøg at genstarte dem.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Behold filer i konflikt i en separat mappe</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 er et monteringspunkt og kan ikke bruges som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Næste %1 sider</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Der er ingen poster at vise.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Er du sikker på, at du vil fjerne tilknytningen af denne synkroniseringsopgave? Filerne på denne computer og på NAS-enheden bevares.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Installationen af Calderix Drive blev afsluttet før tid på grund af en fejl. Dit system er ikke blevet ændret. Kør installationsguiden igen for at installere dette program på et senere tidspunkt.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Der kunne ikke oprettes en sikker forbindelse til NAS-enheden.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsproblem</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploadet</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>Forbindelsen til NAS-enheden blev afbrudt.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>NAS-enheden er ændret</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Filer på denne computer, der er i konflikt med filer på NAS-enheden, omdøbes og bevares.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Hent delingslink</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerne stemmer ikke overens</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>%1 kunne ikke downloades.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Disken på denne computer er fuld.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Opdater NAS-pakken for at bruge selektiv synkronisering.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Brugernavnet eller adgangskoden er forkert.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Denne synkroniseringsmappe tilhører en anden NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis synkroniseringsstatusikoner på filer og mapper</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>Installationen blev afbrudt.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>Mappen %1 er ikke tom.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Afslutter opsætningen...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Synkronisering efter behov kunne ikke aktiveres.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Downloaden blev stoppet.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Der oprettes en ny synkroniseringsopgave for %1.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Genoptag synkronisering af disse mapper</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Klar til at reparere Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Synkroniser med en ny NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>NAS-enhedens certifikat kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>Forbindelses-id&apos;et er ugyldigt.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Der findes en nyere version af Calderix Drive. Vil du opgradere nu?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>NAS-enhedens certifikat er ændret.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Højreklik på en fil i din synkroniseringsmappe for at hente et delingslink.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>Mappen er ikke tom. Vil du flette dens indhold med mappen på NAS-enheden?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Flere detaljer</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Vælg den handling, du vil udføre.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Dine filer, overalt.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Slutbrugerlicensaftale</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Via internettet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Nogle af de filer, der skal opdateres, er i brug i øjeblikket.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>Opsætningsnøglen er allerede konfigureret.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installationen</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Tilgængelig fra</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Overskriv filen på denne computer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Indtast proxyserverens adresse og port.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>Den valgte mappe er skrivebeskyttet. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Relæforbindelser er deaktiveret på NAS-enheden.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Opgraderer...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>NAS-enhedens certifikat er ændret, siden denne mappe sidst blev synkroniseret.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Opret en Calderix Drive-mappe</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Vis ikoner på filer, der ikke synkroniseres</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Begræns adgang</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Tilbage</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointerval</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Den lokale synkroniseringsmappe %1 blev ikke fundet.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Registrerer forbindelsen...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Guide til avanceret opsætning</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Filer, du lægger i din synkroniseringsmappe, holdes opdateret på NAS-enheden og på alle dine computere.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Delingslinket kunne ikke slettes.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Installerer Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valgmuligheder</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Forbundet til en anden NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Del filer</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Æ&amp;ndr</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Den lokale mappe kunne ikke oprettes.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Sikker forbindelse (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiveret</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Installationen af Calderix Drive blev afbrudt. Dit system er ikke blevet ændret. Kør installationsguiden igen for at installere dette program på et senere tidspunkt.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Næste &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Dette element kan ikke downloades.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Den lokale database kunne ikke åbnes.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Anvend på alle undermapper</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Synkroniser ikke disse mapper</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 er downloadet.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Senest opdaterede filer</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Dobbelt synkroniseringsopgave</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>NAS-enheden kræver totrinsbekræftelse for din konto.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Vil du slette dette delingslink?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive kører allerede.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Sikkerhedsadvarsel</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Åbn synkroniseringsstatus</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Denne systemmappe kan ikke bruges som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Synkroniser ikke denne mappe</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Klik på Calderix Drive-ikonet på menulinjen for at se synkroniseringsstatus og ændre indstillinger.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Forbindelsen blev oprettet.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>NAS-enhedens certifikat kunne ikke bekræftes. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Denne fil hører ikke til nogen forbindelse.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Adgang overalt</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxyserveren kræver en adgangskode</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Synkroniseringsmappe på NAS-enheden</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Vælg selv den delte mappe, den lokale mappe og synkroniseringsindstillingerne.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Filer med disse navne synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Velkommen til installationsguiden til Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Nogle felter indeholder ugyldige værdier.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Anvender indstillinger...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Er du sikker på, at du vil annullere installationen af Calderix Drive?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerer Calderix Drive på din computer. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Monteringspunkt understøttes ikke</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Vis i mappe</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-oversigt</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Jeg &amp;accepterer betingelserne i licensaftalen</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Status for Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Synkroniser dine filer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Denne version af Calderix Drive er allerede installeret.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Fjern Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 minutter siden</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Synkronisering sat på pause</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Alle med linket kan åbne filen i en webbrowser.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Din konto er deaktiveret på NAS-enheden.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Fjern installationen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Calderix Drive kunne ikke opgraderes.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Dine brugeroplysninger kunne ikke hentes fra NAS-enheden.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Forbindelsestype</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Klar til at installere Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Fortsæt alligevel</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oprettet</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vælg en mappe</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Selektiv synkronisering af mapper</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februar</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Installationen af Calderix Drive blev afbrudt</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Din adgangskode er udløbet. Skift den på NAS-enheden.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Indtast bekræftelseskoden</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Brugernavnet eller adgangskoden til proxyserveren er forkert.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Udløber den</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Dine filer holdes nu synkroniseret med NAS-enheden.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Delingslinks er ikke tilgængelige via en Farrowlink-forbindelse.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Vis Calderix Drive i genvejsmenuen</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Ostrel-tjenesten er deaktiveret på NAS-enheden. Bed din administrator om at aktivere den.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Nogle filer kunne ikke synkroniseres.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Calderix Drive starter...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 timer siden</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Vælg, hvilken mappe på NAS-enheden der skal synkroniseres, og hvor den skal ligge på denne computer.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Brug et sort-hvidt ikon på menulinjen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Forløb</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Denne delte mappe synkroniseres allerede med en anden mappe.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Åbn dine synkroniserede filer fra enhver computer, der er parret med NAS-enheden.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Linket til filen kunne ikke hentes.</translation>
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
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Dette felt må ikke være tomt.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igen</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Sidste uge</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Søger efter ændringer...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Forstået</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Velkommen til Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Fjerndestination</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Rediger, reparer eller fjern installationen</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Ny synkroniseringsmappe</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne computer</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Indlæser mappelisten...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Følgende programmer bruger filer, som skal opdateres af denne installation. Luk disse programmer, og klik på Prøv igen for at fortsætte.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Opret forbindelse via Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Der findes allerede en fil med samme navn.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Opret en ny mappe, der skal synkroniseres med NAS-enheden.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>NAS-enhedens certifikat er ændret. Har du tillid til det nye certifikat?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Versionerne af denne fil kan ikke vises.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Tilføj filnavn</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Downloader %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>For mange mislykkede forsøg. Prøv igen senere.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Deling aktiveret</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sat på pause</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel er deaktiveret</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Alle filer er opdaterede</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Alt er klar</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>Diskenheden med synkroniseringsmappen %1 er ikke monteret.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Denne mappe synkroniseres allerede med den samme delte mappe på NAS-enheden.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Delt mappe mangler</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Klik for at opdatere Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Brug en sikker forbindelse (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åbn fil</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Installationen er klar til at begynde.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Når den samme fil er ændret på begge sider:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Reparer for at reparere installationen af Calderix Drive. Klik på Tilbage for at gennemse eller ændre dine installationsindstillinger. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Tilføj synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Forbereder</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Opdaterer...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Denne version af Calderix Drive understøttes ikke af NAS-enheden. Opgrader Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Aktivér synkronisering</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Du har ikke tilladelse til at få adgang til denne mappe.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>Mappen %1 er skrivebeskyttet.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Opgrader Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Bekræftelseskoden er forkert.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Dine filer forbliver tilgængelige, selv når denne computer er offline.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerer data...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Logkategori</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Start Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>Opgraderingen mislykkedes.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Tilstand for selektiv synkronisering</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opret forbindelse igen</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marts</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Login mislykkedes</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Filer i brug</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hændelser</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Omdøbt på denne computer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Der er ingen mappe, der kan synkroniseres.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synkroniseringsmappe</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Envejssynkronisering (kun download)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Vælg den delte mappe på NAS-enheden, som du vil synkronisere.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Søg efter NAS-enheder på det lokale netværk</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Fjern for at fjerne Calderix Drive fra din computer. Klik på Tilbage for at gennemse eller ændre dine installationsindstillinger. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuel proxykonfiguration</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>Den delte mappe findes ikke længere på NAS-enheden.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Vis ikke denne meddelelse igen</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Hold dig orienteret</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Flere tips</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Opretter forbindelse til %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Indtast et portnummer mellem 1 og 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Selektiv synkronisering af filer</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kvoten er opbrugt</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Brugerdefineret interval</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Åbn Calderix Drive-mappen</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>Den delte mappe er ikke monteret på NAS-enheden.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Installer for at starte installationen. Klik på Tilbage for at gennemse eller ændre dine installationsindstillinger. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>Fjernmappen er ikke tilgængelig, fordi dens diskenhed ikke er monteret.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsmeddelelser</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Installationen er klar til at installere Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Låst</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Hurtig opsætning</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Hvis du slår synkronisering fra for denne mappe, fjernes den fra synkroniseringslisten. Filerne bliver på NAS-enheden og på denne computer. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Genoptag synkronisering af denne mappe</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Slet link</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Annuller installationen</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Der findes allerede en synkroniseringsopgave for denne mappe.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Denne mappe blev synkroniseret af en anden brugerkonto.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Ingen indstillinger er blevet ændret.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Login mislykkedes. Kontrollér dit brugernavn og din adgangskode.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Filer, der matcher disse filtre, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Der er ikke nok ledig plads på NAS-enheden.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Genoptag synkronisering</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Installationsguiden til Calderix Drive er fuldført</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Angiv synkroniseringsmappe</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Introduktion</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Udløber efter %1 adgange</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Indholdet af begge mapper flettes.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Vent, mens installationsguiden installerer Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Næste måned</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Downloader</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Du har ikke tilladelse til at udføre denne handling.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Retter fejl i den seneste installation ved at reparere manglende og beskadigede filer, genveje og registreringsdatabaseposter.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Synkronisering kunne ikke aktiveres for denne mappe.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Der findes ingen tidligere version af denne fil.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Opdater synkroniseringsloggen</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Klik på Fjern for at fjerne Calderix Drive fra din computer.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Fjerner Calderix Drive fra din computer.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Reparer Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Opsætningstilstand</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Filtypenavn</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementer</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Ingen tilgængelige indstillinger</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netværk</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Synkroniser og del dine filer med din NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Adgang nægtet</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Omdøbt på NAS-enheden</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Vent, mens installationsguiden installerer Calderix Drive. Dette kan tage flere minutter.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Start Calderix Drive ved login</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Denne guide fører dig gennem installationen.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Behold den senest ændrede fil</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Denne computer er allerede parret med denne NAS.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Læs følgende licensaftale omhyggeligt.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Calderix Drive kunne ikke startes.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>NAS-pakken er for gammel til denne version af Calderix Drive. Opdater pakken på NAS-enheden.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Ny deling</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Indtast bekræftelseskoden.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>og %1 mere</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>Det nye sprog tages i brug, når Calderix Drive genstartes.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Calderix Drive initialiseres...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Parringsoplysninger</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Er du sikker på, at du vil fjerne tilknytningen til %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive er installeret.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Der opstod en ukendt fejl.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Jeg accepterer &amp;ikke betingelserne i licensaftalen</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standbytilstand</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Søg på det lokale netværk</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Der er ikke nok ledig plads på denne computer.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Synkroniseringstilstand</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmappe</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Du har valgt at fjerne programmet fra dit system.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive har ingen uafhængige funktioner, der kan ændres.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Ikke nødvendigt</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive begynder nu at synkronisere dine filer med NAS-enheden.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Dine ændringer er ikke gemt. Vil du gemme dem?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Skift sprog</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokal destination</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Forbindelser fra denne IP-adresse blokeres af NAS-enheden.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Der er allerede installeret en nyere version af Calderix Drive.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Download en tidligere version</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Opgradering</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Der opstod en netværksfejl under kontrol af synkroniseringsmappen. Prøv igen.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Certifikatfejl</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dage siden</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Klik på Reparer for at reparere Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Rediger, reparer eller fjern Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Opdaterede filer</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Slet den downloadede version</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Udeladte filer</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Brugerdefineret varighed</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Indtast adressen på din NAS og din brugerkonto.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Rediger installationen</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Denne mappe er skrivebeskyttet. Ændringer synkroniseres ikke til NAS-enheden.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Vælg en anden</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Den automatiske forbindelse mislykkedes på grund af en systemfejl.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Senest ændret</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive er klar.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>NAS-lageret er fuldt</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synkroniserer: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>august</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>Lagerkvoten for denne delte mappe er opbrugt.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Lige nu</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Inkompatibel version</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Send til %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Du kan til enhver tid ændre disse indstillinger.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Der opstod en fejl under installationen.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Par med en NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>Luk &amp;ikke programmerne. Det vil være nødvendigt at genstarte.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Udfør</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Anvend, og kopiér link</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Sæt synkronisering på pause</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Tilføj mappe</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Synkroniser din hjemmemappe på NAS-enheden med en Calderix Drive-mappe på denne computer.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Envejsdownload</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Vælg den mappe, du vil synkronisere.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Hjemmemappetjenesten er deaktiveret på NAS-enheden.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Der opstod en netværksfejl. Kontrollér din forbindelse.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Sidste måned</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Delingslinks kræver Ostrel-tjenesten, som er deaktiveret på NAS-enheden.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Handling ved dobbeltklik</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Aktivér synkronisering efter behov</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Filer, hvis navne begynder med et punktum</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>NAS-pakken understøtter ikke denne version af Calderix Drive.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Denne computer er nu parret med din NAS.</translation>
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
        <translation>Luk introduktionen</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>Den delte mappe %1 synkroniseres allerede med %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Den automatiske opsætning mislykkedes. Konfigurer Calderix Drive manuelt.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Filtrer synkroniseringsloggen</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januar</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Ingen tilladelse</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Indlæser synkroniseringsmapper...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Vælg, hvad der skal ske, når opsætningen er fuldført.</translation>
    </message>
</context>
</TS>
