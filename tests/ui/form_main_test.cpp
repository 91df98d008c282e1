#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>

#include "core/editing.h"
#include "ui/main_window/form_splash.h"
#include "tests/ui/ui_fixture.h"

namespace {
void Key(FormMain& form, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&form, &press);
}
} // namespace

TEST_F(WindowFixture, AfterLoadOnlyTheFileAndHelpCommandsAreOffered) {
    MakeWindow();
    EXPECT_EQ(ShownTitle(), "Tolmen - Sumforge");
    EXPECT_FALSE(Item("mnu_Edicion")->isVisible());
    EXPECT_FALSE(Item("mnu_COLEC")->isVisible());
    EXPECT_TRUE(Item("mnu_File")->isVisible());
    for (const char* item : {"mnu_File_Print", "mnu_File_Save", "mnu_File_SaveAs"}) EXPECT_FALSE(Item(item)->isEnabled()) << item;
    EXPECT_TRUE(Item("mnu_File_New")->isEnabled());
    EXPECT_TRUE(Item("mnu_File_Open")->isEnabled());
    EXPECT_FALSE(Item("mnu_File_Repetir")->isVisible());
    for (const char* item : {"mnu_PROGRAMADOR_LISTATEMASUB", "mnu_PROGRAMADOR_LISTAASIG", "mnu_PROGRAMADOR_VERIDPROD",
                             "mnu_PROGRAMADOR_LISTAT_S_SIM"})
        EXPECT_FALSE(Item(item)->isVisible()) << item;
    for (int i : {0, 1, 2, 3, 9, 10, 11}) EXPECT_TRUE(ToolVisible(i)) << i;
    for (int i = ToolUndo; i <= ToolPaste; ++i) EXPECT_FALSE(ToolVisible(i)) << i;
    for (int i : {0, 1, 10, 11}) EXPECT_TRUE(ToolEnabled(i)) << i;
    for (int i : {2, 3, 9}) EXPECT_FALSE(ToolEnabled(i)) << i;
    EXPECT_EQ(form->PageLabel()->text(), "");
    EXPECT_TRUE(form->ToolButton(ToolPrint)->toolTip().startsWith("Print ("));
    EXPECT_EQ(form->ToolButton(ToolOpen)->property("tag").toString(), "Abrir");
    EXPECT_EQ(form->ToolButton(ToolHelp)->toolTip(), "Show help");
    EXPECT_FALSE(form->FirstActivation());
    EXPECT_FALSE(form->Sheet()->isVisible());
}

TEST_F(WindowFixture, WithoutTheSettingTheEditingButtonsAreHiddenAndTheItemUnchecked) {
    MakeWindow();
    EXPECT_FALSE(Item("mnu_Ver_BotEdic")->isChecked());
    form->NewCommand();
    for (int i = ToolUndo; i <= ToolPaste; ++i) EXPECT_FALSE(ToolVisible(i)) << i;
    saveAnswer = 2;
    EXPECT_TRUE(form->close());
    EXPECT_EQ(Settings().value("Ver/EdicBotones").toString(), "N");
}

TEST_F(WindowFixture, TheEditingButtonsSettingShowsThemWithACollection) {
    Settings().setValue("Ver/EdicBotones", "S");
    MakeWindow();
    EXPECT_TRUE(Item("mnu_Ver_BotEdic")->isChecked());
    for (int i = ToolUndo; i <= ToolPaste; ++i) EXPECT_FALSE(ToolVisible(i));
    form->NewCommand();
    for (int i = ToolUndo; i <= ToolPaste; ++i) EXPECT_TRUE(ToolVisible(i)) << i;
    // Undo follows the new collection, cut and copy wait for a selection.
    EXPECT_TRUE(ToolEnabled(ToolUndo));
    EXPECT_FALSE(ToolEnabled(ToolRedo));
    EXPECT_FALSE(app->ToolEnabled[ToolCut]);
    EXPECT_FALSE(ToolEnabled(ToolCopy));
    Item("mnu_Ver_BotEdic")->trigger();
    EXPECT_FALSE(Item("mnu_Ver_BotEdic")->isChecked());
    for (int i = ToolUndo; i <= ToolPaste; ++i) EXPECT_FALSE(ToolVisible(i));
    // The buttons stand side by side, 60 pixels apart.
    EXPECT_EQ(form->ToolButton(ToolPrint)->x() - form->ToolButton(ToolRecreate)->x(), 60);
}

