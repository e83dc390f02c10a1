// The phone's language and region: what the user chose in the settings.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Simulator {

/// Read at every use, so a change holds from the next use on.
struct PhoneLocale {
    std::string locale = "en_US";
    std::string timeZone = "UTC";
    std::vector<std::string> languages = {"en"};
    /// The clock's switch, where it was ever touched; else the language's habit holds.
    std::optional<bool> twentyFourHour;

    static PhoneLocale& shared();
};

}
