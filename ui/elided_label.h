/// \file
/// A line of text that elides where it has no room.
#pragma once

#include <QLabel>

/// The whole text is the tool tip while it is elided, unless another tip was given.
class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr, Qt::TextElideMode mode = Qt::ElideRight);

    /// \param tip shown instead of the whole text; may be empty
    void setWhole(const QString &text, const QString &tip = {});
    QString whole() const { return m_whole; }

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void elide();

    Qt::TextElideMode m_mode;
    QString m_whole;
    QString m_tip;
};
