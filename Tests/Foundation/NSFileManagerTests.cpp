// The phone's files through Foundation: manager, data, strings, bundles, locations.
#include "FoundationTest.hpp"

#include "Platform/Foundation/NSData.hpp"
#include "Platform/Foundation/NSFileManager.hpp"
#include "Platform/Foundation/NSURL.hpp"

using namespace Simulator;

class NSFileManager : public FoundationTest {
protected:
    static constexpr id* noError = nullptr;
    static std::string joined(const NS::Array& names)
    {
        std::string result;
        for (unsigned long index = 0; index < names.count(); ++index)
            result += textOf(names.at<NS::String>(index)) + " ";
        return result;
    }
    NS::FileManager manager() { return NS::FileManager::defaultManager(); }
    static std::string bytes(const NS::Data& data) { return {static_cast<const char*>(data.bytes()), data.length()}; }
};

TEST_F(NSFileManager, ListsAFolderInOrder)
{
    for (const char* name : {"b.ttf", "a.ttf", "Z.otf"})
        files.put(std::string("/Library/Fonts/") + name, "");
    EXPECT_EQ(joined(manager().contentsOfDirectoryAtPath("/Library/Fonts/"_ns)), "Z.otf a.ttf b.ttf ");
    EXPECT_FALSE(manager().contentsOfDirectoryAtPath("/Library/None"_ns));
    EXPECT_FALSE(manager().contentsOfDirectoryAtPath(nullptr));
    id error = nullptr;
    EXPECT_FALSE((manager().send<NS::Array, "contentsOfDirectoryAtPath:error:">("/Library/None"_ns, &error)));
    EXPECT_EQ((ObjC::Object(error).send<long, "code">()), 260);
}

TEST_F(NSFileManager, KnowsWhatExists)
{
    files.put("/var/mobile/Library/x", "1");
    EXPECT_TRUE(manager().fileExistsAtPath("/User/Library/x"_ns));
    EXPECT_TRUE(manager().fileExistsAtPath("/private/var/mobile"_ns));
    EXPECT_FALSE(manager().fileExistsAtPath("/var/log"_ns));
    EXPECT_FALSE(manager().fileExistsAtPath(nullptr));
    unsigned char isFolder = 9;
    EXPECT_TRUE((manager().send<bool, "fileExistsAtPath:isDirectory:">("/var/mobile"_ns, &isFolder)));
    EXPECT_EQ(isFolder, 1);
}

TEST_F(NSFileManager, CreatesMovesCopiesAndRemoves)
{
    EXPECT_TRUE((manager().send<bool, "createDirectoryAtPath:withIntermediateDirectories:attributes:error:">(
        "/Library/a/b"_ns, true, ObjC::Object(), noError)));
    EXPECT_TRUE((manager().send<bool, "createFileAtPath:contents:attributes:">(
        "/Library/a/b/file"_ns, NS::Data::dataWithBytes("abc", 3), ObjC::Object())));
    EXPECT_TRUE((manager().send<bool, "copyItemAtPath:toPath:error:">("/Library/a"_ns, "/Library/c"_ns, noError)));
    EXPECT_EQ(files.fetch("/Library/c/b/file").value, "abc");
    EXPECT_FALSE((manager().send<bool, "copyItemAtPath:toPath:error:">("/Library/a"_ns, "/Library/a/b/c"_ns, noError)));
    EXPECT_TRUE((manager().send<bool, "moveItemAtPath:toPath:error:">("/Library/c"_ns, "/Library/d"_ns, noError)));
    EXPECT_FALSE(files.exists("/Library/c"));
    EXPECT_FALSE((manager().send<bool, "moveItemAtPath:toPath:error:">("/Library/d"_ns, "/Library/a"_ns, noError)));
    EXPECT_TRUE((manager().send<bool, "removeItemAtPath:error:">("/Library/d"_ns, noError)));
    EXPECT_FALSE((manager().send<bool, "removeItemAtPath:error:">("/Library/d"_ns, noError)));
    EXPECT_EQ(joined(manager().contentsOfDirectoryAtPath("/Library"_ns)), "a ");
}

