// Files made by hand or damaged: numbers too large for their fields, pointers far beyond
// the file. They open or give "Bad file.", never a value converted out of range.
#include <gtest/gtest.h>

#include <climits>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "core/col_file.h"
#include "core_fakes.h"

namespace fs = std::filesystem;

namespace {
class HostileFile : public ::testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() /
                 ("sumforge_hostile_" + std::to_string(::getpid()) + "_" +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(folder);
        fs::create_directories(folder);
        bench.app.ImageFolder = (folder / "img").string();
        bench.app.TempFolder = (folder / "temp").string();
    }
    void TearDown() override { fs::remove_all(folder); }

    bool Open(const std::string& bytes) {
        const std::string path = (folder / "hand.col").string();
        std::ofstream(path, std::ios::binary) << bytes;
        bench.app.CurrentFileName = path;
        return OpenFile(bench.app);
    }
    static std::string File(const std::string& position, const std::string& first, const std::string& bindir) {
        const std::string line = std::string("KVOL_TEST") + std::string(71, ' ') + "0010010001000101" + "0001\r\n";
        return "#CABECERA(#PROPARAM(" + line + "#PROPARAM)#TITULO(T#TITULO)#POSNUMPAG(" + position +
               "#POSNUMPAG)#COLRESPRO(255#COLRESPRO)#ORDENA(1#ORDENA)#PAGINI(1#PAGINI)#POSSOL(1#POSSOL)"
               "#PROPRE(#PROPRE)#PROSUF()#PROSUF)#PROINI(" +
               first + "#PROINI)" + bindir + "#CABECERA)#PRO001(#ENU(s#ENU)#SOL(a#SOL)#PRO001)";
    }

    fs::path folder;
    TestBench bench;
};
} // namespace

TEST_F(HostileFile, NumbersBeyondTheFieldAreHeldAtItsEnds) {
    ASSERT_TRUE(Open(File("99999999999", "-99999999999", "#BINDIR(00000000#BINDIR)")));
    EXPECT_EQ(bench.app.Settings.PagePositionCode, INT32_MAX);
    EXPECT_EQ(bench.app.Settings.FirstProblemNumber, INT32_MIN);
    EXPECT_EQ(bench.app.ProblemCount(), 1);
}

TEST_F(HostileFile, NumberOfFourHundredDigitsOpens) {
    ASSERT_TRUE(Open(File(std::string(400, '9'), "1", "")));
    EXPECT_EQ(bench.app.Settings.PagePositionCode, INT32_MAX);
}

TEST_F(HostileFile, DirectoryPointerOfManyDigitsIsABadFile) {
    EXPECT_FALSE(Open(File("11", "1", "#BINDIR(" + std::string(400, '9') + "#BINDIR)")));
    ASSERT_FALSE(bench.window.messages.empty());
    EXPECT_EQ(bench.window.messages.back(), "Bad file.");
    EXPECT_EQ(bench.app.ProblemCount(), 0);
}
