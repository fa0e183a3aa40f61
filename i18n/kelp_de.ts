<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>DSP-Effekte sind aktiv ⇒ dieser Titel wird zu PCM dekodiert (DSD direkt und DSP schließen einander aus: Effekte arbeiten nur in PCM). Für DSD direkt bitte Hall/Klang/Entrauschen/Balance/Breite alle ausschalten.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>Kein Gerät gewählt</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>Differenz- und Frequenzweichenbetrieb brauchen ein Gerät je Kanal – bitte zuerst Geräte wählen.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>Der Modus pairs braucht %1 Geräte (eines je Kanalpaar), gewählt sind nur %2; bitte vor der Wiedergabe ergänzen.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>Dieser Modus braucht %1 Geräte (eines je Kanal), gewählt sind nur %2; fehlende Kanäle verschieben die ganze Zuordnung – bitte die Liste vor der Wiedergabe ergänzen.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Zu wenige Geräte</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[Steuerung] Abgleich: %1 Befehl(e) gesendet, aber dieser Lauf hat kein Sitzungsprotokoll der Engine – die beiden Enden lassen sich nicht abgleichen</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>außer Toleranz (Differenz %1 &gt; Toleranz %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[Steuerung] Abgleich: queued=%1 recv=%2 diff=%3 – %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[Steuerung] Grundlage des Abgleichs: %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>unbekannte Ausnahme</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (Gerät zurückgesetzt)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>Zeitüberschreitung beim Zurücksetzen des Geräts (-reset-device): %1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>Die Engine-Bibliothek wurde nicht gefunden; gesucht: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>Die Engine-Bibliothek lässt sich nicht laden: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>Der Engine-Bibliothek fehlen die beiden nötigen Einsprungpunkte: %1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>neben dem Programm</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>Umgebungsvariable KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>Entwicklungsbau (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Zeitüberschreitung der Abfrage (%1 ms): %2 – der Kindprozess wurde beendet, die Oberfläche läuft weiter (beim Selbsttest KELP_GUI_PROBE_HANG so vorgesehen)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>Die Abfrage endete nicht mit null (%1): %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Einstellungen wiederherstellen: kein Eintrag passt zu %1 (Vorgabe bleibt)</translation>
    </message>
</context>
</TS>
