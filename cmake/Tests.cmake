# The tests: one program a folder, one entry of ctest a program.
#
# Suites named *LongTest, in files named *LongTest.cpp, get an entry of their own with the label
# `long`.  Every program writes its results to test-results/<entry>.xml, from which
# tools/check/run-tests counts.
set(KESTREL_GOOGLETEST "/usr/src/googletest" CACHE PATH "The sources of GoogleTest")
set(googletest "${KESTREL_GOOGLETEST}/googletest")
set(googlemock "${KESTREL_GOOGLETEST}/googlemock")
if(NOT EXISTS "${googletest}/src/gtest-all.cc")
  message(FATAL_ERROR "no GoogleTest sources in ${KESTREL_GOOGLETEST}: install Debian's package "
    "googletest, name another place with -DKESTREL_GOOGLETEST=, or use -DKESTREL_TESTS=OFF")
endif()

# From source, so that it has the word size, the compiler and the sanitizers of the build.
add_library(gtest STATIC EXCLUDE_FROM_ALL
  "${googletest}/src/gtest-all.cc" "${googletest}/src/gtest_main.cc"
  "${googlemock}/src/gmock-all.cc")
target_include_directories(gtest SYSTEM PUBLIC "${googletest}/include" "${googlemock}/include")
target_include_directories(gtest PRIVATE "${googletest}" "${googlemock}")
target_link_libraries(gtest PUBLIC Threads::Threads)
# Others' code isn't what is tested: quick to compile counts.
target_compile_options(gtest PRIVATE -O0 -g0 $<$<CONFIG:Asan>:-fno-sanitize=all>)

# What each test sees; in one place, because a shared precompiled header asks for equal options.
add_library(testing INTERFACE)
target_link_libraries(testing INTERFACE gtest house)
# What is tested is optimised as the preset says; the tests' own text takes longer to optimise than to
# run.
target_compile_options(testing INTERFACE -O0)
target_compile_definitions(testing INTERFACE
  "KESTREL_SOURCE_DIR=\"${PROJECT_SOURCE_DIR}\"" "KESTREL_BINARY_DIR=\"${CMAKE_BINARY_DIR}\"")

file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/precompiled.cpp"
  CONTENT "// Nothing: owns the tests' precompiled header.\n")
add_library(precompiled OBJECT EXCLUDE_FROM_ALL "${CMAKE_BINARY_DIR}/precompiled.cpp")
target_link_libraries(precompiled PRIVATE testing)
target_precompile_headers(precompiled PRIVATE
  <gtest/gtest.h> <functional> <map> <memory> <sstream> <string> <vector> <Mox/Mox.h>)

# Enters program `name` with the suites that `filter` selects as `entry`.
function(kestrel_test_entry entry name filter)
  add_test(NAME ${entry} COMMAND ${name} "--gtest_filter=${filter}"
    "--gtest_output=xml:${CMAKE_BINARY_DIR}/test-results/${entry}.xml")
  set_tests_properties(${entry} PROPERTIES TIMEOUT 900 ${ARGN})
endfunction()

# Makes the test program `name` of all tests below FOLDERS, linked with LINK; of a folder given to
# FLAT, only the files in it.  Without any test there is no program.
function(kestrel_tests name)
  cmake_parse_arguments(tests "" "" "FOLDERS;FLAT;LINK" ${ARGN})
  set(sources)
  foreach(folder IN LISTS tests_FOLDERS tests_FLAT)
    set(glob GLOB_RECURSE)
    if(folder IN_LIST tests_FLAT)
      set(glob GLOB)
    endif()
    file(${glob} found CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.cpp")
    # In a folder of tests every file is one of them; beside other files the name tells.
    if(NOT folder MATCHES "^tests(/|$)")
      list(FILTER found INCLUDE REGEX "${kestrel_test_file}")
    endif()
    list(APPEND sources ${found})
  endforeach()
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE testing ${tests_LINK})
  target_precompile_headers(${name} REUSE_FROM precompiled)
  kestrel_test_entry(${name} ${name} "-*LongTest.*")
  list(FILTER sources INCLUDE REGEX "LongTest\\.cpp$")
  if(sources)
    kestrel_test_entry(${name}_long ${name} "*LongTest.*" LABELS long)
  endif()
