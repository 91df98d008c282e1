#include "core/editing.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "core/col_file.h"
#include "core/collection.h"
#include "core/composition.h"

namespace {
void SnapshotInto(const ApplicationState& app, CollectionSnapshot& snapshot) {
    snapshot.settings = app.Settings;
    snapshot.problems.assign(app.Problems.begin() + 1, app.Problems.begin() + 1 + app.ProblemCount());
    snapshot.fileName = app.CurrentFileName;
}

void RestoreFrom(ApplicationState& app, const CollectionSnapshot& snapshot) {
    for (std::size_t i = 0; i < snapshot.problems.size() && i < static_cast<std::size_t>(kMaxProblems); ++i)
        app.Problems[i + 1] = snapshot.problems[i];
    app.CurrentFileName = snapshot.fileName;
}

void SetUndoItem(ApplicationState& app, const std::string& caption, bool enabled) {
    app.UndoCaption = caption;
    app.menus->SetCaption("mnu_Edicion_Undo", caption);
    app.menus->SetToolTip(4, caption);
    app.menus->SetEnabled("mnu_Edicion_Undo", enabled);
    app.ToolEnabled[4] = enabled;
    app.UndoSnapshot.available = enabled;
}

void SetRedoItem(ApplicationState& app, const std::string& caption, bool enabled) {
    app.RedoCaption = caption;
    app.menus->SetCaption("mnu_Edicion_Redo", caption);
    app.menus->SetToolTip(5, caption);
    app.menus->SetEnabled("mnu_Edicion_Redo", enabled);
    app.ToolEnabled[5] = enabled;
    app.RedoSnapshot.available = enabled;
}

// The empty window keeps the Edit menu while a step can be undone or redone, with only
// those two items usable, so that deleting the last problem or undoing the first
// collection is never a dead end.
void OfferHistoryWhenEmpty(ApplicationState& app) {
    const bool any = app.UndoSnapshot.available || app.RedoSnapshot.available;
    app.menus->SetVisible("mnu_Edicion", any);
    if (!any) return;
    for (const char* item : {"mnu_Edicion_Cut", "mnu_Edicion_Copy", "mnu_Edicion_Paste", "mnu_Edicion_Del",
                             "mnu_Edicion_INS", "mnu_Edicion_REGEN1"})
        app.menus->SetEnabled(item, false);
    for (int i = 0; i < 4; ++i) app.menus->SetEnabled("mnu_Edicion_Mover_" + std::to_string(i), false);
    app.ToolVisible[4] = app.ToolVisible[5] = app.EditButtonsShown;
    app.menus->ActualizarBotones();
}

// The empty window after a step that removed every problem, the step still undoable.
void EmptyKeepingHistory(ApplicationState& app) {
    const UndoHistory history = SaveHistory(app);
    NoColeccion(app);
    RestoreHistory(app, history);
}

void EndSelection(ApplicationState& app) {
    app.ToolEnabled[6] = false;
    app.ToolEnabled[7] = false;
    app.menus->ActualizarBotones();
}

// Opens a free place at index p by shifting records p..n up by one.
void OpenPlace(ApplicationState& app, int p) {
    const int n = app.ProblemCount();
    for (int i = n; i >= p; --i) app.Problems[i + 1] = app.Problems[i];
    app.Settings.ProblemCount = n + 1;
}

// The text from the fifth character of a caption ("Undo x" gives " x").
std::string FromFifth(const std::string& caption) { return caption.size() > 4 ? caption.substr(4) : ""; }

void NewSeeds(ApplicationState& app, ProblemRecord& r) {
    app.Reseed();
    r.Seed = static_cast<int>(app.Random() * 9000.0);
    r.VariantNumber = static_cast<int>(app.Random() * 900.0);
}
} // namespace

