<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
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
        <source>曲名</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>位置</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Select a track or import audio</translation>
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
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>Log</translation>
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
        <source>顺序</source>
        <translation>Sequential</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · no repeat</translation>
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
        <source>音频数据</source>
        <translation>Audio data</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>Playlist</translation>
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
        <source>引擎设置</source>
        <translation>Engine settings</translation>
    </message>
    <message>
        <source>下次建会话时交给引擎的设置</source>
        <translation>What the engine is told when the next session starts</translation>
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
        <source>分析曲目</source>
        <translation>Analyze track</translation>
    </message>
    <message>
        <source>测出选中曲目的速度和调性；不改动文件</source>
        <translation>Finds the tempo and key of the selected track; the file is not changed</translation>
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
        <source>播放进度</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>Shows the progress only: playback cannot be moved</translation>
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
</TS>
