set(MINGW_TRIPLE x86_64-w64-mingw32)
set(MINGW_WIDL_FLAG -m64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
