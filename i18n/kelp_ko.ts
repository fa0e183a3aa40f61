<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>A/B 반복: %1 지점 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>A/B 반복: B 지점은 A 지점보다 뒤에 있어야 합니다(A=%1s, B=%2s)</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>A/B 반복: 표시했습니다. 재생을 시작하면 적용됩니다(한 곡 반복)</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>A/B 반복: %1 → %2 시작됨(한 곡 반복, 해제하면 원래 재생 순서로 돌아감)</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>A/B 반복: 해제됨</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>A/B 반복: 해제됨, 재생 순서를 %1(으)로 되돌림</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>A/B 반복: 곡이 바뀌어 이전 곡에 지정한 A/B 지점을 버렸습니다</translation>
    </message>
</context>
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>제3자 고지와 참조 표준</translation>
    </message>
</context>
<context>
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>유효 비트 수</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>유효 비트 수: 아직 알 수 없음</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>손실 없음</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>비트 감소</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>소진됨</translation>
    </message>
    <message>
        <source>%1 bit，%2</source>
        <translation>%1비트, %2</translation>
    </message>
</context>
<context>
    <name>ChainLamp</name>
    <message>
        <source>未能证明</source>
        <translation>증명 안 됨</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>비트 퍼펙트 아님</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>자가 점검을 통과하지 못함</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>비트 퍼펙트가 아니거나 증명하지 못함: %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>아직 알 수 없음</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>엔진이 이 곡의 신호 체인을 아직 보고하지 않아 아무것도 단정하지 않습니다.</translation>
    </message>
    <message>
        <source>位完美</source>
        <translation>비트 퍼펙트</translation>
    </message>
</context>
<context>
    <name>ChainPanel</name>
    <message>
        <source>信号链</source>
        <translation>신호 체인</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>신호 체인 판정</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>리샘플링</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>백엔드</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>출력 형식</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>지연</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>음량</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>재생 속도</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>판정</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>체인</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>언더런</translation>
    </message>
</context>
<context>
    <name>ChainText</name>
    <message>
        <source>位完美</source>
        <translation>비트 퍼펙트</translation>
    </message>
    <message>
        <source>混音+转换</source>
        <translation>믹서+변환</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>OS 믹서</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>변환됨</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>알 수 없음</translation>
    </message>
</context>
<context>
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>증명됨</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>반증됨</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>여기서는 증명할 수 없음</translation>
    </message>
