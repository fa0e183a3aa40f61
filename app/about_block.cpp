#include "app/about_block.h"

#include "app/language.h"

#include <QFile>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString documentText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

AboutBlock::AboutBlock(QWidget *parent)
    : QWidget(parent)
    , m_row(new QWidget(this))
    , m_value(new QLabel(m_row))
    , m_browser(new QTextBrowser(this))
    , m_checkNow(new QPushButton(tr("检查更新…"), this))
{
    setObjectName("vesperSetAbout"_L1);
    m_value->setObjectName("vesperSetVal"_L1);
    m_value->setText(u"KelpPlayer"_s);
    m_browser->setObjectName("vesperSetBrowser"_L1);
    m_browser->setOpenExternalLinks(true);
    m_browser->setAccessibleName(tr("第三方声明与参考标准"));
    m_checkNow->setToolTip(tr("检查更新…"));
    connect(m_checkNow, &QPushButton::clicked, this, &AboutBlock::updateCheckRequested);

    auto *row = new QHBoxLayout(m_row);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_value);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(m_row);
    rows->addWidget(m_browser);
    rows->addWidget(m_checkNow);
    for (QWidget *widget : {static_cast<QWidget *>(this), m_row, static_cast<QWidget *>(m_value),
                            static_cast<QWidget *>(m_browser), static_cast<QWidget *>(m_checkNow)})
        widget->hide();
}

QString AboutBlock::noticesPath(const QString &language)
{
    if (isChinese(language))
        return u":/about/notices_zh.md"_s;
    return language == "pl"_L1 ? u":/about/notices_pl.md"_s : u":/about/notices_en.md"_s;
}

QString AboutBlock::referencesPath(const QString &language)
{
    return isChinese(language) ? u":/about/references_zh.md"_s : u":/about/references_en.md"_s;
}

void AboutBlock::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (std::exchange(m_loaded, true))
        return;
    const QString language = chooseLanguage(languageFacts()).code;
    m_browser->setMarkdown(documentText(noticesPath(language)) + u"\n\n"_s +
                           documentText(referencesPath(language)));
}
