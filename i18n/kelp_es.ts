<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="zh_CN">
<context>
    <name>AbLoop</name>
    <message>
        <source>A/B 循环: %1 点 = %2s</source>
        <translation>Bucle A/B: punto %1 = %2s</translation>
    </message>
    <message>
        <source>A/B 循环: B 点必须在 A 点之后（A=%1s, B=%2s）</source>
        <translation>Bucle A/B: el punto B debe ir después del punto A (A=%1s, B=%2s)</translation>
    </message>
    <message>
        <source>A/B 循环: 已标记，开始播放时生效（单曲循环）</source>
        <translation>Bucle A/B: marcado, se aplicará al empezar la reproducción (repetición de la pista)</translation>
    </message>
    <message>
        <source>A/B 循环: %1 → %2 已开始（单曲循环；清除后恢复原来的播放顺序）</source>
        <translation>Bucle A/B: %1 → %2 en marcha (repetición de la pista; al borrarlo vuelve el orden de reproducción anterior)</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除</source>
        <translation>Bucle A/B: borrado</translation>
    </message>
    <message>
        <source>A/B 循环: 已清除，播放顺序恢复为 %1</source>
        <translation>Bucle A/B: borrado, orden de reproducción restablecido: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 换曲了，为上一首设的 A/B 点已作废</source>
        <translation>Bucle A/B: cambió la pista, los puntos A/B de la anterior se han descartado</translation>
    </message>
</context>
<context>
    <name>AboutBlock</name>
    <message>
        <source>检查更新…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>第三方声明与参考标准</source>
        <translation>Avisos de terceros y normas de referencia</translation>
    </message>
</context>
<context>
    <name>BitsLed</name>
    <message>
        <source>有效位数</source>
        <translation>Bits efectivos</translation>
    </message>
    <message>
        <source>有效位数：尚不清楚</source>
        <translation>Bits efectivos: aún no se conocen</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>desconocidos</translation>
    </message>
    <message>
        <source>透明</source>
        <translation>transparente</translation>
    </message>
    <message>
        <source>位数减少</source>
        <translation>menos bits</translation>
    </message>
    <message>
        <source>用尽</source>
        <translation>agotados</translation>
    </message>
    <message>
        <source>%1 bit，%2</source>
        <translation>%1 bits, %2</translation>
    </message>
</context>
<context>
    <name>ChainLamp</name>
    <message>
        <source>未能证明</source>
        <translation>No demostrado</translation>
    </message>
    <message>
        <source>非位完美</source>
        <translation>No bit-perfect</translation>
    </message>
    <message>
        <source>自检没有通过</source>
        <translation>la autocomprobación no se superó</translation>
    </message>
    <message>
        <source>不是位完美或未能证明：%1</source>
        <translation>No bit-perfect, o no demostrado: %1</translation>
    </message>
    <message>
        <source>尚未得知</source>
        <translation>Aún no se sabe</translation>
    </message>
    <message>
        <source>引擎还没有报告这一首的信号链，所以什么也不断言。</source>
        <translation>El motor todavía no ha informado de la cadena de señal de esta pista, así que no se afirma nada.</translation>
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
        <translation>CADENA</translation>
    </message>
    <message>
        <source>信号链的结论</source>
        <translation>Veredicto sobre la cadena de señal</translation>
    </message>
</context>
<context>
    <name>ChainRow</name>
    <message>
        <source>重采样</source>
        <translation>Remuestreo</translation>
    </message>
    <message>
        <source>后端</source>
        <translation>Backend</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Formato de salida</translation>
    </message>
    <message>
        <source>延时</source>
        <translation>Latencia</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>变速</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>结论</source>
        <translation>Veredicto</translation>
    </message>
    <message>
        <source>链路</source>
        <translation>Cadena</translation>
    </message>
    <message>
        <source>欠载</source>
        <translation>Búfer vacío</translation>
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
        <translation>Mezcla+conversión</translation>
    </message>
    <message>
        <source>系统混音</source>
        <translation>Mezclador del sistema</translation>
    </message>
    <message>
        <source>已转换</source>
        <translation>Convertido</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>CheckMarkView</name>
    <message>
        <source>等待中</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>已证明</source>
        <translation>Demostrado</translation>
    </message>
    <message>
        <source>已证伪</source>
        <translation>Refutado</translation>
    </message>
    <message>
        <source>此处无法证明</source>
        <translation>No demostrable aquí</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>DSP 效果已启用 ⇒ 本曲解码为 PCM（DSD 直通与 DSP 互斥：效果只在 PCM 域起作用）。要 DSD 直通，请把混响/音调/降噪/平衡/宽度全部关闭。</source>
        <translation>Hay efectos DSP activos ⇒ esta pista se decodifica a PCM (DSD directo y DSP se excluyen: los efectos actúan en PCM). Para DSD directo, desactive reverberación, tono, reducción de ruido, balance y anchura.</translation>
    </message>
    <message>
        <source>未选择设备</source>
        <translation>Ningún dispositivo elegido</translation>
    </message>
    <message>
        <source>差分/分频模式每个声道需要一台设备 —— 请先选择设备。</source>
        <translation>Los modos diferencial y de cruce necesitan un dispositivo por canal: elija primero los dispositivos.</translation>
    </message>
    <message>
        <source>pairs 模式需要 %1 台设备（每对声道一台），目前只选了 %2 台；请补齐后再播放。</source>
        <translation>El modo pairs necesita %1 dispositivos (uno por par de canales) y solo hay %2 elegidos; complételos antes de reproducir.</translation>
    </message>
    <message>
        <source>该模式需要 %1 台设备（每个声道一台），目前只选了 %2 台；缺少的声道会使整个映射错位 —— 请补全列表后再播放。</source>
        <translation>Este modo necesita %1 dispositivos (uno por canal) y solo hay %2 elegidos; los canales que faltan desplazan toda la asignación: complete la lista antes de reproducir.</translation>
    </message>
    <message>
        <source>设备数量不足</source>
        <translation>Faltan dispositivos</translation>
    </message>
</context>
<context>
    <name>ContainerListing</name>
    <message>
        <source>SACD ISO: %1 — %2 首</source>
        <translation>ISO SACD: %1 — %2 pista(s)</translation>
    </message>
    <message>
        <source>CUE 解析失败: %1 (rc=%2)</source>
        <translation>No se pudo interpretar el CUE: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>ISO 解析失败: %1 (rc=%2)</source>
        <translation>No se pudo interpretar la ISO: %1 (rc=%2)</translation>
    </message>
    <message>
        <source>cue 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>No hay pistas reproducibles en este CUE: %1 (sonda rc=%2, %3 línea(s) de salida; contenido: %4)</translation>
    </message>
    <message>
        <source>ISO 里没有可播放的曲目: %1 (探测 rc=%2, 输出 %3 行; 内容: %4)</source>
        <translation>No hay pistas reproducibles en esta ISO: %1 (sonda rc=%2, %3 línea(s) de salida; contenido: %4)</translation>
    </message>
</context>
<context>
    <name>ContainerOverlay</name>
    <message>
        <source>%1
轨 %2</source>
        <translation>%1
Pista %2</translation>
    </message>
    <message>
        <source>(标签来自容器自带的信息; 本地库里没有额外的标签)</source>
        <translation>(etiquetas tomadas del propio contenedor; la biblioteca local no tiene otras)</translation>
    </message>
    <message>
        <source>专辑: %1</source>
        <translation>Álbum: %1</translation>
    </message>
    <message>
        <source>年份: %1</source>
        <translation>Año: %1</translation>
    </message>
    <message>
        <source>(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)</source>
        <translation>(etiquetas tomadas de la biblioteca local — no se ha escrito nada en la ISO/CUE)</translation>
    </message>
