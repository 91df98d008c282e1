#include <gtest/gtest.h>

#include <cmath>

#include "tests/typesetter/typesetter_test_util.h"

TEST(SymbolTables, SeventyEightEntitiesInOrder) {
    TypesetterState st;
    EXPECT_EQ(st.SymbolName[1], U"&alfa");
    EXPECT_EQ(st.SymbolCode[1], 97);
    EXPECT_EQ(st.SymbolGlyph[1], "\u03B1");
    EXPECT_EQ(st.SymbolName[47], U"&vacio");
    EXPECT_EQ(st.SymbolCode[47], 198);
    EXPECT_EQ(st.SymbolName[67], U"&vacio"); // the second one, which never matches
    EXPECT_EQ(st.SymbolCode[67], 102);
    EXPECT_EQ(st.SymbolName[50], U"&real");
    EXPECT_EQ(st.SymbolGlyph[50], "\u211D"); // double-struck R: the real numbers
    EXPECT_EQ(st.SymbolName[51], U"&<=");
    EXPECT_EQ(st.SymbolGlyph[51], "\u2264");
    EXPECT_EQ(st.SymbolName[53], U"&oo");
    EXPECT_EQ(st.SymbolGlyph[53], "\u221E");
    EXPECT_EQ(st.SymbolName[57], U"&perte");
    EXPECT_EQ(st.SymbolGlyph[57], "\u2208");
    EXPECT_EQ(st.SymbolName[75], U"&union");
    EXPECT_EQ(st.SymbolName[78], U"&hbar");
    for (int i = 1; i <= kSymbolCount; ++i) {
        EXPECT_FALSE(st.SymbolName[i].empty()) << i;
        EXPECT_EQ(st.SymbolName[i][0], U'&') << i;
        EXPECT_FALSE(st.SymbolGlyph[i].empty()) << i;
    }
    // Names that share a code share a glyph.
    EXPECT_EQ(st.SymbolGlyph[10], st.SymbolGlyph[55]); // &teta, &theta
    EXPECT_EQ(st.SymbolGlyph[22], st.SymbolGlyph[72]); // &ro, &rho
    EXPECT_EQ(st.SymbolGlyph[47], st.SymbolGlyph[54]); // &vacio, &Vacio
}

TEST(SymbolTables, PiAndOperatorShift) {
    TypesetterState st;
    EXPECT_DOUBLE_EQ(st.PiValue, 4 * std::atan(1.0));
    EXPECT_EQ(st.OperatorShift[0][0], 0.072f);
    EXPECT_EQ(st.OperatorShift[0][1], 0.07f);
    EXPECT_EQ(st.OperatorShift[1][0], -0.012f);
    EXPECT_EQ(st.OperatorShift[1][1], 0.0f);
    EXPECT_EQ(st.OperatorShift[2][2], 0.07f);
    EXPECT_EQ(st.LineColor, 0u);
}

TEST(ParseColorTest, NamesInAnyCaseNumbersAndTriples) {
    EXPECT_EQ(ParseColor("rojo"), Rgb(255, 0, 0));
    EXPECT_EQ(ParseColor("ROJO"), Rgb(255, 0, 0));
    EXPECT_EQ(ParseColor("255;0;0"), Rgb(255, 0, 0));
    EXPECT_EQ(ParseColor("255"), Rgb(255, 0, 0));
    EXPECT_EQ(ParseColor("Azulado"), 0u);
    EXPECT_EQ(ParseColor("  Amarillo "), Rgb(255, 255, 0));
    EXPECT_EQ(ParseColor("0;128;255"), Rgb(0, 128, 255));
    EXPECT_EQ(ParseColor("16711680"), Rgb(0, 0, 255));
}

TEST(ParseColorTest, EveryNameOfTheTable) {
    const std::pair<const char*, std::uint32_t> names[] = {
        {"BLACK", Rgb(0, 0, 0)},          {"NEGRO", Rgb(0, 0, 0)},          {"BLUE", Rgb(0, 0, 255)},
        {"AZUL", Rgb(0, 0, 255)},         {"CYAN", Rgb(0, 255, 255)},       {"CIAN", Rgb(0, 255, 255)},
        {"GREEN", Rgb(0, 255, 0)},        {"VERDE", Rgb(0, 255, 0)},        {"MAGENTA", Rgb(255, 0, 255)},
        {"PINK", Rgb(255, 128, 255)},     {"ROSA", Rgb(255, 128, 255)},     {"FUCSIA", Rgb(255, 128, 255)},
        {"VIOLETA", Rgb(128, 0, 255)},    {"RED", Rgb(255, 0, 0)},          {"ROJO", Rgb(255, 0, 0)},
        {"WHITE", Rgb(255, 255, 255)},    {"BLANCO", Rgb(255, 255, 255)},   {"YELLOW", Rgb(255, 255, 0)},
        {"AMARILLO", Rgb(255, 255, 0)},   {"BROWN", Rgb(128, 64, 0)},       {"MARRON", Rgb(128, 64, 0)},
        {"CANELO", Rgb(128, 64, 0)},      {"GREY", Rgb(192, 192, 192)},     {"GRIS", Rgb(192, 192, 192)},
        {"ORANGE", Rgb(255, 128, 0)},     {"NARANJA", Rgb(255, 128, 0)},    {"NARANJADO", Rgb(255, 128, 0)},
    };
    for (const auto& [name, color] : names) {
        EXPECT_EQ(ParseColor(name), color) << name;
        std::string lower = name;
        for (auto& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        EXPECT_EQ(ParseColor(lower), color) << lower;
    }
    EXPECT_EQ(Rgb(255, 0, 0), 0x0000FFu);
}

TEST(Entities, CaseSensitiveNames) {
    TypesetterState st;
    WidePage(st);
    RecordingSurface s;
    MeasureString(st, s, "&alfa&Alfa");
    DrawString(st, s, "&alfa&Alfa");
    EXPECT_EQ(s.Joined(), "\u03B1Alfa");
    ASSERT_GE(s.texts.size(), 1u);
    EXPECT_EQ(s.texts[0].font, "Symbol");
    EXPECT_EQ(s.texts[1].font, "Times New Roman");
}

TEST(Entities, FirstMatchWinsAndNoTerminator) {
    TypesetterState st;
    WidePage(st);
    RecordingSurface s;
    MeasureString(st, s, "&vacio&alfa2&pm&mp&hbar");
    DrawString(st, s, "&vacio&alfa2&pm&mp&hbar");
    EXPECT_EQ(s.Joined(), "\u2205\u03B12\u00B1\u2213\u210F");
    EXPECT_EQ(s.texts[3].font, "Symbol");
    EXPECT_EQ(s.texts[4].font, "MT Extra");
    EXPECT_EQ(s.texts[5].font, "MT Extra");
}
