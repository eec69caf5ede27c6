# The libraries, from the platform up to the module.
if(KESTREL_STANDIN)
  kestrel_sources(sources standin/mox)
  kestrel_library(Mox SHARED SOURCES ${sources} LINK Threads::Threads)

  kestrel_sources(sources standin/xdk)
  kestrel_library(Xdk SHARED SOURCES ${sources} LINK Mox)
else()
  include(RealPlatform)
endif()

# One set of passes, linked into each library that has entities; nothing of it is exported.
kestrel_sources(sources frame reflect attrlog)
kestrel_library(engines STATIC SOURCES ${sources} LINK Mox)
if(sources)
  set_target_properties(engines PROPERTIES CXX_VISIBILITY_PRESET hidden
                                           VISIBILITY_INLINES_HIDDEN ON)
endif()

if(KESTREL_STANDIN)
  kestrel_generate(generated NAME PlatformModels FOLDERS platform)
  kestrel_sources(sources standin/models)
  kestrel_library(PlatformModels SHARED
    SOURCES ${generated} ${sources} LINK Mox LINK_OWN engines)
  kestrel_precompile_runtime(PlatformModels)
endif()

# The modules in the order in which they are registered, and named in the file.
set(kestrel_schemas
  "${PROJECT_SOURCE_DIR}/hwmodel/Kestrel.schema"
  "${PROJECT_SOURCE_DIR}/src-includes/XpLib/XpTableManSm.schema"
  "${PROJECT_SOURCE_DIR}/src-includes/XpLib/XpTableCliHelper.schema")
set(kestrel_lock "${PROJECT_SOURCE_DIR}/hwmodel/schema.lock")
kestrel_generate(generated NAME KestrelTypes MOX_TYPE
  SCHEMAS ${kestrel_schemas} LOCK "${kestrel_lock}")
kestrel_sources(sources hwmodel src-includes)
kestrel_library(KestrelTypes SHARED
  SOURCES ${generated} ${sources} LINK PlatformModels Mox Xdk LINK_OWN engines)
kestrel_precompile_runtime(KestrelTypes)
set_target_properties(KestrelTypes PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION 1)
# Descriptors are immortal, so what they point into must be.
target_link_options(KestrelTypes PRIVATE -Wl,-z,nodelete)

kestrel_together(Mox Xdk engines KestrelTypes)
