# The kinds of target in the house. Sources are globbed by folder: a new file needs no list entry,
# only a new configure, which ninja does by itself (CONFIGURE_DEPENDS).

function(velcro_sources out)
  set(found)
  foreach(folder IN LISTS ARGN)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    list(APPEND found ${files})
  endforeach()
  # A file that calls one operating system has a twin for the other: Name_windows.cpp, Name_linux.cpp.
  if(WIN32)
    list(FILTER found EXCLUDE REGEX "_linux\\.cpp$")
  else()
    list(FILTER found EXCLUDE REGEX "_windows\\.cpp$")
  endif()
  set(${out} ${found} PARENT_SCOPE)
endfunction()

# What every test runs with.
set(test_environment "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;UBSAN_OPTIONS=print_stacktrace=1;ASAN_OPTIONS=detect_leaks=1;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0")

# Tests that are not run on Windows, "Suite" or "Suite.test"; the list tells the reasons. What cannot
# even be compiled there is a whole suite.
set(tests_not_run)
if(WIN32)
  file(STRINGS ${CMAKE_SOURCE_DIR}/deploy/windows/tests-not-run.txt tests_not_run REGEX "^[A-Z]")
  list(TRANSFORM tests_not_run REPLACE ":.*" "")
endif()

function(velcro_ctest program name filter)
  set(cases ${tests_not_run})
  list(FILTER cases INCLUDE REGEX "\\.")
  list(JOIN cases ":" cases)
  if(cases)
    if(filter MATCHES "^-")
      string(APPEND filter ":${cases}")
    else()
      string(APPEND filter "-${cases}")
    endif()
  endif()
  add_test(NAME ${program}.${name} COMMAND ${program} --gtest_brief=1 --gtest_filter=${filter})
  set_tests_properties(${program}.${name} PROPERTIES ENVIRONMENT "${test_environment}")
endfunction()

# velcro_test(name LIBRARIES ... SOURCES ...): one program; each source file XxxTest.cpp holds the
# suite XxxTest (any number of tests) and becomes one test of ctest. Suites by other names are run
# by one more, name.rest, so that none goes unrun.
function(velcro_test name)
  cmake_parse_arguments(ARG "" "" "LIBRARIES;SOURCES" ${ARGN})
  foreach(suite IN LISTS tests_not_run)
    list(FILTER ARG_SOURCES EXCLUDE REGEX "/${suite}\\.cpp$")
  endforeach()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  set(filters)
  foreach(source IN LISTS ARG_SOURCES)
    get_filename_component(suite ${source} NAME_WE)
    if(suite MATCHES "Test$")
      velcro_ctest(${name} ${suite} "${suite}.*:*/${suite}.*")
      list(APPEND filters "${suite}.*:*/${suite}.*")
    endif()
  endforeach()
  list(JOIN filters ":" named)
  velcro_ctest(${name} rest "-${named}")
endfunction()
