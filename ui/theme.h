/// \file
/// The colours in force. Process-wide, written by the window's applyTheme alone, read by everything that
/// paints; GUI thread only.
#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>

namespace theme {

/// The accent as it is drawn: in the light look a step darker than the chosen one.
extern QColor accentColor;
extern QColor accentBright; ///< a shade lighter: low bands, focus ring, pressed slider
extern QColor accentDeep;   ///< nearly black
extern bool lightTheme;
extern bool reduceMotion; ///< nothing glides; what moves jumps

/// The accent before anything is chosen.
inline constexpr QRgb defaultAccent = 0xC9A96E;

/// Both settle all colours below and tell nobody: whoever calls them announces the change.
/// \param accent an invalid colour is passed over
void setAccent(const QColor &accent);
void setLightTheme(bool light);
/// The accent as it was chosen, whatever the look makes of it.
QColor chosenAccent();

/// A colour of the dark look by its value 0xRRGGBB, in the look that is in force.
QColor neutral(QRgb dark);

// Surfaces.
QColor glass();
QColor well();
QColor base();
QColor chassis();
QColor raised();
QColor raisedHover();
QColor groove();
QColor hairline();
QColor edge();

// Inks, from titles to what cannot be used.
QColor ink1();
QColor ink2();
QColor ink3();
QColor ink4();
QColor off();

// The accent by its use.
QColor accentGraphic(); ///< fills, lamps, strokes: at least 3:1 on the chassis in the light look
QColor accentInk();     ///< text and filled switches: at least 4.5:1 on the chassis
QColor focusRing();
QColor wash(); ///< of what is checked; translucent
QColor strongWash();

// Colours with a meaning of their own, as lamps.
QColor proof();
QColor warning();
QColor failure();
/// Of the same meaning, as text or a glyph on the chassis.
QColor statusInk(const QColor &lamp);

// In the light look a fixed light colour stands on this plate, with this ink beside it.
QColor reversedPlate();
QColor reversedInk();

/// The application's palette, for all colour groups.
QPalette applicationPalette();

} // namespace theme

/// Says that colours have changed, to whoever keeps something made of them. A widget that only paints
/// needs none of it: a new sheet repaints every widget of the window.
class ThemeNotifier final : public QObject
{
    Q_OBJECT

public:
    static ThemeNotifier &instance();

Q_SIGNALS:
    void changed();

private:
    ThemeNotifier() = default;
};
