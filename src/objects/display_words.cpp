// The application's display words in the language of its user.
#include "objects/display_words.h"

#include <QtCore/QCoreApplication>

const QString& DisplayWords::Translate(Context context, const char* word) const
{
    static constexpr std::array names = {"property_types", "property_values", "property_groups"};
    const auto index = static_cast<std::size_t>(context);
    QHash<const char*, QString>& known = words_.at(index);
    auto found = known.find(word);
    if (found == known.end())
    {
        found = known.insert(word, QCoreApplication::translate(names.at(index), word));
    }
    return *found;
}
