// The phone's language and region: what the user chose in the settings.
#pragma once

#include <string>
#include <vector>

namespace Simulator {

/// Read at every use, so a change holds from the next use on.
struct PhoneLocale {
    std::string locale = "en_US";
    std::string timeZone = "UTC";
    std::vector<std::string> languages = {"en"};

    static PhoneLocale& shared();
};

}
