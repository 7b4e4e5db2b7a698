# Read by CPack when what it packs lies in its place: adds what each package is made of, and gives everything the time
# of the sources.
function(describe name version folder staged)
  execute_process(COMMAND ${CPACK_KORVANDE_PYTHON} -B ${CPACK_KORVANDE_PARTS}/describe.py
                          --build ${CPACK_KORVANDE_BUILD} --name ${name} --version ${version} ${ARGN}
                          --folder=${folder} ${staged}
                  COMMAND_ERROR_IS_FATAL ANY)
endfunction()

if(CPACK_GENERATOR STREQUAL "DEB")
  foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} part)
    set(name ${CPACK_DEBIAN_${part}_PACKAGE_NAME})
    describe(${name} ${CPACK_PACKAGE_VERSION} usr/share/doc/${name} ${CPACK_TEMPORARY_DIRECTORY}/${component})
  endforeach()
else()
  if(CPACK_GENERATOR STREQUAL "NSIS")
    set(around --around nsis)
  endif()
  describe(${CPACK_PACKAGE_INSTALL_DIRECTORY} ${CPACK_PACKAGE_VERSION} "" ${CPACK_TEMPORARY_DIRECTORY} ${around})
endif()
