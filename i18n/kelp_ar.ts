<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>تكرار A/B: النقطة %1 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>تكرار A/B: يجب أن تأتي النقطة B بعد النقطة A ‏(A=%1s, B=%2s)</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>تكرار A/B: وُضعت العلامات، ويسري عند بدء التشغيل (تكرار المقطع)</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>تكرار A/B: بدأ من %1 إلى %2 (تكرار المقطع؛ الإلغاء يعيد ترتيب التشغيل السابق)</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>تكرار A/B: أُلغي</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>تكرار A/B: أُلغي، وعاد ترتيب التشغيل إلى %1</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>تكرار A/B: تغيّر المقطع، فأُهملت نقطتا A/B المحددتان للمقطع السابق</translation>
    </message>
</context>
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>البحث عن تحديثات…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>إشعارات الأطراف الأخرى والمعايير المرجعية</translation>
    </message>
</context>
<context>
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>البتات الفعّالة</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>البتات الفعّالة: غير معروفة بعد</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>شفافة</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>بتات أقل</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>استُنفدت</translation>
    </message>
    <message>
        <source>%1 bit，%2</source>
        <translation>%1 بت، %2</translation>
    </message>
</context>
<context>
    <name>ChainLamp</name>
    <message>
        <source>未能证明</source>
        <translation>غير مُثبت</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>ليس مطابقًا بتًّا ببت</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>لم ينجح الفحص الذاتي</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>ليس مطابقًا بتًّا ببت أو غير مُثبت: %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>غير معروف بعد</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>لم يبلّغ المحرك بعد عن سلسلة إشارة هذا المقطع، لذا لا يُجزم بشيء.</translation>
    </message>
    <message>
        <source>位完美</source>
        <translation>مطابق بتًّا ببت</translation>
    </message>
</context>
<context>
    <name>ChainPanel</name>
    <message>
        <source>信号链</source>
        <translation>السلسلة</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>الحكم على سلسلة الإشارة</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>إعادة أخذ العينات</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>الواجهة الخلفية</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>صيغة الإخراج</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>التأخير</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>الحكم</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>السلسلة</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>نفاد المخزن المؤقت</translation>
    </message>
</context>
<context>
    <name>ChainText</name>
    <message>
        <source>位完美</source>
        <translation>مطابق بتًّا ببت</translation>
    </message>
    <message>
        <source>混音+转换</source>
        <translation>خلط+تحويل</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>خلّاط النظام</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>محوَّل</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>غير معروف</translation>
    </message>
</context>
<context>
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>في الانتظار</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>أُثبت</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>دُحض</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>لا يمكن إثباته هنا</translation>
    </message>
