/// \file
/// The dock: what plays now, the transport, the volume, the tools.
#pragma once

#include "ui/area_plan.h"
#include "ui/icon_button.h"

#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

class ElidedLabel;
class MiniCover;

/// Three columns, so that play stands on the window's middle axis. Only shows and reports; what a button
/// does is its owner's matter. The transport is never mirrored.
class DockBar final : public QFrame
{
    Q_OBJECT

public:
    explicit DockBar(QWidget *parent = nullptr);

    // Children of this widget.
    MiniCover *miniCover = nullptr;
    IconButton *order = nullptr;
    IconButton *stop = nullptr;
    IconButton *previous = nullptr;
    IconButton *start = nullptr; ///< start, pause and resume in one
    IconButton *next = nullptr;
    IconButton *repeat = nullptr;
    IconButton *lyrics = nullptr;
    IconButton *mute = nullptr;
    QSlider *volume = nullptr; ///< 0 to 100
    QPushButton *tools = nullptr;

    void showTrack(const QString &title, const QString &secondLine);
    void showCover(const QImage &cover);
    /// Sets the slider and its figure without telling anybody: a restored volume is not one that was chosen
    /// now.
    void showVolume(int percent);
    /// What the start button does next, in its sign and its words.
    void showStartAs(bool pauses, const QString &caption);
    /// The order and the repeat that are chosen: their signs, their words, and whether they are on.
    void showModes(int orderAxis, int repeatAxis);
    void applyPlan(const AreaPlan &plan);
    /// All controls from left to right, for the order of focus.
    QList<QWidget *> controls() const;

private:
    QWidget *area(QLatin1StringView name, QLayout *content);
    QLayout *buildNow();
    QWidget *buildTransport();
    QLayout *buildRight();
    IconButton *addButton(QWidget *parent, Glyph glyph, const QString &name, const QString &tip);
    void refreshVolume(int percent);

    ElidedLabel *m_title = nullptr;
    ElidedLabel *m_second = nullptr;
    QLabel *m_volumeText = nullptr;
};
