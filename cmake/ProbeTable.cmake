# The names of all probes, read off the SDK's headers: <build>/generated/ProbeTable.inc, made before anything that
# sees the headers inside the reference host is compiled.
set(probe_script ${PROJECT_SOURCE_DIR}/scripts/probe-table)
if(EXISTS ${probe_script})
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    file(GLOB_RECURSE probe_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/sdk/*.h)
    set(probe_table ${HLX_GENERATED_DIR}/ProbeTable.inc)
    file(MAKE_DIRECTORY ${HLX_GENERATED_DIR})
    add_custom_command(OUTPUT ${probe_table}
        COMMAND Python3::Interpreter ${probe_script} sdk ${probe_table}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        DEPENDS ${probe_script} ${PROJECT_SOURCE_DIR}/scripts/sdk_operations.py ${probe_headers}
        COMMENT "Listing the SDK's probes"
        VERBATIM)
    add_custom_target(VEXProbeTable DEPENDS ${probe_table})
    target_include_directories(VEXReferenceInternals INTERFACE ${HLX_GENERATED_DIR})
    add_dependencies(VEXReferenceInternals VEXProbeTable)
endif()
