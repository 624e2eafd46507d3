# Part of an installation: adds to the launcher's bundle what comes from the client, after
# read-client.cmake.
set(bundle "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/Tarnwell.app")
set(resources "${bundle}/Contents/Resources")
set(readable OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set(executable tarnwell-launcher)
set(identifier "${client_identifier}.launcher")

set(dialog_icon "${app}/Contents/Resources/images/ico_72_tarnwell.png")
if(NOT EXISTS "${dialog_icon}")
    message(FATAL_ERROR "${dialog_icon} is missing; put the icon of the launcher's dialog there, "
        "72 by 72 pixels")
endif()
file(INSTALL "${dialog_icon}" DESTINATION "${resources}/images" PERMISSIONS ${readable})
file(INSTALL "${app}/Contents/Resources/INFO" DESTINATION "${resources}" PERMISSIONS ${readable})
if(NOT icon_file STREQUAL "")
    file(INSTALL "${app}/Contents/Resources/${icon_file}.icns" DESTINATION "${resources}"
        PERMISSIONS ${readable})
endif()
configure_file("${templates}/Info.plist.in" "${bundle}/Contents/Info.plist" @ONLY
    FILE_PERMISSIONS ${readable})
file(MAKE_DIRECTORY "${resources}/package")
execute_process(COMMAND "${make_package}" "${app}" "${resources}/package/tarnwell.opk"
    COMMAND_ERROR_IS_FATAL ANY)
