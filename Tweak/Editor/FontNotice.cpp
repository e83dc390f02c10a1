#include "Tweak/Editor/FontNotice.hpp"

#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/SpringBoard/SpringBoard.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/Feedback.hpp"

namespace LYR {

namespace {

void setNoticeHidden(bool hidden)
{
    playClick();
    _alertView->setHidden(hidden);
    for (const auto* button : {&_alertClose, &_openFolder})
        (*button)->setHidden(hidden);
    for (const auto* label : {&_alertLabel, &_alertLabel2, &_alertLabel3})
        (*label)->setHidden(hidden);
}

/// Whether the system knew how to open the address.
bool open(const NS::String& address)
{
    auto application = UI::Application::sharedApplication();
    auto url = NS::URL::URLWithString(address);
    if (!application.canOpenURL(url))
        return false;
    application.openURL(url, NS::MutableDictionary::dictionary());
    return true;
}

}

void CSCoverSheetViewController_showAlert(CS::CoverSheetViewController, SEL, ObjC::Object)
{
    setNoticeHidden(false);
}

void CSCoverSheetViewController_closeAlert(CS::CoverSheetViewController, SEL, ObjC::Object)
{
    setNoticeHidden(true);
}

void CSCoverSheetViewController_openFolderButton(CS::CoverSheetViewController self, SEL, ObjC::Object)
{
    playTap();
    self.send<void, "linkTapped">();
}

// Both searches are tried, so both may open.
void CSCoverSheetViewController_linkTapped(CS::CoverSheetViewController, SEL)
{
    SB::SpringBoard::sharedApplication().simulateHomeButtonPress();
    if (open("filza://view" LYR_PREFIX "/Library/Application%20Support/LYRFont/"_ns))
        return;
    open("https://duckduckgo.com/?q=filza"_ns);
    open("ddgquicklink://duckduckgo.com/?q=filza"_ns);
}

}
