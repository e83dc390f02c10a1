#include "Tweak/Editor/NumberText.hpp"

#include <algorithm>
#include <cmath>

namespace LYR {

/// The whole number nearest to one that is not negative; of two, the even one.
static long long nearest(double number)
{
    auto whole = static_cast<long long>(number);
    double rest = number - static_cast<double>(whole);
    return rest > 0.5 || (rest == 0.5 && whole % 2 == 1) ? whole + 1 : whole;
}

NS::String fixedText(double number, int decimals)
{
    constexpr double largest = 1e9;
    double finite = std::isfinite(number) ? std::clamp(number, -largest, largest) : 0;
    double unit = 1;
    for (int i = 0; i < decimals; ++i)
        unit *= 10;
    long long digits = nearest(std::fabs(finite) * unit);
    char text[32];
    char* at = std::end(text);
    for (int written = 0; digits > 0 || written <= decimals; ++written, digits /= 10) {
        if (written == decimals && decimals > 0)
            *--at = '.';
        *--at = static_cast<char>('0' + digits % 10);
    }
    if (std::signbit(finite))
        *--at = '-';
    return NS::String::fromUTF8({at, static_cast<std::size_t>(std::end(text) - at)});
}

}
