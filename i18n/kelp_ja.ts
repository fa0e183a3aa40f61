<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>A/B リピート: %1 点 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>A/B リピート: B 点は A 点より後に置いてください（A=%1s, B=%2s）</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>A/B リピート: 設定しました。再生を始めると有効になります（1 曲リピート）</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>A/B リピート: %1 → %2 を開始しました（1 曲リピート。解除すると元の再生順に戻ります）</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>A/B リピート: 解除しました</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>A/B リピート: 解除しました。再生順を %1 に戻しました</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>A/B リピート: 曲が変わったため、前の曲の A/B 点を破棄しました</translation>
    </message>
</context>
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>更新を確認…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>第三者の告知と参照規格</translation>
    </message>
</context>
<context>
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>有効ビット数</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>有効ビット数: まだ分かりません</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>損失なし</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>ビット減少</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>残りなし</translation>
    </message>
    <message>
        <source>%1 bit，%2</source>
        <translation>%1 ビット、%2</translation>
    </message>
</context>
<context>
    <name>ChainLamp</name>
    <message>
        <source>未能证明</source>
        <translation>未証明</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>非ビットパーフェクト</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>自己診断に合格しませんでした</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>ビットパーフェクトではないか、証明できていません: %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>まだ不明</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>この曲のシグナルチェーンがエンジンからまだ報告されていないため、何も断定しません。</translation>
    </message>
    <message>
        <source>位完美</source>
        <translation>ビットパーフェクト</translation>
    </message>
</context>
<context>
    <name>ChainPanel</name>
    <message>
        <source>信号链</source>
        <translation>シグナルチェーン</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>シグナルチェーンの判定</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>リサンプリング</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>バックエンド</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>出力形式</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>再生速度</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>判定</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>チェーン</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>アンダーラン</translation>
    </message>
</context>
<context>
    <name>ChainText</name>
    <message>
        <source>位完美</source>
        <translation>ビットパーフェクト</translation>
    </message>
    <message>
        <source>混音+转换</source>
        <translation>ミキサー+変換</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>OS ミキサー</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>変換あり</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>証明済み</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>反証済み</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>ここでは証明できません</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>DSP エフェクトが有効 ⇒ この曲は PCM にデコードされます（DSD ダイレクトと DSP は両立しません。エフェクトは PCM 領域でのみ働きます）。DSD ダイレクトにするには、リバーブ／トーン／ノイズ低減／バランス／幅をすべてオフにしてください。</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>デバイスが選択されていません</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>差動／クロスオーバーモードではチャンネルごとに 1 台のデバイスが必要です。先にデバイスを選択してください。</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>pairs モードには %1 台のデバイス（チャンネルペアごとに 1 台）が必要ですが、選択されているのは %2 台だけです。足りない分を選択してから再生してください。</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>このモードには %1 台のデバイス（チャンネルごとに 1 台）が必要ですが、選択されているのは %2 台だけです。足りないチャンネルがあると割り当て全体がずれます。リストを補ってから再生してください。</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>デバイスが足りません</translation>
    </message>
