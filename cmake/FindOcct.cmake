# The Open CASCADE of the system as the target translators_occt, whose headers are system headers, so that their
# warnings are not ours. The libraries are linked by name (TKXCAF and so on): the package configuration of Open
# CASCADE names development files of libraries that Open CASCADE itself needs, and that nothing here includes.
find_path(OCCT_INCLUDE_DIR Standard_Version.hxx PATH_SUFFIXES opencascade)
find_library(OCCT_KERNEL_LIBRARY TKernel)

if(OCCT_INCLUDE_DIR)
  file(READ ${OCCT_INCLUDE_DIR}/Standard_Version.hxx version)
  string(REGEX REPLACE ".*#define OCC_VERSION_MAJOR +([0-9]+).*#define OCC_VERSION_MINOR +([0-9]+).*MAINTENANCE +([0-9]+).*"
         "\\1.\\2.\\3" Occt_VERSION "${version}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Occt REQUIRED_VARS OCCT_INCLUDE_DIR OCCT_KERNEL_LIBRARY VERSION_VAR Occt_VERSION)
mark_as_advanced(OCCT_INCLUDE_DIR OCCT_KERNEL_LIBRARY)

if(Occt_FOUND AND NOT TARGET translators_occt)
  cmake_path(GET OCCT_KERNEL_LIBRARY PARENT_PATH directory)
  add_library(translators_occt INTERFACE IMPORTED GLOBAL)
  target_include_directories(translators_occt SYSTEM INTERFACE ${OCCT_INCLUDE_DIR})
  target_link_directories(translators_occt INTERFACE ${directory})
endif()
