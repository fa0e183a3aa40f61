<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>Loop A/B: ponto %1 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>Loop A/B: o ponto B precisa vir depois do ponto A (A=%1s, B=%2s)</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>Loop A/B: marcado, vale quando a reprodução começar (repetição da faixa)</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>Loop A/B: %1 → %2 iniciado (repetição da faixa; limpar restaura a ordem de reprodução anterior)</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>Loop A/B: limpo</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>Loop A/B: limpo, ordem de reprodução restaurada: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>Loop A/B: a faixa mudou, os pontos A/B da faixa anterior foram descartados</translation>
    </message>
</context>
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>Procurar atualizações…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>Avisos de terceiros e normas de referência</translation>
    </message>
</context>
<context>
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>Bits efetivos</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>Bits efetivos: ainda desconhecidos</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>transparente</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>menos bits</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>esgotados</translation>
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
        <translation>Não comprovado</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>Não bit-perfect</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>o autoteste não passou</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>Não bit-perfect ou não comprovado: %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>Ainda desconhecido</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>O motor ainda não informou a cadeia de sinal desta faixa, por isso nada é afirmado.</translation>
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
        <translation>CADEIA</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>Veredito sobre a cadeia de sinal</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>Reamostragem</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>Backend</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Formato de saída</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>Latência</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>Veredito</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>Cadeia</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>Esvaziamentos do buffer</translation>
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
        <translation>Mixer+conversão</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>Mixer do sistema</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>Convertido</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Desconhecido</translation>
    </message>
</context>
<context>
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>Comprovado</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>Refutado</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>Não comprovável aqui</translation>
    </message>
