// The wide character class types that the C++ library names.
#pragma once

#include <wchar.h>

typedef unsigned int wctype_t;
typedef int wctrans_t;
