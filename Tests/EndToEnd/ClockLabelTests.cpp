// How the clock's labels are made, placed and styled.
#include "Tests/EndToEnd/Scenario.hpp"

TEST(ClockLabels, StandWhereTheStockClockWasAndHideIt)
{
    auto phone = settledWith();
    EXPECT_TRUE(phone.view("stock.time").hidden);
    EXPECT_TRUE(phone.label("_timeLabel").onScreen);
    EXPECT_TRUE(phone.label("_dateLabel").onScreen);
    EXPECT_TRUE(phone.label("_timerLabel").hidden);
    EXPECT_TRUE(phone.view("_timeBorderView").hidden);
    EXPECT_TRUE(phone.view("_dateBorderView").hidden);
}

TEST(ClockLabels, TheStockClockIsHiddenAgainOnEveryLayoutPass)
{
    auto phone = settledWith();
    phone.send({{"id", "stock.time"}}, "setHidden:", {false});
    phone.send({{"instance", "SBFLockScreenDateView"}}, "layoutSubviews");
    EXPECT_TRUE(phone.view("stock.time").hidden);
}

TEST(ClockLabels, AreMadeWithTheirOwnLinesAndColours)
{
    auto phone = eveningPhone().start();
    EXPECT_EQ(phone.label("_timeLabel").lines, 2);
    EXPECT_EQ(phone.label("_dateLabel").lines, 1);
    EXPECT_EQ(phone.label("_timerLabel").lines, 1);
    EXPECT_EQ(phone.label("_dateLabel").textColour, "#FFFFFFFF");
    EXPECT_EQ(phone.label("_timerLabel").textColour, "#FFFFFFFF");
    EXPECT_EQ(phone.send({{"id", "_timeLabel"}}, "adjustsFontSizeToFitWidth"), true);
    EXPECT_EQ(phone.send({{"id", "_dateLabel"}}, "adjustsFontSizeToFitWidth"), false);
    EXPECT_EQ(phone.send({{"id", "_dateLabel"}}, "lineBreakMode"), 4);
    EXPECT_EQ(phone.send({{"id", "_timerLabel"}}, "adjustsFontSizeToFitWidth"), true);
    EXPECT_EQ(phone.view("_timeBorderView").json.at("layer").at("cornerRadius"), 15);
    EXPECT_EQ(phone.view("_timeBorderView").background, "#00000000");
}

TEST(ClockLabels, ThePhoneTakesItsWidthsFromTheScreensWidth)
{
    auto phone = settled(eveningPhone().screen(320, 568, 2));
    EXPECT_EQ(phone.label("_timeLabel").frame, (Rectangle{7, 0, 290, 180}));
    EXPECT_EQ(phone.label("_dateLabel").frame, (Rectangle{7, 0, 290, 40}));
    EXPECT_EQ(phone.label("_timerLabel").frame, (Rectangle{7, 0, 290, 40}));
}

TEST(ClockLabels, TheTabletTakesThemFromItsHeightAndScalesTheWhole)
{
    auto phone = settled(eveningPhone().screen(1024, 768, 2));
    EXPECT_EQ(phone.label("_timeLabel").frame, (Rectangle{7, 0, 738, 180}));
    EXPECT_EQ(phone.label("_dateLabel").frame, (Rectangle{7, 0, 738, 40}));
    EXPECT_EQ(
        phone.send({{"instance", "SBFLockScreenDateViewController"}}, "view").at("class"), "SBFLockScreenDateView");
    auto transform = phone.call("objc.send",
        {{"target", {{"instance", "SBFLockScreenDateView"}}}, {"selector", "transform"}, {"args", Json::array()}});
    EXPECT_EQ(transform.at("value"), (Json{0.8, 0, 0, 0.8, 0, 0}));
}

TEST(ClockLabels, AScreenOfFiveHundredPointsGetsNoFrameAtAll)
{
    for (double width : {500, 501}) {
        auto phone = settled(eveningPhone().screen(width, 900, 1));
        EXPECT_EQ(phone.label("_timeLabel").frame, (Rectangle{0, 0, 0, 0})) << width;
        EXPECT_EQ(phone.label("_dateLabel").frame, (Rectangle{0, 0, 0, 0})) << width;
        EXPECT_EQ(phone.label("_timeLabel").text, "09.41") << "texts and styles go on";
    }
    for (double width : {499, 502})
        EXPECT_NE(settled(eveningPhone().screen(width, 900, 1)).label("_timeLabel").frame, (Rectangle{0, 0, 0, 0}));
}

