#include "Tweak/Editor/EditedSettings.hpp"

#include "Platform/Foundation/CFNotificationCenter.hpp"

namespace LYR {

// A row for each property: time, date, widgets.
static constexpr EditedSetting settings[][tabCount] = {
    {{"XtimeLabel", &_XtimeLabel}, {"XdateLabel", &_XdateLabel}, {"XwidgetView", &_XwidgetView}},
    {{"YtimeLabel", &_YtimeLabel}, {"YdateLabel", &_YdateLabel}, {"YwidgetView", &_YwidgetView}},
    {{"alphaTime", &_alphaTime}, {"alphaDate", &_alphaDate}, {}},
    {{"sizeTimeLabel", &_sizeTimeLabel}, {"sizeDateLabel", &_sizeDateLabel}, {}},
};

EditedSetting editedSetting(Property property, Tab tab)
{
    return settings[static_cast<std::size_t>(property)][static_cast<std::size_t>(tab)];
}

void store(const NS::Object& value, const EditedSetting& setting)
{
    _preferences->setObject(value, setting.name());
}

void announceSettings()
{
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
        "com.ostrel.lyrprefs/ReloadPrefs"_ns.raw(), nullptr, nullptr, true);
}

}
