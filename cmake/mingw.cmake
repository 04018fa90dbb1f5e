# MinGW-w64 with POSIX threads: the default flavour lacks std::mutex.
set(CMAKE_SYSTEM_NAME Windows)
# GoogleTest asks for a C compiler too.
set(CMAKE_C_COMPILER ${MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${MINGW_TRIPLE}-windres)
set(MINGW_WIDL ${MINGW_TRIPLE}-widl)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)

add_compile_definitions(_WIN32_WINNT=0x0601 UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX)
# Nothing but system DLLs is needed where the library is installed.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
get_filename_component(tools ${CMAKE_CURRENT_LIST_DIR}/../tools ABSOLUTE)
set(CMAKE_CROSSCOMPILING_EMULATOR ${MINGW_RUNS_IN} ${tools}/in-wine)
