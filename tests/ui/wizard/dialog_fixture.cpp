#include "dialog_fixture.h"

#include <QApplication>
#include <QTimer>

#include "generators/generator_contract.h"
#include "ui/wizard/wizard_settings.h"

TemporarySettings::TemporarySettings() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, dir_.path());
    auto store = OpenSettingsStore();
    store->clear();
    store->sync();
}

TemporarySettings::~TemporarySettings() {
    auto store = OpenSettingsStore();
    store->clear();
    store->sync();
}

QString TemporarySettings::Stored(const QString& key) const {
    auto store = OpenSettingsStore();
    return store->value("Wizard/" + key).toString();
}

bool TemporarySettings::Has(const QString& key) const {
    auto store = OpenSettingsStore();
    return store->contains("Wizard/" + key);
}

void TemporarySettings::Set(const QString& key, const QString& value) {
    auto store = OpenSettingsStore();
    store->setValue("Wizard/" + key, value);
    store->sync();
}

namespace {
void Echo(GeneratorWorkspace& ws, const char* what) {
    ws.Statement = std::string(what) + " " + ws.RoutineId + "/" + std::to_string(ws.ItemCount) + "&LF";
    ws.Solution = "Answer&LF";
}

void Sums(GeneratorWorkspace& ws) { Echo(ws, "Sums"); }
void Products(GeneratorWorkspace& ws) { Echo(ws, "Products"); }
void Areas(GeneratorWorkspace& ws) { Echo(ws, "Areas"); }
void ShapeTheory(GeneratorWorkspace& ws) { Echo(ws, "Theory"); }
void OnlyTheory(GeneratorWorkspace& ws) { Echo(ws, "Definitions"); }
void Many(GeneratorWorkspace& ws) { Echo(ws, "Many"); }
template <int N>
void OtherSubject(GeneratorWorkspace& ws) {
    static const char* subjects[4] = {"Physics", "Chemistry", "Biology", "Geology"};
    Echo(ws, subjects[N]);
}

DescribeBlock ManyBlock(int n) {
    return {"040", "Many", "00" + std::to_string(n), "3", "000", "Problem set " + std::to_string(n), "Several"};
}

DescribeBlock OtherSubjectBlock(const char* subject) {
    DescribeBlock block{"010", "Basics", "001", "3", "000", "Basics", "Basics"};
    block.subject = subject;
    return block;
}
}  // namespace

GeneratorModule FakeCatalogueModule() {
    return {"KVOL_FAKE",
            16,
            {{1, Sums, {"010", "Numbers", "001", "1", "020", "Sums", "&DPAdd numbers in steps"}},
             {2, Products, {"010", "Numbers", "002", "2", "012", "Products", "Multiply numbers"}},
             {3, Areas, {"020", "Shapes", "001", "3", "000", "Areas", "Find the area"}},
             {4, ShapeTheory, {"020", "Shapes", "002", "4", "", "Theory of shapes", "Read"}},
             {5, OnlyTheory, {"030", "Only theory", "001", "4", "", "Definitions", "Read"}},
             {6, Many, ManyBlock(1)},
             {7, Many, ManyBlock(2)},
             {8, Many, ManyBlock(3)},
             {9, Many, ManyBlock(4)},
             {10, Many, ManyBlock(5)},
             {11, Many, ManyBlock(6)},
             {12, Many, ManyBlock(7)},
             {13, OtherSubject<0>, OtherSubjectBlock("Physics")},
             {14, OtherSubject<1>, OtherSubjectBlock("Chemistry")},
             {15, OtherSubject<2>, OtherSubjectBlock("Biology")},
             {16, OtherSubject<3>, OtherSubjectBlock("Geology")}}};
}

void ScriptModal(std::function<void(QWidget*)> script) {
    QTimer::singleShot(0, [script] {
        QWidget* modal = QApplication::activeModalWidget();
        script(modal);
    });
}

#include "core/collection.h"
#include "ui/wizard/run_dialogs.h"

bool DialogWindow::ShowWizard() { return RunNewCollectionWizard(app_, nullptr); }
bool DialogWindow::ShowProperties() { return RunCollectionProperties(app_, nullptr); }

CollectionBench::CollectionBench(int n) : app(GeneratorHub({FakeCatalogueModule()})) {
    app.window = &window;
    app.measure = &measure;
    app.ClockSeed = [] { return 77; };
    LoadTOLISTBOX_BUILT_CODE(app, "Mathematics", true, true, true, false);
    for (TopicNode& node : app.TopicTree)
        if (node.label == "Areas") {
            node.selected = true;
            node.amount = n;
        }
    app.Settings.ProblemCount = WantedProblemCount(app);
    Arbol_to_Var(app);
    CrearColeccion(app, 1);
    HayColeccion(app);
}
