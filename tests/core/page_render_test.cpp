#include <gtest/gtest.h>

#include <vector>

#include "core/composition.h"
#include "core/page_render.h"
#include "core_fakes.h"
#include "typesetter/layout.h"

namespace {
// A page with fixed metrics (every character 100 twips wide, lines 240 high) that records
// what is drawn on it.
class FixedSurface : public DrawingSurface {
public:
    struct Text {
        std::string text;
        double x, y, size;
        std::string font;
        bool bold;
        std::uint32_t color;
    };
    struct Box {
        double x, y, dx, dy;
        std::uint32_t color;
    };
    FixedSurface(double w, double h, double tpp) : width(w), height(h), tpp_(tpp) {}
    std::vector<Text> texts;
    std::vector<Box> boxes;
    std::vector<Box> lines;
    double width, height;

    std::string FontName() const override { return name_; }
    void SetFontName(const std::string& n) override { name_ = n; }
    double FontSize() const override { return size_; }
    void SetFontSize(double p) override { size_ = p; }
    bool FontBold() const override { return bold_; }
    void SetFontBold(bool on) override { bold_ = on; }
    bool FontItalic() const override { return false; }
    void SetFontItalic(bool) override {}
    bool FontUnderline() const override { return false; }
    void SetFontUnderline(bool) override {}
    bool FontStrikethru() const override { return false; }
    void SetFontStrikethru(bool) override {}
    std::uint32_t ForeColor() const override { return color_; }
    void SetForeColor(std::uint32_t c) override { color_ = c; }
    double CurrentX() const override { return x_; }
    void SetCurrentX(double x) override { x_ = x; }
    double CurrentY() const override { return y_; }
    void SetCurrentY(double y) override { y_ = y; }
    double TextWidth(const std::string& s) override { return 100.0 * static_cast<double>(s.size()); }
    double TextHeight(const std::string&) override { return 240; }
    void PrintText(const std::string& s) override {
        texts.push_back({s, x_, y_, size_, name_, bold_, color_});
        x_ += TextWidth(s);
    }
    void Line(double x1, double y1, double x2, double y2, std::optional<std::uint32_t> c) override {
        lines.push_back({x1, y1, x2 - x1, y2 - y1, c.value_or(color_)});
    }
    void FilledBox(double x, double y, double dx, double dy, std::optional<std::uint32_t> c) override {
        boxes.push_back({x, y, dx, dy, c.value_or(color_)});
    }
    void Circle(double, double, double) override {}
    int DrawWidth() const override { return 1; }
    void SetDrawWidth(int) override {}
    int FillStyle() const override { return fill_; }
    void SetFillStyle(int s) override { fill_ = s; }
    bool PaintPicture(const std::string&, double, double, double, double) override { return false; }
    double Width() const override { return width; }
    double Height() const override { return height; }
    double TwipsPerPixelX() const override { return tpp_; }
    double TwipsPerPixelY() const override { return tpp_; }
    double Ascent() override { return 12; }

    // The engine prints a character at a time: all that was printed, in order.
    std::string All() const {
        std::string all;
        for (const auto& t : texts) all += t.text;
        return all;
    }
    bool Printed(const std::string& s) const { return All().find(s) != std::string::npos; }

private:
    std::string name_ = "Times New Roman";
    double size_ = 12;
    bool bold_ = false;
    std::uint32_t color_ = 0;
    double x_ = 0, y_ = 0;
    double tpp_;
    int fill_ = 1;
};

constexpr double kA4Width = 11906, kA4Height = 16838;
} // namespace

TEST(PageNumber, PlacesByTheLowBitsAndTheBottomBit) {
    const double w = 10000, h = 20000, tw = 200, th = 240, ml = 900, mr = 800, mt = 700, mb = 600;
    EXPECT_DOUBLE_EQ(PlacePageNumber(1, 3, w, h, tw, th, ml, mr, mt, mb).x, w - mr - tw);
    EXPECT_DOUBLE_EQ(PlacePageNumber(2, 3, w, h, tw, th, ml, mr, mt, mb).x, ml);
    EXPECT_DOUBLE_EQ(PlacePageNumber(11, 3, w, h, tw, th, ml, mr, mt, mb).x, (ml + w - mr - tw) / 2);
    EXPECT_DOUBLE_EQ(PlacePageNumber(4, 2, w, h, tw, th, ml, mr, mt, mb).x, ml);
    EXPECT_DOUBLE_EQ(PlacePageNumber(4, 3, w, h, tw, th, ml, mr, mt, mb).x, w - mr - tw);
    EXPECT_DOUBLE_EQ(PlacePageNumber(5, 2, w, h, tw, th, ml, mr, mt, mb).x, w - mr - tw);
    EXPECT_DOUBLE_EQ(PlacePageNumber(5, 3, w, h, tw, th, ml, mr, mt, mb).x, ml);
    EXPECT_DOUBLE_EQ(PlacePageNumber(11, 3, w, h, tw, th, ml, mr, mt, mb).y, h - mb - th);
    EXPECT_DOUBLE_EQ(PlacePageNumber(3, 3, w, h, tw, th, ml, mr, mt, mb).y, mt);
}

