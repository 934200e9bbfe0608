# Use the vendor's Qtitan ribbon in place of the open implementation in qtitan/.
# The vendor's package is not available here; point these two variables at it:
#   QTITAN_VENDOR_INCLUDE_DIR  directory that holds QtitanRibbon.h
#   QTITAN_VENDOR_LIBRARY      the ribbon library to link
set(QTITAN_VENDOR_INCLUDE_DIR "" CACHE PATH "Include directory of the vendor's Qtitan ribbon")
set(QTITAN_VENDOR_LIBRARY "" CACHE FILEPATH "The vendor's Qtitan ribbon library")
if(NOT EXISTS "${QTITAN_VENDOR_INCLUDE_DIR}/QtitanRibbon.h" OR NOT QTITAN_VENDOR_LIBRARY)
    message(FATAL_ERROR "TESSARO_QTITAN_VENDOR needs QTITAN_VENDOR_INCLUDE_DIR and QTITAN_VENDOR_LIBRARY")
endif()
add_library(QtitanRibbon UNKNOWN IMPORTED GLOBAL)
set_target_properties(QtitanRibbon PROPERTIES
    IMPORTED_LOCATION "${QTITAN_VENDOR_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${QTITAN_VENDOR_INCLUDE_DIR}"
    INTERFACE_LINK_LIBRARIES "Qt5::Widgets")
add_library(Tessaro::QtitanRibbon ALIAS QtitanRibbon)
