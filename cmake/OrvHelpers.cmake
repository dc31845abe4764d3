# Helpers shared by both libraries: every subsystem folder registers its files
# through these, so the umbrella header and the install rules follow by themselves.

set(ORV_PCH_HEADERS <QtCore/QtCore> <QtGui/QtGui> <QtWidgets/QtWidgets>)

# orv_add_layer(<library> <name> [ABOVE <layer> ...])
# One object library per subsystem folder of <library>. It sees the headers of its
# own folder and of the layers it sits above (transitively), nothing higher, so an
# include that reaches upwards fails to compile. The objects end up in <library>;
# <library>_base carries what every layer needs (export header, Qt, the platform).
function(orv_add_layer library name)
    cmake_parse_arguments(ARG "" "" "ABOVE" ${ARGN})
    if(NOT EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${name}/CMakeLists.txt")
        return()
    endif()
    set(layer ${library}_${name})
    add_library(${layer} OBJECT)
    set_target_properties(${layer} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    # The export macro must export while the shared library's objects are compiled.
    target_compile_definitions(${layer} PRIVATE ${library}_EXPORTS)
    target_link_libraries(${layer} PUBLIC ${library}_base)
    foreach(lower IN LISTS ARG_ABOVE)
        if(TARGET ${library}_${lower})
            target_link_libraries(${layer} PUBLIC ${library}_${lower})
        endif()
    endforeach()
    # All layers share one precompiled header, owned by the first.
    get_property(first GLOBAL PROPERTY ORV_FIRST_LAYER_${library})
    if(first)
        orv_target_defaults(${layer} PCH_FROM ${first})
    else()
        set_property(GLOBAL PROPERTY ORV_FIRST_LAYER_${library} ${layer})
        orv_target_defaults(${layer})
    endif()
    target_sources(${library} PRIVATE $<TARGET_OBJECTS:${layer}>)
endfunction()

# orv_add_sources(<target> [SOURCES ...] [PUBLIC_HEADERS ...] [PRIVATE_HEADERS ...] [FORMS ...])
# Adds files of the calling folder to <target>, or to its layer <target>_<folder>
# where one exists, makes the folder an include directory (so "#include <orv_dialog.h>"
# works in the build tree) and records public headers for installation and the
# umbrella header, and every file for the translation scan.
function(orv_add_sources target)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_HEADERS;PRIVATE_HEADERS;FORMS;RESOURCES" ${ARGN})
    set(all ${ARG_SOURCES} ${ARG_PUBLIC_HEADERS} ${ARG_PRIVATE_HEADERS} ${ARG_FORMS} ${ARG_RESOURCES})
    get_filename_component(folder "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    set(dest ${target})
    if(TARGET ${target}_${folder})
        set(dest ${target}_${folder})
    endif()
    if(all)
        target_sources(${dest} PRIVATE ${all})
    endif()
    target_include_directories(${dest} PUBLIC
        "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
    if(NOT dest STREQUAL target)
        # Applications and tests see every public header of the library.
        target_include_directories(${target} PUBLIC
            "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
    endif()
    foreach(h IN LISTS ARG_PUBLIC_HEADERS)
        set_property(GLOBAL APPEND PROPERTY ORV_PUBLIC_HEADERS_${target} "${CMAKE_CURRENT_SOURCE_DIR}/${h}")
    endforeach()
    foreach(f IN LISTS ARG_SOURCES ARG_PUBLIC_HEADERS ARG_PRIVATE_HEADERS ARG_FORMS)
        set_property(GLOBAL APPEND PROPERTY ORV_TRANSLATABLE_${target} "${CMAKE_CURRENT_SOURCE_DIR}/${f}")
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

# orv_target_defaults(<target> [PCH_FROM <target>])
function(orv_target_defaults target)
    cmake_parse_arguments(ARG "" "PCH_FROM" "" ${ARGN})
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wno-unused-parameter)
    if(ORV_USE_PCH)
        if(ARG_PCH_FROM)
            target_precompile_headers(${target} REUSE_FROM ${ARG_PCH_FROM})
        else()
            target_precompile_headers(${target} PRIVATE ${ORV_PCH_HEADERS})
        endif()
    endif()
endfunction()
