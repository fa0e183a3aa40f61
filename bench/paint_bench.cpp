// What a frame of the painted instruments costs in software, beside filling the same area once.
#include "ui/scope_view.h"
#include "ui/segment_meter.h"
#include "ui/spectrum_view.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>
#include <cmath>
#include <vector>

namespace {

QImage canvas(QSize size, double scale)
{
    QImage image(size * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::black);
    return image;
}

double scaleOf(const benchmark::State &state)
{
    return static_cast<double>(state.range(0)) / 100.;
}

/// Without the bookkeeping of a window: the widget's own painting into a picture.
void paint(benchmark::State &state, QWidget &widget)
{
    QImage image = canvas(widget.size(), scaleOf(state));
    for (auto _ : state) {
        widget.render(&image, {}, {}, QWidget::RenderFlags());
        benchmark::DoNotOptimize(image.bits());
    }
}

std::vector<double> hills(int count, double phase)
{
    std::vector<double> levels;
    for (int i = 0; i < count; ++i)
        levels.push_back(-30. - 25. * std::sin(i * 0.21 + phase));
    return levels;
}

void fillOfTheSameArea(benchmark::State &state)
{
    QImage image = canvas({1200, 72}, scaleOf(state));
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(0, 0, 1200, 72, QColor(12, 12, 15));
        benchmark::DoNotOptimize(image.bits());
    }
}

void spectrumOf128Bands(benchmark::State &state)
{
    SpectrumView view;
    view.resize(1200, 72);
    view.showFrame(hills(128, 0.), hills(128, 1.), 128);
    view.setZones(30, 110, 115);
    paint(state, view);
}

void spectrumOf128BandsAtFullHeight(benchmark::State &state)
{
    SpectrumView view;
    view.resize(1200, 72);
    const std::vector<double> full(128, 0.);
    view.showFrame(full, full, 128);
    paint(state, view);
}

void scopeOf256Buckets(benchmark::State &state)
{
    ScopeView view;
    view.resize(1200, 72);
    const std::vector<double> low(256, -0.9);
    const std::vector<double> high(256, 0.9);
    view.showFrame({low, high}, {low, high}, 256);
    paint(state, view);
}

void meterOf36Segments(benchmark::State &state)
{
    SegmentMeter meter;
    meter.resize(1200, 12);
    MeterReading reading;
    reading.dbfs = -3.;
    meter.showReading(reading);
    paint(state, meter);
}

void stepOf128Bands(benchmark::State &state)
{
    SpectrumView view;
    view.resize(1200, 72);
    view.show();
    bool there = false;
    const std::vector<double> one = hills(128, 0.);
    const std::vector<double> other = hills(128, 2.);
    view.showFrame(one, other, 128);
    for (auto _ : state) {
        there = !there;
        view.showFrame(there ? one : other, other, 128);
        view.advance();
    }
}

BENCHMARK(fillOfTheSameArea)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(spectrumOf128Bands)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(spectrumOf128BandsAtFullHeight)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(scopeOf256Buckets)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(meterOf36Segments)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(stepOf128Bands)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