</context>
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
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>SACD ISO: %1 — %2곡</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>CUE 해석 실패: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>ISO 해석 실패: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>이 CUE에는 재생할 수 있는 트랙이 없습니다: %1 (프로브 rc=%2, 출력 %3줄, 내용: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>이 ISO에는 재생할 수 있는 트랙이 없습니다: %1 (프로브 rc=%2, 출력 %3줄, 내용: %4)</translation>
    </message>
</context>
<context>
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
트랙 %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(태그는 컨테이너 자체 정보에서 가져왔으며 로컬 라이브러리에 추가 태그가 없습니다)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>앨범: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>연도: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(태그는 로컬 라이브러리에서 가져왔으며 ISO/CUE에는 아무것도 쓰지 않았습니다)</translation>
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
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[제어] %1 전송에 %2 ms 걸림(1 ms 미만이어야 함)</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[제어] %1</translation>
    </message>
</context>
<context>
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>커버</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>커버 없음</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>커버 있음</translation>
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
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>테스트 훅: 창을 자동으로 닫음(오른쪽 위 닫기 버튼과 같음)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse(시스템 믹서, 비트 퍼펙트 아님)</translation>
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
    <name>DisplayPanel</name>
    <message>
        <source>位置</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>总长</source>
        <translation>전체 길이</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>停止</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>재생을 멈춥니다</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>이전 곡</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>이전 곡을 재생합니다</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>선택한 곡을 재생합니다</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>다음 곡</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>다음 곡을 재생합니다</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>음량</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>음량. 100%에서는 샘플을 바꾸지 않습니다</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>곡을 선택하거나 오디오를 가져오십시오</translation>
    </message>
    <message>
        <source>播放顺序</source>
        <translation>재생 순서</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>반복</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>가사</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>가사는 아직 준비 중입니다. 이 버튼은 이후 버전에서 쓸 수 있습니다</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>음소거. 다시 누르면 원래 음량으로 돌아갑니다</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>도구</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>라이브러리, 태그, 네트워크 등의 도구</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>재생 순서: 랜덤</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>재생 순서: 목록순</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>반복: 한 곡</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>반복: 목록 전체</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>반복: 끔</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>실시간</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>리버브</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>톤</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>밸런스</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>공간감</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>노이즈 감소</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>이퀄라이저</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>이 효과 페이지는 아직 준비 중이며 이후 버전에서 제공됩니다</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>효과가 재생 경로에 있습니다: 변경이 바로 들립니다</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>효과가 지금 재생 경로에 없습니다</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>효과가 켜져 있음</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>효과가 꺼져 있음</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>유효 비트: 유니티 게인(샘플 그대로)</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>유효 비트: 모두 소진됨(감쇠가 너무 깊음)</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>유효 비트: 손실 없음, 다만 게인이 피크를 높임(클리핑 위험)</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>유효 비트: 영향 없음(장치/엔드포인트 음량, 샘플에 게인을 곱하지 않음)</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>유효 비트: 영향 없음(DoP 스트림에는 음량 처리를 하지 않음)</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>유효 비트: 로그 참조(DSD 다이렉트, 장치 믹서 사용)</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>유효 비트: 소프트웨어 게인에 따라 결정됨(다음 줄 참조)</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>유효 비트: 약 %1비트(소프트웨어 감쇠 이후)</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>유효 비트: 로그 참조</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>끝까지 가지 못하고 끝남(%1%). 정지했으며 다음 곡으로 넘어가지 않습니다</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>플레이어가 비정상 종료됨, 코드: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  엔진의 마지막 줄: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>독점 엔드포인트를 열 수 없음(사용 중이거나 지원하지 않는 형식) ⇒ 이 곡은 auto로 다시 시도합니다(독점 → 공유 순서)</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>세션을 닫음(장치/배치 변경). 다음 재생은 새 설정으로 새 세션을 엽니다</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>재생이 정지됨</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>재생 완료</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>이전 세션의 종료 이벤트를 무시합니다(세션을 방금 다시 만들었으며 이 이벤트는 해체된 세션의 것입니다).</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>디코딩</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>신호</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>출력 경로</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>독점은 하드웨어로 바로, 공유는 시스템 믹서를 거치며, auto는 독점을 먼저 시도한 뒤 공유로 물러납니다.</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>DSD 전송</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto는 프로그램이 판단, force는 항상 DoP, native는 네이티브 DSD를 요구합니다.</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>재생 모드</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard는 장치 하나, 다른 모드는 채널 또는 채널 쌍마다 장치 하나를 씁니다.</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>채널 수</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>다중 장치 모드에서 나눌 채널 수입니다.</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 채널</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>채널 배치</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>소스 채널을 출력에 나누는 방식. auto는 프로그램이 정합니다.</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>크로스오버 주파수</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>이 주파수보다 낮은 대역은 저음 장치로 보냅니다.</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>브리지 크로스오버</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>대역마다 브리지로 연결한 장치 두 대를 씁니다.</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>장치 %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>이 채널의 출력 장치입니다.</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>DSD를 항상 PCM으로 디코딩</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>DSD를 직접 보내지 않습니다. 장치가 PCM만 받거나 효과를 쓸 때 사용하십시오.</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>PCM 비트 심도</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>DSD를 PCM으로 디코딩할 때의 비트 심도입니다.</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>디코딩 필터</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>DSD를 PCM으로 바꾸는 필터. 좋을수록 연산이 많이 듭니다.</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>빠름</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>최상</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM을 DSD로 변환</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>PCM을 DSD로 변조해 보냅니다. 샘플이 바뀌므로 비트 퍼펙트가 아닙니다.</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>목표 레이트</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>변조한 뒤의 DSD 레이트입니다.</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>변조 필터 탭</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>업샘플링 필터의 길이. 자동은 엔진이 정합니다.</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>无</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>외부 디코더 라이브러리</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>외부 디코더 라이브러리의 경로. 비워 두면 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>피크 보호</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>클리핑이 생길 때만 피크를 낮춥니다.</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>장치 레이트로 리샘플링</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>샘플이 바뀌므로 비트 퍼펙트가 아닙니다.</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>리샘플링 품질</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>좋을수록 연산이 많이 듭니다.</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>리플레이게인</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>파일의 ReplayGain 태그로 음량을 고르게 합니다.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>곡별</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>앨범별</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>노이즈 감소</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>녹음의 바닥 노이즈를 없앱니다. 켜 두면 DSD 다이렉트를 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>약하게</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>강하게</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>배음 유지</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>노이즈를 줄일 때 악음의 배음을 지킵니다.</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>갭리스 재생</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>곡이 끝나기 전에 다음 곡을 미리 불러와 끊기지 않게 합니다.</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>크로스페이드</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>두 곡이 겹치는 초. 0이면 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>재생 속도</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>음높이는 유지합니다. 1.00이 아니면 비트 퍼펙트가 아닙니다.</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>읽으면서 재생</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>파일을 먼저 메모리에 읽어 들이지 않습니다.</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1(자동)</translation>
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
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>노이즈 프로파일 학습 중</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>노이즈 프로파일 준비됨</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>이 곡에는 노이즈가 없어 그대로 통과</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>노이즈 학습 중(약 1초)</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>레벨/스펙트럼을 출력 지연에 맞춤: %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>진행 수신(PG): 재생 %1 s / 전체 %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>DSP는 변조기가 수행</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>오실로스코프: 첫 프레임 수신(구간 %1개)</translation>
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
    <message>
        <source>(完全没有输出)</source>
        <translation>(출력 없음)</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>재생 목록의 실행 취소 기록이 손상되어 쓸 수 없음 ⇒ 빈 기록으로 시작함: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>재생 목록의 실행 취소 기록이 저장된 목록과 맞지 않음 ⇒ 빈 기록으로 시작함: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>재생 목록의 실행 취소 기록을 쓸 수 없어 다시 시작한 뒤에는 실행을 취소할 수 없음: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>왼쪽 채널 레벨</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>오른쪽 채널 레벨</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>스펙트럼</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>파형</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>제목 / 아티스트 검색</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>표시됨 / 전체</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>검색과 필터는 아직 준비 중이며 이후 버전에서 제공됩니다</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>라이브러리 · TITLE</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>재생 중 / 전체</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>모든 아티스트</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>아티스트로 필터링</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>모든 앨범</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>앨범으로 필터링</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>오디오 파일을 목록 끝에 추가합니다</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>폴더 안의 오디오를 목록 끝에 추가합니다. 하위 폴더는 제외합니다</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>선택한 곡을 목록에서 제거합니다. 파일은 그대로 둡니다</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>비우기</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>목록을 비웁니다. 파일은 그대로 두며 실행 취소할 수 있습니다</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>로그</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>강조색을 커버에 맞춤</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>움직임 줄이기</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>스펙트럼</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>오실로스코프</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>레이아웃 초기화</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>순수 기본값 복원</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>어둡게</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>밝게</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>시스템 따름</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>창의 모양; 바로 적용됩니다</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>오른쪽 열의 너비, 200–420픽셀; 바로 적용됩니다</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>커버가 있는 곡이 재생되면 커버에서 색을 가져오고, 없으면 고른 색을 씁니다</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>계기가 부드럽게 움직이지 않고 새 값으로 바로 바뀝니다</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>창 크기, 위치, 옆 열 너비를 기본값으로 되돌립니다</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>샘플을 바꾸는 기능을 모두 끄고 비트 퍼펙트 자가 점검을 합니다</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>테마</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>옆 열 너비</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>엔진에 스펙트럼을 요청합니다; 재생 중에도 바로 적용됩니다</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>엔진에 파형을 요청합니다; 재생 중에도 바로 적용됩니다</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>커버</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>재생 중인 곡을 목록에서 표시합니다</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(출력 없음)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>재생 시작 후 5초가 지나도 오디오 샘플이 없음 — 엔진의 마지막 줄: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>재생 시작 후 5초 동안 소리가 없음 — **장치가 한 번도 열리지 않음**(엔진 로그에 OPENED 없음): 대개 독점 거부, 지원하지 않는 형식, 또는 다른 프로그램이 사용 중입니다. 위의 WASAPI 줄을 보십시오. 엔진의 마지막 줄: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  차례로 확인하십시오: (1) 위 줄이 어느 단계에서 멈췄는지 — 디코딩 / 장치 / 독점, (2) 명령줄로 같은 파일 재생, (3) 로그에서 WASAPI / OPENED / 0x8889000A 찾기. 세션은 자동으로 다시 만들어지지 않습니다.</translation>
    </message>
</context>
<context>
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>곡을 선택하거나 오디오를 가져오십시오</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>랜덤</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>순서대로</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · 반복 안 함</translation>
    </message>
    <message>
        <source> · 列表循环</source>
        <translation> · 목록 반복</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · 한 곡 반복</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>재생 속도: %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> (재생 중에는 바로 적용됨)</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>엔진 로그: 엔진이 자체 기본 위치에 둡니다</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>엔진 로그(보관, 종료할 때 지우지 않음): %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>엔진 로그(이번 세션, 종료할 때 삭제): %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>이전 프로세스 내 세션이 2초 안에 마무리하지 못함 — 이 프로세스가 독점 장치를 아직 잡고 있을 수 있어 다음 곡에서 열지 못할 수 있습니다</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(시스템 기본값)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (기본값)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>장치 목록(-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (연결되지 않음 — 연결한 뒤 “장치 새로 고침”을 누르십시오)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>재생 중… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>재생 목록이 비어 있음</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>첫 곡입니다</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>마지막 곡입니다</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>%1/%2번째 곡</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>이동 실패: 행 번호가 범위를 벗어남(from=%1 to=%2, 목록 %3개)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>재생 순서 변경됨: %1/%2번째 항목</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>자동 곡 넘김: 곡 끝에서 목록/순서가 바뀌어 파일 기준으로 %1/%2번째 곡에 맞춤</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>자동 곡 넘김(갭리스/크로스페이드): %1/%2번째 곡: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>이전 재생 세션이 아직 마무리되지 않음(독점 해제 중) — 이번에는 새 세션을 만들지 않습니다. 재생을 다시 누르고, 그래도 안 되면 플레이어를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>재생 완료</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>재생 목록 끝(%1)</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>재생 목록 끝</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[소요] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>건너뜀(파일이 없음): %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>오류: 재생 엔진 %1을(를) 찾을 수 없음 — 이 프로그램과 같은 폴더에 두거나 PATH에 추가하거나 KELP_PLAYER_BIN으로 지정하십시오.</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>장치 또는 배치 변경 -&gt; 현재 세션을 닫음(장치 해제)</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>이전 세션이 10초 안에 끝나지 않아 강제로 종료합니다(장치 해제에 시간이 더 걸릴 수 있음)</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>현재 세션 재사용(곡 전환은 load만 보내고 인수는 다시 보내지 않음): %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[프로세스 내 DLL] 세션 인수: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>재생 명령: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>플레이어 시작 실패(세션 start가 %1을(를) 돌려줌) ⇒ 재생하지 않는 상태로 돌아감</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>실행 중인 세션에 노이즈 감소 단계를 다시 보냄: %1(재사용하는 세션은 명령줄을 다시 읽지 않음)</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>실행 중인 세션에 피크 보호를 다시 보냄: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>오류: 먼저 오디오 파일을 추가하십시오</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>이전 세션이 아직 끝나지 않음 ⇒ 먼저 떼어 낸 뒤 재생합니다(프로세스 내 세션은 스스로 끝나기를 기다릴 수밖에 없음)</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>이전 세션이 아직 끝나지 않아 새 재생을 시작할 수 없음 — 마무리를 기다리십시오(또는 다시 시작. 자동화/문제 해결에는 KELP_GUI_INPROC=0으로 자식 프로세스 사용)</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>실행 중인 재생이 없음</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>플레이어를 멈추는 중...</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>정지 신호를 보냄</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>재생이 정지됨</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>재생 중</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>아직 재생 중입니다. 창을 닫으면 재생이 멈춥니다.

종료하시겠습니까?</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>오디오 파일 가져오기</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>재생 목록</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>엔진 설정</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>출력 장치</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>재생에 쓸 출력 장치</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>장치 새로 고침</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>KelpPlayer -list에서 장치 목록을 다시 읽습니다</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>로그 패널 표시</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>프로그램이 무엇을 왜 결정했는지</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>로그 패널 접기</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer — DSD 오디오 플레이어 ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>형식: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>모드: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>설정 복원: %1에 맞는 항목이 없음(기본값 유지)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>%1 분석 중 …</translation>
    </message>
    <message>
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>이 체인에는 PCM이 없음(DSD 다이렉트) — 파형 없음</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>이 경로에는 스펙트럼이 없음: DSD 다이렉트 출력에는 PCM이 없습니다</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>신호 체인 보고서: 재생 세션이 없어 마지막 보고서만 표시합니다.</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>신호 체인 보고서 저장</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>신호 체인 보고서를 저장함: %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>신호 체인 보고서 저장 실패: %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>비트 퍼펙트 자가 점검: 재생 세션이 없음 — 먼저 재생을 시작하십시오(오디오 스트림이 없으면 판단할 수 없음)</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>비트 퍼펙트 자가 점검: 엔진에 항목별 점검을 요청함</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>비트 퍼펙트 자가 점검 판정: %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>순수 기본값으로 되돌리고(모든 효과 끔 / 1.0x / 크로스페이드 없음 / 음량 100 / 레이아웃과 테마 초기화) 비트 퍼펙트 자가 점검을 시작함</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>재생 순서: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>A/B 반복: 재생 중인 곡이 없어 표시할 곳이 없습니다</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>오디오 파일 %1개를 건너뜀: 이 플레이어에 해당 디코더가 없음(MP3/AAC/OGG)</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>파일 %1개를 건너뜀: 파일 이름이 올바른 UTF-8이 아니어서 열 수 없음</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>%1곡을 추가함(목록 총 %2곡)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>일괄 추가에 %1 ms 걸림(%2곡, 배치는 한 번만)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>추가할 수 있는 오디오 파일이 없음</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>오디오 파일 (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>폴더 추가</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>재생 중인 곡을 목록에서 제거함(소리는 계속되지만 이제 목록에는 없음)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>%1곡을 제거함(목록 총 %2곡)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>재생 목록을 비움</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>변경이 너무 커서 기록할 수 없음 ⇒ 실행 취소 불가</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>실행 취소할 변경이 없음</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>실행 취소 기록이 재생 목록과 맞지 않음 ⇒ 취소하지 않고 기록을 비움</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>다시 실행할 변경이 없음</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>다시 실행 기록이 재생 목록과 맞지 않음 ⇒ 다시 실행하지 않고 기록을 비움</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>파일 관리자에서 보기</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>맨 위로 이동</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>맨 아래로 이동</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>속성</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>폴더 추가…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>목록 비우기</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>파일 관리자가 응답하지 않음 ⇒ 대신 폴더를 엶: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>폴더를 열 수 없음: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>곡 속성</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>재생 목록 복원됨: %1곡</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>마지막 재생: %1번째 곡 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>마지막 재생: %1번째 곡</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>재생 목록을 복원하면서 %1곡을 건너뜀(파일이 더 이상 없음)</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>오프라인 모드가 켜져 있음: %1을(를) 거부함(설정에서 오프라인 모드를 끌 수 있음)</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>휴대폰 리모컨(수신 포트)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>휴대폰 리모컨: 꺼짐(포트 수신 종료)</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>휴대폰 리모컨: 토큰이 올바르지 않은 요청을 거부함(%1)</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>휴대폰 리모컨: 포트 %1에서 수신할 수 없음(%2)</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>휴대폰 리모컨: 켜짐, 포트 %1, 토큰 %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>휴대폰 리모컨 주소: %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>레이아웃: 사이드바 너비 %1이(가) 범위를 벗어나 %2 px로 제한함</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>레이아웃: 사이드바 너비 %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>레이아웃을 초기화함(창 크기/위치/사이드바 너비)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>창 위치: 저장된 기록을 읽을 수 없어 기본 크기를 사용함</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>창 위치: 원래 화면이 없어 주 화면 가운데로 옮김</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>재생 중인 곡을 라이브러리에서 찾을 수 없음</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>도움말</translation>
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
        <translation>## 재생

파일이나 폴더를 창으로 끌어다 놓고 행을 두 번 클릭하면 재생이 시작됩니다. 재생 중에는 이동할 수 없으며, 위치는 곡이 시작될 때만 지정됩니다.

## 키보드

- **스페이스** 재생 / 일시 정지
- **Ctrl+→** 다음 곡, **Ctrl+←** 이전 곡
- **Ctrl+↑ / Ctrl+↓** 음량
- **Ctrl+스페이스** 정지, **Ctrl+O** 파일 가져오기, **F11** 최대화 / 이전 크기로
- **Ctrl+,** 설정
- 목록에서: **Enter** 재생, **Delete** 제거, **Ctrl+Z** 실행 취소, **Ctrl+Shift+Z** 다시 실행

## 비트 퍼펙트

오른쪽 열은 샘플이 무엇을 거쳤는지 보여 줍니다. 장치가 받은 데이터를 되읽었을 때만 “전달이 확인됨”이라고 표시합니다. “비트 퍼펙트 자가 점검”은 단계마다 하나씩 점검합니다.
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>로그 파일: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>설정 파일: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>파형을 기다리는 중</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>오실로스코프가 꺼져 있어 파형이 없음</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>비트 퍼펙트 자가 점검</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>지금 재생이 샘플을 바꾸는지 항목별로 점검합니다</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>신호 체인 보고서…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>엔진이 직접 낸 신호 체인 보고서를 표시하며 저장할 수 있습니다</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>취침 타이머</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>휴대폰 리모컨</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>로그 패널을 비움. 로그 파일은 그대로 둠</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>라이트</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>다크</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>테마: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>시스템 설정 따르기(%1)</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>커버에 쓸 만한 주요 색이 없음(검정/회색/흰색뿐) ⇒ 강조 색은 선택한 색을 유지함</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>강조 색이 커버를 따름: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>곡을 선택하거나 오디오를 가져오십시오</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>시스템 트레이로 숨겼습니다. 재생은 계속됩니다</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>오디오 출력</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>스펙트럼과 오실로스코프 선택을 저장했습니다. 다음 재생 세션부터 적용됩니다</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>디스플레이</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>트랙을 나열하는 동안 목록이 비워졌습니다 ⇒ 추가하지 않습니다: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>곡을 바꾸는 순간 이전 곡이 끝났습니다 ⇒ 새로 고른 곡의 끝으로 보지 않습니다</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>건너뜀(경로에 줄바꿈이 있어 제어 줄로 보낼 수 없음): %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>추가한 %1곡을 취소함(목록 총 %2곡)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>제거한 %1곡을 되돌림(목록 총 %2곡)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>원래 재생 순서로 되돌림</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>%1곡을 다시 추가함(목록 총 %2곡)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>%1곡을 다시 제거함(목록 총 %2곡)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>재생 순서를 다시 변경함</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>곡 끝 확인: 남은 시간 %1 s, 미리 불러오기 구간 %2 s(크로스페이드 %3 / 갭리스 %4), 다음 곡=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>크로스페이드: 끝까지 %1 s, 다음 곡을 미리 불러옴(%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>갭리스: 끝나기 %1 s 전, 다음 곡을 미리 불러옴(%2)</translation>
    </message>
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>다음 곡을 미리 불러오지 않습니다 (%1): 경로만으로는 엔진이 다른 곡으로 받아들입니다 ⇒ 이 곡이 끝나면 번호로 불러옵니다</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
    <message>
        <source>播放进度</source>
        <translation>재생 진행</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>진행만 표시합니다. 재생 중에는 이동할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>위치는 소스의 시간축 기준입니다. 지금 %1×로 재생 중입니다.</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>위치와 길이는 소스의 시간축 기준입니다. %1×로 재생하면 곡 전체에 %2 걸립니다.</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>진행 %1%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>소스를 스캔(디코딩)하는 중… %1%</translation>
    </message>
</context>
<context>
    <name>ProgressRow</name>
    <message>
        <source>位置</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>循环起点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>반복 시작점: 현재 위치에 표시합니다. A와 B를 모두 표시하면 반복이 시작되고, 다시 누르면 해제됩니다</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>반복 끝점: 현재 위치에 표시합니다. A와 B를 모두 표시하면 반복이 시작되고, 다시 누르면 해제됩니다</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>휴대폰 리모컨</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>같은 Wi-Fi에 있는 휴대폰의 브라우저로 재생을 조작합니다. 켜져 있는 동안 이 PC가 포트 하나를 수신합니다</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>휴대폰 리모컨의 수신 포트. 스위치를 켜는 순간의 값을 읽습니다</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>휴대폰 리모컨 포트</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>휴대폰 리모컨 주소</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>이 PC에 LAN IPv4 주소가 없음</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>휴대폰 브라우저에서 여십시오(PC와 같은 Wi-Fi):
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>휴대폰 리모컨: 꺼짐</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>신호 체인 보고서</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>다시 가져오기</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>보고서 저장…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>종류: 인터넷 라디오 방송국</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>종류: CUE 시트의 트랙 %1</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>종류: SACD 이미지의 트랙 %1</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>종류: 컨테이너의 트랙 %1</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>종류: 오디오 파일</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>표시: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>위치: %1/%2번째 항목</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>형식: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>파일: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>CUE 시트: %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>시간: %1 s → %2 s(길이 %3 s)</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>오실로스코프</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>재생 중이 아니어서 파형이 없음</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>최대 진폭: 왼쪽 %1%, 오른쪽 %2%</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>이 채널의 출력 피크(dBFS): 엔진이 1초에 20번 보고하며, 분해능은 0.01 dB, 하한은 −120 dB입니다(더 낮으면 −∞ dB로 표시). 0 dBFS에 이르면 빨간 구간이 1.5초 동안 유지됩니다(클리핑 가능성)</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>소스가 무손실인가</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>엔진의 응답을 기다리고 있습니다.</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>소스가 무손실임</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>부호화한 모든 샘플을 그대로 복원하며 아무것도 버리지 않았습니다.</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>소스가 무손실이 아님</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>파일에 원래 샘플이 모두 남아 있지 않으며, 이후의 어떤 단계도 되살릴 수 없습니다.</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>소스가 무손실인지 알 수 없음</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>엔진이 증명할 근거를 주지 않았습니다. 통과로 치지 않습니다.</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>경로에 변경이 없는가</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>경로에 변경이 없음</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>파일에서 장치까지 샘플을 바꾼 단계가 없습니다.</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>경로에 변경이 있음</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>파일에서 장치까지의 사이에 샘플을 바꾼 단계가 있습니다.</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>경로에 변경이 없는지 알 수 없음</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>전달이 확인되었는가</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>전달이 확인됨</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>장치가 요청한 대로 열렸고, 되읽은 형식이 보낸 형식과 같습니다.</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>전달이 일치하지 않음</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>장치에 도달한 것이 보낸 것과 다르거나 중간에 다른 단계가 있습니다.</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>전달을 확인할 수 없음</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>장치가 실제로 어떤 형식으로 동작하는지 되읽을 수 없습니다. 통과로 치지 않습니다.</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>비트 퍼펙트를 처음 깨뜨린 단계: %1.</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>처음으로 증명할 수 없는 단계: %1.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>판정: 비트 퍼펙트 ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>판정: 비트 퍼펙트 아님 ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>비트 퍼펙트 자가 점검</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>엔진이 재생 중인 체인을 단계별로 점검합니다: 소스, 디코딩, 리샘플링, 효과, 재생 속도, 음량, 페이드, 피크 보호, 비트 심도, 믹서, 장치에서 되읽은 값, 언더런. 설정이 아니라 각 단계의 지금 실제 상태만으로 판단하며, 증명할 수 없는 것은 통과로 치지 않습니다.</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>항목별 점검 결과</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>보고서 저장…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>점검 중…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>비트 퍼펙트 자가 점검 — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>통과</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>실패</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>%1분 후</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>취침 타이머</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>시간이 되면 10초 동안 페이드아웃한 뒤 정지합니다</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>취침 타이머: 끔</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>취침 타이머: %1분</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>취침 타이머: 페이드아웃 시작(10초 후 정지)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>취침 타이머: 페이드아웃 후 재생을 정지함</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>오디오: %1 · %2비트 · %3채널 · %4초</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST: 예</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST: 아니요</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1채널</translation>
    </message>
</context>
<context>
    <name>SpectrumView</name>
    <message>
        <source>频谱</source>
        <translation>스펙트럼</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>가장 강한 대역: 왼쪽 %1, 오른쪽 %2, 전체 %3</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(표시 없음)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] UI 스레드가 %1 ms 동안 멈춤 — 당시 작업: %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] 다른 KelpPlayer가 이미 실행 중 — 이번에는 시작하지 않음

하나 더 열면 같은 장치에서 겹쳐 재생됩니다(잡음이나 겹친 소리로 들립니다).
일부러 여러 개를 열려면 KELP_GUI_ALLOW_MULTI=1을 설정하십시오</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>시작 지표: 화면 준비 %1, 메모리 %2(실측값만)</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>설정 열기(Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>창 닫기</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1: 켜짐</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1: 꺼짐</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>이전 크기로</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>라이브러리 폴더 스캔(증분)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>중복 곡 찾기</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>태그 일괄 편집</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>스마트 재생 목록</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>연간 보고서</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>곡 분석</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>DSP 순서</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>지문 비교</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>온라인 태그 채우기</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>네트워크 라이브러리</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>휴대폰 동기화</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>플러그인</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>라디오/네트워크/이어 듣기</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>차량 모드</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>네트워크 마운트</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>라이브러리 검증</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>로그 비우기</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>도움말…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>이 기능은 아직 준비 중이며 이후 버전에서 제공됩니다</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>판별할 수 없음</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
조성: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>곡 분석: BPM %1, 조성 %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>곡 분석: BPM %1(조성은 판별할 수 없어 추측하지 않음)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>곡 분석: 조성 %1(BPM은 판별할 수 없어 추측하지 않음)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>곡 분석: BPM과 조성 모두 판별할 수 없어 추측하지 않음</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>먼저 곡을 선택한 뒤 분석하십시오</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>재생 중에는 분석할 수 없습니다. 먼저 정지를 누르십시오</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>곡 분석</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>분석을 시작할 수 없음(엔진 라이브러리를 쓸 수 없음, rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>분석 결과가 없음: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>%1:%2부터 이어서 재생(지난번에 여기서 멈춤)</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>플레이어가 %1초 안에 마무리하지 못해 강제로 종료합니다.</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>플레이어가 %1초 안에 마무리하지 못했습니다. 프로세스 내 세션은 강제로 끝낼 수 없습니다(끝날 때까지 기다리십시오. 우회: KELP_GUI_INPROC=0)</translation>
    </message>
</context>
<context>
    <name>ValueCards</name>
    <message>
        <source>码率</source>
        <translation>비트레이트</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>샘플 레이트</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>채널</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>재생 횟수</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>신호 체인 경고 %1건</translation>
    </message>
</context>
</TS>
