<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Tworzenie backupu…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Odłączanie…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Ładowanie…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Usuwa program [ProductName] z komputera.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Otwórz Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Tworzenie backupu: %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Zmieniono nazwę</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Twoje pliki: bezpieczne i zawsze pod ręką</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Zachowuj na serwerze pliki usunięte z tego komputera</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Usunięto</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Ponów synchronizację</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Ostatnio wysłano: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Przekazywanie przez OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Czerwiec</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Nie udało się zweryfikować certyfikatu SSL serwera. Sprawdź adres serwera lub poproś o pomoc administratora.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Niektóre z wpisanych informacji są nieprawidłowe. Sprawdź je i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Naprawia program [ProductName], zastępując brakujące lub uszkodzone pliki, skróty i wpisy rejestru.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Witamy w programie %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Wpisz kod weryfikacyjny</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adres serwera proxy</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Używaj połączenia SSL</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Adres Orvane Station lub OrvaneLink ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Wybierz foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Wybierz samodzielnie każdy folder, tryb synchronizacji i filtry.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Sierpień</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Ikona w zasobniku</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Czy odłączyć zadanie dla „%1”? Pliki znajdujące się już na tym komputerze i na serwerze nie zostaną usunięte.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell jest gotowy.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Instalator jest gotowy do naprawy programu [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Wyklucz ten folder z synchronizacji</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Wpisz dane serwera, z którym chcesz się połączyć.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>Program [ProductName] nie ma funkcji, które można zmieniać oddzielnie.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Sprawdzanie typu połączenia…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problem z synchronizacją</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Nie można odczytać bazy danych synchronizacji. Uruchom ponownie Tarnwell. Jeśli problem nie ustąpi, odłącz zadanie i skonfiguruj je ponownie.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Twój limit miejsca na serwerze jest wyczerpany. Usuń niepotrzebne pliki lub poproś administratora o większy limit.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignoruj</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Uruchamiaj Tarnwell po zalogowaniu użytkownika</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Kliknij prawym przyciskiem ikonę w zasobniku, aby wstrzymać zadanie, otworzyć jego folder lub zmienić jego ustawienia.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Wpisz 0, jeśli nie chcesz ograniczać rozmiaru plików.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Wybierz foldery do backupu</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Ostatnio zmienione pliki</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Wykluczaj pliki i foldery o nazwach zaczynających się od kropki</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Zaufaj i kontynuuj</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adres IP</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nowy folder udostępniony</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Instalator programu [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Instalator programu [ProductName] zakończył pracę</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Nie udało się zsynchronizować niektórych plików. Otwórz Tarnwell, aby zobaczyć szczegóły.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Dysk, na którym znajduje się ten folder udostępniony, jest pełny. Wybierz folder udostępniony na innym dysku lub zwolnij trochę miejsca.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Uaktualnienie programu Tarnwell</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>To OrvaneLink ID nie istnieje. Sprawdź je i wpisz ponownie.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>Pobrano „%1”.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ustawienia proxy</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Nazwa Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Czy usunąć „%1” z listy? Sam folder nie zostanie usunięty.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Nie udało się sprawdzić tej nazwy użytkownika. Upewnij się, że serwer jest dostępny, i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serwer</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Wybierz folder na tym komputerze. Jego zawartość będzie synchronizowana z serwerem.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>Ten folder nie jest pusty</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Pliki o dokładnie takiej nazwie nigdy nie są synchronizowane, niezależnie od folderu, w którym się znajdują.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Nie udało się nawiązać bezpiecznego połączenia. Sprawdź ustawienia SSL serwera i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Następujące programy używają plików, które instalator musi zmienić:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>To nie jest prawidłowe OrvaneLink ID. Używaj tylko liter, cyfr i łączników.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Wpisz numer portu od 1 do 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Serwer Orvane Station z tym OrvaneLink ID jest w trybie offline. Upewnij się, że jest włączony i połączony z internetem.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ustawienia sieci</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Nie udało się znaleźć serwera z powodu błędu systemu. Spróbuj ponownie lub wpisz adres serwera.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Twój limit miejsca na serwerze jest wyczerpany.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Serwer proxy wymaga hasła</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Wybierz inny</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Znajdź Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Dwie strzałki oznaczają, że plik jest synchronizowany. Czerwony znak oznacza, że plik wymaga twojej uwagi.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>Wersja StationOS</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Kliknij „Napraw”, aby rozpocząć. Kliknij „Wstecz”, aby wybrać coś innego, lub „Anuluj”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Konfiguracja jest zakończona.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Użyj tego folderu</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zakres dat</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell wymaga systemu StationOS %1 lub nowszego. Uaktualnij Orvane Station i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Liczba przechowywanych wersji musi wynosić co najmniej 1.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Uruchom teraz program [ProductName]</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Wpisz nazwę użytkownika dla serwera proxy.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Gotowe do instalacji</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Scalenie łączy zawartość obu folderów. Pliki, które się różnią, są traktowane jako konflikty.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumiem</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Wybierz folder na serwerze.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Wszystko w zasobniku</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Ta wersja programu Tarnwell jest za stara dla serwera. Uaktualnij Tarnwell do wersji %1 lub nowszej.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Dostępny jest Tarnwell %1. Kliknij tutaj, aby uaktualnić.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Wybierz, co ma się stać, gdy plik zostanie zmieniony zarówno na komputerze, jak i na serwerze.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Instalator jest gotowy do usunięcia programu [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wysyłanie…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Wpisz OrvaneLink ID swojego serwera Orvane Station. Tarnwell łączy się z nim przez OrvaneLink, nawet gdy jesteś daleko.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Możesz przeglądać ten folder, ale twoje zmiany nie będą wysyłane.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Jednokierunkowa synchronizacja z serwera na ten komputer</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>Folder udostępniony „%1” można już synchronizować.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Otwórz StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Uruchom ponownie Tarnwell, aby zastosować nowy język.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Folder lokalny</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Zachowuj ostatnio zmodyfikowaną wersję</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Żadnego z wybranych folderów nie można synchronizować. Wybierz co najmniej jeden inny folder.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Kliknij „Zainstaluj”, aby rozpocząć. Kliknij „Wstecz”, aby sprawdzić wybrane opcje, lub „Anuluj”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell przechowuje wcześniejsze wersje plików, więc każdą pomyłkę można szybko cofnąć.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Powiąż kolejny serwer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Gotowe do usunięcia</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Ten folder zawiera już pliki, które również zostaną zsynchronizowane. Czy chcesz go użyć?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Za pomocą tego instalatora możesz naprawić program [ProductName] lub usunąć go z komputera. Kliknij „Dalej”, aby kontynuować, lub „Anuluj”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Wykluczone pliki</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Nie udało się włączyć synchronizacji tego folderu. Sprawdź swoje uprawnienia na serwerze i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Ten folder pokrywa się z folderem, który jest już synchronizowany. Wybierz folder, który nie leży wewnątrz niego ani go nie zawiera.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Pokazuj nakładki na ikonach wykluczonych plików</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Wpisz adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Kliknij „Zakończ”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Typy plików do synchronizacji</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Wpisz maksymalny rozmiar pliku od %1 do %2 MB.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Stosowanie ustawień…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Dodaj zadanie</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nie, dziękuję</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Nie pokazuj więcej tego komunikatu</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Aby korzystać z synchronizacji wybiórczej, uaktualnij najpierw pakiet synchronizacji na serwerze.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Wykluczone nazwy plików</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Miejsce docelowe backupu</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Wszystko jest skonfigurowane. Tarnwell zaczął tworzyć backup twoich plików.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Pozwól programowi Tarnwell wybrać ustawienia za ciebie lub wybierz je samodzielnie.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Nie można utworzyć łącza do tego pliku. Upewnij się, że plik został wysłany i że masz uprawnienia do jego udostępniania.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Zakończ Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Listopad</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Nie znaleziono odpowiedniego folderu</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronizacja wybiórcza</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Uwzględnij ponownie te foldery w synchronizacji</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Ten plik został zmieniony zarówno na komputerze, jak i na serwerze. Porównaj obie wersje i usuń tę, której nie potrzebujesz.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Grudzień</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Przed kontynuowaniem przeczytaj uważnie umowę licencyjną.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Cofnij się w czasie</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Twoje konto na serwerze zostało wyłączone. Poproś administratora o jego włączenie.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Coś poszło nie tak. Spróbuj ponownie. Jeśli problem nie ustąpi, uruchom ponownie Tarnwell.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Zachowuj obie wersje i zmieniaj nazwę starszej</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Oczekiwanie na odblokowanie pliku</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Umieść pliki w folderze lokalnym, a Tarnwell utworzy ich backup na serwerze.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Nie udało się utworzyć folderu „%1”. Sprawdź swoje uprawnienia lub wybierz inne położenie.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Wybierz na serwerze folder udostępniony do synchronizacji.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Praca instalatora programu [ProductName] została przerwana przed zakończeniem. W komputerze nie wprowadzono żadnych zmian. Możesz uruchomić instalator ponownie w dowolnej chwili.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzec</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Zostaną użyte te ustawienia:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historia pobierania</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Brak uprawnień</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>To zadanie jest nieaktywne. Wznów je, aby ponownie synchronizować jego pliki.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Gotowość</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Nie udało się ukończyć backupu. Sprawdź połączenie z serwerem i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Więcej samouczków</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Ten folder jest używany przez inny program do synchronizacji. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Nie zamykaj tych programów (konieczny restart komputera)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Nie masz uprawnień do synchronizacji z tym folderem. Wybierz folder, do którego masz dostęp.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell jest już uruchomiony. Możesz go otworzyć z zasobnika.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Pliki pasujące do któregoś z tych filtrów nie są synchronizowane.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Opcje zadania</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Folder na serwerze</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Luty</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>Dysk z folderem lokalnym nie jest podłączony. Podłącz go i wznów zadanie.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Nie korzystasz z konta administratora, dlatego program Tarnwell zostanie zainstalowany tylko dla twojego konta. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Twórz backup komputera i synchronizuj go z własnym serwerem.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Uruchamianie programu Tarnwell…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Dysk serwera jest pełny.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maksymalny rozmiar pliku</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Wysłano</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Wszystko gotowe!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Masz do tego folderu dostęp tylko do odczytu. Pliki będą pobierane, ale twoje zmiany nie będą wysyłane.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>Folder na serwerze znajduje się w zdalnej pamięci masowej, która nie jest teraz podłączona. Poproś administratora o jej ponowne podłączenie.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Folder o tej nazwie już istnieje. Czy chcesz scalić oba foldery?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>Program [ProductName] jest już zainstalowany</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Pozycje: %1</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Ten folder jest punktem montowania i nie można go synchronizować. Wybierz zwykły folder.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Serwer zablokował twój adres IP. Poproś administratora o jego odblokowanie.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Nie udało się uaktualnić programu Tarnwell. Spróbuj ponownie później lub samodzielnie pobierz najnowszą wersję.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Masz do tego folderu udostępnionego uprawnienia tylko do odczytu. Pliki będą wyłącznie pobierane. Czy chcesz go użyć?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Ta wersja programu Tarnwell jest już zainstalowana. Czy chcesz zainstalować ją ponownie?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Nie udało się prawidłowo uruchomić programu Tarnwell. Uruchom ponownie komputer. Jeśli problem nie ustąpi, zainstaluj Tarnwell ponownie.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nowe zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Nie używaj serwera proxy</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Wybierz folder na tym komputerze</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Czynność</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Zmień, napraw lub usuń program [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Wpisz nazwę lub rozszerzenie pliku, na przykład *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testowanie połączenia…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Pokaż samouczek</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>Certyfikat SSL serwera zmienił się od czasu nawiązania połączenia. Wróć i połącz się ponownie, aby go sprawdzić.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Wpisz adres IP lub nazwę domeny serwera.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>To konto jest chronione weryfikacją dwuetapową. Wpisz kod weryfikacyjny.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Serwer zgłosił błąd systemu. Spróbuj ponownie później lub poproś o pomoc administratora.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Sprawdź ustawienia</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Odznaczone tutaj foldery zostaną usunięte z tego komputera. Na serwerze pozostaną.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Pakiet synchronizacji na serwerze jest za stary.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Foldery udostępnione</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Wszystkie te ustawienia możesz później zmienić.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Pobieranie zostało anulowane.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink nie może połączyć się z serwerem. Sprawdź połączenie z internetem i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Wszystko aktualne</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Pliki o tych nazwach nigdy nie są wysyłane ani pobierane.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Ten folder znajduje się na dysku sieciowym. Zmiany wprowadzane tam przez inne osoby mogą nie być wykrywane od razu.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Tego folderu nie można synchronizować. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Styczeń</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Nieaktywne</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Masz do tego folderu uprawnienia tylko do odczytu, dlatego nie można zapisywać w nim backupu. Wybierz folder, w którym możesz zapisywać.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Zanim zaczniesz, upewnij się, że serwer jest włączony.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Zbyt wiele nieudanych prób. Odczekaj kilka minut i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Czy odłączyć ten komputer od serwera? Wszystkie zadania zostaną zatrzymane, ale żadne pliki nie zostaną usunięte.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Ten folder backupu jest już używany przez inne zadanie. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Coś poszło nie tak</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Pokazuj nakładki na ikonach synchronizowanych plików</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>Nie udało się usunąć „%1” z listy. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Ta wersja programu Tarnwell jest za stara.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Synchronizacja włączona</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Zamknij te programy i kliknij „Ponów” albo kliknij „Ignoruj”, aby kontynuować i później uruchomić ponownie komputer.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell tworzy na serwerze backup plików z tego komputera i synchronizuje je w obu miejscach.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Pliki w użyciu</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Wybierz, co ma obejmować backup i gdzie na serwerze go przechowywać.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Niektóre pliki, które trzeba zmienić, są w użyciu.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Typ zdarzenia</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Właśnie uaktualniono: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Ładowanie folderów udostępnionych…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell tworzy folder lokalny i od razu zaczyna tworzyć jego backup.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Powiąż ponownie</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Uwzględnij ponownie ten folder w synchronizacji</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Napraw</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Wybierz sposób, w jaki Tarnwell łączy się z serwerem.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Tworzenie powiązania z serwerem…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Kliknij ikonę dwukrotnie, aby zobaczyć, co Tarnwell robi w tej chwili.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell synchronizuje te dwa foldery.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Zacznij teraz</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizacja</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Inicjowanie programu Tarnwell…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Nie znaleziono folderu udostępnionego</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Backup plików z folderu lokalnego jest teraz automatycznie tworzony na serwerze.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>Certyfikat SSL serwera zmienił się. Skontaktuj się z administratorem, zanim zaufasz nowemu certyfikatowi.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>Połączenie zostało utracone podczas konfigurowania zadania. Sprawdź sieć i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Tworzenie backupu plików: %1</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Połączenie z serwerem zostało utracone. Tarnwell połączy się ponownie, gdy tylko będzie to możliwe.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Witamy w programie Tarnwell. Skonfigurujmy twój pierwszy backup.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Czy zatrzymać synchronizację tego folderu udostępnionego? Pliki znajdujące się już na tym komputerze zostaną zachowane.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Tryb scalania</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Pobrano</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Za mało miejsca</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>O programie Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Nieudane logowanie</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Nawiązano połączenie z serwerem.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Tworzenie backupu: plik %1 z %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edytuj połączenie</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Limit miejsca twojego konta na tym serwerze jest wyczerpany. Poproś administratora o większy limit, zanim skonfigurujesz to zadanie.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Kliknij „Usuń”, aby usunąć program [ProductName] z komputera. Kliknij „Wstecz”, aby wybrać coś innego, lub „Anuluj”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Nie akceptuję warunków umowy licencyjnej</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Potrzebujesz pomocy przy konfiguracji?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Pobieranie: %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Własny zakres</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Nie zmieniono żadnych ustawień.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Zobacz stan każdego pliku</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Październik</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Zamknij te programy i później uruchom je ponownie</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Sprawdzanie hasła…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Zarządzaj zadaniami</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Wyślij do</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Masz niezapisane zmiany. Czy chcesz je odrzucić?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Dysk serwera jest pełny. Zwolnij trochę miejsca na serwerze i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Administrator wymaga weryfikacji dwuetapowej. Najpierw zaloguj się na serwerze w przeglądarce i włącz tę weryfikację.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Limit miejsca tego folderu udostępnionego jest wyczerpany. Usuń niepotrzebne pliki lub wybierz inny folder udostępniony.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Odłącz połączenie</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Uaktualnianie do wersji %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Dziękujemy za korzystanie z programu [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Używaj tych ustawień proxy</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>Synchronizacja została nieoczekiwanie zatrzymana. Wznów zadanie. Jeśli problem nie ustąpi, uruchom ponownie Tarnwell.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Używaj systemowego serwera proxy</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Jeśli wszystko się zgadza, kliknij „Zakończ”, aby utworzyć zadanie.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Podfoldery do synchronizacji</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>Trwa wprowadzanie żądanych zmian w programie [ProductName].</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Jak chcesz skonfigurować Tarnwell?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Co to jest OrvaneLink ID?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Folder tylko do odczytu</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>W sieci lokalnej nie znaleziono żadnego serwera Orvane Station. Wpisz adres serwera lub jego OrvaneLink ID.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Witamy w instalatorze programu [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Uaktualnione pliki</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Utwórz folder Tarnwell na tym komputerze</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Dysk tego komputera jest pełny.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Szyfrowanie SSL</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Nie można znaleźć folderu lokalnego. Przenieś go z powrotem do pierwotnego położenia albo odłącz zadanie i skonfiguruj je ponownie.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Ostrzeżenie o certyfikacie SSL</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Umowa licencyjna</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Zmień</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Pozwala wybrać, które funkcje programu [ProductName] mają być zainstalowane.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Ten folder udostępniony nie istnieje już na serwerze. Wybierz inny.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Kolejka przesyłania</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Szukanie zmienionych plików…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Poprzednie strony (%1)</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Lipiec</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Kliknij w dowolnym miejscu, aby zacząć.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Wyklucz te foldery z synchronizacji</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Bieżący krok:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Gotowe do naprawy</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Zablokowany plik</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Serwer wysłał odpowiedź, której Tarnwell nie rozumie. Upewnij się, że zarówno serwer, jak i Tarnwell są aktualne.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Punkt montowania</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Następne strony (%1)</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronizacja dwukierunkowa</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Uaktualnianie programu Tarnwell…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Udostępniono ci folder</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Po dwukrotnym kliknięciu ikony w zasobniku</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Nie można pobrać tego pliku. Mógł zostać przeniesiony lub usunięty na serwerze.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Łączenie przez OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Dni temu: %1</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Nigdy nie synchronizuj tych plików</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Szybka konfiguracja</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Dodaj zadanie, aby synchronizować z tym serwerem kolejny folder.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Wystąpił błąd</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Usuń program [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Serwer odrzucił żądanie jako nieprawidłowe. Uaktualnij Tarnwell i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Niezgodność wersji</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Aby synchronizować więcej folderów, możesz w dowolnej chwili dodać zadanie w programie Tarnwell.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Wymagane uaktualnienie</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink jest teraz niedostępny. Spróbuj ponownie później lub wpisz adres swojego serwera Orvane Station.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Szczegóły stanu</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Udostępnij łącze</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Uaktualnij teraz</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Wybierz folder na serwerze oraz folder lokalny, który ma być z nim synchronizowany.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>to folder, który ci udostępniono.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Ten komputer i serwer są teraz powiązane.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Nie można połączyć się z serwerem. Sprawdź połączenie sieciowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Synchronizuj z innym serwerem</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Dysk tego komputera jest pełny. Zwolnij trochę miejsca i wznów zadanie.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synchronizuj ten folder</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Zeszły tydzień</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Sprawdzanie danych…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Nieprawidłowa nazwa użytkownika lub nieprawidłowe hasło.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Program [ProductName] zostanie zainstalowany na komputerze. Kliknij „Dalej”, aby kontynuować, lub „Anuluj”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Napraw program [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Niezgodny kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Wznów połączenie</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Połącz się ze swoim serwerem</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Wpisz adres serwera i zaloguj się na swoje konto.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Wybierz co najmniej jeden folder do backupu.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Instalator jest gotowy do zainstalowania programu [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Co chcesz zrobić dalej?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Wybierz, co chcesz zrobić.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>Nie udało się zweryfikować certyfikatu SSL.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Pakiet synchronizacji na serwerze jest za stary. Poproś administratora o uaktualnienie go do wersji %1 lub nowszej.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Dodaj zadanie synchronizacji</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Brak zdarzeń do pokazania</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Wpisz swoją nazwę użytkownika.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>Folder udostępniony nie jest zamontowany na serwerze. Poproś administratora o jego zamontowanie.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Nakładki na ikonach pokazują stan twoich plików. Zielony znacznik wyboru oznacza, że plik jest aktualny.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Akceptuję warunki umowy licencyjnej</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Zmień zainstalowane funkcje</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Rozszerzenie pliku</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Wstrzymaj połączenie</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Serwer używa teraz innego certyfikatu SSL. Czy chcesz mu zaufać?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Zakończono</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nazwa komputera</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Kod weryfikacyjny jest błędny lub wygasł. Wpisz nowy kod.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Praca instalatora została przerwana</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Wpisz nazwę pliku do wykluczenia</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Niektórych plików nie zsynchronizowano</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Język systemu</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Asystent konfiguracji zaawansowanej</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Używaj czarno-białej ikony w zasobniku</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Typ połączenia</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Połączenie jest niestabilne</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Czy chcesz zamknąć instalator programu [ProductName], zanim zakończy pracę?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>Nie udało się pobrać „%1”. Sprawdź połączenie z serwerem i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Tutaj zaczyna się twój backup</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Kwiecień</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Instalator programu [ProductName] został zatrzymany z powodu błędu, zanim zakończył pracę. W komputerze nie wprowadzono żadnych zmian. Aby spróbować ponownie, uruchom instalator jeszcze raz.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>Kierunek synchronizacji tego zadania nie odpowiada twoim uprawnieniom na serwerze. Wybierz inny kierunek synchronizacji.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Nie masz uprawnień do używania tego folderu udostępnionego. Poproś administratora o dostęp.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Konfiguracja zaawansowana</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Możesz użyć istniejącego zadania lub skonfigurować nowe w innym folderze.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Ten folder jest już synchronizowany przez inne zadanie. Wybierz inny.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Pokaż stan synchronizacji</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Jeśli będziesz kontynuować, istniejące zadanie zostanie zastąpione. Żadne pliki nie zostaną usunięte.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Proszę czekać</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Słowo kluczowe</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Na tym komputerze istnieje już zadanie dla tego folderu.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Przeglądaj wcześniejsze wersje</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell indeksuje ten folder</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>To zadanie już istnieje</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Nie udało się utworzyć zadania. Sprawdź ustawienia i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Zawsze zachowuj wersję z serwera</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Wybierz folder lokalny</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Wrzesień</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>Maksymalna liczba synchronizowanych folderów udostępnionych: %1. Zatrzymaj synchronizację jednego z nich, zanim dodasz kolejny.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Otwórz folder nadrzędny</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Otwórz folder lokalny</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Zeszły miesiąc</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Nowsza wersja programu Tarnwell jest już zainstalowana. Aby zainstalować tę wersję, usuń najpierw nowszą.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>Nie można pokazać wcześniejszych wersji tego pliku. Sprawdź połączenie z serwerem i spróbuj ponownie.</translation>
    </message>
</context>
</TS>
