// Stored settings and the variables bound to them.
#include "Platform/Companions/HBPreferences.hpp"

#include "CompanionsTest.hpp"
#include "Platform/Foundation/NSNumber.hpp"
#include "Simulator/Companions/DarwinNotifications.hpp"
#include "Simulator/Companions/HBPreferences.hpp"
#include "Simulator/Companions/PropertyListValues.hpp"

using namespace Simulator;
using Json = nlohmann::ordered_json;

namespace {

constexpr const char* domain = "com.example.prefs";
constexpr const char* file = "/var/mobile/Library/Preferences/com.example.prefs.plist";

/// A global of a program: owned, never destroyed.
struct Bound {
    id object = nullptr;
    ~Bound() { ObjC::release(object); }
    std::string text() const { return std::string(NS::Object(object).as<NS::String>().utf8()); }
};

class Preferences : public CompanionsTest {
protected:
    static HB::Preferences open() { return HB::Preferences::withIdentifier(string(domain)); }
    static void fill(const Json& values) { writeFile(file, xmlOfDictionary(valueOfJson(values).as<NS::Dictionary>())); }
    static Json stored() { return jsonOfValue(storedValues(domain)); }
};

}

TEST_F(Preferences, GiveTheDefaultsOfAnEmptyDomain)
{
    Bound size;
    bool enabled = false;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    preferences.registerBool(&enabled, true, "enabled"_ns);
    EXPECT_EQ(size.text(), "90");
    EXPECT_TRUE(enabled);
    EXPECT_EQ(stored(), Json::object());
}

TEST_F(Preferences, GiveWhatIsStoredAtRegistration)
{
    fill({{"size", "120"}, {"enabled", false}});
    Bound size;
    bool enabled = true;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    preferences.registerBool(&enabled, true, "enabled"_ns);
    EXPECT_EQ(size.text(), "120");
    EXPECT_FALSE(enabled);
}

TEST_F(Preferences, ReadFlagsFromNumbersAndTextsButNotFromLists)
{
    fill({{"number", 1}, {"text", "YES"}, {"list", Json::array({1})}});
    bool number = false, text = false, list = false;
    const auto preferences = open();
    preferences.registerBool(&number, false, "number"_ns);
    preferences.registerBool(&text, false, "text"_ns);
    preferences.registerBool(&list, true, "list"_ns);
    EXPECT_TRUE(number);
    EXPECT_TRUE(text);
    EXPECT_TRUE(list);
}

TEST_F(Preferences, HandOnWhateverKindOfObjectIsStored)
{
    fill({{"size", 120.5}, {"list", Json::array({"a"})}});
    Bound size, list;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    preferences.registerObject(&list.object, "90"_ns, "list"_ns);
    EXPECT_EQ(NS::Object(size.object).as<NS::Number>().doubleValue(), 120.5);
    EXPECT_EQ(NS::Object(list.object).as<NS::Array>().count(), 1u);
}

TEST_F(Preferences, TakeAGarbageFileForAnEmptyDomain)
{
    for (const std::string& garbage : {std::string("garbage"), std::string("bplist00\xff\xff\xff\xff"), std::string(),
             std::string("<?xml version=\"1.0\"?><plist><dict><key>size"), std::string("<plist><array/></plist>"),
             std::string("bplist00") + std::string(40, '\xff')}) {
        writeFile(file, garbage);
        Bound size;
        const auto preferences = open();
        preferences.registerObject(&size.object, "90"_ns, "size"_ns);
        EXPECT_EQ(size.text(), "90") << garbage;
    }
}

TEST_F(Preferences, ReadABinaryPropertyList)
{
    // {"size": "70"} as the phone writes it.
    const unsigned char bytes[]
        = {'b', 'p', 'l', 'i', 's', 't', '0', '0', 0xd1, 1, 2, 0x54, 's', 'i', 'z', 'e', 0x52, '7', '0', 8, 11, 16, 0,
            0, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0, 0, 0, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 19};
    writeFile(file, {reinterpret_cast<const char*>(bytes), sizeof bytes});
    Bound size;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    EXPECT_EQ(size.text(), "70");
}

TEST_F(Preferences, MirrorTheirOwnChangesIntoTheVariableAndTheFile)
{
    Bound size;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    preferences.setObject("95"_ns, "size"_ns);
    EXPECT_EQ(size.text(), "95");
    EXPECT_EQ(stored(), (Json{{"size", "95"}}));
    EXPECT_TRUE(readFile(file).starts_with("<?xml"));
}

TEST_F(Preferences, MirrorWhatTheSettingsPaneStores)
{
    Bound first, second;
    bool enabled = true;
    const auto one = open();
    const auto other = open();
    EXPECT_EQ(one, other) << "there is one for a domain";
    one.registerObject(&first.object, "90"_ns, "size"_ns);
    other.registerObject(&second.object, "80"_ns, "width"_ns);
    other.registerBool(&enabled, true, "enabled"_ns);
    EXPECT_TRUE(
        storeValues(domain, valueOfJson({{"size", "100"}, {"width", "110"}, {"enabled", false}}).as<NS::Dictionary>()));
    EXPECT_EQ(first.text(), "100");
    EXPECT_EQ(second.text(), "110");
    EXPECT_FALSE(enabled);
}

