// Drawing, layers and fonts know nothing of views.
#include "Simulator/UIKit/UIView.hpp"
