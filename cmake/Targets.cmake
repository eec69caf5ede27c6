# The few functions by which targets are made, so that each of them reads as one line.

# Unit tests, and the language that they share, stand beside their files: ScalarTest.cpp,
# TestLanguage.h.
set(kestrel_test_file "/([^/]*Test|Test[A-Z][^/]*)\\.(cpp|h)$")

# Sets `out` to the sources below the folders, in the order of the folders and by name in each, but
# not those of tests.
function(kestrel_sources out)
  set(all)
  foreach(folder IN LISTS ARGN)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.cpp")
    list(FILTER found EXCLUDE REGEX "${kestrel_test_file}")
    list(APPEND all ${found})
  endforeach()
  set(${out} ${all} PARENT_SCOPE)
endfunction()

# Makes library `name` of kind SHARED or STATIC from SOURCES, linked with LINK (for all who use it)
# and LINK_OWN (for itself alone).  Without any source it is an interface library, so that a folder
# may be empty.
function(kestrel_library name kind)
  cmake_parse_arguments(lib "" "" "SOURCES;LINK;LINK_OWN" ${ARGN})
  if(NOT lib_SOURCES)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE ${lib_LINK})
    return()
  endif()
  add_library(${name} ${kind} ${lib_SOURCES})
  target_link_libraries(${name} PUBLIC ${lib_LINK} PRIVATE ${lib_LINK_OWN} house)
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON
    UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  if(kind STREQUAL "SHARED")
    # Calls inside of a library are bound when it is linked: nobody replaces a function of ours.
    target_link_options(${name} PRIVATE -Wl,-z,defs -Wl,-Bsymbolic-functions)
  endif()
endfunction()

# Compiles the runtime's headers once for library `name`: generated sources are short and many, and
# all of them begin with those headers.
function(kestrel_precompile_runtime name)
  get_target_property(kind ${name} TYPE)
  if(NOT kind STREQUAL "INTERFACE_LIBRARY")
    target_precompile_headers(${name} PRIVATE <Mox/Mox.h>)
  endif()
endfunction()

# Has the sources compiled `count` at a time, as one text each; `name` is that of the groups.
function(kestrel_group name count)
  set(number 0)
  foreach(source IN LISTS ARGN)
    math(EXPR group "${number} / ${count}")
    set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "${name}${group}")
    math(EXPR number "${number} + 1")
  endforeach()
endfunction()

# Lets KESTREL_TOGETHER compile the hand-written sources of the targets together: most of what a file
# costs is what it shares with its neighbours.  So what stands in unnamed namespaces has names of its
# own among them, and where KESTREL_TOGETHER is off, as in `release`, each file still has to include
# what it needs.
function(kestrel_together)
  if(NOT KESTREL_TOGETHER)
    return()
  endif()
  foreach(name IN LISTS ARGN)
    if(TARGET ${name})
      set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
      get_target_property(sources ${name} SOURCES)
      list(FILTER sources EXCLUDE REGEX "^${CMAKE_BINARY_DIR}/")
      kestrel_group(${name} 16 ${sources})
    endif()
  endforeach()
endfunction()

# Makes program `name` from SOURCES, linked with LINK; without any source there is none.
function(kestrel_program name)
  cmake_parse_arguments(program "" "" "SOURCES;LINK" ${ARGN})
  if(program_SOURCES)
    add_executable(${name} ${program_SOURCES})
    target_link_libraries(${name} PRIVATE ${program_LINK} house)
  endif()
endfunction()
