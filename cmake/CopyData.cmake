# SPDX-License-Identifier: GPL-3.0-or-later
# Copies the supplied data from FROM to TO: the FOLDERS and the FILES, and nothing else.
foreach(folder IN LISTS FOLDERS)
  if(EXISTS "${FROM}/${folder}")
    file(COPY "${FROM}/${folder}" DESTINATION "${TO}")
  endif()
endforeach()
foreach(name IN LISTS FILES)
  if(EXISTS "${FROM}/${name}")
    file(COPY "${FROM}/${name}" DESTINATION "${TO}")
  endif()
endforeach()
