# cmake --install build --prefix DIR: libraries, public headers and the package QvDocControls.
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/QvDocControls)

set(exported QvDocContract QvDocServices)
foreach(target QvDocRules QvDocControls QvDocContractTests)
    if(TARGET ${target})
        list(APPEND exported ${target})
    endif()
endforeach()
set_target_properties(${exported} PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS ${exported} EXPORT QvDocControlsTargets)
install(EXPORT QvDocControlsTargets NAMESPACE QvDocControls:: DESTINATION ${package_folder})

file(STRINGS cmake/public_headers.txt patterns REGEX "^[^#]")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS cmake/public_headers.txt)
foreach(pattern ${patterns})
    file(GLOB headers CONFIGURE_DEPENDS src/${pattern})
    get_filename_component(folder ${pattern} DIRECTORY)
    install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/QvDocControls/${folder})
endforeach()

configure_package_config_file(cmake/QvDocControlsConfig.cmake.in ${CMAKE_BINARY_DIR}/QvDocControlsConfig.cmake
                              INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/QvDocControlsConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/QvDocControlsConfig.cmake ${CMAKE_BINARY_DIR}/QvDocControlsConfigVersion.cmake
        DESTINATION ${package_folder})
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
