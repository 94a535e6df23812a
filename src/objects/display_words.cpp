// The application's display words in the language of its user.
#include "objects/display_words.h"

#include <QtCore/QCoreApplication>

const DisplayWords::Word& DisplayWords::Look(Context context, const char* word) const
{
    static constexpr std::array names = {"property_types", "property_values", "property_groups"};
    const auto index = static_cast<std::size_t>(context);
    auto& [all, recent] = words_.at(index);
    const auto address = reinterpret_cast<std::uintptr_t>(word);
    Recent& last = recent.at((address ^ (address >> 9)) % recentSize);
    if (last.address != word)
    {
        auto found = all.constFind(word);
        if (found == all.constEnd())
        {
            const QLatin1String plain(word);
            const QString translation = QCoreApplication::translate(names.at(index), word);
            found = all.insert(word, {plain, translation, LengthBit(plain.size()) | LengthBit(translation.size()),
                                      translation != plain});
        }
        last = {word, *found};
    }
    return last.word;
}
