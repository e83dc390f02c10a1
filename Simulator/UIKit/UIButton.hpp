// A button with a title, a picture, or both, side by side in its middle.
#pragma once

#include "Platform/UIKit/UIButton.hpp"
#include "Simulator/UIKit/UIControl.hpp"

#include <map>

namespace Simulator {

struct UIButton : UIControl {
    static UI::Button withType(UI::ButtonType type);

    void describe(nlohmann::json& description) const override;
    void stateChanged() override;

    void initWithFrame(CGRect frame);
    void layoutSubviews();
    void tintColorDidChange() { update(); }
    CGSize sizeThatFits(CGSize) const;
    CGSize intrinsicContentSize() const { return sizeThatFits({}); }

    void setTitle(const NS::String& title, unsigned long state);
    NS::String titleForState(unsigned long state) const { return valueFor(titles, state); }
    NS::String currentTitle() const { return titleForState(state()); }
    void setTitleColor(const UI::Color& color, unsigned long state);
    UI::Color titleColorForState(unsigned long state) const;
    UI::Color currentTitleColor() const { return titleColorForState(state()); }
    void setImage(const UI::Image& image, unsigned long state);
    UI::Image imageForState(unsigned long state) const { return valueFor(images, state); }
    UI::Image currentImage() const { return imageForState(state()); }
    void setContentEdgeInsets(UIEdgeInsets insets);

    UI::ButtonType type = UI::ButtonType::custom;
    UIEdgeInsets contentEdgeInsets;
    UI::Label titleLabel;
    UI::ImageView imageView;

private:
    template <class T>
    using ByState = std::map<unsigned long, T>;
    /// What is set for the state, or for the normal one.
    template <class T>
    static T valueFor(const ByState<T>& values, unsigned long state);
    void update();
    double gap() const;

    ByState<NS::String> titles;
    ByState<UI::Color> titleColors;
    ByState<UI::Image> images;
};

}
