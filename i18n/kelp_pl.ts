<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>Pętla A/B: punkt %1 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>Pętla A/B: punkt B musi leżeć za punktem A (A=%1s, B=%2s)</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>Pętla A/B: oznaczona, zadziała po rozpoczęciu odtwarzania (powtarzanie utworu)</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>Pętla A/B: %1 → %2 rozpoczęta (powtarzanie utworu; skasowanie przywróci poprzednią kolejność odtwarzania)</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>Pętla A/B: skasowana</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>Pętla A/B: skasowana, przywrócona kolejność odtwarzania: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>Pętla A/B: zmienił się utwór, punkty A/B poprzedniego utworu odrzucono</translation>
    </message>
</context>
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>Informacje o innych autorach i normy</translation>
    </message>
</context>
<context>
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>Bity efektywne</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>Bity efektywne: jeszcze nieznane</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>transparentne</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>mniej bitów</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>wyczerpane</translation>
    </message>
    <message>
        <source>%1 bit，%2</source>
        <translation>%1 bit, %2</translation>
    </message>
</context>
<context>
    <name>ChainLamp</name>
    <message>
        <source>未能证明</source>
        <translation>Nie dowiedziono</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>Nie bit-perfect</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>autotest nie przeszedł</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>Nie bit-perfect albo nie dowiedziono: %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>Jeszcze nieznane</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>Silnik nie zgłosił jeszcze toru sygnałowego tego utworu, więc nic nie jest stwierdzane.</translation>
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
        <translation>TOR</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>Werdykt o torze sygnałowym</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>Przepróbkowanie</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>Backend</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Format wyjściowy</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>Opóźnienie</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>Szybkość</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>Werdykt</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>Niedobory bufora</translation>
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
        <translation>Mikser+konwersja</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>Mikser systemowy</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>Przekonwertowano</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Nieznane</translation>
    </message>
</context>
<context>
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>Dowiedziono</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>Obalono</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>Tu nie da się dowieść</translation>
    </message>
