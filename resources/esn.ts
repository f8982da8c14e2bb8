<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>Enlace para compartir</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive mantiene los archivos de este equipo sincronizados con su NAS. Haga clic en Empezar ahora para vincular este equipo con su NAS.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Subiendo</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>No puede crear más de %1 enlaces para compartir.</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Los archivos de más de %1 MB no se sincronizarán.</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>Sincronización a petición</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>La carpeta seleccionada no se puede usar como carpeta de sincronización. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>Sincronizar archivos temporales</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Retransmisión Farrowlink</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>Conservar ambos archivos y cambiar el nombre del archivo en conflicto</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Le permite cambiar la forma en que se instalan las características.</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>El Asistente de instalación le permite cambiar la forma en que Calderix Drive está instalado en su equipo, repararlo o quitarlo. Haga clic en Siguiente para continuar o en Cancelar para salir del Asistente de instalación.</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 ha compartido una carpeta con usted.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Haga clic en el botón Finalizar para salir del Asistente de instalación.</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>Elija otra carpeta local u otra carpeta compartida en el NAS.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>La instalación ha finalizado.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Limitar el número de accesos</translation>
    </message>
    <message>
        <source>October</source>
        <translation>octubre</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Sincronizando %1 archivos</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>No se puede crear un enlace para compartir este elemento.</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>Detalles de la dirección del servidor</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>La dirección de sincronización de esta carpeta no coincide con la configuración del NAS.</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Necesita derechos de administrador para instalar Calderix Drive. ¿Desea continuar de todos modos?</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>Esta carpeta se superpone con una carpeta de sincronización existente. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>Carpetas de sincronización</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descargado</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>Su cuota de almacenamiento en el NAS está llena. Libere espacio o pida a su administrador una cuota mayor.</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>El administrador ha cancelado la conexión automática.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domingo</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configuración...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>La instalación de Calderix Drive finalizó prematuramente</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parámetro no válido.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>Las siguientes aplicaciones están usando archivos que el programa de instalación debe actualizar. Puede cerrarlas y hacer clic en Reintentar, o hacer clic en Omitir para continuar de todos modos.</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>Esta carpeta se está indexando.</translation>
    </message>
    <message>
        <source>November</source>
        <translation>noviembre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>Combinar los archivos de ambos lados</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar la guía de introducción</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambiar carpeta de sincronización</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronización bidireccional</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Cambiar carpeta</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Acerca de Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>Archivos excluidos de la sincronización</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrar</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usar la configuración de proxy del sistema</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Elija cómo desea configurar Calderix Drive.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Empezar ahora</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>No hay suficiente espacio libre en el disco de esta carpeta. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>Es posible que los cambios realizados por otros equipos en una unidad de red no se detecten de inmediato.</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Introduzca un nombre de usuario.</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>Comprobando su nombre de usuario y contraseña...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>Su cuota de almacenamiento en el NAS está llena. Libere espacio antes de sincronizar esta carpeta.</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>El servidor ha devuelto una respuesta inesperada.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Introduzca como máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunes</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenido</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>Para empezar, vincule este equipo con su NAS.</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambiar carpeta</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>Las carpetas que desmarque se quitarán de este equipo, pero se conservarán en el NAS. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Abrir Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Finalizado</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>Tamaño máximo de archivo</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>Esta versión de Calderix Drive es demasiado antigua para el NAS. Actualice Calderix Drive.</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La conexión es inestable</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>Detener la descarga de la versión</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 ha compartido la carpeta %2 con usted.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Cambiado de nombre</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>&amp;Cerrar las aplicaciones e intentar reiniciarlas.</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>Guardar los archivos en conflicto en una carpeta aparte</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julio</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 es un punto de montaje y no se puede usar como carpeta de sincronización.</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Siguientes %1 páginas</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>No hay registros que mostrar.</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>¿Está seguro de que desea desvincular esta tarea de sincronización? Se conservarán los archivos de este equipo y del NAS.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>La instalación de Calderix Drive finalizó prematuramente debido a un error. No se ha modificado el sistema. Para instalar este programa más adelante, vuelva a ejecutar el Asistente de instalación.</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>No se ha podido establecer una conexión segura con el NAS.</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Dirección de sincronización</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema de sincronización</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Subido</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>Se ha perdido la conexión con el NAS.</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>El NAS ha cambiado</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>Los archivos de este equipo que entren en conflicto con archivos del NAS se cambiarán de nombre y se conservarán.</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>Obtener enlace para compartir</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Las versiones no coinciden</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>No se ha podido descargar %1.</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>El disco de este equipo está lleno.</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>Actualice el paquete del NAS para usar la sincronización selectiva.</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>El nombre de usuario o la contraseña no son correctos.</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>Esta carpeta de sincronización pertenece a otro NAS.</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar iconos de estado de sincronización en archivos y carpetas</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>Se ha interrumpido la instalación.</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>La carpeta %1 no está vacía.</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>Finalizando la configuración...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>No se ha podido activar la sincronización a petición.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>Se ha detenido la descarga.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>Se creará una nueva tarea de sincronización para %1.</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>Reanudar la sincronización de estas carpetas</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Listo para reparar Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>Sincronizar con un NAS nuevo</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>No se ha podido verificar el certificado del NAS.</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>El identificador de conexión no es válido.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Hay una versión más reciente de Calderix Drive disponible. ¿Desea actualizar ahora?</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>El certificado del NAS ha cambiado.</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>Haga clic con el botón derecho en un archivo de su carpeta de sincronización para obtener un enlace para compartir.</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>La carpeta no está vacía. ¿Desea combinar su contenido con la carpeta del NAS?</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Más detalles</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Volver a intentarlo</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Seleccione la operación que desea realizar.</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>Sus archivos, en todas partes.</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrato de licencia para el usuario final</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Algunos archivos que deben actualizarse están en uso.</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>La clave de configuración ya se ha aplicado.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar la instalación</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Disponible desde</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>Sobrescribir el archivo de este equipo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Introduzca la dirección y el puerto del servidor proxy.</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>La carpeta seleccionada es de solo lectura. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>Las conexiones por retransmisión están desactivadas en el NAS.</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>Actualizando...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>El certificado del NAS ha cambiado desde la última sincronización de esta carpeta.</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Crear una carpeta de Calderix Drive</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>Mostrar iconos en los archivos que no se sincronizan</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restringir el acceso</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Atrás</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de fechas</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>No se encuentra la carpeta de sincronización local %1.</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>Examinar versiones anteriores</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>Detectando la conexión...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>Asistente de configuración avanzada</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>Los archivos que coloque en su carpeta de sincronización se mantienen actualizados en el NAS y en todos sus equipos.</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>No se ha podido eliminar el enlace para compartir.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Instalando Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>jueves</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martes</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>Conectado a otro NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>Comparta archivos</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Cambiar</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>No se ha podido crear la carpeta local.</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Conexión segura (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Se ha interrumpido la instalación de Calderix Drive. No se ha modificado el sistema. Para instalar este programa más adelante, vuelva a ejecutar el Asistente de instalación.</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Siguiente &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>No se puede descargar este elemento.</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>No se ha podido abrir la base de datos local.</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>Aplicar a todas las subcarpetas</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>No sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>Se ha descargado %1.</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>Archivos actualizados recientemente</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>Tarea de sincronización duplicada</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>El NAS exige la verificación en dos pasos para su cuenta.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>¿Desea eliminar este enlace para compartir?</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive ya se está ejecutando.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Advertencia de seguridad</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>Abrir estado de sincronización</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>Esta carpeta del sistema no se puede usar como carpeta de sincronización.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>No sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>Haga clic en el icono de Calderix Drive en la barra de menús para ver el estado de sincronización y cambiar la configuración.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conexión establecida correctamente.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>viernes</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>No se ha podido verificar el certificado del NAS. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>Este archivo no pertenece a ninguna conexión.</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>Acceso desde cualquier lugar</translation>
    </message>
    <message>
        <source>December</source>
        <translation>diciembre</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>El servidor proxy requiere una contraseña</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>Carpeta de sincronización en el NAS</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>Elija usted mismo la carpeta compartida, la carpeta local y las opciones de sincronización.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Los archivos con estos nombres no se sincronizarán.</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Bienvenido al Asistente de instalación de Calderix Drive</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Algunos campos contienen valores no válidos.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando la configuración...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>¿Está seguro de que desea cancelar la instalación de Calderix Drive?</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>El Asistente de instalación instalará Calderix Drive en su equipo. Haga clic en Siguiente para continuar o en Cancelar para salir del Asistente de instalación.</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Punto de montaje no admitido</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nombre de carpeta</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>Vista general del NAS</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>A&amp;cepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Estado de Calderix Drive</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>Sincronice sus archivos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>Esta versión de Calderix Drive ya está instalada.</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Quitar Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>septiembre</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Hace %1 minutos</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>Sincronización en pausa</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>Cualquier persona que tenga el enlace puede abrir el archivo en un navegador web.</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>Su cuenta se ha desactivado en el NAS.</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mayo</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Quitar la instalación</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>No se ha podido actualizar Calderix Drive.</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>No se ha podido obtener su información de usuario del NAS.</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de conexión</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Listo para instalar Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuar de todos modos</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creado</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Seleccione una carpeta</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>Sincronización selectiva de carpetas</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febrero</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Se ha interrumpido la instalación de Calderix Drive</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>Su contraseña ha caducado. Cámbiela en el NAS.</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>Introduzca el código de verificación</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>El nombre de usuario o la contraseña del servidor proxy no son correctos.</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Caduca el</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>Sus archivos se mantienen ahora sincronizados con el NAS.</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Los enlaces para compartir no están disponibles a través de una conexión Farrowlink.</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>Mostrar Calderix Drive en el menú contextual</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>El servicio Ostrel está desactivado en el NAS. Pida a su administrador que lo active.</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>No se han podido sincronizar algunos archivos.</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Iniciando Calderix Drive...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Hace %1 horas</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>Elija qué carpeta del NAS desea sincronizar y dónde guardarla en este equipo.</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>Usar un icono en blanco y negro en la barra de menús</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>Esta carpeta compartida ya está sincronizada con otra carpeta.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>Abra sus archivos sincronizados desde cualquier equipo vinculado con el NAS.</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>No se ha podido obtener el enlace al archivo.</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sin proxy</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>Este campo no puede estar vacío.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semana pasada</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>Buscando cambios...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Bienvenido a Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Destino remoto</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>Carpeta de solo lectura</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Cambiar, reparar o quitar la instalación</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nueva carpeta de sincronización</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>Cargando la lista de carpetas...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>Las siguientes aplicaciones están usando archivos que esta instalación debe actualizar. Cierre estas aplicaciones y haga clic en Reintentar para continuar.</translation>
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
        <translation>Conectarse a través de Farrowlink</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>Ya existe un archivo con el mismo nombre.</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>Cree una carpeta nueva para sincronizarla con el NAS.</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>El certificado del NAS ha cambiado. ¿Confía en el nuevo certificado?</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>No se pueden enumerar las versiones de este archivo.</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Añadir nombre de archivo</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Descargando %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Demasiados intentos fallidos. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Uso compartido activado</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel desactivado</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>Todos los archivos están actualizados</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>Todo listo</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>El volumen de la carpeta de sincronización %1 no está montado.</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>Esta carpeta ya está sincronizada con la misma carpeta compartida del NAS.</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>Falta la carpeta compartida</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>Haga clic para actualizar Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usar una conexión segura (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>El programa de instalación está listo para comenzar la instalación.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>Cuando el mismo archivo ha cambiado en ambos lados:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Reparar para reparar la instalación de Calderix Drive. Haga clic en Atrás para revisar o cambiar la configuración de la instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>Añadir tarea de sincronización</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparando</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Actualizando...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>El NAS no admite esta versión de Calderix Drive. Actualice Calderix Drive.</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>Activar la sincronización</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>No tiene permiso para acceder a esta carpeta.</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>La carpeta %1 es de solo lectura.</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Actualizar Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>El código de verificación no es correcto.</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>Sus archivos siguen disponibles incluso cuando este equipo está sin conexión.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Comprobando los datos...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>Categoría del registro</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Iniciar Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>No se ha podido actualizar.</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Carpeta de sincronización</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>Modo de sincronización selectiva</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Configuración del proxy</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Volver a conectar</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Error de inicio de sesión</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Archivos en uso</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Cambiado de nombre en este equipo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>No hay ninguna carpeta que se pueda sincronizar.</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Carpeta de sincronización</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Sincronización unidireccional (solo descarga)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>Seleccione la carpeta compartida del NAS que desea sincronizar.</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>Buscar dispositivos NAS en la red local</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Quitar para quitar Calderix Drive de su equipo. Haga clic en Atrás para revisar o cambiar la configuración de la instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuración manual del proxy</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>La carpeta compartida ya no existe en el NAS.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>Manténgase informado</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>Más consejos</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>Conectando con %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Introduzca un número de puerto entre 1 y 65535.</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>Sincronización selectiva de archivos</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Cuota llena</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervalo personalizado</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Abrir la carpeta de Calderix Drive</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>La carpeta compartida no está montada en el NAS.</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Instalar para comenzar la instalación. Haga clic en Atrás para revisar o cambiar la configuración de la instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>La carpeta remota no está disponible porque su volumen no está montado.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones en el escritorio</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>El programa de instalación está listo para instalar Calderix Drive.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configuración rápida</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>Si desactiva la sincronización de esta carpeta, se quitará de la lista de sincronización. Los archivos se conservarán en el NAS y en este equipo. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>Reanudar la sincronización de esta carpeta</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>Eliminar enlace</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Cancelar la instalación</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>Ya existe una tarea de sincronización para esta carpeta.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>Esta carpeta se sincronizó con otra cuenta de usuario.</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>No se ha cambiado ninguna configuración.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>No se ha podido iniciar sesión. Compruebe su nombre de usuario y contraseña.</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>Los archivos que coincidan con estos filtros no se sincronizarán.</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>No hay suficiente espacio libre en el NAS.</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>Reanudar sincronización</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Se ha completado el Asistente de instalación de Calderix Drive</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>Establecer carpeta de sincronización</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Guía de introducción</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>Caduca tras %1 accesos</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>Se combinará el contenido de ambas carpetas.</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>Espere mientras el Asistente de instalación instala Calderix Drive.</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Descargando</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>No tiene permiso para realizar esta operación.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>Repara los errores de la instalación más reciente corrigiendo archivos que faltan o están dañados, accesos directos y entradas del Registro.</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>No se ha podido activar la sincronización para esta carpeta.</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>No hay ninguna versión anterior de este archivo disponible.</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>Actualizar el registro de sincronización</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Haga clic en Quitar para quitar Calderix Drive de su equipo.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Quita Calderix Drive de su equipo.</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Reparar Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Modo de configuración</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>Extensión de archivo</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>No hay opciones disponibles</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>Sincronice y comparta sus archivos con su NAS.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>Cambiado de nombre en el NAS</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>Espere mientras el Asistente de instalación instala Calderix Drive. Esta operación puede tardar varios minutos.</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>Iniciar Calderix Drive al iniciar sesión</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>Este asistente le guiará durante la instalación.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>Conservar el archivo modificado más recientemente</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>Este equipo ya está vinculado con este NAS.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lea atentamente el siguiente contrato de licencia.</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>No se ha podido iniciar Calderix Drive.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>El paquete del NAS es demasiado antiguo para esta versión de Calderix Drive. Actualice el paquete en el NAS.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nuevo recurso compartido</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>Introduzca el código de verificación.</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>El nuevo idioma se aplicará cuando se reinicie Calderix Drive.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Inicializando Calderix Drive...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>Información de vinculación</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>¿Está seguro de que desea desvincularse de %1?</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junio</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive se ha instalado correctamente.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Se ha producido un error desconocido.</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;No acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Buscar en la red local</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>No hay suficiente espacio libre en este equipo.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Carpeta de sincronización local</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>Ha elegido quitar el programa del sistema.</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive no tiene características independientes que cambiar.</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>No es necesario</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive empezará ahora a sincronizar sus archivos con el NAS.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>Sus cambios no se han guardado. ¿Desea guardarlos?</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Cambiar idioma</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Destino local</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>El NAS bloquea las conexiones desde esta dirección IP.</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>Ya hay instalada una versión más reciente de Calderix Drive.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>miércoles</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>Descargar una versión anterior</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>Se ha producido un error de red al comprobar la carpeta de sincronización. Vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>Error de certificado</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Hace %1 días</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Haga clic en Reparar para reparar Calderix Drive.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Cambiar, reparar o quitar Calderix Drive.</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Archivos actualizados</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>Tarea de sincronización</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>Eliminar la versión descargada</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>Archivos excluidos</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Duración personalizada</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>Introduzca la dirección de su NAS y su cuenta de usuario.</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Cambiar la instalación</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>Esta carpeta es de solo lectura. Los cambios no se sincronizan con el NAS.</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>Elegir otra</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>La conexión automática ha fallado debido a un error del sistema.</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Cambiados recientemente</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive está listo.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>El almacenamiento del NAS está lleno</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>Sincronizando: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>La cuota de almacenamiento de esta carpeta compartida está llena.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Justo ahora</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>Versión incompatible</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Enviar a %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>Puede cambiar esta configuración en cualquier momento.</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>Se ha producido un error durante la instalación.</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>Vincular con un NAS</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>&amp;No cerrar las aplicaciones. Será necesario reiniciar.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Aplicar y copiar enlace</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>Pausar sincronización</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>Sincronice su carpeta personal del NAS con una carpeta de Calderix Drive en este equipo.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Descarga unidireccional</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>Seleccione la carpeta que desea sincronizar.</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>El servicio de carpetas personales está desactivado en el NAS.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>Se ha producido un error de red. Compruebe su conexión.</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>El mes pasado</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>Los enlaces para compartir necesitan el servicio Ostrel, que está desactivado en el NAS.</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>Acción al hacer doble clic</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>Activar la sincronización a petición</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>Archivos cuyo nombre empieza por un punto</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>El paquete del NAS no admite esta versión de Calderix Drive.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>Este equipo ya está vinculado con su NAS.</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Servidor proxy</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>Cerrar la guía de introducción</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>La carpeta compartida %1 ya está sincronizada con %2.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>No se ha podido realizar la configuración automática. Configure Calderix Drive manualmente.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>Filtrar el registro de sincronización</translation>
    </message>
    <message>
        <source>January</source>
        <translation>enero</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sin permiso</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>Cargando carpetas de sincronización...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>Elija qué hacer cuando finalice la configuración.</translation>
    </message>
</context>
</TS>
