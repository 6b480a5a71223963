# The tools: programs that write committed tables from the code. Tests compare the tables with what the code says.

# What C++ cannot list is read out of the sources: the public records, and the names of the PTZ sub-commands.
set(kov_lists "${PROJECT_BINARY_DIR}/tools")
file(GLOB kov_public_headers CONFIGURE_DEPENDS RELATIVE "${kov_include}/kov_protocol"
     "${kov_include}/kov_protocol/*.h")
set(kov_includes "")
set(kov_records "")
foreach(header IN LISTS kov_public_headers)
  string(APPEND kov_includes "#include \"kov_protocol/${header}\"\n")
  file(STRINGS "${kov_include}/kov_protocol/${header}" lines REGEX "^} [A-Za-z0-9_]+;")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^} ([A-Za-z0-9_]+).*" "KOV_RECORD(\\1, \"${header}\")\n" record "${line}")
    string(APPEND kov_records "${record}")
  endforeach()
endforeach()
set(kov_sub_commands "${PROJECT_SOURCE_DIR}/src/ptz/ptz_control.cpp")
file(STRINGS "${kov_sub_commands}" lines REGEX "^    {\"[A-Za-z_]+\", k[A-Za-z]+")
string(REGEX REPLACE " *{(\"[A-Za-z_]+\"), [^}]*}," "\\1," kov_commands "${lines}")
list(JOIN kov_commands "\n" kov_commands)

file(CONFIGURE OUTPUT "${kov_lists}/public_headers.inc" CONTENT "${kov_includes}" @ONLY)
file(CONFIGURE OUTPUT "${kov_lists}/record_names.inc" CONTENT "${kov_records}" @ONLY)
file(CONFIGURE OUTPUT "${kov_lists}/ptz_commands.inc" CONTENT "${kov_commands}\n" @ONLY)
list(TRANSFORM kov_public_headers PREPEND "${kov_include}/kov_protocol/")
set_property(DIRECTORY "${PROJECT_SOURCE_DIR}" APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${kov_public_headers}
                                                               "${kov_sub_commands}")

# kov_tool NAME FILE: tools/NAME.cpp writes FILE.
function(kov_tool name file)
  add_executable(kov_${name} "${PROJECT_SOURCE_DIR}/tools/${name}.cpp")
  target_include_directories(kov_${name} PRIVATE "${PROJECT_SOURCE_DIR}/src" "${kov_lists}")
  target_link_libraries(kov_${name} PRIVATE kov_protocol_static kov_platform)
  kov_program_options(kov_${name})
  add_test(NAME table.${name} COMMAND kov_${name} check "${PROJECT_SOURCE_DIR}/${file}")
  add_custom_target(update_${name} COMMAND kov_${name} write "${PROJECT_SOURCE_DIR}/${file}")
endfunction()

math(EXPR kov_word "8 * ${CMAKE_SIZEOF_VOID_P}")
kov_tool(message_page docs/messages.md)
kov_tool(record_sizes abi/record_sizes_${kov_word}.txt)
