/// \file
/// A button that is its sign.
#pragma once

#include "ui/glyph_drawing.h"

#include <QPushButton>

class IconButton final : public QPushButton
{
    Q_OBJECT

public:
    static constexpr QSize transportSize{38, 38};
    static constexpr QSize windowSize{30, 26};

    enum class Look
    {
        Plain,
        Play,  ///< a ring around the sign
        Close, ///< red under the pointer
    };

    /// \param name accessible name and tool tip, in the interface's language
    IconButton(Glyph glyph, const QString &name, QWidget *parent = nullptr, Look look = Look::Plain);

    void setGlyph(Glyph glyph);
    Glyph glyph() const { return m_glyph; }
    /// Accessible name and tool tip.
    void setName(const QString &name);
    /// A mode that is switched on: the sign in the accent. A checked button is lit as well.
    void setLit(bool lit);
    bool isLit() const { return m_lit || isChecked(); }

    QSize sizeHint() const override { return size(); }

Q_SIGNALS:
    /// The wheel was turned over the button. \param angleDelta in eighths of a degree, away from the user
    /// positive. Without a listener the wheel goes on to the parent.
    void wheelTurned(int angleDelta);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    struct Colours
    {
        QColor plate;
        QColor ring;
        QColor sign;
    };
    Colours plainColours() const;
    Colours playColours() const;
    Colours closeColours() const;

    Glyph m_glyph;
    Look m_look;
    bool m_lit = false;
};
