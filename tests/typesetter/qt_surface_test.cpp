#include <gtest/gtest.h>

#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "tests/typesetter/gui_application.h"
#include "typesetter/layout.h"
#include "typesetter/markup.h"
#include "typesetter/text_util.h"
#include "typesetter/qt_surface.h"

namespace {

struct Picture {
    QImage image{794, 1123, QImage::Format_RGB32};
    std::unique_ptr<QtSurface> surface;
    TypesetterState state;
    Picture() {
        EnsureGuiApplication();
        image.fill(Qt::white);
        surface = std::make_unique<QtSurface>(image);
        state.ScreenSurface = surface.get();
    }
    void Layout(const std::string& text) {
        double size = 12;
        LayoutText(state, text, size, *surface);
        surface->End();
    }
    // Pixels in the rectangle (pixels) that are not white, and those that are reddish.
    int Ink(int x0, int y0, int x1, int y1, bool redOnly = false) const {
        int n = 0;
        for (int y = std::max(0, y0); y < std::min(image.height(), y1); ++y)
            for (int x = std::max(0, x0); x < std::min(image.width(), x1); ++x) {
                const QRgb p = image.pixel(x, y);
                if (redOnly) {
                    if (qRed(p) > 200 && qGreen(p) < 120 && qBlue(p) < 120) ++n;
                } else if (qRed(p) < 200 || qGreen(p) < 200 || qBlue(p) < 200) {
                    ++n;
                }
            }
        return n;
    }
};
} // namespace

TEST(QtSurfaceTest, MetricsAreTwipsOfTheMetricTwins) {
    Picture p;
    QtSurface& s = *p.surface;
    s.SetFontName("Times New Roman");
    s.SetFontSize(12);
    // Liberation Serif: "H" advances 0.722 em, line height 1.107 em; 12 points = 240 twips.
    EXPECT_NEAR(s.TextWidth("H"), 0.722 * 240, 1.0);
    EXPECT_NEAR(s.TextHeight("x"), 1.107 * 240, 2.0);
    EXPECT_NEAR(s.Ascent() * s.TwipsPerPixelY(), 0.891 * 240, 2.0);
    EXPECT_EQ(s.TwipsPerPixelX(), 15);
    EXPECT_EQ(s.Width(), 794);
    s.SetFontSize(24);
    EXPECT_NEAR(s.TextWidth("H"), 2 * 0.722 * 240, 2.0);
}

TEST(QtSurfaceTest, SameMetricsOnPictureAndPdf) {
    Picture p;
    QTemporaryDir dir;
    QPdfWriter writer(dir.filePath("m.pdf"));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(1200);
    QtSurface pdf(writer);
    for (const char* font : {"Times New Roman", "Arial", "Symbol"}) {
        for (double size : {8.0, 12.0, 17.5}) {
            for (QtSurface* s : {p.surface.get(), &pdf}) {
                s->SetFontName(font);
                s->SetFontSize(size);
                s->SetFontItalic(size > 10);
            }
            for (const char* text : {"Nuria es Magn\u00EDfico", "W", "\u03B1", "1234567890", "\u2208"}) {
                EXPECT_DOUBLE_EQ(p.surface->TextWidth(text), pdf.TextWidth(text)) << font << size << text;
            }
            EXPECT_DOUBLE_EQ(p.surface->TextHeight("H"), pdf.TextHeight("H"));
            EXPECT_NEAR(p.surface->Ascent() * 15, pdf.Ascent() * pdf.TwipsPerPixelY(), 1e-6);
        }
    }
    pdf.End();
    // The PDF page is measured in twips.
    EXPECT_NEAR(pdf.Width(), 210 / 25.4 * 1440, 10); // A4 is 595 points wide in PDF
}

TEST(QtSurfaceTest, TextHasInkWhereItIsDrawnOnly) {
    Picture p;
    p.Layout("&FC=rojo:HHHH&FC=negro: x&LF&LFtail");
    const int left = static_cast<int>(p.state.MarginLeft / 15);
    const int top = static_cast<int>(p.state.MarginTop / 15);
    const int lineHeight = 18; // 12 points at 96 dpi, rounded up
    // Red letters on the first line.
    EXPECT_GT(p.Ink(left, top, left + 60, top + lineHeight, true), 50);
    // Nothing left of the margin, nothing above it.
    EXPECT_EQ(p.Ink(0, 0, left - 1, 1123), 0);
    EXPECT_EQ(p.Ink(0, 0, 794, top - 1), 0);
    // The empty second line stays white; the third has black ink.
    const double advance = (p.surface->TextHeight("H") * 1.2) / 15;
    const int second = top + static_cast<int>(advance) + 2;
    EXPECT_EQ(p.Ink(left, second, 794, second + 12), 0);
    EXPECT_GT(p.Ink(left, top + static_cast<int>(2 * advance), left + 60, top + static_cast<int>(3 * advance)), 30);
    // Nothing below the text.
    EXPECT_EQ(p.Ink(0, top + static_cast<int>(4 * advance), 794, 1123), 0);
}

