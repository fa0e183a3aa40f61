/// \file
/// Whether the effects force PCM. Effects work on PCM only, so a DSD source goes direct as long as nothing
/// audible is switched on.
#pragma once

#include <QList>

/// The numbers of the effects panel that this question needs.
struct AudibleEffectsFacts
{
    bool reverbOn = false;
    double reverbWet = 0.;
    bool toneOn = false;
    double bassGainDb = 0.;
    double trebleGainDb = 0.;
    bool equalizerOn = false;
    double preampDb = 0.;
    QList<double> bandGainsDb;
    int denoiseTier = 0;  ///< 0 is off
    double balance = 50.; ///< 50 is the centre
    double width = 100.;  ///< 100 leaves the stereo width alone
};

/// True as soon as one effect can be heard. An effect that is switched on at neutral settings cannot, and
/// does not cost a DSD source its direct path.
bool effectsWantPcm(const AudibleEffectsFacts &facts);
