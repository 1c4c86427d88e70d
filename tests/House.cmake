# Tests of what stands around the code: checks of the sources, the installed package.
# qvdc_house_check(name): tools/<name>.py on the whole project; prints file, line, what is wrong and the better way.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
function(qvdc_house_check name)
    if(EXISTS ${PROJECT_SOURCE_DIR}/tools/${name}.py)
        add_test(NAME ${name} COMMAND ${Python3_EXECUTABLE} -B tools/${name}.py
                 WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
    endif()
endfunction()
if(NOT QVDC_SANITIZE) # neither the sources nor the installed package differ there
    foreach(check check_layers check_words check_names check_sizes check_texts selftest)
        qvdc_house_check(${check})
    endforeach()

    # The installed package as its users meet it: installed afresh, found, linked and run from a project of their own.
    set(stage ${CMAKE_BINARY_DIR}/stage)
    add_test(NAME consumer_stage COMMAND ${CMAKE_COMMAND} -E rm -rf ${stage} ${CMAKE_BINARY_DIR}/consumer)
    add_test(NAME consumer_install COMMAND ${CMAKE_COMMAND} --install ${CMAKE_BINARY_DIR} --prefix ${stage})
    add_test(NAME consumer COMMAND ${CMAKE_CTEST_COMMAND}
        --build-and-test ${PROJECT_SOURCE_DIR}/tests/consumer ${CMAKE_BINARY_DIR}/consumer
        --build-generator ${CMAKE_GENERATOR} --build-noclean
        --build-options -DCMAKE_PREFIX_PATH=${stage} "-DCMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}"
        --test-command ${CMAKE_CTEST_COMMAND} --output-on-failure)
    set_tests_properties(consumer_stage PROPERTIES FIXTURES_SETUP staged)
    set_tests_properties(consumer_install PROPERTIES FIXTURES_REQUIRED staged FIXTURES_SETUP installed)
    set_tests_properties(consumer PROPERTIES FIXTURES_REQUIRED installed)
endif()
