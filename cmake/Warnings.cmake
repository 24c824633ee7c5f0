# `project_warnings`: how every target of this project is compiled. Warnings are errors.
add_library(project_warnings INTERFACE)
target_compile_options(project_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)

# g++ 12 warns of accesses inside std::string's own code that do not happen (its bugs 105329 and 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(project_warnings INTERFACE
        -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow)
endif()
