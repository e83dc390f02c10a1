// The notice of where the user's fonts go, and the way there. It covers what stands on the panel.
#include "Platform/Foundation/InstallPrefix.hpp"
#include "Platform/SpringBoard/SpringBoard.hpp"
#include "Product/Names.hpp"
#include "Tweak/Editor/Areas.hpp"

namespace LYR {

LYR_VIEW(UI::View, _alertView);
LYR_VIEW(UI::Label, _alertLabel);
LYR_VIEW(UI::Label, _alertLabel2);
LYR_VIEW(UI::Label, _alertLabel3);
LYR_VIEW(UI::Button, _alertClose);
LYR_VIEW(UI::Button, _openFolder);

namespace {

UI::View openFolderButton()
{
    auto button = makeButton("Open Filza", nullptr, 12);
    button.setBackgroundColor(UI::Color::systemFillColor());
    return button;
}

void close()
{
    showNotice(false);
}

void pressOpenFolder(CS::CoverSheetViewController self, SEL, ObjC::Object)
{
    playTap();
    self.send<void, "linkTapped">();
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

/// Opens the folder in the file manager, or looks for a file manager on the web. Both searches are tried, so both may
/// open.
void followLink()
{
    SB::SpringBoard::sharedApplication().simulateHomeButtonPress();
    if (open("filza://view" LYR_PREFIX "/Library/Application%20Support/LYRFont/"_ns))
        return;
    open("https://duckduckgo.com/?q=filza"_ns);
    open("ddgquicklink://duckduckgo.com/?q=filza"_ns);
}

using UI::TextAlignment;
constexpr Control controls[] = {
    {.slot = _alertLabel, .make = label<"Custom fonts are put in " LYR_PREFIX LYR_FONTS, 14, TextAlignment::left, 3>,
        .placing = throughout(16, 52, 14, 48)},
    {.slot = _alertLabel2, .make = label<"Adding a new font may need a respring.", 14, TextAlignment::left, 2>,
        .placing = throughout(16, 16, 70, 36)},
    {.slot = _alertLabel3,
        .make = label<"Open Filza button only works on CoverSheet or Notifications Center", 14, TextAlignment::left, 3>,
        .placing = throughout(16, 16, 114, 52)},
    {.slot = _alertClose, .make = symbolButton<"xmark.circle.fill">, .placing = fromRight(8, 36, 8, 36),
        .action = action<"closeAlert:", close>(ActionGroup::notice)},
    {.slot = _openFolder, .make = openFolderButton, .placing = throughout(16, 16, 184, 40),
        .action = action<"openFolderButton:", pressOpenFolder>(ActionGroup::notice)},
};

constexpr Action actions[] = {action<"linkTapped", followLink>(ActionGroup::notice)};

}

constinit const Area noticeArea{controls, actions};

void showNotice(bool shown)
{
    playClick();
    _alertView->setHidden(!shown);
    setHidden(controls, !shown);
}

}
