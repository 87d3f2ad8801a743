# find_package(Brennet) gives two targets:
#   Brennet::Headers   the interface, for a host that loads the library at run time
#   Brennet::Brennet   the interface and the library, for a host that links it
# $<TARGET_FILE:Brennet::Brennet> is the library itself, to be copied beside the host.
include("${CMAKE_CURRENT_LIST_DIR}/BrennetTargets.cmake")

# There are no components: a build that needs one does not find the package.
macro(check_required_components package)
  foreach(component IN LISTS ${package}_FIND_COMPONENTS)
    if(${package}_FIND_REQUIRED_${component} AND NOT ${package}_${component}_FOUND)
      set(${package}_FOUND FALSE)
      set(${package}_NOT_FOUND_MESSAGE "${package} has no component ${component}.")
    endif()
  endforeach()
endmacro()
check_required_components(Brennet)
