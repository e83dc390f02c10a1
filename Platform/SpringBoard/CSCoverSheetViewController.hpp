// The cover sheet: the page that the lock screen is.
#pragma once

#include "Platform/UIKit/UIViewController.hpp"

namespace CS {

class CoverSheetViewController
    : public ObjC::Class_<CoverSheetViewController, UI::ViewController, "CSCoverSheetViewController"> {
public:
    using Class_::Class_;
};

}
