// The help: what the keys do, and where things are.
#include "ui/window/player_gui_window.h"

#include "app/gui_log_file.h"
#include "app/settings_store.h"
#include "ui/theme.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize helpSize(640, 560);

/// The toolkit sets what it reads as markdown without any air, and its lists far in.
void setInType(QTextDocument &document)
{
    constexpr double aboveHead = 20.;
    constexpr double belowHead = 6.;
    constexpr double betweenLines = 4.;
    document.setDocumentMargin(0.);
    document.setIndentWidth(20.);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const bool head = block.blockFormat().headingLevel() > 0;
        QTextCursor cursor(block);
        QTextBlockFormat form = block.blockFormat();
        form.setTopMargin(head && block != document.begin() ? aboveHead : 0.);
        form.setBottomMargin(head ? belowHead : betweenLines);
        cursor.setBlockFormat(form);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        QTextCharFormat letters;
        // A step of the toolkit's is a fifth.
        letters.setProperty(QTextFormat::FontSizeAdjustment, head ? 1 : 0);
        if (head) {
            letters.setFontWeight(QFont::DemiBold);
            letters.setForeground(theme::ink1());
        }
        cursor.mergeCharFormat(letters);
    }
}

} // namespace

void PlayerGuiWindow::showHelp()
{
    auto *dialog = new QDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("帮助"));
    dialog->resize(helpSize);
    auto *text = new QTextBrowser(dialog);
    text->setObjectName("vesperHelp"_L1);
    text->setAccessibleName(tr("帮助"));
    text->setTabChangesFocus(true);
    text->setMarkdown(
        tr("## 播放\n\n"
           "把文件或文件夹拖进窗口，双击一行开始播放。播放中不能跳转：位置只在曲目开始时到达。\n\n"
           "## 键盘\n\n"
           "- **空格** 播放 / 暂停\n"
           "- **Ctrl+→** 下一首，**Ctrl+←** 上一首\n"
           "- **Ctrl+↑ / Ctrl+↓** 音量\n"
           "- **Ctrl+空格** 停止，**Ctrl+O** 导入文件，**F11** 最大化 / 还原\n"
           "- **Ctrl+,** 设置\n"
           "- 列表里：**Enter** 播放，**Delete** 移除，**Ctrl+Z** 撤销，**Ctrl+Shift+Z** 重做\n\n"
           "## 位完美\n\n"
           "右栏说明样本经过了什么。只有读回了设备收到的数据，才会说“送达已验证”。"
           "“位完美自检”逐项检查。\n"));
    // What is appended looks like the text at the cursor, and at the start that is a headline.
    text->moveCursor(QTextCursor::End);
    text->append({});
    text->append(tr("日志文件: %1").arg(GuiLogFile::ofProcess().path()));
    text->append(tr("设置文件: %1").arg(userSettingsFile().path()));
    setInType(*text->document());
    text->moveCursor(QTextCursor::Start);
    auto *buttons = new QDialogButtonBox(dialog);
    QPushButton *close = buttons->addButton(tr("关闭"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *rows = new QVBoxLayout(dialog);
    rows->setContentsMargins(24, 24, 24, 16);
    rows->addWidget(text);
    rows->addWidget(buttons);
    dialog->show();
}
