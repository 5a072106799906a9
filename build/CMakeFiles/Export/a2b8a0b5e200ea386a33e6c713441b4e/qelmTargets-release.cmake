#----------------------------------------------------------------
# Generated CMake target import file for configuration "Release".
#----------------------------------------------------------------

# Commands may need to know the format version.
set(CMAKE_IMPORT_FILE_VERSION 1)

# Import target "qelm::qelcore" for configuration "Release"
set_property(TARGET qelm::qelcore APPEND PROPERTY IMPORTED_CONFIGURATIONS RELEASE)
set_target_properties(qelm::qelcore PROPERTIES
  IMPORTED_LOCATION_RELEASE "${_IMPORT_PREFIX}/lib/libqelcore.so.7.0.0"
  IMPORTED_SONAME_RELEASE "libqelcore.so.7"
  )

list(APPEND _cmake_import_check_targets qelm::qelcore )
list(APPEND _cmake_import_check_files_for_qelm::qelcore "${_IMPORT_PREFIX}/lib/libqelcore.so.7.0.0" )

# Import target "qelm::qelm" for configuration "Release"
set_property(TARGET qelm::qelm APPEND PROPERTY IMPORTED_CONFIGURATIONS RELEASE)
set_target_properties(qelm::qelm PROPERTIES
  IMPORTED_LOCATION_RELEASE "${_IMPORT_PREFIX}/lib/libqelm.so.7.0.0"
  IMPORTED_SONAME_RELEASE "libqelm.so.7"
  )

list(APPEND _cmake_import_check_targets qelm::qelm )
list(APPEND _cmake_import_check_files_for_qelm::qelm "${_IMPORT_PREFIX}/lib/libqelm.so.7.0.0" )

# Commands beyond this point should not need to know the version.
set(CMAKE_IMPORT_FILE_VERSION)