</context>
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
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>صورة SACD: %1 — عدد المقاطع: %2</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>تعذّر تحليل ملف CUE: ‏%1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>تعذّر تحليل صورة ISO: ‏%1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>لا مقاطع قابلة للتشغيل في ملف CUE هذا: %1 (الاستعلام rc=%2، أسطر الخرج: %3؛ المحتوى: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>لا مقاطع قابلة للتشغيل في صورة ISO هذه: %1 (الاستعلام rc=%2، أسطر الخرج: %3؛ المحتوى: %4)</translation>
    </message>
</context>
<context>
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
المقطع %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(الوسوم من معلومات الحاوية نفسها؛ لا وسوم إضافية في المكتبة المحلية)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>الألبوم: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>السنة: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(الوسوم من المكتبة المحلية — لم يُكتب شيء في ISO/CUE)</translation>
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
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[التحكم] استغرق إرسال %1 مدة %2 ms (ينبغي أن تقل عن 1 ms)</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[التحكم] %1</translation>
    </message>
</context>
<context>
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>الغلاف</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>لا غلاف</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>الغلاف معروض</translation>
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
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>خطاف اختبار: إغلاق تلقائي للنافذة (كزر الإغلاق في الزاوية)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse (خلّاط النظام؛ ليس مطابقًا بتًّا ببت)</translation>
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
    <name>DisplayPanel</name>
    <message>
        <source>位置</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>总长</source>
        <translation>الطول الكلي</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>停止</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>إيقاف التشغيل</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>تشغيل المقطع السابق</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>تشغيل المقطع المختار</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>تشغيل المقطع التالي</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>مستوى الصوت؛ عند 100% لا تتغير العينات</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>اختر مقطعًا أو استورد ملفات صوتية</translation>
    </message>
    <message>
        <source>播放顺序</source>
        <translation>ترتيب التشغيل</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>التكرار</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>الكلمات</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>لم تُنجز الكلمات بعد؛ سيعمل هذا الزر في إصدار لاحق</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>كتم الصوت</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>كتم الصوت؛ اضغط مرة أخرى للعودة إلى المستوى السابق</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>أدوات المكتبة والوسوم والشبكة وغيرها</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>ترتيب التشغيل: عشوائي</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>ترتيب التشغيل: حسب القائمة</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>التكرار: هذا المقطع</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>التكرار: القائمة كلها</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>التكرار: معطّل</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>آني</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>الصدى</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>النغمة</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>التوازن</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>المكاني</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>خفض الضجيج</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>المعادل</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>لم تُنجز صفحة هذا المؤثر بعد؛ ستأتي في إصدار لاحق</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>المؤثرات في مسار التشغيل: يُسمع التغيير فورًا</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>المؤثرات ليست في مسار التشغيل الآن</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>المؤثر مفعّل</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>المؤثر معطّل</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>البتات الفعّالة: كسب أحادي (العينات كما هي)</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>البتات الفعّالة: استُنفدت (التوهين شديد)</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>البتات الفعّالة: بلا فقد، لكن الكسب يرفع الذروات (خطر القص)</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>البتات الفعّالة: لم تتأثر (مستوى صوت الجهاز/نقطة النهاية، دون تحجيم العينات)</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>البتات الفعّالة: لم تتأثر (لا معالجة لمستوى الصوت في دفق DoP)</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>البتات الفعّالة: انظر السجل (DSD مباشر، يُستخدم خلّاط الجهاز)</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>البتات الفعّالة: يحددها الكسب البرمجي (انظر السطر التالي)</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>البتات الفعّالة: نحو %1 بت (بعد التوهين البرمجي)</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>البتات الفعّالة: انظر السجل</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>انتهى قبل بلوغ نهايته (%1%)؛ أُوقف التشغيل ولن يُنتقل إلى التالي</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>انتهى المشغّل على نحو غير سليم، الرمز: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  آخر سطر من المحرك: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>تعذّر فتح المخرج الحصري (مشغول أو الصيغة غير مدعومة) ⇒ يُعاد هذا المقطع بالوضع auto (حصري ← مشترك)</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>أُغلقت الجلسة (تغيّر الجهاز/التوزيع)؛ التشغيل التالي يفتح جلسة جديدة بالإعدادات الجديدة</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>أُوقف التشغيل</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>انتهى التشغيل</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>تُجوهل حدث انتهاء الجلسة السابقة (أُعيد بناء الجلسة للتو وهذا الحدث من الجلسة المفككة).</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>الإخراج</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>التشغيل</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>فك الترميز</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>الإشارة</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>مسار الإخراج</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>الحصري يصل إلى العتاد مباشرة، والمشترك يمر بخلّاط النظام، وauto يجرب الحصري ثم المشترك.</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>نقل DSD</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto: يقرر البرنامج؛ force: استخدام DoP دائمًا؛ native: يشترط DSD الأصلي.</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>وضع التشغيل</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard يستخدم جهازًا واحدًا؛ وبقية الأوضاع جهازًا لكل قناة أو زوج قنوات.</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>عدد القنوات</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>عدد القنوات الموزعة في أوضاع الأجهزة المتعددة.</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 قنوات</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>توزيع القنوات</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>كيفية توزيع قنوات المصدر على المخارج؛ auto: يقرر البرنامج.</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>تردد التقسيم</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>ما دون هذا التردد يُرسل إلى أجهزة الجهير.</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>تقسيم ترددي موصول جسريًا</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>جهازان موصولان جسريًا لكل مسار ترددي.</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>الجهاز %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>جهاز إخراج هذه القناة.</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>فك ترميز DSD إلى PCM دائمًا</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>من دون DSD مباشر: للأجهزة التي تقبل PCM فقط أو عند استخدام المؤثرات.</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>عمق بت PCM</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>عمق البت عند فك ترميز DSD إلى PCM.</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>مرشح فك الترميز</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>مرشح DSD إلى PCM: كلما كان أفضل زاد حمل المعالجة.</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>سريع</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>قياسي</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>الأفضل</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM إلى DSD</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>يُضمَّن PCM إلى DSD قبل الإرسال: تتغير العينات، فلا يكون الإخراج مطابقًا بتًّا ببت.</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>المعدل المستهدف</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>معدل DSD بعد التضمين.</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>معاملات مرشح التضمين</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>طول مرشح رفع معدل العينات؛ في الوضع التلقائي يقرر المحرك.</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>无</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>مكتبة فك ترميز خارجية</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>مسار مكتبة فك الترميز الخارجية؛ الفراغ يعني عدم استخدامها.</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>حماية الذروة</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>يخفض الذروات فقط حيث كانت ستُقص.</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>إعادة أخذ العينات إلى معدل الجهاز</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>تتغير العينات، فلا يكون الإخراج مطابقًا بتًّا ببت.</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>جودة إعادة أخذ العينات</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>كلما كانت أفضل زاد حمل المعالجة.</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>كسب إعادة التشغيل (ReplayGain)</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>يسوّي جهارة الصوت وفق وسوم ReplayGain في الملف.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>حسب المقطع</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>حسب الألبوم</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>خفض الضجيج</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>يزيل ضجيج التسجيل الخلفي؛ لا يمكن DSD المباشر ما دام مفعّلًا.</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>خفيف</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>قوي</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>الحفاظ على التوافقيات</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>يصون توافقيات الأنغام عند خفض الضجيج.</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>تشغيل بلا فواصل</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>يحمّل المقطع التالي قبل النهاية فلا انقطاع بينهما.</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>تلاشٍ متقاطع</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>ثواني التداخل بين مقطعين؛ 0 يعني بلا تداخل.</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>سرعة التشغيل</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>تبقى طبقة الصوت؛ وعند غير 1.00 لا يكون الإخراج مطابقًا بتًّا ببت.</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>التشغيل أثناء القراءة</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>لا يقرأ الملف في الذاكرة مسبقًا.</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1 (تلقائي)</translation>
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
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>جارٍ تعلّم ملف الضجيج</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>ملف الضجيج جاهز</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>لا ضجيج في هذا المقطع، يمر كما هو</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>جارٍ تعلّم الضجيج (نحو ثانية واحدة)</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>المستويات/الطيف مُوائمة مع تأخير الإخراج: %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>وصل التقدّم (PG): شُغّل %1 s / المجموع %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>يُطبّق المضمِّن معالجة DSP</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>راسم الإشارة: وصل أول إطار (عدد الفترات: %1)</translation>
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
        <translation>انتهت مهلة الاستعلام (%1 ms): %2 — أُنهيت تلك العملية الفرعية والواجهة مستمرة (متوقع في الفحص الذاتي KELP_GUI_PROBE_HANG)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>أعاد الاستعلام قيمة غير صفرية (%1): %2</translation>
    </message>
    <message>
        <source>(完全没有输出)</source>
        <translation>(لا خرج إطلاقًا)</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>سجل التراجع لقائمة التشغيل تالف ولا يمكن استخدامه، لذا يبدأ فارغًا: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>سجل التراجع لا يطابق قائمة التشغيل المحفوظة، لذا يبدأ فارغًا: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>تعذّرت كتابة سجل التراجع لقائمة التشغيل، فلن يمكن التراجع عن شيء بعد إعادة التشغيل: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>مستوى القناة اليسرى</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>مستوى القناة اليمنى</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>الطيف</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>الموجة</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>ابحث عن عنوان / فنان</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>المعروض / الكل</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>لم يُنجز البحث والتصفية بعد؛ سيأتيان في إصدار لاحق</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>المكتبة · العنوان</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>قيد التشغيل / الكل</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>صور الأقراص</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>كل الفنانين</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>تصفية حسب الفنان</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>كل الألبومات</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>تصفية حسب الألبوم</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>إضافة ملفات صوتية إلى آخر القائمة</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>إضافة الملفات الصوتية من مجلد إلى آخر القائمة؛ دون دخول المجلدات الفرعية</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>إزالة المقاطع المختارة من القائمة؛ تبقى الملفات</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>تفريغ القائمة؛ تبقى الملفات، ويمكن التراجع</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>السجل</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>لون التمييز يتبع الغلاف</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>تقليل الحركة</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>الطيف</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>راسم الإشارة</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>إعادة ضبط التخطيط</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>استعادة الإعدادات النقية</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>حسب النظام</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>مظهر النافذة؛ يسري فورًا</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>عرض العمود الجانبي، من 200 إلى 420 بكسل؛ يسري فورًا</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>إذا كان للمقطع غلاف أُخذ لون التمييز منه، وإلا فاللون المختار</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>تقفز المؤشرات إلى القيمة الجديدة بلا تنعيم ولا تلاشٍ</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>حجم النافذة وموضعها وعرض العمود إلى القيم الافتراضية</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>يوقف كل ما يغيّر العينات ثم يجري الفحص الذاتي</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>عرض العمود</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>يطلب الطيف من المحرك؛ يسري فورًا، أثناء التشغيل أيضًا</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>يطلب شكل الموجة من المحرك؛ يسري فورًا، أثناء التشغيل أيضًا</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>الغلاف</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>إظهار المقطع الجاري في القائمة</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(لا مخرجات)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>لا عينات صوتية بعد 5 ثوانٍ من البدء — آخر سطر من المحرك: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>لا صوت بعد 5 ثوانٍ من البدء — **لم يُفتح الجهاز قط** (لا وجود لـ OPENED في سجل المحرك): غالبًا رُفض الوصول الحصري أو الصيغة غير مدعومة أو يشغله برنامج آخر؛ انظر أسطر WASAPI أعلاه؛ آخر سطر من المحرك: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  افحص بالترتيب: (1) أين توقف السطر أعلاه — فك الترميز / الجهاز / الحصري؛ (2) شغّل الملف نفسه من سطر الأوامر؛ (3) ابحث في السجل عن WASAPI / OPENED / 0x8889000A. لا يُعاد بناء الجلسة تلقائيًا.</translation>
    </message>
</context>
<context>
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>اختر مقطعًا أو استورد ملفات صوتية</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>عشوائي</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>بالترتيب</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · بلا تكرار</translation>
    </message>
    <message>
        <source> · 列表循环</source>
        <translation> · تكرار القائمة</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · تكرار المقطع</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>سرعة التشغيل: ‎%1×‎%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> (تسري فورًا أثناء التشغيل)</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>سجل المحرك: يتركه المحرك في موضعه الافتراضي</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>سجل المحرك (محفوظ ولا يُحذف عند الخروج): %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>سجل المحرك (لهذه الجلسة ويُحذف عند الخروج): %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>لم تنتهِ الجلسة السابقة داخل العملية خلال ثانيتين — قد تبقى هذه العملية ممسكة بالجهاز الحصري وقد يتعذر فتحه للمقطع التالي</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(افتراضي النظام)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (افتراضي)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>قائمة الأجهزة (-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (غير متصل — صِله ثم انقر «تحديث الأجهزة»)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>جارٍ التشغيل… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>قائمة التشغيل فارغة</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>هذا أول مقطع</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>هذا آخر مقطع</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>المقطع %1/%2</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>تعذّر النقل: رقم الصف خارج النطاق (from=%1 to=%2، عناصر القائمة %3)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>تغيّر الترتيب: العنصر %1/%2</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>انتقال تلقائي: تغيّرت القائمة أو الترتيب عند النهاية، وبحسب الملف هو المقطع %1/%2</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>انتقال تلقائي (بلا فواصل/تلاشٍ): المقطع %1/%2: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>لم تنتهِ جلسة التشغيل السابقة بعد (يجري تحرير الوصول الحصري) — لن تُنشأ جلسة جديدة الآن. اضغط تشغيل مرة أخرى، وإن لم ينفع فأعد تشغيل البرنامج.</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>انتهى التشغيل</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>انتهت قائمة التشغيل (%1)</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>انتهت قائمة التشغيل</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[المدة] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>تخطٍّ (الملف غير موجود): %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>خطأ: لم يُعثر على محرك التشغيل %1 — ضعه بجانب البرنامج أو أضفه إلى PATH أو حدده بـ KELP_PLAYER_BIN.</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>تغيّر الجهاز أو التوزيع -&gt; تُغلق الجلسة الحالية (ويُحرر الجهاز)</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>لم تنتهِ الجلسة القديمة خلال 10 ثوانٍ — تُنهى قسرًا (قد يتأخر تحرير الجهاز قليلًا)</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>إعادة استخدام الجلسة الحالية (يُرسل load فقط دون إعادة المعاملات): %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[DLL داخل العملية] معاملات الجلسة: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>أمر التشغيل: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>تعذّر بدء المشغّل (أعاد start للجلسة %1) ⇒ العودة إلى حالة التوقف</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>أُرسلت درجة خفض الضجيج إلى الجلسة الجارية: %1 (الجلسة المعاد استخدامها لا تعيد قراءة معاملاتها)</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>أُرسلت حماية الذروة إلى الجلسة الجارية: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>خطأ: أضف ملفات صوتية أولًا</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>لم تنتهِ الجلسة القديمة ⇒ تُفصل قبل التشغيل (الجلسة داخل العملية لا بد أن تنتهي من نفسها)</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>لم تنتهِ الجلسة القديمة بعد ولا يمكن بدء تشغيل جديد — انتظر انتهاءها (أو أعد التشغيل؛ للأتمتة/التشخيص: KELP_GUI_INPROC=0 بعملية فرعية)</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>لا يوجد تشغيل جارٍ</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>جارٍ إيقاف المشغّل...</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>أُرسلت إشارة الإيقاف</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>أُوقف التشغيل</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>التشغيل جارٍ</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>لم ينتهِ التشغيل بعد، وإغلاق النافذة يوقفه.

هل تريد الخروج فعلًا؟</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>استيراد ملفات صوتية</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>قائمة التشغيل</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>إعدادات المحرك</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>جهاز الإخراج</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>جهاز الإخراج المستخدم للتشغيل</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>تحديث الأجهزة</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>إعادة قراءة قائمة الأجهزة من KelpPlayer -list</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>إظهار لوحة السجل</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>ما الذي قرره البرنامج ولماذا</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>إخفاء لوحة السجل</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer — مشغّل صوت DSD ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>الصيغ: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>الأوضاع: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>استعادة الإعدادات: لا عنصر يطابق %1 (تبقى القيمة الافتراضية)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>جارٍ تحليل %1 …</translation>
    </message>
    <message>
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>لا PCM في هذه السلسلة (DSD مباشر) — لا موجة</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>لا طيف على هذا المسار: إخراج DSD المباشر لا يحمل PCM</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>تقرير سلسلة الإشارة: لا توجد جلسة تشغيل، فيُعرض آخر تقرير فقط.</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>حفظ تقرير سلسلة الإشارة</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>حُفظ تقرير سلسلة الإشارة: %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>تعذّر حفظ تقرير سلسلة الإشارة: %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>فحص سلامة البتات: لا توجد جلسة تشغيل — ابدأ التشغيل أولًا (لا شيء يُحكم عليه دون دفق صوتي)</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>فحص سلامة البتات: طُلب من المحرك الفحص بندًا بندًا</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>حكم فحص سلامة البتات: %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>استُعيدت الإعدادات النقية (كل المؤثرات معطّلة / 1.0x / بلا تلاشٍ متقاطع / مستوى الصوت 100 / أُعيد ضبط التخطيط والسمة) وبدأ فحص سلامة البتات</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>ترتيب التشغيل: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>تكرار A/B: لا مقطع قيد التشغيل، فلا شيء يُعلَّم</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>ملفات صوتية جرى تخطيها: %1 — لا يملك هذا المشغّل مفكك ترميز لها (MP3/AAC/OGG)</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>ملفات جرى تخطيها: %1 — أسماؤها ليست UTF-8 صحيحة ولا يمكن فتحها</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>المقاطع المضافة: %1 (في القائمة الآن %2)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>استغرقت الإضافة المجمّعة %1 ms (عدد المقاطع: %2، برصف واحد)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>لا ملفات صوتية لإضافتها</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>ملفات صوتية (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>إضافة مجلد</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>أُزيل المقطع الجاري من القائمة (يستمر الصوت، لكنه لم يعد في القائمة)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>المقاطع المُزالة: %1 (في القائمة الآن %2)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>مُسحت قائمة التشغيل</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>هذا التغيير أكبر من أن يُحفظ، لذا لا يمكن التراجع عنه</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>لا شيء للتراجع عنه</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>سجل التراجع لا يطابق قائمة التشغيل؛ لم يُتراجع عن شيء ومُسح السجل</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>لا شيء لإعادته</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>سجل الإعادة لا يطابق قائمة التشغيل؛ لم يُعَد شيء ومُسح السجل</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>إظهار في مدير الملفات</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>نقل إلى الأعلى</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>نقل إلى الأسفل</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>إضافة مجلد…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>مسح القائمة</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>لم يستجب أي مدير ملفات، ففُتح المجلد بدلًا من ذلك: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>تعذّر فتح المجلد: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>خصائص المقطع</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>استُعيدت قائمة التشغيل، عدد المقاطع: %1</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>آخر تشغيل: المقطع %1 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>آخر تشغيل: المقطع %1</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>مقاطع جرى تخطيها عند استعادة قائمة التشغيل: %1 (الملف لم يعد موجودًا)</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>وضع عدم الاتصال مفعّل، رُفض: %1 (يمكن تعطيله من الإعدادات)</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>التحكم من الهاتف (منفذ الاستماع)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>التحكم من الهاتف: معطّل (لم يعد المنفذ قيد الاستماع)</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>التحكم من الهاتف: رُفض طلب بلا رمز صحيح (%1)</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>التحكم من الهاتف: تعذّر الاستماع على المنفذ %1 (%2)</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>التحكم من الهاتف: مفعّل، المنفذ %1، الرمز %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>عنوان التحكم من الهاتف: %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>التخطيط: عرض الجانب %1 خارج النطاق وحُدّ إلى %2 px</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>التخطيط: عرض الجانب %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>أُعيد ضبط التخطيط (حجم النافذة/موضعها/عرض الجانب)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>موضع النافذة: تعذّرت قراءة المحفوظ، فاستُخدم الحجم الافتراضي</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>موضع النافذة: لم تعد شاشتها السابقة موجودة، فنُقلت إلى وسط الشاشة الرئيسية</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>المقطع الجاري ليس في قائمة المكتبة</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>المساعدة</translation>
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
        <translation>## التشغيل

أفلت ملفات أو مجلدات على النافذة وانقر صفًا نقرًا مزدوجًا لتشغيله. لا يمكن الانتقال أثناء التشغيل: لا يُبلغ موضع معيّن إلا عند بداية المقطع.

## لوحة المفاتيح

- **المسافة** تشغيل / إيقاف مؤقت
- **‎Ctrl+→‎** المقطع التالي، **‎Ctrl+←‎** المقطع السابق
- **‎Ctrl+↑ / Ctrl+↓‎** مستوى الصوت
- **Ctrl+المسافة** إيقاف، **Ctrl+O** استيراد ملفات، **F11** تكبير / استعادة
- **‎Ctrl+,‎** الإعدادات
- في القائمة: **Enter** يشغّل، **Delete** يزيل، **Ctrl+Z** يتراجع، **Ctrl+Shift+Z** يعيد

## المطابقة بتًّا ببت

يبيّن عمود سلسلة الإشارة ما تمر به العينات. ولا يظهر فيه “تم التحقق من التسليم” إلا إذا قُرئ من الجهاز ما تلقّاه. أما “فحص سلامة البتات” فيفحص كل مرحلة.
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>ملف السجل: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>ملف الإعدادات: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>في انتظار الموجة</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>راسم الإشارة معطّل: لا موجة</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>فحص سلامة البتات</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>يفحص بندًا بندًا هل يغيّر التشغيل الحالي العينات</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>تقرير سلسلة الإشارة…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>يعرض تقرير المحرك نفسه عن سلسلة الإشارة، ويمكن حفظه</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>مؤقت النوم</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>التحكم من الهاتف</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>مُسحت لوحة السجل؛ يبقى ملف السجل</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>فاتحة</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>داكنة</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>السمة: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>حسب النظام (%1)</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>لا يحوي الغلاف لونًا غالبًا صالحًا (أسود/رمادي/أبيض خالص) ⇒ يبقى لون التمييز كما اخترته</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>لون التمييز يتبع الغلاف: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>اختر مقطعًا أو استورد ملفات صوتية</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>صُغّر إلى علبة النظام والتشغيل مستمر</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>جهاز الإخراج</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>حُفظ اختيار الطيف وراسم الإشارة ويسري من الجلسة التالية</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>أُفرغت القائمة أثناء سرد المقاطع ⇒ لن تُضاف: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>انتهى المقطع السابق لحظةَ اختيار مقطع آخر ⇒ لا يُعدّ ذلك نهاية المقطع المختار</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>تم التخطي (في المسار فاصل أسطر لا يمكن لسطر تحكّم أن يحمله): %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>أُلغيت إضافة المقاطع، عددها: %1 (في القائمة الآن %2)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>عادت المقاطع المُزالة، عددها: %1 (في القائمة الآن %2)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>عاد ترتيب التشغيل السابق</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>أُضيفت المقاطع من جديد، عددها: %1 (في القائمة الآن %2)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>أُزيلت المقاطع من جديد، عددها: %1 (في القائمة الآن %2)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>تغيّر ترتيب التشغيل من جديد</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>فحص نهاية المقطع: الباقي %1 s، نافذة التحميل المسبق %2 s (تلاشٍ %3 / بلا فواصل %4)، التالي=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>تلاشٍ متقاطع: قبل النهاية بـ %1 s يُحمّل المقطع التالي (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>بلا فواصل: قبل النهاية بـ %1 s يُحمّل المقطع التالي مسبقًا (%2)</translation>
    </message>
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>لا يُحمَّل المقطع التالي مسبقًا (%1): من المسار وحده يعدّه المحرك مقطعًا آخر ⇒ يُحمَّل برقمه بعد انتهاء هذا</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
    <message>
        <source>播放进度</source>
        <translation>تقدّم التشغيل</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>يعرض التقدّم فقط: لا يمكن الانتقال أثناء التشغيل</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>الموضع بزمن المصدر؛ التشغيل بسرعة %1×.</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>الموضع والطول بزمن المصدر؛ عند السرعة %1× يستغرق المقطع كله %2.</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>التقدّم %1%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>جارٍ مسح المصدر (فك ترميزه)… %1%</translation>
    </message>
</context>
<context>
    <name>ProgressRow</name>
    <message>
        <source>位置</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>循环起点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>بداية التكرار: تُعلّم الموضع الحالي. عند تحديد A وB يبدأ التكرار؛ اضغط مرة أخرى لإلغائه</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>نهاية التكرار: تُعلّم الموضع الحالي. عند تحديد A وB يبدأ التكرار؛ اضغط مرة أخرى لإلغائه</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>التحكم من الهاتف</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>يتحكم هاتف على شبكة Wi-Fi نفسها بالتشغيل من متصفحه؛ وما دام مفعّلًا يستمع هذا الحاسوب على منفذ</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>المنفذ الذي يستمع عليه التحكم من الهاتف؛ يُقرأ لحظة التفعيل</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>منفذ التحكم من الهاتف</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>عناوين التحكم من الهاتف</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>لا عنوان IPv4 لهذا الحاسوب على الشبكة المحلية</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>افتح في متصفح الهاتف (على شبكة Wi-Fi نفسها مع الحاسوب):
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>التحكم من الهاتف: معطّل</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>تقرير سلسلة الإشارة</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>اسأل ثانيةً</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>حفظ التقرير…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>النوع: محطة شبكية</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>النوع: المقطع %1 من ملف CUE</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>النوع: المقطع %1 من صورة SACD</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>النوع: المقطع %1 من حاوية</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>النوع: ملف صوتي</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>يُعرض باسم: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>الموضع: العنصر %1/%2</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>الصيغة: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>الملف: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>ملف CUE: ‏%1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>الوقت: من %1 s إلى %2 s (الطول %3 s)</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>راسم الإشارة</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>لا شيء قيد التشغيل: لا موجة</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>أكبر سعة: اليسار %1%، اليمين %2%</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>ذروة إخراج هذه القناة (dBFS): يبلّغ عنها المحرك 20 مرة في الثانية بدقة 0.01 dB وحد أدنى ‎−120 dB (وما دونه يُعرض ‎−∞ dB)؛ وعند 0 dBFS يبقى الأحمر مضاءً 1.5 s (احتمال قص)</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>هل المصدر بلا فقد؟</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>في انتظار جواب المحرك.</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>المصدر بلا فقد</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>يعيد الترميز كل عينة دخلته؛ لم يُهمل شيء.</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>المصدر ليس بلا فقد</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>لم يعد الملف يحوي كل العينات الأصلية، ولا يمكن لأي مرحلة لاحقة أن تعيدها.</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>لا يُعرف هل المصدر بلا فقد</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>لم يقدّم المحرك ما يثبت ذلك؛ ولا يُحسب هذا نجاحًا.</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>هل المسار دون تغيير؟</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>المسار دون تغيير</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>لم تغيّر أي مرحلة بين الملف والجهاز عينة واحدة.</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>المسار متغيّر</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>مرحلة بين الملف والجهاز تغيّر العينات.</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>لا يُعرف هل المسار دون تغيير</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>هل تم التحقق من التسليم؟</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>تم التحقق من التسليم</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>فُتح الجهاز كما طُلب، والصيغة المقروءة منه تطابق ما أُرسل.</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>التسليم مختلف</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>ما وصل إلى الجهاز ليس ما أُرسل، أو تقف مرحلة أخرى في الطريق.</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>لا يمكن التحقق من التسليم</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>لا يمكن أن تُقرأ من الجهاز الصيغة التي يعمل بها فعلًا؛ ولا يُحسب هذا نجاحًا.</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>أول مرحلة أخلّت بالمطابقة: %1.</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>أول مرحلة لا يمكن إثباتها: %1.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>الحكم: مطابق بتًّا ببت ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>الحكم: ليس مطابقًا بتًّا ببت ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>فحص سلامة البتات</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>يفحص المحرك السلسلة الجاري تشغيلها مرحلةً مرحلة: المصدر وفك الترميز وإعادة أخذ العينات والمؤثرات والسرعة ومستوى الصوت والتلاشي وحماية الذروة وعمق البت والخلّاط وما يُقرأ من الجهاز ونفاد المخزن المؤقت. ويحكم بما تفعله كل مرحلة الآن فعلًا، لا بأي إعداد؛ وما لا يمكن إثباته لا يُحسب نجاحًا.</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>النتائج بندًا بندًا</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>حفظ التقرير…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>جارٍ الفحص…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>فحص سلامة البتات — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>نجح</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>لم ينجح</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>بعد %1 دقيقة</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>مؤقت النوم</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>عند حلول الوقت يتلاشى الصوت خلال عشر ثوانٍ ثم يتوقف التشغيل</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>مؤقت النوم: معطّل</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>مؤقت النوم: %1 دقيقة</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>مؤقت النوم: يتلاشى الصوت (يتوقف بعد 10 ثوانٍ)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>مؤقت النوم: تلاشى الصوت وتوقف التشغيل</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>الصوت: %1 · %2 بت · القنوات: %3 · %4 ث</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST: نعم</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST: لا</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 قناة</translation>
    </message>
</context>
<context>
    <name>SpectrumView</name>
    <message>
        <source>频谱</source>
        <translation>الطيف</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>أقوى نطاق: اليسار %1، اليمين %2، من أصل %3</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(غير موسوم)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] تجمّد خيط الواجهة %1 ms — كان يقوم بـ: %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] هناك KelpPlayer آخر قيد التشغيل — لن يبدأ هذا

تشغيل ثانٍ يتراكب على الجهاز نفسه (يُسمع ضجيجًا/تداخلًا).
لفتح أكثر من واحد عمدًا اضبط KELP_GUI_ALLOW_MULTI=1</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>قياسات البدء: الواجهة جاهزة خلال %1، الذاكرة %2 (قيم مقيسة فقط)</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>فتح الإعدادات (Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1: مفعّل</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1: معطّل</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>استعادة</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>فحص مجلدات المكتبة (الجديد فقط)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>البحث عن المكرر</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>تحرير الوسوم دفعة واحدة</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>قوائم تشغيل ذكية</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>تقرير السنة</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>تحليل المقطع</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>ترتيب DSP</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>مقارنة البصمات</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>إكمال الوسوم من الإنترنت</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>مكتبة الشبكة</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>مزامنة الهاتف</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>الإضافات</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>المحطات/الشبكة/نقل التشغيل</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>وضع السيارة</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>وحدات الشبكة</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>التحقق من المكتبة</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>مسح السجل</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>المساعدة…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>لم تُنجز هذه الميزة بعد؛ ستأتي في إصدار لاحق</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>يتعذر التحديد</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
السلّم الموسيقي: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>تحليل المقطع: BPM %1، السلّم %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>تحليل المقطع: BPM %1 (يتعذر تحديد السلّم ولا يُخمَّن)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>تحليل المقطع: السلّم %1 (يتعذر تحديد BPM ولا يُخمَّن)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>تحليل المقطع: يتعذر تحديد BPM والسلّم ولا يُخمَّنان</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>اختر مقطعًا أولًا ثم حلّله</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>لا يمكن التحليل أثناء التشغيل — اضغط «إيقاف» أولًا</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>تحليل المقطع</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>تعذّر بدء التحليل (مكتبة المحرك غير متاحة، rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>لم يُسفر التحليل عن نتيجة: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>المتابعة من %1:%2 (حيث توقفت آخر مرة)</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>لم يُنهِ المشغّل عمله خلال %1 ثانية — يُنهى قسرًا.</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>لم يُنهِ المشغّل عمله خلال %1 ثانية؛ لا يمكن إنهاء جلسة داخل العملية قسرًا (انتظر؛ حل بديل: KELP_GUI_INPROC=0)</translation>
    </message>
</context>
<context>
    <name>ValueCards</name>
    <message>
        <source>码率</source>
        <translation>معدل البت</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>معدل العينات</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>القنوات</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>مرات التشغيل</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>تحذيرات سلسلة الإشارة: %1</translation>
    </message>
</context>
</TS>
