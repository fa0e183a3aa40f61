<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>Boucle A/B : point %1 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>Boucle A/B : le point B doit venir après le point A (A=%1s, B=%2s)</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>Boucle A/B : marquée, elle prendra effet au début de la lecture (répétition du morceau)</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>Boucle A/B : %1 → %2 en cours (répétition du morceau ; l’effacer rétablit l’ordre de lecture précédent)</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>Boucle A/B : effacée</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>Boucle A/B : effacée, ordre de lecture rétabli : %1</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>Boucle A/B : le morceau a changé, les points A/B du précédent sont abandonnés</translation>
    </message>
</context>
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
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>Bits effectifs</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>Bits effectifs : pas encore connus</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>inconnus</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>transparent</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>moins de bits</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>épuisés</translation>
    </message>
    <message>
        <source>%1 bit，%2</source>
        <translation>%1 bits, %2</translation>
    </message>
</context>
<context>
    <name>ChainLamp</name>
    <message>
        <source>未能证明</source>
        <translation>Non prouvé</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>Non bit-perfect</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>l’autotest n’a pas réussi</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>Non bit-perfect, ou non prouvé : %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>Pas encore connu</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>Le moteur n’a pas encore décrit la chaîne du signal de ce morceau ; rien n’est donc affirmé.</translation>
    </message>
    <message>
        <source>位完美</source>
        <translation>Bit-perfect</translation>
    </message>
