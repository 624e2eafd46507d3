<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>A fazer cópia de segurança…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>A desassociar…</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar…</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Remove [ProductName] do computador.</translation>
    </message>
    <message>
        <source>Open Tarnwell</source>
        <translation>Abrir o Tarnwell</translation>
    </message>
    <message>
        <source>Backing up %1</source>
        <translation>A fazer cópia de segurança de %1</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Nome alterado</translation>
    </message>
    <message>
        <source>Your files, safe and always at hand</source>
        <translation>Os seus ficheiros, seguros e sempre à mão</translation>
    </message>
    <message>
        <source>Keep files on the server when they are deleted on this computer</source>
        <translation>Manter os ficheiros no servidor quando forem apagados neste computador</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Apagado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Try syncing again</source>
        <translation>Tentar sincronizar novamente</translation>
    </message>
    <message>
        <source>Last upload: %1</source>
        <translation>Último envio: %1</translation>
    </message>
    <message>
        <source>Relay through OrvaneLink</source>
        <translation>Retransmissão pelo OrvaneLink</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Junho</translation>
    </message>
    <message>
        <source>The SSL certificate of the server couldn’t be verified. Check the server address or ask your administrator for help.</source>
        <translation>Não foi possível verificar o certificado SSL do servidor. Verifique o endereço do servidor ou peça ajuda ao administrador.</translation>
    </message>
    <message>
        <source>Some of the information you entered isn’t valid. Check it and try again.</source>
        <translation>Algumas das informações introduzidas não são válidas. Verifique-as e tente novamente.</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desassociar</translation>
    </message>
    <message>
        <source>Repairs [ProductName] by replacing missing or damaged files, shortcuts, and registry entries.</source>
        <translation>Repara [ProductName], substituindo os ficheiros, os atalhos e as entradas do registo que estejam em falta ou danificados.</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Boas-vindas ao %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Introduza o código de verificação</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Endereço do proxy</translation>
    </message>
    <message>
        <source>Use an SSL connection</source>
        <translation>Utilizar uma ligação SSL</translation>
    </message>
    <message>
        <source>Orvane Station address or OrvaneLink ID</source>
        <translation>Endereço da Orvane Station ou ID do OrvaneLink</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Escolher as pastas a sincronizar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Choose each folder, the sync mode, and the filters yourself.</source>
        <translation>Escolha manualmente cada pasta, o modo de sincronização e os filtros.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agosto</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de ficheiro</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir ficheiro</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Tray icon</source>
        <translation>Ícone de notificação</translation>
    </message>
    <message>
        <source>Unlink the task for “%1”? The files already on this computer and on the server won’t be deleted.</source>
        <translation>Pretende desassociar a tarefa relativa a «%1»? Os ficheiros que já se encontram neste computador e no servidor não serão apagados.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Tarnwell is ready.</source>
        <translation>O Tarnwell está pronto.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>The installer is ready to repair [ProductName].</source>
        <translation>O instalador está pronto para reparar [ProductName].</translation>
    </message>
    <message>
        <source>Exclude this folder from sync</source>
        <translation>Excluir esta pasta da sincronização</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar…</translation>
    </message>
    <message>
        <source>Enter the details of the server you want to connect to.</source>
        <translation>Introduza os dados do servidor ao qual pretende ligar-se.</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be changed separately.</source>
        <translation>[ProductName] não tem funcionalidades que possam ser alteradas em separado.</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>A verificar o tipo de ligação…</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Erro ao sincronizar</translation>
    </message>
    <message>
        <source>The sync database can’t be read. Restart Tarnwell. If the problem continues, unlink the task and set it up again.</source>
        <translation>Não é possível ler a base de dados de sincronização. Reinicie o Tarnwell. Se o problema persistir, desassocie a tarefa e configure-a novamente.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete files you no longer need or ask your administrator for a larger quota.</source>
        <translation>A sua quota no servidor está esgotada. Apague os ficheiros de que já não precisa ou peça uma quota maior ao administrador.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Boas-vindas</translation>
    </message>
    <message>
        <source>Start Tarnwell upon user login</source>
        <translation>Abrir o Tarnwell ao iniciar sessão</translation>
    </message>
    <message>
        <source>Right-click the tray icon to pause a task, open its folder, or change its settings.</source>
        <translation>Clique no ícone da área de notificação com o botão direito do rato para pausar uma tarefa, abrir a respetiva pasta ou alterar as definições.</translation>
    </message>
    <message>
        <source>Enter 0 if you don’t want to limit the file size.</source>
        <translation>Introduza 0 se não pretende limitar o tamanho dos ficheiros.</translation>
    </message>
    <message>
        <source>Choose folders to back up</source>
        <translation>Escolher as pastas a incluir na cópia de segurança</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Ficheiros alterados recentemente</translation>
    </message>
    <message>
        <source>Exclude files and folders whose names start with a period</source>
        <translation>Excluir ficheiros e pastas cujo nome comece por um ponto</translation>
    </message>
    <message>
        <source>Trust and continue</source>
        <translation>Confiar e continuar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>OrvaneLink ID</source>
        <translation>ID do OrvaneLink</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta partilhada</translation>
    </message>
    <message>
        <source>[ProductName] installer</source>
        <translation>Instalador de [ProductName]</translation>
    </message>
    <message>
        <source>The [ProductName] installer has finished</source>
        <translation>O instalador de [ProductName] terminou</translation>
    </message>
    <message>
        <source>Some files couldn’t be synced. Open Tarnwell to see the details.</source>
        <translation>Não foi possível sincronizar alguns ficheiros. Abra o Tarnwell para ver os detalhes.</translation>
    </message>
    <message>
        <source>The disk that holds this shared folder is full. Choose a shared folder on another disk or free up some space.</source>
        <translation>O disco que contém esta pasta partilhada está cheio. Escolha uma pasta partilhada noutro disco ou liberte espaço.</translation>
    </message>
    <message>
        <source>Tarnwell update</source>
        <translation>Atualização do Tarnwell</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>This OrvaneLink ID doesn’t exist. Check the ID and enter it again.</source>
        <translation>Este ID do OrvaneLink não existe. Verifique o ID e introduza-o novamente.</translation>
    </message>
    <message>
        <source>“%1” has been downloaded.</source>
        <translation>O ficheiro «%1» foi descarregado.</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Definições do proxy</translation>
    </message>
    <message>
        <source>Orvane Station name</source>
        <translation>Nome da Orvane Station</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Remove “%1” from the list? The folder itself won’t be deleted.</source>
        <translation>Pretende remover «%1» da lista? A pasta propriamente dita não será apagada.</translation>
    </message>
    <message>
        <source>This username couldn’t be checked. Make sure that the server is reachable and try again.</source>
        <translation>Não foi possível verificar este nome de utilizador. Certifique-se de que o servidor está acessível e tente novamente.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Choose a folder on this computer. Its contents will be synced with the server.</source>
        <translation>Escolha uma pasta neste computador. O respetivo conteúdo será sincronizado com o servidor.</translation>
    </message>
    <message>
        <source>The folder isn’t empty</source>
        <translation>A pasta não está vazia</translation>
    </message>
    <message>
        <source>Files with exactly this name are never synced, whatever folder they are in.</source>
        <translation>Os ficheiros com exatamente este nome nunca são sincronizados, seja qual for a pasta em que se encontrem.</translation>
    </message>
    <message>
        <source>A secure connection couldn’t be established. Check the SSL settings of the server and try again.</source>
        <translation>Não foi possível estabelecer uma ligação segura. Verifique as definições de SSL do servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>The following programs are using files that the installer needs to change:</source>
        <translation>Os programas seguintes estão a utilizar ficheiros que o instalador precisa de alterar:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>This isn’t a valid OrvaneLink ID. Use only letters, digits, and hyphens.</source>
        <translation>Este ID do OrvaneLink não é válido. Utilize apenas letras, algarismos e hífenes.</translation>
    </message>
    <message>
        <source>Enter a port number between 1 and 65535.</source>
        <translation>Introduza um número de porta entre 1 e 65535.</translation>
    </message>
    <message>
        <source>The Orvane Station with this OrvaneLink ID is offline. Make sure that it is turned on and connected to the internet.</source>
        <translation>A Orvane Station com este ID do OrvaneLink está sem ligação. Certifique-se de que está em funcionamento e tem acesso à internet.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerir</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Definições de rede</translation>
    </message>
    <message>
        <source>The server couldn’t be found because of a system error. Try again or enter its address instead.</source>
        <translation>Não foi possível encontrar o servidor devido a um erro do sistema. Tente novamente ou introduza antes o endereço do servidor.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>A sua quota no servidor está esgotada.</translation>
    </message>
    <message>
        <source>The proxy requires a password</source>
        <translation>O proxy requer uma palavra-passe</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Fazer outra escolha</translation>
    </message>
    <message>
        <source>Find Orvane Station</source>
        <translation>Procurar Orvane Station</translation>
    </message>
    <message>
        <source>Two arrows mean that the file is being synced. A red mark means that it needs your attention.</source>
        <translation>Duas setas significam que o ficheiro está a ser sincronizado. Um símbolo vermelho significa que o ficheiro precisa da sua atenção.</translation>
    </message>
    <message>
        <source>StationOS version</source>
        <translation>Versão do StationOS</translation>
    </message>
    <message>
        <source>Click Repair to start. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Clique em Reparar para começar. Clique em Anterior para escolher outra opção ou em Cancelar para sair do instalador.</translation>
    </message>
    <message>
        <source>Setup is complete.</source>
        <translation>A configuração está concluída.</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Utilizar esta pasta</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações no ecrã</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de datas</translation>
    </message>
    <message>
        <source>Tarnwell needs StationOS %1 or later. Update your Orvane Station and try again.</source>
        <translation>O Tarnwell requer o StationOS %1 ou posterior. Atualize a Orvane Station e tente novamente.</translation>
    </message>
    <message>
        <source>The number of versions to keep must be 1 or more.</source>
        <translation>O número de versões a manter tem de ser igual ou superior a 1.</translation>
    </message>
    <message>
        <source>Start [ProductName] now</source>
        <translation>Iniciar [ProductName] agora</translation>
    </message>
    <message>
        <source>Enter the username for the proxy.</source>
        <translation>Introduza o nome de utilizador do proxy.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Pronto para instalar</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Merging combines the contents of both folders. Files that differ are handled as conflicts.</source>
        <translation>Ao combinar as pastas, o conteúdo de ambas é reunido. Os ficheiros diferentes são tratados como conflitos.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Percebi</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Choose a folder on the server.</source>
        <translation>Escolha uma pasta no servidor.</translation>
    </message>
    <message>
        <source>Everything from the tray</source>
        <translation>Tudo a partir da área de notificação</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old for the server. Update Tarnwell to version %1 or later.</source>
        <translation>Esta versão do Tarnwell é demasiado antiga para o servidor. Atualize o Tarnwell para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Tarnwell %1 is available. Click here to update.</source>
        <translation>O Tarnwell %1 está disponível. Clique aqui para atualizar.</translation>
    </message>
    <message>
        <source>Choose what happens when a file has been changed on both the computer and the server.</source>
        <translation>Escolha o que acontece quando um ficheiro é alterado tanto no computador como no servidor.</translation>
    </message>
    <message>
        <source>The installer is ready to remove [ProductName].</source>
        <translation>O instalador está pronto para remover [ProductName].</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>A enviar…</translation>
    </message>
    <message>
        <source>Enter the OrvaneLink ID of your Orvane Station. Tarnwell connects to it through OrvaneLink, even when you are away.</source>
        <translation>Introduza o ID do OrvaneLink da sua Orvane Station. O Tarnwell liga-se a ela através do OrvaneLink, mesmo quando está fora.</translation>
    </message>
    <message>
        <source>You can view this folder, but your changes won’t be uploaded.</source>
        <translation>Pode ver esta pasta, mas as suas alterações não serão enviadas.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>One-way sync from the server to this computer</source>
        <translation>Sincronização unidirecional do servidor para este computador</translation>
    </message>
    <message>
        <source>The shared folder “%1” is ready to be synced.</source>
        <translation>A pasta partilhada «%1» está pronta para ser sincronizada.</translation>
    </message>
    <message>
        <source>Open StationOS</source>
        <translation>Abrir o StationOS</translation>
    </message>
    <message>
        <source>Restart Tarnwell to apply the new language.</source>
        <translation>Reinicie o Tarnwell para aplicar o novo idioma.</translation>
    </message>
    <message>
        <source>Local folder</source>
        <translation>Pasta local</translation>
    </message>
    <message>
        <source>Keep the version that was modified last</source>
        <translation>Manter a versão modificada mais recentemente</translation>
    </message>
    <message>
        <source>None of the chosen folders can be synced. Choose at least one other folder.</source>
        <translation>Nenhuma das pastas escolhidas pode ser sincronizada. Escolha, pelo menos, outra pasta.</translation>
    </message>
    <message>
        <source>Click Install to start. Click Back to check your choices, or Cancel to exit the installer.</source>
        <translation>Clique em Instalar para começar. Clique em Anterior para rever as suas escolhas ou em Cancelar para sair do instalador.</translation>
    </message>
    <message>
        <source>Tarnwell keeps earlier versions of your files, so a mistake is quickly undone.</source>
        <translation>O Tarnwell mantém as versões anteriores dos seus ficheiros, para que possa anular rapidamente um erro.</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Associar outro servidor</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Ready to remove</source>
        <translation>Pronto para remover</translation>
    </message>
    <message>
        <source>This folder already contains files. They will be synced as well. Do you want to use it?</source>
        <translation>Esta pasta já contém ficheiros, que também serão sincronizados. Pretende utilizá-la?</translation>
    </message>
    <message>
        <source>With this installer, you can repair [ProductName] or remove it from your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>Com este instalador, pode reparar a instalação de [ProductName] ou removê-la do computador. Clique em Seguinte para continuar ou em Cancelar para sair do instalador.</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ficheiros excluídos</translation>
    </message>
    <message>
        <source>Sync couldn’t be turned on for this folder. Check your permissions on the server and try again.</source>
        <translation>Não foi possível ativar a sincronização desta pasta. Verifique as suas permissões no servidor e tente novamente.</translation>
    </message>
    <message>
        <source>This folder overlaps with a folder that is already synced. Choose a folder that neither contains it nor is inside it.</source>
        <translation>Esta pasta sobrepõe-se a uma pasta que já é sincronizada. Escolha uma pasta que não esteja dentro dela nem a contenha.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
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
        <translation>Mostrar símbolos de estado nos ficheiros excluídos</translation>
    </message>
    <message>
        <source>Enter the address and the port of the proxy.</source>
        <translation>Introduza o endereço e a porta do proxy.</translation>
    </message>
    <message>
        <source>Click Finish to exit the installer.</source>
        <translation>Clique em Concluir para sair do instalador.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>File types to sync</source>
        <translation>Tipos de ficheiro a sincronizar</translation>
    </message>
    <message>
        <source>Enter a maximum file size between %1 and %2 MB.</source>
        <translation>Introduza um tamanho máximo de ficheiro entre %1 e %2 MB.</translation>
    </message>
    <message>
        <source>Applying the settings...</source>
        <translation>A aplicar as definições…</translation>
    </message>
    <message>
        <source>Add task</source>
        <translation>Adicionar tarefa</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Não, obrigado</translation>
    </message>
    <message>
        <source>Don’t show this message again</source>
        <translation>Não voltar a mostrar esta mensagem</translation>
    </message>
    <message>
        <source>To use selective sync, update the sync package on the server first.</source>
        <translation>Para utilizar a sincronização seletiva, atualize primeiro o pacote de sincronização no servidor.</translation>
    </message>
    <message>
        <source>Excluded file names</source>
        <translation>Nomes de ficheiros excluídos</translation>
    </message>
    <message>
        <source>Backup destination</source>
        <translation>Destino da cópia de segurança</translation>
    </message>
    <message>
        <source>Everything is set up. Tarnwell has started to back up your files.</source>
        <translation>Está tudo configurado. O Tarnwell começou a fazer a cópia de segurança dos seus ficheiros.</translation>
    </message>
    <message>
        <source>Let Tarnwell choose the settings for you, or choose them yourself.</source>
        <translation>Deixe o Tarnwell escolher as definições por si ou escolha-as manualmente.</translation>
    </message>
    <message>
        <source>A link to this file can’t be created. Make sure that the file has been uploaded and that you have permission to share it.</source>
        <translation>Não é possível criar uma hiperligação para este ficheiro. Certifique-se de que o ficheiro foi enviado e de que tem permissão para o partilhar.</translation>
    </message>
    <message>
        <source>Quit Tarnwell</source>
        <translation>Sair do Tarnwell</translation>
    </message>
    <message>
        <source>November</source>
        <translation>Novembro</translation>
    </message>
    <message>
        <source>No suitable folder found</source>
        <translation>Nenhuma pasta adequada encontrada</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Include these folders in sync again</source>
        <translation>Voltar a incluir estas pastas na sincronização</translation>
    </message>
    <message>
        <source>This file was changed on both the computer and the server. Compare the two versions and delete the one you don’t need.</source>
        <translation>Este ficheiro foi alterado tanto no computador como no servidor. Compare as duas versões e apague aquela de que não precisa.</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezembro</translation>
    </message>
    <message>
        <source>Read the license agreement carefully before you continue.</source>
        <translation>Leia atentamente o contrato de licença antes de continuar.</translation>
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
        <translation>Recuar no tempo</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maio</translation>
    </message>
    <message>
        <source>Your account on the server has been disabled. Ask your administrator to enable it.</source>
        <translation>A sua conta no servidor foi desativada. Peça ao administrador que a ative.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again. If the problem continues, restart Tarnwell.</source>
        <translation>Ocorreu um problema. Tente novamente. Se o problema persistir, reinicie o Tarnwell.</translation>
    </message>
    <message>
        <source>Keep both versions and rename the older one</source>
        <translation>Manter ambas as versões e alterar o nome da mais antiga</translation>
    </message>
    <message>
        <source>Waiting for the file to be unlocked</source>
        <translation>A aguardar o desbloqueio do ficheiro</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A descarregar…</translation>
    </message>
    <message>
        <source>Put files into the local folder, and Tarnwell backs them up to the server for you.</source>
        <translation>Coloque ficheiros na pasta local e o Tarnwell faz a cópia de segurança para o servidor por si.</translation>
    </message>
    <message>
        <source>The folder “%1” couldn’t be created. Check your permissions or choose another location.</source>
        <translation>Não foi possível criar a pasta «%1». Verifique as suas permissões ou escolha outra localização.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Choose the shared folder on the server to sync with.</source>
        <translation>Escolha a pasta partilhada do servidor com a qual pretende sincronizar.</translation>
    </message>
    <message>
        <source>You canceled the [ProductName] installer before it finished. Your computer hasn’t been changed. You can run the installer again at any time.</source>
        <translation>Cancelou o instalador de [ProductName] antes de este terminar. O computador não foi alterado. Pode executar novamente o instalador em qualquer altura.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Sexta-feira</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Março</translation>
    </message>
    <message>
        <source>These settings will be used:</source>
        <translation>Serão utilizadas estas definições:</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Histórico de descargas</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sem permissão</translation>
    </message>
    <message>
        <source>This task is inactive. Resume it to sync its files again.</source>
        <translation>Esta tarefa está inativa. Retome-a para voltar a sincronizar os respetivos ficheiros.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>The backup couldn’t be completed. Check the connection to the server and try again.</source>
        <translation>Não foi possível concluir a cópia de segurança. Verifique a ligação ao servidor e tente novamente.</translation>
    </message>
    <message>
        <source>More tutorials</source>
        <translation>Mais tutoriais</translation>
    </message>
    <message>
        <source>This folder is used by another sync program. Choose a different folder.</source>
        <translation>Esta pasta é utilizada por outro programa de sincronização. Escolha uma pasta diferente.</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>Leave these programs open (requires a restart)</source>
        <translation>Deixar estes programas abertos (é necessário reiniciar)</translation>
    </message>
    <message>
        <source>You don’t have permission to sync with this folder. Choose a folder that you have access to.</source>
        <translation>Não tem permissão para sincronizar com esta pasta. Escolha uma pasta à qual tenha acesso.</translation>
    </message>
    <message>
        <source>Tarnwell is already running. You can open it from the tray.</source>
        <translation>O Tarnwell já está em execução. Pode abri-lo a partir da área de notificação.</translation>
    </message>
    <message>
        <source>Files that match one of these filters aren’t synced.</source>
        <translation>Os ficheiros que correspondem a um destes filtros não são sincronizados.</translation>
    </message>
    <message>
        <source>Task options</source>
        <translation>Opções da tarefa</translation>
    </message>
    <message>
        <source>Server folder</source>
        <translation>Pasta do servidor</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Fevereiro</translation>
    </message>
    <message>
        <source>The disk with the local folder isn’t connected. Connect it and resume the task.</source>
        <translation>O disco que contém a pasta local não está ligado. Ligue-o e retome a tarefa.</translation>
    </message>
    <message>
        <source>You aren’t signed in as an administrator, so Tarnwell will be installed only for your account. Do you want to continue?</source>
        <translation>Não iniciou sessão como administrador, pelo que o Tarnwell só será instalado para a sua conta. Pretende continuar?</translation>
    </message>
    <message>
        <source>Back up and sync your computer with your own server.</source>
        <translation>Faça cópias de segurança do computador e sincronize-o com o seu próprio servidor.</translation>
    </message>
    <message>
        <source>Tarnwell is starting...</source>
        <translation>A iniciar o Tarnwell…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Apagar</translation>
    </message>
    <message>
        <source>The disk of the server is full.</source>
        <translation>O disco do servidor está cheio.</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo dos ficheiros</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>You’re all set!</source>
        <translation>Está tudo pronto!</translation>
    </message>
    <message>
        <source>You can only read this folder. Files will be downloaded, but your changes won’t be uploaded.</source>
        <translation>Só pode ler esta pasta. Os ficheiros serão descarregados, mas as suas alterações não serão enviadas.</translation>
    </message>
    <message>
        <source>The server folder is on remote storage that isn’t connected right now. Ask your administrator to reconnect it.</source>
        <translation>A pasta do servidor encontra-se num armazenamento remoto que não está ligado neste momento. Peça ao administrador que volte a ligá-lo.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Do you want to merge the two folders?</source>
        <translation>Já existe uma pasta com este nome. Pretende combinar as duas pastas?</translation>
    </message>
    <message>
        <source>[ProductName] is already installed</source>
        <translation>[ProductName] já se encontra neste computador</translation>
    </message>
    <message>
        <source>%1 item(s)</source>
        <translation>%1 elemento(s)</translation>
    </message>
    <message>
        <source>This folder is a mount point and can’t be synced. Choose a regular folder.</source>
        <translation>Esta pasta é um ponto de montagem e não pode ser sincronizada. Escolha uma pasta normal.</translation>
    </message>
    <message>
        <source>The server has blocked your IP address. Ask your administrator to unblock it.</source>
        <translation>O servidor bloqueou o seu endereço IP. Peça ao administrador que o desbloqueie.</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be updated. Try again later or download the latest version yourself.</source>
        <translation>Não foi possível atualizar o Tarnwell. Tente novamente mais tarde ou descarregue a versão mais recente manualmente.</translation>
    </message>
    <message>
        <source>You have read-only permission for this shared folder. Files will only be downloaded. Do you want to use it?</source>
        <translation>Tem permissão só de leitura para esta pasta partilhada. Os ficheiros serão apenas descarregados. Pretende utilizá-la?</translation>
    </message>
    <message>
        <source>This version of Tarnwell is already installed. Do you want to install it again?</source>
        <translation>Esta versão do Tarnwell já está instalada. Pretende instalá-la novamente?</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>A ligar…</translation>
    </message>
    <message>
        <source>Tarnwell couldn’t be started properly. Restart your computer. If the problem continues, install Tarnwell again.</source>
        <translation>Não foi possível iniciar corretamente o Tarnwell. Reinicie o computador. Se o problema persistir, instale novamente o Tarnwell.</translation>
    </message>
    <message>
        <source>New sync task</source>
        <translation>Nova tarefa de sincronização</translation>
    </message>
    <message>
        <source>Don’t use a proxy</source>
        <translation>Não utilizar proxy</translation>
    </message>
    <message>
        <source>Choose a folder on this computer</source>
        <translation>Escolher uma pasta neste computador</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Change, repair, or remove [ProductName]</source>
        <translation>Alterar, reparar ou remover [ProductName]</translation>
    </message>
    <message>
        <source>Enter a file name or a file extension, for example *.tmp</source>
        <translation>Introduza um nome de ficheiro ou uma extensão de ficheiro, por exemplo *.tmp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direção de sincronização</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação…</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar o tutorial</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed since you connected. Go back and connect again to check it.</source>
        <translation>O certificado SSL do servidor foi alterado desde que se ligou. Volte atrás e ligue-se novamente para o verificar.</translation>
    </message>
    <message>
        <source>Enter the IP address or the domain name of the server.</source>
        <translation>Introduza o endereço IP ou o nome de domínio do servidor.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminar</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>This account is protected by 2-step verification. Enter the verification code.</source>
        <translation>Esta conta está protegida pela verificação em dois passos. Introduza o código de verificação.</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>The server reported a system error. Try again later or ask your administrator for help.</source>
        <translation>O servidor comunicou um erro do sistema. Tente novamente mais tarde ou peça ajuda ao administrador.</translation>
    </message>
    <message>
        <source>Check your settings</source>
        <translation>Verificar as definições</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They stay on the server.</source>
        <translation>As pastas que desmarcar aqui serão removidas deste computador, mas permanecem no servidor.</translation>
    </message>
    <message>
        <source>The sync package on the server is too old.</source>
        <translation>O pacote de sincronização do servidor é demasiado antigo.</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Pastas partilhadas</translation>
    </message>
    <message>
        <source>You can change all of these settings later.</source>
        <translation>Pode alterar todas estas definições mais tarde.</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>A descarga foi cancelada.</translation>
    </message>
    <message>
        <source>OrvaneLink couldn’t reach the server. Check your internet connection and try again.</source>
        <translation>O OrvaneLink não conseguiu contactar o servidor. Verifique a sua ligação à internet e tente novamente.</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Tudo atualizado</translation>
    </message>
    <message>
        <source>Files with these names are never uploaded or downloaded.</source>
        <translation>Os ficheiros com estes nomes nunca são enviados nem descarregados.</translation>
    </message>
    <message>
        <source>This folder is on a network drive. Changes that others make there may not be noticed right away.</source>
        <translation>Esta pasta está numa unidade de rede. As alterações que outras pessoas aí fizerem poderão não ser detetadas de imediato.</translation>
    </message>
    <message>
        <source>This folder can’t be synced. Choose a different folder.</source>
        <translation>Não é possível sincronizar esta pasta. Escolha uma pasta diferente.</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Janeiro</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativa</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder, so nothing can be backed up to it. Choose a folder you can write to.</source>
        <translation>Tem permissão só de leitura para esta pasta, pelo que não é possível fazer cópias de segurança para ela. Escolha uma pasta na qual possa escrever.</translation>
    </message>
    <message>
        <source>Before you begin, make sure that your server is turned on.</source>
        <translation>Antes de começar, certifique-se de que o servidor está em funcionamento.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Demasiadas tentativas falhadas. Aguarde alguns minutos e tente novamente.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Unlink this computer from the server? All tasks will stop, but no files will be deleted.</source>
        <translation>Pretende desassociar este computador do servidor? Todas as tarefas serão interrompidas, mas nenhum ficheiro será apagado.</translation>
    </message>
    <message>
        <source>The folder that you have chosen for the backup is in conflict with the folder of some other task. Please choose another one.</source>
        <translation>Esta pasta de cópia de segurança já é utilizada por outra tarefa. Escolha uma pasta diferente.</translation>
    </message>
    <message>
        <source>Something went wrong</source>
        <translation>Ocorreu um problema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Show icon overlays on synced files</source>
        <translation>Mostrar símbolos de estado nos ficheiros sincronizados</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed from the list. Try again later.</source>
        <translation>Não foi possível remover «%1» da lista. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>This version of Tarnwell is too old.</source>
        <translation>Esta versão do Tarnwell é demasiado antiga.</translation>
    </message>
    <message>
        <source>Sync is on</source>
        <translation>Sincronização ativada</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Close these programs and click Retry, or click Ignore to continue and restart your computer afterward.</source>
        <translation>Feche estes programas e clique em Repetir, ou clique em Ignorar para continuar e reinicie o computador depois.</translation>
    </message>
    <message>
        <source>Tarnwell does the backup of the files on your computer to your server and keeps them the same in both places.</source>
        <translation>O Tarnwell faz a cópia de segurança dos ficheiros do seu computador para o servidor e mantém ambos sincronizados.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Ficheiros em utilização</translation>
    </message>
    <message>
        <source>Select what to back up and where to store it on the server.</source>
        <translation>Selecione o que pretende incluir na cópia de segurança e onde a guardar no servidor.</translation>
    </message>
    <message>
        <source>Some files that need to be changed are in use.</source>
        <translation>Alguns ficheiros que precisam de ser alterados estão em utilização.</translation>
    </message>
    <message>
        <source>Event type</source>
        <translation>Tipo de evento</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Just updated: %1</source>
        <translation>Atualizado agora: %1</translation>
    </message>
    <message>
        <source>Loading the shared folders...</source>
        <translation>A carregar as pastas partilhadas…</translation>
    </message>
    <message>
        <source>Tarnwell creates a local folder and starts to back it up right away.</source>
        <translation>O Tarnwell cria uma pasta local e começa de imediato a fazer a respetiva cópia de segurança.</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Associar novamente</translation>
    </message>
    <message>
        <source>Include this folder in sync again</source>
        <translation>Voltar a incluir esta pasta na sincronização</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Choose how Tarnwell connects to the server.</source>
        <translation>Escolha como o Tarnwell se liga ao servidor.</translation>
    </message>
    <message>
        <source>Linking to the server...</source>
        <translation>A associar ao servidor…</translation>
    </message>
    <message>
        <source>Double-click the icon to see what Tarnwell is doing right now.</source>
        <translation>Faça duplo clique no ícone para ver o que o Tarnwell está a fazer neste momento.</translation>
    </message>
    <message>
        <source>Tarnwell keeps these two folders in sync.</source>
        <translation>O Tarnwell mantém estas duas pastas sincronizadas.</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Iniciar agora</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronização</translation>
    </message>
    <message>
        <source>Tarnwell is initializing...</source>
        <translation>A inicializar o Tarnwell…</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Pasta partilhada não encontrada</translation>
    </message>
    <message>
        <source>Files in your local folder are now backed up to the server automatically.</source>
        <translation>Os ficheiros da pasta local têm agora cópia de segurança automática no servidor.</translation>
    </message>
    <message>
        <source>The SSL certificate of the server has changed. Check with your administrator before you trust the new certificate.</source>
        <translation>O certificado SSL do servidor foi alterado. Consulte o administrador antes de confiar no novo certificado.</translation>
    </message>
    <message>
        <source>The connection was lost while the task was being set up. Check your network and try again.</source>
        <translation>A ligação perdeu-se durante a configuração da tarefa. Verifique a sua rede e tente novamente.</translation>
    </message>
    <message>
        <source>Backing up %1 file(s)</source>
        <translation>A fazer cópia de segurança de %1 ficheiro(s)</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Tarnwell will reconnect as soon as possible.</source>
        <translation>A ligação ao servidor perdeu-se. O Tarnwell voltará a ligar-se assim que possível.</translation>
    </message>
    <message>
        <source>Welcome to Tarnwell. Let’s set up your first backup.</source>
        <translation>O Tarnwell dá-lhe as boas-vindas. Vamos configurar a sua primeira cópia de segurança.</translation>
    </message>
    <message>
        <source>Stop syncing this shared folder? The files already on this computer will be kept.</source>
        <translation>Pretende parar de sincronizar esta pasta partilhada? Os ficheiros que já se encontram neste computador serão mantidos.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de combinação</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descarregado</translation>
    </message>
    <message>
        <source>Not enough space</source>
        <translation>Espaço insuficiente</translation>
    </message>
    <message>
        <source>About Tarnwell</source>
        <translation>Acerca do Tarnwell</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Falha ao iniciar sessão</translation>
    </message>
    <message>
        <source>You are now connected to the server.</source>
        <translation>A ligação ao servidor foi estabelecida.</translation>
    </message>
    <message>
        <source>Backing up file %1 of %2</source>
        <translation>A fazer cópia de segurança: ficheiro %1 de %2</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar ligação</translation>
    </message>
    <message>
        <source>Your account has no quota left on this server. Ask your administrator for a larger quota before you set up this task.</source>
        <translation>A sua conta já não tem quota disponível neste servidor. Peça uma quota maior ao administrador antes de configurar esta tarefa.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to choose something else, or Cancel to exit the installer.</source>
        <translation>Clique em Remover para remover [ProductName] do computador. Clique em Anterior para escolher outra opção ou em Cancelar para sair do instalador.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Não aceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Need help with the setup?</source>
        <translation>Precisa de ajuda com a configuração?</translation>
    </message>
    <message>
        <source>Folders to sync</source>
        <translation>Pastas a sincronizar</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>A descarregar %1</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervalo personalizado</translation>
    </message>
    <message>
        <source>No settings were changed.</source>
        <translation>Nenhuma definição foi alterada.</translation>
    </message>
    <message>
        <source>See the status of every file</source>
        <translation>Ver o estado de cada ficheiro</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Outubro</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Close these programs and restart them afterward</source>
        <translation>Fechar estes programas e reiniciá-los depois</translation>
    </message>
    <message>
        <source>Checking the password...</source>
        <translation>A verificar a palavra-passe…</translation>
    </message>
    <message>
        <source>Manage tasks</source>
        <translation>Gerir tarefas</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar para</translation>
    </message>
    <message>
        <source>You have unsaved changes. Do you want to discard them?</source>
        <translation>Existem alterações por guardar. Pretende descartá-las?</translation>
    </message>
    <message>
        <source>The disk of the server is full. Free up some space on the server and try again.</source>
        <translation>O disco do servidor está cheio. Liberte espaço no servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Your administrator requires 2-step verification. Sign in to the server in a browser and turn it on first.</source>
        <translation>O administrador exige a verificação em dois passos. Inicie primeiro sessão no servidor através de um navegador e ative essa verificação.</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete files you no longer need or choose another shared folder.</source>
        <translation>A quota desta pasta partilhada está esgotada. Apague os ficheiros de que já não precisa ou escolha outra pasta partilhada.</translation>
    </message>
    <message>
        <source>Unlink connection</source>
        <translation>Desassociar ligação</translation>
    </message>
    <message>
        <source>Updating to version %1...</source>
        <translation>A atualizar para a versão %1…</translation>
    </message>
    <message>
        <source>Thank you for using [ProductName].</source>
        <translation>Agradecemos a utilização de [ProductName].</translation>
    </message>
    <message>
        <source>Use these proxy settings</source>
        <translation>Utilizar estas definições do proxy</translation>
    </message>
    <message>
        <source>Sync stopped unexpectedly. Resume the task. If the problem continues, restart Tarnwell.</source>
        <translation>A sincronização parou inesperadamente. Retome a tarefa. Se o problema persistir, reinicie o Tarnwell.</translation>
    </message>
    <message>
        <source>Use the system proxy</source>
        <translation>Utilizar o proxy do sistema</translation>
    </message>
    <message>
        <source>If everything is correct, click Finish to create the task.</source>
        <translation>Se estiver tudo correto, clique em Concluir para criar a tarefa.</translation>
    </message>
    <message>
        <source>Subfolders to sync</source>
        <translation>Subpastas a sincronizar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>The requested changes to [ProductName] are being made.</source>
        <translation>Estão a ser efetuadas as alterações pedidas em [ProductName].</translation>
    </message>
    <message>
        <source>How do you want to set up Tarnwell?</source>
        <translation>Como pretende configurar o Tarnwell?</translation>
    </message>
    <message>
        <source>What is an OrvaneLink ID?</source>
        <translation>O que é um ID do OrvaneLink?</translation>
    </message>
    <message>
        <source>Read-only folder</source>
        <translation>Pasta só de leitura</translation>
    </message>
    <message>
        <source>No Orvane Station was found on your local network. Enter its address or its OrvaneLink ID instead.</source>
        <translation>Não foi encontrada nenhuma Orvane Station na rede local. Introduza antes o endereço ou o ID do OrvaneLink.</translation>
    </message>
    <message>
        <source>Welcome to the [ProductName] installer</source>
        <translation>Boas-vindas ao instalador de [ProductName]</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Ficheiros atualizados</translation>
    </message>
    <message>
        <source>Create a Tarnwell folder on this computer</source>
        <translation>Criar uma pasta do Tarnwell neste computador</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>O disco deste computador está cheio.</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Encriptação SSL</translation>
    </message>
    <message>
        <source>The local folder can’t be found. Move it back to its original location, or unlink the task and set it up again.</source>
        <translation>Não é possível encontrar a pasta local. Volte a colocá-la no sítio original ou desassocie a tarefa e configure-a novamente.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>SSL certificate warning</source>
        <translation>Aviso do certificado SSL</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licença</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alterar</translation>
    </message>
    <message>
        <source>Lets you choose which features of [ProductName] are installed.</source>
        <translation>Permite escolher que funcionalidades de [ProductName] são instaladas.</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on the server. Choose a different one.</source>
        <translation>Esta pasta partilhada já não existe no servidor. Escolha uma pasta diferente.</translation>
    </message>
    <message>
        <source>Transfer queue</source>
        <translation>Fila de transferências</translation>
    </message>
    <message>
        <source>Looking for changed files...</source>
        <translation>A procurar ficheiros alterados…</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Julho</translation>
    </message>
    <message>
        <source>Click anywhere to begin.</source>
        <translation>Clique em qualquer ponto para começar.</translation>
    </message>
    <message>
        <source>Exclude these folders from sync</source>
        <translation>Excluir estas pastas da sincronização</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Definições avançadas</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Passo atual:</translation>
    </message>
    <message>
        <source>Ready to repair</source>
        <translation>Pronto para reparar</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Ficheiro bloqueado</translation>
    </message>
    <message>
        <source>The server sent a response that Tarnwell doesn’t recognize. Make sure that both are up to date.</source>
        <translation>O servidor enviou uma resposta que o Tarnwell não compreende. Certifique-se de que ambos estão atualizados.</translation>
    </message>
    <message>
        <source>Mount point</source>
        <translation>Ponto de montagem</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas seguintes</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronização bidirecional</translation>
    </message>
    <message>
        <source>Tarnwell is being updated...</source>
        <translation>A atualizar o Tarnwell…</translation>
    </message>
    <message>
        <source>Folder shared with you</source>
        <translation>Pasta partilhada consigo</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ao fazer duplo clique no ícone da área de notificação</translation>
    </message>
    <message>
        <source>This file can’t be downloaded. It may have been moved or deleted on the server.</source>
        <translation>Não é possível descarregar este ficheiro. Pode ter sido movido ou apagado no servidor.</translation>
    </message>
    <message>
        <source>Connecting through OrvaneLink...</source>
        <translation>A ligar através do OrvaneLink…</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>%1 day(s) ago</source>
        <translation>Há %1 dia(s)</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>Never sync these files</source>
        <translation>Nunca sincronizar estes ficheiros</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuração rápida</translation>
    </message>
    <message>
        <source>Add a task to sync another folder with this server.</source>
        <translation>Adicione uma tarefa para sincronizar outra pasta com este servidor.</translation>
    </message>
    <message>
        <source>An error occurred</source>
        <translation>Ocorreu um erro</translation>
    </message>
    <message>
        <source>Remove [ProductName]</source>
        <translation>Remover [ProductName]</translation>
    </message>
    <message>
        <source>The server rejected the request as invalid. Update Tarnwell and try again.</source>
        <translation>O servidor rejeitou o pedido por não ser válido. Atualize o Tarnwell e tente novamente.</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versões incompatíveis</translation>
    </message>
    <message>
        <source>To sync more folders, you can add a task in Tarnwell at any time.</source>
        <translation>Para sincronizar mais pastas, pode adicionar uma tarefa no Tarnwell em qualquer altura.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Atualização necessária</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Quinta-feira</translation>
    </message>
    <message>
        <source>OrvaneLink is unavailable right now. Try again later or enter the address of your Orvane Station instead.</source>
        <translation>O OrvaneLink não está disponível neste momento. Tente novamente mais tarde ou introduza antes o endereço da sua Orvane Station.</translation>
    </message>
    <message>
        <source>%1 minute(s) ago</source>
        <translation>Há %1 minuto(s)</translation>
    </message>
    <message>
        <source>Status details</source>
        <translation>Detalhes do estado</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Share a link</source>
        <translation>Partilhar hiperligação</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Atualizar agora</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Choose a folder on the server and the local folder to sync it with.</source>
        <translation>Escolha uma pasta no servidor e a pasta local com a qual será sincronizada.</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>foi partilhada consigo.</translation>
    </message>
    <message>
        <source>This computer and the server are now linked.</source>
        <translation>Este computador e o servidor estão agora associados.</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Ligação direta</translation>
    </message>
    <message>
        <source>The server can’t be reached. Check your network connection and try again.</source>
        <translation>Não é possível contactar o servidor. Verifique a sua ligação de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Sync with another server</source>
        <translation>Sincronizar com outro servidor</translation>
    </message>
    <message>
        <source>The disk of this computer is full. Free up some space and resume the task.</source>
        <translation>O disco deste computador está cheio. Liberte espaço e retome a tarefa.</translation>
    </message>
    <message>
        <source>Tarnwell Backup</source>
        <translation>Orvane Tarnwell</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Sincronizar esta pasta</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>Checking the data...</source>
        <translation>A verificar os dados…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Wrong username or wrong password was entered.</source>
        <translation>Nome de utilizador ou palavra-passe incorretos.</translation>
    </message>
    <message>
        <source>[ProductName] will be installed on your computer. Click Next to continue or Cancel to exit the installer.</source>
        <translation>O instalador vai instalar [ProductName] no computador. Clique em Seguinte para continuar ou em Cancelar para sair do instalador.</translation>
    </message>
    <message>
        <source>Repair [ProductName]</source>
        <translation>Reparar [ProductName]</translation>
    </message>
    <message>
        <source>Sync direction mismatch</source>
        <translation>Direção de sincronização incompatível</translation>
    </message>
    <message>
        <source>Resume connection</source>
        <translation>Retomar ligação</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Ligar ao servidor</translation>
    </message>
    <message>
        <source>Enter the server address and sign in with your account.</source>
        <translation>Introduza o endereço do servidor e inicie sessão com a sua conta.</translation>
    </message>
    <message>
        <source>Select at least one folder to back up.</source>
        <translation>Selecione, pelo menos, uma pasta a incluir na cópia de segurança.</translation>
    </message>
    <message>
        <source>The installer is ready to install [ProductName].</source>
        <translation>O instalador está pronto para instalar [ProductName].</translation>
    </message>
    <message>
        <source>What do you want to do next?</source>
        <translation>O que pretende fazer a seguir?</translation>
    </message>
    <message>
        <source>Choose what you want to do.</source>
        <translation>Escolha o que pretende fazer.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>The SSL certificate couldn’t be verified.</source>
        <translation>Não foi possível verificar o certificado SSL.</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Terça-feira</translation>
    </message>
    <message>
        <source>The sync package on the server is too old. Ask your administrator to update it to version %1 or later.</source>
        <translation>O pacote de sincronização do servidor é demasiado antigo. Peça ao administrador que o atualize para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Adicionar uma tarefa de sincronização</translation>
    </message>
    <message>
        <source>No events to show</source>
        <translation>Não há eventos a mostrar</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Introduza o seu nome de utilizador.</translation>
    </message>
    <message>
        <source>The shared folder isn’t mounted on the server. Ask your administrator to mount it.</source>
        <translation>A pasta partilhada não está montada no servidor. Peça ao administrador que a monte.</translation>
    </message>
    <message>
        <source>Icon overlays show the status of your files. A green check mark means that a file is up to date.</source>
        <translation>Os símbolos de estado nos ícones mostram a situação dos seus ficheiros. Um visto verde significa que o ficheiro está atualizado.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Aceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Alterar as funcionalidades instaladas</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Extensão do ficheiro</translation>
    </message>
    <message>
        <source>Pause connection</source>
        <translation>Pausar ligação</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Só descarregar</translation>
    </message>
    <message>
        <source>The server now uses a different SSL certificate. Do you want to trust it?</source>
        <translation>O servidor utiliza agora um certificado SSL diferente. Pretende confiar nele?</translation>
    </message>
    <message>
        <source>%1 hour(s) ago</source>
        <translation>Há %1 hora(s)</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>The verification code is wrong or has expired. Enter a new code.</source>
        <translation>O código de verificação está errado ou expirou. Introduza um novo código.</translation>
    </message>
    <message>
        <source>The installer was canceled</source>
        <translation>O instalador foi cancelado</translation>
    </message>
    <message>
        <source>Enter a file name to exclude</source>
        <translation>Introduza um nome de ficheiro a excluir</translation>
    </message>
    <message>
        <source>Some files weren’t synced</source>
        <translation>Alguns ficheiros não foram sincronizados</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Idioma do sistema</translation>
    </message>
    <message>
        <source>Advanced setup wizard</source>
        <translation>Assistente de configuração avançada</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Utilizar um ícone a preto e branco na área de notificação</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de ligação</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>A ligação está instável</translation>
    </message>
    <message>
        <source>Do you want to exit the [ProductName] installer before it has finished?</source>
        <translation>Pretende sair do instalador de [ProductName] antes de este terminar?</translation>
    </message>
    <message>
        <source>“%1” couldn’t be downloaded. Check the connection to the server and try again.</source>
        <translation>Não foi possível descarregar «%1». Verifique a ligação ao servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Segunda-feira</translation>
    </message>
    <message>
        <source>Your backup starts here</source>
        <translation>A sua cópia de segurança começa aqui</translation>
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
        <translation>O instalador de [ProductName] foi interrompido por um erro antes de poder terminar. O computador não foi alterado. Para tentar novamente, reinicie o instalador.</translation>
    </message>
    <message>
        <source>The sync direction of this task doesn’t match your permission on the server. Choose another sync direction.</source>
        <translation>A direção de sincronização desta tarefa não corresponde à sua permissão no servidor. Escolha outra direção de sincronização.</translation>
    </message>
    <message>
        <source>You don’t have permission to use this shared folder. Ask your administrator for access.</source>
        <translation>Não tem permissão para utilizar esta pasta partilhada. Peça acesso ao administrador.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Esta operação pode demorar alguns minutos.</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuração avançada</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>You can use the existing task, or set up a new one in a different folder.</source>
        <translation>Pode utilizar a tarefa existente ou configurar uma nova numa pasta diferente.</translation>
    </message>
    <message>
        <source>Another task already syncs this folder. Choose a different folder.</source>
        <translation>Outra tarefa já sincroniza esta pasta. Escolha uma pasta diferente.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar estado da sincronização</translation>
    </message>
    <message>
        <source>If you continue, the existing task will be replaced. No files will be deleted.</source>
        <translation>Se continuar, a tarefa existente será substituída. Nenhum ficheiro será apagado.</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Aguarde</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Ligação</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>A task for this folder already exists on this computer.</source>
        <translation>Já existe neste computador uma tarefa para esta pasta.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Consultar versões anteriores</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Tarnwell is indexing this folder</source>
        <translation>O Tarnwell está a indexar esta pasta</translation>
    </message>
    <message>
        <source>This task already exists</source>
        <translation>Esta tarefa já existe</translation>
    </message>
    <message>
        <source>The task couldn’t be created. Check your settings and try again.</source>
        <translation>Não foi possível criar a tarefa. Verifique as suas definições e tente novamente.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>A aguardar</translation>
    </message>
    <message>
        <source>Always keep the version on the server</source>
        <translation>Manter sempre a versão do servidor</translation>
    </message>
    <message>
        <source>Choose a local folder</source>
        <translation>Escolher uma pasta local</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Quarta-feira</translation>
    </message>
    <message>
        <source>September</source>
        <translation>Setembro</translation>
    </message>
    <message>
        <source>You can sync up to %1 shared folders. Stop syncing one of them before you add another.</source>
        <translation>O limite de pastas partilhadas sincronizadas é %1. Pare de sincronizar uma delas antes de adicionar outra.</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Abrir localização do ficheiro</translation>
    </message>
    <message>
        <source>Open local folder</source>
        <translation>Abrir pasta local</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>A newer version of Tarnwell is already installed. To install this version, remove the newer one first.</source>
        <translation>Já está instalada uma versão mais recente do Tarnwell. Para instalar esta versão, remova primeiro a mais recente.</translation>
    </message>
    <message>
        <source>The earlier versions of this file can’t be shown. Check the connection to the server and try again.</source>
        <translation>Não é possível mostrar as versões anteriores deste ficheiro. Verifique a ligação ao servidor e tente novamente.</translation>
    </message>
</context>
</TS>
