// Copy as Picture and the export items of the window.
#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QSvgRenderer>

#include "core/col_file.h"
#include "core/editing.h"
#include "ui/main_window/export_actions.h"
#include "ui_fixture.h"

namespace {
void SelectFirstProblem(WindowFixture& f) {
    f.form->SheetMouseMove(QPoint(5, 100));
    const int y = static_cast<int>((f.app->Marks.MarkTop[0] + f.app->Marks.MarkBottom[0]) / 2 / 15);
    f.form->SheetMouseDown(QPoint(5, y), Qt::LeftButton);
}

QAction* Named(WindowFixture& f, const char* name) { return f.form->findChild<QAction*>(name); }
} // namespace

TEST_F(WindowFixture, CopyAsPicturePutsPngSvgAndTheProgramsTextOnTheClipboard) {
    wantedProblems = 2;
    MakeWindow();
    form->NewCommand();
    SelectFirstProblem(*this);
    ASSERT_EQ(SelectedProblem(*app), 1);
    QAction* copy = Named(*this, "mnu_Edicion_CopyPicture");
    ASSERT_NE(copy, nullptr);
    copy->trigger();
    const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
    ASSERT_NE(mime, nullptr);
    ASSERT_TRUE(mime->hasFormat("image/png"));
    ASSERT_TRUE(mime->hasFormat("image/svg+xml"));
    EXPECT_EQ(mime->text().toStdString(), ProblemClipboardText(app->Problems[1]));
    QImage png;
    ASSERT_TRUE(png.loadFromData(mime->data("image/png"), "PNG"));
    // 300 dpi: the text width of an A4 page is over 2000 pixels; a problem line is tall.
    EXPECT_NEAR(png.dotsPerMeterX(), 300 / 0.0254, 1);
    EXPECT_GT(png.height(), 60);
    EXPECT_FALSE(png.hasAlphaChannel() && qAlpha(png.pixel(0, 0)) == 0);
    QSvgRenderer svg(mime->data("image/svg+xml"));
    EXPECT_TRUE(svg.isValid());
    // Paste still takes the problem back.
    EXPECT_TRUE(Item("mnu_Edicion_Paste")->isEnabled());
}

TEST_F(WindowFixture, CopyAsPictureWithSolutionIsTallerAndTransparentWhenSet) {
    wantedProblems = 1;
    MakeWindow();
    form->NewCommand();
    SelectFirstProblem(*this);
    ASSERT_EQ(SelectedProblem(*app), 1);
    Named(*this, "mnu_Edicion_CopyPicture")->trigger();
    QImage plain;
    ASSERT_TRUE(plain.loadFromData(QGuiApplication::clipboard()->mimeData()->data("image/png"), "PNG"));
    Named(*this, "mnu_Edicion_PictureSolution")->setChecked(true);
    Named(*this, "mnu_Edicion_PictureTransparent")->setChecked(true);
    Named(*this, "mnu_Edicion_CopyPicture")->trigger();
    QImage both;
    ASSERT_TRUE(both.loadFromData(QGuiApplication::clipboard()->mimeData()->data("image/png"), "PNG"));
    EXPECT_GT(both.height(), plain.height());
    ASSERT_TRUE(both.hasAlphaChannel());
    // Some pixel is fully transparent (the background), some is ink.
    bool clear = false, ink = false;
    for (int y = 0; y < both.height(); y += 3)
        for (int x = 0; x < both.width(); x += 3) {
            const QRgb c = both.pixel(x, y);
            clear = clear || qAlpha(c) == 0;
            ink = ink || (qAlpha(c) == 255 && qGray(c) < 100);
        }
    EXPECT_TRUE(clear);
    EXPECT_TRUE(ink);
    // The checks are kept.
    EXPECT_TRUE(Settings().value("Export/PictureSolution").toBool());
    EXPECT_TRUE(Settings().value("Export/PictureTransparent").toBool());
}

TEST_F(WindowFixture, CopyAsPictureWithoutSelectionLeavesTheClipboard) {
    MakeWindow();
    form->NewCommand();
    QGuiApplication::clipboard()->setText("kept");
    Named(*this, "mnu_Edicion_CopyPicture")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "kept");
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasFormat("image/png"));
}

TEST_F(WindowFixture, ExportLatexAndPicturesFromTheFileMenu) {
    wantedProblems = 2;
    MakeWindow();
    form->NewCommand();
    auto* actions = form->findChild<ExportActions*>("ExportActions");
    ASSERT_NE(actions, nullptr);
    const QString tex = settingsDir.filePath("out/sheet");
    QDir().mkpath(settingsDir.filePath("out"));
    actions->texDialog = [&](const QString&, const QString&, const QString&) { return tex; };
    Named(*this, "mnu_File_Export_LaTeX")->trigger();
    QFile written(tex + ".tex");
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    EXPECT_TRUE(text.contains("\\documentclass"));
    EXPECT_TRUE(text.contains("\\end{document}"));

    const QString folder = settingsDir.filePath("pictures");
    actions->picturesDialog = [&](QString& chosen, PictureExportOptions& options) {
        chosen = folder;
        options.svg = true;
        options.png = true;
        return true;
    };
    Named(*this, "mnu_File_Export_Pictures")->trigger();
    EXPECT_TRUE(QFile::exists(folder + "/problem-001.svg"));
    EXPECT_TRUE(QFile::exists(folder + "/problem-002.png"));
    EXPECT_TRUE(messages.empty());
}
