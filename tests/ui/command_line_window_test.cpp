// What the window's controls and settings make of the engine's command line.
#include "playback_fixture.h"

#include "ui/dock_bar.h"

#include <QApplication>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace {

void choose(QComboBox *combo, const QString &code)
{
    const int index = combo->findData(code);
    ASSERT_GE(index, 0) << qPrintable(code);
    combo->setCurrentIndex(index);
}

struct Row
{
    const char *name;
    void (*change)(PlayerGuiWindow &window, EngineControls &engine);
    const char16_t *words; ///< as they stand in the line, one behind the other
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

} // namespace

class CommandLineWindow : public PlaybackTest
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        m_times.noAudio = 5000;
        open();
    }
    QString lineOfAStart()
    {
        m_window->startPlayback(0);
        return m_engine.startArgs.isEmpty() ? QString() : m_engine.startArgs.last().join(u' ');
    }
    /// Closes each box that comes, and keeps what it said.
    void answerBoxes(QTimer &timer)
    {
        QObject::connect(&timer, &QTimer::timeout, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                m_boxes << box->windowTitle() << box->text();
                box->accept();
            }
        });
        timer.start(5);
    }
    QStringList m_boxes;
};

class CommandLineControl : public CommandLineWindow, public testing::WithParamInterface<Row>
{
};

TEST_P(CommandLineControl, ReachesTheLine)
{
    GetParam().change(*m_window, m_window->engineControls());
    const QString words = QString::fromUtf16(GetParam().words);
    const QString line = lineOfAStart();
    EXPECT_TRUE((line + u' ').contains(u' ' + words + u' ')) << qPrintable(line);
}

const Row rows[] = {
    {"DspPlugins", [](auto &, auto &) { writeUserSetting(settings::dspPlugins, true); }, u"-dsp-plugins-on"},
    {"Prefetch", [](auto &, auto &) { writeUserSetting(settings::prefetchDecode, true); }, u"-prefetch on"},
    {"SpectrumOfANewUser", [](auto &, auto &) {}, u"-spectrum on -gapless on"},
    {"Scope", [](auto &, auto &) { writeUserSetting(settings::vizMode, 2); }, u"-scope on"},
    {"Device", [](auto &w, auto &) { w.widgets().device->setCurrentIndex(2); }, u"-dev Two"},
    {"Rig", [](auto &, auto &e) { choose(e.rig, u"bs775"_s); }, u"-rig bs775"},
    {"Dop", [](auto &, auto &e) { choose(e.dop, u"force"_s); }, u"-dop force"},
    {"OutputPath", [](auto &, auto &e) { choose(e.outputPath, u"shared"_s); }, u"-output-path shared"},
    {"PeakGuard", [](auto &, auto &e) { e.peakGuard->setChecked(true); }, u"-peak-guard on"},
    {"Denoise", [](auto &, auto &e) { e.denoiseTier->setCurrentIndex(3); },
     u"-denoise strong -keep-harmonics off"},
    {"EffectsForcePcm", [](auto &, auto &e) { e.denoiseTier->setCurrentIndex(1); }, u"-spectrum on -pcm"},
    {"Harmonics",
     [](auto &, auto &e) {
         e.denoiseTier->setCurrentIndex(1);
         e.keepHarmonics->setChecked(true);
     },
     u"-denoise light -keep-harmonics on"},
    {"Resample", [](auto &, auto &e) { e.resample->setChecked(true); }, u"-resample -src-quality standard"},
    {"ResampleQuality",
     [](auto &, auto &e) {
         e.resample->setChecked(true);
         choose(e.resampleQuality, u"best"_s);
     },
     u"-resample -src-quality best"},
    {"StreamingReadRepeatsTheFlag", [](auto &, auto &e) { e.streamingRead->setChecked(true); },
     u"-spectrum on -stream -gapless"},
    {"Crossfade", [](auto &, auto &e) { e.crossfadeSec->setValue(2.5); }, u"-crossfade 2.5"},
    {"Gapless", [](auto &, auto &e) { e.gapless->setChecked(false); }, u"-gapless off"},
    {"ReplayGain", [](auto &, auto &e) { choose(e.replayGain, u"2"_s); }, u"-replaygain album"},
    {"Speed", [](auto &w, auto &) { w.setSpeed(0.75); }, u"-speed 0.75 -pitch-lock on"},
    {"ForcedPcm", [](auto &, auto &e) { e.forcedPcm->setChecked(true); }, u"-gapless on -pcm"},
    {"PcmBits", [](auto &, auto &e) { choose(e.pcmBits, u"float32"_s); }, u"-pcm-bits float32"},
    {"PcmFilter", [](auto &, auto &e) { choose(e.pcmFilter, u"best"_s); }, u"-pcm-filter best"},
    {"PcmToDsd",
     [](auto &, auto &e) {
         e.pcmToDsd->setChecked(true);
         choose(e.pcmToDsdTarget, u"90316800"_s);
         choose(e.pcmToDsdTaps, u"32768"_s);
     },
     u"-pcm2dsd -pcm2dsd-target 90316800 -pcm2dsd-taps 32768"},
    {"Volume", [](auto &w, auto &) { w.widgets().dock->volume->setValue(30); }, u"-vol 30"},
    {"VolumeOfAHundredOnceItWasTouched",
     [](auto &w, auto &) {
         w.widgets().dock->volume->setValue(30);
         w.widgets().dock->volume->setValue(100);
     },
     u"-vol 100"},
    {"ExternalDecoder",
     [](auto &, auto &e) {
         e.extDecoder->setText(u"/opt/my dec.so"_s);
         Q_EMIT e.extDecoder->editingFinished();
     },
     u"-ext-decoder /opt/my dec.so"},
};

