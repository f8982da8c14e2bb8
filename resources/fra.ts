<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Lien de partage</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive synchronise les fichiers de cet ordinateur avec votre NAS. Cliquez sur Commencer pour associer cet ordinateur à votre NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>October</source>
        <translation>octobre</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synchronisation de %1 fichiers</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Téléchargé</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>dimanche</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisation bidirectionnelle</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>À propos de Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Utiliser les paramètres proxy du système</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Choisissez comment vous souhaitez configurer Calderix Drive.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisation...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lundi</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Associez cet ordinateur à votre NAS pour commencer.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Ouvrir Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La connexion est instable</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Configuration avancée</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>La connexion au NAS a été perdue.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>Le NAS a changé</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Obtenir un lien de partage</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Mise à niveau en cours...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jeudi</translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>mardi</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Fichiers récemment mis à jour</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive est déjà en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connexion établie.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vendredi</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Choisissez vous-même le dossier partagé, le dossier local et les options de synchronisation.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>September</source>
        <translation>septembre</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Il y a %1 minutes</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Synchronisation suspendue</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuer quand même</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Vos fichiers sont désormais synchronisés avec le NAS.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Démarrage de Calderix Drive...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Il y a %1 heures</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Choisissez le dossier du NAS à synchroniser et son emplacement sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Aucun proxy</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semaine dernière</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>J&apos;ai compris</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Bienvenue dans Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>samedi</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Suspendu</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Tous les fichiers sont à jour</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Cliquez pour mettre à jour Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Mise à jour...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Mettre à niveau Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Vérification des données...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>La mise à niveau a échoué.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Dossier de synchronisation</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Paramètres du proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Se reconnecter</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More tips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Ouvrir le dossier Calderix Drive</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Supprimer le lien</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Échec de la connexion. Veuillez vérifier votre nom d&apos;utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>L&apos;espace disponible sur le NAS est insuffisant.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Reprendre la synchronisation</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Mode de configuration</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Lancer Calderix Drive à l&apos;ouverture de session</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Impossible de démarrer Calderix Drive.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>La nouvelle langue sera appliquée au prochain redémarrage de Calderix Drive.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Initialisation de Calderix Drive...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Informations d&apos;association</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Une erreur inconnue s&apos;est produite.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standby</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>L&apos;espace disponible sur cet ordinateur est insuffisant.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive va maintenant synchroniser vos fichiers avec le NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercredi</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Mise à niveau</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Il y a %1 jours</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Saisissez l&apos;adresse de votre NAS et les informations de votre compte.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Choisir un autre</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive est prêt.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Synchronisation : %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>août</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l&apos;instant</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Vous pouvez modifier ces paramètres à tout moment.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Associer à un NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Suspendre la synchronisation</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Synchronisez votre dossier personnel du NAS avec un dossier Calderix Drive sur cet ordinateur.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Une erreur réseau s&apos;est produite. Veuillez vérifier votre connexion.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mois dernier</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Cet ordinateur est maintenant associé à votre NAS.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Serveur proxy</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>January</source>
        <translation>janvier</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
