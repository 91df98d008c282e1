#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

// The window tests need one application object for the whole run; they run offscreen.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    // The paper a window starts with follows the locale: the tests keep A4 wherever they run.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
