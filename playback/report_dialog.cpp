#include "playback/report_dialog.h"

#include "playback/chain_report_text.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize initialSize(760, 560);
/// Reports of many hours; the oldest give way.
constexpr int mostLines = 20000;

} // namespace

ReportDialog::ReportDialog(QWidget *parent)
    : QDialog(parent)
    , m_view(new QPlainTextEdit(this))
{
    setObjectName("vesperReportDialog"_L1);
    setWindowTitle(tr("信号链报告"));
    resize(initialSize);
    m_view->setObjectName("vesperReport"_L1);
    m_view->setReadOnly(true);
    m_view->setUndoRedoEnabled(false);
    m_view->setMaximumBlockCount(mostLines);
    m_view->setAccessibleName(windowTitle());
    m_view->setTabChangesFocus(true);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *again = buttons->addButton(tr("再取一次"), QDialogButtonBox::ActionRole);
    QPushButton *save = buttons->addButton(tr("保存报告…"), QDialogButtonBox::ActionRole);
    save->setObjectName("vesperReportSave"_L1);
    QPushButton *close = buttons->addButton(tr("关闭"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    connect(again, &QPushButton::clicked, this, &ReportDialog::refreshRequested);
    connect(save, &QPushButton::clicked, this, &ReportDialog::saveRequested);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_view, 1);
    column->addWidget(buttons);
}

void ReportDialog::append(const QStringList &lines)
{
    m_lines += lines;
    if (m_lines.size() > mostLines)
        m_lines.remove(0, m_lines.size() - mostLines);
    m_view->setUpdatesEnabled(false);
    for (const QString &line : lines) {
        if (const QString html = chainReportHtml(line); !html.isEmpty())
            m_view->appendHtml(html);
        else
            m_view->appendPlainText(line);
    }
    m_view->setUpdatesEnabled(true);
}