TEST_F(WindowFixture, AfterNewTheCollectionIsShownWithItsMenus) {
    MakeWindow();
    form->NewCommand();
    ASSERT_EQ(app->ProblemCount(), 3);
    EXPECT_TRUE(Item("mnu_Edicion")->isVisible());
    EXPECT_TRUE(Item("mnu_COLEC")->isVisible());
    for (const char* item : {"mnu_File_Print", "mnu_File_Save", "mnu_File_SaveAs"})
        EXPECT_TRUE(Item(item)->isEnabled()) << item;
    for (int i : {2, 3, 9}) EXPECT_TRUE(ToolEnabled(i)) << i;
    EXPECT_EQ(form->PageLabel()->text(), QString("Pag. 1/%1").arg(app->PageCount));
    EXPECT_EQ(Item("mnu_Edicion_Undo")->text(), "Undo new collection");
    EXPECT_TRUE(Item("mnu_Edicion_Undo")->isEnabled());
    EXPECT_EQ(Item("mnu_Edicion_Redo")->text(), "Cannot redo");
    EXPECT_EQ(Item("cmnu_Edicion_Undo")->text(), "Undo new collection");
    EXPECT_TRUE(form->Sheet()->isVisible());
    EXPECT_FALSE(form->Sheet()->picture.isNull());
    // Undo brings back the empty state; its redo caption names the command, and the Edit
    // menu stays for it.
    Item("mnu_Edicion_Undo")->trigger();
    EXPECT_EQ(app->ProblemCount(), 0);
    EXPECT_TRUE(Item("mnu_Edicion")->isVisible());
    EXPECT_EQ(Item("mnu_Edicion_Redo")->text(), "Redo new collection");
    Item("mnu_Edicion_Redo")->trigger();
    EXPECT_EQ(app->ProblemCount(), 3);
}

TEST_F(WindowFixture, UndoAndRedoCaptionsFollowAnEdit) {
    wantedProblems = 3;
    MakeWindow();
    form->NewCommand();
    SolutionPositionCommand(*app, 2);
    EXPECT_EQ(Item("mnu_Edicion_Undo")->text(), "Undo solutions together at the end");
    Item("mnu_Edicion_Undo")->trigger();
    EXPECT_EQ(Item("mnu_Edicion_Redo")->text(), "Redo solutions together at the end");
    EXPECT_TRUE(Item("mnu_Edicion_Redo")->isEnabled());
    EXPECT_EQ(Item("mnu_Edicion_Undo")->text(), "Cannot undo");
    Item("mnu_Edicion_Redo")->trigger();
    EXPECT_EQ(Item("mnu_Edicion_Undo")->text(), "Undo solutions together at the end");
    EXPECT_EQ(Item("mnu_Edicion_Redo")->text(), "Cannot redo");
}

TEST_F(WindowFixture, ACancelledOrMissingWizardLeavesNothing) {
    MakeWindow(QString(), false);
    form->NewCommand();
    EXPECT_EQ(app->ProblemCount(), 0);
    EXPECT_FALSE(Item("mnu_Edicion")->isVisible());
    EXPECT_EQ(Item("mnu_Edicion_Undo")->text(), "Cannot undo");
    wizardAccepts = false;
    MakeWindow();
    form->NewCommand();
    EXPECT_EQ(app->ProblemCount(), 0);
}

