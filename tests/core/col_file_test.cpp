#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "core/col_file.h"
#include "core/editing.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core_fakes.h"

namespace fs = std::filesystem;

namespace {
class ColFile : public ::testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() /
                 ("sumforge_col_" + std::to_string(::getpid()) + "_" +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(folder);
        fs::create_directories(folder / "img");
        bench.app.ImageFolder = (folder / "img").string();
        bench.app.TempFolder = (folder / "temp").string();
    }
    void TearDown() override { fs::remove_all(folder); }

    std::string Path(const std::string& name) const { return (folder / name).string(); }

    static std::string Read(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    static void Write(const std::string& path, const std::string& bytes) {
        std::ofstream out(path, std::ios::binary);
        out << bytes;
    }

    void MakeCollection() {
        bench.SetProblems({{"First &+Bbold&-B 3\u00B2 \u00D7 2 \u2013 1&LF", "Answer one&LF"},
                           {"Second", ""},
                           {"Third #ENU) inside", "x&LF"}});
        CollectionSettings& s = bench.app.Settings;
        s.Title = "Caf\u00E9 practice";
        s.PagePositionCode = 9;
        s.NumberColour = 12640511;
        s.Sorted = false;
        s.FirstPageNumber = 3;
        s.SolutionPosition = 2;
        s.NumberPrefix = "N\u00BA";
        s.NumberSuffix = ".";
        s.FirstProblemNumber = 4;
        bench.app.Problems[2].GroupSize = 2;
        bench.app.Problems[2].GroupIndex = 2;
        bench.app.Problems[2].ItemCount = 12;
    }

    // Saves under name and opens it again in a fresh bench.
    bool SaveAndReopen(const std::string& name, TestBench& other) {
        bench.app.CurrentFileName = Path(name);
        if (!SaveFile(bench.app)) return false;
        other.app.ImageFolder = bench.app.ImageFolder;
        other.app.TempFolder = bench.app.TempFolder;
        other.app.CurrentFileName = Path(name);
        return OpenFile(other.app);
    }

    // Opens bytes written as a file; returns the result.
    bool OpenBytes(const std::string& bytes, const std::string& name = "hand.col") {
        Write(Path(name), bytes);
        bench.app.CurrentFileName = Path(name);
        return OpenFile(bench.app);
    }

    void ExpectBadFile(const std::string& message = "Bad file.") {
        ASSERT_FALSE(bench.window.messages.empty());
        EXPECT_EQ(bench.window.messages.back(), message);
        EXPECT_EQ(bench.app.ProblemCount(), 0);
        EXPECT_EQ(bench.app.BlockCount, 0);
        EXPECT_EQ(bench.app.CurrentFileName, "");
        EXPECT_FALSE(bench.menus.visible["mnu_Edicion"]);
    }

    fs::path folder;
    TestBench bench;
};

std::string Line(const std::string& module, const std::string& code, const std::string& shown) {
    return module + std::string(80 - module.size(), ' ') + code + shown + "\r\n";
}

std::string Head(const std::string& lines, const std::string& bindir) {
    return "#CABECERA(#PROPARAM(" + lines +
           "#PROPARAM)#TITULO(Hand#TITULO)#POSNUMPAG(11#POSNUMPAG)#COLRESPRO(255#COLRESPRO)#ORDENA(1#ORDENA)"
           "#PAGINI(1#PAGINI)#POSSOL(1#POSSOL)#PROPRE(#PROPRE)#PROSUF()#PROSUF)#PROINI(1#PROINI)" +
           bindir + "#CABECERA)";
}
} // namespace

