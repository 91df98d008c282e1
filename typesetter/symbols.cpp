#include <cmath>

#include "typesetter/text_util.h"
#include "typesetter/typesetter_state.h"

namespace {
struct SymbolEntry {
    const char32_t* name;
    int code;       // code of the glyph in its symbol font
    char32_t glyph; // the same glyph in Unicode
};

// Ordered: the interpreter takes the first entry that matches. Entries 1..74 come from the
// symbol font, 75..78 from the extra font. Entry 67 repeats "&vacio" and can never match.
// "&real" names the set of real numbers wherever it is written, so it prints the
// double-struck R of today's books, not the blackletter real-part sign.
constexpr SymbolEntry kSymbols[kSymbolCount] = {
    {U"&alfa", 97, U'\u03B1'},    {U"&beta", 98, U'\u03B2'},     {U"&gamma", 103, U'\u03B3'},
    {U"&Gamma", 71, U'\u0393'},   {U"&delta", 100, U'\u03B4'},   {U"&Delta", 68, U'\u0394'},
    {U"&epsilon", 101, U'\u03B5'}, {U"&zeta", 122, U'\u03B6'},   {U"&eta", 104, U'\u03B7'},
    {U"&teta", 113, U'\u03B8'},   {U"&Teta", 81, U'\u0398'},     {U"&iota", 105, U'\u03B9'},
    {U"&kappa", 107, U'\u03BA'},  {U"&lambda", 108, U'\u03BB'},  {U"&Lambda", 76, U'\u039B'},
    {U"&mu", 109, U'\u03BC'},     {U"&nu", 110, U'\u03BD'},      {U"&xi", 120, U'\u03BE'},
    {U"&Xi", 88, U'\u039E'},      {U"&pi", 112, U'\u03C0'},      {U"&Pi", 80, U'\u03A0'},
    {U"&ro", 114, U'\u03C1'},     {U"&sigma", 115, U'\u03C3'},   {U"&Sigma", 83, U'\u03A3'},
    {U"&tau", 116, U'\u03C4'},    {U"&ypsilon", 117, U'\u03C5'}, {U"&Ypsilon", 161, U'\u03D2'},
    {U"&fi", 106, U'\u03D5'},     {U"&Fi", 70, U'\u03A6'},       {U"&ji", 99, U'\u03C7'},
    {U"&psi", 121, U'\u03C8'},    {U"&Psi", 89, U'\u03A8'},      {U"&omega", 119, U'\u03C9'},
    {U"&Omega", 87, U'\u03A9'},   {U"&ald", 220, U'\u21D0'},     {U"&aud", 221, U'\u21D1'},
    {U"&ard", 222, U'\u21D2'},    {U"&add", 223, U'\u21D3'},     {U"&alrd", 219, U'\u21D4'},
    {U"&als", 172, U'\u2190'},    {U"&aus", 173, U'\u2191'},     {U"&ars", 174, U'\u2192'},
    {U"&ads", 175, U'\u2193'},    {U"&alrs", 171, U'\u2194'},    {U"&divi", 184, U'\u00F7'},
    {U"&!=", 185, U'\u2260'},     {U"&vacio", 198, U'\u2205'},   {U"&iorden", 187, U'\u2248'},
    {U"&aprox", 64, U'\u2245'},   {U"&real", 194, U'\u211D'},    {U"&<=", 163, U'\u2264'},
    {U"&>=", 179, U'\u2265'},     {U"&oo", 165, U'\u221E'},      {U"&Vacio", 198, U'\u2205'},
    {U"&theta", 113, U'\u03B8'},  {U"&Theta", 81, U'\u0398'},    {U"&perte", 206, U'\u2208'},
    {U"&nabla", 209, U'\u2207'},  {U"&perpen", 94, U'\u22A5'},   {U"&todo", 34, U'\u2200'},
    {U"&exist", 36, U'\u2203'},   {U"&parci", 182, U'\u2202'},   {U"&itg", 242, U'\u222B'},
    {U"&pm", 177, U'\u00B1'},     {U"&aspa", 180, U'\u00D7'},    {U"&noperte", 207, U'\u2209'},
    {U"&vacio", 102, U'\u03C6'},  {U"&TRE", 167, U'\u2663'},     {U"&DIA", 168, U'\u2666'},
    {U"&COR", 169, U'\u2665'},    {U"&PIC", 170, U'\u2660'},     {U"&rho", 114, U'\u03C1'},
    {U"&and", 217, U'\u2227'},    {U"&or", 218, U'\u2228'},      {U"&union", 85, U'\u222A'},
    {U"&inter", 73, U'\u2229'},   {U"&mp", 109, U'\u2213'},      {U"&hbar", 104, U'\u210F'},
};

struct ColorName {
    const char32_t* name;
    std::uint32_t color;
};

constexpr ColorName kColors[] = {
    {U"BLACK", Rgb(0, 0, 0)},         {U"NEGRO", Rgb(0, 0, 0)},
    {U"BLUE", Rgb(0, 0, 255)},        {U"AZUL", Rgb(0, 0, 255)},
    {U"CYAN", Rgb(0, 255, 255)},      {U"CIAN", Rgb(0, 255, 255)},
    {U"GREEN", Rgb(0, 255, 0)},       {U"VERDE", Rgb(0, 255, 0)},
    {U"MAGENTA", Rgb(255, 0, 255)},   {U"PINK", Rgb(255, 128, 255)},
    {U"ROSA", Rgb(255, 128, 255)},    {U"FUCSIA", Rgb(255, 128, 255)},
    {U"VIOLETA", Rgb(128, 0, 255)},   {U"RED", Rgb(255, 0, 0)},
    {U"ROJO", Rgb(255, 0, 0)},        {U"WHITE", Rgb(255, 255, 255)},
    {U"BLANCO", Rgb(255, 255, 255)},  {U"YELLOW", Rgb(255, 255, 0)},
    {U"AMARILLO", Rgb(255, 255, 0)},  {U"BROWN", Rgb(128, 64, 0)},
    {U"MARRON", Rgb(128, 64, 0)},     {U"CANELO", Rgb(128, 64, 0)},
    {U"GREY", Rgb(192, 192, 192)},    {U"GRIS", Rgb(192, 192, 192)},
    {U"ORANGE", Rgb(255, 128, 0)},    {U"NARANJA", Rgb(255, 128, 0)},
    {U"NARANJADO", Rgb(255, 128, 0)},
};

// A colour component or value as far as it reads as a number; out of range wraps as the
// 32-bit value would.
std::uint32_t ColorNumber(const std::u32string& text) {
    const double v = LeadingNumber(text);
    if (!std::isfinite(v)) return 0;
    const double r = std::nearbyint(v);
    if (r < 0 || r > 4294967295.0) return 0;
    return static_cast<std::uint32_t>(r);
}
} // namespace

