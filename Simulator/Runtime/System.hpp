// Which of the phone's systems this is, and what of its classes is there on it.
#pragma once

#include "Simulator/Base/SystemVersions.hpp"

#include <array>
#include <map>
#include <string>
#include <string_view>

namespace Simulator {

class System {
public:
    /// What the lists say of a class (without a member) or of one of its members, "-dateView", "+sharedInstance" or
    /// "_timeLabel".
    struct Fact {
        /// A class's superclass, a member's type: "v(@,B)", "{CGRect}()" or "@".
        std::string type;
        /// By the number of the system in `systemVersions`.
        std::array<bool, systemVersions.size()> isOwn{};
        std::array<bool, systemVersions.size()> isInherited{};
        std::array<bool, systemVersions.size()> isGuess{};
        /// Why something that no system has is asked for; empty for what is somewhere.
        std::string reason;
    };
    using Members = std::map<std::string, Fact, std::less<>>;

    /// The one that the process's phones have; the usual one until it is chosen.
    static System& current();
    /// To be chosen before the first phone starts, since its classes are registered then.
    void choose(std::string_view version);
    std::string_view version() const { return systemVersions[m_number]; }
    std::size_t number() const { return m_number; }

    /// A class that is on no list is there; so is a member of such a class.
    bool hasClass(std::string_view name) const;
    /// Whether the class itself has the member; one that only inherits it has it from above.
    bool hasOwn(std::string_view className, std::string_view member) const;

    /// The private classes, each with its members; the class's own fact is under "".
    const std::map<std::string, Members, std::less<>>& facts() const { return m_facts; }

private:
    System();

    void readFacts();
    void readAvailability();
    bool isLaterThanThis(std::string_view name) const;

    std::size_t m_number = 1;
    std::map<std::string, Members, std::less<>> m_facts;
    /// The first system of a public class, or of "class selector".
    std::map<std::string, double, std::less<>> m_since;
};

}
