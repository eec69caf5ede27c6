# What is made of the schemas and kept beside them, because people read its difference: the lock file
# (target `lock`), the pages of the reference (target `reference`), and what is made of the schema
# that uses every shape (target `golden`).
set(made_with --templates "${schemac_templates}")
set(made_from "${schemac_program}" ${schemac_template_files})

add_custom_target(lock
  COMMAND "${schemac_program}" --write-lock "${kestrel_lock}" ${made_with} ${kestrel_schemas}
  DEPENDS ${made_from} COMMENT "Writing hwmodel/schema.lock" VERBATIM)

# The pages are made in the build folder, where tools/check/reference finds what they should be.
set(pages "${CMAKE_BINARY_DIR}/reference")
set(kept_pages "${PROJECT_SOURCE_DIR}/docs/reference")
file(GLOB_RECURSE closed_schemas CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/platform/*.schema")
add_custom_command(OUTPUT "${pages}.stamp"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${pages}"
  COMMAND "${schemac_program}" --reference --out "${pages}" ${made_with}
          ${kestrel_schemas} ${closed_schemas}
  COMMAND "${CMAKE_COMMAND}" -E touch "${pages}.stamp"
  DEPENDS ${made_from} ${kestrel_schemas} ${closed_schemas}
  COMMENT "Making the pages of the reference" VERBATIM)
add_custom_target(reference_pages ALL DEPENDS "${pages}.stamp")
add_custom_target(reference
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${kept_pages}"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${pages}" "${kept_pages}"
  DEPENDS reference_pages COMMENT "Writing docs/reference" VERBATIM)

set(golden "${PROJECT_SOURCE_DIR}/tests/golden")
set(every_shape "${PROJECT_SOURCE_DIR}/tests/everyShape.schema")
add_custom_target(golden
  COMMAND "${schemac_program}" --mox-type --out "${golden}" ${made_with} "${every_shape}"
  COMMAND "${schemac_program}" --reference --out "${golden}/reference" ${made_with} "${every_shape}"
  COMMAND "${schemac_program}" --write-lock "${golden}/schema.lock" ${made_with} "${every_shape}"
  DEPENDS ${made_from} COMMENT "Writing tests/golden" VERBATIM)
