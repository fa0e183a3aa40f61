<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>A/B 循環: %1 點 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>A/B 循環: B 點必須在 A 點之後（A=%1s, B=%2s）</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>A/B 循環: 已標記，開始播放時生效（單曲循環）</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>A/B 循環: %1 → %2 已開始（單曲循環；清除後還原先前的播放順序）</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>A/B 循環: 已清除</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>A/B 循環: 已清除，播放順序還原為 %1</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>A/B 循環: 曲目已切換，為上一首設定的 A/B 點已作廢</translation>
    </message>
</context>
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
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>有效位元數</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>有效位元數：尚不清楚</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>無損失</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>位元數減少</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>用盡</translation>
    </message>
    <message>
        <source>%1 bit，%2</source>
        <translation>%1 位元，%2</translation>
    </message>
</context>
<context>
    <name>ChainLamp</name>
    <message>
        <source>未能证明</source>
        <translation>未能證明</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>非 bit-perfect</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>自檢未通過</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>不是 bit-perfect 或未能證明：%1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>尚不得知</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>引擎尚未回報這一首的訊號鏈，因此不做任何斷言。</translation>
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
        <translation>訊號鏈</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>訊號鏈的結論</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>重新取樣</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>後端</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>輸出格式</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>延遲</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>變速</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>結論</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>鏈路</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>欠載</translation>
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
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>等候中</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>已證明</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>已證偽</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>此處無法證明</translation>
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
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
軌 %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(標籤來自容器內建的資訊; 本機音樂庫裡沒有額外的標籤)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>專輯: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>發行年份: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(標籤來自本機音樂庫 —— 沒有往 ISO/CUE 裡寫入任何東西)</translation>
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
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>專輯封面</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>無封面</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>已顯示封面</translation>
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
        <source>位置</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>总长</source>
        <translation>總長</translation>
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
    <message>
        <source>播放顺序</source>
        <translation>播放順序</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>循環</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>歌詞</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>歌詞功能尚未完成，這個按鈕之後的版本才能使用</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>靜音；再按一次回到原來的音量</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>音樂庫、標籤、網路等工具</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>播放順序：隨機</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>播放順序：依清單</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>循環：單曲</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>循環：整個清單</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>循環：關閉</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>殘響</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>音調</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>平衡</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>空間</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>降噪</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>等化器</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>這一頁效果尚未完成，之後的版本才會提供</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>效果鏈在播放路徑上：改動馬上聽得到</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>效果鏈現在不在播放路徑上</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>效果已開啟</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>效果已關閉</translation>
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
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>播放清單的復原記錄已損毀, 無法使用 ⇒ 從空白記錄開始: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>播放清單的復原記錄與儲存的清單不符 ⇒ 從空白記錄開始: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>無法寫入播放清單的復原記錄, 重新啟動後不能復原: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>左聲道電平</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>右聲道電平</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>頻譜</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>波形圖</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>搜尋曲名 / 藝人</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>顯示的 / 全部</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>搜尋與篩選尚未完成，之後的版本才會提供</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>音樂庫 · TITLE</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>目前播放 / 全部</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>映像檔</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>全部藝人</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>依藝人篩選</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>全部專輯</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>依專輯篩選</translation>
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
        <source>文件夹</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>把資料夾裡的音訊加到清單末尾；不進入子資料夾</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>把選取的曲目從清單移除；檔案不動</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>清空清單；檔案不動，可以復原</translation>
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
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>強調色跟隨封面</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>減少動態效果</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>頻譜</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>示波器</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>重設版面</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>恢復純淨預設</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>暗色</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>亮色</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>跟隨系統</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>視窗的外觀；馬上生效</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>右側欄的寬度，200 到 420 像素；馬上生效</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>播放有封面的曲目時，強調色取自封面；否則用選定的顏色</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>儀表直接跳到新值，不做平滑與淡出</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>視窗大小、位置與側欄寬度回到預設值</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>關掉一切會改動樣本的功能，再做一次 Bit-perfect 自檢</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>主題</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>側欄寬度</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>請引擎送出頻譜；播放中也立即生效</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>請引擎送出波形；播放中也立即生效</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>專輯封面</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>在清單裡顯示正在播放的曲目</translation>
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
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>選擇曲目或匯入音訊</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>隨機</translation>
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
        <source> · 列表循环</source>
        <translation> · 清單循環</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · 單曲循環</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>播放速度: %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> （播放時立即生效）</translation>
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
        <source>播放列表</source>
        <translation>播放清單</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>引擎設定</translation>
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
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>這條鏈上沒有 PCM（DSD 直通）——沒有波形</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>此路徑沒有頻譜：DSD 直接輸出不含 PCM</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>訊號鏈報告：沒有播放工作階段，只顯示上一次的報告。</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>儲存訊號鏈報告</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>訊號鏈報告已儲存：%1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>儲存訊號鏈報告失敗：%1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>Bit-perfect 自檢：沒有播放工作階段 —— 請先開始播放（沒有音訊串流就無從判斷）</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>Bit-perfect 自檢：已請引擎逐項檢查</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>Bit-perfect 自檢的結論：%1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>已恢復純淨預設值（效果全關 / 1.0x / 無交叉淡化 / 音量 100 / 版面與佈景主題重設），並已開始 bit-perfect 自檢</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>播放順序: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>A/B 循環: 尚未播放任何曲目，無處可標</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>略過 %1 個音訊檔案: 本播放器沒有它們的解碼器 (MP3/AAC/OGG)</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>略過 %1 個檔案: 檔名不是合法的 UTF-8, 無法開啟</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>已加入 %1 首 (清單共 %2 首)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>批次加入耗時 %1 ms (%2 首, 只排版一次)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>沒有可以加入的音訊檔案</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>音訊檔案 (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>加入資料夾</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>正在播放的曲目已從清單移除 (聲音繼續, 但它已不在清單裡)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>已移除 %1 首 (清單共 %2 首)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>播放清單已清空</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>這次變更太大, 無法記錄 ⇒ 不能復原</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>沒有可以復原的變更</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>復原記錄與播放清單不符 ⇒ 不復原, 記錄已清空</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>沒有可以重做的變更</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>重做記錄與播放清單不符 ⇒ 不重做, 記錄已清空</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>在檔案管理員中顯示</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>移到最上方</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>移到最下方</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>屬性</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>加入資料夾…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>清空清單</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>檔案管理員沒有回應 ⇒ 改為開啟資料夾: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>無法開啟資料夾: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>曲目屬性</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>播放清單已還原: %1 首</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>上次播放: 第 %1 首 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>上次播放: 第 %1 首</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>還原播放清單時略過 %1 首 (檔案已不存在)</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>離線模式已開啟：拒絕了 %1（可在設定裡關閉離線模式）</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>手機遙控(監聽連接埠)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>手機遙控：已關閉（不再監聽連接埠）</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>手機遙控：拒絕了一個權杖不符的請求（%1）</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>手機遙控：無法監聽連接埠 %1（%2）</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>手機遙控：已開啟，連接埠 %1，權杖 %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>手機遙控位址：%1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>版面: 側欄寬度 %1 超出範圍, 已限制為 %2 px</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>版面: 側欄寬度 %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>版面已重設(視窗大小/位置/側欄寬度)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>視窗位置: 儲存的記錄無法讀取, 使用預設大小</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>視窗位置: 原來的螢幕已不存在, 移到主螢幕中央</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>音樂庫裡找不到正在播放的這一首</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>說明</translation>
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
        <translation>## 播放

把檔案或資料夾拖進視窗，在任一列上按兩下即開始播放。播放中不能跳轉：位置只在曲目開始時到達。

## 鍵盤

- **空白鍵** 播放 / 暫停
- **Ctrl+→** 下一首，**Ctrl+←** 上一首
- **Ctrl+↑ / Ctrl+↓** 音量
- **Ctrl+空白鍵** 停止，**Ctrl+O** 匯入檔案，**F11** 最大化 / 還原
- **Ctrl+,** 設定
- 清單裡：**Enter** 播放，**Delete** 移除，**Ctrl+Z** 復原，**Ctrl+Shift+Z** 重做

## Bit-perfect

右欄說明樣本經過了什麼。只有讀回了裝置收到的資料，才會說“送達已驗證”。“Bit-perfect 自檢”逐項檢查。
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>記錄檔: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>設定檔: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>等待波形中</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>示波器已關閉，沒有波形</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Bit-perfect 自檢</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>逐項檢查目前的播放是否改動樣本</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>訊號鏈報告…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>顯示引擎自己對訊號鏈的報告，可以儲存</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>睡眠定時</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>手機遙控</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>記錄面板已清空；記錄檔保留</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>佈景主題: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>跟隨系統（%1）</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>封面沒有可用的主色（純黑/灰/白）⇒ 強調色維持你所選的顏色</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>強調色跟隨封面: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>選擇曲目或匯入音訊</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>已縮到系統匣，播放繼續</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>音訊輸出</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>頻譜與示波器的選擇已儲存，從下一次播放工作階段起生效</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>清單在列出分軌時被清空 ⇒ 不再加入: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>上一首恰好在換曲時放完 ⇒ 不算作新選這一首的結束</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>跳過（路徑裡有換行，控制行裝不下它）: %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>已取消加入的 %1 首 (清單共 %2 首)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>已還原移除的 %1 首 (清單共 %2 首)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>已還原先前的播放順序</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>已重新加入 %1 首 (清單共 %2 首)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>已重新移除 %1 首 (清單共 %2 首)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>已重新調整播放順序</translation>
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
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>不提前載入下一首 (%1): 引擎只憑路徑會把它當成另一首 ⇒ 本曲放完後再按曲號載入</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
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
        <source>循环起点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>循環起點：標在目前的位置；A 和 B 都標好就開始循環，再按一次取消</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>循環終點：標在目前的位置；A 和 B 都標好就開始循環，再按一次取消</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>手機遙控</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>同一個 Wi-Fi 裡的手機用瀏覽器控制播放；開啟時在本機監聽一個連接埠</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>手機遙控的監聽連接埠；在開啟開關的那一刻讀取</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>手機遙控連接埠</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>手機遙控位址</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>本機沒有區域網路 IPv4 位址</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>用手機瀏覽器開啟（手機與電腦在同一個 Wi-Fi）：
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>手機遙控：已關閉</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>訊號鏈報告</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>重新取得</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>儲存報告…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>類型: 網路電台</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>類型: CUE 分軌, 第 %1 軌</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>類型: SACD 映像檔, 第 %1 軌</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>類型: 容器裡的第 %1 軌</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>類型: 音訊檔案</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>顯示: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>位置: 第 %1/%2 項</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>格式: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>檔案: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>CUE 檔: %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>時間: %1 s → %2 s (長 %3 s)</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>示波器</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>未播放，沒有波形</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>最大振幅: 左 %1%, 右 %2%</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>本聲道的輸出峰值（dBFS）：引擎每秒回報 20 次，解析度 0.01 dB，下限 −120 dB（更低就顯示 −∞ dB）；到 0 dBFS 時紅段停留 1.5 秒（可能削波）</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>音源是否無損</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>正在等待引擎回覆。</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>音源是無損的</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>編碼能還原編入的每一個樣本，沒有捨棄任何東西。</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>音源不是無損的</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>檔案裡已經沒有全部的原始樣本，之後的任何環節都補不回來。</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>音源是否無損無從得知</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>引擎沒有提供足以證明的依據；這不算通過。</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>路徑有沒有改動</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>路徑沒有改動</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>從檔案到裝置之間，沒有任何環節改動過樣本。</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>路徑有改動</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>從檔案到裝置之間，有環節改動了樣本。</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>路徑有沒有改動無從得知</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>送達是否已驗證</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>送達已驗證</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>裝置依要求開啟，讀回的格式與送出的一致。</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>送達有出入</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>到達裝置的不是我們送出的，或者途中有別的環節。</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>送達無法驗證</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>裝置實際以什麼格式運作無法讀回；這不算通過。</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>最先破壞 bit-perfect 的環節：%1。</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>最先無法證明的環節：%1。</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>結論：bit-perfect ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>結論：非 bit-perfect ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Bit-perfect 自檢</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>引擎逐一檢查正在播放的這條鏈路：音源、解碼、重新取樣、效果、變速、音量、淡化、峰值保護、位元深度、混音器、裝置讀回與欠載。判斷只看各環節此刻的實際狀態，不看設定；無法證明的不算通過。</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>逐項檢查的結果</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>儲存報告…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>檢查中…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>Bit-perfect 自檢 — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>通過</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>未通過</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>%1 分鐘後</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>睡眠定時</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>時間到時用十秒淡出，然後停止</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>睡眠定時: 關</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>睡眠定時: %1 分鐘</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>睡眠定時: 開始淡出(10 秒後停止)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>睡眠定時: 已淡出並停止播放</translation>
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
    <name>SpectrumView</name>
    <message>
        <source>频谱</source>
        <translation>頻譜</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>最強頻段: 左 %1, 右 %2, 共 %3</translation>
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
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>開啟設定(Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>關閉視窗</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1：亮起</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1：熄滅</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>還原</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>掃描音樂庫資料夾(增量)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>尋找重複曲目</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>批次編輯標籤</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>智慧播放清單</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>年度報告</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>曲目分析</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>DSP 順序</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>指紋比對</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>線上補全標籤</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>網路音樂庫</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>手機同步</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>外掛程式</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>電台/網路/接力</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>車用模式</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>網路掛載</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>驗證音樂庫</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>清空記錄</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>說明…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>這個功能尚未完成，之後的版本才會提供</translation>
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
<context>
    <name>ValueCards</name>
    <message>
        <source>码率</source>
        <translation>位元率</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>取樣率</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>聲道</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>播放次數</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>訊號鏈有 %1 則警告</translation>
    </message>
</context>
</TS>
