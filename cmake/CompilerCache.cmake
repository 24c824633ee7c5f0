# Compiles through ccache where it is installed. Objects are shared between checkouts: no path of this one is
# part of what is cached. Those of clang with a precompiled header, which is named by its full path, are shared
# only between checkouts in the same place.
find_program(HLX_CCACHE ccache)
if(HLX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros ${HLX_CCACHE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        add_compile_options(-fpch-preprocess) # without it ccache cannot use a precompiled header
    endif()
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
        add_compile_options("SHELL:-Xclang -fno-pch-timestamp") # nor would a fresh checkout find it there
    endif()
    add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
endif()