void SetUNDO(ApplicationState& app, const std::string& description) {
    SetRedoItem(app, "Cannot redo", false);
    if (description.empty()) {
        SetUndoItem(app, "Cannot undo", false);
        return;
    }
    SnapshotInto(app, app.UndoSnapshot);
    SetUndoItem(app, "Undo " + TrimBlanks(description), true);
}

UndoHistory SaveHistory(const ApplicationState& app) {
    return {app.UndoSnapshot, app.RedoSnapshot, app.UndoCaption, app.RedoCaption};
}

void RestoreHistory(ApplicationState& app, const UndoHistory& history) {
    app.UndoSnapshot = history.undo;
    app.RedoSnapshot = history.redo;
    SetUndoItem(app, history.undoCaption, history.undo.available);
    SetRedoItem(app, history.redoCaption, history.redo.available);
    if (app.ProblemCount() == 0) OfferHistoryWhenEmpty(app);
}

void ShowFileCaption(ApplicationState& app) {
    if (app.CurrentFileName.empty())
        app.window->SetCaption(app.ApplicationTitle);
    else
        app.window->SetCaption(std::filesystem::path(app.CurrentFileName).filename().string() + "  -  " +
                               app.ApplicationTitle);
}

void UndoCommand(ApplicationState& app) {
    if (!app.UndoSnapshot.available) return;
    const bool wasEmpty = app.ProblemCount() == 0;
    SnapshotInto(app, app.RedoSnapshot);
    const std::string text = FromFifth(app.UndoCaption);
    app.Settings = app.UndoSnapshot.settings;
    if (app.ProblemCount() == 0) {
        // Back to before the first collection. That step can be redone, so the window
        // keeps the Redo item.
        NoColeccion(app);
        SetRedoItem(app, "Redo" + text, true);
        OfferHistoryWhenEmpty(app);
        return;
    }
    RestoreFrom(app, app.UndoSnapshot);
    ComposeDocument(app, false, 0);
    if (wasEmpty) HayColeccion(app);
    ShowFileCaption(app);
    SetUNDO(app, "");
    SetRedoItem(app, "Redo" + text, true);
    app.menus->ActualizarBotones();
}

void RedoCommand(ApplicationState& app) {
    if (!app.RedoSnapshot.available) return;
    const bool wasEmpty = app.ProblemCount() == 0;
    const CollectionSnapshot redo = app.RedoSnapshot;
    SetUNDO(app, FromFifth(app.RedoCaption));
    app.Settings = redo.settings;
    RestoreFrom(app, redo);
    if (app.ProblemCount() == 0) {
        EmptyKeepingHistory(app);
        return;
    }
    ComposeDocument(app, false, 0);
    if (wasEmpty) HayColeccion(app);
    ShowFileCaption(app);
    app.menus->ActualizarBotones();
}

bool MoverProblema(ApplicationState& app, int from, int to) {
    const int n = app.ProblemCount();
    if (from == to || from < 1 || from > n || to < 1 || to > n) return false;
    ProblemRecord kept = std::move(app.Problems[from]);
    if (to > from)
        for (int i = from; i < to; ++i) app.Problems[i] = std::move(app.Problems[i + 1]);
    else
        for (int i = from; i > to; --i) app.Problems[i] = std::move(app.Problems[i - 1]);
    app.Problems[to] = std::move(kept);
    return true;
}

int SelectedMarkCount(const ApplicationState& app) {
    int count = 0;
    for (int i = 0; i < app.Marks.MarkCount; ++i)
        if (app.Marks.MarkSelected[i]) ++count;
    return count;
}

namespace {
// The problem of the last selected mark, 0 when none or when its block is out of range.
int LastSelectedProblem(const ApplicationState& app) {
    int p = 0;
    for (int i = 0; i < app.Marks.MarkCount; ++i) {
        if (!app.Marks.MarkSelected[i]) continue;
        const int block = app.Marks.MarkProblem[i];
        // Mark "000" and marks of blocks that are gone select nothing rather than fail.
        p = (block >= 1 && block <= app.BlockCount) ? std::abs(app.Blocks[block].problem) : 0;
    }
    return p;
}
} // namespace

