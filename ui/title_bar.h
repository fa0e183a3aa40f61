/// \file
/// The title bar of a window without a frame: what the window is, what is on, the time, the window's buttons.
#pragma once

#include "ui/area_plan.h"
#include "ui/icon_button.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

/// A press moves the window, a double click maximises it or brings it back; the system does both.
class TitleBar final : public QFrame
{
    Q_OBJECT

public:
    explicit TitleBar(QWidget *parent = nullptr);

    QPushButton *brand; ///< child; opens the settings

    void toggleMaximised();
    void showIndicators(bool effects, bool playing);
    void applyPlan(const AreaPlan &plan);
    /// The buttons, for the order of focus.
    QList<QWidget *> windowButtons() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QLabel *addIndicator(const QString &word);
    IconButton *addWindowButton(Glyph glyph, const QString &name);
    void setIndicator(QLabel *indicator, const QString &word, bool on);
    void tick();

    QLabel *m_model;
    QLabel *m_title;
    QLabel *m_power;
    QLabel *m_effects;
    QLabel *m_playing;
    QLabel *m_clock;
    IconButton *m_minimise = nullptr;
    IconButton *m_maximise = nullptr;
    IconButton *m_close = nullptr;
    QTimer m_ticker; ///< once a second, on the second; stops while the bar is hidden
};
