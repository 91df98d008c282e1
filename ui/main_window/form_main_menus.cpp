#include "ui/main_window/form_main.h"

#include <QAction>
#include <QDir>
#include <QFrame>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

#include "core/collection.h"
#include "core/editing.h"
#include "ui/main_window/export_actions.h"
#include "ui/main_window/form_splash.h"
#include "ui/main_window/page_setup_dialog.h"
#include "ui/main_window/versions_dialog.h"

// The menus, the toolbar and the state of their items.

namespace {
struct ToolInfo {
    const char* tag;
    const char* tip;
    const char* caption;
    QStyle::StandardPixmap icon;
};
const ToolInfo kTools[kToolCount] = {
    {"Abrir", "Open a saved problems collection", "Open", QStyle::SP_DialogOpenButton},
    {"Nueva", "Start the wizard to create a new problems collection", "New", QStyle::SP_FileIcon},
    {"Guardar", "Save the current problems collection", "Save", QStyle::SP_DialogSaveButton},
    {"Regenerar", "Create a new collection/problem of the same type", "Re-create", QStyle::SP_BrowserReload},
    {"Deshacer", "Undo last action", "Undo", QStyle::SP_ArrowBack},
    {"Rehacer", "Redo last action", "Redo", QStyle::SP_ArrowForward},
    {"Cortar", "Cut the selection to the clipboard", "Cut", QStyle::SP_DialogDiscardButton},
    {"Copiar", "Copy the selection to the clipboard", "Copy", QStyle::SP_FileDialogDetailedView},
    {"Pegar", "Paste a problem from the clipboard", "Paste", QStyle::SP_FileDialogContentsView},
    {"Imprimir", "Print", "Print", QStyle::SP_DriveFDIcon},
    {"Zoom", "Set the zoom ", "Zoom", QStyle::SP_FileDialogListView},
    {"Ayuda", "Show help", "Help", QStyle::SP_DialogHelpButton},
};
} // namespace

QAction* FormMain::AddItem(QMenu* menu, const QString& name, const QString& caption, std::function<void()> handler) {
    auto* action = menu->addAction(caption);
    action->setObjectName(name);
    if (handler) connect(action, &QAction::triggered, this, [handler] { handler(); });
    items_[name] = action;
    return action;
}

QAction* FormMain::Item(const QString& name) const {
    const auto found = items_.find(name);
    if (found != items_.end()) return found->second;
    const auto menu = menus_.find(name);
    return menu != menus_.end() ? menu->second->menuAction() : nullptr;
}


namespace {
// The platform's keys for a command; where the platform names none (Save As on some), the
// key that most desktops use.
QList<QKeySequence> StandardKeys(QKeySequence::StandardKey key, QKeyCombination fallback) {
    QList<QKeySequence> keys = QKeySequence::keyBindings(key);
    if (keys.isEmpty()) keys << QKeySequence(fallback);
    return keys;
}
} // namespace

// One function per menu, so that a new item has one obvious home.
void FormMain::BuildMenus() {
    BuildFileMenu();
    BuildEditMenu();
    new ExportActions(*this, menus_["mnu_File"], zep04_, menus_["mnu_Edicion"], Item("mnu_Edicion_Paste"));
    BuildCollectionMenu();
    BuildViewMenu();
    BuildHelpMenu();
}

QMenu* FormMain::AddMenu(const QString& name, const QString& caption) {
    QMenu* m = menuBar()->addMenu(caption);
    m->setObjectName(name);
    menus_[name] = m;
    return m;
}

