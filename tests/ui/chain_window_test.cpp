// The signal chain in the window: the panel, the report and the self-check.
#include "window_fixture.h"

#include "playback/chain_panel.h"
#include "playback/report_dialog.h"
#include "playback/self_check_dialog.h"
#include "ui/dock_bar.h"
#include "ui/light_look.h"
#include "ui/theme.h"

#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList cleanBlock = {u"SIGNAL CHAIN BEGIN"_s,
                                u"source: /a.wav"_s,
                                u"source format: WAV"_s,
                                u"output backend: ALSA hardware"_s,
                                u"dsp: none"_s,
                                u"volume: on a 16 bit device: unity"_s,
                                u"bit-perfect: YES: nothing changes a bit."_s,
                                u"chain: clean (x)"_s,
                                u"underruns: 0"_s,
                                u"SIGNAL CHAIN END"_s};

class ChainWindow : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        makeWindow();
        addFiles(2);
    }
    void play(int row = 0)
    {
        m_window->startPlayback(row);
        settle();
    }
    void say(const QStringList &lines)
    {
        for (const QString &line : lines)
            m_engine.current->say(line);
        settle();
    }
    void sayTrack()
    {
        say({u"SRC 44100 16 2 wav 0 60.0"_s});
        say(cleanBlock);
    }
    ChainViewState &chain() { return WindowInspector::chain(*m_window); }
    QStringList rows() const
    {
        QStringList texts;
        for (const QLabel *row : m_window->findChildren<QLabel *>(u"vesperChainRow"_s))
            texts.append(row->text());
        return texts;
    }
    QStringList cards() const
    {
        QStringList texts;
        for (const QLabel *card : m_window->findChildren<QLabel *>(u"vesperCardVal"_s))
            texts.append(card->text());
        return texts;
    }
    QString lamp() const
    {
        return m_window->findChild<QFrame *>(u"vesperChainLamp"_s)->property("lamp").toString();
    }
    QString word() const { return m_window->findChild<QLabel *>(u"vesperChainVerdict"_s)->text(); }
    QStringList written(const QString &start) const
    {
        QStringList lines;
        for (const QString &line : m_engine.lines()) {
            if (line.startsWith(u"write "_s + start))
                lines.append(line.mid(6));
        }
        return lines;
    }
};

const QStringList idleCards = {u"— kbps"_s, u"— Hz"_s, u"—"_s, u"—"_s};

TEST_F(ChainWindow, SignsCanBeReadInTheLightLook)
{
    m_window->setThemeIndex(1);
    play();
    QStringList warned = cleanBlock;
    warned[8] = u"underruns: 12"_s;
    say({u"SRC 44100 16 2 wav 0 60.0"_s});
    say(warned);
    m_window->startBitPerfectCheck();
    say({u"verify: source ok -- FLAC"_s, u"verify: volume FAIL -- scaled"_s,
         u"verify: verdict BITPERFECT=0 | volume"_s});
    QList<QLabel *> signs = chain().verifyDialog->findChildren<QLabel *>(u"vesperCheckMark"_s);
    signs += m_window->findChildren<QLabel *>(u"vesperChainWarnings"_s);
    ASSERT_EQ(signs.size(), 4);
    for (QLabel *sign : signs) {
        sign->ensurePolished();
        const QColor ink = sign->palette().color(QPalette::WindowText);
        EXPECT_GE(contrastRatio(ink.rgb() & 0xFFFFFF, theme::chassis().rgb() & 0xFFFFFF), 4.5)
            << sign->objectName().toStdString() << " " << ink.name().toStdString();
    }
    m_window->setThemeIndex(0);
}

TEST_F(ChainWindow, ThePanelIsBuiltFromTheLabels)
{
    EXPECT_EQ(cards(), idleCards);
    EXPECT_EQ(lamp(), u"off"_s);
    play();
    sayTrack();
    EXPECT_EQ(rows(), (QStringList{u"<b>后端</b> · ALSA hardware"_s, u"<b>DSP</b> · none"_s,
                                   u"<b>音量</b> · on a 16 bit device: unity"_s,
                                   u"<b>结论</b> · YES: nothing changes a bit."_s,
                                   u"<b>链路</b> · clean (x)"_s, u"<b>欠载</b> · 0"_s}));
    EXPECT_EQ(cards(), (QStringList{u"1.41 Mbps"_s, u"44100 Hz"_s, u"2 声道"_s, u"—"_s}));
    EXPECT_EQ(lamp(), u"good"_s);
    EXPECT_EQ(word(), u"位完美"_s);
    say({u"chain: OS mixer (x)"_s});
    EXPECT_EQ(lamp(), u"warn"_s) << "the worst of what is known";
    EXPECT_NE(word(), u"位完美"_s);
}

