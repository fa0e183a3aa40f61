/// \file
/// The tab of one effect: its lamp says that the effect is on, its plate that its page is open.
#pragma once

#include <QPushButton>

class DspTab final : public QPushButton
{
    Q_OBJECT

public:
    static constexpr int fixedHeight = 26;

    explicit DspTab(const QString &text, QWidget *parent = nullptr);

    void setLit(bool lit);
    bool isLit() const { return m_lit; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QFont openFont() const;
    void tellLamp();

    bool m_lit = false;
};
