<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AssistantWindow</name>
    <message>
        <source>The result was saved to &quot;%1&quot;.</source>
        <translation>结果已保存到“%1”。</translation>
    </message>
    <message>
        <source>Press F5 to see the live picture.</source>
        <translation>按 F5 显示实时图像。</translation>
    </message>
    <message>
        <source>&amp;Result</source>
        <translation>结果(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Live picture</source>
        <translation>实时图像(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>在图像查看器中打开(&amp;I)</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Cancel the measurement</source>
        <translation>取消测量</translation>
    </message>
</context>
<context>
    <name>BigNumber</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>CameraChooser</name>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Choose a camera</source>
        <translation>选择相机</translation>
    </message>
    <message>
        <source>Search by name, model, serial number or connection</source>
        <translation>按名称、型号、序列号或连接搜索</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>搜索相机</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>正在搜索相机…</translation>
    </message>
    <message>
        <source>Cameras: %1</source>
        <translation>相机：%1</translation>
    </message>
    <message>
        <source>No camera matches &quot;%1&quot;.</source>
        <translation>没有与“%1”匹配的相机。</translation>
    </message>
</context>
<context>
    <name>CameraConnection</name>
    <message>
        <source>The camera is not open.</source>
        <translation>相机未打开。</translation>
    </message>
</context>
<context>
    <name>CameraFinder</name>
    <message>
        <source>Corvix X is not installed completely: the program CvxProducerHost is missing or not executable. Install the package again.</source>
        <translation>Corvix X 安装不完整：程序 CvxProducerHost 缺失或不可执行。请重新安装软件包。</translation>
    </message>
    <message>
        <source>The camera system cannot be started (error %1).</source>
        <translation>无法启动相机系统（错误 %1）。</translation>
    </message>
    <message>
        <source>The cameras cannot be listed (error %1).</source>
        <translation>无法枚举相机（错误 %1）。</translation>
    </message>
</context>
<context>
    <name>CameraPanel</name>
    <message>
        <source>All features (Camera Setup)</source>
        <translation>全部特性（Camera Setup）</translation>
    </message>
    <message>
        <source>Draw on picture</source>
        <translation>在图像上绘制</translation>
    </message>
    <message>
        <source>Whole sensor</source>
        <translation>整个靶面</translation>
    </message>
    <message>
        <source>Drag a rectangle over the part of the picture that the camera shall send.</source>
        <translation>在图像上拖出矩形，指定相机要传输的区域。</translation>
    </message>
    <message>
        <source>You are watching this camera, so nothing can be changed here.</source>
        <translation>当前仅监视此相机，无法在此更改设置。</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>曝光</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Black level and gamma</source>
        <translation>黑电平与伽马</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>黑电平</translation>
    </message>
    <message>
        <source>Apply gamma</source>
        <translation>启用伽马</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>白平衡</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Factor</source>
        <translation>系数</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Set the frame rate</source>
        <translation>启用帧率控制</translation>
    </message>
    <message>
        <source>Line scan</source>
        <translation>线扫描</translation>
    </message>
    <message>
        <source>Set the line rate</source>
        <translation>启用行频控制</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>行频</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>像素格式</translation>
    </message>
    <message>
        <source>Region of interest</source>
        <translation>感兴趣区域 (ROI)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>X 偏移</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Y 偏移</translation>
    </message>
    <message>
        <source>Binning and mirroring</source>
        <translation>像素合并与镜像</translation>
    </message>
    <message>
        <source>Horizontal binning</source>
        <translation>水平像素合并</translation>
    </message>
    <message>
        <source>Horizontal mode</source>
        <translation>水平合并模式</translation>
    </message>
    <message>
        <source>Vertical binning</source>
        <translation>垂直像素合并</translation>
    </message>
    <message>
        <source>Vertical mode</source>
        <translation>垂直合并模式</translation>
    </message>
    <message>
        <source>Horizontal decimation</source>
        <translation>水平下采样</translation>
    </message>
    <message>
        <source>Vertical decimation</source>
        <translation>垂直下采样</translation>
    </message>
    <message>
        <source>Mirror horizontally</source>
        <translation>水平镜像</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>垂直镜像</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>触发模式</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>触发源</translation>
    </message>
    <message>
        <source>Activation</source>
        <translation>激活方式</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>触发延迟</translation>
    </message>
    <message>
        <source>Trigger now</source>
        <translation>软触发</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>用户集</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>上电时加载</translation>
    </message>
    <message>
        <source>Saving replaces what is stored in the camera as &quot;%1&quot;.</source>
        <translation>保存将覆盖相机中的“%1”。</translation>
    </message>
    <message>
        <source>Resulting rate</source>
        <translation>实际速率</translation>
    </message>
    <message>
        <source>Binning location</source>
        <translation>合并位置</translation>
    </message>
    <message>
        <source>Trigger type</source>
        <translation>触发类型</translation>
    </message>
</context>
<context>
    <name>CameraSettings</name>
    <message>
        <source>Camera settings</source>
        <translation>相机设置</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>This camera now</source>
        <translation>此相机（当前）</translation>
    </message>
    <message>
        <source>Reading the settings of this camera</source>
        <translation>正在读取此相机的设置</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>未以控制方式打开此相机。</translation>
    </message>
    <message>
        <source>Copying to this camera</source>
        <translation>正在复制到此相机</translation>
    </message>
    <message>
        <source>Copy of differences</source>
        <translation>复制差异</translation>
    </message>
</context>
<context>
    <name>CameraTable</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>User-defined name</source>
        <translation>自定义名称</translation>
    </message>
</context>
<context>
    <name>ChangeHistory</name>
    <message>
        <source>Undo: %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>The value of %1 before the change is unknown.</source>
        <translation>%1 更改前的值未知。</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>%1 cannot be changed while the camera is streaming.</source>
        <translation>相机采集图像流时无法更改 %1。</translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation>操作已取消。</translation>
    </message>
</context>
<context>
    <name>CollapsibleGroup</name>
    <message>
        <source>Expanded group</source>
        <translation>已展开的组</translation>
    </message>
    <message>
        <source>Collapsed group</source>
        <translation>已折叠的组</translation>
    </message>
</context>
<context>
    <name>CommandButton</name>
    <message>
        <source>%1 …</source>
        <translation>%1…</translation>
    </message>
</context>
<context>
    <name>ComparePanel</name>
    <message>
        <source>Left</source>
        <translation>左侧</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右侧</translation>
    </message>
    <message>
        <source>Swap the sides</source>
        <translation>交换左右两侧</translation>
    </message>
    <message>
        <source>Reads both sides again.</source>
        <translation>重新读取两侧。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Compare settings</source>
        <translation>比较设置</translation>
    </message>
    <message>
        <source>&amp;Load the user set</source>
        <translation>加载用户集(&amp;L)</translation>
    </message>
    <message>
        <source>Compare with a file</source>
        <translation>与文件比较</translation>
    </message>
    <message>
        <source>Settings files (*.txt *.pfs *.features);;All files (*)</source>
        <translation>设置文件 (*.txt *.pfs *.features);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Writes settings of the left side to the right side.</source>
        <translation>将左侧的设置写入右侧。</translation>
    </message>
    <message>
        <source>The settings are being read.</source>
        <translation>正在读取设置。</translation>
    </message>
    <message>
        <source>Choose two sides that can be read.</source>
        <translation>请选择可读取的两侧。</translation>
    </message>
    <message>
        <source>Copy to the ri&amp;ght</source>
        <translation>复制到右侧(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;F)</translation>
    </message>
</context>
<context>
    <name>CompareSession</name>
    <message>
        <source>Reading: %1</source>
        <translation>正在读取：%1</translation>
    </message>
    <message>
        <source>Copying to: %1</source>
        <translation>正在复制到：%1</translation>
    </message>
</context>
<context>
    <name>CompareSides</name>
    <message>
        <source>User set %1</source>
        <translation>用户集 %1</translation>
    </message>
    <message>
        <source>This camera now</source>
        <translation>此相机（当前）</translation>
    </message>
    <message>
        <source>This camera at opening</source>
        <translation>此相机（打开时）</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>相机 %1</translation>
    </message>
</context>
<context>
    <name>ComparisonCounts</name>
    <message numerus="yes">
        <source>No difference in %n setting(s).</source>
        <translation>
            <numerusform>%n 项设置无差异。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 setting(s) differ.</source>
        <translation>
            <numerusform>%1 项设置中有 %n 项不同。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) belong to one camera or one moment.</source>
        <translation>
            <numerusform>另有 %n 项差异因相机或时刻而异。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more difference(s) that belong to one camera or one moment are hidden.</source>
        <translation>
            <numerusform>已隐藏另外 %n 项因相机或时刻而异的差异。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ComparisonReport</name>
    <message>
        <source>(missing)</source>
        <translation>（缺失）</translation>
    </message>
    <message>
        <source>belongs to one camera or one moment</source>
        <translation>因相机或时刻而异</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左侧</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右侧</translation>
    </message>
    <message>
        <source>Comparison of camera settings</source>
        <translation>相机设置比较</translation>
    </message>
    <message>
        <source>Left: %1, %2</source>
        <translation>左侧：%1，%2</translation>
    </message>
    <message>
        <source>Right: %1, %2</source>
        <translation>右侧：%1，%2</translation>
    </message>
</context>
<context>
    <name>ConnectionBar</name>
    <message>
        <source>&amp;Watch only</source>
        <translation>仅监视(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Other camera…</source>
        <translation>其他相机(&amp;O)…</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>无法打开 %1。%2</translation>
    </message>
    <message>
        <source>&amp;Take control</source>
        <translation>接管控制(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>重试(&amp;T)</translation>
    </message>
    <message>
        <source>%1 The camera was lost at %2. The program continues by itself when the camera is back.</source>
        <translation>%1 相机连接已于 %2 断开。相机恢复后程序将自动继续。</translation>
    </message>
    <message>
        <source>Shows the settings of the camera and how they change, and its pictures if it sends them to more than one program. Nothing is changed.</source>
        <translation>查看相机设置及其变化；如果相机向多个程序发送图像，也会显示图像。不做任何更改。</translation>
    </message>
    <message>
        <source>Watching %1: its settings are shown as another program changes them.</source>
        <translation>正在监视 %1：其设置随另一程序的更改而更新。</translation>
    </message>
</context>
<context>
    <name>ContrastHandle</name>
    <message>
        <source>%1: drag it, or use the arrow keys. A double click resets it.</source>
        <translation>%1：可拖动或用方向键调整，双击可重置。</translation>
    </message>
</context>
<context>
    <name>CopyActions</name>
    <message>
        <source>&amp;Selected differences</source>
        <translation>选中的差异(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Checked differences</source>
        <translation>勾选的差异(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;All differences</source>
        <translation>全部差异(&amp;A)</translation>
    </message>
    <message>
        <source>Copy differences</source>
        <translation>复制差异</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>写入(&amp;W)</translation>
    </message>
    <message>
        <source>Nothing was copied: %1</source>
        <translation>未复制任何设置：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were copied.</source>
        <translation>
            <numerusform>已复制 %n 项设置。</numerusform>
        </translation>
    </message>
    <message>
        <source>The copy was cancelled.</source>
        <translation>复制已取消。</translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s) were reported.</source>
        <translation>
            <numerusform>出现 %n 个问题。</numerusform>
        </translation>
    </message>
    <message>
        <source>What could not be copied or put back:</source>
        <translation>未能复制或恢复的设置：</translation>
    </message>
    <message>
        <source>The copy failed partway: %1</source>
        <translation>复制中途失败，仅完成一部分：%1</translation>
    </message>
</context>
<context>
    <name>CorrectionDialog</name>
    <message>
        <source>&amp;Correct the pictures</source>
        <translation>校正图像(&amp;C)</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>图像校正</translation>
    </message>
    <message>
        <source>&amp;Defect map:</source>
        <translation>坏点表(&amp;D)：</translation>
    </message>
    <message>
        <source>Choose a defect map</source>
        <translation>选择坏点表</translation>
    </message>
    <message>
        <source>Defect maps (*.json *.csv);;All files (*)</source>
        <translation>坏点表 (*.json *.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>&amp;Flat field:</source>
        <translation>平场文件(&amp;F)：</translation>
    </message>
    <message>
        <source>Choose a flat field</source>
        <translation>选择平场文件</translation>
    </message>
    <message>
        <source>Flat fields (*.tif *.tiff);;All files (*)</source>
        <translation>平场文件 (*.tif *.tiff);;所有文件 (*)</translation>
    </message>
    <message>
        <source>The correction applies to the shown pictures, to PNG and TIFF files and to TIFF recordings. Raw files, videos and measured values stay those of the camera.</source>
        <translation>校正应用于显示的图像、PNG 和 TIFF 文件以及 TIFF 录制。原始字节文件、视频和测量值仍为相机的原始值。</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>The pictures are not corrected: %1.</source>
        <translation>图像未校正：%1。</translation>
    </message>
    <message>
        <source>The pictures are corrected.</source>
        <translation>图像已校正。</translation>
    </message>
</context>
<context>
    <name>DarkBox</name>
    <message>
        <source>Cover the lens, and choose a long exposure and a pixel format with many bits in the camera settings. Then measure while the camera warms up.</source>
        <translation>请盖住镜头，并在相机设置中选择较长的曝光时间和高位深的像素格式，然后在相机升温期间进行测量。</translation>
    </message>
    <message>
        <source>Stop measuring the &amp;dark level</source>
        <translation>停止测量暗电平(&amp;D)</translation>
    </message>
    <message>
        <source>Measure the &amp;dark level</source>
        <translation>测量暗电平(&amp;D)</translation>
    </message>
</context>
<context>
    <name>DefectList</name>
    <message>
        <source>Columns %1 to %2, lines %3 to %4</source>
        <translation>列 %1 至 %2，行 %3 至 %4</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
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
            <numerusform>%n 个像素</numerusform>
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
        <translation>热像素</translation>
    </message>
    <message>
        <source>Dead</source>
        <translation>死像素</translation>
    </message>
    <message>
        <source>Stuck</source>
        <translation>恒值像素</translation>
    </message>
    <message>
        <source>Blinking</source>
        <translation>闪烁像素</translation>
    </message>
    <message>
        <source>Deviating</source>
        <translation>偏差像素</translation>
    </message>
    <message>
        <source>Too bright in the dark.</source>
        <translation>在暗场中过亮。</translation>
    </message>
    <message>
        <source>Hardly reacts to light.</source>
        <translation>对光几乎无响应。</translation>
    </message>
    <message>
        <source>Always has the same value.</source>
        <translation>值始终不变。</translation>
    </message>
    <message>
        <source>Changes between levels from image to image.</source>
        <translation>在不同图像间跳变。</translation>
    </message>
    <message>
        <source>Reacts to light much more or less than its neighbours.</source>
        <translation>对光的响应明显高于或低于相邻像素。</translation>
    </message>
    <message>
        <source>Cluster</source>
        <translation>团簇</translation>
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
        <source>No defect pixels were found.</source>
        <translation>未发现坏点。</translation>
    </message>
    <message numerus="yes">
        <source>%n defect pixel(s) found.</source>
        <translation>
            <numerusform>发现 %n 个坏点。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Numbers of the stream</source>
        <translation>图像流统计</translation>
    </message>
    <message>
        <source>Copies all numbers to the clipboard.</source>
        <translation>将所有数值复制到剪贴板。</translation>
    </message>
    <message>
        <source>Command that corrects the cause</source>
        <translation>解决该问题的命令</translation>
    </message>
    <message>
        <source>Copy as te&amp;xt</source>
        <translation>复制为文本(&amp;X)</translation>
    </message>
    <message>
        <source>Copy comma&amp;nd</source>
        <translation>复制命令(&amp;M)</translation>
    </message>
</context>
<context>
    <name>DetailsPane</name>
    <message>
        <source>All values side by side</source>
        <translation>并排显示所有值</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Set back</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Writes the value that the camera had when it was opened.</source>
        <translation>写入打开相机时的值。</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>包含</translation>
    </message>
    <message>
        <source>At opening: %1</source>
        <translation>打开时：%1</translation>
    </message>
    <message>
        <source>As it was when the camera was opened</source>
        <translation>与打开相机时相同</translation>
    </message>
    <message>
        <source>Select a feature to see what the camera says about it.</source>
        <translation>请选择特性，以查看相机提供的信息。</translation>
    </message>
    <message>
        <source>Copy the name used in programs</source>
        <translation>复制编程用名称</translation>
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
        <translation>%1；左侧：%2；右侧：%3</translation>
    </message>
    <message>
        <source>(missing)</source>
        <translation>（缺失）</translation>
    </message>
    <message>
        <source>%1
This value belongs to one camera or one moment.</source>
        <translation>%1
该值因相机或时刻而异。</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
</context>
<context>
    <name>DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>差异</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search the differences</source>
        <translation>搜索差异</translation>
    </message>
    <message>
        <source>Also e&amp;qual</source>
        <translation>含相同项(&amp;Q)</translation>
    </message>
    <message>
        <source>Shows the settings that both sides have in common too.</source>
        <translation>同时显示两侧相同的设置。</translation>
    </message>
    <message>
        <source>Also those of one camera or one &amp;moment</source>
        <translation>含因相机或时刻而异的值(&amp;M)</translation>
    </message>
    <message>
        <source>Shows values that differ between cameras with the same settings too: serial numbers, temperatures, counters.</source>
        <translation>同时显示设置相同的相机之间也会不同的值：序列号、温度、计数器。</translation>
    </message>
    <message>
        <source>There is no difference to show.</source>
        <translation>没有可显示的差异。</translation>
    </message>
    <message>
        <source>Nothing that is shown contains the text.</source>
        <translation>显示的内容中没有匹配的文本。</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Mark clipped pixels</source>
        <translation>标记过曝和欠曝像素</translation>
    </message>
    <message>
        <source>Pick grey</source>
        <translation>拾取灰点</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Fast (bilinear)</source>
        <translation>快速（双线性）</translation>
    </message>
    <message>
        <source>Fine (along edges)</source>
        <translation>精细（沿边缘）</translation>
    </message>
    <message>
        <source>How the missing colours of a Bayer picture are found.</source>
        <translation>Bayer 图像缺失颜色的插值方法。</translation>
    </message>
    <message>
        <source>Shows overexposed pixels in red and underexposed ones in blue.</source>
        <translation>以红色显示过曝像素，以蓝色显示欠曝像素。</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source> µm</source>
        <translation> µm</translation>
    </message>
    <message>
        <source>Demosaicing</source>
        <translation>去马赛克</translation>
    </message>
    <message>
        <source>Click on something grey in the picture. Its surroundings become grey on the screen.</source>
        <translation>点击图像中的灰色物体，该处在屏幕上将显示为中性灰。</translation>
    </message>
    <message>
        <source>Reset the white balance</source>
        <translation>重置白平衡</translation>
    </message>
    <message>
        <source>Multiplies the white balance of the camera by these factors.</source>
        <translation>将相机的白平衡系数乘以这些系数。</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>白平衡</translation>
    </message>
    <message>
        <source>R %1 G %2 B %3</source>
        <translation>R %1 G %2 B %3</translation>
    </message>
    <message>
        <source>The factors of red, green and blue on the screen.</source>
        <translation>屏幕显示所用的红、绿、蓝系数。</translation>
    </message>
    <message>
        <source>Write to camera</source>
        <translation>写入相机</translation>
    </message>
    <message>
        <source>What one pixel shows of the object. Lengths and the scale bar need this number.</source>
        <translation>一个像素对应的物方实际尺寸。长度测量和比例尺需要该值。</translation>
    </message>
    <message>
        <source>Size of a pixel</source>
        <translation>像素当量</translation>
    </message>
</context>
<context>
    <name>DurationScale</name>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
</context>
<context>
    <name>EditorNote</name>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
</context>
<context>
    <name>Encoder</name>
    <message>
        <source>ffmpeg cannot be started: %1</source>
        <translation>无法启动 ffmpeg：%1</translation>
    </message>
    <message>
        <source>ffmpeg has failed: %1</source>
        <translation>ffmpeg 出错：%1</translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not accepted an image for %n second(s)</source>
        <translation>
            <numerusform>ffmpeg 已有 %n 秒未接收图像</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>ffmpeg has not ended after %n second(s)</source>
        <translation>
            <numerusform>ffmpeg 经过 %n 秒仍未结束</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportActions</name>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Saves what is shown as text or as a page (HTML).</source>
        <translation>将显示的内容保存为文本或网页 (HTML)。</translation>
    </message>
    <message>
        <source>Copies what is shown as text to the clipboard.</source>
        <translation>将显示的内容以文本形式复制到剪贴板。</translation>
    </message>
    <message>
        <source>Export the comparison</source>
        <translation>导出比较结果</translation>
    </message>
    <message>
        <source>Page (*.html)</source>
        <translation>网页 (*.html)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>文本 (*.txt)</translation>
    </message>
    <message>
        <source>The comparison was saved as %1.</source>
        <translation>比较结果已保存为“%1”。</translation>
    </message>
    <message>
        <source>The comparison could not be saved as %1: %2</source>
        <translation>无法将比较结果保存为“%1”：%2</translation>
    </message>
    <message>
        <source>The comparison was copied.</source>
        <translation>比较结果已复制。</translation>
    </message>
</context>
<context>
    <name>FeatureActions</name>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Show Locking Feature</source>
        <translation>转到锁定该项的特性</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <translation>复制名称</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>复制值</translation>
    </message>
    <message>
        <source>Copy &quot;Name=Value&quot;</source>
        <translation>复制“名称=值”</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>执行</translation>
    </message>
</context>
<context>
    <name>FeatureEditor</name>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>此更改需要短暂停止图像流。</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>停止、设置、启动</translation>
    </message>
</context>
<context>
    <name>FeatureFacts</name>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>布尔</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>枚举</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>寄存器</translation>
    </message>
    <message>
        <source>Not in this camera</source>
        <translation>此相机不支持</translation>
    </message>
    <message>
        <source>Not available at present</source>
        <translation>当前不可用</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>只写</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>读写</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>对数</translation>
    </message>
    <message>
        <source>Number without slider</source>
        <translation>纯数值</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>十六进制</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4 地址</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC 地址</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>步长</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n 字节</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n character(s)</source>
        <translation>
            <numerusform>%n 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>Every %1 ms</source>
        <translation>每 %1 ms</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Shown as</source>
        <translation>显示形式</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Not allowed now</source>
        <translation>当前不可选</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>访问权限</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>In settings files</source>
        <translation>存入设置文件</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Changes by itself</source>
        <translation>自动更新</translation>
    </message>
    <message>
        <source>Selected by</source>
        <translation>选择器</translation>
    </message>
    <message>
        <source>Selects</source>
        <translation>被选特性</translation>
    </message>
    <message>
        <source>Depends on</source>
        <translation>取决于</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>浮点数</translation>
    </message>
    <message>
        <source>Maximum length</source>
        <translation>最大长度</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>The camera is not connected.</source>
        <translation>相机未连接。</translation>
    </message>
    <message>
        <source>The value was not read yet.</source>
        <translation>尚未读取该值。</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>已收藏</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>Features</source>
        <translation>特性</translation>
    </message>
</context>
<context>
    <name>FileNamePattern</name>
    <message>
        <source>name or model of the camera</source>
        <translation>相机名称或型号</translation>
    </message>
    <message>
        <source>serial number of the camera</source>
        <translation>相机序列号</translation>
    </message>
    <message>
        <source>date of the image, for example 2026-01-31</source>
        <translation>图像日期，例如 2026-01-31</translation>
    </message>
    <message>
        <source>time of the image, for example 23-59-59</source>
        <translation>图像时间，例如 23-59-59</translation>
    </message>
    <message>
        <source>next free number; {number:4} has at least four digits</source>
        <translation>下一个可用编号；{number:4} 至少为四位数</translation>
    </message>
    <message>
        <source>frame ID of the image</source>
        <translation>图像的帧 ID</translation>
    </message>
    <message>
        <source>pixel format of the image, for example Mono8</source>
        <translation>图像的像素格式，例如 Mono8</translation>
    </message>
    <message>
        <source>The name may contain these placeholders:</source>
        <translation>名称中可使用以下占位符：</translation>
    </message>
    <message>
        <source>a brace is missing; placeholders look like {number}</source>
        <translation>缺少花括号；占位符的格式为 {number}</translation>
    </message>
    <message>
        <source>the name must not contain &quot;/&quot;; choose the folder above</source>
        <translation>名称不能包含“/”；请在上方选择文件夹</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名称为空</translation>
    </message>
    <message>
        <source>{%1} is not a placeholder; use one of %2</source>
        <translation>{%1} 不是占位符；可用的占位符：%2</translation>
    </message>
    <message>
        <source>{%1} has to be like {number:4}, with 1 to %2 digits</source>
        <translation>{%1} 的格式应类似 {number:4}，位数为 1 至 %2</translation>
    </message>
</context>
<context>
    <name>FileSource</name>
    <message>
        <source>File %1</source>
        <translation>文件 %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>无法写入文件。</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the file %1? The other settings stay, but comments and lines that cannot be read are lost.</source>
        <translation>
            <numerusform>是否将 %n 项设置写入文件 %1？其他设置保持不变，但注释和无法读取的行将丢失。</numerusform>
        </translation>
    </message>
    <message>
        <source>changed by a copy of differences</source>
        <translation>由复制差异更改</translation>
    </message>
</context>
<context>
    <name>FilesPanel</name>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>文件夹(&amp;D)</translation>
    </message>
    <message>
        <source>File &amp;name</source>
        <translation>文件名(&amp;N)</translation>
    </message>
    <message>
        <source>PNG, 16 bits</source>
        <translation>PNG，16 位</translation>
    </message>
    <message>
        <source>PNG, 8 bits</source>
        <translation>PNG，8 位</translation>
    </message>
    <message>
        <source>TIFF, measured values</source>
        <translation>TIFF，原始像素值</translation>
    </message>
    <message>
        <source>Raw bytes</source>
        <translation>原始字节</translation>
    </message>
    <message>
        <source>Saves the values of the picture that is shown, with a sidecar that contains the camera&apos;s settings. Contrast, white balance and marks of the display are not part of the file.</source>
        <translation>保存当前显示图像的像素值，并附带包含相机设置的附属文件。显示的对比度、白平衡和标记不会写入文件。</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Format of recordings</source>
        <translation>录制格式</translation>
    </message>
    <message>
        <source>BigTIFF, measured values</source>
        <translation>BigTIFF，原始像素值</translation>
    </message>
    <message>
        <source>Raw bytes with an index</source>
        <translation>原始字节（带索引）</translation>
    </message>
    <message>
        <source>Video, 8 bits, H.264 (MP4)</source>
        <translation>视频，8 位，H.264 (MP4)</translation>
    </message>
    <message>
        <source>Video, 8 bits, lossless (MKV)</source>
        <translation>视频，8 位，无损 (MKV)</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>录满后停止</translation>
    </message>
    <message>
        <source> images</source>
        <translation> 帧</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Keep free</source>
        <translation>保留空间</translation>
    </message>
    <message>
        <source> GB</source>
        <translation> GB</translation>
    </message>
    <message>
        <source>Stops the recording before less space than this is left on the disk.</source>
        <translation>在磁盘剩余空间低于该值之前停止录制。</translation>
    </message>
    <message>
        <source>Play at</source>
        <translation>播放速率</translation>
    </message>
    <message>
        <source> images/s</source>
        <translation> 帧/秒</translation>
    </message>
    <message>
        <source>Images per second when the video is played. Otherwise, it plays as fast as it was recorded.</source>
        <translation>视频播放时每秒的帧数。未设置时按录制时的速度播放。</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>例如：%1</translation>
    </message>
    <message>
        <source>Videos need the program ffmpeg, which is not installed. Install it with: %1</source>
        <translation>录制视频需要 ffmpeg，但尚未安装。安装命令：%1</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>录制(&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;top recording</source>
        <translation>停止录制(&amp;T)</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>正在写入…</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>已保存为“%1”。</translation>
    </message>
    <message>
        <source>The folder for snapshots and recordings.</source>
        <translation>快照和录制文件的保存文件夹。</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>选择(&amp;E)…</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Format of snapshots</source>
        <translation>快照格式</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>保存快照(&amp;S)</translation>
    </message>
    <message>
        <source>Folder for snapshots and recordings</source>
        <translation>快照和录制文件夹</translation>
    </message>
    <message>
        <source>This name cannot be used: %1.</source>
        <translation>无法使用此名称：%1。</translation>
    </message>
    <message>
        <source>The camera is lost; the recording goes on when the camera is back. %1</source>
        <translation>相机连接已断开；恢复后将继续录制。%1</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Search features</source>
        <translation>搜索特性</translation>
    </message>
    <message>
        <source>Shows the features with all of these words in their name or description.</source>
        <translation>显示名称或说明中包含所有这些词的特性。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Which features are shown: the most important ones, most, or all.</source>
        <translation>显示哪些特性：最重要的、大部分或全部。</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>Shows only features that have changed since the camera was opened.</source>
        <translation>仅显示打开相机后已更改的特性。</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Shows only the features that you have marked as favourites.</source>
        <translation>仅显示已收藏的特性。</translation>
    </message>
</context>
<context>
    <name>FilterHint</name>
    <message numerus="yes">
        <source>%n feature(s) are hidden by the level %1.</source>
        <translation>
            <numerusform>级别“%1”隐藏了 %n 个特性。</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Them</source>
        <translation>显示这些特性</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>显示全部</translation>
    </message>
    <message>
        <source>No feature matches.</source>
        <translation>没有匹配的特性。</translation>
    </message>
    <message>
        <source>No feature is marked as a favourite. Ctrl+D marks one.</source>
        <translation>尚未收藏任何特性。按 Ctrl+D 可收藏。</translation>
    </message>
    <message>
        <source>No feature has changed since the camera was opened.</source>
        <translation>打开相机后没有特性更改。</translation>
    </message>
    <message>
        <source>This level has no features.</source>
        <translation>此级别下没有特性。</translation>
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
        <translation>提示</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copies the command, which you can paste into a terminal.</source>
        <translation>复制命令，可粘贴到终端中执行。</translation>
    </message>
</context>
<context>
    <name>FlatFieldPanel</name>
    <message>
        <source>Shading before</source>
        <translation>校正前阴影</translation>
    </message>
    <message>
        <source>Shading after</source>
        <translation>校正后阴影</translation>
    </message>
    <message>
        <source>Show the picture corrected</source>
        <translation>显示校正后的图像</translation>
    </message>
    <message>
        <source>Dark images</source>
        <translation>暗场图像</translation>
    </message>
    <message>
        <source>Cover the lens completely. The images show the offset of each pixel.</source>
        <translation>请完全盖住镜头。暗场图像反映每个像素的偏置。</translation>
    </message>
    <message>
        <source>Take dark images</source>
        <translation>采集暗场图像</translation>
    </message>
    <message>
        <source>Bright images</source>
        <translation>亮场图像</translation>
    </message>
    <message>
        <source>Uncover the lens, and point the camera at an evenly lit surface, out of focus.</source>
        <translation>请取下遮盖，将相机对准照明均匀的表面，并使其离焦。</translation>
    </message>
    <message>
        <source>Take bright images</source>
        <translation>采集亮场图像</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl apply the file to every picture of this camera.</source>
        <translation>图像查看器和 cvxctl 可将该文件应用于此相机的所有图像。</translation>
    </message>
    <message>
        <source>Save the correction…</source>
        <translation>保存校正文件…</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>图像数量</translation>
    </message>
    <message>
        <source>Images: </source>
        <translation>图像数： </translation>
    </message>
    <message>
        <source>Sets the exposure time so that the bright images have about 70 % of the range, and puts it back afterwards.</source>
        <translation>设置曝光时间，使亮场图像达到量程的约 70%，完成后恢复原值。</translation>
    </message>
    <message>
        <source>Correct every pixel</source>
        <translation>逐像素校正</translation>
    </message>
    <message>
        <source>Correct the shading only</source>
        <translation>仅校正阴影</translation>
    </message>
    <message>
        <source>What is corrected</source>
        <translation>校正内容</translation>
    </message>
    <message>
        <source>The shading only: the gain changes smoothly over the picture, which adds no noise.</source>
        <translation>仅校正阴影：增益在图像上平滑变化，不会增加噪声。</translation>
    </message>
    <message>
        <source>Keep the mean brightness</source>
        <translation>保持平均亮度</translation>
    </message>
    <message>
        <source>Raise to the brightest place</source>
        <translation>提升到最亮处</translation>
    </message>
    <message>
        <source>Brightness after the correction</source>
        <translation>校正后的亮度</translation>
    </message>
    <message>
        <source>Raised to the brightest place, no gain is below 1: what is clipped stays white.</source>
        <translation>提升到最亮处时，所有增益均不小于 1：饱和的像素保持为白色。</translation>
    </message>
    <message>
        <source>Non-uniformity before and after the correction</source>
        <translation>校正前后的非均匀性</translation>
    </message>
    <message>
        <source>DSNU: differences of the pixels in the dark. PRNU: differences of their sensitivity. By EMVA 1288 release 4.0, without the temporal noise.</source>
        <translation>DSNU：暗场下像素间的差异。PRNU：像素间灵敏度的差异。按 EMVA 1288 Release 4.0 计算，不含时域噪声。</translation>
    </message>
    <message>
        <source>Mean of the columns, before and after</source>
        <translation>校正前后的列均值</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>% of the mean</source>
        <translation>相对均值 (%)</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>校正前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>校正后</translation>
    </message>
    <message>
        <source>Saved as &quot;%1&quot;.</source>
        <translation>已保存为“%1”。</translation>
    </message>
    <message>
        <source>Set the exposure time automatically</source>
        <translation>自动设置曝光时间</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images leave less noise in the correction. Half as many are taken in addition, to check the correction.</source>
        <translation>暗场和亮场图像各自的数量。图像越多，校正引入的噪声越小。另外还会采集一半数量的图像，用于检验校正效果。</translation>
    </message>
    <message>
        <source>The dark images were taken.</source>
        <translation>暗场图像已采集。</translation>
    </message>
</context>
<context>
    <name>FlatFieldReport</name>
    <message>
        <source>Flat Field</source>
        <translation>平场校正</translation>
    </message>
    <message>
        <source>Non-uniformity by EMVA 1288 release 4.0</source>
        <translation>非均匀性（EMVA 1288 Release 4.0）</translation>
    </message>
    <message>
        <source>Mean of the columns</source>
        <translation>列均值</translation>
    </message>
    <message>
        <source>A picture as the camera sends it</source>
        <translation>相机输出的原始图像</translation>
    </message>
    <message>
        <source>The same picture, corrected</source>
        <translation>校正后的同一图像</translation>
    </message>
    <message>
        <source>The gains: the brighter, the higher</source>
        <translation>增益图：越亮增益越高</translation>
    </message>
</context>
<context>
    <name>FlatFieldTexts</name>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 DN</source>
        <translation>%1 DN</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>校正前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>校正后</translation>
    </message>
    <message>
        <source>Shading</source>
        <translation>阴影</translation>
    </message>
    <message>
        <source>… without shading</source>
        <translation>…不含阴影</translation>
    </message>
    <message>
        <source>… in electrons</source>
        <translation>…以电子数计</translation>
    </message>
    <message>
        <source>The picture is even: its shading is only %1.</source>
        <translation>图像均匀：阴影仅为 %1。</translation>
    </message>
    <message>
        <source>The correction reduces the shading from %1 to %2.</source>
        <translation>校正将阴影从 %1 降至 %2。</translation>
    </message>
    <message>
        <source>%1; gains from %2 to %3; bright images at %4 of the range.</source>
        <translation>%1；增益 %2 至 %3；亮场图像为量程的 %4。</translation>
    </message>
    <message numerus="yes">
        <source>The numbers after the correction are those of %n other image(s).</source>
        <translation>
            <numerusform>校正后的数值由另外 %n 帧图像测得。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pixel(s) deviate strongly and got the gain of their neighbours; Pixel Repair replaces them.</source>
        <translation>
            <numerusform>%n 个像素偏差较大，已采用相邻像素的增益；可用“像素修复”替换这些像素。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The gain of %n pixel(s) was limited.</source>
        <translation>
            <numerusform>%n 个像素的增益已被限制。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FlatFieldWindow</name>
    <message>
        <source>Flat Field</source>
        <translation>平场校正</translation>
    </message>
    <message>
        <source>The camera does not say its pixel format (PixelFormat), so its values cannot be corrected.</source>
        <translation>相机未提供像素格式 (PixelFormat)，因此无法校正像素值。</translation>
    </message>
    <message>
        <source>&amp;Save the correction…</source>
        <translation>保存校正文件(&amp;S)…</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>正在采集暗场图像</translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>正在采集亮场图像</translation>
    </message>
</context>
<context>
    <name>FocusPanel</name>
    <message>
        <source>Share of the peak</source>
        <translation>相对峰值</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>保存结果(&amp;S)…</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>清晰度</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>最近一分钟的清晰度</translation>
    </message>
    <message>
        <source>&amp;Forget the peaks</source>
        <translation>清除峰值(&amp;F)</translation>
    </message>
    <message>
        <source>Begins again, for example because the camera looks at something else.</source>
        <translation>重新开始测量，例如相机改拍其他对象时。</translation>
    </message>
    <message>
        <source>Point the camera</source>
        <translation>对准相机</translation>
    </message>
    <message>
        <source>It looks at something with edges all over the picture.</source>
        <translation>请将相机对准整幅画面都有边缘的物体。</translation>
    </message>
    <message>
        <source>Find the best focus</source>
        <translation>寻找最佳对焦</translation>
    </message>
    <message>
        <source>Search &amp;automatically</source>
        <translation>自动搜索(&amp;A)</translation>
    </message>
    <message>
        <source>Read the tilt</source>
        <translation>读取倾斜</translation>
    </message>
    <message>
        <source>The order in which the regions become sharp says how the focus is tilted.</source>
        <translation>各区域变清晰的先后顺序反映焦平面的倾斜方向。</translation>
    </message>
    <message>
        <source>Read the &amp;tilt</source>
        <translation>读取倾斜(&amp;T)</translation>
    </message>
    <message>
        <source>Moves the lens through its range and leaves it at the best position. Cancelling puts it back.</source>
        <translation>在整个行程内移动镜头，并停在最佳位置。取消时恢复原位置。</translation>
    </message>
    <message>
        <source>Nothing was measured yet.</source>
        <translation>尚未测量。</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>of the peak. Sharpness %1, peak %2.</source>
        <translation>相对峰值。清晰度 %1，峰值 %2。</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>峰值</translation>
    </message>
    <message>
        <source>Search the best position, or turn the lens slowly through the sharpest position.</source>
        <translation>搜索最佳位置，或缓慢转动镜头经过最清晰的位置。</translation>
    </message>
    <message>
        <source>Turn the lens slowly through the sharpest position, then back to it.</source>
        <translation>缓慢转动镜头经过最清晰的位置，然后转回该位置。</translation>
    </message>
    <message>
        <source>Time before now</source>
        <translation>距现在的时间</translation>
    </message>
    <message>
        <source>Re&amp;gions per direction</source>
        <translation>每方向区域数(&amp;G)</translation>
    </message>
</context>
<context>
    <name>FocusReport</name>
    <message>
        <source>Focus Assistant</source>
        <translation>对焦助手</translation>
    </message>
    <message>
        <source>Sharpness %1, which is %2 of the peak.</source>
        <translation>清晰度 %1，为峰值的 %2。</translation>
    </message>
    <message>
        <source>Share of the peak of each region</source>
        <translation>各区域的相对峰值</translation>
    </message>
    <message>
        <source>Sharpness during the last minute</source>
        <translation>最近一分钟的清晰度</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>区域</translation>
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
        <translation>清晰度</translation>
    </message>
    <message>
        <source>Share of the peak</source>
        <translation>相对峰值</translation>
    </message>
    <message>
        <source>Best position</source>
        <translation>最佳位置</translation>
    </message>
    <message>
        <source>Sharp at (s)</source>
        <translation>清晰时刻 (s)</translation>
    </message>
    <message>
        <source>Share at the best position</source>
        <translation>最佳位置处的相对峰值</translation>
    </message>
    <message>
        <source>The sharpness is the energy of the differences between neighbouring pixels, divided by the squared brightness, without the part of the noise. Exposure and gain do not change it.</source>
        <translation>清晰度为相邻像素差值的能量除以亮度的平方，并扣除噪声部分。曝光和增益不影响清晰度。</translation>
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
        <translation>%1%</translation>
    </message>
    <message>
        <source>no edges</source>
        <translation>无边缘</translation>
    </message>
    <message>
        <source>too dark</source>
        <translation>过暗</translation>
    </message>
    <message>
        <source>overexposed</source>
        <translation>过曝</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Shares of their peaks at the best position: %1.</source>
        <translation>最佳位置处各角的相对峰值：%1。</translation>
    </message>
</context>
<context>
    <name>FocusWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>保存结果(&amp;S)…</translation>
    </message>
    <message>
        <source>Focus Assistant</source>
        <translation>对焦助手</translation>
    </message>
    <message>
        <source>Searching the best focus</source>
        <translation>正在搜索最佳对焦</translation>
    </message>
</context>
<context>
    <name>HexView</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Offset %1, byte %2</source>
        <translation>偏移 %1，字节 %2</translation>
    </message>
    <message>
        <source>Offset %1, character %2</source>
        <translation>偏移 %1，字符 %2</translation>
    </message>
    <message>
        <source>The clipboard contains no hexadecimal bytes.</source>
        <translation>剪贴板中没有十六进制字节。</translation>
    </message>
    <message>
        <source>The clipboard contains no ASCII text.</source>
        <translation>剪贴板中没有 ASCII 文本。</translation>
    </message>
    <message numerus="yes">
        <source>The last %n byte(s) of the clipboard did not fit.</source>
        <translation>
            <numerusform>剪贴板末尾的 %n 字节超出长度，未粘贴。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistogramWidget</name>
    <message>
        <source>&lt; %1 %</source>
        <translation>&lt; %1%</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Black point</source>
        <translation>黑点</translation>
    </message>
    <message>
        <source>White point</source>
        <translation>白点</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>直方图</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>Value %1
%2</source>
        <translation>值 %1
%2</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>没有图像。</translation>
    </message>
    <message>
        <source>%1 underexposed, %2 overexposed</source>
        <translation>%1 欠曝，%2 过曝</translation>
    </message>
    <message>
        <source>%1 dark</source>
        <translation>%1 欠曝</translation>
    </message>
    <message>
        <source>%1 bright</source>
        <translation>%1 过曝</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Executed: %1</source>
        <translation>已执行：%1</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>This change was undone.</source>
        <translation>此更改已撤销。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>旧值</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>新值</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>Changes since the camera was opened</source>
        <translation>打开相机后的更改</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Export as script…</source>
        <translation>导出为脚本…</translation>
    </message>
    <message>
        <source>Writes a shell script that makes these changes again with cvxctl.</source>
        <translation>生成 shell 脚本，可通过 cvxctl 重新执行这些更改。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Export the changes</source>
        <translation>导出更改</translation>
    </message>
    <message>
        <source>Shell scripts (*.sh)</source>
        <translation>Shell 脚本 (*.sh)</translation>
    </message>
    <message>
        <source>The script &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入脚本“%1”：%2</translation>
    </message>
</context>
<context>
    <name>HtmlReport</name>
    <message>
        <source>Vendor</source>
        <translation>厂商</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Settings of the camera</source>
        <translation>相机设置</translation>
    </message>
    <message>
        <source>Created by Corvix X, version %1.</source>
        <translation>由 Corvix X %1 版创建。</translation>
    </message>
</context>
<context>
    <name>ImageCanvas</name>
    <message>
        <source>Picture</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>No picture yet</source>
        <translation>尚无图像</translation>
    </message>
    <message>
        <source>%1 by %2 pixels, shown at %3 %</source>
        <translation>%1 × %2 像素，显示比例 %3%</translation>
    </message>
</context>
<context>
    <name>InputsForm</name>
    <message>
        <source>&amp;Lines come from</source>
        <translation>行触发来源(&amp;L)</translation>
    </message>
    <message>
        <source>the camera&apos;s line rate</source>
        <translation>相机内部行频</translation>
    </message>
    <message>
        <source>an encoder</source>
        <translation>编码器</translation>
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
        <translation>物体的运动速度。使用编码器时：最高速度，将据此检查各项限制。</translation>
    </message>
    <message>
        <source>&amp;Encoder</source>
        <translation>编码器参数(&amp;E)</translation>
    </message>
    <message>
        <source>movement per pulse</source>
        <translation>每脉冲位移</translation>
    </message>
    <message>
        <source>pulses and roller</source>
        <translation>脉冲数和滚轮</translation>
    </message>
    <message>
        <source>&amp;Movement per pulse</source>
        <translation>每脉冲位移(&amp;M)</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Movement of the object for one pulse, that is one cycle of one signal of the encoder.</source>
        <translation>一个脉冲（即编码器一路信号的一个周期）对应的物体位移。</translation>
    </message>
    <message>
        <source>Number of pulses that the encoder sends while its roller turns once.</source>
        <translation>滚轮转一圈时编码器发出的脉冲数。</translation>
    </message>
    <message>
        <source>Roller &amp;diameter</source>
        <translation>滚轮直径(&amp;D)</translation>
    </message>
    <message>
        <source>Diameter of the roller or wheel that turns the encoder.</source>
        <translation>带动编码器的滚轮或轮子的直径。</translation>
    </message>
    <message>
        <source>Size of a &amp;pixel</source>
        <translation>像素尺寸(&amp;P)</translation>
    </message>
    <message>
        <source>from sensor and lens</source>
        <translation>由传感器和镜头计算</translation>
    </message>
    <message>
        <source>known on the object</source>
        <translation>已知物方像素尺寸</translation>
    </message>
    <message>
        <source>Pi&amp;xel of the sensor</source>
        <translation>传感器像素(&amp;X)</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Width of a pixel of the sensor; the data sheet names it.</source>
        <translation>传感器像素的宽度，见数据手册。</translation>
    </message>
    <message>
        <source>Ma&amp;gnification</source>
        <translation>放大倍率(&amp;G)</translation>
    </message>
    <message>
        <source>Size of the image on the sensor divided by the size of the object, for example 0.5.</source>
        <translation>传感器上像的尺寸除以物体的尺寸，例如 0.5。</translation>
    </message>
    <message>
        <source>Pixel &amp;on the object</source>
        <translation>物方像素(&amp;O)</translation>
    </message>
    <message>
        <source>Width of the object that one pixel of the picture shows.</source>
        <translation>图像中一个像素对应的物体宽度。</translation>
    </message>
    <message>
        <source>Use the longest exposure</source>
        <translation>使用最长曝光</translation>
    </message>
    <message>
        <source>Otherwise, the exposure is only shortened if it does not fit into a line.</source>
        <translation>否则，仅在曝光时间超出一行的周期时才缩短曝光。</translation>
    </message>
    <message>
        <source>not entered</source>
        <translation>未输入</translation>
    </message>
    <message>
        <source>Pulses per re&amp;volution</source>
        <translation>每转脉冲数(&amp;V)</translation>
    </message>
</context>
<context>
    <name>JobBar</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>LastingJob</name>
    <message>
        <source>The work was cancelled before it began, or the camera was closed.</source>
        <translation>操作在开始前已取消，或相机已关闭。</translation>
    </message>
</context>
<context>
    <name>LayoutBox</name>
    <message>
        <source>As the camera says</source>
        <translation>按相机报告</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>通道：</translation>
    </message>
    <message>
        <source>Side by side:</source>
        <translation>左右并列：</translation>
    </message>
    <message>
        <source>Stripes of the picture, from left to right</source>
        <translation>图像从左到右的分区数</translation>
    </message>
    <message>
        <source>One above the other:</source>
        <translation>上下排列：</translation>
    </message>
    <message>
        <source>Stripes of the picture, from top to bottom</source>
        <translation>图像从上到下的分区数</translation>
    </message>
    <message>
        <source>Neighbouring columns:</source>
        <translation>相邻列：</translation>
    </message>
    <message>
        <source>Taps that read the columns of a stripe in turn; 1 if a stripe has one tap</source>
        <translation>轮流读出一个分区各列的通道数；每个分区只有一个通道时为 1</translation>
    </message>
    <message>
        <source>Mean of all taps</source>
        <translation>所有通道的均值</translation>
    </message>
    <message>
        <source>Tap 1</source>
        <translation>通道 1</translation>
    </message>
    <message>
        <source>Compare with:</source>
        <translation>比较基准：</translation>
    </message>
    <message>
        <source>Images of each measurement; more images make the numbers more certain</source>
        <translation>每次测量的图像数；图像越多，数值越可靠</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>图像数：</translation>
    </message>
    <message>
        <source>Camera: %1</source>
        <translation>相机：%1</translation>
    </message>
    <message>
        <source>Not reported by the camera</source>
        <translation>相机未报告</translation>
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
        <translation>实时图像的亮度</translation>
    </message>
    <message>
        <source>%1 % of the range; 50 to 80 % is good</source>
        <translation>量程的 %1%；以 50% 至 80% 为宜</translation>
    </message>
    <message>
        <source>%1 % of the values are clipped</source>
        <translation>%1% 的像素值饱和</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>没有图像。</translation>
    </message>
</context>
<context>
    <name>LevelText</name>
    <message>
        <source>Beginner</source>
        <translation>初级</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>专家</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>大师</translation>
    </message>
</context>
<context>
    <name>LineScanReport</name>
    <message>
        <source>Speed of the object</source>
        <translation>物体速度</translation>
    </message>
    <message>
        <source>mm/s</source>
        <translation>mm/s</translation>
    </message>
    <message>
        <source>Movement per encoder pulse</source>
        <translation>每编码器脉冲位移</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>物方像素</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>Line rate for square pixels</source>
        <translation>方形像素所需行频</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>Lines per pulse for square pixels</source>
        <translation>方形像素所需每脉冲行数</translation>
    </message>
    <message>
        <source>Longest exposure</source>
        <translation>最长曝光</translation>
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
        <translation>剩余误差</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Line Scan Tuner</source>
        <translation>线扫描调校</translation>
    </message>
    <message>
        <source>Round target</source>
        <translation>圆形目标</translation>
    </message>
    <message>
        <source>First measurement</source>
        <translation>首次测量</translation>
    </message>
    <message>
        <source>Last measurement</source>
        <translation>末次测量</translation>
    </message>
    <message>
        <source>Height to width</source>
        <translation>高宽比</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>偏差</translation>
    </message>
    <message>
        <source>Turn of the camera (°)</source>
        <translation>相机旋转角度 (°)</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像数</translation>
    </message>
    <message>
        <source>The picture at the time of the report</source>
        <translation>生成报告时的图像</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>行频</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>量</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Written settings</source>
        <translation>已写入的设置</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>写入前</translation>
    </message>
</context>
<context>
    <name>LineScanWindow</name>
    <message>
        <source>Line Scan Tuner</source>
        <translation>线扫描调校</translation>
    </message>
    <message>
        <source>This camera takes whole pictures: it has no line rate (AcquisitionLineRate) and no encoder. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>此相机为面阵相机：没有行频 (AcquisitionLineRate)，也没有编码器。请选择逐行拍摄运动物体的线扫描相机。</translation>
    </message>
    <message>
        <source>Do the &amp;next step</source>
        <translation>执行下一步(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>保存结果(&amp;S)…</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Ctrl+回车键</translation>
    </message>
    <message>
        <source>Do the next step</source>
        <translation>执行下一步</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Save the result</source>
        <translation>保存结果</translation>
    </message>
    <message>
        <source>No round target was found yet.</source>
        <translation>尚未找到圆形目标。</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>保存结果…</translation>
    </message>
    <message>
        <source>the largest</source>
        <translation>最大的目标</translation>
    </message>
    <message>
        <source>the one that I click</source>
        <translation>我点击的目标</translation>
    </message>
    <message>
        <source>in the columns that I draw</source>
        <translation>我所绘制列内的目标</translation>
    </message>
    <message>
        <source>Which disc or ring is measured. The picture rolls, so only the columns count.</source>
        <translation>指定要测量的圆盘或圆环。图像不断滚动，因此只考虑列的位置。</translation>
    </message>
    <message>
        <source>&amp;Target</source>
        <translation>目标(&amp;T)</translation>
    </message>
    <message>
        <source>Look for the target in the live picture</source>
        <translation>在实时图像中查找目标</translation>
    </message>
    <message>
        <source>The picture stands still for a moment where a target was found.</source>
        <translation>找到目标时，图像会短暂停住。</translation>
    </message>
    <message>
        <source>Describe the machine</source>
        <translation>描述机器</translation>
    </message>
    <message>
        <source>Pixels are square if the camera takes one line while the object moves by one pixel.</source>
        <translation>物体每移动一个像素的距离，相机采集一行，像素即为方形。</translation>
    </message>
    <message>
        <source>Set the camera</source>
        <translation>设置相机</translation>
    </message>
    <message>
        <source>This follows from the machine and from the limits of the camera.</source>
        <translation>由机器参数和相机的限制得出。</translation>
    </message>
    <message>
        <source>Write the settings</source>
        <translation>写入设置</translation>
    </message>
    <message>
        <source>Undo what was written</source>
        <translation>撤销写入</translation>
    </message>
    <message>
        <source>Measure a round target</source>
        <translation>测量圆形目标</translation>
    </message>
    <message>
        <source>Let a dark or bright disc or ring move under the camera. It must be complete in one picture.</source>
        <translation>让深色或浅色的圆盘或圆环从相机下方经过。目标必须完整出现在一幅图像中。</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Make it round</source>
        <translation>校正圆度</translation>
    </message>
    <message>
        <source>Correct the rate</source>
        <translation>校正行频</translation>
    </message>
    <message>
        <source>The target in the live picture is round.</source>
        <translation>实时图像中的目标是圆形。</translation>
    </message>
    <message>
        <source>The target in the live picture is too tall.</source>
        <translation>实时图像中的目标偏高。</translation>
    </message>
    <message>
        <source>The target in the live picture is too flat.</source>
        <translation>实时图像中的目标偏扁。</translation>
    </message>
    <message>
        <source>The line rate, or the ratio of the encoder, is multiplied with width / height of the target.</source>
        <translation>行频或编码器比率将乘以目标的宽高比。</translation>
    </message>
    <message>
        <source>The camera is turned by %1° against the movement.</source>
        <translation>相机相对于运动方向旋转了 %1°。</translation>
    </message>
    <message>
        <source>The camera has accepted the settings.</source>
        <translation>相机已接受这些设置。</translation>
    </message>
    <message>
        <source>Measuring the target</source>
        <translation>正在测量目标</translation>
    </message>
</context>
<context>
    <name>LivePicture</name>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>相机未发送图像。%1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off.</source>
        <translation>相机正在等待触发。请发送触发信号，或关闭触发模式。</translation>
    </message>
    <message>
        <source>No picture has arrived yet.</source>
        <translation>尚未接收到图像。</translation>
    </message>
</context>
<context>
    <name>LiveStream</name>
    <message>
        <source>The stream of the camera has ended.</source>
        <translation>相机的图像流已结束。</translation>
    </message>
</context>
<context>
    <name>LoadDialog</name>
    <message>
        <source>Show only what &amp;changes</source>
        <translation>仅显示将更改的项(&amp;C)</translation>
    </message>
    <message>
        <source>Load what &amp;fits. If you cancel, what was loaded stays.</source>
        <translation>加载适用的设置；取消时保留已加载的设置(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;All or nothing. If a setting fails or you cancel, everything is put back.</source>
        <translation>全部加载或全部不加载；出错或取消时全部恢复(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>加载(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Undo the load</source>
        <translation>撤销加载(&amp;U)</translation>
    </message>
    <message>
        <source>Co&amp;py report</source>
        <translation>复制报告(&amp;P)</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>加载“%1”</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Nothing is written at all if a line of the file cannot be read, or if a setting cannot fit the camera.</source>
        <translation>如果文件中有无法读取的行，或有设置不适用于相机，则不写入任何设置。</translation>
    </message>
    <message>
        <source>Puts back all settings from before the load.</source>
        <translation>恢复加载前的所有设置。</translation>
    </message>
    <message>
        <source>The load was not undone. Without this dialog, it cannot be undone any more.</source>
        <translation>加载尚未撤销。关闭此对话框后将无法再撤销。</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>仍然关闭(&amp;A)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>LoadTable</name>
    <message>
        <source>The line cannot be read. %1</source>
        <translation>无法读取该行。%1</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>In camera</source>
        <translation>相机中的值</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>新值</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>读回值</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
</context>
<context>
    <name>LoadText</name>
    <message>
        <source>Cannot be loaded.</source>
        <translation>无法加载。</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>失败。</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) cannot be loaded.</source>
        <translation>
            <numerusform>%n 项设置无法加载。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) failed.</source>
        <translation>
            <numerusform>%n 项设置失败。</numerusform>
        </translation>
    </message>
    <message>
        <source>Will change.</source>
        <translation>将更改。</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>已更改。</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will change.</source>
        <translation>
            <numerusform>%n 项设置将更改。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) changed.</source>
        <translation>
            <numerusform>%n 项设置已更改。</numerusform>
        </translation>
    </message>
    <message>
        <source>Overruled by another setting.</source>
        <translation>被其他设置覆盖。</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) will be overruled by others.</source>
        <translation>
            <numerusform>%n 项设置将被其他设置覆盖。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were overruled by others.</source>
        <translation>
            <numerusform>%n 项设置已被其他设置覆盖。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already have the value.</source>
        <translation>
            <numerusform>%n 项设置已是该值。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) already had the value.</source>
        <translation>
            <numerusform>%n 项设置原已是该值。</numerusform>
        </translation>
    </message>
    <message>
        <source>Already has this value.</source>
        <translation>无需更改。</translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) cannot be read.</source>
        <translation>
            <numerusform>有 %n 行无法读取。</numerusform>
        </translation>
    </message>
    <message>
        <source>The load was cancelled, and the settings from before were put back.</source>
        <translation>加载已取消，并已恢复之前的设置。</translation>
    </message>
    <message>
        <source>The load has failed, and the settings from before were put back.</source>
        <translation>加载失败，并已恢复之前的设置。</translation>
    </message>
    <message>
        <source>The load was cancelled. What was loaded before stays.</source>
        <translation>加载已取消。此前已加载的设置保留。</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>加载已取消，未作任何更改。</translation>
    </message>
    <message>
        <source>Nothing was changed, because not everything can be loaded.</source>
        <translation>由于部分设置无法加载，未作任何更改。</translation>
    </message>
    <message>
        <source>Not everything could be loaded.</source>
        <translation>部分设置未能加载。</translation>
    </message>
    <message>
        <source>The settings were loaded and read back.</source>
        <translation>设置已加载并回读。</translation>
    </message>
    <message>
        <source>All settings from before the load were put back.</source>
        <translation>已恢复加载前的全部设置。</translation>
    </message>
    <message>
        <source>Not all settings from before the load could be put back.</source>
        <translation>加载前的部分设置未能恢复。</translation>
    </message>
    <message>
        <source>Put back.</source>
        <translation>已恢复。</translation>
    </message>
    <message>
        <source>Not put back.</source>
        <translation>未恢复。</translation>
    </message>
    <message>
        <source>The settings are being compared with the camera.</source>
        <translation>正在将设置与相机比较。</translation>
    </message>
    <message>
        <source>The settings are being loaded and read back.</source>
        <translation>正在加载并回读设置。</translation>
    </message>
    <message>
        <source>The settings from before the load are being put back.</source>
        <translation>正在恢复加载前的设置。</translation>
    </message>
    <message>
        <source>Nothing would change.</source>
        <translation>不会有任何更改。</translation>
    </message>
    <message>
        <source>There are no settings to load.</source>
        <translation>没有可加载的设置。</translation>
    </message>
</context>
<context>
    <name>LockText</name>
    <message>
        <source>Not available at present.</source>
        <translation>当前不可用。</translation>
    </message>
    <message>
        <source>Not available while %1 is %2.</source>
        <translation>%1 为 %2 时不可用。</translation>
    </message>
    <message>
        <source>Locked by the camera.</source>
        <translation>已被相机锁定。</translation>
    </message>
    <message>
        <source>Controlled by %1.</source>
        <translation>由 %1 控制。</translation>
    </message>
    <message>
        <source>Locked while %1 is %2.</source>
        <translation>%1 为 %2 时锁定。</translation>
    </message>
    <message>
        <source>This camera does not have the feature.</source>
        <translation>此相机不支持该特性。</translation>
    </message>
    <message>
        <source>The camera only reports this value.</source>
        <translation>该值为只读，仅由相机报告。</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>当前仅监视相机，无法更改。</translation>
    </message>
    <message>
        <source>Locked while the camera streams.</source>
        <translation>相机采集图像流时锁定。</translation>
    </message>
    <message>
        <source>Not available because of the setting of %1.</source>
        <translation>受 %1 的设置影响，当前不可用。</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>转到 %1</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>将 %1 设为 %2</translation>
    </message>
</context>
<context>
    <name>LogBox</name>
    <message>
        <source>Appends each reading to a CSV file until you stop it. A file of the same camera is continued.</source>
        <translation>将每个读数追加到 CSV 文件，直到停止为止。如已有同一相机的文件，则继续写入。</translation>
    </message>
    <message>
        <source>Log the temperatures</source>
        <translation>记录温度</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>CSV 表格 (*.csv)</translation>
    </message>
    <message>
        <source>Stop the &amp;log</source>
        <translation>停止记录(&amp;L)</translation>
    </message>
    <message>
        <source>Start a &amp;log…</source>
        <translation>开始记录(&amp;L)…</translation>
    </message>
    <message>
        <source>Log: %1</source>
        <translation>记录文件：%1</translation>
    </message>
    <message>
        <source>The readings are not logged.</source>
        <translation>未记录读数。</translation>
    </message>
</context>
<context>
    <name>LossAdvice</name>
    <message>
        <source>Packets are lost between camera and computer: check cable and switch, or reduce the frame rate or the region.</source>
        <translation>相机与计算机之间丢包：请检查网线和交换机，或降低帧率、缩小 ROI。</translation>
    </message>
    <message>
        <source>Transfers are lost between camera and computer: check the cable, connect the camera without a hub, or reduce the frame rate or the region.</source>
        <translation>相机与计算机之间传输丢失：请检查线缆，不经集线器直接连接相机，或降低帧率、缩小 ROI。</translation>
    </message>
    <message>
        <source>The connection or the computer is too slow: reduce the frame rate or the region, or close other programs.</source>
        <translation>连接或计算机速度不足：请降低帧率、缩小 ROI，或关闭其他程序。</translation>
    </message>
    <message numerus="yes">
        <source>No buffer was free for %n image(s). This computer is too slow at present: close other programs, record to a faster disk, or reduce the frame rate or the region.</source>
        <translation>
            <numerusform>有 %n 帧图像没有可用缓冲区。计算机当前处理速度不足：请关闭其他程序，录制到更快的磁盘，或降低帧率、缩小 ROI。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were lost or damaged in the last seconds.</source>
        <translation>
            <numerusform>最近几秒内有 %n 帧图像丢失或损坏。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were incomplete in the last seconds.</source>
        <translation>
            <numerusform>最近几秒内有 %n 帧图像不完整。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Measure</name>
    <message>
        <source>The brightness changed by %1 % while the bright images were taken. Use a steady light, and take the images again.</source>
        <translation>采集亮场图像期间亮度变化了 %1%。请使用稳定的光源，并重新采集图像。</translation>
    </message>
    <message>
        <source>Something moved while the bright images were taken. Point the camera at an evenly lit surface without objects, keep it still, and take the images again.</source>
        <translation>采集亮场图像期间有物体移动。请将相机对准照明均匀、没有物体的表面，保持静止，并重新采集图像。</translation>
    </message>
    <message>
        <source>The bright images show a scene. Point the camera at an evenly lit surface without objects, for example white paper close to the lens and out of focus, and take the images again.</source>
        <translation>亮场图像中有景物。请将相机对准照明均匀、没有物体的表面（例如贴近镜头且离焦的白纸），并重新采集图像。</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the highest value: light reaches the sensor, or the exposure is too long. Cover the lens, then take the dark images again.</source>
        <translation>暗场图像达到最大值的 %1%：有光到达传感器，或曝光时间过长。请盖住镜头，然后重新采集暗场图像。</translation>
    </message>
    <message>
        <source>The dark images show something: light reaches the sensor. Cover the lens completely, then take the dark images again.</source>
        <translation>暗场图像中有景物：有光到达传感器。请完全盖住镜头，然后重新采集暗场图像。</translation>
    </message>
    <message>
        <source>Many pixels of the dark images have the value 0, so their noise is not visible. Increase the black level (BlackLevel), then take the dark images again.</source>
        <translation>暗场图像中许多像素的值为 0，无法观察其噪声。请提高黑电平 (BlackLevel)，然后重新采集暗场图像。</translation>
    </message>
    <message>
        <source>The bright images are too dark: they use %1 % of the value range. Uncover the lens, use more light or a longer exposure, and take the images again.</source>
        <translation>亮场图像过暗：仅使用了值域的 %1%。请取下遮盖，增强光照或延长曝光时间，并重新采集图像。</translation>
    </message>
    <message>
        <source>%1 % of the pixels of the bright images have the highest value. Use less light or a shorter exposure, and take the images again.</source>
        <translation>亮场图像中 %1% 的像素为最大值。请减弱光照或缩短曝光时间，并重新采集图像。</translation>
    </message>
    <message>
        <source>%1 % of the pixels deviate from their neighbours, so the surface had a structure, or light reached the sensor during the dark images. Take the images again.</source>
        <translation>%1% 的像素与相邻像素有偏差，说明表面有纹理，或采集暗场图像时有光到达传感器。请重新采集图像。</translation>
    </message>
    <message>
        <source>Set %1 to %2: defect pixels are measured at full resolution without mirroring.</source>
        <translation>请将 %1 设为 %2：须在全分辨率且无镜像的条件下测量坏点。</translation>
    </message>
    <message>
        <source>Choose a pixel format that contains the values of the pixels as they are, with 8 to 16 bits: Mono8 to Mono16, or Bayer (PixelFormat).</source>
        <translation>请选择保留像素原始值的 8 至 16 位像素格式 (PixelFormat)：Mono8 至 Mono16，或 Bayer。</translation>
    </message>
    <message>
        <source>Choose a region of %1 x %1 pixels or more (Width, Height).</source>
        <translation>请选择不小于 %1 x %1 像素的区域 (Width, Height)。</translation>
    </message>
    <message>
        <source>The size or the pixel format of the images has changed. Take the images again.</source>
        <translation>图像的尺寸或像素格式已改变。请重新采集图像。</translation>
    </message>
    <message>
        <source>Take %1 images or more: with fewer images, the noise hides defects.</source>
        <translation>请采集至少 %1 帧图像：图像过少时，噪声会掩盖坏点。</translation>
    </message>
    <message>
        <source>The region or the pixel format differs from that of the dark images. Set it as before, or take the dark images again.</source>
        <translation>ROI 或像素格式与暗场图像不同。请恢复原设置，或重新采集暗场图像。</translation>
    </message>
    <message>
        <source>The gain differs from that of the dark images, %1. Set it as before, or take the dark images again.</source>
        <translation>增益与暗场图像的增益 %1 不同。请恢复原设置，或重新采集暗场图像。</translation>
    </message>
    <message>
        <source>The camera has sent the same pictures again and again. Lower AcquisitionFrameRate, then measure again.</source>
        <translation>相机重复发送了相同的图像。请降低 AcquisitionFrameRate，然后重新测量。</translation>
    </message>
</context>
<context>
    <name>MeasureBar</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>End the measurement. The settings of the camera are put back. (Esc)</source>
        <translation>结束测量，并恢复相机设置。(Esc)</translation>
    </message>
</context>
<context>
    <name>MeasureJob</name>
    <message>
        <source>The camera is not open for control, so nothing can be measured.</source>
        <translation>未以控制方式打开相机，因此无法测量。</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Measure again when it is back.</source>
        <translation>测量期间相机连接已断开。请在相机恢复后重新测量。</translation>
    </message>
    <message>
        <source>The camera was closed during the measurement.</source>
        <translation>测量期间相机已关闭。</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>相机未发送图像。%1</translation>
    </message>
    <message>
        <source>Some settings were not put back. %1</source>
        <translation>部分设置未能恢复。%1</translation>
    </message>
</context>
<context>
    <name>MeasuredComponent</name>
    <message>
        <source>Grey</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Luma</source>
        <translation>亮度</translation>
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
        <translation>分量 1</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>分量 2</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>分量 3</translation>
    </message>
    <message>
        <source>Fourth</source>
        <translation>分量 4</translation>
    </message>
</context>
<context>
    <name>MeasuringPanel</name>
    <message>
        <source>The picture has no colours to balance.</source>
        <translation>该图像没有颜色，无法进行白平衡。</translation>
    </message>
    <message>
        <source>This place is too dark for a white balance. Pick a brighter one.</source>
        <translation>该处过暗，无法进行白平衡。请选择更亮的位置。</translation>
    </message>
    <message>
        <source>This place is overexposed. Pick a darker one, or reduce the exposure.</source>
        <translation>该处过曝。请选择更暗的位置，或减少曝光。</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>对数</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>整幅图像</translation>
    </message>
    <message>
        <source>Drawn region</source>
        <translation>绘制的区域</translation>
    </message>
    <message>
        <source>Measured area</source>
        <translation>测量区域</translation>
    </message>
    <message>
        <source>Where histogram and statistics are measured. Draw a region in the picture to measure it.</source>
        <translation>直方图和统计的测量范围。可在图像中绘制区域进行测量。</translation>
    </message>
    <message>
        <source>Shows the histogram logarithmically, so that rare values can be seen.</source>
        <translation>以对数刻度显示直方图，便于查看少量出现的值。</translation>
    </message>
    <message>
        <source>Fit contrast</source>
        <translation>拉伸对比度</translation>
    </message>
    <message>
        <source>Spreads the values of the picture from black to white. Only the display changes.</source>
        <translation>将图像的值拉伸到从黑到白的范围。仅影响显示。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Reset the contrast</source>
        <translation>重置对比度</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>直方图</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copies the statistics to the clipboard, for a table.</source>
        <translation>将统计结果复制到剪贴板，可粘贴到表格中。</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>The pixel format is not known, so bytes are measured.</source>
        <translation>像素格式未知，因此按字节测量。</translation>
    </message>
</context>
<context>
    <name>NoCameraPage</name>
    <message>
        <source>Connect a camera and switch it on. It appears here by itself.</source>
        <translation>请连接相机并接通电源，相机将自动显示在此处。</translation>
    </message>
    <message>
        <source>Show what is in order, too</source>
        <translation>同时显示正常项</translation>
    </message>
    <message>
        <source>The checks are running</source>
        <translation>正在检查</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>Checking producers, network, GigE and USB. This takes some seconds.</source>
        <translation>正在检查 Producer、网络、GigE 和 USB，需要几秒钟。</translation>
    </message>
    <message>
        <source>Check a&amp;gain</source>
        <translation>重新检查(&amp;G)</translation>
    </message>
    <message>
        <source>No camera found</source>
        <translation>未找到相机</translation>
    </message>
    <message>
        <source>The checks have found no problem.</source>
        <translation>检查未发现问题。</translation>
    </message>
    <message>
        <source>Problems found: %1</source>
        <translation>发现的问题：%1</translation>
    </message>
</context>
<context>
    <name>NoteListDialog</name>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>NumberEditor</name>
    <message>
        <source>The nearest value that the camera allows is %1.</source>
        <translation>相机允许的最接近的值为 %1。</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 至 %2 %3</translation>
    </message>
    <message>
        <source>%1, in steps of %2</source>
        <translation>%1，步长 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>“%1”不是数字。</translation>
    </message>
</context>
<context>
    <name>OpeningSnapshot</name>
    <message>
        <source>This camera at opening</source>
        <translation>此相机（打开时）</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 was changed before its value at opening was read.</source>
        <translation>尚未读取 %1 打开时的值，该特性就已被更改。</translation>
    </message>
    <message>
        <source>%1 was executed before all settings were read, so some of them may be those after it.</source>
        <translation>读取完所有设置之前执行了 %1，因此部分设置可能是执行后的值。</translation>
    </message>
    <message>
        <source>There are too many values, so only some were read.</source>
        <translation>数值过多，只读取了一部分。</translation>
    </message>
</context>
<context>
    <name>OpeningSource</name>
    <message>
        <source>This camera at opening</source>
        <translation>此相机（打开时）</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>未打开相机。</translation>
    </message>
    <message>
        <source>The settings at opening are still being read.</source>
        <translation>仍在读取打开时的设置。</translation>
    </message>
    <message>
        <source>The settings at opening cannot be changed. Choose another right side.</source>
        <translation>打开时的设置是历史记录，无法写入。请在右侧选择其他来源。</translation>
    </message>
</context>
<context>
    <name>OtherCameraSource</name>
    <message>
        <source>Camera %1</source>
        <translation>相机 %1</translation>
    </message>
    <message>
        <source>Another program uses this camera, so it was only watched.</source>
        <translation>另一程序正在使用此相机，因此仅以监视方式读取。</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) to the camera %1? This cannot be undone here.</source>
        <translation>
            <numerusform>是否将 %n 项设置写入相机 %1？此操作无法在此处撤销。</numerusform>
        </translation>
    </message>
    <message>
        <source>Opening the camera was cancelled.</source>
        <translation>已取消打开相机。</translation>
    </message>
    <message>
        <source>The camera is not connected any more.</source>
        <translation>相机已断开连接。</translation>
    </message>
    <message>
        <source>The camera did not answer in time.</source>
        <translation>相机响应超时。</translation>
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
        <translation>原始值 %1</translation>
    </message>
    <message>
        <source>shown %1</source>
        <translation>显示值 %1</translation>
    </message>
    <message>
        <source>unknown pixel format, byte %1</source>
        <translation>未知像素格式，字节 %1</translation>
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
        <translation>受链路限制</translation>
    </message>
    <message>
        <source>by the exposure</source>
        <translation>受曝光限制</translation>
    </message>
    <message>
        <source>by the camera</source>
        <translation>受相机限制</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新值</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>原值</translation>
    </message>
    <message>
        <source>Settings that are written</source>
        <translation>要写入的设置</translation>
    </message>
    <message>
        <source>Pixel on the object</source>
        <translation>物方像素</translation>
    </message>
    <message>
        <source>%1 µm</source>
        <translation>%1 µm</translation>
    </message>
    <message>
        <source>Line rate</source>
        <translation>行频</translation>
    </message>
    <message>
        <source>Highest line rate</source>
        <translation>最高行频</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
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
        <translation>最长曝光</translation>
    </message>
    <message>
        <source>%1 µs</source>
        <translation>%1 µs</translation>
    </message>
    <message>
        <source>Dead time of a line</source>
        <translation>行死区时间</translation>
    </message>
    <message>
        <source>Lines per pulse</source>
        <translation>每脉冲行数</translation>
    </message>
    <message>
        <source>Multiplier, divider</source>
        <translation>倍频、分频</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>剩余误差</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>The camera is set up for this already.</source>
        <translation>相机已按此设置。</translation>
    </message>
    <message>
        <source>These features are written, in this order:</source>
        <translation>将按以下顺序写入这些特性：</translation>
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
        <translation>绘制的直线</translation>
    </message>
    <message>
        <source>Line of the profile</source>
        <translation>剖面所用的线</translation>
    </message>
    <message>
        <source>Row and column are those of the pointer in the picture.</source>
        <translation>行和列由指针在图像中的位置决定。</translation>
    </message>
    <message>
        <source>Line profile</source>
        <translation>线剖面</translation>
    </message>
</context>
<context>
    <name>ProfileWidget</name>
    <message>
        <source>Line profile</source>
        <translation>线剖面</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Pixel %1
%2</source>
        <translation>像素 %1
%2</translation>
    </message>
    <message>
        <source>There is no line to measure.</source>
        <translation>没有可测量的线。</translation>
    </message>
</context>
<context>
    <name>RateGraph</name>
    <message>
        <source>Images per second and losses of the last minute</source>
        <translation>最近一分钟的帧率和丢帧</translation>
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
        <translation>现在</translation>
    </message>
    <message>
        <source>Images/s</source>
        <translation>帧/秒</translation>
    </message>
    <message>
        <source>Lost or incomplete/s</source>
        <translation>丢失或不完整帧/秒</translation>
    </message>
</context>
<context>
    <name>RecordingControl</name>
    <message>
        <source>no pictures arrive; start the live picture first</source>
        <translation>没有接收到图像；请先启动实时图像</translation>
    </message>
    <message>
        <source>the camera was closed</source>
        <translation>相机已关闭</translation>
    </message>
    <message>
        <source>The recording ended because the limit of free space was reached.</source>
        <translation>因磁盘剩余空间达到下限，录制已停止。</translation>
    </message>
</context>
<context>
    <name>RecordingSummary</name>
    <message>
        <source>The recording did not begin: %1.</source>
        <translation>录制未能开始：%1。</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) recorded in %1 to &quot;%2&quot;.</source>
        <translation>
            <numerusform>%n 帧图像已录制到“%2”，用时 %1。</numerusform>
        </translation>
    </message>
    <message>
        <source>The recording ended early: %1.</source>
        <translation>录制提前结束：%1。</translation>
    </message>
    <message>
        <source>No image is missing.</source>
        <translation>没有缺失图像。</translation>
    </message>
    <message>
        <source>The image format changed during the recording; the file describes each image.</source>
        <translation>录制期间图像格式发生了变化；文件中包含每帧图像的格式说明。</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) never arrived from the camera</source>
        <translation>
            <numerusform>%n 帧未从相机到达</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) found no free buffer</source>
        <translation>
            <numerusform>%n 帧没有可用缓冲区</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be kept because the disk or the encoder is too slow</source>
        <translation>
            <numerusform>%n 帧因磁盘或编码器过慢未能保留</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) could not be written</source>
        <translation>
            <numerusform>%n 帧未能写入</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n recorded image(s) are incomplete</source>
        <translation>
            <numerusform>%n 帧已录制但不完整</numerusform>
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
            <numerusform>%n 帧</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>disk space</comment>
        <translation>剩余 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) waiting</source>
        <translation>
            <numerusform>%n 帧待写入</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost for a while.</source>
        <translation>期间相机曾断开连接。</translation>
    </message>
    <message>
        <source>Lost or incomplete: %1.</source>
        <translation>丢失或不完整：%1。</translation>
    </message>