TEST_F(WindowFixture, SaveAsOpenAndRecentFiles) {
    MakeWindow();
    const QString path = SavedCollection("first.col");
    ASSERT_TRUE(QFile::exists(path));
    EXPECT_EQ(ShownTitle(), "first.col  -  Tolmen - Sumforge");
    EXPECT_EQ(form->RecentPaths().first(), path);
    EXPECT_EQ(form->LastPath(), settingsDir.path());
    EXPECT_FALSE(app->Modified);
    const int pages = app->PageCount;
    form->close();
    EXPECT_EQ(Settings().value("Reciente/Archivo1").toString(), path);
    EXPECT_EQ(Settings().value("Reciente/Titulo1").toString(), "first.col");
    EXPECT_EQ(Settings().value("LastPath/Path").toString(), settingsDir.path());

    // Next start: the entry shows and opens.
    MakeWindow();
    EXPECT_TRUE(form->Item("mnu_File_Reciente_1")->isVisible());
    EXPECT_TRUE(form->Item("zep04")->isVisible());
    EXPECT_FALSE(form->Item("mnu_File_Reciente_2")->isVisible());
    chosenFile = path;
    form->OpenCommand();
    EXPECT_EQ(app->ProblemCount(), 3);
    EXPECT_EQ(app->PageCount, pages);
    EXPECT_EQ(ShownTitle(), "first.col  -  Tolmen - Sumforge");
    EXPECT_TRUE(Item("mnu_Edicion")->isVisible());
    EXPECT_EQ(Item("mnu_Edicion_Undo")->text(), "Cannot undo");
    EXPECT_EQ(form->PageLabel()->text(), QString("Pag. 1/%1").arg(pages));
    // The same path met again, in other letters, moves to the top: no second entry.
    form->AddRecentFile(path.toUpper().toStdString());
    EXPECT_EQ(form->RecentPaths().filter(path, Qt::CaseInsensitive).size(), 1);
}

TEST_F(WindowFixture, ARecentNameMovesToTheTopAndOthersMoveDown) {
    MakeWindow();
    form->AddRecentFile("/a/one.col");
    form->AddRecentFile("/a/two.col");
    form->AddRecentFile("/a/three.col");
    form->AddRecentFile("/a/ONE.col");
    const QStringList paths = form->RecentPaths();
    EXPECT_EQ(paths[0], "/a/ONE.col");
    EXPECT_EQ(paths[1], "/a/three.col");
    EXPECT_EQ(paths[2], "/a/two.col");
    EXPECT_EQ(paths[3], "");
    EXPECT_EQ(form->RecentTitles()[0], "ONE.col");
    // The first entry of an empty list shows only from the next start or when pushed down.
    EXPECT_TRUE(form->Item("mnu_File_Reciente_2")->isVisible());
    for (int i = 0; i < 12; ++i) form->AddRecentFile(QString("/b/%1.col").arg(i).toStdString());
    EXPECT_EQ(form->RecentPaths().size(), 9);
    EXPECT_EQ(form->RecentPaths()[8], "/b/3.col");
}

TEST_F(WindowFixture, ADeletedRecentFileGivesTheMessageAndStaysListed) {
    MakeWindow();
    const QString path = SavedCollection("gone.col");
    form->close();
    QFile::remove(path);
    MakeWindow();
    form->RecentCommand(1);
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0], "Error: File no exist.");
    EXPECT_EQ(form->RecentPaths().first(), path);
    EXPECT_EQ(app->ProblemCount(), 0);
}

