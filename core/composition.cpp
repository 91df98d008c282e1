#include "core/composition.h"

#include <cmath>
#include <cstdlib>

#include "mathservices/utf8_text.h"

std::string BlockMark(int block) {
    const int mark = ((block + 1000) % 1000 + 1000) % 1000;
    std::string text = std::to_string(mark);
    return std::string(3 - text.size(), '0') + text;
}

std::string PageMark(int block) {
    // The wrapped mark "000" of block 1000 reads as "no mark met", which ended pagination
    // one page early and dropped the last page of a 500-problem collection; repeated low
    // marks would point back at the first blocks. Four digits keep each block its own.
    return block >= 1000 ? std::to_string(block) : BlockMark(block);
}

std::string PlainTextMarkup(const std::string& text) {
    std::string markup;
    markup.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '#' || c == '&' || c == '_' || c == '^') markup += c;
        markup += c;
        // Lines are split at every "&LF" before codes are read; a harmless code between
        // keeps a typed "&LF" on its line.
        if (c == '&' && text.compare(i + 1, 2, "LF") == 0) markup += "&-U";
    }
    return markup;
}

std::string NameLineMarkup() { return PlainTextMarkup(kNameLineText) + "&LF&LF"; }

std::string NumberBox(const CollectionSettings& settings, long long number) {
    const double colour = settings.NumberColour;
    const long long r = static_cast<long long>(settings.NumberColour) & 0xFF;
    const long long g = static_cast<long long>(std::floor(colour / 256.0)) & 0xFF;
    const long long b = static_cast<long long>(std::floor(colour / 65536.0));
    return "&BC=" + std::to_string(r) + ";" + std::to_string(g) + ";" + std::to_string(b) +
           ":&FF=REC,20,5.5:" + PlainTextMarkup(settings.NumberPrefix) + std::to_string(number) +
           PlainTextMarkup(settings.NumberSuffix) +
           " &BC=Blanco:&FF=REC,20,5.5:";
}

void ComposeDocument(ApplicationState& app, bool flag, int problem) {
    (void)flag;
    const std::string solutionWord = SolutionWord(kBuildLanguage);
    const std::string solutionsWord = SolutionsWord(kBuildLanguage);
    const CollectionSettings& settings = app.Settings;
    long long n = static_cast<long long>(settings.FirstProblemNumber) - 1;
    app.BlockCount = 0;
    std::vector<std::string> stored;
    const int position = settings.SolutionPosition;

    // The block array ends at 1024; the counts of a legal collection stay below it
    // (500 problems give at most 1000 blocks), so a block past it is simply not made.
    auto newBlock = [&](std::int32_t problemField) -> DocumentBlock* {
        if (app.BlockCount >= kMaxBlocks) return nullptr;
        DocumentBlock& block = app.Blocks[++app.BlockCount];
        block.text.clear();
        block.page = 0;
        block.problem = problemField;
        return &block;
    };

    for (int p = 1; p <= settings.ProblemCount; ++p) {
        ++n;
        DocumentBlock* block = newBlock(p);
        if (!block) break;
        app.window->YieldEvents();
        const std::string& statement = app.Problems[p].Statement;
        const std::string& solution = app.Problems[p].Solution;
        const std::string box = NumberBox(settings, n);
        const std::string statementText =
            "#MARK=" + PageMark(app.BlockCount) + "&+B" + box + "&-B& " + statement;
        switch (position) {
        case 0:
            block->text = statementText + "&LF";
            break;
        case 1:
            if (Utf8Length(statement) < 513 && Utf8Length(solution) < 513) {
                block->text = statementText + "&+I" + solutionWord + "&-I:& " + solution + "&LF";
            } else {
                block->text = statementText + "&LF";
                if (DocumentBlock* second = newBlock(-p))
                    second->text = "#MARK=" + PageMark(app.BlockCount) + "&+I" + solutionWord + "&-I:& " +
                                   solution + "&LF";
            }
            break;
        case 2:
        case 3:
            block->text = statementText + "&LF";
            if (!solution.empty() && stored.size() < static_cast<std::size_t>(kMaxProblems)) {
                std::string text = " &+B" + box + "&-B& " + solution;
                // The solutions run on as one paragraph, but one that sets a column ends its
                // line: the next one's column marks would put it over this one.
                const bool setsColumns = solution.find("&SP=") != std::string::npos;
                if (setsColumns && (solution.size() < 3 || solution.compare(solution.size() - 3, 3, "&LF") != 0))
                    text += "&LF";
                stored.push_back(text);
            }
            break;
        default:
            break;
        }
        app.window->YieldEvents();
    }

    if ((position == 2 || position == 3) && !stored.empty()) {
        stored.front() = "&+B" + solutionsWord + ":&-B&LF" + stored.front();
        for (std::size_t k = 1; k <= stored.size(); ++k) {
            DocumentBlock* block = newBlock(-static_cast<std::int32_t>(k));
            if (!block) break;
            block->text = "#MARK=" + PageMark(app.BlockCount) + stored[k - 1];
        }
    }
    PaginateDocument(app, problem);
    app.Modified = true;
}

