// Pictures read once per state, and text drawn in runs on a PDF page.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtEndian>
#include <functional>

#include "tests/typesetter/gui_application.h"
#include "typesetter/layout.h"
#include "typesetter/qt_surface.h"

namespace {
void StartPdf(QPdfWriter& writer) {
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(1200);
}

QByteArray ReadAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// A picture with a transparent half, as the figures have.
void WriteFigure(const QString& path, int w, int h) {
    QImage picture(w, h, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    for (int y = h / 2; y < h; ++y)
        for (int x = 0; x < w; ++x) picture.setPixel(x, y, qRgba(20, 40, 200, 255));
    ASSERT_TRUE(picture.save(path, "PNG"));
}

// Lays out uses lines, each showing the figure, twenty lines a page, into a PDF.
void PrintFigureLines(TypesetterState& st, const QString& pdf, int uses) {
    QPdfWriter writer(pdf);
    StartPdf(writer);
    QtSurface surface(writer);
    surface.UsePictures(st);
    st.PrinterSurface = &surface;
    for (int first = 1; first <= uses; first += 20) {
        if (first > 1) surface.NewPage();
        std::string text;
        for (int n = first; n < first + 20 && n <= uses; ++n)
            text += "Problem " + std::to_string(n) + " #IMG('FIG.PNG'DXmm=20:DYmm=10:#IMG)&LF";
        double size = 12;
        LayoutText(st, text, size, surface);
        EXPECT_GE(st.FlowResult, 0);
    }
    surface.End();
}

// The page contents of a PDF, inflated: Qt compresses each with zlib.
QByteArray PageContents(const QByteArray& pdf) {
    QByteArray all;
    qsizetype at = 0;
    for (;;) {
        const qsizetype begin = pdf.indexOf("stream\n", at);
        if (begin < 0) break;
        const qsizetype end = pdf.indexOf("endstream", begin);
        if (end < 0) break;
        const qsizetype dictionary = pdf.lastIndexOf("<<", begin);
        if (dictionary < 0 || !pdf.mid(dictionary, begin - dictionary).contains("/FlateDecode")) {
            at = end + 9;
            continue;
        }
        QByteArray packed(4, '\0');
        qToBigEndian<quint32>(1u << 24, packed.data());
        packed += pdf.mid(begin + 7, end - begin - 7);
        const QByteArray plain = qUncompress(packed);
        if (plain.contains("BT")) all += plain;
        at = end + 9;
    }
    return all;
}

int TextObjects(const QByteArray& contents) {
    return static_cast<int>(contents.count("\nBT\n") + (contents.startsWith("BT\n") ? 1 : 0));
}
} // namespace

TEST(PictureCache, SizeComesFromTheHeaderAndThePictureIsDecodedOnce) {
    EnsureGuiApplication();
    QTemporaryDir dir;
    WriteFigure(dir.filePath("fig.png"), 60, 30);
    PictureCache cache;
    const std::string file = dir.filePath("fig.png").toStdString();
    double w = 0, h = 0;
    for (int i = 0; i < 5; ++i) {
        ASSERT_TRUE(CachedPictureSize(cache, file, w, h));
        EXPECT_EQ(w, 60);
        EXPECT_EQ(h, 30);
    }
    EXPECT_EQ(cache.headerReads, 1);
    EXPECT_EQ(cache.decodes, 0);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(CachedPicture(cache, file).size(), QSize(60, 30));
    EXPECT_EQ(cache.decodes, 1);

    // Another picture under the same name is read again.
    WriteFigure(dir.filePath("fig.png"), 90, 20);
    ASSERT_TRUE(CachedPictureSize(cache, file, w, h));
    EXPECT_EQ(w, 90);
    EXPECT_EQ(h, 20);
    EXPECT_EQ(CachedPicture(cache, file).size(), QSize(90, 20));
    EXPECT_EQ(cache.decodes, 2);

    // Missing and damaged files are no pictures, and stay so.
    EXPECT_FALSE(CachedPictureSize(cache, dir.filePath("none.png").toStdString(), w, h));
    EXPECT_TRUE(CachedPicture(cache, dir.filePath("none.png").toStdString()).isNull());
    QFile bad(dir.filePath("bad.gif"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("GIF89a this is not a picture");
    bad.close();
    EXPECT_FALSE(CachedPictureSize(cache, dir.filePath("bad.gif").toStdString(), w, h));
    EXPECT_TRUE(CachedPicture(cache, dir.filePath("bad.gif").toStdString()).isNull());
}

TEST(PictureCache, APictureShownByAHundredProblemsIsDecodedOnceAndStoredOnce) {
    EnsureGuiApplication();
    QTemporaryDir dir;
    WriteFigure(dir.filePath("fig.png"), 80, 40);
    auto imageObjects = [&](int uses, int& decodes, int& headerReads) {
        TypesetterState st;
        UseQtPictures(st);
        st.PictureFolder = dir.path().toStdString();
        st.TempPictureFolder.clear();
        const QString pdf = dir.filePath(QString("uses-%1.pdf").arg(uses));
        PrintFigureLines(st, pdf, uses);
        const PictureCache* pictures = StatePictures(st);
        EXPECT_NE(pictures, nullptr);
        decodes = pictures ? pictures->decodes : -1;
        headerReads = pictures ? pictures->headerReads : -1;
        return ReadAll(pdf).count("/Subtype /Image");
    };
    int decodes = 0, headerReads = 0;
    const qsizetype once = imageObjects(1, decodes, headerReads);
    EXPECT_EQ(decodes, 1);
    EXPECT_GE(once, 1);
    const qsizetype hundred = imageObjects(100, decodes, headerReads);
    EXPECT_EQ(decodes, 1);
    EXPECT_EQ(headerReads, 1);
    EXPECT_EQ(hundred, once);
}

namespace {
// A state that reads its pictures with Qt from dir, where an 80 by 40 figure "fig.png" lies.
void UseFigureFolder(TypesetterState& st, const QTemporaryDir& dir) {
    WriteFigure(dir.filePath("fig.png"), 80, 40);
    UseQtPictures(st);
    st.PictureFolder = dir.path().toStdString();
}
} // namespace

TEST(PictureCache, SurfacesOfOneStateShareItsPictures) {
    EnsureGuiApplication();
    QTemporaryDir dir;
    TypesetterState st;
    UseFigureFolder(st, dir);
    for (int page = 0; page < 3; ++page) {
        QImage image(794, 1123, QImage::Format_RGB32);
        image.fill(Qt::white);
        QtSurface surface(image);
        surface.UsePictures(st);
        st.ScreenSurface = &surface;
        double size = 12;
        LayoutText(st, "#IMG('FIG.PNG'DXmm=20:DYmm=10:#IMG)", size, surface);
        surface.End();
        int blue = 0;
        for (int y = 0; y < 300; ++y)
            for (int x = 0; x < 400; ++x)
                if (qBlue(image.pixel(x, y)) > 150 && qRed(image.pixel(x, y)) < 100) ++blue;
        EXPECT_GT(blue, 500) << page;
    }
    EXPECT_EQ(StatePictures(st)->decodes, 1);
    TypesetterState other;
    EXPECT_EQ(StatePictures(other), nullptr);
}

TEST(PictureCache, AFigureIsLookedForOnceUntilTheStateForgetsWhereItWas) {
    EnsureGuiApplication();
    QTemporaryDir dir;
    TypesetterState st;
    UseFigureFolder(st, dir);
    st.TempPictureFolder.clear();
    int asked = 0;
    const auto loader = st.LoadPicture;
    st.LoadPicture = [&](const std::string& file, double& w, double& h) {
        ++asked;
        return loader(file, w, h);
    };
    QImage image(794, 1123, QImage::Format_RGB32);
    image.fill(Qt::white);
    QtSurface surface(image);
    st.ScreenSurface = &surface;
    const std::string text = "#IMG('FIG.PNG'DXmm=20:DYmm=10:#IMG)&LF#IMG('LATER.PNG'DXmm=20:DYmm=10:#IMG)";
    auto layOut = [&] {
        double size = 12;
        LayoutText(st, text, size, surface);
    };
    // Measured again and again, as pagination does: the figure is asked for once.
    for (int pass = 0; pass < 5; ++pass) layOut();
    EXPECT_EQ(asked, 1);
    ASSERT_EQ(st.FoundPictures.count("FIG.PNG"), 1u);
    EXPECT_EQ(st.FoundPictures["FIG.PNG"].width, 80);
    EXPECT_EQ(st.FoundPictures["FIG.PNG"].height, 40);
    EXPECT_TRUE(st.FoundPictures["LATER.PNG"].file.empty());
    // A picture that comes later is seen once the state forgets what it found.
    WriteFigure(dir.filePath("later.png"), 40, 40);
    layOut();
    EXPECT_TRUE(st.FoundPictures["LATER.PNG"].file.empty());
    st.FoundPictures.clear();
    layOut();
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(st.FoundPictures["LATER.PNG"].width, 40);
    surface.End();
}

TEST(GlyphRuns, TextOfOneFontAndColourIsOneTextObject) {
    EnsureGuiApplication();
    QTemporaryDir dir;
    auto contents = [&](const QString& name, const std::function<void(QtSurface&)>& draw) {
        const QString path = dir.filePath(name);
        {
            QPdfWriter writer(path);
            StartPdf(writer);
            QtSurface surface(writer);
            surface.SetCurrentX(1000);
            surface.SetCurrentY(1000);
            draw(surface);
            surface.End();
        }
        return PageContents(ReadAll(path));
    };
    const std::string word = "abcdefghij";
    auto oneByOne = [&](QtSurface& s) {
        for (char c : word) s.PrintText(std::string(1, c));
    };
    EXPECT_EQ(TextObjects(contents("one.pdf", oneByOne)), 1);
    // A colour change, or a line between, ends the run.
    EXPECT_EQ(TextObjects(contents("two.pdf",
                                   [&](QtSurface& s) {
                                       s.PrintText("ab");
                                       s.SetForeColor(0x0000FF);
                                       s.PrintText("cd");
                                       s.SetForeColor(0);
                                       s.Line(0, 0, 100, 100);
                                       s.PrintText("ef");
                                   })),
              3);
    // Italic and upright letters of one colour go on in runs of their own fonts.
    EXPECT_EQ(TextObjects(contents("fonts.pdf",
                                   [&](QtSurface& s) {
                                       for (int i = 0; i < 5; ++i) {
                                           s.SetFontItalic(true);
                                           s.PrintText("x");
                                           s.SetFontItalic(false);
                                           s.PrintText("2");
                                       }
                                   })),
              2);
}
