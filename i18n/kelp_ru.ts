<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>Включены эффекты DSP ⇒ трек декодируется в PCM (прямой DSD и DSP исключают друг друга: эффекты работают только в PCM). Для прямого DSD выключите реверберацию, тембр, шумоподавление, баланс и ширину.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>Устройство не выбрано</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>В дифференциальном режиме и в режиме кроссовера каждому каналу нужно своё устройство — сначала выберите устройства.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>Режиму pairs нужно устройств: %1 (по одному на пару каналов), а выбрано: %2; добавьте недостающие и запустите воспроизведение.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>Этому режиму нужно устройств: %1 (по одному на канал), а выбрано: %2; из-за недостающих каналов сдвинется всё распределение — дополните список перед воспроизведением.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Недостаточно устройств</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[управление] сверка: отправлено команд: %1, но журнала сеанса движка в этом запуске нет — стороны сверить нельзя</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>сошлось</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>вне допуска (разница %1 &gt; допуск %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[управление] сверка: queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[управление] источник сверки: %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>неизвестное исключение</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (устройство сброшено)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>Сброс устройства (-reset-device): время истекло: %1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>Библиотека движка не найдена, искали: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>Не удаётся загрузить библиотеку движка: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>В библиотеке движка нет двух нужных точек входа: %1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>рядом с программой</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>переменная окружения KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>сборка разработчика (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Опрос не уложился во время (%1 мс): %2 — дочерний процесс завершён, интерфейс работает дальше (при самопроверке KELP_GUI_PROBE_HANG так и должно быть)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>Опрос вернул не ноль (%1): %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Восстановление настроек: нет пункта для %1 (остаётся по умолчанию)</translation>
    </message>
</context>
</TS>
