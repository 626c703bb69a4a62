<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CVKDataHistogram</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>直方图</translation>
    </message>
    <message>
        <source>ROI Analysis</source>
        <translation>ROI 分析</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Total Counts</source>
        <translation>像素总数</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
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
        <source>Standard Deviation</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>Signal To Noise</source>
        <translation>信噪比</translation>
    </message>
    <message>
        <source>None Select</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
</context>
<context>
    <name>CVKDisplayPreferences</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>2D</source>
        <translation>2D</translation>
    </message>
    <message>
        <source>Peak Labels</source>
        <translation>峰值标注</translation>
    </message>
    <message>
        <source>Number of peak labels:</source>
        <translation>峰值标注数：</translation>
    </message>
    <message>
        <source>10</source>
        <translation>10</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>Axis Units</source>
        <translation>坐标轴单位</translation>
    </message>
    <message>
        <source>X-Axis Label:</source>
        <translation>X 轴标签：</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>X Start:</source>
        <translation>X 起点：</translation>
    </message>
    <message>
        <source>100</source>
        <translation>100</translation>
    </message>
    <message>
        <source>Pixel Width:</source>
        <translation>像素宽度：</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>X-Axis</source>
        <translation>X 轴</translation>
    </message>
    <message>
        <source>Y-Axis</source>
        <translation>Y 轴</translation>
    </message>
    <message>
        <source>Pixels Number</source>
        <translation>像素序号</translation>
    </message>
    <message>
        <source>Wavelength</source>
        <translation>波长</translation>
    </message>
    <message>
        <source>um</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>nm</source>
        <translation>nm</translation>
    </message>
</context>
<context>
    <name>CVKIntensityCtrlWidget</name>
    <message>
        <source>Return</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Display Preferences</source>
        <translation>显示设置</translation>
    </message>
    <message>
        <source>Data Histogram</source>
        <translation>数据直方图</translation>
    </message>
</context>
<context>
    <name>CVKIntensityMdiWidget</name>
    <message>
        <source>Gray</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>Pixel Number</source>
        <translation>像素序号</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>X:%1  Y:%2
Data:%3</source>
        <translation>X:%1  Y:%2
数值:%3</translation>
    </message>
</context>
<context>
    <name>RectangleItems</name>
    <message>
        <source>ROI</source>
        <translation>ROI</translation>
    </message>
</context>
</TS>
