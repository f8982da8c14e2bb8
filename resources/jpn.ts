<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Sharing link</source>
        <translation>共有リンク</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Calderix Drive keeps the files on this computer in sync with your NAS. Click Start Now to pair this computer with your NAS.</source>
        <translation>Calderix Drive は、このコンピュータのファイルを NAS と同期します。[今すぐ開始] をクリックして、このコンピュータを NAS とペアリングしてください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>アップロード中</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>You can create no more than %1 sharing links.</source>
        <translation>作成できる共有リンクは %1 個までです。</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>%1 MB を超えるファイルは同期されません。</translation>
    </message>
    <message>
        <source>On-demand sync</source>
        <translation>オンデマンド同期</translation>
    </message>
    <message>
        <source>The selected folder cannot be used as a sync folder. Please choose another folder.</source>
        <translation>選択したフォルダは同期フォルダとして使用できません。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Sync temporary files</source>
        <translation>一時ファイルを同期</translation>
    </message>
    <message>
        <source>Farrowlink relay</source>
        <translation>Farrowlink リレー</translation>
    </message>
    <message>
        <source>Keep both files and rename the conflicting file</source>
        <translation>両方のファイルを保持し、競合するファイルの名前を変更する</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>機能のインストール方法を変更します。</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Calderix Drive is installed on your computer, repair it, or remove it. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>セットアップウィザードでは、このコンピュータへの Calderix Drive のインストール方法の変更、修復、削除を行うことができます。続行するには [次へ] を、セットアップウィザードを終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>%1 shared a folder with you.</source>
        <translation>%1 さんがフォルダを共有しました。</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>[完了] ボタンをクリックして、セットアップウィザードを終了してください。</translation>
    </message>
    <message>
        <source>Choose a different local folder or a different shared folder on the NAS.</source>
        <translation>別のローカルフォルダ、または NAS 上の別の共有フォルダを選択してください。</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>セットアップが完了しました。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>アクセス回数を制限する</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 個のファイルを同期しています</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>この項目の共有リンクは作成できません。</translation>
    </message>
    <message>
        <source>Server address details</source>
        <translation>サーバアドレスの詳細</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>The sync direction of this folder does not match the setting on the NAS.</source>
        <translation>このフォルダの同期方向が NAS 上の設定と一致しません。</translation>
    </message>
    <message>
        <source>You need administrator rights to install Calderix Drive. Do you want to continue anyway?</source>
        <translation>Calderix Drive をインストールするには管理者権限が必要です。このまま続行しますか？</translation>
    </message>
    <message>
        <source>This folder overlaps with an existing sync folder. Please choose another folder.</source>
        <translation>このフォルダは既存の同期フォルダと重複しています。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Sync Folders</source>
        <translation>同期フォルダ</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>ダウンロード済み</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space or ask your administrator for a larger quota.</source>
        <translation>NAS のストレージクォータがいっぱいです。空き容量を増やすか、管理者にクォータの拡張を依頼してください。</translation>
    </message>
    <message>
        <source>Automatic connection was cancelled by the administrator.</source>
        <translation>自動接続は管理者によってキャンセルされました。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely</source>
        <translation>Calderix Drive のセットアップが途中で終了しました</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>パラメータが無効です。</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. You can close them and click Retry, or click Ignore to continue anyway.</source>
        <translation>次のアプリケーションが、セットアップで更新が必要なファイルを使用しています。これらのアプリケーションを閉じて [再試行] をクリックするか、[無視] をクリックしてこのまま続行してください。</translation>
    </message>
    <message>
        <source>This folder is being indexed.</source>
        <translation>このフォルダはインデックスを作成中です。</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>ダウンロード履歴</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Merge files from both sides</source>
        <translation>両方のファイルを結合する</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>チュートリアルを表示</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>同期フォルダを変更</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双方向同期</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>フォルダの変更</translation>
    </message>
    <message>
        <source>About Calderix Drive</source>
        <translation>Calderix Drive について</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Files excluded from sync</source>
        <translation>同期から除外するファイル</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>システムのプロキシ設定を使用</translation>
    </message>
    <message>
        <source>Choose how you want to set up Calderix Drive.</source>
        <translation>Calderix Drive のセットアップ方法を選択してください。</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>There is not enough free space on the disk of this folder. Please choose another folder.</source>
        <translation>このフォルダがあるディスクの空き容量が不足しています。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>ディスク容量不足</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同期モード</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Changes made by other computers on a network drive may not be detected right away.</source>
        <translation>ネットワークドライブ上で他のコンピュータが行った変更は、すぐには検出されない場合があります。</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Checking your user name and password...</source>
        <translation>ユーザー名とパスワードを確認しています...</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共有フォルダ</translation>
    </message>
    <message>
        <source>Your storage quota on the NAS is full. Free up some space before syncing this folder.</source>
        <translation>NAS のストレージクォータがいっぱいです。このフォルダを同期する前に空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>The server replied with an unexpected response.</source>
        <translation>サーバから予期しない応答がありました。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>同期しています...</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>%1 文字以内で入力してください。</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Pair this computer with your NAS to get started.</source>
        <translation>始めるには、このコンピュータを NAS とペアリングしてください。</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>フォルダを変更</translation>
    </message>
    <message>
        <source>Folders you deselect will be removed from this computer but stay on the NAS. Do you want to continue?</source>
        <translation>選択を解除したフォルダはこのコンピュータから削除されますが、NAS 上には残ります。続行しますか？</translation>
    </message>
    <message>
        <source>Open Calderix Drive</source>
        <translation>Calderix Drive を開く</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>選択同期</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>完了しました</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Maximum file size</source>
        <translation>最大ファイルサイズ</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is too old for the NAS. Please upgrade Calderix Drive.</source>
        <translation>この Calderix Drive のバージョンは NAS に対して古すぎます。Calderix Drive をアップグレードしてください。</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>接続が不安定です</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>詳細セットアップ</translation>
    </message>
    <message>
        <source>Stop the version download</source>
        <translation>バージョンのダウンロードを停止</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>%1 shared the folder %2 with you.</source>
        <translation>%1 さんがフォルダ %2 を共有しました。</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>名前変更済み</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>フォルダが空ではありません</translation>
    </message>
    <message>
        <source>&amp;Close the applications and attempt to restart them.</source>
        <translation>アプリケーションを閉じて、再起動を試みる(&amp;C)。</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Keep conflicting files in a separate folder</source>
        <translation>競合するファイルを別のフォルダに保存する</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>%1 is a mount point and cannot be used as a sync folder.</source>
        <translation>%1 はマウントポイントのため、同期フォルダとして使用できません。</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>次の %1 ページ</translation>
    </message>
    <message>
        <source>There are no records to show.</source>
        <translation>表示するレコードがありません。</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this sync task? The files on this computer and on the NAS will be kept.</source>
        <translation>この同期タスクのリンクを解除してもよろしいですか？このコンピュータと NAS 上のファイルは保持されます。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続しています...</translation>
    </message>
    <message>
        <source>Calderix Drive Setup ended prematurely because of an error. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>エラーのため、Calderix Drive のセットアップが途中で終了しました。システムは変更されていません。後でこのプログラムをインストールするには、セットアップウィザードをもう一度実行してください。</translation>
    </message>
    <message>
        <source>A secure connection to the NAS could not be established.</source>
        <translation>NAS との安全な接続を確立できませんでした。</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同期方向</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同期の問題</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>アップロード済み</translation>
    </message>
    <message>
        <source>The connection to the NAS has been lost.</source>
        <translation>NAS との接続が切断されました。</translation>
    </message>
    <message>
        <source>The NAS has changed</source>
        <translation>NAS が変更されました</translation>
    </message>
    <message>
        <source>Files on this computer that conflict with files on the NAS will be renamed and kept.</source>
        <translation>NAS 上のファイルと競合するこのコンピュータ上のファイルは、名前を変更して保持されます。</translation>
    </message>
    <message>
        <source>Get sharing link</source>
        <translation>共有リンクを取得</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>バージョンの不一致</translation>
    </message>
    <message>
        <source>Failed to download %1.</source>
        <translation>%1 をダウンロードできませんでした。</translation>
    </message>
    <message>
        <source>The disk of this computer is full.</source>
        <translation>このコンピュータのディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>Please update the NAS package to use selective sync.</source>
        <translation>選択同期を使用するには、NAS のパッケージを更新してください。</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>This sync folder belongs to a different NAS.</source>
        <translation>この同期フォルダは別の NAS に属しています。</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>ファイルとフォルダに同期状態のアイコンを表示</translation>
    </message>
    <message>
        <source>Setup was interrupted.</source>
        <translation>セットアップが中断されました。</translation>
    </message>
    <message>
        <source>The folder %1 is not empty.</source>
        <translation>フォルダ %1 は空ではありません。</translation>
    </message>
    <message>
        <source>Finishing the setup...</source>
        <translation>セットアップを完了しています...</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>フィルタ</translation>
    </message>
    <message>
        <source>On-demand sync could not be enabled.</source>
        <translation>オンデマンド同期を有効にできませんでした。</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>ダウンロードが停止されました。</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>A new sync task will be created for %1.</source>
        <translation>%1 の新しい同期タスクが作成されます。</translation>
    </message>
    <message>
        <source>Resume syncing these folders</source>
        <translation>これらのフォルダの同期を再開</translation>
    </message>
    <message>
        <source>Ready to repair Calderix Drive</source>
        <translation>Calderix Drive の修復の準備ができました</translation>
    </message>
    <message>
        <source>Sync with a new NAS</source>
        <translation>新しい NAS と同期</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified.</source>
        <translation>NAS の証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>The connection ID is not valid.</source>
        <translation>接続 ID が無効です。</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is available. Upgrade now?</source>
        <translation>Calderix Drive の新しいバージョンが利用可能です。今すぐアップグレードしますか？</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed.</source>
        <translation>NAS の証明書が変更されました。</translation>
    </message>
    <message>
        <source>Right-click a file in your sync folder to get a sharing link.</source>
        <translation>同期フォルダ内のファイルを右クリックすると、共有リンクを取得できます。</translation>
    </message>
    <message>
        <source>The folder is not empty. Do you want to merge its contents with the folder on the NAS?</source>
        <translation>フォルダが空ではありません。内容を NAS 上のフォルダと結合しますか？</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>詳細情報</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込んでいます...</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>Your files, everywhere.</source>
        <translation>あなたのファイルを、どこからでも。</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>使用許諾契約書</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>リンク解除</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>更新が必要なファイルの一部が現在使用中です。</translation>
    </message>
    <message>
        <source>The set-up key has already been configured.</source>
        <translation>セットアップキーはすでに構成されています。</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>システムの既定</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>インストールを修復</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>有効開始日</translation>
    </message>
    <message>
        <source>Overwrite the file on this computer</source>
        <translation>このコンピュータ上のファイルを上書きする</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>プロキシサーバのアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose another folder.</source>
        <translation>選択したフォルダは読み取り専用です。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the NAS.</source>
        <translation>NAS でリレー接続が無効になっています。</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>アップグレードしています...</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed since this folder was last synced.</source>
        <translation>このフォルダの前回の同期以降に、NAS の証明書が変更されました。</translation>
    </message>
    <message>
        <source>Create a Calderix Drive folder</source>
        <translation>Calderix Drive フォルダを作成</translation>
    </message>
    <message>
        <source>Show icons on files that are not synced</source>
        <translation>同期されないファイルにアイコンを表示</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>アクセスを制限する</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>The local sync folder %1 cannot be found.</source>
        <translation>ローカル同期フォルダ %1 が見つかりません。</translation>
    </message>
    <message>
        <source>Browse previous versions</source>
        <translation>以前のバージョンを参照</translation>
    </message>
    <message>
        <source>Detecting the connection...</source>
        <translation>接続を検出しています...</translation>
    </message>
    <message>
        <source>Advanced Setup Wizard</source>
        <translation>詳細セットアップウィザード</translation>
    </message>
    <message>
        <source>Files you put in your sync folder are kept up to date on the NAS and on all your computers.</source>
        <translation>同期フォルダに入れたファイルは、NAS とすべてのコンピュータで常に最新の状態に保たれます。</translation>
    </message>
    <message>
        <source>The sharing link could not be deleted.</source>
        <translation>共有リンクを削除できませんでした。</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>サーバアドレス</translation>
    </message>
    <message>
        <source>Installing Calderix Drive</source>
        <translation>Calderix Drive をインストールしています</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Connected to a different NAS</source>
        <translation>別の NAS に接続されています</translation>
    </message>
    <message>
        <source>Share Files</source>
        <translation>ファイルを共有</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>変更(&amp;C)</translation>
    </message>
    <message>
        <source>The local folder could not be created.</source>
        <translation>ローカルフォルダを作成できませんでした。</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>安全な接続 (SSL)</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted. Your system has not been modified. To install this program at a later time, run the Setup Wizard again.</source>
        <translation>Calderix Drive のセットアップが中断されました。システムは変更されていません。後でこのプログラムをインストールするには、セットアップウィザードをもう一度実行してください。</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>接続を編集</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>次へ(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>This item cannot be downloaded.</source>
        <translation>この項目はダウンロードできません。</translation>
    </message>
    <message>
        <source>The local database could not be opened.</source>
        <translation>ローカルデータベースを開けませんでした。</translation>
    </message>
    <message>
        <source>Apply to all subfolders</source>
        <translation>すべてのサブフォルダに適用</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>これらのフォルダを同期しない</translation>
    </message>
    <message>
        <source>%1 has been downloaded.</source>
        <translation>%1 をダウンロードしました。</translation>
    </message>
    <message>
        <source>Recently updated files</source>
        <translation>最近更新されたファイル</translation>
    </message>
    <message>
        <source>Duplicate Sync Task</source>
        <translation>重複する同期タスク</translation>
    </message>
    <message>
        <source>The NAS requires two-step verification for your account.</source>
        <translation>NAS では、お使いのアカウントに 2 段階認証が必要です。</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Do you want to delete this sharing link?</source>
        <translation>この共有リンクを削除しますか？</translation>
    </message>
    <message>
        <source>Calderix Drive is already running.</source>
        <translation>Calderix Drive はすでに実行中です。</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>セキュリティの警告</translation>
    </message>
    <message>
        <source>Open sync status</source>
        <translation>同期状態を開く</translation>
    </message>
    <message>
        <source>This system folder cannot be used as a sync folder.</source>
        <translation>このシステムフォルダは同期フォルダとして使用できません。</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>このフォルダを同期しない</translation>
    </message>
    <message>
        <source>Click the Calderix Drive icon in the menu bar to see the sync status and change settings.</source>
        <translation>メニューバーの Calderix Drive アイコンをクリックすると、同期状態の確認や設定の変更ができます。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>接続に成功しました。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>The certificate of the NAS could not be verified. Do you want to continue?</source>
        <translation>NAS の証明書を検証できませんでした。続行しますか？</translation>
    </message>
    <message>
        <source>This file does not belong to any connection.</source>
        <translation>このファイルはどの接続にも属していません。</translation>
    </message>
    <message>
        <source>Access Anywhere</source>
        <translation>どこからでもアクセス</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>The proxy server requires a password</source>
        <translation>プロキシサーバにはパスワードが必要</translation>
    </message>
    <message>
        <source>Sync folder on the NAS</source>
        <translation>NAS 上の同期フォルダ</translation>
    </message>
    <message>
        <source>Choose the shared folder, the local folder and the sync options yourself.</source>
        <translation>共有フォルダ、ローカルフォルダ、同期オプションをご自身で選択します。</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>これらの名前のファイルは同期されません。</translation>
    </message>
    <message>
        <source>Welcome to the Calderix Drive Setup Wizard</source>
        <translation>Calderix Drive セットアップウィザードへようこそ</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>一部のフィールドに無効な値が含まれています。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Calderix Drive installation?</source>
        <translation>Calderix Drive のインストールをキャンセルしてもよろしいですか？</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Calderix Drive on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>セットアップウィザードは Calderix Drive をこのコンピュータにインストールします。続行するには [次へ] を、セットアップウィザードを終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>マウントポイントは非対応</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>フォルダに表示</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>フォルダ名</translation>
    </message>
    <message>
        <source>NAS overview</source>
        <translation>NAS の概要</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>使用許諾契約書に同意します(&amp;A)</translation>
    </message>
    <message>
        <source>Calderix Drive status</source>
        <translation>Calderix Drive の状態</translation>
    </message>
    <message>
        <source>Sync Your Files</source>
        <translation>ファイルを同期</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is already installed.</source>
        <translation>このバージョンの Calderix Drive はすでにインストールされています。</translation>
    </message>
    <message>
        <source>Remove Calderix Drive</source>
        <translation>Calderix Drive の削除</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>Sync paused</source>
        <translation>同期は一時停止中です</translation>
    </message>
    <message>
        <source>Anyone with the link can open the file in a web browser.</source>
        <translation>リンクを知っている人は誰でも、Web ブラウザでファイルを開くことができます。</translation>
    </message>
    <message>
        <source>Your account has been disabled on the NAS.</source>
        <translation>お使いのアカウントは NAS で無効になっています。</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>無視(&amp;I)</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>インストールを削除</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Calderix Drive could not be upgraded.</source>
        <translation>Calderix Drive をアップグレードできませんでした。</translation>
    </message>
    <message>
        <source>Your user information could not be retrieved from the NAS.</source>
        <translation>NAS からユーザー情報を取得できませんでした。</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>接続の種類</translation>
    </message>
    <message>
        <source>Ready to install Calderix Drive</source>
        <translation>Calderix Drive のインストールの準備ができました</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>このまま続行</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>フォルダの選択</translation>
    </message>
    <message>
        <source>Folder selective sync</source>
        <translation>フォルダの選択同期</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>Calderix Drive Setup was interrupted</source>
        <translation>Calderix Drive のセットアップが中断されました</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the NAS.</source>
        <translation>パスワードの有効期限が切れています。NAS でパスワードを変更してください。</translation>
    </message>
    <message>
        <source>Enter the verification code</source>
        <translation>確認コードを入力</translation>
    </message>
    <message>
        <source>The user name or password for the proxy server is incorrect.</source>
        <translation>プロキシサーバのユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>有効期限</translation>
    </message>
    <message>
        <source>Your files are now kept in sync with the NAS.</source>
        <translation>ファイルは NAS と同期されるようになりました。</translation>
    </message>
    <message>
        <source>Sharing links are not available over a Farrowlink connection.</source>
        <translation>Farrowlink 接続では共有リンクを使用できません。</translation>
    </message>
    <message>
        <source>Show Calderix Drive in the context menu</source>
        <translation>コンテキストメニューに Calderix Drive を表示</translation>
    </message>
    <message>
        <source>The Ostrel service is disabled on the NAS. Please ask your administrator to enable it.</source>
        <translation>NAS で Ostrel サービスが無効になっています。管理者に有効化を依頼してください。</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>一部のファイルを同期できませんでした。</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>フォルダのパス</translation>
    </message>
    <message>
        <source>Calderix Drive is starting...</source>
        <translation>Calderix Drive を起動しています...</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync and where to keep it on this computer.</source>
        <translation>同期する NAS 上のフォルダと、このコンピュータでの保存場所を選択してください。</translation>
    </message>
    <message>
        <source>Use a black-and-white menu bar icon</source>
        <translation>白黒のメニューバーアイコンを使用</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>This shared folder is already synced to another folder.</source>
        <translation>この共有フォルダはすでに別のフォルダと同期されています。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Open your synced files from any computer paired with the NAS.</source>
        <translation>NAS とペアリングされたどのコンピュータからでも、同期されたファイルを開くことができます。</translation>
    </message>
    <message>
        <source>The link to the file could not be retrieved.</source>
        <translation>ファイルへのリンクを取得できませんでした。</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>This field cannot be empty.</source>
        <translation>このフィールドは空にできません。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>先週</translation>
    </message>
    <message>
        <source>Checking for changes...</source>
        <translation>変更を確認しています...</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>わかりました</translation>
    </message>
    <message>
        <source>Welcome to Calderix Drive</source>
        <translation>Calderix Drive へようこそ</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>リモートの保存先</translation>
    </message>
    <message>
        <source>Read-only Folder</source>
        <translation>読み取り専用フォルダ</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>インストールの変更、修復、または削除</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>新しい同期フォルダ</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピュータ</translation>
    </message>
    <message>
        <source>Loading the folder list...</source>
        <translation>フォルダ一覧を読み込んでいます...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup. Close these applications and click Retry to continue.</source>
        <translation>次のアプリケーションが、このセットアップで更新が必要なファイルを使用しています。これらのアプリケーションを閉じてから [再試行] をクリックして続行してください。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Connect through Farrowlink</source>
        <translation>Farrowlink 経由で接続</translation>
    </message>
    <message>
        <source>A file with the same name already exists.</source>
        <translation>同じ名前のファイルがすでに存在します。</translation>
    </message>
    <message>
        <source>Create a new folder to sync with the NAS.</source>
        <translation>NAS と同期する新しいフォルダを作成します。</translation>
    </message>
    <message>
        <source>The certificate of the NAS has changed. Do you trust the new certificate?</source>
        <translation>NAS の証明書が変更されました。新しい証明書を信頼しますか？</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed.</source>
        <translation>このファイルのバージョンを一覧表示できません。</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>ファイル名を追加</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 をダウンロードしています...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>失敗した試行が多すぎます。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>共有が有効</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>最新の状態です</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピュータ</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Ostrel disabled</source>
        <translation>Ostrel が無効</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>All files are up to date</source>
        <translation>すべてのファイルは最新です</translation>
    </message>
    <message>
        <source>All Set</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>The volume of the sync folder %1 is not mounted.</source>
        <translation>同期フォルダ %1 のボリュームがマウントされていません。</translation>
    </message>
    <message>
        <source>This folder is already synced with the same shared folder on the NAS.</source>
        <translation>このフォルダは、すでに NAS 上の同じ共有フォルダと同期されています。</translation>
    </message>
    <message>
        <source>Shared folder missing</source>
        <translation>共有フォルダが見つかりません</translation>
    </message>
    <message>
        <source>Click to update Calderix Drive</source>
        <translation>クリックして Calderix Drive を更新</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>安全な接続 (SSL) を使用</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Setup is ready to begin the installation.</source>
        <translation>セットアップでインストールを開始する準備ができました。</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>When the same file has changed on both sides:</source>
        <translation>同じファイルが両側で変更された場合:</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Calderix Drive. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Calderix Drive のインストールを修復するには [修復] をクリックしてください。インストール設定を確認または変更するには [戻る] をクリックしてください。ウィザードを終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Add Sync Task</source>
        <translation>同期タスクを追加</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>更新しています...</translation>
    </message>
    <message>
        <source>This version of Calderix Drive is not supported by the NAS. Please upgrade Calderix Drive.</source>
        <translation>この Calderix Drive のバージョンは NAS でサポートされていません。Calderix Drive をアップグレードしてください。</translation>
    </message>
    <message>
        <source>Enable sync</source>
        <translation>同期を有効にする</translation>
    </message>
    <message>
        <source>You do not have permission to access this folder.</source>
        <translation>このフォルダへのアクセス権限がありません。</translation>
    </message>
    <message>
        <source>The folder %1 is read-only.</source>
        <translation>フォルダ %1 は読み取り専用です。</translation>
    </message>
    <message>
        <source>Upgrade Calderix Drive</source>
        <translation>Calderix Drive をアップグレード</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>確認コードが正しくありません。</translation>
    </message>
    <message>
        <source>Your files stay available even when this computer is offline.</source>
        <translation>このコンピュータがオフラインのときも、ファイルは引き続き利用できます。</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>データを確認しています...</translation>
    </message>
    <message>
        <source>Log category</source>
        <translation>ログのカテゴリ</translation>
    </message>
    <message>
        <source>Launch Calderix Drive</source>
        <translation>Calderix Drive を起動</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>Upgrade failed.</source>
        <translation>アップグレードに失敗しました。</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>同期フォルダ</translation>
    </message>
    <message>
        <source>Selective sync mode</source>
        <translation>選択同期モード</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>プロキシ設定</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>サインインの失敗</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>使用中のファイル</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>すべてのイベント</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>このコンピュータで名前変更</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>There is no folder that can be synced.</source>
        <translation>同期できるフォルダがありません。</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>同期フォルダ</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>一方向同期 (ダウンロードのみ)</translation>
    </message>
    <message>
        <source>Select the shared folder on the NAS that you want to sync.</source>
        <translation>同期する NAS 上の共有フォルダを選択してください。</translation>
    </message>
    <message>
        <source>Search for NAS devices on the local network</source>
        <translation>ローカルネットワーク上の NAS デバイスを検索</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Calderix Drive をこのコンピュータから削除するには [削除] をクリックしてください。インストール設定を確認または変更するには [戻る] をクリックしてください。ウィザードを終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手動でプロキシを設定</translation>
    </message>
    <message>
        <source>The shared folder no longer exists on the NAS.</source>
        <translation>共有フォルダは NAS 上に存在しなくなりました。</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <message>
        <source>Stay Informed</source>
        <translation>最新情報を確認</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前の %1 ページ</translation>
    </message>
    <message>
        <source>More tips</source>
        <translation>その他のヒント</translation>
    </message>
    <message>
        <source>Connecting to %1...</source>
        <translation>%1 に接続しています...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>1 から 65535 までのポート番号を入力してください。</translation>
    </message>
    <message>
        <source>File selective sync</source>
        <translation>ファイルの選択同期</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>クォータ超過</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>カスタム期間</translation>
    </message>
    <message>
        <source>Open Calderix Drive Folder</source>
        <translation>Calderix Drive フォルダを開く</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the NAS.</source>
        <translation>共有フォルダが NAS 上でマウントされていません。</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>インストールを開始するには [インストール] をクリックしてください。インストール設定を確認または変更するには [戻る] をクリックしてください。ウィザードを終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>The remote folder is not available because its volume is not mounted.</source>
        <translation>ボリュームがマウントされていないため、リモートフォルダを使用できません。</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>デスクトップ通知を表示</translation>
    </message>
    <message>
        <source>Setup is ready to install Calderix Drive.</source>
        <translation>Calderix Drive をインストールする準備ができました。</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>ロック中</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>クイックセットアップ</translation>
    </message>
    <message>
        <source>Turning off sync for this folder removes it from the sync list. The files stay on the NAS and on this computer. Continue?</source>
        <translation>このフォルダの同期をオフにすると、同期リストから削除されます。ファイルは NAS とこのコンピュータに残ります。続行しますか？</translation>
    </message>
    <message>
        <source>Resume syncing this folder</source>
        <translation>このフォルダの同期を再開</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>Delete Link</source>
        <translation>リンクを削除</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>セットアップのキャンセル</translation>
    </message>
    <message>
        <source>A sync task for this folder already exists.</source>
        <translation>このフォルダの同期タスクはすでに存在します。</translation>
    </message>
    <message>
        <source>This folder was synced by a different user account.</source>
        <translation>このフォルダは別のユーザーアカウントで同期されていました。</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>変更された設定はありません。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Sign-in failed. Please check your user name and password.</source>
        <translation>サインインに失敗しました。ユーザー名とパスワードを確認してください。</translation>
    </message>
    <message>
        <source>Files that match these filters will not be synced.</source>
        <translation>これらのフィルタに一致するファイルは同期されません。</translation>
    </message>
    <message>
        <source>There is not enough free space on the NAS.</source>
        <translation>NAS の空き容量が不足しています。</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>リンクを解除しています...</translation>
    </message>
    <message>
        <source>Resume Syncing</source>
        <translation>同期を再開</translation>
    </message>
    <message>
        <source>Completed the Calderix Drive Setup Wizard</source>
        <translation>Calderix Drive セットアップウィザードが完了しました</translation>
    </message>
    <message>
        <source>Set Sync Folder</source>
        <translation>同期フォルダの設定</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>チュートリアル</translation>
    </message>
    <message>
        <source>Expires after %1 accesses</source>
        <translation>%1 回のアクセス後に期限切れ</translation>
    </message>
    <message>
        <source>The contents of both folders will be merged.</source>
        <translation>両方のフォルダの内容が結合されます。</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive.</source>
        <translation>セットアップウィザードが Calderix Drive をインストールするまでお待ちください。</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>翌月</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>ダウンロード中</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>この操作を実行する権限がありません。</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts, and registry entries.</source>
        <translation>見つからないファイルや破損したファイル、ショートカット、レジストリエントリを修正して、最新のインストールのエラーを修復します。</translation>
    </message>
    <message>
        <source>Sync could not be enabled for this folder.</source>
        <translation>このフォルダの同期を有効にできませんでした。</translation>
    </message>
    <message>
        <source>No previous version of this file is available.</source>
        <translation>このファイルの以前のバージョンはありません。</translation>
    </message>
    <message>
        <source>Refresh the sync log</source>
        <translation>同期ログを更新</translation>
    </message>
    <message>
        <source>Click Remove to remove Calderix Drive from your computer.</source>
        <translation>Calderix Drive をこのコンピュータから削除するには [削除] をクリックしてください。</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダを開く</translation>
    </message>
    <message>
        <source>Removes Calderix Drive from your computer.</source>
        <translation>Calderix Drive をこのコンピュータから削除します。</translation>
    </message>
    <message>
        <source>Repair Calderix Drive</source>
        <translation>Calderix Drive の修復</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>セットアップモード</translation>
    </message>
    <message>
        <source>File extension</source>
        <translation>ファイル拡張子</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 項目</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>使用できるオプションがありません</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Sync and share your files with your NAS.</source>
        <translation>NAS でファイルを同期、共有できます。</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセス拒否</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Renamed on the NAS</source>
        <translation>NAS 上で名前変更</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Calderix Drive. This may take several minutes.</source>
        <translation>セットアップウィザードが Calderix Drive をインストールするまでお待ちください。これには数分かかる場合があります。</translation>
    </message>
    <message>
        <source>Start Calderix Drive when I log in</source>
        <translation>ログイン時に Calderix Drive を起動</translation>
    </message>
    <message>
        <source>This wizard will guide you through the installation.</source>
        <translation>このウィザードでインストールの手順をご案内します。</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Keep the most recently modified file</source>
        <translation>最後に変更されたファイルを保持する</translation>
    </message>
    <message>
        <source>This computer is already paired with this NAS.</source>
        <translation>このコンピュータはすでにこの NAS とペアリングされています。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>次の使用許諾契約書をよくお読みください。</translation>
    </message>
    <message>
        <source>Calderix Drive could not be started.</source>
        <translation>Calderix Drive を起動できませんでした。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>The NAS package is too old for this version of Calderix Drive. Please update the package on the NAS.</source>
        <translation>NAS のパッケージがこの Calderix Drive のバージョンに対して古すぎます。NAS 上のパッケージを更新してください。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>新しい共有</translation>
    </message>
    <message>
        <source>Please enter the verification code.</source>
        <translation>確認コードを入力してください。</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>The new language will be used after Calderix Drive restarts.</source>
        <translation>新しい言語は Calderix Drive の再起動後に適用されます。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Calderix Drive is initializing...</source>
        <translation>Calderix Drive を初期化しています...</translation>
    </message>
    <message>
        <source>Pairing information</source>
        <translation>ペアリング情報</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from %1?</source>
        <translation>%1 とのリンクを解除してもよろしいですか？</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>Calderix Drive has been installed successfully.</source>
        <translation>Calderix Drive は正常にインストールされました。</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>不明なエラーが発生しました。</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>使用許諾契約書に同意しません(&amp;D)</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>ローカルネットワークを検索</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer.</source>
        <translation>このコンピュータの空き容量が不足しています。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダを開く</translation>
    </message>
    <message>
        <source>Synchronization mode</source>
        <translation>同期方式</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>ローカル同期フォルダ</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your system.</source>
        <translation>このプログラムをシステムから削除することを選択しました。</translation>
    </message>
    <message>
        <source>Calderix Drive has no independent features to change.</source>
        <translation>Calderix Drive には、変更できる個別の機能はありません。</translation>
    </message>
    <message>
        <source>Not needed</source>
        <translation>不要</translation>
    </message>
    <message>
        <source>Calderix Drive will now sync your files with the NAS.</source>
        <translation>Calderix Drive は NAS とのファイル同期を開始します。</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them?</source>
        <translation>変更が保存されていません。保存しますか？</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>言語を変更</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>ローカルの保存先</translation>
    </message>
    <message>
        <source>Connections from this IP address are blocked by the NAS.</source>
        <translation>この IP アドレスからの接続は NAS によってブロックされています。</translation>
    </message>
    <message>
        <source>A newer version of Calderix Drive is already installed.</source>
        <translation>より新しいバージョンの Calderix Drive がすでにインストールされています。</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Download a previous version</source>
        <translation>以前のバージョンをダウンロード</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>アップグレード</translation>
    </message>
    <message>
        <source>A network error occurred while checking the sync folder. Please try again.</source>
        <translation>同期フォルダの確認中にネットワークエラーが発生しました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Certificate error</source>
        <translation>証明書エラー</translation>
    </message>
    <message>
        <source>Calderix Drive</source>
        <translation>Calderix Drive</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 日前</translation>
    </message>
    <message>
        <source>Click Repair to repair Calderix Drive.</source>
        <translation>Calderix Drive を修復するには [修復] をクリックしてください。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Change, repair, or remove Calderix Drive.</source>
        <translation>Calderix Drive の変更、修復、または削除を行います。</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>更新されたファイル</translation>
    </message>
    <message>
        <source>Sync task</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Delete the downloaded version</source>
        <translation>ダウンロードしたバージョンを削除</translation>
    </message>
    <message>
        <source>Excluded files</source>
        <translation>除外ファイル</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>カスタム有効期間</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your user account.</source>
        <translation>NAS のアドレスとユーザーアカウントを入力してください。</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>インストールを変更</translation>
    </message>
    <message>
        <source>This folder is read-only. Changes are not synced to the NAS.</source>
        <translation>このフォルダは読み取り専用です。変更は NAS に同期されません。</translation>
    </message>
    <message>
        <source>Choose Another</source>
        <translation>別のフォルダを選択</translation>
    </message>
    <message>
        <source>Automatic connection failed because of a system error.</source>
        <translation>システムエラーのため、自動接続に失敗しました。</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>最近の変更</translation>
    </message>
    <message>
        <source>Calderix Drive is ready.</source>
        <translation>Calderix Drive の準備ができました。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>NAS storage is full</source>
        <translation>NAS のストレージがいっぱいです</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>同期中: %1</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>The storage quota of this shared folder is full.</source>
        <translation>この共有フォルダのストレージクォータがいっぱいです。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備しています...</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Incompatible version</source>
        <translation>互換性のないバージョン</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>%1 に送る</translation>
    </message>
    <message>
        <source>You can change these settings at any time.</source>
        <translation>これらの設定はいつでも変更できます。</translation>
    </message>
    <message>
        <source>An error occurred during the installation.</source>
        <translation>インストール中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Pair with a NAS</source>
        <translation>NAS とペアリング</translation>
    </message>
    <message>
        <source>&amp;Do not close applications. A restart will be required.</source>
        <translation>アプリケーションを閉じない(&amp;D)。再起動が必要になります。</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>適用してリンクをコピー</translation>
    </message>
    <message>
        <source>Pause Syncing</source>
        <translation>同期を一時停止</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>フォルダを追加</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a Calderix Drive folder on this computer.</source>
        <translation>NAS 上のホームフォルダを、このコンピュータの Calderix Drive フォルダと同期します。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>一方向ダウンロード</translation>
    </message>
    <message>
        <source>Select the folder that you want to sync.</source>
        <translation>同期するフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>前月</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>NAS でホームフォルダサービスが無効になっています。</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your connection.</source>
        <translation>ネットワークエラーが発生しました。接続を確認してください。</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>先月</translation>
    </message>
    <message>
        <source>Sharing links need the Ostrel service, which is disabled on the NAS.</source>
        <translation>共有リンクには Ostrel サービスが必要ですが、NAS で無効になっています。</translation>
    </message>
    <message>
        <source>Double-click action</source>
        <translation>ダブルクリック時の動作</translation>
    </message>
    <message>
        <source>Enable on-demand sync</source>
        <translation>オンデマンド同期を有効にする</translation>
    </message>
    <message>
        <source>Files whose names begin with a dot</source>
        <translation>名前がドットで始まるファイル</translation>
    </message>
    <message>
        <source>The NAS package does not support this version of Calderix Drive.</source>
        <translation>NAS のパッケージは、このバージョンの Calderix Drive をサポートしていません。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>This computer is now paired with your NAS.</source>
        <translation>このコンピュータは NAS とペアリングされました。</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>プロキシサーバ</translation>
    </message>
    <message>
        <source>Close the tutorial</source>
        <translation>チュートリアルを閉じる</translation>
    </message>
    <message>
        <source>The shared folder %1 is already synced with %2.</source>
        <translation>共有フォルダ %1 はすでに %2 と同期されています。</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Calderix Drive manually.</source>
        <translation>自動セットアップに失敗しました。Calderix Drive を手動でセットアップしてください。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Filter the sync log</source>
        <translation>同期ログをフィルタ</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>権限なし</translation>
    </message>
    <message>
        <source>Loading sync folders...</source>
        <translation>同期フォルダを読み込んでいます...</translation>
    </message>
    <message>
        <source>Choose what to do when setup finishes.</source>
        <translation>セットアップ完了時の動作を選択してください。</translation>
    </message>
</context>
</TS>
