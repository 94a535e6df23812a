// A text file that is written as UTF-8 with line feeds.
#include "core/text_file.h"

#include "core/converter_impl.h"

#include <algorithm>

namespace
{
// Large enough that the system calls don't count, small enough to stay in the cache.
constexpr int PieceSize = 64 * 1024;
// Appends a text as UTF-8. Most texts are plain ASCII, which needs no copy between.
void AppendUtf8(QByteArray& bytes, const QString& text)
{
    const int before = bytes.size();
    bytes.resize(before + text.size());
    char16_t all = 0;
    std::ranges::transform(text, bytes.begin() + before,
                           [&](QChar character)
                           {
                               all |= character.unicode();
                               return static_cast<char>(character.unicode());
                           });
    if (all >= 0x80)
    {
        bytes.resize(before);
        bytes.append(text.toUtf8());
    }
}
} // namespace

TextFile::TextFile(const QString& path) : file_(path) {}

TextFile::~TextFile()
{
    if (file_.isOpen())
    {
        Flush();
    }
}

bool TextFile::Open(bool byteOrderMark)
{
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Text))
    {
        return false;
    }
    pending_.reserve(PieceSize * 2);
    if (byteOrderMark)
    {
        pending_.append("\xEF\xBB\xBF");
    }
    return true;
}

void TextFile::Write(const QString& text)
{
    AppendUtf8(pending_, text);
    if (pending_.size() >= PieceSize)
    {
        Flush();
    }
}

void TextFile::Flush()
{
    if (!pending_.isEmpty() && file_.write(pending_) != pending_.size())
    {
        failed_ = true;
    }
    pending_.resize(0);
}

bool TextFile::Close()
{
    Flush();
    // QFile keeps a buffer of its own, whose failure shows only here.
    failed_ = !file_.flush() || failed_;
    file_.close();
    return !failed_;
}

void TextFile::Remove()
{
    file_.close();
    file_.remove();
}

bool CZtConverterKVAPIImpl::WriteTextFile(const QString& path, const QString& text, bool byteOrderMark)
{
    TextFile file(path);
    if (!file.Open(byteOrderMark))
    {
        return false;
    }
    file.Write(text);
    return file.Close();
}
