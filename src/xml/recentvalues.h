#pragma once

#include <QtCore/QVarLengthArray>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace vorn {

/// What was made of the texts that came up lately. The same few texts come up again and again in a reply, so that most
/// are found here; one that is not costs little more than to make its value.
///
/// Keeps no copy of the texts: they must live as long as this does.
template <typename Value>
class RecentValues
{
public:
    /// The value for \a text, which \a make makes of it unless it is remembered. Valid until the next call.
    template <typename Make>
    const Value &of(std::string_view text, const Make &make)
    {
        const std::size_t place = placeOf(text);
        for (std::size_t candidate = place; candidate < place + tries; ++candidate) {
            std::uint16_t &number = m_numbers[candidate % places];
            if (number == 0) {
                m_entries.push_back({text, make(text)});
                number = static_cast<std::uint16_t>(m_entries.size());
                return m_entries.back().value;
            }
            if (m_entries[number - 1U].text == text)
                return m_entries[number - 1U].value;
        }
        Entry &replaced = m_entries[m_numbers[place] - 1U];
        replaced = Entry{text, make(text)};
        return replaced.value;
    }

private:
    static constexpr std::size_t places = 256;
    static constexpr std::size_t tries = 4;

    struct Entry
    {
        std::string_view text;
        Value value;
    };

    template <typename Word>
    static std::uint64_t wordAt(const char *bytes)
    {
        Word word = 0;
        std::memcpy(&word, bytes, sizeof word);
        return word;
    }

    /// The length, the first and the last bytes are enough to tell the words of one vocabulary apart.
    static std::size_t placeOf(std::string_view text)
    {
        const std::size_t size = text.size();
        const char *end = text.data() + size;
        std::uint64_t mixed = size;
        if (size >= 8)
            mixed += wordAt<std::uint64_t>(text.data()) * 3 + wordAt<std::uint64_t>(end - 8);
        else if (size >= 4)
            mixed += (wordAt<std::uint32_t>(text.data()) << 32U) + wordAt<std::uint32_t>(end - 4);
        else if (size > 0)
            mixed += (wordAt<std::uint8_t>(text.data()) << 16U) + (wordAt<std::uint8_t>(text.data() + size / 2) << 8U)
                     + wordAt<std::uint8_t>(end - 1);
        return static_cast<std::size_t>(mixed * 0x9E3779B97F4A7C15U >> 56U);
    }

    std::array<std::uint16_t, places> m_numbers = {}; // of the entry at each place, from 1; 0 where there is none
    QVarLengthArray<Entry, 32> m_entries;             // most replies need no more
};

} // namespace vorn
