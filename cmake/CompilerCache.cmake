# Compiles through ccache where it is installed. Objects are shared between checkouts: no path of this one is
# part of what is cached.
find_program(HLX_CCACHE ccache)
if(HLX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${HLX_CCACHE})
    add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)
endif()
