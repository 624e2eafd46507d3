# Copies the frameworks into both applications when they are installed, adds their licences to the
# bundle, and signs both. The client's plug-ins go where Qt looks by default; the launcher has its own
# already, in the folder where it looks.
find_program(MACDEPLOYQT macdeployqt REQUIRED HINTS "${Qt5_DIR}/../../../bin")
set(TARNWELL_SIGNING_IDENTITY "-" CACHE STRING "Certificate to sign with; - signs for this Mac only")

# macdeployqt misses libraries that another one expects in its own folder, such as ICU's data.
find_package(ICU REQUIRED COMPONENTS data)
get_filename_component(icu_data "${ICU_DATA_LIBRARY}" REALPATH)
string(REGEX MATCH "^[0-9]+" icu_major "${ICU_VERSION}")
install(FILES "${icu_data}" RENAME libicudata.${icu_major}.dylib
    DESTINATION Tarnwell.app/Contents/Frameworks COMPONENT launcher)

# install_command(COMPONENT COMMAND [EXCLUDE_FROM_ALL]) runs COMMAND with the application's path.
function(install_command component command)
    install(CODE "execute_process(COMMAND ${command}
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Tarnwell.app\" COMMAND_ERROR_IS_FATAL ANY)"
        COMPONENT ${component} ${ARGN})
endfunction()

set(sign "codesign --force --deep --options runtime --sign \"${TARNWELL_SIGNING_IDENTITY}\"")
install_command(demo "\"${MACDEPLOYQT}\"" EXCLUDE_FROM_ALL)
install_command(demo "${sign}" EXCLUDE_FROM_ALL)
install(CODE "execute_process(COMMAND \"${MACDEPLOYQT}\"
    \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/Tarnwell.app\" -no-plugins COMMAND_ERROR_IS_FATAL ANY)
    set(kegs \"${Qt5_DIR}/../../../..\")" COMPONENT launcher)
install(SCRIPT add-licences-mac.cmake COMPONENT launcher)
install_command(launcher "${sign}")
