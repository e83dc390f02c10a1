// What a method takes, said by a table: each parameter's name, what its value must be, and whether it must be there.
#pragma once

#include "Simulator/Control/Envelope.hpp"

#include <memory>
#include <vector>

namespace Simulator::Control {

struct Parameter;
using Schema = std::vector<Parameter>;

/// What a value must be: the words that say it, the check, and the rules for what the value holds.
struct Type {
    std::string takes;
    std::function<bool(const Json&)> accepts;
    Schema members = {}; // of an object with fixed names
    std::shared_ptr<const Type> names = nullptr; // of an object with free names
    std::shared_ptr<const Type> values = nullptr; // of a list, or of an object with free names
    bool orNull = false;
};

enum class Presence { optional, required };

struct Parameter {
    std::string name;
    Type type;
    Presence presence = Presence::optional;
    std::string meaning = {}; // for the documentation
};

/// A row of a table of methods, its documentation with it, in Markdown.
struct Method {
    std::string name;
    Schema parameters = {};
    std::string answers = {}; // the members of the result
    std::string does = {};
};

/// "level, state, lowPower"
std::string namesIn(const Schema&);

/// Throws a ProtocolError that names the parameter and says what it takes.
void checkParameters(const Method&, const Json& parameters);

/// What is wrong with a single value, or nothing.
std::optional<std::string> complaint(const std::string& name, const Type&, const Json& value);

}
