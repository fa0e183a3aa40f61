<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>Há efeitos DSP ativos ⇒ esta faixa é decodificada para PCM (DSD direto e DSP se excluem: os efeitos atuam em PCM). Para DSD direto, desligue reverberação, tom, redução de ruído, balanço e largura.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>Nenhum dispositivo selecionado</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>Os modos diferencial e crossover precisam de um dispositivo por canal — selecione primeiro os dispositivos.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>O modo pairs precisa de %1 dispositivos (um por par de canais), mas só %2 estão selecionados; complete antes de reproduzir.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>Este modo precisa de %1 dispositivos (um por canal), mas só %2 estão selecionados; os canais que faltam deslocam todo o mapeamento — complete a lista antes de reproduzir.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Dispositivos insuficientes</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[controle] conferência: %1 comando(s) enviado(s), mas esta execução não tem registro de sessão do motor — não dá para conferir as duas pontas</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>aprovado</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>fora da tolerância (diferença %1 &gt; tolerância %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[controle] conferência: queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[controle] origem da conferência: %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>exceção desconhecida</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (dispositivo redefinido)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>Tempo esgotado ao redefinir o dispositivo (-reset-device): %1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>A biblioteca do motor não foi encontrada; procurada em: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>Não é possível carregar a biblioteca do motor: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>Faltam à biblioteca do motor os dois pontos de entrada necessários: %1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>ao lado do programa</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>variável de ambiente KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>compilação de desenvolvimento (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Tempo da sondagem esgotado (%1 ms): %2 — esse processo filho foi encerrado e a interface continua (esperado no autoteste KELP_GUI_PROBE_HANG)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>A sondagem retornou um valor diferente de zero (%1): %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Restauração das configurações: nenhum item corresponde a %1 (mantido o padrão)</translation>
    </message>
</context>
</TS>
