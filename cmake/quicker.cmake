# What makes a build quicker, each used when it is there and does work.

find_program(CORVANA_CCACHE ccache)
if(CORVANA_CCACHE)
    # Its folder may lie in a home that can't be written.
    set(probe ${PROJECT_BINARY_DIR}/probe)
    file(WRITE ${probe}.cpp "")
    execute_process(COMMAND ${CORVANA_CCACHE} ${CMAKE_CXX_COMPILER} -c ${probe}.cpp -o ${probe}.o
                    RESULT_VARIABLE failed OUTPUT_QUIET ERROR_QUIET)
    if(NOT failed)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CORVANA_CCACHE})
    else()
        message(STATUS "ccache can't write its folder: building without it")
    endif()
endif()

find_program(CORVANA_MOLD mold)
if(CORVANA_MOLD AND (CMAKE_CXX_COMPILER_ID STREQUAL "Clang" OR
                     CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12.1))
    add_link_options(-fuse-ld=mold)
endif()
