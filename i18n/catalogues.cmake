# kelp_catalogues(<target>): compiles every catalogue of this folder into the target, as :/i18n/<code>.qm.
function(kelp_catalogues target)
    file(GLOB catalogues CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/i18n/kelp_*.ts")
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/i18n")
    set(compiled)
    foreach(catalogue IN LISTS catalogues)
        string(REGEX REPLACE "^.*/kelp_(.*)\\.ts$" "\\1" code "${catalogue}")
        set(qm "${folder}/${code}.qm")
        add_custom_command(OUTPUT "${qm}"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
            COMMAND Qt6::lrelease -silent "${catalogue}" -qm "${qm}"
            DEPENDS "${catalogue}" VERBATIM)
        set_source_files_properties("${qm}" PROPERTIES QT_RESOURCE_ALIAS "${code}.qm")
        list(APPEND compiled "${qm}")
    endforeach()
    if(compiled)
        qt_add_resources(${target} "${target}_catalogues" PREFIX "/i18n" FILES ${compiled})
    endif()
endfunction()
