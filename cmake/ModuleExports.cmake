# zk_module_exports(TARGET FILE.def [NATIVE_EXTRA SYMBOL...])
#
# Limits what a loadable library exports to the names in a module definition file, the same file in every
# build: the Windows linker reads it as it is, natively it becomes a version script. NATIVE_EXTRA names symbols
# that only the native library loader looks for (the library entry, the embedded resources).
function(zk_module_exports target definition)
    cmake_parse_arguments(ARG "" "" "NATIVE_EXTRA" ${ARGN})
    if(WIN32)
        target_sources(${target} PRIVATE ${definition})
        return()
    endif()
    file(STRINGS ${definition} lines REGEX "^[ \t]+[A-Za-z_]")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${definition})
    set(names ${ARG_NATIVE_EXTRA})
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "^[ \t]+([A-Za-z_0-9]+).*" "\\1" name "${line}")
        list(APPEND names ${name})
    endforeach()
    list(JOIN names ";\n    " global)
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.exports)
    file(WRITE ${script} "{\n  global:\n    ${global};\n  local: *;\n};\n")
    target_link_options(${target} PRIVATE -Wl,--version-script=${script})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()