</context>
<context>
    <name>RegionCall</name>
    <message>
        <source>The camera does not report its region.</source>
        <translation>相机未报告其 ROI。</translation>
    </message>
    <message>
        <source>The camera&apos;s region has changed since it was drawn. Draw it again on the present picture.</source>
        <translation>绘制之后相机的 ROI 已改变。请在当前图像上重新绘制。</translation>
    </message>
</context>
<context>
    <name>RegisterEditor</name>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Writes all bytes to the camera (Ctrl+Return).</source>
        <translation>将所有字节写入相机（Ctrl+回车键）。</translation>
    </message>
    <message>
        <source>Shows the bytes of the camera again (Escape).</source>
        <translation>重新显示相机中的字节 (Esc)。</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n 字节</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, not readable</source>
        <translation>%1，不可读</translation>
    </message>
</context>
<context>
    <name>RepairPanel</name>
    <message>
        <source>Cover the lens</source>
        <translation>盖住镜头</translation>
    </message>
    <message>
        <source>No light may reach the sensor. A long exposure and a high gain show more hot pixels: use the longest exposure that you work with, and let the camera warm up.</source>
        <translation>传感器上不得有光。曝光时间越长、增益越高，能发现的热像素越多：请使用实际应用中最长的曝光时间，并让相机充分升温。</translation>
    </message>
    <message>
        <source>Take &amp;dark images</source>
        <translation>采集暗场图像(&amp;D)</translation>
    </message>
    <message>
        <source>Point at an evenly lit surface</source>
        <translation>对准照明均匀的表面</translation>
    </message>
    <message>
        <source>Uncover the lens and fill the picture with one bright surface without objects, for example white paper, out of focus. Half of the highest brightness is best; leave the gain as it is.</source>
        <translation>请取下遮盖，使画面充满没有物体的明亮表面，例如离焦的白纸。亮度以最大值的一半为宜；增益保持不变。</translation>
    </message>
    <message>
        <source>Take &amp;bright images</source>
        <translation>采集亮场图像(&amp;B)</translation>
    </message>
    <message>
        <source>Save the map</source>
        <translation>保存坏点表</translation>
    </message>
    <message>
        <source>The Image Viewer and cvxctl repair pictures with the map. A report and a table are saved beside it.</source>
        <translation>图像查看器和 cvxctl 用坏点表修复图像。同时会在旁边保存报告和表格。</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Number of images</source>
        <translation>图像数量(&amp;N)</translation>
    </message>
    <message>
        <source>Number of dark images and of bright images. More images find weaker defects and pixels that blink rarely.</source>
        <translation>暗场和亮场图像各自的数量。图像越多，越能发现较弱的坏点和偶尔闪烁的像素。</translation>
    </message>