</context>
<context>
    <name>ControlClosure</name>
    <message>
        <source>[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账</source>
        <translation>[control] cotejo: se enviaron %1 órdenes, pero esta ejecución no tiene registro de sesión del motor; no se pueden cotejar los dos extremos</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>超差(差 %1 &gt; 容差 %2)</source>
        <translation>fuera de tolerancia (diferencia %1 &gt; tolerancia %2)</translation>
    </message>
    <message>
        <source>[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4</source>
        <translation>[control] cotejo: queued=%1 recv=%2 diff=%3: %4</translation>
    </message>
    <message>
        <source>[控制] 闭合账来源: %1</source>
        <translation>[control] origen del cotejo: %1</translation>
    </message>
</context>
<context>
    <name>ControlReport</name>
    <message>
        <source>[控制] 发送 %1 用了 %2 ms（应小于 1 ms）</source>
        <translation>[control] el envío de %1 tardó %2 ms (debería ser menos de 1 ms)</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[control] %1</translation>
    </message>
</context>
<context>
    <name>CoverDisc</name>
    <message>
        <source>封面</source>
        <translation>Carátula</translation>
    </message>
    <message>
        <source>无封面</source>
        <translation>Sin carátula</translation>
    </message>
    <message>
        <source>有封面</source>
        <translation>Se muestra una carátula</translation>
    </message>
</context>
<context>
    <name>CrashGuard</name>
    <message>
        <source>未知异常</source>
        <translation>excepción desconocida</translation>
    </message>
</context>
<context>
    <name>DebugHooks</name>
    <message>
        <source>测试钩子: 自动关窗 (等价点右上角关闭)</source>
        <translation>Gancho de prueba: cierre automático (equivale al botón de cerrar)</translation>
    </message>
</context>
<context>
    <name>DeviceList</name>
    <message>
        <source>pulse（系统混音器；非位完美）</source>
        <translation>pulse (mezclador del sistema; no bit-perfect)</translation>
    </message>
</context>
<context>
    <name>DeviceReset</name>
    <message>
        <source>%1 ⇒ -reset-device rc=%2 (设备已清)</source>
        <translation>%1 ⇒ -reset-device rc=%2 (dispositivo restablecido)</translation>
    </message>
    <message>
        <source>设备复位 (-reset-device) 超时：%1</source>
        <translation>Se agotó el tiempo al restablecer el dispositivo (-reset-device): %1</translation>
    </message>
</context>
<context>
    <name>DisplayPanel</name>
    <message>
        <source>位置</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>总长</source>
        <translation>Duración total</translation>
    </message>
</context>
<context>
    <name>DockBar</name>
    <message>
        <source>停止</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Detener la reproducción</translation>
    </message>
    <message>
        <source>上一首</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>播放上一首</source>
        <translation>Reproducir la pista anterior</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>播放选中的曲目</source>
        <translation>Reproducir la pista elegida</translation>
    </message>
    <message>
        <source>下一首</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>播放下一首</source>
        <translation>Reproducir la pista siguiente</translation>
    </message>
    <message>
        <source>音量</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>音量；100% 不改变样本</source>
        <translation>Volumen; con 100% no se alteran las muestras</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Elija una pista o importe audio</translation>
    </message>
    <message>
        <source>播放顺序</source>
        <translation>Orden de reproducción</translation>
    </message>
    <message>
        <source>循环</source>
        <translation>Repetición</translation>
    </message>
    <message>
        <source>歌词</source>
        <translation>Letra</translation>
    </message>
    <message>
        <source>歌词还没有做好，这个按钮以后才能用</source>
        <translation>Las letras aún no están listas; este botón servirá en una versión posterior</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>静音；再按一次回到原来的音量</source>
        <translation>Silenciar; pulse otra vez para volver al volumen anterior</translation>
    </message>
    <message>
        <source>工具</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>曲库、标签、网络等工具</source>
        <translation>Herramientas para la biblioteca, las etiquetas, la red y más</translation>
    </message>
    <message>
        <source>播放顺序：随机</source>
        <translation>Orden de reproducción: aleatorio</translation>
    </message>
    <message>
        <source>播放顺序：按列表</source>
        <translation>Orden de reproducción: en orden</translation>
    </message>
    <message>
        <source>循环：单曲</source>
        <translation>Repetición: esta pista</translation>
    </message>
    <message>
        <source>循环：整个列表</source>
        <translation>Repetición: toda la lista</translation>
    </message>
    <message>
        <source>循环：关闭</source>
        <translation>Repetición: desactivada</translation>
    </message>
</context>
<context>
    <name>DspBar</name>
    <message>
        <source>实时</source>
        <translation>Tiempo real</translation>
    </message>
    <message>
        <source>混响</source>
        <translation>Reverb</translation>
    </message>
    <message>
        <source>音调</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>平衡</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Antirruido</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Ecualizador</translation>
    </message>
    <message>
        <source>这一页效果还没有做好，以后的版本才有</source>
        <translation>Esta página de efectos aún no está lista; llegará en una versión posterior</translation>
    </message>
    <message>
        <source>效果链在播放的路径上：改动马上听得到</source>
        <translation>Los efectos están en la ruta: los cambios se oyen al instante</translation>
    </message>
    <message>
        <source>效果链现在不在播放的路径上</source>
        <translation>Los efectos no están ahora en la ruta</translation>
    </message>
</context>
<context>
    <name>DspTab</name>
    <message>
        <source>效果已开</source>
        <translation>El efecto está activado</translation>
    </message>
    <message>
        <source>效果已关</source>
        <translation>El efecto está desactivado</translation>
    </message>
</context>
<context>
    <name>EffectiveBits</name>
    <message>
        <source>有效位：单位增益（样本原样通过）</source>
        <translation>Bits efectivos: ganancia unidad (muestras intactas)</translation>
    </message>
    <message>
        <source>有效位：已耗尽（衰减过深）</source>
        <translation>Bits efectivos: agotados (atenuación excesiva)</translation>
    </message>
    <message>
        <source>有效位：无损失，但增益会推高峰值（有削波风险）</source>
        <translation>Bits efectivos: sin pérdida, pero la ganancia eleva los picos (riesgo de recorte)</translation>
    </message>
    <message>
        <source>有效位：不受影响（设备/端点音量，样本未缩放）</source>
        <translation>Bits efectivos: sin cambios (volumen del dispositivo o extremo; las muestras no se escalan)</translation>
    </message>
    <message>
        <source>有效位：不受影响（DoP 流不做音量处理）</source>
        <translation>Bits efectivos: sin cambios (en un flujo DoP no se procesa el volumen)</translation>
    </message>
    <message>
        <source>有效位：见日志（DSD 直通，使用设备混音器）</source>
        <translation>Bits efectivos: véase el registro (DSD directo, se usa el mezclador del dispositivo)</translation>
    </message>
    <message>
        <source>有效位：由软件增益决定（见下一行）</source>
        <translation>Bits efectivos: los determina la ganancia por software (véase la línea siguiente)</translation>
    </message>
    <message>
        <source>有效位：约 %1 位（软件衰减之后）</source>
        <translation>Bits efectivos: unos %1 bits (tras la atenuación por software)</translation>
    </message>
    <message>
        <source>有效位：见日志</source>
        <translation>Bits efectivos: véase el registro</translation>
    </message>
</context>
<context>
    <name>EndVerdict</name>
    <message>
        <source>未到结尾就结束（%1%），已停止，不继续下一首</source>
        <translation>Terminó antes del final (%1%); detenido, no se pasa a la pista siguiente</translation>
    </message>
    <message>
        <source>播放器异常退出，代码: %1</source>
        <translation>El reproductor terminó de forma anómala, código: %1</translation>
    </message>
    <message>
        <source>  引擎最后一行: %1</source>
        <translation>  última línea del motor: %1</translation>
    </message>
    <message>
        <source>独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）</source>
        <translation>La salida exclusiva no se abre (ocupada o formato no admitido) ⇒ se reintenta esta pista con auto (exclusivo → compartido)</translation>
    </message>
    <message>
        <source>会话已关闭（设备/布局变更）；下次播放按新设置开新会话</source>
        <translation>Sesión cerrada (cambio de dispositivo o disposición); la próxima reproducción abrirá otra con los ajustes nuevos</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Reproducción detenida</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Reproducción terminada</translation>
    </message>
    <message>
        <source>忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。</source>
        <translation>Se ignora el evento de fin de la sesión anterior (la sesión acaba de rehacerse y el evento viene de la desmontada).</translation>
    </message>
</context>
<context>
    <name>EngineControls</name>
    <message>
        <source>输出</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>解码</source>
        <translation>Decodificación</translation>
    </message>
    <message>
        <source>信号</source>
        <translation>Señal</translation>
    </message>
    <message>
        <source>输出路径</source>
        <translation>Ruta de salida</translation>
    </message>
    <message>
        <source>独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。</source>
        <translation>Exclusivo va directo al hardware, compartido pasa por el mezclador del sistema; auto prueba exclusivo y luego compartido.</translation>
    </message>
    <message>
        <source>DSD 传输</source>
        <translation>Transporte DSD</translation>
    </message>
    <message>
        <source>auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。</source>
        <translation>auto: decide el programa; force: siempre DoP; native: exige DSD nativo.</translation>
    </message>
    <message>
        <source>播放模式</source>
        <translation>Modo de reproducción</translation>
    </message>
    <message>
        <source>standard 用一台设备；其他模式每个声道或声道对用一台设备。</source>
        <translation>standard usa un dispositivo; los demás modos, uno por canal o par de canales.</translation>
    </message>
    <message>
        <source>声道数</source>
        <translation>Número de canales</translation>
    </message>
    <message>
        <source>多设备模式分配的声道数。</source>
        <translation>Canales que reparten los modos de varios dispositivos.</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 canales</translation>
    </message>
    <message>
        <source>声道布置</source>
        <translation>Disposición de canales</translation>
    </message>
    <message>
        <source>源的声道怎样分到输出；auto 由程序决定。</source>
        <translation>Cómo se reparten los canales de la fuente entre las salidas; auto: decide el programa.</translation>
    </message>
    <message>
        <source>分频点</source>
        <translation>Frecuencia de cruce</translation>
    </message>
    <message>
        <source>低于这个频率的送到低音设备。</source>
        <translation>Lo que queda por debajo va al dispositivo de graves.</translation>
    </message>
    <message>
        <source>桥接分频</source>
        <translation>Cruce en puente</translation>
    </message>
    <message>
        <source>每一路分频用两台桥接的设备。</source>
        <translation>Dos dispositivos en puente por vía.</translation>
    </message>
    <message>
        <source>设备 %1</source>
        <translation>Dispositivo %1</translation>
    </message>
    <message>
        <source>这个声道的输出设备。</source>
        <translation>El dispositivo de salida de este canal.</translation>
    </message>
    <message>
        <source>DSD 一律解码为 PCM</source>
        <translation>Decodificar siempre DSD a PCM</translation>
    </message>
    <message>
        <source>不再直通 DSD：设备只接 PCM 或要用效果时使用。</source>
        <translation>Sin DSD directo: para dispositivos que solo aceptan PCM o cuando se quieren efectos.</translation>
    </message>
    <message>
        <source>PCM 位深</source>
        <translation>Profundidad PCM</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 时的位深。</source>
        <translation>Profundidad al decodificar DSD a PCM.</translation>
    </message>
    <message>
        <source>解码滤波器</source>
        <translation>Filtro de decodificación</translation>
    </message>
    <message>
        <source>DSD 解码成 PCM 的滤波器：越好越费算力。</source>
        <translation>Filtro de DSD a PCM: cuanto mejor, más cálculo.</translation>
    </message>
    <message>
        <source>快速</source>
        <translation>Rápido</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>最佳</source>
        <translation>Óptimo</translation>
    </message>
    <message>
        <source>PCM 转 DSD</source>
        <translation>PCM a DSD</translation>
    </message>
    <message>
        <source>把 PCM 调制成 DSD 再送出：改变样本，不是位完美。</source>
        <translation>Modula PCM a DSD: cambia las muestras, no es bit-perfect.</translation>
    </message>
    <message>
        <source>目标速率</source>
        <translation>Frecuencia de destino</translation>
    </message>
    <message>
        <source>调制后的 DSD 速率。</source>
        <translation>Frecuencia DSD tras la modulación.</translation>
    </message>
    <message>
        <source>调制滤波器抽头</source>
        <translation>Coeficientes del filtro</translation>
    </message>
    <message>
        <source>升频滤波器的长度；自动由引擎决定。</source>
        <translation>Longitud del filtro de sobremuestreo; en automático decide el motor.</translation>
    </message>
    <message>
        <source>自动</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>无</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>外部解码库</source>
        <translation>Biblioteca decodificadora externa</translation>
    </message>
    <message>
        <source>外部解码库的路径；空着表示不用。</source>
        <translation>Ruta de la biblioteca decodificadora externa; vacía: ninguna.</translation>
    </message>
    <message>
        <source>峰值保护</source>
        <translation>Protección de picos</translation>
    </message>
    <message>
        <source>只在会削波时压低峰值。</source>
        <translation>Baja los picos solo cuando habría recorte.</translation>
    </message>
    <message>
        <source>重采样到设备速率</source>
        <translation>Remuestrear a la frecuencia del dispositivo</translation>
    </message>
    <message>
        <source>改变样本，不是位完美。</source>
        <translation>Cambia las muestras, no es bit-perfect.</translation>
    </message>
    <message>
        <source>重采样质量</source>
        <translation>Calidad del remuestreo</translation>
    </message>
    <message>
        <source>越好越费算力。</source>
        <translation>Cuanto mejor, más cálculo.</translation>
    </message>
    <message>
        <source>回放增益</source>
        <translation>ReplayGain</translation>
    </message>
    <message>
        <source>按文件里的 ReplayGain 标签拉平响度。</source>
        <translation>Iguala la sonoridad según las etiquetas ReplayGain del archivo.</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>按曲目</source>
        <translation>Por pista</translation>
    </message>
    <message>
        <source>按专辑</source>
        <translation>Por álbum</translation>
    </message>
    <message>
        <source>降噪</source>
        <translation>Reducción de ruido</translation>
    </message>
    <message>
        <source>去掉录音的底噪；开着就不能直通 DSD。</source>
        <translation>Quita el ruido de fondo de la grabación; activado impide el DSD directo.</translation>
    </message>
    <message>
        <source>轻度</source>
        <translation>Ligera</translation>
    </message>
    <message>
        <source>强力</source>
        <translation>Fuerte</translation>
    </message>
    <message>
        <source>保留谐波</source>
        <translation>Conservar armónicos</translation>
    </message>
    <message>
        <source>降噪时保住乐音的谐波。</source>
        <translation>Protege los armónicos de los tonos al reducir el ruido.</translation>
    </message>
    <message>
        <source>无缝换曲</source>
        <translation>Reproducción sin pausas</translation>
    </message>
    <message>
        <source>曲尾前预装下一首，中间不停顿。</source>
        <translation>Precarga la pista siguiente antes del final, sin pausa.</translation>
    </message>
    <message>
        <source>交叉淡化</source>
        <translation>Fundido cruzado</translation>
    </message>
    <message>
        <source>两首之间重叠的秒数；0 表示不用。</source>
        <translation>Segundos en que se solapan dos pistas; 0: ninguno.</translation>
    </message>
    <message>
        <source>播放速度</source>
        <translation>Velocidad de reproducción</translation>
    </message>
    <message>
        <source>保持音高；不是 1.00 就不是位完美。</source>
        <translation>Se conserva el tono; si no es 1.00, no es bit-perfect.</translation>
    </message>
    <message>
        <source>边读边播</source>
        <translation>Reproducir mientras se lee</translation>
    </message>
    <message>
        <source>不先把文件读进内存。</source>
        <translation>No lee antes el archivo en memoria.</translation>
    </message>
    <message>
        <source>%1（自动）</source>
        <translation>%1 (automático)</translation>
    </message>
</context>
<context>
    <name>EngineLibrary</name>
    <message>
        <source>找不到引擎库，已查找：%1</source>
        <translation>No se encontró la biblioteca del motor; se buscó en: %1</translation>
    </message>
    <message>
        <source>无法加载引擎库：%1</source>
        <translation>No se puede cargar la biblioteca del motor: %1</translation>
    </message>
    <message>
        <source>引擎库缺少所需的两个入口：%1</source>
        <translation>A la biblioteca del motor le faltan los dos puntos de entrada necesarios: %1</translation>
    </message>
</context>
<context>
    <name>EngineLines</name>
    <message>
        <source>正在学习噪声样本</source>
        <translation>aprendiendo el perfil de ruido</translation>
    </message>
    <message>
        <source>噪声样本就绪</source>
        <translation>perfil de ruido listo</translation>
    </message>
    <message>
        <source>本曲无噪声，直接通过</source>
        <translation>sin ruido en esta pista, pasa sin cambios</translation>
    </message>
    <message>
        <source>正在学习噪声（约 1 秒）</source>
        <translation>Aprendiendo el ruido (aprox. 1 s)</translation>
    </message>
    <message>
        <source>电平/频谱已按输出延时对齐：%1 ms</source>
        <translation>Niveles/espectro alineados con la latencia de salida: %1 ms</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>收到进度（PG）：已播放 %1 s / 共 %2 s</source>
        <translation>Progreso recibido (PG): reproducidos %1 s / total %2 s</translation>
    </message>
    <message>
        <source>DSP 由调制器执行</source>
        <translation>El modulador aplica el DSP</translation>
    </message>
    <message>
        <source>示波器：已收到第一帧（%1 个桶）</source>
        <translation>Osciloscopio: primera trama recibida (%1 intervalos)</translation>
    </message>
</context>
<context>
    <name>EngineLocation</name>
    <message>
        <source>程序同目录</source>
        <translation>junto al programa</translation>
    </message>
    <message>
        <source>环境变量 KELP_PLAYER_BIN</source>
        <translation>variable de entorno KELP_PLAYER_BIN</translation>
    </message>
    <message>
        <source>开发构建（build/）</source>
        <translation>compilación de desarrollo (build/)</translation>
    </message>
</context>
<context>
    <name>EngineProbe</name>
    <message>
        <source>探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行（KELP_GUI_PROBE_HANG 自检时属预期）</source>
        <translation>Se agotó el tiempo del sondeo (%1 ms): %2; se terminó ese proceso hijo y la interfaz sigue (es lo esperado en la autocomprobación KELP_GUI_PROBE_HANG)</translation>
    </message>
    <message>
        <source>探测返回非零（%1）：%2</source>
        <translation>El sondeo devolvió un valor distinto de cero (%1): %2</translation>
    </message>
    <message>
        <source>(完全没有输出)</source>
        <translation>(sin salida alguna)</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1</source>
        <translation>El historial de deshacer de la lista de reproducción está dañado y no se puede usar, así que empieza vacío: %1</translation>
    </message>
    <message>
        <source>播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1</source>
        <translation>El historial de deshacer de la lista de reproducción no concuerda con la lista guardada, así que empieza vacío: %1</translation>
    </message>
    <message>
        <source>写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)</source>
        <translation>No se puede escribir el historial de deshacer de la lista de reproducción; tras reiniciar no habrá nada que deshacer: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>InstrumentPanel</name>
    <message>
        <source>左声道电平</source>
        <translation>Nivel izquierdo</translation>
    </message>
    <message>
        <source>右声道电平</source>
        <translation>Nivel derecho</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>ESPECTRO</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>ONDA</translation>
    </message>
</context>
<context>
    <name>LibraryPanel</name>
    <message>
        <source>搜索标题 / 艺术家</source>
        <translation>Buscar título / artista</translation>
    </message>
    <message>
        <source>搜索</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>显示的 / 全部</source>
        <translation>Mostradas / todas</translation>
    </message>
    <message>
        <source>搜索和筛选还没有做好，以后的版本才有</source>
        <translation>La búsqueda y los filtros aún no están listos; llegarán en una versión posterior</translation>
    </message>
    <message>
        <source>曲库 · TITLE</source>
        <translation>BIBLIOTECA · TÍTULO</translation>
    </message>
    <message>
        <source>正在播放的 / 全部</source>
        <translation>En reproducción / todas</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>全部艺术家</source>
        <translation>Todos los artistas</translation>
    </message>
    <message>
        <source>按艺术家筛选</source>
        <translation>Filtrar por artista</translation>
    </message>
    <message>
        <source>全部专辑</source>
        <translation>Todos los álbumes</translation>
    </message>
    <message>
        <source>按专辑筛选</source>
        <translation>Filtrar por álbum</translation>
    </message>
    <message>
        <source>导入</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>把音频文件加到列表末尾</source>
        <translation>Añade archivos de audio al final de la lista</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>把一个文件夹里的音频加到列表末尾；不进子文件夹</source>
        <translation>Añade los archivos de audio de una carpeta al final de la lista, sin entrar en sus subcarpetas</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>把选中的曲目从列表移除；文件不动</source>
        <translation>Quita de la lista las pistas elegidas; los archivos se conservan</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>清空列表；文件不动，可以撤销</source>
        <translation>Vacía la lista; los archivos se conservan y se puede deshacer</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>强调色跟随封面</source>
        <translation>El color de acento sigue la portada</translation>
    </message>
    <message>
        <source>减少动态效果</source>
        <translation>Reducir el movimiento</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Espectro</translation>
    </message>
    <message>
        <source>示波器</source>
        <translation>Osciloscopio</translation>
    </message>
    <message>
        <source>重置布局</source>
        <translation>Restablecer la disposición</translation>
    </message>
    <message>
        <source>恢复纯净默认</source>
        <translation>Restaurar valores puros</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>窗口的外观；马上生效</source>
        <translation>Aspecto de la ventana; efecto inmediato</translation>
    </message>
    <message>
        <source>右侧栏的宽度，200 到 420 像素；马上生效</source>
        <translation>Ancho de la columna derecha, de 200 a 420 píxeles; efecto inmediato</translation>
    </message>
    <message>
        <source>有封面的曲目播放时，强调色取自封面；否则用选定的颜色</source>
        <translation>Si la pista tiene portada, el acento sale de ella; si no, el color elegido</translation>
    </message>
    <message>
        <source>仪表直接跳到新值，不做平滑和淡出</source>
        <translation>Los instrumentos saltan al nuevo valor, sin suavizado ni fundido</translation>
    </message>
    <message>
        <source>窗口大小、位置和侧栏宽度回到默认值</source>
        <translation>Tamaño, posición y ancho de columna predeterminados</translation>
    </message>
    <message>
        <source>关掉一切会改动样本的功能，再做一次位完美自检</source>
        <translation>Apaga todo lo que altera las muestras y hace la autocomprobación</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>侧栏宽度</source>
        <translation>Ancho de columna</translation>
    </message>
    <message>
        <source>请引擎送出频谱；播放中也立即生效</source>
        <translation>Pide el espectro al motor; surte efecto al instante, también durante la reproducción</translation>
    </message>
    <message>
        <source>请引擎送出波形；播放中也立即生效</source>
        <translation>Pide la forma de onda al motor; surte efecto al instante, también durante la reproducción</translation>
    </message>
</context>
<context>
    <name>MiniCover</name>
    <message>
        <source>封面</source>
        <translation>Carátula</translation>
    </message>
    <message>
        <source>在列表里显示正在播放的曲目</source>
        <translation>Mostrar en la lista la pista que suena</translation>
    </message>
</context>
<context>
    <name>NoAudioReport</name>
    <message>
        <source>(没有任何输出)</source>
        <translation>(ninguna salida)</translation>
    </message>
    <message>
        <source>起播 5 秒仍没有音频样本 —— 引擎最后一行: %1</source>
        <translation>5 segundos tras el inicio y aún sin muestras; última línea del motor: %1</translation>
    </message>
    <message>
        <source>起播 5 秒没有声音 —— **设备从未打开**（引擎日志里没有 OPENED）：多半是独占被拒、格式不支持，或被别的程序占用；看上面的 WASAPI 行；引擎最后一行: %1</source>
        <translation>5 segundos tras el inicio sin sonido: **el dispositivo nunca se abrió** (no hay OPENED en el registro del motor); suele ser acceso exclusivo denegado, formato no admitido u ocupado por otro programa; vea las líneas WASAPI de arriba; última línea del motor: %1</translation>
    </message>
    <message>
        <source>  按顺序查: (1) 上面那行停在哪一步 —— 解码 / 设备 / 独占；(2) 用命令行播同一个文件；(3) 在日志里找 WASAPI / OPENED / 0x8889000A。会话不会自动重建。</source>
        <translation>  Revise por orden: (1) en qué paso quedó la línea de arriba: decodificación / dispositivo / exclusivo; (2) reproduzca el mismo archivo en la línea de órdenes; (3) busque WASAPI / OPENED / 0x8889000A en el registro. La sesión no se rehace sola.</translation>
    </message>
</context>
<context>
    <name>NowPlaying</name>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Elija una pista o importe audio</translation>
    </message>
</context>
<context>
    <name>PlayOrder</name>
    <message>
        <source>随机</source>
        <translation>aleatorio</translation>
    </message>
    <message>
        <source>顺序</source>
        <translation>en orden</translation>
    </message>
    <message>
        <source> · 不循环</source>
        <translation> · sin repetición</translation>
    </message>
    <message>
        <source> · 列表循环</source>
        <translation> · repetir la lista</translation>
    </message>
    <message>
        <source> · 单曲循环</source>
        <translation> · repetir la pista</translation>
    </message>
</context>
<context>
    <name>PlaySpeed</name>
    <message>
        <source>播放速度: %1×%2</source>
        <translation>Velocidad de reproducción: %1×%2</translation>
    </message>
    <message>
        <source> （播放中立即生效）</source>
        <translation> (efecto inmediato, también durante la reproducción)</translation>
    </message>
</context>
<context>
    <name>PlayerGuiWindow</name>
    <message>
        <source>引擎日志: 由引擎放在它自己的默认位置</source>
        <translation>Registro del motor: en la ubicación predeterminada del propio motor</translation>
    </message>
    <message>
        <source>引擎日志（保留，退出时不删）: %1</source>
        <translation>Registro del motor (se conserva, no se borra al salir): %1</translation>
    </message>
    <message>
        <source>引擎日志（本次会话，退出时删除）: %1</source>
        <translation>Registro del motor (esta sesión, se borra al salir): %1</translation>
    </message>
    <message>
        <source>上一个进程内会话 2 秒内没有收尾 —— 本进程可能仍占着独占设备，下一首可能打不开它</source>
        <translation>La sesión anterior dentro del proceso no terminó en 2 s; este proceso quizá retenga aún el dispositivo exclusivo y la pista siguiente podría no abrirlo</translation>
    </message>
    <message>
        <source>(系统默认)</source>
        <translation>(predeterminado del sistema)</translation>
    </message>
    <message>
        <source>%1  (默认)</source>
        <translation>%1  (predeterminado)</translation>
    </message>
    <message>
        <source>设备列表 (-list): %1</source>
        <translation>Lista de dispositivos (-list): %1</translation>
    </message>
    <message>
        <source>%1  (未连接 —— 请插上后点“刷新设备”)</source>
        <translation>%1  (no conectado: enchúfelo y pulse «Actualizar dispositivos»)</translation>
    </message>
    <message>
        <source>正在播放… %1/%2</source>
        <translation>Reproduciendo… %1/%2</translation>
    </message>
    <message>
        <source>播放列表是空的</source>
        <translation>La lista de reproducción está vacía</translation>
    </message>
    <message>
        <source>已经是第一首</source>
        <translation>Ya es la primera pista</translation>
    </message>
    <message>
        <source>已经是最后一首</source>
        <translation>Ya es la última pista</translation>
    </message>
    <message>
        <source>第 %1/%2 首</source>
        <translation>Pista %1/%2</translation>
    </message>
    <message>
        <source>移动失败: 行号越界 (from=%1 to=%2, 列表共 %3 项)</source>
        <translation>No se pudo mover: fila fuera de rango (from=%1 to=%2, la lista tiene %3 elementos)</translation>
    </message>
    <message>
        <source>播放顺序已改: 第 %1/%2 项</source>
        <translation>Orden cambiado: elemento %1/%2</translation>
    </message>
    <message>
        <source>自动换曲: 曲尾时列表/顺序变了，按文件对回第 %1/%2 首</source>
        <translation>Cambio automático: la lista o el orden cambió al final; según el archivo es la pista %1/%2</translation>
    </message>
    <message>
        <source>自动换曲（无缝/交叉淡化）: 第 %1/%2 首: %3</source>
        <translation>Cambio automático (sin pausas/fundido): pista %1/%2: %3</translation>
    </message>
    <message>
        <source>上一个播放会话还没收尾（独占正在拆除）—— 这次不建新会话。请再按一次播放；仍不行就重启播放器。</source>
        <translation>La sesión anterior aún no ha terminado (se está liberando el acceso exclusivo); no se crea otra ahora. Pulse reproducir otra vez; si no, reinicie el reproductor.</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Reproducción terminada</translation>
    </message>
    <message>
        <source>播放列表结束（%1）</source>
        <translation>Fin de la lista de reproducción (%1)</translation>
    </message>
    <message>
        <source>播放列表结束</source>
        <translation>Fin de la lista de reproducción</translation>
    </message>
    <message>
        <source>[耗时] %1 %2 ms</source>
        <translation>[duración] %1 %2 ms</translation>
    </message>
    <message>
        <source>跳过（文件不存在）: %1</source>
        <translation>Omitida (el archivo no existe): %1</translation>
    </message>
    <message>
        <source>错误: 找不到播放引擎 %1 —— 请把它放在本程序同目录、加入 PATH，或用 KELP_PLAYER_BIN 指向它。</source>
        <translation>Error: no se encontró el motor %1; póngalo junto al programa, añádalo al PATH o indíquelo con KELP_PLAYER_BIN.</translation>
    </message>
    <message>
        <source>设备或布局有变 -&gt; 关闭当前会话（释放设备）</source>
        <translation>Cambió el dispositivo o la disposición -&gt; se cierra la sesión actual (se libera el dispositivo)</translation>
    </message>
    <message>
        <source>旧会话 10 秒内没有退出 —— 强制结束它（设备可能要再等一会儿才释放）</source>
        <translation>La sesión antigua no terminó en 10 s: se fuerza su cierre (el dispositivo puede tardar algo más en liberarse)</translation>
    </message>
    <message>
        <source>复用当前会话（换曲只发 load，不重发参数）: %1</source>
        <translation>Se reutiliza la sesión actual (el cambio solo envía load, sin repetir argumentos): %1</translation>
    </message>
    <message>
        <source>[进程内 DLL] 会话参数: %1</source>
        <translation>[DLL en el proceso] argumentos de la sesión: %1</translation>
    </message>
    <message>
        <source>播放命令: %1</source>
        <translation>Orden de reproducción: %1</translation>
    </message>
    <message>
        <source>播放器启动失败（会话 start 返回 %1）⇒ 回到未播放状态</source>
        <translation>No se pudo iniciar el reproductor (start de la sesión devolvió %1) ⇒ vuelve a estar detenido</translation>
    </message>
    <message>
        <source>向运行中的会话补发降噪档: %1（复用会话不会重读命令行参数）</source>
        <translation>Nivel de reducción de ruido reenviado a la sesión en curso: %1 (una sesión reutilizada no relee sus argumentos)</translation>
    </message>
    <message>
        <source>向运行中的会话补发峰值保护: %1</source>
        <translation>Protección de picos reenviada a la sesión en curso: %1</translation>
    </message>
    <message>
        <source>错误: 请先添加音频文件</source>
        <translation>Error: añada primero archivos de audio</translation>
    </message>
    <message>
        <source>旧会话还没退出 ⇒ 先断开它再起播（进程内会话只能等它自己收尾）</source>
        <translation>La sesión antigua sigue abierta ⇒ se desconecta antes de reproducir (una sesión dentro del proceso solo puede terminar por sí misma)</translation>
    </message>
    <message>
        <source>旧会话仍未退出，无法开始新的播放 —— 请等它收尾（或退出重开；自动化/排障可设 KELP_GUI_INPROC=0 走子进程）</source>
        <translation>La sesión antigua sigue sin terminar y no se puede empezar otra; espere (o reinicie; para automatizar o diagnosticar, KELP_GUI_INPROC=0 usa un proceso hijo)</translation>
    </message>
    <message>
        <source>没有正在运行的播放任务</source>
        <translation>No hay ninguna reproducción en curso</translation>
    </message>
    <message>
        <source>正在停止播放器...</source>
        <translation>Deteniendo el reproductor...</translation>
    </message>
    <message>
        <source>停止信号已发送</source>
        <translation>Señal de parada enviada</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Reproducción detenida</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>暂停</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>播放进行中</source>
        <translation>Reproducción en curso</translation>
    </message>
    <message>
        <source>播放尚未结束, 关闭窗口将停止播放。

确定要退出吗?</source>
        <translation>La reproducción no ha terminado; al cerrar la ventana se detendrá.

¿Seguro que desea salir?</translation>
    </message>
    <message>
        <source>导入音频文件</source>
        <translation>Importar archivos de audio</translation>
    </message>
    <message>
        <source>播放列表</source>
        <translation>Lista de reproducción</translation>
    </message>
    <message>
        <source>引擎设置</source>
        <translation>Ajustes del motor</translation>
    </message>
    <message>
        <source>输出设备</source>
        <translation>Dispositivo de salida</translation>
    </message>
    <message>
        <source>播放用的输出设备</source>
        <translation>El dispositivo con el que se reproduce</translation>
    </message>
    <message>
        <source>刷新设备</source>
        <translation>Actualizar dispositivos</translation>
    </message>
    <message>
        <source>从 KelpPlayer -list 重新读取设备列表</source>
        <translation>Volver a leer la lista de dispositivos de KelpPlayer -list</translation>
    </message>
    <message>
        <source>显示日志面板</source>
        <translation>Mostrar el registro</translation>
    </message>
    <message>
        <source>程序做了什么决定、为什么</source>
        <translation>Qué decidió el programa y por qué</translation>
    </message>
    <message>
        <source>收起日志面板</source>
        <translation>Ocultar el registro</translation>
    </message>
    <message>
        <source>=== KelpPlayer — DSD 音频播放器 ===</source>
        <translation>=== KelpPlayer: reproductor de audio DSD ===</translation>
    </message>
    <message>
        <source>格式: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</source>
        <translation>Formatos: DSF / DFF / WSD / SACD ISO / DTS / WAV / AIFF / FLAC / ALAC / TTA / WavPack / APE / CUE</translation>
    </message>
    <message>
        <source>模式: standard / differential / btl / crossover / pairs</source>
        <translation>Modos: standard / differential / btl / crossover / pairs</translation>
    </message>
    <message>
        <source>参数恢复: 找不到匹配项 %1 (保持默认)</source>
        <translation>Restauración de ajustes: ningún elemento coincide con %1 (se mantiene el predeterminado)</translation>
    </message>
    <message>
        <source>正在分析 %1 …</source>
        <translation>Analizando %1 …</translation>
    </message>
    <message>
        <source>这条链上没有 PCM（DSD 直通）——没有波形</source>
        <translation>No hay PCM en esta cadena (DSD directo) — no hay forma de onda</translation>
    </message>
    <message>
        <source>此路径没有频谱：DSD 直接输出不含 PCM</source>
        <translation>No hay espectro en esta ruta: el DSD directo no contiene PCM</translation>
    </message>
    <message>
        <source>信号链报告：没有播放会话，只显示上一次的报告。</source>
        <translation>Informe de la cadena de señal: no hay sesión de reproducción, solo se muestra el último informe.</translation>
    </message>
    <message>
        <source>保存信号链报告</source>
        <translation>Guardar el informe de la cadena de señal</translation>
    </message>
    <message>
        <source>信号链报告已保存：%1</source>
        <translation>Informe de la cadena de señal guardado: %1</translation>
    </message>
    <message>
        <source>保存信号链报告失败：%1</source>
        <translation>No se pudo guardar el informe de la cadena de señal: %1</translation>
    </message>
    <message>
        <source>位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）</source>
        <translation>Autocomprobación bit-perfect: no hay sesión de reproducción — inicie antes la reproducción (sin flujo no hay nada que juzgar)</translation>
    </message>
    <message>
        <source>位完美自检：已请引擎逐项检查</source>
        <translation>Autocomprobación bit-perfect: se ha pedido al motor una comprobación punto por punto</translation>
    </message>
    <message>
        <source>位完美自检的结论：%1</source>
        <translation>Veredicto de la autocomprobación bit-perfect: %1</translation>
    </message>
    <message>
        <source>已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检</source>
        <translation>Valores puros restablecidos (todos los efectos desactivados / 1.0x / sin fundido cruzado / volumen 100 / disposición y tema iniciales) y autocomprobación bit-perfect iniciada</translation>
    </message>
    <message>
        <source>播放顺序: %1</source>
        <translation>Orden de reproducción: %1</translation>
    </message>
    <message>
        <source>A/B 循环: 还没有播放任何曲目，无处可标</source>
        <translation>Bucle A/B: no se reproduce ninguna pista, así que no hay nada que marcar</translation>
    </message>
    <message>
        <source>跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)</source>
        <translation>Archivos de audio omitidos, porque este reproductor no tiene decodificador para ellos (MP3/AAC/OGG): %1</translation>
    </message>
    <message>
        <source>跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开</source>
        <translation>Archivos omitidos, porque su nombre no es UTF-8 válido y no se pueden abrir: %1</translation>
    </message>
    <message>
        <source>已添加 %1 首 (列表共 %2 首)</source>
        <translation>Pistas añadidas: %1 (la lista tiene %2)</translation>
    </message>
    <message>
        <source>批量添加耗时 %1 ms (%2 首, 只排版一次)</source>
        <translation>Añadirlas en bloque tardó %1 ms (%2 pistas, un solo cálculo de disposición)</translation>
    </message>
    <message>
        <source>没有可以添加的音频文件</source>
        <translation>No hay archivos de audio que añadir</translation>
    </message>
    <message>
        <source>音频文件 (%1)</source>
        <translation>Archivos de audio (%1)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>添加文件夹</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>正在播放的曲目已从列表移除 (声音继续, 但它不在列表里了)</source>
        <translation>La pista que suena se ha quitado de la lista (el sonido sigue, pero ya no está en ella)</translation>
    </message>
    <message>
        <source>已移除 %1 首 (列表共 %2 首)</source>
        <translation>Pistas quitadas: %1 (la lista tiene %2)</translation>
    </message>
    <message>
        <source>播放列表已清空</source>
        <translation>Lista de reproducción vaciada</translation>
    </message>
    <message>
        <source>这次改动太大, 记不下来 ⇒ 不能撤销</source>
        <translation>Este cambio es demasiado grande para guardarlo, así que no se puede deshacer</translation>
    </message>
    <message>
        <source>没有可以撤销的改动</source>
        <translation>No hay nada que deshacer</translation>
    </message>
    <message>
        <source>撤销记录和播放列表对不上 ⇒ 不撤销, 记录已清空</source>
        <translation>El historial de deshacer no concuerda con la lista de reproducción; no se deshizo nada y el historial se vació</translation>
    </message>
    <message>
        <source>没有可以重做的改动</source>
        <translation>No hay nada que rehacer</translation>
    </message>
    <message>
        <source>重做记录和播放列表对不上 ⇒ 不重做, 记录已清空</source>
        <translation>El historial de rehacer no concuerda con la lista de reproducción; no se rehízo nada y el historial se vació</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>在文件管理器中显示</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>移到最前</source>
        <translation>Mover al principio</translation>
    </message>
    <message>
        <source>移到最后</source>
        <translation>Mover al final</translation>
    </message>
    <message>
        <source>属性</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>添加文件夹…</source>
        <translation>Añadir carpeta…</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>没有文件管理器应答 ⇒ 改为打开文件夹: %1</source>
        <translation>Ningún gestor de archivos respondió, así que se abre la carpeta: %1</translation>
    </message>
    <message>
        <source>打不开文件夹: %1</source>
        <translation>No se puede abrir la carpeta: %1</translation>
    </message>
    <message>
        <source>曲目属性</source>
        <translation>Propiedades de la pista</translation>
    </message>
    <message>
        <source>播放列表已恢复: %1 首</source>
        <translation>Lista de reproducción restaurada, pistas: %1</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首 — %2</source>
        <translation>Última reproducción: pista %1 — %2</translation>
    </message>
    <message>
        <source>上次播放: 第 %1 首</source>
        <translation>Última reproducción: pista %1</translation>
    </message>
    <message>
        <source>恢复播放列表时跳过 %1 首 (文件已不存在)</source>
        <translation>Pistas omitidas al restaurar la lista de reproducción (el archivo ya no existe): %1</translation>
    </message>
    <message>
        <source>离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）</source>
        <translation>El modo sin conexión está activado, acción rechazada: %1 (desactive ese modo en los ajustes)</translation>
    </message>
    <message>
        <source>手机遥控(监听端口)</source>
        <translation>mando desde el teléfono (puerto a la escucha)</translation>
    </message>
    <message>
        <source>手机遥控：已关闭（端口不再监听）</source>
        <translation>Mando desde el teléfono: desactivado (el puerto ya no está a la escucha)</translation>
    </message>
    <message>
        <source>手机遥控：拒绝了一个令牌不对的请求（%1）</source>
        <translation>Mando desde el teléfono: se rechazó una petición sin el token correcto (%1)</translation>
    </message>
    <message>
        <source>手机遥控：无法监听端口 %1（%2）</source>
        <translation>Mando desde el teléfono: no se puede escuchar en el puerto %1 (%2)</translation>
    </message>
    <message>
        <source>手机遥控：已打开，端口 %1，令牌 %2</source>
        <translation>Mando desde el teléfono: activado, puerto %1, token %2</translation>
    </message>
    <message>
        <source>手机遥控地址：%1</source>
        <translation>Dirección del mando desde el teléfono: %1</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 超出范围, 已夹到 %2 px</source>
        <translation>Disposición: el ancho lateral %1 está fuera de rango y se ha ajustado a %2 px</translation>
    </message>
    <message>
        <source>布局: 侧栏宽度 %1 px</source>
        <translation>Disposición: ancho lateral %1 px</translation>
    </message>
    <message>
        <source>布局已重置(窗口大小/位置/侧栏宽度)</source>
        <translation>Disposición restablecida (tamaño y posición de la ventana, ancho lateral)</translation>
    </message>
    <message>
        <source>窗口位置: 存下的记录读不出来, 用默认大小</source>
        <translation>Posición de la ventana: no se puede leer el dato guardado, se usa el tamaño predeterminado</translation>
    </message>
    <message>
        <source>窗口位置: 原来的屏幕不在了, 移到主屏幕中间</source>
        <translation>Posición de la ventana: su pantalla ya no está, así que se ha movido al centro de la pantalla principal</translation>
    </message>
    <message>
        <source>曲库里找不到正在播放的这一首</source>
        <translation>La pista que suena no está en la lista de la biblioteca</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Ayuda</translation>
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
        <translation>## Reproducción

