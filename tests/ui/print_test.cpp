#include <QCheckBox>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProcess>
#include <QRadioButton>
#include <QRegularExpression>

#include "tests/ui/ui_fixture.h"
#include "ui/main_window/frm_imprimir.h"

namespace {
std::array<bool, kPageFlagCount> Flags(const std::string& text, bool& ok) {
    std::array<bool, kPageFlagCount> flags{};
    ok = ReadPageList(text, flags);
    return flags;
}

std::vector<int> Pages(const std::array<bool, kPageFlagCount>& flags) {
    std::vector<int> pages;
    for (int i = 0; i < kPageFlagCount; ++i)
        if (flags[i]) pages.push_back(i + 1);
    return pages;
}

int PdfPageCount(const QString& file) {
    QProcess info;
    info.start("pdfinfo", {file});
    info.waitForFinished(30000);
    const QString out = QString::fromUtf8(info.readAllStandardOutput());
    const auto match = QRegularExpression("Pages:\\s+(\\d+)").match(out);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

QString PdfPageText(const QString& file, int page) {
    QProcess text;
    text.start("pdftotext", {"-f", QString::number(page), "-l", QString::number(page), "-layout", file, "-"});
    text.waitForFinished(30000);
    return QString::fromUtf8(text.readAllStandardOutput()).simplified();
}
} // namespace

TEST(PageList, ARangeBackwardsFlagsTheSamePages) {
    bool ok = false;
    EXPECT_EQ(Pages(Flags("3-1", ok)), (std::vector<int>{1, 2, 3}));
    EXPECT_TRUE(ok);
}

TEST(PageList, RepeatedPagesAreOneSet) {
    bool ok = false;
    EXPECT_EQ(Pages(Flags("1, 1, 2", ok)), (std::vector<int>{1, 2}));
    EXPECT_TRUE(ok);
    EXPECT_EQ(Pages(Flags(" 4 ,, 2-3 , 9", ok)), (std::vector<int>{2, 3, 4, 9}));
    EXPECT_TRUE(ok);
}

TEST(PageList, PagesOutsideTheTableAreRefused) {
    bool ok = true;
    Flags("5-", ok);
    EXPECT_FALSE(ok);
    Flags("0", ok);
    EXPECT_FALSE(ok);
    Flags("200", ok);
    EXPECT_FALSE(ok);
    Flags("199", ok);
    EXPECT_TRUE(ok);
    Flags("198-200", ok);
    EXPECT_FALSE(ok);
}

struct PrintDialogTest : public ::testing::Test {
    PrintOptions options;
    std::vector<QString> messages;
    int beeps = 0;
    std::unique_ptr<FrmImprimir> dialog;
    void SetUp() override {
        dialog = std::make_unique<FrmImprimir>(options, 4, QStringList{"Office", kPdfPrinterName}, kPdfPrinterName);
        dialog->message = [this](const QString& text, const QString&) { messages.push_back(text); };
        dialog->beep = [this] { ++beeps; };
    }
    template <class T> T* Child(const char* name) { return dialog->findChild<T*>(name); }
};

TEST_F(PrintDialogTest, StartsWithOneCopyOfAllPages) {
    EXPECT_EQ(Child<QLineEdit>("Text1")->text(), " 1");
    EXPECT_TRUE(Child<QRadioButton>("Option1")->isChecked());
    EXPECT_EQ(dialog->ChosenPrinter(), kPdfPrinterName);
    dialog->CmdImprimirClick();
    EXPECT_TRUE(options.accepted);
    EXPECT_EQ(options.copies, 1);
    EXPECT_EQ(Pages(options.pageFlags).size(), static_cast<std::size_t>(kPageFlagCount));
    EXPECT_TRUE(messages.empty());
}

TEST_F(PrintDialogTest, CopiesOutsideOneTo1999StayInTheDialog) {
    Child<QLineEdit>("Text1")->setText("2000");
    dialog->CmdImprimirClick();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0], "The number of copies isn't valid. Max. 1999 copies.");
    EXPECT_TRUE(options.accepted);
    Child<QLineEdit>("Text1")->setText("0");
    dialog->CmdImprimirClick();
    EXPECT_EQ(messages.size(), 2u);
    Child<QLineEdit>("Text1")->setText("1999");
    dialog->CmdImprimirClick();
    EXPECT_EQ(messages.size(), 2u);
    EXPECT_EQ(options.copies, 1999);
}

