# Read by CPack for each kind of package, which are named by what a user looks for.
if(CPACK_GENERATOR STREQUAL "NSIS")
  set(CPACK_PACKAGE_FILE_NAME "KORVANDE-${CPACK_PACKAGE_VERSION}-setup")
elseif(CPACK_GENERATOR STREQUAL "ZIP")
  set(CPACK_PACKAGE_FILE_NAME "KORVANDE-${CPACK_PACKAGE_VERSION}-windows")
endif()

# Packed again, it is the same to the byte: the time is that of the sources, in no zone.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND git -c safe.directory=* log -1 --format=%ct
                  WORKING_DIRECTORY ${CPACK_KORVANDE_SOURCE} OUTPUT_VARIABLE moment
                  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(NOT moment)
    file(TIMESTAMP ${CPACK_KORVANDE_SOURCE}/CHANGELOG.md moment "%s" UTC)
  endif()
  set(ENV{SOURCE_DATE_EPOCH} ${moment})
endif()
set(ENV{TZ} UTC)
