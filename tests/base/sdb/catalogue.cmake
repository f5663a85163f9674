# A service module, which also serves as the shared object beside the manifests of made-up translators.
add_library(test_service_module MODULE testServiceModule.cpp)
target_link_libraries(test_service_module PRIVATE vmr_options base_sdu base_vmr)
set_target_properties(test_service_module PROPERTIES PREFIX "" CXX_EXTENSIONS OFF
                                                     LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests/modules)

vmr_test(test_sdb_catalogue
  SOURCES
    TranslatorFolder.cpp
    sdbAppDirMap_test.cpp
    sdbFile_test.cpp
    sdbFormatSignature_test.cpp
    sdbManifestReader_test.cpp
    sdbModuleFile_test.cpp
    sdbPathList_test.cpp
    sdbSchemaDir_test.cpp
    sdbServices_test.cpp
    sdbTranslatorCache_test.cpp
    sdbTranslatorDlls_test.cpp
    sdbTranslatorDllsFactory_test.cpp
    sdbTranslatorInfo_test.cpp
    sdbTranslatorLoadStatus_test.cpp
    sdbTranslatorRecognition_test.cpp
  LIBRARIES base_sdb base_test_kit)
add_dependencies(test_sdb_catalogue test_service_module)
target_compile_definitions(test_sdb_catalogue PRIVATE TEST_MODULE="$<TARGET_FILE:test_service_module>")
