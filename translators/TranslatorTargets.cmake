# vmr_translator(name ENTRY nameModule.cpp SOURCES ... LIBRARIES ...): a loadable format module. Its sources form the
# static library translator_<name>_parts, which tests link; the entry has the two functions that the host looks for.
# The module is <name>.so, and the manifest <name>.json of the current folder is copied beside it.
function(vmr_translator name)
  cmake_parse_arguments(ARG "" "ENTRY" "SOURCES;LIBRARIES" ${ARGN})
  set(parts translator_${name}_parts)
  vmr_library(${parts} SOURCES ${ARG_SOURCES} LIBRARIES translators_sdk ${ARG_LIBRARIES})

  set(module translator_${name})
  set(place ${CMAKE_BINARY_DIR}/${VMR_TRANSLATOR_DIR})
  set(manifest ${CMAKE_CURRENT_SOURCE_DIR}/${name}.json)
  add_library(${module} MODULE ${ARG_ENTRY})
  target_link_libraries(${module} PRIVATE vmr_options ${parts})
  target_link_options(${module} PRIVATE -Wl,--as-needed -Wl,--exclude-libs,ALL)
  set_target_properties(${module} PROPERTIES PREFIX "" OUTPUT_NAME ${name} CXX_EXTENSIONS OFF
                                             LIBRARY_OUTPUT_DIRECTORY ${place})
  add_custom_command(
    OUTPUT ${place}/${name}.json
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${manifest} ${place}/${name}.json
    DEPENDS ${manifest})
  add_custom_target(${module}_manifest DEPENDS ${place}/${name}.json)
  add_dependencies(${module} ${module}_manifest)
  install(TARGETS ${module} LIBRARY DESTINATION ${VMR_TRANSLATOR_DIR})
  install(FILES ${manifest} DESTINATION ${VMR_TRANSLATOR_DIR})
endfunction()
