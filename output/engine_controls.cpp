#include "output/engine_controls.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int controlHeight = 30;
constexpr int controlWidth = 168;
constexpr int columnWidth = 300;

/// Selects the row of a code; a code without a row changes nothing.
void select(QComboBox *combo, const QString &code)
{
    if (const int row = combo->findData(code); row >= 0)
        combo->setCurrentIndex(row);
}

QString codeOf(const QComboBox *combo)
{
    return combo->currentData().toString();
}

} // namespace

EngineControls::EngineControls(QWidget *parent)
    : QWidget(parent)
    , m_columns(new QBoxLayout(QBoxLayout::LeftToRight, this))
{
    setObjectName("vesperEngineControls"_L1);
    m_columns->setContentsMargins(0, 0, 0, 0);
    m_columns->setSpacing(12);
    for (const bool first : {true, false}) {
        auto *column = new QVBoxLayout;
        column->setSpacing(12);
        if (first) {
            column->addWidget(card(tr("输出"), &EngineControls::buildDevices));
            column->addWidget(card(tr("播放"), &EngineControls::buildPlayback));
        } else {
            column->addWidget(card(tr("解码"), &EngineControls::buildDecoding));
            column->addWidget(card(tr("信号"), &EngineControls::buildSignal));
        }
        column->addStretch();
        m_columns->addLayout(column, 1);
    }
    showChoices({});
    watch();
}

QWidget *EngineControls::card(const QString &title, void (EngineControls::*build)(QGridLayout *))
{
    auto *frame = new QFrame(this);
    frame->setObjectName("vesperCard"_L1);
    auto *box = new QVBoxLayout(frame);
    box->setContentsMargins(12, 12, 12, 12);
    box->setSpacing(8);
    auto *caption = new QLabel(title, frame);
    caption->setObjectName("vesperCardKey"_L1);
    box->addWidget(caption);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(0, 1);
    box->addLayout(grid);
    (this->*build)(grid);
    return frame;
}

void EngineControls::addRow(QGridLayout *grid, const QString &name, const QString &tip, QWidget *control)
{
    const int row = grid->rowCount();
    auto *label = new QLabel(name, this);
    label->setObjectName("vesperSetName"_L1);
    label->setBuddy(control);
    label->setToolTip(tip);
    control->setToolTip(tip);
    control->setAccessibleName(name);
    control->setAccessibleDescription(tip);
    control->setFixedHeight(controlHeight);
    grid->addWidget(label, row, 0);
    grid->addWidget(control, row, 1, Qt::AlignVCenter | Qt::AlignTrailing);
}

QComboBox *EngineControls::addCombo(QGridLayout *grid, const QString &name, const QString &tip,
                                    const QList<ChoiceItem> &items)
{
    auto *combo = new QComboBox(this);
    combo->setFixedWidth(controlWidth);
    for (const ChoiceItem &item : items)
        combo->addItem(item.text, item.code);
    addRow(grid, name, tip, combo);
    return combo;
}

QCheckBox *EngineControls::addCheck(QGridLayout *grid, const QString &name, const QString &tip)
{
    auto *check = new QCheckBox(name, this);
    check->setToolTip(tip);
    check->setAccessibleDescription(tip);
    check->setMinimumHeight(controlHeight - 8);
    grid->addWidget(check, grid->rowCount(), 0, 1, 2);
    return check;
}

QDoubleSpinBox *EngineControls::addSpin(QGridLayout *grid, const QString &name, const QString &tip,
                                        double low, double high, int decimals)
{
    auto *spin = new QDoubleSpinBox(this);
    spin->setRange(low, high);
    spin->setDecimals(decimals);
    spin->setFixedWidth(controlWidth);
    addRow(grid, name, tip, spin);
    return spin;
}

void EngineControls::buildDevices(QGridLayout *grid)
{
    outputPath =
        addCombo(grid, tr("输出路径"), tr("独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。"),
                 engineItems::outputPaths());
    dop = addCombo(grid, tr("DSD 传输"), tr("auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。"),
                   engineItems::dops());
    mode = addCombo(grid, tr("播放模式"), tr("standard 用一台设备；其他模式每个声道或声道对用一台设备。"),
                    engineItems::modes());
    layoutChoice = addCombo(grid, tr("声道数"), tr("多设备模式分配的声道数。"), engineItems::layouts());
    rig = addCombo(grid, tr("声道布置"), tr("源的声道怎样分到输出；auto 由程序决定。"), engineItems::rigs());
    crossoverHz = addSpin(grid, tr("分频点"), tr("低于这个频率的送到低音设备。"), 20., 20000., 0);
    crossoverHz->setSuffix(u" Hz"_s);
    crossoverBridged = addCheck(grid, tr("桥接分频"), tr("每一路分频用两台桥接的设备。"));
    for (int channel = 1; channel <= EngineChoices::mostChannels; ++channel) {
        const QString name = tr("设备 %1").arg(channel);
        QComboBox *combo = addCombo(grid, name, tr("这个声道的输出设备。"));
        channelDevices.append(combo);
        m_channelRows.append(grid->itemAtPosition(grid->rowCount() - 1, 0)->widget());
        m_channelRows.append(combo);
    }
}

