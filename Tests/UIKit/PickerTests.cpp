// UIPickerView, turned by a finger and by messages.
#include "TouchTest.hpp"

#include "Platform/UIKit/UIPickerView.hpp"
#include "Simulator/UIKit/ViewDescription.hpp"

#include <cmath>

namespace Simulator {

/// The rows of the picker under test, and what it asked for.
struct Rows {
    long count = 0;
    int viewsMade = 0;
    int countsAsked = 0;
    std::vector<long> selected;
};

static Rows& rows()
{
    static Rows all;
    return all;
}

static long componentCount(ObjC::Object, SEL, const ObjC::Object&)
{
    return 1;
}

static long rowCount(ObjC::Object, SEL, const ObjC::Object&, long)
{
    ++rows().countsAsked;
    return rows().count;
}

static UI::View rowView(ObjC::Object, SEL, const ObjC::Object&, long row, long, const UI::View&)
{
    ++rows().viewsMade;
    const auto label = UI::Label::make();
    label.setText(NS::String::fromUTF8("Row " + std::to_string(row)));
    label.sizeToFit();
    return label;
}

static void didSelect(ObjC::Object, SEL, const ObjC::Object&, long row, long)
{
    rows().selected.push_back(row);
}

static double rowHeight(ObjC::Object, SEL, const ObjC::Object&, long)
{
    return 40;
}

class Picker : public TouchTest {
protected:
    Picker()
    {
        rows() = {};
        rows().count = 2000;
        static Class source = ObjC::ClassBuilder("RowSource", objc_getClass("NSObject"))
                                  .method<"numberOfComponentsInPickerView:", &componentCount>()
                                  .method<"pickerView:numberOfRowsInComponent:", &rowCount>()
                                  .method<"pickerView:viewForRow:forComponent:reusingView:", &rowView>()
                                  .method<"pickerView:didSelectRow:inComponent:", &didSelect>()
                                  .build();
        owner = newOf(source);
        picker = UI::PickerView::make<"initWithFrame:">(CGRectMake(0, 100, 300, 216));
        picker.setDelegate(owner);
        picker.setDataSource(owner);
        add(picker);
        layOut();
    }
    static ObjC::Object newOf(Class type)
    {
        const id allocated = ObjC::sendMessage<id>(reinterpret_cast<id>(type), ObjC::selector<"alloc">());
        return ObjC::Object::adopting(ObjC::sendMessage<id>(allocated, ObjC::selector<"init">()));
    }
    UI::View rowAt(long row) const { return picker.send<UI::View, "viewForRow:forComponent:">(row, 0L); }
    static void settle() { Loop::shared().settle(10); }
    static constexpr double middle = 208;

