#pragma once
#include <string>

#include "core/application_state.h"
#include "mathservices/utf8_text.h"

// Builds CandidateList and the TopicTree of a subject from the catalogue, keeping only the
// leaves whose type of document is wanted (questions, exercises, problems, theory).
// Returns false when the subject has more nodes than the tree holds; the tree then holds
// the nodes that fit.
bool LoadTOLISTBOX_BUILT_CODE(ApplicationState& app, const std::string& subject, bool questions, bool exercises,
                              bool problems, bool theory);

// The records wanted by the marked TopicTree. More than the 500 records stop at 500.
// Only the records: the caller brings the menus up to date.
void Arbol_to_Var(ApplicationState& app);
// Appends a group of amount records of one routine behind the records there are, as a
// node of the tree asks for them: the first draws its two seeds, each later one takes
// those of the one before plus 1. Stops at the 500 records. module is trimmed.
void AppendProblemGroup(ApplicationState& app, const std::string& module, int routine, int amount,
                        int itemsPerProblem);
// Shuffles the identities of the records (their texts are made afterwards).
void Barajar(ApplicationState& app);
// Writes the statement and solution of one record from its code (the path of creation and
// re-creation alike).
void GenerateRecord(GeneratorHub& hub, ProblemRecord& record);
// Generates every record and composes; problem is the one whose page is shown, 0 none.
void CrearColeccion(ApplicationState& app, int problem);
// Generates one record and composes.
void RecreateProblem(ApplicationState& app, int index, int problem);
// Reads the problem lines of a file; leaves the count at 0 when their length is not a
// whole number of 102-character lines or is 0.
void REG_To_Var(ApplicationState& app, const std::string& params);

// The amount of problems the TopicTree asks for (selected leaves only).
int WantedProblemCount(const ApplicationState& app);
