include(GoogleTest)

# quorvel_gtest(TARGET): adds a GoogleTest program to ctest, each case as a test of its own. Under an
# emulator starting costs more than the cases do: there one process runs them all.
function(quorvel_gtest target)
  # The tests take longer to compile than to run.
  target_compile_options(${target} PRIVATE -O0)
  target_precompile_headers(${target} PRIVATE <gtest/gtest.h>)
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${target} COMMAND ${target})
  else()
    gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST)
  endif()
endfunction()
