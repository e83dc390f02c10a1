// UILabel: defaults, texts, sizes.
#include "PhoneRoot.hpp"

#include "Platform/Foundation/NSDictionary.hpp"

#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UILabel.hpp"

namespace Simulator {

class Label : public PhoneRoot {
protected:
    static Graphics::Text drawn(const UI::Label& label) { return standIn<UILabel>(label.raw()).graphicsText(); }
    static NS::TextAttachment attachment(CGRect bounds = {})
    {
        const auto made = NS::TextAttachment::make();
        made.setImage(
            UI::Image::imageWithData(dataOf(png(6, 4))).imageWithRenderingMode(UI::ImageRenderingMode::alwaysTemplate));
        made.setBounds(bounds);
        return made;
    }
    static CGSize fitting(const UI::Label& label, CGSize limit = {})
    {
        return label.send<CGSize, "sizeThatFits:">(limit);
    }
};

TEST_F(Label, StartsWithThePlatformsDefaults)
{
    const auto label = makeLabel();
    EXPECT_FALSE(label.text());
    EXPECT_FALSE(label.attributedText());
    EXPECT_EQ(label.font().pointSize(), 17);
    EXPECT_EQ(label.textAlignment(), UI::TextAlignment::natural);
    EXPECT_EQ(label.numberOfLines(), 1);
    EXPECT_EQ((label.send<UI::LineBreakMode, "lineBreakMode">()), UI::LineBreakMode::truncatingTail);
    EXPECT_TRUE((label.textColor().send<bool, "isEqual:">(UI::Color::sendClass<UI::Color, "labelColor">())));
    EXPECT_FALSE((label.send<bool, "isUserInteractionEnabled">()));
}

TEST_F(Label, NilFontAndColourBringTheDefaultsBack)
{
    const auto label = makeLabel();
    label.setFont(UI::Font::systemFontOfSize(40));
    label.setTextColor(UI::Color::whiteColor());
    label.setFont({});
    label.setTextColor({});
    EXPECT_EQ(label.font().pointSize(), 17);
    EXPECT_TRUE((label.textColor().send<bool, "isEqual:">(UI::Color::sendClass<UI::Color, "labelColor">())));
}

TEST_F(Label, TheDefaultColourFollowsTheAppearance)
{
    const auto label = makeLabel();
    label.setText("9:41"_ns);
    EXPECT_EQ(drawn(label).runs[0].color, (Graphics::Color{0, 0, 0, 1}));
    DeviceState::shared().style = InterfaceStyle::dark;
    EXPECT_EQ(drawn(label).runs[0].color, (Graphics::Color{1, 1, 1, 1}));
}

TEST_F(Label, PlainAndAttributedTextReplaceEachOther)
{
    const auto label = makeLabel();
    label.setText("plain"_ns);
    EXPECT_EQ(textOf(label.attributedText().string()), "plain");
    label.setAttributedText(NS::AttributedString::withString("attributed"_ns));
    EXPECT_EQ(textOf(label.text()), "attributed");
    label.setText("plain again"_ns);
    EXPECT_EQ(textOf(label.text()), "plain again");
    EXPECT_EQ(textOf(label.attributedText().string()), "plain again");
    label.setAttributedText({});
    EXPECT_FALSE(label.text());
}

TEST_F(Label, KeepsACopyOfItsText)
{
    const auto label = makeLabel();
    const auto text = NS::MutableAttributedString::withString("one"_ns);
    label.setAttributedText(text);
    text.appendAttributedString(NS::AttributedString::withString(" two"_ns));
    EXPECT_EQ(textOf(label.text()), "one");
}

TEST_F(Label, WhatIsNoTextIsNoText)
{
    const auto label = makeLabel();
    label.setText(NS::String(UI::Color::whiteColor().raw()));
    EXPECT_FALSE(label.text());
    label.setAttributedText(NS::AttributedString(("plain"_ns).raw()));
    EXPECT_FALSE(label.text());
}

TEST_F(Label, AnAttachmentIsOneCharacterOfTheText)
{
    const auto label = makeLabel();
    const auto text = NS::MutableAttributedString::withString("21° "_ns);
    text.appendAttributedString(NS::AttributedString::attributedStringWithAttachment(attachment({{0, -3}, {18, 18}})));
    label.setAttributedText(text);
    EXPECT_EQ(textOf(label.text()), "21° \uFFFC");
    const auto runs = drawn(label).runs;
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[0].string, "21° ");
    ASSERT_TRUE(runs[1].attachment);
    EXPECT_EQ(runs[1].attachment->bounds, (Graphics::Rect{0, -3, 18, 18}));
    EXPECT_TRUE(runs[1].attachment->isTemplate);
}

