// The fixture of the shell's tests: a phone of 375 × 812 points at 21:41 on 15 November 2020, light, without wallpaper.
#pragma once

#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Foundation/Foundation.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/Binder.hpp"
#include "Simulator/SpringBoard/Shell.hpp"
#include "Simulator/SpringBoard/SpringBoard.hpp"
#include "Simulator/UIKit/Registration.hpp"
#include "Simulator/UIKit/UIScreen.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace Simulator {

class ShellTest : public testing::Test {
protected:
    ShellTest()
    {
        registerOnce();
        std::string folder = (std::filesystem::temp_directory_path() / "shell-XXXXXX").string();
        root_ = ::mkdtemp(folder.data());
        PhoneFiles::shared().setRoot(root_);
        PhoneLocale::shared() = {};
        DeviceState::shared() = {};
        Loop::shared().reset(*momentOfLocalTime("2020-11-15T21:41:00"));
        ActivityLog::shared().take();
    }
    ~ShellTest() override
    {
        shell_.reset();
        Loop::shared().reset(0);
        std::filesystem::remove_all(root_);
    }

    Shell& start(CGSize size = {375, 812})
    {
        screenSettings().size = size;
        shell_ = std::make_unique<Shell>();
        shell_->start();
        return *shell_;
    }
    Shell& shell() { return *shell_; }
    const std::string& root() const { return root_; }

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
    static void registerOnce()
    {
        static const bool registered = [] {
            registerFoundation();
            registerUIKit();
            DeviceState::shared().installed = {"Axon"};
            registerSpringBoard();
            return true;
        }();
        static_cast<void>(registered);
    }

    ObjC::AutoreleasePool pool_;
    std::string root_;
    std::unique_ptr<Shell> shell_;
};

}
