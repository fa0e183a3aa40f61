<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>A/B-Schleife: Punkt %1 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>A/B-Schleife: Punkt B muss hinter Punkt A liegen (A=%1s, B=%2s)</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>A/B-Schleife: markiert, wirkt ab dem Start der Wiedergabe (Titel wiederholen)</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>A/B-Schleife: %1 → %2 läuft (Titel wird wiederholt; nach dem Löschen gilt wieder die vorige Reihenfolge)</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>A/B-Schleife: gelöscht</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>A/B-Schleife: gelöscht, Reihenfolge wieder: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>A/B-Schleife: Der Titel hat gewechselt, die Punkte A/B des vorigen Titels wurden verworfen</translation>
    </message>
</context>
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>Hinweise zu Dritten und Normen</translation>
    </message>
</context>
<context>
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>Effektive Bits</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>Effektive Bits: noch nicht bekannt</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>transparent</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>weniger Bits</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>aufgebraucht</translation>
    </message>
    <message>
        <source>%1 bit，%2</source>
        <translation>%1 Bit, %2</translation>
    </message>
</context>
<context>
    <name>ChainLamp</name>
    <message>
        <source>未能证明</source>
        <translation>Nicht nachgewiesen</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>Nicht bitgenau</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>der Selbsttest wurde nicht bestanden</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>Nicht bitgenau oder nicht nachgewiesen: %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>Noch nicht bekannt</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>Die Engine hat die Signalkette dieses Titels noch nicht gemeldet, deshalb wird nichts behauptet.</translation>
    </message>
    <message>
        <source>位完美</source>
        <translation>Bitgenau</translation>
    </message>
</context>
<context>
    <name>ChainPanel</name>
    <message>
        <source>信号链</source>
        <translation>SIGNALKETTE</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>Urteil über die Signalkette</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>Resampling</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>Backend</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>Latenz</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>Urteil</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>Kette</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>Unterläufe</translation>
    </message>
</context>
<context>
    <name>ChainText</name>
    <message>
        <source>位完美</source>
        <translation>Bitgenau</translation>
    </message>
    <message>
        <source>混音+转换</source>
        <translation>Mischer+Wandlung</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>Systemmischer</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>Gewandelt</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>Nachgewiesen</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>Widerlegt</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>Hier nicht nachweisbar</translation>
    </message>
