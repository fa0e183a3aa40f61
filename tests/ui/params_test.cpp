// What is remembered from run to run.
#include "window_fixture.h"

#include "app/settings_store.h"
#include "tests/support/settings_on_disk.h"
#include "ui/dock_bar.h"

using namespace Qt::StringLiterals;

class Params : public WindowTest
{
};

TEST_F(Params, ChoicesComeBack)
{
    makeWindow();
    EngineControls *engine = &m_window->engineControls();
    engine->outputPath->setCurrentText(u"exclusive"_s);
    engine->mode->setCurrentText(u"pairs"_s);
    engine->crossfadeSec->setValue(2.5);
    engine->gapless->setChecked(false);
    engine->pcmToDsdTarget->setCurrentIndex(2);
    m_window->widgets().dock->volume->setValue(42);
    m_window->saveParams();
    m_window.reset();
    makeWindow();
    engine = &m_window->engineControls();
    EXPECT_EQ(engine->outputPath->currentText(), u"exclusive"_s);
    EXPECT_EQ(engine->mode->currentText(), u"pairs"_s);
    EXPECT_EQ(engine->crossfadeSec->value(), 2.5);
    EXPECT_FALSE(engine->gapless->isChecked());
    EXPECT_EQ(engine->pcmToDsdTarget->currentData().toInt(), 11289600);
    EXPECT_EQ(m_window->widgets().dock->volume->value(), 42);
}

TEST_F(Params, EveryControlComesBack)
{
    makeWindow();
    EngineControls *engine = &m_window->engineControls();
    const auto other = [](QComboBox *combo) { combo->setCurrentIndex(combo->count() - 1); };
    const auto combos = [](EngineControls *of) {
        return QList<QComboBox *>{of->mode,       of->layoutChoice,   of->rig,
                                  of->dop,        of->outputPath,     of->denoiseTier,
                                  of->replayGain, of->pcmBits,        of->resampleQuality,
                                  of->pcmFilter,  of->pcmToDsdTarget, of->pcmToDsdTaps};
    };
    const auto checks = [](EngineControls *of) {
        return QList<QCheckBox *>{of->crossoverBridged, of->peakGuard, of->keepHarmonics, of->resample,
                                  of->streamingRead,    of->gapless,   of->forcedPcm,     of->pcmToDsd};
    };
    const auto spins = [](EngineControls *of) {
        return QList<QDoubleSpinBox *>{of->crossoverHz, of->crossfadeSec, of->speedRatio};
    };
    for (QComboBox *combo : combos(engine))
        other(combo);
    QList<bool> checked;
    for (QCheckBox *check : checks(engine)) {
        check->setChecked(!check->isChecked());
        checked.append(check->isChecked());
    }
    for (QDoubleSpinBox *spin : spins(engine))
        spin->setValue(2. + spin->minimum());
    engine->extDecoder->setText(u"/lib/decoder.so"_s);
    Q_EMIT engine->extDecoder->editingFinished();
    m_window->saveParams();
    m_window.reset();
    makeWindow();
    engine = &m_window->engineControls();
    for (const QComboBox *combo : combos(engine))
        EXPECT_EQ(combo->currentIndex(), combo->count() - 1) << qPrintable(combo->accessibleName());
    for (qsizetype i = 0; i < checked.size(); ++i)
        EXPECT_EQ(checks(engine).at(i)->isChecked(), checked.at(i))
            << qPrintable(checks(engine).at(i)->text());
    for (const QDoubleSpinBox *spin : spins(engine))
        EXPECT_EQ(spin->value(), 2. + spin->minimum()) << qPrintable(spin->accessibleName());
    EXPECT_EQ(engine->extDecoder->text(), u"/lib/decoder.so"_s);
}

TEST_F(Params, ARestoredChoiceIsNotToldToASession)
{
    makeWindow();
    addFiles(1);
    m_window->startPlayback(0);
    EngineControls *engine = &m_window->engineControls();
    const bool guard = engine->peakGuard->isChecked();
    {
        SettingsOnDisk store;
        store.setValue(u"param/peak_guard"_s, !guard);
        store.setValue(u"param/speed_ratio"_s, 1.5);
        store.setValue(u"param/vol"_s, 37);
    }
    const qsizetype sent = m_engine.lines().size();
    m_window->loadParams();
    EXPECT_EQ(engine->peakGuard->isChecked(), !guard);
    EXPECT_EQ(engine->speedRatio->value(), 1.5);
    EXPECT_EQ(m_window->widgets().dock->volume->value(), 37);
    EXPECT_EQ(m_engine.lines().size(), sent);
}

