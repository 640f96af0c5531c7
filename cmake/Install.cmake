# What goes to a seat, and where: `cmake --install` is what both the Debian package and the setup for
# Windows are made from. Targets are told by velcro_install(); all of them are built by "programs".
#   VELCRO_PROGRAM_FOLDER   the programs; nothing is ever written there
#   VELCRO_DATA_FOLDER      sample/ and sqlserver/, which velcro-sample looks for
#   VELCRO_DOC_FOLDER       pages to read
if(WIN32)
  set(VELCRO_PROGRAM_FOLDER .)
  set(VELCRO_DATA_FOLDER .)
  set(VELCRO_DOC_FOLDER documentation)
else()
  include(GNUInstallDirs)
  set(VELCRO_PROGRAM_FOLDER lib/velcro)
  set(VELCRO_DATA_FOLDER ${CMAKE_INSTALL_DATADIR}/velcro)
  set(VELCRO_DOC_FOLDER ${CMAKE_INSTALL_DATADIR}/doc/velcro)
endif()

add_custom_target(programs)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)

# velcro_install(targets...): programs of a seat. On Linux each has a link where commands are looked
# for, and knows from its own place that it is installed; INTERNAL ones have none.
function(velcro_install)
  cmake_parse_arguments(ARG INTERNAL "" "" ${ARGN})
  add_dependencies(programs ${ARG_UNPARSED_ARGUMENTS})
  install(TARGETS ${ARG_UNPARSED_ARGUMENTS} RUNTIME DESTINATION ${VELCRO_PROGRAM_FOLDER})
  if(WIN32 OR ARG_INTERNAL)
    return()
  endif()
  foreach(program IN LISTS ARG_UNPARSED_ARGUMENTS)
    set(link ${CMAKE_BINARY_DIR}/links/${program})
    file(CREATE_LINK ../${VELCRO_PROGRAM_FOLDER}/${program} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR})
  endforeach()
endfunction()

# The programs look for this file beside themselves and then keep their files among the user's data.
file(WRITE ${CMAKE_BINARY_DIR}/installed "velCRO ${PROJECT_VERSION}\n")
install(FILES ${CMAKE_BINARY_DIR}/installed DESTINATION ${VELCRO_PROGRAM_FOLDER})

install(DIRECTORY demo/data/ DESTINATION ${VELCRO_DATA_FOLDER}/sample)
install(DIRECTORY deploy/sqlserver DESTINATION ${VELCRO_DATA_FOLDER})
install(DIRECTORY docs/ DESTINATION ${VELCRO_DOC_FOLDER})
install(FILES CHANGELOG.md NOTICES DESTINATION ${VELCRO_DOC_FOLDER})
if(WIN32) # elsewhere the system has them
  install(DIRECTORY /usr/share/common-licenses/ DESTINATION licences
    FILES_MATCHING REGEX "/(LGPL-3|GPL-3|LGPL-2\\.1)$")
endif()
install(FILES demo/README.md DESTINATION ${VELCRO_DOC_FOLDER} RENAME sample-databases.md)
