<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sikkerhedskopierer…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Frakobler…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra computeren.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Åbn Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Sikkerhedskopierer %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøbt</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Dine filer, sikkert gemt og altid lige ved hånden</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Behold filer på serveren, når de slettes på denne computer</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Slettet</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Prøv at synkronisere igen</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Seneste upload: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Videresendelse via OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Serverens SSL-certifikat kunne ikke bekræftes. Kontroller serveradressen, eller bed din administrator om hjælp.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Nogle af de oplysninger, du har indtastet, er ikke gyldige. Kontroller dem, og prøv igen.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Frakobl</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Reparerer [ProductName] ved at erstatte manglende eller beskadigede filer, genveje og poster i registreringsdatabasen.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Velkommen til %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vælg</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Indtast bekræftelseskoden</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadresse</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Brug en SSL-forbindelse</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Adresse på Orvane Station eller OrvaneLink-id</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Vælg mapper til synkronisering</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Vælg selv mapperne, synkroniseringsmetoden og filtrene.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>august</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åbn fil</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Systembakkeikon</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Vil du frakoble opgaven for ”%1”? De filer, der allerede er på denne computer og på serveren, slettes ikke.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanceret</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsmetode</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell er klar.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Forløb</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Installationsprogrammet er klar til at reparere [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Udelad denne mappe fra synkroniseringen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hændelser</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Indtast oplysningerne om den server, du vil oprette forbindelse til.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] har ingen funktioner, der kan ændres enkeltvis.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Kontrollerer forbindelsestypen…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsfejl</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Synkroniseringsdatabasen kan ikke læses. Genstart Tarnwell. Hvis problemet fortsætter, skal du frakoble opgaven og oprette den igen.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Din kvote på serveren er brugt op. Slet filer, du ikke længere har brug for, eller bed din administrator om en større kvote.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sat på pause</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Start Tarnwell ved login</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Højreklik på systembakkeikonet for at sætte en opgave på pause, åbne dens mappe eller ændre dens indstillinger.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Indtast 0, hvis du ikke vil begrænse filstørrelsen.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Vælg mapper til sikkerhedskopiering</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Senest ændrede filer</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Udelad filer og mapper, hvis navn begynder med et punktum</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Godkend og fortsæt</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink-id</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adresse</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Installationsprogram til [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Installationsprogrammet til [ProductName] er færdigt</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Nogle filer kunne ikke synkroniseres. Åbn Tarnwell for at se flere oplysninger.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Disken med denne delte mappe er fuld. Vælg en delt mappe på en anden disk, eller frigør plads.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Opdatering af Tarnwell</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Dette OrvaneLink-id findes ikke. Kontroller id’et, og indtast det igen.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>”%1” er blevet downloadet.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Navn på Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Vil du fjerne ”%1” fra listen? Selve mappen slettes ikke.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Brugernavnet kunne ikke kontrolleres. Sørg for, at der er forbindelse til serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Vælg en mappe på denne computer. Dens indhold synkroniseres med serveren.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Filer med præcis dette navn synkroniseres aldrig, uanset hvilken mappe de ligger i.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Der kunne ikke oprettes en sikker forbindelse. Kontroller serverens SSL-indstillinger, og prøv igen.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Følgende programmer bruger filer, som installationsprogrammet skal ændre:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Dette er ikke et gyldigt OrvaneLink-id. Brug kun bogstaver, tal og bindestreger.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Indtast et portnummer mellem 1 og 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Den Orvane Station, der har dette OrvaneLink-id, er offline. Kontroller, at den er tændt og har forbindelse til internettet.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netværksindstillinger</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Serveren kunne ikke findes på grund af en systemfejl. Prøv igen, eller indtast i stedet serverens adresse.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Din kvote på serveren er brugt op.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Proxyen kræver en adgangskode</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Vælg en anden</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Find Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>To pile betyder, at filen er ved at blive synkroniseret. Et rødt mærke betyder, at filen kræver din opmærksomhed.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS-version</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klik på Reparer for at begynde. Klik på Tilbage for at vælge noget andet eller på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Opsætningen er færdig.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Brug denne mappe</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis notifikationer på skrivebordet</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointerval</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell kræver StationOS %1 eller nyere. Opdater din Orvane Station, og prøv igen.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Antallet af versioner, der skal beholdes, skal være mindst 1.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Start [ProductName] nu</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Indtast brugernavnet til proxyen.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Klar til installation</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Ved fletning samles indholdet af de to mapper. Filer, der er forskellige, behandles som konflikter.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Forstået</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Vælg en mappe på serveren.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Alt fra systembakken</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Denne version af Tarnwell er for gammel til serveren. Opdater Tarnwell til version %1 eller nyere.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 er tilgængelig. Klik her for at opdatere.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Vælg, hvad der skal ske, når en fil er blevet ændret både på computeren og på serveren.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Installationsprogrammet er klar til at fjerne [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploader…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Indtast OrvaneLink-id’et for din Orvane Station. Tarnwell opretter forbindelse til den via OrvaneLink, også når du er på farten.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Du kan se indholdet af denne mappe, men dine ændringer bliver ikke uploadet.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Envejssynkronisering fra serveren til denne computer</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>Den delte mappe ”%1” er klar til at blive synkroniseret.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Åbn StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Genstart Tarnwell for at anvende det nye sprog.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Behold den senest ændrede version</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Ingen af de valgte mapper kan synkroniseres. Vælg mindst én anden mappe.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Klik på Installer for at begynde. Klik på Tilbage for at kontrollere dine valg eller på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell gemmer tidligere versioner af dine filer, så du hurtigt kan fortryde en fejl.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Tilkobl endnu en server</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Klar til fjernelse</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Denne mappe indeholder allerede filer. De bliver også synkroniseret. Vil du bruge mappen?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Med dette installationsprogram kan du reparere [ProductName] eller fjerne programmet fra computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Udeladte filer</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Synkronisering kunne ikke slås til for denne mappe. Kontroller dine tilladelser på serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Denne mappe overlapper en mappe, der allerede synkroniseres. Vælg en mappe, der hverken ligger i eller over den.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Vis ikonmærker på udeladte filer</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Indtast adressen og porten for proxyen.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Klik på Udfør for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Filtyper til synkronisering</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Indtast en maksimal filstørrelse mellem %1 og %2 MB.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Anvender indstillingerne…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Tilføj opgave</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tak</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Vis ikke denne meddelelse igen</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Hvis du vil bruge selektiv synkronisering, skal du først opdatere synkroniseringspakken på serveren.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Udeladte filnavne</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destination for sikkerhedskopi</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Alt er sat op. Tarnwell er begyndt at sikkerhedskopiere dine filer.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Lad Tarnwell vælge indstillingerne for dig, eller vælg dem selv.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Der kan ikke oprettes et link til denne fil. Kontroller, at filen er blevet uploadet, og at du har tilladelse til at dele den.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Slut Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Der blev ikke fundet en egnet mappe</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Medtag disse mapper i synkroniseringen igen</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Denne fil er blevet ændret både på computeren og på serveren. Sammenlign de to versioner, og slet den, du ikke har brug for.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Læs licensaftalen omhyggeligt, før du fortsætter.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Udskriv</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Gå tilbage i tiden</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Din konto på serveren er blevet deaktiveret. Bed din administrator om at aktivere den.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Noget gik galt. Prøv igen. Hvis problemet fortsætter, skal du genstarte Tarnwell.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Behold begge versioner, og omdøb den ældste</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Venter på, at filen låses op</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Læg filer i den lokale mappe, så sikkerhedskopierer Tarnwell dem til serveren for dig.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Mappen ”%1” kunne ikke oprettes. Kontroller dine tilladelser, eller vælg en anden placering.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Muligheder</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Vælg den delte mappe på serveren, som du vil synkronisere med.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Du annullerede installationsprogrammet til [ProductName], før det var færdigt. Computeren er ikke blevet ændret. Du kan køre installationsprogrammet igen når som helst.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marts</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Disse indstillinger bliver brugt:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadhistorik</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Ingen tilladelse</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Denne opgave er inaktiv. Genoptag den for at synkronisere dens filer igen.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Sikkerhedskopieringen kunne ikke fuldføres. Kontroller forbindelsen til serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Flere vejledninger</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Denne mappe bruges af et andet synkroniseringsprogram. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>For et øjeblik siden</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Lad disse programmer være åbne (kræver genstart)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Du har ikke tilladelse til at synkronisere med denne mappe. Vælg en mappe, som du har adgang til.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell kører allerede. Du kan åbne programmet fra systembakken.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Filer, der passer til et af disse filtre, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Muligheder for opgave</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Servermappe</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februar</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>Disken med den lokale mappe er ikke tilsluttet. Tilslut den, og genoptag opgaven.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Du er ikke logget ind som administrator, så Tarnwell bliver kun installeret for din konto. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Sikkerhedskopier og synkroniser din computer med din egen server.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell starter…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Serverens disk er fuld.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploadet</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Så er du klar!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Du kan kun læse denne mappe. Filer bliver downloadet, men dine ændringer bliver ikke uploadet.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>Servermappen ligger på et fjernlager, der ikke er tilsluttet lige nu. Bed din administrator om at tilslutte det igen.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Der findes allerede en mappe med dette navn. Vil du flette de to mapper?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] er allerede installeret</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 element(er)</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Denne mappe er et monteringspunkt og kan ikke synkroniseres. Vælg en almindelig mappe.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Serveren har blokeret din IP-adresse. Bed din administrator om at fjerne blokeringen.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell kunne ikke opdateres. Prøv igen senere, eller download selv den nyeste version.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Du har kun læsetilladelse til denne delte mappe. Filer bliver kun downloadet. Vil du bruge mappen?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Denne version af Tarnwell er allerede installeret. Vil du installere den igen?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell kunne ikke startes korrekt. Genstart computeren. Hvis problemet fortsætter, skal du installere Tarnwell igen.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Ny synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Brug ikke en proxy</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Vælg en mappe på denne computer</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Ændr, reparer eller fjern [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Indtast et filnavn eller en filendelse, for eksempel *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Slået fra</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>søndag</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis vejledningen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>Serverens SSL-certifikat er blevet ændret, siden du oprettede forbindelse. Gå tilbage, og opret forbindelse igen for at kontrollere det.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Indtast serverens IP-adresse eller domænenavn.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Denne konto er beskyttet med totrinsbekræftelse. Indtast bekræftelseskoden.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Serveren har rapporteret en systemfejl. Prøv igen senere, eller bed din administrator om hjælp.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Kontroller dine indstillinger</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Mapper, som du fjerner markeringen for her, bliver fjernet fra denne computer. De beholdes på serveren.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Synkroniseringspakken på serveren er for gammel.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Du kan ændre alle disse indstillinger senere.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Downloaden blev annulleret.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink kunne ikke få forbindelse til serveren. Kontroller din internetforbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Filer med disse navne bliver aldrig uploadet eller downloadet.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Denne mappe ligger på et netværksdrev. Ændringer, som andre foretager der, bliver måske ikke registreret med det samme.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Denne mappe kan ikke synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januar</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Du har kun læsetilladelse til denne mappe, så der kan ikke sikkerhedskopieres til den. Vælg en mappe, som du kan skrive til.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Sørg for, at din server er tændt, før du begynder.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>For mange mislykkede forsøg. Vent nogle minutter, og prøv igen.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Vil du frakoble denne computer fra serveren? Alle opgaver stopper, men ingen filer bliver slettet.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Denne mappe til sikkerhedskopiering bruges allerede af en anden opgave. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Noget gik galt</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Vis ikonmærker på synkroniserede filer</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>”%1” kunne ikke fjernes fra listen. Prøv igen senere.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Denne version af Tarnwell er for gammel.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Synkronisering er slået til</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Luk disse programmer, og klik på Prøv igen, eller klik på Ignorer for at fortsætte og genstarte computeren bagefter.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell sikkerhedskopierer filerne på din computer til din server og holder dem synkroniseret begge steder.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer i brug</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Vælg, hvad der skal sikkerhedskopieres, og hvor det skal gemmes på serveren.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Nogle af de filer, der skal ændres, er i brug.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Hændelsestype</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Netop opdateret: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Indlæser de delte mapper…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell opretter en lokal mappe og begynder straks at sikkerhedskopiere den.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Tilkobl igen</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Medtag denne mappe i synkroniseringen igen</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparer</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Vælg, hvordan Tarnwell opretter forbindelse til serveren.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Tilkobler serveren…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Dobbeltklik på ikonet for at se, hvad Tarnwell laver lige nu.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell holder disse to mapper synkroniseret.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell klargøres…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Delt mappe ikke fundet</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Filerne i din lokale mappe bliver nu automatisk sikkerhedskopieret til serveren.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>Serverens SSL-certifikat er blevet ændret. Spørg din administrator, før du godkender det nye certifikat.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>Forbindelsen blev afbrudt, mens opgaven blev oprettet. Kontroller dit netværk, og prøv igen.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Sikkerhedskopierer %1 fil(er)</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Forbindelsen til serveren blev afbrudt. Tarnwell opretter forbindelse igen så hurtigt som muligt.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Velkommen til Tarnwell. Lad os sætte din første sikkerhedskopiering op.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Vil du stoppe synkroniseringen af denne delte mappe? De filer, der allerede er på denne computer, beholdes.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Flettemetode</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloadet</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Ikke nok plads</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Om Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Login mislykkedes</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Du har nu forbindelse til serveren.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Sikkerhedskopierer fil %1 af %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Din konto har ikke mere kvote tilbage på denne server. Bed din administrator om en større kvote, før du opretter denne opgave.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klik på Fjern for at fjerne [ProductName] fra computeren. Klik på Tilbage for at vælge noget andet eller på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Jeg accepterer ikke vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Har du brug for hjælp til opsætningen?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mapper til synkronisering</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Downloader %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Tilpasset interval</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Ingen indstillinger blev ændret.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Se status for hver enkelt fil</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Luk disse programmer, og start dem igen bagefter</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Kontrollerer adgangskoden…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Administrer opgaver</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send til</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Du har ændringer, der ikke er gemt. Vil du kassere dem?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Serverens disk er fuld. Frigør plads på serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Din administrator kræver totrinsbekræftelse. Log ind på serveren i en browser, og slå totrinsbekræftelse til først.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Kvoten for denne delte mappe er brugt op. Slet filer, du ikke længere har brug for, eller vælg en anden delt mappe.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Frakobl forbindelse</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Opdaterer til version %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Tak, fordi du bruger [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Brug disse proxyindstillinger</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>Synkroniseringen stoppede uventet. Genoptag opgaven. Hvis problemet fortsætter, skal du genstarte Tarnwell.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Brug systemets proxy</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Hvis alt er korrekt, skal du klikke på Udfør for at oprette opgaven.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Undermapper til synkronisering</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>De ønskede ændringer af [ProductName] er ved at blive foretaget.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Hvordan vil du sætte Tarnwell op?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Hvad er et OrvaneLink-id?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>Der blev ikke fundet nogen Orvane Station på dit lokale netværk. Indtast i stedet dens adresse eller dens OrvaneLink-id.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Velkommen til installationsprogrammet til [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Opdaterede filer</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Opret en Tarnwell-mappe på denne computer</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Disken på denne computer er fuld.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-kryptering</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Den lokale mappe kan ikke findes. Flyt den tilbage til dens oprindelige placering, eller frakobl opgaven, og opret den igen.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Advarsel om SSL-certifikat</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensaftale</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ændr</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Giver dig mulighed for at vælge, hvilke funktioner i [ProductName] der skal installeres.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Denne delte mappe findes ikke længere på serveren. Vælg en anden.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Overførselskø</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Søger efter ændrede filer…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Slået til</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Klik hvor som helst for at begynde.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Udelad disse mapper fra synkroniseringen</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktuelt trin:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Klar til reparation</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Låst fil</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Serveren sendte et svar, som Tarnwell ikke forstår. Kontroller, at begge dele er opdateret.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Monteringspunkt</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Næste %1 sider</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tovejssynkronisering</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell opdateres…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Mappe delt med dig</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ved dobbeltklik på systembakkeikonet</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Denne fil kan ikke downloades. Den er måske blevet flyttet eller slettet på serveren.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Opretter forbindelse via OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>For %1 dag(e) siden</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Synkroniser aldrig disse filer</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtig opsætning</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Tilføj en opgave for at synkronisere endnu en mappe med denne server.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Der opstod en fejl</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Fjern [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Serveren afviste anmodningen som ugyldig. Opdater Tarnwell, og prøv igen.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Forkert version</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Hvis du vil synkronisere flere mapper, kan du når som helst tilføje en opgave i Tarnwell.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oprettet</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Opdatering påkrævet</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink er ikke tilgængelig lige nu. Prøv igen senere, eller indtast i stedet adressen på din Orvane Station.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>For %1 minut(ter) siden</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusoplysninger</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Del et link</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislykkedes</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Opdater nu</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Vælg en mappe på serveren og den lokale mappe, den skal synkroniseres med.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>er blevet delt med dig.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Denne computer er nu tilkoblet serveren.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Der er ikke forbindelse til serveren. Kontroller din netværksforbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Synkroniser med en anden server</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Disken på denne computer er fuld. Frigør plads, og genoptag opgaven.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synkroniser denne mappe</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Sidste uge</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Kontrollerer dataene…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Forkert brugernavn eller adgangskode.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] bliver installeret på computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparer [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Forkert synkroniseringsretning</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Genoptag forbindelse</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Opret forbindelse til din server</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Indtast serveradressen, og log ind med din konto.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Vælg mindst én mappe til sikkerhedskopiering.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Installationsprogrammet er klar til at installere [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Hvad vil du gøre nu?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Vælg, hvad du vil gøre.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>SSL-certifikatet kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Synkroniseringspakken på serveren er for gammel. Bed din administrator om at opdatere den til version %1 eller nyere.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Tilføj en synkroniseringsopgave</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Ingen hændelser at vise</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Indtast dit brugernavn.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>Den delte mappe er ikke monteret på serveren. Bed din administrator om at montere den.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Ikonmærker viser status for dine filer. Et grønt flueben betyder, at en fil er opdateret.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Jeg accepterer vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Ændr de installerede funktioner</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Filendelse</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Sæt forbindelse på pause</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Serveren bruger nu et andet SSL-certifikat. Vil du godkende det?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>For %1 time(r) siden</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Fuldført</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Bekræftelseskoden er forkert eller udløbet. Indtast en ny kode.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Installationsprogrammet blev annulleret</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Indtast et filnavn, der skal udelades</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Nogle filer blev ikke synkroniseret</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systemets sprog</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Avanceret opsætningsguide</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Brug et sort-hvidt systembakkeikon</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Forbindelsestype</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Forbindelsen er ustabil</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Vil du afslutte installationsprogrammet til [ProductName], før det er færdigt?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>”%1” kunne ikke downloades. Kontroller forbindelsen til serveren, og prøv igen.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>mandag</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Din sikkerhedskopiering begynder her</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Installationsprogrammet til [ProductName] blev stoppet af en fejl, før det var færdigt. Computeren er ikke blevet ændret. Genstart installationsprogrammet for at prøve igen.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>Opgavens synkroniseringsretning passer ikke til din tilladelse på serveren. Vælg en anden synkroniseringsretning.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Du har ikke tilladelse til at bruge denne delte mappe. Bed din administrator om adgang.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dette kan tage nogle minutter.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avanceret opsætning</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Du kan bruge den eksisterende opgave eller oprette en ny i en anden mappe.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>En anden opgave synkroniserer allerede denne mappe. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Vis synkroniseringsstatus</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Hvis du fortsætter, bliver den eksisterende opgave erstattet. Ingen filer bliver slettet.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Vent et øjeblik</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søgeord</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Forbindelse</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Der findes allerede en opgave for denne mappe på denne computer.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell indekserer denne mappe</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Opgaven findes allerede</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Opgaven kunne ikke oprettes. Kontroller dine indstillinger, og prøv igen.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Behold altid versionen på serveren</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Vælg en lokal mappe</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>Antallet af delte mapper, du kan synkronisere, er begrænset til %1. Stop synkroniseringen af en mappe, før du tilføjer en ny.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Åbn overordnet mappe</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Åbn lokal mappe</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Sidste måned</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Der er allerede installeret en nyere version af Tarnwell. Hvis du vil installere denne version, skal du først fjerne den nyere.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>De tidligere versioner af denne fil kan ikke vises. Kontroller forbindelsen til serveren, og prøv igen.</translation>
    </message>
</context>
</TS>
