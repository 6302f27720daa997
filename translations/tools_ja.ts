<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AssistantWindow</name>
    <message>
        <source>The result was saved to &quot;%1&quot;.</source>
        <translation>結果を「%1」に保存しました。</translation>
    </message>
    <message>
        <source>Press F5 to see the live picture.</source>
        <translation>F5 キーでライブ画像を表示します。</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>結果(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Live picture</source>
        <translation>ライブ画像(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>Image Viewer で開く(&amp;I)</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Cancel the measurement</source>
        <translation>計測をキャンセル</translation>
    </message>
</context>
<context>
    <name>BigNumber</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
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
    <name>CameraSettings</name>
    <message>
        <source>Camera settings</source>
        <translation>カメラの設定</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>This camera now</source>
        <translation>このカメラ (現在)</translation>
    </message>
    <message>
        <source>Reading the settings of this camera</source>
        <translation>このカメラの設定を読み取り中</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>このカメラの制御を取得していません。</translation>
    </message>
    <message>
        <source>Copying to this camera</source>
        <translation>このカメラにコピー中</translation>
    </message>
    <message>
        <source>Copy of differences</source>
        <translation>差分のコピー</translation>
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
    <name>ChangeHistory</name>
    <message>
        <source>Undo: %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>The value of %1 before the change is unknown.</source>
        <translation>%1 の変更前の値は不明です。</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>やり直す: %1</translation>
    </message>
    <message>
        <source>%1 cannot be changed while the camera is streaming.</source>
        <translation>%1 はストリーミング中は変更できません。</translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation>キャンセルされました。</translation>
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
    <name>ComparePanel</name>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Swap the sides</source>
        <translation>左右を入れ替え</translation>
    </message>
    <message>
        <source>Reads both sides again.</source>
        <translation>左右の設定を再度読み取ります。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Compare settings</source>
        <translation>設定の比較</translation>
    </message>
    <message>
        <source>&amp;Load the user set</source>
        <translation>ユーザーセットを読み込む(&amp;L)</translation>
    </message>
    <message>
        <source>Compare with a file</source>
        <translation>比較するファイルの選択</translation>
    </message>
    <message>
        <source>Settings files (*.txt *.pfs *.features);;All files (*)</source>
        <translation>設定ファイル (*.txt *.pfs *.features);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Writes settings of the left side to the right side.</source>
        <translation>左側の設定を右側に書き込みます。</translation>
    </message>
    <message>
        <source>The settings are being read.</source>
        <translation>設定を読み取っています。</translation>
    </message>
    <message>
        <source>Choose two sides that can be read.</source>
        <translation>読み取り可能な比較対象を左右に選択してください。</translation>
    </message>
    <message>
        <source>Copy to the ri&amp;ght</source>
        <translation>右にコピー(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>更新(&amp;F)</translation>
    </message>
</context>
<context>
    <name>CompareSession</name>
    <message>
        <source>Reading: %1</source>
        <translation>読み取り中: %1</translation>
    </message>
    <message>
        <source>Copying to: %1</source>
        <translation>%1 にコピー中</translation>
    </message>
</context>
<context>
    <name>CompareSides</name>
    <message>
        <source>User set %1</source>
        <translation>ユーザーセット %1</translation>
    </message>
    <message>
        <source>This camera now</source>
        <translation>このカメラ (現在)</translation>
    </message>
    <message>
        <source>This camera at opening</source>
        <translation>このカメラ (開いた時点)</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>カメラ %1</translation>
    </message>
</context>
<context>
    <name>ComparisonCounts</name>
    <message numerus="yes">
        <source>No difference in %n setting(s).</source>
        <translation>
            <numerusform>設定 %n 件に差分はありません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 setting(s) differ.</source>
        <translation>
            <numerusform>設定 %1 件中 %n 件が異なります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) belong to one camera or one moment.</source>
        <translation>
            <numerusform>ほかに、カメラ個体または時点に固有の差分が %n 件あります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) that belong to one camera or one moment are hidden.</source>
        <translation>
            <numerusform>ほかに、カメラ個体または時点に固有の差分 %n 件が非表示になっています。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ComparisonReport</name>
    <message>
        <source>(missing)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>belongs to one camera or one moment</source>
        <translation>カメラ個体または時点に固有</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>一致</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>フィーチャー</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Comparison of camera settings</source>
        <translation>カメラ設定の比較</translation>
    </message>
    <message>
        <source>Left: %1, %2</source>
        <translation>左: %1、%2</translation>
    </message>
    <message>
        <source>Right: %1, %2</source>
        <translation>右: %1、%2</translation>
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
    <name>CopyActions</name>
    <message>
        <source>&amp;Selected differences</source>
        <translation>選択した差分(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Checked differences</source>
        <translation>チェックした差分(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;All differences</source>
        <translation>すべての差分(&amp;A)</translation>
    </message>
    <message>
        <source>Copy differences</source>
        <translation>差分のコピー</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>書き込み(&amp;W)</translation>
    </message>
    <message>
        <source>Nothing was copied: %1</source>
        <translation>何もコピーされませんでした: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were copied.</source>
        <translation>
            <numerusform>設定 %n 件をコピーしました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The copy was cancelled.</source>
        <translation>コピーはキャンセルされました。</translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s) were reported.</source>
        <translation>
            <numerusform>%n 件の問題が報告されました。</numerusform>
        </translation>
    </message>
    <message>
        <source>What could not be copied or put back:</source>
        <translation>コピーまたは復元できなかった項目:</translation>
    </message>
    <message>
        <source>The copy failed partway: %1</source>
        <translation>コピーの途中でエラーが発生しました: %1</translation>
    </message>
</context>
<context>
    <name>CorrectionDialog</name>
    <message>
        <source>&amp;Correct the pictures</source>
        <translation>画像を補正(&amp;C)</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>補正</translation>
    </message>
    <message>
        <source>&amp;Defect map:</source>
        <translation>欠陥マップ(&amp;D):</translation>
    </message>
    <message>
        <source>Choose a defect map</source>
        <translation>欠陥マップの選択</translation>
    </message>
    <message>
        <source>Defect maps (*.json *.csv);;All files (*)</source>
        <translation>欠陥マップ (*.json *.csv);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>&amp;Flat field:</source>
        <translation>フラットフィールド(&amp;F):</translation>
    </message>
    <message>
        <source>Choose a flat field</source>
        <translation>フラットフィールドの選択</translation>
    </message>
    <message>
        <source>Flat fields (*.tif *.tiff);;All files (*)</source>
        <translation>フラットフィールド (*.tif *.tiff);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>The correction applies to the shown pictures, to PNG and TIFF files and to TIFF recordings. Raw files, videos and measured values stay those of the camera.</source>
        <translation>補正は、表示画像、PNG および TIFF ファイル、TIFF 録画に適用されます。RAW ファイル、動画、計測値には、カメラの元の値が使われます。</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>The pictures are not corrected: %1.</source>
        <translation>画像を補正できません: %1。</translation>
    </message>
    <message>
        <source>The pictures are corrected.</source>
        <translation>画像を補正しています。</translation>
    </message>
</context>
<context>
    <name>DarkBox</name>
    <message>
        <source>Cover the lens, and choose a long exposure and a pixel format with many bits in the camera settings. Then measure while the camera warms up.</source>
        <translation>レンズを遮光し、カメラの設定で長い露光時間とビット数の多いピクセルフォーマットを選択してください。その後、カメラのウォームアップ中に計測します。</translation>
    </message>
    <message>
        <source>Stop measuring the &amp;dark level</source>
        <translation>暗時レベルの計測を停止(&amp;D)</translation>
    </message>
    <message>
        <source>Measure the &amp;dark level</source>
        <translation>暗時レベルを計測(&amp;D)</translation>
    </message>
</context>
<context>
    <name>DefectList</name>
    <message>
        <source>Columns %1 to %2, lines %3 to %4</source>
        <translation>列 %1~%2、行 %3~%4</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>偏差</translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s)</source>
        <translation>
            <numerusform>%n ピクセル</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 σ</source>
        <translation>%1 σ</translation>
    </message>
</context>
<context>
    <name>DefectTexts</name>
    <message>
        <source>Hot</source>
        <translation>ホット</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>デッド</translation>
    </message>
    <message>
        <source>Stuck</source>
        <translation>固定値</translation>
    </message>
    <message>
        <source>Blinking</source>
        <translation>点滅</translation>
    </message>
    <message>
        <source>Deviating</source>
        <translation>感度異常</translation>
    </message>
    <message>
        <source>Too bright in the dark.</source>
        <translation>暗時に明るすぎます。</translation>
    </message>
    <message>
        <source>Hardly reacts to light.</source>
        <translation>光にほとんど反応しません。</translation>
    </message>
    <message>
        <source>Always has the same value.</source>
        <translation>値が常に一定です。</translation>
    </message>
    <message>
        <source>Changes between levels from image to image.</source>
        <translation>画像ごとに値の水準が変動します。</translation>
    </message>
    <message>
        <source>Reacts to light much more or less than its neighbours.</source>
        <translation>光に対する感度が周辺ピクセルと大きく異なります。</translation>
    </message>
    <message>
        <source>Cluster</source>
        <translation>クラスター</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列欠陥</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行欠陥</translation>
    </message>
    <message>
        <source>No defect pixels were found.</source>
        <translation>欠陥ピクセルは見つかりませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n defect pixel(s) found.</source>
        <translation>
            <numerusform>欠陥ピクセルが %n 個見つかりました。</numerusform>
        </translation>
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
    <name>DetailsPane</name>
    <message>
        <source>All values side by side</source>
        <translation>すべての値を一覧表示</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Set back</source>
        <translation>値を戻す</translation>
    </message>
    <message>
        <source>Writes the value that the camera had when it was opened.</source>
        <translation>カメラを開いた時点の値を書き込みます。</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>At opening: %1</source>
        <translation>開いた時点: %1</translation>
    </message>
    <message>
        <source>As it was when the camera was opened</source>
        <translation>カメラを開いた時点と同じ</translation>
    </message>
    <message>
        <source>Select a feature to see what the camera says about it.</source>
        <translation>フィーチャーを選択すると、カメラが提供する情報が表示されます。</translation>
    </message>
    <message>
        <source>Copy the name used in programs</source>
        <translation>プログラム用の名前をコピー</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1; left: %2; right: %3</source>
        <translation>%1、左: %2、右: %3</translation>
    </message>
    <message>
        <source>(missing)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>%1
This value belongs to one camera or one moment.</source>
        <translation>%1
この値はカメラ個体または時点に固有です。</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>フィーチャー</translation>
    </message>
</context>
<context>
    <name>DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>差分</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search the differences</source>
        <translation>差分を検索</translation>
    </message>
    <message>
        <source>Also e&amp;qual</source>
        <translation>一致も表示(&amp;Q)</translation>
    </message>
    <message>
        <source>Shows the settings that both sides have in common too.</source>
        <translation>左右で一致している設定も表示します。</translation>
    </message>
    <message>
        <source>Also those of one camera or one &amp;moment</source>
        <translation>個体・時点に固有の差分も表示(&amp;M)</translation>
    </message>
    <message>
        <source>Shows values that differ between cameras with the same settings too: serial numbers, temperatures, counters.</source>
        <translation>設定が同じでもカメラごとに異なる値 (シリアル番号、温度、カウンターなど) も表示します。</translation>
    </message>
    <message>
        <source>There is no difference to show.</source>
        <translation>表示する差分はありません。</translation>
    </message>
    <message>
        <source>Nothing that is shown contains the text.</source>
        <translation>表示中の項目に、このテキストを含むものはありません。</translation>
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
    <name>DurationScale</name>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 日</translation>
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
    <name>ExportActions</name>
    <message>
        <source>Export…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Saves what is shown as text or as a page (HTML).</source>
        <translation>表示内容をテキストまたは HTML ページとして保存します。</translation>
    </message>
    <message>
        <source>Copies what is shown as text to the clipboard.</source>
        <translation>表示内容をテキストとしてクリップボードにコピーします。</translation>
    </message>
    <message>
        <source>Export the comparison</source>
        <translation>比較結果のエクスポート</translation>
    </message>
    <message>
        <source>Page (*.html)</source>
        <translation>HTML ページ (*.html)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>テキスト (*.txt)</translation>
    </message>
    <message>
        <source>The comparison was saved as %1.</source>
        <translation>比較結果を %1 に保存しました。</translation>
    </message>
    <message>
        <source>The comparison could not be saved as %1: %2</source>
        <translation>比較結果を %1 に保存できませんでした: %2</translation>
    </message>
    <message>
        <source>The comparison was copied.</source>
        <translation>比較結果をコピーしました。</translation>
    </message>
</context>
<context>
    <name>FeatureActions</name>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Show Locking Feature</source>
        <translation>ロック元のフィーチャーを表示</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>名前をコピー</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>値をコピー</translation>
    </message>
    <message>
        <source>Copy &quot;Name=Value&quot;</source>
        <translation>「名前=値」をコピー</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>すべて展開</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>すべて折りたたむ</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>実行</translation>
    </message>
</context>
<context>
    <name>FeatureEditor</name>
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
    <name>FeatureFacts</name>
    <message>
        <source>Category</source>
        <translation>カテゴリー</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>オン/オフ</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>列挙</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>レジスター</translation>
    </message>
    <message>
        <source>Not in this camera</source>
        <translation>このカメラになし</translation>
    </message>
    <message>
        <source>Not available at present</source>
        <translation>現在は使用不可</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>書き込み専用</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>読み書き可</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>線形</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>対数</translation>
    </message>
    <message>
        <source>Number without slider</source>
        <translation>数値 (スライダーなし)</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>16 進数</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4 アドレス</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC アドレス</translation>
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
        <source>Increment</source>
        <translation>ステップ</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n バイト</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n character(s)</source>
        <translation>
            <numerusform>%n 文字</numerusform>
        </translation>
    </message>
    <message>
        <source>Every %1 ms</source>
        <translation>%1 ms ごと</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>データ型</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>表示形式</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Not allowed now</source>
        <translation>現在選択不可</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>アクセス</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>表示レベル</translation>
    </message>
    <message>
        <source>In settings files</source>
        <translation>設定ファイルに保存</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Changes by itself</source>
        <translation>自動更新</translation>
    </message>
    <message>
        <source>Selected by</source>
        <translation>セレクター</translation>
    </message>
    <message>
        <source>Selects</source>
        <translation>選択対象</translation>
    </message>
    <message>
        <source>Depends on</source>
        <translation>依存先</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>浮動小数点数</translation>
    </message>
    <message>
        <source>Maximum length</source>
        <translation>最大文字数</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>The camera is not connected.</source>
        <translation>カメラが接続されていません。</translation>
    </message>
    <message>
        <source>The value was not read yet.</source>
        <translation>値はまだ読み取られていません。</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>ロック中</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>変更あり</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>フィーチャー</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>Features</source>
        <translation>フィーチャー</translation>
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
    <name>FileSource</name>
    <message>
        <source>File %1</source>
        <translation>ファイル %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>%1 行目</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>ファイルに書き込めません。</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the file %1? The other settings stay, but comments and lines that cannot be read are lost.</source>
        <translation>
            <numerusform>設定 %n 件をファイル %1 に書き込みますか? その他の設定は保持されますが、コメントと読み取れない行は失われます。</numerusform>
        </translation>
    </message>
    <message>
        <source>changed by a copy of differences</source>
        <translation>差分のコピーにより変更</translation>
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
    <name>FilterBar</name>
    <message>
        <source>Search features</source>
        <translation>フィーチャーを検索</translation>
    </message>
    <message>
        <source>Shows the features with all of these words in their name or description.</source>
        <translation>名前または説明に、入力したすべての語を含むフィーチャーを表示します。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>表示レベル</translation>
    </message>
    <message>
        <source>Which features are shown: the most important ones, most, or all.</source>
        <translation>表示するフィーチャーの範囲: 主要なもの、大部分、すべて。</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更あり</translation>
    </message>
    <message>
        <source>Shows only features that have changed since the camera was opened.</source>
        <translation>カメラを開いてから変更されたフィーチャーだけを表示します。</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Shows only the features that you have marked as favourites.</source>
        <translation>お気に入りに登録したフィーチャーだけを表示します。</translation>
    </message>
</context>
<context>
    <name>FilterHint</name>
    <message numerus="yes">
        <source>%n feature(s) are hidden by the level %1.</source>
        <translation>
            <numerusform>表示レベル「%1」により、フィーチャー %n 個が非表示になっています。</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Them</source>
        <translation>表示する</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>一致するフィーチャーはありません。</translation>
    </message>
    <message>
        <source>No feature is marked as a favourite. Ctrl+D marks one.</source>
        <translation>お気に入りのフィーチャーはありません。Ctrl+D で登録できます。</translation>
    </message>
    <message>
        <source>No feature has changed since the camera was opened.</source>
        <translation>カメラを開いてから変更されたフィーチャーはありません。</translation>
    </message>
    <message>
        <source>This level has no features.</source>
        <translation>この表示レベルにはフィーチャーがありません。</translation>
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
    <name>FlatFieldPanel</name>
    <message>
        <source>Shading before</source>
        <translation>補正前のシェーディング</translation>
    </message>
    <message>
        <source>Shading after</source>
        <translation>補正後のシェーディング</translation>
    </message>
    <message>
        <source>Show the picture corrected</source>
        <translation>補正後の画像を表示</translation>
    </message>
    <message>
        <source>Dark images</source>
        <translation>暗時画像</translation>
    </message>
    <message>
        <source>Cover the lens completely. The images show the offset of each pixel.</source>
        <translation>レンズを完全に遮光してください。暗時画像から各ピクセルのオフセットを求めます。</translation>
    </message>
    <message>
        <source>Take dark images</source>
        <translation>暗時画像を撮影</translation>
    </message>
    <message>
        <source>Bright images</source>
        <translation>明時画像</translation>
    </message>
    <message>
        <source>Uncover the lens, and point the camera at an evenly lit surface, out of focus.</source>
        <translation>レンズのカバーを外し、均一に照明された面にピントを外してカメラを向けてください。</translation>
    </message>
    <message>
        <source>Take bright images</source>
        <translation>明時画像を撮影</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>補正データ</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl apply the file to every picture of this camera.</source>
        <translation>Image Viewer と cvxctl は、このファイルをこのカメラのすべての画像に適用できます。</translation>
    </message>
    <message>
        <source>Save the correction…</source>
        <translation>補正データを保存…</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>画像の枚数</translation>
    </message>
    <message>
        <source>Images: </source>
        <translation>枚数: </translation>
    </message>
    <message>
        <source>Sets the exposure time so that the bright images have about 70 % of the range, and puts it back afterwards.</source>
        <translation>明時画像がレンジの約 70 % になるように露光時間を設定し、撮影後に元に戻します。</translation>
    </message>
    <message>
        <source>Correct every pixel</source>
        <translation>ピクセルごとに補正</translation>
    </message>
    <message>
        <source>Correct the shading only</source>
        <translation>シェーディングのみ補正</translation>
    </message>
    <message>
        <source>What is corrected</source>
        <translation>補正の対象</translation>
    </message>
    <message>
        <source>The shading only: the gain changes smoothly over the picture, which adds no noise.</source>
        <translation>シェーディングのみの場合、ゲインは画面内で滑らかに変化し、ノイズを増やしません。</translation>
    </message>
    <message>
        <source>Keep the mean brightness</source>
        <translation>平均の明るさを維持</translation>
    </message>
    <message>
        <source>Raise to the brightest place</source>
        <translation>最も明るい位置に合わせる</translation>
    </message>
    <message>
        <source>Brightness after the correction</source>
        <translation>補正後の明るさ</translation>
    </message>
    <message>
        <source>Raised to the brightest place, no gain is below 1: what is clipped stays white.</source>
        <translation>最も明るい位置に合わせると、ゲインは 1 未満になりません。白飛び部分は白のまま保たれます。</translation>
    </message>
    <message>
        <source>Non-uniformity before and after the correction</source>
        <translation>補正前後の不均一性</translation>
    </message>
    <message>
        <source>DSNU: differences of the pixels in the dark. PRNU: differences of their sensitivity. By EMVA 1288 release 4.0, without the temporal noise.</source>
        <translation>DSNU: 暗時のピクセル間のばらつき。PRNU: ピクセル間の感度のばらつき。EMVA 1288 Release 4.0 準拠、時間ノイズを除く。</translation>
    </message>
    <message>
        <source>Mean of the columns, before and after</source>
        <translation>補正前後の列平均</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>% of the mean</source>
        <translation>平均比 (%)</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>補正前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>補正後</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>「%1」に保存しました。</translation>
    </message>
    <message>
        <source>Set the exposure time automatically</source>
        <translation>露光時間を自動設定</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images leave less noise in the correction. Half as many are taken in addition, to check the correction.</source>
        <translation>暗時画像と明時画像それぞれの枚数。枚数が多いほど補正データのノイズが減ります。補正の確認用に、さらに半数の画像を撮影します。</translation>
    </message>
    <message>
        <source>The dark images were taken.</source>
        <translation>暗時画像を撮影しました。</translation>
    </message>
</context>
<context>
    <name>FlatFieldReport</name>
    <message>
        <source>Flat Field</source>
        <translation>Flat Field</translation>
    </message>
    <message>
        <source>Non-uniformity by EMVA 1288 release 4.0</source>
        <translation>不均一性 (EMVA 1288 Release 4.0 準拠)</translation>
    </message>
    <message>
        <source>Mean of the columns</source>
        <translation>列平均</translation>
    </message>
    <message>
        <source>A picture as the camera sends it</source>
        <translation>カメラから届いた画像</translation>
    </message>
    <message>
        <source>The same picture, corrected</source>
        <translation>同じ画像 (補正後)</translation>
    </message>
    <message>
        <source>The gains: the brighter, the higher</source>
        <translation>ゲイン分布 (明るいほど高ゲイン)</translation>
    </message>
</context>
<context>
    <name>FlatFieldTexts</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 DN</source>
        <translation>%1 DN</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>補正前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>補正後</translation>
    </message>
    <message>
        <source>Shading</source>
        <translation>シェーディング</translation>
    </message>
    <message>
        <source>… without shading</source>
        <translation>… シェーディングを除く</translation>
    </message>
    <message>
        <source>… in electrons</source>
        <translation>… 電子数換算</translation>
    </message>
    <message>
        <source>The picture is even: its shading is only %1.</source>
        <translation>画像は均一です。シェーディングは %1 だけです。</translation>
    </message>
    <message>
        <source>The correction reduces the shading from %1 to %2.</source>
        <translation>補正により、シェーディングが %1 から %2 に減少します。</translation>
    </message>
    <message>
        <source>%1; gains from %2 to %3; bright images at %4 of the range.</source>
        <translation>%1、ゲイン %2~%3、明時画像はレンジの %4。</translation>
    </message>
    <message numerus="yes">
        <source>The numbers after the correction are those of %n other image(s).</source>
        <translation>
            <numerusform>補正後の数値は、別に撮影した画像 %n 枚によるものです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s) deviate strongly and got the gain of their neighbours; Pixel Repair replaces them.</source>
        <translation>
            <numerusform>偏差の大きいピクセル %n 個には周辺ピクセルのゲインを適用しました。これらは Pixel Repair で補間できます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The gain of %n pixel(s) was limited.</source>
        <translation>
            <numerusform>%n 個のピクセルのゲインを制限しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FlatFieldWindow</name>
    <message>
        <source>Flat Field</source>
        <translation>Flat Field</translation>
    </message>
    <message>
        <source>The camera does not say its pixel format (PixelFormat), so its values cannot be corrected.</source>
        <translation>カメラからピクセルフォーマット (PixelFormat) を取得できないため、画像の値を補正できません。</translation>
    </message>
    <message>
        <source>&amp;Save the correction…</source>
        <translation>補正データを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>暗時画像を撮影中</translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>明時画像を撮影中</translation>
    </message>
