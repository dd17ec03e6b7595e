# tb_add_test(NAME sources... [GUI])
# Builds one Qt Test executable and registers it with CTest. The program itself moves
# to a private home, configuration and data folder and to the offscreen platform when
# it starts (TB_TEST_MAIN), and finds its data through paths fixed here at configure
# time, so it runs the same under ctest and on its own from any folder.
function(tb_add_test name)
    cmake_parse_arguments(ARG "GUI" "" "" ${ARGN})
    add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE tb_options Qt6::Test tbcore tbtestsupport)
    if(ARG_GUI)
        target_link_libraries(${name} PRIVATE tbui)
    endif()
    target_compile_definitions(${name} PRIVATE
        TB_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
        TB_IMPORT_DATA="${PROJECT_SOURCE_DIR}/tests/core/import/data"
        TB_SCREENPLAYS_DIR="${PROJECT_SOURCE_DIR}/tests/core/import/data/screenplays")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()
