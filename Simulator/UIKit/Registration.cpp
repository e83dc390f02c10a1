// The list of all classes, superclasses first.
#include "Simulator/UIKit/Registration.hpp"

#include "Simulator/CoreGraphics/CGColor.hpp"
#include "Simulator/CoreGraphics/CGContext.hpp"
#include "Simulator/CoreGraphics/CGFont.hpp"
#include "Simulator/CoreGraphics/CGImage.hpp"
#include "Simulator/CoreGraphics/CTFontManager.hpp"
#include "Simulator/QuartzCore/CAGradientLayer.hpp"
#include "Simulator/UIKit/NSLayoutConstraint.hpp"
#include "Simulator/UIKit/NSTextAttachment.hpp"
#include "Simulator/UIKit/UIButton.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIColorWell.hpp"
#include "Simulator/UIKit/UIDevice.hpp"
#include "Simulator/UIKit/UIFont.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UIImageView.hpp"
#include "Simulator/UIKit/UILabel.hpp"
#include "Simulator/UIKit/UILongPressGestureRecognizer.hpp"
#include "Simulator/UIKit/UIPickerView.hpp"
#include "Simulator/UIKit/UIScreen.hpp"
#include "Simulator/UIKit/UISegmentedControl.hpp"
#include "Simulator/UIKit/UISlider.hpp"
#include "Simulator/UIKit/UIStepper.hpp"
#include "Simulator/UIKit/UITapGestureRecognizer.hpp"
#include "Simulator/UIKit/UITouch.hpp"
#include "Simulator/UIKit/UIViewController.hpp"
#include "Simulator/UIKit/UIVisualEffectView.hpp"
#include "Simulator/UIKit/UIWindow.hpp"

namespace Simulator {

void registerUIKit()
{
    if (objc_getClass("UIView"))
        return;
    registerCGColor();
    registerCGImage();
    registerCGContext();
    registerCGFont();
    registerCTFontManager();
    registerCALayer();
    registerCAGradientLayer();
    registerUIColor();
    registerUIFont();
    registerUIImage();
    registerNSTextAttachment();
    registerUIScreen();
    registerUIDevice();
    registerUITouch();
    registerUIGestureRecognizer();
    registerUILongPressGestureRecognizer();
    registerUITapGestureRecognizer();
    registerNSLayoutConstraint();
    registerUIResponder();
    registerUIView();
    registerUIWindow();
    registerUIViewController();
    registerUILabel();
    registerUIImageView();
    registerUIVisualEffectView();
    registerUIControl();
    registerUIButton();
    registerUISlider();
    registerUIStepper();
    registerUISegmentedControl();
    registerUIPickerView();
    registerUIColorWell();
}

}
