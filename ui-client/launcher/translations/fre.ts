<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Un conflit s&apos;est produit lors de la synchronisation de ce fichier.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Paramètre non valide.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Une erreur réseau s&apos;est produite. Vérifiez votre connexion réseau et réessayez.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Stockage local</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Se reconnecter</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>Le dossier sélectionné n&apos;est pas vide. Les fichiers qu&apos;il contient seront fusionnés avec ceux du serveur.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Vérification de votre compte...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connexion établie.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>Le dossier « %1 » existe déjà. Voulez-vous fusionner son contenu ?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Démarrer Nimbulo Pelora automatiquement à l&apos;ouverture de ma session</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Nom d&apos;utilisateur ou mot de passe incorrect.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Changer de dossier de synchronisation</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Dossier non vide</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Premiers pas avec Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Fichiers récemment mis à jour</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Ouvrir Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Détection des modifications...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Déconnecté du serveur.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Activer la synchronisation</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Échec de l&apos;authentification</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Vérification de la connexion...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Connexion par relais</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Connexion automatique impossible en raison d&apos;une erreur système.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Les liens de partage sont désactivés sur le serveur. Contactez votre administrateur.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 fichiers mis à jour</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Vous disposez d&apos;une autorisation en lecture seule sur ce dossier. Les modifications locales ne seront pas envoyées.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Votre quota de stockage sur le serveur est atteint. Libérez de l&apos;espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Type de connexion</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informations de connexion</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Sélectionnez un dossier.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Connexion automatique impossible. Vérifiez l&apos;adresse du serveur et réessayez.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Dossiers partagés</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Vos modifications n&apos;ont pas été enregistrées. Voulez-vous les abandonner ?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Quota atteint</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Dossier local</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Impossible d&apos;activer la synchronisation de ce dossier partagé.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Ce dossier est en conflit avec une autre tâche de synchronisation.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Vous avez atteint le nombre maximal de dossiers partagés synchronisés.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Saisissez un numéro de port compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Dossier partagé</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Saisissez l&apos;adresse et le port du serveur proxy.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Saisissez votre nom d&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuration manuelle du proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Aucun proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Utiliser les paramètres proxy du système</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>Aucune modification à appliquer.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Le serveur proxy exige une authentification</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Mise à jour des fichiers...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>En cas de modifications en conflit, les deux copies sont conservées : la copie locale est renommée avec le nom de l&apos;ordinateur.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Saisissez l&apos;adresse IP, le nom d&apos;hôte ou l&apos;identifiant de relais du serveur.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>Le service de synchronisation du serveur est obsolète. Demandez à votre administrateur de le mettre à jour.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Afficher l&apos;état de la synchronisation sur les icônes des fichiers</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Chiffrer la connexion avec SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Utiliser une icône monochrome dans la zone de notification</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problème de synchronisation</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 a partagé « %2 » avec vous.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Vérification des fichiers...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Les fichiers et dossiers correspondant à ces règles ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensions de fichier :</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Mise à jour de Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Voulez-vous vraiment arrêter la synchronisation de « %1 » ?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Partage désactivé</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Point de montage non pris en charge</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Impossible de supprimer cette tâche de synchronisation.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>La nouvelle langue sera appliquée au redémarrage de Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>Le disque local est plein. Libérez de l&apos;espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Voulez-vous vraiment vous dissocier de ce serveur ? Vos fichiers locaux seront conservés.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Envoi...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Synchronisation de %1 fichiers</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Noms de fichier :</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Fichiers bloqués</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>La base de données de synchronisation locale est endommagée. Associez de nouveau cette tâche de synchronisation.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Taille de fichier maximale :</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filtrer les fichiers</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Types de fichier exclus :</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Les dossiers que vous désélectionnez seront supprimés de cet ordinateur mais conservés sur le serveur.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Mode de fusion</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Suspendu</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Un point de montage ne peut pas servir de dossier de synchronisation.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Le téléchargement a été annulé.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Démarrer maintenant</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Vous n&apos;êtes pas autorisé à effectuer cette opération.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Votre quota de stockage est atteint</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>Le disque local est plein</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Autorisation refusée</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versions incompatibles</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Impossible d&apos;obtenir les informations de votre compte auprès du serveur.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Problème de synchronisation détecté</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nom de l&apos;ordinateur</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>La connexion est instable. Nouvelle tentative...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Téléchargement de %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Nouvelle tentative de synchronisation...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Avertissement de sécurité</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Téléchargement terminé.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuer quand même</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Règles de filtrage</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Parcourir les versions précédentes</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>L&apos;arrêt de la synchronisation de « %1 » supprimera sa copie locale. Continuer ?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Connexion sécurisée</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Choisissez le dossier de cet ordinateur dans lequel vos fichiers seront synchronisés.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Partage</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Impossible de télécharger le fichier.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d&apos;ensemble</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>Le serveur a été remplacé ou réinitialisé</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Échec de la vérification du certificat</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisation...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Le certificat SSL du serveur n&apos;a pas pu être vérifié. La connexion n&apos;est peut-être pas sécurisée.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Cette tâche de synchronisation est inactive. Cliquez pour la reprendre.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Ce fichier ne peut pas être téléchargé pour le moment.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Impossible d&apos;afficher les versions précédentes de ce fichier.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Impossible de créer un lien de partage pour ce fichier.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En veille</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Double-cliquez sur l&apos;icône de la zone de notification pour ouvrir le dossier de synchronisation</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indexation du dossier...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Bienvenue dans l&apos;Assistant d&apos;installation de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Impossible d&apos;initialiser Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Précédent</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Prêt à installer Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Certains fichiers devant être mis à jour sont en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrat de licence utilisateur final</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Fin de l&apos;Assistant d&apos;installation de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Ne pas fermer les applications. Un redémarrage sera nécessaire.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Erreur d&apos;installation</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Cliquez sur le bouton Terminer pour quitter l&apos;Assistant d&apos;installation.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora a été installé.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Lancer Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Modifier, réparer ou supprimer l&apos;installation</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permet de modifier la façon dont les fonctionnalités sont installées.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>Le dossier de synchronisation se trouve sur un volume non monté.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>La version du fichier n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Voulez-vous vraiment annuler l&apos;installation de Nimbulo Pelora ?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Vous disposez d&apos;un accès en lecture seule à ce dossier. Les modifications que vous y apportez ne sont pas envoyées.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lisez attentivement le contrat de licence suivant.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Lisez le contrat de licence et acceptez-le pour continuer.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Annuler l&apos;installation</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora maintient les fichiers de cet ordinateur synchronisés avec votre NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Suivant &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>État de la synchronisation</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Le dossier de synchronisation local « %1 » est introuvable. Il a peut-être été déplacé ou supprimé.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>L&apos;installation de Nimbulo Pelora s&apos;est arrêtée prématurément en raison d&apos;une erreur. Votre système n&apos;a pas été modifié.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Pour installer ce programme ultérieurement, exécutez de nouveau l&apos;Assistant d&apos;installation. Cliquez sur Terminer pour quitter.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Fin prématurée de l&apos;installation</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Fermer toutes les applications et tenter de les redémarrer.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Fermez les applications qui utilisent des fichiers que le programme d&apos;installation doit mettre à jour.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Les applications suivantes utilisent des fichiers que le programme d&apos;installation doit mettre à jour. Fermez-les et cliquez sur Réessayer pour continuer.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Répare les erreurs de l&apos;installation la plus récente en corrigeant les fichiers manquants ou endommagés, les raccourcis et les entrées du Registre.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Les applications suivantes utilisent des fichiers qui doivent être mis à jour.\nFermez-les, ou laissez le programme d&apos;installation les fermer et tenter de les redémarrer.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Fichiers en cours d&apos;utilisation</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora ne comporte aucune fonctionnalité indépendante à sélectionner.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Modifier les fonctionnalités installées</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Sélectionnez l&apos;opération à effectuer.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Supprime Nimbulo Pelora de votre ordinateur.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Supprimer l&apos;installation</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Réparer l&apos;installation</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Sélectionnez l&apos;opération à effectuer.\nVos paramètres de synchronisation sont conservés.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>L&apos;Assistant d&apos;installation vous permet de modifier la façon dont Nimbulo Pelora est installé, de le réparer ou de le supprimer de votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Bienvenue dans l&apos;installation de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Veuillez patienter pendant que l&apos;Assistant d&apos;installation installe Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Cette opération peut prendre quelques minutes.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Installation de Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Installation de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Installer pour lancer l&apos;installation. Cliquez sur Précédent pour vérifier ou modifier vos paramètres d&apos;installation. Cliquez sur Annuler pour quitter l&apos;Assistant.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>L&apos;Assistant d&apos;installation est prêt à commencer l&apos;installation.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Cliquez sur Installer pour commencer.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Cliquez sur Supprimer pour supprimer Nimbulo Pelora de votre ordinateur. Vos fichiers synchronisés sont conservés.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>L&apos;Assistant d&apos;installation est prêt à supprimer Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Cliquez sur Supprimer pour commencer.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Supprimer Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Cliquez sur Réparer pour réparer l&apos;installation de Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>L&apos;Assistant d&apos;installation est prêt à réparer Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Cliquez sur Réparer pour commencer.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Réparer Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>L&apos;installation de Nimbulo Pelora a été interrompue. Votre système n&apos;a pas été modifié.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Pour installer ce programme ultérieurement, relancez l&apos;installation. Cliquez sur Terminer pour quitter l&apos;Assistant.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Installation interrompue</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>L&apos;Assistant d&apos;installation va installer Nimbulo Pelora sur votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Modifier, réparer ou supprimer Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>L&apos;installation est terminée.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>L&apos;installation a été annulée.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Une erreur s&apos;est produite pendant l&apos;installation.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Cet Assistant vous guide tout au long de l&apos;installation.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>J&apos;accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Se connecter à un autre NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Historique de synchronisation</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Synchronisation activée</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Vos fichiers, sur tous vos appareils.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Vos fichiers sont désormais synchronisés en arrière-plan. Vous les trouverez dans %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Voulez-vous vraiment dissocier la tâche de synchronisation « %1 » ? Les fichiers déjà présents sur cet ordinateur sont conservés.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filtres de fichiers</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Création</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Afficher une icône sur les fichiers non synchronisés</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>L&apos;identifiant de relais « %1 » n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>Le serveur a changé. Vérifiez vos tâches de synchronisation.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>Le dossier partagé n&apos;est pas monté sur le serveur.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>Le dossier distant n&apos;est pas disponible. Il se trouve peut-être dans un dossier partagé chiffré qui n&apos;est pas monté.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Fichiers commençant par un point</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 est déjà installé.\nVoulez-vous le réinstaller ?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Des privilèges d&apos;administrateur sont nécessaires pour installer Nimbulo Pelora.\nExécutez le programme d&apos;installation en tant qu&apos;administrateur.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Synchronisez vos fichiers avec Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>Le partage de fichiers n&apos;est pas disponible via une connexion LinkVane.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>mar.</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Ouvrir le dossier parent</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Choisissez comment configurer Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Cliquez avec le bouton droit sur un fichier du dossier de synchronisation pour le partager ou parcourir ses versions précédentes.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>J&apos;ai compris</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Ouvrez le menu de la zone de notification à tout moment pour voir ce qui est en cours de synchronisation.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Vos modifications sont envoyées dès que vous les enregistrez.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Il y a %1 heures</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Ne pas synchroniser ce dossier</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Créez un dossier sur le NAS à synchroniser avec cet ordinateur.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Dossier déjà synchronisé</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Ce dossier est déjà synchronisé par une autre tâche de synchronisation.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Préparation de la synchronisation...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Modifiés récemment</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Il y a %1 jours</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l&apos;instant</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Il y a %1 minutes</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 éléments</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot clé</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Le mois dernier</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semaine dernière</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Reprendre la synchronisation de ce dossier</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Reprendre la synchronisation de ces dossiers</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Ne pas synchroniser ces dossiers</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Aucune donnée</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Envoyer vers</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Synchronisation en cours : %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Rechercher par nom de fichier</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>ven.</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Plage de dates</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Téléchargement</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>lun.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>avr.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>août</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>déc.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>févr.</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>janv.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>juil.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>juin</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>oct.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sept.</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>sam.</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>dim.</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>jeu.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>mer.</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Mode avancé</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Vos fichiers sont désormais synchronisés avec le dossier « %1 » du NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora est configuré. Votre dossier personnel sur le NAS est désormais synchronisé avec cet ordinateur.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Configuration terminée</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Les fichiers que vous placez dans le dossier de synchronisation sont tenus à jour sur le NAS et sur vos autres appareils.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>L&apos;icône de la zone de notification indique l&apos;état de la synchronisation en un coup d&apos;œil.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Mode de configuration</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Synchronisez votre dossier personnel du NAS avec un dossier de cet ordinateur.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Non merci</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Dossier de synchronisation</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Icône de la zone de notification</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Partage et versions</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Rechercher un NAS sur le réseau local</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Se connecter avec LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nom d&apos;utilisateur :</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Bienvenue dans Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Afficher la fenêtre principale</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Dossier sur le NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nouveau dossier de synchronisation</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Synchroniser un nouveau dossier</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Configuration avancée</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Ouvrir l&apos;état de la synchronisation</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Choisissez le dossier du NAS à synchroniser, son emplacement sur cet ordinateur et le mode de synchronisation.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Les fichiers de plus de %1 Mo ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Rechercher un NAS sur le réseau local</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Vous ne disposez que d&apos;une autorisation en lecture sur « %1 ». Les modifications effectuées sur cet ordinateur ne seront pas envoyées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>« %1 » ne peut pas servir de dossier de synchronisation.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Plus d&apos;astuces</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>Le dossier « %1 » chevauche le dossier de synchronisation d&apos;une autre tâche.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Ce dossier est déjà synchronisé avec « %1 ».</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>Le dossier « %1 » est déjà synchronisé avec un dossier du NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Créer un dossier « Nimbulo » à l&apos;emplacement sélectionné</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copier le lien de partage</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Impossible d&apos;obtenir un lien de partage, car le partage est désactivé sur le serveur.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>Le certificat SSL du serveur a changé. Faites-vous confiance au nouveau certificat ?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Votre adresse IP n&apos;est pas autorisée à se connecter à ce serveur.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Lorsqu&apos;un même fichier a été modifié des deux côtés :</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>Le sens de synchronisation ne correspond pas aux autorisations de ce dossier.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Dissociation...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Trop de tentatives infructueuses. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Ce fichier est verrouillé par une autre application.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Impossible de vérifier « %1 » en raison d&apos;une erreur réseau.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Conserver la version modifiée le plus récemment</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisation bidirectionnelle</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Saisissez l&apos;adresse de votre NAS et vos identifiants.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Impossible de créer le dossier local « %1 ».</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Sélectionnez un dossier sur le NAS et un dossier sur cet ordinateur à synchroniser l&apos;un avec l&apos;autre.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Définir les dossiers de synchronisation</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synchronise désormais « %1 » du NAS avec « %2 » sur cet ordinateur.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>En cas de conflit, la copie du serveur est conservée et la copie locale est sauvegardée.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Activer la synchronisation à la demande</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>Le code de vérification est incorrect.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Ce compte exige un code de vérification.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Saisissez le code de vérification de votre application d&apos;authentification :</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Votre quota sur le NAS est atteint. Impossible de synchroniser « %1 ».</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>Le certificat du serveur a changé. Impossible de synchroniser « %1 ».</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Le certificat du serveur ne peut pas être vérifié. Impossible de synchroniser « %1 ».</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Une erreur système s&apos;est produite lors de la vérification du dossier de synchronisation.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Remplacer la copie locale par celle du serveur</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Conserver les deux copies et renommer la copie locale</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Une version plus récente de Nimbulo Pelora (%1) est déjà installée.\nLe programme d&apos;installation va se fermer.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora est prêt.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora est en cours d&apos;initialisation...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Aucun dossier pouvant être synchronisé n&apos;a été trouvé.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Afficher le tutoriel</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Les fichiers du dossier local seront fusionnés avec ceux du NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Démarrer Nimbulo Pelora au démarrage de l&apos;ordinateur</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Nimbulo Pelora a rencontré une erreur.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora est en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Cette version de Nimbulo Pelora n&apos;est plus prise en charge. Veuillez la mettre à jour.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Cliquez pour mettre à jour Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Mettez à jour le service de synchronisation du serveur pour utiliser la synchronisation sélective.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>L&apos;espace disponible sur cet ordinateur est insuffisant pour synchroniser « %1 ».</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Connectez-vous à votre NAS pour commencer la synchronisation.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Maintenez les fichiers de cet ordinateur synchronisés avec votre NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Dossier partagé introuvable</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>À propos de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Votre administrateur exige la validation en deux étapes. Activez-la d&apos;abord dans les paramètres de votre compte.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>Le quota du dossier partagé est atteint.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Sens de synchronisation</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora a rencontré un problème lors de la synchronisation. Cliquez pour en savoir plus.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora tient vos fichiers à jour sur tous vos appareils.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Certains champs contiennent des valeurs non valides.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Vous n&apos;êtes pas autorisé à accéder à « %1 ».</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Votre compte a été désactivé. Impossible de synchroniser « %1 ».</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Expire après</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Aucune option disponible</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Vous devez disposer d&apos;un compte sur un NAS où le service de synchronisation est installé.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Échec de l&apos;authentification. Vérifiez votre nom d&apos;utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Utilisez * pour remplacer n&apos;importe quels caractères. Séparez les entrées par des virgules.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Téléchargement unidirectionnel</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Un dossier nommé « %1 » existe déjà.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Synchroniser les attributs étendus</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Je n&apos;accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Lien de partage</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Expire le</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Ce champ est obligatoire.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Limiter l&apos;accès aux utilisateurs disposant d&apos;un compte</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Afficher Nimbulo Pelora dans le menu contextuel</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>Le service de dossier personnel est désactivé sur le NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Impossible de mettre à jour Nimbulo Pelora. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Appliquer et copier le lien</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Limiter le nombre d&apos;accès</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Disponible à partir du</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Une nouvelle version de Nimbulo Pelora est nécessaire pour se connecter à ce serveur. Mettre à jour maintenant ?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Ajouter un nom de fichier</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Destination locale</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>NAS distant</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Télécharger la version sélectionnée</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Durée personnalisée</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Actualiser l&apos;historique de synchronisation</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Synchronisation à la demande</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filtrer l&apos;historique de synchronisation</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Changer de dossier de synchronisation</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Catégorie d&apos;événement</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Détails de la tâche de synchronisation</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Destination distante</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Fermer le tutoriel</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Tutoriel : découvrez comment utiliser Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Annuler le téléchargement</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Supprimer la version</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Impossible d&apos;activer la synchronisation à la demande pour « %1 ».</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Ce fichier n&apos;est pas disponible, car il n&apos;y a aucune connexion au serveur.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Renommé sur cet ordinateur</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Renommé sur le serveur</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Saisissez %1 caractères au maximum.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Votre mot de passe a expiré. Modifiez-le sur le serveur et reconnectez-vous.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Ce dossier a été synchronisé par un autre utilisateur. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Les connexions par relais sont désactivées sur le serveur.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Échec de l&apos;authentification pour « %1 ». Reconnectez-vous.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Impossible d&apos;obtenir le lien vers ce fichier.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Fichiers temporaires</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Félicitations !</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Dossiers que d&apos;autres personnes ont partagés avec vous</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Vous disposez d&apos;un accès en lecture seule à ce dossier. Les modifications que vous y apportez restent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora synchronise désormais « %1 » du serveur avec « %2 » sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Afficher le tutoriel de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora s&apos;exécute en arrière-plan.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Connectez-vous à votre serveur pour commencer la synchronisation.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Impossible de mettre à jour Nimbulo Pelora. Téléchargez la dernière version et réinstallez-la.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Vous devez disposer d&apos;un compte sur un serveur où le service de synchronisation est installé.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>En cas de modifications en conflit, les deux copies sont conservées : la copie du serveur est renommée avec le nom de l&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Tutoriel : découvrez comment synchroniser avec Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>L&apos;identifiant de serveur « %1 » n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Démarrer Nimbulo Pelora à l&apos;ouverture de ma session</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Choisissez un dossier sur le serveur et un dossier sur cet ordinateur.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Cette tâche de synchronisation appartient à un autre serveur.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Le serveur utilise un protocole que cette version de Nimbulo Pelora ne prend pas en charge.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>Le disque est plein. Nimbulo Pelora a suspendu la synchronisation.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Nimbulo Pelora a rencontré une erreur. Veuillez le redémarrer.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>Le dossier sélectionné n&apos;est pas vide. Ses fichiers seront envoyés sur le serveur.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Télécharger uniquement les modifications du serveur</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Vos fichiers sont désormais synchronisés avec le dossier « %1 » du serveur.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 est déjà installé.\nVoulez-vous le réinstaller ?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Espace disponible insuffisant pour synchroniser « %1 ». Libérez de l&apos;espace et réessayez.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Maintenez les fichiers de cet ordinateur synchronisés avec votre serveur.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Créer un dossier « Varnex Pelora » à l&apos;emplacement sélectionné</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Une version plus récente de Varnex Pelora (%1) est déjà installée.\nLe programme d&apos;installation va se fermer.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Synchronisez le dossier de votre choix sur le serveur.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>La configuration automatique a échoué. Configurez Nimbulo Pelora manuellement.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Finalisation de la configuration automatique...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Aucune donnée disponible.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Aucun dossier partagé disponible.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>Le fichier ou le dossier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora a été configuré par votre administrateur.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Utilisateurs internes</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Les utilisateurs du serveur peuvent afficher le fichier.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Les utilisateurs du serveur peuvent afficher et modifier le fichier.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Personnes spécifiques</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Seules les personnes que vous invitez peuvent accéder au fichier.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Toute personne disposant du lien</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Toute personne disposant du lien peut afficher le fichier.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Toute personne disposant du lien peut afficher et modifier le fichier.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Peut afficher</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Peut modifier</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Inviter</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Autorisation du lien :</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Utilisateurs et groupes</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Utiliser une icône en noir et blanc dans la barre des menus</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Afficher le dossier de synchronisation dans la barre latérale des fenêtres de fichiers</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Impossible de se connecter au serveur</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 a commenté %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 vous a mentionné dans %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 a demandé l&apos;accès à %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 a partagé %2 avec vous</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Ouvrir dans le portail Web</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Partagé</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Configurer</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 demande l&apos;accès à ce fichier.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Mentions</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Synchroniser aussi les dossiers partagés avec vous ?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Envoi unidirectionnel</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Ne pas supprimer les fichiers du serveur lorsqu&apos;ils sont supprimés localement</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>« %1 » a été téléchargé.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Vos fichiers sont synchronisés sur tous vos appareils.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Vous pouvez également accéder à vos fichiers depuis le portail Web.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Votre tâche de synchronisation est prête.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Commencer la visite</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Les fichiers et dossiers que d&apos;autres personnes partagent avec vous peuvent aussi être synchronisés sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Peut-être plus tard</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synchroniser maintenant</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Partagé avec moi</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Créer une tâche de synchronisation</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Choisissez ce que vous voulez synchroniser.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Tâche de synchronisation générale</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Fichiers partagés avec moi</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Synchronisez les fichiers et dossiers que d&apos;autres personnes ont partagés avec vous.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Choisissez un dossier sur le NAS et un dossier sur cet ordinateur.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Cette tâche de synchronisation appartient à un autre NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>Le NAS utilise un protocole que cette version de Nimbulo Pelora ne prend pas en charge.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>Le disque est plein. La synchronisation a été suspendue.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Télécharger uniquement les modifications du NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Impossible de mettre à jour Nimbulo Pelora. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Vous êtes déjà connecté à ce NAS.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Les modifications sur les lecteurs réseau peuvent être détectées avec un certain délai.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>Le certificat SSL de %1 a changé.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Impossible d&apos;établir une connexion sécurisée avec le serveur.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Bienvenue !</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Les fichiers de votre dossier personnel sur le NAS se trouvent désormais dans %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Les fichiers de votre dossier personnel sur le serveur se trouvent désormais dans %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Le disque est plein</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>Le service de synchronisation du serveur est obsolète</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>Le dossier partagé n&apos;existe plus.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Cliquez pour passer à Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Cette version de Nimbulo Pelora est trop ancienne pour se connecter au serveur. Veuillez la mettre à jour.</translation>
    </message>
</context>
</TS>
