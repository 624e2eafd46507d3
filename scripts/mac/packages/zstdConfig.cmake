include_guard(GLOBAL)
# Zstandard's library to link programs for macOS against.
add_library(zstd::libzstd_shared SHARED IMPORTED)
set_target_properties(zstd::libzstd_shared PROPERTIES
    IMPORTED_LOCATION "${TARNWELL_MAC}/lib/libzstd.tbd"
    INTERFACE_INCLUDE_DIRECTORIES "${TARNWELL_MAC}/include")