</context>
<context>
    <name>FocusPanel</name>
    <message>
        <source>Share of the peak</source>
        <translation>ピーク比</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>結果を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>鮮鋭度</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>直近 1 分間の鮮鋭度</translation>
    </message>
    <message>
        <source>&amp;Forget the peaks</source>
        <translation>ピークをリセット(&amp;F)</translation>
    </message>
    <message>
        <source>Begins again, for example because the camera looks at something else.</source>
        <translation>被写体を変えた場合などに、計測を最初からやり直します。</translation>
    </message>
    <message>
        <source>Point the camera</source>
        <translation>カメラを向ける</translation>
    </message>
    <message>
        <source>It looks at something with edges all over the picture.</source>
        <translation>画面全体にエッジのある被写体にカメラを向けてください。</translation>
    </message>
    <message>
        <source>Find the best focus</source>
        <translation>最適なピントを探す</translation>
    </message>
    <message>
        <source>Search &amp;automatically</source>
        <translation>自動で探索(&amp;A)</translation>
    </message>
    <message>
        <source>Read the tilt</source>
        <translation>傾きを判定</translation>
    </message>
    <message>
        <source>The order in which the regions become sharp says how the focus is tilted.</source>
        <translation>各領域が合焦する順序から、ピント面の傾きを判定します。</translation>
    </message>
    <message>
        <source>Read the &amp;tilt</source>
        <translation>傾きを判定(&amp;T)</translation>
    </message>
    <message>
        <source>Moves the lens through its range and leaves it at the best position. Cancelling puts it back.</source>
        <translation>レンズを全範囲で動かし、最適な位置で停止します。キャンセルすると元の位置に戻ります。</translation>
    </message>
    <message>
        <source>Nothing was measured yet.</source>
        <translation>まだ計測していません。</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>of the peak. Sharpness %1, peak %2.</source>
        <translation>ピーク比 (鮮鋭度 %1、ピーク %2)</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>ピーク</translation>
    </message>
    <message>
        <source>Search the best position, or turn the lens slowly through the sharpest position.</source>
        <translation>最適な位置を自動で探索するか、レンズをゆっくり回して最も鮮鋭な位置を通過させてください。</translation>
    </message>
    <message>
        <source>Turn the lens slowly through the sharpest position, then back to it.</source>
        <translation>レンズをゆっくり回して最も鮮鋭な位置を通過させ、その後その位置に戻してください。</translation>
    </message>
    <message>
        <source>Time before now</source>
        <translation>現在までの時間</translation>
    </message>
    <message>
        <source>Re&amp;gions per direction</source>
        <translation>縦横の分割数(&amp;G)</translation>
    </message>
</context>
<context>
    <name>FocusReport</name>
    <message>
        <source>Focus Assistant</source>
        <translation>Focus Assistant</translation>
    </message>
    <message>
        <source>Sharpness %1, which is %2 of the peak.</source>
        <translation>鮮鋭度 %1、ピーク比 %2。</translation>
    </message>
    <message>
        <source>Share of the peak of each region</source>
        <translation>各領域のピーク比</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>直近 1 分間の鮮鋭度</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>領域</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>鮮鋭度</translation>
    </message>
    <message>
        <source>Share of the peak</source>
        <translation>ピーク比</translation>
    </message>
    <message>
        <source>Best position</source>
        <translation>最適位置</translation>
    </message>
    <message>
        <source>Sharp at (s)</source>
        <translation>合焦時刻 (s)</translation>
    </message>
    <message>
        <source>Share at the best position</source>
        <translation>最適位置でのピーク比</translation>
    </message>
    <message>
        <source>The sharpness is the energy of the differences between neighbouring pixels, divided by the squared brightness, without the part of the noise. Exposure and gain do not change it.</source>
        <translation>鮮鋭度は、隣接ピクセル間の差分のエネルギーからノイズ成分を除き、明るさの 2 乗で正規化した値です。露光とゲインの影響を受けません。</translation>
    </message>
</context>
<context>
    <name>FocusTexts</name>
    <message>
        <source>Left end</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Right end</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>no edges</source>
        <translation>エッジなし</translation>
    </message>
    <message>
        <source>too dark</source>
        <translation>暗すぎ</translation>
    </message>
    <message>
        <source>overexposed</source>
        <translation>露出オーバー</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Shares of their peaks at the best position: %1.</source>
        <translation>最適位置でのピーク比: %1。</translation>
    </message>
</context>
<context>
    <name>FocusWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>結果を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Focus Assistant</source>
        <translation>Focus Assistant</translation>
    </message>
    <message>
        <source>Searching the best focus</source>
        <translation>最適なピントを探索中</translation>
    </message>
