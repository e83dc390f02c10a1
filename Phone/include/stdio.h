// The stream types that the C++ library names, and the one function that shares its name with an algorithm.
#pragma once

#include <stddef.h>

#define EOF (-1)

typedef struct __sFILE FILE;
typedef long long fpos_t;

#ifdef __cplusplus
extern "C" {
#endif
int remove(const char* path);
#ifdef __cplusplus
}
#endif
