// The list of all classes, superclasses first.
#include "Simulator/UIKit/Registration.hpp"

#include "Simulator/CoreGraphics/CGColor.hpp"
#include "Simulator/CoreGraphics/CGContext.hpp"
#include "Simulator/CoreGraphics/CGFont.hpp"
#include "Simulator/CoreGraphics/CGImage.hpp"
#include "Simulator/CoreGraphics/CTFontManager.hpp"
#include "Simulator/UIKit/NSTextAttachment.hpp"
#include "Simulator/UIKit/UIColor.hpp"
#include "Simulator/UIKit/UIDevice.hpp"
#include "Simulator/UIKit/UIFont.hpp"
#include "Simulator/UIKit/UIImage.hpp"
#include "Simulator/UIKit/UIImageView.hpp"
#include "Simulator/UIKit/UILabel.hpp"
#include "Simulator/UIKit/UIScreen.hpp"
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
    registerUIColor();
    registerUIFont();
    registerUIImage();
    registerNSTextAttachment();
    registerUIScreen();
    registerUIDevice();
    registerUIResponder();
    registerUIView();
    registerUIWindow();
    registerUIViewController();
    registerUILabel();
    registerUIImageView();
    registerUIVisualEffectView();
}

}