TEST_F(ColFile, WritesTheDocumentedBytes) {
    bench.SetProblems({{"S1", "L1"}});
    bench.app.Problems[1].ModuleName = "KVOL_MATH_NRP";
    bench.app.Problems[1].RoutineId = 12;
    bench.app.Problems[1].VariantNumber = 5;
    bench.app.Problems[1].Seed = 42;
    bench.app.Problems[1].ItemCount = 3;
    bench.app.Settings = CollectionSettings{};
    bench.app.Settings.ProblemCount = 1;
    bench.app.Settings.Title = "T";
    bench.app.CurrentFileName = Path("one.col");
    bench.app.Modified = true;
    ASSERT_TRUE(SaveFile(bench.app));
    EXPECT_FALSE(bench.app.Modified);
    const std::string expected =
        "#CABECERA(#PROPARAM(" + Line("KVOL_MATH_NRP", "0120050042030101", "0001") +
        "#PROPARAM)#TITULO(T#TITULO)#POSNUMPAG(11#POSNUMPAG)#COLRESPRO(16777215#COLRESPRO)#ORDENA(1#ORDENA)"
        "#PAGINI(1#PAGINI)#POSSOL(1#POSSOL)#PROPRE(#PROPRE)#PROSUF()#PROSUF)#PROINI(1#PROINI)"
        "#BINDIR(00000000#BINDIR)#CABECERA)#PRO001(#ENU(S1#ENU)#SOL(L1#SOL)#PRO001)";
    EXPECT_EQ(Read(Path("one.col")), expected);
    EXPECT_FALSE(fs::exists(Path("one.colx")));
}

TEST_F(ColFile, SaveOpenSaveGivesIdenticalBytes) {
    MakeCollection();
    TestBench other;
    ASSERT_TRUE(SaveAndReopen("a.col", other));
    EXPECT_EQ(ImageOf(other.app), ImageOf(bench.app));
    other.app.CurrentFileName = Path("b.col");
    ASSERT_TRUE(SaveFile(other.app));
    EXPECT_EQ(Read(Path("a.col")), Read(Path("b.col")));
    // Text fields are single bytes in the file.
    EXPECT_NE(Read(Path("a.col")).find("#TITULO(Caf\xE9 practice#TITULO)"), std::string::npos);
    EXPECT_NE(Read(Path("a.col")).find("3\xB2 \xD7 2 \x96 1"), std::string::npos);
}

TEST_F(ColFile, OpenedFileIsComposedAndNamed) {
    MakeCollection();
    TestBench other;
    ASSERT_TRUE(SaveAndReopen("named.COL", other));
    EXPECT_FALSE(other.app.Modified);
    EXPECT_EQ(other.window.caption, "named.COL  -  " + other.app.ApplicationTitle);
    EXPECT_EQ(other.window.recent, std::vector<std::string>{Path("named.COL")});
    EXPECT_GT(other.app.BlockCount, 0);
    EXPECT_EQ(other.app.UndoCaption, "Cannot undo");
    EXPECT_TRUE(other.menus.checked["mnu_COLEC_SolJuntasFinal"]);
    EXPECT_TRUE(other.menus.visible["mnu_Edicion"]);
}

TEST_F(ColFile, ShownNumberIsIgnoredOnReading) {
    const std::string lines = Line("KVOL_TEST", "0010010001000101", "9999");
    ASSERT_TRUE(OpenBytes(Head(lines, "#BINDIR(00000000#BINDIR)") + "#PRO001(#ENU(s#ENU)#SOL(l#SOL)#PRO001)"));
    EXPECT_EQ(bench.app.Settings.FirstProblemNumber, 1);
    EXPECT_EQ(bench.app.Problems[1].Statement, "s");
}

TEST_F(ColFile, HandWrittenFileWithoutDirectoryPointerOpens) {
    const std::string lines = Line("KVOL_TEST", "0010010001000101", "0001") + Line("KVOL_TEST", "0020020002000101", "0002");
    ASSERT_TRUE(OpenBytes(Head(lines, "") + "#PRO001(#ENU(a #ENU) b#ENU)#SOL(c#SOL)#PRO001)#PRO002(#ENU(d#ENU)#SOL(#SOL)#PRO002)"));
    EXPECT_EQ(bench.app.ProblemCount(), 2);
    EXPECT_EQ(bench.app.Problems[1].Statement, "a #ENU) b");
    EXPECT_EQ(bench.app.Problems[1].Solution, "c");
    EXPECT_EQ(bench.app.Problems[2].Solution, "");
    EXPECT_EQ(bench.app.Problems[2].RoutineId, 2);
    EXPECT_EQ(bench.app.Settings.Title, "Hand");
    EXPECT_TRUE(bench.app.Settings.Sorted);
    EXPECT_TRUE(bench.window.messages.empty());
}

TEST_F(ColFile, StatementHoldingEnuCloseSurvivesSaveAndOpen) {
    MakeCollection();
    TestBench other;
    ASSERT_TRUE(SaveAndReopen("enu.col", other));
    EXPECT_EQ(other.app.Problems[3].Statement, "Third #ENU) inside");
}

