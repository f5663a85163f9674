vmr_test(test_sdb_text
  SOURCES
    sdbOstream_test.cpp
    sdbStringTable_test.cpp
  LIBRARIES base_sdb)
