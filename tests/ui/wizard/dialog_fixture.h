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

// A window whose settings dialogs are the real ones; counts the page measurements, that
// is the compositions.
class DialogWindow : public QuietWindow {
public:
    explicit DialogWindow(ApplicationState& app) : app_(app) {}
    bool ShowWizard() override;
    bool ShowProperties() override;

private:
    ApplicationState& app_;
};

class CountingMeasure : public FitAllMeasure {
public:
    std::int32_t MeasurePage(const std::string& text, double zoomScale, bool pageNumberAtFoot) override {
        ++calls;
        return FitAllMeasure::MeasurePage(text, zoomScale, pageNumberAtFoot);
    }
    int calls = 0;
};

// A state over the small catalogue with a collection of n problems of "Areas" in hand.
struct CollectionBench {
    explicit CollectionBench(int n = 3);
    TemporarySettings settings;
    ApplicationState app;
    DialogWindow window{app};
    CountingMeasure measure;
};
