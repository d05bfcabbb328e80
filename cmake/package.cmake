# The Debian package: `cpack` in the build folder. The libraries that it needs are read from the
# programs themselves.
set(VERANDIS_MAINTAINER "Verandis maintainers <verandis@localhost>" CACHE STRING
    "Who answers for the package, as \"Name <address>\"")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME verandis)
set(CPACK_PACKAGE_VENDOR Verandis)
set(CPACK_PACKAGE_CONTACT "${VERANDIS_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design tool for buildings with a glazed space")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Words of the toolkit's own buttons, and a font for pictures that are drawn without a screen.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Verandis compares designs of conservatories, winter gardens, covered streets
and atria at the sketch stage: how warm the glazed space becomes by itself,
month by month, and what it costs to keep it above a wanted temperature.

Four plan shapes with four cases each, libraries of windows and walls, climates
of fourteen places in northern and central Europe, in English and Swedish; a
desktop program, a command line program, and a maker of climate files.")
include(CPack)
