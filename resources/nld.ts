<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Deellink</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive houdt de bestanden op deze computer gesynchroniseerd met uw NAS. Klik op Nu beginnen om deze computer aan uw NAS te koppelen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploaden</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>U kunt maximaal %1 deellinks maken.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Bestanden groter dan %1 MB worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synchronisatie op aanvraag</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>De geselecteerde map kan niet als synchronisatiemap worden gebruikt. Kies een andere map.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Tijdelijke bestanden synchroniseren</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink-relay</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Beide bestanden behouden en het conflicterende bestand hernoemen</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Hiermee kunt u wijzigen hoe onderdelen worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Met de installatiewizard kunt u de installatie van Calderix Drive op uw computer wijzigen, herstellen of verwijderen. Klik op Volgende om door te gaan of op Annuleren om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 heeft een map met u gedeeld.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik op Voltooien om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Kies een andere lokale map of een andere gedeelde map op de NAS.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>De installatie is voltooid.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Naar</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Aantal keer openen beperken</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 bestanden synchroniseren</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Voor dit element kan geen deellink worden gemaakt.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Details van serveradres</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>De synchronisatierichting van deze map komt niet overeen met de instelling op de NAS.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>U hebt beheerdersrechten nodig om Calderix Drive te installeren. Wilt u toch doorgaan?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Deze map overlapt met een bestaande synchronisatiemap. Kies een andere map.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Synchronisatiemappen</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Gedownload</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Uw opslagquotum op de NAS is vol. Maak ruimte vrij of vraag uw beheerder om een groter quotum.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>De automatische verbinding is door de beheerder geannuleerd.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>zondag</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Instellingen...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Installatie van Calderix Drive voortijdig beëindigd</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ongeldige parameter.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>De volgende toepassingen gebruiken bestanden die door de installatie moeten worden bijgewerkt. U kunt ze sluiten en op Opnieuw klikken, of op Negeren klikken om toch door te gaan.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Deze map wordt geïndexeerd.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Downloadgeschiedenis</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Bestanden van beide kanten samenvoegen</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>De rondleiding weergeven</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisatiemap wijzigen</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisatie in twee richtingen</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Map wijzigen</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Over Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Bestanden uitgesloten van synchronisatie</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Beheren</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Proxy-instellingen van het systeem gebruiken</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Kies hoe u Calderix Drive wilt instellen.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Nu beginnen</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Er is onvoldoende vrije ruimte op de schijf van deze map. Kies een andere map.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Schijf vol</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisatiemodus</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Trefwoord</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Wijzigingen die andere computers op een netwerkstation aanbrengen, worden mogelijk niet meteen gedetecteerd.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Voer een gebruikersnaam in.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Uw gebruikersnaam en wachtwoord controleren...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Gedeelde map</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Uw opslagquotum op de NAS is vol. Maak ruimte vrij voordat u deze map synchroniseert.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>De server gaf een onverwacht antwoord.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokaal netwerk</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchroniseren...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Voer niet meer dan %1 tekens in.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>maandag</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Koppel deze computer aan uw NAS om te beginnen.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Map wijzigen</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Mappen die u deselecteert, worden van deze computer verwijderd maar blijven op de NAS staan. Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Calderix Drive openen</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale bestandsgrootte</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Deze versie van Calderix Drive is te oud voor de NAS. Upgrade Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>De verbinding is instabiel</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Geavanceerde installatie</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Downloaden van versie stoppen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 heeft de map %2 met u gedeeld.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Hernoemd</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Map niet leeg</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>De toepassingen &amp;sluiten en proberen ze opnieuw te starten.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Conflicterende bestanden in een aparte map bewaren</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 is een koppelpunt en kan niet als synchronisatiemap worden gebruikt.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Volgende %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Er zijn geen gegevens om weer te geven.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>De verbinding testen...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Weet u zeker dat u deze synchronisatietaak wilt ontkoppelen? De bestanden op deze computer en op de NAS blijven behouden.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinden...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>De installatie van Calderix Drive is voortijdig beëindigd vanwege een fout. Uw systeem is niet gewijzigd. Voer de installatiewizard opnieuw uit om dit programma later te installeren.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Er kon geen beveiligde verbinding met de NAS tot stand worden gebracht.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisatierichting</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synchronisatieprobleem</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Geüpload</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>De verbinding met de NAS is verbroken.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>De NAS is gewijzigd</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Bestanden op deze computer die conflicteren met bestanden op de NAS, worden hernoemd en bewaard.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Deellink ophalen</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versies komen niet overeen</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Downloaden van %1 mislukt.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>De schijf van deze computer is vol.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Werk het NAS-pakket bij om selectieve synchronisatie te gebruiken.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Deze synchronisatiemap hoort bij een andere NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Synchronisatiestatuspictogrammen op bestanden en mappen weergeven</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>De installatie is onderbroken.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>De map %1 is niet leeg.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>De installatie voltooien...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filteren</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Synchronisatie op aanvraag kan niet worden ingeschakeld.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Het downloaden is gestopt.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Er wordt een nieuwe synchronisatietaak gemaakt voor %1.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Synchronisatie van deze mappen hervatten</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Klaar om Calderix Drive te herstellen</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Synchroniseren met een nieuwe NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Het certificaat van de NAS kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>De verbindings-ID is ongeldig.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Er is een nieuwere versie van Calderix Drive beschikbaar. Nu upgraden?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>Het certificaat van de NAS is gewijzigd.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Klik met de rechtermuisknop op een bestand in uw synchronisatiemap om een deellink op te halen.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>De map is niet leeg. Wilt u de inhoud samenvoegen met de map op de NAS?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Meer details</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Selecteer de bewerking die u wilt uitvoeren.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Uw bestanden, overal.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Licentieovereenkomst voor eindgebruikers</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Via internet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Sommige bestanden die moeten worden bijgewerkt, zijn momenteel in gebruik.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>De installatiesleutel is al geconfigureerd.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systeemstandaard</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>De installatie herstellen</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Beschikbaar vanaf</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Het bestand op deze computer overschrijven</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Voer het adres en de poort van de proxyserver in.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>De geselecteerde map is alleen-lezen. Kies een andere map.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Relayverbindingen zijn uitgeschakeld op de NAS.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Bezig met upgraden...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>Het certificaat van de NAS is gewijzigd sinds deze map voor het laatst is gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Een Calderix Drive-map maken</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Pictogrammen weergeven op bestanden die niet worden gesynchroniseerd</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Geavanceerde instellingen</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Toegang beperken</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; V&amp;orige</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumbereik</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>De lokale synchronisatiemap %1 is niet gevonden.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Eerdere versies bekijken</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>De verbinding detecteren...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Wizard voor geavanceerde installatie</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Bestanden die u in uw synchronisatiemap plaatst, worden up-to-date gehouden op de NAS en op al uw computers.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>De deellink kan niet worden verwijderd.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ve&amp;rwijderen</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradres</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Calderix Drive installeren</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>donderdag</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>dinsdag</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Verbonden met een andere NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Bestanden delen</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Wijzigen</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>De lokale map kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Beveiligde verbinding (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>De installatie van Calderix Drive is onderbroken. Uw systeem is niet gewijzigd. Voer de installatiewizard opnieuw uit om dit programma later te installeren.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Verbinding bewerken</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Volgende &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Dit element kan niet worden gedownload.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>De lokale database kan niet worden geopend.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Toepassen op alle submappen</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Deze mappen niet synchroniseren</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 is gedownload.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Onlangs bijgewerkte bestanden</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Dubbele synchronisatietaak</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>De NAS vereist verificatie in twee stappen voor uw account.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Wilt u deze deellink verwijderen?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive is al actief.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Beveiligingswaarschuwing</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Synchronisatiestatus openen</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Deze systeemmap kan niet als synchronisatiemap worden gebruikt.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Deze map niet synchroniseren</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Klik op het Calderix Drive-pictogram in de menubalk om de synchronisatiestatus te bekijken en instellingen te wijzigen.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>De verbinding is tot stand gebracht.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vrijdag</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>Het certificaat van de NAS kan niet worden geverifieerd. Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Dit bestand hoort bij geen enkele verbinding.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Overal toegang</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>De proxyserver vereist een wachtwoord</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Synchronisatiemap op de NAS</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Kies zelf de gedeelde map, de lokale map en de synchronisatieopties.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Bestanden met deze namen worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Welkom bij de installatiewizard van Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Sommige velden bevatten ongeldige waarden.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Instellingen toepassen...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Weet u zeker dat u de installatie van Calderix Drive wilt annuleren?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>De installatiewizard installeert Calderix Drive op uw computer. Klik op Volgende om door te gaan of op Annuleren om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Koppelpunt niet ondersteund</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Weergeven in map</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-overzicht</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Ik &amp;accepteer de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Status van Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Uw bestanden synchroniseren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Deze versie van Calderix Drive is al geïnstalleerd.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Calderix Drive verwijderen</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuten geleden</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Synchronisatie onderbroken</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Iedereen met de link kan het bestand openen in een webbrowser.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Uw account is uitgeschakeld op de NAS.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Negeren</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>De installatie verwijderen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Calderix Drive kan niet worden geüpgraded.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Uw gebruikersgegevens kunnen niet worden opgehaald van de NAS.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Verbindingstype</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Klaar om Calderix Drive te installeren</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Toch doorgaan</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecteer een map</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Selectieve synchronisatie van mappen</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Installatie van Calderix Drive onderbroken</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Uw wachtwoord is verlopen. Wijzig het op de NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Voer de verificatiecode in</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>De gebruikersnaam of het wachtwoord voor de proxyserver is onjuist.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Verloopt op</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Uw bestanden worden nu gesynchroniseerd met de NAS.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Deellinks zijn niet beschikbaar via een Farrowlink-verbinding.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Calderix Drive weergeven in het contextmenu</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>De Ostrel-service is uitgeschakeld op de NAS. Vraag uw beheerder om deze in te schakelen.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Sommige bestanden kunnen niet worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Calderix Drive wordt gestart...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 uur geleden</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Kies welke map op de NAS u wilt synchroniseren en waar deze op deze computer moet komen.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Een zwart-wit menubalkpictogram gebruiken</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactief</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Deze gedeelde map wordt al met een andere map gesynchroniseerd.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Open uw gesynchroniseerde bestanden vanaf elke computer die aan de NAS is gekoppeld.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>De link naar het bestand kan niet worden opgehaald.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Geen proxy</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisatie</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Onderbreken</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Dit veld mag niet leeg zijn.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opnieuw</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Vorige week</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Controleren op wijzigingen...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Begrepen</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Welkom bij Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Externe bestemming</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Alleen-lezen map</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Installatie wijzigen, herstellen of verwijderen</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nieuwe synchronisatiemap</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Deze computer</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>De lijst met mappen laden...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>De volgende toepassingen gebruiken bestanden die door deze installatie moeten worden bijgewerkt. Sluit deze toepassingen en klik op Opnieuw om door te gaan.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>zaterdag</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Verbinden via Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Er bestaat al een bestand met dezelfde naam.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Maak een nieuwe map om met de NAS te synchroniseren.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>Het certificaat van de NAS is gewijzigd. Vertrouwt u het nieuwe certificaat?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>De versies van dit bestand kunnen niet worden weergegeven.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Bestandsnaam toevoegen</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 downloaden...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Te veel mislukte pogingen. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Delen ingeschakeld</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Bijgewerkt</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computernaam</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Onderbroken</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel uitgeschakeld</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Alle bestanden zijn bijgewerkt</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Alles is klaar</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>Het volume van de synchronisatiemap %1 is niet gekoppeld.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Deze map wordt al gesynchroniseerd met dezelfde gedeelde map op de NAS.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Gedeelde map ontbreekt</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Klik om Calderix Drive bij te werken</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Een beveiligde verbinding (SSL) gebruiken</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Bestand openen</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>De installatie kan worden gestart.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Als hetzelfde bestand aan beide kanten is gewijzigd:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Herstellen om de installatie van Calderix Drive te herstellen. Klik op Vorige om uw installatie-instellingen te bekijken of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Synchronisatietaak toevoegen</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Voorbereiden</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Bijwerken...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Deze versie van Calderix Drive wordt niet ondersteund door de NAS. Upgrade Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Synchronisatie inschakelen</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>U hebt geen toestemming om deze map te openen.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>De map %1 is alleen-lezen.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Calderix Drive upgraden</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>De verificatiecode is onjuist.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Uw bestanden blijven beschikbaar, zelfs als deze computer offline is.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Gegevens controleren...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Logboekcategorie</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Calderix Drive starten</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>Upgrade mislukt.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synchronisatiemap</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Modus voor selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Proxy-instellingen</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opnieuw verbinden</translation>
    </message>
    <message>
        <source>March</source>
        <translation>maart</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Aanmelden mislukt</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Bestanden in gebruik</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle gebeurtenissen</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Hernoemd op deze computer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Er is geen map die kan worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synchronisatiemap</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Synchronisatie in één richting (alleen downloaden)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Selecteer de gedeelde map op de NAS die u wilt synchroniseren.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Zoeken naar NAS-apparaten in het lokale netwerk</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Verwijderen om Calderix Drive van uw computer te verwijderen. Klik op Vorige om uw installatie-instellingen te bekijken of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Handmatige proxyconfiguratie</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>De gedeelde map bestaat niet meer op de NAS.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Dit bericht niet meer weergeven</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Blijf op de hoogte</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Directe verbinding</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorige %1 pagina&apos;s</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Meer tips</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Verbinden met %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Voer een poortnummer tussen 1 en 65535 in.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Selectieve synchronisatie van bestanden</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Quotum vol</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Aangepast bereik</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Calderix Drive-map openen</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>De gedeelde map is niet gekoppeld op de NAS.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Installeren om de installatie te starten. Klik op Vorige om uw installatie-instellingen te bekijken of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>De externe map is niet beschikbaar omdat het volume ervan niet is gekoppeld.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Bureaubladmeldingen weergeven</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>De installatie is klaar om Calderix Drive te installeren.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Vergrendeld</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Snelle installatie</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Als u de synchronisatie voor deze map uitschakelt, wordt deze uit de synchronisatielijst verwijderd. De bestanden blijven op de NAS en op deze computer staan. Doorgaan?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Synchronisatie van deze map hervatten</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Link verwijderen</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Installatie annuleren</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Er bestaat al een synchronisatietaak voor deze map.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Deze map is gesynchroniseerd door een ander gebruikersaccount.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Er zijn geen instellingen gewijzigd.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Aanmelden mislukt. Controleer uw gebruikersnaam en wachtwoord.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Bestanden die aan deze filters voldoen, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Er is onvoldoende vrije ruimte op de NAS.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Alleen downloaden</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Ontkoppelen...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Synchronisatie hervatten</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>De installatiewizard van Calderix Drive is voltooid</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Synchronisatiemap instellen</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installeren</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Rondleiding</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Verloopt na %1 keer openen</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>De inhoud van beide mappen wordt samengevoegd.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Even geduld terwijl de installatiewizard Calderix Drive installeert.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Volgende maand</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Downloaden</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>U hebt geen toestemming om deze bewerking uit te voeren.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Herstelt fouten in de meest recente installatie door ontbrekende en beschadigde bestanden, snelkoppelingen en registervermeldingen te repareren.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Synchronisatie kan niet worden ingeschakeld voor deze map.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Er is geen eerdere versie van dit bestand beschikbaar.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Het synchronisatielogboek vernieuwen</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Klik op Verwijderen om Calderix Drive van uw computer te verwijderen.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Verwijdert Calderix Drive van uw computer.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Calderix Drive herstellen</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Installatiemodus</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Bestandsextensie</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Geen opties beschikbaar</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netwerk</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Synchroniseer en deel uw bestanden met uw NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Hernoemd op de NAS</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Even geduld terwijl de installatiewizard Calderix Drive installeert. Dit kan enkele minuten duren.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Calderix Drive starten bij aanmelden</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Deze wizard begeleidt u door de installatie.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Het meest recent gewijzigde bestand behouden</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Deze computer is al gekoppeld aan deze NAS.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lees de volgende licentieovereenkomst zorgvuldig door.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Calderix Drive kan niet worden gestart.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>Het NAS-pakket is te oud voor deze versie van Calderix Drive. Werk het pakket op de NAS bij.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nieuwe gedeelde map</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Voer de verificatiecode in.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>en nog %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Opnieuw instellen</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>De nieuwe taal wordt gebruikt nadat Calderix Drive opnieuw is gestart.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Calderix Drive wordt geïnitialiseerd...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Koppelingsgegevens</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Weet u zeker dat u wilt ontkoppelen van %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive is geïnstalleerd.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Er is een onbekende fout opgetreden.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Ik accepteer de voorwaarden van de licentieovereenkomst &amp;niet</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Het lokale netwerk doorzoeken</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Er is onvoldoende vrije ruimte op deze computer.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Synchronisatiemodus</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokale synchronisatiemap</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>U hebt ervoor gekozen het programma van uw systeem te verwijderen.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive heeft geen afzonderlijke onderdelen om te wijzigen.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Niet nodig</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive gaat nu uw bestanden synchroniseren met de NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Uw wijzigingen zijn niet opgeslagen. Wilt u ze opslaan?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Taal wijzigen</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokale bestemming</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Verbindingen vanaf dit IP-adres worden door de NAS geblokkeerd.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Er is al een nieuwere versie van Calderix Drive geïnstalleerd.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>woensdag</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Een eerdere versie downloaden</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Er is een netwerkfout opgetreden bij het controleren van de synchronisatiemap. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Certificaatfout</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dagen geleden</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Klik op Herstellen om Calderix Drive te herstellen.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Calderix Drive wijzigen, herstellen of verwijderen.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Bijgewerkte bestanden</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synchronisatietaak</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>De gedownloade versie verwijderen</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Uitgesloten bestanden</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Aangepaste duur</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Voer het adres van uw NAS en uw gebruikersaccount in.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>De installatie wijzigen</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Deze map is alleen-lezen. Wijzigingen worden niet naar de NAS gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Andere kiezen</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>De automatische verbinding is mislukt door een systeemfout.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Onlangs gewijzigd</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive is klaar voor gebruik.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>NAS-opslag is vol</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchroniseren: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augustus</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>Het opslagquotum van deze gedeelde map is vol.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Zojuist</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Incompatibele versie</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Verzenden naar %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>U kunt deze instellingen op elk moment wijzigen.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Er is een fout opgetreden tijdens de installatie.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Koppelen aan een NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>Toepassingen &amp;niet sluiten. Opnieuw opstarten is vereist.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Voltooien</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Toepassen en link kopiëren</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Synchronisatie onderbreken</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Map toevoegen</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Synchroniseer uw thuismap op de NAS met een Calderix Drive-map op deze computer.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Downloaden in één richting</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Selecteer de map die u wilt synchroniseren.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>De thuismapservice is uitgeschakeld op de NAS.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Er is een netwerkfout opgetreden. Controleer uw verbinding.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Deellinks vereisen de Ostrel-service, die op de NAS is uitgeschakeld.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Actie bij dubbelklikken</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Synchronisatie op aanvraag inschakelen</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Bestanden waarvan de naam met een punt begint</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>Het NAS-pakket ondersteunt deze versie van Calderix Drive niet.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Deze computer is nu gekoppeld aan uw NAS.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxyserver</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>De rondleiding sluiten</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>De gedeelde map %1 wordt al gesynchroniseerd met %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Automatische installatie mislukt. Stel Calderix Drive handmatig in.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Het synchronisatielogboek filteren</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Geen toestemming</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Synchronisatiemappen laden...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Kies wat er moet gebeuren als de installatie is voltooid.</translation>
    </message>
</context>
</TS>
