#pragma once
#include <string>

#include "core/application_state.h"
#include "typesetter/drawing_surface.h"
#include "typesetter/typesetter_state.h"

// Pagination on the typesetter: each page is laid out on the hidden screen picture.
class TypesetterMeasure : public PageMeasurePort {
public:
    TypesetterMeasure(TypesetterState& typesetter, DrawingSurface& screen) : typesetter_(typesetter), screen_(screen) {}
    std::int32_t MeasurePage(const std::string& text, double zoomScale) override;

private:
    TypesetterState& typesetter_;
    DrawingSurface& screen_;
};

// Draws CurrentPage on the screen picture (cleared by the caller) and takes its marks.
void DrawCurrentPage(ApplicationState& app, TypesetterState& typesetter, DrawingSurface& screen);

// Lays page out on the printer (or a PDF page) at size 12 with its title, grey rule and
// page number. The caller starts the next sheet.
void PrintOnePage(ApplicationState& app, TypesetterState& typesetter, DrawingSurface& printer, int page);

// Where the page number stands, by the page position code and the margins of the last layout.
struct PageNumberPlace {
    double x = 0;
    double y = 0;
};
PageNumberPlace PlacePageNumber(int positionCode, long long number, double pageWidth, double pageHeight,
                                double textWidth, double textHeight, double marginLeft, double marginRight,
                                double marginTop, double marginBottom);
