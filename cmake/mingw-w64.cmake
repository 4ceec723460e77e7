# Windows, by the compilers of MinGW-w64. VELL_MINGW chooses the processor: x86_64, or i686.
set(VELL_MINGW x86_64 CACHE STRING "The processor to build for")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VELL_MINGW)
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${VELL_MINGW})
set(CMAKE_C_COMPILER ${VELL_MINGW}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${VELL_MINGW}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${VELL_MINGW}-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${VELL_MINGW}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Nothing of the compiler's own has to lie beside the programs, which may be put anywhere in memory and run nothing
# that is not code.
set(VELL_LINKED "-static -Wl,--dynamicbase,--nxcompat")
if(VELL_MINGW STREQUAL "x86_64")
  string(APPEND VELL_LINKED " -Wl,--high-entropy-va")
endif()
set(CMAKE_EXE_LINKER_FLAGS_INIT "${VELL_LINKED}")
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT "-s -Wl,--gc-sections")
set(CMAKE_CXX_FLAGS_RELEASE_INIT "-ffunction-sections -fdata-sections")

# Headers alone, which Debian has for every processor among its own system's, and which therefore are shown one by one.
set(VELL_SHARED_HEADERS /usr/include)

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tests/windows/inWine.sh)
