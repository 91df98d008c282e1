// The window's versions, answer keys and page setup: File > Versions..., Save version as...
// and Page setup..., driven without their dialogs.
#include <QFile>
#include <QProcess>
#include <QRadioButton>
#include <QSpinBox>

#include "core/col_file.h"
#include "core/editing.h"
#include "ui/main_window/page_setup_dialog.h"
#include "ui/main_window/versions_dialog.h"
#include "ui_fixture.h"

namespace {
QString PdfText(const QString& file) {
    QProcess text;
    text.start("pdftotext", {"-layout", file, "-"});
    text.waitForFinished(30000);
    return QString::fromUtf8(text.readAllStandardOutput());
}

QString PdfInfo(const QString& file) {
    QProcess info;
    info.start("pdfinfo", {file});
    info.waitForFinished(30000);
    return QString::fromUtf8(info.readAllStandardOutput());
}

struct VersionsWindowTest : public WindowFixture {
    void MakeCollection() {
        wantedProblems = 6;
        itemsPerProblem = 5;
        title = "Worksheet 3";
        MakeWindow();
        form->NewCommand();
        ASSERT_EQ(app->ProblemCount(), 6);
    }
};
} // namespace

TEST_F(VersionsWindowTest, TheMenuOffersVersionsOnlyWithACollection) {
    MakeWindow();
    ASSERT_NE(Item("mnu_File_Versions"), nullptr);
    ASSERT_NE(Item("mnu_File_SaveVersion"), nullptr);
    ASSERT_NE(Item("mnu_File_PageSetup"), nullptr);
    EXPECT_FALSE(Item("mnu_File_Versions")->isEnabled());
    EXPECT_FALSE(Item("mnu_File_SaveVersion")->isEnabled());
    form->NewCommand();
    EXPECT_TRUE(Item("mnu_File_Versions")->isEnabled());
    EXPECT_TRUE(Item("mnu_File_SaveVersion")->isEnabled());
    EXPECT_TRUE(Item("mnu_File_PageSetup")->isEnabled());
}

TEST_F(VersionsWindowTest, ExportWritesEachVersionAndItsKeyAndLeavesTheCollectionAlone) {
    MakeCollection();
    const CollectionValue before = CollectionOf(*app);
    const bool modified = app->Modified;
    VersionChoice choice;
    choice.count = 3;
    choice.action = VersionChoice::Action::Pdf;
    const QString base = settingsDir.filePath("sheet");
    RunVersionChoice(*form, choice, base);
    EXPECT_TRUE(messages.empty());
    for (const char* letter : {"A", "B", "C"}) {
        const QString sheet = base + "-" + letter + ".pdf";
        const QString key = base + "-" + letter + "-key.pdf";
        ASSERT_TRUE(QFile::exists(sheet)) << letter;
        ASSERT_TRUE(QFile::exists(key)) << letter;
        EXPECT_TRUE(PdfText(sheet).contains(QString("Worksheet 3 \u2014 ") + letter)) << letter;
        EXPECT_TRUE(PdfText(key).contains(QString("Worksheet 3 \u2014 ") + letter + " \u2014 Answer key")) << letter;
        EXPECT_FALSE(PdfText(key).contains("Calculate")) << letter;
    }
    EXPECT_FALSE(QFile::exists(base + "-D.pdf"));
    EXPECT_NE(PdfText(base + "-A.pdf"), PdfText(base + "-B.pdf"));
    EXPECT_EQ(CollectionOf(*app), before);
    EXPECT_EQ(app->Modified, modified);
}

TEST_F(VersionsWindowTest, KeysOnlyWritesNoSheets) {
    MakeCollection();
    VersionChoice choice;
    choice.count = 2;
    choice.sheets = false;
    choice.action = VersionChoice::Action::Pdf;
    const QString base = settingsDir.filePath("keys");
    RunVersionChoice(*form, choice, base);
    EXPECT_TRUE(QFile::exists(base + "-B-key.pdf"));
    EXPECT_FALSE(QFile::exists(base + "-B.pdf"));
}