</context>
<context>
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>SACD ISO: %1 — %2 トラック</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>CUE の解析に失敗しました: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>ISO の解析に失敗しました: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>この CUE には再生できるトラックがありません: %1 (プローブ rc=%2、出力 %3 行、内容: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>この ISO には再生できるトラックがありません: %1 (プローブ rc=%2、出力 %3 行、内容: %4)</translation>
    </message>
</context>
<context>
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
トラック %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(タグはコンテナ自身の情報によるもので、ローカルのライブラリに追加のタグはありません)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>アルバム: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>年: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(タグはローカルのライブラリによるもので、ISO/CUE には何も書き込んでいません)</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[制御] 照合: コマンドを %1 件送りましたが、今回の実行にはエンジンのセッションログがないため、両端を突き合わせられません</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>許容差を超過（差 %1 &gt; 許容 %2）</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[制御] 照合: queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[制御] 照合の出所: %1</translation>
    </message>
</context>
<context>
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[制御] %1 の送信に %2 ms かかりました（1 ms 未満のはずです）</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[制御] %1</translation>
    </message>
</context>
<context>
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>ジャケット</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>ジャケットなし</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>ジャケットあり</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>不明な例外</translation>
    </message>
</context>
<context>
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>テストフック: ウィンドウを自動で閉じます（右上の閉じるボタンと同じ）</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse（システムミキサー。ビットパーフェクトではありません）</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2（デバイスをリセットしました）</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>デバイスのリセット (-reset-device) がタイムアウトしました: %1</translation>
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
        <translation>全体の長さ</translation>
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
        <translation>再生を停止します</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>前の曲</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>前の曲を再生します</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>選択した曲を再生します</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>次の曲</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>次の曲を再生します</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>音量。100% ではサンプルを変えません</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>曲を選ぶか、音声を読み込んでください</translation>
    </message>
    <message>
        <source>播放顺序</source>
        <translation>再生順</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>リピート</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>歌詞</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>歌詞の表示はまだ作成中です。このボタンは今後のバージョンで使えるようになります</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>ミュート。もう一度押すと元の音量に戻ります</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>ライブラリ、タグ、ネットワークなどのツール</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>再生順: ランダム</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>再生順: リスト順</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>リピート: 1 曲</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>リピート: リスト全体</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>リピート: オフ</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>リアルタイム</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>リバーブ</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>トーン</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>バランス</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>空間</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>ノイズ低減</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>イコライザー</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>このエフェクトのページはまだ作成中です。今後のバージョンで使えるようになります</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>エフェクトが再生経路にあります：変更はすぐ聞こえます</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>エフェクトは現在再生経路にありません</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>エフェクトはオンです</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>エフェクトはオフです</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>有効ビット: ユニティゲイン（サンプルはそのまま）</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>有効ビット: 残っていません（減衰が深すぎます）</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>有効ビット: 損失なし。ただしゲインでピークが上がります（クリップのおそれ）</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>有効ビット: 影響なし（デバイス／エンドポイントの音量。サンプルは乗算されません）</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>有効ビット: 影響なし（DoP ストリームでは音量を処理しません）</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>有効ビット: ログを参照（DSD ダイレクト、デバイスのミキサーを使用）</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>有効ビット: ソフトウェアゲインで決まります（次の行を参照）</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>有効ビット: 約 %1 ビット（ソフトウェア減衰後）</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>有効ビット: ログを参照</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>終わりまで行かずに終了しました（%1%）。停止し、次の曲には進みません</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>プレーヤーが異常終了しました。コード: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  エンジンの最後の行: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>排他の出力先を開けません（使用中か、非対応の形式）⇒ この曲は auto で再試行します（排他 → 共有の順）</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>セッションを閉じました（デバイス／配置の変更）。次の再生は新しい設定で始めます</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>再生を停止しました</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>再生が終わりました</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>前のセッションの終了イベントを無視します（セッションは作り直されたばかりで、このイベントは破棄した方のものです）。</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>デコード</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>出力経路</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>排他はハードウェアへ直接、共有はシステムミキサー経由、auto は排他を試してから共有にします。</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>DSD 伝送</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto はプログラムが判断、force は常に DoP、native はネイティブ DSD を要求します。</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>再生モード</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard はデバイス 1 台、その他のモードはチャンネルまたはチャンネルペアごとに 1 台を使います。</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>チャンネル数</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>複数デバイスのモードで割り当てるチャンネル数です。</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 チャンネル</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>チャンネル配置</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>ソースのチャンネルを出力へどう分けるか。auto はプログラムが決めます。</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>クロスオーバー周波数</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>この周波数より下は低音用デバイスへ送ります。</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>ブリッジクロスオーバー</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>帯域ごとにブリッジ接続した 2 台のデバイスを使います。</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>デバイス %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>このチャンネルの出力デバイスです。</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>DSD は常に PCM にデコード</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>DSD を直接送りません。デバイスが PCM 専用のとき、またはエフェクトを使うときに。</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>PCM ビット深度</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>DSD を PCM にデコードするときのビット深度です。</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>デコードフィルター</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>DSD から PCM へのフィルター。良いものほど負荷が高くなります。</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM を DSD に変換</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>PCM を DSD に変調して送ります。サンプルが変わり、ビットパーフェクトではありません。</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>目標レート</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>変調後の DSD レートです。</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>変調フィルターのタップ数</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>アップサンプリングフィルターの長さ。自動はエンジンが決めます。</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>无</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>外部デコーダーライブラリ</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>外部デコーダーライブラリのパス。空なら使いません。</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>ピーク保護</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>クリップしそうなときだけピークを抑えます。</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>デバイスのレートにリサンプリング</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>サンプルが変わり、ビットパーフェクトではありません。</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>リサンプリング品質</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>良いものほど負荷が高くなります。</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>リプレイゲイン</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>ファイルの ReplayGain タグで音の大きさをそろえます。</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>曲ごと</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>アルバムごと</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>ノイズ低減</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>録音の底にあるノイズを取り除きます。オンの間は DSD ダイレクトにできません。</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>弱</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>強</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>倍音を残す</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>ノイズ低減のときに楽音の倍音を守ります。</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>ギャップレス再生</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>曲の終わりの前に次を読み込み、間を空けません。</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>クロスフェード</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>2 曲が重なる秒数。0 なら使いません。</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>再生速度</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>音の高さは保ちます。1.00 以外ではビットパーフェクトではありません。</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>読みながら再生</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>ファイルを先にメモリーへ読み込みません。</translation>
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
        <translation>エンジンライブラリが見つかりません。探した場所: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>エンジンライブラリを読み込めません: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>エンジンライブラリに必要な 2 つのエントリがありません: %1</translation>
    </message>
</context>
<context>
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>ノイズプロファイルを学習中</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>ノイズプロファイルの準備完了</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>この曲にノイズはなく、そのまま通します</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>ノイズを学習中（約 1 秒）</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>レベル／スペクトルを出力の遅延に合わせました: %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>進捗を受信（PG）: 再生済み %1 s / 全体 %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>DSP は変調器が行います</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>オシロスコープ: 最初のフレームを受信（%1 区間）</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>プログラムと同じフォルダー</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>環境変数 KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>開発ビルド（build/）</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>プローブがタイムアウトしました（%1 ms）: %2 — その子プロセスを終了し、画面はそのまま動きます（KELP_GUI_PROBE_HANG の自己診断では想定どおり）</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>プローブが 0 以外を返しました（%1）: %2</translation>
    </message>
    <message>
        <source>(完全没有输出)</source>
        <translation>(出力なし)</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>プレイリストの取り消し履歴が壊れていて使えません ⇒ 空の履歴から始めます: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>プレイリストの取り消し履歴が保存したリストと合いません ⇒ 空の履歴から始めます: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>プレイリストの取り消し履歴を書き込めないため、再起動後は取り消せません: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>左チャンネルのレベル</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>右チャンネルのレベル</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>スペクトル</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>波形</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>曲名／アーティストを検索</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>表示中 / 全体</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>検索と絞り込みはまだ作成中です。今後のバージョンで使えるようになります</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>ライブラリ · TITLE</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>再生中 / 全体</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>イメージ</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>すべてのアーティスト</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>アーティストで絞り込む</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>すべてのアルバム</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>アルバムで絞り込む</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>読み込む</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>音声ファイルをリストの末尾に加えます</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>フォルダー内の音声ファイルをリストの末尾に加えます。サブフォルダーは対象外です</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>外す</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>選択した曲をリストから外します。ファイルはそのまま残ります</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>リストを空にします。ファイルはそのまま残り、取り消しもできます</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>ログ</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>アクセント色をカバーに合わせる</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>動きを減らす</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>スペクトラム</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>オシロスコープ</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>レイアウトをリセット</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>純粋な既定値に戻す</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>システムに合わせる</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>ウィンドウの外観。すぐに反映されます</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>右側の列の幅（200～420 ピクセル）。すぐに反映されます</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>カバーのある曲の再生中はカバーから色を取り、なければ選んだ色を使います</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>メーターは滑らかにせず新しい値へ直接移ります</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>ウィンドウの大きさ・位置・側の列の幅を既定に戻します</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>サンプルを変えるものをすべて切り、ビットパーフェクト自己診断を行います</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>側の列の幅</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>エンジンにスペクトラムを求めます。再生中でもすぐに有効になります</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>エンジンに波形を求めます。再生中でもすぐに有効になります</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>ジャケット</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>再生中の曲をリストに表示します</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(出力なし)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>開始から 5 秒たっても音声サンプルがありません — エンジンの最後の行: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>開始から 5 秒、無音です — **デバイスは一度も開いていません**（エンジンのログに OPENED がありません）。多くは排他の拒否、非対応の形式、または他のプログラムが使用中です。上の WASAPI の行を見てください。エンジンの最後の行: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  順に調べてください: (1) 上の行がどこで止まったか — デコード / デバイス / 排他、(2) 同じファイルをコマンドラインで再生、(3) ログで WASAPI / OPENED / 0x8889000A を探す。セッションは自動では作り直されません。</translation>
    </message>
</context>
<context>
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>曲を選ぶか、音声を読み込んでください</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>順番どおり</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · リピートなし</translation>
    </message>
    <message>
        <source> · 列表循环</source>
        <translation> · リスト全体をリピート</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · 1 曲リピート</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>再生速度: %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> （再生中はすぐに反映されます）</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>エンジンのログ: エンジン自身の既定の場所に置かれます</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>エンジンのログ（保存、終了時に消しません）: %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>エンジンのログ（このセッションのみ、終了時に消します）: %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>前のプロセス内セッションが 2 秒以内に終わりませんでした — このプロセスが排他デバイスをまだ握っているかもしれず、次の曲で開けないことがあります</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(システム既定)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (既定)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>デバイスの一覧 (-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  （未接続 — 接続してから「デバイスを更新」を押してください）</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>再生中… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>プレイリストは空です</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>これが最初の曲です</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>これが最後の曲です</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>%1/%2 曲目</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>移動できません: 行番号が範囲外です (from=%1 to=%2、リストは %3 件)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>再生順を変えました: %1/%2 件目</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>自動曲送り: 曲の終わりでリスト／順序が変わったため、ファイルを頼りに %1/%2 曲目へ合わせました</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>自動曲送り（ギャップレス／クロスフェード）: %1/%2 曲目: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>前の再生セッションがまだ終わっていません（排他を解放中）— 今回は新しいセッションを作りません。もう一度再生を押し、それでもだめならプレーヤーを再起動してください。</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>再生が終わりました</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>プレイリストの終わりです（%1）</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>プレイリストの終わりです</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[所要時間] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>飛ばします（ファイルがありません）: %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>エラー: 再生エンジン %1 が見つかりません — このプログラムと同じフォルダーに置くか、PATH に加えるか、KELP_PLAYER_BIN で指定してください。</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>デバイスまたは配置が変わりました -&gt; 今のセッションを閉じます（デバイスを解放）</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>前のセッションが 10 秒以内に終わらないため強制終了します（デバイスの解放に少し時間がかかることがあります）</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>今のセッションを使います（曲の切り替えは load だけ、引数は送り直しません）: %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[プロセス内 DLL] セッションの引数: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>再生コマンド: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>プレーヤーを開始できません（セッションの start が %1 を返しました）⇒ 停止状態に戻ります</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>動いているセッションにノイズ低減の段を送り直します: %1（使い続けるセッションは引数を読み直しません）</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>動いているセッションにピーク保護を送り直します: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>エラー: 先に音声ファイルを加えてください</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>前のセッションがまだ終わっていません ⇒ 切り離してから再生します（プロセス内のセッションは自然に終わるのを待つしかありません）</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>前のセッションがまだ終わらず、新しい再生を始められません — 終わるのを待ってください（または再起動。自動化や調査には KELP_GUI_INPROC=0 で子プロセスにできます）</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>再生中のものはありません</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>プレーヤーを停止しています...</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>停止の合図を送りました</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>再生を停止しました</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>再生中</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>まだ再生中です。ウィンドウを閉じると再生が止まります。

終了しますか？</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>音声ファイルを読み込む</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>プレイリスト</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>エンジンの設定</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>出力デバイス</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>再生に使う出力デバイス</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>デバイスを更新</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>KelpPlayer -list からデバイスの一覧を読み直します</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>ログを表示</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>プログラムが何を、なぜ決めたか</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>ログを隠す</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer — DSD オーディオプレーヤー ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>形式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>モード: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>設定の復元: %1 に合う項目がありません（既定のまま）</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>%1 を解析中 …</translation>
    </message>
    <message>
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>このチェーンに PCM はありません（DSD ダイレクト）— 波形なし</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>この経路にスペクトルはありません: DSD ダイレクト出力には PCM が含まれません</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>シグナルチェーンのレポート: 再生セッションがないため、前回のレポートだけを表示します。</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>シグナルチェーンのレポートを保存</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>シグナルチェーンのレポートを保存しました: %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>シグナルチェーンのレポートを保存できません: %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>ビットパーフェクトの自己診断: 再生セッションがありません — 先に再生を始めてください（音声ストリームがなければ判定できません）</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>ビットパーフェクトの自己診断: エンジンに項目ごとの検査を依頼しました</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>ビットパーフェクトの自己診断の判定: %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>純粋な既定値に戻し（エフェクトすべてオフ / 1.0x / クロスフェードなし / 音量 100 / レイアウトとテーマを初期化）、ビットパーフェクトの自己診断を始めました</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>再生順: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>A/B リピート: まだ何も再生していないため、点を付けられません</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>音声ファイル %1 件を飛ばしました: このプレーヤーにデコーダーがありません (MP3/AAC/OGG)</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>ファイル %1 件を飛ばしました: ファイル名が正しい UTF-8 ではないため開けません</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>%1 曲を加えました（リストは全 %2 曲）</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>一括追加に %1 ms かかりました（%2 曲、配置は 1 回だけ）</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>加えられる音声ファイルがありません</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>音声ファイル (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>再生中の曲をリストから外しました（音は続きますが、もうリストにはありません）</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>%1 曲を外しました（リストは全 %2 曲）</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>プレイリストを空にしました</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>今回の変更は大きすぎて記録できません ⇒ 取り消せません</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>取り消せる変更がありません</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>取り消し履歴がプレイリストと合いません ⇒ 取り消さず、履歴を消去しました</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>やり直せる変更がありません</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>やり直し履歴がプレイリストと合いません ⇒ やり直さず、履歴を消去しました</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>外す</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>先頭へ移動</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>末尾へ移動</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>フォルダーを追加…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>リストをクリア</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>ファイルマネージャーの応答がありません ⇒ 代わりにフォルダーを開きます: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>フォルダーを開けません: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>曲のプロパティ</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>プレイリストを復元しました: %1 曲</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>前回の再生: %1 曲目 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>前回の再生: %1 曲目</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>プレイリストの復元中に %1 曲を飛ばしました（ファイルがもうありません）</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>オフラインモードがオンです: %1 を拒否しました（設定でオフラインモードを解除できます）</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>スマートフォンのリモコン（待ち受けポート）</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>スマートフォンのリモコン: オフ（ポートの待ち受けを終了しました）</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>スマートフォンのリモコン: トークンが正しくないリクエストを拒否しました（%1）</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>スマートフォンのリモコン: ポート %1 で待ち受けできません（%2）</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>スマートフォンのリモコン: オン、ポート %1、トークン %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>スマートフォンのリモコンのアドレス: %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>レイアウト: サイドバーの幅 %1 は範囲外のため、%2 px に制限しました</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>レイアウト: サイドバーの幅 %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>レイアウトをリセットしました（ウィンドウの大きさ／位置／サイドバーの幅）</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>ウィンドウの位置: 保存した記録を読み取れないため、既定の大きさにします</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>ウィンドウの位置: 元の画面がないため、メイン画面の中央に移しました</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>再生中の曲がライブラリに見つかりません</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>ヘルプ</translation>
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
        <translation>## 再生

ファイルやフォルダーをウィンドウにドラッグし、行をダブルクリックすると再生が始まります。再生中の移動はできません。位置を指定できるのは曲の開始時だけです。

## キーボード

- **スペース** 再生 / 一時停止
- **Ctrl+→** 次の曲、**Ctrl+←** 前の曲
- **Ctrl+↑ / Ctrl+↓** 音量
- **Ctrl+スペース** 停止、**Ctrl+O** ファイルを読み込む、**F11** 最大化 / 元のサイズに戻す
- **Ctrl+,** 設定
- リスト内: **Enter** 再生、**Delete** 外す、**Ctrl+Z** 元に戻す、**Ctrl+Shift+Z** やり直す

## ビットパーフェクト

右の列は、サンプルが何を通ったかを示します。デバイスが受け取ったデータを読み戻せたときにだけ、“伝送は確認済み”と表示します。“ビットパーフェクトの自己診断”は段階ごとに検査します。
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>ログファイル: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>設定ファイル: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>波形を待っています</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>オシロスコープがオフのため、波形はありません</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>ビットパーフェクトの自己診断</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>今の再生でサンプルが変わっていないかを項目ごとに検査します</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>シグナルチェーンのレポート…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>エンジン自身によるシグナルチェーンのレポートを表示します。保存もできます</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>スリープタイマー</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>スマートフォンのリモコン</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>ログの表示を消去しました。ログファイルは残ります</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>テーマ: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>システムに合わせる（%1）</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>ジャケットに使える主要色がありません（黒／灰／白のみ）⇒ アクセントカラーは選んだ色のままです</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>アクセントカラーをジャケットに合わせました: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>曲を選ぶか、音声を読み込んでください</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>システムトレイに収めました。再生は続きます</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>オーディオ出力</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>スペクトラムとオシロスコープの選択を保存しました。次の再生セッションから有効です</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>トラックの列挙中にリストが消去されました ⇒ 追加しません: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>曲を切り替えた瞬間に前の曲が終わりました ⇒ 選んだ曲の終わりとはみなしません</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>スキップします（パスに改行があり、制御行では渡せません）: %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>%1 曲の追加を取り消しました（リストは全 %2 曲）</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>外した %1 曲を元に戻しました（リストは全 %2 曲）</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>元の再生順に戻しました</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>%1 曲を加え直しました（リストは全 %2 曲）</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>%1 曲を外し直しました（リストは全 %2 曲）</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>再生順の変更をやり直しました</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>曲の終わりの確認: 残り %1 s、先読みの窓 %2 s（クロスフェード %3 / ギャップレス %4）、次の曲=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>クロスフェード: 終わりまで %1 s、次の曲を先に読み込みます (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>ギャップレス: 終わりの %1 s 前、次の曲を先に読み込みます (%2)</translation>
    </message>
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>次の曲は先読みしません (%1): パスだけではエンジンが別の曲と取り違えます ⇒ この曲の終わりに番号で読み込みます</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
    <message>
        <source>播放进度</source>
        <translation>再生の進み具合</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>進み具合の表示のみ。再生中の移動はできません</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>位置はソースの時間軸で表示します。現在 %1× で再生中です。</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>位置と長さはソースの時間軸で表示します。%1× の再生では曲全体に %2 かかります。</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>進捗 %1%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>ソースを走査（デコード）しています… %1%</translation>
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
        <translation>リピートの始点。今の位置に付けます。A と B がそろうとリピートが始まり、もう一度押すと解除します</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>リピートの終点。今の位置に付けます。A と B がそろうとリピートが始まり、もう一度押すと解除します</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>スマートフォンのリモコン</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>同じ Wi-Fi のスマートフォンから、ブラウザーで再生を操作します。オンの間はこの PC がポートを待ち受けます</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>リモコンの待ち受けポート。スイッチをオンにした時点の値を使います</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>スマートフォンのリモコンのポート</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>スマートフォンのリモコンのアドレス</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>この PC には LAN の IPv4 アドレスがありません</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>スマートフォンのブラウザーで開いてください（PC と同じ Wi-Fi）:
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>スマートフォンのリモコン: オフ</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>シグナルチェーンのレポート</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>再取得</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>レポートを保存…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>種類: ネットラジオ局</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>種類: CUE シートのトラック %1</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>種類: SACD イメージのトラック %1</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>種類: コンテナ内のトラック %1</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>種類: 音声ファイル</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>表示: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>位置: %1/%2 件目</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>形式: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>ファイル: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>CUE シート: %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>時間: %1 s → %2 s（長さ %3 s）</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>オシロスコープ</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>再生していないため、波形はありません</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>最大振幅: 左 %1%、右 %2%</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>このチャンネルの出力ピーク（dBFS）: エンジンが毎秒 20 回報告します。分解能は 0.01 dB、下限は −120 dB（それ未満は −∞ dB と表示）。0 dBFS に達すると赤い部分が 1.5 秒間点灯します（クリップの可能性）</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>ソースはロスレスか</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>エンジンの返答を待っています。</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>ソースはロスレスです</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>符号化した全サンプルをそのまま復元できます。何も捨てられていません。</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>ソースはロスレスではありません</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>元のサンプルの一部がすでにファイルになく、後のどの段階でも取り戻せません。</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>ソースがロスレスかどうかは分かりません</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>エンジンから証明となる根拠が得られませんでした。合格とは見なしません。</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>経路で変化がないか</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>経路で変化はありません</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>ファイルからデバイスまで、サンプルを変えた段階はありません。</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>経路で変化があります</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>ファイルからデバイスまでの間に、サンプルを変えた段階があります。</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>経路で変化がないかどうかは分かりません</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>伝送は確認済みか</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>伝送は確認済みです</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>デバイスは要求どおりに開かれ、読み戻した形式は送ったものと一致しています。</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>伝送が一致しません</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>デバイスに届いたものが送ったものと違うか、途中に別の段階があります。</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>伝送を確認できません</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>デバイスの実際の動作形式を読み戻せません。合格とは見なしません。</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>最初にビットパーフェクトを崩した段階: %1。</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>最初に証明できなかった段階: %1。</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>判定: ビットパーフェクト ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>判定: 非ビットパーフェクト ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>ビットパーフェクトの自己診断</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>再生中のチェーンをエンジンが段階ごとに検査します: ソース、デコード、リサンプリング、エフェクト、再生速度、音量、フェード、ピーク保護、ビット深度、ミキサー、デバイスからの読み戻し、アンダーラン。設定ではなく、各段階の今の実際の状態だけで判定します。証明できないものは合格とは見なしません。</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>項目ごとの検査結果</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>レポートを保存…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>検査中…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>ビットパーフェクトの自己診断 — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>不合格</translation>
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
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>%1 分後</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>スリープタイマー</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>時間になると 10 秒かけてフェードアウトし、停止します</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>スリープタイマー: オフ</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>スリープタイマー: %1 分</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>スリープタイマー: フェードアウトを始めます（10 秒後に停止）</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>スリープタイマー: フェードアウトして再生を停止しました</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>音声: %1 · %2 ビット · %3 チャンネル · %4 秒</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST: あり</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST: なし</translation>
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
        <translation>スペクトル</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>最も強い帯域: 左 %1、右 %2、全 %3 帯域</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(印なし)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] UI スレッドが %1 ms 止まりました — そのときの処理: %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] 別の KelpPlayer がすでに動いています — 今回は起動しません

もう一つ開くと同じデバイスで重ねて再生されます（雑音や二重の音に聞こえます）。
あえて複数開くには KELP_GUI_ALLOW_MULTI=1 を設定してください</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>起動の指標: 画面の準備 %1、メモリー %2（実測値のみ）</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>設定を開く (Setup Menu)</translation>
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
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1: 点灯</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1: 消灯</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>元のサイズに戻す</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>ライブラリフォルダーをスキャン（差分）</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>重複曲を検索</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>タグの一括編集</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>スマートプレイリスト</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>年間レポート</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>曲の分析</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>DSP の順序</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>フィンガープリント比較</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>オンラインでタグを補完</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>ネットワークライブラリ</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>スマートフォンと同期</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>ラジオ局／ネットワーク／引き継ぎ</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>車載モード</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>ネットワークマウント</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>ライブラリを検証</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>ログを消去</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>ヘルプ…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>この機能はまだ作成中です。今後のバージョンで使えるようになります</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>判定できません</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
キー: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>曲の分析: BPM %1、キー %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>曲の分析: BPM %1（キーは判定できず、推測もしません）</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>曲の分析: キー %1（BPM は判定できず、推測もしません）</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>曲の分析: BPM もキーも判定できず、推測もしません</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>先に曲を選んでから分析してください</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>再生中は分析できません。先に停止を押してください</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>曲の分析</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>分析を始められません（エンジンライブラリが使えません、rc=%1）</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>分析の結果がありません: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>%1:%2 から続けます（前回はここで止まりました）</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>プレーヤーが %1 秒以内に終わらないため、強制終了します。</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>プレーヤーが %1 秒以内に終わりません。プロセス内のセッションは強制終了できません（終わるまでお待ちください。回避策: KELP_GUI_INPROC=0）</translation>
    </message>
</context>
<context>
    <name>ValueCards</name>
    <message>
        <source>码率</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>再生回数</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>シグナルチェーンに警告が %1 件あります</translation>
    </message>
</context>
</TS>
