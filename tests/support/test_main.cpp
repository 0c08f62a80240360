#include <QApplication>
#include <gtest/gtest.h>

// Unit tests run with a QApplication so that timers, signals and widgets
// behave as in the program; without a DISPLAY they use the offscreen platform.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
