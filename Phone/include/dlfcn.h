// Loading a framework that is not linked, and looking a function up by name.
#pragma once

#define RTLD_LAZY 0x1
#define RTLD_NOW 0x2
#define RTLD_LOCAL 0x4
#define RTLD_GLOBAL 0x8
#define RTLD_NOLOAD 0x10

#define RTLD_NEXT ((void*)-1)
#define RTLD_DEFAULT ((void*)-2)

typedef struct dl_info {
    const char* dli_fname;
    void* dli_fbase;
    const char* dli_sname;
    void* dli_saddr;
} Dl_info;

#ifdef __cplusplus
extern "C" {
#endif
int dladdr(const void* address, Dl_info* information);
int dlclose(void* library);
char* dlerror(void);
void* dlopen(const char* path, int mode);
void* dlsym(void* library, const char* symbol);
#ifdef __cplusplus
}
#endif