TEST_F(WindowFixture, DeletingTheLastProblemReturnsToTheEmptyWindow) {
    wantedProblems = 1;
    MakeWindow();
    form->NewCommand();
    ASSERT_EQ(app->ProblemCount(), 1);
    ASSERT_GT(app->Marks.MarkCount, 0);
    form->SheetMouseMove(QPoint(5, 100));
    const int y = static_cast<int>((app->Marks.MarkTop[0] + app->Marks.MarkBottom[0]) / 2 / 15);
    form->SheetMouseDown(QPoint(5, y), Qt::LeftButton);
    EXPECT_EQ(SelectedProblem(*app), 1);
    Item("mnu_Edicion_Del")->trigger();
    EXPECT_EQ(app->ProblemCount(), 0);
    EXPECT_FALSE(Item("mnu_File_Save")->isEnabled());
    EXPECT_EQ(ShownTitle(), "Tolmen - Sumforge");
    EXPECT_EQ(form->PageLabel()->text(), "");
    for (int i = ToolCut; i <= ToolPaste; ++i) EXPECT_FALSE(ToolVisible(i));
    // The deletion can be taken back: the Edit menu stays with Undo alone usable.
    EXPECT_TRUE(Item("mnu_Edicion")->isVisible());
    EXPECT_FALSE(Item("mnu_Edicion_Del")->isEnabled());
    ASSERT_TRUE(Item("mnu_Edicion_Undo")->isEnabled());
    EXPECT_EQ(Item("mnu_Edicion_Undo")->text(), "Undo delete");
    Item("mnu_Edicion_Undo")->trigger();
    EXPECT_EQ(app->ProblemCount(), 1);
    EXPECT_TRUE(Item("mnu_File_Save")->isEnabled());
    EXPECT_TRUE(Item("mnu_File_Print")->isEnabled());
    EXPECT_TRUE(form->Sheet()->isVisible());
    EXPECT_EQ(form->PageLabel()->text(), "Pag. 1/1");
}

TEST_F(WindowFixture, WithTheEditingButtonsTheEmptyWindowOffersUndoAndRedo) {
    wantedProblems = 1;
    Settings().setValue("Ver/EdicBotones", "S");
    MakeWindow();
    form->NewCommand();
    ASSERT_TRUE(ToolVisible(ToolUndo));
    form->SheetMouseMove(QPoint(5, 100));
    const int y = static_cast<int>((app->Marks.MarkTop[0] + app->Marks.MarkBottom[0]) / 2 / 15);
    form->SheetMouseDown(QPoint(5, y), Qt::LeftButton);
    Item("mnu_Edicion_Cut")->trigger();
    ASSERT_EQ(app->ProblemCount(), 0);
    EXPECT_TRUE(ToolVisible(ToolUndo) && ToolEnabled(ToolUndo));
    EXPECT_TRUE(ToolVisible(ToolRedo) && !ToolEnabled(ToolRedo));
    EXPECT_FALSE(ToolVisible(ToolCut));
    form->ToolButton(ToolUndo)->click();
    EXPECT_EQ(app->ProblemCount(), 1);
    EXPECT_TRUE(ToolEnabled(ToolRedo));
    form->ToolButton(ToolRedo)->click();
    EXPECT_EQ(app->ProblemCount(), 0);
    EXPECT_TRUE(ToolEnabled(ToolUndo));
}

