// Until a phone that was switched on is unlocked once, what the user stored cannot be read.
#pragma once

namespace LYR {

/// At a start before the first unlock everything has its default. This reads it again as soon as that is possible.
/// Nothing where the settings could be read.
void awaitFirstUnlock();

}
