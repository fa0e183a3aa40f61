#include "playback/self_check_dialog.h"

#include "playback/report_dialog.h"
#include "playback/self_check_marks.h"

#include <QApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A language that runs from right to left, for a while.
class Mirrored
{
public:
    Mirrored() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~Mirrored() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
};

TEST(SelfCheckDialogTest, GrowsWhereItsWordsNeedMoreRoom)
{
    SelfCheckDialog dialog;
    dialog.setStyleSheet(u"QLabel { font-size: 17px; }"_s);
    dialog.begin(
        u"A long title that has to give way to the verdict beside it, and does it by a second line"_s);
    dialog.show();
    const VerifyItem item{u"delivery"_s, QString(u"not known: "_s + QString(120, u'x')), false};
    dialog.showVerdict({u"BITPERFECT=0 | delivery"_s, u"BITPERFECT=0"_s, false}, {item});
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        if (label->isVisible() && label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                << label->objectName().toStdString();
        }
    }
}

TEST(SelfCheckDialogTest, EvidenceStandsAtTheInterfacesLeadingEdge)
{
    const Mirrored mirrored;
    const SelfCheckDialog dialog;
    for (const QLabel *label : dialog.findChildren<QLabel *>(u"vesperCheckEvidence"_s))
        EXPECT_EQ(label->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight | Qt::AlignAbsolute);
}

TEST(SelfCheckDialogTest, RunsThroughACheck)
{
    SelfCheckDialog dialog;
    EXPECT_EQ(dialog.windowTitle(), u"位完美自检"_s);
    EXPECT_EQ(dialog.size(), QSize(720, 640));
    dialog.begin(u"a · hw:1,0"_s);
    EXPECT_TRUE(dialog.windowTitle().contains(u"检查中…"_s));
    QList<VerifyItem> items = {{u"source"_s, u"FLAC"_s, true}};
    dialog.addItem(items.last(), items);
    items.append({u"volume"_s, u"scaled"_s, false});
    dialog.addItem(items.last(), items);
    QListWidget *list = dialog.list();
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(0)->text(), u"✓ source — FLAC"_s);
    EXPECT_EQ(list->item(1)->text(), u"✗ volume — scaled"_s);

    dialog.showVerdict({u"BITPERFECT=0 | volume: scaled"_s, u"BITPERFECT=0"_s, false}, items);
    ASSERT_EQ(list->count(), 3);
    EXPECT_EQ(list->item(0)->text(), u"结论：非位完美 ✗  BITPERFECT=0"_s);
    EXPECT_TRUE(list->item(0)->font().bold());
    EXPECT_EQ(list->item(0)->foreground().color(), QColor(208, 138, 90));
    EXPECT_EQ(dialog.windowTitle(), u"位完美自检 — 未通过"_s);
    EXPECT_TRUE(dialog.findChild<QLabel *>(u"vesperCheckBreak"_s)->text().contains(u"volume: scaled"_s));
    QStringList marks;
    for (const CheckMarkView *mark : dialog.findChildren<CheckMarkView *>())
        marks.append(mark->property("mark").toString());
    EXPECT_EQ(marks, (QStringList{u"proved"_s, u"disproved"_s, u"unproved"_s}));

    dialog.begin({});
    EXPECT_EQ(list->count(), 0);
    EXPECT_TRUE(dialog.windowTitle().contains(u"检查中…"_s));
    EXPECT_TRUE(dialog.findChild<QLabel *>(u"vesperCheckBreak"_s)->isHidden());
    dialog.showVerdict({u"BITPERFECT=1"_s, u"BITPERFECT=1"_s, true}, {});
    EXPECT_EQ(list->item(0)->text(), u"结论：位完美 ✓  BITPERFECT=1"_s);
    EXPECT_EQ(list->item(0)->foreground().color(), QColor(120, 200, 140));
    EXPECT_EQ(dialog.windowTitle(), u"位完美自检 — 通过"_s);
}

TEST(SelfCheckDialogTest, CloseIsTheDefault)
{
    SelfCheckDialog dialog;
    QList<QPushButton *> defaults;
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->isDefault())
            defaults.append(button);
    }
    ASSERT_EQ(defaults.size(), 1);
    dialog.show();
    defaults.first()->click();
    EXPECT_FALSE(dialog.isVisible());
}

