# Installs the build BUILD under the prefix /usr in a fresh DESTDIR (ROOT) and fails unless it
# holds exactly the files listed in EXPECTED, and the installed tools run, and the AppStream
# metadata, the desktop entry, the icons and the manual page each pass their own checker.
file(REMOVE_RECURSE ${ROOT})
set(ENV{DESTDIR} ${ROOT})
set(prefix ${ROOT}/usr)

function(expect_success)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT status EQUAL 0 OR NOT "${err}" STREQUAL "")
        message(FATAL_ERROR "${ARGN}: exit status ${status}\n${out}${err}")
    endif()
endfunction()

expect_success(${CMAKE_COMMAND} --install ${BUILD} --prefix /usr)
file(GLOB_RECURSE installed LIST_DIRECTORIES false RELATIVE ${ROOT} ${ROOT}/*)
list(SORT installed)
file(STRINGS ${EXPECTED} expected)
if(NOT installed STREQUAL expected)
    string(REPLACE ";" "\n" installed "${installed}")
    message(FATAL_ERROR "installed files:\n${installed}\nexpected those of ${EXPECTED}")
endif()

expect_success(${prefix}/bin/harnwick-cli --version)
expect_success(appstreamcli validate-tree --no-net ${prefix})
file(GLOB desktop ${prefix}/share/applications/*.desktop)
expect_success(desktop-file-validate ${desktop})
expect_success(sh -n ${prefix}/libexec/harnwick/harnwick-desktop)
file(GLOB_RECURSE icons ${prefix}/share/icons/*.png)
expect_success(pngcheck -q ${icons})
# groff says what it finds wrong on the error stream.
expect_success(groff -man -ww -z ${prefix}/share/man/man1/harnwick-cli.1)
