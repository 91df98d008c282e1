// A save that fails at any step leaves the old file's bytes as they were and says why.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <cstring>
#include <sys/mount.h>
#include <sys/resource.h>
#include <vector>
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

    static std::string ReadBytes(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    std::string OldBytes() const { return ReadBytes(target); }
    // Nothing but what the test put there: no temporary file of the save.
    void ExpectNoTemporaryLeft() {
        for (const auto& entry : fs::directory_iterator(folder)) {
            const std::string name = entry.path().filename().string();
            EXPECT_TRUE(name == "keep.col" || name == "real.col" || name == "victim.txt" || name == "keep.colx") << name;
        }
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
    // The disk fills up after 5000 bytes of the new file.
    std::size_t room = 5000;
    bench.app.fileWriter = [&room](int fd, const char* data, std::size_t size) -> long {
        if (room == 0) {
            errno = ENOSPC;
            return -1;
        }
        const std::size_t n = std::min(size, room);
        room -= n;
        return static_cast<long>(::write(fd, data, n));
    };
    EXPECT_FALSE(SaveFile(bench.app));
    ASSERT_FALSE(bench.window.messages.empty());
    EXPECT_EQ(bench.window.messages.back().rfind("We are sorry, can't save the file.\r\nError number = 61\r\n", 0), 0u)
        << bench.window.messages.back();
    EXPECT_EQ(bench.window.icons.back(), MessageIcon::Stop);
    ExpectOldFileKept();
    ExpectNoTemporaryLeft();
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

TEST_F(SaveFailure, FolderAtTheOldTemporaryNameIsLeftAlone) {
    fs::create_directories(target + "x/inside");
    EXPECT_TRUE(SaveFile(bench.app));
    EXPECT_TRUE(fs::is_directory(target + "x/inside"));
    EXPECT_FALSE(bench.app.Modified);
}

TEST_F(SaveFailure, LinkPlantedAtTheTemporaryNameIsNotFollowed) {
    const std::string victim = (folder / "victim.txt").string();
    std::ofstream(victim, std::ios::binary) << "not yours";
    fs::create_symlink(victim, target + "x");
    ASSERT_TRUE(SaveFile(bench.app));
    EXPECT_EQ(ReadBytes(victim), "not yours");
    EXPECT_TRUE(fs::is_symlink(target + "x"));
    EXPECT_FALSE(fs::is_symlink(target));
    EXPECT_EQ(OldBytes().rfind("#CABECERA(", 0), 0u);
}

TEST_F(SaveFailure, FileAtTheTemporaryNameSurvives) {
    std::ofstream(target + "x", std::ios::binary) << "someone's notes";
    ASSERT_TRUE(SaveFile(bench.app));
    EXPECT_EQ(ReadBytes(target + "x"), "someone's notes");
    EXPECT_NE(OldBytes(), kOld);
}

TEST_F(SaveFailure, WriteProtectedFileIsRefused) {
    // Refused even for the superuser, whom the system would let replace it.
    fs::permissions(target, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_FALSE(SaveFile(bench.app));
    ASSERT_FALSE(bench.window.messages.empty());
    EXPECT_EQ(bench.window.messages.back(), "We are sorry, can't save the file: Write-protected. \r\nFilename: " + target +
                                                "\r\n\r\nPlease, select a different file name");
    EXPECT_EQ(bench.window.saveAs, 1);
    ExpectOldFileKept();
    EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    ExpectNoTemporaryLeft();
}

TEST_F(SaveFailure, SavedFileKeepsItsMode) {
    for (const fs::perms mode : {fs::perms::owner_read | fs::perms::owner_write,
                                 fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read,
                                 fs::perms::owner_all | fs::perms::group_all | fs::perms::others_read}) {
        fs::permissions(target, mode);
        bench.app.Modified = true;
        ASSERT_TRUE(SaveFile(bench.app));
        EXPECT_EQ(fs::status(target).permissions(), mode);
    }
}

TEST_F(SaveFailure, SaveThroughALinkWritesItsTarget) {
    const std::string real = (folder / "real.col").string();
    fs::rename(target, real);
    fs::create_symlink("real.col", target);
    ASSERT_TRUE(SaveFile(bench.app));
    EXPECT_TRUE(fs::is_symlink(target));
    EXPECT_EQ(ReadBytes(real).rfind("#CABECERA(#PROPARAM(", 0), 0u);
    ExpectNoTemporaryLeft();
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

TEST_F(SaveFailure, SmallFilesystemRunningFullKeepsTheOldFile) {
    // A real full disk: a 48 KiB memory filesystem, where the test may mount one.
    const fs::path small = folder / "small";
    fs::create_directories(small);
    if (::mount("tmpfs", small.c_str(), "tmpfs", 0, "size=48k") != 0)
        GTEST_SKIP() << "cannot mount a small filesystem here: " << std::strerror(errno);
    const std::string kept = (small / "keep.col").string();
    std::ofstream(kept, std::ios::binary) << kOld;
    bench.app.CurrentFileName = kept;
    const bool saved = SaveFile(bench.app);
    const std::string after = ReadBytes(kept);
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(small)) names.push_back(entry.path().filename().string());
    ::umount2(small.c_str(), MNT_DETACH);
    EXPECT_FALSE(saved);
    ASSERT_FALSE(bench.window.messages.empty());
    EXPECT_EQ(bench.window.messages.back().rfind("We are sorry, can't save the file.\r\nError number = 61\r\n", 0), 0u)
        << bench.window.messages.back();
    EXPECT_EQ(after, kOld);
    EXPECT_EQ(names, std::vector<std::string>{"keep.col"});
}
