// Fills the segments, and stores the one that is tapped.
#include "Tweak/Editor/Options.hpp"

#include "Tweak/State.hpp"

namespace LYR {

void letSegmentsFit(const UI::SegmentedControl& control)
{
    constexpr CGFloat titleSize = 12;
    auto attributes = NS::MutableDictionary::dictionary();
    attributes.setObject(UI::Font::systemFontOfSize(titleSize), "NSFont"_ns);
    control.setTitleTextAttributes(attributes, UI::ControlState::normal);
    control.setApportionsSegmentWidthsByContent(true);
}

UI::View makeSegments(const Options& options, bool showsSymbols)
{
    auto control = UI::SegmentedControl::make();
    unsigned long index = 0;
    for (const Product::Choice& choice : options.list.choices) {
        auto title = NS::String::fromUTF8(choice.editorTitle);
        if (showsSymbols)
            control.insertSegmentWithImage(UI::Image::systemImageNamed(title), index++, false);
        else
            control.insertSegmentWithTitle(title, index++, false);
    }
    letSegmentsFit(control);
    return control;
}

void chooseSegment(const Options& options, const UI::SegmentedControl& control)
{
    long index = control.selectedSegmentIndex();
    if (index < 0 || index >= static_cast<long>(options.list.choices.size()))
        return;
    forActive(options.settings, [&](const ObjectSetting& setting) {
        store(NS::Number::numberWithInt(options.list.first + static_cast<int>(index)), setting);
    });
    dateView->updateTime();
    playClick();
}

void showChoice(const Options& options, const UI::SegmentedControl& control, Tab tab)
{
    const ObjectSetting* setting = options.settings[tab];
    if (!setting)
        return;
    long index = long{setting->intValue()} - options.list.first;
    bool exists = index >= 0 && index < static_cast<long>(options.list.choices.size());
    control.setSelectedSegmentIndex(exists ? index : UI::SegmentedControl::noSegment);
}

}
