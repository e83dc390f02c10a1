// What the rest of the extension sees of the editor.
#include "Tweak/Editor/Editor.hpp"
