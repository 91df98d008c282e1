#include <QBuffer>
#include <QImage>
#include <iostream>

#include "cli/cli_commands.h"
#include "core/safe_write.h"

namespace {
// The program says "Write-protected" for a file or folder that refuses to be written.
std::string Reason(const SafeWriteResult& r) { return r.writeProtected ? "Write-protected" : r.reason; }
} // namespace

bool CheckOutputFile(const std::string& path, const char* command) {
    const SafeWriteResult r = CheckWriteTarget(path);
    if (r.ok()) return true;
    std::cerr << "sumforge-cli " << command << ": cannot write '" << path << "': " << Reason(r) << "\n";
    return false;
}

bool SaveOutputFile(const std::string& path, const QByteArray& bytes, const char* command) {
    const SafeWriteResult r = WriteFileSafely(path, bytes.toStdString());
    if (r.ok()) return true;
    std::cerr << "sumforge-cli " << command << ": cannot write '" << path << "': " << Reason(r) << "\n";
    return false;
}

bool SavePng(const std::string& path, const QImage& image, const char* command) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) {
        std::cerr << "sumforge-cli " << command << ": cannot make the picture for '" << path << "'\n";
        return false;
    }
    return SaveOutputFile(path, bytes, command);
}
