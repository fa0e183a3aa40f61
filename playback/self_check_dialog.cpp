#include "playback/self_check_dialog.h"

#include "playback/self_check_marks.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize initialSize(720, 640);
constexpr int plateHeight = 56;
constexpr int leastListHeight = 120;
constexpr int pagePadding = 24;

void setPassed(QWidget *widget, const QVariant &passed)
{
    widget->setProperty("passed", passed);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

QLabel *addLabel(QWidget *parent, QLatin1StringView objectName)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// Lays the plate behind the verdict; a styled item leaves its own background out.
class PlateDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (const QVariant plate = index.data(Qt::BackgroundRole); plate.isValid())
            painter->fillRect(option.rect, plate.value<QBrush>());
        QStyledItemDelegate::paint(painter, option, index);
    }
};

} // namespace

QString verdictRowText(const VerifyVerdict &verdict)
{
    return (verdict.passed ? SelfCheckDialog::tr("结论：位完美 ✓  ")
                           : SelfCheckDialog::tr("结论：非位完美 ✗  ")) +
           verdict.firstSection;
}

QString verifyItemText(const VerifyItem &item)
{
    const QString told = item.explanation.isEmpty() ? item.name : item.name + u" — "_s + item.explanation;
    return (item.passed ? u"✓ "_s : u"✗ "_s) + told;
}

SelfCheckDialog::SelfCheckDialog(QWidget *parent)
    : QDialog(parent)
    , m_plate(new QFrame(this))
    , m_verdict(addLabel(m_plate, "vesperCheckVerdict"_L1))
    , m_about(addLabel(m_plate, "vesperCheckAbout"_L1))
    , m_break(addLabel(this, "vesperCheckBreak"_L1))
    , m_list(new QListWidget(this))
{
    setObjectName("vesperCheckDialog"_L1);
    setWindowTitle(tr("位完美自检"));
    resize(initialSize);
    m_plate->setObjectName("vesperCheckPlate"_L1);
    m_plate->setMinimumHeight(plateHeight);
    auto *plateRow = new QHBoxLayout(m_plate);
    plateRow->setContentsMargins(pagePadding, 8, pagePadding, 8);
    plateRow->setSpacing(12);
    plateRow->addWidget(m_verdict);
    plateRow->addWidget(m_about, 1);
    // The track's name gives way, the verdict does not.
    m_about->setWordWrap(true);
    m_about->setMinimumWidth(0);
    m_about->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_plate);
    for (CheckStatementView *&statement : m_statements) {
        statement = new CheckStatementView(this);
        column->addWidget(statement);
    }
    auto *words = new QVBoxLayout;
    words->setContentsMargins(pagePadding, 12, pagePadding, 8);
    words->setSpacing(4);
    m_break->setWordWrap(true);
    m_break->hide();
    words->addWidget(m_break);
    QLabel *explain = addLabel(this, "vesperCheckExplain"_L1);
    explain->setWordWrap(true);
    explain->setText(
        tr("引擎逐个检查正在播放的这条链路：源、解码、重采样、效果、变速、音量、淡化、峰值保护、位深、"
           "混音器、设备读回和欠载。判断只看各环节此刻的实际状态，不看设置；无法证明的不算通过。"));
    words->addWidget(explain);
    column->addLayout(words);
    m_list->setObjectName("vesperCheckList"_L1);
    m_list->setAccessibleName(tr("逐项检查的结果"));
    m_list->setWordWrap(true);
    m_list->setItemDelegate(new PlateDelegate(m_list));
    m_list->setMinimumHeight(leastListHeight);
    m_list->setSelectionMode(QAbstractItemView::NoSelection);
    column->addWidget(m_list, 1);

    auto *buttons = new QDialogButtonBox(this);
    buttons->setContentsMargins(pagePadding, 12, pagePadding, 12);
    QPushButton *save = buttons->addButton(tr("保存报告…"), QDialogButtonBox::ActionRole);
    save->setAutoDefault(false);
    QPushButton *close = buttons->addButton(tr("关闭"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    close->setFocus();
    connect(save, &QPushButton::clicked, this, &SelfCheckDialog::saveRequested);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
}

void SelfCheckDialog::begin(const QString &about)
{
    m_finished = false;
    m_list->clear();
    m_break->hide();
    const QString checking = tr("检查中…");
    setWindowTitle(tr("位完美自检 — %1").arg(checking));
    m_verdict->setText(checking);
    setPassed(m_plate, {});
    setPassed(m_verdict, {});
    m_about->setText(about);
    m_about->setToolTip(about.toHtmlEscaped());
    showStatements({}, false);
}

void SelfCheckDialog::addItem(const VerifyItem &item, const QList<VerifyItem> &all)
{
    m_list->addItem(verifyItemText(item));
    showStatements(all, m_finished);
}

void SelfCheckDialog::showVerdict(const VerifyVerdict &verdict, const QList<VerifyItem> &all)
{
    m_finished = true;
    auto *row = new QListWidgetItem(verdictRowText(verdict));
    QFont font = m_list->font();
    font.setBold(true);
    row->setFont(font);
    row->setForeground(verdict.passed ? m_colors.passed : m_colors.failed);
    if (m_colors.plate.isValid())
        row->setBackground(m_colors.plate);
    m_list->insertItem(0, row);
    m_list->scrollToTop();

    setWindowTitle(tr("位完美自检 — %1").arg(verdict.passed ? tr("通过") : tr("未通过")));
    m_verdict->setText(verdict.passed ? tr("结论：位完美 ✓  ").trimmed()
                                      : tr("结论：非位完美 ✗  ").trimmed());
    setPassed(m_plate, verdict.passed);
    setPassed(m_verdict, verdict.passed);
    QString sentence = firstBreakSentence(all);
    if (sentence.isEmpty() && !verdict.passed)
        sentence = verdict.reason();
    m_break->setText(sentence);
    m_break->setVisible(!verdict.passed && !sentence.isEmpty());
    showStatements(all, true);
}

void SelfCheckDialog::showStatements(const QList<VerifyItem> &items, bool finished)
{
    const std::array<CheckStatement, 3> statements = checkStatements(items, finished);
    for (std::size_t i = 0; i < statements.size(); ++i)
        m_statements[i]->show(statements[i]);
    if (isVisible())
        growToWords();
}

void SelfCheckDialog::showEvent(QShowEvent *event)
{
    growToWords();
    QDialog::showEvent(event);
}

void SelfCheckDialog::growToWords()
{
    const int wanted =
        std::min(layout()->totalHeightForWidth(width()), screen()->availableGeometry().height());
    if (height() < wanted)
        resize(width(), wanted);
}
