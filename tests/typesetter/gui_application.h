#pragma once
#include <QGuiApplication>

// The one QGuiApplication of the test program, made on first use, offscreen.
inline void EnsureGuiApplication() {
    if (QGuiApplication::instance()) return;
    static int argc = 1;
    static char name[] = "typesetter_tests";
    static char* argv[] = {name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(argc, argv);
}
