/// \file
/// The display: what plays, in which format, and where in it we are.
#pragma once

#include <QFrame>
#include <QLabel>

class DisplayPanel final : public QFrame
{
    Q_OBJECT

public:
    explicit DisplayPanel(QWidget *parent = nullptr);

    /// \param row counted from 0; -1 shows the idle texts
    void showTrack(int row, const QString &title, const QString &secondLine, const QString &format);
    void showFormat(const QString &format);
    void showTime(const QString &text, const QString &tip = {});
    /// The transport's state in a word, and whether sound is flowing.
    void showStatus(const QString &word, bool sounding);

    /// Peak levels in dB relative to full scale.
    void showLevels(double leftDb, double rightDb);
    /// What becomes of the samples, in words; \param warns something changes them.
    void showSignal(const QString &words, const QString &tip, bool warns);
    /// The engine's facts on the chain, a line each, as the format's tool tip.
    void showChainFacts(const QString &lines);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitTitle();

    QLabel *m_meta;
    QLabel *m_format;
    QLabel *m_title;
    QLabel *m_second;
    QLabel *m_signal;
    QLabel *m_levels;
    QLabel *m_time;
    QLabel *m_status;
    QString m_titleText;
};