TypesetterState::TypesetterState() { InitSymbolTables(*this); }

void InitSymbolTables(SymbolTables& state) {
    for (int i = 1; i <= kSymbolCount; ++i) {
        const SymbolEntry& e = kSymbols[i - 1];
        state.SymbolName[i] = e.name;
        state.SymbolGlyph[i] = ToUtf8(e.glyph);
        state.SymbolCode[i] = e.code;
    }
    state.PiValue = 4.0 * std::atan(1.0);
    state.OperatorShift = {{{0.072f, 0.07f, 0.072f}, {-0.012f, 0.0f, -0.012f}, {0.07f, 0.07f, 0.07f}}};
}

std::uint32_t ParseColor(const std::u32string& raw) {
    const std::u32string text = TrimBlanks(raw);
    const auto semicolon = text.find(U';');
    if (semicolon != std::u32string::npos) {
        const auto second = text.find(U';', semicolon + 1);
        const std::u32string r = text.substr(0, semicolon);
        const std::u32string g =
            text.substr(semicolon + 1, second == std::u32string::npos ? std::u32string::npos : second - semicolon - 1);
        const std::u32string b = second == std::u32string::npos ? std::u32string() : text.substr(second + 1);
        return Rgb(ColorNumber(r) & 0xFF, ColorNumber(g) & 0xFF, ColorNumber(b) & 0xFF);
    }
    if (!text.empty() && text[0] >= U'0' && text[0] <= U'9') return ColorNumber(text);
    const std::u32string upper = UpperAscii(text);
    for (const auto& c : kColors)
        if (upper == c.name) return c.color;
    return 0;
}

std::uint32_t ParseColor(const std::string& text) { return ParseColor(ToU32(text)); }
