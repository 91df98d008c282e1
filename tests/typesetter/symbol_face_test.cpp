#include <gtest/gtest.h>

#include <QFont>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QGlyphRun>
#include <QImage>
#include <QRawFont>
#include <QTextLayout>

#include "tests/typesetter/gui_application.h"
#include "typesetter/qt_surface.h"
#include "typesetter/typesetter_state.h"

namespace {
// The faces that print one string in the symbol font, as the surface lays it out: family
// and glyph of every glyph.
struct Glyph {
    QString family;
    quint32 index;
};
std::vector<Glyph> GlyphsOf(const std::string& text, bool italic) {
    QFont font;
    font.setFamilies(QtSurface::FamiliesFor("Symbol"));
    font.setPointSizeF(12);
    font.setItalic(italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    QTextLayout layout(QString::fromStdString(text), font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    std::vector<Glyph> out;
    for (const QGlyphRun& run : layout.glyphRuns())
        for (quint32 g : run.glyphIndexes()) out.push_back({run.rawFont().familyName(), g});
    return out;
}
} // namespace

TEST(SymbolFace, EverySymbolHasAGlyphInASerifFaceOfTheTextWeight) {
    EnsureGuiApplication();
    TypesetterState st;
    // The Times-like serif that holds every sign of the table.
    const QStringList serif = {"STIX"};
    for (bool italic : {false, true}) {
        for (int i = 1; i <= kSymbolCount; ++i) {
            // Greek letters follow the italic of the text; signs are printed upright.
            const bool greek = st.SymbolGlyph[i].size() == 2 && static_cast<unsigned char>(st.SymbolGlyph[i][0]) >= 0xCE &&
                               static_cast<unsigned char>(st.SymbolGlyph[i][0]) <= 0xCF;
            const auto glyphs = GlyphsOf(st.SymbolGlyph[i], italic && greek);
            ASSERT_EQ(glyphs.size(), 1u) << i;
            EXPECT_NE(glyphs[0].index, 0u) << "no glyph for entity " << i;
            EXPECT_TRUE(serif.contains(glyphs[0].family))
                << "entity " << i << " comes from " << glyphs[0].family.toStdString();
        }
    }
}

TEST(SymbolFace, TextFaceHasTheTrueMinusSign) {
    EnsureGuiApplication();
    // "-" prints as U+2212 in the text face itself, not from a fallback.
    QFont font;
    font.setFamilies(QtSurface::FamiliesFor("Times New Roman"));
    font.setPointSizeF(12);
    QTextLayout layout(QString::fromUtf8("\u2212+"), font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const auto runs = layout.glyphRuns();
    ASSERT_EQ(runs.size(), 1);
    EXPECT_EQ(runs[0].rawFont().familyName().toStdString(), "Liberation Serif");
    for (quint32 g : runs[0].glyphIndexes()) EXPECT_NE(g, 0u);
    // Its bar lies at the height of the plus sign's bar: the two take one shift.
    const QRawFont raw = runs[0].rawFont();
    const auto glyphs = runs[0].glyphIndexes();
    ASSERT_EQ(glyphs.size(), 2);
    const QRectF minus = raw.pathForGlyph(glyphs[0]).boundingRect();
    const QRectF plus = raw.pathForGlyph(glyphs[1]).boundingRect();
    EXPECT_NEAR(minus.center().y(), plus.center().y(), 0.01 * raw.pixelSize());
    // As wide as the plus sign.
    const QFontMetricsF metrics(font);
    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(QString::fromUtf8("\u2212")), metrics.horizontalAdvance("+"));
}

TEST(SymbolFace, BoxPaintedOverAnotherLeavesNoPaleEdge) {
    EnsureGuiApplication();
    // The problem number's box: a coloured box, the number, then a white box from behind
    // the number over the rest of the coloured one, at places between pixels.
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QtSurface s(image);
        const double top = 10.4 * 15, height = 20.55 * 15;
        s.FilledBox(7.3 * 15, top, 100 * 15, height, 0x00C08040);
        s.FilledBox(40.6 * 15, top, 100 * 15, height, 0x00FFFFFF);
        s.End();
    }
    int pale = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 42; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255)) ++pale;
    EXPECT_EQ(pale, 0);
    // The coloured part is solid to its edges: no half-tinted rows.
    int tinted = 0;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb p = image.pixel(20, y);
        if (p != qRgb(255, 255, 255) && p != qRgb(0x40, 0x80, 0xC0)) ++tinted;
    }
    EXPECT_EQ(tinted, 0);
}

TEST(SymbolFace, ThinBoxKeepsAPixel) {
    EnsureGuiApplication();
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QtSurface s(image);
        s.FilledBox(10.2 * 15, 5 * 15, 11, 20 * 15, 0); // a 0.2 mm rule: under a pixel wide
        s.End();
    }
    int ink = 0;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255)) ++ink;
    EXPECT_GE(ink, 20);
}