</context>
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
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>SACD-ISO: %1 — %2 Titel</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>CUE konnte nicht gelesen werden: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>ISO konnte nicht gelesen werden: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>Keine abspielbaren Titel in diesem CUE: %1 (Abfrage rc=%2, %3 Zeilen Ausgabe; Inhalt: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>Keine abspielbaren Titel in diesem ISO: %1 (Abfrage rc=%2, %3 Zeilen Ausgabe; Inhalt: %4)</translation>
    </message>
</context>
<context>
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
Titel %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(Tags aus den Angaben des Containers selbst; die lokale Bibliothek hat keine weiteren)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>Album: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>Jahr: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(Tags aus der lokalen Bibliothek — in ISO/CUE wurde nichts geschrieben)</translation>
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
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[Steuerung] Senden von %1 dauerte %2 ms (sollte unter 1 ms liegen)</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[Steuerung] %1</translation>
    </message>
</context>
<context>
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>Kein Cover</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>Cover wird gezeigt</translation>
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
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>Testhaken: Fenster schließt von selbst (wie ein Klick auf Schließen)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse (Systemmischer; nicht bitgenau)</translation>
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
    <name>DisplayPanel</name>
    <message>
        <source>位置</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>总长</source>
        <translation>Gesamtlänge</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Wiedergabe stoppen</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>Vorigen Titel abspielen</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>Gewählten Titel abspielen</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>Nächsten Titel abspielen</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>Lautstärke; bei 100&#xa0;% bleiben die Samples unverändert</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Titel wählen oder Audio importieren</translation>
    </message>
    <message>
        <source>播放顺序</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>Liedtext</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>Liedtexte gibt es noch nicht; diese Taste wirkt erst in einer späteren Version</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>Stummschalten; erneut drücken stellt die vorige Lautstärke wieder her</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>Werkzeuge für Bibliothek, Tags, Netzwerk und mehr</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>Reihenfolge: zufällig</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>Reihenfolge: der Reihe nach</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>Wiederholen: dieser Titel</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>Wiederholen: die ganze Liste</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>Wiederholen: aus</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>Hall</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>Raum</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Entrauschen</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Equalizer</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>Diese Effektseite gibt es noch nicht; sie kommt in einer späteren Version</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>Die Effekte liegen im Signalweg: Änderungen sind sofort zu hören</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>Die Effekte liegen gerade nicht im Signalweg</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>Der Effekt ist an</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>Der Effekt ist aus</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>Effektive Bits: Verstärkung 1 (Samples unverändert)</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>Effektive Bits: aufgebraucht (Dämpfung zu groß)</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>Effektive Bits: kein Verlust, aber die Verstärkung hebt die Spitzen an (Gefahr der Übersteuerung)</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>Effektive Bits: unberührt (Lautstärke des Geräts/Endpunkts, Samples werden nicht skaliert)</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>Effektive Bits: unberührt (im DoP-Strom wird die Lautstärke nicht bearbeitet)</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>Effektive Bits: siehe Protokoll (DSD direkt, Mischer des Geräts in Gebrauch)</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>Effektive Bits: von der Software-Verstärkung bestimmt (siehe nächste Zeile)</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>Effektive Bits: etwa %1 Bit (nach der Software-Dämpfung)</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>Effektive Bits: siehe Protokoll</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>Vor dem Ende abgebrochen (%1&#xa0;%); gestoppt, es geht nicht mit dem nächsten Titel weiter</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>Der Player endete unerwartet, Code: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  letzte Zeile der Engine: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>Der exklusive Ausgang lässt sich nicht öffnen (belegt oder Format nicht unterstützt) ⇒ neuer Versuch für diesen Titel mit auto (exklusiv → gemeinsam)</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>Sitzung geschlossen (Gerät/Anordnung geändert); die nächste Wiedergabe beginnt eine neue mit den neuen Einstellungen</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Wiedergabe gestoppt</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Wiedergabe beendet</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>Das Ende-Ereignis der vorigen Sitzung wird übergangen (die Sitzung wurde eben neu aufgebaut, das Ereignis stammt von der abgebauten).</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>Dekodierung</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>Ausgabeweg</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>Exklusiv geht direkt zur Hardware, gemeinsam durch den Systemmischer; auto versucht erst exklusiv, dann gemeinsam.</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>DSD-Übertragung</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto entscheidet das Programm; force nimmt immer DoP; native verlangt natives DSD.</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>Wiedergabemodus</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard nutzt ein Gerät; die anderen Modi eines je Kanal oder Kanalpaar.</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>Kanalzahl</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>Wie viele Kanäle die Modi mit mehreren Geräten verteilen.</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 Kanäle</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>Kanalanordnung</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>Wie die Kanäle der Quelle auf die Ausgänge verteilt werden; auto entscheidet das Programm.</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>Trennfrequenz</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>Was tiefer liegt, geht an die Bassgeräte.</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>Gebrückte Weiche</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>Je Weg zwei Geräte in Brückenschaltung.</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>Gerät %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>Das Ausgabegerät dieses Kanals.</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>DSD immer zu PCM dekodieren</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>Kein direktes DSD mehr: für Geräte, die nur PCM nehmen, oder wenn Effekte wirken sollen.</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>PCM-Bittiefe</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>Bittiefe, wenn DSD zu PCM dekodiert wird.</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>Dekodierfilter</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>Filter von DSD zu PCM: je besser, desto mehr Rechenzeit.</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>Optimal</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM zu DSD</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>Moduliert PCM zu DSD: ändert die Samples, nicht bitgenau.</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>Zielrate</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>DSD-Rate nach der Modulation.</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>Taps des Modulatorfilters</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>Länge des Upsampling-Filters; automatisch entscheidet die Engine.</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>Externe Dekoderbibliothek</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>Pfad der externen Dekoderbibliothek; leer heißt keine.</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>Spitzenschutz</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>Senkt Spitzen nur dort, wo sie sonst übersteuern würden.</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>Resampling auf die Rate des Geräts</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>Ändert die Samples, nicht bitgenau.</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>Qualität des Resamplings</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>Je besser, desto mehr Rechenzeit.</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>ReplayGain</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>Gleicht die Lautheit nach den ReplayGain-Tags der Datei an.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>Je Titel</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>Je Album</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Entrauschen</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>Entfernt das Grundrauschen der Aufnahme; solange an, kein direktes DSD.</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>Leicht</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>Stark</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>Obertöne erhalten</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>Schont beim Entrauschen die Obertöne der Klänge.</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>Lückenlose Wiedergabe</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>Lädt den nächsten Titel vor dem Ende vor, ohne Pause dazwischen.</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>Überblenden</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>Sekunden, um die sich zwei Titel überlappen; 0 heißt keine.</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>Wiedergabetempo</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>Die Tonhöhe bleibt; außer bei 1.00 nicht bitgenau.</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>Beim Lesen abspielen</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>Liest die Datei nicht erst in den Speicher.</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1 (automatisch)</translation>
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
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>Rauschprofil wird gelernt</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>Rauschprofil bereit</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>kein Rauschen in diesem Titel, wird durchgereicht</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>Rauschen wird gelernt (etwa 1 s)</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>Pegel/Spektrum an die Ausgabelatenz angeglichen: %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>Fortschritt erhalten (PG): gespielt %1 s / gesamt %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>DSP führt der Modulator aus</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>Oszilloskop: erstes Bild empfangen (%1 Abschnitte)</translation>
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
        <translation>Entwicklungs-Build (build/)</translation>
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
    <message>
        <source>(完全没有输出)</source>
        <translation>(gar keine Ausgabe)</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>Der Rückgängig-Verlauf der Wiedergabeliste ist beschädigt und unbrauchbar, er beginnt daher leer: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>Der Rückgängig-Verlauf der Wiedergabeliste passt nicht zur gespeicherten Liste, er beginnt daher leer: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>Der Rückgängig-Verlauf der Wiedergabeliste lässt sich nicht schreiben, nach einem Neustart gibt es nichts rückgängig zu machen: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>Pegel links</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>Pegel rechts</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>SPEKTRUM</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>WELLENFORM</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>Titel / Interpret suchen</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>Angezeigt / alle</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>Suchen und Filtern gibt es noch nicht; sie kommen in einer späteren Version</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>BIBLIOTHEK · TITEL</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>Spielt / alle</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>Alle Künstler</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>Nach Interpret filtern</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>Alle Alben</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>Nach Album filtern</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>Setzt Audiodateien ans Ende der Liste</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>Setzt die Audiodateien eines Ordners ans Ende der Liste; ohne Unterordner</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>Entfernt die gewählten Titel aus der Liste; die Dateien bleiben</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>Leert die Liste; die Dateien bleiben, und es lässt sich rückgängig machen</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>Akzentfarbe folgt dem Cover</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>Weniger Bewegung</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>Oszilloskop</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>Layout zurücksetzen</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>Reine Vorgaben wiederherstellen</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>Aussehen des Fensters; wirkt sofort</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>Breite der rechten Spalte, 200 bis 420 Pixel; wirkt sofort</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>Hat der Titel ein Cover, kommt der Akzent daraus; sonst gilt die gewählte Farbe</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>Die Anzeigen springen auf den neuen Wert, ohne Glättung und Ausblenden</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>Fenstergröße, Lage und Spaltenbreite auf die Vorgabe</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>Schaltet alles ab, was Samples ändert, und prüft dann auf Bitgenauigkeit</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>Spaltenbreite</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>Fordert das Spektrum von der Engine an; wirkt sofort, auch während der Wiedergabe</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>Fordert die Wellenform von der Engine an; wirkt sofort, auch während der Wiedergabe</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>Den laufenden Titel in der Liste zeigen</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(keine Ausgabe)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>5 Sekunden nach dem Start noch kein Sample – letzte Zeile der Engine: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>5 Sekunden nach dem Start kein Ton – **das Gerät wurde nie geöffnet** (kein OPENED im Protokoll der Engine): meist exklusiver Zugriff verweigert, Format nicht unterstützt oder von einem anderen Programm belegt; siehe die WASAPI-Zeilen oben; letzte Zeile der Engine: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  Der Reihe nach prüfen: (1) wo die Zeile oben stehen blieb – Dekodierung / Gerät / exklusiv; (2) dieselbe Datei auf der Befehlszeile abspielen; (3) im Protokoll nach WASAPI / OPENED / 0x8889000A suchen. Die Sitzung wird nicht von selbst neu aufgebaut.</translation>
    </message>
</context>
<context>
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Titel wählen oder Audio importieren</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>zufällig</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>der Reihe nach</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · ohne Wiederholung</translation>
    </message>
    <message>
        <source> · 列表循环</source>
        <translation> · Liste wiederholen</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · Titel wiederholen</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>Wiedergabetempo: %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> (wirkt sofort, auch während der Wiedergabe)</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>Engine-Protokoll: an der eigenen Vorgabestelle der Engine</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>Engine-Protokoll (bleibt, wird beim Beenden nicht gelöscht): %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>Engine-Protokoll (diese Sitzung, wird beim Beenden gelöscht): %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>Die vorige Sitzung im selben Prozess wurde in 2 s nicht fertig – dieser Prozess hält das exklusive Gerät vielleicht noch, der nächste Titel kann es womöglich nicht öffnen</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(Systemvorgabe)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (Vorgabe)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>Geräteliste (-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (nicht angeschlossen – anstecken und „Geräte aktualisieren“ drücken)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>Wiedergabe … %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>Die Wiedergabeliste ist leer</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>Das ist schon der erste Titel</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>Das ist schon der letzte Titel</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>Titel %1/%2</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>Verschieben misslungen: Zeilennummer außerhalb (from=%1 to=%2, Liste hat %3 Einträge)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>Reihenfolge geändert: Eintrag %1/%2</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>Automatischer Wechsel: Liste oder Reihenfolge änderte sich am Titelende, nach der Datei ist es Titel %1/%2</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>Automatischer Wechsel (lückenlos/Überblenden): Titel %1/%2: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>Die vorige Sitzung ist noch nicht fertig (der exklusive Zugriff wird abgebaut) – jetzt wird keine neue aufgebaut. Bitte noch einmal auf Wiedergabe drücken; hilft das nicht, den Player neu starten.</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Wiedergabe beendet</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>Ende der Wiedergabeliste (%1)</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>Ende der Wiedergabeliste</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[Dauer] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>Übersprungen (Datei nicht da): %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>Fehler: Die Engine %1 wurde nicht gefunden – bitte neben das Programm legen, in PATH aufnehmen oder mit KELP_PLAYER_BIN angeben.</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>Gerät oder Anordnung geändert -&gt; laufende Sitzung wird geschlossen (Gerät wird frei)</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>Die alte Sitzung endete nicht in 10 s – sie wird zwangsweise beendet (das Gerät wird vielleicht erst etwas später frei)</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>Laufende Sitzung wird weiterbenutzt (Titelwechsel nur mit load, ohne neue Argumente): %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[DLL im Prozess] Argumente der Sitzung: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>Wiedergabebefehl: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>Start des Players misslungen (start der Sitzung ergab %1) ⇒ zurück in den Ruhezustand</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>Entrauschstufe an die laufende Sitzung nachgereicht: %1 (eine weiterbenutzte Sitzung liest ihre Argumente nicht neu)</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>Spitzenschutz an die laufende Sitzung nachgereicht: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>Fehler: Bitte zuerst Audiodateien hinzufügen</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>Die alte Sitzung läuft noch ⇒ sie wird vor dem Start abgetrennt (eine Sitzung im selben Prozess muss von selbst enden)</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>Die alte Sitzung ist noch nicht beendet, es kann nichts Neues beginnen – bitte abwarten (oder neu starten; für Automatisierung/Fehlersuche KELP_GUI_INPROC=0 mit Kindprozess)</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>Es läuft keine Wiedergabe</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>Player wird gestoppt …</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>Stoppsignal gesendet</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Wiedergabe gestoppt</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>Wiedergabe läuft</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>Die Wiedergabe läuft noch; das Schließen des Fensters stoppt sie.

Wirklich beenden?</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>Audiodateien importieren</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>Wiedergabeliste</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>Engine-Einstellungen</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>Ausgabegerät</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>Das Gerät, auf dem abgespielt wird</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>Geräte aktualisieren</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>Geräteliste aus KelpPlayer -list neu lesen</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>Protokoll zeigen</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>Was das Programm entschied und warum</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>Protokoll ausblenden</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer – DSD-Audioplayer ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>Formate: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>Modi: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Einstellungen wiederherstellen: kein Eintrag passt zu %1 (Vorgabe bleibt)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>%1 wird analysiert …</translation>
    </message>
    <message>
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>Kein PCM in dieser Kette (DSD direkt) — keine Wellenform</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>Kein Spektrum auf diesem Weg: Direkt ausgegebenes DSD enthält kein PCM</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>Bericht zur Signalkette: keine Wiedergabesitzung, daher nur der letzte Bericht.</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>Bericht zur Signalkette speichern</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>Bericht zur Signalkette gespeichert: %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>Bericht zur Signalkette konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>Bitgenau-Selbsttest: keine Wiedergabesitzung — bitte zuerst die Wiedergabe starten (ohne Datenstrom gibt es nichts zu beurteilen)</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>Bitgenau-Selbsttest: Die Engine wurde um eine Prüfung Punkt für Punkt gebeten</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>Urteil des Bitgenau-Selbsttests: %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>Reine Standardwerte wiederhergestellt (alle Effekte aus / 1.0x / kein Überblenden / Lautstärke 100 / Anordnung und Farbschema zurückgesetzt) und Bitgenau-Selbsttest gestartet</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>Reihenfolge: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>A/B-Schleife: Es läuft kein Titel, also gibt es nichts zu markieren</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>Audiodateien übersprungen, für die dieser Player keinen Dekoder hat (MP3/AAC/OGG): %1</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>Dateien übersprungen, deren Name kein gültiges UTF-8 ist und die sich nicht öffnen lassen: %1</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>%1 Titel hinzugefügt (Liste jetzt: %2)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>Hinzufügen im Block dauerte %1 ms (%2 Titel, nur ein Layoutdurchgang)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>Keine Audiodateien zum Hinzufügen</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>Audiodateien (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>Der laufende Titel wurde aus der Liste entfernt (er spielt weiter, steht aber nicht mehr in der Liste)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>%1 Titel entfernt (Liste jetzt: %2)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>Wiedergabeliste geleert</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>Diese Änderung ist zu groß, um sie festzuhalten, und lässt sich daher nicht rückgängig machen</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>Es gibt nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>Der Rückgängig-Verlauf passt nicht zur Wiedergabeliste; nichts wurde rückgängig gemacht, der Verlauf wurde geleert</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>Es gibt nichts wiederherzustellen</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>Der Wiederherstellen-Verlauf passt nicht zur Wiedergabeliste; nichts wurde wiederhergestellt, der Verlauf wurde geleert</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>Ganz nach oben</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>Ganz nach unten</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>Kein Dateimanager hat geantwortet, stattdessen wird der Ordner geöffnet: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>Der Ordner lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>Titeleigenschaften</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>Wiedergabeliste wiederhergestellt: %1 Titel</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>Zuletzt gespielt: Titel %1 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>Zuletzt gespielt: Titel %1</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>%1 Titel beim Wiederherstellen der Wiedergabeliste übersprungen (Datei nicht mehr da)</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>Offline-Modus ist an: %1 abgelehnt (Offline-Modus in den Einstellungen abschaltbar)</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>Handy-Fernbedienung (lauschender Port)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>Handy-Fernbedienung: aus (der Port lauscht nicht mehr)</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>Handy-Fernbedienung: Anfrage ohne gültiges Token abgewiesen (%1)</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>Handy-Fernbedienung: Port %1 lässt sich nicht öffnen (%2)</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>Handy-Fernbedienung: an, Port %1, Token %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>Adresse der Handy-Fernbedienung: %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>Anordnung: Breite der Seitenspalte %1 liegt außerhalb des Bereichs und wurde auf %2 px begrenzt</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>Anordnung: Breite der Seitenspalte %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>Anordnung zurückgesetzt (Fenstergröße/Position/Breite der Seitenspalte)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>Fensterposition: Der gespeicherte Eintrag ist unlesbar, daher gilt die Standardgröße</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>Fensterposition: Der frühere Bildschirm fehlt, das Fenster steht jetzt mitten auf dem Hauptbildschirm</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>Der laufende Titel steht nicht in der Bibliotheksliste</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Hilfe</translation>
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
        <translation>## Wiedergabe

Ziehen Sie Dateien oder Ordner ins Fenster und doppelklicken Sie auf eine Zeile, um sie abzuspielen. Während der Wiedergabe lässt sich nicht springen: Eine Position wird nur am Anfang eines Titels angefahren.

## Tastatur

- **Leertaste** Wiedergabe / Pause
- **Strg+→** nächster Titel, **Strg+←** voriger Titel
- **Strg+↑ / Strg+↓** Lautstärke
- **Strg+Leertaste** Stopp, **Strg+O** Dateien importieren, **F11** maximieren / wiederherstellen
- **Strg+,** Einstellungen
- In der Liste: **Eingabe** spielt ab, **Entf** entfernt, **Strg+Z** macht rückgängig, **Strg+Umschalt+Z** stellt wieder her

## Bitgenau

Die rechte Spalte sagt, was die Samples durchlaufen. Nur wenn zurückgelesen wurde, was beim Gerät ankam, heißt es dort “Übergabe verifiziert”. Der “Bitgenau-Selbsttest” prüft jede Stufe.
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>Protokolldatei: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>Einstellungsdatei: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>Warten auf die Wellenform</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>Das Oszilloskop ist aus: keine Wellenform</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Bitgenau-Selbsttest</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>Prüft Punkt für Punkt, ob die laufende Wiedergabe die Samples verändert</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>Bericht zur Signalkette …</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>Zeigt den Bericht der Engine selbst über die Signalkette; er lässt sich speichern</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Einschlaftimer</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>Handy-Fernbedienung</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>Das Protokollfenster wurde geleert; die Protokolldatei bleibt</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>Farbschema: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>Wie das System (%1)</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>Das Cover hat keine brauchbare Hauptfarbe (reines Schwarz/Grau/Weiß) ⇒ die Akzentfarbe bleibt, wie Sie sie gewählt haben</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>Akzentfarbe folgt dem Cover: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Titel wählen oder Audio importieren</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>In den Infobereich verkleinert, die Wiedergabe läuft weiter</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>AUSGABEGERÄT</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>Die Wahl von Spektrum und Oszilloskop ist gespeichert und gilt ab der nächsten Sitzung</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>Die Liste wurde geleert, während Titel aufgelistet wurden ⇒ sie werden nicht hinzugefügt: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>Der vorige Titel endete gerade, als ein anderer gewählt wurde ⇒ das ist nicht das Ende des gewählten</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>Wird übersprungen (im Pfad steht ein Zeilenumbruch, den keine Steuerzeile tragen kann): %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>Hinzufügen rückgängig gemacht: %1 Titel (Liste jetzt: %2)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>Entfernte Titel wieder da: %1 (Liste jetzt: %2)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>Die vorige Reihenfolge gilt wieder</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>%1 Titel wieder hinzugefügt (Liste jetzt: %2)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>%1 Titel wieder entfernt (Liste jetzt: %2)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>Die Reihenfolge wurde erneut geändert</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>Prüfung am Titelende: noch %1 s, Vorladefenster %2 s (Überblenden %3 / lückenlos %4), nächster=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>Überblenden: %1 s vor dem Ende, nächster Titel wird vorgeladen (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>Lückenlos: %1 s vor dem Ende, nächster Titel wird vorgeladen (%2)</translation>
    </message>
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>Der nächste Titel wird nicht vorab geladen (%1): allein nach dem Pfad hielte ihn die Engine für einen anderen ⇒ er wird nach diesem mit seiner Nummer geladen</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
    <message>
        <source>播放进度</source>
        <translation>Wiedergabefortschritt</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>Zeigt nur den Fortschritt: Springen während der Wiedergabe geht nicht</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>Die Position folgt der Zeit der Quelle; Wiedergabe mit %1×.</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>Position und Länge folgen der Zeit der Quelle; bei %1× dauert der ganze Titel %2.</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>Fortschritt %1&#xa0;%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>Quelle wird eingelesen (dekodiert) … %1&#xa0;%</translation>
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
        <translation>Anfang der Schleife: markiert die jetzige Position. Sind A und B gesetzt, beginnt die Schleife; erneut drücken löscht sie</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Ende der Schleife: markiert die jetzige Position. Sind A und B gesetzt, beginnt die Schleife; erneut drücken löscht sie</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>Handy-Fernbedienung</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>Ein Handy im selben WLAN steuert die Wiedergabe über den Browser; solange das an ist, lauscht dieser Rechner auf einem Port</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>Port, auf dem die Handy-Fernbedienung lauscht; gelesen wird er in dem Moment, in dem der Schalter eingeschaltet wird</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>Port der Handy-Fernbedienung</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>Adressen der Handy-Fernbedienung</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>Dieser Rechner hat keine IPv4-Adresse im lokalen Netz</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>Im Browser des Handys öffnen (im selben WLAN wie der Rechner):
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>Handy-Fernbedienung: aus</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>Bericht zur Signalkette</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>Erneut abfragen</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Bericht speichern …</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>Art: Internetradio</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>Art: Titel %1 eines CUE-Sheets</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>Art: Titel %1 eines SACD-Images</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>Art: Titel %1 eines Containers</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>Art: Audiodatei</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>Anzeige: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>Platz: Eintrag %1/%2</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>Format: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>CUE-Sheet: %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>Zeit: %1 s → %2 s (Länge %3 s)</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>Oszilloskop</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>Keine Wiedergabe: keine Wellenform</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>Größte Amplitude: links %1 %, rechts %2 %</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>Spitzenpegel dieses Kanals am Ausgang (dBFS): Die Engine meldet ihn 20-mal je Sekunde mit 0,01 dB Auflösung, Untergrenze −120 dB (darunter steht −∞ dB); bei 0 dBFS bleibt er 1,5 s rot (Verdacht auf Übersteuerung)</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>Ist die Quelle verlustfrei?</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>Wartet auf die Antwort der Engine.</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>Die Quelle ist verlustfrei</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>Die Kodierung gibt jedes Sample zurück, das hineinging; nichts wurde verworfen.</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>Die Quelle ist nicht verlustfrei</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>Die Datei enthält nicht mehr alle ursprünglichen Samples, und keine spätere Stufe kann sie zurückbringen.</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>Ob die Quelle verlustfrei ist, ist nicht bekannt</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>Die Engine lieferte nichts, was es nachweisen würde; das gilt nicht als bestanden.</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>Ist der Weg unverändert?</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>Der Weg ist unverändert</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>Zwischen Datei und Gerät hat keine Stufe ein Sample verändert.</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>Der Weg ist verändert</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>Zwischen Datei und Gerät verändert eine Stufe die Samples.</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>Ob der Weg unverändert ist, ist nicht bekannt</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>Ist die Übergabe verifiziert?</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>Die Übergabe ist verifiziert</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>Das Gerät wurde wie verlangt geöffnet, und das zurückgelesene Format gleicht dem gesendeten.</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>Die Übergabe weicht ab</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>Beim Gerät kam nicht an, was gesendet wurde, oder eine weitere Stufe liegt auf dem Weg.</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>Die Übergabe lässt sich nicht verifizieren</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>Womit das Gerät wirklich läuft, lässt sich nicht zurücklesen; das gilt nicht als bestanden.</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>Erste Stufe, die die Bitgenauigkeit bricht: %1.</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>Erste Stufe, die sich nicht nachweisen lässt: %1.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>Urteil: bitgenau ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>Urteil: nicht bitgenau ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Bitgenau-Selbsttest</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>Die Engine prüft die laufende Kette Stufe für Stufe: Quelle, Dekodierung, Resampling, Effekte, Tempo, Lautstärke, Blenden, Spitzenschutz, Bittiefe, Mischer, das vom Gerät Zurückgelesene und Pufferunterläufe. Sie urteilt danach, was jede Stufe jetzt wirklich tut, nie nach einer Einstellung; was sich nicht nachweisen lässt, gilt nicht als bestanden.</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>Ergebnisse, Punkt für Punkt</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Bericht speichern …</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>Prüfung läuft …</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>Bitgenau-Selbsttest — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>nicht bestanden</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>Nach %1 Minuten</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Einschlaftimer</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>Blendet nach Ablauf der Zeit über zehn Sekunden aus und stoppt dann</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>Einschlaftimer: aus</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>Einschlaftimer: %1 min</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>Einschlaftimer: wird ausgeblendet (Stopp in 10 Sekunden)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>Einschlaftimer: ausgeblendet und gestoppt</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>Audio: %1 · %2 Bit · %3 Kanäle · %4 s</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST: ja</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST: nein</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 Kan.</translation>
    </message>
</context>
<context>
    <name>SpectrumView</name>
    <message>
        <source>频谱</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>Lautestes Band: links %1, rechts %2, von %3</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(nicht vermerkt)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] Der Oberflächen-Thread stand %1 ms still – er tat gerade: %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] Ein anderer KelpPlayer läuft schon – dieser startet nicht

Ein zweiter spielte auf demselben Gerät darüber (hörbar als Rauschen/Überlagerung).
Für absichtlich mehrere bitte KELP_GUI_ALLOW_MULTI=1 setzen</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>Startwerte: Oberfläche bereit nach %1, Speicher %2 (nur Gemessenes)</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>Einstellungen öffnen (Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1: an</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1: aus</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>Bibliotheksordner einlesen (inkrementell)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>Doppelte Titel suchen</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>Tags im Stapel bearbeiten</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>Intelligente Wiedergabelisten</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>Jahresbericht</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Titelanalyse</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>DSP-Reihenfolge</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>Fingerabdrücke vergleichen</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>Tags online ergänzen</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>Netzwerkbibliothek</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>Handy-Abgleich</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>Erweiterungen</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>Sender/Netzwerk/Weitergabe</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>Fahrzeugmodus</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>Netzlaufwerke</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>Bibliothek prüfen</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Protokoll leeren</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>Hilfe …</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>Diese Funktion gibt es noch nicht; sie kommt in einer späteren Version</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>nicht bestimmbar</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
Tonart: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>Titelanalyse: BPM %1, Tonart %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>Titelanalyse: BPM %1 (die Tonart ist nicht bestimmbar und wird nicht geraten)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>Titelanalyse: Tonart %1 (BPM ist nicht bestimmbar und wird nicht geraten)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>Titelanalyse: weder BPM noch Tonart sind bestimmbar, geraten wird nicht</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>Erst einen Titel wählen, dann analysieren</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>Während der Wiedergabe ist keine Analyse möglich – bitte erst auf Stopp drücken</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Titelanalyse</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>Die Analyse lässt sich nicht starten (Engine-Bibliothek nicht verfügbar, rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>Die Analyse ergab nichts: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>Weiter ab %1:%2 (hier wurde zuletzt gestoppt)</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>Der Player wurde in %1 s nicht fertig – er wird zwangsweise beendet.</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>Der Player wurde in %1 s nicht fertig; eine Sitzung im selben Prozess lässt sich nicht abbrechen (bitte abwarten; Ausweg: KELP_GUI_INPROC=0)</translation>
    </message>
</context>
<context>
    <name>ValueCards</name>
    <message>
        <source>码率</source>
        <translation>BITRATE</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>ABTASTRATE</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>KANÄLE</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>GESPIELT</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>Warnungen in der Signalkette: %1</translation>
    </message>
</context>
</TS>
