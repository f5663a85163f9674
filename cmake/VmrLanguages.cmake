# Languages: message catalogues are written as data/locale/<language>/<domain>.po and compiled into the layout of an
# installation, where the program finds them. A new language is a folder with its .po files and one line in
# data/locale/CMakeLists.txt.

find_program(MSGFMT_EXECUTABLE msgfmt REQUIRED)

# vmr_catalogue(po mo): the rule that compiles one catalogue. Conversions that do not fit those of the key fail it.
function(vmr_catalogue po mo)
  cmake_path(GET mo PARENT_PATH folder)
  add_custom_command(
    OUTPUT ${mo}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${MSGFMT_EXECUTABLE} --check-format --check-domain -o ${mo} ${po}
    DEPENDS ${po}
    VERBATIM)
endfunction()

# vmr_language(language DOMAINS a b): compiles and installs <language>/a.po and <language>/b.po. The target
# vmr_languages compiles those of all languages, which the global property VMR_LANGUAGES lists. <language>/vmrdesktop.po
# is no domain: its texts go into the files of data/desktop when they are built.
function(vmr_language language)
  set_property(GLOBAL APPEND PROPERTY VMR_LANGUAGES ${language})
  cmake_parse_arguments(ARG "" "" "DOMAINS" ${ARGN})
  set(folder ${VMR_DATA_DIR}/locale/${language}/LC_MESSAGES)
  set(catalogues)
  foreach(domain ${ARG_DOMAINS})
    set(catalogue ${CMAKE_BINARY_DIR}/${folder}/${domain}.mo)
    vmr_catalogue(${CMAKE_CURRENT_SOURCE_DIR}/${language}/${domain}.po ${catalogue})
    list(APPEND catalogues ${catalogue})
  endforeach()
  add_custom_target(vmr_language_${language} ALL DEPENDS ${catalogues})
  if(NOT TARGET vmr_languages)
    add_custom_target(vmr_languages)
  endif()
  add_dependencies(vmr_languages vmr_language_${language})
  install(FILES ${catalogues} DESTINATION ${folder})
endfunction()
