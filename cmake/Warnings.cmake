# Warnings of our own code; third-party sources (GoogleTest) do not link this.
add_library(quorvel_warnings INTERFACE)
target_compile_options(quorvel_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 warns falsely about the growth of a u16string.
  target_compile_options(quorvel_warnings INTERFACE -Wno-restrict)
endif()
