#include "core/col_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/collection.h"
#include "core/composition.h"
#include "typesetter/picture_files.h"
#include "core/editing.h"
#include "core/safe_write.h"
#include "mathservices/utf8_text.h"

namespace fs = std::filesystem;

namespace {
// Code points of the bytes 0x80..0x9F; the five bytes the code page leaves undefined map
// to the control characters of the same number, so that every byte comes back as it was.
constexpr char32_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool IsAscii(const std::string& text) {
    for (unsigned char c : text)
        if (c >= 0x80) return false;
    return true;
}

const std::string kBinDirEmpty = "#BINDIR(00000000#BINDIR)";

// value left-justified in width characters, filled with blanks and cut.
std::string LeftJustified(const std::string& value, std::size_t width) {
    return (value + std::string(width, ' ')).substr(0, width);
}

bool ReadWholeFile(const std::string& path, std::string& bytes) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream buffer;
    buffer << in.rdbuf();
    if (in.bad()) return false;
    bytes = buffer.str();
    return true;
}

// Where a picture of the collection stands: the image folder first, then the temp folder.
std::string FindImage(const ApplicationState& app, const std::string& name) {
    for (const std::string& folder : {app.ImageFolder, app.TempFolder}) {
        const std::string path = FindFileIgnoringCase(folder, name);
        if (!path.empty()) return path;
    }
    return "";
}

// The text between the opening and the closing tag at the head of the rest; the rest then
// continues behind the closing tag. False when the closing tag is missing.
bool TakeElement(std::string& rest, const std::string& openTag, const std::string& closeTag, std::string& value) {
    const auto close = rest.find(closeTag);
    if (close == std::string::npos) return false;
    value = close > openTag.size() ? rest.substr(openTag.size(), close - openTag.size()) : "";
    rest.erase(0, close + closeTag.size());
    return true;
}

std::string TrimFileText(const std::string& text) { return TrimBlanks(text); }

// A picture name from a file as it may be written into the temp folder: printable
// characters only, no folder, and the extension of a picture.
bool IsPictureName(const std::string& name) {
    if (name.empty() || name.size() > 32 || name[0] == '.') return false;
    for (unsigned char c : name)
        if (c < 0x20 || c == 0x7F || c == '/' || c == '\\' || c >= 0x80) return false;
    const auto dot = name.rfind('.');
    if (dot == std::string::npos) return false;
    const std::string extension = Upper(name.substr(dot));
    return extension == ".GIF" || extension == ".JPG" || extension == ".JPEG" || extension == ".PNG" ||
           extension == ".BMP";
}

// Lands one picture of an opened file in the temp folder. A picture of the program's own
// folder is left as it is. A copy in the temp folder that differs (a truncated one, or
// another file's picture of that name) is replaced; the new copy takes its name only
// when it is complete, so that a full disk never leaves half a picture in its place.
void StorePicture(const ApplicationState& app, const std::string& name, const std::string& bytes) {
    if (app.TempFolder.empty() || !IsPictureName(name)) return;
    if (!FindFileIgnoringCase(app.ImageFolder, name).empty()) return;
    std::string path = FindFileIgnoringCase(app.TempFolder, name);
    if (path.empty()) path = (fs::path(app.TempFolder) / name).string();
    std::error_code ec;
    const fs::file_status there = fs::symlink_status(path, ec);
    if (fs::exists(there)) {
        // Only a plain file of ours is replaced; a link or anything else stays untouched.
        if (!fs::is_regular_file(there)) return;
        const auto size = fs::file_size(path, ec);
        std::string old;
        if (!ec && size == bytes.size() && ReadWholeFile(path, old) && old == bytes) return;
    }
    fs::create_directories(app.TempFolder, ec);
    WriteFileSafely(path, bytes, app.fileWriter);
}

enum class OpenResult { Read, CannotOpen, Bad };

