#include "Tweak/Editor/OptionSegments.hpp"

#include "Platform/Foundation/NSNumber.hpp"
#include "Tweak/Editor/EditedSettings.hpp"
#include "Tweak/Editor/EditorViews.hpp"
#include "Tweak/Editor/Feedback.hpp"
#include "Tweak/Views.hpp"

#include <span>

namespace LYR {

namespace {

constexpr const char* alignments[] = {"text.alignleft", "text.aligncenter", "text.alignright"};
constexpr const char* styles[] = {"Uppercase", "Lowercase", "Capitalized", "None"};
constexpr const char* calendars[] = {"Hebrew", "Chinese", "Islamic", "Buddhist"};
constexpr const char* weatherSizes[] = {"1 x 1", "1 x 2"};
constexpr const char* agendas[] = {"Sunrise", "Sunset", "Alarm", "Event"};
constexpr const char* batteries[] = {"Percentage  1 x 1", "Phone 1 x 1", "1 x 2"};

struct Row {
    ObjC::Variable<UI::SegmentedControl>* control;
    const char* name;
    SEL (*action)();
    std::span<const char* const> segments;
    bool showsSymbols;
    /// What the first segment stands for; the others count on from it.
    int first;
    /// The setting by the element that is edited: time, date, widgets.
    EditedSetting settings[tabCount];
};

template <ObjC::FixedString name>
SEL action()
{
    return ObjC::selector<name>();
}

// In the order of the choices.
const Row rows[] = {
    {&_segmentAlign, "_segmentAlign", action<"alignValueChanged:">, alignments, true, 1,
        {{"alignTime", &_alignTime}, {"alignDate", &_alignDate}, {}}},
    {&_segmentStyle, "_segmentStyle", action<"styleValueChanged:">, styles, false, 1,
        {{}, {"styleDate", &_styleDate}, {}}},
    {&_segmentAlt, "_segmentAlt", action<"altValueChanged:">, calendars, false, 1,
        {{}, {"alternateOption", &_alternateOption}, {}}},
    {&_segmentWidget1, "_segmentWidget1", action<"widget1ValueChanged:">, weatherSizes, false, 0,
        {{}, {}, {"highLowOption", &_highLowOption}}},
    {&_segmentWidget2, "_segmentWidget2", action<"widget2ValueChanged:">, agendas, false, 1,
        {{}, {}, {"sunOption", &_sunOption}}},
    {&_segmentWidget3, "_segmentWidget3", action<"widget3ValueChanged:">, batteries, false, 1,
        {{}, {}, {"battOption", &_battOption}}},
};

void build(const Row& row, const CS::CoverSheetViewController& controller)
{
    auto control = UI::SegmentedControl::make();
    for (std::size_t i = 0; i < row.segments.size(); ++i) {
        auto segment = NS::String::fromUTF8(row.segments[i]);
        if (row.showsSymbols)
            control.insertSegmentWithImage(UI::Image::systemImageNamed(segment), i, false);
        else
            control.insertSegmentWithTitle(segment, i, false);
    }
    letSegmentsFit(control);
    control.addTarget(controller, row.action(), UI::ControlEvents::valueChanged);
    _optionView->addSubview(control);
    keepView(*row.control, control, NS::String::fromUTF8(row.name));
}

}

void letSegmentsFit(const UI::SegmentedControl& control)
{
    constexpr CGFloat titleSize = 12;
    auto attributes = NS::MutableDictionary::dictionary();
    attributes.setObject(UI::Font::systemFontOfSize(titleSize), "NSFont"_ns);
    control.setTitleTextAttributes(attributes, UI::ControlState::normal);
    control.setApportionsSegmentWidthsByContent(true);
}

void buildOptionSegments(const CS::CoverSheetViewController& controller)
{
    for (const Row& row : rows)
        build(row, controller);
}

void showStoredOptions(Tab tab)
{
    for (const Row& row : rows) {
        const EditedSetting& setting = row.settings[static_cast<std::size_t>(tab)];
        if (!setting)
            continue;
        long index = long{setting.variable->intValue()} - row.first;
        bool exists = index >= 0 && index < static_cast<long>(row.segments.size());
        (*row.control)->setSelectedSegmentIndex(exists ? index : UI::SegmentedControl::noSegment);
    }
}

void chooseSegment(Choice choice, const UI::SegmentedControl& control)
{
    const Row& row = rows[static_cast<std::size_t>(choice)];
    long index = control.selectedSegmentIndex();
    if (index < 0 || index >= static_cast<long>(row.segments.size()))
        return;
    for (Tab tab : allTabs) {
        const EditedSetting& setting = row.settings[static_cast<std::size_t>(tab)];
        if (setting && isActive(tab))
            store(NS::Number::numberWithInt(row.first + static_cast<int>(index)), setting);
    }
    dateView->updateTime();
    playClick();
}

}
