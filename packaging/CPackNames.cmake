# Read by CPack for each kind of package, which are named by what a user looks for.
if(CPACK_GENERATOR STREQUAL "NSIS")
  set(CPACK_PACKAGE_FILE_NAME "KORVANDE-${CPACK_PACKAGE_VERSION}-setup")
elseif(CPACK_GENERATOR STREQUAL "ZIP")
  set(CPACK_PACKAGE_FILE_NAME "KORVANDE-${CPACK_PACKAGE_VERSION}-windows")
endif()
