# Java compiler, JNI headers, and the function that builds one jar.
#
# FindJNI asks for a window toolkit that a headless JDK does not have, and nothing of the virtual machine is linked:
# only the headers of the JDK are needed.

find_package(Java 17 REQUIRED COMPONENTS Development)
file(REAL_PATH ${Java_JAVAC_EXECUTABLE} VX_JAVAC)
cmake_path(GET VX_JAVAC PARENT_PATH VX_JAVA_HOME)
cmake_path(GET VX_JAVA_HOME PARENT_PATH VX_JAVA_HOME)

add_library(vx_jni_headers INTERFACE)
target_include_directories(vx_jni_headers SYSTEM INTERFACE ${VX_JAVA_HOME}/include ${VX_JAVA_HOME}/include/linux)

# vx_java_module(NAME name SOURCES folder [NEEDS module-target...] [NATIVE_HEADERS])
# Compiles the Java sources below a folder into ${PROJECT_BINARY_DIR}/java/<name>/classes. With NATIVE_HEADERS the JNI
# headers of the natives are written to ${PROJECT_BINARY_DIR}/java/<name>/include, and the interface library vx_<name>_headers
# provides them: a native whose signature differs from the Java method does not compile.
function(vx_java_module)
  cmake_parse_arguments(arg "NATIVE_HEADERS" "NAME;SOURCES" "NEEDS" ${ARGN})
  set(root ${PROJECT_BINARY_DIR}/java/${arg_NAME})
  vx_glob(files ${arg_SOURCES}/*.java)
  set(path)
  set(stamps)
  foreach(module ${arg_NEEDS})
    list(APPEND path ${PROJECT_BINARY_DIR}/java/${module}/classes)
    list(APPEND stamps ${PROJECT_BINARY_DIR}/java/${module}/stamp)
  endforeach()
  list(JOIN path ":" path)
  set(options -g --release 17 -encoding UTF-8 -Xlint:all,-exports,-requires-automatic -Werror)
  if(path)
    list(APPEND options --module-path ${path})
  endif()
  if(arg_NATIVE_HEADERS)
    list(APPEND options -h ${root}/include)
  endif()
  list(JOIN files "\n" argument_file)
  file(GENERATE OUTPUT ${root}/sources.txt CONTENT "${argument_file}\n")
  add_custom_command(OUTPUT ${root}/stamp
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${root}/classes ${root}/include
    COMMAND ${VX_JAVAC} ${options} -d ${root}/classes @${root}/sources.txt
    COMMAND ${CMAKE_COMMAND} -E touch ${root}/stamp
    DEPENDS ${files} ${stamps} ${root}/sources.txt
    COMMENT "Compiling Java module ${arg_NAME}"
    VERBATIM)
  add_custom_target(vx_${arg_NAME}_classes ALL DEPENDS ${root}/stamp)
  if(arg_NATIVE_HEADERS)
    add_library(vx_${arg_NAME}_headers INTERFACE)
    target_include_directories(vx_${arg_NAME}_headers INTERFACE ${root}/include)
    target_link_libraries(vx_${arg_NAME}_headers INTERFACE vx_jni_headers)
    add_dependencies(vx_${arg_NAME}_headers vx_${arg_NAME}_classes)
  endif()
endfunction()

# vx_java_jar(NAME module LIBRARIES target...)
# Packs the classes of a module and native libraries into ${PROJECT_BINARY_DIR}/jars/vexane-<name>.jar, where the loader
# finds the libraries by their file names. It loads each library after its dependencies, so the system finds these by the
# sonames of the loaded libraries and does not search for files.
function(vx_java_jar)
  cmake_parse_arguments(arg "" "NAME" "LIBRARIES" ${ARGN})
  set(jar ${PROJECT_BINARY_DIR}/jars/vexane-${arg_NAME}.jar)
  set(root ${PROJECT_BINARY_DIR}/java/${arg_NAME})
  set(folder native/linux-${CMAKE_SYSTEM_PROCESSOR})
  set(copies)
  foreach(library ${arg_LIBRARIES})
    list(APPEND copies COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:${library}>
                ${root}/packed/${folder}/$<TARGET_LINKER_FILE_NAME:${library}>)
  endforeach()
  add_custom_command(OUTPUT ${jar}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${root}/packed
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/jars ${root}/packed/${folder}
    ${copies}
    COMMAND ${Java_JAR_EXECUTABLE} --create --file ${jar} --module-version ${PROJECT_VERSION}
            -C ${root}/classes . -C ${root}/packed .
    DEPENDS ${root}/stamp ${arg_LIBRARIES}
    COMMENT "Packing ${jar}"
    VERBATIM)
  add_custom_target(vx_${arg_NAME}_jar ALL DEPENDS ${jar})
  install(FILES ${jar} DESTINATION ${CMAKE_INSTALL_DATADIR}/java)
endfunction()

# vx_java_tests(SOURCES folder... NEEDS module... )
# Compiles the JUnit tests of all modules, on the class path so that tests can access package-private members, into
# ${PROJECT_BINARY_DIR}/java/tests/classes, and writes the class path that runs them to ${PROJECT_BINARY_DIR}/java/tests/path.
# The interface library vx_java_test_headers provides the JNI headers of the tests' own natives.
function(vx_java_tests)
  cmake_parse_arguments(arg "" "" "SOURCES;NEEDS" ${ARGN})
  set(junit)
  foreach(name junit-jupiter-api junit-jupiter-engine junit-jupiter-params junit-platform-commons
               junit-platform-console junit-platform-engine junit-platform-launcher junit-platform-reporting
               opentest4j opentest4j-reporting-events opentest4j-reporting-schema apiguardian-api picocli
               univocity-parsers)
    if(NOT EXISTS /usr/share/java/${name}.jar)
      message(FATAL_ERROR "The Java tests need JUnit 5: /usr/share/java/${name}.jar is missing (Debian package junit5)")
    endif()
    list(APPEND junit /usr/share/java/${name}.jar)
  endforeach()
  set(root ${PROJECT_BINARY_DIR}/java/tests)
  set(path ${junit})
  set(stamps)
  foreach(module ${arg_NEEDS})
    list(APPEND path ${PROJECT_BINARY_DIR}/java/${module}/classes)
    list(APPEND stamps ${PROJECT_BINARY_DIR}/java/${module}/stamp)
  endforeach()
  set(files)
  set(resources)
  foreach(folder ${arg_SOURCES})
    vx_glob(found ${folder}/java/*.java)
    list(APPEND files ${found})
    if(EXISTS ${folder}/resources)
      list(APPEND resources COMMAND ${CMAKE_COMMAND} -E copy_directory ${folder}/resources ${root}/classes)
    endif()
  endforeach()
  list(JOIN path ":" path)
  list(JOIN files "\n" argument_file)
  file(GENERATE OUTPUT ${root}/sources.txt CONTENT "${argument_file}\n")
  file(GENERATE OUTPUT ${root}/path CONTENT "${root}/classes:${path}\n")
  add_custom_command(OUTPUT ${root}/stamp
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${root}/classes ${root}/include
    COMMAND ${VX_JAVAC} -g --release 17 -encoding UTF-8 -Xlint:all,-processing,-path -Werror -cp ${path} -h ${root}/include
            -d ${root}/classes @${root}/sources.txt
    ${resources}
    COMMAND ${CMAKE_COMMAND} -E touch ${root}/stamp
    DEPENDS ${files} ${stamps} ${root}/sources.txt
    COMMENT "Compiling Java tests"
    VERBATIM)
  add_custom_target(vx_java_test_classes ALL DEPENDS ${root}/stamp)
  add_library(vx_java_test_headers INTERFACE)
  target_include_directories(vx_java_test_headers INTERFACE ${root}/include)
  target_link_libraries(vx_java_test_headers INTERFACE vx_jni_headers)
  add_dependencies(vx_java_test_headers vx_java_test_classes)
endfunction()
