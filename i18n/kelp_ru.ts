<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="zh_CN">
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>Уведомления третьих сторон и стандарты</translation>
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
        <translation>Микшер+преобр.</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>Микшер ОС</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>Преобразовано</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Неизвестно</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>Включены эффекты DSP ⇒ трек декодируется в PCM (прямой DSD и DSP исключают друг друга: эффекты работают только в PCM). Для прямого DSD выключите реверберацию, тембр, шумоподавление, баланс и ширину.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>Устройство не выбрано</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>В дифференциальном режиме и в режиме кроссовера каждому каналу нужно своё устройство — сначала выберите устройства.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>Режиму pairs нужно устройств: %1 (по одному на пару каналов), а выбрано: %2; добавьте недостающие и запустите воспроизведение.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>Этому режиму нужно устройств: %1 (по одному на канал), а выбрано: %2; из-за недостающих каналов сдвинется всё распределение — дополните список перед воспроизведением.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Недостаточно устройств</translation>
    </message>
</context>
<context>
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>SACD ISO: %1 — треков: %2</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>Не удалось разобрать CUE: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>Не удалось разобрать ISO: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>В этом CUE нет воспроизводимых треков: %1 (проба rc=%2, строк вывода: %3; содержание: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>В этом ISO нет воспроизводимых треков: %1 (проба rc=%2, строк вывода: %3; содержание: %4)</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[управление] сверка: отправлено команд: %1, но журнала сеанса движка в этом запуске нет — стороны сверить нельзя</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>сошлось</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>вне допуска (разница %1 &gt; допуск %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[управление] сверка: queued=%1 recv=%2 diff=%3 — %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[управление] источник сверки: %1</translation>
    </message>
</context>
<context>
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[управление] отправка %1 заняла %2 ms (должно быть меньше 1 ms)</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[управление] %1</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>неизвестное исключение</translation>
    </message>
</context>
<context>
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>Тестовый крючок: автоматическое закрытие окна (как кнопка закрытия в углу)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse (системный микшер; не bit-perfect)</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (устройство сброшено)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>Сброс устройства (-reset-device): время истекло: %1</translation>
    </message>
</context>
<context>
    <name>DisplayPanel</name>
    <message>
        <source>曲名</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>位置</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Выберите трек или импортируйте аудио</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>停止</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Остановить воспроизведение</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>Предыдущий</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>Воспроизвести предыдущий трек</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>Воспроизвести выбранный трек</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>Следующий</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>Воспроизвести следующий трек</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>Громкость; при 100% отсчёты не меняются</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Выберите трек или импортируйте аудио</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>Значащие биты: единичное усиление (отсчёты не тронуты)</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>Значащие биты: исчерпаны (слишком глубокое ослабление)</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>Значащие биты: без потерь, но усиление поднимает пики (риск клиппинга)</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>Значащие биты: без изменений (громкость устройства или конечной точки, отсчёты не масштабируются)</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>Значащие биты: без изменений (в потоке DoP громкость не обрабатывается)</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>Значащие биты: см. журнал (прямой DSD, используется микшер устройства)</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>Значащие биты: определяются программным усилением (см. следующую строку)</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>Значащие биты: около %1 бит (после программного ослабления)</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>Значащие биты: см. журнал</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>Трек оборвался до конца (%1%); воспроизведение остановлено, к следующему не переходим</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>Проигрыватель завершился аварийно, код: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  последняя строка движка: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>Монопольный выход не открывается (занят или формат не поддерживается) ⇒ трек повторяется в режиме auto (монопольно → совместно)</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>Сеанс закрыт (сменилось устройство или раскладка); следующее воспроизведение откроет новый с новыми настройками</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Воспроизведение остановлено</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Воспроизведение завершено</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>Событие завершения прошлого сеанса пропущено (сеанс только что пересоздан, событие пришло от разобранного).</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Воспроизведение</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>Декодирование</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>Сигнал</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>Путь вывода</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>Монопольно — прямо в устройство, совместно — через системный микшер; auto сначала пробует монопольно, затем совместно.</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>Передача DSD</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto — решает программа; force — всегда DoP; native — требовать нативный DSD.</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>Режим воспроизведения</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard — одно устройство; остальные режимы — по одному на канал или пару каналов.</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>Число каналов</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>Сколько каналов распределять в режимах с несколькими устройствами.</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 кан.</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>Раскладка каналов</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>Как каналы источника распределяются по выходам; auto — решает программа.</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>Частота раздела</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>Всё ниже этой частоты идёт на басовое устройство.</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>Мостовой кроссовер</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>На каждую полосу — два устройства в мостовом включении.</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>Устройство %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>Устройство вывода этого канала.</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>Всегда декодировать DSD в PCM</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>DSD не передаётся напрямую: для устройств только с PCM или когда нужны эффекты.</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>Разрядность PCM</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>Разрядность при декодировании DSD в PCM.</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>Фильтр декодирования</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>Фильтр из DSD в PCM: чем лучше, тем больше нагрузка.</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>Быстрый</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Стандартный</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>Лучший</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM в DSD</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>PCM модулируется в DSD: отсчёты меняются, это не bit-perfect.</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>Целевая частота</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>Частота DSD после модуляции.</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>Отводы фильтра модулятора</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>Длина фильтра передискретизации; «авто» — решает движок.</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>Внешняя библиотека декодера</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>Путь к внешней библиотеке декодера; пусто — не использовать.</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>Защита от пиков</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>Снижает пики, только если иначе было бы ограничение.</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>Передискретизация под устройство</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>Отсчёты меняются, это не bit-perfect.</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>Качество передискретизации</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>Чем лучше, тем больше нагрузка.</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>ReplayGain</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>Выравнивает громкость по тегам ReplayGain файла.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>По треку</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>По альбому</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Шумоподавление</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>Убирает фоновый шум записи; пока включено, прямой DSD невозможен.</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>Слабое</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>Сильное</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>Сохранять гармоники</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>Сохраняет гармоники тонов при шумоподавлении.</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>Без пауз между треками</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>Следующий трек загружается до конца текущего, без паузы.</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>Кроссфейд</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>На сколько секунд перекрываются два трека; 0 — не использовать.</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>Скорость воспроизведения</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>Высота тона сохраняется; при значении, отличном от 1.00, это не bit-perfect.</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>Воспроизводить по мере чтения</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>Файл не читается заранее в память.</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1 (автоматически)</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>Библиотека движка не найдена, искали: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>Не удаётся загрузить библиотеку движка: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>В библиотеке движка нет двух нужных точек входа: %1</translation>
    </message>
</context>
<context>
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>изучение профиля шума</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>профиль шума готов</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>в этом треке шума нет, пропускаем без обработки</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>Изучение шума (около 1 с)</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>Уровни и спектр выровнены по задержке вывода: %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>Получен ход (PG): сыграно %1 s / всего %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>DSP выполняет модулятор</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>Осциллограф: получен первый кадр (интервалов: %1)</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>рядом с программой</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>переменная окружения KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>сборка разработчика (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Опрос не уложился во время (%1 мс): %2 — дочерний процесс завершён, интерфейс работает дальше (при самопроверке KELP_GUI_PROBE_HANG так и должно быть)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>Опрос вернул не ноль (%1): %2</translation>
    </message>
    <message>
        <source>(完全没有输出)</source>
        <translation>(вывода нет совсем)</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>Журнал</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(ничего не выведено)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>5 секунд после начала — и ни одного отсчёта; последняя строка движка: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>5 секунд после начала звука нет — **устройство так и не открылось** (в журнале движка нет OPENED): обычно отказ в монопольном доступе, неподдерживаемый формат или занято другой программой; смотрите строки WASAPI выше; последняя строка движка: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  Проверьте по порядку: (1) на чём остановилась строка выше — декодирование / устройство / монопольный доступ; (2) воспроизведите тот же файл из командной строки; (3) найдите в журнале WASAPI / OPENED / 0x8889000A. Сеанс сам не пересоздаётся.</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>Журнал движка: движок кладёт его в своё место по умолчанию</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>Журнал движка (сохраняется, при выходе не удаляется): %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>Журнал движка (этого сеанса, при выходе удаляется): %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>Прошлый сеанс внутри процесса не завершился за 2 с — процесс, возможно, ещё держит монопольное устройство, и следующий трек может его не открыть</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(системное)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (по умолчанию)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>Список устройств (-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (не подключено — подключите и нажмите «Обновить устройства»)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>Воспроизведение… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>Список воспроизведения пуст</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>Это первый трек</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>Это последний трек</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>Трек %1/%2</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>Перемещение не удалось: номер строки вне списка (from=%1 to=%2, в списке: %3)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>Порядок изменён: пункт %1/%2</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>Автопереход: к концу трека список или порядок изменился, по файлу найден трек %1/%2</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>Автопереход (без паузы/кроссфейд): трек %1/%2: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>Прошлый сеанс ещё завершается (освобождается монопольный доступ) — новый сейчас не создаётся. Нажмите воспроизведение ещё раз; не поможет — перезапустите проигрыватель.</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Воспроизведение завершено</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>Конец списка воспроизведения (%1)</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>по порядку</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · без повтора</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>Конец списка воспроизведения</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[время] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>Пропуск (файла нет): %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>Ошибка: движок %1 не найден — положите его рядом с программой, добавьте в PATH или укажите в KELP_PLAYER_BIN.</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>Сменилось устройство или раскладка -&gt; текущий сеанс закрывается (устройство освобождается)</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>Старый сеанс не завершился за 10 с — завершаем принудительно (устройство может освободиться не сразу)</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>Используется текущий сеанс (при смене трека шлётся только load, без параметров): %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[DLL внутри процесса] параметры сеанса: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>Команда воспроизведения: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>Не удалось запустить проигрыватель (start сеанса вернул %1) ⇒ воспроизведения нет</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>Работающему сеансу послана ступень шумоподавления: %1 (командная строка повторно не читается)</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>Работающему сеансу послана защита от пиков: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>Ошибка: сначала добавьте аудиофайлы</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>Старый сеанс ещё не завершился ⇒ сначала отсоединяем его (сеанс внутри процесса можно только дождаться)</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>Старый сеанс всё ещё не завершён, новое воспроизведение начать нельзя — подождите (или перезапустите; для автоматизации и отладки есть KELP_GUI_INPROC=0)</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>Ничего не воспроизводится</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>Останавливаем проигрыватель...</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>Сигнал остановки отправлен</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Воспроизведение остановлено</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>Идёт воспроизведение</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>Воспроизведение ещё идёт, закрытие окна его остановит.

Выйти?</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>Импорт аудиофайлов</translation>
    </message>
    <message>
        <source>音频数据</source>
        <translation>Аудиоданные</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>Список воспроизведения</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>Добавить аудиофайлы в конец списка</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>Настройки движка</translation>
    </message>
    <message>
        <source>下次建会话时交给引擎的设置</source>
        <translation>Настройки, которые движок получит в следующем сеансе</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>Устройство вывода</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>Устройство, на котором идёт воспроизведение</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>Обновить устройства</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>Перечитать список устройств из KelpPlayer -list</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>Показать журнал</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>Что решила программа и почему</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>Скрыть журнал</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer — аудиопроигрыватель DSD ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>Форматы: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>Режимы: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Восстановление настроек: нет пункта для %1 (остаётся по умолчанию)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>Анализ %1 …</translation>
    </message>
    <message>
        <source>分析曲目</source>
        <translation>Анализ трека</translation>
    </message>
    <message>
        <source>测出选中曲目的速度和调性；不改动文件</source>
        <translation>Определяет темп и тональность выбранного трека; файл не изменяется</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>Проверка конца трека: осталось %1 s, окно предзагрузки %2 s (кроссфейд %3 / без пауз %4), следующий=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>Кроссфейд: до конца %1 s, следующий трек загружается заранее (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>Без пауз: за %1 s до конца предзагружен следующий трек (%2)</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>Позиция — по времени источника; сейчас скорость %1×.</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>Позиция и длина — по времени источника; на скорости %1× весь трек займёт %2.</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>Ход: %1%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>Просмотр (декодирование) источника… %1%</translation>
    </message>
</context>
<context>
    <name>ProgressRow</name>
    <message>
        <source>位置</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>播放进度</source>
        <translation>Ход воспроизведения</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>Только показывает ход: перемотка при воспроизведении невозможна</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>Аудио: %1 · %2 бит · каналов: %3 · %4 с</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST: да</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST: нет</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 кан.</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(не отмечено)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] Поток интерфейса замер на %1 мс — в это время: %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] KelpPlayer уже запущен — второй экземпляр не запускается

Второй играл бы поверх первого на том же устройстве (слышны шум и наложение).
Чтобы намеренно запустить несколько, задайте KELP_GUI_ALLOW_MULTI=1</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>Показатели запуска: интерфейс готов за %1, память %2 (только измеренное)</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>не определить</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
Тональность: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>Анализ трека: BPM %1, тональность %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>Анализ трека: BPM %1 (тональность не определить, не угадываем)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>Анализ трека: тональность %1 (BPM не определить, не угадываем)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>Анализ трека: ни BPM, ни тональность не определить, не угадываем</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>Сначала выберите трек, затем анализируйте</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>Во время воспроизведения анализ невозможен — сначала нажмите «Стоп»</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Анализ трека</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>Анализ не запускается (библиотека движка недоступна, rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>Анализ не дал результата: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>Продолжаем с %1:%2 (здесь остановились в прошлый раз)</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>Проигрыватель не завершился за %1 с — завершаем принудительно.</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>Проигрыватель не завершился за %1 с; сеанс внутри процесса нельзя завершить силой (подождите; обход: KELP_GUI_INPROC=0)</translation>
    </message>
</context>
</TS>
