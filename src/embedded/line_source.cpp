// Block-wise reading. A line longer than the block makes the buffer grow.
#include "embedded/line_source.h"

#include <simdjson.h>

#include <cstring>

namespace kv
{
namespace
{
constexpr std::size_t BlockSize = std::size_t(1) << 20;
}

LineSource::LineSource(QIODevice& device)
    : device_(device), buffer_(new char[BlockSize + simdjson::SIMDJSON_PADDING]()), capacity_(BlockSize)
{
}

bool LineSource::next(Line& line)
{
    for (;;)
    {
        const char* start = buffer_.get() + begin_;
        if (const void* found = std::memchr(buffer_.get() + scanned_, '\n', end_ - scanned_))
        {
            const auto size = static_cast<std::size_t>(static_cast<const char*>(found) - start);
            line = {start, size, true};
            begin_ += size + 1;
            scanned_ = begin_;
            return true;
        }
        scanned_ = end_;
        if (!fill())
        {
            line = {buffer_.get() + begin_, end_ - begin_, false};
            begin_ = end_;
            return line.size > 0 && !failed_;
        }
    }
}

bool LineSource::fill()
{
    if (atEnd_)
    {
        return false;
    }
    const std::size_t kept = end_ - begin_;
    if (kept > capacity_ / 2)
    {
        capacity_ *= 2;
        std::unique_ptr<char[]> larger(new char[capacity_ + simdjson::SIMDJSON_PADDING]());
        std::memcpy(larger.get(), buffer_.get() + begin_, kept);
        buffer_ = std::move(larger);
    }
    else
    {
        std::memmove(buffer_.get(), buffer_.get() + begin_, kept);
    }
    begin_ = 0;
    scanned_ = kept;
    end_ = kept;

    const qint64 count = device_.read(buffer_.get() + end_, static_cast<qint64>(capacity_ - end_));
    atEnd_ = count <= 0;
    failed_ = count < 0;
    end_ += atEnd_ ? 0 : static_cast<std::size_t>(count);
    return !atEnd_;
}
} // namespace kv
