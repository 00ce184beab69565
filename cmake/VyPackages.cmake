# A Debian package for each component: cpack -G DEB, or ./run package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vytriggerconfigwdg)
set(CPACK_PACKAGE_CONTACT "VyTriggerConfigWdg developers <developers@vytrigger.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has one of its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/VyRemoveRunPath.cmake)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)
foreach(library IN LISTS libraries)
  get_target_property(folder ${library} BINARY_DIR)
  list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${folder})
endforeach()
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON) # of exactly the same version
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_VIEWER_DEPENDS runtime)

set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libvytriggerconfigwdg${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "trigger configuration panel for machine-vision hosts
The Qt 5 widget in which a machine-vision host lets its users edit the trigger
settings of a smart camera or code reader, and the two host libraries through
which it reaches the device.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvytriggerconfigwdg-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "trigger configuration panel, development files
The headers of the panel and of the two host libraries, and what CMake and
pkg-config need to build with them.")

if(VYTRIGGER_VIEWER)
  list(APPEND CPACK_COMPONENTS_ALL viewer)
  set(CPACK_DEBIAN_VIEWER_PACKAGE_NAME vyviewer)
  set(CPACK_DEBIAN_VIEWER_PACKAGE_SECTION science)
  set(CPACK_DEBIAN_VIEWER_PACKAGE_RECOMMENDS qttranslations5-l10n)
  set(CPACK_DEBIAN_VIEWER_DESCRIPTION "reference host of the trigger configuration panel
Shows the trigger settings of GigE Vision smart cameras, or of a simulated one,
the traffic that editing them causes and all nodes of each camera, and keeps
settings in files. vycamera puts a simulated camera on the network.")
endif()

configure_file(cmake/debian/changelog.in changelog @ONLY)
execute_process(COMMAND gzip -9nf ${PROJECT_BINARY_DIR}/changelog COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  install(FILES cmake/debian/copyright ${PROJECT_BINARY_DIR}/changelog.gz
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME} COMPONENT ${component})
endforeach()
include(CPack)
