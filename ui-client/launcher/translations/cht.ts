<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>恢復</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在備份…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在解除連結…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>從您的電腦移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>開啟 Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>正在備份 %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重新命名</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>您的檔案，安全無虞，隨手可得</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>在這台電腦上刪除檔案時，保留伺服器上的檔案</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已刪除</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>再次嘗試同步</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>上次上傳：%1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>透過 OrvaneLink 中繼</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>無法驗證伺服器的 SSL 憑證。請檢查伺服器位址，或請系統管理員協助。</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>您輸入的部分資訊無效。請檢查後再試一次。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除連結</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>更換遺失或損毀的檔案、捷徑與登錄項目，以修復 [ProductName]。</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>歡迎使用 %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選取</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>輸入驗證碼</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>代理伺服器位址</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>使用 SSL 連線</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Orvane Station 位址或 OrvaneLink ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>選擇要同步的資料夾</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>自行選擇各個資料夾、同步模式與篩選條件。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>檔案類型</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>系統匣圖示</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>要解除「%1」的任務連結嗎？這台電腦與伺服器上現有的檔案不會被刪除。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell 已就緒。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>安裝程式已準備好修復 [ProductName]。</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>從同步中排除此資料夾</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>請輸入要連線的伺服器的詳細資訊。</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] 沒有可個別變更的功能。</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>正在檢查連線類型…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同步問題</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>無法讀取同步資料庫。請重新啟動 Tarnwell。如果問題持續發生，請解除任務連結，然後重新設定。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>您在伺服器上的配額已用完。請刪除不再需要的檔案，或請系統管理員提高配額。</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>略過</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>歡迎</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>登入時啟動 Tarnwell</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>在系統匣圖示上按一下滑鼠右鍵，即可暫停任務、開啟其資料夾或變更其設定。</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>如果不想限制檔案大小，請輸入 0。</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>選擇要備份的資料夾</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近變更的檔案</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>排除名稱以句點（.）開頭的檔案與資料夾</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>信任並繼續</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 位址</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共用資料夾</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>[ProductName] 安裝程式</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>[ProductName] 安裝程式已完成</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>部分檔案無法同步。請開啟 Tarnwell 查看詳細資訊。</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>此共用資料夾所在的磁碟已滿。請選擇其他磁碟上的共用資料夾，或釋出一些空間。</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Tarnwell 更新</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>此 OrvaneLink ID 不存在。請檢查 ID 後重新輸入。</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>「%1」已下載完成。</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理伺服器設定</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Orvane Station 名稱</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>要從清單中移除「%1」嗎？資料夾本身不會被刪除。</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>無法確認此使用者名稱。請確定可以連線到伺服器，然後再試一次。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>伺服器</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>請選擇這台電腦上的資料夾。其內容將會與伺服器同步。</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>資料夾不是空的</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>名稱與此完全相同的檔案，不論位於哪個資料夾，一律不會同步。</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>無法建立安全連線。請檢查伺服器的 SSL 設定，然後再試一次。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>下列程式正在使用安裝程式需要變更的檔案：</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>這不是有效的 OrvaneLink ID。請只使用英文字母、數字與連字號。</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>請輸入 1 到 65535 之間的連接埠號碼。</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>使用此 OrvaneLink ID 的 Orvane Station 已離線。請確定其電源已開啟，並已連上網際網路。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>網路設定</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>由於發生系統錯誤，找不到伺服器。請再試一次，或改為輸入伺服器的位址。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>您在伺服器上的配額已用完。</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>代理伺服器需要密碼</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>選擇其他項目</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>尋找 Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>兩個箭頭表示檔案正在同步。紅色標記表示檔案需要您處理。</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS 版本</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>按一下「修復」即可開始。按一下「上一步」重新選擇，或按一下「取消」結束安裝程式。</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>設定已完成。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>使用此資料夾</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>顯示桌面通知</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期範圍</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell 需要 StationOS %1 或以上版本。請更新您的 Orvane Station，然後再試一次。</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>要保留的版本數量必須為 1 或以上。</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>立即啟動 [ProductName]</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>請輸入代理伺服器的使用者名稱。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>網際網路</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>準備安裝</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>合併會將兩個資料夾的內容合而為一。內容不同的檔案會視為衝突處理。</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>請選擇伺服器上的資料夾。</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>一切盡在系統匣</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>此版本的 Tarnwell 太舊，無法搭配伺服器使用。請將 Tarnwell 更新至 %1 或以上版本。</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 已推出。按一下這裡即可更新。</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>請選擇檔案在這台電腦與伺服器上都有變更時的處理方式。</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>安裝程式已準備好移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上傳…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>請輸入您 Orvane Station 的 OrvaneLink ID。即使您外出，Tarnwell 也能透過 OrvaneLink 與其連線。</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>您可以檢視此資料夾，但您所做的變更不會上傳。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>從伺服器單向同步到這台電腦</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>共用資料夾「%1」已可開始同步。</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>開啟 StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>請重新啟動 Tarnwell 以套用新的語言。</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>本機資料夾</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>保留最後修改的版本</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>所選的資料夾都無法同步。請至少選擇一個其他資料夾。</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>按一下「安裝」即可開始。按一下「上一步」檢查您的選擇，或按一下「取消」結束安裝程式。</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell 會保留檔案的先前版本，出了差錯也能快速復原。</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>連結其他伺服器</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>準備移除</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>此資料夾已包含檔案，這些檔案也會一併同步。要使用此資料夾嗎？</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>您可以使用此安裝程式修復 [ProductName]，或將其從電腦中移除。按一下「下一步」繼續，或按一下「取消」結束安裝程式。</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>排除的檔案</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>無法開啟此資料夾的同步功能。請檢查您在伺服器上的權限，然後再試一次。</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>此資料夾與已同步的資料夾重疊。請選擇不在該資料夾之內、也不在其上層的資料夾。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安裝</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>在排除的檔案上顯示圖示標記</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>請輸入代理伺服器的位址與連接埠。</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>按一下「完成」結束安裝程式。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>要同步的檔案類型</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>請輸入介於 %1 到 %2 MB 之間的檔案大小上限。</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>正在套用設定…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>新增任務</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>變更資料夾</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，謝謝</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>不再顯示此訊息</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>若要使用選擇性同步，請先更新伺服器上的同步套件。</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>排除的檔案名稱</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>備份目的地</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>一切都已設定完成。Tarnwell 已開始備份您的檔案。</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>讓 Tarnwell 為您選擇設定，或由您自行選擇。</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>無法建立此檔案的連結。請確定檔案已上傳，且您擁有分享此檔案的權限。</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>結束 Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>找不到合適的資料夾</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選擇性同步</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>恢復同步這些資料夾</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>此檔案在這台電腦與伺服器上都有變更。請比較兩個版本，並刪除您不需要的版本。</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>請先詳閱授權合約，再繼續操作。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>讓檔案回到過去</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>您在伺服器上的帳號已停用。請聯絡系統管理員重新啟用該帳號。</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>發生問題。請再試一次。如果問題持續發生，請重新啟動 Tarnwell。</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>保留兩個版本，並重新命名較舊的版本</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>正在等待檔案解除鎖定</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>將檔案放入本機資料夾，Tarnwell 就會為您備份到伺服器。</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>無法建立資料夾「%1」。請檢查您的權限，或選擇其他位置。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>請選擇伺服器上要同步的共用資料夾。</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>您在完成前取消了 [ProductName] 安裝程式。未對您的電腦進行任何變更。您可以隨時再次執行安裝程式。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>將使用下列設定：</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下載記錄</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>沒有權限</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>此任務目前未執行。請恢復任務，以再次同步其檔案。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>無法完成備份。請檢查與伺服器的連線，然後再試一次。</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>更多教學</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>此資料夾已由其他同步程式使用。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>剛剛</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>不關閉這些程式（需要重新啟動電腦）</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>您沒有與此資料夾同步的權限。請選擇您可以存取的資料夾。</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell 已在執行中。您可以從系統匣開啟。</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>符合其中任一篩選條件的檔案不會同步。</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>任務選項</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>伺服器資料夾</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>本機資料夾所在的磁碟尚未連接。請連接磁碟，然後恢復任務。</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>您並非以系統管理員身分登入，因此 Tarnwell 只會為您的帳號安裝。要繼續嗎？</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>使用您自己的伺服器來備份及同步電腦。</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell 正在啟動…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>伺服器的磁碟已滿。</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>檔案大小上限</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上傳</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>一切就緒！</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>您只能讀取此資料夾。檔案會下載，但您所做的變更不會上傳。</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>伺服器資料夾位於目前未連線的遠端儲存空間。請聯絡系統管理員重新連線。</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>已有同名的資料夾。要合併這兩個資料夾嗎？</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] 已經安裝</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 個項目</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>此資料夾是掛載點，無法同步。請選擇一般資料夾。</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>伺服器已封鎖您的 IP 位址。請聯絡系統管理員解除封鎖。</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>無法更新 Tarnwell。請稍後再試，或自行下載最新版本。</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>您對此共用資料夾只有唯讀權限，檔案只會下載，不會上傳。要使用此資料夾嗎？</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>此版本的 Tarnwell 已經安裝。要重新安裝嗎？</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell 無法正常啟動。請重新啟動電腦。如果問題持續發生，請重新安裝 Tarnwell。</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>新的同步任務</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>選擇這台電腦上的資料夾</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>變更、修復或移除 [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>輸入檔案名稱或副檔名，例如 *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>顯示教學</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>伺服器的 SSL 憑證在您連線後已變更。請返回並重新連線，以檢查憑證。</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>請輸入伺服器的 IP 位址或網域名稱。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>帳號</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>此帳號受兩步驟驗證保護。請輸入驗證碼。</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>伺服器回報系統錯誤。請稍後再試，或請系統管理員協助。</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>檢查您的設定</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>您在此取消勾選的資料夾會從這台電腦移除，但仍會保留在伺服器上。</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>伺服器上的同步套件版本太舊。</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>您之後仍可變更所有設定。</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>下載已取消。</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink 無法連線到伺服器。請檢查您的網際網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新狀態</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>使用這些名稱的檔案一律不會上傳或下載。</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>此資料夾位於網路磁碟機。其他人在該處所做的變更可能無法立即偵測到。</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>此資料夾無法同步。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>未執行</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>您對此資料夾只有唯讀權限，因此無法將任何項目備份到此資料夾。請選擇您可以寫入的資料夾。</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>開始之前，請確定伺服器的電源已開啟。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>失敗次數過多。請等候幾分鐘，然後再試一次。</translation>
    </message>
    <message>
        <source>History</source>
        <translation>歷史記錄</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>要解除這台電腦與伺服器的連結嗎？所有任務都會停止，但不會刪除任何檔案。</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>此備份資料夾已由其他任務使用。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>發生問題</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>在已同步的檔案上顯示圖示標記</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>無法從清單中移除「%1」。請稍後再試。</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>此版本的 Tarnwell 太舊。</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>同步已開啟</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>請關閉這些程式並按一下「重試」，或按一下「略過」繼續，並在之後重新啟動電腦。</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell 會將您電腦上的檔案備份到您的伺服器，並讓兩邊保持同步。</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>檔案使用中</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>請選取要備份的內容，以及在伺服器上的儲存位置。</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>部分需要變更的檔案正在使用中。</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>事件類型</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>剛剛更新：%1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>正在載入共用資料夾…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell 會建立本機資料夾，並立即開始備份。</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>重新連結</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>恢復同步此資料夾</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>請選擇 Tarnwell 連線到伺服器的方式。</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>正在與伺服器連結…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>按兩下圖示，即可查看 Tarnwell 目前正在進行的作業。</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell 會讓這兩個資料夾保持同步。</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell 正在初始化…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>找不到共用資料夾</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>本機資料夾中的檔案現在會自動備份到伺服器。</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>伺服器的 SSL 憑證已變更。信任新的憑證之前，請先向系統管理員確認。</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>設定任務時連線中斷。請檢查您的網路，然後再試一次。</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>正在備份 %1 個檔案</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>與伺服器的連線已中斷。Tarnwell 會儘快重新連線。</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>歡迎使用 Tarnwell。讓我們來設定您的第一個備份。</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>要停止同步此共用資料夾嗎？這台電腦上現有的檔案會保留。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>合併模式</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下載</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>空間不足</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>關於 Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>登入失敗</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>您現已連線到伺服器。</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>正在備份第 %1 個檔案，共 %2 個</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>編輯連線</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>您的帳號在此伺服器上已無剩餘配額。設定此任務之前，請先聯絡系統管理員提高配額。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>按一下「移除」，將 [ProductName] 從您的電腦移除。按一下「上一步」重新選擇，或按一下「取消」結束安裝程式。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>我不接受授權合約的條款</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>設定時需要協助嗎？</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>要同步的資料夾</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>正在下載 %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自訂範圍</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>未變更任何設定。</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>查看每個檔案的狀態</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>關閉這些程式，並在之後重新啟動程式</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>正在驗證密碼…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>管理任務</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>傳送到</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>您有尚未儲存的變更。要捨棄這些變更嗎？</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>伺服器的磁碟已滿。請在伺服器上釋出一些空間，然後再試一次。</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>系統管理員要求使用兩步驟驗證。請先在瀏覽器中登入伺服器，並開啟兩步驟驗證。</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>此共用資料夾的配額已用完。請刪除不再需要的檔案，或選擇其他共用資料夾。</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>解除伺服器連結</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>正在更新至版本 %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>感謝您使用 [ProductName]。</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>使用這些代理伺服器設定</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>同步意外停止。請恢復任務。如果問題持續發生，請重新啟動 Tarnwell。</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>使用系統代理伺服器</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>如果一切正確，請按一下「完成」建立任務。</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>要同步的子資料夾</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>正在對 [ProductName] 進行所要求的變更。</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>您想要如何設定 Tarnwell？</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>什麼是 OrvaneLink ID？</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>唯讀資料夾</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>在您的區域網路中找不到 Orvane Station。請改為輸入其位址或 OrvaneLink ID。</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>歡迎使用 [ProductName] 安裝程式</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>已更新的檔案</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>在這台電腦上建立 Tarnwell 資料夾</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>這台電腦的磁碟已滿。</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL 加密</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>找不到本機資料夾。請將資料夾移回原處，或解除任務連結，然後重新設定。</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL 憑證警告</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>授權合約</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>讓您選擇要安裝 [ProductName] 的哪些功能。</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>此共用資料夾已不存在於伺服器上。請選擇其他共用資料夾。</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>傳輸佇列</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>正在尋找已變更的檔案…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>往前 %1 頁</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>按一下任意位置即可開始。</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>從同步中排除這些資料夾</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>目前步驟：</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>準備修復</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>鎖定的檔案</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Tarnwell 無法辨識伺服器傳回的回應。請確定兩者都已更新至最新版本。</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>掛載點</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>往後 %1 頁</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>雙向同步</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>正在更新 Tarnwell…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>有資料夾分享給您</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>按兩下系統匣圖示時</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>無法下載此檔案。檔案可能已在伺服器上移動或刪除。</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>正在透過 OrvaneLink 連線…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>一律不同步這些檔案</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速設定模式</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>新增任務，即可將其他資料夾與此伺服器同步。</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>發生錯誤</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>移除 [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>此要求無效，已遭伺服器拒絕。請更新 Tarnwell，然後再試一次。</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不符</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>若要同步更多資料夾，您可以隨時在 Tarnwell 中新增任務。</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>需要更新</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink 目前無法使用。請稍後再試，或改為輸入 Orvane Station 的位址。</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>狀態詳細資訊</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>分享連結</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>立即更新</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>請選擇伺服器上的資料夾，以及要與其同步的本機資料夾。</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>已分享給您。</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>這台電腦與伺服器現已連結。</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接連線</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>無法連線到伺服器。請檢查您的網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>與其他伺服器同步</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>這台電腦的磁碟已滿。請釋出一些空間，然後恢復任務。</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>同步此資料夾</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上週</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>正在檢查資料…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>使用者名稱或密碼不正確。</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] 將會安裝到您的電腦。按一下「下一步」繼續，或按一下「取消」結束安裝程式。</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>修復 [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>同步方向不符</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>恢復連線</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>連線到您的伺服器</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>請輸入伺服器位址，並以您的帳號登入。</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>請選取至少一個要備份的資料夾。</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>安裝程式已準備好安裝 [ProductName]。</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>接下來您想要做什麼？</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>請選擇您要進行的作業。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>無法驗證 SSL 憑證。</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>伺服器上的同步套件版本太舊。請聯絡系統管理員將其更新至 %1 或以上版本。</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>新增同步任務</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>沒有可顯示的事件</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>請輸入您的使用者名稱。</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>伺服器上尚未掛載此共用資料夾。請聯絡系統管理員加以掛載。</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>圖示標記會顯示檔案的狀態。綠色勾號表示檔案已是最新狀態。</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>我接受授權合約的條款</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>變更已安裝的功能</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>副檔名</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>暫停連線</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>僅下載</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>伺服器現在使用不同的 SSL 憑證。您要信任此憑證嗎？</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>電腦名稱</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>驗證碼錯誤或已過期。請輸入新的驗證碼。</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>安裝程式已取消</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>輸入要排除的檔案名稱</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>部分檔案未同步</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>系統語言</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>進階設定精靈</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>使用黑白的系統匣圖示</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>連線類型</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>連線不穩定</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>[ProductName] 安裝程式尚未完成，您要結束嗎？</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>無法下載「%1」。請檢查與伺服器的連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>備份由此開始</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>[ProductName] 安裝程式因發生錯誤而在完成前停止。未對您的電腦進行任何變更。若要再試一次，請重新啟動安裝程式。</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>此任務的同步方向與您在伺服器上的權限不符。請選擇其他同步方向。</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>您沒有使用此共用資料夾的權限。請聯絡系統管理員授予您存取權限。</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>這可能需要幾分鐘的時間。</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>進階設定模式</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>您可以使用現有的任務，或在其他資料夾中設定新的任務。</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>已有其他任務正在同步此資料夾。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>顯示同步狀態</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>如果繼續，現有的任務將會被取代。不會刪除任何檔案。</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>請稍候</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>關鍵字</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>篩選條件</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>這台電腦上已有此資料夾的任務。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任務</translation>
    </message>
    <message>
        <source>From</source>
        <translation>從</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>瀏覽先前版本</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell 正在為此資料夾建立索引</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>此任務已存在</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>無法建立任務。請檢查您的設定，然後再試一次。</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>一律保留伺服器上的版本</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>選擇本機資料夾</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>您最多可以同步 %1 個共用資料夾。若要新增其他資料夾，請先停止同步其中一個。</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>開啟所在資料夾</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>開啟本機資料夾</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>已安裝較新版本的 Tarnwell。若要安裝此版本，請先移除較新的版本。</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>無法顯示此檔案的先前版本。請檢查與伺服器的連線，然後再試一次。</translation>
    </message>
</context>
</TS>
