#include "typesetter/markup.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "typesetter/constructs.h"
#include "typesetter/text_util.h"

namespace {
const std::u32string kErrorHead = U"&FC=Rojo:*ERROR*&FC=Negro:";

bool At(const std::u32string& text, std::size_t pos, std::u32string_view what) {
    if (pos + what.size() > text.size()) return false;
    for (std::size_t i = 0; i < what.size(); ++i)
        if (text[pos + i] != what[i]) return false;
    return true;
}

bool IsUprightCharacter(char32_t c) {
    return (c >= U'0' && c <= U'9') || c == U'.' || c == U',' || c == U':' || c == U';' || c == U'(' || c == U')' ||
           c == U'[' || c == U']' || c == U'|' || c == U'{' || c == U'}';
}

// "-" prints as the true minus sign, of the width of "+": one sign, one length, for every
// negative number and every subtraction (an en dash beside the minus signs of the symbol
// face printed two lengths in one problem).
constexpr char32_t kMinus = U'\u2212';

bool IsClosingDelimiter(char32_t c) { return c == U')' || c == U']' || c == U'}' || c == U'|'; }
bool IsOpeningDelimiter(char32_t c) { return c == U'(' || c == U'[' || c == U'{' || c == U'|'; }
bool IsLetter(char32_t c) { return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z'); }

// Shown in place of a construct whose text isn't balanced: the red error and the tag, as
// plain text of one piece.
void ErrorPieceHandler(TypesetterState& st, const std::u32string& piece, DrawingSurface& s, std::u32string&) {
    const int myBox = st.BoxCounter;
    if (st.DrawPass) {
        st.BoxTable[myBox].drawX = s.CurrentX();
        st.BoxTable[myBox].drawY = s.CurrentY();
        ChildBox(st, myBox, 1);
    }
    const int child = InterpretPiece(st, myBox, 1, ErrorDisplayText(piece), s);
    if (!st.DrawPass) {
        LayoutBox box = st.BoxTable[child];
        box.lead = 0;
        box.width = st.BoxTable[child].lead + st.BoxTable[child].width;
        box.source = piece;
        st.BoxTable[myBox] = box;
    }
}

// One call of the interpreter: the frame of the routine.
class Interpreter {
public:
    Interpreter(TypesetterState& st, const std::u32string& text, DrawingSurface& s, std::u32string& head)
        : st_(st), text_(text), s_(s), head_(head) {}

    void Run();

private:
    // What reading one code asks of the loop.
    enum class Step {
        Next,       // go on with the next token
        BreakPoint, // go on; a line may break behind this token
        NotMine,    // the code is not this entry's: try the next entry of the table
        Stop,       // stop reading; the box is closed
        Abandon,    // stop reading and leave the box as it stands (a value code without ":")
    };
    using Reader = Step (Interpreter::*)(std::size_t& p);
    struct Code {
        std::u32string_view prefix; // the entry is tried when the text at p begins with it
        Reader read;
        // A value code "&XX=value:": the value is read into value_ first, and a code with no
        // ":" behind it ends the whole call.
        bool takesValue = false;
    };
    // Every code of the language, in the order in which they are tried.
    static const Code kCodes[];

    Step ReadToken(std::size_t& p);

    // "#" codes, and the doubled signs "##" and "&&".
    Step MarkCode(std::size_t& p);
    Step DoubledSign(std::size_t& p);
    Step ConstructCode(std::size_t& p);
    // "&" switches and value codes.
    Step StyleSwitch(std::size_t& p);
    Step FontSizeCode(std::size_t& p);
    Step FontNameCode(std::size_t& p);
    Step ForeColorCode(std::size_t& p);
    Step FillColorCode(std::size_t& p);
    Step LineColorCode(std::size_t& p);
    Step FillCode(std::size_t& p);
    Step ColumnCode(std::size_t& p);
    // "&" symbols and signs.
    Step EntityCode(std::size_t& p);
    Step HardSpace(std::size_t& p);
    Step DrawnSignCode(std::size_t& p);
    Step SoftHyphen(std::size_t& p);
    Step PowerOfTenCode(std::size_t& p);
    Step UnknownCode(std::size_t& p);
    // Scripts and plain text.
    Step ScriptCode(std::size_t& p);
    Step PlainText(std::size_t& p);

    void ReadMetrics() {
        H_ = s_.TextHeight("Hp");
        ascent_ = AscentTwips(st_, s_);
        axis_ = 0.574 * H_ + (entryAscent_ - ascent_);
    }
    // Measure pass: the width counted from firstCounted, the pen included.
    double UsedWidth() const {
        double used = pen_;
        for (int i = firstCounted_; i <= segmentCount_; ++i) used += segments_[i].lead + segments_[i].width;
        return used;
    }
    void CloseBox();
    // After a change of font: plain text of the new font, its baseline kept, counted in the
    // frame of the string's nominal top; the axis follows the new font.
    void PlainTextInNewFont() {
        const double shiftY = entryAscent_ - ascent_;
        segments_[0].over = std::max(segments_[0].over, -shiftY);
        segments_[0].bottom = std::max(segments_[0].bottom, shiftY + H_);
        segments_[0].axis = axis_;
    }
    bool ValueCode(std::size_t& p, std::u32string& value);
    void PlainCharacter(char32_t c);
    void Script(char32_t c, bool subscript);
    void Entity(int index);
    void PowerOfTen(std::size_t& p);
    void DrawnSign(char32_t kind);
    // Returns false when the string must stop (segment table full).
    bool Construct(const ConstructTag& tag, std::size_t& p);

    TypesetterState& st_;
    const std::u32string& text_;
    DrawingSurface& s_;
    std::u32string& head_;

    int ownBox_ = 0;
    double entryX_ = 0, entryY_ = 0;
    std::string entryFontName_;
    double fontSize_ = 0;
    double H_ = 0, axis_ = 0;
    double entryAscent_ = 0, ascent_ = 0;
    int sizeClass_ = 1;
    double pen_ = 0;
    std::array<LayoutBox, kMaxSegments + 1> segments_;
    int segmentCount_ = 0;
    int firstCounted_ = 1;
    std::size_t breakAt_ = 0;
    std::u32string value_; // the value of the value code being read
    // The last plain character, and whether it was an italic letter: a delimiter beside an
    // italic letter keeps it clear.
    char32_t lastCharacter_ = 0;
    bool lastItalicLetter_ = false;
};

// Longer codes stand before the shorter ones that begin them; "&" entries that don't know
// the code pass it on. The empty prefix at the end takes any character as plain text.
const Interpreter::Code Interpreter::kCodes[] = {
    {U"#MARK", &Interpreter::MarkCode},
    {U"##", &Interpreter::DoubledSign},
    {U"#", &Interpreter::ConstructCode},
    {U"&+I", &Interpreter::StyleSwitch},
    {U"&-I", &Interpreter::StyleSwitch},
    {U"&+B", &Interpreter::StyleSwitch},
    {U"&-B", &Interpreter::StyleSwitch},
    {U"&+U", &Interpreter::StyleSwitch},
    {U"&-U", &Interpreter::StyleSwitch},
    {U"&+S", &Interpreter::StyleSwitch},
    {U"&-S", &Interpreter::StyleSwitch},
    {U"&FS", &Interpreter::FontSizeCode, true},
    {U"&FN", &Interpreter::FontNameCode, true},
    {U"&FC", &Interpreter::ForeColorCode, true},
    {U"&BC", &Interpreter::FillColorCode, true},
    {U"&LC", &Interpreter::LineColorCode, true},
    {U"&FF", &Interpreter::FillCode, true},
    {U"&SP", &Interpreter::ColumnCode, true},
    {U"&", &Interpreter::EntityCode},
    {U"& ", &Interpreter::HardSpace},
    {U"&|", &Interpreter::HardSpace},
    {U"&Q", &Interpreter::DrawnSignCode},
    {U"&=", &Interpreter::DrawnSignCode},
    {U"&#", &Interpreter::DrawnSignCode},
    {U"&_", &Interpreter::SoftHyphen},
    {U"&&", &Interpreter::DoubledSign},
    {U"&E", &Interpreter::PowerOfTenCode},
    {U"&", &Interpreter::UnknownCode},
    {U"_", &Interpreter::ScriptCode},
    {U"^", &Interpreter::ScriptCode},
    {U"", &Interpreter::PlainText},
};

void Interpreter::Run() {
    head_.clear();
    ownBox_ = st_.BoxCounter;
    if (st_.DrawPass) {
        entryX_ = s_.CurrentX();
        entryY_ = s_.CurrentY();
    }
    entryFontName_ = s_.FontName();
    fontSize_ = s_.FontSize();
    entryAscent_ = AscentTwips(st_, s_);
    ReadMetrics();
    sizeClass_ = H_ < 120 ? 1 : (H_ < 300 ? 2 : 3);
    segments_[0].over = 0;
    segments_[0].axis = axis_;
    segments_[0].bottom = H_;

    const std::size_t len = text_.size();
    std::size_t p = 0; // 0-based position of the next character
    while (p < len) {
        if (st_.BoxOverflow) break;
        const Step step = ReadToken(p);
        if (step == Step::Abandon) return;
        if (step == Step::Stop) break;

        if (!st_.DrawPass) {
            const double used = UsedWidth();
            if (used + st_.LineIndent + st_.MarginLeft + st_.MarginRight > st_.PageWidth) {
                // A head handed up from the body of delimiters stands: the line is cut there.
                if (head_.empty()) head_ = text_.substr(0, breakAt_ != 0 ? breakAt_ : std::min(p, len));
                break;
            }
            if (step == Step::BreakPoint) breakAt_ = p; // the token's last position, 1-based
        }
    }
    if (!st_.DrawPass) CloseBox();
}

// The first entry of the table that takes the code at p reads it.
Interpreter::Step Interpreter::ReadToken(std::size_t& p) {
    // Most tokens are plain characters, read by the last entry: the table is walked only
    // where a code may begin, and then an entry is compared only where its first sign stands.
    static const std::u32string kFirstSigns = [] {
        std::u32string signs;
        for (const Code& code : kCodes)
            if (!code.prefix.empty() && signs.find(code.prefix[0]) == std::u32string::npos) signs += code.prefix[0];
        return signs;
    }();
    const char32_t first = text_[p];
    if (kFirstSigns.find(first) == std::u32string::npos) return PlainText(p);
    for (const Code& code : kCodes) {
        if (!code.prefix.empty() && (code.prefix[0] != first || !At(text_, p, code.prefix))) continue;
        if (code.takesValue && !ValueCode(p, value_)) return Step::Abandon;
        const Step step = (this->*code.read)(p);
        if (step != Step::NotMine) return step;
    }
    return Step::Next; // not reached: the last entry takes every character
}

Interpreter::Step Interpreter::MarkCode(std::size_t& p) {
    if (st_.DrawPass) {
        const int n = st_.MarkCount;
        if (n >= 1 && n <= kMaxMarks) {
            const double top = entryY_ - st_.BoxTable[ownBox_].over;
            st_.MarkTop[n - 1] = top;
            if (n > 1) st_.MarkBottom[n - 2] = top - H_ / 8;
        }
    }
    p += 9;
    // Blocks from 1000 on carry a four-digit mark: its digits are all the mark's.
    while (p < text_.size() && text_[p] >= U'0' && text_[p] <= U'9') ++p;
    return Step::Next;
}

// "##" prints "#" and "&&" prints "&".
Interpreter::Step Interpreter::DoubledSign(std::size_t& p) {
    PlainCharacter(text_[p]);
    p += 2;
    return Step::Next;
}

Interpreter::Step Interpreter::ConstructCode(std::size_t& p) {
    if (const ConstructTag* tag = FindConstructTag(text_, p)) return Construct(*tag, p) ? Step::Next : Step::Stop;
    p += 1; // an unknown tag loses its "#" only
    return Step::Next;
}

// "&+X" turns a style on, "&-X" off: I italic, B bold, U underline, S strikethrough.
Interpreter::Step Interpreter::StyleSwitch(std::size_t& p) {
    const bool on = text_[p + 1] == U'+';
    switch (text_[p + 2]) {
    case U'I': s_.SetFontItalic(on); break;
    case U'B': s_.SetFontBold(on); break;
    case U'U': s_.SetFontUnderline(on); break;
    default: s_.SetFontStrikethru(on); break;
    }
    p += 3;
    return Step::Next;
}

Interpreter::Step Interpreter::FontSizeCode(std::size_t&) {
    s_.SetFontSize(LeadingNumber(value_) * st_.ZoomScale);
    fontSize_ = s_.FontSize();
    ReadMetrics();
    s_.SetCurrentY(entryY_ + entryAscent_ - ascent_);
    PlainTextInNewFont();
    return Step::Next;
}

Interpreter::Step Interpreter::FontNameCode(std::size_t&) {
    s_.SetFontName("Courier New");
    s_.SetFontName(ToUtf8(value_));
    ReadMetrics();
    s_.SetCurrentY(entryY_ + entryAscent_ - ascent_);
    PlainTextInNewFont();
    return Step::Next;
}

Interpreter::Step Interpreter::ForeColorCode(std::size_t&) {
    if (st_.DrawPass) s_.SetForeColor(ParseColor(value_));
    return Step::Next;
}

Interpreter::Step Interpreter::FillColorCode(std::size_t&) {
    if (st_.DrawPass) st_.FillColor = ParseColor(value_);
    return Step::Next;
}

Interpreter::Step Interpreter::LineColorCode(std::size_t&) {
    st_.LineColor = ParseColor(value_);
    return Step::Next;
}

// "&FF=REC,w,h:" fills a box of w by h mm from the pen in the fill colour; a size of 0
// reaches to the surface's edge.
Interpreter::Step Interpreter::FillCode(std::size_t&) {
    if (!st_.DrawPass) return Step::Next;
    std::u32string kind;
    double w = 0, h = 0;
    ParseFillList(value_, kind, w, h);
    if (kind != U"REC") return Step::Next;
    const double x = s_.CurrentX(), y = s_.CurrentY();
    if (w == 0) {
        s_.SetCurrentX(0);
        w = s_.Width() * s_.TwipsPerPixelX() / 1440 * 25.4 / st_.ZoomScale;
    }
    if (h == 0) {
        s_.SetCurrentY(0);
        h = s_.Height() * s_.TwipsPerPixelY() / 1440 * 25.4 / st_.ZoomScale;
    }
    s_.FilledBox(s_.CurrentX(), s_.CurrentY(), w / 25.4 * 1440 * st_.ZoomScale, h / 25.4 * 1440 * st_.ZoomScale,
                 st_.FillColor);
    s_.SetCurrentX(x);
    s_.SetCurrentY(y);
    return Step::Next;
}

// "&SP=n:" puts the pen at n % of the text width; the width counts from there.
Interpreter::Step Interpreter::ColumnCode(std::size_t&) {
    const double x = LeadingNumber(value_) / 100 * (st_.PageWidth - st_.MarginLeft - st_.MarginRight) + entryX_;
    if (st_.DrawPass) {
        s_.SetCurrentX(x);
        st_.InkGroup += 1;
    } else {
        pen_ = x;
    }
    firstCounted_ = segmentCount_ + 1;
    return Step::Next;
}

// The entities are tried from the first of the table on; the first that matches is printed.
Interpreter::Step Interpreter::EntityCode(std::size_t& p) {
    for (int i = 1; i <= kSymbolCount; ++i) {
        if (At(text_, p, st_.SymbolName[i])) {
            Entity(i);
            p += st_.SymbolName[i].size();
            return Step::Next;
        }
    }
    return Step::NotMine;
}

// "&|" parts the cells of a grid row; elsewhere it is a space that doesn't break, as "& " is.
Interpreter::Step Interpreter::HardSpace(std::size_t& p) {
    if (st_.DrawPass) s_.PrintText(" ");
    else pen_ += s_.TextWidth(" ");
    p += 2;
    return Step::Next;
}

Interpreter::Step Interpreter::DrawnSignCode(std::size_t& p) {
    DrawnSign(text_[p + 1]);
    p += 2;
    return Step::Next;
}

// A hyphen only where a line is cut behind it, but its width counted everywhere.
Interpreter::Step Interpreter::SoftHyphen(std::size_t& p) {
    if (st_.DrawPass) {
        if (p + 2 == text_.size()) s_.PrintText("-");
    } else {
        pen_ += s_.TextWidth("-");
    }
    p += 2;
    return Step::BreakPoint;
}

Interpreter::Step Interpreter::PowerOfTenCode(std::size_t& p) {
    PowerOfTen(p);
    return Step::Next;
}

Interpreter::Step Interpreter::UnknownCode(std::size_t& p) {
    p += 1; // an unknown code loses its "&" only
    return Step::Next;
}

// "_c" and "^c" set one character as a script; "__" and "^^" print the sign itself.
Interpreter::Step Interpreter::ScriptCode(std::size_t& p) {
    const char32_t c = text_[p];
    if (p + 1 < text_.size() && text_[p + 1] == c) {
        PlainCharacter(c);
    } else if (p + 1 < text_.size()) {
        Script(text_[p + 1], c == U'_');
    }
    p += 2;
    return Step::Next;
}

Interpreter::Step Interpreter::PlainText(std::size_t& p) {
    const std::size_t len = text_.size();
    const char32_t c = text_[p];
    // A dash inside a word of upright text ("non-parallel", two letters on each side) is a
    // hyphen; between variables ("a-b") it stays a minus.
    const auto letter = [this, len](std::size_t i) {
        const char32_t x = i < len ? text_[i] : U' ';
        return (x >= U'a' && x <= U'z') || (x >= U'A' && x <= U'Z');
    };
    const bool hyphen = c == U'-' && p >= 2 && !s_.FontItalic() && letter(p - 1) && letter(p - 2) &&
                        letter(p + 1) && letter(p + 2);
    PlainCharacter(hyphen ? U'\u2010' : c);
    p += 1;
    return c == U' ' ? Step::BreakPoint : Step::Next;
}

void Interpreter::CloseBox() {
    double top = segments_[0].over + segments_[0].axis;
    double low = segments_[0].bottom - segments_[0].axis;
    for (int i = 1; i <= segmentCount_; ++i) {
        top = std::max(top, segments_[i].over + segments_[i].axis);
        low = std::max(low, segments_[i].bottom - segments_[i].axis);
    }
    LayoutBox& own = st_.BoxTable[ownBox_];
    own.over = top - axis_;
    own.bottom = low + axis_;
    own.width = UsedWidth();
    own.lead = 0;
    own.axis = axis_;
    own.source = text_;
}

// "&XX=value:": false when no ":" follows, which ends the whole call.
bool Interpreter::ValueCode(std::size_t& p, std::u32string& value) {
    const std::size_t start = p + 4;
    if (start > text_.size()) return false;
    const std::size_t colon = text_.find(U':', start);
    if (colon == std::u32string::npos) return false;
    value = text_.substr(start, colon - start);
    p = colon + 1;
    return true;
}

void Interpreter::PlainCharacter(char32_t c) {
    if (c == U'-') c = kMinus;
    const bool italic = s_.FontItalic();
    double shift = 0;
    double bearing = 0;
    int row = -1;
    if (c == U'+') row = 0;
    else if (c == kMinus) row = 0; // the minus sign's bar stands where the plus sign's does
    else if (c == U'=') row = 2;
    if (row >= 0) {
        shift = st_.OperatorShift[row][sizeClass_ - 1] * H_;
        bearing = 0.04 * H_;
        s_.SetFontItalic(false);
    } else if (IsUprightCharacter(c)) {
        s_.SetFontItalic(false);
    }
    if (bearing < 1.0) bearing = 1.0;
    // An italic letter leans into an upright delimiter after it, and a delimiter before it
    // meets its foot: a small kern keeps them apart, as the italic correction of a maths
    // book does.
    const bool italicLetter = s_.FontItalic() && IsLetter(c);
    double kern = 0;
    if (lastItalicLetter_ && IsClosingDelimiter(c)) kern = 0.06 * H_;
    else if (italicLetter && IsOpeningDelimiter(lastCharacter_)) kern = 0.03 * H_;
    lastCharacter_ = c;
    lastItalicLetter_ = italicLetter;
    const std::string glyph = ToUtf8(c);
    if (st_.DrawPass) {
        const double y = s_.CurrentY();
        s_.SetCurrentY(y + shift);
        s_.SetCurrentX(s_.CurrentX() + kern + bearing);
        s_.PrintText(glyph);
        s_.SetCurrentX(s_.CurrentX() + bearing);
        s_.SetCurrentY(y);
        s_.SetFontItalic(italic);
    } else {
        // The measure pass keeps italic off after a digit or operator: its widths differ a
        // little from the drawing's, which is accepted.
        pen_ += s_.TextWidth(glyph) + 2 * bearing + kern;
    }
}

void Interpreter::Script(char32_t c, bool subscript) {
    lastCharacter_ = 0;
    lastItalicLetter_ = false;
    s_.SetFontSize(fontSize_ * 8 / 12);
    const bool italic = s_.FontItalic();
    const std::string glyph = ToUtf8(c);
    if (st_.DrawPass) {
        const double y = s_.CurrentY();
        if (subscript) s_.SetCurrentY(y + s_.TextHeight("9") / 1.4);
        if (c >= U'0' && c <= U'9') s_.SetFontItalic(false);
        s_.PrintText(glyph);
        s_.SetCurrentY(y);
    } else {
        pen_ += s_.TextWidth(glyph);
    }
    s_.SetFontItalic(italic);
    s_.SetFontSize(fontSize_);
    if (subscript) {
        const double shiftY = segments_[0].axis - 0.574 * H_;
        if (segments_[0].bottom < 1.1 * H_ + shiftY) segments_[0].bottom = 1.1 * H_ + shiftY;
    }
}

void Interpreter::Entity(int index) {
    lastCharacter_ = 0;
    lastItalicLetter_ = false;
    const std::string font = index <= 74 ? "Symbol" : "MT Extra";
    s_.SetFontName(font);
    // Signs stand upright in italic text, as digits and operators do; Greek letters follow
    // the text. (The symbol face has its signs in the upright style only.)
    const bool italic = s_.FontItalic();
    const std::u32string glyph32 = ToU32(st_.SymbolGlyph[index]);
    const bool greek = glyph32.size() == 1 && glyph32[0] >= U'\u0391' && glyph32[0] <= U'\u03F5';
    if (!greek) s_.SetFontItalic(false);
    if (st_.DrawPass) {
        const double symbolAscent = AscentTwips(st_, s_);
        const double y = s_.CurrentY();
        s_.SetCurrentY(y + ascent_ - symbolAscent);
        s_.PrintText(st_.SymbolGlyph[index]);
        s_.SetCurrentY(y);
    } else {
        pen_ += s_.TextWidth(st_.SymbolGlyph[index]);
    }
    s_.SetFontItalic(italic);
    // Out of a symbol font by way of a text font, back to the font at entry.
    s_.SetFontName("Courier New");
    s_.SetFontName(entryFontName_);
}

void Interpreter::PowerOfTen(std::size_t& p) {
    std::size_t q = p + 2;
    std::u32string digits;
    if (q < text_.size() && (text_[q] == U'+' || text_[q] == U'-')) digits.push_back(text_[q++]);
    while (q < text_.size() && text_[q] >= U'0' && text_[q] <= U'9') digits.push_back(text_[q++]);
    p = q;
    digits = TrimBlanks(digits);
    if (!digits.empty() && digits[0] == U'+') digits.erase(0, 1);
    else if (!digits.empty() && digits[0] == U'-') digits[0] = kMinus;
    const bool italic = s_.FontItalic();
    s_.SetFontItalic(false);
    const std::string& ten = st_.numberTexts.timesTen;
    const std::string exponent = ToUtf8(digits);
    if (st_.DrawPass) {
        s_.PrintText(ten);
        s_.SetFontSize(fontSize_ * 8 / 12);
        s_.PrintText(exponent);
    } else {
        pen_ += s_.TextWidth(ten);
        s_.SetFontSize(fontSize_ * 8 / 12);
        pen_ += s_.TextWidth(exponent);
    }
    s_.SetFontSize(fontSize_);
    s_.SetFontItalic(italic);
}

void Interpreter::DrawnSign(char32_t kind) {
    SetStrokeWidth(st_, s_, 0.05 * H_);
    const double advance = s_.TextWidth(kind == U'Q' ? "    " : "   ");
    if (!st_.DrawPass) {
        pen_ += advance;
        return;
    }
    const double x = s_.CurrentX(), y = s_.CurrentY();
    const double z = st_.ZoomScale;
    if (kind == U'#') {
        for (double d : {0.3, 0.48, 0.66}) s_.LineBy(x + 20 * z, y + d * H_, 130 * z, 0);
    } else if (kind == U'=') {
        for (double d : {0.351, 0.588}) s_.LineBy(x + 20 * z, y + d * H_, 130 * z, 0);
    } else {
        const double y1 = y + H_ / 2.5;
        s_.LineBy(x, y1, 240 * z, 0);
        s_.LineBy(x + 240 * z, y1, -60 * z, -50 * z);
        const double y2 = y + H_ / 1.7;
        s_.LineBy(x, y2, 240 * z, 0);
        s_.LineBy(x, y2, 60 * z, 50 * z);
    }
    s_.SetCurrentX(x + advance);
    s_.SetCurrentY(y);
}

bool Interpreter::Construct(const ConstructTag& tag, std::size_t& p) {
    lastCharacter_ = 0;
    lastItalicLetter_ = false;
    const std::u32string piece = ExtractBalancedAt(text_, p, tag.open, tag.close);
    if (segmentCount_ >= kMaxSegments || st_.BoxCounter >= kMaxBoxes) {
        // Fails safe: the tables hold no more; the rest of this string is left out.
        if (st_.BoxCounter >= kMaxBoxes) st_.BoxOverflow = true;
        return false;
    }
    st_.BoxCounter += 1;
    const int myBox = st_.BoxCounter;
    segmentCount_ += 1;
    // Nesting beyond any real formula is not followed: the construct shows the red error
    // and its text is passed over, so that hostile depth costs neither time nor stack.
    const bool tooDeep = st_.ConstructDepth >= kMaxConstructDepth && !IsBalanceError(piece);
    const std::u32string errorText = tooDeep ? BalanceErrorText(tag.open) : std::u32string();
    const std::u32string& handled = tooDeep ? errorText : piece;
    const ConstructHandler handler = tooDeep || IsBalanceError(piece) ? ErrorPieceHandler : tag.handler;
    st_.ConstructDepth += 1;
    if (st_.DrawPass) {
        const double x = s_.CurrentX(), y = s_.CurrentY();
        s_.SetCurrentX(x + st_.BoxTable[myBox].lead);
        if (tag.axisAligned) s_.SetCurrentY(entryY_ + axis_ - st_.BoxTable[myBox].axis);
        handler(st_, handled, s_, head_);
        s_.SetCurrentX(x + st_.BoxTable[myBox].lead + st_.BoxTable[myBox].width);
        s_.SetCurrentY(y);
    } else {
        // Only #NES hands the caller's head down; the others get a scratch string.
        handler(st_, handled, s_, head_);
        segments_[segmentCount_] = st_.BoxTable[myBox];
    }
    st_.ConstructDepth -= 1;
    s_.SetFontName(entryFontName_);
    s_.SetFontSize(fontSize_);
    p += piece.size();
    return true;
}
} // namespace

void InterpretMarkup(TypesetterState& state, const std::u32string& text, DrawingSurface& surface,
                     std::u32string& fittedHead) {
    Interpreter(state, text, surface, fittedHead).Run();
}

std::u32string BalanceErrorText(const std::u32string& openTag) { return kErrorHead + openTag; }

bool IsBalanceError(const std::u32string& piece) { return piece.compare(0, kErrorHead.size(), kErrorHead) == 0; }

std::u32string ErrorDisplayText(const std::u32string& errorText) {
    std::u32string tag = errorText.substr(std::min(errorText.size(), kErrorHead.size()));
    std::u32string shown;
    for (char32_t c : tag) {
        if (c == U'#') shown += U"##";
        else if (c == U'&') shown += U"&&";
        else if (c == U'_' || c == U'^') { shown.push_back(c); shown.push_back(c); }
        else shown.push_back(c);
    }
    return kErrorHead + shown;
}

std::u32string ExtractBalanced(const std::u32string& text, const std::u32string& openTag, const std::u32string& closeTag) {
    return ExtractBalancedAt(text, 0, openTag, closeTag);
}

std::u32string ExtractBalancedAt(const std::u32string& text, std::size_t from, const std::u32string& openTag,
                                 const std::u32string& closeTag) {
    const std::u32string_view all(text);
    const std::size_t first = all.find(openTag, from);
    if (first == std::u32string_view::npos || all.find(closeTag, from) == std::u32string_view::npos)
        return BalanceErrorText(openTag);
    int depth = 1;
    std::size_t pos = first + openTag.size();
    std::size_t close = 0;  // the next close at or behind pos, found once for many opens
    while (true) {
        if (close < pos) close = all.find(closeTag, pos);
        if (close == std::u32string_view::npos) return BalanceErrorText(openTag);
        // Only an opening tag that starts before this close counts; the search stops
        // there, so a long text after the piece is not read again for every construct.
        const std::size_t open = all.substr(pos, close - pos + openTag.size() - 1).find(openTag);
        if (open != std::u32string_view::npos) {
            depth += 1;
            pos = pos + open + openTag.size();
            continue;
        }
        depth -= 1;
        if (depth == 0) return text.substr(first, close + closeTag.size() - first);
        pos = close + closeTag.size();
    }
}

void ParseFillList(const std::u32string& text, std::u32string& kind, double& width, double& height) {
    const std::size_t c1 = text.find(U',');
    kind = TrimBlanks(text.substr(0, c1));
    width = 0;
    height = 0;
    if (c1 == std::u32string::npos) return;
    const std::size_t c2 = text.find(U',', c1 + 1);
    width = LeadingNumber(text.substr(c1 + 1, c2 == std::u32string::npos ? std::u32string::npos : c2 - c1 - 1));
    if (c2 != std::u32string::npos) height = LeadingNumber(text.substr(c2 + 1));
}

std::u32string ExpandLocaleCodes(const PageDevices& setup, const std::u32string& line) {
    const NumberTexts& texts = setup.numberTexts;
    const std::pair<std::u32string, const std::string*> codes[] = {
        {U"&.", &texts.decimalSeparator}, {U"&,", &texts.listSeparator},  {U"&(", &texts.openBracket},
        {U"&)", &texts.closeBracket},     {U"&FA", &texts.functionName}, {U"&DT", &texts.deviationMarkup},
    };
    std::u32string out = line;
    for (const auto& [code, utf8] : codes) {
        if (out.find(code) == std::u32string::npos) continue;
        const std::u32string replacement = ToU32(*utf8);
        std::u32string next;
        std::size_t pos = 0;
        while (true) {
            const std::size_t found = out.find(code, pos);
            if (found == std::u32string::npos) {
                next.append(out, pos, std::u32string::npos);
                break;
            }
            next.append(out, pos, found - pos);
            next += replacement;
            pos = found + code.size();
        }
        out = std::move(next);
    }
    return out;
}

double AscentTwips(const PageDevices& setup, DrawingSurface& surface) {
    const DrawingSurface* screen = setup.ScreenSurface;
    const double tpp = (&surface != setup.PrinterSurface && screen != nullptr) ? screen->TwipsPerPixelY()
                                                                                 : surface.TwipsPerPixelY();
    return surface.Ascent() * tpp;
}

double StrokeTwipsPerPixel(const PageDevices& setup, const DrawingSurface& surface) {
    if (&surface == setup.PrinterSurface || setup.ScreenSurface == nullptr) return surface.TwipsPerPixelX();
    return setup.ScreenSurface->TwipsPerPixelX();
}

void SetStrokeWidth(const PageDevices& setup, DrawingSurface& surface, double t) {
    const double px = t / StrokeTwipsPerPixel(setup, surface);
    surface.SetDrawWidth(px < 1 || !std::isfinite(px) ? 1 : static_cast<int>(std::min(px, 10000.0)));
}

int InterpretPiece(TypesetterState& state, int parentBox, int place, const std::u32string& text,
                   DrawingSurface& surface, std::u32string& fittedHead) {
    if (state.BoxCounter >= kMaxBoxes || state.BoxOverflow) {
        state.BoxOverflow = true;
        if (!state.DrawPass && parentBox >= 0 && parentBox <= kMaxBoxes && place >= 0 && place <= kMaxChildren)
            state.ChildTable[parentBox][place] = 0;
        return 0;
    }
    state.BoxCounter += 1;
    const int box = state.BoxCounter;
    if (!state.DrawPass && place >= 0 && place <= kMaxChildren) state.ChildTable[parentBox][place] = box;
    InterpretMarkup(state, text, surface, fittedHead);
    return box;
}

int InterpretPiece(TypesetterState& state, int parentBox, int place, const std::u32string& text,
                   DrawingSurface& surface) {
    std::u32string scratch;
    return InterpretPiece(state, parentBox, place, text, surface, scratch);
}

int ChildBox(const LineBoxes& boxes, int parentBox, int place) {
    if (parentBox < 0 || parentBox > kMaxBoxes || place < 0 || place > kMaxChildren) return 0;
    const int box = boxes.ChildTable[parentBox][place];
    return (box >= 0 && box <= kMaxBoxes) ? box : 0;
}