TEST(PrintOnePage, TitleRuleAndBottomCentrePageNumber) {
    TestBench bench;
    bench.SetProblems({{"First", "a&LF"}, {"Second", "b&LF"}});
    bench.app.Settings.Title = "Practice";
    bench.app.Settings.PagePositionCode = 11;
    bench.app.Settings.FirstPageNumber = 5;
    ComposeDocument(bench.app, true, 0);
    TypesetterState typesetter;
    FixedSurface printer(kA4Width, kA4Height, 1);
    PrintOnePage(bench.app, typesetter, printer, 1);
    ASSERT_FALSE(printer.boxes.empty());
    const auto& rule = printer.boxes.front();
    // Between the margins of 16 mm, under the title that begins at the top margin.
    const double m = 16 / 25.4 * 1440.0;
    EXPECT_DOUBLE_EQ(rule.x, m);
    EXPECT_DOUBLE_EQ(rule.y, m + 1.05 * 240);
    EXPECT_DOUBLE_EQ(rule.dy, 0.6 * 240);
    EXPECT_DOUBLE_EQ(rule.x + rule.dx, kA4Width - m);
    EXPECT_EQ(rule.color, Rgb(128, 128, 128));
    EXPECT_EQ(printer.lines.size(), 4u);
    for (const auto& l : printer.lines) EXPECT_EQ(l.color, Rgb(255, 255, 255));
    // The title in bold Arial, then the problems, then the number 5 at the bottom centre.
    ASSERT_FALSE(printer.texts.empty());
    EXPECT_TRUE(printer.Printed("Practice"));
    EXPECT_EQ(printer.All().rfind("Practice", 0), 0u);
    for (int i = 0; i < 8; ++i) {
        EXPECT_TRUE(printer.texts[i].bold);
        EXPECT_EQ(printer.texts[i].font, "Arial");
    }
    EXPECT_TRUE(printer.Printed("First"));
    const auto& number = printer.texts.back();
    EXPECT_EQ(number.text, "5");
    EXPECT_EQ(number.size, 11);
    EXPECT_EQ(number.color, 0u);
    EXPECT_DOUBLE_EQ(number.y, kA4Height - typesetter.MarginBottom - 240);
    EXPECT_DOUBLE_EQ(number.x, (typesetter.MarginLeft + kA4Width - typesetter.MarginRight - 100) / 2);
}

TEST(PrintOnePage, TopPageNumberMovesTheRuleDown) {
    TestBench bench;
    bench.SetProblems({{"First", ""}});
    bench.app.Settings.Title = "T";
    bench.app.Settings.PagePositionCode = 1;
    ComposeDocument(bench.app, true, 0);
    TypesetterState typesetter;
    FixedSurface printer(kA4Width, kA4Height, 1);
    PrintOnePage(bench.app, typesetter, printer, 1);
    ASSERT_FALSE(printer.boxes.empty());
    EXPECT_DOUBLE_EQ(printer.boxes.front().y, 16 / 25.4 * 1440.0 + 2.85 * 240);
    EXPECT_DOUBLE_EQ(printer.texts.back().y, typesetter.MarginTop);
    // Without a title there is no rule, and code 0 prints no number.
    bench.app.Settings.Title = "";
    bench.app.Settings.PagePositionCode = 0;
    FixedSurface plain(kA4Width, kA4Height, 1);
    PrintOnePage(bench.app, typesetter, plain, 1);
    for (const auto& box : plain.boxes) EXPECT_NE(box.color, Rgb(128, 128, 128));
    EXPECT_NE(plain.texts.back().text, "1");
}

TEST(DrawCurrentPage, DrawsThePageAndTakesItsMarks) {
    TestBench bench;
    bench.SetProblems({{"First", "a&LF"}, {"Second", "b&LF"}});
    bench.app.Settings.Title = "Title";
    bench.app.Settings.PagePositionCode = 11;
    ComposeDocument(bench.app, true, 0);
    TypesetterState typesetter;
    FixedSurface screen(796, 1125, 15);
    DrawCurrentPage(bench.app, typesetter, screen);
    EXPECT_EQ(bench.window.pageLabel, "Pag. 1/1");
    ASSERT_EQ(bench.app.Marks.MarkCount, 2);
    EXPECT_EQ(bench.app.Marks.MarkProblem[0], 1);
    EXPECT_EQ(bench.app.Marks.MarkProblem[1], 2);
    EXPECT_LT(bench.app.Marks.MarkTop[0], bench.app.Marks.MarkTop[1]);
    ASSERT_FALSE(screen.boxes.empty());
    const double margin = 16.0 / 25.4 * 1440.0;
    EXPECT_DOUBLE_EQ(screen.boxes.front().y, 240 + margin);
    EXPECT_EQ(screen.boxes.front().color, Rgb(160, 160, 160));
    EXPECT_EQ(screen.texts.back().text, "1");
    EXPECT_EQ(screen.texts.back().color, Rgb(128, 128, 128));
}

TEST(TypesetterMeasure, PaginatesWithTheRealLayout) {
    TestBench bench;
    std::vector<std::pair<std::string, std::string>> texts(30, {"Line one&LFLine two&LFLine three", ""});
    bench.SetProblems(texts);
    bench.app.Settings.SolutionPosition = 0;
    TypesetterState typesetter;
    FixedSurface screen(796, 1125, 15);
    TypesetterMeasure measure(typesetter, screen);
    bench.app.measure = &measure;
    ComposeDocument(bench.app, true, 30);
    EXPECT_GT(bench.app.PageCount, 1);
    int previous = 1;
    for (int b = 1; b <= bench.app.BlockCount; ++b) {
        EXPECT_GE(bench.app.Blocks[b].page, previous) << b;
        previous = bench.app.Blocks[b].page;
    }
    EXPECT_EQ(bench.app.Blocks[30].page, bench.app.PageCount);
    EXPECT_EQ(bench.app.CurrentPage, bench.app.PageCount);
}
