// A button with a title, a picture, or both, side by side in its middle.
#include "Platform/UIKit/UIButton.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/AttributedRuns.hpp"
#include "Simulator/UIKit/ControlDrawing.hpp"
#include "Simulator/UIKit/NamedColors.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIControl.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

#include <algorithm>
#include <map>

namespace Simulator {

namespace {

constexpr double titleSize = 18;
constexpr double gapBesideTitle = 4;
/// Of what a pressed button shows.
constexpr double pressedOpacity = 0.2;
constexpr unsigned long normalState = 0;

struct UIButton : UIControl {
    static UI::Button withType(UI::ButtonType type)
    {
        const auto button = UI::Button::make();
        auto& made = standIn<UIButton>(button.raw());
        made.type = type;
        made.update();
        return button;
    }

    void describe(nlohmann::json& description) const override
    {
        const NS::String title = currentTitle();
        const UIImage* picture = imageStandIn(currentImage());
        description["title"] = title ? nlohmann::json(plainUtf8(title)) : nlohmann::json();
        description["symbol"] = picture && !picture->path.empty() ? nlohmann::json(picture->path) : nlohmann::json();
    }

    void stateChanged() override { update(); }

    void initWithFrame(CGRect frame)
    {
        UIView::initWithFrame(frame);
        imageView = UI::ImageView::make();
        imageView.setContentMode(UI::ViewContentMode::scaleAspectFit);
        titleLabel = UI::Label::make();
        titleLabel.setFont(UI::Font::systemFontOfSize(titleSize));
        titleLabel.setTextAlignment(UI::TextAlignment::center);
        titleLabel.setLineBreakMode(UI::LineBreakMode::truncatingMiddle);
        UIView::addSubview(imageView);
        UIView::addSubview(titleLabel);
        update();
    }

    void layoutSubviews()
    {
        const CGRect area = bounds();
        const UIEdgeInsets& insets = contentEdgeInsets;
        const double width = std::max(0.0, area.size.width - insets.left - insets.right);
        const double height = std::max(0.0, area.size.height - insets.top - insets.bottom);
        const double middle = area.origin.y + insets.top + height / 2;
        CGSize picture = currentImage().size();
        const double shrink
            = std::min(1.0, std::min(width / std::max(picture.width, 1.0), height / std::max(picture.height, 1.0)));
        picture = {picture.width * shrink, picture.height * shrink};
        CGSize title = titleLabel.send<CGSize, "sizeThatFits:">(CGSize());
        title.width = std::min(title.width, std::max(0.0, width - picture.width - gap()));
        double x = area.origin.x + insets.left + (width - picture.width - gap() - title.width) / 2;
        imageView.setFrame({{x, middle - picture.height / 2}, picture});
        x += picture.width + gap();
        titleLabel.setFrame({{x, middle - title.height / 2}, title});
    }

    void tintColorDidChange() { update(); }

    CGSize sizeThatFits(CGSize) const
    {
        const CGSize title = titleLabel.send<CGSize, "sizeThatFits:">(CGSize());
        const CGSize picture = currentImage().size();
        return {title.width + picture.width + gap() + contentEdgeInsets.left + contentEdgeInsets.right,
            std::max(title.height, picture.height) + contentEdgeInsets.top + contentEdgeInsets.bottom};
    }

    CGSize intrinsicContentSize() const { return sizeThatFits({}); }

    void setTitle(const NS::String& title, unsigned long state)
    {
        m_titles[state] = title.as<NS::String>().send<NS::String, "copy">();
        update();
    }

    NS::String titleForState(unsigned long state) const { return valueFor(m_titles, state); }
    NS::String currentTitle() const { return titleForState(state()); }

    void setTitleColor(const UI::Color& color, unsigned long state)
    {
        m_titleColors[state] = standInOrNull<UIColor>(color) ? color : UI::Color();
        update();
    }

    UI::Color titleColorForState(unsigned long state) const
    {
        if (const UI::Color color = valueFor(m_titleColors, state))
            return color;
        return type == UI::ButtonType::custom ? UI::Color::whiteColor() : tintColor();
    }

    UI::Color currentTitleColor() const { return titleColorForState(state()); }

    void setImage(const UI::Image& image, unsigned long state)
    {
        m_images[state] = imageStandIn(image) ? image : UI::Image();
        update();
    }

    UI::Image imageForState(unsigned long state) const { return valueFor(m_images, state); }
    UI::Image currentImage() const { return imageForState(state()); }

    void setContentEdgeInsets(UIEdgeInsets insets)
    {
        contentEdgeInsets = insets;
        update();
    }

    UI::ButtonType type = UI::ButtonType::custom;
    UIEdgeInsets contentEdgeInsets;
    UI::Label titleLabel;
    UI::ImageView imageView;

private:
    template <class T>
    using ByState = std::map<unsigned long, T>;
    /// What is set for the state, or for the normal one.
    template <class T>
    static T valueFor(const ByState<T>& values, unsigned long state)
    {
        auto found = values.find(state);
        if (found == values.end() || !found->second)
            found = values.find(normalState);
        return found == values.end() ? T() : found->second;
    }

    void update()
    {
        // The content fades while pressed, unless another look is set for that.
        const double opacity = highlighted ? pressedOpacity : 1;
        titleLabel.setText(currentTitle());
        titleLabel.setTextColor(currentTitleColor());
        titleLabel.setAlpha(opacity);
        imageView.setImage(currentImage());
        imageView.setHidden(!currentImage());
        imageView.setAlpha(opacity);
        needsLayout = true;
    }

    double gap() const { return currentImage() && currentTitle().length() ? gapBesideTitle : 0; }

    ByState<NS::String> m_titles;
    ByState<UI::Color> m_titleColors;
    ByState<UI::Image> m_images;
};

}

static const StandInClass uiButton("UIButton", "UIControl", [](Binder<UIButton>& binder) {
    using Button = UIButton;
    binder.classMethod<"buttonWithType:", &Button::withType>()
        .init<"initWithFrame:", &Button::initWithFrame>()
        .def<"layoutSubviews", &Button::layoutSubviews>()
        .def<"tintColorDidChange", &Button::tintColorDidChange>()
        .def<"sizeThatFits:", &Button::sizeThatFits>()
        .def<"intrinsicContentSize", &Button::intrinsicContentSize>()
        .readonly<"buttonType", &Button::type>()
        .def<"setTitle:forState:", &Button::setTitle>()
        .def<"titleForState:", &Button::titleForState>()
        .def<"currentTitle", &Button::currentTitle>()
        .def<"setTitleColor:forState:", &Button::setTitleColor>()
        .def<"titleColorForState:", &Button::titleColorForState>()
        .def<"currentTitleColor", &Button::currentTitleColor>()
        .def<"setImage:forState:", &Button::setImage>()
        .def<"imageForState:", &Button::imageForState>()
        .def<"currentImage", &Button::currentImage>()
        .readonly<"titleLabel", &Button::titleLabel>()
        .readonly<"imageView", &Button::imageView>()
        .readonly<"contentEdgeInsets", &Button::contentEdgeInsets>()
        .def<"setContentEdgeInsets:", &Button::setContentEdgeInsets>()
        .add();
});

}
