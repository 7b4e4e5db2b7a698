# A library that is headers only. Those of this machine serve for another one too; in a folder of their own, because
# beside them stand headers that do not.
function(korvande_headers package target folder header)
  find_package(${package} QUIET)
  if(TARGET ${target})
    # Also for those who use the room.
    set_target_properties(${target} PROPERTIES IMPORTED_GLOBAL ON)
  else()
    find_path(${package}_HEADERS ${folder}/${header} NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    file(COPY ${${package}_HEADERS}/${folder} DESTINATION ${PROJECT_BINARY_DIR}/headers)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} INTERFACE ${PROJECT_BINARY_DIR}/headers)
  endif()
endfunction()