Arrastre archivos o carpetas a la ventana y haga doble clic en una fila para reproducirla. No se puede saltar durante la reproducción: a una posición solo se llega al empezar una pista.

## Teclado

- **Espacio** reproducir / pausa
- **Ctrl+→** pista siguiente, **Ctrl+←** pista anterior
- **Ctrl+↑ / Ctrl+↓** volumen
- **Ctrl+Espacio** detener, **Ctrl+O** importar archivos, **F11** maximizar / restaurar
- **Ctrl+,** ajustes
- En la lista: **Intro** reproduce, **Supr** quita, **Ctrl+Z** deshace, **Ctrl+Mayús+Z** rehace

## Bit-perfect

La columna derecha dice por dónde pasan las muestras. Solo dice “entrega verificada” cuando se ha leído de vuelta lo que recibió el dispositivo. La “Autocomprobación bit-perfect” examina cada etapa.
</translation>
    </message>
    <message>
        <source>日志文件: %1</source>
        <translation>Archivo de registro: %1</translation>
    </message>
    <message>
        <source>设置文件: %1</source>
        <translation>Archivo de ajustes: %1</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>正在等待波形</source>
        <translation>Esperando la forma de onda</translation>
    </message>
    <message>
        <source>示波器已关闭，没有波形</source>
        <translation>El osciloscopio está desactivado: no hay forma de onda</translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Autocomprobación bit-perfect</translation>
    </message>
    <message>
        <source>逐项检查现在的播放有没有改动样本</source>
        <translation>Comprueba punto por punto si la reproducción actual altera las muestras</translation>
    </message>
    <message>
        <source>信号链报告…</source>
        <translation>Informe de la cadena de señal…</translation>
    </message>
    <message>
        <source>显示引擎自己对信号链的报告，可以保存</source>
        <translation>Muestra el informe del propio motor sobre la cadena de señal; se puede guardar</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Temporizador de apagado</translation>
    </message>
    <message>
        <source>手机遥控</source>
        <translation>Mando desde el teléfono</translation>
    </message>
    <message>
        <source>日志面板已清空；日志文件保留</source>
        <translation>El panel del registro se ha vaciado; el archivo de registro se conserva</translation>
    </message>
    <message>
        <source>浅色</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>主题: %1</source>
        <translation>Tema: %1</translation>
    </message>
    <message>
        <source>跟随系统（%1）</source>
        <translation>Como el sistema (%1)</translation>
    </message>
    <message>
        <source>封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色</source>
        <translation>La carátula no tiene un color dominante utilizable (negro/gris/blanco puros) ⇒ el color de acento sigue siendo el que usted eligió</translation>
    </message>
    <message>
        <source>强调色跟随封面: %1</source>
        <translation>Color de acento según la carátula: %1</translation>
    </message>
    <message>
        <source>选择曲目或导入音频</source>
        <translation>Elija una pista o importe audio</translation>
    </message>
    <message>
        <source>已缩到系统托盘, 播放继续</source>
        <translation>Reducido a la bandeja, la reproducción continúa</translation>
    </message>
    <message>
        <source>音频输出</source>
        <translation>SALIDA DE AUDIO</translation>
    </message>
    <message>
        <source>频谱和示波器的选择已保存，从下一次播放会话起生效</source>
        <translation>La elección de espectro y osciloscopio está guardada y vale desde la próxima sesión</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>列表在列出分轨时被清空 ⇒ 不再加入: %1</source>
        <translation>La lista se vació mientras se enumeraban las pistas ⇒ no se añaden: %1</translation>
    </message>
    <message>
        <source>上一首恰好在换曲时放完 ⇒ 不算作新选这一首的结束</source>
        <translation>La pista anterior terminó justo al elegirse otra ⇒ no es el final de la elegida</translation>
    </message>
    <message>
        <source>跳过（路径里有换行，控制行装不下它）: %1</source>
        <translation>Se omite (su ruta contiene un salto de línea, que ninguna línea de control puede llevar): %1</translation>
    </message>
