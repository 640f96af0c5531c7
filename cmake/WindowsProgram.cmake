# What a program file bears on Windows: its version, its icon and the manifest. VELCRO_PICTURES is the
# folder that deploy/windows/pictures/record-pictures filled.
enable_language(RC)
set(VELCRO_PICTURES "" CACHE PATH "Recorded drawings and the icon")

set(windows_resources ${CMAKE_CURRENT_LIST_DIR}/../deploy/windows/resources)
string(REPLACE "." "," version_numbers "${PROJECT_VERSION}.0")

function(velcro_windows_program target description)
  set(file_description "${description}")
  set(file_name ${target}.exe)
  configure_file(${windows_resources}/program.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
endfunction()
