#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "tests/typesetter/gui_application.h"
#include "tests/typesetter/typesetter_test_util.h"
#include "typesetter/construct_frame.h"
#include "typesetter/layout.h"
#include "typesetter/qt_surface.h"

namespace {
struct Lines : ConstructFixture {};

void WriteFile(const std::string& path, const std::string& bytes) {
    std::ofstream f(path, std::ios::binary);
    f << bytes;
}

// A one-pixel GIF.
const std::string kTinyGif("GIF89a\x01\x00\x01\x00\x80\x00\x00\x00\x00\x00\xff\xff\xff!\xf9\x04\x01\x00\x00\x00\x00,"
                           "\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02\x44\x01\x00;",
                           43);

} // namespace

TEST_F(Lines, VectorArrowTakesTheLineColour) {
    Draw("&LC=Rojo:#VEC(AB#VEC)#SEG(CD#SEG)");
    ASSERT_EQ(s.strokes.size(), 3u);
    for (const auto& k : s.strokes) EXPECT_EQ(k.color, Rgb(255, 0, 0));
    EXPECT_EQ(Find("A")->color, 0u);
    // The shaft over the letters, a single barb at its right end.
    const auto& shaft = s.strokes[0];
    EXPECT_EQ(shaft.y1, shaft.y2);
    EXPECT_LE(shaft.y1, 1000 + 0.18 * H());
    EXPECT_NEAR(s.strokes[1].x1, std::max(shaft.x1, shaft.x2), 1e-9);
    st.LineColor = 0;
    Draw("&FC=Azul:#VEC(AB#VEC)");
    EXPECT_EQ(s.strokes[0].color, 0u); // the text colour doesn't colour the marks
}

TEST_F(Lines, CrossOutAndFrameAddTOnEverySide) {
    const LayoutBox plain = Measure("x");
    for (const char* text : {"#TDX(x#TDX)", "#REC(x#REC)", "#UDL(x#UDL)"}) {
        Measure(text);
        const LayoutBox& b = st.BoxTable[2];
        EXPECT_NEAR(b.lead, T(), 1e-9) << text;
        EXPECT_NEAR(b.width, plain.width + T(), 1e-9) << text;
        EXPECT_NEAR(b.over, T(), 1e-9) << text;
        EXPECT_NEAR(b.bottom, plain.bottom + T(), 1e-9) << text;
    }
    Draw("#TDX(x#TDX)");
    EXPECT_EQ(s.strokes.size(), 2u);
    Draw("#REC(x#REC)");
    EXPECT_EQ(s.strokes.size(), 4u);
    const auto* x = Find("x");
    double left = 1e18, right = -1e18, top = 1e18, bottom = -1e18;
    for (const auto& k : s.strokes) {
        left = std::min({left, k.x1, k.x2});
        right = std::max({right, k.x1, k.x2});
        top = std::min({top, k.y1, k.y2});
        bottom = std::max({bottom, k.y1, k.y2});
    }
    EXPECT_LT(left, x->x);
    EXPECT_GT(right, x->x + 0.5 * kEm);
    EXPECT_LT(top, x->y);
    EXPECT_GT(bottom, x->y + H());
}

TEST_F(Lines, IntegralSignIsLargeBlackAndBeforeTheBody) {
    Draw("&FC=Rojo:#INT(f d&+Ix&-I#INT)");
    const auto* sign = Find("\u222B");
    ASSERT_TRUE(sign);
    EXPECT_EQ(sign->font, "Symbol");
    EXPECT_DOUBLE_EQ(sign->size, 24);
    EXPECT_EQ(sign->color, 0u);
    EXPECT_EQ(Find("f")->color, Rgb(255, 0, 0));
    const double left = 0.6 * H(), rise = 0.4 * H();
    EXPECT_NEAR(Find("f")->x - sign->x, left + 1, 1e-9);
    EXPECT_NEAR(Find("f")->y - sign->y, rise, 1e-9);
    Measure("#INT(f#INT)");
    const LayoutBox& b = st.BoxTable[2];
    EXPECT_NEAR(b.lead, left, 1e-9);
    EXPECT_NEAR(b.over, 1.2 * rise, 1e-9);
    EXPECT_NEAR(b.bottom, 1.2 * rise + H(), 1e-9);
}

