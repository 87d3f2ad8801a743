# The targets of the Windows package. One package serves all compilers, so this file is written by
# hand: what CMake exports knows only the linker that the library was built with.

if(NOT WIN32)
  set(Brennet_FOUND FALSE)
  set(Brennet_NOT_FOUND_MESSAGE "This package holds the library for Windows.")
  return()
endif()
if(TARGET Brennet::Brennet)
  return()
endif()

get_filename_component(_brennet_folder "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

add_library(Brennet::Headers INTERFACE IMPORTED)
set_target_properties(Brennet::Headers PROPERTIES
  INTERFACE_INCLUDE_DIRECTORIES "${_brennet_folder}/include")

add_library(Brennet::Brennet SHARED IMPORTED)
set_target_properties(Brennet::Brennet PROPERTIES
  IMPORTED_LOCATION "${_brennet_folder}/bin/Brennet.dll"
  IMPORTED_IMPLIB "${_brennet_folder}/lib/Brennet.lib"
  INTERFACE_LINK_LIBRARIES Brennet::Headers)
if(MINGW)
  set_target_properties(Brennet::Brennet PROPERTIES
    IMPORTED_IMPLIB "${_brennet_folder}/lib/libBrennet.dll.a")
endif()

unset(_brennet_folder)
