<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>共享链接</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive 会让此计算机上的文件与您的 NAS 保持同步。单击“立即开始”将此计算机与您的 NAS 配对。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>正在上传</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>您最多只能创建 %1 个共享链接。</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>大于 %1 MB 的文件将不会同步。</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>按需同步</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>所选文件夹无法用作同步文件夹。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>同步临时文件</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink 中继</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>保留两个文件，并重命名冲突的文件</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>允许您更改功能的安装方式。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安装向导允许您更改 Calderix Drive 在计算机上的安装方式，或者修复或删除它。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 与您共享了一个文件夹。</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>单击“完成”按钮退出安装向导。</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>请选择其他本地文件夹，或 NAS 上的其他共享文件夹。</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>安装已完成。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>结束日期</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>限制访问次数</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>正在同步 %1 个文件</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>无法为此项目创建共享链接。</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>服务器地址详细信息</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>此文件夹的同步方向与 NAS 上的设置不匹配。</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>您需要管理员权限才能安装 Calderix Drive。是否仍要继续？</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>此文件夹与现有的同步文件夹重叠。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>同步文件夹</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下载</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>您在 NAS 上的存储配额已满。请释放一些空间，或请管理员为您分配更大的配额。</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>自动连接已被管理员取消。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Calderix Drive 安装提前结束</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>参数无效。</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>以下应用程序正在使用安装程序需要更新的文件。您可以关闭这些应用程序并单击“重试”，或单击“忽略”仍然继续。</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>正在为此文件夹建立索引。</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>下载历史记录</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>合并两端的文件</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>显示教程</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>更改同步文件夹</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双向同步</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>更改文件夹</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>关于 Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>排除同步的文件</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>使用系统代理设置</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>请选择 Calderix Drive 的设置方式。</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>此文件夹所在磁盘的可用空间不足。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>其他计算机在网络驱动器上所做的更改可能无法立即检测到。</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>请输入用户名。</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>正在检查您的用户名和密码...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>您在 NAS 上的存储配额已满。请先释放一些空间，再同步此文件夹。</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>服务器返回了意外的响应。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>请输入不超过 %1 个字符。</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>将此计算机与您的 NAS 配对即可开始使用。</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>更改文件夹</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>取消选择的文件夹将从此计算机中删除，但仍保留在 NAS 上。是否继续？</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>打开 Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大文件大小</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>此版本的 Calderix Drive 对于 NAS 来说太旧。请升级 Calderix Drive。</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>连接不稳定</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>停止下载版本</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 与您共享了文件夹 %2。</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重命名</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>文件夹不为空</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>关闭应用程序并尝试重新启动(&amp;C)。</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>将冲突的文件保存在单独的文件夹中</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 是挂载点，无法用作同步文件夹。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>后 %1 页</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>没有可显示的记录。</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>确定要取消关联此同步任务吗？此计算机和 NAS 上的文件都将保留。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>由于发生错误，Calderix Drive 安装提前结束。您的系统未被修改。要在以后安装此程序，请再次运行安装向导。</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>无法与 NAS 建立安全连接。</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同步问题</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上传</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>与 NAS 的连接已断开。</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>NAS 已更改</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>此计算机上与 NAS 上的文件冲突的文件将被重命名并保留。</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>获取共享链接</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不匹配</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>无法下载 %1。</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>此计算机的磁盘已满。</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>请更新 NAS 套件以使用选择性同步。</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>用户名或密码不正确。</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>此同步文件夹属于其他 NAS。</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>在文件和文件夹上显示同步状态图标</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>安装已中断。</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>文件夹 %1 不为空。</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>正在完成设置...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>无法启用按需同步。</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>下载已停止。</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>将为 %1 创建新的同步任务。</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>恢复同步这些文件夹</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>准备修复 Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>与新的 NAS 同步</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>无法验证 NAS 的证书。</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>连接 ID 无效。</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Calderix Drive 有新版本可用。是否立即升级？</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>NAS 的证书已更改。</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>右键单击同步文件夹中的文件即可获取共享链接。</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>文件夹不为空。是否将其内容与 NAS 上的文件夹合并？</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>更多详细信息</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>请选择要执行的操作。</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>您的文件，随处可用。</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>最终用户许可协议</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消关联</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>互联网</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>部分需要更新的文件正在使用中。</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>设置密钥已配置。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修复安装</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>生效时间</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>覆盖此计算机上的文件</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>请输入代理服务器的地址和端口。</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>所选文件夹为只读。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>NAS 上已禁用中继连接。</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>正在升级...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修复(&amp;R)</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>自上次同步此文件夹以来，NAS 的证书已更改。</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>创建 Calderix Drive 文件夹</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>在未同步的文件上显示图标</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>限制访问</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 上一步(&amp;B)</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>找不到本地同步文件夹 %1。</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>浏览以前的版本</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>正在检测连接...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>高级设置向导</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>放入同步文件夹的文件会在 NAS 和您的所有计算机上保持最新。</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>无法删除共享链接。</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>删除(&amp;M)</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>服务器地址</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>正在安装 Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>已连接到其他 NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>共享文件</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>更改(&amp;C)</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>无法创建本地文件夹。</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>安全连接 (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Calderix Drive 安装已中断。您的系统未被修改。要在以后安装此程序，请再次运行安装向导。</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>下一步(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>无法下载此项目。</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>无法打开本地数据库。</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>应用到所有子文件夹</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>不同步这些文件夹</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>已下载 %1。</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>最近更新的文件</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>重复的同步任务</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>NAS 要求您的帐户使用两步验证。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>是否删除此共享链接？</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive 已在运行。</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>安全警告</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>打开同步状态</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>此系统文件夹无法用作同步文件夹。</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>不同步此文件夹</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>单击菜单栏中的 Calderix Drive 图标即可查看同步状态和更改设置。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>连接成功。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>无法验证 NAS 的证书。是否继续？</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>此文件不属于任何连接。</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>随处访问</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>代理服务器需要密码</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>NAS 上的同步文件夹</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>自行选择共享文件夹、本地文件夹和同步选项。</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>具有这些名称的文件将不会同步。</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>欢迎使用 Calderix Drive 安装向导</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>部分字段包含无效的值。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>确定要取消 Calderix Drive 的安装吗？</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安装向导将在您的计算机上安装 Calderix Drive。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>不支持挂载点</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS 概览</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>我接受许可协议中的条款(&amp;A)</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Calderix Drive 状态</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>同步您的文件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>此版本的 Calderix Drive 已安装。</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>删除 Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>同步已暂停</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>任何拥有此链接的人都可以在网页浏览器中打开该文件。</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>您的帐户已在 NAS 上被禁用。</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>忽略(&amp;I)</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>删除安装</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>无法升级 Calderix Drive。</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>无法从 NAS 获取您的用户信息。</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>连接类型</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>准备安装 Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>仍然继续</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>文件夹选择性同步</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Calderix Drive 安装已中断</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>您的密码已过期。请在 NAS 上更改密码。</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>输入验证码</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>代理服务器的用户名或密码不正确。</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>到期日期</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>您的文件现在将与 NAS 保持同步。</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>通过 Farrowlink 连接时无法使用共享链接。</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>在右键菜单中显示 Calderix Drive</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>NAS 上的 Ostrel 服务已禁用。请联系管理员启用该服务。</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>部分文件无法同步。</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>正在启动 Calderix Drive...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>请选择要同步的 NAS 文件夹，以及在此计算机上的保存位置。</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>使用黑白菜单栏图标</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>此共享文件夹已同步到其他文件夹。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>从任何与 NAS 配对的计算机打开已同步的文件。</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>无法获取文件的链接。</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>此字段不能为空。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上周</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>正在检查更改...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>欢迎使用 Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>远程目标位置</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>只读文件夹</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>更改、修复或删除安装</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>新建同步文件夹</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>此计算机</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>正在加载文件夹列表...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>以下应用程序正在使用此安装程序需要更新的文件。请关闭这些应用程序，然后单击“重试”继续。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>通过 Farrowlink 连接</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>已存在同名文件。</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>创建一个新文件夹与 NAS 同步。</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>NAS 的证书已更改。您是否信任新证书？</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>无法列出此文件的版本。</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>添加文件名</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>正在下载 %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>失败次数过多。请稍后再试。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>已启用共享</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel 已禁用</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>所有文件均为最新</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>全部就绪</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>同步文件夹 %1 所在的卷未挂载。</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>此文件夹已与 NAS 上的同一共享文件夹同步。</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>共享文件夹丢失</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>单击以更新 Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>使用安全连接 (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>安装程序已准备好开始安装。</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>当同一文件在两端都有更改时：</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“修复”以修复 Calderix Drive 的安装。单击“上一步”以查看或更改安装设置。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>添加同步任务</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>准备中</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>NAS 不支持此版本的 Calderix Drive。请升级 Calderix Drive。</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>启用同步</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>您没有访问此文件夹的权限。</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>文件夹 %1 为只读。</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>升级 Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>验证码不正确。</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>即使此计算机处于离线状态，您的文件依然可用。</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>正在检查数据...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>日志类别</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>启动 Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>升级失败。</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>同步文件夹</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>选择性同步模式</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>代理设置</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>登录失败</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>文件正在使用</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>已在此计算机上重命名</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>没有可同步的文件夹。</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>同步文件夹</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>单向同步 (仅下载)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>请选择 NAS 上要同步的共享文件夹。</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>在局域网中搜索 NAS 设备</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“删除”从您的计算机中删除 Calderix Drive。单击“上一步”以查看或更改安装设置。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手动配置代理</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>该共享文件夹在 NAS 上已不存在。</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不再显示此消息</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>随时掌握动态</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 页</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>更多提示</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>正在连接到 %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>请输入 1 到 65535 之间的端口号。</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>文件选择性同步</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>配额已满</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自定义范围</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>打开 Calderix Drive 文件夹</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>该共享文件夹未在 NAS 上挂载。</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“安装”开始安装。单击“上一步”以查看或更改安装设置。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>由于所在的卷未挂载，远程文件夹不可用。</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>安装程序已准备好安装 Calderix Drive。</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>快速设置</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>关闭此文件夹的同步会将其从同步列表中移除。文件仍保留在 NAS 和此计算机上。是否继续？</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>恢复同步此文件夹</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>删除链接</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>取消安装</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>此文件夹的同步任务已存在。</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>此文件夹曾由其他用户帐户同步。</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>没有更改任何设置。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>登录失败。请检查您的用户名和密码。</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>符合这些筛选条件的文件将不会同步。</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NAS 的可用空间不足。</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在取消关联...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>恢复同步</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Calderix Drive 安装向导已完成</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>设置同步文件夹</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>教程</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>访问 %1 次后失效</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>两个文件夹的内容将被合并。</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>安装向导正在安装 Calderix Drive，请稍候。</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下一个月</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>正在下载</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>您没有执行此操作的权限。</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>通过修复丢失和损坏的文件、快捷方式和注册表项，修复最近一次安装中的错误。</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>无法为此文件夹启用同步。</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>此文件没有可用的以前版本。</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>刷新同步日志</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>单击“删除”从您的计算机中删除 Calderix Drive。</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>从您的计算机中删除 Calderix Drive。</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>修复 Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>设置模式</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>文件扩展名</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>没有可用的选项</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>通过您的 NAS 同步和共享文件。</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>权限被拒绝</translation>
    </message>
    <message>
        <source>From</source>
        <translation>开始日期</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>已在 NAS 上重命名</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>安装向导正在安装 Calderix Drive，请稍候。这可能需要几分钟时间。</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>登录时启动 Calderix Drive</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>此向导将引导您完成安装。</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>保留最近修改的文件</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>此计算机已与此 NAS 配对。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>请仔细阅读以下许可协议。</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>无法启动 Calderix Drive。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>NAS 套件版本过旧，不支持此版本的 Calderix Drive。请更新 NAS 上的套件。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>新共享</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>请输入验证码。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及其他 %1 个</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>重新启动 Calderix Drive 后将使用新语言。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>正在初始化 Calderix Drive...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>配对信息</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>确定要取消与 %1 的关联吗？</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive 已成功安装。</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>发生未知错误。</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>我不接受许可协议中的条款(&amp;D)</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>搜索局域网</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>此计算机的可用空间不足。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>同步方式</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>本地同步文件夹</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>您已选择从系统中删除该程序。</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive 没有可更改的独立功能。</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>不需要</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive 现在将开始与 NAS 同步您的文件。</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>您的更改尚未保存。是否保存？</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>更改语言</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>本地目标位置</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>NAS 已阻止来自此 IP 地址的连接。</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>已安装较新版本的 Calderix Drive。</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>下载以前的版本</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>检查同步文件夹时发生网络错误。请重试。</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>证书错误</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>单击“修复”以修复 Calderix Drive。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>更改、修复或删除 Calderix Drive。</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>已更新的文件</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>删除已下载的版本</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>已排除的文件</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>自定义期限</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>请输入 NAS 的地址和您的用户帐户。</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>更改安装</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>此文件夹为只读。更改不会同步到 NAS。</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>由于系统错误，自动连接失败。</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>最近更改</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive 已准备就绪。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>NAS 存储空间已满</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>正在同步：%1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>此共享文件夹的存储配额已满。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>版本不兼容</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>发送到 %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>您可以随时更改这些设置。</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>安装过程中发生错误。</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>与 NAS 配对</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>不关闭应用程序(&amp;D)。将需要重新启动。</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>应用并复制链接</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>暂停同步</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>将 NAS 上的个人文件夹与此计算机上的 Calderix Drive 文件夹同步。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>删除(&amp;R)</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>单向下载</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>请选择要同步的文件夹。</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上一个月</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>NAS 上的个人文件夹服务已禁用。</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>发生网络错误。请检查您的网络连接。</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>共享链接需要 Ostrel 服务，但该服务已在 NAS 上禁用。</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>双击操作</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>启用按需同步</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>名称以点开头的文件</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>NAS 套件不支持此版本的 Calderix Drive。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>此计算机已与您的 NAS 配对。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>代理服务器</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>关闭教程</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>共享文件夹 %1 已与 %2 同步。</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>自动设置失败。请手动设置 Calderix Drive。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>筛选同步日志</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>正在加载同步文件夹...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>请选择安装完成后要执行的操作。</translation>
    </message>
</context>
</TS>