</context>
<context>
    <name>HexView</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Offset %1, byte %2</source>
        <translation>オフセット %1、バイト %2</translation>
    </message>
    <message>
        <source>Offset %1, character %2</source>
        <translation>オフセット %1、文字 %2</translation>
    </message>
    <message>
        <source>The clipboard contains no hexadecimal bytes.</source>
        <translation>クリップボードに 16 進数のバイト列がありません。</translation>
    </message>
    <message>
        <source>The clipboard contains no ASCII text.</source>
        <translation>クリップボードに ASCII テキストがありません。</translation>
    </message>
    <message numerus="yes">
        <source>The last %n byte(s) of the clipboard did not fit.</source>
        <translation>
            <numerusform>クリップボードの末尾 %n バイトは入りきりませんでした。</numerusform>
        </translation>
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
    <name>HistoryModel</name>
    <message>
        <source>Executed: %1</source>
        <translation>実行: %1</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>やり直す: %1</translation>
    </message>
    <message>
        <source>This change was undone.</source>
        <translation>この変更は元に戻されました。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>フィーチャー</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>変更前の値</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>変更後の値</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Changes since the camera was opened</source>
        <translation>カメラを開いてからの変更</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Export as script…</source>
        <translation>スクリプトをエクスポート…</translation>
    </message>
    <message>
        <source>Writes a shell script that makes these changes again with cvxctl.</source>
        <translation>これらの変更を cvxctl で再実行するシェルスクリプトを作成します。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Export the changes</source>
        <translation>変更のエクスポート</translation>
    </message>
    <message>
        <source>Shell scripts (*.sh)</source>
        <translation>シェルスクリプト (*.sh)</translation>
    </message>
    <message>
        <source>The script &quot;%1&quot; cannot be written: %2</source>
        <translation>スクリプト「%1」に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>HtmlReport</name>
    <message>
        <source>Vendor</source>
        <translation>ベンダー</translation>
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
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Settings of the camera</source>
        <translation>カメラの設定</translation>
    </message>
    <message>
        <source>Created by Corvix X, version %1.</source>
        <translation>Corvix X バージョン %1 で作成。</translation>
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
    <name>InputsForm</name>
    <message>
        <source>&amp;Lines come from</source>
        <translation>ライン同期(&amp;L)</translation>
    </message>
    <message>
        <source>the camera&apos;s line rate</source>
        <translation>カメラのラインレート</translation>
    </message>
    <message>
        <source>an encoder</source>
        <translation>エンコーダー</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>速度(&amp;S)</translation>
    </message>
    <message>
        <source>mm/s</source>
        <translation>mm/s</translation>
    </message>
    <message>
        <source>Speed of the object. With an encoder: the highest speed, for which the limits are checked.</source>
        <translation>対象物の速度。エンコーダー使用時は、制限の確認に使う最高速度。</translation>
    </message>
    <message>
        <source>&amp;Encoder</source>
        <translation>エンコーダー(&amp;E)</translation>
    </message>
    <message>
        <source>movement per pulse</source>
        <translation>1 パルスの移動量</translation>
    </message>
    <message>
        <source>pulses and roller</source>
        <translation>パルス数とローラー径</translation>
    </message>
    <message>
        <source>&amp;Movement per pulse</source>
        <translation>1 パルスの移動量(&amp;M)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Movement of the object for one pulse, that is one cycle of one signal of the encoder.</source>
        <translation>1 パルス (エンコーダーの 1 信号の 1 周期) あたりの対象物の移動量。</translation>
    </message>
    <message>
        <source>Number of pulses that the encoder sends while its roller turns once.</source>
        <translation>ローラーが 1 回転する間にエンコーダーが出力するパルス数。</translation>
    </message>
    <message>
        <source>Roller &amp;diameter</source>
        <translation>ローラー径(&amp;D)</translation>
    </message>
    <message>
        <source>Diameter of the roller or wheel that turns the encoder.</source>
        <translation>エンコーダーを回すローラーまたはホイールの直径。</translation>
    </message>
    <message>
        <source>Size of a &amp;pixel</source>
        <translation>ピクセル実寸(&amp;P)</translation>
    </message>
    <message>
        <source>from sensor and lens</source>
        <translation>センサーとレンズから算出</translation>
    </message>
    <message>
        <source>known on the object</source>
        <translation>対象物上の寸法を入力</translation>
    </message>
    <message>
        <source>Pi&amp;xel of the sensor</source>
        <translation>センサーのピクセル(&amp;X)</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Width of a pixel of the sensor; the data sheet names it.</source>
        <translation>センサーのピクセルの幅。データシートに記載されています。</translation>
    </message>
    <message>
        <source>Ma&amp;gnification</source>
        <translation>光学倍率(&amp;G)</translation>
    </message>
    <message>
        <source>Size of the image on the sensor divided by the size of the object, for example 0.5.</source>
        <translation>センサー上の像の大きさを対象物の大きさで割った値 (例: 0.5)。</translation>
    </message>
    <message>
        <source>Pixel &amp;on the object</source>
        <translation>対象物上の寸法(&amp;O)</translation>
    </message>
    <message>
        <source>Width of the object that one pixel of the picture shows.</source>
        <translation>画像の 1 ピクセルに対応する対象物の幅。</translation>
    </message>
    <message>
        <source>Use the longest exposure</source>
        <translation>最長の露光時間を使用</translation>
    </message>
    <message>
        <source>Otherwise, the exposure is only shortened if it does not fit into a line.</source>
        <translation>オフの場合、露光時間は 1 ラインに収まらないときだけ短縮されます。</translation>
    </message>
    <message>
        <source>not entered</source>
        <translation>未入力</translation>
    </message>
    <message>
        <source>Pulses per re&amp;volution</source>
        <translation>1 回転のパルス数(&amp;V)</translation>
    </message>
</context>
<context>
    <name>JobBar</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>LastingJob</name>
    <message>
        <source>The work was cancelled before it began, or the camera was closed.</source>
        <translation>処理は開始前にキャンセルされたか、カメラが閉じられました。</translation>
    </message>
</context>
<context>
    <name>LayoutBox</name>
    <message>
        <source>As the camera says</source>
        <translation>カメラから取得</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>タップ構成:</translation>
    </message>
    <message>
        <source>Side by side:</source>
        <translation>横方向の分割:</translation>
    </message>
    <message>
        <source>Stripes of the picture, from left to right</source>
        <translation>画像の帯の数 (左から右)</translation>
    </message>
    <message>
        <source>One above the other:</source>
        <translation>縦方向の分割:</translation>
    </message>
    <message>
        <source>Stripes of the picture, from top to bottom</source>
        <translation>画像の帯の数 (上から下)</translation>
    </message>
    <message>
        <source>Neighbouring columns:</source>
        <translation>隣接列のタップ数:</translation>
    </message>
    <message>
        <source>Taps that read the columns of a stripe in turn; 1 if a stripe has one tap</source>
        <translation>1 つの帯の列を交互に読み出すタップの数。帯ごとに 1 タップの場合は 1</translation>
    </message>
    <message>
        <source>Mean of all taps</source>
        <translation>全タップの平均</translation>
    </message>
    <message>
        <source>Tap 1</source>
        <translation>タップ 1</translation>
    </message>
    <message>
        <source>Compare with:</source>
        <translation>比較基準:</translation>
    </message>
    <message>
        <source>Images of each measurement; more images make the numbers more certain</source>
        <translation>1 回の計測に使う画像の枚数。多いほど数値の確度が上がります</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>画像の枚数:</translation>
    </message>
    <message>
        <source>Camera: %1</source>
        <translation>カメラ: %1</translation>
    </message>
    <message>
        <source>Not reported by the camera</source>
        <translation>カメラから取得不可</translation>
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
    <name>LevelBar</name>
    <message>
        <source>Brightness of the live picture</source>
        <translation>ライブ画像の明るさ</translation>
    </message>
    <message>
        <source>%1 % of the range; 50 to 80 % is good</source>
        <translation>レンジの %1 % (適正: 50~80 %)</translation>
    </message>
    <message>
        <source>%1 % of the values are clipped</source>
        <translation>値の %1 % が飽和しています</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>画像がありません。</translation>
    </message>
</context>
<context>
    <name>LevelText</name>
    <message>
        <source>Beginner</source>
        <translation>ビギナー</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>エキスパート</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>グル</translation>
    </message>
</context>
<context>
    <name>LineScanReport</name>
    <message>
        <source>Speed of the object</source>
        <translation>対象物の速度</translation>
    </message>
    <message>
        <source>mm/s</source>
        <translation>mm/s</translation>
    </message>
    <message>
        <source>Movement per encoder pulse</source>
        <translation>エンコーダー 1 パルスの移動量</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>ピクセル実寸</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Line rate for square pixels</source>
        <translation>正方ピクセルになるラインレート</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Lines per pulse for square pixels</source>
        <translation>正方ピクセルになる 1 パルスあたりのライン数</translation>
    </message>
    <message>
        <source>Longest exposure</source>
        <translation>最長露光時間</translation>
    </message>
    <message>
        <source>µs</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>最高速度</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>残存誤差</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Line Scan Tuner</source>
        <translation>Line Scan Tuner</translation>
    </message>
    <message>
        <source>Round target</source>
        <translation>円形ターゲット</translation>
    </message>
    <message>
        <source>First measurement</source>
        <translation>最初の計測</translation>
    </message>
    <message>
        <source>Last measurement</source>
        <translation>最後の計測</translation>
    </message>
    <message>
        <source>Height to width</source>
        <translation>高さ / 幅</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>偏差</translation>
    </message>
    <message>
        <source>Turn of the camera (°)</source>
        <translation>カメラの回転角 (°)</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像数</translation>
    </message>
    <message>
        <source>The picture at the time of the report</source>
        <translation>レポート作成時の画像</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>ラインレート</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Written settings</source>
        <translation>書き込んだ設定</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>フィーチャー</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
</context>
<context>
    <name>LineScanWindow</name>
    <message>
        <source>Line Scan Tuner</source>
        <translation>Line Scan Tuner</translation>
    </message>
    <message>
        <source>This camera takes whole pictures: it has no line rate (AcquisitionLineRate) and no encoder. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>このカメラはエリアスキャンカメラで、ラインレート (AcquisitionLineRate) もエンコーダー機能もありません。移動する対象物を 1 ラインずつ撮像するラインスキャンカメラを選択してください。</translation>
    </message>
    <message>
        <source>Do the &amp;next step</source>
        <translation>次の手順を実行(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>結果を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Enter</translation>
    </message>
    <message>
        <source>Do the next step</source>
        <translation>次の手順を実行</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Save the result</source>
        <translation>結果を保存</translation>
    </message>
    <message>
        <source>No round target was found yet.</source>
        <translation>円形ターゲットはまだ見つかっていません。</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>結果を保存…</translation>
    </message>
    <message>
        <source>the largest</source>
        <translation>最大のもの</translation>
    </message>
    <message>
        <source>the one that I click</source>
        <translation>クリックしたもの</translation>
    </message>
    <message>
        <source>in the columns that I draw</source>
        <translation>指定した列の範囲</translation>
    </message>
    <message>
        <source>Which disc or ring is measured. The picture rolls, so only the columns count.</source>
        <translation>計測する円板またはリング。画像は流れるため、列の範囲だけが有効です。</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>ターゲット(&amp;T)</translation>
    </message>
    <message>
        <source>Look for the target in the live picture</source>
        <translation>ライブ画像でターゲットを検出</translation>
    </message>
    <message>
        <source>The picture stands still for a moment where a target was found.</source>
        <translation>ターゲットが見つかると、画像が一瞬静止します。</translation>
    </message>
    <message>
        <source>Describe the machine</source>
        <translation>装置の条件を入力</translation>
    </message>
    <message>
        <source>Pixels are square if the camera takes one line while the object moves by one pixel.</source>
        <translation>対象物が 1 ピクセル分移動する間にカメラが 1 ライン撮像すると、ピクセルは正方形になります。</translation>
    </message>
    <message>
        <source>Set the camera</source>
        <translation>カメラを設定</translation>
    </message>
    <message>
        <source>This follows from the machine and from the limits of the camera.</source>
        <translation>設定値は、装置の条件とカメラの制限から求められます。</translation>
    </message>
    <message>
        <source>Write the settings</source>
        <translation>設定を書き込み</translation>
    </message>
    <message>
        <source>Undo what was written</source>
        <translation>書き込みを元に戻す</translation>
    </message>
    <message>
        <source>Measure a round target</source>
        <translation>円形ターゲットを計測</translation>
    </message>
    <message>
        <source>Let a dark or bright disc or ring move under the camera. It must be complete in one picture.</source>
        <translation>暗いまたは明るい円板かリングを、カメラの下で移動させてください。1 枚の画像に全体が収まる必要があります。</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>計測</translation>
    </message>
    <message>
        <source>Make it round</source>
        <translation>真円に補正</translation>
    </message>
    <message>
        <source>Correct the rate</source>
        <translation>レートを補正</translation>
    </message>
    <message>
        <source>The target in the live picture is round.</source>
        <translation>ライブ画像のターゲットは真円です。</translation>
    </message>
    <message>
        <source>The target in the live picture is too tall.</source>
        <translation>ライブ画像のターゲットは縦長です。</translation>
    </message>
    <message>
        <source>The target in the live picture is too flat.</source>
        <translation>ライブ画像のターゲットは横長です。</translation>
    </message>
    <message>
        <source>The line rate, or the ratio of the encoder, is multiplied with width / height of the target.</source>
        <translation>ラインレートまたはエンコーダーの逓倍・分周比に、ターゲットの幅 / 高さを乗算します。</translation>
    </message>
    <message>
        <source>The camera is turned by %1° against the movement.</source>
        <translation>カメラは移動方向に対して %1° 回転しています。</translation>
    </message>
    <message>
        <source>The camera has accepted the settings.</source>
        <translation>カメラに設定を書き込みました。</translation>
    </message>
    <message>
        <source>Measuring the target</source>
        <translation>ターゲットを計測中</translation>
    </message>
</context>
<context>
    <name>LivePicture</name>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>カメラから画像が送信されていません。%1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off.</source>
        <translation>カメラはトリガー待ちです。トリガーを送るか、トリガーモードをオフにしてください。</translation>
    </message>
    <message>
        <source>No picture has arrived yet.</source>
        <translation>画像をまだ受信していません。</translation>
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
    <name>LoadDialog</name>
    <message>
        <source>Show only what &amp;changes</source>
        <translation>変更される設定のみ表示(&amp;C)</translation>
    </message>
    <message>
        <source>Load what &amp;fits. If you cancel, what was loaded stays.</source>
        <translation>適用できる設定を読み込む(&amp;F)。キャンセルしても、読み込み済みの設定は残ります。</translation>
    </message>
    <message>
        <source>&amp;All or nothing. If a setting fails or you cancel, everything is put back.</source>
        <translation>すべて適用できる場合のみ読み込む(&amp;A)。失敗またはキャンセル時は、すべて復元します。</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Undo the load</source>
        <translation>読み込みを元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Co&amp;py report</source>
        <translation>レポートをコピー(&amp;P)</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>「%1」の読み込み</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Nothing is written at all if a line of the file cannot be read, or if a setting cannot fit the camera.</source>
        <translation>ファイルに読み取れない行がある場合、またはカメラに適用できない設定がある場合は、何も書き込みません。</translation>
    </message>
    <message>
        <source>Puts back all settings from before the load.</source>
        <translation>すべての設定を読み込み前の状態に復元します。</translation>
    </message>
    <message>
        <source>The load was not undone. Without this dialog, it cannot be undone any more.</source>
        <translation>読み込みは元に戻されていません。このダイアログを閉じると、元に戻せなくなります。</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>このまま閉じる(&amp;A)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>LoadTable</name>
    <message>
        <source>The line cannot be read. %1</source>
        <translation>行を読み取れません。%1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>フィーチャー</translation>
    </message>
    <message>
        <source>In camera</source>
        <translation>カメラの値</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>新しい値</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>読み戻し値</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
</context>
<context>
    <name>LoadText</name>
    <message>
        <source>Cannot be loaded.</source>
        <translation>読み込み不可。</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>失敗。</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) cannot be loaded.</source>
        <translation>
            <numerusform>設定 %n 件を読み込めません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) failed.</source>
        <translation>
            <numerusform>設定 %n 件の書き込みに失敗しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Will change.</source>
        <translation>変更予定。</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>変更済み。</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will change.</source>
        <translation>
            <numerusform>設定 %n 件が変更されます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) changed.</source>
        <translation>
            <numerusform>設定 %n 件が変更されました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Overruled by another setting.</source>
        <translation>他の設定により上書き。</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will be overruled by others.</source>
        <translation>
            <numerusform>設定 %n 件が他の設定により上書きされます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were overruled by others.</source>
        <translation>
            <numerusform>設定 %n 件が他の設定により上書きされました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already have the value.</source>
        <translation>
            <numerusform>設定 %n 件は既に同じ値です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already had the value.</source>
        <translation>
            <numerusform>設定 %n 件は既に同じ値でした。</numerusform>
        </translation>
    </message>
    <message>
        <source>Already has this value.</source>
        <translation>変更なし。</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) cannot be read.</source>
        <translation>
            <numerusform>%n 行を読み取れません。</numerusform>
        </translation>
    </message>
    <message>
        <source>The load was cancelled, and the settings from before were put back.</source>
        <translation>読み込みはキャンセルされ、元の設定に復元しました。</translation>
    </message>
    <message>
        <source>The load has failed, and the settings from before were put back.</source>
        <translation>読み込みに失敗したため、元の設定に復元しました。</translation>
    </message>
    <message>
        <source>The load was cancelled. What was loaded before stays.</source>
        <translation>読み込みはキャンセルされました。読み込み済みの設定は残っています。</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>読み込みはキャンセルされました。何も変更されていません。</translation>
    </message>
    <message>
        <source>Nothing was changed, because not everything can be loaded.</source>
        <translation>読み込めない設定があるため、何も変更しませんでした。</translation>
    </message>
    <message>
        <source>Not everything could be loaded.</source>
        <translation>一部の設定を読み込めませんでした。</translation>
    </message>
    <message>
        <source>The settings were loaded and read back.</source>
        <translation>設定を読み込み、読み戻しで確認しました。</translation>
    </message>
    <message>
        <source>All settings from before the load were put back.</source>
        <translation>すべての設定を読み込み前の状態に復元しました。</translation>
    </message>
    <message>
        <source>Not all settings from before the load could be put back.</source>
        <translation>一部の設定を読み込み前の状態に復元できませんでした。</translation>
    </message>
    <message>
        <source>Put back.</source>
        <translation>復元済み。</translation>
    </message>
    <message>
        <source>Not put back.</source>
        <translation>未復元。</translation>
    </message>
    <message>
        <source>The settings are being compared with the camera.</source>
        <translation>設定をカメラと比較しています。</translation>
    </message>
    <message>
        <source>The settings are being loaded and read back.</source>
        <translation>設定を読み込み、読み戻しています。</translation>
    </message>
    <message>
        <source>The settings from before the load are being put back.</source>
        <translation>読み込み前の設定に復元しています。</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>変更される設定はありません。</translation>
    </message>
    <message>
        <source>There are no settings to load.</source>
        <translation>読み込む設定がありません。</translation>
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
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 を表示</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1 を %2 に設定</translation>
    </message>
