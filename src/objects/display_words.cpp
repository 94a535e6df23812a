// The application's display words in the language of its user.
#include "objects/display_words.h"

#include <QtCore/QCoreApplication>

const DisplayWords::Word& DisplayWords::Find(Context context, const char* word) const
{
    static constexpr std::array names = {"property_types", "property_values", "property_groups"};
    const auto index = static_cast<std::size_t>(context);
    auto& all = words_.at(index).all;
    auto found = all.find(word);
    if (found == all.end())
    {
        const QLatin1String plain(word);
        const QString translation = QCoreApplication::translate(names.at(index), word);
        found = all.insert(
            word, {word, translation, LengthBit(plain.size()) | LengthBit(translation.size()), translation != plain});
    }
    return *found;
}