int SelectedProblem(const ApplicationState& app) {
    if (app.BlockCount == 0 || app.ProblemCount() == 0) return 0;
    if (SelectedMarkCount(app) != 1) return 0;
    const int p = LastSelectedProblem(app);
    return p <= app.ProblemCount() ? p : 0;
}

void MoveCommand(ApplicationState& app, int index) {
    const int p = SelectedProblem(app);
    if (p == 0 || index < 0 || index > 3) return;
    const int n = app.ProblemCount();
    const int targets[4] = {1, n, p - 1, p + 1};
    const int target = targets[index];
    SetUNDO(app, kMoveDescriptions[index]);
    if (MoverProblema(app, p, target)) ComposeDocument(app, true, target);
    EndSelection(app);
}

void DeleteCommand(ApplicationState& app) {
    int p = SelectedProblem(app);
    if (p == 0) return;
    SetUNDO(app, "delete");
    const int n = app.ProblemCount();
    for (int i = p; i < n; ++i) app.Problems[i] = std::move(app.Problems[i + 1]);
    app.Problems[n] = ProblemRecord{};
    app.Settings.ProblemCount = n - 1;
    if (app.ProblemCount() == 0) {
        // The empty window still offers Undo: deleting the last problem is not final.
        EmptyKeepingHistory(app);
    } else {
        if (p > app.ProblemCount()) p = app.ProblemCount();
        ComposeDocument(app, true, p);
    }
    EndSelection(app);
}

void CopyCommand(ApplicationState& app) {
    const int p = SelectedProblem(app);
    if (p == 0) return;
    const std::string text = ProblemClipboardText(app.Problems[p]);
    app.clipboard->Clear();
    app.clipboard->SetText(text);
    app.menus->SetEnabled("mnu_Edicion_Paste", true);
    app.ToolEnabled[8] = true;
    app.menus->ActualizarBotones();
}

void CutCommand(ApplicationState& app) {
    if (SelectedProblem(app) == 0) return;
    CopyCommand(app);
    DeleteCommand(app);
}

void PasteCommand(ApplicationState& app) {
    // The empty window shows the Edit menu only for Undo and Redo.
    if (app.ProblemCount() == 0) return;
    if (!app.clipboard->HasText()) return;
    if (app.ProblemCount() + 1 > kMaxProblems) return;
    const std::string text = app.clipboard->Text();
    if (!IsProblemClipboardText(text)) {
        app.menus->SetEnabled("mnu_Edicion_Paste", false);
        return;
    }
    const bool anySelected = SelectedMarkCount(app) > 0;
    int p = 1;
    int scroll = 0;
    if (anySelected) {
        p = LastSelectedProblem(app);
        if (p < 1 || p > app.ProblemCount()) p = 1;
        scroll = app.window->VerticalScroll();
    }
    SetUNDO(app, "paste");
    OpenPlace(app, p);
    ProblemRecord& r = app.Problems[p];
    r = ProblemRecord{};
    ReadClipboardProblem(text, r);
    AddModuleName(app, r.ModuleName);
    EndSelection(app);
    ComposeDocument(app, true, p);
    if (anySelected) app.window->SetVerticalScroll(scroll);
}

void InsertSimilarCommand(ApplicationState& app) {
    const int p = SelectedProblem(app);
    if (p == 0 || app.ProblemCount() >= kMaxProblems) return;
    SetUNDO(app, "insert another similar problem");
    OpenPlace(app, p);
    NewSeeds(app, app.Problems[p]);
    RecreateProblem(app, p, p);
    EndSelection(app);
}

void RecreateProblemCommand(ApplicationState& app) {
    const int p = SelectedProblem(app);
    if (p == 0) return;
    SetUNDO(app, "re-create problem");
    NewSeeds(app, app.Problems[p]);
    const int scroll = app.window->VerticalScroll();
    RecreateProblem(app, p, p);
    app.window->SetVerticalScroll(scroll);
    EndSelection(app);
}

