#include "ui/tools_menu.h"

#include <array>

namespace {

constexpr std::array names = {
    QT_TRANSLATE_NOOP("ToolsMenu", "扫描曲库文件夹(增量)"),
    QT_TRANSLATE_NOOP("ToolsMenu", "查找重复曲目"),
    QT_TRANSLATE_NOOP("ToolsMenu", "批量编辑标签"),
    QT_TRANSLATE_NOOP("ToolsMenu", "智能播放列表"),
    QT_TRANSLATE_NOOP("ToolsMenu", "年度报告"),
    QT_TRANSLATE_NOOP("ToolsMenu", "曲目分析"),
    QT_TRANSLATE_NOOP("ToolsMenu", "DSP 顺序"),
    QT_TRANSLATE_NOOP("ToolsMenu", "指纹比对"),
    QT_TRANSLATE_NOOP("ToolsMenu", "在线补全标签"),
    QT_TRANSLATE_NOOP("ToolsMenu", "网络曲库"),
    QT_TRANSLATE_NOOP("ToolsMenu", "手机同步"),
    QT_TRANSLATE_NOOP("ToolsMenu", "插件"),
    QT_TRANSLATE_NOOP("ToolsMenu", "电台/网络/接力"),
    QT_TRANSLATE_NOOP("ToolsMenu", "车载模式"),
    QT_TRANSLATE_NOOP("ToolsMenu", "网络挂载"),
    QT_TRANSLATE_NOOP("ToolsMenu", "校验曲库"),
    QT_TRANSLATE_NOOP("ToolsMenu", "清空日志"),
    QT_TRANSLATE_NOOP("ToolsMenu", "帮助…"),
};

} // namespace

ToolsMenu::ToolsMenu(const QList<Tool> &available, QWidget *parent)
    : QMenu(parent)
{
    setObjectName("vesperToolsMenu");
    setToolTipsVisible(true);
    for (int i = 0; i < static_cast<int>(names.size()); ++i) {
        const auto tool = static_cast<Tool>(i);
        QAction *action = addAction(tr(names.at(i)));
        action->setEnabled(available.contains(tool));
        if (!action->isEnabled())
            action->setToolTip(tr("这个功能还没有做好，以后的版本才有"));
        connect(action, &QAction::triggered, this, [this, tool] { Q_EMIT chosen(tool); });
    }
}
