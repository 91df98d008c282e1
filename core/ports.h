#pragma once
#include <cstdint>
#include <string>

// The small interfaces through which the collection core reaches what the window owns:
// the clipboard, the menus and toolbar, the page view and the hidden measuring surface.
// The window implements them; the core runs headless with the quiet ones below.

class ClipboardPort {
public:
    virtual ~ClipboardPort() = default;
    // True when the clipboard holds text; an unreadable clipboard holds none.
    virtual bool HasText() = 0;
    virtual std::string Text() = 0;
    virtual void Clear() = 0;
    virtual void SetText(const std::string& text) = 0;
};

// Menu items are named by the window's object names ("mnu_Edicion_Undo").
class MenuPort {
public:
    virtual ~MenuPort() = default;
    virtual void SetCaption(const std::string& item, const std::string& caption) = 0;
    virtual void SetEnabled(const std::string& item, bool enabled) = 0;
    virtual void SetVisible(const std::string& item, bool visible) = 0;
    virtual void SetChecked(const std::string& item, bool checked) = 0;
    // Tooltip of toolbar button index (0..11).
    virtual void SetToolTip(int index, const std::string& text) = 0;
    // Brings the toolbar in line with ToolVisible and ToolEnabled.
    virtual void ActualizarBotones() = 0;
};

enum class MessageIcon { None, Exclamation, Stop, Question, Warning };

// The page view and the rest of the window, as far as the core drives them.
class WindowPort {
public:
    virtual ~WindowPort() = default;
    virtual void SetCaption(const std::string& caption) = 0;
    // The page label ("Pag. 2/5", or the counter during layout).
    virtual void SetPageLabel(const std::string& text) = 0;
    virtual void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) = 0;
    // Lets the event loop run; composition calls it between problems and pages.
    virtual void YieldEvents() = 0;
    // Busy: toolbar, File and Help menus disabled, page buttons hidden; and back.
    virtual void SetBusy(bool busy) = 0;
    virtual void SetWaitCursor(bool wait) = 0;
    // Draws CurrentPage on the visible page and renews the marks.
    virtual void DrawCurrentPage() = 0;
    // The vertical scroll position of the sheet.
    virtual int VerticalScroll() = 0;
    virtual void SetVerticalScroll(int value) = 0;
    // Puts the sheet's top in view (a new composition shows its page from the top).
    virtual void ScrollToTop() = 0;
    // The Save as command, after a save failed on a write-protected target.
    virtual void RunSaveAs() = 0;
    // The recent-files list takes a file that was opened.
    virtual void AddRecentFile(const std::string& path) = 0;
    // The modal dialogs; each returns true when it ended by its accepting button.
    virtual bool ShowWizard() = 0;
    virtual bool ShowProperties() = 0;
};

// Lays one page of markup out on the hidden screen picture at base size 12 x zoom and
// returns the flow result: 0 no mark met, n > 0 all placed with n the last mark, -n a
// line of mark n did not fit.
class PageMeasurePort {
public:
    virtual ~PageMeasurePort() = default;
    // pageNumberAtFoot: the page number takes room at the foot of the text.
    virtual std::int32_t MeasurePage(const std::string& text, double zoomScale, bool pageNumberAtFoot) = 0;
    // A pagination begins: what the measure keeps from the last one (where pictures were
    // found, their sizes) is asked for again, since files may have come or changed since.
    virtual void StartPagination() {}
};

class QuietClipboard : public ClipboardPort {
public:
    bool HasText() override { return !text_.empty(); }
    std::string Text() override { return text_; }
    void Clear() override { text_.clear(); }
    void SetText(const std::string& text) override { text_ = text; }

private:
    std::string text_;
};

class QuietMenus : public MenuPort {
public:
    void SetCaption(const std::string&, const std::string&) override {}
    void SetEnabled(const std::string&, bool) override {}
    void SetVisible(const std::string&, bool) override {}
    void SetChecked(const std::string&, bool) override {}
    void SetToolTip(int, const std::string&) override {}
    void ActualizarBotones() override {}
};

class QuietWindow : public WindowPort {
public:
    void SetCaption(const std::string&) override {}
    void SetPageLabel(const std::string&) override {}
    // Headless: the last message is kept so that a caller can report it.
    void ShowMessage(const std::string& text, const std::string&, MessageIcon) override { lastMessage = text; }
    void YieldEvents() override {}
    void SetBusy(bool) override {}
    void SetWaitCursor(bool) override {}
    void DrawCurrentPage() override {}
    int VerticalScroll() override { return 0; }
    void SetVerticalScroll(int) override {}
    void ScrollToTop() override {}
    void RunSaveAs() override {}
    void AddRecentFile(const std::string&) override {}
    bool ShowWizard() override { return false; }
    bool ShowProperties() override { return false; }

    std::string lastMessage;
};

// Without a typesetter every text fits: one page, the last mark placed.
class FitAllMeasure : public PageMeasurePort {
public:
    std::int32_t MeasurePage(const std::string& text, double zoomScale, bool pageNumberAtFoot) override;
};
