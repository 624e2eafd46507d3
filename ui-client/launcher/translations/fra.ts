<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sauvegarde en cours…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Dissociation…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Retire [ProductName] de votre ordinateur.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Ouvrir Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Sauvegarde : %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Vos fichiers, en lieu sûr et toujours à portée de main</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Conserver les fichiers sur le serveur lorsqu’ils sont supprimés de cet ordinateur</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Relancer la synchronisation</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Dernier téléversement : %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Relais OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juin</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Le certificat SSL du serveur n’a pas pu être vérifié. Vérifiez l’adresse du serveur ou demandez de l’aide à votre administrateur.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Certaines des informations saisies ne sont pas valides. Vérifiez-les et réessayez.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Répare [ProductName] en remplaçant les fichiers, raccourcis et entrées de registre manquants ou endommagés.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Bienvenue dans %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Saisissez le code de validation</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adresse du proxy</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Utiliser une connexion SSL</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Adresse de l’Orvane Station ou identifiant OrvaneLink</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Choisir les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Choisissez vous-même chaque dossier, le mode de synchronisation et les filtres.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Août</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Ouvrir le fichier</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Icône de notification</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Dissocier la tâche « %1 » ? Les fichiers déjà présents sur cet ordinateur et sur le serveur ne seront pas supprimés.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell est prêt.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Le programme d’installation est prêt à réparer [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Exclure ce dossier de la synchronisation</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tous les événements</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Saisissez les informations du serveur auquel vous souhaitez vous connecter.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] ne comporte aucune fonctionnalité modifiable séparément.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Vérification du type de connexion…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problème de synchro</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>La base de données de synchronisation est illisible. Relancez Tarnwell. Si le problème persiste, dissociez la tâche, puis configurez-la à nouveau.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Votre quota sur le serveur est épuisé. Supprimez les fichiers dont vous n’avez plus besoin ou demandez un quota plus élevé à votre administrateur.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenue</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Démarrer Tarnwell à l’ouverture de session</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Cliquez avec le bouton droit sur l’icône de la zone de notification pour suspendre une tâche, ouvrir son dossier ou modifier ses réglages.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Saisissez 0 pour ne pas limiter la taille des fichiers.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Choisir les dossiers à sauvegarder</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Fichiers modifiés récemment</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Exclure les fichiers et dossiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Faire confiance et continuer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>Identifiant OrvaneLink</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nouveau dossier partagé</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Programme d’installation [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Le programme d’installation [ProductName] a terminé l’opération</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Certains fichiers n’ont pas pu être synchronisés. Ouvrez Tarnwell pour afficher les détails.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Le disque qui contient ce dossier partagé est plein. Choisissez un dossier partagé sur un autre disque ou libérez de l’espace.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Mise à jour de Tarnwell</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Cet identifiant OrvaneLink n’existe pas. Vérifiez-le et saisissez-le à nouveau.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>« %1 » a été téléchargé.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Réglages du proxy</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Nom de l’Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Retirer « %1 » de la liste ? Le dossier lui-même ne sera pas supprimé.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Ce nom d’utilisateur n’a pas pu être vérifié. Assurez-vous que le serveur est joignable et réessayez.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Choisissez un dossier sur cet ordinateur. Son contenu sera synchronisé avec le serveur.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>Le dossier n’est pas vide</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Les fichiers portant exactement ce nom ne sont jamais synchronisés, quel que soit le dossier où ils se trouvent.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Impossible d’établir une connexion sécurisée. Vérifiez les réglages SSL du serveur et réessayez.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Les programmes suivants utilisent des fichiers que le programme d’installation doit modifier :</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Cet identifiant OrvaneLink n’est pas valide. Utilisez uniquement des lettres, des chiffres et des traits d’union.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Saisissez un numéro de port compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>L’Orvane Station correspondant à cet identifiant OrvaneLink est hors ligne. Assurez-vous qu’elle est allumée et connectée à Internet.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Réglages réseau</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Le serveur est introuvable en raison d’une erreur système. Réessayez ou saisissez plutôt son adresse.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Votre quota sur le serveur est épuisé.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Le proxy exige un mot de passe</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>En choisir un autre</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Rechercher l’Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Deux flèches signifient que le fichier est en cours de synchronisation. Une marque rouge signifie que votre attention est requise.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>Version de StationOS</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Cliquez sur Réparer pour commencer. Cliquez sur Précédent pour changer d’option ou sur Annuler pour quitter le programme d’installation.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>La configuration est terminée.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Utiliser ce dossier</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell nécessite StationOS %1 ou une version ultérieure. Mettez à jour votre Orvane Station et réessayez.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Le nombre de versions à conserver doit être supérieur ou égal à 1.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Démarrer [ProductName] maintenant</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Saisissez le nom d’utilisateur pour le proxy.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Prêt à installer</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>La fusion réunit le contenu des deux dossiers. Les fichiers qui diffèrent sont traités comme des conflits.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>J’ai compris</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Choisissez un dossier sur le serveur.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Tout depuis la zone de notification</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Cette version de Tarnwell est trop ancienne pour le serveur. Mettez à jour Tarnwell vers la version %1 ou ultérieure.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 est disponible. Cliquez ici pour effectuer la mise à jour.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Choisissez ce qu’il faut faire lorsqu’un fichier a été modifié à la fois sur l’ordinateur et sur le serveur.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Le programme d’installation est prêt à retirer [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Téléversement…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Saisissez l’identifiant OrvaneLink de votre Orvane Station. Tarnwell s’y connecte par OrvaneLink, même lorsque vous êtes en déplacement.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Vous pouvez consulter ce dossier, mais vos modifications ne seront pas téléversées.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Synchronisation unidirectionnelle du serveur vers cet ordinateur</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>Le dossier partagé « %1 » est prêt à être synchronisé.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Ouvrir StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Relancez Tarnwell pour appliquer la nouvelle langue.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Dossier local</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Conserver la version modifiée en dernier</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Aucun des dossiers choisis ne peut être synchronisé. Choisissez au moins un autre dossier.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Cliquez sur Installer pour commencer. Cliquez sur Précédent pour vérifier vos choix ou sur Annuler pour quitter le programme d’installation.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell conserve les versions antérieures de vos fichiers : une erreur est vite réparée.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Associer un autre serveur</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Prêt à retirer le logiciel</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Ce dossier contient déjà des fichiers. Ils seront synchronisés également. Voulez-vous l’utiliser ?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Ce programme d’installation vous permet de réparer [ProductName] ou de retirer ce logiciel de votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter le programme d’installation.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Fichiers exclus</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>La synchronisation n’a pas pu être activée pour ce dossier. Vérifiez vos autorisations sur le serveur et réessayez.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Ce dossier chevauche un dossier déjà synchronisé. Choisissez-en un qui n’est pas contenu dans ce dernier et qui ne le contient pas.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Afficher des pastilles d’état sur les fichiers exclus</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Saisissez l’adresse et le port du proxy.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Cliquez sur Terminer pour quitter le programme d’installation.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Types de fichiers à synchroniser</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Saisissez une taille maximale de fichier comprise entre %1 et %2 Mo.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Application des réglages…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Ajouter une tâche</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Non merci</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Pour utiliser la synchronisation sélective, mettez d’abord à jour le paquet de synchronisation sur le serveur.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Noms de fichiers exclus</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destination de la sauvegarde</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Tout est configuré. Tarnwell a commencé à sauvegarder vos fichiers.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Laissez Tarnwell choisir les réglages pour vous ou choisissez-les vous-même.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Impossible de créer un lien vers ce fichier. Assurez-vous que le fichier a été téléversé et que vous avez l’autorisation de le partager.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Quitter Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Aucun dossier approprié trouvé</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Réintégrer ces dossiers dans la synchronisation</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Ce fichier a été modifié à la fois sur l’ordinateur et sur le serveur. Comparez les deux versions et supprimez celle dont vous n’avez pas besoin.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Décembre</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Lisez attentivement le contrat de licence avant de continuer.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Remontez le temps</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Votre compte sur le serveur a été désactivé. Demandez à votre administrateur de l’activer.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Un problème est survenu. Réessayez. S’il persiste, relancez Tarnwell.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Conserver les deux versions et renommer la plus ancienne</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>En attente du déverrouillage du fichier</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Placez des fichiers dans le dossier local : Tarnwell les sauvegarde pour vous sur le serveur.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Le dossier « %1 » n’a pas pu être créé. Vérifiez vos autorisations ou choisissez un autre emplacement.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Choisissez le dossier partagé du serveur à utiliser pour la synchronisation.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Vous avez interrompu le programme d’installation [ProductName] avant la fin de l’opération. Votre ordinateur n’a pas été modifié. Vous pouvez relancer le programme d’installation à tout moment.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Mars</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Les réglages suivants seront utilisés :</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Aucune autorisation</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Cette tâche est inactive. Reprenez-la pour synchroniser à nouveau ses fichiers.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En veille</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>La sauvegarde n’a pas pu être terminée. Vérifiez la connexion au serveur et réessayez.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Autres tutoriels</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Ce dossier est utilisé par un autre programme de synchronisation. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l’instant</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Laisser ces programmes ouverts (redémarrage nécessaire)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Vous n’avez pas l’autorisation d’utiliser ce dossier pour la synchronisation. Choisissez un dossier auquel vous avez accès.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell est déjà en cours d’exécution. Vous pouvez l’ouvrir depuis la zone de notification.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Les fichiers qui correspondent à l’un de ces filtres ne sont pas synchronisés.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Options de la tâche</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Dossier du serveur</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Février</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>Le disque qui contient le dossier local n’est pas connecté. Connectez-le et reprenez la tâche.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Votre session n’est pas ouverte avec un compte administrateur. Tarnwell sera donc installé uniquement pour votre compte. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Sauvegardez votre ordinateur et synchronisez-le avec votre propre serveur.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Démarrage de Tarnwell…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Le disque du serveur est plein.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Taille maximale des fichiers</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Téléversé</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Tout est prêt !</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Vous pouvez uniquement lire ce dossier. Les fichiers seront téléchargés, mais vos modifications ne seront pas téléversées.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>Le dossier du serveur se trouve sur un stockage distant qui n’est pas connecté actuellement. Demandez à votre administrateur de le reconnecter.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Un dossier portant ce nom existe déjà. Voulez-vous fusionner les deux dossiers ?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>Le logiciel [ProductName] est déjà installé</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 élément(s)</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Ce dossier est un point de montage et ne peut pas être synchronisé. Choisissez un dossier ordinaire.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Le serveur a bloqué votre adresse IP. Demandez à votre administrateur de la débloquer.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell n’a pas pu être mis à jour. Réessayez plus tard ou téléchargez vous-même la dernière version.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Vous disposez d’une autorisation en lecture seule pour ce dossier partagé. Les fichiers seront uniquement téléchargés. Voulez-vous l’utiliser ?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Cette version de Tarnwell est déjà installée. Voulez-vous l’installer à nouveau ?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell n’a pas pu démarrer correctement. Redémarrez votre ordinateur. Si le problème persiste, réinstallez Tarnwell.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nouvelle tâche de synchronisation</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Ne pas utiliser de proxy</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Choisir un dossier sur cet ordinateur</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Modifier, réparer ou retirer [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Saisissez un nom de fichier ou une extension, par exemple *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sens de synchronisation</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Afficher le tutoriel</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>Le certificat SSL du serveur a changé depuis votre connexion. Revenez en arrière et reconnectez-vous pour le vérifier.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Saisissez l’adresse IP ou le nom de domaine du serveur.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Ce compte est protégé par la validation en deux étapes. Saisissez le code de validation.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Le serveur a signalé une erreur système. Réessayez plus tard ou demandez de l’aide à votre administrateur.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Vérifier les réglages</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Les dossiers que vous décochez ici seront retirés de cet ordinateur. Ils resteront sur le serveur.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Le paquet de synchronisation sur le serveur est trop ancien.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Dossiers partagés</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Vous pourrez modifier tous ces réglages plus tard.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Le téléchargement a été annulé.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink n’a pas pu joindre le serveur. Vérifiez votre connexion Internet et réessayez.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Les fichiers portant ces noms ne sont jamais téléversés ni téléchargés.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Ce dossier se trouve sur un lecteur réseau. Les modifications que d’autres personnes y apportent risquent de ne pas être détectées immédiatement.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Ce dossier ne peut pas être synchronisé. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janvier</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Vous disposez d’une autorisation en lecture seule pour ce dossier : rien ne peut y être sauvegardé. Choisissez un dossier dans lequel vous pouvez écrire.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Avant de commencer, assurez-vous que votre serveur est allumé.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Trop de tentatives infructueuses. Patientez quelques minutes et réessayez.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Dissocier cet ordinateur du serveur ? Toutes les tâches s’arrêteront, mais aucun fichier ne sera supprimé.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Ce dossier de sauvegarde est déjà utilisé par une autre tâche. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Un problème est survenu</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Afficher des pastilles d’état sur les fichiers synchronisés</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>« %1 » n’a pas pu être retiré de la liste. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Cette version de Tarnwell est trop ancienne.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Synchronisation activée</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Fermez ces programmes et cliquez sur Réessayer, ou cliquez sur Ignorer pour continuer et redémarrer votre ordinateur ensuite.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell sauvegarde les fichiers de votre ordinateur sur votre serveur et les garde synchronisés des deux côtés.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Fichiers en cours d’utilisation</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Sélectionnez les éléments à sauvegarder et leur emplacement sur le serveur.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Certains fichiers à modifier sont en cours d’utilisation.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Type d’événement</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Mis à jour à l’instant : %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Chargement des dossiers partagés…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell crée un dossier local et commence aussitôt à le sauvegarder.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Associer à nouveau</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Réintégrer ce dossier dans la synchronisation</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Choisissez comment Tarnwell se connecte au serveur.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Association au serveur…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Double-cliquez sur l’icône pour voir ce que fait Tarnwell en ce moment.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell garde ces deux dossiers synchronisés.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Démarrer maintenant</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Initialisation de Tarnwell…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Dossier partagé introuvable</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Les fichiers de votre dossier local sont désormais sauvegardés automatiquement sur le serveur.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>Le certificat SSL du serveur a changé. Consultez votre administrateur avant de faire confiance au nouveau certificat.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>La connexion a été perdue pendant la configuration de la tâche. Vérifiez votre réseau et réessayez.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Sauvegarde de %1 fichier(s)</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>La connexion au serveur a été perdue. Tarnwell se reconnectera dès que possible.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Bienvenue dans Tarnwell. Configurons votre première sauvegarde.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Arrêter de synchroniser ce dossier partagé ? Les fichiers déjà présents sur cet ordinateur seront conservés.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Mode de fusion</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Téléchargé</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Espace insuffisant</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>À propos de Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Échec d’identification</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>La connexion au serveur est établie.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Sauvegarde du fichier %1 sur %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Le quota de votre compte sur ce serveur est épuisé. Demandez un quota plus élevé à votre administrateur avant de configurer cette tâche.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Cliquez sur Retirer pour retirer [ProductName] de votre ordinateur. Cliquez sur Précédent pour changer d’option ou sur Annuler pour quitter le programme d’installation.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Je n’accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Besoin d’aide pour la configuration ?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Téléchargement : %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Période personnalisée</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Aucun réglage n’a été modifié.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Voyez l’état de chaque fichier</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octobre</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Fermer ces programmes et les relancer ensuite</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Vérification du mot de passe…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Gérer les tâches</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Envoyer vers</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Certaines modifications n’ont pas été enregistrées. Voulez-vous les abandonner ?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Le disque du serveur est plein. Libérez de l’espace sur le serveur et réessayez.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Votre administrateur exige la validation en deux étapes. Identifiez-vous d’abord sur le serveur dans un navigateur et activez-la.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Le quota de ce dossier partagé est épuisé. Supprimez les fichiers dont vous n’avez plus besoin ou choisissez un autre dossier partagé.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Dissocier la connexion</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Mise à jour vers la version %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Merci d’utiliser [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Utiliser ces réglages de proxy</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>La synchronisation s’est arrêtée de façon inattendue. Reprenez la tâche. Si le problème persiste, relancez Tarnwell.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Utiliser le proxy du système</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Si tout est correct, cliquez sur Terminer pour créer la tâche.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Sous-dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>Les modifications demandées pour [ProductName] sont en cours.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Comment souhaitez-vous configurer Tarnwell ?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Qu’est-ce qu’un identifiant OrvaneLink ?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Dossier en lecture seule</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>Aucune Orvane Station n’a été trouvée sur votre réseau local. Saisissez plutôt son adresse ou son identifiant OrvaneLink.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Bienvenue dans le programme d’installation [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Fichiers mis à jour</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Créer un dossier Tarnwell sur cet ordinateur</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Le disque de cet ordinateur est plein.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Chiffrement SSL</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Le dossier local est introuvable. Remettez-le à son emplacement d’origine, ou dissociez la tâche et configurez-la à nouveau.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Avertissement de certificat SSL</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrat de licence</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Permet de choisir les fonctionnalités à installer pour [ProductName].</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Ce dossier partagé n’existe plus sur le serveur. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>File de transfert</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Recherche des fichiers modifiés…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pages précédentes</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juillet</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Cliquez n’importe où pour commencer.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Exclure ces dossiers de la synchronisation</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Réglages avancés</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Étape en cours :</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Prêt à réparer</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Fichier verrouillé</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Le serveur a envoyé une réponse que Tarnwell ne comprend pas. Assurez-vous que tous deux sont à jour.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Point de montage</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pages suivantes</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisation bidirectionnelle</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell est en cours de mise à jour…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Dossier partagé avec vous</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Double-clic sur l’icône de la zone de notification</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Ce fichier ne peut pas être téléchargé. Il a peut-être été déplacé ou supprimé sur le serveur.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Connexion par OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Il y a %1 j</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Ne jamais synchroniser ces fichiers</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuration rapide</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Ajoutez une tâche pour synchroniser un autre dossier avec ce serveur.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Une erreur est survenue</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Retirer [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Le serveur a rejeté la demande car elle n’est pas valide. Mettez à jour Tarnwell et réessayez.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versions incompatibles</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Pour synchroniser d’autres dossiers, vous pouvez à tout moment ajouter une tâche dans Tarnwell.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Créé le</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Mise à jour requise</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink est indisponible actuellement. Réessayez plus tard ou saisissez plutôt l’adresse de votre Orvane Station.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Il y a %1 min</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Détails de l’état</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Partager un lien</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Mettre à jour maintenant</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Choisissez un dossier sur le serveur et le dossier local avec lequel le synchroniser.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>a été partagé avec vous.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Cet ordinateur et le serveur sont désormais associés.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Le serveur est injoignable. Vérifiez votre connexion réseau et réessayez.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Synchroniser avec un autre serveur</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Le disque de cet ordinateur est plein. Libérez de l’espace et reprenez la tâche.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synchroniser ce dossier</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semaine dernière</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Vérification des données…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Nom d’utilisateur ou mot de passe incorrect.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Le programme d’installation va installer [ProductName] sur votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter le programme d’installation.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Réparer [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Sens de synchronisation incompatible</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Reprendre la connexion</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connexion à votre serveur</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Saisissez l’adresse du serveur et identifiez-vous avec votre compte.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Sélectionnez au moins un dossier à sauvegarder.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Le programme d’installation est prêt à installer [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Que souhaitez-vous faire ensuite ?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Choisissez l’opération à effectuer.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>Le certificat SSL n’a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Le paquet de synchronisation sur le serveur est trop ancien. Demandez à votre administrateur de le mettre à jour vers la version %1 ou ultérieure.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Ajouter une tâche de synchronisation</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Aucun événement à afficher</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Saisissez votre nom d’utilisateur.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>Le dossier partagé n’est pas monté sur le serveur. Demandez à votre administrateur de le monter.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Les pastilles indiquent l’état de vos fichiers. Une coche verte signifie qu’un fichier est à jour.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>J’accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Modifier les fonctionnalités installées</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Extension de fichier</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Suspendre la connexion</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Le serveur utilise désormais un autre certificat SSL. Voulez-vous lui faire confiance ?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Il y a %1 h</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nom de l’ordinateur</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Le code de validation est incorrect ou a expiré. Saisissez un nouveau code.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Le programme d’installation a été interrompu</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Saisissez un nom de fichier à exclure</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Certains fichiers n’ont pas été synchronisés</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Assistant de configuration avancée</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Utiliser une icône en noir et blanc dans la zone de notification</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Type de connexion</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La connexion est instable</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Voulez-vous quitter le programme d’installation [ProductName] avant la fin de l’opération ?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>« %1 » n’a pas pu être téléchargé. Vérifiez la connexion au serveur et réessayez.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Votre sauvegarde commence ici</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Avril</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Une erreur a interrompu le programme d’installation [ProductName] avant la fin de l’opération. Votre ordinateur n’a pas été modifié. Pour réessayer, relancez le programme d’installation.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>Le sens de synchronisation de cette tâche ne correspond pas à votre autorisation sur le serveur. Choisissez un autre sens de synchronisation.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Vous n’avez pas l’autorisation d’utiliser ce dossier partagé. Demandez l’accès à votre administrateur.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Cette opération peut prendre quelques minutes.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuration avancée</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Vous pouvez utiliser la tâche existante ou en configurer une nouvelle dans un autre dossier.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Une autre tâche synchronise déjà ce dossier. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Afficher l’état de synchronisation</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Si vous continuez, la tâche existante sera remplacée. Aucun fichier ne sera supprimé.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Veuillez patienter</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Mot-clé</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Une tâche existe déjà pour ce dossier sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Parcourir les versions antérieures</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell indexe ce dossier</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Cette tâche existe déjà</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>La tâche n’a pas pu être créée. Vérifiez vos réglages et réessayez.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Toujours conserver la version du serveur</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Choisir un dossier local</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septembre</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>Le nombre de dossiers partagés synchronisés est limité à %1. Arrêtez la synchronisation de l’un d’eux avant d’en ajouter un autre.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Ouvrir le dossier parent</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Ouvrir le dossier local</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mois dernier</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Une version plus récente de Tarnwell est déjà installée. Pour installer cette version-ci, retirez d’abord la plus récente.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>Impossible d’afficher les versions antérieures de ce fichier. Vérifiez la connexion au serveur et réessayez.</translation>
    </message>
</context>
</TS>
