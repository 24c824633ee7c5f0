# HLX_SANITIZE: sanitizers for everything built here, such as "address,undefined".
# Without them every library must resolve all its symbols when it is linked; with them some come at run time.
set(HLX_SANITIZE "" CACHE STRING "Sanitizers, as for -fsanitize=")
if(HLX_SANITIZE)
    add_compile_options(-fsanitize=${HLX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${HLX_SANITIZE})
else()
    add_link_options($<$<NOT:$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>>:LINKER:--no-undefined>)
endif()
