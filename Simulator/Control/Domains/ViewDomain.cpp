// view.*: what is on the screen.
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator::Control {

static UIView& viewWithId(PhoneContext& context, const std::string& identifier)
{
    UIView* view = findView(context.shell.window(), identifier);
    if (!view)
        throwNotFound("no view has the id " + quote(identifier));
    return *view;
}

void addViewMethods(PhoneContext& context)
{
    context.add("view.tree", [&context](const Json& parameters) {
        UIView& root = parameters.contains("id") ? viewWithId(context, parameters.at("id"))
                                                 : static_cast<UIView&>(context.shell.window());
        return describeView(root, true);
    });
    context.add("view.get",
        [&context](const Json& parameters) { return describeView(viewWithId(context, parameters.at("id")), false); });
}

}
