# The panel library with its one header and, where they are ours, the two host libraries with theirs; all of it
# found again by find_package(VyTriggerConfigWdg).
include(CMakePackageConfigHelpers)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/VyTriggerConfigWdg)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/VyTriggerConfigWdg)

set(libraries VyTriggerConfigWdg)
install(FILES panel/VyTriggerConfigWdg.h DESTINATION ${headers}/panel)
if(NOT VYTRIGGER_EXTERNAL_HOST)
  list(APPEND libraries VyViewerCore VyCommonGUI)
  foreach(library VyViewerCore VyCommonGUI)
    get_target_property(public_headers ${library} VY_PUBLIC_HEADERS)
    list(TRANSFORM public_headers PREPEND host/${library}/)
    install(FILES ${public_headers} DESTINATION ${headers}/${library})
  endforeach()
endif()
set_target_properties(${libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS ${libraries} EXPORT VyTriggerConfigWdg)
install(EXPORT VyTriggerConfigWdg FILE VyTriggerConfigWdgTargets.cmake DESTINATION ${package})

configure_package_config_file(cmake/VyTriggerConfigWdgConfig.cmake.in
  ${PROJECT_BINARY_DIR}/VyTriggerConfigWdgConfig.cmake
  INSTALL_DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VyTriggerConfigWdgConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/VyTriggerConfigWdgConfig.cmake
  ${PROJECT_BINARY_DIR}/VyTriggerConfigWdgConfigVersion.cmake
  DESTINATION ${package})
