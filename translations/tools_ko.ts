<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>AssistantWindow</name>
    <message>
        <source>The result was saved to &quot;%1&quot;.</source>
        <translation>결과를 ‘%1’에 저장했습니다.</translation>
    </message>
    <message>
        <source>Press F5 to see the live picture.</source>
        <translation>라이브 이미지를 보려면 F5 키를 누르십시오.</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>결과(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Live picture</source>
        <translation>라이브 이미지(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>카메라(&amp;C)</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>이미지 뷰어에서 열기(&amp;I)</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Cancel the measurement</source>
        <translation>측정 취소</translation>
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
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Choose a camera</source>
        <translation>카메라 선택</translation>
    </message>
    <message>
        <source>Search by name, model, serial number or connection</source>
        <translation>이름, 모델, 시리얼 번호 또는 연결로 검색</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>카메라 검색</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>카메라 검색 중…</translation>
    </message>
    <message>
        <source>Cameras: %1</source>
        <translation>카메라: %1</translation>
    </message>
    <message>
        <source>No camera matches &quot;%1&quot;.</source>
        <translation>‘%1’에 해당하는 카메라가 없습니다.</translation>
    </message>
</context>
<context>
    <name>CameraConnection</name>
    <message>
        <source>The camera is not open.</source>
        <translation>카메라가 열려 있지 않습니다.</translation>
    </message>
</context>
<context>
    <name>CameraFinder</name>
    <message>
        <source>Corvix X is not installed completely: the program CvxProducerHost is missing or not executable. Install the package again.</source>
        <translation>Corvix X 설치가 완전하지 않습니다. CvxProducerHost 프로그램이 없거나 실행할 수 없습니다. 패키지를 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The camera system cannot be started (error %1).</source>
        <translation>카메라 시스템을 시작할 수 없습니다(오류 %1).</translation>
    </message>
    <message>
        <source>The cameras cannot be listed (error %1).</source>
        <translation>카메라 목록을 가져올 수 없습니다(오류 %1).</translation>
    </message>
</context>
<context>
    <name>CameraPanel</name>
    <message>
        <source>All features (Camera Setup)</source>
        <translation>모든 기능(Camera Setup)</translation>
    </message>
    <message>
        <source>Draw on picture</source>
        <translation>이미지에 그리기</translation>
    </message>
    <message>
        <source>Whole sensor</source>
        <translation>센서 전체</translation>
    </message>
    <message>
        <source>Drag a rectangle over the part of the picture that the camera shall send.</source>
        <translation>카메라가 전송할 부분을 이미지에서 사각형으로 드래그하십시오.</translation>
    </message>
    <message>
        <source>You are watching this camera, so nothing can be changed here.</source>
        <translation>이 카메라는 모니터링 중이므로 설정을 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>노출</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>노출 시간</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>게인</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>채널</translation>
    </message>
    <message>
        <source>Black level and gamma</source>
        <translation>블랙 레벨 및 감마</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>블랙 레벨</translation>
    </message>
    <message>
        <source>Apply gamma</source>
        <translation>감마 적용</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>감마</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>화이트 밸런스</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>계수</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>프레임 속도</translation>
    </message>
    <message>
        <source>Set the frame rate</source>
        <translation>프레임 속도 지정</translation>
    </message>
    <message>
        <source>Line scan</source>
        <translation>라인 스캔</translation>
    </message>
    <message>
        <source>Set the line rate</source>
        <translation>라인 속도 지정</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>라인 속도</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>픽셀 포맷</translation>
    </message>
    <message>
        <source>Region of interest</source>
        <translation>관심 영역(ROI)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>X 오프셋</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Y 오프셋</translation>
    </message>
    <message>
        <source>Binning and mirroring</source>
        <translation>비닝 및 반전</translation>
    </message>
    <message>
        <source>Horizontal binning</source>
        <translation>가로 비닝</translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation>가로 모드</translation>
    </message>
    <message>
        <source>Vertical binning</source>
        <translation>세로 비닝</translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation>세로 모드</translation>
    </message>
    <message>
        <source>Horizontal decimation</source>
        <translation>가로 데시메이션</translation>
    </message>
    <message>
        <source>Vertical decimation</source>
        <translation>세로 데시메이션</translation>
    </message>
    <message>
        <source>Mirror horizontally</source>
        <translation>좌우 반전</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>상하 반전</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>트리거</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>소스</translation>
    </message>
    <message>
        <source>Activation</source>
        <translation>활성화 조건</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>지연</translation>
    </message>
    <message>
        <source>Trigger now</source>
        <translation>트리거 실행</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>사용자 세트</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>불러오기</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>전원 켤 때</translation>
    </message>
    <message>
        <source>Saving replaces what is stored in the camera as &quot;%1&quot;.</source>
        <translation>저장하면 카메라의 ‘%1’ 내용을 덮어씁니다.</translation>
    </message>
    <message>
        <source>Resulting rate</source>
        <translation>실제 속도</translation>
    </message>
    <message>
        <source>Binning location</source>
        <translation>비닝 위치</translation>
    </message>
    <message>
        <source>Trigger type</source>
        <translation>트리거 유형</translation>
    </message>
</context>
<context>
    <name>CameraSettings</name>
    <message>
        <source>Camera settings</source>
        <translation>카메라 설정</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>This camera now</source>
        <translation>이 카메라(현재)</translation>
    </message>
    <message>
        <source>Reading the settings of this camera</source>
        <translation>이 카메라의 설정을 읽는 중</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>이 카메라는 제어 모드로 열려 있지 않습니다.</translation>
    </message>
    <message>
        <source>Copying to this camera</source>
        <translation>이 카메라로 복사하는 중</translation>
    </message>
    <message>
        <source>Copy of differences</source>
        <translation>차이 복사</translation>
    </message>
</context>
<context>
    <name>CameraTable</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>시리얼 번호</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>User-defined name</source>
        <translation>사용자 지정 이름</translation>
    </message>
</context>
<context>
    <name>ChangeHistory</name>
    <message>
        <source>Undo: %1</source>
        <translation>실행 취소: %1</translation>
    </message>
    <message>
        <source>The value of %1 before the change is unknown.</source>
        <translation>%1의 변경 전 값을 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>다시 실행: %1</translation>
    </message>
    <message>
        <source>%1 cannot be changed while the camera is streaming.</source>
        <translation>%1: 스트리밍 중에는 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation>취소되었습니다.</translation>
    </message>
</context>
<context>
    <name>CollapsibleGroup</name>
    <message>
        <source>Expanded group</source>
        <translation>펼친 그룹</translation>
    </message>
    <message>
        <source>Collapsed group</source>
        <translation>접힌 그룹</translation>
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
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Swap the sides</source>
        <translation>좌우 바꾸기</translation>
    </message>
    <message>
        <source>Reads both sides again.</source>
        <translation>양쪽을 다시 읽습니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Compare settings</source>
        <translation>설정 비교</translation>
    </message>
    <message>
        <source>&amp;Load the user set</source>
        <translation>사용자 세트 불러오기(&amp;T)</translation>
    </message>
    <message>
        <source>Compare with a file</source>
        <translation>파일과 비교</translation>
    </message>
    <message>
        <source>Settings files (*.txt *.pfs *.features);;All files (*)</source>
        <translation>설정 파일 (*.txt *.pfs *.features);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>Writes settings of the left side to the right side.</source>
        <translation>왼쪽의 설정을 오른쪽에 씁니다.</translation>
    </message>
    <message>
        <source>The settings are being read.</source>
        <translation>설정을 읽는 중입니다.</translation>
    </message>
    <message>
        <source>Choose two sides that can be read.</source>
        <translation>읽을 수 있는 비교 대상을 양쪽에 선택하십시오.</translation>
    </message>
    <message>
        <source>Copy to the ri&amp;ght</source>
        <translation>오른쪽으로 복사(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>새로 고침(&amp;N)</translation>
    </message>
</context>
<context>
    <name>CompareSession</name>
    <message>
        <source>Reading: %1</source>
        <translation>읽는 중: %1</translation>
    </message>
    <message>
        <source>Copying to: %1</source>
        <translation>복사 중(대상: %1)</translation>
    </message>
</context>
<context>
    <name>CompareSides</name>
    <message>
        <source>User set %1</source>
        <translation>사용자 세트 %1</translation>
    </message>
    <message>
        <source>This camera now</source>
        <translation>이 카메라(현재)</translation>
    </message>
    <message>
        <source>This camera at opening</source>
        <translation>이 카메라(연 시점)</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>카메라 %1</translation>
    </message>
</context>
<context>
    <name>ComparisonCounts</name>
    <message numerus="yes">
        <source>No difference in %n setting(s).</source>
        <translation>
            <numerusform>설정 %n개에 차이가 없습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 setting(s) differ.</source>
        <translation>
            <numerusform>설정 %1개 중 %n개가 다릅니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) belong to one camera or one moment.</source>
        <translation>
            <numerusform>카메라·시점별 값의 차이가 %n개 더 있습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) that belong to one camera or one moment are hidden.</source>
        <translation>
            <numerusform>이 밖에 카메라·시점별 값의 차이 %n개가 숨겨져 있습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ComparisonReport</name>
    <message>
        <source>(missing)</source>
        <translation>(없음)</translation>
    </message>
    <message>
        <source>belongs to one camera or one moment</source>
        <translation>카메라·시점별 값</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>같음</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Comparison of camera settings</source>
        <translation>카메라 설정 비교</translation>
    </message>
    <message>
        <source>Left: %1, %2</source>
        <translation>왼쪽: %1, %2</translation>
    </message>
    <message>
        <source>Right: %1, %2</source>
        <translation>오른쪽: %1, %2</translation>
    </message>
</context>
<context>
    <name>ConnectionBar</name>
    <message>
        <source>&amp;Watch only</source>
        <translation>모니터링만(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Other camera…</source>
        <translation>다른 카메라(&amp;O)…</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1: 열 수 없습니다. %2</translation>
    </message>
    <message>
        <source>&amp;Take control</source>
        <translation>제어권 가져오기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>다시 시도(&amp;Y)</translation>
    </message>
    <message>
        <source>%1 The camera was lost at %2. The program continues by itself when the camera is back.</source>
        <translation>%1 %2에 카메라 연결이 끊겼습니다. 카메라가 다시 연결되면 자동으로 재개됩니다.</translation>
    </message>
    <message>
        <source>Shows the settings of the camera and how they change, and its pictures if it sends them to more than one program. Nothing is changed.</source>
        <translation>카메라 설정과 그 변화를 보여 주고, 카메라가 둘 이상의 프로그램에 이미지를 보내는 경우 이미지도 보여 줍니다. 설정은 변경하지 않습니다.</translation>
    </message>
    <message>
        <source>Watching %1: its settings are shown as another program changes them.</source>
        <translation>%1 모니터링 중: 다른 프로그램이 변경하는 설정을 보여 줍니다.</translation>
    </message>
</context>
<context>
    <name>ContrastHandle</name>
    <message>
        <source>%1: drag it, or use the arrow keys. A double click resets it.</source>
        <translation>%1: 드래그하거나 화살표 키로 조정합니다. 두 번 클릭하면 초기화됩니다.</translation>
    </message>
</context>
<context>
    <name>CopyActions</name>
    <message>
        <source>&amp;Selected differences</source>
        <translation>선택한 차이(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Checked differences</source>
        <translation>체크한 차이(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;All differences</source>
        <translation>모든 차이(&amp;A)</translation>
    </message>
    <message>
        <source>Copy differences</source>
        <translation>차이 복사</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>쓰기(&amp;W)</translation>
    </message>
    <message>
        <source>Nothing was copied: %1</source>
        <translation>복사한 설정이 없습니다: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were copied.</source>
        <translation>
            <numerusform>설정 %n개를 복사했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The copy was cancelled.</source>
        <translation>복사를 취소했습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s) were reported.</source>
        <translation>
            <numerusform>문제 %n건이 보고되었습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>What could not be copied or put back:</source>
        <translation>복사 또는 복원하지 못한 항목:</translation>
    </message>
    <message>
        <source>The copy failed partway: %1</source>
        <translation>일부만 복사한 뒤 실패했습니다: %1</translation>
    </message>
</context>
<context>
    <name>CorrectionDialog</name>
    <message>
        <source>&amp;Correct the pictures</source>
        <translation>이미지 보정(&amp;C)</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>보정</translation>
    </message>
    <message>
        <source>&amp;Defect map:</source>
        <translation>불량 픽셀 맵(&amp;D):</translation>
    </message>
    <message>
        <source>Choose a defect map</source>
        <translation>불량 픽셀 맵 선택</translation>
    </message>
    <message>
        <source>Defect maps (*.json *.csv);;All files (*)</source>
        <translation>불량 픽셀 맵 (*.json *.csv);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>&amp;Flat field:</source>
        <translation>플랫 필드(&amp;F):</translation>
    </message>
    <message>
        <source>Choose a flat field</source>
        <translation>플랫 필드 선택</translation>
    </message>
    <message>
        <source>Flat fields (*.tif *.tiff);;All files (*)</source>
        <translation>플랫 필드 (*.tif *.tiff);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>The correction applies to the shown pictures, to PNG and TIFF files and to TIFF recordings. Raw files, videos and measured values stay those of the camera.</source>
        <translation>보정은 표시되는 이미지, PNG 및 TIFF 파일, TIFF 녹화에 적용됩니다. 원시 파일, 동영상, 측정값에는 카메라가 보낸 값이 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>선택…</translation>
    </message>
    <message>
        <source>The pictures are not corrected: %1.</source>
        <translation>이미지가 보정되지 않습니다: %1.</translation>
    </message>
    <message>
        <source>The pictures are corrected.</source>
        <translation>이미지가 보정됩니다.</translation>
    </message>
</context>
<context>
    <name>DarkBox</name>
    <message>
        <source>Cover the lens, and choose a long exposure and a pixel format with many bits in the camera settings. Then measure while the camera warms up.</source>
        <translation>렌즈를 가리고 카메라 설정에서 긴 노출과 비트 수가 많은 픽셀 포맷을 선택하십시오. 그런 다음 카메라가 예열되는 동안 측정하십시오.</translation>
    </message>
    <message>
        <source>Stop measuring the &amp;dark level</source>
        <translation>다크 레벨 측정 중지(&amp;D)</translation>
    </message>
    <message>
        <source>Measure the &amp;dark level</source>
        <translation>다크 레벨 측정(&amp;D)</translation>
    </message>
</context>
<context>
    <name>DefectList</name>
    <message>
        <source>Columns %1 to %2, lines %3 to %4</source>
        <translation>열 %1~%2, 행 %3~%4</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>열</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>편차</translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s)</source>
        <translation>
            <numerusform>픽셀 %n개</numerusform>
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
        <translation>핫 픽셀</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>데드 픽셀</translation>
    </message>
    <message>
        <source>Stuck</source>
        <translation>고착 픽셀</translation>
    </message>
    <message>
        <source>Blinking</source>
        <translation>점멸 픽셀</translation>
    </message>
    <message>
        <source>Deviating</source>
        <translation>감도 이상</translation>
    </message>
    <message>
        <source>Too bright in the dark.</source>
        <translation>어두운 상태에서 너무 밝습니다.</translation>
    </message>
    <message>
        <source>Hardly reacts to light.</source>
        <translation>빛에 거의 반응하지 않습니다.</translation>
    </message>
    <message>
        <source>Always has the same value.</source>
        <translation>항상 같은 값입니다.</translation>
    </message>
    <message>
        <source>Changes between levels from image to image.</source>
        <translation>이미지마다 레벨이 바뀝니다.</translation>
    </message>
    <message>
        <source>Reacts to light much more or less than its neighbours.</source>
        <translation>빛에 대한 반응이 주변 픽셀보다 훨씬 크거나 작습니다.</translation>
    </message>
    <message>
        <source>Cluster</source>
        <translation>클러스터</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>열</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>행</translation>
    </message>
    <message>
        <source>No defect pixels were found.</source>
        <translation>불량 픽셀이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n defect pixel(s) found.</source>
        <translation>
            <numerusform>불량 픽셀 %n개를 찾았습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Numbers of the stream</source>
        <translation>스트림 수치</translation>
    </message>
    <message>
        <source>Copies all numbers to the clipboard.</source>
        <translation>모든 수치를 클립보드에 복사합니다.</translation>
    </message>
    <message>
        <source>Command that corrects the cause</source>
        <translation>원인을 해결하는 명령</translation>
    </message>
    <message>
        <source>Copy as te&amp;xt</source>
        <translation>텍스트로 복사(&amp;X)</translation>
    </message>
    <message>
        <source>Copy comma&amp;nd</source>
        <translation>명령 복사(&amp;M)</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message>
        <source>All values side by side</source>
        <translation>모든 값 나란히 보기</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>Set back</source>
        <translation>되돌리기</translation>
    </message>
    <message>
        <source>Writes the value that the camera had when it was opened.</source>
        <translation>카메라를 연 시점의 값을 다시 씁니다.</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>포함 항목</translation>
    </message>
    <message>
        <source>At opening: %1</source>
        <translation>연 시점: %1</translation>
    </message>
    <message>
        <source>As it was when the camera was opened</source>
        <translation>카메라를 연 시점과 동일</translation>
    </message>
    <message>
        <source>Select a feature to see what the camera says about it.</source>
        <translation>기능을 선택하면 카메라가 제공하는 정보를 표시합니다.</translation>
    </message>
    <message>
        <source>Copy the name used in programs</source>
        <translation>프로그래밍용 이름 복사</translation>
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
        <translation>%1; 왼쪽: %2; 오른쪽: %3</translation>
    </message>
    <message>
        <source>(missing)</source>
        <translation>(없음)</translation>
    </message>
    <message>
        <source>%1
This value belongs to one camera or one moment.</source>
        <translation>%1
카메라 또는 시점마다 다른 값입니다.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
</context>
<context>
    <name>DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>차이</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search the differences</source>
        <translation>차이 검색</translation>
    </message>
    <message>
        <source>Also e&amp;qual</source>
        <translation>같은 값도(&amp;Q)</translation>
    </message>
    <message>
        <source>Shows the settings that both sides have in common too.</source>
        <translation>양쪽의 값이 같은 설정도 표시합니다.</translation>
    </message>
    <message>
        <source>Also those of one camera or one &amp;moment</source>
        <translation>카메라·시점별 값도(&amp;I)</translation>
    </message>
    <message>
        <source>Shows values that differ between cameras with the same settings too: serial numbers, temperatures, counters.</source>
        <translation>설정이 같아도 카메라마다 다른 값(시리얼 번호, 온도, 카운터 등)도 표시합니다.</translation>
    </message>
    <message>
        <source>There is no difference to show.</source>
        <translation>표시할 차이가 없습니다.</translation>
    </message>
    <message>
        <source>Nothing that is shown contains the text.</source>
        <translation>표시된 항목 중 검색어를 포함하는 것이 없습니다.</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Mark clipped pixels</source>
        <translation>클리핑 픽셀 표시</translation>
    </message>
    <message>
        <source>Pick grey</source>
        <translation>회색 선택</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Fast (bilinear)</source>
        <translation>고속(쌍선형)</translation>
    </message>
    <message>
        <source>Fine (along edges)</source>
        <translation>정밀(에지 방향)</translation>
    </message>
    <message>
        <source>How the missing colours of a Bayer picture are found.</source>
        <translation>Bayer 이미지에서 빠진 색을 보간하는 방식입니다.</translation>
    </message>
    <message>
        <source>Shows overexposed pixels in red and underexposed ones in blue.</source>
        <translation>노출 과다 픽셀은 빨간색, 노출 부족 픽셀은 파란색으로 표시합니다.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source> µm</source>
        <translation> µm</translation>
    </message>
    <message>
        <source>Demosaicing</source>
        <translation>디모자이킹</translation>
    </message>
    <message>
        <source>Click on something grey in the picture. Its surroundings become grey on the screen.</source>
        <translation>이미지에서 회색인 곳을 클릭하십시오. 그 주변이 화면에 회색으로 표시됩니다.</translation>
    </message>
    <message>
        <source>Reset the white balance</source>
        <translation>화이트 밸런스 초기화</translation>
    </message>
    <message>
        <source>Multiplies the white balance of the camera by these factors.</source>
        <translation>카메라의 화이트 밸런스에 이 계수를 곱합니다.</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>화이트 밸런스</translation>
    </message>
    <message>
        <source>R %1 G %2 B %3</source>
        <translation>R %1 G %2 B %3</translation>
    </message>
    <message>
        <source>The factors of red, green and blue on the screen.</source>
        <translation>화면 표시에 적용되는 빨강, 녹색, 파랑의 계수입니다.</translation>
    </message>
    <message>
        <source>Write to camera</source>
        <translation>카메라에 쓰기</translation>
    </message>
    <message>
        <source>What one pixel shows of the object. Lengths and the scale bar need this number.</source>
        <translation>픽셀 하나에 해당하는 대상물의 크기입니다. 길이와 스케일 바를 표시하는 데 필요합니다.</translation>
    </message>
    <message>
        <source>Size of a pixel</source>
        <translation>픽셀당 크기</translation>
    </message>
</context>
<context>
    <name>DurationScale</name>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1시간</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1시간 %2분</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1일</translation>
    </message>
</context>
<context>
    <name>EditorNote</name>
    <message>
        <source>Discard</source>
        <translation>변경 취소</translation>
    </message>
</context>
<context>
    <name>Encoder</name>
    <message>
        <source>ffmpeg cannot be started: %1</source>
        <translation>ffmpeg를 시작할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>ffmpeg has failed: %1</source>
        <translation>ffmpeg 오류: %1</translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not accepted an image for %n second(s)</source>
        <translation>
            <numerusform>ffmpeg가 %n초 동안 이미지를 받지 않았습니다</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not ended after %n second(s)</source>
        <translation>
            <numerusform>ffmpeg가 %n초가 지나도 종료되지 않았습니다</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportActions</name>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Saves what is shown as text or as a page (HTML).</source>
        <translation>표시된 내용을 텍스트 또는 웹 페이지(HTML)로 저장합니다.</translation>
    </message>
    <message>
        <source>Copies what is shown as text to the clipboard.</source>
        <translation>표시된 내용을 텍스트로 클립보드에 복사합니다.</translation>
    </message>
    <message>
        <source>Export the comparison</source>
        <translation>비교 결과 내보내기</translation>
    </message>
    <message>
        <source>Page (*.html)</source>
        <translation>웹 페이지 (*.html)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>텍스트 (*.txt)</translation>
    </message>
    <message>
        <source>The comparison was saved as %1.</source>
        <translation>비교 결과를 %1(으)로 저장했습니다.</translation>
    </message>
    <message>
        <source>The comparison could not be saved as %1: %2</source>
        <translation>비교 결과를 %1(으)로 저장하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>The comparison was copied.</source>
        <translation>비교 결과를 복사했습니다.</translation>
    </message>
</context>
<context>
    <name>FeatureActions</name>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Show Locking Feature</source>
        <translation>잠금 원인 기능 표시</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>이름 복사</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>값 복사</translation>
    </message>
    <message>
        <source>Copy &quot;Name=Value&quot;</source>
        <translation>‘이름=값’ 복사</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>모두 펼치기</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>모두 접기</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>실행</translation>
    </message>
</context>
<context>
    <name>FeatureEditor</name>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>이 값을 변경하려면 스트림을 잠시 중지해야 합니다.</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>중지 후 설정·재시작</translation>
    </message>
</context>
<context>
    <name>FeatureFacts</name>
    <message>
        <source>Category</source>
        <translation>카테고리</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>정수</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>켜짐/꺼짐</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>열거형</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>문자열</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>레지스터</translation>
    </message>
    <message>
        <source>Not in this camera</source>
        <translation>이 카메라에 없음</translation>
    </message>
    <message>
        <source>Not available at present</source>
        <translation>현재 사용 불가</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>쓰기 전용</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>읽기/쓰기</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>선형</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Number without slider</source>
        <translation>숫자(슬라이더 없음)</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>16진수</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4 주소</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC 주소</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>최솟값</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>최댓값</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>증분</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n바이트</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n character(s)</source>
        <translation>
            <numerusform>%n자</numerusform>
        </translation>
    </message>
    <message>
        <source>Every %1 ms</source>
        <translation>%1 ms마다</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>표시 형식</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>단위</translation>
    </message>
    <message>
        <source>Not allowed now</source>
        <translation>현재 선택 불가</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>접근 권한</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>수준</translation>
    </message>
    <message>
        <source>In settings files</source>
        <translation>설정 파일에 저장</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Changes by itself</source>
        <translation>자동 변경</translation>
    </message>
    <message>
        <source>Selected by</source>
        <translation>셀렉터</translation>
    </message>
    <message>
        <source>Selects</source>
        <translation>선택 대상</translation>
    </message>
    <message>
        <source>Depends on</source>
        <translation>의존 기능</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>실수</translation>
    </message>
    <message>
        <source>Maximum length</source>
        <translation>최대 길이</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>The camera is not connected.</source>
        <translation>카메라가 연결되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The value was not read yet.</source>
        <translation>아직 값을 읽지 않았습니다.</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>잠김</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>변경됨</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>Features</source>
        <translation>기능</translation>
    </message>
</context>
<context>
    <name>FileNamePattern</name>
    <message>
        <source>name or model of the camera</source>
        <translation>카메라의 이름 또는 모델</translation>
    </message>
    <message>
        <source>serial number of the camera</source>
        <translation>카메라의 시리얼 번호</translation>
    </message>
    <message>
        <source>date of the image, for example 2026-01-31</source>
        <translation>이미지의 날짜(예: 2026-01-31)</translation>
    </message>
    <message>
        <source>time of the image, for example 23-59-59</source>
        <translation>이미지의 시각(예: 23-59-59)</translation>
    </message>
    <message>
        <source>next free number; {number:4} has at least four digits</source>
        <translation>사용하지 않은 다음 번호. {number:4}은(는) 최소 네 자리</translation>
    </message>
    <message>
        <source>frame ID of the image</source>
        <translation>이미지의 프레임 ID</translation>
    </message>
    <message>
        <source>pixel format of the image, for example Mono8</source>
        <translation>이미지의 픽셀 포맷(예: Mono8)</translation>
    </message>
    <message>
        <source>The name may contain these placeholders:</source>
        <translation>이름에 사용할 수 있는 자리 표시자:</translation>
    </message>
    <message>
        <source>a brace is missing; placeholders look like {number}</source>
        <translation>중괄호가 빠졌습니다. 자리 표시자는 {number}와 같은 형식입니다</translation>
    </message>
    <message>
        <source>the name must not contain &quot;/&quot;; choose the folder above</source>
        <translation>이름에는 ‘/’를 쓸 수 없습니다. 폴더는 위에서 선택하십시오</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>이름이 비어 있습니다</translation>
    </message>
    <message>
        <source>{%1} is not a placeholder; use one of %2</source>
        <translation>{%1}은(는) 자리 표시자가 아닙니다. 사용 가능: %2</translation>
    </message>
    <message>
        <source>{%1} has to be like {number:4}, with 1 to %2 digits</source>
        <translation>{%1}은(는) {number:4}와 같은 형식이어야 하며, 자릿수는 1~%2입니다</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>File %1</source>
        <translation>파일 %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>%1행</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>파일에 쓸 수 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the file %1? The other settings stay, but comments and lines that cannot be read are lost.</source>
        <translation>
            <numerusform>설정 %n개를 파일 %1에 쓰시겠습니까? 나머지 설정은 유지되지만 주석과 읽을 수 없는 행은 사라집니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>changed by a copy of differences</source>
        <translation>차이 복사로 변경됨</translation>
    </message>
</context>
<context>
    <name>FilesPanel</name>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>폴더(&amp;D)</translation>
    </message>
    <message>
        <source>File &amp;name</source>
        <translation>파일 이름(&amp;N)</translation>
    </message>
    <message>
        <source>PNG, 16 bits</source>
        <translation>PNG, 16비트</translation>
    </message>
    <message>
        <source>PNG, 8 bits</source>
        <translation>PNG, 8비트</translation>
    </message>
    <message>
        <source>TIFF, measured values</source>
        <translation>TIFF, 측정값</translation>
    </message>
    <message>
        <source>Raw bytes</source>
        <translation>원시 바이트</translation>
    </message>
    <message>
        <source>Saves the values of the picture that is shown, with a sidecar that contains the camera&apos;s settings. Contrast, white balance and marks of the display are not part of the file.</source>
        <translation>표시 중인 이미지의 값을 카메라 설정이 담긴 사이드카 파일과 함께 저장합니다. 표시용 대비, 화이트 밸런스, 마크는 파일에 포함되지 않습니다.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>녹화</translation>
    </message>
    <message>
        <source>Format of recordings</source>
        <translation>녹화 형식</translation>
    </message>
    <message>
        <source>BigTIFF, measured values</source>
        <translation>BigTIFF, 측정값</translation>
    </message>
    <message>
        <source>Raw bytes with an index</source>
        <translation>원시 바이트 및 인덱스</translation>
    </message>
    <message>
        <source>Video, 8 bits, H.264 (MP4)</source>
        <translation>동영상, 8비트, H.264 (MP4)</translation>
    </message>
    <message>
        <source>Video, 8 bits, lossless (MKV)</source>
        <translation>동영상, 8비트, 무손실 (MKV)</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>자동 중지</translation>
    </message>
    <message>
        <source> images</source>
        <translation> 장</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 초</translation>
    </message>
    <message>
        <source>Keep free</source>
        <translation>남길 공간</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
    <message>
        <source>Stops the recording before less space than this is left on the disk.</source>
        <translation>디스크의 남은 공간이 이 값보다 작아지기 전에 녹화를 중지합니다.</translation>
    </message>
    <message>
        <source>Play at</source>
        <translation>재생 속도</translation>
    </message>
    <message>
        <source> images/s</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Images per second when the video is played. Otherwise, it plays as fast as it was recorded.</source>
        <translation>동영상을 재생할 때의 초당 이미지 수입니다. 지정하지 않으면 녹화한 속도로 재생됩니다.</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>예: %1</translation>
    </message>
    <message>
        <source>Videos need the program ffmpeg, which is not installed. Install it with: %1</source>
        <translation>동영상에는 ffmpeg 프로그램이 필요하지만 설치되어 있지 않습니다. 설치 명령: %1</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>녹화(&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;top recording</source>
        <translation>녹화 중지(&amp;T)</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>기록 중…</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>‘%1’(으)로 저장했습니다.</translation>
    </message>
    <message>
        <source>The folder for snapshots and recordings.</source>
        <translation>스냅샷과 녹화 파일을 저장하는 폴더입니다.</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>선택(&amp;B)…</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>스냅샷</translation>
    </message>
    <message>
        <source>Format of snapshots</source>
        <translation>스냅샷 형식</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>스냅샷 저장(&amp;S)</translation>
    </message>
    <message>
        <source>Folder for snapshots and recordings</source>
        <translation>스냅샷 및 녹화 파일 폴더</translation>
    </message>
    <message>
        <source>This name cannot be used: %1.</source>
        <translation>이 이름은 사용할 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>The camera is lost; the recording goes on when the camera is back. %1</source>
        <translation>카메라 연결이 끊겼습니다. 다시 연결되면 녹화를 계속합니다. %1</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Search features</source>
        <translation>기능 검색</translation>
    </message>
    <message>
        <source>Shows the features with all of these words in their name or description.</source>
        <translation>이름 또는 설명에 입력한 단어가 모두 포함된 기능을 표시합니다.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>수준</translation>
    </message>
    <message>
        <source>Which features are shown: the most important ones, most, or all.</source>
        <translation>표시할 기능의 범위: 주요 기능, 대부분, 전체.</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>변경됨</translation>
    </message>
    <message>
        <source>Shows only features that have changed since the camera was opened.</source>
        <translation>카메라를 연 뒤에 변경된 기능만 표시합니다.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>즐겨찾기</translation>
    </message>
    <message>
        <source>Shows only the features that you have marked as favourites.</source>
        <translation>즐겨찾기로 지정한 기능만 표시합니다.</translation>
    </message>
</context>
<context>
    <name>FilterHint</name>
    <message numerus="yes">
        <source>%n feature(s) are hidden by the level %1.</source>
        <translation>
            <numerusform>‘%1’ 수준에서는 기능 %n개가 숨겨집니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Them</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>모두 표시</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>해당하는 기능이 없습니다.</translation>
    </message>
    <message>
        <source>No feature is marked as a favourite. Ctrl+D marks one.</source>
        <translation>즐겨찾기로 지정한 기능이 없습니다. Ctrl+D 키로 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>No feature has changed since the camera was opened.</source>
        <translation>카메라를 연 뒤에 변경된 기능이 없습니다.</translation>
    </message>
    <message>
        <source>This level has no features.</source>
        <translation>이 수준에는 기능이 없습니다.</translation>
    </message>
</context>
<context>
    <name>FindingCard</name>
    <message>
        <source>In order</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copies the command, which you can paste into a terminal.</source>
        <translation>터미널에 붙여 넣을 수 있도록 명령을 복사합니다.</translation>
    </message>
</context>
<context>
    <name>FlatFieldPanel</name>
    <message>
        <source>Shading before</source>
        <translation>보정 전 셰이딩</translation>
    </message>
    <message>
        <source>Shading after</source>
        <translation>보정 후 셰이딩</translation>
    </message>
    <message>
        <source>Show the picture corrected</source>
        <translation>보정된 이미지 표시</translation>
    </message>
    <message>
        <source>Dark images</source>
        <translation>다크 이미지</translation>
    </message>
    <message>
        <source>Cover the lens completely. The images show the offset of each pixel.</source>
        <translation>렌즈를 완전히 가리십시오. 이 이미지에서 픽셀별 오프셋을 구합니다.</translation>
    </message>
    <message>
        <source>Take dark images</source>
        <translation>다크 이미지 촬영</translation>
    </message>
    <message>
        <source>Bright images</source>
        <translation>밝은 이미지</translation>
    </message>
    <message>
        <source>Uncover the lens, and point the camera at an evenly lit surface, out of focus.</source>
        <translation>렌즈 덮개를 벗기고 카메라가 균일하게 조명된 표면을 향하게 한 다음 초점을 흐리게 하십시오.</translation>
    </message>
    <message>
        <source>Take bright images</source>
        <translation>밝은 이미지 촬영</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>보정</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl apply the file to every picture of this camera.</source>
        <translation>이미지 뷰어와 cvxctl에서 이 카메라의 모든 이미지에 이 파일을 적용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Save the correction…</source>
        <translation>보정 데이터 저장…</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>이미지 수</translation>
    </message>
    <message>
        <source>Images: </source>
        <translation>이미지 수: </translation>
    </message>
    <message>
        <source>Sets the exposure time so that the bright images have about 70 % of the range, and puts it back afterwards.</source>
        <translation>밝은 이미지의 밝기가 값 범위의 약 70 %가 되도록 노출 시간을 설정하고, 이후 원래 값으로 되돌립니다.</translation>
    </message>
    <message>
        <source>Correct every pixel</source>
        <translation>모든 픽셀 보정</translation>
    </message>
    <message>
        <source>Correct the shading only</source>
        <translation>셰이딩만 보정</translation>
    </message>
    <message>
        <source>What is corrected</source>
        <translation>보정 대상</translation>
    </message>
    <message>
        <source>The shading only: the gain changes smoothly over the picture, which adds no noise.</source>
        <translation>셰이딩만 보정: 게인이 이미지 전체에서 완만하게 변하므로 노이즈가 늘지 않습니다.</translation>
    </message>
    <message>
        <source>Keep the mean brightness</source>
        <translation>평균 밝기 유지</translation>
    </message>
    <message>
        <source>Raise to the brightest place</source>
        <translation>가장 밝은 곳에 맞춤</translation>
    </message>
    <message>
        <source>Brightness after the correction</source>
        <translation>보정 후 밝기</translation>
    </message>
    <message>
        <source>Raised to the brightest place, no gain is below 1: what is clipped stays white.</source>
        <translation>가장 밝은 곳에 맞추면 모든 게인이 1 이상이므로 클리핑된 부분은 흰색으로 유지됩니다.</translation>
    </message>
    <message>
        <source>Non-uniformity before and after the correction</source>
        <translation>보정 전후의 불균일성</translation>
    </message>
    <message>
        <source>DSNU: differences of the pixels in the dark. PRNU: differences of their sensitivity. By EMVA 1288 release 4.0, without the temporal noise.</source>
        <translation>DSNU: 어두운 상태에서의 픽셀 간 차이. PRNU: 픽셀 간 감도 차이. EMVA 1288 릴리스 4.0에 따르며 시간적 노이즈는 제외합니다.</translation>
    </message>
    <message>
        <source>Mean of the columns, before and after</source>
        <translation>보정 전후의 열 평균</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>열</translation>
    </message>
    <message>
        <source>% of the mean</source>
        <translation>평균 대비 %</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>보정 전</translation>
    </message>
    <message>
        <source>After</source>
        <translation>보정 후</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>‘%1’(으)로 저장했습니다.</translation>
    </message>
    <message>
        <source>Set the exposure time automatically</source>
        <translation>노출 시간 자동 설정</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images leave less noise in the correction. Half as many are taken in addition, to check the correction.</source>
        <translation>다크 이미지와 밝은 이미지 각각의 수입니다. 많을수록 보정에 남는 노이즈가 줄어듭니다. 보정을 검증하기 위해 그 절반만큼을 추가로 촬영합니다.</translation>
    </message>
    <message>
        <source>The dark images were taken.</source>
        <translation>다크 이미지를 촬영했습니다.</translation>
    </message>
</context>
<context>
    <name>FlatFieldReport</name>
    <message>
        <source>Flat Field</source>
        <translation>플랫 필드 보정</translation>
    </message>
    <message>
        <source>Non-uniformity by EMVA 1288 release 4.0</source>
        <translation>EMVA 1288 릴리스 4.0에 따른 불균일성</translation>
    </message>
    <message>
        <source>Mean of the columns</source>
        <translation>열 평균</translation>
    </message>
    <message>
        <source>A picture as the camera sends it</source>
        <translation>카메라가 전송한 이미지</translation>
    </message>
    <message>
        <source>The same picture, corrected</source>
        <translation>같은 이미지(보정 후)</translation>
    </message>
    <message>
        <source>The gains: the brighter, the higher</source>
        <translation>게인: 밝을수록 높음</translation>
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
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>보정 전</translation>
    </message>
    <message>
        <source>After</source>
        <translation>보정 후</translation>
    </message>
    <message>
        <source>Shading</source>
        <translation>셰이딩</translation>
    </message>
    <message>
        <source>… without shading</source>
        <translation>… 셰이딩 제외</translation>
    </message>
    <message>
        <source>… in electrons</source>
        <translation>… 전자 수 환산</translation>
    </message>
    <message>
        <source>The picture is even: its shading is only %1.</source>
        <translation>이미지가 균일합니다. 셰이딩은 %1에 불과합니다.</translation>
    </message>
    <message>
        <source>The correction reduces the shading from %1 to %2.</source>
        <translation>보정 결과 셰이딩이 %1에서 %2(으)로 줄어듭니다.</translation>
    </message>
    <message>
        <source>%1; gains from %2 to %3; bright images at %4 of the range.</source>
        <translation>%1; 게인 %2~%3; 밝은 이미지의 밝기: 범위의 %4.</translation>
    </message>
    <message numerus="yes">
        <source>The numbers after the correction are those of %n other image(s).</source>
        <translation>
            <numerusform>보정 후 수치는 별도의 이미지 %n장으로 구한 것입니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s) deviate strongly and got the gain of their neighbours; Pixel Repair replaces them.</source>
        <translation>
            <numerusform>편차가 큰 픽셀 %n개에는 주변 픽셀의 게인을 적용했습니다. 이 픽셀은 픽셀 보정(Pixel Repair)에서 대체할 수 있습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The gain of %n pixel(s) was limited.</source>
        <translation>
            <numerusform>픽셀 %n개의 게인을 제한했습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FlatFieldWindow</name>
    <message>
        <source>Flat Field</source>
        <translation>플랫 필드 보정</translation>
    </message>
    <message>
        <source>The camera does not say its pixel format (PixelFormat), so its values cannot be corrected.</source>
        <translation>카메라가 픽셀 포맷(PixelFormat)을 알려 주지 않아 값을 보정할 수 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Save the correction…</source>
        <translation>보정 데이터 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>다크 이미지 촬영 중</translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>밝은 이미지 촬영 중</translation>
    </message>
</context>
<context>
    <name>FocusPanel</name>
    <message>
        <source>Share of the peak</source>
        <translation>피크 대비 비율</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>결과 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>선명도</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>최근 1분간의 선명도</translation>
    </message>
    <message>
        <source>&amp;Forget the peaks</source>
        <translation>피크 초기화(&amp;F)</translation>
    </message>
    <message>
        <source>Begins again, for example because the camera looks at something else.</source>
        <translation>카메라가 다른 대상을 볼 때 등에 측정을 새로 시작합니다.</translation>
    </message>
    <message>
        <source>Point the camera</source>
        <translation>카메라 방향 맞추기</translation>
    </message>
    <message>
        <source>It looks at something with edges all over the picture.</source>
        <translation>이미지 전체에 에지가 있는 대상을 비추십시오.</translation>
    </message>
    <message>
        <source>Find the best focus</source>
        <translation>최적 초점 찾기</translation>
    </message>
    <message>
        <source>Search &amp;automatically</source>
        <translation>자동 검색(&amp;A)</translation>
    </message>
    <message>
        <source>Read the tilt</source>
        <translation>기울기 판정</translation>
    </message>
    <message>
        <source>The order in which the regions become sharp says how the focus is tilted.</source>
        <translation>영역들이 선명해지는 순서로 초점면의 기울기를 판정합니다.</translation>
    </message>
    <message>
        <source>Read the &amp;tilt</source>
        <translation>기울기 판정(&amp;T)</translation>
    </message>
    <message>
        <source>Moves the lens through its range and leaves it at the best position. Cancelling puts it back.</source>
        <translation>렌즈를 전체 범위에서 움직인 뒤 최적 위치에 둡니다. 취소하면 원래 위치로 되돌립니다.</translation>
    </message>
    <message>
        <source>Nothing was measured yet.</source>
        <translation>아직 측정하지 않았습니다.</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>of the peak. Sharpness %1, peak %2.</source>
        <translation>피크 대비 비율. 선명도 %1, 피크 %2.</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>피크</translation>
    </message>
    <message>
        <source>Search the best position, or turn the lens slowly through the sharpest position.</source>
        <translation>최적 위치를 자동 검색하거나, 가장 선명한 위치를 지나도록 렌즈를 천천히 돌리십시오.</translation>
    </message>
    <message>
        <source>Turn the lens slowly through the sharpest position, then back to it.</source>
        <translation>가장 선명한 위치를 지나도록 렌즈를 천천히 돌린 다음 그 위치로 되돌리십시오.</translation>
    </message>
    <message>
        <source>Time before now</source>
        <translation>현재 기준 시간</translation>
    </message>
    <message>
        <source>Re&amp;gions per direction</source>
        <translation>방향별 영역 수(&amp;G)</translation>
    </message>
</context>
<context>
    <name>FocusReport</name>
    <message>
        <source>Focus Assistant</source>
        <translation>초점 도우미</translation>
    </message>
    <message>
        <source>Sharpness %1, which is %2 of the peak.</source>
        <translation>선명도 %1(피크의 %2).</translation>
    </message>
    <message>
        <source>Share of the peak of each region</source>
        <translation>영역별 피크 대비 비율</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>최근 1분간의 선명도</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>영역</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>열</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>선명도</translation>
    </message>
    <message>
        <source>Share of the peak</source>
        <translation>피크 대비 비율</translation>
    </message>
    <message>
        <source>Best position</source>
        <translation>최적 위치</translation>
    </message>
    <message>
        <source>Sharp at (s)</source>
        <translation>선명해진 시점(초)</translation>
    </message>
    <message>
        <source>Share at the best position</source>
        <translation>최적 위치에서의 비율</translation>
    </message>
    <message>
        <source>The sharpness is the energy of the differences between neighbouring pixels, divided by the squared brightness, without the part of the noise. Exposure and gain do not change it.</source>
        <translation>선명도는 이웃 픽셀 간 차이의 에너지에서 노이즈 성분을 빼고 밝기의 제곱으로 나눈 값입니다. 노출과 게인의 영향을 받지 않습니다.</translation>
    </message>
</context>
<context>
    <name>FocusTexts</name>
    <message>
        <source>Left end</source>
        <translation>왼쪽 끝</translation>
    </message>
    <message>
        <source>Right end</source>
        <translation>오른쪽 끝</translation>
    </message>
    <message>
        <source>Upper left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>no edges</source>
        <translation>에지 없음</translation>
    </message>
    <message>
        <source>too dark</source>
        <translation>너무 어두움</translation>
    </message>
    <message>
        <source>overexposed</source>
        <translation>노출 과다</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Shares of their peaks at the best position: %1.</source>
        <translation>최적 위치에서의 피크 대비 비율: %1.</translation>
    </message>
</context>
<context>
    <name>FocusWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>결과 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Focus Assistant</source>
        <translation>초점 도우미</translation>
    </message>
    <message>
        <source>Searching the best focus</source>
        <translation>최적 초점 검색 중</translation>
    </message>
</context>
<context>
    <name>HexView</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Offset %1, byte %2</source>
        <translation>오프셋 %1, 바이트 %2</translation>
    </message>
    <message>
        <source>Offset %1, character %2</source>
        <translation>오프셋 %1, 문자 %2</translation>
    </message>
    <message>
        <source>The clipboard contains no hexadecimal bytes.</source>
        <translation>클립보드에 16진수 바이트가 없습니다.</translation>
    </message>
    <message>
        <source>The clipboard contains no ASCII text.</source>
        <translation>클립보드에 ASCII 텍스트가 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>The last %n byte(s) of the clipboard did not fit.</source>
        <translation>
            <numerusform>클립보드의 마지막 %n바이트는 공간이 부족해 붙여 넣지 못했습니다.</numerusform>
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
        <translation>블랙 포인트</translation>
    </message>
    <message>
        <source>White point</source>
        <translation>화이트 포인트</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>감마</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>히스토그램</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>Value %1
%2</source>
        <translation>값 %1
%2</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>이미지가 없습니다.</translation>
    </message>
    <message>
        <source>%1 underexposed, %2 overexposed</source>
        <translation>노출 부족 %1, 노출 과다 %2</translation>
    </message>
    <message>
        <source>%1 dark</source>
        <translation>암부 %1</translation>
    </message>
    <message>
        <source>%1 bright</source>
        <translation>명부 %1</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Executed: %1</source>
        <translation>실행: %1</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>실행 취소: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>다시 실행: %1</translation>
    </message>
    <message>
        <source>This change was undone.</source>
        <translation>실행 취소된 변경입니다.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>이전 값</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>새 값</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Changes since the camera was opened</source>
        <translation>카메라를 연 뒤의 변경 사항</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Export as script…</source>
        <translation>스크립트로 내보내기…</translation>
    </message>
    <message>
        <source>Writes a shell script that makes these changes again with cvxctl.</source>
        <translation>이 변경 사항을 cvxctl로 다시 적용하는 셸 스크립트를 저장합니다.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Export the changes</source>
        <translation>변경 사항 내보내기</translation>
    </message>
    <message>
        <source>Shell scripts (*.sh)</source>
        <translation>셸 스크립트 (*.sh)</translation>
    </message>
    <message>
        <source>The script &quot;%1&quot; cannot be written: %2</source>
        <translation>‘%1’ 스크립트를 저장할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>HtmlReport</name>
    <message>
        <source>Vendor</source>
        <translation>제조사</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>시리얼 번호</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Settings of the camera</source>
        <translation>카메라 설정</translation>
    </message>
    <message>
        <source>Created by Corvix X, version %1.</source>
        <translation>Corvix X 버전 %1에서 작성했습니다.</translation>
    </message>
</context>
<context>
    <name>ImageCanvas</name>
    <message>
        <source>Picture</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>No picture yet</source>
        <translation>아직 이미지 없음</translation>
    </message>
    <message>
        <source>%1 by %2 pixels, shown at %3 %</source>
        <translation>%1 × %2 픽셀, 표시 배율 %3 %</translation>
    </message>
</context>
<context>
    <name>InputsForm</name>
    <message>
        <source>&amp;Lines come from</source>
        <translation>라인 소스(&amp;L)</translation>
    </message>
    <message>
        <source>the camera&apos;s line rate</source>
        <translation>카메라의 라인 속도</translation>
    </message>
    <message>
        <source>an encoder</source>
        <translation>엔코더</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>속도(&amp;S)</translation>
    </message>
    <message>
        <source>mm/s</source>
        <translation>mm/s</translation>
    </message>
    <message>
        <source>Speed of the object. With an encoder: the highest speed, for which the limits are checked.</source>
        <translation>대상물의 속도입니다. 엔코더를 사용하는 경우 한계를 검사할 최고 속도를 입력하십시오.</translation>
    </message>
    <message>
        <source>&amp;Encoder</source>
        <translation>엔코더(&amp;E)</translation>
    </message>
    <message>
        <source>movement per pulse</source>
        <translation>펄스당 이동량</translation>
    </message>
    <message>
        <source>pulses and roller</source>
        <translation>펄스 수와 롤러</translation>
    </message>
    <message>
        <source>&amp;Movement per pulse</source>
        <translation>펄스당 이동량(&amp;M)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Movement of the object for one pulse, that is one cycle of one signal of the encoder.</source>
        <translation>펄스 하나, 즉 엔코더 신호 한 상의 한 주기 동안 대상물이 이동하는 거리입니다.</translation>
    </message>
    <message>
        <source>Number of pulses that the encoder sends while its roller turns once.</source>
        <translation>롤러가 한 바퀴 도는 동안 엔코더가 출력하는 펄스 수입니다.</translation>
    </message>
    <message>
        <source>Roller &amp;diameter</source>
        <translation>롤러 지름(&amp;D)</translation>
    </message>
    <message>
        <source>Diameter of the roller or wheel that turns the encoder.</source>
        <translation>엔코더를 돌리는 롤러 또는 휠의 지름입니다.</translation>
    </message>
    <message>
        <source>Size of a &amp;pixel</source>
        <translation>픽셀 크기(&amp;P)</translation>
    </message>
    <message>
        <source>from sensor and lens</source>
        <translation>센서와 렌즈로 계산</translation>
    </message>
    <message>
        <source>known on the object</source>
        <translation>대상물 기준으로 입력</translation>
    </message>
    <message>
        <source>Pi&amp;xel of the sensor</source>
        <translation>센서 픽셀(&amp;X)</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Width of a pixel of the sensor; the data sheet names it.</source>
        <translation>센서의 픽셀 너비입니다. 데이터시트에 나와 있습니다.</translation>
    </message>
    <message>
        <source>Ma&amp;gnification</source>
        <translation>배율(&amp;G)</translation>
    </message>
    <message>
        <source>Size of the image on the sensor divided by the size of the object, for example 0.5.</source>
        <translation>센서에 맺힌 상의 크기를 대상물의 크기로 나눈 값입니다(예: 0.5).</translation>
    </message>
    <message>
        <source>Pixel &amp;on the object</source>
        <translation>대상물 픽셀(&amp;O)</translation>
    </message>
    <message>
        <source>Width of the object that one pixel of the picture shows.</source>
        <translation>이미지의 픽셀 하나에 해당하는 대상물의 너비입니다.</translation>
    </message>
    <message>
        <source>Use the longest exposure</source>
        <translation>최대 노출 사용</translation>
    </message>
    <message>
        <source>Otherwise, the exposure is only shortened if it does not fit into a line.</source>
        <translation>선택하지 않으면 노출이 한 라인에 들어가지 않을 때만 노출을 줄입니다.</translation>
    </message>
    <message>
        <source>not entered</source>
        <translation>입력 안 함</translation>
    </message>
    <message>
        <source>Pulses per re&amp;volution</source>
        <translation>회전당 펄스 수(&amp;V)</translation>
    </message>
</context>
<context>
    <name>JobBar</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>LastingJob</name>
    <message>
        <source>The work was cancelled before it began, or the camera was closed.</source>
        <translation>작업이 시작되기 전에 취소되었거나 카메라가 닫혔습니다.</translation>
    </message>
</context>
<context>
    <name>LayoutBox</name>
    <message>
        <source>As the camera says</source>
        <translation>카메라 정보 사용</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>수동</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>탭:</translation>
    </message>
    <message>
        <source>Side by side:</source>
        <translation>가로 배열:</translation>
    </message>
    <message>
        <source>Stripes of the picture, from left to right</source>
        <translation>이미지의 띠 영역(왼쪽에서 오른쪽)</translation>
    </message>
    <message>
        <source>One above the other:</source>
        <translation>세로 배열:</translation>
    </message>
    <message>
        <source>Stripes of the picture, from top to bottom</source>
        <translation>이미지의 띠 영역(위에서 아래)</translation>
    </message>
    <message>
        <source>Neighbouring columns:</source>
        <translation>이웃 열:</translation>
    </message>
    <message>
        <source>Taps that read the columns of a stripe in turn; 1 if a stripe has one tap</source>
        <translation>한 띠 영역의 열을 번갈아 읽는 탭 수. 띠 영역에 탭이 하나이면 1</translation>
    </message>
    <message>
        <source>Mean of all taps</source>
        <translation>모든 탭의 평균</translation>
    </message>
    <message>
        <source>Tap 1</source>
        <translation>탭 1</translation>
    </message>
    <message>
        <source>Compare with:</source>
        <translation>비교 기준:</translation>
    </message>
    <message>
        <source>Images of each measurement; more images make the numbers more certain</source>
        <translation>측정당 이미지 수. 많을수록 수치가 정확해집니다</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>이미지 수:</translation>
    </message>
    <message>
        <source>Camera: %1</source>
        <translation>카메라: %1</translation>
    </message>
    <message>
        <source>Not reported by the camera</source>
        <translation>카메라가 알려 주지 않음</translation>
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
        <translation>라이브 이미지의 밝기</translation>
    </message>
    <message>
        <source>%1 % of the range; 50 to 80 % is good</source>
        <translation>범위의 %1 %, 적정 범위 50~80 %</translation>
    </message>
    <message>
        <source>%1 % of the values are clipped</source>
        <translation>값의 %1 %가 클리핑됨</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>이미지가 없습니다.</translation>
    </message>
</context>
<context>
    <name>LevelText</name>
    <message>
        <source>Beginner</source>
        <translation>초급</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>전문가</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>구루</translation>
    </message>
</context>
<context>
    <name>LineScanReport</name>
    <message>
        <source>Speed of the object</source>
        <translation>대상물의 속도</translation>
    </message>
    <message>
        <source>mm/s</source>
        <translation>mm/s</translation>
    </message>
    <message>
        <source>Movement per encoder pulse</source>
        <translation>엔코더 펄스당 이동량</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>대상물 픽셀</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Line rate for square pixels</source>
        <translation>정사각 픽셀의 라인 속도</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Lines per pulse for square pixels</source>
        <translation>정사각 픽셀의 펄스당 라인 수</translation>
    </message>
    <message>
        <source>Longest exposure</source>
        <translation>최대 노출</translation>
    </message>
    <message>
        <source>µs</source>
        <translation>µs</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>최고 속도</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>잔여 오차</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Line Scan Tuner</source>
        <translation>라인 스캔 조정</translation>
    </message>
    <message>
        <source>Round target</source>
        <translation>원형 타깃</translation>
    </message>
    <message>
        <source>First measurement</source>
        <translation>첫 측정</translation>
    </message>
    <message>
        <source>Last measurement</source>
        <translation>마지막 측정</translation>
    </message>
    <message>
        <source>Height to width</source>
        <translation>높이/너비 비율</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>편차</translation>
    </message>
    <message>
        <source>Turn of the camera (°)</source>
        <translation>카메라 회전(°)</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>이미지 수</translation>
    </message>
    <message>
        <source>The picture at the time of the report</source>
        <translation>보고서 작성 시점의 이미지</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>라인 속도</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>항목</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Written settings</source>
        <translation>카메라에 쓴 설정</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>이전</translation>
    </message>
</context>
<context>
    <name>LineScanWindow</name>
    <message>
        <source>Line Scan Tuner</source>
        <translation>라인 스캔 조정</translation>
    </message>
    <message>
        <source>This camera takes whole pictures: it has no line rate (AcquisitionLineRate) and no encoder. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>이 카메라는 에어리어 카메라로, 라인 속도(AcquisitionLineRate)와 엔코더 기능이 없습니다. 움직이는 대상물을 한 라인씩 촬영하는 라인 스캔 카메라를 선택하십시오.</translation>
    </message>
    <message>
        <source>Do the &amp;next step</source>
        <translation>다음 단계 실행(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>결과 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+Enter</translation>
    </message>
    <message>
        <source>Do the next step</source>
        <translation>다음 단계 실행</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Save the result</source>
        <translation>결과 저장</translation>
    </message>
    <message>
        <source>No round target was found yet.</source>
        <translation>아직 원형 타깃을 찾지 못했습니다.</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>결과 저장…</translation>
    </message>
    <message>
        <source>the largest</source>
        <translation>가장 큰 것</translation>
    </message>
    <message>
        <source>the one that I click</source>
        <translation>클릭한 것</translation>
    </message>
    <message>
        <source>in the columns that I draw</source>
        <translation>그린 열 범위 안</translation>
    </message>
    <message>
        <source>Which disc or ring is measured. The picture rolls, so only the columns count.</source>
        <translation>측정할 원판 또는 링을 지정합니다. 이미지가 계속 흐르므로 열 위치만 고려합니다.</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>타깃(&amp;T)</translation>
    </message>
    <message>
        <source>Look for the target in the live picture</source>
        <translation>라이브 이미지에서 타깃 찾기</translation>
    </message>
    <message>
        <source>The picture stands still for a moment where a target was found.</source>
        <translation>타깃을 찾으면 이미지가 잠시 멈춥니다.</translation>
    </message>
    <message>
        <source>Describe the machine</source>
        <translation>장비 정보 입력</translation>
    </message>
    <message>
        <source>Pixels are square if the camera takes one line while the object moves by one pixel.</source>
        <translation>대상물이 픽셀 하나만큼 이동하는 동안 카메라가 한 라인을 촬영하면 픽셀이 정사각형이 됩니다.</translation>
    </message>
    <message>
        <source>Set the camera</source>
        <translation>카메라 설정</translation>
    </message>
    <message>
        <source>This follows from the machine and from the limits of the camera.</source>
        <translation>장비 정보와 카메라의 한계로 계산한 값입니다.</translation>
    </message>
    <message>
        <source>Write the settings</source>
        <translation>설정 쓰기</translation>
    </message>
    <message>
        <source>Undo what was written</source>
        <translation>쓴 설정 되돌리기</translation>
    </message>
    <message>
        <source>Measure a round target</source>
        <translation>원형 타깃 측정</translation>
    </message>
    <message>
        <source>Let a dark or bright disc or ring move under the camera. It must be complete in one picture.</source>
        <translation>어둡거나 밝은 원판 또는 링이 카메라 아래를 지나가게 하십시오. 한 이미지에 전체가 들어와야 합니다.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>측정</translation>
    </message>
    <message>
        <source>Make it round</source>
        <translation>원형으로 맞추기</translation>
    </message>
    <message>
        <source>Correct the rate</source>
        <translation>속도 보정</translation>
    </message>
    <message>
        <source>The target in the live picture is round.</source>
        <translation>라이브 이미지의 타깃이 원형입니다.</translation>
    </message>
    <message>
        <source>The target in the live picture is too tall.</source>
        <translation>라이브 이미지의 타깃이 세로로 깁니다.</translation>
    </message>
    <message>
        <source>The target in the live picture is too flat.</source>
        <translation>라이브 이미지의 타깃이 세로로 짧습니다.</translation>
    </message>
    <message>
        <source>The line rate, or the ratio of the encoder, is multiplied with width / height of the target.</source>
        <translation>라인 속도 또는 엔코더 비율에 타깃의 너비/높이를 곱합니다.</translation>
    </message>
    <message>
        <source>The camera is turned by %1° against the movement.</source>
        <translation>카메라가 이동 방향에 대해 %1° 돌아가 있습니다.</translation>
    </message>
    <message>
        <source>The camera has accepted the settings.</source>
        <translation>카메라에 설정이 적용되었습니다.</translation>
    </message>
    <message>
        <source>Measuring the target</source>
        <translation>타깃 측정 중</translation>
    </message>
</context>
<context>
    <name>LivePicture</name>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>카메라가 이미지를 전송하지 않습니다. %1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off.</source>
        <translation>카메라가 트리거를 기다리고 있습니다. 트리거를 보내거나 트리거 모드를 끄십시오.</translation>
    </message>
    <message>
        <source>No picture has arrived yet.</source>
        <translation>아직 수신한 이미지가 없습니다.</translation>
    </message>
</context>
<context>
    <name>LiveStream</name>
    <message>
        <source>The stream of the camera has ended.</source>
        <translation>카메라의 스트림이 종료되었습니다.</translation>
    </message>
</context>
<context>
    <name>LoadDialog</name>
    <message>
        <source>Show only what &amp;changes</source>
        <translation>변경되는 항목만 표시(&amp;C)</translation>
    </message>
    <message>
        <source>Load what &amp;fits. If you cancel, what was loaded stays.</source>
        <translation>적용 가능한 설정만 불러오기(&amp;F). 취소해도 이미 불러온 설정은 유지됩니다.</translation>
    </message>
    <message>
        <source>&amp;All or nothing. If a setting fails or you cancel, everything is put back.</source>
        <translation>전부 아니면 불러오지 않기(&amp;A). 하나라도 실패하거나 취소하면 모두 복원합니다.</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>불러오기(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Undo the load</source>
        <translation>불러오기 되돌리기(&amp;U)</translation>
    </message>
    <message>
        <source>Co&amp;py report</source>
        <translation>보고서 복사(&amp;P)</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>%1 불러오기</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Nothing is written at all if a line of the file cannot be read, or if a setting cannot fit the camera.</source>
        <translation>파일에 읽을 수 없는 행이 있거나 카메라에 적용할 수 없는 설정이 있으면 아무것도 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>Puts back all settings from before the load.</source>
        <translation>모든 설정을 불러오기 전으로 복원합니다.</translation>
    </message>
    <message>
        <source>The load was not undone. Without this dialog, it cannot be undone any more.</source>
        <translation>불러오기를 되돌리지 못했습니다. 이 대화 상자를 닫으면 더 이상 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>그래도 닫기(&amp;A)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>LoadTable</name>
    <message>
        <source>The line cannot be read. %1</source>
        <translation>행을 읽을 수 없습니다. %1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>In camera</source>
        <translation>카메라 값</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>새 값</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>다시 읽은 값</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>결과</translation>
    </message>
</context>
<context>
    <name>LoadText</name>
    <message>
        <source>Cannot be loaded.</source>
        <translation>불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>실패했습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) cannot be loaded.</source>
        <translation>
            <numerusform>설정 %n개를 불러올 수 없습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) failed.</source>
        <translation>
            <numerusform>설정 %n개가 실패했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Will change.</source>
        <translation>변경됩니다.</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>변경했습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will change.</source>
        <translation>
            <numerusform>설정 %n개가 변경됩니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) changed.</source>
        <translation>
            <numerusform>설정 %n개를 변경했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Overruled by another setting.</source>
        <translation>다른 설정이 우선합니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will be overruled by others.</source>
        <translation>
            <numerusform>설정 %n개는 다른 설정이 우선하여 적용되지 않습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were overruled by others.</source>
        <translation>
            <numerusform>설정 %n개는 다른 설정이 우선하여 적용되지 않았습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already have the value.</source>
        <translation>
            <numerusform>설정 %n개는 이미 같은 값입니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already had the value.</source>
        <translation>
            <numerusform>설정 %n개는 이미 같은 값이었습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Already has this value.</source>
        <translation>이미 같은 값입니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) cannot be read.</source>
        <translation>
            <numerusform>%n개 줄을 읽을 수 없습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The load was cancelled, and the settings from before were put back.</source>
        <translation>불러오기가 취소되었으며 이전 설정으로 되돌렸습니다.</translation>
    </message>
    <message>
        <source>The load has failed, and the settings from before were put back.</source>
        <translation>불러오기에 실패하여 이전 설정으로 되돌렸습니다.</translation>
    </message>
    <message>
        <source>The load was cancelled. What was loaded before stays.</source>
        <translation>불러오기가 취소되었습니다. 그때까지 불러온 설정은 유지됩니다.</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>불러오기가 취소되었습니다. 변경된 것은 없습니다.</translation>
    </message>
    <message>
        <source>Nothing was changed, because not everything can be loaded.</source>
        <translation>일부 설정을 불러올 수 없어 아무것도 변경하지 않았습니다.</translation>
    </message>
    <message>
        <source>Not everything could be loaded.</source>
        <translation>일부 설정을 불러오지 못했습니다.</translation>
    </message>
    <message>
        <source>The settings were loaded and read back.</source>
        <translation>설정을 불러온 뒤 다시 읽어 확인했습니다.</translation>
    </message>
    <message>
        <source>All settings from before the load were put back.</source>
        <translation>불러오기 전의 모든 설정으로 되돌렸습니다.</translation>
    </message>
    <message>
        <source>Not all settings from before the load could be put back.</source>
        <translation>불러오기 전의 일부 설정을 되돌리지 못했습니다.</translation>
    </message>
    <message>
        <source>Put back.</source>
        <translation>되돌렸습니다.</translation>
    </message>
    <message>
        <source>Not put back.</source>
        <translation>되돌리지 못했습니다.</translation>
    </message>
    <message>
        <source>The settings are being compared with the camera.</source>
        <translation>설정을 카메라와 비교하는 중입니다.</translation>
    </message>
    <message>
        <source>The settings are being loaded and read back.</source>
        <translation>설정을 불러오고 다시 읽는 중입니다.</translation>
    </message>
    <message>
        <source>The settings from before the load are being put back.</source>
        <translation>불러오기 전의 설정으로 되돌리는 중입니다.</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>변경될 설정이 없습니다.</translation>
    </message>
    <message>
        <source>There are no settings to load.</source>
        <translation>불러올 설정이 없습니다.</translation>
    </message>
