// Every problem and every solution of the largest collections reaches the screen and the
// paper exactly once, for every place of the solutions.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <map>
#include <regex>

#include "core/answer_key.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core/editing.h"
#include "core/page_render.h"
#include "core_fakes.h"
#include "typesetter/qt_surface.h"

namespace {
void EnsureGui() {
    if (QGuiApplication::instance()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "core_tests";
    static char* argv[] = {name, nullptr};
    new QGuiApplication(argc, argv);
}

// Measures with the surface below but keeps the text instead of painting it.
class TextRecorder : public MeasuringSurface {
public:
    using MeasuringSurface::MeasuringSurface;
    void PrintText(const std::string& text) override {
        recorded += text;
        MeasuringSurface::PrintText(text);
    }
    std::string recorded;
};

// The problem numbers of the boxes in text, in order ("@7@" is problem 7).
std::vector<int> BoxNumbers(const std::string& text) {
    static const std::regex box("@([0-9]+)@");
    std::vector<int> numbers;
    for (auto it = std::sregex_iterator(text.begin(), text.end(), box); it != std::sregex_iterator(); ++it)
        numbers.push_back(std::stoi((*it)[1].str()));
    return numbers;
}

int Count(const std::string& text, const std::string& word) {
    int n = 0;
    for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + word.size())) ++n;
    return n;
}

// A collection of n problems of the natural-number drill, each with the greatest item
// count its generator allows, numbered from 7 with boxes "@7@".
void Create(ApplicationState& app, int n) {
    ASSERT_TRUE(LoadTOLISTBOX_BUILT_CODE(app, "Mathematics", true, true, true, true));
    const int routines[] = {12, 13, 14, 15, 2, 8};
    int left = n;
    for (int routine : routines)
        for (TopicNode& node : app.TopicTree)
            if (!node.isFolder && TrimBlanks(node.module) == "KVOL_MATH_NRP" && node.routine == routine &&
                !node.selected && left > 0) {
                node.selected = true;
                node.amount = std::min(left, 99);
                node.itemsPerProblem = node.itemsMax;
                left -= node.amount;
            }
    ASSERT_EQ(left, 0);
    app.Settings.FirstProblemNumber = 7;
    app.Settings.NumberPrefix = "@";
    app.Settings.NumberSuffix = "@";
    app.Settings.Title = "Drill";
    app.Settings.Sorted = true;
    Arbol_to_Var(app);
    ASSERT_EQ(app.ProblemCount(), n);
    CrearColeccion(app, 1);
}

// The text of every page as drawn on the screen picture and as printed on a PDF page.
struct Pages {
    std::vector<std::string> screen;
    std::vector<std::string> paper;
};

Pages DrawAndPrint(ApplicationState& app, const QString& pdf) {
    Pages pages;
    QImage sheet(SheetPixelsWide(app.Page.paper), SheetPixelsHigh(app.Page.paper), QImage::Format_RGB32);
    QtSurface screenSurface(sheet);
    TextRecorder screen(screenSurface);
    TypesetterState screenState;
    screenState.ScreenSurface = &screen;
    QPdfWriter writer(pdf);
    writer.setPageSize(QPageSize(app.Page.paper == PaperSize::Letter ? QPageSize::Letter : QPageSize::A4));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(1200);
    QtSurface paperSurface(writer);
    TextRecorder paper(paperSurface);
    TypesetterState paperState;
    paperState.PrinterInstalled = true;
    for (int p = 1; p <= app.PageCount; ++p) {
        app.CurrentPage = p;
        screen.recorded.clear();
        DrawCurrentPage(app, screenState, screen);
        pages.screen.push_back(screen.recorded);
        paper.recorded.clear();
        PrintOnePage(app, paperState, paper, p);
        pages.paper.push_back(paper.recorded);
    }
    paperSurface.End();
    return pages;
}

