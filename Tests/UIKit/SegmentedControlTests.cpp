// UISegmentedControl.
#include "TouchTest.hpp"

#include "Platform/UIKit/UISegmentedControl.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

namespace Simulator {

class Segments : public TouchTest {
protected:
    Segments()
    {
        control = UI::SegmentedControl::withItems(NS::Array::of("Font"_ns, "Color"_ns, "Position"_ns));
        control.setFrame({{0, 100}, {300, 32}});
        add(control);
        listen(control);
    }
    std::vector<std::string> titles() const
    {
        std::vector<std::string> all;
        for (unsigned long i = 0; i < control.numberOfSegments(); ++i)
            all.push_back(textOf(control.titleForSegmentAtIndex(i)));
        return all;
    }
    UI::SegmentedControl control;
};

TEST_F(Segments, StartWithTheirItemsAndNoneSelected)
{
    EXPECT_EQ(titles(), (std::vector<std::string>{"Font", "Color", "Position"}));
    EXPECT_EQ(control.selectedSegmentIndex(), -1);
}

TEST_F(Segments, AreSelectedByATap)
{
    tap(150, 116);
    EXPECT_EQ(control.selectedSegmentIndex(), 1);
    EXPECT_EQ(takeCalls(), Calls{"UISegmentedControl"});
    tap(150, 116);
    EXPECT_EQ(takeCalls(), Calls{});
    drag({10, 116}, {290, 116});
    EXPECT_EQ(control.selectedSegmentIndex(), 2);
    drag({10, 116}, {10, 400});
    EXPECT_EQ(control.selectedSegmentIndex(), 2);
}

TEST_F(Segments, AreSelectedByTheirIndexWithoutAWord)
{
    control.setSelectedSegmentIndex(2);
    EXPECT_EQ(control.selectedSegmentIndex(), 2);
    EXPECT_ANY_THROW(control.setSelectedSegmentIndex(3));
    control.setSelectedSegmentIndex(-1);
    EXPECT_EQ(control.selectedSegmentIndex(), -1);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Segments, KeepTheSelectionWhenOthersComeAndGo)
{
    control.setSelectedSegmentIndex(1);
    control.insertSegmentWithTitle("First"_ns, 0, false);
    EXPECT_EQ(control.selectedSegmentIndex(), 2);
    control.insertSegmentWithTitle("Date Option"_ns, 100, false);
    EXPECT_EQ(titles().back(), "Date Option");
    control.removeSegmentAtIndex(0, false);
    EXPECT_EQ(control.selectedSegmentIndex(), 1);
    control.removeSegmentAtIndex(1, false);
    EXPECT_EQ(control.selectedSegmentIndex(), -1);
    EXPECT_EQ(titles(), (std::vector<std::string>{"Font", "Position", "Date Option"}));
    control.removeAllSegments();
    EXPECT_EQ(control.numberOfSegments(), 0u);
    control.removeSegmentAtIndex(0, false);
    tap(150, 116);
    EXPECT_EQ(control.selectedSegmentIndex(), -1);
}

TEST_F(Segments, AreRenamedAndShowSymbols)
{
    control.setTitleForSegmentAtIndex("Widget Option"_ns, 0);
    control.setTitleForSegmentAtIndex("nowhere"_ns, 9);
    control.insertSegmentWithImage(UI::Image::systemImageNamed("text.alignleft"_ns), 1, false);
    EXPECT_FALSE(control.titleForSegmentAtIndex(1));
    EXPECT_TRUE(control.imageForSegmentAtIndex(1));
    EXPECT_FALSE(control.imageForSegmentAtIndex(0));
    control.setSelectedSegmentIndex(0);
    const auto described = describeView(viewOf(control), false);
    EXPECT_EQ(described["segments"], (nlohmann::json{"Widget Option", "text.alignleft", "Color", "Position"}));
    EXPECT_EQ(described["selected"], 0);
}

TEST_F(Segments, TellWhetherATitleIsCutOff)
{
    const auto truncated = [this] { return describeView(viewOf(control), false)["truncated"]; };
    EXPECT_EQ(truncated(), false);
    control.setTitleForSegmentAtIndex("A title that has no room beside the others at all"_ns, 0);
    EXPECT_EQ(truncated(), true);
}

}
