#include "ui/wizard/wizard_settings.h"

std::unique_ptr<QSettings> OpenSettingsStore() {
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, "Sumforge RUQ7", "Sumforge RUQ7");
}

QString ReadSetting(QSettings& store, const QString& section, const QString& key, const QString& fallback) {
    store.beginGroup(section);
    QString value = fallback;
    for (const QString& stored : store.childKeys())
        if (stored.compare(key, Qt::CaseInsensitive) == 0) {
            value = store.value(stored).toString();
            break;
        }
    store.endGroup();
    return value;
}

void WriteSetting(QSettings& store, const QString& section, const QString& key, const QString& value) {
    store.beginGroup(section);
    for (const QString& stored : store.childKeys())
        if (stored.compare(key, Qt::CaseInsensitive) == 0 && stored != key) store.remove(stored);
    store.setValue(key, value);
    store.endGroup();
}
