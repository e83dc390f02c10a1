// Names of locales and languages as the phone writes them.
#pragma once

#include <string>
#include <string_view>

namespace Simulator {

/// The name as the phone writes it, of a name with hyphens, underscores or both: "zh-Hans_CN" of "zh_hans-cn". Empty
/// for what names no locale.
std::string localeName(std::string_view name);
/// Likewise of a language: "zh-Hans-CN".
std::string languageName(std::string_view name);

}