// Each number once among the statements and, where solutions are shown apart, once more
// after the heading of the solutions; each solution once.
void ExpectEverythingOnce(const std::vector<std::string>& pages, int n, int position, const std::string& where) {
    std::string all;
    for (const auto& page : pages) all += page;
    const std::vector<int> numbers = BoxNumbers(all);
    std::vector<int> expected;
    for (int k = 7; k < 7 + n; ++k) expected.push_back(k);
    if (position >= 2)
        for (int k = 7; k < 7 + n; ++k) expected.push_back(k);
    EXPECT_EQ(numbers, expected) << where;
    EXPECT_EQ(Count(all, "Solutions:"), position >= 2 ? 1 : 0) << where;
    EXPECT_EQ(Count(all, "Solution"), position == 1 ? n : position >= 2 ? 1 : 0) << where;
    if (position == 3) {
        // The solutions open a page of their own.
        for (const auto& page : pages) {
            if (page.find("Solutions:") != std::string::npos) {
                EXPECT_EQ(BoxNumbers(page.substr(0, page.find("Solutions:"))), std::vector<int>{}) << where;
            }
        }
    }
}
} // namespace

TEST(WholeCollection, EveryProblemAndSolutionOnScreenAndPaperOnceForEveryPlacement) {
    EnsureGui();
    QTemporaryDir folder;
    for (int n : {1, 49, 50, 499, 500}) {
        ApplicationState app;
        app.ClockSeed = [] { return 1; };
        app.Reseed();
        QImage sheet(796, 1125, QImage::Format_RGB32);
        QtSurface surface(sheet);
        TypesetterState typesetter;
        TypesetterMeasure measure(typesetter, surface);
        app.measure = &measure;
        Create(app, n);
        for (int position = 0; position <= 3; ++position) {
            app.Settings.SolutionPosition = position;
            ComposeDocument(app, true, 1);
            const std::string where = std::to_string(n) + " problems, solutions " + std::to_string(position);
            ASSERT_LE(app.BlockCount, kMaxBlocks) << where;
            for (int b = 1; b <= app.BlockCount; ++b) {
                ASSERT_GE(app.Blocks[b].page, 1) << where << ", block " << b;
                ASSERT_LE(app.Blocks[b].page, app.PageCount) << where << ", block " << b;
            }
            const Pages pages = DrawAndPrint(app, folder.filePath(QString("c%1-%2.pdf").arg(n).arg(position)));
            ExpectEverythingOnce(pages.screen, n, position, where + ", screen");
            ExpectEverythingOnce(pages.paper, n, position, where + ", paper");
        }
    }
}

TEST(WholeCollection, BlocksFromAThousandOnCarryTheirOwnMarks) {
    EXPECT_EQ(PageMark(1), "001");
    EXPECT_EQ(PageMark(999), "999");
    EXPECT_EQ(PageMark(1000), "1000");
    EXPECT_EQ(PageMark(1024), "1024");
    // The file keeps its three-digit problem tags.
    EXPECT_EQ(BlockMark(1000), "000");
}

TEST(WholeCollection, TheThousandthBlockEndsItsPageAndTheDocument) {
    // Every block is one line and a page holds 30: the last page holds block 1000.
    TestBench bench(30);
    std::vector<std::pair<std::string, std::string>> texts;
    for (int i = 1; i <= kMaxProblems; ++i) texts.push_back({"s", "a&LF"});
    bench.SetProblems(texts);
    bench.app.Settings.SolutionPosition = 2;
    bench.app.Settings.PagePositionCode = 0;
    ComposeDocument(bench.app, true, kMaxProblems);
    ASSERT_EQ(bench.app.BlockCount, 2 * kMaxProblems);
    const int last = bench.app.Blocks[2 * kMaxProblems].page;
    EXPECT_GE(last, 1);
    EXPECT_EQ(bench.app.PageCount, last);
    EXPECT_NE(PageBlocksText(bench.app, last).find("#MARK=1000 "), std::string::npos);
    for (int b = 1; b <= bench.app.BlockCount; ++b) EXPECT_GE(bench.app.Blocks[b].page, 1) << b;
    // A click on the mark of block 1000 selects the last problem's solution.
    bench.app.CurrentPage = last;
    bench.DrawMarks();
    ASSERT_GT(bench.app.Marks.MarkCount, 0);
    bench.app.Marks.MarkSelected[bench.app.Marks.MarkCount - 1] = true;
    EXPECT_EQ(SelectedProblem(bench.app), kMaxProblems);
}

