<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Gallery</name>
    <message>
        <source> px</source>
        <translation> 像素</translation>
    </message>
</context>
<context>
    <name>Gallery::Appearance</name>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
</context>
<context>
    <name>Gallery::ButtonsPage</name>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Flush</source>
        <translation>冲洗</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>A push button that turns its text, and a tool button that is sound after its menu.</source>
        <translation>可以旋转文字的按钮，以及关闭菜单后恢复正常外观的工具按钮。</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息列表</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>显示为</translation>
    </message>
    <message>
        <source>Tool tip</source>
        <translation>工具提示</translation>
    </message>
    <message>
        <source>Turned</source>
        <translation>旋转文字</translation>
    </message>
    <message>
        <source>First one clockwise</source>
        <translation>第一个顺时针</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>工具按钮</translation>
    </message>
    <message>
        <source>Pump</source>
        <translation>水泵</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>立即弹出</translation>
    </message>
    <message>
        <source>By its arrow</source>
        <translation>点击箭头</translation>
    </message>
    <message>
        <source>After a delay</source>
        <translation>延时弹出</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>指针在其上</translation>
    </message>
    <message>
        <source>Not hovered</source>
        <translation>指针不在其上</translation>
    </message>
</context>
<context>
    <name>Gallery::ColorDialogPage</name>
    <message>
        <source>Custom colours are kept beside the program, in
%1/customSettingCfg.info</source>
        <translation>自定义颜色保存在程序所在目录：
%1/customSettingCfg.info</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Colour dialog</source>
        <translation>颜色对话框</translation>
    </message>
    <message>
        <source>A chooser whose custom colours outlive the program, in one call.</source>
        <translation>一次调用即可选择颜色，自定义颜色在程序退出后仍然保留。</translation>
    </message>
    <message>
        <source>Drop a colour here</source>
        <translation>将颜色拖放到这里</translation>
    </message>
    <message>
        <source>Chosen colour</source>
        <translation>所选颜色</translation>
    </message>
    <message>
        <source>the chosen one</source>
        <translation>所选颜色</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>已选</translation>
    </message>
    <message>
        <source>Begin with</source>
        <translation>初始颜色</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Open modeless</source>
        <translation>以非模态打开</translation>
    </message>
    <message>
        <source>To drag its swatch to the one above</source>
        <translation>以便将其色块拖到上方的色块</translation>
    </message>
    <message>
        <source>Picture of the colour dialog</source>
        <translation>颜色对话框的图片</translation>
    </message>
    <message>
        <source>Not opened yet</source>
        <translation>尚未打开</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>结果：%1</translation>
    </message>
    <message>
        <source>Result: an invalid colour</source>
        <translation>结果：无效的颜色</translation>
    </message>
</context>
<context>
    <name>Gallery::ControlsPage</name>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
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
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>部分选中</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>选中</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>已勾选</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>摄氏度</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>华氏度</translation>
    </message>
    <message>
        <source>Kelvin</source>
        <translation>开尔文</translation>
    </message>
    <message>
        <source>Tank 2</source>
        <translation>2 号水箱</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Sensor %1</source>
        <translation>传感器 %1</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>基本控件</translation>
    </message>
    <message>
        <source>What the theme makes of Qt&apos;s own widgets.</source>
        <translation>主题应用于 Qt 自带控件的效果。</translation>
    </message>
</context>
<context>
    <name>Gallery::DialogsPage</name>
    <message>
        <source>Dialogs</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Dragged by the title, resized by the edges, with a border of their own.</source>
        <translation>拖动标题栏可移动，拖动边缘可调整大小，并自绘边框。</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Bottom bar</source>
        <translation>底栏</translation>
    </message>
    <message>
        <source>Movable</source>
        <translation>可移动</translation>
    </message>
    <message>
        <source>by outline</source>
        <translation>仅显示轮廓</translation>
    </message>
    <message>
        <source>Resizable</source>
        <translation>可调整大小</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Separator lines</source>
        <translation>分隔线</translation>
    </message>
    <message>
        <source>Resize border</source>
        <translation>缩放边框</translation>
    </message>
    <message>
        <source>Drag zone</source>
        <translation>拖动区域</translation>
    </message>
    <message>
        <source>Picture of the dialog</source>
        <translation>对话框的图片</translation>
    </message>
    <message>
        <source>Not opened yet</source>
        <translation>尚未打开</translation>
    </message>
    <message>
        <source>Open modal</source>
        <translation>以模态打开</translation>
    </message>
    <message>
        <source>Open modeless</source>
        <translation>以非模态打开</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>已接受</translation>
    </message>
    <message>
        <source>Rejected</source>
        <translation>已拒绝</translation>
    </message>