TEST_F(Lines, MissingPictureKeepsTheAskedSize) {
    Measure("#IMG('nothing.gif'DXmm=20:DYmm=10:#IMG)");
    const LayoutBox b = st.BoxTable[2];
    const double dx = 20 / 25.4 * 1440, dy = 10 / 25.4 * 1440;
    EXPECT_NEAR(b.width, dx + T(), 1e-9);
    EXPECT_NEAR(b.over, dy - H() + T(), 1e-9);
    EXPECT_NEAR(b.bottom, H() + T(), 1e-9);
    Draw("#IMG('nothing.gif'DXmm=20:DYmm=10:#IMG)");
    ASSERT_GE(s.strokes.size(), 3u);
    EXPECT_TRUE(s.strokes[0].filled);
    EXPECT_EQ(s.strokes[0].color, Rgb(240, 240, 240));
    EXPECT_EQ(s.strokes[1].color, Rgb(255, 0, 0));
    EXPECT_EQ(s.strokes[2].color, Rgb(255, 0, 0));
    // No size: an inch by three quarters.
    Measure("#IMG('nothing.gif'#IMG)");
    EXPECT_NEAR(st.BoxTable[2].width, 1440 + T(), 1e-9);
    EXPECT_NEAR(st.BoxTable[2].over, 1080 - H() + T(), 1e-9);
}

TEST_F(Lines, PictureLookupIgnoresCaseAndFallsBackToTemp) {
    QTemporaryDir dir;
    const std::string img = dir.filePath("img").toStdString(), temp = dir.filePath("temp").toStdString();
    std::filesystem::create_directories(img);
    std::filesystem::create_directories(temp);
    WriteFile(img + "/lower.gif", "x");
    WriteFile(img + "/MIXED.Gif", "x");
    WriteFile(temp + "/only_in_temp.gif", "x");
    st.PictureFolder = img;
    st.TempPictureFolder = temp;
    std::vector<std::string> asked;
    st.LoadPicture = [&](const std::string& file, double& w, double& h) {
        asked.push_back(file);
        w = 200;
        h = 100;
        return true;
    };
    Draw("#IMG('LOWER.GIF'DXmm=20:DYmm=20:#IMG)#IMG('mixed.gif'#IMG)#IMG('Only_In_Temp.gif'MARCO#IMG)");
    ASSERT_EQ(s.pictures.size(), 3u);
    EXPECT_EQ(std::filesystem::path(s.pictures[0].file).filename(), "lower.gif");
    EXPECT_EQ(std::filesystem::path(s.pictures[1].file).filename(), "MIXED.Gif");
    EXPECT_EQ(std::filesystem::path(s.pictures[2].file).parent_path().filename(), "temp");
    // Proportions kept: 20 mm high asks for 40 mm wide, the larger side rules.
    EXPECT_NEAR(s.pictures[0].w, 40 / 25.4 * 1440, 1e-6);
    EXPECT_NEAR(s.pictures[0].h, 20 / 25.4 * 1440, 1e-6);
    // A loaded picture without MARCO has no frame; with it, a frame in LineColor.
    int frames = 0;
    for (const auto& k : s.strokes)
        if (!k.filled) ++frames;
    EXPECT_EQ(frames, 4);
}

TEST_F(Lines, DistortedAndNegativeHeights) {
    QTemporaryDir dir;
    WriteFile(dir.filePath("a.gif").toStdString(), "x");
    st.PictureFolder = dir.path().toStdString();
    st.LoadPicture = [](const std::string&, double& w, double& h) {
        w = 100;
        h = 100;
        return true;
    };
    Draw("#IMG('a.gif'DXmm=30:DYmm=10:DIST#IMG)", 1000, 1000);
    ASSERT_EQ(s.pictures.size(), 1u);
    EXPECT_NEAR(s.pictures[0].w / s.pictures[0].h, 3, 1e-9);
    Draw("#IMG('a.gif'DXmm=10:DYmm=-10:#IMG)", 1000, 1000);
    ASSERT_EQ(s.pictures.size(), 1u);
    EXPECT_LT(s.pictures[0].h, 0);
    EXPECT_NEAR(s.pictures[0].y, 1000 + 10 / 25.4 * 1440 - H(), 1e-6);
}

TEST_F(Lines, UnreadablePictureDrawsThePlaceholder) {
    QTemporaryDir dir;
    WriteFile(dir.filePath("a.gif").toStdString(), "x");
    st.PictureFolder = dir.path().toStdString();
    st.LoadPicture = [](const std::string&, double& w, double& h) {
        w = 100;
        h = 50;
        return true;
    };
    s.picturesDraw = false;
    Draw("#IMG('a.gif'#IMG)");
    ASSERT_FALSE(s.strokes.empty());
    EXPECT_EQ(s.strokes[0].color, Rgb(240, 240, 240));
}

TEST_F(Lines, YellowBandOverTheWholeWidth) {
    Draw("&BC=Amarillo:&FF=REC,0,10:text", 1000, 1000);
    ASSERT_GE(s.strokes.size(), 1u);
    const auto& band = s.strokes[0];
    EXPECT_TRUE(band.filled);
    EXPECT_EQ(band.color, Rgb(255, 255, 0));
    EXPECT_EQ(band.x1, 0);
    EXPECT_NEAR(band.x2, 794 * 15, 1e-6);
    EXPECT_NEAR(band.y2 - band.y1, 10 / 25.4 * 1440, 1e-6);
    EXPECT_EQ(band.y1, 1000);
    EXPECT_DOUBLE_EQ(Find("t")->x, 1001); // the pen goes back
    // The measure pass gives it no width; only "REC" draws.
    EXPECT_DOUBLE_EQ(Measure("&FF=REC,5,5:").width, 0);
    Draw("&FF=BOX,5,5:");
    EXPECT_TRUE(s.strokes.empty());
    Draw("&BC=Azul:&FF=REC,5,0:", 1000, 1000);
    EXPECT_EQ(s.strokes[0].y1, 0);
    EXPECT_NEAR(s.strokes[0].y2, 1123 * 15, 1e-6);
}