TEST_F(ChainWindow, AtAnotherTrackNothingOfTheLastOneIsShown)
{
    play();
    sayTrack();
    play(1);
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_EQ(cards(), idleCards);
    EXPECT_EQ(lamp(), u"off"_s);
    EXPECT_EQ(WindowInspector::signal(*m_window).bits, EffectiveBits{});
    EXPECT_FALSE(WindowInspector::lines(*m_window).chain.chainLabels.isEmpty()) << "the stored map survives";
    sayTrack();
    EXPECT_EQ(lamp(), u"good"_s);
}

TEST_F(ChainWindow, ATrackThatTheEngineGoesOnToIsShownFromItsAnnouncement)
{
    play();
    sayTrack();
    say({u"PG 98.30 59.0 60.0"_s});
    ASSERT_TRUE(WindowInspector::preload(*m_window).pending);
    say({u"SRC 96000 24 2 flac 0 30.0"_s});
    EXPECT_TRUE(rows().isEmpty()) << "the old track's chain is not the new one's";
    EXPECT_EQ(cards().at(1), u"96000 Hz"_s);
    EXPECT_EQ(lamp(), u"off"_s);
    say(cleanBlock);
    say({u"PG 0.10 0.1 30.0"_s});
    ASSERT_EQ(WindowInspector::start(*m_window).playingRow, 1);
    EXPECT_EQ(cards().at(1), u"96000 Hz"_s) << "told before the window knew of the change";
    EXPECT_EQ(lamp(), u"good"_s);
}

TEST_F(ChainWindow, AStopDarkensThePanel)
{
    play();
    sayTrack();
    m_window->stopPlayback();
    settle();
    EXPECT_EQ(cards(), idleCards);
    EXPECT_EQ(lamp(), u"off"_s);
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ChainWindow, TheDisplaysWordsNeverClaimMoreThanTheVerdict)
{
    play();
    say({u"SRC 44100 16 2 wav 0 60.0"_s, u"bit-perfect: NO: a fade is under way."_s, u"chain: clean (x)"_s});
    EXPECT_EQ(word(), u"非位完美"_s);
    say({u"bit-perfect: YES: x"_s});
    EXPECT_EQ(word(), u"位完美"_s);
}

TEST_F(ChainWindow, ABlockGoesToAnOpenReportDialog)
{
    play();
    sayTrack();
    EXPECT_EQ(chain().reportDialog, nullptr);
    QPushButton *button = m_window->widgets().report;
    EXPECT_TRUE(button->isEnabled());
    button->click();
    ASSERT_NE(chain().reportDialog, nullptr);
    EXPECT_FALSE(button->isEnabled());
    EXPECT_EQ(written(u"report"_s), QStringList{u"report"_s});
    EXPECT_TRUE(chain().reportDialog->lines().isEmpty());
    say(cleanBlock);
    EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(chain().reportDialog->lines(), cleanBlock.mid(1, cleanBlock.size() - 2));
    EXPECT_TRUE(WindowInspector::lines(*m_window).chain.chainBuffer.isEmpty());
    chain().reportDialog->close();
    say(cleanBlock);
    EXPECT_EQ(chain().reportDialog->lines().size(), cleanBlock.size() - 2)
        << "only an open dialog takes lines";
}

TEST_F(ChainWindow, ABlockWithoutAnEndKeepsCollectingUntilTheNextBegin)
{
    play();
    say({u"SIGNAL CHAIN BEGIN"_s, u"old"_s, u"SIGNAL CHAIN BEGIN"_s, u"new"_s, u"SIGNAL CHAIN END"_s});
    EXPECT_EQ(WindowInspector::signal(*m_window).chainReport, QStringList{u"new"_s});
}