TEST_F(ColFile, StatementHoldingSolOpenIsCutThere) {
    bench.SetProblems({{"left#SOL(right", "sol"}});
    TestBench other;
    ASSERT_TRUE(SaveAndReopen("sol.col", other));
    EXPECT_EQ(other.app.Problems[1].Solution, "right#ENU)#SOL(sol");
    EXPECT_EQ(other.app.Problems[1].Statement, "");
}

TEST_F(ColFile, ImagesTravelInsideTheFileByteForByte) {
    std::string picture;
    for (int i = 0; i < 256; ++i) picture += static_cast<char>(i);
    picture += std::string("\r\n\0\x80\x81\x8D\x8F\x90\x9D", 10);
    Write(Path("img/pic one.gif"), picture);
    Write(Path("img/second.jpg"), "JPEGDATA");
    // Image names are found from position 100 of the text on.
    bench.SetProblems({{"See #img('pic one.gif',20)#IMG) and #IMG('second.jpg')#IMG)", "#IMG('pic one.gif')#IMG)"}});
    bench.app.CurrentFileName = Path("img.col");
    ASSERT_TRUE(SaveFile(bench.app));
    const std::string bytes = Read(Path("img.col"));
    const auto pointerAt = bytes.find("#BINDIR(") + 8;
    const std::size_t dir = std::stoul(bytes.substr(pointerAt, 8));
    const std::size_t textLength = bytes.find("#PRO001)") + 8;
    EXPECT_EQ(dir, textLength + 1);
    const std::string directory = bytes.substr(dir - 1, 96);
    EXPECT_EQ(directory.substr(0, 32), "pic one.gif" + std::string(21, ' '));
    EXPECT_EQ(std::stoul(directory.substr(32, 8)), textLength + 96 + 1);
    EXPECT_EQ(directory.substr(40, 8), std::to_string(picture.size()) + std::string(8 - std::to_string(picture.size()).size(), ' '));
    EXPECT_EQ(directory.substr(48, 32), "second.jpg" + std::string(22, ' '));
    EXPECT_EQ(bytes.substr(textLength + 96), picture + "JPEGDATA");

    // On a machine without the pictures they land in the temp folder, unchanged.
    fs::remove_all(folder / "img");
    TestBench other;
    other.app.ImageFolder = bench.app.ImageFolder;
    other.app.TempFolder = bench.app.TempFolder;
    other.app.CurrentFileName = Path("img.col");
    ASSERT_TRUE(OpenFile(other.app));
    EXPECT_EQ(Read(Path("temp/pic one.gif")), picture);
    EXPECT_EQ(Read(Path("temp/second.jpg")), "JPEGDATA");
    other.app.CurrentFileName = Path("img2.col");
    ASSERT_TRUE(SaveFile(other.app));
    EXPECT_EQ(Read(Path("img2.col")), bytes);
}

TEST_F(ColFile, ImageAlreadyPresentIsLeftAsItIs) {
    Write(Path("img/p.gif"), "NEW");
    bench.SetProblems({{std::string(100, ' ') + "#IMG('p.gif')#IMG)", ""}});
    bench.app.CurrentFileName = Path("p.col");
    ASSERT_TRUE(SaveFile(bench.app));
    Write(Path("img/p.gif"), "LOCAL");
    TestBench other;
    other.app.ImageFolder = bench.app.ImageFolder;
    other.app.TempFolder = bench.app.TempFolder;
    other.app.CurrentFileName = Path("p.col");
    ASSERT_TRUE(OpenFile(other.app));
    EXPECT_EQ(Read(Path("img/p.gif")), "LOCAL");
    EXPECT_FALSE(fs::exists(Path("temp/p.gif")));
}

