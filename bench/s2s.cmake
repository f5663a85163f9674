find_package(benchmark REQUIRED)
vmr_bench(bench_s2s
  SOURCES s2s_messages.cpp
  LIBRARIES base_s2s benchmark::benchmark
  DEFINITIONS FAKE_HOST="$<TARGET_FILE:s2s_fake_host>"
  RUNS s2s_fake_host)
foreach(name cancel batch)
  vmr_bench(bench_s2s_${name}
    SOURCES s2s_${name}.cpp
    LIBRARIES base_s2s benchmark::benchmark
    DEFINITIONS REAL_HOST="$<TARGET_FILE:vmr-host>" REAL_MODULES="$<TARGET_FILE_DIR:translator_step>"
    RUNS vmr-host translator_step translator_iges)
endforeach()
