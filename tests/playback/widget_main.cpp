// Widgets on no display.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    // Also where CTest only asks for the names of the tests, and outside of CTest.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
