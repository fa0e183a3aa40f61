<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>Повтор A/B: точка %1 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>Повтор A/B: точка B должна идти после точки A (A=%1s, B=%2s)</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>Повтор A/B: отмечено, сработает с началом воспроизведения (повтор трека)</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>Повтор A/B: %1 → %2 начался (повтор трека; после сброса вернётся прежний порядок воспроизведения)</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>Повтор A/B: сброшен</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>Повтор A/B: сброшен, порядок воспроизведения снова: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>Повтор A/B: трек сменился, точки A/B предыдущего трека отброшены</translation>
    </message>
</context>
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
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>Значащие биты</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>Значащие биты: пока неизвестно</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>прозрачно</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>бит стало меньше</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>исчерпаны</translation>
    </message>
    <message>
        <source>%1 bit，%2</source>
        <translation>%1 бит, %2</translation>
    </message>
</context>
<context>
    <name>ChainLamp</name>
    <message>
        <source>未能证明</source>
        <translation>Не доказано</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>Не bit-perfect</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>самопроверка не пройдена</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>Не bit-perfect или не доказано: %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>Пока неизвестно</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>Движок ещё не сообщил о тракте этого трека, поэтому ничего не утверждается.</translation>
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
        <translation>ТРАКТ</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>Вердикт о сигнальном тракте</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>Передискретизация</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>Бэкенд</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Формат вывода</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>Задержка</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>Вердикт</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>Тракт</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>Опустошения буфера</translation>
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
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>Доказано</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>Опровергнуто</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>Здесь доказать нельзя</translation>
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
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
Трек %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(теги взяты из самого контейнера; дополнительных тегов в локальной фонотеке нет)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>Альбом: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>Год: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(теги взяты из локальной фонотеки — в ISO/CUE ничего не записано)</translation>
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
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>Обложка</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>Нет обложки</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>Обложка показана</translation>
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
        <source>位置</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>总长</source>
        <translation>Общая длина</translation>
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
    <message>
        <source>播放顺序</source>
        <translation>Порядок воспроизведения</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>Текст песни</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>Тексты песен ещё не готовы; кнопка заработает в одной из следующих версий</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Без звука</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>Без звука; повторное нажатие вернёт прежнюю громкость</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>Инструменты для фонотеки, тегов, сети и прочего</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>Порядок воспроизведения: вперемешку</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>Порядок воспроизведения: по списку</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>Повтор: этот трек</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>Повтор: весь список</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>Повтор: выкл.</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>Реверберация</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>Тембр</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>Баланс</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>Пространство</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Шумоподавление</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Эквалайзер</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>Страница этого эффекта ещё не готова; она появится в одной из следующих версий</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>Эффекты стоят в тракте: изменения слышны сразу</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>Эффектов сейчас нет в тракте</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>Эффект включён</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>Эффект выключен</translation>
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
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>История отмены списка воспроизведения повреждена и непригодна, поэтому начинается заново: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>История отмены не соответствует сохранённому списку воспроизведения, поэтому начинается заново: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>Не удаётся записать историю отмены списка воспроизведения, после перезапуска отменить будет нечего: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>Уровень левого канала</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>Уровень правого канала</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>СПЕКТР</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>ОСЦИЛЛОГРАФ</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>Поиск по названию / исполнителю</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>Показано / всего</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>Поиск и фильтры ещё не готовы; они появятся в одной из следующих версий</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>ФОНОТЕКА · НАЗВАНИЕ</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>Воспроизводится / всего</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Образы</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>Все исполнители</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>Отбор по исполнителю</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>Все альбомы</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>Отбор по альбому</translation>
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
        <source>文件夹</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>Добавить аудиофайлы из папки в конец списка; вложенные папки не просматриваются</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>Убрать выбранные треки из списка; файлы остаются</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>Очистить список; файлы остаются, действие можно отменить</translation>
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
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>Акцент по обложке</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>Меньше движения</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Спектр</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>Осциллограф</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>Сбросить раскладку</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>Вернуть чистые настройки</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>Вид окна; действует сразу</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>Ширина правой колонки, от 200 до 420 пикселей; действует сразу</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>Если у дорожки есть обложка, акцент берётся с неё; иначе — выбранный цвет</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>Приборы сразу показывают новое значение, без сглаживания и затухания</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>Размер и место окна и ширина колонки — по умолчанию</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>Выключает всё, что меняет отсчёты, и запускает самопроверку</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>Ширина колонки</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>Запрашивать у движка спектр; действует сразу, и во время воспроизведения</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>Запрашивать у движка осциллограмму; действует сразу, и во время воспроизведения</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>Обложка</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>Показать воспроизводимый трек в списке</translation>
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
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Выберите трек или импортируйте аудио</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>вперемешку</translation>
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
        <source> · 列表循环</source>
        <translation> · повтор списка</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · повтор трека</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>Скорость воспроизведения: %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> (при воспроизведении действует сразу)</translation>
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
        <source>播放列表</source>
        <translation>Список воспроизведения</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>Настройки движка</translation>
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
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>В этом тракте нет PCM (прямой DSD) — осциллограммы нет</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>На этом пути спектра нет: прямой вывод DSD не содержит PCM</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>Отчёт о тракте: сеанса воспроизведения нет, показан только последний отчёт.</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>Сохранить отчёт о тракте</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>Отчёт о тракте сохранён: %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>Не удалось сохранить отчёт о тракте: %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>Самопроверка bit-perfect: сеанса воспроизведения нет — сначала начните воспроизведение (без потока судить не о чем)</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>Самопроверка bit-perfect: движку послан запрос проверить всё по пунктам</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>Вердикт самопроверки bit-perfect: %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>Восстановлены чистые настройки (все эффекты выключены / 1.0x / без кроссфейда / громкость 100 / раскладка и тема сброшены), самопроверка bit-perfect запущена</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>Порядок воспроизведения: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>Повтор A/B: ничего не воспроизводится, отмечать нечего</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>Пропущено аудиофайлов: %1 — у проигрывателя нет для них декодера (MP3/AAC/OGG)</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>Пропущено файлов: %1 — имена не в корректном UTF-8, открыть их нельзя</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>Добавлено треков: %1 (теперь в списке: %2)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>Добавление пакетом заняло %1 ms (треков: %2, разметка один раз)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>Нет аудиофайлов для добавления</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>Аудиофайлы (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>Воспроизводимый трек убран из списка (звук продолжается, но в списке его больше нет)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>Убрано треков: %1 (теперь в списке: %2)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>Список воспроизведения очищен</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>Изменение слишком велико, чтобы его запомнить, поэтому отменить его нельзя</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>Отменять нечего</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>История отмены не соответствует списку воспроизведения; ничего не отменено, история очищена</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>Повторять нечего</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>История повтора не соответствует списку воспроизведения; ничего не повторено, история очищена</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>Показать в файловом менеджере</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>В начало списка</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>В конец списка</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>Добавить папку…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Очистить список</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>Файловый менеджер не ответил, вместо него открыта папка: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>Не удаётся открыть папку: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>Свойства трека</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>Список воспроизведения восстановлен, треков: %1</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>В прошлый раз играл трек %1 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>В прошлый раз играл трек %1</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>При восстановлении списка пропущено треков: %1 (файла больше нет)</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>Включён автономный режим, отказано: %1 (режим можно выключить в настройках)</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>пульт в телефоне (порт прослушивания)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>Пульт в телефоне: выключен (порт больше не прослушивается)</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>Пульт в телефоне: отклонён запрос без верного токена (%1)</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>Пульт в телефоне: не удаётся прослушивать порт %1 (%2)</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>Пульт в телефоне: включён, порт %1, токен %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>Адрес пульта в телефоне: %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>Раскладка: ширина боковой панели %1 вне допустимого, ограничена до %2 px</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>Раскладка: ширина боковой панели %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>Раскладка сброшена (размер и положение окна, ширина боковой панели)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>Положение окна: сохранённая запись не читается, взят размер по умолчанию</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>Положение окна: прежнего экрана больше нет, окно перенесено в середину основного экрана</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>Воспроизводимого трека в фонотеке нет</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Справка</translation>
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
        <translation>## Воспроизведение

Перетащите файлы или папки в окно и дважды щёлкните строку, чтобы её воспроизвести. Во время воспроизведения перемотки нет: перейти к нужному месту можно только в начале трека.

## Клавиатура

- **Пробел** воспроизведение / пауза
- **Ctrl+→** следующий трек, **Ctrl+←** предыдущий трек
- **Ctrl+↑ / Ctrl+↓** громкость
- **Ctrl+Пробел** стоп, **Ctrl+O** импорт файлов, **F11** развернуть / восстановить
- **Ctrl+,** настройки
- В списке: **Enter** воспроизводит, **Delete** убирает, **Ctrl+Z** отменяет, **Ctrl+Shift+Z** возвращает

## Bit-perfect

Правая колонка показывает, через что проходят отсчёты. Только если полученное устройством прочитано обратно, там стоит “доставка подтверждена”. “Самопроверка bit-perfect” проверяет каждое звено.
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>Файл журнала: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>Файл настроек: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>Ожидание осциллограммы</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>Осциллограф выключен: осциллограммы нет</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Самопроверка bit-perfect</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>Проверяет по пунктам, меняет ли текущее воспроизведение отсчёты</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>Отчёт о тракте…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>Показывает собственный отчёт движка о сигнальном тракте; его можно сохранить</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Таймер сна</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>Пульт в телефоне</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>Панель журнала очищена; файл журнала остаётся</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>Тема: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>Как в системе (%1)</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>У обложки нет пригодного основного цвета (чистый чёрный/серый/белый) ⇒ акцентный цвет остаётся выбранным вами</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>Акцентный цвет взят с обложки: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Выберите трек или импортируйте аудио</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>Свёрнуто в трей, воспроизведение продолжается</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>УСТРОЙСТВО ВЫВОДА</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>Выбор спектра и осциллографа сохранён и действует со следующего сеанса</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Отображение</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>Список был очищен, пока составлялся перечень дорожек ⇒ они не добавляются: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>Предыдущая дорожка закончилась как раз при выборе другой ⇒ это не конец выбранной</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>Пропуск (в пути есть перевод строки, который управляющая строка не передаст): %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>Добавление отменено, треков: %1 (теперь в списке: %2)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>Возвращено убранных треков: %1 (теперь в списке: %2)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>Прежний порядок воспроизведения восстановлен</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>Снова добавлено треков: %1 (теперь в списке: %2)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>Снова убрано треков: %1 (теперь в списке: %2)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>Порядок воспроизведения снова изменён</translation>
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
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>Следующая дорожка не загружается заранее (%1): по одному пути движок принял бы её за другую ⇒ она загрузится по номеру после этой</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
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
        <source>循环起点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Начало повтора: отмечает текущую позицию. Когда заданы A и B, повтор начинается; нажмите ещё раз, чтобы сбросить</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Конец повтора: отмечает текущую позицию. Когда заданы A и B, повтор начинается; нажмите ещё раз, чтобы сбросить</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>Пульт в телефоне</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>Телефон в той же сети Wi-Fi управляет воспроизведением из браузера; пока включено, этот компьютер прослушивает порт</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>Порт, который прослушивает пульт; считывается в момент включения</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>Порт пульта в телефоне</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>Адреса пульта в телефоне</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>У этого компьютера нет IPv4-адреса в локальной сети</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>Откройте в браузере телефона (в той же сети Wi-Fi, что и компьютер):
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>Пульт в телефоне: выключен</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>Отчёт о сигнальном тракте</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>Запросить снова</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Сохранить отчёт…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>Вид: сетевая станция</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>Вид: трек %1 из CUE</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>Вид: трек %1 из образа SACD</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>Вид: трек %1 из контейнера</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>Вид: аудиофайл</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>Показан как: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>Место: пункт %1/%2</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>Формат: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>Файл: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>Файл CUE: %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>Время: %1 s → %2 s (длина %3 s)</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>Осциллограф</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>Ничего не воспроизводится: осциллограммы нет</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>Наибольшая амплитуда: левый %1%, правый %2%</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>Пиковый уровень на выходе этого канала (dBFS): движок сообщает его 20 раз в секунду с шагом 0.01 dB и нижней границей −120 dB (ниже показывается −∞ dB); при 0 dBFS красный сегмент горит 1.5 с (возможен клиппинг)</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>Источник без потерь?</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>Ждём ответа движка.</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>Источник без потерь</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>Кодирование возвращает каждый исходный отсчёт; ничего не отброшено.</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>Источник с потерями</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>В файле уже нет всех исходных отсчётов, и ни одно из следующих звеньев их не вернёт.</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>Неизвестно, без потерь ли источник</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>Движок не дал ничего, что бы это доказало; успехом это не считается.</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>Путь не изменён?</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>Путь не изменён</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>Ни одно звено между файлом и устройством не изменило ни одного отсчёта.</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>Путь изменён</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>Одно из звеньев между файлом и устройством меняет отсчёты.</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>Неизвестно, изменён ли путь</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>Доставка подтверждена?</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>Доставка подтверждена</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>Устройство открыто как запрошено, и прочитанный с него формат совпадает с отправленным.</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>Доставка расходится</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>До устройства дошло не то, что отправлено, или на пути стоит ещё одно звено.</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>Доставку нельзя подтвердить</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>В каком формате устройство работает на деле, прочитать нельзя; успехом это не считается.</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>Первое звено, нарушившее bit-perfect: %1.</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>Первое звено, которое нельзя доказать: %1.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>Вердикт: bit-perfect ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>Вердикт: не bit-perfect ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Самопроверка bit-perfect</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>Движок проверяет воспроизводимый тракт звено за звеном: источник, декодирование, передискретизация, эффекты, скорость, громкость, нарастания и затухания, защита от пиков, разрядность, микшер, прочитанное с устройства и опустошения буфера. Он судит по тому, что каждое звено делает сейчас на самом деле, а не по настройкам; недоказуемое успехом не считается.</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>Результаты по пунктам</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Сохранить отчёт…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>Проверка…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>Самопроверка bit-perfect — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>пройдена</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>не пройдена</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>Через %1 мин</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Таймер сна</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>В заданный момент звук затухает за десять секунд, затем воспроизведение останавливается</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>Таймер сна: выкл.</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>Таймер сна: %1 мин</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>Таймер сна: звук затухает (остановка через 10 секунд)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>Таймер сна: звук затух, воспроизведение остановлено</translation>
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
    <name>SpectrumView</name>
    <message>
        <source>频谱</source>
        <translation>Спектр</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>Самая громкая полоса: левый %1, правый %2, всего %3</translation>
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
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>Открыть настройки (Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>Закрыть окно</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1: вкл.</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1: выкл.</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Восстановить</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>Просканировать папки фонотеки (только новое)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>Найти дубликаты</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>Правка тегов пакетом</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>Умные списки</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>Итоги года</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Анализ трека</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>Порядок DSP</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>Сравнение отпечатков</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>Теги из сети</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>Сетевая фонотека</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>Синхронизация с телефоном</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>Плагины</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>Станции/сеть/передача</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>Режим для машины</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>Сетевые диски</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>Проверить фонотеку</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Очистить журнал</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>Справка…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>Эта функция ещё не готова; она появится в одной из следующих версий</translation>
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
<context>
    <name>ValueCards</name>
    <message>
        <source>码率</source>
        <translation>БИТРЕЙТ</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>ЧАСТОТА</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>КАНАЛЫ</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>ПРОСЛУШАНО</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>Предупреждений о тракте: %1</translation>
    </message>
</context>
</TS>
