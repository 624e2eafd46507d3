<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sikkerhetskopierer …</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kobler fra …</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn …</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra datamaskinen.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Åpne Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Sikkerhetskopierer %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøpt</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Filene dine, trygge og alltid tilgjengelige</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Behold filer på serveren når de slettes på denne datamaskinen</translation>
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
        <translation>Prøv å synkronisere igjen</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Siste opplasting: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Videresending via OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>SSL-sertifikatet til serveren kunne ikke verifiseres. Kontroller serveradressen, eller be administratoren om hjelp.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Noe av informasjonen du skrev inn, er ikke gyldig. Kontroller den, og prøv igjen.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koble fra</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Reparerer [ProductName] ved å erstatte manglende eller skadde filer, snarveier og registeroppføringer.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Velkommen til %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Velg</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Skriv inn verifiseringskoden</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadresse</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Bruk SSL-tilkobling</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Orvane Station-adresse eller OrvaneLink-ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Velg mapper som skal synkroniseres</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nettverk</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Velg selv hver enkelt mappe, synkroniseringsmodusen og filtrene.</translation>
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
        <translation>Åpne fil</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Statusfeltikon</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Vil du koble oppgaven for «%1» fra serveren? Filene som allerede er på denne datamaskinen og på serveren, blir ikke slettet.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avansert</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsmodus</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell er klar.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Framdrift</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Installasjonsprogrammet er klart til å reparere [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Utelat denne mappen fra synkroniseringen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappebane</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hendelser</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder …</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Skriv inn opplysninger om serveren du vil koble til.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] har ingen funksjoner som kan endres enkeltvis.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Kontrollerer tilkoblingstypen …</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Synkroniseringsfeil</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Synkroniseringsdatabasen kan ikke leses. Start Tarnwell på nytt. Hvis problemet vedvarer, kobler du oppgaven fra serveren og setter den opp på nytt.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Kvoten din på serveren er brukt opp. Slett filer du ikke lenger trenger, eller be administratoren om en større kvote.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>På pause</translation>
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
        <translation>Start Tarnwell ved pålogging</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Høyreklikk på statusfeltikonet for å sette en oppgave på pause, åpne mappen til oppgaven eller endre innstillingene.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Skriv inn 0 hvis du ikke vil begrense filstørrelsen.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Velg mapper som skal sikkerhetskopieres</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nylig endrede filer</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Utelat filer og mapper med navn som begynner med punktum</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Stol på og fortsett</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink-ID</translation>
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
        <translation>Installasjonsprogram for [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Installasjonsprogrammet for [ProductName] er ferdig</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Noen filer kunne ikke synkroniseres. Åpne Tarnwell for å se detaljene.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Disken som inneholder denne delte mappen, er full. Velg en delt mappe på en annen disk, eller frigjør plass.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Tarnwell-oppdatering</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Denne OrvaneLink-ID-en finnes ikke. Kontroller ID-en, og skriv den inn på nytt.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>«%1» er lastet ned.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinnstillinger</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Orvane Station-navn</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Vil du fjerne «%1» fra listen? Selve mappen blir ikke slettet.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Brukernavnet kunne ikke kontrolleres. Sørg for at serveren kan nås, og prøv igjen.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Velg en mappe på denne datamaskinen. Innholdet blir synkronisert med serveren.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Filer med nøyaktig dette navnet synkroniseres aldri, uansett hvilken mappe de ligger i.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>En sikker tilkobling kunne ikke opprettes. Kontroller SSL-innstillingene på serveren, og prøv igjen.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Følgende programmer bruker filer som installasjonsprogrammet må endre:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Dette er ikke en gyldig OrvaneLink-ID. Bruk bare bokstaver, sifre og bindestreker.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Skriv inn et portnummer mellom 1 og 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Orvane Station-enheten med denne OrvaneLink-ID-en er ikke på nett. Sørg for at den er slått på og koblet til internett.</translation>
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
        <translation>Nettverksinnstillinger</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Serveren ble ikke funnet på grunn av en systemfeil. Prøv igjen, eller skriv inn adressen i stedet.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Kvoten din på serveren er brukt opp.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Proxyserveren krever passord</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Velg en annen</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Finn Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>To piler betyr at filen synkroniseres. Et rødt merke betyr at du må se nærmere på den.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS-versjon</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klikk på Reparer for å starte. Klikk på Tilbake for å velge noe annet, eller på Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Oppsettet er fullført.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Bruk denne mappen</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis varslinger på skrivebordet</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointervall</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell krever StationOS %1 eller nyere. Oppdater Orvane Station, og prøv igjen.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Antallet versjoner som skal beholdes, må være minst 1.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Start [ProductName] nå</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Skriv inn brukernavnet for proxyserveren.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internett</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Klar til å installere</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Når du slår sammen mapper, samles innholdet fra begge. Filer som er forskjellige, behandles som konflikter.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Skjønner</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Velg en mappe på serveren.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Alt fra statusfeltet</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Denne versjonen av Tarnwell er for gammel for serveren. Oppdater Tarnwell til versjon %1 eller nyere.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 er tilgjengelig. Klikk her for å oppdatere.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Velg hva som skal skje når en fil er endret både på datamaskinen og på serveren.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Installasjonsprogrammet er klart til å fjerne [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laster opp …</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Skriv inn OrvaneLink-ID-en til din Orvane Station. Tarnwell kobler til den via OrvaneLink, også når du er på farten.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Du kan se innholdet i denne mappen, men endringene dine blir ikke lastet opp.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Enveissynkronisering fra serveren til denne datamaskinen</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>Den delte mappen «%1» er klar til å synkroniseres.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Åpne StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Start Tarnwell på nytt for å ta i bruk det nye språket.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Lokal mappe</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Behold versjonen som sist ble endret</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Ingen av de valgte mappene kan synkroniseres. Velg minst én annen mappe.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Klikk på Installer for å starte. Klikk på Tilbake for å kontrollere valgene dine, eller på Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell tar vare på tidligere versjoner av filene dine, så en feil er raskt rettet opp.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Koble sammen med en ny server</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nullstill</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Klar til å fjerne</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Denne mappen inneholder allerede filer. De blir også synkronisert. Vil du bruke mappen?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Med dette installasjonsprogrammet kan du reparere [ProductName] eller fjerne programmet fra datamaskinen. Klikk på Neste for å fortsette eller på Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Utelatte filer</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Synkronisering kunne ikke slås på for denne mappen. Kontroller rettighetene dine på serveren, og prøv igjen.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Denne mappen overlapper med en mappe som allerede synkroniseres. Velg en mappe som verken ligger i eller over den.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Vis ikonmerker på utelatte filer</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Skriv inn adressen og porten til proxyserveren.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Klikk på Fullfør for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Filtyper som synkroniseres</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Skriv inn en maksimal filstørrelse mellom %1 og %2 MB.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Tar i bruk innstillingene …</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Legg til oppgave</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Bytt mappe</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nei takk</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Ikke vis denne meldingen igjen</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Hvis du vil bruke selektiv synkronisering, må du først oppdatere synkroniseringspakken på serveren.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Utelatte filnavn</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Mål for sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Alt er satt opp. Tarnwell har begynt å sikkerhetskopiere filene dine.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>La Tarnwell velge innstillingene for deg, eller velg dem selv.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>En lenke til denne filen kan ikke opprettes. Sørg for at filen er lastet opp, og at du har rettigheter til å dele den.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Avslutt Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Fant ingen egnet mappe</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Ta med disse mappene i synkroniseringen igjen</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Denne filen er endret både på datamaskinen og på serveren. Sammenlign de to versjonene, og slett den du ikke trenger.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>desember</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Les lisensavtalen nøye før du fortsetter.</translation>
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
        <translation>Gå tilbake i tid</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Kontoen din på serveren er deaktivert. Be administratoren om å aktivere den.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Noe gikk galt. Prøv igjen. Hvis problemet vedvarer, starter du Tarnwell på nytt.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Behold begge versjonene, og gi den eldste nytt navn</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Venter på at filen skal låses opp</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned …</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Legg filer i den lokale mappen, så sikkerhetskopierer Tarnwell dem til serveren for deg.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Mappen «%1» kunne ikke opprettes. Kontroller rettighetene dine, eller velg en annen plassering.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valg</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Velg den delte mappen på serveren du vil synkronisere med.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Du avbrøt installasjonsprogrammet for [ProductName] før det var ferdig. Datamaskinen er ikke endret. Du kan kjøre installasjonsprogrammet igjen når som helst.</translation>
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
        <translation>Disse innstillingene blir brukt:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedlastingshistorikk</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Ingen rettigheter</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Denne oppgaven er inaktiv. Gjenoppta den for å synkronisere filene igjen.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ventemodus</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Sikkerhetskopieringen kunne ikke fullføres. Kontroller tilkoblingen til serveren, og prøv igjen.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Flere veiledninger</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Denne mappen brukes av et annet synkroniseringsprogram. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Akkurat nå</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>La disse programmene være åpne (krever omstart)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Du har ikke rettigheter til å synkronisere med denne mappen. Velg en mappe du har tilgang til.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell kjører allerede. Du kan åpne programmet fra statusfeltet.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Filer som samsvarer med ett av disse filtrene, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Oppgavevalg</translation>
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
        <translation>Disken med den lokale mappen er ikke tilkoblet. Koble den til, og gjenoppta oppgaven.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Du er ikke logget på som administrator, så Tarnwell installeres bare for din konto. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Sikkerhetskopier og synkroniser datamaskinen med din egen server.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell starter …</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Disken på serveren er full.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksimal filstørrelse</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Lastet opp</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Alt er klart!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Du kan bare lese denne mappen. Filer blir lastet ned, men endringene dine blir ikke lastet opp.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>Servermappen ligger på en fjernlagringsenhet som ikke er tilkoblet nå. Be administratoren om å koble den til igjen.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Det finnes allerede en mappe med dette navnet. Vil du slå sammen de to mappene?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] er allerede installert</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 objekt(er)</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Denne mappen er et monteringspunkt og kan ikke synkroniseres. Velg en vanlig mappe.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Serveren har blokkert IP-adressen din. Be administratoren om å oppheve blokkeringen.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell kunne ikke oppdateres. Prøv igjen senere, eller last ned den nyeste versjonen selv.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Du har bare leserettigheter til denne delte mappen. Filer blir bare lastet ned. Vil du bruke mappen?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Denne versjonen av Tarnwell er allerede installert. Vil du installere den på nytt?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til …</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell kunne ikke startes som det skal. Start datamaskinen på nytt. Hvis problemet vedvarer, installerer du Tarnwell på nytt.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Ny synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Ikke bruk proxyserver</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Velg en mappe på denne datamaskinen</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Endre, reparer eller fjern [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Skriv inn et filnavn eller et filetternavn, for eksempel *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktivert</translation>
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
        <translation>Tester tilkoblingen …</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis veiledningen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>SSL-sertifikatet til serveren er endret siden du koblet til. Gå tilbake, og koble til på nytt for å kontrollere det.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Skriv inn IP-adressen eller domenenavnet til serveren.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Denne kontoen er beskyttet med totrinnsverifisering. Skriv inn verifiseringskoden.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Serveren meldte om en systemfeil. Prøv igjen senere, eller be administratoren om hjelp.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Kontroller innstillingene</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Mapper du fjerner haken for her, blir fjernet fra denne datamaskinen. De blir værende på serveren.</translation>
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
        <translation>Du kan endre alle disse innstillingene senere.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Nedlastingen ble avbrutt.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink fikk ikke kontakt med serveren. Kontroller internettilkoblingen, og prøv igjen.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Filer med disse navnene blir aldri lastet opp eller ned.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Denne mappen ligger på en nettverksdisk. Endringer som andre gjør der, blir kanskje ikke oppdaget med én gang.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Denne mappen kan ikke synkroniseres. Velg en annen mappe.</translation>
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
        <translation>Du har bare leserettigheter til denne mappen, så ingenting kan sikkerhetskopieres til den. Velg en mappe du kan skrive til.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Før du begynner, må du sørge for at serveren er slått på.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>For mange mislykkede forsøk. Vent noen minutter, og prøv igjen.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historikk</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Vil du koble denne datamaskinen fra serveren? Alle oppgaver stanses, men ingen filer blir slettet.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Denne mappen for sikkerhetskopiering brukes allerede av en annen oppgave. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Noe gikk galt</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Vis ikonmerker på synkroniserte filer</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>«%1» kunne ikke fjernes fra listen. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Denne versjonen av Tarnwell er for gammel.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Synkronisering er på</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Lukk disse programmene, og klikk på Prøv igjen, eller klikk på Ignorer for å fortsette og starte datamaskinen på nytt etterpå.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell sikkerhetskopierer filene på datamaskinen til serveren og holder dem synkronisert begge steder.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer i bruk</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Velg hva som skal sikkerhetskopieres, og hvor det skal lagres på serveren.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Noen filer som må endres, er i bruk.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Hendelsestype</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Nettopp oppdatert: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Laster inn de delte mappene …</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell oppretter en lokal mappe og begynner å sikkerhetskopiere den med én gang.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Koble sammen igjen</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Ta med denne mappen i synkroniseringen igjen</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparer</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Velg hvordan Tarnwell skal koble til serveren.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Kobler sammen med serveren …</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Dobbeltklikk på ikonet for å se hva Tarnwell gjør akkurat nå.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell holder disse to mappene synkronisert.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell klargjøres …</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Fant ikke delt mappe</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Filene i den lokale mappen sikkerhetskopieres nå automatisk til serveren.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>SSL-sertifikatet til serveren er endret. Hør med administratoren før du velger å stole på det nye sertifikatet.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>Tilkoblingen ble brutt mens oppgaven ble satt opp. Kontroller nettverket, og prøv igjen.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Sikkerhetskopierer %1 fil(er)</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Tilkoblingen til serveren ble brutt. Tarnwell kobler til igjen så snart som mulig.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Velkommen til Tarnwell. La oss sette opp den første sikkerhetskopieringen din.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Vil du slutte å synkronisere denne delte mappen? Filene som allerede er på denne datamaskinen, blir beholdt.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Sammenslåingsmodus</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Lastet ned</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Ikke nok plass</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Om Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Pålogging mislyktes</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Du er nå koblet til serveren.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Sikkerhetskopierer fil %1 av %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger tilkobling</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Kontoen din har ingen kvote igjen på denne serveren. Be administratoren om en større kvote før du setter opp denne oppgaven.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Klikk på Fjern for å fjerne [ProductName] fra datamaskinen. Klikk på Tilbake for å velge noe annet, eller på Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Jeg godtar ikke vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Trenger du hjelp med oppsettet?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Mapper som synkroniseres</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Laster ned %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Tilpasset intervall</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Ingen innstillinger ble endret.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Se statusen for hver fil</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Lukk disse programmene, og start dem på nytt etterpå</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Kontrollerer passordet …</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Administrer oppgaver</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send til</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Du har endringer som ikke er lagret. Vil du forkaste dem?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Disken på serveren er full. Frigjør plass på serveren, og prøv igjen.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Administratoren krever totrinnsverifisering. Logg på serveren i en nettleser, og slå på denne funksjonen først.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Kvoten for denne delte mappen er brukt opp. Slett filer du ikke lenger trenger, eller velg en annen delt mappe.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Koble fra serveren</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Oppdaterer til versjon %1 …</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Takk for at du bruker [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Bruk disse proxyinnstillingene</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>Synkroniseringen stanset uventet. Gjenoppta oppgaven. Hvis problemet vedvarer, starter du Tarnwell på nytt.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Bruk systemets proxyserver</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Hvis alt er riktig, klikker du på Fullfør for å opprette oppgaven.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Undermapper som synkroniseres</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>De valgte endringene i [ProductName] blir utført.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Hvordan vil du sette opp Tarnwell?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Hva er en OrvaneLink-ID?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>Ingen Orvane Station ble funnet på det lokale nettverket. Skriv inn adressen eller OrvaneLink-ID-en i stedet.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Velkommen til installasjonsprogrammet for [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Oppdaterte filer</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Opprett en Tarnwell-mappe på denne datamaskinen</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Disken på denne datamaskinen er full.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-kryptering</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Finner ikke den lokale mappen. Flytt den tilbake dit den var, eller koble oppgaven fra serveren og sett den opp på nytt.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Advarsel om SSL-sertifikat</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lisensavtale</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Endre</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Lar deg velge hvilke funksjoner i [ProductName] som skal være installert.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Denne delte mappen finnes ikke lenger på serveren. Velg en annen.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Overføringskø</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Ser etter endrede filer …</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktivert</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 sider tilbake</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Klikk hvor som helst for å begynne.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Utelat disse mappene fra synkroniseringen</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Nåværende trinn:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Klar til å reparere</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Låst fil</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Serveren sendte et svar som Tarnwell ikke forstår. Sørg for at begge er oppdatert.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Monteringspunkt</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 sider fram</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Toveissynkronisering</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell oppdateres …</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Mappe delt med deg</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ved dobbeltklikk på statusfeltikonet</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Denne filen kan ikke lastes ned. Den kan ha blitt flyttet eller slettet på serveren.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Kobler til via OrvaneLink …</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>For %1 dag(er) siden</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Synkroniser aldri disse filene</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtigoppsett</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Legg til en oppgave for å synkronisere enda en mappe med denne serveren.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Det oppsto en feil</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Fjern [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Serveren avviste forespørselen som ugyldig. Oppdater Tarnwell, og prøv igjen.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Ulike versjoner</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Hvis du vil synkronisere flere mapper, kan du når som helst legge til en oppgave i Tarnwell.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Oppdatering kreves</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink er ikke tilgjengelig nå. Prøv igjen senere, eller skriv inn adressen til din Orvane Station i stedet.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>For %1 minutt(er) siden</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Statusdetaljer</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Del en lenke</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislyktes</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Oppdater nå</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Velg en mappe på serveren og den lokale mappen den skal synkroniseres med.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>er delt med deg.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Denne datamaskinen og serveren er nå koblet sammen.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direkte tilkobling</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Serveren kan ikke nås. Kontroller nettverkstilkoblingen, og prøv igjen.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Synkroniser med en annen server</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Disken på denne datamaskinen er full. Frigjør plass, og gjenoppta oppgaven.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synkroniser denne mappen</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Forrige uke</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Kontrollerer dataene …</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Feil brukernavn eller passord.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] blir installert på datamaskinen. Klikk på Neste for å fortsette eller på Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparer [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Feil synkroniseringsretning</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Gjenoppta tilkoblingen</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Koble til serveren</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Skriv inn serveradressen, og logg på med kontoen din.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Velg minst én mappe som skal sikkerhetskopieres.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Installasjonsprogrammet er klart til å installere [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Hva vil du gjøre nå?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Velg hva du vil gjøre.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>SSL-sertifikatet kunne ikke verifiseres.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Synkroniseringspakken på serveren er for gammel. Be administratoren om å oppdatere den til versjon %1 eller nyere.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Legg til en synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Ingen hendelser å vise</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Skriv inn brukernavnet ditt.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>Den delte mappen er ikke montert på serveren. Be administratoren om å montere den.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Ikonmerker viser statusen for filene dine. En grønn hake betyr at en fil er oppdatert.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Jeg godtar vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Endre de installerte funksjonene</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Filetternavn</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Sett tilkoblingen på pause</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Serveren bruker nå et annet SSL-sertifikat. Vil du stole på det?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>For %1 time(r) siden</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Fullført</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datamaskinnavn</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Verifiseringskoden er feil eller utløpt. Skriv inn en ny kode.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Installasjonsprogrammet ble avbrutt</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Skriv inn et filnavn som skal utelates</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Noen filer ble ikke synkronisert</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systemspråk</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Assistent for avansert oppsett</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Bruk svart-hvitt statusfeltikon</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tilkoblingstype</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Tilkoblingen er ustabil</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Vil du avslutte installasjonsprogrammet for [ProductName] før det er ferdig?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>«%1» kunne ikke lastes ned. Kontroller tilkoblingen til serveren, og prøv igjen.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>mandag</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Sikkerhetskopieringen starter her</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Installasjonsprogrammet for [ProductName] ble stanset av en feil før det var ferdig. Datamaskinen er ikke endret. Start installasjonsprogrammet på nytt for å prøve igjen.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>Synkroniseringsretningen for denne oppgaven samsvarer ikke med rettighetene dine på serveren. Velg en annen synkroniseringsretning.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Du har ikke rettigheter til å bruke denne delte mappen. Be administratoren om tilgang.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Dette kan ta noen minutter.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avansert oppsett</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Du kan bruke den eksisterende oppgaven eller sette opp en ny i en annen mappe.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>En annen oppgave synkroniserer allerede denne mappen. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Vis synkroniseringsstatus</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Hvis du fortsetter, blir den eksisterende oppgaven erstattet. Ingen filer blir slettet.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Vent litt</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søkeord</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Tilkobling</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Det finnes allerede en oppgave for denne mappen på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Bla gjennom tidligere versjoner</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell indekserer denne mappen</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Denne oppgaven finnes allerede</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Oppgaven kunne ikke opprettes. Kontroller innstillingene, og prøv igjen.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Behold alltid versjonen på serveren</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Velg en lokal mappe</translation>
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
        <translation>Antallet delte mapper du kan synkronisere, er begrenset til %1. Slutt å synkronisere en mappe før du legger til en ny.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Åpne mappen filen ligger i</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Åpne lokal mappe</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nei</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>En nyere versjon av Tarnwell er allerede installert. Hvis du vil installere denne versjonen, må du først fjerne den nyere.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>De tidligere versjonene av denne filen kan ikke vises. Kontroller tilkoblingen til serveren, og prøv igjen.</translation>
    </message>
</context>
</TS>
