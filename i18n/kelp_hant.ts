<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>DSP 效果已啟用 ⇒ 本曲解碼為 PCM（DSD 直通與 DSP 互斥：效果只在 PCM 域作用）。要 DSD 直通，請將殘響/音調/降噪/平衡/寬度全部關閉。</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>未選擇裝置</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>差動/分頻模式每個聲道需要一台裝置 —— 請先選擇裝置。</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>pairs 模式需要 %1 台裝置（每對聲道一台），目前只選了 %2 台；請補齊後再播放。</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>此模式需要 %1 台裝置（每個聲道一台），目前只選了 %2 台；缺少的聲道會使整個對應錯位 —— 請補齊清單後再播放。</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>裝置數量不足</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[控制] 閉合: 已送出 %1 條指令, 但本次執行沒有引擎工作階段記錄 —— 兩端無法對帳</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>通過</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>超出容許誤差(差 %1 &gt; 容差 %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[控制] 閉合: queued=%1 recv=%2 diff=%3 —— %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[控制] 閉合帳來源: %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>未知例外</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (裝置已重設)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>裝置重設 (-reset-device) 逾時：%1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>找不到引擎程式庫，已查找：%1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>無法載入引擎程式庫：%1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>引擎程式庫缺少所需的兩個進入點：%1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>程式所在資料夾</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>環境變數 KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>開發組建（build/）</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>探測逾時（%1 ms）：%2 —— 已結束該子行程，介面繼續運作（KELP_GUI_PROBE_HANG 自檢時屬預期）</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>探測傳回非零（%1）：%2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>參數還原: 找不到相符項目 %1 (保持預設)</translation>
    </message>
</context>
</TS>
