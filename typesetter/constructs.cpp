#include "typesetter/constructs.h"

#include "typesetter/construct_handlers.h"

namespace {
const std::vector<ConstructTag> kTags = [] {
    std::vector<ConstructTag> tags = {
        {U"#COC(", U"#COC)", FractionHandler, true},
        {U"#ATX(", U"#ATX)", ArrowTextHandler, true},
        {U"#SPB(", U"#SPB)", StackedPairHandler, true},
        {U"#SQR(", U"#SQR)", RootHandler, false},
        {U"#CUR(", U"#CUR)", RootHandler, false},
        {U"#RAD(", U"#RAD)", RootHandler, false},
        {U"#POT(", U"#POT)", PowerHandler, false},
        {U"#EXP(", U"#EXP)", PowerHandler, false},
        {U"#NES(", U"#NES)", DelimiterHandler, false},
        {U"#RWS(", U"#RWS)", RowsHandler, true},
        {U"#CEQ(", U"#CEQ)", EquationHandler, true},
        {U"#INT(", U"#INT)", IntegralHandler, false},
        {U"#UDB(", U"#UDB)", OpenChainHandler, false},
        {U"#IMG(", U"#IMG)", ImageHandler, false},
        {U"#TST(", U"#TST)", HeadingHandler, false},
    };
    for (const char32_t* name : {U"VEC", U"VED", U"SEG", U"UDL", U"SED", U"AND", U"ARC", U"TDX", U"TDU", U"TDD", U"REC"}) {
        const std::u32string n = name;
        tags.push_back({U"#" + n + U"(", U"#" + n + U")", MarkHandler, false});
    }
    for (char32_t kind : {U'V', U'L', U'I', U'D'}) {
        for (char32_t digit = U'3'; digit <= U'9'; ++digit) {
            const std::u32string n = std::u32string(U"A") + digit + kind;
            tags.push_back({U"#" + n + U"(", U"#" + n + U")", RingHandler, false});
        }
    }
    tags.push_back({U"#BCV(", U"#BCV)", RingHandler, false});
    tags.push_back({U"#BCH(", U"#BCH)", RingHandler, false});
    return tags;
}();
} // namespace

const std::vector<ConstructTag>& ConstructTags() { return kTags; }

const ConstructTag* FindConstructTag(const std::u32string& text, std::size_t pos) {
    if (pos + 5 > text.size()) return nullptr;
    for (const auto& tag : kTags)
        if (text.compare(pos, 5, tag.open) == 0) return &tag;
    return nullptr;
}
