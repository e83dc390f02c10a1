// The responder chain. Nobody is first responder: the lock screen takes no text.
#include "Simulator/UIKit/UIResponder.hpp"

#include "Simulator/Runtime/Binder.hpp"

namespace Simulator {

void registerUIResponder()
{
    Binder<UIResponder>("UIResponder", "NSObject").def<"nextResponder", &UIResponder::nextResponder>().add();
}

}
