include("${TARNWELL_HOST_LIBRARIES}/cmake/zstd/zstdConfigVersion.cmake")
