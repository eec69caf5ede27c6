# The target `headers_alone`: each public header compiles by itself.
set(folders frame reflect attrlog src-includes)
if(KESTREL_STANDIN)
  list(APPEND folders platform)
endif()
set(headers)
foreach(folder IN LISTS folders)
  file(GLOB_RECURSE found CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.h")
  list(APPEND headers ${found})
endforeach()
list(FILTER headers EXCLUDE REGEX "${kestrel_test_file}")
get_property(generated GLOBAL PROPERTY kestrel_generated_headers)
list(APPEND headers ${generated})
get_property(generated_stamps GLOBAL PROPERTY kestrel_generated_stamps)

string(TOUPPER "${CMAKE_BUILD_TYPE}" type)
separate_arguments(flags NATIVE_COMMAND "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${type}}")
if(KESTREL_BITS EQUAL 32)
  list(APPEND flags -m32)
endif()
set(roots "$<TARGET_PROPERTY:house,INTERFACE_INCLUDE_DIRECTORIES>")
set(stamps)
foreach(header IN LISTS headers)
  string(SHA1 hash "${header}")
  set(stamp "${CMAKE_BINARY_DIR}/headers-alone/${hash}")
  add_custom_command(OUTPUT "${stamp}"
    COMMAND "${CMAKE_CXX_COMPILER}" ${flags} -std=c++20 -Wall -Wextra -Wpedantic -Werror
            "-I$<JOIN:${roots},;-I>" -fsyntax-only -include "${header}" -x c++ /dev/null
            -MMD -MF "${stamp}.d" -MT "${stamp}"
    COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
    DEPENDS "${header}" ${generated_stamps} DEPFILE "${stamp}.d"
    COMMENT "Compiling ${header} alone" VERBATIM COMMAND_EXPAND_LISTS)
  list(APPEND stamps "${stamp}")
endforeach()
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/headers-alone")
add_custom_target(headers_alone DEPENDS ${stamps})
