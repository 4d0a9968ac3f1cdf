# The Italian regional settings, for tests of what depends on them: made in the build tree, so that
# they needn't be installed on the machine. Needs the sources of Debian's package `locales`.

find_program(CORVANA_LOCALEDEF localedef REQUIRED)
set(CORVANA_LOCALES ${PROJECT_BINARY_DIR}/locales)

file(MAKE_DIRECTORY ${CORVANA_LOCALES})
add_custom_command(OUTPUT ${CORVANA_LOCALES}/it_IT.UTF-8/LC_NUMERIC
                   COMMAND ${CORVANA_LOCALEDEF} -i it_IT -f UTF-8 --no-archive
                           ${CORVANA_LOCALES}/it_IT.UTF-8
                   COMMENT "Making the Italian locale" VERBATIM)
add_custom_target(corvana_locales DEPENDS ${CORVANA_LOCALES}/it_IT.UTF-8/LC_NUMERIC)

# corvana_needs_locales(NAME): the test program NAME finds the Italian settings in CORVANA_LOCALES.
function(corvana_needs_locales name)
    add_dependencies(test_${name} corvana_locales)
    target_compile_definitions(test_${name} PRIVATE CORVANA_LOCALES="${CORVANA_LOCALES}")
    if(CORVANA_SANITIZE)
        target_sources(test_${name} PRIVATE
                       ${PROJECT_SOURCE_DIR}/tests/support/regional_sanitizers.cpp)
    endif()
endfunction()

# corvana_italian_tests(NAME): the test program NAME, which corvana_tests has made, runs a second
# time, as NAME_it, under the Italian settings. In both runs the process takes the settings of its
# environment; the Italian one fails when its decimal point isn't the comma.
function(corvana_italian_tests name)
    corvana_needs_locales(${name})
    target_sources(test_${name} PRIVATE
                   ${PROJECT_SOURCE_DIR}/tests/support/regional_environment.cpp)
    add_test(NAME ${name}_it COMMAND test_${name} --gtest_brief=1)
    set_tests_properties(${name}_it PROPERTIES TIMEOUT 300
                         ENVIRONMENT "LC_ALL=it_IT.UTF-8;LOCPATH=${CORVANA_LOCALES}")
endfunction()
