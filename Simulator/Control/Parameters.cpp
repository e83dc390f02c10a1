// Checks parameters against their table.
#include "Simulator/Control/Parameters.hpp"

#include <algorithm>

namespace Simulator::Control {

namespace {

[[noreturn]] void refuse(const std::string& message)
{
    throw ProtocolError(ErrorCode::badParameters, message);
}

/// Checks one method's parameters; `owner` is the method or, further in, the parameter that holds others.
class Checker {
public:
    void members(const std::string& owner, const std::string& prefix, const Schema& schema, const Json& object)
    {
        for (const auto& [name, value] : object.items()) {
            const auto parameter = std::find_if(
                schema.begin(), schema.end(), [&name = name](const Parameter& known) { return known.name == name; });
            if (parameter == schema.end())
                refuse("unknown parameter " + quote(prefix + name) + ": " + owner + " takes "
                    + (schema.empty() ? "no parameters" : namesIn(schema)));
            check(prefix + name, parameter->type, value);
        }
        for (const Parameter& parameter : schema) {
            if (parameter.presence == Presence::required && !object.contains(parameter.name))
                refuse("missing parameter \"" + prefix + parameter.name + "\": it takes " + parameter.type.takes);
        }
    }

    void check(const std::string& path, const Type& type, const Json& value)
    {
        if (type.orNull && value.is_null())
            return;
        if (!type.accepts(value))
            refuse("parameter " + quote(path) + " takes " + type.takes + (type.orNull ? " or null" : "") + ", not "
                + quote(value));
        if (value.is_object() && !type.members.empty())
            members(path, path + ".", type.members, value);
        else if (value.is_object() && type.values)
            freeMembers(path, type, value);
        else if (value.is_array() && type.values)
            elements(path, *type.values, value);
    }

private:
    void freeMembers(const std::string& path, const Type& type, const Json& object)
    {
        for (const auto& [name, value] : object.items()) {
            if (type.names && !type.names->accepts(name))
                refuse("a name in parameter " + quote(path) + " takes " + type.names->takes + ", not " + quote(name));
            check(path + "." + name, *type.values, value);
        }
    }

    void elements(const std::string& path, const Type& type, const Json& list)
    {
        for (std::size_t i = 0; i < list.size(); ++i)
            check(path + "[" + std::to_string(i) + "]", type, list[i]);
    }
};

}

std::string namesIn(const Schema& schema)
{
    std::string names;
    for (const Parameter& parameter : schema)
        names += (names.empty() ? "" : ", ") + parameter.name;
    return names;
}

void checkParameters(const Method& method, const Json& parameters)
{
    Checker().members(method.name, "", method.parameters, parameters);
}

std::optional<std::string> complaint(const std::string& name, const Type& type, const Json& value)
{
    try {
        Checker().check(name, type, value);
        return std::nullopt;
    } catch (const ProtocolError& error) {
        return error.what();
    }
}

}
