// Sends an action to its target with as many arguments as its selector takes.
#include "Simulator/UIKit/ActionTarget.hpp"

#include "Platform/UIKit/UIView.hpp"

#include <algorithm>
#include <string_view>

namespace Simulator {

static ObjC::Object receiverOf(const ActionTarget& target, const ObjC::Object& sender)
{
    if (target.target)
        return ObjC::Object(target.target);
    ObjC::Object responder = sender;
    while (responder && !responder.send<bool, "respondsToSelector:">(target.action))
        responder = responder.is<UI::Responder>() ? responder.send<ObjC::Object, "nextResponder">() : ObjC::Object();
    return responder;
}

void sendAction(const ActionTarget& target, const ObjC::Object& sender, const NS::Object& event)
{
    const ObjC::Object receiver = receiverOf(target, sender);
    if (!receiver || !target.action)
        return;
    const auto arguments = std::ranges::count(std::string_view(sel_getName(target.action)), ':');
    if (arguments == 0)
        ObjC::sendMessage<void>(receiver.raw(), target.action);
    else if (arguments == 1)
        ObjC::sendMessage<void>(receiver.raw(), target.action, sender);
    else
        ObjC::sendMessage<void>(receiver.raw(), target.action, sender, event);
}

}
