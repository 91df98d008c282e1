#pragma once
#include <QSettings>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <string>

#include "core/application_state.h"

// A settings store in a temporary folder, never the user's.
class TemporarySettings {
public:
    TemporarySettings();
    ~TemporarySettings();
    // Reads a key of the "Wizard" section exactly as stored (case counts here).
    QString Stored(const QString& key) const;
    bool Has(const QString& key) const;
    void Set(const QString& key, const QString& value);

private:
    QTemporaryDir dir_;
};

// A small catalogue: five subjects; in "Mathematics" the topics "Numbers" (a progressive
// questions drill, an exercises drill), "Shapes" (problems, theory), "Only theory" (a
// theory leaf only) and "Many" (eight problem leaves).
GeneratorModule FakeCatalogueModule();

// Runs script on the modal dialog as soon as it shows.
void ScriptModal(std::function<void(QWidget*)> script);
