// Files made by hand or damaged: numbers too large for their fields, pointers far beyond
// the file. They open or give "Bad file.", never a value converted out of range.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <fcntl.h>
#include <sstream>
#include <sys/stat.h>
#include <vector>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "core/col_file.h"
#include "core/editing.h"
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
    static std::string File(const std::string& position, const std::string& first, const std::string& bindir,
                            const std::string& title = "T", const std::string& statement = "s") {
        const std::string line = std::string("KVOL_TEST") + std::string(71, ' ') + "0010010001000101" + "0001\r\n";
        return "#CABECERA(#PROPARAM(" + line + "#PROPARAM)#TITULO(" + title + "#TITULO)#POSNUMPAG(" + position +
               "#POSNUMPAG)#COLRESPRO(255#COLRESPRO)#ORDENA(1#ORDENA)#PAGINI(1#PAGINI)#POSSOL(1#POSSOL)"
               "#PROPRE(#PROPRE)#PROSUF()#PROSUF)#PROINI(" +
               first + "#PROINI)" + bindir + "#CABECERA)#PRO001(#ENU(" + statement + "#ENU)#SOL(a#SOL)#PRO001)";
    }

    static std::string Field(const std::string& value, std::size_t width) {
        return (value + std::string(width, ' ')).substr(0, width);
    }
    // A file of one problem whose picture directory holds these names and bytes.
    static std::string WithPictures(const std::vector<std::pair<std::string, std::string>>& pictures) {
        std::string text = File("11", "1", "#BINDIR(@@@@@@@@#BINDIR)");
        std::size_t pos = text.size() + 48 * pictures.size() + 1;
        std::string directory;
        std::string data;
        for (const auto& [name, bytes] : pictures) {
            directory += Field(name, 32) + Field(std::to_string(pos), 8) + Field(std::to_string(bytes.size()), 8);
            data += bytes;
            pos += bytes.size();
        }
        text.replace(text.find("@@@@@@@@"), 8, Field(std::to_string(text.size() + 1), 8));
        return text + directory + data;
    }
    std::vector<std::string> TempNames() const {
        std::vector<std::string> names;
        std::error_code ec;
        for (fs::directory_iterator it(folder / "temp", ec), end; !ec && it != end; it.increment(ec))
            names.push_back(it->path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    static std::string ReadBytes(const fs::path& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    void ExpectBadFile() {
        ASSERT_FALSE(bench.window.messages.empty());
        EXPECT_EQ(bench.window.messages.back(), "Bad file.");
        EXPECT_EQ(bench.app.ProblemCount(), 0);
    }
    static double SecondsSince(std::chrono::steady_clock::time_point start) {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
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

TEST_F(HostileFile, PipeIsABadFileAndIsNotWaitedOn) {
    const std::string path = (folder / "pipe.col").string();
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    bench.app.CurrentFileName = path;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(OpenFile(bench.app));
    EXPECT_LT(SecondsSince(start), 2.0);
    ExpectBadFile();
}

TEST_F(HostileFile, LinkToADeviceIsABadFile) {
    const std::string path = (folder / "zero.col").string();
    fs::create_symlink("/dev/zero", path);
    bench.app.CurrentFileName = path;
    EXPECT_FALSE(OpenFile(bench.app));
    ExpectBadFile();
}

TEST_F(HostileFile, LinkToACollectionOpens) {
    std::ofstream((folder / "real.col").string(), std::ios::binary) << File("11", "1", "");
    fs::create_symlink("real.col", folder / "link.col");
    bench.app.CurrentFileName = (folder / "link.col").string();
    EXPECT_TRUE(OpenFile(bench.app));
}

TEST_F(HostileFile, FileBeyondTheLargestCollectionIsRefusedUnread) {
    const std::string path = (folder / "huge.col").string();
    std::ofstream(path, std::ios::binary) << File("11", "1", "");
    // Sparse: the size is there, the bytes would be zeros read for nothing.
    fs::resize_file(path, kMaxFileBytes + 1);
    bench.app.CurrentFileName = path;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(OpenFile(bench.app));
    EXPECT_LT(SecondsSince(start), 1.0);
    ExpectBadFile();
}

TEST_F(HostileFile, MissingFileSaysTheSystemsReason) {
    const std::string path = (folder / "gone.col").string();
    bench.app.CurrentFileName = path;
    EXPECT_FALSE(OpenFile(bench.app));
    ASSERT_FALSE(bench.window.messages.empty());
    EXPECT_EQ(bench.window.messages.back(), "Cannot open " + path + ": No such file or directory");
    EXPECT_EQ(bench.app.ProblemCount(), 0);
}

TEST_F(HostileFile, TextsBeyondTheirLimitsAreABadFile) {
    EXPECT_TRUE(Open(File("11", "1", "", std::string(kMaxTitleBytes, 't'))));
    EXPECT_FALSE(Open(File("11", "1", "", std::string(kMaxTitleBytes + 1, 't'))));
    ExpectBadFile();
    EXPECT_TRUE(Open(File("11", "1", "", "T", std::string(kMaxProblemTextBytes, 's'))));
    EXPECT_FALSE(Open(File("11", "1", "", "T", std::string(kMaxProblemTextBytes + 1, 's'))));
    ExpectBadFile();
}

TEST_F(HostileFile, MegabyteStatementIsRefusedAtOnce) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(Open(File("11", "1", "", "T", std::string(1 << 20, 'x'))));
    EXPECT_LT(SecondsSince(start), 5.0);
    ExpectBadFile();
}

TEST_F(HostileFile, TwentyThousandPicturesAreABadFileAndWriteNothing) {
    std::vector<std::pair<std::string, std::string>> pictures;
    for (int i = 0; i < 20000; ++i) pictures.emplace_back("p" + std::to_string(i) + ".gif", "");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(Open(WithPictures(pictures)));
    EXPECT_LT(SecondsSince(start), 10.0);
    ExpectBadFile();
    EXPECT_TRUE(TempNames().empty());
}

TEST_F(HostileFile, ManyPicturesLand) {
    std::vector<std::pair<std::string, std::string>> pictures;
    for (int i = 0; i < 40; ++i) pictures.emplace_back("p" + std::to_string(i) + ".gif", "GIF89a" + std::to_string(i));
    EXPECT_TRUE(Open(WithPictures(pictures)));
    EXPECT_EQ(TempNames().size(), 40u);
    EXPECT_EQ(ReadBytes(folder / "temp" / "p7.gif"), "GIF89a7");
}

TEST_F(HostileFile, OnlyPrintablePictureNamesWithAPictureExtensionAreWritten) {
    const std::string bytes = "GIF89a";
    EXPECT_TRUE(Open(WithPictures({{"new\nline.gif", bytes},
                                   {"cr\rname.gif", bytes},
                                   {"esc\x1b[31m.gif", bytes},
                                   {std::string("evil\0.gif", 9), bytes},
                                   {"script.sh", bytes},
                                   {"noextension", bytes},
                                   {".hidden.gif", bytes},
                                   {"ok.gif", bytes},
                                   {"photo.JPG", bytes}})));
    EXPECT_EQ(TempNames(), (std::vector<std::string>{"ok.gif", "photo.JPG"}));
}

TEST_F(HostileFile, TruncatedPictureInTheTempFolderIsReplaced) {
    const std::string whole = "GIF89a" + std::string(500, 'p');
    fs::create_directories(folder / "temp");
    std::ofstream(folder / "temp" / "m.gif", std::ios::binary) << whole.substr(0, 100);
    EXPECT_TRUE(Open(WithPictures({{"m.gif", whole}})));
    EXPECT_EQ(ReadBytes(folder / "temp" / "m.gif"), whole);
    EXPECT_EQ(TempNames(), std::vector<std::string>{"m.gif"});
}

TEST_F(HostileFile, SamePictureIsNotWrittenAgain) {
    const std::string whole = "GIF89a" + std::string(50, 'q');
    EXPECT_TRUE(Open(WithPictures({{"m.gif", whole}})));
    struct stat before {};
    ASSERT_EQ(::stat((folder / "temp" / "m.gif").c_str(), &before), 0);
    EXPECT_TRUE(Open(WithPictures({{"m.gif", whole}})));
    struct stat after {};
    ASSERT_EQ(::stat((folder / "temp" / "m.gif").c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST_F(HostileFile, PictureOnAFullDiskLeavesNoHalfFile) {
    std::size_t room = 10;
    bench.app.fileWriter = [&room](int fd, const char* data, std::size_t size) -> long {
        if (room == 0) {
            errno = ENOSPC;
            return -1;
        }
        const std::size_t n = std::min(size, room);
        room -= n;
        return static_cast<long>(::write(fd, data, n));
    };
    EXPECT_TRUE(Open(WithPictures({{"m.gif", "GIF89a" + std::string(500, 'p')}})));
    EXPECT_TRUE(TempNames().empty());
}

TEST_F(HostileFile, LinkInTheTempFolderIsNotWrittenThrough) {
    const fs::path victim = folder / "victim.txt";
    std::ofstream(victim, std::ios::binary) << "mine";
    fs::create_directories(folder / "temp");
    fs::create_symlink(victim, folder / "temp" / "m.gif");
    EXPECT_TRUE(Open(WithPictures({{"m.gif", "GIF89a"}})));
    EXPECT_EQ(ReadBytes(victim), "mine");
}

TEST(FileText, TakesTheHashOfTheFilesOwnTagsOut) {
    EXPECT_EQ(AsFileText("x#CABECERA)y", 100), "xCABECERA)y");
    EXPECT_EQ(AsFileText("a#BINDIR(12345678b", 100), "aBINDIR(12345678b");
    EXPECT_EQ(AsFileText("##TITULO)", 100), "TITULO)");
    EXPECT_EQ(AsFileText("p#PRO001)q#SOL(r#ENU)", 100), "pPRO001)q#SOL(r#ENU)");
    // The markup's own constructs and near misses stay.
    EXPECT_EQ(AsFileText("#SQR(x#SQR) #PRO01) #TITULO #IMG('a.gif'#IMG)", 100),
              "#SQR(x#SQR) #PRO01) #TITULO #IMG('a.gif'#IMG)");
}

TEST(FileText, IsCutAtACharacterBoundary) {
    EXPECT_EQ(AsFileText("abcdef", 4), "abcd");
    EXPECT_EQ(AsFileText("\xc3\xa9\xc3\xa9\xc3\xa9", 3), "\xc3\xa9");
}

TEST_F(HostileFile, SettingsWithTheFilesTagsRoundTrip) {
    for (const std::string text : {"x#CABECERA)y", "a#BINDIR(12345678b", "#TITULO)", "##TITULO)", "#PROPRE)#PROSUF)",
                                   "p#PRO001)q", "#CABECERA(#PROPARAM("}) {
        TestBench b;
        b.app.ImageFolder = bench.app.ImageFolder;
        b.app.TempFolder = bench.app.TempFolder;
        b.SetProblems({{"s", "a"}});
        b.app.Settings.Title = AsFileText(text, kMaxTitleBytes);
        b.app.Settings.NumberPrefix = AsFileText(text, kMaxAffixBytes);
        b.app.Settings.NumberSuffix = AsFileText(text, kMaxAffixBytes);
        b.app.CurrentFileName = (folder / "rt.col").string();
        ASSERT_TRUE(SaveFile(b.app)) << text;
        TestBench other;
        other.app.CurrentFileName = b.app.CurrentFileName;
        ASSERT_TRUE(OpenFile(other.app)) << text;
        EXPECT_EQ(other.app.Settings.Title, b.app.Settings.Title);
        EXPECT_EQ(other.app.Settings.NumberPrefix, b.app.Settings.NumberPrefix);
        EXPECT_EQ(other.app.Settings.NumberSuffix, b.app.Settings.NumberSuffix);
        EXPECT_EQ(other.app.ProblemCount(), 1);
    }
}

TEST_F(HostileFile, PastedProblemWithTheFilesTagsRoundTrips) {
    ProblemRecord pasted;
    ReadClipboardProblem(std::string(kClipboardHead) + "KVOL_TEST" + std::string(71, ' ') + "0010010001000101" +
                             "#ENU(one #PRO001) two #PRO002)#ENU)#SOL(three #PRO001)#SOL)",
                         pasted);
    bench.SetProblems({{"s", "a"}, {"t", "b"}});
    bench.app.Problems[1].Statement = pasted.Statement;
    bench.app.Problems[1].Solution = pasted.Solution;
    bench.app.Problems[2].Statement = pasted.Statement;
    bench.app.CurrentFileName = (folder / "paste.col").string();
    ASSERT_TRUE(SaveFile(bench.app));
    TestBench other;
    other.app.CurrentFileName = bench.app.CurrentFileName;
    ASSERT_TRUE(OpenFile(other.app));
    ASSERT_EQ(other.app.ProblemCount(), 2);
    EXPECT_EQ(other.app.Problems[1].Statement, "one PRO001) two PRO002)");
    EXPECT_EQ(other.app.Problems[1].Solution, "three PRO001)");
    EXPECT_EQ(other.app.Problems[2].Statement, "one PRO001) two PRO002)");
}