TEST_F(Params, DamagedValuesAreKeptInRange)
{
    {
        SettingsOnDisk store;
        store.setValue(u"param/denoise_tier"_s, 7);
        store.setValue(u"param/vol"_s, 400);
        store.setValue(u"param/mode"_s, u"no such mode"_s);
    }
    makeWindow();
    EXPECT_EQ(m_window->engineControls().denoiseTier->currentIndex(), 3);
    EXPECT_EQ(m_window->widgets().dock->volume->value(), 100);
    EXPECT_EQ(m_window->engineControls().mode->currentText(), u"standard"_s);
    EXPECT_TRUE(logHas(u"找不到匹配项 no such mode"_s));
}

TEST_F(Params, AStoredTextFindsItsItemAsWellAsAStoredCode)
{
    for (const QString &stored : {u"4"_s, u"4 声道"_s, u" 4  声道 "_s, u"4声道"_s}) {
        SettingsOnDisk().setValue(u"param/layout"_s, stored);
        m_window.reset();
        makeWindow();
        EXPECT_EQ(m_window->choices().channelCount, 4) << qPrintable(stored);
    }
}

TEST_F(Params, AnEmptyStoredTextLeavesTheComboAndSaysNothing)
{
    SettingsOnDisk().setValue(u"param/mode"_s, u"   "_s);
    makeWindow();
    EXPECT_EQ(m_window->choices().mode, u"standard"_s);
    EXPECT_FALSE(logHas(u"找不到匹配项"_s));
}

TEST_F(Params, AStoreThatCannotBeReadOrWrittenGivesDefaultsAndNoMessage)
{
    makeWindow();
    m_window->saveParams();
    const QString usual = takeLog();
    m_window.reset();
    qputenv("KELP_SETTINGS_DIR", "/proc/nonexistent/x");
    ASSERT_TRUE(applySettingsDirOverride());
    takeLog();
    makeWindow();
    m_window->saveParams();
    EXPECT_EQ(takeLog(), usual);
    EXPECT_EQ(m_window->choices().mode, u"standard"_s);
    EXPECT_EQ(m_window->choices().pcmBits, u"24"_s);
    EXPECT_TRUE(m_window->choices().gapless);
}

TEST_F(Params, ClosingSavesThem)
{
    makeWindow();
    m_window->widgets().dock->volume->setValue(23);
    m_window->close();
    EXPECT_EQ(SettingsOnDisk().value(u"param/vol"_s).toInt(), 23);
}

TEST_F(Params, HarmonicsNeedATier)
{
    {
        SettingsOnDisk store;
        store.setValue(u"param/keep_harmonics"_s, true);
    }
    makeWindow();
    EXPECT_FALSE(m_window->engineControls().keepHarmonics->isChecked());
    EXPECT_FALSE(m_window->engineControls().keepHarmonics->isEnabled());
    m_window->engineControls().denoiseTier->setCurrentIndex(1);
    EXPECT_TRUE(m_window->engineControls().keepHarmonics->isEnabled());
}

TEST_F(Params, ARestoredVolumeIsNoTouch)
{
    SettingsOnDisk().setValue(u"param/vol"_s, 100);
    makeWindow();
    addFiles(1);
    m_window->startPlayback(0);
    EXPECT_FALSE(m_engine.startArgs.last().contains(u"-vol"_s));
    m_window->widgets().dock->volume->setValue(50);
    m_window->widgets().dock->volume->setValue(100);
    EXPECT_TRUE(m_engine.did(u"write vol 50"_s));
    m_window->stopPlayback();
    settle();
    m_window->startPlayback(0);
    EXPECT_TRUE(m_engine.startArgs.last().contains(u"-vol"_s))
        << "a volume that was touched is sent at 100 too";
}
