# The CMake package that an installation holds: find_package(HLXTestUtilities), wherever the prefix is moved to.
include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/HLXTestUtilities)
set(package_files ${HLX_GENERATED_DIR}/package)

configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/HLXTestUtilitiesConfig.cmake.in ${package_files}/HLXTestUtilitiesConfig.cmake
    INSTALL_DESTINATION ${package_dir})
# Before 1.0 a minor version may change what a program is written against.
write_basic_package_version_file(${package_files}/HLXTestUtilitiesConfigVersion.cmake COMPATIBILITY SameMinorVersion)

install(EXPORT HLXTestUtilitiesTargets NAMESPACE HLXTestUtilities:: DESTINATION ${package_dir})
install(FILES ${package_files}/HLXTestUtilitiesConfig.cmake ${package_files}/HLXTestUtilitiesConfigVersion.cmake
    DESTINATION ${package_dir})
