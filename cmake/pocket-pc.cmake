# Cross build for Windows CE on ARM with Debian's gcc-arm-none-eabi, which makes ELF: tools/ce/link
# makes the device's executables of it. Resources are the business of mingw-w64's windres.
set(CMAKE_SYSTEM_NAME PocketPC)
set(CMAKE_SYSTEM_PROCESSOR arm)
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR})
set(CMAKE_C_COMPILER arm-none-eabi-gcc)
set(CMAKE_CXX_COMPILER arm-none-eabi-g++)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# What the device links is there only once the build has made it.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# ARMv4T is the least processor of a Pocket PC; none has a floating-point unit.
set(device_code "-march=armv4t -marm -mfloat-abi=soft -mabi=aapcs")
# The device's types: 2 bytes to a wchar_t, 4 to an enumeration.
set(device_types "-fshort-wchar -fno-short-enums")
set(device_sections "-ffunction-sections -fdata-sections -fno-unwind-tables -fno-asynchronous-unwind-tables")
# prelude.h gives the toolchain's Windows headers the compiler that they expect.
set(device_headers "-include ${CMAKE_CURRENT_LIST_DIR}/../tools/ce/include/prelude.h -idirafter /usr/share/mingw-w64/include")
set(CMAKE_C_FLAGS_INIT "${device_code} ${device_types} ${device_sections}")
# Objects that live as long as the program are never destroyed: the system takes all back at once.
set(CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT} ${device_headers} -fno-use-cxa-atexit -D_GLIBCXX_EXTERN_TEMPLATE=0")
set(CMAKE_ASM_FLAGS_INIT "${device_code}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
