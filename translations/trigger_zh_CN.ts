<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DeviceList</name>
    <message>
        <source>Built-in camera</source>
        <translation>内置相机</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>采集中</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>连接中断</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>从列表中移除(&amp;R)</translation>
    </message>
</context>
<context>
    <name>DevicePage</name>
    <message>
        <source>Start acquisition</source>
        <translation>开始采集</translation>
    </message>
    <message>
        <source>Stop acquisition</source>
        <translation>停止采集</translation>
    </message>
    <message>
        <source>Load user set</source>
        <translation>加载用户集</translation>
    </message>
    <message>
        <source>Load user set %1?</source>
        <translation>加载用户集 %1？</translation>
    </message>
    <message>
        <source>Settings of this camera were changed and are in no user set. Loading replaces them.</source>
        <translation>此相机的设置已更改，但未保存到任何用户集。加载后，这些设置将被覆盖。</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Load user set %1</source>
        <translation>加载用户集 %1</translation>
    </message>
    <message>
        <source>Save to user set %1</source>
        <translation>保存到用户集 %1</translation>
    </message>
    <message>
        <source>Trigger mode %1</source>
        <translation>触发模式 %1</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>保存设置</translation>
    </message>
    <message>
        <source>Nothing was saved. These settings could not be read: %1</source>
        <translation>未保存任何内容。以下设置无法读取：%1</translation>
    </message>
    <message>
        <source>While the camera is acquiring, none of its settings can be saved. Stop the acquisition first.</source>
        <translation>相机采集期间无法保存任何设置。请先停止采集。</translation>
    </message>
    <message>
        <source>This camera has no trigger setting that can be saved now.</source>
        <translation>此相机当前没有可保存的触发设置。</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>设置 (*.json)</translation>
    </message>
    <message>
        <source>Settings saved in %1</source>
        <translation>设置已保存到 %1</translation>
    </message>
    <message>
        <source>Apply settings</source>
        <translation>应用设置</translation>
    </message>
    <message>
        <source>Applying the settings…</source>
        <translation>正在应用设置…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>1 setting applied</source>
        <translation>已应用 1 项设置</translation>
    </message>
    <message>
        <source>%1 settings applied</source>
        <translation>已应用 %1 项设置</translation>
    </message>
    <message>
        <source>%1 of %2 settings were applied to %3. These were not:</source>
        <translation>%2 项设置中有 %1 项已应用到 %3。以下各项未应用：</translation>
    </message>
    <message>
        <source>%1 of %2 settings applied</source>
        <translation>%2 项设置中已应用 %1 项</translation>
    </message>
    <message>
        <source>Not connected to %1.</source>
        <translation>未连接 %1。</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>正在连接 %1…</translation>
    </message>
    <message>
        <source>There is no connection to %1.</source>
        <translation>无法连接 %1。</translation>
    </message>
    <message>
        <source>The connection to %1 was lost.</source>
        <translation>与 %1 的连接已中断。</translation>
    </message>
    <message>
        <source>Another program controls this camera: settings can be read, not changed.</source>
        <translation>此相机正由其他程序控制：设置只能读取，不能更改。</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>重新连接(&amp;R)</translation>
    </message>
    <message>
        <source>%1 was not executed: %2</source>
        <translation>%1 未能执行：%2</translation>
    </message>
    <message>
        <source>%1 was not set to %2: %3</source>
        <translation>%1 未能设置为 %2：%3</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1：完成</translation>
    </message>