</context>
<context>
    <name>RepairReport</name>
    <message>
        <source>Pixel Repair</source>
        <translation>像素修复</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>团簇</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>彼此相邻的坏点。</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>含八个或更多坏点的列段。</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>含八个或更多坏点的行段。</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>含义</translation>
    </message>
    <message>
        <source>Places of the defect pixels on the sensor</source>
        <translation>坏点在传感器上的位置</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>测量条件</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Exposure in ms</source>
        <translation>曝光时间 (ms)</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>电平</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>噪声</translation>
    </message>
    <message>
        <source>Spread of the good pixels</source>
        <translation>正常像素的离散度</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>暗场</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>亮场</translation>
    </message>
    <message>
        <source>Threshold: %1 standard deviations. Examined pixels: %2.</source>
        <translation>阈值：%1 倍标准差。检查的像素数：%2。</translation>
    </message>
</context>
<context>
    <name>RepairWindow</name>
    <message>
        <source>&amp;Save the map…</source>
        <translation>保存坏点表(&amp;S)…</translation>
    </message>
    <message>
        <source>Pixel Repair</source>
        <translation>像素修复</translation>
    </message>
    <message>
        <source>Taking the dark images</source>
        <translation>正在采集暗场图像</translation>
    </message>
    <message numerus="yes">
        <source>%n dark image(s) taken.</source>
        <translation>
            <numerusform>已采集 %n 帧暗场图像。</numerusform>
        </translation>
    </message>
    <message>
        <source>Taking the bright images</source>
        <translation>正在采集亮场图像</translation>
    </message>
    <message>
        <source>%1 was off during the measurement, so the map also contains what the camera itself can repair.</source>
        <translation>测量期间 %1 已关闭，因此坏点表中包含相机自身可修复的坏点。</translation>
    </message>
    <message>
        <source>The picture is not repaired: %1.</source>
        <translation>图像未修复：%1。</translation>
    </message>
