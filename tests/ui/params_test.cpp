// What is remembered from run to run.
#include "window_fixture.h"

#include "app/settings_store.h"
#include "ui/dock_bar.h"

using namespace Qt::StringLiterals;

class Params : public WindowTest
{
};

TEST_F(Params, ChoicesComeBack)
{
    makeWindow();
    EngineControls *engine = m_window->widgets().engine;
    engine->outputPath->setCurrentText(u"exclusive"_s);
    engine->mode->setCurrentText(u"pairs"_s);
    engine->crossfadeSec->setValue(2.5);
    engine->gapless->setChecked(false);
    engine->pcmToDsdTarget->setCurrentIndex(2);
    m_window->widgets().dock->volume->setValue(42);
    m_window->saveParams();
    m_window.reset();
    makeWindow();
    engine = m_window->widgets().engine;
    EXPECT_EQ(engine->outputPath->currentText(), u"exclusive"_s);
    EXPECT_EQ(engine->mode->currentText(), u"pairs"_s);
    EXPECT_EQ(engine->crossfadeSec->value(), 2.5);
    EXPECT_FALSE(engine->gapless->isChecked());
    EXPECT_EQ(engine->pcmToDsdTarget->currentData().toInt(), 11289600);
    EXPECT_EQ(m_window->widgets().dock->volume->value(), 42);
}

TEST_F(Params, DamagedValuesAreKeptInRange)
{
    {
        SettingsStore store;
        store.setValue(u"param/denoise_tier"_s, 7);
        store.setValue(u"param/vol"_s, 400);
        store.setValue(u"param/mode"_s, u"no such mode"_s);
    }
    makeWindow();
    EXPECT_EQ(m_window->widgets().engine->denoiseTier->currentIndex(), 3);
    EXPECT_EQ(m_window->widgets().dock->volume->value(), 100);
    EXPECT_EQ(m_window->widgets().engine->mode->currentText(), u"standard"_s);
    EXPECT_TRUE(logHas(u"找不到匹配项 no such mode"_s));
}

TEST_F(Params, HarmonicsNeedATier)
{
    {
        SettingsStore store;
        store.setValue(u"param/keep_harmonics"_s, true);
    }
    makeWindow();
    EXPECT_FALSE(m_window->widgets().engine->keepHarmonics->isChecked());
    EXPECT_FALSE(m_window->widgets().engine->keepHarmonics->isEnabled());
}

TEST_F(Params, ARestoredVolumeIsNoTouch)
{
    SettingsStore().setValue(u"param/vol"_s, 100);
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
