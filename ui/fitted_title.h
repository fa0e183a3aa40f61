/// \file
/// A title in the largest of a few sizes that shows the whole of it.
#pragma once

#include <QFont>
#include <QList>
#include <QStringList>
#include <QWidget>

/// Wraps at words; only the smallest size may elide, and then the whole text is the tool tip. As high as its
/// lines.
class FittedTitle final : public QWidget
{
    Q_OBJECT

public:
    explicit FittedTitle(QWidget *parent = nullptr);

    void setText(const QString &text);
    QString text() const { return m_text; }
    /// \param pixels the largest size allowed
    /// \param height what there is for the lines
    void setRoom(int pixels, int height);
    /// The size in use, in pixels.
    int pixels() const { return m_font.pixelSize(); }
    bool isElided() const { return m_elided; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// Breaks the text into the lines that are drawn.
    void fit();
    bool breakLines(int pixels, bool mayElide);

    QString m_text;
    QFont m_font;
    QStringList m_lines;
    int m_mostPixels;
    int m_room = 0; ///< in height
    bool m_elided = false;
};
