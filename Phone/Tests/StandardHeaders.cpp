// Uses something of every kind of standard header that the extension may include; it must link for the phone.
#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <charconv>
#include <chrono>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <functional>
#include <initializer_list>
#include <limits>
#include <map>
#include <memory>
#include <numeric>
#include <optional>
#include <ranges>
#include <set>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace LYR {
double result = 0;
const char* input = "27 3 4,5";

template <std::integral Number>
static std::optional<Number> numberIn(std::string_view text)
{
    Number number = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

static std::vector<std::uint32_t> numbersIn(std::string_view text)
{
    std::vector<std::uint32_t> numbers;
    while (!text.empty()) {
        std::size_t end = std::min(text.find_first_of(" ,"), text.size());
        numbers.push_back(numberIn<std::uint32_t>(text.substr(0, end)).value_or(0));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    std::sort(numbers.begin(), numbers.end(), [](auto left, auto right) { return left > right; });
    return numbers;
}

static double angles(std::span<const std::uint32_t> numbers)
{
    double sum = 0;
    for (double value : numbers | std::views::filter([](auto number) { return std::has_single_bit(number); }))
        sum += std::sin(value) + std::cos(value) + std::pow(value, 0.3) + std::fmod(value, 3) + std::floor(value);
    return std::isfinite(sum) ? std::clamp(sum, -100.0, 100.0) : std::numeric_limits<double>::max();
}

static double containers(std::initializer_list<int> values)
{
    std::map<std::string_view, int> byName{{"first", *values.begin()}};
    std::set<int> ordered(values);
    std::deque<int> queue(values);
    std::variant<int, double> either = 2.5;
    std::function<double(double)> twice = [](double value) { return 2 * value; };
    auto [name, count] = std::tuple("first", std::size_t(ordered.size()));
    std::array<char, 8> buffer{};
    auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), byName[name]);
    return twice(std::get<double>(either)) + double(count) + double(std::strlen(buffer.data()))
        + double(written.ptr - buffer.data()) + double(std::chrono::minutes(queue.front()) / std::chrono::seconds(1))
        + std::accumulate(values.begin(), values.end(), 0.5) + std::strtod(input, nullptr);
}
}

__attribute__((constructor)) static void start()
{
    static std::atomic<int> starts = 0;
    auto numbers = std::make_unique<std::vector<std::uint32_t>>(LYR::numbersIn(LYR::input));
    LYR::result = LYR::angles(*numbers) + LYR::containers({1, 2, 3}) + ++starts;
}
