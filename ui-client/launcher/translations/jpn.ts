<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>リンク解除</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>別のフォルダを選択</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>A conflict occurred while syncing this file.</source>
        <translation>このファイルの同期中に競合が発生しました。</translation>
    </message>
    <message>
        <source>Invalid parameter.</source>
        <translation>パラメータが無効です。</translation>
    </message>
    <message>
        <source>A network error occurred. Please check your network connection and try again.</source>
        <translation>ネットワークエラーが発生しました。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>ローカルストレージ</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Testing connection...</source>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Files in it will be merged with the files on the server.</source>
        <translation>選択したフォルダは空ではありません。フォルダ内のファイルはサーバ上のファイルと結合されます。</translation>
    </message>
    <message>
        <source>Checking your account...</source>
        <translation>アカウントを確認しています...</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>接続しました。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge its contents?</source>
        <translation>フォルダ「%1」はすでに存在します。内容を結合しますか？</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora automatically when I log in</source>
        <translation>ログイン時に Nimbulo Pelora を自動的に起動</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Incorrect username or password.</source>
        <translation>ユーザ名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>Change Sync Folder</source>
        <translation>同期フォルダを変更</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>フォルダが空ではありません</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>フォルダのパス</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Get Started with Nimbulo Pelora</source>
        <translation>Nimbulo Pelora を使ってみましょう</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>最近更新されたファイル</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>最新の状態</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Open Nimbulo Pelora</source>
        <translation>Nimbulo Pelora を開く</translation>
    </message>
    <message>
        <source>Detecting changes...</source>
        <translation>変更を検出しています...</translation>
    </message>
    <message>
        <source>Disconnected from the server.</source>
        <translation>サーバから切断されました。</translation>
    </message>
    <message>
        <source>Enable Sync</source>
        <translation>同期を有効にする</translation>
    </message>
    <message>
        <source>Authentication failed</source>
        <translation>認証に失敗しました</translation>
    </message>
    <message>
        <source>Direct connection</source>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>Checking connection...</source>
        <translation>接続を確認しています...</translation>
    </message>
    <message>
        <source>Relay connection</source>
        <translation>中継接続</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>Unable to connect automatically because of a system error.</source>
        <translation>システムエラーのため、自動的に接続できません。</translation>
    </message>
    <message>
        <source>Sharing links are disabled on the server. Please contact your administrator.</source>
        <translation>サーバで共有リンクが無効になっています。管理者に連絡してください。</translation>
    </message>
    <message>
        <source>%1 files updated</source>
        <translation>%1 個のファイルを更新しました</translation>
    </message>
    <message>
        <source>You have read-only permission for this folder. Local changes will not be uploaded.</source>
        <translation>このフォルダに対する権限は読み取り専用です。ローカルでの変更はアップロードされません。</translation>
    </message>
    <message>
        <source>Your storage quota on the server is full. Free up some space to continue syncing.</source>
        <translation>サーバのストレージクォータがいっぱいです。同期を続行するには空き容量を確保してください。</translation>
    </message>
    <message>
        <source>Connection Type</source>
        <translation>接続の種類</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>接続情報</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Please select a folder.</source>
        <translation>フォルダを選択してください。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Unable to connect automatically. Please check the server address and try again.</source>
        <translation>自動的に接続できません。サーバのアドレスを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Shared Folders</source>
        <translation>共有フォルダ</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to discard them?</source>
        <translation>変更は保存されていません。変更を破棄しますか？</translation>
    </message>
    <message>
        <source>Quota full</source>
        <translation>クォータ超過</translation>
    </message>
    <message>
        <source>Local Folder</source>
        <translation>ローカルフォルダ</translation>
    </message>
    <message>
        <source>Unable to enable syncing for this shared folder.</source>
        <translation>この共有フォルダの同期を有効にできません。</translation>
    </message>
    <message>
        <source>This folder conflicts with another sync task.</source>
        <translation>このフォルダは別の同期タスクと競合しています。</translation>
    </message>
    <message>
        <source>You have reached the maximum number of synced shared folders.</source>
        <translation>同期できる共有フォルダの最大数に達しました。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Please enter a port number between 1 and 65535.</source>
        <translation>1 から 65535 までのポート番号を入力してください。</translation>
    </message>
    <message>
        <source>Shared Folder</source>
        <translation>共有フォルダ</translation>
    </message>
    <message>
        <source>Please enter the proxy server address and port.</source>
        <translation>プロキシサーバのアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>Please enter your username.</source>
        <translation>ユーザ名を入力してください。</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手動でプロキシを設定</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>システムのプロキシ設定を使用</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>No changes to apply.</source>
        <translation>適用する変更はありません。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザ名</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Proxy server requires authentication</source>
        <translation>プロキシサーバには認証が必要</translation>
    </message>
    <message>
        <source>Updating files...</source>
        <translation>ファイルを更新しています...</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the local copy is renamed with the computer name.</source>
        <translation>競合した変更は両方のコピーに保持されます。ローカルのコピーはコンピュータ名を付けた名前に変更されます。</translation>
    </message>
    <message>
        <source>Server Address</source>
        <translation>サーバのアドレス</translation>
    </message>
    <message>
        <source>Enter the server&apos;s IP address, host name or relay ID.</source>
        <translation>サーバの IP アドレス、ホスト名、または中継 ID を入力してください。</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated. Please ask your administrator to update it.</source>
        <translation>サーバの同期サービスが古くなっています。管理者にアップデートを依頼してください。</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>デスクトップ通知を表示</translation>
    </message>
    <message>
        <source>Show sync status on file icons</source>
        <translation>ファイルアイコンに同期状態を表示</translation>
    </message>
    <message>
        <source>Encrypt the connection with SSL</source>
        <translation>SSL で接続を暗号化</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>モノクロのトレイアイコンを使用</translation>
    </message>
    <message>
        <source>Sync problem</source>
        <translation>同期の問題</translation>
    </message>
    <message>
        <source>%1 has shared &quot;%2&quot; with you.</source>
        <translation>%1 さんが「%2」をあなたと共有しました。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新しい共有フォルダ</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>ファイルを確認しています...</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>選択型同期</translation>
    </message>
    <message>
        <source>Files and folders matching these rules will not be synced.</source>
        <translation>これらのルールに一致するファイルとフォルダは同期されません。</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>ファイル拡張子：</translation>
    </message>
    <message>
        <source>Updating Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora をアップデートしています...</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Are you sure you want to stop syncing &quot;%1&quot;?</source>
        <translation>「%1」の同期を停止してもよろしいですか？</translation>
    </message>
    <message>
        <source>Sharing disabled</source>
        <translation>共有は無効です</translation>
    </message>
    <message>
        <source>Mount point not supported</source>
        <translation>マウントポイントはサポートされていません</translation>
    </message>
    <message>
        <source>Unable to remove this sync task.</source>
        <translation>この同期タスクを削除できません。</translation>
    </message>
    <message>
        <source>The new language will be applied after Nimbulo Pelora restarts.</source>
        <translation>新しい言語は Nimbulo Pelora の再起動後に適用されます。</translation>
    </message>
    <message>
        <source>The local disk is full. Free up some space to continue syncing.</source>
        <translation>ローカルディスクがいっぱいです。同期を続行するには空き容量を確保してください。</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink from this server? Your local files will be kept.</source>
        <translation>このサーバとのリンクを解除してもよろしいですか？ローカルのファイルは保持されます。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備しています...</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>アップロードしています...</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>システムのデフォルト</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>言語：</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込んでいます...</translation>
    </message>
    <message>
        <source>Syncing %1 files</source>
        <translation>%1 個のファイルを同期しています</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロードしています...</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>File names:</source>
        <translation>ファイル名：</translation>
    </message>
    <message>
        <source>Blocked Files</source>
        <translation>ブロックされたファイル</translation>
    </message>
    <message>
        <source>The local sync database is damaged. Please relink this sync task.</source>
        <translation>ローカルの同期データベースが破損しています。この同期タスクを再リンクしてください。</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>最大ファイルサイズ：</translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation>ファイルのフィルタ</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>フォルダ名</translation>
    </message>
    <message>
        <source>Excluded file types:</source>
        <translation>除外するファイルの種類：</translation>
    </message>
    <message>
        <source>Folders you unselect will be removed from this computer but kept on the server.</source>
        <translation>選択を解除したフォルダはこのコンピュータから削除されますが、サーバ上には残ります。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>結合モード</translation>
    </message>
    <message>
        <source>Sync Mode</source>
        <translation>同期モード</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>接続を編集</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>A mount point cannot be used as a sync folder.</source>
        <translation>マウントポイントは同期フォルダとして使用できません。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>ダウンロードはキャンセルされました。</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>You do not have permission to perform this operation.</source>
        <translation>この操作を実行する権限がありません。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>Your storage quota is full</source>
        <translation>ストレージクォータがいっぱいです</translation>
    </message>
    <message>
        <source>The local disk is full</source>
        <translation>ローカルディスクがいっぱいです</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>バージョンが一致しません</translation>
    </message>
    <message>
        <source>Unable to get your account information from the server.</source>
        <translation>サーバからアカウント情報を取得できません。</translation>
    </message>
    <message>
        <source>Sync problem detected</source>
        <translation>同期の問題が検出されました</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>コンピュータ名</translation>
    </message>
    <message>
        <source>The connection is unstable. Retrying...</source>
        <translation>接続が不安定です。再試行しています...</translation>
    </message>
    <message>
        <source>Downloading %1...</source>
        <translation>%1 をダウンロードしています...</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続しています...</translation>
    </message>
    <message>
        <source>Retrying sync...</source>
        <translation>同期を再試行しています...</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>セキュリティ警告</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>ダウンロードが完了しました。</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>このまま続行</translation>
    </message>
    <message>
        <source>Filter Rules</source>
        <translation>フィルタルール</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>以前のバージョンを参照</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Stopping sync for &quot;%1&quot; will remove its local copy. Continue?</source>
        <translation>「%1」の同期を停止すると、そのローカルコピーが削除されます。続行しますか？</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>セキュリティで保護された接続</translation>
    </message>
    <message>
        <source>Choose the folder on this computer where your files will be synced.</source>
        <translation>ファイルを同期する、このコンピュータ上のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Unable to download the file.</source>
        <translation>ファイルをダウンロードできません。</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>The server has been replaced or reset</source>
        <translation>サーバが置き換えられたか、リセットされました</translation>
    </message>
    <message>
        <source>Certificate verification failed</source>
        <translation>証明書を検証できませんでした</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>同期しています...</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate could not be verified. The connection may not be secure.</source>
        <translation>サーバの SSL 証明書を検証できませんでした。この接続は安全でない可能性があります。</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>完了しました</translation>
    </message>
    <message>
        <source>This sync task is inactive. Click to resume it.</source>
        <translation>この同期タスクは非アクティブです。クリックすると再開します。</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>This file cannot be downloaded right now.</source>
        <translation>このファイルは現在ダウンロードできません。</translation>
    </message>
    <message>
        <source>Unable to list the previous versions of this file.</source>
        <translation>このファイルの以前のバージョンを一覧表示できません。</translation>
    </message>
    <message>
        <source>Unable to create a sharing link for this file.</source>
        <translation>このファイルの共有リンクを作成できません。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Double-click the tray icon to open the sync folder</source>
        <translation>トレイアイコンをダブルクリックすると同期フォルダが開きます</translation>
    </message>
    <message>
        <source>Indexing folder...</source>
        <translation>フォルダのインデックスを作成しています...</translation>
    </message>
    <message>
        <source>Welcome to the Nimbulo Pelora Setup Wizard</source>
        <translation>Nimbulo Pelora セットアップウィザードへようこそ</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be initialized.</source>
        <translation>Nimbulo Pelora を初期化できませんでした。</translation>
    </message>
    <message>
        <source>&lt; Back</source>
        <translation>&lt; 戻る</translation>
    </message>
    <message>
        <source>Ready to Install Nimbulo Pelora</source>
        <translation>Nimbulo Pelora のインストール準備完了</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>更新が必要なファイルの一部が現在使用中です。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>End-User License Agreement</source>
        <translation>使用許諾契約書</translation>
    </message>
    <message>
        <source>Completed the Nimbulo Pelora Setup Wizard</source>
        <translation>Nimbulo Pelora セットアップウィザードが完了しました</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Do not close applications. A reboot will be required.</source>
        <translation>アプリケーションを終了しない（再起動が必要になります）。</translation>
    </message>
    <message>
        <source>Setup Error</source>
        <translation>セットアップエラー</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>[完了] ボタンをクリックしてセットアップウィザードを終了してください。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been installed successfully.</source>
        <translation>Nimbulo Pelora は正常にインストールされました。</translation>
    </message>
    <message>
        <source>Launch Nimbulo Pelora</source>
        <translation>Nimbulo Pelora を起動</translation>
    </message>
    <message>
        <source>Change, repair, or remove installation</source>
        <translation>インストールの変更、修復、または削除</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>機能のインストール方法を変更します。</translation>
    </message>
    <message>
        <source>The sync folder is on a volume that is not mounted.</source>
        <translation>同期フォルダがマウントされていないボリューム上にあります。</translation>
    </message>
    <message>
        <source>The file version is invalid.</source>
        <translation>ファイルのバージョンが無効です。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the Nimbulo Pelora installation?</source>
        <translation>Nimbulo Pelora のインストールをキャンセルしてもよろしいですか？</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here are not uploaded.</source>
        <translation>このフォルダへのアクセス権は読み取り専用です。ここで行った変更はアップロードされません。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>次の使用許諾契約書をよくお読みください。</translation>
    </message>
    <message>
        <source>Please read the license agreement and accept it to continue.</source>
        <translation>続行するには使用許諾契約書を読んで同意してください。</translation>
    </message>
    <message>
        <source>Cancel Setup</source>
        <translation>セットアップのキャンセル</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps the files on this computer in sync with your NAS.</source>
        <translation>Nimbulo Pelora は、このコンピュータ上のファイルを NAS と同期させます。</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Next &gt;</source>
        <translation>次へ &gt;</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Sync Status</source>
        <translation>同期状態</translation>
    </message>
    <message>
        <source>The local sync folder &quot;%1&quot; cannot be found. It may have been moved or deleted.</source>
        <translation>ローカル同期フォルダ「%1」が見つかりません。移動または削除された可能性があります。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup ended prematurely because of an error. Your system has not been modified.</source>
        <translation>エラーのため、Nimbulo Pelora セットアップは途中で終了しました。システムは変更されていません。</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the Setup Wizard again. Click Finish to exit.</source>
        <translation>このプログラムを後でインストールするには、セットアップウィザードを再度実行してください。[完了] をクリックして終了します。</translation>
    </message>
    <message>
        <source>Setup Ended Prematurely</source>
        <translation>セットアップが途中で終了しました</translation>
    </message>
    <message>
        <source>Close all applications and try to restart them.</source>
        <translation>すべてのアプリケーションを終了し、再起動を試みる。</translation>
    </message>
    <message>
        <source>Close the applications that use files Setup needs to update.</source>
        <translation>セットアップで更新が必要なファイルを使用しているアプリケーションを終了してください。</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update. Close them and click Retry to continue.</source>
        <translation>次のアプリケーションが、セットアップで更新が必要なファイルを使用しています。これらを終了してから [再試行] をクリックして続行してください。</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by fixing missing and corrupt files, shortcuts and registry entries.</source>
        <translation>見つからないファイルや破損したファイル、ショートカット、レジストリエントリを修正して、最新のインストールのエラーを修復します。</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated.\nClose them, or let Setup close them and attempt to restart them.</source>
        <translation>次のアプリケーションが、更新が必要なファイルを使用しています。\nこれらを終了するか、セットアップで終了して再起動を試みてください。</translation>
    </message>
    <message>
        <source>Files in Use</source>
        <translation>使用中のファイル</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has no independent features to select.</source>
        <translation>Nimbulo Pelora には選択できる個別の機能はありません。</translation>
    </message>
    <message>
        <source>Change the installed features</source>
        <translation>インストールされている機能を変更します</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.</source>
        <translation>実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>Removes Nimbulo Pelora from your computer.</source>
        <translation>Nimbulo Pelora をコンピュータから削除します。</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>インストールを削除します</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>インストールを修復します</translation>
    </message>
    <message>
        <source>Select the operation you wish to perform.\nYour sync settings are kept.</source>
        <translation>実行する操作を選択してください。\n同期設定は保持されます。</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way Nimbulo Pelora is installed, repair it, or remove it from your computer. Click Next to continue or Cancel to exit.</source>
        <translation>セットアップウィザードでは、Nimbulo Pelora のインストール方法の変更、修復、またはコンピュータからの削除を行えます。続行するには [次へ]、終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora Setup</source>
        <translation>Nimbulo Pelora セットアップへようこそ</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs Nimbulo Pelora.</source>
        <translation>セットアップウィザードが Nimbulo Pelora をインストールしています。しばらくお待ちください。</translation>
    </message>
    <message>
        <source>This may take a few minutes.</source>
        <translation>数分かかる場合があります。</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora...</source>
        <translation>Nimbulo Pelora をインストールしています...</translation>
    </message>
    <message>
        <source>Installing Nimbulo Pelora</source>
        <translation>Nimbulo Pelora のインストール</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>インストールを開始するには [インストール] をクリックしてください。インストール設定を確認または変更するには [戻る] を、ウィザードを終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the installation.</source>
        <translation>セットアップウィザードでインストールを開始する準備ができました。</translation>
    </message>
    <message>
        <source>Click Install to begin.</source>
        <translation>[インストール] をクリックして開始してください。</translation>
    </message>
    <message>
        <source>Click Remove to remove Nimbulo Pelora from your computer. Your synced files are kept.</source>
        <translation>[削除] をクリックすると、Nimbulo Pelora がコンピュータから削除されます。同期済みのファイルは保持されます。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to remove Nimbulo Pelora.</source>
        <translation>セットアップウィザードで Nimbulo Pelora を削除する準備ができました。</translation>
    </message>
    <message>
        <source>Click Remove to begin.</source>
        <translation>[削除] をクリックして開始してください。</translation>
    </message>
    <message>
        <source>Remove Nimbulo Pelora</source>
        <translation>Nimbulo Pelora の削除</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of Nimbulo Pelora.</source>
        <translation>[修復] をクリックすると、Nimbulo Pelora のインストールが修復されます。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to repair Nimbulo Pelora.</source>
        <translation>セットアップウィザードで Nimbulo Pelora を修復する準備ができました。</translation>
    </message>
    <message>
        <source>Click Repair to begin.</source>
        <translation>[修復] をクリックして開始してください。</translation>
    </message>
    <message>
        <source>Repair Nimbulo Pelora</source>
        <translation>Nimbulo Pelora の修復</translation>
    </message>
    <message>
        <source>Nimbulo Pelora Setup was interrupted. Your system has not been modified.</source>
        <translation>Nimbulo Pelora セットアップは中断されました。システムは変更されていません。</translation>
    </message>
    <message>
        <source>To install this program at a later time, run the installation again. Click Finish to exit the wizard.</source>
        <translation>このプログラムを後でインストールするには、インストールを再度実行してください。[完了] をクリックしてウィザードを終了します。</translation>
    </message>
    <message>
        <source>Setup Interrupted</source>
        <translation>セットアップの中断</translation>
    </message>
    <message>
        <source>The Setup Wizard will install Nimbulo Pelora on your computer. Click Next to continue or Cancel to exit.</source>
        <translation>セットアップウィザードは Nimbulo Pelora をコンピュータにインストールします。続行するには [次へ]、終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Change, repair or remove Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora を変更、修復、または削除します。</translation>
    </message>
    <message>
        <source>Setup has finished.</source>
        <translation>セットアップが完了しました。</translation>
    </message>
    <message>
        <source>Setup was cancelled.</source>
        <translation>セットアップはキャンセルされました。</translation>
    </message>
    <message>
        <source>An error occurred during setup.</source>
        <translation>セットアップ中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>This wizard guides you through the installation.</source>
        <translation>このウィザードでインストールを進めます。</translation>
    </message>
    <message>
        <source>I accept the terms in the License Agreement</source>
        <translation>使用許諾契約書に同意します</translation>
    </message>
    <message>
        <source>Connect to Another NAS</source>
        <translation>別の NAS に接続</translation>
    </message>
    <message>
        <source>Sync History</source>
        <translation>同期履歴</translation>
    </message>
    <message>
        <source>Sync enabled</source>
        <translation>同期は有効です</translation>
    </message>
    <message>
        <source>Folders to Sync</source>
        <translation>同期するフォルダ</translation>
    </message>
    <message>
        <source>Your files, on every device.</source>
        <translation>あなたのファイルを、すべてのデバイスで。</translation>
    </message>
    <message>
        <source>Your files will now sync in the background. You can find them in %1.</source>
        <translation>ファイルはバックグラウンドで同期されるようになりました。ファイルは %1 にあります。</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink the sync task &quot;%1&quot;? Files already on this computer are kept.</source>
        <translation>同期タスク「%1」のリンクを解除してもよろしいですか？このコンピュータにあるファイルは保持されます。</translation>
    </message>
    <message>
        <source>File Filters</source>
        <translation>ファイルフィルタ</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Show an icon on files that are not synced</source>
        <translation>同期されないファイルにアイコンを表示</translation>
    </message>
    <message>
        <source>The relay ID &quot;%1&quot; does not exist.</source>
        <translation>中継 ID「%1」は存在しません。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>The server has changed. Please check your sync tasks.</source>
        <translation>サーバが変更されました。同期タスクを確認してください。</translation>
    </message>
    <message>
        <source>The shared folder is not mounted on the server.</source>
        <translation>共有フォルダがサーバ上でマウントされていません。</translation>
    </message>
    <message>
        <source>The remote folder is not available. It may be on an encrypted shared folder that is not mounted.</source>
        <translation>リモートフォルダを利用できません。マウントされていない暗号化共有フォルダ上にある可能性があります。</translation>
    </message>
    <message>
        <source>Files beginning with a dot</source>
        <translation>ドットで始まるファイル</translation>
    </message>
    <message>
        <source>Nimbulo Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Nimbulo Pelora %1 はすでにインストールされています。\n再インストールしますか？</translation>
    </message>
    <message>
        <source>You need administrator privileges to install Nimbulo Pelora.\nPlease run the installer as an administrator.</source>
        <translation>Nimbulo Pelora をインストールするには管理者権限が必要です。\n管理者としてインストーラを実行してください。</translation>
    </message>
    <message>
        <source>Sync your files with Nimbulo Pelora</source>
        <translation>Nimbulo Pelora でファイルを同期しましょう</translation>
    </message>
    <message>
        <source>File sharing is not available over a LinkVane connection.</source>
        <translation>LinkVane 接続ではファイル共有を利用できません。</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>火</translation>
    </message>
    <message>
        <source>Open Containing Folder</source>
        <translation>格納フォルダを開く</translation>
    </message>
    <message>
        <source>Choose how you want to set up Nimbulo Pelora.</source>
        <translation>Nimbulo Pelora のセットアップ方法を選択してください。</translation>
    </message>
    <message>
        <source>Quick Setup</source>
        <translation>クイックセットアップ</translation>
    </message>
    <message>
        <source>Right-click a file in the sync folder to share it or browse its previous versions.</source>
        <translation>同期フォルダ内のファイルを右クリックすると、共有したり以前のバージョンを参照したりできます。</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>わかりました</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Open the tray menu at any time to see what is syncing.</source>
        <translation>トレイメニューを開くと、いつでも同期中の項目を確認できます。</translation>
    </message>
    <message>
        <source>Changes you make are uploaded as soon as you save them.</source>
        <translation>変更は保存するとすぐにアップロードされます。</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>Do Not Sync This Folder</source>
        <translation>このフォルダを同期しない</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Create a new folder on the NAS to sync with this computer.</source>
        <translation>このコンピュータと同期する新しいフォルダを NAS 上に作成します。</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Folder Already Synced</source>
        <translation>フォルダは同期済みです</translation>
    </message>
    <message>
        <source>This folder is already being synced by another sync task.</source>
        <translation>このフォルダはすでに別の同期タスクで同期されています。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Preparing to sync...</source>
        <translation>同期の準備をしています...</translation>
    </message>
    <message>
        <source>Recently Changed</source>
        <translation>最近の変更</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 日前</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 項目</translation>
    </message>
    <message>
        <source>Modified Time</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>先月</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>先週</translation>
    </message>
    <message>
        <source>Resume Syncing This Folder</source>
        <translation>このフォルダの同期を再開</translation>
    </message>
    <message>
        <source>Resume Syncing These Folders</source>
        <translation>これらのフォルダの同期を再開</translation>
    </message>
    <message>
        <source>Do Not Sync These Folders</source>
        <translation>これらのフォルダを同期しない</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>データなし</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>送る</translation>
    </message>
    <message>
        <source>Currently syncing: %1</source>
        <translation>同期中：%1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Search by file name</source>
        <translation>ファイル名で検索</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>金</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>すべてのイベント</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>月</translation>
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
        <translation>土</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>木</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>水</translation>
    </message>
    <message>
        <source>Advanced Mode</source>
        <translation>詳細モード</translation>
    </message>
    <message>
        <source>Don&apos;t show this message again</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the NAS.</source>
        <translation>ファイルは NAS 上のフォルダ「%1」と同期されています。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been set up. Your home folder on the NAS is now synced with this computer.</source>
        <translation>Nimbulo Pelora のセットアップが完了しました。NAS 上のホームフォルダがこのコンピュータと同期されるようになりました。</translation>
    </message>
    <message>
        <source>Setup Complete</source>
        <translation>セットアップ完了</translation>
    </message>
    <message>
        <source>Files you put in the sync folder are kept up to date on the NAS and on your other devices.</source>
        <translation>同期フォルダに入れたファイルは、NAS とほかのデバイス上で常に最新の状態に保たれます。</translation>
    </message>
    <message>
        <source>The tray icon shows the sync status at a glance.</source>
        <translation>トレイアイコンで同期状態をひと目で確認できます。</translation>
    </message>
    <message>
        <source>Setup Mode</source>
        <translation>セットアップモード</translation>
    </message>
    <message>
        <source>Sync your home folder on the NAS with a folder on this computer.</source>
        <translation>NAS 上のホームフォルダを、このコンピュータ上のフォルダと同期します。</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>いいえ、結構です</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Sync Folder</source>
        <translation>同期フォルダ</translation>
    </message>
    <message>
        <source>Tray Icon</source>
        <translation>トレイアイコン</translation>
    </message>
    <message>
        <source>Sharing and Versions</source>
        <translation>共有とバージョン</translation>
    </message>
    <message>
        <source>Search for NAS on the local network</source>
        <translation>ローカルネットワーク上の NAS を検索</translation>
    </message>
    <message>
        <source>Connect with LinkVane</source>
        <translation>LinkVane で接続</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード：</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>ユーザ名：</translation>
    </message>
    <message>
        <source>Welcome to Nimbulo Pelora</source>
        <translation>Nimbulo Pelora へようこそ</translation>
    </message>
    <message>
        <source>Show Main Window</source>
        <translation>メインウインドウを表示</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>アップデートがあります</translation>
    </message>
    <message>
        <source>Folder on the NAS</source>
        <translation>NAS 上のフォルダ</translation>
    </message>
    <message>
        <source>New Sync Folder</source>
        <translation>新しい同期フォルダ</translation>
    </message>
    <message>
        <source>Sync a new folder</source>
        <translation>新しいフォルダを同期</translation>
    </message>
    <message>
        <source>Advanced Setup</source>
        <translation>詳細セットアップ</translation>
    </message>
    <message>
        <source>Open Sync Status</source>
        <translation>同期状態を開く</translation>
    </message>
    <message>
        <source>Choose which folder on the NAS to sync, where to keep it on this computer, and how to sync it.</source>
        <translation>同期する NAS 上のフォルダ、このコンピュータ上の保存場所、および同期方法を選択します。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Files larger than %1 MB will not be synced.</source>
        <translation>%1 MB を超えるファイルは同期されません。</translation>
    </message>
    <message>
        <source>Find NAS on the local network</source>
        <translation>ローカルネットワーク上の NAS を探す</translation>
    </message>
    <message>
        <source>You only have read permission for &quot;%1&quot;. Changes made on this computer will not be uploaded.</source>
        <translation>「%1」に対しては読み取り権限しかありません。このコンピュータで行った変更はアップロードされません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a sync folder.</source>
        <translation>「%1」は同期フォルダとして使用できません。</translation>
    </message>
    <message>
        <source>More Tips</source>
        <translation>その他のヒント</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; overlaps with the sync folder of another task.</source>
        <translation>フォルダ「%1」は別のタスクの同期フォルダと重複しています。</translation>
    </message>
    <message>
        <source>This folder is already synced with &quot;%1&quot;.</source>
        <translation>このフォルダはすでに「%1」と同期されています。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is already synced with a folder on the NAS.</source>
        <translation>フォルダ「%1」はすでに NAS 上のフォルダと同期されています。</translation>
    </message>
    <message>
        <source>Create a &quot;Nimbulo&quot; folder in the selected location</source>
        <translation>選択した場所に「Nimbulo」フォルダを作成</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>共有リンクをコピー</translation>
    </message>
    <message>
        <source>Unable to get a sharing link because sharing is disabled on the server.</source>
        <translation>サーバで共有が無効になっているため、共有リンクを取得できません。</translation>
    </message>
    <message>
        <source>The server&apos;s SSL certificate has changed. Do you trust the new certificate?</source>
        <translation>サーバの SSL 証明書が変更されました。新しい証明書を信頼しますか？</translation>
    </message>
    <message>
        <source>Your IP address is not allowed to connect to this server.</source>
        <translation>お使いの IP アドレスからはこのサーバに接続できません。</translation>
    </message>
    <message>
        <source>When the same file has been changed on both sides:</source>
        <translation>同じファイルが両方で変更された場合：</translation>
    </message>
    <message>
        <source>The sync direction does not match the permissions of this folder.</source>
        <translation>同期方向がこのフォルダの権限と一致しません。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前の %1 ページ</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>次の %1 ページ</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダを開く</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>リンクを解除しています...</translation>
    </message>
    <message>
        <source>Too many failed attempts. Please try again later.</source>
        <translation>失敗した回数が多すぎます。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>This file is locked by another application.</source>
        <translation>このファイルは別のアプリケーションによってロックされています。</translation>
    </message>
    <message>
        <source>Unable to check &quot;%1&quot; because of a network error.</source>
        <translation>ネットワークエラーのため、「%1」を確認できません。</translation>
    </message>
    <message>
        <source>Keep the most recently modified version</source>
        <translation>最後に変更されたバージョンを保持</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双方向同期</translation>
    </message>
    <message>
        <source>Enter the address of your NAS and your account.</source>
        <translation>NAS のアドレスとアカウントを入力してください。</translation>
    </message>
    <message>
        <source>Unable to create the local folder &quot;%1&quot;.</source>
        <translation>ローカルフォルダ「%1」を作成できません。</translation>
    </message>
    <message>
        <source>Select a folder on the NAS and a folder on this computer to sync with each other.</source>
        <translation>互いに同期させる NAS 上のフォルダと、このコンピュータ上のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Set Sync Folders</source>
        <translation>同期フォルダの設定</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the NAS with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora は NAS 上の「%1」をこのコンピュータ上の「%2」と同期しています。</translation>
    </message>
    <message>
        <source>When files conflict, the server&apos;s copy is kept and the local copy is backed up.</source>
        <translation>ファイルが競合した場合は、サーバのコピーが保持され、ローカルのコピーはバックアップされます。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora</source>
        <translation>Nimbulo Pelora</translation>
    </message>
    <message>
        <source>Enable On-demand Sync</source>
        <translation>オンデマンド同期を有効にする</translation>
    </message>
    <message>
        <source>The verification code is incorrect.</source>
        <translation>確認コードが正しくありません。</translation>
    </message>
    <message>
        <source>This account requires a verification code.</source>
        <translation>このアカウントには確認コードが必要です。</translation>
    </message>
    <message>
        <source>Enter the verification code from your authenticator app:</source>
        <translation>認証アプリに表示された確認コードを入力してください：</translation>
    </message>
    <message>
        <source>Your quota on the NAS is full. &quot;%1&quot; cannot be synced.</source>
        <translation>NAS のクォータがいっぱいです。「%1」を同期できません。</translation>
    </message>
    <message>
        <source>The server certificate has changed. Unable to sync &quot;%1&quot;.</source>
        <translation>サーバ証明書が変更されました。「%1」を同期できません。</translation>
    </message>
    <message>
        <source>The server certificate cannot be verified. Unable to sync &quot;%1&quot;.</source>
        <translation>サーバ証明書を検証できません。「%1」を同期できません。</translation>
    </message>
    <message>
        <source>A system error occurred while checking the sync folder.</source>
        <translation>同期フォルダの確認中にシステムエラーが発生しました。</translation>
    </message>
    <message>
        <source>Overwrite the local copy with the server&apos;s copy</source>
        <translation>ローカルのコピーをサーバのコピーで上書き</translation>
    </message>
    <message>
        <source>Keep both copies and rename the local one</source>
        <translation>両方のコピーを保持し、ローカルのコピーの名前を変更</translation>
    </message>
    <message>
        <source>A newer version of Nimbulo Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>新しいバージョンの Nimbulo Pelora（%1）がすでにインストールされています。\nセットアップを終了します。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is ready.</source>
        <translation>Nimbulo Pelora は準備完了です。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is initializing...</source>
        <translation>Nimbulo Pelora は初期化中です。</translation>
    </message>
    <message>
        <source>No folder that you can sync was found.</source>
        <translation>同期できるフォルダが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>チュートリアルを表示</translation>
    </message>
    <message>
        <source>Files in the local folder will be merged with the files on the NAS.</source>
        <translation>ローカルフォルダ内のファイルは NAS 上のファイルと結合されます。</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when the computer starts</source>
        <translation>コンピュータの起動時に Nimbulo Pelora を起動</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error.</source>
        <translation>Nimbulo Pelora でエラーが発生しました。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running.</source>
        <translation>Nimbulo Pelora は実行中です。</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is no longer supported. Please update it.</source>
        <translation>このバージョンの Nimbulo Pelora はサポートされなくなりました。アップデートしてください。</translation>
    </message>
    <message>
        <source>Click to update Nimbulo Pelora</source>
        <translation>クリックして Nimbulo Pelora をアップデート</translation>
    </message>
    <message>
        <source>Please update the sync service on the server to use selective sync.</source>
        <translation>選択型同期を使用するには、サーバの同期サービスをアップデートしてください。</translation>
    </message>
    <message>
        <source>There is not enough free space on this computer to sync &quot;%1&quot;.</source>
        <translation>このコンピュータの空き容量が不足しているため、「%1」を同期できません。</translation>
    </message>
    <message>
        <source>Sign in to your NAS to start syncing.</source>
        <translation>同期を開始するには NAS にサインインしてください。</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your NAS.</source>
        <translation>このコンピュータ上のファイルを NAS と同期させます。</translation>
    </message>
    <message>
        <source>Shared folder not found</source>
        <translation>共有フォルダが見つかりません</translation>
    </message>
    <message>
        <source>About Nimbulo Pelora</source>
        <translation>Nimbulo Pelora について</translation>
    </message>
    <message>
        <source>Your administrator requires two-step verification. Please enable it in your account settings first.</source>
        <translation>管理者により 2 段階認証が必須になっています。先にアカウント設定で有効にしてください。</translation>
    </message>
    <message>
        <source>The quota of the shared folder is full.</source>
        <translation>共有フォルダのクォータがいっぱいです。</translation>
    </message>
    <message>
        <source>Sync Direction</source>
        <translation>同期方向</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered a problem while syncing. Click for details.</source>
        <translation>Nimbulo Pelora の同期中に問題が発生しました。クリックすると詳細を表示します。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora keeps your files up to date on all of your devices.</source>
        <translation>Nimbulo Pelora は、すべてのデバイス上のファイルを常に最新の状態に保ちます。</translation>
    </message>
    <message>
        <source>Some fields contain invalid values.</source>
        <translation>一部のフィールドに無効な値が含まれています。</translation>
    </message>
    <message>
        <source>You do not have permission to access &quot;%1&quot;.</source>
        <translation>「%1」にアクセスする権限がありません。</translation>
    </message>
    <message>
        <source>Your account has been disabled. Unable to sync &quot;%1&quot;.</source>
        <translation>アカウントが無効になっています。「%1」を同期できません。</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>有効期間</translation>
    </message>
    <message>
        <source>No options available</source>
        <translation>利用できるオプションはありません</translation>
    </message>
    <message>
        <source>You need an account on a NAS with the sync service installed.</source>
        <translation>同期サービスがインストールされた NAS のアカウントが必要です。</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your username and password.</source>
        <translation>認証に失敗しました。ユーザ名とパスワードを確認してください。</translation>
    </message>
    <message>
        <source>Use * to match any characters. Separate entries with commas.</source>
        <translation>* は任意の文字に一致します。複数の項目はカンマで区切ってください。</translation>
    </message>
    <message>
        <source>One-way download</source>
        <translation>一方向ダウンロード</translation>
    </message>
    <message>
        <source>A folder named &quot;%1&quot; already exists.</source>
        <translation>「%1」という名前のフォルダはすでに存在します。</translation>
    </message>
    <message>
        <source>Sync extended attributes</source>
        <translation>拡張属性を同期</translation>
    </message>
    <message>
        <source>I do not accept the terms in the License Agreement</source>
        <translation>使用許諾契約書に同意しません</translation>
    </message>
    <message>
        <source>Sharing Link</source>
        <translation>共有リンク</translation>
    </message>
    <message>
        <source>Expires on</source>
        <translation>有効期限</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>この項目は必須です。</translation>
    </message>
    <message>
        <source>Restrict access to users with an account</source>
        <translation>アカウントを持つユーザのみにアクセスを制限</translation>
    </message>
    <message>
        <source>Show Nimbulo Pelora in the context menu</source>
        <translation>コンテキストメニューに Nimbulo Pelora を表示</translation>
    </message>
    <message>
        <source>The home folder service is disabled on the NAS.</source>
        <translation>NAS でホームフォルダサービスが無効になっています。</translation>
    </message>
    <message>
        <source>Unable to update Nimbulo Pelora. Please try again later.</source>
        <translation>Nimbulo Pelora をアップデートできません。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Apply and Copy Link</source>
        <translation>適用してリンクをコピー</translation>
    </message>
    <message>
        <source>Limit the number of accesses</source>
        <translation>アクセス回数を制限</translation>
    </message>
    <message>
        <source>Available from</source>
        <translation>利用開始日時</translation>
    </message>
    <message>
        <source>A new version of Nimbulo Pelora is required to connect to this server. Update now?</source>
        <translation>このサーバに接続するには新しいバージョンの Nimbulo Pelora が必要です。今すぐアップデートしますか？</translation>
    </message>
    <message>
        <source>Add file name</source>
        <translation>ファイル名を追加</translation>
    </message>
    <message>
        <source>Local destination</source>
        <translation>ローカルの保存先</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Remote NAS</source>
        <translation>リモート NAS</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピュータ</translation>
    </message>
    <message>
        <source>Download the selected version</source>
        <translation>選択したバージョンをダウンロード</translation>
    </message>
    <message>
        <source>Custom duration</source>
        <translation>期間をカスタマイズ</translation>
    </message>
    <message>
        <source>Refresh sync history</source>
        <translation>同期履歴を更新</translation>
    </message>
    <message>
        <source>On-demand Sync</source>
        <translation>オンデマンド同期</translation>
    </message>
    <message>
        <source>Filter sync history</source>
        <translation>同期履歴をフィルタ</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>フォルダを追加</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>翌月</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>前月</translation>
    </message>
    <message>
        <source>Change sync folder</source>
        <translation>同期フォルダを変更</translation>
    </message>
    <message>
        <source>Event category</source>
        <translation>イベントのカテゴリ</translation>
    </message>
    <message>
        <source>Sync task details</source>
        <translation>同期タスクの詳細</translation>
    </message>
    <message>
        <source>Remote destination</source>
        <translation>リモートの保存先</translation>
    </message>
    <message>
        <source>Close tutorial</source>
        <translation>チュートリアルを閉じる</translation>
    </message>
    <message>
        <source>Tutorial: learn how to use Nimbulo Pelora.</source>
        <translation>チュートリアル：Nimbulo Pelora の使い方を確認します。</translation>
    </message>
    <message>
        <source>Cancel download</source>
        <translation>ダウンロードをキャンセル</translation>
    </message>
    <message>
        <source>Delete version</source>
        <translation>バージョンを削除</translation>
    </message>
    <message>
        <source>Unable to enable On-demand Sync for &quot;%1&quot;.</source>
        <translation>「%1」のオンデマンド同期を有効にできません。</translation>
    </message>
    <message>
        <source>This file is not available because there is no connection to the server.</source>
        <translation>サーバに接続されていないため、このファイルは利用できません。</translation>
    </message>
    <message>
        <source>Renamed on this computer</source>
        <translation>このコンピュータで名前を変更</translation>
    </message>
    <message>
        <source>Renamed on the server</source>
        <translation>サーバで名前を変更</translation>
    </message>
    <message>
        <source>Please enter no more than %1 characters.</source>
        <translation>%1 文字以内で入力してください。</translation>
    </message>
    <message>
        <source>Your password has expired. Please change it on the server and sign in again.</source>
        <translation>パスワードの有効期限が切れています。サーバでパスワードを変更してから、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>This folder was synced by a different user. Please choose another folder.</source>
        <translation>このフォルダは別のユーザによって同期されていました。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Relay connections are disabled on the server.</source>
        <translation>サーバで中継接続が無効になっています。</translation>
    </message>
    <message>
        <source>Authentication failed for &quot;%1&quot;. Please sign in again.</source>
        <translation>「%1」の認証に失敗しました。もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>Unable to get the link to this file.</source>
        <translation>このファイルへのリンクを取得できません。</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>一時ファイル</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Congratulations!</source>
        <translation>おめでとうございます！</translation>
    </message>
    <message>
        <source>Folders others have shared with you</source>
        <translation>ほかのユーザがあなたと共有したフォルダ</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here stay on this computer.</source>
        <translation>このフォルダへのアクセス権は読み取り専用です。ここで行った変更はこのコンピュータ上にのみ残ります。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is now syncing &quot;%1&quot; on the server with &quot;%2&quot; on this computer.</source>
        <translation>Nimbulo Pelora はサーバ上の「%1」をこのコンピュータ上の「%2」と同期しています。</translation>
    </message>
    <message>
        <source>Show the Nimbulo Pelora tutorial</source>
        <translation>Nimbulo Pelora のチュートリアルを表示</translation>
    </message>
    <message>
        <source>Nimbulo Pelora is running in the background.</source>
        <translation>Nimbulo Pelora はバックグラウンドで実行中です。</translation>
    </message>
    <message>
        <source>Sign in to your server to start syncing.</source>
        <translation>同期を開始するにはサーバにサインインしてください。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please download the latest version and install it again.</source>
        <translation>Nimbulo Pelora をアップデートできませんでした。最新バージョンをダウンロードして、もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>You need an account on a server with the sync service installed.</source>
        <translation>同期サービスがインストールされたサーバのアカウントが必要です。</translation>
    </message>
    <message>
        <source>Conflicting changes are kept in both copies: the server copy is renamed with the user name.</source>
        <translation>競合した変更は両方のコピーに保持されます。サーバのコピーはユーザ名を付けた名前に変更されます。</translation>
    </message>
    <message>
        <source>Tutorial: learn how to sync with Nimbulo Pelora.</source>
        <translation>チュートリアル：Nimbulo Pelora で同期する方法を確認します。</translation>
    </message>
    <message>
        <source>The server ID &quot;%1&quot; does not exist.</source>
        <translation>サーバ ID「%1」は存在しません。</translation>
    </message>
    <message>
        <source>Start Nimbulo Pelora when I sign in</source>
        <translation>サインイン時に Nimbulo Pelora を起動</translation>
    </message>
    <message>
        <source>Choose a folder on the server and a folder on this computer.</source>
        <translation>サーバ上のフォルダと、このコンピュータ上のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>This sync task belongs to a different server.</source>
        <translation>この同期タスクは別のサーバのものです。</translation>
    </message>
    <message>
        <source>The server uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>このサーバは、このバージョンの Nimbulo Pelora でサポートされていないプロトコルを使用しています。</translation>
    </message>
    <message>
        <source>The disk is full. Nimbulo Pelora has paused syncing.</source>
        <translation>ディスクがいっぱいです。Nimbulo Pelora は同期を一時停止しました。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has encountered an error. Please restart it.</source>
        <translation>Nimbulo Pelora でエラーが発生しました。再起動してください。</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its files will be uploaded to the server.</source>
        <translation>選択したフォルダは空ではありません。フォルダ内のファイルはサーバにアップロードされます。</translation>
    </message>
    <message>
        <source>Download changes from the server only</source>
        <translation>サーバからの変更のみをダウンロード</translation>
    </message>
    <message>
        <source>Your files are now syncing with the folder &quot;%1&quot; on the server.</source>
        <translation>ファイルはサーバ上のフォルダ「%1」と同期されています。</translation>
    </message>
    <message>
        <source>Varnex Pelora %1 is already installed.\nDo you want to reinstall it?</source>
        <translation>Varnex Pelora %1 はすでにインストールされています。\n再インストールしますか？</translation>
    </message>
    <message>
        <source>Not enough free space to sync &quot;%1&quot;. Free up some space and try again.</source>
        <translation>空き容量が不足しているため、「%1」を同期できません。空き容量を確保して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Keep the files on this computer in sync with your server.</source>
        <translation>このコンピュータ上のファイルをサーバと同期させます。</translation>
    </message>
    <message>
        <source>Create a &quot;Varnex Pelora&quot; folder in the selected location</source>
        <translation>選択した場所に「Varnex Pelora」フォルダを作成</translation>
    </message>
    <message>
        <source>A newer version of Varnex Pelora (%1) is already installed.\nSetup will now exit.</source>
        <translation>新しいバージョンの Varnex Pelora（%1）がすでにインストールされています。\nセットアップを終了します。</translation>
    </message>
    <message>
        <source>Sync a folder of your choice on the server.</source>
        <translation>サーバ上の任意のフォルダを同期します。</translation>
    </message>
    <message>
        <source>Automatic setup failed. Please set up Nimbulo Pelora manually.</source>
        <translation>自動セットアップに失敗しました。Nimbulo Pelora を手動でセットアップしてください。</translation>
    </message>
    <message>
        <source>Finishing automatic setup...</source>
        <translation>自動セットアップを完了しています...</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>No data available.</source>
        <translation>データがありません。</translation>
    </message>
    <message>
        <source>No shared folders are available.</source>
        <translation>利用できる共有フォルダはありません。</translation>
    </message>
    <message>
        <source>The file or folder does not exist.</source>
        <translation>ファイルまたはフォルダが存在しません。</translation>
    </message>
    <message>
        <source>Nimbulo Pelora has been configured by your administrator.</source>
        <translation>Nimbulo Pelora は管理者によって構成されています。</translation>
    </message>
    <message>
        <source>Internal users</source>
        <translation>内部ユーザ</translation>
    </message>
    <message>
        <source>Users of the server can view the file.</source>
        <translation>サーバのユーザはこのファイルを表示できます。</translation>
    </message>
    <message>
        <source>Users of the server can view and edit the file.</source>
        <translation>サーバのユーザはこのファイルを表示および編集できます。</translation>
    </message>
    <message>
        <source>Specific people</source>
        <translation>特定のユーザ</translation>
    </message>
    <message>
        <source>Only people you invite can access the file.</source>
        <translation>招待したユーザのみがこのファイルにアクセスできます。</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>リンクを知っている全員</translation>
    </message>
    <message>
        <source>Anyone with the link can view the file.</source>
        <translation>リンクを知っている全員がこのファイルを表示できます。</translation>
    </message>
    <message>
        <source>Anyone with the link can view and edit the file.</source>
        <translation>リンクを知っている全員がこのファイルを表示および編集できます。</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>閲覧可能</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>編集可能</translation>
    </message>
    <message>
        <source>Invite</source>
        <translation>招待</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Link permission:</source>
        <translation>リンクの権限：</translation>
    </message>
    <message>
        <source>Users and groups</source>
        <translation>ユーザとグループ</translation>
    </message>
    <message>
        <source>Use a black-and-white icon in the menu bar</source>
        <translation>メニューバーで白黒のアイコンを使用</translation>
    </message>
    <message>
        <source>Show the sync folder in the sidebar of file windows</source>
        <translation>ファイルウインドウのサイドバーに同期フォルダを表示</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Unable to connect to the server</source>
        <translation>サーバに接続できません</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>%1 commented on %2</source>
        <translation>%1 さんが %2 にコメントしました</translation>
    </message>
    <message>
        <source>%1 mentioned you in %2</source>
        <translation>%1 さんが %2 であなたをメンションしました</translation>
    </message>
    <message>
        <source>%1 requested access to %2</source>
        <translation>%1 さんが %2 へのアクセスをリクエストしました</translation>
    </message>
    <message>
        <source>%1 shared %2 with you</source>
        <translation>%1 さんが %2 をあなたと共有しました</translation>
    </message>
    <message>
        <source>Open in Web Portal</source>
        <translation>Web ポータルで開く</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>共有済み</translation>
    </message>
    <message>
        <source>Set Up</source>
        <translation>セットアップ</translation>
    </message>
    <message>
        <source>%1 is requesting access to this file.</source>
        <translation>%1 さんがこのファイルへのアクセスをリクエストしています。</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>Mentions</source>
        <translation>メンション</translation>
    </message>
    <message>
        <source>Sync the folders shared with you as well?</source>
        <translation>あなたと共有されているフォルダも同期しますか？</translation>
    </message>
    <message>
        <source>One-way upload</source>
        <translation>一方向アップロード</translation>
    </message>
    <message>
        <source>Do not remove files on the server when they are removed locally</source>
        <translation>ローカルでファイルを削除しても、サーバ上のファイルは削除しない</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been downloaded.</source>
        <translation>「%1」のダウンロードが完了しました。</translation>
    </message>
    <message>
        <source>Your files are synced on all devices.</source>
        <translation>ファイルはすべてのデバイスで同期されています。</translation>
    </message>
    <message>
        <source>You can also access your files from the web portal.</source>
        <translation>Web ポータルからファイルにアクセスすることもできます。</translation>
    </message>
    <message>
        <source>Your sync task is ready.</source>
        <translation>同期タスクの準備ができました。</translation>
    </message>
    <message>
        <source>Start Tour</source>
        <translation>ツアーを開始</translation>
    </message>
    <message>
        <source>Files and folders that others share with you can also be synced to this computer.</source>
        <translation>ほかのユーザがあなたと共有したファイルやフォルダも、このコンピュータに同期できます。</translation>
    </message>
    <message>
        <source>Maybe later</source>
        <translation>後で設定する</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>今すぐ同期</translation>
    </message>
    <message>
        <source>Shared with Me</source>
        <translation>共有アイテム</translation>
    </message>
    <message>
        <source>Create Sync Task</source>
        <translation>同期タスクを作成</translation>
    </message>
    <message>
        <source>Choose what you want to sync.</source>
        <translation>同期する対象を選択してください。</translation>
    </message>
    <message>
        <source>General Sync Task</source>
        <translation>一般同期タスク</translation>
    </message>
    <message>
        <source>Files Shared with Me</source>
        <translation>共有されたファイル</translation>
    </message>
    <message>
        <source>Sync the files and folders others have shared with you.</source>
        <translation>ほかのユーザがあなたと共有したファイルとフォルダを同期します。</translation>
    </message>
    <message>
        <source>Choose a folder on the NAS and a folder on this computer.</source>
        <translation>NAS 上のフォルダと、このコンピュータ上のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>This sync task belongs to a different NAS.</source>
        <translation>この同期タスクは別の NAS のものです。</translation>
    </message>
    <message>
        <source>The NAS uses a protocol that this version of Nimbulo Pelora does not support.</source>
        <translation>この NAS は、このバージョンの Nimbulo Pelora でサポートされていないプロトコルを使用しています。</translation>
    </message>
    <message>
        <source>The disk is full. Syncing has been paused.</source>
        <translation>ディスクがいっぱいです。同期を一時停止しました。</translation>
    </message>
    <message>
        <source>Download changes from the NAS only</source>
        <translation>NAS からの変更のみをダウンロード</translation>
    </message>
    <message>
        <source>Nimbulo Pelora could not be updated. Please try again later.</source>
        <translation>Nimbulo Pelora をアップデートできませんでした。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>You are already connected to this NAS.</source>
        <translation>この NAS にはすでに接続しています。</translation>
    </message>
    <message>
        <source>Changes on network drives may be detected with a delay.</source>
        <translation>ネットワークドライブ上の変更は、検出が遅れる場合があります。</translation>
    </message>
    <message>
        <source>The SSL certificate of %1 has changed.</source>
        <translation>%1 の SSL 証明書が変更されました。</translation>
    </message>
    <message>
        <source>A secure connection to the server cannot be established.</source>
        <translation>サーバとの安全な接続を確立できません。</translation>
    </message>
    <message>
        <source>Welcome!</source>
        <translation>ようこそ！</translation>
    </message>
    <message>
        <source>Files in your home folder on the NAS are now in %1.</source>
        <translation>NAS 上のホームフォルダのファイルは、現在 %1 にあります。</translation>
    </message>
    <message>
        <source>Files in your home folder on the server are now in %1.</source>
        <translation>サーバ上のホームフォルダのファイルは、現在 %1 にあります。</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message>
        <source>The server&apos;s sync service is outdated</source>
        <translation>サーバの同期サービスが古くなっています</translation>
    </message>
    <message>
        <source>The shared folder no longer exists.</source>
        <translation>共有フォルダは存在しなくなりました。</translation>
    </message>
    <message>
        <source>Click to update to Nimbulo Pelora %1</source>
        <translation>クリックして Nimbulo Pelora %1 にアップデート</translation>
    </message>
    <message>
        <source>This version of Nimbulo Pelora is too old to connect to the server. Please update it.</source>
        <translation>このバージョンの Nimbulo Pelora は古いため、サーバに接続できません。アップデートしてください。</translation>
    </message>
</context>
</TS>
