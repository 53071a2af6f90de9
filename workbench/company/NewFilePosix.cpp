#ifndef _WIN32
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

#include "workbench/company/NewFile.h"

namespace tsln::workbench {
namespace {

std::string sentence(int error) {
    switch (error) {
        case EACCES:
        case EPERM:
            return "You do not have the permission for its folder.";
        case EROFS:
            return "Its folder can only be read.";
        case ENOENT:
        case ENOTDIR:
            return "Its folder does not exist.";
        case ENOSPC:
        case EDQUOT:
            return "The disk is full.";
        case ENAMETOOLONG:
            return "Its name is too long.";
        default:
            return std::string(std::strerror(error)) + ".";
    }
}

/// A file that is removed in the end unless it was moved to its place. A failure leaves its reason in errno.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& path)
        : path_(path + ".new-" + std::to_string(::getpid())),
          file_(::open(path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666)) {}
    ~TemporaryFile() {
        if (!isOpen()) return;
        ::close(file_);
        ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool isOpen() const { return file_ >= 0; }
    bool write(const unsigned char* bytes, std::size_t size) {
        while (size > 0) {
            const ssize_t written = ::write(file_, bytes, size);
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) return false;
            bytes += written;
            size -= std::size_t(written);
        }
        return ::fsync(file_) == 0;
    }
    /// A hard link never replaces a file that was created in the meantime. A file system without hard links gets a
    /// rename instead.
    bool moveTo(const std::string& path) {
        if (::link(path_.c_str(), path.c_str()) == 0) return true;
        if (errno == EEXIST) return true;  // the other program's file is equivalent
        return ::rename(path_.c_str(), path.c_str()) == 0;
    }

  private:
    std::string path_;
    int file_;
};

}  // namespace

std::string writeNewFile(const std::string& path, const unsigned char* bytes, std::size_t size) {
    TemporaryFile file(path);
    return file.isOpen() && file.write(bytes, size) && file.moveTo(path) ? std::string() : sentence(errno);
}

}  // namespace tsln::workbench
#endif
