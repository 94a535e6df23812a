// The lines of a file in memory that a JSON parser can read in place.
#pragma once

#include <QtCore/QIODevice>

#include <memory>

namespace kv
{
class LineSource
{
public:
    struct Line
    {
        const char* data = nullptr; // valid until the next line; enough bytes behind it may be read
        std::size_t size = 0;       // without the line end
        bool ended = false;         // false for a last line without line end
    };

    // Reads from an open device in blocks.
    explicit LineSource(QIODevice& device);

    // The next line; false at the end of the file and when reading fails.
    [[nodiscard]] bool next(Line& line);

    // True when reading failed before the end of the file.
    [[nodiscard]] bool failed() const { return failed_; }

private:
    [[nodiscard]] bool fill();

    QIODevice& device_;
    std::unique_ptr<char[]> buffer_;
    std::size_t capacity_;
    std::size_t begin_ = 0;   // of the next line
    std::size_t scanned_ = 0; // no line end stands between begin_ and here
    std::size_t end_ = 0;
    bool atEnd_ = false;
    bool failed_ = false;
};
} // namespace kv