</context>
<context>
    <name>Gallery::Escapes</name>
    <message>
        <source>Parent button</source>
        <translation>“上级目录”按钮</translation>
    </message>
    <message>
        <source>Path with ../</source>
        <translation>含 ../ 的路径</translation>
    </message>
    <message>
        <source>Full path</source>
        <translation>完整路径</translation>
    </message>
    <message>
        <source>Full path, /../</source>
        <translation>含 /../ 的完整路径</translation>
    </message>
    <message>
        <source>Tilde</source>
        <translation>波浪号</translation>
    </message>
    <message>
        <source>Quoted path</source>
        <translation>带引号的路径</translation>
    </message>
    <message>
        <source>Similar name</source>
        <translation>相似的名称</translation>
    </message>
    <message>
        <source>Symbolic link</source>
        <translation>符号链接</translation>
    </message>
    <message>
        <source>Start outside</source>
        <translation>起始于外部</translation>
    </message>
    <message>
        <source>Missing limit</source>
        <translation>限定文件夹不存在</translation>
    </message>
</context>
<context>
    <name>Gallery::FileDialogsPage</name>
    <message>
        <source>Not opened yet</source>
        <translation>尚未打开</translation>
    </message>
    <message>
        <source>File dialogs</source>
        <translation>文件对话框</translation>
    </message>
    <message>
        <source>Files below one folder, or two: what keeps the user there, and what does not.</source>
        <translation>只能选择一个或两个文件夹中的文件：哪些途径能离开，哪些不能。</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Limited to the recipes</source>
        <translation>限定于配方文件夹</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>The stick, too</source>
        <translation>也允许 U 盘</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>严格</translation>
    </message>
    <message>
        <source>Frameless</source>
        <translation>无边框</translation>
    </message>
    <message>
        <source>Open frameless</source>
        <translation>以无边框打开</translation>
    </message>
    <message>
        <source>This library keeps FramelessFileDialog to itself.</source>
        <translation>此库未导出 FramelessFileDialog。</translation>
    </message>
    <message>
        <source>Ways out</source>
        <translation>离开的途径</translation>
    </message>
    <message>
        <source>Way out</source>
        <translation>途径</translation>
    </message>
    <message>
        <source>As it comes</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Recipes (*.rcp);;All files (*)</source>
        <translation>配方 (*.rcp);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Typed: %1</source>
        <translation>输入：%1</translation>
    </message>
    <message>
        <source>gets out</source>
        <translation>可离开</translation>
    </message>
    <message>
        <source>held</source>
        <translation>被阻止</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>已选择：%1</translation>
    </message>
</context>
<context>
    <name>Gallery::InputPage</name>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Input fields</source>
        <translation>输入框</translation>
    </message>
    <message>
        <source>An editor for IPv4 addresses, and a line edit that tells when the user leaves it.</source>
        <translation>IPv4 地址编辑框，以及在用户离开时发出通知的单行编辑框。</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4 地址</translation>
    </message>
    <message>
        <source>addressChanged: %1</source>
        <translation>addressChanged：%1</translation>
    </message>
    <message>
        <source>Any address</source>
        <translation>允许任意地址</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Acceptable</source>
        <translation>可接受</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>Set text</source>
        <translation>设置文字</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>获取焦点</translation>
    </message>
    <message>
        <source>Modified?</source>
        <translation>已修改？</translation>
    </message>
    <message>
        <source>Line edit that tells</source>
        <translation>离开时通知的编辑框</translation>
    </message>
    <message>
        <source>Enter and leave</source>
        <translation>进入后再离开</translation>
    </message>
    <message>
        <source>signal_focusOut, selected: %1</source>
        <translation>signal_focusOut，选中：%1</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>The address stays: %1</source>
        <translation>地址未变：%1</translation>
    </message>
    <message>
        <source>isModified: %1</source>
        <translation>isModified：%1</translation>
    </message>