TEST_F(NSFileManager, GnustepsOwnPathsLeadToThePhoneToo)
{
    files.put("/Library/x", "12345");
    const auto attributes = manager().send<ObjC::Object, "attributesOfItemAtPath:error:">("/Library/x"_ns, noError);
    EXPECT_EQ((attributes.send<unsigned long long, "fileSize">()), 5u);
    EXPECT_TRUE((manager().send<bool, "isReadableFileAtPath:">("/Library/x"_ns)));
}

TEST_F(NSFileManager, NothingIsWrittenOutsideOfThePhone)
{
    files.createFolder("/tmp", true);
    const std::string hostPath = testing::TempDir() + "lyr-must-not-exist";
    files.createFolder(testing::TempDir(), true);
    EXPECT_TRUE(NS::Data::dataWithBytes("abc", 3).writeToFile(stringOf(hostPath), true));
    EXPECT_FALSE(std::filesystem::exists(hostPath));
    EXPECT_EQ(bytes(NS::Data::dataWithContentsOfFile(stringOf(hostPath))), "abc");
}

TEST_F(NSFileManager, DataComesFromAndGoesToThePhone)
{
    EXPECT_TRUE(NS::Data::dataWithBytes("abc", 3).writeToFile("/Library/x"_ns, true));
    EXPECT_EQ(bytes(NS::Data::dataWithContentsOfFile("/Library/x"_ns)), "abc");
    EXPECT_EQ(bytes(NS::Data::sendClass<NS::Data, "dataWithContentsOfURL:">(NS::URL::fileURLWithPath("/Library/x"_ns))),
        "abc");
    EXPECT_EQ(bytes(NS::Data::make<"initWithContentsOfFile:">("/Library/x"_ns)), "abc");
    EXPECT_FALSE(NS::Data::dataWithBytes("abc", 3).writeToFile("/Library/none/x"_ns, true));
    EXPECT_FALSE(NS::Data::dataWithBytes("abc", 3).writeToFile(nullptr, true));
}

TEST_F(NSFileManager, DataKeepsWhatItsFileHeld)
{
    files.put("/Library/x", "abc");
    const auto data = NS::Data::dataWithContentsOfFile("/Library/x"_ns);
    const auto own = ObjC::sendMessage<NS::Data>(reinterpret_cast<id>(objc_getClass("NSMutableData")),
        ObjC::selector<"dataWithContentsOfFile:">(), "/Library/x"_ns);
    own.send<void, "setLength:">(2UL);
    files.put("/Library/x", "xyz");
    EXPECT_EQ(bytes(data), "abc");
    EXPECT_EQ(bytes(own), "ab");
    EXPECT_EQ(bytes(data.send<NS::Data, "copy">()), "abc");
    EXPECT_EQ(bytes(data.send<NS::Data, "mutableCopy">()), "abc");
    EXPECT_TRUE((data.send<bool, "isEqualToData:">(NS::Data::dataWithBytes("abc", 3))));
    EXPECT_EQ(bytes(NS::Data::dataWithContentsOfFile("/Library/x"_ns)), "xyz");
    files.put("/Library/empty", "");
    EXPECT_EQ((NS::Data::dataWithContentsOfFile("/Library/empty"_ns).length()), 0u);
}

