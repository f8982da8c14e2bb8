<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Link di condivisione</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive mantiene sincronizzati i file di questo computer con il tuo NAS. Fai clic su Inizia ora per associare questo computer al NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Caricamento in corso</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Non puoi creare più di %1 link di condivisione.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>I file di dimensioni superiori a %1 MB non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Sincronizzazione su richiesta</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>La cartella selezionata non può essere usata come cartella di sincronizzazione. Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Sincronizza i file temporanei</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Inoltro Farrowlink</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Mantieni entrambi i file e rinomina il file in conflitto</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Consente di modificare il modo in cui vengono installate le funzionalità.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Stampa</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L&apos;installazione guidata consente di modificare il modo in cui Calderix Drive è installato nel computer, di ripararlo o di rimuoverlo. Fai clic su Avanti per continuare o su Annulla per uscire dall&apos;installazione guidata.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 ha condiviso una cartella con te.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Fai clic sul pulsante Fine per uscire dall&apos;installazione guidata.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Scegli un&apos;altra cartella locale o un&apos;altra cartella condivisa sul NAS.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Installazione completata.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Limita il numero di accessi</translation>
    </message>
    <message>
        <source>October</source>
        <translation>ottobre</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Sincronizzazione di %1 file</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Impossibile creare un link di condivisione per questo elemento.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Dettagli dell&apos;indirizzo del server</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>La direzione di sincronizzazione di questa cartella non corrisponde all&apos;impostazione sul NAS.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Per installare Calderix Drive sono necessari i diritti di amministratore. Vuoi continuare comunque?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Questa cartella si sovrappone a una cartella di sincronizzazione esistente. Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Cartelle di sincronizzazione</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Scaricato</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>La tua quota di archiviazione sul NAS è esaurita. Libera spazio o chiedi all&apos;amministratore una quota maggiore.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>La connessione automatica è stata annullata dall&apos;amministratore.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domenica</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Impostazioni...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>L&apos;installazione di Calderix Drive è terminata prematuramente</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parametro non valido.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Le seguenti applicazioni stanno usando file che il programma di installazione deve aggiornare. Puoi chiuderle e fare clic su Riprova, oppure fare clic su Ignora per continuare comunque.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Indicizzazione della cartella in corso.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Cronologia download</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Unisci i file di entrambi i lati</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostra la guida introduttiva</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambia cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronizzazione bidirezionale</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Informazioni su Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>File esclusi dalla sincronizzazione</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usa le impostazioni proxy di sistema</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Scegli come configurare Calderix Drive.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Inizia ora</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Lo spazio libero sul disco di questa cartella non è sufficiente. Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco pieno</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Le modifiche apportate da altri computer su un&apos;unità di rete potrebbero non essere rilevate immediatamente.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Inserisci un nome utente.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Verifica del nome utente e della password in corso...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Cartella condivisa</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>La tua quota di archiviazione sul NAS è esaurita. Libera spazio prima di sincronizzare questa cartella.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Il server ha inviato una risposta imprevista.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizzazione in corso...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Inserisci al massimo %1 caratteri.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunedì</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Benvenuto</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Per iniziare, associa questo computer al tuo NAS.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Le cartelle deselezionate verranno rimosse da questo computer ma resteranno sul NAS. Vuoi continuare?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Apri Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Dimensione massima dei file</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Questa versione di Calderix Drive è troppo vecchia per il NAS. Aggiorna Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La connessione è instabile</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Configurazione avanzata</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Interrompi il download della versione</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 ha condiviso la cartella %2 con te.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Rinominato</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Cartella non vuota</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Chiudi le applicazioni e tenta di riavviarle.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Conserva i file in conflitto in una cartella separata</translation>
    </message>
    <message>
        <source>July</source>
        <translation>luglio</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 è un punto di montaggio e non può essere usato come cartella di sincronizzazione.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pagine successive</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Nessun record da visualizzare.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verifica della connessione in corso...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Vuoi davvero scollegare questa attività di sincronizzazione? I file su questo computer e sul NAS verranno mantenuti.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione in corso...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>L&apos;installazione di Calderix Drive è terminata prematuramente a causa di un errore. Il sistema non è stato modificato. Per installare questo programma in un secondo momento, esegui di nuovo l&apos;installazione guidata.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Impossibile stabilire una connessione sicura con il NAS.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direzione di sincronizzazione</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema di sincronizzazione</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Caricato</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>La connessione al NAS è stata interrotta.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>Il NAS è cambiato</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>I file su questo computer in conflitto con i file sul NAS verranno rinominati e mantenuti.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Ottieni link di condivisione</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versioni non corrispondenti</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Download di %1 non riuscito.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Il disco di questo computer è pieno.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Aggiorna il pacchetto del NAS per usare la sincronizzazione selettiva.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Il nome utente o la password non sono corretti.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Questa cartella di sincronizzazione appartiene a un altro NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostra le icone dello stato di sincronizzazione su file e cartelle</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>L&apos;installazione è stata interrotta.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>La cartella %1 non è vuota.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Completamento della configurazione in corso...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Impossibile attivare la sincronizzazione su richiesta.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Il download è stato interrotto.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Verrà creata una nuova attività di sincronizzazione per %1.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Riprendi la sincronizzazione di queste cartelle</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Pronto per riparare Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Sincronizza con un nuovo NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Impossibile verificare il certificato del NAS.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>L&apos;ID di connessione non è valido.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>È disponibile una versione più recente di Calderix Drive. Aggiornare ora?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>Il certificato del NAS è cambiato.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Fai clic con il pulsante destro del mouse su un file nella cartella di sincronizzazione per ottenere un link di condivisione.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>La cartella non è vuota. Vuoi unire il suo contenuto con la cartella sul NAS?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Altri dettagli</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Seleziona l&apos;operazione che vuoi eseguire.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>I tuoi file, ovunque.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contratto di licenza con l&apos;utente finale</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alcuni file da aggiornare sono attualmente in uso.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>La chiave di configurazione è già stata applicata.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinita di sistema</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Ripara l&apos;installazione</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Disponibile dal</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Sovrascrivi il file su questo computer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Inserisci l&apos;indirizzo e la porta del server proxy.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>La cartella selezionata è di sola lettura. Scegli un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Le connessioni tramite inoltro sono disattivate sul NAS.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Aggiornamento in corso...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Ripara</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>Il certificato del NAS è cambiato dall&apos;ultima sincronizzazione di questa cartella.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Crea una cartella Calderix Drive</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Mostra le icone sui file non sincronizzati</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Limita l&apos;accesso</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Indietro</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervallo di date</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Impossibile trovare la cartella di sincronizzazione locale %1.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Sfoglia le versioni precedenti</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Rilevamento della connessione in corso...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Configurazione guidata avanzata</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>I file che inserisci nella cartella di sincronizzazione vengono mantenuti aggiornati sul NAS e su tutti i tuoi computer.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Impossibile eliminare il link di condivisione.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ri&amp;muovi</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Indirizzo del server</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Installazione di Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>giovedì</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martedì</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Connesso a un altro NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Condividi i file</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Impossibile creare la cartella locale.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Connessione sicura (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>L&apos;installazione di Calderix Drive è stata interrotta. Il sistema non è stato modificato. Per installare questo programma in un secondo momento, esegui di nuovo l&apos;installazione guidata.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>A&amp;vanti &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Impossibile scaricare questo elemento.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Impossibile aprire il database locale.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Applica a tutte le sottocartelle</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Non sincronizzare queste cartelle</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 è stato scaricato.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>File aggiornati di recente</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Attività di sincronizzazione duplicata</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>Il NAS richiede la verifica in due passaggi per il tuo account.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Vuoi eliminare questo link di condivisione?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive è già in esecuzione.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Avviso di sicurezza</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Apri lo stato della sincronizzazione</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Questa cartella di sistema non può essere usata come cartella di sincronizzazione.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Non sincronizzare questa cartella</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Fai clic sull&apos;icona di Calderix Drive nella barra dei menu per vedere lo stato della sincronizzazione e modificare le impostazioni.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connessione riuscita.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>venerdì</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>Impossibile verificare il certificato del NAS. Vuoi continuare?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Questo file non appartiene a nessuna connessione.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Accedi ovunque</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dicembre</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Il server proxy richiede una password</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Cartella di sincronizzazione sul NAS</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Scegli tu la cartella condivisa, la cartella locale e le opzioni di sincronizzazione.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>I file con questi nomi non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Benvenuto nell&apos;installazione guidata di Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Alcuni campi contengono valori non validi.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applicazione delle impostazioni in corso...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Vuoi davvero annullare l&apos;installazione di Calderix Drive?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L&apos;installazione guidata installerà Calderix Drive nel computer. Fai clic su Avanti per continuare o su Annulla per uscire dall&apos;installazione guidata.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Punto di montaggio non supportato</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome cartella</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Panoramica del NAS</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Stato di Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Sincronizza i tuoi file</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Questa versione di Calderix Drive è già installata.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Rimuovi Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>settembre</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuti fa</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Sincronizzazione sospesa</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Chiunque abbia il link può aprire il file in un browser web.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Il tuo account è stato disattivato sul NAS.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignora</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maggio</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Rimuovi l&apos;installazione</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Impossibile aggiornare Calderix Drive.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Impossibile recuperare le tue informazioni utente dal NAS.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo di connessione</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Pronto per installare Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continua comunque</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creato</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Seleziona una cartella</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Sincronizzazione selettiva delle cartelle</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febbraio</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>L&apos;installazione di Calderix Drive è stata interrotta</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>La password è scaduta. Modificala sul NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Inserisci il codice di verifica</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Il nome utente o la password del server proxy non sono corretti.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Scade il</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>I tuoi file vengono ora mantenuti sincronizzati con il NAS.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>I link di condivisione non sono disponibili tramite una connessione Farrowlink.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Mostra Calderix Drive nel menu contestuale</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Il servizio Ostrel è disattivato sul NAS. Chiedi all&apos;amministratore di attivarlo.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Non è stato possibile sincronizzare alcuni file.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Percorso della cartella</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Avvio di Calderix Drive in corso...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ore fa</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Scegli quale cartella del NAS sincronizzare e dove conservarla su questo computer.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Usa un&apos;icona in bianco e nero nella barra dei menu</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inattivo</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Questa cartella condivisa è già sincronizzata con un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Apri i file sincronizzati da qualsiasi computer associato al NAS.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Impossibile recuperare il link al file.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nessun proxy</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizzazione</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Questo campo non può essere vuoto.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Settimana scorsa</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Ricerca delle modifiche in corso...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Benvenuto in Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Destinazione remota</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Cartella di sola lettura</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Modifica, ripara o rimuovi l&apos;installazione</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nuova cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Caricamento dell&apos;elenco delle cartelle...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Le seguenti applicazioni stanno usando file che devono essere aggiornati da questa installazione. Chiudi queste applicazioni e fai clic su Riprova per continuare.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sabato</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Connetti tramite Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Esiste già un file con lo stesso nome.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Crea una nuova cartella da sincronizzare con il NAS.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>Il certificato del NAS è cambiato. Consideri attendibile il nuovo certificato?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Impossibile elencare le versioni di questo file.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Aggiungi nome file</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Download di %1 in corso...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Troppi tentativi non riusciti. Riprova più tardi.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>aprile</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Condivisione attivata</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sospeso</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel disattivato</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Tutti i file sono aggiornati</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Tutto pronto</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>Il volume della cartella di sincronizzazione %1 non è montato.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Questa cartella è già sincronizzata con la stessa cartella condivisa sul NAS.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Cartella condivisa mancante</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Fai clic per aggiornare Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usa una connessione sicura (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Il programma di installazione è pronto per iniziare l&apos;installazione.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Quando lo stesso file è stato modificato su entrambi i lati:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fai clic su Ripara per riparare l&apos;installazione di Calderix Drive. Fai clic su Indietro per rivedere o modificare le impostazioni di installazione. Fai clic su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Aggiungi attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparazione</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aggiornamento...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Questa versione di Calderix Drive non è supportata dal NAS. Aggiorna Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Attiva la sincronizzazione</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Non hai l&apos;autorizzazione per accedere a questa cartella.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>La cartella %1 è di sola lettura.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Aggiorna Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Il codice di verifica non è corretto.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>I tuoi file restano disponibili anche quando questo computer non è connesso.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Verifica dei dati in corso...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Categoria del registro</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Avvia Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>Aggiornamento non riuscito.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Modalità di sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Impostazioni proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Riconnetti</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Accesso non riuscito</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>File in uso</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Rinominato su questo computer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Nessuna cartella può essere sincronizzata.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Sincronizzazione unidirezionale (solo download)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Seleziona la cartella condivisa sul NAS che vuoi sincronizzare.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Cerca dispositivi NAS nella rete locale</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fai clic su Rimuovi per rimuovere Calderix Drive dal computer. Fai clic su Indietro per rivedere o modificare le impostazioni di installazione. Fai clic su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configurazione manuale del proxy</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>La cartella condivisa non esiste più sul NAS.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Non mostrare più questo messaggio</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Resta informato</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pagine precedenti</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Altri suggerimenti</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Connessione a %1 in corso...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Inserisci un numero di porta compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Sincronizzazione selettiva dei file</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Quota esaurita</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervallo personalizzato</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Apri la cartella Calderix Drive</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>La cartella condivisa non è montata sul NAS.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fai clic su Installa per iniziare l&apos;installazione. Fai clic su Indietro per rivedere o modificare le impostazioni di installazione. Fai clic su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>La cartella remota non è disponibile perché il suo volume non è montato.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra le notifiche sul desktop</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Il programma di installazione è pronto per installare Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloccato</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configurazione rapida</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Se disattivi la sincronizzazione di questa cartella, la cartella verrà rimossa dall&apos;elenco di sincronizzazione. I file restano sul NAS e su questo computer. Continuare?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Riprendi la sincronizzazione di questa cartella</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Elimina link</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Annulla installazione</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Esiste già un&apos;attività di sincronizzazione per questa cartella.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Questa cartella è stata sincronizzata da un altro account utente.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nessuna impostazione è stata modificata.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Accesso non riuscito. Verifica il nome utente e la password.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>I file che corrispondono a questi filtri non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Lo spazio libero sul NAS non è sufficiente.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Scollegamento in corso...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Riprendi sincronizzazione</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Installazione guidata di Calderix Drive completata</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Imposta la cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installa</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Guida introduttiva</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Scade dopo %1 accessi</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Il contenuto delle due cartelle verrà unito.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Attendi mentre l&apos;installazione guidata installa Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mese successivo</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Download in corso</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Non hai l&apos;autorizzazione per eseguire questa operazione.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Ripara gli errori dell&apos;installazione più recente correggendo file mancanti o danneggiati, collegamenti e voci del Registro di sistema.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Impossibile attivare la sincronizzazione per questa cartella.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Non è disponibile alcuna versione precedente di questo file.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Aggiorna il registro di sincronizzazione</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Fai clic su Rimuovi per rimuovere Calderix Drive dal computer.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Rimuove Calderix Drive dal computer.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Ripara Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Modalità di configurazione</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Estensione file</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementi</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nessuna opzione disponibile</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Sincronizza e condividi i tuoi file con il NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorizzazione negata</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Rinominato sul NAS</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Attendi mentre l&apos;installazione guidata installa Calderix Drive. L&apos;operazione potrebbe richiedere alcuni minuti.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Avvia Calderix Drive all&apos;accesso</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Questa procedura guidata ti accompagnerà nell&apos;installazione.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Mantieni il file modificato più di recente</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Questo computer è già associato a questo NAS.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leggi attentamente il seguente contratto di licenza.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Impossibile avviare Calderix Drive.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>Il pacchetto del NAS è troppo vecchio per questa versione di Calderix Drive. Aggiorna il pacchetto sul NAS.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nuova condivisione</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Inserisci il codice di verifica.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>La nuova lingua verrà utilizzata dopo il riavvio di Calderix Drive.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Inizializzazione di Calderix Drive in corso...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Informazioni di associazione</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Vuoi davvero scollegarti da %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>giugno</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive è stato installato correttamente.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Si è verificato un errore sconosciuto.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Non accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Cerca nella rete locale</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Lo spazio libero su questo computer non è sufficiente.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Cartella di sincronizzazione locale</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Hai scelto di rimuovere il programma dal sistema.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive non ha funzionalità indipendenti da modificare.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Non necessario</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive inizierà ora a sincronizzare i tuoi file con il NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Le modifiche non sono state salvate. Vuoi salvarle?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Cambia lingua</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Destinazione locale</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Le connessioni da questo indirizzo IP sono bloccate dal NAS.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Una versione più recente di Calderix Drive è già installata.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercoledì</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Scarica una versione precedente</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Si è verificato un errore di rete durante la verifica della cartella di sincronizzazione. Riprova.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Errore del certificato</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 giorni fa</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Fai clic su Ripara per riparare Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Modifica, ripara o rimuovi Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>File aggiornati</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Elimina la versione scaricata</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>File esclusi</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Durata personalizzata</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Inserisci l&apos;indirizzo del NAS e il tuo account utente.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Modifica l&apos;installazione</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Questa cartella è di sola lettura. Le modifiche non vengono sincronizzate con il NAS.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Scegli un&apos;altra</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Connessione automatica non riuscita a causa di un errore di sistema.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Modificati di recente</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive è pronto.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>Spazio di archiviazione del NAS esaurito</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Sincronizzazione: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>La quota di archiviazione di questa cartella condivisa è esaurita.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Proprio ora</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Versione non compatibile</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Invia a %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Puoi modificare queste impostazioni in qualsiasi momento.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Si è verificato un errore durante l&apos;installazione.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Associa a un NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>&amp;Non chiudere le applicazioni. Sarà necessario un riavvio.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Applica e copia link</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Sospendi sincronizzazione</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Sincronizza la tua cartella home sul NAS con una cartella Calderix Drive su questo computer.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Download unidirezionale</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Seleziona la cartella che vuoi sincronizzare.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mese precedente</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Il servizio cartella home è disattivato sul NAS.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Si è verificato un errore di rete. Verifica la connessione.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mese scorso</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>I link di condivisione richiedono il servizio Ostrel, che è disattivato sul NAS.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Azione del doppio clic</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Attiva la sincronizzazione su richiesta</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>File il cui nome inizia con un punto</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>Il pacchetto del NAS non supporta questa versione di Calderix Drive.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Questo computer è ora associato al tuo NAS.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Server proxy</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Chiudi la guida introduttiva</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>La cartella condivisa %1 è già sincronizzata con %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Configurazione automatica non riuscita. Configura Calderix Drive manualmente.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Filtra il registro di sincronizzazione</translation>
    </message>
    <message>
        <source>January</source>
        <translation>gennaio</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Nessuna autorizzazione</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Caricamento delle cartelle di sincronizzazione...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Scegli cosa fare al termine della configurazione.</translation>
    </message>
</context>
</TS>
