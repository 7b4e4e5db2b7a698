# What a Windows program carries besides its code. Elsewhere these functions do nothing.

if(WIN32)
  enable_language(RC)
  set(KORVANDE_MANIFEST ${PROJECT_BINARY_DIR}/generated/program.manifest)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/windows/program.manifest.in ${KORVANDE_MANIFEST} @ONLY)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/windows/test.rc.in ${PROJECT_BINARY_DIR}/generated/test.rc @ONLY)
endif()

# The manifest (file names in UTF-8, sharp on every screen, no administrator), the icon and the version of a program.
function(korvande_program_resources target description)
  if(WIN32)
    set(KORVANDE_PROGRAM ${target})
    set(KORVANDE_PROGRAM_DESCRIPTION ${description})
    set(resources ${PROJECT_BINARY_DIR}/generated/${target}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/windows/program.rc.in ${resources} @ONLY)
    set_source_files_properties(${resources} PROPERTIES
      OBJECT_DEPENDS "${KORVANDE_MANIFEST};${PROJECT_SOURCE_DIR}/ui/icons/korvande.ico")
    target_sources(${target} PRIVATE ${resources})
  endif()
endfunction()

# The window library's own texts in Dutch, from its translation on the machine that builds: where that has none, they stay
# English.
function(korvande_dutch_resources target)
  if(WIN32)
    find_file(KORVANDE_WX_DUTCH wxstd-3.2.mo PATHS /usr/share/locale/nl/LC_MESSAGES NO_DEFAULT_PATH
              NO_CMAKE_FIND_ROOT_PATH)
    if(KORVANDE_WX_DUTCH)
      set(resources ${PROJECT_BINARY_DIR}/generated/dutch.rc)
      configure_file(${PROJECT_SOURCE_DIR}/cmake/windows/dutch.rc.in ${resources} @ONLY)
      target_sources(${target} PRIVATE ${resources})
    endif()
  endif()
endfunction()

# The manifest alone, so that a test meets the same system as the program.
function(korvande_test_resources target)
  if(WIN32)
    target_sources(${target} PRIVATE ${PROJECT_BINARY_DIR}/generated/test.rc)
  endif()
endfunction()
