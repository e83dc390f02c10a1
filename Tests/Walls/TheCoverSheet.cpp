// The interceptions of the cover sheet.
#include "Tweak/CoverSheet/CoverSheetHooks.hpp"
