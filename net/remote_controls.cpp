#include "net/remote_controls.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

constexpr int usualPort = 7788;
constexpr int leastPort = 1;
constexpr int mostPort = 65535;
constexpr int controlHeight = 30;
constexpr int gap = 8;
constexpr std::chrono::milliseconds lookAgain{2000};

} // namespace

RemoteControls::RemoteControls(QWidget *parent)
    : QWidget(parent)
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(gap);
    auto *row = new QHBoxLayout;
    row->setSpacing(gap);

    enable = new QCheckBox(tr("手机遥控"), this);
    enable->setToolTip(tr("同一 Wi-Fi 里的手机用浏览器控制播放；开启时在本机监听一个端口"));
    enable->setAccessibleDescription(enable->toolTip());
    enable->setMinimumHeight(controlHeight);
    row->addWidget(enable);
    row->addStretch();

    auto *caption = new QLabel(tr("端口"), this);
    caption->setObjectName("vesperSetName"_L1);
    port = new QSpinBox(this);
    port->setRange(leastPort, mostPort);
    port->setValue(usualPort);
    port->setGroupSeparatorShown(false);
    port->setMinimumHeight(controlHeight);
    port->setToolTip(tr("手机遥控的监听端口；在打开开关的那一刻读取"));
    port->setAccessibleName(tr("手机遥控端口"));
    port->setAccessibleDescription(port->toolTip());
    caption->setBuddy(port);
    row->addWidget(caption);
    row->addWidget(port);
    rows->addLayout(row);

    addresses = new QLabel(this);
    addresses->setObjectName("vesperSetName"_L1);
    addresses->setTextFormat(Qt::PlainText);
    addresses->setWordWrap(true);
    // The address is copied or read out; it is never a link, because it is for another machine.
    addresses->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    addresses->setAccessibleName(tr("手机遥控地址"));
    rows->addWidget(addresses);
    showOff();
    connect(enable, &QCheckBox::toggled, this, &RemoteControls::switched);
    m_lookAgain.setInterval(lookAgain);
    connect(&m_lookAgain, &QTimer::timeout, this, &RemoteControls::addressesWanted);
}

void RemoteControls::showSwitch(bool on)
{
    const QSignalBlocker blocker(enable);
    enable->setChecked(on);
}

void RemoteControls::showPort(int number)
{
    const QSignalBlocker blocker(port);
    port->setValue(number >= leastPort && number <= mostPort ? number : usualPort);
}

void RemoteControls::showListening(const QStringList &urls)
{
    // A port that is in use is changed by turning the switch off first.
    port->setEnabled(false);
    addresses->setText(urls.isEmpty()
                           ? tr("本机没有局域网 IPv4 地址")
                           : tr("用手机浏览器打开（手机与电脑在同一 Wi-Fi）：\n%1").arg(urls.join(u'\n')));
}

void RemoteControls::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_lookAgain.start();
    Q_EMIT addressesWanted();
}

void RemoteControls::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_lookAgain.stop();
}

void RemoteControls::showOff()
{
    port->setEnabled(true);
    addresses->setText(tr("手机遥控：已关闭"));
}
