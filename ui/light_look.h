/// \file
/// How the light look is made from the dark one, and how an accent is brought to a readable contrast.
/// Colours are 0xRRGGBB. Pure: no theme is asked for here.
#pragma once

#include <QString>
#include <array>

/// A neutral of the dark look and what stands for it in the light one.
struct NeutralPair
{
    quint32 dark;
    quint32 light;
};

inline constexpr std::array<NeutralPair, 14> neutralTable = {{
    {0x08080A, 0xF6F5F2},
    {0x0C0C0F, 0xFBF9F5},
    {0x121216, 0xFFFFFF},
    {0x131317, 0xF2F1ED},
    {0x18181E, 0xFFFFFF},
    {0x1F1F26, 0xDCD9D2},
    {0x202028, 0xE9E7E1},
    {0x23232B, 0xE4E1DA},
    {0x2C2C35, 0xD3CFC7},
    {0xEDEAE3, 0x1F1D19},
    {0xCFC9BF, 0x393630},
    {0xB9B3A8, 0x4C4840},
    {0x8A857C, 0x6C665D},
    {0x4A4842, 0x7C766C},
}};

/// The light partner of a colour of the dark look. What is in the table has its partner there; what is
/// saturated or bright means something and stays; any other grey is turned over.
quint32 lightPartner(quint32 dark);

/// Rewrites every "#" with six hexadecimal digits of a sheet that was written for the dark look.
/// Other notations, rgba() among them, stay as they are.
QString mapStylesheetToLight(const QString &text);

/// The ratio of two colours' luminances as WCAG 2 defines it, 1 to 21.
double contrastRatio(quint32 one, quint32 other);

/// One step darker: each channel divided by 1.25.
quint32 oneStepDarker(quint32 colour);
/// One step lighter: each channel a fifth of its way nearer to white.
quint32 oneStepLighter(quint32 colour);

/// Steps away from the background until the contrast is reached; the colour itself if it is already.
quint32 readableOn(quint32 background, quint32 colour, double leastRatio);

/// The accent as it is filled and drawn in the light look: one step darker, and again while its contrast to
/// the chassis is below 3.
quint32 accentForLight(quint32 chosen);