</context>
<context>
    <name>PlaylistChange</name>
    <message>
        <source>已撤销添加的 %1 首 (列表共 %2 首)</source>
        <translation>Adición deshecha, pistas: %1 (la lista tiene %2)</translation>
    </message>
    <message>
        <source>已恢复移除的 %1 首 (列表共 %2 首)</source>
        <translation>Pistas quitadas que vuelven: %1 (la lista tiene %2)</translation>
    </message>
    <message>
        <source>已恢复原来的播放顺序</source>
        <translation>Vuelve el orden de reproducción anterior</translation>
    </message>
    <message>
        <source>已重新添加 %1 首 (列表共 %2 首)</source>
        <translation>Pistas añadidas de nuevo: %1 (la lista tiene %2)</translation>
    </message>
    <message>
        <source>已重新移除 %1 首 (列表共 %2 首)</source>
        <translation>Pistas quitadas de nuevo: %1 (la lista tiene %2)</translation>
    </message>
    <message>
        <source>已重新调整播放顺序</source>
        <translation>El orden de reproducción ha vuelto a cambiarse</translation>
    </message>
</context>
<context>
    <name>Preload</name>
    <message>
        <source>曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5</source>
        <translation>Control de fin de pista: quedan %1 s, ventana de precarga %2 s (fundido %3 / sin pausas %4), siguiente=%5</translation>
    </message>
    <message>
        <source>交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)</source>
        <translation>Fundido cruzado: a %1 s del final, se carga antes la siguiente (%2)</translation>
    </message>
    <message>
        <source>无缝: 曲尾前 %1 s, 预装下一首 (%2)</source>
        <translation>Sin pausas: a %1 s del final, se precarga la siguiente (%2)</translation>
    </message>
    <message>
        <source>不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载</source>
        <translation>La pista siguiente no se precarga (%1): solo por la ruta el motor la tomaría por otra ⇒ se cargará por su número al terminar esta</translation>
    </message>