INSTANTIATE_TEST_SUITE_P(Table, CommandLineControl, testing::ValuesIn(rows),
                         [](const auto &row) { return row.param.name; });

TEST_F(CommandLineWindow, ANewUsersLineHoldsNothingThatWasNotChosen)
{
    EXPECT_EQ(lineOfAStart(),
              u"-stream -parent-pid %1 -spectrum on -gapless on"_s.arg(QCoreApplication::applicationPid()));
}

TEST_F(CommandLineWindow, AFilterThatWasNeverChosenIsNotSentAndTheStandardOneChosenByHandIs)
{
    EXPECT_FALSE(lineOfAStart().contains(u"-pcm-filter"_s));
    QComboBox *filter = m_window->engineControls().pcmFilter;
    choose(filter, u"standard"_s);
    Q_EMIT filter->activated(filter->currentIndex());
    m_window->stopPlayback();
    settle();
    EXPECT_TRUE(lineOfAStart().contains(u"-pcm-filter standard"_s));
}

TEST_F(CommandLineWindow, WithoutAnyDeviceTheStartIsRefusedInABoxAndEndsIdle)
{
    m_window->startPlayback(0);
    choose(m_window->engineControls().mode, u"differential"_s);
    QTimer timer;
    answerBoxes(timer);
    m_window->jumpToRow(1);
    settle();
    EXPECT_EQ(m_boxes,
              (QStringList{u"未选择设备"_s, u"差分/分频模式每个声道需要一台设备 —— 请先选择设备。"_s}));
    EXPECT_EQ(m_engine.startArgs.size(), 1);
    EXPECT_FALSE(start().uiPlaying);
    EXPECT_FALSE(start().sessionLive);
}

TEST_F(CommandLineWindow, TooFewDevicesAreABoxAndPlaybackGoesOn)
{
    EngineControls &engine = m_window->engineControls();
    choose(engine.mode, u"differential"_s);
    ASSERT_FALSE(engine.channelDevices.isEmpty());
    engine.channelDevices.first()->setCurrentIndex(2);
    QTimer timer;
    answerBoxes(timer);
    const QString line = lineOfAStart();
    ASSERT_EQ(m_boxes.size(), 2);
    EXPECT_EQ(m_boxes.first(), u"设备数量不足"_s);
    EXPECT_TRUE(line.contains(u"-mode differential -devs Two "_s)) << qPrintable(line);
    EXPECT_TRUE(start().uiPlaying);
}