</context>
<context>
    <name>GenicamDevice</name>
    <message>
        <source>no such node of this type</source>
        <translation>没有该名称和类型的节点</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>相机正由其他程序控制</translation>
    </message>
    <message>
        <source>cannot be written now</source>
        <translation>当前无法写入</translation>
    </message>
    <message>
        <source>cannot be read now</source>
        <translation>当前无法读取</translation>
    </message>
    <message>
        <source>it does not describe itself</source>
        <translation>设备未提供自身的描述信息</translation>
    </message>
    <message>
        <source>the device holds no number</source>
        <translation>设备中的值不是数字</translation>
    </message>
    <message>
        <source>the device holds no entry</source>
        <translation>设备中的值不对应任何选项</translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above the minimum</source>
        <translation>%1 与最小值之差不是 %2 的整数倍</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>不是数字</translation>
    </message>
    <message>
        <source>the text contains a NUL</source>
        <translation>文本中含有 NUL 字符</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this file, in that language.</extracomment>
        <translation>简体中文</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Trigger Viewer</source>
        <translation>触发查看器</translation>
    </message>
    <message>
        <source>%1 – Trigger Viewer</source>
        <translation>%1 – 触发查看器</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Start acquisition</source>
        <translation>开始采集(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top acquisition</source>
        <translation>停止采集(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Load user set</source>
        <translation>加载用户集(&amp;L)</translation>
    </message>
    <message>
        <source>Trigger &amp;mode</source>
        <translation>触发模式(&amp;M)</translation>
    </message>
    <message>
        <source>Change the trigger mode outside the panel</source>
        <translation>在面板之外更改触发模式</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>通信记录</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Not available now</source>
        <translation>当前不可用</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>设备(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Connect…</source>
        <translation>连接(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Find cameras</source>
        <translation>搜索相机(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>重新连接(&amp;R)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save settings…</source>
        <translation>保存设置(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Apply settings…</source>
        <translation>应用设置(&amp;A)…</translation>
    </message>
    <message>
        <source>Save to &amp;user set</source>
        <translation>保存到用户集(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Refresh nodes</source>
        <translation>刷新节点(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Trigger Viewer</source>
        <translation>关于触发查看器(&amp;A)</translation>
    </message>
    <message>
        <source>About Trigger Viewer</source>
        <translation>关于触发查看器</translation>
    </message>
    <message>
        <source>No device is open.</source>
        <translation>没有打开的设备。</translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation>连接…</translation>
    </message>
    <message>
        <source>Open the built-in camera</source>
        <translation>打开内置相机</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>&amp;IPv4 address of the camera:</source>
        <translation>相机的 IPv4 地址(&amp;I)：</translation>
    </message>
    <message>
        <source>Searching for cameras…</source>
        <translation>正在搜索相机…</translation>
    </message>
    <message>
        <source>No camera answered</source>
        <translation>没有相机应答</translation>
    </message>
    <message>
        <source>1 camera found</source>
        <translation>找到 1 台相机</translation>
    </message>
    <message>
        <source>%1 cameras found</source>
        <translation>找到 %1 台相机</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Trigger Viewer %1&lt;/h3&gt;&lt;p&gt;Shows and changes the trigger settings of smart cameras.&lt;/p&gt;&lt;p&gt;Uses Qt, Aravis and GLib under the GNU Lesser General Public License.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;触发查看器 %1&lt;/h3&gt;&lt;p&gt;用于显示和更改智能相机的触发设置。&lt;/p&gt;&lt;p&gt;在 GNU Lesser General Public License 下使用 Qt、Aravis 和 GLib。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>NetworkLink</name>
    <message>
        <source>it is not the IPv4 address of a camera, such as 192.168.0.10</source>
        <translation>不是有效的相机 IPv4 地址（例如 192.168.0.10）</translation>
    </message>
    <message>
        <source>no camera answers</source>
        <translation>没有相机应答</translation>
    </message>
    <message>
        <source>The camera is gone, was restarted, or obeys another program now.</source>
        <translation>相机已离线、已重启，或现由其他程序控制。</translation>
    </message>
    <message>
        <source>The camera does not answer any more.</source>
        <translation>相机不再应答。</translation>
    </message>
</context>
<context>
    <name>NodeModel</name>
    <message>
        <source>not implemented</source>
        <translation>未实现</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>write-only</source>
        <translation>只写</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>read/write</source>
        <translation>读写</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>访问权限</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>step %1</source>
        <translation>步长 %1</translation>
    </message>
</context>
<context>
    <name>NodeView</name>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
</context>
<context>
    <name>ParamPageWidgetItem</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>SoftwareTrigger</source>
        <translation>软触发</translation>
    </message>
    <message>
        <source>IOTrigger</source>
        <translation>IO 触发</translation>
    </message>
    <message>
        <source>TcpServer</source>
        <translation>TCP 服务器</translation>
    </message>
    <message>
        <source>TcpClient</source>
        <translation>TCP 客户端</translation>
    </message>
    <message>
        <source>Udp</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
    <message>
        <source>AutoTrigger</source>
        <translation>自动触发</translation>
    </message>
    <message>
        <source>SensingTrigger</source>
        <translation>感应触发</translation>
    </message>
    <message>
        <source>Master-Slave</source>
        <translation>主从</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>十六进制</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Trigger Mode</source>
        <translation>触发模式</translation>
    </message>
    <message>
        <source>Trigger Source</source>
        <translation>触发源</translation>
    </message>
    <message>
        <source>Software Trigger</source>
        <translation>软触发</translation>
    </message>
    <message>
        <source>Trigger Delay(ms)</source>
        <translation>触发延时(ms)</translation>
    </message>
    <message>
        <source>Follow IO level signal</source>
        <translation>跟随 IO 电平信号</translation>
    </message>
    <message>
        <source>Trigger Cache</source>
        <translation>触发缓存</translation>
    </message>
    <message>
        <source>Key Trigger</source>
        <translation>按键触发</translation>
    </message>
    <message>
        <source>TCP Port</source>
        <translation>TCP 端口</translation>
    </message>
    <message>
        <source>Fuzzy Command Matching</source>
        <translation>命令模糊匹配</translation>
    </message>
    <message>
        <source>Command Format</source>
        <translation>命令格式</translation>
    </message>
    <message>
        <source>Start Trigger Command</source>
        <translation>开始触发命令</translation>
    </message>
    <message>
        <source>FTP Save Image Command</source>
        <translation>FTP 存图命令</translation>
    </message>
    <message>
        <source>Auto Trigger Interval(ms)</source>
        <translation>自动触发间隔(ms)</translation>
    </message>
    <message>
        <source>Sensing Sensitivity</source>
        <translation>感应灵敏度</translation>
    </message>
    <message>
        <source>Sensing Wait Period(ms)</source>
        <translation>感应等待时间(ms)</translation>
    </message>
    <message>
        <source>Server IP</source>
        <translation>服务器 IP</translation>
    </message>
    <message>
        <source>Server Port</source>
        <translation>服务器端口</translation>
    </message>
    <message>
        <source>Heartbeat Enable</source>
        <translation>心跳使能</translation>
    </message>
    <message>
        <source>Heartbeat Command</source>
        <translation>心跳命令</translation>
    </message>
    <message>
        <source>Heartbeat Interval(ms)</source>
        <translation>心跳间隔(ms)</translation>
    </message>
    <message>
        <source>UDP Port</source>
        <translation>UDP 端口</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>波特率</translation>
    </message>
    <message>
        <source>Flow Control</source>
        <translation>流控</translation>
    </message>
    <message>
        <source>Stop Bit</source>
        <translation>停止位</translation>
    </message>
    <message>
        <source>Parity Bit</source>
        <translation>校验位</translation>
    </message>
    <message>
        <source>Data Bit</source>
        <translation>数据位</translation>
    </message>
    <message>
        <source>Stop Condition</source>
        <translation>停止条件</translation>
    </message>
    <message>
        <source>Triggered Frame Count</source>
        <translation>触发帧数</translation>
    </message>
    <message>
        <source>Trigger Duration(ms)</source>
        <translation>触发持续时间(ms)</translation>
    </message>
    <message>
        <source>Decoding Count</source>
        <translation>解码数量</translation>
    </message>
    <message>
        <source>Code Counting Enable</source>
        <translation>解码计数使能</translation>
    </message>
    <message>
        <source>Stop Trigger Command</source>
        <translation>停止触发命令</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>FrameCount</source>
        <translation>帧数</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>持续时间</translation>
    </message>
    <message>
        <source>DecodeCount</source>
        <translation>解码数量</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>奇校验</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>偶校验</translation>
    </message>
    <message>
        <source>RtsCts</source>
        <translation>RTS/CTS</translation>
    </message>
    <message>
        <source>XonXoff</source>
        <translation>XON/XOFF</translation>
    </message>
</context>
<context>
    <name>RecordTable</name>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
</context>
<context>
    <name>SettingsApplier</name>
    <message>
        <source>not reached</source>
        <translation>未处理</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>cannot be read back</source>
        <translation>无法回读</translation>
    </message>
    <message>
        <source>this camera has no such node</source>
        <translation>此相机没有该节点</translation>
    </message>
    <message>
        <source>cannot be written in the present mode</source>
        <translation>当前模式下无法写入</translation>
    </message>
    <message>
        <source>the camera no longer answers</source>
        <translation>相机不再应答</translation>
    </message>
    <message>
        <source>this node of the camera is of another type</source>
        <translation>相机中该节点的类型不同</translation>
    </message>
    <message>
        <source>can only be read now (is the camera acquiring?)</source>
        <translation>当前只能读取（相机是否正在采集？）</translation>
    </message>
    <message>
        <source>the camera holds %1 instead</source>
        <translation>相机中的实际值为 %1</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>无法写入</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>the key %1 is not known</source>
        <translation>未知的键 %1</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>this is no file of trigger settings</source>
        <translation>不是触发设置文件</translation>
    </message>
    <message>
        <source>the version is %1, and only %2 is known</source>
        <translation>版本为 %1，仅支持版本 %2</translation>
    </message>
    <message>
        <source>this node is there twice</source>
        <translation>该节点重复</translation>
    </message>
    <message>
        <source>the type %1 is not known</source>
        <translation>未知的类型 %1</translation>
    </message>
    <message>
        <source>the value %1 is none of type %2</source>
        <translation>值 %1 不属于类型 %2</translation>
    </message>
    <message>
        <source>&quot;nodes&quot; is no list</source>
        <translation>“nodes”不是列表</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>the name is missing</source>
        <translation>缺少名称</translation>
    </message>
    <message>
        <source>entry %1, %2: %3</source>
        <translation>第 %1 项，%2：%3</translation>
    </message>
</context>
<context>
    <name>TrafficModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Duration (µs)</source>
        <translation>耗时(µs)</translation>
    </message>
</context>
<context>
    <name>TrafficView</name>
    <message>
        <source>Save traffic</source>
        <translation>保存通信记录</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV 文件 (*.csv)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Writes only</source>
        <translation>仅写操作</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
</context>
<context>
    <name>TriggerConfigWdgImpl</name>
    <message>
        <source>TCP Server</source>
        <translation>TCP 服务器</translation>
    </message>
    <message>
        <source>Auto Trigger</source>
        <translation>自动触发</translation>
    </message>
    <message>
        <source>Sensing Trigger</source>
        <translation>感应触发</translation>
    </message>
    <message>
        <source>TCP Client</source>
        <translation>TCP 客户端</translation>
    </message>
    <message>
        <source>UDP</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
</context>
<context>
    <name>TriggerStopConfigWdg</name>
    <message>
        <source>Config </source>
        <translation>配置 </translation>
    </message>
</context>
<context>
    <name>VyTriggerConfigWidgetImpl</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Trigger Config</source>
        <translation>触发配置</translation>
    </message>
    <message>
        <source>Trigger Stop Config</source>
        <translation>触发停止配置</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyBlockWidget</name>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>添加到%1</translation>
    </message>
</context>
<context>
    <name>VyViewer::VyMultiCheckTitleWidget</name>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除%1</translation>
    </message>
</context>
</TS>
