# Installs the DLLs that the programs and the plug-in import, and those which these import in turn:
# from Qt's folder, else from the compiler's. Any other has to be one of Windows' own, for which the
# compiler has an import library, or the name of a set of them. Strips all that it installs, and the
# programs.
cmake_policy(VERSION 3.25)
set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
set(waiting terramark.exe terramark-check.exe platforms/qwindows.dll)
set(known)
while(waiting)
  list(POP_FRONT waiting file)
  execute_process(COMMAND ${strip} ${folder}/${file} COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${objdump} -p ${folder}/${file} COMMAND grep "DLL Name:"
                  OUTPUT_VARIABLE imports COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "[^ \n]+\\.[A-Za-z]+\n" imports "${imports}")
  foreach(import IN LISTS imports)
    string(STRIP "${import}" import)
    string(TOLOWER "${import}" lower)
    if(lower IN_LIST known OR lower MATCHES "^api-ms-win-")
      continue()
    endif()
    list(APPEND known ${lower})

    set(found ${qt_dlls}/${import})
    if(NOT EXISTS ${found})
      execute_process(COMMAND ${compiler} -print-file-name=${import}
                      OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
    endif()
    # The compiler gives the bare name of what it does not find.
    if(IS_ABSOLUTE "${found}")
      file(COPY "${found}" DESTINATION ${folder})
      list(APPEND waiting ${import})
      message(STATUS "Installing: ${folder}/${import}")
      continue()
    endif()
    string(REGEX REPLACE "\\.[a-z]+$" "" library ${lower})
    execute_process(COMMAND ${compiler} -print-file-name=lib${library}.a
                    OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${found}")
      message(FATAL_ERROR "${file} needs ${import}, which is nowhere to be found")
    endif()
  endforeach()
endwhile()