// The name cut at 32 characters has lost its extension, so it is no picture name that
// the temp folder takes.
TEST_F(ColFile, ImageNameBeyond32CharactersIsCutAndNotWritten) {
    const std::string name = std::string(40, 'n') + ".gif";
    Write(Path("img/" + name), "DATA");
    bench.SetProblems({{std::string(100, ' ') + "#IMG('" + name + "')#IMG)", ""}});
    bench.app.CurrentFileName = Path("long.col");
    ASSERT_TRUE(SaveFile(bench.app));
    fs::remove_all(folder / "img");
    TestBench other;
    other.app.ImageFolder = bench.app.ImageFolder;
    other.app.TempFolder = bench.app.TempFolder;
    other.app.CurrentFileName = Path("long.col");
    ASSERT_TRUE(OpenFile(other.app));
    EXPECT_FALSE(fs::exists(Path("temp/" + std::string(32, 'n'))));
    EXPECT_FALSE(fs::exists(Path("temp/" + name)));
}

TEST_F(ColFile, MissingImageStopsTheSaveAndKeepsTheOldFile) {
    Write(Path("keep.col"), "OLD CONTENT");
    bench.SetProblems({{std::string(100, ' ') + "#IMG('gone.gif')#IMG)", ""}});
    bench.app.CurrentFileName = Path("keep.col");
    bench.app.Modified = true;
    EXPECT_FALSE(SaveFile(bench.app));
    EXPECT_EQ(bench.window.messages.back(), "Error: Cannot save the file.\r\nCannot find image gone.gif");
    EXPECT_EQ(bench.window.icons.back(), MessageIcon::Stop);
    EXPECT_TRUE(bench.app.Modified);
    EXPECT_EQ(Read(Path("keep.col")), "OLD CONTENT");
}

TEST_F(ColFile, UnwritableTargetAsksForAnotherName) {
    bench.SetProblems({{"a", "b"}});
    bench.app.CurrentFileName = Path("nofolder/x.col");
    EXPECT_FALSE(SaveFile(bench.app));
    EXPECT_EQ(bench.window.messages.back().rfind("We are sorry, can't save the file.\r\nError number = 76\r\n", 0), 0u);
    if (::geteuid() != 0) {
        fs::create_directories(folder / "locked");
        Write(Path("locked/x.col"), "OLD");
        fs::permissions(folder / "locked", fs::perms::owner_read | fs::perms::owner_exec);
        bench.app.CurrentFileName = Path("locked/x.col");
        EXPECT_FALSE(SaveFile(bench.app));
        EXPECT_EQ(bench.window.messages.back(), "We are sorry, can't save the file: Write-protected. \r\nFilename: " +
                                                    Path("locked/x.col") + "\r\n\r\nPlease, select a different file name");
        EXPECT_EQ(bench.window.saveAs, 1);
        EXPECT_EQ(Read(Path("locked/x.col")), "OLD");
        fs::permissions(folder / "locked", fs::perms::owner_all);
    }
}

TEST_F(ColFile, OtherExtensionIsRefusedWithAMessageAndTheControlsBack) {
    Write(Path("x.txt"), "#CABECERA)");
    bench.app.CurrentFileName = Path("x.txt");
    EXPECT_FALSE(OpenFile(bench.app));
    EXPECT_EQ(bench.app.CurrentFileName, "");
    ASSERT_EQ(bench.window.messages.size(), 1u);
    EXPECT_EQ(bench.window.messages[0], "Cannot open x.txt: the name of a problem collection ends in \".col\".");
    // The toolbar and the File menu are usable again at once.
    EXPECT_FALSE(bench.window.busy);
}

TEST_F(ColFile, MissingFileSaysTheSystemsReason) {
    bench.app.CurrentFileName = Path("absent.col");
    EXPECT_FALSE(OpenFile(bench.app));
    ExpectBadFile("Cannot open " + Path("absent.col") + ": No such file or directory");
    EXPECT_FALSE(bench.window.busy);
}

TEST_F(ColFile, TitleHoldingItsClosingTagBreaksTheHead) {
    bench.SetProblems({{"a", "b"}});
    bench.app.Settings.Title = "x#TITULO)y";
    bench.app.Settings.PagePositionCode = 11;
    TestBench other;
    ASSERT_TRUE(SaveAndReopen("t.col", other));
    // The title ends at the first closing tag, and the next element takes the rest.
    EXPECT_EQ(other.app.Settings.Title, "x");
    EXPECT_EQ(other.app.Settings.PagePositionCode, 0);
}

