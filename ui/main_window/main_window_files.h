#pragma once
#include <QDir>
#include <QFile>
#include <QString>

// Small file helpers shared by the parts of the main window.
namespace main_window {

// Organisation and application both, so that the window and the wizard share one store.
inline constexpr const char* kSettingsApplication = "Sumforge RUQ7";

inline bool EndsWithCol(const QString& name) { return name.endsWith(".col", Qt::CaseInsensitive); }

// A collection file by its name or by its first bytes, whatever it is called.
inline bool IsCollectionFile(const QString& path) {
    if (EndsWithCol(path)) return true;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    return file.read(10) == "#CABECERA(";
}

// On this system a name is already long; a leading "~" is the home folder.
inline QString HallaNombreLargo(const QString& name) {
    if (name == "~") return QDir::homePath();
    if (name.startsWith("~/")) return QDir::homePath() + name.mid(1);
    return name;
}

} // namespace main_window
