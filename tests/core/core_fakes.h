#pragma once
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/application_state.h"

// Records what the core asks of the menus.
class FakeMenus : public MenuPort {
public:
    void SetCaption(const std::string& item, const std::string& caption) override { captions[item] = caption; }
    void SetEnabled(const std::string& item, bool value) override { enabled[item] = value; }
    void SetVisible(const std::string& item, bool value) override { visible[item] = value; }
    void SetChecked(const std::string& item, bool value) override { checked[item] = value; }
    void SetToolTip(int index, const std::string& text) override { tooltips[index] = text; }
    void ActualizarBotones() override { ++refreshes; }

    std::map<std::string, std::string> captions;
    std::map<std::string, bool> enabled;
    std::map<std::string, bool> visible;
    std::map<std::string, bool> checked;
    std::map<int, std::string> tooltips;
    int refreshes = 0;
};

class FakeClipboard : public ClipboardPort {
public:
    bool HasText() override { return holdsText; }
    std::string Text() override { return text; }
    void Clear() override {
        text.clear();
        holdsText = false;
    }
    void SetText(const std::string& t) override {
        text = t;
        holdsText = true;
    }
    std::string text;
    bool holdsText = false;
};

class FakeWindow : public WindowPort {
public:
    void SetCaption(const std::string& c) override { caption = c; }
    void SetPageLabel(const std::string& t) override { pageLabel = t; }
    void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override {
        messages.push_back(text);
        titles.push_back(title);
        icons.push_back(icon);
    }
    void YieldEvents() override {}
    void SetBusy(bool b) override { busy = b; }
    void SetWaitCursor(bool) override {}
    void DrawCurrentPage() override { ++draws; }
    int VerticalScroll() override { return scroll; }
    void SetVerticalScroll(int v) override { scroll = v; }
    void ScrollToTop() override { scroll = 0; }
    void RunSaveAs() override { ++saveAs; }
    void AddRecentFile(const std::string& p) override { recent.push_back(p); }
    bool ShowWizard() override {
        if (wizardAccepts) wizardEdit();
        return wizardAccepts;
    }
    bool ShowProperties() override {
        if (propertiesAccept) propertiesEdit();
        return propertiesAccept;
    }

    std::string caption;
    std::string pageLabel;
    std::vector<std::string> messages;
    std::vector<std::string> titles;
    std::vector<MessageIcon> icons;
    std::vector<std::string> recent;
    int draws = 0;
    bool busy = false;
    int scroll = 0;
    int saveAs = 0;
    bool wizardAccepts = false;
    bool propertiesAccept = false;
    std::function<void()> propertiesEdit = [] {};
    std::function<void()> wizardEdit = [] {};
};

// Lays pages out as the typesetter does, with every line one unit high: a page holds
// `capacity` lines; a line that begins with a mark takes it. Counts its calls and keeps
// the texts it was given.
class LineMeasure : public PageMeasurePort {
public:
    explicit LineMeasure(int capacityLines) : capacity(capacityLines) {}
    std::int32_t MeasurePage(const std::string& text, double zoomScale, bool pageNumberAtFoot) override;

    int capacity;
    std::vector<std::string> texts;
    std::vector<bool> numberAtFoot;
};

// A state with fakes plugged in.
struct TestBench {
    explicit TestBench(int pageLines = 1000);
    explicit TestBench(GeneratorHub hub, int pageLines = 1000);
    ApplicationState app;
    FakeMenus menus;
    FakeClipboard clipboard;
    FakeWindow window;
    LineMeasure measure;

    // Sets the records to these statements and solutions (module "T", routine i).
    void SetProblems(const std::vector<std::pair<std::string, std::string>>& texts);
    // Selects the mark of the block that holds problem p's statement, as a click would.
    void SelectProblem(int p);
    // Composes, then lays out the marks of the current page as the page view would.
    void DrawMarks();
};

// The records and settings of a state, for comparing before and after.
struct CollectionImage {
    CollectionSettings settings;
    std::vector<ProblemRecord> problems;
    bool operator==(const CollectionImage&) const = default;
};
CollectionImage ImageOf(const ApplicationState& app);

// Draws a problem of the natural-number drill with a fixed code into the records.
GeneratorModule TestModule();