</context>
<context>
    <name>LockText</name>
    <message>
        <source>Not available at present.</source>
        <translation>현재 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Not available while %1 is %2.</source>
        <translation>사용할 수 없습니다(%1 = %2).</translation>
    </message>
    <message>
        <source>Locked by the camera.</source>
        <translation>카메라가 잠근 상태입니다.</translation>
    </message>
    <message>
        <source>Controlled by %1.</source>
        <translation>%1에서 제어합니다.</translation>
    </message>
    <message>
        <source>Locked while %1 is %2.</source>
        <translation>잠겨 있습니다(%1 = %2).</translation>
    </message>
    <message>
        <source>This camera does not have the feature.</source>
        <translation>이 카메라에는 없는 기능입니다.</translation>
    </message>
    <message>
        <source>The camera only reports this value.</source>
        <translation>읽기 전용 값입니다.</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>모니터링만 하는 중이므로 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>Locked while the camera streams.</source>
        <translation>스트리밍 중에는 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>Not available because of the setting of %1.</source>
        <translation>%1 설정 때문에 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 표시</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>%1: %2(으)로 설정</translation>
    </message>
</context>
<context>
    <name>LogBox</name>
    <message>
        <source>Appends each reading to a CSV file until you stop it. A file of the same camera is continued.</source>
        <translation>중지할 때까지 측정값을 CSV 파일에 추가합니다. 같은 카메라의 파일이면 이어서 기록합니다.</translation>
    </message>
    <message>
        <source>Log the temperatures</source>
        <translation>온도 기록</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>CSV 표 (*.csv)</translation>
    </message>
    <message>
        <source>Stop the &amp;log</source>
        <translation>기록 중지(&amp;L)</translation>
    </message>
    <message>
        <source>Start a &amp;log…</source>
        <translation>기록 시작(&amp;L)…</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>기록: %1</translation>
    </message>
    <message>
        <source>The readings are not logged.</source>
        <translation>측정값을 기록하고 있지 않습니다.</translation>
    </message>
