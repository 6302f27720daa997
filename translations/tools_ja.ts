<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>CameraChooser</name>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Choose a camera</source>
        <translation>カメラの選択</translation>
    </message>
    <message>
        <source>Search by name, model, serial number or connection</source>
        <translation>名前、モデル、シリアル番号、接続で検索</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>カメラを検索</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>カメラを検索中…</translation>
    </message>
    <message>
        <source>Cameras: %1</source>
        <translation>カメラ: %1 台</translation>
    </message>
    <message>
        <source>No camera matches &quot;%1&quot;.</source>
        <translation>「%1」に一致するカメラはありません。</translation>
    </message>
</context>
<context>
    <name>CameraConnection</name>
    <message>
        <source>The camera is not open.</source>
        <translation>カメラが開かれていません。</translation>
    </message>
</context>
<context>
    <name>CameraFinder</name>
    <message>
        <source>Corvix X is not installed completely: the program CvxProducerHost is missing or not executable. Install the package again.</source>
        <translation>Corvix X のインストールが不完全です。プログラム CvxProducerHost が見つからないか、実行できません。パッケージを再インストールしてください。</translation>
    </message>
    <message>
        <source>The camera system cannot be started (error %1).</source>
        <translation>カメラシステムを起動できません (エラー %1)。</translation>
    </message>
    <message>
        <source>The cameras cannot be listed (error %1).</source>
        <translation>カメラの一覧を取得できません (エラー %1)。</translation>
    </message>
</context>
<context>
    <name>CameraPanel</name>
    <message>
        <source>All features (Camera Setup)</source>
        <translation>全フィーチャー (Camera Setup)</translation>
    </message>
    <message>
        <source>Draw on picture</source>
        <translation>画像上で指定</translation>
    </message>
    <message>
        <source>Whole sensor</source>
        <translation>センサー全域</translation>
    </message>
    <message>
        <source>Drag a rectangle over the part of the picture that the camera shall send.</source>
        <translation>カメラから送信する範囲を画像上でドラッグして囲んでください。</translation>
    </message>
    <message>
        <source>You are watching this camera, so nothing can be changed here.</source>
        <translation>このカメラはモニター中のため、設定を変更できません。</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>露光</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>露光時間</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>ゲイン</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Black level and gamma</source>
        <translation>黒レベルとガンマ</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>黒レベル</translation>
    </message>
    <message>
        <source>Apply gamma</source>
        <translation>ガンマを適用</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>係数</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Set the frame rate</source>
        <translation>フレームレートを指定</translation>
    </message>
    <message>
        <source>Line scan</source>
        <translation>ラインスキャン</translation>
    </message>
    <message>
        <source>Set the line rate</source>
        <translation>ラインレートを指定</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>ラインレート</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>ピクセルフォーマット</translation>
    </message>
    <message>
        <source>Region of interest</source>
        <translation>関心領域 (ROI)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>オフセット X</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>オフセット Y</translation>
    </message>
    <message>
        <source>Binning and mirroring</source>
        <translation>ビニングと反転</translation>
    </message>
    <message>
        <source>Horizontal binning</source>
        <translation>水平ビニング</translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation>水平モード</translation>
    </message>
    <message>
        <source>Vertical binning</source>
        <translation>垂直ビニング</translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation>垂直モード</translation>
    </message>
    <message>
        <source>Horizontal decimation</source>
        <translation>水平間引き</translation>
    </message>
    <message>
        <source>Vertical decimation</source>
        <translation>垂直間引き</translation>
    </message>
    <message>
        <source>Mirror horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Activation</source>
        <translation>アクティベーション</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source>Trigger now</source>
        <translation>トリガー実行</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>ユーザーセット</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>電源投入時</translation>
    </message>
    <message>
        <source>Saving replaces what is stored in the camera as &quot;%1&quot;.</source>
        <translation>保存すると、カメラ内の「%1」の内容が上書きされます。</translation>
    </message>
    <message>
        <source>Resulting rate</source>
        <translation>実効レート</translation>
    </message>
    <message>
        <source>Binning location</source>
        <translation>ビニング位置</translation>
    </message>
    <message>
        <source>Trigger type</source>
        <translation>トリガータイプ</translation>
    </message>
</context>
<context>
    <name>CameraTable</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>User-defined name</source>
        <translation>ユーザー定義名</translation>
    </message>
</context>
<context>
    <name>CollapsibleGroup</name>
    <message>
        <source>Expanded group</source>
        <translation>展開されたグループ</translation>
    </message>
    <message>
        <source>Collapsed group</source>
        <translation>折りたたまれたグループ</translation>
    </message>
</context>
<context>
    <name>CommandButton</name>
    <message>
        <source>%1 …</source>
        <translation>%1 …</translation>
    </message>
