<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>DSP 효과가 켜져 있음 ⇒ 이 곡은 PCM으로 디코딩됩니다(DSD 다이렉트와 DSP는 함께 쓸 수 없습니다. 효과는 PCM 영역에서만 작동합니다). DSD 다이렉트를 쓰려면 리버브/톤/노이즈 감소/밸런스/폭을 모두 끄십시오.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>장치가 선택되지 않음</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>차동/크로스오버 모드는 채널마다 장치가 하나씩 필요합니다. 먼저 장치를 선택하십시오.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>pairs 모드에는 장치 %1개(채널 쌍마다 하나)가 필요하지만 %2개만 선택되었습니다. 나머지를 선택한 뒤 재생하십시오.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>이 모드에는 장치 %1개(채널마다 하나)가 필요하지만 %2개만 선택되었습니다. 빠진 채널이 있으면 전체 배정이 어긋납니다. 목록을 채운 뒤 재생하십시오.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>장치가 부족함</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[제어] 대조: 명령 %1개를 보냈지만 이번 실행에는 엔진 세션 로그가 없어 양쪽을 맞춰 볼 수 없습니다</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>통과</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>허용 오차 초과(차이 %1 &gt; 허용 %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[제어] 대조: queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[제어] 대조 출처: %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>알 수 없는 예외</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (장치를 재설정함)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>장치 재설정(-reset-device) 시간 초과: %1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>엔진 라이브러리를 찾을 수 없습니다. 찾아본 곳: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>엔진 라이브러리를 불러올 수 없습니다: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>엔진 라이브러리에 필요한 두 진입점이 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>프로그램과 같은 폴더</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>환경 변수 KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>개발 빌드(build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>프로브 시간 초과(%1 ms): %2 — 해당 자식 프로세스를 종료했으며 화면은 계속 동작합니다(KELP_GUI_PROBE_HANG 자가 점검 중에는 정상)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>프로브가 0이 아닌 값을 돌려줌(%1): %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>설정 복원: %1에 맞는 항목이 없음(기본값 유지)</translation>
    </message>
</context>
</TS>
