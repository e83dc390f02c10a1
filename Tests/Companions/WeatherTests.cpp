// The weather library's dictionary.
#include "Platform/Companions/WeatherApp.hpp"

#include "CompanionsTest.hpp"
#include "Platform/UIKit/UIImage.hpp"

#include <fstream>

using namespace Simulator;

class WeatherLibrary : public CompanionsTest { };

TEST_F(WeatherLibrary, HasNothingWithoutWeather)
{
    const auto weather = Weather::WeatherApp::sharedManager();
    ASSERT_TRUE(weather);
    EXPECT_FALSE(weather.weatherData());
    EXPECT_FALSE(weather.lowestTemperature());
    EXPECT_FALSE(weather.highestTemperature());
}

TEST_F(WeatherLibrary, GivesTheTextsOfTheDevicesWeather)
{
    DeviceState::shared().weather
        = WeatherReport{"21°", "24°", "15°", "Partly Cloudy", "Haifa", "6:12", "", "/none.png"};
    const auto weather = Weather::WeatherApp::sharedManager();
    const NS::Dictionary data = weather.weatherData();
    EXPECT_EQ(text(data.objectForKey<NS::String>("temperature"_ns)), "21°");
    EXPECT_EQ(text(data.objectForKey<NS::String>("conditions"_ns)), "Partly Cloudy");
    EXPECT_EQ(text(data.objectForKey<NS::String>("location"_ns)), "Haifa");
    EXPECT_EQ(text(data.objectForKey<NS::String>("sunrise"_ns)), "6:12");
    EXPECT_FALSE(data.objectForKey<NS::Object>("sunset"_ns));
    EXPECT_FALSE(data.objectForKey<NS::Object>("conditionsImage"_ns));
    EXPECT_EQ(text(weather.highestTemperature()), "24°");
    EXPECT_EQ(text(weather.lowestTemperature()), "15°");
}

TEST_F(WeatherLibrary, GivesThePictureOfTheConditions)
{
    UIGraphicsBeginImageContextWithOptions({3, 2}, false, 1);
    const UI::Image drawn(UIGraphicsGetImageFromCurrentImageContext());
    UIGraphicsEndImageContext();
    const NS::Data png(UIImagePNGRepresentation(drawn.raw()));
    const std::string path = testing::TempDir() + "conditions.png";
    std::ofstream(path, std::ios::binary)
        .write(static_cast<const char*>(png.bytes()), static_cast<std::streamsize>(png.length()));
    DeviceState::shared().weather.emplace().image = path;
    const NS::Dictionary data = Weather::WeatherApp::sharedManager().weatherData();
    EXPECT_EQ(data.objectForKey<UI::Image>("conditionsImage"_ns).size(), (CGSize{3, 2}));
    std::filesystem::remove(path);
}

TEST_F(WeatherLibrary, RecordsThatItWasAskedToRefresh)
{
    Weather::WeatherApp::sharedManager().refreshWeatherData();
    EXPECT_EQ(ActivityLog::shared().take()[0]["kind"], "weatherRefresh");
}
