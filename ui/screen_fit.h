#pragma once
#include <QSize>

class QWidget;

// Gives a top-level window the wanted size, or less where the screen is smaller, and puts it
// inside the available area of its screen (without the panels), centred on its parent when it
// has one. At any scale factor no button ends up off the screen.
void FitInsideScreen(QWidget& window, QSize wanted);

// Keeps a window that is already sized inside the available area of its screen.
void KeepInsideScreen(QWidget& window);
