// Problems and pages drawn as SVG and PNG pictures.
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include "core/composition.h"
#include "export/picture_export.h"

namespace {
// A small collection, composed on a measuring surface that fits everything on page 1.
struct Pictures : public ::testing::Test {
    ApplicationState app;
    void SetUp() override {
        app.Settings.ProblemCount = 2;
        app.Problems[1].Statement = "Compute 123 + 456.&LF";
        app.Problems[1].Solution = "579";
        app.Problems[2].Statement = "Simplify #COC(84#N)(96#COC) and &alfa.";
        app.Problems[2].Solution = "#COC(7#N)(8#COC)";
        ComposeDocument(app, false, 0);
    }
};

// The texts of the SVG's elements, and whether it is well formed.
bool SvgText(const QByteArray& svg, std::string& text) {
    QXmlStreamReader xml(svg);
    bool sawSvg = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("svg")) sawSvg = true;
        if (xml.isCharacters()) text += xml.text().toString().toStdString() + " ";
    }
    return sawSvg && !xml.hasError();
}

int InkPixels(const QImage& image) {
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb c = image.pixel(x, y);
            if (qAlpha(c) > 200 && qGray(c) < 128) ++n;
        }
    return n;
}
} // namespace

TEST_F(Pictures, AProblemsSvgParsesAndHoldsItsText) {
    const QByteArray svg = ProblemSvg(app, 1, {});
    ASSERT_FALSE(svg.isEmpty());
    std::string text;
    ASSERT_TRUE(SvgText(svg, text));
    EXPECT_NE(text.find("Compute 123 + 456."), std::string::npos) << text;
    EXPECT_EQ(text.find("579"), std::string::npos);
    QSvgRenderer renderer(svg);
    ASSERT_TRUE(renderer.isValid());
    // Cut to the problem: far wider than high.
    EXPECT_GT(renderer.viewBoxF().width(), 2 * renderer.viewBoxF().height());
    // Drawn, it shows ink.
    QImage drawn(renderer.defaultSize(), QImage::Format_ARGB32);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    renderer.render(&painter);
    painter.end();
    EXPECT_GT(InkPixels(drawn), 50);
}

TEST_F(Pictures, WithTheSolutionTheTextAndPictureGrow) {
    ProblemPictureOptions with;
    with.withSolution = true;
    std::string text;
    ASSERT_TRUE(SvgText(ProblemSvg(app, 1, with), text));
    EXPECT_NE(text.find("579"), std::string::npos) << text;
    const QImage plain = ProblemPng(app, 1, {});
    const QImage both = ProblemPng(app, 1, with);
    ASSERT_FALSE(plain.isNull());
    EXPECT_GT(both.height(), plain.height());
}

TEST_F(Pictures, ThePngIsAt300DpiWithItsInkInside) {
    const QImage png = ProblemPng(app, 2, {});
    ASSERT_FALSE(png.isNull());
    EXPECT_NEAR(png.dotsPerMeterX(), 300 / 0.0254, 1);
    EXPECT_GT(InkPixels(png), 500);
    // A white border all round: nothing is cut off.
    for (int x = 0; x < png.width(); ++x) {
        EXPECT_GT(qGray(png.pixel(x, 0)), 240);
        EXPECT_GT(qGray(png.pixel(x, png.height() - 1)), 240);
    }
    for (int y = 0; y < png.height(); ++y) {
        EXPECT_GT(qGray(png.pixel(0, y)), 240);
        EXPECT_GT(qGray(png.pixel(png.width() - 1, y)), 240);
    }
    // The same cut at 96 dpi is about a third as wide.
    ProblemPictureOptions low;
    low.dpi = 96;
    const QImage small = ProblemPng(app, 2, low);
    EXPECT_NEAR(png.width() / double(small.width()), 300.0 / 96, 0.2);
}

TEST_F(Pictures, AMissingProblemGivesNothing) {
    EXPECT_TRUE(ProblemPng(app, 0, {}).isNull());
    EXPECT_TRUE(ProblemPng(app, 3, {}).isNull());
    EXPECT_TRUE(ProblemSvg(app, 9, {}).isEmpty());
    EXPECT_TRUE(PagePng(app, 2, 96, false).isNull());
}

TEST_F(Pictures, PagesAndFoldersOfPictures) {
    QTemporaryDir dir;
    PictureExportOptions options;
    int count = 0;
    std::string error;
    ASSERT_TRUE(WritePictures(app, dir.filePath("a/b").toStdString(), options, count, error)) << error;
    EXPECT_EQ(count, 4);
    for (const char* name : {"a/b/problem-001.svg", "a/b/problem-001.png", "a/b/problem-002.svg", "a/b/problem-002.png"})
        EXPECT_TRUE(QFile::exists(dir.filePath(name))) << name;
    options.perPage = true;
    options.png = false;
    ASSERT_TRUE(WritePictures(app, dir.path().toStdString(), options, count, error)) << error;
    EXPECT_EQ(count, app.PageCount);
    QFile page(dir.filePath("page-001.svg"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    std::string text;
    ASSERT_TRUE(SvgText(page.readAll(), text));
    EXPECT_NE(text.find("123"), std::string::npos);
    EXPECT_NE(text.find("Simplify"), std::string::npos);
    // The window's page and marks are untouched.
    EXPECT_EQ(app.CurrentPage, 1);
}

TEST_F(Pictures, AFolderThatCannotBeMadeIsAnError) {
    QTemporaryDir dir;
    QFile blocker(dir.filePath("file"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    int count = 0;
    std::string error;
    EXPECT_FALSE(WritePictures(app, dir.filePath("file/sub").toStdString(), {}, count, error));
    EXPECT_FALSE(error.empty());
}

TEST(PlainText, CodesAndTagsAreTakenOut) {
    EXPECT_EQ(MarkupPlainText("&+BFind&-B #COC(1#N)(2#COC) of &alfa&LFnext"), "Find 1/2 of \u03B1\nnext");
    EXPECT_EQ(MarkupPlainText("a&SP=50:b&FC=Rojo:c"), "a bc");
}
