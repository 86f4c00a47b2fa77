# The libraries for users: their exports, and the files that are installed for building on them.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# vx_public_headers(result FOLDERS folder... [HEADERS file...])
# The headers of the given folders that are installed: those that mark something with VX_API, those listed, and those of
# the same folders that these include. Computed at every configuration.
function(vx_public_headers result)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS;HEADERS")
  list(TRANSFORM arg_FOLDERS REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/\\1/*.h" OUTPUT_VARIABLE patterns)
  list(TRANSFORM arg_HEADERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE open)
  vx_glob(headers ${patterns})
  foreach(header ${headers})
    file(STRINGS ${header} marks REGEX VX_API)
    if(marks)
      list(APPEND open ${header})
    endif()
  endforeach()
  set(public)
  while(open)
    list(POP_FRONT open header)
    if(header IN_LIST public OR NOT header IN_LIST headers)
      continue()
    endif()
    list(APPEND public ${header})
    file(STRINGS ${header} includes REGEX "^#include \"")
    list(TRANSFORM includes REPLACE "#include \"(.*)\".*" "${PROJECT_SOURCE_DIR}/\\1")
    list(APPEND open ${includes})
  endwhile()
  set(${result} ${public} PARENT_SCOPE)
endfunction()

# vx_library(name DESCRIPTION text SOURCES file... FOLDERS folder... NAMESPACES namespace... PACKAGE java-package
#            [HEADERS file...] [NEEDS name...])
# The shared library vx<name>, which users link as vexane::<name>, and its pkg-config file. It exports the natives of a
# package below com.vexane and everything in the namespaces that is marked with VX_API. FOLDERS contain its headers; HEADERS
# adds public ones in which there is nothing to mark.
function(vx_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESCRIPTION;PACKAGE" "SOURCES;FOLDERS;NAMESPACES;HEADERS;NEEDS")
  set(target vx${name})
  set(description ${arg_DESCRIPTION})
  set(package ${arg_PACKAGE})
  list(TRANSFORM arg_NEEDS PREPEND vx OUTPUT_VARIABLE needed)
  add_library(${target} SHARED ${arg_SOURCES})
  add_library(vexane::${name} ALIAS ${target})
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${name} VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_compile_definitions(${target} PRIVATE VX_JAVA_PACKAGE=${package})
  target_link_libraries(${target} PUBLIC ${needed} PRIVATE vx_options)

  vx_public_headers(headers FOLDERS ${arg_FOLDERS} HEADERS ${arg_HEADERS})
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${headers})

  set(patterns)
  foreach(namespace ${arg_NAMESPACES})
    foreach(prefix "" "typeinfo?for?" "typeinfo?name?for?" "vtable?for?" "VTT?for?" "non-virtual?thunk?to?")
      string(APPEND patterns "      ${prefix}${namespace}::*;\n")
    endforeach()
  endforeach()
  set(map ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/exports.map.in ${map} @ONLY)
  target_link_options(${target} PRIVATE -Wl,--version-script=${map})
  set_target_properties(${target} PROPERTIES LINK_DEPENDS ${map})

  install(TARGETS ${target} EXPORT vexane-graphics3d
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/vexane-graphics3d)
  set(required)
  foreach(need ${arg_NEEDS})
    string(APPEND required " vexane-${need} = ${PROJECT_VERSION}")
  endforeach()
  set(up /)
  cmake_path(RELATIVE_PATH up BASE_DIRECTORY /${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${CMAKE_CURRENT_BINARY_DIR}/vexane-${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vexane-${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# vx_companion(name DESCRIPTION text SOURCES file...)
# A library on top of the model, with the Java module com.vexane.<name> in java/, its natives, and the jar of both.
function(vx_companion name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESCRIPTION" "SOURCES")
  vx_java_module(NAME ${name} SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/java/src/main/java NEEDS graphics3d NATIVE_HEADERS)
  vx_library(${name} DESCRIPTION ${arg_DESCRIPTION} SOURCES ${arg_SOURCES} FOLDERS ${name} NAMESPACES vx${name}
    PACKAGE ${name} NEEDS graphics3d)
  target_link_libraries(vx${name} PRIVATE vx_${name}_headers)
  vx_java_jar(NAME ${name} LIBRARIES vx${name})
endfunction()

# The CMake package by which users find all libraries.
function(vx_install_package)
  set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/vexane-graphics3d)
  set(files ${PROJECT_BINARY_DIR}/vexane-graphics3d-config)
  configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/vexane-graphics3d-config.cmake.in ${files}.cmake
    INSTALL_DESTINATION ${folder})
  write_basic_package_version_file(${files}-version.cmake COMPATIBILITY SameMinorVersion)
  install(FILES ${files}.cmake ${files}-version.cmake DESTINATION ${folder})
  install(EXPORT vexane-graphics3d NAMESPACE vexane:: FILE vexane-graphics3d-targets.cmake DESTINATION ${folder})
endfunction()
