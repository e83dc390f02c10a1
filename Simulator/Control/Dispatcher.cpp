// Runs methods by name.
#include "Simulator/Control/Dispatcher.hpp"

#include "Simulator/Control/Methods.hpp"

namespace Simulator::Control {

void Dispatcher::add(const Method& method, Handler handler)
{
    const bool isNew = m_entries.emplace(method.name, Entry{method, std::move(handler)}).second;
    if (!isNew)
        throw std::logic_error("the method " + method.name + " is added twice");
}

void Dispatcher::add(const std::string& protocolMethod, Handler handler)
{
    const Method* const method = methodNamed(protocolMethod);
    if (!method)
        throw std::logic_error("the protocol has no method " + protocolMethod);
    add(*method, std::move(handler));
}

Json Dispatcher::call(const std::string& method, const Json& parameters) const
{
    const auto entry = m_entries.find(method);
    if (entry == m_entries.end())
        throw ProtocolError(ErrorCode::noSuchMethod, "no such method: " + quote(method));
    checkParameters(entry->second.method, parameters);
    return entry->second.handler(parameters);
}

}
