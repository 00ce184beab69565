<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>DeviceList</name>
    <message>
        <source>Built-in camera</source>
        <translation>内蔵カメラ</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>connecting…</source>
        <translation>接続中…</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>撮像中</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>接続断</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>リストから削除(&amp;R)</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Start acquisition</source>
        <translation>撮像開始</translation>
    </message>
    <message>
        <source>Stop acquisition</source>
        <translation>撮像停止</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>ユーザーセットの読み込み</translation>
    </message>
    <message>
        <source>Load user set %1?</source>
        <translation>ユーザーセット %1 を読み込みますか？</translation>
    </message>
    <message>
        <source>Settings of this camera were changed and are in no user set. Loading replaces them.</source>
        <translation>このカメラの設定は変更されていますが、どのユーザーセットにも保存されていません。読み込むと上書きされます。</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Load user set %1</source>
        <translation>ユーザーセット %1 の読み込み</translation>
    </message>
    <message>
        <source>Save to user set %1</source>
        <translation>ユーザーセット %1 への保存</translation>
    </message>
    <message>
        <source>Trigger mode %1</source>
        <translation>トリガーモード %1</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>設定の保存</translation>
    </message>
    <message>
        <source>Nothing was saved. These settings could not be read: %1</source>
        <translation>何も保存されませんでした。次の設定を読み取れませんでした: %1</translation>
    </message>
    <message>
        <source>While the camera is acquiring, none of its settings can be saved. Stop the acquisition first.</source>
        <translation>カメラの撮像中は設定を保存できません。先に撮像を停止してください。</translation>
    </message>
    <message>
        <source>This camera has no trigger setting that can be saved now.</source>
        <translation>このカメラには、現在保存できるトリガー設定がありません。</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>設定 (*.json)</translation>
    </message>
    <message>
        <source>Settings saved in %1</source>
        <translation>設定を %1 に保存しました</translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation>設定の適用</translation>
    </message>
    <message>
        <source>Applying the settings…</source>
        <translation>設定を適用しています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>1 setting applied</source>
        <translation>1 件の設定を適用しました</translation>
    </message>
    <message>
        <source>%1 settings applied</source>
        <translation>%1 件の設定を適用しました</translation>
    </message>
    <message>
        <source>%1 of %2 settings were applied to %3. These were not:</source>
        <translation>%2 件中 %1 件の設定を %3 に適用しました。次の設定は適用されませんでした:</translation>
    </message>
    <message>
        <source>%1 of %2 settings applied</source>
        <translation>%2 件中 %1 件の設定を適用しました</translation>
    </message>
    <message>
        <source>Not connected to %1.</source>
        <translation>%1 に接続していません。</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>%1 に接続しています…</translation>
    </message>
    <message>
        <source>There is no connection to %1.</source>
        <translation>%1 に接続できません。</translation>
    </message>
    <message>
        <source>The connection to %1 was lost.</source>
        <translation>%1 との接続が切れました。</translation>
    </message>
    <message>
        <source>Another program controls this camera: settings can be read, not changed.</source>
        <translation>このカメラは別のプログラムが制御しています。設定の読み取りはできますが、変更はできません。</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>再接続(&amp;R)</translation>
    </message>
    <message>
        <source>%1 was not executed: %2</source>
        <translation>%1 を実行できませんでした: %2</translation>
    </message>
    <message>
        <source>%1 was not set to %2: %3</source>
        <translation>%1 を %2 に設定できませんでした: %3</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: 完了</translation>
    </message>
