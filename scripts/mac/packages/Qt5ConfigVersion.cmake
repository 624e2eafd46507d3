include("${TARNWELL_HOST_LIBRARIES}/cmake/Qt5/Qt5ConfigVersion.cmake")
