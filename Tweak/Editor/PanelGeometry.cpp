#include "Tweak/Editor/PanelGeometry.hpp"

#include "Tweak/Editor/EditorViews.hpp"

namespace LYR {

namespace {

constexpr CGFloat squareSide = 12;

/// The wells stand in the middle of sixths of the width.
constexpr CGFloat sixth(int index)
{
    return (index + 0.5) / 6;
}

constexpr Place places[] = {
    throughout(_segmentedControl, 12, 12, 10, 32),

    throughout(_pickerView1, 12, 12, 48, 134),
    fromLeft(_stepperLabel2, 12, 88, 184, 14),
    fromLeft(_stepperLabel, 12, 88, 198, 24),
    fromLeft(_stepperView, 104, 94, 194, 32),
    fromRight(_stepperButton, 44, 52, 194, 32),
    fromRight(_alertOpen, 8, 32, 194, 32),

    aboutShare(_colorWheel1, sixth(0), 38, 82, 38),
    aboutShare(_colorWheel2, sixth(1), 38, 82, 38),
    aboutShare(_colorWheel3, sixth(2), 38, 82, 38),
    aboutShare(_colorWheel4, sixth(3), 38, 82, 38),
    aboutShare(_colorWheel5, sixth(4), 38, 82, 38),
    aboutShare(_showWell, sixth(5), 38, 82, 38),
    throughout(_alphaCheckBoard, 16, 16, 162, 24),
    throughout(_alphaView, 16, 16, 162, 24),
    throughout(_sliderAlpha, 14, 14, 158, 32),

    fromLeft(_alignLabel, 16, 80, 62, 32),
    throughout(_segmentAlign, 104, 12, 62, 32),
    throughout(_sliderX, 12, 60, 118, 32),
    fromRight(_sliderLabelX, 12, 44, 118, 32),
    // Its symbols are narrower, so that the two tracks are one above the other.
    throughout(_sliderY, 19, 67, 174, 32),
    fromRight(_sliderLabelY, 12, 44, 174, 32),

    throughout(_pickerView2, 12, 12, 46, 106),
    throughout(_segmentStyle, 12, 12, 158, 32),
    throughout(_segmentAlt, 12, 12, 198, 32),

    fromLeft(_widget1, 12, 26, 69, 26),
    throughout(_segmentWidget1, 46, 12, 66, 32),
    fromLeft(_widget2, 12, 26, 123, 26),
    throughout(_segmentWidget2, 46, 12, 120, 32),
    fromLeft(_widget3, 12, 26, 177, 26),
    throughout(_segmentWidget3, 46, 12, 174, 32),

    throughout(_alertView, 0, 0, 0, 240),
};

/// On the notice itself.
constexpr Place noticePlaces[] = {
    fromRight(_alertClose, 8, 36, 8, 36),
    throughout(_alertLabel, 16, 52, 14, 48),
    throughout(_alertLabel2, 16, 16, 70, 36),
    throughout(_alertLabel3, 16, 16, 114, 52),
    throughout(_openFolder, 16, 16, 184, 40),
};

/// Every other square of two rows, as transparency is shown.
void layCheckerboard()
{
    auto squares = _alphaCheckBoard->subviews();
    for (unsigned long i = 0; i < squares.count(); ++i)
        squares.at<UI::View>(i).setFrame(CGRectMake(i * squareSide, i % 2 * squareSide, squareSide, squareSide));
}

}

void placePanel(const Slot& shown)
{
    place(places, shown);
    place(noticePlaces, {0, shown.width});
    layCheckerboard();
    _gradient->setFrame(_alphaView->bounds());
}

}
