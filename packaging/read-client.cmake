# Runs during an installation, before anything is written: finds the client, which must be one that
# can be packed, and sets the names that the bundle takes from it.
set(app "${default_app}")
if(NOT "$ENV{TARNWELL_APP}" STREQUAL "")
    set(app "$ENV{TARNWELL_APP}")
endif()
if(app STREQUAL "")
    message(FATAL_ERROR "No client to carry: name its application folder in TARNWELL_APP, in the "
        "environment or at configuration, or run scripts/make-bundle. The demonstration client is "
        "${demo_app}")
endif()
get_filename_component(app "${app}" ABSOLUTE)

execute_process(COMMAND "${make_package}" --check "${app}" COMMAND_ERROR_IS_FATAL ANY
    OUTPUT_QUIET)
execute_process(COMMAND "${make_package}" --json --check "${app}" COMMAND_ERROR_IS_FATAL ANY
    OUTPUT_VARIABLE client_facts)

# read_name(VARIABLE KEY DEFAULT) sets VARIABLE to a value of the client's property list, escaped for
# XML, and VARIABLE_plain to the plain value.
function(read_name variable key default)
    string(JSON value GET "${client_facts}" names ${key})
    if(value STREQUAL "")
        set(value "${default}")
    endif()
    set(${variable}_plain "${value}" PARENT_SCOPE)
    string(REPLACE "&" "&amp;" value "${value}")
    string(REPLACE "<" "&lt;" value "${value}")
    string(REPLACE ">" "&gt;" value "${value}")
    set(${variable} "${value}" PARENT_SCOPE)
endfunction()
string(JSON build GET "${client_facts}" build)
read_name(name CFBundleName Tarnwell)
read_name(display_name CFBundleDisplayName "${name_plain}")
read_name(client_identifier CFBundleIdentifier com.orvane.tarnwell)
read_name(version CFBundleShortVersionString "${build}")
read_name(icon_file CFBundleIconFile "")
string(REGEX REPLACE "\\.icns$" "" icon_file "${icon_file}")