</context>
<context>
    <name>ProgressDial</name>
    <message>
        <source>播放进度</source>
        <translation>Progreso de la reproducción</translation>
    </message>
    <message>
        <source>只显示进度：播放中不能跳转</source>
        <translation>Solo muestra el progreso: no se puede saltar durante la reproducción</translation>
    </message>
</context>
<context>
    <name>ProgressDisplay</name>
    <message>
        <source>位置按音源时间轴显示；当前以 %1× 播放。</source>
        <translation>La posición sigue el tiempo de la fuente; se reproduce a %1×.</translation>
    </message>
    <message>
        <source>位置与总长按音源时间轴显示；以 %1× 播放，全曲实际历时 %2。</source>
        <translation>La posición y la duración siguen el tiempo de la fuente; a %1× la pista entera dura %2.</translation>
    </message>
    <message>
        <source>进度 %1%</source>
        <translation>Progreso %1%</translation>
    </message>
    <message>
        <source>正在扫描（解码）音源… %1%</source>
        <translation>Explorando (decodificando) la fuente… %1%</translation>
    </message>
</context>
<context>
    <name>ProgressRow</name>
    <message>
        <source>位置</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>循环起点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Inicio del bucle: marca la posición actual. Con A y B marcados empieza el bucle; pulse otra vez para borrarlo</translation>
    </message>
    <message>
        <source>循环终点：标在现在的位置；A 和 B 都标好就开始循环，再按一次取消</source>
        <translation>Fin del bucle: marca la posición actual. Con A y B marcados empieza el bucle; pulse otra vez para borrarlo</translation>
    </message>
