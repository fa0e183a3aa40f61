// Widgets without a window server.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Nothing of the machine's own scaling in what the tests measure.
    qunsetenv("QT_SCALE_FACTOR");
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
