#include "ui/fitted_button.h"

#include <QPushButton>
#include <QStyle>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array paddings = {12, 9, 5};
constexpr int borders = 2;
/// A checked, default or primary button is bold: its words are wider; and the layout keeps a gap behind the
/// last.
constexpr int spare = 6;

constexpr const char *wholeText = "wholeText";
constexpr const char *ownTip = "ownTip";

QString wholeOf(QPushButton &button)
{
    const QVariant kept = button.property(wholeText);
    if (kept.isValid())
        return kept.toString();
    button.setProperty(wholeText, button.text());
    button.setProperty(ownTip, button.toolTip());
    return button.text();
}

int textWidth(QPushButton &button)
{
    button.ensurePolished();
    return button.fontMetrics().horizontalAdvance(wholeOf(button)) + borders + spare;
}

void setPadding(QPushButton &button, int padding)
{
    if (button.property("pad") == padding)
        return;
    button.setProperty("pad", padding);
    button.style()->unpolish(&button);
    button.style()->polish(&button);
}

void showText(QPushButton &button, int textRoom)
{
    const QString whole = wholeOf(button);
    const QString shown = button.fontMetrics().elidedText(whole, Qt::ElideRight, std::max(1, textRoom));
    const QString tip = button.property(ownTip).toString();
    button.setText(shown);
    button.setAccessibleName(whole);
    button.setToolTip(shown == whole ? tip : whole + u"\n"_s + tip);
}

} // namespace

void fitButtons(const QList<QPushButton *> &buttons, int room)
{
    int words = 0;
    for (QPushButton *button : buttons)
        words += textWidth(*button);
    const int count = static_cast<int>(buttons.size());
    int padding = paddings.back();
    for (const int each : paddings) {
        if (words + 2 * each * count <= room) {
            padding = each;
            break;
        }
    }
    // What is missing is taken from all alike.
    const int missing = std::max(0, words + 2 * padding * count - room);
    for (QPushButton *button : buttons) {
        setPadding(*button, padding);
        showText(*button, textWidth(*button) - borders - (missing + count - 1) / count);
    }
}

void fitButton(QPushButton &button, int room)
{
    fitButtons({&button}, room);
}
