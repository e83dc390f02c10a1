// Dictionaries and arrays in property-list files on the phone.
#include "FoundationTest.hpp"

#include "Platform/Foundation/NSData.hpp"
#include "Platform/Foundation/NSDictionary.hpp"
#include "Platform/Foundation/NSNumber.hpp"
#include "Simulator/Text/PropertyList.hpp"

using namespace Simulator;

class NSDictionaryFile : public FoundationTest {
protected:
    static NS::Dictionary sample()
    {
        const auto result = NS::MutableDictionary::dictionary();
        result.setObject("#FF0000FF"_ns, "timeColour"_ns);
        result.setObject(NS::Number::numberWithBool(true), "enabled"_ns);
        result.setObject(NS::Number::numberWithDouble(0.5), "size"_ns);
        result.setObject(NS::Number::numberWithInt(-3), "offset"_ns);
        return result;
    }
    static NS::Dictionary read(const char* path)
    {
        return NS::Dictionary::dictionaryWithContentsOfFile(stringOf(path));
    }
};

TEST_F(NSDictionaryFile, ComesBackAsItWasWritten)
{
    ASSERT_TRUE(sample().writeToFile("/Library/colours.plist"_ns, true));
    EXPECT_TRUE(std::filesystem::exists(root() + "/Library/colours.plist"));
    EXPECT_TRUE((read("/Library/colours.plist").send<bool, "isEqual:">(sample())));
    const auto number = read("/Library/colours.plist").objectForKey<NS::Number>("enabled"_ns);
    EXPECT_STREQ((number.send<const char*, "objCType">()), "c");
}

TEST_F(NSDictionaryFile, IsWrittenAsXml)
{
    sample().writeToFile("/Library/colours.plist"_ns, false);
    const std::string text = files.fetch("/Library/colours.plist").value;
    EXPECT_TRUE(text.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist"));
    EXPECT_NE(text.find("\t<key>enabled</key>\n\t<true/>\n\t<key>offset</key>\n\t<integer>-3</integer>\n"
                        "\t<key>size</key>\n\t<real>0.5</real>\n"),
        std::string::npos);
}

TEST_F(NSDictionaryFile, IsReadFromEveryFormat)
{
    const PropertyList list{PropertyListDictionary{{"a", {std::string("b")}}}};
    files.put("/Library/xml.plist", writeXmlPropertyList(list));
    files.put("/Library/binary.plist", writeBinaryPropertyList(list));
    files.put("/Library/old.plist", "{ a = b; }");
    for (const char* path : {"/Library/xml.plist", "/Library/binary.plist", "/Library/old.plist"})
        EXPECT_EQ(textOf(read(path).objectForKey<NS::String>("a"_ns)), "b") << path;
}

TEST_F(NSDictionaryFile, IsNilWithoutAWordForAnythingElse)
{
    files.put("/Library/array.plist", "(1, 2)");
    files.put("/Library/garbage.plist", std::string("\x00\xFF\xFE garbage", 11));
    files.put("/Library/empty.plist", "");
    files.put("/Library/deep.plist", std::string(300000, '('));
    files.put("/Library/cut.plist", writeXmlPropertyList({PropertyListDictionary{{"a", {true}}}}).substr(0, 150));
    testing::internal::CaptureStderr();
    for (const char* path : {"/Library/array.plist", "/Library/garbage.plist", "/Library/empty.plist",
             "/Library/deep.plist", "/Library/cut.plist", "/Library/none.plist", "/Library", ""}) {
        EXPECT_FALSE(read(path)) << path;
        EXPECT_FALSE(NS::MutableDictionary::dictionaryWithContentsOfFile(stringOf(path))) << path;
        EXPECT_FALSE(NS::Dictionary::make<"initWithContentsOfFile:">(stringOf(path))) << path;
    }
    EXPECT_FALSE(NS::Dictionary::dictionaryWithContentsOfFile(nullptr));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(NSDictionaryFile, ReadFromAMutableClassCanBeChanged)
{
    sample().writeToFile("/Library/colours.plist"_ns, true);
    const auto changeable = NS::MutableDictionary::dictionaryWithContentsOfFile("/Library/colours.plist"_ns);
    changeable.setObject("new"_ns, "key"_ns);
    EXPECT_EQ(changeable.count(), 5u);
}

TEST_F(NSDictionaryFile, IsNotWrittenIfItHoldsWhatNoPropertyListMay)
{
    const auto odd = NS::MutableDictionary::dictionary();
    odd.setObject(classNamed("NSNull").send<ObjC::Object, "null">(), "nothing"_ns);
    EXPECT_FALSE(odd.writeToFile("/Library/odd.plist"_ns, true));
    const auto numbered = NS::MutableDictionary::dictionary();
    numbered.setObject("a"_ns, NS::Number::numberWithInt(1));
    EXPECT_FALSE(numbered.writeToFile("/Library/odd.plist"_ns, true));
    EXPECT_FALSE(files.exists("/Library/odd.plist"));
}

TEST_F(NSDictionaryFile, FailsWhereTheFileSystemDoes)
{
    sample().writeToFile("/Library/colours.plist"_ns, true);
    files.setFault("/Library/colours.plist", FileOperation::read, EACCES);
    EXPECT_FALSE(read("/Library/colours.plist"));
    files.clearFaults();
    files.setFault("/Library/colours.plist", FileOperation::rename, EIO);
    EXPECT_FALSE(NS::MutableDictionary::dictionary().writeToFile("/Library/colours.plist"_ns, true));
    EXPECT_EQ(read("/Library/colours.plist").count(), 4u);
}

TEST_F(NSDictionaryFile, IsRecordedWhenWritten)
{
    sample().writeToFile("/Library/colours.plist"_ns, true);
    const auto written = records("fileWrite");
    ASSERT_EQ(written.size(), 1u);
    EXPECT_EQ(written[0]["path"], "/Library/colours.plist");
}

TEST_F(NSDictionaryFile, ArraysHaveFilesToo)
{
    const NS::MutableArray array = NS::MutableArray::make();
    array.addObject("x"_ns);
    EXPECT_TRUE((array.send<bool, "writeToFile:atomically:">("/Library/list.plist"_ns, true)));
    EXPECT_EQ(
        textOf(NS::Array::sendClass<NS::Array, "arrayWithContentsOfFile:">("/Library/list.plist"_ns).at<NS::String>(0)),
        "x");
    EXPECT_FALSE(read("/Library/list.plist"));
}

TEST_F(NSDictionaryFile, SerializationKnowsItsFormats)
{
    const auto serialization = classNamed("NSPropertyListSerialization");
    for (const unsigned long format : {100UL, 200UL}) {
        const auto data = serialization.send<NS::Data, "dataWithPropertyList:format:options:error:">(
            sample(), format, 0UL, static_cast<id*>(nullptr));
        ASSERT_TRUE(data);
        unsigned long found = 0;
        const auto list = serialization.send<ObjC::Object, "propertyListWithData:options:format:error:">(
            data, 0UL, &found, static_cast<id*>(nullptr));
        EXPECT_TRUE((list.send<bool, "isEqual:">(sample())));
        EXPECT_EQ(found, format);
    }
    id error = nullptr;
    EXPECT_FALSE((serialization.send<ObjC::Object, "propertyListWithData:options:format:error:">(
        NS::Data::dataWithBytes("<x", 2), 0UL, static_cast<unsigned long*>(nullptr), &error)));
    EXPECT_EQ((ObjC::Object(error).send<long, "code">()), 3840);
}