TEST_F(WindowFixture, AMarginClickSelectsHighlightsAndASecondClickClears) {
    wantedProblems = 3;
    MakeWindow();
    form->NewCommand();
    ASSERT_GE(app->Marks.MarkCount, 2);
    const QImage before = form->Sheet()->picture.copy();
    // Over the text the pointer is plain; over the margin it selects.
    form->SheetMouseMove(QPoint(200, 100));
    EXPECT_EQ(form->Sheet()->tag, "Normal");
    form->SheetMouseMove(QPoint(10, 100));
    EXPECT_EQ(form->Sheet()->tag, QString::fromUtf8("Edici\u00F3n"));
    // Between two problems: the band of the earlier one.
    // Just above the next problem's band: the room below the first problem's text.
    const int y = static_cast<int>(app->Marks.MarkBottom[0] / 15) - 1;
    ASSERT_GT(app->Marks.MarkTop[1] - app->Marks.MarkBottom[0], 0);
    ASSERT_LT(app->Marks.MarkTop[1] - app->Marks.MarkBottom[0], 120);
    ASSERT_LE(app->Marks.MarkTop[0], y * 15.0);
    form->SheetMouseDown(QPoint(10, y), Qt::LeftButton);
    EXPECT_EQ(SelectedProblem(*app), 1);
    EXPECT_TRUE(app->Marks.MarkSelected[0]);
    EXPECT_TRUE(app->ToolEnabled[ToolCut]);
    // The page itself is untouched: the selection is drawn over it, in the platform's
    // highlight colour, translucent.
    EXPECT_EQ(form->Sheet()->picture, before);
    ASSERT_EQ(form->Sheet()->selection.size(), 1u);
    const QRectF band = form->Sheet()->selection[0];
    EXPECT_NEAR(band.top(), app->Marks.MarkTop[0] / 15, 1);
    EXPECT_NEAR(band.bottom(), app->Marks.MarkBottom[0] / 15, 1);
    const QImage shown = form->Sheet()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QColor highlight = form->Sheet()->palette().color(QPalette::Active, QPalette::Highlight);
    const int bandY = static_cast<int>(app->Marks.MarkTop[0] / 15) + 2;
    int tinted = 0;
    for (int x = 100; x < 700; x += 7) {
        if ((before.pixel(x, bandY) & 0xFFFFFF) != 0xFFFFFF) continue;
        const QColor c = QColor::fromRgb(shown.pixel(x, bandY));
        // White under the highlight at alpha 70: each channel moves a quarter of the way.
        EXPECT_NEAR(c.red(), 255 - (255 - highlight.red()) * 70 / 255, 3) << x;
        EXPECT_NEAR(c.blue(), 255 - (255 - highlight.blue()) * 70 / 255, 3) << x;
        ++tinted;
    }
    EXPECT_GT(tinted, 20);
    // Left of the margin nothing changes.
    EXPECT_EQ(shown.pixel(5, bandY), before.pixel(5, bandY));
    form->SheetMouseDown(QPoint(10, y), Qt::LeftButton);
    EXPECT_FALSE(app->Marks.MarkSelected[0]);
    EXPECT_TRUE(form->Sheet()->selection.empty());
    EXPECT_FALSE(app->ToolEnabled[ToolCut]);
    // A click on the text clears a selection.
    form->SheetMouseDown(QPoint(10, y), Qt::LeftButton);
    form->SheetMouseMove(QPoint(300, 100));
    form->SheetMouseDown(QPoint(300, y), Qt::LeftButton);
    EXPECT_EQ(SelectedMarkCount(*app), 0);
    EXPECT_EQ(form->Sheet()->picture, before);
}

TEST_F(WindowFixture, TheRightButtonPopsUpTheEditMenuPrepared) {
    MakeWindow();
    form->NewCommand();
    form->SheetMouseDown(QPoint(300, 100), Qt::RightButton);
    EXPECT_TRUE(form->EditPopup()->isVisible());
    EXPECT_FALSE(Item("cmnu_Edicion_Cut")->isEnabled());
    form->EditPopup()->close();
}

TEST_F(WindowFixture, TwoHundredPercentGivesTheLargeSheetAndBothScrollBars) {
    MakeWindow();
    form->NewCommand();
    form->ZoomCommand("mnu_zoom200", 2.0);
    EXPECT_EQ(form->Sheet()->size(), QSize(1592, 2250));
    EXPECT_TRUE(form->VScroll()->isVisible());
    EXPECT_TRUE(form->HScroll()->isVisible());
    EXPECT_TRUE(Item("mnu_zoom200")->isChecked());
    EXPECT_FALSE(Item("mnu_zoomANCHO")->isChecked());
    // The scroll value is the sheet's place.
    form->VScroll()->setValue(form->VScroll()->minimum());
    EXPECT_EQ(form->Sheet()->y(), form->VScroll()->minimum());
    EXPECT_EQ(form->ShadowWidget()->y(), form->VScroll()->minimum() + 2);
    form->HScroll()->setValue(form->HScroll()->minimum());
    EXPECT_EQ(form->Sheet()->x(), form->HScroll()->minimum());
    // The picture is drawn at the larger size.
    EXPECT_EQ(form->Sheet()->picture.width() / form->Sheet()->picture.devicePixelRatio(), 1592);
}

