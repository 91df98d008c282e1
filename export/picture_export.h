#pragma once
#include <QByteArray>
#include <QImage>
#include <string>

#include "core/application_state.h"
#include "export/latex_export.h"

// Problems and pages as pictures, drawn by the page drawing code, and the LaTeX document
// with its pictures.

struct ProblemPictureOptions {
    bool withSolution = false;
    bool transparent = false; // a PNG without background; the SVG never has one
    double dpi = 300;         // the PNG's resolution
};

// The markup that a problem's picture shows: its framed number and statement, and behind
// them its solution if asked, between two marks that tell its top and foot.
std::string ProblemPictureMarkup(const ApplicationState& app, int problem, bool withSolution);

// One problem, cut out of a page by its measured height, as a PNG picture (null when the
// problem doesn't exist) and as an SVG drawing (empty then).
QImage ProblemPng(const ApplicationState& app, int problem, const ProblemPictureOptions& options);
QByteArray ProblemSvg(const ApplicationState& app, int problem, const ProblemPictureOptions& options);
// One page as the page view draws it.
QImage PagePng(ApplicationState& app, int page, double dpi, bool transparent);
QByteArray PageSvg(ApplicationState& app, int page);

// Plain text of a markup text, for the description of a drawing: codes and tags taken out.
std::string MarkupPlainText(const std::string& markup);

struct PictureExportOptions {
    bool perPage = false; // one picture per page, else one per problem
    bool svg = true;
    bool png = true;
    bool withSolution = false;
    bool transparent = false;
    double dpi = 300;
};
// Writes problem-001.svg/.png (or page-001.*) into folder, which is made if missing. On
// failure says why in error; count is the number of files written.
bool WritePictures(ApplicationState& app, const std::string& folder, const PictureExportOptions& options, int& count,
                   std::string& error);

// The LaTeX document of the collection at texPath and its pictures beside it as PNG
// files. On failure says why in error. leftOut names what had no LaTeX form.
bool WriteLatex(const ApplicationState& app, const std::string& texPath, std::string& error,
                std::vector<std::string>* leftOut = nullptr);
