# lupdate, which collects the texts in the sources, must find exactly those that the catalogs hold.
# It runs on a copy of one catalog.
file(COPY "${CATALOG}" DESTINATION "${CMAKE_CURRENT_BINARY_DIR}")
get_filename_component(name "${CATALOG}" NAME)
execute_process(COMMAND "${LUPDATE}" "${SOURCE_DIR}" -ts "${CMAKE_CURRENT_BINARY_DIR}/${name}"
    OUTPUT_VARIABLE output ERROR_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS "${CATALOG}" messages REGEX "<message>")
list(LENGTH messages count)
if(NOT output MATCHES "Found ${count} source text\\(s\\) \\(0 new and ${count} already existing\\)")
    message(FATAL_ERROR "${output}")
endif()
