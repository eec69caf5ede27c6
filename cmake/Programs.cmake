# The command-line tool and the examples; both need the simulated chip.
if(NOT KESTREL_STANDIN)
  return()
endif()

# All of the tool but its main() is a library, so that tests can reach it.
kestrel_sources(sources tools/kestrel)
set(main_source ${sources})
list(FILTER main_source INCLUDE REGEX "/main\\.cpp$")
list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
kestrel_library(kestrel_parts STATIC SOURCES ${sources} LINK KestrelTypes)
target_compile_definitions(kestrel_parts PRIVATE "KESTREL_VERSION=\"${PROJECT_VERSION}\"")
kestrel_together(kestrel_parts)
kestrel_program(kestrel SOURCES ${main_source} LINK kestrel_parts)

# One program a file: example_<file>.
kestrel_sources(sources examples)
foreach(source IN LISTS sources)
  cmake_path(GET source STEM stem)
  kestrel_program(example_${stem} SOURCES "${source}" LINK KestrelTypes)
  list(APPEND examples example_${stem})
endforeach()
