<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>About</name>
    <message>
        <source>VKIntensity Viewer %1</source>
        <translation>VKIntensity Viewer %1</translation>
    </message>
    <message>
        <source>Shows what is in a camera image: profiles, charts with labelled peaks, regions of interest and their statistics.</source>
        <translation>显示相机图像的内容：剖面、带峰值标注的图表、感兴趣区域及其统计数据。</translation>
    </message>
    <message>
        <source>Library VKIntensityWidget %1, Qt %2</source>
        <translation>库 VKIntensityWidget %1，Qt %2</translation>
    </message>
    <message>
        <source>Copyright © 2026 The VKIntensityWidget developers</source>
        <translation>版权所有 © 2026 The VKIntensityWidget developers</translation>
    </message>
    <message>
        <source>Free software under the MIT License; see the file LICENSE.</source>
        <translation>自由软件，采用 MIT 许可证；见文件 LICENSE。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--size needs WIDTHxHEIGHT, each from 1 to %1</source>
        <translation>--size 需要 宽x高，各为 1 到 %1</translation>
    </message>
    <message>
        <source>--view needs image, x or y</source>
        <translation>--view 需要 image、x 或 y</translation>
    </message>
    <message>
        <source>--peaks needs a number from 1 to %1</source>
        <translation>--peaks 需要 1 到 %1 之间的数</translation>
    </message>
    <message>
        <source>--palette needs gray, red, green, blue or color</source>
        <translation>--palette 需要 gray、red、green、blue 或 color</translation>
    </message>
    <message>
        <source>--wavelength needs START,WIDTH[,um|nm], START from 0 to %1, WIDTH from 1 to %2</source>
        <translation>--wavelength 需要 起点,宽度[,um|nm]，起点为 0 到 %1，宽度为 1 到 %2</translation>
    </message>
    <message>
        <source>--roi needs X,Y,WIDTH,HEIGHT in pixels from the top left</source>
        <translation>--roi 需要 X,Y,宽,高，以像素计，从左上角起</translation>
    </message>
    <message>
        <source>--screenshot needs a file name</source>
        <translation>--screenshot 需要文件名</translation>
    </message>
    <message>
        <source>unknown option %1 (see --help)</source>
        <translation>未知选项 %1（见 --help）</translation>
    </message>
    <message>
        <source>only one image can be opened</source>
        <translation>只能打开一幅图像</translation>
    </message>
    <message>
        <source>the name of the image is empty</source>
        <translation>图像名称为空</translation>
    </message>
    <message>
        <source>--size goes with --screenshot</source>
        <translation>--size 须与 --screenshot 一起使用</translation>
    </message>
    <message>
        <source>--screenshot needs an image to show</source>
        <translation>--screenshot 需要一幅图像</translation>
    </message>
    <message>
        <source>--peaks goes with --view x or --view y</source>
        <translation>--peaks 须与 --view x 或 --view y 一起使用</translation>
    </message>
    <message>
        <source>there is no display to open a window on (--screenshot needs none)</source>
        <translation>没有可供打开窗口的显示器（--screenshot 不需要）</translation>
    </message>
    <message>
        <source>--page needs the number of a page, from 1 to %1</source>
        <translation>--page 需要页码，1 到 %1</translation>
    </message>
    <message>
        <source>--regions needs a file name</source>
        <translation>--regions 需要文件名</translation>
    </message>
    <message>
        <source>--page needs an image to show</source>
        <translation>--page 需要一幅图像</translation>
    </message>
    <message>
        <source>--view, --peaks, --palette, --roi, --regions and --wavelength go with --screenshot</source>
        <translation>--view、--peaks、--palette、--roi、--regions 和 --wavelength 须与 --screenshot 一起使用</translation>
    </message>
    <message>
        <source>Usage: vkviewer [--page N] [IMAGE | FOLDER]
       vkviewer --screenshot FILE.png [OPTIONS] IMAGE | FOLDER

