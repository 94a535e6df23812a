// The application's display words in the language of its user.
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include <algorithm>
#include <array>
#include <cstdint>

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

    // A word in both forms, and the lengths that a text has which is one of them: bit n is the length n, modulo 64.
    struct Word
    {
        const char* plain = nullptr;
        QString translation;
        std::uint64_t lengths = 0;
        bool isTranslated = false;

        [[nodiscard]] bool IsEither(const QString& text) const
        {
            return (text.size() == translation.size() &&
                    std::equal(text.cbegin(), text.cend(), translation.cbegin())) ||
                   (isTranslated && text == QLatin1String(plain));
        }
    };

    // The word as the user's language has it. The word must be a literal: it is known by its address. Valid until the
    // next call.
    [[nodiscard]] const Word& Look(Context context, const char* word) const
    {
        auto& recent =
            words_[static_cast<std::size_t>(context)].recent; // NOLINT(*-constant-array-index): an enumerator
        const auto address = reinterpret_cast<std::uintptr_t>(word);
        Word& last = recent[(address ^ (address >> 8U)) % recentSize]; // NOLINT(*-constant-array-index): below its size
        if (last.plain != word)
        {
            last = Find(context, word);
        }
        return last;
    }
    [[nodiscard]] const QString& Translate(Context context, const char* word) const
    {
        return Look(context, word).translation;
    }

    [[nodiscard]] static std::uint64_t LengthBit(int length)
    {
        return std::uint64_t{1} << (static_cast<unsigned>(length) % 64U);
    }

    // True when a text of the journal is the translated word.
    [[nodiscard]] bool Matches(Context context, const char* word, const QString& text,
                               Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) const
    {
        return text.compare(Translate(context, word), sensitivity) == 0;
    }

private:
    [[nodiscard]] const Word& Find(Context context, const char* word) const;

    static constexpr std::size_t recentSize = 256;
    struct Words
    {
        QHash<const char*, Word> all;
        // The words last asked for, by a few bits of their address: most events ask for the same ones in turn.
        std::array<Word, recentSize> recent;
    };
    mutable std::array<Words, 3> words_;
};