TEST_F(WindowFixture, FitWidthNeverGoesBelowHalf) {
    MakeWindow();
    form->resize(260, 500);
    QApplication::processEvents();
    form->FitWidthCommand();
    EXPECT_DOUBLE_EQ(app->ZoomScale, 0.5);
    form->resize(1200, 800);
    QApplication::processEvents();
    form->FitWidthCommand();
    EXPECT_DOUBLE_EQ(app->ZoomScale, (form->ClientArea()->width() - 20 - 28) / 796.0);
    EXPECT_TRUE(Item("mnu_zoomANCHO")->isChecked());
}

TEST_F(WindowFixture, DownHeldScrollsToTheEndThenTurnsThePage) {
    wantedProblems = 20;
    itemsPerProblem = 8;
    MakeWindow();
    form->NewCommand();
    ASSERT_GE(app->PageCount, 2);
    form->ZoomCommand("mnu_zoom150", 1.5);
    ASSERT_TRUE(form->VScroll()->isVisible());
    int presses = 0;
    while (app->CurrentPage == 1 && presses < 1000) {
        Key(*form, Qt::Key_Down);
        ++presses;
        if (app->CurrentPage == 1) {
            EXPECT_GE(form->VScroll()->value(), form->VScroll()->minimum());
        }
    }
    EXPECT_EQ(app->CurrentPage, 2);
    EXPECT_GT(presses, 2);
    EXPECT_EQ(form->VScroll()->value(), form->VScroll()->maximum());
    EXPECT_EQ(form->PageLabel()->text(), QString("Pag. 2/%1").arg(app->PageCount));
    // Up at the top turns back.
    Key(*form, Qt::Key_Up);
    EXPECT_EQ(app->CurrentPage, 1);
    Key(*form, Qt::Key_End);
    EXPECT_EQ(app->CurrentPage, app->PageCount);
    Key(*form, Qt::Key_Home);
    EXPECT_EQ(app->CurrentPage, 1);
    Key(*form, Qt::Key_PageDown);
    EXPECT_EQ(app->CurrentPage, 2);
    Key(*form, Qt::Key_PageUp);
    EXPECT_EQ(app->CurrentPage, 1);
    // The wheel moves one small change a notch.
    const int before = form->VScroll()->value();
    form->MouseWheel(-120);
    EXPECT_EQ(form->VScroll()->value(), before - form->VScroll()->singleStep());
    form->MouseWheel(120);
    EXPECT_EQ(form->VScroll()->value(), before);
    // While busy, keys and page buttons do nothing.
    app->BusyFlag = true;
    Key(*form, Qt::Key_PageDown);
    form->NextPage();
    EXPECT_EQ(app->CurrentPage, 1);
    app->BusyFlag = false;
}

TEST_F(WindowFixture, HomeAndEndWorkWithASinglePage) {
    wantedProblems = 1;
    itemsPerProblem = 2;
    MakeWindow();
    form->NewCommand();
    ASSERT_EQ(app->PageCount, 1);
    Key(*form, Qt::Key_End);
    EXPECT_EQ(app->CurrentPage, 1);
    Key(*form, Qt::Key_Home);
    EXPECT_EQ(app->CurrentPage, 1);
    EXPECT_EQ(form->PageLabel()->text(), "Pag. 1/1");
}

