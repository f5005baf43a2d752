# SPDX-License-Identifier: GPL-3.0-or-later
# The supplied data in build/app/, beside the executable.

# Supplied data are copied when they are newer; the files that the program makes there itself are never touched. The
# defaults of the profile files are made by the program at its first start, so they are left out.
set(VELMORIAX_DATA_FOLDERS imagenes imagenes2 imagenes3 amenores textos mtextos lunagif signos sigtxt fechas-db help)
set(VELMORIAX_DATA_FILES boop.wav Trumpet.wav Url.wav "Are You Lonesome Tonight.mid" velmoriax.ini Velmoriax.html)

add_custom_target(program_folder ALL
  COMMAND "${CMAKE_COMMAND}" "-DFROM=${PROJECT_SOURCE_DIR}/data" "-DTO=${PROJECT_BINARY_DIR}/app"
          "-DFOLDERS=${VELMORIAX_DATA_FOLDERS}" "-DFILES=${VELMORIAX_DATA_FILES}"
          -P "${PROJECT_SOURCE_DIR}/cmake/CopyData.cmake"
  VERBATIM COMMENT "Putting the supplied data beside the program")
