# Runs during an installation, after read-client.cmake: adds to the launcher's bundle what comes from
# the client.
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

# copy(FROM TO). Not file(INSTALL), which would put DESTDIR in front of a path that has it already.
function(copy from to)
    configure_file("${from}" "${resources}/${to}" COPYONLY FILE_PERMISSIONS ${readable})
endfunction()
copy("${dialog_icon}" images/ico_72_tarnwell.png)
copy("${app}/Contents/Resources/INFO" INFO)
if(NOT icon_file STREQUAL "")
    copy("${app}/Contents/Resources/${icon_file}.icns" "${icon_file}.icns")
endif()
configure_file("${templates}/Info.plist.in" "${bundle}/Contents/Info.plist" @ONLY
    FILE_PERMISSIONS ${readable})
file(MAKE_DIRECTORY "${resources}/package")
execute_process(COMMAND "${make_package}" "${app}" "${resources}/package/tarnwell.opk"
    COMMAND_ERROR_IS_FATAL ANY)
