# clang-tidy beside the compiler, for what lies in src/. The build for Windows sees every file but the
# portable twins of the platform.
set(QUORVEL_ANALYZER shallow CACHE STRING "How far the static analyzer follows a path: deep takes minutes")

set(tidy clang-tidy --quiet
  --extra-arg=-Wno-unknown-warning-option
  --extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=mode=${QUORVEL_ANALYZER})
if(MINGW)
  # clang takes the headers of the compiler that CMake found, but its own intrinsics.
  list(APPEND tidy --extra-arg-before=--target=${MINGW_TRIPLE})
  set(headers ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
  list(FILTER headers EXCLUDE REGEX "/gcc/[^/]*/[^/]*/include(-fixed)?$")
  list(TRANSFORM headers PREPEND --extra-arg=-isystem)
  list(APPEND tidy ${headers})
endif()
set(CMAKE_CXX_CLANG_TIDY ${tidy})
# Windows' way to hide inline functions is an option that clang does not know.
set(CMAKE_VISIBILITY_INLINES_HIDDEN OFF)

# Other rules: everything is looked at again.
set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/.clang-tidy)
file(SHA1 ${PROJECT_SOURCE_DIR}/.clang-tidy rules)
add_compile_definitions(QUORVEL_TIDY_RULES=${rules})
