# embed_text(TARGET FILE): makes the text of FILE (relative to the current folder) a raw string literal in
# <build>/generated/<path of FILE from reference/>.inc and puts that folder on TARGET's private include path:
#     static const char kSchema[] =
#     #include "host/store/schema.sql.inc"
#         ;
set(HLX_GENERATED_DIR ${PROJECT_BINARY_DIR}/generated)
set(HLX_EMBED_SCRIPT ${CMAKE_CURRENT_LIST_DIR}/EmbedTextFile.cmake)

function(embed_text target file)
    set(input ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    cmake_path(RELATIVE_PATH input BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/reference OUTPUT_VARIABLE path)
    set(output ${HLX_GENERATED_DIR}/${path}.inc)
    add_custom_command(OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -DINPUT=${input} -DOUTPUT=${output} -P ${HLX_EMBED_SCRIPT}
        DEPENDS ${input} ${HLX_EMBED_SCRIPT}
        COMMENT "Embedding ${path}"
        VERBATIM)
    target_sources(${target} PRIVATE ${output})
    target_include_directories(${target} PRIVATE ${HLX_GENERATED_DIR})
endfunction()
