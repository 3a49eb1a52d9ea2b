# SPDX-License-Identifier: MIT
# The Debian packages, made by scripts/package.sh.
option(VENDEL_PACKAGE "Install what only the Debian package needs" OFF)
set(VENDEL_ARCHITECTURE "" CACHE STRING "The package's architecture, as Debian calls it")
if(NOT VENDEL_PACKAGE)
  return()
endif()

vendel_compressed(debian/changelog changelog.Debian ${CMAKE_INSTALL_DOCDIR})
vendel_compressed(../CHANGELOG.md changelog ${CMAKE_INSTALL_DOCDIR})
install(FILES debian/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
set(central_documents ${CMAKE_INSTALL_DATADIR}/doc/vendel-central)
vendel_compressed(debian/changelog central/changelog.Debian ${central_documents} central)
install(FILES debian/copyright DESTINATION ${central_documents} COMPONENT central)
install(FILES debian/lintian-overrides-central COMPONENT central
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME vendel-central)
install(FILES debian/lintian-overrides
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME vendel)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vendel)
set(CPACK_PACKAGE_CONTACT "The Vendel authors <authors@vendel.example>")
set(CPACK_DEBIAN_UNSPECIFIED_DESCRIPTION
  "cash register for a small shop or bar
Vendel shows the menu, puts articles and free amounts on the ticket, totals
it with its tax, and prints the receipt on a USB receipt printer or shows it
on the screen.

It keeps the history of sales, and computes the stock consumed from the
recipes of what was sold. Its launcher keeps a checked copy of the data for
each day.

Its back office shows the sales by hour, day, month and article, writes them
for the accountant, and takes over a menu from a spreadsheet.

The screen is French, or English. It suits screens of 1280 x 720 pixels and
more; smaller ones show the windows smaller.")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(CMAKE_CROSSCOMPILING)
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${VENDEL_ARCHITECTURE})
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_SYSROOT}/usr/${CMAKE_INSTALL_LIBDIR})
endif()
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Two packages: what names no component is the till's, so that a single till needs nothing of
# PostgreSQL.
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL Unspecified central)
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_NAME vendel)
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/debian/postinst)
set(CPACK_DEBIAN_CENTRAL_PACKAGE_NAME vendel-central)
set(CPACK_DEBIAN_CENTRAL_DESCRIPTION
  "several cash registers, one PostgreSQL database
It carries what each till of vendel sold into one PostgreSQL database, each
line once, with or without a network meanwhile.")
set(CPACK_DEBIAN_CENTRAL_PACKAGE_DEPENDS libqt5sql5-sqlite)
# Read or run by name, and so not found among the libraries.
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_DEPENDS
  "fonts-crosextra-carlito, fonts-inconsolata, libqt5sql5-sqlite, qttranslations5-l10n, xdg-utils")
# Only "vendel-gestion --central" reads a central book.
set(CPACK_DEBIAN_UNSPECIFIED_PACKAGE_SUGGESTS libqt5sql5-psql)
include(CPack)