</context>
<context>
    <name>RestoreBar</name>
    <message>
        <source>Shows which settings differ from those when the camera was opened.</source>
        <translation>显示与打开相机时不同的设置。</translation>
    </message>
    <message>
        <source>&amp;Dismiss</source>
        <translation>忽略(&amp;D)</translation>
    </message>
    <message>
        <source>%1 Settings that were not made with this program may have the values from power-on.</source>
        <translation>%1 不是由本程序所做的设置可能已变回上电时的值。</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>当前仅监视相机，无法更改。</translation>
    </message>
    <message>
        <source>The settings were not read completely before the camera was lost.</source>
        <translation>相机断开前未能读取完所有设置。</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>先显示将更改的内容，再将所有设置恢复到打开相机时的状态。</translation>
    </message>
    <message>
        <source>C&amp;ompare</source>
        <translation>比较(&amp;M)</translation>
    </message>
    <message>
        <source>Res&amp;tore</source>
        <translation>恢复(&amp;R)</translation>
    </message>
</context>
<context>
    <name>ResultBox</name>
    <message>
        <source>Defect pixels</source>
        <translation>坏点</translation>
    </message>
    <message>
        <source>&amp;Mark the defect pixels</source>
        <translation>标记坏点(&amp;M)</translation>
    </message>
    <message>
        <source>Replaces each defect pixel by the median of its good neighbours of the same colour.</source>
        <translation>用同色正常相邻像素的中值替换每个坏点。</translation>
    </message>
    <message>
        <source>Clusters</source>
        <translation>团簇</translation>
    </message>
    <message>
        <source>Defect pixels that touch each other.</source>
        <translation>彼此相邻的坏点。</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Parts of columns with eight defect pixels or more.</source>
        <translation>含八个或更多坏点的列段。</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Parts of lines with eight defect pixels or more.</source>
        <translation>含八个或更多坏点的行段。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Show the re&amp;paired picture</source>
        <translation>显示修复后的图像(&amp;P)</translation>
    </message>