Shows a camera image with its intensity profiles, rulers and palette.
IMAGE is a jpg, jpeg, tif, tiff, bmp or png picture or a raw camera file; of a FOLDER
its images are shown in a gallery.

  --page N                show page N of a TIFF file with several pages, counted from 1
  --screenshot FILE.png   save the window as a picture and exit
  --size WIDTHxHEIGHT     size of that window in pixels, else 1280x800 at 96 dpi
  --view image|x|y        show the image, or its row or column as a chart
  --peaks N               label the N strongest peaks of the chart, 1 to 200
  --palette NAME          gray, red, green, blue or color
  --roi X,Y,WIDTH,HEIGHT  mark exactly these pixels, counted from the top left; can be
                          given more than once
  --regions FILE.reg      mark the regions of a DS9 region file; what is left out is told
  --wavelength START,WIDTH[,UNIT]
                          label the axis in wavelengths: that of the first pixel, 0 to
                          2000, what each pixel adds, 1 to 100, and the unit, um or nm
  --help                  show this text
  --version               show the version
</source>
        <translation>用法：vkviewer [--page N] [图像 | 文件夹]
      vkviewer --screenshot 文件.png [选项] 图像 | 文件夹

显示相机图像及其强度剖面、标尺和调色板。
图像可以是 jpg、jpeg、tif、tiff、bmp、png 图片或相机原始文件；
文件夹中的图像以图库显示。

  --page N                显示多页 TIFF 文件的第 N 页，从 1 数起
  --screenshot 文件.png   将窗口保存为图片并退出
  --size 宽x高            图片的大小，以像素计；默认在 96 dpi 下为 1280x800
  --view image|x|y        显示图像，或以图表显示其行或列
  --peaks N               标注图表中最强的 N 个峰，1 到 200
  --palette 名称          gray、red、green、blue 或 color
  --roi X,Y,宽,高         准确标记这些像素，从左上角数起；可多次给出
  --regions 文件.reg      标记 DS9 区域文件中的区域；略去的会提示
  --wavelength 起点,宽度[,单位]
                          以波长标注坐标轴：第一个像素的波长，0 到 2000；
                          每个像素增加的量，1 到 100；单位为 um 或 nm
  --help                  显示此文本
  --version               显示版本
</translation>
    </message>
</context>
<context>
    <name>CrossHairKeys</name>
    <message>
        <source>Arrows</source>
        <translation>方向键</translation>
    </message>
    <message>
        <source>Move the cross-hair</source>
        <translation>移动十字线</translation>
    </message>
    <message>
        <source>Shift+Arrows</source>
        <translation>Shift+方向键</translation>
    </message>
    <message>
        <source>Move it by 10 pixels</source>
        <translation>移动 10 个像素</translation>
    </message>
</context>
<context>
    <name>DisplaySettings</name>
    <message>
        <source>the region %1,%2,%3,%4 does not lie inside the image of %5x%6 pixels</source>
        <translation>区域 %1,%2,%3,%4 不在 %5x%6 像素的图像内</translation>
    </message>
    <message>
        <source>the axis does not take these wavelengths</source>
        <translation>坐标轴不接受这些波长</translation>
    </message>
    <message>
        <source>the chart does not take %1 peaks</source>
        <translation>图表不接受 %1 个峰</translation>
    </message>
    <message>
        <source>there is no such chart</source>
        <translation>没有此图表</translation>
    </message>
    <message>
        <source>there is no such view</source>
        <translation>没有此视图</translation>
    </message>
    <message>
        <source>the palette %1 cannot be read</source>
        <translation>无法读取调色板 %1</translation>
    </message>
