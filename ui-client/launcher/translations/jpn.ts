<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>バックアップ中…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>連携を解除中…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>[ProductName]をコンピュータから削除します。</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Tarnwellを開く</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>バックアップ中：%1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>名前変更済み</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>大切なファイルを安全に、いつでも手元に</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>このコンピュータで削除したファイルをサーバに残す</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>もう一度同期</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>前回のアップロード：%1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>OrvaneLink経由の中継</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>サーバのSSL証明書を検証できませんでした。サーバのアドレスを確認するか、管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>入力した情報の一部が正しくありません。確認してからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>連携解除</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>不足または破損しているファイル、ショートカット、レジストリ項目を置き換えて、[ProductName]を修復します。</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>%1へようこそ</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>確認コードを入力</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>プロキシのアドレス</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>SSL接続を使用</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Orvane StationのアドレスまたはOrvaneLink ID</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>同期するフォルダを選択</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>各フォルダ、同期モード、フィルタを自分で選択します。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>トレイアイコン</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>「%1」のタスクの連携を解除しますか？すでにこのコンピュータとサーバにあるファイルは削除されません。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>フォルダ名</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同期モード</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwellの準備ができました。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>[ProductName]を修復する準備ができました。</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>このフォルダを同期から除外</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>フォルダのパス</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>すべてのイベント</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備中…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>接続するサーバの情報を入力してください。</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName]には個別に変更できる機能がありません。</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザ名</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>接続の種類を確認中…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同期の問題</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>同期データベースを読み込めません。Tarnwellを再起動してください。問題が解決しない場合は、タスクの連携を解除して、もう一度設定してください。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>サーバの割り当て容量を使い切りました。不要なファイルを削除するか、割り当て容量を増やすよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>ログイン時にTarnwellを起動</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>トレイアイコンを右クリックすると、タスクを一時停止したり、フォルダを開いたり、設定を変更したりできます。</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>ファイルサイズを制限しない場合は、0を入力してください。</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>バックアップするフォルダを選択</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近変更されたファイル</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>名前がピリオドで始まるファイルとフォルダを除外</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>信頼して続ける</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>OrvaneLink ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IPアドレス</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新しい共有フォルダ</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>[ProductName]のインストーラ</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>[ProductName]のインストーラの処理が完了しました</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>一部のファイルを同期できませんでした。Tarnwellを開いて詳細を確認してください。</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>この共有フォルダがあるディスクの容量がいっぱいです。別のディスクの共有フォルダを選択するか、空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Tarnwellのアップデート</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>このOrvaneLink IDは存在しません。IDを確認して、入力し直してください。</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>「%1」をダウンロードしました。</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>プロキシ設定</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Orvane Stationの名前</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>「%1」をリストから削除しますか？フォルダ自体は削除されません。</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>このユーザ名を確認できませんでした。サーバに接続できることを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバ</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダを開く</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>このコンピュータ上のフォルダを選択してください。フォルダの内容がサーバと同期されます。</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>フォルダが空ではありません</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>この名前と完全に一致するファイルは、どのフォルダにあっても同期されません。</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>安全な接続を確立できませんでした。サーバのSSL設定を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>インストーラが変更する必要のあるファイルを、次のプログラムが使用しています：</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>このOrvaneLink IDは無効です。英字、数字、ハイフンのみを使用してください。</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>1から65535までのポート番号を入力してください。</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>このOrvaneLink IDのOrvane Stationはオフラインです。電源が入っていて、インターネットに接続されていることを確認してください。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>ネットワーク設定</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>システムエラーのため、サーバが見つかりませんでした。もう一度試すか、代わりにサーバのアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>サーバの割り当て容量を使い切りました。</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>プロキシにはパスワードが必要</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>ほかを選択</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Orvane Stationを検索</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>2つの矢印は、ファイルが同期中であることを示します。赤いマークは、ファイルの確認が必要であることを示します。</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>StationOSのバージョン</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>「修復」をクリックすると、修復を開始します。選択し直す場合は「戻る」、インストーラを終了する場合は「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>設定が完了しました。</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>このフォルダを使用</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>デスクトップ通知を表示</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>TarnwellにはStationOS %1以降が必要です。Orvane Stationをアップデートして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>保存するバージョンの数は1以上にしてください。</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>[ProductName]を今すぐ起動</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>プロキシのユーザ名を入力してください。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>インストールの準備完了</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>結合すると、両方のフォルダの内容が1つにまとめられます。内容が異なるファイルは競合として処理されます。</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>了解</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>サーバ上のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>すべての操作をトレイから</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>このバージョンのTarnwellは古いため、このサーバでは使用できません。Tarnwellをバージョン%1以降にアップデートしてください。</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1を利用できます。アップデートするには、ここをクリックしてください。</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>コンピュータとサーバの両方でファイルが変更された場合の処理を選択してください。</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>[ProductName]を削除する準備ができました。</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>アップロード中…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>お使いのOrvane StationのOrvaneLink IDを入力してください。TarnwellはOrvaneLinkを経由して接続するため、外出先からでも利用できます。</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>このフォルダは表示できますが、変更内容はアップロードされません。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>サーバからこのコンピュータへの一方向同期</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>共有フォルダ「%1」を同期する準備ができました。</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>StationOSを開く</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>新しい言語を適用するには、Tarnwellを再起動してください。</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>ローカルフォルダ</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>最後に変更されたバージョンを残す</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>選択したフォルダはいずれも同期できません。ほかのフォルダを1つ以上選択してください。</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>「インストール」をクリックすると、インストールを開始します。選択内容を確認する場合は「戻る」、インストーラを終了する場合は「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwellはファイルの以前のバージョンを保存しているので、間違えてもすぐに元に戻せます。</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>別のサーバと連携</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>削除の準備完了</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>このフォルダにはすでにファイルがあります。それらのファイルも同期されます。このフォルダを使用しますか？</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>このインストーラでは、[ProductName]を修復したり、コンピュータから削除したりできます。続ける場合は「次へ」、インストーラを終了する場合は「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>除外ファイル</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>このフォルダの同期をオンにできませんでした。サーバでのアクセス権を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>このフォルダは、すでに同期しているフォルダと重複しています。そのフォルダの中にも上の階層にもないフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>除外されたファイルにアイコンオーバーレイを表示</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>プロキシのアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>「完了」をクリックしてインストーラを終了してください。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>同期するファイルの種類</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>最大ファイルサイズを%1から%2 MBまでの範囲で入力してください。</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>設定を適用中…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>タスクを追加</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>フォルダを変更</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>いいえ、結構です</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>選択同期を使用するには、まずサーバの同期パッケージをアップデートしてください。</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>除外するファイル名</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>バックアップ先</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>設定がすべて完了しました。Tarnwellがファイルのバックアップを開始しました。</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>設定をTarnwellに任せるか、自分で選択してください。</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>このファイルへのリンクを作成できません。ファイルがアップロードされていて、共有するためのアクセス権があることを確認してください。</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Tarnwellを終了</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>適切なフォルダが見つかりません</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選択同期</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>これらのフォルダを同期の対象に戻す</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>このファイルは、コンピュータとサーバの両方で変更されました。2つのバージョンを比較して、不要な方を削除してください。</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>続ける前に、使用許諾契約をよくお読みください。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>過去に戻る</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>サーバ上のあなたのアカウントは無効になっています。有効にするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>問題が発生しました。もう一度お試しください。問題が解決しない場合は、Tarnwellを再起動してください。</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>両方のバージョンを残し、古い方の名前を変更</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>ファイルのロック解除を待機中</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロード中…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>ローカルフォルダにファイルを入れると、Tarnwellがサーバにバックアップします。</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>フォルダ「%1」を作成できませんでした。アクセス権を確認するか、別の場所を選択してください。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>同期先にするサーバ上の共有フォルダを選択してください。</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>[ProductName]のインストーラは、完了する前にキャンセルされました。コンピュータは変更されていません。インストーラはいつでも再実行できます。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>次の設定が使用されます：</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>ダウンロード履歴</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>アクセス権なし</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>このタスクは停止しています。再開すると、ファイルが再び同期されます。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>スタンバイ</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>バックアップを完了できませんでした。サーバとの接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>ほかのチュートリアル</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>このフォルダは別の同期プログラムで使用されています。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>これらのプログラムを開いたままにする（再起動が必要）</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>このフォルダと同期するためのアクセス権がありません。アクセス権のあるフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwellはすでに起動しています。トレイから開くことができます。</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>これらのフィルタのいずれかに一致するファイルは同期されません。</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>タスクのオプション</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>サーバフォルダ</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>ローカルフォルダのあるディスクが接続されていません。ディスクを接続して、タスクを再開してください。</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>管理者としてサインインしていないため、Tarnwellはあなたのアカウントにのみインストールされます。続けますか？</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>コンピュータを自分のサーバにバックアップして同期します。</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwellを起動中…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>サーバのディスクの容量がいっぱいです。</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大ファイルサイズ</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>アップロード済み</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>準備がすべて整いました！</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>このフォルダは読み取り専用です。ファイルはダウンロードされますが、変更内容はアップロードされません。</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>サーバフォルダは、現在接続されていないリモートストレージにあります。再接続するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>同じ名前のフォルダがすでに存在します。2つのフォルダを結合しますか？</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName]はすでにインストールされています</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1項目</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>このフォルダはマウントポイントのため、同期できません。通常のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>サーバがあなたのIPアドレスをブロックしました。ブロックを解除するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Tarnwellをアップデートできませんでした。後でもう一度試すか、最新バージョンを自分でダウンロードしてください。</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>この共有フォルダのアクセス権は読み取り専用です。ファイルはダウンロードのみ行われます。このフォルダを使用しますか？</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>このバージョンのTarnwellはすでにインストールされています。もう一度インストールしますか？</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続中…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwellを正しく起動できませんでした。コンピュータを再起動してください。問題が解決しない場合は、Tarnwellをインストールし直してください。</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>新しい同期タスク</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>このコンピュータ上のフォルダを選択</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>[ProductName]の変更、修復、削除</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>ファイル名またはファイル拡張子を入力してください（例：*.tmp）</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同期方向</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテスト中…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>チュートリアルを表示</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>接続した後で、サーバのSSL証明書が変更されました。前の画面に戻り、接続し直して証明書を確認してください。</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>サーバのIPアドレスまたはドメイン名を入力してください。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>このアカウントは2段階認証で保護されています。確認コードを入力してください。</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>サーバでシステムエラーが発生しました。後でもう一度試すか、管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>設定を確認</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>ここでチェックを外したフォルダは、このコンピュータから削除されます。サーバには残ります。</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>サーバの同期パッケージが古すぎます。</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共有フォルダ</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>これらの設定は後ですべて変更できます。</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>ダウンロードはキャンセルされました。</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLinkがサーバに接続できませんでした。インターネット接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>最新の状態</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>これらの名前のファイルは、アップロードもダウンロードもされません。</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>このフォルダはネットワークドライブにあります。ほかの人が行った変更がすぐに検出されない場合があります。</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>このフォルダは同期できません。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>このフォルダのアクセス権は読み取り専用のため、バックアップできません。書き込みができるフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>始める前に、サーバの電源が入っていることを確認してください。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>失敗した回数が多すぎます。数分待ってから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>このコンピュータとサーバの連携を解除しますか？すべてのタスクが停止しますが、ファイルは削除されません。</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>このバックアップ用フォルダは、すでに別のタスクで使用されています。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>問題が発生しました</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>同期されたファイルにアイコンオーバーレイを表示</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>「%1」をリストから削除できませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>このバージョンのTarnwellは古すぎます。</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>同期はオンです</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>これらのプログラムを閉じて「再試行」をクリックするか、「無視」をクリックして続け、後でコンピュータを再起動してください。</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwellは、コンピュータ上のファイルをサーバにバックアップし、両方を同期された状態に保ちます。</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>使用中のファイル</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>バックアップする項目と、サーバ上の保存先を選択してください。</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>変更する必要のあるファイルの一部が使用中です。</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>イベントの種類</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>たった今更新：%1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>共有フォルダを読み込み中…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwellがローカルフォルダを作成し、すぐにバックアップを開始します。</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>再連携</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>このフォルダを同期の対象に戻す</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Tarnwellがサーバに接続する方法を選択してください。</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>サーバとの連携を確立中…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>アイコンをダブルクリックすると、Tarnwellの現在の動作を確認できます。</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwellはこの2つのフォルダを同期された状態に保ちます。</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Tarnwellを準備中…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>共有フォルダが見つかりません</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>ローカルフォルダのファイルは、これから自動的にサーバにバックアップされます。</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>サーバのSSL証明書が変更されました。新しい証明書を信頼する前に、管理者に確認してください。</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>タスクの設定中に接続が切れました。ネットワークを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>%1個のファイルをバックアップ中</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>サーバとの接続が切れました。Tarnwellはできるだけ早く再接続します。</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Tarnwellへようこそ。最初のバックアップを設定しましょう。</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>この共有フォルダの同期を停止しますか？すでにこのコンピュータにあるファイルは残ります。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>結合モード</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>ダウンロード済み</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>容量不足</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Tarnwellについて</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>サインイン失敗</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>サーバに接続しました。</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>%2個中%1個目のファイルをバックアップ中</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>接続を編集</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>このサーバでは、あなたのアカウントに割り当て容量が残っていません。このタスクを設定する前に、割り当て容量を増やすよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>「削除」をクリックすると、[ProductName]をコンピュータから削除します。選択し直す場合は「戻る」、インストーラを終了する場合は「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>使用許諾契約の条項に同意しません</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>設定についてヘルプが必要ですか？</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>同期するフォルダ</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>ダウンロード中：%1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>期間を指定</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>設定は変更されませんでした。</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>すべてのファイルの状態を確認</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>これらのプログラムを閉じ、後で開き直す</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>パスワードを確認中…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>タスクを管理</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>送信先：</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>保存されていない変更があります。変更を破棄しますか？</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>サーバのディスクの容量がいっぱいです。サーバの空き容量を増やして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>管理者が2段階認証を必須にしています。まず、ブラウザでサーバにサインインして、2段階認証をオンにしてください。</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>この共有フォルダの割り当て容量を使い切りました。不要なファイルを削除するか、別の共有フォルダを選択してください。</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>サーバとの連携を解除</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>バージョン%1にアップデート中…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>[ProductName]をお使いいただき、ありがとうございます。</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>次のプロキシ設定を使用</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>同期が予期せず停止しました。タスクを再開してください。問題が解決しない場合は、Tarnwellを再起動してください。</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>システムのプロキシを使用</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>すべて正しければ、「完了」をクリックしてタスクを作成してください。</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>同期するサブフォルダ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>[ProductName]に対して要求された変更を行っています。</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Tarnwellをどのように設定しますか？</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>OrvaneLink IDとは？</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>読み取り専用フォルダ</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>ローカルネットワークにOrvane Stationが見つかりませんでした。代わりにアドレスまたはOrvaneLink IDを入力してください。</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>[ProductName]のインストーラへようこそ</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>更新されたファイル</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>このコンピュータにTarnwellフォルダを作成</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>このコンピュータのディスクの容量がいっぱいです。</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL暗号化</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>ローカルフォルダが見つかりません。フォルダを元の場所に戻すか、タスクの連携を解除して、もう一度設定してください。</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>SSL証明書の警告</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>使用許諾契約</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>[ProductName]のどの機能をインストールするかを選択できます。</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>この共有フォルダはサーバ上にもう存在しません。別の共有フォルダを選択してください。</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>転送キュー</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>変更されたファイルを検索中…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前の%1ページ</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>画面のどこかをクリックすると始まります。</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>これらのフォルダを同期から除外</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>現在のステップ：</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>修復の準備完了</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>ロックされたファイル</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Tarnwellが認識できない応答をサーバから受信しました。両方が最新の状態であることを確認してください。</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>マウントポイント</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>次の%1ページ</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双方向同期</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwellをアップデート中…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>あなたと共有されたフォルダ</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>トレイアイコンのダブルクリック時の動作</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>このファイルをダウンロードできません。サーバ上で移動または削除された可能性があります。</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>OrvaneLink経由で接続中…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1日前</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>別のフォルダを選択</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>同期しないファイル</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>クイックセットアップ</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>別のフォルダをこのサーバと同期するには、タスクを追加してください。</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>エラーが発生しました</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>[ProductName]を削除</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>要求が無効なため、サーバに拒否されました。Tarnwellをアップデートして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>バージョンの不一致</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>ほかのフォルダも同期したい場合は、いつでもTarnwellでタスクを追加できます。</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>アップデートが必要</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLinkは現在利用できません。後でもう一度試すか、代わりにOrvane Stationのアドレスを入力してください。</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1分前</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>状態の詳細</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>リンクを共有</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>今すぐアップデート</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>サーバ上のフォルダと、それと同期するローカルフォルダを選択してください。</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>があなたと共有されました。</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>このコンピュータとサーバが連携されました。</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>サーバに接続できません。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>別のサーバと同期</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>このコンピュータのディスクの容量がいっぱいです。空き容量を増やして、タスクを再開してください。</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>このフォルダを同期</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>先週</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>データを確認中…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>ユーザ名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName]をコンピュータにインストールします。続ける場合は「次へ」、インストーラを終了する場合は「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>[ProductName]を修復</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>同期方向の不一致</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>接続を再開</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>サーバに接続</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>サーバのアドレスを入力し、アカウントでサインインしてください。</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>バックアップするフォルダを1つ以上選択してください。</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>[ProductName]をインストールする準備ができました。</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>次に何をしますか？</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>SSL証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>サーバの同期パッケージが古すぎます。バージョン%1以降にアップデートするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>同期タスクを追加</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>表示するイベントがありません</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>ユーザ名を入力してください。</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>共有フォルダがサーバにマウントされていません。マウントするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>アイコンオーバーレイで、ファイルの状態がわかります。緑のチェックマークは、ファイルが最新であることを示します。</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>使用許諾契約の条項に同意します</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>インストールされている機能を変更</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>ファイル拡張子</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>接続を一時停止</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>サーバで別のSSL証明書が使用されるようになりました。この証明書を信頼しますか？</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1時間前</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>完了済み</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>コンピュータ名</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>確認コードが間違っているか、有効期限が切れています。新しいコードを入力してください。</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>インストーラはキャンセルされました</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>除外するファイル名を入力</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>一部のファイルを同期できませんでした</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>システムの言語</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>詳細セットアップウィザード</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>白黒のトレイアイコンを使用</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>接続の種類</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>接続が不安定です</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>[ProductName]のインストーラの処理がまだ完了していません。インストーラを終了しますか？</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>「%1」をダウンロードできませんでした。サーバとの接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>バックアップはここから</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>エラーのため、[ProductName]のインストーラは完了する前に停止しました。コンピュータは変更されていません。もう一度試すには、インストーラを起動し直してください。</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>このタスクの同期方向は、サーバでのあなたのアクセス権と一致していません。別の同期方向を選択してください。</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>この共有フォルダを使用するためのアクセス権がありません。アクセス権を付与するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>これには数分かかることがあります。</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>詳細セットアップ</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>既存のタスクを使用するか、別のフォルダで新しいタスクを設定できます。</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>このフォルダは、すでに別のタスクで同期されています。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>同期の状態を表示</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>続けると、既存のタスクは置き換えられます。ファイルは削除されません。</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>お待ちください</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>フィルタ</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>このフォルダのタスクは、すでにこのコンピュータに存在します。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>以前のバージョンをブラウズ</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwellがこのフォルダの索引を作成中</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>このタスクはすでに存在します</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>タスクを作成できませんでした。設定を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>常にサーバ上のバージョンを残す</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>ローカルフォルダを選択</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>同期できる共有フォルダは%1個までです。別の共有フォルダを追加する前に、いずれかの同期を停止してください。</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>保存場所のフォルダを開く</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>ローカルフォルダを開く</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>先月</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>より新しいバージョンのTarnwellがすでにインストールされています。このバージョンをインストールするには、まず新しい方を削除してください。</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>このファイルの以前のバージョンを表示できません。サーバとの接続を確認して、もう一度お試しください。</translation>
    </message>
</context>
</TS>
