#pragma once
#include <cstdint>
#include <string>

#include "core/application_state.h"

// The mark of block b: b + 1000 cut to its last three digits ("001".."999", then "000"
// for block 1000, and low numbers again above it).
std::string BlockMark(int block);
// The mark planted in front of block b on a page: its three-digit mark up to block 999,
// the whole number from block 1000 on, so that every block of the table has its own.
std::string PageMark(int block);

// Plain text (a title, a prefix, a suffix) as markup that prints it as typed: "#", "&", "_"
// and "^" are doubled.
std::string PlainTextMarkup(const std::string& text);
// The name line a pupil fills in, as markup with its empty line below.
std::string NameLineMarkup();

// The framed number of a problem, in the collection's colour, prefix and suffix.
std::string NumberBox(const CollectionSettings& settings, long long number);

// Rebuilds the blocks from the records and paginates. The flag has no effect; problem is
// the one whose page is shown, 0 to stay on the current page.
void ComposeDocument(ApplicationState& app, bool flag, int problem);
// Finds the page of every block with the measuring surface; sets PageCount and
// CurrentPage and shows the page.
void PaginateDocument(ApplicationState& app, int problem);
// The page that shows problem, or the current page when problem is 0.
int PageOfProblem(const ApplicationState& app, int problem);

// The joined texts of the blocks of a page, from block 1 up to the first block of a later page.
std::string PageBlocksText(const ApplicationState& app, int page);
// The title line the drawn and printed pages carry ("" without a title).
std::string DrawnTitleLine(const std::string& title);
// The head of a drawn or printed page: the title line, and the name line where the page
// setup puts one.
std::string DrawnPageHead(const ApplicationState& app, int page);
// The number printed on a page: its place plus the first page number, less 1.
long long PrintedPageNumber(const CollectionSettings& settings, int page);
