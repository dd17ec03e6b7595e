# tb_add_test(NAME sources... [GUI])
# Builds one Qt Test executable and registers it with CTest. Every test runs on the
# offscreen platform with a private configuration and data folder, so no test can
# read or write the settings of the person running it.
function(tb_add_test name)
    cmake_parse_arguments(ARG "GUI" "" "" ${ARGN})
    add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE tb_options Qt6::Test tbcore tbtestsupport)
    if(ARG_GUI)
        target_link_libraries(${name} PRIVATE tbui)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set(home ${CMAKE_BINARY_DIR}/test-home/${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;TB_TEST_DATA=${CMAKE_SOURCE_DIR}/tests/data;TB_SOURCE_DIR=${CMAKE_SOURCE_DIR}"
        TIMEOUT 300)
endfunction()
