// view.*: what is on the screen.
#include "Simulator/Control/Domains/PhoneContext.hpp"

#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator::Control {

void addViewMethods(PhoneContext& context)
{
    context.add("view.tree", [&context](const Json& parameters) {
        UIView& root = parameters.contains("id") ? context.viewWithId(parameters.at("id"))
                                                 : static_cast<UIView&>(context.shell.window());
        return describeView(root, true);
    });
    context.add("view.get",
        [&context](const Json& parameters) { return describeView(context.viewWithId(parameters.at("id")), false); });
}

}
