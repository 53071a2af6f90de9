#ifdef _WIN32
#include <filesystem>

#include <windows.h>

#include "automation/FilePath.h"
#include "workbench/company/NewFile.h"

namespace tsln::workbench {
namespace {

std::string sentence(DWORD error) {
    switch (error) {
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
            return "You do not have the permission for its folder.";
        case ERROR_WRITE_PROTECT:
            return "Its folder can only be read.";
        case ERROR_PATH_NOT_FOUND:
        case ERROR_FILE_NOT_FOUND:
        case ERROR_BAD_NETPATH:
            return "Its folder does not exist.";
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return "The disk is full.";
        case ERROR_INVALID_NAME:
            return "Its name contains characters that a file name cannot contain.";
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BUFFER_OVERFLOW:
            return "Its name is too long.";
        default:
            return "The system reports error " + std::to_string(error) + ".";
    }
}

/// A file that is removed in the end unless it was moved to its place. A failure leaves its reason in GetLastError().
class TemporaryFile {
  public:
    explicit TemporaryFile(std::wstring path)
        : path_(std::move(path)),
          file_(CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                            nullptr)) {}
    ~TemporaryFile() {
        close();
        if (!moved_ && created_) DeleteFileW(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool isOpen() const { return file_ != INVALID_HANDLE_VALUE; }
    bool write(const unsigned char* bytes, std::size_t size) {
        while (size > 0) {
            DWORD written = 0;
            const DWORD piece = size > mostAtOnce ? mostAtOnce : static_cast<DWORD>(size);
            if (!WriteFile(file_, bytes, piece, &written, nullptr)) return false;
            bytes += written;
            size -= written;
        }
        return FlushFileBuffers(file_);
    }
    bool moveTo(const std::wstring& path) {
        close();
        moved_ = MoveFileExW(path_.c_str(), path.c_str(), MOVEFILE_WRITE_THROUGH);
        return moved_ || GetLastError() == ERROR_ALREADY_EXISTS || GetLastError() == ERROR_FILE_EXISTS;
    }

  private:
    static constexpr DWORD mostAtOnce = 1 << 26;

    void close() {
        if (isOpen()) CloseHandle(file_);
        file_ = INVALID_HANDLE_VALUE;
    }

    std::wstring path_;
    HANDLE file_;
    bool created_ = isOpen();
    bool moved_ = false;
};

}  // namespace

std::string writeNewFile(const std::string& path, const unsigned char* bytes, std::size_t size) {
    const std::wstring wide = pathOf(path).wstring();
    TemporaryFile file(wide + L".new-" + std::to_wstring(GetCurrentProcessId()));
    const bool written = file.isOpen() && file.write(bytes, size) && file.moveTo(wide);
    return written ? std::string() : sentence(GetLastError());
}

}  // namespace tsln::workbench
#endif
