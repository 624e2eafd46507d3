<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Säkerhetskopierar…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kopplar bort…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Tar bort [ProductName] från datorn.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Öppna Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Säkerhetskopierar %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Namnändrad</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Dina filer, trygga och alltid till hands</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Behåll filer på servern när de raderas på den här datorn</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Raderad</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Försök synkronisera igen</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Senaste uppladdning: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Reläanslutning via OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Serverns SSL-certifikat kunde inte verifieras. Kontrollera serveradressen eller be administratören om hjälp.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Något av det du angav är ogiltigt. Kontrollera det och försök igen.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla bort</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Reparerar [ProductName] genom att ersätta filer, genvägar och registerposter som saknas eller är skadade.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Välkommen till %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Välj</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Ange verifieringskoden</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadress</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Använd SSL-anslutning</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Adress eller OrvaneLink-ID för Orvane Station</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Välj mappar att synkronisera</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nätverk</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Välj mappar, synkläge och filter själv.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusti</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtyp</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Öppna fil</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidpunkt</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Symbol i systemfältet</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Vill du koppla bort uppgiften för ”%1”? Filerna som redan finns på den här datorn och på servern raderas inte.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancerat</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkläge</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell är redo.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Installationsprogrammet är redo att reparera [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Undanta den här mappen från synkroniseringen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappsökväg</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alla händelser</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Ange information om servern som du vill ansluta till.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] har inga funktioner som kan ändras separat.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Kontrollerar anslutningstypen…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkproblem</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Synkdatabasen kan inte läsas. Starta om Tarnwell. Om problemet kvarstår kopplar du bort uppgiften och konfigurerar den på nytt.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Din kvot på servern är förbrukad. Radera filer som du inte längre behöver eller be administratören om en större kvot.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorera</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Starta Tarnwell vid inloggning</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Högerklicka på symbolen i systemfältet för att pausa en uppgift, öppna dess mapp eller ändra dess inställningar.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Ange 0 om du inte vill begränsa filstorleken.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Välj mappar att säkerhetskopiera</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lördag</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nyligen ändrade filer</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Undanta filer och mappar vars namn börjar med en punkt</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Lita på och fortsätt</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink-ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-adress</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delad mapp</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Installationsprogram för [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Installationsprogrammet för [ProductName] är klart</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Några filer kunde inte synkroniseras. Öppna Tarnwell för mer information.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Disken som den här delade mappen finns på är full. Välj en delad mapp på en annan disk eller frigör utrymme.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Uppdatering av Tarnwell</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Detta OrvaneLink-ID finns inte. Kontrollera ID:t och ange det igen.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>”%1” har hämtats.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinställningar</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Namn på Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Vill du ta bort ”%1” från listan? Själva mappen raderas inte.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Användarnamnet kunde inte kontrolleras. Se till att servern kan nås och försök igen.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Välj en mapp på den här datorn. Innehållet synkroniseras med servern.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Filer med exakt det här namnet synkroniseras aldrig, oavsett vilken mapp de ligger i.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Det gick inte att upprätta en säker anslutning. Kontrollera serverns SSL-inställningar och försök igen.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Följande program använder filer som installationsprogrammet behöver ändra:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Detta är inte ett giltigt OrvaneLink-ID. Använd endast bokstäver, siffror och bindestreck.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Ange ett portnummer mellan 1 och 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Den Orvane Station som har detta OrvaneLink-ID är offline. Se till att den är påslagen och ansluten till internet.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nätverksinställningar</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Servern kunde inte hittas på grund av ett systemfel. Försök igen eller ange serverns adress i stället.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Din kvot på servern är förbrukad.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Proxyn kräver lösenord</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Välj en annan</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Hitta Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Två pilar betyder att filen synkroniseras. Ett rött märke betyder att du behöver titta på filen.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS-version</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klicka på Reparera för att börja. Klicka på Tillbaka om du vill välja något annat, eller på Avbryt om du vill avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Konfigureringen är klar.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Använd den här mappen</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa skrivbordsnotiser</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datumintervall</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell kräver StationOS %1 eller senare. Uppdatera din Orvane Station och försök igen.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Antalet versioner att behålla måste vara minst 1.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Starta [ProductName] nu</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Ange användarnamnet för proxyn.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Redo att installera</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>När mapparna slås samman förenas innehållet i båda. Filer som skiljer sig åt hanteras som konflikter.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Jag förstår</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå samman</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Välj en mapp på servern.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Allt från systemfältet</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Den här versionen av Tarnwell är för gammal för servern. Uppdatera Tarnwell till version %1 eller senare.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 finns att hämta. Klicka här för att uppdatera.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Välj vad som ska hända när en fil har ändrats både på datorn och på servern.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Installationsprogrammet är redo att ta bort [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laddar upp…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Ange OrvaneLink-ID för din Orvane Station. Tarnwell ansluter till den via OrvaneLink, även när du är på en annan plats.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Du kan visa den här mappen, men dina ändringar laddas inte upp.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Envägssynkronisering från servern till den här datorn</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>Den delade mappen ”%1” kan nu synkroniseras.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Öppna StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Starta om Tarnwell för att byta till det nya språket.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mapp</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Behåll den version som ändrades senast</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Ingen av de valda mapparna kan synkroniseras. Välj minst en annan mapp.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Klicka på Installera för att börja. Klicka på Tillbaka om du vill kontrollera dina val, eller på Avbryt om du vill avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell behåller tidigare versioner av dina filer, så att ett misstag snabbt kan ångras.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Koppla ytterligare en server</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Redo att ta bort</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Den här mappen innehåller redan filer. De kommer också att synkroniseras. Vill du använda den?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Med det här installationsprogrammet kan du reparera [ProductName] eller ta bort programmet från datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Undantagna filer</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Synkroniseringen kunde inte aktiveras för den här mappen. Kontrollera dina behörigheter på servern och försök igen.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Den här mappen överlappar en mapp som redan synkroniseras. Välj en mapp som varken ligger i den eller ovanför den.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installera</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Visa statusmärken på undantagna filer</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Ange proxyns adress och port.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Klicka på Slutför för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Filtyper att synkronisera</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Ange en största filstorlek mellan %1 och %2 MB.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Tillämpar inställningarna…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Lägg till uppgift</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Byt mapp</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tack</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Visa inte det här meddelandet igen</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Om du vill använda selektiv synkronisering måste du först uppdatera synkpaketet på servern.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Undantagna filnamn</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Mål för säkerhetskopia</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Nu är allt klart. Tarnwell har börjat säkerhetskopiera dina filer.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Låt Tarnwell välja inställningarna åt dig eller välj dem själv.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Det går inte att skapa en länk till den här filen. Kontrollera att filen har laddats upp och att du har behörighet att dela den.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Avsluta Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Ingen lämplig mapp hittades</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Ta med de här mapparna i synkroniseringen igen</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Den här filen har ändrats både på datorn och på servern. Jämför de två versionerna och radera den som du inte behöver.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Läs licensavtalet noga innan du fortsätter.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Gå tillbaka i tiden</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Ditt konto på servern har inaktiverats. Be administratören att aktivera det.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Något gick fel. Försök igen. Starta om Tarnwell om problemet kvarstår.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Behåll båda versionerna och byt namn på den äldre</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Väntar på att filen ska låsas upp</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Hämtar…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Lägg filer i den lokala mappen så säkerhetskopierar Tarnwell dem till servern åt dig.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Mappen ”%1” kunde inte skapas. Kontrollera dina behörigheter eller välj en annan plats.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Välj den delade mapp på servern som du vill synkronisera med.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Du avbröt installationsprogrammet för [ProductName] innan det var klart. Datorn har inte ändrats. Du kan köra installationsprogrammet igen när som helst.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>De här inställningarna kommer att användas:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Hämtningshistorik</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Ingen behörighet</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Den här uppgiften är inaktiv. Återuppta den för att synkronisera dess filer igen.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Vänteläge</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Säkerhetskopieringen kunde inte slutföras. Kontrollera anslutningen till servern och försök igen.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Fler genomgångar</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Den här mappen används av ett annat synkprogram. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Nyss</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Låt programmen vara öppna (kräver omstart)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Du har inte behörighet att synkronisera med den här mappen. Välj en mapp som du har åtkomst till.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell körs redan. Du kan öppna programmet från systemfältet.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Filer som matchar något av de här filtren synkroniseras inte.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Uppgiftsalternativ</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Servermapp</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>Disken med den lokala mappen är inte ansluten. Anslut den och återuppta uppgiften.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Du är inte inloggad som administratör, så Tarnwell installeras bara för ditt konto. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Säkerhetskopiera och synkronisera datorn med din egen server.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell startar…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Radera</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Serverns disk är full.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Största filstorlek</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uppladdad</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Allt är klart!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Du har bara läsbehörighet för den här mappen. Filer hämtas, men dina ändringar laddas inte upp.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>Servermappen finns på en fjärrlagringsplats som inte är ansluten just nu. Be administratören att ansluta den igen.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Det finns redan en mapp med det här namnet. Vill du slå samman de två mapparna?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] finns redan på datorn</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 objekt</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Den här mappen är en monteringspunkt och kan inte synkroniseras. Välj en vanlig mapp.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Servern har blockerat din IP-adress. Be administratören att häva blockeringen.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell kunde inte uppdateras. Försök igen senare eller hämta den senaste versionen själv.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Du har bara läsbehörighet för den här delade mappen. Filer kommer endast att hämtas. Vill du använda den?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Den här versionen av Tarnwell är redan installerad. Vill du installera den igen?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell kunde inte startas på rätt sätt. Starta om datorn. Installera Tarnwell igen om problemet kvarstår.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Ny synkuppgift</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Använd ingen proxy</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Välj en mapp på den här datorn</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Ändra, reparera eller ta bort [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Ange ett filnamn eller ett filtillägg, till exempel *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverat</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkriktning</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>söndag</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Visa genomgången</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>Serverns SSL-certifikat har ändrats sedan du anslöt. Gå tillbaka och anslut igen för att kontrollera det.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Ange serverns IP-adress eller domännamn.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Det här kontot skyddas av tvåstegsverifiering. Ange verifieringskoden.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Servern rapporterade ett systemfel. Försök igen senare eller be administratören om hjälp.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Kontrollera dina inställningar</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Mappar som du avmarkerar här tas bort från den här datorn. De finns kvar på servern.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Synkpaketet på servern är för gammalt.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delade mappar</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Du kan ändra alla de här inställningarna senare.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Hämtningen avbröts.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink kunde inte nå servern. Kontrollera din internetanslutning och försök igen.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Allt är uppdaterat</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Filer med de här namnen laddas aldrig upp och hämtas aldrig.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Den här mappen finns på en nätverksenhet. Det kan dröja innan ändringar som andra gör där upptäcks.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Den här mappen kan inte synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Du har bara läsbehörighet för den här mappen, så inget kan säkerhetskopieras till den. Välj en mapp som du kan skriva till.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Se till att servern är påslagen innan du börjar.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>För många misslyckade försök. Vänta några minuter och försök igen.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Vill du koppla bort den här datorn från servern? Alla uppgifter stoppas, men inga filer raderas.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Den här mappen för säkerhetskopiering används redan av en annan uppgift. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Något gick fel</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Igår</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Visa statusmärken på synkroniserade filer</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>”%1” kunde inte tas bort från listan. Försök igen senare.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Den här versionen av Tarnwell är för gammal.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Synkroniseringen är på</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Stäng de här programmen och klicka på Försök igen, eller klicka på Ignorera för att fortsätta och starta om datorn efteråt.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell säkerhetskopierar filerna på din dator till din server och håller båda synkroniserade.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer som används</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Välj vad som ska säkerhetskopieras och var det ska lagras på servern.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Några filer som behöver ändras används just nu.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Händelsetyp</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Nyss uppdaterad: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Läser in de delade mapparna…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell skapar en lokal mapp och börjar säkerhetskopiera den direkt.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Koppla igen</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Ta med den här mappen i synkroniseringen igen</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparera</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Välj hur Tarnwell ska ansluta till servern.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Kopplar till servern…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Dubbelklicka på symbolen för att se vad Tarnwell gör just nu.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell håller de här två mapparna synkroniserade.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell förbereds…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Delad mapp saknas</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Filerna i din lokala mapp säkerhetskopieras nu automatiskt till servern.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>Serverns SSL-certifikat har ändrats. Hör med administratören innan du litar på det nya certifikatet.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>Anslutningen bröts medan uppgiften konfigurerades. Kontrollera nätverket och försök igen.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Säkerhetskopierar %1 fil(er)</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Anslutningen till servern bröts. Tarnwell ansluter igen så snart som möjligt.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Välkommen till Tarnwell. Nu konfigurerar vi din första säkerhetskopiering.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Vill du sluta synkronisera den här delade mappen? Filerna som redan finns på den här datorn behålls.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Sammanslagning</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Hämtad</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>För lite utrymme</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Om Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Inloggningsfel</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Du är nu ansluten till servern.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Säkerhetskopierar fil %1 av %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Redigera anslutning</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Ditt konto har ingen kvot kvar på den här servern. Be administratören om en större kvot innan du konfigurerar uppgiften.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klicka på Ta bort för att ta bort [ProductName] från datorn. Klicka på Tillbaka om du vill välja något annat, eller på Avbryt om du vill avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Tillämpa</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Jag godkänner inte villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Behöver du hjälp med konfigureringen?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mappar att synkronisera</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Hämtar %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Eget intervall</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Inga inställningar ändrades.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Se statusen för varje fil</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Stäng de här programmen och starta om dem efteråt</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Kontrollerar lösenordet…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Hantera uppgifter</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Skicka till</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Du har ändringar som inte har sparats. Vill du fortsätta utan att spara dem?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Serverns disk är full. Frigör utrymme på servern och försök igen.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Administratören kräver tvåstegsverifiering. Logga in på servern i en webbläsare och aktivera verifieringen först.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Kvoten för den här delade mappen är förbrukad. Radera filer som du inte längre behöver eller välj en annan delad mapp.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Koppla bort anslutning</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Uppdaterar till version %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Tack för att du använder [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Använd de här proxyinställningarna</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>Synkroniseringen stoppades oväntat. Återuppta uppgiften. Starta om Tarnwell om problemet kvarstår.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Använd systemets proxy</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Om allt stämmer klickar du på Slutför för att skapa uppgiften.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Undermappar att synkronisera</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>De begärda ändringarna av [ProductName] utförs.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Hur vill du konfigurera Tarnwell?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Vad är ett OrvaneLink-ID?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivskyddad mapp</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>Ingen Orvane Station hittades på det lokala nätverket. Ange dess adress eller OrvaneLink-ID i stället.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Välkommen till installationsprogrammet för [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Uppdaterade filer</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Skapa en Tarnwell-mapp på den här datorn</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Den här datorns disk är full.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-kryptering</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Den lokala mappen kan inte hittas. Flytta tillbaka den till den ursprungliga platsen eller koppla bort uppgiften och konfigurera den på nytt.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Varning om SSL-certifikat</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensavtal</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändra</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Låter dig välja vilka funktioner i [ProductName] som installeras.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Den här delade mappen finns inte längre på servern. Välj en annan.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Överföringskö</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Söker efter ändrade filer…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverat</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Föregående %1 sidor</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Klicka var som helst för att börja.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Undanta de här mapparna från synkroniseringen</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktuellt steg:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Redo att reparera</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Låst fil</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Servern skickade ett svar som Tarnwell inte förstår. Kontrollera att båda är uppdaterade.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Monteringspunkt</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nästa %1 sidor</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tvåvägssynkronisering</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell uppdateras…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Mapp delad med dig</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Vid dubbelklick på symbolen i systemfältet</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Den här filen kan inte hämtas. Den kan ha flyttats eller raderats på servern.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Ansluter via OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>För %1 dygn sedan</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Synkronisera aldrig de här filerna</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snabb konfigurering</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Lägg till en uppgift för att synkronisera en mapp till med den här servern.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Ett fel inträffade</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Ta bort [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Servern avvisade begäran som ogiltig. Uppdatera Tarnwell och försök igen.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Olika versioner</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Om du vill synkronisera fler mappar kan du när som helst lägga till en uppgift i Tarnwell.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Uppdatering krävs</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink kan inte användas just nu. Försök igen senare eller ange adressen till din Orvane Station i stället.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>För %1 min sedan</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusinformation</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Dela en länk</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Misslyckades</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Uppdatera nu</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Välj en mapp på servern och den lokala mapp som den ska synkroniseras med.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>har delats med dig.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Den här datorn och servern är nu kopplade till varandra.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direktanslutning</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Servern kan inte nås. Kontrollera nätverksanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Synkronisera med en annan server</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Den här datorns disk är full. Frigör utrymme och återuppta uppgiften.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synkronisera den här mappen</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Förra veckan</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Kontrollerar data…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Fel användarnamn eller lösenord.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] kommer att installeras på datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparera [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Fel synkriktning</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Återuppta anslutning</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Anslut till din server</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Ange serveradressen och logga in med ditt konto.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Välj minst en mapp att säkerhetskopiera.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Installationsprogrammet är redo att installera [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Vad vill du göra nu?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Välj vad du vill göra.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Idag</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>SSL-certifikatet kunde inte verifieras.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tisdag</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Synkpaketet på servern är för gammalt. Be administratören att uppdatera det till version %1 eller senare.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Lägg till en synkuppgift</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Inga händelser att visa</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Ange ditt användarnamn.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>Den delade mappen är inte monterad på servern. Be administratören att montera den.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Statusmärken visar dina filers status. En grön bock betyder att en fil är uppdaterad.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Jag godkänner villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Ändra vilka funktioner som är installerade</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Filtillägg</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pausa anslutning</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Endast hämtning</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Servern använder nu ett annat SSL-certifikat. Vill du lita på det?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>För %1 tim sedan</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Slutförd</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datornamn</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Verifieringskoden är felaktig eller har upphört att gälla. Ange en ny kod.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Installationsprogrammet avbröts</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Ange ett filnamn att undanta</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Några filer synkroniserades inte</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systemets språk</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Avancerad konfigureringsguide</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Använd en svartvit symbol i systemfältet</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Anslutningstyp</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Anslutningen är instabil</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Vill du avsluta installationsprogrammet för [ProductName] innan det är klart?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>”%1” kunde inte hämtas. Kontrollera anslutningen till servern och försök igen.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>måndag</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Din säkerhetskopiering börjar här</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Installationsprogrammet för [ProductName] stoppades av ett fel innan det var klart. Datorn har inte ändrats. Kör installationsprogrammet på nytt om du vill försöka igen.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>Uppgiftens synkriktning stämmer inte överens med din behörighet på servern. Välj en annan synkriktning.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Du har inte behörighet att använda den här delade mappen. Be administratören om åtkomst.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Det kan ta några minuter.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avancerad konfigurering</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Du kan använda den befintliga uppgiften eller konfigurera en ny i en annan mapp.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>En annan uppgift synkroniserar redan den här mappen. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Visa synkstatus</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Om du fortsätter ersätts den befintliga uppgiften. Inga filer raderas.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Vänta ett ögonblick</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Sökord</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Anslutning</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Det finns redan en uppgift för den här mappen på den här datorn.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkuppgifter</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Bläddra bland tidigare versioner</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell indexerar den här mappen</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Uppgiften finns redan</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Uppgiften kunde inte skapas. Kontrollera dina inställningar och försök igen.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Behåll alltid versionen på servern</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Välj en lokal mapp</translation>
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
        <translation>Antalet delade mappar som du kan synkronisera är begränsat till %1. Sluta synkronisera en mapp innan du lägger till en till.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Öppna filens mapp</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Öppna lokal mapp</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Förra månaden</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>En nyare version av Tarnwell är redan installerad. Om du vill installera den här versionen måste du först ta bort den nyare.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>De tidigare versionerna av den här filen kan inte visas. Kontrollera anslutningen till servern och försök igen.</translation>
    </message>
</context>
</TS>
