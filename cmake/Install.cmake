# SPDX-License-Identifier: GPL-3.0-or-later
# cmake --install, and the Debian package by CPack. The program finds its supplied data from its own place: the executable
# is <prefix>/lib/velmoriax/Velmoriax, the data <prefix>/share/velmoriax. What it writes goes to the user's folder, so an
# installed tree is only ever read, and removing it leaves the user's files.
set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(made "${PROJECT_BINARY_DIR}/packaging")
set(readable OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

install(TARGETS Velmoriax velmoriax_sound velmoriax_chart
        RUNTIME DESTINATION lib/velmoriax LIBRARY DESTINATION lib/velmoriax/plugins)
file(MAKE_DIRECTORY "${made}")
file(CREATE_LINK ../lib/velmoriax/Velmoriax "${made}/velmoriax" SYMBOLIC)
install(FILES "${made}/velmoriax" DESTINATION bin)

foreach(folder IN LISTS VELMORIAX_DATA_FOLDERS)
  if(IS_DIRECTORY "${PROJECT_SOURCE_DIR}/data/${folder}")
    install(DIRECTORY "data/${folder}" DESTINATION share/velmoriax FILE_PERMISSIONS ${readable})
  endif()
endforeach()
foreach(name IN LISTS VELMORIAX_DATA_FILES)
  install(FILES "data/${name}" DESTINATION share/velmoriax PERMISSIONS ${readable})
endforeach()

install(FILES "${packaging}/velmoriax.desktop" DESTINATION share/applications PERMISSIONS ${readable})
install(FILES "${packaging}/velmoriax.metainfo.xml" DESTINATION share/metainfo PERMISSIONS ${readable})
foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
  install(FILES "${packaging}/icons/velmoriax-${size}.png" DESTINATION "share/icons/hicolor/${size}x${size}/apps"
          RENAME velmoriax.png PERMISSIONS ${readable})
endforeach()
install(FILES "${packaging}/icons/velmoriax.svg" DESTINATION share/icons/hicolor/scalable/apps PERMISSIONS ${readable})
install(FILES "${packaging}/copyright" DESTINATION share/doc/velmoriax PERMISSIONS ${readable})

# Compressed without name and time, so that the same sources give the same bytes.
find_program(GZIP_PROGRAM gzip REQUIRED)
function(install_compressed source name destination)
  set(result "${made}/${name}.gz")
  add_custom_command(OUTPUT "${result}" COMMAND "${GZIP_PROGRAM}" -9nc "${source}" > "${result}"
                     DEPENDS "${source}" VERBATIM)
  add_custom_target("compressed_${name}" ALL DEPENDS "${result}")
  install(FILES "${result}" DESTINATION "${destination}" PERMISSIONS ${readable})
endfunction()
install_compressed("${packaging}/velmoriax.1" velmoriax.1 share/man/man1)
install_compressed("${packaging}/changelog" changelog share/doc/velmoriax)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velmoriax)
set(CPACK_PACKAGE_CONTACT "Velmoriax maintainers <hello@velmoriax.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "tarot, biorhythms and the sky of the day, from the tray")
set(CPACK_PACKAGE_DESCRIPTION
    "Velmoriax waits in the panel and answers from a date, a number, a name or a
profile: the major tarot card of today or any other day, the card of a number
or of a person's names, an oracle of four suits for four typed questions, the
four biorhythm cycles of one person or two, the Moon and the zodiac signs.

It works wholly on this computer: no network, no account. What it keeps lies in
small files of the user's own.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${PROJECT_HOMEPAGE_URL}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# What is linked is found by itself, and with it come the readers of JPEG and GIF and the X11 platform, which the toolkit
# loads at run time. The rest is what the program uses when it is there.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "timgm6mb-soundfont, fonts-ebgaramond | fonts-dejavu-core, qt6-wayland, xdg-utils")
include(CPack)
