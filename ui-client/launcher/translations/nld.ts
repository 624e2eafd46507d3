<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Back-up wordt gemaakt…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Ontkoppelen…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Verwijdert [ProductName] van je computer.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Tarnwell openen</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Back-up wordt gemaakt: %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Naam gewijzigd</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Je bestanden, veilig en altijd bij de hand</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Bestanden op de server bewaren wanneer ze op deze computer worden verwijderd</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Opnieuw synchroniseren</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Laatste upload: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Doorgestuurd via OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Het SSL-certificaat van de server kan niet worden geverifieerd. Controleer het serveradres of vraag je beheerder om hulp.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Sommige gegevens die je hebt ingevoerd, zijn niet geldig. Controleer ze en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Herstelt [ProductName] door ontbrekende of beschadigde bestanden, snelkoppelingen en registervermeldingen te vervangen.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Welkom bij %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecteren</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Voer de verificatiecode in</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadres</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>SSL-verbinding gebruiken</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Adres van Orvane Station of OrvaneLink-ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Kies mappen voor synchronisatie</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokaal netwerk</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Kies zelf elke map, de synchronisatiemodus en de filters.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augustus</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Bestand openen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijdstip</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Systeemvakpictogram</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Wil je de taak voor ‘%1’ ontkoppelen? De bestanden die al op deze computer en op de server staan, worden niet verwijderd.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Geavanceerd</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisatiemodus</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell is gereed.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Het installatieprogramma is gereed om [ProductName] te herstellen.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Deze map uitsluiten van synchronisatie</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle gebeurtenissen</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Voer de gegevens in van de server waarmee je verbinding wilt maken.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] heeft geen onderdelen die afzonderlijk kunnen worden gewijzigd.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Verbindingstype wordt gecontroleerd…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synchronisatieprobleem</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>De synchronisatiedatabase kan niet worden gelezen. Start Tarnwell opnieuw. Als het probleem aanhoudt, ontkoppel je de taak en configureer je die opnieuw.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Je quotum op de server is opgebruikt. Verwijder bestanden die je niet meer nodig hebt of vraag je beheerder om een groter quotum.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Tarnwell starten bij inloggen</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Klik met de rechtermuisknop op het systeemvakpictogram om een taak te pauzeren, de bijbehorende map te openen of de instellingen te wijzigen.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Voer 0 in als je de bestandsgrootte niet wilt beperken.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Kies mappen voor de back-up</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>zaterdag</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Onlangs gewijzigde bestanden</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Bestanden en mappen uitsluiten waarvan de naam met een punt begint</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Vertrouwen en doorgaan</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink-ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adres</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nieuwe gedeelde map</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Installatieprogramma van [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Het installatieprogramma van [ProductName] is klaar</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Sommige bestanden konden niet worden gesynchroniseerd. Open Tarnwell om de details te bekijken.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>De schijf met deze gedeelde map is vol. Kies een gedeelde map op een andere schijf of maak ruimte vrij.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Tarnwell-update</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Deze OrvaneLink-ID bestaat niet. Controleer de ID en voer deze opnieuw in.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>‘%1’ is gedownload.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinstellingen</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Naam van Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Wil je ‘%1’ uit de lijst verwijderen? De map zelf wordt niet verwijderd.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Deze gebruikersnaam kan niet worden gecontroleerd. Zorg dat de server bereikbaar is en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Kies een map op deze computer. De inhoud wordt met de server gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>De map is niet leeg</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Bestanden met precies deze naam worden nooit gesynchroniseerd, ongeacht in welke map ze staan.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Er kan geen beveiligde verbinding tot stand worden gebracht. Controleer de SSL-instellingen van de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>De volgende programma’s gebruiken bestanden die het installatieprogramma moet wijzigen:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Dit is geen geldige OrvaneLink-ID. Gebruik alleen letters, cijfers en koppeltekens.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Voer een poortnummer tussen 1 en 65535 in.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Het Orvane Station met deze OrvaneLink-ID is offline. Zorg dat het is ingeschakeld en met internet is verbonden.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Beheren</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netwerkinstellingen</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>De server is niet gevonden vanwege een systeemfout. Probeer het opnieuw of voer het adres van de server in.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Je quotum op de server is opgebruikt.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>De proxy vereist een wachtwoord</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Andere kiezen</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Orvane Station zoeken</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Twee pijlen betekenen dat het bestand wordt gesynchroniseerd. Een rood teken betekent dat het bestand je aandacht nodig heeft.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS-versie</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klik op ‘Herstellen’ om te beginnen. Klik op ‘Vorige’ om iets anders te kiezen of op ‘Annuleren’ om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>De configuratie is voltooid.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Deze map gebruiken</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Bureaubladmeldingen tonen</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumbereik</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Voor Tarnwell is StationOS %1 of nieuwer vereist. Werk je Orvane Station bij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Het aantal te bewaren versies moet 1 of hoger zijn.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>[ProductName] nu starten</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Voer de gebruikersnaam voor de proxy in.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Gereed om te installeren</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Bij het samenvoegen wordt de inhoud van beide mappen gecombineerd. Bestanden die verschillen, worden als conflicten behandeld.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Begrepen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Kies een map op de server.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Alles vanuit het systeemvak</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Deze versie van Tarnwell is te oud voor de server. Werk Tarnwell bij naar versie %1 of nieuwer.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 is beschikbaar. Klik hier om bij te werken.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Kies wat er gebeurt wanneer een bestand zowel op de computer als op de server is gewijzigd.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Het installatieprogramma is gereed om [ProductName] te verwijderen.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploaden…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Voer de OrvaneLink-ID van je Orvane Station in. Tarnwell maakt verbinding via OrvaneLink, ook wanneer je onderweg bent.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Je kunt deze map bekijken, maar je wijzigingen worden niet geüpload.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Eenrichtingssynchronisatie van de server naar deze computer</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>De gedeelde map ‘%1’ is gereed om te worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>StationOS openen</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Start Tarnwell opnieuw om de nieuwe taal toe te passen.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokale map</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>De laatst gewijzigde versie bewaren</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Geen van de gekozen mappen kan worden gesynchroniseerd. Kies minstens één andere map.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Klik op ‘Installeren’ om te beginnen. Klik op ‘Vorige’ om je keuzes te controleren of op ‘Annuleren’ om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell bewaart eerdere versies van je bestanden, zodat je een vergissing snel ongedaan kunt maken.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Nog een server koppelen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetten</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Gereed om te verwijderen</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Deze map bevat al bestanden. Die worden ook gesynchroniseerd. Wil je deze map gebruiken?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Met dit installatieprogramma kun je [ProductName] herstellen of van je computer verwijderen. Klik op ‘Volgende’ om door te gaan of op ‘Annuleren’ om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Uitgesloten bestanden</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>De synchronisatie kan niet worden ingeschakeld voor deze map. Controleer je bevoegdheden op de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Deze map overlapt met een map die al wordt gesynchroniseerd. Kies een map die daar niet in of boven ligt.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installeren</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Statuspictogrammen tonen op uitgesloten bestanden</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Voer het adres en de poort van de proxy in.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Klik op ‘Voltooien’ om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Te synchroniseren bestandstypen</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Voer een maximale bestandsgrootte tussen %1 en %2 MB in.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Instellingen worden toegepast…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Taak toevoegen</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Map wijzigen</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nee, bedankt</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Dit bericht niet meer tonen</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Werk eerst het synchronisatiepakket op de server bij om selectieve synchronisatie te gebruiken.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Uitgesloten bestandsnamen</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Back-upbestemming</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Alles is geconfigureerd. Tarnwell is begonnen met een back-up van je bestanden.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Laat Tarnwell de instellingen voor je kiezen of kies ze zelf.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Er kan geen link naar dit bestand worden gemaakt. Zorg dat het bestand is geüpload en dat je bevoegd bent om het te delen.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Tarnwell afsluiten</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Geen geschikte map gevonden</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Deze mappen weer synchroniseren</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Dit bestand is zowel op de computer als op de server gewijzigd. Vergelijk de twee versies en verwijder de versie die je niet nodig hebt.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Lees de licentieovereenkomst zorgvuldig door voordat je doorgaat.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Ga terug in de tijd</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Je account op de server is uitgeschakeld. Vraag je beheerder om het in te schakelen.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Er is iets misgegaan. Probeer het opnieuw. Als het probleem aanhoudt, start je Tarnwell opnieuw.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Beide versies bewaren en de naam van de oudste wijzigen</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Wachten tot het bestand wordt ontgrendeld</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloaden…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Zet bestanden in de lokale map en Tarnwell maakt er voor jou een back-up van op de server.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>De map ‘%1’ kan niet worden aangemaakt. Controleer je bevoegdheden of kies een andere locatie.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Kies de gedeelde map op de server waarmee je wilt synchroniseren.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Je hebt het installatieprogramma van [ProductName] geannuleerd voordat het klaar was. Je computer is niet gewijzigd. Je kunt het installatieprogramma op elk moment opnieuw uitvoeren.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vrijdag</translation>
    </message>
    <message>
        <source>March</source>
        <translation>maart</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Deze instellingen worden gebruikt:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadgeschiedenis</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Geen bevoegdheid</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Deze taak is inactief. Hervat de taak om de bestanden weer te synchroniseren.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>De back-up kan niet worden voltooid. Controleer de verbinding met de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Meer uitleg</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Deze map wordt gebruikt door een ander synchronisatieprogramma. Kies een andere map.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Zojuist</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Deze programma’s geopend laten (opnieuw opstarten vereist)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Je bent niet bevoegd om met deze map te synchroniseren. Kies een map waartoe je toegang hebt.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell is al actief en kan vanuit het systeemvak worden geopend.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Bestanden die aan een van deze filters voldoen, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Taakopties</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Servermap</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>De schijf met de lokale map is niet aangesloten. Sluit de schijf aan en hervat de taak.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Je bent niet als beheerder ingelogd, dus Tarnwell wordt alleen voor jouw account geïnstalleerd. Wil je doorgaan?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Maak een back-up van je computer en synchroniseer die met je eigen server.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell wordt gestart…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>De schijf van de server is vol.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximale bestandsgrootte</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Geüpload</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Klaar voor gebruik!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Je kunt deze map alleen lezen. Bestanden worden gedownload, maar je wijzigingen worden niet geüpload.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>De servermap staat op externe opslag die momenteel niet is verbonden. Vraag je beheerder om de verbinding te herstellen.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Er bestaat al een map met deze naam. Wil je de twee mappen samenvoegen?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] is al geïnstalleerd</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Onderdelen: %1</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Deze map is een aankoppelpunt en kan niet worden gesynchroniseerd. Kies een gewone map.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>De server heeft je IP-adres geblokkeerd. Vraag je beheerder om de blokkering op te heffen.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell kan niet worden bijgewerkt. Probeer het later opnieuw of download zelf de nieuwste versie.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Je hebt alleen leesbevoegdheid voor deze gedeelde map. Bestanden worden alleen gedownload. Wil je deze map gebruiken?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Deze versie van Tarnwell is al geïnstalleerd. Wil je deze opnieuw installeren?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinden…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell kan niet goed worden gestart. Start je computer opnieuw op. Als het probleem aanhoudt, installeer je Tarnwell opnieuw.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nieuwe synchronisatietaak</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Geen proxy gebruiken</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Kies een map op deze computer</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>[ProductName] wijzigen, herstellen of verwijderen</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Voer een bestandsnaam of bestandsextensie in, bijvoorbeeld *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisatierichting</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>zondag</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbinding wordt getest…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Uitleg tonen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>Het SSL-certificaat van de server is gewijzigd sinds je verbinding hebt gemaakt. Ga terug en maak opnieuw verbinding om het te controleren.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Voer het IP-adres of de domeinnaam van de server in.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Dit account is beveiligd met tweestapsverificatie. Voer de verificatiecode in.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>De server heeft een systeemfout gemeld. Probeer het later opnieuw of vraag je beheerder om hulp.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Controleer je instellingen</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Mappen die je hier uitvinkt, worden van deze computer verwijderd. Op de server blijven ze staan.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Het synchronisatiepakket op de server is te oud.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Gedeelde mappen</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Je kunt al deze instellingen later wijzigen.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>De download is geannuleerd.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink kan de server niet bereiken. Controleer je internetverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up-to-date</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Bestanden met deze namen worden nooit geüpload of gedownload.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Deze map staat op een netwerkschijf. Wijzigingen die anderen daar aanbrengen, worden mogelijk niet meteen opgemerkt.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Deze map kan niet worden gesynchroniseerd. Kies een andere map.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactief</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Je hebt alleen leesbevoegdheid voor deze map, dus er kan geen back-up in worden gemaakt. Kies een map waarin je kunt schrijven.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Controleer voordat je begint of je server is ingeschakeld.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Te veel mislukte pogingen. Wacht een paar minuten en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Wil je deze computer ontkoppelen van de server? Alle taken worden gestopt, maar er worden geen bestanden verwijderd.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Deze back-upmap wordt al door een andere taak gebruikt. Kies een andere map.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Er is iets misgegaan</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Statuspictogrammen tonen op gesynchroniseerde bestanden</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>‘%1’ kan niet uit de lijst worden verwijderd. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Deze versie van Tarnwell is te oud.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Synchronisatie staat aan</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Sluit deze programma’s en klik op ‘Opnieuw proberen’, of klik op ‘Negeren’ om door te gaan en start je computer daarna opnieuw op.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell maakt op je server een back-up van de bestanden op je computer en houdt beide gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Bestanden in gebruik</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Selecteer waarvan je een back-up wilt maken en waar je die op de server wilt bewaren.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Sommige bestanden die moeten worden gewijzigd, zijn in gebruik.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Type gebeurtenis</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Zojuist bijgewerkt: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Gedeelde mappen worden geladen…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell maakt een lokale map aan en begint meteen met de back-up.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Opnieuw koppelen</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Deze map weer synchroniseren</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Kies hoe Tarnwell verbinding maakt met de server.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Koppelen aan de server…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Dubbelklik op het pictogram om te zien wat Tarnwell op dit moment doet.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell houdt deze twee mappen gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Nu starten</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisatie</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell wordt voorbereid…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Gedeelde map niet gevonden</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Van bestanden in je lokale map wordt nu automatisch een back-up op de server gemaakt.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>Het SSL-certificaat van de server is gewijzigd. Raadpleeg je beheerder voordat je het nieuwe certificaat vertrouwt.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>De verbinding is verbroken tijdens het configureren van de taak. Controleer je netwerk en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Back-up wordt gemaakt: %1 bestand(en)</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>De verbinding met de server is verbroken. Tarnwell maakt zo snel mogelijk opnieuw verbinding.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Welkom bij Tarnwell. Laten we je eerste back-up configureren.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Wil je de synchronisatie van deze gedeelde map stoppen? De bestanden die al op deze computer staan, blijven behouden.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Samenvoegmodus</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Gedownload</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Onvoldoende ruimte</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Over Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Inloggen mislukt</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Je bent nu verbonden met de server.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Back-up wordt gemaakt: bestand %1 van %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbinding bewerken</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Je account heeft geen quotum meer op deze server. Vraag je beheerder om een groter quotum voordat je deze taak configureert.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klik op ‘Verwijderen’ om [ProductName] van je computer te verwijderen. Klik op ‘Vorige’ om iets anders te kiezen of op ‘Annuleren’ om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Ik ga niet akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Hulp nodig bij de configuratie?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Te synchroniseren mappen</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 wordt gedownload</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Aangepast bereik</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Er zijn geen instellingen gewijzigd.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Bekijk de status van elk bestand</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Deze programma’s sluiten en daarna opnieuw starten</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Wachtwoord wordt gecontroleerd…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Taken beheren</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Versturen naar</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Er zijn wijzigingen die niet zijn bewaard. Wil je ze laten vervallen?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>De schijf van de server is vol. Maak ruimte vrij op de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Je beheerder vereist tweestapsverificatie. Log via een browser in bij de server en schakel deze verificatie eerst in.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Het quotum van deze gedeelde map is opgebruikt. Verwijder bestanden die je niet meer nodig hebt of kies een andere gedeelde map.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Verbinding ontkoppelen</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Bijwerken naar versie %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Bedankt voor het gebruik van [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Deze proxyinstellingen gebruiken</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>De synchronisatie is onverwacht gestopt. Hervat de taak. Als het probleem aanhoudt, start je Tarnwell opnieuw.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>De systeemproxy gebruiken</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Als alles klopt, klik je op ‘Voltooien’ om de taak aan te maken.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Te synchroniseren submappen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>De gevraagde wijzigingen aan [ProductName] worden aangebracht.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Hoe wil je Tarnwell configureren?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Wat is een OrvaneLink-ID?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Alleen-lezenmap</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>Er is geen Orvane Station gevonden op je lokale netwerk. Voer het adres of de OrvaneLink-ID ervan in.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Welkom bij het installatieprogramma van [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Bijgewerkte bestanden</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Een Tarnwell-map aanmaken op deze computer</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>De schijf van deze computer is vol.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-versleuteling</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>De lokale map kan niet worden gevonden. Zet de map terug op de oorspronkelijke plaats of ontkoppel de taak en configureer die opnieuw.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Waarschuwing over SSL-certificaat</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licentieovereenkomst</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Wijzigen</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Hiermee kies je welke onderdelen van [ProductName] worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Deze gedeelde map bestaat niet meer op de server. Kies een andere.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Overdrachtswachtrij</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Gewijzigde bestanden worden gezocht…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorige %1 pagina’s</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Klik op een willekeurige plek om te beginnen.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Deze mappen uitsluiten van synchronisatie</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Geavanceerde instellingen</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Huidige stap:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Gereed om te herstellen</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Vergrendeld bestand</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>De server heeft een antwoord gestuurd dat Tarnwell niet begrijpt. Zorg dat beide up-to-date zijn.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Aankoppelpunt</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Volgende %1 pagina’s</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tweerichtingssynchronisatie</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell wordt bijgewerkt…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Map met je gedeeld</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Bij dubbelklikken op het systeemvakpictogram</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Dit bestand kan niet worden gedownload. Mogelijk is het op de server verplaatst of verwijderd.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Verbinden via OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 dag(en) geleden</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Andere map kiezen</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Deze bestanden nooit synchroniseren</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snelle configuratie</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Voeg een taak toe om nog een map met deze server te synchroniseren.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Er is een fout opgetreden</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>[ProductName] verwijderen</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>De server heeft het verzoek als ongeldig geweigerd. Werk Tarnwell bij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versies verschillen</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Als je meer mappen wilt synchroniseren, kun je in Tarnwell altijd een taak toevoegen.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Aangemaakt</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Update vereist</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>donderdag</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink is momenteel niet beschikbaar. Probeer het later opnieuw of voer het adres van je Orvane Station in.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 min. geleden</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusdetails</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Link delen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Nu bijwerken</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Kies een map op de server en de lokale map waarmee je die wilt synchroniseren.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>is met je gedeeld.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Deze computer en de server zijn nu gekoppeld.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Directe verbinding</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>De server is niet bereikbaar. Controleer je netwerkverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Met een andere server synchroniseren</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>De schijf van deze computer is vol. Maak ruimte vrij en hervat de taak.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Deze map synchroniseren</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Vorige week</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Gegevens worden gecontroleerd…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Onjuiste gebruikersnaam of onjuist wachtwoord.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] wordt op je computer geïnstalleerd. Klik op ‘Volgende’ om door te gaan of op ‘Annuleren’ om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>[ProductName] herstellen</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Synchronisatierichting klopt niet</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Verbinding hervatten</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Maak verbinding met je server</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Voer het serveradres in en log in met je account.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Selecteer minstens één map voor de back-up.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Het installatieprogramma is gereed om [ProductName] te installeren.</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Wat wil je nu doen?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Kies wat je wilt doen.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>Het SSL-certificaat kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>dinsdag</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Het synchronisatiepakket op de server is te oud. Vraag je beheerder om het bij te werken naar versie %1 of nieuwer.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Synchronisatietaak toevoegen</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Geen gebeurtenissen om te tonen</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Voer je gebruikersnaam in.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>De gedeelde map is niet aangekoppeld op de server. Vraag je beheerder om de map aan te koppelen.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Statuspictogrammen tonen de status van je bestanden. Een groen vinkje betekent dat een bestand up-to-date is.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Ik ga akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>De geïnstalleerde onderdelen wijzigen</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Bestandsextensie</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Verbinding pauzeren</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Alleen downloaden</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>De server gebruikt nu een ander SSL-certificaat. Wil je dat certificaat vertrouwen?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 uur geleden</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernaam</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>De verificatiecode is onjuist of verlopen. Voer een nieuwe code in.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Het installatieprogramma is geannuleerd</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Voer een bestandsnaam in om uit te sluiten</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Sommige bestanden zijn niet gesynchroniseerd</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systeemtaal</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Geavanceerde configuratieassistent</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Zwart-witpictogram in het systeemvak gebruiken</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Verbindingstype</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>De verbinding is instabiel</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Wil je het installatieprogramma van [ProductName] afsluiten voordat het klaar is?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>‘%1’ kan niet worden gedownload. Controleer de verbinding met de server en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>maandag</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Je back-up begint hier</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Het installatieprogramma van [ProductName] is door een fout gestopt voordat het klaar was. Je computer is niet gewijzigd. Start het installatieprogramma opnieuw om het nog eens te proberen.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>De synchronisatierichting van deze taak past niet bij je bevoegdheid op de server. Kies een andere synchronisatierichting.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Je bent niet bevoegd om deze gedeelde map te gebruiken. Vraag je beheerder om toegang.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dit kan een paar minuten duren.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Geavanceerde configuratie</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Je kunt de bestaande taak gebruiken of een nieuwe taak configureren in een andere map.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Deze map wordt al door een andere taak gesynchroniseerd. Kies een andere map.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Synchronisatiestatus tonen</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Als je doorgaat, wordt de bestaande taak vervangen. Er worden geen bestanden verwijderd.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Even geduld</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Trefwoord</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbinding</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filters</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Er bestaat op deze computer al een taak voor deze map.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Eerdere versies bekijken</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell indexeert deze map</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Deze taak bestaat al</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>De taak kan niet worden aangemaakt. Controleer je instellingen en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In de wachtrij</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Altijd de versie op de server bewaren</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Kies een lokale map</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>woensdag</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>Het aantal gedeelde mappen dat je kunt synchroniseren, is beperkt tot %1. Stop de synchronisatie van een map voordat je een andere toevoegt.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Bovenliggende map openen</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Lokale map openen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Er is al een nieuwere versie van Tarnwell geïnstalleerd. Om deze versie te installeren, verwijder je eerst de nieuwere versie.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>De eerdere versies van dit bestand kunnen niet worden getoond. Controleer de verbinding met de server en probeer het opnieuw.</translation>
    </message>
</context>
</TS>