</context>
<context>
    <name>LossAdvice</name>
    <message>
        <source>Packets are lost between camera and computer: check cable and switch, or reduce the frame rate or the region.</source>
        <translation>카메라와 컴퓨터 사이에서 패킷이 손실되고 있습니다. 케이블과 스위치를 점검하거나 프레임 속도 또는 관심 영역을 줄이십시오.</translation>
    </message>
    <message>
        <source>Transfers are lost between camera and computer: check the cable, connect the camera without a hub, or reduce the frame rate or the region.</source>
        <translation>카메라와 컴퓨터 사이에서 전송이 손실되고 있습니다. 케이블을 점검하고 허브 없이 카메라를 연결하거나, 프레임 속도 또는 관심 영역을 줄이십시오.</translation>
    </message>
    <message>
        <source>The connection or the computer is too slow: reduce the frame rate or the region, or close other programs.</source>
        <translation>연결 또는 컴퓨터가 너무 느립니다. 프레임 속도 또는 관심 영역을 줄이거나 다른 프로그램을 종료하십시오.</translation>
    </message>
    <message numerus="yes">
        <source>No buffer was free for %n image(s). This computer is too slow at present: close other programs, record to a faster disk, or reduce the frame rate or the region.</source>
        <translation>
            <numerusform>빈 버퍼가 없어 이미지 %n장이 손실되었습니다. 현재 컴퓨터의 처리 속도가 부족합니다. 다른 프로그램을 종료하거나, 더 빠른 디스크에 녹화하거나, 프레임 속도 또는 관심 영역을 줄이십시오.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were lost or damaged in the last seconds.</source>
        <translation>
            <numerusform>최근 몇 초 동안 이미지 %n장이 손실되거나 손상되었습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were incomplete in the last seconds.</source>
        <translation>
            <numerusform>최근 몇 초 동안 이미지 %n장이 불완전하게 수신되었습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Measure</name>
    <message>
        <source>The brightness changed by %1 % while the bright images were taken. Use a steady light, and take the images again.</source>
        <translation>밝은 이미지를 촬영하는 동안 밝기가 %1 % 변했습니다. 안정된 조명을 사용하여 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>Something moved while the bright images were taken. Point the camera at an evenly lit surface without objects, keep it still, and take the images again.</source>
        <translation>밝은 이미지를 촬영하는 동안 움직임이 있었습니다. 카메라가 물체 없이 균일하게 조명된 표면을 향하게 고정한 다음 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>The bright images show a scene. Point the camera at an evenly lit surface without objects, for example white paper close to the lens and out of focus, and take the images again.</source>
        <translation>밝은 이미지에 장면이 찍혔습니다. 카메라가 물체 없이 균일하게 조명된 표면(예: 렌즈 가까이에 두어 초점이 흐려진 흰 종이)을 향하게 한 다음 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the highest value: light reaches the sensor, or the exposure is too long. Cover the lens, then take the dark images again.</source>
        <translation>다크 이미지의 밝기가 최댓값의 %1 %입니다. 센서에 빛이 들어오거나 노출이 너무 깁니다. 렌즈를 가리고 다크 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>The dark images show something: light reaches the sensor. Cover the lens completely, then take the dark images again.</source>
        <translation>다크 이미지에 상이 보입니다. 센서에 빛이 들어오고 있습니다. 렌즈를 완전히 가리고 다크 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>Many pixels of the dark images have the value 0, so their noise is not visible. Increase the black level (BlackLevel), then take the dark images again.</source>
        <translation>다크 이미지에 값이 0인 픽셀이 많아 노이즈를 확인할 수 없습니다. 블랙 레벨(BlackLevel)을 높이고 다크 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>The bright images are too dark: they use %1 % of the value range. Uncover the lens, use more light or a longer exposure, and take the images again.</source>
        <translation>밝은 이미지가 너무 어둡습니다(값 범위의 %1 %). 렌즈 덮개를 벗기고 조명을 밝게 하거나 노출을 늘린 다음 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>%1 % of the pixels of the bright images have the highest value. Use less light or a shorter exposure, and take the images again.</source>
        <translation>밝은 이미지의 픽셀 중 %1 %가 최댓값입니다. 조명을 어둡게 하거나 노출을 줄인 다음 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>%1 % of the pixels deviate from their neighbours, so the surface had a structure, or light reached the sensor during the dark images. Take the images again.</source>
        <translation>픽셀의 %1 %가 주변 픽셀과 다릅니다. 표면에 무늬가 있었거나 다크 이미지를 촬영할 때 센서에 빛이 들어왔습니다. 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>Set %1 to %2: defect pixels are measured at full resolution without mirroring.</source>
        <translation>%1: %2(으)로 설정하십시오. 불량 픽셀은 최대 해상도에서 반전 없이 측정해야 합니다.</translation>
    </message>
    <message>
        <source>Choose a pixel format that contains the values of the pixels as they are, with 8 to 16 bits: Mono8 to Mono16, or Bayer (PixelFormat).</source>
        <translation>픽셀 값을 그대로 담는 8~16비트 픽셀 포맷을 선택하십시오: Mono8~Mono16 또는 Bayer(PixelFormat).</translation>
    </message>
    <message>
        <source>Choose a region of %1 x %1 pixels or more (Width, Height).</source>
        <translation>%1 x %1 픽셀 이상의 영역을 선택하십시오(Width, Height).</translation>
    </message>
    <message>
        <source>The size or the pixel format of the images has changed. Take the images again.</source>
        <translation>이미지의 크기 또는 픽셀 포맷이 바뀌었습니다. 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>Take %1 images or more: with fewer images, the noise hides defects.</source>
        <translation>이미지를 %1장 이상 촬영하십시오. 이미지가 적으면 노이즈에 불량 픽셀이 가려집니다.</translation>
    </message>
    <message>
        <source>The region or the pixel format differs from that of the dark images. Set it as before, or take the dark images again.</source>
        <translation>영역 또는 픽셀 포맷이 다크 이미지와 다릅니다. 이전과 같게 설정하거나 다크 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>The gain differs from that of the dark images, %1. Set it as before, or take the dark images again.</source>
        <translation>게인이 다크 이미지의 게인(%1)과 다릅니다. 이전과 같게 설정하거나 다크 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>The camera has sent the same pictures again and again. Lower AcquisitionFrameRate, then measure again.</source>
        <translation>카메라가 같은 이미지를 반복해서 보냈습니다. AcquisitionFrameRate를 낮춘 다음 다시 측정하십시오.</translation>
    </message>