</context>
<context>
    <name>RemoteControls</name>
    <message>
        <source>手机遥控</source>
        <translation>Mando desde el teléfono</translation>
    </message>
    <message>
        <source>同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口</source>
        <translation>Un teléfono en la misma red Wi-Fi controla la reproducción desde su navegador; mientras está activado, este equipo escucha en un puerto</translation>
    </message>
    <message>
        <source>端口</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>手机遥控的监听端口；在打开开关的那一刻读取</source>
        <translation>Puerto en el que escucha el mando desde el teléfono; se lee en el momento de activar el interruptor</translation>
    </message>
    <message>
        <source>手机遥控端口</source>
        <translation>Puerto del mando desde el teléfono</translation>
    </message>
    <message>
        <source>手机遥控地址</source>
        <translation>Direcciones del mando desde el teléfono</translation>
    </message>
    <message>
        <source>本机没有局域网 IPv4 地址</source>
        <translation>Este equipo no tiene dirección IPv4 en la red local</translation>
    </message>
    <message>
        <source>用手机浏览器打开（手机与电脑在同一 Wi-Fi）：
%1</source>
        <translation>Ábrala en el navegador del teléfono (misma red Wi-Fi que el equipo):
%1</translation>
    </message>
    <message>
        <source>手机遥控：已关闭</source>
        <translation>Mando desde el teléfono: desactivado</translation>
    </message>
