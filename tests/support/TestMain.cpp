#include <QLocale>

// Tests of the core run in a GUI application without widgets (pictures and
// fonts need one); tests of controls and windows in a widget application.
#ifdef QUILLMARK_WIDGET_TESTS
#include <QApplication>
using TestApplication = QApplication;
#else
#include <QGuiApplication>
using TestApplication = QGuiApplication;
#endif

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // Headless whatever the caller's environment says.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    TestApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
