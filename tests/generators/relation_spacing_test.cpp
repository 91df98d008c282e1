#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "generators/hub.h"
#include "support/generator_sweep.h"
#include "typesetter/constructs.h"
#include "typesetter/markup.h"
#include "typesetter/text_util.h"
#include "typesetter/typesetter_state.h"

// Every relation sign a generator writes stands with one word space on each side, in the
// statement and in the solution: "x = 6", never "x   =  6". The markup is read as the
// typesetter reads it, into the atoms it prints: a blank, "& " and "&|" are one space each;
// switches, colours and font codes print nothing; an entity ("&<=", "&pm") is one sign; a
// construct ("#COC(..#COC)", "#SQR(..#SQR)") is one piece.
namespace {
// A thin space is a script blank ("_ ", "^ "): two thirds of a word space.
enum class AtomKind { Space, ThinSpace, Relation, Sign, Other };

struct Atom {
    AtomKind kind;
    std::size_t at; // where it begins in the line
};

bool IsRelationGlyph(char32_t c) {
    return c == U'=' || c == U'<' || c == U'>' || c == U'\u2264' || c == U'\u2265' || c == U'\u2260' ||
           c == U'\u2248' || c == U'\u2245';
}

bool At(const std::u32string& text, std::size_t pos, std::u32string_view what) {
    return text.compare(pos, what.size(), what) == 0;
}

const SymbolTables& Symbols() {
    static const SymbolTables tables = [] {
        SymbolTables t;
        InitSymbolTables(t);
        return t;
    }();
    return tables;
}

// One line (no "&LF") as the typesetter prints it, in the order of its codes; a column
// mark starts a new run, as a new line does: the atoms of each run.
std::vector<std::vector<Atom>> ReadRuns(const std::u32string& line) {
    std::vector<std::vector<Atom>> runs(1);
    const auto add = [&runs](AtomKind kind, std::size_t at) { runs.back().push_back({kind, at}); };
    std::size_t p = 0;
    while (p < line.size()) {
        const std::size_t start = p;
        if (At(line, p, U"#MARK")) {
            p += 9;
            while (p < line.size() && line[p] >= U'0' && line[p] <= U'9') ++p;
            continue;
        }
        if (At(line, p, U"##")) {
            add(AtomKind::Other, start);
            p += 2;
            continue;
        }
        if (line[p] == U'#') {
            if (const ConstructTag* tag = FindConstructTag(line, p)) {
                const std::u32string piece = ExtractBalancedAt(line, p, tag->open, tag->close);
                add(AtomKind::Other, start);
                p += piece.size();
            } else {
                p += 1;
            }
            continue;
        }
        if (line[p] == U'&') {
            bool done = false;
            for (std::u32string_view style : {U"&+I", U"&-I", U"&+B", U"&-B", U"&+U", U"&-U", U"&+S", U"&-S"}) {
                if (At(line, p, style)) {
                    p += 3;
                    done = true;
                    break;
                }
            }
            if (done) continue;
            for (std::u32string_view code : {U"&FS", U"&FN", U"&FC", U"&BC", U"&LC", U"&FF", U"&SP"}) {
                if (!At(line, p, code)) continue;
                const std::size_t colon = line.find(U':', p + 4);
                if (colon == std::u32string::npos) return runs; // the typesetter stops here too
                if (code == U"&SP") runs.emplace_back();
                p = colon + 1;
                done = true;
                break;
            }
            if (done) continue;
            const SymbolTables& symbols = Symbols();
            for (int i = 1; i <= kSymbolCount && !done; ++i) {
                if (!At(line, p, symbols.SymbolName[i])) continue;
                const std::u32string glyph = ToU32(symbols.SymbolGlyph[i]);
                const bool relation = glyph.size() == 1 && IsRelationGlyph(glyph[0]);
                const bool sign = glyph == U"\u00B1" || glyph == U"\u2213";
                add(relation ? AtomKind::Relation : (sign ? AtomKind::Sign : AtomKind::Other), start);
                p += symbols.SymbolName[i].size();
                done = true;
            }
            if (done) continue;
            if (At(line, p, U"& ") || At(line, p, U"&|")) {
                add(AtomKind::Space, start);
                p += 2;
            } else if (At(line, p, U"&E")) {
                add(AtomKind::Other, start);
                p += 2;
                if (p < line.size() && (line[p] == U'+' || line[p] == U'-')) ++p;
                while (p < line.size() && line[p] >= U'0' && line[p] <= U'9') ++p;
            } else if (p + 1 < line.size()) {
                // "&Q" "&=" "&#" drawn signs, "&_" "&&", and the locale codes "&." "&," "&("
                // "&)" "&FA" "&DT", which print text of their own.
                add(AtomKind::Other, start);
                p += At(line, p, U"&FA") || At(line, p, U"&DT") ? 3 : 2;
            } else {
                p += 1;
            }
            continue;
        }
        if (line[p] == U'_' || line[p] == U'^') {
            if (p + 1 < line.size()) add(line[p + 1] == U' ' ? AtomKind::ThinSpace : AtomKind::Other, start);
            p += 2;
            continue;
        }
        const char32_t c = line[p];
        if (c == U' ') add(AtomKind::Space, start);
        else if (IsRelationGlyph(c)) add(AtomKind::Relation, start);
        else if (c == U'+' || c == U'-' || c == U'\u2212') add(AtomKind::Sign, start);
        else add(AtomKind::Other, start);
        p += 1;
    }
    return runs;
}

std::string Around(const std::u32string& line, std::size_t at) {
    const std::size_t from = at > 30 ? at - 30 : 0;
    return "\"" + ToUtf8(line.substr(from, 60)) + "\"";
}

// The relations of a text that lack one space on either side: the text around each.
// A relation that opens a line or column (a continued derivation) may stand without a
// space before it, and one that ends it (the right side follows on the next line) without
// one after. Relation signs written together ("<=" as two characters) count as one.
std::vector<std::string> RelationSpacingFaults(const std::string& markup) {
    std::vector<std::string> faults;
    const std::u32string text = ToU32(markup);
    std::size_t pos = 0;
    while (pos <= text.size()) {
        std::size_t end = text.find(U"&LF", pos);
        if (end == std::u32string::npos) end = text.size();
        const std::u32string line = text.substr(pos, end - pos);
        for (const auto& run : ReadRuns(line)) {
            for (std::size_t i = 0; i < run.size(); ++i) {
                if (run[i].kind != AtomKind::Relation) continue;
                std::size_t last = i;
                while (last + 1 < run.size() && run[last + 1].kind == AtomKind::Relation) ++last;
                const auto blank = [&run](std::size_t k) {
                    return run[k].kind == AtomKind::Space || run[k].kind == AtomKind::ThinSpace;
                };
                std::size_t before = 0, thin = 0;
                while (before < i && blank(i - 1 - before)) {
                    if (run[i - 1 - before].kind == AtomKind::ThinSpace) ++thin;
                    ++before;
                }
                std::size_t after = 0;
                while (last + 1 + after < run.size() && blank(last + 1 + after)) {
                    if (run[last + 1 + after].kind == AtomKind::ThinSpace) ++thin;
                    ++after;
                }
                const bool opensRun = before == i;
                const bool endsRun = last + 1 + after == run.size();
                if ((!opensRun && before != 1) || (!endsRun && after != 1) || thin > 0) {
                    faults.push_back(std::to_string(before) + " space(s) before, " + std::to_string(after) +
                                     " after (" + std::to_string(thin) + " thin): " + Around(line, run[i].at));
                }
                i = last;
            }
        }
        if (end == text.size()) break;
        pos = end + 3;
    }
    return faults;
}

void CheckModule(const std::string& module) {
    GeneratorHub hub;
    const GeneratorModule* found = nullptr;
    for (const auto& m : hub.Modules())
        if (m.name == module) found = &m;
    ASSERT_NE(found, nullptr) << module;
    for (const auto& entry : found->routines) {
        int reported = 0;
        SweepRoutine(module, entry.number, 40, [&](const GeneratedProblem& p) {
            for (const auto& [name, text] : {std::pair<const char*, const std::string&>{"statement", p.statement},
                                             {"solution", p.solution}}) {
                const auto faults = RelationSpacingFaults(text);
                if (faults.empty() || reported >= 3) continue;
                ++reported;
                std::ostringstream out;
                out << module << " routine " << entry.number << " seed " << p.fields.Seed << " (" << p.code << "), "
                    << name << ", " << faults.size() << " relation(s) spaced wrongly:";
                for (std::size_t k = 0; k < faults.size() && k < 4; ++k) out << "\n    " << faults[k];
                ADD_FAILURE() << out.str();
            }
        });
    }
}

const std::vector<std::string> kModules = {"KVOL_MATH_ALG", "KVOL_MATH_ECU", "KVOL_MATH_GA2", "KVOL_MATH_GA3",
                                           "KVOL_MATH_GDE", "KVOL_MATH_INT", "KVOL_MATH_LFD", "KVOL_MATH_NRP",
                                           "KVOL_MATH_PES", "KVOL_MATH_TRI"};
} // namespace