TEST_F(PrintDialogTest, TheCopiesTextAndItsSpinStayInStep) {
    auto* text = Child<QLineEdit>("Text1");
    text->setText("");
    EXPECT_EQ(text->text(), "1");
    text->setText("7");
    QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QApplication::sendEvent(text, &up);
    EXPECT_EQ(text->text(), "8");
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(text, &down);
    QApplication::sendEvent(text, &down);
    EXPECT_EQ(text->text(), "6");
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    QApplication::sendEvent(text, &letter);
    EXPECT_EQ(text->text(), "6");
}

TEST_F(PrintDialogTest, PageListMessages) {
    Child<QLineEdit>("Text2")->setText("   ");
    EXPECT_TRUE(Child<QRadioButton>("Option2")->isChecked());
    dialog->CmdImprimirClick();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0], "You must type page numbers and/or page ranges.");
    EXPECT_EQ(beeps, 1);
    Child<QLineEdit>("Text2")->setText("2, 5-");
    dialog->CmdImprimirClick();
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(messages[1], "The page numbers and/or page ranges are not valid.");
    EXPECT_EQ(beeps, 2);
    Child<QLineEdit>("Text2")->setText("2, 5-6");
    Child<QCheckBox>("ChkCOLLATE")->setChecked(true);
    dialog->CmdImprimirClick();
    EXPECT_EQ(messages.size(), 2u);
    EXPECT_EQ(Pages(options.pageFlags), (std::vector<int>{2, 5, 6}));
    EXPECT_TRUE(options.collate);
}

TEST_F(PrintDialogTest, CurrentPageAndCancel) {
    Child<QRadioButton>("Option3")->setChecked(true);
    dialog->CmdImprimirClick();
    EXPECT_EQ(Pages(options.pageFlags), std::vector<int>{4});
    dialog->CmdCancelarClick();
    EXPECT_FALSE(options.accepted);
}

// Printing to the PDF entry, the pages in the order they came out.
struct PrintingTest : public WindowFixture {
    QString pdf;
    std::vector<QString> pageTexts; // text of each page of the whole collection

    void Print(const QString& pages, int copies, bool collate, const QString& target) {
        form->printDialog = [&](PrintOptions& options) {
            FrmImprimir dialog(options, app->CurrentPage, form->PrinterNames(), form->CurrentPrinter());
            dialog.message = [](const QString& text, const QString&) { ADD_FAILURE() << text.toStdString(); };
            if (pages == "current") dialog.findChild<QRadioButton*>("Option3")->setChecked(true);
            else if (!pages.isEmpty()) dialog.findChild<QLineEdit*>("Text2")->setText(pages);
            dialog.findChild<QLineEdit*>("Text1")->setText(QString::number(copies));
            dialog.findChild<QCheckBox*>("ChkCOLLATE")->setChecked(collate);
            dialog.CmdImprimirClick();
        };
        form->pdfTarget = target;
        form->PrintCommand();
    }

    // The place of each printed page in the document, found by its text.
    std::vector<int> Order(const QString& file) {
        std::vector<int> order;
        const int count = PdfPageCount(file);
        for (int i = 1; i <= count; ++i) {
            const QString text = PdfPageText(file, i);
            int found = 0;
            for (std::size_t k = 0; k < pageTexts.size(); ++k)
                if (pageTexts[k] == text) found = static_cast<int>(k) + 1;
            order.push_back(found);
        }
        return order;
    }