TEST_F(WindowFixture, ShiftSpaceShowsTheDeveloperItemsAndTheirReports) {
    MakeWindow();
    Key(*form, Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_TRUE(Item("mnu_PROGRAMADOR_LISTAASIG")->isVisible());
    EXPECT_TRUE(Item("mnu_PROGRAMADOR_VERIDPROD")->isVisible());
    Item("mnu_PROGRAMADOR_LISTAASIG")->trigger();
    const QString subjects = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(subjects.startsWith("LISTA DE ASIGNATURAS"));
    EXPECT_TRUE(subjects.contains("Mathematics"));
    EXPECT_TRUE(subjects.contains(" ASIGNATURAS"));
    EXPECT_EQ(messages.back(), "Lista de asignaturas copiadas al portapapeles");
    Item("mnu_PROGRAMADOR_LISTATEMASUB")->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("Temas en esta asignatura = "));
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("KVOL_MATH_NRP"));
    EXPECT_EQ(messages.back(), "Listado de TEMAS copiados al portapapeles");
    Item("mnu_PROGRAMADOR_LISTAT_S_SIM")->trigger();
    EXPECT_FALSE(QGuiApplication::clipboard()->text().contains("KVOL_MATH_NRP"));
    EXPECT_EQ(messages.back(), "Listado de TEMAS (SIN NUMEROS ID) copiados al portapapeles");
    Item("mnu_PROGRAMADOR_VERIDPROD")->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("IDPROD = "));
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("APP.title = Tolmen - Sumforge"));
    EXPECT_EQ(messages.back(), "<Datos copiados al portapapeles>");
}

TEST_F(WindowFixture, ThePasteButtonFollowsTheClipboard) {
    Settings().setValue("Ver/EdicBotones", "S");
    MakeWindow();
    form->NewCommand();
    EXPECT_FALSE(Item("mnu_Edicion_Paste")->isEnabled());
    QGuiApplication::clipboard()->setText("GENPROB:NPROB=001:whatever");
    QApplication::processEvents();
    form->FollowClipboard();
    EXPECT_TRUE(Item("mnu_Edicion_Paste")->isEnabled());
    EXPECT_TRUE(ToolEnabled(ToolPaste));
    QGuiApplication::clipboard()->setText("another program's text");
    QApplication::processEvents();
    form->FollowClipboard();
    EXPECT_FALSE(Item("mnu_Edicion_Paste")->isEnabled());
    EXPECT_FALSE(ToolEnabled(ToolPaste));
}

TEST_F(WindowFixture, APasteFormOnTheClipboardAtStartEnablesPaste) {
    QGuiApplication::clipboard()->setText("GENPROB:NPROB=001:x");
    MakeWindow();
    EXPECT_TRUE(Item("mnu_Edicion_Paste")->isEnabled());
}

TEST_F(WindowFixture, ClosingAsksAboutChangesAndWarnsWhenBusy) {
    MakeWindow();
    form->NewCommand();
    app->Modified = true;
    saveAnswer = 0;
    EXPECT_FALSE(form->close());
    EXPECT_EQ(saveQuestions, 1);
    saveAnswer = 2;
    app->BusyFlag = true;
    EXPECT_FALSE(form->close());
    app->BusyFlag = false;
    EXPECT_TRUE(form->close());
}

TEST_F(WindowFixture, ManualThatCannotBeFoundGivesItsMessage) {
    MakeWindow();
    form->ManualCommand();
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].rfind("Cannot find/open file ", 0), 0u);
    EXPECT_NE(messages[0].find("/Manual_SUMFORGE-RUQ7.pdf"), std::string::npos);
}

TEST_F(WindowFixture, ManualLooksForTheFileTheBuildMakesAndF1OpensIt) {
    MakeWindow();
    EXPECT_EQ(Item("mnu_Help_Manual")->shortcut(), QKeySequence(Qt::Key_F1));
    Item("mnu_Help_Manual")->trigger();
    ASSERT_EQ(messages.size(), 1u);
    // The name the manual's build target writes, from CMake.
    const std::string expected = std::string("/") + SUMFORGE_MANUAL_FILE;
    EXPECT_EQ(messages[0].substr(messages[0].size() - expected.size()), expected);
}

TEST(AboutBox, ShowsTheVersionOfTheProject) {
    FormSplash about("Tolmen - Sumforge");
    const auto* version = about.findChild<QLabel*>("LbVersion");
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version->text().toStdString(), std::string("Version: ") + SUMFORGE_PROJECT_VERSION);
}

// ---------------------------------------------------------------- command line and dropping

