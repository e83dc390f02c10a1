// Where the phone keeps what is installed: under "/", or under a folder of its own where the system's is sealed. The
// build says which. What is the user's (/var/mobile) and the system's (/System) lies where it always does.
//     LYR_PREFIX "/Library/Application Support/lyr.bundle/date.ttf"_ns
#pragma once

#ifndef LYR_PREFIX
#define LYR_PREFIX ""
#endif
