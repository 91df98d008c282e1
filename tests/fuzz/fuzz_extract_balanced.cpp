// The balanced-piece search and the fill-list reader on any text. The first byte picks
// the tag pair, so that the fuzzer reaches nesting of every construct and of the codes
// that share a prefix.
#include <array>

#include "tests/fuzz/fuzz_support.h"
#include "typesetter/markup.h"
#include "typesetter/text_util.h"

namespace {
const std::array<std::pair<const char32_t*, const char32_t*>, 8> kTags = {{
    {U"#COC(", U"#COC)"},
    {U"#RAD(", U"#RAD)"},
    {U"#PAR(", U"#PAR)"},
    {U"#IMG(", U"#IMG)"},
    {U"#MAT(", U"#MAT)"},
    {U"(", U")"},
    {U"#TST(", U"#TS)("},
    {U"#RI(", U"#RI)"},
}};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const auto& [open, close] = kTags[data[0] % kTags.size()];
    const std::u32string text = ToU32(BytesOf(data + 1, size - 1));
    const std::u32string piece = ExtractBalanced(text, open, close);
    if (!IsBalanceError(piece)) {
        // A balanced piece is a part of the text that starts and ends with its tags.
        if (piece.size() > text.size() || text.find(piece) == std::u32string::npos) std::abort();
    } else {
        (void)ErrorDisplayText(piece);
    }
    std::u32string kind;
    double width = 0, height = 0;
    ParseFillList(text, kind, width, height);
    return 0;
}
