<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>Efekty DSP są włączone ⇒ ten utwór jest dekodowany do PCM (bezpośrednie DSD i DSP wykluczają się: efekty działają tylko w PCM). Aby uzyskać bezpośrednie DSD, wyłącz pogłos, barwę, odszumianie, balans i szerokość.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>Nie wybrano urządzenia</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>Tryb różnicowy i tryb zwrotnicy wymagają jednego urządzenia na kanał — najpierw wybierz urządzenia.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>Tryb pairs wymaga %1 urządzeń (po jednym na parę kanałów), a wybrano tylko %2; uzupełnij je przed odtwarzaniem.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>Ten tryb wymaga %1 urządzeń (po jednym na kanał), a wybrano tylko %2; brakujące kanały przesuną całe przyporządkowanie — uzupełnij listę przed odtwarzaniem.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Za mało urządzeń</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[sterowanie] uzgodnienie: wysłano poleceń: %1, ale ten przebieg nie ma dziennika sesji silnika — obu stron nie da się uzgodnić</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>zgodne</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>poza tolerancją (różnica %1 &gt; tolerancja %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[sterowanie] uzgodnienie: queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[sterowanie] źródło uzgodnienia: %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>nieznany wyjątek</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (urządzenie zresetowane)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>Przekroczono czas resetowania urządzenia (-reset-device): %1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>Nie znaleziono biblioteki silnika; szukano: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>Nie można wczytać biblioteki silnika: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>Bibliotece silnika brakuje dwóch wymaganych punktów wejścia: %1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>obok programu</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>zmienna środowiskowa KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>kompilacja deweloperska (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Przekroczono czas sondowania (%1 ms): %2 — ten proces potomny zakończono, interfejs działa dalej (tak ma być podczas autotestu KELP_GUI_PROBE_HANG)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>Sondowanie zwróciło wartość różną od zera (%1): %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Przywracanie ustawień: brak pozycji pasującej do %1 (pozostaje domyślna)</translation>
    </message>
</context>
</TS>
