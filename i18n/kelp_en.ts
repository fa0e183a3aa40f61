<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>DSP effects are active ⇒ this track is decoded to PCM (direct DSD and DSP are mutually exclusive: effects work in the PCM domain). For direct DSD, switch reverb/tone/denoise/balance/width all off.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>No device selected</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>Differential/crossover modes need one device per channel — please select devices first.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>pairs mode needs %1 devices (one per channel pair) but only %2 are selected; please add the missing ones before playing.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>This mode needs %1 device(s) (one per channel) but only %2 selected; the missing channels shift the whole mapping — please complete the list before playing.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Not enough devices</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[control] closure: %1 command(s) were sent but this run has no engine session log -- the two ends cannot be reconciled</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>passed</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>over tolerance (difference %1 &gt; tolerance %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[control] closure: queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[control] closure account from: %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>unknown exception</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (device reset)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>reset device (-reset-device) timed out: %1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>The engine library was not found; looked for: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>The engine library cannot be loaded: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>The engine library lacks the two entries that are needed: %1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>next to the program</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>environment variable KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>dev build (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Probe timed out (%1 ms): %2 -- that child process was ended and the UI continues (expected during the KELP_GUI_PROBE_HANG self-test)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>Probe returned non-zero (%1): %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Settings restore: no match for %1 (default kept)</translation>
    </message>
</context>
</TS>
