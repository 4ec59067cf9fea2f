# Runs PROGRAMM, which takes the pictures. A machine without fonts or without the platform plugin builds a manual
# without pictures; a step of the chapter that does not go is a fault.
set(ENV{QT_QPA_PLATFORM} offscreen:configfile=${CMAKE_CURRENT_LIST_DIR}/bildschirm.json)
foreach(einfluss QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS QT_FONT_DPI QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME)
  unset(ENV{${einfluss}})
endforeach()
set(ENV{LC_ALL} C.UTF-8)
# The font libraries keep what they have read.
set(ENV{ASAN_OPTIONS} $ENV{ASAN_OPTIONS}:detect_leaks=0)
execute_process(COMMAND ${PROGRAMM} ${KATALOGE} ${ZIEL} RESULT_VARIABLE ende ERROR_VARIABLE meldungen TIMEOUT 300)
if(ende STREQUAL "3" OR ende MATCHES "abort")
  message(WARNING "The manual is built without pictures.\n${meldungen}")
elseif(NOT ende STREQUAL "0")
  message(FATAL_ERROR "The first chapter of the manual cannot be played (${ende}).\n${meldungen}")
endif()
file(TOUCH ${STAND})
