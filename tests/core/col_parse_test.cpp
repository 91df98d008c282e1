// The file parser on its own, and open then save of whole files giving the same bytes.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "core/col_file.h"
#include "core/editing.h"
#include "core_fakes.h"

namespace fs = std::filesystem;

namespace {
std::string ReadBytes(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

void WriteBytes(const fs::path& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary);
    out << bytes;
}

std::string Line(const std::string& module, const std::string& code) {
    return module + std::string(80 - module.size(), ' ') + code + "0001\r\n";
}

std::string HeadWith(const std::string& lines, const std::string& title) {
    return "#CABECERA(#PROPARAM(" + lines + "#PROPARAM)#TITULO(" + title +
           "#TITULO)#POSNUMPAG(9#POSNUMPAG)#COLRESPRO(255#COLRESPRO)#ORDENA(0#ORDENA)"
           "#PAGINI(7#PAGINI)#POSSOL(2#POSSOL)#PROPRE(N#PROPRE)#PROSUF(.#PROSUF)#PROINI(3#PROINI)"
           "#BINDIR(00000000#BINDIR)#CABECERA)";
}

// A folder of its own for each test, removed afterwards.
class ScratchFolder {
public:
    ScratchFolder() {
        path_ = fs::temp_directory_path() /
                ("sumforge_parse_" + std::to_string(::getpid()) + "_" +
                 ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(path_);
        fs::create_directories(path_ / "img");
    }
    ~ScratchFolder() { fs::remove_all(path_); }
    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};
} // namespace

TEST(ParseColFile, ReadsSettingsRecordsAndTexts) {
    const std::string bytes = HeadWith(Line("KVOL_MATH_NRP", "0120050042030201") + Line("KVOL_X", "0010020003040502"),
                                       "Caf\xE9") +
                              "#PRO001(#ENU(S1#ENU)#SOL(L1#SOL)#PRO001)#PRO002(#ENU(S2 #ENU) x#ENU)#SOL(#SOL)#PRO002)";
    const ColFileContents c = ParseColFile(bytes);
    ASSERT_EQ(c.error, ColFileError::None);
    EXPECT_EQ(c.settings.Title, "Caf\u00E9");
    EXPECT_EQ(c.settings.PagePositionCode, 9);
    EXPECT_EQ(c.settings.NumberColour, 255);
    EXPECT_FALSE(c.settings.Sorted);
    EXPECT_EQ(c.settings.FirstPageNumber, 7);
    EXPECT_EQ(c.settings.SolutionPosition, 2);
    EXPECT_EQ(c.settings.NumberPrefix, "N");
    EXPECT_EQ(c.settings.NumberSuffix, ".");
    EXPECT_EQ(c.settings.FirstProblemNumber, 3);
    EXPECT_EQ(c.settings.ProblemCount, 2);
    ASSERT_EQ(c.records.size(), 2u);
    const ProblemRecord& a = c.records[0];
    EXPECT_EQ(a.ModuleName, "KVOL_MATH_NRP");
    EXPECT_EQ(a.RoutineId, 12);
    EXPECT_EQ(a.VariantNumber, 5);
    EXPECT_EQ(a.Seed, 42);
    EXPECT_EQ(a.ItemCount, 3);
    EXPECT_EQ(a.GroupSize, 2);
    EXPECT_EQ(a.GroupIndex, 1);
    EXPECT_EQ(a.Statement, "S1");
    EXPECT_EQ(a.Solution, "L1");
    EXPECT_EQ(c.records[1].ModuleName, "KVOL_X");
    EXPECT_EQ(c.records[1].Statement, "S2 #ENU) x");
    EXPECT_EQ(c.records[1].Solution, "");
    EXPECT_TRUE(c.pictures.empty());
}

TEST(ParseColFile, NamesEachKindOfDamage) {
    const std::string line = Line("KVOL_X", "0010020003040501");
    const std::string element = "#PRO001(#ENU(S#ENU)#SOL(L#SOL)#PRO001)";
    EXPECT_EQ(ParseColFile(HeadWith(line, "T") + element).error, ColFileError::None);
    EXPECT_EQ(ParseColFile("").error, ColFileError::BadFile);
    EXPECT_EQ(ParseColFile("#CABECERA(#PROPARAM(" + line).error, ColFileError::BadFile);
    // Problem lines that are not whole lines, or none.
    EXPECT_EQ(ParseColFile(HeadWith(line + "x", "T") + element).error, ColFileError::NoProblems);
    EXPECT_EQ(ParseColFile(HeadWith("", "T")).error, ColFileError::NoProblems);
    // A problem element missing, a title too long, a directory pointer outside the file.
    EXPECT_EQ(ParseColFile(HeadWith(line, "T")).error, ColFileError::BadFile);
    EXPECT_EQ(ParseColFile(HeadWith(line, std::string(kMaxTitleBytes + 1, 'a')) + element).error,
              ColFileError::BadFile);
    std::string farPointer = HeadWith(line, "T") + element;
    farPointer.replace(farPointer.find("00000000"), 8, "99999999");
    EXPECT_EQ(ParseColFile(farPointer).error, ColFileError::BadFile);
    // A damaged file gives nothing else.
    const ColFileContents bad = ParseColFile(HeadWith(line, "T"));
    EXPECT_TRUE(bad.records.empty());
    EXPECT_TRUE(bad.pictures.empty());
}

TEST(ParseColFile, IsTheMirrorOfBuildFileBytes) {
    ScratchFolder scratch;
    TestBench bench;
    bench.app.ImageFolder = (scratch.path() / "img").string();
    bench.app.TempFolder = (scratch.path() / "temp").string();
    WriteBytes(scratch.path() / "img" / "pic.gif", std::string("GIF89a\0\x01\x02 any bytes \xFF", 20));
    bench.SetProblems({{"One #IMG(1;2;'pic.gif'#IMG) &+Bbold&-B \u00D7", "Answer&LF"}, {"Two", ""}});
    bench.app.Problems[2].ModuleName = "KVOL_OTHER";
    bench.app.Problems[2].GroupSize = 2;
    bench.app.Problems[2].GroupIndex = 2;
    bench.app.Settings.Title = "Pr\u00E1ctica";
    bench.app.Settings.NumberPrefix = "No ";
    bench.app.Settings.Sorted = false;
    std::string bytes;
    std::string error;
    ASSERT_TRUE(BuildFileBytes(bench.app, bytes, error)) << error;
    const ColFileContents c = ParseColFile(bytes);
    ASSERT_EQ(c.error, ColFileError::None);
    EXPECT_EQ(c.settings, bench.app.Settings);
    ASSERT_EQ(c.records.size(), 2u);
    for (int i = 1; i <= 2; ++i) EXPECT_EQ(c.records[i - 1], bench.app.Problems[i]) << i;
    ASSERT_EQ(c.pictures.size(), 1u);
    EXPECT_EQ(c.pictures[0].name, "pic.gif");
    EXPECT_EQ(c.pictures[0].bytes, ReadBytes(scratch.path() / "img" / "pic.gif"));
    // Parsing wrote nothing: the temp folder was never made.
    EXPECT_FALSE(fs::exists(scratch.path() / "temp"));
}

// Every collection file the program wrote, opened and saved again, gives the same bytes.
// The image folder is empty, so that each picture is saved from the copy the file
// carried.
TEST(ParseColFile, OpenThenSaveKeepsEveryByteOfTheSampleFiles) {
    const fs::path source = SUMFORGE_SOURCE_DIR;
    const std::vector<fs::path> files = {
        source / "tests/core/data/figures.col",
        source / "tests/fuzz/corpus/open_file/real_algebra.col",
        source / "tests/fuzz/corpus/open_file/real_analysis.col",
        source / "tests/fuzz/corpus/open_file/real_drills.col",
        source / "tests/fuzz/corpus/open_file/real_figures.col",
        source / "tests/fuzz/corpus/open_file/with_picture.col",
        source / "tests/fuzz/corpus/open_file/two_problems.col",
    };
    for (const fs::path& file : files) {
        ScratchFolder scratch;
        TestBench bench;
        bench.app.ImageFolder = (scratch.path() / "img").string();
        bench.app.TempFolder = (scratch.path() / "temp").string();
        const std::string original = ReadBytes(file);
        ASSERT_FALSE(original.empty()) << file;
        bench.app.CurrentFileName = file.string();
        ASSERT_TRUE(OpenFile(bench.app)) << file;
        bench.app.CurrentFileName = (scratch.path() / "again.col").string();
        ASSERT_TRUE(SaveFile(bench.app)) << file;
        EXPECT_TRUE(ReadBytes(scratch.path() / "again.col") == original) << file;
    }
}
