// A phone of its own for each test: clock, locale, files and log as after a fresh start.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Files/PhoneFiles.hpp"
#include "Simulator/Foundation/Foundation.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Loop/Loop.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

namespace Simulator {

/// 2020-11-15 21:41:07 UTC, a Sunday.
inline constexpr double evening = 627169267;

class FoundationTest : public testing::Test {
protected:
    void SetUp() override
    {
        registerFoundation();
        pool = std::make_unique<ObjC::AutoreleasePool>();
        Loop::shared().reset(evening);
        PhoneLocale::shared() = {};
        std::string name = testing::TempDir() + "phone-XXXXXX";
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        folder = name;
        files.setRoot(folder + "/root");
        files.clearFaults();
        files.createFolder("/Library", true);
        ActivityLog::shared().take();
    }
    void TearDown() override
    {
        Loop::shared().reset(0);
        pool.reset();
        std::filesystem::remove_all(folder);
    }

    static NS::Date date(double seconds) { return NS::Date::dateWithTimeIntervalSinceReferenceDate(seconds); }
    /// The records of one kind since the last call.
    static std::vector<ActivityLog::Fields> records(const std::string& kind)
    {
        std::vector<ActivityLog::Fields> result;
        for (const auto& record : ActivityLog::shared().take()) {
            if (record["kind"] == kind)
                result.push_back(record);
        }
        return result;
    }

    PhoneFiles& files = PhoneFiles::shared();
    std::string folder;
    std::unique_ptr<ObjC::AutoreleasePool> pool;
};

}
