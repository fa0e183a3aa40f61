<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="zh_CN">
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>檢查更新…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>第三方聲明與參考標準</translation>
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
        <translation>混音+轉換</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>系統混音</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>已轉換</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>DSP 效果已啟用 ⇒ 本曲解碼為 PCM（DSD 直通與 DSP 互斥：效果只在 PCM 域作用）。要 DSD 直通，請將殘響/音調/降噪/平衡/寬度全部關閉。</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>未選擇裝置</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>差動/分頻模式每個聲道需要一台裝置 —— 請先選擇裝置。</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>pairs 模式需要 %1 台裝置（每對聲道一台），目前只選了 %2 台；請補齊後再播放。</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>此模式需要 %1 台裝置（每個聲道一台），目前只選了 %2 台；缺少的聲道會使整個對應錯位 —— 請補齊清單後再播放。</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>裝置數量不足</translation>
    </message>
</context>
<context>
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>SACD ISO: %1 — %2 首</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>CUE 解析失敗: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>ISO 解析失敗: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>cue 裡沒有可播放的曲目: %1 (探測 rc=%2, 輸出 %3 行; 內容: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>ISO 裡沒有可播放的曲目: %1 (探測 rc=%2, 輸出 %3 行; 內容: %4)</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[控制] 閉合: 已送出 %1 條指令, 但本次執行沒有引擎工作階段記錄 —— 兩端無法對帳</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>通過</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>超出容許誤差(差 %1 &gt; 容差 %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[控制] 閉合: queued=%1 recv=%2 diff=%3 —— %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[控制] 閉合帳來源: %1</translation>
    </message>
</context>
<context>
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[控制] 送出 %1 用了 %2 ms（應小於 1 ms）</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[控制] %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>未知例外</translation>
    </message>
</context>
<context>
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>測試鉤子: 自動關窗 (等同點右上角關閉)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse（系統混音器；非 bit-perfect）</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (裝置已重設)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>裝置重設 (-reset-device) 逾時：%1</translation>
    </message>
</context>
<context>
    <name>DisplayPanel</name>
    <message>
        <source>曲名</source>
        <translation>曲名</translation>
    </message>
    <message>
        <source>位置</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>選擇曲目或匯入音訊</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>停止</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>停止播放</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>上一首</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>播放上一首</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>播放選取的曲目</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>下一首</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>播放下一首</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>音量；100% 不改變樣本</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>選擇曲目或匯入音訊</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>有效位元：單位增益（樣本原樣通過）</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>有效位元：已耗盡（衰減過深）</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>有效位元：無損失，但增益會推高峰值（有削波風險）</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>有效位元：不受影響（裝置/端點音量，樣本未縮放）</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>有效位元：不受影響（DoP 串流不做音量處理）</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>有效位元：見記錄（DSD 直通，使用裝置混音器）</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>有效位元：由軟體增益決定（見下一行）</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>有效位元：約 %1 位元（軟體衰減之後）</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>有效位元：見記錄</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>未到結尾就結束（%1%），已停止，不繼續下一首</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>播放器異常結束，代碼: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  引擎最後一行: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>獨占端點無法開啟（被占用或格式不支援）⇒ 本曲改用 auto 重試（獨占 → 共用 階梯）</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>工作階段已關閉（裝置/配置變更）；下次播放依新設定開新工作階段</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>播放已停止</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>播放完成</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>忽略上一個工作階段的結束事件（工作階段剛剛重建，這個事件來自被拆掉的那個）。</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>解碼</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>訊號</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>輸出路徑</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>獨占直達硬體，共用經過系統混音器，auto 先試獨占再退到共用。</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>DSD 傳輸</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto 由程式判斷；force 一律用 DoP；native 要求原生 DSD。</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>播放模式</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard 用一台裝置；其他模式每個聲道或聲道對用一台裝置。</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>聲道數</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>多裝置模式分配的聲道數。</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 聲道</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>聲道配置</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>來源的聲道如何分到輸出；auto 由程式決定。</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>分頻點</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>低於這個頻率的送到低音裝置。</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>橋接分頻</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>每一路分頻用兩台橋接的裝置。</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>裝置 %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>這個聲道的輸出裝置。</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>DSD 一律解碼為 PCM</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>不再直通 DSD：裝置只接 PCM 或要用效果時使用。</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>PCM 位元深度</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>DSD 解碼成 PCM 時的位元深度。</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>解碼濾波器</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>DSD 解碼成 PCM 的濾波器：越好越耗運算。</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>快速</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>最佳</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM 轉 DSD</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>把 PCM 調變成 DSD 再送出：改變樣本，不是 bit-perfect。</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>目標速率</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>調變後的 DSD 速率。</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>調變濾波器抽頭</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>升頻濾波器的長度；自動由引擎決定。</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>无</source>
        <translation>無</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>外部解碼程式庫</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>外部解碼程式庫的路徑；留空表示不用。</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>峰值保護</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>只在會削波時壓低峰值。</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>重新取樣到裝置速率</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>改變樣本，不是 bit-perfect。</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>重新取樣品質</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>越好越耗運算。</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>回放增益</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>依檔案裡的 ReplayGain 標籤拉平響度。</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>依曲目</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>依專輯</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>降噪</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>去掉錄音的底噪；開啟時無法直通 DSD。</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>輕度</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>強力</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>保留諧波</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>降噪時保住樂音的諧波。</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>無縫換曲</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>曲尾前預先載入下一首，中間不停頓。</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>交叉淡化</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>兩首之間重疊的秒數；0 表示不用。</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>播放速度</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>保持音高；不是 1.00 就不是 bit-perfect。</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>邊讀邊播</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>不先把檔案讀進記憶體。</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1（自動）</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>找不到引擎程式庫，已查找：%1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>無法載入引擎程式庫：%1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>引擎程式庫缺少所需的兩個進入點：%1</translation>
    </message>
</context>
<context>
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>正在學習雜訊樣本</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>雜訊樣本就緒</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>本曲無雜訊，直接通過</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>正在學習雜訊（約 1 秒）</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>電平/頻譜已按輸出延遲對齊：%1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>收到進度（PG）：已播放 %1 s / 共 %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>DSP 由調變器執行</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>示波器：已收到第一個影格（%1 個區間）</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>程式所在資料夾</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>環境變數 KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>開發組建（build/）</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>探測逾時（%1 ms）：%2 —— 已結束該子行程，介面繼續運作（KELP_GUI_PROBE_HANG 自檢時屬預期）</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>探測傳回非零（%1）：%2</translation>
    </message>
    <message>
        <source>(完全没有输出)</source>
        <translation>(完全沒有輸出)</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>記錄</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(沒有任何輸出)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>起播 5 秒仍沒有音訊樣本 —— 引擎最後一行: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>起播 5 秒沒有聲音 —— **裝置從未開啟**（引擎記錄裡沒有 OPENED）：多半是獨占被拒、格式不支援，或被別的程式占用；看上面的 WASAPI 行；引擎最後一行: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  依序檢查: (1) 上面那行停在哪一步 —— 解碼 / 裝置 / 獨占；(2) 用命令列播同一個檔案；(3) 在記錄裡找 WASAPI / OPENED / 0x8889000A。工作階段不會自動重建。</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>引擎記錄: 由引擎放在它自己的預設位置</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>引擎記錄（保留，結束時不刪）: %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>引擎記錄（本次工作階段，結束時刪除）: %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>上一個行程內工作階段 2 秒內沒有收尾 —— 本行程可能仍占著獨占裝置，下一首可能無法開啟它</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(系統預設)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (預設)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>裝置清單 (-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (未連接 —— 請插上後點「重新整理裝置」)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>正在播放… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>播放清單是空的</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>已經是第一首</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>已經是最後一首</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>第 %1/%2 首</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>移動失敗: 行號越界 (from=%1 to=%2, 清單共 %3 項)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>播放順序已改: 第 %1/%2 項</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>自動換曲: 曲尾時清單/順序變了，按檔案對回第 %1/%2 首</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>自動換曲（無縫/交叉淡化）: 第 %1/%2 首: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>上一個播放工作階段還沒收尾（獨占正在拆除）—— 這次不建新工作階段。請再按一次播放；仍不行就重新啟動播放器。</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>播放完成</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>播放清單結束（%1）</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>循序</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · 不循環</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>播放清單結束</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[耗時] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>略過（檔案不存在）: %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>錯誤: 找不到播放引擎 %1 —— 請把它放在本程式所在資料夾、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>裝置或配置有變 -&gt; 關閉目前工作階段（釋放裝置）</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>舊工作階段 10 秒內沒有結束 —— 強制結束它（裝置可能要再等一會兒才釋放）</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>沿用目前工作階段（換曲只送 load，不重送參數）: %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[行程內 DLL] 工作階段參數: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>播放指令: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>播放器啟動失敗（工作階段 start 傳回 %1）⇒ 回到未播放狀態</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>向執行中的工作階段補送降噪檔位: %1（沿用工作階段不會重讀命令列參數）</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>向執行中的工作階段補送峰值保護: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>錯誤: 請先加入音訊檔案</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>舊工作階段還沒結束 ⇒ 先斷開它再起播（行程內工作階段只能等它自己收尾）</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>舊工作階段仍未結束，無法開始新的播放 —— 請等它收尾（或結束後重開；自動化/排障可設 KELP_GUI_INPROC=0 走子行程）</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>沒有正在執行的播放工作</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>正在停止播放器...</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>停止訊號已送出</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>播放已停止</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>播放進行中</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>播放尚未結束, 關閉視窗將停止播放。

確定要結束嗎?</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>匯入音訊檔案</translation>
    </message>
    <message>
        <source>音频数据</source>
        <translation>音訊資料</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>播放清單</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>匯入</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>把音訊檔案加到清單末尾</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>引擎設定</translation>
    </message>
    <message>
        <source>下次建会话时交给引擎的设置</source>
        <translation>下次建立工作階段時交給引擎的設定</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>輸出裝置</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>播放用的輸出裝置</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>重新整理裝置</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>從 KelpPlayer -list 重新讀取裝置清單</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>顯示記錄面板</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>程式做了什麼決定、為什麼</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>收起記錄面板</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer — DSD 音訊播放器 ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>模式: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>參數還原: 找不到相符項目 %1 (保持預設)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>正在分析 %1 …</translation>
    </message>
    <message>
        <source>分析曲目</source>
        <translation>分析曲目</translation>
    </message>
    <message>
        <source>测出选中曲目的速度和调性；不改动文件</source>
        <translation>測出選取曲目的速度與調性；不更動檔案</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>曲尾檢查: 剩餘 %1 s, 預載視窗 %2 s (交叉淡化 %3 / 無縫 %4), 下一首=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>交叉淡化: 距曲尾 %1 s, 提前載入下一首 (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>無縫: 曲尾前 %1 s, 預先載入下一首 (%2)</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>位置依音源時間軸顯示；目前以 %1× 播放。</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>位置與總長依音源時間軸顯示；以 %1× 播放，全曲實際歷時 %2。</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>進度 %1%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>正在掃描（解碼）音源… %1%</translation>
    </message>
</context>
<context>
    <name>ProgressRow</name>
    <message>
        <source>位置</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>播放进度</source>
        <translation>播放進度</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>只顯示進度：播放中不能跳轉</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>音訊：%1 · %2 位元 · %3 聲道 · %4 秒</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST：是</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST：否</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 聲道</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(未標記)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] 介面執行緒卡住了 %1 ms —— 當時正在：%2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] 已經有另一個 KelpPlayer 在執行 —— 本次不啟動

再開一個會在同一台裝置上疊加播放（聽起來就是雜訊/重疊）。
要刻意多開請設 KELP_GUI_ALLOW_MULTI=1</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>啟動指標：介面就緒 %1，記憶體 %2（只列實測值）</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>無法判定</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
調性: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>曲目分析: BPM %1, 調性 %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>曲目分析: BPM %1 (調性無法判定, 不硬給)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>曲目分析: 調性 %1 (BPM 無法判定, 不硬給)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>曲目分析: BPM 和調性都無法判定, 不硬給</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>請先選一首再分析</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>播放中無法分析, 請先按停止</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>曲目分析</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>無法開始分析(引擎程式庫無法使用, rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>分析沒有結果: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>從 %1:%2 繼續（上次停在這裡）</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>播放器在 %1 秒內沒有收尾完成 —— 強制結束。</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>播放器在 %1 秒內沒有收尾完成；行程內工作階段無法強制結束（請等它收尾；逃生口: KELP_GUI_INPROC=0）</translation>
    </message>
</context>
</TS>
