# Builds the simulator for the phone's processor, against the libraries that `prepare` unpacked beside the build folder.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(root ${CMAKE_CURRENT_LIST_DIR}/../../build-arm64/root)
get_filename_component(root ${root} ABSOLUTE)

set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_SYSROOT ${root})
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L ${root})
# The runtime's headers and library stand in the folders of the compiler that they were made with.
set(runtime ${root}/usr/lib/gcc/aarch64-linux-gnu/12)
# This processor can multiply and add with one rounding; the tests compare with one that rounds twice.
set(CMAKE_CXX_FLAGS_INIT "-idirafter ${runtime}/include -ffp-contract=off")
set(OBJC_LIBRARY ${runtime}/libobjc.so CACHE FILEPATH "")
# What the libraries need of one another is in the root too.
set(folders ${root}/usr/lib/aarch64-linux-gnu:${root}/lib/aarch64-linux-gnu)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,-rpath-link,${folders} -Wl,--allow-shlib-undefined")

set(CMAKE_FIND_ROOT_PATH ${root})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${root})
set(ENV{PKG_CONFIG_LIBDIR} ${root}/usr/lib/aarch64-linux-gnu/pkgconfig:${root}/usr/share/pkgconfig)
