<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Tarn::Widgets::ColorDialog</name>
    <message>
        <source>颜色编辑器</source>
        <translation>Colour Editor</translation>
    </message>
    <message>
        <source>基本颜色</source>
        <translation>Basic colours</translation>
    </message>
    <message>
        <source>自定义颜色</source>
        <translation>Custom colours</translation>
    </message>
    <message>
        <source>添加到自定义颜色</source>
        <translation>Add custom colour</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>色调:</source>
        <translation>Hue:</translation>
    </message>
    <message>
        <source>饱和度:</source>
        <translation>Sat:</translation>
    </message>
    <message>
        <source>灰度:</source>
        <translation>Val:</translation>
    </message>
    <message>
        <source>红:</source>
        <translation>R:</translation>
    </message>
    <message>
        <source>绿:</source>
        <translation>G:</translation>
    </message>
    <message>
        <source>蓝:</source>
        <translation>B:</translation>
    </message>
    <message>
        <source>Alpha通道:</source>
        <translation>Alpha channel:</translation>
    </message>
    <message>
        <source>HTML:</source>
        <translation>HTML:</translation>
    </message>
</context>
<context>
    <name>Tarn::Widgets::FramelessDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
</context>
<context>
    <name>Tarn::Widgets::FramelessMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Save All</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Yes to &amp;All</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;o to All</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abort</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>About Qt</translation>
    </message>
    <message>
        <source>&lt;h3&gt;About Qt&lt;/h3&gt;&lt;p&gt;This program uses Qt version %1.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;About Qt&lt;/h3&gt;&lt;p&gt;This program uses Qt version %1.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Qt is a C++ toolkit for cross-platform application development.&lt;/p&gt;&lt;p&gt;Qt provides single-source portability across all major desktop operating systems. It is also available for embedded Linux and other embedded and mobile operating systems.&lt;/p&gt;&lt;p&gt;Qt is available under multiple licensing options designed to accommodate the needs of our various users.&lt;/p&gt;&lt;p&gt;Qt licensed under our commercial license agreement is appropriate for development of proprietary/commercial software where you do not want to share any source code with third parties or otherwise cannot comply with the terms of GNU (L)GPL.&lt;/p&gt;&lt;p&gt;Qt licensed under GNU (L)GPL is appropriate for the development of Qt&amp;nbsp;applications provided you can comply with the terms and conditions of the respective licenses.&lt;/p&gt;&lt;p&gt;Please see &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt; for an overview of Qt licensing.&lt;/p&gt;&lt;p&gt;Copyright (C) %1 The Qt Company Ltd and other contributors.&lt;/p&gt;&lt;p&gt;Qt and the Qt logo are trademarks of The Qt Company Ltd.&lt;/p&gt;&lt;p&gt;Qt is The Qt Company Ltd product developed as an open source project. See &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt; for more information.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Qt is a C++ toolkit for cross-platform application development.&lt;/p&gt;&lt;p&gt;Qt provides single-source portability across all major desktop operating systems. It is also available for embedded Linux and other embedded and mobile operating systems.&lt;/p&gt;&lt;p&gt;Qt is available under multiple licensing options designed to accommodate the needs of our various users.&lt;/p&gt;&lt;p&gt;Qt licensed under our commercial license agreement is appropriate for development of proprietary/commercial software where you do not want to share any source code with third parties or otherwise cannot comply with the terms of GNU (L)GPL.&lt;/p&gt;&lt;p&gt;Qt licensed under GNU (L)GPL is appropriate for the development of Qt&amp;nbsp;applications provided you can comply with the terms and conditions of the respective licenses.&lt;/p&gt;&lt;p&gt;Please see &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt; for an overview of Qt licensing.&lt;/p&gt;&lt;p&gt;Copyright (C) %1 The Qt Company Ltd and other contributors.&lt;/p&gt;&lt;p&gt;Qt and the Qt logo are trademarks of The Qt Company Ltd.&lt;/p&gt;&lt;p&gt;Qt is The Qt Company Ltd product developed as an open source project. See &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt; for more information.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Show Details...</source>
        <translation>Show Details...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Hide Details...</translation>
    </message>
</context>
<context>
    <name>Tarn::Widgets::IPLineEdit</name>
    <message>
        <source>Copy Address</source>
        <translation>Copy Address</translation>
    </message>
    <message>
        <source>Paste Address</source>
        <translation>Paste Address</translation>
    </message>
</context>
<context>
    <name>Tarn::Widgets::LimitedFileDialog</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>The permitted folder is missing.</source>
        <translation>The permitted folder is missing.</translation>
    </message>
    <message>
        <source>Outside the permitted folder: %1</source>
        <translation>Outside the permitted folder: %1</translation>
    </message>
</context>
<context>
    <name>Tarn::Widgets::TitleBar</name>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Maximization</source>
        <translation>Maximization</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
</context>
</TS>
