// The window as the phone remote's host: what a phone sees of it and what it may do to it.
#include "window_fixture.h"

#include "app/settings_store.h"
#include "net/remote_controls.h"
#include "net/remote_server.h"
#include "platform/settings_table.h"
#include "ui/dock_bar.h"

#include "tests/support/patience.h"

#include <QCheckBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using kelp_test::patienceMs;

/// None of those that the system gives to whoever connects, as other tests do at the same time.
quint16 freePort()
{
    QTcpServer probe;
    for (int tries = 0; tries < 1000 && !probe.isListening(); ++tries)
        probe.listen(QHostAddress::AnyIPv4,
                     static_cast<quint16>(QRandomGenerator::system()->bounded(20'000, 32'000)));
    EXPECT_TRUE(probe.isListening());
    return probe.serverPort();
}

} // namespace

class PhoneRemote : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        m_makeRemote = [](const RemoteHost &host, QObject *parent, QString &) {
            return new RemoteServer(host, parent);
        };
        m_port = freePort();
        writeUserSetting(settings::remotePort, m_port);
    }
    void makeListening(int rows)
    {
        makeWindow();
        addFiles(rows);
        writeUserSetting(settings::remoteOn, true);
        m_window->restoreRemote();
        ASSERT_TRUE(state().remoteEnabled) << qPrintable(takeLog());
    }
    /// Switched on by the listener, it goes back and stays off.
    void expectRefused()
    {
        makeWindow();
        m_window->restoreRemote();
        controls().enable->click();
        EXPECT_FALSE(controls().enable->isChecked());
        EXPECT_FALSE(state().remoteEnabled);
        EXPECT_FALSE(state().remoteServer);
        EXPECT_FALSE(readUserSetting(settings::remoteOn));
    }
    PhoneRemoteState &state() { return WindowInspector::remote(*m_window); }
    RemoteControls &controls() { return m_window->remoteControls(); }
    QString token() { return m_window->remoteToken(); }

    /// Status and body.
    std::pair<int, QByteArray> fetch(const QString &target)
    {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, m_port);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return socket.state() == QTcpSocket::ConnectedState; }, patienceMs));
        socket.write("GET " + target.toUtf8() + " HTTP/1.1\r\n\r\n");
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return socket.state() == QTcpSocket::UnconnectedState; }, patienceMs));
        const QByteArray answer = socket.readAll();
        return {answer.mid(9, 3).toInt(), answer.mid(answer.indexOf("\r\n\r\n") + 4)};
    }
    QJsonObject ask(const QString &target)
    {
        const auto [status, body] = fetch(target + (target.contains(u'?') ? u"&t="_s : u"?t="_s) + token());
        EXPECT_EQ(status, 200) << body.constData();
        return QJsonDocument::fromJson(body).object();
    }
    QJsonObject tell(const QString &command) { return ask(u"/cmd?do="_s + command); }

    quint16 m_port = 0;
};

TEST_F(PhoneRemote, IsOffByDefaultAndSaysNothing)
{
    makeWindow();
    m_window->restoreRemote();
    EXPECT_FALSE(state().remoteEnabled);
    EXPECT_FALSE(state().remoteServer);
    EXPECT_FALSE(controls().enable->isChecked());
    EXPECT_EQ(controls().port->value(), m_port);
    EXPECT_TRUE(m_window->remoteAddresses().isEmpty());
    EXPECT_FALSE(logHas(u"手机遥控"_s));
}

TEST_F(PhoneRemote, TheStoredSwitchTurnsItOnAtTheStart)
{
    makeListening(0);
    EXPECT_TRUE(controls().enable->isChecked());
    EXPECT_TRUE(logHas(u"手机遥控：已打开，端口 %1，令牌 %2"_s.arg(m_port).arg(token())));
    for (const QString &url : m_window->remoteAddresses()) {
        EXPECT_TRUE(url.startsWith(u"http://"_s) && url.endsWith(u":%1/?t=%2"_s.arg(m_port).arg(token())));
        EXPECT_TRUE(logHas(u"手机遥控地址：%1"_s.arg(url)));
        EXPECT_TRUE(controls().addresses->text().contains(url));
    }
    EXPECT_EQ(fetch(u"/hello"_s).second, QByteArray(R"({"name":"Kelp Player","needToken":true})"));
}

TEST_F(PhoneRemote, TheAddressesAreThoseOfTheMomentTheyAreLookedAt)
{
    makeListening(0);
    const QString now = controls().addresses->text();
    // Switched on before the network was there.
    controls().showListening({});
    const QString before = controls().addresses->text();
    m_window->openSetup();
    EXPECT_TRUE(QTest::qWaitFor([&] { return controls().isVisible(); }, patienceMs));
    EXPECT_EQ(controls().addresses->text(), now);
    EXPECT_EQ(now == before, m_window->remoteAddresses().isEmpty());
    // A port that is being typed stays while the remote is off.
    controls().enable->click();
    controls().port->setValue(m_port == 4321 ? 4322 : 4321);
    const int typed = controls().port->value();
    Q_EMIT controls().addressesWanted();
    EXPECT_EQ(controls().port->value(), typed);
    EXPECT_EQ(controls().addresses->text(), u"手机遥控：已关闭"_s);
}

