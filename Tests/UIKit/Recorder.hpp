// Classes made while the tests run, whose methods note that they were called: what an interception would see.
#pragma once

#include "Platform/ObjC/Method.hpp"
#include "Platform/UIKit/UIViewController.hpp"

#include <string>
#include <vector>

namespace Simulator {

inline std::vector<std::string>& recordedCalls()
{
    static std::vector<std::string> calls;
    return calls;
}

inline std::vector<std::string> takeRecordedCalls()
{
    return std::exchange(recordedCalls(), {});
}

inline void recordCall(ObjC::Object, SEL selector)
{
    recordedCalls().emplace_back(sel_getName(selector));
}

inline void recordCallAbout(ObjC::Object, SEL selector, const ObjC::Object& about)
{
    recordedCalls().push_back(std::string(sel_getName(selector)) + (about ? " something" : " nil"));
}

inline void recordCallWithFlag(ObjC::Object, SEL selector, bool)
{
    recordedCalls().emplace_back(sel_getName(selector));
}

/// A view that notes what happens to it in the tree.
inline Class recordingViewClass()
{
    static Class made = ObjC::ClassBuilder("RecordingView", objc_getClass("UIView"))
                            .method<"willMoveToWindow:", &recordCallAbout>()
                            .method<"didMoveToWindow", &recordCall>()
                            .method<"willMoveToSuperview:", &recordCallAbout>()
                            .method<"didMoveToSuperview", &recordCall>()
                            .method<"didAddSubview:", &recordCallAbout>()
                            .method<"willRemoveSubview:", &recordCallAbout>()
                            .method<"layoutSubviews", &recordCall>()
                            .method<"tintColorDidChange", &recordCall>()
                            .method<"traitCollectionDidChange:", &recordCallAbout>()
                            .build();
    return made;
}

/// A controller that notes the steps of its life.
inline Class recordingControllerClass()
{
    static Class made = ObjC::ClassBuilder("RecordingController", objc_getClass("UIViewController"))
                            .method<"viewDidLoad", &recordCall>()
                            .method<"viewWillAppear:", &recordCallWithFlag>()
                            .method<"viewDidAppear:", &recordCallWithFlag>()
                            .method<"viewWillDisappear:", &recordCallWithFlag>()
                            .method<"viewDidDisappear:", &recordCallWithFlag>()
                            .method<"viewWillLayoutSubviews", &recordCall>()
                            .method<"viewDidLayoutSubviews", &recordCall>()
                            .method<"willMoveToParentViewController:", &recordCallAbout>()
                            .method<"didMoveToParentViewController:", &recordCallAbout>()
                            .build();
    return made;
}

template <class T>
inline T makeOf(Class type)
{
    const id allocated = ObjC::sendMessage<id>(reinterpret_cast<id>(type), ObjC::selector<"alloc">());
    return T::adopting(ObjC::sendMessage<id>(allocated, ObjC::selector<"init">()));
}

}
