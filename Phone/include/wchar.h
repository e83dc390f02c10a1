// Wide characters, as far as the C++ library's strings and string views name them.
#pragma once

#include <stddef.h>
#include <stdio.h>
#include <time.h>

#define WEOF ((wint_t)-1)

typedef int wint_t;

typedef union {
    char __mbstate8[128];
    long long _mbstateL;
} mbstate_t;

#ifdef __cplusplus
extern "C" {
#endif
wchar_t* wcschr(const wchar_t* string, wchar_t character);
int wcscmp(const wchar_t* left, const wchar_t* right);
size_t wcslen(const wchar_t* string);
wchar_t* wcspbrk(const wchar_t* string, const wchar_t* characters);
wchar_t* wcsrchr(const wchar_t* string, wchar_t character);
wchar_t* wcsstr(const wchar_t* string, const wchar_t* part);

wchar_t* wmemchr(const wchar_t* memory, wchar_t character, size_t count);
int wmemcmp(const wchar_t* left, const wchar_t* right, size_t count);
wchar_t* wmemcpy(wchar_t* destination, const wchar_t* source, size_t count);
wchar_t* wmemmove(wchar_t* destination, const wchar_t* source, size_t count);
wchar_t* wmemset(wchar_t* destination, wchar_t character, size_t count);
#ifdef __cplusplus
}
#endif
