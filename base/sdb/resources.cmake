set(SDB_RESOURCE_SOURCES
  sdbFindings.cpp
  sdbOrderedStringPairs.cpp
  sdbResourceHandler.cpp
  sdbResourceType.cpp
  sdbTranslationData.cpp
  sdbValidator.cpp)