</context>
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
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>ISO SACD: %1 — utworów: %2</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>Nie udało się odczytać CUE: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>Nie udało się odczytać ISO: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>W tym CUE nie ma odtwarzalnych utworów: %1 (sonda rc=%2, wierszy wyjścia: %3; treść: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>W tym ISO nie ma odtwarzalnych utworów: %1 (sonda rc=%2, wierszy wyjścia: %3; treść: %4)</translation>
    </message>
</context>
<context>
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
Utwór %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(znaczniki pochodzą z samego kontenera; w lokalnej bibliotece nie ma dodatkowych)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>Album: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>Rok: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(znaczniki pochodzą z lokalnej biblioteki — w ISO/CUE niczego nie zapisano)</translation>
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
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[sterowanie] wysłanie %1 trwało %2 ms (powinno poniżej 1 ms)</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[sterowanie] %1</translation>
    </message>
</context>
<context>
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>Okładka</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>Brak okładki</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>Okładka jest wyświetlana</translation>
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
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>Hak testowy: automatyczne zamknięcie okna (jak przycisk zamykania)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse (mikser systemowy; nie bit-perfect)</translation>
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
    <name>DisplayPanel</name>
    <message>
        <source>位置</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>总长</source>
        <translation>Długość całkowita</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Zatrzymaj odtwarzanie</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>Poprzedni</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>Odtwórz poprzedni utwór</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>Odtwórz wybrany utwór</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>Następny</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>Odtwórz następny utwór</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>Głośność; przy 100% próbki pozostają niezmienione</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Wybierz utwór lub zaimportuj dźwięk</translation>
    </message>
    <message>
        <source>播放顺序</source>
        <translation>Kolejność odtwarzania</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>Powtarzanie</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>Tekst utworu</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>Teksty utworów nie są jeszcze gotowe; przycisk zadziała w późniejszej wersji</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>Wycisz; ponowne naciśnięcie przywraca poprzednią głośność</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Narzędzia</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>Narzędzia biblioteki, znaczników, sieci i inne</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>Kolejność odtwarzania: losowa</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>Kolejność odtwarzania: według listy</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>Powtarzanie: ten utwór</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>Powtarzanie: cała lista</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>Powtarzanie: wyłączone</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>Na żywo</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>Pogłos</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>Barwa</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>Balans</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>Przestrzeń</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Odszumianie</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Korektor</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>Strona tego efektu nie jest jeszcze gotowa; pojawi się w późniejszej wersji</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>Efekty są w torze: zmiana jest słyszalna od razu</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>Efektów nie ma teraz w torze</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>Efekt jest włączony</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>Efekt jest wyłączony</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>Bity efektywne: wzmocnienie jednostkowe (próbki nietknięte)</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>Bity efektywne: wyczerpane (zbyt duże tłumienie)</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>Bity efektywne: bez strat, ale wzmocnienie podnosi szczyty (ryzyko przesterowania)</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>Bity efektywne: bez zmian (głośność urządzenia/punktu końcowego, próbki nie są skalowane)</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>Bity efektywne: bez zmian (w strumieniu DoP głośność nie jest przetwarzana)</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>Bity efektywne: zob. dziennik (bezpośrednie DSD, używany mikser urządzenia)</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>Bity efektywne: zależą od wzmocnienia programowego (zob. następny wiersz)</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>Bity efektywne: około %1 bit (po tłumieniu programowym)</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>Bity efektywne: zob. dziennik</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>Zakończono przed końcem (%1%); zatrzymano, bez przejścia do następnego utworu</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>Odtwarzacz zakończył się nieprawidłowo, kod: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  ostatni wiersz silnika: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>Nie można otworzyć wyjścia na wyłączność (zajęte lub nieobsługiwany format) ⇒ ponowna próba w trybie auto (wyłączność → współdzielenie)</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>Sesja zamknięta (zmiana urządzenia/układu); następne odtwarzanie otworzy nową z nowymi ustawieniami</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Odtwarzanie zatrzymane</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Odtwarzanie zakończone</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>Pominięto zdarzenie końca poprzedniej sesji (sesję właśnie odtworzono, a zdarzenie pochodzi z tej rozebranej).</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>Wyjście</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Odtwarzanie</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>Dekodowanie</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>Sygnał</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>Ścieżka wyjścia</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>Wyłączność idzie wprost do sprzętu, współdzielenie przez mikser systemowy; auto próbuje najpierw wyłączności, potem współdzielenia.</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>Przesyłanie DSD</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto — decyduje program; force — zawsze DoP; native — wymaga natywnego DSD.</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>Tryb odtwarzania</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard używa jednego urządzenia; inne tryby po jednym na kanał lub parę kanałów.</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>Liczba kanałów</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>Ile kanałów rozdzielają tryby z wieloma urządzeniami.</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 kan.</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>Układ kanałów</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>Jak kanały źródła trafiają do wyjść; auto — decyduje program.</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>Częstotliwość podziału</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>Co leży niżej, trafia do urządzenia basowego.</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>Zwrotnica mostkowana</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>Dwa zmostkowane urządzenia na każde pasmo.</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>Urządzenie %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>Urządzenie wyjściowe tego kanału.</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>Zawsze dekoduj DSD do PCM</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>Bez bezpośredniego DSD: dla urządzeń tylko z PCM albo gdy mają działać efekty.</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>Głębia bitowa PCM</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>Głębia bitowa przy dekodowaniu DSD do PCM.</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>Filtr dekodowania</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>Filtr z DSD do PCM: im lepszy, tym więcej obliczeń.</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>Szybki</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standardowy</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>Najlepszy</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM na DSD</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>Moduluje PCM do DSD: zmienia próbki, nie jest bit-perfect.</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>Częstotliwość docelowa</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>Częstotliwość DSD po modulacji.</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>Współczynniki filtru</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>Długość filtru nadpróbkowania; automatycznie decyduje silnik.</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Automatycznie</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>Zewnętrzna biblioteka dekodera</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>Ścieżka zewnętrznej biblioteki dekodera; puste — nieużywana.</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>Ochrona szczytów</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>Obniża szczyty tylko wtedy, gdy groziłoby przesterowanie.</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>Przepróbkuj do częstotliwości urządzenia</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>Zmienia próbki, nie jest bit-perfect.</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>Jakość przepróbkowania</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>Im lepsza, tym więcej obliczeń.</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>ReplayGain</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>Wyrównuje głośność według znaczników ReplayGain pliku.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>Według utworu</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>Według albumu</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Odszumianie</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>Usuwa szum tła nagrania; gdy włączone, bezpośrednie DSD nie działa.</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>Lekkie</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>Silne</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>Zachowaj harmoniczne</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>Chroni harmoniczne dźwięków podczas odszumiania.</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>Odtwarzanie bez przerw</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>Wczytuje następny utwór przed końcem, bez przerwy.</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>Przenikanie</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>Sekundy nakładania się dwóch utworów; 0 — bez przenikania.</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>Szybkość odtwarzania</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>Wysokość dźwięku bez zmian; poza 1.00 nie jest bit-perfect.</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>Odtwarzaj podczas czytania</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>Nie wczytuje najpierw pliku do pamięci.</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1 (automatycznie)</translation>
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
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>uczenie się profilu szumu</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>profil szumu gotowy</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>brak szumu w tym utworze, bez przetwarzania</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>Uczenie się szumu (około 1 s)</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>Poziomy/widmo wyrównane do opóźnienia wyjścia: %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Nieznane</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>Otrzymano postęp (PG): odtworzono %1 s / razem %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>DSP wykonuje modulator</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>Oscyloskop: odebrano pierwszą ramkę (przedziałów: %1)</translation>
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
    <message>
        <source>(完全没有输出)</source>
        <translation>(brak wyjścia)</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>Historia cofania listy odtwarzania jest uszkodzona i nie da się jej użyć, więc zaczyna się od nowa: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>Historia cofania nie pasuje do zapisanej listy odtwarzania, więc zaczyna się od nowa: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>Nie można zapisać historii cofania listy odtwarzania, więc po ponownym uruchomieniu nie będzie czego cofnąć: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>Poziom lewego kanału</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>Poziom prawego kanału</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>WIDMO</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>OSCYLOSKOP</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>Szukaj tytułu / wykonawcy</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>Pokazane / wszystkie</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>Wyszukiwanie i filtry nie są jeszcze gotowe; pojawią się w późniejszej wersji</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>BIBLIOTEKA · TYTUŁ</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>Odtwarzany / wszystkie</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Obrazy płyt</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>Wszyscy wykonawcy</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>Filtruj według wykonawcy</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>Wszystkie albumy</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>Filtruj według albumu</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importuj</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>Dodaj pliki dźwiękowe na koniec listy</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>Dodaj pliki dźwiękowe z folderu na koniec listy; bez podfolderów</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>Usuń zaznaczone utwory z listy; pliki pozostają</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>Opróżnij listę; pliki pozostają, czynność można cofnąć</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>Dziennik</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>Kolor akcentu z okładki</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>Mniej ruchu</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Widmo</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>Oscyloskop</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>Przywróć układ</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>Przywróć czyste ustawienia</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Ciemny</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Jak w systemie</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>Wygląd okna; działa od razu</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>Szerokość prawej kolumny, od 200 do 420 pikseli; działa od razu</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>Gdy utwór ma okładkę, akcent pochodzi z niej; inaczej wybrany kolor</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>Wskaźniki skaczą do nowej wartości, bez wygładzania i wygaszania</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>Rozmiar, położenie i szerokość kolumny domyślne</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>Wyłącza wszystko, co zmienia próbki, i uruchamia samosprawdzenie</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Motyw</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>Szerokość kolumny</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>Prosi silnik o widmo; działa od razu, także podczas odtwarzania</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>Prosi silnik o przebieg; działa od razu, także podczas odtwarzania</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>Okładka</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>Pokaż odtwarzany utwór na liście</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(brak wyjścia)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>5 sekund po starcie wciąż brak próbek — ostatni wiersz silnika: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>5 sekund po starcie bez dźwięku — **urządzenie ani razu nie zostało otwarte** (brak OPENED w dzienniku silnika): zwykle odmowa wyłączności, nieobsługiwany format albo zajęte przez inny program; zobacz wiersze WASAPI powyżej; ostatni wiersz silnika: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  Sprawdź po kolei: (1) na czym stanął wiersz powyżej — dekodowanie / urządzenie / wyłączność; (2) odtwórz ten sam plik z wiersza poleceń; (3) poszukaj w dzienniku WASAPI / OPENED / 0x8889000A. Sesja nie odtworzy się sama.</translation>
    </message>
</context>
<context>
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Wybierz utwór lub zaimportuj dźwięk</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>losowo</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>po kolei</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · bez powtarzania</translation>
    </message>
    <message>
        <source> · 列表循环</source>
        <translation> · powtarzanie listy</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · powtarzanie utworu</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>Szybkość odtwarzania: %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> (podczas odtwarzania działa od razu)</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>Dziennik silnika: w domyślnym miejscu samego silnika</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>Dziennik silnika (zachowany, nie usuwany przy wyjściu): %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>Dziennik silnika (tej sesji, usuwany przy wyjściu): %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>Poprzednia sesja wewnątrz procesu nie zakończyła się w 2 s — ten proces może wciąż trzymać urządzenie na wyłączność i następny utwór może go nie otworzyć</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(domyślne systemu)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (domyślne)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>Lista urządzeń (-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (niepodłączone — podłącz i kliknij „Odśwież urządzenia”)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>Odtwarzanie… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>Lista odtwarzania jest pusta</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>To już pierwszy utwór</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>To już ostatni utwór</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>Utwór %1/%2</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>Nie można przenieść: numer wiersza poza zakresem (from=%1 to=%2, pozycji na liście: %3)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>Zmieniono kolejność: pozycja %1/%2</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>Automatyczna zmiana: lista lub kolejność zmieniła się na końcu; według pliku to utwór %1/%2</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>Automatyczna zmiana (bez przerw/przenikanie): utwór %1/%2: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>Poprzednia sesja jeszcze się nie zakończyła (zwalniana jest wyłączność) — nowa teraz nie powstanie. Naciśnij odtwarzanie ponownie; jeśli nie pomoże, uruchom odtwarzacz od nowa.</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Odtwarzanie zakończone</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>Koniec listy odtwarzania (%1)</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>Koniec listy odtwarzania</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[czas] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>Pominięto (brak pliku): %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>Błąd: nie znaleziono silnika %1 — umieść go obok programu, dodaj do PATH lub wskaż przez KELP_PLAYER_BIN.</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>Zmiana urządzenia lub układu -&gt; bieżąca sesja zostaje zamknięta (urządzenie zwolnione)</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>Stara sesja nie zakończyła się w 10 s — zostaje zamknięta siłą (urządzenie może zwolnić się nieco później)</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>Bieżąca sesja używana dalej (zmiana utworu tylko przez load, bez ponownych argumentów): %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[DLL wewnątrz procesu] argumenty sesji: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>Polecenie odtwarzania: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>Nie udało się uruchomić odtwarzacza (start sesji zwrócił %1) ⇒ powrót do stanu zatrzymania</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>Stopień odszumiania wysłany do działającej sesji: %1 (sesja używana dalej nie czyta argumentów ponownie)</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>Ochrona szczytów wysłana do działającej sesji: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>Błąd: najpierw dodaj pliki dźwiękowe</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>Stara sesja jeszcze trwa ⇒ zostaje odłączona przed startem (sesja wewnątrz procesu musi skończyć się sama)</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>Stara sesja wciąż się nie zakończyła, nie można zacząć nowej — poczekaj (albo uruchom ponownie; do automatyzacji/diagnozy KELP_GUI_INPROC=0 z procesem potomnym)</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>Nic nie jest odtwarzane</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>Zatrzymywanie odtwarzacza...</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>Wysłano sygnał zatrzymania</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Odtwarzanie zatrzymane</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>Trwa odtwarzanie</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>Odtwarzanie jeszcze trwa; zamknięcie okna je zatrzyma.

Czy na pewno zakończyć?</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>Importuj pliki dźwiękowe</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>Lista odtwarzania</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>Ustawienia silnika</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>Urządzenie wyjściowe</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>Urządzenie używane do odtwarzania</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>Odśwież urządzenia</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>Wczytaj ponownie listę urządzeń z KelpPlayer -list</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>Pokaż dziennik</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>Co program postanowił i dlaczego</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>Ukryj dziennik</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer — odtwarzacz audio DSD ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>Formaty: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>Tryby: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Przywracanie ustawień: brak pozycji pasującej do %1 (pozostaje domyślna)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>Analizowanie: %1 …</translation>
    </message>
    <message>
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>Brak PCM w tym torze (bezpośrednie DSD) — brak przebiegu</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>Na tej ścieżce nie ma widma: bezpośrednie wyjście DSD nie zawiera PCM</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>Raport toru sygnałowego: brak sesji odtwarzania, pokazany jest tylko ostatni raport.</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>Zapisz raport toru sygnałowego</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>Zapisano raport toru sygnałowego: %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>Nie udało się zapisać raportu toru sygnałowego: %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>Autotest bit-perfect: brak sesji odtwarzania — najpierw rozpocznij odtwarzanie (bez strumienia nie ma czego oceniać)</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>Autotest bit-perfect: poproszono silnik o sprawdzenie punkt po punkcie</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>Werdykt autotestu bit-perfect: %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>Przywrócono czyste ustawienia (wszystkie efekty wyłączone / 1.0x / bez przenikania / głośność 100 / układ i motyw zresetowane) i rozpoczęto autotest bit-perfect</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>Kolejność odtwarzania: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>Pętla A/B: nic nie jest odtwarzane, więc nie ma czego oznaczyć</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>Pominięte pliki dźwiękowe: %1 — ten odtwarzacz nie ma dla nich dekodera (MP3/AAC/OGG)</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>Pominięte pliki: %1 — nazwy nie są poprawnym UTF-8 i nie da się ich otworzyć</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>Dodane utwory: %1 (na liście teraz: %2)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>Dodanie zbiorcze trwało %1 ms (utworów: %2, układane raz)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>Brak plików dźwiękowych do dodania</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>Pliki dźwiękowe (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>Odtwarzany utwór usunięto z listy (dźwięk trwa, ale utworu nie ma już na liście)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>Usunięte utwory: %1 (na liście teraz: %2)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>Wyczyszczono listę odtwarzania</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>Ta zmiana jest zbyt duża, by ją zapamiętać, więc nie da się jej cofnąć</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>Nie ma czego cofnąć</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>Historia cofania nie pasuje do listy odtwarzania; niczego nie cofnięto, a historię wyczyszczono</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>Nie ma czego ponowić</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>Historia ponawiania nie pasuje do listy odtwarzania; niczego nie ponowiono, a historię wyczyszczono</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>Pokaż w menedżerze plików</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>Przenieś na początek</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>Przenieś na koniec</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>Dodaj folder…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Wyczyść listę</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>Żaden menedżer plików nie odpowiedział, więc otwarto sam folder: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>Nie można otworzyć folderu: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>Właściwości utworu</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>Przywrócono listę odtwarzania, utworów: %1</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>Ostatnio odtwarzany: utwór %1 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>Ostatnio odtwarzany: utwór %1</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>Przy przywracaniu listy pominięto utwory: %1 (plik już nie istnieje)</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>Tryb offline jest włączony, odmówiono: %1 (tryb można wyłączyć w ustawieniach)</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>pilot w telefonie (port nasłuchu)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>Pilot w telefonie: wyłączony (port nie jest już nasłuchiwany)</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>Pilot w telefonie: odrzucono żądanie bez właściwego tokenu (%1)</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>Pilot w telefonie: nie można nasłuchiwać na porcie %1 (%2)</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>Pilot w telefonie: włączony, port %1, token %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>Adres pilota w telefonie: %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>Układ: szerokość panelu bocznego %1 poza zakresem, ograniczono do %2 px</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>Układ: szerokość panelu bocznego %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>Zresetowano układ (rozmiar i położenie okna, szerokość panelu bocznego)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>Położenie okna: zapisanych danych nie da się odczytać, użyto rozmiaru domyślnego</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>Położenie okna: dawnego ekranu już nie ma, okno przeniesiono na środek ekranu głównego</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>Odtwarzanego utworu nie ma na liście biblioteki</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Pomoc</translation>
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
        <translation>## Odtwarzanie

Upuść pliki lub foldery na okno i kliknij wiersz dwukrotnie, aby go odtworzyć. Podczas odtwarzania nie można przewijać: do wybranej pozycji przechodzi się tylko na początku utworu.

## Klawiatura

- **Spacja** odtwarzanie / pauza
- **Ctrl+→** następny utwór, **Ctrl+←** poprzedni utwór
- **Ctrl+↑ / Ctrl+↓** głośność
- **Ctrl+Spacja** stop, **Ctrl+O** import plików, **F11** maksymalizacja / przywrócenie
- **Ctrl+,** ustawienia
- Na liście: **Enter** odtwarza, **Delete** usuwa, **Ctrl+Z** cofa, **Ctrl+Shift+Z** ponawia

## Bit-perfect

Prawa kolumna mówi, przez co przechodzą próbki. Dopiero gdy odczytano zwrotnie to, co otrzymało urządzenie, pojawia się “dostarczenie potwierdzone”. “Autotest bit-perfect” sprawdza każde ogniwo.
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>Plik dziennika: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>Plik ustawień: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>Oczekiwanie na przebieg</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>Oscyloskop jest wyłączony: brak przebiegu</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Autotest bit-perfect</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>Sprawdza punkt po punkcie, czy bieżące odtwarzanie zmienia próbki</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>Raport toru sygnałowego…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>Pokazuje własny raport silnika o torze sygnałowym; można go zapisać</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Wyłącznik czasowy</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>Pilot w telefonie</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>Wyczyszczono panel dziennika; plik dziennika pozostaje</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Ciemny</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>Motyw: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>Jak w systemie (%1)</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>Okładka nie ma użytecznego koloru dominującego (czysta czerń/szarość/biel) ⇒ kolor akcentu pozostaje taki, jak wybrano</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>Kolor akcentu według okładki: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Wybierz utwór lub zaimportuj dźwięk</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>Zwinięto do zasobnika, odtwarzanie trwa</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>URZĄDZENIE WYJŚCIOWE</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>Zapisano wybór widma i oscyloskopu; działa od następnej sesji</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Wyświetlanie</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>Listę wyczyszczono w trakcie wyliczania utworów ⇒ nie zostaną dodane: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>Poprzedni utwór skończył się właśnie wtedy, gdy wybrano inny ⇒ nie jest to koniec wybranego</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>Pominięto (ścieżka zawiera znak końca wiersza, którego wiersz sterujący nie przeniesie): %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>Cofnięto dodanie, utworów: %1 (na liście teraz: %2)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>Przywrócone usunięte utwory: %1 (na liście teraz: %2)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>Przywrócono poprzednią kolejność odtwarzania</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>Ponownie dodane utwory: %1 (na liście teraz: %2)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>Ponownie usunięte utwory: %1 (na liście teraz: %2)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>Ponownie zmieniono kolejność odtwarzania</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>Kontrola końca utworu: pozostało %1 s, okno wczytywania %2 s (przenikanie %3 / bez przerw %4), następny=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>Przenikanie: %1 s do końca, wczytuję wcześniej następny utwór (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>Bez przerw: %1 s przed końcem wczytuję następny utwór (%2)</translation>
    </message>
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>Następny utwór nie jest wczytywany z wyprzedzeniem (%1): po samej ścieżce silnik wziąłby go za inny ⇒ wczyta się po numerze po zakończeniu tego</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
    <message>
        <source>播放进度</source>
        <translation>Postęp odtwarzania</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>Pokazuje tylko postęp: podczas odtwarzania nie można przewijać</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>Pozycja według czasu źródła; odtwarzanie z szybkością %1×.</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>Pozycja i długość według czasu źródła; przy %1× cały utwór potrwa %2.</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>Postęp %1%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>Przeglądanie (dekodowanie) źródła… %1%</translation>
    </message>
</context>
<context>
    <name>ProgressRow</name>
    <message>
        <source>位置</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>循环起点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Początek pętli: oznacza bieżącą pozycję. Po ustawieniu A i B pętla rusza; naciśnij ponownie, aby ją skasować</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Koniec pętli: oznacza bieżącą pozycję. Po ustawieniu A i B pętla rusza; naciśnij ponownie, aby ją skasować</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>Pilot w telefonie</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>Telefon w tej samej sieci Wi-Fi steruje odtwarzaniem z przeglądarki; gdy włączone, ten komputer nasłuchuje na porcie</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>Port, na którym nasłuchuje pilot; odczytywany w chwili włączenia</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>Port pilota w telefonie</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>Adresy pilota w telefonie</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>Ten komputer nie ma adresu IPv4 w sieci lokalnej</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>Otwórz w przeglądarce telefonu (ta sama sieć Wi-Fi co komputer):
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>Pilot w telefonie: wyłączony</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>Raport toru sygnałowego</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>Zapytaj ponownie</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Zapisz raport…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>Rodzaj: stacja sieciowa</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>Rodzaj: utwór %1 z arkusza CUE</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>Rodzaj: utwór %1 z obrazu SACD</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>Rodzaj: utwór %1 z kontenera</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>Rodzaj: plik dźwiękowy</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>Wyświetlany jako: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>Miejsce: pozycja %1/%2</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>Format: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>Plik: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>Arkusz CUE: %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>Czas: %1 s → %2 s (długość %3 s)</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>Oscyloskop</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>Nic nie jest odtwarzane: brak przebiegu</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>Największa amplituda: lewy %1%, prawy %2%</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>Szczytowy poziom wyjścia tego kanału (dBFS): silnik podaje go 20 razy na sekundę z rozdzielczością 0.01 dB i dolną granicą −120 dB (niżej pokazuje −∞ dB); przy 0 dBFS czerwony segment świeci przez 1.5 s (możliwe przesterowanie)</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>Czy źródło jest bezstratne?</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>Oczekiwanie na odpowiedź silnika.</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>Źródło jest bezstratne</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>Kodowanie oddaje każdą próbkę, która do niego weszła; niczego nie odrzucono.</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>Źródło nie jest bezstratne</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>Plik nie zawiera już wszystkich oryginalnych próbek i żadne dalsze ogniwo ich nie przywróci.</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>Nie wiadomo, czy źródło jest bezstratne</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>Silnik nie podał niczego, co by tego dowodziło; to nie liczy się jako zaliczone.</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>Czy ścieżka jest niezmieniona?</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>Ścieżka jest niezmieniona</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>Żadne ogniwo między plikiem a urządzeniem nie zmieniło ani jednej próbki.</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>Ścieżka jest zmieniona</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>Jedno z ogniw między plikiem a urządzeniem zmienia próbki.</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>Nie wiadomo, czy ścieżka jest niezmieniona</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>Czy dostarczenie jest potwierdzone?</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>Dostarczenie potwierdzone</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>Urządzenie otwarto zgodnie z żądaniem, a odczytany z niego format jest równy wysłanemu.</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>Dostarczenie się różni</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>Do urządzenia dotarło co innego, niż wysłano, albo po drodze stoi jeszcze jedno ogniwo.</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>Dostarczenia nie da się potwierdzić</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>Nie da się odczytać, w jakim formacie urządzenie naprawdę pracuje; to nie liczy się jako zaliczone.</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>Pierwsze ogniwo, które złamało bit-perfect: %1.</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>Pierwsze ogniwo, którego nie da się dowieść: %1.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>Werdykt: bit-perfect ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>Werdykt: nie bit-perfect ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Autotest bit-perfect</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>Silnik sprawdza odtwarzany tor ogniwo po ogniwie: źródło, dekodowanie, przepróbkowanie, efekty, szybkość, głośność, narastanie i wyciszanie, ochronę szczytów, głębię bitową, mikser, odczyt zwrotny z urządzenia i niedobory bufora. Ocenia to, co każde ogniwo naprawdę teraz robi, a nie ustawienia; to, czego nie da się dowieść, nie liczy się jako zaliczone.</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>Wyniki punkt po punkcie</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Zapisz raport…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>Sprawdzanie…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>Autotest bit-perfect — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>zaliczony</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>niezaliczony</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>Za %1 min</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Wyłącznik czasowy</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>O wyznaczonej porze wycisza dźwięk przez dziesięć sekund, a potem zatrzymuje odtwarzanie</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>Wyłącznik czasowy: wyłączony</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>Wyłącznik czasowy: %1 min</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>Wyłącznik czasowy: wyciszanie (zatrzymanie za 10 sekund)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>Wyłącznik czasowy: wyciszono i zatrzymano</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>Dźwięk: %1 · %2 bit · kanały: %3 · %4 s</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST: tak</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST: nie</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 kan.</translation>
    </message>
</context>
<context>
    <name>SpectrumView</name>
    <message>
        <source>频谱</source>
        <translation>Widmo</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>Najgłośniejsze pasmo: lewy %1, prawy %2, z %3</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(nie oznaczono)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] Wątek interfejsu stał przez %1 ms — robił wtedy: %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] Inny KelpPlayer już działa — ten się nie uruchomi

Drugi grałby równocześnie na tym samym urządzeniu (słychać szum/nakładanie).
Aby celowo otworzyć kilka, ustaw KELP_GUI_ALLOW_MULTI=1</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>nieznane</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>Pomiary startu: interfejs gotowy po %1, pamięć %2 (tylko wartości zmierzone)</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>Otwórz ustawienia (Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimalizuj</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maksymalizuj</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>Zamknij okno</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1: włączone</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1: wyłączone</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Przywróć</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>Skanuj foldery biblioteki (przyrostowo)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>Znajdź duplikaty</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>Zbiorcza edycja znaczników</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>Inteligentne listy</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>Podsumowanie roku</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Analiza utworu</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>Kolejność DSP</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>Porównanie odcisków</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>Uzupełnianie znaczników z sieci</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>Biblioteka sieciowa</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>Synchronizacja z telefonem</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>Wtyczki</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>Stacje/sieć/przekazanie</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>Tryb samochodowy</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>Zasoby sieciowe</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>Sprawdź bibliotekę</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Wyczyść dziennik</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>Pomoc…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>Ta funkcja nie jest jeszcze gotowa; pojawi się w późniejszej wersji</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>nie da się określić</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
Tonacja: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>Analiza utworu: BPM %1, tonacja %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>Analiza utworu: BPM %1 (tonacji nie da się określić i nie jest zgadywana)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>Analiza utworu: tonacja %1 (BPM nie da się określić i nie jest zgadywane)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>Analiza utworu: ani BPM, ani tonacji nie da się określić i nie są zgadywane</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>Najpierw wybierz utwór, potem analizuj</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>Podczas odtwarzania nie można analizować — najpierw naciśnij Stop</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Analiza utworu</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>Nie można rozpocząć analizy (biblioteka silnika niedostępna, rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>Analiza nie dała wyniku: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>Wznowienie od %1:%2 (tu zatrzymano poprzednio)</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>Odtwarzacz nie zakończył pracy w %1 s — zostaje zamknięty siłą.</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>Odtwarzacz nie zakończył pracy w %1 s; sesji wewnątrz procesu nie można zabić (poczekaj; wyjście: KELP_GUI_INPROC=0)</translation>
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
        <translation>PRÓBKOWANIE</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>KANAŁY</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>ODTWORZENIA</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>Ostrzeżenia w torze sygnałowym: %1</translation>
    </message>
</context>
</TS>
