# What `cmake --install` puts where; the package holds the same.
find_program(GZIP gzip REQUIRED)

set(share ${CMAKE_INSTALL_DATADIR})
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(programs verandis-cli verandis-climate)
if(TARGET verandis)
    list(APPEND programs verandis)
endif()

# The bare name and time are left out of the compressed files: the same source gives the same bytes.
function(install_compressed source name destination)
    set(compressed ${CMAKE_BINARY_DIR}/compressed/${name}.gz)
    add_custom_command(
        OUTPUT ${compressed}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/compressed
        COMMAND ${GZIP} -9nc ${source} > ${compressed}
        DEPENDS ${source}
        COMMENT "Compressing ${name}"
        VERBATIM)
    add_custom_target(compressed-${name} ALL DEPENDS ${compressed})
    install(FILES ${compressed} DESTINATION ${destination})
endfunction()

install(TARGETS ${programs})
install(DIRECTORY ${delivered}/CLIM ${delivered}/MWTHARM ${delivered}/PROJECT ${delivered}/WTHARM
    DESTINATION ${share}/verandis/data)
foreach(program IN LISTS programs)
    install_compressed(${PROJECT_SOURCE_DIR}/docs/${program}.1 ${program}.1
        ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
install_compressed(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog ${CMAKE_INSTALL_DOCDIR})
install(FILES ${packaging}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(TARGET verandis)
    install(FILES ${packaging}/verandis.desktop DESTINATION ${share}/applications)
    install(FILES ${packaging}/verandis.metainfo.xml DESTINATION ${share}/metainfo)
    install(FILES ${packaging}/verandis.svg DESTINATION ${share}/icons/hicolor/scalable/apps)
    foreach(size 16 32 48 128 256)
        install(FILES ${packaging}/icons/verandis-${size}.png
            DESTINATION ${share}/icons/hicolor/${size}x${size}/apps RENAME verandis.png)
    endforeach()
endif()