void EngineControls::buildDecoding(QGridLayout *grid)
{
    forcedPcm = addCheck(grid, tr("DSD 一律解码为 PCM"), tr("不再直通 DSD：设备只接 PCM 或要用效果时使用。"));
    pcmBits = addCombo(grid, tr("PCM 位深"), tr("DSD 解码成 PCM 时的位深。"), engineItems::pcmBits());
    pcmFilter = addCombo(grid, tr("解码滤波器"), tr("DSD 解码成 PCM 的滤波器：越好越费算力。"),
                         engineItems::pcmFilters());
    pcmToDsd = addCheck(grid, tr("PCM 转 DSD"), tr("把 PCM 调制成 DSD 再送出：改变样本，不是位完美。"));
    pcmToDsdTarget = addCombo(grid, tr("目标速率"), tr("调制后的 DSD 速率。"), engineItems::dsdTargets());
    pcmToDsdTaps = addCombo(grid, tr("调制滤波器抽头"), tr("升频滤波器的长度；自动由引擎决定。"),
                            engineItems::dsdTaps());
    extDecoder = new QLineEdit(this);
    extDecoder->setFixedWidth(controlWidth);
    extDecoder->setPlaceholderText(tr("无"));
    extDecoder->setClearButtonEnabled(true);
    addRow(grid, tr("外部解码库"), tr("外部解码库的路径；空着表示不用。"), extDecoder);
}

void EngineControls::buildSignal(QGridLayout *grid)
{
    peakGuard = addCheck(grid, tr("峰值保护"), tr("只在会削波时压低峰值。"));
    resample = addCheck(grid, tr("重采样到设备速率"), tr("改变样本，不是位完美。"));
    resampleQuality = addCombo(grid, tr("重采样质量"), tr("越好越费算力。"), engineItems::qualities());
    replayGain = addCombo(grid, tr("回放增益"), tr("按文件里的 ReplayGain 标签拉平响度。"),
                          engineItems::replayGains());
    denoiseTier = addCombo(grid, tr("降噪"), tr("去掉录音的底噪；开着就不能直通 DSD。"));
    denoiseTier->addItems({tr("关闭"), tr("轻度"), tr("标准"), tr("强力")});
    keepHarmonics = addCheck(grid, tr("保留谐波"), tr("降噪时保住乐音的谐波。"));
}

void EngineControls::buildPlayback(QGridLayout *grid)
{
    gapless = addCheck(grid, tr("无缝换曲"), tr("曲尾前预装下一首，中间不停顿。"));
    crossfadeSec = addSpin(grid, tr("交叉淡化"), tr("两首之间重叠的秒数；0 表示不用。"), 0., 12., 1);
    crossfadeSec->setSuffix(u" s"_s);
    speedRatio = addSpin(grid, tr("播放速度"), tr("保持音高；不是 1.00 就不是位完美。"), 0.5, 3., 2);
    speedRatio->setSingleStep(0.05);
    speedRatio->setSuffix(u" ×"_s);
    streamingRead = addCheck(grid, tr("边读边播"), tr("不先把文件读进内存。"));
}

void EngineControls::watch()
{
    const auto notify = [this] {
        refreshDependents();
        Q_EMIT changed();
    };
    // Before the others, so that the record is whole when they tell of the change.
    connect(pcmFilter, &QComboBox::activated, this, [this, notify] {
        m_pcmFilterExplicit = true;
        m_pcmFilterAutomatic = false;
        namePcmFilters(false);
        notify();
    });
    for (QComboBox *combo : findChildren<QComboBox *>())
        connect(combo, &QComboBox::currentIndexChanged, this, notify);
    for (QCheckBox *check : findChildren<QCheckBox *>())
        connect(check, &QCheckBox::toggled, this, notify);
    for (QDoubleSpinBox *spin : findChildren<QDoubleSpinBox *>())
        connect(spin, &QDoubleSpinBox::valueChanged, this, notify);
    connect(extDecoder, &QLineEdit::editingFinished, this, notify);
}

void EngineControls::namePcmFilters(bool automatic)
{
    const QList<ChoiceItem> items = engineItems::pcmFilters();
    for (int row = 0; row < pcmFilter->count(); ++row) {
        const QString &name = items.at(row).text;
        const bool marked = automatic && row == pcmFilter->currentIndex();
        pcmFilter->setItemText(row, marked ? tr("%1（自动）").arg(name) : name);
    }
}