TEST(RelationSpacing, TheReaderCountsPrintedSpacesOnly) {
    EXPECT_TRUE(RelationSpacingFaults("&+I x&-I& =& 6").empty());
    EXPECT_TRUE(RelationSpacingFaults("&+I x &-I= #COC(-1#N)(3#COC)").empty());
    EXPECT_TRUE(RelationSpacingFaults("a &<= b &FC=Rojo:&!= c").empty());
    EXPECT_TRUE(RelationSpacingFaults("x = 1&LF  = 2&LF&SP=40:= 3").empty());
    EXPECT_TRUE(RelationSpacingFaults("y =&LF#COC(1#N)(2#COC)").empty());
    EXPECT_TRUE(RelationSpacingFaults("x <= 3").empty());
    EXPECT_EQ(RelationSpacingFaults("&+I x &-I  =  6").size(), 1u);
    EXPECT_EQ(RelationSpacingFaults("x   &>=  -2").size(), 1u);
    EXPECT_EQ(RelationSpacingFaults("x =   #COC(-1#N)(3#COC)").size(), 1u);
    EXPECT_EQ(RelationSpacingFaults("x& & = 6").size(), 1u);
    EXPECT_EQ(RelationSpacingFaults("x=6; y &aprox 2").size(), 1u);
    EXPECT_EQ(RelationSpacingFaults("#SQR(4#SQR)= 2").size(), 1u);
    EXPECT_EQ(RelationSpacingFaults("&+Ik&-I_ &!=_ -4").size(), 1u);
    EXPECT_EQ(RelationSpacingFaults("y'_ = 2").size(), 1u);
    // A relation inside a construct belongs to the construct's own text.
    EXPECT_TRUE(RelationSpacingFaults("#COC(a  =  b#N)(2#COC) = 1").empty());
}

TEST(RelationSpacing, EveryModuleIsChecked) {
    GeneratorHub hub;
    std::set<std::string> names;
    for (const auto& m : hub.Modules()) names.insert(m.name);
    EXPECT_EQ(names, std::set<std::string>(kModules.begin(), kModules.end()));
}

class RelationSpacingOfModule : public ::testing::TestWithParam<std::string> {};

TEST_P(RelationSpacingOfModule, OneSpaceEachSideOfEveryRelation) { CheckModule(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Modules, RelationSpacingOfModule, ::testing::ValuesIn(kModules),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param.substr(10); });