</context>
<context>
    <name>ResultSaver</name>
    <message>
        <source>Save the result</source>
        <translation>保存结果</translation>
    </message>
    <message>
        <source>Results (%1)</source>
        <translation>结果 (%1)</translation>
    </message>
    <message>
        <source>These files exist already: %1. Do you want to replace them?</source>
        <translation>以下文件已存在：%1。是否替换？</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not saved. %2</source>
        <translation>“%1”未保存。%2</translation>
    </message>
</context>
<context>
    <name>SelectorTable</name>
    <message>
        <source>Read again</source>
        <translation>重新读取</translation>
    </message>
    <message>
        <source>Values of the selected features</source>
        <translation>选择器各选项的特性值</translation>
    </message>
    <message>
        <source>Show the feature</source>
        <translation>转到该特性</translation>
    </message>
    <message>
        <source>The feature has no selector, so it has only one value.</source>
        <translation>该特性没有选择器，因此只有一个值。</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 为 %2</translation>
    </message>
    <message>
        <source>The values for each %1</source>
        <translation>%1 各选项的值</translation>
    </message>
    <message>
        <source>%1, while %2</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Reading the values for each %1</source>
        <translation>正在读取 %1 各选项的值</translation>
    </message>
    <message>
        <source>Reading was cancelled.</source>
        <translation>读取已取消。</translation>
    </message>
    <message>
        <source>The selector has more values; only the first ones are shown here.</source>
        <translation>选择器还有更多选项，此处仅显示前面的部分。</translation>
    </message>
    <message>
        <source>For this change, the stream has to be stopped for a moment.</source>
        <translation>此更改需要短暂停止图像流。</translation>
    </message>
    <message>
        <source>Stop, set, start</source>
        <translation>停止、设置、启动</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>正在写入 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of %2.</source>
        <translation>“%1”不是 %2 的有效值。</translation>
    </message>
