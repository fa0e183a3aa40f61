<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>Hay efectos DSP activos ⇒ esta pista se decodifica a PCM (DSD directo y DSP se excluyen: los efectos actúan en PCM). Para DSD directo, desactive reverberación, tono, reducción de ruido, balance y anchura.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>Ningún dispositivo elegido</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>Los modos diferencial y de cruce necesitan un dispositivo por canal: elija primero los dispositivos.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>El modo pairs necesita %1 dispositivos (uno por par de canales) y solo hay %2 elegidos; complételos antes de reproducir.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>Este modo necesita %1 dispositivos (uno por canal) y solo hay %2 elegidos; los canales que faltan desplazan toda la asignación: complete la lista antes de reproducir.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Faltan dispositivos</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[control] cotejo: se enviaron %1 órdenes, pero esta ejecución no tiene registro de sesión del motor; no se pueden cotejar los dos extremos</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>fuera de tolerancia (diferencia %1 &gt; tolerancia %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[control] cotejo: queued=%1 recv=%2 diff=%3: %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[control] origen del cotejo: %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>excepción desconocida</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (dispositivo restablecido)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>Se agotó el tiempo al restablecer el dispositivo (-reset-device): %1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>No se encontró la biblioteca del motor; se buscó en: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>No se puede cargar la biblioteca del motor: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>A la biblioteca del motor le faltan los dos puntos de entrada necesarios: %1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>junto al programa</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>variable de entorno KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>compilación de desarrollo (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Se agotó el tiempo del sondeo (%1 ms): %2; se terminó ese proceso hijo y la interfaz sigue (es lo esperado en la autocomprobación KELP_GUI_PROBE_HANG)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>El sondeo devolvió un valor distinto de cero (%1): %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Restauración de ajustes: ningún elemento coincide con %1 (se mantiene el predeterminado)</translation>
    </message>
</context>
</TS>
