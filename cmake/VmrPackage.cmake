# The Debian packages: the program, and the files for authors of format modules. scripts/package builds them.

set(VMR_PACKAGE_MAINTAINER "${VMR_COMPANY_NAME} Packages <packages@${VMR_COMPANY_DOMAIN}.example.com>"
    CACHE STRING "Name and address of whoever builds the packages")

set(package_files ${PROJECT_SOURCE_DIR}/data/package)
foreach(file changelog copyright)
  configure_file(${package_files}/${file}.in ${PROJECT_BINARY_DIR}/package/${file} @ONLY)
endforeach()
vmr_compressed(${PROJECT_BINARY_DIR}/package/changelog ${PROJECT_BINARY_DIR}/package/changelog.Debian.gz)
add_custom_target(vmr_package_files ALL DEPENDS ${PROJECT_BINARY_DIR}/package/changelog.Debian.gz)
foreach(component runtime development)
  set(folder ${VMR_DOC_DIR})
  if(component STREQUAL development)
    set(folder ${VMR_SDK_DOC_DIR})
  endif()
  install(FILES ${PROJECT_BINARY_DIR}/package/changelog.Debian.gz ${PROJECT_BINARY_DIR}/package/copyright
          DESTINATION ${folder} COMPONENT ${component})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${VMR_PACKAGE_NAME})
set(CPACK_PACKAGE_VENDOR "${VMR_COMPANY_NAME}")
set(CPACK_PACKAGE_CONTACT "${VMR_PACKAGE_MAINTAINER}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${VMR_PACKAGE_RELEASE})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${VMR_PACKAGE_NAME})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION non-free/graphics)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS hicolor-icon-theme)
# The toolkit's own texts, as those of file dialogs, come from the system.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "shared-mime-info, wx3.2-i18n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "bash-completion, fonts-noto-cjk, ${VMR_PACKAGE_NAME}-dev")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION [[translator of geometry between CAD formats
Moves geometry between STEP, IGES, Open CASCADE BREP and STL: one file,
several files merged into one, or a whole batch, in a window or from a
command line that needs no display. Solids stay solids, lengths stay
lengths, and names, colours, layers and assemblies come along as far as
the target format can hold them.

Each translation runs in a process of its own, and an output appears whole
or not at all. What a format cannot hold, and what went wrong, is reported
with counts. A second program compares two files of any of these formats.]])

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${VMR_PACKAGE_NAME}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION non-free/libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS ON)
string(JOIN ", " CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${VMR_PACKAGE_NAME} (= ${PROJECT_VERSION}-${VMR_PACKAGE_RELEASE})" libocct-data-exchange-dev libocct-ocaf-dev
  libocct-modeling-algorithms-dev libocct-modeling-data-dev libocct-foundation-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS "cmake, g++")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "format modules for ${VMR_PRODUCT_NAME} - development files
Headers, libraries and CMake files for authors of format modules, which
teach ${VMR_PRODUCT_NAME} to read and write formats of their own, with a guide
and an example: a module for meshes in the OFF format.")

include(CPack)