</context>
<context>
    <name>MeasureBar</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>End the measurement. The settings of the camera are put back. (Esc)</source>
        <translation>측정을 종료합니다. 카메라 설정을 원래대로 되돌립니다. (Esc)</translation>
    </message>
</context>
<context>
    <name>MeasureJob</name>
    <message>
        <source>The camera is not open for control, so nothing can be measured.</source>
        <translation>카메라가 제어 모드로 열려 있지 않아 측정할 수 없습니다.</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Measure again when it is back.</source>
        <translation>측정 중에 카메라 연결이 끊겼습니다. 다시 연결되면 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The camera was closed during the measurement.</source>
        <translation>측정 중에 카메라가 닫혔습니다.</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>카메라가 이미지를 전송하지 않습니다. %1</translation>
    </message>
    <message>
        <source>Some settings were not put back. %1</source>
        <translation>일부 설정을 되돌리지 못했습니다. %1</translation>
    </message>
</context>
<context>
    <name>MeasuredComponent</name>
    <message>
        <source>Grey</source>
        <translation>그레이</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>녹색</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>알파</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>휘도</translation>
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
        <translation>첫째</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>둘째</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>셋째</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation>넷째</translation>
    </message>
</context>
<context>
    <name>MeasuringPanel</name>
    <message>
        <source>The picture has no colours to balance.</source>
        <translation>화이트 밸런스를 조정할 색상이 없는 이미지입니다.</translation>
    </message>
    <message>
        <source>This place is too dark for a white balance. Pick a brighter one.</source>
        <translation>화이트 밸런스를 맞추기에 너무 어두운 곳입니다. 더 밝은 곳을 선택하십시오.</translation>
    </message>
    <message>
        <source>This place is overexposed. Pick a darker one, or reduce the exposure.</source>
        <translation>노출이 과다한 곳입니다. 더 어두운 곳을 선택하거나 노출을 줄이십시오.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>이미지 전체</translation>
    </message>
    <message>
        <source>Drawn region</source>
        <translation>그린 영역</translation>
    </message>
    <message>
        <source>Measured area</source>
        <translation>측정 영역</translation>
    </message>
    <message>
        <source>Where histogram and statistics are measured. Draw a region in the picture to measure it.</source>
        <translation>히스토그램과 통계를 측정할 범위입니다. 특정 영역을 측정하려면 이미지에 영역을 그리십시오.</translation>
    </message>
    <message>
        <source>Shows the histogram logarithmically, so that rare values can be seen.</source>
        <translation>드문 값도 보이도록 히스토그램을 로그 스케일로 표시합니다.</translation>
    </message>
    <message>
        <source>Fit contrast</source>
        <translation>대비 맞춤</translation>
    </message>
    <message>
        <source>Spreads the values of the picture from black to white. Only the display changes.</source>
        <translation>이미지의 값을 검은색부터 흰색까지 펼칩니다. 표시만 바뀝니다.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Reset the contrast</source>
        <translation>대비 초기화</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>히스토그램</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copies the statistics to the clipboard, for a table.</source>
        <translation>표에 붙여 넣을 수 있도록 통계를 클립보드에 복사합니다.</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>통계</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>The pixel format is not known, so bytes are measured.</source>
        <translation>알 수 없는 픽셀 포맷이므로 바이트 값을 측정합니다.</translation>
    </message>
</context>
<context>
    <name>NoCameraPage</name>
    <message>
        <source>Connect a camera and switch it on. It appears here by itself.</source>
        <translation>카메라를 연결하고 전원을 켜십시오. 여기에 자동으로 표시됩니다.</translation>
    </message>
    <message>
        <source>Show what is in order, too</source>
        <translation>정상 항목도 표시</translation>
    </message>
    <message>
        <source>The checks are running</source>
        <translation>점검 중입니다</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>점검 결과</translation>
    </message>
    <message>
        <source>Checking producers, network, GigE and USB. This takes some seconds.</source>
        <translation>프로듀서, 네트워크, GigE, USB를 점검하고 있습니다. 몇 초 정도 걸립니다.</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>다시 점검(&amp;G)</translation>
    </message>
    <message>
        <source>No camera found</source>
        <translation>카메라를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>The checks have found no problem.</source>
        <translation>점검 결과 문제가 없습니다.</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>발견된 문제: %1</translation>
    </message>
</context>
<context>
    <name>NoteListDialog</name>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>원인</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
</context>
<context>
    <name>NumberEditor</name>
    <message>
        <source>The nearest value that the camera allows is %1.</source>
        <translation>카메라가 허용하는 가장 가까운 값: %1.</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1~%2 %3</translation>
    </message>
    <message>
        <source>%1, in steps of %2</source>
        <translation>%1, 증분 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>‘%1’은(는) 숫자가 아닙니다.</translation>
    </message>
</context>
<context>
    <name>OpeningSnapshot</name>
    <message>
        <source>This camera at opening</source>
        <translation>이 카메라(연 시점)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1: 읽을 수 없습니다. %2</translation>
    </message>
    <message>
        <source>%1 was changed before its value at opening was read.</source>
        <translation>%1: 연 시점의 값을 읽기 전에 변경되었습니다.</translation>
    </message>
    <message>
        <source>%1 was executed before all settings were read, so some of them may be those after it.</source>
        <translation>모든 설정을 읽기 전에 %1 명령이 실행되어, 일부 설정은 실행 후의 값일 수 있습니다.</translation>
    </message>
    <message>
        <source>There are too many values, so only some were read.</source>
        <translation>값이 너무 많아 일부만 읽었습니다.</translation>
    </message>
