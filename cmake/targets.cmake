# One target for each folder, all built with the same strictness.

find_program(CORVANA_CCACHE ccache)
if(CORVANA_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CORVANA_CCACHE})
endif()

find_package(Threads REQUIRED)

add_library(corvana_strict INTERFACE)
target_include_directories(corvana_strict INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(corvana_strict INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                       -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
# GCC 12 sees overlapping copies in std::string's own operator+ where there are none.
target_compile_options(corvana_strict INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_link_libraries(corvana_strict INTERFACE Threads::Threads)
if(CORVANA_SANITIZE)
    target_compile_options(corvana_strict INTERFACE -fsanitize=${CORVANA_SANITIZE}
                           -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(corvana_strict INTERFACE -fsanitize=${CORVANA_SANITIZE})
endif()

# corvana_folder(NAME SOURCES... DEPENDS folders...): the folder's library, and what it may use.
function(corvana_folder name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;DEPENDS")
    add_library(corvana_${name} STATIC ${ARG_SOURCES})
    target_link_libraries(corvana_${name} PUBLIC corvana_strict)
    foreach(folder IN LISTS ARG_DEPENDS)
        target_link_libraries(corvana_${name} PUBLIC corvana_${folder})
    endforeach()
endfunction()

# corvana_tests(NAME SOURCES... DEPENDS targets... [LABELS ...]): one test program.
function(corvana_tests name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;DEPENDS;LABELS")
    add_executable(test_${name} ${ARG_SOURCES})
    target_link_libraries(test_${name} PRIVATE corvana_strict ${ARG_DEPENDS} GTest::gtest_main)
    add_test(NAME ${name} COMMAND test_${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 LABELS "${ARG_LABELS}")
    if("servers" IN_LIST ARG_LABELS)
        # What they start has a clock of its own to keep.
        set_tests_properties(${name} PROPERTIES RUN_SERIAL TRUE)
    endif()
endfunction()
