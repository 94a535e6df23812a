// What the reader and the conversion must make of any bytes: faults, a macro, or a failure that leaves no macro.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QTemporaryDir>

#include <cstdint>

class AnyBytes
{
public:
    enum class Outcome
    {
        Refused,
        Converted,
        Failed,
    };

    // Reads the bytes as a journal file and, when they are one, converts it into the language. Throws std::logic_error
    // when what happened doesn't fit together: a refusal without a fault, a result without its file or a file without
    // its result.
    Outcome Take(const QByteArray& bytes, std::uint32_t language);

private:
    QTemporaryDir folder_;
};