</context>
<context>
    <name>LogBox</name>
    <message>
        <source>Appends each reading to a CSV file until you stop it. A file of the same camera is continued.</source>
        <translation>停止するまで、測定値を CSV ファイルに追記します。同じカメラのファイルには続けて記録します。</translation>
    </message>
    <message>
        <source>Log the temperatures</source>
        <translation>温度のログ記録</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>CSV テーブル (*.csv)</translation>
    </message>
    <message>
        <source>Stop the &amp;log</source>
        <translation>ログを停止(&amp;L)</translation>
    </message>
    <message>
        <source>Start a &amp;log…</source>
        <translation>ログを開始(&amp;L)…</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>ログ: %1</translation>
    </message>
    <message>
        <source>The readings are not logged.</source>
        <translation>測定値は記録されていません。</translation>
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
    <name>Measure</name>
    <message>
        <source>The brightness changed by %1 % while the bright images were taken. Use a steady light, and take the images again.</source>
        <translation>明時画像の撮影中に明るさが %1 % 変化しました。安定した照明を使用し、画像を撮り直してください。</translation>
    </message>
    <message>
        <source>Something moved while the bright images were taken. Point the camera at an evenly lit surface without objects, keep it still, and take the images again.</source>
        <translation>明時画像の撮影中に動きがありました。物体のない均一に照明された面にカメラを向け、静止させて画像を撮り直してください。</translation>
    </message>
    <message>
        <source>The bright images show a scene. Point the camera at an evenly lit surface without objects, for example white paper close to the lens and out of focus, and take the images again.</source>
        <translation>明時画像に被写体が写っています。物体のない均一に照明された面 (レンズの近くに置いてピントを外した白紙など) にカメラを向け、画像を撮り直してください。</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the highest value: light reaches the sensor, or the exposure is too long. Cover the lens, then take the dark images again.</source>
        <translation>暗時画像が最大値の %1 % に達しています。センサーに光が入っているか、露光時間が長すぎます。レンズを遮光し、暗時画像を撮り直してください。</translation>
    </message>
    <message>
        <source>The dark images show something: light reaches the sensor. Cover the lens completely, then take the dark images again.</source>
        <translation>暗時画像に何かが写っています。センサーに光が入っています。レンズを完全に遮光し、暗時画像を撮り直してください。</translation>
    </message>
    <message>
        <source>Many pixels of the dark images have the value 0, so their noise is not visible. Increase the black level (BlackLevel), then take the dark images again.</source>
        <translation>暗時画像の多くのピクセルが 0 のため、ノイズを計測できません。黒レベル (BlackLevel) を上げ、暗時画像を撮り直してください。</translation>
    </message>
    <message>
        <source>The bright images are too dark: they use %1 % of the value range. Uncover the lens, use more light or a longer exposure, and take the images again.</source>
        <translation>明時画像が暗すぎます (レンジの %1 %)。レンズのカバーを外し、照明を明るくするか露光時間を長くして、画像を撮り直してください。</translation>
    </message>
    <message>
        <source>%1 % of the pixels of the bright images have the highest value. Use less light or a shorter exposure, and take the images again.</source>
        <translation>明時画像のピクセルの %1 % が最大値に達しています。照明を暗くするか露光時間を短くして、画像を撮り直してください。</translation>
    </message>
    <message>
        <source>%1 % of the pixels deviate from their neighbours, so the surface had a structure, or light reached the sensor during the dark images. Take the images again.</source>
        <translation>ピクセルの %1 % が周辺ピクセルから外れています。面に模様があったか、暗時画像の撮影中にセンサーに光が入りました。画像を撮り直してください。</translation>
    </message>
    <message>
        <source>Set %1 to %2: defect pixels are measured at full resolution without mirroring.</source>
        <translation>%1 を %2 に設定してください。欠陥ピクセルは、反転なしの最大解像度で計測します。</translation>
    </message>
    <message>
        <source>Choose a pixel format that contains the values of the pixels as they are, with 8 to 16 bits: Mono8 to Mono16, or Bayer (PixelFormat).</source>
        <translation>ピクセルの値をそのまま含む 8~16 ビットのピクセルフォーマット (PixelFormat) を選択してください: Mono8~Mono16 または Bayer。</translation>
    </message>
    <message>
        <source>Choose a region of %1 x %1 pixels or more (Width, Height).</source>
        <translation>%1 x %1 ピクセル以上の ROI を選択してください (Width、Height)。</translation>
    </message>
    <message>
        <source>The size or the pixel format of the images has changed. Take the images again.</source>
        <translation>画像のサイズまたはピクセルフォーマットが変わりました。画像を撮り直してください。</translation>
    </message>
    <message>
        <source>Take %1 images or more: with fewer images, the noise hides defects.</source>
        <translation>%1 枚以上の画像を撮影してください。枚数が少ないと、欠陥がノイズに埋もれます。</translation>
    </message>
    <message>
        <source>The region or the pixel format differs from that of the dark images. Set it as before, or take the dark images again.</source>
        <translation>ROI またはピクセルフォーマットが暗時画像の撮影時と異なります。元に戻すか、暗時画像を撮り直してください。</translation>
    </message>
    <message>
        <source>The gain differs from that of the dark images, %1. Set it as before, or take the dark images again.</source>
        <translation>ゲインが暗時画像の撮影時 (%1) と異なります。元に戻すか、暗時画像を撮り直してください。</translation>
    </message>
    <message>
        <source>The camera has sent the same pictures again and again. Lower AcquisitionFrameRate, then measure again.</source>
        <translation>カメラから同じ画像が繰り返し送信されました。AcquisitionFrameRate を下げてから、もう一度計測してください。</translation>
    </message>
</context>
<context>
    <name>MeasureBar</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>End the measurement. The settings of the camera are put back. (Esc)</source>
        <translation>計測を中止します。カメラの設定は元に戻されます。(Esc)</translation>
    </message>
</context>
<context>
    <name>MeasureJob</name>
    <message>
        <source>The camera is not open for control, so nothing can be measured.</source>
        <translation>カメラの制御を取得していないため、計測できません。</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Measure again when it is back.</source>
        <translation>計測中にカメラとの接続が切れました。カメラが復帰したら計測し直してください。</translation>
    </message>
    <message>
        <source>The camera was closed during the measurement.</source>
        <translation>計測中にカメラが閉じられました。</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>カメラから画像が送信されていません。%1</translation>
    </message>
    <message>
        <source>Some settings were not put back. %1</source>
        <translation>一部の設定を復元できませんでした。%1</translation>
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
    <name>NoteListDialog</name>
    <message>
        <source>Feature</source>
        <translation>フィーチャー</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
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
    <name>OpeningSnapshot</name>
    <message>
        <source>This camera at opening</source>
        <translation>このカメラ (開いた時点)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 was changed before its value at opening was read.</source>
        <translation>%1 は、開いた時点の値を読み取る前に変更されました。</translation>
    </message>
    <message>
        <source>%1 was executed before all settings were read, so some of them may be those after it.</source>
        <translation>すべての設定を読み取る前に %1 が実行されたため、一部は実行後の設定の可能性があります。</translation>
    </message>
    <message>
        <source>There are too many values, so only some were read.</source>
        <translation>値が多すぎるため、一部だけを読み取りました。</translation>
    </message>
</context>
<context>
    <name>OpeningSource</name>
    <message>
        <source>This camera at opening</source>
        <translation>このカメラ (開いた時点)</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>カメラが開かれていません。</translation>
    </message>
    <message>
        <source>The settings at opening are still being read.</source>
        <translation>開いた時点の設定をまだ読み取っています。</translation>
    </message>
    <message>
        <source>The settings at opening cannot be changed. Choose another right side.</source>
        <translation>開いた時点の設定は過去の記録のため変更できません。右側に別の対象を選択してください。</translation>
    </message>
</context>
<context>
    <name>OtherCameraSource</name>
    <message>
        <source>Camera %1</source>
        <translation>カメラ %1</translation>
    </message>
    <message>
        <source>Another program uses this camera, so it was only watched.</source>
        <translation>別のプログラムがこのカメラを使用しているため、モニターのみ行いました。</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) to the camera %1? This cannot be undone here.</source>
        <translation>
            <numerusform>設定 %n 件をカメラ %1 に書き込みますか? この操作はここでは元に戻せません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Opening the camera was cancelled.</source>
        <translation>カメラを開く処理はキャンセルされました。</translation>
    </message>
    <message>
        <source>The camera is not connected any more.</source>
        <translation>カメラはもう接続されていません。</translation>
    </message>
    <message>
        <source>The camera did not answer in time.</source>
        <translation>カメラが時間内に応答しませんでした。</translation>
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
    <name>PlanView</name>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>by the link</source>
        <translation>接続による制限</translation>
    </message>
    <message>
        <source>by the exposure</source>
        <translation>露光による制限</translation>
    </message>
    <message>
        <source>by the camera</source>
        <translation>カメラによる制限</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>フィーチャー</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新しい値</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>Settings that are written</source>
        <translation>書き込む設定</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>ピクセル実寸</translation>
    </message>
    <message>
        <source>%1 µm</source>
        <translation>%1 µm</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>ラインレート</translation>
    </message>
    <message>
        <source>Highest line rate</source>
        <translation>最高ラインレート</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>最高速度</translation>
    </message>
    <message>
        <source>%1 mm/s</source>
        <translation>%1 mm/s</translation>
    </message>
    <message>
        <source>Longest exposure</source>
        <translation>最長露光時間</translation>
    </message>
    <message>
        <source>%1 µs</source>
        <translation>%1 µs</translation>
    </message>
    <message>
        <source>Dead time of a line</source>
        <translation>ラインのデッドタイム</translation>
    </message>
    <message>
        <source>Lines per pulse</source>
        <translation>1 パルスのライン数</translation>
    </message>
    <message>
        <source>Multiplier, divider</source>
        <translation>逓倍、分周</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>残存誤差</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>The camera is set up for this already.</source>
        <translation>カメラは既にこの設定になっています。</translation>
    </message>
    <message>
        <source>These features are written, in this order:</source>
        <translation>次のフィーチャーを、この順序で書き込みます:</translation>
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
    <name>RegisterEditor</name>
    <message>
        <source>Write</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Writes all bytes to the camera (Ctrl+Return).</source>
        <translation>すべてのバイトをカメラに書き込みます (Ctrl+Enter)。</translation>
    </message>
    <message>
        <source>Shows the bytes of the camera again (Escape).</source>
        <translation>カメラのバイトを再表示します (Esc)。</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n バイト</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, not readable</source>
        <translation>%1、読み取り不可</translation>
    </message>
