#pragma once
#include <cstddef>
#include <string>
#include <vector>

#include "core/application_state.h"

// What a collection file may hold. A file beyond these is a damaged file: the largest
// collection the program makes, 500 problems with their pictures, stays far below them.
inline constexpr std::size_t kMaxFileBytes = 64u << 20;
inline constexpr std::size_t kMaxTitleBytes = 1000;
inline constexpr std::size_t kMaxAffixBytes = 1000;      // number prefix and suffix each
inline constexpr std::size_t kMaxProblemTextBytes = 256u << 10;  // statement and solution each
inline constexpr std::size_t kMaxPictures = 1000;         // pictures in the directory

// A text as it may stand in a file: the '#' in front of any of the file's own tags is
// taken out (the markup drops an unknown tag's '#' anyway, so nothing changes on the page),
// and the text is cut to limit bytes at a character boundary. Used where titles, prefixes,
// suffixes and pasted problems enter, so that whatever is saved opens again.
std::string AsFileText(std::string text, std::size_t limit);

// Program text (UTF-8) to the file's single-byte Western code page and back. A character
// the code page lacks becomes "?".
std::string Utf8ToWindows1252(const std::string& text);
std::string Windows1252ToUtf8(const std::string& bytes);

// The 102-character line of one problem: identity, shown number, CR LF.
std::string ProblemLine(const ProblemRecord& record, long long shownNumber);
// The clipboard form of one problem.
std::string ProblemClipboardText(const ProblemRecord& record);
// Reads the clipboard form back into a record (identity and texts).
void ReadClipboardProblem(const std::string& text, ProblemRecord& record);
// Divides "#ENU(" statement "#ENU)#SOL(" solution "#SOL)" at its first "#SOL(" by the
// known lengths. False when the element is too short to hold its tags.
bool SplitProblemElement(const std::string& element, std::string& statement, std::string& solution);

// The file's bytes before any image: head and problem elements, with the directory
// pointer still "00000000".
std::string CollectionText(const ApplicationState& app);
// The image names of a collection text, in order of first use.
std::vector<std::string> ImageNames(const std::string& text);

// Writes the collection to CurrentFileName. True on success (Modified cleared).
bool SaveFile(ApplicationState& app);
// Reads CurrentFileName. True on success; on failure the no-collection state holds.
bool OpenFile(ApplicationState& app);
// The "Bad file." box, then the no-collection state.
void AvisoError(ApplicationState& app);

// Builds the whole file in memory; on failure leaves a message in error and returns false.
bool BuildFileBytes(const ApplicationState& app, std::string& bytes, std::string& error);