// The bytes of a collection file. Only a regular file of at most kMaxFileBytes is read: a
// pipe would wait for ever and a device could feed bytes without end. Opened without
// blocking, so that a pipe is refused rather than waited on. errno tells why on CannotOpen.
OpenResult ReadCollectionBytes(const std::string& path, std::string& bytes) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return OpenResult::CannotOpen;
    struct stat st {};
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_size < 0 ||
        static_cast<unsigned long long>(st.st_size) > kMaxFileBytes) {
        ::close(fd);
        return OpenResult::Bad;
    }
    bytes.clear();
    bytes.resize(static_cast<std::size_t>(st.st_size));
    std::size_t done = 0;
    // A file that grows while it is read is taken up to the size it had.
    while (done < bytes.size()) {
        const ssize_t n = ::read(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            const int e = errno;
            ::close(fd);
            errno = e;
            return OpenResult::CannotOpen;
        }
        if (n == 0) break;
        done += static_cast<std::size_t>(n);
    }
    ::close(fd);
    bytes.resize(done);
    return OpenResult::Read;
}
} // namespace

namespace {
// The names of the file's own tags, each followed by "(" or ")" in a file; and "#PRO"
// followed by three digits and one of the two, the mark of a problem element.
// The statement's own "#ENU(", "#SOL(" and their closers are left as they stand: the
// reading divides a problem by the first "#SOL(" and the known lengths, and a pasted text
// has been divided the same way already.
constexpr const char* kFileTagNames[] = {"CABECERA", "PROPARAM", "TITULO", "POSNUMPAG", "COLRESPRO", "ORDENA",
                                         "PAGINI",   "POSSOL",   "PROPRE", "PROSUF",    "PROINI",    "BINDIR"};

constexpr std::size_t kLongestFileTag = 11;  // "#POSNUMPAG)"

bool IsBracket(char c) { return c == '(' || c == ')'; }

// The last '#' among the final characters, where a tag that ends the text would begin.
std::size_t LastHashOfATag(const std::string& text) {
    const std::size_t from = text.size() > kLongestFileTag ? text.size() - kLongestFileTag : 0;
    for (std::size_t i = text.size(); i > from; --i)
        if (text[i - 1] == '#') return i - 1;
    return std::string::npos;
}
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Whether a file tag begins at the '#' at position at.
bool FileTagAt(const std::string& text, std::size_t at) {
    for (const char* name : kFileTagNames) {
        const std::size_t n = std::strlen(name);
        if (text.compare(at + 1, n, name) == 0 && at + 1 + n < text.size() && IsBracket(text[at + 1 + n])) return true;
    }
    return text.compare(at + 1, 3, "PRO") == 0 && at + 7 < text.size() && IsDigit(text[at + 4]) &&
           IsDigit(text[at + 5]) && IsDigit(text[at + 6]) && IsBracket(text[at + 7]);
}
} // namespace

std::string AsFileText(std::string text, std::size_t limit) {
    if (text.size() > limit) {
        std::size_t cut = limit;
        while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80) --cut;
        text.resize(cut);
    }
    // Taking a '#' out may join a "#" before it to a tag name ("##TITULO)"), so the search
    // steps back one place after each removal.
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        out += c;
        while (true) {
            const std::size_t hash = LastHashOfATag(out);
            if (hash == std::string::npos || !FileTagAt(out, hash)) break;
            out.erase(hash, 1);
        }
    }
    return out;
}

