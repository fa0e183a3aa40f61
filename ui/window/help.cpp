// The help: what the keys do, and where things are.
#include "ui/window/player_gui_window.h"

#include "app/gui_log_file.h"
#include "app/settings_store.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize helpSize(640, 560);

} // namespace

void PlayerGuiWindow::showHelp()
{
    auto *dialog = new QDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("帮助"));
    dialog->resize(helpSize);
    auto *text = new QTextBrowser(dialog);
    text->setAccessibleName(tr("帮助"));
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
    text->append(tr("日志文件: %1").arg(GuiLogFile::ofProcess().path()));
    text->append(tr("设置文件: %1").arg(userSettingsFile().path()));
    text->moveCursor(QTextCursor::Start);
    auto *buttons = new QDialogButtonBox(dialog);
    QPushButton *close = buttons->addButton(tr("关闭"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *rows = new QVBoxLayout(dialog);
    rows->setContentsMargins(16, 16, 16, 16);
    rows->addWidget(text);
    rows->addWidget(buttons);
    dialog->show();
}
