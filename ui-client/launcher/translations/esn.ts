<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Haciendo copia de seguridad…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Quita [ProductName] de su equipo.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Abrir Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>Haciendo copia de seguridad de %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renombrado</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Sus archivos, seguros y siempre a mano</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Conservar los archivos en el servidor cuando se eliminen de este equipo</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Volver a sincronizar</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Última subida: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Retransmisión mediante OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junio</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>No se ha podido verificar el certificado SSL del servidor. Compruebe la dirección del servidor o pida ayuda a su administrador.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Algunos de los datos introducidos no son válidos. Compruébelos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Repara [ProductName] reemplazando los archivos, accesos directos y entradas del Registro que falten o estén dañados.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Le damos la bienvenida a %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Introduzca el código de verificación</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Dirección del proxy</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Usar una conexión SSL</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Dirección de Orvane Station o ID de OrvaneLink</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Elija carpetas para sincronizar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Elija usted cada carpeta, el modo de sincronización y los filtros.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Icono de la bandeja</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>¿Desea desvincular la tarea de «%1»? Los archivos que ya están en este equipo y en el servidor no se eliminarán.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nombre de carpeta</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>Tarnwell está listo.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>El instalador está listo para reparar [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Excluir esta carpeta de la sincronización</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Introduzca los datos del servidor al que desea conectarse.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] no tiene características que se puedan cambiar por separado.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Comprobando el tipo de conexión…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Error al sincronizar</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>No se puede leer la base de datos de sincronización. Reinicie Tarnwell. Si el problema continúa, desvincule la tarea y configúrela de nuevo.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>Se ha agotado su cuota en el servidor. Elimine los archivos que ya no necesite o pida a su administrador una cuota mayor.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Le damos la bienvenida</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Abrir Tarnwell al iniciar sesión</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Haga clic con el botón derecho en el icono de la bandeja para pausar una tarea, abrir su carpeta o cambiar sus ajustes.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Introduzca 0 si no desea limitar el tamaño de los archivos.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Elija de qué carpetas hacer copia de seguridad</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Archivos modificados recientemente</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Excluir los archivos y carpetas cuyo nombre empiece por un punto</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Confiar y continuar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>ID de OrvaneLink</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Instalador de [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>El instalador de [ProductName] ha terminado</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>No se han podido sincronizar algunos archivos. Abra Tarnwell para ver los detalles.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>El disco que contiene esta carpeta compartida está lleno. Elija una carpeta compartida de otro disco o libere espacio.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Actualización de Tarnwell</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Este ID de OrvaneLink no existe. Compruebe el ID e introdúzcalo de nuevo.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>Se ha descargado «%1».</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ajustes del proxy</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Nombre de Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>¿Desea quitar «%1» de la lista? La carpeta en sí no se eliminará.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>No se ha podido comprobar este nombre de usuario. Asegúrese de que se puede acceder al servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Elija una carpeta de este equipo. Su contenido se sincronizará con el servidor.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Los archivos que se llamen exactamente así no se sincronizarán nunca, sea cual sea la carpeta en la que estén.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>No se ha podido establecer una conexión segura. Compruebe los ajustes de SSL del servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Los siguientes programas están usando archivos que el instalador debe cambiar:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Este no es un ID de OrvaneLink válido. Use solo letras, cifras y guiones.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Introduzca un número de puerto entre 1 y 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>El Orvane Station con este ID de OrvaneLink está sin conexión. Asegúrese de que está encendido y conectado a internet.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestionar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ajustes de red</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>No se ha podido encontrar el servidor debido a un error del sistema. Inténtelo de nuevo o introduzca la dirección del servidor.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Se ha agotado su cuota en el servidor.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>El proxy requiere una contraseña</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Elegir otra opción</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Buscar Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Dos flechas indican que el archivo se está sincronizando. Una marca roja indica que requiere su atención.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>Versión de StationOS</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Haga clic en «Reparar» para empezar. Haga clic en «Atrás» para elegir otra opción o en «Cancelar» para salir del instalador.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>La configuración ha terminado.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Usar esta carpeta</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones de escritorio</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de fechas</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>Tarnwell necesita StationOS %1 o posterior. Actualice su Orvane Station e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>El número de versiones que se conservan debe ser 1 o más.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Iniciar [ProductName] ahora</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Introduzca el nombre de usuario del proxy.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Todo listo para instalar</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Al combinar se reúne el contenido de ambas carpetas. Los archivos que difieren se tratan como conflictos.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Elija una carpeta del servidor.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Todo desde la bandeja</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Esta versión de Tarnwell es demasiado antigua para el servidor. Actualice Tarnwell a la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>Tarnwell %1 está disponible. Haga clic aquí para actualizar.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Elija qué ocurre cuando un archivo se ha modificado tanto en el equipo como en el servidor.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>El instalador está listo para quitar [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Subiendo…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Introduzca el ID de OrvaneLink de su Orvane Station. Tarnwell se conecta con él mediante OrvaneLink, incluso cuando usted está fuera.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Puede ver esta carpeta, pero sus cambios no se subirán.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Sincronización unidireccional del servidor a este equipo</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>La carpeta compartida «%1» está lista para sincronizarse.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Abrir StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Reinicie Tarnwell para aplicar el nuevo idioma.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Carpeta local</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Conservar la versión modificada más recientemente</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>No se puede sincronizar ninguna de las carpetas elegidas. Elija al menos otra carpeta.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Haga clic en «Instalar» para empezar. Haga clic en «Atrás» para revisar lo elegido o en «Cancelar» para salir del instalador.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>Tarnwell conserva versiones anteriores de sus archivos, así que un error se deshace enseguida.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Vincular otro servidor</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Todo listo para quitar el programa</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Esta carpeta ya contiene archivos, que también se sincronizarán. ¿Desea usarla?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Con este instalador puede reparar [ProductName] o quitar el programa de su equipo. Haga clic en «Siguiente» para continuar o en «Cancelar» para salir del instalador.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Archivos excluidos</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>No se ha podido activar la sincronización de esta carpeta. Compruebe sus permisos en el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Esta carpeta coincide en parte con otra que ya se sincroniza. Elija una carpeta que no esté dentro de ella ni la contenga.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Show icon overlays on excluded files</source>
        <translation>Mostrar iconos superpuestos en los archivos excluidos</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Introduzca la dirección y el puerto del proxy.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Haga clic en «Finalizar» para salir del instalador.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Tipos de archivo para sincronizar</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Introduzca un tamaño máximo de archivo entre %1 y %2 MB.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>Aplicando los ajustes…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Añadir tarea</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambiar carpeta</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, gracias</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Para usar la sincronización selectiva, actualice primero el paquete de sincronización del servidor.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nombres de archivo excluidos</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destino de la copia</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Todo está configurado. Tarnwell ha empezado a hacer copia de seguridad de sus archivos.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Deje que Tarnwell elija los ajustes o elíjalos usted.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>No se puede crear un enlace a este archivo. Asegúrese de que el archivo se ha subido y de que tiene permiso para compartirlo.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Salir de Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Noviembre</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>No hay ninguna carpeta adecuada</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Volver a incluir estas carpetas en la sincronización</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Este archivo se ha modificado tanto en el equipo como en el servidor. Compare las dos versiones y elimine la que no necesite.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Diciembre</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Lea atentamente el contrato de licencia antes de continuar.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Vuelva atrás en el tiempo</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mayo</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>Su cuenta en el servidor se ha desactivado. Pida a su administrador que la active.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Se ha producido un problema. Inténtelo de nuevo. Si el problema continúa, reinicie Tarnwell.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Conservar ambas versiones y renombrar la más antigua</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>Esperando a que se desbloquee el archivo</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Ponga archivos en la carpeta local y Tarnwell hará por usted la copia de seguridad en el servidor.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>No se ha podido crear la carpeta «%1». Compruebe sus permisos o elija otra ubicación.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Elija la carpeta compartida del servidor con la que desea sincronizar.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Ha cancelado el instalador de [ProductName] antes de que terminara. No se han hecho cambios en su equipo. Puede volver a ejecutar el instalador en cualquier momento.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Marzo</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Se usarán estos ajustes:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sin permiso</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Esta tarea está inactiva. Reanúdela para volver a sincronizar sus archivos.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En reposo</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>No se ha podido completar la copia de seguridad. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Más tutoriales</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Otro programa de sincronización usa esta carpeta. Elija una carpeta distinta.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Hace un momento</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Dejar abiertos estos programas (requiere reiniciar)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>No tiene permiso para sincronizar con esta carpeta. Elija una carpeta a la que tenga acceso.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>Tarnwell ya se está ejecutando. Puede abrirlo desde el icono de la bandeja.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Los archivos que coinciden con alguno de estos filtros no se sincronizan.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Opciones de la tarea</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Carpeta del servidor</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Febrero</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>El disco que contiene la carpeta local no está conectado. Conéctelo y reanude la tarea.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>No ha iniciado sesión como administrador, así que Tarnwell se instalará solo para su cuenta. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Haga copias de seguridad de su equipo y sincronícelo con su propio servidor.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>Tarnwell se está iniciando…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>El disco del servidor está lleno.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamaño máximo de archivo</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Subido</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>¡Todo listo!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Solo puede leer esta carpeta. Los archivos se descargarán, pero sus cambios no se subirán.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>La carpeta del servidor está en un almacenamiento remoto que ahora no está conectado. Pida a su administrador que vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Ya existe una carpeta con este nombre. ¿Desea combinar las dos carpetas?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] ya está en este equipo</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>Elementos: %1</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Esta carpeta es un punto de montaje y no se puede sincronizar. Elija una carpeta normal.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>El servidor ha bloqueado su dirección IP. Pida a su administrador que la desbloquee.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>No se ha podido actualizar Tarnwell. Inténtelo de nuevo más tarde o descargue manualmente la versión más reciente.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Solo tiene permiso de lectura en esta carpeta compartida. Los archivos únicamente se descargarán. ¿Desea usarla?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Esta versión de Tarnwell ya está instalada. ¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Tarnwell no se ha podido iniciar correctamente. Reinicie su equipo. Si el problema continúa, instale Tarnwell de nuevo.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nueva tarea de sincronización</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>No usar proxy</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Elija una carpeta de este equipo</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Cambiar, reparar o quitar [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Introduzca un nombre o una extensión de archivo, por ejemplo, *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sentido de sincronización</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar el tutorial</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>El certificado SSL del servidor ha cambiado desde que se conectó. Vuelva atrás y conéctese de nuevo para comprobarlo.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Introduzca la dirección IP o el nombre de dominio del servidor.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Esta cuenta está protegida con la verificación en dos pasos. Introduzca el código de verificación.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>El servidor ha comunicado un error del sistema. Inténtelo de nuevo más tarde o pida ayuda a su administrador.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Revise sus ajustes</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>Las carpetas que desmarque aquí se quitarán de este equipo, pero permanecerán en el servidor.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>El paquete de sincronización del servidor es demasiado antiguo.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Podrá cambiar todos estos ajustes más adelante.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Se ha cancelado la descarga.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>OrvaneLink no ha podido acceder al servidor. Compruebe su conexión a internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Al día</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Los archivos con estos nombres no se suben ni se descargan nunca.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Esta carpeta está en una unidad de red. Es posible que los cambios que otras personas hagan en ella no se detecten de inmediato.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Esta carpeta no se puede sincronizar. Elija una carpeta distinta.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Enero</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Solo tiene permiso de lectura en esta carpeta, así que no se puede hacer ninguna copia de seguridad en ella. Elija una carpeta en la que pueda escribir.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Antes de empezar, asegúrese de que su servidor está encendido.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Demasiados intentos fallidos. Espere unos minutos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>¿Desea desvincular este equipo del servidor? Todas las tareas se detendrán, pero no se eliminará ningún archivo.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Otra tarea ya usa esta carpeta de copia de seguridad. Elija una carpeta distinta.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Se ha producido un problema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Mostrar iconos superpuestos en los archivos sincronizados</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>No se ha podido quitar «%1» de la lista. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Esta versión de Tarnwell es demasiado antigua.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Sincronización activada</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Cierre estos programas y haga clic en «Reintentar», o haga clic en «Omitir» para continuar y reinicie después su equipo.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>Tarnwell hace copias de seguridad de los archivos de su equipo en su servidor y mantiene ambos sincronizados.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Archivos en uso</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Seleccione de qué hacer copia de seguridad y dónde guardarla en el servidor.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Algunos archivos que deben cambiarse están en uso.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Tipo de evento</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Recién actualizado: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>Cargando las carpetas compartidas…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>Tarnwell crea una carpeta local y empieza enseguida a hacer copia de seguridad de ella.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Volver a vincular</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Volver a incluir esta carpeta en la sincronización</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Elija cómo se conecta Tarnwell al servidor.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>Vinculando con el servidor…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Haga doble clic en el icono para ver qué está haciendo Tarnwell en este momento.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>Tarnwell mantiene sincronizadas estas dos carpetas.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Empezar ahora</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>Preparando Tarnwell…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Carpeta compartida no encontrada</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>A partir de ahora, los archivos de su carpeta local tendrán una copia de seguridad automática en el servidor.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>El certificado SSL del servidor ha cambiado. Consulte a su administrador antes de confiar en el nuevo certificado.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>Se ha perdido la conexión mientras se configuraba la tarea. Compruebe la red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>Haciendo copia de seguridad (archivos: %1)</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>Se ha perdido la conexión con el servidor. Tarnwell volverá a conectarse en cuanto sea posible.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>Le damos la bienvenida a Tarnwell. Vamos a configurar su primera copia de seguridad.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>¿Desea dejar de sincronizar esta carpeta compartida? Los archivos que ya están en este equipo se conservarán.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de combinación</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descargado</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Espacio insuficiente</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Acerca de Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Error al iniciar sesión</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>Se ha establecido la conexión con el servidor.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>Haciendo copia de seguridad del archivo %1 de %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>A su cuenta no le queda cuota en este servidor. Pida a su administrador una cuota mayor antes de configurar esta tarea.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Haga clic en «Quitar» para quitar [ProductName] de su equipo. Haga clic en «Atrás» para elegir otra opción o en «Cancelar» para salir del instalador.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>No acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>¿Necesita ayuda con la configuración?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Carpetas para sincronizar</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Descargando %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervalo personalizado</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>No se ha cambiado ningún ajuste.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Vea el estado de cada archivo</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Octubre</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Cerrar estos programas y reiniciarlos después</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>Comprobando la contraseña…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Gestionar tareas</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar a</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Hay cambios sin guardar. ¿Desea descartarlos?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>El disco del servidor está lleno. Libere espacio en el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>Su administrador exige la verificación en dos pasos. Inicie sesión en el servidor con un navegador y active primero esa verificación.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>Se ha agotado la cuota de esta carpeta compartida. Elimine los archivos que ya no necesite o elija otra carpeta compartida.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Desvincular conexión</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>Actualizando a la versión %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Gracias por usar [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Usar estos ajustes de proxy</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>La sincronización se ha detenido de forma inesperada. Reanude la tarea. Si el problema continúa, reinicie Tarnwell.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Usar el proxy del sistema</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Si todo es correcto, haga clic en «Finalizar» para crear la tarea.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Subcarpetas para sincronizar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>Se están realizando los cambios solicitados en [ProductName].</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>¿Cómo desea configurar Tarnwell?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>¿Qué es un ID de OrvaneLink?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Carpeta de solo lectura</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>No se ha encontrado ningún Orvane Station en su red local. Introduzca su dirección o su ID de OrvaneLink.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Le damos la bienvenida al instalador de [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Archivos actualizados</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Crear una carpeta Tarnwell en este equipo</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>El disco de este equipo está lleno.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Cifrado SSL</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>No se encuentra la carpeta local. Devuélvala a su ubicación original, o desvincule la tarea y configúrela de nuevo.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Aviso de certificado SSL</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licencia</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Permite elegir qué características de [ProductName] se instalan.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Esta carpeta compartida ya no existe en el servidor. Elija otra.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Cola de transferencia</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>Buscando archivos modificados…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julio</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Haga clic en cualquier lugar para empezar.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Excluir estas carpetas de la sincronización</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ajustes avanzados</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Paso actual:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Todo listo para reparar</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Archivo bloqueado</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>El servidor ha enviado una respuesta que Tarnwell no entiende. Asegúrese de que ambos están actualizados.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Punto de montaje</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas siguientes</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronización bidireccional</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>Tarnwell se está actualizando…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Carpeta compartida con usted</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Al hacer doble clic en el icono de la bandeja</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>No se puede descargar este archivo. Es posible que se haya movido o eliminado en el servidor.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>Conectando mediante OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Hace %1 día(s)</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>No sincronizar nunca estos archivos</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuración rápida</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Añada una tarea para sincronizar otra carpeta con este servidor.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Se ha producido un error</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Quitar [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>El servidor ha rechazado la solicitud por no ser válida. Actualice Tarnwell e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versión incompatible</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Para sincronizar más carpetas, puede añadir una tarea en Tarnwell en cualquier momento.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creación</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Actualización necesaria</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>OrvaneLink no está disponible en este momento. Inténtelo de nuevo más tarde o introduzca la dirección de su Orvane Station.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Hace %1 min</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Detalles del estado</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Compartir un enlace</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Actualizar ahora</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Elija una carpeta del servidor y la carpeta local con la que desea sincronizarla.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>se ha compartido con usted.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Este equipo y el servidor ya están vinculados.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>No se puede acceder al servidor. Compruebe su conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Sincronizar con otro servidor</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>El disco de este equipo está lleno. Libere espacio y reanude la tarea.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana pasada</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>Comprobando los datos…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Nombre de usuario o contraseña incorrectos.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>[ProductName] se instalará en su equipo. Haga clic en «Siguiente» para continuar o en «Cancelar» para salir del instalador.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparar [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>El sentido de sincronización no coincide</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Reanudar conexión</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Conéctese a su servidor</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Introduzca la dirección del servidor e inicie sesión con su cuenta.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Seleccione al menos una carpeta de la que hacer copia de seguridad.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>El instalador está listo para instalar [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>¿Qué desea hacer a continuación?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Elija qué desea hacer.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>No se ha podido verificar el certificado SSL.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>El paquete de sincronización del servidor es demasiado antiguo. Pida a su administrador que lo actualice a la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Añadir una tarea de sincronización</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>No hay eventos que mostrar</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Introduzca su nombre de usuario.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>La carpeta compartida no está montada en el servidor. Pida a su administrador que la monte.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Los iconos superpuestos muestran el estado de sus archivos. Una marca de verificación verde indica que un archivo está al día.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Cambiar las características instaladas</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Extensión de archivo</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pausar conexión</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>El servidor usa ahora un certificado SSL distinto. ¿Desea confiar en él?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Hace %1 h</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completado</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>El código de verificación es incorrecto o ha caducado. Introduzca un código nuevo.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>Se ha cancelado el instalador</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Introduzca un nombre de archivo para excluirlo</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Algunos archivos no se han sincronizado</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Idioma del sistema</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Asistente de configuración avanzada</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usar un icono en blanco y negro en la bandeja</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de conexión</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La conexión es inestable</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>¿Desea salir del instalador de [ProductName] antes de que termine?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>No se ha podido descargar «%1». Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>Su copia de seguridad empieza aquí</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>April</source>
        <translation>Abril</translation>
    </message>
    <message>
        <source>The [ProductName] installer was stopped by an error before it could finish. Your computer hasn’t been changed. To try again, restart the installer.</source>
        <translation>Un error ha detenido el instalador de [ProductName] antes de que terminara. No se han hecho cambios en su equipo. Para intentarlo de nuevo, vuelva a iniciar el instalador.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>El sentido de sincronización de esta tarea no se corresponde con su permiso en el servidor. Elija otro sentido de sincronización.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>No tiene permiso para usar esta carpeta compartida. Pida acceso a su administrador.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Esto puede tardar unos minutos.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Puede usar la tarea existente o configurar una nueva en una carpeta distinta.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Otra tarea ya sincroniza esta carpeta. Elija una carpeta distinta.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar estado de sincronización</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Si continúa, se reemplazará la tarea existente. No se eliminará ningún archivo.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Espere, por favor</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>En este equipo ya existe una tarea para esta carpeta.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Explorar versiones anteriores</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>Tarnwell está indexando esta carpeta</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Esta tarea ya existe</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>No se ha podido crear la tarea. Compruebe sus ajustes e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Conservar siempre la versión del servidor</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Elija una carpeta local</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Septiembre</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>El número máximo de carpetas compartidas que puede sincronizar es %1. Deje de sincronizar una de ellas antes de añadir otra.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Abrir carpeta contenedora</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Abrir carpeta local</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mes pasado</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Ya está instalada una versión más reciente de Tarnwell. Para instalar esta versión, quite primero la más reciente.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>No se pueden mostrar las versiones anteriores de este archivo. Compruebe la conexión con el servidor e inténtelo de nuevo.</translation>
    </message>
</context>
</TS>
