// Text on the screen, plain or attributed.
#pragma once

#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/Graphics/Text.hpp"
#include "Simulator/UIKit/UIView.hpp"

namespace Simulator {

struct UILabel : UIView {
    void initWithFrame(CGRect frame);
    Graphics::LayerContent layerContent() const override;
    void decorate(Graphics::Layer& layer) const override;
    void describe(nlohmann::json& description) const override;

    /// The characters, whichever way they were set.
    NS::String text() const;
    void setText(const NS::String& text);
    NS::AttributedString attributedText() const;
    void setAttributedText(const NS::AttributedString& text);
    UI::Font font() const;
    void setFont(const UI::Font& font);
    UI::Color textColor() const;
    void setTextColor(const UI::Color& color);
    CGSize sizeThatFits(CGSize limit) const;
    CGSize intrinsicContentSize() const;
    void contentChanged();

    long textAlignment = 4;
    long lineBreakMode = 4;
    long numberOfLines = 1;
    bool adjustsFontSizeToFitWidth = false;
    double minimumScaleFactor = 0;
    bool enabled = true;
    /// The older shadow, drawn without blur.
    UI::Color shadowColor;
    CGSize shadowOffset = {0, -1};

    /// The text as it is drawn and measured.
    Graphics::Text graphicsText() const;

private:
    /// A run without characters in the label's own font and colour.
    Graphics::TextRun plainRun() const;

    NS::String m_plainText;
    NS::AttributedString m_attributed;
    UI::Font m_fontObject;
    UI::Color m_textColorObject;
};

}
