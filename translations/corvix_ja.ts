<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ApplicationController</name>
    <message>
        <source>Scanning...</source>
        <translation>検索中...</translation>
    </message>
    <message>
        <source>Launch failed</source>
        <translation>起動エラー</translation>
    </message>
    <message>
        <source>Could not launch:
%1</source>
        <translation>ツールを起動できませんでした:
%1</translation>
    </message>
    <message>
        <source>Corvix X - Application Launcher</source>
        <translation>Corvix X - アプリケーションランチャー</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>LauncherConfig</name>
    <message>
        <source>Configuration files version mismatch!</source>
        <extracomment>A log message. All log messages are in English, so do not translate it.</extracomment>
        <translation>Configuration files version mismatch!</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Corvix X - Application Launcher</source>
        <translation>Corvix X - アプリケーションランチャー</translation>
    </message>
    <message>
        <source>Corvix X</source>
        <translation>Corvix X</translation>
    </message>
    <message>
        <source>Application launcher</source>
        <translation>アプリケーションランチャー</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Connected cameras</source>
        <translation>接続中のカメラ</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Vendor Name</source>
        <translation>ベンダー名</translation>
    </message>
    <message>
        <source>Model Name</source>
        <translation>モデル名</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Recommended tools</source>
        <translation>推奨ツール</translation>
    </message>
    <message>
        <source>Select a camera to enable its recommended tools.</source>
        <translation>カメラを選択すると、そのカメラの推奨ツールが有効になります。</translation>
    </message>
    <message>
        <source>Orvelle - Corvix X</source>
        <translation>Orvelle - Corvix X</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Qt について</translation>
    </message>
    <message>
        <source>Unable to open documentation at:
%1</source>
        <translation>ドキュメントを開けませんでした:
%1</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>インターフェース</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>CTI file</source>
        <translation>CTI ファイル</translation>
    </message>
    <message>
        <source>CTI location</source>
        <translation>CTI ファイルの場所</translation>
    </message>
    <message>
        <source>Recommended for %1. Non-recommended tools are disabled.</source>
        <translation>「%1」の推奨ツールです。その他のツールは無効です。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Corvix X initialization failed</source>
        <translation>Corvix X の初期化に失敗しました</translation>
    </message>
    <message>
        <source>Failed to initialize the Corvix X system. The launcher will be closed.</source>
        <translation>Corvix X システムを初期化できませんでした。ランチャーを終了します。</translation>
    </message>
</context>
</TS>