TEST_F(Label, AnAttachmentWithoutBoundsHasItsPicturesSize)
{
    const auto label = makeLabel();
    label.setAttributedText(NS::AttributedString::attributedStringWithAttachment(attachment()));
    EXPECT_EQ(drawn(label).runs[0].attachment->bounds, (Graphics::Rect{0, 0, 6, 4}));
    label.setAttributedText(NS::AttributedString::attributedStringWithAttachment(NS::TextAttachment()));
    EXPECT_EQ(textOf(label.text()), "\uFFFC");
}

TEST_F(Label, AttributesGoBeforeTheLabelsOwnUntilThoseAreSetAgain)
{
    const auto label = makeLabel();
    auto attributes = NS::MutableDictionary::dictionary();
    attributes.setObject(UI::Font::systemFontOfSize(30), "NSFont"_ns);
    attributes.setObject(UI::Color::colorWithRed(1, 0, 0, 1), "NSColor"_ns);
    label.setAttributedText(NS::AttributedString::make<"initWithString:attributes:">("red"_ns, attributes));
    EXPECT_EQ(drawn(label).runs[0].size, 30);
    EXPECT_EQ(drawn(label).runs[0].color, (Graphics::Color{1, 0, 0, 1}));
    label.setFont(UI::Font::systemFontOfSize(12));
    label.setTextColor(UI::Color::whiteColor());
    EXPECT_EQ(drawn(label).runs[0].size, 12);
    EXPECT_EQ(drawn(label).runs[0].color, (Graphics::Color{1, 1, 1, 1}));
    EXPECT_EQ(textOf(label.text()), "red");
}

TEST_F(Label, FitsItsTextOnOneLineOrWithinAWidth)
{
    const auto label = makeLabel();
    EXPECT_EQ(fitting(label), CGSize());
    label.setText("one two three four five six"_ns);
    const CGSize line = fitting(label, {50, 0});
    EXPECT_GT(line.width, 150);
    EXPECT_EQ(line, (label.send<CGSize, "intrinsicContentSize">()));
    label.setNumberOfLines(0);
    const CGSize block = fitting(label, {100, 1000});
    EXPECT_LE(block.width, 100);
    EXPECT_GT(block.height, line.height * 1.5);
}

TEST_F(Label, SizeToFitKeepsTheOrigin)
{
    const auto label = makeLabel({{30, 40}, {1, 1}});
    label.setText("9:41"_ns);
    label.send<void, "sizeToFit">();
    EXPECT_EQ(label.frame().origin, (CGPoint{30, 40}));
    EXPECT_EQ(label.frame().size, fitting(label));
}

TEST_F(Label, HoldsAVeryLongText)
{
    const auto label = makeLabel({{0, 0}, {300, 20}});
    const std::string text(100000, 'x');
    label.setText(NS::String::fromUTF8(text));
    EXPECT_EQ(label.text().length(), 100000u);
    EXPECT_EQ(drawn(label).runs[0].string, text);
    label.setNumberOfLines(2);
    EXPECT_LE(fitting(label, {300, 0}).width, 300);
}

TEST_F(Label, ABrokenCharacterIsShownAsTheReplacement)
{
    const auto label = makeLabel();
    // Half of the pair that the emoji is.
    const auto text = "a😀"_ns.send<NS::String, "substringToIndex:">(2ul);
    ASSERT_EQ(text.length(), 2u);
    label.setText(text);
    EXPECT_EQ(drawn(label).runs[0].string, "a\uFFFD");
}

TEST_F(Label, NumbersThatAreNoStylesCountAsTheDefaults)
{
    const auto label = makeLabel();
    label.setText("text"_ns);
    label.setTextAlignment(static_cast<UI::TextAlignment>(99));
    label.setLineBreakMode(static_cast<UI::LineBreakMode>(-1));
    label.setNumberOfLines(-5);
    EXPECT_EQ(drawn(label).alignment, Graphics::TextAlignment::natural);
    EXPECT_EQ(drawn(label).lineBreakMode, Graphics::LineBreakMode::truncateTail);
    EXPECT_EQ(drawn(label).numberOfLines, 0);
}

}
