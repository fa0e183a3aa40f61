<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>A/B loop: point %1 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>A/B loop: point B must come after point A (A=%1s, B=%2s)</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>A/B loop: marked, applies when playback starts (single-track repeat)</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>A/B loop: %1 → %2 started (single-track repeat; clearing restores the previous play order)</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>A/B loop: cleared</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>A/B loop: cleared, play order restored to %1</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>A/B loop: the track changed, the A/B points set for the previous track were discarded</translation>
    </message>
</context>
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>Check for updates…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>Third-party notices and standards</translation>
    </message>
</context>
<context>
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>Effective bits</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>Effective bits: not known yet</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>transparent</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>fewer bits</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>used up</translation>
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
        <translation>Not proven</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>Not bit-perfect</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>the self-check did not pass</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>Not bit-perfect, or not proven: %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>Not yet known</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>The engine has not reported this track&apos;s signal chain yet, so nothing is claimed.</translation>
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
        <translation>CHAIN</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>Verdict on the signal chain</translation>
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
        <translation>Output format</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>Latency</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>Chain</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>Underruns</translation>
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
        <translation>Mixer+convert</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>OS mixer</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>Converted</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>Proved</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>Disproved</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>Not provable here</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>DSP effects are active ⇒ this track is decoded to PCM (direct DSD and DSP are mutually exclusive: effects work in the PCM domain). For direct DSD, switch reverb/tone/denoise/balance/width all off.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>No device selected</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>Differential/crossover modes need one device per channel — please select devices first.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>pairs mode needs %1 devices (one per channel pair) but only %2 are selected; please add the missing ones before playing.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>This mode needs %1 device(s) (one per channel) but only %2 selected; the missing channels shift the whole mapping — please complete the list before playing.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Not enough devices</translation>
    </message>
