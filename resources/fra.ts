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
        <translation>&amp;Quitter</translation>
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
        <translation>Envoi en cours</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Vous ne pouvez pas créer plus de %1 liens de partage.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Les fichiers de plus de %1 Mo ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Synchronisation à la demande</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>Le dossier sélectionné ne peut pas être utilisé comme dossier de synchronisation. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Synchroniser les fichiers temporaires</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Relais Farrowlink</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Conserver les deux fichiers et renommer le fichier en conflit</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permet de modifier la manière dont les fonctionnalités sont installées.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L&apos;Assistant d&apos;installation vous permet de modifier la manière dont Calderix Drive est installé sur votre ordinateur, de le réparer ou de le supprimer. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter l&apos;Assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 a partagé un dossier avec vous.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Cliquez sur le bouton Terminer pour quitter l&apos;Assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Choisissez un autre dossier local ou un autre dossier partagé sur le NAS.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>L&apos;installation est terminée.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Limiter le nombre d&apos;accès</translation>
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
        <translation>Impossible de créer un lien de partage pour cet élément.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Détails de l&apos;adresse du serveur</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>Le sens de synchronisation de ce dossier ne correspond pas au paramètre défini sur le NAS.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Vous devez disposer des droits d&apos;administrateur pour installer Calderix Drive. Voulez-vous quand même continuer ?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Ce dossier chevauche un dossier de synchronisation existant. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Dossiers de synchronisation</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
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
        <translation>Votre quota de stockage sur le NAS est atteint. Libérez de l&apos;espace ou demandez à votre administrateur d&apos;augmenter votre quota.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>La connexion automatique a été annulée par l&apos;administrateur.</translation>
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
        <translation>Fin prématurée de l&apos;installation de Calderix Drive</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Paramètre non valide.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Les applications suivantes utilisent des fichiers que le programme d&apos;installation doit mettre à jour. Vous pouvez les fermer et cliquer sur Réessayer, ou cliquer sur Ignorer pour continuer quand même.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Ce dossier est en cours d&apos;indexation.</translation>
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
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Fusionner les fichiers des deux côtés</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Afficher le tutoriel</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Changer de dossier de synchronisation</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisation bidirectionnelle</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Changer de dossier</translation>
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
        <translation>Fichiers exclus de la synchronisation</translation>
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
        <translation>L&apos;espace disponible sur le disque de ce dossier est insuffisant. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Les modifications effectuées par d&apos;autres ordinateurs sur un lecteur réseau peuvent ne pas être détectées immédiatement.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Veuillez saisir un nom d&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Vérification de votre nom d&apos;utilisateur et de votre mot de passe...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Votre quota de stockage sur le NAS est atteint. Libérez de l&apos;espace avant de synchroniser ce dossier.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>Le serveur a renvoyé une réponse inattendue.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisation...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Veuillez ne pas saisir plus de %1 caractères.</translation>
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
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Les dossiers que vous désélectionnez seront supprimés de cet ordinateur mais resteront sur le NAS. Voulez-vous continuer ?</translation>
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
        <translation>Description</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Taille maximale des fichiers</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Cette version de Calderix Drive est trop ancienne pour le NAS. Veuillez mettre à niveau Calderix Drive.</translation>
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
        <translation>Arrêter le téléchargement de la version</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 a partagé le dossier %2 avec vous.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Dossier non vide</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Fermer les applications et tenter de les redémarrer.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Conserver les fichiers en conflit dans un dossier séparé</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juillet</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 est un point de montage et ne peut pas être utilisé comme dossier de synchronisation.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Aucun enregistrement à afficher.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Voulez-vous vraiment dissocier cette tâche de synchronisation ? Les fichiers de cet ordinateur et du NAS seront conservés.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>L&apos;installation de Calderix Drive s&apos;est terminée prématurément en raison d&apos;une erreur. Votre système n&apos;a pas été modifié. Pour installer ce programme ultérieurement, exécutez à nouveau l&apos;Assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Impossible d&apos;établir une connexion sécurisée avec le NAS.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sens de synchronisation</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problème de synchronisation</translation>
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
        <translation>Les fichiers de cet ordinateur en conflit avec des fichiers du NAS seront renommés et conservés.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Obtenir un lien de partage</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versions incompatibles</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Échec du téléchargement de %1.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Le disque de cet ordinateur est plein.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Veuillez mettre à jour le paquet du NAS pour utiliser la synchronisation sélective.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Ce dossier de synchronisation appartient à un autre NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Afficher les icônes d&apos;état de synchronisation sur les fichiers et dossiers</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>L&apos;installation a été interrompue.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>Le dossier %1 n&apos;est pas vide.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Finalisation de la configuration...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Impossible d&apos;activer la synchronisation à la demande.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Le téléchargement a été arrêté.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Une nouvelle tâche de synchronisation sera créée pour %1.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Reprendre la synchronisation de ces dossiers</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Prêt à réparer Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Synchroniser avec un nouveau NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Impossible de vérifier le certificat du NAS.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>L&apos;identifiant de connexion n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Une version plus récente de Calderix Drive est disponible. Mettre à niveau maintenant ?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>Le certificat du NAS a changé.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Cliquez avec le bouton droit sur un fichier de votre dossier de synchronisation pour obtenir un lien de partage.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>Le dossier n&apos;est pas vide. Voulez-vous fusionner son contenu avec le dossier du NAS ?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Plus de détails</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Sélectionnez l&apos;opération que vous souhaitez effectuer.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Vos fichiers, partout.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrat de licence utilisateur final</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
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
        <translation>Certains fichiers qui doivent être mis à jour sont en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>La clé de configuration a déjà été appliquée.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Réparer l&apos;installation</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Disponible à partir de</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Remplacer le fichier sur cet ordinateur</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Veuillez saisir l&apos;adresse et le port du serveur proxy.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>Le dossier sélectionné est en lecture seule. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Les connexions relais sont désactivées sur le NAS.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Mise à niveau en cours...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>Le certificat du NAS a changé depuis la dernière synchronisation de ce dossier.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Créer un dossier Calderix Drive</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Afficher des icônes sur les fichiers non synchronisés</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restreindre l&apos;accès</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Précédent</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Plage de dates</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Le dossier de synchronisation local %1 est introuvable.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Parcourir les versions précédentes</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Détection de la connexion...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Assistant de configuration avancée</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Les fichiers que vous placez dans votre dossier de synchronisation sont tenus à jour sur le NAS et sur tous vos ordinateurs.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Impossible de supprimer le lien de partage.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Installation de Calderix Drive</translation>
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
        <translation>Options</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>mardi</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Connecté à un autre NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Partagez des fichiers</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Impossible de créer le dossier local.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Connexion sécurisée (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>L&apos;installation de Calderix Drive a été interrompue. Votre système n&apos;a pas été modifié. Pour installer ce programme ultérieurement, exécutez à nouveau l&apos;Assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Suivant &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Impossible de télécharger cet élément.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Impossible d&apos;ouvrir la base de données locale.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Appliquer à tous les sous-dossiers</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Ne pas synchroniser ces dossiers</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 a été téléchargé.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Fichiers récemment mis à jour</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Tâche de synchronisation en double</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>Le NAS exige la validation en deux étapes pour votre compte.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Voulez-vous supprimer ce lien de partage ?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive est déjà en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Avertissement de sécurité</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Ouvrir l&apos;état de la synchronisation</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Ce dossier système ne peut pas être utilisé comme dossier de synchronisation.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Ne pas synchroniser ce dossier</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Cliquez sur l&apos;icône Calderix Drive dans la barre des menus pour voir l&apos;état de la synchronisation et modifier les paramètres.</translation>
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
        <translation>Impossible de vérifier le certificat du NAS. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Ce fichier n&apos;appartient à aucune connexion.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Accédez-y de partout</translation>
    </message>
    <message>
        <source>December</source>
        <translation>décembre</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>Le serveur proxy exige un mot de passe</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Dossier de synchronisation sur le NAS</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Choisissez vous-même le dossier partagé, le dossier local et les options de synchronisation.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Les fichiers portant ces noms ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Bienvenue dans l&apos;Assistant d&apos;installation de Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Certains champs contiennent des valeurs non valides.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Voulez-vous vraiment annuler l&apos;installation de Calderix Drive ?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L&apos;Assistant d&apos;installation va installer Calderix Drive sur votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter l&apos;Assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Point de montage non pris en charge</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Vue d&apos;ensemble du NAS</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>J&apos;&amp;accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>État de Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Synchronisez vos fichiers</translation>
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
        <translation>Cette version de Calderix Drive est déjà installée.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Supprimer Calderix Drive</translation>
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
        <translation>Toute personne disposant du lien peut ouvrir le fichier dans un navigateur web.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Votre compte a été désactivé sur le NAS.</translation>
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
        <translation>Supprimer l&apos;installation</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Impossible de mettre à niveau Calderix Drive.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Impossible de récupérer vos informations utilisateur depuis le NAS.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Type de connexion</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Prêt à installer Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuer quand même</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créé</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Sélectionnez un dossier</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Synchronisation sélective des dossiers</translation>
    </message>
    <message>
        <source>February</source>
        <translation>février</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>L&apos;installation de Calderix Drive a été interrompue</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Votre mot de passe a expiré. Veuillez le modifier sur le NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Saisissez le code de vérification</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe du serveur proxy est incorrect.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Expire le</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Vos fichiers sont désormais synchronisés avec le NAS.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Les liens de partage ne sont pas disponibles via une connexion Farrowlink.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Afficher Calderix Drive dans le menu contextuel</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>Le service Ostrel est désactivé sur le NAS. Veuillez demander à votre administrateur de l&apos;activer.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Certains fichiers n&apos;ont pas pu être synchronisés.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Chemin du dossier</translation>
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
        <translation>Utiliser une icône noir et blanc dans la barre des menus</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Ce dossier partagé est déjà synchronisé avec un autre dossier.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Ouvrez vos fichiers synchronisés depuis n&apos;importe quel ordinateur associé au NAS.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Impossible de récupérer le lien vers le fichier.</translation>
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
        <translation>Ce champ ne peut pas être vide.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semaine dernière</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Recherche de modifications...</translation>
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
        <translation>Destination distante</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Dossier en lecture seule</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Modifier, réparer ou supprimer l&apos;installation</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nouveau dossier de synchronisation</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Chargement de la liste des dossiers...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Les applications suivantes utilisent des fichiers qui doivent être mis à jour par cette installation. Fermez ces applications et cliquez sur Réessayer pour continuer.</translation>
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
        <translation>Se connecter via Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Un fichier portant le même nom existe déjà.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Créez un nouveau dossier à synchroniser avec le NAS.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>Le certificat du NAS a changé. Faites-vous confiance au nouveau certificat ?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Impossible de répertorier les versions de ce fichier.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Ajouter un nom de fichier</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Téléchargement de %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Trop de tentatives infructueuses. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>avril</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Partage activé</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Suspendu</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel désactivé</translation>
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
        <translation>Le volume du dossier de synchronisation %1 n&apos;est pas monté.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Ce dossier est déjà synchronisé avec le même dossier partagé sur le NAS.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Dossier partagé manquant</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Cliquez pour mettre à jour Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Utiliser une connexion sécurisée (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>Le programme d&apos;installation est prêt à commencer l&apos;installation.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Lorsque le même fichier a été modifié des deux côtés :</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Réparer pour réparer l&apos;installation de Calderix Drive. Cliquez sur Précédent pour vérifier ou modifier vos paramètres d&apos;installation. Cliquez sur Annuler pour quitter l&apos;assistant.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Ajouter une tâche de synchronisation</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Préparation</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Mise à jour...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Cette version de Calderix Drive n&apos;est pas prise en charge par le NAS. Veuillez mettre à niveau Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Activer la synchronisation</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Vous n&apos;êtes pas autorisé à accéder à ce dossier.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>Le dossier %1 est en lecture seule.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Mettre à niveau Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Le code de vérification est incorrect.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Vos fichiers restent disponibles même lorsque cet ordinateur est hors ligne.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Vérification des données...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Catégorie de journal</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Lancer Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
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
        <translation>Mode de synchronisation sélective</translation>
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
        <translation>Échec de la connexion</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Fichiers en cours d&apos;utilisation</translation>
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
        <translation>Renommé sur cet ordinateur</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Aucun dossier ne peut être synchronisé.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Dossier de synchronisation</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Synchronisation unidirectionnelle (téléchargement uniquement)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Sélectionnez le dossier partagé du NAS que vous souhaitez synchroniser.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Rechercher des NAS sur le réseau local</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Supprimer pour supprimer Calderix Drive de votre ordinateur. Cliquez sur Précédent pour vérifier ou modifier vos paramètres d&apos;installation. Cliquez sur Annuler pour quitter l&apos;assistant.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuration manuelle du proxy</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>Le dossier partagé n&apos;existe plus sur le NAS.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Restez informé</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Plus d&apos;astuces</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Connexion à %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Veuillez saisir un numéro de port compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Synchronisation sélective des fichiers</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Quota atteint</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Plage personnalisée</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Ouvrir le dossier Calderix Drive</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>Le dossier partagé n&apos;est pas monté sur le NAS.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Installer pour commencer l&apos;installation. Cliquez sur Précédent pour vérifier ou modifier vos paramètres d&apos;installation. Cliquez sur Annuler pour quitter l&apos;assistant.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>Le dossier distant n&apos;est pas disponible car son volume n&apos;est pas monté.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Le programme d&apos;installation est prêt à installer Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>La désactivation de la synchronisation de ce dossier le retire de la liste de synchronisation. Les fichiers restent sur le NAS et sur cet ordinateur. Continuer ?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Reprendre la synchronisation de ce dossier</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Supprimer le lien</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Annuler l&apos;installation</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Une tâche de synchronisation existe déjà pour ce dossier.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Ce dossier a été synchronisé par un autre compte utilisateur.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Aucun paramètre n&apos;a été modifié.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Échec de la connexion. Veuillez vérifier votre nom d&apos;utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Les fichiers correspondant à ces filtres ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>L&apos;espace disponible sur le NAS est insuffisant.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Dissociation...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Reprendre la synchronisation</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Fin de l&apos;Assistant d&apos;installation de Calderix Drive</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Définir le dossier de synchronisation</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Tutoriel</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Expire après %1 accès</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Le contenu des deux dossiers sera fusionné.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Veuillez patienter pendant que l&apos;Assistant d&apos;installation installe Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Téléchargement en cours</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Vous n&apos;êtes pas autorisé à effectuer cette opération.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Répare les erreurs de l&apos;installation la plus récente en corrigeant les fichiers manquants ou endommagés, les raccourcis et les entrées du Registre.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Impossible d&apos;activer la synchronisation pour ce dossier.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Aucune version précédente de ce fichier n&apos;est disponible.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Actualiser le journal de synchronisation</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Cliquez sur Supprimer pour supprimer Calderix Drive de votre ordinateur.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Supprime Calderix Drive de votre ordinateur.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Réparer Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Mode de configuration</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Extension de fichier</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 éléments</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Aucune option disponible</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Synchronisez et partagez vos fichiers avec votre NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorisation refusée</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Renommé sur le NAS</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Veuillez patienter pendant que l&apos;Assistant d&apos;installation installe Calderix Drive. Cette opération peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Lancer Calderix Drive à l&apos;ouverture de session</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Cet assistant va vous guider tout au long de l&apos;installation.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Conserver le fichier modifié le plus récemment</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Cet ordinateur est déjà associé à ce NAS.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Veuillez lire attentivement le contrat de licence suivant.</translation>
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
        <translation>Le paquet du NAS est trop ancien pour cette version de Calderix Drive. Veuillez mettre à jour le paquet sur le NAS.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nouveau partage</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Veuillez saisir le code de vérification.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>La nouvelle langue sera appliquée au prochain redémarrage de Calderix Drive.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
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
        <translation>Voulez-vous vraiment vous dissocier de %1 ?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive a été installé avec succès.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Une erreur inconnue s&apos;est produite.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Je &amp;n&apos;accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En veille</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Rechercher sur le réseau local</translation>
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
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Dossier de synchronisation local</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Vous avez choisi de supprimer le programme de votre système.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive ne comporte aucune fonctionnalité indépendante à modifier.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Non nécessaire</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive va maintenant synchroniser vos fichiers avec le NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Vos modifications n&apos;ont pas été enregistrées. Voulez-vous les enregistrer ?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Changer de langue</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Destination locale</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>Les connexions depuis cette adresse IP sont bloquées par le NAS.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Une version plus récente de Calderix Drive est déjà installée.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État :</translation>
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
        <translation>Télécharger une version précédente</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Mise à niveau</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Une erreur réseau s&apos;est produite lors de la vérification du dossier de synchronisation. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Erreur de certificat</translation>
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
        <translation>Cliquez sur Réparer pour réparer Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Modifier, réparer ou supprimer Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Fichiers mis à jour</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Tâche de synchronisation</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Supprimer la version téléchargée</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Fichiers exclus</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Durée personnalisée</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Saisissez l&apos;adresse de votre NAS et les informations de votre compte.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Modifier l&apos;installation</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Ce dossier est en lecture seule. Les modifications ne sont pas synchronisées avec le NAS.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Choisir un autre</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>Échec de la connexion automatique en raison d&apos;une erreur système.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Modifiés récemment</translation>
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
        <translation>Le stockage du NAS est plein</translation>
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
        <translation>Le quota de stockage de ce dossier partagé est atteint.</translation>
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
        <translation>Version incompatible</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Envoyer vers %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Vous pouvez modifier ces paramètres à tout moment.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Une erreur s&apos;est produite pendant l&apos;installation.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Associer à un NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>&amp;Ne pas fermer les applications. Un redémarrage sera nécessaire.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Appliquer et copier le lien</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Suspendre la synchronisation</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Synchronisez votre dossier personnel du NAS avec un dossier Calderix Drive sur cet ordinateur.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Téléchargement unidirectionnel</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Sélectionnez le dossier que vous souhaitez synchroniser.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Le service de dossier personnel est désactivé sur le NAS.</translation>
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
        <translation>Les liens de partage nécessitent le service Ostrel, qui est désactivé sur le NAS.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Action du double-clic</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Activer la synchronisation à la demande</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Fichiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>Le paquet du NAS ne prend pas en charge cette version de Calderix Drive.</translation>
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
        <translation>Fermer le tutoriel</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>Le dossier partagé %1 est déjà synchronisé avec %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>Échec de la configuration automatique. Veuillez configurer Calderix Drive manuellement.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Filtrer le journal de synchronisation</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janvier</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Aucune autorisation</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Chargement des dossiers de synchronisation...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Choisissez l&apos;action à effectuer à la fin de la configuration.</translation>
    </message>
</context>
</TS>
