<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Biztonsági mentés…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Leválasztás…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Eltávolítja a(z) [ProductName] programot a számítógépről.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>A Tarnwell megnyitása</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Biztonsági mentés: %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Átnevezve</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Fájljai biztonságban, mindig kéznél</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>A számítógépről törölt fájlok megtartása a szerveren</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Törölve</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Szinkronizálás újrapróbálása</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Utolsó feltöltés: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Közvetítés az OrvaneLinken keresztül</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Június</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>A szerver SSL-tanúsítványát nem sikerült ellenőrizni. Ellenőrizze a szerver címét, vagy kérjen segítséget a rendszergazdától.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>A megadott adatok némelyike érvénytelen. Ellenőrizze őket, és próbálja újra.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>A hiányzó vagy sérült fájlok, parancsikonok és beállításjegyzék-bejegyzések pótlásával kijavítja a(z) [ProductName] programot.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Üdvözli a(z) %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Kiválasztás</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Adja meg az ellenőrzőkódot</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy címe</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>SSL-kapcsolat használata</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Orvane Station címe vagy OrvaneLink-azonosító</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Válassza ki a szinkronizálandó mappákat</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Helyi hálózat</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Ön adja meg az egyes mappákat, a szinkronizálási módot és a szűrőket.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Augusztus</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Fájltípus</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Fájl megnyitása</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Időpont</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Tálcaikon</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Leválasztja a(z) „%1” mappához tartozó feladatot? A számítógépen és a szerveren már meglévő fájlok nem törlődnek.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Speciális</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappanév</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Szinkronizálási mód</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>A Tarnwell készen áll.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Haladás</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>A telepítő készen áll a(z) [ProductName] javítására.</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>A mappa kizárása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Minden esemény</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Adja meg annak a szervernek az adatait, amelyhez csatlakozni szeretne.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>A(z) [ProductName] nem tartalmaz külön módosítható összetevőket.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>A kapcsolat típusának ellenőrzése…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Szinkronizálási hiba</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>A szinkronizálási adatbázis nem olvasható. Indítsa újra a Tarnwellt. Ha a hiba továbbra is fennáll, válassza le a feladatot, és állítsa be újra.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>A szerveren betelt a kvótája. Törölje a már nem szükséges fájlokat, vagy kérjen nagyobb kvótát a rendszergazdától.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Kihagyás</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Üdvözöljük</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>A Tarnwell indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>A tálcaikonra jobb gombbal kattintva szüneteltetheti a feladatokat, megnyithatja a mappáikat, vagy módosíthatja a beállításaikat.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Ha nem szeretné korlátozni a fájlméretet, adjon meg 0 értéket.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Válassza ki a mentendő mappákat</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Szombat</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Legutóbb módosított fájlok</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Ponttal kezdődő nevű fájlok és mappák kizárása</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Elfogadás és továbblépés</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink-azonosító</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-cím</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Új megosztott mappa</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>[ProductName] telepítője</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>A(z) [ProductName] telepítője végzett</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Néhány fájlt nem sikerült szinkronizálni. A részletekért nyissa meg a Tarnwellt.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>A megosztott mappát tartalmazó lemez megtelt. Válasszon egy másik lemezen lévő megosztott mappát, vagy szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Tarnwell-frissítés</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Ez az OrvaneLink-azonosító nem létezik. Ellenőrizze az azonosítót, és adja meg újra.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>A(z) „%1” letöltése befejeződött.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxybeállítások</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Orvane Station neve</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Eltávolítja a listából a(z) „%1” mappát? Maga a mappa nem törlődik.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>A felhasználónevet nem sikerült ellenőrizni. Győződjön meg arról, hogy a szerver elérhető, és próbálja újra.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Szerver</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Válasszon egy mappát ezen a számítógépen. Ennek tartalma szinkronizálva lesz a szerverrel.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>A mappa nem üres</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>A pontosan ilyen nevű fájlok soha nem szinkronizálódnak, bármelyik mappában is vannak.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Nem sikerült biztonságos kapcsolatot létesíteni. Ellenőrizze a szerver SSL-beállításait, és próbálja újra.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>A következő programok olyan fájlokat használnak, amelyeket a telepítőnek módosítania kell:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappák</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Ez nem érvényes OrvaneLink-azonosító. Csak betűket, számjegyeket és kötőjelet használjon.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>1 és 65535 közötti portszámot adjon meg.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Az ehhez az OrvaneLink-azonosítóhoz tartozó Orvane Station offline állapotban van. Győződjön meg arról, hogy be van kapcsolva, és csatlakozik az internethez.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Hálózati beállítások</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Rendszerhiba miatt a szerver nem található. Próbálja újra, vagy adja meg inkább a szerver címét.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>A szerveren betelt a kvótája.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>A proxy jelszót igényel</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Másik választása</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Orvane Station keresése</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>A két nyíl azt jelenti, hogy a fájl szinkronizálása folyamatban van. A piros jel azt jelenti, hogy a fájl beavatkozást igényel.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS-verzió</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>A kezdéshez kattintson a Javítás gombra. Más választásához kattintson a Vissza, a telepítőből való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>A beállítás befejeződött.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Csak olvasható</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>A mappa használata</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Dátumtartomány</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>A Tarnwell működéséhez StationOS %1 vagy újabb szükséges. Frissítse az Orvane Stationt, és próbálja újra.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>A megtartandó verziók száma legalább 1 legyen.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>A(z) [ProductName] indítása most</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Adja meg a proxyhoz tartozó felhasználónevet.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Készen áll a telepítésre</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Az egyesítés mindkét mappa tartalmát egybegyűjti. Az eltérő fájlok ütközésnek számítanak.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Értem</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Válasszon egy mappát a szerveren.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Minden elérhető a tálcáról</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>A Tarnwellnek ez a verziója túl régi a szerverhez. Frissítse a Tarnwellt legalább a következő verzióra: %1.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Elérhető a Tarnwell új verziója (%1). A frissítéshez kattintson ide.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Válassza ki, mi történjen, ha egy fájl a számítógépen és a szerveren is módosult.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>A telepítő készen áll a(z) [ProductName] eltávolítására.</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Feltöltés…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Adja meg az Orvane Station OrvaneLink-azonosítóját. A Tarnwell az OrvaneLinken keresztül akkor is csatlakozik hozzá, amikor Ön távol van.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>A mappa tartalmát megtekintheti, de a módosításai nem lesznek feltöltve.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Egyirányú szinkronizálás a szerverről a számítógépre</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>A(z) „%1” megosztott mappa készen áll a szinkronizálásra.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>A StationOS megnyitása</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Az új nyelv használatához indítsa újra a Tarnwellt.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Helyi mappa</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Az utoljára módosított verzió megtartása</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>A kiválasztott mappák egyike sem szinkronizálható. Válasszon legalább egy másik mappát.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>A kezdéshez kattintson a Telepítés gombra. A beállítások ellenőrzéséhez kattintson a Vissza, a telepítőből való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>A Tarnwell megőrzi a fájlok korábbi verzióit, így a tévedések gyorsan helyrehozhatók.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Összekapcsolás másik szerverrel</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Alaphelyzet</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Készen áll az eltávolításra</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Ebben a mappában már vannak fájlok. Ezek is szinkronizálva lesznek. Ezt a mappát szeretné használni?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Ezzel a telepítővel kijavíthatja a(z) [ProductName] programot, vagy eltávolíthatja a számítógépről. A továbblépéshez kattintson a Tovább, a telepítőből való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Kizárt fájlok</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Ennél a mappánál nem sikerült bekapcsolni a szinkronizálást. Ellenőrizze a szerveren a jogosultságait, és próbálja újra.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Ez a mappa átfedésben van egy már szinkronizált mappával. Olyan mappát válasszon, amely nem annak almappája vagy szülőmappája.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Telepítés</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Ikonjelzések megjelenítése a kizárt fájlokon</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Adja meg a proxy címét és portját.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>A telepítőből való kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Eddig</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Szinkronizálandó fájltípusok</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>A maximális fájlméret legalább %1 és legfeljebb %2 MB lehet.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>A beállítások alkalmazása…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Feladat hozzáadása</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Mappa cseréje</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Köszönöm, nem</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Ne jelenjen meg többé ez az üzenet</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>A szelektív szinkronizálás használatához előbb frissítse a szerveren a szinkronizálási csomagot.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Kizárt fájlnevek</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Biztonsági mentés helye</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Minden be van állítva. A Tarnwell megkezdte a fájlok biztonsági mentését.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>A beállításokat a Tarnwellre bízhatja, vagy maga is megadhatja őket.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Ehhez a fájlhoz nem hozható létre hivatkozás. Győződjön meg arról, hogy a fájl fel van töltve, és hogy van jogosultsága a megosztására.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Kilépés a Tarnwellből</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Nem található megfelelő mappa</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>A mappák újbóli szinkronizálása</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Ez a fájl a számítógépen és a szerveren is módosult. Hasonlítsa össze a két verziót, és törölje azt, amelyikre nincs szüksége.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Mielőtt továbblép, olvassa el figyelmesen a licencszerződést.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Nyomtatás</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Visszalépés az időben</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Május</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>A szerveren lévő fiókja le van tiltva. Kérje meg a rendszergazdát, hogy engedélyezze.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Valami nem sikerült. Próbálja újra. Ha a hiba továbbra is fennáll, indítsa újra a Tarnwellt.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Mindkét verzió megtartása és a régebbi átnevezése</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Várakozás a fájl zárolásának feloldására</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Helyezzen fájlokat a helyi mappába, és a Tarnwell biztonsági mentést készít róluk a szerverre.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>A(z) „%1” mappát nem sikerült létrehozni. Ellenőrizze a jogosultságait, vagy válasszon másik helyet.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciók</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Válassza ki azt a megosztott mappát a szerveren, amellyel szinkronizálni szeretne.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>A(z) [ProductName] telepítőjét a befejezés előtt megszakította. A számítógépen nem történt változás. A telepítőt bármikor újra futtathatja.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Péntek</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Március</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>A következő beállítások lesznek érvényben:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Letöltési előzmények</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Nincs jogosultság</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Ez a feladat inaktív. Folytassa, ha újra szinkronizálni szeretné a fájljait.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>A biztonsági mentés nem fejeződött be. Ellenőrizze a kapcsolatot a szerverrel, és próbálja újra.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>További bemutatók</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Ezt a mappát egy másik szinkronizálóprogram használja. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az imént</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>A programok nyitva hagyása (újraindítást igényel)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Nincs jogosultsága szinkronizálni ezzel a mappával. Olyan mappát válasszon, amelyhez van hozzáférése.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>A Tarnwell már fut. A tálcáról nyithatja meg.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Az itt szereplő szűrők bármelyikének megfelelő fájlok nem szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Feladatopciók</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Szervermappa</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Február</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>A helyi mappát tartalmazó lemez nincs csatlakoztatva. Csatlakoztassa, és folytassa a feladatot.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Nem rendszergazdaként jelentkezett be, ezért a Tarnwell csak az Ön fiókjába lesz telepítve. Folytatja a telepítést?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Készítsen biztonsági mentést számítógépéről, és szinkronizálja saját szerverével.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>A Tarnwell indítása…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>A szerver lemeze megtelt.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximális fájlméret</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Feltöltve</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Minden készen áll!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Ehhez a mappához csak olvasási jogosultsága van. A fájlok letöltődnek, de a módosításai nem lesznek feltöltve.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>A szervermappa olyan távoli tárhelyen van, amely most nincs csatlakoztatva. Kérje meg a rendszergazdát, hogy csatlakoztassa újra.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Már létezik ilyen nevű mappa. Egyesíti a két mappát?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>A(z) [ProductName] már telepítve van</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 elem</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Ez a mappa csatolási pont, ezért nem szinkronizálható. Válasszon szokványos mappát.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>A szerver letiltotta az IP-címét. Kérje meg a rendszergazdát a letiltás feloldására.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>A Tarnwell frissítése nem sikerült. Próbálja újra később, vagy töltse le saját maga a legújabb verziót.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Ehhez a megosztott mappához csak olvasási jogosultsága van. A fájlok csak letöltődnek. Ezt a mappát szeretné használni?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>A Tarnwellnek ez a verziója már telepítve van. Újra telepíti?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Csatlakozás…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>A Tarnwell nem tudott megfelelően elindulni. Indítsa újra a számítógépet. Ha a hiba továbbra is fennáll, telepítse újra a Tarnwellt.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Új szinkronizálási feladat</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Proxy nélkül</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Válasszon mappát a számítógépen</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>A(z) [ProductName] módosítása, javítása vagy eltávolítása</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Adjon meg fájlnevet vagy fájlkiterjesztést, például: *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Letiltva</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Szinkronizálás iránya</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Vasárnap</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A kapcsolat tesztelése…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>A bemutató megjelenítése</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>A szerver SSL-tanúsítványa megváltozott a csatlakozás óta. Az ellenőrzéshez lépjen vissza, és csatlakozzon újra.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Adja meg a szerver IP-címét vagy tartománynevét.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Fiók</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Ezt a fiókot kétlépéses hitelesítés védi. Adja meg az ellenőrzőkódot.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>A szerver rendszerhibát jelzett. Próbálja újra később, vagy kérjen segítséget a rendszergazdától.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Ellenőrizze a beállításokat</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Azokat a mappákat, amelyeknek itt törli a jelölését, a program eltávolítja erről a számítógépről. A szerveren megmaradnak.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>A szerveren a szinkronizálási csomag túl régi.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Megosztott mappák</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Ezeket a beállításokat később bármikor módosíthatja.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>A letöltés megszakítva.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>Az OrvaneLink nem tudta elérni a szervert. Ellenőrizze az internetkapcsolatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Az ilyen nevű fájlok soha nem töltődnek fel vagy le.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Ez a mappa hálózati meghajtón van. A mások által végzett módosítások esetleg nem azonnal észlelhetők.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Ez a mappa nem szinkronizálható. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Január</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktív</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Ehhez a mappához csak olvasási jogosultsága van, ezért nem készíthető ide biztonsági mentés. Olyan mappát válasszon, amelybe írhat.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Mielőtt elkezdi, győződjön meg arról, hogy a szerver be van kapcsolva.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Túl sok sikertelen kísérlet. Várjon néhány percet, majd próbálja újra.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Előzmények</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Leválasztja ezt a számítógépet a szerverről? Minden feladat leáll, de egyetlen fájl sem törlődik.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Ezt a mentési mappát már egy másik feladat használja. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Hiba lépett fel</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Ikonjelzések megjelenítése a szinkronizált fájlokon</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>A(z) „%1” mappát nem sikerült eltávolítani a listából. Próbálja újra később.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>A Tarnwellnek ez a verziója túl régi.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Szinkronizálás bekapcsolva</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Zárja be ezeket a programokat, és kattintson az Újra gombra. Ha inkább folytatja, és utána indítja újra a számítógépet, kattintson a Kihagyás gombra.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>A Tarnwell biztonsági mentést készít a számítógép fájljairól a szerverre, és szinkronban tartja a kettőt.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Válassza ki, miről készüljön biztonsági mentés, és hova kerüljön a szerveren.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Néhány módosítandó fájl használatban van.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Eseménytípus</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Most frissült: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>A megosztott mappák betöltése…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>A Tarnwell létrehoz egy helyi mappát, és azonnal megkezdi a biztonsági mentését.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Újbóli összekapcsolás</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>A mappa újbóli szinkronizálása</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Javítás</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Válassza ki, hogyan csatlakozzon a Tarnwell a szerverhez.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Összekapcsolás a szerverrel…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Az ikonra duplán kattintva megtekintheti, mit csinál éppen a Tarnwell.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>A Tarnwell szinkronban tartja ezt a két mappát.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Indítás most</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Szinkronizálás</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>A Tarnwell előkészítése…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Nincs ilyen megosztott mappa</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Mostantól a helyi mappában lévő fájlokról automatikusan biztonsági mentés készül a szerverre.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>A szerver SSL-tanúsítványa megváltozott. Mielőtt megbízik az új tanúsítványban, egyeztessen a rendszergazdával.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>A feladat beállítása közben megszakadt a kapcsolat. Ellenőrizze a hálózatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>%1 fájl biztonsági mentése</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Megszakadt a kapcsolat a szerverrel. A Tarnwell a lehető leghamarabb újra csatlakozik.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Üdvözli a Tarnwell. Állítsuk be az első biztonsági mentést.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Leállítja a megosztott mappa szinkronizálását? A számítógépen már meglévő fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Egyesítési mód</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Letöltve</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Nincs elég hely</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>A Tarnwell névjegye</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Sikertelen bejelentkezés</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Létrejött a kapcsolat a szerverrel.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Biztonsági mentés: %1. fájl, összesen: %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Kapcsolat szerkesztése</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>A fiókjához tartozó kvóta betelt ezen a szerveren. A feladat beállítása előtt kérjen nagyobb kvótát a rendszergazdától.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>A(z) [ProductName] számítógépről való eltávolításához kattintson az Eltávolítás gombra. Más választásához kattintson a Vissza, a telepítőből való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmazás</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Nem fogadom el a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Segítségre van szüksége a beállításhoz?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Szinkronizálandó mappák</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Letöltés: %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Egyéni tartomány</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Nem módosultak a beállítások.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>A fájlok állapota egy pillantásra</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Október</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Továbblépés</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>A programok bezárása, majd újraindítása</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>A jelszó ellenőrzése…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Feladatok kezelése</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Küldés ide:</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Vannak nem mentett módosítások. Elveti őket?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>A szerver lemeze megtelt. Szabadítson fel helyet a szerveren, és próbálja újra.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>A rendszergazda kétlépéses hitelesítést ír elő. Előbb jelentkezzen be a szerverre egy böngészőben, és kapcsolja be ezt a hitelesítést.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>A megosztott mappa kvótája betelt. Törölje a már nem szükséges fájlokat, vagy válasszon másik megosztott mappát.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Kapcsolat leválasztása</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Frissítés a következő verzióra: %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Köszönjük, hogy a(z) [ProductName] programot használja.</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Ezen proxybeállítások használata</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>A szinkronizálás váratlanul leállt. Folytassa a feladatot. Ha a hiba továbbra is fennáll, indítsa újra a Tarnwellt.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>A rendszerproxy használata</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Ha minden helyes, a feladat létrehozásához kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Szinkronizálandó almappák</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>A(z) [ProductName] kért módosításainak végrehajtása folyamatban van.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Hogyan szeretné beállítani a Tarnwellt?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Mi az OrvaneLink-azonosító?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Csak olvasható mappa</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>Nem található Orvane Station a helyi hálózaton. Adja meg inkább az Orvane Station címét vagy OrvaneLink-azonosítóját.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Üdvözli a(z) [ProductName] telepítője</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Frissített fájlok</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Tarnwell-mappa létrehozása a számítógépen</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>A számítógép lemeze megtelt.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-titkosítás</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>A helyi mappa nem található. Helyezze vissza az eredeti helyére, vagy válassza le a feladatot, és állítsa be újra.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Figyelmeztetés: SSL-tanúsítvány</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licencszerződés</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Módosítás</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Itt kiválaszthatja, hogy a(z) [ProductName] mely összetevői legyenek telepítve.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Ez a megosztott mappa már nem létezik a szerveren. Válasszon egy másikat.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Átviteli sor</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Módosított fájlok keresése…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Engedélyezve</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Előző %1 oldal</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Július</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>A kezdéshez kattintson bárhová.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>A mappák kizárása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktuális lépés:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Készen áll a javításra</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Zárolt fájl</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>A szerver olyan választ küldött, amelyet a Tarnwell nem tud értelmezni. Győződjön meg arról, hogy mindkettő naprakész.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Csatolási pont</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Következő %1 oldal</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Kétirányú szinkronizálás</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>A Tarnwell frissítése folyamatban van…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Önnel megosztott mappa</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Dupla kattintás a tálcaikonra</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Ez a fájl nem tölthető le. Lehet, hogy áthelyezték vagy törölték a szerveren.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Csatlakozás az OrvaneLinken keresztül…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 nappal ezelőtt</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Soha nem szinkronizálandó fájlok</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Gyors beállítás</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Ha másik mappát is szinkronizálni szeretne ezzel a szerverrel, adjon hozzá egy feladatot.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Hiba történt</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>A(z) [ProductName] eltávolítása</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>A szerver érvénytelenként elutasította a kérést. Frissítse a Tarnwellt, és próbálja újra.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Eltérő verzió</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>További mappák szinkronizálásához bármikor hozzáadhat egy feladatot a Tarnwellben.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Frissítés szükséges</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Csütörtök</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>Az OrvaneLink jelenleg nem elérhető. Próbálja újra később, vagy adja meg inkább az Orvane Station címét.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 perccel ezelőtt</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Állapot részletei</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Hivatkozás megosztása</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Sikertelen</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Frissítés most</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Válasszon egy mappát a szerveren, valamint a vele szinkronizálni kívánt helyi mappát.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>nevű mappát osztottak meg Önnel.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Ez a számítógép és a szerver mostantól össze van kapcsolva.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Közvetlen kapcsolat</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>A szerver nem érhető el. Ellenőrizze a hálózati kapcsolatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Szinkronizálás másik szerverrel</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>A számítógép lemeze megtelt. Szabadítson fel helyet, és folytassa a feladatot.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>A mappa szinkronizálása</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Múlt hét</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Az adatok ellenőrzése…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Hibás felhasználónév vagy jelszó.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>A(z) [ProductName] telepítve lesz a számítógépre. A továbblépéshez kattintson a Tovább, a telepítőből való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>A(z) [ProductName] javítása</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Eltérő szinkronizálási irány</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Kapcsolat folytatása</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Csatlakozás a szerverhez</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Adja meg a szerver címét, és jelentkezzen be a fiókjával.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Jelöljön ki legalább egy mentendő mappát.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>A telepítő készen áll a(z) [ProductName] telepítésére.</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Mit szeretne tenni ezután?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Válassza ki, mit szeretne tenni.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>Az SSL-tanúsítványt nem sikerült ellenőrizni.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Kedd</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>A szerveren a szinkronizálási csomag túl régi. Kérje meg a rendszergazdát, hogy frissítse legalább a következő verzióra: %1.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Szinkronizálási feladat hozzáadása</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Nincs megjeleníthető esemény</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Adja meg a felhasználónevét.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>A megosztott mappa nincs csatolva a szerveren. Kérje meg a rendszergazdát, hogy csatolja.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Az ikonjelzések a fájlok állapotát mutatják. A zöld pipa azt jelenti, hogy a fájl naprakész.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Elfogadom a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>A telepített összetevők módosítása</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Fájlkiterjesztés</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Kapcsolat szüneteltetése</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>A szerver most másik SSL-tanúsítványt használ. Megbízik benne?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 órával ezelőtt</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Befejezve</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Számítógép neve</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Az ellenőrzőkód hibás vagy lejárt. Adjon meg új kódot.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>A telepítő futtatása megszakítva</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Adja meg a kizárandó fájlnevet</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Vannak nem szinkronizált fájlok</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>A rendszer nyelve</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Speciális beállítási varázsló</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Fekete-fehér tálcaikon használata</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Kapcsolat típusa</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>A kapcsolat instabil</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Biztosan kilép a(z) [ProductName] telepítőjéből, mielőtt az végezne?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>A(z) „%1” letöltése nem sikerült. Ellenőrizze a kapcsolatot a szerverrel, és próbálja újra.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Hétfő</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Itt kezdődik a biztonsági mentés</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Április</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>A(z) [ProductName] telepítője hiba miatt leállt, mielőtt végzett volna. A számítógépen nem történt változás. Ha újra szeretné próbálni, indítsa újra a telepítőt.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>A feladat szinkronizálási iránya nem felel meg a szerveren meglévő jogosultságának. Válasszon másik szinkronizálási irányt.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Nincs jogosultsága ennek a megosztott mappának a használatára. Kérjen hozzáférést a rendszergazdától.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Ez eltarthat néhány percig.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Speciális beállítás</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Használhatja a meglévő feladatot, vagy beállíthat egy újat egy másik mappában.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Ezt a mappát már egy másik feladat szinkronizálja. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Szinkronizálási állapot</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Ha továbblép, a meglévő feladat lecserélődik. Egyetlen fájl sem törlődik.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Kérjük, várjon</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Kulcsszó</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Kapcsolat</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Szűrők</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Ezen a számítógépen már van feladat ehhez a mappához.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Ettől</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Korábbi verziók tallózása</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Célhely</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>A Tarnwell indexeli ezt a mappát</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Ez a feladat már létezik</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>A feladatot nem sikerült létrehozni. Ellenőrizze a beállításokat, és próbálja újra.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Várakozik</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Mindig a szerveren lévő verzió megtartása</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Válasszon egy helyi mappát</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Szerda</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Szeptember</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>Legfeljebb %1 megosztott mappa szinkronizálható. Mielőtt újat ad hozzá, állítsa le valamelyiknek a szinkronizálását.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Tartalmazó mappa megnyitása</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Helyi mappa megnyitása</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Múlt hónap</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>A Tarnwell újabb verziója már telepítve van. Ennek a verziónak a telepítéséhez előbb távolítsa el az újabbat.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>A fájl korábbi verziói nem jeleníthetők meg. Ellenőrizze a kapcsolatot a szerverrel, és próbálja újra.</translation>
    </message>
</context>
</TS>
