/// \file
/// How many warnings the signal chain has, where its verdict stands.
#pragma once

#include <QLabel>

/// The triangle with the number of warnings. Drawn in the colour that the style sheet gives it.
class WarningCount final : public QLabel
{
    Q_OBJECT

public:
    explicit WarningCount(QWidget *parent = nullptr);
    /// Hides itself at 0.
    void setCount(int count);

protected:
    void paintEvent(QPaintEvent *event) override;
};
