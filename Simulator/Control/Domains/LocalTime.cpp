#include "Simulator/Control/Domains/LocalTime.hpp"

#include "Simulator/Device/PhoneLocale.hpp"
#include "Simulator/Text/DateText.hpp"

namespace Simulator::Control {

std::string localTimeText(double moment)
{
    std::u16string text
        = formatDate(moment, {u"yyyy-MM-dd'T'HH:mm:ss", "en_US_POSIX", "gregorian", PhoneLocale::shared().timeZone});
    return std::string(text.begin(), text.end());
}

}
