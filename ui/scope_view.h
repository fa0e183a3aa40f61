/// \file
/// The waveform of the last moment: the left channel above, the right one below and dimmer.
#pragma once

#include "ui/spoken_value.h"

#include <QWidget>
#include <array>
#include <span>

class ScopeView final : public QWidget, public SpokenValue
{
    Q_OBJECT

public:
    static constexpr int fixedHeight = 72;
    static constexpr int leastWidth = 100;
    static constexpr int mostBuckets = 256;

    /// Smallest and largest sample of each bucket, -1 … 1; both of bucketCount values.
    struct Channel
    {
        std::span<const double> least;
        std::span<const double> most;
    };

    explicit ScopeView(QWidget *parent = nullptr);

    /// \param bucketCount 1 … mostBuckets; a frame that does not fit changes nothing
    void showFrame(const Channel &left, const Channel &right, int bucketCount);
    /// No buckets; the idle text tells why.
    void clear();
    /// No buckets, because this path carries no PCM.
    void showNoPcm(const QString &text);
    /// What stands in an empty view; an empty text brings back the first one, that nothing plays.
    void setIdleText(const QString &text);
    QString idleText() const { return m_idleText; }

    int bucketCount() const { return m_bucketCount; }

    QString spokenValue() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    using Samples = std::array<double, mostBuckets>;

    void setReason(bool noPcm, const QString &text);
    QString emptyText() const { return m_noPcm ? m_noPcmText : m_idleText; }
    void tellEmptyText();
    void paintWave(QPainter &painter) const;

    Samples m_leftLeast{};
    Samples m_leftMost{};
    Samples m_rightLeast{};
    Samples m_rightMost{};
    int m_bucketCount = 0;
    bool m_noPcm = false;
    QString m_noPcmText;
    QString m_idleText;
};
