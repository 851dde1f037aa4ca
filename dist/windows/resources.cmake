# Icons, version and manifest for the Windows programs.

# Adds them to a program: terramark_windows_resources(TARGET DESCRIPTION [LAYOUT_ICON]). The
# description is what the task manager shows; LAYOUT_ICON adds the icon of *.tml, as number 2.
function(terramark_windows_resources target description)
  set(source ${PROJECT_SOURCE_DIR}/dist/windows)
  set(folder ${PROJECT_BINARY_DIR}/resources)
  set(icons ${folder}/terramark.ico ${folder}/layout.ico ${folder}/setup.bmp)
  if(NOT TARGET terramark_icons)
    find_program(PYTHON3 python3 REQUIRED)
    add_custom_command(OUTPUT ${icons}
      COMMAND ${PYTHON3} ${source}/draw_icons.py ${folder}
      DEPENDS ${source}/draw_icons.py ${PROJECT_SOURCE_DIR}/dist/draw_icon.py
              ${PROJECT_SOURCE_DIR}/src/shell/icon.cpp
      VERBATIM)
    add_custom_target(terramark_icons DEPENDS ${icons})
  endif()

  set(layout_icon)
  if("LAYOUT_ICON" IN_LIST ARGN)
    set(layout_icon "2 ICON \"layout.ico\"")
  endif()
  # Four numbers, whatever the project's version has.
  string(REGEX MATCHALL "[0-9]+" numbers "${PROJECT_VERSION}.0.0.0")
  list(SUBLIST numbers 0 4 numbers)
  string(REPLACE ";" "." dotted "${numbers}")
  string(REPLACE ";" "," numbers "${numbers}")
  file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE copyright REGEX "^Copyright" LIMIT_COUNT 1)
  # The names of settings in a manifest begin with a web address. The project writes down no host,
  # so it comes from the program that makes the setup, which writes manifests too.
  find_program(MAKENSIS makensis REQUIRED)
  file(STRINGS ${MAKENSIS} settings REGEX "/SMI/2016/WindowsSettings" LIMIT_COUNT 1)
  string(REGEX MATCH "[a-z]+://[a-z.]+/SMI" settings "${settings}")
  if(NOT settings)
    message(FATAL_ERROR "${MAKENSIS} does not name the settings of a manifest")
  endif()
  configure_file(${source}/terramark.rc.in ${folder}/${target}.rc @ONLY)
  configure_file(${source}/terramark.manifest.in ${folder}/${target}.manifest @ONLY)
  # The resource compiler reads these by name alone, so that no rule knows of them.
  set_source_files_properties(${folder}/${target}.rc PROPERTIES
    OBJECT_DEPENDS "${icons};${folder}/${target}.manifest")
  target_sources(${target} PRIVATE ${folder}/${target}.rc)
  target_include_directories(${target} PRIVATE $<$<COMPILE_LANGUAGE:RC>:${folder}>)
  add_dependencies(${target} terramark_icons)
endfunction()
