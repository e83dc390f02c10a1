// The fixture of the Foundation tests: seven seconds later, with one folder on the disk.
#pragma once

#include "Platform/Foundation/NSDate.hpp"
#include "Platform/Foundation/NSString.hpp"
#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Foundation/Mending.hpp"
#include "Simulator/Foundation/Texts.hpp"
#include "Simulator/Runtime/ActivityLog.hpp"
#include "Tests/Support/PhoneTest.hpp"

namespace Simulator {

/// 2020-11-15 21:41:07 UTC, a Sunday.
inline constexpr double evening = sundayEvening + 7;

class FoundationTest : public PhoneTest {
protected:
    FoundationTest()
        : PhoneTest(evening)
    {
        files.createFolder("/Library", true);
        ActivityLog::shared().take();
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
};

}
