# The delivered data beside the programs, as `init` copies them: the tree under data/ and the climate
# files, which are made from the tables of monthly normals.
set(delivered ${CMAKE_BINARY_DIR}/delivered)
file(GLOB_RECURSE delivered_sources CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/data/MWTHARM/* ${PROJECT_SOURCE_DIR}/data/PROJECT/*)
file(GLOB normals CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/normals/*.txt)

set(make_climates)
foreach(table IN LISTS normals)
    list(APPEND make_climates COMMAND verandis-climate normals ${table} ${delivered}/CLIM --quiet)
endforeach()

add_custom_command(
    OUTPUT ${delivered}/stamp
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${delivered}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${delivered}/CLIM ${delivered}/WTHARM
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data/MWTHARM ${delivered}/MWTHARM
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data/PROJECT ${delivered}/PROJECT
    ${make_climates}
    COMMAND ${CMAKE_COMMAND} -E touch ${delivered}/stamp
    DEPENDS verandis-climate ${delivered_sources} ${normals}
    COMMENT "Making the delivered data"
    VERBATIM)
add_custom_target(delivered ALL DEPENDS ${delivered}/stamp)
