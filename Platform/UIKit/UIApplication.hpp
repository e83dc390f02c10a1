// The running application: opening links.
#pragma once

#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSURL.hpp"
#include "Platform/UIKit/UIView.hpp"

namespace UI {

class Application : public ObjC::Class_<Application, Responder, "UIApplication"> {
public:
    using Class_::Class_;

    static Application sharedApplication() { return sendClass<Application, "sharedApplication">(); }
    bool canOpenURL(const NS::URL& url) const { return send<bool, "canOpenURL:">(url); }
    void openURL(const NS::URL& url, const NS::Dictionary& options,
        const ObjC::Block<void(bool success)>& completion = nullptr) const
    {
        send<void, "openURL:options:completionHandler:">(url, options, completion.raw());
    }
};

}
