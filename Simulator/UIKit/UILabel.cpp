// Labels: the text they hold, and the text as it is drawn.
#include "Simulator/UIKit/UILabel.hpp"

#include "Simulator/CoreGraphics/Fonts.hpp"
#include "Simulator/CoreGraphics/Geometry.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/UIKit/AttributedRuns.hpp"
#include "Simulator/UIKit/NSTextAttachment.hpp"
#include "Simulator/UIKit/NamedColors.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIFont.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UIScreen.hpp"

#include <algorithm>

namespace Simulator {

namespace {

constexpr double defaultFontSize = 17;
constexpr double disabledOpacity = 0.5;

/// The platform's number as one of the drawing library's, or the default for a number that is none.
template <class T>
T styleOf(long number, T last, T otherwise)
{
    return number >= 0 && number <= static_cast<long>(last) ? static_cast<T>(number) : otherwise;
}

std::optional<Graphics::TextAttachment> attachmentOf(const AttributedRun& run)
{
    const auto* attachment = standInOrNull<NSTextAttachment>(run.attribute(attachmentAttribute));
    if (!attachment)
        return std::nullopt;
    const UIImage* picture = imageStandIn(attachment->image);
    return Graphics::TextAttachment{picture ? picture->image : nullptr, toGraphics(attachment->effectiveBounds()),
        picture && picture->isTemplate()};
}

}

void UILabel::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    userInteractionEnabled = false;
    opaque = false;
}

NS::String UILabel::text() const
{
    return m_attributed ? m_attributed.string() : m_plainText;
}

void UILabel::setText(const NS::String& text)
{
    m_plainText = text.as<NS::String>().send<NS::String, "copy">();
    m_attributed = {};
    contentChanged();
}

NS::AttributedString UILabel::attributedText() const
{
    if (m_attributed || !m_plainText)
        return m_attributed;
    auto attributes = NS::MutableDictionary::dictionary();
    attributes.setObject(font(), NS::String::fromUTF8(fontAttribute));
    attributes.setObject(textColor(), NS::String::fromUTF8(colorAttribute));
    return NS::AttributedString::make<"initWithString:attributes:">(m_plainText, attributes);
}

void UILabel::setAttributedText(const NS::AttributedString& text)
{
    m_attributed = text.as<NS::AttributedString>().send<NS::AttributedString, "copy">();
    m_plainText = {};
    contentChanged();
}

UI::Font UILabel::font() const
{
    return m_fontObject ? m_fontObject : UI::Font::systemFontOfSize(defaultFontSize);
}

void UILabel::setFont(const UI::Font& font)
{
    m_fontObject = standInOrNull<UIFont>(font) ? font : UI::Font();
    // It holds for the whole text, whatever its parts had.
    if (m_attributed)
        m_attributed = withoutAttribute(m_attributed, fontAttribute);
    contentChanged();
}

UI::Color UILabel::textColor() const
{
    return m_textColorObject ? m_textColorObject : namedColor("labelColor");
}

void UILabel::setTextColor(const UI::Color& color)
{
    m_textColorObject = standInOrNull<UIColor>(color) ? color : UI::Color();
    if (m_attributed)
        m_attributed = withoutAttribute(m_attributed, colorAttribute);
}

void UILabel::contentChanged()
{
    needsLayout = true;
    if (parent)
        parent->needsLayout = true;
}

Graphics::TextRun UILabel::plainRun() const
{
    const auto label = self<UI::Label>();
    Graphics::TextRun run;
    if (const auto* font = standInOrNull<UIFont>(label.font())) {
        run.font = font->font;
        run.size = font->pointSize;
    }
    run.color = resolvedColor(label.textColor()).value_or(Graphics::Color());
    return run;
}

