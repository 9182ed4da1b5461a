# What `cmake --install` puts down, by component: Shell, the shell with its libraries; Plugins, the sample utilities,
# where the shell looks for them when the prefix is /usr/local/arvo; Sdk, all that an outside developer needs to build
# a plug-in: headers, the two shared libraries, a CMake package and an example.

include(CMakePackageConfigHelpers)

set(sdk_include "${CMAKE_INSTALL_INCLUDEDIR}/mainframe")
set(sdk_package "${CMAKE_INSTALL_LIBDIR}/cmake/mainframe")

set(plugins settingAbout settingBacklight iptools)
set_target_properties(mainframe widgets services common ${plugins}
    PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
foreach(target widgets common)
    target_include_directories(${target} INTERFACE "$<INSTALL_INTERFACE:${sdk_include}>")
endforeach()

install(TARGETS mainframe services widgets common COMPONENT Shell)
install(DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lang" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/fonts" DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Shell)

install(TARGETS ${plugins} DESTINATION plugins COMPONENT Plugins)

install(TARGETS widgets common plugininterface EXPORT mainframeTargets COMPONENT Sdk)
install(EXPORT mainframeTargets NAMESPACE mainframe:: DESTINATION "${sdk_package}" COMPONENT Sdk)
install(DIRECTORY platform/widgets DESTINATION "${sdk_include}" COMPONENT Sdk FILES_MATCHING PATTERN "*.h")
install(DIRECTORY common/source/ DESTINATION "${sdk_include}" COMPONENT Sdk
    FILES_MATCHING PATTERN "*.h" PATTERN "xmlfile.h" EXCLUDE)
install(FILES platform/files/globalsetting.h DESTINATION "${sdk_include}/files" COMPONENT Sdk)
install(FILES pluginmanager/source/utilinterface.h DESTINATION "${sdk_include}" COMPONENT Sdk)
install(DIRECTORY cmake/sdk/example-plugin DESTINATION "${CMAKE_INSTALL_DATADIR}/mainframe" COMPONENT Sdk)

configure_package_config_file(cmake/sdk/mainframeConfig.cmake.in "${CMAKE_BINARY_DIR}/mainframeConfig.cmake"
    INSTALL_DESTINATION "${sdk_package}")
write_basic_package_version_file("${CMAKE_BINARY_DIR}/mainframeConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_BINARY_DIR}/mainframeConfig.cmake" "${CMAKE_BINARY_DIR}/mainframeConfigVersion.cmake"
    DESTINATION "${sdk_package}" COMPONENT Sdk)