</context>
<context>
    <name>Sentence</name>
    <message>
        <source>The exposure time of this camera cannot be set. Change the light until the picture has about 70 % of the range, and measure without setting the exposure time.</source>
        <translation>此相机的曝光时间无法设置。请调整光照，使图像达到量程的约 70%，并在不设置曝光时间的情况下测量。</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed since the dark images. Take the dark images again.</source>
        <translation>采集暗场图像后 ROI 或像素格式已改变。请重新采集暗场图像。</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be corrected. Choose a Mono or Bayer format of 8 to 16 bits.</source>
        <translation>像素格式 %1 无法校正。请选择 8 至 16 位的 Mono 或 Bayer 格式。</translation>
    </message>
    <message>
        <source>The colours of a line scan camera cannot be corrected. Choose a Mono format.</source>
        <translation>线扫描相机的颜色无法校正。请选择 Mono 格式。</translation>
    </message>
    <message>
        <source>The region or the pixel format has changed during the measurement. Measure again without changing them.</source>
        <translation>测量期间 ROI 或像素格式已改变。请重新测量，期间不要更改。</translation>
    </message>
    <message>
        <source>%1 images are too few for a correction. Take at least %2.</source>
        <translation>%1 帧图像不足以进行校正。请至少采集 %2 帧。</translation>
    </message>
    <message>
        <source>The bright images are too dark: %1 % of the range above the dark images. Is the lens still covered? Otherwise, use more light or a longer exposure time, for about 70 %.</source>
        <translation>亮场图像过暗：仅比暗场图像高出量程的 %1%。镜头是否仍被盖住？如果没有，请增强光照或延长曝光时间，以达到约 70%。</translation>
    </message>
    <message>
        <source>The bright images have %1 % of the range. Between 50 and 80 %, the gains are most exact.</source>
        <translation>亮场图像为量程的 %1%。在 50% 至 80% 之间时增益最准确。</translation>
    </message>
    <message>
        <source>Parts of the picture have changed by %1 % between the images: something moves, or the light flickers. Use an even surface that keeps still, and steady light.</source>
        <translation>各图像之间画面局部变化了 %1%：有物体移动或光源闪烁。请使用静止的均匀表面和稳定的光源。</translation>
    </message>
    <message>
        <source>The brightness has changed by %1 % between the images. Use steady light.</source>
        <translation>各图像之间亮度变化了 %1%。请使用稳定的光源。</translation>
    </message>
    <message>
        <source>The dark images have %1 % of the range, so there seems to be light. Cover the lens completely. If it is covered, reduce BlackLevel or Gain.</source>
        <translation>暗场图像为量程的 %1%，似乎有光进入。请完全盖住镜头。如果已盖住，请减小 BlackLevel 或 Gain。</translation>
    </message>
    <message>
        <source>The dark images are not equally dark everywhere. Make sure that no light reaches the lens, and take them again.</source>
        <translation>暗场图像各处的暗度不一致。请确保没有光进入镜头，然后重新采集。</translation>
    </message>
    <message>
        <source>%1 % of the values in the dark are 0, so the offsets are cut off. Increase BlackLevel.</source>
        <translation>暗场中 %1% 的像素值为 0，偏置被截断。请增大 BlackLevel。</translation>
    </message>
    <message>
        <source>The noise in the dark is smaller than one step of the pixel format, so the numbers of the dark images are not exact. A pixel format with more bits shows the differences.</source>
        <translation>暗场噪声小于像素格式的一个灰阶，因此暗场数值不精确。位数更多的像素格式可以显示这些差异。</translation>
    </message>
    <message>
        <source>%1 % of the values in the bright images are clipped. Reduce the exposure time or the light, to about 70 % of the range.</source>
        <translation>亮场图像中 %1% 的像素值饱和。请缩短曝光时间或减弱光照，以达到量程的约 70%。</translation>
    </message>
    <message>
        <source>The bright images show structures that look like an object and not like shading; the correction would draw them into every picture. Use an even surface, out of focus.</source>
        <translation>亮场图像中的结构像是物体而不是阴影；校正会将其叠加到每幅图像中。请使用均匀的表面，并使其离焦。</translation>
    </message>
    <message>
        <source>The picture is too dark. Remove the lens cap, open the aperture, add light or lengthen the exposure time.</source>
        <translation>图像过暗。请取下镜头盖、增大光圈、增强光照或延长曝光时间。</translation>
    </message>
    <message>
        <source>%1 % of the pixels are overexposed. Close the aperture or shorten the exposure time.</source>
        <translation>%1% 的像素过曝。请减小光圈或缩短曝光时间。</translation>
    </message>
    <message>
        <source>The picture has no edges. Point the camera at something with structure, for example a printed page, or turn the lens if the picture is blurred.</source>
        <translation>图像中没有边缘。请将相机对准有纹理的物体，例如印刷页；如果图像模糊，请转动镜头。</translation>
    </message>
    <message>
        <source>Pictures of this pixel format cannot be measured. Choose a Mono, Bayer, RGB or YUV format.</source>
        <translation>此像素格式的图像无法测量。请选择 Mono、Bayer、RGB 或 YUV 格式。</translation>
    </message>
    <message>
        <source>The picture is too small for so many regions. Choose a larger Width and Height, or fewer regions.</source>
        <translation>图像过小，无法划分这么多区域。请增大 Width 和 Height，或减少区域数。</translation>
    </message>
    <message>
        <source>The picture became sharp at no position of the lens. Point the camera at something with structure, check the distance, and search again.</source>
        <translation>在镜头的任何位置图像都不清晰。请将相机对准有纹理的物体，检查距离，然后重新搜索。</translation>
    </message>
    <message>
        <source>The camera cannot move its lens: it has no feature for the position of the focus, for example LensFocusPosition. Turn the lens by hand.</source>
        <translation>相机无法移动镜头：没有对焦位置特性，例如 LensFocusPosition。请手动转动镜头。</translation>
    </message>
    <message>
        <source>The right edge is sharp at a higher position than the left edge, by %1.</source>
        <translation>右边缘的清晰位置比左边缘高 %1。</translation>
    </message>
    <message>
        <source>The left edge became sharp before the right edge, by %1 s.</source>
        <translation>左边缘比右边缘早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>The lower right corner is sharp at a higher position than the upper left corner, by %1.</source>
        <translation>右下角的清晰位置比左上角高 %1。</translation>
    </message>
    <message>
        <source>The upper left corner became sharp before the lower right corner, by %1 s.</source>
        <translation>左上角比右下角早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>The lower edge is sharp at a higher position than the upper edge, by %1.</source>
        <translation>下边缘的清晰位置比上边缘高 %1。</translation>
    </message>
    <message>
        <source>The upper edge became sharp before the lower edge, by %1 s.</source>
        <translation>上边缘比下边缘早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>The lower left corner is sharp at a higher position than the upper right corner, by %1.</source>
        <translation>左下角的清晰位置比右上角高 %1。</translation>
    </message>
    <message>
        <source>The upper right corner became sharp before the lower left corner, by %1 s.</source>
        <translation>右上角比左下角早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>The left edge is sharp at a higher position than the right edge, by %1.</source>
        <translation>左边缘的清晰位置比右边缘高 %1。</translation>
    </message>
    <message>
        <source>The right edge became sharp before the left edge, by %1 s.</source>
        <translation>右边缘比左边缘早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>The upper left corner is sharp at a higher position than the lower right corner, by %1.</source>
        <translation>左上角的清晰位置比右下角高 %1。</translation>
    </message>
    <message>
        <source>The lower right corner became sharp before the upper left corner, by %1 s.</source>
        <translation>右下角比左上角早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>The upper edge is sharp at a higher position than the lower edge, by %1.</source>
        <translation>上边缘的清晰位置比下边缘高 %1。</translation>
    </message>
    <message>
        <source>The lower edge became sharp before the upper edge, by %1 s.</source>
        <translation>下边缘比上边缘早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>The upper right corner is sharp at a higher position than the lower left corner, by %1.</source>
        <translation>右上角的清晰位置比左下角高 %1。</translation>
    </message>
    <message>
        <source>The lower left corner became sharp before the upper right corner, by %1 s.</source>
        <translation>左下角比右上角早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>Turn the lens slowly in one direction, until the picture has become blurred again.</source>
        <translation>请沿一个方向缓慢转动镜头，直到图像重新变模糊。</translation>
    </message>
    <message>
        <source>Keep turning in this direction.</source>
        <translation>继续沿此方向转动。</translation>
    </message>
    <message>
        <source>Turn back: the peak lies in the other direction.</source>
        <translation>请往回转：峰值在另一方向。</translation>
    </message>
    <message>
        <source>The best position is %1. The lens is there.</source>
        <translation>最佳位置为 %1。镜头已在该位置。</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens up by %2.</source>
        <translation>最佳位置为 %1：请将镜头位置调高 %2。</translation>
    </message>
    <message>
        <source>The best position is %1: move the lens down by %2.</source>
        <translation>最佳位置为 %1：请将镜头位置调低 %2。</translation>
    </message>
    <message>
        <source>Too few regions became sharp and blurred again to tell whether the focus is tilted. Point the camera at something with edges all over the picture, and go through the sharpest position once more.</source>
        <translation>变清晰后又变模糊的区域过少，无法判断焦平面是否倾斜。请将相机对准整幅画面都有边缘的物体，再次经过最清晰的位置。</translation>
    </message>
    <message>
        <source>The focus is not tilted.</source>
        <translation>焦平面没有倾斜。</translation>
    </message>
    <message>
        <source>The centre became sharp before the corners, by %1 s.</source>
        <translation>中心比四角早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>The corners became sharp before the centre, by %1 s.</source>
        <translation>四角比中心早 %1 s 变清晰。</translation>
    </message>
    <message>
        <source>The corners are sharp at a higher position than the centre, by %1.</source>
        <translation>四角的清晰位置比中心高 %1。</translation>
    </message>
    <message>
        <source>The corners are sharp at a lower position than the centre, by %1.</source>
        <translation>四角的清晰位置比中心低 %1。</translation>
    </message>
    <message>
        <source>The link carries %1 MB/s: at most %2 kHz with this width and pixel format. Choose a smaller width, a pixel format with fewer bits, or a lower speed.</source>
        <translation>链路传输速率为 %1 MB/s：在此宽度和像素格式下最高 %2 kHz。请减小宽度，选择位数更少的像素格式，或降低速度。</translation>
    </message>
    <message>
        <source>The exposure allows at most %1 kHz, because a line cannot be shorter than its exposure. Shorten the exposure, and add light or gain.</source>
        <translation>此曝光时间最高允许 %1 kHz，因为一行的周期不能短于曝光时间。请缩短曝光时间，并增强光照或提高增益。</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz with its present settings. Choose a lower speed or a smaller magnification.</source>
        <translation>相机在当前设置下最高 %1 kHz。请降低速度或减小放大倍率。</translation>
    </message>
    <message>
        <source>This camera takes whole pictures. Choose a line scan camera, which takes single lines of a moving object.</source>
        <translation>此相机为面阵相机。请选择逐行拍摄运动物体的线扫描相机。</translation>
    </message>
    <message>
        <source>Every number must be greater than 0.</source>
        <translation>所有数值必须大于 0。</translation>
    </message>
    <message>
        <source>Enter the pixel size and the magnification, or the size of a pixel on the object.</source>
        <translation>请输入像素尺寸和放大倍率，或输入物方像素尺寸。</translation>
    </message>
    <message>
        <source>Enter the speed of the object.</source>
        <translation>请输入物体速度。</translation>
    </message>
    <message>
        <source>Enter the movement per encoder pulse, or the pulses per revolution and the diameter of the roller.</source>
        <translation>请输入每编码器脉冲位移，或输入每转脉冲数和滚轮直径。</translation>
    </message>
    <message>
        <source>The camera has no line rate of its own (AcquisitionLineRate). Use an encoder, or an external trigger.</source>
        <translation>相机没有内部行频 (AcquisitionLineRate)。请使用编码器或外部触发。</translation>
    </message>
    <message>
        <source>The camera cannot start lines by an encoder (TriggerSelector has no LineStart). Use its line rate.</source>
        <translation>相机无法由编码器触发行采集（TriggerSelector 没有 LineStart）。请使用相机的行频。</translation>
    </message>
    <message>
        <source>The exposure of %1 µs is longer than a line. It has to be shortened to %2 µs, so the picture becomes darker: add light or gain.</source>
        <translation>曝光时间 %1 µs 长于一行的周期，须缩短到 %2 µs，图像会变暗：请增强光照或提高增益。</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification, or use another encoder.</source>
        <translation>相机最接近的设置会使物体偏高 %1%。请更改放大倍率，或使用其他编码器。</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification, or use another encoder.</source>
        <translation>相机最接近的设置会使物体偏扁 %1%。请更改放大倍率，或使用其他编码器。</translation>
    </message>
    <message>
        <source>The camera offers no encoder as the source of its line trigger (TriggerSource). Use its line rate.</source>
        <translation>相机不支持以编码器作为行触发源 (TriggerSource)。请使用相机的行频。</translation>
    </message>
    <message>
        <source>The camera takes at most %1 kHz, but square pixels need %2 kHz. Nothing was changed. Choose a lower speed or a smaller magnification.</source>
        <translation>相机最高 %1 kHz，而方形像素需要 %2 kHz。未作任何更改。请降低速度或减小放大倍率。</translation>
    </message>
    <message>
        <source>The camera has refused %1, so nothing was changed. %2</source>
        <translation>相机拒绝了 %1，因此未作任何更改。%2</translation>
    </message>
    <message>
        <source>The circle is round: height and width differ by %1 %.</source>
        <translation>目标为圆形：高度与宽度相差 %1%。</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the lines per encoder pulse from %2 to %3.</source>
        <translation>目标偏高 %1%：请将每编码器脉冲行数从 %2 减小到 %3。</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the lines per encoder pulse from %2 to %3.</source>
        <translation>目标偏扁 %1%：请将每编码器脉冲行数从 %2 增大到 %3。</translation>
    </message>
    <message>
        <source>The circle is %1 % too tall: lower the line rate from %2 kHz to %3 kHz.</source>
        <translation>目标偏高 %1%：请将行频从 %2 kHz 降低到 %3 kHz。</translation>
    </message>
    <message>
        <source>The circle is %1 % too flat: raise the line rate from %2 kHz to %3 kHz.</source>
        <translation>目标偏扁 %1%：请将行频从 %2 kHz 提高到 %3 kHz。</translation>
    </message>
    <message>
        <source>The border of the round target is uneven. Check whether the object moves evenly, whether lines are lost, and whether the target is sharp and free of other shapes.</source>
        <translation>圆形目标的边缘不规则。请检查物体运动是否均匀、是否丢行，以及目标是否清晰且没有其他形状干扰。</translation>
    </message>
    <message>
        <source>There is no complete round target in the picture of %1 lines. Show the camera a dark or bright disc or ring, or make the picture higher (Height).</source>
        <translation>%1 行的图像中没有完整的圆形目标。请让相机拍摄深色或浅色的圆盘或圆环，或增大图像高度 (Height)。</translation>
    </message>
    <message>
        <source>The picture has too little contrast. Take off the lens cap, add light, and show the camera a dark or bright disc or ring.</source>
        <translation>图像对比度过低。请取下镜头盖，增强光照，并让相机拍摄深色或浅色的圆盘或圆环。</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s, because it waits for a trigger. Trigger it, or set TriggerMode to Off, and measure again.</source>
        <translation>相机正在等待触发，已 %1 s 未发送图像。请触发相机，或将 TriggerMode 设为 Off，然后重新测量。</translation>
    </message>
    <message>
        <source>The camera has sent no image for %1 s. Check whether the live picture moves, and the cable, then measure again.</source>
        <translation>相机已 %1 s 未发送图像。请检查实时图像是否更新以及线缆，然后重新测量。</translation>
    </message>
    <message>
        <source>The camera was lost during the measurement. Check its cable and its power, wait until the picture is back, then measure again. (%1)</source>
        <translation>测量期间相机连接已断开。请检查线缆和电源，等待图像恢复，然后重新测量。(%1)</translation>
    </message>
    <message>
        <source>The images arrive with missing data. Check the cable and the network card (&quot;cvxctl doctor&quot; helps), or lower the image rate, then measure again.</source>
        <translation>到达的图像数据缺失。请检查线缆和网卡（可使用“cvxctl doctor”），或降低帧率，然后重新测量。</translation>
    </message>
    <message>
        <source>The measurement was cancelled.</source>
        <translation>测量已取消。</translation>
    </message>
    <message>
        <source>The pixel values are not proportional to the light. Set Gamma to 1, then measure again.</source>
        <translation>像素值与光强不成正比。请将 Gamma 设为 1，然后重新测量。</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;DeviceTapGeometry&quot;. Choose the layout of its taps by hand.</source>
        <translation>相机没有特性“DeviceTapGeometry”。请手动选择通道布局。</translation>
    </message>
    <message>
        <source>The tap geometry &quot;%1&quot; is unknown. Choose the layout of the taps by hand.</source>
        <translation>通道几何结构“%1”未知。请手动选择通道布局。</translation>
    </message>
    <message>
        <source>The sensor has one tap only, so there is nothing to balance. If that is wrong, choose the layout of the taps by hand.</source>
        <translation>传感器只有一个通道，无需平衡。如有误，请手动选择通道布局。</translation>
    </message>
    <message>
        <source>The camera has no feature &quot;%1&quot;, so its taps can be measured, but not set.</source>
        <translation>相机没有特性“%1”，因此只能测量通道，无法设置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not have the entries Tap1 to Tap%2, so the taps can be measured, but not set. Choose the layout of the camera&apos;s taps.</source>
        <translation>“%1”没有选项 Tap1 至 Tap%2，因此只能测量通道，无法设置。请选择相机的通道布局。</translation>
    </message>
    <message>
        <source>The scene moves: %1 % of the picture has changed during the measurement. Show an even surface that rests, then measure again.</source>
        <translation>画面在变动：测量期间 %1% 的画面发生了变化。请拍摄静止的均匀表面，然后重新测量。</translation>
    </message>
    <message>
        <source>The picture is overexposed: %1 % of a tap&apos;s pixels have the largest value. Shorten the exposure time or close the lens aperture, then measure again.</source>
        <translation>图像过曝：某通道 %1% 的像素为最大值。请缩短曝光时间或减小镜头光圈，然后重新测量。</translation>
    </message>
    <message>
        <source>The picture is too dark: it reaches %1 % of the range. Remove the lens cap, add light or lengthen the exposure time, then measure again.</source>
        <translation>图像过暗：仅达到量程的 %1%。请取下镜头盖，增强光照或延长曝光时间，然后重新测量。</translation>
    </message>
    <message>
        <source>The picture is not dark: its mean is %1 % of the range. Cover the lens, then measure again.</source>
        <translation>图像不是暗场：均值为量程的 %1%。请盖住镜头，然后重新测量。</translation>
    </message>
    <message>
        <source>The dark picture is cut off: %1 % of a tap&apos;s pixels are 0. Raise the black level, then measure again.</source>
        <translation>暗场图像被截断：某通道 %1% 的像素为 0。请提高黑电平，然后重新测量。</translation>
    </message>
    <message>
        <source>The step between tap %1 and tap %2 cannot be told from the scene. Show an even surface, or take more images, then measure again.</source>
        <translation>无法从画面中区分通道 %1 与通道 %2 之间的台阶。请拍摄均匀表面，或采集更多图像，然后重新测量。</translation>
    </message>
    <message>
        <source>Taps cannot be measured in this pixel format. Choose a Mono or Bayer format of 8 to 16 bits, then measure again.</source>
        <translation>无法在此像素格式下测量通道。请选择 8 至 16 位的 Mono 或 Bayer 格式，然后重新测量。</translation>
    </message>
    <message>
        <source>The taps read neighbouring pixels in turn, which have different colours, so taps and colours cannot be told apart. Choose a layout of stripes by hand.</source>
        <translation>各通道轮流读出颜色不同的相邻像素，因此无法区分通道与颜色。请手动选择分区布局。</translation>
    </message>
    <message>
        <source>Binning adds up pixels of several taps. Switch it off, then measure again.</source>
        <translation>像素合并会将多个通道的像素相加。请关闭像素合并，然后重新测量。</translation>
    </message>
    <message>
        <source>The size or the format of the images has changed during the measurement. Measure again.</source>
        <translation>测量期间图像的尺寸或格式已改变。请重新测量。</translation>
    </message>
    <message>
        <source>The dark level of this pixel format cannot be measured; choose a Mono, Bayer or RGB format.</source>
        <translation>此像素格式的暗电平无法测量；请选择 Mono、Bayer 或 RGB 格式。</translation>
    </message>
    <message>
        <source>The picture is not dark. Put the cap on the lens, or cover the lens completely.</source>
        <translation>图像不是暗场。请盖上镜头盖，或完全盖住镜头。</translation>
    </message>
    <message>
        <source>%1 % of the pixels are 0, which hides the dark level. Raise BlackLevel, so that the noise lies above 0.</source>
        <translation>%1% 的像素为 0，掩盖了暗电平。请提高 BlackLevel，使噪声高于 0。</translation>
    </message>
    <message>
        <source>The noise is smaller than one step of the pixel format, which hides small changes of the dark level. Choose a pixel format with more bits, or a higher gain.</source>
        <translation>噪声小于像素格式的一个灰阶，掩盖了暗电平的微小变化。请选择位数更多的像素格式或更高的增益。</translation>
    </message>
    <message>
        <source>The features cannot be read: %1</source>
        <translation>无法读取特性：%1</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature.</source>
        <translation>相机没有特性 DeviceTemperature，因此不报告温度。</translation>
    </message>
    <message>
        <source>The scene moves, so the regions&apos; shares also change with what they show. Let it stand still to compare the regions.</source>
        <translation>画面在变动，各区域的相对值会随画面内容改变。请使画面静止，再比较各区域。</translation>
    </message>
    <message>
        <source>The picture is as sharp as it gets. Lock the lens.</source>
        <translation>图像已达到最清晰。请锁紧镜头。</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too tall. Change the magnification or the speed.</source>
        <translation>相机最接近的设置会使物体偏高 %1%。请更改放大倍率或速度。</translation>
    </message>
    <message>
        <source>The closest setting of the camera makes objects %1 % too flat. Change the magnification or the speed.</source>
        <translation>相机最接近的设置会使物体偏扁 %1%。请更改放大倍率或速度。</translation>
    </message>
    <message>
        <source>The camera has refused a setting, and then also refused to go back to %1: %2</source>
        <translation>相机拒绝了一项设置，随后又拒绝恢复 %1：%2</translation>
    </message>
    <message>
        <source>The stream has ended during the measurement. Start the live picture and measure again.</source>
        <translation>测量期间图像已中断。请启动实时图像并重新测量。</translation>
    </message>
    <message>
        <source>The picture shows no border between tap %1 and the other taps. Set the region to the whole sensor, or choose another layout, then measure again.</source>
        <translation>图像中没有通道 %1 与其他通道的边界。请将区域设为整个传感器，或选择其他布局，然后重新测量。</translation>
    </message>
