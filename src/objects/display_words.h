// The application's display words in the language of its user.
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include <array>

// Keeps what the application answered, since every property of every event is looked up by its words. Lives for one
// conversion, in which the translations don't change.
class DisplayWords
{
public:
    enum class Context
    {
        PropertyTypes,
        PropertyValues,
        PropertyGroups,
    };

    // The word in the user's language. The word must be a literal: it is known by its address.
    [[nodiscard]] const QString& Translate(Context context, const char* word) const;

    // True when a text of the journal is the translated word.
    [[nodiscard]] bool Matches(Context context, const char* word, const QString& text,
                               Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) const
    {
        return text.compare(Translate(context, word), sensitivity) == 0;
    }

private:
    mutable std::array<QHash<const char*, QString>, 3> words_;
};
