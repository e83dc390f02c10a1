// Dates and property lists as plain values: the supervisor reads them without an Objective-C runtime.
#include "Platform/Foundation/NSString.hpp"
