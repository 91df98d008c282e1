#pragma once
#include <string>
#include <vector>

#include "core/application_state.h"

// "Worksheet 3 — Answer key"; "Answer key" without a title. Cut to fit a file's title.
std::string AnswerKeyTitle(const std::string& title);

// One entry of a key: the problem's number box and its solution, without the line ends
// that close it (and, for a short answer, without the column mark it stood behind).
std::string AnswerKeyEntry(const CollectionSettings& settings, long long number, const std::string& solution);
// Whether an entry can share its line with others: one line of text with no columns
// (but a leading one), indent or picture of its own.
bool IsShortAnswer(const std::string& solution);

// The blocks of a key: each solution behind its problem's number, no statement; short
// answers side by side in 4, 3 or 2 columns when every one of a run fits its column on
// the width model, others each on its own lines. A problem without a solution has no entry.
// Each text is one block, ending its line.
std::vector<std::string> AnswerKeyBlocks(const ApplicationState& app);

// Turns the collection in app into its answer key: the title gains " — Answer key", the
// blocks are the key's, the pages carry no name line, and they are found as for any
// document.
void ComposeAnswerKey(ApplicationState& app);
