// The strip's evening: a full weather record, and looks at what lies in the strip.
#pragma once

#include "Tests/EndToEnd/Scenario.hpp"

#include <map>

inline const Json sunnyWeather = {{"temperature", "21°"}, {"high", "24°"}, {"low", "15°"},
    {"conditions", "Partly Cloudy"}, {"location", "Haifa"}, {"sunrise", "6:12"}, {"sunset", "16:41"}};

inline const std::string resourceFolder = "/Library/Application Support/lyr.bundle/";

/// A phone with weather. It has no wallpaper, which the strip does not look at and which takes time to read.
inline Support::PhoneStart stripPhone(const Json& settings = Json::object())
{
    return eveningPhone(settings).weather(sunnyWeather).withoutWallpaper();
}

/// What the stock date view does when its labels change: the strip's views are shown or hidden, and placed.
inline void updateLabels(Phone& phone)
{
    phone.send({{"instance", "SBFLockScreenDateView"}}, "_updateLabels");
}

/// The settings as the settings pane stores them, and the refresh that follows.
inline void change(Phone& phone, const Json& settings)
{
    phone.set(settings);
    refresh(phone);
}

inline void setDevice(Phone& phone, const Json& device)
{
    phone.call("device.set", device);
    refresh(phone);
}

/// The file that an image view shows, without the folder and ".png"; empty if it shows none.
inline std::string iconIn(Phone& phone, const std::string& id)
{
    const Json image = phone.get(id).at("image");
    if (image.is_null() || image.at("path").is_null())
        return "";
    const std::string path = image.at("path");
    EXPECT_EQ(path.find(resourceFolder), 0u) << path;
    EXPECT_EQ(image.at("template"), true) << path;
    return path.substr(resourceFolder.size(), path.size() - resourceFolder.size() - 4);
}

/// Which views of the strip are shown, by name.
inline std::map<std::string, bool> shownInStrip(Phone& phone)
{
    std::map<std::string, bool> shown;
    const Support::View strip(phone.call("view.tree", {{"id", "_widgetView"}}));
    for (const Support::View& view : strip.children)
        shown[view.id] = !view.hidden;
    return shown;
}
