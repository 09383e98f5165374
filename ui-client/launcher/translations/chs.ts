<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除链接</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>同步此文件时发生冲突。</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>参数无效。</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>发生网络错误。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>本地存储</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>所选文件夹不为空。其中的文件将与服务器上的文件合并。</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>正在验证您的帐户...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>连接成功。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>文件夹“%1”已存在。是否合并其内容？</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>登录时自动启动 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>用户名或密码不正确。</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>更改同步文件夹</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>文件夹不为空</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>开始使用 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>最近更新的文件</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>打开 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>正在检测更改...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>已与服务器断开连接。</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>启用同步</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>身份验证失败</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>正在检查连接...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>中继连接</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>互联网</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>由于系统错误，无法自动连接。</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>服务器已禁用共享链接。请联系管理员。</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>已更新 %1 个文件</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>您对此文件夹只有只读权限。本地更改不会上传。</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>您在服务器上的存储配额已满。请释放一些空间以继续同步。</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>连接类型</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>连接信息</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>请选择一个文件夹。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>无法自动连接。请检查服务器地址，然后重试。</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>您的更改尚未保存。是否放弃更改？</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>配额已满</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>本地文件夹</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>无法为此共享文件夹启用同步。</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>此文件夹与另一个同步任务冲突。</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>已同步的共享文件夹数量已达上限。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>请输入 1 到 65535 之间的端口号。</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>请输入代理服务器地址和端口。</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>请输入用户名。</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手动配置代理</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>使用系统代理设置</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>没有需要应用的更改。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>代理服务器需要身份验证</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>正在更新文件...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>冲突的更改会在两个副本中保留：本地副本将以计算机名称重命名。</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>服务器地址</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>请输入服务器的 IP 地址、主机名或中继 ID。</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>服务器的同步服务版本过旧。请联系管理员进行更新。</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>在文件图标上显示同步状态</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>使用 SSL 加密连接</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>使用单色托盘图标</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同步问题</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 与您共享了“%2”。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共享文件夹</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在检查文件...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>符合这些规则的文件和文件夹将不会同步。</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>文件扩展名：</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>正在更新 Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>确定要停止同步“%1”吗？</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>共享已禁用</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>不支持挂载点</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>无法移除此同步任务。</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>新语言将在 Nimbulo Pelora 重新启动后生效。</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>本地磁盘已满。请释放一些空间以继续同步。</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>确定要解除与此服务器的链接吗？本地文件将会保留。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上传...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>语言：</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>正在同步 %1 个文件</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>文件名：</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>已阻止的文件</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>本地同步数据库已损坏。请重新链接此同步任务。</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>最大文件大小：</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>筛选文件</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>排除的文件类型：</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>取消选择的文件夹将从此计算机中移除，但仍保留在服务器上。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>合并模式</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>挂载点不能用作同步文件夹。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>下载已取消。</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>您没有执行此操作的权限。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>您的存储配额已满</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>本地磁盘已满</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>权限被拒绝</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不匹配</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>无法从服务器获取您的帐户信息。</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>检测到同步问题</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>计算机名称</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>连接不稳定。正在重试...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>正在下载 %1...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>正在重试同步...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>安全警告</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>下载完成。</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>仍然继续</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>筛选规则</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>浏览历史版本</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>停止同步“%1”将删除其本地副本。是否继续？</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>安全连接</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>请选择此计算机上用于同步文件的文件夹。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及其他 %1 项</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共享</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>无法下载该文件。</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>服务器已被替换或重置</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>证书验证失败</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>无法验证服务器的 SSL 证书。该连接可能不安全。</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>此同步任务处于非活动状态。单击以恢复。</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>当前无法下载此文件。</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>无法列出此文件的历史版本。</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>无法为此文件创建共享链接。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>双击托盘图标以打开同步文件夹</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>正在索引文件夹...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>欢迎使用 Nimbulo Pelora 安装向导</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>无法初始化 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; 上一步</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>已准备好安装 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>部分需要更新的文件正在使用中。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>最终用户许可协议</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Nimbulo Pelora 安装向导已完成</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>不关闭应用程序。需要重新启动计算机。</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>安装错误</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>单击“完成”按钮退出安装向导。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora 已成功安装。</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>启动 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>更改、修复或移除安装</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>允许您更改功能的安装方式。</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>同步文件夹所在的卷未挂载。</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>文件版本无效。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>确定要取消 Nimbulo Pelora 的安装吗？</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>您对此文件夹只有只读访问权限。您在此处所做的更改不会上传。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>请仔细阅读以下许可协议。</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>请阅读并接受许可协议以继续。</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>取消安装</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora 让此计算机上的文件与您的 NAS 保持同步。</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>下一步 &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修复</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>同步状态</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>找不到本地同步文件夹“%1”。它可能已被移动或删除。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Nimbulo Pelora 安装程序因出错而提前结束。您的系统未被修改。</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>若要稍后安装此程序，请重新运行安装向导。单击“完成”退出。</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>安装提前结束</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>关闭所有应用程序并尝试重新启动它们。</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>关闭正在使用安装程序需要更新的文件的应用程序。</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>以下应用程序正在使用安装程序需要更新的文件。请关闭这些应用程序，然后单击“重试”继续。</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>通过修复缺失和损坏的文件、快捷方式和注册表项，修复最近一次安装中的错误。</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>以下应用程序正在使用需要更新的文件。\n请关闭这些应用程序，或由安装程序关闭并尝试重新启动它们。</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>文件正在使用</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora 没有可选择的独立功能。</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>更改已安装的功能</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>请选择要执行的操作。</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>从计算机中移除 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>移除安装</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修复安装</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>请选择要执行的操作。\n您的同步设置将会保留。</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>安装向导可以更改 Nimbulo Pelora 的安装方式、修复它，或将它从计算机中移除。单击“下一步”继续，或单击“取消”退出。</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>欢迎使用 Nimbulo Pelora 安装程序</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>安装向导正在安装 Nimbulo Pelora，请稍候。</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>这可能需要几分钟时间。</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>正在安装 Nimbulo Pelora...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>正在安装 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“安装”开始安装。单击“上一步”查看或更改安装设置。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>安装向导已准备好开始安装。</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>单击“安装”开始。</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>单击“移除”从计算机中移除 Nimbulo Pelora。已同步的文件将会保留。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>安装向导已准备好移除 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>单击“移除”开始。</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>移除 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>单击“修复”以修复 Nimbulo Pelora 的安装。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>安装向导已准备好修复 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>单击“修复”开始。</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>修复 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Nimbulo Pelora 安装已中断。您的系统未被修改。</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>若要稍后安装此程序，请重新运行安装。单击“完成”退出向导。</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>安装已中断</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>安装向导将在您的计算机上安装 Nimbulo Pelora。单击“下一步”继续，或单击“取消”退出。</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>更改、修复或移除 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>安装已完成。</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>安装已取消。</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>安装过程中发生错误。</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>此向导将引导您完成安装。</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>我接受许可协议中的条款</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>连接到其他 NAS</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>同步历史记录</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>已启用同步</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>要同步的文件夹</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>您的文件，随处可用。</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>您的文件现在将在后台同步。您可以在 %1 中找到它们。</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>确定要解除同步任务“%1”的链接吗？此计算机上已有的文件将会保留。</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>文件筛选</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>在未同步的文件上显示图标</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>中继 ID“%1”不存在。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>偏好设置</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>服务器已更改。请检查您的同步任务。</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>共享文件夹未在服务器上挂载。</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>远程文件夹不可用。它可能位于未挂载的加密共享文件夹中。</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>以点开头的文件</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>已安装 Nimbulo Pelora %1。\n是否重新安装？</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>安装 Nimbulo Pelora 需要管理员权限。\n请以管理员身份运行安装程序。</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>使用 Nimbulo Pelora 同步您的文件</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>通过 LinkVane 连接时无法使用文件共享。</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>周二</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>打开所在文件夹</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>请选择 Nimbulo Pelora 的配置方式。</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>快速配置</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>右键单击同步文件夹中的文件，即可共享该文件或浏览其历史版本。</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>随时打开托盘菜单，查看正在同步的内容。</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>您所做的更改在保存后会立即上传。</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>不同步此文件夹</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>在 NAS 上新建一个文件夹，与此计算机同步。</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>文件夹已同步</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>此文件夹已由另一个同步任务同步。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>正在准备同步...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>最近更改</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 项</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上周</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>恢复同步此文件夹</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>恢复同步这些文件夹</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>不同步这些文件夹</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>无数据</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>发送到</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>正在同步：%1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>按文件名搜索</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>周五</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>上传</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>周一</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>周六</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>周日</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>周四</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>周三</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>高级模式</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>不再显示此消息</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>您的文件正在与 NAS 上的文件夹“%1”同步。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora 已配置完成。您在 NAS 上的主文件夹现已与此计算机同步。</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>配置完成</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>放入同步文件夹的文件会在 NAS 和您的其他设备上保持最新。</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>通过托盘图标可以一目了然地查看同步状态。</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>配置模式</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>将 NAS 上的主文件夹与此计算机上的文件夹同步。</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，谢谢</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>同步文件夹</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>托盘图标</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>共享与版本</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>在局域网中搜索 NAS</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>通过 LinkVane 连接</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>欢迎使用 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>显示主窗口</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>有可用的更新</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>NAS 上的文件夹</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>新建同步文件夹</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>同步新文件夹</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>高级配置</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>打开同步状态</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>选择要同步的 NAS 文件夹、在此计算机上的存放位置以及同步方式。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>大于 %1 MB 的文件将不会同步。</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>在局域网中查找 NAS</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>您对“%1”只有读取权限。在此计算机上所做的更改不会上传。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>“%1”不能用作同步文件夹。</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>更多提示</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>文件夹“%1”与另一个任务的同步文件夹重叠。</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>此文件夹已与“%1”同步。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>文件夹“%1”已与 NAS 上的某个文件夹同步。</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>在所选位置创建“Nimbulo”文件夹</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>复制共享链接</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>服务器已禁用共享，无法获取共享链接。</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>服务器的 SSL 证书已更改。是否信任新证书？</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>您的 IP 地址不允许连接到此服务器。</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>当同一文件在两端都被更改时：</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>同步方向与此文件夹的权限不匹配。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 页</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>后 %1 页</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在解除链接...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>失败次数过多。请稍后再试。</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>此文件已被其他应用程序锁定。</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>由于网络错误，无法检查“%1”。</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>保留最近修改的版本</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双向同步</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>请输入 NAS 的地址和您的帐户信息。</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>无法创建本地文件夹“%1”。</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>选择 NAS 上的一个文件夹和此计算机上的一个文件夹，使二者相互同步。</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>设置同步文件夹</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora 正在将 NAS 上的“%1”与此计算机上的“%2”同步。</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>发生文件冲突时，将保留服务器上的副本，并备份本地副本。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>启用按需同步</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>验证码不正确。</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>此帐户需要验证码。</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>请输入身份验证器应用中的验证码：</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>您在 NAS 上的配额已满，无法同步“%1”。</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>服务器证书已更改，无法同步“%1”。</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>无法验证服务器证书，无法同步“%1”。</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>检查同步文件夹时发生系统错误。</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>用服务器上的副本覆盖本地副本</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>保留两个副本并重命名本地副本</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>已安装更新版本的 Nimbulo Pelora（%1）。\n安装程序将退出。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora 已就绪。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora 正在初始化...</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>未找到可同步的文件夹。</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>显示教程</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>本地文件夹中的文件将与 NAS 上的文件合并。</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>计算机启动时启动 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Nimbulo Pelora 遇到错误。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora 正在运行。</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>此版本的 Nimbulo Pelora 已不再受支持。请进行更新。</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>单击以更新 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>请更新服务器上的同步服务以使用选择性同步。</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>此计算机上的可用空间不足，无法同步“%1”。</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>登录您的 NAS 以开始同步。</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>让此计算机上的文件与您的 NAS 保持同步。</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>找不到共享文件夹</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>关于 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>您的管理员要求使用两步验证。请先在帐户设置中启用该功能。</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>共享文件夹的配额已满。</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora 在同步时遇到问题。单击查看详细信息。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora 让您的文件在所有设备上保持最新。</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>部分字段包含无效的值。</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>您没有访问“%1”的权限。</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>您的帐户已被停用，无法同步“%1”。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>有效期</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>没有可用的选项</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>您需要一个已安装同步服务的 NAS 上的帐户。</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>身份验证失败。请检查您的用户名和密码。</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>使用 * 匹配任意字符。多个条目之间用逗号分隔。</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>单向下载</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>名为“%1”的文件夹已存在。</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>同步扩展属性</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>我不接受许可协议中的条款</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>共享链接</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>到期日期</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>此字段为必填项。</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>仅限拥有帐户的用户访问</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>在上下文菜单中显示 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>NAS 上的主文件夹服务已禁用。</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>无法更新 Nimbulo Pelora。请稍后再试。</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>应用并复制链接</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>限制访问次数</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>生效时间</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>需要新版本的 Nimbulo Pelora 才能连接到此服务器。是否立即更新？</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>添加文件名</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>本地目标位置</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>远程 NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>此计算机</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>下载所选版本</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>自定义期限</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>刷新同步历史记录</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>按需同步</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>筛选同步历史记录</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下个月</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>更改同步文件夹</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>事件类别</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>同步任务详细信息</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>远程目标位置</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>关闭教程</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>教程：了解如何使用 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>取消下载</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>删除版本</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>无法为“%1”启用按需同步。</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>未连接到服务器，因此此文件不可用。</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>已在此计算机上重命名</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>已在服务器上重命名</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>请输入不超过 %1 个字符。</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>您的密码已过期。请在服务器上更改密码，然后重新登录。</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>此文件夹曾由其他用户同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>服务器已禁用中继连接。</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>“%1”身份验证失败。请重新登录。</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>无法获取此文件的链接。</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>临时文件</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>恭喜！</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>其他人与您共享的文件夹</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>您对此文件夹只有只读访问权限。您在此处所做的更改仅保留在此计算机上。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora 正在将服务器上的“%1”与此计算机上的“%2”同步。</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>显示 Nimbulo Pelora 教程</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora 正在后台运行。</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>登录您的服务器以开始同步。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>无法更新 Nimbulo Pelora。请下载最新版本并重新安装。</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>您需要一个已安装同步服务的服务器上的帐户。</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>冲突的更改会在两个副本中保留：服务器副本将以用户名重命名。</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>教程：了解如何使用 Nimbulo Pelora 进行同步。</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>服务器 ID“%1”不存在。</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>登录时启动 Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>请选择服务器上的一个文件夹和此计算机上的一个文件夹。</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>此同步任务属于其他服务器。</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>服务器使用的协议不受此版本的 Nimbulo Pelora 支持。</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>磁盘已满。Nimbulo Pelora 已暂停同步。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Nimbulo Pelora 遇到错误。请重新启动它。</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>所选文件夹不为空。其中的文件将上传到服务器。</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>仅从服务器下载更改</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>您的文件正在与服务器上的文件夹“%1”同步。</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>已安装 Varnex Pelora %1。\n是否重新安装？</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>可用空间不足，无法同步“%1”。请释放一些空间，然后重试。</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>让此计算机上的文件与您的服务器保持同步。</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>在所选位置创建“Varnex Pelora”文件夹</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>已安装更新版本的 Varnex Pelora（%1）。\n安装程序将退出。</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>同步服务器上您选择的文件夹。</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>自动配置失败。请手动配置 Nimbulo Pelora。</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>正在完成自动配置...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共享</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>暂无数据。</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>没有可用的共享文件夹。</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>文件或文件夹不存在。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora 已由您的管理员配置。</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>内部用户</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>服务器用户可以查看该文件。</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>服务器用户可以查看和编辑该文件。</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>特定人员</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>只有您邀请的人员可以访问该文件。</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>任何拥有链接的人</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>任何拥有链接的人都可以查看该文件。</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>任何拥有链接的人都可以查看和编辑该文件。</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>可查看</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>可编辑</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>邀请</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>链接权限：</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>用户和群组</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>在菜单栏中使用黑白图标</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>在文件窗口的边栏中显示同步文件夹</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>无法连接到服务器</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 评论了 %2</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 在 %2 中提到了您</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 请求访问 %2</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 与您共享了 %2</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>在 Web 门户中打开</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>已共享</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 正在请求访问此文件。</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>评论</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>提及</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>是否同时同步与您共享的文件夹？</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>单向上传</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>在本地删除文件时，不删除服务器上的文件</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>已下载“%1”。</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>您的文件已在所有设备上同步。</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>您也可以通过 Web 门户访问您的文件。</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>您的同步任务已就绪。</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>开始导览</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>其他人与您共享的文件和文件夹也可以同步到此计算机。</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>立即同步</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>与我共享</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>创建同步任务</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>请选择要同步的内容。</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>常规同步任务</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>与我共享的文件</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>同步其他人与您共享的文件和文件夹。</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>请选择 NAS 上的一个文件夹和此计算机上的一个文件夹。</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>此同步任务属于其他 NAS。</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>NAS 使用的协议不受此版本的 Nimbulo Pelora 支持。</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>磁盘已满。同步已暂停。</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>仅从 NAS 下载更改</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>无法更新 Nimbulo Pelora。请稍后再试。</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>您已连接到此 NAS。</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>网络驱动器上的更改可能会延迟检测到。</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>%1 的 SSL 证书已更改。</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>无法与服务器建立安全连接。</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>欢迎！</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>您在 NAS 上的主文件夹中的文件现在位于 %1。</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>您在服务器上的主文件夹中的文件现在位于 %1。</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>服务器的同步服务版本过旧</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>该共享文件夹已不存在。</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>单击以更新到 Nimbulo Pelora %1</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>此版本的 Nimbulo Pelora 过旧，无法连接到服务器。请进行更新。</translation>
    </message>
</context>
</TS>
