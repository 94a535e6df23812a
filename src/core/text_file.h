// A text file that is written as UTF-8 with line feeds, in large pieces.
#pragma once

#include <QtCore/QFile>

class TextFile
{
public:
    explicit TextFile(const QString& path);

    // Writes what is left to a file that is still open, as when an exception ends the conversion.
    ~TextFile();
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;

    // Opens the file for writing in text mode, an existing file being replaced, and writes the byte order mark when
    // asked for; false when the file can't be opened.
    [[nodiscard]] bool Open(bool byteOrderMark);

    // Appends a text. A failure is told by Close.
    void Write(const QString& text);

    // Writes what is left and closes the file; false when any of the writing failed.
    [[nodiscard]] bool Close();

    // Closes the file and removes it from disk.
    void Remove();

private:
    void Flush();

    QFile file_;
    QByteArray pending_;
    bool failed_ = false;
};
