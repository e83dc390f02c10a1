// A bounded cache of ICU's costly objects, by what they were made of. Looking one up makes no copies.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Simulator {

/// Empty where a part has no meaning for the kind of object.
struct StyleKey {
    std::u16string_view pattern;
    std::string_view locale;
    std::string_view calendar;
    std::string_view timeZone;

    friend bool operator==(const StyleKey&, const StyleKey&) = default;
};

template <class Value>
class StyleCache {
public:
    /// The value of the key, made by `make(key)` if it is not there; the one unused for longest makes room.
    template <class Make>
    Value& find(const StyleKey& key, Make&& make)
    {
        auto found = m_entries.find(key);
        if (found == m_entries.end()) {
            if (m_entries.size() >= mostEntries)
                dropLeastRecentlyUsed();
            found = m_entries.emplace(OwnedKey(key), Entry{make(key), 0}).first;
        }
        found->second.lastUse = ++m_uses;
        return found->second.value;
    }
    std::size_t size() const { return m_entries.size(); }
    void clear() { m_entries.clear(); }

private:
    static constexpr std::size_t mostEntries = 64;

    struct OwnedKey {
        std::u16string pattern;
        std::string locale;
        std::string calendar;
        std::string timeZone;

        explicit OwnedKey(const StyleKey& key)
            : pattern(key.pattern)
            , locale(key.locale)
            , calendar(key.calendar)
            , timeZone(key.timeZone)
        {
        }
        operator StyleKey() const { return {pattern, locale, calendar, timeZone}; }
    };

    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const StyleKey& key) const
        {
            std::size_t hash = std::hash<std::u16string_view>{}(key.pattern);
            for (const auto& part : {key.locale, key.calendar, key.timeZone})
                hash = hash * 31 + std::hash<std::string_view>{}(part);
            return hash;
        }
    };

    struct Equal {
        using is_transparent = void;
        bool operator()(const StyleKey& one, const StyleKey& other) const { return one == other; }
    };

    struct Entry {
        Value value;
        std::uint64_t lastUse;
    };

    void dropLeastRecentlyUsed()
    {
        auto oldest = m_entries.begin();
        for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
            if (entry->second.lastUse < oldest->second.lastUse)
                oldest = entry;
        }
        m_entries.erase(oldest);
    }

    std::unordered_map<OwnedKey, Entry, Hash, Equal> m_entries;
    std::uint64_t m_uses = 0;
};

}
