// docs/protocol.md has its tables from the rows of the methods. tools/update-protocol writes them anew.
#include "Simulator/Control/Methods.hpp"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

using namespace Simulator::Control;

namespace {

const std::string path = PROTOCOL_DOCUMENT;

std::string document()
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

std::string nameOf(const Parameter& parameter)
{
    return "`" + parameter.name + "`" + (parameter.presence == Presence::optional ? "?" : "");
}

void replace(std::string& text, const std::string& part, const std::string& by)
{
    if (const auto at = text.find(part); !part.empty() && at != std::string::npos)
        text.replace(at, part.size(), by);
}

std::string takes(const Type& type);

/// Each with what it takes, those that take the same together.
std::string membersOf(const Schema& members)
{
    std::string all;
    for (std::size_t i = 0; i < members.size(); ++i) {
        const std::string value = takes(members[i].type);
        all += (all.empty() ? "" : ", ") + nameOf(members[i]);
        if (i + 1 == members.size() || takes(members[i + 1].type) != value)
            all += " (" + value + ")";
    }
    return all;
}

std::string takes(const Type& type)
{
    std::string text = type.takes;
    const bool differ = std::ranges::adjacent_find(type.members, std::not_equal_to(), [](const Parameter& member) {
        return takes(member.type);
    }) != type.members.end();
    if (differ)
        replace(text, namesIn(type.members), membersOf(type.members));
    if (type.values)
        replace(text, type.values->takes, takes(*type.values));
    return text + (type.orNull ? " or null" : "");
}

/// Parameters that say more than what they take have a table of their own.
bool hasTable(const Method& method)
{
    return std::ranges::any_of(method.parameters, [](const Parameter& one) { return !one.meaning.empty(); });
}

std::string parametersOf(const Method& method)
{
    if (hasTable(method))
        return "the parameters below";
    std::string all;
    for (const Parameter& parameter : method.parameters)
        all += (all.empty() ? "" : "; ") + nameOf(parameter) + " " + takes(parameter.type);
    return all;
}

std::string row(const std::vector<std::string>& cells)
{
    std::string row = "|";
    for (const std::string& cell : cells)
        row += (cell.empty() ? "" : " ") + cell + " |";
    return row + "\n";
}

std::string firstCell(const Method& method)
{
    return "`" + method.name + "`";
}

std::string rowOf(const Method& method)
{
    return row({firstCell(method), parametersOf(method), method.answers, method.does});
}

std::string tableOf(const MethodGroup& group)
{
    std::string table = row({"method", "takes", "answers", "what it does"}) + "|---|---|---|---|\n";
    for (const Method& method : group.methods)
        table += rowOf(method);
    return table;
}

std::string tableOf(const Schema& parameters)
{
    std::string table = row({"parameter", "takes", "meaning"}) + "|---|---|---|\n";
    for (const Parameter& parameter : parameters)
        table += row({nameOf(parameter), takes(parameter.type), parameter.meaning});
    return table;
}

/// The table that belongs below a line of the document; empty for a line that is no heading of one.
std::string tableBelow(const std::string& line)
{
    for (const MethodGroup& group : methodGroups()) {
        if (line == "<!-- methods: " + group.name + " -->")
            return tableOf(group);
        for (const Method& method : group.methods) {
            if (line == "<!-- parameters: " + method.name + " -->")
                return tableOf(method.parameters);
        }
    }
    return "";
}

std::string withNewTables(const std::string& text)
{
    std::istringstream lines(text);
    std::string made;
    bool isInTable = false;
    for (std::string line; std::getline(lines, line);) {
        isInTable = isInTable && line.starts_with('|');
        if (isInTable)
            continue;
        const std::string table = tableBelow(line);
        made += line + '\n' + table;
        isInTable = !table.empty();
    }
    return made;
}

}

TEST(ProtocolDocument, HasItsTablesFromTheRows)
{
    const std::string now = document();
    const std::string anew = withNewTables(now);
    if (const char* wish = std::getenv("LYR_UPDATE_PROTOCOL"); wish && *wish)
        std::ofstream(path) << anew;
    else
        EXPECT_EQ(now, anew) << "tools/update-protocol writes the tables anew";
}

TEST(ProtocolDocument, HasEveryMethodOnceAndSaysWhatItDoes)
{
    const std::string text = document();
    for (const MethodGroup& group : methodGroups()) {
        for (const Method& method : group.methods) {
            EXPECT_FALSE(method.does.empty()) << method.name;
            const auto found = text.find("\n" + rowOf(method));
            EXPECT_NE(found, std::string::npos) << method.name;
            EXPECT_EQ(text.find(firstCell(method) + " |", found + rowOf(method).size()), std::string::npos)
                << method.name;
            EXPECT_TRUE(!hasTable(method) || text.find(tableOf(method.parameters)) != std::string::npos) << method.name;
        }
    }
}