std::string Utf8ToWindows1252(const std::string& text) {
    if (IsAscii(text)) return text;
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const unsigned char lead = static_cast<unsigned char>(text[i]);
        char32_t c = 0;
        std::size_t length = 1;
        if (lead < 0x80) {
            c = lead;
        } else if ((lead & 0xE0) == 0xC0) {
            c = lead & 0x1F;
            length = 2;
        } else if ((lead & 0xF0) == 0xE0) {
            c = lead & 0x0F;
            length = 3;
        } else if ((lead & 0xF8) == 0xF0) {
            c = lead & 0x07;
            length = 4;
        } else {
            out += '?';
            ++i;
            continue;
        }
        if (i + length > text.size()) {
            out += '?';
            break;
        }
        for (std::size_t k = 1; k < length; ++k) c = (c << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3F);
        i += length;
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            out += static_cast<char>(c);
            continue;
        }
        char mapped = '?';
        for (int k = 0; k < 32; ++k)
            if (kHighControls[k] == c) mapped = static_cast<char>(0x80 + k);
        out += mapped;
    }
    return out;
}

std::string Windows1252ToUtf8(const std::string& bytes) {
    if (IsAscii(bytes)) return bytes;
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 4);
    for (unsigned char b : bytes) {
        if (b < 0x80)
            out += static_cast<char>(b);
        else if (b < 0xA0)
            AppendUtf8(out, kHighControls[b - 0x80]);
        else
            AppendUtf8(out, b);
    }
    return out;
}

std::string ProblemLine(const ProblemRecord& record, long long shownNumber) {
    return ProblemIdentity(record) + ZeroFilled(shownNumber, 4) + "\r\n";
}

std::string ProblemClipboardText(const ProblemRecord& record) {
    return std::string(kClipboardHead) + ProblemIdentity(record) + "#ENU(" + record.Statement + "#ENU)" + "#SOL(" +
           record.Solution + "#SOL)";
}

bool SplitProblemElement(const std::string& element, std::string& statement, std::string& solution) {
    const auto sol = element.find("#SOL(");
    // An element without "#SOL(" has its solution from the fifth character on.
    const std::size_t solutionStart = sol == std::string::npos ? 4 : sol + 5;
    if (solutionStart > element.size()) return false;
    std::string tail = element.substr(solutionStart);
    if (tail.size() < 5) return false;
    solution = tail.substr(0, tail.size() - 5);
    const std::size_t headLength = element.size() - solution.size();
    if (headLength < 15) return false;
    statement = headLength - 15 > 5 ? element.substr(5, headLength - 15 - 5) : "";
    return true;
}

void ReadClipboardProblem(const std::string& text, ProblemRecord& record) {
    const std::string body = text.substr(std::string(kClipboardHead).size());
    const std::string identity = Utf8Left(body, 96);
    ReadProblemIdentity(identity, record);
    const std::string rest = body.substr(identity.size());
    std::string statement;
    std::string solution;
    if (SplitProblemElement(rest, statement, solution)) {
        // Kept to what a file may hold, so that a collection with a pasted problem opens again.
        record.Statement = AsFileText(statement, kMaxProblemTextBytes);
        record.Solution = AsFileText(solution, kMaxProblemTextBytes);
    }
}

std::string CollectionText(const ApplicationState& app) {
    const CollectionSettings& s = app.Settings;
    std::string lines;
    lines.reserve(static_cast<std::size_t>(s.ProblemCount) * 102);
    for (int i = 1; i <= s.ProblemCount; ++i)
        lines += ProblemLine(app.Problems[i], static_cast<long long>(s.FirstProblemNumber) + i - 1);
    std::string text = "#CABECERA(";
    text += "#PROPARAM(" + Utf8ToWindows1252(lines) + "#PROPARAM)";
    text += "#TITULO(" + Utf8ToWindows1252(s.Title) + "#TITULO)";
    text += "#POSNUMPAG(" + std::to_string(s.PagePositionCode) + "#POSNUMPAG)";
    text += "#COLRESPRO(" + std::to_string(s.NumberColour) + "#COLRESPRO)";
    text += std::string("#ORDENA(") + (s.Sorted ? "1" : "0") + "#ORDENA)";
    text += "#PAGINI(" + std::to_string(s.FirstPageNumber) + "#PAGINI)";
    text += "#POSSOL(" + std::to_string(s.SolutionPosition) + "#POSSOL)";
    text += "#PROPRE(" + Utf8ToWindows1252(s.NumberPrefix) + "#PROPRE)";
    text += "#PROSUF(" + Utf8ToWindows1252(s.NumberSuffix) + "#PROSUF)";
    text += "#PROINI(" + std::to_string(s.FirstProblemNumber) + "#PROINI)";
    text += kBinDirEmpty;
    text += "#CABECERA)";
    for (int i = 1; i <= s.ProblemCount; ++i) {
        const std::string m = "#PRO" + BlockMark(i);
        const ProblemRecord& r = app.Problems[i];
        text += m + "(" + "#ENU(" + Utf8ToWindows1252(r.Statement) + "#ENU)" + "#SOL(" +
                Utf8ToWindows1252(r.Solution) + "#SOL)" + m + ")";
    }
    return text;
}

