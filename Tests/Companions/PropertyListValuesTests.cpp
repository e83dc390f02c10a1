// Property-list objects as JSON.
#include "Simulator/Companions/PropertyListValues.hpp"

#include "CompanionsTest.hpp"

using namespace Simulator;
using Json = nlohmann::ordered_json;

class PropertyListValues : public CompanionsTest { };

TEST_F(PropertyListValues, GoToObjectsAndBackUnchanged)
{
    const Json json = {{"array", Json::array({"a", 1, 2.5, true, false})}, {"nested", {{"key", "äöü"}}}, {"zero", 0}};
    EXPECT_EQ(jsonOfValue(valueOfJson(json)), json);
    EXPECT_TRUE(jsonOfValue(valueOfJson(json))["array"][3].is_boolean());
    EXPECT_TRUE(jsonOfValue(valueOfJson(json))["zero"].is_number_integer());
}

TEST_F(PropertyListValues, SurviveAFile)
{
    const Json json = {{"flag", true}, {"number", 7}, {"real", 0.25}, {"text", "<&>\""}};
    writeFile("/var/mobile/values.plist", xmlOfDictionary(valueOfJson(json).as<NS::Dictionary>()));
    EXPECT_EQ(jsonOfValue(dictionaryInFile("/var/mobile/values.plist")), json);
}

TEST_F(PropertyListValues, LeaveOutWhatIsNull)
{
    EXPECT_FALSE(valueOfJson(nullptr));
    EXPECT_EQ(
        jsonOfValue(valueOfJson({{"a", nullptr}, {"b", Json::array({nullptr, 1})}})), (Json{{"b", Json::array({1})}}));
}

TEST_F(PropertyListValues, ReadAMissingFileAsEmpty)
{
    EXPECT_EQ(dictionaryInFile("/var/mobile/none.plist").count(), 0u);
}