TEST(QtSurfaceTest, FractionRuleIsDrawnBetweenItsParts) {
    Picture p;
    p.Layout("#COC(1#N)(2#COC)");
    const int left = static_cast<int>(p.state.MarginLeft / 15);
    const int top = static_cast<int>(p.state.MarginTop / 15);
    // Find the row with the most ink in the first 40 pixels: the rule.
    int bestRow = -1, best = 0;
    for (int y = top - 10; y < top + 60; ++y) {
        const int n = p.Ink(left, y, left + 40, y + 1);
        if (n > best) {
            best = n;
            bestRow = y;
        }
    }
    EXPECT_GE(best, 8); // a continuous bar, not a digit's stroke
    EXPECT_GT(p.Ink(left, top - 10, left + 40, bestRow - 1), 10); // the numerator above
    EXPECT_GT(p.Ink(left, bestRow + 2, left + 40, top + 60), 10); // the denominator below
}

TEST(QtSurfaceTest, PdfKeepsTextAsText) {
    EnsureGuiApplication();
    QTemporaryDir dir;
    const QString file = dir.filePath("t.pdf");
    {
        QPdfWriter writer(file);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setResolution(1200);
        QtSurface surface(writer);
        TypesetterState state;
        state.PrinterSurface = &surface;
        double size = 12;
        LayoutText(state, "&+BSolve&-B &alfa^2 &<= 10&E-3", size, surface);
        surface.End();
    }
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    EXPECT_TRUE(bytes.contains("/FontFile2"));
    EXPECT_TRUE(bytes.contains("/ToUnicode"));
    EXPECT_FALSE(bytes.contains("/Subtype /Image"));
}

TEST(QtSurfaceTest, LayoutBreaksAtTheSamePlacesOnPictureAndPdf) {
    // The same page width on both: a text breaks at the same characters.
    std::string text;
    for (int i = 0; i < 30; ++i) text += "&+Ix&-I^2 + &alfa_1 = 10&E-3 word ";
    Picture p;
    std::vector<std::u32string> heads[2];
    QTemporaryDir dir;
    QPdfWriter writer(dir.filePath("b.pdf"));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(600);
    QtSurface pdf(writer);
    int k = 0;
    for (DrawingSurface* s : {static_cast<DrawingSurface*>(p.surface.get()), static_cast<DrawingSurface*>(&pdf)}) {
        TypesetterState st;
        st.PageWidth = 9000;
        st.MarginLeft = st.MarginRight = 500;
        s->SetFontName("Times New Roman");
        s->SetFontSize(12);
        s->SetFontItalic(false);
        std::u32string rest = ToU32(text);
        std::u32string head;
        do {
            st.BoxCounter = 1;
            st.DrawPass = false;
            InterpretMarkup(st, rest, *s, head);
            heads[k].push_back(head);
            rest.erase(0, head.size());
        } while (!head.empty());
        ++k;
    }
    pdf.End();
    EXPECT_GT(heads[0].size(), 3u);
    EXPECT_EQ(heads[0], heads[1]);
}

TEST(QtSurfaceTest, EverySymbolHasAGlyphInTheFontsThatPrintIt) {
    // No symbol may print as an empty box: one of the faces that stand for the symbol fonts
    // must hold its glyph (the double-struck R of the real numbers among them).
    EnsureGuiApplication();
    TypesetterState st;
    const QStringList families = QtSurface::FamiliesFor("Symbol");
    for (int i = 1; i <= kSymbolCount; ++i) {
        const QString glyph = QString::fromUtf8(st.SymbolGlyph[i].c_str());
        ASSERT_FALSE(glyph.isEmpty()) << i;
        bool found = false;
        for (const QString& family : families) {
            if (!QFontDatabase::hasFamily(family)) continue;
            QFont font(family);
            font.setStyleStrategy(QFont::NoFontMerging);  // this face alone, no fallback
            if (QFontMetricsF(font).inFontUcs4(glyph.toUcs4().front())) found = true;
        }
        EXPECT_TRUE(found) << st.SymbolGlyph[i] << " (entry " << i << ")";
    }
}
