<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在备份…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在解除关联…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>将 [ProductName] 从您的电脑中移除。</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>打开 Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>正在备份 %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重命名</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>您的文件，安全无忧，触手可及</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>在此电脑上删除文件时，保留服务器上的文件</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>重新尝试同步</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>上次上传：%1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>通过 OrvaneLink 中继</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>无法验证服务器的 SSL 证书。请检查服务器地址，或联系管理员寻求帮助。</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>您输入的部分信息无效。请检查后重试。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除关联</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>通过替换缺失或损坏的文件、快捷方式和注册表项来修复 [ProductName]。</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>欢迎使用 %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>输入验证码</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>代理地址</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>使用 SSL 连接</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Orvane Station 地址或 OrvaneLink ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>选择要同步的文件夹</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>自行选择每个文件夹、同步模式和过滤规则。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>托盘图标</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>要解除“%1”的任务关联吗？此电脑和服务器上已有的文件不会被删除。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell 已就绪。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>安装程序已准备好修复 [ProductName]。</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>从同步中排除此文件夹</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>请输入要连接的服务器的详细信息。</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] 没有可单独更改的功能。</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>正在检查连接类型…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同步异常</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>无法读取同步数据库。请重新启动 Tarnwell。如果问题仍然存在，请解除该任务的关联，然后重新配置。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>您在服务器上的配额已用完。请删除不再需要的文件，或联系管理员提高配额。</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>登录时启动 Tarnwell</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>右键单击托盘图标，即可暂停任务、打开任务的文件夹或更改任务的设置。</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>如果不想限制文件大小，请输入 0。</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>选择要备份的文件夹</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近更改的文件</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>排除名称以“.”开头的文件和文件夹</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>信任并继续</translation>
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
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共享文件夹</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>[ProductName] 安装程序</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>[ProductName] 安装程序已完成</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>部分文件无法同步。请打开 Tarnwell 查看详细信息。</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>此共享文件夹所在的磁盘已满。请选择其他磁盘上的共享文件夹，或释放一些空间。</translation>
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
        <translation>此 OrvaneLink ID 不存在。请检查该 ID，然后重新输入。</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>“%1”已下载。</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理设置</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Orvane Station 名称</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>要从列表中移除“%1”吗？文件夹本身不会被删除。</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>无法验证此用户名。请确保可以连接到服务器，然后重试。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>请选择此电脑上的一个文件夹。其中的内容将与服务器同步。</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>文件夹不为空</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>无论位于哪个文件夹，名称与此完全相同的文件都不会同步。</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>无法建立安全连接。请检查服务器的 SSL 设置，然后重试。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>以下程序正在使用安装程序需要更改的文件：</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>这不是有效的 OrvaneLink ID。请仅使用字母、数字和连字符。</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>请输入 1 到 65535 之间的端口号。</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>使用此 OrvaneLink ID 的 Orvane Station 已离线。请确保它已开机并连接到互联网。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>网络设置</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>由于系统错误，找不到服务器。请重试，或改为输入服务器地址。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>您在服务器上的配额已用完。</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>代理需要密码</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>选择其他</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>查找 Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>两个箭头表示文件正在同步。红色标记表示文件需要您处理。</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS 版本</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>单击“修复”开始。单击“上一步”重新选择，或单击“取消”退出安装程序。</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>配置已完成。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>使用此文件夹</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell 需要 StationOS %1 或更高版本。请更新您的 Orvane Station，然后重试。</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>要保留的版本数必须大于或等于 1。</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>立即启动 [ProductName]</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>请输入代理的用户名。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>互联网</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>已准备好安装</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>合并会将两个文件夹的内容合在一起。内容不同的文件将作为冲突处理。</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>请选择服务器上的文件夹。</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>一切尽在托盘</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>此版本的 Tarnwell 过旧，无法用于该服务器。请将 Tarnwell 更新到 %1 或更高版本。</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 现已推出。单击此处即可更新。</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>请选择文件在电脑和服务器上均被更改时的处理方式。</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>安装程序已准备好移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上传…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>请输入您的 Orvane Station 的 OrvaneLink ID。即使您出门在外，Tarnwell 也能通过 OrvaneLink 与其连接。</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>您可以查看此文件夹，但您所做的更改不会上传。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>从服务器到此电脑的单向同步</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>共享文件夹“%1”已可同步。</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>打开 StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>请重新启动 Tarnwell 以应用新语言。</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>本地文件夹</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>保留最后修改的版本</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>所选的文件夹均无法同步。请至少选择一个其他文件夹。</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>单击“安装”开始。单击“上一步”检查您的选择，或单击“取消”退出安装程序。</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell 会保留文件的历史版本，出了差错也能迅速撤销。</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>关联其他服务器</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>已准备好移除</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>此文件夹中已有文件，这些文件也会被同步。要使用此文件夹吗？</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>通过此安装程序，您可以修复 [ProductName]，或将其从电脑中移除。单击“下一步”继续，或单击“取消”退出安装程序。</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>排除的文件</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>无法为此文件夹开启同步。请检查您在服务器上的权限，然后重试。</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>此文件夹与已同步的文件夹重叠。请选择既不在该文件夹之内、也不包含该文件夹的其他文件夹。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>在排除的文件上显示图标角标</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>请输入代理的地址和端口。</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>单击“完成”退出安装程序。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>结束日期</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>要同步的文件类型</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>请输入 %1 到 %2 MB 之间的文件大小上限。</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>正在应用设置…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>添加任务</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>更改文件夹</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>不再显示此消息</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>要使用选择性同步，请先更新服务器上的同步软件包。</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>排除的文件名</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>备份目标位置</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>一切已配置就绪。Tarnwell 已开始备份您的文件。</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>让 Tarnwell 为您选择设置，或自行选择设置。</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>无法创建此文件的链接。请确保该文件已上传，并且您有权共享它。</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>退出 Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>找不到合适的文件夹</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>将这些文件夹重新纳入同步</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>此文件在电脑和服务器上均被更改。请比较两个版本，然后删除不需要的版本。</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>请先仔细阅读许可协议，然后再继续。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>回到过去</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>您在服务器上的账户已被禁用。请联系管理员启用该账户。</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>出现了问题。请重试。如果问题仍然存在，请重新启动 Tarnwell。</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>保留两个版本，并重命名较旧的版本</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>正在等待文件解锁</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>只需将文件放入本地文件夹，Tarnwell 就会为您将其备份到服务器。</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>无法创建文件夹“%1”。请检查您的权限，或选择其他位置。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>请选择服务器上要与之同步的共享文件夹。</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>您在 [ProductName] 安装程序完成之前取消了操作。未对您的电脑进行任何更改。您可以随时重新运行安装程序。</translation>
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
        <translation>将使用以下设置：</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下载历史记录</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>无权限</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>此任务处于非活动状态。请恢复该任务，以重新同步其文件。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>无法完成备份。请检查与服务器的连接，然后重试。</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>更多教程</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>此文件夹正由其他同步程序使用。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>让这些程序保持打开（需要重新启动电脑）</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>您没有与此文件夹同步的权限。请选择您有权访问的文件夹。</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell 已在运行。您可以从托盘中打开它。</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>与任一过滤规则匹配的文件都不会同步。</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>任务选项</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>服务器文件夹</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>本地文件夹所在的磁盘未连接。请连接该磁盘，然后恢复任务。</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>您未以管理员身份登录，因此将仅为您的账户安装 Tarnwell。要继续吗？</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>用您自己的服务器备份和同步电脑。</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell 正在启动…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>服务器的磁盘已满。</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>文件大小上限</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上传</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>大功告成！</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>您只能读取此文件夹。文件会被下载，但您所做的更改不会上传。</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>服务器文件夹位于当前未连接的远程存储上。请联系管理员重新连接该存储。</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>已存在同名文件夹。要合并这两个文件夹吗？</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] 已安装</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>此文件夹是挂载点，无法同步。请选择普通文件夹。</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>服务器已屏蔽您的 IP 地址。请联系管理员解除屏蔽。</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>无法更新 Tarnwell。请稍后重试，或自行下载最新版本。</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>您对此共享文件夹仅有只读权限，文件将只下载、不上传。要使用此文件夹吗？</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>此版本的 Tarnwell 已安装。要重新安装吗？</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell 无法正常启动。请重新启动电脑。如果问题仍然存在，请重新安装 Tarnwell。</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>新建同步任务</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>选择此电脑上的文件夹</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>更改、修复或移除 [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>输入文件名或文件扩展名，例如 *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
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
        <translation>正在测试连接…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>显示教程</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>自您连接以来，服务器的 SSL 证书已更改。请返回并重新连接，以检查该证书。</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>请输入服务器的 IP 地址或域名。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>此账户受两步验证保护。请输入验证码。</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>服务器报告了系统错误。请稍后重试，或联系管理员寻求帮助。</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>检查您的设置</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>您在此处取消勾选的文件夹将从此电脑中移除。它们仍会保留在服务器上。</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>服务器上的同步软件包过旧。</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>这些设置以后都可以更改。</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>下载已取消。</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink 无法连接到服务器。请检查您的互联网连接，然后重试。</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>使用这些名称的文件始终不会上传或下载。</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>此文件夹位于网络驱动器上。可能无法立即检测到他人在其中所做的更改。</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>此文件夹无法同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>您对此文件夹仅有只读权限，因此无法将任何内容备份到其中。请选择您可以写入的文件夹。</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>开始之前，请确保服务器已开机。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>尝试失败次数过多。请等待几分钟，然后重试。</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>要解除此电脑与服务器的关联吗？所有任务都会停止，但不会删除任何文件。</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>此备份文件夹已被其他任务使用。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>出现了问题</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>在已同步的文件上显示图标角标</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>无法从列表中移除“%1”。请稍后重试。</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>此版本的 Tarnwell 过旧。</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>同步已开启</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>请关闭这些程序并单击“重试”，或单击“忽略”继续，并在之后重新启动电脑。</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell 会将您电脑上的文件备份到服务器，并让两端保持同步。</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>文件正在使用中</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>请选择要备份的内容及其在服务器上的存储位置。</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>部分需要更改的文件正在使用中。</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>事件类型</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>刚刚更新：%1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>正在加载共享文件夹…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell 会创建一个本地文件夹，并立即开始备份。</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>重新关联</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>将此文件夹重新纳入同步</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修复</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>请选择 Tarnwell 连接服务器的方式。</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>正在关联到服务器…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>双击该图标，即可查看 Tarnwell 当前的工作状态。</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell 会让这两个文件夹保持同步。</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即开始</translation>
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
        <translation>找不到共享文件夹</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>现在，本地文件夹中的文件会自动备份到服务器。</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>服务器的 SSL 证书已更改。在信任新证书之前，请先向管理员核实。</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>配置任务时连接中断。请检查您的网络，然后重试。</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>正在备份 %1 个文件</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>与服务器的连接已断开。Tarnwell 会尽快重新连接。</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>欢迎使用 Tarnwell。现在就来配置您的第一个备份吧。</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>要停止同步此共享文件夹吗？此电脑上已有的文件会保留。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>合并模式</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下载</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>空间不足</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>关于 Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>登录失败</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>您现已连接到服务器。</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>正在备份第 %1 个文件，共 %2 个</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>您的账户在此服务器上已没有剩余配额。请先联系管理员提高配额，再配置此任务。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>单击“移除”将 [ProductName] 从您的电脑中移除。单击“上一步”重新选择，或单击“取消”退出安装程序。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>我不接受许可协议的条款</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>配置时需要帮助吗？</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>要同步的文件夹</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>正在下载 %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自定义范围</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>未更改任何设置。</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>每个文件的状态一目了然</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>关闭这些程序，并在之后重新启动它们</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>正在验证密码…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>管理任务</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>发送到</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>您有未保存的更改。要放弃这些更改吗？</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>服务器的磁盘已满。请释放服务器上的一些空间，然后重试。</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>您的管理员要求使用两步验证。请先在浏览器中登录服务器并开启两步验证。</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>此共享文件夹的配额已用完。请删除不再需要的文件，或选择其他共享文件夹。</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>解除服务器关联</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>正在更新到版本 %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>感谢您使用 [ProductName]。</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>使用以下代理设置</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>同步意外停止。请恢复任务。如果问题仍然存在，请重新启动 Tarnwell。</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>使用系统代理</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>如果一切无误，请单击“完成”创建任务。</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>要同步的子文件夹</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>正在对 [ProductName] 进行所请求的更改。</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>您想如何配置 Tarnwell？</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>什么是 OrvaneLink ID？</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>只读文件夹</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>在您的局域网中找不到 Orvane Station。请改为输入其地址或 OrvaneLink ID。</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>欢迎使用 [ProductName] 安装程序</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>已更新的文件</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>在此电脑上创建 Tarnwell 文件夹</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>此电脑的磁盘已满。</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL 加密</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>找不到本地文件夹。请将其移回原处，或解除该任务的关联，然后重新配置。</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL 证书警告</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>许可协议</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>用于选择要安装 [ProductName] 的哪些功能。</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>此共享文件夹在服务器上已不存在。请选择其他共享文件夹。</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>传输队列</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>正在查找已更改的文件…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>向前 %1 页</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>单击任意位置即可开始。</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>从同步中排除这些文件夹</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>当前步骤：</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>已准备好修复</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>已锁定的文件</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>服务器发送了 Tarnwell 无法识别的响应。请确保两端均为最新版本。</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>挂载点</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>向后 %1 页</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双向同步</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>正在更新 Tarnwell…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>共享给您的文件夹</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>双击托盘图标时</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>无法下载此文件。该文件可能已在服务器上被移动或删除。</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>正在通过 OrvaneLink 连接…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>永不同步这些文件</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速配置</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>添加一个任务，将其他文件夹与此服务器同步。</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>发生错误</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>移除 [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>请求无效，已被服务器拒绝。请更新 Tarnwell，然后重试。</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不匹配</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>要同步更多文件夹，您可以随时在 Tarnwell 中添加任务。</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
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
        <translation>OrvaneLink 当前不可用。请稍后重试，或改为输入您的 Orvane Station 的地址。</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>状态详情</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>通过链接共享</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>立即更新</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>请选择服务器上的文件夹，以及要与其同步的本地文件夹。</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>已共享给您。</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>此电脑与服务器现已关联。</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>无法连接到服务器。请检查您的网络连接，然后重试。</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>与其他服务器同步</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>此电脑的磁盘已满。请释放一些空间，然后恢复任务。</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>同步此文件夹</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上周</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>正在检查数据…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>用户名或密码不正确。</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] 将安装到您的电脑上。单击“下一步”继续，或单击“取消”退出安装程序。</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>修复 [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>同步方向不匹配</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>恢复连接</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>连接到您的服务器</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>请输入服务器地址，并使用您的账户登录。</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>请至少选择一个要备份的文件夹。</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>安装程序已准备好安装 [ProductName]。</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>接下来您想做什么？</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>请选择您要执行的操作。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>无法验证 SSL 证书。</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>服务器上的同步软件包过旧。请联系管理员将其更新到 %1 或更高版本。</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>添加同步任务</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>没有可显示的事件</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>请输入您的用户名。</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>此共享文件夹未在服务器上挂载。请联系管理员挂载该共享文件夹。</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>图标角标可显示文件的状态。绿色对勾表示文件已是最新。</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>我接受许可协议的条款</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>更改已安装的功能</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>文件扩展名</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>暂停连接</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>服务器现在使用了不同的 SSL 证书。要信任该证书吗？</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>电脑名称</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>验证码错误或已过期。请输入新的验证码。</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>安装程序已取消</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>输入要排除的文件名</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>部分文件未同步</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>系统语言</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>高级配置向导</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>使用黑白托盘图标</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>连接类型</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>连接不稳定</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>要在 [ProductName] 安装程序完成之前退出吗？</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>无法下载“%1”。请检查与服务器的连接，然后重试。</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>备份从这里开始</translation>
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
        <translation>[ProductName] 安装程序因出错而在完成之前停止。未对您的电脑进行任何更改。要重试，请重新启动安装程序。</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>此任务的同步方向与您在服务器上的权限不匹配。请选择其他同步方向。</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>您没有使用此共享文件夹的权限。请联系管理员获取访问权限。</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>这可能需要几分钟。</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>高级配置</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>您可以使用现有任务，或在其他文件夹中配置新任务。</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>其他任务已在同步此文件夹。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>显示同步状态</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>如果继续，现有任务将被替换。不会删除任何文件。</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>请稍候</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键词</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>过滤规则</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>此电脑上已有此文件夹的任务。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>From</source>
        <translation>开始日期</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>浏览历史版本</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell 正在为此文件夹建立索引</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>此任务已存在</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>无法创建任务。请检查您的设置，然后重试。</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>始终保留服务器上的版本</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>选择本地文件夹</translation>
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
        <translation>您最多可以同步 %1 个共享文件夹。请先停止同步其中一个，再添加其他共享文件夹。</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>打开所在文件夹</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>打开本地文件夹</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>已安装较新版本的 Tarnwell。要安装此版本，请先移除较新的版本。</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>无法显示此文件的历史版本。请检查与服务器的连接，然后重试。</translation>
    </message>
</context>
</TS>