std::vector<std::string> ImageNames(const std::string& text) {
    std::vector<std::string> names;
    const std::string upper = Upper(text);
    std::size_t p = upper.find("#IMG(", 99);
    while (p != std::string::npos) {
        const auto close = upper.find("#IMG)", p + 5);
        const std::string inner = text.substr(p + 5, close == std::string::npos ? std::string::npos : close - p - 5);
        const auto first = inner.find('\'');
        const auto second = first == std::string::npos ? std::string::npos : inner.find('\'', first + 1);
        if (second != std::string::npos) {
            const std::string name = inner.substr(first + 1, second - first - 1);
            bool known = false;
            for (const auto& n : names) known = known || n == name;
            if (!known) names.push_back(name);
        }
        p = upper.find("#IMG(", p + 9);
    }
    return names;
}

bool BuildFileBytes(const ApplicationState& app, std::string& bytes, std::string& error) {
    std::string text = CollectionText(app);
    const std::vector<std::string> names = ImageNames(text);
    if (names.empty()) {
        bytes = std::move(text);
        return true;
    }
    std::size_t pos = text.size() + 48 * names.size() + 1;
    std::string directory;
    std::string data;
    for (const auto& name : names) {
        const std::string path = FindImage(app, Windows1252ToUtf8(name));
        std::string image;
        if (path.empty() || !ReadWholeFile(path, image)) {
            error = "Error: Cannot save the file.\r\nCannot find image " + Windows1252ToUtf8(name);
            return false;
        }
        directory += LeftJustified(name, 32) + LeftJustified(std::to_string(pos), 8) +
                     LeftJustified(std::to_string(image.size()), 8);
        data += image;
        pos += image.size();
    }
    const auto at = text.find(kBinDirEmpty);
    text.replace(at, kBinDirEmpty.size(), "#BINDIR(" + LeftJustified(std::to_string(text.size() + 1), 8) + "#BINDIR)");
    bytes = text + directory + data;
    return true;
}

bool SaveFile(ApplicationState& app) {
    std::string bytes;
    std::string error;
    if (!BuildFileBytes(app, bytes, error)) {
        app.window->ShowMessage(error, "Error", MessageIcon::Stop);
        return false;
    }
    // The new file is written whole beside the old one and only then takes its name, so
    // that a save that fails never destroys the file that was there.
    const std::string target = app.CurrentFileName;
    const SafeWriteResult written = WriteFileSafely(target, bytes, app.fileWriter);
    int errorNumber = 0;
    if (!written.ok()) {
        const int e = written.error;
        errorNumber = written.writeProtected                  ? 75
                      : (e == ENOSPC || e == EDQUOT)          ? 61
                      : (e == ENOENT || e == ENOTDIR)         ? 76
                                                              : 57;
    }
    const std::string& description = written.reason;
    if (errorNumber == 75) {
        app.window->ShowMessage("We are sorry, can't save the file: Write-protected. \r\nFilename: " + target +
                                    "\r\n\r\nPlease, select a different file name",
                                "", MessageIcon::Stop);
        app.window->RunSaveAs();
        return false;
    }
    if (errorNumber != 0) {
        app.window->ShowMessage("We are sorry, can't save the file.\r\nError number = " + std::to_string(errorNumber) +
                                    "\r\n" + description,
                                "", MessageIcon::Stop);
        return false;
    }
    app.Modified = false;
    return true;
}

