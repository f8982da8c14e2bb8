<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Freigabelink</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive hält die Dateien auf diesem Computer mit Ihrem NAS synchron. Klicken Sie auf „Jetzt starten“, um diesen Computer mit Ihrem NAS zu koppeln.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Wird hochgeladen</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Sie können höchstens %1 Freigabelinks erstellen.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Dateien, die größer als %1 MB sind, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synchronisierung bei Bedarf</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>Der ausgewählte Ordner kann nicht als Synchronisierungsordner verwendet werden. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Temporäre Dateien synchronisieren</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink-Relay</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Beide Dateien behalten und die kollidierende Datei umbenennen</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Ermöglicht das Ändern der Installationsart von Funktionen.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Mit dem Setup-Assistenten können Sie die Installation von Calderix Drive auf Ihrem Computer ändern, reparieren oder entfernen. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 hat einen Ordner für Sie freigegeben.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicken Sie auf „Fertigstellen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Wählen Sie einen anderen lokalen Ordner oder einen anderen freigegebenen Ordner auf dem NAS.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Das Setup ist abgeschlossen.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Anzahl der Zugriffe begrenzen</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 Dateien werden synchronisiert</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Für dieses Element kann kein Freigabelink erstellt werden.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Details zur Serveradresse</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>Die Synchronisierungsrichtung dieses Ordners stimmt nicht mit der Einstellung auf dem NAS überein.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Sie benötigen Administratorrechte, um Calderix Drive zu installieren. Möchten Sie trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Dieser Ordner überschneidet sich mit einem vorhandenen Synchronisierungsordner. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Synchronisierungsordner</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Heruntergeladen</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Ihr Speicherkontingent auf dem NAS ist erschöpft. Geben Sie Speicherplatz frei oder bitten Sie Ihren Administrator um ein größeres Kontingent.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>Die automatische Verbindung wurde vom Administrator abgebrochen.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Calderix Drive-Setup wurde vorzeitig beendet</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Ungültiger Parameter.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die vom Setup aktualisiert werden müssen. Sie können sie schließen und auf „Wiederholen“ klicken oder auf „Ignorieren“ klicken, um trotzdem fortzufahren.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Dieser Ordner wird gerade indiziert.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Download-Verlauf</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Dateien beider Seiten zusammenführen</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Einführung anzeigen</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Synchronisierungsordner ändern</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Zwei-Wege-Synchronisierung</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Ordner ändern</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Über Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Von der Synchronisierung ausgeschlossene Dateien</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Proxy-Einstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Wählen Sie aus, wie Sie Calderix Drive einrichten möchten.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Auf dem Datenträger dieses Ordners ist nicht genügend Speicherplatz frei. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisierungsmodus</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Stichwort</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Änderungen, die andere Computer auf einem Netzlaufwerk vornehmen, werden möglicherweise nicht sofort erkannt.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Bitte geben Sie einen Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Benutzername und Passwort werden überprüft...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Freigegebener Ordner</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Ihr Speicherkontingent auf dem NAS ist erschöpft. Geben Sie Speicherplatz frei, bevor Sie diesen Ordner synchronisieren.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Der Server hat eine unerwartete Antwort gesendet.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisierung läuft...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Bitte geben Sie höchstens %1 Zeichen ein.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Koppeln Sie diesen Computer mit Ihrem NAS, um loszulegen.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Ordner ändern</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Ordner, deren Auswahl Sie aufheben, werden von diesem Computer entfernt, bleiben aber auf dem NAS erhalten. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Calderix Drive öffnen</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale Dateigröße</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Diese Version von Calderix Drive ist für das NAS zu alt. Bitte aktualisieren Sie Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Die Verbindung ist instabil</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Erweiterte Einrichtung</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Download der Version abbrechen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 hat den Ordner %2 für Sie freigegeben.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Ordner nicht leer</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>Anwendungen &amp;schließen und versuchen, sie neu zu starten.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Kollidierende Dateien in einem separaten Ordner aufbewahren</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 ist ein Einhängepunkt und kann nicht als Synchronisierungsordner verwendet werden.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nächste %1 Seiten</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Es sind keine Einträge vorhanden.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synchronisierungsaufgaben</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Möchten Sie die Verknüpfung dieser Synchronisierungsaufgabe wirklich aufheben? Die Dateien auf diesem Computer und auf dem NAS bleiben erhalten.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Das Calderix Drive-Setup wurde aufgrund eines Fehlers vorzeitig beendet. Ihr System wurde nicht geändert. Um dieses Programm zu einem späteren Zeitpunkt zu installieren, führen Sie den Setup-Assistenten erneut aus.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Es konnte keine sichere Verbindung zum NAS hergestellt werden.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisierungsrichtung</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synchronisierungsproblem</translation>
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
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Hochgeladen</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>Die Verbindung zum NAS wurde unterbrochen.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>Das NAS hat sich geändert</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Dateien auf diesem Computer, die mit Dateien auf dem NAS kollidieren, werden umbenannt und beibehalten.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Freigabelink abrufen</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionskonflikt</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>%1 konnte nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Der Datenträger dieses Computers ist voll.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Bitte aktualisieren Sie das NAS-Paket, um die selektive Synchronisierung zu verwenden.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Der Benutzername oder das Passwort ist falsch.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Dieser Synchronisierungsordner gehört zu einem anderen NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Synchronisierungsstatus-Symbole auf Dateien und Ordnern anzeigen</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>Das Setup wurde unterbrochen.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>Der Ordner %1 ist nicht leer.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Einrichtung wird abgeschlossen...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Die Synchronisierung bei Bedarf konnte nicht aktiviert werden.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Der Download wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Für %1 wird eine neue Synchronisierungsaufgabe erstellt.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Synchronisierung dieser Ordner fortsetzen</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Bereit zur Reparatur von Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Mit einem neuen NAS synchronisieren</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Das Zertifikat des NAS konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>Die Verbindungs-ID ist ungültig.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Eine neuere Version von Calderix Drive ist verfügbar. Jetzt aktualisieren?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>Das Zertifikat des NAS hat sich geändert.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Klicken Sie mit der rechten Maustaste auf eine Datei in Ihrem Synchronisierungsordner, um einen Freigabelink zu erhalten.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>Der Ordner ist nicht leer. Möchten Sie seinen Inhalt mit dem Ordner auf dem NAS zusammenführen?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Weitere Details</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Wählen Sie den gewünschten Vorgang aus.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Ihre Dateien, überall.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Endbenutzer-Lizenzvertrag</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Über das Internet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Einige Dateien, die aktualisiert werden müssen, werden zurzeit verwendet.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>Der Einrichtungsschlüssel wurde bereits konfiguriert.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Installation reparieren</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Verfügbar ab</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Datei auf diesem Computer überschreiben</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Bitte geben Sie die Adresse und den Port des Proxyservers ein.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>Der ausgewählte Ordner ist schreibgeschützt. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Relay-Verbindungen sind auf dem NAS deaktiviert.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Aktualisierung läuft...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>Das Zertifikat des NAS hat sich seit der letzten Synchronisierung dieses Ordners geändert.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Calderix Drive-Ordner erstellen</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Symbole auf nicht synchronisierten Dateien anzeigen</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Zugriff beschränken</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Der lokale Synchronisierungsordner %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Frühere Versionen durchsuchen</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Verbindung wird erkannt...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Assistent für die erweiterte Einrichtung</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Dateien in Ihrem Synchronisierungsordner werden auf dem NAS und auf allen Ihren Computern auf dem neuesten Stand gehalten.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Der Freigabelink konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Calderix Drive wird installiert</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Mit einem anderen NAS verbunden</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Dateien freigeben</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>Ä&amp;ndern</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Der lokale Ordner konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Sichere Verbindung (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Das Calderix Drive-Setup wurde unterbrochen. Ihr System wurde nicht geändert. Um dieses Programm zu einem späteren Zeitpunkt zu installieren, führen Sie den Setup-Assistenten erneut aus.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Dieses Element kann nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Die lokale Datenbank konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Auf alle Unterordner anwenden</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Diese Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 wurde heruntergeladen.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Zuletzt aktualisierte Dateien</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Doppelte Synchronisierungsaufgabe</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>Das NAS erfordert für Ihr Konto eine Bestätigung in zwei Schritten.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Möchten Sie diesen Freigabelink löschen?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive wird bereits ausgeführt.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Sicherheitswarnung</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Synchronisierungsstatus öffnen</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Dieser Systemordner kann nicht als Synchronisierungsordner verwendet werden.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Diesen Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Klicken Sie auf das Calderix Drive-Symbol in der Menüleiste, um den Synchronisierungsstatus anzuzeigen und Einstellungen zu ändern.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Die Verbindung wurde erfolgreich hergestellt.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>Das Zertifikat des NAS konnte nicht überprüft werden. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Diese Datei gehört zu keiner Verbindung.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Überall zugreifen</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Der Proxyserver erfordert ein Passwort</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Synchronisierungsordner auf dem NAS</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Wählen Sie den freigegebenen Ordner, den lokalen Ordner und die Synchronisierungsoptionen selbst aus.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Dateien mit diesen Namen werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Willkommen beim Setup-Assistenten von Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Einige Felder enthalten ungültige Werte.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Einstellungen werden übernommen...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Möchten Sie die Installation von Calderix Drive wirklich abbrechen?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Der Setup-Assistent installiert Calderix Drive auf Ihrem Computer. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Einhängepunkt nicht unterstützt</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS-Übersicht</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Ich &amp;akzeptiere die Bedingungen des Lizenzvertrags</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Calderix Drive-Status</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Dateien synchronisieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Diese Version von Calderix Drive ist bereits installiert.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Calderix Drive entfernen</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Vor %1 Minuten</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Synchronisierung angehalten</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Jeder, der den Link hat, kann die Datei in einem Webbrowser öffnen.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Ihr Konto wurde auf dem NAS deaktiviert.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorieren</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Installation entfernen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Calderix Drive konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Ihre Benutzerinformationen konnten nicht vom NAS abgerufen werden.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Verbindungstyp</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Bereit zur Installation von Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Trotzdem fortfahren</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Selektive Synchronisierung von Ordnern</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Calderix Drive-Setup wurde unterbrochen</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Ihr Passwort ist abgelaufen. Bitte ändern Sie es auf dem NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Bestätigungscode eingeben</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Der Benutzername oder das Passwort für den Proxyserver ist falsch.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Läuft ab am</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Ihre Dateien werden jetzt mit dem NAS synchron gehalten.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Freigabelinks sind über eine Farrowlink-Verbindung nicht verfügbar.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Calderix Drive im Kontextmenü anzeigen</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Der Ostrel-Dienst ist auf dem NAS deaktiviert. Bitten Sie Ihren Administrator, ihn zu aktivieren.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Einige Dateien konnten nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Calderix Drive wird gestartet...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Vor %1 Stunden</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Wählen Sie aus, welcher Ordner auf dem NAS synchronisiert und wo er auf diesem Computer abgelegt werden soll.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Schwarz-weißes Menüleistensymbol verwenden</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Dieser freigegebene Ordner wird bereits mit einem anderen Ordner synchronisiert.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Öffnen Sie Ihre synchronisierten Dateien auf jedem Computer, der mit dem NAS gekoppelt ist.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Der Link zur Datei konnte nicht abgerufen werden.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Kein Proxy</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisierung</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Dieses Feld darf nicht leer sein.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Änderungen werden gesucht...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Willkommen bei Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Entferntes Ziel</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Schreibgeschützter Ordner</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Installation ändern, reparieren oder entfernen</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Neuer Synchronisierungsordner</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Ordnerliste wird geladen...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die von diesem Setup aktualisiert werden müssen. Schließen Sie diese Anwendungen und klicken Sie auf „Wiederholen“, um fortzufahren.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Über Farrowlink verbinden</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Eine Datei mit demselben Namen ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Erstellen Sie einen neuen Ordner, der mit dem NAS synchronisiert werden soll.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>Das Zertifikat des NAS hat sich geändert. Vertrauen Sie dem neuen Zertifikat?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Die Versionen dieser Datei können nicht aufgelistet werden.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Dateinamen hinzufügen</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 wird heruntergeladen...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Zu viele fehlgeschlagene Versuche. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Freigabe aktiviert</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computername</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel deaktiviert</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Alle Dateien sind auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>Das Volume des Synchronisierungsordners %1 ist nicht eingehängt.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Dieser Ordner wird bereits mit demselben freigegebenen Ordner auf dem NAS synchronisiert.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Freigegebener Ordner fehlt</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Klicken Sie hier, um Calderix Drive zu aktualisieren</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Sichere Verbindung (SSL) verwenden</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Das Setup ist bereit, mit der Installation zu beginnen.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Wenn dieselbe Datei auf beiden Seiten geändert wurde:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Reparieren“, um die Installation von Calderix Drive zu reparieren. Klicken Sie auf „Zurück“, um Ihre Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Synchronisierungsaufgabe hinzufügen</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Vorbereitung</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Wird aktualisiert...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Diese Version von Calderix Drive wird vom NAS nicht unterstützt. Bitte aktualisieren Sie Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Synchronisierung aktivieren</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Sie haben keine Berechtigung für den Zugriff auf diesen Ordner.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>Der Ordner %1 ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Calderix Drive aktualisieren</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Der Bestätigungscode ist falsch.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Ihre Dateien bleiben verfügbar, auch wenn dieser Computer offline ist.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Daten werden überprüft...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Protokollkategorie</translation>
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
        <translation>Die Aktualisierung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Synchronisierungsordner</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Modus der selektiven Synchronisierung</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Proxy-Einstellungen</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Erneut verbinden</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Dateien in Verwendung</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle Ereignisse</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Auf diesem Computer umbenannt</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Es gibt keinen Ordner, der synchronisiert werden kann.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synchronisierungsordner</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Einweg-Synchronisierung (nur herunterladen)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Wählen Sie den freigegebenen Ordner auf dem NAS aus, den Sie synchronisieren möchten.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Im lokalen Netzwerk nach NAS-Geräten suchen</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Entfernen“, um Calderix Drive von Ihrem Computer zu entfernen. Klicken Sie auf „Zurück“, um Ihre Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuelle Proxy-Konfiguration</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>Der freigegebene Ordner ist auf dem NAS nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Auf dem Laufenden bleiben</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktverbindung</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorherige %1 Seiten</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Weitere Tipps</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Verbindung mit %1 wird hergestellt...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Bitte geben Sie eine Portnummer zwischen 1 und 65535 ein.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Selektive Synchronisierung von Dateien</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Kontingent erschöpft</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Benutzerdefinierter Zeitraum</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Calderix Drive-Ordner öffnen</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>Der freigegebene Ordner ist auf dem NAS nicht eingehängt.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Installieren“, um mit der Installation zu beginnen. Klicken Sie auf „Zurück“, um Ihre Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>Der entfernte Ordner ist nicht verfügbar, weil sein Volume nicht eingehängt ist.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Desktop-Benachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Das Setup ist bereit, Calderix Drive zu installieren.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Schnelleinrichtung</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Wenn Sie die Synchronisierung für diesen Ordner ausschalten, wird er aus der Synchronisierungsliste entfernt. Die Dateien bleiben auf dem NAS und auf diesem Computer erhalten. Fortfahren?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Synchronisierung dieses Ordners fortsetzen</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Link löschen</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Setup abbrechen</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Für diesen Ordner ist bereits eine Synchronisierungsaufgabe vorhanden.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Dieser Ordner wurde von einem anderen Benutzerkonto synchronisiert.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Es wurden keine Einstellungen geändert.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Die Anmeldung ist fehlgeschlagen. Bitte überprüfen Sie Ihren Benutzernamen und Ihr Passwort.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Dateien, die diesen Filtern entsprechen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Auf dem NAS ist nicht genügend Speicherplatz frei.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Nur herunterladen</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Verknüpfung wird aufgehoben...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Synchronisierung fortsetzen</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Der Calderix Drive-Setup-Assistent wurde abgeschlossen</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Synchronisierungsordner festlegen</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Einführung</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Läuft nach %1 Zugriffen ab</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Die Inhalte beider Ordner werden zusammengeführt.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Bitte warten Sie, während der Setup-Assistent Calderix Drive installiert.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Wird heruntergeladen</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Sie haben keine Berechtigung, diesen Vorgang auszuführen.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Behebt Fehler in der letzten Installation, indem fehlende und beschädigte Dateien, Verknüpfungen und Registrierungseinträge repariert werden.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Die Synchronisierung konnte für diesen Ordner nicht aktiviert werden.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Für diese Datei ist keine frühere Version verfügbar.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Synchronisierungsprotokoll aktualisieren</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Klicken Sie auf „Entfernen“, um Calderix Drive von Ihrem Computer zu entfernen.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Entfernt Calderix Drive von Ihrem Computer.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Calderix Drive reparieren</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Einrichtungsmodus</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Dateierweiterung</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Keine Optionen verfügbar</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Synchronisieren und teilen Sie Ihre Dateien mit Ihrem NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Auf dem NAS umbenannt</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Bitte warten Sie, während der Setup-Assistent Calderix Drive installiert. Dies kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Calderix Drive bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Dieser Assistent führt Sie durch die Installation.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Die zuletzt geänderte Datei behalten</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Dieser Computer ist bereits mit diesem NAS gekoppelt.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Bitte lesen Sie den folgenden Lizenzvertrag sorgfältig durch.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Calderix Drive konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>Das NAS-Paket ist für diese Version von Calderix Drive zu alt. Bitte aktualisieren Sie das Paket auf dem NAS.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Neue Freigabe</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Bitte geben Sie den Bestätigungscode ein.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>Die neue Sprache wird nach dem Neustart von Calderix Drive verwendet.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Calderix Drive wird initialisiert...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Kopplungsinformationen</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Möchten Sie die Verknüpfung mit %1 wirklich aufheben?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive wurde erfolgreich installiert.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ein unbekannter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Ich akzeptiere die Bedingungen des Lizenzvertrags &amp;nicht</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Bereitschaft</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Lokales Netzwerk durchsuchen</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Auf diesem Computer ist nicht genügend Speicherplatz frei.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Synchronisierungsmodus</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokaler Synchronisierungsordner</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Sie haben sich entschieden, das Programm von Ihrem System zu entfernen.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive hat keine unabhängigen Funktionen, die geändert werden können.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Nicht erforderlich</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive synchronisiert Ihre Dateien jetzt mit dem NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Ihre Änderungen wurden nicht gespeichert. Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Sprache ändern</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Lokales Ziel</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Verbindungen von dieser IP-Adresse werden vom NAS blockiert.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Eine neuere Version von Calderix Drive ist bereits installiert.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Eine frühere Version herunterladen</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Beim Überprüfen des Synchronisierungsordners ist ein Netzwerkfehler aufgetreten. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Zertifikatfehler</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Vor %1 Tagen</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Klicken Sie auf „Reparieren“, um Calderix Drive zu reparieren.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Calderix Drive ändern, reparieren oder entfernen.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Aktualisierte Dateien</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Synchronisierungsaufgabe</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Heruntergeladene Version löschen</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ausgeschlossene Dateien</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Benutzerdefinierte Dauer</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Geben Sie die Adresse Ihres NAS und Ihr Benutzerkonto ein.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Installation ändern</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Dieser Ordner ist schreibgeschützt. Änderungen werden nicht mit dem NAS synchronisiert.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Anderen auswählen</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Die automatische Verbindung ist aufgrund eines Systemfehlers fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive ist bereit.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>NAS-Speicher ist voll</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronisierung: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertigstellen</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>Das Speicherkontingent dieses freigegebenen Ordners ist erschöpft.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Inkompatible Version</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>An %1 senden</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Sie können diese Einstellungen jederzeit ändern.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Während der Installation ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Mit einem NAS koppeln</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>Anwendungen &amp;nicht schließen. Ein Neustart ist erforderlich.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertigstellen</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Übernehmen und Link kopieren</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Synchronisierung anhalten</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Synchronisieren Sie Ihren Home-Ordner auf dem NAS mit einem Calderix Drive-Ordner auf diesem Computer.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Einweg-Download</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Wählen Sie den Ordner aus, den Sie synchronisieren möchten.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Der Home-Ordner-Dienst ist auf dem NAS deaktiviert.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Ein Netzwerkfehler ist aufgetreten. Bitte überprüfen Sie Ihre Verbindung.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Freigabelinks benötigen den Ostrel-Dienst, der auf dem NAS deaktiviert ist.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Aktion bei Doppelklick</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Synchronisierung bei Bedarf aktivieren</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Dateien, deren Namen mit einem Punkt beginnen</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>Das NAS-Paket unterstützt diese Version von Calderix Drive nicht.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Dieser Computer ist jetzt mit Ihrem NAS gekoppelt.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxyserver</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Einführung schließen</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>Der freigegebene Ordner %1 wird bereits mit %2 synchronisiert.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Die automatische Einrichtung ist fehlgeschlagen. Bitte richten Sie Calderix Drive manuell ein.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Synchronisierungsprotokoll filtern</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Synchronisierungsordner werden geladen...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Wählen Sie aus, was nach Abschluss der Einrichtung geschehen soll.</translation>
    </message>
</context>
</TS>