endfunction()

# A schema with every shape, compiled for the tests of the frame and of what stands on it.
set(every_shape)
if(EXISTS "${PROJECT_SOURCE_DIR}/tests/everyShape.schema")
  kestrel_generate(generated NAME EveryShape INTO "${CMAKE_BINARY_DIR}/generated-tests"
    SCHEMAS "${PROJECT_SOURCE_DIR}/tests/everyShape.schema")
  kestrel_sources(sources tests/everyShape)
  kestrel_library(EveryShape STATIC SOURCES ${generated} ${sources} LINK engines)
  target_include_directories(EveryShape PUBLIC "${CMAKE_BINARY_DIR}/generated-tests")
  kestrel_precompile_runtime(EveryShape)
  set(every_shape EveryShape)
endif()

if(KESTREL_STANDIN)
  kestrel_tests(mox_tests FOLDERS standin/mox platform/Mox platform/Swiftlog LINK Mox)
  kestrel_tests(xdk_tests FOLDERS standin/xdk platform/Xdk LINK Xdk)
  kestrel_tests(frame_tests FOLDERS frame LINK ${every_shape} engines)
  kestrel_tests(reflect_tests FOLDERS reflect LINK ${every_shape} engines)
  kestrel_tests(attrlog_tests FOLDERS attrlog LINK ${every_shape} engines)
  kestrel_tests(models_tests FOLDERS standin/models LINK PlatformModels)
  kestrel_tests(hwmodel_tests FOLDERS hwmodel LINK KestrelTypes)
  kestrel_tests(xplib_tests FOLDERS src-includes LINK KestrelTypes)
  kestrel_tests(kestrel_tests FOLDERS tools/kestrel LINK kestrel_parts)

  # Whole-system tests, a program a topic.
  set(users_of_the_tool kestrel_tests system_tests)
  kestrel_tests(system_tests FLAT tests LINK ${every_shape} KestrelTypes)
  file(GLOB topics CONFIGURE_DEPENDS LIST_DIRECTORIES true "${PROJECT_SOURCE_DIR}/tests/*")
  foreach(topic IN LISTS topics)
    cmake_path(GET topic FILENAME name)
    if(IS_DIRECTORY "${topic}" AND NOT name MATCHES "^(golden|house|everyShape|browser)$")
      kestrel_tests(${name}_tests FOLDERS tests/${name} LINK ${every_shape} KestrelTypes)
      list(APPEND users_of_the_tool ${name}_tests)
    endif()
  endforeach()

  # How pictures look is a browser's to say.
  include(Browser)
  if(KESTREL_BROWSER)
    kestrel_tests(browser_tests FOLDERS tests/browser)
    target_compile_definitions(browser_tests PRIVATE "KESTREL_BROWSER=\"${KESTREL_BROWSER}\"")
    list(APPEND users_of_the_tool browser_tests)
  endif()

  # Tests run the tool and the examples as users do.
  foreach(name IN LISTS users_of_the_tool)
    if(TARGET kestrel AND TARGET ${name})
      add_dependencies(${name} kestrel ${examples})
    endif()
  endforeach()
endif()

# The schema compiler runs natively, so it is tested natively.
if(KESTREL_BITS EQUAL 64)
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tools/schemac/*.cpp")
  list(FILTER sources EXCLUDE REGEX "${kestrel_test_file}|/main\\.cpp$")
  kestrel_library(schemac_parts STATIC SOURCES ${sources})
  kestrel_tests(schemac_tests FLAT tools/schemac LINK schemac_parts)
  if(TARGET schemac_tests)
    add_dependencies(schemac_tests schemac)
  endif()
endif()

# Not the tests of the runtime and of the model: they name their own small entities alike.
kestrel_together(xdk_tests frame_tests xplib_tests kestrel_tests tool_tests schemac_parts
  schemac_tests)

if(KESTREL_HOUSE_TESTS OR KESTREL_ALL_TESTS)
  kestrel_tests(house_tests FOLDERS tests/house)
endif()
