# Windows x86-64 from Linux: MinGW-w64 GCC with POSIX threads, tests under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Header-only dependencies come from the build machine. Its /usr/include cannot
# be named as a whole, for it would show glibc's headers to this compiler: a
# folder of links shows only what is wanted.
set(QDACORE_HOST_HEADERS ${CMAKE_BINARY_DIR}/host-headers)
foreach(folder boost CLI fmt nlohmann)
  if(EXISTS /usr/include/${folder} AND NOT EXISTS ${QDACORE_HOST_HEADERS}/${folder})
    file(MAKE_DIRECTORY ${QDACORE_HOST_HEADERS})
    file(CREATE_LINK /usr/include/${folder} ${QDACORE_HOST_HEADERS}/${folder} SYMBOLIC)
  endif()
endforeach()
set(Boost_NO_BOOST_CMAKE ON)
set(Boost_INCLUDE_DIR ${QDACORE_HOST_HEADERS} CACHE PATH "Boost headers")

# Programs run through a wrapper that keeps a Wine prefix of this build's own.
set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_CURRENT_LIST_DIR}/run-under-wine;${CMAKE_BINARY_DIR}/wine)
