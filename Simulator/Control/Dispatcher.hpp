// Finds a method by its name, checks what it is given, and runs it.
#pragma once

#include "Simulator/Control/Parameters.hpp"

#include <map>

namespace Simulator::Control {

class Dispatcher {
public:
    /// Never outlives the call that is given to it; the parameters have been checked.
    using Handler = std::function<Json(const Json& parameters)>;

    /// A method that is added twice is a mistake of the program.
    void add(const Method&, Handler);
    /// Adds one of the methods of the protocol's table.
    void add(const std::string& protocolMethod, Handler);

    bool knows(const std::string& method) const { return m_entries.contains(method); }

    /// Throws a ProtocolError for an unknown method or for parameters that it does not take.
    Json call(const std::string& method, const Json& parameters) const;

private:
    struct Entry {
        Method method;
        Handler handler;
    };
    std::map<std::string, Entry> m_entries;
};

}