</context>
<context>
    <name>Gallery::Language</name>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
</context>
<context>
    <name>Gallery::MainWindow</name>
    <message>
        <source>Right to left</source>
        <translation>从右到左</translation>
    </message>
    <message>
        <source>Tarn widgets gallery</source>
        <translation>Tarn 控件展示</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>The theme of the whole application</source>
        <translation>整个应用程序的主题</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>The language of the whole application</source>
        <translation>整个应用程序的语言</translation>
    </message>
</context>
<context>
    <name>Gallery::MessageBoxPage</name>
    <message>
        <source>Two of one&apos;s own</source>
        <translation>两个自定义按钮</translation>
    </message>
    <message>
        <source>Pump 4</source>
        <translation>4 号水泵</translation>
    </message>
    <message>
        <source>The pump delivers &lt;b&gt;0.3 bar&lt;/b&gt;, which is &lt;i&gt;below&lt;/i&gt; the limit.</source>
        <translation>水泵压力为 &lt;b&gt;0.3 巴&lt;/b&gt;，&lt;i&gt;低于&lt;/i&gt;下限。</translation>
    </message>
    <message>
        <source>The pump has been running dry for eleven minutes. Its bearings are warm, the pressure falls, and the tank behind it will be empty within the hour. Switch it off now?</source>
        <translation>水泵已经空转了十一分钟。轴承发热，压力下降，后面的水箱将在一小时内排空。要现在关闭水泵吗？</translation>
    </message>
    <message>
        <source>Switch the pump off?</source>
        <translation>要关闭水泵吗？</translation>
    </message>
    <message>
        <source>The tank behind it will be empty within an hour.</source>
        <translation>后面的水箱将在一小时内排空。</translation>
    </message>
    <message>
        <source>10:42 pressure 0.3 bar
10:41 pressure 0.9 bar
10:40 pressure 2.1 bar</source>
        <translation>10:42 压力 0.3 巴
10:41 压力 0.9 巴
10:40 压力 2.1 巴</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>不再询问</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>关闭水泵</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>消息框</translation>
    </message>
    <message>
        <source>QMessageBox in a frameless dialog: change the class name, and code moves over.</source>
        <translation>无边框对话框形式的 QMessageBox：更改类名即可迁移代码。</translation>
    </message>
    <message>
        <source>Informative text</source>
        <translation>补充说明</translation>
    </message>
    <message>
        <source>Check box</source>
        <translation>复选框</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>No close button</source>
        <translation>无关闭按钮</translation>
    </message>
    <message>
        <source>Message box</source>
        <translation>消息框</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>纯文本</translation>
    </message>
    <message>
        <source>Rich</source>
        <translation>富文本</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>长文本</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Picture of the message box</source>
        <translation>消息框的图片</translation>
    </message>
    <message>
        <source>Not opened yet</source>
        <translation>尚未打开</translation>
    </message>
    <message>
        <source>Clicked: %1</source>
        <translation>点击了：%1</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>结果：%1</translation>
    </message>
