// Reads the lists of the platform's facts, which are part of the program.
#include "Simulator/Runtime/System.hpp"

#include <algorithm>
#include <cstdlib>
#include <sstream>

extern "C" const char lyrPrivateFacts[], lyrPrivateFactsEnd[], lyrAvailability[], lyrAvailabilityEnd[];

namespace Simulator {

namespace {

double numberOf(std::string_view version)
{
    return std::strtod(std::string(version).c_str(), nullptr);
}

/// The words of each line that is no comment.
template <class Take>
void eachLine(const char* begin, const char* end, Take take)
{
    std::istringstream lines(std::string(begin, end));
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        if (!line.empty() && line.front() != '#')
            take(words);
    }
}

/// "13.4", "14.0^" or "15.0?".
void markSystem(System::Fact& fact, std::string_view word)
{
    const auto place = word.find_first_of("^?");
    const auto found = std::ranges::find(systemVersions, word.substr(0, place));
    if (found == systemVersions.end())
        return;
    const auto number = static_cast<std::size_t>(found - systemVersions.begin());
    const std::string_view marks = place == word.npos ? std::string_view() : word.substr(place);
    (marks.find('^') != marks.npos ? fact.isInherited : fact.isOwn)[number] = true;
    fact.isGuess[number] = marks.find('?') != marks.npos;
}

}

System::System()
{
    readFacts();
    readAvailability();
}

System& System::current()
{
    static System system;
    return system;
}

void System::choose(std::string_view version)
{
    const auto found = std::ranges::find(systemVersions, version);
    if (found != systemVersions.end())
        m_number = static_cast<std::size_t>(found - systemVersions.begin());
}

void System::readFacts()
{
    eachLine(lyrPrivateFacts, lyrPrivateFactsEnd, [this](std::istream& words) {
        std::string className, member;
        Fact fact;
        words >> className >> member >> fact.type;
        if (member == ":")
            member.clear();
        for (std::string word; words >> word && word != "none:";)
            markSystem(fact, word);
        std::getline(words >> std::ws, fact.reason);
        m_facts[className][member] = fact;
    });
}

void System::readAvailability()
{
    eachLine(lyrAvailability, lyrAvailabilityEnd, [this](std::istream& words) {
        std::string since, className, selector;
        words >> since >> className >> selector;
        m_since[selector.empty() ? className : className + " " + selector] = numberOf(since);
    });
}

bool System::isLaterThanThis(std::string_view name) const
{
    const auto found = m_since.find(name);
    return found != m_since.end() && found->second > numberOf(version());
}

bool System::hasClass(std::string_view name) const
{
    const auto found = m_facts.find(name);
    if (found == m_facts.end())
        return !isLaterThanThis(name);
    const auto own = found->second.find("");
    return own == found->second.end() || own->second.isOwn[m_number];
}

bool System::hasOwn(std::string_view className, std::string_view member) const
{
    const auto found = m_facts.find(className);
    if (found == m_facts.end())
        return member.empty() || !isLaterThanThis(std::string(className) + " " + std::string(member.substr(1)));
    const auto fact = found->second.find(member);
    return fact == found->second.end() || fact->second.isOwn[m_number];
}

}
