# Everything that is of use to others, in components:
#   runtime      the panel library and, where they are ours, the two host libraries
#   development  their headers, and what CMake and pkg-config need to find them
#   viewer       the viewer and the simulated camera, where they are built
# All of it finds its parts relative to itself and can be moved.
include(CMakePackageConfigHelpers)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/VyTriggerConfigWdg)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/VyTriggerConfigWdg)

set(libraries VyTriggerConfigWdg)
install(FILES panel/VyTriggerConfigWdg.h DESTINATION ${headers}/panel COMPONENT development)
if(NOT VYTRIGGER_EXTERNAL_HOST)
  list(APPEND libraries VyViewerCore VyCommonGUI)
  foreach(library VyViewerCore VyCommonGUI)
    get_target_property(public_headers ${library} VY_PUBLIC_HEADERS)
    list(TRANSFORM public_headers PREPEND host/${library}/)
    install(FILES ${public_headers} DESTINATION ${headers}/${library} COMPONENT development)
  endforeach()
endif()
set_target_properties(${libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS ${libraries} EXPORT VyTriggerConfigWdg
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development)
install(EXPORT VyTriggerConfigWdg FILE VyTriggerConfigWdgTargets.cmake DESTINATION ${package} COMPONENT development)

configure_package_config_file(cmake/VyTriggerConfigWdgConfig.cmake.in
  ${PROJECT_BINARY_DIR}/VyTriggerConfigWdgConfig.cmake
  INSTALL_DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VyTriggerConfigWdgConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/VyTriggerConfigWdgConfig.cmake
  ${PROJECT_BINARY_DIR}/VyTriggerConfigWdgConfigVersion.cmake
  DESTINATION ${package} COMPONENT development)

file(RELATIVE_PATH from_package_to_include ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_FULL_INCLUDEDIR})
list(TRANSFORM libraries PREPEND -l OUTPUT_VARIABLE link_libraries)
list(JOIN link_libraries " " link_libraries)
configure_file(cmake/VyTriggerConfigWdg.pc.in VyTriggerConfigWdg.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/VyTriggerConfigWdg.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(VYTRIGGER_VIEWER)
  file(RELATIVE_PATH from_programs_to_libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(vyviewer vycamera PROPERTIES INSTALL_RPATH "$ORIGIN/${from_programs_to_libraries}")
  install(TARGETS vyviewer vycamera RUNTIME COMPONENT viewer)
  install(FILES viewer/vyviewer.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT viewer)
  set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES viewer/icons/vyviewer.svg DESTINATION ${icons}/scalable/apps COMPONENT viewer)
  foreach(size 16 32 48 128)
    install(FILES viewer/icons/vyviewer-${size}.png RENAME vyviewer.png
      DESTINATION ${icons}/${size}x${size}/apps COMPONENT viewer)
  endforeach()
endif()

if(PROJECT_IS_TOP_LEVEL)
  include(VyPackages)
endif()