</context>
<context>
    <name>Gallery::Options</name>
    <message>
        <source>no page &apos;%1&apos;; there are: %2</source>
        <translation>没有页面“%1”；可用的页面：%2</translation>
    </message>
    <message>
        <source>the themes are not installed</source>
        <translation>主题未安装</translation>
    </message>
    <message>
        <source>Show the page &lt;id&gt; first.</source>
        <translation>首先显示页面 &lt;id&gt;。</translation>
    </message>
    <message>
        <source>id</source>
        <translation>id</translation>
    </message>
    <message>
        <source>Use the theme &lt;name&gt;: %1.</source>
        <translation>使用主题 &lt;name&gt;：%1。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>name</translation>
    </message>
    <message>
        <source>language</source>
        <translation>language</translation>
    </message>
    <message>
        <source>Draw all pages in all themes, or those chosen, into PNG files in &lt;directory&gt;, and end. Needs no display.</source>
        <translation>将所有主题下的所有页面，或指定的页面，绘制为 &lt;directory&gt; 中的 PNG 文件，然后退出。无需显示器。</translation>
    </message>
    <message>
        <source>directory</source>
        <translation>directory</translation>
    </message>
    <message>
        <source>Shows the widgets of the tarnwidgets library.</source>
        <translation>展示 tarnwidgets 库中的控件。</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>意外的参数“%1”</translation>
    </message>
    <message>
        <source>no theme &apos;%1&apos;; there are: %2</source>
        <translation>没有主题“%1”；可用的主题：%2</translation>
    </message>
    <message>
        <source>Show texts in &lt;language&gt;, for example en or zh_CN.</source>
        <translation>以 &lt;language&gt; 显示文字，例如 en 或 zh_CN。</translation>
    </message>
</context>
<context>
    <name>Gallery::Pictures</name>
    <message>
        <source>%1 pictures in %2</source>
        <translation>%1 张图片，位于 %2</translation>
    </message>
    <message>
        <source>Cannot make the directory %1</source>
        <translation>无法创建目录 %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>无法写入 %1</translation>
    </message>
</context>
<context>
    <name>Gallery::SampleDialog</name>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Sound an alarm</source>
        <translation>发出警报</translation>
    </message>
    <message>
        <source>Pump settings</source>
        <translation>水泵设置</translation>
    </message>
    <message>
        <source>Pump 4</source>
        <translation>4 号水泵</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>液位</translation>
    </message>
</context>
<context>
    <name>Gallery::SeparatorsPage</name>
    <message>
        <source>%1 px</source>
        <translation>%1 像素</translation>
    </message>
    <message>
        <source>The theme&apos;s rule, as in dialogs</source>
        <translation>主题的规则，与对话框中相同</translation>
    </message>
    <message>
        <source>A rule of the application</source>
        <translation>应用程序的规则</translation>
    </message>
    <message>
        <source>No rule: horizontal lines are not seen</source>
        <translation>没有规则：看不到水平线</translation>
    </message>
    <message>
        <source>Separator lines</source>
        <translation>分隔线</translation>
    </message>
    <message>
        <source>Thin lines in all widths, painted by a rule for a property of the caller&apos;s choice.</source>
        <translation>各种宽度的细线，由调用者选定属性的样式规则绘制。</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>所选</translation>
    </message>
    <message>
        <source>Chosen width</source>
        <translation>所选宽度</translation>
    </message>
</context>
<context>
    <name>Gallery::StyleSheetPage</name>
    <message>
        <source>Which file?</source>
        <translation>请指定文件。</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>没有文件 %1。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>%1 may not be read.</source>
        <translation>没有读取 %1 的权限。</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 为空。</translation>
    </message>
    <message>
        <source>Not applied yet.</source>
        <translation>尚未应用。</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>样式表</translation>
    </message>
    <message>
        <source>Rules from a file, or typed here, restyle the whole application.</source>
        <translation>从文件加载或在此输入的规则会改变整个应用程序的外观。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>浏览…</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Apply while typing</source>
        <translation>输入时应用</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Load a style sheet</source>
        <translation>加载样式表</translation>
    </message>
    <message>
        <source>Style sheets (*.qss *.css);;All files (*)</source>
        <translation>样式表 (*.qss *.css);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Applied.</source>
        <translation>已应用。</translation>
    </message>
    <message>
        <source>There is an error; the former rules stay.</source>
        <translation>规则有错误；仍使用原来的规则。</translation>
    </message>
    <message>
        <source>Back to the theme; these rules are not applied.</source>
        <translation>已恢复主题；未应用这些规则。</translation>
    </message>
