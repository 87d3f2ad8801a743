# find_package(Brennet) gives two targets:
#   Brennet::Headers   the interface, for a host that loads the library at run time
#   Brennet::Brennet   the interface and the library, for a host that links it
# $<TARGET_FILE:Brennet::Brennet> is the library itself, to be copied beside the host.
include("${CMAKE_CURRENT_LIST_DIR}/BrennetTargets.cmake")