TEST_F(VersionsWindowTest, TheDialogReadsTheChoice) {
    VersionChoice choice;
    VersionsDialog dialog(choice);
    dialog.findChild<QSpinBox*>("SpinVersions")->setValue(30);
    dialog.findChild<QRadioButton*>("OptKeys")->setChecked(true);
    dialog.Finish(VersionChoice::Action::Pdf);
    EXPECT_EQ(choice.count, 26);
    EXPECT_FALSE(choice.sheets);
    EXPECT_TRUE(choice.keys);
    EXPECT_EQ(choice.action, VersionChoice::Action::Pdf);
    dialog.findChild<QRadioButton*>("OptBoth")->setChecked(true);
    dialog.Finish(VersionChoice::Action::None);
    EXPECT_TRUE(choice.sheets && choice.keys);
    EXPECT_EQ(choice.action, VersionChoice::Action::None);
}

TEST_F(VersionsWindowTest, SaveVersionAsWritesACollectionThatOpens) {
    MakeCollection();
    const std::string kept = app->CurrentFileName;
    const QString file = settingsDir.filePath("w-B.col");
    ASSERT_TRUE(SaveVersionAs(*form, 'B', file));
    EXPECT_EQ(app->CurrentFileName, kept);
    ApplicationState opened;
    opened.CurrentFileName = file.toStdString();
    ASSERT_TRUE(OpenFile(opened));
    EXPECT_EQ(opened.Settings.Title, "Worksheet 3 \u2014 B");
    ASSERT_EQ(opened.ProblemCount(), app->ProblemCount());
    GeneratorHub hub;
    const CollectionValue b = MakeVersion(hub, CollectionOf(*app), 'B');
    for (int i = 1; i <= opened.ProblemCount(); ++i) {
        EXPECT_EQ(opened.Problems[i].Statement, b.problems[static_cast<std::size_t>(i - 1)].Statement);
        EXPECT_NE(opened.Problems[i].Statement, app->Problems[i].Statement);
    }
}

TEST_F(VersionsWindowTest, PageSetupIsKeptAndRecomposesForTheNewPaper) {
    MakeCollection();
    app->Modified = false;
    const QSize a4 = form->Sheet()->size();
    const int a4Pages = app->PageCount;
    ApplyPageSetup(*form, {PaperSize::Letter, NameLinePlace::EveryPage});
    EXPECT_EQ(app->Page.paper, PaperSize::Letter);
    EXPECT_GT(form->Sheet()->width(), a4.width());
    EXPECT_LT(form->Sheet()->height(), a4.height());
    EXPECT_GE(app->PageCount, a4Pages);
    EXPECT_FALSE(app->Modified);
    EXPECT_EQ(Settings().value("Page/Paper").toString(), "letter");
    EXPECT_EQ(Settings().value("Page/NameLine").toInt(), 2);
    const PageSetup read = ReadPageSetup();
    EXPECT_EQ(read.paper, PaperSize::Letter);
    EXPECT_EQ(read.nameLine, NameLinePlace::EveryPage);
    // Printing to a PDF file takes the paper too.
    form->SetPrinter(kPdfPrinterName);
    form->printDialog = [](PrintOptions& options) {
        options.accepted = true;
        options.pageFlags.fill(true);
    };
    form->pdfTarget = settingsDir.filePath("letter.pdf");
    form->PrintCommand();
    EXPECT_TRUE(PdfInfo(form->pdfTarget).contains("612 x 792 pts"));
    EXPECT_TRUE(PdfText(form->pdfTarget).contains("Name:"));
    // A new window reads the setup back.
    MakeWindow();
    EXPECT_EQ(app->Page.paper, PaperSize::Letter);
}

TEST(PageSetupDefaults, LetterWhereTheUsMeasuresAreUsed) {
    EXPECT_EQ(DefaultPaper(QLocale(QLocale::English, QLocale::UnitedStates)), PaperSize::Letter);
    EXPECT_EQ(DefaultPaper(QLocale(QLocale::German, QLocale::Germany)), PaperSize::A4);
    EXPECT_EQ(DefaultPaper(QLocale(QLocale::English, QLocale::UnitedKingdom)), PaperSize::A4);
}
