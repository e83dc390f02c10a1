// The cover sheet: the page that the lock screen is.
#pragma once

#include "Platform/UIKit/UIViewController.hpp"

namespace CS {

class CoverSheetViewController
    : public ObjC::Class_<CoverSheetViewController, UI::ViewController, "CSCoverSheetViewController"> {
public:
    using Class_::Class_;
    NS::Object idleTimerController() const { return send<NS::Object, "idleTimerController">(); }
};

}

namespace SB {

/// Older systems have the controller of the lock screen under another name.
class CoverSheetPresentationManager
    : public ObjC::Class_<CoverSheetPresentationManager, NS::Object, "SBCoverSheetPresentationManager"> {
public:
    using Class_::Class_;
    static CoverSheetPresentationManager sharedInstance()
    {
        return sendClass<CoverSheetPresentationManager, "sharedInstance">();
    }
    NS::Object dashBoardViewController() const { return send<NS::Object, "dashBoardViewController">(); }
    CS::CoverSheetViewController coverSheetViewController() const
    {
        return send<CS::CoverSheetViewController, "coverSheetViewController">();
    }
};

/// Keeps the screen lit for as long as anyone has a reason; one of a kind counts once.
class DashBoardIdleTimerProvider
    : public ObjC::Class_<DashBoardIdleTimerProvider, NS::Object, "SBDashBoardIdleTimerProvider"> {
public:
    using Class_::Class_;
    void addDisabledIdleTimerAssertionReason(const NS::String& reason) const
    {
        send<void, "addDisabledIdleTimerAssertionReason:">(reason);
    }
    void removeDisabledIdleTimerAssertionReason(const NS::String& reason) const
    {
        send<void, "removeDisabledIdleTimerAssertionReason:">(reason);
    }
};

}
