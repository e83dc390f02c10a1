// A phone with nothing but its files, its clock, UIKit and the companion libraries.
#pragma once

#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Tests/Support/PhoneTest.hpp"

namespace Simulator {

class CompanionsTest : public PhoneTest {
protected:
    CompanionsTest()
    {
        for (const char* library : {"/Library/Frameworks/Cephei.framework/Cephei",
                 "/usr/lib/libsparkcolourpicker.dylib", "/usr/lib/libweatherlyr.dylib"})
            EXPECT_TRUE(bringClassesOf(library)) << library;
    }

    static std::string text(const NS::String& string) { return std::string(string.utf8()); }
    static NS::String string(std::string_view utf8) { return NS::String::fromUTF8(utf8); }
    static std::string readFile(const std::string& phonePath) { return PhoneFiles::shared().fetch(phonePath).value; }
    static void writeFile(const std::string& phonePath, std::string_view bytes)
    {
        ASSERT_EQ(PhoneFiles::shared().put(phonePath, bytes), 0);
    }
};

}