</context>
<context>
    <name>OpeningSource</name>
    <message>
        <source>This camera at opening</source>
        <translation>이 카메라(연 시점)</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>열려 있는 카메라가 없습니다.</translation>
    </message>
    <message>
        <source>The settings at opening are still being read.</source>
        <translation>연 시점의 설정을 아직 읽는 중입니다.</translation>
    </message>
    <message>
        <source>The settings at opening cannot be changed. Choose another right side.</source>
        <translation>연 시점의 설정은 과거 값이므로 쓸 수 없습니다. 오른쪽에 다른 대상을 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>OtherCameraSource</name>
    <message>
        <source>Camera %1</source>
        <translation>카메라 %1</translation>
    </message>
    <message>
        <source>Another program uses this camera, so it was only watched.</source>
        <translation>다른 프로그램이 사용 중인 카메라이므로 모니터링으로만 읽었습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) to the camera %1? This cannot be undone here.</source>
        <translation>
            <numerusform>설정 %n개를 카메라 %1에 쓰시겠습니까? 이 작업은 여기서 실행 취소할 수 없습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Opening the camera was cancelled.</source>
        <translation>카메라 열기를 취소했습니다.</translation>
    </message>
    <message>
        <source>The camera is not connected any more.</source>
        <translation>카메라 연결이 해제되었습니다.</translation>
    </message>
    <message>
        <source>The camera did not answer in time.</source>
        <translation>카메라가 제한 시간 안에 응답하지 않았습니다.</translation>
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
        <translation>원본 %1</translation>
    </message>
    <message>
        <source>shown %1</source>
        <translation>표시 %1</translation>
    </message>
    <message>
        <source>unknown pixel format, byte %1</source>
        <translation>알 수 없는 픽셀 포맷, 바이트 %1</translation>
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
        <translation>링크 속도에 의한 제한</translation>
    </message>
    <message>
        <source>by the exposure</source>
        <translation>노출에 의한 제한</translation>
    </message>
    <message>
        <source>by the camera</source>
        <translation>카메라에 의한 제한</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>New</source>
        <translation>새 값</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Settings that are written</source>
        <translation>카메라에 쓸 설정</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>대상물 픽셀</translation>
    </message>
    <message>
        <source>%1 µm</source>
        <translation>%1 µm</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>라인 속도</translation>
    </message>
    <message>
        <source>Highest line rate</source>
        <translation>최대 라인 속도</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Highest speed</source>
        <translation>최고 속도</translation>
    </message>
    <message>
        <source>%1 mm/s</source>
        <translation>%1 mm/s</translation>
    </message>
    <message>
        <source>Longest exposure</source>
        <translation>최대 노출</translation>
    </message>
    <message>
        <source>%1 µs</source>
        <translation>%1 µs</translation>
    </message>
    <message>
        <source>Dead time of a line</source>
        <translation>라인 데드 타임</translation>
    </message>
    <message>
        <source>Lines per pulse</source>
        <translation>펄스당 라인 수</translation>
    </message>
    <message>
        <source>Multiplier, divider</source>
        <translation>체배, 분주</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>잔여 오차</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>The camera is set up for this already.</source>
        <translation>카메라가 이미 이렇게 설정되어 있습니다.</translation>
    </message>
    <message>
        <source>These features are written, in this order:</source>
        <translation>다음 기능을 이 순서대로 씁니다:</translation>
    </message>
</context>
<context>
    <name>ProfileBox</name>
    <message>
        <source>Row</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>열</translation>
    </message>
    <message>
        <source>Drawn line</source>
        <translation>그린 선</translation>
    </message>
    <message>
        <source>Line of the profile</source>
        <translation>프로파일 선</translation>
    </message>
    <message>
        <source>Row and column are those of the pointer in the picture.</source>
        <translation>행과 열은 이미지에서 포인터가 있는 위치를 따릅니다.</translation>
    </message>
    <message>
        <source>Line profile</source>
        <translation>라인 프로파일</translation>
    </message>
</context>
<context>
    <name>ProfileWidget</name>
    <message>
        <source>Line profile</source>
        <translation>라인 프로파일</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Pixel %1
%2</source>
        <translation>픽셀 %1
%2</translation>
    </message>
    <message>
        <source>There is no line to measure.</source>
        <translation>측정할 선이 없습니다.</translation>
    </message>
</context>
<context>
    <name>RateGraph</name>
    <message>
        <source>Images per second and losses of the last minute</source>
        <translation>최근 1분간의 초당 이미지 수 및 손실</translation>
    </message>
    <message>
        <source>60 s ago</source>
        <translation>60초 전</translation>
    </message>
    <message>
        <source>30 s ago</source>
        <translation>30초 전</translation>
    </message>
    <message>
        <source>now</source>
        <translation>현재</translation>
    </message>
    <message>
        <source>Images/s</source>
        <translation>초당 이미지</translation>
    </message>
    <message>
        <source>Lost or incomplete/s</source>
        <translation>초당 손실·불완전</translation>
    </message>
</context>
<context>
    <name>RecordingControl</name>
    <message>
        <source>no pictures arrive; start the live picture first</source>
        <translation>수신되는 이미지가 없습니다. 먼저 라이브를 시작하십시오</translation>
    </message>
    <message>
        <source>the camera was closed</source>
        <translation>카메라가 닫혔습니다</translation>
    </message>
    <message>
        <source>The recording ended because the limit of free space was reached.</source>
        <translation>남길 공간 한도에 도달하여 녹화가 종료되었습니다.</translation>
    </message>
</context>
<context>
    <name>RecordingSummary</name>
    <message>
        <source>The recording did not begin: %1.</source>
        <translation>녹화를 시작하지 못했습니다: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) recorded in %1 to &quot;%2&quot;.</source>
        <translation>
            <numerusform>이미지 %n장을 %1 동안 ‘%2’에 녹화했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The recording ended early: %1.</source>
        <translation>녹화가 중간에 종료되었습니다: %1.</translation>
    </message>
    <message>
        <source>No image is missing.</source>
        <translation>누락된 이미지가 없습니다.</translation>
    </message>
    <message>
        <source>The image format changed during the recording; the file describes each image.</source>
        <translation>녹화 중에 이미지 형식이 바뀌었습니다. 각 이미지의 형식은 파일에 기록되어 있습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) never arrived from the camera</source>
        <translation>
            <numerusform>카메라에서 도착하지 않은 이미지 %n장</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) found no free buffer</source>
        <translation>
            <numerusform>빈 버퍼가 없어 손실된 이미지 %n장</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be kept because the disk or the encoder is too slow</source>
        <translation>
            <numerusform>디스크 또는 인코더가 느려 보관하지 못한 이미지 %n장</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be written</source>
        <translation>
            <numerusform>기록하지 못한 이미지 %n장</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n recorded image(s) are incomplete</source>
        <translation>
            <numerusform>녹화된 불완전 이미지 %n장</numerusform>
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
            <numerusform>이미지 %n장</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>disk space</comment>
        <translation>%1 남음</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) waiting</source>
        <translation>
            <numerusform>이미지 %n장 대기 중</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost for a while.</source>
        <translation>한동안 카메라 연결이 끊겼습니다.</translation>
    </message>
    <message>
        <source>Lost or incomplete: %1.</source>
        <translation>손실·불완전: %1.</translation>
    </message>
</context>
<context>
    <name>RegionCall</name>
    <message>
        <source>The camera does not report its region.</source>
        <translation>카메라가 관심 영역을 알려 주지 않습니다.</translation>
    </message>
    <message>
        <source>The camera&apos;s region has changed since it was drawn. Draw it again on the present picture.</source>
        <translation>영역을 그린 뒤에 카메라의 관심 영역이 바뀌었습니다. 현재 이미지에 다시 그리십시오.</translation>
    </message>
</context>
<context>
    <name>RegisterEditor</name>
    <message>
        <source>Write</source>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>변경 취소</translation>
    </message>
    <message>
        <source>Writes all bytes to the camera (Ctrl+Return).</source>
        <translation>모든 바이트를 카메라에 씁니다(Ctrl+Enter).</translation>
    </message>
    <message>
        <source>Shows the bytes of the camera again (Escape).</source>
        <translation>카메라의 바이트를 다시 표시합니다(Esc).</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n바이트</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, not readable</source>
        <translation>%1, 읽을 수 없음</translation>
    </message>
