# SPDX-License-Identifier: GPL-3.0-or-later
# The floors of the house as libraries. A room links only what stands below it, and its sources see the toolkit only when
# the room is declared as one with windows.

# GCC 12 warns of overlapping copies inside the standard string's operator+ where there are none (its bug 105329).
set(VELMORIAX_WARNINGS -Wall -Wextra)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  list(APPEND VELMORIAX_WARNINGS -Wno-restrict)
endif()
list(APPEND VELMORIAX_WARNINGS $<$<BOOL:${VELMORIAX_WERROR}>:-Werror>)

set(VELMORIAX_LIBRARY_FOLDER "${PROJECT_BINARY_DIR}/app/late")

# Floors 0 to 2: the standard library alone, strict warnings.
function(velmoriax_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC ${ROOM_USES})
  target_compile_options(${name} PRIVATE ${VELMORIAX_WARNINGS} -Wconversion -Wshadow)
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()

# Floors 3 and 4: with the toolkit.
function(velmoriax_window_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC ${ROOM_USES})
  target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS)
  target_compile_options(${name} PRIVATE ${VELMORIAX_WARNINGS})
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
endfunction()

# What only a part of the program needs and what takes long to load: a library beside the executable, which loads it when
# it is needed for the first time.
function(velmoriax_late_library name)
  cmake_parse_arguments(LIBRARY "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} MODULE ${LIBRARY_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE ${LIBRARY_USES})
  target_compile_options(${name} PRIVATE ${VELMORIAX_WARNINGS})
  set_target_properties(${name} PROPERTIES PREFIX "" NO_SONAME ON LIBRARY_OUTPUT_DIRECTORY "${VELMORIAX_LIBRARY_FOLDER}")
endfunction()
