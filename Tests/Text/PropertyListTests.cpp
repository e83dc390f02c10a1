// Property lists written and read in each format.
#include "Simulator/Text/PropertyList.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Simulator;

namespace {

PropertyList text(const char* value)
{
    return {std::string(value)};
}

PropertyList sample()
{
    return {PropertyListDictionary{
        {"array", {PropertyListArray{text("x"), {true}, {std::int64_t{-1}}}}},
        {"boolean", {false}},
        {"bytes",
            {PropertyListData{std::string("\0\xFF"
                                          "abc",
                5)}}},
        {"date", {PropertyListDate{627169267}}},
        {"emptyArray", {PropertyListArray{}}},
        {"emptyDictionary", {PropertyListDictionary{}}},
        {"integer", {std::int64_t{9007199254740993}}},
        {"negative", {std::numeric_limits<std::int64_t>::min()}},
        {"real", {0.1}},
        {"text", text("Größe <&> \"שעון\" 🕘\n")},
    }};
}

}

TEST(PropertyList, ComesBackFromXmlAsItWas)
{
    EXPECT_EQ(readPropertyList(writeXmlPropertyList(sample())), sample());
}

TEST(PropertyList, ComesBackFromBinaryAsItWas)
{
    EXPECT_EQ(readPropertyList(writeBinaryPropertyList(sample())), sample());
}

TEST(PropertyList, BinaryTakesManyAndLargeObjects)
{
    PropertyListArray many;
    for (std::int64_t number = 0; number < 70000; ++number)
        many.push_back({number});
    many.push_back({std::string(100000, 'x')});
    const PropertyList list{std::move(many)};
    EXPECT_EQ(readPropertyList(writeBinaryPropertyList(list)), list);
}

TEST(PropertyList, IsWrittenAsXmlInTheOrderOfKeys)
{
    const PropertyList list{PropertyListDictionary{{"b", {true}}, {"a", {PropertyListArray{text("1 < 2"), {1.5}}}}}};
    EXPECT_EQ(writeXmlPropertyList(list),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
        "<plist version=\"1.0\">\n"
        "<dict>\n"
        "\t<key>a</key>\n"
        "\t<array>\n"
        "\t\t<string>1 &lt; 2</string>\n"
        "\t\t<real>1.5</real>\n"
        "\t</array>\n"
        "\t<key>b</key>\n"
        "\t<true/>\n"
        "</dict>\n"
        "</plist>\n");
}

TEST(PropertyList, XmlMayHaveCommentsReferencesAndSections)
{
    const char* xml
        = "\xEF\xBB\xBF<?xml version='1.0'?><!DOCTYPE plist [<!ENTITY a 'b'>]><!-- c --><plist version=\"1.0\">"
          "<dict><!-- c --><key>a&amp;&#65;&#x42;</key><string>x<![CDATA[<raw>]]>y</string>"
          "<key>h</key><integer> 0x1F </integer><key>n</key><real>+infinity</real>"
          "<key>t</key><true></true><key>e</key><string/></dict></plist> trailing";
    const auto list = readPropertyList(xml);
    ASSERT_TRUE(list);
    const PropertyListDictionary expected{{"a&AB", text("x<raw>y")}, {"h", {std::int64_t{31}}},
        {"n", {std::numeric_limits<double>::infinity()}}, {"t", {true}}, {"e", text("")}};
    EXPECT_EQ(std::get<PropertyListDictionary>(list->value), expected);
}

TEST(PropertyList, XmlMayBeUtf16OrLackItsFrame)
{
    EXPECT_EQ(readPropertyList("<dict><key>a</key><string>b</string></dict>"),
        (PropertyList{PropertyListDictionary{{"a", text("b")}}}));
    const std::u16string wide = u"\xFEFF<plist><string>é🕘</string></plist>";
    const std::string_view bytes(reinterpret_cast<const char*>(wide.data()), wide.size() * 2);
    EXPECT_EQ(readPropertyList(bytes), text("é🕘"));
}

TEST(PropertyList, ReadsTheOldTextStyle)
{
    const auto list = readPropertyList("// settings\n{ name = \"a\\n\\U00e9\"; list = (1, 'two', three,); "
                                       "bytes = <00ff 61>; nested = { on = YES; }; /* end */ }");
    const PropertyListDictionary expected{{"name", text("a\né")},
        {"list", {PropertyListArray{text("1"), text("two"), text("three")}}},
        {"bytes",
            {PropertyListData{std::string("\0\xFF"
                                          "a",
                3)}}},
        {"nested", {PropertyListDictionary{{"on", text("YES")}}}}};
    ASSERT_TRUE(list);
    EXPECT_EQ(std::get<PropertyListDictionary>(list->value), expected);
}

TEST(PropertyList, ReadsLinesOfTranslations)
{
    EXPECT_EQ(readPropertyList("/* title */\n\"Done\" = \"Fertig\";\n\"Cancel\" = \"Abbrechen\";\n"),
        (PropertyList{PropertyListDictionary{{"Done", text("Fertig")}, {"Cancel", text("Abbrechen")}}}));
}

TEST(PropertyList, ReadsDatesByTheCalendar)
{
    EXPECT_EQ(readPropertyList("<date>2020-11-15T21:41:07Z</date>"), (PropertyList{PropertyListDate{627169267}}));
    EXPECT_EQ(readPropertyList("<date>2000-12-31T23:59:59Z</date>"), (PropertyList{PropertyListDate{-1}}));
    EXPECT_FALSE(readXmlPropertyList("<date>2020-02-30T00:00:00Z</date>"));
    EXPECT_FALSE(readXmlPropertyList("<date>yesterday</date>"));
}

TEST(PropertyList, FarDatesComeBackAsTheyWere)
{
    for (const double seconds : {63113904000.0, 3e9, -3.2e9, 0.0}) {
        const PropertyList date{PropertyListDate{seconds}};
        EXPECT_EQ(readPropertyList(writeXmlPropertyList(date)), date) << seconds;
        EXPECT_EQ(readPropertyList(writeBinaryPropertyList(date)), date) << seconds;
    }
}

TEST(PropertyList, NumbersAreWrittenInTheFewestDigits)
{
    EXPECT_NE(writeXmlPropertyList({0.1}).find("<real>0.1</real>"), std::string::npos);
    EXPECT_NE(writeXmlPropertyList({1e300}).find("<real>1e+300</real>"), std::string::npos);
}
