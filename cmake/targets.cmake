# One target for each folder, all built with the same strictness.

include(${CMAKE_CURRENT_LIST_DIR}/quicker.cmake)

find_package(Threads REQUIRED)

add_library(corvana_strict INTERFACE)
target_include_directories(corvana_strict INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(corvana_strict INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                       -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
# GCC 12 sees overlapping copies in std::string's own operator+ where there are none.
target_compile_options(corvana_strict INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_link_libraries(corvana_strict INTERFACE Threads::Threads)
if(CMAKE_UNITY_BUILD)
    # A file's private helpers meet the locals and the tests of its neighbours here; `scripts/lint
    # alone` holds each file to both warnings.
    target_compile_options(corvana_strict INTERFACE -Wno-shadow
                           $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()
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

# corvana_add_test(NAME LABELS...): runs the test program NAME. A label's programs are built by the
# target tests_LABEL:
#   desktop   what the logic alone doesn't have: windows and sound outputs
#   servers   starts sound servers, whose clocks are their own: runs alone
#   threads   has more than one thread
function(corvana_add_test name)
    set(runs ${name})
    if("servers" IN_LIST ARGN)
        corvana_runs(runs ${name})
    else()
        add_test(NAME ${name} COMMAND test_${name} --gtest_brief=1)
    endif()
    set_tests_properties(${runs} PROPERTIES TIMEOUT 300 LABELS "${ARGN}")
    foreach(label IN LISTS ARGN)
        if(NOT TARGET tests_${label})
            add_custom_target(tests_${label})
        endif()
        add_dependencies(tests_${label} test_${name})
    endforeach()
    if("servers" IN_LIST ARGN)
        set_tests_properties(${runs} PROPERTIES RUN_SERIAL TRUE)
    endif()
endfunction()

# corvana_runs(OUT NAME): each test of the program NAME runs in a process of its own, as the program
# does. Audio libraries keep what they have for the whole process, and a thread that hangs in one of
# them with a dead server, left behind by one test, would meddle with the next.
function(corvana_runs out name)
    get_target_property(sources test_${name} SOURCES)
    set(runs "")
    foreach(source IN LISTS sources)
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
        file(STRINGS ${source} tests REGEX "^TEST(_F)?\\(")
        foreach(test IN LISTS tests)
            if(NOT test MATCHES "\\((.+), (.+)\\)")
                message(FATAL_ERROR "${source}: one line for a test's name: ${test}")
            endif()
            add_test(NAME ${name}.${CMAKE_MATCH_2} COMMAND test_${name} --gtest_brief=1
                     --gtest_filter=${CMAKE_MATCH_1}.${CMAKE_MATCH_2})
            list(APPEND runs ${name}.${CMAKE_MATCH_2})
        endforeach()
    endforeach()
    set(${out} "${runs}" PARENT_SCOPE)
endfunction()

# corvana_tests(NAME SOURCES... DEPENDS targets... [LABELS ...]): one test program.
function(corvana_tests name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;DEPENDS;LABELS")
    add_executable(test_${name} ${ARG_SOURCES})
    target_link_libraries(test_${name} PRIVATE corvana_strict ${ARG_DEPENDS} GTest::gtest_main)
    corvana_add_test(${name} ${ARG_LABELS})
endfunction()
