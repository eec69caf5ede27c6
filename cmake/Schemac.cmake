# The schema compiler, built natively whatever the rest is built for, and what it generates.
#
# Which files a schema gives is asked of the compiler itself, so it is built while configuring, in a
# build tree of its own; a changed schema, template or source of the compiler configures again.
set(KESTREL_GENERATED "${CMAKE_BINARY_DIR}/generated")
set(schemac_program "${CMAKE_BINARY_DIR}/bin/schemac")
set(schemac_templates "${PROJECT_SOURCE_DIR}/tools/schemac/templates")
set(schemac_configure "${CMAKE_COMMAND}" -S "${PROJECT_SOURCE_DIR}/tools/schemac"
  -B "${CMAKE_BINARY_DIR}/native" -G "${CMAKE_GENERATOR}"
  "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}" "-DCMAKE_UNITY_BUILD=${KESTREL_TOGETHER}"
  -DCMAKE_UNITY_BUILD_BATCH_SIZE=13
  "-DCMAKE_RUNTIME_OUTPUT_DIRECTORY=${CMAKE_BINARY_DIR}/bin")
set(schemac_build "${CMAKE_COMMAND}" --build "${CMAKE_BINARY_DIR}/native" --target schemac)

file(GLOB schemac_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tools/schemac/*.cpp"
                                            "${PROJECT_SOURCE_DIR}/tools/schemac/*.h")
list(FILTER schemac_sources EXCLUDE REGEX "${kestrel_test_file}")
file(GLOB_RECURSE schemac_template_files CONFIGURE_DEPENDS "${schemac_templates}/*")

add_custom_command(OUTPUT "${schemac_program}"
  COMMAND ${schemac_configure} --log-level=WARNING
  COMMAND ${schemac_build}
  DEPENDS ${schemac_sources} "${PROJECT_SOURCE_DIR}/tools/schemac/CMakeLists.txt"
  COMMENT "Building the schema compiler" VERBATIM)
add_custom_target(schemac DEPENDS "${schemac_program}")

# Builds the compiler now, once for a configuring run; sets `problem` to what went wrong.
function(kestrel_build_schemac problem)
  get_property(text GLOBAL PROPERTY kestrel_schemac_problem)
  if(NOT DEFINED text)
    message(STATUS "Building the schema compiler")
    execute_process(COMMAND ${schemac_configure} RESULT_VARIABLE result
      OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result EQUAL 0)
      execute_process(COMMAND ${schemac_build} RESULT_VARIABLE result
        OUTPUT_VARIABLE output ERROR_VARIABLE output)
    endif()
    set(text "")
    if(NOT result EQUAL 0)
      set(text "the schema compiler can't be built:\n${output}")
    endif()
    set_property(GLOBAL PROPERTY kestrel_schemac_problem "${text}")
  endif()
  set(${problem} "${text}" PARENT_SCOPE)
endfunction()

# Sets `out` to a source that can't be made and says why when it is built, so that a mistake in a
# schema stops what depends on it and nothing else.
function(kestrel_generate_nothing out name problem)
  message(WARNING "Nothing is generated for ${name}: ${problem}")
  set(log "${CMAKE_BINARY_DIR}/generated-${name}.log")
  file(WRITE "${log}" "${problem}")
  set(source "${CMAKE_BINARY_DIR}/generated-${name}.cpp")
  add_custom_command(OUTPUT "${source}"
    COMMAND "${CMAKE_COMMAND}" -E cat "${log}"
    COMMAND "${CMAKE_COMMAND}" -E false
    COMMENT "Generating ${name}" VERBATIM)
  set(${out} "${source}" PARENT_SCOPE)
endfunction()

# Generates code from the schemas SCHEMAS and those below FOLDERS, and sets `out` to the sources
# among the files.  INTO names the include root that they go to; with MOX_TYPE the table of type
# names is generated too.  Nothing is generated from schemas that say something else than LOCK.
function(kestrel_generate out)
  cmake_parse_arguments(arg "MOX_TYPE" "NAME;INTO;LOCK" "FOLDERS;SCHEMAS" ${ARGN})
  set(${out} "" PARENT_SCOPE)
  set(schemas ${arg_SCHEMAS})
  foreach(folder IN LISTS arg_FOLDERS)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.schema")
    list(APPEND schemas ${found})
  endforeach()
  if(NOT schemas)
    return()
  endif()
  set(into "${KESTREL_GENERATED}")
  if(arg_INTO)
    set(into "${arg_INTO}")
  endif()
  set(options --out "${into}" --templates "${schemac_templates}")
  if(arg_MOX_TYPE)
    list(APPEND options --mox-type)
  endif()
  if(arg_LOCK)
    list(APPEND options --lock "${arg_LOCK}")
  endif()
  set_property(DIRECTORY "${PROJECT_SOURCE_DIR}" APPEND PROPERTY
    CMAKE_CONFIGURE_DEPENDS ${schemas} ${schemac_sources} ${schemac_template_files})

  kestrel_build_schemac(problem)
  if(NOT problem)
    execute_process(COMMAND "${schemac_program}" --list ${options} ${schemas}
      RESULT_VARIABLE result OUTPUT_VARIABLE files ERROR_VARIABLE problem)
  endif()
  if(problem OR NOT result EQUAL 0)
    kestrel_generate_nothing(source ${arg_NAME} "${problem}")
    set(${out} "${source}" PARENT_SCOPE)
    return()
  endif()
  string(REGEX MATCHALL "[^\n]+" files "${files}")

  # The stamp is always new, the files only when they changed: what depends on an unchanged file
  # isn't built again.
  set(stamp "${CMAKE_BINARY_DIR}/generated-${arg_NAME}.stamp")
  add_custom_command(OUTPUT "${stamp}" BYPRODUCTS ${files}
    COMMAND "${schemac_program}" ${options} ${schemas}
    COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
    DEPENDS ${schemas} ${schemac_template_files} "${schemac_program}" ${arg_LOCK}
    COMMENT "Generating ${arg_NAME}" VERBATIM)

  set(headers ${files})
  list(FILTER headers INCLUDE REGEX "\\.h$")
  if(into STREQUAL KESTREL_GENERATED)
    set_property(GLOBAL APPEND PROPERTY kestrel_generated_headers ${headers})
    set_property(GLOBAL APPEND PROPERTY kestrel_generated_stamps "${stamp}")
  endif()
  list(FILTER files INCLUDE REGEX "\\.cpp$")
  # Sources of access by number are short and many, and all of them begin with the same templates.
  set(short_sources ${files})
  list(FILTER short_sources INCLUDE REGEX "\\.reflect\\.cpp$")
  kestrel_group(${arg_NAME}Reflect 8 ${short_sources})
  # The stamp is among the sources to make the whole of the files come before what includes them.
  set(${out} "${stamp}" ${files} PARENT_SCOPE)
endfunction()
