#pragma once
#include <string>

#include "core/application_state.h"

// Records an undo point with its description, or ends undo when the text is empty.
// Either way the redo chain ends.
void SetUNDO(ApplicationState& app, const std::string& description);
void UndoCommand(ApplicationState& app);
void RedoCommand(ApplicationState& app);

// The undo and redo points with their captions, kept across a dialog that may be cancelled
// and across a step that empties the window.
struct UndoHistory {
    CollectionSnapshot undo;
    CollectionSnapshot redo;
    std::string undoCaption;
    std::string redoCaption;
};
UndoHistory SaveHistory(const ApplicationState& app);
// Puts the points and their items back; in the empty window the Edit menu then offers them.
void RestoreHistory(ApplicationState& app, const UndoHistory& history);
// The caption of the window: the file's name and the title, or the title alone.
void ShowFileCaption(ApplicationState& app);

// Moves record from to place to, shifting those between; false when nothing moved.
bool MoverProblema(ApplicationState& app, int from, int to);

// The problem the selected mark stands for, or 0 when not exactly one mark is selected
// (or there is no collection).
int SelectedProblem(const ApplicationState& app);
// The number of selected marks.
int SelectedMarkCount(const ApplicationState& app);

// The move commands: 0 to the beginning, 1 to the end, 2 up, 3 down.
void MoveCommand(ApplicationState& app, int index);
void DeleteCommand(ApplicationState& app);
void CopyCommand(ApplicationState& app);
void CutCommand(ApplicationState& app);
void PasteCommand(ApplicationState& app);
void InsertSimilarCommand(ApplicationState& app);
void RecreateProblemCommand(ApplicationState& app);
void RecreateCollectionCommand(ApplicationState& app);
// Toolbar button 3: one problem when exactly one mark is selected, else the collection.
void RecreateButton(ApplicationState& app);
// The four positions of solutions, 0..3.
void SolutionPositionCommand(ApplicationState& app, int position);
void CollectionPropertiesCommand(ApplicationState& app);

// The new-collection command: undo point, wizard, and on acceptance the new collection.
void NewCollectionCommand(ApplicationState& app);

// Opens CurrentFileName: reads and parses it, and on success puts its collection in the
// window. True on success; on failure the no-collection state holds, the window shows why,
// and refusal (when given) holds the same words.
bool OpenFile(ApplicationState& app, std::string* refusal = nullptr);
// The "Bad file." box, then the no-collection state.
void AvisoError(ApplicationState& app);

// Checks the menu item of the present position of solutions.
void ActualizaMenusCheckeados(ApplicationState& app);
// Enables the Edit menu's items for the present selection.
void PrepareEditMenu(ApplicationState& app);

// The description of each command, as the Undo item shows it.
inline constexpr const char* kMoveDescriptions[4] = {"move to the beginning", "move to the end", "move up",
                                                     "mover down"};
inline constexpr const char* kPositionDescriptions[4] = {"no solutions", "solutions after each problem",
                                                         "solutions together at the end",
                                                         "solutions in a separate page"};
inline constexpr const char* kPositionItems[4] = {"mnu_COLEC_SinSol", "mnu_COLEC_SolDespPro",
                                                  "mnu_COLEC_SolJuntasFinal", "mnu_COLEC_SolPagAparte"};