</context>
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
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>ISO SACD: %1 — %2 faixa(s)</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>Falha ao interpretar o CUE: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>Falha ao interpretar a ISO: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>Nenhuma faixa reproduzível neste CUE: %1 (sonda rc=%2, %3 linha(s) de saída; conteúdo: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>Nenhuma faixa reproduzível nesta ISO: %1 (sonda rc=%2, %3 linha(s) de saída; conteúdo: %4)</translation>
    </message>
</context>
<context>
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
Faixa %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(as tags vêm do próprio contêiner; não há tags adicionais na biblioteca local)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>Álbum: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>Ano: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(as tags vêm da biblioteca local — nada foi gravado no ISO/CUE)</translation>
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
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[controle] o envio de %1 levou %2 ms (deveria ser menos de 1 ms)</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[controle] %1</translation>
    </message>
</context>
<context>
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>Sem capa</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>Há uma capa exibida</translation>
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
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>Gancho de teste: fechamento automático (equivale ao botão de fechar)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse (mixer do sistema; não bit-perfect)</translation>
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
    <name>DisplayPanel</name>
    <message>
        <source>位置</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>总长</source>
        <translation>Duração total</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Parar a reprodução</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>Reproduzir a faixa anterior</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>Reproduzir a faixa selecionada</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>Próxima</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>Reproduzir a próxima faixa</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>Volume; em 100% as amostras não são alteradas</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Escolha uma faixa ou importe áudio</translation>
    </message>
    <message>
        <source>播放顺序</source>
        <translation>Ordem de reprodução</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>Repetição</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>Letra</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>As letras ainda não estão prontas; este botão funcionará em uma versão futura</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Mudo</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>Mudo; pressione de novo para voltar ao volume anterior</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>Ferramentas para biblioteca, tags, rede e mais</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>Ordem de reprodução: aleatória</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>Ordem de reprodução: pela lista</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>Repetição: esta faixa</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>Repetição: a lista inteira</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>Repetição: desligada</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>Tempo real</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>Reverberação</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>Tom</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>Balanço</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>Espacial</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Redução de ruído</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Equalizador</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>A página deste efeito ainda não está pronta; virá em uma versão futura</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>Os efeitos estão no caminho: a mudança é ouvida na hora</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>Os efeitos não estão no caminho agora</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>O efeito está ligado</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>O efeito está desligado</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>Bits efetivos: ganho unitário (amostras intactas)</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>Bits efetivos: esgotados (atenuação excessiva)</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>Bits efetivos: sem perda, mas o ganho eleva os picos (risco de clipping)</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>Bits efetivos: inalterados (volume do dispositivo/endpoint, amostras sem escala)</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>Bits efetivos: inalterados (sem processamento de volume em fluxo DoP)</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>Bits efetivos: veja o registro (DSD direto, mixer do dispositivo em uso)</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>Bits efetivos: determinados pelo ganho de software (veja a próxima linha)</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>Bits efetivos: cerca de %1 bits (após a atenuação por software)</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>Bits efetivos: veja o registro</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>Terminou antes do fim (%1%); parado, sem passar para a próxima faixa</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>O reprodutor terminou de forma anormal, código: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  última linha do motor: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>A saída exclusiva não abre (ocupada ou formato não aceito) ⇒ nova tentativa desta faixa em auto (exclusivo → compartilhado)</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>Sessão encerrada (mudança de dispositivo/layout); a próxima reprodução abrirá outra com as novas configurações</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Reprodução parada</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Reprodução concluída</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>Evento de fim da sessão anterior ignorado (a sessão acabou de ser refeita e o evento veio da que foi desmontada).</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reprodução</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>Decodificação</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>Sinal</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>Caminho de saída</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>Exclusivo vai direto ao hardware, compartilhado passa pelo mixer do sistema; auto tenta exclusivo e depois compartilhado.</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>Transporte DSD</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto: o programa decide; force: sempre DoP; native: exige DSD nativo.</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>Modo de reprodução</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard usa um dispositivo; os outros modos, um por canal ou par de canais.</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>Número de canais</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>Quantos canais os modos com vários dispositivos distribuem.</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 canais</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>Disposição dos canais</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>Como os canais da fonte vão para as saídas; auto: o programa decide.</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>Frequência de corte</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>O que fica abaixo vai para o dispositivo de graves.</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>Crossover em ponte</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>Dois dispositivos em ponte por via.</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>Dispositivo %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>O dispositivo de saída deste canal.</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>Sempre decodificar DSD para PCM</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>Sem DSD direto: para dispositivos que só aceitam PCM ou quando se querem efeitos.</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>Profundidade PCM</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>Profundidade ao decodificar DSD para PCM.</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>Filtro de decodificação</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>Filtro de DSD para PCM: quanto melhor, mais processamento.</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>Rápido</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>Melhor</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM para DSD</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>Modula PCM para DSD: altera as amostras, não é bit-perfect.</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>Taxa de destino</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>Taxa DSD após a modulação.</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>Coeficientes do filtro</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>Comprimento do filtro de sobreamostragem; em automático o motor decide.</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>Biblioteca decodificadora externa</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>Caminho da biblioteca decodificadora externa; vazio: nenhuma.</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>Proteção de picos</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>Reduz os picos só quando haveria clipping.</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>Reamostrar para a taxa do dispositivo</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>Altera as amostras, não é bit-perfect.</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>Qualidade da reamostragem</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>Quanto melhor, mais processamento.</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>ReplayGain</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>Iguala a sonoridade pelas tags ReplayGain do arquivo.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>Por faixa</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>Por álbum</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Redução de ruído</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>Remove o ruído de fundo da gravação; ligado, impede o DSD direto.</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>Leve</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>Preservar harmônicos</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>Protege os harmônicos dos tons ao reduzir o ruído.</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>Reprodução sem intervalos</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>Pré-carrega a próxima faixa antes do fim, sem pausa.</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>Crossfade</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>Segundos de sobreposição entre duas faixas; 0: nenhum.</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>Velocidade de reprodução</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>O tom é mantido; fora de 1.00 não é bit-perfect.</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>Reproduzir durante a leitura</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>Não lê antes o arquivo para a memória.</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1 (automático)</translation>
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
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>aprendendo o perfil de ruído</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>perfil de ruído pronto</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>sem ruído nesta faixa, passagem direta</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>Aprendendo o ruído (cerca de 1 s)</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>Níveis/espectro alinhados à latência de saída: %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>Progresso recebido (PG): tocados %1 s / total %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>O DSP é aplicado pelo modulador</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>Osciloscópio: primeiro quadro recebido (%1 intervalos)</translation>
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
    <message>
        <source>(完全没有输出)</source>
        <translation>(nenhuma saída)</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>O histórico de desfazer da lista de reprodução está danificado e não pode ser usado; começa vazio: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>O histórico de desfazer não corresponde à lista de reprodução salva; começa vazio: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>Não é possível gravar o histórico de desfazer da lista de reprodução; depois de reiniciar não haverá o que desfazer: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>Nível esquerdo</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>Nível direito</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>ESPECTRO</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>OSCILOSCÓPIO</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>Buscar título / artista</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>Exibidas / todas</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>A busca e os filtros ainda não estão prontos; virão em uma versão futura</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>BIBLIOTECA · TÍTULO</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>Em reprodução / todas</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Imagens de disco</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>Todos os artistas</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>Filtrar por artista</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>Todos os álbuns</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>Filtrar por álbum</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>Adicionar arquivos de áudio ao fim da lista</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>Adicionar os arquivos de áudio de uma pasta ao fim da lista; sem entrar em subpastas</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>Remover da lista as faixas selecionadas; os arquivos permanecem</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>Esvaziar a lista; os arquivos permanecem e dá para desfazer</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>Cor de destaque segue a capa</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>Reduzir movimento</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Espectro</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>Osciloscópio</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>Redefinir layout</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>Restaurar padrões puros</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Como o sistema</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>Aparência da janela; efeito imediato</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>Largura da coluna direita, de 200 a 420 pixels; efeito imediato</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>Se a faixa tem capa, o destaque vem dela; senão, a cor escolhida</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>Os instrumentos saltam para o novo valor, sem suavização nem esmaecimento</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>Tamanho, posição e largura da coluna no padrão</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>Desliga tudo o que altera as amostras e faz a autoverificação</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>Largura da coluna</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>Pede o espectro ao motor; vale imediatamente, também durante a reprodução</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>Pede a forma de onda ao motor; vale imediatamente, também durante a reprodução</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>Mostrar na lista a faixa em reprodução</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(nenhuma saída)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>5 segundos após o início e ainda sem amostras — última linha do motor: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>5 segundos após o início sem som — **o dispositivo nunca foi aberto** (não há OPENED no registro do motor): em geral acesso exclusivo negado, formato não aceito ou ocupado por outro programa; veja as linhas WASAPI acima; última linha do motor: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  Verifique em ordem: (1) em que passo parou a linha acima — decodificação / dispositivo / exclusivo; (2) reproduza o mesmo arquivo na linha de comando; (3) procure WASAPI / OPENED / 0x8889000A no registro. A sessão não é refeita sozinha.</translation>
    </message>
</context>
<context>
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Escolha uma faixa ou importe áudio</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>aleatória</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>em ordem</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · sem repetição</translation>
    </message>
    <message>
        <source> · 列表循环</source>
        <translation> · repetir lista</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · repetir faixa</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>Velocidade de reprodução: %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> (aplicada de imediato durante a reprodução)</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>Registro do motor: no local padrão do próprio motor</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>Registro do motor (mantido, não apagado ao sair): %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>Registro do motor (desta sessão, apagado ao sair): %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>A sessão anterior no mesmo processo não terminou em 2 s — este processo talvez ainda retenha o dispositivo exclusivo e a próxima faixa pode não abri-lo</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(padrão do sistema)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (padrão)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>Lista de dispositivos (-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (não conectado — conecte-o e clique em “Atualizar dispositivos”)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>Reproduzindo… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>A lista de reprodução está vazia</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>Já é a primeira faixa</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>Já é a última faixa</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>Faixa %1/%2</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>Não foi possível mover: linha fora do intervalo (from=%1 to=%2, a lista tem %3 itens)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>Ordem alterada: item %1/%2</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>Troca automática: a lista ou a ordem mudou no fim; pelo arquivo é a faixa %1/%2</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>Troca automática (sem intervalos/crossfade): faixa %1/%2: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>A sessão anterior ainda não terminou (liberando o acesso exclusivo) — nenhuma nova será criada agora. Aperte reproduzir de novo; se não resolver, reinicie o reprodutor.</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Reprodução concluída</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>Fim da lista de reprodução (%1)</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>Fim da lista de reprodução</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[duração] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>Ignorada (o arquivo não existe): %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>Erro: o motor %1 não foi encontrado — coloque-o ao lado do programa, inclua-o no PATH ou aponte para ele com KELP_PLAYER_BIN.</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>Dispositivo ou layout mudou -&gt; a sessão atual é encerrada (dispositivo liberado)</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>A sessão antiga não terminou em 10 s — encerramento forçado (o dispositivo pode demorar um pouco a ser liberado)</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>Sessão atual reaproveitada (a troca só envia load, sem repetir argumentos): %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[DLL no processo] argumentos da sessão: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>Comando de reprodução: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>Falha ao iniciar o reprodutor (start da sessão retornou %1) ⇒ volta ao estado parado</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>Nível de redução de ruído reenviado à sessão em curso: %1 (uma sessão reaproveitada não relê os argumentos)</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>Proteção de picos reenviada à sessão em curso: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>Erro: adicione primeiro arquivos de áudio</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>A sessão antiga ainda não saiu ⇒ é desconectada antes de reproduzir (uma sessão no processo só termina por si)</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>A sessão antiga ainda não saiu e nada novo pode começar — aguarde (ou reinicie; para automação/diagnóstico, KELP_GUI_INPROC=0 usa um processo filho)</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>Nenhuma reprodução em andamento</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>Parando o reprodutor...</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>Sinal de parada enviado</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Reprodução parada</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>Reprodução em andamento</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>A reprodução não terminou; fechar a janela vai pará-la.

Deseja mesmo sair?</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>Importar arquivos de áudio</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>Lista de reprodução</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>Configurações do motor</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>Dispositivo de saída</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>O dispositivo usado na reprodução</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>Atualizar dispositivos</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>Reler a lista de dispositivos de KelpPlayer -list</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>Mostrar o registro</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>O que o programa decidiu e por quê</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>Ocultar o registro</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer — reprodutor de áudio DSD ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>Formatos: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>Modos: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Restauração das configurações: nenhum item corresponde a %1 (mantido o padrão)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>Analisando %1 …</translation>
    </message>
    <message>
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>Não há PCM nesta cadeia (DSD direto) — sem forma de onda</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>Sem espectro neste caminho: a saída DSD direta não contém PCM</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>Relatório da cadeia de sinal: não há sessão de reprodução, por isso só o último relatório é exibido.</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>Salvar relatório da cadeia de sinal</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>Relatório da cadeia de sinal salvo: %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>Falha ao salvar o relatório da cadeia de sinal: %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>Autoteste bit-perfect: não há sessão de reprodução — inicie a reprodução primeiro (sem fluxo de áudio não há o que julgar)</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>Autoteste bit-perfect: verificação item a item pedida ao motor</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>Veredito do autoteste bit-perfect: %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>Padrões puros restaurados (todos os efeitos desligados / 1.0x / sem crossfade / volume 100 / layout e tema redefinidos) e autoteste bit-perfect iniciado</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>Ordem de reprodução: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>Loop A/B: nenhuma faixa em reprodução, não há o que marcar</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>Ignorado(s) %1 arquivo(s) de áudio para os quais este reprodutor não tem decodificador (MP3/AAC/OGG)</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>Ignorado(s) %1 arquivo(s) cujo nome não é UTF-8 válido e que não podem ser abertos</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>%1 faixa(s) adicionada(s) (a lista tem agora %2)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>A adição em lote levou %1 ms (%2 faixas, layout calculado uma só vez)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>Nenhum arquivo de áudio para adicionar</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>Arquivos de áudio (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>A faixa em reprodução foi removida da lista (o som continua, mas ela não está mais na lista)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>%1 faixa(s) removida(s) (a lista tem agora %2)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>Lista de reprodução limpa</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>Esta alteração é grande demais para ser guardada e por isso não pode ser desfeita</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>Não há nada para desfazer</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>O histórico de desfazer não corresponde à lista de reprodução; nada foi desfeito e o histórico foi limpo</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>Não há nada para refazer</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>O histórico de refazer não corresponde à lista de reprodução; nada foi refeito e o histórico foi limpo</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>Mostrar no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>Mover para o início</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>Mover para o fim</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>Adicionar pasta…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Limpar lista</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>Nenhum gerenciador de arquivos respondeu, por isso a pasta foi aberta: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>Não é possível abrir a pasta: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>Propriedades da faixa</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>Lista de reprodução restaurada: %1 faixa(s)</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>Última reprodução: faixa %1 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>Última reprodução: faixa %1</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>%1 faixa(s) ignorada(s) ao restaurar a lista de reprodução (o arquivo não existe mais)</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>O modo offline está ligado; recusado: %1 (desligue o modo offline nas configurações)</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>controle pelo celular (porta de escuta)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>Controle pelo celular: desligado (a porta não está mais em escuta)</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>Controle pelo celular: recusada uma solicitação sem o token correto (%1)</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>Controle pelo celular: não é possível escutar na porta %1 (%2)</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>Controle pelo celular: ligado, porta %1, token %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>Endereço do controle pelo celular: %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>Layout: a largura lateral %1 está fora do intervalo e foi limitada a %2 px</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>Layout: largura lateral %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>Layout redefinido (tamanho e posição da janela, largura lateral)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>Posição da janela: não é possível ler o registro salvo, por isso vale o tamanho padrão</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>Posição da janela: a tela anterior não existe mais, a janela foi movida para o meio da tela principal</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>A faixa em reprodução não está na lista da biblioteca</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Ajuda</translation>
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
        <translation>## Reprodução

Arraste arquivos ou pastas para a janela e dê um clique duplo em uma linha para reproduzi-la. Não é possível saltar durante a reprodução: só se chega a uma posição no início da faixa.

## Teclado

- **Espaço** reproduzir / pausar
- **Ctrl+→** próxima faixa, **Ctrl+←** faixa anterior
- **Ctrl+↑ / Ctrl+↓** volume
- **Ctrl+Espaço** parar, **Ctrl+O** importar arquivos, **F11** maximizar / restaurar
- **Ctrl+,** configurações
- Na lista: **Enter** reproduz, **Delete** remove, **Ctrl+Z** desfaz, **Ctrl+Shift+Z** refaz

## Bit-perfect

A coluna da direita diz por onde passam as amostras. Só quando o que o dispositivo recebeu foi lido de volta aparece “entrega verificada”. O “Autoteste bit-perfect” examina cada etapa.
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>Arquivo de registro: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>Arquivo de configurações: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>Aguardando a forma de onda</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>O osciloscópio está desligado: sem forma de onda</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Autoteste bit-perfect</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>Verifica item a item se a reprodução atual altera as amostras</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>Relatório da cadeia de sinal…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>Mostra o relatório do próprio motor sobre a cadeia de sinal, que pode ser salvo</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Timer de desligamento</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>Controle pelo celular</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>O painel de registro foi limpo; o arquivo de registro permanece</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>Tema: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>Seguir o sistema (%1)</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>A capa não tem cor dominante utilizável (preto/cinza/branco puro) ⇒ a cor de destaque continua a que você escolheu</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>A cor de destaque segue a capa: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Escolha uma faixa ou importe áudio</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>Reduzido à bandeja, a reprodução continua</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>SAÍDA DE ÁUDIO</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>A escolha de espectro e osciloscópio foi salva e vale a partir da próxima sessão</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Exibição</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>A lista foi esvaziada enquanto as faixas eram listadas ⇒ elas não são adicionadas: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>A faixa anterior terminou justamente quando outra foi escolhida ⇒ não é o fim da escolhida</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>Ignorado (o caminho contém uma quebra de linha, que nenhuma linha de controle pode levar): %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>Adição de %1 faixa(s) desfeita (a lista tem agora %2)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>%1 faixa(s) removida(s) de volta à lista (a lista tem agora %2)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>A ordem de reprodução anterior foi restaurada</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>%1 faixa(s) adicionada(s) de novo (a lista tem agora %2)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>%1 faixa(s) removida(s) de novo (a lista tem agora %2)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>A ordem de reprodução foi alterada de novo</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>Verificação de fim de faixa: restam %1 s, janela de pré-carga %2 s (crossfade %3 / sem intervalos %4), próxima=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>Crossfade: a %1 s do fim, a próxima é carregada antes (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>Sem intervalos: a %1 s do fim, a próxima é pré-carregada (%2)</translation>
    </message>
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>A próxima faixa não é pré-carregada (%1): só pelo caminho o motor a tomaria por outra ⇒ será carregada pelo número ao fim desta</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
    <message>
        <source>播放进度</source>
        <translation>Progresso da reprodução</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>Só mostra o progresso: não é possível saltar durante a reprodução</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>A posição segue o tempo da fonte; reprodução a %1×.</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>Posição e duração seguem o tempo da fonte; a %1× a faixa inteira leva %2.</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>Progresso %1%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>Varrendo (decodificando) a fonte… %1%</translation>
    </message>
</context>
<context>
    <name>ProgressRow</name>
    <message>
        <source>位置</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>循环起点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Início do loop: marca a posição atual. Com A e B definidos o loop começa; pressione de novo para limpar</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Fim do loop: marca a posição atual. Com A e B definidos o loop começa; pressione de novo para limpar</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>Controle pelo celular</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>Um celular na mesma rede Wi-Fi controla a reprodução pelo navegador; enquanto ligado, este computador escuta em uma porta</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>Porta em que o controle pelo celular escuta; lida no momento em que ele é ligado</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>Porta do controle pelo celular</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>Endereços do controle pelo celular</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>Este computador não tem endereço IPv4 na rede local</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>Abra no navegador do celular (mesma rede Wi-Fi do computador):
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>Controle pelo celular: desligado</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>Relatório da cadeia de sinal</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>Pedir de novo</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Salvar relatório…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>Tipo: estação de rede</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>Tipo: faixa %1 de um arquivo CUE</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>Tipo: faixa %1 de uma imagem SACD</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>Tipo: faixa %1 de um contêiner</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>Tipo: arquivo de áudio</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>Exibido como: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>Lugar: item %1/%2</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>Formato: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>Arquivo: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>Arquivo CUE: %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>Tempo: %1 s → %2 s (duração %3 s)</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>Osciloscópio</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>Nada em reprodução: sem forma de onda</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>Maior amplitude: esquerdo %1%, direito %2%</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>Pico de saída deste canal (dBFS): o motor informa 20 vezes por segundo com resolução de 0.01 dB e piso de −120 dB (abaixo disso mostra −∞ dB); em 0 dBFS o vermelho fica aceso por 1.5 s (possível clipping)</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>A fonte é sem perdas?</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>Aguardando a resposta do motor.</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>A fonte é sem perdas</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>A codificação devolve cada amostra que recebeu; nada foi descartado.</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>A fonte tem perdas</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>O arquivo já não contém todas as amostras originais, e nenhuma etapa posterior pode trazê-las de volta.</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>Não se sabe se a fonte é sem perdas</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>O motor não deu nada que o comprove; isto não conta como aprovação.</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>O caminho está inalterado?</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>O caminho está inalterado</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>Nenhuma etapa entre o arquivo e o dispositivo alterou uma amostra sequer.</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>O caminho está alterado</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>Uma etapa entre o arquivo e o dispositivo altera amostras.</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>Não se sabe se o caminho está inalterado</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>A entrega foi verificada?</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>Entrega verificada</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>O dispositivo foi aberto como pedido, e o formato lido dele é igual ao enviado.</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>A entrega diverge</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>O que chegou ao dispositivo não é o que foi enviado, ou há outra etapa no caminho.</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>A entrega não pode ser verificada</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>Não é possível ler de volta em que formato o dispositivo realmente opera; isto não conta como aprovação.</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>A primeira etapa que quebrou o bit-perfect: %1.</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>A primeira etapa que não pode ser comprovada: %1.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>Veredito: bit-perfect ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>Veredito: não bit-perfect ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Autoteste bit-perfect</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>O motor verifica etapa por etapa a cadeia em reprodução: fonte, decodificação, reamostragem, efeitos, velocidade, volume, fades, proteção de picos, profundidade de bits, mixer, o que se lê de volta do dispositivo e esvaziamentos do buffer. Ele julga pelo que cada etapa realmente faz agora, nunca por uma configuração; o que não pode ser comprovado não conta como aprovação.</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>Resultados item a item</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Salvar relatório…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>Verificando…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>Autoteste bit-perfect — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>aprovado</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>reprovado</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>Após %1 minutos</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Timer de desligamento</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>Chegada a hora, o som diminui durante dez segundos e depois para</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>Timer de desligamento: desligado</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>Timer de desligamento: %1 min</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>Timer de desligamento: diminuindo o som (para em 10 segundos)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>Timer de desligamento: som diminuído e reprodução parada</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>Áudio: %1 · %2 bits · %3 canais · %4 s</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST: sim</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST: não</translation>
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
        <translation>Espectro</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>Banda mais forte: esquerdo %1, direito %2, de %3</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(não marcado)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] A thread da interface travou por %1 ms — estava fazendo: %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] Já há outro KelpPlayer em execução — este não será iniciado

Um segundo tocaria por cima no mesmo dispositivo (soa como ruído/sobreposição).
Para abrir vários de propósito, defina KELP_GUI_ALLOW_MULTI=1</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>desconhecido</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>Métricas de início: interface pronta em %1, memória %2 (só valores medidos)</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>Abrir configurações (Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>Fechar a janela</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1: ligado</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1: desligado</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restaurar</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>Varrer pastas da biblioteca (incremental)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>Procurar duplicatas</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>Edição de tags em lote</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>Listas inteligentes</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>Relatório do ano</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Análise da faixa</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>Ordem do DSP</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>Comparar impressões digitais</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>Completar tags on-line</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>Biblioteca de rede</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>Sincronizar com o celular</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>Estações/rede/transferência</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>Modo carro</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>Unidades de rede</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>Verificar biblioteca</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Limpar registro</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>Ajuda…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>Este recurso ainda não está pronto; virá em uma versão futura</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>não é possível determinar</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
Tom: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>Análise da faixa: BPM %1, tom %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>Análise da faixa: BPM %1 (não é possível determinar o tom, e ele não é adivinhado)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>Análise da faixa: tom %1 (não é possível determinar o BPM, e ele não é adivinhado)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>Análise da faixa: não é possível determinar BPM nem tom, e nada é adivinhado</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>Selecione primeiro uma faixa e depois analise</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>Não é possível analisar durante a reprodução — aperte Parar primeiro</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Análise da faixa</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>A análise não pode começar (biblioteca do motor indisponível, rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>A análise não deu resultado: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>Continuando de %1:%2 (onde parou da última vez)</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>O reprodutor não terminou em %1 s — encerramento forçado.</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>O reprodutor não terminou em %1 s; uma sessão no mesmo processo não pode ser morta (aguarde; saída: KELP_GUI_INPROC=0)</translation>
    </message>
</context>
<context>
    <name>ValueCards</name>
    <message>
        <source>码率</source>
        <translation>TAXA DE BITS</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>AMOSTRAGEM</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>CANAIS</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>REPRODUÇÕES</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>Avisos na cadeia de sinal: %1</translation>
    </message>
</context>
</TS>
