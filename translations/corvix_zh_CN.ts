<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ApplicationController</name>
    <message>
        <source>Scanning...</source>
        <translation>正在搜索...</translation>
    </message>
    <message>
        <source>Launch failed</source>
        <translation>启动失败</translation>
    </message>
    <message>
        <source>Could not launch:
%1</source>
        <translation>无法启动：
%1</translation>
    </message>
    <message>
        <source>Corvix X - Application Launcher</source>
        <translation>Corvix X - 应用程序启动器</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
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
        <translation>Corvix X - 应用程序启动器</translation>
    </message>
    <message>
        <source>Corvix X</source>
        <translation>Corvix X</translation>
    </message>
    <message>
        <source>Application launcher</source>
        <translation>应用程序启动器</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Connected cameras</source>
        <translation>已连接的相机</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Vendor Name</source>
        <translation>厂商名称</translation>
    </message>
    <message>
        <source>Model Name</source>
        <translation>型号名称</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Recommended tools</source>
        <translation>推荐工具</translation>
    </message>
    <message>
        <source>Select a camera to enable its recommended tools.</source>
        <translation>请选择相机，以启用为其推荐的工具。</translation>
    </message>
    <message>
        <source>Orvelle - Corvix X</source>
        <translation>Orvelle - Corvix X</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>关于 Qt</translation>
    </message>
    <message>
        <source>Unable to open documentation at:
%1</source>
        <translation>无法打开文档：
%1</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>接口</translation>
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
        <translation>CTI 文件</translation>
    </message>
    <message>
        <source>CTI location</source>
        <translation>CTI 文件位置</translation>
    </message>
    <message>
        <source>Recommended for %1. Non-recommended tools are disabled.</source>
        <translation>已启用为“%1”推荐的工具，其他工具已禁用。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Corvix X initialization failed</source>
        <translation>Corvix X 初始化失败</translation>
    </message>
    <message>
        <source>Failed to initialize the Corvix X system. The launcher will be closed.</source>
        <translation>无法初始化 Corvix X 系统。启动器即将关闭。</translation>
    </message>
</context>
</TS>
