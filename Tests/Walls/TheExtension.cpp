// The simulator treats this extension like any other.
#include "Tweak/Settings.hpp"
