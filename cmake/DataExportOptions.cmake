# SPDX-License-Identifier: MIT
# Flags that every target of the project has.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

find_program(DATAEXPORT_CCACHE ccache)
if(DATAEXPORT_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${DATAEXPORT_CCACHE}")
endif()

if(DATAEXPORT_LTO)
    set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
endif()

add_library(dataexport_options INTERFACE)
target_compile_options(dataexport_options INTERFACE
    -Wall -Wextra -Wpedantic -Wno-missing-field-initializers # records are filled by name
    -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${DATAEXPORT_WERROR}>:-Werror>)
target_compile_definitions(dataexport_options INTERFACE
    QT_NO_KEYWORDS QT_NO_URL_CAST_FROM_STRING QT_DEPRECATED_WARNINGS)

# Product sources say how 8-bit text is read; tests may write plain "text".
add_library(dataexport_strict_text INTERFACE)
target_compile_definitions(dataexport_strict_text INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY)
