// The phone's own library and the Linux one, put through the same days: every view, every record and every pixel.
#include "Tests/EndToEnd/GoldenScenes.hpp"
#include "Tests/MachO/LibraryBytes.hpp"
#include "Tests/MachO/PhoneWith.hpp"
#include "Tests/MachO/Scenarios.hpp"

namespace {

struct Outcome {
    Json trees = Json::array();
    std::vector<std::string> pictures;
    Json records;
    Json hooks;
};

const Json noDifference = Json::array();

Outcome outcome(const Scenario& scenario, const char* extension)
{
    auto phone = phoneWith(extension, scenario.start);
    Outcome result;
    const auto look = [&] {
        result.trees.push_back(phone.call("view.tree"));
        // A photo is scaled with a rounding that differs by one step between processors.
        if (!isEmulated() || !scenario.isAboutWallpaper)
            result.pictures.push_back(phone.capture());
    };
    phone.settle();
    look();
    scenario.script(phone, look);
    look();
    result.records = phone.takeLog();
    result.hooks = phone.call("objc.hooks");
    EXPECT_EQ(phone.info().at("safeMode"), false) << scenario.name;
    return result;
}

class SameBehaviour : public testing::TestWithParam<Scenario> { };
class SamePicture : public testing::TestWithParam<GoldenScene> { };

}

TEST_P(SameBehaviour, ToTheLastByte)
{
    Scenario scenario = GetParam();
    if (isEmulated() && !scenario.isAboutWallpaper)
        scenario.start.withoutWallpaper();
    const auto linux = outcome(scenario, LINUX_LIBRARY);
    const auto phones = outcome(scenario, PHONE_LIBRARY);
    EXPECT_EQ(Json::diff(linux.trees, phones.trees), noDifference);
    EXPECT_EQ(Json::diff(linux.records, phones.records), noDifference);
    EXPECT_EQ(Json::diff(linux.hooks, phones.hooks), noDifference);
    EXPECT_TRUE(phones.pictures == linux.pictures) << "the pictures differ";
    EXPECT_GE(linux.trees.size(), 2u);
    EXPECT_FALSE(linux.records.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Scenarios, SameBehaviour, testing::ValuesIn(scenarios()), [](const auto& scenario) { return scenario.param.name; });

TEST_P(SamePicture, OfEachGoldenLook)
{
    const Support::TemporaryFolder folder;
    std::vector<std::string> pictures;
    for (const char* extension : {LINUX_LIBRARY, PHONE_LIBRARY}) {
        drawGolden(GetParam(), folder.at("picture.png"), {"--extension", extension});
        pictures.push_back(bytesOfFile(folder.at("picture.png")));
        fs::remove(folder.at("picture.png"));
    }
    EXPECT_FALSE(pictures[0].empty());
    EXPECT_TRUE(pictures[0] == pictures[1]) << "the pictures differ";
}

INSTANTIATE_TEST_SUITE_P(Scenes, SamePicture, testing::ValuesIn(goldenScenes),
    [](const auto& scene) { return goldenTestName(scene.param.name); });

TEST(SealedSystem, TheLibraryForItFindsItsFilesUnderThePrefix)
{
    // On such a phone the prefix is a link to a folder that is laid out like the system's own.
    const Support::TemporaryFolder root;
    std::filesystem::create_directories(root.path() / "var");
    std::filesystem::create_directory_symlink("..", root.path() / "var/jb");
    const auto start = [] { return eveningPhone({{"customFont", "3"}, {"dateOption", "7"}}); };
    const Scenario plain{"plain", start(), Scripts::nothingMore};
    const Scenario sealed{"sealed", start().root(root.path()), Scripts::nothingMore};

    const auto expected = outcome(plain, PHONE_LIBRARY);
    const auto found = outcome(sealed, SEALED_LIBRARY);
    EXPECT_TRUE(found.pictures == expected.pictures) << "the pictures differ";
    EXPECT_FALSE(outcome(plain, SEALED_LIBRARY).pictures == expected.pictures)
        << "it found its files without the prefix";
}