void RecreateCollectionCommand(ApplicationState& app) {
    if (app.ProblemCount() == 0) return;
    SetUNDO(app, "re-create collection");
    app.Reseed();
    const int a = static_cast<int>(app.Random() * 9000.0);
    const int b = static_cast<int>(app.Random() * 900.0);
    for (int i = 1; i <= app.ProblemCount(); ++i) {
        ProblemRecord& r = app.Problems[i];
        r.Seed += a;
        if (r.Seed >= 9000) r.Seed -= 9000;
        r.VariantNumber += b;
        if (r.VariantNumber >= 900) r.VariantNumber -= 900;
    }
    const std::string fileName = app.CurrentFileName;
    CrearColeccion(app, 0);
    // The re-created collection is still the teacher's file, with new numbers.
    app.CurrentFileName = fileName;
    ShowFileCaption(app);
    app.menus->ActualizarBotones();
}

void RecreateButton(ApplicationState& app) {
    if (SelectedMarkCount(app) == 1)
        RecreateProblemCommand(app);
    else
        RecreateCollectionCommand(app);
}

void SolutionPositionCommand(ApplicationState& app, int position) {
    if (position < 0 || position > 3 || app.Settings.SolutionPosition == position) return;
    SetUNDO(app, kPositionDescriptions[position]);
    app.Settings.SolutionPosition = position;
    ComposeDocument(app, true, 0);
    ActualizaMenusCheckeados(app);
    app.menus->ActualizarBotones();
}

void CollectionPropertiesCommand(ApplicationState& app) {
    if (app.BlockCount == 0 || app.ProblemCount() == 0) return;
    app.SettingsAccepted = false;
    const UndoHistory history = SaveHistory(app);
    SetUNDO(app, "change properties of the collection");
    app.SettingsAccepted = app.window->ShowProperties();
    if (app.SettingsAccepted) {
        ComposeDocument(app, true, 0);
        ActualizaMenusCheckeados(app);
    } else {
        // Cancel changes nothing: the earlier undo and redo points stay.
        RestoreHistory(app, history);
    }
    app.menus->ActualizarBotones();
}

void ActualizaMenusCheckeados(ApplicationState& app) {
    for (const char* item : kPositionItems) app.menus->SetChecked(item, false);
    const int position = app.Settings.SolutionPosition;
    if (position >= 0 && position <= 3) app.menus->SetChecked(kPositionItems[position], true);
}

void PrepareEditMenu(ApplicationState& app) {
    const int n = app.ProblemCount();
    if (n == 0) return;
    const int count = SelectedMarkCount(app);
    const bool any = count > 0;
    for (const char* item : {"mnu_Edicion_Cut", "mnu_Edicion_Copy", "mnu_Edicion_Del", "mnu_Edicion_INS",
                             "mnu_Edicion_REGEN1"})
        app.menus->SetEnabled(item, any);
    for (int i = 0; i < 4; ++i) app.menus->SetEnabled("mnu_Edicion_Mover_" + std::to_string(i), any);
    if (count == 1) {
        const int p = LastSelectedProblem(app);
        if (p == 1) {
            app.menus->SetEnabled("mnu_Edicion_Mover_0", false);
            app.menus->SetEnabled("mnu_Edicion_Mover_2", false);
        }
        if (p == n) {
            app.menus->SetEnabled("mnu_Edicion_Mover_1", false);
            app.menus->SetEnabled("mnu_Edicion_Mover_3", false);
        }
    }
}

