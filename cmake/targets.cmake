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
    # A file's private helpers meet the locals and the tests of its neighbours here; each file alone
    # is held to both warnings by `scripts/lint alone`.
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
    add_test(NAME ${name} COMMAND test_${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 LABELS "${ARGN}")
    foreach(label IN LISTS ARGN)
        if(NOT TARGET tests_${label})
            add_custom_target(tests_${label})
        endif()
        add_dependencies(tests_${label} test_${name})
    endforeach()
    if("servers" IN_LIST ARGN)
        set_tests_properties(${name} PROPERTIES RUN_SERIAL TRUE)
    endif()
endfunction()

# corvana_tests(NAME SOURCES... DEPENDS targets... [LABELS ...]): one test program.
function(corvana_tests name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;DEPENDS;LABELS")
    add_executable(test_${name} ${ARG_SOURCES})
    target_link_libraries(test_${name} PRIVATE corvana_strict ${ARG_DEPENDS} GTest::gtest_main)
    corvana_add_test(${name} ${ARG_LABELS})
endfunction()
