#include "output/engine_controls.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int controlHeight = 30;
constexpr int controlWidth = 168;
constexpr int columnWidth = 300;

struct Choice
{
    const char *text;
    int data;
};

constexpr std::array dsdTargets = {Choice{"DSD64", 2822400},    Choice{"DSD128", 5644800},
                                   Choice{"DSD256", 11289600},  Choice{"DSD512", 22579200},
                                   Choice{"DSD1024", 45158400}, Choice{"DSD2048", 90316800}};
constexpr std::array tapChoices = {2048, 4096, 8192, 16384, 32768};
constexpr std::array layouts = {2, 4, 5, 6, 8};

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
    refreshDependents();
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

QComboBox *EngineControls::addCombo(QGridLayout *grid, const QString &name, const QString &tip)
{
    auto *combo = new QComboBox(this);
    combo->setFixedWidth(controlWidth);
    addRow(grid, name, tip, combo);
    return combo;
}

QComboBox *EngineControls::addCodes(QGridLayout *grid, const QString &name, const QString &tip,
                                    const QStringList &codes)
{
    QComboBox *combo = addCombo(grid, name, tip);
    combo->addItems(codes);
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
        addCodes(grid, tr("输出路径"), tr("独占直达硬件，共享经过系统混音器，auto 先试独占再退到共享。"),
                 {u"auto"_s, u"exclusive"_s, u"shared"_s});
    dop = addCodes(grid, tr("DSD 传输"), tr("auto 由程序判断；force 一律用 DoP；native 要求原生 DSD。"),
                   {u"auto"_s, u"force"_s, u"native"_s});
    mode = addCodes(grid, tr("播放模式"), tr("standard 用一台设备；其他模式每个声道或声道对用一台设备。"),
                    {u"standard"_s, u"differential"_s, u"btl"_s, u"crossover"_s, u"pairs"_s});
    layoutChoice = addCombo(grid, tr("声道数"), tr("多设备模式分配的声道数。"));
    for (const int channels : layouts)
        layoutChoice->addItem(tr("%1 声道").arg(channels), channels);
    rig = addCombo(grid, tr("声道布置"), tr("源的声道怎样分到输出；auto 由程序决定。"));
    rig->addItem(u"auto"_s, QString());
    for (const QString &word : {u"direct"_s, u"bs775"_s, u"all-channel-stereo"_s, u"custom"_s})
        rig->addItem(word, word);
    crossoverHz = addSpin(grid, tr("分频点"), tr("低于这个频率的送到低音设备。"), 20., 20000., 0);
    crossoverHz->setSuffix(u" Hz"_s);
    crossoverHz->setValue(80.);
    crossoverBridged = addCheck(grid, tr("桥接分频"), tr("每一路分频用两台桥接的设备。"));
    for (int channel = 1; channel <= mostChannels; ++channel) {
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
    pcmBits = addCodes(grid, tr("PCM 位深"), tr("DSD 解码成 PCM 时的位深。"),
                       {u"16"_s, u"24"_s, u"32"_s, u"float32"_s});
    pcmBits->setCurrentIndex(1);
    pcmFilter = addCombo(grid, tr("解码滤波器"), tr("DSD 解码成 PCM 的滤波器：越好越费算力。"));
    for (const QString &code : {u"fast"_s, u"standard"_s, u"best"_s})
        pcmFilter->addItem(QString(), code);
    namePcmFilters(-1);
    pcmFilter->setCurrentIndex(1);
    pcmToDsd = addCheck(grid, tr("PCM 转 DSD"), tr("把 PCM 调制成 DSD 再送出：改变样本，不是比特完美。"));
    pcmToDsdTarget = addCombo(grid, tr("目标速率"), tr("调制后的 DSD 速率。"));
    for (const Choice &target : dsdTargets)
        pcmToDsdTarget->addItem(QString::fromLatin1(target.text), target.data);
    pcmToDsdTaps = addCombo(grid, tr("调制滤波器抽头"), tr("升频滤波器的长度；自动由引擎决定。"));
    pcmToDsdTaps->addItem(tr("自动"), 0);
    for (const int taps : tapChoices)
        pcmToDsdTaps->addItem(QString::number(taps), taps);
    extDecoder = new QLineEdit(this);
    extDecoder->setFixedWidth(controlWidth);
    extDecoder->setPlaceholderText(tr("无"));
    extDecoder->setClearButtonEnabled(true);
    addRow(grid, tr("外部解码库"), tr("外部解码库的路径；空着表示不用。"), extDecoder);
}

void EngineControls::buildSignal(QGridLayout *grid)
{
    peakGuard = addCheck(grid, tr("峰值保护"), tr("只在会削波时压低峰值。"));
    resample = addCheck(grid, tr("重采样到设备速率"), tr("改变样本，不是比特完美。"));
    resampleQuality = addCombo(grid, tr("重采样质量"), tr("越好越费算力。"));
    resampleQuality->addItem(tr("快速"), u"fast"_s);
    resampleQuality->addItem(tr("标准"), u"standard"_s);
    resampleQuality->addItem(tr("最佳"), u"best"_s);
    resampleQuality->setCurrentIndex(1);
    replayGain = addCombo(grid, tr("回放增益"), tr("按文件里的 ReplayGain 标签拉平响度。"));
    replayGain->addItem(tr("关闭"), 0);
    replayGain->addItem(tr("按曲目"), 1);
    replayGain->addItem(tr("按专辑"), 2);
    denoiseTier = addCombo(grid, tr("降噪"), tr("去掉录音的底噪；开着就不能直通 DSD。"));
    denoiseTier->addItems({tr("关闭"), tr("轻度"), tr("标准"), tr("强力")});
    keepHarmonics = addCheck(grid, tr("保留谐波"), tr("降噪时保住乐音的谐波。"));
}

void EngineControls::buildPlayback(QGridLayout *grid)
{
    gapless = addCheck(grid, tr("无缝换曲"), tr("曲尾前预装下一首，中间不停顿。"));
    gapless->setChecked(true);
    crossfadeSec = addSpin(grid, tr("交叉淡化"), tr("两首之间重叠的秒数；0 表示不用。"), 0., 12., 1);
    crossfadeSec->setSuffix(u" s"_s);
    speedRatio = addSpin(grid, tr("播放速度"), tr("保持音高；不是 1.00 就不是比特完美。"), 0.5, 3., 2);
    speedRatio->setSingleStep(0.05);
    speedRatio->setValue(1.);
    speedRatio->setSuffix(u" ×"_s);
    streamingRead = addCheck(grid, tr("边读边播"), tr("不先把文件读进内存。"));
}

void EngineControls::watch()
{
    const auto notify = [this] {
        refreshDependents();
        Q_EMIT changed();
    };
    for (QComboBox *combo : findChildren<QComboBox *>()) {
        if (!channelDevices.contains(combo))
            connect(combo, &QComboBox::currentIndexChanged, this, notify);
    }
    for (QCheckBox *check : findChildren<QCheckBox *>())
        connect(check, &QCheckBox::toggled, this, notify);
    for (QDoubleSpinBox *spin : findChildren<QDoubleSpinBox *>())
        connect(spin, &QDoubleSpinBox::valueChanged, this, notify);
    connect(extDecoder, &QLineEdit::editingFinished, this, notify);
    connect(pcmFilter, &QComboBox::activated, this, [this] {
        namePcmFilters(-1);
        Q_EMIT pcmFilterChosen();
    });
}

void EngineControls::namePcmFilters(int markedRow)
{
    const QStringList names = {tr("快速"), tr("标准"), tr("最佳")};
    for (int row = 0; row < pcmFilter->count(); ++row)
        pcmFilter->setItemText(row, row == markedRow ? tr("%1（自动）").arg(names.at(row)) : names.at(row));
}

void EngineControls::showPcmFilter(const QString &name, bool automatic)
{
    const int row = pcmFilter->findData(name);
    if (row < 0)
        return;
    const QSignalBlocker block(pcmFilter);
    pcmFilter->setCurrentIndex(row);
    namePcmFilters(automatic ? row : -1);
}

void EngineControls::refreshDependents()
{
    const bool severalDevices = mode->currentText() != "standard"_L1;
    const bool crossover = mode->currentText() == "crossover"_L1;
    layoutChoice->setEnabled(severalDevices);
    crossoverHz->setEnabled(crossover);
    crossoverBridged->setEnabled(crossover);
    const int needed = channelCount() * (crossover && crossoverBridged->isChecked() ? 2 : 1);
    for (qsizetype i = 0; i < m_channelRows.size(); ++i)
        m_channelRows.at(i)->setVisible(severalDevices && i / 2 < std::min(needed, mostChannels));
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
