// What the end-to-end tests share: the evening they play on, and a phone whose lock screen has settled.
#pragma once

#include "Tests/Support/Phone.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

using Support::Json;
using Support::Rectangle;

inline constexpr const char* evening = "2020-11-15T21:41:00";

/// The systems that a simulated phone may have.
inline constexpr const char* systems[] = {"13.4", "14.0", "15.0", "16.0"};

inline Support::PhoneStart eveningPhone(const Json& settings = Json::object())
{
    return Phone::at(evening).settings(settings);
}

/// The phone after its first full refresh.
inline Phone settled(const Support::PhoneStart& start)
{
    auto phone = start.start();
    phone.settle();
    return phone;
}

inline Phone settledWith(const Json& settings = Json::object())
{
    return settled(eveningPhone(settings));
}

/// A full refresh now, as each refresh of the lock screen ends in one.
inline void refresh(Phone& phone)
{
    phone.send({{"instance", "SBFLockScreenDateViewController"}}, "updateTime");
    phone.settle(1);
}

/// A finger rests on the lock screen until the editor is there.
inline void openEditor(Phone& phone)
{
    phone.pressAt(160, 300);
    phone.advance(1);
}

inline void postReload(Phone& phone)
{
    phone.call("notify.post", {{"name", "com.ostrel.lyrprefs/ReloadPrefs"}});
}
