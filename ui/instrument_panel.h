/// \file
/// The frame of everything that measures: meters, bits lamp, spectrum and scope.
#pragma once

#include "ui/meter_reading.h"

#include <QWidget>

class BitsLed;
class MeterScale;
class QLabel;
class ScopeView;
class SegmentMeter;
class SpectrumView;

/// Its parts are placed by hand, in device-independent pixels, and never mirrored: levels, frequency and time
/// run from left to right in every language. The height follows from compact or not; the width is free.
class InstrumentPanel final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int fullHeight = 168;
    static constexpr int compactHeight = 124;

    explicit InstrumentPanel(QWidget *parent = nullptr);

    /// Without scale and captions, with less padding.
    void setCompact(bool compact);
    bool isCompact() const { return m_compact; }

    void showLevels(const MeterReading &left, const MeterReading &right);
    /// The red of a clip has stood long enough.
    void endClip();
    /// See BitsLed::showBits. \param tip of the lamp, in the interface's language
    void showBits(int bits, int state, const QString &tip);
    /// Back to the idle state: no level, no frame and no reason for it. The bits lamp stays.
    void clear();

    SpectrumView *spectrum() const { return m_spectrum; }
    ScopeView *scope() const { return m_scope; }
    BitsLed *bits() const { return m_bits; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Channel
    {
        QLabel *letter;
        SegmentMeter *meter;
        QLabel *level;
    };
    Channel addChannel(const QString &letter, const QString &name);
    void showLevel(const Channel &channel, const MeterReading &reading);
    void place();
    void placeViews(int left, int right, int top);

    Channel m_left;
    Channel m_right;
    BitsLed *m_bits;
    MeterScale *m_scale;
    QLabel *m_spectrumCaption;
    QLabel *m_scopeCaption;
    SpectrumView *m_spectrum;
    ScopeView *m_scope;
    int m_bandCount; ///< of the last frame, so that silence moves nothing
    bool m_compact = false;
};
