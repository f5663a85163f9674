set(SDB_RESOURCE_SOURCES
  sdbOrderedStringPairs.cpp
  sdbResourceHandler.cpp
  sdbResourceType.cpp
  sdbTranslationData.cpp
  sdbValidator.cpp)
