// The views of the editor. They are built with the cover sheet and live as long as the process.
#pragma once

#include "Platform/QuartzCore/CAGradientLayer.hpp"
#include "Platform/UIKit/UIButton.hpp"
#include "Platform/UIKit/UIImageView.hpp"
#include "Platform/UIKit/UILabel.hpp"
#include "Platform/UIKit/UIPickerView.hpp"
#include "Platform/UIKit/UISegmentedControl.hpp"
#include "Platform/UIKit/UISlider.hpp"
#include "Platform/UIKit/UIStepper.hpp"

namespace LYR {

// The panel, and the row of buttons above it.
extern constinit ObjC::Variable<UI::View> _optionView;
extern constinit ObjC::Variable<UI::Button> _done, _timeButton, _dateButton, _widgetButton;

/// What of the element is edited: font, colour, position, and what else it has. It counted so many when it was built.
extern constinit ObjC::Variable<UI::SegmentedControl> _segmentedControl;
extern constinit unsigned long _initialSegmentCount;

// Font: a wheel of fonts, and the size with its button to apply it.
extern constinit ObjC::Variable<UI::PickerView> _pickerView1;
extern constinit ObjC::Variable<UI::Label> _stepperLabel, _stepperLabel2;
extern constinit ObjC::Variable<UI::Stepper> _stepperView;
extern constinit ObjC::Variable<UI::Button> _stepperButton;

// Colour: wells of the wallpaper's colours, the one that shows the current colour, and the opacity.
extern constinit ObjC::Variable<UI::Button> _colorWheel1, _colorWheel2, _colorWheel3, _colorWheel4, _colorWheel5;
extern constinit ObjC::Variable<UI::Button> _showWell;
extern constinit ObjC::Variable<UI::View> _alphaCheckBoard, _alphaView;
extern constinit ObjC::Variable<CA::GradientLayer> _gradient;
extern constinit ObjC::Variable<UI::Slider> _sliderAlpha;

// Position: alignment and offsets.
extern constinit ObjC::Variable<UI::Label> _alignLabel;
extern constinit ObjC::Variable<UI::SegmentedControl> _segmentAlign;
extern constinit ObjC::Variable<UI::Slider> _sliderX, _sliderY;
extern constinit ObjC::Variable<UI::Label> _sliderLabelX, _sliderLabelY;

// What the date line shows, in which case and calendar.
extern constinit ObjC::Variable<UI::PickerView> _pickerView2;
extern constinit ObjC::Variable<UI::SegmentedControl> _segmentStyle, _segmentAlt;

// What each slot of the strip shows.
extern constinit ObjC::Variable<UI::ImageView> _widget1, _widget2, _widget3;
extern constinit ObjC::Variable<UI::SegmentedControl> _segmentWidget1, _segmentWidget2, _segmentWidget3;

// Where the user's fonts go.
extern constinit ObjC::Variable<UI::Button> _alertOpen, _alertClose, _openFolder;
extern constinit ObjC::Variable<UI::View> _alertView;
extern constinit ObjC::Variable<UI::Label> _alertLabel, _alertLabel2, _alertLabel3;

// Low-power mode, on and off. They stand on the lock screen itself.
extern constinit ObjC::Variable<UI::Button> _buttonCL, _buttonCL2;

}
