# Fails when a colour stands in desktop/ elsewhere than in the palette: run as
# `cmake -DROOT=... -P check_colours.cmake`. That a point has no colour at all is no colour.

cmake_minimum_required(VERSION 3.25)

set(names "white|black|(light|dark)?[gG]ray|(dark)?([rR]ed|[gG]reen|[bB]lue|[cC]yan|[mM]agenta|[yY]ellow)")
set(colours "Qt::(${names})([^a-zA-Z]|$)|QColor( [a-zA-Z]+)? *[({] *[0-9\"]|QColorConstants|[rR]gba?\\( *[0-9]|\"#[0-9a-fA-F]|StyleSheet")
set(faults "")

file(GLOB sources ${ROOT}/desktop/*.h ${ROOT}/desktop/*.cpp)
list(REMOVE_ITEM sources ${ROOT}/desktop/theme.h)
foreach(source IN LISTS sources)
    file(STRINGS ${source} lines REGEX "${colours}")
    foreach(line IN LISTS lines)
        string(APPEND faults "${source}: ${line}\n")
    endforeach()
endforeach()

if(faults)
    message(FATAL_ERROR "Colours that belong into desktop/theme.h:\n${faults}")
endif()
