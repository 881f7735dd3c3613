# What `cmake --install` puts where. The program looks for its example, its guide and its templates beside itself, so it has
# a folder of its own, where links lead to the data that all architectures share; the commands on the path are links to it.
include(GNUInstallDirs)

set(NIVRA_PROGRAM_DIR "${CMAKE_INSTALL_LIBEXECDIR}/nivra-reader")
set(NIVRA_SHARED_DIR "${CMAKE_INSTALL_DATADIR}/nivra-reader")
set(NIVRA_DESKTOP_ID "org.nivra.NivraReader")

# nivra_install_link(<path under the prefix> <what it says>)
function(nivra_install_link link target)
  install(CODE "
    set(link \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${link}\")
    message(STATUS \"Installing: \${link} -> ${target}\")
    get_filename_component(folder \"\${link}\" DIRECTORY)
    file(MAKE_DIRECTORY \"\${folder}\")
    file(REMOVE \"\${link}\")
    file(CREATE_LINK \"${target}\" \"\${link}\" SYMBOLIC)
    list(APPEND CMAKE_INSTALL_MANIFEST_FILES \"\${CMAKE_INSTALL_PREFIX}/${link}\")")
endfunction()

install(TARGETS NivraViewer RUNTIME DESTINATION "${NIVRA_PROGRAM_DIR}")
install(TARGETS nivra-convert RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
nivra_install_link("${CMAKE_INSTALL_BINDIR}/NivraViewer" "../${NIVRA_PROGRAM_DIR}/NivraViewer")

install(DIRECTORY example/DE_H2 DESTINATION "${NIVRA_SHARED_DIR}/example")
install(FILES example/README.md example/nightly-report.json DESTINATION "${NIVRA_SHARED_DIR}/example")
install(PROGRAMS example/nightly-report.sh DESTINATION "${NIVRA_SHARED_DIR}/example")
install(DIRECTORY net_subassemblies DESTINATION "${NIVRA_SHARED_DIR}")
install(FILES docs/user-guide.md docs/file-formats.md DESTINATION "${NIVRA_SHARED_DIR}/docs")
install(DIRECTORY docs/images DESTINATION "${NIVRA_SHARED_DIR}/docs" FILES_MATCHING PATTERN "*.png")
foreach(folder example docs net_subassemblies)
  nivra_install_link("${NIVRA_PROGRAM_DIR}/${folder}" "../../${NIVRA_SHARED_DIR}/${folder}")
endforeach()

install(FILES "packaging/${NIVRA_DESKTOP_ID}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "packaging/${NIVRA_DESKTOP_ID}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "packaging/${NIVRA_DESKTOP_ID}.mime.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages"
        RENAME "${NIVRA_DESKTOP_ID}.xml")
set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
foreach(size 16 22 24 32 48 64 128 256)
  install(FILES "packaging/icons/${size}.png" DESTINATION "${icons}/${size}x${size}/apps" RENAME "${NIVRA_DESKTOP_ID}.png")
endforeach()
install(FILES resources/app/nivra.svg DESTINATION "${icons}/scalable/apps" RENAME "${NIVRA_DESKTOP_ID}.svg")
install(FILES packaging/man/NivraViewer.1 packaging/man/nivra-convert.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES CHANGELOG.md LICENSE DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/nivra-reader")

# The Debian package: cpack -G DEB in the build folder.
set(CPACK_PACKAGE_NAME "nivra-reader")
set(CPACK_PACKAGE_VENDOR "The Nivra Reader authors")
set(CPACK_PACKAGE_CONTACT "The Nivra Reader authors <nivra-reader@nivra.example>" CACHE STRING "Maintainer of the package")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "viewer for gas-transport network models")
set(CPACK_PACKAGE_DESCRIPTION
"Nivra Reader opens a workspace of geometry and scenario files, checks the
network and draws it as a zoomable schematic, the colours, widths, sizes,
symbols and labels of which follow the properties of the elements. Search by
pattern and formula, tables, layers, categories, findings and characteristic
maps of machines stand around the drawing.
.
On the command line it writes pictures and tables and checks networks without
a display. nivra-convert converts network files between their two forms and
makes cases of public network instances.")
set(CPACK_GENERATOR "DEB")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME "DEB-DEFAULT")
set(CPACK_DEBIAN_PACKAGE_RELEASE "0nivra1")
set(CPACK_DEBIAN_PACKAGE_SECTION "science")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Beside the libraries: letters for labels, symbols as SVG, the toolkit's own texts; TIFF and PostScript are for who wants
# them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, libqt5svg5, qttranslations5-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "poppler-utils, qt5-image-formats-plugins, shared-mime-info")
# What is stripped goes into a package of its own, out of which the crash log reads symbols and lines where it is installed.
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_SOURCE_DIR}/cmake/DebianDocs.cmake")
set(CPACK_NIVRA_SOURCE_DIR "${CMAKE_SOURCE_DIR}")
include(CPack)
