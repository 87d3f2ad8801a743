# The rest of the Windows package: import libraries, what the library needs to run, the sample host
# as source and as a program, the contract and the licences. tools/sdk.sh makes the zip of it.

# For linkers that read Microsoft's import libraries. The GNU linker itself makes libBrennet.dll.a.
find_program(BRENNET_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14 REQUIRED)
set(definitions "${PROJECT_SOURCE_DIR}/sdk/windows/Brennet.def")
set(import_library "${CMAKE_ARCHIVE_OUTPUT_DIRECTORY}/Brennet.lib")
add_custom_command(OUTPUT "${import_library}" DEPENDS "${definitions}"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_ARCHIVE_OUTPUT_DIRECTORY}"
  COMMAND "${BRENNET_DLLTOOL}" -m i386 -d "${definitions}" -l "${import_library}")
add_custom_target(brennet_import_library ALL DEPENDS "${import_library}")

# For tools/sdk.sh, which asks it for the versions of what is shipped.
set(BRENNET_COMPILER "${CMAKE_CXX_COMPILER}" CACHE INTERNAL "")

# The same sources always give the same package, and a debugger finds the symbols of each file.
set(programs brennet-check brennet-program)
if(TARGET brennet-host)
  list(APPEND programs brennet-host)
endif()
foreach(program brennet ${programs})
  brennet_keep_symbols(${program})
  target_link_options(${program} PRIVATE "LINKER:--no-insert-timestamp,--build-id")
endforeach()
foreach(program IN LISTS programs)
  install(PROGRAMS "$<TARGET_FILE:${program}>" DESTINATION bin)
endforeach()

install(TARGETS brennet RUNTIME DESTINATION bin ARCHIVE DESTINATION lib)
install(FILES "${import_library}" "${definitions}" DESTINATION lib)
install(FILES sdk/windows/BrennetTargets.cmake DESTINATION ${package_dir})

install(PROGRAMS ${BRENNET_RUNTIME_FILES} DESTINATION bin)
foreach(plugin IN LISTS BRENNET_RUNTIME_PLUGINS)
  # That platform is for tests without a screen.
  if(NOT plugin STREQUAL "platforms/qoffscreen.dll")
    get_filename_component(folder "${plugin}" DIRECTORY)
    install(PROGRAMS "${BRENNET_QT_DIR}/plugins/${plugin}" DESTINATION "bin/${folder}")
  endif()
endforeach()

install(DIRECTORY samples/host DESTINATION samples
  FILES_MATCHING PATTERN "*.h" PATTERN "*.cpp")
install(FILES sdk/sample/host/CMakeLists.txt DESTINATION samples/host)
install(FILES samples/data/KeyInfo.xml samples/data/Tollamere.reg samples/data/War3Preferences.txt
  DESTINATION samples/data)
install(FILES samples/minimal/main.cpp DESTINATION samples/minimal)
install(FILES sdk/sample/minimal/CMakeLists.txt DESTINATION samples/minimal)
install(FILES sdk/README.md sdk/CONTRACT.md sdk/ABI.txt DESTINATION .)
install(FILES docs/checking.md docs/command-line.md docs/command-line.schema.json
  docs/embedding.md DESTINATION docs)

# The texts come from the same places as the parts: the folder of Qt and the compiler's packages.
install(FILES sdk/NOTICE.md DESTINATION licences)
install(FILES "${BRENNET_QT_DIR}/licences/LICENSE.LGPLv3" DESTINATION licences RENAME LGPL-3.txt)
install(FILES "${BRENNET_QT_DIR}/licences/LICENSE.GPL3" DESTINATION licences RENAME GPL-3.txt)
install(FILES "${BRENNET_QT_DIR}/licences/attributions.txt" DESTINATION licences
  RENAME qt-parts.txt)
install(FILES /usr/share/doc/gcc-mingw-w64-i686-posix-runtime/copyright DESTINATION licences
  RENAME gcc-runtime.txt)
install(FILES /usr/share/doc/mingw-w64-i686-dev/copyright DESTINATION licences
  RENAME mingw-w64.txt)
install(FILES /usr/share/doc/libcli11-dev/copyright DESTINATION licences RENAME cli11.txt)
install(FILES /usr/share/doc/nlohmann-json3-dev/copyright DESTINATION licences RENAME json.txt)
# Texts that the runtime's two refer to by their places on a Debian system.
foreach(text Artistic GFDL-1.2 GPL-2 LGPL-2 LGPL-2.1)
  install(FILES /usr/share/common-licenses/${text} DESTINATION licences RENAME ${text}.txt)
endforeach()
install(PROGRAMS tools/windows/qt.sh tools/windows/qt_licences.sh tools/windows/qt_licences.py
  DESTINATION licences/qt-build)
install(FILES tools/windows/lib.sh DESTINATION licences/qt-build)
