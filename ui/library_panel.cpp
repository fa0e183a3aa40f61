#include "ui/library_panel.h"

#include "ui/fitted_button.h"
#include "ui/glyph_combo.h"
#include "ui/glyph_icons.h"
#include "ui/style_sheet.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int captionPixels = 11;
constexpr int searchHeight = 32;
constexpr int chipHeight = 28;
constexpr int comboHeight = 30;
constexpr int gap = 8;
constexpr int buttonGap = 4;

} // namespace

LibraryPanel::LibraryPanel(QWidget *list, QWidget *parent)
    : QFrame(parent)
{
    setObjectName("vesperPanel"_L1);
    setProperty("mirrored", layoutDirection() == Qt::RightToLeft);
    auto *rows = new QVBoxLayout(this);
    rows->setSpacing(gap);
    rows->addLayout(buildHead());
    search = new QLineEdit(this);
    search->setObjectName("vesperSearch"_L1);
    search->setPlaceholderText(tr("搜索标题 / 艺术家"));
    search->setAccessibleName(tr("搜索"));
    search->setFixedHeight(searchHeight);
    search->addAction(glyphIcon(Glyph::Search), QLineEdit::LeadingPosition)
        ->setText(search->accessibleName());
    m_shown = new QLabel(u"0 / 0"_s, search);
    m_shown->setObjectName("vesperShown"_L1);
    m_shown->setFont(figureFont(captionPixels));
    m_shown->setAccessibleName(tr("显示的 / 全部"));
    auto *inside = new QHBoxLayout(search);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addStretch();
    inside->addWidget(m_shown);
    inside->addSpacing(10);
    // The text keeps clear of the count, on whichever side that stands.
    const int kept = m_shown->fontMetrics().horizontalAdvance(u"00000 / 00000"_s);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    search->setTextMargins(mirrored ? kept : 0, 0, mirrored ? 0 : kept, 0);
    rows->addWidget(search);
    rows->addLayout(buildChips());
    rows->addLayout(buildCombos());
    rows->addWidget(list, 1);
    rows->addLayout(buildButtons());
    const QString notYet = tr("搜索和筛选还没有做好，以后的版本才有");
    for (QWidget *control :
         QList<QWidget *>{search, artist, album} + QList<QWidget *>(chips.begin(), chips.end())) {
        control->setEnabled(false);
        control->setToolTip(notYet);
        control->setAccessibleDescription(notYet);
    }
}

QLayout *LibraryPanel::buildHead()
{
    auto *head = new QHBoxLayout;
    auto *caption = new QLabel(tr("曲库 · TITLE"), this);
    caption->setObjectName("vesperPanelTitle"_L1);
    caption->setFont(captionFont(caption->text()));
    m_counter = new QLabel(u"-- / 0"_s, this);
    m_counter->setObjectName("vesperPanelMeta"_L1);
    m_counter->setFont(figureFont(captionPixels));
    m_counter->setAccessibleName(tr("正在播放的 / 全部"));
    head->addWidget(caption);
    head->addStretch();
    head->addWidget(m_counter);
    return head;
}

QLayout *LibraryPanel::buildChips()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    auto *group = new QButtonGroup(this);
    for (const QString &name : {tr("全部"), u"DSD"_s, u"PCM"_s, tr("镜像")}) {
        auto *chip = new QPushButton(name, this);
        chip->setObjectName("vesperChip"_L1);
        chip->setCheckable(true);
        chip->setFixedHeight(chipHeight);
        group->addButton(chip);
        chips.append(chip);
        row->addWidget(chip, 1);
    }
    chips.first()->setChecked(true);
    // Of two neighbours one draws the line between them.
    for (QPushButton *chip : chips)
        chip->setProperty("place", u"middle"_s);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    (mirrored ? chips.last() : chips.first())->setProperty("place", u"first"_s);
    (mirrored ? chips.first() : chips.last())->setProperty("place", u"last"_s);
    return row;
}

QLayout *LibraryPanel::buildCombos()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(gap);
    const auto add = [&](const QString &all, const QString &name) {
        auto *combo = new GlyphCombo(this);
        combo->setObjectName("vesperFilterCombo"_L1);
        combo->addItem(all);
        combo->setAccessibleName(name);
        combo->setFixedHeight(comboHeight);
        combo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        row->addWidget(combo, 1);
        return combo;
    };
    artist = add(tr("全部艺术家"), tr("按艺术家筛选"));
    album = add(tr("全部专辑"), tr("按专辑筛选"));
    return row;
}

QPushButton *LibraryPanel::addButton(const char *objectName, const QString &name, const QString &tip)
{
    auto *button = new QPushButton(name, this);
    button->setObjectName(QLatin1StringView(objectName));
    button->setToolTip(tip);
    return button;
}

QLayout *LibraryPanel::buildButtons()
{
    importFiles = addButton("vesperLoadBtn", tr("导入"), tr("把音频文件加到列表末尾"));
    importFolder =
        addButton("vesperMinor", tr("文件夹"), tr("把一个文件夹里的音频加到列表末尾；不进子文件夹"));
    removeRows = addButton("vesperMinor", tr("移除"), tr("把选中的曲目从列表移除；文件不动"));
    clearList = addButton("vesperMinor", tr("清空"), tr("清空列表；文件不动，可以撤销"));
    auto *row = new QHBoxLayout;
    row->setSpacing(buttonGap);
    for (QPushButton *button : {importFiles, importFolder, removeRows, clearList})
        row->addWidget(button);
    row->addStretch();
    return row;
}

void LibraryPanel::showCounts(int playing, int shown, int all)
{
    const QString place = playing < 0 ? u"--"_s : u"%1"_s.arg(playing + 1, 2, 10, QChar(u'0'));
    m_counter->setText(u"%1 / %2"_s.arg(place).arg(all));
    m_shown->setText(u"%1 / %2"_s.arg(shown).arg(all));
    // An empty list has one thing to offer.
    if (importFiles->property("primary").toBool() != (all == 0)) {
        importFiles->setProperty("primary", all == 0);
        importFiles->style()->unpolish(importFiles);
        importFiles->style()->polish(importFiles);
        // Its words have become bolder, or less so.
        fitRow();
    }
}

void LibraryPanel::applyPlan(const AreaPlan &plan)
{
    setFixedWidth(plan.leftWidth);
    // In a very low body the list matters more than its filters.
    for (QWidget *filter : QList<QWidget *>{artist, album} + QList<QWidget *>(chips.begin(), chips.end()))
        filter->setVisible(plan.showsInstruments);
    layout()->setContentsMargins(plan.padding, plan.padding, plan.padding, plan.padding);
    m_buttonRoom = plan.leftWidth - 2 * plan.padding - 1 - 3 * buttonGap;
    fitRow();
}

void LibraryPanel::fitRow()
{
    if (m_buttonRoom > 0)
        fitButtons({importFiles, importFolder, removeRows, clearList}, m_buttonRoom);
}