</context>
<context>
    <name>ConnectionBar</name>
    <message>
        <source>&amp;Watch only</source>
        <translation>モニターのみ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Other camera…</source>
        <translation>別のカメラ(&amp;O)…</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 を開けません。%2</translation>
    </message>
    <message>
        <source>&amp;Take control</source>
        <translation>制御を取得(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>%1 The camera was lost at %2. The program continues by itself when the camera is back.</source>
        <translation>%1 %2 にカメラとの接続が切れました。カメラが復帰すると自動的に再開します。</translation>
    </message>
    <message>
        <source>Shows the settings of the camera and how they change, and its pictures if it sends them to more than one program. Nothing is changed.</source>
        <translation>カメラの設定とその変化を表示します。カメラが複数のプログラムに画像を送信する場合は、画像も表示します。設定は変更しません。</translation>
    </message>
    <message>
        <source>Watching %1: its settings are shown as another program changes them.</source>
        <translation>%1 をモニター中: 他のプログラムによる設定の変更が表示されます。</translation>
    </message>
</context>
<context>
    <name>ContrastHandle</name>
    <message>
        <source>%1: drag it, or use the arrow keys. A double click resets it.</source>
        <translation>%1: ドラッグまたは矢印キーで調整します。ダブルクリックでリセットします。</translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Numbers of the stream</source>
        <translation>ストリームの受信状況</translation>
    </message>
    <message>
        <source>Copies all numbers to the clipboard.</source>
        <translation>すべての数値をクリップボードにコピーします。</translation>
    </message>
    <message>
        <source>Command that corrects the cause</source>
        <translation>原因を解消するコマンド</translation>
    </message>
    <message>
        <source>Copy as te&amp;xt</source>
        <translation>テキストでコピー(&amp;X)</translation>
    </message>
    <message>
        <source>Copy comma&amp;nd</source>
        <translation>コマンドをコピー(&amp;M)</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Mark clipped pixels</source>
        <translation>白飛び・黒つぶれを表示</translation>
    </message>
    <message>
        <source>Pick grey</source>
        <translation>グレー選択</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Fast (bilinear)</source>
        <translation>高速 (バイリニア)</translation>
    </message>
    <message>
        <source>Fine (along edges)</source>
        <translation>高画質 (エッジ適応)</translation>
    </message>
    <message>
        <source>How the missing colours of a Bayer picture are found.</source>
        <translation>Bayer 画像の不足する色を補間する方法。</translation>
    </message>
    <message>
        <source>Shows overexposed pixels in red and underexposed ones in blue.</source>
        <translation>露出オーバーのピクセルを赤、露出アンダーのピクセルを青で表示します。</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source> µm</source>
        <translation> µm</translation>
    </message>
    <message>
        <source>Demosaicing</source>
        <translation>デモザイク</translation>
    </message>
    <message>
        <source>Click on something grey in the picture. Its surroundings become grey on the screen.</source>
        <translation>画像内のグレーの部分をクリックすると、その周辺が画面上で無彩色になるように調整されます。</translation>
    </message>
    <message>
        <source>Reset the white balance</source>
        <translation>ホワイトバランスをリセット</translation>
    </message>
    <message>
        <source>Multiplies the white balance of the camera by these factors.</source>
        <translation>カメラのホワイトバランスにこの係数を乗算します。</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>R %1 G %2 B %3</source>
        <translation>R %1 G %2 B %3</translation>
    </message>
    <message>
        <source>The factors of red, green and blue on the screen.</source>
        <translation>画面表示に使う赤、緑、青の係数。</translation>
    </message>
    <message>
        <source>Write to camera</source>
        <translation>カメラに書き込み</translation>
    </message>
    <message>
        <source>What one pixel shows of the object. Lengths and the scale bar need this number.</source>
        <translation>1 ピクセルに対応する被写体上の寸法。長さとスケールバーの表示に必要です。</translation>
    </message>
    <message>
        <source>Size of a pixel</source>
        <translation>ピクセル実寸</translation>
    </message>
</context>
<context>
    <name>Encoder</name>
    <message>
        <source>ffmpeg cannot be started: %1</source>
        <translation>ffmpeg を起動できません: %1</translation>
    </message>
    <message>
        <source>ffmpeg has failed: %1</source>
        <translation>ffmpeg がエラーで終了しました: %1</translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not accepted an image for %n second(s)</source>
        <translation>
            <numerusform>ffmpeg が %n 秒間画像を受け取っていません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not ended after %n second(s)</source>
        <translation>
            <numerusform>ffmpeg が %n 秒経過しても終了しません</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FeatureEditor</name>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>変更するには、ストリームを一時的に停止する必要があります。</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>停止・設定・再開</translation>
    </message>
</context>
<context>
    <name>EditorNote</name>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
</context>
<context>
    <name>FileNamePattern</name>
    <message>
        <source>name or model of the camera</source>
        <translation>カメラの名前またはモデル</translation>
    </message>
    <message>
        <source>serial number of the camera</source>
        <translation>カメラのシリアル番号</translation>
    </message>
    <message>
        <source>date of the image, for example 2026-01-31</source>
        <translation>画像の日付 (例: 2026-01-31)</translation>
    </message>
    <message>
        <source>time of the image, for example 23-59-59</source>
        <translation>画像の時刻 (例: 23-59-59)</translation>
    </message>
    <message>
        <source>next free number; {number:4} has at least four digits</source>
        <translation>次の空き番号。{number:4} は 4 桁以上</translation>
    </message>
    <message>
        <source>frame ID of the image</source>
        <translation>画像のフレーム ID</translation>
    </message>
    <message>
        <source>pixel format of the image, for example Mono8</source>
        <translation>画像のピクセルフォーマット (例: Mono8)</translation>
    </message>
    <message>
        <source>The name may contain these placeholders:</source>
        <translation>名前に使用できるプレースホルダー:</translation>
    </message>
    <message>
        <source>a brace is missing; placeholders look like {number}</source>
        <translation>波かっこが不足しています。プレースホルダーは {number} のように指定します</translation>
    </message>
    <message>
        <source>the name must not contain &quot;/&quot;; choose the folder above</source>
        <translation>名前に「/」は使用できません。フォルダーは上で選択してください</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>{%1} is not a placeholder; use one of %2</source>
        <translation>{%1} はプレースホルダーではありません。使用できるのは %2 です</translation>
    </message>
    <message>
        <source>{%1} has to be like {number:4}, with 1 to %2 digits</source>
        <translation>{%1} は {number:4} のように 1~%2 桁で指定してください</translation>
    </message>
</context>
<context>
    <name>FilesPanel</name>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>フォルダー(&amp;D)</translation>
    </message>
    <message>
        <source>File &amp;name</source>
        <translation>ファイル名(&amp;N)</translation>
    </message>
    <message>
        <source>PNG, 16 bits</source>
        <translation>PNG、16 ビット</translation>
    </message>
    <message>
        <source>PNG, 8 bits</source>
        <translation>PNG、8 ビット</translation>
    </message>
    <message>
        <source>TIFF, measured values</source>
        <translation>TIFF、元のピクセル値</translation>
    </message>
    <message>
        <source>Raw bytes</source>
        <translation>RAW データ</translation>
    </message>
    <message>
        <source>Saves the values of the picture that is shown, with a sidecar that contains the camera&apos;s settings. Contrast, white balance and marks of the display are not part of the file.</source>
        <translation>表示中の画像のピクセル値を、カメラの設定を記録したサイドカーファイルとともに保存します。表示上のコントラスト、ホワイトバランス、マークはファイルに含まれません。</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画</translation>
    </message>
    <message>
        <source>Format of recordings</source>
        <translation>録画の形式</translation>
    </message>
    <message>
        <source>BigTIFF, measured values</source>
        <translation>BigTIFF、元のピクセル値</translation>
    </message>
    <message>
        <source>Raw bytes with an index</source>
        <translation>RAW データ、インデックス付き</translation>
    </message>
    <message>
        <source>Video, 8 bits, H.264 (MP4)</source>
        <translation>動画、8 ビット、H.264 (MP4)</translation>
    </message>
    <message>
        <source>Video, 8 bits, lossless (MKV)</source>
        <translation>動画、8 ビット、可逆圧縮 (MKV)</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>自動停止</translation>
    </message>
    <message>
        <source> images</source>
        <translation> 枚</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Keep free</source>
        <translation>最小空き容量</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
    <message>
        <source>Stops the recording before less space than this is left on the disk.</source>
        <translation>ディスクの空き容量がこの値を下回る前に録画を停止します。</translation>
    </message>
    <message>
        <source>Play at</source>
        <translation>再生速度</translation>
    </message>
    <message>
        <source> images/s</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Images per second when the video is played. Otherwise, it plays as fast as it was recorded.</source>
        <translation>動画再生時の 1 秒あたりの画像数。指定しない場合は、録画時と同じ速度で再生されます。</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>例: %1</translation>
    </message>
    <message>
        <source>Videos need the program ffmpeg, which is not installed. Install it with: %1</source>
        <translation>動画の録画に必要な ffmpeg がインストールされていません。次のコマンドでインストールしてください: %1</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>録画(&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;top recording</source>
        <translation>録画を停止(&amp;T)</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>書き込み中…</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>「%1」に保存しました。</translation>
    </message>
    <message>
        <source>The folder for snapshots and recordings.</source>
        <translation>スナップショットと録画の保存先フォルダー。</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>選択(&amp;E)…</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Format of snapshots</source>
        <translation>スナップショットの形式</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>スナップショットを保存(&amp;S)</translation>
    </message>
    <message>
        <source>Folder for snapshots and recordings</source>
        <translation>スナップショットと録画の保存先フォルダー</translation>
    </message>
    <message>
        <source>This name cannot be used: %1.</source>
        <translation>この名前は使用できません: %1。</translation>
    </message>
    <message>
        <source>The camera is lost; the recording goes on when the camera is back. %1</source>
        <translation>カメラとの接続が切れました。復帰すると録画を再開します。%1</translation>
    </message>
</context>
<context>
    <name>FindingCard</name>
    <message>
        <source>In order</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copies the command, which you can paste into a terminal.</source>
        <translation>コマンドをコピーします。ターミナルに貼り付けて実行できます。</translation>
    </message>
</context>
<context>
    <name>HistogramWidget</name>
    <message>
        <source>&lt; %1 %</source>
        <translation>&lt; %1 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Black point</source>
        <translation>黒点</translation>
    </message>
    <message>
        <source>White point</source>
        <translation>白点</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>ヒストグラム</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>Value %1
%2</source>
        <translation>値 %1
%2</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>画像がありません。</translation>
    </message>
    <message>
        <source>%1 underexposed, %2 overexposed</source>
        <translation>黒つぶれ %1、白飛び %2</translation>
    </message>
    <message>
        <source>%1 dark</source>
        <translation>黒つぶれ %1</translation>
    </message>
    <message>
        <source>%1 bright</source>
        <translation>白飛び %1</translation>
    </message>
</context>
<context>
    <name>ImageCanvas</name>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>No picture yet</source>
        <translation>画像未受信</translation>
    </message>
    <message>
        <source>%1 by %2 pixels, shown at %3 %</source>
        <translation>%1 × %2 ピクセル、表示倍率 %3 %</translation>
    </message>
</context>
<context>
    <name>LengthText</name>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>%1 µm</source>
        <translation>%1 µm</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
</context>
<context>
    <name>LiveStream</name>
    <message>
        <source>The stream of the camera has ended.</source>
        <translation>カメラのストリームが終了しました。</translation>
    </message>
</context>
<context>
    <name>LockText</name>
    <message>
        <source>Not available at present.</source>
        <translation>現在は使用できません。</translation>
    </message>
    <message>
        <source>Not available while %1 is %2.</source>
        <translation>%1 が %2 のときは使用できません。</translation>
    </message>
    <message>
        <source>Locked by the camera.</source>
        <translation>カメラによりロックされています。</translation>
    </message>
    <message>
        <source>Controlled by %1.</source>
        <translation>%1 により制御されています。</translation>
    </message>
    <message>
        <source>Locked while %1 is %2.</source>
        <translation>%1 が %2 のときは変更できません。</translation>
    </message>
    <message>
        <source>This camera does not have the feature.</source>
        <translation>このカメラにはこのフィーチャーがありません。</translation>
    </message>
    <message>
        <source>The camera only reports this value.</source>
        <translation>読み取り専用の値です。</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>モニター中のため変更できません。</translation>
    </message>
    <message>
        <source>Locked while the camera streams.</source>
        <translation>ストリーミング中は変更できません。</translation>
    </message>
    <message>
        <source>Not available because of the setting of %1.</source>
        <translation>%1 の設定により使用できません。</translation>
    </message>
</context>
<context>
    <name>LossAdvice</name>
    <message>
        <source>Packets are lost between camera and computer: check cable and switch, or reduce the frame rate or the region.</source>
        <translation>カメラと PC の間でパケットが失われています。ケーブルとスイッチを確認するか、フレームレートを下げるか ROI を縮小してください。</translation>
    </message>
    <message>
        <source>Transfers are lost between camera and computer: check the cable, connect the camera without a hub, or reduce the frame rate or the region.</source>
        <translation>カメラと PC の間で転送データが失われています。ケーブルを確認する、ハブを介さずに接続する、フレームレートを下げる、ROI を縮小する、のいずれかを行ってください。</translation>
    </message>
    <message>
        <source>The connection or the computer is too slow: reduce the frame rate or the region, or close other programs.</source>
        <translation>接続または PC の速度が不足しています。フレームレートを下げるか、ROI を縮小するか、他のプログラムを終了してください。</translation>
    </message>
    <message numerus="yes">
        <source>No buffer was free for %n image(s). This computer is too slow at present: close other programs, record to a faster disk, or reduce the frame rate or the region.</source>
        <translation>
            <numerusform>空きバッファーがないため、画像 %n 枚が失われました。PC の処理が追いついていません。他のプログラムを終了する、より高速なディスクに録画する、フレームレートを下げる、ROI を縮小する、のいずれかを行ってください。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were lost or damaged in the last seconds.</source>
        <translation>
            <numerusform>直近の数秒間に画像 %n 枚が欠落または破損しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were incomplete in the last seconds.</source>
        <translation>
            <numerusform>直近の数秒間に不完全な画像が %n 枚ありました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MeasuredComponent</name>
    <message>
        <source>Grey</source>
        <translation>グレー</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>アルファ</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>輝度</translation>
    </message>
    <message>
        <source>Cb</source>
        <translation>Cb</translation>
    </message>
    <message>
        <source>Cr</source>
        <translation>Cr</translation>
    </message>
    <message>
        <source>First</source>
        <translation>第 1</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>第 2</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>第 3</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation>第 4</translation>
    </message>
</context>
<context>
    <name>MeasuringPanel</name>
    <message>
        <source>The picture has no colours to balance.</source>
        <translation>カラー画像ではないため、ホワイトバランスを調整できません。</translation>
    </message>
    <message>
        <source>This place is too dark for a white balance. Pick a brighter one.</source>
        <translation>この位置は暗すぎてホワイトバランスを調整できません。より明るい位置を選択してください。</translation>
    </message>
    <message>
        <source>This place is overexposed. Pick a darker one, or reduce the exposure.</source>
        <translation>この位置は露出オーバーです。より暗い位置を選択するか、露光時間を短くしてください。</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>対数</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>画像全体</translation>
    </message>
    <message>
        <source>Drawn region</source>
        <translation>指定領域</translation>
    </message>
    <message>
        <source>Measured area</source>
        <translation>計測範囲</translation>
    </message>
    <message>
        <source>Where histogram and statistics are measured. Draw a region in the picture to measure it.</source>
        <translation>ヒストグラムと統計の計測範囲。画像上で領域を指定すると、その領域を計測できます。</translation>
    </message>
    <message>
        <source>Shows the histogram logarithmically, so that rare values can be seen.</source>
        <translation>ヒストグラムを対数で表示し、頻度の低い値も見えるようにします。</translation>
    </message>
    <message>
        <source>Fit contrast</source>
        <translation>自動コントラスト</translation>
    </message>
    <message>
        <source>Spreads the values of the picture from black to white. Only the display changes.</source>
        <translation>画像の値を黒から白の範囲に引き伸ばします。変わるのは表示だけです。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Reset the contrast</source>
        <translation>コントラストをリセット</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>ヒストグラム</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copies the statistics to the clipboard, for a table.</source>
        <translation>統計を表形式でクリップボードにコピーします。</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>The pixel format is not known, so bytes are measured.</source>
        <translation>未知のピクセルフォーマットのため、バイト単位で計測しています。</translation>
    </message>
</context>
<context>
    <name>NoCameraPage</name>
    <message>
        <source>Connect a camera and switch it on. It appears here by itself.</source>
        <translation>カメラを接続して電源を入れてください。自動的にここに表示されます。</translation>
    </message>
    <message>
        <source>Show what is in order, too</source>
        <translation>正常な項目も表示</translation>
    </message>
    <message>
        <source>The checks are running</source>
        <translation>診断中です</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>診断結果</translation>
    </message>
    <message>
        <source>Checking producers, network, GigE and USB. This takes some seconds.</source>
        <translation>プロデューサー、ネットワーク、GigE、USB を診断しています。数秒かかります。</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>再診断(&amp;G)</translation>
    </message>
    <message>
        <source>No camera found</source>
        <translation>カメラが見つかりません</translation>
    </message>
    <message>
        <source>The checks have found no problem.</source>
        <translation>診断の結果、問題は見つかりませんでした。</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>見つかった問題: %1 件</translation>
    </message>
</context>
<context>
    <name>NumberEditor</name>
    <message>
        <source>The nearest value that the camera allows is %1.</source>
        <translation>カメラが許容する最も近い値は %1 です。</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 ~ %2 %3</translation>
    </message>
    <message>
        <source>%1, in steps of %2</source>
        <translation>%1、ステップ %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>「%1」は数値ではありません。</translation>
    </message>
</context>
<context>
    <name>PictureReadout</name>
    <message>
        <source>x %1, y %2</source>
        <translation>x %1, y %2</translation>
    </message>
    <message>
        <source>raw %1</source>
        <translation>元の値 %1</translation>
    </message>
    <message>
        <source>shown %1</source>
        <translation>表示 %1</translation>
    </message>
    <message>
        <source>unknown pixel format, byte %1</source>
        <translation>未知のピクセルフォーマット、バイト %1</translation>
    </message>
</context>
<context>
    <name>ProfileBox</name>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Drawn line</source>
        <translation>指定ライン</translation>
    </message>
    <message>
        <source>Line of the profile</source>
        <translation>プロファイルのライン</translation>
    </message>
    <message>
        <source>Row and column are those of the pointer in the picture.</source>
        <translation>行と列は、画像上のポインター位置のものです。</translation>
    </message>
    <message>
        <source>Line profile</source>
        <translation>ラインプロファイル</translation>
    </message>
</context>
<context>
    <name>ProfileWidget</name>
    <message>
        <source>Line profile</source>
        <translation>ラインプロファイル</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Pixel %1
%2</source>
        <translation>ピクセル %1
%2</translation>
    </message>
    <message>
        <source>There is no line to measure.</source>
        <translation>計測するラインがありません。</translation>
    </message>
</context>
<context>
    <name>RateGraph</name>
    <message>
        <source>Images per second and losses of the last minute</source>
        <translation>直近 1 分間のフレームレートと欠落</translation>
    </message>
    <message>
        <source>60 s ago</source>
        <translation>60 秒前</translation>
    </message>
    <message>
        <source>30 s ago</source>
        <translation>30 秒前</translation>
    </message>
    <message>
        <source>now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Images/s</source>
        <translation>画像/秒</translation>
    </message>
    <message>
        <source>Lost or incomplete/s</source>
        <translation>欠落・不完全/秒</translation>
    </message>
</context>
<context>
    <name>RecordingControl</name>
    <message>
        <source>no pictures arrive; start the live picture first</source>
        <translation>画像を受信していません。先にライブ表示を開始してください</translation>
    </message>
    <message>
        <source>the camera was closed</source>
        <translation>カメラが閉じられました</translation>
    </message>
    <message>
        <source>The recording ended because the limit of free space was reached.</source>
        <translation>空き容量が下限に達したため録画を終了しました。</translation>
    </message>
</context>
<context>
    <name>RecordingSummary</name>
    <message>
        <source>The recording did not begin: %1.</source>
        <translation>録画を開始できませんでした: %1。</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) recorded in %1 to &quot;%2&quot;.</source>
        <translation>
            <numerusform>画像 %n 枚を「%2」に録画しました (%1)。</numerusform>
        </translation>
    </message>
    <message>
        <source>The recording ended early: %1.</source>
        <translation>録画が途中で終了しました: %1。</translation>
    </message>
    <message>
        <source>No image is missing.</source>
        <translation>画像の欠落はありません。</translation>
    </message>
    <message>
        <source>The image format changed during the recording; the file describes each image.</source>
        <translation>録画中に画像形式が変わりました。各画像の形式はファイルに記録されています。</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) never arrived from the camera</source>
        <translation>
            <numerusform>カメラから届かなかった画像 %n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) found no free buffer</source>
        <translation>
            <numerusform>空きバッファーがなく失われた画像 %n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be kept because the disk or the encoder is too slow</source>
        <translation>
            <numerusform>ディスクまたはエンコーダーの速度不足で保持できなかった画像 %n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be written</source>
        <translation>
            <numerusform>書き込めなかった画像 %n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n recorded image(s) are incomplete</source>
        <translation>
            <numerusform>録画された不完全な画像 %n 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>; </source>
        <comment>between parts of a list</comment>
        <translation>; </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s)</source>
        <translation>
            <numerusform>%n 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>disk space</comment>
        <translation>空き %1</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) waiting</source>
        <translation>
            <numerusform>書き込み待ち %n 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost for a while.</source>
        <translation>カメラの接続が一時切れました。</translation>
    </message>
    <message>
        <source>Lost or incomplete: %1.</source>
        <translation>欠落・不完全: %1。</translation>
    </message>