Graphics::Text UILabel::graphicsText() const
{
    Graphics::Text result;
    result.alignment = styleOf(textAlignment, Graphics::TextAlignment::natural, Graphics::TextAlignment::natural);
    result.lineBreakMode
        = styleOf(lineBreakMode, Graphics::LineBreakMode::truncateMiddle, Graphics::LineBreakMode::truncateTail);
    result.numberOfLines = static_cast<int>(std::clamp(numberOfLines, 0L, 10000L));
    result.adjustsFontSizeToFitWidth = adjustsFontSizeToFitWidth;
    result.minimumScale = minimumScaleFactor;
    const Graphics::TextRun plain = plainRun();
    if (m_plainText) {
        result.runs.push_back(plain);
        result.runs.back().string = plainUtf8(m_plainText);
    }
    for (AttributedRun& run : runsOf(m_attributed)) {
        result.runs.push_back(plain);
        Graphics::TextRun& drawn = result.runs.back();
        if (const auto* font = standInOrNull<UIFont>(run.attribute(fontAttribute))) {
            drawn.font = font->font;
            drawn.size = font->pointSize;
        }
        drawn.color = resolvedColor(run.attribute(colorAttribute)).value_or(plain.color);
        drawn.attachment = attachmentOf(run);
        drawn.string = std::move(run.string);
    }
    // Some systems do so; which ones is not known.
    if (!result.runs.empty() && result.runs.front().attachment && result.runs.front().attachment->isTemplate)
        result.runs.front().color = {0, 0, 0, result.runs.front().color.a};
    if (!enabled) {
        for (Graphics::TextRun& run : result.runs)
            run.color.a *= disabledOpacity;
    }
    return result;
}

CGSize UILabel::sizeThatFits(CGSize limit) const
{
    const Graphics::Text content = graphicsText();
    const bool isEmpty = std::ranges::all_of(
        content.runs, [](const Graphics::TextRun& run) { return run.string.empty() && !run.attachment; });
    if (isEmpty)
        return {};
    // One line is never broken, so that its own width does not matter.
    const Graphics::Size within{numberOfLines == 1 || !std::isfinite(limit.width) ? 0 : limit.width, 0};
    const auto size = Graphics::measure(fontCatalogue(), content, within, screenSettings().scale);
    return {size.width, size.height};
}

CGSize UILabel::intrinsicContentSize() const
{
    return sizeThatFits({});
}

Graphics::LayerContent UILabel::layerContent() const
{
    return graphicsText();
}

void UILabel::decorate(Graphics::Layer& layer) const
{
    const auto color = resolvedColor(shadowColor);
    if (!color || layer.shadow.opacity > 0)
        return;
    layer.shadow = {color->a, color->withAlpha(1), 0, {shadowOffset.width, shadowOffset.height}};
}

static const StandInClass uiLabel("UILabel", "UIView", [](Binder<UILabel>& binder) {
    binder.init<"initWithFrame:", &UILabel::initWithFrame>()
        .def<"text", &UILabel::text>()
        .def<"setText:", &UILabel::setText>()
        .def<"attributedText", &UILabel::attributedText>()
        .def<"setAttributedText:", &UILabel::setAttributedText>()
        .def<"font", &UILabel::font>()
        .def<"setFont:", &UILabel::setFont>()
        .def<"textColor", &UILabel::textColor>()
        .def<"setTextColor:", &UILabel::setTextColor>()
        .def<"sizeThatFits:", &UILabel::sizeThatFits>()
        .def<"intrinsicContentSize", &UILabel::intrinsicContentSize>()
        .property<"textAlignment", "setTextAlignment:", &UILabel::textAlignment>()
        .property<"lineBreakMode", "setLineBreakMode:", &UILabel::lineBreakMode>()
        .property<"numberOfLines", "setNumberOfLines:", &UILabel::numberOfLines, &UILabel::contentChanged>()
        .property<"adjustsFontSizeToFitWidth", "setAdjustsFontSizeToFitWidth:", &UILabel::adjustsFontSizeToFitWidth>()
        .property<"minimumScaleFactor", "setMinimumScaleFactor:", &UILabel::minimumScaleFactor>()
        .property<"isEnabled", "setEnabled:", &UILabel::enabled>()
        .property<"shadowColor", "setShadowColor:", &UILabel::shadowColor>()
        .property<"shadowOffset", "setShadowOffset:", &UILabel::shadowOffset>()
        .add();
});

}