// On Letter paper as on A4, with a name line on every page: each problem once, each page
// with one name line; and the answer key holds each solution once.
TEST(WholeCollection, LetterAndA4WithNameLinesAndTheirKeysHoldEverythingOnce) {
    EnsureGui();
    QTemporaryDir folder;
    for (int n : {50, 500}) {
        int a4Pages = 0;
        for (PaperSize paper : {PaperSize::A4, PaperSize::Letter}) {
            ApplicationState app;
            app.ClockSeed = [] { return 3; };
            app.Reseed();
            app.Page.paper = paper;
            app.Page.nameLine = NameLinePlace::EveryPage;
            QImage sheet(SheetPixelsWide(paper), SheetPixelsHigh(paper), QImage::Format_RGB32);
            QtSurface surface(sheet);
            TypesetterState typesetter;
            TypesetterMeasure measure(typesetter, surface);
            app.measure = &measure;
            Create(app, n);
            const std::string name = std::to_string(n) + (paper == PaperSize::Letter ? " letter" : " a4");
            for (int position : {1, 2}) {
                app.Settings.SolutionPosition = position;
                ComposeDocument(app, true, 1);
                const std::string where = name + ", solutions " + std::to_string(position);
                const Pages pages = DrawAndPrint(app, folder.filePath(QString("l%1-%2.pdf").arg(n).arg(position)));
                ExpectEverythingOnce(pages.screen, n, position, where + ", screen");
                ExpectEverythingOnce(pages.paper, n, position, where + ", paper");
                for (const std::string& page : pages.paper) EXPECT_EQ(Count(page, "Name:"), 1) << where;
                if (paper == PaperSize::A4 && position == 1) a4Pages = app.PageCount;
                if (paper == PaperSize::Letter && position == 1) {
                    EXPECT_GE(app.PageCount, a4Pages) << where;
                }
            }
            ComposeAnswerKey(app);
            EXPECT_EQ(app.Settings.Title, "Drill \u2014 Answer key");
            const Pages key = DrawAndPrint(app, folder.filePath(QString("k%1.pdf").arg(n)));
            for (const auto* pages : {&key.screen, &key.paper}) {
                std::string all;
                for (const auto& page : *pages) all += page;
                std::vector<int> expected;
                for (int k = 7; k < 7 + n; ++k) expected.push_back(k);
                EXPECT_EQ(BoxNumbers(all), expected) << name << " key";
                EXPECT_EQ(Count(all, "Solution"), 0) << name << " key";
            }
        }
    }
}

TEST(WholeCollection, TheNameLineStandsOnTheFirstPageOnlyWhenAskedSo) {
    EnsureGui();
    QTemporaryDir folder;
    ApplicationState app;
    app.ClockSeed = [] { return 3; };
    app.Reseed();
    app.Page.nameLine = NameLinePlace::FirstPage;
    QImage sheet(796, 1125, QImage::Format_RGB32);
    QtSurface surface(sheet);
    TypesetterState typesetter;
    TypesetterMeasure measure(typesetter, surface);
    app.measure = &measure;
    Create(app, 60);
    ASSERT_GE(app.PageCount, 3);
    const Pages pages = DrawAndPrint(app, folder.filePath("first.pdf"));
    for (std::size_t p = 0; p < pages.paper.size(); ++p) {
        EXPECT_EQ(Count(pages.paper[p], "Name:"), p == 0 ? 1 : 0) << p;
        EXPECT_EQ(Count(pages.screen[p], "Name:"), p == 0 ? 1 : 0) << p;
    }
    ExpectEverythingOnce(pages.paper, 60, 1, "first page name line");
}
