# Helpers shared by both libraries: every subsystem folder registers its files
# through these, so the umbrella header and the install rules follow by themselves.

set(ORV_PCH_HEADERS <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets>)

# orv_add_sources(<target> [SOURCES ...] [PUBLIC_HEADERS ...] [PRIVATE_HEADERS ...] [FORMS ...])
# Adds files of the calling folder to <target>, makes the folder an include
# directory (so "#include <orv_dialog.h>" works in the build tree) and records
# public headers for installation and the umbrella header.
function(orv_add_sources target)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_HEADERS;PRIVATE_HEADERS;FORMS;RESOURCES" ${ARGN})
    set(all ${ARG_SOURCES} ${ARG_PUBLIC_HEADERS} ${ARG_PRIVATE_HEADERS} ${ARG_FORMS} ${ARG_RESOURCES})
    if(all)
        target_sources(${target} PRIVATE ${all})
    endif()
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
    foreach(h IN LISTS ARG_PUBLIC_HEADERS)
        set_property(GLOBAL APPEND PROPERTY ORV_PUBLIC_HEADERS_${target} "${CMAKE_CURRENT_SOURCE_DIR}/${h}")
    endforeach()
endfunction()

# Writes the umbrella header <dir>/OrvWidgets that includes every public header
# recorded for the given targets, plus extra generated headers.
function(orv_write_umbrella outfile)
    cmake_parse_arguments(ARG "" "" "TARGETS;EXTRA" ${ARGN})
    set(content "// Generated at configure time: every public header of the OrvWidgets package.\n#pragma once\n\n")
    foreach(t IN LISTS ARG_TARGETS)
        get_property(headers GLOBAL PROPERTY ORV_PUBLIC_HEADERS_${t})
        foreach(h IN LISTS headers)
            get_filename_component(name "${h}" NAME)
            string(APPEND content "#include \"${name}\"\n")
        endforeach()
    endforeach()
    foreach(name IN LISTS ARG_EXTRA)
        string(APPEND content "#include \"${name}\"\n")
    endforeach()
    file(GENERATE OUTPUT "${outfile}" CONTENT "${content}")
endfunction()

function(orv_install_public_headers target)
    get_property(headers GLOBAL PROPERTY ORV_PUBLIC_HEADERS_${target})
    install(FILES ${headers} ${ARGN} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/OrvWidgets")
endfunction()

function(orv_target_defaults target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wno-unused-parameter)
    if(ORV_USE_PCH)
        target_precompile_headers(${target} PRIVATE ${ORV_PCH_HEADERS})
    endif()
endfunction()
