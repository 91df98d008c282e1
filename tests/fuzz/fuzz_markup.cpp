// Any text, laid out by the typesetter on an offscreen screen picture: the measure pass,
// the draw pass, the constructs and the page break must survive every markup, broken
// tags, bad numbers and invalid UTF-8 included.
#include <QGuiApplication>
#include <QImage>
#include <cstdlib>
#include <memory>

#include "tests/fuzz/fuzz_support.h"
#include "typesetter/layout.h"
#include "typesetter/qt_surface.h"

namespace {
std::unique_ptr<QGuiApplication> application;
std::unique_ptr<QImage> picture;
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    application = std::make_unique<QGuiApplication>(*argc, *argv);
    // A third of an A4 page at zoom 1: long texts also meet the page's end.
    picture = std::make_unique<QImage>(794, 380, QImage::Format_RGB32);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = BytesOf(data, size);
    picture->fill(Qt::white);
    TypesetterState state;
    UseQtPictures(state);
    state.ZoomScale = 1;
    QtSurface surface(*picture);
    state.ScreenSurface = &surface;
    double baseSize = 12;
    LayoutText(state, text, baseSize, surface);
    return 0;
}
