#pragma once
#include <QSettings>
#include <QString>
#include <memory>

// The program's settings area: application "Sumforge RUQ7". Keys are found whatever their
// case, so that a key stored as "lastpath" reads the same as "LastPath".
std::unique_ptr<QSettings> OpenSettingsStore();
QString ReadSetting(QSettings& store, const QString& section, const QString& key, const QString& fallback);
void WriteSetting(QSettings& store, const QString& section, const QString& key, const QString& value);
