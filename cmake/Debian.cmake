# Run by cpack before it packs what has been installed: manual and change log as Debian wants them.
set(texte ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
set(ordner ${texte}/doc/${CPACK_PACKAGE_NAME})

file(READ ${ordner}/AENDERUNGEN.md text)
file(REMOVE ${ordner}/AENDERUNGEN.md)
# Headings, paragraphs and lists of one version each become an entry.
string(REGEX REPLACE "^# [^\n]*\n" "\n" text "${text}")
string(REGEX MATCHALL "\n## [^\n]*" koepfe "${text}")
string(REGEX REPLACE "\n### ([^\n]*)" "\n[ \\1 ]" text "${text}")
string(REGEX REPLACE "\n([^#\n])" "\n  \\1" text "${text}")
string(REPLACE "\n  - " "\n  * " text "${text}")
set(unterschrift "")
foreach(kopf IN LISTS koepfe)
  string(REGEX MATCH "## ([0-9.]+) \\(([0-9-]+)\\)" kopf "${kopf}")
  set(version ${CMAKE_MATCH_1})
  set(datum ${CMAKE_MATCH_2})
  string(REPLACE "\n${kopf}\n" "${unterschrift}\n${CPACK_PACKAGE_NAME} (${version}) stable; urgency=medium\n" text
                 "${text}")
  execute_process(COMMAND date -u -R -d ${datum} OUTPUT_VARIABLE zeit OUTPUT_STRIP_TRAILING_WHITESPACE
                  COMMAND_ERROR_IS_FATAL ANY)
  set(unterschrift "\n -- ${CPACK_PACKAGE_CONTACT}  ${zeit}\n")
endforeach()
string(STRIP "${text}" text)
file(WRITE ${ordner}/changelog "${text}\n${unterschrift}")

execute_process(COMMAND gzip -9nf ${ordner}/changelog ${texte}/man/man1/vesk.1 COMMAND_ERROR_IS_FATAL ANY)

file(WRITE ${texte}/lintian/overrides/${CPACK_PACKAGE_NAME}
     "# Die Listen sind Windows-1252: So liest und schreibt sie das Programm.
${CPACK_PACKAGE_NAME}: national-encoding
")
