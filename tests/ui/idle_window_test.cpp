// What the window says while nothing plays, how it begins, and what it tells of its place.
#include "playback_fixture.h"

#include "tests/support/settings_on_disk.h"
#include "ui/cover_disc.h"
#include "ui/library_panel.h"
#include "ui/mini_cover.h"
#include "ui/title_bar.h"
#include "ui/tools_menu.h"

#include <QDir>
#include <QFile>
#include <QPushButton>

using namespace Qt::StringLiterals;

class IdleWindow : public PlaybackTest
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        makeWindow();
    }
    void TearDown() override
    {
        qunsetenv("KELP_GUI_GEO");
        PlaybackTest::TearDown();
    }
    QString text(const QString &name)
    {
        const auto *label = m_window->findChild<QLabel *>(name);
        return label ? label->text() : u"no such label"_s;
    }
    QString spoken(const QString &name)
    {
        const auto *widget = m_window->findChild<QWidget *>(name);
        return widget ? widget->accessibleName() : u"no such widget"_s;
    }
    QStringList texts(const QString &name)
    {
        QStringList all;
        for (const QLabel *label : m_window->findChildren<QLabel *>(name))
            all.append(label->text());
        return all;
    }
    QStringList captions(const QString &name)
    {
        QStringList all;
        for (const QAbstractButton *button : m_window->findChildren<QAbstractButton *>(name))
            all.append(button->text());
        return all;
    }
};

TEST_F(IdleWindow, TheDisplayIsIdle)
{
    struct Case
    {
        QString name, text;
    };
    for (const Case &label :
         {Case{u"vesperVfdMeta"_s, u"TRACK --"_s}, Case{u"vesperVfdFormat"_s, u"AUDIO"_s},
          Case{u"vesperVfdTime"_s, u"0:00"_s}, Case{u"vesperVfdTotal"_s, u"/ 0:00"_s},
          Case{u"vesperVfdStatus"_s, u"■ STOP"_s}, Case{u"vesperPanelMeta"_s, u"-- / 0"_s},
          Case{u"vesperShown"_s, u"0 / 0"_s}, Case{u"vesperPanelTitle"_s, u"曲库 · TITLE"_s},
          Case{u"vesperTime"_s, u"0:00"_s}, Case{u"vesperWinTitle"_s, u"Kelp Player"_s}})
        EXPECT_EQ(text(label.name), label.text) << qPrintable(label.name);
    EXPECT_EQ(spoken(u"vesperVfdTitle"_s), u"NO DISC"_s);
    EXPECT_EQ(spoken(u"vesperVfdArtist"_s), u"选择曲目或导入音频"_s);
}

TEST_F(IdleWindow, TheDiscThatAPathNamesStandsBehindTheTrack)
{
    addFiles(1);
    ASSERT_TRUE(QDir(m_root.path()).mkdir(u"CD2"_s));
    QFile file(m_root.filePath(u"CD2/a.wav"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const int row = m_window->appendFile(file.fileName());
    m_window->startPlayback(0);
    EXPECT_EQ(text(u"vesperVfdMeta"_s), u"TRACK 01"_s);
    m_window->startPlayback(row);
    EXPECT_EQ(text(u"vesperVfdMeta"_s), u"TRACK 02 · DISC 2"_s);
}

TEST_F(IdleWindow, TheCardsAreNamedAndEmpty)
{
    EXPECT_EQ(texts(u"vesperCardVal"_s), (QStringList{u"— kbps"_s, u"— Hz"_s, u"—"_s, u"—"_s}));
    EXPECT_EQ(texts(u"vesperCardKey"_s),
              (QStringList{u"信号链"_s, u"码率"_s, u"采样率"_s, u"声道"_s, u"播放次数"_s}));
}

TEST_F(IdleWindow, TheThreeIndicatorsAreNamedAndOnlyPowerIsOn)
{
    EXPECT_EQ(texts(u"vesperIndOn"_s), QStringList{u"● POWER"_s});
    EXPECT_EQ(texts(u"vesperInd"_s), (QStringList{u"● DSP"_s, u"● PLAY"_s}));
    addFiles(1);
    m_window->startPlayback(0);
    say(u"PG 1 1 100"_s);
    EXPECT_TRUE(texts(u"vesperIndOn"_s).contains(u"● PLAY"_s));
    m_window->stopPlayback();
    settle();
    EXPECT_TRUE(texts(u"vesperInd"_s).contains(u"● PLAY"_s));
}

TEST_F(IdleWindow, TheFilterChipsStandInTheirOrder)
{
    EXPECT_EQ(captions(u"vesperChip"_s), (QStringList{u"全部"_s, u"DSD"_s, u"PCM"_s, u"镜像"_s}));
}

TEST_F(IdleWindow, TheBannerStandsBehindWhatSettingsAndDevicesHadToSay)
{
    m_window.reset();
    SettingsOnDisk().setValue(u"param/mode"_s, u"no such mode"_s);
    takeLog();
    makeWindow();
    const QString log = takeLog();
    const QStringList lines = log.split(u'\n');
    const qsizetype first = lines.indexOf(u"=== KelpPlayer — DSD 音频播放器 ==="_s);
    ASSERT_GE(first, 0);
    EXPECT_LT(log.indexOf(u"找不到匹配项 no such mode"_s), log.indexOf(u"=== KelpPlayer"_s));
    EXPECT_TRUE(log.contains(u"找不到匹配项 no such mode"_s));
    ASSERT_GT(lines.size(), first + 2);
    EXPECT_TRUE(lines.at(first + 1).startsWith(u"格式: "_s));
    EXPECT_TRUE(lines.at(first + 2).startsWith(u"模式: "_s));
}

TEST_F(IdleWindow, TheInitialSizeIsThatOfTheDesignAndThereIsNoNativeTitle)
{
    EXPECT_EQ(m_window->size(), QSize(1280, 860));
    EXPECT_TRUE(m_window->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(ui().title->height(), 56);
}

TEST_F(IdleWindow, ItsPlaceIsLoggedForWhoeverAsksForIt)
{
    takeLog();
    m_window->noteShown();
    EXPECT_FALSE(takeLog().contains(u"[geo "_s));
    qputenv("KELP_GUI_GEO", "1");
    m_window->noteShown();
    EXPECT_TRUE(takeLog().contains(u"[geo shown] "_s));
    m_window->close();
    EXPECT_TRUE(takeLog().contains(u"[geo closed] "_s));
}

TEST_F(IdleWindow, ItsDevicesAreListedBeforeItIsDone)
{
    // The fixture's listing answers only when the window waits for it.
    EXPECT_EQ(ui().device->count(), 3) << "none chosen, and the two of the list";
}
