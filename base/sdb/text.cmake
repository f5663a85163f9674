set(SDB_TEXT_SOURCES sdbStringTable.cpp sdbOstream.cpp sdbOstreamDisplayer.cpp)
