<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Ligação de partilha</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>O Calderix Drive mantém os ficheiros deste computador sincronizados com o seu NAS. Clique em Começar agora para emparelhar este computador com o seu NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>A carregar</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>Não pode criar mais de %1 ligações de partilha.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Os ficheiros com mais de %1 MB não serão sincronizados.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Sincronização a pedido</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>A pasta selecionada não pode ser utilizada como pasta de sincronização. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Sincronizar ficheiros temporários</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Retransmissão Farrowlink</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Manter ambos os ficheiros e mudar o nome do ficheiro em conflito</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permite alterar a forma como as funcionalidades são instaladas.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Configuração permite alterar a forma como o Calderix Drive está instalado no computador, repará-lo ou removê-lo. Clique em Seguinte para continuar ou em Cancelar para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 partilhou uma pasta consigo.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Clique no botão Concluir para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Escolha outra pasta local ou outra pasta partilhada no NAS.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>A configuração foi concluída.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Limitar o número de acessos</translation>
    </message>
    <message>
        <source>October</source>
        <translation>outubro</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>A sincronizar %1 ficheiros</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Não é possível criar uma ligação de partilha para este item.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Detalhes do endereço do servidor</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>A direção de sincronização desta pasta não corresponde à definição no NAS.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Precisa de direitos de administrador para instalar o Calderix Drive. Pretende continuar mesmo assim?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Esta pasta sobrepõe-se a uma pasta de sincronização existente. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Pastas de sincronização</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Transferido</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>A sua quota de armazenamento no NAS está cheia. Liberte algum espaço ou peça ao seu administrador uma quota maior.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>A ligação automática foi cancelada pelo administrador.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domingo</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Definições...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>A configuração do Calderix Drive terminou prematuramente</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parâmetro inválido.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que a configuração tem de atualizar. Pode fechá-las e clicar em Tentar novamente, ou clicar em Ignorar para continuar mesmo assim.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Esta pasta está a ser indexada.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Histórico de transferências</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Combinar os ficheiros de ambos os lados</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar o guia de introdução</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Alterar a pasta de sincronização</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronização bidirecional</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Acerca do Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Ficheiros excluídos da sincronização</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerir</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Utilizar as definições de proxy do sistema</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Escolha como pretende configurar o Calderix Drive.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Começar agora</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>Não existe espaço livre suficiente no disco desta pasta. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco cheio</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>As alterações feitas por outros computadores numa unidade de rede podem não ser detetadas de imediato.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Introduza um nome de utilizador.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>A verificar o seu nome de utilizador e palavra-passe...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta partilhada</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>A sua quota de armazenamento no NAS está cheia. Liberte algum espaço antes de sincronizar esta pasta.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>O servidor enviou uma resposta inesperada.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>A sincronizar...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Introduza no máximo %1 carateres.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>segunda-feira</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bem-vindo</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Para começar, emparelhe este computador com o seu NAS.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>As pastas que desmarcar serão removidas deste computador, mas permanecerão no NAS. Pretende continuar?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Abrir o Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamanho máximo de ficheiro</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Esta versão do Calderix Drive é demasiado antiga para o NAS. Atualize o Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>A ligação está instável</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Configuração avançada</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Parar a transferência da versão</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 partilhou a pasta %2 consigo.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Mudado de nome</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Pasta não vazia</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Fechar as aplicações e tentar reiniciá-las.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendário</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Manter os ficheiros em conflito numa pasta separada</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julho</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 é um ponto de montagem e não pode ser utilizado como pasta de sincronização.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas seguintes</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>Não existem registos para mostrar.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>Tem a certeza de que pretende desassociar esta tarefa de sincronização? Os ficheiros deste computador e do NAS serão mantidos.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>A ligar...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>A configuração do Calderix Drive terminou prematuramente devido a um erro. O sistema não foi modificado. Para instalar este programa mais tarde, execute novamente o Assistente de Configuração.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>Não foi possível estabelecer uma ligação segura ao NAS.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direção da sincronização</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema de sincronização</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Carregado</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>A ligação ao NAS foi perdida.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>O NAS foi alterado</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Os ficheiros deste computador em conflito com ficheiros do NAS mudarão de nome e serão mantidos.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Obter ligação de partilha</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versões incompatíveis</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>Falha ao transferir %1.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>O disco deste computador está cheio.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Atualize o pacote do NAS para utilizar a sincronização seletiva.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>O nome de utilizador ou a palavra-passe estão incorretos.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Esta pasta de sincronização pertence a outro NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar ícones de estado da sincronização em ficheiros e pastas</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>A configuração foi interrompida.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>A pasta %1 não está vazia.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>A concluir a configuração...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>Não foi possível ativar a sincronização a pedido.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>A transferência foi interrompida.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Será criada uma nova tarefa de sincronização para %1.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Retomar a sincronização destas pastas</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Pronto para reparar o Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Sincronizar com um novo NAS</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>Não foi possível verificar o certificado do NAS.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>O ID de ligação não é válido.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Está disponível uma versão mais recente do Calderix Drive. Atualizar agora?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>O certificado do NAS foi alterado.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Clique com o botão direito do rato num ficheiro da sua pasta de sincronização para obter uma ligação de partilha.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>A pasta não está vazia. Pretende combinar o respetivo conteúdo com a pasta no NAS?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mais detalhes</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Selecione a operação que pretende efetuar.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Os seus ficheiros, em todo o lado.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrato de Licença de Utilizador Final</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desassociar</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alguns ficheiros que têm de ser atualizados estão atualmente em utilização.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>A chave de configuração já foi aplicada.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinição do sistema</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar a instalação</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Disponível a partir de</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Substituir o ficheiro neste computador</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Introduza o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>A pasta selecionada é só de leitura. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>As ligações por retransmissão estão desativadas no NAS.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>A atualizar...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>O certificado do NAS foi alterado desde a última sincronização desta pasta.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Criar uma pasta do Calderix Drive</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Mostrar ícones nos ficheiros que não são sincronizados</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Definições avançadas</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restringir o acesso</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Anterior</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de datas</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>Não foi possível encontrar a pasta de sincronização local %1.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Procurar versões anteriores</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>A detetar a ligação...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Assistente de configuração avançada</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Os ficheiros que colocar na sua pasta de sincronização são mantidos atualizados no NAS e em todos os seus computadores.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>Não foi possível eliminar a ligação de partilha.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Endereço do servidor</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>A instalar o Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>quinta-feira</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>terça-feira</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Ligado a outro NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Partilhe ficheiros</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Alterar</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>Não foi possível criar a pasta local.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Ligação segura (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>A configuração do Calderix Drive foi interrompida. O sistema não foi modificado. Para instalar este programa mais tarde, execute novamente o Assistente de Configuração.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Editar ligação</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Seguinte &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>Não é possível transferir este item.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>Não foi possível abrir a base de dados local.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Aplicar a todas as subpastas</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Não sincronizar estas pastas</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 foi transferido.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Ficheiros atualizados recentemente</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Tarefa de sincronização duplicada</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>O NAS exige a verificação em dois passos para a sua conta.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>Pretende eliminar esta ligação de partilha?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>O Calderix Drive já está em execução.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Aviso de segurança</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Abrir o estado da sincronização</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Esta pasta do sistema não pode ser utilizada como pasta de sincronização.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Não sincronizar esta pasta</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Clique no ícone do Calderix Drive na barra de menus para ver o estado da sincronização e alterar as definições.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Ligação estabelecida com êxito.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>sexta-feira</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>Não foi possível verificar o certificado do NAS. Pretende continuar?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Este ficheiro não pertence a nenhuma ligação.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Aceda a partir de qualquer lugar</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dezembro</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>O servidor proxy requer uma palavra-passe</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Pasta de sincronização no NAS</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Escolha a pasta partilhada, a pasta local e as opções de sincronização.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Os ficheiros com estes nomes não serão sincronizados.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Bem-vindo ao Assistente de Configuração do Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Alguns campos contêm valores inválidos.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>A aplicar as definições...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Tem a certeza de que pretende cancelar a instalação do Calderix Drive?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Configuração irá instalar o Calderix Drive no computador. Clique em Seguinte para continuar ou em Cancelar para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Ponto de montagem não suportado</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Descrição geral do NAS</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>A&amp;ceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Estado do Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Sincronize os seus ficheiros</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Esta versão do Calderix Drive já está instalada.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Remover o Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>setembro</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Há %1 minutos</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Sincronização em pausa</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Qualquer pessoa com a ligação pode abrir o ficheiro num navegador web.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>A sua conta foi desativada no NAS.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maio</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Remover a instalação</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Não foi possível atualizar o Calderix Drive.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>Não foi possível obter as suas informações de utilizador a partir do NAS.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de ligação</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Pronto para instalar o Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecione uma pasta</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Sincronização seletiva de pastas</translation>
    </message>
    <message>
        <source>February</source>
        <translation>fevereiro</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>A configuração do Calderix Drive foi interrompida</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>A sua palavra-passe expirou. Altere-a no NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Introduza o código de verificação</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>O nome de utilizador ou a palavra-passe do servidor proxy estão incorretos.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Expira a</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Os seus ficheiros são agora mantidos sincronizados com o NAS.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>As ligações de partilha não estão disponíveis através de uma ligação Farrowlink.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Mostrar o Calderix Drive no menu de contexto</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>O serviço Ostrel está desativado no NAS. Peça ao seu administrador para o ativar.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Não foi possível sincronizar alguns ficheiros.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>A iniciar o Calderix Drive...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Há %1 horas</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Escolha a pasta do NAS a sincronizar e onde a guardar neste computador.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Utilizar um ícone a preto e branco na barra de menus</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativo</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Esta pasta partilhada já está sincronizada com outra pasta.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Abra os seus ficheiros sincronizados a partir de qualquer computador emparelhado com o NAS.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>Não foi possível obter a ligação para o ficheiro.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sem proxy</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronização</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Este campo não pode estar vazio.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Tentar novamente</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>A procurar alterações...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Percebi</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Bem-vindo ao Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Destino remoto</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Pasta só de leitura</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Alterar, reparar ou remover a instalação</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nova pasta de sincronização</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>A carregar a lista de pastas...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que têm de ser atualizados por esta configuração. Feche estas aplicações e clique em Tentar novamente para continuar.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Ligar através do Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Já existe um ficheiro com o mesmo nome.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Crie uma nova pasta para sincronizar com o NAS.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>O certificado do NAS foi alterado. Confia no novo certificado?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>Não é possível listar as versões deste ficheiro.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Adicionar nome de ficheiro</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>A transferir %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Demasiadas tentativas falhadas. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Partilha ativada</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel desativado</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Todos os ficheiros estão atualizados</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Tudo pronto</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>O volume da pasta de sincronização %1 não está montado.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Esta pasta já está sincronizada com a mesma pasta partilhada no NAS.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Pasta partilhada em falta</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Clique para atualizar o Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Utilizar uma ligação segura (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir ficheiro</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>A configuração está pronta para iniciar a instalação.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Quando o mesmo ficheiro foi alterado em ambos os lados:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Reparar para reparar a instalação do Calderix Drive. Clique em Anterior para rever ou alterar qualquer definição de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Adicionar tarefa de sincronização</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>A preparar</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>A atualizar...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>Esta versão do Calderix Drive não é suportada pelo NAS. Atualize o Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Ativar a sincronização</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>Não tem permissão para aceder a esta pasta.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>A pasta %1 é só de leitura.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Atualizar o Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>O código de verificação está incorreto.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Os seus ficheiros continuam disponíveis mesmo quando este computador está sem ligação.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>A verificar os dados...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Categoria do registo</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Iniciar o Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>A atualização falhou.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Pasta de sincronização</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Modo de sincronização seletiva</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Definições de proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Voltar a ligar</translation>
    </message>
    <message>
        <source>March</source>
        <translation>março</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Falha no início de sessão</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Ficheiros em utilização</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Mudado de nome neste computador</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>Não existe nenhuma pasta que possa ser sincronizada.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Pasta de sincronização</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Sincronização unidirecional (só transferência)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Selecione a pasta partilhada no NAS que pretende sincronizar.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Procurar dispositivos NAS na rede local</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Remover para remover o Calderix Drive do computador. Clique em Anterior para rever ou alterar qualquer definição de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuração manual do proxy</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>A pasta partilhada já não existe no NAS.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não voltar a mostrar esta mensagem</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Mantenha-se informado</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Ligação direta</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Mais sugestões</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>A ligar a %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Introduza um número de porta entre 1 e 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Sincronização seletiva de ficheiros</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Quota cheia</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervalo personalizado</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Abrir a pasta do Calderix Drive</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>A pasta partilhada não está montada no NAS.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Instalar para iniciar a instalação. Clique em Anterior para rever ou alterar qualquer definição de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>A pasta remota não está disponível porque o respetivo volume não está montado.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações no ambiente de trabalho</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>A configuração está pronta para instalar o Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configuração rápida</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Desativar a sincronização desta pasta remove-a da lista de sincronização. Os ficheiros permanecem no NAS e neste computador. Continuar?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Retomar a sincronização desta pasta</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Eliminar ligação</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Cancelar configuração</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Já existe uma tarefa de sincronização para esta pasta.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Esta pasta foi sincronizada por outra conta de utilizador.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Não foi alterada nenhuma definição.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>Falha no início de sessão. Verifique o seu nome de utilizador e a sua palavra-passe.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Os ficheiros que correspondem a estes filtros não serão sincronizados.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>Não existe espaço livre suficiente no NAS.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Só transferência</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>A desassociar...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Retomar a sincronização</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Assistente de Configuração do Calderix Drive concluído</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Definir a pasta de sincronização</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Guia de introdução</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Expira após %1 acessos</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>O conteúdo de ambas as pastas será combinado.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Aguarde enquanto o Assistente de Configuração instala o Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mês seguinte</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>A transferir</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>Não tem permissão para efetuar esta operação.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Repara erros na instalação mais recente corrigindo ficheiros em falta ou danificados, atalhos e entradas de registo.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>Não foi possível ativar a sincronização para esta pasta.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>Não existe nenhuma versão anterior deste ficheiro.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Atualizar o registo de sincronização</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Clique em Remover para remover o Calderix Drive do computador.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Remove o Calderix Drive do computador.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Reparar o Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Modo de configuração</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Extensão de ficheiro</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 itens</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>Nenhuma opção disponível</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Sincronize e partilhe os seus ficheiros com o seu NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permissão negada</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Mudado de nome no NAS</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Aguarde enquanto o Assistente de Configuração instala o Calderix Drive. Esta operação pode demorar vários minutos.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Iniciar o Calderix Drive ao iniciar sessão</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Este assistente irá orientá-lo durante a instalação.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de ficheiro</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Manter o ficheiro modificado mais recentemente</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Este computador já está emparelhado com este NAS.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia atentamente o seguinte contrato de licença.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Não foi possível iniciar o Calderix Drive.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>O pacote do NAS é demasiado antigo para esta versão do Calderix Drive. Atualize o pacote no NAS.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nova partilha</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Introduza o código de verificação.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>O novo idioma será utilizado depois de reiniciar o Calderix Drive.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>A inicializar o Calderix Drive...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Informações de emparelhamento</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>Tem a certeza de que pretende desassociar-se de %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junho</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>O Calderix Drive foi instalado com êxito.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ocorreu um erro desconhecido.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Não aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Pesquisar na rede local</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>Não existe espaço livre suficiente neste computador.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Pasta de sincronização local</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Optou por remover o programa do sistema.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>O Calderix Drive não tem funcionalidades independentes para alterar.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>Não necessário</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>O Calderix Drive vai começar a sincronizar os seus ficheiros com o NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>As suas alterações não foram guardadas. Pretende guardá-las?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Alterar idioma</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Destino local</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>As ligações a partir deste endereço IP estão bloqueadas pelo NAS.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Já está instalada uma versão mais recente do Calderix Drive.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>quarta-feira</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Transferir uma versão anterior</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Ocorreu um erro de rede ao verificar a pasta de sincronização. Tente novamente.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Erro de certificado</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Há %1 dias</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Clique em Reparar para reparar o Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Alterar, reparar ou remover o Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Ficheiros atualizados</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Tarefa de sincronização</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Eliminar a versão transferida</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Ficheiros excluídos</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Duração personalizada</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Introduza o endereço do seu NAS e a sua conta de utilizador.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Alterar a instalação</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Esta pasta é só de leitura. As alterações não são sincronizadas com o NAS.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Escolher outra</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>A ligação automática falhou devido a um erro de sistema.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Alterados recentemente</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>O Calderix Drive está pronto.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>O armazenamento do NAS está cheio</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>A sincronizar: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>A quota de armazenamento desta pasta partilhada está cheia.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Versão incompatível</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Enviar para %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Pode alterar estas definições em qualquer altura.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Ocorreu um erro durante a instalação.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Emparelhar com um NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>&amp;Não fechar as aplicações. Será necessário reiniciar.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Concluir</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Aplicar e copiar ligação</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Colocar a sincronização em pausa</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Sincronize a sua pasta pessoal no NAS com uma pasta do Calderix Drive neste computador.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Transferência unidirecional</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Selecione a pasta que pretende sincronizar.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mês anterior</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>O serviço de pasta pessoal está desativado no NAS.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Ocorreu um erro de rede. Verifique a sua ligação.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>As ligações de partilha precisam do serviço Ostrel, que está desativado no NAS.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Ação do duplo clique</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Ativar a sincronização a pedido</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Ficheiros cujo nome começa por um ponto</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>O pacote do NAS não suporta esta versão do Calderix Drive.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Este computador está agora emparelhado com o seu NAS.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Servidor proxy</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Fechar o guia de introdução</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>A pasta partilhada %1 já está sincronizada com %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>A configuração automática falhou. Configure o Calderix Drive manualmente.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Filtrar o registo de sincronização</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janeiro</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sem permissão</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>A carregar as pastas de sincronização...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Escolha o que fazer quando a configuração terminar.</translation>
    </message>
</context>
</TS>
