// The fixture of the shell's tests: a phone of 375 × 812 points at 21:41 on 15 November 2020, light, without wallpaper.
#pragma once

#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/SpringBoard/SpringBoard.hpp"
#include "Simulator/UIKit/UIScreen.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"
#include "Tests/Support/PhoneTest.hpp"

#include <memory>
#include <string>

namespace Simulator {

class ShellTest : public PhoneTest {
protected:
    /// The classes of another extension are there from the first phone on; each test says what it has installed.
    ShellTest()
        : PhoneTest(sundayEvening, [] { DeviceState::shared().installed = {"Axon"}; })
    {
        DeviceState::shared().installed.clear();
    }

    Shell& start(CGSize size = {375, 812})
    {
        screenSettings().size = size;
        m_shell = std::make_unique<Shell>();
        m_shell->start();
        return *m_shell;
    }
    Shell& shell() { return *m_shell; }

    UIView* find(const std::string& identifier) { return findView(shell().window(), identifier); }
    UI::View view(const std::string& identifier)
    {
        UIView* found = find(identifier);
        EXPECT_TRUE(found) << "no view " << identifier;
        return found ? found->self<UI::View>() : UI::View();
    }
    /// What a label or the subtitle shows.
    std::string text(const std::string& identifier)
    {
        UIView* found = find(identifier);
        EXPECT_TRUE(found) << "no view " << identifier;
        return found ? describeView(*found, false).value("text", "(no text)") : "";
    }
    bool isShown(const std::string& identifier)
    {
        UIView* found = find(identifier);
        return found && isOnScreen(*found);
    }
    /// Where it is on the screen.
    CGRect place(const std::string& identifier)
    {
        const UI::View found = view(identifier);
        return found.send<CGRect, "convertRect:toView:">(found.bounds(), UI::View());
    }

private:
    std::unique_ptr<Shell> m_shell;
};

}
