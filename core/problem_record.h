#pragma once
#include <cstddef>
#include <string>
#include <vector>

#include "generators/generator_contract.h"

// One problem: everything needed to make it again, and its finished texts.
struct ProblemRecord {
    std::string ModuleName;
    int RoutineId = 0;
    int VariantNumber = 0;
    int GroupSize = 0;
    int GroupIndex = 0;
    int ItemCount = 0;
    int Seed = 0;
    std::string Statement;
    std::string Solution;

    bool operator==(const ProblemRecord&) const = default;
};

// The fields of the record's problem code as its generator sees them: a value too wide
// for its place in the code keeps only the low digits the code can hold.
ProblemCodeFields CodeFieldsOf(const ProblemRecord& record);

// The 16-digit problem code of a record, as it is shown and stored: routine 3, variant 3,
// seed 4, items 2, group size 2, group index 2; a value too wide keeps its low digits.
std::string ProblemCodeOf(const ProblemRecord& record);

// The 96 identifying columns of a problem line: module name padded to 80, then the code
// fields in the code's order.
std::string ProblemIdentity(const ProblemRecord& record);
// Reads the 96 identifying columns back into the record (texts untouched).
void ReadProblemIdentity(const std::string& columns, ProblemRecord& record);

// The 102-character line of one problem: identity, shown number, CR LF.
std::string ProblemLine(const ProblemRecord& record, long long shownNumber);
// The records of a block of problem lines (identities only, texts empty). Empty when the
// block's length is not a whole number of 102-character lines, is 0, or holds more than
// maxRecords lines.
std::vector<ProblemRecord> ReadProblemLines(const std::string& lines, std::size_t maxRecords);

// Divides "#ENU(" statement "#ENU)#SOL(" solution "#SOL)" at its first "#SOL(" by the
// known lengths. False when the element is too short to hold its tags.
bool SplitProblemElement(const std::string& element, std::string& statement, std::string& solution);

// The clipboard form of one problem: this head, the 96 identifying columns, the element.
inline constexpr const char* kClipboardHead = "GENPROB:NPROB=001:";
std::string ProblemClipboardText(const ProblemRecord& record);
// True when text starts with the clipboard form's head.
bool IsProblemClipboardText(const std::string& text);
