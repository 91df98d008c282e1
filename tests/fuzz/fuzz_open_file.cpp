// Any bytes as a .col file: the parser ends in a collection or in an error, never in a
// crash, and what it returns keeps the limits of a collection (a text may grow up to
// three times when its single bytes become UTF-8).
#include <cstdlib>

#include "core/col_file.h"
#include "tests/fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ColFileContents contents = ParseColFile(BytesOf(data, size));
    if (contents.error != ColFileError::None) {
        if (!contents.records.empty() || !contents.pictures.empty()) std::abort();
        return 0;
    }
    const std::size_t n = contents.records.size();
    if (n < 1 || n > static_cast<std::size_t>(kMaxProblems)) std::abort();
    if (contents.settings.ProblemCount != static_cast<std::int32_t>(n)) std::abort();
    if (contents.pictures.size() > kMaxPictures) std::abort();
    if (contents.settings.Title.size() > 3 * kMaxTitleBytes) std::abort();
    for (const ProblemRecord& r : contents.records) {
        // A code read from a file is written back as 16 digits.
        if (!IsProblemCode(ProblemCodeOf(r))) std::abort();
        if (r.Statement.size() > 3 * kMaxProblemTextBytes || r.Solution.size() > 3 * kMaxProblemTextBytes)
            std::abort();
    }
    return 0;
}
