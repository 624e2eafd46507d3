<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Backing up...</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Unlinking...</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Removes [ProductName] from your computer.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Open Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Backing up %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renamed</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Your files, safe and always at hand</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Keep files on the server when they are deleted on this computer</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Try syncing again</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Last upload: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Relay through OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>June</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Some of the information you entered isn’t valid. Check it and try again.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Welcome to %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Enter the verification code</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy address</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Use an SSL connection</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Orvane Station address or OrvaneLink ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Choose folders to sync</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Local network</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Choose each folder, the sync mode, and the filters yourself.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>File type</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Tray icon</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Folder name</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Sync mode</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell is ready.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>The installer is ready to repair [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Exclude this folder from sync</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>All events</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Enter the details of the server you want to connect to.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] has no features that can be changed separately.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Username</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Checking the connection type...</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Sync problem</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Start Tarnwell upon user login</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Right-click the tray icon to pause a task, open its folder, or change its settings.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Enter 0 if you don’t want to limit the file size.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Choose folders to back up</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Recently changed files</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Exclude files and folders whose names start with a period</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Trust and continue</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>New shared folder</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>[ProductName] installer</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>The [ProductName] installer has finished</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Some files couldn’t be synced. Open Tarnwell to see the details.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Tarnwell update</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>“%1” has been downloaded.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy settings</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Orvane Station name</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Remove “%1” from the list? The folder itself won’t be deleted.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>This username couldn’t be checked. Make sure that the server is reachable and try again.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Choose a folder on this computer. Its contents will be synced with the server.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>The folder isn’t empty</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Files with exactly this name are never synced, whatever folder they are in.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>The following programs are using files that the installer needs to change:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Folders</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Enter a port number between 1 and 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Network settings</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>The server couldn’t be found because of a system error. Try again or enter its address instead.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Your quota on the server is used up.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>The proxy requires a password</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Choose another</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Find Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOS version</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Setup is complete.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Use this folder</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Date range</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>The number of versions to keep must be 1 or more.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Start [ProductName] now</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Enter the username for the proxy.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Ready to install</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Merging combines the contents of both folders. Files that differ are handled as conflicts.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Got it</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Choose a folder on the server.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Everything from the tray</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 is available. Click here to update.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Choose what happens when a file has been changed on both the computer and the server.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>The installer is ready to remove [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploading...</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>You can view this folder, but your changes won’t be uploaded.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>One-way sync from the server to this computer</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>The shared folder “%1” is ready to be synced.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Open StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Restart Tarnwell to apply the new language.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Local folder</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Keep the version that was modified last</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>None of the chosen folders can be synced. Choose at least one other folder.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Link another server</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Ready to remove</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>This folder already contains files. They will be synced as well. Do you want to use it?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Excluded files</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Install</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Show icon overlays on excluded files</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Enter the address and the port of the proxy.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Click Finish to exit the installer.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>File types to sync</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Enter a maximum file size between %1 and %2 MB.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Applying the settings...</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Add task</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Change folder</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, thanks</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Don’t show this message again</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>To use selective sync, update the sync package on the server first.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Excluded file names</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Backup destination</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Everything is set up. Tarnwell has started to back up your files.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Let Tarnwell choose the settings for you, or choose them yourself.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Quit Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>No suitable folder found</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selective sync</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Include these folders in sync again</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Read the license agreement carefully before you continue.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Go back in time</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Your account on the server has been disabled. Ask your administrator to enable it.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Something went wrong. Try again. If the problem continues, restart Tarnwell.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Keep both versions and rename the older one</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Waiting for the file to be unlocked</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Put files into the local folder, and Tarnwell backs them up to the server for you.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>The folder “%1” couldn’t be created. Check your permissions or choose another location.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Choose the shared folder on the server to sync with.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>March</source>
        <translation>March</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>These settings will be used:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Download history</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>No permission</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>This task is inactive. Resume it to sync its files again.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>The backup couldn’t be completed. Check the connection to the server and try again.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>More tutorials</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>This folder is used by another sync program. Choose a different folder.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just now</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Leave these programs open (requires a restart)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>You don’t have permission to sync with this folder. Choose a folder that you have access to.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell is already running. You can open it from the tray.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Files that match one of these filters aren’t synced.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Task options</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Server folder</translation>
    </message>
    <message>
        <source>February</source>
        <translation>February</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>The disk with the local folder isn’t connected. Connect it and resume the task.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Back up and sync your computer with your own server.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell is starting...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>The disk of the server is full.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Maximum file size</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploaded</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>You’re all set!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>A folder with this name already exists. Do you want to merge the two folders?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] is already installed</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 item(s)</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>This folder is a mount point and can’t be synced. Choose a regular folder.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>The server has blocked your IP address. Ask your administrator to unblock it.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>This version of Tarnwell is already installed. Do you want to install it again?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>New sync task</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Don’t use a proxy</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Choose a folder on this computer</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Change, repair, or remove [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Enter a file name or a file extension, for example *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sync direction</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Show the tutorial</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Enter the IP address or the domain name of the server.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>This account is protected by 2-step verification. Enter the verification code.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>The server reported a system error. Try again later or ask your administrator for help.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Check your settings</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Folders that you deselect here will be removed from this computer. They stay on the server.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>The sync package on the server is too old.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Shared folders</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>You can change all of these settings later.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>The download was canceled.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up to date</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Files with these names are never uploaded or downloaded.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>This folder is on a network drive. Changes that others make there may not be noticed right away.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>This folder can’t be synced. Choose a different folder.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>January</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Before you begin, make sure that your server is turned on.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Too many failed attempts. Wait a few minutes and try again.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>This backup folder is already used by another task. Choose a different folder.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Something went wrong</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Show icon overlays on synced files</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>“%1” couldn’t be removed from the list. Try again later.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>This version of Tarnwell is too old.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Sync is on</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell backs up the files on your computer to your server and keeps both in sync.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Files in use</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Select what to back up and where to store it on the server.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Some files that need to be changed are in use.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Event type</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Just updated: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Loading the shared folders...</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell creates a local folder and starts to back it up right away.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Link again</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Include this folder in sync again</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Repair</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Choose how Tarnwell connects to the server.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Linking to the server...</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Double-click the icon to see what Tarnwell is doing right now.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell keeps these two folders in sync.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start now</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sync</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwell is initializing...</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Shared folder not found</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Files in your local folder are now backed up to the server automatically.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>The connection was lost while the task was being set up. Check your network and try again.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Backing up %1 file(s)</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Welcome to Tarnwell. Let’s set up your first backup.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Stop syncing this shared folder? The files already on this computer will be kept.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Merge mode</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloaded</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Not enough space</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>About Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Sign-in failed</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>You are now connected to the server.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Backing up file %1 of %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edit connection</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>I do not accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Need help with the setup?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Folders to sync</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Downloading %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Custom range</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>No settings were changed.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>See the status of every file</translation>
    </message>
    <message>
        <source>October</source>
        <translation>October</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Close these programs and restart them afterward</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Checking the password...</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Manage tasks</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send to</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>You have unsaved changes. Do you want to discard them?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>The disk of the server is full. Free up some space on the server and try again.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Unlink connection</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Updating to version %1...</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Thank you for using [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Use these proxy settings</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Use the system proxy</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>If everything is correct, click Finish to create the task.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Subfolders to sync</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>The requested changes to [ProductName] are being made.</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>How do you want to set up Tarnwell?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>What is an OrvaneLink ID?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Read-only folder</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Welcome to the [ProductName] installer</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Updated files</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Create a Tarnwell folder on this computer</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>The disk of this computer is full.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL encryption</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL certificate warning</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>License agreement</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Lets you choose which features of [ProductName] are installed.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>This shared folder no longer exists on the server. Choose a different one.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Transfer queue</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Looking for changed files...</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Previous %1 pages</translation>
    </message>
    <message>
        <source>July</source>
        <translation>July</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Click anywhere to begin.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Exclude these folders from sync</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Current step:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Ready to repair</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Locked file</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Mount point</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Next %1 pages</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Two-way sync</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell is being updated...</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Folder shared with you</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>When the tray icon is double-clicked</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>This file can’t be downloaded. It may have been moved or deleted on the server.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Connecting through OrvaneLink...</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 day(s) ago</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choose another folder</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Never sync these files</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Quick setup</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Add a task to sync another folder with this server.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>An error occurred</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Remove [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>The server rejected the request as invalid. Update Tarnwell and try again.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Version mismatch</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>To sync more folders, you can add a task in Tarnwell at any time.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Update required</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 minute(s) ago</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Status details</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Share a link</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Update now</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Choose a folder on the server and the local folder to sync it with.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>has been shared with you.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>This computer and the server are now linked.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direct connection</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>The server can’t be reached. Check your network connection and try again.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Sync with another server</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>The disk of this computer is full. Free up some space and resume the task.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Sync this folder</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Last week</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Checking the data...</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Incorrect username or password.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Repair [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Sync direction mismatch</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Resume connection</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connect to your server</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Enter the server address and sign in with your account.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Select at least one folder to back up.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>The installer is ready to install [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>What do you want to do next?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Choose what you want to do.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>The SSL certificate couldn’t be verified.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Add a sync task</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>No events to show</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Enter your username.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Icon overlays show the status of your files. A green check mark means that a file is up to date.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>I accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Change the installed features</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>File extension</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pause connection</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Download only</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>The server now uses a different SSL certificate. Do you want to trust it?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 hour(s) ago</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completed</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computer name</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>The verification code is wrong or has expired. Enter a new code.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>The installer was canceled</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Enter a file name to exclude</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Some files weren’t synced</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>System language</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Advanced setup wizard</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Use a black-and-white tray icon</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Connection type</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>The connection is unstable</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Do you want to exit the [ProductName] installer before it has finished?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>“%1” couldn’t be downloaded. Check the connection to the server and try again.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Your backup starts here</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>You don’t have permission to use this shared folder. Ask your administrator for access.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>This may take a few minutes.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Advanced setup</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>You can use the existing task, or set up a new one in a different folder.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Another task already syncs this folder. Choose a different folder.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Show sync status</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>If you continue, the existing task will be replaced. No files will be deleted.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Please wait</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Keyword</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filters</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>A task for this folder already exists on this computer.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sync tasks</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Browse earlier versions</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell is indexing this folder</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>This task already exists</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>The task couldn’t be created. Check your settings and try again.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Always keep the version on the server</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Choose a local folder</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Open containing folder</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Open local folder</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Last month</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</translation>
    </message>
</context>
</TS>
