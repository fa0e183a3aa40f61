// The light look is the dark one rewritten, and every accent is brought to where it reads.
#include "ui/light_look.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 lightChassis = 0xF2F1ED;

} // namespace

TEST(LightLook, EveryNeutralOfTheTableBecomesItsPartner)
{
    for (const NeutralPair &pair : neutralTable) {
        const QString dark = u"#%1"_s.arg(pair.dark, 6, 16, QChar(u'0')).toUpper();
        const QString light = u"#%1"_s.arg(pair.light, 6, 16, QChar(u'0')).toUpper();
        EXPECT_EQ(mapStylesheetToLight(dark), light);
        EXPECT_EQ(mapStylesheetToLight(dark.toLower()), light) << "digits of both cases are colours";
    }
    EXPECT_EQ(neutralTable.size(), 14U);
}

TEST(LightLook, TheTableIsThatOfTheDesign)
{
    const std::pair<QString, QString> table[] = {
        {u"#08080A"_s, u"#F6F5F2"_s}, {u"#0C0C0F"_s, u"#FBF9F5"_s}, {u"#121216"_s, u"#FFFFFF"_s},
        {u"#131317"_s, u"#F2F1ED"_s}, {u"#18181E"_s, u"#FFFFFF"_s}, {u"#1F1F26"_s, u"#DCD9D2"_s},
        {u"#202028"_s, u"#E9E7E1"_s}, {u"#23232B"_s, u"#E4E1DA"_s}, {u"#2C2C35"_s, u"#D3CFC7"_s},
        {u"#EDEAE3"_s, u"#1F1D19"_s}, {u"#CFC9BF"_s, u"#393630"_s}, {u"#B9B3A8"_s, u"#4C4840"_s},
        {u"#8A857C"_s, u"#6C665D"_s}, {u"#4A4842"_s, u"#7C766C"_s},
    };
    for (const auto &[dark, light] : table)
        EXPECT_EQ(mapStylesheetToLight(dark), light);
}

TEST(LightLook, AGreyOutsideTheTableIsTurnedOver)
{
    struct Case
    {
        QString dark;
        QString light;
    };
    const Case cases[] = {
        {u"#808080"_s, u"#878787"_s}, // (255 - 128) × 0.94 + 15.3 = 134.68
        {u"#000000"_s, u"#FFFFFF"_s}, // 255, the top of the range
        {u"#101010"_s, u"#F0F0F0"_s},
        {u"#2C2A26"_s, u"#D6D8DB"_s},
    };
    for (const Case &each : cases)
        EXPECT_EQ(mapStylesheetToLight(each.dark), each.light);
}

TEST(LightLook, WhatIsSaturatedOrBrightStays)
{
    for (const auto &colour :
         {u"#C9A96E"_s, u"#d4a843"_s, u"#C75C4A"_s, u"#FFFFFF"_s, u"#818181"_s, u"#1B0000"_s})
        EXPECT_EQ(mapStylesheetToLight(colour), colour);
    EXPECT_NE(mapStylesheetToLight(u"#1A0000"_s), u"#1A0000"_s) << "26 apart is still a grey";
}

TEST(LightLook, OnlyWholeColoursOfASheetAreRewritten)
{
    EXPECT_EQ(mapStylesheetToLight(u"QLabel#vesperVfdMeta { color: #8A857C; border: 1px solid #23232B; }"_s),
              u"QLabel#vesperVfdMeta { color: #6C665D; border: 1px solid #E4E1DA; }"_s);
    for (const auto &text : {u"rgba(8, 8, 10, 40)"_s, u"#12121"_s, u"#"_s, u""_s, u"##"_s, u"#12 121"_s,
                             u"#+12121 "_s, u"#fff;"_s})
        EXPECT_EQ(mapStylesheetToLight(text), text);
    EXPECT_EQ(mapStylesheetToLight(u"##121216#121216"_s), u"##FFFFFF#FFFFFF"_s);
}

TEST(LightLook, TheGoldGivesTheStepsThatTheLookWasDrawnWith)
{
    EXPECT_EQ(accentForLight(0xC9A96E), 0xA18758U);
    EXPECT_EQ(readableOn(lightChassis, 0xC9A96E, 4.5), 0x675638U);
    EXPECT_EQ(readableOn(lightChassis, 0x6FC084, 4.5), 0x396244U) << "the proof's green as text";
}

TEST(LightLook, EveryAccentReachesItsContrastOnBothGrounds)
{
    for (quint32 red = 0; red <= 0xFF; red += 0x33)
        for (quint32 green = 0; green <= 0xFF; green += 0x33)
            for (quint32 blue = 0; blue <= 0xFF; blue += 0x33) {
                const quint32 accent = red << 16 | green << 8 | blue;
                EXPECT_GE(contrastRatio(accentForLight(accent), lightChassis), 3.) << std::hex << accent;
                for (const quint32 ground : {lightChassis, 0x131317U})
                    EXPECT_GE(contrastRatio(readableOn(ground, accent, 4.5), ground), 4.5)
                        << std::hex << accent << " on " << ground;
            }
}

TEST(LightLook, TheNeutralsReadInBothLooks)
{
    struct Pair
    {
        quint32 ink;
        quint32 ground;
        double least;
    };
    // Titles, rows, second lines and captions on what they stand on.
    const Pair pairs[] = {
        {0xEDEAE3, 0x131317, 14.}, {0xCFC9BF, 0x0C0C0F, 11.}, {0xB9B3A8, 0x131317, 7.9},
        {0x8A857C, 0x131317, 5.},  {0x8A857C, 0x18181E, 4.7},
    };
    for (const Pair &pair : pairs) {
        EXPECT_GE(contrastRatio(pair.ink, pair.ground), pair.least);
        EXPECT_GE(contrastRatio(lightPartner(pair.ink), lightPartner(pair.ground)), pair.least);
    }
}