</context>
<context>
    <name>ChainPanel</name>
    <message>
        <source>信号链</source>
        <translation>CHAÎNE</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>Verdict sur la chaîne du signal</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>Rééchantillonnage</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>Backend</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Format de sortie</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>Latence</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>Chaîne</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>Sous-alimentations</translation>
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
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>Prouvé</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>Réfuté</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>Non prouvable ici</translation>
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
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
Piste %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(balises tirées du conteneur lui-même ; aucune balise de plus dans la bibliothèque locale)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>Album : %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>Année : %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(balises tirées de la bibliothèque locale — rien n’a été écrit dans l’ISO/CUE)</translation>
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
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>Pochette</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>Aucune pochette</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>Une pochette est affichée</translation>
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
        <source>位置</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>总长</source>
        <translation>Durée totale</translation>
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
    <message>
        <source>播放顺序</source>
        <translation>Ordre de lecture</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>Paroles</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>Les paroles ne sont pas encore prêtes ; ce bouton servira dans une version ultérieure</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>Couper le son ; appuyez encore pour retrouver le volume précédent</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>Outils pour la bibliothèque, les balises, le réseau, etc.</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>Ordre de lecture : aléatoire</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>Ordre de lecture : dans l’ordre</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>Répétition : ce morceau</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>Répétition : toute la liste</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>Répétition : désactivée</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>Temps réel</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>Réverb</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>Tonalité</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Débruitage</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Égaliseur</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>Cette page d’effet n’est pas encore prête ; elle viendra dans une version ultérieure</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>Les effets sont dans le trajet : un changement s’entend aussitôt</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>Les effets ne sont pas dans le trajet en ce moment</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>L’effet est activé</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>L’effet est désactivé</translation>
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
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>L’historique d’annulation de la liste de lecture est endommagé et inutilisable ; il repart donc vide : %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>L’historique d’annulation de la liste de lecture ne correspond pas à la liste enregistrée ; il repart donc vide : %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>Impossible d’écrire l’historique d’annulation de la liste de lecture ; rien ne pourra être annulé après un redémarrage : %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>Niveau gauche</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>Niveau droit</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>SPECTRE</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>FORME D’ONDE</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>Chercher titre / artiste</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>Affichés / tous</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>La recherche et le filtrage ne sont pas encore prêts ; ils viendront dans une version ultérieure</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>BIBLIOTHÈQUE · TITRE</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>En lecture / tous</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>Tous les artistes</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>Filtrer par artiste</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>Tous les albums</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>Filtrer par album</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>Ajoute des fichiers audio à la fin de la liste</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>Ajoute les fichiers audio d’un dossier à la fin de la liste, sans ses sous-dossiers</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>Retire de la liste les morceaux choisis ; les fichiers restent</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>Vide la liste ; les fichiers restent et l’action peut être annulée</translation>
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
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>L’accent suit la pochette</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>Réduire les animations</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Spectre</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>Oscilloscope</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>Réinitialiser la disposition</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>Rétablir les réglages purs</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>Aspect de la fenêtre ; effet immédiat</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>Largeur de la colonne de droite, de 200 à 420 pixels ; effet immédiat</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>Quand la piste a une pochette, l’accent en vient ; sinon la couleur choisie</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>Les instruments sautent à la nouvelle valeur, sans lissage ni fondu</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>Taille, position et largeur de colonne par défaut</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>Coupe tout ce qui modifie les échantillons, puis lance l’autotest</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>Largeur de colonne</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>Demande le spectre au moteur ; prend effet aussitôt, même pendant la lecture</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>Demande la forme d’onde au moteur ; prend effet aussitôt, même pendant la lecture</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>Pochette</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>Montrer dans la liste le morceau en cours</translation>
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
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Choisissez un morceau ou importez de l’audio</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>aléatoire</translation>
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
        <source> · 列表循环</source>
        <translation> · répéter la liste</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · répéter le morceau</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>Vitesse de lecture : %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> (effet immédiat, même en cours de lecture)</translation>
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
        <source>播放列表</source>
        <translation>Liste de lecture</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>Réglages du moteur</translation>
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
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>Pas de PCM dans cette chaîne (DSD direct) — pas de forme d’onde</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>Pas de spectre sur ce chemin : le DSD direct ne contient pas de PCM</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>Rapport de chaîne du signal : aucune session de lecture, seul le dernier rapport est affiché.</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>Enregistrer le rapport de chaîne du signal</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>Rapport de chaîne du signal enregistré : %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>Échec de l’enregistrement du rapport de chaîne du signal : %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>Autotest bit-perfect : aucune session de lecture — lancez d’abord la lecture (sans flux, rien à juger)</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>Autotest bit-perfect : contrôle point par point demandé au moteur</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>Verdict de l’autotest bit-perfect : %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>Réglages purs par défaut rétablis (tous les effets désactivés / 1.0x / sans fondu enchaîné / volume 100 / disposition et thème réinitialisés) et autotest bit-perfect lancé</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>Ordre de lecture : %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>Boucle A/B : aucun morceau en lecture, il n’y a rien à marquer</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>Fichiers audio ignorés, faute de décodeur dans ce lecteur (MP3/AAC/OGG) : %1</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>Fichiers ignorés, car leur nom n’est pas en UTF-8 valide et ils ne s’ouvrent pas : %1</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>Morceaux ajoutés : %1 (la liste en compte %2)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>L’ajout groupé a pris %1 ms (%2 morceaux, une seule mise en page)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>Aucun fichier audio à ajouter</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>Fichiers audio (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>Le morceau en cours a été retiré de la liste (le son continue, mais il n’y figure plus)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>Morceaux retirés : %1 (la liste en compte %2)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>Liste de lecture vidée</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>Cette modification est trop importante pour être conservée ; elle ne peut pas être annulée</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>Il n’y a rien à annuler</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>L’historique d’annulation ne correspond pas à la liste de lecture ; rien n’a été annulé et l’historique a été vidé</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>Il n’y a rien à rétablir</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>L’historique de rétablissement ne correspond pas à la liste de lecture ; rien n’a été rétabli et l’historique a été vidé</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>Montrer dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>Placer en tête</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>Placer à la fin</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>Aucun gestionnaire de fichiers n’a répondu ; le dossier est ouvert à la place : %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>Impossible d’ouvrir le dossier : %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>Propriétés du morceau</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>Liste de lecture restaurée, morceaux : %1</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>Dernière lecture : morceau %1 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>Dernière lecture : morceau %1</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>Morceaux ignorés en restaurant la liste de lecture (fichier disparu) : %1</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>Le mode hors ligne est activé, action refusée : %1 (désactivez ce mode dans les réglages)</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>télécommande par téléphone (port à l’écoute)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>Télécommande par téléphone : désactivée (le port n’est plus à l’écoute)</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>Télécommande par téléphone : requête sans le bon jeton rejetée (%1)</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>Télécommande par téléphone : impossible d’écouter sur le port %1 (%2)</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>Télécommande par téléphone : activée, port %1, jeton %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>Adresse de la télécommande par téléphone : %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>Disposition : la largeur latérale %1 est hors limites et a été ramenée à %2 px</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>Disposition : largeur latérale %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>Disposition réinitialisée (taille et position de la fenêtre, largeur latérale)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>Position de la fenêtre : l’enregistrement est illisible, taille par défaut utilisée</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>Position de la fenêtre : l’écran d’origine n’est plus là, elle a été placée au milieu de l’écran principal</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>Le morceau en cours n’est pas dans la liste de la bibliothèque</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>## 播放

把文件或文件夹拖进窗口，双击一行开始播放。播放中不能跳转：位置只在曲目开始时到达。

## 键盘

- **空格** 播放 / 暂停
- **Ctrl+→** 下一首，**Ctrl+←** 上一首
- **Ctrl+↑ / Ctrl+↓** 音量
- **Ctrl+空格** 停止，**Ctrl+O** 导入文件，**F11** 最大化 / 还原
- **Ctrl+,** 设置
- 列表里：**Enter** 播放，**Delete** 移除，**Ctrl+Z** 撤销，**Ctrl+Shift+Z** 重做

## 位完美

右栏说明样本经过了什么。只有读回了设备收到的数据，才会说“送达已验证”。“位完美自检”逐项检查。
</source>
        <translation>## Lecture

Glissez des fichiers ou des dossiers dans la fenêtre et double-cliquez sur une ligne pour la lire. Il n’y a pas de saut pendant la lecture : une position n’est atteinte qu’au début d’un morceau.

## Clavier

- **Espace** lecture / pause
- **Ctrl+→** morceau suivant, **Ctrl+←** morceau précédent
- **Ctrl+↑ / Ctrl+↓** volume
- **Ctrl+Espace** arrêt, **Ctrl+O** importer des fichiers, **F11** agrandir / restaurer
- **Ctrl+,** réglages
- Dans la liste : **Entrée** lit, **Suppr** retire, **Ctrl+Z** annule, **Ctrl+Maj+Z** rétablit

## Bit-perfect

La colonne de droite dit ce que traversent les échantillons. Elle ne dit “transmission vérifiée” que si ce que le périphérique a reçu a été relu. L’“Autotest bit-perfect” examine chaque étape.
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>Fichier journal : %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>Fichier de réglages : %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>En attente de la forme d’onde</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>L’oscilloscope est désactivé : pas de forme d’onde</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Autotest bit-perfect</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>Vérifie point par point si la lecture en cours modifie les échantillons</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>Rapport de chaîne du signal…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>Affiche le rapport du moteur lui-même sur la chaîne du signal ; il peut être enregistré</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Arrêt programmé</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>Télécommande par téléphone</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>Le panneau du journal a été vidé ; le fichier journal est conservé</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>Thème : %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>Comme le système (%1)</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>La pochette n’a pas de couleur dominante utilisable (noir/gris/blanc purs) ⇒ la couleur d’accent reste celle que vous avez choisie</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>Couleur d’accent d’après la pochette : %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Choisissez un morceau ou importez de l’audio</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>Réduit dans la zone de notification, la lecture continue</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>SORTIE AUDIO</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>Le choix du spectre et de l’oscilloscope est enregistré et vaut dès la prochaine session</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>La liste a été vidée pendant l’énumération des pistes ⇒ elles ne sont pas ajoutées : %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>La piste précédente s’est terminée juste au moment où une autre était choisie ⇒ ce n’est pas la fin de la piste choisie</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>Ignoré (son chemin contient un saut de ligne, qu’aucune ligne de commande ne peut porter) : %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>Ajout annulé, morceaux : %1 (la liste en compte %2)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>Retrait annulé, morceaux de retour : %1 (la liste en compte %2)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>L’ordre de lecture précédent est rétabli</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>Morceaux ajoutés de nouveau : %1 (la liste en compte %2)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>Morceaux retirés de nouveau : %1 (la liste en compte %2)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>L’ordre de lecture a de nouveau été modifié</translation>
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
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>La piste suivante n’est pas préchargée (%1) : d’après le seul chemin, le moteur la prendrait pour une autre ⇒ elle sera chargée par son numéro à la fin de celle-ci</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
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
        <source>循环起点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Début de la boucle : marque la position actuelle. Dès que A et B sont posés, la boucle commence ; appuyez encore pour l’effacer</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Fin de la boucle : marque la position actuelle. Dès que A et B sont posés, la boucle commence ; appuyez encore pour l’effacer</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>Télécommande par téléphone</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>Un téléphone du même réseau Wi-Fi commande la lecture depuis son navigateur ; tant qu’elle est activée, cet ordinateur écoute sur un port</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>Port sur lequel écoute la télécommande par téléphone ; il est lu au moment où l’interrupteur est activé</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>Port de la télécommande par téléphone</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>Adresses de la télécommande par téléphone</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>Cet ordinateur n’a pas d’adresse IPv4 sur le réseau local</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>À ouvrir dans le navigateur du téléphone (même Wi-Fi que l’ordinateur) :
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>Télécommande par téléphone : désactivée</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>Rapport de chaîne du signal</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>Redemander</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Enregistrer le rapport…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>Type : webradio</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>Type : piste %1 d’une feuille CUE</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>Type : piste %1 d’une image SACD</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>Type : piste %1 d’un conteneur</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>Type : fichier audio</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>Affiché : %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>Place : élément %1/%2</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>Format : %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>Fichier : %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>Feuille CUE : %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>Temps : %1 s → %2 s (durée %3 s)</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>Oscilloscope</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>Rien en lecture : pas de forme d’onde</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>Amplitude maximale : gauche %1 %, droite %2 %</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>Crête de sortie de ce canal (dBFS) : le moteur la donne 20 fois par seconde, à 0,01 dB près, avec un plancher de −120 dB (au-dessous s’affiche −∞ dB) ; à 0 dBFS le rouge reste 1,5 s (écrêtage possible)</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>La source est-elle sans perte ?</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>En attente de la réponse du moteur.</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>La source est sans perte</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>Le codage restitue chaque échantillon qui y est entré ; rien n’a été écarté.</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>La source n’est pas sans perte</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>Le fichier ne contient plus tous les échantillons d’origine, et aucune étape ultérieure ne peut les rendre.</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>On ne sait pas si la source est sans perte</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>Le moteur n’a rien fourni qui le prouve ; cela ne compte pas comme réussi.</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>Le chemin est-il intact ?</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>Le chemin est intact</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>Du fichier au périphérique, aucune étape n’a modifié un échantillon.</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>Le chemin est modifié</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>Du fichier au périphérique, une étape modifie les échantillons.</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>On ne sait pas si le chemin est intact</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>La transmission est-elle vérifiée ?</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>La transmission est vérifiée</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>Le périphérique a été ouvert comme demandé, et le format qu’on y relit est celui qui a été envoyé.</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>La transmission diffère</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>Ce qui a atteint le périphérique n’est pas ce qui a été envoyé, ou une autre étape se trouve sur le chemin.</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>La transmission n’est pas vérifiable</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>Le format réel du périphérique ne peut pas être relu ; cela ne compte pas comme réussi.</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>Première étape qui rompt le bit-perfect : %1.</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>Première étape impossible à prouver : %1.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>Verdict : bit-perfect ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>Verdict : non bit-perfect ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Autotest bit-perfect</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>Le moteur contrôle étape par étape la chaîne en lecture : source, décodage, rééchantillonnage, effets, vitesse, volume, fondus, protection des crêtes, profondeur de bits, mélangeur, relecture du périphérique et sous-alimentations du tampon. Il juge d’après ce que chaque étape fait réellement à cet instant, jamais d’après un réglage ; ce qui ne peut être prouvé ne compte pas comme réussi.</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>Résultats, point par point</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Enregistrer le rapport…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>Contrôle en cours…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>Autotest bit-perfect — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>réussi</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>échoué</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>Après %1 minutes</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Arrêt programmé</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>Le moment venu, baisse le son en dix secondes, puis arrête la lecture</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>Arrêt programmé : désactivé</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>Arrêt programmé : %1 min</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>Arrêt programmé : fondu de sortie (arrêt dans 10 secondes)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>Arrêt programmé : fondu terminé, lecture arrêtée</translation>
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
    <name>SpectrumView</name>
    <message>
        <source>频谱</source>
        <translation>Spectre</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>Bande la plus forte : gauche %1, droite %2, sur %3</translation>
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
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>Ouvrir les réglages (Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1 : allumé</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1 : éteint</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restaurer</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>Analyser les dossiers de la bibliothèque (incrémental)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>Chercher les doublons</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>Modifier les balises par lot</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>Listes de lecture intelligentes</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>Bilan de l’année</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Analyse du morceau</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>Ordre DSP</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>Comparer les empreintes</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>Compléter les balises en ligne</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>Bibliothèque réseau</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>Synchronisation du téléphone</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>Modules d’extension</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>Stations/réseau/relais</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>Mode voiture</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>Montages réseau</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>Vérifier la bibliothèque</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Vider le journal</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>Aide…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>Cette fonction n’est pas encore prête ; elle viendra dans une version ultérieure</translation>
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
<context>
    <name>ValueCards</name>
    <message>
        <source>码率</source>
        <translation>DÉBIT</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>FRÉQUENCE</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>CANAUX</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>LECTURES</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>Avertissements dans la chaîne du signal : %1</translation>
    </message>
</context>
</TS>
