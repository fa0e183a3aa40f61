/// \file
/// The dock: what plays now, the transport, the volume.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QSlider>
#include <QToolButton>

/// Three columns, so that play stands on the window's middle axis. Only shows and reports; what a button
/// does is its owner's matter.
class DockBar final : public QFrame
{
    Q_OBJECT

public:
    explicit DockBar(QWidget *parent = nullptr);

    // Children of this widget.
    QToolButton *stop = nullptr;
    QToolButton *previous = nullptr;
    QToolButton *start = nullptr; ///< start, pause and resume in one
    QToolButton *next = nullptr;
    QSlider *volume = nullptr; ///< 0 to 100

    void showTrack(const QString &title, const QString &secondLine);
    /// Sets the slider and its figure without telling anybody: a restored volume is not one that was chosen
    /// now.
    void showVolume(int percent);
    /// What the start button does next, in its sign and its words.
    void showStartAs(bool pauses, const QString &caption);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QToolButton *addButton(const QString &name, const QString &tip);
    void elideTitle();

    QLabel *m_title = nullptr;
    QLabel *m_second = nullptr;
    QLabel *m_volumeText = nullptr;
    QString m_titleText;
    QString m_secondText;
};
