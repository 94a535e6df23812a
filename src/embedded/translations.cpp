// Looking words up.
#include "embedded/translations.h"

namespace kv
{
void Translations::add(const QString& context, const QString& source, const QString& word)
{
    words_.insert({context, source}, word);
}

QString Translations::translate(const char* context, const char* source, const char* /*disambiguation*/,
                                int /*n*/) const
{
    return words_.value({QString::fromUtf8(context), QString::fromUtf8(source)});
}
} // namespace kv