void AvisoError(ApplicationState& app) {
    app.window->SetWaitCursor(false);
    app.window->ShowMessage("Bad file.", "Error", MessageIcon::Exclamation);
    NoColeccion(app);
}

bool OpenFile(ApplicationState& app) {
    app.window->SetBusy(true);
    const std::string name = app.CurrentFileName;
    if (name.size() < 4 || Upper(name.substr(name.size() - 4)) != ".COL") {
        // Refused, but said so, and with the menus and toolbar given back: a silent refusal
        // left them disabled and the collection on screen could no longer be saved.
        app.CurrentFileName.clear();
        app.window->SetBusy(false);
        app.window->SetWaitCursor(false);
        app.window->ShowMessage("Cannot open " + fs::path(name).filename().string() +
                                    ": the name of a problem collection ends in \".col\".",
                                "Error", MessageIcon::Exclamation);
        return false;
    }
    app.window->SetWaitCursor(true);
    std::string file;
    const OpenResult opened = ReadCollectionBytes(name, file);
    if (opened == OpenResult::CannotOpen) {
        // The system's reason says more than "Bad file." about a file that isn't there.
        const int e = errno;
        app.window->SetWaitCursor(false);
        app.window->ShowMessage("Cannot open " + name + ": " + std::strerror(e), "Error", MessageIcon::Exclamation);
        NoColeccion(app);
        return false;
    }
    if (opened == OpenResult::Bad) {
        AvisoError(app);
        return false;
    }
    const auto headEnd = file.find("#CABECERA)");
    if (headEnd == std::string::npos) {
        AvisoError(app);
        return false;
    }

    // The image directory and the image data, by the pointer of the head.
    long long dir = 0;
    std::string directory;
    std::string images;
    auto readDirectory = [&](const std::string& pointer) -> bool {
        dir = static_cast<long long>(std::clamp(LeadingNumber(pointer), -1.0, 1e15));
        if (dir == 0) return true;
        // A pointer outside the file, or data before the directory, is a damaged file.
        if (dir < 1 || static_cast<std::size_t>(dir) > file.size()) return false;
        const std::size_t dirIndex = static_cast<std::size_t>(dir - 1);
        const long long data = static_cast<long long>(
            LeadingNumber(dirIndex + 32 < file.size() ? file.substr(dirIndex + 32, 8) : std::string()));
        if (data < dir || static_cast<std::size_t>(data) > file.size() + 1) return false;
        directory = file.substr(dirIndex, static_cast<std::size_t>(data - dir));
        images = file.substr(static_cast<std::size_t>(data - 1));
        return true;
    };
    const auto binDir = file.find("#BINDIR(");
    if (binDir != std::string::npos && !readDirectory(file.substr(binDir + 8, 8))) {
        AvisoError(app);
        return false;
    }

    std::string head = headEnd > 10 ? file.substr(10, headEnd - 10) : "";
    std::string rest = TrimFileText(file.substr(headEnd + 10));

    struct Element {
        const char* open;
        const char* close;
    };
    static constexpr Element kElements[] = {
        {"#PROPARAM(", "#PROPARAM)"}, {"#TITULO(", "#TITULO)"}, {"#POSNUMPAG(", "#POSNUMPAG)"},
        {"#COLRESPRO(", "#COLRESPRO)"}, {"#ORDENA(", "#ORDENA)"}, {"#PAGINI(", "#PAGINI)"},
        {"#POSSOL(", "#POSSOL)"},     {"#PROPRE(", "#PROPRE)"}, {"#PROSUF(", "#PROSUF)"},
        {"#PROINI(", "#PROINI)"},
    };
    std::string values[10];
    for (int k = 0; k < 10; ++k) {
        if (!TakeElement(head, kElements[k].open, kElements[k].close, values[k])) {
            AvisoError(app);
            return false;
        }
    }
    std::string pointer;
    // Files of older versions have no directory pointer at all.
    if (TakeElement(head, "#BINDIR(", "#BINDIR)", pointer)) {
        directory.clear();
        images.clear();
        if (!readDirectory(pointer)) {
            AvisoError(app);
            return false;
        }
    }

    CollectionSettings& s = app.Settings;
    // A value too large for the field is held at the field's end rather than converted out
    // of range.
    auto number = [](const std::string& value) {
        const double v = LeadingNumber(value);
        return static_cast<std::int32_t>(std::clamp(v, -2147483648.0, 2147483647.0));
    };
    s.Title = Windows1252ToUtf8(values[1]);
    s.PagePositionCode = number(values[2]);
    s.NumberColour = number(values[3]);
    s.Sorted = LeadingNumber(values[4]) == 1;
    s.FirstPageNumber = number(values[5]);
    s.SolutionPosition = number(values[6]);
    s.NumberPrefix = Windows1252ToUtf8(values[7]);
    s.NumberSuffix = Windows1252ToUtf8(values[8]);
    s.FirstProblemNumber = number(values[9]);

    REG_To_Var(app, Windows1252ToUtf8(values[0]));
    if (app.ProblemCount() == 0) {
        app.window->SetWaitCursor(false);
        app.window->ShowMessage("Error: Bad file.", "", MessageIcon::None);
        NoColeccion(app);
        return false;
    }

    if (values[1].size() > kMaxTitleBytes || values[7].size() > kMaxAffixBytes || values[8].size() > kMaxAffixBytes) {
        AvisoError(app);
        return false;
    }

    const int n = app.ProblemCount();
    std::size_t from = 0;  // where the rest of the file begins
    for (int i = 1; i <= n; ++i) {
        const std::string close = "#PRO" + BlockMark(i) + ")";
        const auto at = rest.find(close, from);
        std::string statement;
        std::string solution;
        if (at == std::string::npos || at < from + 8 ||
            !SplitProblemElement(rest.substr(from + 8, at - from - 8), statement, solution) ||
            statement.size() > kMaxProblemTextBytes || solution.size() > kMaxProblemTextBytes) {
            AvisoError(app);
            return false;
        }
        app.Problems[i].Statement = Windows1252ToUtf8(statement);
        app.Problems[i].Solution = Windows1252ToUtf8(solution);
        from = at + close.size();
    }

    if (dir != 0) {
        // More pictures than any collection can name is a damaged file, not work to do.
        if (directory.size() / 48 > kMaxPictures) {
            AvisoError(app);
            return false;
        }
        std::size_t offset = 0;
        std::vector<std::pair<std::string, std::string>> pictures;
        for (std::size_t e = 0; e + 48 <= directory.size(); e += 48) {
            const std::string imageName = Windows1252ToUtf8(TrimBlanks(directory.substr(e, 32)));
            const double length = LeadingNumber(directory.substr(e + 40, 8));
            if (length < 0 || offset + static_cast<std::size_t>(length) > images.size()) {
                AvisoError(app);
                return false;
            }
            pictures.emplace_back(imageName, images.substr(offset, static_cast<std::size_t>(length)));
            offset += static_cast<std::size_t>(length);
        }
        for (const auto& [imageName, bytes] : pictures) StorePicture(app, imageName, bytes);
    }

    ActualizaMenusCheckeados(app);
    ComposeDocument(app, true, 1);
    app.Modified = false;
    app.window->SetCaption(fs::path(name).filename().string() + "  -  " + app.ApplicationTitle);
    app.window->AddRecentFile(name);
    HayColeccion(app);
    SetUNDO(app, "");
    app.menus->ActualizarBotones();
    return true;
}