void NewCollectionCommand(ApplicationState& app) {
    app.SettingsAccepted = false;
    app.Reseed();
    const UndoHistory history = SaveHistory(app);
    SetUNDO(app, "new collection");
    app.SettingsAccepted = app.window->ShowWizard();
    if (!app.SettingsAccepted || WantedProblemCount(app) < 1) {
        // Nothing was made: the settings and the undo and redo points stay as they were.
        app.Settings = app.UndoSnapshot.settings;
        RestoreHistory(app, history);
        return;
    }
    app.ModuleNames.clear();
    Arbol_to_Var(app);
    ActualizaMenusCheckeados(app);
    CrearColeccion(app, 1);
    HayColeccion(app);
    app.menus->ActualizarBotones();
}

namespace {
constexpr const char* kBadFile = "Bad file.";
constexpr const char* kNoProblems = "Error: Bad file.";
} // namespace

void AvisoError(ApplicationState& app) {
    app.window->SetWaitCursor(false);
    app.window->ShowMessage(kBadFile, "Error", MessageIcon::Exclamation);
    NoColeccion(app);
}

namespace {
// A file whose bytes are not a collection: its message, then the no-collection state.
// Returns the message.
std::string RefuseDamagedFile(ApplicationState& app, ColFileError error) {
    if (error == ColFileError::NoProblems) {
        app.window->SetWaitCursor(false);
        app.window->ShowMessage(kNoProblems, "", MessageIcon::None);
        NoColeccion(app);
        return kNoProblems;
    }
    AvisoError(app);
    return kBadFile;
}

// Puts the settings and the records of a parsed file in the state.
void TakeCollection(ApplicationState& app, ColFileContents& contents) {
    app.Settings = contents.settings;
    for (std::size_t i = 0; i < contents.records.size(); ++i) {
        AddModuleName(app, contents.records[i].ModuleName);
        app.Problems[i + 1] = std::move(contents.records[i]);
    }
    app.Settings.ProblemCount = static_cast<std::int32_t>(contents.records.size());
}
} // namespace

bool OpenFile(ApplicationState& app, std::string* refusal) {
    // The message a refusal shows, kept for a caller without a window.
    auto say = [refusal](const std::string& text) {
        if (refusal) *refusal = text;
        return text;
    };
    app.window->SetBusy(true);
    const std::string name = app.CurrentFileName;
    if (name.size() < 4 || Upper(name.substr(name.size() - 4)) != ".COL") {
        // Refused, but said so, and with the menus and toolbar given back: a silent refusal
        // left them disabled and the collection on screen could no longer be saved.
        app.CurrentFileName.clear();
        app.window->SetBusy(false);
        app.window->SetWaitCursor(false);
        app.window->ShowMessage(say("Cannot open " + std::filesystem::path(name).filename().string() +
                                    ": the name of a problem collection ends in \".col\"."),
                                "Error", MessageIcon::Exclamation);
        return false;
    }
    app.window->SetWaitCursor(true);
    std::string file;
    const FileReadResult read = ReadCollectionBytes(name, file);
    if (read == FileReadResult::CannotOpen) {
        // The system's reason says more than "Bad file." about a file that isn't there.
        const int e = errno;
        app.window->SetWaitCursor(false);
        app.window->ShowMessage(say("Cannot open " + name + ": " + std::strerror(e)), "Error", MessageIcon::Exclamation);
        NoColeccion(app);
        return false;
    }
    if (read == FileReadResult::Bad) {
        say(kBadFile);
        AvisoError(app);
        return false;
    }
    ColFileContents contents = ParseColFile(file);
    file.clear();
    if (contents.error != ColFileError::None) {
        // Nothing of a damaged file is taken, not even the settings it had before the damage.
        say(RefuseDamagedFile(app, contents.error));
        return false;
    }
    TakeCollection(app, contents);
    StorePictures(app, contents.pictures);

    ActualizaMenusCheckeados(app);
    ComposeDocument(app, true, 1);
    app.Modified = false;
    app.window->SetCaption(std::filesystem::path(name).filename().string() + "  -  " + app.ApplicationTitle);
    app.window->AddRecentFile(name);
    HayColeccion(app);
    SetUNDO(app, "");
    app.menus->ActualizarBotones();
    return true;
}
