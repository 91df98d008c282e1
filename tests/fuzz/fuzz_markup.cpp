// Any text, laid out by the typesetter on an offscreen screen picture: the measure pass,
// the draw pass, the constructs and the page break must survive every markup, broken
// tags, bad numbers and invalid UTF-8 included.
#include <QGuiApplication>
#include <QImage>
#include <cstdlib>

#include "tests/fuzz/fuzz_support.h"
#include "typesetter/layout.h"
#include "typesetter/qt_surface.h"

namespace {
// Made once and never destroyed: Qt's own statics are gone by the time the exit handlers
// would run a destructor.
QGuiApplication* application = nullptr;
QImage* picture = nullptr;
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    application = new QGuiApplication(*argc, *argv);
    // A third of an A4 page at zoom 1: long texts also meet the page's end.
    picture = new QImage(794, 380, QImage::Format_RGB32);
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
