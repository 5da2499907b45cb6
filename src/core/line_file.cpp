#include "core/line_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace tav {
namespace {

constexpr std::size_t kBlock = std::size_t{64} * 1024;
constexpr std::size_t kLongestLine = std::size_t{64} * 1024 * 1024;

[[noreturn]] void RaiseOpenError(const std::string& fileName, int error) {
    switch (error) {
        case ENOENT: {
            std::error_code ignored;
            const auto folder = std::filesystem::path(fileName).parent_path();
            const bool there = folder.empty() || std::filesystem::is_directory(folder, ignored);
            Raise(there ? kFileNotFound : kPathNotFound);
        }
        case ENOTDIR: Raise(kPathNotFound);
        case EACCES:
        case EPERM:
        case EROFS: Raise(kPermissionDenied);
        case EISDIR: Raise(kPathFileAccessError);
        case ENAMETOOLONG: Raise(kBadFileName);
        case ENOSPC: Raise(kDiskFull);
        default: Raise(kPathFileAccessError);
    }
}

FileHandle Open(const std::string& fileName, const char* mode) {
    errno = 0;
    FileHandle file(std::fopen(fileName.c_str(), mode));
    if (!file) RaiseOpenError(fileName, errno);
    // Blocks are put together here; a second buffer would only copy them once more.
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    return file;
}

[[noreturn]] void RaiseTransferError(int error) {
    if (error == ENOSPC) Raise(kDiskFull);
    if (error == EISDIR) Raise(kPathFileAccessError);
    Raise(kDeviceIOError);
}

}  // namespace

LineReader::LineReader(FileHandle file) : file_(std::move(file)), buffer_(kBlock) {
    FillBuffer();  // A folder opens, but can't be read.
}

LineReader::LineReader(const std::string& fileName) : LineReader(Open(fileName, "rb")) {}

bool LineReader::FillBuffer() {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
    if (end_ == buffer_.size()) {
        if (buffer_.size() >= kLongestLine) Raise(kOutOfStringSpace);
        buffer_.resize(buffer_.size() * 2);
    }
    errno = 0;
    const std::size_t count =
        std::fread(buffer_.data() + end_, 1, buffer_.size() - end_, file_.get());
    if (count == 0 && std::ferror(file_.get()) != 0) RaiseTransferError(errno);
    end_ += count;
    return count > 0;
}

std::string_view LineReader::ReadLine() {
    ++line_;
    text_ = {};
    std::size_t searched = 0;
    for (;;) {
        const char* start = buffer_.data() + begin_;
        const void* found = std::memchr(start + searched, '\n', end_ - begin_ - searched);
        if (found != nullptr) {
            auto length = static_cast<std::size_t>(static_cast<const char*>(found) - start);
            begin_ += length + 1;
            if (length > 0 && start[length - 1] == '\r') --length;
            return text_ = {start, length};
        }
        searched = end_ - begin_;
        if (!FillBuffer()) break;
    }
    if (begin_ == end_) Raise(kInputPastEnd);
    text_ = {buffer_.data() + begin_, end_ - begin_};
    begin_ = end_;
    return text_;
}

LineWriter::LineWriter(const std::string& fileName) : LineWriter(Open(fileName, "wb")) {}

LineWriter::LineWriter(FileHandle file) : file_(std::move(file)) {}

void LineWriter::WriteLine(std::string_view text) {
    pending_ += text;
    pending_ += "\r\n";
    if (pending_.size() >= kBlock) Flush();
}

void LineWriter::Flush() {
    errno = 0;
    const std::size_t written = std::fwrite(pending_.data(), 1, pending_.size(), file_.get());
    const bool whole = written == pending_.size();
    pending_.clear();
    if (!whole) RaiseTransferError(errno);
}

void LineWriter::Close() {
    Flush();
    errno = 0;
    if (std::fclose(file_.release()) != 0) RaiseTransferError(errno);
}

}  // namespace tav
