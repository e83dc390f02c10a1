// Where the phone's system log is to be seen, besides in the activity log.
#pragma once

namespace Simulator {

/// What the extension says, on standard error too.
struct SystemLog {
    bool isOnStandardError = false;

    static SystemLog& shared();
};

}
