// A well of one colour; a tap opens the system's sheet to choose another.
#pragma once

#include "Platform/UIKit/UIColorWell.hpp"
#include "Simulator/UIKit/UIControl.hpp"

namespace Simulator {

struct UIColorWell : UIControl {
    ~UIColorWell() override;
    void decorate(Graphics::Layer& layer) const override;
    void describe(nlohmann::json& description) const override;

    CGSize sizeThatFits(CGSize) const;
    CGSize intrinsicContentSize() const { return sizeThatFits({}); }
    void didMoveToWindow();
    void endTracking(const NS::Object& touch, const NS::Object& event);
    void setSelectedColor(const UI::Color& color);

    /// The user chose the colour.
    void choose(const UI::Color& color);
    void openSheet();
    void closeSheet();

    NS::String title;
    UI::Color selectedColor;
    bool supportsAlpha = true;

private:
    UI::View m_sheet;
};

}