</context>
<context>
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>SACD ISO: %1 — %2 track(s)</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>CUE parse failed: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>ISO parse failed: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>No playable tracks in this cue: %1 (probe rc=%2, %3 output line(s); lines: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>No playable tracks in this ISO: %1 (probe rc=%2, %3 output line(s); lines: %4)</translation>
    </message>
</context>
<context>
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
Track %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(tags come from the container&apos;s own information; no extra tags in the local library)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>Album: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>Year: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(tags come from the local library — nothing was written into the ISO/CUE)</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[control] closure: %1 command(s) were sent but this run has no engine session log -- the two ends cannot be reconciled</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>passed</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>over tolerance (difference %1 &gt; tolerance %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[control] closure: queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[control] closure account from: %1</translation>
    </message>
</context>
<context>
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[control] sending %1 took %2 ms (should be under 1 ms)</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[control] %1</translation>
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
        <translation>No cover</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>A cover is shown</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>unknown exception</translation>
    </message>
</context>
<context>
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>test hook: closing the window (as by the close button)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse (system mixer; non-bit-perfect)</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (device reset)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>reset device (-reset-device) timed out: %1</translation>
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
        <translation>Total length</translation>
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
        <translation>Stop playback</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>Play the previous track</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>Play the selected track</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>Play the next track</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>Volume; 100% leaves the samples untouched</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Select a track or import audio</translation>
    </message>
    <message>
        <source>播放顺序</source>
        <translation>Play order</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>Repeat</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>Lyrics</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>Lyrics are not built yet; this button will work in a later version</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>Mute; press again to return to the former volume</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>Tools for the library, tags, the network and more</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>Play order: random</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>Play order: sequential</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>Repeat: this track</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>Repeat: the whole list</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>Repeat: off</translation>
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
        <translation>Reverb</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>Tone</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>Spatial</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Denoise</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Equalizer</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>This effect page is not built yet; it comes in a later version</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>The effects are in the path of what plays: a change is heard at once</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>The effects are not in the path now</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>The effect is on</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>The effect is off</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>Effective bits: unity (samples untouched)</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>Effective bits: used up (attenuation too deep)</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>Effective bits: no loss, but the gain pushes peaks up (clipping risk)</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>Effective bits: unaffected (device/endpoint volume, samples are not scaled)</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>Effective bits: unaffected (no volume processing on a DoP stream)</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>Effective bits: see the log (DSD direct, device mixer used)</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>Effective bits: determined by the software gain (see the next line)</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>Effective bits: about %1 bit (after the software attenuation)</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>Effective bits: see the log</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>Ended before the end (%1%), stopped, not continuing to the next track</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>Player exited abnormally, code: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  engine&apos;s last line: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>The exclusive endpoint could not be opened (busy or unsupported format) ⇒ retrying this track with auto (exclusive → shared ladder)</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>Session closed (device/layout changed); the next playback opens a new session with the new settings</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Playback stopped</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Playback finished</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>Ignoring the previous session’s end event (the session was just rebuilt; this event came from the one that was torn down).</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Playback</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>Decoding</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>Output path</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>exclusive goes straight to the hardware, shared through the system mixer; auto tries exclusive first.</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>DSD transport</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto lets the program judge; force always uses DoP; native asks for native DSD.</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>Playback mode</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard uses one device; the other modes use one a channel or pair of channels.</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>How many channels the modes with several devices share out.</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 channels</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>Channel rig</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>How the source&apos;s channels reach the outputs; auto lets the program decide.</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>Crossover</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>What lies below goes to the bass devices.</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>Bridged crossover</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>Two bridged devices for each way of the crossover.</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>Device %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>The output device of this channel.</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>Always decode DSD to PCM</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>No direct DSD: for devices that take PCM only, or to use effects.</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>PCM depth</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>The depth to which DSD is decoded.</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>Decode filter</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>The filter that decodes DSD to PCM: the better, the more work.</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>Fast</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>Best</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM to DSD</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>Modulates PCM to DSD: changes the samples, not bit-perfect.</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>Target rate</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>The DSD rate after modulation.</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>Modulator taps</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>Length of the upsampling filter; Auto lets the engine decide.</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>External decoder</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>Path of an external decoder library; empty for none.</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>Peak guard</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>Lowers peaks only where they would clip.</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>Resample to the device&apos;s rate</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>Changes the samples, not bit-perfect.</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>Resampling quality</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>The better, the more work.</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>ReplayGain</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>Evens out loudness by the file&apos;s ReplayGain tags.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>By track</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>By album</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Denoise</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>Removes the noise of a recording; while on, DSD cannot go direct.</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>Strong</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>Keep harmonics</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>Spares the harmonics of tones while removing noise.</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>Gapless</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>Loads the next track before the end, so that nothing pauses between.</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>Crossfade</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>Seconds by which tracks overlap; 0 for none.</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>Playback speed</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>Keeps the pitch; anything but 1.00 is not bit-perfect.</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>Streaming read</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>Does not read the file into memory first.</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1 (automatic)</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>The engine library was not found; looked for: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>The engine library cannot be loaded: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>The engine library lacks the two entries that are needed: %1</translation>
    </message>
</context>
<context>
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>learning noise profile</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>noise profile ready</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>no noise in this track, passing through</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>Learning noise (about 1 s)</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>Level/spectrum aligned to output latency: %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>Progress (PG) received: %1 s played / %2 s total</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>DSP is applied by the modulator</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>Oscilloscope: first frame received (%1 buckets)</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>next to the program</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>environment variable KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>dev build (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Probe timed out (%1 ms): %2 -- that child process was ended and the UI continues (expected during the KELP_GUI_PROBE_HANG self-test)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>Probe returned non-zero (%1): %2</translation>
    </message>
    <message>
        <source>(完全没有输出)</source>
        <translation>(no output at all)</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>The playlist&apos;s undo history is damaged and cannot be used, so it starts empty: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>The playlist&apos;s undo history does not fit the saved list, so it starts empty: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>The playlist&apos;s undo history cannot be written, so there will be nothing to undo after a restart: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>Left level</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>Right level</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>SPECTRUM</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>SCOPE</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>Search title / artist</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>Shown / all</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>Searching and filtering are not built yet; they come in a later version</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>LIBRARY · TITLE</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>Playing / all</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>All</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>All artists</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>Filter by artist</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>All albums</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>Filter by album</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>Adds audio files to the end of the list</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>Adds the audio files of a folder to the end of the list; subfolders are not entered</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>Removes the selected tracks from the list; the files stay</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>Empties the list; the files stay, and it can be undone</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>Log</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>Accent colour follows the cover</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>Reduce motion</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Spectrum</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>Oscilloscope</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>Reset layout</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>Restore pure defaults</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Follow the system</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>The window&apos;s look; takes effect at once</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>Width of the right column, 200 to 420 pixels; takes effect at once</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>While a track with a cover plays, the accent is taken from the cover; otherwise it is the colour you chose</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>Instruments jump to the new value, without smoothing or fading</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>Window size, position and side width go back to their defaults</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>Switches off everything that could touch the samples, then runs a bit-perfect self-check</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>Side width</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>Asks the engine for the spectrum; takes effect at once, also during playback</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>Asks the engine for the waveform; takes effect at once, also during playback</translation>
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
        <translation>Show the playing track in the list</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(no output at all)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>No audio sample 5 s after start -- engine&apos;s last line: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>No sound 5 s after starting -- **the device was never opened** (no OPENED in the engine log): most likely exclusive access was refused, the format is unsupported, or another program holds it; see the WASAPI lines above; last engine line: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  check in this order: (1) which step the line above is -- decode / device / exclusive; (2) play the same file from the command line; (3) look for WASAPI / OPENED / 0x8889000A in the log. The session is not rebuilt automatically.</translation>
    </message>
</context>
<context>
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Select a track or import audio</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>Random</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>Sequential</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · no repeat</translation>
    </message>
    <message>
        <source> · 列表循环</source>
        <translation> · repeat list</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · repeat track</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>Playback speed: %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> (applied immediately while playing)</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>Engine log: left to the engine&apos;s own default location</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>Engine log (kept, not deleted on exit): %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>Engine log (this session, deleted on exit): %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>The previous in-process session did not wind down within 2 s -- this process may still hold the exclusive device, so the next track may fail to open it</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(system default)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (default)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>Device list (-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (not connected — plug it in and click “Refresh devices”)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>Playing… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>The playlist is empty</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>Already the first track</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>Already the last track</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>Track %1/%2</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>Move failed: row out of range (from=%1 to=%2, %3 items in the list)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>Play order changed: item %1/%2</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>Auto-advanced: the list/order changed at the end of the track, matched back by file to %1/%2</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>Auto-advanced (seamless/crossfade): track %1/%2: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>The previous playback session has not finished tearing down (exclusive teardown in progress) -- not creating a new session this time. Press play again; if it still fails, restart the player.</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Playback finished</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>End of playlist (%1)</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>End of playlist</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[elapsed] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>Skipping (file missing): %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>Error: player engine %1 not found — place it next to this program, add it to PATH, or point KELP_PLAYER_BIN to it.</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>Device or layout changed -&gt; closing the current session (releasing the device)</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>The old session did not exit within 10 s — force-killing it (the device may take a moment longer to release)</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>Reusing current session (track change sends only load; parameters are not re-sent): %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[in-process DLL] session arguments: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>Play command: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>Player failed to start (session start returned %1) =&gt; back to the not-playing state</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>Resend denoise tier to the running session: %1 (a reused session does not re-read command-line parameters)</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>Resend peak guard to the running session: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>Error: add audio files first</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>The old session has not exited yet =&gt; disconnecting it first, then starting playback (an in-process session can only finish on its own)</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>The old session has still not exited, so a new playback cannot start — please wait for it to finish (or exit and reopen the app; for automation/troubleshooting set KELP_GUI_INPROC=0 to use the subprocess path)</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>No playback task running</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>Stopping player...</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>Stop signal sent</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Playback stopped</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>Playback in progress</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>Playback has not finished; closing the window stops it.

Do you really want to quit?</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>Import audio files</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>Playlist</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>Engine settings</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>Output device</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>The device that plays</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>Refresh devices</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>Re-read the device list from KelpPlayer -list</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>Show log panel</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>What the program decided, and why</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>Hide log panel</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer — DSD audio player ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>Formats: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>Modes: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Restoring parameters: no match for %1 (the default stays)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>Analyzing %1 …</translation>
    </message>
    <message>
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>No PCM on this chain (DSD straight through) — no waveform</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>No spectrum on this path: direct DSD output carries no PCM</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>Signal-chain report: no playback session, so only the last report is shown.</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>Save signal-chain report</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>Signal-chain report saved: %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>Saving the signal-chain report failed: %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>Bit-perfect self-check: no playback session — start playback first (nothing to judge without a stream)</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>Bit-perfect self-check: asked the engine for a per-item check</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>Bit-perfect self-check verdict: %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>Restored pure defaults (all effects off / 1.0x / no crossfade / volume 100 / layout and theme reset) and started the bit-perfect self-check</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>Play order: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>A/B loop: no track is being played, so there is nothing to mark</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>Skipped %1 audio file(s) that this player has no decoder for (MP3/AAC/OGG)</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>Skipped %1 file(s) whose names are no valid UTF-8 and cannot be opened</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>Added %1 track(s) (list now %2)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>Bulk add took %1 ms (%2 tracks, laid out once)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>No audio files to add</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>Audio files (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>Add folder</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>The playing track was removed from the list (audio keeps going, but it is no longer in the list)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>Removed %1 track(s) (list now %2)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>Playlist cleared</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>This change is too large to be kept, so it cannot be undone</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>There is nothing to undo</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>The undo history does not fit the playlist; nothing was undone and the history was cleared</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>There is nothing to redo</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>The redo history does not fit the playlist; nothing was redone and the history was cleared</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>Show in file manager</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>Move to top</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>Move to bottom</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>Add folder…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Clear list</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>No file manager answered, so the folder is opened instead: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>The folder cannot be opened: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>Track properties</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>Playlist restored: %1 track(s)</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>Last played: track %1 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>Last played: track %1</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>Skipped %1 track(s) while restoring the playlist (file no longer exists)</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>Offline mode is on: refused %1 (turn offline mode off in Settings)</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>phone remote (listening port)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>Phone remote: disabled (port no longer listening)</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>Phone remote: rejected a request without the right token (%1)</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>Phone remote: cannot listen on port %1 (%2)</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>Phone remote: enabled, port %1, token %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>Phone remote address: %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>Layout: the side width %1 is out of range and was clamped to %2 px</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>Layout: side width %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>Layout reset (window size/position/side width)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>Window place: the stored record cannot be read, so the default size is used</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>Window place: its former screen has gone, so it was moved to the middle of the primary screen</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>The track that is playing is not in the library list</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
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
        <translation>## Playing

Drop files or folders onto the window and double-click a row to play it. There is no seeking while a track plays: a position is only reached at the start of a track.

## Keyboard

- **Space** play / pause
- **Ctrl+→** next track, **Ctrl+←** previous track
- **Ctrl+↑ / Ctrl+↓** volume
- **Ctrl+Space** stop, **Ctrl+O** import files, **F11** maximise / restore
- **Ctrl+,** settings
- In the list: **Enter** plays, **Delete** removes, **Ctrl+Z** undoes, **Ctrl+Shift+Z** redoes

## Bit-perfect

The right column tells what the samples go through. Only when what the device received was read back does it say “delivery verified”. The “Bit-perfect self-check” looks at each stage.
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>Log file: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>Settings file: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>Waiting for the waveform</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>The oscilloscope is off: no waveform</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Bit-perfect self-check</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>Checks item by item whether the present playback changes the samples</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>Signal-chain report…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>Shows the engine&apos;s own report of the signal chain, which can be saved</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Sleep timer</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>Phone remote</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>The log panel was cleared; the log file stays</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>Theme: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>Follow system (%1)</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>The cover has no usable dominant colour (pure black/grey/white) ⇒ the accent colour stays as you chose it</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>Accent colour follows the cover: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Select a track or import audio</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>Reduced to the system tray; playback continues</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>OUTPUT DEVICE</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>The choice of spectrum and oscilloscope is saved and takes effect with the next playback session</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>The list was cleared while tracks were being listed ⇒ these are not added: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>The previous track ended just as another one was chosen ⇒ this is not the end of the chosen one</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>Skipping (its path holds a line break, which no control line can carry): %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>The adding of %1 track(s) was undone (list now %2)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>%1 removed track(s) are back (list now %2)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>The former play order is back</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>%1 track(s) were added again (list now %2)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>%1 track(s) were removed again (list now %2)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>The play order was changed again</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>End-of-track check: %1 s left, preload window %2 s (crossfade %3 / seamless %4), next=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>Crossfade: %1 s to the end, loading the next track early (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>Seamless: %1 s before the end, preloading the next track (%2)</translation>
    </message>
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>The next track is not loaded early (%1): from its path alone the engine would take it for another one =&gt; it is loaded by its number when this one has ended</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
    <message>
        <source>播放进度</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>Shows the position only: there is no seeking while a track plays</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>The position follows the source timeline; playing at %1×.</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>Position and total follow the source timeline; at %1× the whole track takes %2.</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>Progress %1%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>Scanning (decoding) the source… %1%</translation>
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
        <translation>Start of the loop: marks the present position. With A and B set the loop begins; press again to clear it</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>End of the loop: marks the present position. With A and B set the loop begins; press again to clear it</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>Phone remote</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>A phone on the same Wi-Fi controls playback from its browser; while on, this PC listens on a port</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>Port that the phone remote listens on; read at the moment the switch is turned on</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>Phone remote port</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>Phone remote addresses</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>This machine has no LAN IPv4 address</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>Open in a phone browser (same Wi-Fi as the PC):
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>Phone remote: disabled</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>Signal-chain report</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>Ask again</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Save report…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>Kind: network station</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>Kind: track %1 of a CUE sheet</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>Kind: track %1 of an SACD image</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>Kind: track %1 of a container</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>Kind: audio file</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>Shown as: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>Place: item %1/%2</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>Format: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>CUE sheet: %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>Time: %1 s → %2 s (%3 s long)</translation>
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
        <translation>Nothing is playing: no waveform</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>Largest amplitude: left %1%, right %2%</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>Peak output of this channel (dBFS): the engine reports 20 times per second at 0.01 dB resolution with a −120 dB floor (below that it shows −∞ dB); at 0 dBFS it stays red for 1.5 s (clipping candidate)</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>Is the source lossless?</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>Waiting for the engine&apos;s answer.</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>The source is lossless</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>The coding gives back every sample that went into it; nothing was discarded.</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>The source is not lossless</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>The file no longer holds all of the original samples, and no later stage can bring them back.</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>Whether the source is lossless is not known</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>The engine gave nothing that would prove it; this does not count as a pass.</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>Is the path unchanged?</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>The path is unchanged</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>No stage between the file and the device altered a sample.</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>The path is changed</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>A stage between the file and the device alters samples.</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>Whether the path is unchanged is not known</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>Is the delivery verified?</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>The delivery is verified</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>The device was opened as asked, and the format read back from it equals what was sent.</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>The delivery differs</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>What reached the device is not what was sent, or another stage stands on the way.</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>The delivery cannot be verified</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>What the device really runs at cannot be read back; this does not count as a pass.</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>The first stage that broke it: %1.</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>The first stage that cannot be proven: %1.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>Verdict: bit-perfect ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>Verdict: not bit-perfect ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Bit-perfect self-check</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>The engine checks the chain that is playing stage by stage: source, decoding, resampling, effects, speed, volume, fades, peak guard, depth, mixer, what is read back from the device, and underruns. It judges by what each stage really does now, never by a setting; what cannot be proven does not count as a pass.</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>Results, item by item</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Save report…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>Checking…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>Bit-perfect self-check — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>passed</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>failed</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>After %1 minutes</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Sleep timer</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>Fades out over ten seconds when the time has come, then stops</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>Sleep timer: off</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>Sleep timer: %1 min</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>Sleep timer: fading out (stopping in 10 seconds)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>Sleep timer: faded out and stopped</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>Audio: %1 · %2-bit · %3 ch · %4 s</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST: yes</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST: no</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 ch</translation>
    </message>
</context>
<context>
    <name>SpectrumView</name>
    <message>
        <source>频谱</source>
        <translation>Spectrum</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>Loudest band: left %1, right %2, of %3</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(not marked)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] the UI thread froze for %1 ms -- it was doing: %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] another KelpPlayer is already running — not starting this one

A second one would play on top of it on the same device (heard as noise or overlap).
To run several on purpose set KELP_GUI_ALLOW_MULTI=1</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>Startup metrics: UI ready %1, memory %2 (measured values only)</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>Open settings (Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimise</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximise</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>Close the window</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1: on</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1: off</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restore</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>Scan library folders (incremental)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>Find duplicates</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>Batch tag edit</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>Smart playlists</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>Year report</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Track analysis</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>DSP order</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>Fingerprint compare</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>Online tag fill</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>Network library</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>Phone sync</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>Stations/network/handoff</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>Car mode</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>Network mounts</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>Verify library</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Clear log</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>Help…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>This feature is not built yet; it comes in a later version</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>cannot tell</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
Key: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>Track analysis: BPM %1, key %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>Track analysis: BPM %1 (the key cannot be told and is not guessed)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>Track analysis: key %1 (the BPM cannot be told and is not guessed)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>Track analysis: neither BPM nor key can be told, and neither is guessed</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>Select a track first, then analyze it</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>A track cannot be analyzed during playback -- press Stop first</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Track analysis</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>The analysis cannot start (engine library not available, rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>The analysis gave no result: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>Resuming at %1:%2 (where it stopped last time)</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>The player did not finish its teardown within %1 s — forcing it to end.</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>The player did not finish its teardown within %1 s; an in-process session cannot be force-killed (wait for it to finish; escape hatch: KELP_GUI_INPROC=0)</translation>
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
        <translation>SAMPLE RATE</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>CHANNELS</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>PLAY COUNT</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>Warnings in the signal chain: %1</translation>
    </message>
</context>
</TS>
