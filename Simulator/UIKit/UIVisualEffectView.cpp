// Blurring panes and their effects.
#include "Simulator/UIKit/UIVisualEffectView.hpp"

#include "Simulator/CoreGraphics/CFBase.hpp"
#include "Simulator/Device/DeviceState.hpp"
#include "Simulator/Runtime/StandInClass.hpp"

#include <array>

namespace Simulator {

namespace {

struct Material {
    BlurStyle style;
    double radius;
    Graphics::Color light;
    Graphics::Color dark;
};

constexpr Graphics::Color veil(double white, double alpha)
{
    return {white, white, white, alpha};
}

constexpr std::array materials = {
    Material{BlurStyle::extraLight, 20, veil(0.97, 0.82), veil(0.97, 0.82)},
    Material{BlurStyle::light, 30, veil(1, 0.3), veil(1, 0.3)},
    Material{BlurStyle::dark, 20, veil(0.11, 0.73), veil(0.11, 0.73)},
    Material{BlurStyle::regular, 30, veil(1, 0.3), veil(0.11, 0.73)},
    Material{BlurStyle::prominent, 20, veil(0.97, 0.82), veil(0.11, 0.73)},
    Material{BlurStyle::systemUltraThinMaterial, 22, veil(0.97, 0.3), veil(0.13, 0.35)},
    Material{BlurStyle::systemThinMaterial, 25, veil(0.97, 0.5), veil(0.13, 0.55)},
    Material{BlurStyle::systemMaterial, 28, veil(0.97, 0.65), veil(0.13, 0.7)},
    Material{BlurStyle::systemThickMaterial, 32, veil(0.97, 0.8), veil(0.13, 0.85)},
};

}

NS::Object UIBlurEffect::effectWithStyle(long style)
{
    const ObjC::Object effect = newInstance("UIBlurEffect");
    standIn<UIBlurEffect>(effect.raw()).style = style;
    return effect;
}

void UIVisualEffectView::initWithFrame(CGRect frame)
{
    UIView::initWithFrame(frame);
    contentView = UI::View::make<"initWithFrame:">(CGRect{{}, properties.bounds.size});
    standIn<UIView>(contentView.raw()).autoresizingMask = flexibleWidth | flexibleHeight;
    self<UI::View>().addSubview(contentView);
}

void UIVisualEffectView::initWithEffect(const NS::Object& wanted)
{
    ObjC::sendMessage<id>(object(), ObjC::selector<"initWithFrame:">(), CGRect());
    setEffect(wanted);
}

void UIVisualEffectView::setEffect(const NS::Object& wanted)
{
    effect = standInOrNull<UIBlurEffect>(wanted) ? wanted : NS::Object(ObjC::Object());
}

long UIVisualEffectView::style() const
{
    const auto* blur = standInOrNull<UIBlurEffect>(effect);
    return blur ? blur->style : -1;
}

void UIVisualEffectView::setStyle(long style)
{
    setEffect(UIBlurEffect::effectWithStyle(style));
}

Graphics::LayerContent UIVisualEffectView::layerContent() const
{
    if (!effect)
        return {};
    const Material* material = &materials[3];
    for (const Material& candidate : materials) {
        if (static_cast<long>(candidate.style) == style())
            material = &candidate;
    }
    const bool isDark = DeviceState::shared().style == InterfaceStyle::dark;
    return Graphics::BackdropBlur{material->radius, isDark ? material->dark : material->light};
}

static const StandInClass uiVisualEffect(
    "UIVisualEffect", "NSObject", [](Binder<UIBlurEffect>& binder) { binder.add(); });

static const StandInClass uiBlurEffect("UIBlurEffect", "UIVisualEffect", [](Binder<UIBlurEffect>& binder) {
    binder.classMethod<"effectWithStyle:", &UIBlurEffect::effectWithStyle>().add();
});

static const StandInClass uiVisualEffectView("UIVisualEffectView", "UIView", [](Binder<UIVisualEffectView>& binder) {
    binder.init<"initWithFrame:", &UIVisualEffectView::initWithFrame>()
        .init<"initWithEffect:", &UIVisualEffectView::initWithEffect>()
        .readonly<"effect", &UIVisualEffectView::effect>()
        .def<"setEffect:", &UIVisualEffectView::setEffect>()
        .readonly<"contentView", &UIVisualEffectView::contentView>()
        .add();
});

}
