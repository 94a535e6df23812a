// libFuzzer target: any bytes through the reader and the conversion.
#include "support/any_bytes.h"

#include <QtCore/QCoreApplication>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static const QCoreApplication application(*argc, *argv);
    return 0;
}

// The length chooses the language, so that a saved input gives the same again. A logic_error ends the program, which
// is how the fuzzer learns of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t languages = 6;
    static AnyBytes bytes;
    bytes.Take(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)),
               static_cast<std::uint32_t>(size % languages));
    return 0;
}