</context>
<context>
    <name>RepairPanel</name>
    <message>
        <source>Cover the lens</source>
        <translation>レンズを遮光</translation>
    </message>
    <message>
        <source>No light may reach the sensor. A long exposure and a high gain show more hot pixels: use the longest exposure that you work with, and let the camera warm up.</source>
        <translation>センサーに光が入らないようにしてください。露光時間が長くゲインが高いほど、ホットピクセルが多く検出されます。実際に使用する最長の露光時間に設定し、カメラをウォームアップしてください。</translation>
    </message>
    <message>
        <source>Take &amp;dark images</source>
        <translation>暗時画像を撮影(&amp;D)</translation>
    </message>
    <message>
        <source>Point at an evenly lit surface</source>
        <translation>均一に照明された面に向ける</translation>
    </message>
    <message>
        <source>Uncover the lens and fill the picture with one bright surface without objects, for example white paper, out of focus. Half of the highest brightness is best; leave the gain as it is.</source>
        <translation>レンズのカバーを外し、物体のない明るい面 (白紙など) をピントを外して画面全体に写してください。明るさは最大値の半分が最適です。ゲインは変更しないでください。</translation>
    </message>
    <message>
        <source>Take &amp;bright images</source>
        <translation>明時画像を撮影(&amp;B)</translation>
    </message>
    <message>
        <source>Save the map</source>
        <translation>マップを保存</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl repair pictures with the map. A report and a table are saved beside it.</source>
        <translation>Image Viewer と cvxctl は、このマップを使って画像を補間します。レポートと一覧表も一緒に保存されます。</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Number of images</source>
        <translation>画像の枚数(&amp;N)</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images find weaker defects and pixels that blink rarely.</source>
        <translation>暗時画像と明時画像それぞれの枚数。多いほど、軽微な欠陥やまれに点滅するピクセルを検出できます。</translation>
    </message>
</context>
<context>
    <name>RepairReport</name>
    <message>
        <source>Pixel Repair</source>
        <translation>Pixel Repair</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>クラスター</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>隣接する欠陥ピクセルの集まり。</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列欠陥</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>列のうち、欠陥ピクセルが 8 個以上ある部分。</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行欠陥</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>行のうち、欠陥ピクセルが 8 個以上ある部分。</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Places of the defect pixels on the sensor</source>
        <translation>センサー上の欠陥ピクセルの位置</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>計測条件</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Exposure in ms</source>
        <translation>露光時間 (ms)</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>ゲイン</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>ノイズ</translation>
    </message>
    <message>
        <source>Spread of the good pixels</source>
        <translation>正常ピクセルのばらつき</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>暗時</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>明時</translation>
    </message>
    <message>
        <source>Threshold: %1 standard deviations. Examined pixels: %2.</source>
        <translation>しきい値: 標準偏差の %1 倍。検査ピクセル数: %2。</translation>
    </message>
</context>
<context>
    <name>RepairWindow</name>
    <message>
        <source>&amp;Save the map…</source>
        <translation>マップを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Pixel Repair</source>
        <translation>Pixel Repair</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>暗時画像を撮影中</translation>
    </message>
    <message numerus="yes">
        <source>%n dark image(s) taken.</source>
        <translation>
            <numerusform>暗時画像を %n 枚撮影しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>明時画像を撮影中</translation>
    </message>
    <message>
        <source>%1 was off during the measurement, so the map also contains what the camera itself can repair.</source>
        <translation>計測中は %1 をオフにしたため、マップにはカメラ自身が補正できるピクセルも含まれます。</translation>
    </message>
    <message>
        <source>The picture is not repaired: %1.</source>
        <translation>画像を補正できません: %1。</translation>
    </message>
</context>
<context>
    <name>RestoreBar</name>
    <message>
        <source>Shows which settings differ from those when the camera was opened.</source>
        <translation>カメラを開いた時点から変わった設定を表示します。</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>閉じる(&amp;D)</translation>
    </message>
    <message>
        <source>%1 Settings that were not made with this program may have the values from power-on.</source>
        <translation>%1 このプログラム以外で行った設定は、電源投入時の値に戻っている可能性があります。</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>モニター中のため変更できません。</translation>
    </message>
    <message>
        <source>The settings were not read completely before the camera was lost.</source>
        <translation>カメラとの接続が切れる前に、設定をすべて読み取れませんでした。</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>変更内容を表示してから、すべての設定をカメラを開いた時点の状態に戻します。</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>比較(&amp;M)</translation>
    </message>
    <message>
        <source>Res&amp;tore</source>
        <translation>復元(&amp;R)</translation>
    </message>
</context>
<context>
    <name>ResultBox</name>
    <message>
        <source>Defect pixels</source>
        <translation>欠陥ピクセル</translation>
    </message>
    <message>
        <source>&amp;Mark the defect pixels</source>
        <translation>欠陥ピクセルを表示(&amp;M)</translation>
    </message>
    <message>
        <source>Replaces each defect pixel by the median of its good neighbours of the same colour.</source>
        <translation>各欠陥ピクセルを、周辺の正常な同色ピクセルの中央値に置き換えます。</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>クラスター</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>隣接する欠陥ピクセルの集まり。</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列欠陥</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>列のうち、欠陥ピクセルが 8 個以上ある部分。</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行欠陥</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>行のうち、欠陥ピクセルが 8 個以上ある部分。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Show the re&amp;paired picture</source>
        <translation>補間後の画像を表示(&amp;P)</translation>
    </message>
</context>
<context>
    <name>ResultSaver</name>
    <message>
        <source>Save the result</source>
        <translation>結果の保存</translation>
    </message>
    <message>
        <source>Results (%1)</source>
        <translation>結果 (%1)</translation>
    </message>
    <message>
        <source>These files exist already: %1. Do you want to replace them?</source>
        <translation>次のファイルは既に存在します: %1。置き換えますか?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved. %2</source>
        <translation>「%1」を保存できませんでした。%2</translation>
    </message>
</context>
<context>
    <name>SelectorTable</name>
    <message>
        <source>Read again</source>
        <translation>再読み取り</translation>
    </message>
    <message>
        <source>Values of the selected features</source>
        <translation>選択対象フィーチャーの値</translation>
    </message>
    <message>
        <source>Show the feature</source>
        <translation>フィーチャーを表示</translation>
    </message>
    <message>
        <source>The feature has no selector, so it has only one value.</source>
        <translation>このフィーチャーにはセレクターがないため、値は 1 つだけです。</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>The values for each %1</source>
        <translation>%1 ごとの値</translation>
    </message>
    <message>
        <source>%1, while %2</source>
        <translation>%1 (%2 のとき)</translation>
    </message>
    <message>
        <source>Reading the values for each %1</source>
        <translation>%1 ごとの値を読み取り中</translation>
    </message>
    <message>
        <source>Reading was cancelled.</source>
        <translation>読み取りはキャンセルされました。</translation>
    </message>
    <message>
        <source>The selector has more values; only the first ones are shown here.</source>
        <translation>セレクターの値が多いため、最初の一部だけを表示しています。</translation>
    </message>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>変更するには、ストリームを一時的に停止する必要があります。</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>停止・設定・再開</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>%1 を書き込み中</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of %2.</source>
        <translation>「%1」は %2 の値として無効です。</translation>
    </message>
