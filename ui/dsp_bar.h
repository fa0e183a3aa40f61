/// \file
/// The bar of the effects: one tab an effect, and what they all amount to in a line.
#pragma once

#include "ui/area_plan.h"

#include <QFrame>
#include <QLabel>
#include <QList>

class DspTab;
class ElidedLabel;

/// The effect pages do not exist yet: the tabs stand in their places, disabled, and say so.
class DspBar final : public QFrame
{
    Q_OBJECT

public:
    explicit DspBar(QWidget *parent = nullptr);

    /// \param words the effects' states in a line
    /// \param live whether PCM effects act on what is heard now
    void showSummary(const QString &words, bool live);
    /// The lamp of the denoise tab.
    void showDenoise(bool on);
    void applyPlan(const AreaPlan &plan);
    const QList<DspTab *> &tabs() const { return m_tabs; }

private:
    QList<DspTab *> m_tabs;
    ElidedLabel *m_summary;
    QLabel *m_live;
};