</context>
<context>
    <name>RegionCall</name>
    <message>
        <source>The camera does not report its region.</source>
        <translation>カメラの ROI を取得できません。</translation>
    </message>
    <message>
        <source>The camera&apos;s region has changed since it was drawn. Draw it again on the present picture.</source>
        <translation>領域の指定後にカメラの ROI が変更されました。現在の画像上で指定し直してください。</translation>
    </message>
</context>
<context>
    <name>ShortcutPage</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>What they do</source>
        <translation>動作</translation>
    </message>
</context>
<context>
    <name>SnapshotSaver</name>
    <message>
        <source>There is no picture to save yet.</source>
        <translation>保存できる画像がまだありません。</translation>
    </message>
    <message>
        <source>The snapshot was not saved: %1.</source>
        <translation>スナップショットを保存できませんでした: %1。</translation>
    </message>
    <message>
        <source>The snapshot was not saved, because earlier ones still wait for the disk.</source>
        <translation>先のスナップショットがディスクへの書き込み待ちのため、保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>StatisticsTable</name>
    <message>
        <source>Component</source>
        <translation>成分</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>ピクセル数</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>標準偏差</translation>
    </message>
</context>
<context>
    <name>StatusNumbers</name>
    <message>
        <source>Images per second and image data per second that arrive from the camera.</source>
        <translation>カメラから受信する 1 秒あたりの画像数とデータ量。</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>表示、計測、録画に使われている画像を保持しているバッファー。すべて使用中になると画像が失われます。</translation>
    </message>
    <message>
        <source>Buffers: %1</source>
        <translation>バッファー: %1</translation>
    </message>
    <message>
        <source>No losses</source>
        <translation>欠落なし</translation>
    </message>
    <message>
        <source>What was lost since the camera was opened.</source>
        <translation>カメラを開いてからの欠落。</translation>
    </message>
