#pragma once
#include <string>

#include "core/application_state.h"
#include "mathservices/utf8_text.h"

// The 16-digit problem code of a record: routine 3, variant 3, seed 4, items 2, group
// size 2, group index 2; a value too wide keeps its low digits.
std::string ProblemCodeOf(const ProblemRecord& record);

// The 96 identifying columns of a problem line: module name padded to 80, then the code
// fields in the code's order.
std::string ProblemIdentity(const ProblemRecord& record);
// Reads the 96 identifying columns back into the record (texts untouched).
void ReadProblemIdentity(const std::string& columns, ProblemRecord& record);

// Builds CandidateList and the TopicTree of a subject from the catalogue, keeping only the
// leaves whose type of document is wanted (questions, exercises, problems, theory).
// Returns false when the subject has more nodes than the tree holds; the tree then holds
// the nodes that fit.
bool LoadTOLISTBOX_BUILT_CODE(ApplicationState& app, const std::string& subject, bool questions, bool exercises,
                              bool problems, bool theory);

// The records wanted by the marked TopicTree. More than the 500 records stop at 500.
void Arbol_to_Var(ApplicationState& app);
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

// The new-collection command: undo point, wizard, and on acceptance the new collection.
void NewCollectionCommand(ApplicationState& app);

// Plain text helpers shared by the core (TrimBlanks comes with utf8_text.h).
std::string Upper(std::string text);
// The leading-number reading of a text: "12abc" is 12, "abc" is 0.
double LeadingNumber(const std::string& text);
// value in decimal with zeros in front, cut to its rightmost width characters.
std::string ZeroFilled(long long value, int width);