</context>
<context>
    <name>Sentence</name>
    <message>
        <source>The exposure time of this camera cannot be set. Change the light until the picture has about 70 % of the range, and measure without setting the exposure time.</source>
        <translation>このカメラの露光時間は設定できません。画像がレンジの約 70 % になるように照明を調整し、露光時間の自動設定をオフにして計測してください。</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed since the dark images. Take the dark images again.</source>
        <translation>暗時画像の撮影後に ROI またはピクセルフォーマットが変わりました。暗時画像を撮り直してください。</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be corrected. Choose a Mono or Bayer format of 8 to 16 bits.</source>
        <translation>ピクセルフォーマット %1 は補正できません。8~16 ビットの Mono または Bayer フォーマットを選択してください。</translation>
    </message>
    <message>
        <source>The colours of a line scan camera cannot be corrected. Choose a Mono format.</source>
        <translation>ラインスキャンカメラのカラー画像は補正できません。Mono フォーマットを選択してください。</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed during the measurement. Measure again without changing them.</source>
        <translation>計測中に ROI またはピクセルフォーマットが変わりました。変更せずに計測し直してください。</translation>
    </message>
    <message>
        <source>%1 images are too few for a correction. Take at least %2.</source>
        <translation>画像 %1 枚では補正に不十分です。%2 枚以上撮影してください。</translation>
    </message>
    <message>
        <source>The bright images are too dark: %1 % of the range above the dark images. Is the lens still covered? Otherwise, use more light or a longer exposure time, for about 70 %.</source>
        <translation>明時画像が暗すぎます (暗時画像との差がレンジの %1 %)。レンズが遮光されたままになっていないか確認してください。遮光されていない場合は、照明を明るくするか露光時間を長くして、約 70 % にしてください。</translation>
    </message>
    <message>
        <source>The bright images have %1 % of the range. Between 50 and 80 %, the gains are most exact.</source>
        <translation>明時画像はレンジの %1 % です。50~80 % のときにゲインの精度が最も高くなります。</translation>
    </message>
    <message>
        <source>Parts of the picture have changed by %1 % between the images: something moves, or the light flickers. Use an even surface that keeps still, and steady light.</source>
        <translation>画像間で画面の一部が %1 % 変化しました。動くものがあるか、照明がちらついています。静止した均一な面と安定した照明を使用してください。</translation>
    </message>
    <message>
        <source>The brightness has changed by %1 % between the images. Use steady light.</source>
        <translation>画像間で明るさが %1 % 変化しました。安定した照明を使用してください。</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the range, so there seems to be light. Cover the lens completely. If it is covered, reduce BlackLevel or Gain.</source>
        <translation>暗時画像がレンジの %1 % あるため、光が入っていると思われます。レンズを完全に遮光してください。遮光している場合は、BlackLevel または Gain を下げてください。</translation>
    </message>
    <message>
        <source>The dark images are not equally dark everywhere. Make sure that no light reaches the lens, and take them again.</source>
        <translation>暗時画像の暗さが均一ではありません。レンズに光が入らないようにして撮り直してください。</translation>
    </message>
    <message>
        <source>%1 % of the values in the dark are 0, so the offsets are cut off. Increase BlackLevel.</source>
        <translation>暗時の値の %1 % が 0 のため、オフセットが切り捨てられています。BlackLevel を上げてください。</translation>
    </message>
    <message>
        <source>The noise in the dark is smaller than one step of the pixel format, so the numbers of the dark images are not exact. A pixel format with more bits shows the differences.</source>
        <translation>暗時のノイズがピクセルフォーマットの 1 階調より小さいため、暗時画像の数値は正確ではありません。ビット数の多いピクセルフォーマットを使用すると差が見えるようになります。</translation>
    </message>
    <message>
        <source>%1 % of the values in the bright images are clipped. Reduce the exposure time or the light, to about 70 % of the range.</source>
        <translation>明時画像の値の %1 % が飽和しています。露光時間を短くするか照明を暗くして、レンジの約 70 % にしてください。</translation>
    </message>
    <message>
        <source>The bright images show structures that look like an object and not like shading; the correction would draw them into every picture. Use an even surface, out of focus.</source>
        <translation>明時画像に、シェーディングではなく物体と思われる模様があります。このまま補正すると、すべての画像にその模様が現れます。均一な面を使用し、ピントを外してください。</translation>
    </message>
    <message>
        <source>The picture is too dark. Remove the lens cap, open the aperture, add light or lengthen the exposure time.</source>
        <translation>画像が暗すぎます。レンズキャップを外す、絞りを開く、照明を明るくする、露光時間を長くする、のいずれかを行ってください。</translation>
    </message>
    <message>
        <source>%1 % of the pixels are overexposed. Close the aperture or shorten the exposure time.</source>
        <translation>ピクセルの %1 % が露出オーバーです。絞りを絞るか、露光時間を短くしてください。</translation>
    </message>
    <message>
        <source>The picture has no edges. Point the camera at something with structure, for example a printed page, or turn the lens if the picture is blurred.</source>
        <translation>画像にエッジがありません。印刷物など模様のあるものにカメラを向けてください。画像がぼけている場合は、レンズを回してください。</translation>
    </message>
    <message>
        <source>Pictures of this pixel format cannot be measured. Choose a Mono, Bayer, RGB or YUV format.</source>
        <translation>このピクセルフォーマットの画像は計測できません。Mono、Bayer、RGB、YUV のいずれかのフォーマットを選択してください。</translation>
    </message>
    <message>
        <source>The picture is too small for so many regions. Choose a larger Width and Height, or fewer regions.</source>
        <translation>領域の数に対して画像が小さすぎます。Width と Height を大きくするか、領域の数を減らしてください。</translation>
    </message>
    <message>
        <source>The picture became sharp at no position of the lens. Point the camera at something with structure, check the distance, and search again.</source>
        <translation>レンズのどの位置でも合焦しませんでした。模様のあるものにカメラを向け、距離を確認して、もう一度探索してください。</translation>
    </message>
    <message>
        <source>The camera cannot move its lens: it has no feature for the position of the focus, for example LensFocusPosition. Turn the lens by hand.</source>
        <translation>このカメラには LensFocusPosition などのフォーカス位置のフィーチャーがないため、レンズを駆動できません。レンズを手で回してください。</translation>
    </message>
    <message>
        <source>The right edge is sharp at a higher position than the left edge, by %1.</source>
        <translation>右端は左端より %1 大きい位置で合焦します。</translation>
    </message>
    <message>
        <source>The left edge became sharp before the right edge, by %1 s.</source>
        <translation>左端は右端より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>The lower right corner is sharp at a higher position than the upper left corner, by %1.</source>
        <translation>右下は左上より %1 大きい位置で合焦します。</translation>
    </message>
    <message>
        <source>The upper left corner became sharp before the lower right corner, by %1 s.</source>
        <translation>左上は右下より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>The lower edge is sharp at a higher position than the upper edge, by %1.</source>
        <translation>下端は上端より %1 大きい位置で合焦します。</translation>
    </message>
    <message>
        <source>The upper edge became sharp before the lower edge, by %1 s.</source>
        <translation>上端は下端より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>The lower left corner is sharp at a higher position than the upper right corner, by %1.</source>
        <translation>左下は右上より %1 大きい位置で合焦します。</translation>
    </message>
    <message>
        <source>The upper right corner became sharp before the lower left corner, by %1 s.</source>
        <translation>右上は左下より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>The left edge is sharp at a higher position than the right edge, by %1.</source>
        <translation>左端は右端より %1 大きい位置で合焦します。</translation>
    </message>
    <message>
        <source>The right edge became sharp before the left edge, by %1 s.</source>
        <translation>右端は左端より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>The upper left corner is sharp at a higher position than the lower right corner, by %1.</source>
        <translation>左上は右下より %1 大きい位置で合焦します。</translation>
    </message>
    <message>
        <source>The lower right corner became sharp before the upper left corner, by %1 s.</source>
        <translation>右下は左上より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>The upper edge is sharp at a higher position than the lower edge, by %1.</source>
        <translation>上端は下端より %1 大きい位置で合焦します。</translation>
    </message>
    <message>
        <source>The lower edge became sharp before the upper edge, by %1 s.</source>
        <translation>下端は上端より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>The upper right corner is sharp at a higher position than the lower left corner, by %1.</source>
        <translation>右上は左下より %1 大きい位置で合焦します。</translation>
    </message>
    <message>
        <source>The lower left corner became sharp before the upper right corner, by %1 s.</source>
        <translation>左下は右上より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>Turn the lens slowly in one direction, until the picture has become blurred again.</source>
        <translation>画像が再びぼけるまで、レンズを一方向にゆっくり回してください。</translation>
    </message>
    <message>
        <source>Keep turning in this direction.</source>
        <translation>そのまま同じ方向に回してください。</translation>
    </message>
    <message>
        <source>Turn back: the peak lies in the other direction.</source>
        <translation>逆方向に回してください。ピークは反対側にあります。</translation>
    </message>
    <message>
        <source>The best position is %1. The lens is there.</source>
        <translation>最適位置は %1 です。レンズはその位置にあります。</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens up by %2.</source>
        <translation>最適位置は %1 です。レンズの位置を %2 増やしてください。</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens down by %2.</source>
        <translation>最適位置は %1 です。レンズの位置を %2 減らしてください。</translation>
    </message>
    <message>
        <source>Too few regions became sharp and blurred again to tell whether the focus is tilted. Point the camera at something with edges all over the picture, and go through the sharpest position once more.</source>
        <translation>合焦位置を通過した領域が少なすぎるため、ピント面の傾きを判定できません。画面全体にエッジのあるものにカメラを向け、最も鮮鋭な位置をもう一度通過させてください。</translation>
    </message>
    <message>
        <source>The focus is not tilted.</source>
        <translation>ピント面に傾きはありません。</translation>
    </message>
    <message>
        <source>The centre became sharp before the corners, by %1 s.</source>
        <translation>中央は四隅より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>The corners became sharp before the centre, by %1 s.</source>
        <translation>四隅は中央より %1 秒早く合焦しました。</translation>
    </message>
    <message>
        <source>The corners are sharp at a higher position than the centre, by %1.</source>
        <translation>四隅は中央より %1 大きい位置で合焦します。</translation>
    </message>
    <message>
        <source>The corners are sharp at a lower position than the centre, by %1.</source>
        <translation>四隅は中央より %1 小さい位置で合焦します。</translation>
    </message>
    <message>
        <source>The link carries %1 MB/s: at most %2 kHz with this width and pixel format. Choose a smaller width, a pixel format with fewer bits, or a lower speed.</source>
        <translation>接続の帯域は %1 MB/s です。現在の幅とピクセルフォーマットでは最大 %2 kHz です。幅を小さくするか、ビット数の少ないピクセルフォーマットを選択するか、速度を下げてください。</translation>
    </message>
    <message>
        <source>The exposure allows at most %1 kHz, because a line cannot be shorter than its exposure. Shorten the exposure, and add light or gain.</source>
        <translation>1 ラインは露光時間より短くできないため、現在の露光時間では最大 %1 kHz です。露光時間を短くし、照明を明るくするかゲインを上げてください。</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz with its present settings. Choose a lower speed or a smaller magnification.</source>
        <translation>カメラの現在の設定では最大 %1 kHz です。速度を下げるか、光学倍率を小さくしてください。</translation>
    </message>
    <message>
        <source>This camera takes whole pictures. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>このカメラはエリアスキャンカメラです。移動する対象物を 1 ラインずつ撮像するラインスキャンカメラを選択してください。</translation>
    </message>
    <message>
        <source>Every number must be greater than 0.</source>
        <translation>すべての数値を 0 より大きくしてください。</translation>
    </message>
    <message>
        <source>Enter the pixel size and the magnification, or the size of a pixel on the object.</source>
        <translation>ピクセルサイズと光学倍率、または対象物上の 1 ピクセルの寸法を入力してください。</translation>
    </message>
    <message>
        <source>Enter the speed of the object.</source>
        <translation>対象物の速度を入力してください。</translation>
    </message>
    <message>
        <source>Enter the movement per encoder pulse, or the pulses per revolution and the diameter of the roller.</source>
        <translation>エンコーダー 1 パルスの移動量、または 1 回転のパルス数とローラー径を入力してください。</translation>
    </message>
    <message>
        <source>The camera has no line rate of its own (AcquisitionLineRate). Use an encoder, or an external trigger.</source>
        <translation>このカメラには独自のラインレート (AcquisitionLineRate) がありません。エンコーダーまたは外部トリガーを使用してください。</translation>
    </message>
    <message>
        <source>The camera cannot start lines by an encoder (TriggerSelector has no LineStart). Use its line rate.</source>
        <translation>このカメラはエンコーダーでラインを開始できません (TriggerSelector に LineStart がありません)。カメラのラインレートを使用してください。</translation>
    </message>
    <message>
        <source>The exposure of %1 µs is longer than a line. It has to be shortened to %2 µs, so the picture becomes darker: add light or gain.</source>
        <translation>露光時間 %1 µs は 1 ラインより長いため、%2 µs に短縮する必要があります。画像が暗くなるので、照明を明るくするかゲインを上げてください。</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification, or use another encoder.</source>
        <translation>カメラに設定できる最も近い値では、対象物が %1 % 縦長になります。光学倍率を変更するか、別のエンコーダーを使用してください。</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification, or use another encoder.</source>
        <translation>カメラに設定できる最も近い値では、対象物が %1 % 横長になります。光学倍率を変更するか、別のエンコーダーを使用してください。</translation>
    </message>
    <message>
        <source>The camera offers no encoder as the source of its line trigger (TriggerSource). Use its line rate.</source>
        <translation>このカメラではライントリガーのソース (TriggerSource) にエンコーダーを選択できません。カメラのラインレートを使用してください。</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz, but square pixels need %2 kHz. Nothing was changed. Choose a lower speed or a smaller magnification.</source>
        <translation>カメラは最大 %1 kHz ですが、正方ピクセルには %2 kHz が必要です。何も変更していません。速度を下げるか、光学倍率を小さくしてください。</translation>
    </message>
    <message>
        <source>The camera has refused %1, so nothing was changed. %2</source>
        <translation>カメラが %1 を受け付けなかったため、何も変更していません。%2</translation>
    </message>
    <message>
        <source>The circle is round: height and width differ by %1 %.</source>
        <translation>円は真円です。高さと幅の差は %1 % です。</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the lines per encoder pulse from %2 to %3.</source>
        <translation>円が %1 % 縦長です。エンコーダー 1 パルスあたりのライン数を %2 から %3 に下げてください。</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the lines per encoder pulse from %2 to %3.</source>
        <translation>円が %1 % 横長です。エンコーダー 1 パルスあたりのライン数を %2 から %3 に上げてください。</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the line rate from %2 kHz to %3 kHz.</source>
        <translation>円が %1 % 縦長です。ラインレートを %2 kHz から %3 kHz に下げてください。</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the line rate from %2 kHz to %3 kHz.</source>
        <translation>円が %1 % 横長です。ラインレートを %2 kHz から %3 kHz に上げてください。</translation>
    </message>
    <message>
        <source>The border of the round target is uneven. Check whether the object moves evenly, whether lines are lost, and whether the target is sharp and free of other shapes.</source>
        <translation>円形ターゲットの輪郭が不規則です。対象物が一定速度で動いているか、ラインが欠落していないか、ターゲットにピントが合い、ほかの図形が重なっていないかを確認してください。</translation>
    </message>
    <message>
        <source>There is no complete round target in the picture of %1 lines. Show the camera a dark or bright disc or ring, or make the picture higher (Height).</source>
        <translation>%1 ラインの画像に、全体が収まった円形ターゲットがありません。暗いまたは明るい円板かリングを写すか、画像の高さ (Height) を大きくしてください。</translation>
    </message>
    <message>
        <source>The picture has too little contrast. Take off the lens cap, add light, and show the camera a dark or bright disc or ring.</source>
        <translation>画像のコントラストが低すぎます。レンズキャップを外し、照明を明るくして、暗いまたは明るい円板かリングを写してください。</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s, because it waits for a trigger. Trigger it, or set TriggerMode to Off, and measure again.</source>
        <translation>カメラはトリガー待ちのため、%1 秒間画像を送信していません。トリガーを送るか、TriggerMode を Off にして計測し直してください。</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s. Check whether the live picture moves, and the cable, then measure again.</source>
        <translation>カメラから %1 秒間画像が届いていません。ライブ画像が動いているか、またケーブルを確認して、計測し直してください。</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Check its cable and its power, wait until the picture is back, then measure again. (%1)</source>
        <translation>計測中にカメラとの接続が切れました。ケーブルと電源を確認し、画像が復帰したら計測し直してください。(%1)</translation>
    </message>
    <message>
        <source>The images arrive with missing data. Check the cable and the network card (&quot;cvxctl doctor&quot; helps), or lower the image rate, then measure again.</source>
        <translation>受信した画像のデータが不足しています。ケーブルとネットワークカードを確認するか (「cvxctl doctor」で診断できます)、フレームレートを下げて計測し直してください。</translation>
    </message>
    <message>
        <source>The measurement was cancelled.</source>
        <translation>計測はキャンセルされました。</translation>
    </message>
    <message>
        <source>The pixel values are not proportional to the light. Set Gamma to 1, then measure again.</source>
        <translation>ピクセルの値が光量に比例していません。Gamma を 1 に設定して計測し直してください。</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;DeviceTapGeometry&quot;. Choose the layout of its taps by hand.</source>
        <translation>このカメラにはフィーチャー「DeviceTapGeometry」がありません。タップ構成を手動で選択してください。</translation>
    </message>
    <message>
        <source>The tap geometry &quot;%1&quot; is unknown. Choose the layout of the taps by hand.</source>
        <translation>タップジオメトリー「%1」は未知です。タップ構成を手動で選択してください。</translation>
    </message>
    <message>
        <source>The sensor has one tap only, so there is nothing to balance. If that is wrong, choose the layout of the taps by hand.</source>
        <translation>センサーのタップは 1 つだけのため、調整は不要です。これが誤りの場合は、タップ構成を手動で選択してください。</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;%1&quot;, so its taps can be measured, but not set.</source>
        <translation>このカメラにはフィーチャー「%1」がないため、タップの計測はできますが設定はできません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the entries Tap1 to Tap%2, so the taps can be measured, but not set. Choose the layout of the camera&apos;s taps.</source>
        <translation>「%1」に Tap1~Tap%2 の項目がないため、タップの計測はできますが設定はできません。カメラのタップ構成を選択してください。</translation>
    </message>
    <message>
        <source>The scene moves: %1 % of the picture has changed during the measurement. Show an even surface that rests, then measure again.</source>
        <translation>被写体が動いています。計測中に画像の %1 % が変化しました。静止した均一な面を写して計測し直してください。</translation>
    </message>
    <message>
        <source>The picture is overexposed: %1 % of a tap&apos;s pixels have the largest value. Shorten the exposure time or close the lens aperture, then measure again.</source>
        <translation>画像が露出オーバーです。あるタップのピクセルの %1 % が最大値に達しています。露光時間を短くするか絞りを絞って、計測し直してください。</translation>
    </message>
    <message>
        <source>The picture is too dark: it reaches %1 % of the range. Remove the lens cap, add light or lengthen the exposure time, then measure again.</source>
        <translation>画像が暗すぎます (レンジの %1 %)。レンズキャップを外す、照明を明るくする、露光時間を長くする、のいずれかを行い、計測し直してください。</translation>
    </message>
    <message>
        <source>The picture is not dark: its mean is %1 % of the range. Cover the lens, then measure again.</source>
        <translation>画像が十分に暗くありません (平均がレンジの %1 %)。レンズを遮光して計測し直してください。</translation>
    </message>
    <message>
        <source>The dark picture is cut off: %1 % of a tap&apos;s pixels are 0. Raise the black level, then measure again.</source>
        <translation>暗時画像が黒つぶれしています。あるタップのピクセルの %1 % が 0 です。黒レベルを上げて計測し直してください。</translation>
    </message>
    <message>
        <source>The step between tap %1 and tap %2 cannot be told from the scene. Show an even surface, or take more images, then measure again.</source>
        <translation>タップ %1 とタップ %2 の間の段差を被写体の模様と区別できません。均一な面を写すか画像の枚数を増やして、計測し直してください。</translation>
    </message>
    <message>
        <source>Taps cannot be measured in this pixel format. Choose a Mono or Bayer format of 8 to 16 bits, then measure again.</source>
        <translation>このピクセルフォーマットではタップを計測できません。8~16 ビットの Mono または Bayer フォーマットを選択して計測し直してください。</translation>
    </message>
    <message>
        <source>The taps read neighbouring pixels in turn, which have different colours, so taps and colours cannot be told apart. Choose a layout of stripes by hand.</source>
        <translation>各タップが色の異なる隣接ピクセルを交互に読み出すため、タップの差と色の差を区別できません。帯状のタップ構成を手動で選択してください。</translation>
    </message>
    <message>
        <source>Binning adds up pixels of several taps. Switch it off, then measure again.</source>
        <translation>ビニングにより複数タップのピクセルが加算されています。ビニングをオフにして計測し直してください。</translation>
    </message>
    <message>
        <source>The size or the format of the images has changed during the measurement. Measure again.</source>
        <translation>計測中に画像のサイズまたはフォーマットが変わりました。計測し直してください。</translation>
    </message>
    <message>
        <source>The dark level of this pixel format cannot be measured; choose a Mono, Bayer or RGB format.</source>
        <translation>このピクセルフォーマットの暗時レベルは計測できません。Mono、Bayer、RGB のいずれかのフォーマットを選択してください。</translation>
    </message>
    <message>
        <source>The picture is not dark. Put the cap on the lens, or cover the lens completely.</source>
        <translation>画像が十分に暗くありません。レンズにキャップを付けるか、レンズを完全に遮光してください。</translation>
    </message>
    <message>
        <source>%1 % of the pixels are 0, which hides the dark level. Raise BlackLevel, so that the noise lies above 0.</source>
        <translation>ピクセルの %1 % が 0 のため、暗時レベルを計測できません。BlackLevel を上げ、ノイズが 0 より上に収まるようにしてください。</translation>
    </message>
    <message>
        <source>The noise is smaller than one step of the pixel format, which hides small changes of the dark level. Choose a pixel format with more bits, or a higher gain.</source>
        <translation>ノイズがピクセルフォーマットの 1 階調より小さいため、暗時レベルのわずかな変化を検出できません。ビット数の多いピクセルフォーマットを選択するか、ゲインを上げてください。</translation>
    </message>
    <message>
        <source>The features cannot be read: %1</source>
        <translation>フィーチャーを読み取れません: %1</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature.</source>
        <translation>このカメラにはフィーチャー DeviceTemperature がないため、温度を取得できません。</translation>
    </message>
    <message>
        <source>The scene moves, so the regions&apos; shares also change with what they show. Let it stand still to compare the regions.</source>
        <translation>被写体が動いているため、各領域のピーク比は被写体によっても変化します。領域を比較するには、被写体を静止させてください。</translation>
    </message>
    <message>
        <source>The picture is as sharp as it gets. Lock the lens.</source>
        <translation>ピントは最良の状態です。レンズを固定してください。</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification or the speed.</source>
        <translation>カメラに設定できる最も近い値では、対象物が %1 % 縦長になります。光学倍率または速度を変更してください。</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification or the speed.</source>
        <translation>カメラに設定できる最も近い値では、対象物が %1 % 横長になります。光学倍率または速度を変更してください。</translation>
    </message>
    <message>
        <source>The camera has refused a setting, and then also refused to go back to %1: %2</source>
        <translation>カメラが設定を受け付けず、さらに %1 への復元も受け付けませんでした: %2</translation>
    </message>
    <message>
        <source>The stream has ended during the measurement. Start the live picture and measure again.</source>
        <translation>計測中に画像の受信が終了しました。ライブ表示を開始して計測し直してください。</translation>
    </message>
    <message>
        <source>The picture shows no border between tap %1 and the other taps. Set the region to the whole sensor, or choose another layout, then measure again.</source>
        <translation>タップ %1 とほかのタップとの境界が画像にありません。領域をセンサー全体に設定するか、別のタップ構成を選択してから、もう一度計測してください。</translation>
    </message>