void EngineControls::showChoices(const EngineChoices &choices)
{
    // Only to the outside: the controls still follow each other.
    const QSignalBlocker quiet(this);
    select(mode, choices.mode);
    select(layoutChoice, QString::number(choices.channelCount));
    for (qsizetype i = 0; i < std::min(channelDevices.size(), choices.channelDevices.size()); ++i)
        select(channelDevices.at(i), choices.channelDevices.at(i));
    crossoverHz->setValue(choices.crossoverHz);
    crossoverBridged->setChecked(choices.crossoverBridged);
    select(rig, choices.rig);
    select(dop, choices.dop);
    select(outputPath, choices.outputPath);
    peakGuard->setChecked(choices.peakGuard);
    denoiseTier->setCurrentIndex(choices.denoiseTier);
    keepHarmonics->setChecked(choices.keepHarmonics);
    resample->setChecked(choices.resample);
    select(resampleQuality, choices.resampleQuality);
    select(replayGain, QString::number(choices.replayGainMode));
    streamingRead->setChecked(choices.streamingRead);
    crossfadeSec->setValue(choices.crossfadeSec);
    gapless->setChecked(choices.gapless);
    speedRatio->setValue(choices.speedRatio);
    forcedPcm->setChecked(choices.forcedPcm);
    select(pcmBits, choices.pcmBits);
    select(pcmFilter, choices.pcmFilter);
    m_pcmFilterAutomatic = choices.pcmFilterAutomatic;
    m_pcmFilterExplicit = choices.pcmFilterExplicit;
    namePcmFilters(m_pcmFilterAutomatic);
    pcmToDsd->setChecked(choices.pcmToDsd);
    select(pcmToDsdTarget, QString::number(choices.pcmToDsdTargetHz));
    select(pcmToDsdTaps, QString::number(choices.pcmToDsdTaps));
    extDecoder->setText(choices.extDecoder);
    refreshDependents();
}

EngineChoices EngineControls::choices() const
{
    EngineChoices choices;
    choices.mode = codeOf(mode);
    choices.channelCount = codeOf(layoutChoice).toInt();
    for (const QComboBox *combo : channelDevices)
        choices.channelDevices.append(codeOf(combo));
    choices.crossoverHz = crossoverHz->value();
    choices.crossoverBridged = crossoverBridged->isChecked();
    choices.rig = codeOf(rig);
    choices.dop = codeOf(dop);
    choices.outputPath = codeOf(outputPath);
    choices.peakGuard = peakGuard->isChecked();
    choices.denoiseTier = denoiseTier->currentIndex();
    choices.keepHarmonics = keepHarmonics->isChecked();
    choices.resample = resample->isChecked();
    choices.resampleQuality = codeOf(resampleQuality);
    choices.replayGainMode = codeOf(replayGain).toInt();
    choices.streamingRead = streamingRead->isChecked();
    choices.crossfadeSec = crossfadeSec->value();
    choices.gapless = gapless->isChecked();
    choices.speedRatio = speedRatio->value();
    choices.forcedPcm = forcedPcm->isChecked();
    choices.pcmBits = codeOf(pcmBits);
    choices.pcmFilter = codeOf(pcmFilter);
    choices.pcmFilterAutomatic = m_pcmFilterAutomatic;
    choices.pcmFilterExplicit = m_pcmFilterExplicit;
    choices.pcmToDsd = pcmToDsd->isChecked();
    choices.pcmToDsdTargetHz = codeOf(pcmToDsdTarget).toInt();
    choices.pcmToDsdTaps = codeOf(pcmToDsdTaps).toInt();
    choices.extDecoder = extDecoder->text();
    return choices;
}

void EngineControls::refreshDependents()
{
    const bool severalDevices = mode->currentText() != "standard"_L1;
    const bool crossover = mode->currentText() == "crossover"_L1;
    layoutChoice->setEnabled(severalDevices);
    crossoverHz->setEnabled(crossover);
    crossoverBridged->setEnabled(crossover);
    const int needed = codeOf(layoutChoice).toInt() * (crossover && crossoverBridged->isChecked() ? 2 : 1);
    for (qsizetype i = 0; i < m_channelRows.size(); ++i)
        m_channelRows.at(i)->setVisible(severalDevices &&
                                        i / 2 < std::min(needed, EngineChoices::mostChannels));
    keepHarmonics->setEnabled(denoiseTier->currentIndex() > 0);
    resampleQuality->setEnabled(resample->isChecked());
    pcmToDsdTarget->setEnabled(pcmToDsd->isChecked());
    pcmToDsdTaps->setEnabled(pcmToDsd->isChecked());
}

QSize EngineControls::minimumSizeHint() const
{
    return {columnWidth, QWidget::minimumSizeHint().height()};
}

void EngineControls::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool wide = width() >= 2 * columnWidth;
    m_columns->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}
