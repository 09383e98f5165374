<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Choose Another Folder</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>A conflict occurred while syncing this file.</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>Invalid parameter.</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>A network error occurred. Please check your network connection and try again.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Local Storage</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconnect</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>Testing connection...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>The selected folder is not empty. Files in it will be merged with the files on the server.</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>Checking your account...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connected successfully.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>Start Nimbulo Pelora automatically when I log in</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>Incorrect username or password.</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>Change Sync Folder</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Folder Not Empty</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Folder Path</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Get Started with Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Recently Updated Files</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up to date</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Open Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>Detecting changes...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>Disconnected from the server.</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>Enable Sync</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>Authentication failed</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>Direct connection</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Local network</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>Checking connection...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>Relay connection</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>Unable to connect automatically because of a system error.</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>Sharing links are disabled on the server. Please contact your administrator.</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 files updated</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>You have read-only permission for this folder. Local changes will not be uploaded.</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>Your storage quota on the server is full. Free up some space to continue syncing.</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>Connection Type</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Connection Information</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>Please select a folder.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>Unable to connect automatically. Please check the server address and try again.</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>Shared Folders</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>Your changes have not been saved. Do you want to discard them?</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>Quota full</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>Local Folder</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>Unable to enable syncing for this shared folder.</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>This folder conflicts with another sync task.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>You have reached the maximum number of synced shared folders.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applying settings...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>Please enter a port number between 1 and 65535.</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>Shared Folder</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>Please enter the proxy server address and port.</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>Please enter your username.</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manual proxy configuration</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>No proxy</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Use system proxy settings</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>No changes to apply.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Username</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>Proxy server requires authentication</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>Updating files...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>Server Address</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>Enter the server&apos;s IP address, host name or relay ID.</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>The server&apos;s sync service is outdated. Please ask your administrator to update it.</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>Show sync status on file icons</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>Encrypt the connection with SSL</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Use a monochrome tray icon</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>Sync problem</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 has shared &quot;%2&quot; with you.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>New shared folder</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Checking files...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selective Sync</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>Files and folders matching these rules will not be synced.</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>File extensions:</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Updating Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>Are you sure you want to stop syncing &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>Sharing disabled</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>Mount point not supported</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>Unable to remove this sync task.</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>The new language will be applied after Nimbulo Pelora restarts.</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>The local disk is full. Free up some space to continue syncing.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>Are you sure you want to unlink from this server? Your local files will be kept.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploading...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>System default</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Language:</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>Syncing %1 files</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Advanced Settings</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>File names:</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>Blocked Files</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>The local sync database is damaged. Please relink this sync task.</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximum file size:</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>Filter files</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Folder Name</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>Excluded file types:</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>Folders you unselect will be removed from this computer but kept on the server.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Merge mode</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>Sync Mode</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Edit Connection</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>A mount point cannot be used as a sync folder.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>The download was cancelled.</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Start Now</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>You do not have permission to perform this operation.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>Your storage quota is full</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>The local disk is full</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission denied</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Version mismatch</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>Unable to get your account information from the server.</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>Sync problem detected</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Computer Name</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>The connection is unstable. Retrying...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>Downloading %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>Retrying sync...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Security Warning</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download completed.</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continue Anyway</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>Filter Rules</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>File Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Browse Previous Versions</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Secure Connection</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>Choose the folder on this computer where your files will be synced.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Sharing</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>Unable to download the file.</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>The server has been replaced or reset</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>Certificate verification failed</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Syncing...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Finished</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>This sync task is inactive. Click to resume it.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>This file cannot be downloaded right now.</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>Unable to list the previous versions of this file.</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>Unable to create a sharing link for this file.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>Double-click the tray icon to open the sync folder</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>Indexing folder...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Welcome to the Nimbulo Pelora Setup Wizard</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora could not be initialized.</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; Back</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Ready to Install Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Some files that need to be updated are currently in use.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>End-User License Agreement</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Completed the Nimbulo Pelora Setup Wizard</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>Do not close applications. A reboot will be required.</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>Setup Error</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Click the Finish button to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora has been installed successfully.</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Launch Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>Change, repair, or remove installation</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lets you change the way features are installed.</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>The sync folder is on a volume that is not mounted.</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>The file version is invalid.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Are you sure you want to cancel the Nimbulo Pelora installation?</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Download only</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>You have read-only access to this folder. Changes you make here are not uploaded.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Please read the following license agreement carefully.</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>Please read the license agreement and accept it to continue.</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>Cancel Setup</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Install</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>Next &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Repair</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>Sync Status</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>Setup Ended Prematurely</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>Close all applications and try to restart them.</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>Close the applications that use files Setup needs to update.</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>Files in Use</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora has no independent features to select.</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>Change the installed features</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>Select the operation you wish to perform.</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Removes Nimbulo Pelora from your computer.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Remove the installation</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Repair the installation</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>Select the operation you wish to perform.\nYour sync settings are kept.</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Welcome to Nimbulo Pelora Setup</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>Please wait while the Setup Wizard installs Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>This may take a few minutes.</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Installing Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Installing Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>The Setup Wizard is ready to begin the installation.</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>Click Install to begin.</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>The Setup Wizard is ready to remove Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>Click Remove to begin.</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Remove Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>Click Repair to repair the installation of Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>The Setup Wizard is ready to repair Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>Click Repair to begin.</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Repair Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>Setup Interrupted</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Change, repair or remove Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>Setup has finished.</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>Setup was cancelled.</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>An error occurred during setup.</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>This wizard guides you through the installation.</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>I accept the terms in the License Agreement</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>Connect to Another NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>Sync History</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>Sync enabled</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>Folders to Sync</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>Your files, on every device.</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>Your files will now sync in the background. You can find them in %1.</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>File Filters</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>Show an icon on files that are not synced</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>The relay ID &quot;%1&quot; does not exist.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Sync Tasks</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>The server has changed. Please check your sync tasks.</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>The shared folder is not mounted on the server.</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>Files beginning with a dot</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Sync your files with Nimbulo Pelora</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>File sharing is not available over a LinkVane connection.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Tue</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>Open Containing Folder</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Choose how you want to set up Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>Quick Setup</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>Right-click a file in the sync folder to share it or browse its previous versions.</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Got it</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>Open the tray menu at any time to see what is syncing.</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>Changes you make are uploaded as soon as you save them.</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 hours ago</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>Do Not Sync This Folder</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>Create a new folder on the NAS to sync with this computer.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>Folder Already Synced</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>This folder is already being synced by another sync task.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>Preparing to sync...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>Recently Changed</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 days ago</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just now</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minutes ago</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>Modified Time</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Keyword</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Last month</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Last week</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>Resume Syncing This Folder</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>Resume Syncing These Folders</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>Do Not Sync These Folders</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>No data</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send to</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>Currently syncing: %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>Search by file name</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>File Type</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fri</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>All events</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Date range</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Upload</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Mon</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dec</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Feb</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Jan</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Jul</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Jun</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Oct</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sat</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Sun</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Thu</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Wed</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>Advanced Mode</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>Don&apos;t show this message again</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>Setup Complete</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>The tray icon shows the sync status at a glance.</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>Setup Mode</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>Sync your home folder on the NAS with a folder on this computer.</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, thanks</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>Sync Folder</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>Tray Icon</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>Sharing and Versions</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>Search for NAS on the local network</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>Connect with LinkVane</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Username:</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Welcome to Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>Show Main Window</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Update Available</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>Folder on the NAS</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>New Sync Folder</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>Sync a new folder</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>Advanced Setup</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>Open Sync Status</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>Files larger than %1 MB will not be synced.</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>Find NAS on the local network</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>&quot;%1&quot; cannot be used as a sync folder.</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>More Tips</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>The folder &quot;%1&quot; overlaps with the sync folder of another task.</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>This folder is already synced with &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>The folder &quot;%1&quot; is already synced with a folder on the NAS.</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>Create a &quot;Nimbulo&quot; folder in the selected location</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copy Sharing Link</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>Unable to get a sharing link because sharing is disabled on the server.</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>Your IP address is not allowed to connect to this server.</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>When the same file has been changed on both sides:</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>The sync direction does not match the permissions of this folder.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Previous %1 pages</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Next %1 pages</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Open File</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Open Folder</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Unlinking...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>Too many failed attempts. Please try again later.</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>This file is locked by another application.</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>Unable to check &quot;%1&quot; because of a network error.</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>Keep the most recently modified version</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Two-way sync</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>Enter the address of your NAS and your account.</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>Unable to create the local folder &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>Select a folder on the NAS and a folder on this computer to sync with each other.</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>Set Sync Folders</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>Enable On-demand Sync</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>The verification code is incorrect.</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>This account requires a verification code.</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>Enter the verification code from your authenticator app:</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>The server certificate has changed. Unable to sync &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>A system error occurred while checking the sync folder.</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>Overwrite the local copy with the server&apos;s copy</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>Keep both copies and rename the local one</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora is ready.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora is initializing...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>No folder that you can sync was found.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Show the tutorial</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>Files in the local folder will be merged with the files on the NAS.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>Start Nimbulo Pelora when the computer starts</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Nimbulo Pelora has encountered an error.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora is running.</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>This version of Nimbulo Pelora is no longer supported. Please update it.</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>Click to update Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>Please update the sync service on the server to use selective sync.</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>There is not enough free space on this computer to sync &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>Sign in to your NAS to start syncing.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>Keep the files on this computer in sync with your NAS.</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>Shared folder not found</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>About Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>Your administrator requires two-step verification. Please enable it in your account settings first.</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>The quota of the shared folder is full.</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>Sync Direction</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora has encountered a problem while syncing. Click for details.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora keeps your files up to date on all of your devices.</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>Some fields contain invalid values.</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>You do not have permission to access &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>Your account has been disabled. Unable to sync &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Expires after</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>No options available</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>You need an account on a NAS with the sync service installed.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>Authentication failed. Please check your username and password.</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>Use * to match any characters. Separate entries with commas.</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>One-way download</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>A folder named &quot;%1&quot; already exists.</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>Sync extended attributes</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>I do not accept the terms in the License Agreement</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>Sharing Link</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>Expires on</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>This field is required.</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>Restrict access to users with an account</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>Show Nimbulo Pelora in the context menu</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>The home folder service is disabled on the NAS.</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Unable to update Nimbulo Pelora. Please try again later.</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>Apply and Copy Link</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>Limit the number of accesses</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>Available from</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>A new version of Nimbulo Pelora is required to connect to this server. Update now?</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>Add file name</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>Local destination</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>Remote NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>Download the selected version</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>Custom duration</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>Refresh sync history</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>On-demand Sync</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>Filter sync history</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Add folder</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendar</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Next month</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Previous month</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>Change sync folder</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>Event category</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>Sync task details</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>Remote destination</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>Close tutorial</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>Tutorial: learn how to use Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>Cancel download</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>Delete version</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>Unable to enable On-demand Sync for &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>This file is not available because there is no connection to the server.</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>Renamed on this computer</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>Renamed on the server</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>Please enter no more than %1 characters.</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>Your password has expired. Please change it on the server and sign in again.</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>This folder was synced by a different user. Please choose another folder.</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>Relay connections are disabled on the server.</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>Authentication failed for &quot;%1&quot;. Please sign in again.</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>Unable to get the link to this file.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Temporary files</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>Congratulations!</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>Folders others have shared with you</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>You have read-only access to this folder. Changes you make here stay on this computer.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Show the Nimbulo Pelora tutorial</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora is running in the background.</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>Sign in to your server to start syncing.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>You need an account on a server with the sync service installed.</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>Tutorial: learn how to sync with Nimbulo Pelora.</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>The server ID &quot;%1&quot; does not exist.</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>Start Nimbulo Pelora when I sign in</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>Choose a folder on the server and a folder on this computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>This sync task belongs to a different server.</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>The server uses a protocol that this version of Nimbulo Pelora does not support.</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>The disk is full. Nimbulo Pelora has paused syncing.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Nimbulo Pelora has encountered an error. Please restart it.</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>The selected folder is not empty. Its files will be uploaded to the server.</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>Download changes from the server only</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>Your files are now syncing with the folder &quot;%1&quot; on the server.</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>Keep the files on this computer in sync with your server.</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>Create a &quot;Varnex Pelora&quot; folder in the selected location</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>Sync a folder of your choice on the server.</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>Automatic setup failed. Please set up Nimbulo Pelora manually.</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>Finishing automatic setup...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Share</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>No data available.</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>No shared folders are available.</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>The file or folder does not exist.</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora has been configured by your administrator.</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>Internal users</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>Users of the server can view the file.</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>Users of the server can view and edit the file.</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>Specific people</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>Only people you invite can access the file.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Anyone with the link</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>Anyone with the link can view the file.</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>Anyone with the link can view and edit the file.</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Can view</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Can edit</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>Invite</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>Link permission:</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>Users and groups</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>Use a black-and-white icon in the menu bar</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>Show the sync folder in the sidebar of file windows</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>Unable to connect to the server</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 commented on %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 mentioned you in %2</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 requested access to %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 shared %2 with you</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Open in Web Portal</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sync</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Shared</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>Set Up</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 is requesting access to this file.</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comments</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>Mentions</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>Sync the folders shared with you as well?</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>One-way upload</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>Do not remove files on the server when they are removed locally</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>&quot;%1&quot; has been downloaded.</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>Your files are synced on all devices.</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>You can also access your files from the web portal.</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>Your sync task is ready.</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>Start Tour</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>Files and folders that others share with you can also be synced to this computer.</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>Maybe later</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Sync now</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>Shared with Me</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>Create Sync Task</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>Choose what you want to sync.</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>General Sync Task</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>Files Shared with Me</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>Sync the files and folders others have shared with you.</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>Choose a folder on the NAS and a folder on this computer.</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>This sync task belongs to a different NAS.</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>The disk is full. Syncing has been paused.</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>Download changes from the NAS only</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nimbulo Pelora could not be updated. Please try again later.</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>You are already connected to this NAS.</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>Changes on network drives may be detected with a delay.</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>The SSL certificate of %1 has changed.</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>A secure connection to the server cannot be established.</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>Welcome!</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>Files in your home folder on the NAS are now in %1.</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>Files in your home folder on the server are now in %1.</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>The disk is full</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>The server&apos;s sync service is outdated</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>The shared folder no longer exists.</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>Click to update to Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</translation>
    </message>
</context>
</TS>
