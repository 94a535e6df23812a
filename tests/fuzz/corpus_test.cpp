// The fuzzer's corpus as an ordinary test: each input in each language.
#include "support/any_bytes.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>

namespace
{
TEST(FuzzCorpus, EachInputIsRefusedOrConverted)
{
    const QDir corpus(QStringLiteral(KV_SOURCE_DIR "/tests/fuzz/corpus"));
    const QStringList names = corpus.entryList(QDir::Files, QDir::Name);
    ASSERT_FALSE(names.isEmpty());
    AnyBytes bytes;
    for (const QString& name : names)
    {
        QFile file(corpus.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        const QByteArray input = file.readAll();
        for (std::uint32_t language = 0; language < 6; ++language)
        {
            EXPECT_NO_THROW(static_cast<void>(bytes.Take(input, language)))
                << name.toStdString() << ", language " << language;
        }
    }
}
} // namespace
