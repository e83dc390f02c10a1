// The cover sheet: the page that the lock screen is.
#pragma once

#include "Platform/UIKit/UIViewController.hpp"

namespace SB {

/// Keeps the screen lit for as long as anyone has a reason; one of a kind counts once.
class DashBoardIdleTimerProvider
    : public ObjC::PrivateClass_<DashBoardIdleTimerProvider, NS::Object, "SBDashBoardIdleTimerProvider"> {
public:
    using PrivateClass_::PrivateClass_;
    void addDisabledIdleTimerAssertionReason(const NS::String& reason) const
    {
        send<void, "addDisabledIdleTimerAssertionReason:">(reason);
    }
    void removeDisabledIdleTimerAssertionReason(const NS::String& reason) const
    {
        send<void, "removeDisabledIdleTimerAssertionReason:">(reason);
    }
};

/// The same of the cover sheet, by way of its provider.
class DashBoardIdleTimerController
    : public ObjC::PrivateClass_<DashBoardIdleTimerController, NS::Object, "SBDashBoardIdleTimerController"> {
public:
    using PrivateClass_::PrivateClass_;
    DashBoardIdleTimerProvider provider() const
    {
        return ivar<DashBoardIdleTimerProvider, "_dashBoardIdleTimerProvider">();
    }
    void addIdleTimerDisabledAssertionReason(const NS::String& reason) const
    {
        send<void, "addIdleTimerDisabledAssertionReason:">(reason);
    }
    void removeIdleTimerDisabledAssertionReason(const NS::String& reason) const
    {
        send<void, "removeIdleTimerDisabledAssertionReason:">(reason);
    }
};

}

namespace CS {

class CoverSheetView : public ObjC::PrivateClass_<CoverSheetView, UI::View, "CSCoverSheetView"> {
public:
    using PrivateClass_::PrivateClass_;
    /// Holds what slides when another page comes.
    UI::View slideableContentView() const { return send<UI::View, "slideableContentView">(); }
};

class CoverSheetViewController
    : public ObjC::PrivateClass_<CoverSheetViewController, UI::ViewController, "CSCoverSheetViewController"> {
public:
    using PrivateClass_::PrivateClass_;
    SB::DashBoardIdleTimerController idleTimerController() const
    {
        return send<SB::DashBoardIdleTimerController, "idleTimerController">();
    }
};

}

namespace SB {

/// Older systems have the controller of the lock screen under another name.
class CoverSheetPresentationManager
    : public ObjC::PrivateClass_<CoverSheetPresentationManager, NS::Object, "SBCoverSheetPresentationManager"> {
public:
    using PrivateClass_::PrivateClass_;
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

}
