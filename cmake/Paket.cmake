# Version, date and the Debian package (cpack -G DEB in the build directory).

# Version.h is the one place of the version; the change log tells its date.
file(READ ${CMAKE_CURRENT_SOURCE_DIR}/engine/Version.h text)
set(VESK_VERSION "")
foreach(teil Haupt Neben Revision)
  if(NOT text MATCHES "Version${teil} = ([0-9]+);")
    message(FATAL_ERROR "engine/Version.h: Version${teil} fehlt")
  endif()
  list(APPEND VESK_VERSION ${CMAKE_MATCH_1})
endforeach()
list(JOIN VESK_VERSION "." VESK_VERSION)
file(READ ${CMAKE_CURRENT_SOURCE_DIR}/AENDERUNGEN.md text)
if(NOT text MATCHES "^# [^\n]*\n\n## ${VESK_VERSION} \\(([0-9-]+)\\)\n")
  message(FATAL_ERROR "AENDERUNGEN.md muß mit \"## ${VESK_VERSION} (JJJJ-MM-TT)\" beginnen")
endif()
set(VESK_DATUM ${CMAKE_MATCH_1})
set_property(
  DIRECTORY
  APPEND
  PROPERTY CMAKE_CONFIGURE_DEPENDS engine/Version.h AENDERUNGEN.md)

# In a folder right below lib cpack would have ldconfig run, for a library that this program alone loads.
if(CMAKE_LIBRARY_ARCHITECTURE)
  set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE})
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vesk)
set(CPACK_PACKAGE_VERSION ${VESK_VERSION})
set(CPACK_PACKAGE_VENDOR Vesk)
set(CPACK_PACKAGE_CONTACT "Vesk <vesk@vesk.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "safety distances of amateur radio stations")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Computes the safety distances of a fixed amateur radio station and prints the
papers for the licensing authority. The program is in German.
.
Berechnet die Sicherheitsabstände einer ortsfesten Amateurfunkstelle für
Personen und für Träger von Herzschrittmachern und druckt die Unterlagen für
die Behörde.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION hamradio)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The libraries come from the files themselves, that of the PDF writer included. What no library names: the
# letters of windows and papers, and the toolkit's German texts.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "fonts-dejavu-core, fonts-liberation2 | fonts-liberation (>= 1:2), qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/Debian.cmake)
include(CPack)