</context>
<context>
    <name>SettingTexts</name>
    <message>
        <source>Without category</source>
        <translation>无类别</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save settings…</source>
        <translation>保存设置(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Load settings…</source>
        <translation>加载设置(&amp;L)…</translation>
    </message>
    <message>
        <source>As it &amp;was when I opened it…</source>
        <translation>恢复到打开时的状态(&amp;W)…</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>当前仅监视相机，无法更改。</translation>
    </message>
    <message>
        <source>The camera is not open.</source>
        <translation>相机未打开。</translation>
    </message>
    <message>
        <source>Saves all settings to a file that other GenICam programs can read, too.</source>
        <translation>将所有设置保存到文件，其他 GenICam 程序也可读取。</translation>
    </message>
    <message>
        <source>Shows what a settings file would change, and then loads it.</source>
        <translation>先显示设置文件将更改的内容，再加载该文件。</translation>
    </message>
    <message>
        <source>The settings from the opening are not completely known.</source>
        <translation>打开时的设置不完整。</translation>
    </message>
    <message>
        <source>Shows what would change, and then sets everything as it was when the camera was opened.</source>
        <translation>先显示将更改的内容，再将所有设置恢复到打开相机时的状态。</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>保存设置</translation>
    </message>
    <message>
        <source>Settings files (%1)</source>
        <translation>设置文件 (%1)</translation>
    </message>
    <message>
        <source>All files (%1)</source>
        <translation>所有文件 (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) were saved to &quot;%1&quot;.</source>
        <translation>
            <numerusform>%n 项设置已保存到“%1”。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s):</source>
        <translation>
            <numerusform>%n 条提示：</numerusform>
        </translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>加载设置</translation>
    </message>
    <message>
        <source>the settings from the opening</source>
        <translation>打开时的设置</translation>
    </message>
</context>
<context>
    <name>SettingsLoad</name>
    <message>
        <source>Comparing %1 with the camera</source>
        <translation>正在将“%1”与相机比较</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>正在加载“%1”</translation>
    </message>
    <message>
        <source>Putting back the settings from before %1</source>
        <translation>正在恢复加载“%1”之前的设置</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>加载“%1”</translation>
    </message>
    <message>
        <source>Undo loading %1</source>
        <translation>撤销加载“%1”</translation>
    </message>
</context>
<context>
    <name>SettingsSave</name>
    <message>
        <source>Saving the settings</source>
        <translation>正在保存设置</translation>
    </message>
    <message>
        <source>Saving was cancelled. The file was not written.</source>
        <translation>保存已取消。未写入文件。</translation>
    </message>
    <message>
        <source>The camera has no settings that belong in a file. The file was not written.</source>
        <translation>相机没有可保存到文件的设置。未写入文件。</translation>
    </message>
</context>
<context>
    <name>SettingsSource</name>
    <message>
        <source>The reading was cancelled.</source>
        <translation>读取已取消。</translation>
    </message>
