# The DLLs that a program needs beside it: the compiler's runtime, and Qt with the plugins that
# widgets need. BRENNET_RUNTIME_FILES and BRENNET_RUNTIME_PLUGINS (below platforms/ and styles/)
# list them; the target brennet_runtime puts them beside the programs that are built.

set(BRENNET_RUNTIME_FILES)
foreach(name libgcc_s_dw2-1 libstdc++-6 libwinpthread-1)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${name}.dll
    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE "${file}")
    # The compiler knows its own two; the thread library belongs to the C library.
    find_file(BRENNET_${name} ${name}.dll PATHS /usr/i686-w64-mingw32/lib REQUIRED
      NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    set(file "${BRENNET_${name}}")
  endif()
  list(APPEND BRENNET_RUNTIME_FILES "${file}")
endforeach()

foreach(name Qt5Core Qt5Gui Qt5Widgets)
  list(APPEND BRENNET_RUNTIME_FILES "${BRENNET_QT_DIR}/bin/${name}.dll")
endforeach()
set(BRENNET_RUNTIME_PLUGINS
  platforms/qwindows.dll platforms/qoffscreen.dll styles/qwindowsvistastyle.dll)

set(copies)
foreach(file IN LISTS BRENNET_RUNTIME_FILES)
  get_filename_component(name "${file}" NAME)
  set(copy "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}")
  add_custom_command(OUTPUT "${copy}" DEPENDS "${file}"
    COMMAND "${CMAKE_COMMAND}" -E copy "${file}" "${copy}")
  list(APPEND copies "${copy}")
endforeach()
foreach(name IN LISTS BRENNET_RUNTIME_PLUGINS)
  set(file "${BRENNET_QT_DIR}/plugins/${name}")
  set(copy "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}")
  get_filename_component(folder "${copy}" DIRECTORY)
  add_custom_command(OUTPUT "${copy}" DEPENDS "${file}"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
    COMMAND "${CMAKE_COMMAND}" -E copy "${file}" "${copy}")
  list(APPEND copies "${copy}")
endforeach()
add_custom_target(brennet_runtime ALL DEPENDS ${copies})
