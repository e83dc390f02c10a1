// Property lists as plain values, and their file formats: XML, binary and the old text style.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Simulator {

struct PropertyList;

using PropertyListArray = std::vector<PropertyList>;
/// Sorted by key, as the phone writes them.
using PropertyListDictionary = std::map<std::string, PropertyList>;

struct PropertyListDate {
    double secondsSince2001;
    friend bool operator==(const PropertyListDate&, const PropertyListDate&) = default;
};

struct PropertyListData {
    std::string bytes;
    friend bool operator==(const PropertyListData&, const PropertyListData&) = default;
};

/// Text is UTF-8.
struct PropertyList {
    std::variant<std::string, bool, std::int64_t, double, PropertyListDate, PropertyListData, PropertyListArray,
        PropertyListDictionary>
        value;

    friend bool operator==(const PropertyList&, const PropertyList&) = default;
};

/// Lists nested deeper than this are refused, so that no file can exhaust the stack.
inline constexpr int deepestPropertyList = 512;

/// Of whichever format the bytes are; nothing if they are none.
std::optional<PropertyList> readPropertyList(std::string_view bytes);
std::optional<PropertyList> readXmlPropertyList(std::string_view bytes);
std::optional<PropertyList> readBinaryPropertyList(std::string_view bytes);
std::optional<PropertyList> readOldStylePropertyList(std::string_view text);

std::string writeXmlPropertyList(const PropertyList&);
std::string writeBinaryPropertyList(const PropertyList&);

}
