// What may follow the date in its line, one option at a time.
#pragma once

#include "Platform/Foundation/NSAttributedString.hpp"
#include "Platform/Foundation/NSDate.hpp"
#include "Tweak/Widgets/Items.hpp"

#include <span>

namespace LYR {

/// How the line is written; none leaves the texts as they stand.
using LetterCase = NS::String (NS::String::*)() const;

/// The line that is being written, and where its item comes from.
struct DateLine {
    /// In the letter case.
    NS::String date;
    NS::Date moment;
    LetterCase letterCase;
    Items& items;

    NS::String cased(const NS::String& text) const { return letterCase ? (text.*letterCase)() : text; }
};

struct DateOption {
    /// Sets the date label.
    void (*show)(DateLine& line);
    /// What the editor's wheel says of it.
    NS::AttributedString (*preview)();
    /// Somebody has to be asked for the item, which a line that is switched off does without.
    bool asks;
};

/// In the order of `dateOption`'s codes, from 0 on.
std::span<const DateOption* const> dateOptions();

}