    void MakePrintedCollection() {
        wantedProblems = 20;
        itemsPerProblem = 8;
        MakeWindow();
        form->SetPrinter(kPdfPrinterName);
        form->NewCommand();
        ASSERT_GE(app->PageCount, 3);
        const QString all = settingsDir.filePath("all.pdf");
        Print("", 1, false, all);
        ASSERT_EQ(PdfPageCount(all), app->PageCount);
        for (int i = 1; i <= app->PageCount; ++i) pageTexts.push_back(PdfPageText(all, i));
        for (std::size_t i = 1; i < pageTexts.size(); ++i) ASSERT_NE(pageTexts[i], pageTexts[i - 1]);
    }
};

TEST_F(PrintingTest, TheTwoToThreeRangeTwiceCollatedGivesFourPagesInSets) {
    MakePrintedCollection();
    const int page = app->CurrentPage;
    const double zoom = app->ZoomScale;
    const QString file = settingsDir.filePath("collated.pdf");
    Print("2-3", 2, true, file);
    EXPECT_EQ(PdfPageCount(file), 4);
    EXPECT_EQ(Order(file), (std::vector<int>{2, 3, 2, 3}));
    // The screen comes back to where it was.
    EXPECT_EQ(app->CurrentPage, page);
    EXPECT_DOUBLE_EQ(app->ZoomScale, zoom);
    // The page number stands on the printed page.
    EXPECT_TRUE(PdfPageText(file, 1).contains("2"));
}

TEST_F(PrintingTest, UncollatedCopiesRepeatEachPage) {
    MakePrintedCollection();
    const QString file = settingsDir.filePath("uncollated.pdf");
    Print("3-1", 2, false, file);
    EXPECT_EQ(Order(file), (std::vector<int>{1, 1, 2, 2, 3, 3}));
    const QString once = settingsDir.filePath("once.pdf");
    Print("1, 1, 2", 1, false, once);
    EXPECT_EQ(Order(once), (std::vector<int>{1, 2}));
}

TEST_F(PrintingTest, PagesPastTheTableAlwaysPrint) {
    wantedProblems = 2;
    itemsPerProblem = 2;
    MakeWindow();
    form->SetPrinter(kPdfPrinterName);
    form->NewCommand();
    ASSERT_EQ(app->PageCount, 1);
    // A document of 201 pages: pages 200 and 201 stand past the flags.
    app->PageCount = 201;
    const QString file = settingsDir.filePath("long.pdf");
    Print("current", 1, false, file);
    EXPECT_EQ(PdfPageCount(file), 3);
    EXPECT_TRUE(PdfPageText(file, 2).contains("200"));
    EXPECT_TRUE(PdfPageText(file, 3).contains("201"));
}

TEST_F(WindowFixture, WithoutACollectionPrintDoesNothing) {
    MakeWindow();
    bool asked = false;
    form->printDialog = [&](PrintOptions&) { asked = true; };
    form->PrintCommand();
    EXPECT_FALSE(asked);
    EXPECT_FALSE(Item("mnu_File_Print")->isEnabled());
}

TEST_F(WindowFixture, ThePdfEntryIsAlwaysOffered) {
    MakeWindow();
    EXPECT_EQ(form->PrinterNames().last(), kPdfPrinterName);
    form->SetPrinter(kPdfPrinterName);
    EXPECT_EQ(form->ToolButton(ToolPrint)->toolTip(), QString("Print (") + kPdfPrinterName + ")");
}

TEST_F(PrintingTest, WriteProtectedPdfFileIsKeptAndSaysWhy) {
    MakePrintedCollection();
    const QString file = settingsDir.filePath("kept.pdf");
    {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write("the old PDF");
    }
    QFile::setPermissions(file, QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    messages.clear();
    Print("", 1, false, file);
    QFile in(file);
    ASSERT_TRUE(in.open(QIODevice::ReadOnly));
    EXPECT_EQ(in.readAll(), QByteArray("the old PDF"));
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].rfind("We are sorry, can't save the file: Write-protected.", 0), 0u) << messages[0];
}
