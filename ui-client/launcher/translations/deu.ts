<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Backup läuft …</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Wird entkoppelt …</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Entfernt [ProductName] von Ihrem Computer.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Tarnwell öffnen</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>%1 wird gesichert</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Ihre Dateien: sicher und immer griffbereit</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Dateien auf dem Server behalten, wenn sie auf diesem Computer gelöscht werden</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Erneut synchronisieren</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Zuletzt hochgeladen: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Weiterleitung über OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Das SSL-Zertifikat des Servers konnte nicht überprüft werden. Prüfen Sie die Serveradresse oder bitten Sie Ihren Administrator um Hilfe.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Einige Ihrer Angaben sind ungültig. Prüfen Sie Ihre Eingaben und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Entkoppeln</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Repariert [ProductName], indem fehlende oder beschädigte Dateien, Verknüpfungen und Registrierungseinträge ersetzt werden.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Willkommen bei %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Bestätigungscode eingeben</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy-Adresse</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>SSL-Verbindung verwenden</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Adresse der Orvane Station oder OrvaneLink-ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Ordner zum Synchronisieren auswählen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Wählen Sie die Ordner, den Sync-Modus und die Filter selbst aus.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeitpunkt</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Symbol im Infobereich</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Aufgabe für „%1“ entkoppeln? Die Dateien, die sich auf diesem Computer und auf dem Server befinden, werden nicht gelöscht.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Sync-Modus</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell ist bereit.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Das Installationsprogramm kann [ProductName] jetzt reparieren.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Diesen Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle Ereignisse</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet …</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Geben Sie die Daten des Servers ein, mit dem Sie sich verbinden möchten.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] enthält keine Funktionen, die einzeln geändert werden können.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Verbindungstyp wird ermittelt …</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Sync-Problem</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Die Sync-Datenbank kann nicht gelesen werden. Starten Sie Tarnwell neu. Falls das Problem weiterhin auftritt, entkoppeln Sie die Aufgabe und richten Sie sie neu ein.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Ihr Speicherkontingent auf dem Server ist aufgebraucht. Löschen Sie Dateien, die Sie nicht mehr benötigen, oder bitten Sie Ihren Administrator um ein größeres Kontingent.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Tarnwell bei der Benutzeranmeldung starten</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Klicken Sie mit der rechten Maustaste auf das Symbol im Infobereich, um eine Aufgabe zu pausieren, ihren Ordner zu öffnen oder ihre Einstellungen zu ändern.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Geben Sie 0 ein, wenn Sie die Dateigröße nicht begrenzen möchten.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Ordner für das Backup auswählen</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Zuletzt geänderte Dateien</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Dateien und Ordner ausschließen, deren Name mit einem Punkt beginnt</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Vertrauen und fortfahren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink-ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Neuer freigegebener Ordner</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Installationsprogramm für [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Das Installationsprogramm für [ProductName] ist fertig</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Einige Dateien konnten nicht synchronisiert werden. Öffnen Sie Tarnwell, um die Details zu sehen.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Die Festplatte, auf der sich dieser freigegebene Ordner befindet, ist voll. Wählen Sie einen freigegebenen Ordner auf einer anderen Festplatte aus oder schaffen Sie freien Speicherplatz.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Tarnwell-Update</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Diese OrvaneLink-ID gibt es nicht. Prüfen Sie die ID und geben Sie sie erneut ein.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>„%1“ wurde heruntergeladen.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy-Einstellungen</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Name der Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausieren</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>„%1“ aus der Liste entfernen? Der Ordner selbst wird nicht gelöscht.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Dieser Benutzername konnte nicht überprüft werden. Stellen Sie sicher, dass der Server erreichbar ist, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertigstellen</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Wählen Sie einen Ordner auf diesem Computer aus. Sein Inhalt wird mit dem Server synchronisiert.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>Der Ordner ist nicht leer</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Dateien mit genau diesem Namen werden nie synchronisiert, egal in welchem Ordner sie sich befinden.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Es konnte keine sichere Verbindung hergestellt werden. Prüfen Sie die SSL-Einstellungen des Servers und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Die folgenden Programme verwenden Dateien, die das Installationsprogramm ändern muss:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Das ist keine gültige OrvaneLink-ID. Verwenden Sie nur Buchstaben, Ziffern und Bindestriche.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Geben Sie eine Portnummer zwischen 1 und 65535 ein.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Die Orvane Station mit dieser OrvaneLink-ID ist offline. Stellen Sie sicher, dass sie eingeschaltet und mit dem Internet verbunden ist.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Der Server konnte wegen eines Systemfehlers nicht gefunden werden. Versuchen Sie es erneut oder geben Sie stattdessen seine Adresse ein.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Ihr Speicherkontingent auf dem Server ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Der Proxy erfordert ein Passwort</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Anderen auswählen</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Orvane Station suchen</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Zwei Pfeile bedeuten, dass die Datei gerade synchronisiert wird. Eine rote Markierung bedeutet, dass Sie sich um die Datei kümmern müssen.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS-Version</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klicken Sie auf „Reparieren“, um zu beginnen. Klicken Sie auf „Zurück“, um etwas anderes auszuwählen, oder auf „Abbrechen“, um das Installationsprogramm zu beenden.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Die Einrichtung ist abgeschlossen.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Diesen Ordner verwenden</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Desktop-Mitteilungen anzeigen</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell benötigt StationOS %1 oder neuer. Aktualisieren Sie Ihre Orvane Station und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Es muss mindestens 1 Version aufbewahrt werden.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>[ProductName] jetzt starten</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Geben Sie den Benutzernamen für den Proxy ein.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Bereit zur Installation</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Beim Zusammenführen werden die Inhalte beider Ordner vereint. Dateien, die sich unterscheiden, werden als Konflikte behandelt.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Wählen Sie einen Ordner auf dem Server aus.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Alles im Infobereich</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Diese Version von Tarnwell ist zu alt für den Server. Aktualisieren Sie Tarnwell auf Version %1 oder neuer.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 ist verfügbar. Klicken Sie hier, um das Update zu installieren.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Wählen Sie aus, was geschehen soll, wenn eine Datei sowohl auf dem Computer als auch auf dem Server geändert wurde.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Das Installationsprogramm kann [ProductName] jetzt entfernen.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wird hochgeladen …</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Geben Sie die OrvaneLink-ID Ihrer Orvane Station ein. Tarnwell verbindet sich über OrvaneLink mit ihr, auch wenn Sie unterwegs sind.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Sie können diesen Ordner ansehen, aber Ihre Änderungen werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Synchronisierung nur vom Server auf diesen Computer</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>Der freigegebene Ordner „%1“ kann jetzt synchronisiert werden.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>StationOS öffnen</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Starten Sie Tarnwell neu, um die neue Sprache zu verwenden.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokaler Ordner</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Die zuletzt geänderte Version behalten</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Keiner der ausgewählten Ordner kann synchronisiert werden. Wählen Sie mindestens einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Klicken Sie auf „Installieren“, um zu beginnen. Klicken Sie auf „Zurück“, um Ihre Auswahl zu prüfen, oder auf „Abbrechen“, um das Installationsprogramm zu beenden.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell bewahrt frühere Versionen Ihrer Dateien auf. So lässt sich ein Fehler schnell rückgängig machen.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Weiteren Server koppeln</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Bereit zum Entfernen</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Dieser Ordner enthält bereits Dateien. Diese werden ebenfalls synchronisiert. Möchten Sie den Ordner verwenden?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Mit diesem Installationsprogramm können Sie [ProductName] reparieren oder von Ihrem Computer entfernen. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um das Installationsprogramm zu beenden.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ausgeschlossene Dateien</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Die Synchronisierung konnte für diesen Ordner nicht eingeschaltet werden. Prüfen Sie Ihre Berechtigungen auf dem Server und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Dieser Ordner überschneidet sich mit einem Ordner, der bereits synchronisiert wird. Wählen Sie einen Ordner aus, der weder darin enthalten noch ihm übergeordnet ist.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Statussymbole auf ausgeschlossenen Dateien anzeigen</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Geben Sie die Adresse und den Port des Proxys ein.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Klicken Sie auf „Fertigstellen“, um das Installationsprogramm zu beenden.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Zu synchronisierende Dateitypen</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Geben Sie eine maximale Dateigröße zwischen %1 und %2 MB ein.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Einstellungen werden angewendet …</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Aufgabe hinzufügen</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Ordner ändern</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nein, danke</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Um die selektive Synchronisierung zu verwenden, aktualisieren Sie zuerst das Sync-Paket auf dem Server.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Ausgeschlossene Dateinamen</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Backup-Ziel</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Alles ist eingerichtet. Tarnwell hat mit dem Backup Ihrer Dateien begonnen.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Lassen Sie Tarnwell die Einstellungen wählen oder legen Sie sie selbst fest.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Es kann kein Link zu dieser Datei erstellt werden. Stellen Sie sicher, dass die Datei hochgeladen wurde und dass Sie die Berechtigung haben, sie zu teilen.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Tarnwell beenden</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Kein geeigneter Ordner gefunden</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Diese Ordner wieder synchronisieren</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Diese Datei wurde sowohl auf dem Computer als auch auf dem Server geändert. Vergleichen Sie die beiden Versionen und löschen Sie die, die Sie nicht benötigen.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Lesen Sie den Lizenzvertrag sorgfältig durch, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Zurück in die Vergangenheit</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Ihr Konto auf dem Server wurde deaktiviert. Bitten Sie Ihren Administrator, es zu aktivieren.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Es ist ein Problem aufgetreten. Versuchen Sie es erneut. Falls das Problem weiterhin auftritt, starten Sie Tarnwell neu.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Beide Versionen behalten und die ältere umbenennen</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Wartet, bis die Datei entsperrt ist</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen …</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Legen Sie Dateien in den lokalen Ordner und Tarnwell sichert sie für Sie auf dem Server.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Der Ordner „%1“ konnte nicht erstellt werden. Prüfen Sie Ihre Berechtigungen oder wählen Sie einen anderen Ort aus.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Wählen Sie den freigegebenen Ordner auf dem Server aus, mit dem synchronisiert werden soll.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Sie haben das Installationsprogramm für [ProductName] abgebrochen, bevor es fertig war. Ihr Computer wurde nicht verändert. Sie können das Installationsprogramm jederzeit erneut ausführen.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Diese Einstellungen werden verwendet:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadverlauf</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Diese Aufgabe ist inaktiv. Setzen Sie sie fort, um ihre Dateien wieder zu synchronisieren.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Bereitschaft</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Das Backup konnte nicht abgeschlossen werden. Prüfen Sie die Verbindung zum Server und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Weitere Einführungen</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Dieser Ordner wird von einem anderen Sync-Programm verwendet. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Diese Programme geöffnet lassen (Neustart erforderlich)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Sie haben keine Berechtigung, mit diesem Ordner zu synchronisieren. Wählen Sie einen Ordner aus, auf den Sie Zugriff haben.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell wird bereits ausgeführt. Sie können es über den Infobereich öffnen.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Dateien, auf die einer dieser Filter zutrifft, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Aufgabenoptionen</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Serverordner</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>Die Festplatte mit dem lokalen Ordner ist nicht angeschlossen. Schließen Sie sie an und setzen Sie die Aufgabe fort.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Sie sind nicht als Administrator angemeldet. Tarnwell wird daher nur für Ihr Konto installiert. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Sichern und synchronisieren Sie Ihren Computer mit Ihrem eigenen Server.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell wird gestartet …</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Die Festplatte des Servers ist voll.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale Dateigröße</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Hochgeladen</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Alles bereit!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Sie können diesen Ordner nur lesen. Dateien werden heruntergeladen, aber Ihre Änderungen werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>Der Serverordner liegt auf einem Remote-Speicher, der derzeit nicht verbunden ist. Bitten Sie Ihren Administrator, ihn wieder zu verbinden.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Ein Ordner mit diesem Namen ist bereits vorhanden. Möchten Sie die beiden Ordner zusammenführen?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] ist bereits installiert</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Einträge: %1</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Dieser Ordner ist ein Einhängepunkt und kann nicht synchronisiert werden. Wählen Sie einen normalen Ordner aus.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Der Server hat Ihre IP-Adresse gesperrt. Bitten Sie Ihren Administrator, sie zu entsperren.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell konnte nicht aktualisiert werden. Versuchen Sie es später erneut oder laden Sie die neueste Version selbst herunter.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Sie haben für diesen freigegebenen Ordner nur eine Leseberechtigung. Dateien werden nur heruntergeladen. Möchten Sie ihn verwenden?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Diese Version von Tarnwell ist bereits installiert. Möchten Sie sie erneut installieren?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Wird verbunden …</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell konnte nicht richtig gestartet werden. Starten Sie Ihren Computer neu. Falls das Problem weiterhin auftritt, installieren Sie Tarnwell erneut.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Neue Sync-Aufgabe</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Keinen Proxy verwenden</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Ordner auf diesem Computer auswählen</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>[ProductName] ändern, reparieren oder entfernen</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Geben Sie einen Dateinamen oder eine Dateiendung ein, zum Beispiel *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sync-Richtung</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet …</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Einführung anzeigen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>Das SSL-Zertifikat des Servers hat sich geändert, seit Sie sich verbunden haben. Gehen Sie zurück und verbinden Sie sich erneut, um es zu prüfen.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Geben Sie die IP-Adresse oder den Domainnamen des Servers ein.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Dieses Konto ist durch die zweistufige Bestätigung geschützt. Geben Sie den Bestätigungscode ein.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Der Server hat einen Systemfehler gemeldet. Versuchen Sie es später erneut oder bitten Sie Ihren Administrator um Hilfe.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Einstellungen prüfen</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Ordner, die Sie hier abwählen, werden von diesem Computer entfernt. Auf dem Server bleiben sie erhalten.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Das Sync-Paket auf dem Server ist zu alt.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Freigegebene Ordner</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Sie können alle diese Einstellungen später ändern.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Das Herunterladen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink konnte den Server nicht erreichen. Prüfen Sie Ihre Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Dateien mit diesen Namen werden nie hochgeladen oder heruntergeladen.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Dieser Ordner befindet sich auf einem Netzlaufwerk. Änderungen, die andere dort vornehmen, werden möglicherweise nicht sofort erkannt.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Dieser Ordner kann nicht synchronisiert werden. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Sie haben für diesen Ordner nur eine Leseberechtigung, daher kann darin nichts gesichert werden. Wählen Sie einen Ordner aus, in den Sie schreiben können.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Stellen Sie zuerst sicher, dass Ihr Server eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Zu viele fehlgeschlagene Versuche. Warten Sie einige Minuten und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Diesen Computer vom Server entkoppeln? Alle Aufgaben werden beendet, aber es werden keine Dateien gelöscht.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Dieser Backup-Ordner wird bereits von einer anderen Aufgabe verwendet. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Es ist ein Problem aufgetreten</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Statussymbole auf synchronisierten Dateien anzeigen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>„%1“ konnte nicht aus der Liste entfernt werden. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Diese Version von Tarnwell ist zu alt.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Synchronisierung aktiv</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Schließen Sie diese Programme und klicken Sie auf „Wiederholen“ oder klicken Sie auf „Ignorieren“, um fortzufahren und Ihren Computer danach neu zu starten.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell sichert die Dateien Ihres Computers auf Ihrem Server und hält beide synchron.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Verwendete Dateien</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Wählen Sie aus, was gesichert und wo es auf dem Server gespeichert werden soll.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Einige Dateien, die geändert werden müssen, werden gerade verwendet.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Ereignistyp</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Soeben aktualisiert: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Freigegebene Ordner werden geladen …</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell erstellt einen lokalen Ordner und beginnt sofort mit dessen Backup.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Erneut koppeln</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Diesen Ordner wieder synchronisieren</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Wählen Sie aus, wie sich Tarnwell mit dem Server verbindet.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Kopplung mit dem Server läuft …</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Doppelklicken Sie auf das Symbol, um zu sehen, was Tarnwell gerade tut.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell hält diese beiden Ordner synchron.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisierung</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell wird initialisiert …</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Freigegebener Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Die Dateien in Ihrem lokalen Ordner werden jetzt automatisch auf dem Server gesichert.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>Das SSL-Zertifikat des Servers hat sich geändert. Fragen Sie Ihren Administrator, bevor Sie dem neuen Zertifikat vertrauen.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>Die Verbindung wurde unterbrochen, während die Aufgabe eingerichtet wurde. Prüfen Sie Ihr Netzwerk und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Backup läuft: %1 Datei(en)</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Die Verbindung zum Server wurde unterbrochen. Tarnwell stellt sie so bald wie möglich wieder her.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Willkommen bei Tarnwell. Richten Sie jetzt Ihr erstes Backup ein.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Diesen freigegebenen Ordner nicht mehr synchronisieren? Die Dateien, die sich bereits auf diesem Computer befinden, bleiben erhalten.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Zusammenführung</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Heruntergeladen</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Zu wenig Speicherplatz</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Über Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Anmeldefehler</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Sie sind jetzt mit dem Server verbunden.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Datei %1 von %2 wird gesichert</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Ihr Konto hat auf diesem Server kein freies Speicherkontingent mehr. Bitten Sie Ihren Administrator um ein größeres Kontingent, bevor Sie diese Aufgabe einrichten.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klicken Sie auf „Entfernen“, um [ProductName] von Ihrem Computer zu entfernen. Klicken Sie auf „Zurück“, um etwas anderes auszuwählen, oder auf „Abbrechen“, um das Installationsprogramm zu beenden.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Ich akzeptiere die Bedingungen des Lizenzvertrags nicht</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Benötigen Sie Hilfe bei der Einrichtung?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Zu synchronisierende Ordner</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Eigener Zeitraum</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Es wurden keine Einstellungen geändert.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Dateistatus auf einen Blick</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Diese Programme schließen und danach neu starten</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Passwort wird geprüft …</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Aufgaben verwalten</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Senden an</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Es gibt nicht gespeicherte Änderungen. Möchten Sie sie verwerfen?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Die Festplatte des Servers ist voll. Schaffen Sie freien Speicherplatz auf dem Server und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Ihr Administrator verlangt die zweistufige Bestätigung. Melden Sie sich zuerst in einem Browser beim Server an und schalten Sie sie ein.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Das Speicherkontingent dieses freigegebenen Ordners ist aufgebraucht. Löschen Sie Dateien, die Sie nicht mehr benötigen, oder wählen Sie einen anderen freigegebenen Ordner aus.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Verbindung entkoppeln</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Update auf Version %1 läuft …</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Vielen Dank, dass Sie [ProductName] verwenden.</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Diese Proxy-Einstellungen verwenden</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>Die Synchronisierung wurde unerwartet beendet. Setzen Sie die Aufgabe fort. Falls das Problem weiterhin auftritt, starten Sie Tarnwell neu.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Proxy des Systems verwenden</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Wenn alles richtig ist, klicken Sie auf „Fertigstellen“, um die Aufgabe zu erstellen.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Zu synchronisierende Unterordner</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>Die gewünschten Änderungen an [ProductName] werden vorgenommen.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Wie möchten Sie Tarnwell einrichten?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Was ist eine OrvaneLink-ID?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Schreibgeschützter Ordner</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>In Ihrem lokalen Netzwerk wurde keine Orvane Station gefunden. Geben Sie stattdessen ihre Adresse oder ihre OrvaneLink-ID ein.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Willkommen beim Installationsprogramm für [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Aktualisierte Dateien</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Tarnwell-Ordner auf diesem Computer erstellen</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Die Festplatte dieses Computers ist voll.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-Verschlüsselung</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Der lokale Ordner wurde nicht gefunden. Verschieben Sie ihn zurück an seinen ursprünglichen Ort oder entkoppeln Sie die Aufgabe und richten Sie sie neu ein.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Warnung zum SSL-Zertifikat</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lizenzvertrag</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Ermöglicht die Auswahl der Funktionen von [ProductName], die installiert werden.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Dieser freigegebene Ordner ist auf dem Server nicht mehr vorhanden. Wählen Sie einen anderen aus.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Übertragungsliste</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Geänderte Dateien werden gesucht …</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 Seiten zurück</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Klicken Sie irgendwohin, um zu beginnen.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Diese Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktueller Schritt:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Bereit zur Reparatur</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Gesperrte Datei</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Der Server hat eine Antwort gesendet, die Tarnwell nicht versteht. Stellen Sie sicher, dass beide aktuell sind.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Einhängepunkt</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 Seiten vor</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Zwei-Wege-Synchronisierung</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell wird aktualisiert …</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Ordner für Sie freigegeben</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Bei Doppelklick auf das Symbol im Infobereich</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Diese Datei kann nicht heruntergeladen werden. Möglicherweise wurde sie auf dem Server verschoben oder gelöscht.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Wird über OrvaneLink verbunden …</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Vor %1 Tag(en)</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Anderen Ordner auswählen</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Diese Dateien nie synchronisieren</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Schnelleinrichtung</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Fügen Sie eine Aufgabe hinzu, um einen weiteren Ordner mit diesem Server zu synchronisieren.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Es ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>[ProductName] entfernen</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Der Server hat die Anfrage als ungültig abgelehnt. Aktualisieren Sie Tarnwell und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Version passt nicht</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Um weitere Ordner zu synchronisieren, können Sie in Tarnwell jederzeit eine Aufgabe hinzufügen.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Update erforderlich</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink ist derzeit nicht verfügbar. Versuchen Sie es später erneut oder geben Sie stattdessen die Adresse Ihrer Orvane Station ein.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Vor %1 Minute(n)</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusdetails</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Link teilen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Jetzt aktualisieren</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Wählen Sie einen Ordner auf dem Server und den lokalen Ordner aus, mit dem er synchronisiert werden soll.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>wurde für Sie freigegeben.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Dieser Computer und der Server sind jetzt gekoppelt.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte Verbindung</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Der Server ist nicht erreichbar. Prüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Mit anderem Server synchronisieren</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Die Festplatte dieses Computers ist voll. Schaffen Sie freien Speicherplatz und setzen Sie die Aufgabe fort.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Diesen Ordner synchronisieren</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Daten werden geprüft …</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Benutzername oder Passwort ist falsch.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] wird auf Ihrem Computer installiert. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um das Installationsprogramm zu beenden.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>[ProductName] reparieren</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Sync-Richtung passt nicht</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Verbindung fortsetzen</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Mit Ihrem Server verbinden</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Geben Sie die Serveradresse ein und melden Sie sich mit Ihrem Konto an.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Wählen Sie mindestens einen Ordner für das Backup aus.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Das Installationsprogramm kann [ProductName] jetzt installieren.</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Was möchten Sie als Nächstes tun?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Wählen Sie aus, was Sie tun möchten.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>Das SSL-Zertifikat konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Das Sync-Paket auf dem Server ist zu alt. Bitten Sie Ihren Administrator, es auf Version %1 oder neuer zu aktualisieren.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Sync-Aufgabe hinzufügen</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Keine Ereignisse vorhanden</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Geben Sie Ihren Benutzernamen ein.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>Der freigegebene Ordner ist auf dem Server nicht eingehängt. Bitten Sie Ihren Administrator, ihn einzuhängen.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Statussymbole zeigen den Status Ihrer Dateien. Ein grünes Häkchen bedeutet, dass eine Datei aktuell ist.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Ich akzeptiere die Bedingungen des Lizenzvertrags</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Installierte Funktionen ändern</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Dateiendung</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Verbindung pausieren</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Nur herunterladen</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Der Server verwendet jetzt ein anderes SSL-Zertifikat. Möchten Sie ihm vertrauen?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Vor %1 Stunde(n)</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Abgeschlossen</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Der Bestätigungscode ist falsch oder abgelaufen. Geben Sie einen neuen Code ein.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Das Installationsprogramm wurde abgebrochen</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Auszuschließenden Dateinamen eingeben</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Einige Dateien nicht synchronisiert</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systemsprache</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Erweiterter Einrichtungsassistent</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Schwarz-weißes Symbol im Infobereich verwenden</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Verbindungstyp</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Die Verbindung ist instabil</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Möchten Sie das Installationsprogramm für [ProductName] beenden, bevor es fertig ist?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>„%1“ konnte nicht heruntergeladen werden. Prüfen Sie die Verbindung zum Server und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Hier beginnt Ihr Backup</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Das Installationsprogramm für [ProductName] wurde durch einen Fehler vorzeitig beendet. Ihr Computer wurde nicht verändert. Starten Sie das Installationsprogramm neu, um es erneut zu versuchen.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>Die Sync-Richtung dieser Aufgabe passt nicht zu Ihrer Berechtigung auf dem Server. Wählen Sie eine andere Sync-Richtung aus.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Sie haben keine Berechtigung, diesen freigegebenen Ordner zu verwenden. Bitten Sie Ihren Administrator um Zugriff.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dies kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Erweiterte Einrichtung</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Sie können die vorhandene Aufgabe verwenden oder eine neue in einem anderen Ordner einrichten.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Dieser Ordner wird bereits von einer anderen Aufgabe synchronisiert. Wählen Sie einen anderen aus.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Sync-Status anzeigen</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Wenn Sie fortfahren, wird die vorhandene Aufgabe ersetzt. Es werden keine Dateien gelöscht.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Bitte warten</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Suchbegriff</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Für diesen Ordner ist auf diesem Computer bereits eine Aufgabe vorhanden.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sync-Aufgaben</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Frühere Versionen durchsuchen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell indiziert diesen Ordner</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Diese Aufgabe ist bereits vorhanden</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Die Aufgabe konnte nicht erstellt werden. Prüfen Sie Ihre Einstellungen und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Immer die Version auf dem Server behalten</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Lokalen Ordner auswählen</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>Die Anzahl der freigegebenen Ordner, die Sie synchronisieren können, ist auf %1 begrenzt. Beenden Sie die Synchronisierung eines Ordners, bevor Sie einen weiteren hinzufügen.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Übergeordneten Ordner öffnen</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Lokalen Ordner öffnen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Eine neuere Version von Tarnwell ist bereits installiert. Um diese Version zu installieren, entfernen Sie zuerst die neuere.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>Die früheren Versionen dieser Datei können nicht angezeigt werden. Prüfen Sie die Verbindung zum Server und versuchen Sie es erneut.</translation>
    </message>
</context>
</TS>
