# SPDX-License-Identifier: MIT
# A layer is one folder of src/ as an object library. It sees the headers of the layers that it
# names, and no others: each layer offers an include directory that holds nothing but itself (a
# link to its folder), so that an include of a layer that is not named does not compile.
#
#   dataexport_layer(exporters FOLDER exporters USES model platform SOURCES CHtmlExporter.cpp ...)
function(dataexport_layer_directory name out)
    set(${out} "${CMAKE_BINARY_DIR}/layers/${name}" PARENT_SCOPE)
endfunction()

# Makes the headers of the layers `USES` visible to `target`.
function(dataexport_use_layers target)
    foreach(layer IN LISTS ARGN)
        dataexport_layer_directory(${layer} directory)
        target_include_directories(${target} PRIVATE "${directory}")
    endforeach()
endfunction()

function(dataexport_layer name)
    cmake_parse_arguments(LAYER "" "FOLDER" "USES;SOURCES;LINKS" ${ARGN})
    dataexport_layer_directory(${name} directory)
    get_filename_component(parent "${directory}/${LAYER_FOLDER}" DIRECTORY)
    file(MAKE_DIRECTORY "${parent}")
    # A parent folder that holds further layers (translators/contact) offers its own headers only.
    file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${LAYER_FOLDER}/*.h")
    file(REMOVE_RECURSE "${directory}/${LAYER_FOLDER}")
    file(MAKE_DIRECTORY "${directory}/${LAYER_FOLDER}")
    foreach(header IN LISTS headers)
        get_filename_component(header_name "${header}" NAME)
        file(CREATE_LINK "${header}" "${directory}/${LAYER_FOLDER}/${header_name}" SYMBOLIC)
    endforeach()

    if(LAYER_SOURCES)
        list(TRANSFORM LAYER_SOURCES PREPEND "${CMAKE_SOURCE_DIR}/src/${LAYER_FOLDER}/")
        add_library(${name} OBJECT ${LAYER_SOURCES})
        set_property(GLOBAL APPEND PROPERTY DATAEXPORT_LAYERS ${name}) # for the tests
        target_link_libraries(${name}
            PRIVATE dataexport_options dataexport_strict_text
            PUBLIC Qt5::Core Qt5::Gui ${LAYER_LINKS})
        dataexport_use_layers(${name} ${name} ${LAYER_USES})
    endif()
endfunction()