TEST_F(PhoneRemote, TheSwitchStoresItsPortAndItself)
{
    makeWindow();
    m_window->restoreRemote();
    const quint16 other = freePort();
    controls().port->setValue(other);
    EXPECT_EQ(readUserSetting(settings::remotePort), m_port) << "the port is read when the switch is turned";
    controls().enable->click();
    EXPECT_EQ(readUserSetting(settings::remotePort), other);
    EXPECT_TRUE(readUserSetting(settings::remoteOn));
    EXPECT_TRUE(state().remoteEnabled);
    EXPECT_EQ(state().remoteServer->port(), other);
    controls().enable->click();
    EXPECT_FALSE(readUserSetting(settings::remoteOn));
    EXPECT_FALSE(state().remoteServer);
    EXPECT_TRUE(logHas(u"手机遥控：已关闭（端口不再监听）"_s));
}

TEST_F(PhoneRemote, AfterOffAndOnTheOldUrlIsRefused)
{
    makeListening(1);
    const QString old = u"/state?t="_s + token();
    EXPECT_EQ(fetch(old).first, 200);
    controls().enable->click();
    controls().enable->click();
    EXPECT_EQ(fetch(old).first, 401);
    EXPECT_TRUE(logHas(u"手机遥控：拒绝了一个令牌不对的请求（/state）"_s));
    EXPECT_EQ(fetch(u"/state?t="_s + token()).first, 200);
}

TEST_F(PhoneRemote, OfflineModeRefusesIt)
{
    writeUserSetting(settings::offlineMode, true);
    expectRefused();
    EXPECT_TRUE(logHas(u"拒绝了 手机遥控(监听端口)"_s));
    QTcpServer free;
    EXPECT_TRUE(free.listen(QHostAddress::AnyIPv4, m_port));
}

TEST_F(PhoneRemote, APortInUseLeavesItOff)
{
    QTcpServer holder;
    ASSERT_TRUE(holder.listen(QHostAddress::AnyIPv4, m_port));
    makeWindow();
    m_window->restoreRemote();
    controls().enable->click();
    EXPECT_FALSE(controls().enable->isChecked());
    EXPECT_FALSE(state().remoteEnabled);
    EXPECT_TRUE(logHas(u"手机遥控：无法监听端口 %1（"_s.arg(m_port)));
    EXPECT_FALSE(logHas(u"不再监听"_s));
    EXPECT_FALSE(readUserSetting(settings::remoteOn));
}

TEST_F(PhoneRemote, NothingCurrentIsMinusOneAndEmptyTexts)
{
    makeListening(0);
    const QJsonObject shown = ask(u"/state"_s);
    EXPECT_EQ(shown[u"track"_s].toInt(), -1);
    EXPECT_EQ(shown[u"total"_s].toInt(), 0);
    for (const QString &key : {u"title"_s, u"artist"_s, u"album"_s, u"format"_s})
        EXPECT_EQ(shown[key].toString(u"?"_s), QString()) << qPrintable(key);
    EXPECT_EQ(tell(u"prev"_s)[u"track"_s].toInt(), -1) << "without effect, and answered";
}

TEST_F(PhoneRemote, PlayPauseAndStop)
{
    makeListening(3);
    m_window->widgets().playlist->setCurrentRow(1);
    EXPECT_EQ(ask(u"/state"_s)[u"track"_s].toInt(), 1) << "the current row while nothing plays";
    QJsonObject shown = tell(u"play"_s);
    EXPECT_TRUE(shown[u"playing"_s].toBool());
    EXPECT_EQ(shown[u"track"_s].toInt(), 1);
    EXPECT_EQ(shown[u"title"_s].toString(), u"b.wav"_s);
    EXPECT_EQ(shown[u"format"_s].toString(), u"WAV"_s);
    m_window->widgets().playlist->setCurrentRow(2);
    EXPECT_EQ(ask(u"/state"_s)[u"track"_s].toInt(), 1) << "the playing row, whatever is selected";
    EXPECT_FALSE(tell(u"play"_s)[u"paused"_s].toBool()) << "already playing: nothing";
    EXPECT_TRUE(tell(u"pause"_s)[u"paused"_s].toBool());
    EXPECT_TRUE(tell(u"pause"_s)[u"paused"_s].toBool()) << "already paused: nothing";
    EXPECT_FALSE(tell(u"play"_s)[u"paused"_s].toBool());
    EXPECT_TRUE(tell(u"toggle"_s)[u"paused"_s].toBool());
    shown = tell(u"stop"_s);
    EXPECT_FALSE(shown[u"playing"_s].toBool());
    EXPECT_FALSE(shown[u"paused"_s].toBool());
}

