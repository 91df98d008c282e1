#include "core/problem_record.h"

#include <algorithm>
#include <cmath>

#include "mathservices/utf8_text.h"

namespace {
// What the digits of a value's place in the code say: a value written into width places
// keeps its low digits; a negative one that leaves its sign inside the place reads as 0.
int CodeField(int value, int width) {
    long long modulus = 1;
    for (int i = 0; i < width; ++i) modulus *= 10;
    const long long magnitude = value < 0 ? -static_cast<long long>(value) : value;
    if (value < 0 && magnitude < modulus / 10) return 0;
    return static_cast<int>(magnitude % modulus);
}

ProblemCodeFields RawFields(const ProblemRecord& r) {
    ProblemCodeFields fields;
    fields.RoutineId = r.RoutineId;
    fields.VariantNumber = r.VariantNumber;
    fields.Seed = r.Seed;
    fields.ItemCount = r.ItemCount;
    fields.GroupSize = r.GroupSize;
    fields.GroupIndex = r.GroupIndex;
    return fields;
}

// The character offsets of a text, so that fixed columns are cut by characters.
std::vector<std::size_t> CharacterStarts(const std::string& text) {
    std::vector<std::size_t> starts;
    starts.reserve(text.size() + 1);
    for (std::size_t i = 0; i < text.size(); ++i)
        if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) starts.push_back(i);
    starts.push_back(text.size());
    return starts;
}

// Characters first..first+count-1 (1-based) of a text whose starts are known.
std::string Columns(const std::string& text, const std::vector<std::size_t>& starts, std::size_t first,
                    std::size_t count) {
    const std::size_t chars = starts.size() - 1;
    if (first < 1 || first > chars) return "";
    const std::size_t last = std::min(chars, first - 1 + count);
    return text.substr(starts[first - 1], starts[last] - starts[first - 1]);
}
} // namespace

ProblemCodeFields CodeFieldsOf(const ProblemRecord& r) {
    ProblemCodeFields fields;
    fields.RoutineId = CodeField(r.RoutineId, 3);
    fields.VariantNumber = CodeField(r.VariantNumber, 3);
    fields.Seed = CodeField(r.Seed, 4);
    fields.ItemCount = CodeField(r.ItemCount, 2);
    fields.GroupSize = CodeField(r.GroupSize, 2);
    fields.GroupIndex = CodeField(r.GroupIndex, 2);
    return fields;
}

std::string ProblemCodeOf(const ProblemRecord& r) { return MakeProblemCode(RawFields(r)); }

std::string ProblemIdentity(const ProblemRecord& r) { return Utf8PadRight(r.ModuleName, 80) + ProblemCodeOf(r); }

void ReadProblemIdentity(const std::string& columns, ProblemRecord& r) {
    r.ModuleName = TrimBlanks(Utf8Left(columns, 80));
    const std::string code = Utf8Mid(columns, 80, 16);
    // A damaged line may hold a sign, an exponent or junk in a column: the field keeps what
    // its digits can say (0 up to all nines), so the code written back is still 16 digits.
    auto field = [&](std::size_t start, std::size_t width) {
        const double value = LeadingNumberSkippingBlanks(start < code.size() ? code.substr(start, width) : "");
        const double greatest = std::pow(10.0, static_cast<double>(width)) - 1;
        if (!(value >= 0)) return 0;
        return static_cast<int>(std::min(value, greatest));
    };
    r.RoutineId = field(0, 3);
    r.VariantNumber = field(3, 3);
    r.Seed = field(6, 4);
    r.ItemCount = field(10, 2);
    r.GroupSize = field(12, 2);
    r.GroupIndex = field(14, 2);
}

std::string ProblemLine(const ProblemRecord& record, long long shownNumber) {
    return ProblemIdentity(record) + ZeroFilled(shownNumber, 4) + "\r\n";
}

std::vector<ProblemRecord> ReadProblemLines(const std::string& lines, std::size_t maxRecords) {
    const auto starts = CharacterStarts(lines);
    const std::size_t length = starts.size() - 1;
    const std::size_t n = static_cast<std::size_t>(std::lround(static_cast<double>(length) / 102.0));
    if (n * 102 != length || n == 0 || n > maxRecords) return {};
    std::vector<ProblemRecord> records(n);
    for (std::size_t i = 0; i < n; ++i) ReadProblemIdentity(Columns(lines, starts, i * 102 + 1, 96), records[i]);
    return records;
}

bool SplitProblemElement(const std::string& element, std::string& statement, std::string& solution) {
    const auto sol = element.find("#SOL(");
    // An element without "#SOL(" has its solution from the fifth character on.
    const std::size_t solutionStart = sol == std::string::npos ? 4 : sol + 5;
    if (solutionStart > element.size()) return false;
    std::string tail = element.substr(solutionStart);
    if (tail.size() < 5) return false;
    solution = tail.substr(0, tail.size() - 5);
    const std::size_t headLength = element.size() - solution.size();
    if (headLength < 15) return false;
    statement = headLength - 15 > 5 ? element.substr(5, headLength - 15 - 5) : "";
    return true;
}

std::string ProblemClipboardText(const ProblemRecord& record) {
    return std::string(kClipboardHead) + ProblemIdentity(record) + "#ENU(" + record.Statement + "#ENU)" + "#SOL(" +
           record.Solution + "#SOL)";
}

bool IsProblemClipboardText(const std::string& text) { return text.rfind(kClipboardHead, 0) == 0; }
