#include "ui/theme_colors.h"

namespace theme {

QPalette applicationPalette()
{
    struct Entry
    {
        QPalette::ColorRole role;
        QColor colour;
    };
    const Entry entries[] = {
        {QPalette::Highlight, accentColor},
        {QPalette::HighlightedText, QColor(0xFF, 0xFF, 0xFF)},
        {QPalette::Base, QColor(0x12, 0x12, 0x16)},
        {QPalette::AlternateBase, QColor(0x0C, 0x0C, 0x0F)},
        {QPalette::Text, ink1},
        {QPalette::Window, QColor(0x0C, 0x0C, 0x0F)},
        {QPalette::WindowText, ink1},
        {QPalette::Button, QColor(0x1F, 0x1F, 0x26)},
        {QPalette::ButtonText, ink1},
        {QPalette::ToolTipBase, QColor(0x12, 0x12, 0x16)},
        {QPalette::ToolTipText, ink1},
    };
    QPalette palette;
    for (const Entry &entry : entries)
        palette.setColor(QPalette::All, entry.role, entry.colour);
    return palette;
}

} // namespace theme
