// A save that fails at any step leaves the old file's bytes as they were and says why.
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/resource.h>
#include <unistd.h>

#include "core/col_file.h"
#include "core_fakes.h"

namespace fs = std::filesystem;

namespace {
class SaveFailure : public ::testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() /
                 ("sumforge_save_" + std::to_string(::getpid()) + "_" +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(folder);
        fs::create_directories(folder);
        target = (folder / "keep.col").string();
        std::ofstream(target, std::ios::binary) << kOld;
        // Big enough that the writing itself, not only the closing, meets the failure.
        bench.SetProblems(std::vector<std::pair<std::string, std::string>>(40, {std::string(2000, 's'), "a"}));
        bench.app.CurrentFileName = target;
        bench.app.Modified = true;
    }
    void TearDown() override { fs::remove_all(folder); }

    std::string OldBytes() const {
        std::ifstream in(target, std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    void ExpectOldFileKept() {
        EXPECT_EQ(OldBytes(), kOld);
        EXPECT_TRUE(bench.app.Modified);
        EXPECT_FALSE(fs::exists(target + "x") && fs::is_regular_file(target + "x"));
    }

    static constexpr const char* kOld = "#CABECERA(the old collection, byte for byte\r\n\x01\xff";
    fs::path folder;
    std::string target;
    TestBench bench;
};
} // namespace

TEST_F(SaveFailure, FullDiskKeepsTheOldFile) {
    // The temporary name leads to a device that is always full.
    fs::create_symlink("/dev/full", target + "x");
    EXPECT_FALSE(SaveFile(bench.app));
    ASSERT_FALSE(bench.window.messages.empty());
    EXPECT_EQ(bench.window.messages.back().rfind("We are sorry, can't save the file.\r\nError number = 61\r\n", 0), 0u)
        << bench.window.messages.back();
    EXPECT_EQ(bench.window.icons.back(), MessageIcon::Stop);
    ExpectOldFileKept();
}

TEST_F(SaveFailure, FileSizeLimitMidWayKeepsTheOldFile) {
    // The write stops part way: the system refuses bytes beyond 10 000.
    struct rlimit before {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit small = before;
    small.rlim_cur = 10000;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool saved = SaveFile(bench.app);
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_FALSE(saved);
    ASSERT_FALSE(bench.window.messages.empty());
    EXPECT_EQ(bench.window.messages.back().rfind("We are sorry, can't save the file.\r\nError number = ", 0), 0u);
    ExpectOldFileKept();
    EXPECT_FALSE(fs::exists(target + "x"));
}

TEST_F(SaveFailure, TemporaryNameTakenByAFolderKeepsTheOldFile) {
    fs::create_directories(target + "x/inside");
    EXPECT_FALSE(SaveFile(bench.app));
    ASSERT_FALSE(bench.window.messages.empty());
    EXPECT_EQ(bench.window.messages.back(), "We are sorry, can't save the file: Write-protected. \r\nFilename: " + target +
                                                "\r\n\r\nPlease, select a different file name");
    EXPECT_EQ(bench.window.saveAs, 1);
    EXPECT_EQ(OldBytes(), kOld);
    EXPECT_TRUE(bench.app.Modified);
}

TEST_F(SaveFailure, ReadOnlyFolderKeepsTheOldFile) {
    if (::geteuid() == 0) GTEST_SKIP() << "a read-only folder does not stop the superuser";
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
    const bool saved = SaveFile(bench.app);
    fs::permissions(folder, fs::perms::owner_all);
    EXPECT_FALSE(saved);
    EXPECT_EQ(bench.window.saveAs, 1);
    ExpectOldFileKept();
}

TEST_F(SaveFailure, SuccessfulSaveReplacesTheOldFileWhole) {
    ASSERT_TRUE(SaveFile(bench.app));
    std::string expected;
    std::string error;
    ASSERT_TRUE(BuildFileBytes(bench.app, expected, error));
    EXPECT_EQ(OldBytes(), expected);
    EXPECT_FALSE(bench.app.Modified);
    EXPECT_FALSE(fs::exists(target + "x"));
}
