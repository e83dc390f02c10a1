// A look: the stored settings and colours and the names of the fonts that they use, as one JSON document with a
// version.
#pragma once

#include "Simulator/Control/Envelope.hpp"

namespace Simulator::Preview {

inline constexpr int lookVersion = 1;

/// Of the phone with that root folder. Throws a ProtocolError for files that are damaged.
Control::Json readLook(const std::string& root);
/// Replaces the phone's settings and colours; both or none. Answers the names of the fonts that the phone lacks. Throws
/// a ProtocolError that says in one line what is wrong with the look.
Control::Json writeLook(const std::string& root, const Control::Json& look);

/// The keys that a look may hold.
const std::vector<std::string>& lookSettings();
const std::vector<std::string>& lookColours();

}