</context>
<context>
    <name>ReportDialog</name>
    <message>
        <source>信号链报告</source>
        <translation>Informe de la cadena de señal</translation>
    </message>
    <message>
        <source>再取一次</source>
        <translation>Volver a pedir</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Guardar informe…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>RowProperties</name>
    <message>
        <source>类型: 网络电台</source>
        <translation>Tipo: radio por Internet</translation>
    </message>
    <message>
        <source>类型: CUE 分轨, 第 %1 轨</source>
        <translation>Tipo: pista %1 de una hoja CUE</translation>
    </message>
    <message>
        <source>类型: SACD 镜像, 第 %1 轨</source>
        <translation>Tipo: pista %1 de una imagen SACD</translation>
    </message>
    <message>
        <source>类型: 容器里的第 %1 轨</source>
        <translation>Tipo: pista %1 de un contenedor</translation>
    </message>
    <message>
        <source>类型: 音频文件</source>
        <translation>Tipo: archivo de audio</translation>
    </message>
    <message>
        <source>显示: %1</source>
        <translation>Se muestra como: %1</translation>
    </message>
    <message>
        <source>位置: 第 %1/%2 项</source>
        <translation>Lugar: elemento %1/%2</translation>
    </message>
    <message>
        <source>格式: %1</source>
        <translation>Formato: %1</translation>
    </message>
    <message>
        <source>文件: %1</source>
        <translation>Archivo: %1</translation>
    </message>
    <message>
        <source>CUE 表: %1</source>
        <translation>Hoja CUE: %1</translation>
    </message>
    <message>
        <source>时间: %1 s → %2 s (长 %3 s)</source>
        <translation>Tiempo: %1 s → %2 s (duración %3 s)</translation>
    </message>
</context>
<context>
    <name>ScopeView</name>
    <message>
        <source>示波器</source>
        <translation>Osciloscopio</translation>
    </message>
    <message>
        <source>未播放，没有波形</source>
        <translation>No se reproduce nada: no hay forma de onda</translation>
    </message>
    <message>
        <source>最大振幅: 左 %1%, 右 %2%</source>
        <extracomment>Spoken by a screen reader: the largest sample of each channel in percent of full scale.</extracomment>
        <translation>Amplitud máxima: izquierda %1%, derecha %2%</translation>
    </message>
</context>
<context>
    <name>SegmentMeter</name>
    <message>
        <source>本声道的输出峰值（dBFS）：引擎每秒报告 20 次，分辨率 0.01 dB，下限 −120 dB（再低就显示 −∞ dB）；到 0 dBFS 时红段停留 1.5 秒（可能削波）</source>
        <translation>Pico de salida de este canal (dBFS): el motor lo comunica 20 veces por segundo con resolución de 0,01 dB y un mínimo de −120 dB (por debajo se muestra −∞ dB); a 0 dBFS el rojo permanece 1,5 s (posible recorte)</translation>
    </message>
</context>
<context>
    <name>SelfCheck</name>
    <message>
        <source>源是否无损</source>
        <translation>¿Es una fuente sin pérdidas?</translation>
    </message>
    <message>
        <source>正在等待引擎回答。</source>
        <translation>Esperando la respuesta del motor.</translation>
    </message>
    <message>
        <source>源是无损的</source>
        <translation>La fuente no tiene pérdidas</translation>
    </message>
    <message>
        <source>编码还原出编入的每一个采样，没有丢弃任何东西。</source>
        <translation>La codificación devuelve cada muestra que entró en ella; no se descartó nada.</translation>
    </message>
    <message>
        <source>源不是无损的</source>
        <translation>La fuente tiene pérdidas</translation>
    </message>
    <message>
        <source>文件里已经没有全部的原始采样，之后的任何环节都补不回来。</source>
        <translation>El archivo ya no contiene todas las muestras originales, y ninguna etapa posterior puede recuperarlas.</translation>
    </message>
    <message>
        <source>源是否无损无从得知</source>
        <translation>No se sabe si la fuente tiene pérdidas</translation>
    </message>
    <message>
        <source>引擎没有给出能证明的依据；这不算通过。</source>
        <translation>El motor no aportó nada que lo demuestre; esto no cuenta como superado.</translation>
    </message>
    <message>
        <source>通路有没有改动</source>
        <translation>¿La ruta está intacta?</translation>
    </message>
    <message>
        <source>通路没有改动</source>
        <translation>La ruta está intacta</translation>
    </message>
    <message>
        <source>从文件到设备之间，没有任何环节改动过采样。</source>
        <translation>Entre el archivo y el dispositivo, ninguna etapa alteró una muestra.</translation>
    </message>
    <message>
        <source>通路有改动</source>
        <translation>La ruta está alterada</translation>
    </message>
    <message>
        <source>从文件到设备之间，有环节改动了采样。</source>
        <translation>Entre el archivo y el dispositivo, una etapa altera las muestras.</translation>
    </message>
    <message>
        <source>通路有没有改动无从得知</source>
        <translation>No se sabe si la ruta está intacta</translation>
    </message>
    <message>
        <source>交付是否核实</source>
        <translation>¿La entrega está verificada?</translation>
    </message>
    <message>
        <source>交付已核实</source>
        <translation>La entrega está verificada</translation>
    </message>
    <message>
        <source>设备按要求打开，读回的格式与送出的一致。</source>
        <translation>El dispositivo se abrió como se pidió, y el formato leído de vuelta es igual al enviado.</translation>
    </message>
    <message>
        <source>交付有出入</source>
        <translation>La entrega difiere</translation>
    </message>
    <message>
        <source>到达设备的不是我们送出的，或者途中有别的环节。</source>
        <translation>Lo que llegó al dispositivo no es lo que se envió, o hay otra etapa en el camino.</translation>
    </message>
    <message>
        <source>交付无法核实</source>
        <translation>La entrega no se puede verificar</translation>
    </message>
    <message>
        <source>设备实际以什么格式运行读不回来；这不算通过。</source>
        <translation>No se puede leer de vuelta con qué formato funciona realmente el dispositivo; esto no cuenta como superado.</translation>
    </message>
    <message>
        <source>最先破坏位完美的环节：%1。</source>
        <translation>Primera etapa que rompe el bit-perfect: %1.</translation>
    </message>
    <message>
        <source>最先无法证明的环节：%1。</source>
        <translation>Primera etapa que no se puede demostrar: %1.</translation>
    </message>
