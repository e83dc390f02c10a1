// The hint at the bottom of the lock screen that says how to open the phone.
#include "Platform/UIKit/UILabel.hpp"
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/UIKit/UIViewController.hpp"

namespace Simulator {

namespace {

struct CSTeachableMomentsContainerViewController : UIViewController {
    void addParts() override
    {
        m_label = makeLabel("", 15, FontWeight::medium, UI::Color::whiteColor());
        m_label.setTextAlignment(UI::TextAlignment::center);
        m_label.setAccessibilityIdentifier("stock.hint"_ns);
        self<UI::ViewController>().view().addSubview(m_label);
    }

    void viewWillAppear(bool)
    {
        const bool canSwipe = ScreenLayout::current().hasHomeIndicator;
        self().send<void, "_updateText:">(canSwipe ? "Swipe up to open"_ns : "Press home to open"_ns);
    }

    void placeParts() override { m_label.setFrame(self<UI::ViewController>().view().bounds()); }
    void updateText(const NS::String& text) { m_label.setText(text); }

private:
    UI::Label m_label;
};

}

static const StandInClass csTeachableMomentsContainerViewController("CSTeachableMomentsContainerViewController",
    "CSCoverSheetViewControllerBase", [](Binder<CSTeachableMomentsContainerViewController>& binder) {
        binder.def<"viewWillAppear:", &CSTeachableMomentsContainerViewController::viewWillAppear>()
            .def<"_updateText:", &CSTeachableMomentsContainerViewController::updateText>()
            .add();
    });

}
