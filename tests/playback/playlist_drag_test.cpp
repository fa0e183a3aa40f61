// Rows on the move and dropped files.
#include "playback/playlist_widget.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A list whose drags do what the test says.
class DraggedList : public PlaylistWidget
{
public:
    std::function<void()> drag;
    int drops = 0;

    void beginDrag() { startDrag(Qt::MoveAction); }
    void drop(QDropEvent &event) { dropEvent(&event); }
    void enter(QDragEnterEvent &event) { dragEnterEvent(&event); }
    void move(QDragMoveEvent &event) { dragMoveEvent(&event); }
    std::unique_ptr<QMimeData> rowData() const
    {
        return std::unique_ptr<QMimeData>(mimeData(selectedItems()));
    }
    const QObject *source = nullptr;

protected:
    void runDrag(Qt::DropActions) override { drag(); }
};

class PlaylistDrag : public testing::Test
{
protected:
    void SetUp() override { fill(6); }
    void fill(int count)
    {
        m_list.clear();
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths.append(u"/m/%1.wav"_s.arg(i));
        m_list.appendFiles(paths);
        m_list.resize(300, 600);
        m_list.show();
        m_list.onFilesDropped = [this](const QStringList &files) { m_dropped += files; };
        m_list.onDragStarted = [this] { ++m_started; };
        m_list.onOrderChanged = [this] { ++m_changed; };
    }
    bool dropUrls(const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        m_list.drop(event);
        return event.isAccepted();
    }

    DraggedList m_list;
    QStringList m_dropped;
    int m_started = 0;
    int m_changed = 0;
};

} // namespace

TEST_F(PlaylistDrag, AnotherOrderIsTold)
{
    m_list.drag = [this] {
        EXPECT_EQ(m_started, 1) << "told before the drag runs";
        m_list.insertItem(3, m_list.takeItem(0));
    };
    m_list.beginDrag();
    EXPECT_EQ(m_changed, 1);
}

TEST_F(PlaylistDrag, ARowPutBackWhereItWasIsNoChange)
{
    m_list.drag = [this] { m_list.insertItem(2, m_list.takeItem(2)); };
    m_list.beginDrag();
    EXPECT_EQ(m_started, 1);
    EXPECT_EQ(m_changed, 0);
}

TEST_F(PlaylistDrag, TwoEqualRowsThatChangePlacesAreNoChange)
{
    m_list.appendFiles({u"/m/0.wav"_s});
    m_list.drag = [this] {
        QListWidgetItem *last = m_list.takeItem(6);
        QListWidgetItem *first = m_list.takeItem(0);
        m_list.insertItem(0, last);
        m_list.addItem(first);
    };
    m_list.beginDrag();
    EXPECT_EQ(m_changed, 0);
}

TEST_F(PlaylistDrag, RowsThatArriveDuringADragAreNoChangeOfOrder)
{
    m_list.drag = [this] { m_list.appendFiles({u"/m/late.wav"_s}); };
    m_list.beginDrag();
    EXPECT_EQ(m_changed, 0);
    m_list.drag = [this] {
        m_list.appendFiles({u"/m/later.wav"_s});
        m_list.moveEntry(0, 3);
    };
    m_list.beginDrag();
    EXPECT_EQ(m_changed, 1) << "but the drop is";
}

TEST_F(PlaylistDrag, WithoutCallbacksNothingIsCalled)
{
    m_list.onDragStarted = {};
    m_list.onOrderChanged = {};
    m_list.onFilesDropped = {};
    m_list.drag = [this] { m_list.insertItem(3, m_list.takeItem(0)); };
    m_list.beginDrag();
    EXPECT_TRUE(dropUrls({QUrl(u"file:///m/x.wav"_s)}));
}

TEST_F(PlaylistDrag, DroppedFilesAreTaken)
{
    EXPECT_TRUE(
        dropUrls({QUrl(u"file:///m/x%20y.wav"_s), QUrl(u"http://host/a.flac"_s), QUrl(u"file:///m"_s)}));
    EXPECT_EQ(m_dropped, (QStringList{u"/m/x y.wav"_s, u"/m"_s})) << "what is no local file is left out";
    EXPECT_EQ(m_list.count(), 6) << "the list itself adds nothing";
}

TEST_F(PlaylistDrag, AddressesAloneAreAcceptedAndNotTold)
{
    EXPECT_TRUE(dropUrls({QUrl(u"http://host/a.flac"_s)}));
    EXPECT_TRUE(m_dropped.isEmpty());
}

TEST_F(PlaylistDrag, ANameThatIsNoUtf8ArrivesMarked)
{
    EXPECT_TRUE(dropUrls({QUrl::fromEncoded("file:///m/%FF.wav")}));
    ASSERT_EQ(m_dropped.size(), 1);
    EXPECT_TRUE(m_dropped.first().contains(QChar::ReplacementCharacter) ||
                m_dropped.first().contains(u"%FF"_s))
        << qPrintable(m_dropped.first());
}

TEST_F(PlaylistDrag, FilesFromOutsideAreWelcomeWhileTheyHover)
{
    QMimeData files;
    files.setUrls({QUrl(u"file:///m/x.wav"_s)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    m_list.enter(enter);
    EXPECT_TRUE(enter.isAccepted());
    QDragMoveEvent move(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    move.ignore();
    m_list.move(move);
    EXPECT_TRUE(move.isAccepted());

    QMimeData text;
    text.setText(u"words"_s);
    QDragEnterEvent words(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    words.ignore();
    m_list.enter(words);
    EXPECT_FALSE(words.isAccepted());
}

TEST_F(PlaylistDrag, RowsGoBetweenRowsAndNeverOntoOne)
{
    for (int row = 0; row < m_list.count(); ++row)
        EXPECT_FALSE(m_list.item(row)->flags() & Qt::ItemIsDropEnabled);
}

TEST_F(PlaylistDrag, TheDataOfDraggedRowsIsSmallWhateverTheirNumber)
{
    fill(5000);
    m_list.selectAll();
    const std::unique_ptr<QMimeData> moved = m_list.rowData();
    EXPECT_FALSE(moved->hasUrls());
    EXPECT_EQ(moved->data(moved->formats().first()).size(), 0);
}