</context>
<context>
    <name>SelfCheckDialog</name>
    <message>
        <source>结论：位完美 ✓  </source>
        <translation>Veredicto: bit-perfect ✓  </translation>
    </message>
    <message>
        <source>结论：非位完美 ✗  </source>
        <translation>Veredicto: no bit-perfect ✗  </translation>
    </message>
    <message>
        <source>位完美自检</source>
        <translation>Autocomprobación bit-perfect</translation>
    </message>
    <message>
        <source>引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。</source>
        <translation>El motor comprueba etapa por etapa la cadena que suena: fuente, decodificación, remuestreo, efectos, velocidad, volumen, fundidos, protección de picos, profundidad de bits, mezclador, lo leído de vuelta del dispositivo y vaciados de búfer. Juzga por lo que cada etapa hace realmente ahora, nunca por un ajuste; lo que no se puede demostrar no cuenta como superado.</translation>
    </message>
    <message>
        <source>逐项检查的结果</source>
        <translation>Resultados, punto por punto</translation>
    </message>
    <message>
        <source>保存报告…</source>
        <translation>Guardar informe…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>检查中…</source>
        <translation>Comprobando…</translation>
    </message>
    <message>
        <source>位完美自检 — %1</source>
        <translation>Autocomprobación bit-perfect — %1</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>superado</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>no superado</translation>
    </message>
</context>
<context>
    <name>SetupDialog</name>
    <message>
        <source>设置</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>SleepControls</name>
    <message>
        <source>关闭</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>%1 分钟后</source>
        <translation>Tras %1 minutos</translation>
    </message>
    <message>
        <source>睡眠定时</source>
        <translation>Temporizador de apagado</translation>
    </message>
    <message>
        <source>到时间后用十秒淡出，然后停止</source>
        <translation>Llegada la hora, baja el sonido durante diez segundos y luego detiene la reproducción</translation>
    </message>
</context>
<context>
    <name>SleepTimer</name>
    <message>
        <source>睡眠定时: 关</source>
        <translation>Temporizador de apagado: desactivado</translation>
    </message>
    <message>
        <source>睡眠定时: %1 分钟</source>
        <translation>Temporizador de apagado: %1 min</translation>
    </message>
    <message>
        <source>睡眠定时: 开始淡出(10 秒后停止)</source>
        <translation>Temporizador de apagado: bajando el sonido (se detendrá en 10 segundos)</translation>
    </message>
    <message>
        <source>睡眠定时: 已淡出并停止播放</source>
        <translation>Temporizador de apagado: sonido bajado y reproducción detenida</translation>
    </message>
</context>
<context>
    <name>SourceLabels</name>
    <message>
        <source>音频：%1 · %2 位 · %3 声道 · %4 秒</source>
        <translation>Audio: %1 · %2 bits · %3 canales · %4 s</translation>
    </message>
    <message>
        <source> · DST：是</source>
        <translation> · DST: sí</translation>
    </message>
    <message>
        <source> · DST：否</source>
        <translation> · DST: no</translation>
    </message>
    <message>
        <source>%1 声道</source>
        <translation>%1 can.</translation>
    </message>
</context>
<context>
    <name>SpectrumView</name>
    <message>
        <source>频谱</source>
        <translation>Espectro</translation>
    </message>
    <message>
        <source>最强频段: 左 %1, 右 %2, 共 %3</source>
        <extracomment>Spoken by a screen reader: two numbers of frequency bands, counted from 1, and how many there are.</extracomment>
        <translation>Banda más fuerte: izquierda %1, derecha %2, de %3</translation>
    </message>
</context>
<context>
    <name>StallReport</name>
    <message>
        <source>(未标记)</source>
        <translation>(sin marcar)</translation>
    </message>
    <message>
        <source>[stall] 界面线程卡住了 %1 ms —— 当时正在：%2</source>
        <translation>[stall] El hilo de la interfaz se congeló %1 ms; estaba haciendo: %2</translation>
    </message>
</context>
<context>
    <name>Startup</name>
    <message>
        <source>[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动

再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。
要故意多开请设 KELP_GUI_ALLOW_MULTI=1</source>
        <translation>[gui] Ya hay otro KelpPlayer en marcha; este no se inicia

Un segundo sonaría encima en el mismo dispositivo (se oye como ruido o solapamiento).
Para abrir varios a propósito, defina KELP_GUI_ALLOW_MULTI=1</translation>
    </message>
</context>
<context>
    <name>StartupMetrics</name>
    <message>
        <source>未知</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>启动指标：界面就绪 %1，内存 %2（只列实测值）</source>
        <translation>Medidas de inicio: interfaz lista en %1, memoria %2 (solo valores medidos)</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>打开设置(Setup Menu)</source>
        <translation>Abrir los ajustes (Setup Menu)</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>关闭窗口</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>%1：亮</source>
        <translation>%1: encendido</translation>
    </message>
    <message>
        <source>%1：灭</source>
        <translation>%1: apagado</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restaurar</translation>
    </message>
</context>
<context>
    <name>ToolsMenu</name>
    <message>
        <source>扫描曲库文件夹(增量)</source>
        <translation>Explorar las carpetas de la biblioteca (incremental)</translation>
    </message>
    <message>
        <source>查找重复曲目</source>
        <translation>Buscar duplicados</translation>
    </message>
    <message>
        <source>批量编辑标签</source>
        <translation>Editar etiquetas por lotes</translation>
    </message>
    <message>
        <source>智能播放列表</source>
        <translation>Listas de reproducción inteligentes</translation>
    </message>
    <message>
        <source>年度报告</source>
        <translation>Informe del año</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Análisis de la pista</translation>
    </message>
    <message>
        <source>DSP 顺序</source>
        <translation>Orden DSP</translation>
    </message>
    <message>
        <source>指纹比对</source>
        <translation>Comparar huellas</translation>
    </message>
    <message>
        <source>在线补全标签</source>
        <translation>Completar etiquetas en línea</translation>
    </message>
    <message>
        <source>网络曲库</source>
        <translation>Biblioteca de red</translation>
    </message>
    <message>
        <source>手机同步</source>
        <translation>Sincronizar el teléfono</translation>
    </message>
    <message>
        <source>插件</source>
        <translation>Complementos</translation>
    </message>
    <message>
        <source>电台/网络/接力</source>
        <translation>Emisoras/red/relevo</translation>
    </message>
    <message>
        <source>车载模式</source>
        <translation>Modo coche</translation>
    </message>
    <message>
        <source>网络挂载</source>
        <translation>Montajes de red</translation>
    </message>
    <message>
        <source>校验曲库</source>
        <translation>Verificar la biblioteca</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Vaciar el registro</translation>
    </message>
    <message>
        <source>帮助…</source>
        <translation>Ayuda…</translation>
    </message>
    <message>
        <source>这个功能还没有做好，以后的版本才有</source>
        <translation>Esta función aún no está lista; llegará en una versión posterior</translation>
    </message>
</context>
<context>
    <name>TrackAnalysis</name>
    <message>
        <source>判不出来</source>
        <translation>no se puede determinar</translation>
    </message>
    <message>
        <source>BPM: %1
调性: %2</source>
        <translation>BPM: %1
Tonalidad: %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1, 调性 %2</source>
        <translation>Análisis de la pista: BPM %1, tonalidad %2</translation>
    </message>
    <message>
        <source>曲目分析: BPM %1 (调性判不出来, 不硬给)</source>
        <translation>Análisis de la pista: BPM %1 (la tonalidad no se puede determinar y no se adivina)</translation>
    </message>
    <message>
        <source>曲目分析: 调性 %1 (BPM 判不出来, 不硬给)</source>
        <translation>Análisis de la pista: tonalidad %1 (el BPM no se puede determinar y no se adivina)</translation>
    </message>
    <message>
        <source>曲目分析: BPM 和调性都判不出来, 不硬给</source>
        <translation>Análisis de la pista: no se pueden determinar ni el BPM ni la tonalidad, y no se adivinan</translation>
    </message>
    <message>
        <source>先选一首再分析</source>
        <translation>Elija primero una pista y después analícela</translation>
    </message>
    <message>
        <source>播放中不能分析, 先按停止再来</source>
        <translation>No se puede analizar durante la reproducción; pulse antes Detener</translation>
    </message>
    <message>
        <source>曲目分析</source>
        <translation>Análisis de la pista</translation>
    </message>
    <message>
        <source>分析起不来(引擎库不可用, rc=%1)</source>
        <translation>No se puede iniciar el análisis (biblioteca del motor no disponible, rc=%1)</translation>
    </message>
    <message>
        <source>分析没有结果: %1</source>
        <translation>El análisis no dio resultado: %1</translation>
    </message>
</context>
<context>
    <name>TrackStart</name>
    <message>
        <source>从 %1:%2 继续（上次停在这里）</source>
        <translation>Continúa desde %1:%2 (donde se detuvo la última vez)</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成 —— 强制结束。</source>
        <translation>El reproductor no terminó en %1 s: se fuerza su cierre.</translation>
    </message>
    <message>
        <source>播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）</source>
        <translation>El reproductor no terminó en %1 s; una sesión dentro del proceso no se puede matar (espere; salida: KELP_GUI_INPROC=0)</translation>
    </message>
</context>
<context>
    <name>ValueCards</name>
    <message>
        <source>码率</source>
        <translation>BITRATE</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>MUESTREO</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>CANALES</translation>
    </message>
    <message>
        <source>播放次数</source>
        <translation>ESCUCHAS</translation>
    </message>
</context>
<context>
    <name>WarningCount</name>
    <message>
        <source>信号链有 %1 条警告</source>
        <translation>Avisos en la cadena de señal: %1</translation>
    </message>
</context>
</TS>
