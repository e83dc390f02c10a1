// What the user hears of the editor.
#pragma once

#include "Platform/AudioToolbox/AudioServices.hpp"

namespace LYR {

/// Every change of a control.
inline void playClick()
{
    AudioServicesPlaySystemSound(1104);
}

/// The editor or a part of it opens, closes or is applied.
inline void playTap()
{
    AudioServicesPlaySystemSound(1519);
}

}
