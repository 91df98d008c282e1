#pragma once
#include <QFrame>
#include <QImage>
#include <QMainWindow>
#include <QStringList>
#include <QTimer>
#include <vector>
#include <array>
#include <functional>
#include <map>
#include <memory>

#include "core/application_state.h"
#include "core/tool_slots.h"
#include "core/page_render.h"
#include "typesetter/qt_surface.h"
#include "typesetter/typesetter_state.h"
#include "ui/dialog_launcher.h"
#include "ui/main_window/frm_imprimir.h"

class QAction;
class QLabel;
class QMenu;
class QScrollBar;
class QToolButton;
class QWidget;

class QSettings;
class QPagedPaintDevice;

inline constexpr int kRecentCount = 9;
inline constexpr int kPendingCapacity = 16;
inline constexpr int kToolbarHeight = 55;

// Reads a command line into the waiting files: one name, or a quoted list of .col files.
QStringList ReadCommandLine(const QString& line);

class FormMain;

// What a problem dragged on the sheet carries: its number.
inline constexpr const char* kProblemMimeType = "application/x-sumforge-problem";

// The visible sheet: keeps its own picture, so that repaints cost nothing.
class SheetView : public QWidget {
    Q_OBJECT
public:
    explicit SheetView(FormMain& form, QWidget* parent);
    QImage picture;
    // "Normal" over the text, "Edición" over the left margin.
    QString tag = "Normal";
    // The selected problem's bands, drawn over the picture.
    std::vector<QRectF> selection;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    FormMain& form_;
    QPoint dragStart_;
    int dragProblem_ = 0;
};

// The main window. It is the clipboard, menus, page view and measuring surface of the
// collection core.
class FormMain : public QMainWindow, public ClipboardPort, public MenuPort, public WindowPort, public PageMeasurePort {
    Q_OBJECT
public:
    // commandLine: the program's arguments after its name, joined as the system gave them.
    FormMain(ApplicationState& app, DialogLauncher launcher, const QString& commandLine = QString(),
             QWidget* parent = nullptr);
    ~FormMain() override;

    ApplicationState& App() { return app_; }
    // The title of the program's own message boxes.
    QString ProgramName() const { return QString::fromStdString(app_.ApplicationTitle); }
    QAction* Item(const QString& name) const;
    QToolButton* ToolButton(int index) const { return tools_[index]; }
    SheetView* Sheet() const { return picture1_; }
    QScrollBar* VScroll() const { return vscroll1_; }
    QScrollBar* HScroll() const { return hscroll1_; }
    QLabel* PageLabel() const { return lbPage_; }
    QWidget* ShadowWidget() const { return shapeShadow_; }
    QWidget* ClientArea() const { return client_; }
    QMenu* EditPopup() const { return cmnuEdicion_; }

    // What would otherwise need a person or the system; tests replace them.
    // Returns 0 Cancel, 1 Yes, 2 No.
    std::function<int(const QString& text)> askSave;
    std::function<bool()> askAbortBusy;
    std::function<void(const QString& text, const QString& title, MessageIcon icon)> showMessage;
    std::function<QString(const QString& title, const QString& folder, const QString& proposed, bool save)> fileDialog;
    // The file dialog of the "PDF file" printer: its own filter and folder.
    std::function<QString(const QString& title, const QString& folder)> pdfDialog;
    // Whether an existing file may be replaced; text is the question.
    std::function<bool(const QString& text)> askReplace;
    std::function<bool(const QString& file)> startProcess;
    std::function<bool(const QString& url)> openUrl;
    // The print dialog; by default frmImprimir modally.
    std::function<void(PrintOptions& options)> printDialog;
    // Where the "PDF file" entry writes; asked when empty.
    QString pdfTarget;

    // Commands.
    void NewCommand();
    void OpenCommand();
    void SaveCommand();
    void SaveAsCommand();
    void RecentCommand(int index);
    void PrintCommand();
    void ZoomCommand(const QString& item, double scale);
    void FitWidthCommand();
    void PreviousPage();
    void NextPage();
    void FirstPage();
    void LastPage();
    // One step along the zoom items: +1 larger, -1 smaller.
    void ZoomStep(int direction);
    void PrintPreviewCommand();
    void ExportPdfCommand();
    // Leaves the collection (after the saving question) for the empty start screen.
    void CloseCollectionCommand();
    // The title bar: file name or "Untitled", and the modified mark while changes are unsaved.
    void RefreshTitle();
    void ToggleEditButtons();
    void ManualCommand();
    void ShowDeveloperItems();
    void DeveloperListSubjects();
    void DeveloperListTopics(bool withIds);
    void DeveloperProductData();
    void OpenDRAGDROPFiles_Command();
    void DropFiles(const QStringList& files);
    void FollowClipboard();
    void ResizeHandler();
    // True when the collection may be left: saved, unchanged, or not to be saved.
    bool AskSaving();