</context>
<context>
    <name>StreamNumbers</name>
    <message>
        <source>Delivered</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>Images that arrived from the camera.</source>
        <translation>カメラから受信した画像。</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Images that were drawn in the window.</source>
        <translation>ウィンドウに描画された画像。</translation>
    </message>
    <message>
        <source>Skipped for display</source>
        <translation>表示スキップ</translation>
    </message>
    <message>
        <source>Images that were not drawn because the screen is slower than the camera. They are not lost: recordings contain them.</source>
        <translation>画面の更新がカメラより遅いため描画されなかった画像。欠落ではなく、録画には含まれます。</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>不完全</translation>
    </message>
    <message>
        <source>Delivered images with missing data.</source>
        <translation>受信した画像のうち、データが不足しているもの。</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>欠落</translation>
    </message>
    <message>
        <source>Images that never arrived, by gaps in the frame IDs.</source>
        <translation>届かなかった画像 (フレーム ID の抜けから算出)。</translation>
    </message>
    <message>
        <source>Underruns</source>
        <translation>アンダーラン</translation>
    </message>
    <message>
        <source>Images that were lost because no buffer was free: this computer was too slow.</source>
        <translation>空きバッファーがなく失われた画像。PC の処理が追いついていません。</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Images per second during the last second.</source>
        <translation>直近 1 秒間の画像数。</translation>
    </message>
    <message>
        <source>Data rate</source>
        <translation>データレート</translation>
    </message>
    <message>
        <source>Image data per second during the last second.</source>
        <translation>直近 1 秒間の画像データ量。</translation>
    </message>
    <message>
        <source>Buffers in use</source>
        <translation>使用中のバッファー</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>表示、計測、録画に使われている画像を保持しているバッファー。すべて使用中になると画像が失われます。</translation>
    </message>
    <message>
        <source>Link speed</source>
        <translation>リンク速度</translation>
    </message>
    <message>
        <source>Speed of the connection that the camera reports.</source>
        <translation>カメラが報告する接続速度。</translation>
    </message>
    <message>
        <source>Packet size</source>
        <translation>パケットサイズ</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>Size of the packets of a GigE camera.</source>
        <translation>GigE カメラのパケットサイズ。</translation>
    </message>
    <message>
        <source>Resent packets</source>
        <translation>再送パケット</translation>
    </message>
    <message>
        <source>Packets that the camera has sent a second time because they were lost.</source>
        <translation>失われたためカメラが再送したパケット。</translation>
    </message>
    <message>
        <source>Continued after a loss</source>
        <translation>切断後の再開</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>rate and data rate</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>欠落 %1</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>不完全 %1</translation>
    </message>
    <message>
        <source>no stream</source>
        <translation>ストリームなし</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>buffers</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name and value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 images/s</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/s</translation>
    </message>
    <message>
        <source>%1 Mbit/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>not reported</source>
        <translation>情報なし</translation>
    </message>
    <message>
        <source>How often the camera was lost and the stream went on when it was back.</source>
        <translation>カメラの切断後、復帰によりストリームが再開した回数。</translation>
    </message>
    <message>
        <source>%1 underruns</source>
        <translation>アンダーラン %1</translation>
    </message>
