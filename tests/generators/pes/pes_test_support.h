#pragma once
#include <string>
#include <vector>

// Reading numbers back out of the markup of the statistics problems.

// The number written in markup at the start of text ("-12&.5" is -12.5).
double ReadMarkupNumber(const std::string& text);
// The number that follows the first occurrence of marker at or after from; fails the
// test when the marker is missing.
double NumberAfter(const std::string& text, const std::string& marker, std::size_t from = 0);
// The cells of the rows of a two-column table written with the given column marks.
std::vector<std::pair<std::string, std::string>> TableCells(const std::string& text, const std::string& first,
                                                            const std::string& second);