</context>
<context>
    <name>SettingTexts</name>
    <message>
        <source>Without category</source>
        <translation>カテゴリーなし</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save settings…</source>
        <translation>設定を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Load settings…</source>
        <translation>設定を読み込む(&amp;L)…</translation>
    </message>
    <message>
        <source>As it &amp;was when I opened it…</source>
        <translation>開いた時点の設定に戻す(&amp;W)…</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>モニター中のため変更できません。</translation>
    </message>
    <message>
        <source>The camera is not open.</source>
        <translation>カメラが開かれていません。</translation>
    </message>
    <message>
        <source>Saves all settings to a file that other GenICam programs can read, too.</source>
        <translation>他の GenICam プログラムでも読み込めるファイルに、すべての設定を保存します。</translation>
    </message>
    <message>
        <source>Shows what a settings file would change, and then loads it.</source>
        <translation>設定ファイルによる変更内容を表示してから読み込みます。</translation>
    </message>
    <message>
        <source>The settings from the opening are not completely known.</source>
        <translation>開いた時点の設定がすべて揃っていません。</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>変更内容を表示してから、すべての設定をカメラを開いた時点の状態に戻します。</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>設定の保存</translation>
    </message>
    <message>
        <source>Settings files (%1)</source>
        <translation>設定ファイル (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>すべてのファイル (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were saved to &quot;%1&quot;.</source>
        <translation>
            <numerusform>設定 %n 件を「%1」に保存しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s):</source>
        <translation>
            <numerusform>注記 %n 件:</numerusform>
        </translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>設定の読み込み</translation>
    </message>
    <message>
        <source>the settings from the opening</source>
        <translation>開いた時点の設定</translation>
    </message>
</context>
<context>
    <name>SettingsLoad</name>
    <message>
        <source>Comparing %1 with the camera</source>
        <translation>「%1」をカメラと比較中</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>「%1」を読み込み中</translation>
    </message>
    <message>
        <source>Putting back the settings from before %1</source>
        <translation>「%1」の読み込み前の設定に復元中</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>「%1」の読み込み</translation>
    </message>
    <message>
        <source>Undo loading %1</source>
        <translation>「%1」の読み込みを元に戻す</translation>
    </message>
</context>
<context>
    <name>SettingsSave</name>
    <message>
        <source>Saving the settings</source>
        <translation>設定を保存中</translation>
    </message>
    <message>
        <source>Saving was cancelled. The file was not written.</source>
        <translation>保存はキャンセルされました。ファイルは書き込まれていません。</translation>
    </message>
    <message>
        <source>The camera has no settings that belong in a file. The file was not written.</source>
        <translation>ファイルに保存できる設定がこのカメラにはありません。ファイルは書き込まれていません。</translation>
    </message>
</context>
<context>
    <name>SettingsSource</name>
    <message>
        <source>The reading was cancelled.</source>
        <translation>読み取りはキャンセルされました。</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Camera Setup</source>
        <translation>Camera Setup</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>フィーチャー</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>フィーチャー</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>ユーザーセット</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>All selector values</source>
        <translation>セレクターの全値</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>やり直す: %1</translation>
    </message>
    <message>
        <source>&amp;Find a feature</source>
        <translation>フィーチャーを検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>Live &amp;picture</source>
        <translation>ライブ画像(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Compare with the opening</source>
        <translation>開いた時点と比較(&amp;C)</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>Image Viewer で開く(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>パネル(&amp;P)</translation>
    </message>
    <message>
        <source>F2, Return</source>
        <translation>F2, Enter</translation>
    </message>
    <message>
        <source>Edit the value of the selected feature</source>
        <translation>選択したフィーチャーの値を編集</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>←, →</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s). The settings at opening are being read.</source>
        <translation>
            <numerusform>フィーチャー %n 個。開いた時点の設定を読み取っています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>フィーチャー %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed since opening</source>
        <translation>
            <numerusform>開いてから %n 個変更</numerusform>
        </translation>
    </message>
    <message>
        <source>Collapse or expand a category</source>
        <translation>カテゴリーを閉じる / 開く</translation>
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
    <name>SideBox</name>
    <message>
        <source>Shows what could not be read, and why.</source>
        <translation>読み取れなかった項目とその理由を表示します。</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>ファイル…</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s), %1</source>
        <translation>
            <numerusform>設定 %n 件、%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>注記 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Not read yet.</source>
        <translation>まだ読み取られていません。</translation>
    </message>
    <message>
        <source>Notes on what was read:</source>
        <translation>読み取り時の注記:</translation>
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
    <name>StepCard</name>
    <message>
        <source>Step %1, not yet possible: %2</source>
        <translation>手順 %1、まだ実行できません: %2</translation>
    </message>
    <message>
        <source>Step %1, next: %2</source>
        <translation>手順 %1、次の手順: %2</translation>
    </message>
    <message>
        <source>Step %1, done: %2</source>
        <translation>手順 %1、完了: %2</translation>
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
    <name>TapBars</name>
    <message>
        <source>Deviation of each tap</source>
        <translation>各タップの偏差</translation>
    </message>
    <message>
        <source>Grey: before; blue: now</source>
        <translation>グレー: 変更前、青: 現在</translation>
    </message>
    <message>
        <source>Tap %1: %2 %3</source>
        <translation>タップ %1: %2 %3</translation>
    </message>
    <message>
        <source>Not measured yet</source>
        <translation>未計測</translation>
    </message>
</context>
<context>
    <name>TapPanel</name>
    <message>
        <source>Tap</source>
        <translation>タップ</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>ノイズ</translation>
    </message>
    <message>
        <source>Mismatch of the taps</source>
        <translation>タップ間の差</translation>
    </message>
    <message>
        <source>Skip this step</source>
        <translation>この手順をスキップ</translation>
    </message>
    <message>
        <source>Undo the last balancing</source>
        <translation>前回の調整を元に戻す</translation>
    </message>
    <message>
        <source>Mean and noise of each tap</source>
        <translation>各タップの平均とノイズ</translation>
    </message>
    <message>
        <source>Shading changes the means, so the steps at the borders say how the taps differ.</source>
        <translation>平均はシェーディングの影響を受けるため、タップ間の差は境界の段差で判定します。</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>計測</translation>
    </message>
    <message>
        <source>Show an even, bright surface that fills the picture, for example a white sheet out of focus.</source>
        <translation>均一で明るい面 (ピントを外した白紙など) を画面全体に写してください。</translation>
    </message>
    <message>
        <source>Measure the taps</source>
        <translation>タップを計測</translation>
    </message>
    <message>
        <source>Black levels</source>
        <translation>黒レベル</translation>
    </message>
    <message>
        <source>Cover the lens. Without this step, differences of the black levels count as those of the gains.</source>
        <translation>レンズを遮光してください。この手順を省くと、黒レベルの差がゲインの差として扱われます。</translation>
    </message>
    <message>
        <source>Balance the black levels</source>
        <translation>黒レベルを調整</translation>
    </message>
    <message>
        <source>Gains</source>
        <translation>ゲイン</translation>
    </message>
    <message>
        <source>Uncover the lens and show the even, bright surface again.</source>
        <translation>レンズのカバーを外し、均一で明るい面をもう一度写してください。</translation>
    </message>
    <message>
        <source>Balance the gains</source>
        <translation>ゲインを調整</translation>
    </message>
    <message>
        <source>The camera has the new values until it is switched off. Store them in a user set with Camera Setup to keep them.</source>
        <translation>新しい値は、カメラの電源を切ると失われます。保持するには、Camera Setup でユーザーセットに保存してください。</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>結果を保存…</translation>
    </message>
    <message>
        <source>The taps differ by up to %1.</source>
        <translation>タップ間の差は最大 %1 です。</translation>
    </message>
    <message>
        <source>Keep the values</source>
        <translation>設定の保持</translation>
    </message>
</context>
<context>
    <name>TapReport</name>
    <message>
        <source>Tap Balance</source>
        <translation>Tap Balance</translation>
    </message>
    <message>
        <source>Layout of the taps: %1</source>
        <translation>タップ構成: %1</translation>
    </message>
    <message>
        <source>Deviation of each tap; grey: before, blue: now</source>
        <translation>各タップの偏差 (グレー: 変更前、青: 現在)</translation>
    </message>
    <message>
        <source>Bright picture</source>
        <translation>明時画像</translation>
    </message>
    <message>
        <source>Dark picture</source>
        <translation>暗時画像</translation>
    </message>
    <message>
        <source>The picture with the borders of the taps</source>
        <translation>タップの境界を示した画像</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation>タップ</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>ノイズ</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>偏差</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>タップ</translation>
    </message>
    <message>
        <source>Step at the border</source>
        <translation>境界の段差</translation>
    </message>
    <message>
        <source>The deviations follow from the steps at the borders, which straight lines on both sides are extended to; shading has no influence. The noise is the temporal standard deviation of a pixel by the differences of successive images (EMVA 1288). The uncertainty of a step is twice its standard error.</source>
        <translation>偏差は境界の段差から求めます。段差は、境界の両側に当てはめた直線を境界まで延長して求めるため、シェーディングの影響を受けません。ノイズは、連続する画像の差分から求めたピクセルの時間標準偏差です (EMVA 1288)。段差の不確かさは標準誤差の 2 倍です。</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>%1 (変更前)</translation>
    </message>
    <message>
        <source>now</source>
        <translation>現在</translation>
    </message>
</context>
<context>
    <name>TapSession</name>
    <message>
        <source>Measuring the taps</source>
        <translation>タップを計測中</translation>
    </message>
    <message>
        <source>Balancing the gains</source>
        <translation>ゲインを調整中</translation>
    </message>
    <message>
        <source>Balancing the black levels</source>
        <translation>黒レベルを調整中</translation>
    </message>
    <message>
        <source>Putting the earlier values back</source>
        <translation>以前の値を復元中</translation>
    </message>
</context>
<context>
    <name>TapTexts</name>
    <message>
        <source>The mismatch fell from %1 to %2.</source>
        <translation>タップ間の差が %1 から %2 に減少しました。</translation>
    </message>
    <message>
        <source>The mismatch fell from %1 to %2. The camera offers no finer values.</source>
        <translation>タップ間の差が %1 から %2 に減少しました。カメラではこれ以上細かく設定できません。</translation>
    </message>
    <message>
        <source>DN</source>
        <comment>unit of pixel values</comment>
        <translation>階調</translation>
    </message>
</context>
<context>
    <name>TapWindow</name>
    <message>
        <source>Tap Balance</source>
        <translation>Tap Balance</translation>
    </message>
    <message>
        <source>The camera has no feature GainSelector, so the gains of its taps cannot be set one by one. Use a flat-field correction instead.</source>
        <translation>このカメラにはフィーチャー GainSelector がないため、タップごとにゲインを設定できません。代わりにフラットフィールド補正を使用してください。</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>結果を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Undo the last balancing</source>
        <translation>前回の調整を元に戻す(&amp;U)</translation>
    </message>
</context>
<context>
    <name>TargetOverlay</name>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
</context>
<context>
    <name>TemperaturePlot</name>
    <message>
        <source>Time since the start</source>
        <translation>開始からの時間</translation>
    </message>
    <message>
        <source>Temperature in °C</source>
        <translation>温度 (°C)</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>暗時レベル</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>アラーム</translation>
    </message>
    <message>
        <source>Final value of %1</source>
        <translation>%1 の最終値</translation>
    </message>
    <message>
        <source>Dark level follows</source>
        <translation>暗時レベルの追従開始</translation>
    </message>
    <message>
        <source>Show the &amp;last</source>
        <translation>表示期間(&amp;P)</translation>
    </message>
    <message>
        <source>Temperatures since the start</source>
        <translation>開始からの温度</translation>
    </message>
    <message>
        <source>Dark level since the start</source>
        <translation>開始からの暗時レベル</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message numerus="yes">
        <source>At most %n character(s)</source>
        <translation>
            <numerusform>最大 %n 文字</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>ThermalPanel</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>結果を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Notify me</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>暗時レベル</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Read &amp;every</source>
        <translation>読み取り間隔(&amp;E)</translation>
    </message>
    <message>
        <source>Start a&amp;new</source>
        <translation>最初から(&amp;N)</translation>
    </message>
    <message>
        <source>Forgets the readings and begins again. A running log goes on.</source>
        <translation>測定値を消去して最初から始めます。実行中のログは継続します。</translation>
    </message>
</context>
<context>
    <name>ThermalReport</name>
    <message>
        <source>Thermal Monitor</source>
        <translation>Thermal Monitor</translation>
    </message>
    <message>
        <source>Readings since %1 (UTC).</source>
        <translation>測定開始: %1 (UTC)。</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>測定箇所</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Expected final value in °C</source>
        <translation>予測最終値 (°C)</translation>
    </message>
    <message>
        <source>Time constant</source>
        <translation>時定数</translation>
    </message>
    <message>
        <source>Steady in</source>
        <translation>安定まで</translation>
    </message>
    <message>
        <source>The final value belongs to an exponential curve through the readings; the uncertainty is twice the standard deviation. Steady means within 0.5 K of the final value, or a change of less than 0.1 K per minute.</source>
        <translation>最終値は、測定値に当てはめた指数曲線から求めます。不確かさは標準偏差の 2 倍です。最終値との差が 0.5 K 以内、または変化が毎分 0.1 K 未満の状態を「安定」とします。</translation>
    </message>
    <message>
        <source>Temperatures over time</source>
        <translation>温度の推移</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>暗時レベル</translation>
    </message>
    <message>
        <source>Dark level over time</source>
        <translation>暗時レベルの推移</translation>
    </message>
</context>
<context>
    <name>ThermalSession</name>
    <message>
        <source>The camera has not been read yet.</source>
        <translation>カメラからまだ読み取られていません。</translation>
    </message>
</context>
<context>
    <name>ThermalTexts</name>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>10 min</source>
        <translation>10 分</translation>
    </message>
    <message>
        <source>1 h</source>
        <translation>1 時間</translation>
    </message>
    <message>
        <source>24 h</source>
        <translation>24 時間</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>Cannot be read at present</source>
        <translation>現在は読み取り不可</translation>
    </message>
    <message>
        <source>Rate and state are known in %1.</source>
        <translation>変化率と状態は %1後に判明します。</translation>
    </message>
    <message>
        <source>Warming up, %1 K/min</source>
        <translation>昇温中、%1 K/min</translation>
    </message>
    <message>
        <source>Cooling, %1 K/min</source>
        <translation>降温中、%1 K/min</translation>
    </message>
    <message>
        <source>Steady, %1 K/min</source>
        <translation>安定、%1 K/min</translation>
    </message>
    <message>
        <source>The temperature does not change any more.</source>
        <translation>温度の変化は収まりました。</translation>
    </message>
    <message>
        <source>The final value is not determined yet.</source>
        <translation>最終値はまだ求められていません。</translation>
    </message>
    <message>
        <source>Expected final value: %1 °C ± %2 K</source>
        <translation>予測最終値: %1 °C ± %2 K</translation>
    </message>
    <message>
        <source>%1, steady in %2</source>
        <translation>%1、安定まで %2</translation>
    </message>
    <message>
        <source>Alarm: %1 has reached %2. Cool the camera or let it work less.</source>
        <translation>アラーム: %1 が %2 に達しました。カメラを冷却するか、負荷を下げてください。</translation>
    </message>
    <message>
        <source>Warning: %1 is at %2.</source>
        <translation>警告: %1 が %2 です。</translation>
    </message>
    <message>
        <source>%1 is below the thresholds again: %2.</source>
        <translation>%1 がしきい値未満に戻りました: %2。</translation>
    </message>
    <message>
        <source>Dark level: %1</source>
        <translation>暗時レベル: %1</translation>
    </message>
    <message>
        <source>Dark level: %1 (noise %2)</source>
        <translation>暗時レベル: %1 (ノイズ %2)</translation>
    </message>
    <message>
        <source>The dark level has followed the temperature since %1 after the start.</source>
        <translation>暗時レベルは、開始 %1後から温度に追従しています。</translation>
    </message>
    <message>
        <source>The dark level has not changed by more than its noise.</source>
        <translation>暗時レベルにノイズを超える変化はありません。</translation>
    </message>
    <message>
        <source>The dark signal doubles every %1 ± %2 K.</source>
        <translation>暗信号は %1 ± %2 K ごとに 2 倍になります。</translation>
    </message>
    <message>
        <source>The doubling temperature is not determined yet; the temperature has to change more.</source>
        <translation>暗信号が 2 倍になる温度差はまだ求められていません。温度のさらなる変化が必要です。</translation>
    </message>
</context>
<context>
    <name>ThermalWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>結果を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Thermal Monitor</source>
        <translation>Thermal Monitor</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature. The data sheet says whether a newer firmware does.</source>
        <translation>このカメラにはフィーチャー DeviceTemperature がないため、温度を取得できません。新しいファームウェアで対応しているかどうかは、データシートで確認してください。</translation>
    </message>
</context>
<context>
    <name>ThresholdBox</name>
    <message>
        <source>&amp;Warning at</source>
        <translation>警告温度(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Alarm at</source>
        <translation>アラーム温度(&amp;A)</translation>
    </message>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source>A warning or an alarm ends when the temperature is so far below its threshold again.</source>
        <translation>警告またはアラームは、温度がしきい値をこの値だけ下回ると解除されます。</translation>
    </message>
    <message>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <source>Ends &amp;below by</source>
        <translation>ヒステリシス(&amp;B)</translation>
    </message>
    <message>
        <source>The program notifies you, also while its window is behind others, when a place gets this warm.</source>
        <translation>測定箇所がこの温度に達すると、ウィンドウが背面にあっても通知します。</translation>
    </message>
</context>
<context>
    <name>ThresholdControl</name>
    <message>
        <source>How far a pixel deviates from its neighbours before it counts as a defect, in standard deviations of the good pixels. At 6 σ, less than one good pixel per megapixel is taken for a defect.</source>
        <translation>ピクセルが周辺ピクセルからどれだけ外れると欠陥とみなすかを、正常ピクセルの標準偏差を単位として指定します。6 σ では、正常ピクセルが欠陥と判定されるのは 1 メガピクセルあたり 1 個未満です。</translation>
    </message>
    <message>
        <source>&amp;Threshold</source>
        <translation>しきい値(&amp;T)</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source> σ</source>
        <translation> σ</translation>
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
    <name>UserSetControl</name>
    <message>
        <source>Reading the user sets</source>
        <translation>ユーザーセットを読み取り中</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>モニター中のため変更できません。</translation>
    </message>
    <message>
        <source>The camera does not offer this.</source>
        <translation>カメラがこの操作に対応していません。</translation>
    </message>
    <message>
        <source>The camera does not let the set for power-on be chosen.</source>
        <translation>このカメラでは、電源投入時のユーザーセットを選択できません。</translation>
    </message>
    <message>
        <source>The camera does not allow this set at power-on.</source>
        <translation>このカメラでは、このユーザーセットを電源投入時に使用できません。</translation>
    </message>
    <message>
        <source>The camera is only watched, so its user sets cannot be loaded.</source>
        <translation>モニター中のため、ユーザーセットを読み込めません。</translation>
    </message>
    <message>
        <source>Loading &quot;%1&quot;</source>
        <translation>「%1」を読み込み中</translation>
    </message>
    <message>
        <source>Load user set &quot;%1&quot;</source>
        <translation>ユーザーセット「%1」の読み込み</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>読み込みはキャンセルされました。何も変更されていません。</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was loaded, which changed %n setting(s).</source>
        <translation>
            <numerusform>「%1」を読み込み、設定 %n 件が変更されました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation>「%1」を保存中</translation>
    </message>
    <message>
        <source>The present settings were saved as &quot;%1&quot;.</source>
        <translation>現在の設定を「%1」に保存しました。</translation>
    </message>
    <message>
        <source>Choosing &quot;%1&quot; for power-on</source>
        <translation>電源投入時に使用するセットを「%1」に変更中</translation>
    </message>
    <message>
        <source>Use user set &quot;%1&quot; at power-on</source>
        <translation>電源投入時にユーザーセット「%1」を使用</translation>
    </message>
    <message>
        <source>The camera begins with &quot;%1&quot; at power-on.</source>
        <translation>カメラは電源投入時に「%1」で起動します。</translation>
    </message>
</context>
<context>
    <name>UserSetPanel</name>
    <message>
        <source>&amp;Load…</source>
        <translation>読み込み(&amp;L)…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>ユーザーセット</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>ユーザーセット</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>電源投入時</translation>
    </message>
    <message>
        <source>This camera keeps no user sets.</source>
        <translation>このカメラにはユーザーセットがありません。</translation>
    </message>
    <message>
        <source>The user sets are not known yet.</source>
        <translation>ユーザーセットの情報をまだ取得していません。</translation>
    </message>
    <message>
        <source>✓ yes</source>
        <translation>✓ 使用</translation>
    </message>
    <message>
        <source>Replaces the settings of the camera by those of &quot;%1&quot;.</source>
        <translation>カメラの設定を「%1」の内容に置き換えます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be loaded.</source>
        <translation>「%1」は読み込めません。</translation>
    </message>
    <message>
        <source>Stores the present settings as &quot;%1&quot;.</source>
        <translation>現在の設定を「%1」に保存します。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved.</source>
        <translation>「%1」には保存できません。</translation>
    </message>
    <message>
        <source>Lets the camera begin with &quot;%1&quot;.</source>
        <translation>カメラが「%1」で起動するように設定します。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used at power-on.</source>
        <translation>「%1」は電源投入時に使用できません。</translation>
    </message>
    <message>
        <source>Shows how the settings of the camera differ from this set.</source>
        <translation>このセットとカメラの設定の違いを表示します。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be compared.</source>
        <translation>「%1」は比較できません。</translation>
    </message>
    <message>
        <source>Load &quot;%1&quot;? The present settings of the camera are overwritten.</source>
        <translation>「%1」を読み込みますか? カメラの現在の設定は上書きされます。</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) differ from those when the camera was opened.</source>
        <translation>
            <numerusform>フィーチャー %n 個が、カメラを開いた時点と異なります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Loading can be undone.</source>
        <translation>読み込みは元に戻せます。</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>ユーザーセットの読み込み</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>Save user set</source>
        <translation>ユーザーセットの保存</translation>
    </message>
    <message>
        <source>Save the present settings as &quot;%1&quot;? What is in this set now is overwritten, which cannot be undone.</source>
        <translation>現在の設定を「%1」に保存しますか? このセットの現在の内容は上書きされ、元に戻せません。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Use at power-on</source>
        <translation>電源投入時に使用(&amp;P)</translation>
    </message>
    <message>
        <source>Comp&amp;are</source>
        <translation>比較(&amp;M)</translation>
    </message>
</context>
<context>
    <name>UserSetSource</name>
    <message>
        <source>User set %1</source>
        <translation>ユーザーセット %1</translation>
    </message>
    <message>
        <source>The camera has to load the user set %1 to show it. The stream is stopped for this, and your present settings are put back afterwards.</source>
        <translation>ユーザーセット %1 の内容を表示するには、カメラに読み込む必要があります。その間ストリームを停止し、終了後に現在の設定を復元します。</translation>
    </message>
    <message>
        <source>Not put back after the user set %1</source>
        <translation>ユーザーセット %1 の使用後に未復元</translation>
    </message>
    <message numerus="yes">
        <source>%n more setting(s) were not put back; the history lists them.</source>
        <translation>
            <numerusform>ほかに設定 %n 件が復元されませんでした。履歴で確認できます。</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera may still have the settings of the user set. Restore those from the opening.</source>
        <translation>カメラにユーザーセットの設定が残っている可能性があります。開いた時点の設定に戻してください。</translation>
    </message>
    <message>
        <source>Reading the user set %1</source>
        <translation>ユーザーセット %1 を読み取り中</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>このカメラの制御を取得していません。</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the user set %1? The camera loads the set, changes it and saves it, and then your present settings are put back. The stream is stopped for this.</source>
        <translation>
            <numerusform>設定 %n 件をユーザーセット %1 に書き込みますか? カメラはセットを読み込み、変更して保存した後、現在の設定を復元します。その間、ストリームを停止します。</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying to the user set %1</source>
        <translation>ユーザーセット %1 にコピー中</translation>
    </message>
    <message>
        <source>The copy was cancelled, so the user set was not changed.</source>
        <translation>コピーはキャンセルされました。ユーザーセットは変更されていません。</translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message numerus="yes">
        <source>%1 … (%n bytes)</source>
        <translation>
            <numerusform>%1 … (%n バイト)</numerusform>
        </translation>
    </message>
    <message>
        <source>not in this camera</source>
        <translation>このカメラになし</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>使用不可</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み取り不可</translation>
    </message>
    <message>
        <source>can only be written</source>
        <translation>書き込み専用</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Running …</source>
        <translation>実行中 …</translation>
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
    <message>
        <source>&amp;Corrections…</source>
        <translation>補正(&amp;C)…</translation>
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
    <message>
        <source>Not corrected</source>
        <translation>補正なし</translation>
    </message>
    <message>
        <source>Corrected</source>
        <translation>補正済み</translation>
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