TEST(ClockLabels, ThereTheDateStaysWhereItIsWhateverPlacesIt)
{
    const Rectangle frame{1, 2, 3, 4};
    for (double width : {500, 501}) {
        auto phone = settled(eveningPhone().screen(width, 900, 1));
        phone.send({{"id", "_dateLabel"}}, "setFrame:", Json::array({frame}));
        refresh(phone);
        EXPECT_EQ(phone.label("_dateLabel").frame, frame) << width;
        phone.send({{"instance", "SBFLockScreenDateView"}}, "_updateLabels");
        EXPECT_EQ(phone.label("_dateLabel").frame, frame) << width;
    }
    for (auto [width, labels] : {std::pair{499.0, 469.0}, {502.0, 870.0}}) {
        auto phone = settled(eveningPhone().screen(width, 900, 1));
        phone.send({{"id", "_dateLabel"}}, "setFrame:", Json::array({frame}));
        phone.send({{"instance", "SBFLockScreenDateView"}}, "_updateLabels");
        EXPECT_EQ(phone.label("_dateLabel").frame, (Rectangle{7, 0, labels, 40})) << width;
    }
}

TEST(ClockLabels, OffsetsMoveThemAndFractionsCount)
{
    auto phone
        = settledWith({{"XtimeLabel", "12.5"}, {"YtimeLabel", "-20"}, {"XdateLabel", "-3"}, {"YdateLabel", "90.25"}});
    EXPECT_EQ(phone.label("_timeLabel").frame, (Rectangle{19.5, -20, 345, 180}));
    EXPECT_EQ(phone.label("_dateLabel").frame, (Rectangle{4, 90.25, 345, 40}));
    EXPECT_EQ(phone.label("_timerLabel").frame, (Rectangle{4, 90.25, 345, 40}));
}

TEST(ClockLabels, TheOutlinesFollowAndOnlyTheTimesKeepsItsMargin)
{
    auto phone = settledWith({{"XtimeLabel", "10"}, {"YtimeLabel", "20"}, {"XdateLabel", "30"}, {"YdateLabel", "40"}});
    refresh(phone);
    EXPECT_EQ(phone.view("_timeBorderView").frame, (Rectangle{12.5, 60, 355, 100}));
    EXPECT_EQ(phone.view("_dateBorderView").frame, (Rectangle{32.5, 40, 355, 40}));
}

TEST(ClockLabels, TransparencyIsTheSettings)
{
    auto phone = settledWith({{"alphaTime", "0.3"}, {"alphaDate", "1"}});
    EXPECT_NEAR(phone.label("_timeLabel").alpha, 0.3, 1e-6);
    EXPECT_EQ(phone.label("_dateLabel").alpha, 1);
}

TEST(ClockLabels, FourBuiltInFontsAndTheSizeAsAWholeNumber)
{
    const std::vector<std::string> names = {"Lato-Thin", "Roboto-Black", "Quicksand-Medium", "RobotoCondensed-Light"};
    for (int code = 1; code <= 4; ++code) {
        auto label = settledWith({{"customFont", std::to_string(code)}, {"sizeTimeLabel", "61.9"}}).label("_timeLabel");
        EXPECT_EQ(label.fontName, names[code - 1]);
        EXPECT_EQ(label.fontSize, 61);
    }
}

TEST(ClockLabels, AFontCodeThatNamesNoneLeavesTheFontAsItWasMade)
{
    for (const char* code : {"0", "6", "-1"}) {
        auto label = settledWith({{"customFont", code}}).label("_timeLabel");
        EXPECT_EQ(label.fontSize, 17) << code;
        EXPECT_EQ(label.fontName.find("Inter"), 0u) << code;
    }
}

TEST(ClockLabels, AFontThatIsNotInstalledGivesTheSystemFont)
{
    auto phone = settledWith({{"customFont", "5"}, {"customFontPickerTime", "NoSuchFont"}, {"useCustomFont2", true},
        {"customFontPicker", "NoSuchFont"}});
    EXPECT_EQ(phone.label("_timeLabel").fontName.find("Inter"), 0u);
    EXPECT_EQ(phone.label("_dateLabel").fontName.find("Inter"), 0u);
}

TEST(ClockLabels, TheDatesFontServesTheTimerToo)
{
    auto phone = settledWith({{"sizeDateLabel", "26"}});
    for (const char* id : {"_dateLabel", "_timerLabel"}) {
        EXPECT_EQ(phone.label(id).fontName, "Lato-Medium") << id;
        EXPECT_EQ(phone.label(id).fontSize, 26) << id;
    }
}

TEST(ClockLabels, AlignmentOneTwoThreeIsLeftCentreRight)
{
    for (int code = 1; code <= 3; ++code) {
        auto phone = settledWith({{"alignTime", std::to_string(code)}, {"alignDate", std::to_string(4 - code)}});
        EXPECT_EQ(phone.label("_timeLabel").alignment, code - 1);
        EXPECT_EQ(phone.label("_dateLabel").alignment, 3 - code);
        EXPECT_EQ(phone.label("_timerLabel").alignment, 3 - code);
    }
}

TEST(ClockLabels, AnAlignmentOfNoMeaningLeavesTheLabelsOwn)
{
    auto phone = settledWith({{"alignTime", "0"}, {"alignDate", "4"}});
    constexpr int natural = 4;
    EXPECT_EQ(phone.send({{"id", "_timeLabel"}}, "textAlignment"), natural);
    EXPECT_EQ(phone.send({{"id", "_dateLabel"}}, "textAlignment"), natural);
}