namespace {
// One run of page finding: from the block in flow, pages first..500, each trying at most
// 49 blocks up to lastBlock. Returns the page the run ended on.
int PageRun(ApplicationState& app, std::int32_t& flow, int lastBlock, int firstPage) {
    const CollectionSettings& settings = app.Settings;
    int g = firstPage;
    for (; g <= kMaxPages; ++g) {
        const int top = flow;
        int end = lastBlock;
        if (end - top > 48) end = top + 48;
        std::string text;
        for (int b = std::max(top, 1); b <= end && b <= app.BlockCount; ++b)
            if (app.Blocks[b].page == 0) text += app.Blocks[b].text;
        if (PageHasNameLine(app.Page, g)) text = NameLineMarkup() + text;
        if (!settings.Title.empty()) text = "&+B" + PlainTextMarkup(settings.Title) + "&-B&LF&LF" + text;
        // A page number at the top takes the first line; one at the foot takes room the
        // layout keeps clear above the bottom margin on every page.
        const bool numberAtFoot = (settings.PagePositionCode & 8) != 0;
        if (settings.PagePositionCode != 0 && !numberAtFoot) text = " &LF" + text;
        flow = 0;
        app.window->YieldEvents();
        flow = app.measure->MeasurePage(text, app.ZoomScale, numberAtFoot);
        if (flow == 0) {
            for (int b = 1; b <= app.BlockCount; ++b)
                if (app.Blocks[b].page == 0) app.Blocks[b].page = g;
            app.PageCount = g - 1;
            return g;
        }
        // A block taller than a whole page would begin every following page again, up to
        // the last page there may be: it keeps this page, cut at its foot, and the next
        // page begins behind it.
        if (flow < 0 && -flow == top) flow = -(top + 1);
        if (flow > 0) ++flow;
        const int reach = std::min<std::int64_t>(std::llabs(flow) - 1, app.BlockCount);
        for (int b = 1; b <= reach; ++b)
            if (app.Blocks[b].page == 0) app.Blocks[b].page = g;
        if (flow > 0) {
            app.PageCount = g;
            return g;
        }
        flow = -flow;
        app.window->SetPageLabel(std::string(kBuildLanguage) == "ESP" ? "P\u00E1g. 1/" + std::to_string(g)
                                                                     : "Pag. 1/" + std::to_string(g));
    }
    return kMaxPages;
}
} // namespace

void PaginateDocument(ApplicationState& app, int problem) {
    if (app.measure) app.measure->StartPagination();
    app.BusyFlag = true;
    app.window->SetBusy(true);
    std::int32_t flow = 1;
    int last = app.BlockCount;
    if (app.Settings.SolutionPosition == 3) {
        for (int b = 1; b <= app.BlockCount; ++b) {
            if (app.Blocks[b].problem < 0) {
                last = b - 1;
                break;
            }
        }
    }
    const int lastPage = PageRun(app, flow, last, 1);
    if (app.Settings.SolutionPosition == 3) {
        flow = last;
        PageRun(app, flow, app.BlockCount, lastPage + 1);
    }
    if (app.PageCount == 0) app.PageCount = 1;
    app.CurrentPage = PageOfProblem(app, problem);
    app.window->ScrollToTop();
    app.window->SetBusy(false);
    app.window->DrawCurrentPage();
    app.BusyFlag = false;
    app.menus->SetVisible("mnu_Edicion", true);
    app.menus->SetVisible("mnu_COLEC", true);
}

int PageOfProblem(const ApplicationState& app, int problem) {
    if (problem != 0) {
        const int count = std::min(app.BlockCount, kMaxBlocks);
        for (int b = 1; b <= count; ++b)
            if (std::abs(app.Blocks[b].problem) == std::abs(problem)) return app.Blocks[b].page;
        return 1;
    }
    if (app.CurrentPage < 1 || app.CurrentPage > app.PageCount) return 1;
    return app.CurrentPage;
}

std::string PageBlocksText(const ApplicationState& app, int page) {
    std::string text;
    for (int b = 1; b <= app.BlockCount; ++b) {
        if (app.Blocks[b].page == page)
            text += app.Blocks[b].text;
        else if (app.Blocks[b].page > page)
            break;
    }
    return text;
}

std::string DrawnTitleLine(const std::string& title) {
    if (title.empty()) return "";
    return "&+B&FN=Arial:" + PlainTextMarkup(title) + "&FN=Times New Roman:&-B&LF&LF";
}

std::string DrawnPageHead(const ApplicationState& app, int page) {
    return DrawnTitleLine(app.Settings.Title) + (PageHasNameLine(app.Page, page) ? NameLineMarkup() : "");
}

long long PrintedPageNumber(const CollectionSettings& settings, int page) {
    return static_cast<long long>(page) + settings.FirstPageNumber - 1;
}
