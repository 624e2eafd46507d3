# Runs during an installation, after read-client.cmake: installs what a Linux desktop shows.
set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(readable OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

# make_folder(PATH) creates a folder and those above it. Existing folders stay unchanged.
function(make_folder path)
    if(NOT IS_DIRECTORY "${path}")
        get_filename_component(above "${path}" DIRECTORY)
        make_folder("${above}")
        file(MAKE_DIRECTORY "${path}")
        file(CHMOD "${path}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
            GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)  # whatever the umask
    endif()
endfunction()

# fill_in(TEMPLATE PATH)
function(fill_in template path)
    get_filename_component(folder "${root}/${path}" DIRECTORY)
    make_folder("${folder}")
    configure_file("${template}" "${root}/${path}" @ONLY FILE_PERMISSIONS ${readable})
endfunction()

# add_icon(FILE SIZE)
function(add_icon file size)
    set(folder "${root}/share/icons/hicolor/${size}x${size}/apps")
    make_folder("${folder}")
    configure_file("${file}" "${folder}/${client_identifier}.png" COPYONLY
        FILE_PERMISSIONS ${readable})
endfunction()

make_folder("${root}/bin")
file(CREATE_LINK ../lib/tarnwell/Tarnwell.app/Contents/MacOS/tarnwell-launcher
    "${root}/bin/tarnwell" SYMBOLIC)
fill_in("${launcher_licence}" share/doc/tarnwell/copyright)
fill_in("${templates}/tarnwell.desktop.in" "share/applications/${client_identifier}.desktop")
fill_in("${templates}/tarnwell.metainfo.xml.in" "share/metainfo/${client_identifier}.metainfo.xml")

add_icon("${app}/Contents/Resources/images/ico_72_tarnwell.png" 72)
if(NOT icon_file STREQUAL "")
    set(work "${root}/share/doc/tarnwell/icons")
    file(MAKE_DIRECTORY "${work}")
    execute_process(COMMAND icns2png -x -o "${work}"
        "${app}/Contents/Resources/${icon_file}.icns" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
    foreach(size IN ITEMS 16 32 48 128 256 512)
        if(EXISTS "${work}/${icon_file}_${size}x${size}x32.png")
            add_icon("${work}/${icon_file}_${size}x${size}x32.png" ${size})
        endif()
    endforeach()
    file(REMOVE_RECURSE "${work}")
endif()
