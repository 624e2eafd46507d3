<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Резервное копирование…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Отвязка…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Получение данных…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Удаляет [ProductName] с компьютера.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Открыть Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Резервное копирование: %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Переименовано</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Ваши файлы в сохранности и всегда под рукой</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Оставлять на сервере файлы, удаленные с этого компьютера</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Повторить синхронизацию</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Последняя выгрузка: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Ретрансляция через OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Июнь</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Не удалось проверить SSL-сертификат сервера. Проверьте адрес сервера или обратитесь за помощью к администратору.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Некоторые введенные данные недопустимы. Проверьте их и повторите попытку.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отвязать</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Восстанавливает [ProductName], заменяя отсутствующие или поврежденные файлы, ярлыки и записи реестра.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Добро пожаловать в %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Введите код подтверждения</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Адрес прокси</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Использовать SSL-подключение</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Адрес Orvane Station или ID OrvaneLink</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Выберите папки для синхронизации</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Локальная сеть</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Самостоятельно выберите папки, режим синхронизации и фильтры.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Август</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Тип файла</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Значок в трее</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Отвязать задание для «%1»? Файлы, которые уже есть на этом компьютере и на сервере, не будут удалены.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Режим синхронизации</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell готов к работе.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Выполнение</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>Программа установки готова восстановить [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Исключить эту папку из синхронизации</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Все события</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Введите данные сервера, к которому вы хотите подключиться.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>В [ProductName] нет компонентов, которые можно изменить по отдельности.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Определение типа подключения…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Сбой синхронизации</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Не удается прочитать базу данных синхронизации. Перезапустите Tarnwell. Если проблема не исчезнет, отвяжите задание и настройте его заново.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Ваша квота на сервере исчерпана. Удалите ненужные файлы или попросите администратора увеличить квоту.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Запускать Tarnwell при входе в систему</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Щелкните значок в трее правой кнопкой мыши, чтобы приостановить задание, открыть его папку или изменить его настройки.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Введите 0, если вы не хотите ограничивать размер файлов.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Выберите папки для резервного копирования</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Недавно измененные файлы</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Исключать файлы и папки, имена которых начинаются с точки</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Доверять и продолжить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>ID OrvaneLink</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP-адрес</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Новая общая папка</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Программа установки [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>Работа программы установки [ProductName] завершена</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Некоторые файлы не удалось синхронизировать. Откройте Tarnwell, чтобы узнать подробности.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>Диск, на котором находится эта общая папка, заполнен. Выберите общую папку на другом диске или освободите место.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Обновление Tarnwell</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Такого ID OrvaneLink не существует. Проверьте ID и введите его снова.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>Файл «%1» загружен.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Настройки прокси</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Имя Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Удалить папку «%1» из списка? Сама папка не будет удалена.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Не удалось проверить это имя пользователя. Убедитесь, что сервер доступен, и повторите попытку.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Сервер</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Выберите папку на этом компьютере. Ее содержимое будет синхронизироваться с сервером.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>Папка не пуста</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Файлы, имя которых в точности совпадает с указанным, никогда не синхронизируются, в какой бы папке они ни находились.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Не удалось установить защищенное подключение. Проверьте настройки SSL на сервере и повторите попытку.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Следующие программы используют файлы, которые программе установки нужно изменить:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Недопустимый ID OrvaneLink. Используйте только буквы, цифры и дефисы.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Введите номер порта от 1 до 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>Сервер Orvane Station с этим ID OrvaneLink не в сети. Убедитесь, что он включен и подключен к интернету.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управлять</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Настройки сети</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Не удалось найти сервер из-за системной ошибки. Повторите попытку или введите адрес сервера.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Ваша квота на сервере исчерпана.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>Для прокси требуется пароль</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Изменить выбор</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Найти Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Две стрелки означают, что файл синхронизируется. Красная метка означает, что файл требует вашего внимания.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>Версия StationOS</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Нажмите «Восстановить», чтобы начать. Нажмите «Назад», чтобы выбрать другое действие, или «Отменить», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>Настройка завершена.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Использовать эту папку</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Диапазон дат</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Для работы Tarnwell требуется StationOS версии %1 или новее. Обновите Orvane Station и повторите попытку.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>Количество хранимых версий должно быть не меньше 1.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Запустить [ProductName] сейчас</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Введите имя пользователя для прокси.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Все готово к установке</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>При объединении в одну папку собирается содержимое обеих. Различающиеся файлы обрабатываются как конфликты.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Понятно</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Выберите папку на сервере.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Все под рукой в трее</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Эта версия Tarnwell слишком старая для сервера. Обновите Tarnwell до версии %1 или более новой.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Доступна версия Tarnwell %1. Нажмите здесь, чтобы обновить.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Выберите, что делать, если файл был изменен и на компьютере, и на сервере.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>Программа установки готова удалить [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Выгрузка…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Введите ID OrvaneLink вашего сервера Orvane Station. Tarnwell подключится к нему через OrvaneLink, где бы вы ни находились.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Вы можете просматривать эту папку, но ваши изменения не будут выгружаться.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Односторонняя синхронизация с сервера на этот компьютер</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>Общая папка «%1» готова к синхронизации.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Открыть StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Перезапустите Tarnwell, чтобы применить новый язык.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Локальная папка</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Оставлять версию, измененную последней</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Ни одну из выбранных папок нельзя синхронизировать. Выберите хотя бы одну другую папку.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Нажмите «Установить», чтобы начать. Нажмите «Назад», чтобы проверить выбранные параметры, или «Отменить», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell хранит предыдущие версии ваших файлов, поэтому любую ошибку легко исправить.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Привязать еще один сервер</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Все готово к удалению</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>В этой папке уже есть файлы. Они тоже будут синхронизированы. Использовать эту папку?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>С помощью этой программы установки можно восстановить [ProductName] или удалить с компьютера. Нажмите «Далее», чтобы продолжить, или «Отменить», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Исключенные файлы</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Не удалось включить синхронизацию этой папки. Проверьте свои права доступа на сервере и повторите попытку.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Эта папка пересекается с папкой, которая уже синхронизируется. Выберите папку, которая не находится внутри нее и не содержит ее.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Показывать метки на значках исключенных файлов</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Введите адрес и порт прокси.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Нажмите «Завершить», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Синхронизируемые типы файлов</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Введите максимальный размер файла от %1 до %2 МБ.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Применение настроек…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Добавить задание</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Сменить папку</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Нет, спасибо</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Больше не показывать это сообщение</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Чтобы использовать выборочную синхронизацию, сначала обновите пакет синхронизации на сервере.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Имена исключенных файлов</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Место хранения копий</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Все настроено. Tarnwell начал резервное копирование ваших файлов.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Позвольте Tarnwell выбрать настройки за вас или задайте их самостоятельно.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Не удается создать ссылку на этот файл. Убедитесь, что файл выгружен на сервер и у вас есть право предоставлять к нему общий доступ.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Завершить Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Ноябрь</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Подходящая папка не найдена</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Снова синхронизировать эти папки</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Этот файл был изменен и на компьютере, и на сервере. Сравните две версии и удалите ненужную.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Декабрь</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Внимательно прочитайте лицензионное соглашение, прежде чем продолжить.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Напечатать</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Вернитесь в прошлое</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Май</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Ваша учетная запись на сервере отключена. Попросите администратора включить ее.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Что-то пошло не так. Повторите попытку. Если проблема не исчезнет, перезапустите Tarnwell.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Оставлять обе версии и переименовывать более старую</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Ожидание разблокировки файла</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Поместите файлы в локальную папку, и Tarnwell сам создаст их резервные копии на сервере.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Не удалось создать папку «%1». Проверьте свои права доступа или выберите другое место.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Выберите на сервере общую папку, с которой нужно выполнять синхронизацию.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Вы прервали работу программы установки [ProductName] до ее завершения. На компьютере ничего не изменилось. Программу установки можно снова запустить в любое время.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Март</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Будут использованы следующие настройки:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>История загрузок</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Нет прав доступа</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Это задание неактивно. Возобновите его, чтобы снова синхронизировать его файлы.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Не удалось завершить резервное копирование. Проверьте подключение к серверу и повторите попытку.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Другие руководства</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Эта папка используется другой программой синхронизации. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Только что</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Не закрывать эти программы (потребуется перезагрузка)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>У вас нет прав на синхронизацию с этой папкой. Выберите папку, к которой у вас есть доступ.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell уже запущен. Его можно открыть из трея.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Файлы, соответствующие хотя бы одному из этих фильтров, не синхронизируются.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Параметры задания</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Папка на сервере</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Февраль</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>Диск с локальной папкой не подключен. Подключите его и возобновите задание.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Вы вошли в систему не как администратор, поэтому Tarnwell будет установлен только для вашей учетной записи. Продолжить?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Выполняйте резервное копирование компьютера и синхронизируйте его с собственным сервером.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Запуск Tarnwell…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>Диск сервера заполнен.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Максимальный размер файла</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Выгружено</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Все готово!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Эта папка доступна вам только для чтения. Файлы будут загружаться, но ваши изменения не будут выгружаться.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>Папка на сервере расположена во внешнем хранилище, которое сейчас не подключено. Попросите администратора снова подключить его.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Папка с таким именем уже существует. Объединить эти две папки?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>Программа [ProductName] уже установлена</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Записей: %1</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Эта папка является точкой монтирования, поэтому ее нельзя синхронизировать. Выберите обычную папку.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>Сервер заблокировал ваш IP-адрес. Попросите администратора разблокировать его.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Не удалось обновить Tarnwell. Повторите попытку позже или загрузите последнюю версию самостоятельно.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>У вас есть право только на чтение этой общей папки. Файлы будут только загружаться. Использовать эту папку?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Эта версия Tarnwell уже установлена. Установить ее снова?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Не удалось правильно запустить Tarnwell. Перезагрузите компьютер. Если проблема не исчезнет, установите Tarnwell заново.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Новое задание синхронизации</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Не использовать прокси</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Выберите папку на этом компьютере</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Изменение, восстановление или удаление [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Введите имя или расширение файла, например *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Выключено</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Направление синхронизации</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Показать руководство</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>SSL-сертификат сервера изменился с момента подключения. Вернитесь назад и подключитесь снова, чтобы проверить его.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Введите IP-адрес или доменное имя сервера.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Учетная запись</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Эта учетная запись защищена двухэтапной аутентификацией. Введите код подтверждения.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>Сервер сообщил о системной ошибке. Повторите попытку позже или обратитесь за помощью к администратору.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Проверьте настройки</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Папки, с которых вы здесь снимете флажки, будут удалены с этого компьютера. На сервере они останутся.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>Пакет синхронизации на сервере слишком старый.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Общие папки</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Все эти настройки можно изменить позже.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Загрузка отменена.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>Не удалось связаться с сервером через OrvaneLink. Проверьте подключение к интернету и повторите попытку.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Синхронизировано</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Файлы с этими именами никогда не выгружаются и не загружаются.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Эта папка находится на сетевом диске. Изменения, которые вносят там другие пользователи, могут обнаруживаться не сразу.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Эту папку нельзя синхронизировать. Выберите другую папку.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Январь</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Первая страница</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Неактивно</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>У вас есть право только на чтение этой папки, поэтому сохранять в нее резервные копии нельзя. Выберите папку, доступную для записи.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Прежде чем начать, убедитесь, что сервер включен.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Слишком много неудачных попыток. Подождите несколько минут и повторите попытку.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Отвязать этот компьютер от сервера? Все задания остановятся, но файлы не будут удалены.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Эта папка для резервного копирования уже используется другим заданием. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Что-то пошло не так</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Показывать метки на значках синхронизируемых файлов</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>Не удалось удалить папку «%1» из списка. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Эта версия Tarnwell слишком старая.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Синхронизация включена</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Статус</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Закройте эти программы и нажмите «Повторить» либо нажмите «Пропустить», чтобы продолжить, а затем перезагрузите компьютер.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell создает на вашем сервере резервные копии файлов с компьютера и постоянно синхронизирует их.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Файлы используются</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Выберите, что копировать и где хранить резервные копии на сервере.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Некоторые файлы, которые нужно изменить, сейчас используются.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Тип события</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Только что обновлено: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Получение списка общих папок…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell создаст локальную папку и сразу начнет ее резервное копирование.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Привязать снова</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Снова синхронизировать эту папку</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Выберите, как Tarnwell будет подключаться к серверу.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Привязка к серверу…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Дважды щелкните значок, чтобы узнать, что Tarnwell делает прямо сейчас.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell постоянно синхронизирует эти две папки.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Начать сейчас</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Синхронизация</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Инициализация Tarnwell…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Общая папка не найдена</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Теперь резервное копирование файлов из локальной папки на сервер выполняется автоматически.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>SSL-сертификат сервера изменился. Прежде чем доверять новому сертификату, обратитесь к администратору.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>Подключение прервалось при настройке задания. Проверьте сеть и повторите попытку.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Резервное копирование файлов: %1</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Подключение к серверу прервалось. Tarnwell подключится снова, как только это станет возможно.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Добро пожаловать в Tarnwell. Давайте настроим ваше первое резервное копирование.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Прекратить синхронизацию этой общей папки? Файлы, которые уже есть на этом компьютере, останутся на нем.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Режим объединения</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Загружено</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Недостаточно места</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>О программе Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Ошибка входа</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Теперь вы подключены к серверу.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Резервное копирование: файл %1 из %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Изменить подключение</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>Квота вашей учетной записи на этом сервере исчерпана. Прежде чем настраивать это задание, попросите администратора увеличить квоту.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Нажмите «Удалить», чтобы удалить [ProductName] с компьютера. Нажмите «Назад», чтобы выбрать другое действие, или «Отменить», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Я не принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Нужна помощь с настройкой?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Синхронизируемые папки</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Загрузка: %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Свой диапазон</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Настройки не изменены.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Статус каждого файла на виду</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Октябрь</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Закрыть эти программы, а затем запустить их снова</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Проверка пароля…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Управлять заданиями</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Отправить в</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>У вас есть несохраненные изменения. Отказаться от них?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>Диск сервера заполнен. Освободите место на сервере и повторите попытку.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Ваш администратор требует двухэтапной аутентификации. Сначала войдите на сервер в браузере и включите ее.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Квота этой общей папки исчерпана. Удалите ненужные файлы или выберите другую общую папку.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Отвязать подключение</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Обновление до версии %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Спасибо, что используете [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Использовать эти настройки прокси</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>Синхронизация неожиданно остановилась. Возобновите задание. Если проблема не исчезнет, перезапустите Tarnwell.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Использовать системный прокси</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Если все верно, нажмите «Завершить», чтобы создать задание.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Синхронизируемые подпапки</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>Выполняются запрошенные изменения [ProductName].</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Как вы хотите настроить Tarnwell?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>Что такое ID OrvaneLink?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Папка только для чтения</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>В вашей локальной сети не найден сервер Orvane Station. Введите его адрес или ID OrvaneLink.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Вас приветствует программа установки [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Обновленные файлы</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Создать папку Tarnwell на этом компьютере</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>Диск этого компьютера заполнен.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Шифрование SSL</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Не удается найти локальную папку. Верните ее на прежнее место либо отвяжите задание и настройте его заново.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Предупреждение об SSL-сертификате</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Лицензионное соглашение</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Позволяет выбрать, какие компоненты [ProductName] будут установлены.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Этой общей папки больше нет на сервере. Выберите другую.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Очередь передачи</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Поиск измененных файлов…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>На %1 стр. назад</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Июль</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Щелкните в любом месте, чтобы начать.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Исключить эти папки из синхронизации</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Текущий шаг:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Все готово к восстановлению</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Заблокированный файл</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>Сервер прислал ответ, который Tarnwell не понимает. Убедитесь, что и Tarnwell, и сервер обновлены.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Точка монтирования</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>На %1 стр. вперед</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Двусторонняя синхронизация</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Идет обновление Tarnwell…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Вам предоставлен доступ к папке</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>При двойном щелчке значка в трее</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Этот файл не удается загрузить. Возможно, он был перемещен или удален на сервере.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Подключение через OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Последняя страница</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Никогда не синхронизировать эти файлы</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Быстрая настройка</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Добавьте задание, чтобы синхронизировать с этим сервером еще одну папку.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Произошла ошибка</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Удалить [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>Сервер отклонил запрос как недопустимый. Обновите Tarnwell и повторите попытку.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Версии не совпадают</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Чтобы синхронизировать другие папки, можно в любое время добавить задание в Tarnwell.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Создано</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Нужно обновление</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>Служба OrvaneLink сейчас недоступна. Повторите попытку позже или введите адрес вашего сервера Orvane Station.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Сведения о статусе</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Поделиться ссылкой</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Сбой</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Обновить сейчас</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Выберите папку на сервере и локальную папку, с которой она будет синхронизироваться.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>— вам предоставлен общий доступ.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Этот компьютер теперь привязан к серверу.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Прямое подключение</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Сервер недоступен. Проверьте подключение к сети и повторите попытку.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Синхронизировать с другим сервером</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>Диск этого компьютера заполнен. Освободите место и возобновите задание.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Синхронизировать эту папку</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Прошлая неделя</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Проверка данных…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Программа [ProductName] будет установлена на компьютер. Нажмите «Далее», чтобы продолжить, или «Отменить», чтобы выйти из программы установки.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Восстановить [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Неверное направление синхронизации</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Возобновить подключение</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Подключитесь к своему серверу</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Введите адрес сервера и войдите в свою учетную запись.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Выберите хотя бы одну папку для резервного копирования.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>Программа установки готова установить [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>Что вы хотите сделать дальше?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Выберите, что вы хотите сделать.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>Не удалось проверить SSL-сертификат.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>Пакет синхронизации на сервере слишком старый. Попросите администратора обновить его до версии %1 или более новой.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Добавить задание синхронизации</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Нет событий</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>Общая папка не смонтирована на сервере. Попросите администратора смонтировать ее.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Метки на значках показывают статус ваших файлов. Зеленая галочка означает, что файл синхронизирован.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Я принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Изменить набор установленных компонентов</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Расширение файла</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Приостановить подключение</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Только загрузка</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>Сервер теперь использует другой SSL-сертификат. Доверять ему?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Завершено</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>Код подтверждения неверен или его срок действия истек. Введите новый код.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Работа программы установки прервана</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Введите имя исключаемого файла</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Не все файлы синхронизированы</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Язык системы</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Мастер расширенной настройки</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Использовать черно-белый значок в трее</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Тип подключения</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Подключение нестабильно</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Выйти из программы установки [ProductName] до завершения ее работы?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>Не удалось загрузить файл «%1». Проверьте подключение к серверу и повторите попытку.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Резервное копирование начинается здесь</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Апрель</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Работа программы установки [ProductName] была прервана из-за ошибки. На компьютере ничего не изменилось. Чтобы повторить попытку, снова запустите программу установки.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>Направление синхронизации этого задания не соответствует вашим правам доступа на сервере. Выберите другое направление синхронизации.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>У вас нет прав на использование этой общей папки. Попросите администратора предоставить вам доступ.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Расширенная настройка</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Вы можете использовать существующее задание или настроить новое в другой папке.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Другое задание уже синхронизирует эту папку. Выберите другую.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Показать статус синхронизации</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Если вы продолжите, существующее задание будет заменено. Файлы не будут удалены.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Подождите</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Ключевое слово</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Фильтры</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>На этом компьютере уже есть задание для этой папки.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Задания синхронизации</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Просмотреть предыдущие версии</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Назначение</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell индексирует эту папку</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Это задание уже существует</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Не удалось создать задание. Проверьте настройки и повторите попытку.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>В очереди</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Всегда оставлять версию с сервера</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Выберите локальную папку</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Сентябрь</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>Максимальное число синхронизируемых общих папок: %1. Прекратите синхронизацию одной из них, прежде чем добавлять другую.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Открыть папку с файлом</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Открыть локальную папку</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Прошлый месяц</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Более новая версия Tarnwell уже установлена. Чтобы установить эту версию, сначала удалите более новую.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>Не удается показать предыдущие версии этого файла. Проверьте подключение к серверу и повторите попытку.</translation>
    </message>
</context>
</TS>
