// Memory, numbers from text, and the division types.
#pragma once

#include <stddef.h>

#define EXIT_SUCCESS 0
#define EXIT_FAILURE 1

typedef struct {
    int quot;
    int rem;
} div_t;

typedef struct {
    long quot;
    long rem;
} ldiv_t;

typedef struct {
    long long quot;
    long long rem;
} lldiv_t;

#ifdef __cplusplus
extern "C" {
#endif
void* calloc(size_t count, size_t size);
void free(void* memory);
void* malloc(size_t size);
int posix_memalign(void** memory, size_t alignment, size_t size);
void* realloc(void* memory, size_t size);

__attribute__((noreturn)) void abort(void);

double strtod(const char* text, char** end);
float strtof(const char* text, char** end);
long strtol(const char* text, char** end, int base);
long long strtoll(const char* text, char** end, int base);
unsigned long strtoul(const char* text, char** end, int base);
unsigned long long strtoull(const char* text, char** end, int base);

int abs(int number);
long labs(long number);
long long llabs(long long number);
div_t div(int numerator, int denominator);
ldiv_t ldiv(long numerator, long denominator);
lldiv_t lldiv(long long numerator, long long denominator);
#ifdef __cplusplus
}
#endif
