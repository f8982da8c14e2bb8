<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>共用連結</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>結束(&amp;X)</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive 會讓這台電腦上的檔案與您的 NAS 保持同步。請按一下「立即開始」，將這台電腦與您的 NAS 配對。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>正在上傳</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>您最多只能建立 %1 個共用連結。</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>大於 %1 MB 的檔案將不會同步。</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>隨選同步</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>所選的資料夾無法作為同步資料夾使用。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>同步暫存檔案</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink 中繼</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>保留兩個檔案，並將衝突的檔案重新命名</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>讓您變更功能的安裝方式。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>列印(&amp;P)</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安裝精靈可讓您變更 Calderix Drive 在電腦上的安裝方式，或是修復或移除它。請按一下「下一步」繼續，或按一下「取消」結束安裝精靈。</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 與您共用了一個資料夾。</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>請按一下「完成」按鈕結束安裝精靈。</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>請選擇其他本機資料夾，或 NAS 上的其他共用資料夾。</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>安裝已完成。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>結束日期</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>限制存取次數</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>正在同步 %1 個檔案</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>無法為此項目建立共用連結。</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>伺服器位址詳細資料</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已刪除</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>此資料夾的同步方向與 NAS 上的設定不符。</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>您需要系統管理員權限才能安裝 Calderix Drive。仍要繼續嗎？</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>此資料夾與現有的同步資料夾重疊。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>同步資料夾</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下載</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>您在 NAS 上的儲存配額已滿。請釋放一些空間，或要求系統管理員提高您的配額。</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>自動連線已被系統管理員取消。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Calderix Drive 安裝提前結束</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>參數無效。</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>下列應用程式正在使用安裝程式需要更新的檔案。您可以關閉這些應用程式並按一下「重試」，或按一下「忽略」仍要繼續。</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>正在為此資料夾建立索引。</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>下載記錄</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>合併兩端的檔案</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>顯示教學</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>變更同步資料夾</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>雙向同步</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>變更資料夾</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>關於 Calderix Drive</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>排除同步的檔案</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>使用系統代理伺服器設定</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>請選擇 Calderix Drive 的設定方式。</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>此資料夾所在磁碟的可用空間不足。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>磁碟已滿</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>關鍵字</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>其他電腦在網路磁碟機上所做的變更可能無法立即偵測到。</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>請輸入使用者名稱。</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>正在檢查您的使用者名稱和密碼...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>您在 NAS 上的儲存配額已滿。請先釋放一些空間，再同步此資料夾。</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>伺服器傳回非預期的回應。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>請輸入不超過 %1 個字元。</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>歡迎</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>將這台電腦與您的 NAS 配對即可開始使用。</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>變更資料夾</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>取消選取的資料夾將從這台電腦中移除，但仍會保留在 NAS 上。是否要繼續？</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>開啟 Calderix Drive</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>選擇性同步</translation>
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
        <translation>檔案大小上限</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>此版本的 Calderix Drive 對 NAS 而言太舊。請升級 Calderix Drive。</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>連線不穩定</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>停止下載版本</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 與您共用了資料夾 %2。</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重新命名</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>資料夾不是空的</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>關閉應用程式並嘗試重新啟動(&amp;C)。</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>行事曆</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>將衝突的檔案保留在另一個資料夾中</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 是掛載點，無法作為同步資料夾使用。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>後 %1 頁</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>沒有可顯示的記錄。</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>同步工作</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>確定要解除此同步工作的連結嗎？這台電腦和 NAS 上的檔案都會保留。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Calderix Drive 安裝因發生錯誤而提前結束。您的系統並未被修改。若要稍後再安裝此程式，請重新執行安裝精靈。</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>無法與 NAS 建立安全連線。</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同步問題</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上傳</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>與 NAS 的連線已中斷。</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>NAS 已變更</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>這台電腦上與 NAS 上的檔案衝突的檔案，將會重新命名並保留。</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>取得共用連結</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不符</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>無法下載 %1。</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>這台電腦的磁碟已滿。</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>請更新 NAS 套件以使用選擇性同步。</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>使用者名稱或密碼不正確。</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>此同步資料夾屬於另一台 NAS。</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>在檔案和資料夾上顯示同步狀態圖示</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>安裝已中斷。</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>資料夾 %1 不是空的。</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>正在完成設定...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>無法啟用隨選同步。</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>下載已停止。</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>將為 %1 建立新的同步工作。</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>繼續同步這些資料夾</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>準備修復 Calderix Drive</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>與新的 NAS 同步</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>無法驗證 NAS 的憑證。</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>連線 ID 無效。</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>有較新版本的 Calderix Drive 可用。要立即升級嗎？</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>NAS 的憑證已變更。</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>在同步資料夾中的檔案上按一下滑鼠右鍵，即可取得共用連結。</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>資料夾不是空的。要將其內容與 NAS 上的資料夾合併嗎？</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>更多詳細資料</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試一次</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>請選取您要執行的操作。</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>您的檔案，隨處可用。</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>使用者授權合約</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除連結</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>網際網路</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>部分需要更新的檔案目前正在使用中。</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>設定金鑰已設定完成。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系統預設</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修復安裝</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>生效時間</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>覆寫這台電腦上的檔案</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>請輸入代理伺服器的位址和連接埠。</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>所選的資料夾為唯讀。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>NAS 已停用中繼連線。</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>正在升級...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>自上次同步此資料夾以來，NAS 的憑證已變更。</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>建立 Calderix Drive 資料夾</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>在不同步的檔案上顯示圖示</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>限制存取</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 上一步(&amp;B)</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期範圍</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>找不到本機同步資料夾 %1。</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>瀏覽先前版本</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>正在偵測連線...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>進階設定精靈</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>您放入同步資料夾的檔案，會在 NAS 和您所有的電腦上保持最新狀態。</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>無法刪除共用連結。</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>伺服器位址</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>正在安裝 Calderix Drive</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>已連線至另一台 NAS</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>共用檔案</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>變更(&amp;C)</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>無法建立本機資料夾。</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>安全連線 (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Calderix Drive 安裝已中斷。您的系統並未被修改。若要稍後再安裝此程式，請重新執行安裝精靈。</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>編輯連線</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>下一步(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>無法下載此項目。</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>無法開啟本機資料庫。</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>套用至所有子資料夾</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>不要同步這些資料夾</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>已下載 %1。</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>最近更新的檔案</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>重複的同步工作</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>NAS 要求您的帳號使用兩步驟驗證。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>要刪除此共用連結嗎？</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive 已在執行中。</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>安全性警告</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>開啟同步狀態</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>此系統資料夾無法作為同步資料夾使用。</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>不要同步此資料夾</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>按一下選單列中的 Calderix Drive 圖示，即可查看同步狀態並變更設定。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>連線成功。</translation>
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
        <translation>無法驗證 NAS 的憑證。要繼續嗎？</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>此檔案不屬於任何連線。</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>隨處存取</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>代理伺服器需要密碼</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>NAS 上的同步資料夾</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>自行選擇共用資料夾、本機資料夾和同步選項。</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>具有這些名稱的檔案將不會同步。</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>歡迎使用 Calderix Drive 安裝精靈</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>部分欄位包含無效的值。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>確定要取消 Calderix Drive 的安裝嗎？</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安裝精靈將在您的電腦上安裝 Calderix Drive。請按一下「下一步」繼續，或按一下「取消」結束安裝精靈。</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>不支援掛載點</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>在資料夾中顯示</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS 概觀</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>我接受授權合約中的條款(&amp;A)</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Calderix Drive 狀態</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>同步您的檔案</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>已安裝此版本的 Calderix Drive。</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>移除 Calderix Drive</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>同步已暫停</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>任何擁有此連結的人都可以在網頁瀏覽器中開啟該檔案。</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>您的帳號已在 NAS 上停用。</translation>
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
        <translation>移除安裝</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>無法升級 Calderix Drive。</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>無法從 NAS 取得您的使用者資訊。</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>連線類型</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>準備安裝 Calderix Drive</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>仍要繼續</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>選取資料夾</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>資料夾選擇性同步</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Calderix Drive 安裝已中斷</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>您的密碼已過期。請在 NAS 上變更密碼。</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>輸入驗證碼</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>代理伺服器的使用者名稱或密碼不正確。</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>到期日</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>您的檔案現在會與 NAS 保持同步。</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>透過 Farrowlink 連線時無法使用共用連結。</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>在右鍵選單中顯示 Calderix Drive</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>NAS 上的 Ostrel 服務已停用。請要求系統管理員啟用此服務。</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>部分檔案無法同步。</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>正在啟動 Calderix Drive...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>請選擇要同步的 NAS 資料夾，以及在這台電腦上的存放位置。</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>使用黑白選單列圖示</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非使用中</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>此共用資料夾已同步至另一個資料夾。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>從任何與 NAS 配對的電腦開啟您已同步的檔案。</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>無法取得檔案的連結。</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>此欄位不可空白。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重試(&amp;R)</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上週</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>正在檢查變更...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>我知道了</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>歡迎使用 Calderix Drive</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>遠端目的地</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>唯讀資料夾</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>變更、修復或移除安裝</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>新的同步資料夾</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>這台電腦</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>正在載入資料夾清單...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>下列應用程式正在使用此安裝程式需要更新的檔案。請關閉這些應用程式，然後按一下「重試」繼續。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>透過 Farrowlink 連線</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>已存在同名的檔案。</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>建立新資料夾以與 NAS 同步。</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>NAS 的憑證已變更。您信任新的憑證嗎？</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>無法列出此檔案的版本。</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>新增檔案名稱</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>正在下載 %1...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>嘗試失敗次數過多。請稍後再試。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>已啟用共用</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新狀態</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>電腦</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel 已停用</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>所有檔案皆為最新</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>一切就緒</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>同步資料夾 %1 所在的磁碟區未掛載。</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>此資料夾已與 NAS 上的同一個共用資料夾同步。</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>共用資料夾遺失</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>按一下以更新 Calderix Drive</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>使用安全連線 (SSL)</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>安裝程式已準備好開始安裝。</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>當同一個檔案在兩端都有變更時：</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「修復」以修復 Calderix Drive 的安裝。按一下「上一步」以檢閱或變更任何安裝設定。按一下「取消」以結束精靈。</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>新增同步工作</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>NAS 不支援此版本的 Calderix Drive。請升級 Calderix Drive。</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>啟用同步</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>您沒有存取此資料夾的權限。</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>資料夾 %1 為唯讀。</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>升級 Calderix Drive</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>驗證碼不正確。</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>即使這台電腦離線，您的檔案仍可使用。</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>正在檢查資料...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>記錄類別</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>啟動 Calderix Drive</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>升級失敗。</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>同步資料夾</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>選擇性同步模式</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>代理伺服器設定</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新連線</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>登入失敗</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>使用中的檔案</translation>
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
        <translation>已在這台電腦上重新命名</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>沒有可同步的資料夾。</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>同步資料夾</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>單向同步 (僅下載)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>請選取 NAS 上您要同步的共用資料夾。</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>在區域網路中搜尋 NAS 裝置</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「移除」以從您的電腦移除 Calderix Drive。按一下「上一步」以檢閱或變更任何安裝設定。按一下「取消」以結束精靈。</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手動設定代理伺服器</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>此共用資料夾已不存在於 NAS 上。</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不再顯示此訊息</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>隨時掌握最新狀態</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接連線</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 頁</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>更多提示</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>正在連線至 %1...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>請輸入介於 1 到 65535 之間的連接埠號碼。</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>檔案選擇性同步</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>配額已滿</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自訂範圍</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>開啟 Calderix Drive 資料夾</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>NAS 上的共用資料夾未掛載。</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「安裝」以開始安裝。按一下「上一步」以檢閱或變更任何安裝設定。按一下「取消」以結束精靈。</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>由於磁碟區未掛載，無法使用遠端資料夾。</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>顯示桌面通知</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>安裝程式已準備好安裝 Calderix Drive。</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>已鎖定</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>快速設定</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>關閉此資料夾的同步會將其從同步清單中移除。檔案仍會保留在 NAS 和這台電腦上。要繼續嗎？</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>繼續同步此資料夾</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>刪除連結</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>取消安裝</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>此資料夾的同步工作已存在。</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>此資料夾曾由另一個使用者帳號同步。</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>未變更任何設定。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>登入失敗。請檢查您的使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>符合這些篩選條件的檔案將不會同步。</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NAS 的可用空間不足。</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>僅下載</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在解除連結...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>繼續同步</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Calderix Drive 安裝精靈已完成</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>設定同步資料夾</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安裝(&amp;I)</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>教學</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>存取 %1 次後失效</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>兩個資料夾的內容將會合併。</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>安裝精靈正在安裝 Calderix Drive，請稍候。</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下一個月</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>正在下載</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>您沒有執行此操作的權限。</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>修正遺失和損毀的檔案、捷徑和登錄項目，以修復最近一次安裝中的錯誤。</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>無法為此資料夾啟用同步。</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>此檔案沒有可用的先前版本。</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>重新整理同步記錄</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>按一下「移除」以從您的電腦移除 Calderix Drive。</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>從您的電腦移除 Calderix Drive。</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>修復 Calderix Drive</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>設定模式</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>副檔名</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 個項目</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>沒有可用的選項</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>網路</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>透過您的 NAS 同步和共用檔案。</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>權限遭拒</translation>
    </message>
    <message>
        <source>From</source>
        <translation>起始日期</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>已在 NAS 上重新命名</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>安裝精靈正在安裝 Calderix Drive，請稍候。這可能需要幾分鐘的時間。</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>登入時啟動 Calderix Drive</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>此精靈將引導您完成安裝。</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>檔案類型</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>保留最近修改的檔案</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>這台電腦已與此 NAS 配對。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>請仔細閱讀下列授權合約。</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>無法啟動 Calderix Drive。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>NAS 套件版本過舊，不支援此版本的 Calderix Drive。請更新 NAS 上的套件。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>新的共用</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>請輸入驗證碼。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及其他 %1 個</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>重新啟動 Calderix Drive 後才會套用新語言。</translation>
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
        <translation>配對資訊</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>確定要解除與 %1 的連結嗎？</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>已成功安裝 Calderix Drive。</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>發生未知的錯誤。</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>我不接受授權合約中的條款(&amp;D)</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>搜尋區域網路</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>這台電腦的可用空間不足。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>同步處理模式</translation>
    </message>
    <message>
        <source>History</source>
        <translation>歷程記錄</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>本機同步資料夾</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>您已選擇從系統中移除此程式。</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive 沒有可變更的獨立功能。</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>不需要</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive 現在會開始將您的檔案與 NAS 同步。</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>您的變更尚未儲存。要儲存嗎？</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>變更語言</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>本機目的地</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>NAS 已封鎖來自此 IP 位址的連線。</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>已安裝較新版本的 Calderix Drive。</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>狀態：</translation>
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
        <translation>下載先前版本</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升級</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>檢查同步資料夾時發生網路錯誤。請再試一次。</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>憑證錯誤</translation>
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
        <translation>按一下「修復」以修復 Calderix Drive。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>變更、修復或移除 Calderix Drive。</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>已更新的檔案</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>同步工作</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>刪除已下載的版本</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>已排除的檔案</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>自訂期限</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>請輸入 NAS 的位址和您的使用者帳號。</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>變更安裝</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>此資料夾為唯讀。變更不會同步至 NAS。</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>由於系統錯誤，自動連線失敗。</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>最近變更</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive 已準備就緒。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>NAS 儲存空間已滿</translation>
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
        <translation>此共用資料夾的儲存配額已滿。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>剛剛</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>版本不相容</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>傳送至 %1</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>您可以隨時變更這些設定。</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>安裝期間發生錯誤。</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>與 NAS 配對</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>不要關閉應用程式(&amp;D)。將需要重新啟動。</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>套用並複製連結</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>暫停同步</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>新增資料夾</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>將 NAS 上的個人資料夾與這台電腦上的 Calderix Drive 資料夾同步。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>單向下載</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>請選取您要同步的資料夾。</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上一個月</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>NAS 上的個人資料夾服務已停用。</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>發生網路錯誤。請檢查您的連線。</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>共用連結需要 Ostrel 服務，但此服務已在 NAS 上停用。</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>按兩下動作</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>啟用隨選同步</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>名稱以點開頭的檔案</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>NAS 套件不支援此版本的 Calderix Drive。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>這台電腦已與您的 NAS 配對。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>關閉教學</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>共用資料夾 %1 已與 %2 同步。</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>自動設定失敗。請手動設定 Calderix Drive。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>篩選同步記錄</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>沒有權限</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>正在載入同步資料夾...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>請選擇安裝完成時要執行的動作。</translation>
    </message>
</context>
</TS>
