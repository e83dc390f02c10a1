// Fields of a pattern, run by run; what stands in quotes is text.
#include "Simulator/Text/HourCycle.hpp"

#include "Simulator/Text/IcuNames.hpp"

#include <unicode/dtptngen.h>

#include <memory>
#include <vector>

namespace Simulator {

namespace {

struct Piece {
    std::u16string text;
    /// The field's letter; 0 for text between fields.
    char16_t field = 0;
};

bool isLetter(char16_t unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

/// Where the run of text that begins with a quote ends, behind its closing quote.
std::size_t endOfQuoted(std::u16string_view pattern, std::size_t begin)
{
    const std::size_t closing = pattern.find(u'\'', begin + 1);
    return closing == pattern.npos ? pattern.size() : closing + 1;
}

std::vector<Piece> piecesOf(std::u16string_view pattern)
{
    std::vector<Piece> pieces;
    for (std::size_t begin = 0; begin < pattern.size();) {
        const char16_t first = pattern[begin];
        std::size_t end = begin + 1;
        if (first == u'\'')
            end = endOfQuoted(pattern, begin);
        else if (isLetter(first))
            end = std::min(pattern.find_first_not_of(first, begin), pattern.size());
        pieces.push_back({std::u16string(pattern.substr(begin, end - begin)), isLetter(first) ? first : char16_t()});
        begin = end;
    }
    return pieces;
}

bool isOneOf(char16_t field, std::u16string_view fields)
{
    return field && fields.find(field) != fields.npos;
}

bool isSpace(const Piece& piece)
{
    return piece.text == u" " || piece.text == u"\u00a0" || piece.text == u"\u202f";
}

/// Takes the halves of the day away, each with a space before it, or else behind it.
void dropHalves(std::vector<Piece>& pieces)
{
    for (std::size_t i = 0; i < pieces.size();) {
        if (!isOneOf(pieces[i].field, u"abB")) {
            ++i;
            continue;
        }
        const auto place = pieces.begin() + static_cast<std::ptrdiff_t>(i);
        if (i > 0 && isSpace(pieces[i - 1])) {
            pieces.erase(place - 1, place + 1);
            --i;
        } else
            pieces.erase(place, place + (i + 1 < pieces.size() && isSpace(pieces[i + 1]) ? 2 : 1));
    }
}

/// Puts a half of the day behind the last field of the time.
void addHalf(std::vector<Piece>& pieces)
{
    std::size_t last = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (isOneOf(pieces[i].field, u"hmsS"))
            last = i;
    }
    pieces.insert(pieces.begin() + static_cast<std::ptrdiff_t>(last) + 1, {{u" ", 0}, {u"a", u'a'}});
}

}

bool countsTo24(std::string_view locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(icuLocale(locale, ""), status));
    if (U_FAILURE(status))
        return false;
    const UDateFormatHourCycle cycle = generator->getDefaultHourCycle(status);
    return U_SUCCESS(status) && (cycle == UDAT_HOUR_CYCLE_23 || cycle == UDAT_HOUR_CYCLE_24);
}

std::u16string withHourCycle(std::u16string_view pattern, bool countsTo24)
{
    const std::u16string_view given = countsTo24 ? u"hK" : u"Hk";
    std::vector<Piece> pieces = piecesOf(pattern);
    bool isChanged = false;
    bool hasHalf = false;
    for (Piece& piece : pieces) {
        hasHalf |= isOneOf(piece.field, u"abB");
        if (!isOneOf(piece.field, given))
            continue;
        isChanged = true;
        piece.field = countsTo24 ? u'H' : u'h';
        piece.text = countsTo24 ? std::u16string(piece.text.size(), u'H') : u"h";
    }
    if (!isChanged)
        return std::u16string(pattern);
    if (countsTo24)
        dropHalves(pieces);
    else if (!hasHalf)
        addHalf(pieces);
    std::u16string result;
    for (const Piece& piece : pieces)
        result += piece.text;
    return result;
}

}
