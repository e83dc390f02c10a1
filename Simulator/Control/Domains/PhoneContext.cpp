// How a request is carried out: as one turn of the phone's loop, on the view that it names.
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator::Control {

void PhoneContext::add(const std::string& method, Dispatcher::Handler handler)
{
    m_dispatcher.add(method, asOneTurn(std::move(handler)));
}

void PhoneContext::add(const Method& method, Dispatcher::Handler handler)
{
    m_dispatcher.add(method, asOneTurn(std::move(handler)));
}

Dispatcher::Handler PhoneContext::asOneTurn(Dispatcher::Handler handler)
{
    return [this, handler = std::move(handler)](const Json& parameters) {
        ObjC::AutoreleasePool pool;
        Json result = handler(parameters);
        shell.commit();
        return result;
    };
}

UIView& PhoneContext::viewWithId(const std::string& identifier) const
{
    UIView* view = findView(shell.window(), identifier);
    if (!view)
        throwNotFound("no view has the id " + quote(identifier));
    return *view;
}

void throwNotFound(const std::string& message)
{
    throw ProtocolError(ErrorCode::notFound, message);
}

}
