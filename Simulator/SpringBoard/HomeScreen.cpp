// The home screen behind the cover sheet: icons and dock.
#include "Simulator/Runtime/StandInClass.hpp"
#include "Simulator/SpringBoard/ScreenLayout.hpp"
#include "Simulator/SpringBoard/StockParts.hpp"
#include "Simulator/UIKit/UIViewController.hpp"

#include <vector>

namespace Simulator {

namespace {

constexpr int columns = 4;
constexpr int rows = 2;
constexpr double iconSize = 60;
constexpr double iconRadius = 13.5;
constexpr double rowHeight = 92;

constexpr double glyphSize = 32;

struct AppIcon {
    const char* symbol;
    CGFloat red, green, blue;
};
/// The last row stands in the dock.
constexpr AppIcon appIcons[columns * (rows + 1)] = {
    {"calendar", 1, 0.27, 0.23},
    {"photo", 1, 0.62, 0.04},
    {"camera.fill", 0.55, 0.55, 0.58},
    {"clock.fill", 0.2, 0.2, 0.22},
    {"cloud.sun.fill", 0.04, 0.52, 1},
    {"folder.fill", 0.39, 0.82, 1},
    {"heart.fill", 1, 0.22, 0.37},
    {"gearshape.fill", 0.45, 0.45, 0.48},
    {"phone.fill", 0.2, 0.78, 0.35},
    {"envelope.fill", 0.04, 0.52, 1},
    {"message.fill", 0.2, 0.78, 0.35},
    {"music.note", 1, 0.22, 0.37},
};

UI::View makeIcon(const AppIcon& app)
{
    const UI::View icon = makePlate({}, UI::Color::colorWithRed(app.red, app.green, app.blue, 1), iconRadius);
    const CGRect place = centred({glyphSize, glyphSize}, CGRectMake(0, 0, iconSize, iconSize));
    icon.addSubview(makeSymbol(app.symbol, place, UI::Color::whiteColor()));
    return icon;
}

struct SBHomeScreenViewController : UIViewController {
    void loadView() { setView(makeView("UIView", ScreenLayout::current().bounds(), "stock.homeScreen")); }

    void addParts() override
    {
        const UI::View view = self<UI::ViewController>().view();
        m_dock = makePane(BlurStyle::light, 28);
        view.addSubview(m_dock);
        for (const AppIcon& app : appIcons) {
            m_icons.push_back(makeIcon(app));
            view.addSubview(m_icons.back());
        }
    }

    void viewWillAppear(bool) { }
    void viewDidLayoutSubviews()
    {
        const ScreenLayout layout = ScreenLayout::current();
        const double columnWidth = layout.size.width / columns;
        const double dockTop = layout.size.height - rowHeight - (layout.hasHomeIndicator ? 20 : 4);
        m_dock.setFrame(CGRectMake(10, dockTop, layout.size.width - 20, rowHeight));
        for (std::size_t index = 0; index < m_icons.size(); ++index) {
            const long row = static_cast<long>(index) / columns;
            const long column = static_cast<long>(index) % columns;
            const double top = row < rows ? layout.statusBar().size.height + 24 + row * rowHeight : dockTop;
            m_icons[index].setFrame(
                centred({iconSize, iconSize}, CGRectMake(column * columnWidth, top, columnWidth, rowHeight)));
        }
    }

private:
    UI::View m_dock;
    std::vector<UI::View> m_icons;
};

}

static const StandInClass sbHomeScreenViewController(
    "SBHomeScreenViewController", "UIViewController", [](Binder<SBHomeScreenViewController>& binder) {
        binder.def<"loadView", &SBHomeScreenViewController::loadView>()
            .def<"viewWillAppear:", &SBHomeScreenViewController::viewWillAppear>()
            .def<"viewDidLayoutSubviews", &SBHomeScreenViewController::viewDidLayoutSubviews>()
            .add();
    });

}
