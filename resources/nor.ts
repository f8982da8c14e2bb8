<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Delingskobling</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avslutt</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive holder filene på denne datamaskinen synkronisert med NAS-enheten din. Klikk på Start nå for å koble denne datamaskinen sammen med NAS-enheten.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Laster opp</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Du kan ikke opprette mer enn %1 delingskoblinger.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Filer som er større enn %1 MB, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synkronisering ved behov</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>Den valgte mappen kan ikke brukes som synkroniseringsmappe. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synkroniser midlertidige filer</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink-relé</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Behold begge filene og gi filen i konflikt nytt navn</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lar deg endre hvordan funksjoner installeres.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Skriv ut</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Med installasjonsveiviseren kan du endre hvordan Calderix Drive er installert på datamaskinen, reparere programmet eller fjerne det. Klikk på Neste for å fortsette eller Avbryt for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 har delt en mappe med deg.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klikk på Fullfør for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Velg en annen lokal mappe eller en annen delt mappe på NAS-enheten.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Installasjonen er fullført.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Begrens antall tilganger</translation>
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
        <translation>Det kan ikke opprettes en delingskobling for dette elementet.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Detaljer om serveradressen</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Slettet</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>Synkroniseringsretningen for denne mappen samsvarer ikke med innstillingen på NAS-enheten.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Du må ha administratorrettigheter for å installere Calderix Drive. Vil du fortsette likevel?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Denne mappen overlapper med en eksisterende synkroniseringsmappe. Velg en annen mappe.</translation>
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
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Lastet ned</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Lagringskvoten din på NAS-enheten er brukt opp. Frigjør litt plass, eller be administratoren om en større kvote.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>Den automatiske tilkoblingen ble avbrutt av administratoren.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>søndag</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Innstillinger...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Installasjonen av Calderix Drive ble avsluttet for tidlig</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ugyldig parameter.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Følgende programmer bruker filer som installasjonsprogrammet må oppdatere. Du kan lukke dem og klikke på Prøv igjen, eller klikke på Ignorer for å fortsette likevel.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Denne mappen indekseres.</translation>
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
        <translation>Nedlastingslogg</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammendrag</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Slå sammen filer fra begge sider</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis innføringen</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Endre synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Toveis synkronisering</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Endre mappe</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Om Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Filer som er utelatt fra synkronisering</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Bruk systemets proxyinnstillinger</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Velg hvordan du vil konfigurere Calderix Drive.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Det er ikke nok ledig plass på disken til denne mappen. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disken er full</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsmodus</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søkeord</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Endringer som andre datamaskiner gjør på en nettverksstasjon, blir kanskje ikke oppdaget med en gang.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Skriv inn et brukernavn.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Kontrollerer brukernavnet og passordet...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Lagringskvoten din på NAS-enheten er brukt opp. Frigjør litt plass før du synkroniserer denne mappen.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Serveren svarte med et uventet svar.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nettverk</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Skriv inn maksimalt %1 tegn.</translation>
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
        <translation>Koble denne datamaskinen sammen med NAS-enheten din for å komme i gang.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Endre mappe</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Mapper du fjerner merket for, blir fjernet fra denne datamaskinen, men blir værende på NAS-enheten. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Åpne Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fullført</translation>
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
        <translation>Denne versjonen av Calderix Drive er for gammel for NAS-enheten. Oppgrader Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Tilkoblingen er ustabil</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Avansert konfigurasjon</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Stopp nedlastingen av versjonen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 har delt mappen %2 med deg.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Gitt nytt navn</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Lukk programmene og forsøk å starte dem på nytt.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Behold filer i konflikt i en egen mappe</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 er et monteringspunkt og kan ikke brukes som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Neste %1 sider</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Det finnes ingen oppføringer å vise.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester tilkoblingen...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Er du sikker på at du vil koble fra denne synkroniseringsoppgaven? Filene på denne datamaskinen og på NAS-enheten blir beholdt.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Installasjonen av Calderix Drive ble avsluttet for tidlig på grunn av en feil. Systemet ditt er ikke endret. Hvis du vil installere dette programmet senere, kjører du installasjonsveiviseren på nytt.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Kan ikke opprette en sikker tilkobling til NAS-enheten.</translation>
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
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Lastet opp</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>Tilkoblingen til NAS-enheten ble brutt.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>NAS-enheten er endret</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Filer på denne datamaskinen som er i konflikt med filer på NAS-enheten, får nytt navn og blir beholdt.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Hent delingskobling</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versjonene samsvarer ikke</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Kunne ikke laste ned %1.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Disken på denne datamaskinen er full.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Oppdater NAS-pakken for å bruke selektiv synkronisering.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Brukernavnet eller passordet er feil.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Denne synkroniseringsmappen tilhører en annen NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>Installasjonen ble avbrutt.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>Mappen %1 er ikke tom.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Fullfører konfigurasjonen...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Synkronisering ved behov kunne ikke aktiveres.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Nedlastingen ble stoppet.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Det opprettes en ny synkroniseringsoppgave for %1.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Gjenoppta synkroniseringen av disse mappene</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Klar til å reparere Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Synkroniser med en ny NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Sertifikatet til NAS-enheten kunne ikke bekreftes.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>Tilkoblings-ID-en er ugyldig.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>En nyere versjon av Calderix Drive er tilgjengelig. Vil du oppgradere nå?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>Sertifikatet til NAS-enheten er endret.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Høyreklikk på en fil i synkroniseringsmappen for å hente en delingskobling.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>Mappen er ikke tom. Vil du slå sammen innholdet med mappen på NAS-enheten?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Flere detaljer</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Velg operasjonen du vil utføre.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Filene dine, overalt.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Lisensavtale for sluttbrukere</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koble fra</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internett</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Noen filer som må oppdateres, er i bruk.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>Konfigurasjonsnøkkelen er allerede konfigurert.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installasjonen</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Tilgjengelig fra</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Overskriv filen på denne datamaskinen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Skriv inn adressen og porten til proxyserveren.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>Den valgte mappen er skrivebeskyttet. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Relétilkoblinger er deaktivert på NAS-enheten.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Oppgraderer...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>Sertifikatet til NAS-enheten er endret siden denne mappen sist ble synkronisert.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Opprett en Calderix Drive-mappe</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Vis ikoner på filer som ikke synkroniseres</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Begrens tilgang</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Tilbake</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datoområde</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Finner ikke den lokale synkroniseringsmappen %1.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Bla gjennom tidligere versjoner</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Oppdager tilkoblingen...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Veiviser for avansert konfigurasjon</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Filer du legger i synkroniseringsmappen, holdes oppdatert på NAS-enheten og på alle datamaskinene dine.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Delingskoblingen kunne ikke slettes.</translation>
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
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativer</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Koblet til en annen NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Del filer</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Endre</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Den lokale mappen kunne ikke opprettes.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Sikker tilkobling (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktivert</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Installasjonen av Calderix Drive ble avbrutt. Systemet ditt er ikke endret. Hvis du vil installere dette programmet senere, kjører du installasjonsveiviseren på nytt.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Rediger tilkobling</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Neste &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Dette elementet kan ikke lastes ned.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Den lokale databasen kunne ikke åpnes.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Bruk på alle undermapper</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Ikke synkroniser disse mappene</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 er lastet ned.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Nylig oppdaterte filer</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Duplisert synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>NAS-enheten krever totrinnsbekreftelse for kontoen din.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktivert</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Vil du slette denne delingskoblingen?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive kjører allerede.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Sikkerhetsadvarsel</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Åpne synkroniseringsstatus</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Denne systemmappen kan ikke brukes som synkroniseringsmappe.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Ikke synkroniser denne mappen</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Klikk på Calderix Drive-ikonet i menylinjen for å se synkroniseringsstatusen og endre innstillinger.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Tilkoblingen er opprettet.</translation>
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
        <translation>Sertifikatet til NAS-enheten kunne ikke bekreftes. Vil du fortsette?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Denne filen tilhører ingen tilkobling.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Tilgang overalt</translation>
    </message>
    <message>
        <source>December</source>
        <translation>desember</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Proxyserveren krever et passord</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Synkroniseringsmappe på NAS-enheten</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Velg selv den delte mappen, den lokale mappen og synkroniseringsalternativene.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Filer med disse navnene blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Velkommen til installasjonsveiviseren for Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Noen felt inneholder ugyldige verdier.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tar i bruk innstillinger...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Er du sikker på at du vil avbryte installasjonen av Calderix Drive?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installasjonsveiviseren installerer Calderix Drive på datamaskinen. Klikk på Neste for å fortsette eller Avbryt for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Monteringspunkt støttes ikke</translation>
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
        <translation>NAS-oversikt</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Jeg &amp;godtar vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Status for Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Synkroniser filene dine</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Denne versjonen av Calderix Drive er allerede installert.</translation>
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
        <translation>Synkronisering satt på pause</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Alle som har koblingen, kan åpne filen i en nettleser.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Kontoen din er deaktivert på NAS-enheten.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Fjern installasjonen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Calderix Drive kunne ikke oppgraderes.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Brukerinformasjonen din kunne ikke hentes fra NAS-enheten.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tilkoblingstype</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Klar til å installere Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Fortsett likevel</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Klokkeslett</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Selektiv synkronisering av mapper</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februar</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Installasjonen av Calderix Drive ble avbrutt</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Passordet ditt er utløpt. Endre det på NAS-enheten.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Skriv inn bekreftelseskoden</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Brukernavnet eller passordet for proxyserveren er feil.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Utløper den</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Filene dine holdes nå synkronisert med NAS-enheten.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Delingskoblinger er ikke tilgjengelige over en Farrowlink-tilkobling.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Vis Calderix Drive på hurtigmenyen</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Ostrel-tjenesten er deaktivert på NAS-enheten. Be administratoren om å aktivere den.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Noen filer kunne ikke synkroniseres.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappebane</translation>
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
        <translation>Velg hvilken mappe på NAS-enheten som skal synkroniseres, og hvor den skal lagres på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Bruk et svart-hvitt ikon på menylinjen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremdrift</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Denne delte mappen synkroniseres allerede med en annen mappe.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Åpne de synkroniserte filene dine fra hvilken som helst datamaskin som er koblet sammen med NAS-enheten.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Koblingen til filen kunne ikke hentes.</translation>
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
        <translation>Pause</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Dette feltet kan ikke være tomt.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igjen</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Forrige uke</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Ser etter endringer...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Forstått</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Velkommen til Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Eksternt mål</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Endre, reparere eller fjerne installasjonen</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Ny synkroniseringsmappe</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne datamaskinen</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Laster inn mappelisten...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Følgende programmer bruker filer som må oppdateres av dette installasjonsprogrammet. Lukk disse programmene, og klikk på Prøv igjen for å fortsette.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Koble til via Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Det finnes allerede en fil med samme navn.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Opprett en ny mappe som skal synkroniseres med NAS-enheten.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>Sertifikatet til NAS-enheten er endret. Stoler du på det nye sertifikatet?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Versjonene av denne filen kan ikke vises.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Legg til filnavn</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Laster ned %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>For mange mislykkede forsøk. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Deling aktivert</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Datamaskin</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Satt på pause</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel er deaktivert</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Alle filer er oppdatert</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Alt er klart</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>Volumet til synkroniseringsmappen %1 er ikke montert.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Denne mappen synkroniseres allerede med den samme delte mappen på NAS-enheten.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Delt mappe mangler</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Klikk for å oppdatere Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Bruk en sikker tilkobling (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åpne fil</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Installasjonsprogrammet er klart til å starte installasjonen.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Når den samme filen er endret på begge sider:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk på Reparer for å reparere installasjonen av Calderix Drive. Klikk på Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk på Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Legg til synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Forbereder</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Oppdaterer...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Denne versjonen av Calderix Drive støttes ikke av NAS-enheten. Oppgrader Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Aktiver synkronisering</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Du har ikke tillatelse til å åpne denne mappen.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>Mappen %1 er skrivebeskyttet.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Oppgrader Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Bekreftelseskoden er feil.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Filene dine er fortsatt tilgjengelige selv når denne datamaskinen er frakoblet.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerer data...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Loggkategori</translation>
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
        <translation>Oppgraderingen mislyktes.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Modus for selektiv synkronisering</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Proxyinnstillinger</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Koble til på nytt</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Påloggingen mislyktes</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Filer i bruk</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hendelser</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versjon %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Gitt nytt navn på denne datamaskinen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Det finnes ingen mappe som kan synkroniseres.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synkroniseringsmappe</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Enveis synkronisering (bare nedlasting)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Velg den delte mappen på NAS-enheten som du vil synkronisere.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Søk etter NAS-enheter på det lokale nettverket</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk på Fjern for å fjerne Calderix Drive fra datamaskinen. Klikk på Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk på Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfigurasjon</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>Den delte mappen finnes ikke lenger på NAS-enheten.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ikke vis denne meldingen igjen</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Hold deg oppdatert</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte tilkobling</translation>
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
        <translation>Kobler til %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Skriv inn et portnummer mellom 1 og 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Selektiv synkronisering av filer</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kvoten er brukt opp</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Egendefinert periode</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Åpne Calderix Drive-mappen</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>Den delte mappen er ikke montert på NAS-enheten.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk på Installer for å starte installasjonen. Klikk på Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk på Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>Den eksterne mappen er ikke tilgjengelig fordi volumet ikke er montert.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsvarsler</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Installasjonsprogrammet er klart til å installere Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Låst</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Rask konfigurasjon</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Hvis du slår av synkronisering for denne mappen, fjernes den fra synkroniseringslisten. Filene blir værende på NAS-enheten og på denne datamaskinen. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Gjenoppta synkroniseringen av denne mappen</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Slett kobling</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Avbryt installasjonen</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Det finnes allerede en synkroniseringsoppgave for denne mappen.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Denne mappen ble synkronisert av en annen brukerkonto.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Ingen innstillinger er endret.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nei</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Påloggingen mislyktes. Kontroller brukernavnet og passordet.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Filer som samsvarer med disse filtrene, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Det er ikke nok ledig plass på NAS-enheten.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kobler fra...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Gjenoppta synkronisering</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Installasjonsveiviseren for Calderix Drive er fullført</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Angi synkroniseringsmappe</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Innføring</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Utløper etter %1 tilganger</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Innholdet i begge mappene blir slått sammen.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Vent mens installasjonsveiviseren installerer Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Neste måned</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Laster ned</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Du har ikke tillatelse til å utføre denne operasjonen.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Retter feil i den nyeste installasjonen ved å reparere manglende og skadede filer, snarveier og registeroppføringer.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Synkronisering kunne ikke aktiveres for denne mappen.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Ingen tidligere versjon av denne filen er tilgjengelig.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Oppdater synkroniseringsloggen</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Klikk på Fjern for å fjerne Calderix Drive fra datamaskinen.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Fjerner Calderix Drive fra datamaskinen.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Reparer Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Konfigurasjonsmodus</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Filendelse</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementer</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Ingen tilgjengelige alternativer</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Nettverk</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Synkroniser og del filene dine med NAS-enheten din.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Ingen tilgang</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Gitt nytt navn på NAS-enheten</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Vent mens installasjonsveiviseren installerer Calderix Drive. Dette kan ta flere minutter.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Start Calderix Drive ved pålogging</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Denne veiviseren leder deg gjennom installasjonen.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Behold den sist endrede filen</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Denne datamaskinen er allerede koblet sammen med denne NAS-enheten.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Les følgende lisensavtale nøye.</translation>
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
        <translation>NAS-pakken er for gammel for denne versjonen av Calderix Drive. Oppdater pakken på NAS-enheten.</translation>
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
        <translation>Skriv inn bekreftelseskoden.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>og %1 til</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tilbakestill</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>Det nye språket tas i bruk når Calderix Drive startes på nytt.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Calderix Drive initialiseres...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Sammenkoblingsinformasjon</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Er du sikker på at du vil koble fra %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive er installert.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Det oppstod en ukjent feil.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Jeg godtar &amp;ikke vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ventemodus</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Søk i det lokale nettverket</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Det er ikke nok ledig plass på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Synkroniseringsmodus</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Logg</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmappe</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Du har valgt å fjerne programmet fra systemet.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive har ingen uavhengige funksjoner som kan endres.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Ikke nødvendig</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive begynner nå å synkronisere filene dine med NAS-enheten.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Endringene dine er ikke lagret. Vil du lagre dem?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Endre språk</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokalt mål</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Tilkoblinger fra denne IP-adressen blokkeres av NAS-enheten.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>En nyere versjon av Calderix Drive er allerede installert.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Last ned en tidligere versjon</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Oppgradering</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Det oppstod en nettverksfeil under kontrollen av synkroniseringsmappen. Prøv igjen.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Sertifikatfeil</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dager siden</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Klikk på Reparer for å reparere Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Endre, reparere eller fjerne Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Oppdaterte filer</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Slett den nedlastede versjonen</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Utelatte filer</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Egendefinert varighet</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Skriv inn adressen til NAS-enheten og brukerkontoen din.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Endre installasjonen</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Denne mappen er skrivebeskyttet. Endringer synkroniseres ikke til NAS-enheten.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Velg en annen</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Den automatiske tilkoblingen mislyktes på grunn av en systemfeil.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Nylig endret</translation>
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
        <translation>NAS-lagringen er full</translation>
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
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>Lagringskvoten for denne delte mappen er brukt opp.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Akkurat nå</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Inkompatibel versjon</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Send til %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Du kan når som helst endre disse innstillingene.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Det oppstod en feil under installasjonen.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Koble sammen med en NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>&amp;Ikke lukk programmene. En omstart vil være nødvendig.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fullfør</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Bruk og kopier kobling</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Sett synkronisering på pause</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Legg til mappe</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Synkroniser hjemmemappen din på NAS-enheten med en Calderix Drive-mappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Enveis nedlasting</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Velg mappen du vil synkronisere.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Tjenesten for hjemmemapper er deaktivert på NAS-enheten.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Det oppstod en nettverksfeil. Kontroller tilkoblingen.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Delingskoblinger krever Ostrel-tjenesten, som er deaktivert på NAS-enheten.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Handling ved dobbeltklikk</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Aktiver synkronisering ved behov</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Filer med navn som begynner med punktum</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>NAS-pakken støtter ikke denne versjonen av Calderix Drive.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Denne datamaskinen er nå koblet sammen med NAS-enheten din.</translation>
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
        <translation>Lukk innføringen</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>Den delte mappen %1 synkroniseres allerede med %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Den automatiske konfigurasjonen mislyktes. Konfigurer Calderix Drive manuelt.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
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
        <translation>Ingen tillatelse</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Laster inn synkroniseringsmapper...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Velg hva som skal skje når konfigurasjonen er fullført.</translation>
    </message>
</context>
</TS>
