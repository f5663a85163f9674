# vmr_translator(name ENTRY nameModule.cpp SOURCES ... LIBRARIES ...): a loadable format module. Its sources form the
# static library translator_<name>_parts, which tests link; the entry has the two functions that the host looks for.
# The module is <name>.so, and the manifest <name>.json of the current folder is copied beside it. The factory settings
# of its formats are made from the manifest. The build tree has all three in the layout of an installed prefix.
#
# This file serves the modules of the program and, installed with the sdk, those that are built elsewhere. These have
# the install component "user" besides, which lays the module out for the folder of one user.

# vmr_manifest_formats(manifest result): the indices of the formats that a manifest declares; its text in manifest_json.
macro(vmr_manifest_formats manifest result)
  file(READ ${manifest} manifest_json)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${manifest})
  string(JSON count LENGTH "${manifest_json}" formats)
  math(EXPR last "${count} - 1")
  set(${result})
  foreach(index RANGE ${last})
    list(APPEND ${result} ${index})
  endforeach()
endmacro()

function(vmr_translator name)
  cmake_parse_arguments(ARG "" "ENTRY" "SOURCES;LIBRARIES" ${ARGN})
  set(parts translator_${name}_parts)
  add_library(${parts} STATIC ${ARG_SOURCES})
  set_target_properties(${parts} PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_EXTENSIONS OFF)
  target_include_directories(${parts} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/..)
  target_link_libraries(${parts} PUBLIC vmr::sdk ${ARG_LIBRARIES})

  set(module translator_${name})
  set(place ${CMAKE_BINARY_DIR}/${VMR_TRANSLATOR_DIR})
  set(manifest ${CMAKE_CURRENT_SOURCE_DIR}/${name}.json)
  add_library(${module} MODULE ${ARG_ENTRY})
  target_link_libraries(${module} PRIVATE ${parts})
  target_link_options(${module} PRIVATE -Wl,--as-needed -Wl,--exclude-libs,ALL)
  set_target_properties(${module} PROPERTIES PREFIX "" OUTPUT_NAME ${name} CXX_EXTENSIONS OFF
                                             LIBRARY_OUTPUT_DIRECTORY ${place})
  if(TARGET vmr_options)
    target_link_libraries(${parts} PRIVATE vmr_options)
    target_link_libraries(${module} PRIVATE vmr_options)
  endif()
  add_custom_command(
    OUTPUT ${place}/${name}.json
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${manifest} ${place}/${name}.json
    DEPENDS ${manifest})

  set(settings)
  vmr_manifest_formats(${manifest} formats)
  foreach(index ${formats})
    string(JSON format GET "${manifest_json}" formats ${index} name)
    string(JSON file GET "${manifest_json}" formats ${index} resource_file)
    set(folder ${CMAKE_BINARY_DIR}/${VMR_DATA_DIR}/resources)
    add_custom_command(
      OUTPUT ${folder}/${file}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
      COMMAND vmr::make-rsc ${manifest} ${format} ${folder}
      DEPENDS vmr::make-rsc ${manifest}
      VERBATIM)
    list(APPEND settings ${folder}/${file})
  endforeach()
  add_custom_target(${module}_files DEPENDS ${place}/${name}.json ${settings})
  add_dependencies(${module} ${module}_files)
  set_property(GLOBAL APPEND PROPERTY VMR_TRANSLATORS ${module})
  set_property(GLOBAL APPEND PROPERTY VMR_MANIFESTS ${manifest})

  install(TARGETS ${module} LIBRARY DESTINATION ${VMR_TRANSLATOR_DIR} COMPONENT runtime)
  install(FILES ${manifest} DESTINATION ${VMR_TRANSLATOR_DIR} COMPONENT runtime)
  install(FILES ${settings} DESTINATION ${VMR_DATA_DIR}/resources COMPONENT runtime)
  if(vmr_FOUND)
    install(TARGETS ${module} LIBRARY DESTINATION translators COMPONENT user EXCLUDE_FROM_ALL)
    install(FILES ${manifest} DESTINATION translators COMPONENT user EXCLUDE_FROM_ALL)
    install(FILES ${settings} DESTINATION resources COMPONENT user EXCLUDE_FROM_ALL)
  endif()
endfunction()
