# Writes a header that holds SVG pictures as texts, so that the program carries them along:
#   vell_pictures(${header} one.svg two.svg) gives vell::svg::one, vell::svg::two.
function(vell_pictures header)
  set(texts "")
  foreach(file IN LISTS ARGN)
    cmake_path(GET file STEM name)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    file(READ ${file} picture)
    string(APPEND texts "inline constexpr char ${name}[] = R\"svg(${picture})svg\";\n")
  endforeach()
  file(CONFIGURE OUTPUT ${header} CONTENT "#pragma once\n\nnamespace vell::svg {\n${texts}}  // namespace vell::svg\n" @ONLY)
endfunction()
