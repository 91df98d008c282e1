#include "core/safe_write.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {
constexpr int kMostLinks = 40;
constexpr int kNameTries = 100;

SafeWriteResult Failure(int error, const std::string& reason = "") {
    SafeWriteResult r;
    r.error = error;
    r.writeProtected = error == EACCES || error == EPERM || error == EROFS || error == EISDIR;
    r.reason = reason.empty() ? std::strerror(error) : reason;
    return r;
}

std::string RandomSuffix(std::mt19937& random) {
    static constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    std::string suffix;
    for (int k = 0; k < 8; ++k) suffix += kLetters[random() % (sizeof kLetters - 1)];
    return suffix;
}

// A new file of a name nobody holds, next to the target: O_EXCL refuses any name that
// exists, a link or a folder planted there included.
int CreateTemporary(const std::string& target, std::string& name) {
    std::random_device seed;
    std::mt19937 random(seed());
    for (int attempt = 0; attempt < kNameTries; ++attempt) {
        name = target + "x" + RandomSuffix(random);
        const int fd = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    errno = EEXIST;
    return -1;
}

bool WriteAll(int fd, const std::string& bytes, const ByteWriter& writer) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        errno = 0;
        const long n = writer ? writer(fd, bytes.data() + done, bytes.size() - done)
                              : static_cast<long>(::write(fd, bytes.data() + done, bytes.size() - done));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            if (n == 0 || errno == 0) errno = ENOSPC;
            return false;
        }
        done += static_cast<std::size_t>(n);
    }
    return true;
}

void SyncFolder(const std::string& file) {
    const std::string folder = fs::path(file).parent_path().string();
    const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}
} // namespace

std::string FollowLinks(const std::string& path) {
    std::string current = path;
    for (int hop = 0; hop < kMostLinks; ++hop) {
        struct stat st {};
        if (::lstat(current.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return current;
        std::error_code ec;
        const fs::path link = fs::read_symlink(current, ec);
        if (ec) return current;
        current = link.is_absolute() ? link.string() : (fs::path(current).parent_path() / link).string();
    }
    return "";
}

namespace {
// The checks of the target that need no temporary file; old is filled when it exists.
SafeWriteResult CheckFile(const std::string& file, struct stat& old, bool& exists) {
    exists = ::lstat(file.c_str(), &old) == 0;
    if (!exists) return {};
    if (S_ISDIR(old.st_mode)) return Failure(EISDIR);
    // A device or a pipe is never replaced by a plain file.
    if (!S_ISREG(old.st_mode)) return Failure(EINVAL, "not a regular file");
    // Without any write permission the file is write-protected, also for the superuser,
    // whom the system would let replace it.
    if ((old.st_mode & 0222) == 0 || ::access(file.c_str(), W_OK) != 0) return Failure(EACCES);
    return {};
}
} // namespace

SafeWriteResult CheckWriteTarget(const std::string& target) {
    if (target.empty()) return Failure(ENOENT);
    const std::string file = FollowLinks(target);
    if (file.empty()) return Failure(ELOOP);
    struct stat old {};
    bool exists = false;
    if (SafeWriteResult r = CheckFile(file, old, exists); !r.ok()) return r;
    const std::string folder = fs::path(file).parent_path().string();
    struct stat dir {};
    if (::stat(folder.empty() ? "." : folder.c_str(), &dir) != 0) return Failure(errno);
    if (!S_ISDIR(dir.st_mode)) return Failure(ENOTDIR);
    if (::access(folder.empty() ? "." : folder.c_str(), W_OK) != 0) return Failure(errno);
    return {};
}

SafeWriteResult WriteFileSafely(const std::string& target, const std::string& bytes, const ByteWriter& writer) {
    if (target.empty()) return Failure(ENOENT);
    const std::string file = FollowLinks(target);
    if (file.empty()) return Failure(ELOOP);
    struct stat old {};
    bool exists = false;
    if (SafeWriteResult r = CheckFile(file, old, exists); !r.ok()) return r;

    std::string temporary;
    const int fd = CreateTemporary(file, temporary);
    if (fd < 0) return Failure(errno);
    if (exists) {
        // The new file takes the old one's permissions and, where the system allows it, owner.
        if (::geteuid() == 0) {
            const int owned = ::fchown(fd, old.st_uid, old.st_gid);
            (void)owned;
        }
        ::fchmod(fd, old.st_mode & 07777);
    }
    bool good = WriteAll(fd, bytes, writer) && ::fsync(fd) == 0;
    int error = errno;
    if (::close(fd) != 0 && good) {
        good = false;
        error = errno;
    }
    if (good && ::rename(temporary.c_str(), file.c_str()) != 0) {
        good = false;
        error = errno;
    }
    if (!good) {
        ::unlink(temporary.c_str());
        return Failure(error != 0 ? error : EIO);
    }
    SyncFolder(file);
    return {};
}