TEST_F(ChainWindow, AReportIsSavedWholeOrSaidToHaveFailed)
{
    play();
    sayTrack();
    m_savePath = m_root.filePath(u"report.txt"_s);
    takeLog();
    m_window->saveChainReport();
    QFile file(m_savePath);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), cleanBlock.mid(1, cleanBlock.size() - 2).join(u'\n').toUtf8() + '\n');
    EXPECT_TRUE(logHas(u"信号链报告已保存：%1"_s.arg(m_savePath)));
    ASSERT_EQ(m_saveAsked.size(), 2);
    EXPECT_EQ(m_saveAsked.first(), u"保存信号链报告"_s);
    EXPECT_TRUE(
        m_saveAsked.last().contains(QRegularExpression(u"/kelp-signal-chain-\\d{8}-\\d{6}\\.txt$"_s)));

    m_savePath = m_root.filePath(u"no/such/folder/report.txt"_s);
    m_window->saveChainReport();
    EXPECT_TRUE(logHas(u"保存信号链报告失败：%1"_s.arg(m_savePath)));
    m_savePath.clear();
    takeLog();
    m_window->saveChainReport();
    EXPECT_FALSE(takeLog().contains(u"信号链报告"_s)) << "a dialog that was left says nothing";
}

TEST_F(ChainWindow, WithoutASessionThereIsNothingToCheck)
{
    m_window->startBitPerfectCheck();
    EXPECT_TRUE(logHas(u"位完美自检：没有播放会话 —— 请先开始播放（没有音频流就无从判断）"_s));
    EXPECT_EQ(chain().verifyDialog, nullptr);
    EXPECT_FALSE(chain().check.verifyActive);
    m_window->onVerifyLine(u"verify: verdict BITPERFECT=1"_s);
    EXPECT_FALSE(chain().check.verifyGotVerdict);
}

TEST_F(ChainWindow, AVerifyLineWithNoCheckRunningIsIgnored)
{
    play();
    say({u"verify: volume ok -- unity"_s, u"verify: verdict BITPERFECT=1 | x"_s});
    EXPECT_TRUE(chain().check.lines.isEmpty());
    EXPECT_FALSE(logHas(u"位完美自检的结论"_s));
}

TEST_F(ChainWindow, ACheckThatPasses)
{
    play();
    sayTrack();
    m_window->widgets().selfCheck->click();
    ASSERT_NE(chain().verifyDialog, nullptr);
    EXPECT_TRUE(chain().verifyDialog->isVisible());
    EXPECT_TRUE(chain().verifyDialog->windowTitle().contains(u"检查中…"_s));
    EXPECT_EQ(written(u"verify"_s), QStringList{u"verify"_s});
    EXPECT_TRUE(logHas(u"位完美自检：已请引擎逐项检查"_s));
    EXPECT_FALSE(chain().check.verifyGotVerdict);
    say({u"verify: source ok -- WAV"_s, u"verify: volume ok -- unity"_s, u"verify: delivery ok -- equal"_s,
         u"verify: verdict BITPERFECT=1 | all 3 stages"_s});
    ASSERT_EQ(chain().verifyList->count(), 4);
    EXPECT_EQ(chain().verifyList->item(0)->text(), u"结论：位完美 ✓  BITPERFECT=1"_s);
    EXPECT_EQ(chain().verifyList->item(1)->text(), u"✓ source — WAV"_s);
    EXPECT_TRUE(chain().check.verifyGotVerdict);
    EXPECT_EQ(chain().verifyDialog->windowTitle(), u"位完美自检 — 通过"_s);
    EXPECT_TRUE(logHas(u"位完美自检的结论：BITPERFECT=1 | all 3 stages"_s));
    EXPECT_EQ(lamp(), u"good"_s);
    if (const QString folder = qEnvironmentVariable("KELP_TEST_PICTURES"); !folder.isEmpty())
        chain().verifyDialog->grab().save(folder + u"/selfcheck-passed.png"_s);

    m_window->startBitPerfectCheck();
    EXPECT_EQ(chain().verifyList->count(), 0) << "a new check begins with an empty list";
    EXPECT_EQ(m_window->findChildren<SelfCheckDialog *>().size(), 1) << "the dialog is made once";
}

