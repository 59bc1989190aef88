# zk_embed_resources(TARGET SCRIPT.rc)
#
# Gives a library or program the dialogs and files of a resource script. For Windows the script is compiled as it
# is. Natively the script, the headers that it includes by a quoted name and the files that it stores
# (ID TYPE "FILE", one to a line) are turned into a source file with the table Win32Resources, which the native
# FindResourceA and CreateDialogParamA look up in the module they are given.
function(zk_embed_resources target script)
    get_filename_component(script ${script} ABSOLUTE)
    get_filename_component(folder ${script} DIRECTORY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${script})
    file(STRINGS ${script} lines)
    set(names)
    foreach(line IN LISTS lines)
        # One at a time: of two matches in one condition only the last would leave its name.
        if(line MATCHES "^[ \t]*#[ \t]*include[ \t]+\"([^\"]+)\"")
            list(APPEND names ${CMAKE_MATCH_1})
        elseif(line MATCHES "^[ \t]*[A-Za-z0-9_]+[ \t]+[A-Za-z0-9_]+[ \t]+\"([^\"]+)\"[ \t]*$")
            list(APPEND names ${CMAKE_MATCH_1})
        endif()
    endforeach()
    list(TRANSFORM names PREPEND ${folder}/ OUTPUT_VARIABLE files)

    if(WIN32)
        enable_language(RC)
        target_sources(${target} PRIVATE ${script})
        set_property(SOURCE ${script} PROPERTY INCLUDE_DIRECTORIES ${folder})
        set_property(SOURCE ${script} PROPERTY OBJECT_DEPENDS "${files}")
        return()
    endif()

    get_filename_component(stem ${script} NAME_WE)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}_${stem}_resources.cpp)
    set(generator ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/GenerateResourceTable.cmake)
    add_custom_command(
        OUTPUT ${source}
        COMMAND ${CMAKE_COMMAND} "-DFILES=${script};${files}" "-DOUTPUT=${source}" -P ${generator}
        DEPENDS ${script} ${files} ${generator}
        COMMENT "Embedding ${stem}.rc into ${target}"
        VERBATIM)
    target_sources(${target} PRIVATE ${source})
    get_target_property(type ${target} TYPE)
    if(type STREQUAL EXECUTABLE)
        target_link_options(${target} PRIVATE -Wl,--export-dynamic-symbol=Win32Resources)
    endif()
endfunction()
