# Qt as this system has it, but with libraries to link programs for macOS against.
set(Qt5_DIR "${TARNWELL_HOST_LIBRARIES}/cmake/Qt5")
include("${Qt5_DIR}/Qt5Config.cmake")
foreach(part IN ITEMS Core Gui Widgets)
    set_target_properties(Qt5::${part} PROPERTIES
        IMPORTED_CONFIGURATIONS "" IMPORTED_LOCATION "${TARNWELL_MAC}/lib/libQt5${part}.tbd")
endforeach()