</context>
<context>
    <name>GenicamDevice</name>
    <message>
        <source>no such node of this type</source>
        <translation>この名前と型のノードはありません</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>別のプログラムがカメラを制御しています</translation>
    </message>
    <message>
        <source>cannot be written now</source>
        <translation>現在は書き込めません</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>現在は読み取れません</translation>
    </message>
    <message>
        <source>it does not describe itself</source>
        <translation>デバイスが自身の記述情報を提供していません</translation>
    </message>
    <message>
        <source>the device holds no number</source>
        <translation>デバイスの値が数値ではありません</translation>
    </message>
    <message>
        <source>the device holds no entry</source>
        <translation>デバイスの値がどの選択肢にも該当しません</translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above the minimum</source>
        <translation>%1 と最小値の差が %2 の整数倍ではありません</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>数値ではありません</translation>
    </message>
    <message>
        <source>the text contains a NUL</source>
        <translation>テキストにNUL文字が含まれています</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this file, in that language.</extracomment>
        <translation>日本語</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Trigger Viewer</source>
        <translation>トリガービューアー</translation>
    </message>
    <message>
        <source>%1 – Trigger Viewer</source>
        <translation>%1 – トリガービューアー</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Start acquisition</source>
        <translation>撮像開始(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top acquisition</source>
        <translation>撮像停止(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Load user set</source>
        <translation>ユーザーセットの読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>Trigger &amp;mode</source>
        <translation>トリガーモード(&amp;M)</translation>
    </message>
    <message>
        <source>Change the trigger mode outside the panel</source>
        <translation>パネルの外からトリガーモードを変更します</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>通信ログ</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Not available now</source>
        <translation>現在は使用できません</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>デバイス(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Connect…</source>
        <translation>接続(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Find cameras</source>
        <translation>カメラの検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>再接続(&amp;R)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save settings…</source>
        <translation>設定の保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Apply settings…</source>
        <translation>設定の適用(&amp;A)…</translation>
    </message>
    <message>
        <source>Save to &amp;user set</source>
        <translation>ユーザーセットへの保存(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Refresh nodes</source>
        <translation>ノードの更新(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Trigger Viewer</source>
        <translation>トリガービューアーについて(&amp;A)</translation>
    </message>
    <message>
        <source>About Trigger Viewer</source>
        <translation>トリガービューアーについて</translation>
    </message>
    <message>
        <source>No device is open.</source>
        <translation>開いているデバイスはありません。</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>接続…</translation>
    </message>
    <message>
        <source>Open the built-in camera</source>
        <translation>内蔵カメラを開く</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>&amp;IPv4 address of the camera:</source>
        <translation>カメラのIPv4アドレス(&amp;I):</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>カメラを検索しています…</translation>
    </message>
    <message>
        <source>No camera answered</source>
        <translation>応答したカメラはありませんでした</translation>
    </message>
    <message>
        <source>1 camera found</source>
        <translation>1 台のカメラが見つかりました</translation>
    </message>
    <message>
        <source>%1 cameras found</source>
        <translation>%1 台のカメラが見つかりました</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Trigger Viewer %1&lt;/h3&gt;&lt;p&gt;Shows and changes the trigger settings of smart cameras.&lt;/p&gt;&lt;p&gt;Uses Qt, Aravis and GLib under the GNU Lesser General Public License.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;トリガービューアー %1&lt;/h3&gt;&lt;p&gt;スマートカメラのトリガー設定を表示・変更します。&lt;/p&gt;&lt;p&gt;Qt、Aravis、GLib を GNU Lesser General Public License のもとで使用しています。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>NetworkLink</name>
    <message>
        <source>it is not the IPv4 address of a camera, such as 192.168.0.10</source>
        <translation>カメラのIPv4アドレスではありません（例: 192.168.0.10）</translation>
    </message>
    <message>
        <source>no camera answers</source>
        <translation>応答するカメラがありません</translation>
    </message>
    <message>
        <source>The camera is gone, was restarted, or obeys another program now.</source>
        <translation>カメラがなくなったか、再起動されたか、別のプログラムの制御下に入りました。</translation>
    </message>
    <message>
        <source>The camera does not answer any more.</source>
        <translation>カメラが応答しなくなりました。</translation>
    </message>
</context>
<context>
    <name>NodeModel</name>
    <message>
        <source>not implemented</source>
        <translation>未実装</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>使用不可</translation>
    </message>
    <message>
        <source>write-only</source>
        <translation>書き込み専用</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>read/write</source>
        <translation>読み書き可</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>アクセス</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>step %1</source>
        <translation>刻み幅 %1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
</context>
<context>
    <name>ParamPageWidgetItem</name>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
    </message>
    <message>
        <source>SoftwareTrigger</source>
        <translation>ソフトウェアトリガー</translation>
    </message>
    <message>
        <source>IOTrigger</source>
        <translation>I/Oトリガー</translation>
    </message>
    <message>
        <source>TcpServer</source>
        <translation>TCPサーバー</translation>
    </message>
    <message>
        <source>TcpClient</source>
        <translation>TCPクライアント</translation>
    </message>
    <message>
        <source>Udp</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
    <message>
        <source>AutoTrigger</source>
        <translation>自動トリガー</translation>
    </message>
    <message>
        <source>SensingTrigger</source>
        <translation>検知トリガー</translation>
    </message>
    <message>
        <source>Master-Slave</source>
        <translation>マスター/スレーブ</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>16進数</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Trigger Mode</source>
        <translation>トリガーモード</translation>
    </message>
    <message>
        <source>Trigger Source</source>
        <translation>トリガーソース</translation>
    </message>
    <message>
        <source>Software Trigger</source>
        <translation>ソフトウェアトリガー</translation>
    </message>
    <message>
        <source>Trigger Delay(ms)</source>
        <translation>トリガー遅延(ms)</translation>
    </message>
    <message>
        <source>Follow IO level signal</source>
        <translation>I/Oレベルに追従</translation>
    </message>
    <message>
        <source>Trigger Cache</source>
        <translation>トリガーバッファー</translation>
    </message>
    <message>
        <source>Key Trigger</source>
        <translation>ボタントリガー</translation>
    </message>
    <message>
        <source>TCP Port</source>
        <translation>TCPポート</translation>
    </message>
    <message>
        <source>Fuzzy Command Matching</source>
        <translation>コマンドあいまい一致</translation>
    </message>
    <message>
        <source>Command Format</source>
        <translation>コマンド形式</translation>
    </message>
    <message>
        <source>Start Trigger Command</source>
        <translation>トリガー開始コマンド</translation>
    </message>
    <message>
        <source>FTP Save Image Command</source>
        <translation>FTP画像保存コマンド</translation>
    </message>
    <message>
        <source>Auto Trigger Interval(ms)</source>
        <translation>自動トリガー間隔(ms)</translation>
    </message>
    <message>
        <source>Sensing Sensitivity</source>
        <translation>検知感度</translation>
    </message>
    <message>
        <source>Sensing Wait Period(ms)</source>
        <translation>検知待ち時間(ms)</translation>
    </message>
    <message>
        <source>Server IP</source>
        <translation>サーバーIP</translation>
    </message>
    <message>
        <source>Server Port</source>
        <translation>サーバーポート</translation>
    </message>
    <message>
        <source>Heartbeat Enable</source>
        <translation>ハートビート有効</translation>
    </message>
    <message>
        <source>Heartbeat Command</source>
        <translation>ハートビートコマンド</translation>
    </message>
    <message>
        <source>Heartbeat Interval(ms)</source>
        <translation>ハートビート間隔(ms)</translation>
    </message>
    <message>
        <source>UDP Port</source>
        <translation>UDPポート</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>ボーレート</translation>
    </message>
    <message>
        <source>Flow Control</source>
        <translation>フロー制御</translation>
    </message>
    <message>
        <source>Stop Bit</source>
        <translation>ストップビット</translation>
    </message>
    <message>
        <source>Parity Bit</source>
        <translation>パリティビット</translation>
    </message>
    <message>
        <source>Data Bit</source>
        <translation>データビット</translation>
    </message>
    <message>
        <source>Stop Condition</source>
        <translation>停止条件</translation>
    </message>
    <message>
        <source>Triggered Frame Count</source>
        <translation>トリガーフレーム数</translation>
    </message>
    <message>
        <source>Trigger Duration(ms)</source>
        <translation>トリガー継続時間(ms)</translation>
    </message>
    <message>
        <source>Decoding Count</source>
        <translation>デコード数</translation>
    </message>
    <message>
        <source>Code Counting Enable</source>
        <translation>コードカウント有効</translation>
    </message>
    <message>
        <source>Stop Trigger Command</source>
        <translation>トリガー停止コマンド</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>ノーマル</translation>
    </message>
    <message>
        <source>String</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>FrameCount</source>
        <translation>フレーム数</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>継続時間</translation>
    </message>
    <message>
        <source>DecodeCount</source>
        <translation>デコード数</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>奇数</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>偶数</translation>
    </message>
    <message>
        <source>RtsCts</source>
        <translation>RTS/CTS</translation>
    </message>
    <message>
        <source>XonXoff</source>
        <translation>XON/XOFF</translation>
    </message>
</context>
<context>
    <name>RecordTable</name>
    <message>
        <source>Filter</source>
        <translation>フィルター</translation>
    </message>
</context>
<context>
    <name>SettingsApplier</name>
    <message>
        <source>not reached</source>
        <translation>未処理</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>拒否されました</translation>
    </message>
    <message>
        <source>cannot be read back</source>
        <translation>読み戻しできません</translation>
    </message>
    <message>
        <source>this camera has no such node</source>
        <translation>このカメラにそのノードはありません</translation>
    </message>
    <message>
        <source>cannot be written in the present mode</source>
        <translation>現在のモードでは書き込めません</translation>
    </message>
    <message>
        <source>the camera no longer answers</source>
        <translation>カメラが応答しなくなりました</translation>
    </message>
    <message>
        <source>this node of the camera is of another type</source>
        <translation>カメラのこのノードは型が異なります</translation>
    </message>
    <message>
        <source>can only be read now (is the camera acquiring?)</source>
        <translation>現在は読み取りのみ可能です（カメラが撮像中ではありませんか？）</translation>
    </message>
    <message>
        <source>the camera holds %1 instead</source>
        <translation>カメラの実際の値は %1 です</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>書き込めません</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>the key %1 is not known</source>
        <translation>キー %1 は不明です</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>this is no file of trigger settings</source>
        <translation>トリガー設定のファイルではありません</translation>
    </message>
    <message>
        <source>the version is %1, and only %2 is known</source>
        <translation>バージョンは %1 ですが、対応しているのは %2 のみです</translation>
    </message>
    <message>
        <source>this node is there twice</source>
        <translation>このノードは重複しています</translation>
    </message>
    <message>
        <source>the type %1 is not known</source>
        <translation>型 %1 は不明です</translation>
    </message>
    <message>
        <source>the value %1 is none of type %2</source>
        <translation>値 %1 は型 %2 の値ではありません</translation>
    </message>
    <message>
        <source>&quot;nodes&quot; is no list</source>
        <translation>「nodes」はリストではありません</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>the name is missing</source>
        <translation>名前がありません</translation>
    </message>
    <message>
        <source>entry %1, %2: %3</source>
        <translation>%1 番目の項目、%2: %3</translation>
    </message>
</context>
<context>
    <name>TrafficModel</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>ノード</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>Duration (µs)</source>
        <translation>所要時間(µs)</translation>
    </message>
</context>
<context>
    <name>TrafficView</name>
    <message>
        <source>Save traffic</source>
        <translation>通信ログの保存</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSVファイル (*.csv)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>Writes only</source>
        <translation>書き込みのみ</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
</context>
<context>
    <name>TriggerConfigWdgImpl</name>
    <message>
        <source>TCP Server</source>
        <translation>TCPサーバー</translation>
    </message>
    <message>
        <source>Auto Trigger</source>
        <translation>自動トリガー</translation>
    </message>
    <message>
        <source>Sensing Trigger</source>
        <translation>検知トリガー</translation>
    </message>
    <message>
        <source>TCP Client</source>
        <translation>TCPクライアント</translation>
    </message>
    <message>
        <source>UDP</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
</context>
<context>
    <name>TriggerStopConfigWdg</name>
    <message>
        <source>Config </source>
        <translation>設定 </translation>
    </message>
</context>
<context>
    <name>VyTriggerConfigWidgetImpl</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Trigger Config</source>
        <translation>トリガー設定</translation>
    </message>
    <message>
        <source>Trigger Stop Config</source>
        <translation>トリガー停止設定</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyBlockWidget</name>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>%1に追加</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyMultiCheckTitleWidget</name>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1を削除</translation>
    </message>
</context>
</TS>
