<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="zh_CN">
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>Mentions des tiers et normes de référence</translation>
    </message>
</context>
<context>
    <name>ChainText</name>
    <message>
        <source>位完美</source>
        <translation>Bit-perfect</translation>
    </message>
    <message>
        <source>混音+转换</source>
        <translation>Mixage+conversion</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>Mélangeur système</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>Converti</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Inconnu</translation>
    </message>
</context>
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
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>ISO SACD : %1 — %2 piste(s)</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>Échec de l’analyse du CUE : %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>Échec de l’analyse de l’ISO : %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>Aucune piste lisible dans ce CUE : %1 (sonde rc=%2, %3 ligne(s) en sortie ; contenu : %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>Aucune piste lisible dans cet ISO : %1 (sonde rc=%2, %3 ligne(s) en sortie ; contenu : %4)</translation>
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
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[commande] l’envoi de %1 a pris %2 ms (devrait être inférieur à 1 ms)</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[commande] %1</translation>
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
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>Crochet de test : fermeture automatique (comme le bouton de fermeture)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse (mélangeur du système ; non bit-perfect)</translation>
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
    <name>DisplayPanel</name>
    <message>
        <source>曲名</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>位置</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Choisissez un morceau ou importez de l’audio</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>停止</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Arrêter la lecture</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>Lire le morceau précédent</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>Lire le morceau choisi</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>Lire le morceau suivant</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>Volume ; à 100&#xa0;% les échantillons ne sont pas modifiés</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Choisissez un morceau ou importez de l’audio</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>Bits effectifs : gain unitaire (échantillons intacts)</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>Bits effectifs : épuisés (atténuation trop forte)</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>Bits effectifs : aucune perte, mais le gain relève les crêtes (risque d’écrêtage)</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>Bits effectifs : inchangés (volume du périphérique ou du point de terminaison, échantillons non mis à l’échelle)</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>Bits effectifs : inchangés (aucun traitement du volume sur un flux DoP)</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>Bits effectifs : voir le journal (DSD direct, mélangeur du périphérique utilisé)</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>Bits effectifs : déterminés par le gain logiciel (voir la ligne suivante)</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>Bits effectifs : environ %1 bits (après l’atténuation logicielle)</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>Bits effectifs : voir le journal</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>Terminé avant la fin (%1&#xa0;%) ; arrêt, sans passer au morceau suivant</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>Le lecteur s’est terminé anormalement, code : %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  dernière ligne du moteur : %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>La sortie exclusive ne s’ouvre pas (occupée ou format non pris en charge) ⇒ nouvel essai de ce morceau en auto (exclusif → partagé)</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>Session fermée (périphérique/disposition modifiés) ; la prochaine lecture en ouvrira une avec les nouveaux réglages</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Lecture arrêtée</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Lecture terminée</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>Événement de fin de la session précédente ignoré (la session vient d’être recréée, il vient de celle qui a été démontée).</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>Décodage</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>Chemin de sortie</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>Exclusif va droit au matériel, partagé passe par le mélangeur du système ; auto essaie exclusif puis partagé.</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>Transport DSD</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto : le programme décide ; force : toujours DoP ; native : exige le DSD natif.</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>Mode de lecture</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard : un seul périphérique ; les autres modes : un par canal ou par paire de canaux.</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>Nombre de canaux</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>Nombre de canaux répartis par les modes à plusieurs périphériques.</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 canaux</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>Disposition des canaux</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>Répartition des canaux de la source vers les sorties ; auto : le programme décide.</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>Fréquence de coupure</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>Ce qui est au-dessous va aux périphériques de graves.</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>Filtre actif ponté</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>Deux périphériques pontés par voie.</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>Périphérique %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>Le périphérique de sortie de ce canal.</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>Toujours décoder le DSD en PCM</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>Sans DSD direct : pour un périphérique limité au PCM ou pour utiliser les effets.</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>Profondeur de bits PCM</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>Profondeur de bits lors du décodage du DSD en PCM.</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>Filtre de décodage</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>Filtre de DSD vers PCM : plus il est bon, plus il demande de calcul.</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>Meilleur</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM vers DSD</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>Module le PCM en DSD : les échantillons changent, ce n’est pas bit-perfect.</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>Fréquence cible</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>Fréquence DSD après modulation.</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>Coefficients du filtre</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>Longueur du filtre de suréchantillonnage ; en automatique, le moteur décide.</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>Bibliothèque de décodage externe</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>Chemin de la bibliothèque de décodage externe ; vide : aucune.</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>Protection des crêtes</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>N’abaisse les crêtes que là où elles seraient écrêtées.</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>Rééchantillonner à la fréquence du périphérique</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>Les échantillons changent, ce n’est pas bit-perfect.</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>Qualité du rééchantillonnage</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>Plus elle est élevée, plus elle demande de calcul.</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>ReplayGain</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>Égalise la sonie d’après les balises ReplayGain du fichier.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>Par morceau</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>Par album</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Débruitage</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>Retire le bruit de fond de l’enregistrement ; activé, il exclut le DSD direct.</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>Léger</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>Fort</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>Conserver les harmoniques</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>Préserve les harmoniques des sons lors du débruitage.</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>Lecture sans blanc</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>Précharge le morceau suivant avant la fin, sans pause.</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>Fondu enchaîné</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>Secondes de chevauchement entre deux morceaux ; 0 : aucun.</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>Vitesse de lecture</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>La hauteur du son est conservée ; hors de 1.00, ce n’est pas bit-perfect.</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>Lire au fil de l’eau</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>Ne lit pas d’abord le fichier en mémoire.</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1 (automatique)</translation>
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
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>apprentissage du profil de bruit</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>profil de bruit prêt</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>pas de bruit dans ce morceau, passage direct</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>Apprentissage du bruit (environ 1 s)</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>Niveaux/spectre alignés sur la latence de sortie : %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>Progression reçue (PG) : lu %1 s / total %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>Le DSP est appliqué par le modulateur</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>Oscilloscope : première trame reçue (%1 tranches)</translation>
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
    <message>
        <source>(完全没有输出)</source>
        <translation>(aucune sortie)</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(aucune sortie)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>Aucun échantillon 5 secondes après le départ — dernière ligne du moteur : %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>Pas de son 5 secondes après le départ — **le périphérique n’a jamais été ouvert** (pas d’OPENED dans le journal du moteur) : le plus souvent accès exclusif refusé, format non pris en charge ou occupé par un autre programme ; voyez les lignes WASAPI ci-dessus ; dernière ligne du moteur : %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  À vérifier dans l’ordre : (1) où s’est arrêtée la ligne ci-dessus — décodage / périphérique / exclusif ; (2) lisez le même fichier en ligne de commande ; (3) cherchez WASAPI / OPENED / 0x8889000A dans le journal. La session n’est pas recréée d’elle-même.</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>Journal du moteur : laissé à l’emplacement par défaut du moteur</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>Journal du moteur (conservé, non supprimé à la sortie) : %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>Journal du moteur (cette session, supprimé à la sortie) : %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>La session interne précédente n’a pas fini en 2 s — ce processus tient peut-être encore le périphérique exclusif et le morceau suivant risque de ne pas l’ouvrir</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(par défaut du système)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (par défaut)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>Liste des périphériques (-list) : %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (non connecté — branchez-le puis cliquez sur « Actualiser les périphériques »)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>Lecture… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>La liste de lecture est vide</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>C’est déjà le premier morceau</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>C’est déjà le dernier morceau</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>Morceau %1/%2</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>Déplacement impossible : ligne hors limites (from=%1 to=%2, la liste a %3 éléments)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>Ordre modifié : élément %1/%2</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>Enchaînement : liste ou ordre changés en fin de morceau, d’après le fichier c’est le morceau %1/%2</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>Enchaînement (sans blanc/fondu) : morceau %1/%2 : %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>La session précédente n’est pas terminée (accès exclusif en cours de libération) — pas de nouvelle session cette fois. Appuyez encore sur lecture ; sinon, relancez le lecteur.</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Lecture terminée</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>Fin de la liste de lecture (%1)</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>dans l’ordre</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · sans répétition</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>Fin de la liste de lecture</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[durée] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>Ignoré (fichier absent) : %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>Erreur : moteur %1 introuvable — placez-le à côté du programme, ajoutez-le au PATH ou indiquez-le par KELP_PLAYER_BIN.</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>Périphérique ou disposition modifiés -&gt; fermeture de la session (périphérique libéré)</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>L’ancienne session n’a pas fini en 10 s — arrêt forcé (le périphérique peut se libérer un peu plus tard)</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>Session courante réutilisée (changement par load seul, sans renvoyer les arguments) : %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[DLL interne au processus] arguments de la session : %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>Commande de lecture : %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>Échec du démarrage du lecteur (start de la session a renvoyé %1) ⇒ retour à l’arrêt</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>Niveau de débruitage renvoyé à la session en cours : %1 (une session réutilisée ne relit pas ses arguments)</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>Protection des crêtes renvoyée à la session en cours : %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>Erreur : ajoutez d’abord des fichiers audio</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>L’ancienne session n’est pas terminée ⇒ elle est détachée avant la lecture (une session interne doit finir d’elle-même)</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>L’ancienne session n’est toujours pas terminée, impossible de lancer une lecture — attendez (ou relancez ; pour l’automatisation/le dépannage, KELP_GUI_INPROC=0 passe par un processus fils)</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>Aucune lecture en cours</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>Arrêt du lecteur…</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>Signal d’arrêt envoyé</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Lecture arrêtée</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>Lecture en cours</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>La lecture n’est pas terminée ; fermer la fenêtre l’arrêtera.

Voulez-vous vraiment quitter ?</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>Importer des fichiers audio</translation>
    </message>
    <message>
        <source>音频数据</source>
        <translation>Données audio</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>Liste de lecture</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>Ajouter des fichiers audio à la fin de la liste</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>Réglages du moteur</translation>
    </message>
    <message>
        <source>下次建会话时交给引擎的设置</source>
        <translation>Réglages transmis au moteur à la prochaine session</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>Périphérique de sortie</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>Le périphérique utilisé pour la lecture</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>Actualiser les périphériques</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>Relire la liste des périphériques avec KelpPlayer -list</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>Afficher le journal</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>Ce que le programme a décidé, et pourquoi</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>Masquer le journal</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer — lecteur audio DSD ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>Formats : DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>Modes : standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Restauration des réglages : aucun élément ne correspond à %1 (valeur par défaut conservée)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>Analyse de %1 …</translation>
    </message>
    <message>
        <source>分析曲目</source>
        <translation>Analyser la piste</translation>
    </message>
    <message>
        <source>测出选中曲目的速度和调性；不改动文件</source>
        <translation>Détermine le tempo et la tonalité de la piste choisie ; le fichier n’est pas modifié</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>Contrôle de fin de morceau : reste %1 s, fenêtre de préchargement %2 s (fondu %3 / sans blanc %4), suivant=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>Fondu enchaîné : %1 s avant la fin, chargement anticipé du suivant (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>Sans blanc : %1 s avant la fin, préchargement du suivant (%2)</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>La position suit le temps de la source ; lecture à %1×.</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>Position et durée suivent le temps de la source ; à %1×, le morceau entier prend %2.</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>Progression %1&#xa0;%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>Analyse (décodage) de la source… %1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>ProgressRow</name>
    <message>
        <source>位置</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>播放进度</source>
        <translation>Progression de la lecture</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>Affiche seulement la progression : pas de saut pendant la lecture</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>Audio : %1 · %2 bits · %3 canaux · %4 s</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST : oui</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST : non</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 can.</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(non indiqué)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] Le fil d’interface s’est figé %1 ms — il faisait : %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] Un autre KelpPlayer est déjà ouvert — celui-ci ne démarre pas

