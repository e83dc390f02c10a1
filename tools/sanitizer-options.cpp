// How a sanitized build behaves.
//
// A process that a signal ends is to end by that signal, since the supervisor tells how its shell process ended.
extern "C" const char* __asan_default_options()
{
    return "handle_segv=0";
}

/// What the leak check of a sanitized build is not told about: the tables that the Objective-C runtime and Foundation
/// make once and keep until the process ends. Objects have counters of their own in the tests.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libobjc.so\n"
           "leak:libgnustep-base.so\n"
           "leak:libfontconfig.so\n";
}

extern "C" const char* __lsan_default_options()
{
    return "print_suppressions=0";
}