void FormMain::BuildFileMenu() {
    QMenu* file = AddMenu("mnu_File", "&File");
    AddItem(file, "mnu_File_New", "&New collection...", [this] { NewCommand(); })->setShortcuts(StandardKeys(QKeySequence::New, Qt::CTRL | Qt::Key_N));
    AddItem(file, "mnu_File_Open", "&Open...", [this] { OpenCommand(); })->setShortcuts(StandardKeys(QKeySequence::Open, Qt::CTRL | Qt::Key_O));
    AddItem(file, "mnu_File_Repetir", "&Re-create collection", [this] { RecreateCollectionCommand(app_); });
    file->addSeparator();
    AddItem(file, "mnu_File_Save", "&Save", [this] { SaveCommand(); })->setShortcuts(StandardKeys(QKeySequence::Save, Qt::CTRL | Qt::Key_S));
    AddItem(file, "mnu_File_SaveAs", "Save &as...", [this] { SaveAsCommand(); })->setShortcuts(StandardKeys(QKeySequence::SaveAs, Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    file->addSeparator();
    AddItem(file, "mnu_File_SaveVersion", "Save &version as...", [this] { SaveVersionCommand(*this); });
    file->addSeparator();
    AddItem(file, "mnu_File_PageSetup", "Page set&up...", [this] { PageSetupCommand(*this); });
    AddItem(file, "mnu_File_Print", "&Print...", [this] { PrintCommand(); })->setShortcuts(StandardKeys(QKeySequence::Print, Qt::CTRL | Qt::Key_P));
    AddItem(file, "mnu_File_PrintPreview", "Print Pre&view...", [this] { PrintPreviewCommand(); });
    AddItem(file, "mnu_File_ExportPdf", "Export as P&DF...", [this] { ExportPdfCommand(); });
    AddItem(file, "mnu_File_Versions", "&Versions...", [this] { VersionsCommand(*this); });
    zep04_ = file->addSeparator();
    zep04_->setObjectName("zep04");
    items_["zep04"] = zep04_;
    for (int i = 1; i <= kRecentCount; ++i)
        recent_[i] = AddItem(file, QString("mnu_File_Reciente_%1").arg(i), QString(), [this, i] { RecentCommand(i); });
    file->addSeparator();
    AddItem(file, "mnu_File_Close", "&Close", [this] { CloseCollectionCommand(); })->setShortcuts(StandardKeys(QKeySequence::Close, Qt::CTRL | Qt::Key_W));
    AddItem(file, "mnu_File_Exit", "&Exit", [this] { close(); })->setShortcuts(StandardKeys(QKeySequence::Quit, Qt::CTRL | Qt::Key_Q));
}

void FormMain::BuildEditMenu() {
    QMenu* edit = AddMenu("mnu_Edicion", "&Edit");
    cmnuEdicion_ = new QMenu("CEdit", this);
    cmnuEdicion_->setObjectName("cmnu_edicion");
    menus_["cmnu_edicion"] = cmnuEdicion_;
    struct EditItem {
        const char* ending;
        const char* caption;
        std::function<void()> handler;
        bool separatorAfter;
        QKeySequence::StandardKey key = QKeySequence::UnknownKey;
    };
    const std::vector<EditItem> editItems = {
        {"Undo", "Cannot undo", [this] { UndoCommand(app_); }, false, QKeySequence::Undo},
        {"Redo", "Cannot redo", [this] { RedoCommand(app_); }, true, QKeySequence::Redo},
        {"Cut", "Cu&t", [this] { CutCommand(app_); }, false, QKeySequence::Cut},
        {"Copy", "&Copy", [this] { CopyCommand(app_); }, false, QKeySequence::Copy},
        {"Paste", "&Paste", [this] { PasteCommand(app_); }, false, QKeySequence::Paste},
        {"Del", "&Delete", [this] { DeleteCommand(app_); }, true, QKeySequence::Delete},
        {"Mover_0", "Move to the &beginning", [this] { MoveCommand(app_, 0); }, false},
        {"Mover_1", "Move to the &end", [this] { MoveCommand(app_, 1); }, false},
        {"Mover_2", "Move &up", [this] { MoveCommand(app_, 2); }, false},
        {"Mover_3", "Move do&wn", [this] { MoveCommand(app_, 3); }, true},
        {"REGEN1", "R&e-create this problem", [this] { RecreateProblemCommand(app_); }, false},
        {"INS", "In&sert another similar problem", [this] { InsertSimilarCommand(app_); }, false},
    };
    for (const auto& e : editItems) {
        const QString name = QString("mnu_Edicion_") + e.ending;
        QAction* item = AddItem(edit, name, e.caption, e.handler);
        // Only the menu's item owns the key: two actions with one key would block each other.
        if (e.key != QKeySequence::UnknownKey) item->setShortcuts(e.key);
        // The popup's twin calls the menu's item.
        AddItem(cmnuEdicion_, "c" + name, e.caption, [this, name] { Item(name)->trigger(); });
        if (e.separatorAfter) {
            edit->addSeparator();
            cmnuEdicion_->addSeparator();
        }
    }
    cmnuEdicion_->addSeparator();
    AddItem(cmnuEdicion_, "cmnu_Edicion_COLEC_Prop", "Properties of the collection...",
            [this] { Item("mnu_COLEC_Prop")->trigger(); });
    connect(edit, &QMenu::aboutToShow, this, [this] { PrepareEditMenu(app_); });
}

void FormMain::BuildCollectionMenu() {
    QMenu* colec = AddMenu("mnu_COLEC", "&Collection");
    AddItem(colec, "mnu_COLEC_RECREAR", "Re-create collection", [this] { RecreateCollectionCommand(app_); });
    colec->addSeparator();
    const char* positions[4] = {"No solutions", "Solutions after each problem", "Solutions together at the end",
                                "Solutions in a separate page"};
    for (int i = 0; i < 4; ++i) {
        QAction* a = AddItem(colec, kPositionItems[i], positions[i], [this, i] { SolutionPositionCommand(app_, i); });
        a->setCheckable(true);
    }
    colec->addSeparator();
    AddItem(colec, "mnu_COLEC_Prop", "Properties of the collection...", [this] { CollectionPropertiesCommand(app_); });
}

void FormMain::BuildViewMenu() {
    QMenu* view = AddMenu("mnu_Ver", "&View");
    QAction* botEdic = AddItem(view, "mnu_Ver_BotEdic", "Editing buttons", [this] { ToggleEditButtons(); });
    botEdic->setCheckable(true);
    // The handler toggles the check itself.
    disconnect(botEdic, &QAction::triggered, nullptr, nullptr);
    connect(botEdic, &QAction::triggered, this, [this, botEdic] {
        botEdic->setChecked(!botEdic->isChecked());
        ToggleEditButtons();
    });
    zoomMenu_ = view->addMenu("Zoom");
    zoomMenu_->setObjectName("mnu_zoom");
    menus_["mnu_zoom"] = zoomMenu_;
    QAction* fit = AddItem(zoomMenu_, "mnu_zoomANCHO", "Fit to page width", [this] { FitWidthCommand(); });
    fit->setCheckable(true);
    const std::pair<const char*, double> zooms[5] = {
        {"mnu_zoom50", 0.5}, {"mnu_zoom75", 0.75}, {"mnu_zoom100", 1.0}, {"mnu_zoom150", 1.5}, {"mnu_zoom200", 2.0}};
    for (const auto& [name, scale] : zooms) {
        QAction* a = AddItem(zoomMenu_, name, QString("%1 %").arg(scale * 100), [this, name, scale] {
            ZoomCommand(name, scale);
        });
        a->setCheckable(true);
    }
    Item("mnu_zoom100")->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    zoomMenu_->addSeparator();
    QAction* zoomIn = AddItem(zoomMenu_, "mnu_zoomIn", "Zoom &in", [this] { ZoomStep(+1); });
    // Ctrl+= as well: on most keyboards "+" needs Shift.
    zoomIn->setShortcuts(QKeySequence::keyBindings(QKeySequence::ZoomIn) << QKeySequence(Qt::CTRL | Qt::Key_Equal));
    AddItem(zoomMenu_, "mnu_zoomOut", "Zoom &out", [this] { ZoomStep(-1); })->setShortcuts(QKeySequence::ZoomOut);

    view->addSeparator();
    AddItem(view, "mnu_Ver_PagePrev", "&Previous page", [this] { PreviousPage(); })->setShortcut(Qt::Key_PageUp);
    AddItem(view, "mnu_Ver_PageNext", "&Next page", [this] { NextPage(); })->setShortcut(Qt::Key_PageDown);
    AddItem(view, "mnu_Ver_PageFirst", "&First page", [this] { FirstPage(); })->setShortcut(Qt::Key_Home);
    AddItem(view, "mnu_Ver_PageLast", "&Last page", [this] { LastPage(); })->setShortcut(Qt::Key_End);
}

void FormMain::BuildHelpMenu() {
    helpMenu_ = AddMenu("mnu_Help", "&Help");
    QAction* manual = AddItem(helpMenu_, "mnu_Help_Manual", "User's Manual (PDF document)...", [this] { ManualCommand(); });
    QList<QKeySequence> help = QKeySequence::keyBindings(QKeySequence::HelpContents);
    if (help.isEmpty()) help << QKeySequence(Qt::Key_F1);
    manual->setShortcuts(help);
    AddItem(helpMenu_, "mnu_Ayuda_WEB", "Sumforge on the web...", [this] {
        const QString readme = QDir(ProgramFolder()).filePath("README.md");
        if (!openUrl(QUrl::fromLocalFile(readme).toString()))
            showMessage("Cannot open the Sumforge page " + readme, "Error", MessageIcon::Warning);
    });
    helpMenu_->addSeparator();
    AddItem(helpMenu_, "mnu_Help_About", "&About...", [this] {
        FormSplash about(QString::fromStdString(app_.ApplicationTitle), this);
        about.Timer1()->stop();
        about.exec();
    });
    helpMenu_->addSeparator();
    AddItem(helpMenu_, "mnu_PROGRAMADOR_LISTAASIG", "Lista Asignaturas", [this] { DeveloperListSubjects(); });
    AddItem(helpMenu_, "mnu_PROGRAMADOR_LISTAT_S_SIM", "Lista Temas y subtemas (SIN #ID)",
            [this] { DeveloperListTopics(false); });
    AddItem(helpMenu_, "mnu_PROGRAMADOR_LISTATEMASUB", "Lista Temas y subtemas", [this] { DeveloperListTopics(true); });
    AddItem(helpMenu_, "mnu_PROGRAMADOR_VERIDPROD", "Ver IDPROD APP etc", [this] { DeveloperProductData(); });
}


void FormMain::BuildToolbar() {
    toolbar_ = new QWidget(client_);
    toolbar_->setObjectName("tbToolbar1");
    toolbar_->setAutoFillBackground(true);
    // 15529204: red 244, green 244, blue 236.
    toolbar_->setStyleSheet("#tbToolbar1 { background: rgb(244, 244, 236); border-bottom: 1px solid rgb(210, 210, 200); }"
                            "QToolButton { border: 1px solid transparent; border-radius: 6px; font-size: 11px; "
                            "color: rgb(40, 44, 52); }"
                            "QToolButton:hover { background: rgb(226, 232, 240); border-color: rgb(190, 200, 215); }"
                            "QToolButton:pressed { background: rgb(205, 215, 230); }"
                            "QToolButton:disabled { color: rgb(160, 160, 160); }");
    for (int i = 0; i < kToolCount; ++i) {
        auto* button = new QToolButton(toolbar_);
        button->setObjectName(QString("PicToolB_%1").arg(i));
        button->setProperty("tag", kTools[i].tag);
        button->setToolTip(kTools[i].tip);
        button->setText(kTools[i].caption);
        button->setIcon(style()->standardIcon(kTools[i].icon));
        button->setIconSize(QSize(24, 24));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, this, [this, i] { ToolClick(i); });
        tools_[i] = button;
    }
}

void FormMain::ToolClick(int index) {
    const QString tag = tools_[index]->property("tag").toString();
    if (tag == "Abrir") OpenCommand();
    else if (tag == "Nueva") NewCommand();
    else if (tag == "Guardar") SaveCommand();
    else if (tag == "Regenerar") RecreateButton(app_);
    else if (tag == "Deshacer") UndoCommand(app_);
    else if (tag == "Rehacer") RedoCommand(app_);
    else if (tag == "Cortar") CutCommand(app_);
    else if (tag == "Copiar") CopyCommand(app_);
    else if (tag == "Pegar") PasteCommand(app_);
    else if (tag == "Imprimir") PrintCommand();
    else if (tag == "Zoom") zoomMenu_->popup(tools_[index]->mapToGlobal(QPoint(0, tools_[index]->height())));
    else if (tag == "Ayuda") helpMenu_->popup(tools_[index]->mapToGlobal(QPoint(0, tools_[index]->height())));
}

void FormMain::SetCaption(const std::string& item, const std::string& caption) {
    const QString name = QString::fromStdString(item);
    if (QAction* a = Item(name)) a->setText(QString::fromStdString(caption));
    if (name.startsWith("mnu_Edicion_"))
        if (QAction* twin = Item("c" + name)) twin->setText(QString::fromStdString(caption));
}
void FormMain::SetEnabled(const std::string& item, bool enabled) {
    const QString name = QString::fromStdString(item);
    if (name == "tbToolbar1") {
        toolbar_->setEnabled(enabled);
        return;
    }
    if (QAction* a = Item(name)) a->setEnabled(enabled);
    if (name.startsWith("mnu_Edicion_"))
        if (QAction* twin = Item("c" + name)) twin->setEnabled(enabled);
}
void FormMain::SetVisible(const std::string& item, bool visible) {
    const QString name = QString::fromStdString(item);
    if (name == "tbToolbar1") {
        toolbar_->setVisible(visible);
        return;
    }
    if (QAction* a = Item(name)) a->setVisible(visible);
}
void FormMain::SetChecked(const std::string& item, bool checked) {
    if (QAction* a = Item(QString::fromStdString(item))) {
        a->setCheckable(true);
        a->setChecked(checked);
    }
}
void FormMain::SetToolTip(int index, const std::string& text) {
    if (index >= 0 && index < kToolCount) tools_[index]->setToolTip(QString::fromStdString(text));
}

void FormMain::ActualizarBotones() {
    int x = 0;
    for (int i = 0; i < kToolCount; ++i) {
        if (app_.ToolVisible[i]) {
            tools_[i]->setGeometry(x + 20, 1, 60, 53);
            tools_[i]->setEnabled(app_.ToolEnabled[i]);
            x += 60;
        }
        tools_[i]->setVisible(app_.ToolVisible[i]);
    }
    // The sheet, its shadow and its scroll bar exist only with a collection.
    const bool shown = app_.ProblemCount() > 0;
    picture1_->setVisible(shown);
    shapeShadow_->setVisible(shown);
    startScreen_->setVisible(!shown && !app_.BusyFlag);
    vscroll1_->setVisible(shown && verticalNeeded_);
    for (const char* item : {"mnu_File_PrintPreview", "mnu_File_ExportPdf", "mnu_File_Close"})
        Item(item)->setEnabled(shown && !app_.BusyFlag);
    // The keys of the edit items act without the menu having been opened first.
    PrepareEditMenu(app_);
    RefreshTitle();
}

void FormMain::ToggleEditButtons() {
    QAction* item = Item("mnu_Ver_BotEdic");
    item->setChecked(!item->isChecked());
    app_.EditButtonsShown = item->isChecked();
    if (app_.ProblemCount() > 0)
        for (int i = ToolUndo; i <= ToolPaste; ++i) app_.ToolVisible[i] = app_.EditButtonsShown;
    ActualizarBotones();
}

void FormMain::FollowClipboard() {
    QAction* paste = Item("mnu_Edicion_Paste");
    const bool holds = HasText() && IsProblemClipboardText(Text());
    if (paste->isEnabled() && !holds) {
        SetEnabled("mnu_Edicion_Paste", false);
        app_.ToolEnabled[ToolPaste] = false;
        ActualizarBotones();
    } else if (!paste->isEnabled() && holds) {
        SetEnabled("mnu_Edicion_Paste", true);
        app_.ToolEnabled[ToolPaste] = true;
        ActualizarBotones();
    }
}