Un second jouerait par-dessus sur le même périphérique (bruit, superposition).
Pour en ouvrir plusieurs à dessein, définissez KELP_GUI_ALLOW_MULTI=1</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>Mesures de démarrage : interface prête en %1, mémoire %2 (valeurs mesurées seulement)</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>indéterminable</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM : %1
Tonalité : %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>Analyse du morceau : BPM %1, tonalité %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>Analyse du morceau : BPM %1 (tonalité indéterminable, elle n’est pas devinée)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>Analyse du morceau : tonalité %1 (BPM indéterminable, il n’est pas deviné)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>Analyse du morceau : BPM et tonalité indéterminables, rien n’est deviné</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>Choisissez d’abord un morceau, puis lancez l’analyse</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>Analyse impossible pendant la lecture — appuyez d’abord sur Arrêt</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Analyse du morceau</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>L’analyse ne peut pas démarrer (bibliothèque du moteur indisponible, rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>L’analyse n’a rien donné : %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>Reprise à %1:%2 (arrêt précédent)</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>Le lecteur n’a pas fini en %1 s — arrêt forcé.</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>Le lecteur n’a pas fini en %1 s ; une session interne au processus ne peut être tuée (attendez ; échappatoire : KELP_GUI_INPROC=0)</translation>
    </message>
</context>
</TS>
