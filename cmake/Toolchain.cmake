# Warnings, sanitizers, the compiler cache and the linker: what every target shares.

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Precompiled headers only hit the cache when their defines and time stamps are not compared.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      ${CCACHE})
endif()

find_program(MOLD mold)
if(MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT WIN32)
  add_link_options(-fuse-ld=mold)
endif()

if(NOT MSVC)
  add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Werror>")
  if(CCACHE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
  endif()
endif()

# Optimising, gcc 12 takes the joining of short strings for copies without bounds.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options("$<$<AND:$<CONFIG:Release>,$<COMPILE_LANGUAGE:CXX>>:-Wno-restrict;-Wno-stringop-overflow;-Wno-array-bounds>")
endif()

if(WIN32)
  # Windows 10 is the oldest system that a seat runs.
  add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
endif()

if(VELCRO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(VELCRO_FUZZERS)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
