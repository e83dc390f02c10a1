// What the leak check of a sanitized build is not told about: the tables that the Objective-C runtime and Foundation make
// once and keep until the process ends. Objects have counters of their own in the tests.
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
