// Nothing is allocated for a frame beyond what the painter itself needs.
#include "painted_test.h"

#include "ui/scope_view.h"
#include "ui/segment_meter.h"
#include "ui/spectrum_view.h"

#include <QApplication>
#include <cstdlib>
#include <new>
#include <vector>

namespace {

// Of this process alone; the tests run on one thread.
long allocations = 0;

} // namespace

void *operator new(std::size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

class PaintAllocation : public PaintedTest
{
protected:
    template<typename Work>
    static long during(Work work)
    {
        const long before = allocations;
        work();
        return allocations - before;
    }

    /// With everything that a first painting sets up already there.
    static long ofPainting(QWidget &widget)
    {
        QImage picture(widget.size(), QImage::Format_RGB32);
        widget.render(&picture);
        return during([&] { widget.render(&picture); });
    }
};

TEST_F(PaintAllocation, ASpectrumOfManyBandsCostsNoMoreThanOneOfNone)
{
    SpectrumView view;
    view.resize(1200, 72);
    view.show();
    const long empty = ofPainting(view);
    std::vector<double> quiet(128, -90.);
    std::vector<double> loud(128, -3.);
    view.showFrame(quiet, quiet, 128);
    EXPECT_EQ(during([&] { view.showFrame(loud, quiet, 128); }), 0);
    EXPECT_EQ(during([&] { view.advance(); }), 0);
    EXPECT_LE(ofPainting(view), empty);
}

TEST_F(PaintAllocation, AScopeOfManyBucketsCostsNoMoreThanOneOfOne)
{
    ScopeView view;
    view.resize(600, 72);
    view.show();
    std::vector<double> low(256, -0.5);
    std::vector<double> high(256, 0.5);
    view.showFrame({low, high}, {low, high}, 1);
    const long one = ofPainting(view);
    EXPECT_EQ(during([&] { view.showFrame({low, high}, {low, high}, 256); }), 0);
    EXPECT_LE(ofPainting(view), one);
}

TEST_F(PaintAllocation, AMeterCostsTheSameWhateverItShows)
{
    SegmentMeter meter;
    meter.resize(480, 12);
    meter.show();
    const long silent = ofPainting(meter);
    MeterReading reading;
    reading.dbfs = 0.;
    EXPECT_EQ(during([&] { meter.showReading(reading); }), 0);
    EXPECT_LE(ofPainting(meter), silent);
}