</context>
<context>
    <name>ThumbnailStrip</name>
    <message>
        <source>%1
%2 · %3</source>
        <comment>name, size and time of a file</comment>
        <translation>%1
%2 · %3</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Copy path</source>
        <translation>パスをコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist any more.</source>
        <translation>「%1」はもう存在しません。</translation>
    </message>
    <message>
        <source>No program of this desktop opens &quot;%1&quot;.</source>
        <translation>「%1」を開けるプログラムがありません。</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and its sidecar?</source>
        <translation>「%1」とそのサイドカーファイルを削除しますか?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: %2.</source>
        <translation>「%1」を削除できません: %2。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>フォルダーを開く(&amp;F)</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Delete snapshot</source>
        <translation>スナップショットの削除</translation>
    </message>
</context>
<context>
    <name>ToolStarter</name>
    <message>
        <source>%1 cannot be started. Check that the file exists and is executable.</source>
        <translation>%1 を起動できません。ファイルが存在し、実行可能であることを確認してください。</translation>
    </message>
</context>
<context>
    <name>ToolWindow</name>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>&amp;Other camera…</source>
        <translation>別のカメラ(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>ガイド(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>%1 について(&amp;A)</translation>
    </message>
    <message>
        <source>The guide cannot be opened: %1</source>
        <translation>ガイドを開けません: %1</translation>
    </message>
    <message>
        <source>%1 of Corvix X, version %2.

For industrial cameras of any vendor. MIT licence.</source>
        <translation>Corvix X %1 バージョン %2

あらゆるベンダーの産業用カメラに対応。MIT ライセンス。</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>カメラを検索中…</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 を開いています…</translation>
    </message>
</context>
<context>
    <name>VideoWriter</name>
    <message>
        <source>videos need the program ffmpeg, which is not installed; install it with: %1</source>
        <translation>動画の録画に必要な ffmpeg がインストールされていません。次のコマンドでインストールしてください: %1</translation>
    </message>
    <message>
        <source>the images are too small for a video</source>
        <translation>画像が小さすぎるため動画にできません</translation>
    </message>
    <message>
        <source>the format of the images has changed, which a video cannot contain; start another recording</source>
        <translation>画像形式が変わったため、同じ動画に録画できません。新しい録画を開始してください</translation>
    </message>
</context>
<context>
    <name>ViewerActions</name>
    <message>
        <source>&amp;Live</source>
        <translation>ライブ(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>スナップショットを保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>録画(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Crosshair</source>
        <translation>十字線(&amp;C)</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>全画面表示(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation>新しいウィンドウ(&amp;N)</translation>
    </message>
    <message>
        <source>All &amp;features (Camera Setup)</source>
        <translation>全フィーチャー (Camera Setup)(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Fit into the window</source>
        <translation>ウィンドウに合わせる(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>等倍表示(&amp;A)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>左に回転(&amp;L)</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>右に回転(&amp;R)</translation>
    </message>
    <message>
        <source>Mirror &amp;horizontally</source>
        <translation>左右反転(&amp;H)</translation>
    </message>
    <message>
        <source>Mirror &amp;vertically</source>
        <translation>上下反転(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Move the picture</source>
        <translation>画像を移動(&amp;M)</translation>
    </message>
    <message>
        <source>Draw a re&amp;gion</source>
        <translation>領域を指定(&amp;G)</translation>
    </message>
    <message>
        <source>+, -</source>
        <translation>+, -</translation>
    </message>
    <message>
        <source>Zoom in or out</source>
        <translation>拡大 / 縮小</translation>
    </message>
    <message>
        <source>0, 1</source>
        <translation>0, 1</translation>
    </message>
    <message>
        <source>Fit the picture, or show it at its own size</source>
        <translation>ウィンドウに合わせる / 等倍表示</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>矢印キー</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Remove the drawn region or line</source>
        <translation>指定した領域またはラインを削除</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>ホイール</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>ポインター位置を中心にズーム</translation>
    </message>
    <message>
        <source>Move the picture, whatever the tool</source>
        <translation>ツールに関係なく画像を移動</translation>
    </message>
    <message>
        <source>Double click</source>
        <translation>ダブルクリック</translation>
    </message>
    <message>
        <source>Change between the fitted picture and its own size</source>
        <translation>ウィンドウに合わせた表示と等倍表示を切り替え</translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>フリーズ(&amp;Z)</translation>
    </message>
    <message>
        <source>Mark clipped &amp;pixels</source>
        <translation>白飛び・黒つぶれを表示(&amp;P)</translation>
    </message>
    <message>
        <source>Gri&amp;d</source>
        <translation>グリッド(&amp;D)</translation>
    </message>
    <message>
        <source>Draw a li&amp;ne</source>
        <translation>ラインを指定(&amp;N)</translation>
    </message>
    <message>
        <source>Move the picture; in larger steps with Shift</source>
        <translation>画像を移動 (Shift で大きく移動)</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Draw a region or a line in the middle</source>
        <translation>中央に領域またはラインを指定</translation>
    </message>
    <message>
        <source>Ctrl and arrow keys</source>
        <translation>Ctrl + 矢印キー</translation>
    </message>
    <message>
        <source>Move the drawn region or line; resize it with Shift</source>
        <translation>指定した領域またはラインを移動 (Shift でサイズ変更)</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Finish the region for the camera</source>
        <translation>カメラの送信領域を確定</translation>
    </message>
    <message>
        <source>Middle button, or Space and drag</source>
        <translation>中ボタンまたは Space + ドラッグ</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Image Viewer</source>
        <translation>Image Viewer</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>計測</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>パネル(&amp;P)</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Pixel under the pointer</source>
        <translation>ポインター位置のピクセル</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>カメラから画像が送信されていません。%1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off in the panel &quot;Camera&quot;.</source>
        <translation>カメラはトリガー待ちです。トリガーを送るか、「カメラ」パネルでトリガーモードをオフにしてください。</translation>
    </message>
    <message>
        <source>Draw the region that the camera shall send.</source>
        <translation>カメラから送信する領域を指定してください。</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>ストリーム</translation>
    </message>
    <message>
        <source>The stream is stopped. Press %1 to start it.</source>
        <translation>ストリームは停止しています。%1 キーで開始します。</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The panel &quot;Stream&quot; may say why.</source>
        <translation>画像をまだ受信していません。「ストリーム」パネルで原因を確認できる場合があります。</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The program that controls the camera may not stream.</source>
        <translation>まだ画像を受信していません。カメラを制御しているプログラムがストリームを開始していない可能性があります。</translation>
    </message>
</context>
<context>
    <name>WhiteBalanceCall</name>
    <message>
        <source>The camera has no white balance ratios.</source>
        <translation>このカメラにはホワイトバランスの係数がありません。</translation>
    </message>
</context>
</TS>