TEST_F(ChainWindow, ACheckThatFailsNamesTheFirstStageAndTakesTheGreenAway)
{
    play();
    sayTrack();
    m_window->startBitPerfectCheck();
    say({u"verify: source ok -- FLAC, 16 bit"_s, u"verify: volume FAIL -- scaled by -6 dB"_s,
         u"verify: delivery FAIL -- not known: no record"_s,
         u"verify: verdict BITPERFECT=0 | volume: scaled by -6 dB"_s});
    EXPECT_EQ(chain().verifyDialog->windowTitle(), u"位完美自检 — 未通过"_s);
    EXPECT_TRUE(logHas(u"最先破坏位完美的环节：volume: scaled by -6 dB。"_s));
    EXPECT_EQ(lamp(), u"warn"_s);
    if (const QString folder = qEnvironmentVariable("KELP_TEST_PICTURES"); !folder.isEmpty()) {
        chain().verifyDialog->grab().save(folder + u"/selfcheck-failed.png"_s);
        m_window->resize(1280, 860);
        m_window->grab().save(folder + u"/window-chain.png"_s);
    }
    play(1);
    sayTrack();
    EXPECT_EQ(lamp(), u"good"_s) << "what was found belongs to the track it was found of";
    m_savePath = m_root.filePath(u"r.txt"_s);
    m_window->saveChainReport();
    QFile file(m_savePath);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("verify: verdict BITPERFECT=0"));
}

TEST_F(ChainWindow, AVerdictThatNeverComesLeavesTheDialogChecking)
{
    play();
    m_window->startBitPerfectCheck();
    say({u"verify: source ok -- WAV"_s});
    QTest::qWait(50);
    EXPECT_TRUE(chain().verifyDialog->isVisible());
    EXPECT_TRUE(chain().verifyDialog->windowTitle().contains(u"检查中…"_s));
    chain().verifyDialog->close();
    settle();
    say({u"verify: verdict BITPERFECT=1"_s});
    EXPECT_FALSE(chain().check.verifyGotVerdict) << "a closed dialog waits for nothing";
}

TEST_F(ChainWindow, AnEndlessAnswerIsBounded)
{
    play();
    m_window->startBitPerfectCheck();
    for (int i = 0; i < 2000; ++i)
        m_window->onVerifyLine(u"verify: a ok -- b"_s);
    EXPECT_EQ(chain().check.lines.size(), mostVerifyLines);
    EXPECT_EQ(chain().verifyList->count(), mostVerifyLines);
}

TEST_F(ChainWindow, PureDefaultsInTheirOrder)
{
    play();
    EngineControls *engine = &m_window->engineControls();
    engine->speedRatio->setValue(1.25);
    engine->crossfadeSec->setValue(3.);
    engine->replayGain->setCurrentIndex(2);
    m_window->widgets().dock->volume->setValue(40);
    engine->layoutChoice->setCurrentIndex(1);
    m_engine.calls.clear();
    takeLog();
    m_window->restorePureDefaults();
    EXPECT_EQ(m_engine.lines(),
              (QStringList{u"write fx eq off"_s, u"write fx reverb off"_s, u"write fx hrtf off"_s,
                           u"write fx tone off"_s, u"write fx denoise off"_s, u"write fx plugins off"_s,
                           u"write fx balance 50"_s, u"write fx width 100"_s, u"write speed 1.00"_s,
                           u"write vol 100"_s, u"write verify"_s}));
    EXPECT_EQ(engine->crossfadeSec->value(), 0.);
    EXPECT_EQ(engine->replayGain->currentIndex(), 0);
    EXPECT_EQ(engine->layoutChoice->currentIndex(), 0);
    EXPECT_TRUE(chain().check.verifyActive);
    const QString log = takeLog();
    const qsizetype asked = log.indexOf(u"位完美自检：已请引擎逐项检查"_s);
    const qsizetype restored = log.indexOf(
        u"已恢复纯净默认（效果全关 / 1.0x / 无交叉淡化 / 音量 100 / 布局与主题复位），并已开始位完美自检"_s);
    EXPECT_GE(asked, 0);
    EXPECT_GT(restored, asked);
}

} // namespace
