#include "ui/look_controls.h"

#include "engine/command_line.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

constexpr int controlHeight = 30;
constexpr int controlWidth = 168;
constexpr int gap = 12;
constexpr int rowGap = 8;
constexpr int mostTypedWidth = 9999;

void explain(QWidget *control, const QString &tip)
{
    control->setToolTip(tip);
    control->setAccessibleDescription(tip);
    control->setMinimumHeight(controlHeight);
}

} // namespace

LookControls::LookControls(QWidget *parent)
    : QWidget(parent)
    , theme(new QComboBox(this))
    , coverAccent(new QCheckBox(tr("强调色跟随封面"), this))
    , reduceMotion(new QCheckBox(tr("减少动态效果"), this))
    , spectrum(new QCheckBox(tr("频谱"), this))
    , scope(new QCheckBox(tr("示波器"), this))
    , sideWidth(new QSpinBox(this))
    , resetLayout(new QPushButton(tr("重置布局"), this))
    , pureDefaults(new QPushButton(tr("恢复纯净默认"), this))
{
    theme->addItems({tr("深色"), tr("浅色"), tr("跟随系统")});
    theme->setFixedWidth(controlWidth);
    explain(theme, tr("窗口的外观；马上生效"));
    sideWidth->setRange(0, mostTypedWidth);
    sideWidth->setSuffix(u" px"_s);
    sideWidth->setKeyboardTracking(false);
    sideWidth->setFixedWidth(controlWidth);
    explain(sideWidth, tr("右侧栏的宽度，200 到 420 像素；马上生效"));
    explain(coverAccent, tr("有封面的曲目播放时，强调色取自封面；否则用选定的颜色"));
    explain(reduceMotion, tr("仪表直接跳到新值，不做平滑和淡出"));
    explain(spectrum, tr("请引擎送出频谱；播放中也立即生效"));
    explain(scope, tr("请引擎送出波形；播放中也立即生效"));
    explain(resetLayout, tr("窗口大小、位置和侧栏宽度回到默认值"));
    explain(pureDefaults, tr("关掉一切会改动样本的功能，再做一次位完美自检"));

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(rowGap);
    grid->setColumnStretch(3, 1);
    const auto named = [&](int row, const QString &name, QWidget *control) {
        auto *label = new QLabel(name, this);
        label->setObjectName("vesperSetName"_L1);
        label->setBuddy(control);
        label->setToolTip(control->toolTip());
        control->setAccessibleName(name);
        grid->addWidget(label, row, 0);
        grid->addWidget(control, row, 1);
    };
    named(0, tr("主题"), theme);
    named(1, tr("侧栏宽度"), sideWidth);
    grid->addWidget(resetLayout, 1, 2);
    grid->addWidget(coverAccent, 2, 0, 1, 4);
    grid->addWidget(reduceMotion, 3, 0, 1, 4);
    auto *views = new QHBoxLayout;
    views->setSpacing(2 * gap);
    views->addWidget(spectrum);
    views->addWidget(scope);
    views->addStretch();
    grid->addLayout(views, 4, 0, 1, 4);
    grid->addWidget(pureDefaults, 5, 0, 1, 2, Qt::AlignLeading);

    connect(theme, &QComboBox::activated, this, &LookControls::changed);
    connect(sideWidth, &QSpinBox::valueChanged, this, &LookControls::changed);
    for (const QCheckBox *check : {coverAccent, reduceMotion, spectrum, scope})
        connect(check, &QCheckBox::toggled, this, &LookControls::changed);
    connect(resetLayout, &QPushButton::clicked, this, &LookControls::resetLayoutAsked);
    connect(pureDefaults, &QPushButton::clicked, this, &LookControls::pureDefaultsAsked);
}

void LookControls::showChoices(const LookChoices &choices)
{
    const QSignalBlocker quiet(this);
    theme->setCurrentIndex(choices.theme);
    sideWidth->setValue(choices.sideWidth);
    coverAccent->setChecked(choices.coverAccent);
    reduceMotion->setChecked(choices.reduceMotion);
    spectrum->setChecked(choices.vizMode & vizBit::spectrum);
    scope->setChecked(choices.vizMode & vizBit::scope);
}

LookChoices LookControls::choices() const
{
    LookChoices choices;
    choices.theme = theme->currentIndex();
    choices.coverAccent = coverAccent->isChecked();
    choices.reduceMotion = reduceMotion->isChecked();
    choices.sideWidth = sideWidth->value();
    choices.vizMode =
        (spectrum->isChecked() ? vizBit::spectrum : 0) | (scope->isChecked() ? vizBit::scope : 0);
    return choices;
}
