# The benches: one program a file, bench_<file>; the peers that they compare with are optional.
#
# A bench asks with __has_include which peers are there.  The floors that stand behind a call into a
# shared library are in bench/floor.
find_package(benchmark QUIET)
if(NOT benchmark_FOUND OR NOT KESTREL_BITS EQUAL 64)
  message(STATUS "No benches: they need Google Benchmark (libbenchmark-dev) and 64 bit")
  return()
endif()

add_library(peers INTERFACE)
find_package(absl QUIET)
if(absl_FOUND)
  target_link_libraries(peers INTERFACE absl::flat_hash_map)
endif()
find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
  pkg_check_modules(SIGC QUIET IMPORTED_TARGET sigc++-2.0)
  if(SIGC_FOUND)
    target_link_libraries(peers INTERFACE PkgConfig::SIGC)
  endif()
endif()
find_package(Qt6 QUIET COMPONENTS Core)
if(Qt6_FOUND)
  # The library that Qt's own compiler of properties is run for.
  add_library(QtPeer STATIC "${PROJECT_SOURCE_DIR}/bench/peers/QtCounters.h")
  set_target_properties(QtPeer PROPERTIES AUTOMOC ON LINKER_LANGUAGE CXX)
  target_link_libraries(QtPeer PUBLIC Qt6::Core)
  target_link_libraries(peers INTERFACE QtPeer)
  target_compile_definitions(peers INTERFACE KESTREL_PEER_QT)
endif()
# Debian's package keeps its configuration where CMake doesn't look.
find_package(rttr QUIET CONFIG PATHS /usr/share/rttr/cmake)
if(rttr_FOUND)
  target_link_libraries(peers INTERFACE RTTR::Core)
  target_compile_definitions(peers INTERFACE KESTREL_PEER_RTTR)
endif()
foreach(peer IN ITEMS absl SIGC Qt6 rttr)
  if(NOT ${peer}_FOUND)
    message(STATUS "Benches have no ${peer} to compare with (cmake/install-packages.sh bench peers)")
  endif()
endforeach()

kestrel_sources(sources bench/floor)
kestrel_library(BenchFloor SHARED SOURCES ${sources} LINK Mox)

file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/bench/*.cpp")
foreach(source IN LISTS sources)
  cmake_path(GET source STEM stem)
  kestrel_program(bench_${stem} SOURCES "${source}"
    LINK benchmark::benchmark peers BenchFloor engines KestrelTypes)
endforeach()

# Its loops are a few instructions: the one that happens to lie across lines of the instruction
# cache takes a fifth longer, ours as theirs.
target_compile_options(bench_Maps PRIVATE
  $<$<CXX_COMPILER_ID:GNU>:-falign-loops=32 -falign-jumps=32>)

# It loads the libraries itself, so it isn't linked with them.
kestrel_program(bench_Load SOURCES "${PROJECT_SOURCE_DIR}/bench/load/Load.cpp"
  LINK benchmark::benchmark ${CMAKE_DL_LIBS})
add_dependencies(bench_Load KestrelTypes BenchFloor)
set_target_properties(bench_Load PROPERTIES BUILD_RPATH "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
