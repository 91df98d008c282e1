#pragma once
#include <functional>

class QWidget;
struct ApplicationState;

// How the main window shows its two modal settings dialogs: the program hands it the real
// new-collection wizard and properties dialog, tests hand it scripted ones. Each returns
// true when the dialog ended by its accepting button.
struct DialogLauncher {
    std::function<bool(ApplicationState&, QWidget* parent)> wizard;
    std::function<bool(ApplicationState&, QWidget* parent)> properties;
};