TEST_F(ColFile, NumbersAreReadByTheirLeadingDigits) {
    const std::string lines = Line("KVOL_TEST", "0010010001000101", "0001");
    std::string head = Head(lines, "#BINDIR(00000000#BINDIR)");
    head.replace(head.find("#PAGINI(1"), 9, "#PAGINI(12abc");
    head.replace(head.find("#PROINI(1"), 9, "#PROINI(abc");
    head.replace(head.find("#ORDENA(1"), 9, "#ORDENA(1.0");
    ASSERT_TRUE(OpenBytes(head + "#PRO001(#ENU(s#ENU)#SOL(l#SOL)#PRO001)"));
    EXPECT_EQ(bench.app.Settings.FirstPageNumber, 12);
    EXPECT_EQ(bench.app.Settings.FirstProblemNumber, 0);
    EXPECT_TRUE(bench.app.Settings.Sorted);
}

TEST_F(ColFile, DamagedFilesGiveTheMessageAndNoCollection) {
    MakeCollection();
    Write(Path("img/pic.gif"), "PICTUREBYTES");
    bench.app.Problems[1].Statement += std::string(100, ' ') + "#IMG('pic.gif')#IMG)";
    bench.app.CurrentFileName = Path("good.col");
    ASSERT_TRUE(SaveFile(bench.app));
    const std::string good = Read(Path("good.col"));
    const std::size_t headEnd = good.find("#CABECERA)");

    // Truncated anywhere in the head or the problems.
    for (std::size_t cut = 0; cut < good.find("#PRO003)") + 7; cut += 7) {
        TestBench b;
        b.app.ImageFolder = bench.app.ImageFolder;
        b.app.TempFolder = bench.app.TempFolder;
        Write(Path("cut.col"), good.substr(0, cut));
        b.app.CurrentFileName = Path("cut.col");
        EXPECT_FALSE(OpenFile(b.app)) << cut;
        EXPECT_EQ(b.app.ProblemCount(), 0) << cut;
        ASSERT_EQ(b.window.messages.size(), 1u) << cut;
        const std::string& m = b.window.messages[0];
        EXPECT_TRUE(m == "Bad file." || m == "Error: Bad file.") << cut << " " << m;
        // Cut before the head's end, the head's closing tag is missing.
        if (cut < headEnd + 10) {
            EXPECT_EQ(m, "Bad file.") << cut;
        }
    }
    // Truncated inside the image data: the directory points past the end.
    for (std::size_t cut = good.find("#PRO003)") + 8; cut < good.size(); ++cut) {
        TestBench b;
        b.app.TempFolder = bench.app.TempFolder;
        Write(Path("cut.col"), good.substr(0, cut));
        b.app.CurrentFileName = Path("cut.col");
        EXPECT_FALSE(OpenFile(b.app)) << cut;
        EXPECT_EQ(b.window.messages.back(), "Bad file.");
        EXPECT_EQ(b.app.ProblemCount(), 0);
    }
    // Each header tag missing.
    for (const char* tag : {"#PROPARAM)", "#TITULO)", "#POSNUMPAG)", "#COLRESPRO)", "#ORDENA)", "#PAGINI)", "#POSSOL)",
                            "#PROPRE)", "#PROSUF)", "#PROINI)", "#CABECERA)"}) {
        std::string damaged = good;
        damaged.erase(damaged.find(tag), std::string(tag).size());
        TestBench b;
        Write(Path("tag.col"), damaged);
        b.app.CurrentFileName = Path("tag.col");
        EXPECT_FALSE(OpenFile(b.app)) << tag;
        ASSERT_FALSE(b.window.messages.empty()) << tag;
        EXPECT_EQ(b.app.ProblemCount(), 0) << tag;
    }
    // A problem element missing.
    {
        std::string damaged = good;
        damaged.erase(damaged.find("#PRO002)"), 8);
        TestBench b;
        Write(Path("pro.col"), damaged);
        b.app.CurrentFileName = Path("pro.col");
        EXPECT_FALSE(OpenFile(b.app));
        EXPECT_EQ(b.window.messages.back(), "Bad file.");
        EXPECT_EQ(b.app.ProblemCount(), 0);
    }
    // A directory pointer past the end.
    {
        std::string damaged = good;
        damaged.replace(damaged.find("#BINDIR(") + 8, 8, "99999999");
        OpenBytes(damaged, "dir.col");
        ExpectBadFile();
    }
}