    // The printer chosen for printing, by device name.
    QString CurrentPrinter() const { return printer_; }
    void SetPrinter(const QString& device);
    QStringList PrinterNames() const;

    QStringList& PendingFiles() { return pendingFiles_; }
    QStringList RecentPaths() const;
    QStringList RecentTitles() const;
    QString LastPath() const { return lastPath_; }
    QString LastPdfPath() const { return lastPdfPath_; }
    bool FirstActivation() const { return firstActivation_; }

    // ClipboardPort
    bool HasText() override;
    std::string Text() override;
    void Clear() override;
    void SetText(const std::string& text) override;
    // MenuPort
    void SetCaption(const std::string& item, const std::string& caption) override;
    void SetEnabled(const std::string& item, bool enabled) override;
    void SetVisible(const std::string& item, bool visible) override;
    void SetChecked(const std::string& item, bool checked) override;
    void SetToolTip(int index, const std::string& text) override;
    void ActualizarBotones() override;
    // WindowPort
    void SetCaption(const std::string& caption) override;
    void SetPageLabel(const std::string& text) override;
    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
    void YieldEvents() override;
    void SetBusy(bool busy) override;
    void SetWaitCursor(bool wait) override;
    void DrawCurrentPage() override;
    int VerticalScroll() override;
    void SetVerticalScroll(int value) override;
    void ScrollToTop() override;
    void RunSaveAs() override;
    void AddRecentFile(const std::string& path) override;
    bool ShowWizard() override;
    bool ShowProperties() override;
    // PageMeasurePort
    std::int32_t MeasurePage(const std::string& text, double zoomScale, bool pageNumberAtFoot) override;
    void StartPagination() override;

    // The sheet's pointer and clicks (in sheet pixels).
    void SheetMouseMove(QPoint position);
    void SheetMouseDown(QPoint position, Qt::MouseButton button);
    // Dragging a problem by its number box (positions in sheet pixels).
    int ProblemAtNumberBox(QPoint position) const;
    int ProblemAtHeight(int y) const;
    QRectF ProblemBand(int problem) const;
    void MoveProblemTo(int from, int to);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

public:
    void Activated();
    void MouseWheel(int rotation);
    void WriteSettings();

private:
    void BuildMenus();
    QMenu* AddMenu(const QString& name, const QString& caption);
    void BuildFileMenu();
    void BuildEditMenu();
    void BuildCollectionMenu();
    void BuildViewMenu();
    void BuildHelpMenu();
    void BuildToolbar();
    void BuildClientArea();
    void ReadSettings();
    void ToolClick(int index);
    void Geometry();
    void PageChanged();
    int MarkedProblem(int mark) const;
    QRectF MarkBand(int mark) const;
    void ShowSelection();
    void BuildStartScreen();
    void RefitWidth();
    void ClearSelection();
    void PrintPages(QPagedPaintDevice& device, const PrintOptions& options);
    QString ChoosePdfFile(const QString& title);
    void WritePdf(const QString& target, const PrintOptions& options);
    // The folder a file dialog opens in: the last one used, else the documents folder.
    QString StartFolder() const;
    QString WithExtension(const QString& name, const QString& extension);
    QAction* AddItem(QMenu* menu, const QString& name, const QString& caption, std::function<void()> handler);
    QString ProgramFolder() const;

    ApplicationState& app_;
    DialogLauncher launcher_;
    std::map<QString, QAction*> items_;
    std::map<QString, QMenu*> menus_;
    QMenu* cmnuEdicion_ = nullptr;
    QMenu* zoomMenu_ = nullptr;
    QMenu* helpMenu_ = nullptr;
    std::array<QAction*, kRecentCount + 1> recent_{};
    std::array<QString, kRecentCount + 1> recentPaths_{};
    QAction* zep04_ = nullptr;
    QWidget* client_ = nullptr;
    QWidget* toolbar_ = nullptr;
    std::array<QToolButton*, kToolCount> tools_{};
    QWidget* picture2_ = nullptr;
    QWidget* picture3_ = nullptr;
    QToolButton* imgLPage_ = nullptr;
    QToolButton* imgRPage_ = nullptr;
    QLabel* lbPage_ = nullptr;
    QScrollBar* vscroll1_ = nullptr;
    QScrollBar* hscroll1_ = nullptr;
    SheetView* picture1_ = nullptr;
    QFrame* shapeShadow_ = nullptr;
    QWidget* startScreen_ = nullptr;
    QTimer refitTimer_;

    QString lastPath_;
    QString lastPdfPath_;
    QStringList pendingFiles_;
    bool firstActivation_ = true;
    bool busyUi_ = false;
    bool verticalNeeded_ = false;
    QString printer_;

    // The typesetter tables and the measuring picture of the present zoom.
    TypesetterState typesetter_;
    TypesetterState measureTypesetter_;
    QImage measureImage_;
    std::unique_ptr<QtSurface> measureSurface_;
    std::unique_ptr<TypesetterMeasure> measure_;
};
