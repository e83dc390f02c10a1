// The stand-ins against the lists of what the phone's own classes have.
#include "Platform/ObjC/Hook.hpp"
#include "Simulator/Runtime/System.hpp"
#include "Tests/SpringBoard/ShellTest.hpp"

#include <cctype>
#include <cstdlib>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace Simulator {

namespace {

template <class T>
std::vector<T> listed(T* (*copy)(Class, unsigned*), Class type)
{
    unsigned count = 0;
    const std::unique_ptr<T, decltype(&std::free)> all(copy(type, &count), &std::free);
    return all ? std::vector<T>(all.get(), all.get() + count) : std::vector<T>();
}

/// The first type of an encoding, a structure by its name alone: "{CGRect}" of
/// "{CGRect={CGPoint=dd}{CGSize=dd}}16@0:8".
std::string firstType(std::string_view& encoding)
{
    std::string type;
    while (!encoding.empty() && (encoding.front() == '^' || encoding.front() == 'r')) {
        type += encoding.front();
        encoding.remove_prefix(1);
    }
    if (encoding.starts_with('{')) {
        int depth = 0;
        std::size_t end = 0;
        do
            depth += encoding[end] == '{' ? 1 : encoding[end] == '}' ? -1 : 0;
        while (++end < encoding.size() && depth > 0);
        type += std::string(encoding.substr(0, std::min(encoding.find('='), end - 1))) + "}";
        encoding.remove_prefix(end);
    } else {
        const std::size_t length = encoding.starts_with("@?") ? 2 : 1;
        type += encoding.substr(0, length);
        encoding.remove_prefix(std::min(length, encoding.size()));
    }
    while (!encoding.empty() && std::isdigit(static_cast<unsigned char>(encoding.front())))
        encoding.remove_prefix(1);
    return type;
}

/// "v(@,B)" of "v28@0:8@16B24".
std::string describeMethod(std::string_view encoding)
{
    std::string text = firstType(encoding) + "(";
    firstType(encoding);
    firstType(encoding);
    for (bool isFirst = true; !encoding.empty(); isFirst = false)
        text += (isFirst ? "" : ",") + firstType(encoding);
    return text + ")";
}

/// Each member of the class itself with its type.
std::vector<std::pair<std::string, std::string>> ownMembers(Class type)
{
    std::vector<std::pair<std::string, std::string>> members;
    const auto addMethods = [&members](Class methods, const char* sign) {
        for (Method method : listed<Method>(class_copyMethodList, methods))
            members.emplace_back(std::string(sign) + sel_getName(method_getName(method)),
                describeMethod(method_getTypeEncoding(method)));
    };
    addMethods(type, "-");
    addMethods(object_getClass(reinterpret_cast<id>(type)), "+");
    for (Ivar variable : listed<Ivar>(class_copyIvarList, type)) {
        std::string_view encoding = ivar_getTypeEncoding(variable);
        members.emplace_back(ivar_getName(variable), firstType(encoding));
    }
    return members;
}

/// What the stand-ins need for themselves, by whatever class is the first of a line.
bool isOfStandIns(const std::string& member)
{
    return member == "+allocWithZone:" || member == "-dealloc" || member == "_standIn" || member == "-.cxx_destruct";
}

using Facts = std::map<std::string, System::Members, std::less<>>;

/// What stand-ins of private classes have and the phone's classes do not, or with other types.
std::set<std::string> inventions(const Facts& facts)
{
    std::set<std::string> found;
    const std::size_t system = System::current().number();
    for (const auto& [name, members] : facts) {
        Class type = objc_lookUpClass(name.c_str());
        if (!type)
            continue;
        for (const auto& [member, encoding] : ownMembers(type)) {
            if (isOfStandIns(member))
                continue;
            const auto fact = members.find(member);
            if (fact == members.end() || !fact->second.isOwn[system])
                found.insert(name + " has no " + member + " of its own");
            else if (encoding != fact->second.type)
                found.insert(name + " " + member + " is " + fact->second.type + ", and not " + encoding);
        }
    }
    return found;
}

}

using PlatformFacts = ShellTest;

TEST_F(PlatformFacts, EveryMemberOfAPrivateStandInIsThePhones)
{
    EXPECT_EQ(inventions(System::current().facts()), std::set<std::string>());
}

TEST_F(PlatformFacts, AnInventedMethodOrAChangedTypeIsFound)
{
    Facts facts = System::current().facts();
    facts.at("CSCoverSheetViewController").erase("-dateView");
    facts.at("SBFLockScreenDateView").at("-setDate:").type = "v(d)";
    facts.at("SBFLockScreenDateView").erase("_timeLabel");
    EXPECT_EQ(inventions(facts),
        (std::set<std::string>{"CSCoverSheetViewController has no -dateView of its own",
            "SBFLockScreenDateView -setDate: is v(d), and not v(@)",
            "SBFLockScreenDateView has no _timeLabel of its own"}));
}

TEST_F(PlatformFacts, EveryPrivateStandInHasThePhonesSuperclass)
{
    for (const auto& [name, members] : System::current().facts()) {
        Class type = objc_lookUpClass(name.c_str());
        if (type && members.contains("")) {
            EXPECT_STREQ(class_getName(class_getSuperclass(type)), members.at("").type.c_str()) << name;
        }
    }
}

// Names of the documented frameworks begin so, and those of other extensions and of the stand-ins' own helpers are
// known.
TEST_F(PlatformFacts, EveryOtherStandInIsDocumentedOrKnown)
{
    const char* const known[] = {"HBPreferences", "SparkColourPickerUtils", "WeatherApp", "AXNView"};
    for (const std::string& name : StandInRegistry::shared().classNames()) {
        const bool isDocumented = name.starts_with("NS") || name.starts_with("CA") || name.starts_with("CG")
            || name.starts_with("CT") || name.starts_with("EK") || name.starts_with("Phone")
            || (name.starts_with("UI") && name.find('_') == name.npos);
        EXPECT_TRUE(isDocumented || System::current().facts().contains(name)
            || std::ranges::find(known, name) != std::end(known))
            << name;
    }
}

}