TEST(SelfCheckDialogTest, AVerdictOnALightListStandsOnAPlate)
{
    SelfCheckDialog dialog;
    SelfCheckColors colors;
    colors.plate = QColor(43, 39, 32);
    dialog.setColors(colors);
    // Styled items leave their own background out.
    dialog.setStyleSheet(u"QListWidget { background: #FBF9F5; } QListWidget::item { padding: 0 24px; }"_s);
    dialog.showVerdict({u"BITPERFECT=1"_s, u"BITPERFECT=1"_s, true}, {{u"source"_s, {}, true}});
    dialog.addItem({u"source"_s, {}, true}, {});
    dialog.show();
    QApplication::processEvents();
    const QImage picture = dialog.list()->viewport()->grab().toImage();
    const auto leading = [&](int row) {
        const QRect place = dialog.list()->visualItemRect(dialog.list()->item(row));
        return picture.pixelColor(place.left() + 2, place.center().y());
    };
    EXPECT_EQ(leading(0), QColor(43, 39, 32));
    EXPECT_NE(leading(1), QColor(43, 39, 32));
}

TEST(SelfCheckDialogTest, NothingIsCutAtItsSize)
{
    SelfCheckDialog dialog;
    dialog.begin(u"a very long title "_s.repeated(20));
    dialog.show();
    QApplication::processEvents();
    EXPECT_LE(dialog.minimumSizeHint().width(), 720) << "a long title does not widen the dialog";
    EXPECT_LE(dialog.minimumSizeHint().height(), 640);
    for (const auto *statement : dialog.findChildren<CheckStatementView *>())
        EXPECT_GE(statement->height(), statement->minimumSizeHint().height());
}

TEST(CheckMarks, EachIsDrawnInItsOwnWay)
{
    QList<QImage> pictures;
    for (const CheckMark mark :
         {CheckMark::Pending, CheckMark::Proved, CheckMark::Disproved, CheckMark::NotProvable}) {
        CheckMarkView view;
        view.setMark(mark);
        view.resize(32, 32);
        pictures.append(view.grab().toImage());
    }
    for (qsizetype i = 0; i < pictures.size(); ++i) {
        for (qsizetype j = i + 1; j < pictures.size(); ++j)
            EXPECT_NE(pictures[i], pictures[j]) << i << " and " << j;
    }
}

TEST(ReportDialogTest, WarningsAreRed)
{
    ReportDialog dialog;
    dialog.append({u"dsp: none"_s, u"underruns: 12"_s, u"chain: <b>clean</b>"_s});
    EXPECT_EQ(dialog.lines(), (QStringList{u"dsp: none"_s, u"underruns: 12"_s, u"chain: <b>clean</b>"_s}));
    const auto *view = dialog.findChild<QPlainTextEdit *>(u"vesperReport"_s);
    const auto colorOf = [view](int block) {
        const QTextBlock line = view->document()->findBlockByNumber(block);
        return line.begin().fragment().charFormat().foreground().color();
    };
    EXPECT_EQ(colorOf(1), QColor(u"#c0392b"_s));
    EXPECT_NE(colorOf(0), QColor(u"#c0392b"_s));
    EXPECT_NE(colorOf(2), QColor(u"#c0392b"_s)) << "red does not run into the next line";
    EXPECT_TRUE(view->updatesEnabled());
}

TEST(ReportDialogTest, LinesAreKeptAsTheEngineWroteThem)
{
    ReportDialog dialog;
    // Shown as rich text, a run of blanks would be one.
    const QStringList lines = {u"underruns:   12  in a row"_s, u"dsp:   none"_s, QString(),
                               u"chain: a & b"_s};
    dialog.append(lines);
    EXPECT_EQ(dialog.lines(), lines);
    for (int i = 0; i < 5; ++i)
        dialog.append(QStringList(5000, u"x"_s));
    EXPECT_EQ(dialog.lines().size(), 20000) << "the oldest give way";
    EXPECT_EQ(dialog.lines().first(), u"x"_s);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
