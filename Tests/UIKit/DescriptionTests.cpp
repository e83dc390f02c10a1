// How views describe themselves to who asks for the tree.
#include "PhoneRoot.hpp"

#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator {

using Json = nlohmann::json;

class Description : public PhoneRoot {
protected:
    static Json of(const UI::View& view, bool withChildren = false) { return describeView(viewOf(view), withChildren); }
};

TEST_F(Description, TellsAllOfAPlainView)
{
    const auto window = makeWindow();
    const auto view = makeView({{10, 20}, {30, 40}});
    window.addSubview(view);
    view.setAccessibilityIdentifier("_box"_ns);
    view.setBackgroundColor(UI::Color::colorWithRed(1, 0.5, 0, 0.25));
    view.layer().setCornerRadius(5);
    view.layer().setBorderColor(nullptr);
    view.layer().setShadowOpacity(0.5);
    EXPECT_EQ(of(view), Json::parse(R"({
        "class": "UIView", "id": "_box", "frame": [10,20,30,40], "bounds": [0,0,30,40], "hidden": false, "alpha": 1,
        "onScreen": true, "transform": [1,0,0,1,0,0], "background": "#FF800040", "tint": "#007AFFFF",
        "layer": {"cornerRadius": 5, "borderWidth": 0, "borderColor": null, "shadowOpacity": 0.5,
                  "shadowColor": "#000000FF", "shadowRadius": 3, "shadowOffset": [0,-3]}})"));
}

TEST_F(Description, TellsALabelsTextAndRuns)
{
    const auto label = makeLabel();
    label.setText("9:41"_ns);
    label.setTextAlignment(UI::TextAlignment::center);
    label.setTextColor(UI::Color::whiteColor());
    const Json plain = of(label);
    EXPECT_EQ(plain["text"], "9:41");
    EXPECT_EQ(plain["runs"], Json::parse(R"([{"text": "9:41"}])"));
    EXPECT_EQ(plain["textColor"], "#FFFFFFFF");
    EXPECT_EQ(plain["alignment"], 1);
    EXPECT_EQ(plain["lines"], 1);
    EXPECT_EQ(plain["font"]["size"], 17);
    EXPECT_EQ(plain["font"]["name"], textOf(label.font().fontName()));
    EXPECT_EQ(plain["truncated"], true) << "it has no size yet";
    label.sizeToFit();
    EXPECT_EQ(of(label)["truncated"], false);
}

TEST_F(Description, TellsThePicturesInALabel)
{
    put("/Library/sun.png", png(6, 4));
    const auto attachment = NS::TextAttachment::make();
    attachment.setImage(
        UI::Image::imageNamed("/Library/sun"_ns).imageWithRenderingMode(UI::ImageRenderingMode::alwaysTemplate));
    attachment.setBounds({{0, -2}, {12, 8}});
    const auto text = NS::MutableAttributedString::withString("A "_ns);
    text.appendAttributedString(NS::AttributedString::attributedStringWithAttachment(attachment));
    text.appendAttributedString(NS::AttributedString::withString(" B"_ns));
    const auto label = makeLabel();
    label.setAttributedText(text);
    EXPECT_EQ(of(label)["runs"], Json::parse(R"([{"text": "A "},
        {"image": "/Library/sun.png", "template": true, "bounds": [0,-2,12,8]}, {"text": " B"}])"));
}

TEST_F(Description, AnEmptyLabelHasNoText)
{
    const Json description = of(makeLabel());
    EXPECT_EQ(description["text"], nullptr);
    EXPECT_EQ(description["runs"], Json::array());
    EXPECT_EQ(description["alignment"], 0);
}

TEST_F(Description, TellsAnImageViewsPicture)
{
    put("/Library/sun@2x.png", png(6, 4));
    const auto view = UI::ImageView::make<"initWithImage:">(UI::Image::imageNamed("/Library/sun"_ns));
    EXPECT_EQ(view.frame(), CGRectMake(0, 0, 3, 2));
    EXPECT_EQ(of(view)["image"], Json::parse(R"({"path": "/Library/sun@2x.png", "size": [3,2], "template": false})"));
    view.setImage({});
    EXPECT_EQ(of(view)["image"], nullptr);
}

TEST_F(Description, ChildrenStandBackToFront)
{
    const auto root = makeView();
    for (const char* name : {"back", "front"}) {
        const auto child = makeView();
        child.setAccessibilityIdentifier(NS::String::fromUTF8(name));
        root.addSubview(child);
    }
    EXPECT_FALSE(of(root).contains("children"));
    const Json tree = of(root, true);
    ASSERT_EQ(tree["children"].size(), 2u);
    EXPECT_EQ(tree["id"], nullptr);
    EXPECT_EQ(tree["children"][0]["id"], "back");
    EXPECT_EQ(tree["children"][1]["id"], "front");
    EXPECT_EQ(findView(viewOf(root), "front"), &viewOf(viewOf(root).children[1]));
    EXPECT_EQ(findView(viewOf(root), "none"), nullptr);
}

TEST_F(Description, OnScreenIsWhatCanBeSeenInAWindow)
{
    const auto window = makeWindow();
    const auto parent = makeView({{0, 0}, {100, 100}});
    const auto view = makeView({{10, 10}, {10, 10}});
    parent.addSubview(view);
    const auto isShown = [&] { return isOnScreen(viewOf(view)); };
    EXPECT_FALSE(isShown());
    window.addSubview(parent);
    EXPECT_TRUE(isShown());
    parent.setHidden(true);
    EXPECT_FALSE(isShown());
    parent.setHidden(false);
    parent.setAlpha(0);
    EXPECT_FALSE(isShown());
    parent.setAlpha(0.1);
    parent.setFrame({{-20, 0}, {100, 100}});
    EXPECT_FALSE(isShown());
    parent.setFrame({{-15, 0}, {100, 100}});
    EXPECT_TRUE(isShown());
    view.setFrame({{10, 10}, {0, 10}});
    EXPECT_FALSE(isShown());
}

TEST_F(Description, ColoursAreHeldWithinTheirDigits)
{
    EXPECT_EQ(describeColor(Graphics::Color{1.5, -1, 0.5, 1}), "#FF0080FF");
    EXPECT_EQ(describeColor(std::nullopt), nullptr);
}

}
