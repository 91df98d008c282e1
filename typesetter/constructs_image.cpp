// Pictures in the line of text, found by name in the program's and the user's folders.
#include <cmath>
#include <filesystem>

#include "typesetter/construct_frame.h"
#include "typesetter/construct_handlers.h"
#include "typesetter/picture_files.h"
#include "typesetter/text_util.h"

namespace {
// The number behind "KEY=" up to the next ":", 0 when the key is absent.
double OptionNumber(const std::u32string& options, const std::u32string& key, bool& present) {
    const std::size_t at = options.find(key + U"=");
    present = at != std::u32string::npos;
    if (!present) return 0;
    const std::size_t start = at + key.size() + 1;
    const std::size_t colon = options.find(U':', start);
    return LeadingNumber(options.substr(start, colon == std::u32string::npos ? std::u32string::npos : colon - start));
}
// The program's pictures first, then those that generators leave in the user's folder.
const PageDevices::FoundPicture& FindPicture(PageDevices& st, const std::string& fileName) {
    auto it = st.FoundPictures.find(fileName);
    if (it != st.FoundPictures.end()) return it->second;
    PageDevices::FoundPicture found;
    for (const std::string* folder : {&st.PictureFolder, &st.TempPictureFolder}) {
        const std::string candidate = FindFileIgnoringCase(*folder, fileName);
        double w = 0, h = 0;
        if (!candidate.empty() && st.LoadPicture && st.LoadPicture(candidate, w, h) && w > 0 && h > 0) {
            found = {candidate, w, h};
            break;
        }
    }
    return st.FoundPictures.emplace(fileName, found).first->second;
}
} // namespace

void ImageHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    ConstructFrame f(st, s);
    const std::u32string inner = TrimBlanks(UpperAscii(InnerText(piece, 5, 5)));
    std::u32string name, options = inner;
    const std::size_t q1 = inner.find(U'\'');
    const std::size_t q2 = q1 == std::u32string::npos ? q1 : inner.find(U'\'', q1 + 1);
    if (q2 != std::u32string::npos) {
        name = inner.substr(q1 + 1, q2 - q1 - 1);
        options = inner.substr(0, q1) + inner.substr(q2 + 1);
    }
    bool hasX = false, hasY = false;
    const double zoom = st.ZoomScale;
    double dx = OptionNumber(options, U"DXMM", hasX) / 25.4 * 1440 * zoom;
    double dy = OptionNumber(options, U"DYMM", hasY) / 25.4 * 1440 * zoom;
    const bool distort = options.find(U"DIST") != std::u32string::npos;
    const bool frame = options.find(U"MARCO") != std::u32string::npos;

    const PageDevices::FoundPicture& found = FindPicture(st, ToUtf8(name));
    const std::string& file = found.file;
    const double pictureW = found.width, pictureH = found.height;
    const bool loaded = !file.empty();
    if (dx == 0 || dy == 0) {
        dx = 1440;
        dy = 1080;
    }
    if (!distort && loaded) {
        if (std::fabs(dy) >= std::fabs(dx) * pictureH / pictureW) dx = std::copysign(std::fabs(dy) * pictureW / pictureH, dx);
        else dy = std::copysign(std::fabs(dx) * pictureH / pictureW, dy);
    }
    const double Hp = f.H;
    double t = std::max(0.04 * Hp, 1.0);
    const double foot = dy < 0 ? 0 : Hp;
    if (loaded && !frame) t = 0;

    // One child place, with nothing behind it.
    if (st.BoxCounter < kMaxBoxes) st.BoxCounter += 1;
    else st.BoxOverflow = true;

    if (st.DrawPass) {
        const double X = f.X, Y = f.Y;
        const double y0 = Y - dy + foot;
        bool drawn = false;
        if (loaded) {
            drawn = dy > 0 ? s.PaintPicture(file, X, y0, dx, dy) : s.PaintPicture(file, X, Y - dy - Hp, dx, dy);
        }
        if (!drawn) {
            // The placeholder keeps the size, so that the page doesn't move.
            s.FilledBox(X, y0, dx, dy, Rgb(240, 240, 240));
            const double w = std::floor(Hp / 2) / s.TwipsPerPixelY() + 1;
            s.SetDrawWidth(static_cast<int>(std::min(w, 10000.0)));
            s.LineBy(X + Hp / 4, y0 + Hp / 4, dx - Hp / 2, dy - Hp / 2, Rgb(255, 0, 0));
            s.LineBy(X + Hp / 4, Y + foot - Hp / 4, dx - Hp / 2, -dy + Hp / 2, Rgb(255, 0, 0));
        }
        if (frame || !loaded) {
            SetStrokeWidth(st, s, t);
            s.SetFillStyle(1);
            const std::uint32_t c = st.LineColor;
            s.LineBy(X, y0, dx, 0, c);
            s.LineBy(X + dx, y0, 0, dy, c);
            s.LineBy(X + dx, y0 + dy, -dx, 0, c);
            s.LineBy(X, y0 + dy, 0, -dy, c);
        }
        s.SetDrawWidth(1);
        // A hung picture claims no height in its line; the driver keeps the next lines
        // clear of it, or they would print over the picture.
        if (dy < 0) st.HungPictures.push_back({std::min(X, X + dx), std::max(X, X + dx), Y - dy - Hp});
    } else {
        f.WriteBox(t, dx + t, dy - Hp + t, 0.574 * Hp, foot + t, piece);
        if (dy < 0) st.LineHang = std::max(st.LineHang, -dy - Hp);
    }
    f.RestoreFont();
}
