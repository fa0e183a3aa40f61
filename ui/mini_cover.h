/// \file
/// The small square cover in the dock.
#pragma once

#include <QAbstractButton>
#include <QImage>
#include <QPixmap>

/// A click asks for the playing row to be shown in the list.
class MiniCover final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit MiniCover(QWidget *parent = nullptr);

    /// A null image shows an empty disc.
    void showCover(const QImage &cover);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_cover;
    QPixmap m_scaled; ///< of m_cover for the screen it was last painted on
};
