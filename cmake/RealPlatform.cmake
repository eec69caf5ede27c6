# The platform's own headers and libraries in the place of the stand-in (KESTREL_STANDIN=OFF).
if(NOT KESTREL_PLATFORM_ROOT)
  message(FATAL_ERROR
    "KESTREL_STANDIN is OFF: say where the platform is with -DKESTREL_PLATFORM_ROOT=PREFIX")
endif()

find_path(KESTREL_PLATFORM_INCLUDE Mox/Mox.h REQUIRED NO_DEFAULT_PATH
  PATHS "${KESTREL_PLATFORM_ROOT}/include" PATH_SUFFIXES . kestreltypes)
foreach(name IN ITEMS Mox Xdk PlatformModels)
  find_library(KESTREL_${name}_LIBRARY ${name} REQUIRED NO_DEFAULT_PATH
    PATHS "${KESTREL_PLATFORM_ROOT}/lib")
  add_library(${name} SHARED IMPORTED)
  set_target_properties(${name} PROPERTIES IMPORTED_LOCATION "${KESTREL_${name}_LIBRARY}")
endforeach()
target_include_directories(house INTERFACE "${KESTREL_PLATFORM_INCLUDE}")