TEST_F(NSFileManager, DataThatCannotBeReadIsNilWithoutAWord)
{
    testing::internal::CaptureStderr();
    EXPECT_FALSE(NS::Data::dataWithContentsOfFile("/Library/none"_ns));
    EXPECT_FALSE(NS::Data::dataWithContentsOfFile("/Library"_ns));
    EXPECT_FALSE(NS::Data::dataWithContentsOfFile(nullptr));
    EXPECT_FALSE((NS::Data::sendClass<NS::Data, "dataWithContentsOfURL:">(NS::URL())));
    EXPECT_FALSE((NS::Data::sendClass<NS::Data, "dataWithContentsOfURL:">(
        NS::URL::sendClass<NS::URL, "URLWithString:">("https://example.com/"_ns))));
    id error = nullptr;
    files.put("/Library/x", "1");
    files.setFault("/Library/x", FileOperation::read, EACCES);
    EXPECT_FALSE(
        (NS::Data::sendClass<NS::Data, "dataWithContentsOfFile:options:error:">("/Library/x"_ns, 0UL, &error)));
    EXPECT_EQ((ObjC::Object(error).send<long, "code">()), 257);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(NSFileManager, StringsHaveFilesToo)
{
    EXPECT_TRUE(("Grüße"_ns.send<bool, "writeToFile:atomically:encoding:error:">("/Library/t"_ns, true, 4UL, noError)));
    EXPECT_EQ(files.fetch("/Library/t").value, "Grüße");
    EXPECT_EQ(textOf(NS::String::sendClass<NS::String, "stringWithContentsOfFile:encoding:error:">(
                  "/Library/t"_ns, 4UL, noError)),
        "Grüße");
    EXPECT_FALSE((
        NS::String::sendClass<NS::String, "stringWithContentsOfFile:encoding:error:">("/Library/no"_ns, 4UL, noError)));
}

TEST_F(NSFileManager, ALocationKeepsThePhonesPath)
{
    files.createFolder("/Library/a b", true);
    EXPECT_EQ(textOf(NS::URL::fileURLWithPath("/Library/a b/é.txt"_ns).path()), "/Library/a b/é.txt");
    EXPECT_EQ(textOf(NS::URL::fileURLWithPath("/Library/a b"_ns).path()), "/Library/a b");
}

TEST_F(NSFileManager, ABundleFindsItsResources)
{
    const auto bundles = classNamed("NSBundle");
    EXPECT_FALSE((bundles.send<ObjC::Object, "bundleWithPath:">("/Library/lyr.bundle"_ns)));
    files.put("/Library/lyr.bundle/icon.svg", "<svg/>");
    const auto bundle = bundles.send<ObjC::Object, "bundleWithPath:">("/Library/lyr.bundle"_ns);
    ASSERT_TRUE(bundle);
    EXPECT_EQ(textOf(bundle.send<NS::String, "bundlePath">()), "/Library/lyr.bundle");
    EXPECT_EQ(textOf(bundle.send<NS::URL, "URLForResource:withExtension:">("icon"_ns, "svg"_ns).path()),
        "/Library/lyr.bundle/icon.svg");
    EXPECT_FALSE((bundle.send<NS::URL, "URLForResource:withExtension:">("none"_ns, "svg"_ns)));
    files.put("/Library/lyr.bundle/late.svg", "<svg/>");
    EXPECT_TRUE((bundle.send<NS::String, "pathForResource:ofType:">("late"_ns, "svg"_ns)));
    EXPECT_TRUE((bundle.send<NS::String, "pathForResource:ofType:">("late.svg"_ns, NS::String())));
}

TEST_F(NSFileManager, ABundleSpeaksTheUsersLanguage)
{
    files.put("/Library/lyr.bundle/en.lproj/Text.strings", "\"a\" = \"b\";");
    files.put("/Library/lyr.bundle/de.lproj/Text.strings", "\"a\" = \"c\";");
    const auto bundle = classNamed("NSBundle").send<ObjC::Object, "bundleWithPath:">("/Library/lyr.bundle"_ns);
    const auto path
        = [&] { return textOf(bundle.send<NS::String, "pathForResource:ofType:">("Text"_ns, "strings"_ns)); };
    EXPECT_EQ(path(), "/Library/lyr.bundle/en.lproj/Text.strings");
    PhoneLocale::shared().languages = {"de-AT", "en"};
    EXPECT_EQ(path(), "/Library/lyr.bundle/de.lproj/Text.strings");
}

TEST_F(NSFileManager, ABundleTellsItsTextsAndItsIdentifier)
{
    files.put("/Library/lyr.bundle/de.lproj/Localizable.strings", "\"Done\" = \"Fertig\";");
    files.put("/Library/lyr.bundle/Info.plist", "{ CFBundleIdentifier = \"org.example.lyr\"; }");
    PhoneLocale::shared().languages = {"de"};
    const auto allocated = classNamed("NSBundle").send<id, "alloc">();
    const auto bundle = ObjC::Object::adopting(
        ObjC::sendMessage<id>(allocated, ObjC::selector<"initWithPath:">(), "/Library/lyr.bundle/"_ns));
    const auto text = [&](const char* key) {
        return textOf(
            bundle.send<NS::String, "localizedStringForKey:value:table:">(stringOf(key), ""_ns, NS::String()));
    };
    EXPECT_EQ(text("Done"), "Fertig");
    EXPECT_EQ(text("Cancel"), "Cancel");
    EXPECT_EQ(textOf(bundle.send<NS::String, "bundleIdentifier">()), "org.example.lyr");
    EXPECT_ANY_THROW((bundle.send<ObjC::Object, "executablePath">()));
}
