vmr_test(test_sdb_resources
  SOURCES
    sdbFindings_test.cpp
    sdbOrderedStringPairs_test.cpp
    sdbResourceHandler_test.cpp
    sdbResourceType_test.cpp
    sdbTranslationData_test.cpp
    sdbValidator_test.cpp
  LIBRARIES base_sdb base_test_kit)
