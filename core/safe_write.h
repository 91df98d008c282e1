#pragma once
#include <cstddef>
#include <functional>
#include <string>

// Writes a whole file so that the old one survives any failure: the bytes go to a fresh
// temporary file beside the target (created exclusively, never through a link planted
// there), every write and the close are checked, the data is synced to the disk, and only
// then the temporary file takes the target's name. The target keeps its permissions; a
// symbolic link as target is saved through to the file it names. Used for collections,
// PDF files and pictures alike.

// Writes up to size bytes to the open descriptor; returns the count written or -1 with
// errno set, as ::write does. Tests put a failing one in its place.
using ByteWriter = std::function<long(int descriptor, const char* data, std::size_t size)>;

struct SafeWriteResult {
    int error = 0;            // 0 on success, else the errno value of the failing step
    bool writeProtected = false;  // the target, or its folder, refuses to be written
    std::string reason;       // the system's description of error, for messages
    bool ok() const { return error == 0; }
};

// Whether the target may be written at all (its folder exists, it is no folder, device or
// write-protected file), before any work is spent on its bytes.
SafeWriteResult CheckWriteTarget(const std::string& target);

SafeWriteResult WriteFileSafely(const std::string& target, const std::string& bytes, const ByteWriter& writer = {});

// The file a path names after following symbolic links, also when the last one dangles
// (saving through it creates that file). The path itself when it is no link.
std::string FollowLinks(const std::string& path);
