// Sounds of the system.
#pragma once

extern "C" {
/// Plays a sound by its number: 1104 is a key's click, 1519 a short tap of the phone itself.
void AudioServicesPlaySystemSound(unsigned sound);
}