    ObjC::Object owner;
    UI::PickerView picker;
};

TEST_F(Picker, AsksForTheRowsInSightOnly)
{
    EXPECT_EQ(picker.numberOfRowsInComponent(0), 2000);
    EXPECT_EQ(rows().countsAsked, 1);
    EXPECT_GE(rows().viewsMade, 3);
    EXPECT_LE(rows().viewsMade, 8);
    picker.selectRow(1000, 0, false);
    layOut();
    EXPECT_LE(rows().viewsMade, 20);
    EXPECT_FALSE(rowAt(0));
    EXPECT_EQ(textOf(UI::Label(rowAt(1000).raw()).text()), "Row 1000");
}

TEST_F(Picker, TheSelectedRowStandsInTheMiddle)
{
    picker.selectRow(7, 0, false);
    layOut();
    EXPECT_EQ(picker.selectedRowInComponent(0), 7);
    EXPECT_EQ(rowAt(7).center(), (CGPoint{150, 108}));
    EXPECT_EQ(rowAt(7).alpha(), 1);
    EXPECT_LT(rowAt(6).center().y, 108);
    EXPECT_LT(rowAt(6).alpha(), 1);
    EXPECT_EQ(rows().selected, std::vector<long>{});
}

TEST_F(Picker, ADragTurnsTheWheelAndSnapsToARow)
{
    down(150, middle);
    for (int i = 1; i <= 10; ++i) {
        advance(0.1);
        move(150, middle - 8 * i);
    }
    // A finger that rests first gives the wheel no speed.
    advance(0.5);
    up(150, middle - 80);
    EXPECT_EQ(rows().selected, std::vector<long>{});
    settle();
    EXPECT_EQ(picker.selectedRowInComponent(0), std::lround(80.0 / 32));
    EXPECT_EQ(rows().selected, std::vector<long>{picker.selectedRowInComponent(0)});
    layOut();
    EXPECT_EQ(rowAt(picker.selectedRowInComponent(0)).center().y, 108);
}

TEST_F(Picker, AQuickDragRunsOn)
{
    drag({150, middle + 60}, {150, middle - 60}, 0.1);
    settle();
    EXPECT_GT(picker.selectedRowInComponent(0), 10);
    EXPECT_EQ(rows().selected.size(), 1u);
}

TEST_F(Picker, TheWheelEndsAtItsFirstAndLastRow)
{
    drag({150, middle - 60}, {150, middle + 60}, 0.1);
    settle();
    EXPECT_EQ(picker.selectedRowInComponent(0), 0);
    picker.selectRow(5000, 0, false);
    EXPECT_EQ(picker.selectedRowInComponent(0), 1999);
    drag({150, middle + 60}, {150, middle - 60}, 0.1);
    settle();
    EXPECT_EQ(picker.selectedRowInComponent(0), 1999);
    EXPECT_EQ(rows().selected, (std::vector<long>{0, 1999}));
}

TEST_F(Picker, ATapOnARowBringsItToTheMiddle)
{
    tap(150, middle + 32);
    settle();
    EXPECT_EQ(picker.selectedRowInComponent(0), 1);
    // The same row again is told again.
    tap(150, middle);
    settle();
    EXPECT_EQ(rows().selected, (std::vector<long>{1, 1}));
}

TEST_F(Picker, AnAnimatedSelectionTurnsTheWheelInTime)
{
    picker.selectRow(3, 0, true);
    EXPECT_EQ(picker.selectedRowInComponent(0), 3);
    layOut();
    EXPECT_EQ(rowAt(0).center().y, 108);
    settle();
    layOut();
    EXPECT_EQ(rowAt(3).center().y, 108);
    EXPECT_EQ(rows().selected, std::vector<long>{});
}

TEST_F(Picker, ReloadingAsksAgainAndKeepsTheRowIfItCan)
{
    picker.selectRow(1500, 0, false);
    rows().count = 8;
    picker.reloadAllComponents();
    EXPECT_EQ(picker.numberOfRowsInComponent(0), 8);
    EXPECT_EQ(picker.selectedRowInComponent(0), 7);
    EXPECT_EQ(rows().countsAsked, 2);
    rows().count = 0;
    picker.reloadAllComponents();
    layOut();
    EXPECT_EQ(picker.selectedRowInComponent(0), -1);
    tap(150, middle);
    settle();
    EXPECT_EQ(rows().selected, std::vector<long>{});
}

TEST_F(Picker, RowsAreAsHighAsTheDelegateSays)
{
    EXPECT_EQ(picker.rowSizeForComponent(0).height, 32);
    static Class high = ObjC::ClassBuilder("HighRowSource", object_getClass(owner.raw()))
                            .method<"pickerView:rowHeightForComponent:", &rowHeight>()
                            .build();
    const auto other = newOf(high);
    picker.setDelegate(other);
    EXPECT_EQ(picker.rowSizeForComponent(0).height, 40);
}

TEST_F(Picker, WithoutADataSourceIsEmpty)
{
    const auto empty = UI::PickerView::make();
    add(empty);
    layOut();
    EXPECT_EQ(empty.numberOfRowsInComponent(0), 0);
    EXPECT_EQ(empty.selectedRowInComponent(0), -1);
    EXPECT_EQ(empty.bounds().size, (CGSize{320, 216}));
}

TEST_F(Picker, MayGoWhileItsWheelTurns)
{
    pool.emplace();
    const long before = StandInRegistry::shared().liveCount("UIPickerView");
    drag({150, middle + 60}, {150, middle - 60}, 0.1);
    picker.removeFromSuperview();
    picker = {};
    pool.emplace();
    EXPECT_EQ(StandInRegistry::shared().liveCount("UIPickerView"), before - 1);
    settle();
    EXPECT_EQ(rows().selected, std::vector<long>{});
}

TEST_F(Picker, SaysItsRows)
{
    picker.selectRow(12, 0, false);
    const auto described = describeView(viewOf(picker), false);
    EXPECT_EQ(described["rows"], 2000);
    EXPECT_EQ(described["selected"], 12);
}

}