TEST(CommandLine, AnUnquotedLineIsOneNameWhateverItHolds) {
    EXPECT_EQ(ReadCommandLine("  /home/a b/my list.col  "), QStringList{"/home/a b/my list.col"});
    EXPECT_EQ(ReadCommandLine("notes.txt"), QStringList{"notes.txt"});
    EXPECT_TRUE(ReadCommandLine("   ").isEmpty());
}

TEST(CommandLine, AQuotedListKeepsTheCollectionsOnly) {
    EXPECT_EQ(ReadCommandLine("\"/x/a.col\" \"/x/b b.COL\"  \"/x/c.txt\" \"/x/d.Col\""),
              (QStringList{"/x/a.col", "/x/b b.COL", "/x/d.Col"}));
    EXPECT_EQ(ReadCommandLine("\" /x/a.col \""), QStringList{"/x/a.col"});
}

TEST_F(WindowFixture, AQuotedListOfThreeOpensTheFirstAndStartsTwoProcesses) {
    MakeWindow();
    const QString a = SavedCollection("a.col");
    const QString b = SavedCollection("b.col");
    const QString c = SavedCollection("c.col");
    form->close();
    MakeWindow("\"" + a + "\" \"" + b + "\" \"" + c + "\"");
    EXPECT_EQ(app->ProblemCount(), 3);
    EXPECT_EQ(QString::fromStdString(app->CurrentFileName), a);
    EXPECT_EQ(started, (QStringList{b, c}));
    EXPECT_TRUE(form->PendingFiles().isEmpty());
}

TEST_F(WindowFixture, AnUnquotedPathWithBlanksOpens) {
    MakeWindow();
    const QString path = SavedCollection("with blanks in it.col");
    form->close();
    MakeWindow(path);
    EXPECT_EQ(app->ProblemCount(), 3);
    EXPECT_EQ(ShownTitle(), "with blanks in it.col  -  Tolmen - Sumforge");
}

TEST_F(WindowFixture, APathWithATildeIsExpandedBeforeOpening) {
    MakeWindow();
    SavedCollection("home.col");
    form->close();
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", settingsDir.path().toUtf8());
    MakeWindow("~/home.col");
    qputenv("HOME", home);
    EXPECT_EQ(QString::fromStdString(app->CurrentFileName), settingsDir.filePath("home.col"));
    EXPECT_EQ(app->ProblemCount(), 3);
}

TEST_F(WindowFixture, DroppingATextFileAndACollectionOpensTheCollection) {
    MakeWindow();
    const QString path = SavedCollection("dropped.col");
    form->close();
    MakeWindow();
    form->DropFiles({settingsDir.filePath("notes.txt"), path});
    EXPECT_EQ(app->ProblemCount(), 3);
    EXPECT_EQ(QString::fromStdString(app->CurrentFileName), path);
    EXPECT_TRUE(started.isEmpty());
}

TEST_F(WindowFixture, DroppingTwentyCollectionsTakesSixteen) {
    MakeWindow();
    const QString path = SavedCollection("many.col");
    QStringList files{path};
    for (int i = 1; i < 20; ++i) files << settingsDir.filePath(QString("other%1.col").arg(i));
    form->DropFiles(files);
    EXPECT_EQ(QString::fromStdString(app->CurrentFileName), path);
    EXPECT_EQ(started.size(), 15);
    EXPECT_EQ(started.last(), settingsDir.filePath("other15.col"));
}

TEST_F(WindowFixture, WithAChangeAndCancelDroppedFilesAreForgotten) {
    MakeWindow();
    const QString path = SavedCollection("kept.col");
    form->NewCommand();
    app->Modified = true;
    const std::string before = app->CurrentFileName;
    saveAnswer = 0;
    form->DropFiles({path, settingsDir.filePath("second.col")});
    EXPECT_EQ(saveQuestions, 1);
    EXPECT_TRUE(form->PendingFiles().isEmpty());
    EXPECT_TRUE(started.isEmpty());
    EXPECT_EQ(app->CurrentFileName, before);
    EXPECT_TRUE(app->Modified);
}