</context>
<context>
    <name>SetupWindow</name>
    <message>
        <source>Camera Setup</source>
        <translation>相机配置</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>用户集</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>All selector values</source>
        <translation>全部选择器值</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>&amp;Find a feature</source>
        <translation>查找特性(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>Live &amp;picture</source>
        <translation>实时图像(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Compare with the opening</source>
        <translation>与打开时比较(&amp;C)</translation>
    </message>
    <message>
        <source>Open in the &amp;Image Viewer</source>
        <translation>在图像查看器中打开(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>面板(&amp;P)</translation>
    </message>
    <message>
        <source>F2, Return</source>
        <translation>F2、回车键</translation>
    </message>
    <message>
        <source>Edit the value of the selected feature</source>
        <translation>编辑选中特性的值</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>左、右方向键</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s). The settings at opening are being read.</source>
        <translation>
            <numerusform>%n 个特性。正在读取打开时的设置。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n 个特性</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed since opening</source>
        <translation>
            <numerusform>打开后已更改 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Collapse or expand a category</source>
        <translation>折叠或展开类别</translation>
    </message>
</context>
<context>
    <name>ShortcutPage</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>What they do</source>
        <translation>功能</translation>
    </message>
</context>
<context>
    <name>SideBox</name>
    <message>
        <source>Shows what could not be read, and why.</source>
        <translation>显示无法读取的内容及原因。</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>文件…</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s), %1</source>
        <translation>
            <numerusform>%n 项设置，%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n 条提示</numerusform>
        </translation>
    </message>
    <message>
        <source>Not read yet.</source>
        <translation>尚未读取。</translation>
    </message>
    <message>
        <source>Notes on what was read:</source>
        <translation>读取时的提示：</translation>
    </message>
</context>
<context>
    <name>SnapshotSaver</name>
    <message>
        <source>There is no picture to save yet.</source>
        <translation>尚无可保存的图像。</translation>
    </message>
    <message>
        <source>The snapshot was not saved: %1.</source>
        <translation>快照未保存：%1。</translation>
    </message>
    <message>
        <source>The snapshot was not saved, because earlier ones still wait for the disk.</source>
        <translation>快照未保存，因为之前的快照仍在等待写入磁盘。</translation>
    </message>
</context>
<context>
    <name>StatisticsTable</name>
    <message>
        <source>Component</source>
        <translation>分量</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>均值</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>像素数</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>标准差</translation>
    </message>
</context>
<context>
    <name>StatusNumbers</name>
    <message>
        <source>Images per second and image data per second that arrive from the camera.</source>
        <translation>每秒从相机到达的图像帧数和图像数据量。</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>正在显示、测量或录制的图像所占用的缓冲区。全部占用时会丢失图像。</translation>
    </message>
    <message>
        <source>Buffers: %1</source>
        <translation>缓冲区：%1</translation>
    </message>
    <message>
        <source>No losses</source>
        <translation>无丢帧</translation>
    </message>
    <message>
        <source>What was lost since the camera was opened.</source>
        <translation>打开相机以来丢失的图像。</translation>
    </message>
</context>
<context>
    <name>StepCard</name>
    <message>
        <source>Step %1, not yet possible: %2</source>
        <translation>步骤 %1，尚不可用：%2</translation>
    </message>
    <message>
        <source>Step %1, next: %2</source>
        <translation>步骤 %1，下一步：%2</translation>
    </message>
    <message>
        <source>Step %1, done: %2</source>
        <translation>步骤 %1，已完成：%2</translation>
    </message>
</context>
<context>
    <name>StreamNumbers</name>
    <message>
        <source>Delivered</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>Images that arrived from the camera.</source>
        <translation>从相机到达的图像。</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>已显示</translation>
    </message>
    <message>
        <source>Images that were drawn in the window.</source>
        <translation>已在窗口中绘制的图像。</translation>
    </message>
    <message>
        <source>Skipped for display</source>
        <translation>显示跳过</translation>
    </message>
    <message>
        <source>Images that were not drawn because the screen is slower than the camera. They are not lost: recordings contain them.</source>
        <translation>因屏幕刷新慢于相机而未绘制的图像。这些图像并未丢失，仍包含在录制中。</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>不完整</translation>
    </message>
    <message>
        <source>Delivered images with missing data.</source>
        <translation>已接收但数据缺失的图像。</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>丢失</translation>
    </message>
    <message>
        <source>Images that never arrived, by gaps in the frame IDs.</source>
        <translation>未到达的图像，根据帧 ID 的间断计算。</translation>
    </message>
    <message>
        <source>Underruns</source>
        <translation>缓冲区不足</translation>
    </message>
    <message>
        <source>Images that were lost because no buffer was free: this computer was too slow.</source>
        <translation>因没有可用缓冲区而丢失的图像：计算机处理速度不足。</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Images per second during the last second.</source>
        <translation>最近一秒的帧率。</translation>
    </message>
    <message>
        <source>Data rate</source>
        <translation>数据速率</translation>
    </message>
    <message>
        <source>Image data per second during the last second.</source>
        <translation>最近一秒的图像数据量。</translation>
    </message>
    <message>
        <source>Buffers in use</source>
        <translation>占用的缓冲区</translation>
    </message>
    <message>
        <source>Buffers that hold an image which is shown, measured or recorded. If all of them are in use, images are lost.</source>
        <translation>正在显示、测量或录制的图像所占用的缓冲区。全部占用时会丢失图像。</translation>
    </message>
    <message>
        <source>Link speed</source>
        <translation>链路速率</translation>
    </message>
    <message>
        <source>Speed of the connection that the camera reports.</source>
        <translation>相机报告的连接速率。</translation>
    </message>
    <message>
        <source>Packet size</source>
        <translation>数据包大小</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>Size of the packets of a GigE camera.</source>
        <translation>GigE 相机的数据包大小。</translation>
    </message>
    <message>
        <source>Resent packets</source>
        <translation>重传数据包</translation>
    </message>
    <message>
        <source>Packets that the camera has sent a second time because they were lost.</source>
        <translation>因丢失而由相机重新发送的数据包。</translation>
    </message>
    <message>
        <source>Continued after a loss</source>
        <translation>断线恢复次数</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>rate and data rate</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>%1 丢失</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>%1 不完整</translation>
    </message>
    <message>
        <source>no stream</source>
        <translation>无图像流</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>buffers</comment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name and value</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 images/s</source>
        <translation>%1 帧/秒</translation>
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
        <translation>未报告</translation>
    </message>
    <message>
        <source>How often the camera was lost and the stream went on when it was back.</source>
        <translation>相机断开后恢复并继续传输图像流的次数。</translation>
    </message>
    <message>
        <source>%1 underruns</source>
        <translation>%1 缓冲区不足</translation>
    </message>
</context>
<context>
    <name>TapBars</name>
    <message>
        <source>Deviation of each tap</source>
        <translation>各通道的偏差</translation>
    </message>
    <message>
        <source>Grey: before; blue: now</source>
        <translation>灰色：之前；蓝色：当前</translation>
    </message>
    <message>
        <source>Tap %1: %2 %3</source>
        <translation>通道 %1：%2 %3</translation>
    </message>
    <message>
        <source>Not measured yet</source>
        <translation>尚未测量</translation>
    </message>
</context>
<context>
    <name>TapPanel</name>
    <message>
        <source>Tap</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>均值</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>噪声</translation>
    </message>
    <message>
        <source>Mismatch of the taps</source>
        <translation>通道失配</translation>
    </message>
    <message>
        <source>Skip this step</source>
        <translation>跳过此步骤</translation>
    </message>
    <message>
        <source>Undo the last balancing</source>
        <translation>撤销上次平衡</translation>
    </message>
    <message>
        <source>Mean and noise of each tap</source>
        <translation>各通道的均值和噪声</translation>
    </message>
    <message>
        <source>Shading changes the means, so the steps at the borders say how the taps differ.</source>
        <translation>阴影会改变均值，因此通道间的差异以边界处的台阶为准。</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Show an even, bright surface that fills the picture, for example a white sheet out of focus.</source>
        <translation>请拍摄充满画面的均匀明亮表面，例如离焦的白纸。</translation>
    </message>
    <message>
        <source>Measure the taps</source>
        <translation>测量通道</translation>
    </message>
    <message>
        <source>Black levels</source>
        <translation>黑电平</translation>
    </message>
    <message>
        <source>Cover the lens. Without this step, differences of the black levels count as those of the gains.</source>
        <translation>请盖住镜头。跳过此步骤时，黑电平差异会计入增益差异。</translation>
    </message>
    <message>
        <source>Balance the black levels</source>
        <translation>平衡黑电平</translation>
    </message>
    <message>
        <source>Gains</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>Uncover the lens and show the even, bright surface again.</source>
        <translation>请取下遮盖，再次拍摄均匀明亮的表面。</translation>
    </message>
    <message>
        <source>Balance the gains</source>
        <translation>平衡增益</translation>
    </message>
    <message>
        <source>The camera has the new values until it is switched off. Store them in a user set with Camera Setup to keep them.</source>
        <translation>新值在相机断电前有效。如需保留，请用“相机配置”将其存入用户集。</translation>
    </message>
    <message>
        <source>Save the result…</source>
        <translation>保存结果…</translation>
    </message>
    <message>
        <source>The taps differ by up to %1.</source>
        <translation>通道间最大相差 %1。</translation>
    </message>
    <message>
        <source>Keep the values</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>TapReport</name>
    <message>
        <source>Tap Balance</source>
        <translation>通道平衡</translation>
    </message>
    <message>
        <source>Layout of the taps: %1</source>
        <translation>通道布局：%1</translation>
    </message>
    <message>
        <source>Deviation of each tap; grey: before, blue: now</source>
        <translation>各通道的偏差；灰色：之前，蓝色：当前</translation>
    </message>
    <message>
        <source>Bright picture</source>
        <translation>亮场图像</translation>
    </message>
    <message>
        <source>Dark picture</source>
        <translation>暗场图像</translation>
    </message>
    <message>
        <source>The picture with the borders of the taps</source>
        <translation>标出通道边界的图像</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>均值</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>噪声</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>偏差</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Step at the border</source>
        <translation>边界处的台阶</translation>
    </message>
    <message>
        <source>The deviations follow from the steps at the borders, which straight lines on both sides are extended to; shading has no influence. The noise is the temporal standard deviation of a pixel by the differences of successive images (EMVA 1288). The uncertainty of a step is twice its standard error.</source>
        <translation>偏差由边界处的台阶求得，台阶则由两侧的直线延伸到边界得出；阴影没有影响。噪声为像素的时域标准差，由连续图像的差值计算 (EMVA 1288)。台阶的不确定度为其标准误差的两倍。</translation>
    </message>
    <message>
        <source>%1 before</source>
        <translation>%1（之前）</translation>
    </message>
    <message>
        <source>now</source>
        <translation>当前</translation>
    </message>
</context>
<context>
    <name>TapSession</name>
    <message>
        <source>Measuring the taps</source>
        <translation>正在测量通道</translation>
    </message>
    <message>
        <source>Balancing the gains</source>
        <translation>正在平衡增益</translation>
    </message>
    <message>
        <source>Balancing the black levels</source>
        <translation>正在平衡黑电平</translation>
    </message>
    <message>
        <source>Putting the earlier values back</source>
        <translation>正在恢复之前的值</translation>
    </message>
</context>
<context>
    <name>TapTexts</name>
    <message>
        <source>The mismatch fell from %1 to %2.</source>
        <translation>失配从 %1 降至 %2。</translation>
    </message>
    <message>
        <source>The mismatch fell from %1 to %2. The camera offers no finer values.</source>
        <translation>失配从 %1 降至 %2。相机不支持更精细的值。</translation>
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
        <translation>通道平衡</translation>
    </message>
    <message>
        <source>The camera has no feature GainSelector, so the gains of its taps cannot be set one by one. Use a flat-field correction instead.</source>
        <translation>相机没有特性 GainSelector，因此无法单独设置各通道的增益。请改用平场校正。</translation>
    </message>
    <message>
        <source>&amp;Save the result…</source>
        <translation>保存结果(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Undo the last balancing</source>
        <translation>撤销上次平衡(&amp;U)</translation>
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
        <translation>开始后的时间</translation>
    </message>
    <message>
        <source>Temperature in °C</source>
        <translation>温度 (°C)</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>暗电平</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>报警</translation>
    </message>
    <message>
        <source>Final value of %1</source>
        <translation>%1 的最终值</translation>
    </message>
    <message>
        <source>Dark level follows</source>
        <translation>暗电平开始跟随</translation>
    </message>
    <message>
        <source>Show the &amp;last</source>
        <translation>显示范围(&amp;V)</translation>
    </message>
    <message>
        <source>Temperatures since the start</source>
        <translation>自开始以来的温度</translation>
    </message>
    <message>
        <source>Dark level since the start</source>
        <translation>自开始以来的暗电平</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message numerus="yes">
        <source>At most %n character(s)</source>
        <translation>
            <numerusform>最多 %n 个字符</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
</context>
<context>
    <name>ThermalPanel</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>保存结果(&amp;S)…</translation>
    </message>
    <message>
        <source>Notify me</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>暗电平</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Read &amp;every</source>
        <translation>读取间隔(&amp;E)</translation>
    </message>
    <message>
        <source>Start a&amp;new</source>
        <translation>重新开始(&amp;N)</translation>
    </message>
    <message>
        <source>Forgets the readings and begins again. A running log goes on.</source>
        <translation>清除读数并重新开始。正在进行的记录不受影响。</translation>
    </message>
</context>
<context>
    <name>ThermalReport</name>
    <message>
        <source>Thermal Monitor</source>
        <translation>温度监视器</translation>
    </message>
    <message>
        <source>Readings since %1 (UTC).</source>
        <translation>自 %1 (UTC) 起的读数。</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Expected final value in °C</source>
        <translation>预计最终值 (°C)</translation>
    </message>
    <message>
        <source>Time constant</source>
        <translation>时间常数</translation>
    </message>
    <message>
        <source>Steady in</source>
        <translation>达到稳定还需</translation>
    </message>
    <message>
        <source>The final value belongs to an exponential curve through the readings; the uncertainty is twice the standard deviation. Steady means within 0.5 K of the final value, or a change of less than 0.1 K per minute.</source>
        <translation>最终值由读数拟合的指数曲线得出；不确定度为标准差的两倍。稳定是指与最终值相差不超过 0.5 K，或每分钟变化小于 0.1 K。</translation>
    </message>
    <message>
        <source>Temperatures over time</source>
        <translation>温度随时间的变化</translation>
    </message>
    <message>
        <source>Dark level</source>
        <translation>暗电平</translation>
    </message>
    <message>
        <source>Dark level over time</source>
        <translation>暗电平随时间的变化</translation>
    </message>
</context>
<context>
    <name>ThermalSession</name>
    <message>
        <source>The camera has not been read yet.</source>
        <translation>尚未读取相机。</translation>
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
        <translation>10 min</translation>
    </message>
    <message>
        <source>1 h</source>
        <translation>1 h</translation>
    </message>
    <message>
        <source>24 h</source>
        <translation>24 h</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>Cannot be read at present</source>
        <translation>当前无法读取</translation>
    </message>
    <message>
        <source>Rate and state are known in %1.</source>
        <translation>%1 后可得出变化率和状态。</translation>
    </message>
    <message>
        <source>Warming up, %1 K/min</source>
        <translation>升温中，%1 K/min</translation>
    </message>
    <message>
        <source>Cooling, %1 K/min</source>
        <translation>降温中，%1 K/min</translation>
    </message>
    <message>
        <source>Steady, %1 K/min</source>
        <translation>稳定，%1 K/min</translation>
    </message>
    <message>
        <source>The temperature does not change any more.</source>
        <translation>温度不再变化。</translation>
    </message>
    <message>
        <source>The final value is not determined yet.</source>
        <translation>最终值尚未确定。</translation>
    </message>
    <message>
        <source>Expected final value: %1 °C ± %2 K</source>
        <translation>预计最终值：%1 °C ± %2 K</translation>
    </message>
    <message>
        <source>%1, steady in %2</source>
        <translation>%1，%2 后稳定</translation>
    </message>
    <message>
        <source>Alarm: %1 has reached %2. Cool the camera or let it work less.</source>
        <translation>报警：%1 已达到 %2。请冷却相机或降低其负荷。</translation>
    </message>
    <message>
        <source>Warning: %1 is at %2.</source>
        <translation>警告：%1 为 %2。</translation>
    </message>
    <message>
        <source>%1 is below the thresholds again: %2.</source>
        <translation>%1 已回到阈值以下：%2。</translation>
    </message>
    <message>
        <source>Dark level: %1</source>
        <translation>暗电平：%1</translation>
    </message>
    <message>
        <source>Dark level: %1 (noise %2)</source>
        <translation>暗电平：%1（噪声 %2）</translation>
    </message>
    <message>
        <source>The dark level has followed the temperature since %1 after the start.</source>
        <translation>自开始后 %1 起，暗电平跟随温度变化。</translation>
    </message>
    <message>
        <source>The dark level has not changed by more than its noise.</source>
        <translation>暗电平的变化未超出其噪声。</translation>
    </message>
    <message>
        <source>The dark signal doubles every %1 ± %2 K.</source>
        <translation>暗信号每 %1 ± %2 K 翻倍。</translation>
    </message>
    <message>
        <source>The doubling temperature is not determined yet; the temperature has to change more.</source>
        <translation>倍增温度尚未确定；温度须有更大变化。</translation>
    </message>
</context>
<context>
    <name>ThermalWindow</name>
    <message>
        <source>&amp;Save the result…</source>
        <translation>保存结果(&amp;S)…</translation>
    </message>
    <message>
        <source>Thermal Monitor</source>
        <translation>温度监视器</translation>
    </message>
    <message>
        <source>The camera has no feature DeviceTemperature, so it does not report its temperature. The data sheet says whether a newer firmware does.</source>
        <translation>相机没有特性 DeviceTemperature，因此不报告温度。更新的固件是否支持，请查阅数据手册。</translation>
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
        <translation>报警温度(&amp;A)</translation>
    </message>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source>A warning or an alarm ends when the temperature is so far below its threshold again.</source>
        <translation>温度回落到阈值以下该幅度时，警告或报警解除。</translation>
    </message>
    <message>
        <source> °C</source>
        <translation> °C</translation>
    </message>
    <message>
        <source>Ends &amp;below by</source>
        <translation>解除回差(&amp;B)</translation>
    </message>
    <message>
        <source>The program notifies you, also while its window is behind others, when a place gets this warm.</source>
        <translation>任一位置达到该温度时发出通知，即使程序窗口被其他窗口遮挡。</translation>
    </message>
</context>
<context>
    <name>ThresholdControl</name>
    <message>
        <source>How far a pixel deviates from its neighbours before it counts as a defect, in standard deviations of the good pixels. At 6 σ, less than one good pixel per megapixel is taken for a defect.</source>
        <translation>像素与相邻像素的偏差超过该值时视为坏点，以正常像素的标准差为单位。取 6 σ 时，每百万像素中被误判为坏点的正常像素少于一个。</translation>
    </message>
    <message>
        <source>&amp;Threshold</source>
        <translation>阈值(&amp;T)</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
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
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Copy path</source>
        <translation>复制路径(&amp;C)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist any more.</source>
        <translation>“%1”已不存在。</translation>
    </message>
    <message>
        <source>No program of this desktop opens &quot;%1&quot;.</source>
        <translation>此桌面上没有可打开“%1”的程序。</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot; and its sidecar?</source>
        <translation>是否删除“%1”及其附属文件？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: %2.</source>
        <translation>无法删除“%1”：%2。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>打开文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Delete snapshot</source>
        <translation>删除快照</translation>
    </message>
</context>
<context>
    <name>ToolStarter</name>
    <message>
        <source>%1 cannot be started. Check that the file exists and is executable.</source>
        <translation>无法启动 %1。请确认文件存在且可执行。</translation>
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
        <translation>其他相机(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>用户指南(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>关于%1(&amp;A)</translation>
    </message>
    <message>
        <source>The guide cannot be opened: %1</source>
        <translation>无法打开用户指南：%1</translation>
    </message>
    <message>
        <source>%1 of Corvix X, version %2.

For industrial cameras of any vendor. MIT licence.</source>
        <translation>Corvix X %1，版本 %2。

适用于任何厂商的工业相机。MIT 许可证。</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>正在搜索相机…</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>正在打开 %1…</translation>
    </message>
</context>
<context>
    <name>UserSetControl</name>
    <message>
        <source>Reading the user sets</source>
        <translation>正在读取用户集</translation>
    </message>
    <message>
        <source>The camera is only watched, so nothing can be changed.</source>
        <translation>当前仅监视相机，无法更改。</translation>
    </message>
    <message>
        <source>The camera does not offer this.</source>
        <translation>此相机不支持该功能。</translation>
    </message>
    <message>
        <source>The camera does not let the set for power-on be chosen.</source>
        <translation>此相机不支持选择上电时加载的用户集。</translation>
    </message>
    <message>
        <source>The camera does not allow this set at power-on.</source>
        <translation>相机不允许在上电时加载此用户集。</translation>
    </message>
    <message>
        <source>The camera is only watched, so its user sets cannot be loaded.</source>
        <translation>当前仅监视相机，无法加载其用户集。</translation>
    </message>
    <message>
        <source>Loading &quot;%1&quot;</source>
        <translation>正在加载“%1”</translation>
    </message>
    <message>
        <source>Load user set &quot;%1&quot;</source>
        <translation>加载用户集“%1”</translation>
    </message>
    <message>
        <source>The load was cancelled. Nothing was changed.</source>
        <translation>加载已取消。未做任何更改。</translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; was loaded, which changed %n setting(s).</source>
        <translation>
            <numerusform>已加载“%1”，更改了 %n 项设置。</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving &quot;%1&quot;</source>
        <translation>正在保存“%1”</translation>
    </message>
    <message>
        <source>The present settings were saved as &quot;%1&quot;.</source>
        <translation>当前设置已保存为“%1”。</translation>
    </message>
    <message>
        <source>Choosing &quot;%1&quot; for power-on</source>
        <translation>正在将“%1”设为上电时加载</translation>
    </message>
    <message>
        <source>Use user set &quot;%1&quot; at power-on</source>
        <translation>将用户集“%1”设为上电时加载</translation>
    </message>
    <message>
        <source>The camera begins with &quot;%1&quot; at power-on.</source>
        <translation>相机上电时将加载“%1”。</translation>
    </message>
</context>
<context>
    <name>UserSetPanel</name>
    <message>
        <source>&amp;Load…</source>
        <translation>加载(&amp;L)…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>User sets</source>
        <translation>用户集</translation>
    </message>
    <message>
        <source>User set</source>
        <translation>用户集</translation>
    </message>
    <message>
        <source>At power-on</source>
        <translation>上电时加载</translation>
    </message>
    <message>
        <source>This camera keeps no user sets.</source>
        <translation>此相机没有用户集。</translation>
    </message>
    <message>
        <source>The user sets are not known yet.</source>
        <translation>尚未读取用户集。</translation>
    </message>
    <message>
        <source>✓ yes</source>
        <translation>✓ 是</translation>
    </message>
    <message>
        <source>Replaces the settings of the camera by those of &quot;%1&quot;.</source>
        <translation>用“%1”的设置替换相机的当前设置。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be loaded.</source>
        <translation>无法加载“%1”。</translation>
    </message>
    <message>
        <source>Stores the present settings as &quot;%1&quot;.</source>
        <translation>将当前设置保存为“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved.</source>
        <translation>无法保存“%1”。</translation>
    </message>
    <message>
        <source>Lets the camera begin with &quot;%1&quot;.</source>
        <translation>使相机上电时加载“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used at power-on.</source>
        <translation>无法在上电时加载“%1”。</translation>
    </message>
    <message>
        <source>Shows how the settings of the camera differ from this set.</source>
        <translation>显示相机设置与此用户集的差异。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be compared.</source>
        <translation>无法比较“%1”。</translation>
    </message>
    <message>
        <source>Load &quot;%1&quot;? The present settings of the camera are overwritten.</source>
        <translation>是否加载“%1”？相机的当前设置将被覆盖。</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) differ from those when the camera was opened.</source>
        <translation>
            <numerusform>%n 个特性与打开相机时不同。</numerusform>
        </translation>
    </message>
    <message>
        <source>Loading can be undone.</source>
        <translation>加载操作可以撤销。</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>加载用户集</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>加载(&amp;L)</translation>
    </message>
    <message>
        <source>Save user set</source>
        <translation>保存用户集</translation>
    </message>
    <message>
        <source>Save the present settings as &quot;%1&quot;? What is in this set now is overwritten, which cannot be undone.</source>
        <translation>是否将当前设置保存为“%1”？此用户集的现有内容将被覆盖，且无法撤销。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Use at power-on</source>
        <translation>设为上电时加载(&amp;P)</translation>
    </message>
    <message>
        <source>Comp&amp;are</source>
        <translation>比较(&amp;M)</translation>
    </message>
</context>
<context>
    <name>UserSetSource</name>
    <message>
        <source>User set %1</source>
        <translation>用户集 %1</translation>
    </message>
    <message>
        <source>The camera has to load the user set %1 to show it. The stream is stopped for this, and your present settings are put back afterwards.</source>
        <translation>相机需要加载用户集 %1 才能显示其内容。为此将停止图像流，之后恢复当前设置。</translation>
    </message>
    <message>
        <source>Not put back after the user set %1</source>
        <translation>加载用户集 %1 后未恢复的设置</translation>
    </message>
    <message numerus="yes">
        <source>%n more setting(s) were not put back; the history lists them.</source>
        <translation>
            <numerusform>另有 %n 项设置未恢复，详见历史记录。</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera may still have the settings of the user set. Restore those from the opening.</source>
        <translation>相机可能仍在使用该用户集的设置。请恢复打开时的设置。</translation>
    </message>
    <message>
        <source>Reading the user set %1</source>
        <translation>正在读取用户集 %1</translation>
    </message>
    <message>
        <source>This camera is not open for control.</source>
        <translation>未以控制方式打开此相机。</translation>
    </message>
    <message numerus="yes">
        <source>Write %n setting(s) into the user set %1? The camera loads the set, changes it and saves it, and then your present settings are put back. The stream is stopped for this.</source>
        <translation>
            <numerusform>是否将 %n 项设置写入用户集 %1？相机将加载、更改并保存该用户集，然后恢复当前设置。为此将停止图像流。</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying to the user set %1</source>
        <translation>正在复制到用户集 %1</translation>
    </message>
    <message>
        <source>The copy was cancelled, so the user set was not changed.</source>
        <translation>复制已取消，用户集未更改。</translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message numerus="yes">
        <source>%1 … (%n bytes)</source>
        <translation>
            <numerusform>%1 …（%n 字节）</numerusform>
        </translation>
    </message>
    <message>
        <source>not in this camera</source>
        <translation>此相机不支持</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>can only be written</source>
        <translation>只写</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Running …</source>
        <translation>正在执行…</translation>
    </message>
</context>
<context>
    <name>VideoWriter</name>
    <message>
        <source>videos need the program ffmpeg, which is not installed; install it with: %1</source>
        <translation>录制视频需要 ffmpeg，但尚未安装；安装命令：%1</translation>
    </message>
    <message>
        <source>the images are too small for a video</source>
        <translation>图像尺寸过小，无法生成视频</translation>
    </message>
    <message>
        <source>the format of the images has changed, which a video cannot contain; start another recording</source>
        <translation>图像格式已改变，而一个视频只能包含一种格式；请重新开始录制</translation>
    </message>
</context>
<context>
    <name>ViewerActions</name>
    <message>
        <source>&amp;Live</source>
        <translation>实时图像(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save snapshot</source>
        <translation>保存快照(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>录制(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Crosshair</source>
        <translation>十字线(&amp;C)</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>全屏(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation>新建窗口(&amp;N)</translation>
    </message>
    <message>
        <source>All &amp;features (Camera Setup)</source>
        <translation>全部特性（Camera Setup）(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Fit into the window</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Actual size</source>
        <translation>实际大小(&amp;A)</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Rotate &amp;left</source>
        <translation>向左旋转(&amp;L)</translation>
    </message>
    <message>
        <source>Rotate &amp;right</source>
        <translation>向右旋转(&amp;R)</translation>
    </message>
    <message>
        <source>Mirror &amp;horizontally</source>
        <translation>水平镜像(&amp;H)</translation>
    </message>
    <message>
        <source>Mirror &amp;vertically</source>
        <translation>垂直镜像(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Move the picture</source>
        <translation>移动图像(&amp;M)</translation>
    </message>
    <message>
        <source>Draw a re&amp;gion</source>
        <translation>绘制区域(&amp;G)</translation>
    </message>
    <message>
        <source>+, -</source>
        <translation>+、-</translation>
    </message>
    <message>
        <source>Zoom in or out</source>
        <translation>放大或缩小</translation>
    </message>
    <message>
        <source>0, 1</source>
        <translation>0、1</translation>
    </message>
    <message>
        <source>Fit the picture, or show it at its own size</source>
        <translation>适合窗口，或以实际大小显示</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>方向键</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Remove the drawn region or line</source>
        <translation>删除绘制的区域或直线</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>以指针为中心缩放</translation>
    </message>
    <message>
        <source>Move the picture, whatever the tool</source>
        <translation>移动图像（任何工具下均可）</translation>
    </message>
    <message>
        <source>Double click</source>
        <translation>双击</translation>
    </message>
    <message>
        <source>Change between the fitted picture and its own size</source>
        <translation>在适合窗口与实际大小之间切换</translation>
    </message>
    <message>
        <source>Free&amp;ze</source>
        <translation>冻结(&amp;Z)</translation>
    </message>
    <message>
        <source>Mark clipped &amp;pixels</source>
        <translation>标记过曝和欠曝像素(&amp;P)</translation>
    </message>
    <message>
        <source>Gri&amp;d</source>
        <translation>网格(&amp;D)</translation>
    </message>
    <message>
        <source>Draw a li&amp;ne</source>
        <translation>绘制直线(&amp;N)</translation>
    </message>
    <message>
        <source>Move the picture; in larger steps with Shift</source>
        <translation>移动图像；按住 Shift 可加大移动步幅</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Draw a region or a line in the middle</source>
        <translation>在中央绘制区域或直线</translation>
    </message>
    <message>
        <source>Ctrl and arrow keys</source>
        <translation>Ctrl + 方向键</translation>
    </message>
    <message>
        <source>Move the drawn region or line; resize it with Shift</source>
        <translation>移动绘制的区域或直线；按住 Shift 可调整大小</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>回车键</translation>
    </message>
    <message>
        <source>Finish the region for the camera</source>
        <translation>确认相机的传输区域</translation>
    </message>
    <message>
        <source>Middle button, or Space and drag</source>
        <translation>中键拖动，或空格键+拖动</translation>
    </message>
    <message>
        <source>&amp;Corrections…</source>
        <translation>图像校正(&amp;C)…</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Image Viewer</source>
        <translation>图像查看器</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>面板(&amp;P)</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Pixel under the pointer</source>
        <translation>指针处的像素</translation>
    </message>
    <message>
        <source>The camera sends no pictures. %1</source>
        <translation>相机未发送图像。%1</translation>
    </message>
    <message>
        <source>The camera waits for a trigger. Send one, or switch the trigger mode off in the panel &quot;Camera&quot;.</source>
        <translation>相机正在等待触发。请发送触发信号，或在“相机”面板中关闭触发模式。</translation>
    </message>
    <message>
        <source>Draw the region that the camera shall send.</source>
        <translation>请绘制相机要传输的区域。</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>图像流</translation>
    </message>
    <message>
        <source>The stream is stopped. Press %1 to start it.</source>
        <translation>图像流已停止。按 %1 启动。</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The panel &quot;Stream&quot; may say why.</source>
        <translation>尚未接收到图像。“图像流”面板可能会显示原因。</translation>
    </message>
    <message>
        <source>No picture has arrived yet. The program that controls the camera may not stream.</source>
        <translation>尚未收到图像。控制相机的程序可能没有启动图像流。</translation>
    </message>
    <message>
        <source>Not corrected</source>
        <translation>未校正</translation>
    </message>
    <message>
        <source>Corrected</source>
        <translation>已校正</translation>
    </message>
</context>
<context>
    <name>WhiteBalanceCall</name>
    <message>
        <source>The camera has no white balance ratios.</source>
        <translation>相机没有白平衡系数。</translation>
    </message>
</context>
</TS>