</context>
<context>
    <name>EmptyFolderPage</name>
    <message>
        <source>Choose Folder...</source>
        <translation>选择文件夹...</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>&amp;Statistics of all regions</source>
        <translation>所有区域的统计(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Histogram of the image</source>
        <translation>图像的直方图(&amp;H)</translation>
    </message>
    <message>
        <source>Histogram of the selected r&amp;egion</source>
        <translation>所选区域的直方图(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Row through the cross-hair</source>
        <translation>通过十字线的行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Column through the cross-hair</source>
        <translation>通过十字线的列(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Peaks of this row</source>
        <translation>该行的峰(&amp;P)</translation>
    </message>
    <message>
        <source>Pea&amp;ks of this column</source>
        <translation>该列的峰(&amp;K)</translation>
    </message>
    <message>
        <source>Export Numbers</source>
        <translation>导出数值</translation>
    </message>
    <message>
        <source>Copy Numbers</source>
        <translation>复制数值</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Format of the file</source>
        <translation>文件格式</translation>
    </message>
    <message>
        <source>CS&amp;V, a table</source>
        <translation>CSV 表格(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;JSON, for programs</source>
        <translation>JSON，供程序使用(&amp;J)</translation>
    </message>
    <message>
        <source>Sa&amp;ve...</source>
        <translation>保存(&amp;A)...</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>复制(&amp;O)</translation>
    </message>
    <message>
        <source>The numbers as a table that can be pasted into a spreadsheet</source>
        <translation>以表格形式复制数值，可粘贴到电子表格中</translation>
    </message>
</context>
<context>
    <name>FileSaver</name>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1：无法写入：%2</translation>
    </message>
    <message>
        <source>%1: this is the image that is shown. Choose another name.</source>
        <translation>%1：这是正在显示的图像。请选择其他名称。</translation>
    </message>
</context>
<context>
    <name>GalleryDelegate</name>
    <message>
        <source>Large image</source>
        <translation>大图像</translation>
    </message>
</context>
<context>
    <name>GalleryModel</name>
    <message>
        <source>Too large for a small picture; it can be opened.</source>
        <translation>图像过大，不显示缩略图；可以打开。</translation>
    </message>
</context>
<context>
    <name>GalleryPage</name>
    <message>
        <source>Choose Folder...</source>
        <translation>选择文件夹...</translation>
    </message>
    <message>
        <source>1 image</source>
        <translation>1 幅图像</translation>
    </message>
    <message>
        <source>%1 images</source>
        <translation>%1 幅图像</translation>
    </message>
    <message>
        <source>No images in this folder</source>
        <translation>此文件夹中没有图像</translation>
    </message>
    <message>
        <source>Images end in %1.</source>
        <translation>图像的后缀为 %1。</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <translation>无法读取此文件夹</translation>
    </message>
    <message>
        <source>It is missing, or you have no permission to read it.</source>
        <translation>它不存在，或您没有读取权限。</translation>
    </message>
    <message>
        <source>Progress of the small pictures</source>
        <translation>缩略图进度</translation>
    </message>
    <message>
        <source>Images of the folder</source>
        <translation>文件夹中的图像</translation>
    </message>
</context>
<context>
    <name>HelpOverlay</name>
    <message>
        <source>Click the image</source>
        <translation>单击图像</translation>
    </message>
    <message>
        <source>Move the cross-hair</source>
        <translation>移动十字线</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>Zoom the image</source>
        <translation>缩放图像</translation>
    </message>
    <message>
        <source>Drag a profile</source>
        <translation>拖动剖面图</translation>
    </message>
    <message>
        <source>Scroll the zoomed image</source>
        <translation>滚动放大的图像</translation>
    </message>
    <message>
        <source>Drag a region</source>
        <translation>拖动区域</translation>
    </message>
    <message>
        <source>Move the region of interest</source>
        <translation>移动感兴趣区域</translation>
    </message>
    <message>
        <source>Drag a corner</source>
        <translation>拖动角点</translation>
    </message>
    <message>
        <source>Resize the region of interest</source>
        <translation>调整感兴趣区域大小</translation>
    </message>
    <message>
        <source>Click the chart</source>
        <translation>单击图表</translation>
    </message>
    <message>
        <source>Read a sample of the profile</source>
        <translation>读取剖面上的值</translation>
    </message>
    <message>
        <source>Click a title bar</source>
        <translation>单击标题栏</translation>
    </message>
    <message>
        <source>Fold a part of the panel</source>
        <translation>折叠面板的一部分</translation>
    </message>
    <message>
        <source>Drop a file or folder</source>
        <translation>拖入文件或文件夹</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Mouse and keys</source>
        <translation>鼠标与按键</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>鼠标</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Any key or a click closes this.</source>
        <translation>按任意键或单击即可关闭。</translation>
    </message>
    <message>
        <source>Double click in the gallery</source>
        <translation>在图库中双击</translation>
    </message>
    <message>
        <source>Open the image</source>
        <translation>打开图像</translation>
    </message>
    <message>
        <source>Click a region</source>
        <translation>单击区域</translation>
    </message>
    <message>
        <source>Select the region of interest</source>
        <translation>选择感兴趣区域</translation>
    </message>
</context>
<context>
    <name>ImageCommands</name>
    <message>
        <source>The palette %1 cannot be read.</source>
        <translation>无法读取调色板 %1。</translation>
    </message>
</context>
<context>
    <name>ImageFiles</name>
    <message>
        <source>Images (%1)</source>
        <translation>图像 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>ImageReport</name>
    <message>
        <source>Region</source>
        <translation>区域</translation>
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
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>像素数</translation>
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
        <translation>平均值</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>Signal to Noise</source>
        <translation>信噪比</translation>
    </message>
    <message>
        <source>Cross-hair: X %1, Y %2, value %3</source>
        <translation>十字线：X %1，Y %2，值 %3</translation>
    </message>
    <message>
        <source>Wavelengths: %1 %3 at pixel 0, %2 %3 a pixel</source>
        <translation>波长：像素 0 处 %1 %3，每像素 %2 %3</translation>
    </message>
    <message>
        <source>X and Y count from 0 at the top left pixel.</source>
        <translation>X 和 Y 从左上角像素以 0 开始计数。</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>ROI %1</source>
        <translation>ROI %1</translation>
    </message>
</context>
<context>
    <name>ImageTexts</name>
    <message>
        <source>raw camera file</source>
        <translation>相机原始文件</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>JPEG 图像</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>TIFF 图像</translation>
    </message>
    <message>
        <source>%1 image</source>
        <translation>%1 图像</translation>
    </message>
    <message>
        <source>The file name has no suffix. Images end in %1.</source>
        <translation>文件名没有后缀。图像的后缀为 %1。</translation>
    </message>
    <message>
        <source>Files of the kind &quot;%1&quot; are not known. Images end in %2.</source>
        <translation>不支持“%1”类型的文件。图像的后缀为 %2。</translation>
    </message>
    <message>
        <source>You have no permission to read this file.</source>
        <translation>您没有读取此文件的权限。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>The file cannot be read as a %1: it is damaged, or of another kind than its suffix says.</source>
        <translation>无法将文件作为%1读取：文件已损坏，或类型与后缀不符。</translation>
    </message>
    <message>
        <source>color as gray</source>
        <translation>彩色显示为灰度</translation>
    </message>
    <message>
        <source>alpha dropped</source>
        <translation>已去除 Alpha</translation>
    </message>
    <message>
        <source>floating-point samples as whole numbers</source>
        <translation>浮点值显示为整数</translation>
    </message>
    <message>
        <source>signed samples as whole numbers</source>
        <translation>有符号值显示为整数</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 位</translation>
    </message>
    <message>
        <source>There is no file of this name.</source>
        <translation>没有此名称的文件。</translation>
    </message>
    <message>
        <source>This is a folder, not an image file.</source>
        <translation>这是文件夹，不是图像文件。</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>这不是普通文件。</translation>
    </message>
    <message>
        <source>The file may be sound, but its kind is not supported: its number of bits a sample or its compression, for example.</source>
        <translation>文件可能完好，但不支持其类型，例如其每样本位数或压缩方式。</translation>
    </message>
    <message>
        <source>The image holds no pixels.</source>
        <translation>图像不含像素。</translation>
    </message>
    <message>
        <source>The image is larger than can be loaded, or than the memory that is free.</source>
        <translation>图像超出可加载的大小或可用内存。</translation>
    </message>
    <message>
        <source>The image has more pixels than are allowed.</source>
        <translation>图像的像素数超出允许的范围。</translation>
    </message>
    <message>
        <source>The file has no such page.</source>
        <translation>文件没有此页。</translation>
    </message>
    <message>
        <source>The image cannot be shown faithfully: it has values that are negative, fractional or larger than 4294967295.</source>
        <translation>无法如实显示图像：其中有负值、小数或大于 4294967295 的值。</translation>
    </message>
    <message>
        <source>The image cannot be shown faithfully: only 8, 16 or 32 bits a sample can be.</source>
        <translation>无法如实显示图像：仅支持每样本 8、16 或 32 位。</translation>
    </message>
    <message>
        <source>The image cannot be shown faithfully: only one channel or three can be, with or without alpha.</source>
        <translation>无法如实显示图像：仅支持一个或三个通道，可带或不带 Alpha。</translation>
    </message>
    <message>
        <source>The file cannot be shown.</source>
        <translation>无法显示此文件。</translation>
    </message>
</context>
<context>
    <name>LoadProblemPage</name>
    <message>
        <source>This file cannot be shown</source>
        <translation>无法显示此文件</translation>
    </message>
</context>
<context>
    <name>NumberCommands</name>
    <message>
        <source>The image has changed, and these numbers are gone.</source>
        <translation>图像已更改，这些数值已不存在。</translation>
    </message>
    <message>
        <source>There is not enough memory for the numbers.</source>
        <translation>内存不足，无法生成数值。</translation>
    </message>
    <message>
        <source>Export Numbers</source>
        <translation>导出数值</translation>
    </message>
    <message>
        <source>JSON file (*.json)</source>
        <translation>JSON 文件 (*.json)</translation>
    </message>
    <message>
        <source>CSV table (*.csv)</source>
        <translation>CSV 表格 (*.csv)</translation>
    </message>
    <message>
        <source>The numbers are on the clipboard.</source>
        <translation>数值已复制到剪贴板。</translation>
    </message>
    <message>
        <source>The value %1 is on the clipboard.</source>
        <translation>值 %1 已复制到剪贴板。</translation>
    </message>
</context>
<context>
    <name>PageControl</name>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>第</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>页码</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>页，共 %1 页</translation>
    </message>
</context>
<context>
    <name>PictureCommands</name>
    <message>
        <source>The window is on the clipboard.</source>
        <translation>窗口已复制到剪贴板。</translation>
    </message>
    <message>
        <source>The canvas is on the clipboard.</source>
        <translation>画布已复制到剪贴板。</translation>
    </message>
    <message>
        <source>Save Screenshot</source>
        <translation>保存截图</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>Save Visible Part</source>
        <translation>保存可见部分</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>内存不足，无法生成图像。</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG 图像 (*.png)</translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message>
        <source>The page is printed.</source>
        <translation>页面已打印。</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>The printer or its file takes no pages.</source>
        <translation>打印机或其输出文件无法接收页面。</translation>
    </message>
    <message>
        <source>No Printer: Save as PDF</source>
        <translation>没有打印机：保存为 PDF</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>PDF 文档 (*.pdf)</translation>
    </message>
</context>
<context>
    <name>RegionCommands</name>
    <message>
        <source>DS9 regions (*.reg)</source>
        <translation>DS9 区域 (*.reg)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销%1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做%1(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>New Region</source>
        <translation>新区域</translation>
    </message>
    <message>
        <source>ROI %1</source>
        <translation>ROI %1</translation>
    </message>
    <message>
        <source>Save Regions</source>
        <translation>保存区域</translation>
    </message>
    <message>
        <source>Load Regions</source>
        <translation>加载区域</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Not all of %1 is loaded. Left out: %2.</source>
        <translation>%1 未全部加载。略去：%2。</translation>
    </message>
</context>
<context>
    <name>RegionDialog</name>
    <message>
        <source>&amp;X:</source>
        <translation>&amp;X:</translation>
    </message>
    <message>
        <source>&amp;Y:</source>
        <translation>&amp;Y:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高(&amp;H):</translation>
    </message>
    <message>
        <source>Pixels of the image (%1 × %2), counted from 0 at its top left.
The panel counts Y from the bottom row.</source>
        <translation>图像像素（%1 × %2），从左上角的 0 数起。
面板的 Y 从最下一行数起。</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>X + width is %1, the image is %2 pixels wide.</source>
        <translation>X + 宽为 %1，图像宽 %2 像素。</translation>
    </message>
    <message>
        <source>Y + height is %1, the image is %2 pixels high.</source>
        <translation>Y + 高为 %1，图像高 %2 像素。</translation>
    </message>
</context>
<context>
    <name>RegionFile</name>
    <message>
        <source>it is not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>it is larger than 16 MiB</source>
        <translation>大于 16 MiB</translation>
    </message>
    <message>
        <source>shapes other than upright boxes (%1)</source>
        <translation>非正置矩形的形状（%1）</translation>
    </message>
    <message>
        <source>shapes in other than image coordinates (%1)</source>
        <translation>非图像坐标的形状（%1）</translation>
    </message>
    <message>
        <source>boxes not inside the image (%1)</source>
        <translation>不在图像内的矩形（%1）</translation>
    </message>
    <message>
        <source>lines that cannot be read (%1)</source>
        <translation>无法读取的行（%1）</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1：无法读取：%2</translation>
    </message>
    <message>
        <source>%1: there is no region in it</source>
        <translation>%1：其中没有区域</translation>
    </message>
    <message>
        <source>%1: there is no region in it that can be used: %2</source>
        <translation>%1：其中没有可用的区域：%2</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1：无法写入：%2</translation>
    </message>
</context>
<context>
    <name>RegionHistory</name>
    <message>
        <source>Add Region</source>
        <translation>添加区域</translation>
    </message>
    <message>
        <source>Delete Region</source>
        <translation>删除区域</translation>
    </message>
    <message>
        <source>Move Region</source>
        <translation>移动区域</translation>
    </message>
    <message>
        <source>Resize Region</source>
        <translation>调整区域大小</translation>
    </message>
    <message>
        <source>Change Regions</source>
        <translation>更改区域</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>the window is at least %1x%2 pixels</source>
        <translation>窗口至少为 %1x%2 像素</translation>
    </message>
    <message>
        <source>%1: left out: %2</source>
        <translation>%1：略去：%2</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation>加载进度</translation>
    </message>
    <message>
        <source>Time that the image took to load</source>
        <translation>图像加载用时</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>正在加载 %1...</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Pixel under the pointer and its value</source>
        <translation>指针下的像素及其值</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>The next image opens with palette, axes, view, peaks and regions of this one (View &gt; Keep Settings)</source>
        <translation>下一幅图像沿用本图像的调色板、坐标轴、视图、峰和区域（视图 &gt; 保留设置）</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>已保存为 %1</translation>
    </message>
    <message>
        <source>Settings kept</source>
        <translation>保留设置</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>User Guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>The user guide is not there: it belongs into the folder %1.</source>
        <translation>找不到用户指南：它应位于文件夹 %1 中。</translation>
    </message>
</context>
<context>
    <name>ViewerMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Open &amp;Folder...</source>
        <translation>打开文件夹(&amp;F)...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Gallery</source>
        <translation>图库(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Next Image</source>
        <translation>下一幅图像(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Image</source>
        <translation>上一幅图像(&amp;P)</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>重新加载(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save Screenshot...</source>
        <translation>保存截图(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Copy Window</source>
        <translation>复制窗口(&amp;C)</translation>
    </message>
    <message>
        <source>Copy C&amp;anvas</source>
        <translation>复制画布(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>调色板(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>全屏(&amp;F)</translation>
    </message>
    <message>
        <source>I&amp;mage</source>
        <translation>图像(&amp;M)</translation>
    </message>
    <message>
        <source>2D Chart of the &amp;Row</source>
        <translation>行的 2D 图表(&amp;R)</translation>
    </message>
    <message>
        <source>2D Chart of the &amp;Column</source>
        <translation>列的 2D 图表(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Gray</source>
        <translation>灰色(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translation>红色(&amp;R)</translation>
    </message>
    <message>
        <source>Gr&amp;een</source>
        <translation>绿色(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>蓝色(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Color</source>
        <translation>彩色(&amp;C)</translation>
    </message>
    <message>
        <source>Gray palette</source>
        <translation>灰色调色板</translation>
    </message>
    <message>
        <source>Red palette</source>
        <translation>红色调色板</translation>
    </message>
    <message>
        <source>Green palette</source>
        <translation>绿色调色板</translation>
    </message>
    <message>
        <source>Blue palette</source>
        <translation>蓝色调色板</translation>
    </message>
    <message>
        <source>Color palette</source>
        <translation>彩色调色板</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Mouse and Keys</source>
        <translation>鼠标与按键(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>清除(&amp;C)</translation>
    </message>
    <message>
        <source>Leave the full screen</source>
        <translation>退出全屏</translation>
    </message>
    <message>
        <source>&amp;Delete Region</source>
        <translation>删除区域(&amp;D)</translation>
    </message>
    <message>
        <source>Next P&amp;age</source>
        <translation>下一页(&amp;A)</translation>
    </message>
    <message>
        <source>Previo&amp;us Page</source>
        <translation>上一页(&amp;U)</translation>
    </message>
    <message>
        <source>Save P&amp;icture...</source>
        <translation>保存图像(&amp;I)...</translation>
    </message>
    <message>
        <source>Save &amp;Visible Part...</source>
        <translation>保存可见部分(&amp;V)...</translation>
    </message>
    <message>
        <source>&amp;Export Numbers...</source>
        <translation>导出数值(&amp;E)...</translation>
    </message>
    <message>
        <source>Prin&amp;t...</source>
        <translation>打印(&amp;T)...</translation>
    </message>
    <message>
        <source>Copy Window or Value</source>
        <translation>复制窗口或像素值</translation>
    </message>
    <message>
        <source>Copy &amp;Numbers...</source>
        <translation>复制数值表(&amp;N)...</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>复制像素值(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Regions</source>
        <translation>区域(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Add Region</source>
        <translation>添加区域(&amp;A)</translation>
    </message>
    <message>
        <source>Add Region by &amp;Numbers...</source>
        <translation>按数值添加区域(&amp;N)...</translation>
    </message>
    <message>
        <source>Add by Numbers</source>
        <translation>按数值添加</translation>
    </message>
    <message>
        <source>&amp;Edit Numbers...</source>
        <translation>编辑数值(&amp;E)...</translation>
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
        <source>&amp;Save Regions...</source>
        <translation>保存区域(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Load Regions...</source>
        <translation>加载区域(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Whole Image</source>
        <translation>整幅图像(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Keep Settings</source>
        <translation>保留设置(&amp;K)</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>用户指南(&amp;G)</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>VKIntensity Viewer</source>
        <translation>VKIntensity Viewer</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>打开图像</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>No image</source>
        <translation>没有图像</translation>
    </message>
    <message>
        <source>This is the last image of the folder.</source>
        <translation>这是文件夹中的最后一幅图像。</translation>
    </message>
    <message>
        <source>This is the first image of the folder.</source>
        <translation>这是文件夹中的第一幅图像。</translation>
    </message>
    <message>
        <source>About VKIntensity Viewer</source>
        <translation>关于 VKIntensity Viewer</translation>
    </message>
    <message>
        <source>Not all is as before: %1.</source>
        <translation>并非一切如前：%1。</translation>
    </message>
    <message>
        <source>only an image has controls to set</source>
        <translation>只有图像才有可设置的控件</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Open Image...</source>
        <translation>打开图像...</translation>
    </message>
    <message>
        <source>Drop a camera image here</source>
        <translation>将相机图像拖到此处</translation>
    </message>
    <message>
        <source>JPEG, TIFF, BMP, PNG, or a raw camera file</source>
        <translation>JPEG、TIFF、BMP、PNG 或相机原始文件</translation>
    </message>
</context>
<context>
    <name>WidgetAccess</name>
    <message>
        <source>Return to the gallery</source>
        <translation>返回图库</translation>
    </message>
    <message>
        <source>Fold the display preferences</source>
        <translation>折叠显示设置</translation>
    </message>
    <message>
        <source>Axis of the chart</source>
        <translation>图表的轴</translation>
    </message>
    <message>
        <source>Number of peak labels</source>
        <translation>峰值标注数</translation>
    </message>
    <message>
        <source>Gray palette</source>
        <translation>灰色调色板</translation>
    </message>
    <message>
        <source>Red palette</source>
        <translation>红色调色板</translation>
    </message>
    <message>
        <source>Green palette</source>
        <translation>绿色调色板</translation>
    </message>
    <message>
        <source>Blue palette</source>
        <translation>蓝色调色板</translation>
    </message>
    <message>
        <source>Color palette</source>
        <translation>彩色调色板</translation>
    </message>
    <message>
        <source>Label of the horizontal axis</source>
        <translation>水平轴的标签</translation>
    </message>
    <message>
        <source>Unit of the wavelength</source>
        <translation>波长单位</translation>
    </message>
    <message>
        <source>Wavelength of the first pixel</source>
        <translation>第一个像素的波长</translation>
    </message>
    <message>
        <source>Wavelength of one pixel</source>
        <translation>每个像素的波长</translation>
    </message>
    <message>
        <source>Fold the data histogram</source>
        <translation>折叠数据直方图</translation>
    </message>
    <message>
        <source>Region of interest</source>
        <translation>感兴趣区域</translation>
    </message>
    <message>
        <source>Add a region of interest</source>
        <translation>添加感兴趣区域</translation>
    </message>
    <message>
        <source>Delete the region of interest</source>
        <translation>删除感兴趣区域</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
    </message>
</context>
</TS>
