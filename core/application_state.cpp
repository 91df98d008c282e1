#include "core/application_state.h"

#include <chrono>


void PageMarks::Clear() {
    MarkCount = 0;
    MarkTop.clear();
    MarkBottom.clear();
    MarkSelected.clear();
    MarkProblem.clear();
}

void PageMarks::Add(std::int32_t problem, double top, double bottom) {
    if (MarkCount >= kMarkCapacity) return;
    ++MarkCount;
    MarkTop.push_back(top);
    MarkBottom.push_back(bottom);
    MarkSelected.push_back(false);
    MarkProblem.push_back(problem);
}

ApplicationState::ApplicationState() : ApplicationState(GeneratorHub()) {}

ApplicationState::ApplicationState(GeneratorHub generators)
    : Problems(kMaxProblems + 1),
      Blocks(kMaxBlocks + 1),
      hub(std::move(generators)),
      clipboard(&quietClipboard_),
      menus(&quietMenus_),
      window(&quietWindow_),
      measure(&fitAll_) {
    // The number texts are set once, for the generators and the number services.
    hub.Workspace().symbols = numberTexts;
    ToolVisible.fill(true);
    ToolEnabled.fill(true);
    for (int i = 2; i <= 7; ++i) ToolEnabled[i] = false;
    ClockSeed = [] {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        return static_cast<std::int32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count() %
                                         86400000);
    };
}

void ApplicationState::Reseed() { hub.Workspace().stream.SeedStream(ClockSeed()); }

std::string SolutionWord(const std::string& language) {
    if (language == "ENG") return "Solution";
    if (language == "ESP") return "Soluci\u00F3n";
    return "";
}

std::string SolutionsWord(const std::string& language) {
    if (language == "ENG") return "Solutions";
    if (language == "ESP") return "Soluciones";
    return "";
}

void AddModuleName(ApplicationState& app, const std::string& name) {
    for (const auto& known : app.ModuleNames)
        if (known == name) return;
    if (static_cast<int>(app.ModuleNames.size()) < kMaxModuleNames) app.ModuleNames.push_back(name);
}

void NoColeccion(ApplicationState& app) {
    app.window->SetWaitCursor(false);
    app.window->SetBusy(false);
    app.menus->SetEnabled("tbToolbar1", true);
    app.menus->SetEnabled("mnu_File", true);
    app.menus->SetEnabled("mnu_Help", true);
    app.Settings.ProblemCount = 0;
    app.CurrentPage = 1;
    app.window->SetPageLabel("");
    app.window->SetCaption(app.ApplicationTitle);
    app.Modified = false;
    app.CurrentFileName.clear();
    app.menus->SetVisible("mnu_Edicion", false);
    app.menus->SetVisible("mnu_COLEC", false);
    for (const char* item : {"mnu_File_Print", "mnu_File_Repetir", "mnu_File_Save", "mnu_File_SaveAs",
                             "mnu_File_Versions", "mnu_File_SaveVersion"})
        app.menus->SetEnabled(item, false);
    app.Settings.ProblemCount = 0;
    app.UndoSnapshot.available = false;
    app.RedoSnapshot.available = false;
    app.UndoCaption = "Cannot undo";
    app.RedoCaption = "Cannot redo";
    app.menus->SetCaption("mnu_Edicion_Undo", app.UndoCaption);
    app.menus->SetCaption("mnu_Edicion_Redo", app.RedoCaption);
    app.menus->SetEnabled("mnu_Edicion_Undo", false);
    app.menus->SetEnabled("mnu_Edicion_Redo", false);
    app.ModuleNames.clear();
    app.BlockCount = 0;
    app.Marks.Clear();
    for (int i : {2, 3, 6, 7, 8, 9}) app.ToolEnabled[i] = false;
    for (int i = 4; i <= 8; ++i) app.ToolVisible[i] = false;
    app.menus->ActualizarBotones();
}

void HayColeccion(ApplicationState& app) {
    app.window->SetWaitCursor(false);
    app.window->SetBusy(false);
    for (const char* item : {"tbToolbar1", "mnu_File", "mnu_Help"}) app.menus->SetEnabled(item, true);
    app.menus->SetVisible("mnu_Edicion", true);
    app.menus->SetVisible("mnu_COLEC", true);
    for (const char* item : {"mnu_File_Print", "mnu_File_Repetir", "mnu_File_Save", "mnu_File_SaveAs",
                             "mnu_File_Versions", "mnu_File_SaveVersion"})
        app.menus->SetEnabled(item, true);
    app.ToolEnabled[2] = app.ToolEnabled[3] = true;
    app.ToolEnabled[6] = app.ToolEnabled[7] = false;
    app.ToolEnabled[9] = true;
    bool clipboardHolds = false;
    if (app.clipboard->HasText()) clipboardHolds = IsProblemClipboardText(app.clipboard->Text());
    if (clipboardHolds) {
        app.menus->SetEnabled("mnu_Edicion_Paste", true);
        app.ToolEnabled[8] = true;
    }
    for (int i = 4; i <= 8; ++i) app.ToolVisible[i] = app.EditButtonsShown;
    app.menus->ActualizarBotones();
}
