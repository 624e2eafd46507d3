# Puts the frameworks into both applications as they are installed, and signs them. The client gets
# its plug-ins where Qt looks for them by itself, the launcher has its own where it looks.
find_program(MACDEPLOYQT macdeployqt REQUIRED HINTS "${Qt5_DIR}/../../../bin")
set(TARNWELL_SIGNING_IDENTITY "-" CACHE STRING "Certificate to sign with; - signs for this Mac only")

# macdeployqt passes over what a library looks for beside itself, as ICU does for its data.
find_package(ICU REQUIRED COMPONENTS data)
get_filename_component(icu_data "${ICU_DATA_LIBRARY}" REALPATH)
string(REGEX MATCH "^[0-9]+" icu_major "${ICU_VERSION}")
install(FILES "${icu_data}" RENAME libicudata.${icu_major}.dylib
    DESTINATION Tarnwell.app/Contents/Frameworks COMPONENT launcher)

function(install_deployment component options)
    install(CODE "execute_process(COMMAND \"${MACDEPLOYQT}\"
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Tarnwell.app\" ${options}
        \"-codesign=${TARNWELL_SIGNING_IDENTITY}\" COMMAND_ERROR_IS_FATAL ANY)"
        COMPONENT ${component} ${ARGN})
endfunction()
install_deployment(demo "" EXCLUDE_FROM_ALL)
install_deployment(launcher "-no-plugins")
