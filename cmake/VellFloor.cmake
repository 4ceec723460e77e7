# One floor of the house: a static library that may link only lower floors.
#   vell_floor(NAME log SOURCES clsLog.cpp ... LINKS vell_platform)
function(vell_floor)
  cmake_parse_arguments(FLOOR "" "NAME" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(vell_${FLOOR_NAME} STATIC ${FLOOR_SOURCES})
  vell_options(vell_${FLOOR_NAME})
  target_link_libraries(vell_${FLOOR_NAME} PUBLIC ${FLOOR_LINKS} PRIVATE ${FLOOR_PRIVATE_LINKS})
endfunction()

# What every target of ours is compiled with.
function(vell_options target)
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR})
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlaps in std::string's operator+ that are none (GCC bug 105329).
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  if(VELL_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(VELL_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                            -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
endfunction()

# Has the compiler read these headers once for the whole target, where that is asked for. Every unit sees them then, so a
# build without it (the release) tells what a unit has forgotten to include.
function(vell_read_once target)
  if(VELL_PCH)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# A program of ours, and what it says of itself where the system shows that.
#   vell_program(NAME vell-console SAYS "Vell in the terminal" SOURCES main.cpp ... LINKS vell_core)
function(vell_program)
  cmake_parse_arguments(PROGRAM "" "NAME;SAYS" "SOURCES;LINKS" ${ARGN})
  add_executable(${PROGRAM_NAME} ${PROGRAM_SOURCES})
  if(WIN32)
    vell_resources(${PROGRAM_NAME} "${PROGRAM_SAYS}")
  endif()
  vell_options(${PROGRAM_NAME})
  target_link_libraries(${PROGRAM_NAME} PRIVATE ${PROGRAM_LINKS})
endfunction()

# Version, icon and manifest inside an executable for Windows.
function(vell_resources target says)
  set(VELL_PROGRAM ${target})
  set(VELL_PROGRAM_SAYS ${says})
  set(VELL_MANIFEST ${CMAKE_CURRENT_BINARY_DIR}/${target}.manifest)
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/program.manifest.in ${VELL_MANIFEST} @ONLY)
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/program.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
endfunction()
