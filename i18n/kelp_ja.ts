<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="zh_CN">
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
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>不明な例外</translation>
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
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>設定の復元: %1 に合う項目がありません（既定のまま）</translation>
    </message>
</context>
</TS>
