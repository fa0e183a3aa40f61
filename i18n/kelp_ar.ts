<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="zh_CN">
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>مؤثرات DSP مفعّلة ⇒ يُفك ترميز هذا المقطع إلى PCM (لا يجتمع DSD المباشر مع DSP: المؤثرات تعمل في نطاق PCM فقط). للحصول على DSD مباشر أوقف الصدى والنغمة وخفض الضجيج والتوازن والعرض كلها.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>لم يُختر أي جهاز</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>يحتاج الوضع التفاضلي ووضع تقسيم الترددات إلى جهاز لكل قناة — اختر الأجهزة أولًا.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>يحتاج الوضع pairs إلى %1 من الأجهزة (جهاز لكل زوج قنوات) والمختار %2 فقط؛ أكملها قبل التشغيل.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>يحتاج هذا الوضع إلى %1 من الأجهزة (جهاز لكل قناة) والمختار %2 فقط؛ القنوات الناقصة تزيح التوزيع كله — أكمل القائمة قبل التشغيل.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>عدد الأجهزة غير كافٍ</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[التحكم] مطابقة: أُرسل %1 من الأوامر، لكن لا يوجد سجل جلسة للمحرك في هذا التشغيل — لا يمكن مطابقة الطرفين</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>مطابق</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>خارج المسموح (الفرق %1 &gt; المسموح %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[التحكم] مطابقة: queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[التحكم] مصدر المطابقة: %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>استثناء غير معروف</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (أُعيد ضبط الجهاز)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>انتهت مهلة إعادة ضبط الجهاز (-reset-device): %1</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>لم يُعثر على مكتبة المحرك؛ بُحث في: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>تعذّر تحميل مكتبة المحرك: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>تفتقر مكتبة المحرك إلى نقطتي الدخول المطلوبتين: %1</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>بجانب البرنامج</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>متغير البيئة KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>بناء التطوير (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>انتهت مهلة الاستعلام (%1 مللي ثانية): %2 — أُنهيت تلك العملية الفرعية والواجهة مستمرة (متوقع في الفحص الذاتي KELP_GUI_PROBE_HANG)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>أعاد الاستعلام قيمة غير صفرية (%1): %2</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>استعادة الإعدادات: لا عنصر يطابق %1 (تبقى القيمة الافتراضية)</translation>
    </message>
</context>
</TS>
