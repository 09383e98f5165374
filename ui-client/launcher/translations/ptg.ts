<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desassociar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unir</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Ocorreu um conflito ao sincronizar este ficheiro.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parâmetro inválido.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Ocorreu um erro de rede. Verifique a ligação de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Armazenamento local</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Voltar a ligar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>A testar a ligação...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>A pasta selecionada não está vazia. Os ficheiros que contém serão unidos aos ficheiros do servidor.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>A verificar a conta...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Ligação estabelecida com êxito.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>A pasta &quot;%1&quot; já existe. Pretende unir o respetivo conteúdo?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Iniciar Nimbulo Pelora automaticamente ao iniciar sessão</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Nome de utilizador ou palavra-passe incorretos.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Alterar pasta de sincronização</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>A pasta não está vazia</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Introdução a Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Colocar em pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Ficheiros atualizados recentemente</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Abrir Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>A detetar alterações...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Ligação ao servidor perdida.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Ativar sincronização</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Falha na autenticação</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Ligação direta</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>A verificar a ligação...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Ligação por retransmissão</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Não foi possível ligar automaticamente devido a um erro de sistema.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Os links de partilha estão desativados no servidor. Contacte o administrador.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 ficheiros atualizados</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Tem permissão só de leitura nesta pasta. As alterações locais não serão enviadas.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>A quota de armazenamento no servidor está cheia. Liberte espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Tipo de ligação</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informações da ligação</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alterar</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Selecione uma pasta.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Não foi possível ligar automaticamente. Verifique o endereço do servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Pastas partilhadas</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>As alterações não foram guardadas. Pretende descartá-las?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Quota cheia</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Pasta local</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Não foi possível ativar a sincronização desta pasta partilhada.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Esta pasta entra em conflito com outra tarefa de sincronização.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Atingiu o número máximo de pastas partilhadas sincronizadas.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>A aplicar as definições...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Introduza um número de porta entre 1 e 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Pasta partilhada</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Introduza o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Introduza o nome de utilizador.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuração manual do proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sem proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Utilizar as definições de proxy do sistema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>Não há alterações a aplicar.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>O servidor proxy requer autenticação</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>A atualizar ficheiros...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>As alterações em conflito são mantidas em ambas as cópias: a cópia local é mudada de nome com o nome do computador.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Endereço do servidor</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Introduza o endereço IP, o nome de anfitrião ou o ID de retransmissão do servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>O serviço de sincronização do servidor está desatualizado. Peça ao administrador para o atualizar.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações no ambiente de trabalho</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Mostrar o estado da sincronização nos ícones dos ficheiros</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Encriptar a ligação com SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Utilizar um ícone monocromático na área de notificação</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema de sincronização</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 partilhou &quot;%2&quot; consigo.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta partilhada</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>A verificar ficheiros...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Os ficheiros e pastas que correspondam a estas regras não serão sincronizados.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensões de ficheiro:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>A atualizar Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Tem a certeza de que pretende parar a sincronização de &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Partilha desativada</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Ponto de montagem não suportado</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Não foi possível remover esta tarefa de sincronização.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>O novo idioma será aplicado quando Nimbulo Pelora for reiniciada.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>O disco local está cheio. Liberte espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Tem a certeza de que pretende desassociar este servidor? Os ficheiros locais serão mantidos.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>A enviar...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinição do sistema</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>A sincronizar %1 ficheiros</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A transferir...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Definições avançadas</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nomes de ficheiro:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Ficheiros bloqueados</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>A base de dados de sincronização local está danificada. Associe novamente esta tarefa de sincronização.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Tamanho máximo do ficheiro:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filtrar ficheiros</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Tipos de ficheiro excluídos:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>As pastas que desmarcar serão removidas deste computador, mas mantidas no servidor.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de união</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Editar ligação</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Não é possível utilizar um ponto de montagem como pasta de sincronização.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>A transferência foi cancelada.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Iniciar agora</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Não tem permissão para efetuar esta operação.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerir</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>A quota de armazenamento está cheia</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>O disco local está cheio</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permissão negada</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versão incompatível</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Não foi possível obter as informações da conta a partir do servidor.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Foi detetado um problema de sincronização</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>A ligação está instável. A tentar novamente...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>A transferir %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>A ligar...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>A tentar sincronizar novamente...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Aviso de segurança</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Transferência concluída.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Regras de filtragem</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Procurar versões anteriores</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Parar a sincronização de &quot;%1&quot; irá remover a cópia local. Pretende continuar?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Ligação segura</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Escolha a pasta deste computador onde os ficheiros serão sincronizados.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Partilha</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Não foi possível transferir o ficheiro.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Descrição geral</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>O servidor foi substituído ou reposto</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Falha na verificação do certificado</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>A sincronizar...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Não foi possível verificar o certificado SSL do servidor. A ligação pode não ser segura.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Esta tarefa de sincronização está inativa. Clique para a retomar.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativa</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Não é possível transferir este ficheiro neste momento.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Não foi possível listar as versões anteriores deste ficheiro.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Não foi possível criar um link de partilha para este ficheiro.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Faça duplo clique no ícone da área de notificação para abrir a pasta de sincronização</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>A indexar a pasta...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Bem-vindo ao Assistente de Instalação de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Não foi possível inicializar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Anterior</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Pronto para instalar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alguns ficheiros que têm de ser atualizados estão a ser utilizados.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrato de Licença de Utilizador Final</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Assistente de Instalação de Nimbulo Pelora concluído</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Não fechar as aplicações. Será necessário reiniciar o computador.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Erro de instalação</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Clique no botão Concluir para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora foi instalada com êxito.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Iniciar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Alterar, reparar ou remover a instalação</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permite alterar a forma como as funcionalidades são instaladas.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>A pasta de sincronização encontra-se num volume que não está montado.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>A versão do ficheiro é inválida.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Tem a certeza de que pretende cancelar a instalação de Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Só transferência</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Tem acesso só de leitura a esta pasta. As alterações efetuadas aqui não são enviadas.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia atentamente o seguinte contrato de licença.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Leia o contrato de licença e aceite-o para continuar.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Cancelar a instalação</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora mantém os ficheiros deste computador sincronizados com o NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Seguinte &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Estado da sincronização</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>Não foi possível encontrar a pasta de sincronização local &quot;%1&quot;. Pode ter sido movida ou eliminada.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>A instalação de Nimbulo Pelora terminou prematuramente devido a um erro. O sistema não foi modificado.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Para instalar este programa mais tarde, execute novamente o Assistente de Instalação. Clique em Concluir para sair.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>A instalação terminou prematuramente</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Fechar todas as aplicações e tentar reiniciá-las.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Feche as aplicações que utilizam ficheiros que a instalação tem de atualizar.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que a instalação tem de atualizar. Feche-as e clique em Tentar novamente para continuar.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Corrige erros na instalação mais recente, reparando ficheiros em falta ou danificados, atalhos e entradas do registo.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que têm de ser atualizados.\nFeche-as ou permita que a instalação as feche e tente reiniciá-las.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Ficheiros em utilização</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora não tem funcionalidades independentes para selecionar.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Alterar as funcionalidades instaladas</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Selecione a operação que pretende efetuar.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Remove Nimbulo Pelora do computador.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Remover a instalação</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar a instalação</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Selecione a operação que pretende efetuar.\nAs definições de sincronização são mantidas.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>O Assistente de Instalação permite alterar a forma como Nimbulo Pelora está instalada, repará-la ou removê-la do computador. Clique em Seguinte para continuar ou em Cancelar para sair.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Bem-vindo à instalação de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Aguarde enquanto o Assistente de Instalação instala Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Esta operação pode demorar alguns minutos.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>A instalar Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>A instalar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Instalar para iniciar a instalação. Clique em Anterior para rever ou alterar as definições de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>O Assistente de Instalação está pronto para iniciar a instalação.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Clique em Instalar para começar.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Clique em Remover para remover Nimbulo Pelora do computador. Os ficheiros sincronizados são mantidos.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>O Assistente de Instalação está pronto para remover Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Clique em Remover para começar.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Remover Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Clique em Reparar para reparar a instalação de Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>O Assistente de Instalação está pronto para reparar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Clique em Reparar para começar.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Reparar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>A instalação de Nimbulo Pelora foi interrompida. O sistema não foi modificado.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Para instalar este programa mais tarde, execute novamente a instalação. Clique em Concluir para sair do assistente.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Instalação interrompida</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>O Assistente de Instalação irá instalar Nimbulo Pelora no computador. Clique em Seguinte para continuar ou em Cancelar para sair.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Alterar, reparar ou remover Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>A instalação foi concluída.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>A instalação foi cancelada.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Ocorreu um erro durante a instalação.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Este assistente orienta-o ao longo da instalação.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Ligar a outro NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Histórico de sincronização</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Sincronização ativada</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Pastas a sincronizar</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Os seus ficheiros em todos os dispositivos.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Os ficheiros serão agora sincronizados em segundo plano. Pode encontrá-los em %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Tem a certeza de que pretende desassociar a tarefa de sincronização &quot;%1&quot;? Os ficheiros que já se encontram neste computador são mantidos.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filtros de ficheiros</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Mostrar um ícone nos ficheiros que não são sincronizados</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>O ID de retransmissão &quot;%1&quot; não existe.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>O servidor foi alterado. Verifique as tarefas de sincronização.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>A pasta partilhada não está montada no servidor.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>A pasta remota não está disponível. Pode encontrar-se numa pasta partilhada encriptada que não está montada.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Ficheiros que começam por um ponto</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 já está instalada.\nPretende reinstalá-la?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>São necessários privilégios de administrador para instalar Nimbulo Pelora.\nExecute o instalador como administrador.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Sincronize os seus ficheiros com Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>A partilha de ficheiros não está disponível através de uma ligação LinkVane.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>ter</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Abrir pasta que contém o ficheiro</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Escolha como pretende configurar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configuração rápida</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Clique com o botão direito do rato num ficheiro da pasta de sincronização para o partilhar ou procurar versões anteriores.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Compreendi</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Abra o menu da área de notificação em qualquer altura para ver o que está a ser sincronizado.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>As alterações efetuadas são enviadas assim que as guardar.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Há %1 horas</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Não sincronizar esta pasta</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Crie uma nova pasta no NAS para sincronizar com este computador.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Pasta já sincronizada</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Esta pasta já está a ser sincronizada por outra tarefa de sincronização.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Mudar o nome</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>A preparar a sincronização...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Alterados recentemente</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Há %1 dias</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Há %1 minutos</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 itens</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Data de modificação</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Retomar a sincronização desta pasta</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Retomar a sincronização destas pastas</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Não sincronizar estas pastas</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Sem dados</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar para</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>A sincronizar: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Pesquisar por nome de ficheiro</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Tipo de ficheiro</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>sex</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de datas</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Transferência</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Envio</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>seg</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>abr</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dez</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>fev</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>jan</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>out</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>set</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>sáb</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>dom</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>qui</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>qua</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Modo avançado</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Não mostrar esta mensagem novamente</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Os ficheiros estão agora a ser sincronizados com a pasta &quot;%1&quot; no NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora foi configurada. A sua pasta pessoal no NAS está agora sincronizada com este computador.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Configuração concluída</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Os ficheiros que colocar na pasta de sincronização são mantidos atualizados no NAS e nos outros dispositivos.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>O ícone da área de notificação mostra o estado da sincronização num relance.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Modo de configuração</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Sincronize a sua pasta pessoal no NAS com uma pasta deste computador.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Não, obrigado</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bem-vindo</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Pasta de sincronização</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Ícone da área de notificação</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Partilha e versões</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Procurar NAS na rede local</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Ligar com LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Palavra-passe:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nome de utilizador:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Bem-vindo a Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Mostrar janela principal</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Pasta no NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nova pasta de sincronização</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Sincronizar uma nova pasta</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Configuração avançada</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Abrir o estado da sincronização</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Escolha que pasta do NAS pretende sincronizar, onde a manter neste computador e como a sincronizar.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Os ficheiros com mais de %1 MB não serão sincronizados.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Localizar NAS na rede local</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Tem apenas permissão de leitura para &quot;%1&quot;. As alterações efetuadas neste computador não serão enviadas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>Não é possível utilizar &quot;%1&quot; como pasta de sincronização.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Mais sugestões</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>A pasta &quot;%1&quot; sobrepõe-se à pasta de sincronização de outra tarefa.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Esta pasta já está sincronizada com &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>A pasta &quot;%1&quot; já está sincronizada com uma pasta do NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Criar uma pasta &quot;Nimbulo&quot; na localização selecionada</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copiar link de partilha</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Não foi possível obter um link de partilha porque a partilha está desativada no servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>O certificado SSL do servidor foi alterado. Confia no novo certificado?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>O seu endereço IP não tem permissão para ligar a este servidor.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Quando o mesmo ficheiro tiver sido alterado em ambos os lados:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>A direção de sincronização não corresponde às permissões desta pasta.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas seguintes</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir ficheiro</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>A desassociar...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Demasiadas tentativas falhadas. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Este ficheiro está bloqueado por outra aplicação.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Não foi possível verificar &quot;%1&quot; devido a um erro de rede.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Manter a versão modificada mais recentemente</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronização bidirecional</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Introduza o endereço do NAS e os dados da conta.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Não foi possível criar a pasta local &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Selecione uma pasta no NAS e uma pasta neste computador para sincronizar entre si.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Definir pastas de sincronização</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora está agora a sincronizar &quot;%1&quot; no NAS com &quot;%2&quot; neste computador.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Quando existirem ficheiros em conflito, a cópia do servidor é mantida e é criada uma cópia de segurança da cópia local.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Ativar sincronização a pedido</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>O código de verificação está incorreto.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Esta conta requer um código de verificação.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Introduza o código de verificação da aplicação de autenticação:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>A quota no NAS está cheia. Não é possível sincronizar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>O certificado do servidor foi alterado. Não é possível sincronizar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Não é possível verificar o certificado do servidor. Não é possível sincronizar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Ocorreu um erro de sistema ao verificar a pasta de sincronização.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Substituir a cópia local pela cópia do servidor</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Manter ambas as cópias e mudar o nome da local</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Já está instalada uma versão mais recente de Nimbulo Pelora (%1).\nA instalação será terminada.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora pronta.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora a iniciar...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Não foi encontrada nenhuma pasta que possa sincronizar.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar o tutorial</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Os ficheiros da pasta local serão unidos aos ficheiros do NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Iniciar Nimbulo Pelora quando o computador for iniciado</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Nimbulo Pelora encontrou um erro.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora está em execução.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Esta versão de Nimbulo Pelora já não é suportada. Atualize-a.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Clique para atualizar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Atualize o serviço de sincronização no servidor para utilizar a sincronização seletiva.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Não existe espaço livre suficiente neste computador para sincronizar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Inicie sessão no NAS para começar a sincronizar.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Mantenha os ficheiros deste computador sincronizados com o NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Pasta partilhada não encontrada</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Acerca de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>O administrador exige a verificação em dois passos. Ative-a primeiro nas definições da conta.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>A quota da pasta partilhada está cheia.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Direção da sincronização</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora encontrou um problema durante a sincronização. Clique para ver os detalhes.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora mantém os seus ficheiros atualizados em todos os dispositivos.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Alguns campos contêm valores inválidos.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Não tem permissão para aceder a &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>A sua conta foi desativada. Não é possível sincronizar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Expira após</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nenhuma opção disponível</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>É necessária uma conta num NAS com o serviço de sincronização instalado.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Falha na autenticação. Verifique o nome de utilizador e a palavra-passe.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Utilize * para corresponder a quaisquer carateres. Separe as entradas com vírgulas.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Transferência unidirecional</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Já existe uma pasta com o nome &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Sincronizar atributos expandidos</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Não aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Link de partilha</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Expira em</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Este campo é obrigatório.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Restringir o acesso a utilizadores com conta</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Mostrar Nimbulo Pelora no menu de contexto</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>O serviço de pasta pessoal está desativado no NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Não foi possível atualizar Nimbulo Pelora. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Aplicar e copiar link</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Limitar o número de acessos</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Disponível a partir de</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>É necessária uma nova versão de Nimbulo Pelora para ligar a este servidor. Pretende atualizar agora?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Adicionar nome de ficheiro</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Destino local</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>NAS remoto</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Transferir a versão selecionada</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Duração personalizada</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Atualizar o histórico de sincronização</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Sincronização a pedido</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filtrar o histórico de sincronização</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendário</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mês seguinte</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mês anterior</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Alterar pasta de sincronização</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Categoria do evento</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Detalhes da tarefa de sincronização</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Destino remoto</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Fechar o tutorial</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Tutorial: saiba como utilizar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Cancelar transferência</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Eliminar versão</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Não foi possível ativar a sincronização a pedido para &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Este ficheiro não está disponível porque não existe ligação ao servidor.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Nome mudado neste computador</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Nome mudado no servidor</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Introduza no máximo %1 carateres.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>A palavra-passe expirou. Altere-a no servidor e inicie sessão novamente.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Esta pasta foi sincronizada por outro utilizador. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>As ligações por retransmissão estão desativadas no servidor.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Falha na autenticação de &quot;%1&quot;. Inicie sessão novamente.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Não foi possível obter o link deste ficheiro.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Ficheiros temporários</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Parabéns!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Pastas que outras pessoas partilharam consigo</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Tem acesso só de leitura a esta pasta. As alterações efetuadas aqui permanecem apenas neste computador.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora está agora a sincronizar &quot;%1&quot; no servidor com &quot;%2&quot; neste computador.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Mostrar o tutorial de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora está em execução em segundo plano.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Inicie sessão no servidor para começar a sincronizar.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Não foi possível atualizar Nimbulo Pelora. Transfira a versão mais recente e instale-a novamente.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>É necessária uma conta num servidor com o serviço de sincronização instalado.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>As alterações em conflito são mantidas em ambas as cópias: a cópia do servidor é mudada de nome com o nome do utilizador.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Tutorial: saiba como sincronizar com Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>O ID de servidor &quot;%1&quot; não existe.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Iniciar Nimbulo Pelora ao iniciar sessão</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Escolha uma pasta no servidor e uma pasta neste computador.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Esta tarefa de sincronização pertence a outro servidor.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>O servidor utiliza um protocolo que esta versão de Nimbulo Pelora não suporta.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>O disco está cheio. Nimbulo Pelora colocou a sincronização em pausa.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Nimbulo Pelora encontrou um erro. Reinicie a aplicação.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>A pasta selecionada não está vazia. Os ficheiros que contém serão enviados para o servidor.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Transferir apenas as alterações do servidor</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Os ficheiros estão agora a ser sincronizados com a pasta &quot;%1&quot; no servidor.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 já está instalada.\nPretende reinstalá-la?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Não existe espaço livre suficiente para sincronizar &quot;%1&quot;. Liberte espaço e tente novamente.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Mantenha os ficheiros deste computador sincronizados com o servidor.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Criar uma pasta &quot;Varnex Pelora&quot; na localização selecionada</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Já está instalada uma versão mais recente de Varnex Pelora (%1).\nA instalação será terminada.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Sincronize uma pasta à sua escolha no servidor.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>A configuração automática falhou. Configure Nimbulo Pelora manualmente.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>A concluir a configuração automática...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partilhar</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Não existem dados disponíveis.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Não existem pastas partilhadas disponíveis.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>O ficheiro ou a pasta não existe.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora foi configurada pelo administrador.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Utilizadores internos</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Os utilizadores do servidor podem ver o ficheiro.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Os utilizadores do servidor podem ver e editar o ficheiro.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Pessoas específicas</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Apenas as pessoas que convidar podem aceder ao ficheiro.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Qualquer pessoa com o link</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Qualquer pessoa com o link pode ver o ficheiro.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Qualquer pessoa com o link pode ver e editar o ficheiro.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Pode ver</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Pode editar</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Convidar</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Permissão do link:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Utilizadores e grupos</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Utilizar um ícone a preto e branco na barra de menus</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Mostrar a pasta de sincronização na barra lateral das janelas de ficheiros</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Apresentação</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Não foi possível ligar ao servidor</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificações</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 comentou %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 mencionou-o em %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 pediu acesso a %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 partilhou %2 consigo</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Abrir no portal Web</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronização</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Partilhados</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 está a pedir acesso a este ficheiro.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentários</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Menções</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Pretende sincronizar também as pastas partilhadas consigo?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Envio unidirecional</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Não remover ficheiros do servidor quando forem removidos localmente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>&quot;%1&quot; foi transferido.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Os seus ficheiros estão sincronizados em todos os dispositivos.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Também pode aceder aos seus ficheiros a partir do portal Web.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>A tarefa de sincronização está pronta.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Iniciar visita guiada</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Os ficheiros e pastas que outras pessoas partilham consigo também podem ser sincronizados com este computador.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Talvez mais tarde</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Sincronizar agora</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Partilhados comigo</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Criar tarefa de sincronização</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Escolha o que pretende sincronizar.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Tarefa de sincronização geral</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Ficheiros partilhados comigo</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Sincronize os ficheiros e pastas que outras pessoas partilharam consigo.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Escolha uma pasta no NAS e uma pasta neste computador.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Esta tarefa de sincronização pertence a outro NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>O NAS utiliza um protocolo que esta versão de Nimbulo Pelora não suporta.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>O disco está cheio. A sincronização foi colocada em pausa.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Transferir apenas as alterações do NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Não foi possível atualizar Nimbulo Pelora. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Já está ligado a este NAS.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>As alterações em unidades de rede podem ser detetadas com atraso.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>O certificado SSL de %1 foi alterado.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Não é possível estabelecer uma ligação segura ao servidor.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Bem-vindo!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Os ficheiros da sua pasta pessoal no NAS encontram-se agora em %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Os ficheiros da sua pasta pessoal no servidor encontram-se agora em %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>O disco está cheio</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>O serviço de sincronização do servidor está desatualizado</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>A pasta partilhada já não existe.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Clique para atualizar para Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Esta versão de Nimbulo Pelora é demasiado antiga para ligar ao servidor. Atualize-a.</translation>
    </message>
</context>
</TS>
