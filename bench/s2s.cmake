find_package(benchmark QUIET)
if(benchmark_FOUND AND TARGET s2s_fake_host)
  add_executable(bench_s2s EXCLUDE_FROM_ALL ${CMAKE_CURRENT_LIST_DIR}/s2s_messages.cpp)
  target_link_libraries(bench_s2s PRIVATE vmr_options base_s2s benchmark::benchmark)
  target_include_directories(bench_s2s PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../tests)
  target_compile_definitions(bench_s2s PRIVATE FAKE_HOST="$<TARGET_FILE:s2s_fake_host>")
  set_target_properties(bench_s2s PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench CXX_EXTENSIONS OFF)
  add_dependencies(bench_s2s s2s_fake_host)

  add_executable(bench_s2s_cancel EXCLUDE_FROM_ALL ${CMAKE_CURRENT_LIST_DIR}/s2s_cancel.cpp)
  target_link_libraries(bench_s2s_cancel PRIVATE vmr_options base_s2s benchmark::benchmark)
  target_include_directories(bench_s2s_cancel PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../tests)
  target_compile_definitions(bench_s2s_cancel PRIVATE REAL_HOST="$<TARGET_FILE:vmr-host>"
                                                      REAL_MODULES="$<TARGET_FILE_DIR:translator_step>")
  set_target_properties(bench_s2s_cancel PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bench
                                                    CXX_EXTENSIONS OFF)
  add_dependencies(bench_s2s_cancel vmr-host translator_step translator_iges)
endif()