</context>
<context>
    <name>RepairPanel</name>
    <message>
        <source>Cover the lens</source>
        <translation>렌즈 가리기</translation>
    </message>
    <message>
        <source>No light may reach the sensor. A long exposure and a high gain show more hot pixels: use the longest exposure that you work with, and let the camera warm up.</source>
        <translation>센서에 빛이 들어오지 않아야 합니다. 노출이 길고 게인이 높을수록 핫 픽셀이 많이 나타납니다. 실제로 사용하는 가장 긴 노출을 설정하고 카메라를 예열하십시오.</translation>
    </message>
    <message>
        <source>Take &amp;dark images</source>
        <translation>다크 이미지 촬영(&amp;D)</translation>
    </message>
    <message>
        <source>Point at an evenly lit surface</source>
        <translation>균일하게 조명된 표면 비추기</translation>
    </message>
    <message>
        <source>Uncover the lens and fill the picture with one bright surface without objects, for example white paper, out of focus. Half of the highest brightness is best; leave the gain as it is.</source>
        <translation>렌즈 덮개를 벗기고 물체가 없는 밝은 표면(예: 초점이 흐려진 흰 종이)으로 이미지를 채우십시오. 최대 밝기의 절반이 가장 좋습니다. 게인은 바꾸지 마십시오.</translation>
    </message>
    <message>
        <source>Take &amp;bright images</source>
        <translation>밝은 이미지 촬영(&amp;B)</translation>
    </message>
    <message>
        <source>Save the map</source>
        <translation>맵 저장</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl repair pictures with the map. A report and a table are saved beside it.</source>
        <translation>이미지 뷰어와 cvxctl에서 이 맵으로 이미지를 보정할 수 있습니다. 보고서와 표도 함께 저장됩니다.</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>저장(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Number of images</source>
        <translation>이미지 수(&amp;N)</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images find weaker defects and pixels that blink rarely.</source>
        <translation>다크 이미지와 밝은 이미지 각각의 수입니다. 많을수록 약한 결함과 드물게 점멸하는 픽셀까지 찾을 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>RepairReport</name>
    <message>
        <source>Pixel Repair</source>
        <translation>픽셀 보정</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>클러스터</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>서로 맞닿은 불량 픽셀입니다.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>열</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>불량 픽셀이 8개 이상인 열 구간입니다.</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>불량 픽셀이 8개 이상인 행 구간입니다.</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>개수</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>의미</translation>
    </message>
    <message>
        <source>Places of the defect pixels on the sensor</source>
        <translation>센서에서 불량 픽셀의 위치</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>측정 조건</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Exposure in ms</source>
        <translation>노출(ms)</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>게인</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>레벨</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>노이즈</translation>
    </message>
    <message>
        <source>Spread of the good pixels</source>
        <translation>정상 픽셀의 산포</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>다크</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>밝음</translation>
    </message>
    <message>
        <source>Threshold: %1 standard deviations. Examined pixels: %2.</source>
        <translation>임곗값: 표준 편차의 %1배. 검사한 픽셀 수: %2.</translation>
    </message>
</context>
<context>
    <name>RepairWindow</name>
    <message>
        <source>&amp;Save the map…</source>
        <translation>맵 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Pixel Repair</source>
        <translation>픽셀 보정</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>다크 이미지 촬영 중</translation>
    </message>
    <message numerus="yes">
        <source>%n dark image(s) taken.</source>
        <translation>
            <numerusform>다크 이미지 %n장을 촬영했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>밝은 이미지 촬영 중</translation>
    </message>
    <message>
        <source>%1 was off during the measurement, so the map also contains what the camera itself can repair.</source>
        <translation>측정 중에 %1 기능을 껐으므로 카메라가 자체 보정할 수 있는 픽셀도 맵에 포함됩니다.</translation>
    </message>
    <message>
        <source>The picture is not repaired: %1.</source>
        <translation>이미지가 보정되지 않습니다: %1.</translation>
    </message>
</context>
<context>
    <name>RestoreBar</name>
    <message>
        <source>Shows which settings differ from those when the camera was opened.</source>
        <translation>카메라를 연 시점과 다른 설정을 표시합니다.</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>닫기(&amp;D)</translation>
    </message>
    <message>
        <source>%1 Settings that were not made with this program may have the values from power-on.</source>
        <translation>%1 이 프로그램에서 변경하지 않은 설정은 전원을 켤 때의 값으로 바뀌었을 수 있습니다.</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>모니터링만 하는 중이므로 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>The settings were not read completely before the camera was lost.</source>
        <translation>카메라 연결이 끊기기 전에 설정을 모두 읽지 못했습니다.</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>변경될 내용을 보여 준 다음, 모든 설정을 카메라를 연 시점으로 복원합니다.</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>비교(&amp;M)</translation>
    </message>
    <message>
        <source>Res&amp;tore</source>
        <translation>복원(&amp;R)</translation>
    </message>
</context>
<context>
    <name>ResultBox</name>
    <message>
        <source>Defect pixels</source>
        <translation>불량 픽셀</translation>
    </message>
    <message>
        <source>&amp;Mark the defect pixels</source>
        <translation>불량 픽셀 표시(&amp;M)</translation>
    </message>
    <message>
        <source>Replaces each defect pixel by the median of its good neighbours of the same colour.</source>
        <translation>각 불량 픽셀을 같은 색의 정상 이웃 픽셀의 중앙값으로 대체합니다.</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>클러스터</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>서로 맞닿은 불량 픽셀입니다.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>열</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>불량 픽셀이 8개 이상인 열 구간입니다.</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>행</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>불량 픽셀이 8개 이상인 행 구간입니다.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Show the re&amp;paired picture</source>
        <translation>보정된 이미지 표시(&amp;P)</translation>
    </message>
</context>
<context>
    <name>ResultSaver</name>
    <message>
        <source>Save the result</source>
        <translation>결과 저장</translation>
    </message>
    <message>
        <source>Results (%1)</source>
        <translation>결과 (%1)</translation>
    </message>
    <message>
        <source>These files exist already: %1. Do you want to replace them?</source>
        <translation>다음 파일이 이미 있습니다: %1. 덮어쓰시겠습니까?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>덮어쓰기</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved. %2</source>
        <translation>‘%1’을(를) 저장하지 못했습니다. %2</translation>
    </message>
</context>
<context>
    <name>SelectorTable</name>
    <message>
        <source>Read again</source>
        <translation>다시 읽기</translation>
    </message>
    <message>
        <source>Values of the selected features</source>
        <translation>선택 대상 기능의 값</translation>
    </message>
    <message>
        <source>Show the feature</source>
        <translation>기능 표시</translation>
    </message>
    <message>
        <source>The feature has no selector, so it has only one value.</source>
        <translation>셀렉터가 없는 기능이므로 값이 하나뿐입니다.</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 = %2</translation>
    </message>
    <message>
        <source>The values for each %1</source>
        <translation>%1별 값</translation>
    </message>
    <message>
        <source>%1, while %2</source>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>Reading the values for each %1</source>
        <translation>%1별 값을 읽는 중</translation>
    </message>
    <message>
        <source>Reading was cancelled.</source>
        <translation>읽기를 취소했습니다.</translation>
    </message>
    <message>
        <source>The selector has more values; only the first ones are shown here.</source>
        <translation>셀렉터의 값이 많아 앞부분만 표시합니다.</translation>
    </message>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>이 값을 변경하려면 스트림을 잠시 중지해야 합니다.</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>중지 후 설정·재시작</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>%1 쓰는 중</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of %2.</source>
        <translation>‘%1’은(는) %2에 쓸 수 있는 값이 아닙니다.</translation>
    </message>
</context>
<context>
    <name>Sentence</name>
    <message>
        <source>The exposure time of this camera cannot be set. Change the light until the picture has about 70 % of the range, and measure without setting the exposure time.</source>
        <translation>이 카메라는 노출 시간을 설정할 수 없습니다. 이미지의 밝기가 범위의 약 70 %가 되도록 조명을 조절하고 노출 시간 자동 설정 없이 측정하십시오.</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed since the dark images. Take the dark images again.</source>
        <translation>다크 이미지를 촬영한 뒤에 영역 또는 픽셀 포맷이 바뀌었습니다. 다크 이미지를 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be corrected. Choose a Mono or Bayer format of 8 to 16 bits.</source>
        <translation>픽셀 포맷 %1은(는) 보정할 수 없습니다. 8~16비트의 Mono 또는 Bayer 포맷을 선택하십시오.</translation>
    </message>
    <message>
        <source>The colours of a line scan camera cannot be corrected. Choose a Mono format.</source>
        <translation>라인 스캔 카메라의 컬러 이미지는 보정할 수 없습니다. Mono 포맷을 선택하십시오.</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed during the measurement. Measure again without changing them.</source>
        <translation>측정 중에 영역 또는 픽셀 포맷이 바뀌었습니다. 변경하지 말고 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>%1 images are too few for a correction. Take at least %2.</source>
        <translation>이미지 %1장으로는 보정할 수 없습니다. %2장 이상 촬영하십시오.</translation>
    </message>
    <message>
        <source>The bright images are too dark: %1 % of the range above the dark images. Is the lens still covered? Otherwise, use more light or a longer exposure time, for about 70 %.</source>
        <translation>밝은 이미지가 너무 어둡습니다. 다크 이미지보다 범위의 %1 %만큼만 밝습니다. 렌즈가 아직 가려져 있지 않은지 확인하십시오. 가려져 있지 않으면 조명을 밝게 하거나 노출 시간을 늘려 약 70 %로 맞추십시오.</translation>
    </message>
    <message>
        <source>The bright images have %1 % of the range. Between 50 and 80 %, the gains are most exact.</source>
        <translation>밝은 이미지의 밝기는 범위의 %1 %입니다. 50~80 %일 때 게인이 가장 정확합니다.</translation>
    </message>
    <message>
        <source>Parts of the picture have changed by %1 % between the images: something moves, or the light flickers. Use an even surface that keeps still, and steady light.</source>
        <translation>이미지 사이에 일부 영역의 밝기가 %1 % 변했습니다. 움직임이 있거나 조명이 깜박입니다. 움직이지 않는 균일한 표면과 안정된 조명을 사용하십시오.</translation>
    </message>
    <message>
        <source>The brightness has changed by %1 % between the images. Use steady light.</source>
        <translation>이미지 사이에 밝기가 %1 % 변했습니다. 안정된 조명을 사용하십시오.</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the range, so there seems to be light. Cover the lens completely. If it is covered, reduce BlackLevel or Gain.</source>
        <translation>다크 이미지의 밝기가 범위의 %1 %이므로 빛이 들어오는 것으로 보입니다. 렌즈를 완전히 가리십시오. 이미 가렸다면 BlackLevel 또는 Gain을 줄이십시오.</translation>
    </message>
    <message>
        <source>The dark images are not equally dark everywhere. Make sure that no light reaches the lens, and take them again.</source>
        <translation>다크 이미지의 밝기가 고르지 않습니다. 렌즈에 빛이 들어오지 않게 하고 다시 촬영하십시오.</translation>
    </message>
    <message>
        <source>%1 % of the values in the dark are 0, so the offsets are cut off. Increase BlackLevel.</source>
        <translation>어두운 상태에서 값의 %1 %가 0이므로 오프셋이 잘립니다. BlackLevel을 높이십시오.</translation>
    </message>
    <message>
        <source>The noise in the dark is smaller than one step of the pixel format, so the numbers of the dark images are not exact. A pixel format with more bits shows the differences.</source>
        <translation>다크 노이즈가 픽셀 포맷의 한 단계보다 작아 다크 이미지의 수치가 정확하지 않습니다. 비트 수가 더 많은 픽셀 포맷을 사용하면 차이를 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 % of the values in the bright images are clipped. Reduce the exposure time or the light, to about 70 % of the range.</source>
        <translation>밝은 이미지의 값 중 %1 %가 클리핑되었습니다. 노출 시간 또는 조명을 줄여 범위의 약 70 %로 맞추십시오.</translation>
    </message>
    <message>
        <source>The bright images show structures that look like an object and not like shading; the correction would draw them into every picture. Use an even surface, out of focus.</source>
        <translation>밝은 이미지에 셰이딩이 아니라 물체처럼 보이는 구조가 있습니다. 이대로 보정하면 모든 이미지에 그 구조가 나타납니다. 초점이 흐려진 균일한 표면을 사용하십시오.</translation>
    </message>
    <message>
        <source>The picture is too dark. Remove the lens cap, open the aperture, add light or lengthen the exposure time.</source>
        <translation>이미지가 너무 어둡습니다. 렌즈 캡을 벗기거나, 조리개를 열거나, 조명을 더하거나, 노출 시간을 늘리십시오.</translation>
    </message>
    <message>
        <source>%1 % of the pixels are overexposed. Close the aperture or shorten the exposure time.</source>
        <translation>픽셀의 %1 %가 노출 과다입니다. 조리개를 조이거나 노출 시간을 줄이십시오.</translation>
    </message>
    <message>
        <source>The picture has no edges. Point the camera at something with structure, for example a printed page, or turn the lens if the picture is blurred.</source>
        <translation>이미지에 에지가 없습니다. 인쇄물처럼 무늬가 있는 대상을 비추거나, 이미지가 흐리면 렌즈를 돌리십시오.</translation>
    </message>
    <message>
        <source>Pictures of this pixel format cannot be measured. Choose a Mono, Bayer, RGB or YUV format.</source>
        <translation>이 픽셀 포맷의 이미지는 측정할 수 없습니다. Mono, Bayer, RGB 또는 YUV 포맷을 선택하십시오.</translation>
    </message>
    <message>
        <source>The picture is too small for so many regions. Choose a larger Width and Height, or fewer regions.</source>
        <translation>영역 수에 비해 이미지가 너무 작습니다. Width와 Height를 늘리거나 영역 수를 줄이십시오.</translation>
    </message>
    <message>
        <source>The picture became sharp at no position of the lens. Point the camera at something with structure, check the distance, and search again.</source>
        <translation>렌즈의 어느 위치에서도 이미지가 선명해지지 않았습니다. 무늬가 있는 대상을 비추고 거리를 확인한 다음 다시 검색하십시오.</translation>
    </message>
    <message>
        <source>The camera cannot move its lens: it has no feature for the position of the focus, for example LensFocusPosition. Turn the lens by hand.</source>
        <translation>초점 위치 기능(예: LensFocusPosition)이 없어 카메라가 렌즈를 움직일 수 없습니다. 렌즈를 손으로 돌리십시오.</translation>
    </message>
    <message>
        <source>The right edge is sharp at a higher position than the left edge, by %1.</source>
        <translation>오른쪽 가장자리의 초점 위치가 왼쪽 가장자리보다 %1만큼 높습니다.</translation>
    </message>
    <message>
        <source>The left edge became sharp before the right edge, by %1 s.</source>
        <translation>왼쪽 가장자리가 오른쪽 가장자리보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>The lower right corner is sharp at a higher position than the upper left corner, by %1.</source>
        <translation>오른쪽 아래 모서리의 초점 위치가 왼쪽 위 모서리보다 %1만큼 높습니다.</translation>
    </message>
    <message>
        <source>The upper left corner became sharp before the lower right corner, by %1 s.</source>
        <translation>왼쪽 위 모서리가 오른쪽 아래 모서리보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>The lower edge is sharp at a higher position than the upper edge, by %1.</source>
        <translation>아래쪽 가장자리의 초점 위치가 위쪽 가장자리보다 %1만큼 높습니다.</translation>
    </message>
    <message>
        <source>The upper edge became sharp before the lower edge, by %1 s.</source>
        <translation>위쪽 가장자리가 아래쪽 가장자리보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>The lower left corner is sharp at a higher position than the upper right corner, by %1.</source>
        <translation>왼쪽 아래 모서리의 초점 위치가 오른쪽 위 모서리보다 %1만큼 높습니다.</translation>
    </message>
    <message>
        <source>The upper right corner became sharp before the lower left corner, by %1 s.</source>
        <translation>오른쪽 위 모서리가 왼쪽 아래 모서리보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>The left edge is sharp at a higher position than the right edge, by %1.</source>
        <translation>왼쪽 가장자리의 초점 위치가 오른쪽 가장자리보다 %1만큼 높습니다.</translation>
    </message>
    <message>
        <source>The right edge became sharp before the left edge, by %1 s.</source>
        <translation>오른쪽 가장자리가 왼쪽 가장자리보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>The upper left corner is sharp at a higher position than the lower right corner, by %1.</source>
        <translation>왼쪽 위 모서리의 초점 위치가 오른쪽 아래 모서리보다 %1만큼 높습니다.</translation>
    </message>
    <message>
        <source>The lower right corner became sharp before the upper left corner, by %1 s.</source>
        <translation>오른쪽 아래 모서리가 왼쪽 위 모서리보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>The upper edge is sharp at a higher position than the lower edge, by %1.</source>
        <translation>위쪽 가장자리의 초점 위치가 아래쪽 가장자리보다 %1만큼 높습니다.</translation>
    </message>
    <message>
        <source>The lower edge became sharp before the upper edge, by %1 s.</source>
        <translation>아래쪽 가장자리가 위쪽 가장자리보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>The upper right corner is sharp at a higher position than the lower left corner, by %1.</source>
        <translation>오른쪽 위 모서리의 초점 위치가 왼쪽 아래 모서리보다 %1만큼 높습니다.</translation>
    </message>
    <message>
        <source>The lower left corner became sharp before the upper right corner, by %1 s.</source>
        <translation>왼쪽 아래 모서리가 오른쪽 위 모서리보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>Turn the lens slowly in one direction, until the picture has become blurred again.</source>
        <translation>이미지가 다시 흐려질 때까지 렌즈를 한 방향으로 천천히 돌리십시오.</translation>
    </message>
    <message>
        <source>Keep turning in this direction.</source>
        <translation>이 방향으로 계속 돌리십시오.</translation>
    </message>
    <message>
        <source>Turn back: the peak lies in the other direction.</source>
        <translation>반대로 돌리십시오. 피크는 반대 방향에 있습니다.</translation>
    </message>
    <message>
        <source>The best position is %1. The lens is there.</source>
        <translation>최적 위치는 %1입니다. 렌즈가 이 위치에 있습니다.</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens up by %2.</source>
        <translation>최적 위치는 %1입니다. 렌즈 위치를 %2만큼 높이십시오.</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens down by %2.</source>
        <translation>최적 위치는 %1입니다. 렌즈 위치를 %2만큼 낮추십시오.</translation>
    </message>
    <message>
        <source>Too few regions became sharp and blurred again to tell whether the focus is tilted. Point the camera at something with edges all over the picture, and go through the sharpest position once more.</source>
        <translation>선명해졌다가 다시 흐려진 영역이 부족하여 초점면의 기울기를 판정할 수 없습니다. 이미지 전체에 에지가 있는 대상을 비추고 가장 선명한 위치를 한 번 더 지나가십시오.</translation>
    </message>
    <message>
        <source>The focus is not tilted.</source>
        <translation>초점면이 기울어져 있지 않습니다.</translation>
    </message>
    <message>
        <source>The centre became sharp before the corners, by %1 s.</source>
        <translation>중심이 모서리보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>The corners became sharp before the centre, by %1 s.</source>
        <translation>모서리가 중심보다 %1초 먼저 선명해졌습니다.</translation>
    </message>
    <message>
        <source>The corners are sharp at a higher position than the centre, by %1.</source>
        <translation>모서리의 초점 위치가 중심보다 %1만큼 높습니다.</translation>
    </message>
    <message>
        <source>The corners are sharp at a lower position than the centre, by %1.</source>
        <translation>모서리의 초점 위치가 중심보다 %1만큼 낮습니다.</translation>
    </message>
    <message>
        <source>The link carries %1 MB/s: at most %2 kHz with this width and pixel format. Choose a smaller width, a pixel format with fewer bits, or a lower speed.</source>
        <translation>링크의 전송 속도는 %1 MB/s이며, 현재 너비와 픽셀 포맷에서는 최대 %2 kHz입니다. 너비를 줄이거나, 비트 수가 적은 픽셀 포맷을 선택하거나, 속도를 낮추십시오.</translation>
    </message>
    <message>
        <source>The exposure allows at most %1 kHz, because a line cannot be shorter than its exposure. Shorten the exposure, and add light or gain.</source>
        <translation>라인 주기는 노출보다 짧을 수 없으므로 현재 노출에서는 최대 %1 kHz입니다. 노출을 줄이고 조명을 더하거나 게인을 높이십시오.</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz with its present settings. Choose a lower speed or a smaller magnification.</source>
        <translation>카메라의 현재 설정에서는 최대 %1 kHz까지 가능합니다. 속도를 낮추거나 배율을 줄이십시오.</translation>
    </message>
    <message>
        <source>This camera takes whole pictures. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>이 카메라는 에어리어 카메라입니다. 움직이는 대상물을 한 라인씩 촬영하는 라인 스캔 카메라를 선택하십시오.</translation>
    </message>
    <message>
        <source>Every number must be greater than 0.</source>
        <translation>모든 수는 0보다 커야 합니다.</translation>
    </message>
    <message>
        <source>Enter the pixel size and the magnification, or the size of a pixel on the object.</source>
        <translation>센서의 픽셀 크기와 배율을 입력하거나, 대상물에서의 픽셀 크기를 입력하십시오.</translation>
    </message>
    <message>
        <source>Enter the speed of the object.</source>
        <translation>대상물의 속도를 입력하십시오.</translation>
    </message>
    <message>
        <source>Enter the movement per encoder pulse, or the pulses per revolution and the diameter of the roller.</source>
        <translation>엔코더 펄스당 이동량을 입력하거나, 회전당 펄스 수와 롤러 지름을 입력하십시오.</translation>
    </message>
    <message>
        <source>The camera has no line rate of its own (AcquisitionLineRate). Use an encoder, or an external trigger.</source>
        <translation>카메라에 자체 라인 속도 기능(AcquisitionLineRate)이 없습니다. 엔코더 또는 외부 트리거를 사용하십시오.</translation>
    </message>
    <message>
        <source>The camera cannot start lines by an encoder (TriggerSelector has no LineStart). Use its line rate.</source>
        <translation>카메라가 엔코더로 라인을 시작할 수 없습니다(TriggerSelector에 LineStart 없음). 카메라의 라인 속도를 사용하십시오.</translation>
    </message>
    <message>
        <source>The exposure of %1 µs is longer than a line. It has to be shortened to %2 µs, so the picture becomes darker: add light or gain.</source>
        <translation>노출 %1 µs가 라인 주기보다 깁니다. %2 µs로 줄여야 하므로 이미지가 어두워집니다. 조명을 더하거나 게인을 높이십시오.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification, or use another encoder.</source>
        <translation>카메라에서 가장 가까운 설정값을 사용하면 대상물이 세로로 %1 % 길게 나타납니다. 배율을 바꾸거나 다른 엔코더를 사용하십시오.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification, or use another encoder.</source>
        <translation>카메라에서 가장 가까운 설정값을 사용하면 대상물이 세로로 %1 % 짧게 나타납니다. 배율을 바꾸거나 다른 엔코더를 사용하십시오.</translation>
    </message>
    <message>
        <source>The camera offers no encoder as the source of its line trigger (TriggerSource). Use its line rate.</source>
        <translation>카메라의 라인 트리거 소스(TriggerSource)에 엔코더가 없습니다. 카메라의 라인 속도를 사용하십시오.</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz, but square pixels need %2 kHz. Nothing was changed. Choose a lower speed or a smaller magnification.</source>
        <translation>카메라는 최대 %1 kHz까지 가능하지만 정사각 픽셀에는 %2 kHz가 필요합니다. 변경된 설정은 없습니다. 속도를 낮추거나 배율을 줄이십시오.</translation>
    </message>
    <message>
        <source>The camera has refused %1, so nothing was changed. %2</source>
        <translation>카메라가 %1 설정을 거부하여 아무것도 변경하지 않았습니다. %2</translation>
    </message>
    <message>
        <source>The circle is round: height and width differ by %1 %.</source>
        <translation>원형입니다. 높이와 너비의 차이는 %1 %입니다.</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the lines per encoder pulse from %2 to %3.</source>
        <translation>원이 세로로 %1 % 깁니다. 엔코더 펄스당 라인 수를 %2에서 %3(으)로 줄이십시오.</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the lines per encoder pulse from %2 to %3.</source>
        <translation>원이 세로로 %1 % 짧습니다. 엔코더 펄스당 라인 수를 %2에서 %3(으)로 늘리십시오.</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the line rate from %2 kHz to %3 kHz.</source>
        <translation>원이 세로로 %1 % 깁니다. 라인 속도를 %2 kHz에서 %3 kHz로 낮추십시오.</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the line rate from %2 kHz to %3 kHz.</source>
        <translation>원이 세로로 %1 % 짧습니다. 라인 속도를 %2 kHz에서 %3 kHz로 높이십시오.</translation>
    </message>
    <message>
        <source>The border of the round target is uneven. Check whether the object moves evenly, whether lines are lost, and whether the target is sharp and free of other shapes.</source>
        <translation>원형 타깃의 윤곽이 고르지 않습니다. 대상물이 일정하게 움직이는지, 손실된 라인이 없는지, 타깃이 선명하고 다른 형상과 겹치지 않는지 확인하십시오.</translation>
    </message>
    <message>
        <source>There is no complete round target in the picture of %1 lines. Show the camera a dark or bright disc or ring, or make the picture higher (Height).</source>
        <translation>%1라인 이미지에 원형 타깃 전체가 들어 있지 않습니다. 어둡거나 밝은 원판 또는 링을 비추거나 이미지를 더 높게(Height) 설정하십시오.</translation>
    </message>
    <message>
        <source>The picture has too little contrast. Take off the lens cap, add light, and show the camera a dark or bright disc or ring.</source>
        <translation>이미지의 대비가 너무 낮습니다. 렌즈 캡을 벗기고 조명을 더한 다음 어둡거나 밝은 원판 또는 링을 비추십시오.</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s, because it waits for a trigger. Trigger it, or set TriggerMode to Off, and measure again.</source>
        <translation>카메라가 트리거를 기다리느라 %1초 동안 이미지를 보내지 않았습니다. 트리거를 보내거나 TriggerMode를 Off로 설정한 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s. Check whether the live picture moves, and the cable, then measure again.</source>
        <translation>카메라가 %1초 동안 이미지를 보내지 않았습니다. 라이브 이미지가 갱신되는지와 케이블을 확인한 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Check its cable and its power, wait until the picture is back, then measure again. (%1)</source>
        <translation>측정 중에 카메라 연결이 끊겼습니다. 케이블과 전원을 확인하고 이미지가 다시 표시되면 다시 측정하십시오. (%1)</translation>
    </message>
    <message>
        <source>The images arrive with missing data. Check the cable and the network card (&quot;cvxctl doctor&quot; helps), or lower the image rate, then measure again.</source>
        <translation>수신되는 이미지에 누락된 데이터가 있습니다. 케이블과 네트워크 카드를 점검하거나(‘cvxctl doctor’ 사용) 프레임 속도를 낮춘 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The measurement was cancelled.</source>
        <translation>측정을 취소했습니다.</translation>
    </message>
    <message>
        <source>The pixel values are not proportional to the light. Set Gamma to 1, then measure again.</source>
        <translation>픽셀 값이 빛의 양에 비례하지 않습니다. Gamma를 1로 설정한 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;DeviceTapGeometry&quot;. Choose the layout of its taps by hand.</source>
        <translation>카메라에 ‘DeviceTapGeometry’ 기능이 없습니다. 탭 배열을 수동으로 선택하십시오.</translation>
    </message>
    <message>
        <source>The tap geometry &quot;%1&quot; is unknown. Choose the layout of the taps by hand.</source>
        <translation>알 수 없는 탭 구조(‘%1’)입니다. 탭 배열을 수동으로 선택하십시오.</translation>
    </message>
    <message>
        <source>The sensor has one tap only, so there is nothing to balance. If that is wrong, choose the layout of the taps by hand.</source>
        <translation>센서의 탭이 하나뿐이므로 밸런스를 조정할 필요가 없습니다. 사실과 다르면 탭 배열을 수동으로 선택하십시오.</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;%1&quot;, so its taps can be measured, but not set.</source>
        <translation>카메라에 ‘%1’ 기능이 없어 탭을 측정할 수는 있지만 설정할 수는 없습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the entries Tap1 to Tap%2, so the taps can be measured, but not set. Choose the layout of the camera&apos;s taps.</source>
        <translation>‘%1’에 Tap1~Tap%2 항목이 없어 탭을 측정할 수는 있지만 설정할 수는 없습니다. 카메라의 탭 배열을 선택하십시오.</translation>
    </message>
    <message>
        <source>The scene moves: %1 % of the picture has changed during the measurement. Show an even surface that rests, then measure again.</source>
        <translation>장면이 움직입니다. 측정 중에 이미지의 %1 %가 변했습니다. 움직이지 않는 균일한 표면을 비춘 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The picture is overexposed: %1 % of a tap&apos;s pixels have the largest value. Shorten the exposure time or close the lens aperture, then measure again.</source>
        <translation>노출 과다입니다. 한 탭의 픽셀 중 %1 %가 최댓값입니다. 노출을 줄이거나 렌즈 조리개를 조인 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The picture is too dark: it reaches %1 % of the range. Remove the lens cap, add light or lengthen the exposure time, then measure again.</source>
        <translation>이미지가 너무 어둡습니다(범위의 %1 %까지만 도달). 렌즈 캡을 벗기거나, 조명을 더하거나, 노출 시간을 늘린 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The picture is not dark: its mean is %1 % of the range. Cover the lens, then measure again.</source>
        <translation>이미지가 어둡지 않습니다(평균이 범위의 %1 %). 렌즈를 가린 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The dark picture is cut off: %1 % of a tap&apos;s pixels are 0. Raise the black level, then measure again.</source>
        <translation>다크 이미지의 값이 잘렸습니다. 한 탭의 픽셀 중 %1 %가 0입니다. 블랙 레벨을 높인 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The step between tap %1 and tap %2 cannot be told from the scene. Show an even surface, or take more images, then measure again.</source>
        <translation>탭 %1과(와) 탭 %2 사이의 단차를 장면과 구별할 수 없습니다. 균일한 표면을 비추거나 이미지 수를 늘린 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>Taps cannot be measured in this pixel format. Choose a Mono or Bayer format of 8 to 16 bits, then measure again.</source>
        <translation>이 픽셀 포맷에서는 탭을 측정할 수 없습니다. 8~16비트의 Mono 또는 Bayer 포맷을 선택한 다음 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The taps read neighbouring pixels in turn, which have different colours, so taps and colours cannot be told apart. Choose a layout of stripes by hand.</source>
        <translation>탭들이 색이 서로 다른 이웃 픽셀을 번갈아 읽으므로 탭 차이와 색 차이를 구별할 수 없습니다. 띠 영역 배열을 수동으로 선택하십시오.</translation>
    </message>
    <message>
        <source>Binning adds up pixels of several taps. Switch it off, then measure again.</source>
        <translation>비닝은 여러 탭의 픽셀을 합산합니다. 비닝을 끄고 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The size or the format of the images has changed during the measurement. Measure again.</source>
        <translation>측정 중에 이미지의 크기 또는 형식이 바뀌었습니다. 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The dark level of this pixel format cannot be measured; choose a Mono, Bayer or RGB format.</source>
        <translation>이 픽셀 포맷의 다크 레벨은 측정할 수 없습니다. Mono, Bayer 또는 RGB 포맷을 선택하십시오.</translation>
    </message>
    <message>
        <source>The picture is not dark. Put the cap on the lens, or cover the lens completely.</source>
        <translation>이미지가 어둡지 않습니다. 렌즈 캡을 씌우거나 렌즈를 완전히 가리십시오.</translation>
    </message>
    <message>
        <source>%1 % of the pixels are 0, which hides the dark level. Raise BlackLevel, so that the noise lies above 0.</source>
        <translation>픽셀의 %1 %가 0이어서 다크 레벨을 알 수 없습니다. 노이즈가 0보다 커지도록 BlackLevel을 높이십시오.</translation>
    </message>
    <message>
        <source>The noise is smaller than one step of the pixel format, which hides small changes of the dark level. Choose a pixel format with more bits, or a higher gain.</source>
        <translation>노이즈가 픽셀 포맷의 한 단계보다 작아 다크 레벨의 작은 변화를 알 수 없습니다. 비트 수가 더 많은 픽셀 포맷을 선택하거나 게인을 높이십시오.</translation>
    </message>
    <message>
        <source>The features cannot be read: %1</source>
        <translation>기능을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature.</source>
        <translation>카메라에 DeviceTemperature 기능이 없어 온도를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>The scene moves, so the regions&apos; shares also change with what they show. Let it stand still to compare the regions.</source>
        <translation>장면이 움직여 영역별 비율이 비추는 내용에 따라서도 변합니다. 영역을 비교하려면 장면을 고정하십시오.</translation>
    </message>
    <message>
        <source>The picture is as sharp as it gets. Lock the lens.</source>
        <translation>이미지가 가장 선명한 상태입니다. 렌즈를 고정하십시오.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification or the speed.</source>
        <translation>카메라에서 가장 가까운 설정값을 사용하면 대상물이 세로로 %1 % 길게 나타납니다. 배율이나 속도를 바꾸십시오.</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification or the speed.</source>
        <translation>카메라에서 가장 가까운 설정값을 사용하면 대상물이 세로로 %1 % 짧게 나타납니다. 배율이나 속도를 바꾸십시오.</translation>
    </message>
    <message>
        <source>The camera has refused a setting, and then also refused to go back to %1: %2</source>
        <translation>카메라가 설정을 거부했으며, %1 복원도 거부했습니다: %2</translation>
    </message>
    <message>
        <source>The stream has ended during the measurement. Start the live picture and measure again.</source>
        <translation>측정 중에 이미지 전송이 중단되었습니다. 라이브 이미지를 시작하고 다시 측정하십시오.</translation>
    </message>
    <message>
        <source>The picture shows no border between tap %1 and the other taps. Set the region to the whole sensor, or choose another layout, then measure again.</source>
        <translation>이미지에 탭 %1과(와) 다른 탭 사이의 경계가 없습니다. 영역을 센서 전체로 설정하거나 다른 배열을 선택한 다음 다시 측정하십시오.</translation>
    </message>
</context>
<context>
    <name>SettingTexts</name>
    <message>
        <source>Without category</source>
        <translation>카테고리 없음</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save settings…</source>
        <translation>설정 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Load settings…</source>
        <translation>설정 불러오기(&amp;L)…</translation>
    </message>
    <message>
        <source>As it &amp;was when I opened it…</source>
        <translation>카메라를 연 시점으로 복원(&amp;W)…</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>모니터링만 하는 중이므로 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>The camera is not open.</source>
        <translation>카메라가 열려 있지 않습니다.</translation>
    </message>
    <message>
        <source>Saves all settings to a file that other GenICam programs can read, too.</source>
        <translation>다른 GenICam 프로그램에서도 읽을 수 있는 파일에 모든 설정을 저장합니다.</translation>
    </message>
    <message>
        <source>Shows what a settings file would change, and then loads it.</source>
        <translation>설정 파일로 변경될 내용을 보여 준 다음 불러옵니다.</translation>
    </message>
    <message>
        <source>The settings from the opening are not completely known.</source>
        <translation>카메라를 연 시점의 설정 중 일부를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>변경될 내용을 보여 준 다음, 모든 설정을 카메라를 연 시점으로 복원합니다.</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>설정 저장</translation>
    </message>
    <message>
        <source>Settings files (%1)</source>
        <translation>설정 파일 (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>모든 파일 (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were saved to &quot;%1&quot;.</source>
        <translation>
            <numerusform>설정 %n개를 ‘%1’에 저장했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s):</source>
        <translation>
            <numerusform>참고 사항 %n건:</numerusform>
        </translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>설정 불러오기</translation>
    </message>
    <message>
        <source>the settings from the opening</source>
        <translation>카메라를 연 시점의 설정</translation>
    </message>
</context>
<context>
    <name>SettingsLoad</name>
    <message>
        <source>Comparing %1 with the camera</source>
        <translation>%1: 카메라와 비교하는 중</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>%1 불러오는 중</translation>
    </message>
    <message>
        <source>Putting back the settings from before %1</source>
        <translation>%1 불러오기 전의 설정으로 복원하는 중</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>%1 불러오기</translation>
    </message>
    <message>
        <source>Undo loading %1</source>
        <translation>%1 불러오기 되돌리기</translation>
    </message>
</context>
<context>
    <name>SettingsSave</name>
    <message>
        <source>Saving the settings</source>
        <translation>설정을 저장하는 중</translation>
    </message>
    <message>
        <source>Saving was cancelled. The file was not written.</source>
        <translation>저장을 취소했습니다. 파일을 저장하지 않았습니다.</translation>
    </message>
    <message>
        <source>The camera has no settings that belong in a file. The file was not written.</source>
        <translation>카메라에 파일로 저장할 설정이 없습니다. 파일을 저장하지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>SettingsSource</name>
    <message>
        <source>The reading was cancelled.</source>
        <translation>읽기를 취소했습니다.</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Camera Setup</source>
        <translation>카메라 설정</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능 정보</translation>
    </message>
    <message>
        <source>History</source>
        <translation>변경 기록</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>사용자 세트</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>All selector values</source>
        <translation>셀렉터별 전체 값</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>실행 취소: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>다시 실행: %1</translation>
    </message>
    <message>
        <source>&amp;Find a feature</source>
        <translation>기능 찾기(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>카메라(&amp;C)</translation>
    </message>
    <message>
        <source>Live &amp;picture</source>
        <translation>라이브 이미지(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Compare with the opening</source>
        <translation>연 시점과 비교(&amp;C)</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>이미지 뷰어에서 열기(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>패널(&amp;P)</translation>
    </message>
    <message>
        <source>F2, Return</source>
        <translation>F2, Enter</translation>
    </message>
    <message>
        <source>Edit the value of the selected feature</source>
        <translation>선택한 기능의 값 편집</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>←, →</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s). The settings at opening are being read.</source>
        <translation>
            <numerusform>기능 %n개. 연 시점의 설정을 읽는 중입니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>기능 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed since opening</source>
        <translation>
            <numerusform>연 뒤에 %n개 변경됨</numerusform>
        </translation>
    </message>
    <message>
        <source>Collapse or expand a category</source>
        <translation>카테고리 접기 또는 펼치기</translation>
    </message>
</context>
<context>
    <name>ShortcutPage</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>바로 가기 키</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>키</translation>
    </message>
    <message>
        <source>What they do</source>
        <translation>기능</translation>
    </message>
</context>
<context>
    <name>SideBox</name>
    <message>
        <source>Shows what could not be read, and why.</source>
        <translation>읽지 못한 항목과 원인을 표시합니다.</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>파일…</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s), %1</source>
        <translation>
            <numerusform>설정 %n개, %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>참고 %n건</numerusform>
        </translation>
    </message>
    <message>
        <source>Not read yet.</source>
        <translation>아직 읽지 않았습니다.</translation>
    </message>
    <message>
        <source>Notes on what was read:</source>
        <translation>읽은 내용에 대한 참고 사항:</translation>
    </message>
</context>
<context>
    <name>SnapshotSaver</name>
    <message>
        <source>There is no picture to save yet.</source>
        <translation>아직 저장할 이미지가 없습니다.</translation>
    </message>
    <message>
        <source>The snapshot was not saved: %1.</source>
        <translation>스냅샷을 저장하지 못했습니다: %1.</translation>
    </message>
    <message>
        <source>The snapshot was not saved, because earlier ones still wait for the disk.</source>
        <translation>이전 스냅샷이 아직 디스크 기록을 기다리고 있어 스냅샷을 저장하지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>StatisticsTable</name>
    <message>
        <source>Component</source>
        <translation>성분</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>최솟값</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>최댓값</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>평균</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>픽셀 수</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>통계</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>표준 편차</translation>
    </message>
</context>
<context>
    <name>StatusNumbers</name>
    <message>
        <source>Images per second and image data per second that arrive from the camera.</source>
        <translation>카메라에서 수신하는 초당 이미지 수와 초당 이미지 데이터양입니다.</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>표시, 측정 또는 녹화 중인 이미지가 들어 있는 버퍼입니다. 버퍼가 모두 사용 중이면 이미지가 손실됩니다.</translation>
    </message>
    <message>
        <source>Buffers: %1</source>
        <translation>버퍼: %1</translation>
    </message>
    <message>
        <source>No losses</source>
        <translation>손실 없음</translation>
    </message>
    <message>
        <source>What was lost since the camera was opened.</source>
        <translation>카메라를 연 뒤에 발생한 손실입니다.</translation>
    </message>
</context>
<context>
    <name>StepCard</name>
    <message>
        <source>Step %1, not yet possible: %2</source>
        <translation>단계 %1, 아직 실행할 수 없음: %2</translation>
    </message>
    <message>
        <source>Step %1, next: %2</source>
        <translation>단계 %1, 다음: %2</translation>
    </message>
    <message>
        <source>Step %1, done: %2</source>
        <translation>단계 %1, 완료: %2</translation>
    </message>
</context>
<context>
    <name>StreamNumbers</name>
    <message>
        <source>Delivered</source>
        <translation>수신</translation>
    </message>
    <message>
        <source>Images that arrived from the camera.</source>
        <translation>카메라에서 수신한 이미지 수입니다.</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>Images that were drawn in the window.</source>
        <translation>창에 표시한 이미지 수입니다.</translation>
    </message>
    <message>
        <source>Skipped for display</source>
        <translation>표시 생략</translation>
    </message>
    <message>
        <source>Images that were not drawn because the screen is slower than the camera. They are not lost: recordings contain them.</source>
        <translation>화면이 카메라보다 느려 표시하지 않은 이미지 수입니다. 손실된 것이 아니며 녹화에는 포함됩니다.</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>불완전</translation>
    </message>
    <message>
        <source>Delivered images with missing data.</source>
        <translation>수신했지만 데이터 일부가 누락된 이미지 수입니다.</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>손실</translation>
    </message>
    <message>
        <source>Images that never arrived, by gaps in the frame IDs.</source>
        <translation>프레임 ID의 누락으로 확인한, 도착하지 않은 이미지 수입니다.</translation>
    </message>
    <message>
        <source>Underruns</source>
        <translation>버퍼 부족</translation>
    </message>
    <message>
        <source>Images that were lost because no buffer was free: this computer was too slow.</source>
        <translation>빈 버퍼가 없어 손실된 이미지 수입니다(언더런). 컴퓨터의 처리 속도가 부족했습니다.</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>프레임 속도</translation>
    </message>
    <message>
        <source>Images per second during the last second.</source>
        <translation>최근 1초 동안의 초당 이미지 수입니다.</translation>
    </message>
    <message>
        <source>Data rate</source>
        <translation>데이터 속도</translation>
    </message>
    <message>
        <source>Image data per second during the last second.</source>
        <translation>최근 1초 동안의 초당 이미지 데이터양입니다.</translation>
    </message>
    <message>
        <source>Buffers in use</source>
        <translation>사용 중인 버퍼</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>표시, 측정 또는 녹화 중인 이미지가 들어 있는 버퍼입니다. 버퍼가 모두 사용 중이면 이미지가 손실됩니다.</translation>
    </message>
    <message>
        <source>Link speed</source>
        <translation>링크 속도</translation>
    </message>
    <message>
        <source>Speed of the connection that the camera reports.</source>
        <translation>카메라가 알려 주는 연결 속도입니다.</translation>
    </message>
    <message>
        <source>Packet size</source>
        <translation>패킷 크기</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1바이트</translation>
    </message>
    <message>
        <source>Size of the packets of a GigE camera.</source>
        <translation>GigE 카메라의 패킷 크기입니다.</translation>
    </message>
    <message>
        <source>Resent packets</source>
        <translation>재전송 패킷</translation>
    </message>
    <message>
        <source>Packets that the camera has sent a second time because they were lost.</source>
        <translation>손실되어 카메라가 다시 전송한 패킷 수입니다.</translation>
    </message>
    <message>
        <source>Continued after a loss</source>
        <translation>연결 복구</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>rate and data rate</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>손실 %1</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>불완전 %1</translation>
    </message>
    <message>
        <source>no stream</source>
        <translation>스트림 없음</translation>
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
        <translation>정보 없음</translation>
    </message>
    <message>
        <source>How often the camera was lost and the stream went on when it was back.</source>
        <translation>카메라 연결이 끊겼다가 복구되어 스트림이 재개된 횟수입니다.</translation>
    </message>
    <message>
        <source>%1 underruns</source>
        <translation>버퍼 부족 %1</translation>
    </message>
</context>
<context>
    <name>TapBars</name>
    <message>
        <source>Deviation of each tap</source>
        <translation>탭별 편차</translation>
    </message>
    <message>
        <source>Grey: before; blue: now</source>
        <translation>회색: 이전, 파란색: 현재</translation>
    </message>
    <message>
        <source>Tap %1: %2 %3</source>
        <translation>탭 %1: %2 %3</translation>
    </message>
    <message>
        <source>Not measured yet</source>
        <translation>아직 측정하지 않음</translation>
    </message>
</context>
<context>
    <name>TapPanel</name>
    <message>
        <source>Tap</source>
        <translation>탭</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>평균</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>노이즈</translation>
    </message>
    <message>
        <source>Mismatch of the taps</source>
        <translation>탭 간 차이</translation>
    </message>
    <message>
        <source>Skip this step</source>
        <translation>이 단계 건너뛰기</translation>
    </message>
    <message>
        <source>Undo the last balancing</source>
        <translation>마지막 밸런스 되돌리기</translation>
    </message>
    <message>
        <source>Mean and noise of each tap</source>
        <translation>탭별 평균 및 노이즈</translation>
    </message>
    <message>
        <source>Shading changes the means, so the steps at the borders say how the taps differ.</source>
        <translation>평균은 셰이딩의 영향을 받으므로 경계의 단차로 탭 간 차이를 판단합니다.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>측정</translation>
    </message>
    <message>
        <source>Show an even, bright surface that fills the picture, for example a white sheet out of focus.</source>
        <translation>이미지를 가득 채우는 균일하고 밝은 표면(예: 초점이 흐려진 흰 종이)을 비추십시오.</translation>
    </message>
    <message>
        <source>Measure the taps</source>
        <translation>탭 측정</translation>
    </message>
    <message>
        <source>Black levels</source>
        <translation>블랙 레벨</translation>
    </message>
    <message>
        <source>Cover the lens. Without this step, differences of the black levels count as those of the gains.</source>
        <translation>렌즈를 가리십시오. 이 단계를 건너뛰면 블랙 레벨의 차이가 게인의 차이로 간주됩니다.</translation>
    </message>
    <message>
        <source>Balance the black levels</source>
        <translation>블랙 레벨 맞추기</translation>
    </message>
    <message>
        <source>Gains</source>
        <translation>게인</translation>
    </message>
    <message>
        <source>Uncover the lens and show the even, bright surface again.</source>
        <translation>렌즈 덮개를 벗기고 균일하고 밝은 표면을 다시 비추십시오.</translation>
    </message>
    <message>
        <source>Balance the gains</source>
        <translation>게인 맞추기</translation>
    </message>
    <message>
        <source>The camera has the new values until it is switched off. Store them in a user set with Camera Setup to keep them.</source>
        <translation>새 값은 카메라 전원을 끌 때까지 유지됩니다. 계속 사용하려면 카메라 설정(Camera Setup)에서 사용자 세트에 저장하십시오.</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>결과 저장…</translation>
    </message>
    <message>
        <source>The taps differ by up to %1.</source>
        <translation>탭 간 차이는 최대 %1입니다.</translation>
    </message>
    <message>
        <source>Keep the values</source>
        <translation>값 유지</translation>
    </message>
</context>
<context>
    <name>TapReport</name>
    <message>
        <source>Tap Balance</source>
        <translation>탭 밸런스</translation>
    </message>
    <message>
        <source>Layout of the taps: %1</source>
        <translation>탭 배열: %1</translation>
    </message>
    <message>
        <source>Deviation of each tap; grey: before, blue: now</source>
        <translation>탭별 편차(회색: 이전, 파란색: 현재)</translation>
    </message>
    <message>
        <source>Bright picture</source>
        <translation>밝은 이미지</translation>
    </message>
    <message>
        <source>Dark picture</source>
        <translation>다크 이미지</translation>
    </message>
    <message>
        <source>The picture with the borders of the taps</source>
        <translation>탭 경계를 표시한 이미지</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation>탭</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>평균</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>노이즈</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>편차</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>탭</translation>
    </message>
    <message>
        <source>Step at the border</source>
        <translation>경계의 단차</translation>
    </message>
    <message>
        <source>The deviations follow from the steps at the borders, which straight lines on both sides are extended to; shading has no influence. The noise is the temporal standard deviation of a pixel by the differences of successive images (EMVA 1288). The uncertainty of a step is twice its standard error.</source>
        <translation>편차는 경계 양쪽의 직선을 경계까지 연장하여 얻은 단차로 구하므로 셰이딩의 영향을 받지 않습니다. 노이즈는 연속한 이미지의 차이로 구한 픽셀의 시간적 표준 편차입니다(EMVA 1288). 단차의 불확도는 표준 오차의 두 배입니다.</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>이전 %1</translation>
    </message>
    <message>
        <source>now</source>
        <translation>현재</translation>
    </message>
</context>
<context>
    <name>TapSession</name>
    <message>
        <source>Measuring the taps</source>
        <translation>탭 측정 중</translation>
    </message>
    <message>
        <source>Balancing the gains</source>
        <translation>게인 맞추는 중</translation>
    </message>
    <message>
        <source>Balancing the black levels</source>
        <translation>블랙 레벨 맞추는 중</translation>
    </message>
    <message>
        <source>Putting the earlier values back</source>
        <translation>이전 값으로 되돌리는 중</translation>
    </message>
</context>
<context>
    <name>TapTexts</name>
    <message>
        <source>The mismatch fell from %1 to %2.</source>
        <translation>탭 간 차이가 %1에서 %2(으)로 줄었습니다.</translation>
    </message>
    <message>
        <source>The mismatch fell from %1 to %2. The camera offers no finer values.</source>
        <translation>탭 간 차이가 %1에서 %2(으)로 줄었습니다. 카메라에서 더 세밀하게 조정할 수 없습니다.</translation>
    </message>
    <message>
        <source>DN</source>
        <comment>unit of pixel values</comment>
        <translation>DN</translation>
    </message>
</context>
<context>
    <name>TapWindow</name>
    <message>
        <source>Tap Balance</source>
        <translation>탭 밸런스</translation>
    </message>
    <message>
        <source>The camera has no feature GainSelector, so the gains of its taps cannot be set one by one. Use a flat-field correction instead.</source>
        <translation>카메라에 GainSelector 기능이 없어 탭별 게인을 설정할 수 없습니다. 대신 플랫 필드 보정을 사용하십시오.</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>결과 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Undo the last balancing</source>
        <translation>마지막 밸런스 되돌리기(&amp;U)</translation>
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
        <translation>시작 후 경과 시간</translation>
    </message>
    <message>
        <source>Temperature in °C</source>
        <translation>온도(°C)</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>다크 레벨</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>경보</translation>
    </message>
    <message>
        <source>Final value of %1</source>
        <translation>%1 최종값</translation>
    </message>
    <message>
        <source>Dark level follows</source>
        <translation>다크 레벨 변화 시작</translation>
    </message>
    <message>
        <source>Show the &amp;last</source>
        <translation>표시 구간(&amp;P)</translation>
    </message>
    <message>
        <source>Temperatures since the start</source>
        <translation>시작 후 온도</translation>
    </message>
    <message>
        <source>Dark level since the start</source>
        <translation>시작 후 다크 레벨</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message numerus="yes">
        <source>At most %n character(s)</source>
        <translation>
            <numerusform>최대 %n자</numerusform>
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
        <translation>결과 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Notify me</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>다크 레벨</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 초</translation>
    </message>
    <message>
        <source>Read &amp;every</source>
        <translation>측정 주기(&amp;E)</translation>
    </message>
    <message>
        <source>Start a&amp;new</source>
        <translation>새로 시작(&amp;N)</translation>
    </message>
    <message>
        <source>Forgets the readings and begins again. A running log goes on.</source>
        <translation>측정값을 지우고 새로 시작합니다. 진행 중인 기록은 계속됩니다.</translation>
    </message>
</context>
<context>
    <name>ThermalReport</name>
    <message>
        <source>Thermal Monitor</source>
        <translation>온도 모니터</translation>
    </message>
    <message>
        <source>Readings since %1 (UTC).</source>
        <translation>%1(UTC)부터의 측정값.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Expected final value in °C</source>
        <translation>예상 최종값(°C)</translation>
    </message>
    <message>
        <source>Time constant</source>
        <translation>시정수</translation>
    </message>
    <message>
        <source>Steady in</source>
        <translation>안정까지</translation>
    </message>
    <message>
        <source>The final value belongs to an exponential curve through the readings; the uncertainty is twice the standard deviation. Steady means within 0.5 K of the final value, or a change of less than 0.1 K per minute.</source>
        <translation>최종값은 측정값에 맞춘 지수 곡선에서 구하며, 불확도는 표준 편차의 두 배입니다. 안정이란 최종값과의 차이가 0.5 K 이내이거나 변화가 분당 0.1 K 미만인 상태입니다.</translation>
    </message>
    <message>
        <source>Temperatures over time</source>
        <translation>시간에 따른 온도</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>다크 레벨</translation>
    </message>
    <message>
        <source>Dark level over time</source>
        <translation>시간에 따른 다크 레벨</translation>
    </message>
</context>
<context>
    <name>ThermalSession</name>
    <message>
        <source>The camera has not been read yet.</source>
        <translation>아직 카메라에서 값을 읽지 않았습니다.</translation>
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
        <translation>10분</translation>
    </message>
    <message>
        <source>1 h</source>
        <translation>1시간</translation>
    </message>
    <message>
        <source>24 h</source>
        <translation>24시간</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1시간</translation>
    </message>
    <message>
        <source>Cannot be read at present</source>
        <translation>현재 읽을 수 없음</translation>
    </message>
    <message>
        <source>Rate and state are known in %1.</source>
        <translation>변화율과 상태는 %1 후에 알 수 있습니다.</translation>
    </message>
    <message>
        <source>Warming up, %1 K/min</source>
        <translation>상승 중, %1 K/min</translation>
    </message>
    <message>
        <source>Cooling, %1 K/min</source>
        <translation>하강 중, %1 K/min</translation>
    </message>
    <message>
        <source>Steady, %1 K/min</source>
        <translation>안정, %1 K/min</translation>
    </message>
    <message>
        <source>The temperature does not change any more.</source>
        <translation>온도가 더 이상 변하지 않습니다.</translation>
    </message>
    <message>
        <source>The final value is not determined yet.</source>
        <translation>최종값이 아직 결정되지 않았습니다.</translation>
    </message>
    <message>
        <source>Expected final value: %1 °C ± %2 K</source>
        <translation>예상 최종값: %1 °C ± %2 K</translation>
    </message>
    <message>
        <source>%1, steady in %2</source>
        <translation>%1, %2 후 안정</translation>
    </message>
    <message>
        <source>Alarm: %1 has reached %2. Cool the camera or let it work less.</source>
        <translation>경보: %1 온도가 %2에 도달했습니다. 카메라를 냉각하거나 부하를 줄이십시오.</translation>
    </message>
    <message>
        <source>Warning: %1 is at %2.</source>
        <translation>경고: %1 온도가 %2입니다.</translation>
    </message>
    <message>
        <source>%1 is below the thresholds again: %2.</source>
        <translation>%1 온도가 다시 임곗값 아래로 내려갔습니다: %2.</translation>
    </message>
    <message>
        <source>Dark level: %1</source>
        <translation>다크 레벨: %1</translation>
    </message>
    <message>
        <source>Dark level: %1 (noise %2)</source>
        <translation>다크 레벨: %1(노이즈 %2)</translation>
    </message>
    <message>
        <source>The dark level has followed the temperature since %1 after the start.</source>
        <translation>시작 %1 후부터 다크 레벨이 온도를 따라 변하고 있습니다.</translation>
    </message>
    <message>
        <source>The dark level has not changed by more than its noise.</source>
        <translation>다크 레벨이 노이즈 이상으로 변하지 않았습니다.</translation>
    </message>
    <message>
        <source>The dark signal doubles every %1 ± %2 K.</source>
        <translation>다크 신호는 %1 ± %2 K마다 두 배가 됩니다.</translation>
    </message>
    <message>
        <source>The doubling temperature is not determined yet; the temperature has to change more.</source>
        <translation>배가 온도가 아직 결정되지 않았습니다. 온도가 더 변해야 합니다.</translation>
    </message>
</context>
<context>
    <name>ThermalWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>결과 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Thermal Monitor</source>
        <translation>온도 모니터</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature. The data sheet says whether a newer firmware does.</source>
        <translation>카메라에 DeviceTemperature 기능이 없어 온도를 알 수 없습니다. 최신 펌웨어에서 지원하는지 데이터시트를 확인하십시오.</translation>
    </message>
</context>
<context>
    <name>ThresholdBox</name>
    <message>
        <source>&amp;Warning at</source>
        <translation>경고 온도(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Alarm at</source>
        <translation>경보 온도(&amp;A)</translation>
    </message>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source>A warning or an alarm ends when the temperature is so far below its threshold again.</source>
        <translation>온도가 임곗값보다 이만큼 낮아지면 경고 또는 경보가 해제됩니다.</translation>
    </message>
    <message>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <source>Ends &amp;below by</source>
        <translation>해제 온도차(&amp;B)</translation>
    </message>
    <message>
        <source>The program notifies you, also while its window is behind others, when a place gets this warm.</source>
        <translation>해당 위치의 온도가 이 값에 도달하면 창이 다른 창에 가려져 있어도 알림을 표시합니다.</translation>
    </message>
</context>
<context>
    <name>ThresholdControl</name>
    <message>
        <source>How far a pixel deviates from its neighbours before it counts as a defect, in standard deviations of the good pixels. At 6 σ, less than one good pixel per megapixel is taken for a defect.</source>
        <translation>픽셀을 불량으로 판정할 주변 픽셀과의 편차입니다. 단위는 정상 픽셀의 표준 편차입니다. 6 σ에서는 정상 픽셀이 불량으로 판정되는 경우가 메가픽셀당 1개 미만입니다.</translation>
    </message>
    <message>
        <source>&amp;Threshold</source>
        <translation>임곗값(&amp;T)</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>임곗값</translation>
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
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Copy path</source>
        <translation>경로 복사(&amp;C)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist any more.</source>
        <translation>‘%1’ 파일이 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>No program of this desktop opens &quot;%1&quot;.</source>
        <translation>‘%1’ 파일을 열 수 있는 프로그램이 없습니다.</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and its sidecar?</source>
        <translation>‘%1’ 파일과 사이드카 파일을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: %2.</source>
        <translation>‘%1’ 파일을 삭제할 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>폴더 열기(&amp;F)</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>스냅샷</translation>
    </message>
    <message>
        <source>Delete snapshot</source>
        <translation>스냅샷 삭제</translation>
    </message>
</context>
<context>
    <name>ToolStarter</name>
    <message>
        <source>%1 cannot be started. Check that the file exists and is executable.</source>
        <translation>%1: 시작할 수 없습니다. 파일이 있고 실행 가능한지 확인하십시오.</translation>
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
        <translation>다른 카메라(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>바로 가기 키(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>사용 설명서(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>%1 정보(&amp;A)</translation>
    </message>
    <message>
        <source>The guide cannot be opened: %1</source>
        <translation>사용 설명서를 열 수 없습니다: %1</translation>
    </message>
    <message>
        <source>%1 of Corvix X, version %2.

For industrial cameras of any vendor. MIT licence.</source>
        <translation>Corvix X %1, 버전 %2.

모든 제조사의 산업용 카메라를 지원합니다. MIT 라이선스.</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>카메라 검색 중…</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 여는 중…</translation>
    </message>
</context>
<context>
    <name>UserSetControl</name>
    <message>
        <source>Reading the user sets</source>
        <translation>사용자 세트를 읽는 중</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>모니터링만 하는 중이므로 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>The camera does not offer this.</source>
        <translation>카메라가 지원하지 않습니다.</translation>
    </message>
    <message>
        <source>The camera does not let the set for power-on be chosen.</source>
        <translation>이 카메라에서는 전원을 켤 때 사용할 세트를 선택할 수 없습니다.</translation>
    </message>
    <message>
        <source>The camera does not allow this set at power-on.</source>
        <translation>이 세트는 전원을 켤 때 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>The camera is only watched, so its user sets cannot be loaded.</source>
        <translation>모니터링만 하는 중이므로 사용자 세트를 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Loading &quot;%1&quot;</source>
        <translation>‘%1’ 불러오는 중</translation>
    </message>
    <message>
        <source>Load user set &quot;%1&quot;</source>
        <translation>사용자 세트 ‘%1’ 불러오기</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>불러오기를 취소했습니다. 변경된 설정은 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was loaded, which changed %n setting(s).</source>
        <translation>
            <numerusform>‘%1’을(를) 불러와 설정 %n개가 변경되었습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation>‘%1’ 저장 중</translation>
    </message>
    <message>
        <source>The present settings were saved as &quot;%1&quot;.</source>
        <translation>현재 설정을 ‘%1’에 저장했습니다.</translation>
    </message>
    <message>
        <source>Choosing &quot;%1&quot; for power-on</source>
        <translation>전원 켤 때 사용할 세트를 ‘%1’(으)로 지정하는 중</translation>
    </message>
    <message>
        <source>Use user set &quot;%1&quot; at power-on</source>
        <translation>전원 켤 때 사용자 세트 ‘%1’ 사용</translation>
    </message>
    <message>
        <source>The camera begins with &quot;%1&quot; at power-on.</source>
        <translation>전원을 켜면 카메라가 ‘%1’(으)로 시작합니다.</translation>
    </message>
</context>
<context>
    <name>UserSetPanel</name>
    <message>
        <source>&amp;Load…</source>
        <translation>불러오기(&amp;L)…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>저장(&amp;S)…</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>사용자 세트</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>사용자 세트</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>전원 켤 때</translation>
    </message>
    <message>
        <source>This camera keeps no user sets.</source>
        <translation>이 카메라에는 사용자 세트가 없습니다.</translation>
    </message>
    <message>
        <source>The user sets are not known yet.</source>
        <translation>아직 사용자 세트를 읽지 않았습니다.</translation>
    </message>
    <message>
        <source>✓ yes</source>
        <translation>✓ 예</translation>
    </message>
    <message>
        <source>Replaces the settings of the camera by those of &quot;%1&quot;.</source>
        <translation>카메라의 설정을 ‘%1’의 설정으로 바꿉니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be loaded.</source>
        <translation>‘%1’을(를) 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Stores the present settings as &quot;%1&quot;.</source>
        <translation>현재 설정을 ‘%1’에 저장합니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved.</source>
        <translation>‘%1’을(를) 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>Lets the camera begin with &quot;%1&quot;.</source>
        <translation>카메라가 ‘%1’(으)로 시작하도록 지정합니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used at power-on.</source>
        <translation>‘%1’은(는) 전원 켤 때 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Shows how the settings of the camera differ from this set.</source>
        <translation>카메라의 설정과 이 세트의 차이를 표시합니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be compared.</source>
        <translation>‘%1’을(를) 비교할 수 없습니다.</translation>
    </message>
    <message>
        <source>Load &quot;%1&quot;? The present settings of the camera are overwritten.</source>
        <translation>‘%1’을(를) 불러오시겠습니까? 카메라의 현재 설정을 덮어씁니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) differ from those when the camera was opened.</source>
        <translation>
            <numerusform>카메라를 연 시점과 다른 기능이 %n개 있습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Loading can be undone.</source>
        <translation>불러오기는 실행 취소할 수 있습니다.</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>사용자 세트 불러오기</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>불러오기(&amp;L)</translation>
    </message>
    <message>
        <source>Save user set</source>
        <translation>사용자 세트 저장</translation>
    </message>
    <message>
        <source>Save the present settings as &quot;%1&quot;? What is in this set now is overwritten, which cannot be undone.</source>
        <translation>현재 설정을 ‘%1’에 저장하시겠습니까? 이 세트의 기존 내용을 덮어쓰며, 실행 취소할 수 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Use at power-on</source>
        <translation>전원 켤 때 사용(&amp;U)</translation>
    </message>
    <message>
        <source>Comp&amp;are</source>
        <translation>비교(&amp;A)</translation>
    </message>
</context>
<context>
    <name>UserSetSource</name>
    <message>
        <source>User set %1</source>
        <translation>사용자 세트 %1</translation>
    </message>
    <message>
        <source>The camera has to load the user set %1 to show it. The stream is stopped for this, and your present settings are put back afterwards.</source>
        <translation>사용자 세트 %1의 내용을 표시하려면 카메라에서 이 세트를 불러와야 합니다. 그동안 스트림이 중지되며, 이후 현재 설정으로 복원합니다.</translation>
    </message>
    <message>
        <source>Not put back after the user set %1</source>
        <translation>사용자 세트 %1 사용 후 복원되지 않음</translation>
    </message>
    <message numerus="yes">
        <source>%n more setting(s) were not put back; the history lists them.</source>
        <translation>
            <numerusform>이 밖에 설정 %n개가 복원되지 않았습니다. 변경 기록에서 확인할 수 있습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera may still have the settings of the user set. Restore those from the opening.</source>
        <translation>카메라에 사용자 세트의 설정이 남아 있을 수 있습니다. 카메라를 연 시점의 설정으로 복원하십시오.</translation>
    </message>
    <message>
        <source>Reading the user set %1</source>
        <translation>사용자 세트 %1 읽는 중</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>이 카메라는 제어 모드로 열려 있지 않습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the user set %1? The camera loads the set, changes it and saves it, and then your present settings are put back. The stream is stopped for this.</source>
        <translation>
            <numerusform>설정 %n개를 사용자 세트 %1에 쓰시겠습니까? 카메라에서 세트를 불러와 변경하고 저장한 다음, 현재 설정으로 복원합니다. 그동안 스트림이 중지됩니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying to the user set %1</source>
        <translation>사용자 세트 %1(으)로 복사하는 중</translation>
    </message>
    <message>
        <source>The copy was cancelled, so the user set was not changed.</source>
        <translation>복사를 취소하여 사용자 세트는 변경되지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message numerus="yes">
        <source>%1 … (%n bytes)</source>
        <translation>
            <numerusform>%1 … (%n바이트)</numerusform>
        </translation>
    </message>
    <message>
        <source>not in this camera</source>
        <translation>이 카메라에 없음</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>사용 불가</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>읽을 수 없음</translation>
    </message>
    <message>
        <source>can only be written</source>
        <translation>쓰기 전용</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>실행</translation>
    </message>
    <message>
        <source>Running …</source>
        <translation>실행 중 …</translation>
    </message>
</context>
<context>
    <name>VideoWriter</name>
    <message>
        <source>videos need the program ffmpeg, which is not installed; install it with: %1</source>
        <translation>동영상에는 ffmpeg 프로그램이 필요하지만 설치되어 있지 않습니다. 설치 명령: %1</translation>
    </message>
    <message>
        <source>the images are too small for a video</source>
        <translation>동영상으로 만들기에 이미지가 너무 작습니다</translation>
    </message>
    <message>
        <source>the format of the images has changed, which a video cannot contain; start another recording</source>
        <translation>이미지 형식이 바뀌어 한 동영상에 담을 수 없습니다. 녹화를 새로 시작하십시오</translation>
    </message>
</context>
<context>
    <name>ViewerActions</name>
    <message>
        <source>&amp;Live</source>
        <translation>라이브(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>스냅샷 저장(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>녹화(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Crosshair</source>
        <translation>십자선(&amp;C)</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>전체 화면(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation>새 창(&amp;N)</translation>
    </message>
    <message>
        <source>All &amp;features (Camera Setup)</source>
        <translation>모든 기능(Camera Setup)(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Fit into the window</source>
        <translation>창에 맞춤(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>실제 크기(&amp;A)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>확대(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>축소(&amp;O)</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>왼쪽으로 회전(&amp;B)</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>오른쪽으로 회전(&amp;T)</translation>
    </message>
    <message>
        <source>Mirror &amp;horizontally</source>
        <translation>좌우 반전(&amp;H)</translation>
    </message>
    <message>
        <source>Mirror &amp;vertically</source>
        <translation>상하 반전(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Move the picture</source>
        <translation>이미지 이동(&amp;M)</translation>
    </message>
    <message>
        <source>Draw a re&amp;gion</source>
        <translation>영역 그리기(&amp;G)</translation>
    </message>
    <message>
        <source>+, -</source>
        <translation>+, -</translation>
    </message>
    <message>
        <source>Zoom in or out</source>
        <translation>확대 또는 축소</translation>
    </message>
    <message>
        <source>0, 1</source>
        <translation>0, 1</translation>
    </message>
    <message>
        <source>Fit the picture, or show it at its own size</source>
        <translation>이미지를 창에 맞추거나 실제 크기로 표시</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>화살표 키</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Remove the drawn region or line</source>
        <translation>그린 영역 또는 선 제거</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>휠</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>포인터 위치에서 확대/축소</translation>
    </message>
    <message>
        <source>Move the picture, whatever the tool</source>
        <translation>도구와 관계없이 이미지 이동</translation>
    </message>
    <message>
        <source>Double click</source>
        <translation>두 번 클릭</translation>
    </message>
    <message>
        <source>Change between the fitted picture and its own size</source>
        <translation>창에 맞춤과 실제 크기 간 전환</translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>화면 정지(&amp;Z)</translation>
    </message>
    <message>
        <source>Mark clipped &amp;pixels</source>
        <translation>클리핑 픽셀 표시(&amp;P)</translation>
    </message>
    <message>
        <source>Gri&amp;d</source>
        <translation>격자(&amp;D)</translation>
    </message>
    <message>
        <source>Draw a li&amp;ne</source>
        <translation>선 그리기(&amp;N)</translation>
    </message>
    <message>
        <source>Move the picture; in larger steps with Shift</source>
        <translation>이미지 이동. Shift와 함께 누르면 더 많이 이동</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Draw a region or a line in the middle</source>
        <translation>가운데에 영역 또는 선 그리기</translation>
    </message>
    <message>
        <source>Ctrl and arrow keys</source>
        <translation>Ctrl+화살표 키</translation>
    </message>
    <message>
        <source>Move the drawn region or line; resize it with Shift</source>
        <translation>그린 영역 또는 선 이동. Shift와 함께 누르면 크기 조정</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Finish the region for the camera</source>
        <translation>카메라가 전송할 영역 확정</translation>
    </message>
    <message>
        <source>Middle button, or Space and drag</source>
        <translation>가운데 버튼 또는 Space+드래그</translation>
    </message>
    <message>
        <source>&amp;Corrections…</source>
        <translation>보정(&amp;C)…</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Image Viewer</source>
        <translation>이미지 뷰어</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>측정</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>스냅샷</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>카메라(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>패널(&amp;P)</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>Pixel under the pointer</source>
        <translation>포인터 위치의 픽셀</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>카메라가 이미지를 전송하지 않습니다. %1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off in the panel &quot;Camera&quot;.</source>
        <translation>카메라가 트리거를 기다리고 있습니다. 트리거를 보내거나 ‘카메라’ 패널에서 트리거 모드를 끄십시오.</translation>
    </message>
    <message>
        <source>Draw the region that the camera shall send.</source>
        <translation>카메라가 전송할 영역을 그리십시오.</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>스트림</translation>
    </message>
    <message>
        <source>The stream is stopped. Press %1 to start it.</source>
        <translation>스트림이 중지되었습니다. 시작하려면 %1 키를 누르십시오.</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The panel &quot;Stream&quot; may say why.</source>
        <translation>아직 수신한 이미지가 없습니다. ‘스트림’ 패널에서 원인을 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The program that controls the camera may not stream.</source>
        <translation>아직 수신된 이미지가 없습니다. 카메라를 제어하는 프로그램이 스트림을 시작하지 않았을 수 있습니다.</translation>
    </message>
    <message>
        <source>Not corrected</source>
        <translation>보정 안 됨</translation>
    </message>
    <message>
        <source>Corrected</source>
        <translation>보정됨</translation>
    </message>
</context>
<context>
    <name>WhiteBalanceCall</name>
    <message>
        <source>The camera has no white balance ratios.</source>
        <translation>카메라에 화이트 밸런스 계수 기능이 없습니다.</translation>
    </message>
</context>
</TS>
