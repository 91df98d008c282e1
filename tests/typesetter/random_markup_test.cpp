#include <gtest/gtest.h>

#include <cstdint>

#include "tests/typesetter/typesetter_test_util.h"
#include "typesetter/constructs.h"
#include "typesetter/layout.h"

// Texts pieced together from every token of the language, well formed or not: layout ends,
// touches nothing outside its tables, and leaves the counters inside them.
TEST(RandomMarkup, AnyMixOfTokensLaysOutSafely) {
    std::vector<std::string> tokens = {"a", "x", " ", "-", "+", "=", "1", "&+I", "&-I", "&+B", "&-B", "&+U", "&-S",
                                       "&FS=20:", "&FS=8:", "&FN=Arial:", "&FC=Rojo:", "&BC=Azul:", "&LC=Verde:",
                                       "&FF=REC,5,5:", "&SP=40:", "&alfa", "&real", "&hbar", "& ", "&Q", "&=", "&#",
                                       "&_", "&&", "&E-3", "&E+12", "_2", "^2", "__", "^^", "#MARK=004", "##", "#",
                                       "&", "&LF", "&LSAN=5:", "#N)(", "#T)(", "#PB)(", "#RI(", "#RI)", "#RW1(",
                                       "#RW1)", "#RW2(", "#RW2)", "#TS)(", "#ST1(", "#ST1)", "#R1(", "#R1)", "&EC=",
                                       "'", "SSSSSS", "C", "R", "(", ")", "{", "}", "|", "\u00B0", "\u00D7"};
    for (const auto& tag : ConstructTags()) {
        tokens.push_back(ToUtf8(tag.open));
        tokens.push_back(ToUtf8(tag.close));
    }
    std::uint32_t seed = 12345;
    auto next = [&] {
        seed = seed * 1103515245u + 12345u;
        return (seed >> 8) & 0xFFFF;
    };
    TypesetterState st;
    RecordingSurface s;
    s.width = 300; // a narrow page: many cuts
    st.ScreenSurface = &s;
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        const int count = 1 + static_cast<int>(next() % 60);
        for (int i = 0; i < count; ++i) text += tokens[next() % tokens.size()];
        double size = 12;
        LayoutText(st, text, size, s);
        ASSERT_LE(st.BoxCounter, kMaxBoxes) << text;
        ASSERT_GE(st.MarkCount, 0);
        ASSERT_LE(st.MarkCount, kMaxMarks);
        s.texts.clear();
        s.strokes.clear();
        s.circles.clear();
        s.pictures.clear();
    }
}
