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
        <translation>Desvincular</translation>
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
        <translation>Mesclar</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Ocorreu um conflito ao sincronizar este arquivo.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parâmetro inválido.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Ocorreu um erro de rede. Verifique sua conexão de rede e tente novamente.</translation>
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
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>A pasta selecionada não está vazia. Os arquivos dela serão mesclados com os arquivos do servidor.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Verificando sua conta...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conectado com sucesso.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>A pasta &quot;%1&quot; já existe. Deseja mesclar o conteúdo dela?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Iniciar o Nimbulo Pelora automaticamente quando eu fizer login</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Nome de usuário ou senha incorretos.</translation>
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
        <translation>Introdução ao Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Arquivos atualizados recentemente</translation>
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
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
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
        <translation>Abrir o Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Detectando alterações...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Desconectado do servidor.</translation>
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
        <translation>Conexão direta</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Verificando a conexão...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Conexão por retransmissão</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Não foi possível conectar automaticamente devido a um erro do sistema.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Os links de compartilhamento estão desativados no servidor. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 arquivos atualizados</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Você tem permissão somente leitura nesta pasta. As alterações locais não serão enviadas.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Sua cota de armazenamento no servidor está cheia. Libere espaço para continuar sincronizando.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Tipo de conexão</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informações da conexão</translation>
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
        <translation>Não foi possível conectar automaticamente. Verifique o endereço do servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Pastas compartilhadas</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Suas alterações não foram salvas. Deseja descartá-las?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Cota cheia</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Pasta local</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Não foi possível ativar a sincronização desta pasta compartilhada.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Esta pasta entra em conflito com outra tarefa de sincronização.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Você atingiu o número máximo de pastas compartilhadas sincronizadas.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando as configurações...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Insira um número de porta entre 1 e 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Pasta compartilhada</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Insira o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Insira seu nome de usuário.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuração manual de proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sem proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usar as configurações de proxy do sistema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
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
        <translation>Nenhuma alteração a aplicar.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de usuário</translation>
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
        <translation>Atualizando arquivos...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Alterações conflitantes são mantidas nas duas cópias: a cópia local é renomeada com o nome do computador.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Endereço do servidor</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Insira o endereço IP, o nome do host ou o ID de retransmissão do servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>O serviço de sincronização do servidor está desatualizado. Peça ao administrador para atualizá-lo.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações na área de trabalho</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Mostrar o status da sincronização nos ícones dos arquivos</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Criptografar a conexão com SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Usar um ícone monocromático na área de notificação</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema de sincronização</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 compartilhou &quot;%2&quot; com você.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta compartilhada</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Verificando arquivos...</translation>
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
        <translation>Arquivos e pastas que correspondem a estas regras não serão sincronizados.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensões de arquivo:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Atualizando o Nimbulo Pelora...</translation>
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
        <translation>Tem certeza de que deseja parar de sincronizar &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Compartilhamento desativado</translation>
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
        <translation>O novo idioma será aplicado depois que o Nimbulo Pelora for reiniciado.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>O disco local está cheio. Libere espaço para continuar sincronizando.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Tem certeza de que deseja se desvincular deste servidor? Seus arquivos locais serão mantidos.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Enviando...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Sincronizando %1 arquivos</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Configurações avançadas</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nomes de arquivo:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Arquivos bloqueados</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>O banco de dados de sincronização local está corrompido. Vincule esta tarefa de sincronização novamente.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Tamanho máximo de arquivo:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filtrar arquivos</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Tipos de arquivo excluídos:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>As pastas que você desmarcar serão removidas deste computador, mas mantidas no servidor.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de mesclagem</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Editar conexão</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausado</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Um ponto de montagem não pode ser usado como pasta de sincronização.</translation>
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
        <translation>O download foi cancelado.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Iniciar agora</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Você não tem permissão para executar esta operação.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerenciar</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Sua cota de armazenamento está cheia</translation>
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
        <translation>Não foi possível obter as informações da sua conta no servidor.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Problema de sincronização detectado</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>A conexão está instável. Tentando novamente...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Baixando %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Tentando sincronizar novamente...</translation>
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
        <translation>Download concluído.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Regras de filtro</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nº</translation>
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
        <translation>Parar a sincronização de &quot;%1&quot; removerá a cópia local. Deseja continuar?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Conexão segura</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Escolha a pasta deste computador onde seus arquivos serão sincronizados.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Compartilhamento</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Não foi possível baixar o arquivo.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>O servidor foi substituído ou redefinido</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Falha na verificação do certificado</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>Não foi possível verificar o certificado SSL do servidor. A conexão pode não ser segura.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Esta tarefa de sincronização está inativa. Clique para retomá-la.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativa</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Não é possível baixar este arquivo no momento.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Não foi possível listar as versões anteriores deste arquivo.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Não foi possível criar um link de compartilhamento para este arquivo.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Clique duas vezes no ícone da área de notificação para abrir a pasta de sincronização</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indexando a pasta...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Bem-vindo ao Assistente de Instalação do Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Não foi possível inicializar o Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Voltar</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Pronto para instalar o Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alguns arquivos que precisam ser atualizados estão em uso.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrato de Licença de Usuário Final</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Assistente de Instalação do Nimbulo Pelora concluído</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Não fechar os aplicativos. Será necessário reiniciar o computador.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Erro de instalação</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Clique em Concluir para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>O Nimbulo Pelora foi instalado com sucesso.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Iniciar o Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Alterar, reparar ou remover a instalação</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permite alterar a forma como os recursos são instalados.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>A pasta de sincronização está em um volume que não está montado.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>A versão do arquivo é inválida.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Tem certeza de que deseja cancelar a instalação do Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Somente download</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Você tem acesso somente leitura a esta pasta. As alterações feitas aqui não são enviadas.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia atentamente o contrato de licença a seguir.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Leia o contrato de licença e aceite-o para continuar.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Cancelar instalação</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>O Nimbulo Pelora mantém os arquivos deste computador sincronizados com seu NAS.</translation>
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
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Avançar &gt;</translation>
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
        <translation>Status da sincronização</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>A pasta de sincronização local &quot;%1&quot; não foi encontrada. Ela pode ter sido movida ou excluída.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>A instalação do Nimbulo Pelora foi encerrada prematuramente devido a um erro. Seu sistema não foi modificado.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Para instalar este programa mais tarde, execute o Assistente de Instalação novamente. Clique em Concluir para sair.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>A instalação foi encerrada prematuramente</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Fechar todos os aplicativos e tentar reiniciá-los.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Feche os aplicativos que usam arquivos que a instalação precisa atualizar.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Os aplicativos a seguir estão usando arquivos que a instalação precisa atualizar. Feche-os e clique em Tentar novamente para continuar.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Corrige erros na instalação mais recente, reparando arquivos ausentes ou corrompidos, atalhos e entradas do Registro.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Os aplicativos a seguir estão usando arquivos que precisam ser atualizados.\nFeche-os ou deixe que a instalação os feche e tente reiniciá-los.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Arquivos em uso</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>O Nimbulo Pelora não tem recursos independentes para selecionar.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Alterar os recursos instalados</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Selecione a operação que deseja executar.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Remove o Nimbulo Pelora do seu computador.</translation>
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
        <translation>Selecione a operação que deseja executar.\nSuas configurações de sincronização serão mantidas.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>O Assistente de Instalação permite alterar a forma como o Nimbulo Pelora está instalado, repará-lo ou removê-lo do seu computador. Clique em Avançar para continuar ou em Cancelar para sair.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Bem-vindo à instalação do Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Aguarde enquanto o Assistente de Instalação instala o Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Isso pode levar alguns minutos.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Instalando o Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Instalando o Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Instalar para iniciar a instalação. Clique em Voltar para revisar ou alterar as configurações da instalação. Clique em Cancelar para sair do assistente.</translation>
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
        <translation>Clique em Remover para remover o Nimbulo Pelora do seu computador. Seus arquivos sincronizados serão mantidos.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>O Assistente de Instalação está pronto para remover o Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Clique em Remover para começar.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Remover o Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Clique em Reparar para reparar a instalação do Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>O Assistente de Instalação está pronto para reparar o Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Clique em Reparar para começar.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Reparar o Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>A instalação do Nimbulo Pelora foi interrompida. Seu sistema não foi modificado.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Para instalar este programa mais tarde, execute a instalação novamente. Clique em Concluir para sair do assistente.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Instalação interrompida</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>O Assistente de Instalação instalará o Nimbulo Pelora no seu computador. Clique em Avançar para continuar ou em Cancelar para sair.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Alterar, reparar ou remover o Nimbulo Pelora.</translation>
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
        <translation>Este assistente orienta você durante a instalação.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Conectar a outro NAS</translation>
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
        <translation>Seus arquivos em todos os dispositivos.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Seus arquivos agora serão sincronizados em segundo plano. Você pode encontrá-los em %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Tem certeza de que deseja desvincular a tarefa de sincronização &quot;%1&quot;? Os arquivos que já estão neste computador serão mantidos.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filtros de arquivo</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Mostrar um ícone nos arquivos que não são sincronizados</translation>
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
        <translation>O servidor foi alterado. Verifique suas tarefas de sincronização.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>A pasta compartilhada não está montada no servidor.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>A pasta remota não está disponível. Ela pode estar em uma pasta compartilhada criptografada que não está montada.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Arquivos que começam com ponto</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>O Nimbulo Pelora %1 já está instalado.\nDeseja reinstalá-lo?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Você precisa de privilégios de administrador para instalar o Nimbulo Pelora.\nExecute o instalador como administrador.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Sincronize seus arquivos com o Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>O compartilhamento de arquivos não está disponível em uma conexão LinkVane.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>ter</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Abrir pasta do arquivo</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Escolha como deseja configurar o Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configuração rápida</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Clique com o botão direito do mouse em um arquivo da pasta de sincronização para compartilhá-lo ou procurar versões anteriores.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendi</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Abra o menu da área de notificação a qualquer momento para ver o que está sendo sincronizado.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>As alterações que você faz são enviadas assim que você as salva.</translation>
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
        <translation>Esta pasta já está sendo sincronizada por outra tarefa de sincronização.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Preparando a sincronização...</translation>
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
        <translation>Sincronizando agora: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Pesquisar por nome de arquivo</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Tipo de arquivo</translation>
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
        <translation>Download</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
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
        <translation>Upload</translation>
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
        <translation>Seus arquivos agora estão sendo sincronizados com a pasta &quot;%1&quot; no NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>O Nimbulo Pelora foi configurado. Sua pasta pessoal no NAS agora está sincronizada com este computador.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Configuração concluída</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Os arquivos que você coloca na pasta de sincronização ficam atualizados no NAS e nos seus outros dispositivos.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>O ícone da área de notificação mostra o status da sincronização rapidamente.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Modo de configuração</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Sincronize sua pasta pessoal no NAS com uma pasta deste computador.</translation>
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
        <translation>Compartilhamento e versões</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Procurar NAS na rede local</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Conectar com o LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Bem-vindo ao Nimbulo Pelora</translation>
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
        <translation>Abrir status da sincronização</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Escolha qual pasta do NAS sincronizar, onde mantê-la neste computador e como sincronizá-la.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Arquivos maiores que %1 MB não serão sincronizados.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Localizar NAS na rede local</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Você tem apenas permissão de leitura para &quot;%1&quot;. As alterações feitas neste computador não serão enviadas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>&quot;%1&quot; não pode ser usada como pasta de sincronização.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Mais dicas</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>A pasta &quot;%1&quot; se sobrepõe à pasta de sincronização de outra tarefa.</translation>
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
        <translation>Criar uma pasta &quot;Nimbulo&quot; no local selecionado</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copiar link de compartilhamento</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Não foi possível obter um link de compartilhamento porque o compartilhamento está desativado no servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>O certificado SSL do servidor mudou. Você confia no novo certificado?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Seu endereço IP não tem permissão para se conectar a este servidor.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Quando o mesmo arquivo for alterado nos dois lados:</translation>
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
        <translation>Próximas %1 páginas</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Muitas tentativas malsucedidas. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Este arquivo está bloqueado por outro aplicativo.</translation>
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
        <translation>Insira o endereço do seu NAS e os dados da sua conta.</translation>
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
        <translation>O Nimbulo Pelora agora está sincronizando &quot;%1&quot; no NAS com &quot;%2&quot; neste computador.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Quando houver conflito entre arquivos, a cópia do servidor será mantida e será feito backup da cópia local.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Ativar sincronização sob demanda</translation>
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
        <translation>Insira o código de verificação do seu aplicativo autenticador:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Sua cota no NAS está cheia. Não é possível sincronizar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>O certificado do servidor mudou. Não é possível sincronizar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>Não é possível verificar o certificado do servidor. Não é possível sincronizar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Ocorreu um erro do sistema ao verificar a pasta de sincronização.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Substituir a cópia local pela cópia do servidor</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Manter as duas cópias e renomear a local</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Uma versão mais recente do Nimbulo Pelora (%1) já está instalada.\nA instalação será encerrada.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>O Nimbulo Pelora está pronto.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>O Nimbulo Pelora está sendo inicializado...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>Nenhuma pasta que você possa sincronizar foi encontrada.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar o tutorial</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Os arquivos da pasta local serão mesclados com os arquivos do NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Iniciar o Nimbulo Pelora quando o computador for iniciado</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>O Nimbulo Pelora encontrou um erro.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>O Nimbulo Pelora está em execução.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Esta versão do Nimbulo Pelora não é mais suportada. Atualize-a.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Clique para atualizar o Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Atualize o serviço de sincronização no servidor para usar a sincronização seletiva.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>Não há espaço livre suficiente neste computador para sincronizar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Entre no seu NAS para começar a sincronizar.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Mantenha os arquivos deste computador sincronizados com seu NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Pasta compartilhada não encontrada</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Sobre o Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>O administrador exige a verificação em duas etapas. Ative-a primeiro nas configurações da sua conta.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>A cota da pasta compartilhada está cheia.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Direção da sincronização</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>O Nimbulo Pelora encontrou um problema durante a sincronização. Clique para ver os detalhes.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>O Nimbulo Pelora mantém seus arquivos atualizados em todos os seus dispositivos.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Alguns campos contêm valores inválidos.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>Você não tem permissão para acessar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Sua conta foi desativada. Não é possível sincronizar &quot;%1&quot;.</translation>
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
        <translation>Você precisa de uma conta em um NAS com o serviço de sincronização instalado.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Falha na autenticação. Verifique seu nome de usuário e senha.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Use * para corresponder a quaisquer caracteres. Separe as entradas com vírgulas.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Download unidirecional</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Já existe uma pasta chamada &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Sincronizar atributos estendidos</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>Não aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Link de compartilhamento</translation>
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
        <translation>Restringir o acesso a usuários com conta</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Mostrar o Nimbulo Pelora no menu de contexto</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>O serviço de pasta pessoal está desativado no NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Não foi possível atualizar o Nimbulo Pelora. Tente novamente mais tarde.</translation>
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
        <translation>É necessária uma nova versão do Nimbulo Pelora para se conectar a este servidor. Atualizar agora?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Adicionar nome de arquivo</translation>
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
        <translation>Baixar a versão selecionada</translation>
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
        <translation>Sincronização sob demanda</translation>
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
        <translation>Próximo mês</translation>
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
        <translation>Tutorial: saiba como usar o Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Cancelar download</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Excluir versão</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Não foi possível ativar a sincronização sob demanda para &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Este arquivo não está disponível porque não há conexão com o servidor.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Renomeado neste computador</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Renomeado no servidor</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Insira no máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Sua senha expirou. Altere-a no servidor e entre novamente.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Esta pasta foi sincronizada por outro usuário. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>As conexões por retransmissão estão desativadas no servidor.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Falha na autenticação de &quot;%1&quot;. Entre novamente.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Não foi possível obter o link deste arquivo.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Arquivos temporários</translation>
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
        <translation>Pastas que outras pessoas compartilharam com você</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Você tem acesso somente leitura a esta pasta. As alterações feitas aqui ficam apenas neste computador.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>O Nimbulo Pelora agora está sincronizando &quot;%1&quot; no servidor com &quot;%2&quot; neste computador.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Mostrar o tutorial do Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>O Nimbulo Pelora está em execução em segundo plano.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Entre no seu servidor para começar a sincronizar.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Não foi possível atualizar o Nimbulo Pelora. Baixe a versão mais recente e instale-a novamente.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Você precisa de uma conta em um servidor com o serviço de sincronização instalado.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Alterações conflitantes são mantidas nas duas cópias: a cópia do servidor é renomeada com o nome do usuário.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Tutorial: saiba como sincronizar com o Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>O ID de servidor &quot;%1&quot; não existe.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Iniciar o Nimbulo Pelora quando eu entrar</translation>
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
        <translation>O servidor usa um protocolo que esta versão do Nimbulo Pelora não suporta.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>O disco está cheio. O Nimbulo Pelora pausou a sincronização.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>O Nimbulo Pelora encontrou um erro. Reinicie-o.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>A pasta selecionada não está vazia. Os arquivos dela serão enviados ao servidor.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Baixar apenas as alterações do servidor</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Seus arquivos agora estão sendo sincronizados com a pasta &quot;%1&quot; no servidor.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>O Varnex Pelora %1 já está instalado.\nDeseja reinstalá-lo?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Não há espaço livre suficiente para sincronizar &quot;%1&quot;. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Mantenha os arquivos deste computador sincronizados com seu servidor.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Criar uma pasta &quot;Varnex Pelora&quot; no local selecionado</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Uma versão mais recente do Varnex Pelora (%1) já está instalada.\nA instalação será encerrada.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Sincronize uma pasta de sua escolha no servidor.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Falha na configuração automática. Configure o Nimbulo Pelora manualmente.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Concluindo a configuração automática...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartilhar</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>Não há dados disponíveis.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>Não há pastas compartilhadas disponíveis.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>O arquivo ou a pasta não existe.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>O Nimbulo Pelora foi configurado pelo administrador.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Usuários internos</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Os usuários do servidor podem visualizar o arquivo.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Os usuários do servidor podem visualizar e editar o arquivo.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Pessoas específicas</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Somente as pessoas que você convidar podem acessar o arquivo.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Qualquer pessoa com o link</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Qualquer pessoa com o link pode visualizar o arquivo.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Qualquer pessoa com o link pode visualizar e editar o arquivo.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Pode visualizar</translation>
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
        <translation>Usuários e grupos</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Usar um ícone em preto e branco na barra de menus</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Mostrar a pasta de sincronização na barra lateral das janelas de arquivos</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Exibição</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Não foi possível conectar ao servidor</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificações</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 comentou em %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 mencionou você em %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 solicitou acesso a %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 compartilhou %2 com você</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Abrir no portal da Web</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronização</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Compartilhados</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 está solicitando acesso a este arquivo.</translation>
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
        <translation>Sincronizar também as pastas compartilhadas com você?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Upload unidirecional</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Não remover arquivos do servidor quando forem removidos localmente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>&quot;%1&quot; foi baixado.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Seus arquivos estão sincronizados em todos os dispositivos.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Você também pode acessar seus arquivos pelo portal da Web.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Sua tarefa de sincronização está pronta.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Iniciar tour</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Os arquivos e pastas que outras pessoas compartilham com você também podem ser sincronizados com este computador.</translation>
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
        <translation>Compartilhados comigo</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Criar tarefa de sincronização</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Escolha o que deseja sincronizar.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Tarefa de sincronização geral</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Arquivos compartilhados comigo</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Sincronize os arquivos e pastas que outras pessoas compartilharam com você.</translation>
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
        <translation>O NAS usa um protocolo que esta versão do Nimbulo Pelora não suporta.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>O disco está cheio. A sincronização foi pausada.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Baixar apenas as alterações do NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Não foi possível atualizar o Nimbulo Pelora. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Você já está conectado a este NAS.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>As alterações em unidades de rede podem ser detectadas com atraso.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>O certificado SSL de %1 mudou.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>Não é possível estabelecer uma conexão segura com o servidor.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Bem-vindo!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Os arquivos da sua pasta pessoal no NAS agora estão em %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Os arquivos da sua pasta pessoal no servidor agora estão em %1.</translation>
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
        <translation>A pasta compartilhada não existe mais.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Clique para atualizar para o Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Esta versão do Nimbulo Pelora é antiga demais para se conectar ao servidor. Atualize-a.</translation>
    </message>
</context>
</TS>
