# SPDX-License-Identifier: GPL-3.0-or-later
# The modules as libraries, by the table cmake/layers.txt. A module's sources are compiled with nothing on the include
# path but the headers that its line of the table names, so that any other include does not compile.

# GCC 12 warns of overlapping copies inside the standard string's operator+ where there are none (its bug 105329).
set(VELMORIAX_WARNINGS -Wall -Wextra -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  list(APPEND VELMORIAX_WARNINGS -Wno-restrict)
endif()
list(APPEND VELMORIAX_WARNINGS $<$<BOOL:${VELMORIAX_WERROR}>:-Werror>)

set(VELMORIAX_PLUGIN_FOLDER "${PROJECT_BINARY_DIR}/app/plugins")

# The name of a module's library: velmoriax_tarot_windows for tarot/windows.
function(velmoriax_library_name result module)
  string(REPLACE "/" "_" name "velmoriax_${module}")
  set(${result} "${name}" PARENT_SCOPE)
endfunction()

# ---- The table, as VELMORIAX_USES_<module>

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CMAKE_CURRENT_LIST_DIR}/layers.txt")
file(STRINGS "${CMAKE_CURRENT_LIST_DIR}/layers.txt" rows REGEX "^[a-z/]+:")
foreach(row IN LISTS rows)
  string(REGEX MATCH "^([a-z/]+):(.*)$" row "${row}")
  set(module "${CMAKE_MATCH_1}")
  separate_arguments(uses UNIX_COMMAND "${CMAKE_MATCH_2}")
  foreach(used IN LISTS uses)
    if(NOT used STREQUAL "Qt" AND NOT used IN_LIST VELMORIAX_MODULES)
      message(FATAL_ERROR "layers.txt: ${module} uses ${used}, which is not above it")
    endif()
  endforeach()
  list(APPEND VELMORIAX_MODULES "${module}")
  set(VELMORIAX_USES_${module} "${uses}")
endforeach()

# ---- The headers: for each module a folder of its own with one forwarding header for each real one

function(velmoriax_header_folder result module)
  string(REPLACE "/" "_" name "${module}")
  set(${result} "${PROJECT_BINARY_DIR}/headers/${name}" PARENT_SCOPE)
endfunction()

foreach(module IN LISTS VELMORIAX_MODULES)
  velmoriax_header_folder(folder "${module}")
  file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${module}/*.h")
  file(GLOB old "${folder}/${module}/*.h")
  set(names "")
  foreach(header IN LISTS headers)
    get_filename_component(name "${header}" NAME)
    list(APPEND names "${folder}/${module}/${name}")
    file(RELATIVE_PATH real "${folder}/${module}" "${header}")
    file(CONFIGURE OUTPUT "${folder}/${module}/${name}" CONTENT "#include \"${real}\"\n" @ONLY)
  endforeach()
  list(REMOVE_ITEM old ${names}) # of headers that are no more
  if(old)
    file(REMOVE ${old})
  endif()
endforeach()

# Lets the sources of a target see the headers of these modules and of what those may use.
function(velmoriax_see target)
  set(seen ${ARGN})
  foreach(module IN LISTS ARGN)
    list(APPEND seen ${VELMORIAX_USES_${module}})
  endforeach()
  list(REMOVE_ITEM seen Qt)
  list(REMOVE_DUPLICATES seen)
  foreach(module IN LISTS seen)
    velmoriax_header_folder(folder "${module}")
    target_include_directories(${target} PRIVATE "${folder}")
  endforeach()
endfunction()

# ---- Libraries

# The library of a module: velmoriax_module(tarot SOURCES ... [LIBRARIES ...]). It links the libraries of the modules that
# the table names; LIBRARIES are foreign ones.
function(velmoriax_module module)
  cmake_parse_arguments(MODULE "" "" "SOURCES;LIBRARIES" ${ARGN})
  velmoriax_library_name(name "${module}")
  add_library(${name} STATIC ${MODULE_SOURCES})
  velmoriax_see(${name} "${module}")
  target_compile_options(${name} PRIVATE ${VELMORIAX_WARNINGS})
  foreach(used IN LISTS VELMORIAX_USES_${module})
    if(used STREQUAL "Qt")
      target_link_libraries(${name} PUBLIC Qt6::Widgets)
      target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS)
      set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
    else()
      velmoriax_library_name(library "${used}")
      target_link_libraries(${name} PUBLIC ${library})
    endif()
  endforeach()
  target_link_libraries(${name} PUBLIC ${MODULE_LIBRARIES})
endfunction()

# What only a part of the program needs and what takes long to load: a library beside the executable, which loads it when
# it is needed for the first time.
function(velmoriax_plugin name module)
  cmake_parse_arguments(PLUGIN "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_library(${name} MODULE ${PLUGIN_SOURCES})
  velmoriax_see(${name} "${module}")
  target_link_libraries(${name} PRIVATE ${PLUGIN_LIBRARIES})
  target_compile_options(${name} PRIVATE ${VELMORIAX_WARNINGS})
  set_target_properties(${name} PROPERTIES PREFIX "" NO_SONAME ON LIBRARY_OUTPUT_DIRECTORY "${VELMORIAX_PLUGIN_FOLDER}")
endfunction()