TEST_F(Lines, HeadingWithSublines) {
    Draw("#TST(Head#TS)(#ST1(zq#ST1)#TST)");
    ASSERT_TRUE(Find("z"));
    EXPECT_DOUBLE_EQ(Find("z")->size, 8);
    EXPECT_DOUBLE_EQ(Find("H")->size, 12);
    EXPECT_GT(Find("z")->y, Find("H")->y);
    Measure("#TST(Head#TS)(#ST1(zq#ST1)#TST)");
    const LayoutBox one = st.BoxTable[2];
    const double gap = std::max(0.0354 * H(), 1.0);
    EXPECT_NEAR(one.bottom, H() + gap + 1.15 * 160, 1e-9);
    EXPECT_EQ(st.ChildTable[2][0], 3); // the head at place 0
    EXPECT_EQ(st.ChildTable[2][1], 4);
    // A subline wider than the head widens the box.
    Measure("#TST(H#TS)(#ST1(a much longer subline#ST1)#ST2(b#ST2)#TST)");
    EXPECT_GT(st.BoxTable[2].width, 10 * 0.5 * 160);
    Draw("#TST(H#TS)(#ST1(a#ST1)#ST2(b#ST2)#ST3(c#ST3)#TST)");
    EXPECT_LT(Find("a")->y, Find("b")->y);
    EXPECT_LT(Find("b")->y, Find("c")->y);
}

TEST_F(Lines, HeadingSublineInsideAScript) {
    Draw("#POT(x#PB)(#TST(H#TS)(#ST1(q#ST1)#TST)#POT)");
    EXPECT_DOUBLE_EQ(Find("H")->size, 8);
    EXPECT_DOUBLE_EQ(Find("q")->size, 6);
}

TEST_F(Lines, HeadingWithoutFirstSublineShowsTheError) {
    Draw("#TST(Head#TS)(#TST)");
    EXPECT_NE(s.Joined().find("*ERROR*"), std::string::npos);
}

TEST(PictureFiles, GifJpegPngLoadAndCorruptFilesDoNot) {
    EnsureGuiApplication();
    QTemporaryDir dir;
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    ASSERT_TRUE(picture.save(dir.filePath("p.png"), "PNG"));
    ASSERT_TRUE(picture.save(dir.filePath("p.jpg"), "JPEG"));
    WriteFile(dir.filePath("p.gif").toStdString(), kTinyGif);
    WriteFile(dir.filePath("bad.gif").toStdString(), "GIF89a this is not a picture");
    double w = 0, h = 0;
    EXPECT_TRUE(ReadPictureSize(dir.filePath("p.png").toStdString(), w, h));
    EXPECT_EQ(w, 30);
    EXPECT_EQ(h, 20);
    EXPECT_TRUE(ReadPictureSize(dir.filePath("p.jpg").toStdString(), w, h));
    EXPECT_TRUE(ReadPictureSize(dir.filePath("p.gif").toStdString(), w, h));
    EXPECT_EQ(w, 1);
    EXPECT_FALSE(ReadPictureSize(dir.filePath("bad.gif").toStdString(), w, h));

    // Laid out for real: the corrupt file becomes the placeholder, grey with a red cross.
    QImage page(794, 1123, QImage::Format_RGB32);
    page.fill(Qt::white);
    {
        QtSurface surface(page);
        TypesetterState st;
        st.ScreenSurface = &surface;
        st.LoadPicture = ReadPictureSize;
        st.PictureFolder = dir.path().toStdString();
        double size = 12;
        LayoutText(st, "#IMG('BAD.GIF'DXmm=30:DYmm=20:#IMG) #IMG('P.PNG'DXmm=30:DYmm=20:#IMG)", size, surface);
    }
    int grey = 0, red = 0, blue = 0;
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 794; ++x) {
            const QRgb p = page.pixel(x, y);
            if (qRed(p) == 240 && qGreen(p) == 240 && qBlue(p) == 240) ++grey;
            if (qRed(p) > 200 && qGreen(p) < 60 && qBlue(p) < 60) ++red;
            if (qBlue(p) > 200 && qRed(p) < 60) ++blue;
        }
    EXPECT_GT(grey, 1000);
    EXPECT_GT(red, 500);
    EXPECT_GT(blue, 5000); // the PNG, 30 by 40 mm at 96 dpi
}
