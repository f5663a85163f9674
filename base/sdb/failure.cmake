set(SDB_FAILURE_SOURCES sdbException.cpp)
