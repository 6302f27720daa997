<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ApplicationController</name>
    <message>
        <source>Scanning...</source>
        <translation>검색 중...</translation>
    </message>
    <message>
        <source>Launch failed</source>
        <translation>실행 실패</translation>
    </message>
    <message>
        <source>Could not launch:
%1</source>
        <translation>실행할 수 없습니다:
%1</translation>
    </message>
    <message>
        <source>Corvix X - Application Launcher</source>
        <translation>Corvix X - 애플리케이션 실행기</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
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
        <translation>Corvix X - 애플리케이션 실행기</translation>
    </message>
    <message>
        <source>Corvix X</source>
        <translation>Corvix X</translation>
    </message>
    <message>
        <source>Application launcher</source>
        <translation>애플리케이션 실행기</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Connected cameras</source>
        <translation>연결된 카메라</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Vendor Name</source>
        <translation>제조사</translation>
    </message>
    <message>
        <source>Model Name</source>
        <translation>모델명</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>시리얼 번호</translation>
    </message>
    <message>
        <source>Recommended tools</source>
        <translation>권장 도구</translation>
    </message>
    <message>
        <source>Select a camera to enable its recommended tools.</source>
        <translation>카메라를 선택하면 해당 카메라의 권장 도구가 활성화됩니다.</translation>
    </message>
    <message>
        <source>Orvelle - Corvix X</source>
        <translation>Orvelle - Corvix X</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Qt 정보</translation>
    </message>
    <message>
        <source>Unable to open documentation at:
%1</source>
        <translation>문서를 열 수 없습니다:
%1</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>인터페이스</translation>
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
        <translation>CTI 파일</translation>
    </message>
    <message>
        <source>CTI location</source>
        <translation>CTI 파일 위치</translation>
    </message>
    <message>
        <source>Recommended for %1. Non-recommended tools are disabled.</source>
        <translation>‘%1’의 권장 도구입니다. 그 외의 도구는 비활성화됩니다.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Corvix X initialization failed</source>
        <translation>Corvix X 초기화 실패</translation>
    </message>
    <message>
        <source>Failed to initialize the Corvix X system. The launcher will be closed.</source>
        <translation>Corvix X 시스템을 초기화하지 못했습니다. 실행기를 종료합니다.</translation>
    </message>
</context>
</TS>
