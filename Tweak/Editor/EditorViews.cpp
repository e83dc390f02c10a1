// Storage of the editor's views.
#include "Tweak/Editor/EditorViews.hpp"

namespace LYR {

constinit ObjC::Variable<UI::View> _optionView;
constinit ObjC::Variable<UI::Button> _done, _timeButton, _dateButton, _widgetButton;

constinit ObjC::Variable<UI::SegmentedControl> _segmentedControl;
constinit unsigned long _initialSegmentCount = 0;

constinit ObjC::Variable<UI::PickerView> _pickerView1;
constinit ObjC::Variable<UI::Label> _stepperLabel, _stepperLabel2;
constinit ObjC::Variable<UI::Stepper> _stepperView;
constinit ObjC::Variable<UI::Button> _stepperButton;

constinit ObjC::Variable<UI::Button> _colorWheel1, _colorWheel2, _colorWheel3, _colorWheel4, _colorWheel5;
constinit ObjC::Variable<UI::Button> _showWell;
constinit ObjC::Variable<UI::View> _alphaCheckBoard, _alphaView;
constinit ObjC::Variable<CA::GradientLayer> _gradient;
constinit ObjC::Variable<UI::Slider> _sliderAlpha;

constinit ObjC::Variable<UI::Label> _alignLabel;
constinit ObjC::Variable<UI::SegmentedControl> _segmentAlign;
constinit ObjC::Variable<UI::Slider> _sliderX, _sliderY;
constinit ObjC::Variable<UI::Label> _sliderLabelX, _sliderLabelY;

constinit ObjC::Variable<UI::PickerView> _pickerView2;
constinit ObjC::Variable<UI::SegmentedControl> _segmentStyle, _segmentAlt;

constinit ObjC::Variable<UI::ImageView> _widget1, _widget2, _widget3;
constinit ObjC::Variable<UI::SegmentedControl> _segmentWidget1, _segmentWidget2, _segmentWidget3;

constinit ObjC::Variable<UI::Button> _alertOpen, _alertClose, _openFolder;
constinit ObjC::Variable<UI::View> _alertView;
constinit ObjC::Variable<UI::Label> _alertLabel, _alertLabel2, _alertLabel3;

constinit ObjC::Variable<UI::Button> _buttonCL, _buttonCL2;

}
