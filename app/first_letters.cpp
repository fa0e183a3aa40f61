#include "app/first_letters.h"

#include "platform/head_start.h"
#include "ui/style_sheet.h"

#include <QFontMetrics>
#include <QList>

namespace startup {

FirstLetters::FirstLetters()
{
    constexpr int anyPixels = 12;
    // Made here: the language changes the families of those that are made later.
    const QList<QFont> fonts = {interfaceFont(anyPixels), figureFont(anyPixels)};
    m_letters = besideTheStart(WorkRank::InTime, [fonts] {
        for (const QFont &font : fonts)
            QFontMetrics(font).horizontalAdvance(u'0');
    });
}

FirstLetters::~FirstLetters()
{
    m_letters.wait();
}

} // namespace startup
