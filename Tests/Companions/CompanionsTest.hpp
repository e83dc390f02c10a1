// A phone with nothing but its files, its clock, UIKit and the companion libraries.
#pragma once

#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Companions/Companions.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Foundation/Foundation.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/UIKit/Registration.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace Simulator {

class CompanionsTest : public testing::Test {
protected:
    CompanionsTest()
    {
        static const bool registered = (registerFoundation(), registerUIKit(), registerCompanions(), true);
        static_cast<void>(registered);
        PhoneLocale::shared() = {};
        std::string folder = (std::filesystem::temp_directory_path() / "companions-XXXXXX").string();
        root_ = ::mkdtemp(folder.data());
        PhoneFiles::shared().setRoot(root_);
        PhoneFiles::shared().clearFaults();
        Loop::shared().reset(*momentOfLocalTime("2020-11-15T21:41:00"));
        DeviceState::shared() = {};
        ActivityLog::shared().take();
    }
    ~CompanionsTest() override { std::filesystem::remove_all(root_); }

    static std::string text(const NS::String& string) { return std::string(string.utf8()); }
    static NS::String string(std::string_view utf8) { return NS::String::fromUTF8(utf8); }
    static std::string readFile(const std::string& phonePath) { return PhoneFiles::shared().fetch(phonePath).value; }
    static void writeFile(const std::string& phonePath, std::string_view bytes)
    {
        ASSERT_EQ(PhoneFiles::shared().put(phonePath, bytes), 0);
    }

private:
    ObjC::AutoreleasePool pool_;
    std::string root_;
};

}
