<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Pokračovat v synchronizaci</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Zálohování…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Odpojování…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Odebere aplikaci [ProductName] z počítače.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Otevřít Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Zálohuje se soubor %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Přejmenováno</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Vaše soubory v bezpečí a vždy po ruce</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Ponechat soubory na serveru, i když se v tomto počítači smažou</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Smazáno</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Zkusit synchronizaci znovu</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Poslední nahrání: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Předávání přes OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Červen</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Certifikát SSL serveru se nepodařilo ověřit. Zkontrolujte adresu serveru nebo požádejte o pomoc správce.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Některé zadané údaje nejsou platné. Zkontrolujte je a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odpojit</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Opraví aplikaci [ProductName] tak, že nahradí chybějící nebo poškozené soubory, zástupce a položky registru.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Vítá vás %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Zadejte ověřovací kód</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adresa proxy</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Používat připojení SSL</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Adresa Orvane Station nebo OrvaneLink ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Vyberte složky k synchronizaci</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Místní síť</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Každou složku, režim synchronizace i filtry vyberete ručně.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Srpen</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ souboru</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otevřít soubor</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Ikona na liště</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Odpojit úlohu „%1“? Soubory, které již jsou v tomto počítači a na serveru, se nesmažou.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Pokročilé</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Režim synchronizace</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell je připraven.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Instalační program je připraven opravit aplikaci [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Vyloučit tuto složku ze synchronizace</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Všechny události</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Zadejte údaje o serveru, ke kterému se chcete připojit.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>Aplikace [ProductName] nemá žádné součásti, které by bylo možné měnit samostatně.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Zjišťování typu připojení…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problém se synchronizací</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Databázi synchronizace nelze přečíst. Restartujte Tarnwell. Pokud problém přetrvá, odpojte úlohu a nastavte ji znovu.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Vaše kvóta na serveru je vyčerpána. Smažte soubory, které již nepotřebujete, nebo požádejte správce o větší kvótu.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorovat</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Spouštět Tarnwell po přihlášení uživatele</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Kliknutím pravým tlačítkem na ikonu na liště můžete úlohu pozastavit, otevřít její složku nebo změnit její nastavení.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Pokud velikost souborů nechcete omezit, zadejte 0.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Vyberte složky k zálohování</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nedávno změněné soubory</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Vyloučit soubory a složky, jejichž název začíná tečkou</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Důvěřovat a pokračovat</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresa IP</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nová sdílená složka</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Instalační program [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Instalační program [ProductName] dokončil práci</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Některé soubory se nepodařilo synchronizovat. Podrobnosti zobrazíte otevřením Tarnwellu.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Disk s touto sdílenou složkou je plný. Vyberte sdílenou složku na jiném disku nebo uvolněte místo.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Aktualizace Tarnwellu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Toto OrvaneLink ID neexistuje. Zkontrolujte ID a zadejte ho znovu.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>Soubor „%1“ byl stažen.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Nastavení proxy</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Název Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Odebrat složku „%1“ ze seznamu? Samotná složka se nesmaže.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Toto uživatelské jméno se nepodařilo zkontrolovat. Ujistěte se, že je server dostupný, a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Vyberte složku v tomto počítači. Její obsah se bude synchronizovat se serverem.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>Složka není prázdná</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Soubory s přesně tímto názvem se nikdy nesynchronizují, ať jsou v kterékoli složce.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Zabezpečené připojení se nepodařilo navázat. Zkontrolujte nastavení SSL na serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Následující programy používají soubory, které instalační program potřebuje změnit:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Složky</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Toto OrvaneLink ID není platné. Používejte jen písmena, číslice a spojovníky.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Zadejte číslo portu od 1 do 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Server Orvane Station s tímto OrvaneLink ID je offline. Ujistěte se, že je zapnutý a připojený k internetu.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nastavení sítě</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Server se kvůli systémové chybě nepodařilo najít. Zkuste to znovu nebo místo toho zadejte jeho adresu.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Vaše kvóta na serveru je vyčerpána.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Proxy vyžaduje heslo</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Vybrat něco jiného</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Najít Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Dvě šipky znamenají, že se soubor synchronizuje. Červená značka znamená, že soubor vyžaduje vaši pozornost.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>Verze StationOS</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Opravu zahájíte kliknutím na „Opravit“. Kliknutím na „Zpět“ můžete vybrat jinou možnost, kliknutím na „Zrušit“ instalační program ukončíte.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Nastavení je dokončeno.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Použít tuto složku</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Období</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell vyžaduje systém StationOS %1 nebo novější. Aktualizujte svůj server Orvane Station a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Počet uchovávaných verzí musí být alespoň 1.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Spustit nyní aplikaci [ProductName]</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Zadejte uživatelské jméno pro proxy server.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Připraveno k instalaci</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Při sloučení se obsah obou složek spojí. Soubory, které se liší, se zpracují jako konflikty.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumím</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Vyberte složku na serveru.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Vše ze systémové lišty</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Tato verze Tarnwellu je pro server příliš stará. Aktualizujte Tarnwell na verzi %1 nebo novější.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Je k dispozici Tarnwell %1. Aktualizujte kliknutím sem.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Vyberte, co se má stát, když byl soubor změněn v počítači i na serveru.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Instalační program je připraven odebrat aplikaci [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Nahrávání…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Zadejte OrvaneLink ID svého serveru Orvane Station. Tarnwell se k němu připojí přes OrvaneLink, i když jste na cestách.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Tuto složku si můžete prohlížet, ale vaše změny se nenahrají na server.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Jednosměrná synchronizace ze serveru do tohoto počítače</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>Sdílená složka „%1“ je připravena k synchronizaci.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Otevřít StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Chcete-li použít nový jazyk, restartujte Tarnwell.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Místní složka</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Ponechat naposledy změněnou verzi</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Žádnou z vybraných složek nelze synchronizovat. Vyberte alespoň jednu jinou složku.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Instalaci zahájíte kliknutím na „Instalovat“. Kliknutím na „Zpět“ můžete zkontrolovat svůj výběr, kliknutím na „Zrušit“ instalační program ukončíte.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell uchovává dřívější verze vašich souborů, takže každou chybu rychle napravíte.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Propojit další server</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetovat</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Připraveno k odebrání</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Tato složka již obsahuje soubory. Budou se také synchronizovat. Chcete ji použít?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Tímto instalačním programem můžete aplikaci [ProductName] opravit nebo ji odebrat z počítače. Pokračujte kliknutím na „Další“, kliknutím na „Zrušit“ instalační program ukončíte.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Vyloučené soubory</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Synchronizaci této složky se nepodařilo zapnout. Zkontrolujte svá oprávnění na serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Tato složka se překrývá se složkou, která se již synchronizuje. Vyberte složku, která v ní neleží ani ji neobsahuje.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalovat</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Zobrazovat překryvné ikony u vyloučených souborů</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Zadejte adresu a port proxy serveru.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Instalační program ukončíte kliknutím na „Dokončit“.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Typy souborů k synchronizaci</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Zadejte maximální velikost souboru od %1 do %2 MB.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Uplatňování nastavení…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Přidat úlohu</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Změnit složku</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Ne, děkuji</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Tuto zprávu už nezobrazovat</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Chcete-li použít výběrovou synchronizaci, aktualizujte nejprve synchronizační balíček na serveru.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Názvy vyloučených souborů</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Cíl zálohování</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Vše je nastaveno. Tarnwell začal zálohovat vaše soubory.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Nechte Tarnwell zvolit nastavení za vás, nebo je vyberte ručně.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Odkaz na tento soubor nelze vytvořit. Ujistěte se, že soubor byl nahrán na server a že máte oprávnění ho sdílet.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Ukončit Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Nenalezena žádná vhodná složka</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Výběrová synchronizace</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Znovu zahrnout tyto složky do synchronizace</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Tento soubor byl změněn v počítači i na serveru. Porovnejte obě verze a smažte tu, kterou nepotřebujete.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Prosinec</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Než budete pokračovat, pečlivě si přečtěte licenční smlouvu.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Vytisknout</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Vraťte se v čase</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Květen</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Váš účet na serveru byl zakázán. Požádejte správce o jeho povolení.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Něco se pokazilo. Zkuste to znovu. Pokud problém přetrvá, restartujte Tarnwell.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Ponechat obě verze a starší přejmenovat</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Čeká se na odemčení souboru</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Uložte soubory do místní složky a Tarnwell je za vás zazálohuje na server.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Složku „%1“ se nepodařilo vytvořit. Zkontrolujte svá oprávnění nebo vyberte jiné umístění.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Volby</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Vyberte sdílenou složku na serveru, se kterou se má synchronizovat.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Instalační program [ProductName] byl na váš pokyn přerušen před dokončením. V počítači se nic nezměnilo. Instalační program můžete kdykoli spustit znovu.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Pátek</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Březen</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Použijí se tato nastavení:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historie stahování</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Chybí oprávnění</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Tato úloha je neaktivní. Chcete-li její soubory znovu synchronizovat, klikněte na „Pokračovat v synchronizaci“.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>V pohotovosti</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Zálohování se nepodařilo dokončit. Zkontrolujte připojení k serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Další návody</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Tuto složku používá jiný synchronizační program. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Před chvílí</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Nechat tyto programy spuštěné (vyžaduje restart počítače)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Nemáte oprávnění synchronizovat s touto složkou. Vyberte složku, ke které máte přístup.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell již běží. Můžete ho otevřít ze systémové lišty.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Soubory, které odpovídají některému z těchto filtrů, se nesynchronizují.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Volby úlohy</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Složka na serveru</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Únor</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>Disk s místní složkou není připojen. Připojte ho a pokračujte v úloze.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Nepoužíváte účet správce, proto se Tarnwell nainstaluje jen pro váš účet. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Zálohujte svůj počítač na vlastní server a mějte vše synchronizované.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell se spouští…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Smazat</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Disk serveru je plný.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximální velikost souboru</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Nahráno</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Vše je připraveno!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Z této složky můžete jen číst. Soubory se budou stahovat, ale vaše změny se nenahrají na server.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>Složka na serveru je na vzdáleném úložišti, které teď není připojeno. Požádejte správce, aby ho znovu připojil.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Složka s tímto názvem již existuje. Chcete obě složky sloučit?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>Aplikace [ProductName] je již nainstalována</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Počet položek: %1</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Tato složka je přípojný bod a nelze ji synchronizovat. Vyberte běžnou složku.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Server zablokoval vaši adresu IP. Požádejte správce o její odblokování.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell se nepodařilo aktualizovat. Zkuste to později nebo si nejnovější verzi stáhněte ručně.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>K této sdílené složce máte oprávnění jen pro čtení. Soubory se budou pouze stahovat. Chcete ji použít?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Tato verze Tarnwellu je již nainstalována. Chcete ji nainstalovat znovu?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell se nepodařilo správně spustit. Restartujte počítač. Pokud problém přetrvá, nainstalujte Tarnwell znovu.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nová synchronizační úloha</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Nepoužívat proxy</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Vyberte složku v tomto počítači</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Změna, oprava nebo odebrání aplikace [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Zadejte název nebo příponu souboru, například *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Směr synchronizace</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Neděle</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Zobrazit návod</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>Certifikát SSL serveru se od vašeho připojení změnil. Vraťte se zpět, připojte se znovu a zkontrolujte ho.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Zadejte adresu IP nebo název domény serveru.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Tento účet je chráněn dvoufázovým ověřením. Zadejte ověřovací kód.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Server ohlásil systémovou chybu. Zkuste to později nebo požádejte o pomoc správce.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Zkontrolujte nastavení</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Složky, u kterých zde zrušíte zaškrtnutí, budou z tohoto počítače odebrány. Na serveru zůstanou.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Synchronizační balíček na serveru je příliš starý.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Všechna tato nastavení můžete později změnit.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Stahování bylo zrušeno.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>Službě OrvaneLink se nepodařilo připojit k serveru. Zkontrolujte připojení k internetu a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Soubory s těmito názvy se nikdy nenahrávají ani nestahují.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Tato složka je na síťovém disku. Změny, které tam provedou ostatní, nemusí být zaznamenány hned.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Tuto složku nelze synchronizovat. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Leden</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Neaktivní</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>K této složce máte oprávnění jen pro čtení, takže do ní nelze nic zálohovat. Vyberte složku, do které můžete zapisovat.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Než začnete, ujistěte se, že je váš server zapnutý.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Příliš mnoho neúspěšných pokusů. Počkejte několik minut a zkuste to znovu.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historie</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Odpojit tento počítač od serveru? Všechny úlohy se zastaví, ale žádné soubory se nesmažou.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Tuto složku pro zálohování již používá jiná úloha. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Něco se pokazilo</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Zobrazovat překryvné ikony u synchronizovaných souborů</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>Složku „%1“ se nepodařilo odebrat ze seznamu. Zkuste to později.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Tato verze Tarnwellu je příliš stará.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Synchronizace zapnuta</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Ukončete tyto programy a klikněte na „Opakovat“, nebo pokračujte kliknutím na „Ignorovat“ a počítač poté restartujte.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell zálohuje soubory z vašeho počítače na váš server a udržuje je na obou místech synchronizované.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Používané soubory</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Vyberte, co se má zálohovat a kam se to má na serveru uložit.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Některé soubory, které je třeba změnit, se právě používají.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Typ události</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Právě aktualizováno: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Načítání sdílených složek…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell vytvoří místní složku a hned ji začne zálohovat.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Znovu propojit</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Znovu zahrnout tuto složku do synchronizace</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Opravit</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Vyberte, jak se Tarnwell připojí k serveru.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Propojování se serverem…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Dvojím kliknutím na ikonu zobrazíte, co Tarnwell právě dělá.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell udržuje tyto dvě složky synchronizované.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Začít nyní</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizace</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell se inicializuje…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Sdílená složka nenalezena</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Soubory v místní složce se nyní automaticky zálohují na server.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>Certifikát SSL serveru se změnil. Než budete novému certifikátu důvěřovat, ověřte tuto změnu u správce.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>Při nastavování úlohy bylo přerušeno připojení. Zkontrolujte síť a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Zálohování souborů: %1</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Připojení k serveru bylo přerušeno. Tarnwell se znovu připojí, jakmile to bude možné.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Vítá vás Tarnwell. Nastavme spolu vaši první zálohu.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Ukončit synchronizaci této sdílené složky? Soubory, které již jsou v tomto počítači, zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Režim slučování</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Staženo</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Nedostatek místa</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>O aplikaci Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Přihlášení selhalo</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Připojení k serveru bylo navázáno.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Zálohování souboru %1 z %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Upravit připojení</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Váš účet již na tomto serveru nemá žádnou volnou kvótu. Než tuto úlohu nastavíte, požádejte správce o větší kvótu.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Kliknutím na „Odebrat“ odeberete aplikaci [ProductName] z počítače. Kliknutím na „Zpět“ můžete vybrat jinou možnost, kliknutím na „Zrušit“ instalační program ukončíte.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Nesouhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Potřebujete pomoc s nastavením?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Složky k synchronizaci</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Stahuje se soubor %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Vlastní období</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Žádná nastavení se nezměnila.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Sledujte stav každého souboru</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Říjen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Ukončit tyto programy a poté je znovu spustit</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Ověřování hesla…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Spravovat úlohy</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Poslat do umístění</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Máte neuložené změny. Chcete je zahodit?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Disk serveru je plný. Uvolněte na serveru místo a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Správce vyžaduje dvoufázové ověření. Nejprve se v prohlížeči přihlaste k serveru a toto ověření zapněte.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Kvóta této sdílené složky je vyčerpána. Smažte soubory, které již nepotřebujete, nebo vyberte jinou sdílenou složku.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Odpojit od serveru</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Aktualizace na verzi %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Děkujeme, že používáte aplikaci [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Používat toto nastavení proxy</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>Synchronizace se neočekávaně zastavila. Pokračujte v úloze. Pokud problém přetrvá, restartujte Tarnwell.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Používat systémové proxy</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Pokud je vše v pořádku, vytvořte úlohu kliknutím na „Dokončit“.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Podsložky k synchronizaci</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>Probíhají požadované změny aplikace [ProductName].</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Jak chcete Tarnwell nastavit?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Co je OrvaneLink ID?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Složka jen pro čtení</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>V místní síti nebyl nalezen žádný server Orvane Station. Zadejte místo toho jeho adresu nebo OrvaneLink ID.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Vítá vás instalační program [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Aktualizované soubory</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Vytvořit v tomto počítači složku Tarnwell</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Disk tohoto počítače je plný.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Šifrování SSL</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Místní složku nelze najít. Přesuňte ji zpět na původní místo, nebo úlohu odpojte a nastavte ji znovu.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opakovat</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Upozornění na certifikát SSL</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licenční smlouva</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Změnit</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Umožňuje vybrat, které součásti aplikace [ProductName] se nainstalují.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Tato sdílená složka již na serveru neexistuje. Vyberte jinou.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Fronta přenosů</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Hledání změněných souborů…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Předchozí stránky (%1)</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Červenec</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Začněte kliknutím kamkoli.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Vyloučit tyto složky ze synchronizace</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Pokročilá nastavení</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktuální krok:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Připraveno k opravě</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Uzamčený soubor</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Server odeslal odpověď, které Tarnwell nerozumí. Ujistěte se, že server i Tarnwell jsou aktuální.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Přípojný bod</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Další stránky (%1)</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Obousměrná synchronizace</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell se aktualizuje…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Složka sdílená s vámi</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Po dvojím kliknutí na ikonu na liště</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Tento soubor nelze stáhnout. Možná byl na serveru přesunut nebo smazán.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Připojování přes OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Před %1 d</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vybrat jinou složku</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Nikdy nesynchronizovat tyto soubory</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Rychlé nastavení</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Přidejte úlohu a synchronizujte s tímto serverem další složku.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Došlo k chybě</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Odebrat aplikaci [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Server požadavek odmítl jako neplatný. Aktualizujte Tarnwell a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Nesoulad verzí</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Chcete-li synchronizovat více složek, můžete v Tarnwellu kdykoli přidat úlohu.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Nutná aktualizace</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Čtvrtek</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>Služba OrvaneLink teď není dostupná. Zkuste to později nebo místo toho zadejte adresu svého serveru Orvane Station.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Před %1 min</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Podrobnosti o stavu</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Sdílet odkaz</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Nezdařilo se</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Aktualizovat nyní</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Vyberte složku na serveru a místní složku, která se s ní má synchronizovat.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>je složka, kterou s vámi nyní někdo sdílí.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Tento počítač a server jsou nyní propojeny.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Přímé připojení</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Server není dostupný. Zkontrolujte připojení k síti a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Synchronizovat s jiným serverem</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Disk tohoto počítače je plný. Uvolněte místo a pokračujte v úloze.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synchronizovat tuto složku</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minulý týden</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Kontrola dat…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Nesprávné uživatelské jméno nebo heslo.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Aplikace [ProductName] bude nainstalována do vašeho počítače. Pokračujte kliknutím na „Další“, kliknutím na „Zrušit“ instalační program ukončíte.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Opravit aplikaci [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Nesoulad směru synchronizace</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Obnovit připojení</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Připojte se ke svému serveru</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Zadejte adresu serveru a přihlaste se ke svému účtu.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Vyberte k zálohování alespoň jednu složku.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Instalační program je připraven nainstalovat aplikaci [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Co chcete udělat dál?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Vyberte, co chcete udělat.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>Certifikát SSL se nepodařilo ověřit.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Úterý</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Synchronizační balíček na serveru je příliš starý. Požádejte správce, aby ho aktualizoval na verzi %1 nebo novější.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Přidat synchronizační úlohu</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Žádné události k zobrazení</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Zadejte své uživatelské jméno.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>Sdílená složka není na serveru připojena. Požádejte správce o její připojení.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Překryvné ikony ukazují, v jakém stavu jsou vaše soubory. Zelené zaškrtnutí znamená, že je soubor aktuální.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Souhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Změnit nainstalované součásti</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Přípona souboru</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pozastavit připojení</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Pouze stahování</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Server nyní používá jiný certifikát SSL. Chcete tomuto certifikátu důvěřovat?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Před %1 h</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Dokončeno</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Název počítače</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Ověřovací kód je nesprávný nebo jeho platnost vypršela. Zadejte nový kód.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Instalační program byl přerušen</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Zadejte název souboru k vyloučení</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Některé soubory se nesynchronizovaly</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Jazyk systému</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Průvodce pokročilým nastavením</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Používat černobílou ikonu na liště</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Typ připojení</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Připojení je nestabilní</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Chcete instalační program [ProductName] ukončit před dokončením?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>Soubor „%1“ se nepodařilo stáhnout. Zkontrolujte připojení k serveru a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pondělí</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Vaše záloha začíná zde</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Duben</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Instalační program [ProductName] byl kvůli chybě zastaven před dokončením. V počítači se nic nezměnilo. Chcete-li pokus opakovat, spusťte instalační program znovu.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>Směr synchronizace této úlohy neodpovídá vašemu oprávnění na serveru. Vyberte jiný směr synchronizace.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Nemáte oprávnění používat tuto sdílenou složku. Požádejte správce o přístup.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Pokročilé nastavení</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Můžete použít stávající úlohu nebo nastavit novou v jiné složce.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Tuto složku již synchronizuje jiná úloha. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Zobrazit stav synchronizace</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Pokud budete pokračovat, stávající úloha bude nahrazena. Žádné soubory se nesmažou.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Čekejte prosím</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Klíčové slovo</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Připojení</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Úloha pro tuto složku již v tomto počítači existuje.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronizační úlohy</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Procházet dřívější verze</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell indexuje tuto složku</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Tato úloha již existuje</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Úlohu se nepodařilo vytvořit. Zkontrolujte nastavení a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Čeká</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Vždy ponechat verzi ze serveru</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Vyberte místní složku</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Středa</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Září</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>Synchronizovat lze nejvýše tento počet sdílených složek: %1. Než přidáte další, ukončete synchronizaci některé z nich.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Otevřít nadřazenou složku</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Otevřít místní složku</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Minulý měsíc</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Novější verze Tarnwellu je již nainstalována. Chcete-li nainstalovat tuto verzi, nejprve novější verzi odeberte.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>Dřívější verze tohoto souboru nelze zobrazit. Zkontrolujte připojení k serveru a zkuste to znovu.</translation>
    </message>
</context>
</TS>
