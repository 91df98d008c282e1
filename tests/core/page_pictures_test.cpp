// The first page of a fixed collection of each module, as the page view draws it, against
// a reference picture kept in tests/core/page_pictures (grey, half size). On a difference
// the new picture and a difference picture (changed pixels dark) are written to the test's
// folder under page_pictures/. scripts/renew_page_pictures.sh writes new references after
// an intended change of the look.
#include <gtest/gtest.h>

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <cstdlib>
#include <cmath>

#include "core/collection.h"
#include "core/composition.h"
#include "core/page_render.h"
#include "typesetter/layout.h"
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

constexpr int kSheetWidth = 796, kSheetHeight = 1125;
// A pixel differs when its grey differs by more than this; a page differs when more than
// kMostChanged of its pixels do.
constexpr int kGreyTolerance = 40;
constexpr double kMostChanged = 0.0005;

struct Sample {
    const char* module;
    std::vector<int> routines;
    int items;
};

// Routines with the constructs a page shows: columns of items, fractions, roots, matrices,
// tables, figures hung from the line above.
const std::vector<Sample>& Samples() {
    static const std::vector<Sample> samples = {
        {"KVOL_MATH_ALG", {1, 2, 3}, 2},   {"KVOL_MATH_ECU", {1, 5, 13}, 4}, {"KVOL_MATH_GA2", {1, 4}, 3},
        {"KVOL_MATH_GA3", {1, 5}, 3},      {"KVOL_MATH_GDE", {1, 3}, 1},     {"KVOL_MATH_INT", {1, 2}, 4},
        {"KVOL_MATH_LFD", {1, 25, 68}, 4}, {"KVOL_MATH_NRP", {10, 21, 25, 32}, 8},
        {"KVOL_MATH_PES", {1, 2}, 1},      {"KVOL_MATH_TRI", {3, 6}, 4},
    };
    return samples;
}

void UsePictures(TypesetterState& t) {
    t.LoadPicture = ReadPictureSize;
    t.PictureFolder = SUMFORGE_SOURCE_DIR "/data/img";
}

// Page 1 of the sample's collection, drawn at zoom 1 and kept grey at half size.
QImage SamplePage(const Sample& sample) {
    ApplicationState app;
    app.ClockSeed = [] { return 1; };
    app.Reseed();
    app.TopicTree = {TopicNode{}};
    for (int routine : sample.routines) {
        TopicNode leaf;
        leaf.module = sample.module;
        leaf.routine = routine;
        leaf.selected = true;
        leaf.amount = 1;
        leaf.itemsPerProblem = sample.items;
        app.TopicTree.push_back(leaf);
    }
    app.Settings.SolutionPosition = 1;
    app.Settings.Title = "Worksheet";
    app.Settings.Sorted = true;
    Arbol_to_Var(app);
    QImage hidden(kSheetWidth, kSheetHeight, QImage::Format_RGB32);
    QtSurface hiddenSurface(hidden);
    TypesetterState measuring;
    UsePictures(measuring);
    TypesetterMeasure measure(measuring, hiddenSurface);
    app.measure = &measure;
    CrearColeccion(app, 1);

    QImage sheet(kSheetWidth, kSheetHeight, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    {
        QtSurface screen(sheet);
        TypesetterState t;
        UsePictures(t);
        app.CurrentPage = 1;
        app.ZoomScale = 1.0;
        DrawCurrentPage(app, t, screen);
    }
    return sheet.convertToFormat(QImage::Format_Grayscale8)
        .scaled(kSheetWidth / 2, kSheetHeight / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QString ReferenceFolder() { return QStringLiteral(SUMFORGE_SOURCE_DIR "/tests/core/page_pictures"); }

QString ShortName(const Sample& sample) { return QString::fromLatin1(sample.module + 10); }

bool Renewing() { return std::getenv("SUMFORGE_RENEW_PAGE_PICTURES") != nullptr; }

// The share of pixels whose grey differs by more than the tolerance, and a picture of them.
double Compare(const QImage& a, const QImage& b, QImage& difference) {
    difference = QImage(a.size(), QImage::Format_Grayscale8);
    difference.fill(255);
    long long changed = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar* pa = a.constScanLine(y);
        const uchar* pb = b.constScanLine(y);
        uchar* pd = difference.scanLine(y);
        for (int x = 0; x < a.width(); ++x) {
            const int d = std::abs(int(pa[x]) - int(pb[x]));
            if (d > kGreyTolerance) {
                ++changed;
                pd[x] = 0;
            } else if (d > 0) {
                pd[x] = 200;
            }
        }
    }
    return static_cast<double>(changed) / (static_cast<double>(a.width()) * a.height());
}
} // namespace

class PagePictures : public ::testing::TestWithParam<int> {};

TEST_P(PagePictures, FirstPageLooksAsItsReference) {
    EnsureGui();
    const Sample& sample = Samples()[GetParam()];
    const QImage page = SamplePage(sample);
    const QString reference = ReferenceFolder() + "/" + ShortName(sample) + ".png";
    if (Renewing()) {
        ASSERT_TRUE(page.save(reference, "PNG")) << reference.toStdString();
        return;
    }
    QImage expected(reference);
    ASSERT_FALSE(expected.isNull()) << "no reference " << reference.toStdString()
                                    << " (scripts/renew_page_pictures.sh makes it)";
    expected = expected.convertToFormat(QImage::Format_Grayscale8);
    QImage difference;
    const double changed =
        expected.size() == page.size() ? Compare(expected, page, difference) : 1.0;
    if (changed > kMostChanged) {
        QDir().mkpath("page_pictures");
        const QString stem = QDir("page_pictures").absoluteFilePath(ShortName(sample));
        page.save(stem + ".new.png");
        if (!difference.isNull()) difference.save(stem + ".diff.png");
        ADD_FAILURE() << ShortName(sample).toStdString() << ": " << changed * 100 << " % of the pixels differ from "
                      << reference.toStdString() << "; new picture " << (stem + ".new.png").toStdString()
                      << ", difference " << (stem + ".diff.png").toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(EveryModule, PagePictures, ::testing::Range(0, 10), [](const auto& info) {
    return std::string(Samples()[info.param].module + 10);
});

// The comparison itself: a page against itself is clean; a changed block is found.
TEST(PagePictureCompare, FindsChangedPixels) {
    QImage a(100, 100, QImage::Format_Grayscale8);
    a.fill(255);
    QImage b = a;
    QImage difference;
    EXPECT_EQ(Compare(a, b, difference), 0.0);
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 10; ++x) b.scanLine(y)[x] = 0;
    EXPECT_DOUBLE_EQ(Compare(a, b, difference), 0.01);
    EXPECT_EQ(difference.pixelColor(5, 5).value(), 0);
    EXPECT_EQ(difference.pixelColor(50, 50).value(), 255);
}