</context>
<context>
    <name>Gallery::TabsPage</name>
    <message>
        <source>Pumps</source>
        <translation>水泵</translation>
    </message>
    <message>
        <source>Tanks</source>
        <translation>水箱</translation>
    </message>
    <message>
        <source>Valves</source>
        <translation>阀门</translation>
    </message>
    <message>
        <source>Tab %1</source>
        <translation>标签 %1</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>Nothing reported yet</source>
        <translation>尚无报告</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>标签页</translation>
    </message>
    <message>
        <source>A tab bar that has room for other widgets, by itself and above pages.</source>
        <translation>可以容纳其他控件的标签栏，单独使用或位于页面上方。</translation>
    </message>
    <message>
        <source>Add a tab</source>
        <translation>添加标签</translation>
    </message>
    <message>
        <source>Left area</source>
        <translation>左侧区域</translation>
    </message>
    <message>
        <source>Right area</source>
        <translation>右侧区域</translation>
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
        <source>Far right</source>
        <translation>最右</translation>
    </message>
    <message>
        <source>Bar: currentChanged(%1)</source>
        <translation>标签栏：currentChanged(%1)</translation>
    </message>
    <message>
        <source>Bar: tabCloseRequested(%1)</source>
        <translation>标签栏：tabCloseRequested(%1)</translation>
    </message>
    <message>
        <source>Pages: currentChanged(%1)</source>
        <translation>页面：currentChanged(%1)</translation>
    </message>
    <message>
        <source>Pages: tabCloseRequested(%1)</source>
        <translation>页面：tabCloseRequested(%1)</translation>
    </message>
    <message>
        <source>Both bars</source>
        <translation>两个标签栏</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>均分</translation>
    </message>
    <message>
        <source>Closable</source>
        <translation>可关闭</translation>
    </message>
    <message>
        <source>Movable</source>
        <translation>可拖动</translation>
    </message>
    <message>
        <source>Scroll buttons</source>
        <translation>滚动按钮</translation>
    </message>
    <message>
        <source>Expanding</source>
        <translation>伸展</translation>
    </message>
    <message>
        <source>Hide if single</source>
        <translation>单个时隐藏</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Second tab enabled</source>
        <translation>启用第二个标签</translation>
    </message>
    <message>
        <source>Side widgets</source>
        <translation>两侧控件</translation>
    </message>
    <message>
        <source>Tool tips</source>
        <translation>工具提示</translation>
    </message>
    <message>
        <source>Tab buttons</source>
        <translation>标签按钮</translation>
    </message>
    <message>
        <source>Sizes and colours</source>
        <translation>尺寸和颜色</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Least width</source>
        <translation>最小宽度</translation>
    </message>
    <message>
        <source>Greatest width</source>
        <translation>最大宽度</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>图标大小</translation>
    </message>
    <message>
        <source>Elision</source>
        <translation>省略位置</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Text of the current tab</source>
        <translation>当前标签的文字</translation>
    </message>
    <message>
        <source>Insert first</source>
        <translation>插入到最前</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Centre areas</source>
        <translation>区域居中</translation>
    </message>
    <message>
        <source>This is tab %1</source>
        <translation>这是标签 %1</translation>
    </message>
    <message>
        <source>The text fits</source>
        <translation>文字可以完整显示</translation>
    </message>
    <message>
        <source>Tool tip: %1</source>
        <translation>工具提示：%1</translation>
    </message>
</context>
<context>
    <name>Gallery::TitleBarPage</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Some changes are not stored. Close all the same?</source>
        <translation>有些更改尚未保存。仍然关闭吗？</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>不关闭</translation>
    </message>
    <message>
        <source>Title bar</source>
        <translation>标题栏</translation>
    </message>
    <message>
        <source>The strip by itself: it reports what the user asks for, and its owner acts on it.</source>
        <translation>单独的标题栏：报告用户的操作，由其所有者处理。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>New window</source>
        <translation>新建窗口</translation>
    </message>
    <message>
        <source>Extra button: %1</source>
        <translation>附加按钮：%1</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>徽标</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Extra buttons</source>
        <translation>附加按钮</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Pump station 4</source>
        <translation>4 号泵站</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>对齐</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>可见</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Ask before closing</source>
        <translation>关闭前询问</translation>
    </message>
    <message>
        <source>The close function said no</source>
        <translation>关闭函数返回了否</translation>
    </message>
</context>
</TS>
