# Language, warnings, word size, build types and output folders: what holds for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_INSTALL_LIBDIR lib CACHE PATH "Folder of the libraries below the prefix")

# The build types are spelled out: assertions never hang on NDEBUG, and a sanitizer run is a type
# of its own.  -g1 is what a stack trace needs.  A mutator is a few instructions: where it begins at
# 32 bytes, one that nobody watches fits a line of the instruction cache (bench_Mutators, unwatched).
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -g1 -falign-functions=32")
set(CMAKE_CXX_FLAGS_DEBUG "-O0 -g -D_GLIBCXX_ASSERTIONS")
set(CMAKE_CXX_FLAGS_ASAN "-O1 -g1 -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS \
-fsanitize=address,undefined -fno-sanitize-recover=all")

get_property(several_types GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(NOT several_types AND NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Release, Debug or Asan" FORCE)
endif()
set_property(CACHE CMAKE_BUILD_TYPE PROPERTY STRINGS Release Debug Asan)

if(KESTREL_BITS EQUAL 32)
  add_compile_options(-m32)
  add_link_options(-m32)
elseif(NOT KESTREL_BITS EQUAL 64)
  message(FATAL_ERROR "KESTREL_BITS is 64 or 32, not \"${KESTREL_BITS}\"")
endif()

find_package(Threads REQUIRED)

# Warnings and include roots of our own targets; code of others is built without them.
add_library(house INTERFACE)
target_compile_options(house INTERFACE -Wall -Wextra -Wpedantic -Werror)
target_include_directories(house INTERFACE
  "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/src-includes" "${CMAKE_BINARY_DIR}/generated")
if(KESTREL_STANDIN)
  target_include_directories(house INTERFACE "${PROJECT_SOURCE_DIR}/platform")
endif()
