set(MINGW_TRIPLE i686-w64-mingw32)
set(MINGW_WIDL_FLAG -m32)
set(MINGW_PROCESSOR x86)
# A 32-bit Wine has a root of its own.
set(MINGW_RUNS_IN ${CMAKE_CURRENT_LIST_DIR}/../tools/i386-root run)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
