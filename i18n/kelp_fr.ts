<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>Des effets DSP sont actifs ⇒ ce morceau est décodé en PCM (DSD direct et DSP s’excluent : les effets agissent en PCM). Pour du DSD direct, désactivez réverbération, tonalité, débruitage, balance et largeur.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>Aucun périphérique choisi</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>Les modes différentiel et filtre actif demandent un périphérique par canal — choisissez d’abord les périphériques.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>Le mode pairs demande %1 périphériques (un par paire de canaux), %2 seulement sont choisis ; complétez avant de lire.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>Ce mode demande %1 périphériques (un par canal), %2 seulement sont choisis ; les canaux manquants décalent toute l’affectation — complétez la liste avant de lire.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Pas assez de périphériques</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[commande] rapprochement : %1 commande(s) envoyée(s), mais pas de journal de session du moteur pour cette exécution — les deux bouts ne peuvent être rapprochés</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>conforme</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>hors tolérance (écart %1 &gt; tolérance %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[commande] rapprochement : queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[commande] source du rapprochement : %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>exception inconnue</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (périphérique réinitialisé)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>Réinitialisation du périphérique (-reset-device) : délai dépassé : %1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>Bibliothèque du moteur introuvable ; recherchée ici : %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>Impossible de charger la bibliothèque du moteur : %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>Il manque à la bibliothèque du moteur les deux points d’entrée requis : %1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>à côté du programme</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>variable d’environnement KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>compilation de développement (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Délai de la sonde dépassé (%1 ms) : %2 — ce processus fils a été arrêté et l’interface continue (attendu lors de l’autotest KELP_GUI_PROBE_HANG)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>La sonde a renvoyé une valeur non nulle (%1) : %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Restauration des réglages : aucun élément ne correspond à %1 (valeur par défaut conservée)</translation>
    </message>
</context>
</TS>