TEST_F(Preferences, TakeOverAChangedFileWhenTheReloadIsPosted)
{
    fill({{"size", "120"}, {"width", "110"}});
    Bound size, width;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    preferences.registerObject(&width.object, "100"_ns, "width"_ns);
    fill({{"size", "77"}});
    EXPECT_EQ(size.text(), "120");
    postDarwinNotification("com.example.other/ReloadPrefs");
    EXPECT_EQ(size.text(), "120");
    postDarwinNotification("com.example.prefs/ReloadPrefs");
    EXPECT_EQ(size.text(), "77");
    EXPECT_EQ(width.text(), "100");
}

TEST_F(Preferences, GoBackToTheDefaultWhenAValueIsTakenAway)
{
    fill({{"size", "120"}});
    Bound size;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    EXPECT_TRUE(storeValue(domain, "size", {}));
    EXPECT_EQ(size.text(), "90");
    EXPECT_EQ(stored(), Json::object());
}

TEST_F(Preferences, AreKeptApartByDomain)
{
    Bound size;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    storeValue("com.example.other", "size", "1"_ns);
    EXPECT_EQ(size.text(), "90");
    EXPECT_EQ(jsonOfValue(storedValues("com.example.other")), (Json{{"size", "1"}}));
}

TEST_F(Preferences, MirrorForAsLongAsTheProcessLives)
{
    Bound size;
    {
        const ObjC::AutoreleasePool pool;
        const auto preferences = open();
        preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    }
    storeValue(domain, "size", "100"_ns);
    EXPECT_EQ(size.text(), "100");
}

TEST_F(Preferences, LeaveTheVariableAnOwnerOfItsValue)
{
    Bound size;
    const NS::String first = NS::String::fromUTF8("a value that is long enough to be a real object");
    {
        const ObjC::AutoreleasePool pool;
        open().registerObject(&size.object, first, "size"_ns);
    }
    const auto owners = first.send<unsigned long, "retainCount">();
    ObjC::release(std::exchange(size.object, nullptr));
    EXPECT_EQ((first.send<unsigned long, "retainCount">()), owners - 1);
}

TEST_F(Preferences, TellWhatTheLastBoundVariableHolds)
{
    Bound size;
    bool enabled = false;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "boundSize"_ns);
    preferences.registerBool(&enabled, true, "boundFlag"_ns);
    EXPECT_EQ(jsonOfValue(boundValue("boundSize")->object), Json("90"));
    EXPECT_EQ(boundValue("boundFlag")->kind, BoundValue::Kind::boolean);
    EXPECT_TRUE(boundValue("boundFlag")->boolean);
    EXPECT_FALSE(boundValue("neverBound").has_value());
}

TEST_F(Preferences, RecordWhatTheProgramStoresButNotWhatThePaneStores)
{
    const auto preferences = open();
    preferences.setObject("95"_ns, "size"_ns);
    preferences.setObject(NS::Number::numberWithInt(7), "count"_ns);
    preferences.setObject(NS::Number::numberWithBool(true), "flag"_ns);
    storeValue(domain, "pane", "1"_ns);
    const Json records = ActivityLog::shared().take();
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0]["kind"], "setting");
    EXPECT_EQ(records[0]["value"], "95");
    EXPECT_EQ(records[0]["type"], "string");
    EXPECT_EQ(records[1]["value"], 7);
    EXPECT_EQ(records[1]["type"], "number");
    EXPECT_EQ(records[2]["value"], true);
    EXPECT_EQ(records[2]["type"], "bool");
}

TEST_F(Preferences, KeepValuesInMemoryWhileTheDiskFails)
{
    PhoneFiles::shared().setFault(file, FileOperation::write, ENOSPC);
    Bound size;
    const auto preferences = open();
    preferences.registerObject(&size.object, "90"_ns, "size"_ns);
    preferences.setObject("95"_ns, "size"_ns);
    preferences.setObject("1"_ns, "other"_ns);
    EXPECT_EQ(size.text(), "95");
    EXPECT_EQ(readFile(file), "");
    PhoneFiles::shared().clearFaults();
    preferences.setObject("2"_ns, "other"_ns);
    EXPECT_EQ(jsonOfValue(dictionaryInFile(file)), (Json{{"other", "2"}, {"size", "95"}}));
}

TEST_F(Preferences, RefuseWhatAPropertyListCannotHold)
{
    const auto preferences = open();
    preferences.setObject(preferences, "self"_ns);
    EXPECT_EQ(stored(), Json::object());
    EXPECT_TRUE(ActivityLog::shared().take().empty());
}
