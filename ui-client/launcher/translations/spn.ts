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
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>Se ha producido un conflicto al sincronizar este archivo.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Parámetro no válido.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>Se ha producido un error de red. Compruebe la conexión de red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Almacenamiento local</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Volver a conectar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>La carpeta seleccionada no está vacía. Sus archivos se combinarán con los del servidor.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Comprobando la cuenta...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conexión establecida correctamente.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>La carpeta «%1» ya existe. ¿Desea combinar su contenido?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Iniciar Nimbulo Pelora automáticamente al iniciar sesión</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Nombre de usuario o contraseña incorrectos.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Cambiar carpeta de sincronización</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Id.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Primeros pasos con Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Archivos actualizados recientemente</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Abrir Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Detectando cambios...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Se ha perdido la conexión con el servidor.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Habilitar sincronización</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Error de autenticación</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Red local</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Comprobando la conexión...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Conexión por retransmisión</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>No se puede conectar automáticamente debido a un error del sistema.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Los enlaces para compartir están deshabilitados en el servidor. Póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 archivos actualizados</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>Solo tiene permiso de lectura en esta carpeta. Los cambios locales no se subirán.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Su cuota de almacenamiento en el servidor está llena. Libere espacio para seguir sincronizando.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Tipo de conexión</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Información de conexión</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Seleccione una carpeta.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>No se puede conectar automáticamente. Compruebe la dirección del servidor e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Carpetas compartidas</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Los cambios no se han guardado. ¿Desea descartarlos?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Cuota llena</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Carpeta local</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>No se puede habilitar la sincronización de esta carpeta compartida.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>Esta carpeta entra en conflicto con otra tarea de sincronización.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>Ha alcanzado el número máximo de carpetas compartidas sincronizadas.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando la configuración...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Introduzca un número de puerto entre 1 y 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Carpeta compartida</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Introduzca la dirección y el puerto del servidor proxy.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Introduzca su nombre de usuario.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuración manual del proxy</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sin proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usar la configuración de proxy del sistema</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>No hay cambios que aplicar.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>El servidor proxy requiere autenticación</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Actualizando archivos...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Los cambios en conflicto se conservan en ambas copias: la copia local se renombra con el nombre del equipo.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Introduzca la dirección IP, el nombre de host o el Id. de retransmisión del servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>El servicio de sincronización del servidor está obsoleto. Pida al administrador que lo actualice.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones de escritorio</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Mostrar el estado de sincronización en los iconos de los archivos</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Cifrar la conexión con SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Usar un icono monocromo en el área de notificación</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Problema de sincronización</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 ha compartido «%2» con usted.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nueva carpeta compartida</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Comprobando archivos...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Los archivos y carpetas que coincidan con estas reglas no se sincronizarán.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensiones de archivo:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Actualizando Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>¿Seguro que desea dejar de sincronizar «%1»?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Uso compartido deshabilitado</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Punto de montaje no admitido</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>No se puede quitar esta tarea de sincronización.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>El nuevo idioma se aplicará cuando se reinicie Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>El disco local está lleno. Libere espacio para seguir sincronizando.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>¿Seguro que desea desvincularse de este servidor? Los archivos locales se conservarán.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Subiendo...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Sincronizando %1 archivos</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>Nombres de archivo:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Archivos bloqueados</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>La base de datos de sincronización local está dañada. Vuelva a vincular esta tarea de sincronización.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Tamaño máximo de archivo:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filtrar archivos</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nombre de la carpeta</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Tipos de archivo excluidos:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Las carpetas que desmarque se quitarán de este equipo, pero se conservarán en el servidor.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de combinación</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>Un punto de montaje no se puede usar como carpeta de sincronización.</translation>
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
        <translation>Se ha cancelado la descarga.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Iniciar ahora</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>No tiene permiso para realizar esta operación.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrar</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Su cuota de almacenamiento está llena</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>El disco local está lleno</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Las versiones no coinciden</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>No se puede obtener la información de su cuenta del servidor.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Se ha detectado un problema de sincronización</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>La conexión es inestable. Reintentando...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Descargando %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Reintentando la sincronización...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Advertencia de seguridad</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitado</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Descarga completada.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuar de todos modos</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Reglas de filtrado</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Examinar versiones anteriores</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deshabilitado</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Si deja de sincronizar «%1», se eliminará su copia local. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Conexión segura</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Elija la carpeta de este equipo donde se sincronizarán sus archivos.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Uso compartido</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>No se puede descargar el archivo.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Información general</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>El servidor se ha sustituido o restablecido</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Error al verificar el certificado</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>No se ha podido verificar el certificado SSL del servidor. Es posible que la conexión no sea segura.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Finalizado</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>Esta tarea de sincronización está inactiva. Haga clic para reanudarla.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>Este archivo no se puede descargar en este momento.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>No se pueden mostrar las versiones anteriores de este archivo.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>No se puede crear un enlace para compartir este archivo.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Haga doble clic en el icono del área de notificación para abrir la carpeta de sincronización</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indexando la carpeta...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Le damos la bienvenida al Asistente para la instalación de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>No se ha podido inicializar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Atrás</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Preparado para instalar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Algunos archivos que deben actualizarse están en uso.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>Contrato de licencia para el usuario final</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Ha finalizado el Asistente para la instalación de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>No cerrar las aplicaciones. Será necesario reiniciar.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Error de instalación</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Haga clic en el botón Finalizar para salir del Asistente para la instalación.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora se ha instalado correctamente.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Iniciar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Cambiar, reparar o quitar la instalación</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permite cambiar el modo en que se instalan las características.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>La carpeta de sincronización está en un volumen que no está montado.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>La versión del archivo no es válida.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>¿Seguro que desea cancelar la instalación de Nimbulo Pelora?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>Tiene acceso de solo lectura a esta carpeta. Los cambios que haga aquí no se suben.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lea atentamente el siguiente contrato de licencia.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Lea el contrato de licencia y acéptelo para continuar.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Cancelar instalación</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora mantiene los archivos de este equipo sincronizados con su NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Siguiente &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Estado de sincronización</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>No se encuentra la carpeta de sincronización local «%1». Es posible que se haya movido o eliminado.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>La instalación de Nimbulo Pelora ha finalizado prematuramente debido a un error. No se ha modificado el sistema.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>Para instalar este programa más adelante, vuelva a ejecutar el Asistente para la instalación. Haga clic en Finalizar para salir.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>La instalación finalizó prematuramente</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Cerrar todas las aplicaciones e intentar reiniciarlas.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Cierre las aplicaciones que usan archivos que el programa de instalación debe actualizar.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>Las siguientes aplicaciones usan archivos que el programa de instalación debe actualizar. Ciérrelas y haga clic en Reintentar para continuar.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Repara los errores de la instalación más reciente corrigiendo los archivos que faltan o están dañados, los accesos directos y las entradas del Registro.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>Las siguientes aplicaciones usan archivos que deben actualizarse.\nCiérrelas o deje que el programa de instalación las cierre e intente reiniciarlas.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Archivos en uso</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora no tiene características independientes que seleccionar.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Cambiar las características instaladas</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Seleccione la operación que desea realizar.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Quita Nimbulo Pelora del equipo.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Quitar la instalación</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar la instalación</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Seleccione la operación que desea realizar.\nSe conservará la configuración de sincronización.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>El Asistente para la instalación le permite cambiar el modo en que se instala Nimbulo Pelora, repararla o quitarla del equipo. Haga clic en Siguiente para continuar o en Cancelar para salir.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Le damos la bienvenida a la instalación de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Espere mientras el Asistente para la instalación instala Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>Esto puede tardar unos minutos.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Instalando Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Instalando Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Instalar para comenzar la instalación. Haga clic en Atrás para revisar o cambiar la configuración de instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>El Asistente para la instalación está preparado para comenzar la instalación.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Haga clic en Instalar para comenzar.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Haga clic en Quitar para quitar Nimbulo Pelora del equipo. Los archivos sincronizados se conservarán.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>El Asistente para la instalación está preparado para quitar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Haga clic en Quitar para comenzar.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Quitar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Haga clic en Reparar para reparar la instalación de Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>El Asistente para la instalación está preparado para reparar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Haga clic en Reparar para comenzar.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Reparar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Se ha interrumpido la instalación de Nimbulo Pelora. No se ha modificado el sistema.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>Para instalar este programa más adelante, vuelva a ejecutar la instalación. Haga clic en Finalizar para salir del asistente.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Instalación interrumpida</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>El Asistente para la instalación instalará Nimbulo Pelora en el equipo. Haga clic en Siguiente para continuar o en Cancelar para salir.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Cambiar, reparar o quitar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>La instalación ha finalizado.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Se ha cancelado la instalación.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>Se ha producido un error durante la instalación.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>Este asistente le guiará durante la instalación.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>Acepto los términos del Contrato de licencia</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Conectar a otro NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Historial de sincronización</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Sincronización habilitada</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Carpetas que sincronizar</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Sus archivos, en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Sus archivos se sincronizarán ahora en segundo plano. Puede encontrarlos en %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>¿Seguro que desea desvincular la tarea de sincronización «%1»? Los archivos que ya están en este equipo se conservarán.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>Filtros de archivos</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Creación</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Mostrar un icono en los archivos que no se sincronizan</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>El Id. de retransmisión «%1» no existe.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>El servidor ha cambiado. Compruebe sus tareas de sincronización.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>La carpeta compartida no está montada en el servidor.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>La carpeta remota no está disponible. Es posible que esté en una carpeta compartida cifrada que no está montada.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Archivos que empiezan por un punto</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 ya está instalada.\n¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Se necesitan privilegios de administrador para instalar Nimbulo Pelora.\nEjecute el instalador como administrador.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Sincronice sus archivos con Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>El uso compartido de archivos no está disponible con una conexión LinkVane.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Abrir la carpeta contenedora</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Elija cómo desea configurar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Configuración rápida</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Haga clic con el botón derecho en un archivo de la carpeta de sincronización para compartirlo o examinar sus versiones anteriores.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Abra el menú del área de notificación en cualquier momento para ver qué se está sincronizando.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Los cambios que haga se suben en cuanto los guarde.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Hace %1 horas</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>No sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Cree una carpeta nueva en el NAS para sincronizarla con este equipo.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>La carpeta ya está sincronizada</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>Esta carpeta ya la sincroniza otra tarea de sincronización.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Preparando la sincronización...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Modificados recientemente</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Hace %1 días</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Justo ahora</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Hace %1 minutos</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementos</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Fecha de modificación</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palabra clave</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>El mes pasado</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semana pasada</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Reanudar la sincronización de esta carpeta</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Reanudar la sincronización de estas carpetas</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>No sincronizar estas carpetas</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>No hay datos</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar a</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Sincronizando: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Buscar por nombre de archivo</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>vie</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos los eventos</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de fechas</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Subida</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>lun</translation>
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
        <translation>dic</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>ene</translation>
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
        <translation>may</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>oct</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sep</translation>
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
        <translation>jue</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>mié</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Modo avanzado</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Sus archivos se están sincronizando con la carpeta «%1» del NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora ya está configurada. Su carpeta personal del NAS ya se sincroniza con este equipo.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Configuración completada</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Los archivos que coloque en la carpeta de sincronización se mantienen actualizados en el NAS y en sus otros dispositivos.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>El icono del área de notificación muestra el estado de sincronización de un vistazo.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Modo de configuración</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Sincronice su carpeta personal del NAS con una carpeta de este equipo.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, gracias</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Bienvenida</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Carpeta de sincronización</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Icono del área de notificación</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Uso compartido y versiones</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Buscar un NAS en la red local</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Conectar con LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Le damos la bienvenida a Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Mostrar la ventana principal</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Carpeta del NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>Nueva carpeta de sincronización</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Sincronizar una carpeta nueva</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Abrir el estado de sincronización</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Elija qué carpeta del NAS desea sincronizar, dónde guardarla en este equipo y cómo sincronizarla.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>No se sincronizarán los archivos de más de %1 MB.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Buscar NAS en la red local</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>Solo tiene permiso de lectura en «%1». Los cambios realizados en este equipo no se subirán.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>«%1» no se puede usar como carpeta de sincronización.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>Más consejos</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>La carpeta «%1» se solapa con la carpeta de sincronización de otra tarea.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>Esta carpeta ya se sincroniza con «%1».</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>La carpeta «%1» ya se sincroniza con una carpeta del NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Crear una carpeta «Nimbulo» en la ubicación seleccionada</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copiar enlace para compartir</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>No se puede obtener un enlace para compartir porque el uso compartido está deshabilitado en el servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>El certificado SSL del servidor ha cambiado. ¿Confía en el nuevo certificado?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Su dirección IP no tiene permiso para conectarse a este servidor.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>Cuando el mismo archivo se ha modificado en ambos lados:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>La dirección de sincronización no coincide con los permisos de esta carpeta.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas siguientes</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Demasiados intentos fallidos. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>Otra aplicación ha bloqueado este archivo.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>No se puede comprobar «%1» debido a un error de red.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Conservar la versión modificada más recientemente</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronización bidireccional</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Introduzca la dirección de su NAS y los datos de su cuenta.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>No se puede crear la carpeta local «%1».</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Seleccione una carpeta del NAS y una carpeta de este equipo para sincronizarlas entre sí.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Definir carpetas de sincronización</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora está sincronizando «%1» del NAS con «%2» de este equipo.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>Cuando haya archivos en conflicto, se conservará la copia del servidor y se hará una copia de seguridad de la copia local.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Habilitar sincronización a petición</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>El código de verificación es incorrecto.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>Esta cuenta requiere un código de verificación.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Introduzca el código de verificación de su aplicación de autenticación:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Su cuota en el NAS está llena. No se puede sincronizar «%1».</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>El certificado del servidor ha cambiado. No se puede sincronizar «%1».</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>No se puede verificar el certificado del servidor. No se puede sincronizar «%1».</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>Se ha producido un error del sistema al comprobar la carpeta de sincronización.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Sobrescribir la copia local con la copia del servidor</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Conservar ambas copias y renombrar la local</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Ya hay instalada una versión más reciente de Nimbulo Pelora (%1).\nEl programa de instalación se cerrará.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora está lista.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora se está inicializando...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>No se ha encontrado ninguna carpeta que pueda sincronizar.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar el tutorial</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Los archivos de la carpeta local se combinarán con los del NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Iniciar Nimbulo Pelora al encender el equipo</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Nimbulo Pelora ha encontrado un error.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora se está ejecutando.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>Esta versión de Nimbulo Pelora ya no es compatible. Actualícela.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Haga clic para actualizar Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Actualice el servicio de sincronización del servidor para usar la sincronización selectiva.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>No hay suficiente espacio libre en este equipo para sincronizar «%1».</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Inicie sesión en su NAS para empezar a sincronizar.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Mantenga los archivos de este equipo sincronizados con su NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>No se encuentra la carpeta compartida</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Acerca de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>El administrador exige la verificación en dos pasos. Habilítela primero en la configuración de su cuenta.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>La cuota de la carpeta compartida está llena.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Dirección de sincronización</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora ha encontrado un problema durante la sincronización. Haga clic para ver los detalles.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora mantiene sus archivos actualizados en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Algunos campos contienen valores no válidos.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>No tiene permiso para acceder a «%1».</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Su cuenta se ha deshabilitado. No se puede sincronizar «%1».</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Caduca después de</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>No hay opciones disponibles</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>Necesita una cuenta en un NAS con el servicio de sincronización instalado.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Error de autenticación. Compruebe su nombre de usuario y contraseña.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Use * para representar cualquier carácter. Separe las entradas con comas.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>Descarga unidireccional</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>Ya existe una carpeta llamada «%1».</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Sincronizar atributos extendidos</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>No acepto los términos del Contrato de licencia</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Enlace para compartir</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Caduca el</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Este campo es obligatorio.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Restringir el acceso a usuarios con cuenta</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Mostrar Nimbulo Pelora en el menú contextual</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>El servicio de carpetas personales está deshabilitado en el NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>No se puede actualizar Nimbulo Pelora. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Aplicar y copiar enlace</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Limitar el número de accesos</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Disponible desde</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>Se necesita una versión nueva de Nimbulo Pelora para conectarse a este servidor. ¿Desea actualizarla ahora?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Añadir nombre de archivo</translation>
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
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Descargar la versión seleccionada</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Duración personalizada</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Actualizar el historial de sincronización</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>Sincronización a petición</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filtrar el historial de sincronización</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Cambiar la carpeta de sincronización</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Categoría de evento</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Detalles de la tarea de sincronización</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Destino remoto</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Cerrar el tutorial</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Tutorial: aprenda a usar Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Cancelar descarga</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Eliminar versión</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>No se puede habilitar la sincronización a petición para «%1».</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>Este archivo no está disponible porque no hay conexión con el servidor.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Renombrado en este equipo</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Renombrado en el servidor</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Introduzca %1 caracteres como máximo.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Su contraseña ha caducado. Cámbiela en el servidor y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>Otro usuario sincronizó esta carpeta. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Las conexiones por retransmisión están deshabilitadas en el servidor.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Error de autenticación para «%1». Vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>No se puede obtener el enlace a este archivo.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Archivos temporales</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>¡Enhorabuena!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Carpetas que otros han compartido con usted</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>Tiene acceso de solo lectura a esta carpeta. Los cambios que haga aquí se quedan en este equipo.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora está sincronizando «%1» del servidor con «%2» de este equipo.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Mostrar el tutorial de Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora se está ejecutando en segundo plano.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Inicie sesión en su servidor para empezar a sincronizar.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>No se ha podido actualizar Nimbulo Pelora. Descargue la versión más reciente y vuelva a instalarla.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>Necesita una cuenta en un servidor con el servicio de sincronización instalado.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Los cambios en conflicto se conservan en ambas copias: la copia del servidor se renombra con el nombre de usuario.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Tutorial: aprenda a sincronizar con Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>El Id. de servidor «%1» no existe.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Iniciar Nimbulo Pelora al iniciar sesión</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Elija una carpeta del servidor y una carpeta de este equipo.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>Esta tarea de sincronización pertenece a otro servidor.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>El servidor usa un protocolo que esta versión de Nimbulo Pelora no admite.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>El disco está lleno. Nimbulo Pelora ha pausado la sincronización.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Nimbulo Pelora ha encontrado un error. Reiníciela.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>La carpeta seleccionada no está vacía. Sus archivos se subirán al servidor.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Descargar solo los cambios del servidor</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Sus archivos se están sincronizando con la carpeta «%1» del servidor.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 ya está instalada.\n¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>No hay suficiente espacio libre para sincronizar «%1». Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Mantenga los archivos de este equipo sincronizados con su servidor.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Crear una carpeta «Varnex Pelora» en la ubicación seleccionada</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>Ya hay instalada una versión más reciente de Varnex Pelora (%1).\nEl programa de instalación se cerrará.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Sincronice la carpeta que elija del servidor.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Error en la configuración automática. Configure Nimbulo Pelora manualmente.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Finalizando la configuración automática...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>No hay datos disponibles.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>No hay carpetas compartidas disponibles.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>El archivo o la carpeta no existe.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>El administrador ha configurado Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Usuarios internos</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Los usuarios del servidor pueden ver el archivo.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Los usuarios del servidor pueden ver y editar el archivo.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Personas específicas</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Solo las personas que invite pueden acceder al archivo.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Cualquier persona con el enlace</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Cualquier persona con el enlace puede ver el archivo.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Cualquier persona con el enlace puede ver y editar el archivo.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Puede ver</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Puede editar</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Invitar</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Permiso del enlace:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Usuarios y grupos</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Usar un icono en blanco y negro en la barra de menús</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Mostrar la carpeta de sincronización en la barra lateral de las ventanas de archivos</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>No se puede conectar con el servidor</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 ha comentado en %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 le ha mencionado en %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 ha solicitado acceso a %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 ha compartido %2 con usted</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Abrir en el portal web</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Compartido</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 solicita acceso a este archivo.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Menciones</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>¿Desea sincronizar también las carpetas compartidas con usted?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>Subida unidireccional</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>No eliminar los archivos del servidor cuando se eliminen localmente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>Se ha descargado «%1».</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Sus archivos están sincronizados en todos sus dispositivos.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>También puede acceder a sus archivos desde el portal web.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Su tarea de sincronización está lista.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Iniciar recorrido</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Los archivos y carpetas que otros compartan con usted también se pueden sincronizar con este equipo.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Quizás más tarde</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Sincronizar ahora</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Compartido conmigo</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Crear tarea de sincronización</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Elija qué desea sincronizar.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>Tarea de sincronización general</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Archivos compartidos conmigo</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Sincronice los archivos y carpetas que otros han compartido con usted.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Elija una carpeta del NAS y una carpeta de este equipo.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>Esta tarea de sincronización pertenece a otro NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>El NAS usa un protocolo que esta versión de Nimbulo Pelora no admite.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>El disco está lleno. Se ha pausado la sincronización.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Descargar solo los cambios del NAS</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>No se ha podido actualizar Nimbulo Pelora. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>Ya está conectado a este NAS.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Los cambios en unidades de red pueden detectarse con retraso.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>El certificado SSL de %1 ha cambiado.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>No se puede establecer una conexión segura con el servidor.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>¡Le damos la bienvenida!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Los archivos de su carpeta personal del NAS están ahora en %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Los archivos de su carpeta personal del servidor están ahora en %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>El disco está lleno</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>El servicio de sincronización del servidor está obsoleto</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>La carpeta compartida ya no existe.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Haga clic para actualizar a Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>Esta versión de Nimbulo Pelora es demasiado antigua para conectarse al servidor. Actualícela.</translation>
    </message>
</context>
</TS>
