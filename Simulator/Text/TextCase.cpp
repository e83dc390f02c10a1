// Case mapping and sorting by ICU.
#include "Simulator/Text/TextCase.hpp"

#include "Simulator/Text/IcuNames.hpp"

#include <unicode/coll.h>
#include <unicode/uchar.h>

#include <map>
#include <memory>

namespace Simulator {

namespace {

icu::Locale caseLocale(std::string_view locale)
{
    return locale.empty() ? icu::Locale::getRoot() : icuLocale(locale, {});
}

/// Everything but the word's first letter is lowered in the word's context: a final sigma takes its final form.
void appendCapitalizedWord(const icu::UnicodeString& word, const icu::Locale& locale, icu::UnicodeString& result)
{
    icu::UnicodeString first(word, 0, word.moveIndex32(0, 1));
    icu::UnicodeString lowered(word);
    lowered.toLower(locale);
    const auto firstLowered = icu::UnicodeString(first).toLower(locale).length();
    result.append(first.toTitle(nullptr, locale, U_TITLECASE_NO_BREAK_ADJUSTMENT));
    result.append(lowered, firstLowered, lowered.length() - firstLowered);
}

const icu::Collator* collatorFor(std::string_view locale, bool caseSensitive)
{
    constexpr std::size_t mostCollators = 16;
    static auto* collators = new std::map<std::pair<std::string, bool>, std::unique_ptr<icu::Collator>>;
    const auto key = std::pair(std::string(locale), caseSensitive);
    const auto found = collators->find(key);
    if (found != collators->end())
        return found->second.get();
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(caseLocale(locale), status));
    if (U_FAILURE(status))
        return nullptr;
    collator->setStrength(caseSensitive ? icu::Collator::TERTIARY : icu::Collator::SECONDARY);
    if (collators->size() >= mostCollators)
        collators->clear();
    return collators->emplace(key, std::move(collator)).first->second.get();
}

}

std::u16string uppercase(std::u16string_view text, std::string_view locale)
{
    icu::UnicodeString result(text.data(), static_cast<int>(text.size()));
    return plainText(result.toUpper(caseLocale(locale)));
}

std::u16string lowercase(std::u16string_view text, std::string_view locale)
{
    icu::UnicodeString result(text.data(), static_cast<int>(text.size()));
    return plainText(result.toLower(caseLocale(locale)));
}

std::u16string capitalized(std::u16string_view text, std::string_view locale)
{
    const icu::UnicodeString source = icuText(text);
    const icu::Locale rules = caseLocale(locale);
    icu::UnicodeString result;
    int wordBegin = -1;
    int next = 0;
    for (int at = 0; at < source.length(); at = next) {
        const UChar32 letter = source.char32At(at);
        next = source.moveIndex32(at, 1);
        const bool cased = u_hasBinaryProperty(letter, UCHAR_CASED);
        if (wordBegin < 0 && cased) {
            wordBegin = at;
        } else if (wordBegin < 0) {
            result.append(letter);
        } else if (!cased && !u_hasBinaryProperty(letter, UCHAR_CASE_IGNORABLE)) {
            appendCapitalizedWord(icu::UnicodeString(source, wordBegin, at - wordBegin), rules, result);
            result.append(letter);
            wordBegin = -1;
        }
    }
    if (wordBegin >= 0)
        appendCapitalizedWord(icu::UnicodeString(source, wordBegin), rules, result);
    return plainText(result);
}

int compareText(std::u16string_view one, std::u16string_view other, std::string_view locale, bool caseSensitive)
{
    const icu::Collator* collator = collatorFor(locale, caseSensitive);
    if (!collator)
        return one.compare(other);
    UErrorCode status = U_ZERO_ERROR;
    return collator->compare(icuText(one), icuText(other), status);
}

}
