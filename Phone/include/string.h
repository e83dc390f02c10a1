// Memory and byte string functions.
#pragma once

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif
void* memchr(const void* memory, int byte, size_t count);
int memcmp(const void* left, const void* right, size_t count);
void* memcpy(void* destination, const void* source, size_t count);
void* memmove(void* destination, const void* source, size_t count);
void* memset(void* destination, int byte, size_t count);

char* strchr(const char* string, int character);
int strcmp(const char* left, const char* right);
size_t strcspn(const char* string, const char* characters);
size_t strlen(const char* string);
int strncmp(const char* left, const char* right, size_t count);
char* strpbrk(const char* string, const char* characters);
char* strrchr(const char* string, int character);
size_t strspn(const char* string, const char* characters);
char* strstr(const char* string, const char* part);
#ifdef __cplusplus
}
#endif
