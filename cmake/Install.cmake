# Installing: libraries, headers in one include root, the CMake package and the pkg-config file.
include(CMakePackageConfigHelpers)
set(headers_to include/kestreltypes)

set(libraries)
foreach(name IN ITEMS Mox Xdk PlatformModels KestrelTypes)
  get_target_property(kind ${name} TYPE)
  get_target_property(imported ${name} IMPORTED)
  if(kind STREQUAL "SHARED_LIBRARY" AND NOT imported)
    list(APPEND libraries ${name})
    set_target_properties(${name} PROPERTIES INSTALL_RPATH "$ORIGIN")
    target_include_directories(${name} INTERFACE "$<INSTALL_INTERFACE:${headers_to}>")
    target_compile_features(${name} INTERFACE cxx_std_20)
  endif()
endforeach()
if(NOT libraries)
  return()
endif()

install(TARGETS ${libraries} EXPORT KestrelTypesTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
if(TARGET kestrel)
  set_target_properties(kestrel PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS kestrel RUNTIME DESTINATION bin)
endif()

# What the include roots of the build hold goes into one.  Tags, interfaces by number and modules are
# for bodies, and speak of the engines, which no library exports.
set(only_headers FILES_MATCHING PATTERN "*.h" PATTERN "*.tags.h" EXCLUDE
  PATTERN "*.reflect.h" EXCLUDE PATTERN "*.module.h" EXCLUDE
  REGEX "${kestrel_test_file}" EXCLUDE)
if(KESTREL_STANDIN)
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/platform/" DESTINATION ${headers_to} ${only_headers})
endif()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/src-includes/" DESTINATION ${headers_to} ${only_headers})
install(DIRECTORY "${KESTREL_GENERATED}/" DESTINATION ${headers_to} ${only_headers})

set(package_to ${CMAKE_INSTALL_LIBDIR}/cmake/KestrelTypes)
install(EXPORT KestrelTypesTargets NAMESPACE KestrelTypes:: DESTINATION ${package_to})
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/KestrelTypesConfig.cmake.in"
  "${CMAKE_BINARY_DIR}/KestrelTypesConfig.cmake" INSTALL_DESTINATION ${package_to})
write_basic_package_version_file("${CMAKE_BINARY_DIR}/KestrelTypesConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES "${CMAKE_BINARY_DIR}/KestrelTypesConfig.cmake"
  "${CMAKE_BINARY_DIR}/KestrelTypesConfigVersion.cmake" DESTINATION ${package_to})

set(pkgconfig_to ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY
  "${CMAKE_INSTALL_PREFIX}/${pkgconfig_to}" OUTPUT_VARIABLE prefix_from_pkgconfig)
configure_file("${PROJECT_SOURCE_DIR}/cmake/kestreltypes.pc.in"
  "${CMAKE_BINARY_DIR}/kestreltypes.pc" @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/kestreltypes.pc"
  DESTINATION ${pkgconfig_to})