TEST_F(ColFile, ProblemBlockOf103CharactersIsABadFile) {
    const std::string lines = Line("KVOL_TEST", "0010010001000101", "0001") + " ";
    OpenBytes(Head(lines, "#BINDIR(00000000#BINDIR)") + "#PRO001(#ENU(s#ENU)#SOL(l#SOL)#PRO001)");
    ExpectBadFile("Error: Bad file.");
}

TEST_F(ColFile, RandomBytesNeverCrash) {
    std::mt19937 random(12345);
    const std::string lines = Line("KVOL_TEST", "0010010001000101", "0001");
    const std::string valid = Head(lines, "#BINDIR(00000000#BINDIR)") + "#PRO001(#ENU(s#ENU)#SOL(l#SOL)#PRO001)";
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        if (round % 2 == 0) {
            const int length = static_cast<int>(random() % 2000);
            for (int i = 0; i < length; ++i) bytes += static_cast<char>(random() % 256);
            if (round % 4 == 0) bytes = "#CABECERA(" + bytes + "#CABECERA)" + bytes;
        } else {
            bytes = valid;
            for (int k = 0; k < 3; ++k) bytes[random() % bytes.size()] = static_cast<char>(random() % 256);
        }
        TestBench b;
        b.app.TempFolder = Path("rtemp");
        Write(Path("r.col"), bytes);
        b.app.CurrentFileName = Path("r.col");
        if (!OpenFile(b.app)) {
            EXPECT_EQ(b.app.ProblemCount(), 0);
            EXPECT_FALSE(b.window.messages.empty());
        }
    }
}

TEST_F(ColFile, ClipboardFormOfOneProblem) {
    ProblemRecord r;
    r.ModuleName = "KVOL_MATH_NRP";
    r.RoutineId = 12;
    r.VariantNumber = 7;
    r.Seed = 8;
    r.ItemCount = 9;
    r.GroupSize = 10;
    r.GroupIndex = 11;
    r.Statement = "St\u00E9 #ENU) x";
    r.Solution = "So";
    const std::string text = ProblemClipboardText(r);
    EXPECT_EQ(text, "GENPROB:NPROB=001:KVOL_MATH_NRP" + std::string(67, ' ') + "0120070008091011" +
                        "#ENU(St\u00E9 #ENU) x#ENU)#SOL(So#SOL)");
    ProblemRecord back;
    ReadClipboardProblem(text, back);
    EXPECT_EQ(back, r);
}

TEST(Windows1252, MapsTheProgramsCharactersAndKeepsEveryByte) {
    EXPECT_EQ(Utf8ToWindows1252("\u00B7\u00D7\u00B2\u2013\u20AC\u00E9"), "\xB7\xD7\xB2\x96\x80\xE9");
    EXPECT_EQ(Utf8ToWindows1252("\u03B1"), "?");
    std::string all;
    for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
    EXPECT_EQ(Utf8ToWindows1252(Windows1252ToUtf8(all)), all);
}

TEST_F(ColFile, HandWrittenFileWithImagesOpens) {
    const std::string lines = Line("KVOL_TEST", "0010010001000101", "0001");
    const std::string statement = std::string(120, '.') + "#IMG('hand.gif')#IMG)";
    std::string text = Head(lines, "#BINDIR(DIRPOINT#BINDIR)") + "#PRO001(#ENU(" + statement + "#ENU)#SOL(#SOL)#PRO001)";
    const std::string image = std::string("GIF89a\0\x01\x02\xFF", 10);
    const std::size_t dir = text.size() + 1;
    const std::size_t data = dir + 48;
    auto field = [](std::size_t v) {
        std::string s = std::to_string(v);
        return s + std::string(8 - s.size(), ' ');
    };
    text.replace(text.find("DIRPOINT"), 8, field(dir));
    const std::string entry = "hand.gif" + std::string(24, ' ') + field(data) + field(image.size());
    ASSERT_TRUE(OpenBytes(text + entry + image));
    EXPECT_EQ(bench.app.Problems[1].Statement, statement);
    EXPECT_EQ(Read(Path("temp/hand.gif")), image);
    // Saved again, the file is the same bytes.
    bench.app.CurrentFileName = Path("again.col");
    ASSERT_TRUE(SaveFile(bench.app));
    EXPECT_EQ(Read(Path("again.col")), text + entry + image);
}