TEST(ClockLabels, ColourSourcesAreTheWallpapersThreeAndTheStoredOne)
{
    const char* const variables[] = {"_bgWallColor", "_primaryWallColor", "_secondaryWallColor"};
    for (int code = 1; code <= 3; ++code) {
        auto phone = settled(eveningPhone({{"colorTime", std::to_string(code)}, {"colorDate", std::to_string(code)}}));
        Json expected = phone.global(variables[code - 1]);
        EXPECT_EQ(phone.label("_timeLabel").textColour, expected.get<std::string>());
        EXPECT_EQ(phone.label("_dateLabel").textColour, expected.get<std::string>());
    }
    auto phone = settled(eveningPhone({{"colorTime", "4"}}).colours({{"colourTime", "#123456"}}));
    EXPECT_EQ(phone.label("_timeLabel").textColour, "#123456FF");
}

TEST(ClockLabels, AColourSourceOfNoMeaningLeavesTheTimeAndGivesTheDateItsStoredColour)
{
    auto phone = settled(eveningPhone({{"colorTime", "9"}, {"colorDate", "9"}})
                             .colours({{"colourTime", "#123456"}, {"colourDate", "#654321"}}));
    EXPECT_NE(phone.label("_timeLabel").textColour, "#123456FF");
    EXPECT_EQ(phone.label("_dateLabel").textColour, "#654321FF");
}

TEST(ClockLabels, WithoutAWallpaperItsColoursAreNilAndTheLabelTakesTheDefault)
{
    auto phone = settled(eveningPhone({{"colorTime", "2"}}).withoutWallpaper());
    EXPECT_TRUE(phone.global("_primaryWallColor").is_null());
    EXPECT_TRUE(phone.label("_timeLabel").textColour.has_value());
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
}

TEST(ClockLabels, AWallpaperThatIsNoPictureCrashesNothing)
{
    Support::TemporaryFolder folder;
    for (const std::string& bytes : {std::string(), std::string("\xff\xd8\xff\xe0 broken"), std::string(4096, '\0')}) {
        auto phone
            = settled(eveningPhone({{"colorTime", "1"}, {"colorDate", "3"}}).wallpaper(folder.put("w.jpg", bytes)));
        EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
        EXPECT_FALSE(phone.capture().empty());
        EXPECT_EQ(phone.info().at("safeMode"), false);
    }
}

TEST(ClockLabels, TheShadowTakesItsColourFromTheColourFile)
{
    auto phone = settled(eveningPhone({{"shadowText", true}}).colours({{"colourShadow", "#102030"}}));
    Json time = phone.view("_timeLabel").json.at("layer");
    Json date = phone.view("_dateLabel").json.at("layer");
    EXPECT_NEAR(time.at("shadowOpacity"), 0.7, 1e-6);
    EXPECT_EQ(time.at("shadowColor"), "#102030FF");
    EXPECT_EQ(time.at("shadowRadius"), 2.5);
    EXPECT_EQ(time.at("shadowOffset"), (Json{1, 1}));
    EXPECT_NEAR(date.at("shadowOpacity"), 0.7, 1e-6);
    EXPECT_EQ(date.at("shadowRadius"), 1.5);
    EXPECT_EQ(date.at("shadowOffset"), (Json{0.4, 0.4}));
}

TEST(ClockLabels, WithoutAShadowItsGeometryStandsInAClearColour)
{
    auto phone = settledWith({{"shadowText", false}});
    Json layer = phone.view("_timeLabel").json.at("layer");
    EXPECT_EQ(layer.at("shadowColor"), "#00000000");
    EXPECT_EQ(layer.at("shadowRadius"), 2.5);
    EXPECT_NEAR(layer.at("shadowOpacity"), 0.7, 1e-6);
}

TEST(ClockLabels, ADateThatIsSwitchedOffIsStillComposedAndPlaced)
{
    auto phone = settledWith({{"enableDate", false}, {"dateOption", "0"}, {"YdateLabel", "33"}});
    auto label = phone.label("_dateLabel");
    EXPECT_TRUE(label.hidden);
    EXPECT_EQ(label.text, "Sun,Nov 15");
    EXPECT_EQ(label.frame[1], 33);
    EXPECT_FALSE(phone.label("_timeLabel").hidden);
}

TEST(ClockLabels, ATimeThatIsSwitchedOffIsHidden)
{
    auto phone = settledWith({{"enableTime", false}});
    EXPECT_TRUE(phone.label("_timeLabel").hidden);
    EXPECT_FALSE(phone.label("_dateLabel").hidden);
}

TEST(ClockLabels, WithoutATimerItsLabelSaysSo)
{
    EXPECT_EQ(settledWith().label("_timerLabel").text, "Timer Off");
}

TEST(ClockLabels, TheyOutliveLowMemoryAndManyRefreshes)
{
    auto phone = settledWith();
    for (int i = 0; i < 200; ++i)
        refresh(phone);
    EXPECT_EQ(phone.label("_timeLabel").text, "09.41");
    EXPECT_EQ(phone.info().at("starts"), 1);
}