TEST_F(PhoneRemote, PauseWithNothingRunningStartsTheCurrentRow)
{
    makeListening(2);
    m_window->widgets().playlist->setCurrentRow(1);
    const QJsonObject shown = tell(u"pause"_s);
    EXPECT_TRUE(shown[u"playing"_s].toBool());
    EXPECT_FALSE(shown[u"paused"_s].toBool());
    EXPECT_EQ(shown[u"track"_s].toInt(), 1);
}

TEST_F(PhoneRemote, NextPreviousAndPlayAt)
{
    makeListening(3);
    EXPECT_EQ(tell(u"playat&i=0"_s)[u"track"_s].toInt(), 0);
    EXPECT_EQ(tell(u"next"_s)[u"track"_s].toInt(), 1);
    EXPECT_EQ(tell(u"next"_s)[u"track"_s].toInt(), 2);
    EXPECT_EQ(tell(u"next"_s)[u"track"_s].toInt(), 2) << "the end of the list";
    EXPECT_EQ(tell(u"prev"_s)[u"track"_s].toInt(), 1);
    EXPECT_EQ(tell(u"playat&i=2147483647"_s)[u"track"_s].toInt(), 1) << "no such row: nothing";
}

TEST_F(PhoneRemote, TheVolumeIsTheSlider)
{
    makeListening(1);
    tell(u"play"_s);
    QJsonObject shown = tell(u"vol&v=37"_s);
    EXPECT_EQ(shown[u"volume"_s].toInt(), 37);
    EXPECT_FALSE(shown[u"muted"_s].toBool());
    EXPECT_EQ(m_window->widgets().dock->volume->value(), 37);
    EXPECT_TRUE(m_engine.did(u"write vol 37"_s));
    EXPECT_EQ(readUserSetting(settings::volume), 37);
    EXPECT_TRUE(tell(u"vol&v=0"_s)[u"muted"_s].toBool());
    EXPECT_EQ(fetch(u"/cmd?do=vol&v=101&t="_s + token()).first, 400);
    EXPECT_EQ(m_window->widgets().dock->volume->value(), 0);
}

TEST_F(PhoneRemote, PositionAndLengthAreNeverFilled)
{
    makeListening(1);
    tell(u"play"_s);
    m_window->onEngineLine(u"PG 0.5 30.0 60.0"_s, false);
    EXPECT_TRUE(fetch(u"/state?t="_s + token()).second.contains(R"("pos":0.00,"dur":0.00)"));
}

TEST_F(PhoneRemote, TheLibraryLeavesOutHiddenRowsAndCountsThem)
{
    makeListening(4);
    m_window->widgets().playlist->item(1)->setHidden(true);
    tell(u"playat&i=2"_s);
    const QJsonObject library = ask(u"/library"_s);
    EXPECT_EQ(library[u"total"_s].toInt(), 4);
    const QJsonArray items = library[u"items"_s].toArray();
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[1][u"i"_s].toInt(), 1) << "its position in the answer";
    EXPECT_EQ(items[1][u"title"_s].toString(), u"c.wav"_s);
    EXPECT_TRUE(items[1][u"current"_s].toBool());
    EXPECT_FALSE(items[0][u"current"_s].toBool());
    EXPECT_EQ(ask(u"/library?n=0"_s)[u"items"_s].toArray().size(), 1);
    EXPECT_EQ(ask(u"/library?n=2"_s)[u"items"_s].toArray().size(), 2);
}

TEST_F(PhoneRemote, TheLibraryHasAThousandRowsAtMost)
{
    makeListening(0);
    for (int i = 0; i < 1200; ++i)
        m_window->appendFile(u"/x/%1.flac"_s.arg(i));
    EXPECT_EQ(ask(u"/library?n=5000"_s)[u"items"_s].toArray().size(), 1000);
    EXPECT_EQ(ask(u"/library?n=5000"_s)[u"total"_s].toInt(), 1200);
    EXPECT_EQ(ask(u"/library"_s)[u"items"_s].toArray().size(), 200);
}

TEST_F(PhoneRemote, WithoutItsLibraryTheSwitchGoesBack)
{
    m_makeRemote = [](const RemoteHost &, QObject *, QString &error) {
        error = u"not found: libkelp_player_net.so"_s;
        return nullptr;
    };
    expectRefused();
    EXPECT_TRUE(logHas(u"手机遥控：无法监听端口 %1（not found: libkelp_player_net.so）"_s.arg(m_port)));
}
