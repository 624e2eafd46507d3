<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Backup in corso…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Scollegamento in corso…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Lettura in corso…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Rimuove [ProductName] dal computer.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Apri Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Backup di %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Rinominato</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>I tuoi file, al sicuro e sempre a portata di mano</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Conserva i file sul server quando vengono eliminati da questo computer</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Riprova a sincronizzare</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Ultimo caricamento: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Relay tramite OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Giugno</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Impossibile verificare il certificato SSL del server. Controlla l’indirizzo del server o chiedi aiuto all’amministratore.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Alcune delle informazioni inserite non sono valide. Controllale e riprova.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Ripara [ProductName] sostituendo file, collegamenti e voci di registro mancanti o danneggiati.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Ti diamo il benvenuto in %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Inserisci il codice di verifica</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Indirizzo del proxy</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Usa una connessione SSL</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Indirizzo di Orvane Station o ID OrvaneLink</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Scegli le cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Scegli tu ogni cartella, la modalità di sincronizzazione e i filtri.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data e ora</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Icona di notifica</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Vuoi scollegare l’attività per “%1”? I file già presenti su questo computer e sul server non verranno eliminati.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome cartella</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell è pronto.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Il programma di installazione è pronto a riparare [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Escludi questa cartella dalla sincronizzazione</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Percorso cartella</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Inserisci i dati del server a cui vuoi connetterti.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] non ha funzionalità che si possano cambiare separatamente.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Verifica del tipo di connessione…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema di sincronizzazione</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Impossibile leggere il database di sincronizzazione. Riavvia Tarnwell. Se il problema persiste, scollega l’attività e configurala di nuovo.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>La tua quota sul server è esaurita. Elimina i file che non servono più o chiedi all’amministratore una quota maggiore.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Ti diamo il benvenuto</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Avvia Tarnwell all’accesso dell’utente</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Fai clic con il pulsante destro sull’icona nell’area di notifica per sospendere un’attività, aprirne la cartella o modificarne le impostazioni.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Inserisci 0 per non limitare la dimensione dei file.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Scegli le cartelle di cui eseguire il backup</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>File modificati di recente</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Escludi i file e le cartelle il cui nome inizia con un punto</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Autorizza e continua</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>ID OrvaneLink</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Indirizzo IP</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nuova cartella condivisa</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Il programma di installazione di [ProductName] ha terminato</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Impossibile sincronizzare alcuni file. Apri Tarnwell per vedere i dettagli.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Il disco che contiene questa cartella condivisa è pieno. Scegli una cartella condivisa su un altro disco o libera dello spazio.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Aggiornamento di Tarnwell</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Questo ID OrvaneLink non esiste. Controlla l’ID e inseriscilo di nuovo.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>Il file “%1” è stato scaricato.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Impostazioni proxy</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Nome di Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Vuoi rimuovere “%1” dall’elenco? La cartella non verrà eliminata.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Impossibile verificare questo nome utente. Assicurati che il server sia raggiungibile e riprova.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Scegli una cartella su questo computer. Il suo contenuto verrà sincronizzato con il server.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>La cartella non è vuota</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>I file con esattamente questo nome non vengono mai sincronizzati, in qualunque cartella si trovino.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Impossibile stabilire una connessione sicura. Controlla le impostazioni SSL del server e riprova.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>I seguenti programmi stanno usando file che il programma di installazione deve modificare:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Questo ID OrvaneLink non è valido. Usa solo lettere, cifre e trattini.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Inserisci un numero di porta compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>L’Orvane Station con questo ID OrvaneLink è offline. Assicurati che sia accesa e connessa a internet.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Impostazioni di rete</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Impossibile trovare il server a causa di un errore di sistema. Riprova o inserisci il suo indirizzo.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>La tua quota sul server è esaurita.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Il proxy richiede una password</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Scegli altro</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Trova Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Due frecce indicano che il file è in fase di sincronizzazione. Un segno rosso indica che il file richiede la tua attenzione.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>Versione di StationOS</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Fai clic su “Ripara” per iniziare. Fai clic su “Indietro” per scegliere altro o su “Annulla” per uscire dal programma di installazione.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>La configurazione è completa.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Usa questa cartella</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra le notifiche sul desktop</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervallo di date</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell richiede StationOS %1 o versioni successive. Aggiorna Orvane Station e riprova.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Il numero di versioni da conservare deve essere almeno 1.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Avvia [ProductName] adesso</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Inserisci il nome utente per il proxy.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Pronto per l’installazione</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>L’unione combina il contenuto di entrambe le cartelle. I file diversi vengono gestiti come conflitti.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Scegli una cartella sul server.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Tutto dall’area di notifica</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Questa versione di Tarnwell è troppo vecchia per il server. Aggiorna Tarnwell alla versione %1 o successiva.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>È disponibile Tarnwell %1. Fai clic qui per aggiornare.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Scegli cosa fare quando un file è stato modificato sia sul computer sia sul server.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Il programma di installazione è pronto a rimuovere [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Caricamento in corso…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Inserisci l’ID OrvaneLink di Orvane Station. Tarnwell si connette tramite OrvaneLink, anche quando sei fuori.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Puoi vedere questa cartella, ma le tue modifiche non verranno caricate.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Sincronizzazione unidirezionale dal server a questo computer</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>La cartella condivisa “%1” è pronta per la sincronizzazione.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Apri StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Riavvia Tarnwell per applicare la nuova lingua.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Cartella locale</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Conserva la versione modificata per ultima</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Nessuna delle cartelle scelte può essere sincronizzata. Scegli almeno un’altra cartella.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Fai clic su “Installa” per iniziare. Fai clic su “Indietro” per controllare le tue scelte o su “Annulla” per uscire dal programma di installazione.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell conserva le versioni precedenti dei file, così puoi rimediare subito a un errore.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Collega un altro server</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Pronto per la rimozione</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Questa cartella contiene già dei file. Verranno sincronizzati anche quelli. Vuoi usarla?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Con questo programma di installazione puoi riparare o rimuovere [ProductName]. Fai clic su “Avanti” per continuare o su “Annulla” per uscire dal programma di installazione.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>File esclusi</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Impossibile attivare la sincronizzazione per questa cartella. Controlla i tuoi permessi sul server e riprova.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Questa cartella si sovrappone a una cartella già sincronizzata. Scegli una cartella che non la contenga e che non si trovi al suo interno.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Mostra i simboli di stato sui file esclusi</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Inserisci l’indirizzo e la porta del proxy.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Fai clic su “Fine” per uscire dal programma di installazione.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Al</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Tipi di file da sincronizzare</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Inserisci una dimensione massima dei file compresa tra %1 e %2 MB.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Applicazione delle impostazioni…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Aggiungi attività</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, grazie</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Non mostrare più questo messaggio</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Per usare la sincronizzazione selettiva, aggiorna prima il pacchetto di sincronizzazione sul server.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nomi dei file esclusi</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destinazione del backup</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>La configurazione è terminata. Tarnwell ha iniziato il backup dei tuoi file.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Lascia che Tarnwell scelga le impostazioni per te oppure sceglile tu.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Impossibile creare un link a questo file. Assicurati che il file sia stato caricato e di avere il permesso di condividerlo.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Esci da Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembre</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Nessuna cartella adatta trovata</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Includi di nuovo queste cartelle nella sincronizzazione</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Questo file è stato modificato sia sul computer sia sul server. Confronta le due versioni ed elimina quella che non serve.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dicembre</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Leggi con attenzione il contratto di licenza prima di continuare.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Torna indietro nel tempo</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maggio</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Il tuo account sul server è stato disattivato. Chiedi all’amministratore di attivarlo.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Si è verificato un problema. Riprova. Se il problema persiste, riavvia Tarnwell.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Conserva entrambe le versioni e rinomina la meno recente</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>In attesa che il file venga sbloccato</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Metti i file nella cartella locale: Tarnwell ne esegue il backup sul server per te.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Impossibile creare la cartella “%1”. Controlla i tuoi permessi o scegli un’altra posizione.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Scegli la cartella condivisa sul server con cui eseguire la sincronizzazione.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Hai interrotto il programma di installazione di [ProductName] prima del termine. Il computer non è stato modificato. Puoi eseguire di nuovo il programma di installazione in qualsiasi momento.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Verranno usate queste impostazioni:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Cronologia dei download</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Nessun permesso</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Questa attività non è attiva. Riprendila per sincronizzare di nuovo i suoi file.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>In standby</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Impossibile completare il backup. Controlla la connessione al server e riprova.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Altri tutorial</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Questa cartella è usata da un altro programma di sincronizzazione. Scegli una cartella diversa.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Poco fa</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Lascia aperti questi programmi (richiede un riavvio)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Non hai il permesso di sincronizzare con questa cartella. Scegli una cartella a cui hai accesso.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell è già in esecuzione. Puoi aprirlo dall’area di notifica.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>I file che corrispondono a uno di questi filtri non vengono sincronizzati.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Opzioni dell’attività</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Cartella sul server</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Febbraio</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>Il disco con la cartella locale non è connesso. Connettilo e riprendi l’attività.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Non hai effettuato l’accesso come amministratore, quindi Tarnwell verrà installato solo per il tuo account. Vuoi continuare?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Esegui il backup del computer e sincronizzalo con il tuo server.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Avvio di Tarnwell…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Il disco del server è pieno.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Dimensione massima dei file</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Caricato</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Tutto pronto!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Puoi solo leggere questa cartella. I file verranno scaricati, ma le tue modifiche non verranno caricate.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>La cartella sul server si trova su uno spazio di archiviazione remoto al momento non connesso. Chiedi all’amministratore di riconnetterlo.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Esiste già una cartella con questo nome. Vuoi unire le due cartelle?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] è già presente sul computer</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Elementi: %1</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Questa cartella è un punto di mount e non può essere sincronizzata. Scegli una cartella normale.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Il server ha bloccato il tuo indirizzo IP. Chiedi all’amministratore di sbloccarlo.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Impossibile aggiornare Tarnwell. Riprova più tardi o scarica manualmente l’ultima versione.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Hai un permesso di sola lettura per questa cartella condivisa. I file verranno solo scaricati. Vuoi usarla?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Questa versione di Tarnwell è già installata. Vuoi installarla di nuovo?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione in corso…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Impossibile avviare correttamente Tarnwell. Riavvia il computer. Se il problema persiste, installa di nuovo Tarnwell.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nuova attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Non usare un proxy</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Scegli una cartella su questo computer</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Cambia, ripara o rimuovi [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Inserisci un nome o un’estensione di file, per esempio *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direzione di sincronizzazione</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test della connessione…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostra il tutorial</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>Il certificato SSL del server è cambiato dopo la connessione. Torna indietro e connettiti di nuovo per verificarlo.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Inserisci l’indirizzo IP o il nome di dominio del server.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Questo account è protetto dalla verifica in due passaggi. Inserisci il codice di verifica.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Il server ha segnalato un errore di sistema. Riprova più tardi o chiedi aiuto all’amministratore.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Controlla le impostazioni</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Le cartelle deselezionate qui verranno rimosse da questo computer. Rimarranno sul server.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Il pacchetto di sincronizzazione sul server è troppo vecchio.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Cartelle condivise</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Puoi modificare tutte queste impostazioni in seguito.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Il download è stato annullato.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink non è riuscito a raggiungere il server. Controlla la connessione a internet e riprova.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>I file con questi nomi non vengono mai caricati né scaricati.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Questa cartella si trova su un’unità di rete. Le modifiche apportate lì da altri potrebbero non essere rilevate subito.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Questa cartella non può essere sincronizzata. Scegli una cartella diversa.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Gennaio</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Non attiva</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Hai un permesso di sola lettura per questa cartella, quindi non è possibile usarla per il backup. Scegli una cartella in cui puoi scrivere.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Prima di iniziare, assicurati che il server sia acceso.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Troppi tentativi non riusciti. Attendi qualche minuto e riprova.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Vuoi scollegare questo computer dal server? Tutte le attività si fermeranno, ma nessun file verrà eliminato.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Questa cartella di backup è già usata da un’altra attività. Scegli una cartella diversa.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Si è verificato un problema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Mostra i simboli di stato sui file sincronizzati</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>Impossibile rimuovere “%1” dall’elenco. Riprova più tardi.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Questa versione di Tarnwell è troppo vecchia.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Sincronizzazione attiva</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Chiudi questi programmi e fai clic su “Riprova”, oppure fai clic su “Ignora” per continuare e riavvia il computer al termine.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell esegue il backup dei file del computer sul tuo server e mantiene entrambi sincronizzati.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>File in uso</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Seleziona gli elementi di cui eseguire il backup e dove salvarli sul server.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Alcuni file da modificare sono in uso.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Tipo di evento</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Appena aggiornato: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Lettura delle cartelle condivise…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell crea una cartella locale e ne inizia subito il backup.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Ricollega</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Includi di nuovo questa cartella nella sincronizzazione</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Ripara</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Scegli come Tarnwell si connette al server.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Collegamento al server…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Fai doppio clic sull’icona per vedere cosa sta facendo Tarnwell in questo momento.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell mantiene sincronizzate queste due cartelle.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Inizia ora</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizzazione</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Preparazione di Tarnwell…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Cartella condivisa non trovata</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Ora il backup sul server dei file della tua cartella locale viene eseguito automaticamente.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>Il certificato SSL del server è cambiato. Chiedi conferma all’amministratore prima di autorizzare il nuovo certificato.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>La connessione si è interrotta durante la configurazione dell’attività. Controlla la rete e riprova.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Backup di %1 file</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>La connessione al server si è interrotta. Tarnwell si riconnetterà appena possibile.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Ti diamo il benvenuto in Tarnwell. Configuriamo il tuo primo backup.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Vuoi interrompere la sincronizzazione di questa cartella condivisa? I file già presenti su questo computer verranno conservati.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modalità di unione</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Scaricato</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Spazio insufficiente</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Informazioni su Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Accesso non riuscito</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>La connessione al server è attiva.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Backup del file %1 di %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Il tuo account non ha più quota disponibile su questo server. Chiedi all’amministratore una quota maggiore prima di configurare questa attività.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Fai clic su “Rimuovi” per rimuovere [ProductName] dal computer. Fai clic su “Indietro” per scegliere altro o su “Annulla” per uscire dal programma di installazione.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Non accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Serve aiuto per la configurazione?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Download di %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervallo personalizzato</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Nessuna impostazione è stata modificata.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Lo stato di ogni file</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Ottobre</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Chiudi questi programmi e riavviali al termine</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Verifica della password…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Gestisci attività</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Invia a</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Ci sono modifiche non salvate. Vuoi ignorarle?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Il disco del server è pieno. Libera dello spazio sul server e riprova.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>L’amministratore richiede la verifica in due passaggi. Accedi prima al server con un browser e attivala.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>La quota di questa cartella condivisa è esaurita. Elimina i file che non servono più o scegli un’altra cartella condivisa.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Scollega connessione</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Aggiornamento alla versione %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Grazie per aver scelto [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Usa queste impostazioni proxy</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>La sincronizzazione si è interrotta in modo imprevisto. Riprendi l’attività. Se il problema persiste, riavvia Tarnwell.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Usa il proxy di sistema</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Se è tutto corretto, fai clic su “Fine” per creare l’attività.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Sottocartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>Le modifiche richieste a [ProductName] sono in corso.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Come vuoi configurare Tarnwell?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Che cos’è un ID OrvaneLink?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Cartella di sola lettura</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>Nessuna Orvane Station trovata sulla rete locale. Inserisci invece il suo indirizzo o il suo ID OrvaneLink.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Ti diamo il benvenuto nel programma di installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>File aggiornati</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Crea una cartella Tarnwell su questo computer</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Il disco di questo computer è pieno.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Crittografia SSL</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Impossibile trovare la cartella locale. Riportala nella posizione originale, oppure scollega l’attività e configurala di nuovo.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Avviso sul certificato SSL</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contratto di licenza</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambia</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Consente di scegliere quali funzionalità di [ProductName] installare.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Questa cartella condivisa non esiste più sul server. Scegline un’altra.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Coda dei trasferimenti</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Ricerca dei file modificati…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Indietro di %1 pagine</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Luglio</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Fai clic in un punto qualsiasi per iniziare.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Escludi queste cartelle dalla sincronizzazione</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Passaggio attuale:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Pronto per la riparazione</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>File bloccato</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Il server ha inviato una risposta che Tarnwell non comprende. Assicurati che entrambi siano aggiornati.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Punto di mount</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Avanti di %1 pagine</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronizzazione bidirezionale</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Aggiornamento di Tarnwell in corso…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Cartella condivisa con te</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Con un doppio clic sull’icona nell’area di notifica</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Impossibile scaricare questo file. Potrebbe essere stato spostato o eliminato sul server.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Connessione tramite OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 giorno/i fa</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Scegli un’altra cartella</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Non sincronizzare mai questi file</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configurazione rapida</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Aggiungi un’attività per sincronizzare un’altra cartella con questo server.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Si è verificato un errore</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Rimuovi [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Il server ha rifiutato la richiesta perché non valida. Aggiorna Tarnwell e riprova.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versioni incompatibili</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Per sincronizzare altre cartelle, puoi aggiungere un’attività in Tarnwell in qualsiasi momento.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creazione</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Aggiornamento necessario</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink non è disponibile al momento. Riprova più tardi o inserisci invece l’indirizzo di Orvane Station.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 min fa</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Dettagli dello stato</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Condividi un link</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Aggiorna ora</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Scegli una cartella sul server e la cartella locale con cui sincronizzarla.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>ora è tra le cartelle condivise con te.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Questo computer e il server ora sono collegati.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Impossibile raggiungere il server. Controlla la connessione di rete e riprova.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Sincronizza con un altro server</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Il disco di questo computer è pieno. Libera dello spazio e riprendi l’attività.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Sincronizza questa cartella</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Settimana scorsa</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Verifica dei dati…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Nome utente o password non corretti.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Il programma installerà [ProductName] sul computer. Fai clic su “Avanti” per continuare o su “Annulla” per uscire dal programma di installazione.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Ripara [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Direzione di sincronizzazione incompatibile</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Riprendi connessione</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connettiti al tuo server</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Inserisci l’indirizzo del server e accedi con il tuo account.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Seleziona almeno una cartella di cui eseguire il backup.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Il programma di installazione è pronto a installare [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Che cosa vuoi fare ora?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Scegli che cosa vuoi fare.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>Impossibile verificare il certificato SSL.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Il pacchetto di sincronizzazione sul server è troppo vecchio. Chiedi all’amministratore di aggiornarlo alla versione %1 o successiva.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Aggiungi un’attività di sincronizzazione</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Nessun evento da mostrare</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Inserisci il nome utente.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>La cartella condivisa non è montata sul server. Chiedi all’amministratore di montarla.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>I simboli di stato mostrano la situazione dei file. Un segno di spunta verde indica che un file è aggiornato.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Cambia le funzionalità installate</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Estensione file</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Sospendi connessione</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Il server ora usa un certificato SSL diverso. Vuoi autorizzarlo?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 h fa</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome computer</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Il codice di verifica è errato o scaduto. Inserisci un nuovo codice.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Il programma di installazione è stato interrotto</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Inserisci il nome di un file da escludere</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Alcuni file non sono stati sincronizzati</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Lingua di sistema</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Configurazione guidata avanzata</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usa un’icona in bianco e nero nell’area di notifica</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo di connessione</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La connessione è instabile</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Vuoi uscire dal programma di installazione di [ProductName] prima che abbia terminato?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>Impossibile scaricare “%1”. Controlla la connessione al server e riprova.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Il tuo backup inizia qui</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Aprile</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Un errore ha interrotto il programma di installazione di [ProductName] prima del termine. Il computer non è stato modificato. Per riprovare, riavvia il programma di installazione.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>La direzione di sincronizzazione di questa attività non corrisponde al tuo permesso sul server. Scegli un’altra direzione di sincronizzazione.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Non hai il permesso di usare questa cartella condivisa. Chiedi l’accesso all’amministratore.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>L’operazione può richiedere qualche minuto.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configurazione avanzata</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Puoi usare l’attività esistente o configurarne una nuova in una cartella diversa.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Un’altra attività sincronizza già questa cartella. Scegli una cartella diversa.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostra lo stato della sincronizzazione</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Se continui, l’attività esistente verrà sostituita. Nessun file verrà eliminato.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Attendi</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Su questo computer esiste già un’attività per questa cartella.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Dal</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Sfoglia le versioni precedenti</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell sta indicizzando questa cartella</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Questa attività esiste già</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Impossibile creare l’attività. Controlla le impostazioni e riprova.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Conserva sempre la versione del server</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Scegli una cartella locale</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Settembre</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>Il numero massimo di cartelle condivise sincronizzabili è %1. Interrompi la sincronizzazione di una di esse prima di aggiungerne un’altra.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Apri cartella superiore</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Apri cartella locale</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mese scorso</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Una versione più recente di Tarnwell è già installata. Per installare questa versione, rimuovi prima quella più recente.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>Impossibile mostrare le versioni precedenti di questo file. Controlla la connessione al server e riprova.</translation>
    </message>
</context>
</TS>
