// What a teacher expects of any desktop program: standard keys, the modified mark, the
// preview, a PDF export, where dialogs start, keyboard use, dragging a problem, English texts.
#include <QAbstractButton>
#include <QCheckBox>
#include <QDragEnterEvent>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <set>

#include "core/editing.h"
#include "ui/main_window/frm_imprimir.h"
#include "ui/properties/frm_prop_col.h"
#include "ui/settings_pages/settings_controls.h"
#include "ui/wizard/frm_wizard.h"
#include "ui_fixture.h"
#include "wizard/dialog_fixture.h"

namespace {

struct Desktop : public WindowFixture {
    QByteArray Bytes(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    std::vector<std::string> Statements() {
        std::vector<std::string> all;
        for (int p = 1; p <= app->ProblemCount(); ++p) all.push_back(app->Problems[p].Statement);
        return all;
    }
    void Activate() {
        QApplication::setActiveWindow(form.get());
        form->activateWindow();
        QCoreApplication::processEvents();
    }
};

// Every text a person reads in a widget and in the menus it owns.
QStringList ShownTexts(QWidget* root) {
    QStringList texts;
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.prepend(root);
    for (QWidget* w : widgets) {
        texts << w->windowTitle() << w->toolTip();
        if (auto* label = qobject_cast<QLabel*>(w)) texts << label->text();
        if (auto* button = qobject_cast<QAbstractButton*>(w)) texts << button->text();
        if (auto* group = qobject_cast<QGroupBox*>(w)) texts << group->title();
        for (QAction* action : w->actions())
            if (action->isVisible()) texts << action->text() << action->toolTip();
    }
    return texts;
}

// Words of the Spanish build's windows; none of them belongs in the English build.
const char* const kSpanishWords[] = {
    "Aceptar", "Cancelar", "Imprimir", "Impresora", "P\u00E1ginas", "P\u00E1gina", "Cerrar", "Intercalar",
    "copias", "Soluci\u00F3n", "Soluciones", "P\u00E1g", "Versi\u00F3n", "Temas", "teor\u00EDa", "Asignatura",
    "Siguiente", "Anterior", "Ayuda", "Abrir", "Guardar", "Nueva", "Deshacer", "Rehacer", "Cortar", "Copiar",
    "Pegar", "Edici\u00F3n", "Colecci\u00F3n", "Archivo", "Asistente", "Propiedades", "Salir", "Ver", "Mover",
};

void ExpectNoSpanish(QWidget* root, const char* where) {
    for (const QString& text : ShownTexts(root)) {
        if (text.isEmpty()) continue;
        for (const char* word : kSpanishWords) {
            const QRegularExpression whole("\\b" + QRegularExpression::escape(QString::fromUtf8(word)) + "\\b");
            EXPECT_FALSE(whole.match(text).hasMatch()) << where << ": \"" << text.toStdString() << "\"";
        }
    }
}

} // namespace

TEST_F(Desktop, EveryCommandHasThePlatformsStandardKey) {
    MakeWindow();
    const std::pair<const char*, QKeySequence::StandardKey> items[] = {
        {"mnu_File_New", QKeySequence::New},       {"mnu_File_Open", QKeySequence::Open},
        {"mnu_File_Save", QKeySequence::Save},     {"mnu_File_SaveAs", QKeySequence::SaveAs},
        {"mnu_File_Print", QKeySequence::Print},   {"mnu_File_Close", QKeySequence::Close},
        {"mnu_File_Exit", QKeySequence::Quit},     {"mnu_Edicion_Undo", QKeySequence::Undo},
        {"mnu_Edicion_Redo", QKeySequence::Redo},  {"mnu_Edicion_Cut", QKeySequence::Cut},
        {"mnu_Edicion_Copy", QKeySequence::Copy},  {"mnu_Edicion_Paste", QKeySequence::Paste},
        {"mnu_Edicion_Del", QKeySequence::Delete}, {"mnu_Help_Manual", QKeySequence::HelpContents},
        {"mnu_zoomIn", QKeySequence::ZoomIn},      {"mnu_zoomOut", QKeySequence::ZoomOut},
    };
    for (const auto& [name, key] : items) {
        ASSERT_NE(Item(name), nullptr) << name;
        const QList<QKeySequence> wanted = QKeySequence::keyBindings(key);
        EXPECT_FALSE(Item(name)->shortcuts().isEmpty()) << name;
        for (const QKeySequence& sequence : wanted)
            EXPECT_TRUE(Item(name)->shortcuts().contains(sequence)) << name << " " << sequence.toString().toStdString();
    }
    // Where the platform names no key, the common one.
    if (QKeySequence::keyBindings(QKeySequence::SaveAs).isEmpty())
        EXPECT_EQ(Item("mnu_File_SaveAs")->shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    EXPECT_TRUE(Item("mnu_Help_Manual")->shortcuts().contains(QKeySequence(Qt::Key_F1)));
    EXPECT_EQ(Item("mnu_zoom100")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_0));
    EXPECT_EQ(Item("mnu_Ver_PagePrev")->shortcut(), QKeySequence(Qt::Key_PageUp));
    EXPECT_EQ(Item("mnu_Ver_PageNext")->shortcut(), QKeySequence(Qt::Key_PageDown));
    EXPECT_EQ(Item("mnu_Ver_PageFirst")->shortcut(), QKeySequence(Qt::Key_Home));
    EXPECT_EQ(Item("mnu_Ver_PageLast")->shortcut(), QKeySequence(Qt::Key_End));
    // No key is claimed twice in the window: an ambiguous key does nothing at all.
    std::set<QString> seen;
    for (QAction* action : form->findChildren<QAction*>())
        for (const QKeySequence& sequence : action->shortcuts())
            EXPECT_TRUE(seen.insert(sequence.toString()).second) << sequence.toString().toStdString();
}

TEST_F(Desktop, TheKeysActInTheWindow) {
    wantedProblems = 4;
    MakeWindow();
    Activate();
    QTest::keyClick(form.get(), Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(app->ProblemCount(), 4);
    const auto made = Statements();
    // Delete removes the selected problem; Undo brings it back.
    form->SheetMouseMove(QPoint(10, static_cast<int>(app->Marks.MarkTop[0] / 15) + 2));
    form->SheetMouseDown(QPoint(10, static_cast<int>(app->Marks.MarkTop[0] / 15) + 2), Qt::LeftButton);
    ASSERT_EQ(SelectedProblem(*app), 1);
    QTest::keyClick(form.get(), Qt::Key_Delete);
    EXPECT_EQ(app->ProblemCount(), 3);
    QTest::keyClick(form.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Statements(), made);
    // Zoom keys.
    QTest::keyClick(form.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(app->ZoomScale, 1.0);
    QTest::keyClick(form.get(), Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(app->ZoomScale, 1.5);
    QTest::keyClick(form.get(), Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(form.get(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(app->ZoomScale, 0.75);
}

TEST_F(Desktop, TheTitleNamesTheFileAndMarksUnsavedChanges) {
    MakeWindow();
    EXPECT_EQ(ShownTitle(), "Tolmen - Sumforge");
    EXPECT_FALSE(form->isWindowModified());
    form->NewCommand();
    EXPECT_TRUE(form->isWindowModified());
    EXPECT_EQ(ShownTitle(), "Untitled*  -  Tolmen - Sumforge");
    chosenFile = settingsDir.filePath("lesson.col");
    form->SaveAsCommand();
    EXPECT_FALSE(form->isWindowModified());
    EXPECT_EQ(ShownTitle(), "lesson.col  -  Tolmen - Sumforge");
    // A move is a change: the mark comes back until the next save.
    form->MoveProblemTo(1, 2);
    EXPECT_TRUE(form->isWindowModified());
    EXPECT_EQ(ShownTitle(), "lesson.col*  -  Tolmen - Sumforge");
    form->SaveCommand();
    EXPECT_FALSE(form->isWindowModified());
    // Closing the collection leaves the bare program name.
    form->CloseCollectionCommand();
    EXPECT_EQ(app->ProblemCount(), 0);
    EXPECT_EQ(ShownTitle(), "Tolmen - Sumforge");
}

TEST_F(Desktop, APreviewShowsThePagesThatPrint) {
    wantedProblems = 30;
    MakeWindow();
    form->NewCommand();
    ASSERT_GE(app->PageCount, 2);
    int previewPages = -1;
    QString title;
    QTimer::singleShot(0, [&] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "PrintPreviewDialog" && w->isVisible()) {
                title = w->windowTitle();
                if (auto* preview = w->findChild<QPrintPreviewWidget*>()) previewPages = preview->pageCount();
                static_cast<QDialog*>(w)->reject();
            }
    });
    form->PrintPreviewCommand();
    EXPECT_EQ(title, "Print Preview");
    EXPECT_EQ(previewPages, app->PageCount);
    EXPECT_EQ(app->CurrentPage, 1);
}

TEST_F(Desktop, ExportAsPdfWritesAPdfAndNeverOverACollection) {
    MakeWindow();
    form->NewCommand();
    QString askedTitle;
    QString answer;
    form->pdfDialog = [&](const QString& title, const QString&) {
        askedTitle = title;
        return answer;
    };
    answer = settingsDir.filePath("handout");
    form->ExportPdfCommand();
    EXPECT_EQ(askedTitle, "Export as PDF");
    EXPECT_TRUE(Bytes(settingsDir.filePath("handout.pdf")).startsWith("%PDF"));
    EXPECT_FALSE(QFile::exists(settingsDir.filePath("handout")));
    // A collection, by its name or by its content, is never written over.
    chosenFile = settingsDir.filePath("kept.col");
    form->SaveAsCommand();
    const QByteArray kept = Bytes(chosenFile);
    ASSERT_TRUE(kept.startsWith("#CABECERA("));
    answer = chosenFile;
    form->ExportPdfCommand();
    EXPECT_EQ(Bytes(chosenFile), kept);
    const QString disguised = settingsDir.filePath("disguised.pdf");
    ASSERT_TRUE(QFile::copy(chosenFile, disguised));
    answer = disguised;
    form->ExportPdfCommand();
    EXPECT_EQ(Bytes(disguised), kept);
    EXPECT_EQ(messages.size(), 2u);
}

TEST_F(Desktop, FileDialogsStartInTheDocumentsFolderThenTheLastOne) {
    MakeWindow();
    QString folderAsked;
    form->fileDialog = [&](const QString&, const QString& folder, const QString&, bool) {
        folderAsked = folder;
        return chosenFile;
    };
    chosenFile.clear();
    form->OpenCommand();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_EQ(folderAsked, QFileInfo(documents).isDir() ? documents : QDir::homePath());
    EXPECT_NE(folderAsked, ProgramDataFolder());
    form->NewCommand();
    chosenFile = settingsDir.filePath("one.col");
    form->SaveAsCommand();
    chosenFile.clear();
    form->OpenCommand();
    EXPECT_EQ(folderAsked, settingsDir.path());
}

TEST_F(Desktop, TheEmptyWindowSaysWhatToDoFirst) {
    MakeWindow();
    auto* start = form->findChild<QWidget*>("StartScreen");
    ASSERT_NE(start, nullptr);
    EXPECT_TRUE(start->isVisible());
    auto* text = start->findChild<QLabel*>("LbStart");
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text(), QString::fromUtf8("File \u2192 New to make a collection, or open a .col file"));
    // Inside the work area, below the toolbar.
    EXPECT_TRUE(form->ClientArea()->rect().contains(start->geometry()));
    EXPECT_GE(start->y(), kToolbarHeight);
    auto* startNew = start->findChild<QPushButton*>("CmdStartNew");
    ASSERT_NE(startNew, nullptr);
    ASSERT_NE(start->findChild<QPushButton*>("CmdStartOpen"), nullptr);
    startNew->click();
    EXPECT_EQ(app->ProblemCount(), 3);
    EXPECT_FALSE(start->isVisible());
}

TEST_F(Desktop, AProblemDraggedByItsNumberBoxMovesAsOneUndoableStep) {
    wantedProblems = 3;
    MakeWindow();
    form->NewCommand();
    ASSERT_GE(app->Marks.MarkCount, 3);
    const auto made = Statements();
    // The number box is a handle; the text far right of it is not.
    const int firstY = static_cast<int>(app->Marks.MarkTop[0] / 15) + 4;
    EXPECT_EQ(form->ProblemAtNumberBox(QPoint(70, firstY)), 1);
    EXPECT_EQ(form->ProblemAtNumberBox(QPoint(400, firstY)), 0);
    // Problem 1 dropped on the third one's band.
    QMimeData data;
    data.setData(kProblemMimeType, "1");
    const int thirdY = static_cast<int>((app->Marks.MarkTop[2] + app->Marks.MarkBottom[2]) / 30);
    // As a real drag arrives: it enters the sheet, then drops.
    QDragEnterEvent enter(QPoint(300, thirdY), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form->Sheet(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(300, thirdY), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form->Sheet(), &drop);
    EXPECT_EQ(Statements(), (std::vector<std::string>{made[1], made[2], made[0]}));
    EXPECT_EQ(Item("mnu_Edicion_Undo")->text().toStdString().find("Undo"), 0u);
    UndoCommand(*app);
    EXPECT_EQ(Statements(), made);
    RedoCommand(*app);
    EXPECT_EQ(Statements(), (std::vector<std::string>{made[1], made[2], made[0]}));
    // A drop of something else, or on the problem itself, moves nothing.
    QMimeData self;
    self.setData(kProblemMimeType, "3");
    QDragEnterEvent enterSame(QPoint(300, thirdY), Qt::MoveAction, &self, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form->Sheet(), &enterSame);
    QDropEvent same(QPointF(300, thirdY), Qt::MoveAction, &self, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form->Sheet(), &same);
    EXPECT_EQ(Statements(), (std::vector<std::string>{made[1], made[2], made[0]}));
}

TEST_F(Desktop, NoSpanishWordInTheEnglishWindows) {
    MakeWindow();
    form->NewCommand();
    ExpectNoSpanish(form.get(), "main window");
    ExpectNoSpanish(form->EditPopup(), "edit popup");
    FrmPropCol properties(*app, form.get());
    ExpectNoSpanish(&properties, "properties");
    PrintOptions options;
    FrmImprimir print(options, 1, form->PrinterNames(), form->CurrentPrinter(), form.get());
    ExpectNoSpanish(&print, "print dialog");
    FrmWizard wizard(*app, QString(), form.get());
    ExpectNoSpanish(&wizard, "wizard");
}

TEST(DesktopDialogs, PropertiesTabsAreReachedWithTabAndCtrlTab) {
    CollectionBench b;
    FrmPropCol d(b.app);
    d.show();
    QApplication::setActiveWindow(&d);
    QCoreApplication::processEvents();
    EXPECT_EQ(d.CurrentTab(), 1);
    // The five tabs, then the controls, then the buttons, in that order.
    QWidget* w = d.LblTAB[1];
    for (int tab = 2; tab <= 5; ++tab) {
        w = w->nextInFocusChain();
        while (!(w->focusPolicy() & Qt::TabFocus)) w = w->nextInFocusChain();
        EXPECT_EQ(w, d.LblTAB[tab]) << tab;
    }
    EXPECT_TRUE(d.LblTAB[3]->focusPolicy() & Qt::TabFocus);
    QTest::keyClick(&d, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(d.CurrentTab(), 2);
    QTest::keyClick(&d, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(d.CurrentTab(), 3);
    QTest::keyClick(&d, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(d.CurrentTab(), 2);
    // A tab with the focus opens with Space and steps with the arrows.
    d.LblTAB[5]->setFocus();
    QTest::keyClick(d.LblTAB[5], Qt::Key_Space);
    EXPECT_EQ(d.CurrentTab(), 5);
    QTest::keyClick(d.LblTAB[5], Qt::Key_Up);
    EXPECT_EQ(d.CurrentTab(), 4);
    EXPECT_TRUE(d.LblTAB[4]->hasFocus());
    // The OK button reads as the English build says it.
    EXPECT_EQ(d.CmdNext->text(), "&OK");
}

TEST(DesktopDialogs, TheColourStripStandsBesideItsCaption) {
    CollectionBench b;
    FrmPropCol d(b.app);
    d.show();
    d.ShowTab(4);
    QCoreApplication::processEvents();
    QLabel* caption = nullptr;
    for (QLabel* label : d.Frame1[4]->findChildren<QLabel*>())
        if (label->text() == "Highlight color for problem number") caption = label;
    ASSERT_NE(caption, nullptr);
    QWidget* strip = d.controls->Picture2;
    const QRect c(caption->mapTo(&d, QPoint(0, 0)), caption->size());
    const QRect s(strip->mapTo(&d, QPoint(0, 0)), strip->size());
    // On the caption's line, to its right.
    EXPECT_GE(s.left(), c.right());
    EXPECT_LE(std::abs(s.center().y() - c.center().y()), 4);
}

TEST(DesktopDialogs, TheSubjectGridStepsWithArrowsAndTabFromTheKeyboard) {
    TemporarySettings settings;
    settings.Set("Showini", "N");
    ApplicationState app{GeneratorHub({FakeCatalogueModule()})};
    FrmWizard w(app, "");
    w.show();
    QApplication::setActiveWindow(&w);
    QCoreApplication::processEvents();
    ASSERT_GE(w.ImageASIG.size(), 3u);
    w.ChooseSubject(1);
    // The keys go where a real key goes: to the widget with the focus, the grid's page.
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    EXPECT_EQ(focus, w.Frame1[2]);
    QTest::keyClick(focus, Qt::Key_Right);
    EXPECT_EQ(w.LstAsig->currentRow(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(w.LstAsig->currentRow(), 2);
    EXPECT_EQ(QApplication::focusWidget(), w.Frame1[2]);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_EQ(w.LstAsig->currentRow(), 1);
    // A button clicked with the mouse keeps the arrows working too.
    w.CmdNext->setFocus();
    QTest::keyClick(w.CmdNext, Qt::Key_Right);
    EXPECT_EQ(w.LstAsig->currentRow(), 2);
}
